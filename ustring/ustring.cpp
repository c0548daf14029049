#include "ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>

namespace {

bool needs_realloc(uint32_t cap, uint32_t needed) { return needed > cap || cap / 2 > needed; }

// Size needed for `len` units plus `extra` plus a terminator, refusing 32-bit overflow.
uint32_t needed_size(uint32_t len, uint32_t extra) {
    if (extra > 0xFFFFFFFEu - len) throw std::bad_alloc();
    return len + extra + 1;
}

uint32_t units_len(const unsigned short* s, uint32_t max) {
    uint32_t n = 0;
    while (n < max && s[n] != 0) ++n;
    return n;
}

bool in_set(const char* set, char c) {
    for (const char* p = set; *p; ++p)
        if (*p == c) return true;
    return false;
}

bool points_into(const void* p, const void* begin, size_t bytes) {
    std::less_equal<const char*> le;
    std::less<const char*> lt;
    const char* cp = static_cast<const char*>(p);
    const char* cb = static_cast<const char*>(begin);
    return le(cb, cp) && lt(cp, cb + bytes);
}

UChar* as_uchar(unsigned short* p) { return reinterpret_cast<UChar*>(p); }

void warn(const char* call, UErrorCode code, int line) {
    std::cerr << "Warning: " << call << ": error code " << static_cast<int>(code) << " at line " << line
              << std::endl;
}

}  // namespace

// --- construction --------------------------------------------------------------------------

ustring::ustring() { init(); }

ustring::ustring(const ustring& s) {
    init();
    assign(s, 0, npos);
}

ustring::ustring(const char* s) {
    init();
    if (s) append(s);
}

ustring::ustring(const unsigned short* s) {
    init();
    if (s) append(s);
}

ustring::ustring(const std::string& s) {
    init();
    append(s.c_str());
}

ustring::ustring(char c) {
    init();
    append(c, 1);
}

ustring::~ustring() {
    free(data);
    free(wdata);
    data = nullptr;
    wdata = nullptr;
}

void ustring::init() {
    data = nullptr;
    wdata = nullptr;
    data_len = data_cap = 0;
    wdata_len = wdata_cap = 0;
    data = static_cast<char*>(malloc(4));
    wdata = static_cast<unsigned short*>(malloc(4 * sizeof(unsigned short)));
    if (!data || !wdata) {
        free(data);
        free(wdata);
        throw std::bad_alloc();
    }
    data_cap = 4;
    wdata_cap = 4;
    data[0] = 0;
    wdata[0] = 0;
}

// --- assignment ------------------------------------------------------------------------------
// A source inside our own buffers stays safe after clear(): the append functions copy it out or
// keep its offset across the reallocation.

ustring& ustring::assign(const ustring& s, uint32_t pos, uint32_t n) {
    ustring part = s.substr(pos, n);  // taken first, so s may be *this
    clear();
    return append_bytes(part.data, part.data_len);
}

ustring& ustring::assign(const char* s) {
    if (s == data) return *this;
    clear();
    return s ? append(s) : *this;
}

ustring& ustring::assign(const char* s, uint32_t n) {
    if (s == data) {
        if (n < data_len) {
            data_len = n;
            data[n] = 0;
            clear_wdata();
        }
        return *this;
    }
    clear();
    return s ? append(s, n) : *this;
}

ustring& ustring::assign(const unsigned short* s) {
    if (s == wdata) return *this;
    return assign(s, npos);
}

ustring& ustring::assign(const unsigned short* s, uint32_t n) {
    if (s == wdata) {
        if (n < wdata_len) {
            wdata_len = n;
            wdata[n] = 0;
            convert_from_wdata();
        }
        return *this;
    }
    clear();
    return s ? append(s, n) : *this;
}

