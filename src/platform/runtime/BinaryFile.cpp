#include "platform/runtime/BinaryFile.h"

#include "platform/runtime/RuntimeError.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <memory>

namespace runtime {

namespace {

constexpr size_t lastNumber = 511;

// Indexed by number; place 0 is never used.
std::array<std::unique_ptr<BinaryFile>, lastNumber + 1> &openFiles()
{
    static std::array<std::unique_ptr<BinaryFile>, lastNumber + 1> files;
    return files;
}

std::unique_ptr<BinaryFile> &placeOf(qint16 handle)
{
    if (handle < 1 || size_t(handle) > lastNumber)
        throw RuntimeError(BadFileNumber);
    return openFiles()[size_t(handle)];
}

// Only plain files are opened: a pipe would block the program.
void requirePlainFile(const QString &path, BinaryAccess access)
{
    const QFileInfo file(path);
    if (file.exists()) {
        if (!file.isFile())
            throw RuntimeError(PathFileAccess);
    } else if (!QFileInfo(file.path()).isDir()) {
        throw RuntimeError(PathNotFound);
    } else if (access == BinaryAccess::Read) {
        throw RuntimeError(FileNotFound);
    }
}

} // namespace

BinaryFile::BinaryFile(const QString &path, BinaryAccess access) : m_file(path)
{
    requirePlainFile(path, access);
    const QIODevice::OpenMode mode = access == BinaryAccess::Read ? QIODevice::ReadOnly : QIODevice::ReadWrite;
    // Whole files go through here at once: a buffer in between would only be another copy.
    if (!m_file.open(mode | QIODevice::Unbuffered))
        throw RuntimeError(m_file.error() == QFile::ResourceError ? TooManyFiles : PathFileAccess);
}

void BinaryFile::seek(qint64 position)
{
    if (position < 1)
        throw RuntimeError(BadRecordNumber);
    if (!m_file.seek(position - 1))
        throw RuntimeError(DeviceError);
}

void BinaryFile::get(qint64 position, QByteArray &buffer)
{
    seek(position);
    if (m_file.read(buffer.data(), buffer.size()) < 0)
        throw RuntimeError(DeviceError);
}

QByteArrayView BinaryFile::bytes()
{
    if (m_mapped)
        m_file.unmap(m_mapped);
    m_mapped = m_file.map(0, size());
    if (m_mapped)
        return {m_mapped, size()};
    m_content.resize(size());
    get(1, m_content);
    return m_content;
}

void BinaryFile::put(qint64 position, const QByteArray &bytes)
{
    if (!m_file.isWritable())
        throw RuntimeError(BadFileMode);
    seek(position);
    const qint64 accepted = m_file.write(bytes);
    if (accepted == bytes.size())
        return;
    // A plain file that accepts a part only has no room for the rest.
    throw RuntimeError(accepted > 0 || m_file.error() == QFile::ResourceError ? DiskFull : DeviceError);
}

qint16 FreeFile()
{
    const auto &files = openFiles();
    const auto free = std::find(files.cbegin() + 1, files.cend(), nullptr);
    if (free == files.cend())
        throw RuntimeError(TooManyFiles);
    return qint16(free - files.cbegin());
}

void OpenBinary(const QString &path, qint16 handle, BinaryAccess access)
{
    std::unique_ptr<BinaryFile> &place = placeOf(handle);
    if (place)
        throw RuntimeError(FileAlreadyOpen);
    place = std::make_unique<BinaryFile>(path, access);
}

BinaryFile &openFile(qint16 handle)
{
    const std::unique_ptr<BinaryFile> &place = placeOf(handle);
    if (!place)
        throw RuntimeError(BadFileNumber);
    return *place;
}

void CloseFile(qint16 handle)
{
    openFile(handle); // raises error 52 where none is open
    placeOf(handle).reset();
}

} // namespace runtime
