#include "datafile/MemberRows.h"

#include "platform/runtime/RuntimeError.h"

#include <QRegularExpression>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

struct FieldName
{
    const char *name;
    // Further spellings, as normalised() makes them, separated by blanks.
    const char *spellings;
};

// In the order of MemberField.
constexpr std::array fieldTable{
    FieldName{"MemberId", "id memberno membernumber number no nr"},
    FieldName{"MemberTypeId", "typeid"},
    FieldName{"MemberType", "type category membership membershiptype kind"},
    FieldName{"Active", "isactive status current"},
    FieldName{"FirstName", "givenname forename first christianname"},
    FieldName{"MiddleName", "middle middleinitial initial initials secondname"},
    FieldName{"LastName", "surname familyname last"},
    FieldName{"AddressOne", "address address1 addressline1 street street1 streetaddress"},
    FieldName{"AddressTwo", "address2 addressline2 street2 apartment apt"},
    FieldName{"City", "town place"},
    FieldName{"State", "province region"},
    FieldName{"Zip", "zipcode postcode postalcode"},
    FieldName{"HomePhone", "phone telephone phonehome hometelephone homephonenumber"},
    FieldName{"CellPhone", "cell mobile mobilephone cellphonenumber phonemobile"},
    FieldName{"EMailAddress", "email mail emailaddress1"},
    FieldName{"EmployerName", "employer company organisation organization work"},
    FieldName{"EmployerAddressOne", "employeraddress employeraddress1 companyaddress workaddress"},
    FieldName{"EmployerAddressTwo", "employeraddress2 companyaddress2 workaddress2"},
    FieldName{"EmployerCity", "companycity workcity"},
    FieldName{"EmployerState", "companystate workstate"},
    FieldName{"EmployerZip", "companyzip workzip employerzipcode"},
    FieldName{"EmployerPhoneNumber", "employerphone companyphone workphone businessphone"},
    FieldName{"EmployerExtension", "extension ext workextension"},
    FieldName{"EmployerEMailAddress", "employeremail companyemail workemail"},
    FieldName{"EmployerWebAddress", "employerweb web website webaddress homepage"},
    FieldName{"Interest", "interests hobby hobbies"},
    FieldName{"InterestDescription", "interestnotes"},
    FieldName{"ContributionDate", "donationdate paid paidon datepaid"},
    FieldName{"ContributionAmount", "contribution amount donation dues fee"},
    FieldName{"ContributionNotes", "contributionnote donationnotes"},
};

constexpr std::array<const char *, memberTexts> memberColumns{"FirstName",  "MiddleName", "LastName",    "AddressOne",
                                                              "AddressTwo", "City",       "State",       "Zip",
                                                              "HomePhone",  "CellPhone",  "EMailAddress"};
constexpr std::array<const char *, employerTexts> employerColumns{
    "Name", "AddressOne",  "AddressTwo", "City",         "State",
    "Zip",  "PhoneNumber", "Extension",  "EMailAddress", "WebAddress"};
constexpr std::size_t lastName = 2; // in memberColumns
constexpr std::size_t memberState = 6;
constexpr std::size_t employerState = 4;
static_assert(fieldTable.size() == std::size_t(MemberField::Ignored));

// Four items of the windows' list of states have a blank behind them, and only an equal text selects its item.
QString asListedState(const QString &state)
{
    const bool hasBlank =
        state == u"Arizona"_s || state == u"California"_s || state == u"Colorado"_s || state == u"Virginia"_s;
    return hasBlank ? state + u' ' : state;
}

// Letters and digits alone, in lower case: "E-mail address" and "EMailAddress" are one name.
QString normalised(const QString &name)
{
    QString letters;
    for (const QChar sign : name)
        if (sign.isLetterOrNumber())
            letters += sign.toLower();
    return letters;
}