ustring& ustring::assign(const std::string& s, uint32_t pos, uint32_t n) {
    if (pos > s.size()) throw std::out_of_range("basic_string::substr");  // before clearing: no change on error
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(char c, uint32_t n) {
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, uint32_t n) {
    clear();
    return append(c, n);
}

ustring& ustring::operator=(const ustring& s) { return assign(s, 0, npos); }
ustring& ustring::operator=(const std::string& s) { return assign(s, 0, npos); }
ustring& ustring::operator=(const char* s) { return assign(s); }
ustring& ustring::operator=(const unsigned short* s) { return assign(s); }
ustring& ustring::operator=(char c) { return assign(c, 1); }
ustring& ustring::operator=(unsigned short c) { return assign(c, 1); }

void ustring::clear() {
    clear_data();
    clear_wdata();
}

void ustring::clear_data() {
    data_len = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const {
    wdata_len = 0;
    wdata[0] = 0;
}

void ustring::swap(ustring& s) {
    std::swap(data, s.data);
    std::swap(data_len, s.data_len);
    std::swap(data_cap, s.data_cap);
    std::swap(wdata, s.wdata);
    std::swap(wdata_len, s.wdata_len);
    std::swap(wdata_cap, s.wdata_cap);
}

void swap(ustring& a, ustring& b) { a.swap(b); }

// --- appending -------------------------------------------------------------------------------

// Appends n bytes. The source may lie inside our own text (self-append): its offset survives
// the reallocation, which never cuts the text because the new size exceeds the old length.
// Anything else inside our buffer (stale bytes behind the text) is copied out first.
ustring& ustring::append_bytes(const char* s, uint32_t n) {
    const bool own = points_into(s, data, data_cap);
    const size_t offset = own ? static_cast<size_t>(s - data) : 0;
    if (own && offset + n > data_len) {
        const std::string copy(s, n);
        return append_bytes(copy.data(), n);
    }
    realloc_data(needed_size(data_len, n));
    if (own) s = data + offset;
    memcpy(data + data_len, s, n);
    data_len += n;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

// Appends n units onto the view (built first, so the existing text stays), then rebuilds the
// UTF-8 text from it. With own_view the source is the view itself (at most its length).
ustring& ustring::append_units(const unsigned short* s, uint32_t n, bool own_view) {
    if (wdata_len == 0) convert_from_data();
    if (own_view && n > wdata_len) n = wdata_len;
    realloc_wdata(needed_size(wdata_len, n));
    if (own_view) s = wdata;
    memcpy(wdata + wdata_len, s, n * sizeof(unsigned short));
    wdata_len += n;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(const char* s) {
    if (s == data) return append_bytes(data, data_len);
    return append_bytes(s, static_cast<uint32_t>(strlen(s)));
}

ustring& ustring::append(const char* s, uint32_t n) {
    if (s == data) return append_bytes(data, data_len < n ? data_len : n);
    return append_bytes(s, static_cast<uint32_t>(strnlen(s, n)));
}

ustring& ustring::append(const unsigned short* s) { return append(s, npos); }

ustring& ustring::append(const unsigned short* s, uint32_t n) {
    if (s == wdata) return append_units(s, n, true);
    if (points_into(s, wdata, wdata_cap * sizeof(unsigned short))) {
        const std::basic_string<unsigned short> copy(s, units_len(s, n));
        return append_units(copy.c_str(), static_cast<uint32_t>(copy.size()), false);
    }
    return append_units(s, units_len(s, n), false);
}

ustring& ustring::append(char c, uint32_t n) {
    realloc_data(needed_size(data_len, n));
    memset(data + data_len, c, n);
    data_len += n;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(unsigned short c, uint32_t n) {
    if (wdata_len == 0) convert_from_data();
    realloc_wdata(needed_size(wdata_len, n));
    for (uint32_t i = 0; i < n; ++i) wdata[wdata_len + i] = c;
    wdata_len += n;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(const ustring& s, uint32_t pos, uint32_t n) {
    if (pos > s.data_len) throw std::out_of_range("substr");
    uint32_t count = s.data_len - pos;
    if (n < count) count = n;
    return append_bytes(s.data + pos, count);
}

ustring& ustring::append(const std::string& s, uint32_t pos, uint32_t n) {
    if (pos > s.size()) throw std::out_of_range("basic_string::substr");
    size_t count = s.size() - pos;
    if (n < count) count = n;
    return append_bytes(s.data() + pos, static_cast<uint32_t>(strnlen(s.data() + pos, count)));
}

ustring& ustring::operator+=(const ustring& s) { return append(s, 0, npos); }
ustring& ustring::operator+=(const std::string& s) { return append(s, 0, npos); }
ustring& ustring::operator+=(const char* s) { return append(s); }
ustring& ustring::operator+=(const unsigned short* s) { return append(s); }
ustring& ustring::operator+=(char c) { return append(c, 1); }
ustring& ustring::operator+=(unsigned short c) { return append(c, 1); }

// --- access ----------------------------------------------------------------------------------

const unsigned short* ustring::c_str_utf16() const {
    if (wdata_len == 0) convert_from_data();
    return wdata;
}

char& ustring::operator[](uint32_t n) {
    clear_wdata();
    return data[n];
}

ustring ustring::substr(uint32_t pos, uint32_t n) const {
    if (pos > data_len) throw std::out_of_range("substr");
    uint32_t count = data_len - pos;
    if (n < count) count = n;
    ustring out;
    out.append_bytes(data + pos, count);
    return out;
}

void ustring::replace(char a, char b) {
    for (uint32_t i = 0; i < data_len; ++i)
        if (data[i] == a) data[i] = b;
    clear_wdata();
}

// --- buffers and conversions -----------------------------------------------------------------

void ustring::realloc_data(uint32_t n) {
    if (!needs_realloc(data_cap, n)) return;
    char* p = static_cast<char*>(realloc(data, n));
    if (!p) throw std::bad_alloc();
    data = p;
    data_cap = n;
}

void ustring::realloc_wdata(uint32_t n) const {
    if (!needs_realloc(wdata_cap, n)) return;
    void* p = realloc(wdata, static_cast<size_t>(n) * sizeof(unsigned short));
    if (!p) throw std::bad_alloc();
    wdata = static_cast<unsigned short*>(p);
    wdata_cap = n;
}

int ustring::convert_from_data() const {
    UErrorCode err = U_ZERO_ERROR;
    int32_t needed = 0;
    u_strFromUTF8(nullptr, 0, &needed, data, -1, &err);
    err = U_ZERO_ERROR;
    realloc_wdata(needed_size(static_cast<uint32_t>(needed), 0));
    int32_t written = 0;
    u_strFromUTF8(as_uchar(wdata), static_cast<int32_t>(wdata_cap), &written, data, -1, &err);
    if (U_FAILURE(err)) {
        warn("u_strFromUTF8", err, __LINE__);
        clear_wdata();
        return -1;
    }
    wdata_len = static_cast<uint32_t>(written);
    wdata[wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata() {
    UErrorCode err = U_ZERO_ERROR;
    int32_t needed = 0;
    u_strToUTF8(nullptr, 0, &needed, as_uchar(wdata), -1, &err);
    err = U_ZERO_ERROR;
    realloc_data(needed_size(static_cast<uint32_t>(needed), 0));
    int32_t written = 0;
    u_strToUTF8(data, static_cast<int32_t>(data_cap), &written, as_uchar(wdata), -1, &err);
    if (U_FAILURE(err)) {
        warn("u_strToUTF8", err, __LINE__);
        clear();
        return -1;
    }
    data_len = static_cast<uint32_t>(written);
    data[data_len] = 0;
    return 0;
}

ustring ustring::normalize(normalization_form form) const { return normalize(*this, form); }

ustring ustring::normalize(const ustring& s, normalization_form f) {
    static const UNormalization2Mode modes[2] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring result;
    if (s.empty()) return result;

    UErrorCode err = U_ZERO_ERROR;
    const UNormalizer2* normalizer = unorm2_getInstance(nullptr, "nfc", modes[f == NFD ? 1 : 0], &err);
    if (U_FAILURE(err) || !normalizer) {
        warn("unorm2_getInstance", err, __LINE__);
        return result;
    }
    if (s.wdata_len == 0) s.convert_from_data();

    int32_t length = unorm2_normalize(normalizer, as_uchar(s.wdata), -1, nullptr, 0, &err);
    result.realloc_wdata(needed_size(static_cast<uint32_t>(length), 0));
    err = U_ZERO_ERROR;
    length = unorm2_normalize(normalizer, as_uchar(s.wdata), -1, as_uchar(result.wdata),
                              static_cast<int32_t>(result.wdata_cap), &err);
    if (U_FAILURE(err)) {
        warn("unorm2_normalize", err, __LINE__);
        return ustring();
    }
    result.wdata_len = static_cast<uint32_t>(length);
    result.wdata[length] = 0;
    result.convert_from_wdata();
    return result;
}

bool ustring::is_valid(const ustring& s) {
    if (s.empty()) return true;
    UErrorCode err = U_ZERO_ERROR;
    int32_t needed = 0;
    u_strFromUTF8(nullptr, 0, &needed, s.data, -1, &err);
    return err != U_INVALID_CHAR_FOUND;
}

// --- searching -------------------------------------------------------------------------------

uint32_t ustring::find_first_of(const char* set, uint32_t pos) const {
    if (pos >= data_len) return npos;
    for (uint32_t i = pos; data[i]; ++i)
        if (in_set(set, data[i])) return i;
    return npos;
}

uint32_t ustring::find_first_not_of(const char* set, uint32_t pos) const {
    if (pos >= data_len) return npos;
    if (!*set) return pos;
    for (uint32_t i = pos; data[i]; ++i)
        if (!in_set(set, data[i])) return i;
    return npos;
}

uint32_t ustring::find_last_of(const char* set, uint32_t pos) const {
    if (data_len == 0) return npos;
    const uint32_t start = pos >= data_len ? data_len - 1 : pos;
    for (uint32_t i = start + 1; i-- > 0;)
        if (in_set(set, data[i])) return i;
    return npos;
}

uint32_t ustring::find_last_not_of(const char* set, uint32_t pos) const {
    if (data_len == 0) return npos;
    const uint32_t start = pos >= data_len ? data_len - 1 : pos;
    if (!*set) return start;
    for (uint32_t i = start + 1; i-- > 0;)
        if (!in_set(set, data[i])) return i;
    return npos;
}

uint32_t ustring::find(const char* needle, uint32_t pos) const {
    if (pos >= data_len) return npos;
    if (!*needle) return pos;
    const char* hit = strstr(data + pos, needle);
    return hit ? static_cast<uint32_t>(hit - data) : npos;
}

uint32_t ustring::rfind(const char* needle, uint32_t pos) const {
    if (data_len == 0) return npos;
    const uint32_t start = pos >= data_len ? data_len - 1 : pos;
    const size_t n = strlen(needle);
    if (n == 0) return start;
    for (uint32_t i = start + 1; i-- > 0;)
        if (strncmp(data + i, needle, n) == 0) return i;
    return npos;
}

// The other overloads pass their set or needle on as a NUL-terminated byte string.
#define USTRING_SEARCH_OVERLOADS(name)                                                          \
    uint32_t ustring::name(const std::string& s, uint32_t pos) const { return name(s.c_str(), pos); } \
    uint32_t ustring::name(const ustring& s, uint32_t pos) const { return name(s.data, pos); }        \
    uint32_t ustring::name(char c, uint32_t pos) const {                                        \
        const char set[2] = {c, 0};                                                             \
        return name(set, pos);                                                                  \
    }

USTRING_SEARCH_OVERLOADS(find_first_of)
USTRING_SEARCH_OVERLOADS(find_first_not_of)
USTRING_SEARCH_OVERLOADS(find_last_of)
USTRING_SEARCH_OVERLOADS(find_last_not_of)
USTRING_SEARCH_OVERLOADS(find)
USTRING_SEARCH_OVERLOADS(rfind)
#undef USTRING_SEARCH_OVERLOADS

// --- trimming --------------------------------------------------------------------------------

void ustring::ltrim(const char* set) {
    uint32_t skip = 0;
    while (skip < data_len && in_set(set, data[skip])) ++skip;
    if (skip == 0) return;
    memmove(data, data + skip, data_len - skip);
    data_len -= skip;
    data[data_len] = 0;
    clear_wdata();
}

void ustring::rtrim(const char* set) {
    uint32_t len = data_len;
    while (len > 0 && in_set(set, data[len - 1])) --len;
    if (len == data_len) return;
    data_len = len;
    data[len] = 0;
    clear_wdata();
}

void ustring::trim(const char* set) {
    ltrim(set);
    rtrim(set);
}

void ustring::ltrim(const ustring& set) {
    if (&set == this) {
        ltrim(ustring(set).data);
        return;
    }
    ltrim(set.data);
}

void ustring::rtrim(const ustring& set) {
    if (&set == this) {
        rtrim(ustring(set).data);
        return;
    }
    rtrim(set.data);
}

void ustring::trim(const ustring& set) {
    const ustring copy(set);  // set may be *this, which ltrim changes
    ltrim(copy.data);
    rtrim(copy.data);
}

// --- comparison ------------------------------------------------------------------------------

namespace {

int compare_bytes(const char* a, const char* b, uint32_t n, bool fold) {
    const unsigned char* x = reinterpret_cast<const unsigned char*>(a);
    const unsigned char* y = reinterpret_cast<const unsigned char*>(b);
    for (uint32_t i = 0; i < n; ++i) {
        int cx = x[i], cy = y[i];
        if (fold) {
            if (cx >= 'A' && cx <= 'Z') cx += 'a' - 'A';
            if (cy >= 'A' && cy <= 'Z') cy += 'a' - 'A';
        }
        if (cx != cy || cx == 0) return cx - cy;
    }
    return 0;
}

}  // namespace

int ustring::compare(const ustring& s) const { return compare_bytes(data, s.data, npos, false); }

int ustring::compare(const ustring& s, uint32_t n) const { return compare_bytes(data, s.data, n, false); }

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case) {
    return compare_bytes(a.data, b.data, npos, ignore_case);
}

bool operator==(const ustring& a, const ustring& b) { return a.compare(b) == 0; }
bool operator!=(const ustring& a, const ustring& b) { return a.compare(b) != 0; }
bool operator<(const ustring& a, const ustring& b) { return a.compare(b) < 0; }
bool operator>(const ustring& a, const ustring& b) { return a.compare(b) > 0; }

ustring operator+(const ustring& a, const ustring& b) { return ustring(a) += b; }
ustring operator+(const ustring& a, const char* b) { return ustring(a) += b; }
ustring operator+(const ustring& a, char b) { return ustring(a) += b; }
ustring operator+(const ustring& a, const unsigned short* b) { return ustring(a) += b; }
ustring operator+(const ustring& a, unsigned short b) { return ustring(a) += b; }

std::ostream& operator<<(std::ostream& os, const ustring& s) {
    if (!s.c_str()) {
        os.setstate(std::ios::badbit);
        return os;
    }
    return os.write(s.c_str(), s.length());
}

std::istream& operator>>(std::istream& is, ustring& s) {
    std::string word;
    is >> word;
    s = word;
    return is;
}
