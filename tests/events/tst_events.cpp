#include "events/FrmEventCalendar.h"
#include "platform/desktop/MdiForm.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

#include <QPointer>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

// The main window, open.
class MainWindow : public desktop::MdiForm
{
public:
    MainWindow() : MdiForm(u"MainWindow")
    {
        resize(1000, 760);
        Show();
    }
};

// Opens the calendar by the button and gives it: the window on top.
QPointer<FrmEventCalendar> calendarOf(const desktop::MdiForm &frame, desktop::CommandButton *button)
{
    button->click();
    return frame.findChildren<FrmEventCalendar *>().constLast();
}

void clickDay(FrmEventCalendar &window, int day)
{
    auto *days = window.Calendar1->findChild<QTableView *>();
    for (int row = 1; row < days->model()->rowCount(); ++row) {
        for (int column = 0; column < days->model()->columnCount(); ++column) {
            const QModelIndex index = days->model()->index(row, column);
            if (index.data().toInt() == day)
                return QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(index).center());
        }
    }
    qFatal("no such day");
}

} // namespace

class tst_Events : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty);
        setTime(u"2026-01-31T09:05:00"_s);
    }
    void cleanup() { close(); }

    // Without leading zeros; past midnight the end keeps the date of the start.
    void theLoadTakesTheClock()
    {
        const UnitedStates region;
        const QList<std::pair<QString, QString>> moments{
            {u"2026-01-31T09:05:59"_s, u"1/31/2026 9:5 1/31/2026 10:5"_s},
            {u"2026-12-31T23:30:00"_s, u"12/31/2026 23:30 12/31/2026 0:30"_s}};
        for (const auto &[now, boxes] : moments) {
            setTime(now);
            FrmAddEvent window;
            window.Show();
            QCOMPARE((QStringList{window.txtEventStartDate->text(), window.txtEventStartTime->text(),
                                  window.txtEventEndDate->text(), window.txtEventEndTime->text()})
                         .join(u' '),
                     boxes);
            QCOMPARE(window.lstStartTime->Text() + window.lstEndTime->Text(), QString());
        }
    }

    void anEventTypedByKeyboardIsStored()
    {
        const UnitedStates region;
        QPointer<FrmAddEvent> window = desktop::showNew<FrmAddEvent>();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        const auto type = [](const QString &text) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        };
        for (const QString &text : {u"Picnic"_s, u"In the park"_s, QString(), QString(), u"8 sharp"_s, u"P"_s,
                                    u"tomorrow"_s, QString(), QString()})
            type(text);
        QCOMPARE(QApplication::focusWidget(), window->lstEndTime);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QTRY_VERIFY(!window);
        QCOMPARE(m_folder->rows(everyEvent),
                 QStringList{u"1|Picnic|In the park|1/31/2026|8 sharp|PM|tomorrow|10:5||-1"_s});
        QCOMPARE(m_folder->row("SELECT count(EventDate) FROM EventInformation"), u"1"_s);
    }

    void anEventIsChanged()
    {
        m_folder->execute(
            "INSERT INTO EventInformation (EventName, EventDescription, EventStartTimeAmPm, Active) VALUES "
            "('Before', 'x', 'AM', 0), ('Other', 'y', 'AM', 0)");
        QPointer<FrmAddEvent> window = desktop::showNew<FrmAddEvent>([](FrmAddEvent &event) {
            event.setCaption(u"Tolmark Event Information : Before"_s);
            event.EventId = u"1"_s;
            event.txtEventName->setText(u"After"_s);
            event.txtEventDescription->setText(u"z"_s);
            event.txtEventStartDate->setText(u"2/1/2026"_s);
            event.txtEventStartTime->setText(u"7"_s);
            event.lstStartTime->setText(u"pm"_s);
            event.txtEventEndDate->setText(u"2/2/2026"_s);
            event.txtEventEndTime->setText(u"8"_s);
            event.lstEndTime->setText(u"am"_s);
        });
        window->cmdSave->click();
        QTRY_VERIFY(!window);
        QCOMPARE(m_folder->rows(everyEvent), (QStringList{u"1|After|z|2/1/2026|7|PM|2/2/2026|8|AM|0"_s,
                                                          u"2|Other|y|NULL|NULL|AM|NULL|NULL|NULL|0"_s}));
    }

    void aSaveThatCannotBe()
    {
        m_folder->execute("INSERT INTO EventInformation (EventName, EventDescription) VALUES ('Kept', 'x')");
        const QStringList before = m_folder->rows(everyEvent);
        BoxAnswers none;
        for (const QString &eventId : {QString(), u"1"_s}) {
            FrmAddEvent window;
            window.Show();
            window.EventId = eventId;
            window.txtEventName->setText(u"Name"_s);
            window.txtEventDescription->setText(u"O'Brien"_s);
            window.cmdSave->click();
            QCOMPARE(m_errors->takeNumber(), -2147217900);
            for (desktop::TextBox *required : {window.txtEventDescription, window.txtEventName}) {
                required->clear();
                window.cmdSave->click(); // nothing is said
                QVERIFY(window.isVisible());
                required->setText(u"x"_s);
            }
            window.CmdClose->click();
            QVERIFY(!window.isVisible());
        }
        QCOMPARE(m_folder->rows(everyEvent), before);
    }

    // Whatever the box holds, the calendar stands at today; the last click wins, however many are open.
    void theCalendarFillsItsBox()
    {
        const UnitedStates region;
        MainWindow frame;
        auto *event = desktop::showNew<FrmAddEvent>();
        event->txtEventStartDate->setText(u"12/25/2020"_s);
        const QPointer<FrmEventCalendar> start = calendarOf(frame, event->cmdStartDate);
        const QPointer<FrmEventCalendar> again = calendarOf(frame, event->cmdStartDate);
        const QPointer<FrmEventCalendar> end = calendarOf(frame, event->cmdEndDate);
        QCOMPARE(start->Caption(), u"Event Calendar : Start Date"_s);
        QCOMPARE(end->Caption(), u"Event Calendar : End Date"_s);
        QCOMPARE(start->Calendar1->selectedDate(), QDate(2026, 1, 31));
        clickDay(*again, 20);
        QTRY_VERIFY(!again);
        clickDay(*start, 14);
        QTRY_VERIFY(!start);
        QCOMPARE(event->txtEventStartDate->text(), u"1/14/2026"_s);
        QCOMPARE(event->txtEventEndDate->text(), u"1/31/2026"_s);
        end->ControlName = u"txteventstartdate"_s; // not exactly the name: the end
        QTest::keyClick(end->Calendar1->findChild<QTableView *>(), Qt::Key_Left);
        QTest::keyClick(end->Calendar1->findChild<QTableView *>(), Qt::Key_Return);
        QTRY_VERIFY(!end);
        QCOMPARE(event->txtEventEndDate->text(), u"1/30/2026"_s);
        QCOMPARE(event->txtEventStartDate->text(), u"1/14/2026"_s);
        const QPointer<FrmEventCalendar> dropped = calendarOf(frame, event->cmdEndDate);
        QTest::keyClick(dropped->Calendar1->findChild<QTableView *>(), Qt::Key_Escape);
        QTRY_VERIFY(!dropped);
        QCOMPARE(event->txtEventEndDate->text(), u"1/30/2026"_s);
    }

    void theCalendarOutlivesTheEventWindow()
    {
        const UnitedStates region;
        MainWindow frame;
        QPointer<FrmAddEvent> event = desktop::showNew<FrmAddEvent>();
        const QPointer<FrmEventCalendar> calendar = calendarOf(frame, event->cmdStartDate);
        event->CmdClose->click();
        QTRY_VERIFY(!event);
        event = calendar->frmEvent();
        QVERIFY(event && !event->isVisible());
        QCOMPARE(calendar->frmEvent(), event);
        clickDay(*calendar, 14);
        QCOMPARE(event->txtEventStartDate->text(), u"1/14/2026"_s);
        QCOMPARE(event->txtEventEndDate->text(), u"1/31/2026"_s); // the touch loaded the window
        QTRY_VERIFY(!calendar);
        QVERIFY(!event); // nobody ever saw it
    }

    void theSharedWindowIsFreshEachTime()
    {
        const UnitedStates region;
        MainWindow frame;
        FrmAddEvent &window = FrmAddEvent::shared();
        for (const QString &now : {u"2026-01-31T09:05:00"_s, u"2026-02-01T10:06:00"_s}) {
            setTime(now);
            window.Show();
            QVERIFY(window.isVisible());
            QCOMPARE(frame.focusWidget(), window.txtEventName);
            QCOMPARE(window.txtEventName->text() + window.lstEndTime->Text(), QString());
            window.txtEventName->setText(u"Picnic"_s);
            window.txtEventDescription->setText(u"x"_s);
            window.lstEndTime->setText(u"PM"_s);
            window.cmdSave->setFocus();
            window.cmdSave->click();
            QVERIFY(!window.isVisible());
        }
        QCOMPARE(m_folder->rows("SELECT EventStartDate || ' ' || EventStartTime FROM EventInformation"),
                 (QStringList{u"1/31/2026 9:5"_s, u"2/1/2026 10:6"_s}));
        QCOMPARE(&FrmAddEvent::shared(), &window);
        // A day that was chosen for the closed window stands at its next opening.
        window.Show();
        const QPointer<FrmEventCalendar> calendar = calendarOf(frame, window.cmdEndDate);
        window.CmdClose->click();
        clickDay(*calendar, 14);
        window.Show();
        QCOMPARE(window.txtEventEndDate->text(), u"2/14/2026"_s);
        QCOMPARE(window.txtEventStartDate->text(), u"2/1/2026"_s);
        window.Unload();
    }

    // Month, day and year one after another: neither the day before nor a day that is missing on the way bends the
    // date.
    void aCalendarIsSetByItsParts()
    {
        const UnitedStates region;
        Calendar calendar(nullptr, u"calendar");
        for (const QDate day : {QDate(2026, 1, 31), QDate(2026, 2, 3), QDate(2026, 3, 31), QDate(2024, 2, 29)}) {
            calendar.setMonth(day.month());
            calendar.setDay(day.day());
            calendar.setYear(day.year());
            QCOMPARE(runtime::toText(calendar.Value()), runtime::toText(runtime::Value(runtime::Date(day))));
        }
    }

private:
    static constexpr auto everyEvent =
        "SELECT EventIdentification, EventName, EventDescription, EventStartDate, EventStartTime, EventStartTimeAmPm, "
        "EventEndDate, EventEndTime, EventEndTimeAmPm, Active FROM EventInformation";
};

QTEST_MAIN(tst_Events)
#include "tst_events.moc"
