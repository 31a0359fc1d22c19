#include "platform/data/engine/WarmFile.h"

#include <QDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace data {

std::optional<WarmFile::Look> WarmFile::look() const
{
    // By its name: to open the file and close it again would take SQLite's own locks off it.
    struct stat file = {};
    if (stat(m_name.constData(), &file) != 0)
        return std::nullopt;
    const auto may = [this](int way) { return faccessat(AT_FDCWD, m_name.constData(), way, AT_EACCESS) == 0; };
    return Look{.device = file.st_dev,
                .inode = file.st_ino,
                .access = may(R_OK | W_OK) ? R_OK | W_OK
                          : may(R_OK)      ? R_OK
                                           : 0,
                .size = file.st_size,
                .written = {file.st_mtim.tv_sec, file.st_mtim.tv_nsec},
                .changed = {file.st_ctim.tv_sec, file.st_ctim.tv_nsec}};
}

std::shared_ptr<Database> WarmFile::open(const QString &path)
{
    static const std::shared_ptr<WarmFile> warm(new WarmFile);
    auto file = std::make_unique<Database>();
    if (QDir::isRelativePath(path)) { // may name another file the next time
        file->open(path);
        return file;
    }
    if (path != warm->m_path) {
        warm->m_waiting.clear();
        warm->m_path = path;
        warm->m_name = Database::systemName(path);
    }
    const std::optional<Look> now = warm->look();
    if (auto waiting = now ? warm->takeUp(*now) : nullptr)
        file = std::move(waiting);
    else
        file->open(path);
    const auto giveBack = [home = std::weak_ptr(warm), opened = now.value_or(Look())](Database *closed) {
        std::unique_ptr<Database> given(closed);
        if (const auto warmFile = home.lock()) // not at the end of the process
            warmFile->giveBack(std::move(given), opened);
    };
    return {file.release(), giveBack};
}

std::unique_ptr<Database> WarmFile::takeUp(const Look &now)
{
    while (!m_waiting.empty()) {
        Waiting last = std::move(m_waiting.back());
        m_waiting.pop_back();
        if (last.look != now)
            continue;
        try {
            last.file->refreshSchema();
            return std::move(last.file);
        } catch (const StoreError &error) {
            if (error.isInUse()) // opening the file anew would wait for its lock a second time
                throw;
        }
    }
    return nullptr;
}

void WarmFile::giveBack(std::unique_ptr<Database> file, const Look &opened) noexcept
{
    if (file->path() != m_path || m_waiting.size() >= mostWaiting || !file->rest())
        return;
    // The times are read now, after the connection's own last change. What this user may do is that of the opening:
    // when it has changed since, the handle must not be taken up.
    std::optional<Look> now = look();
    if (!now || !now->isSameFile(opened))
        return;
    now->access = opened.access;
    m_waiting.push_back({std::move(file), *now});
}

} // namespace data
