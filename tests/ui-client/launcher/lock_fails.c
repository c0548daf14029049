// Preloaded into a program, makes every record lock fail as on a file system without a lock service
// (ENOLCK, as NFS without its lock daemon answers).
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>

static int forward(const char* name, int fd, int cmd, void* arg) {
    int (*real)(int, int, ...) = (int (*)(int, int, ...))dlsym(RTLD_NEXT, name);
    return real(fd, cmd, arg);
}

static int fail_locks(const char* name, int fd, int cmd, va_list args) {
    void* arg = va_arg(args, void*);
    if (cmd == F_SETLK || cmd == F_SETLKW || cmd == F_OFD_SETLK || cmd == F_OFD_SETLKW) {
        errno = ENOLCK;
        return -1;
    }
    return forward(name, fd, cmd, arg);
}

int fcntl(int fd, int cmd, ...) {
    va_list args;
    va_start(args, cmd);
    const int rc = fail_locks("fcntl", fd, cmd, args);
    va_end(args);
    return rc;
}

int fcntl64(int fd, int cmd, ...) {
    va_list args;
    va_start(args, cmd);
    const int rc = fail_locks("fcntl64", fd, cmd, args);
    va_end(args);
    return rc;
}
