#include "datafile/Export.h"

#include "datafile/Check.h"
#include "datafile/Copies.h"
#include "datafile/Csv.h"
#include "datafile/Tables.h"
#include "datafile/WholeResult.h"
#include "platform/runtime/Date.h"
#include "platform/runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

// A column that holds files, with what the index tells of each.
struct FileColumn
{
    const char *table;
    const char *column;
    const char *folder;
    // Owner, name, version, date and description, with the row's number before them.
    const char *rows;
};

constexpr FileColumn fileColumns[] = {
    {"Attachments", "Attachments", "Attachments",
     "SELECT AttachmentsId, CASE WHEN MemberId IS NOT NULL THEN 'member ' || MemberId "
     "WHEN PersonalInformationId IS NOT NULL THEN 'person ' || PersonalInformationId ELSE 'nobody' END, "
     "AttachmentsName, AttachmentVersion, AttachmentsDate, AttachmentDescription FROM Attachments ORDER BY 1"},
    {"Resources", "Document", "Documents",
     "SELECT DocumentId, coalesce('node ' || ObjectIndex || (SELECT ' ' || ObjectText FROM ObjectTbl "
     "WHERE ObjectTbl.ObjectIndex = Resources.ObjectIndex LIMIT 1), 'node ' || ObjectIndex, 'no node'), "
     "DocumentName, DocuemntVersion, DocumentDate, NULL FROM Resources ORDER BY 1"},
};

[[noreturn]] void failToWriteFile(const QFile &file)
{
    if (file.error() == QFileDevice::ResourceError)
        throw runtime::RuntimeError(runtime::DiskFull);
    throw runtime::RuntimeError(runtime::PathFileAccess, file.errorString());
}

class NewFile
{
public:
    explicit NewFile(const QString &path) : m_file(path)
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            failToWriteFile(m_file);
    }
    void write(const QByteArray &bytes)
    {
        if (m_file.write(bytes) != bytes.size())
            failToWriteFile(m_file);
    }
    void finish()
    {
        if (!m_file.flush())
            failToWriteFile(m_file);
    }

private:
    QFile m_file;
};

// Names in a folder: each is one that common file systems allow, and no two differ by case alone.
class NamesInFolder
{
public:
    QString freeName(const QString &wanted, const QString &suffix)
    {
        constexpr qsizetype mostCharacters = 60; // of up to four bytes each; file systems allow 255 bytes
        QString stem;
        for (const QChar sign : wanted.left(mostCharacters))
            stem += sign.unicode() < u' ' || u"\\/:*?\"<>|"_s.contains(sign) ? u'_' : sign;
        while (stem.endsWith(u' ') || stem.endsWith(u'.'))
            stem.chop(1);
        if (stem.isEmpty() || stem.startsWith(u'.'))
            stem.prepend(u'_');
        QString name = stem + suffix;
        for (int i = 2; m_taken.contains(name.toLower()); ++i)
            name = stem + u" (%1)"_s.arg(i) + suffix;
        m_taken.insert(name.toLower());
        return name;
    }

private:
    QSet<QString> m_taken;
};

QString dateText(const QString &stored)
{
    const std::optional<runtime::Date> date = runtime::Date::fromIsoText(stored);
    if (!date)
        return stored;
    return date->hasTime() ? date->toIsoText() : date->day().toString(Qt::ISODate);
}

std::optional<QString> cellOf(const data::Statement &row, int column, data::ColumnType type)
{
    using Storage = data::Statement::Storage;
    const data::Statement::Content content = row.content(column);
    if (content.storage == Storage::Null)
        return std::nullopt;
    const bool isNumber = content.storage == Storage::Integer || content.storage == Storage::Real;
    const QString text = QString::fromUtf8(row.text(column));
    if (type == data::ColumnType::Boolean && content.storage == Storage::Integer)
        return content.integer ? u"Yes"_s : u"No"_s;
    if (type == data::ColumnType::Currency) {
        if (const auto amount = data::storedAmount(row.text(column)))
            return amount->toPlainText();
    }
    if (content.storage == Storage::Real)
        return QString::number(content.real, 'g', QLocale::FloatingPointShortest);
    if (type == data::ColumnType::Date && !isNumber)
        return withoutFormula(dateText(text));
    return isNumber ? text : withoutFormula(text);
}

class Exporter
{
public:
    Exporter(data::Database &file, const QString &folder, Progress &progress)
        : m_file(file), m_folder(folder), m_progress(progress)
    {
    }

    Exported run()
    {
        if (!QDir().mkdir(m_folder.path()))
            throw runtime::RuntimeError(runtime::PathFileAccess);
        const QList<StoredTable> tables = tablesOf(m_file);
        for (const StoredTable &table : tables)
            m_all += countOf(table.name);
        for (const FileColumn &column : fileColumns)
            m_all += countOf(QString::fromLatin1(column.table));
        const QString index = m_names.freeName(u"Files"_s, u".csv"_s);
        for (const FileColumn &column : fileColumns)
            m_names.freeName(QString::fromLatin1(column.folder), {});
        for (const StoredTable &table : tables)
            exportTable(table);
        exportFiles(index);
        return m_exported;
    }

private:
    qint64 countOf(const QString &table) const
    {
        data::Statement count = m_file.prepare(u"SELECT count(*) FROM %1"_s.arg(quoted(table)).toUtf8());
        count.step();
        return count.integer(0);
    }

