#include "dynamicforms/DesignSurface.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Keys.h"

#include <QHash>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

using desktop::Control;
using desktop::ControlArray;
using desktop::TextBox;
using runtime::RuntimeError;
using runtime::Value;

namespace {

constexpr double templateTop = -120; // twips, as are all below
constexpr double rowHeight = 375;
constexpr double labelLeft = 240;
constexpr double labelWidth = 2775;
constexpr double boxLeft = 3120;
constexpr double boxWidth = 2895;
constexpr double holderLeft = 9840;
constexpr double gapBetweenRows = 40;

template <class ControlType>
void addTemplate(ControlArray<ControlType> &controls, QWidget &canvas, double left, double width)
{
    ControlType *added = controls.add(0, &canvas);
    added->setVisible(false);
    added->Move(left, templateTop, width, rowHeight);
}

QString positionText(double twips)
{
    return runtime::singleText(float(twips));
}

void placeUnderLast(Control &added, const Control &last)
{
    added.setTop(last.Top() + last.Height() + gapBetweenRows);
}

// The loaded controls by their tool tips. Of equal ones the last counts, as in a walk through all of them it would
// overwrite what the others left.
template <class ControlType> QHash<QString, ControlType *> byName(const ControlArray<ControlType> &controls)
{
    QHash<QString, ControlType *> found;
    for (int index = 1; index < controls.Count(); ++index)
        found.insert(controls(index)->toolTip(), controls(index));
    return found;
}

} // namespace

float snappedToGrid(float x, qint16 step)
{
    const int half = int(std::nearbyint(step / 2.0));
    const qint32 beyondLine = runtime::toLong(Value(double(x))) % step;
    const float line = std::floor(x / float(step));
    return (beyondLine < half ? line : line + 1) * float(step);
}

void moveBy(Control &control, float x, float y)
{
    control.setLeft(double(float(control.Left()) + x));
    control.setTop(double(float(control.Top()) + y));
}

DesignSurface::DesignSurface(desktop::PictureBox &canvas, desktop::TabStrip &tabs, FieldRows &rows)
    : Label1(u"Label1"_s), Text1(u"Text1"_s), Text2(u"Text2"_s), m_canvas(canvas), m_tabs(tabs), m_rows(rows)
{
    addTemplate(Text2, canvas, holderLeft, rowHeight);
    addTemplate(Text1, canvas, boxLeft, boxWidth);
    addTemplate(Label1, canvas, labelLeft, labelWidth);
}

void DesignSurface::drawGrid(qint16 step)
{
    const double rows = m_canvas.Height() / step;
    const double columns = m_canvas.Width() / step;
    double y = step;
    for (int row = 1; row < rows; ++row) {
        m_rows.RowCounter = 1;
        for (double x = step; m_rows.RowCounter < columns; x += step) {
            m_canvas.PSet(x, y);
            m_rows.countUp();
        }
        y += step;
    }
}

// The Tab key goes from the tab strip through the boxes in the order of the rows.
void DesignSurface::load(int index)
{
    CanvasLabel *label = Label1.Load(index);
    CanvasTextBox *box = Text1.Load(index);
    TextBox *holder = Text2.Load(index);
    QWidget::setTabOrder(index > 1 ? static_cast<QWidget *>(Text1(index - 1)) : &m_tabs, box);
    using desktop::on;
    on(label, &CanvasLabel::MouseMove, label,
       [this, index](CanvasLabel *, int button, int, float x, float y) { moveLabel(index, button, x, y); });
    on(box, &CanvasTextBox::MouseMove, box, [this, index](CanvasTextBox *, int button, int shift, float x, float y) {
        moveBox(index, button, shift, x, y);
    });
    on(box, &CanvasTextBox::MouseDown, box, [this, index](CanvasTextBox *, int, int shift) { clickBox(index, shift); });
    on(box, &CanvasTextBox::KeyDown, box, [this, index](CanvasTextBox *, QKeyEvent &event) { pressKey(index, event); });
    on(box, &CanvasTextBox::GotFocus, box, [this, index](CanvasTextBox *) { onBoxChosen(index); });
    on(holder, &TextBox::textChanged, holder, [this](TextBox *) { keepOrders(); });
    describe(index);
}

void DesignSurface::showFields()
{
    const int loaded = Label1.Count();
    for (int index = 1; index < loaded; ++index) {
        Label1.Unload(index);
        Text1.Unload(index);
        Text2.Unload(index);
    }
    for (int k = 0; k < m_rows.upperBound(); ++k) {
        const FieldRow row = m_rows[k]; // a copy: the order's hidden box, set below, writes into the row
        if (m_tabs.SelectedCaption() != row.RowTabNam)
            continue;
        const int index = Label1.Count();
        load(index);
        placeField(*Label1(index), *Text1(index), row, [](const auto &assign) { assign(); });
        placeUnderLast(*Text2(index), *Text2(index - 1));
        for (QWidget *control : std::initializer_list<QWidget *>{Label1(index), Text1(index), Text2(index)})
            control->setToolTip(row.RowFieldName);
        Text2(index)->setText(QString::number(m_rows[k].RowFieldDisplayOrder));
        Text2(index)->Tag = QString::number(k);
        Label1(index)->setVisible(true);
        Text1(index)->setVisible(true);
        Label1(index)->setText(row.RowFieldName);
        Text1(index)->setAccessibleName(row.RowFieldName);
    }
}

