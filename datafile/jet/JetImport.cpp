#include "datafile/jet/JetImport.h"

#include "datafile/Schema.h"
#include "datafile/WholeResult.h"
#include "datafile/jet/Header.h"
#include "datafile/jet/ReaderProcess.h"
#include "datafile/jet/TableWriter.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

void requireReadable(const QString &path, const QString &password)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw runtime::RuntimeError(runtime::FileNotFound, u"'%1' cannot be read: %2."_s.arg(path, file.errorString()));
    const QString refusal = refusalOf(file.read(pageSize), file.size(), password);
    if (!refusal.isEmpty())
        throw runtime::RuntimeError(runtime::DeviceError, u"'%1' %2."_s.arg(path, refusal));
}

// A name in a damaged file may hold anything, and what is told stays one line that no terminal takes for a command.
QString oneLine(QString text)
{
    for (QChar &sign : text)
        if (!sign.isPrint() && !sign.isSurrogate())
            sign = u'?';
    return text;
}

} // namespace

Imported importTables(FrameReader &tables, const QString &fresh, datafile::Progress &progress)
{
    Imported imported;
    datafile::createDataFile(fresh, [&](data::Database &file) {
        datafile::stopOnSignals(file);
        TableWriter writer(file);
        while (const auto table = tables.nextTable()) {
            writer.write(*table, tables, [&] { progress.at(++imported.rows, qint64(tables.expectedRows())); });
            ++imported.tables;
        }
        imported.notes = writer.notes();
    });
    for (const QString &name : tables.linkedTables())
        imported.notes << u"table [%1] lies in another file and was not imported"_s.arg(name);
    std::transform(imported.notes.begin(), imported.notes.end(), imported.notes.begin(), oneLine);
    return imported;
}

Imported importFile(const QString &old, const QString &fresh, const QString &password, const QString &tool,
                    datafile::Progress &progress)
{
    datafile::refuseTakenPath(fresh);
    requireReadable(old, password);
    try {
        ReaderProcess reader(tool, old);
        FrameReader tables([&reader](qsizetype size) { return reader.take(size); });
        return importTables(tables, fresh, progress);
    } catch (const runtime::RuntimeError &error) {
        if (error.number() != runtime::DeviceError)
            throw;
        throw runtime::RuntimeError(error.number(), u"'%1': %2"_s.arg(old, oneLine(error.description())));
    }
}

} // namespace jet
