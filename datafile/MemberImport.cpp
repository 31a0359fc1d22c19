#include "datafile/MemberImport.h"

#include "datafile/Check.h"
#include "datafile/Groups.h"
#include "datafile/Inserter.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

constexpr qint64 highestMember = std::numeric_limits<qint16>::max(); // the windows keep the number in 16 bits

QByteArray contentOfSpreadsheet(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw runtime::RuntimeError(runtime::FileNotFound, u"'%1' cannot be read: %2."_s.arg(path, file.errorString()));
    return file.readAll();
}

MemberContext contextOf(const data::Database &file, const CsvForm &form)
{
    MemberContext context;
    data::Statement types = file.prepare("SELECT MemberTypeId, MemberType FROM MemberType");
    while (types.step())
        context.types.insert(QString::fromUtf8(types.text(1)).toLower(), qint32(types.integer(0)));
    context.hasDecimalComma = form.separator == u';';
    return context;
}

// Rows without a number get those behind the highest one, of the file and of all rows. Numbers that are taken, by the
// file or by an earlier row, are faults, and so are members for whom no number is left.
void giveNumbers(const data::Database &file, QList<MemberRow> &rows, QList<CellFault> &faults)
{
    QSet<qint32> taken;
    data::Statement sequence =
        file.prepare("SELECT coalesce(max(seq), 0) FROM sqlite_sequence WHERE name = 'MemberInformation'");
    sequence.step();
    qint64 highest = sequence.integer(0);
    data::Statement ids = file.prepare("SELECT MemberId FROM MemberInformation");
    while (ids.step()) {
        taken.insert(qint32(ids.integer(0)));
        highest = qMax(highest, ids.integer(0));
    }
    for (const MemberRow &row : std::as_const(rows))
        highest = qMax<qint64>(highest, row.id.value_or(0));
    for (MemberRow &row : rows) {
        if (row.row == 0)
            continue; // told already
        if (row.id && taken.contains(*row.id))
            faults.append(
                {row.row, u"MemberId"_s, QString::number(*row.id),
                 u"another member has this number; without the column (--map \"MemberId=-\") new ones are given"_s});
        else if (row.id)
            taken.insert(*row.id);
        else if (++highest > highestMember)
            faults.append({row.row, u"MemberId"_s, {}, u"no number up to %1 is left"_s.arg(highestMember)});
        else
            row.id = qint32(highest);
    }
}

QByteArray insertStatement(const char *table, const QByteArrayList &columns)
{
    return QByteArray("INSERT INTO ") + table + " (" + columns.join(", ") + ") VALUES (" +
           QByteArrayList(columns.size(), "?").join(", ") + ')';
}

runtime::Value valueOf(const std::optional<QString> &text)
{
    return text ? runtime::Value(*text) : runtime::Value();
}

class MemberWriter
{
public:
    explicit MemberWriter(data::Database &file)
        : m_file(file), m_member(file.prepare(insertStatement("MemberInformation", columnsOfMember()))),
          m_employer(file.prepare(insertStatement("EmployerInformation", columnsOfEmployer()))),
          m_interest(file, "INSERT INTO MemberInterest (MemberId, Interest, InterestDescription) VALUES (?, ?, ?)"),
          m_contribution(file, "INSERT INTO Contributions (MemberId, ContributionDate, ContributionAmount, "
                               "ContributionNotes) VALUES (?, ?, ?, ?)")
    {
    }

    void write(const MemberRow &row)
    {
        m_member.bind(1, row.id ? runtime::Value(*row.id) : runtime::Value());
        m_member.bind(2, row.typeId ? runtime::Value(*row.typeId) : runtime::Value());
        m_member.bind(3, runtime::Value(row.isActive));
        for (std::size_t i = 0; i < row.member.size(); ++i)
            m_member.bind(4 + int(i), valueOf(row.member[i]));
        m_member.step();
        m_member.reset();
        const qint64 id = m_file.lastInsertRowId();
        m_employer.bind(1, id);
        for (std::size_t i = 0; i < row.employer.size(); ++i)
            m_employer.bind(2 + int(i), runtime::Value(row.employer[i]));
        m_employer.step();
        m_employer.reset();
        for (const MemberInterestText &interest : row.interests)
            m_interest(id, runtime::Value(interest.name), runtime::Value(interest.description));
        if (row.hasContribution)
            m_contribution(id, row.contributionDate ? runtime::Value(*row.contributionDate) : runtime::Value(),
                           runtime::Value(*row.contributionAmount), valueOf(row.contributionNotes));
    }

private:
    static QByteArrayList columnsOfMember()
    {
        QByteArrayList columns{"MemberId", "MemberTypeId", "Active"};
        for (const char *column : memberTextColumns())
            columns << column;
        return columns;
    }
    static QByteArrayList columnsOfEmployer()
    {
        QByteArrayList columns{"MemberId"};
        for (const char *column : employerTextColumns())
            columns << column;
        return columns;
    }

    data::Database &m_file;
    data::Statement m_member;
    data::Statement m_employer;
    Inserter m_interest;
    Inserter m_contribution;
};

} // namespace

Imported importMembers(const QString &path, const QString &csv, const ImportOptions &options, Progress &progress)
{
    const QStringList faultsOfFile = faultsOfLayout(path);
    if (!faultsOfFile.isEmpty())
        throw runtime::RuntimeError(runtime::DeviceError,
                                    u"'%1' cannot serve as the data file: %2"_s.arg(path, faultsOfFile.first()));
    const CsvFile sheet = readCsv(contentOfSpreadsheet(csv), options.form);
    if (sheet.rows.isEmpty())
        throw runtime::RuntimeError(runtime::TypeMismatch,
                                    u"row 1: a header with the names of the columns is missing"_s);
    const QList<MemberField> fields = matchedHeader(sheet.rows.first(), options.maps);

    data::Database file;
    file.open(path);
    stopOnSignals(file);
    // From the first look to the last row nobody else adds a member. Without a commit all is undone at the end.
    file.execute(options.isDryRun ? "BEGIN" : "BEGIN IMMEDIATE");
    const MemberContext context = contextOf(file, sheet.form);
    Imported imported;
    QList<MemberRow> rows;
    for (qsizetype i = 1; i < sheet.rows.size(); ++i) {
        progress.at(i, sheet.rows.size() * 2);
        const CsvRow &cells = sheet.rows.at(i);
        if (std::all_of(cells.begin(), cells.end(), [](const CsvCell &cell) { return cell.isNull(); }))
            continue; // spreadsheets leave empty rows behind the last one
        rows << readMemberRow(cells, i + 1, fields, sheet.rows.first(), context, imported.faults);
    }
    giveNumbers(file, rows, imported.faults);
    std::stable_sort(imported.faults.begin(), imported.faults.end(),
                     [](const CellFault &a, const CellFault &b) { return a.row < b.row; });
    imported.members = rows.size();
    if (!imported.faults.isEmpty() || options.isDryRun)
        return imported;
    MemberWriter writer(file);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        progress.at(rows.size() + i, rows.size() * 2);
        writer.write(rows.at(i));
    }
    addMissingGroups(file);
    file.execute("COMMIT");
    return imported;
}

} // namespace datafile
