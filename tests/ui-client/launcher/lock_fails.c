// Preloaded into a program, makes every record lock fail as on a file system without a lock service
// (ENOLCK, as NFS without its lock daemon answers).
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>

// fcntl's third argument, where there is one, is an int or a pointer: passed on as a pointer-sized value.
int fcntl(int fd, int cmd, ...) {
    va_list args;
    va_start(args, cmd);
    void* arg = va_arg(args, void*);
    va_end(args);
    if (cmd == F_SETLK || cmd == F_SETLKW || cmd == F_OFD_SETLK || cmd == F_OFD_SETLKW) {
        errno = ENOLCK;
        return -1;
    }
    return ((int (*)(int, int, ...))dlsym(RTLD_NEXT, "fcntl64"))(fd, cmd, arg);
}

// Programs built with 64-bit file offsets call it by this name.
int fcntl64(int fd, int cmd, ...) __attribute__((alias("fcntl")));
