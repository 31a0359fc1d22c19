// Files in and out of the table of attachments, and the search through what they hold.
//
// One instance is made for a search and dropped after it. Only cmdOpendb is called by a window; the windows store and
// fetch files by StoredFile.h. UpLoadBinary and DownLoadDoc answer any failure with False. What the failed call had
// opened or begun stays so: the file, and a new row that is pending. The other two raise what fails. A scan reads each
// byte once and never goes back: the byte that ends a failed comparison is not tried as the beginning of another, so
// "aab" is not found in "aaab".
#pragma once

#include "platform/data/Recordset.h"
#include "platform/runtime/CodePage.h"

#include <QString>
#include <QStringList>

class ClsBinaryFunctions
{
public:
    // Adds a row with the file. Its version is 0, or with VersionControl one more than there are rows of that name in
    // the data file to which this operation is tied; without that file it fails.
    bool UpLoadBinary(const QString &FileName, const QString &FileLocation, data::Recordset &rsUpLoad,
                      bool VersionControl, const QString &PersonalInformationId, const QString &FileDescription);
    // Writes the attachment of the current row to the path.
    bool DownLoadDoc(data::Recordset &rsDownLoad, const QString &FilePath);
    // The rows of the statement whose attachment holds the text, in any case: DocumentId, DocumentName, Version. The
    // recordset stands on its last row. Every attachment is copied into the folder of scans, which has to be there, and
    // deleted again. Error 6 for a text of more than 32,767 characters, and for more hits than that.
    data::Recordset cmdOpendb(const QString &SearchString, const QString &SelectStatement);
    // Always fails: error 424, since it takes the name from a list and the class has none, or what the data store
    // raises before that.
    void ViewDocument(const QString &AttachmentsId);

    QString Text2Text;
    qint16 Check1Value = 0; // 1 compares exactly; nobody sets it, so that every search ignores case
    QString sFile;

protected: // the steps of a scan, which tests run one by one
    bool ScanFile();
    void PrepareSearchText();
    void ScanExactCase();
    void ScanAnyCase();

    qint32 FileLength = 0;
    qint32 ReadPosition = 0;  // how many bytes have been read; after a hit its place, from 0
    qint32 MatchPosition = 0; // from 0; -1 without a hit
    qint32 PatternIndex = 0;  // from 1
    qint16 PatternLength = 0;
    qint16 PatternCursor = 0; // PatternIndex, at most PatternLength
    qint16 Found = 0;         // -1 with a hit
    qint16 FileHandle = 0;
    QString Pattern;
    char16_t OneChar = 0;

private:
    void scan(const runtime::CodePage &characters);
    void addHit(data::Recordset &hits, data::Recordset &attachments);

    QString ViewPath;
    QStringList m_hitNames; // gathered and never read
    qint16 m_hitCount = 0;
};
