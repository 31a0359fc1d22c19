#include "library/StoredFile.h"

#include "platform/runtime/Application.h"
#include "platform/runtime/BinaryFile.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/RuntimeError.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// In bytes. The progress of a smaller file is not shown: the status bar would take a noticeable part of the time.
constexpr qint64 largeFile = 8 * 1024 * 1024;

} // namespace

FileToStore::FileToStore(const QString &path)
    : m_work(u"Uploading "_s + QFileInfo(path).fileName() + u": step"_s, 2), m_handle(runtime::FreeFile())
{
    runtime::OpenBinary(path, m_handle, runtime::BinaryAccess::Read);
    const qint64 size = runtime::LOF(m_handle);
    const bool takesLong = size >= largeFile;
    if (takesLong)
        m_work.showAt(1);
    m_bytes = QByteArray(size + 1, '\0');
    runtime::Get(m_handle, 1, m_bytes);
    if (takesLong)
        m_work.showAt(2);
}

void FileToStore::close() const
{
    runtime::CloseFile(m_handle);
}

void fetchInto(data::Recordset &rows, QStringView column, const QString &path)
{
    const qint16 handle = runtime::FreeFile();
    runtime::OpenBinary(path, handle, runtime::BinaryAccess::ReadWrite);
    data::Field field = rows[column];
    const runtime::Value chunk = field.GetChunk(field.ActualSize());
    if (chunk.isNull())
        throw runtime::RuntimeError(runtime::InvalidUseOfNull);
    runtime::Put(handle, 1, chunk.get<QByteArray>());
    runtime::CloseFile(handle);
}

QString temporaryPath(const QString &storedName)
{
    return runtime::pathInFolder(runtime::App::folder(u"\\temp"), storedName);
}

QString scanPath(const QString &storedName)
{
    return runtime::pathInFolder(runtime::App::folder(u"\\temp\\Search"), storedName);
}