template <class Keep> void DesignSurface::forEachRowOfPage(Keep keep)
{
    for (int k = 0; k < m_rows.upperBound(); ++k) {
        FieldRow &row = m_rows[k + 1];
        if (m_tabs.SelectedCaption() == row.RowTabNam)
            keep(row);
    }
}

void DesignSurface::keepOrders()
{
    const auto holders = byName(Text2);
    forEachRowOfPage([&holders](FieldRow &row) {
        if (const TextBox *holder = holders.value(row.RowFieldName))
            row.RowFieldDisplayOrder = runtime::toInteger(Value(holder->text()));
    });
}

void DesignSurface::keepFields()
{
    keepOrders();
    const auto boxes = byName(Text1);
    const auto labels = byName(Label1);
    forEachRowOfPage([&](FieldRow &row) {
        if (const CanvasTextBox *box = boxes.value(row.RowFieldName)) {
            row.RowFieldWidth = positionText(box->Width());
            row.RowFieldTop = positionText(box->Top());
            row.RowFieldLeft = positionText(box->Left());
        }
        if (const CanvasLabel *label = labels.value(row.RowFieldName)) {
            row.RowLabelTop = positionText(label->Top());
            row.RowLabelLeft = positionText(label->Left());
        }
    });
}

// The names go into the row at RowCounter - 1, the places into the row at the control's index. With a single page that
// is the row behind; fields on other pages or the grid move the two further apart. Both numberings are the designer's
// rule.
void DesignSurface::addField(const QString &name, const QString &description)
{
    FieldRow &row = m_rows.next();
    row.RowTabNam = m_tabs.SelectedCaption();
    row.RowTabDescription = m_tabs.ToolTipText(m_tabs.SelectedItem());
    row.RowFieldName = name;
    row.RowFieldDescription = description;
    row.RowFieldWidth = positionText(Text1(0)->Width());
    const int index = Label1.Count();
    load(index);
    CanvasLabel &label = *Label1(index);
    CanvasTextBox &box = *Text1(index);
    TextBox &holder = *Text2(index);
    row.RowFieldDisplayOrder = qint16(Text2.Count());
    placeUnderLast(label, *Label1(index - 1));
    m_rows[index].RowLabelTop = positionText(label.Top());
    m_rows[index].RowLabelLeft = positionText(label.Left());
    placeUnderLast(box, *Text1(index - 1));
    m_rows[index].RowFieldTop = positionText(box.Top());
    m_rows[index].RowFieldLeft = positionText(box.Left());
    placeUnderLast(holder, *Text2(index - 1));
    box.setToolTip(name);
    const QString before = Text2(index - 1)->text();
    holder.setText(before.isEmpty() ? u"1"_s : runtime::toText(Value(runtime::toDouble(Value(before)) + 1)));
    holder.setToolTip(name);
    holder.Tag = QString::number(index);
    label.setVisible(true);
    box.setVisible(true);
    label.setText(name);
    label.setToolTip(description);
    box.setAccessibleName(name);
}

// The control's corner jumps to the pointer: x and y are the pointer's place inside the control, and they are added to
// its place as they are.
void DesignSurface::moveBox(int index, int button, int shift, float x, float y)
{
    if (button != desktop::vbLeftButton || shift == desktop::vbShiftMask)
        return;
    onBoxChosen(index);
    if (!ObjectsLocked)
        moveBy(*Text1(index), x, y);
}

void DesignSurface::moveLabel(int index, int button, float x, float y)
{
    if (button == desktop::vbLeftButton && !ObjectsLocked)
        moveBy(*Label1(index), x, y);
}

void DesignSurface::clickBox(int index, int shift)
{
    if (shift == desktop::vbShiftMask)
        gather(index);
}

void DesignSurface::gather(int index)
{
    if (!SelectedIndexes)
        SelectedIndexes.emplace();
    ++SelectedCount;
    SelectedIndexes->resize(size_t(SelectedCount) + 1);
    (*SelectedIndexes)[size_t(SelectedCount) - 1] = qint16(index);
    describe(index);
}

void DesignSurface::align(Alignment alignment)
{
    if (!SelectedIndexes)
        throw RuntimeError(runtime::SubscriptOutOfRange);
    for (size_t k = 1; k + 1 < SelectedIndexes->size(); ++k) {
        CanvasTextBox &aligned = *Text1((*SelectedIndexes)[k]);
        const CanvasTextBox &first = *Text1(SelectedIndexes->front());
        switch (alignment) {
        case Alignment::Top:
            aligned.setTop(first.Top());
            break;
        case Alignment::Left:
            aligned.setLeft(first.Left());
            break;
        case Alignment::Width:
            aligned.setWidth(first.Width());
            break;
        }
    }
    releaseGathered();
}

void DesignSurface::setWidth(int index, double width) const
{
    Text1(index)->setWidth(width);
    Label1(index)->setWidth(width);
}
