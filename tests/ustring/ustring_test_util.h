// Small helpers shared by the ustring tests: reading both representations as standard strings,
// checking the buffer invariants, and catching the text of an exception.
#ifndef TESTS_USTRING_TEST_UTIL_H
#define TESTS_USTRING_TEST_UTIL_H

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <regex>
#include <stdexcept>
#include <string>

#include "ustring.h"

namespace ustest {

// Copy of the npos value that can be passed by reference without odr-using the member.
constexpr uint32_t kNpos = ustring::npos;

inline const unsigned short* U16(const char16_t* s) {
    return reinterpret_cast<const unsigned short*>(s);
}

// The UTF-8 text exactly as data/data_len describe it (embedded bytes included).
inline std::string Text(const ustring& s) { return std::string(s.c_str(), s.length()); }

// The UTF-16 view, building it if needed (as callers do).
inline std::u16string View(const ustring& s) {
    const unsigned short* w = s.c_str_utf16();
    return std::u16string(reinterpret_cast<const char16_t*>(w), s.wdata_len);
}

// The view as currently stored, without asking for it to be built.
inline std::u16string StoredView(const ustring& s) {
    return std::u16string(reinterpret_cast<const char16_t*>(s.wdata), s.wdata_len);
}

// Both buffers exist, are terminated and fit in their capacities.
inline void ExpectWellFormed(const ustring& s) {
    ASSERT_NE(s.data, nullptr);
    ASSERT_NE(s.wdata, nullptr);
    EXPECT_LT(s.data_len, s.data_cap);
    EXPECT_LT(s.wdata_len, s.wdata_cap);
    if (s.data_len < s.data_cap) {
        EXPECT_EQ(s.data[s.data_len], '\0');
    }
    if (s.wdata_len < s.wdata_cap) {
        EXPECT_EQ(s.wdata[s.wdata_len], 0u);
    }
}

// Text matches, buffers well formed.
inline void ExpectText(const ustring& s, const std::string& expected) {
    EXPECT_EQ(Text(s), expected);
    EXPECT_EQ(s.length(), expected.size());
    ExpectWellFormed(s);
}

// The view is marked as not built, as every UTF-8 change must leave it.
inline void ExpectViewDropped(const ustring& s) {
    EXPECT_EQ(s.wdata_len, 0u);
    ASSERT_NE(s.wdata, nullptr);
    EXPECT_EQ(s.wdata[0], 0u);
}

// what() of the std::out_of_range thrown by f, or a marker when something else happens.
inline std::string OutOfRangeText(const std::function<void()>& f) {
    try {
        f();
    } catch (const std::out_of_range& e) {
        return e.what();
    } catch (const std::exception& e) {
        return std::string("<other exception: ") + e.what() + ">";
    } catch (...) {
        return "<unknown exception>";
    }
    return "<no exception>";
}

// Matches one warning line as written for an ICU failure: function name and error number fixed,
// the line indicator any number.
inline bool IsWarningLine(const std::string& captured, const std::string& function, int code) {
    const std::regex re("Warning: " + function + ": error code " + std::to_string(code) +
                        " at line [0-9]+\n");
    return std::regex_match(captured, re);
}

}  // namespace ustest

#endif
