#include "platform/desktop/Controls.h"
#include "platform/desktop/StatusBar.h"
#include "shell/frame/ScaleControls.h"
#include "shell/session/Session.h"

#include <QComboBox>
#include <QTest>

class tst_ScaleControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void controlsFollowTheRatios()
    {
        desktop::MdiForm window(u"window");
        desktop::StatusBar bar(&window, u"bar"); // has no place of its own and is passed over
        desktop::TextBox box(&window, u"box");
        desktop::ControlOf<QComboBox> combo(&window, u"combo");
        box.Move(300, 600, 1500, 450);
        box.setFontSize(10);
        combo.Move(300, 600, 1500, 450);
        ScaleControls(2.0F, 0.5F, window);
        QCOMPARE(box.Left(), 600.0);
        QCOMPARE(box.Top(), 300.0);
        QCOMPARE(box.Width(), 3000.0);
        QCOMPARE(box.Height(), 225.0);
        QCOMPARE(box.FontSize(), 12.5);
        QCOMPARE(combo.Width(), 3000.0);
        QCOMPARE(combo.Height(), 450.0);
    }

    void theWindowItselfMovesOnlyWhileThatIsPending()
    {
        desktop::MdiForm window(u"window");
        window.setGeometry(10, 20, 400, 300);
        ScaleControls(2.0F, 2.0F, window);
        QCOMPARE(window.geometry(), QRect(10, 20, 400, 300));
        Session::current().ResizePending = true;
        ScaleControls(2.0F, 2.0F, window);
        Session::current().ResizePending = false;
        QCOMPARE(window.geometry(), QRect(20, 40, 800, 600));
    }
};

QTEST_MAIN(tst_ScaleControls)
#include "tst_scalecontrols.moc"
