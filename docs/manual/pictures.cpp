// tolmark_manual_pictures PAGES: takes the pictures that the pages of this folder name, of the real windows over the
// sample organisation, and writes them to its folder images. "images/dossier-notes.png" shows the state
// "dossier, notes" of tests/support/Stations.cpp, "images/main-window.png" the main window as it is delivered and
// "images/main-window-administration.png" that of the administrator's edition.
#include "platform/desktop/Settings.h"
#include "platform/desktop/Style.h"
#include "platform/runtime/Clock.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Stations.h"

#include <QMdiSubWindow>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

// The windows look the same on every machine: one style, one font, one day, no blinking cursor.
void setUpSurroundings()
{
    desktop::Style::install();
    QApplication::setFont(QFont(u"DejaVu Sans"_s, 9));
    QApplication::setWindowIcon(QIcon(u":/icons/tolmark.svg"_s));
    QApplication::setCursorFlashTime(0);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    runtime::setClock([] { return QDateTime(QDate(2004, 3, 15), QTime(10, 30)); });
}

QStringList picturesNamedIn(const QDir &pages)
{
    static const QRegularExpression link(u"\\]\\(images/([^)]+)\\.png\\)"_s);
    QStringList names;
    for (const QString &page : pages.entryList({u"*.md"_s})) {
        const QString text = QString::fromUtf8(contentOf(pages.filePath(page)));
        for (const QRegularExpressionMatch &match : link.globalMatch(text))
            names << match.captured(1);
    }
    names.removeDuplicates();
    return names;
}

QWidget *opened(const QString &name)
{
    for (const Station &station : stations()) {
        if (station.pictureName() == name)
            return station.open();
    }
    return nullptr;
}

QWidget *mainWindow(bool asDelivered)
{
    MDIBaseForm &frame = MDIBaseForm::frame();
    frame.setCaption(u"Tolmark : Lite"_s);
    frame.resize(1000, asDelivered ? 700 : 300);
    for (const char *menu : {"mnuAdministrator", "mnuHelp"})
        child<QAction>(frame, menu)->setVisible(!asDelivered);
    if (asDelivered)
        opened(u"member-explorer-with-rows"_s);
    return &frame;
}

// In the colours that it has most of, which makes the file small.
QImage inFewColours(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&counts](QRgb a, QRgb b) { return std::pair(counts[a], a) > std::pair(counts[b], b); });
    return picture.convertToFormat(QImage::Format_Indexed8, colours.mid(0, 256), Qt::ThresholdDither);
}

// With its title bar where it is a child of the frame.
QImage pictureOf(QWidget *window)
{
    window->show();
    if (auto *host = qobject_cast<QMdiSubWindow *>(window->parentWidget()))
        window = host;
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window->window()))
        return {};
    QCoreApplication::processEvents(); // what the windows have put off
    return inFewColours(window->grab().toImage().convertToFormat(QImage::Format_RGB32));
}

bool takePicture(const QString &name, const QString &file)
{
    const DataStoreFolder folder;
    const CaughtErrors errors;
    MDIBaseForm &frame = MDIBaseForm::frame();
    frame.resize(1600, 1200);
    frame.show();
    QWidget *window = name.startsWith(u"main-window") ? mainWindow(name == u"main-window") : opened(name);
    const bool isTaken = window && pictureOf(window).save(file, "PNG", 0);
    delete &frame;
    delete &frmLogin::shared();
    if (!isTaken)
        qCritical("no picture %s: is there such a window?", qPrintable(file));
    return isTaken;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    setUpSurroundings();
    const QTemporaryDir settings; // not the user's
    desktop::setSettingsFile(settings.filePath(u"settings"_s));
    const QDir pages(QString::fromLocal8Bit(argv[1]));
    bool areAllTaken = pages.mkpath(u"images"_s);
    for (const QString &name : picturesNamedIn(pages))
        areAllTaken = takePicture(name, pages.filePath(u"images/%1.png"_s.arg(name))) && areAllTaken;
    return areAllTaken ? EXIT_SUCCESS : EXIT_FAILURE;
}
