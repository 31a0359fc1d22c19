// The boxes of a member's or an employer's fields in one window, under one another: they show a row and give their
// texts to statements.
#pragma once

#include "dossier/MemberFields.h"
#include "parts/FieldGrid.h"
#include "platform/data/Recordset.h"

#include <variant>
#include <vector>

class MemberBoxes
{
public:
    enum class Window { Dossier, Entry };
    // The parent owns the boxes.
    MemberBoxes(QWidget *parent, std::span<const MemberField> fields, Window window);

    void addButtons(std::initializer_list<desktop::CommandButton *> buttons) { m_grid.addButtons(buttons); }
    void setFocusToFirst();

    // Gives each box the text of its column, in the order of `fields`. A Null leaves its box as it was.
    void show(data::Recordset &row) const;
    // What stands in the box of that column. Error 35600 for a column that has no box here.
    QString text(QStringView column) const;
    // The statement with the box's text in the place of each "{column}", and the member's key for "{MemberId}". Texts
    // go in as they were typed: one with an apostrophe breaks the statement.
    QString filledIn(QStringView statement, const QString &memberId = {}) const;

private:
    using Control = std::variant<desktop::TextBox *, desktop::ListBox *>;
    struct Box
    {
        QStringView column;
        Control control;
    };

    Control addControl(const MemberField &field, Window window);

    FieldGrid m_grid;
    std::vector<Box> m_boxes;
};
