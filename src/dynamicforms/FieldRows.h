// The fields of all pages of a form, as both the designer and the record window keep them while they are open.
//
// A field belongs to the page whose caption equals its RowTabNam, compared exactly, and to no other key. Places are
// texts and become numbers only when a control is placed. The rows end with an empty one: after n fields the upper
// bound is n. Error 9 outside of the bounds, and for the bound itself while there has never been a row.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/desktop/Control.h"
#include "platform/runtime/Conversion.h"

#include <vector>

struct FieldRow
{
    QString RowTabNam;
    QString RowTabDescription;
    QString RowFieldName;
    QString RowFieldDescription;
    qint16 RowFieldDisplayOrder = 0;
    QString RowLabelTop; // the five below are twips
    QString RowLabelLeft;
    QString RowFieldTop;
    QString RowFieldLeft;
    QString RowFieldWidth;
    QString RowValue; // what the record window holds for the field while a person is edited
};

class FieldRows
{
public:
    // One more than the position of the next row; 0 until the load begins. The designer's grid counts its columns with
    // the same number and leaves it one beyond the last of them: 52 for the 51 columns of the usual size. The next
    // field is then stored at position 51, counted from 0, and the rows behind it are cut off.
    qint16 RowCounter = 0;

    int upperBound() const;
    FieldRow &operator[](int position);
    const FieldRow &operator[](int position) const;
    // Makes RowCounter the upper bound; rows below it stay.
    void resize();
    // Makes room for one more row, at RowCounter - 1, and gives it to be filled. The caller then calls
    // countUp, or the next call gives the same row.
    FieldRow &next();
    // Error 6 beyond 32,767.
    void countUp();

private:
    int checked(int position) const;

    std::vector<FieldRow> m_rows;
};

// Take over the texts of a row of FieldInfo joined with its TabInfo, column by column. Error 94 for a Null: the columns
// before it have been taken over.
void takeNames(FieldRow &row, data::Recordset &fields);
void takePlaces(FieldRow &row, data::Recordset &fields);

// Gives label and box of a field their places. Each assignment goes through step: the windows differ in what they do
// when a text is no number (error 13).
template <class Step>
void placeField(desktop::Control &label, desktop::Control &box, const FieldRow &row, const Step &step)
{
    const auto single = [](const QString &text) { return double(runtime::toSingle(runtime::Value(text))); };
    step([&] { label.setLeft(single(row.RowLabelLeft)); });
    step([&] { label.setTop(single(row.RowLabelTop)); });
    step([&] { label.setWidth(single(row.RowFieldWidth)); });
    step([&] { box.setLeft(single(row.RowFieldLeft)); });
    step([&] { box.setTop(single(row.RowFieldTop)); });
    step([&] { box.setWidth(single(row.RowFieldWidth)); });
}
