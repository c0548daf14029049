// ustring: the UTF-8 text and its lazy UTF-16 view, buffer sizing, ICU failure warnings,
// searching, trimming, comparison and normalisation.
#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>

#include "ustring.h"

namespace {

using Edit = std::function<void(ustring&)>;
using US = unsigned short;
constexpr uint32_t npos = ustring::npos;
// "a", U+4E2D, U+1F600: 1 + 3 + 4 UTF-8 bytes, 1 + 1 + 2 UTF-16 units.
const char kMixed8[] = "a\xE4\xB8\xAD\xF0\x9F\x98\x80";
const char16_t kMixed16[] = u"a\u4E2D\U0001F600";

const US* W(const char16_t* s) { return reinterpret_cast<const US*>(s); }
std::string Text(const ustring& s) { return std::string(s.c_str(), s.length()); }
// The view as stored, without building it.
std::u16string Stored(const ustring& s) {
    return std::u16string(reinterpret_cast<const char16_t*>(s.wdata), s.wdata_len);
}
// The text as expected and both buffers terminated inside their capacities.
void ExpectText(const ustring& s, const std::string& text) {
    EXPECT_EQ(Text(s), text);
    ASSERT_LT(s.data_len, s.data_cap);
    ASSERT_LT(s.wdata_len, s.wdata_cap);
    EXPECT_EQ(s.data[s.data_len], '\0');
    EXPECT_EQ(s.wdata[s.wdata_len], 0u);
}
void ExpectViewDropped(const ustring& s) {
    EXPECT_EQ(s.wdata_len, 0u);
    EXPECT_EQ(s.wdata[0], 0u);
}
std::string OutOfRangeText(const std::function<void()>& f) {
    try { f(); } catch (const std::out_of_range& e) { return e.what(); } catch (...) { return "?"; }
    return "<none>";
}
std::string Stderr(const std::function<void()>& f) {
    testing::internal::CaptureStderr();
    f();
    return testing::internal::GetCapturedStderr();
}
// One warning line for ICU error 10 (U_INVALID_CHAR_FOUND); the line indicator is free.
bool IsWarning(const std::string& err, const std::string& call) {
    return std::regex_match(err, std::regex("Warning: " + call + ": error code 10 at line \\d+\n"));
}

TEST(Ustring, ConstructionCopyAndLazyView) {
    ustring empty;
    EXPECT_EQ(std::make_tuple(empty.data_cap, empty.wdata_cap), std::make_tuple(4u, 4u));
    EXPECT_EQ(empty.c_str_utf16()[0], 0u);
    ExpectText(ustring(std::string("ab\0cd", 5)), "ab");
    ExpectText(ustring('\xC3'), "\xC3");
    EXPECT_EQ(ustring("\xC3\xA9").length(), 2u);
    std::ostringstream out;
    out << ustring(kMixed8) << '|' << ustring() << '|';
    EXPECT_EQ(out.str(), std::string(kMixed8) + "||");
    const ustring from16(W(kMixed16));
    ExpectText(from16, kMixed8);
    EXPECT_EQ(Stored(from16), kMixed16);  // UTF-16 input leaves the view built

    ustring s(kMixed8);
    s.append("x");
    EXPECT_EQ(s.wdata_len, 0u);  // UTF-8 work never converts
    EXPECT_EQ(s.c_str_utf16(), s.wdata);
    EXPECT_EQ(Stored(s), std::u16string(kMixed16) + u"x");
    ustring copy(s);
    EXPECT_EQ(copy.wdata_len, 0u);  // the view is not copied
    copy.append("z");
    ExpectText(s, std::string(kMixed8) + "x");
    const ustring src("\xC3\xA9");
    src.normalize(NFD);
    EXPECT_EQ(Stored(src), u"\u00E9");  // normalising builds the source's view
}

// Each edit runs on "ab" with the view not built and built: the text must survive UTF-16
// appends onto an unbuilt view, and no UTF-8 change may leave a stale view behind.
TEST(Ustring, EditsKeepTextAndViewInStep) {
    static const US kNulInside[] = {'c', 'd', 0, 'e', 0};
    const std::tuple<const char*, Edit, std::string> cases[] = {
        {"assign ustring", [](ustring& s) { s.assign(ustring("abcdef"), 2, 3); }, "cde"},
        {"assign char* n", [](ustring& s) { s.assign("xyz", 2); }, "xy"},
        {"assign utf16 n", [](ustring& s) { s.assign(W(kMixed16), 2); }, "a\xE4\xB8\xAD"},
        {"assign std::string", [](ustring& s) { s.assign(std::string("abcd"), 1, 2); }, "bc"},
        {"assign char n", [](ustring& s) { s.assign('q', 3); }, "qqq"},
        {"assign unit n", [](ustring& s) { s.assign(US(0xE9), 2); }, "\xC3\xA9\xC3\xA9"},
        {"=", [](ustring& s) { s = "x"; s = std::string("y"); s = 'z'; }, "z"},
        {"= ustring", [](ustring& s) { s = ustring("xy"); }, "xy"},
        {"= utf16", [](ustring& s) { s = W(u"\U0001F600"); }, "\xF0\x9F\x98\x80"},
        {"= unit", [](ustring& s) { s = US(0x4E2D); }, "\xE4\xB8\xAD"},
        {"append char*", [](ustring& s) { s.append("\xE4\xB8\xAD"); }, "ab\xE4\xB8\xAD"},
        {"append char* n", [](ustring& s) { s.append("cdef", 2); }, "abcd"},
        {"append char* n to NUL", [](ustring& s) { s.append("c\0de", 4); }, "abc"},
        {"append utf16 n to 0", [](ustring& s) { s.append(kNulInside, 4); }, "abcd"},
        {"utf16 pair", [](ustring& s) { s.append(W(u"\U0001F600x"), 2); }, "ab\xF0\x9F\x98\x80"},
        {"append char n", [](ustring& s) { s.append('-', 3); }, "ab---"},
        {"append unit n", [](ustring& s) { s.append(US(0xE9), 2); }, "ab\xC3\xA9\xC3\xA9"},
        {"append ustring", [](ustring& s) { s.append(ustring("12345"), 1, 2); }, "ab23"},
        {"append std::string", [](ustring& s) { s.append(std::string("c\0d", 3)); }, "abc"},
        {"after NUL", [](ustring& s) { s.append(std::string("cd\0ef", 5), 3, 1); }, "abe"},
        {"std::string pos at size", [](ustring& s) { s.append(std::string("abc"), 3); }, "ab"},
        {"+=", [](ustring& s) { s += ustring("c"); s += std::string("d"); s += "e"; }, "abcde"},
        {"+= char, utf16", [](ustring& s) { s += 'c'; s += US('d'); s += W(u"e"); }, "abcde"},
        {"utf16 after utf8", [](ustring& s) { s += "cd"; s += W(u"e"); }, "abcde"},
        {"+", [](ustring& s) { s = s + ustring("c") + "d" + 'e' + W(u"f") + US('g'); }, "abcdefg"},
        // Own buffers as the source.
        {"own data", [](ustring& s) { s.append(s.c_str()); }, "abab"},
        {"own data n", [](ustring& s) { s.append(s.c_str(), 1); }, "aba"},
        {"own data n > length", [](ustring& s) { s.append(s.c_str(), 100); }, "abab"},
        {"own ustring", [](ustring& s) { s += s; }, "abab"},
        {"own ustring pos", [](ustring& s) { s.append(s, 1); }, "abb"},
        {"own view", [](ustring& s) { s.append(s.c_str_utf16()); }, "abab"},
        {"own view n", [](ustring& s) { s.append(s.c_str_utf16(), 1); }, "aba"},
        {"assign own data", [](ustring& s) { s.assign(s.c_str()); }, "ab"},
        {"assign own data cut", [](ustring& s) { s.assign(s.c_str(), 1); }, "a"},
        {"assign own data n > length", [](ustring& s) { s.assign(s.c_str(), 10); }, "ab"},
        {"assign own ustring", [](ustring& s) { s.assign(s, 1, 1); }, "b"},
        {"= own ustring", [](ustring& s) { s = s; }, "ab"},
        {"assign own view", [](ustring& s) { s.assign(s.c_str_utf16()); }, "ab"},
        {"assign own view cut", [](ustring& s) { s.assign(s.c_str_utf16(), 1); }, "a"},
        // Every other UTF-8 change.
        {"replace", [](ustring& s) { s.replace('a', 'x'); }, "xb"},
        {"operator[]", [](ustring& s) { s[1] = 'X'; }, "aX"},
        {"ltrim", [](ustring& s) { s.ltrim("a"); }, "b"},
        {"rtrim", [](ustring& s) { s.rtrim(ustring("b")); }, "a"},
        {"trim", [](ustring& s) { s.trim("b"); }, "a"},
        {"stream in", [](ustring& s) { std::istringstream(" \t x\xC3\xA9\nz") >> s; }, "x\xC3\xA9"},
        {"clear", [](ustring& s) { s.clear(); }, ""},
    };
    for (const auto& [name, edit, text] : cases) {
        for (bool built : {false, true}) {
            SCOPED_TRACE(std::string(name) + (built ? ", view built" : ""));
            ustring s("ab");
            if (built) s.c_str_utf16();
            edit(s);
            ExpectText(s, text);
            EXPECT_EQ(Text(ustring(s.c_str_utf16())), text);
        }
    }
}

TEST(Ustring, SelfAppendAcrossReallocations) {
    // Every round reallocates; the source must be re-read from the new buffer.
    ustring s8("0123456789abcdefghij"), s16(s8);
    std::string expected = Text(s8);
    for (int i = 0; i < 5; ++i, expected += expected) {
        s8.append(s8.c_str());
        s16.append(s16.c_str_utf16());
    }
    ExpectText(s8, expected);
    ExpectText(s16, expected);
}

TEST(Ustring, SubstrAndOutOfRange) {
    const ustring s("hello");
    const std::tuple<uint32_t, uint32_t, const char*> cases[] = {
        {0, npos, "hello"}, {1, 3, "ell"}, {3, 0xFFFFFFFEu, "lo"}, {5, 5, ""}, {0, 0, ""}};
    for (const auto& [pos, n, text] : cases) {
        SCOPED_TRACE(std::to_string(pos) + "," + std::to_string(n));
        ExpectText(s.substr(pos, n), text);
    }
    ExpectText(s.substr(3), "lo");
    EXPECT_EQ(OutOfRangeText([&] { s.substr(6, 0); }), "substr");
    EXPECT_EQ(OutOfRangeText([&] { s.substr(npos); }), "substr");
    ustring t("x");
    EXPECT_EQ(OutOfRangeText([&] { t.append(std::string("abc"), 4); }), "basic_string::substr");
    EXPECT_EQ(OutOfRangeText([&] { t.assign(std::string("ab"), 3, 0); }), "basic_string::substr");
    EXPECT_THROW(t.append(ustring("abc"), 4), std::out_of_range);
    EXPECT_THROW(t.assign(ustring("abc"), 4), std::out_of_range);
}

TEST(Ustring, ClearAndSwap) {
    ustring s("0123456789");
    s.c_str_utf16();
    const char* d = s.data;
    s.clear();
    ExpectText(s, "");
    ExpectViewDropped(s);
    EXPECT_EQ(std::make_tuple(s.data, s.data_cap, s.wdata_cap), std::make_tuple(d, 11u, 11u));

    auto fields = [](const ustring& u) {
        return std::make_tuple(u.data, u.data_len, u.data_cap, u.wdata, u.wdata_len, u.wdata_cap);
    };
    ustring a("abc"), b("\xE4\xB8\xAD\xE6\x96\x87 and more");  // every field differs
    a.c_str_utf16();
    b.c_str_utf16();
    const auto fa = fields(a), fb = fields(b);
    a.swap(b);
    EXPECT_EQ(std::make_pair(fields(a), fields(b)), std::make_pair(fb, fa));
    swap(a, b);
    EXPECT_EQ(std::make_pair(fields(a), fields(b)), std::make_pair(fa, fb));
}

TEST(Ustring, BuffersFitExactlyAndShrinkBelowHalf) {
    auto grow = [](ustring& s) { s = "0123456789"; s.c_str_utf16(); };
    const std::tuple<const char*, Edit, uint32_t, uint32_t> cases[] = {
        {"fills the default", [](ustring& s) { s = "abc"; }, 4, 4},
        {"one past the default", [](ustring& s) { s = "abcd"; }, 5, 4},
        {"append grows exactly", [](ustring& s) { s = "ab"; s.append("cd"); s.append("e"); }, 6, 4},
        {"kept at half", [=](ustring& s) { grow(s); s = "abcd"; }, 11, 11},
        {"shrinks below half", [=](ustring& s) { grow(s); s = "abc"; }, 4, 11},
        {"copy assignment shrinks", [=](ustring& s) { grow(s); s = ustring("ab"); }, 3, 11},
        {"self append", [](ustring& s) { s = "abc"; s.append(s.c_str()); }, 7, 4},
        {"append char n", [](ustring& s) { s.append('x', 9); }, 10, 4},
        {"view of multibyte text", [](ustring& s) { s = kMixed8; s.c_str_utf16(); }, 9, 5},
        {"view kept at half", [=](ustring& s) { grow(s); s = "abcd"; s.c_str_utf16(); }, 11, 11},
        {"view shrinks below half", [=](ustring& s) { grow(s); s = "abc"; s.c_str_utf16(); }, 4, 4},
        {"utf16 source", [](ustring& s) { s = W(u"0123456789"); }, 11, 11},
        {"units onto a built view", [](ustring& s) { s = "ab"; s += W(u"cd"); }, 5, 5},
        {"unit n", [](ustring& s) { s.assign(US('x'), 5); }, 6, 6},
    };
    for (const auto& [name, steps, data_cap, wdata_cap] : cases) {
        SCOPED_TRACE(name);
        ustring s;
        steps(s);
        EXPECT_EQ(s.data_cap, data_cap);
        EXPECT_EQ(s.wdata_cap, wdata_cap);
    }
}

TEST(Ustring, IcuFailuresWarnAndNeverThrow) {
    // A valid prefix may already be converted when the bad byte is met.
    for (const char* text : {"\xC3\x28", "0123456789\xE4\xB8"}) {
        SCOPED_TRACE(text);
        ustring s(text);
        const std::string err = Stderr([&] { EXPECT_EQ(s.c_str_utf16(), s.wdata); });
        EXPECT_TRUE(IsWarning(err, "u_strFromUTF8")) << err;
        ExpectViewDropped(s);
        ExpectText(s, text);
        EXPECT_EQ(Stderr([&] { EXPECT_EQ(s.convert_from_data(), -1); }), err);
        ustring normalized("x");
        EXPECT_TRUE(IsWarning(Stderr([&] { normalized = s.normalize(NFC); }), "u_strFromUTF8"));
        ExpectText(normalized, "");
    }
    static const US kLoneHigh[] = {'a', 0xD800, 0};
    const Edit bad16[] = {
        [](ustring& s) { s = kLoneHigh; },
        [](ustring& s) { s = kMixed8; s.assign(s.c_str_utf16(), 3); },  // cuts a surrogate pair
        [](ustring& s) { s += US(0xDC00); },
    };
    for (const auto& edit : bad16) {
        ustring s("ok");
        EXPECT_TRUE(IsWarning(Stderr([&] { edit(s); }), "u_strToUTF8"));
        ExpectText(s, "");
        ExpectViewDropped(s);
    }
    EXPECT_EQ(Stderr([] {
                  ustring a(kMixed8);
                  a += US(0xE9);  // both conversions
                  a.normalize(NFD);
                  ustring().c_str_utf16();
              }), "");
}

enum Family { kFirstOf, kFirstNotOf, kLastOf, kLastNotOf, kFind, kRFind };
template <class Arg>
uint32_t Search(const ustring& s, Family f, const Arg& arg, uint32_t pos) {
    switch (f) {
        case kFirstOf: return s.find_first_of(arg, pos);
        case kFirstNotOf: return s.find_first_not_of(arg, pos);
        case kLastOf: return s.find_last_of(arg, pos);
        case kLastNotOf: return s.find_last_not_of(arg, pos);
        case kFind: return s.find(arg, pos);
        default: return s.rfind(arg, pos);
    }
}

TEST(Ustring, SearchFamiliesAgreeAcrossOverloads) {
    const char* h = "hello world";                 // h0 e1 l2 l3 o4 _5 w6 o7 r8 l9 d10
    const char* u8 = "a\xC3\xA9\xE4\xB8\xAD" "b";  // a0, U+00E9 at 1, U+4E2D at 3, b6
    const std::tuple<const char*, Family, const char*, uint32_t, uint32_t> cases[] = {
        {h, kFirstOf, "ol", 0, 2}, {h, kFirstOf, "ol", 5, 7}, {h, kFirstOf, "o", 8, npos},
        {h, kFirstOf, "", 0, npos}, {h, kFirstOf, "d", 10, 10}, {h, kFirstOf, "h", 11, npos},
        {h, kFirstNotOf, "hel", 0, 4}, {h, kFirstNotOf, "l", 2, 4}, {h, kFirstNotOf, "d", 10, npos},
        {h, kFirstNotOf, "helo wrd", 0, npos}, {h, kFirstNotOf, "", 3, 3},
        {h, kFirstNotOf, "", 11, npos}, {h, kLastOf, "ol", npos, 9}, {h, kLastOf, "ol", 8, 7},
        {h, kLastOf, "ol", 100, 9}, {h, kLastOf, "h", npos, 0}, {h, kLastOf, "d", 9, npos},
        {h, kLastOf, "", npos, npos}, {"", kLastOf, "a", npos, npos},
        {h, kLastNotOf, "dlr", npos, 7}, {h, kLastNotOf, "el", 3, 0}, {h, kLastNotOf, "h", 0, npos},
        {h, kLastNotOf, "", npos, 10}, {h, kLastNotOf, "", 4, 4}, {"", kLastNotOf, "", npos, npos},
        {h, kFind, "o", 5, 7}, {h, kFind, "world", 0, 6}, {h, kFind, "world", 7, npos},
        {h, kFind, "d", 10, 10}, {h, kFind, "hello world!", 0, npos}, {h, kFind, "o", 11, npos},
        {h, kFind, "", 3, 3}, {h, kFind, "", 11, npos}, {"aaab", kFind, "aab", 0, 1},
        {h, kRFind, "o", npos, 7}, {h, kRFind, "o", 6, 4}, {h, kRFind, "ld", npos, 9},
        {h, kRFind, "world", 100, 6}, {h, kRFind, "world", 5, npos}, {h, kRFind, "hello", npos, 0},
        {h, kRFind, "", 11, 10}, {h, kRFind, "", 3, 3}, {"", kRFind, "", npos, npos},
        {u8, kFind, "\xE4\xB8\xAD", 0, 3}, {u8, kFirstOf, "\xAD\xB8", 0, 4},
        {u8, kLastOf, "\xC3\xE4", npos, 3}, {u8, kFirstNotOf, "a\xC3", 0, 2},
        {u8, kLastNotOf, "b\xAD", npos, 4},
    };
    for (const auto& [text, family, arg, pos, expected] : cases) {
        SCOPED_TRACE(std::to_string(family) + " " + text + " / " + arg + " " + std::to_string(pos));
        const ustring s(text);
        EXPECT_EQ(Search(s, family, arg, pos), expected) << "const char*";
        EXPECT_EQ(Search(s, family, std::string(arg), pos), expected) << "std::string";
        EXPECT_EQ(Search(s, family, ustring(arg), pos), expected) << "ustring";
        if (arg[0] && !arg[1]) {
            EXPECT_EQ(Search(s, family, arg[0], pos), expected) << "char";
        }
    }
    const ustring s(h);
    EXPECT_EQ(s.find_first_of(std::string("x\0o", 3)), npos);  // a std::string ends at its NUL
    EXPECT_EQ(s.find(std::string("wor\0xx", 6)), 6u);
    EXPECT_EQ(std::make_tuple(s.find('o'), s.rfind('o'), s.find_last_of('l')),
              std::make_tuple(4u, 7u, 9u));  // default positions
}

TEST(Ustring, TrimRemovesSetBytesAtTheEnds) {
    enum Op { kL, kR, kBoth };
    const std::tuple<const char*, Op, const char*, const char*> cases[] = {
        {"  ab  ", kL, " ", "ab  "}, {"  ab  ", kR, " ", "  ab"}, {"  ab  ", kBoth, " ", "ab"},
        {"\t\n ab c \n", kBoth, " \t\n", "ab c"}, {"   ", kBoth, " ", ""}, {"   ", kL, " ", ""},
        {"   ", kR, " ", ""}, {"  ab  ", kL, "", "  ab  "}, {"  ab  ", kR, "", "  ab  "},
        {"ab ", kL, "ba", " "}, {"", kBoth, " ", ""},
        {"\xC3\xA9" "a\xC3\xA9", kBoth, "\xC3\xA9", "a"},  // a set of bytes, not characters
    };
    for (const auto& [text, op, set, expected] : cases) {
        for (bool as_ustring : {false, true}) {
            SCOPED_TRACE(std::to_string(op) + " \"" + text + "\" \"" + set + "\"");
            ustring s(text);
            const ustring uset(set);
            if (op == kL) as_ustring ? s.ltrim(uset) : s.ltrim(set);
            if (op == kR) as_ustring ? s.rtrim(uset) : s.rtrim(set);
            if (op == kBoth) as_ustring ? s.trim(uset) : s.trim(set);
            ExpectText(s, expected);
        }
    }
}

TEST(Ustring, CompareIsByUnsignedBytes) {
    // {a, b, member compare, ignore_case compare}; only ASCII letters are folded.
    const std::tuple<const char*, const char*, int, int> cases[] = {
        {"abc", "abc", 0, 0}, {"abc", "abd", -1, -1}, {"ab", "abc", -'c', -'c'},
        {"abc", "ab", 'c', 'c'}, {"", "a", -'a', -'a'}, {"ABC", "abc", 'A' - 'a', 0},
        {"abc", "ABD", 'a' - 'A', 'c' - 'd'}, {"Z", "[", 'Z' - '[', 'z' - '['},
        {"@", "`", '@' - '`', '@' - '`'}, {"\xC3\x89", "\xC3\xA9", 0x89 - 0xA9, 0x89 - 0xA9},
        {"a", "\xC3", 'a' - 0xC3, 'a' - 0xC3},
    };
    for (const auto& [a, b, exact, folded] : cases) {
        SCOPED_TRACE(std::string(a) + " vs " + b);
        EXPECT_EQ(ustring(a).compare(ustring(b)), exact);
        EXPECT_EQ(ustring::compare(ustring(a), ustring(b), false), exact);
        EXPECT_EQ(ustring::compare(ustring(a), ustring(b), true), folded);
    }
    const std::tuple<const char*, const char*, uint32_t, int> limited[] = {
        {"abcX", "abcY", 3, 0}, {"abcX", "abcY", 4, 'X' - 'Y'}, {"a", "b", 0, 0},
        {"ab", "abc", 10, -'c'}, {"\xC3\xA9", "\xC3\x89", 2, 0xA9 - 0x89}};
    for (const auto& [a, b, n, expected] : limited) {
        EXPECT_EQ(ustring(a).compare(ustring(b), n), expected) << a << " " << b << " " << n;
    }
    const char* ordered[] = {"", "a", "ab", "abc", "abd", "b", "\xC3\xA9", "\xE4\xB8\xAD"};
    for (size_t i = 0; i < std::size(ordered); ++i) {
        for (size_t j = 0; j < std::size(ordered); ++j) {
            const ustring a(ordered[i]), b(ordered[j]);
            EXPECT_EQ(std::make_tuple(a == b, a != b, a < b, a > b),
                      std::make_tuple(i == j, i != j, i < j, i > j)) << i << " vs " << j;
        }
    }
}

TEST(Ustring, NormalizeAndValidity) {
    const std::tuple<const char*, normalization_form, const char*> cases[] = {
        {"\xC3\xA9", NFD, "e\xCC\x81"}, {"e\xCC\x81", NFC, "\xC3\xA9"},
        {"\xC3\xA9", NFC, "\xC3\xA9"}, {"e\xCC\x81", NFD, "e\xCC\x81"},
        {"\xE2\x84\xAB", NFD, "A\xCC\x8A"}, {"", NFD, ""},
        {"Caf\xC3\xA9 \xE4\xB8\xAD\xF0\x9F\x98\x80", NFD,
         "Cafe\xCC\x81 \xE4\xB8\xAD\xF0\x9F\x98\x80"},
    };
    for (const auto& [input, form, expected] : cases) {
        SCOPED_TRACE(std::string(input) + (form == NFC ? " NFC" : " NFD"));
        const ustring s(input);
        ExpectText(ustring::normalize(s, form), expected);
        const ustring r = s.normalize(form);
        ExpectText(r, expected);
        EXPECT_EQ(Text(ustring(r.c_str_utf16())), expected);
        ExpectText(s, input);
    }
    const std::tuple<const char*, bool> validity[] = {
        {"", true}, {"abc", true}, {"\xC3\xA9", true}, {"\xF0\x9F\x98\x80", true},
        {"\xC3\x28", false}, {"\xFF", false}, {"a\x80", false}, {"a\xE4\xB8", false},
        {"\xED\xA0\x80", false}, {"\xC0\xAF", false},
    };
    for (const auto& [text, valid] : validity) {
        EXPECT_EQ(ustring::is_valid(ustring(text)), valid) << text;
    }
}

}  // namespace
