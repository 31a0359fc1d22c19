// The canvas of the designer: the labels and boxes of the selected page, which the mouse and the keys move and a
// toolbar aligns.
//
// It shows the rows of the page and takes their places back before the page is left. A control knows its row only by
// its tool tip, which is the field's name; so equal names share their places. All places are twips. Elements 0 of the
// three arrays are templates and never shown.
#pragma once

#include "dynamicforms/CanvasControls.h"
#include "dynamicforms/FieldRows.h"
#include "platform/desktop/ControlArray.h"
#include "platform/desktop/TabStrip.h"

#include <QPoint>

#include <functional>
#include <optional>
#include <set>
#include <vector>

// The nearest grid line, upwards from the middle.
float snappedToGrid(float x, qint16 step);

// Moves a control by x and y twips. Its place is kept in single precision.
void moveBy(desktop::Control &control, float x, float y);

class DesignSurface
{
public:
    // rows, tabs and canvas are the window's and outlive the surface.
    DesignSurface(desktop::PictureBox &canvas, desktop::TabStrip &tabs, FieldRows &rows);

    desktop::ControlArray<CanvasLabel> Label1;
    desktop::ControlArray<CanvasTextBox> Text1;
    desktop::ControlArray<desktop::TextBox> Text2; // hidden: each holds the display order of its field

    bool ObjectsLocked = false;
    // Called when a box gets the focus or is dragged: the window then edits its width.
    std::function<void(int index)> onBoxChosen;
    // How far an arrow key moves a field, in twips.
    std::function<double()> keyStep;

    // Sets a point at each crossing of the grid. The rows' counter counts the columns.
    void drawGrid(qint16 step);
    // Rebuilds the controls of the selected page. Error 13 for a row without a complete place: its controls stay loaded
    // and invisible, and the rows behind it are not shown.
    void showFields();
    // Takes the places and the orders of the selected page into the rows. The first row of all is left out. Error 9
    // while there has never been a row.
    void keepFields();
    // Puts a new field under the last one of the selected page. Error 9 when the counter is 0, or when the page has
    // more controls than the counter says.
    void addField(const QString &name, const QString &description);

    // Gives the boxes that Shift-clicks or keys gathered the top, left or width of the one that was gathered first.
    // Error 9 before any was gathered, 340 for one that is gone. None is gathered afterwards.
    enum class Alignment { Top, Left, Width };
    void align(Alignment alignment);
    // Label and box together.
    void setWidth(int index, double width) const;

private:
    void load(int index);
    void keepOrders();
    // The rows of the selected page, from the second row of all on.
    template <class Keep> void forEachRowOfPage(Keep keep);
    void moveBox(int index, int button, int shift, float x, float y);
    void moveLabel(int index, int button, float x, float y);
    void clickBox(int index, int shift);
    void gather(int index);

    // What the keys do in a box of the canvas: DesignSurfaceKeys.cpp.
    void pressKey(int index, QKeyEvent &event);
    void moveByKey(int index, QPoint direction, Qt::KeyboardModifiers held);
    void gatherByKey(int index);
    void gatherWithNeighbour(int index, int neighbour);
    void gatherAll(int index);
    void releaseGathered();
    std::set<int> gathered() const;
    std::vector<desktop::Control *> movedByKey(int index, bool labelsAlone) const;
    bool staysOnCanvas(const desktop::Control &control, double x, double y) const;
    // Tells screen readers whether the box is gathered; nothing on the canvas shows it.
    void describe(int index);

    desktop::PictureBox &m_canvas;
    desktop::TabStrip &m_tabs;
    FieldRows &m_rows;
    std::optional<std::vector<qint16>> SelectedIndexes; // in the order of the clicks, and one unused element
    qint16 SelectedCount = 0;
};
