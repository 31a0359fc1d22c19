#include "platform/desktop/Settings.h"
#include "platform/runtime/Random.h"
#include "shell/users/frmTip.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

#include <QPointer>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

QString storedSetting()
{
    return desktop::GetSetting(u"Options"_s, u"Show Tips at Startup"_s, u"none"_s);
}

void storeSetting(const QString &text)
{
    desktop::SaveSetting(u"Options"_s, u"Show Tips at Startup"_s, text);
}

} // namespace

class tst_Tip : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty);
        desktop::setSettingsFile(m_folder->path(u"settings.ini"_s));
    }
    void cleanup()
    {
        desktop::setSettingsFile({});
        close();
    }

    void aTipOfTheFileIsShown()
    {
        for (const auto &[file, tips] :
             {std::pair(QByteArray(), u""_s), std::pair(QByteArray("a\n\nb\r\n"), u"|a|b"_s)}) {
            writeTips(file);
            QPointer<frmTip> window = desktop::showNew<frmTip>();
            QVERIFY(window->isVisible());
            QVERIFY(window->chkLoadTipsAtStartup->isChecked());
            QStringList seen{window->lblTipText->text()};
            for (int click = 0; click < 100; ++click) {
                window->cmdNextTip->click();
                seen << window->lblTipText->text();
            }
            seen.removeDuplicates();
            seen.sort();
            QCOMPARE(seen.join(u'|'), tips);
            QCOMPARE(storedSetting(), u"none"_s); // seeing tips decides nothing
            window->cmdOK->click();
            QTRY_VERIFY(!window);
        }
    }

    // Without the clock's part, each start would show the same tips.
    void theTipsAreChosenByTheClock()
    {
        writeTips("1\n2\n3\n4\n5\n6\n7\n8\n9\n");
        setTime(u"2026-03-04T09:00:00"_s);
        runtime::Rnd(-1.0F);
        frmTip &window = *desktop::showNew<frmTip>();
        const QString first = window.lblTipText->text();
        window.cmdNextTip->click();
        QCOMPARE(first + window.lblTipText->text(), u"37"_s);
        window.Unload();
    }

    void withoutAFileItIsSaidWhatToDo()
    {
        QVERIFY(QDir(m_folder->folder()).mkdir(u"TIPOFDAY.TXT"_s)); // which is no file
        frmTip &window = *desktop::showNew<frmTip>();
        window.cmdNextTip->click();
        QCOMPARE(window.lblTipText->text(),
                 u"That the TIPOFDAY.TXT file was not found? \n\nCreate a text file named TIPOFDAY.TXT using NotePad "
                 "with 1 tip per line. Then place it in the same directory as the application. "_s);
        QVERIFY(!window.LoadTips({}));
        window.Unload();
    }

    void theSettingDecidesAndTheCheckBoxKeepsIt()
    {
        const UnitedStates region;
        for (const auto &[setting, shown, error] :
             {std::tuple(u" -1 "_s, true, 0), std::tuple(u"0.0"_s, false, 0), std::tuple(u"True"_s, false, 13)}) {
            storeSetting(setting);
            QPointer<frmTip> window;
            desktop::guarded([&window] { window = desktop::showNew<frmTip>(); });
            QCOMPARE(m_errors->takeNumber(), error);
            QCOMPARE(window && window->isVisible(), shown);
            QCOMPARE(storedSetting(), setting);
            if (shown) { // then the box decides
                QVERIFY(QTest::qWaitForWindowActive(window));
                window->chkLoadTipsAtStartup->click();
                QCOMPARE(storedSetting(), u"0"_s);
                QTest::keyClick(window, Qt::Key_S, Qt::AltModifier);
                QTRY_COMPARE(storedSetting(), u"1"_s);
                window->Unload();
            }
            QTRY_VERIFY(!window); // also one that was never seen
        }
    }

    // The file that goes with the program.
    void noShippedTipIsCutOff()
    {
        writeTips(contentOf(QStringLiteral(TIPS_FILE)));
        frmTip &window = *desktop::showNew<frmTip>();
        const desktop::Label &tip = *window.lblTipText;
        QSet<QString> seen;
        for (int click = 0; click < 1000; ++click) {
            window.cmdNextTip->click();
            QVERIFY2(tip.heightForWidth(tip.width()) <= tip.height(), qPrintable(tip.text()));
            seen << tip.text();
        }
        QCOMPARE(seen.size(), 20);
        window.Unload();
    }

private:
    void writeTips(const QByteArray &bytes) { m_folder->write(u"TIPOFDAY.TXT"_s, bytes); }
};

QTEST_MAIN(tst_Tip)
#include "tst_tip.moc"
