#include "proof/Faults.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>
#include <sqlite3.h>

// The linker's names for where the program's own code begins and ends.
extern "C" const char __executable_start;
extern "C" const char etext;

namespace proof {

namespace {

Plan armed;
std::array<qint64, 5> counted{};
bool isCounting = false;
bool came = false;
sqlite3_mem_methods memory;

// Qt's hash, whose code is compiled into ours, promises not to throw, so that memory that is refused to it ends the
// process. An optimised build cannot tell it from ours.
bool isOurs(const void *caller)
{
    if (caller < &__executable_start || caller >= &etext)
        return false;
    Dl_info its;
    return dladdr(caller, &its) == 0 || !its.dli_sname || !std::strstr(its.dli_sname, "QHashPrivate");
}

} // namespace

void arm(Plan plan)
{
    armed = plan;
    counted = {};
    isCounting = true;
    came = false;
}

bool isDue(Fault fault)
{
    const qint64 number = ++counted[std::size_t(fault)];
    if (fault != armed.fault || armed.at == 0 || number < armed.at || (number > armed.at && !armed.lasts))
        return false;
    came = true;
    if (fault == Fault::Kill)
        std::raise(SIGKILL);
    return true;
}

bool hasCome()
{
    return came;
}

qint64 callsSoFar(Fault fault)
{
    return counted[std::size_t(fault)];
}

void installFaults()
{
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &memory);
    sqlite3_mem_methods failing = memory;
    failing.xMalloc = [](int size) { return isDue(Fault::StoreMemory) ? nullptr : memory.xMalloc(size); };
    failing.xRealloc = [](void *block, int size) {
        return isDue(Fault::StoreMemory) ? nullptr : memory.xRealloc(block, size);
    };
    sqlite3_config(SQLITE_CONFIG_MALLOC, &failing);
    sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0); // its small blocks would come from elsewhere
    installFaultyFiles();
}

} // namespace proof

void *operator new(std::size_t size)
{
    using namespace proof;
    // Whose code it is takes long to find out, and matters only where it fails or where all calls are counted.
    const bool matters = isCounting && (armed.fault == Fault::OwnMemory || armed.at == 0);
    void *block =
        matters && isOurs(__builtin_return_address(0)) && isDue(Fault::OwnMemory) ? nullptr : std::malloc(size);
    return block ? block : throw std::bad_alloc();
}

void operator delete(void *block) noexcept
{
    std::free(block);
}

void operator delete(void *block, std::size_t) noexcept
{
    std::free(block);
}
