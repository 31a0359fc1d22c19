#include "datafile/Sample.h"

#include "datafile/Inserter.h"
#include "datafile/Schema.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

struct SampleAttachment
{
    int member; // 0: the file of a person
    int person; // 0: the file of a member
    const char *name;
    int version; // from 1 for each name, over all owners
    const char *date;
    const char *description;
    const char *extension;
    const char *content; // under sample/files
};

constexpr std::array attachments{
    SampleAttachment{1, 0, "Membership form.pdf", 1, "2002-11-04 09:12:00", "Signed form", "pdf",
                     "membership-form.pdf"},
    SampleAttachment{4, 0, "Membership form.pdf", 2, "2002-11-18 16:40:10", "", "pdf", "membership-form.pdf"},
    SampleAttachment{1, 0, "Membership form.pdf", 3, "2003-01-07 10:05:33", "Second edition", "pdf",
                     "membership-form-2.pdf"},
    SampleAttachment{9, 0, "Membership form.pdf", 4, "2003-02-20 11:30:00", nullptr, "pdf", "membership-form-2.pdf"},
    SampleAttachment{1, 0, "donations.csv", 1, "2003-05-20 08:00:00", "What came in this spring", "csv",
                     "donations.csv"},
    SampleAttachment{10, 0, "Newsletter.txt", 1, "2003-05-02 14:00:00", "Spring issue", "txt", "newsletter.txt"},
    SampleAttachment{10, 0, "Newsletter.txt", 2, "2003-05-09 14:30:00", "Spring issue, corrected", "txt",
                     "newsletter-2.txt"},
    SampleAttachment{46, 0, "Newsletter.txt", 3, "2003-05-10 09:00:00", "For the printer", "txt", "newsletter-2.txt"},
    SampleAttachment{16, 0, "Rolls.txt", 1, "2003-03-11 07:30:00", "Recipe", "txt", "recipe.txt"},
    SampleAttachment{41, 0, "Consent.rtf", 1, "2003-03-16 20:00:00", "Pictures may be printed", "rtf", "consent.rtf"},
    SampleAttachment{20, 0, "Minutes 2003.txt", 1, "2003-01-27 18:00:00", "", "txt", "minutes.txt"},
    SampleAttachment{22, 0, "Café Évrard.txt", 1, "2003-05-30 12:00:00", "Name with accents", "txt", "recipe.txt"},
    SampleAttachment{61, 0, "notes", 1, "2003-04-04 21:00:00", "Empty file without an extension", nullptr, "empty.txt"},
    SampleAttachment{0, 2, "Consent.rtf", 2, "2003-04-02 11:00:00", "", "rtf", "consent.rtf"},
    SampleAttachment{0, 3, "Membership form.pdf", 5, "2003-05-06 08:45:00", "", "pdf", "membership-form-2.pdf"},
};

struct SampleDocument
{
    int node; // ObjectIndex
    const char *name;
    int version; // from 1 for each name in a node
    const char *date;
    const char *content; // under sample/files
};

// The store numbers them from 1 in this order; `links` refers to these numbers.
constexpr std::array documents{
    SampleDocument{3, "Bylaws.txt", 1, "1999-10-01 12:00:00", "bylaws.txt"},
    SampleDocument{3, "Bylaws.txt", 2, "2003-01-26 12:00:00", "bylaws-2.txt"},
    SampleDocument{4, "Membership form.pdf", 1, "2003-01-07 10:00:00", "membership-form-2.pdf"},
    SampleDocument{4, "Consent.rtf", 1, "2001-02-03 15:00:00", "consent.rtf"},
    SampleDocument{7, "Minutes 2003.txt", 1, "2003-01-27 18:05:00", "minutes.txt"},
    SampleDocument{9, "Rolls.txt", 1, "2003-03-11 07:35:00", "recipe.txt"},
    SampleDocument{11, "Newsletter.txt", 1, "2003-05-02 14:10:00", "newsletter.txt"},
    SampleDocument{11, "Newsletter.txt", 2, "2003-05-09 14:40:00", "newsletter-2.txt"},
};

struct Link
{
    int person;
    int document;
};

constexpr std::array links{Link{2, 2}, Link{2, 3}, Link{3, 4}, Link{4, 2}};

// An upload stores the bytes of a file and one zero byte behind them.
runtime::Value stored(const char *content)
{
    return runtime::Value(builtIn(u"sample/files/"_s + QString::fromUtf8(content)) + '\0');
}

// An owner's number, or Null for 0.
runtime::Value owner(int number)
{
    return number ? runtime::Value(qint32(number)) : runtime::Value();
}

void addAttachments(data::Database &file)
{
    Inserter insert(file, "INSERT INTO Attachments (MemberId, PersonalInformationId, AttachmentsName, "
                          "AttachmentVersion, AttachmentsDate, AttachmentDescription, AttachmentExtension, Attachments)"
                          " VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    for (const SampleAttachment &row : attachments)
        insert(owner(row.member), owner(row.person), row.name, row.version, row.date, row.description, row.extension,
               stored(row.content));
}

void addDocuments(data::Database &file)
{
    Inserter insert(file, "INSERT INTO Resources (ObjectIndex, DocumentName, DocuemntVersion, DocumentDate, Document) "
                          "VALUES (?, ?, ?, ?, ?)");
    for (const SampleDocument &row : documents)
        insert(row.node, row.name, row.version, row.date, stored(row.content));
    Inserter link(file, "INSERT INTO ReferenceInfo (PersonalInformationId, DocumentId) VALUES (?, ?)");
    for (const Link &row : links)
        link(row.person, row.document);
}

} // namespace

void createSampleFile(const QString &path)
{
    createDataFile(path, [](data::Database &file) {
        file.execute(builtIn(u"sample/members.sql"_s));
        file.execute(builtIn(u"sample/activities.sql"_s));
        file.execute(builtIn(u"sample/library.sql"_s));
        addAttachments(file);
        addDocuments(file);
    });
}

} // namespace datafile
