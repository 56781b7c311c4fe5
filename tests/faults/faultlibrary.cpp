// Preloaded into a program, makes chosen calls of the system fail; see faultplan.h.

#include "faultplan.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

namespace
{

// In the order of their names.
enum Kind { Write, Fsync, Rename, Open, Mkdir, Close, Unlink, Fork, Exec, Kinds };

FaultState *state = nullptr; // null: this program is left alone
int chosenKind = -1;
int chosenCall = 0;
int effect = 0;
bool lasting = false;

const char *setting(const char *name)
{
    const char *value = getenv(name);
    return value ? value : "";
}

bool isMeant()
{
    char path[4096];
    const ssize_t size = syscall(SYS_readlink, "/proc/self/exe", path, sizeof path - 1);
    if (size <= 0)
        return false;
    path[size] = '\0';
    const char *name = strrchr(path, '/');
    name = name ? name + 1 : path;
    const size_t length = strlen(name);
    for (const char *at = setting("TARVO_FAULT_PROGRAMS"); *at != '\0';) {
        const size_t step = strcspn(at, ":");
        if (step == length && strncmp(at, name, length) == 0)
            return true;
        at += step + (at[step] == ':' ? 1 : 0);
    }
    return false;
}

__attribute__((constructor)) void prepare()
{
    const char *file = setting("TARVO_FAULT_STATE");
    if (*file == '\0' || !isMeant())
        return;
    const int fd = int(syscall(SYS_openat, AT_FDCWD, file, O_RDWR | O_CLOEXEC, 0));
    if (fd < 0)
        return;
    void *memory = mmap(nullptr, sizeof(FaultState), PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    syscall(SYS_close, fd);
    if (memory == MAP_FAILED)
        return;
    for (int kind = 0; kind < Kinds; ++kind) {
        if (strcmp(kinds[kind], setting("TARVO_FAULT_KIND")) == 0)
            chosenKind = kind;
    }
    chosenCall = atoi(setting("TARVO_FAULT_AT"));
    effect = atoi(setting("TARVO_FAULT_EFFECT"));
    lasting = *setting("TARVO_FAULT_LASTING") == '1';
    state = static_cast<FaultState *>(memory);
    int none = 0;
    state->main.compare_exchange_strong(none, int(getpid()));
}

template <typename Function>
Function original(Function, const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void stand(int milliseconds)
{
    const timespec time = {milliseconds / 1000, (milliseconds % 1000) * 1000000L};
    nanosleep(&time, nullptr);
}

// Whether this call is chosen.
bool isChosen(Kind kind)
{
    if (!state)
        return false;
    const int number = ++state->counts[kind];
    if (kind != chosenKind || (number != chosenCall && !(lasting && number > chosenCall)))
        return false;
    ++state->fired;
    if (kind == Fsync || kind == Rename)
        ++state->onFile;
    return true;
}

[[noreturn]] void die()
{
    syscall(SYS_kill, getpid(), SIGKILL);
    for (;;)
        stand(1000);
}

// Does what is to happen before the call; true if the call is to fail, with errno set.
bool failsBefore()
{
    if (effect > 0) {
        errno = effect;
        return true;
    }
    if (effect == KillBefore)
        die();
    if (effect == KillMain) {
        if (state->main == getpid())
            die();
        if (state->main > 1)
            syscall(SYS_kill, int(state->main), SIGKILL);
        // Before it becomes another program a child is helpless; elsewhere it is only late.
        stand(chosenKind == Exec ? 60000 : 2000);
    }
    return false;
}

template <typename Function, typename... Arguments>
auto pass(Kind kind, const char *name, Function function, Arguments... arguments)
    -> decltype(function(arguments...))
{
    const bool chosen = isChosen(kind);
    if (chosen && failsBefore())
        return decltype(function(arguments...))(-1);
    const auto result = original(function, name)(arguments...);
    if (chosen && effect == KillAfter)
        die();
    return result;
}

// What an open() call has as its third argument, if it has one.
#define TARVO_MODE_OF(flags)                                                                       \
    mode_t mode = 0;                                                                               \
    if ((flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE) {                                   \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        mode = va_arg(list, mode_t);                                                               \
        va_end(list);                                                                              \
    }

pid_t passFork()
{
    const bool chosen = isChosen(Fork);
    if (chosen && failsBefore())
        return -1;
    const pid_t parent = getpid();
    const pid_t child = original(&::fork, "fork")();
    if (chosen && effect == KillAfter) {
        if (child > 0)
            die();
        for (int i = 0; i < 10000 && getppid() == parent; ++i)
            stand(1);
    }
    return child;
}

} // namespace

extern "C" {

int __open_2(const char *path, int flags);
int __open64_2(const char *path, int flags);
int __openat_2(int dir, const char *path, int flags);
int __openat64_2(int dir, const char *path, int flags);

// Writes also wake an event loop, or tell another process.
ssize_t write(int fd, const void *bytes, size_t size)
{
    const bool chosen = isChosen(Write);
    struct stat status = {};
    if (chosen && fstat(fd, &status) == 0 && S_ISREG(status.st_mode))
        ++state->onFile;
    if (effect != ShortCount) {
        if (chosen && failsBefore())
            return -1;
        const ssize_t result = original(&::write, "write")(fd, bytes, size);
        if (chosen && effect == KillAfter)
            die();
        return result;
    }
    return original(&::write, "write")(fd, bytes, chosen && size > 1 ? size / 2 : size);
}

ssize_t pwrite(int fd, const void *bytes, size_t size, off_t at)
{
    return pass(Write, "pwrite", &::pwrite, fd, bytes, size, at);
}

ssize_t pwrite64(int fd, const void *bytes, size_t size, off64_t at)
{
    return pass(Write, "pwrite64", &::pwrite64, fd, bytes, size, at);
}

ssize_t writev(int fd, const iovec *parts, int count)
{
    return pass(Write, "writev", &::writev, fd, parts, count);
}

int ftruncate(int fd, off_t size) noexcept
{
    return pass(Write, "ftruncate", &::ftruncate, fd, size);
}

int ftruncate64(int fd, off64_t size) noexcept
{
    return pass(Write, "ftruncate64", &::ftruncate64, fd, size);
}

int fsync(int fd)
{
    return pass(Fsync, "fsync", &::fsync, fd);
}

int fdatasync(int fd)
{
    return pass(Fsync, "fdatasync", &::fdatasync, fd);
}

int syncfs(int fd) noexcept
{
    return pass(Fsync, "syncfs", &::syncfs, fd);
}

int rename(const char *from, const char *to) noexcept
{
    return pass(Rename, "rename", &::rename, from, to);
}

int renameat(int fromDir, const char *from, int toDir, const char *to) noexcept
{
    return pass(Rename, "renameat", &::renameat, fromDir, from, toDir, to);
}

int renameat2(int fromDir, const char *from, int toDir, const char *to, unsigned flags) noexcept
{
    return pass(Rename, "renameat2", &::renameat2, fromDir, from, toDir, to, flags);
}

int link(const char *from, const char *to) noexcept
{
    return pass(Rename, "link", &::link, from, to);
}

int linkat(int fromDir, const char *from, int toDir, const char *to, int flags) noexcept
{
    return pass(Rename, "linkat", &::linkat, fromDir, from, toDir, to, flags);
}

int symlink(const char *target, const char *name) noexcept
{
    return pass(Rename, "symlink", &::symlink, target, name);
}

int symlinkat(const char *target, int dir, const char *name) noexcept
{
    return pass(Rename, "symlinkat", &::symlinkat, target, dir, name);
}

int open(const char *path, int flags, ...)
{
    TARVO_MODE_OF(flags)
    return pass(Open, "open", &::open, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    TARVO_MODE_OF(flags)
    return pass(Open, "open64", &::open64, path, flags, mode);
}

int openat(int dir, const char *path, int flags, ...)
{
    TARVO_MODE_OF(flags)
    return pass(Open, "openat", &::openat, dir, path, flags, mode);
}

int openat64(int dir, const char *path, int flags, ...)
{
    TARVO_MODE_OF(flags)
    return pass(Open, "openat64", &::openat64, dir, path, flags, mode);
}

// What checked builds call.
int __open_2(const char *path, int flags)
{
    return pass(Open, "__open_2", &::__open_2, path, flags);
}

int __open64_2(const char *path, int flags)
{
    return pass(Open, "__open64_2", &::__open64_2, path, flags);
}

int __openat_2(int dir, const char *path, int flags)
{
    return pass(Open, "__openat_2", &::__openat_2, dir, path, flags);
}

int __openat64_2(int dir, const char *path, int flags)
{
    return pass(Open, "__openat64_2", &::__openat64_2, dir, path, flags);
}

int creat(const char *path, mode_t mode)
{
    return pass(Open, "creat", &::creat, path, mode);
}

int pipe2(int *ends, int flags) noexcept
{
    return pass(Open, "pipe2", &::pipe2, ends, flags);
}

int socketpair(int domain, int type, int protocol, int *ends) noexcept
{
    return pass(Open, "socketpair", &::socketpair, domain, type, protocol, ends);
}

int dup(int fd) noexcept
{
    return pass(Open, "dup", &::dup, fd);
}

FILE *fopen(const char *path, const char *mode)
{
    return isChosen(Open) && failsBefore() ? nullptr : original(&::fopen, "fopen")(path, mode);
}

FILE *fopen64(const char *path, const char *mode)
{
    return isChosen(Open) && failsBefore() ? nullptr : original(&::fopen64, "fopen64")(path, mode);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return pass(Mkdir, "mkdir", &::mkdir, path, mode);
}

int mkdirat(int dir, const char *path, mode_t mode) noexcept
{
    return pass(Mkdir, "mkdirat", &::mkdirat, dir, path, mode);
}

char *mkdtemp(char *pattern) noexcept
{
    return isChosen(Mkdir) && failsBefore() ? nullptr : original(&::mkdtemp, "mkdtemp")(pattern);
}

// Closes in any case, as the system does.
int close(int fd)
{
    const bool chosen = isChosen(Close);
    const bool fails = chosen && failsBefore();
    const int number = errno;
    const int result = original(&::close, "close")(fd);
    if (chosen && effect == KillAfter)
        die();
    if (!fails)
        return result;
    errno = number;
    return -1;
}

int unlink(const char *path) noexcept
{
    return pass(Unlink, "unlink", &::unlink, path);
}

int unlinkat(int dir, const char *path, int flags) noexcept
{
    return pass(Unlink, "unlinkat", &::unlinkat, dir, path, flags);
}

int rmdir(const char *path) noexcept
{
    return pass(Unlink, "rmdir", &::rmdir, path);
}

int remove(const char *path) noexcept
{
    return pass(Unlink, "remove", &::remove, path);
}

pid_t fork(void) noexcept
{
    return passFork();
}

// A child that returns from here would spoil its parent's stack, so it gets one of its own.
pid_t vfork(void) noexcept
{
    return passFork();
}

int posix_spawn(pid_t *child, const char *path, const posix_spawn_file_actions_t *actions,
                const posix_spawnattr_t *attributes, char *const arguments[],
                char *const environment[])
{
    if (isChosen(Fork) && failsBefore())
        return errno;
    return original(&::posix_spawn, "posix_spawn")(child, path, actions, attributes, arguments,
                                                   environment);
}

FILE *popen(const char *command, const char *mode)
{
    return isChosen(Fork) && failsBefore() ? nullptr : original(&::popen, "popen")(command, mode);
}

int execve(const char *path, char *const arguments[], char *const environment[]) noexcept
{
    return pass(Exec, "execve", &::execve, path, arguments, environment);
}

int execv(const char *path, char *const arguments[]) noexcept
{
    return pass(Exec, "execv", &::execv, path, arguments);
}

int execvp(const char *file, char *const arguments[]) noexcept
{
    return pass(Exec, "execvp", &::execvp, file, arguments);
}

} // extern "C"
