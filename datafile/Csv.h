// Comma-separated values, RFC 4180: written with "," and CR LF in UTF-8, read with "," ";" or tab in the encodings that
// spreadsheets write.
//
// Null is an empty cell, the empty text a cell of two quotes, so that both come back. A text that a spreadsheet would
// take for a formula gets an apostrophe in front, which reading takes off again.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace datafile {

struct CsvCell
{
    QString text;
    bool isQuoted = false;

    bool isNull() const { return text.isEmpty() && !isQuoted; }
};
using CsvRow = QList<CsvCell>;

// A text as a cell that a spreadsheet shows as it is, and the text of such a cell. A text begins like a formula with
// one of the signs = + - @ or with a tab or a carriage return.
QString withoutFormula(const QString &text);
QString withFormula(const QString &cell);

// A row with its line end; no text is Null.
QByteArray csvLine(const QList<std::optional<QString>> &cells);

struct CsvForm
{
    QString encoding; // "utf-8", "utf-16" or "windows-1252"; empty: found by the bytes
    QChar separator;  // null: the one of "," ";" and tab that the first row has most of
};

struct CsvFile
{
    QList<CsvRow> rows; // the first one is the header; blank lines at the end are left out
    CsvForm form;
};

// Raises 13, naming the row, for bytes that are no text in the encoding and for quotes that do not match.
CsvFile readCsv(const QByteArray &bytes, const CsvForm &form);

} // namespace datafile
