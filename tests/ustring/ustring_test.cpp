// ustring: the UTF-8 text and its lazy UTF-16 view, buffers, ICU warnings, search, trim, compare, normalise.
#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>

#include "ustring.h"

namespace {

using Edit = std::function<void(ustring&)>;
using US = unsigned short;
constexpr uint32_t npos = ustring::npos;
const char kMixed8[] = "a\xE4\xB8\xAD\xF0\x9F\x98\x80";  // a, U+4E2D, U+1F600: 1+3+4 bytes, 1+1+2 units
const char16_t kMixed16[] = u"a\u4E2D\U0001F600";
#define EDIT(...) #__VA_ARGS__, [](ustring& s) { __VA_ARGS__; }  // an edit named by its code
#define THROWS(...) /* an edit that must throw: the message appended shows the text is left alone */ \
    #__VA_ARGS__, [](ustring& s) { try { __VA_ARGS__; } catch (const std::out_of_range& e) { s += e.what(); } }
const US* W(const char16_t* s) { return reinterpret_cast<const US*>(s); }
std::string Text(const ustring& s) { return std::string(s.c_str(), s.length()); }
void ExpectText(const ustring& s, const std::string& text) {  // and both buffers terminated inside their capacities
    EXPECT_EQ(Text(s), text);
    EXPECT_LT(s.data_len, s.data_cap);
    EXPECT_LT(s.wdata_len, s.wdata_cap);
    EXPECT_EQ(std::make_pair(s.data[s.data_len], int(s.wdata[s.wdata_len])), std::make_pair('\0', 0));
}

// Each edit runs on "ab" with the view not built and built: the text must survive UTF-16 appends onto an
// unbuilt view, no UTF-8 change may leave a stale view, and a source inside the own buffers stays readable.
TEST(Ustring, EditsKeepTextAndViewInStep) {
    static const US kNul[] = {'c', 'd', 0, 'e', 0};
    const std::tuple<const char*, Edit, std::string> cases[] = {
        {EDIT(s.assign(W(kMixed16), 2)), "a\xE4\xB8\xAD"}, {EDIT(s.assign(std::string("abcd"), 1, 2)), "bc"},
        {EDIT(s.assign(US(0xE9), 2)), "\xC3\xA9\xC3\xA9"}, {EDIT(s.assign(ustring("abcdef"), 2, 3)), "cde"},
        {EDIT(s = ustring(std::string("x\0y", 3))), "x"}, {EDIT(s.assign("xyz", 2)), "xy"}, {EDIT(s.assign('q', 3)), "qqq"},
        {EDIT(s.append("\xE4\xB8\xAD"); s.append("cdef", 2); s.append("e\0f", 3)), "ab\xE4\xB8\xAD" "cde"},
        {EDIT(s.append(kNul, 4); s.append(W(u"\U0001F600x"), 2)), "abcd\xF0\x9F\x98\x80"},
        {EDIT(s.append('-', 2); s.append(US(0xE9), 2); s.append(ustring("123"), 1, 1)), "ab--\xC3\xA9\xC3\xA9" "2"},
        {EDIT(s.append(std::string("c\0d", 3)); s.append(std::string("cd\0ef", 5), 3, 1)), "abce"},
        {EDIT(s += ustring("c"); s += std::string("d"); s += "e"; s += 'f'; s += US('g'); s += W(u"h")), "abcdefgh"},
        {EDIT(s = s + ustring("c") + "d" + 'e' + W(u"f") + US('g')), "abcdefg"},
        {EDIT(std::ostringstream o; o << s << '|' << ustring() << '|'; s = o.str()), "ab||"},
        {EDIT(ustring t("\xE4\xB8\xAD more"); t.c_str_utf16(); s.swap(t); swap(t, s); s.swap(t)), "\xE4\xB8\xAD more"},
        // Own buffers as the source (the loops reallocate on every round); then every other UTF-8 change.
        {EDIT(s.append(s.c_str())), "abab"}, {EDIT(s.append(s.c_str(), 1)), "aba"}, {EDIT(s += s), "abab"},
        {EDIT(s.append(s.c_str(), 100)), "abab"}, {EDIT(s.append(s, 1)), "abb"}, {EDIT(s.assign(s, 1, 1)), "b"},
        {EDIT(s.append(s.c_str_utf16())), "abab"}, {EDIT(s.append(s.c_str_utf16(), 1)), "aba"}, {EDIT(s = s), "ab"},
        {EDIT(s.assign(s.c_str())), "ab"}, {EDIT(s.assign(s.c_str(), 1)), "a"}, {EDIT(s.assign(s.c_str(), 9)), "ab"},
        {EDIT(s.assign(s.c_str_utf16())), "ab"}, {EDIT(s.assign(s.c_str_utf16(), 1)), "a"},
        {EDIT(s = "a"; for (int i = 0; i < 6; ++i) s += s.c_str()), std::string(64, 'a')},
        {EDIT(s = "a"; for (int i = 0; i < 6; ++i) s += s.c_str_utf16()), std::string(64, 'a')},
        {EDIT(s.replace('a', 'x')), "xb"}, {EDIT(s[1] = 'X'), "aX"}, {EDIT(s.clear()), ""}, {EDIT(s.rtrim("ab")), ""},
        {EDIT(std::istringstream(" \t x\xC3\xA9\nz") >> s), "x\xC3\xA9"}, {EDIT(s.ltrim(""); s.rtrim("")), "ab"},
        {EDIT(s.ltrim(ustring("a"))), "b"}, {EDIT(s = " \t\nab c \n"; s.trim(ustring(" \t\n"))), "ab c"},
        {EDIT(s = "\xC3\xA9" "a\xC3\xA9"; s.trim("\xC3\xA9")), "a"},  // trimming takes a set of bytes
        {EDIT(s = s.substr(1, 1) + s.substr(2, 5) + s.substr(0, 0) + s.substr(1, npos - 1) + s.substr()), "bbab"},
        {THROWS(s.assign(std::string("a"), 2, 0)), "abbasic_string::substr"}, {THROWS(s.substr(npos)), "absubstr"},
        {THROWS(s.append(ustring("abc"), 4)), "absubstr"},
        {EDIT(ustring t("\xC3\xA9"); s = ustring::normalize(t, NFD) + t), "e\xCC\x81\xC3\xA9"},  // the source stays
        {EDIT(ustring t("e\xCC\x81"); s = t.normalize(NFC) + t + ustring().normalize(NFC)), "\xC3\xA9" "e\xCC\x81"},
        {EDIT(s = ustring("\xE2\x84\xAB\xF0\x9F\x98\x80").normalize(NFD)), "A\xCC\x8A\xF0\x9F\x98\x80"}};
    for (const auto& [name, edit, text] : cases)
        for (bool built : {false, true}) {
            SCOPED_TRACE(std::string(name) + (built ? ", view built" : ""));
            ustring s("ab");
            if (built) s.c_str_utf16();
            testing::internal::CaptureStderr();
            edit(s);
            ExpectText(s, text);
            EXPECT_EQ(Text(ustring(s.c_str_utf16())), text);
            EXPECT_EQ(testing::internal::GetCapturedStderr(), "");  // no ICU warnings
        }
}

TEST(Ustring, IcuFailuresWarnAndValidity) {
    const std::tuple<const char*, Edit, std::string, std::string> cases[] = {  // warning from, text left
        {EDIT(s = "\xC3\x28"; EXPECT_EQ(s.c_str_utf16(), s.wdata)), "u_strFromUTF8", "\xC3\x28"},
        {EDIT(s = "0123456789\xE4\xB8"; s.c_str_utf16()), "u_strFromUTF8", "0123456789\xE4\xB8"},  // after a prefix
        {EDIT(s = "\xC3\x28"; EXPECT_EQ(s.convert_from_data(), -1)), "u_strFromUTF8", "\xC3\x28"},
        {EDIT(s = ustring("\xC3\x28").normalize(NFC)), "u_strFromUTF8", ""},
        {EDIT(s = W(u"a\xD800")), "u_strToUTF8", ""}, {EDIT(s += US(0xDC00)), "u_strToUTF8", ""},
        {EDIT(s = kMixed8; s.assign(s.c_str_utf16(), 3)), "u_strToUTF8", ""}};
    for (const auto& [name, edit, fn, text] : cases) {
        ustring s("ok");
        testing::internal::CaptureStderr();
        edit(s);
        const std::string e = testing::internal::GetCapturedStderr();  // 10 is U_INVALID_CHAR_FOUND
        EXPECT_TRUE(std::regex_match(e, std::regex("Warning: " + fn + ": error code 10 at line \\d+\n"))) << name << e;
        EXPECT_EQ(s.wdata_len, 0u);
        ExpectText(s, text);
    }
    for (const char* text : {"", "abc", "\xC3\xA9", "\xF0\x9F\x98\x80"}) EXPECT_TRUE(ustring::is_valid(text)) << text;
    for (const char* text : {"\xC3\x28", "\xFF", "a\x80", "a\xE4\xB8", "\xED\xA0\x80", "\xC0\xAF"})
        EXPECT_FALSE(ustring::is_valid(text)) << text;
}

TEST(Ustring, SearchFamiliesAgreeAcrossOverloads) {
    const char *h = "hello world", *u8 = "a\xC3\xA9\xE4\xB8\xAD" "b";  // U+00E9 at 1, U+4E2D at 3, b at 6
    const std::tuple<const char*, char, const char*, uint32_t, uint32_t> cases[] = {
        {h, 'F', "ol", 5, 7}, {h, 'F', "h", 11, npos}, {h, 'N', "hel", 0, 4}, {h, 'N', "", 11, npos}, {h, 'L', "dl", 100, 10},
        {h, 'L', "h", npos, 0}, {"", 'L', "a", npos, npos}, {h, 'M', "dlr", npos, 7}, {h, 'M', "h", 0, npos},
        {"", 'M', "", npos, npos}, {h, 'f', "world", 0, 6}, {h, 'f', "", 11, npos}, {h, 'r', "o", 6, 4}, {h, 'r', "ld", npos, 9},
        {h, 'r', "", 11, 10}, {"", 'r', "", npos, npos}, {u8, 'f', "\xE4\xB8\xAD", 0, 3}, {u8, 'L', "\xC3\xE4", npos, 3}};
    for (const auto& [text, f, arg, pos, want] : cases) {
        const ustring s(text);
        auto find = [&, f = f, p = pos](const auto& a) {  // F/N: first of/not of, L/M: last of/not of
            return f == 'f' ? s.find(a, p) : f == 'r' ? s.rfind(a, p) : f == 'F' ? s.find_first_of(a, p) : f == 'L'
                 ? s.find_last_of(a, p) : f == 'N' ? s.find_first_not_of(a, p) : s.find_last_not_of(a, p); };
        const uint32_t by_char = arg[0] && !arg[1] ? find(arg[0]) : want;  // a one-byte set or needle as a char
        EXPECT_EQ(std::make_tuple(find(arg), find(std::string(arg)), find(ustring(arg)), by_char),
                  std::make_tuple(want, want, want, want)) << f << " " << text << " / " << arg << " " << pos;
    }
    const ustring s(h);  // a std::string ends at its NUL; default positions
    EXPECT_EQ(std::make_tuple(s.find_first_of(std::string("x\0o", 3)), s.find(std::string("wor\0xx", 6)), s.find('o'),
                              s.rfind('o'), s.find_last_of('l')), std::make_tuple(npos, 6u, 4u, 7u, 9u));
}

TEST(Ustring, CompareIsByUnsignedBytes) {
    // {a, b, compare, ignore_case compare}: first differing bytes' difference, only ASCII letters folded.
    for (const auto& [a, b, exact, folded] : {std::make_tuple("abc", "abc", 0, 0), {"abc", "abd", -1, -1},
             {"ab", "abc", -99, -99}, {"", "a", -97, -97}, {"ABC", "abc", -32, 0}, {"abc", "ABD", 32, -1},
             {"Z", "[", -1, 31}, {"@", "`", -32, -32}, {"\xC3\x89", "\xC3\xA9", -32, -32}, {"a", "\xC3", -98, -98}}) {
        const ustring x(a), y(b);
        EXPECT_EQ(std::make_tuple(x.compare(y), ustring::compare(x, y, false), ustring::compare(x, y, true),
                                  y.compare(x), ustring::compare(y, x, true), x == y, x != y, x < y, x > y),
                  std::make_tuple(exact, exact, folded, -exact, -folded, !exact, !!exact, exact < 0, exact > 0))
            << a << " vs " << b;  // swapped, the sign turns
    }
    for (const auto& [a, b, n, want] : {std::make_tuple("abcX", "abcY", 3u, 0), {"abcX", "abcY", 4u, -1},
                                         {"a", "b", 0u, 0}, {"ab", "abc", 10u, -99}, {"\xC3\xA9", "\xC3\x89", 2u, 32}})
        EXPECT_EQ(ustring(a).compare(b, n), want) << a << " " << b << " " << n;
}

}  // namespace
