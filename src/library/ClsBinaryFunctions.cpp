#include "library/ClsBinaryFunctions.h"

#include "library/ByteSearch.h"
#include "library/StoredFile.h"
#include "platform/data/Constants.h"
#include "platform/data/DataFactory.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/LongWork.h"
#include "platform/runtime/BinaryFile.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/ErrorHandling.h"
#include "platform/runtime/Files.h"
#include "shell/store/CLsDataBaseConnection.h"
#include "shell/store/DataStore.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using runtime::Value;

namespace {

// Counts the versions in the one data file that UpLoadBinary knows by its full path, not in the program's own.
qint16 nextVersionOf(const QString &fileName)
{
    data::Connection connection;
    connection.Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Documents and Settings\\Pell\\Desktop\\Norlund\\"
                    u"BusinessPlan\\Tolmark.mdb;"_s,
                    {}, {}, data::adOptionUnspecified);
    data::Recordset versions = openRows(connection, u"select * from Attachments where AttachmentsName = '"_s +
                                                        fileName + u"' ORDER BY AttachmentVersion desc"_s);
    const qint16 version = runtime::toInteger(Value(versions.RecordCount() + 1));
    versions.Close();
    connection.Close();
    return version;
}

// Other white space stays.
QString withoutOuterBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

// The bytes that the code page turns into this character of the pattern: both cases of a letter, none for a character
// that the code page does not have, and all bytes behind the pattern's end.
ByteSet bytesThatRead(QStringView pattern, qsizetype at, const runtime::CodePage &characters)
{
    ByteSet bytes{};
    if (at >= pattern.size())
        bytes.fill(true);
    else
        std::transform(characters.data(), characters.data() + characters.size(), bytes.data(),
                       [wanted = pattern[at].unicode()](char16_t character) { return character == wanted; });
    return bytes;
}

// The place of the next comparison that gets beyond the pattern's second character. Without one before `to`, the first
// place from `to` on at which a comparison begins: that is `to`, or the one behind it.
//
// A first character followed by no second one consumes the byte behind it, also when that is a first character as well.
// So of several first characters in a row only every other one is a place at which a comparison begins, counted from
// `from` or from the first of them.
qint64 nextPlace(const ByteSearch &beginnings, QByteArrayView file, qint64 from, qint64 to)
{
    for (;;) {
        const qint64 found = beginnings.next(file, from, to);
        qint64 runBegin = found;
        while (runBegin > from && beginnings.isFirst(file[runBegin - 1]))
            --runBegin;
        const bool isConsumed = (found - runBegin) % 2 == 1;
        if (!isConsumed)
            return found;
        if (found == to)
            return to + 1;
        from = found + 1;
    }
}

QString selectedText(const desktop::ListView *list)
{
    if (!list)
        throw runtime::RuntimeError(runtime::ObjectRequired);
    return list->SelectedItem()->Text();
}

} // namespace

bool ClsBinaryFunctions::UpLoadBinary(const QString &FileName, const QString &FileLocation, data::Recordset &rsUpLoad,
                                      bool VersionControl, const QString &PersonalInformationId,
                                      const QString &FileDescription)
{
    return runtime::endSilently([&] {
        const qint16 version = VersionControl ? nextVersionOf(FileName) : qint16(0);
        rsUpLoad.AddNew();
        const FileToStore file(FileLocation);
        rsUpLoad[u"PersonalInformationId"].setValue(PersonalInformationId);
        rsUpLoad[u"AttachmentsName"].setValue(FileName);
        rsUpLoad[u"Attachments"].AppendChunk(file.bytes());
        rsUpLoad[u"AttachmentVersion"].setValue(Value(version));
        rsUpLoad[u"AttachmentDescription"].setValue(FileDescription);
        rsUpLoad.Update();
        file.close();
    });
}

bool ClsBinaryFunctions::DownLoadDoc(data::Recordset &rsDownLoad, const QString &FilePath)
{
    return runtime::endSilently([&] { fetchInto(rsDownLoad, u"Attachments", FilePath); });
}

void ClsBinaryFunctions::ViewDocument(const QString &AttachmentsId)
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset attachment =
        openRows(connection, u"select * from Attachments where AttachmentsId = "_s + AttachmentsId);
    const desktop::ListView *const list = nullptr; // the class has no list, so the next step raises error 424
    ViewPath = temporaryPath(selectedText(list));
    fetchInto(attachment, u"Attachments", ViewPath);
    connection.Close();
}

