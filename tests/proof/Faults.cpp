#include "proof/Faults.h"

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>
#include <sqlite3.h>
#include <sys/mman.h>

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

// The answers of dladdr, which is slow. They are in memory that all children share, so that what one has asked the next
// ones know.
struct Known
{
    const void *caller;
    bool isOurs;
};
constexpr std::size_t mostCallers = 1 << 16;
Known *callers = nullptr;

// Allocations of Qt's hash do not count as ours, though its code is compiled into ours: it promises not to throw, so
// that memory that is refused to it ends the process.
bool isOurs(const void *caller)
{
    if (caller < &__executable_start || caller >= &etext)
        return false;
    Known &known = callers[reinterpret_cast<std::uintptr_t>(caller) % mostCallers];
    if (known.caller != caller) {
        Dl_info its;
        known.isOurs = dladdr(caller, &its) == 0 || !its.dli_sname || !std::strstr(its.dli_sname, "QHashPrivate");
        known.caller = caller;
    }
    return known.isOurs;
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
    callers = static_cast<Known *>(
        mmap(nullptr, mostCallers * sizeof(Known), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
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
    void *block =
        isCounting && isOurs(__builtin_return_address(0)) && isDue(Fault::OwnMemory) ? nullptr : std::malloc(size);
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
