// Rows of a spreadsheet as members: which column is what, and what each cell says.
#pragma once

#include "datafile/Csv.h"
#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace datafile {

// How many texts MemberInformation and EmployerInformation have.
inline constexpr int memberTexts = 11;
inline constexpr int employerTexts = 10;

// The names by which --map and a list of faults know the columns. Columns of interests may occur more than once.
enum class MemberField {
    MemberId,
    MemberTypeId,
    MemberType, // by name
    Active,
    FirstMemberText, // the texts of MemberInformation, in the order of memberTextColumns()
    FirstEmployerText = FirstMemberText + memberTexts, // those of EmployerInformation
    Interest = FirstEmployerText + employerTexts,      // several are separated by ";"
    InterestDescription,
    ContributionDate,
    ContributionAmount,
    ContributionNotes,
    Ignored, // by --map COLUMN=-
};

QStringList fieldNames();
// The columns of MemberInformation and EmployerInformation that are texts.
const std::array<const char *, memberTexts> &memberTextColumns();
const std::array<const char *, employerTexts> &employerTextColumns();

struct MemberInterestText
{
    QString name;
    QString description;
};

struct MemberRow
{
    qsizetype row = 0; // in the spreadsheet, where the header is row 1
    std::optional<qint32> id;
    std::optional<qint32> typeId;
    bool isActive = true;
    std::array<std::optional<QString>, memberTexts> member;
    std::array<QString, employerTexts> employer;
    QList<MemberInterestText> interests;
    bool hasContribution = false;
    std::optional<runtime::Date> contributionDate;
    std::optional<runtime::Currency> contributionAmount;
    std::optional<QString> contributionNotes;
};

struct CellFault
{
    qsizetype row = 0;
    QString column;
    QString value;
    QString reason;
};

// What the data file knows that a row has to fit to.
struct MemberContext
{
    QHash<QString, qint32> types; // by name in lower case
    bool hasDecimalComma = false; // amounts of a spreadsheet that separates its columns by ";"
};

// Which column of the header is what. A header is known by its name, by common spellings of it, or by `maps`
// ("COLUMN=NAME"). Raises 13 for a column that is none of them, for two that are the same, for a map that names no
// column, and for a spreadsheet without a last name.
QList<MemberField> matchedHeader(const CsvRow &header, const QStringList &maps);

// One row; its faults are added to the list.
MemberRow readMemberRow(const CsvRow &cells, qsizetype row, const QList<MemberField> &fields, const CsvRow &header,
                        const MemberContext &context, QList<CellFault> &faults);

} // namespace datafile
