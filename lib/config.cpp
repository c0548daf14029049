#include "config.h"

#include <climits>
#include <cstdio>
#include <memory>

#include "stream.h"

namespace {

const int kLineBufferSize = 8192;

bool is_space(unsigned char c) { return c == ' ' || (c >= 9 && c <= 13); }

bool is_key_char(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

bool is_control(unsigned char c) { return c < 32 || c == 127; }

const unsigned char* skip_space(const unsigned char* p) {
    while (is_space(*p)) ++p;
    return p;
}

enum class LineKind { Ignored, Entry, Malformed };

// Parses one line; on LineKind::Entry, key and value hold the entry.
LineKind parse_line(const unsigned char* p, ustring& key, ustring& value) {
    p = skip_space(p);
    const unsigned char* key_begin = p;
    while (is_key_char(*p)) ++p;
    const unsigned char* key_end = p;
    if (*p == 0 || *p == '#') return LineKind::Ignored;

    p = skip_space(p);
    if (*p != '=') return LineKind::Malformed;
    p = skip_space(p + 1);
    if (*p == 0) return LineKind::Malformed;

    const unsigned char* value_begin;
    const unsigned char* value_end;
    if (*p == '"' || *p == '\'') {
        const unsigned char quote = *p++;
        value_begin = p;
        while (*p != quote) {
            if (is_control(*p)) return LineKind::Malformed;  // includes the end of the line
            ++p;
        }
        value_end = p++;
    } else {
        value_begin = p;
        while (*p > ' ' && *p != 127) ++p;
        value_end = p;
        if (value_end == value_begin) return LineKind::Malformed;
    }

    p = skip_space(p);
    if (*p != 0 && *p != '#') return LineKind::Malformed;

    key.assign(reinterpret_cast<const char*>(key_begin), static_cast<uint32_t>(key_end - key_begin));
    value.assign(reinterpret_cast<const char*>(value_begin), static_cast<uint32_t>(value_end - value_begin));
    return LineKind::Entry;
}

}  // namespace

int Config::read(const ustring& path) {
    if (path.empty()) return -1;
    std::unique_ptr<FILE, int (*)(FILE*)> file(open_stream(path.c_str(), O_RDONLY, "r"), fclose);
    if (!file) return -1;

    char line[kLineBufferSize];
    ustring key, value;
    while (fgets(line, sizeof line, file.get())) {
        switch (parse_line(reinterpret_cast<const unsigned char*>(line), key, value)) {
        case LineKind::Ignored:
            break;
        case LineKind::Entry:
            entries[key] = value;
            break;
        case LineKind::Malformed:
            entries.clear();
            return -1;
        }
    }
    return 0;
}

int parse_leading_int(const char* text) {
    const unsigned char* p = skip_space(reinterpret_cast<const unsigned char*>(text));
    const bool negative = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    if (*p < '0' || *p > '9') return 0;

    // Accumulate towards the sign so INT_MIN is reachable; clamp instead of overflowing.
    long long value = 0;
    for (; *p >= '0' && *p <= '9'; ++p) {
        value = value * 10 + (negative ? -(*p - '0') : (*p - '0'));
        if (value > INT_MAX) return INT_MAX;
        if (value < INT_MIN) return INT_MIN;
    }
    return static_cast<int>(value);
}

int Config::get_int(const ustring& key) { return parse_leading_int(entries[key].c_str()); }