data::Recordset ClsBinaryFunctions::cmdOpendb(const QString &SearchString, const QString &SelectStatement)
{
    data::Recordset hits = data::DataFactory().CreateRecordset({{u"DocumentId"_s, data::adInteger, -1, false},
                                                                {u"DocumentName"_s, data::adChar, 255, true},
                                                                {u"Version"_s, data::adInteger, -1, true}});
    CLsDataBaseConnection connection;
    data::Recordset attachments = connection.CreateRecordset(SelectStatement);
    Text2Text = SearchString;
    Check1Value = 0;
    m_hitNames.clear();
    m_hitCount = 0;
    desktop::LongWork work(u"Searching"_s, attachments.Eof() ? 0 : attachments.RecordCount());
    for (qsizetype file = 1; !attachments.Eof(); attachments.MoveNext()) {
        work.at(file++);
        const QString path = scanPath(runtime::joinedText(attachments[u"AttachmentsName"].Value()));
        fetchInto(attachments, u"Attachments", path);
        sFile = path;
        if (ScanFile())
            addHit(hits, attachments);
        runtime::CloseFile(FileHandle);
        runtime::Kill(sFile);
    }
    return hits;
}

void ClsBinaryFunctions::addHit(data::Recordset &hits, data::Recordset &attachments)
{
    m_hitNames << runtime::toText(attachments[u"AttachmentsName"].Value());
    m_hitCount = runtime::toInteger(Value(m_hitCount + 1));
    hits.AddNew();
    hits.Fields(0).setValue(attachments[u"AttachmentsId"].Value());
    hits.Fields(1).setValue(attachments[u"AttachmentsName"].Value());
    hits.Fields(2).setValue(attachments[u"AttachmentVersion"].Value());
    hits.Update();
}

bool ClsBinaryFunctions::ScanFile()
{
    FileLength = qint32(runtime::FileLen(sFile));
    MatchPosition = -1;
    FileHandle = runtime::FreeFile();
    runtime::OpenBinary(sFile, FileHandle, runtime::BinaryAccess::Read);
    ReadPosition = 0;
    PrepareSearchText();
    if (Check1Value == 1)
        ScanExactCase();
    else
        ScanAnyCase();
    return Found == -1;
}

void ClsBinaryFunctions::PrepareSearchText()
{
    Pattern = withoutOuterBlanks(Text2Text);
    PatternLength = runtime::toInteger(Value(qint32(Pattern.size())));
    if (Pattern.endsWith(u'"') && Pattern.startsWith(u'"') && PatternLength > 2) {
        Pattern = Pattern.sliced(1).chopped(1);
        PatternLength = qint16(PatternLength - 2);
    }
    if (Check1Value == 0)
        Pattern = runtime::ansiUpperCase(Pattern);
}

void ClsBinaryFunctions::ScanExactCase()
{
    scan(runtime::ansiCharacters());
}

void ClsBinaryFunctions::ScanAnyCase()
{
    scan(runtime::ansiUpperCaseCharacters());
}

// Compares at each place that the rule tries, byte by byte and without going back: the byte that ends a failed
// comparison is consumed. No comparison begins where the pattern would reach the file's last byte. nextPlace
// passes over comparisons that fail at their first or second byte. It leaves the last two places to the loop, so that
// ReadPosition and OneChar end as if every byte had been compared here.
void ClsBinaryFunctions::scan(const runtime::CodePage &characters)
{
    const QByteArrayView file = runtime::openFile(FileHandle).bytes();
    const auto *const pattern = Pattern.utf16();
    const qint64 length = PatternLength;
    const qint64 end = qMin<qint64>(FileLength, file.size()) - length;
    const ByteSearch beginnings(bytesThatRead(Pattern, 0, characters), bytesThatRead(Pattern, 1, characters));
    qint64 position = ReadPosition;
    qint64 index = 0;
    const auto nextCharacter = [&] { return OneChar = characters[uchar(file[position++])]; };
    Found = 0;
    while (Found == 0 && position < end) {
        index = 1;
        if (length > 0) {
            position = nextPlace(beginnings, file, position, qMax(position, end - 2));
            if (nextCharacter() != pattern[0])
                continue;
            // From its place on, a character is found first at that place exactly when it stands there.
            while (++index <= length && nextCharacter() == pattern[index - 1]) {
            }
        }
        if (index > length)
            Found = -1;
    }
    PatternIndex = qint32(index);
    PatternCursor = qint16(qMin(index, length));
    ReadPosition = qint32(Found == -1 ? position - length : position);
    MatchPosition = Found == -1 ? ReadPosition : -1;
}
