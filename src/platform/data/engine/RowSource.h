// A translated SELECT over an open file: what columns it has, how its rows are read, counted, changed and found again.
//
// The constructor prepares the statement, which checks its text; it runs when rows are asked for. Where the rows can be
// updated, the value of a binary column is not read with them, nor is its length: readBinary() and binarySize() read
// them. So rows whose other columns an index holds are read from the index alone.
#pragma once

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Database.h"
#include "platform/data/engine/RowStore.h"
#include "platform/data/sql/Translation.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace data {

struct SourceColumn
{
    QString name;
    ColumnType type = ColumnType::Unknown;
    QString origin;       // its name in the table; empty for an expression
    bool isApart = false; // a binary column: rows are read with a Null in its place
};

class RowSource
{
public:
    RowSource(std::weak_ptr<Database> file, std::shared_ptr<const sql::Translation> translation);

    // Finalizes the statement.
    void close() { m_statement.finalize(); }

    const std::vector<SourceColumn> &columns()
    {
        if (!m_described)
            describeColumns();
        return m_columns;
    }
    // The column of a name, without regard to case; -1 when there is none. Until the rows are read, the call may find
    // that another connection has added columns; they come behind the others.
    int columnOf(QStringView name)
    {
        if (m_nextGuess < int(m_columns.size()) && QStringView(m_columns[size_t(m_nextGuess)].name) == name)
            return m_nextGuess++;
        return searchedColumnOf(name);
    }
    // Rows can be added, changed and deleted: they are rows of one table, and no column is computed.
    bool isUpdatable();

    // Runs the statement to its end; afterwards nothing of it stays open.
    RowStore readAll();
    // Counts the rows without reading them.
    qint32 count();
    // Reads the row of the table anew behind the rows of the store or in the place of one; false when it is gone.
    bool readRow(qint64 rowId, RowStore &rows, std::optional<qsizetype> inPlaceOf = {});
    // Nothing for a Null.
    std::optional<QByteArray> readBinary(qint64 rowId, int column);
    std::optional<qint64> binarySize(qint64 rowId, int column);

    // The values of the columns to write; those without one keep what they have, or take their default.
    using Changes = std::vector<std::optional<runtime::Value>>;
    struct Added
    {
        qint64 rowId;
        // False where a trigger of the table ignored the insertion; `rowId` is then the row that has its key.
        bool isNew;
    };
    Added insertRow(const Changes &changes);
    // Both raise error 3021 when the row is gone. An update of the key column gives the row another identity, which is
    // returned.
    qint64 updateRow(qint64 rowId, const Changes &changes);
    void deleteRow(qint64 rowId);

private:
    Database &database() const;
    Statement &prepared();
    void describeColumns();
    void describe(const Statement &statement);
    int searchedColumnOf(QStringView name);
    int describedColumnOf(QStringView name);
    void requireChange() const;
    // The statement with a Null in the place of each binary column.
    QByteArray readingSql();
    QByteArray listOfOrigins() const;

    std::weak_ptr<Database> m_database;
    std::shared_ptr<const sql::Translation> m_translation;
    QByteArray m_sql; // the translation's, for this file
    Statement m_statement;
    std::vector<SourceColumn> m_columns;
    bool m_described = false;
    bool m_hasBinary = false;
    bool m_isUpdatable = false;
    int m_nextGuess = 0; // where to look first: handlers ask for the columns in the same order in each row
};

// Runs an INSERT, UPDATE or DELETE.
void runAction(Database &database, const sql::Translation &translation);

} // namespace data
