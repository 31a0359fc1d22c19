#include "platform/desktop/Controls.h"

#include "platform/desktop/ItemDelegate.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/RuntimeError.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace desktop {

Label::Label(QWidget *parent, QAnyStringView name, const QString &caption) : ControlOf(parent, name)
{
    setTextFormat(Qt::PlainText);
    setText(caption);
}

void Label::setClickable()
{
    m_clickable = true;
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

QRect Label::textPlace() const
{
    const int beside = margin() + qMax(0, indent());
    return contentsRect().adjusted(beside, 0, -beside, 0);
}

QString Label::caption() const
{
    return buddy() ? captionOf(text()) : text();
}

bool Label::isElided() const
{
    return m_elides && fontMetrics().horizontalAdvance(caption()) > textPlace().width();
}

bool Label::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isElided())
        return ControlOf::event(event);
    showPlainToolTip(caption(), *static_cast<QHelpEvent *>(event), this);
    return true;
}

void Label::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (m_clickable && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT Click();
}

void Label::keyPressEvent(QKeyEvent *event)
{
    const bool isClick = m_clickable && (event->key() == Qt::Key_Space || keyCode(*event) == vbKeyReturn);
    if (!isClick)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT Click();
}

void Label::paintEvent(QPaintEvent *event)
{
    if (isElided())
        paintElided();
    else
        QLabel::paintEvent(event);
    if (!m_clickable || !hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void Label::paintElided()
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect place = textPlace();
    const int mnemonic = buddy() ? Qt::TextShowMnemonic : 0;
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), mnemonic);
    style()->drawItemText(&painter, place, int(QStyle::visualAlignment(layoutDirection(), alignment())) | mnemonic,
                          palette(), isEnabled(), shown, foregroundRole());
}

TextBox::TextBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setMaxLength(std::numeric_limits<int>::max()); // Qt's own limit cuts what is loaded
}

void TextBox::setText(const QString &text)
{
    QLineEdit::setText(text);
    if (!hasFocus())
        setCursorPosition(0);
}

void TextBox::setMasked()
{
    setEchoMode(QLineEdit::Password);
    setStyleSheet(QStringLiteral("lineedit-password-character: %1").arg(int('*')));
}

MultilineTextBox::MultilineTextBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Qt 6.4 looks for the line of the dropped text before that is laid out, and fails near the end of a long
    // paragraph.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
}

namespace {

// The place in a text that was loaded, for a place in what is shown of it.
qsizetype placeIn(QStringView loaded, qsizetype shown)
{
    qsizetype place = 0;
    for (; shown > 0 && place < loaded.size(); --shown)
        place += loaded.sliced(place).startsWith(u"\r\n") ? 2 : 1;
    return place;
}

} // namespace

void MultilineTextBox::setText(const QString &text)
{
    setPlainText(text);
    m_loaded = text;
    m_shown = document()->toRawText();
}

// Not by the document's own plain text, in which a no-break space has become a blank.
QString MultilineTextBox::text() const
{
    const QString shown = document()->toRawText();
    if (shown == m_shown)
        return m_loaded;
    const qsizetype shorter = qMin(shown.size(), m_shown.size());
    const qsizetype before =
        std::mismatch(shown.begin(), shown.begin() + shorter, m_shown.begin()).first - shown.begin();
    const qsizetype behind =
        std::mismatch(shown.rbegin(), shown.rbegin() + shorter - before, m_shown.rbegin()).first - shown.rbegin();
    QString changed = shown.sliced(before, shown.size() - before - behind);
    changed.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    return m_loaded.first(placeIn(m_loaded, before)) + changed +
           m_loaded.sliced(placeIn(m_loaded, m_shown.size() - behind));
}

