#include "explorers/ExplorerPanes.h"

#include "platform/desktop/Form.h"
#include "platform/desktop/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double toolbarHeight = 480;

} // namespace

ExplorerPanes::ExplorerPanes(desktop::Form &window, const ExplorerTexts &texts)
    : SplitPanes(window, {u"LblMemberListing", texts.listing}, {u"LblMemberInformation", texts.information}),
      Toolbar1(new desktop::Toolbar(&window, u"Toolbar1")), LblMemberListing(treeHeadline),
      LblMemberInformation(listHeadline)
{
    LblMemberListing->setClickable();
    TreClassView->setAccessibleName(u"Groups"_s);
    LstStudenInformation->setSelectionMode(QAbstractItemView::ExtendedSelection);
    Toolbar1->setIconSize(QSize(20, 20) * desktop::letterScale());
    ImageList1->add(u"Delete"_s, texts.deleteImage);
    Toolbar1->addButton({}, texts.deleteButton, texts.deleteButton, ImageList1->icon(u"Delete"_s));
    placeBars();
    QWidget *button = Toolbar1->widgetForAction(Toolbar1->actions().constFirst());
    desktop::setTabOrder({button, LblMemberListing, TreClassView, LstStudenInformation});
    TreClassView->setFocus();
}

void ExplorerPanes::placeBars()
{
    Toolbar1->place(0, 0, desktop::twips(m_window.width()), toolbarHeight);
    placeStatusBar();
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
