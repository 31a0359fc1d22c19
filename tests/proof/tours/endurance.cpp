// Opens, works in and closes windows, every kind in turn: memory and handles stay as they are after the first rounds.
// Then a day of the clock in the status bar, second by second, and both changes of summer time.
//
//   endurance WINDOWS
#include "Child.h"
#include "explorers/FrmEventExplorer.h"
#include "platform/desktop/Style.h"
#include "platform/runtime/Clock.h"
#include "support/Stations.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPixmapCache>
#include <QStatusBar>
#include <QTest>
#include <QTimeZone>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

int faults = 0;

void require(bool holds, const QString &what)
{
    if (!holds) {
        ++faults;
        std::printf("FAULT: %s\n", qPrintable(what));
    }
}

// Without the pictures that Qt keeps, which are 10 MB at most.
double residentMegabytes()
{
    QPixmapCache::clear();
    malloc_trim(0);
    return double(contentOf(u"/proc/self/statm"_s).split(' ').value(1).toLongLong()) * double(sysconf(_SC_PAGESIZE)) /
           1'048'576;
}

qsizetype handles()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
}

void workIn(desktop::Form &window)
{
    for (int stop = 0; stop < 10; ++stop) {
        QWidget *focus = QApplication::focusWidget() ? QApplication::focusWidget() : &window;
        QTest::keyClick(focus, Qt::Key_Down);
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    QApplication::processEvents();
}

void openAndCloseAll()
{
    for (const Station &station : stations()) {
        MDIBaseForm::frame().show();
        auto *window = qobject_cast<desktop::Form *>(station.open());
        window->Show();
        QApplication::processEvents();
        workIn(*window);
        window->Unload();
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void staysFlat(int windows)
{
    const int rounds = int(windows / qsizetype(stations().size()));
    const int settled = rounds / 4 + 1; // fonts, styles and caches are read by then
    double megabytes = 0;
    qsizetype open = 0;
    for (int round = 0; round <= rounds; ++round) {
        if (round == settled) {
            megabytes = residentMegabytes();
            open = handles();
        }
        openAndCloseAll();
    }
    std::printf("%d windows: %.1f MB after %d rounds, %.1f MB after %d; %d handles, then %d\n",
                int(qsizetype(rounds) * qsizetype(stations().size())), megabytes, settled, residentMegabytes(), rounds,
                int(open), int(handles()));
#ifndef __SANITIZE_ADDRESS__ // keeps what was freed
    require(residentMegabytes() < megabytes * 1.05, u"the memory grows"_s);
#endif
    require(handles() <= open, u"handles stay open"_s);
}

// Each timer of the panels fires once a second of this clock.
void ticksFrom(const QDateTime &begin, int seconds, const std::function<void(const QDateTime &, QStringList)> &look)
{
    QDateTime now = begin;
    runtime::setClock([&now] { return now; });
    const auto *explorer = desktop::showNew<FrmEventExplorer>();
    const auto *bar = explorer->findChild<QStatusBar *>();
    for (int second = 0; second < seconds; ++second, now = begin.addSecs(second)) {
        for (QTimer *timer : bar->findChildren<QTimer *>()) {
            QTimerEvent due(timer->timerId());
            QApplication::sendEvent(timer, &due);
        }
        QStringList texts;
        for (const QLabel *panel : bar->findChildren<QLabel *>())
            texts << panel->text();
        look(now, texts);
    }
    runtime::setClock({});
}

void tellsTheTime()
{
    QLocale::setDefault(QLocale(u"en_US"_s)); // the forms of other regions have their own tests
    const auto shows = [](const QDateTime &now, const QStringList &texts) {
        const QString time = QLocale().toString(now.time(), u"h:mm AP"_s);
        const QString date = now.toString(u"M/d/yyyy"_s);
        if (!texts.contains(time) || !texts.contains(date))
            require(false, u"%1 is told as %2"_s.arg(now.toString(Qt::ISODate), texts.join(u", ")));
    };
    constexpr int aDay = 86'400;
    ticksFrom(QDateTime(QDate(2027, 12, 31), QTime(12, 0), QTimeZone::utc()), aDay, shows);
    ticksFrom(QDateTime(QDate(2027, 3, 28), QTime(1, 59, 50), QTimeZone("Europe/Berlin")), 20, shows);
    ticksFrom(QDateTime(QDate(2027, 10, 31), QTime(1, 59, 50), QTimeZone("Europe/Berlin")), 3620, shows);
}

} // namespace

int main(int argc, char **argv)
{
    printNoRemarks();
    QApplication application(argc, argv);
    desktop::Style::install();
    QApplication::setWindowIcon(QIcon(u":/icons/tolmark.svg"_s)); // without one, Qt makes one for each child window
    QApplication::setQuitOnLastWindowClosed(false);
    const DataStoreFolder folder;
    desktop::setSettingsFile(folder.path(u"settings"_s));
    desktop::setErrorReport(
        [](const runtime::RuntimeError &error) { require(false, QString::fromUtf8(error.what())); });
    staysFlat(argc > 1 ? QByteArray(argv[1]).toInt() : 111);
    MDIBaseForm::frame().Show();
    tellsTheTime();
    std::printf("%d faults\n", faults);
    return faults == 0 ? 0 : 1;
}
