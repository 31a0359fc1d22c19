// The fields of the selected page of the record window: a label and a box for each, where the designer put them.
//
// Elements 0 of both arrays are templates and never shown. A box is tied to its column by its tool tip alone, the
// field's name; one with an empty tool tip is passed over. A step that fails while a page is shown or left is passed
// over as well, and the next one runs.
#pragma once

#include "dynamicforms/FieldRows.h"
#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/runtime/RuntimeError.h"

#include <optional>

// What the user sees in a box.
struct BoxValue
{
    QString name; // of the column
    QString text;
};

class RecordPage
{
public:
    // The boxes lie at their twips in the frame. frame and rows are the window's and outlive the page.
    RecordPage(desktop::Frame &frame, FieldRows &rows);

    desktop::ControlArray<desktop::Label> Label1;
    desktop::ControlArray<desktop::TextBox> Text1;

    // Locks or unlocks every box, the template too, from which boxes that are loaded later take it over.
    void setLocked(bool locked);
    // Unloads the fields of the last page and loads those of this one, empty.
    void showFields(const QString &caption);
    // A Null, a missing column, row or table leaves a box as it is.
    void fillFromStore(const QString &caption, qint16 recordId);
    // When the store or memory failed while the boxes were last filled from the store, raises that failure again. Empty
    // boxes must not be saved over values that could not be read.
    void requireWhole() const;
    void fillFromRows(const QString &caption);
    // Takes the texts into the rows of the page. The first row of all is left out.
    void keepTexts(const QString &caption);
    QList<BoxValue> values() const;
    // On a page without boxes the focus stays where it is.
    void focusFirstBox() const;

private:
    void unloadFields();
    void showField(const FieldRow &row);
    template <class Visit> void forEachBox(Visit visit) const;

    FieldRows &m_rows;
    std::optional<runtime::RuntimeError> m_readFailure;
};
