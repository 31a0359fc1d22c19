// Any bytes as a file of comma-separated values: read, or refused with error 13; what was read or made up is written
// and read back to the same.
#include "datafile/Csv.h"
#include "platform/runtime/RuntimeError.h"
#include "proof/fuzz/Fuzz.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void comesBack(const QList<datafile::CsvRow> &rows)
{
    QByteArray written = datafile::csvLine({u"Header"_s}); // a file's first cell is never a value
    for (const datafile::CsvRow &row : rows) {
        QList<std::optional<QString>> cells;
        for (const datafile::CsvCell &cell : row)
            cells << (cell.isNull() ? std::nullopt : std::optional(cell.text));
        written += datafile::csvLine(cells);
    }
    const QList<datafile::CsvRow> read = datafile::readCsv(written, {u"utf-8"_s, u','}).rows.sliced(1);
    if (read.size() != rows.size())
        found(u"%1 rows became %2"_s.arg(rows.size()).arg(read.size()));
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (read[row].size() != rows[row].size())
            found(u"a row of %1 cells became one of %2"_s.arg(rows[row].size()).arg(read[row].size()));
        for (qsizetype cell = 0; cell < rows[row].size(); ++cell) {
            if (read[row][cell].text != rows[row][cell].text || read[row][cell].isNull() != rows[row][cell].isNull())
                found(u"\"%1\" became \"%2\""_s.arg(rows[row][cell].text, read[row][cell].text));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider input(data, size);
    const QStringList encodings{{}, u"utf-8"_s, u"utf-16"_s, u"windows-1252"_s};
    const datafile::CsvForm form{encodings[input.ConsumeIntegralInRange(0, 3)],
                                 input.PickValueInArray({u'\0', u',', u';', u'\t'})};
    const QString text = takenText(input, 12);
    if (datafile::withFormula(datafile::withoutFormula(text)) != text)
        found(u"as a formula: "_s + text);
    QList<datafile::CsvRow> rows;
    try {
        rows = datafile::readCsv(QByteArray::fromStdString(input.ConsumeRemainingBytesAsString()), form).rows;
    } catch (const runtime::RuntimeError &error) {
        if (error.number() != runtime::TypeMismatch)
            found(QString::fromUtf8(error.what()));
        return 0;
    }
    comesBack(rows);
    return 0;
}