std::optional<MemberField> fieldOfName(const QString &name)
{
    QString wanted = normalised(name);
    const auto find = [&wanted]() -> std::optional<MemberField> {
        for (std::size_t i = 0; i < fieldTable.size(); ++i)
            if (wanted == normalised(QString::fromLatin1(fieldTable[i].name)) ||
                (!wanted.isEmpty() && QString::fromLatin1(fieldTable[i].spellings).split(u' ').contains(wanted)))
                return MemberField(i);
        return std::nullopt;
    };
    if (const auto field = find())
        return field;
    while (!wanted.isEmpty() && wanted.back().isDigit())
        wanted.chop(1);
    const auto field = find(); // "Interest 2"
    return field == MemberField::Interest ? field : std::nullopt;
}

[[noreturn]] void refuseHeader(const QString &reason)
{
    throw runtime::RuntimeError(runtime::TypeMismatch, u"row 1: "_s + reason);
}

QString nameOf(MemberField field)
{
    return field == MemberField::Ignored ? u"-"_s : QString::fromLatin1(fieldTable[std::size_t(field)].name);
}

QHash<QString, MemberField> readMaps(const QStringList &maps)
{
    QHash<QString, MemberField> fields;
    for (const QString &map : maps) {
        const qsizetype sign = map.lastIndexOf(u'=');
        const QString name = map.mid(sign + 1).trimmed();
        const std::optional<MemberField> field = name == u"-"_s ? MemberField::Ignored : fieldOfName(name);
        if (sign < 1 || !field)
            throw runtime::RuntimeError(runtime::TypeMismatch,
                                        u"--map \"%1\": COLUMN=NAME is needed, where NAME is \"-\" or one of %2"_s.arg(
                                            map, fieldNames().join(u", "_s)));
        fields.insert(map.left(sign).trimmed(), *field);
    }
    return fields;
}

// Years of four digits: 2003-05-01, 5/1/2003 (month first), 1.5.2003 (day first).
std::optional<runtime::Date> readDate(const QString &text)
{
    static const QRegularExpression slashes(u"^(\\d{1,2})/(\\d{1,2})/(\\d{4})$"_s);
    static const QRegularExpression dots(u"^(\\d{1,2})\\.\\s?(\\d{1,2})\\.\\s?(\\d{4})$"_s);
    QDate day;
    if (const auto match = slashes.match(text); match.hasMatch())
        day = QDate(match.captured(3).toInt(), match.captured(1).toInt(), match.captured(2).toInt());
    else if (const auto dotted = dots.match(text); dotted.hasMatch())
        day = QDate(dotted.captured(3).toInt(), dotted.captured(2).toInt(), dotted.captured(1).toInt());
    else
        return runtime::Date::fromIsoText(text);
    if (!day.isValid() || day.year() < 100)
        return std::nullopt;
    return runtime::Date(day);
}

// "1234.5", "1,234.50", "$12"; with a decimal comma "1234,5" and "1.234,50". At most four decimals are exact. Where
// there are decimal commas, "1.234" is refused: it can be a thousand or a little more than one.
std::optional<runtime::Currency> readAmount(QString text, bool hasDecimalComma)
{
    text.remove(u'$').remove(u'€').remove(u'£');
    text = text.trimmed();
    static const QRegularExpression plain(u"^[+-]?(\\d+)(\\.\\d{1,4})?$"_s);
    static const QRegularExpression grouped(u"^[+-]?\\d{1,3}(,\\d{3})+(\\.\\d{1,4})?$"_s);
    static const QRegularExpression groupedByPoints(u"^[+-]?\\d{1,3}(\\.\\d{3})+$"_s);
    if (hasDecimalComma && groupedByPoints.match(text).hasMatch())
        return std::nullopt;
    if (hasDecimalComma && text.contains(u',')) {
        text.replace(u'.', u'\x1f').replace(u',', u'.').replace(u'\x1f', u',');
    }
    if (grouped.match(text).hasMatch())
        text.remove(u',');
    if (!plain.match(text).hasMatch())
        return std::nullopt;
    try {
        return runtime::Currency::fromPlainText(text);
    } catch (const runtime::RuntimeError &) {
        return std::nullopt; // too large
    }
}

