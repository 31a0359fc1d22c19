#include "proof/Faults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <memory>
#include <optional>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace proof {

namespace {

// Bytes at a place, or a new length.
struct Change
{
    qint64 place;
    std::optional<QByteArray> bytes;

    void make(QByteArray &content) const
    {
        content.resize(bytes ? qMax(content.size(), place + bytes->size()) : place, '\0');
        if (bytes)
            content.replace(place, bytes->size(), *bytes);
    }
};

struct Content
{
    QByteArray synced;
    QList<Change> pending;

    QByteArray afterLoss(std::mt19937 &chance) const
    {
        constexpr qint64 sector = 512;
        QByteArray left = synced;
        for (const Change &change : pending) {
            if (!change.bytes && chance() % 2)
                change.make(left);
            for (qint64 at = 0, next = 0; change.bytes && at < change.bytes->size(); at = next) {
                next = (change.place + at) / sector * sector + sector - change.place;
                if (chance() % 2)
                    Change{change.place + at, change.bytes->mid(at, next - at)}.make(left);
            }
        }
        return left;
    }
};

// What a name leads to, and what the folder on the disk says that it leads to.
struct Name
{
    std::shared_ptr<Content> now, synced;
};

bool isWatched = false;
QHash<QString, Name> names;
std::function<void()> beforeSync, committed;
sqlite3_vfs *real = nullptr;

void syncFolder()
{
    for (Name &name : names)
        name.synced = name.now;
}

void watch(const QString &path, bool isNew)
{
    Name &name = names[path];
    if (name.now)
        return;
    name.now = std::make_shared<Content>();
    if (QFile file(path); !isNew && file.open(QIODevice::ReadOnly)) {
        name.now->synced = file.readAll();
        name.synced = name.now;
    }
}

void note(const QString &path, Change change)
{
    if (isWatched && names.contains(path))
        names[path].now->pending << std::move(change);
}

// SQLite allocates szOsFile bytes: this, and right behind it the real file.
struct Opened
{
    sqlite3_file base;
    QString *path; // empty without a name
    bool syncsFolder;
};

Opened &opened(sqlite3_file *file)
{
    return *reinterpret_cast<Opened *>(file);
}

template <class... Given>
int pass(int (*sqlite3_io_methods::*call)(sqlite3_file *, Given...), sqlite3_file *file, Given... given)
{
    auto *behind = reinterpret_cast<sqlite3_file *>(&opened(file) + 1);
    return (behind->pMethods->*call)(behind, given...);
}

bool fails()
{
    return isDue(Fault::Kill) || isDue(Fault::IoError);
}

int closeFile(sqlite3_file *file)
{
    delete opened(file).path;
    return pass(&sqlite3_io_methods::xClose, file);
}

int writeFile(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 place)
{
    const bool isFull = isDue(Fault::FullDisk);
    const bool isFailing = fails() || isFull;
    if (isFailing)
        size /= 2; // a write that fails may have begun
    note(*opened(file).path, {place, QByteArray(static_cast<const char *>(bytes), size)});
    const int code = pass(&sqlite3_io_methods::xWrite, file, bytes, size, place);
    return isFull ? SQLITE_FULL : isFailing ? SQLITE_IOERR_WRITE : code;
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    if (fails())
        return SQLITE_IOERR_TRUNCATE;
    note(*opened(file).path, {size, {}});
    return pass(&sqlite3_io_methods::xTruncate, file, size);
}

int syncFile(sqlite3_file *file, int flags)
{
    if (fails() || isDue(Fault::FullDisk))
        return SQLITE_IOERR_FSYNC;
    const Name name = names.value(*opened(file).path);
    if (isWatched && name.now) {
        beforeSync();
        for (const Change &change : std::as_const(name.now->pending))
            change.make(name.now->synced);
        name.now->pending.clear();
        if (std::exchange(opened(file).syncsFolder, false))
            syncFolder();
    }
    return pass(&sqlite3_io_methods::xSync, file, flags);
}

// Methods that never fail, and methods that fail with one fixed code.
template <auto method> constexpr auto through = [](auto *file, auto... given) { return pass(method, file, given...); };
template <auto method, int code>
constexpr auto failing = [](auto *file, auto... given) { return fails() ? code : pass(method, file, given...); };

// Of the first version, without shared memory and mapped pages: a rollback journal needs neither.
sqlite3_io_methods faultyMethods()
{
    using Methods = sqlite3_io_methods;
    Methods methods{};
    methods.iVersion = 1;
    methods.xClose = closeFile;
    methods.xRead = failing<&Methods::xRead, SQLITE_IOERR_READ>;
    methods.xWrite = writeFile;
    methods.xTruncate = truncateFile;
    methods.xSync = syncFile;
    methods.xFileSize = through<&Methods::xFileSize>;
    methods.xLock = failing<&Methods::xLock, SQLITE_IOERR_LOCK>;
    methods.xUnlock = through<&Methods::xUnlock>;
    methods.xCheckReservedLock = through<&Methods::xCheckReservedLock>;
    methods.xFileControl = through<&Methods::xFileControl>;
    methods.xSectorSize = through<&Methods::xSectorSize>;
    methods.xDeviceCharacteristics = through<&Methods::xDeviceCharacteristics>;
    return methods;
}

int openFile(sqlite3_vfs *, const char *path, sqlite3_file *file, int flags, int *flagsOut)
{
    Opened &open = opened(file);
    open.base.pMethods = nullptr;
    if (fails() || (flags & SQLITE_OPEN_CREATE && isDue(Fault::FullDisk)))
        return SQLITE_CANTOPEN;
    const bool isNew = !QFileInfo::exists(QString::fromUtf8(path));
    const int code = real->xOpen(real, path, reinterpret_cast<sqlite3_file *>(&open + 1), flags, flagsOut);
    if (code != SQLITE_OK)
        return code;
    static const sqlite3_io_methods methods = faultyMethods();
    open.base.pMethods = &methods;
    open.path = new QString(QString::fromUtf8(path));
    open.syncsFolder = isNew && flags & SQLITE_OPEN_MAIN_JOURNAL; // with its first sync, as SQLite does
    if (isWatched && path)
        watch(*open.path, isNew);
    return SQLITE_OK;
}

int deleteFile(sqlite3_vfs *, const char *path, int syncsFolder)
{
    if (fails())
        return SQLITE_IOERR_DELETE;
    const int code = real->xDelete(real, path, syncsFolder);
    if (code == SQLITE_OK && isWatched) {
        names[QString::fromUtf8(path)].now = nullptr;
        committed();
        beforeSync();
        if (syncsFolder)
            syncFolder();
    }
    return code;
}

} // namespace

void installFaultyFiles()
{
    real = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs faulty = *real;
    faulty.zName = "faulty";
    faulty.szOsFile = int(sizeof(Opened)) + real->szOsFile;
    faulty.xOpen = openFile;
    faulty.xDelete = deleteFile;
    // One moment in all runs, so that rows with the present time as their default can be compared.
    faulty.xCurrentTimeInt64 = [](auto *, sqlite3_int64 *julianMilliseconds) {
        *julianMilliseconds = 212'675'544'000'000;
        return SQLITE_OK;
    };
    sqlite3_vfs_register(&faulty, 1);
}

void watchDisk(std::function<void()> atSync, std::function<void()> atCommit)
{
    isWatched = true;
    beforeSync = std::move(atSync);
    committed = std::move(atCommit);
}

void writeAfterLoss(const QString &folder, std::mt19937 *chance)
{
    QDir().mkpath(folder);
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        const auto &content = chance && (*chance)() % 2 ? name->now : name->synced;
        if (QFile file(folder + u'/' + QFileInfo(name.key()).fileName()); content && file.open(QIODevice::WriteOnly))
            file.write(chance ? content->afterLoss(*chance) : content->synced);
    }
}

} // namespace proof
