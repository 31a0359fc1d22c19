// Looks at every window in each of its states, with letters of three sizes and in a light and a dark palette: is each
// text whole and apart from its neighbours, and does it stand out from its ground? With TOLMARK_PICTURES set to a
// folder it leaves a picture of each there.
#include "events/Calendar.h"
#include "platform/desktop/Contrast.h"
#include "platform/desktop/Style.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Stations.h"

#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QTextCharFormat>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

void setLook(int points, bool dark)
{
    QPalette light = QApplication::style()->standardPalette();
    QApplication::style()->polish(light);
    QApplication::setPalette(dark ? desktop::darkPalette() : light);
    QFont font;
    font.setPointSize(points);
    QApplication::setFont(font);
}

bool isCutOff(QWidget &widget)
{
    QSize needed = widget.minimumSizeHint();
    if (auto *label = qobject_cast<QLabel *>(&widget)) {
        QHelpEvent hover(QEvent::ToolTip, {}, label->mapToGlobal(QPoint()));
        QApplication::sendEvent(label, &hover);
        const QString whole = label->toolTip().isEmpty() ? label->text() : label->toolTip();
        const bool maybeNarrow = label->wordWrap() || QToolTip::text() == whole;
        needed = QSize(maybeNarrow ? 0 : label->sizeHint().width(), label->fontMetrics().height());
    } else if (auto *button = qobject_cast<QPushButton *>(&widget)) { // its hint has more room than the text needs
        needed = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).grownBy({3, 0, 3, 0});
    } else if (!qobject_cast<QAbstractButton *>(&widget) && !qobject_cast<QGroupBox *>(&widget) &&
               !qobject_cast<QLineEdit *>(&widget) && !qobject_cast<QComboBox *>(&widget)) {
        return false;
    }
    return needed.width() > widget.width() || needed.height() > widget.height();
}

QStringList faultsOfPlaces(const QWidget &window)
{
    const QStringList lyingOver{u"Picture1"_s, u"lstEventSelectId"_s}; // the splitter, and a list that is never shown
    QStringList faults;
    QList<QWidget *> controls;
    for (QWidget *each : window.findChildren<QWidget *>()) {
        if (!each->isVisible() || each->visibleRegion().isEmpty())
            continue;
        if (isCutOff(*each))
            faults << each->objectName() + u" is cut off"_s;
        const QWidget *parent = each->parentWidget();
        if (!dynamic_cast<desktop::Control *>(each) || lyingOver.contains(each->objectName()))
            continue;
        if (!parent->rect().contains(each->geometry()))
            faults << each->objectName() + u" hangs over the edge"_s;
        for (const QWidget *other : controls) {
            if (other->parentWidget() == parent && other->geometry().intersects(each->geometry()))
                faults << each->objectName() + u" overlaps "_s + other->objectName();
        }
        controls << each;
    }
    return faults;
}

QStringList faultsOfContrast(const QWidget &widget)
{
    QSet<QString> faults;
    const auto compare = [&](const QColor &text, const QColor &ground) {
        if (desktop::contrast(text, ground) < desktop::readableContrast)
            faults << widget.objectName() + u": "_s + text.name() + u" on "_s + ground.name();
    };
    const QPalette colours = widget.palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {widget.foregroundRole(), widget.backgroundRole()}, {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},          {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::PlaceholderText, QPalette::Base},        {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto &[text, ground] : pairs)
            compare(colours.color(group, text), colours.color(group, ground));
    }
    if (const auto *calendar = qobject_cast<const Calendar *>(&widget))
        compare(calendar->weekdayTextFormat(Qt::Sunday).foreground().color(), colours.color(QPalette::Base));
    return faults.values();
}

} // namespace

class tst_Looks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { desktop::Style::install(); }
    void cleanup() { closeStations(); }

    void everyTextIsWholeAndReadable_data()
    {
        QTest::addColumn<const Station *>("station");
        QTest::addColumn<int>("points");
        for (const int points : {9, 14, 18}) {
            for (const Station &station : stations())
                QTest::addRow("%s, %d points", station.name, points) << &station << points;
        }
    }
    void everyTextIsWholeAndReadable()
    {
        QFETCH(const Station *, station);
        QFETCH(int, points);
        DataStoreFolder folder;
        CaughtErrors errors;
        setLook(points, points == 14);
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.resize(frame.sizeHint());
        frame.show();
        QWidget *window = station->open();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window->window()));
        QStringList faults = faultsOfPlaces(*window);
        QWidget *host = qobject_cast<QMdiSubWindow *>(window->parentWidget());
        if (host && !host->parentWidget()->rect().contains(host->geometry()))
            faults << u"the window is larger than the frame's room"_s;
        for (const QWidget *each : window->findChildren<QWidget *>()) {
            if (each->isVisible() && dynamic_cast<const desktop::Control *>(each))
                faults << faultsOfContrast(*each);
        }
        if (const QString pictures = qEnvironmentVariable("TOLMARK_PICTURES"); !pictures.isEmpty())
            (host ? host : window)->grab().save(pictures + u'/' + QLatin1String(QTest::currentDataTag()) + u".png"_s);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    // Without the focus and with it, also where a pixel of the window is not a whole number of the screen's.
    void everyEdgeIsWholeAndSeen()
    {
        for (const auto &[dark, ratio] : {std::pair(false, 1.0), {true, 1.0}, {false, 1.25}, {true, 1.5}}) {
            setLook(9, dark);
            QWidget window;
            desktop::ListBox list(&window, u"list");
            desktop::TextBox box(&window, u"box");
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            for (QWidget *control : QList<QWidget *>{&list, &list, &box, &box}) {
                QImage seen((QSizeF(control->size()) * ratio).toSize(), QImage::Format_RGB32);
                seen.setDevicePixelRatio(ratio);
                control->render(&seen);
                control->setFocus(); // for the second time
                const auto [x, y] = std::pair(seen.width() - 1, seen.height() - 1);
                for (const auto &place : {QPoint(0, y / 2), QPoint(x / 2, 0), QPoint(x, y / 2), QPoint(x / 2, y)})
                    QVERIFY(desktop::contrast(seen.pixelColor(place), window.palette().window().color()) >= 3);
            }
        }
    }

    void picturesStandOut()
    {
        static const QRegularExpression line(u"stroke=\"(#(?!ffffff)\\w{6})\""_s);
        const QDir icons(u":/icons"_s);
        for (const QString &name : icons.entryList()) {
            const QString drawing = QString::fromLatin1(contentOf(icons.filePath(name)));
            for (const QRegularExpressionMatch &match : line.globalMatch(drawing)) {
                for (const QColor &window : {QColor(0xef, 0xef, 0xef), desktop::darkPalette().window().color()}) {
                    const QColor ground = name == u"logo.svg" ? window.darker(112) : window; // as the frame's area is
                    QVERIFY2(desktop::contrast(QColor(match.captured(1)), ground) >= 3, qPrintable(name));
                }
            }
        }
    }
};

QTEST_MAIN(tst_Looks)
#include "tst_looks.moc"