std::optional<bool> readYesOrNo(const QString &text)
{
    static const QStringList yes{u"yes"_s, u"y"_s, u"true"_s, u"1"_s, u"-1"_s, u"active"_s, u"x"_s};
    static const QStringList no{u"no"_s, u"n"_s, u"false"_s, u"0"_s, u"inactive"_s};
    if (yes.contains(text.toLower()))
        return true;
    return no.contains(text.toLower()) ? std::optional(false) : std::nullopt;
}

class RowReader
{
public:
    RowReader(qsizetype row, const MemberContext &context, QList<CellFault> &faults)
        : m_context(context), m_faults(faults)
    {
        m_row.row = row;
        m_row.member.fill(QString(u""_s)); // as the entry window writes what is left empty
    }

    void read(MemberField field, const CsvCell &cell, const QString &column)
    {
        m_column = column;
        m_columns.insert(field, column);
        m_text = withFormula(cell.text);
        if (m_text.contains(QChar(0)))
            return tell(u"has a zero character"_s);
        const int member = int(field) - int(MemberField::FirstMemberText);
        const int employer = int(field) - int(MemberField::FirstEmployerText);
        if (member >= 0 && member < int(memberColumns.size()))
            m_row.member[std::size_t(member)] =
                cell.isNull() ? std::nullopt
                              : std::optional(std::size_t(member) == memberState ? asListedState(m_text) : m_text);
        else if (employer >= 0 && employer < int(employerColumns.size()))
            m_row.employer[std::size_t(employer)] =
                std::size_t(employer) == employerState ? asListedState(m_text) : m_text;
        else if (!m_text.trimmed().isEmpty())
            readValue(field, m_text.trimmed());
    }

    MemberRow finish()
    {
        const QString name = m_row.member[lastName].value_or(QString());
        goTo(MemberField(int(MemberField::FirstMemberText) + int(lastName)), name);
        if (name.isEmpty())
            tell(u"a member needs a last name"_s);
        else if (name.at(0).isSpace() || name.at(0) == u'\'')
            tell(u"begins with no letter or digit, so that no group of the explorers lists it"_s);
        if (!m_description.isEmpty() && m_row.interests.size() != 1) {
            goTo(MemberField::InterestDescription, m_description);
            tell(u"a description needs exactly one interest"_s);
        } else if (!m_description.isEmpty()) {
            m_row.interests.first().description = m_description;
        }
        if (m_row.hasContribution && !m_row.contributionAmount && !m_isAmountFaulty) {
            goTo(MemberField::ContributionAmount, {});
            tell(u"a contribution needs an amount"_s);
        }
        return m_row;
    }

private:
    void goTo(MemberField field, const QString &text)
    {
        m_column = m_columns.value(field, nameOf(field));
        m_text = text;
    }

    void tell(const QString &reason) { m_faults.append({m_row.row, m_column, m_text, reason}); }

    void readValue(MemberField field, const QString &text)
    {
        switch (field) {
        case MemberField::MemberId:
            m_row.id = wholeNumber(text, std::numeric_limits<qint16>::max());
            break;
        case MemberField::MemberTypeId:
            m_row.typeId = wholeNumber(text, std::numeric_limits<qint32>::max());
            break;
        case MemberField::MemberType:
            if (const auto type = m_context.types.constFind(text.toLower()); type != m_context.types.cend())
                m_row.typeId = *type;
            else
                tell(u"there is no such type of member"_s);
            break;
        case MemberField::Active:
            if (const auto answer = readYesOrNo(text))
                m_row.isActive = *answer;
            else
                tell(u"is neither yes nor no"_s);
            break;
        case MemberField::Interest:
            for (const QString &interest : text.split(u';'))
                if (!interest.trimmed().isEmpty())
                    m_row.interests.append({interest.trimmed(), {}});
            break;
        case MemberField::InterestDescription:
            m_description = m_text;
            break;
        case MemberField::ContributionDate:
        case MemberField::ContributionAmount:
        case MemberField::ContributionNotes:
            readContribution(field, text);
            break;
        default:
            break;
        }
    }

