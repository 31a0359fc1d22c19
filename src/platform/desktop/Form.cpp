#include "platform/desktop/Form.h"

#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Twips.h"

#include <QAbstractScrollArea>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QScreen>

#include <utility>

namespace desktop {

Form::Form(Place place, QAnyStringView className) : m_place(place)
{
    setObjectName(className.toString());
}

void Form::setCaption(const QString &caption)
{
    Load();
    setTitle(*this, caption);
}

void Form::Load()
{
    if (m_state != State::Unloaded)
        return;
    m_state = State::Loading;
    try {
        Form_Load();
    } catch (...) {
        m_state = State::Unloaded;
        throw;
    }
    if (m_state == State::Loading)
        m_state = State::Loaded;
}

void Form::Show()
{
    Load();
    if (m_state != State::Loaded) { // it closed itself while loading
        if (!m_shared)
            deleteLater();
        return;
    }
    focusFirstBox();
    if (m_place == Place::InFrame && !m_shared)
        setAttribute(Qt::WA_DeleteOnClose);
    if (m_place == Place::InFrame && MdiForm::frame())
        MdiForm::frame()->showChild(*this);
    else
        show();
}

void Form::focusFirstBox()
{
    for (QWidget *at = nextInFocusChain(); at != this && !focusWidget(); at = at->nextInFocusChain()) {
        const bool isBox =
            qobject_cast<QLineEdit *>(at) || qobject_cast<QAbstractScrollArea *>(at) || qobject_cast<QComboBox *>(at);
        if (isBox && isAncestorOf(at) && (at->focusPolicy() & Qt::TabFocus) && at->isEnabled() && at->isVisibleTo(this))
            at->setFocus();
    }
}

void Form::Unload()
{
    if (isVisible()) {
        outer()->close();
    } else if (m_state != State::Unloaded) {
        m_state = State::Unloaded;
        Form_Unload();
    }
}

void Form::becomeActive()
{
    if (isLoaded())
        guarded([this] { Form_Activate(); });
}

// The letters are dealt again when a caption changes and when a control comes or goes: then Qt asks for a new layout. A
// child in the frame is told of each activation of the frame, also when another child is the active one; so only a
// window that stands alone takes that for its own.
bool Form::event(QEvent *event)
{
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest)
        dealMnemonics(*this, m_letters);
    if (event->type() == QEvent::WindowActivate && isWindow())
        becomeActive();
    return isHandled;
}

QWidget *Form::outer() const
{
    if (auto *host = qobject_cast<QMdiSubWindow *>(parentWidget()))
        return host;
    return const_cast<Form *>(this);
}

double Form::Width() const
{
    return twips(outer()->frameGeometry().width());
}

double Form::Height() const
{
    return twips(outer()->frameGeometry().height());
}

void Form::setSize(double width, double height)
{
    const QSize size(pixels(width), pixels(height));
    if (outer() == this)
        m_presetSize = size;
    outer()->resize(size);
}

QSize Form::minimumSizeHint() const
{
    if (!m_usefulSize)
        return QWidget::minimumSizeHint();
    return {pixels(m_usefulSize->width()), pixels(m_usefulSize->height())};
}

void Form::centreOnScreen()
{
    resize(sizeHint()); // adjustSize() stops at two thirds of the screen
    const QWidget *shownOn = MdiForm::frame() ? static_cast<QWidget *>(MdiForm::frame()) : this;
    move(shownOn->screen()->availableGeometry().center() - rect().center());
}

void Form::keepSize(double width, double height)
{
    m_keptSize = QSizeF(width, height);
    setSize(width, height);
}

void Form::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_keptSize)
        takeKeptSize();
}

void Form::takeKeptSize()
{
    auto *host = qobject_cast<QMdiSubWindow *>(outer());
    if (host && host->isMaximized()) // undone only afterwards: the window is still busy becoming maximised
        QMetaObject::invokeMethod(
            host, [host] { MdiForm::frame()->restoreChild(*host); }, Qt::QueuedConnection);
    else
        setSize(m_keptSize->width(), m_keptSize->height());
}

void Form::closeEvent(QCloseEvent *event)
{
    // When the frame closes, Qt sends this event to every child, also to a shared window that is closed and only
    // hidden: that one has unloaded already.
    if (std::exchange(m_state, State::Unloaded) != State::Unloaded)
        guarded([this] { Form_Unload(); });
    QWidget::closeEvent(event);
    MdiForm *frame = m_shared && outer() != this ? MdiForm::frame() : nullptr;
    if (frame) // after the close, which is still under way
        QMetaObject::invokeMethod(frame, &MdiForm::childClosed, Qt::QueuedConnection);
}

} // namespace desktop
