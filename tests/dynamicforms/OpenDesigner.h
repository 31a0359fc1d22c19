// The open designer, driven by mouse and keyboard, over a data file of the test's own.
#pragma once

#include "dynamicforms/DatabaseGenerator.h"
#include "platform/desktop/Twips.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

class OpenDesigner
{
public:
    OpenDesigner()
    {
        window.Show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window); // painted, so that the counter is where the grid leaves it
    }

    DatabaseGenerator window;

    // An element of Label1, Text1 or Text2; null when it is not loaded.
    template <class ControlType> ControlType *find(const char *name, int index)
    {
        return window.Picture1->findChild<ControlType *>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index));
    }
    CanvasTextBox *box(int index) { return find<CanvasTextBox>("Text1", index); }
    CanvasLabel *label(int index) { return find<CanvasLabel>("Label1", index); }
    // What is shown of the page: "Skills 200,400 3200,400 2800": the label's and the box's place, the box's width.
    QStringList fields()
    {
        QStringList shown;
        for (int index = 1; box(index); ++index) {
            const CanvasLabel &name = *label(index);
            const CanvasTextBox &value = *box(index);
            if (name.isVisible() && value.isVisible())
                shown << QStringLiteral("%1 %2,%3 %4,%5 %6")
                             .arg(name.text())
                             .arg(name.Left())
                             .arg(name.Top())
                             .arg(value.Left())
                             .arg(value.Top())
                             .arg(value.Width());
        }
        return shown;
    }

    void addTab(const QString &name, const QString &description = {})
    {
        window.txtTableName->setText(name);
        window.txtTableDescription->setText(description);
        window.cmdTableAdd->click();
    }
    void addField(const QString &name, const QString &description = {})
    {
        window.txtFieldName->setText(name);
        window.txtFieldDescription->setText(description);
        window.cmdFieldAdd->click();
    }
    void clickTab(int tab)
    {
        desktop::TabStrip &tabs = *window.TabStrip1;
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    // The pointer at so many twips inside the control, with the left button held.
    static void drag(QWidget &control, int x, int y, Qt::KeyboardModifiers held = {})
    {
        const QPointF place(desktop::pixels(x), desktop::pixels(y));
        QMouseEvent move(QEvent::MouseMove, place, control.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, held);
        QApplication::sendEvent(&control, &move);
    }
    void gather(int index) { QTest::mouseClick(box(index), Qt::LeftButton, Qt::ShiftModifier); }
    void press(const QString &tool)
    {
        for (QAction *button : window.Toolbar1->actions()) {
            if (button->text() == tool)
                return button->trigger();
        }
        qFatal("no tool %s", qPrintable(tool));
    }
    void generate(QMessageBox::StandardButton answer)
    {
        BoxAnswers boxes({answer});
        window.cmdGenerateDatebase->click();
        QCOMPARE(boxes.seen.value(0).text, QStringLiteral("Save Current Layout before proceeding"));
    }
};
