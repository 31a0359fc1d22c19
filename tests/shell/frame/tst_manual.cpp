// The manual has a place for each window, its links and pictures lead somewhere, and F1 opens the place at hand.
#include "shell/frame/MDIBaseForm.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Launches.h"
#include "support/Stations.h"

#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDir manual(QStringLiteral(TOLMARK_MANUAL));

QStringList allOf(const QString &text, const QString &pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        found << match.captured(1);
    return found;
}

QStringList windowClasses()
{
    QStringList classes{u"MsgBox"_s};
    QDirIterator headers(QStringLiteral(TOLMARK_SOURCES), {u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        const QString text = QString::fromUtf8(contentOf(headers.next()));
        classes << allOf(text, u"\nclass (\\w+) : public desktop::(?:Mdi)?Form\\b"_s);
    }
    classes.sort();
    return classes;
}

} // namespace

class tst_Manual : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &name : manual.entryList({u"*.md"_s}))
            pages[name] = QString::fromUtf8(contentOf(manual.filePath(name)));
    }

    void everyWindowHasOnePlaceAndEveryErrorItsExplanation()
    {
        QStringList places = allOf(pages.values().join(u'\n'), u"<a id=\"([A-Za-z]*[A-Z][A-Za-z]*)\"></a>"_s);
        places.sort();
        QCOMPARE(places, windowClasses());
        for (int number = 0; number <= runtime::KeyNotUnique; ++number)
            QVERIFY2(pages[u"messages.md"_s].contains(runtime::errorText(number)), qPrintable(QString::number(number)));
    }

    void everyLinkLeadsSomewhere()
    {
        QStringList pictures{u"main-window"_s, u"main-window-administration"_s};
        for (const Station &station : stations())
            pictures << station.pictureName();
        QSet<QString> shown;
        for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
            for (const QString &link : allOf(page.value(), u"\\]\\(([^)]+)\\)"_s)) {
                const QString target = link.section(u'#', 0, 0);
                const QString anchor = link.section(u'#', 1);
                bool isGood = QFileInfo::exists(manual.filePath(target));
                if (target.startsWith(u"images/")) {
                    shown << target;
                    isGood = isGood && pictures.contains(QFileInfo(target).completeBaseName());
                } else if (!anchor.isEmpty()) {
                    isGood = pages[target.isEmpty() ? page.key() : target].contains(u"<a id=\"%1\"></a>"_s.arg(anchor));
                }
                QVERIFY2(isGood, qPrintable(page.key() + u": "_s + link));
            }
        }
        QCOMPARE(shown.size(), QDir(manual.filePath(u"images"_s)).entryList(QDir::Files).size());
    }

    void f1OpensThePlaceOfTheWindowAtHand()
    {
        const DataStoreFolder folder;
        const Launches launched;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QCOMPARE(frame.StatusBar1->currentMessage(), u"The manual is not installed"_s);
        QVERIFY(QDir(folder.folder()).mkdir(u"manual"_s));
        for (const QString &window : windowClasses())
            folder.write(u"manual/%1.html"_s.arg(window), {});
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        for (const Station &station : stations())
            station.name == "dossier, adding a contribution"_ba ? station.open() : nullptr;
        BoxAnswers answers({QMessageBox::Ok});
        answers.atBox = [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F1); };
        child<QAbstractButton>(frame, "cmdSaveContribution")->click();
        QTest::keyClick(child<QLineEdit>(frame, "txtContribution"), Qt::Key_F1);
        const QString paths = launched.paths.join(u' ').remove(folder.path(u"manual/"_s));
        QCOMPARE(paths, u"FrmDataBaseExplorer.html MsgBox.html DisplayMembers.html"_s);
        delete &frame;
    }

private:
    QMap<QString, QString> pages; // the texts by their files' names
};

QTEST_MAIN(tst_Manual)
#include "tst_manual.moc"
