#include "platform/desktop/Controls.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionFocusRect>

namespace desktop {

Label::Label(QWidget *parent, QAnyStringView name, const QString &caption) : ControlOf(parent, name)
{
    setText(caption);
}

void Label::setClickable()
{
    m_clickable = true;
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (m_clickable && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT Click();
}

void Label::keyPressEvent(QKeyEvent *event)
{
    if (m_clickable && (event->key() == Qt::Key_Space || keyCode(*event) == vbKeyReturn))
        Q_EMIT Click();
    else
        QLabel::keyPressEvent(event);
}

void Label::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!m_clickable || !hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

MultilineTextBox::MultilineTextBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

CommandButton::CommandButton(QWidget *parent, QAnyStringView name, const QString &caption) : ControlOf(parent, name)
{
    setText(caption);
    setAutoDefault(false);
}

Frame::Frame(QWidget *parent, QAnyStringView name, const QString &caption) : ControlOf(parent, name)
{
    setTitle(caption);
}

ListBox::ListBox(QWidget *parent, QAnyStringView name, const QStringList &items) : ControlOf(parent, name)
{
    addItems(items);
}

QString ListBox::Text() const
{
    const QList<QListWidgetItem *> selected = selectedItems();
    return selected.isEmpty() ? QString() : selected.constFirst()->text();
}

void ListBox::setText(const QString &text)
{
    const QList<QListWidgetItem *> equal = findItems(text, Qt::MatchFixedString);
    if (equal.isEmpty())
        clearSelection();
    else
        setCurrentItem(equal.constFirst());
}

void ListBox::setOneLine()
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int line = qMax(sizeHintForRow(0), fontMetrics().height() + 6);
    setFixedHeight(line + 2 * frameWidth());
}

PictureBox::PictureBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setMouseTracking(true);
}

void PictureBox::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT MouseMove(heldButtons(*event), float(event->position().x() * twipsPerPixel),
                     float(event->position().y() * twipsPerPixel));
}

} // namespace desktop
