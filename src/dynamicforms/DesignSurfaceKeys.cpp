// What the keys do in a box of the canvas. They change only what the mouse can change: places in twips, and which boxes
// are gathered.
#include "dynamicforms/DesignSurface.h"

#include <QKeyEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

using desktop::Control;

namespace {

constexpr double twipsPerPoint = 20;
constexpr double cornerInside = 375; // twips; as much of a field stays on the canvas

// By one, with y downwards; null for a key that is no arrow.
QPoint directionOf(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

void DesignSurface::pressKey(int index, QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    const QPoint direction = directionOf(event);
    if (!direction.isNull() && !held.testFlag(Qt::ControlModifier))
        moveByKey(index, direction, held);
    else if (!direction.isNull() && held == (Qt::ControlModifier | Qt::ShiftModifier))
        gatherWithNeighbour(index, index + direction.x() + direction.y());
    else if (event.matches(QKeySequence::SelectAll))
        gatherAll(index);
    else if (event.key() == Qt::Key_Space && held == Qt::ControlModifier)
        gatherByKey(index);
    else if (event.key() == Qt::Key_Escape)
        releaseGathered();
    else
        return;
    event.accept();
}

// Label and box keep their distance; with Alt the label moves alone. Nothing moves when one of them would leave the
// canvas, which does not scroll.
void DesignSurface::moveByKey(int index, QPoint direction, Qt::KeyboardModifiers held)
{
    if (ObjectsLocked)
        return;
    const double step = held.testFlag(Qt::ShiftModifier) ? twipsPerPoint : keyStep();
    const double x = direction.x() * step;
    const double y = direction.y() * step;
    const std::vector<Control *> moved = movedByKey(index, held.testFlag(Qt::AltModifier));
    if (std::ranges::all_of(moved, [&](const Control *control) { return staysOnCanvas(*control, x, y); })) {
        for (Control *control : moved)
            moveBy(*control, float(x), float(y));
    }
}

// The gathered fields, if the one in use is among them; otherwise that one alone. Each once, however often it was
// gathered.
std::vector<Control *> DesignSurface::movedByKey(int index, bool labelsAlone) const
{
    std::set<int> fields = gathered();
    if (!fields.contains(index))
        fields = {index};
    std::vector<Control *> moved;
    for (const int field : fields) {
        moved.push_back(Label1(field));
        if (!labelsAlone)
            moved.push_back(Text1(field));
    }
    return moved;
}

// A field that lies outside can always be moved in.
bool DesignSurface::staysOnCanvas(const Control &control, double x, double y) const
{
    const auto stays = [](double place, double by, double length) {
        return by == 0 || (by < 0 ? place + by >= 0 : place + by <= length - cornerInside);
    };
    return stays(control.Left(), x, m_canvas.Width()) && stays(control.Top(), y, m_canvas.Height());
}

// Only boxes that are loaded: SelectedIndexes is kept when the page changes.
std::set<int> DesignSurface::gathered() const
{
    std::set<int> fields;
    for (qint16 k = 0; k < SelectedCount; ++k) {
        if (const int index = (*SelectedIndexes)[size_t(k)]; index < Text1.Count())
            fields.insert(index);
    }
    return fields;
}

void DesignSurface::gatherByKey(int index)
{
    if (!gathered().contains(index))
        gather(index);
}

// The focus goes there too, so that the next press reaches the one behind it.
void DesignSurface::gatherWithNeighbour(int index, int neighbour)
{
    gatherByKey(index);
    if (neighbour < 1 || neighbour >= Text1.Count())
        return;
    gatherByKey(neighbour);
    Text1(neighbour)->setFocus(Qt::OtherFocusReason);
}

// The box in use comes first: the others follow it when they are aligned.
void DesignSurface::gatherAll(int index)
{
    gatherByKey(index);
    for (int other = 1; other < Text1.Count(); ++other)
        gatherByKey(other);
}

// Leaves what an alignment leaves: nothing gathered. Before any box was gathered an alignment must fail, so that
// nothing changes then.
void DesignSurface::releaseGathered()
{
    SelectedCount = 0;
    if (SelectedIndexes)
        SelectedIndexes->assign(1, 0);
    for (int index = 1; index < Text1.Count(); ++index)
        describe(index);
}

void DesignSurface::describe(int index)
{
    if (index < Text1.Count())
        Text1(index)->setAccessibleDescription(gathered().contains(index) ? u"Chosen"_s : QString());
}
