#include "platform/desktop/MsgBox.h"

#include "platform/desktop/PlainText.h"
#include "platform/runtime/Application.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

using namespace Qt::Literals::StringLiterals;

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

// QMessageBox answers Esc and the close button with No where the box has no Cancel; this one does not.
class Box : public QMessageBox
{
public:
    Box(const QString &prompt, int style, const QString &title)
        : QMessageBox(iconOf(style), {}, prompt, buttonsOf(style), QApplication::activeWindow()),
          m_mustAnswer((style & buttonMask) == vbYesNo)
    {
        setObjectName(u"MsgBox"_s);
        setTitle(*this, title);
        setTextFormat(Qt::PlainText);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (!m_mustAnswer || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent *event) override
    {
        if (m_mustAnswer)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

private:
    bool m_mustAnswer;
};

} // namespace

MsgBoxResult MsgBox(const QString &prompt, int style, const QString &title)
{
    Box box(prompt, style, title.isEmpty() ? runtime::App::Title() : title);
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