// Shift with Enter breaks the line as Enter does; Qt has a character of its own for it, which no other program expects.
void MultilineTextBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly())
        textCursor().insertBlock();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void MultilineTextBox::wrapLines()
{
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

CommandButton::CommandButton(QWidget *parent, QAnyStringView name, const QString &caption) : ButtonOf(parent, name)
{
    setText(caption);
    setAutoDefault(false);
}

// Qt has this too, for dialogs, but presses again and again while the key is held down.
void CommandButton::keyPressEvent(QKeyEvent *event)
{
    if (keyCode(*event) != vbKeyReturn)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

CheckBox::CheckBox(QWidget *parent, QAnyStringView name, const QString &caption) : ButtonOf(parent, name)
{
    setText(caption);
}

OptionButton::OptionButton(QWidget *parent, QAnyStringView name) : ButtonOf(parent, name)
{
    auto *choices = parent->findChild<QButtonGroup *>({}, Qt::FindDirectChildrenOnly);
    if (!choices)
        choices = new QButtonGroup(parent);
    choices->addButton(this);
    connect(this, &QRadioButton::toggled, this, [this, choices](bool on) {
        if (!on)
            return;
        for (QAbstractButton *choice : choices->buttons()) // Qt does so only when the focus enters the group
            choice->setFocusPolicy(choice == this ? Qt::StrongFocus : Qt::ClickFocus);
        Q_EMIT Click();
    });
}

Frame::Frame(QWidget *parent, QAnyStringView name, const QString &caption) : ControlOf(parent, name)
{
    setTitle(caption);
    setAccessibleName(caption); // within another frame Qt tells that one's title
}

void Frame::setBuddy(QWidget *box)
{
    box->setAccessibleName(accessibleName());
    setFocusProxy(box);
}

TabbedDialog::TabbedDialog(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    onPageKeys(this, [this](int pages) {
        if (count() > 0)
            turnTo((currentIndex() + pages + count()) % count());
    });
}

void TabbedDialog::turnTo(int page)
{
    setCurrentIndex(page);
    for (QWidget *next = currentWidget()->nextInFocusChain(); next != currentWidget();
         next = next->nextInFocusChain()) {
        const bool takesFocus = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && next->isVisible();
        if (!takesFocus || !currentWidget()->isAncestorOf(next))
            continue;
        next->clearFocus(); // which Qt may have given it as the page turned, and not as the keyboard does
        return next->setFocus(Qt::TabFocusReason);
    }
}

void TabbedDialog::addPage(QWidget *content, const QString &caption)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(content);
    addTab(page, caption);
}

ListBox::ListBox(QWidget *parent, QAnyStringView name, const QStringList &items) : LineView(parent, name)
{
    setItemDelegate(new ItemDelegate(this));
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

int ListBox::ListIndex() const
{
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void ListBox::setSelected(int index, bool selected)
{
    if (index < 0 || index >= count())
        throw runtime::RuntimeError(runtime::InvalidPropertyValue);
    if (selected)
        setCurrentRow(index);
    else
        item(index)->setSelected(false);
}

void ListBox::setLines(int lines)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(lines * qMax(sizeHintForRow(0), fontMetrics().height()) + 2 * frameWidth());
}

namespace {

class OneLineDelegate : public ItemDelegate
{
public:
    using ItemDelegate::ItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        ItemDelegate::paint(painter, option, index);
        const QModelIndexList chosen = qobject_cast<const QListView *>(option.widget)->selectionModel()->selectedRows();
        if (chosen.isEmpty() || chosen.contains(index))
            return;
        const QModelIndex &choice = chosen.constFirst();
        const QString arrow = choice.row() < index.row() ? QStringLiteral("\u25b2 ") : QStringLiteral("\u25bc ");
        painter->setPen(option.palette.color(QPalette::Text));
        painter->drawText(option.rect.adjusted(0, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter,
                          arrow + displayText(choice.data(), option.locale));
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        ItemDelegate::initStyleOption(option, index);
        if (option->state & QStyle::State_Selected)
            return;
        option->font.setItalic(true);
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Disabled, QPalette::Text));
    }

private:
    static constexpr int gap = 6; // logical pixels
};

} // namespace

void ListBox::setOneLine()
{
    setItemDelegate(new OneLineDelegate(this));
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { viewport()->update(); });
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    const int line = qMax(sizeHintForRow(0), fontMetrics().height() + 6);
    for (int row = 0; row < count(); ++row)
        item(row)->setSizeHint(QSize(0, line)); // each item fills the line
    setLines(1);
}

// Qt lets a click beside the items, and Ctrl with a click, take the selection away; here what has been picked can only
// be exchanged.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const QItemSelectionModel::SelectionFlags command = LineView::selectionCommand(index, event);
    return command.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : command;
}

// Its size never depends on the items, which can be tens of thousands.
ComboBox::ComboBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (auto *list = qobject_cast<QListView *>(view()))
        list->setUniformItemSizes(true);
}

// Qt selects the first item that an empty box gets.
void ComboBox::append(const QStringList &items)
{
    const int selected = currentIndex();
    addItems(items);
    setCurrentIndex(selected);
}

PictureBox::PictureBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setMouseTracking(true);
}

void PictureBox::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT MouseMove(heldButtons(*event), float(twips(event->position().x())), float(twips(event->position().y())));
}

void PictureBox::PSet(double x, double y)
{
    if (m_painting)
        m_points << QPointF(x, y);
}

// All points by one call: there are tens of thousands. They are rounded to whole pixels as the corners of the controls
// are; versions of Qt differ in where they draw a point at a fraction of a pixel.
void PictureBox::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    m_painting = true;
    Q_EMIT Paint();
    m_painting = false;
    if (m_points.isEmpty())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const double toTwips = twips(1);
    for (QPointF &point : m_points)
        point = (point / toTwips).toPoint();
    painter.drawPoints(m_points.constData(), int(m_points.size()));
    m_points.clear();
}

} // namespace desktop
