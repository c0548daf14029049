// Logger: the process-wide log of all non-UI code.
//
// Callers put the level tag and source position into their own format, e.g.
//   Logger::LogMsg(Logger::LEVEL_ERROR, "file_op_debug", "[ERROR] file-op.cpp(%d): ...\n", __LINE__);
// The logger adds only a time prefix ("Nov 16 21:52:09 "). A message is written when its level is
// not above its component's threshold (4 unless the level file says otherwise). The file
// destination rotates by size: once more than 1 MiB has been written, P becomes P_0, P_0 becomes
// P_1, ... and at most rotate_cnt - 1 rotated files are kept.
#ifndef LIB_LOG_H
#define LIB_LOG_H

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring.h"

class Logger {
public:
    enum Type {
        TYPE_SYSLOG = 1,
        TYPE_STDOUT = 2,
        TYPE_STDERR = 3,
        TYPE_FILE = 4,
    };

    // syslog priority numbers
    enum Level {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7,
    };

    // Call before any other thread logs. Returns -1 when the file destination has no path or the
    // file cannot be opened for appending; 0 otherwise. The level file (key=value, one threshold
    // per component) may be empty or missing. Adds to the thresholds of earlier calls.
    static int Initialize(Type type, const ustring& path, const ustring& level_conf, int rotate_count);

    // File destination only: closes the file and sends later messages to standard output.
    static void Destroy();

    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    // Called by the two message functions with log_lock held.
    static int Rotate();

    static Type log_type;
    static FILE* log_fp;
    static ustring log_path;
    static int32_t log_size;
    static int32_t rotate_cnt;
    static pthread_mutex_t log_lock;
    static std::map<ustring, int> log_level;
};

// For plain-C callers.
extern "C" void LogMSG_c(int level, const char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

#endif
