#include "library/ClsBinaryFunctions.h"

#include "library/StoredFile.h"
#include "platform/data/Constants.h"
#include "platform/data/DataFactory.h"
#include "platform/desktop/ListView.h"
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

QString withoutBlanksAround(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
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
    for (; !attachments.Eof(); attachments.MoveNext()) {
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
    Pattern = withoutBlanksAround(Text2Text);
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

// An attempt begins with the byte behind the last one that was taken: the one that ended a failed attempt is gone. None
// begins where the pattern would reach the file's last byte. Nearly all attempts end with their first byte, so these
// are passed over at once, but for the very last.
void ClsBinaryFunctions::scan(const runtime::CodePage &characters)
{
    const QByteArrayView file = runtime::openFile(FileHandle).bytes();
    const auto *const pattern = Pattern.utf16();
    const qint64 length = PatternLength;
    const qint64 end = qMin<qint64>(FileLength, file.size()) - length;
    std::array<bool, 256> isFirst{}; // by byte
    std::ranges::transform(characters, isFirst.begin(), [=](char16_t c) { return length > 0 && c == pattern[0]; });
    qint64 position = ReadPosition;
    qint64 index = 0;
    const auto nextCharacter = [&] { return OneChar = characters[uchar(file[position++])]; };
    Found = 0;
    while (Found == 0 && position < end) {
        index = 1;
        if (length > 0) {
            while (position < end - 1 && !isFirst[uchar(file[position])])
                ++position;
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
