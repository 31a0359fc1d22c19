#include "datafile/Generator.h"

#include "datafile/Inserter.h"
#include "datafile/NameTables.h"
#include "datafile/Random.h"
#include "datafile/Schema.h"
#include "platform/runtime/RuntimeError.h"

#include <QByteArrayList>
#include <QDate>
#include <QHash>

#include <algorithm>
#include <limits>
#include <vector>

namespace datafile {

namespace {

// Draws surnames as often as their weights say.
class SurnameDrawer
{
public:
    explicit SurnameDrawer(char initial = 0)
    {
        for (const Surname &name : surnames())
            if (!initial || *name.text == initial)
                add(name);
    }

    const char *draw(Random &random) const
    {
        const auto place = std::upper_bound(m_limits.begin(), m_limits.end(), random.below(m_limits.back()));
        return m_names[std::size_t(place - m_limits.begin())];
    }

private:
    void add(const Surname &name)
    {
        m_limits.push_back((m_limits.empty() ? 0 : m_limits.back()) + name.weight);
        m_names.push_back(name.text);
    }

    std::vector<const char *> m_names;
    std::vector<int> m_limits; // for each name the sum of the weights up to and including its own
};

QByteArray number(int value)
{
    return QByteArray::number(value);
}

// Each statement draws one random number at most: compilers evaluate operands in different orders, and the file must
// not depend on that.
class Generator
{
public:
    Generator(data::Database &file, const GeneratorOptions &options, Progress *progress)
        : m_file(file), m_options(options), m_progress(progress), m_random(options.seed)
    {
    }

    void run()
    {
        addMembers();
        addInterests();
        addEvents();
        addAssignedEvents();
        addContributions();
        addNotes();
        addAttachments();
    }

private:
    // Before each row of a table.
    void tell()
    {
        const GeneratorOptions &all = m_options;
        if (m_progress)
            m_progress->at(m_done++, qint64(all.members) + all.interests + all.events + all.assignedEvents +
                                         all.contributions + all.notes + all.attachments);
    }

    int someMember() { return 1 + m_random.below(m_options.members); }

    QByteArray someDay() { return QDate(1998, 1, 1).addDays(m_random.below(2000)).toString(Qt::ISODate).toLatin1(); }

    QByteArray someMinute(int fromHour)
    {
        const int minute = m_random.below(6 * 60);
        const int hour = fromHour + minute / 60;
        return QByteArray(hour < 10 ? "0" : "") + number(hour) + (minute % 60 < 10 ? ":0" : ":") + number(minute % 60);
    }

    QByteArray somePhone()
    {
        const QByteArray area = number(200 + m_random.below(700));
        return area + "-555-01" + number(10 + m_random.below(90));
    }

    QByteArray someText(int wordCount)
    {
        QByteArray text;
        for (int i = 0; i < wordCount; ++i) {
            if (i)
                text += ' ';
            text += m_random.oneOf(words());
        }
        return text;
    }

    // The text, or in the remaining cases the empty text or Null, as often each.
    runtime::Value optional(int filledPercent, const QByteArray &text)
    {
        const int draw = m_random.below(100);
        if (draw < filledPercent)
            return runtime::Value(QString::fromUtf8(text));
        return draw % 2 ? runtime::Value(QString::fromUtf8("")) : runtime::Value();
    }

    void addMembers();
    void addInterests();
    void addEvents();
    void addAssignedEvents();
    void addContributions();
    void addNotes();
    void addAttachments();
    QByteArray someContent(const QByteArray &pool);

