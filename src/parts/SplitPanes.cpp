#include "parts/SplitPanes.h"

#include "platform/desktop/Form.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/ErrorHandling.h"

#include <QMouseEvent>
#include <QShortcut>

#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using desktop::Form;
using desktop::ImageList;
using desktop::Label;
using desktop::ListView;
using desktop::Panel;
using desktop::PictureBox;
using desktop::pixels;
using desktop::StatusBar;
using desktop::TreeView;
using desktop::twips;

namespace {

constexpr double statusBarHeight = 345;
constexpr double panesBottom = 8115;
constexpr double panesRight = 13770;
constexpr double margin = 60;
constexpr double besideBar = 30;
constexpr float stepOfSplitter = 300;

// The mouse makes the window no smaller than this, which has room for the headlines, the tree and the beginning of some
// lines.
constexpr double usefulWidth = 7500;
constexpr double usefulHeight = 4500;

// The margins that the panes leave of the window's height and width.
constexpr double aboveAndBelowPanes = 1720;
constexpr double splitterBesideHeadline = 425;
constexpr double rightOfList = 200;

// The bar is two pixels wide. The two pixels on either side of it answer the pointer as a part of it, so that the mouse
// meets it easily.
class Grip : public QWidget
{
public:
    explicit Grip(PictureBox &bar) : QWidget(bar.parentWidget()), m_bar(bar)
    {
        setObjectName(u"Grip"_s);
        setCursor(Qt::SizeHorCursor);
        setMouseTracking(true);
        bar.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            setGeometry(m_bar.geometry().adjusted(-pixels(besideBar), 0, pixels(besideBar), 0));
        return QWidget::eventFilter(watched, event);
    }

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        const QPointF place = m_bar.mapFromGlobal(event->globalPosition());
        Q_EMIT m_bar.MouseMove(desktop::heldButtons(*event), float(twips(place.x())), float(twips(place.y())));
    }

private:
    PictureBox &m_bar;
};

// Looks like a button, so that it stands out from the tree or list below it.
void asHeadline(Label &label)
{
    label.setFrameStyle(QFrame::Panel | QFrame::Raised);
    label.setAutoFillBackground(true);
    label.setBackgroundRole(QPalette::Button);
    label.setForegroundRole(QPalette::ButtonText);
    label.setIndent(6);
    label.setElides();
}

} // namespace

SplitPanes::SplitPanes(Form &window, const Headline &overTree, const Headline &overList, double treeWidth)
    : treeHeadline(new Label(&window, overTree.name, overTree.text)),
      listHeadline(new Label(&window, overList.name, overList.text)),
      TreClassView(new TreeView(&window, u"TreClassView")), Picture1(new PictureBox(&window, u"Picture1")),
      LstStudenInformation(new ListView(&window, u"LstStudenInformation")),
      StatusBar1(new StatusBar(&window, u"StatusBar1")), ImageList1(new ImageList(&window, u"ImageList1")),
      m_window(window)
{
    ImageList1->add(u"OpenFolder"_s, u":/icons/folder-open.svg"_s);
    ImageList1->add(u"ClosedFolder"_s, u":/icons/folder-closed.svg"_s);
    asHeadline(*treeHeadline);
    asHeadline(*listHeadline);
    treeHeadline->setToolTip(u"Click to Refresh"_s);
    LstStudenInformation->setAccessibleName(overList.text);
    Picture1->setFrameStyle(QFrame::VLine | QFrame::Raised);
    setUpSplitter();
    StatusBar1->addKeyboardAndClockPanels();
    setUpPlaces(treeWidth);
}

void SplitPanes::setUpSplitter()
{
    new Grip(*Picture1);
    desktop::on(Picture1, &PictureBox::MouseMove, Picture1, [this](PictureBox *, int button, float x, float) {
        runtime::endSilently([this, button, x] { dragSplitter(button, x); });
    });
    for (const auto &[key, step] : {std::pair(Qt::Key_Left, -stepOfSplitter), {Qt::Key_Right, stepOfSplitter}}) {
        auto *shortcut = new QShortcut(Qt::CTRL | key, &m_window);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        desktop::on(shortcut, &QShortcut::activated, Picture1, [this, x = step](PictureBox *) {
            runtime::endSilently([this, x] { dragSplitter(desktop::vbLeftButton, x); });
        });
    }
}

void SplitPanes::setUpPlaces(double treeWidth)
{
    const double listLeft = 120 + treeWidth;
    treeHeadline->Move(60, 480, treeWidth, 375);
    listHeadline->Move(listLeft, 480, panesRight - listLeft, 375);
    TreClassView->Move(60, 900, treeWidth, 7215);
    Picture1->Move(listLeft - 15, 480, 30, 7635);
    LstStudenInformation->Move(listLeft, 900, panesRight - listLeft, 7215);
    Picture1->raise();   // it lies over the edge of the list
    StatusBar1->raise(); // and this one over both, in a window that is made lower
    m_window.setUsefulSize(usefulWidth, usefulHeight);
    m_window.resize(pixels(panesRight + margin), pixels(panesBottom + statusBarHeight + margin));
    placeStatusBar();
}

void SplitPanes::placeStatusBar()
{
    StatusBar1->place(0, twips(m_window.height()) - statusBarHeight, twips(m_window.width()), statusBarHeight);
}

void SplitPanes::followWindow()
{
    const double width = m_window.Width();
    const double paneHeight = std::abs(m_window.Height() - aboveAndBelowPanes);
    TreClassView->setHeight(paneHeight);
    Picture1->setHeight(paneHeight + splitterBesideHeadline);
    const double left = LstStudenInformation->Left();
    listHeadline->setLeft(left);
    listHeadline->setWidth(std::abs(width - (left + rightOfList)));
    treeHeadline->setWidth(TreClassView->Width());
    LstStudenInformation->setHeight(paneHeight);
    LstStudenInformation->setWidth(listHeadline->Width());
    for (Panel *panel : StatusBar1->Panels())
        panel->setPanelWidth(width / double(StatusBar1->Panels().size()));
}

void SplitPanes::dragSplitter(int button, float x)
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
    LstStudenInformation->setWidth(std::abs(double(newListLeft) + rightOfList - windowWidth));
    listHeadline->setLeft(LstStudenInformation->Left());
    listHeadline->setWidth(LstStudenInformation->Width());
    treeHeadline->setWidth(TreClassView->Width());
}
