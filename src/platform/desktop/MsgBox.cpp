#include "platform/desktop/MsgBox.h"

#include "platform/runtime/Application.h"

#include <QApplication>
#include <QMessageBox>

namespace desktop {

namespace {

constexpr int buttonMask = 0x0f;
constexpr int iconMask = 0xf0;

QMessageBox::StandardButtons buttonsOf(int style)
{
    switch (style & buttonMask) {
    case vbYesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case vbYesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & iconMask) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

MsgBoxResult MsgBox(const QString &prompt, int style, const QString &title)
{
    QMessageBox box(iconOf(style), title.isEmpty() ? runtime::App::Title() : title, prompt, buttonsOf(style),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return vbYes;
    case QMessageBox::No:
        return vbNo;
    case QMessageBox::Cancel:
        return vbCancel;
    default:
        return vbOK;
    }
}

} // namespace desktop