    void readContribution(MemberField field, const QString &text)
    {
        m_row.hasContribution = true;
        if (field == MemberField::ContributionNotes) {
            m_row.contributionNotes = m_text;
        } else if (field == MemberField::ContributionDate) {
            m_row.contributionDate = readDate(text);
            if (!m_row.contributionDate)
                tell(u"is no date; write it as 2003-12-31, 12/31/2003 or 31.12.2003"_s);
        } else {
            m_row.contributionAmount = readAmount(text, m_context.hasDecimalComma);
            m_isAmountFaulty = !m_row.contributionAmount;
            if (m_isAmountFaulty)
                tell(m_context.hasDecimalComma ? u"is no amount; write it as 1234,50 with four decimals at most"_s
                                               : u"is no amount; write it as 1234.50 with four decimals at most"_s);
        }
    }

    std::optional<qint32> wholeNumber(const QString &text, qint32 most)
    {
        bool isNumber = false;
        const qint32 number = text.toInt(&isNumber);
        if (isNumber && number >= 1 && number <= most)
            return number;
        tell(u"is no whole number from 1 to %1"_s.arg(most));
        return std::nullopt;
    }

    const MemberContext &m_context;
    QList<CellFault> &m_faults;
    MemberRow m_row;
    QString m_column;                      // where the reading is
    QHash<MemberField, QString> m_columns; // as the spreadsheet calls them
    QString m_text;
    QString m_description;
    bool m_isAmountFaulty = false;
};

} // namespace

const std::array<const char *, memberTexts> &memberTextColumns()
{
    return memberColumns;
}

const std::array<const char *, employerTexts> &employerTextColumns()
{
    return employerColumns;
}

QStringList fieldNames()
{
    QStringList names;
    for (const FieldName &field : fieldTable)
        names << QString::fromLatin1(field.name);
    return names;
}

QList<MemberField> matchedHeader(const CsvRow &header, const QStringList &maps)
{
    QHash<QString, MemberField> mapped = readMaps(maps);
    QList<MemberField> fields;
    QHash<MemberField, QString> columns;
    QStringList unknown; // told together, since a header in another language has many
    for (const CsvCell &cell : header) {
        const QString column = cell.text.trimmed();
        const std::optional<MemberField> field = mapped.contains(column) ? mapped.value(column) : fieldOfName(column);
        mapped.remove(column);
        if (!field) {
            unknown << column;
            continue;
        }
        if (*field != MemberField::Interest && *field != MemberField::Ignored && columns.contains(*field))
            refuseHeader(
                u"the columns \"%1\" and \"%2\" are both taken for %3; leave one out with --map \"%2=-\""_s.arg(
                    columns.value(*field), column, nameOf(*field)));
        columns.insert(*field, column);
        fields << *field;
    }
    if (!unknown.isEmpty())
        refuseHeader(u"unknown columns: \"%1\"; name each with --map \"COLUMN=NAME\", or leave it out with "
                     u"--map \"COLUMN=-\""_s.arg(unknown.join(u"\", \""_s)));
    if (!mapped.isEmpty())
        refuseHeader(u"there is no column \"%1\" to map"_s.arg(mapped.constBegin().key()));
    if (!columns.contains(MemberField(int(MemberField::FirstMemberText) + int(lastName))))
        refuseHeader(u"no column is taken for LastName; name it with --map \"COLUMN=LastName\""_s);
    return fields;
}

MemberRow readMemberRow(const CsvRow &cells, qsizetype row, const QList<MemberField> &fields, const CsvRow &header,
                        const MemberContext &context, QList<CellFault> &faults)
{
    RowReader reader(row, context, faults);
    if (cells.size() != fields.size()) {
        faults.append({row,
                       {},
                       cells.first().text,
                       u"has %1 cells where the header has %2"_s.arg(cells.size()).arg(fields.size())});
        return {};
    }
    for (qsizetype i = 0; i < cells.size(); ++i)
        reader.read(fields.at(i), cells.at(i), header.at(i).text.trimmed());
    return reader.finish();
}

} // namespace datafile