    void exportTable(const StoredTable &table)
    {
        QStringList names;
        QList<std::optional<QString>> header;
        QList<data::ColumnType> types;
        for (const StoredColumn &column : table.columns) {
            if (column.type == data::ColumnType::Binary)
                continue;
            names << quoted(column.name);
            header << withoutFormula(column.name);
            types << column.type;
        }
        NewFile csv(m_folder.filePath(m_names.freeName(table.name, u".csv"_s)));
        csv.write(csvLine(header));
        ++m_exported.tables;
        if (names.isEmpty())
            return csv.finish();
        const QString order = table.hasRowIds ? u" ORDER BY rowid"_s : QString();
        data::Statement rows =
            m_file.prepare((u"SELECT %1 FROM %2"_s.arg(names.join(u", "_s), quoted(table.name)) + order).toUtf8());
        while (rows.step()) {
            QList<std::optional<QString>> cells;
            for (int i = 0; i < types.size(); ++i)
                cells << cellOf(rows, i, types.at(i));
            csv.write(csvLine(cells));
            ++m_exported.rows;
            m_progress.at(++m_done, m_all);
        }
        csv.finish();
    }

    void exportFiles(const QString &indexName)
    {
        NewFile index(m_folder.filePath(indexName));
        index.write(csvLine({u"File"_s, u"Table"_s, u"Row"_s, u"Owner"_s, u"Name"_s, u"Version"_s, u"Date"_s,
                             u"Description"_s, u"Bytes"_s}));
        for (const FileColumn &column : fileColumns) {
            QHash<QString, QString> folders; // by owner
            QHash<QString, NamesInFolder> namesInFolders;
            NamesInFolder owners;
            data::Statement rows = m_file.prepare(column.rows);
            while (rows.step()) {
                m_progress.at(++m_done, m_all);
                const QString owner = QString::fromUtf8(rows.text(1));
                QString &folder = folders[owner];
                if (folder.isEmpty())
                    folder = QString::fromLatin1(column.folder) + u'/' + owners.freeName(owner, {});
                exportFile(column, rows, folder, namesInFolders[folder], index);
            }
        }
        index.finish();
    }

    // The row of one stored file, and its line of the index. A row without bytes has no file.
    void exportFile(const FileColumn &column, const data::Statement &row, const QString &folder, NamesInFolder &names,
                    NewFile &index)
    {
        std::optional<QByteArray> bytes = m_file.readBlob(column.table, column.column, row.integer(0));
        QString path;
        if (bytes) {
            if (bytes->endsWith('\0'))
                bytes->chop(1);
            const QFileInfo name(QString::fromUtf8(row.text(2)).replace(u'/', u'_'));
            const QString version =
                u" (version %1)"_s.arg(row.integer(3)) + (name.suffix().isEmpty() ? QString() : u'.' + name.suffix());
            path = folder + u'/' +
                   names.freeName(name.suffix().isEmpty() ? name.fileName() : name.completeBaseName(), version);
            if (!m_folder.mkpath(folder))
                throw runtime::RuntimeError(runtime::PathFileAccess);
            NewFile file(m_folder.filePath(path));
            file.write(*bytes);
            file.finish();
            ++m_exported.files;
        }
        index.write(csvLine({path, QString::fromLatin1(column.table), QString::number(row.integer(0)),
                             withoutFormula(QString::fromUtf8(row.text(1))), cellOf(row, 2, data::ColumnType::Text),
                             cellOf(row, 3, data::ColumnType::Long), cellOf(row, 4, data::ColumnType::Date),
                             cellOf(row, 5, data::ColumnType::Text),
                             bytes ? std::optional(QString::number(bytes->size())) : std::nullopt}));
    }

    data::Database &m_file;
    QDir m_folder;
    Progress &m_progress;
    NamesInFolder m_names;
    qint64 m_done = 0;
    qint64 m_all = 0;
    Exported m_exported;
};

} // namespace

Exported exportFile(const QString &file, const QString &folder, Progress &progress)
{
    WholeResult result(folder);
    // From a copy, so that a long export is of one moment and keeps nobody from writing.
    copyWholeFile(file, result.neighbour(), progress);
    const QStringList faults = faultsOfLayout(result.neighbour());
    if (!faults.isEmpty())
        throw runtime::RuntimeError(runtime::DeviceError,
                                    u"'%1' is no whole data file: %2"_s.arg(file, faults.first()));
    data::Database copy;
    copy.open(result.neighbour());
    stopOnSignals(copy);
    const Exported exported = Exporter(copy, result.unfinished(), progress).run();
    copy.close();
    QFile::setPermissions(result.unfinished(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner); // it has passwords
    result.finish();
    return exported;
}

} // namespace datafile
