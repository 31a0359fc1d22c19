#include "datafile/jet/Confinement.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace jet {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_AARCH64;
#else
#error "Which numbers do system calls have here? Add the architecture."
#endif

#ifdef __SANITIZE_ADDRESS__
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif
constexpr bool limitsMemory = !isSanitized; // the sanitizers' shadow takes more address space than any limit

// What reading, memory and the end of the process need. None of these writes to a file, opens one or reaches a process.
constexpr std::array harmless{
    __NR_read,         __NR_pread64,     __NR_lseek,      __NR_close,        __NR_fstat,     __NR_newfstatat,
    __NR_mmap,         __NR_brk,         __NR_munmap,     __NR_mremap,       __NR_mprotect,  __NR_madvise,
    __NR_futex,        __NR_exit,        __NR_exit_group, __NR_rt_sigreturn, __NR_getrandom, __NR_rt_sigprocmask,
    __NR_rt_sigaction, __NR_sigaltstack,
};

constexpr std::uint32_t changesFiles = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC;

sock_filter load(std::size_t offset)
{
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
}

sock_filter answer(std::uint32_t action)
{
    return BPF_STMT(BPF_RET | BPF_K, action);
}

// Skips so many instructions unless the test of what was loaded holds.
sock_filter unless(std::uint16_t test, std::uint32_t operand, std::uint8_t skipped)
{
    return BPF_JUMP(static_cast<std::uint16_t>(BPF_JMP | test | BPF_K), operand, 0, skipped);
}

std::size_t offsetOfArgument(std::size_t argument)
{
    return offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t); // the low half, on a little-endian machine
}

std::vector<sock_filter> filter()
{
    const sock_filter refuse = answer(SECCOMP_RET_ERRNO | EPERM);
    const sock_filter allow = answer(SECCOMP_RET_ALLOW);
    // Numbers of system calls mean something else in another architecture's mode.
    std::vector<sock_filter> program{load(offsetof(seccomp_data, arch)),
                                     BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, architecture, 1, 0),
                                     answer(SECCOMP_RET_KILL_PROCESS), load(offsetof(seccomp_data, nr))};
    for (const int call : harmless) {
        program.push_back(unless(BPF_JEQ, static_cast<std::uint32_t>(call), 1));
        program.push_back(allow);
    }
    // The sanitizers' check of an object's type writes its bytes into a pipe, to learn whether they can be read.
    if (isSanitized)
        program.insert(program.end(), {unless(BPF_JEQ, __NR_pipe2, 1), allow, unless(BPF_JEQ, __NR_write, 4),
                                       load(offsetOfArgument(0)), unless(BPF_JGT, STDERR_FILENO, 1), allow,
                                       load(offsetof(seccomp_data, nr))});
    program.insert(program.end(),
                   {unless(BPF_JEQ, __NR_write, 4), load(offsetOfArgument(0)), unless(BPF_JEQ, STDOUT_FILENO, 1), allow,
                    refuse, unless(BPF_JEQ, __NR_openat, 4), load(offsetOfArgument(2)),
                    unless(BPF_JSET, changesFiles, 1), refuse, allow, refuse});
    return program;
}

bool limit(int resource, unsigned long most)
{
    const rlimit both{most, most};
    return setrlimit(static_cast<__rlimit_resource_t>(resource), &both) == 0;
}

} // namespace

bool confine(const Limits &limits)
{
    constexpr unsigned long openFiles = 32;
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || clearenv() != 0 || !limit(RLIMIT_CORE, 0) || !limit(RLIMIT_FSIZE, 0) ||
        !limit(RLIMIT_NOFILE, openFiles) || !limit(RLIMIT_CPU, limits.processor) ||
        (limitsMemory && !limit(RLIMIT_AS, limits.memory)))
        return false;
    std::vector<sock_filter> program = filter();
    const sock_fprog whole{static_cast<unsigned short>(program.size()), program.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &whole) == 0;
}

} // namespace jet
