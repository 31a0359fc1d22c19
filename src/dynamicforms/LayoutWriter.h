// Writes the designer's pages and fields in the place of the stored ones.
//
// Nothing is updated: the constructor deletes all stored rows of the designer's, and every page gets a new key. After a
// failure the rows written so far are stored and the deleted ones are gone. One such failure is a caption with an
// apostrophe, which breaks the statement that looks for the page's key. The errors of the data objects go to the
// caller.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"
#include "platform/desktop/LongWork.h"

#include <QString>

#include <optional>

// Places and width in twips: a number, or a text that the store converts.
struct LayoutField
{
    QString name;
    QString description;
    std::optional<qint16> displayOrder; // without one the column keeps its default
    runtime::Value fieldLeft;
    runtime::Value fieldTop;
    runtime::Value labelLeft;
    runtime::Value labelTop;
    runtime::Value fieldWidth;
};

class LayoutWriter
{
public:
    // While it lives, so many pages are shown as being saved.
    explicit LayoutWriter(int pages);
    // The fields that follow go on this page; when the caption stands twice, on the first page that bears it.
    void addPage(const QString &caption, const QString &description);
    void addField(const LayoutField &field);
    void close() { m_connection.Close(); }

private:
    desktop::LongWork m_work;
    int m_page = 0; // the last one that was added, from 1
    data::Connection m_connection;
    data::Recordset m_pages;
    data::Recordset m_fields;
    runtime::Value m_tabId;
};
