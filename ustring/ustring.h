// ustring: the string of all non-UI code.
//
// The UTF-8 text (NUL-terminated, positions and lengths in bytes) is authoritative. A UTF-16
// view is built from it only when asked for and dropped on every change of the UTF-8 text;
// operations that take UTF-16 input write the view and rebuild the UTF-8 text from it.
// Conversions and normalisation go through ICU; their failures are reported on standard error
// only and leave empty text or an empty view.
//
// Buffers come from realloc and are sized exactly: a buffer is reallocated when the size needed
// (terminator included) is larger than its capacity or less than half of it.
//
// Not synchronised: even const operations may build the (mutable) UTF-16 view.
#ifndef LUMORA_USTRING_USTRING_H
#define LUMORA_USTRING_USTRING_H

#include <cstdint>
#include <iosfwd>
#include <string>

enum normalization_form { NFC = 0, NFD = 1 };

class ustring {
public:
    static const uint32_t npos = 0xFFFFFFFFu;

    ustring();
    ustring(const ustring& s);
    ustring(const char* s);
    ustring(const unsigned short* s);
    ustring(const std::string& s);
    ustring(char c);
    ~ustring();

    void init();

    ustring& assign(const ustring& s, uint32_t pos = 0, uint32_t n = npos);
    ustring& assign(const char* s);
    ustring& assign(const char* s, uint32_t n);
    ustring& assign(const unsigned short* s);
    ustring& assign(const unsigned short* s, uint32_t n);
    ustring& assign(const std::string& s, uint32_t pos = 0, uint32_t n = npos);
    ustring& assign(char c, uint32_t n);
    ustring& assign(unsigned short c, uint32_t n);

    ustring& operator=(const ustring& s);
    ustring& operator=(const std::string& s);
    ustring& operator=(const char* s);
    ustring& operator=(const unsigned short* s);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    void clear();
    void clear_data();
    void clear_wdata() const;
    void swap(ustring& s);

    ustring& append(const char* s);
    ustring& append(const char* s, uint32_t n);
    ustring& append(const unsigned short* s);
    ustring& append(const unsigned short* s, uint32_t n);
    ustring& append(char c, uint32_t n);
    ustring& append(unsigned short c, uint32_t n);
    ustring& append(const ustring& s, uint32_t pos = 0, uint32_t n = npos);
    ustring& append(const std::string& s, uint32_t pos = 0, uint32_t n = npos);

    ustring& operator+=(const ustring& s);
    ustring& operator+=(const std::string& s);
    ustring& operator+=(const char* s);
    ustring& operator+=(const unsigned short* s);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;
    uint32_t length() const { return data_len; }
    uint32_t size() const { return data_len; }
    bool empty() const { return data_len == 0; }

    // Unchecked. The non-const form may be written through, so it drops the UTF-16 view.
    char& operator[](uint32_t n);
    const char& operator[](uint32_t n) const { return data[n]; }

    // Throws std::out_of_range("substr") when pos is beyond the length.
    ustring substr(uint32_t pos = 0, uint32_t n = npos) const;

    ustring normalize(normalization_form form) const;
    static ustring normalize(const ustring& s, normalization_form form);
    static bool is_valid(const ustring& s);

    void replace(char a, char b);

    // Searches: byte offsets, npos when nothing is found. A set or needle is a NUL-terminated
    // byte string. Forward searches start at pos; backward ones at min(pos, length - 1).
    uint32_t find_first_of(const std::string& set, uint32_t pos = 0) const;
    uint32_t find_first_of(const char* set, uint32_t pos = 0) const;
    uint32_t find_first_of(const ustring& set, uint32_t pos = 0) const;
    uint32_t find_first_of(char c, uint32_t pos = 0) const;

    uint32_t find_first_not_of(const std::string& set, uint32_t pos = 0) const;
    uint32_t find_first_not_of(const char* set, uint32_t pos = 0) const;
    uint32_t find_first_not_of(const ustring& set, uint32_t pos = 0) const;
    uint32_t find_first_not_of(char c, uint32_t pos = 0) const;

    uint32_t find_last_of(const std::string& set, uint32_t pos = npos) const;
    uint32_t find_last_of(const char* set, uint32_t pos = npos) const;
    uint32_t find_last_of(const ustring& set, uint32_t pos = npos) const;
    uint32_t find_last_of(char c, uint32_t pos = npos) const;

    uint32_t find_last_not_of(const std::string& set, uint32_t pos = npos) const;
    uint32_t find_last_not_of(const char* set, uint32_t pos = npos) const;
    uint32_t find_last_not_of(const ustring& set, uint32_t pos = npos) const;
    uint32_t find_last_not_of(char c, uint32_t pos = npos) const;

    uint32_t find(const std::string& needle, uint32_t pos = 0) const;
    uint32_t find(const char* needle, uint32_t pos = 0) const;
    uint32_t find(const ustring& needle, uint32_t pos = 0) const;
    uint32_t find(char c, uint32_t pos = 0) const;

    uint32_t rfind(const std::string& needle, uint32_t pos = npos) const;
    uint32_t rfind(const char* needle, uint32_t pos = npos) const;
    uint32_t rfind(const ustring& needle, uint32_t pos = npos) const;
    uint32_t rfind(char c, uint32_t pos = npos) const;

    void ltrim(const ustring& set);
    void ltrim(const char* set);
    void rtrim(const ustring& set);
    void rtrim(const char* set);
    void trim(const ustring& set);
    void trim(const char* set);

    int compare(const ustring& s) const;
    int compare(const ustring& s, uint32_t n) const;
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    // Buffer sizing and the two conversions (0 on success, -1 on an ICU failure).
    void realloc_data(uint32_t n);
    void realloc_wdata(uint32_t n) const;
    int convert_from_data() const;
    int convert_from_wdata();

    // The representation. The UTF-8 text is authoritative; wdata_len == 0 means the UTF-16
    // view is not built. Exposed for inspection; change it only through the operations above.
    char* data;
    uint32_t data_len;
    uint32_t data_cap;
    mutable unsigned short* wdata;
    mutable uint32_t wdata_len;
    mutable uint32_t wdata_cap;

private:
    ustring& append_bytes(const char* s, uint32_t n);
    ustring& append_units(const unsigned short* s, uint32_t n, bool own_view);
};

void swap(ustring& a, ustring& b);

bool operator==(const ustring& a, const ustring& b);
bool operator!=(const ustring& a, const ustring& b);
bool operator<(const ustring& a, const ustring& b);
bool operator>(const ustring& a, const ustring& b);

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

std::ostream& operator<<(std::ostream& os, const ustring& s);
std::istream& operator>>(std::istream& is, ustring& s);

#endif
