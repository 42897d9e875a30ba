#include "base/faultycalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

struct Plan {
    bool armed = false;
    int count = 0;
    int failAt = 0;
    int error = 0;
    int signal = 0;
    bool after = false;
    bool shortWrites = false;
    std::string always;
    int alwaysError = 0;
    const char* failed = nullptr;
};
Plan plan;

/// Does the call, or what is planned in its place.
template <class Result, class... Parameters, class... Given>
Result perform(const char* name, Result (*)(Parameters...), Given... given) {
    auto* const real = reinterpret_cast<Result (*)(Parameters...)>(::dlsym(RTLD_NEXT, name));
    if (!plan.armed) {
        return real(given...);
    }
    const bool chosen = ++plan.count == plan.failAt;
    if (chosen && plan.signal != 0 && !plan.after) {
        ::raise(plan.signal);
    }
    const bool failed = plan.always == name || (chosen && plan.signal == 0);
    if (failed) {
        plan.failed = chosen ? name : plan.failed;
        errno = plan.always == name ? plan.alwaysError : plan.error;
        return static_cast<Result>(-1);
    }
    const Result result = real(given...);
    if (chosen && plan.signal != 0 && plan.after) {
        ::raise(plan.signal);
    }
    return result;
}

std::size_t lengthOf(std::size_t length) {
    return plan.armed && plan.shortWrites ? std::min<std::size_t>(length, 1) : length;
}

}  // namespace

namespace tavrel {

void FaultyCalls::failAt(int number, int error, bool shortWrites) {
    plan.failAt = number;
    plan.error = error;
    plan.signal = 0;
    plan.shortWrites = shortWrites;
    plan.count = 0;
    plan.failed = nullptr;
    plan.armed = true;
}

void FaultyCalls::signalAt(int number, int signal, bool after) {
    failAt(number, 0);
    plan.signal = signal;
    plan.after = after;
}

void FaultyCalls::failAlways(std::string_view name, int error) {
    plan.always = name;
    plan.alwaysError = error;
}

const char* FaultyCalls::failed() {
    return plan.failed;
}

int FaultyCalls::disarm() {
    plan.armed = false;
    return plan.count;
}

}  // namespace tavrel

// Each call of the same name and type as the system's.
#define TAVREL_FAULTY(result, name, parameters, ...)                            \
    extern "C" result name parameters noexcept(noexcept(::name(__VA_ARGS__))) { \
        return perform(#name, &::name, __VA_ARGS__);                            \
    }

TAVREL_FAULTY(int, fsync, (int file), file)
TAVREL_FAULTY(int, fchmod, (int file, mode_t mode), file, mode)
TAVREL_FAULTY(int, fchown, (int file, uid_t owner, gid_t group), file, owner, group)
TAVREL_FAULTY(int, fstat, (int file, struct stat* status), file, status)
TAVREL_FAULTY(int, stat, (const char* path, struct stat* status), path, status)
TAVREL_FAULTY(int, access, (const char* path, int mode), path, mode)
TAVREL_FAULTY(int, rename, (const char* from, const char* to), from, to)
TAVREL_FAULTY(int, linkat, (int at, const char* from, int to, const char* path, int flags), at, from, to, path, flags)
TAVREL_FAULTY(int, unlink, (const char* path), path)
TAVREL_FAULTY(int, flock, (int file, int kind), file, kind)
TAVREL_FAULTY(int, ftruncate, (int file, off_t size), file, size)
TAVREL_FAULTY(ssize_t, read, (int file, void* bytes, std::size_t size), file, bytes, size)
TAVREL_FAULTY(ssize_t, write, (int file, const void* bytes, std::size_t size), file, bytes, lengthOf(size))
TAVREL_FAULTY(ssize_t, pwrite, (int file, const void* bytes, std::size_t size, off_t at), file, bytes, lengthOf(size),
              at)
TAVREL_FAULTY(ssize_t, getxattr, (const char* path, const char* name, void* value, std::size_t size), path, name, value,
              size)
TAVREL_FAULTY(ssize_t, listxattr, (const char* path, char* names, std::size_t size), path, names, size)
TAVREL_FAULTY(int, fsetxattr, (int file, const char* name, const void* value, std::size_t size, int flags), file, name,
              value, size, flags)
TAVREL_FAULTY(int, fremovexattr, (int file, const char* name), file, name)

extern "C" int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return perform("open", static_cast<int (*)(const char*, int, mode_t)>(nullptr), path, flags, mode);
}
