#include "events/FrmAddEvent.h"

#include "events/FrmEventCalendar.h"
#include "parts/FieldGrid.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Regional.h"
#include "shell/store/CommandSequence.h"

#include <QPointer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int minutesToTheEnd = 60;

QString plainTimeText(QTime time)
{
    return QString::number(time.hour()) + u":"_s + QString::number(time.minute());
}

} // namespace

FrmAddEvent::FrmAddEvent()
    : Form(Place::InFrame, u"FrmAddEvent"), Frame1(new desktop::Frame(this, u"Frame1", u"Event Information"_s))
{
    setDesignCaption(u"Tolmark Add Event"_s);
    setUpContent();
    desktop::on(cmdStartDate, &QPushButton::clicked, this, &FrmAddEvent::cmdStartDate_Click);
    desktop::on(cmdEndDate, &QPushButton::clicked, this, &FrmAddEvent::cmdEndDate_Click);
    desktop::on(cmdSave, &QPushButton::clicked, this, &FrmAddEvent::cmdSave_Click);
    desktop::on(CmdClose, &QPushButton::clicked, this, &FrmAddEvent::CmdClose_Click);
}

FrmAddEvent &FrmAddEvent::shared()
{
    // The frame owns it from the first time that it is shown there.
    static QPointer<FrmAddEvent> window;
    if (!window) {
        window = new FrmAddEvent;
        window->setShared();
    }
    return *window;
}

void FrmAddEvent::setUpContent()
{
    const QStringList halves{u"AM"_s, u"PM"_s};
    FieldGrid grid(Frame1);
    txtEventName = grid.addText(u"txtEventName", u"Event Name"_s);
    txtEventDescription = grid.addText(u"txtEventDescription", u"Description"_s);
    txtEventStartDate = grid.addText(u"txtEventStartDate", u"Start Date"_s);
    cmdStartDate = grid.addButtonBehind(u"cmdStartDate", u"..."_s, u"Choose the start date"_s);
    txtEventStartTime = grid.addText(u"txtEventStartTime", u"Start Time"_s);
    lstStartTime = grid.addListBehind(u"lstStartTime", halves, u"Start time AM or PM"_s);
    txtEventEndDate = grid.addText(u"txtEventEndDate", u"End Date"_s);
    cmdEndDate = grid.addButtonBehind(u"cmdEndDate", u"..."_s, u"Choose the end date"_s);
    txtEventEndTime = grid.addText(u"txtEventEndTime", u"End Time"_s);
    lstEndTime = grid.addListBehind(u"lstEndTime", halves, u"End time AM or PM"_s);
    cmdSave = new desktop::CommandButton(Frame1, u"cmdSave", u"Save"_s);
    CmdClose = new desktop::CommandButton(Frame1, u"CmdClose", u"Close"_s);
    grid.addButtons({cmdSave, CmdClose});
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(Frame1);
    constexpr int comfortableWidth = 440; // logical pixels
    resize(sizeHint().expandedTo({comfortableWidth, 0}));
}

void FrmAddEvent::Form_Load()
{
    // The shared window loads again at each opening and still holds what it held.
    txtEventName->clear();
    txtEventDescription->clear();
    lstStartTime->setCurrentItem(nullptr); // so that the arrow keys begin anew too
    lstEndTime->setCurrentItem(nullptr);
    const runtime::Date now = runtime::clockNow();
    const QTime end = now.time().addSecs(minutesToTheEnd * 60);
    txtEventStartTime->setText(plainTimeText(now.time()));
    txtEventEndTime->setText(plainTimeText(end));
    const QString today = runtime::shortDateText(now.day()); // the end's date too, even when its time passes midnight
    txtEventStartDate->setText(today);
    txtEventEndDate->setText(today);
    txtEventName->setFocus();
}

void FrmAddEvent::openCalendar(const QString &caption, const desktop::TextBox *box)
{
    desktop::showNew<FrmEventCalendar>([&](FrmEventCalendar &calendar) {
        calendar.setCaption(caption);
        calendar.ControlName = box->objectName();
        calendar.setFrmEvent(this);
    });
}

void FrmAddEvent::cmdStartDate_Click()
{
    openCalendar(u"Event Calendar : Start Date"_s, txtEventStartDate);
}

void FrmAddEvent::cmdEndDate_Click()
{
    openCalendar(u"Event Calendar : End Date"_s, txtEventEndDate);
}

QString FrmAddEvent::insertStatement() const
{
    return u"INSERT INTO EventInformation (EventName, EventDescription, EventStartTime,  EventEndTime, EventStartDate, "
           "EventEndDate, EventStartTimeAmPm, EventEndTimeAmPm) values  ('"_s +
           txtEventName->text() + u"', '"_s + txtEventDescription->text() + u"', '"_s + txtEventStartTime->text() +
           u"', '"_s + txtEventEndTime->text() + u"', '"_s + txtEventStartDate->text() + u"', '"_s +
           txtEventEndDate->text() + u"', '"_s + lstStartTime->Text() + u"', '"_s + lstEndTime->Text() + u"')"_s;
}

QString FrmAddEvent::updateStatement() const
{
    return u"UPDATE EventInformation SET EventInformation.EventName = '"_s + txtEventName->text() +
           u"', EventInformation.EventDescription = '"_s + txtEventDescription->text() +
           u"', EventInformation.EventStartTime = '"_s + txtEventStartTime->text() +
           u"', EventInformation.EventEndTime = '"_s + txtEventEndTime->text() +
           u"', EventInformation.EventStartDate = '"_s + txtEventStartDate->text() +
           u"', EventInformation.EventEndDate = '"_s + txtEventEndDate->text() +
           u"', EventInformation.EventStartTimeAmPm = '"_s + lstStartTime->Text() +
           u"', EventInformation.EventEndTimeAmPm = '"_s + lstEndTime->Text() +
           u"' WHERE (EventInformation.EventIdentification="_s + EventId + u")"_s;
}

void FrmAddEvent::cmdSave_Click()
{
    if (txtEventName->text().isEmpty() || txtEventDescription->text().isEmpty())
        return;
    CommandSequence sequence;
    sequence.open();
    sequence.execute(EventId.isEmpty() ? insertStatement() : updateStatement());
    sequence.close();
    Unload();
}

void FrmAddEvent::CmdClose_Click()
{
    Unload();
}

void FrmAddEvent::refreshNotes()
{
    throw runtime::RuntimeError(runtime::ObjectRequired);
}