    data::Database &m_file;
    const GeneratorOptions &m_options;
    Progress *m_progress;
    qint64 m_done = 0; // rows
    Random m_random;
    QByteArrayList m_eventNames;
};

void Generator::addMembers()
{
    Inserter member(m_file, "INSERT INTO MemberInformation (MemberId, MemberTypeId, FirstName, MiddleName, LastName, "
                            "AddressOne, AddressTwo, City, State, Zip, HomePhone, CellPhone, EMailAddress, Active) "
                            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    Inserter employer(m_file, "INSERT INTO EmployerInformation (MemberId, Name, City, State, Zip, PhoneNumber) "
                              "VALUES (?, ?, ?, ?, ?, ?)");
    const SurnameDrawer all;
    const SurnameDrawer crowd(m_options.crowdInitial);
    for (int id = 1; id <= m_options.members; ++id) {
        tell();
        QByteArray lastName = (id <= m_options.crowd ? crowd : all).draw(m_random);
        if (m_random.percent(3))
            lastName += QByteArray("-") + all.draw(m_random);
        const int type = m_random.below(7);
        const Town &town = m_random.oneOf(towns());
        const QByteArray zip = town.zipBegins + number(10 + m_random.below(90));
        const QByteArray house = number(1 + m_random.below(3000));
        const QByteArray street = house + ' ' + m_random.oneOf(streets());
        const char *firstName = m_random.oneOf(firstNames());
        const runtime::Value middleName = optional(50, QByteArray(1, char('A' + m_random.below(26))) + '.');
        const runtime::Value addressTwo = optional(15, "Apt " + number(1 + m_random.below(40)));
        const runtime::Value homePhone = optional(80, somePhone());
        const runtime::Value cellPhone = optional(60, somePhone());
        const runtime::Value address = optional(70, "member" + number(id) + "@example.org");
        member(id, type ? runtime::Value(type) : runtime::Value(), firstName, middleName, lastName, street, addressTwo,
               town.city, town.state, zip, homePhone, cellPhone, address,
               m_random.percent(m_options.inactivePercent) ? 0 : -1);
        const Town &work = m_random.oneOf(towns());
        const char *company = m_random.oneOf(employers());
        employer(id, company, work.city, work.state, work.zipBegins + number(10), somePhone());
    }
}

void Generator::addInterests()
{
    Inserter insert(m_file, "INSERT INTO MemberInterest (MemberId, Interest, InterestDescription) VALUES (?, ?, ?)");
    for (int i = 0; i < m_options.interests; ++i) {
        tell();
        const int member = someMember();
        const char *interest = m_random.oneOf(interests());
        insert(member, interest, optional(60, someText(4)));
    }
}

void Generator::addEvents()
{
    Inserter insert(m_file, "INSERT INTO EventInformation (EventDate, EventName, EventDescription, EventStartDate, "
                            "EventEndDate, EventStartTime, EventEndTime, EventStartTimeAmPm, EventEndTimeAmPm, Active) "
                            "VALUES (?, ?, ?, ?, ?, ?, ?, 'AM', 'PM', ?)");
    for (int i = 0; i < m_options.events; ++i) {
        tell();
        const QByteArray name = m_random.oneOf(eventNames()) + QByteArray(" ") + number(i + 1);
        const QByteArray month = number(1 + m_random.below(12));
        const QByteArray day = month + '/' + number(1 + m_random.below(28)) + "/2003";
        const QByteArray added = someDay() + " 00:00:00";
        const QByteArray start = someMinute(6);
        const QByteArray end = someMinute(13);
        const runtime::Value description = optional(70, someText(6));
        insert(added, name, description, day, day, start, end, m_random.percent(m_options.inactivePercent) ? 0 : -1);
        m_eventNames.append(name);
    }
}

void Generator::addAssignedEvents()
{
    if (m_eventNames.isEmpty())
        return;
    Inserter insert(m_file, "INSERT INTO EventMemberInfo (MemberId, EventName, EventActualStartTime, "
                            "EventActualEndTime, EventActualDate, EventComments) VALUES (?, ?, ?, ?, ?, ?)");
    for (int i = 0; i < m_options.assignedEvents; ++i) {
        tell();
        const int member = someMember();
        const QByteArray &event = m_random.oneOf(m_eventNames);
        const QByteArray start = someMinute(6);
        const runtime::Value end = optional(80, someMinute(13));
        const QByteArray day = someDay();
        insert(member, event, start, end, day, optional(40, someText(8)));
    }
}

void Generator::addContributions()
{
    Inserter insert(m_file, "INSERT INTO Contributions (MemberId, ContributionDate, ContributionAmount, "
                            "ContributionNotes) VALUES (?, ?, ?, ?)");
    for (int i = 0; i < m_options.contributions; ++i) {
        tell();
        const int member = someMember();
        const QByteArray day = someDay() + " 00:00:00";
        const runtime::Value amount(runtime::Currency::fromScaled((1 + m_random.below(50'000)) * qint64(100)));
        insert(member, day, amount, optional(50, someText(5)));
    }
}

void Generator::addNotes()
{
    static constexpr const char *types[] = {"Phone Conversation", "Member Meeting", "Member Conference"};
    static constexpr const char *categories[] = {"Instructional", "Event Planning", "Training", "General"};
    Inserter insert(m_file, "INSERT INTO MeetingInfo (MemberId, MeetingDate, MeetingStartTime, MeetingEndTime, "
                            "MeetingEnteredDate, MeetingType, MeetingCatagory, MeetingSubject, MeetingNotes) "
                            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (int i = 0; i < m_options.notes; ++i) {
        tell();
        const int member = someMember();
        const QByteArray day = someDay();
        const QByteArray start = "1899-12-30 " + someMinute(7) + ":00";
        const QByteArray end = "1899-12-30 " + someMinute(13) + ":30";
        const char *type = m_random.oneOf(types);
        const char *category = m_random.oneOf(categories);
        const QByteArray subject = someText(3);
        const QByteArray notes = someText(10 + m_random.below(40));
        insert(member, day + " 00:00:00", start,
               m_random.percent(90) ? runtime::Value(QString::fromLatin1(end)) : runtime::Value(), day + " 20:00:00",
               type, category, subject, notes);
    }
}

// The content of a file as an upload stores it: pieces of the pool up to the length asked for, then one zero byte.
QByteArray Generator::someContent(const QByteArray &pool)
{
    const qsizetype length = m_options.attachmentBytes;
    QByteArray content;
    content.reserve(length + 1);
    while (content.size() < length) {
        const qsizetype from = m_random.below(int(pool.size()));
        content.append(pool.mid(from, length - content.size()));
    }
    return content.append('\0');
}

void Generator::addAttachments()
{
    static constexpr const char *extensions[] = {"txt", "pdf", "doc", "csv"};
    Inserter insert(m_file, "INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, AttachmentsDate, "
                            "AttachmentDescription, AttachmentExtension, Attachments) VALUES (?, ?, ?, ?, ?, ?, ?)");
    const QByteArray pool = m_options.attachments ? someText(10'000) : QByteArray();
    QHash<QByteArray, int> versions; // for each name; an upload counts over all members
    for (int i = 0; i < m_options.attachments; ++i) {
        tell();
        const int member = someMember();
        const char *stem = m_random.oneOf(fileStems());
        const char *extension = m_random.oneOf(extensions);
        const QByteArray name =
            stem + QByteArray(" ") + number(m_random.below(m_options.attachments)) + '.' + extension;
        const QByteArray day = someDay();
        const QByteArray time = someMinute(8) + ":00";
        const runtime::Value description = optional(60, someText(4));
        insert(member, name, ++versions[name], day + ' ' + time, description, extension,
               runtime::Value(someContent(pool)));
    }
}

void checkRange(int value, int least, int most = std::numeric_limits<int>::max())
{
    if (value < least || value > most)
        throw runtime::RuntimeError(runtime::InvalidProcedureCall);
}

void checkOptions(const GeneratorOptions &options)
{
    checkRange(options.members, 1, std::numeric_limits<qint16>::max());
    checkRange(options.crowdInitial, 'A', 'Z');
    checkRange(options.crowd, 0, options.members);
    for (const int count : {options.interests, options.contributions, options.assignedEvents, options.notes,
                            options.attachments, options.attachmentBytes, options.events})
        checkRange(count, 0);
}

} // namespace

void createGeneratedFile(const QString &path, const GeneratorOptions &options, Progress *progress)
{
    checkOptions(options);
    createDataFile(path, [&options, progress](data::Database &file) { Generator(file, options, progress).run(); });
}

} // namespace datafile
