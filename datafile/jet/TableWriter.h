// Puts the tables of another file into an open new data file.
//
// A table and a column that the program knows are found by their names, without regard to case, and get the values in
// their own types; the rest is copied with the types that it has.
#pragma once

#include "datafile/Tables.h"
#include "datafile/jet/FrameReader.h"
#include "platform/data/engine/Database.h"

#include <QStringList>

#include <functional>

namespace jet {

class TableWriter
{
public:
    // A file with the tables of schema.sql and the rows of seed.sql, in a transaction.
    explicit TableWriter(data::Database &file);

    // Reads the rows of this table and writes them; `told` hears of each. Rows that the file had in a known table go.
    // Raises RuntimeError 57 and the store's errors, with a text that names table, row and column.
    void write(const TableHead &table, FrameReader &rows, const std::function<void()> &told);

    // Behind the last table: what is missing or was added, a line each.
    QStringList notes() const;

private:
    struct Target
    {
        QString table;
        QList<data::ColumnType> types; // as the columns of the source
        QByteArray insert;             // a statement with a parameter for each of them
        qsizetype counter = -1;        // the column that gives out numbers
        bool isKey = false;            // and the rows are found by it
    };
    Target targetOf(const TableHead &table);
    Target knownTarget(const TableHead &table, const datafile::StoredTable &known);
    Target newTarget(const TableHead &table);
    QList<runtime::Value> valuesOf(const TableHead &table, const Target &target, const QList<CellBytes> &cells,
                                   quint32 row);
    void insertRow(data::Statement &insert, const QList<runtime::Value> &values, const QString &place) const;
    void noteHalf(const QString &place);
    void keepCounter(const TableHead &table, const Target &target);

    data::Database &m_file;
    QList<datafile::StoredTable> m_known; // that no table has been found for yet
    QStringList m_notes;
    qint64 m_halves = 0; // values that end or begin within a character
    QString m_firstHalf;
};

} // namespace jet
