#include "explorers/FrmEventExplorer.h"

#include "dynamicforms/DisplayInformation.h"
#include "events/FrmAddEvent.h"
#include "platform/desktop/Keys.h"
#include "platform/runtime/ErrorHandling.h"
#include "shell/session/Session.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::ListItem;

namespace {

constexpr ListedColumn eventColumn(QStringView header, QStringView column)
{
    return {.header = header, .tag = column, .column = column};
}

// The header of EventEndDate says "End Time" too. It is kept so because users know the list by its headers.
constexpr std::array eventColumns{
    eventColumn(u"Event Id", u"EventIdentification"), eventColumn(u"Date Added", u"EventDate"),
    eventColumn(u"Event Name", u"EventName"),         eventColumn(u"Event Description", u"EventDescription"),
    eventColumn(u"Start Date", u"EventStartDate"),    eventColumn(u"Start Time", u"EventStartTime"),
    eventColumn(u"Am/Pm", u"EventStartTimeAmPm"),     eventColumn(u"End Time", u"EventEndDate"),
    eventColumn(u"End Time", u"EventEndTime"),        eventColumn(u"Am/Pm", u"EventEndTimeAmPm"),
};

GroupedTable events()
{
    return {
        .name = u"EventInformation"_s,
        .groupColumn = u"EventName"_s,
        .plural = u"Events"_s,
        .information = u"Event Information"_s,
        .captionStart = u"Event Explorer : All event starting with "_s,
        .listStart = u"SELECT EventInformation.* FROM EventInformation WHERE (((EventInformation.EventName) Like '"_s,
        .listEnd = u"%') AND ((EventInformation.Active)=Yes)) "_s,
        .columns = eventColumns,
        .deleteQuestion = u"You are about to delete the selected event\nDo you want to proceed?"_s,
        .deleteStart = u"delete * from EventInformation where EventIdentification = "_s,
    };
}

// The caption comes first: setting it loads the window, whose load presets the boxes that are then filled.
void openEvent(const ListItem &item)
{
    desktop::showNew<FrmAddEvent>([&item](FrmAddEvent &window) {
        const auto text = [&item](QStringView column) { return textOf(item, eventColumns, column); };
        window.setCaption(u"Tolmark Event Information : "_s + text(u"EventName") + u" "_s + text(u"EventStartDate") +
                          u" - "_s + text(u"EventEndDate"));
        window.Tag = text(u"EventDate");
        window.EventId = item.Text();
        window.txtEventDescription->setText(text(u"EventDescription"));
        window.txtEventEndDate->setText(text(u"EventEndDate"));
        window.txtEventName->setText(text(u"EventName"));
        window.txtEventEndTime->setText(text(u"EventEndTime"));
        window.txtEventStartDate->setText(text(u"EventStartDate"));
        window.txtEventStartTime->setText(text(u"EventStartTime"));
        window.lstEndTime->setText(text(u"EventEndTimeAmPm"));
        window.lstStartTime->setText(text(u"EventStartTimeAmPm"));
    });
}

} // namespace

FrmEventExplorer::FrmEventExplorer()
    : Form(Place::InFrame, u"FrmEventExplorer"),
      m_panes(*this, {u"Delete Event"_s, u":/icons/delete-event.svg"_s, u"Events (Click to Refresh)"_s,
                      u"Event Information"_s}),
      m_rows(*this, m_panes, events())
{
    setDesignCaption(u"Tolmark Event Explorer"_s);
    using desktop::on;
    on(m_panes.LblMemberListing, &desktop::Label::Click, this, &FrmEventExplorer::LblMemberListing_Click);
    on(m_panes.TreClassView, &desktop::TreeView::Click, this, &FrmEventExplorer::TreClassView_Click);
    desktop::ListView *list = m_panes.LstStudenInformation;
    on(list, &desktop::ListView::ColumnClick, this, &FrmEventExplorer::LstStudenInformation_ColumnClick);
    on(list, &desktop::ListView::DblClick, this, &FrmEventExplorer::LstStudenInformation_DblClick);
    on(list, &desktop::ListView::KeyUp, this, &FrmEventExplorer::LstStudenInformation_KeyUp);
    on(m_panes.Toolbar1, &desktop::Toolbar::ButtonClick, this, &FrmEventExplorer::Toolbar1_ButtonClick);
}

void FrmEventExplorer::Form_Load()
{
    setCursor(Qt::WaitCursor);
    loadTree();
    m_rows.loadColumns();
    m_rows.CurrentNode->setExpanded(true);
    unsetCursor();
}

void FrmEventExplorer::NewMemberInformation()
{
    desktop::showNew<DisplayInformation>([](DisplayInformation &window) {
        window.WindowTitle = u"New Member Information"_s;
        window.EditMode = u"New"_s;
    });
}

void FrmEventExplorer::loadTree()
{
    runtime::endSilently([this] { m_rows.loadTree(UserLevel); });
}

void FrmEventExplorer::loadList()
{
    runtime::endSilently([this] { m_rows.loadList(); });
}

void FrmEventExplorer::LblMemberListing_Click()
{
    m_rows.clearTree();
    loadTree();
}

void FrmEventExplorer::TreClassView_Click()
{
    m_rows.announceGroup();
    loadList();
}

void FrmEventExplorer::LstStudenInformation_ColumnClick(int index)
{
    runtime::endSilently([this, index] {
        m_rows.sortBy(index);
        loadList();
    });
}

void FrmEventExplorer::LstStudenInformation_DblClick()
{
    if (m_panes.LstStudenInformation->ListItems.Count() > 0)
        openEvent(*m_panes.LstStudenInformation->SelectedItem());
}

void FrmEventExplorer::LstStudenInformation_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyReturn)
        desktop::reportOutOfMemoryOnly([this] { m_panes.forEachSelected(openEvent); });
}

// The tree is loaded without being cleared, so it refuses the first group as a repeated key and keeps its old counts
// until it is refreshed.
void FrmEventExplorer::Toolbar1_ButtonClick(QAction *button)
{
    if (button->text() != u"Delete Event" || m_panes.LstStudenInformation->ListItems.Count() == 0)
        return;
    m_rows.deleteSelected([this] {
        loadList();
        loadTree();
    });
}

void FrmEventExplorer::Form_Resize()
{
    runtime::everyStep([this] { m_panes.followWindow(); }, [] { Session::current().ResizeReady = true; });
}

void FrmEventExplorer::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    m_panes.placeBars();
    desktop::guarded([this] { Form_Resize(); });
}
