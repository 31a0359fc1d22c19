#include "platform/desktop/HelpKey.h"

#include "platform/desktop/Form.h"
#include "platform/desktop/MdiForm.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace desktop {

namespace {

QStringList windowsAround(const QWidget *focus)
{
    QStringList names;
    for (const QWidget *each = focus; each; each = each->parentWidget()) {
        if (each->isWindow() || qobject_cast<const Form *>(each))
            names << each->objectName();
    }
    const QMdiSubWindow *child = MdiForm::frame() ? MdiForm::frame()->area().currentSubWindow() : nullptr;
    if (child && child->widget() && !names.contains(child->widget()->objectName()))
        names.insert(qMin(1, names.size()), child->widget()->objectName());
    return names;
}

} // namespace

HelpKey::HelpKey(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

// The first object that the key comes to is a window of the display or, where a test types, a widget; nobody behind it
// gets the key.
bool HelpKey::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    if (key->isAutoRepeat())
        return true;
    const QWidget *modal = QApplication::activeModalWidget(); // it gets all keys, also before it has the focus
    Q_EMIT pressed(windowsAround(modal ? modal : QApplication::focusWidget()));
    return true;
}

} // namespace desktop
