#include "log.h"

#include <syslog.h>

#include <ctime>

#include "config.h"
#include "stream.h"

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
FILE* Logger::log_fp = nullptr;
ustring Logger::log_path;
int32_t Logger::log_size = -1;
int32_t Logger::rotate_cnt = 50;
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;
std::map<ustring, int> Logger::log_level;

namespace {

const int kDefaultThreshold = Logger::LEVEL_WARNING;
const int32_t kRotateAfterBytes = 1048577;  // more than 1 MiB
const size_t kRotateNameSize = 1024;

bool is_standard_stream(FILE* fp) { return fp == stdout || fp == stderr; }

// A file of an earlier Initialize is closed when the destination changes.
void replace_stream(FILE* fp) {
    if (Logger::log_fp && Logger::log_fp != fp && !is_standard_stream(Logger::log_fp)) fclose(Logger::log_fp);
    Logger::log_fp = fp;
}

void load_thresholds(const ustring& level_conf) {
    Logger::log_level["default_component"] = kDefaultThreshold;
    if (level_conf.empty()) return;
    Config conf;
    conf.read(level_conf);
    for (auto& entry : conf.entries) Logger::log_level[entry.first] = conf.get_int(entry.first);
}

int threshold_of(const ustring& component) {
    auto it = Logger::log_level.find(component);
    return it == Logger::log_level.end() ? kDefaultThreshold : it->second;
}

// Writes the time prefix and the message; returns the number of bytes written.
int write_with_time(FILE* fp, const char* format, va_list args) {
    char prefix[512];
    time_t now = time(nullptr);
    struct tm local;
    localtime_r(&now, &local);
    strftime(prefix, sizeof prefix, "%b %d %H:%M:%S ", &local);
    int written = fprintf(fp, "%s", prefix);
    written += vfprintf(fp, format, args);
    fflush(fp);
    return written;
}

void rotated_name(char* buf, int i) { snprintf(buf, kRotateNameSize, "%s_%d", Logger::log_path.c_str(), i); }

}  // namespace

int Logger::Initialize(Type type, const ustring& path, const ustring& level_conf, int rotate_count) {
    load_thresholds(level_conf);
    log_type = type;
    switch (type) {
    case TYPE_SYSLOG:
    case TYPE_STDOUT:
    case TYPE_STDERR:
        replace_stream(type == TYPE_STDOUT ? stdout : type == TYPE_STDERR ? stderr : nullptr);
        log_path.clear();
        log_size = -1;
        return 0;
    case TYPE_FILE: {
        if (path.empty()) return -1;
        FILE* fp = open_for_append(path.c_str());
        if (!fp) return -1;
        replace_stream(fp);
        log_size = 0;
        log_path = path;
        rotate_cnt = rotate_count;
        return 0;
    }
    }
    return -1;  // not a destination we know; the stream is left as it was
}

void Logger::Destroy() {
    if (log_type != TYPE_FILE) return;
    if (log_fp) fclose(log_fp);
    log_fp = stdout;
    log_size = -1;
    log_type = TYPE_STDERR;
    log_path.clear();
    rotate_cnt = 32;
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

// The stream is tested under the lock: a rotation closes and reopens it, and a test without the
// lock would see it missing for that moment and drop the messages of every other thread.
void Logger::LogMsg2(Level level, const ustring& component, const char* format, va_list args) {
    int cancel_state;
    pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancel_state);
    pthread_mutex_lock(&log_lock);

    const bool has_destination = log_type == TYPE_SYSLOG || log_fp;
    if (has_destination && threshold_of(component) >= level) {
        int written = -1;
        switch (log_type) {
        case TYPE_SYSLOG:
            vsyslog(LOG_ERR, format, args);
            break;
        case TYPE_STDOUT:
        case TYPE_STDERR:
        case TYPE_FILE:
            if (log_fp) written = write_with_time(log_fp, format, args);
            break;
        default:
            vfprintf(stderr, format, args);
            break;
        }
        if (log_type == TYPE_FILE && log_size >= 0 && written >= 0) {
            log_size += written;
            if (log_size >= kRotateAfterBytes) {
                Rotate();
                log_size = 0;
            }
        }
    }

    pthread_mutex_unlock(&log_lock);
    pthread_setcancelstate(cancel_state, nullptr);
}

// P_(N-2) .. P_0 shift up by one, P_(N-1) (the old P_(N-2)) goes, P becomes P_0.
int Logger::Rotate() {
    char from[kRotateNameSize];
    char to[kRotateNameSize];
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        rotated_name(from, i);
        rotated_name(to, i + 1);
        rename(from, to);
    }
    rotated_name(from, rotate_cnt - 1);
    remove(from);

    if (log_fp) fclose(log_fp);
    log_fp = nullptr;
    rotated_name(to, 0);
    if (rename(log_path.c_str(), to) != 0) return -1;
    log_fp = open_for_append(log_path.c_str());
    return log_fp ? 0 : -1;
}

extern "C" void LogMSG_c(int level, const char* component, const char* format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}
