// Streams of the launcher's own files. They are close-on-exec, so the client the launcher starts
// inherits none of them (fopen's "e" mode is not portable).
#ifndef LIB_STREAM_H
#define LIB_STREAM_H

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

// open(2) flags and the matching fdopen mode, e.g. O_RDONLY and "r".
inline FILE* open_stream(const char* path, int flags, const char* mode) {
    const int fd = open(path, flags | O_CLOEXEC, 0666);
    if (fd < 0) return nullptr;
    FILE* fp = fdopen(fd, mode);
    if (!fp) close(fd);
    return fp;
}

inline FILE* open_for_append(const char* path) { return open_stream(path, O_WRONLY | O_APPEND | O_CREAT, "a"); }

#endif
