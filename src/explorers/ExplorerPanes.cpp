#include "explorers/ExplorerPanes.h"

#include "platform/desktop/Form.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/ErrorHandling.h"

#include <QHeaderView>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

using desktop::Label;
using desktop::PictureBox;

namespace {

constexpr double toolbarHeight = 480;
constexpr double statusBarHeight = 345;
constexpr double panesBottom = 8115;
constexpr double panesRight = 13770;
constexpr double margin = 60;

// A headline stands out from what it heads.
void asHeadline(Label &label)
{
    label.setFrameStyle(QFrame::Panel | QFrame::Raised);
    label.setAutoFillBackground(true);
    label.setBackgroundRole(QPalette::Button);
    label.setForegroundRole(QPalette::ButtonText);
    label.setIndent(6);
    label.setShrinksToFit();
}

} // namespace

ExplorerPanes::ExplorerPanes(desktop::Form &window, const ExplorerTexts &texts)
    : Toolbar1(new desktop::Toolbar(&window, u"Toolbar1")),
      LblMemberListing(new Label(&window, u"LblMemberListing", texts.listing)),
      LblMemberInformation(new Label(&window, u"LblMemberInformation", texts.information)),
      TreClassView(new desktop::TreeView(&window, u"TreClassView")), Picture1(new PictureBox(&window, u"Picture1")),
      LstStudenInformation(new desktop::ListView(&window, u"LstStudenInformation")),
      StatusBar1(new desktop::StatusBar(&window, u"StatusBar1")),
      ImageList1(new desktop::ImageList(&window, u"ImageList1")), m_window(window)
{
    ImageList1->add(u"OpenFolder"_s, u":/icons/folder-open.svg"_s);
    ImageList1->add(u"ClosedFolder"_s, u":/icons/folder-closed.svg"_s);
    asHeadline(*LblMemberListing);
    asHeadline(*LblMemberInformation);
    LblMemberListing->setToolTip(u"Click to Refresh"_s);
    LblMemberListing->setClickable();
    Picture1->setFrameStyle(QFrame::VLine | QFrame::Raised);
    desktop::on(Picture1, &PictureBox::MouseMove, Picture1, [this](PictureBox *, int button, float x, float) {
        runtime::endSilently([this, button, x] { dragSplitter(button, x); });
    });
    TreClassView->setAccessibleName(u"Groups"_s);
    LstStudenInformation->setAccessibleName(texts.information);
    LstStudenInformation->setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUpBars(texts);
    setUpPlaces();
    // The keyboard reaches the button too, and starts below it.
    QWidget *button = Toolbar1->widgetForAction(Toolbar1->actions().constFirst());
    button->setFocusPolicy(Qt::TabFocus);
    desktop::setTabOrder({button, LblMemberListing, TreClassView, LstStudenInformation});
    LblMemberListing->setFocus();
}

void ExplorerPanes::setUpBars(const ExplorerTexts &texts)
{
    Toolbar1->setIconSize({20, 20});
    Toolbar1->addButton({}, texts.deleteButton, texts.deleteButton, QIcon(texts.deleteImage));
    StatusBar1->addKeyboardAndClockPanels();
}

void ExplorerPanes::setUpPlaces()
{
    LblMemberListing->Move(60, 480, 2475, 375);
    LblMemberInformation->Move(2595, 480, 11175, 375);
    TreClassView->Move(60, 900, 2475, 7215);
    Picture1->Move(2580, 480, 30, 7635);
    LstStudenInformation->Move(2595, 900, 11175, 7215);
    Picture1->raise(); // it lies over the edge of the list
    m_window.resize(desktop::pixels(panesRight + margin), desktop::pixels(panesBottom + statusBarHeight + margin));
    placeBars();
}

void ExplorerPanes::placeBars()
{
    const double width = desktop::twips(m_window.width());
    Toolbar1->place(0, 0, width, toolbarHeight);
    StatusBar1->place(0, desktop::twips(m_window.height()) - statusBarHeight, width, statusBarHeight);
}

desktop::Node &ExplorerPanes::addGroup(const QString &name, qint32 count)
{
    const QString key = u"ClientManager"_s + name;
    const QString counted = count > 0 ? name + u"     ("_s + QString::number(count) + u")"_s : name;
    desktop::Node &node = TreClassView->Nodes.Add(nullptr, key, counted);
    if (count > 0)
        node.setBold(true);
    else
        node.setGrey();
    node.Tag = name;
    node.setImages(*ImageList1, u"ClosedFolder"_s, u"OpenFolder"_s, {});
    return node;
}

QString ExplorerPanes::countText() const
{
    const auto node = TreClassView->SelectedItem();
    QString text = node->Text();
    if (!node->Tag.isEmpty())
        text.remove(node->Tag);
    return text.remove(u' ').remove(u')').remove(u'(');
}

void ExplorerPanes::forEachSelected(const std::function<void(const desktop::ListItem &)> &act) const
{
    const auto &items = LstStudenInformation->ListItems;
    for (int index = 1; index <= items.Count(); ++index) {
        if (items(index).isSelected())
            act(items(index));
    }
}

void ExplorerPanes::dragSplitter(int button, float x)
{
    Picture1->setCursor(Qt::SizeHorCursor);
    if (button != desktop::vbLeftButton)
        return;
    const float newTreeWidth = float(TreClassView->Width()) + x;
    const float newListLeft = newTreeWidth + 45 + float(Picture1->Width()) + 25;
    const float reach = newTreeWidth + 25;
    const double windowWidth = m_window.Width();
    if (!(reach > 80 && double(reach) <= windowWidth - 335))
        return;
    TreClassView->setWidth(double(newTreeWidth));
    Picture1->setLeft(double(newTreeWidth) + 45);
    LstStudenInformation->setLeft(double(newListLeft));
    LstStudenInformation->setWidth(std::abs(double(newListLeft) + 200 - windowWidth));
    LblMemberInformation->setLeft(LstStudenInformation->Left());
    LblMemberInformation->setWidth(LstStudenInformation->Width());
    LblMemberListing->setWidth(TreClassView->Width());
}
