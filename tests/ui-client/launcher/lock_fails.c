// Preloaded into a program, makes every record lock fail as on a file system without a lock service
// (ENOLCK, as NFS without its lock daemon answers).
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>

// fcntl's third argument, where there is one, is an int or a pointer: passed on as a pointer-sized value.
static int fail_locks(const char* name, int fd, int cmd, void* arg) {
    if (cmd == F_SETLK || cmd == F_SETLKW || cmd == F_OFD_SETLK || cmd == F_OFD_SETLKW) {
        errno = ENOLCK;
        return -1;
    }
    return ((int (*)(int, int, ...))dlsym(RTLD_NEXT, name))(fd, cmd, arg);
}

int fcntl(int fd, int cmd, ...) {
    va_list args;
    va_start(args, cmd);
    void* arg = va_arg(args, void*);
    va_end(args);
    return fail_locks("fcntl", fd, cmd, arg);
}

int fcntl64(int fd, int cmd, ...) {
    va_list args;
    va_start(args, cmd);
    void* arg = va_arg(args, void*);
    va_end(args);
    return fail_locks("fcntl64", fd, cmd, arg);
}
