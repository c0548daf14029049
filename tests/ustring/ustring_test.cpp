// ustring: construction, assignment, appending, the lazy UTF-16 view, buffer sizing and the
// warnings written for ICU conversion failures.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "ustring.h"
#include "ustring_test_util.h"

using namespace ustest;

namespace {

// "a", U+4E2D, U+1F600: one, three and four UTF-8 bytes; one, one and two UTF-16 units.
const char kMixed8[] = "a\xE4\xB8\xAD\xF0\x9F\x98\x80";
const char16_t kMixed16[] = u"a\u4E2D\U0001F600";

// ---------------------------------------------------------------------------------------------
// Construction

struct CtorCase {
    const char* name;
    std::function<std::unique_ptr<ustring>()> make;
    std::string text;
    uint32_t wdata_len;  // UTF-16 sources leave the view built, UTF-8 sources do not
};

TEST(UstringConstruct, EachConstructorGivesTextAndViewState) {
    static const unsigned short kEmpty16[] = {0};
    const std::vector<CtorCase> cases = {
        {"default", [] { return std::make_unique<ustring>(); }, "", 0},
        {"utf8 multibyte", [] { return std::make_unique<ustring>(kMixed8); }, kMixed8, 0},
        {"utf8 empty", [] { return std::make_unique<ustring>(""); }, "", 0},
        {"utf16 with surrogate pair", [] { return std::make_unique<ustring>(U16(kMixed16)); },
         kMixed8, 4},
        {"utf16 empty", [] { return std::make_unique<ustring>(kEmpty16); }, "", 0},
        {"std::string stops at first NUL",
         [] { return std::make_unique<ustring>(std::string("ab\0cd", 5)); }, "ab", 0},
        {"std::string U+00E9 is two bytes",
         [] { return std::make_unique<ustring>(std::string("\xC3\xA9")); }, "\xC3\xA9", 0},
        {"char", [] { return std::make_unique<ustring>('x'); }, "x", 0},
        {"char is one byte, not a code point",
         [] { return std::make_unique<ustring>('\xC3'); }, "\xC3", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::unique_ptr<ustring> s = c.make();
        ExpectText(*s, c.text);
        EXPECT_EQ(s->wdata_len, c.wdata_len);
        EXPECT_EQ(s->empty(), c.text.empty());
        EXPECT_EQ(s->size(), s->length());
        EXPECT_EQ(s->c_str(), s->data);
        EXPECT_EQ(s->c_str_utf8(), s->data);
    }
}

TEST(UstringConstruct, DefaultStateAndEmptyView) {
    ustring s;
    EXPECT_EQ(s.length(), 0u);
    EXPECT_EQ(s.data_cap, 4u);
    EXPECT_EQ(s.wdata_cap, 4u);
    EXPECT_EQ(s.wdata_len, 0u);
    ASSERT_NE(s.c_str(), nullptr);
    EXPECT_STREQ(s.c_str(), "");
    const unsigned short* w = s.c_str_utf16();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w[0], 0u);
    EXPECT_EQ(s.wdata_len, 0u);
}

TEST(UstringConstruct, CopyTakesTextButNotTheView) {
    ustring src(kMixed8);
    ASSERT_EQ(View(src), kMixed16);
    ustring copy(src);
    ExpectText(copy, kMixed8);
    EXPECT_NE(copy.data, src.data);
    EXPECT_NE(copy.wdata, src.wdata);
    EXPECT_EQ(copy.wdata_len, 0u);
    EXPECT_EQ(View(copy), kMixed16);

    // Independent buffers: changing the copy leaves the source alone.
    copy.append("z");
    ExpectText(src, kMixed8);
}

// ---------------------------------------------------------------------------------------------
// Assignment

struct EditCase {
    const char* name;
    std::function<void(ustring&)> edit;
    std::string text;
};

void RunEdits(const char* initial, const std::vector<EditCase>& cases) {
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ustring s(initial);
        c.edit(s);
        ExpectText(s, c.text);
    }
}

TEST(UstringAssign, EveryOverloadReplacesTheText) {
    RunEdits("old text", {
        {"ustring whole", [](ustring& s) { s.assign(ustring("abcdef")); }, "abcdef"},
        {"ustring pos n", [](ustring& s) { s.assign(ustring("abcdef"), 2, 3); }, "cde"},
        {"ustring pos", [](ustring& s) { s.assign(ustring("abcdef"), 2); }, "cdef"},
        {"ustring pos at end", [](ustring& s) { s.assign(ustring("abc"), 3); }, ""},
        {"ustring n past end", [](ustring& s) { s.assign(ustring("abc"), 1, 100); }, "bc"},
        {"const char*", [](ustring& s) { s.assign("xyz"); }, "xyz"},
        {"const char* empty", [](ustring& s) { s.assign(""); }, ""},
        {"const char* n", [](ustring& s) { s.assign("xyz", 2); }, "xy"},
        {"const char* n past NUL", [](ustring& s) { s.assign("xyz", 10); }, "xyz"},
        {"const char* n zero", [](ustring& s) { s.assign("xyz", 0); }, ""},
        {"utf16", [](ustring& s) { s.assign(U16(kMixed16)); }, kMixed8},
        {"utf16 n keeps pair", [](ustring& s) { s.assign(U16(kMixed16), 4); }, kMixed8},
        {"utf16 n", [](ustring& s) { s.assign(U16(kMixed16), 2); }, "a\xE4\xB8\xAD"},
        {"std::string", [](ustring& s) { s.assign(std::string("abcdef")); }, "abcdef"},
        {"std::string pos n", [](ustring& s) { s.assign(std::string("abcdef"), 1, 2); }, "bc"},
        {"std::string pos at size", [](ustring& s) { s.assign(std::string("abc"), 3); }, ""},
        {"std::string up to NUL",
         [](ustring& s) { s.assign(std::string("ab\0cd", 5)); }, "ab"},
        {"std::string pos after NUL",
         [](ustring& s) { s.assign(std::string("ab\0cd", 5), 3); }, "cd"},
        {"char n", [](ustring& s) { s.assign('q', 3); }, "qqq"},
        {"char zero", [](ustring& s) { s.assign('q', 0); }, ""},
        {"unit n", [](ustring& s) { s.assign((unsigned short)0x4E2D, 2); },
         "\xE4\xB8\xAD\xE4\xB8\xAD"},
        {"= ustring", [](ustring& s) { s = ustring("\xC3\xA9t\xC3\xA9"); }, "\xC3\xA9t\xC3\xA9"},
        {"= std::string", [](ustring& s) { s = std::string("std"); }, "std"},
        {"= const char*", [](ustring& s) { s = "plain"; }, "plain"},
        {"= utf16", [](ustring& s) { s = U16(u"\U0001F600"); }, "\xF0\x9F\x98\x80"},
        {"= char", [](ustring& s) { s = 'c'; }, "c"},
        {"= unit", [](ustring& s) { s = (unsigned short)0x00E9; }, "\xC3\xA9"},
    });
}

TEST(UstringAssign, FromItselfKeepsOrCutsTheText) {
    {
        ustring s("hello");
        ustring& alias = s;
        s = alias;
        ExpectText(s, "hello");
    }
    {
        ustring s("hello");
        s.assign(s, 1, 3);
        ExpectText(s, "ell");
    }
    {
        // Own data pointer: nothing happens, not even dropping the view.
        ustring s("hello");
        s.c_str_utf16();
        s.assign(s.c_str());
        ExpectText(s, "hello");
        EXPECT_EQ(StoredView(s), u"hello");
        s = s.c_str();
        ExpectText(s, "hello");
    }
    {
        ustring s("hello");
        s.assign(s.c_str(), 3);
        ExpectText(s, "hel");
        s.assign(s.c_str(), 10);
        ExpectText(s, "hel");
    }
    {
        ustring s(kMixed8);
        s.assign(s.c_str_utf16());
        ExpectText(s, kMixed8);
        EXPECT_EQ(StoredView(s), kMixed16);
        s = s.c_str_utf16();
        ExpectText(s, kMixed8);
    }
    {
        // Truncating the own view rebuilds the UTF-8 text from it.
        ustring s(kMixed8);
        s.assign(s.c_str_utf16(), 2);
        ExpectText(s, "a\xE4\xB8\xAD");
        EXPECT_EQ(StoredView(s), u"a\u4E2D");
        s.assign(s.c_str_utf16(), 10);
        ExpectText(s, "a\xE4\xB8\xAD");
        EXPECT_EQ(View(s), u"a\u4E2D");
    }
}

TEST(UstringAssign, PositionsOutOfRangeThrow) {
    struct Case {
        const char* name;
        std::function<void()> op;
        const char* what;  // nullptr: only the exception type is fixed
    };
    const std::vector<Case> cases = {
        {"substr pos length+1",
         [] { ustring("hello").substr(6, 0); }, "substr"},
        {"substr pos npos", [] { ustring("hello").substr(kNpos); }, "substr"},
        {"substr on empty", [] { ustring().substr(1); }, "substr"},
        {"append std::string pos beyond size",
         [] { ustring s("x"); s.append(std::string("abc"), 4); }, "basic_string::substr"},
        {"append std::string pos npos",
         [] { ustring s("x"); s.append(std::string("abc"), kNpos, 1); },
         "basic_string::substr"},
        {"assign std::string pos beyond size",
         [] { ustring s("x"); s.assign(std::string("abc"), 4); }, "basic_string::substr"},
        {"assign std::string pos beyond size of empty",
         [] { ustring s("x"); s.assign(std::string(), 1, 0); }, "basic_string::substr"},
        {"append ustring pos beyond length",
         [] { ustring s("x"); s.append(ustring("abc"), 4); }, nullptr},
        {"assign ustring pos beyond length",
         [] { ustring s("x"); s.assign(ustring("abc"), 4); }, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        if (c.what) {
            EXPECT_EQ(OutOfRangeText(c.op), c.what);
        } else {
            EXPECT_THROW(c.op(), std::out_of_range);
        }
    }
}

// ---------------------------------------------------------------------------------------------
// Appending

TEST(UstringAppend, EveryOverloadAddsToTheEnd) {
    static const unsigned short kUnitsWithNul[] = {'c', 'd', 0, 'e', 0};
    RunEdits("ab", {
        {"const char*", [](ustring& s) { s.append("\xE4\xB8\xAD"); }, "ab\xE4\xB8\xAD"},
        {"const char* empty", [](ustring& s) { s.append(""); }, "ab"},
        {"const char* n", [](ustring& s) { s.append("cdef", 2); }, "abcd"},
        {"const char* n stops at NUL", [](ustring& s) { s.append("c\0de", 4); }, "abc"},
        {"const char* n zero", [](ustring& s) { s.append("cd", 0); }, "ab"},
        {"utf16", [](ustring& s) { s.append(U16(u"\u4E2D\U0001F600")); },
         "ab\xE4\xB8\xAD\xF0\x9F\x98\x80"},
        {"utf16 n keeps a whole pair", [](ustring& s) { s.append(U16(u"\U0001F600x"), 2); },
         "ab\xF0\x9F\x98\x80"},
        {"utf16 n stops at 0 unit", [](ustring& s) { s.append(kUnitsWithNul, 4); }, "abcd"},
        {"char n", [](ustring& s) { s.append('-', 3); }, "ab---"},
        {"char zero", [](ustring& s) { s.append('-', 0); }, "ab"},
        {"unit n", [](ustring& s) { s.append((unsigned short)0x00E9, 2); },
         "ab\xC3\xA9\xC3\xA9"},
        {"ustring", [](ustring& s) { s.append(ustring("cd")); }, "abcd"},
        {"ustring pos n", [](ustring& s) { s.append(ustring("12345"), 1, 2); }, "ab23"},
        {"ustring pos at end", [](ustring& s) { s.append(ustring("12"), 2); }, "ab"},
        {"std::string", [](ustring& s) { s.append(std::string("cd")); }, "abcd"},
        {"std::string pos n", [](ustring& s) { s.append(std::string("abcdef"), 2, 3); },
         "abcde"},
        {"std::string pos at size", [](ustring& s) { s.append(std::string("abc"), 3); }, "ab"},
        {"std::string up to NUL", [](ustring& s) { s.append(std::string("c\0d", 3)); }, "abc"},
        {"std::string substring begins at NUL",
         [](ustring& s) { s.append(std::string("cd\0ef", 5), 2); }, "ab"},
        {"std::string substring after NUL",
         [](ustring& s) { s.append(std::string("cd\0ef", 5), 3, 1); }, "abe"},
        {"+= ustring", [](ustring& s) { s += ustring("cd"); }, "abcd"},
        {"+= std::string", [](ustring& s) { s += std::string("cd"); }, "abcd"},
        {"+= const char*", [](ustring& s) { s += "cd"; }, "abcd"},
        {"+= utf16", [](ustring& s) { s += U16(u"\U0001F600"); }, "ab\xF0\x9F\x98\x80"},
        {"+= char", [](ustring& s) { s += 'c'; }, "abc"},
        {"+= unit", [](ustring& s) { s += (unsigned short)'c'; }, "abc"},
        {"chained", [](ustring& s) { s.append("c").append('d', 1) += "e"; }, "abcde"},
    });
}

TEST(UstringAppend, OwnTextIsDoubled) {
    {
        ustring s("ab");
        s.append(s.c_str());
        ExpectText(s, "abab");
        // Each round has to grow the buffer, so the source must not be read from freed memory.
        s.append(s.c_str());
        s.append(s.c_str());
        ExpectText(s, "abababababababab");
    }
    {
        ustring s("hello");
        s.append(s.c_str(), 2);
        ExpectText(s, "hellohe");
    }
    {
        ustring s("hello");
        s.append(s.c_str(), 100);
        ExpectText(s, "hellohello");
    }
    {
        ustring s(kMixed8);
        s += s.c_str();
        ExpectText(s, std::string(kMixed8) + kMixed8);
    }
    {
        ustring s(kMixed8);
        s += s;
        ExpectText(s, std::string(kMixed8) + kMixed8);
    }
    {
        ustring s("abc");
        s.append(s, 1);
        ExpectText(s, "abcbc");
    }
}

TEST(UstringAppend, OwnViewIsDoubled) {
    {
        ustring s(kMixed8);
        s.append(s.c_str_utf16());
        ExpectText(s, std::string(kMixed8) + kMixed8);
        EXPECT_EQ(StoredView(s), std::u16string(kMixed16) + kMixed16);
    }
    {
        ustring s(kMixed8);
        s += s.c_str_utf16();
        s += s.c_str_utf16();
        const std::string twice = std::string(kMixed8) + kMixed8;
        ExpectText(s, twice + twice);
    }
    {
        ustring s(kMixed8);
        s.append(s.c_str_utf16(), 1);
        ExpectText(s, std::string(kMixed8) + "a");
    }
}

// ---------------------------------------------------------------------------------------------
// substr

TEST(UstringSubstr, BoundsAndLengths) {
    struct Case {
        const char* text;
        uint32_t pos, n;
        const char* expected;
    };
    const Case cases[] = {
        {"hello", 0, kNpos, "hello"},
        {"hello", 1, 3, "ell"},
        {"hello", 2, kNpos, "llo"},
        {"hello", 2, 100, "llo"},
        {"hello", 3, 0xFFFFFFFEu, "lo"},  // pos + n would wrap
        {"hello", 0, 0, ""},
        {"hello", 5, 5, ""},
        {"hello", 5, kNpos, ""},
        {"", 0, kNpos, ""},
        {"a\xE4\xB8\xAD" "b", 1, 3, "\xE4\xB8\xAD"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.text) + " pos " + std::to_string(c.pos) + " n " +
                     std::to_string(c.n));
        const ustring s(c.text);
        ustring sub = s.substr(c.pos, c.n);
        ExpectText(sub, c.expected);
        ExpectText(s, c.text);
    }
    const ustring s("hello");
    ExpectText(s.substr(), "hello");
    ExpectText(s.substr(3), "lo");
}

// ---------------------------------------------------------------------------------------------
// The UTF-16 view

TEST(UstringView, BuiltOnlyWhenAskedAndMatchesText) {
    ustring s(kMixed8);
    EXPECT_EQ(s.wdata_len, 0u);
    EXPECT_EQ(s.length(), 8u);
    const unsigned short* w = s.c_str_utf16();
    EXPECT_EQ(w, s.wdata);
    EXPECT_EQ(s.wdata_len, 4u);
    EXPECT_EQ(StoredView(s), kMixed16);
    EXPECT_EQ(w[1], 0x4E2Du);
    EXPECT_EQ(w[2], 0xD83Du);
    EXPECT_EQ(w[3], 0xDE00u);
    EXPECT_EQ(w[4], 0u);
    // Asking again reuses the built view.
    EXPECT_EQ(s.c_str_utf16(), w);
    ExpectText(s, kMixed8);

    const ustring& cs = s;
    cs.clear_wdata();
    ExpectViewDropped(s);
    EXPECT_EQ(View(cs), kMixed16);

    ustring fresh("\xC3\xA9");
    EXPECT_EQ(fresh.convert_from_data(), 0);
    EXPECT_EQ(StoredView(fresh), u"\u00E9");
}

struct ViewCase {
    const char* name;
    const char* initial;
    std::function<void(ustring&)> edit;
    std::string text;
    std::u16string view;
};

TEST(UstringView, EveryUtf8ChangeDropsTheViewWhichIsThenRebuilt) {
    const std::vector<ViewCase> cases = {
        {"append const char*", "ab", [](ustring& s) { s.append("\xE4\xB8\xAD"); },
         "ab\xE4\xB8\xAD", u"ab\u4E2D"},
        {"append const char* n", "ab", [](ustring& s) { s.append("cde", 1); }, "abc", u"abc"},
        {"append char n", "ab", [](ustring& s) { s.append('c', 2); }, "abcc", u"abcc"},
        {"append ustring", "ab", [](ustring& s) { s.append(ustring("c")); }, "abc", u"abc"},
        {"append std::string", "ab", [](ustring& s) { s.append(std::string("c")); }, "abc",
         u"abc"},
        {"+= const char*", "ab", [](ustring& s) { s += "c"; }, "abc", u"abc"},
        {"+= char", "ab", [](ustring& s) { s += 'c'; }, "abc", u"abc"},
        {"+= ustring", "ab", [](ustring& s) { s += ustring("c"); }, "abc", u"abc"},
        {"+= std::string", "ab", [](ustring& s) { s += std::string("c"); }, "abc", u"abc"},
        {"self append", "ab", [](ustring& s) { s.append(s.c_str()); }, "abab", u"abab"},
        {"assign const char*", "ab", [](ustring& s) { s.assign("\xF0\x9F\x98\x80"); },
         "\xF0\x9F\x98\x80", u"\U0001F600"},
        {"assign const char* n", "ab", [](ustring& s) { s.assign("xyz", 2); }, "xy", u"xy"},
        {"assign own data truncated", "abcd", [](ustring& s) { s.assign(s.c_str(), 2); }, "ab",
         u"ab"},
        {"assign char n", "ab", [](ustring& s) { s.assign('z', 3); }, "zzz", u"zzz"},
        {"assign ustring part", "ab", [](ustring& s) { s.assign(ustring("wxyz"), 1, 2); }, "xy",
         u"xy"},
        {"assign std::string", "ab", [](ustring& s) { s.assign(std::string("xy")); }, "xy",
         u"xy"},
        {"= ustring", "ab", [](ustring& s) { s = ustring("xy"); }, "xy", u"xy"},
        {"= std::string", "ab", [](ustring& s) { s = std::string("xy"); }, "xy", u"xy"},
        {"= const char*", "ab", [](ustring& s) { s = "xy"; }, "xy", u"xy"},
        {"= char", "ab", [](ustring& s) { s = 'x'; }, "x", u"x"},
        {"replace", "abc", [](ustring& s) { s.replace('a', 'x'); }, "xbc", u"xbc"},
        {"replace all", "a/b/c", [](ustring& s) { s.replace('/', '\\'); }, "a\\b\\c",
         u"a\\b\\c"},
        {"operator[] write", "abc", [](ustring& s) { s[1] = 'X'; }, "aXc", u"aXc"},
        {"ltrim", "  ab", [](ustring& s) { s.ltrim(" "); }, "ab", u"ab"},
        {"rtrim", "ab  ", [](ustring& s) { s.rtrim(ustring(" ")); }, "ab", u"ab"},
        {"trim", " ab ", [](ustring& s) { s.trim(" "); }, "ab", u"ab"},
        {"stream in", "ab", [](ustring& s) { std::istringstream in("xy z"); in >> s; }, "xy",
         u"xy"},
        {"clear", "ab", [](ustring& s) { s.clear(); }, "", u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ustring s(c.initial);
        ASSERT_NE(s.c_str_utf16(), nullptr);
        ASSERT_GT(s.wdata_len, 0u);
        c.edit(s);
        ExpectViewDropped(s);
        ExpectText(s, c.text);
        EXPECT_EQ(View(s), c.view);
        EXPECT_EQ(s.wdata_len, c.view.size());
    }
}

TEST(UstringView, Utf16InputLeavesBothRepresentationsInAgreement) {
    static const unsigned short kLone[] = {'x', 0};
    const std::vector<ViewCase> cases = {
        // The view is not built yet when the unit arrives: the UTF-8 text must survive.
        {"unit onto unbuilt view", "ab", [](ustring& s) { s.append((unsigned short)'c', 1); },
         "abc", u"abc"},
        {"+= unit onto unbuilt view", "ab", [](ustring& s) { s += (unsigned short)'c'; }, "abc",
         u"abc"},
        {"units onto unbuilt view", "ab", [](ustring& s) { s.append(U16(u"\u4E2D\U0001F600")); },
         "ab\xE4\xB8\xAD\xF0\x9F\x98\x80", u"ab\u4E2D\U0001F600"},
        {"units n onto unbuilt view", "ab", [](ustring& s) { s.append(kLone, 5); }, "abx",
         u"abx"},
        // A view built and then dropped by a UTF-8 change must not be appended to.
        {"units after UTF-8 change", "ab",
         [](ustring& s) {
             s.c_str_utf16();
             s += "cd";
             s += U16(u"e");
         },
         "abcde", u"abcde"},
        {"unit onto empty", "", [](ustring& s) { s += (unsigned short)0x4E2D; }, "\xE4\xB8\xAD",
         u"\u4E2D"},
        {"assign units", "old", [](ustring& s) { s.assign(U16(u"\U0001F600")); },
         "\xF0\x9F\x98\x80", u"\U0001F600"},
        {"assign unit n", "old", [](ustring& s) { s.assign((unsigned short)0x00E9, 3); },
         "\xC3\xA9\xC3\xA9\xC3\xA9", u"\u00E9\u00E9\u00E9"},
        {"= unit", "old", [](ustring& s) { s = (unsigned short)0x4E2D; }, "\xE4\xB8\xAD",
         u"\u4E2D"},
        {"= units", "old", [](ustring& s) { s = U16(u"n\u00E9w"); }, "n\xC3\xA9w",
         u"n\u00E9w"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ustring s(c.initial);
        c.edit(s);
        ExpectText(s, c.text);
        // Built by the operation itself, not by asking for it here.
        EXPECT_EQ(StoredView(s), c.view);
        EXPECT_EQ(View(s), c.view);
    }
}

TEST(UstringView, NormalizeBuildsTheSourceView) {
    const ustring s("\xC3\xA9");
    ASSERT_EQ(s.wdata_len, 0u);
    s.normalize(NFD);
    EXPECT_EQ(StoredView(s), u"\u00E9");
}

// ---------------------------------------------------------------------------------------------
// clear, swap, element access

TEST(UstringState, ClearVariantsEmptyTheRightPartsAndKeepCapacities) {
    ustring s("0123456789");
    s.c_str_utf16();
    const char* d = s.data;
    const unsigned short* w = s.wdata;
    const uint32_t dcap = s.data_cap, wcap = s.wdata_cap;

    s.clear_data();
    EXPECT_EQ(s.data_len, 0u);
    EXPECT_EQ(s.data[0], '\0');
    EXPECT_EQ(s.data_cap, dcap);
    EXPECT_EQ(StoredView(s), u"0123456789");

    s = "0123456789";
    s.c_str_utf16();
    s.clear_wdata();
    ExpectViewDropped(s);
    EXPECT_EQ(s.wdata_cap, wcap);
    ExpectText(s, "0123456789");

    s.c_str_utf16();
    s.clear();
    ExpectText(s, "");
    ExpectViewDropped(s);
    EXPECT_EQ(s.data_cap, dcap);
    EXPECT_EQ(s.wdata_cap, wcap);
    EXPECT_EQ(s.data, d);
    EXPECT_EQ(s.wdata, w);
    EXPECT_TRUE(s.empty());
}

TEST(UstringState, SwapExchangesAllSixFields) {
    // Every field differs between the two, so a field left out shows.
    ustring a("abc");
    a.c_str_utf16();
    ustring b("\xE4\xB8\xAD\xE6\x96\x87\xE5\xAD\x97 and more");
    b.c_str_utf16();
    const ustring a0 = a, b0 = b;  // for the texts only
    char* ad = a.data;
    unsigned short* aw = a.wdata;
    const uint32_t al = a.data_len, ac = a.data_cap, awl = a.wdata_len, awc = a.wdata_cap;
    char* bd = b.data;
    unsigned short* bw = b.wdata;
    const uint32_t bl = b.data_len, bc = b.data_cap, bwl = b.wdata_len, bwc = b.wdata_cap;

    a.swap(b);
    EXPECT_EQ(a.data, bd);
    EXPECT_EQ(a.data_len, bl);
    EXPECT_EQ(a.data_cap, bc);
    EXPECT_EQ(a.wdata, bw);
    EXPECT_EQ(a.wdata_len, bwl);
    EXPECT_EQ(a.wdata_cap, bwc);
    EXPECT_EQ(b.data, ad);
    EXPECT_EQ(b.data_len, al);
    EXPECT_EQ(b.data_cap, ac);
    EXPECT_EQ(b.wdata, aw);
    EXPECT_EQ(b.wdata_len, awl);
    EXPECT_EQ(b.wdata_cap, awc);
    EXPECT_EQ(Text(a), Text(b0));
    EXPECT_EQ(StoredView(a), u"\u4E2D\u6587\u5B57 and more");
    EXPECT_EQ(StoredView(b), u"abc");

    swap(a, b);
    EXPECT_EQ(a.data, ad);
    EXPECT_EQ(a.wdata, aw);
    EXPECT_EQ(a.wdata_len, awl);
    EXPECT_EQ(b.data, bd);
    EXPECT_EQ(b.wdata, bw);
    EXPECT_EQ(Text(a), Text(a0));
}

TEST(UstringState, IndexingIsByByte) {
    ustring s("\xC3\xA9z");
    const ustring& cs = s;
    EXPECT_EQ(cs[0], '\xC3');
    EXPECT_EQ(cs[1], '\xA9');
    EXPECT_EQ(cs[2], 'z');
    EXPECT_EQ(&cs[0], s.data);
    EXPECT_EQ(&s[2], s.data + 2);
    s[2] = 'y';
    ExpectText(s, "\xC3\xA9y");
}

// ---------------------------------------------------------------------------------------------
// Buffer sizing: exact fit on growth, shrink only when capacity / 2 > needed.

constexpr uint32_t kAnyCap = 0;

struct SizingCase {
    const char* name;
    std::function<void(ustring&)> steps;
    uint32_t data_cap;
    uint32_t wdata_cap;
};

TEST(UstringSizing, CapacitiesFollowTheExactFitRule) {
    const std::vector<SizingCase> cases = {
        {"default", [](ustring&) {}, 4, 4},
        {"fits the default", [](ustring& s) { s = "a"; }, 4, 4},
        {"fills the default", [](ustring& s) { s = "abc"; }, 4, 4},
        {"one past the default", [](ustring& s) { s = "abcd"; }, 5, 4},
        {"append grows exactly",
         [](ustring& s) {
             s = "ab";
             s.append("cd");
             s.append("e");
         },
         6, 4},
        {"no shrink at half",
         [](ustring& s) {
             s = "0123456789";
             s = "abcd";
         },
         11, 4},
        {"shrink below half",
         [](ustring& s) {
             s = "0123456789";
             s = "abc";
         },
         4, 4},
        {"copy assignment shrinks",
         [](ustring& s) {
             s = "0123456789";
             s = ustring("ab");
         },
         3, 4},
        {"self append", [](ustring& s) {
             s = "abc";
             s.append(s.c_str());
         },
         7, 4},
        {"append char n", [](ustring& s) { s.append('x', 9); }, 10, 4},
        {"view of multibyte text",
         [](ustring& s) {
             s = kMixed8;
             s.c_str_utf16();
         },
         9, 5},
        {"view of ten units",
         [](ustring& s) {
             s = "0123456789";
             s.c_str_utf16();
         },
         11, 11},
        {"view kept at half",
         [](ustring& s) {
             s = "0123456789";
             s.c_str_utf16();
             s = "abcd";
             s.c_str_utf16();
         },
         11, 11},
        {"view shrinks below half",
         [](ustring& s) {
             s = "0123456789";
             s.c_str_utf16();
             s = "abc";
             s.c_str_utf16();
         },
         4, 4},
        {"clear keeps both",
         [](ustring& s) {
             s = "0123456789";
             s.c_str_utf16();
             s.clear();
         },
         11, 11},
        // Whether an empty view is built (and so shrunk) before the units arrive is left open.
        {"utf16 source", [](ustring& s) { s = U16(u"\u4E2D\u6587"); }, 7, kAnyCap},
        {"utf16 source growing the view", [](ustring& s) { s = U16(u"0123456789"); }, 11, 11},
        {"unit n", [](ustring& s) { s.assign((unsigned short)'x', 5); }, 6, 6},
        {"units onto a built view",
         [](ustring& s) {
             s = "ab";
             s += U16(u"cd");
         },
         5, 5},
        {"copy does not carry the view",
         [](ustring& s) {
             ustring src("0123456789");
             src.c_str_utf16();
             s = src;
         },
         11, 4},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ustring s;
        c.steps(s);
        EXPECT_EQ(s.data_cap, c.data_cap);
        if (c.wdata_cap != kAnyCap) {
            EXPECT_EQ(s.wdata_cap, c.wdata_cap);
        }
        ExpectWellFormed(s);
    }
}

TEST(UstringSizing, CopyConstructionFitsTheText) {
    ustring src("0123456789");
    ustring copy(src);
    EXPECT_EQ(copy.data_cap, 11u);
    EXPECT_EQ(copy.wdata_cap, 4u);
}

// ---------------------------------------------------------------------------------------------
// ICU failures: reported on standard error, never thrown.

TEST(UstringWarnings, InvalidUtf8ViewIsEmptyAndTextKept) {
    // A valid prefix may already have been converted when the bad byte is met.
    const char* texts[] = {"\xC3\x28", "abc\xFF", "0123456789\xE4\xB8"};
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        ustring s(text);
        ::testing::internal::CaptureStderr();
        const unsigned short* w = s.c_str_utf16();
        const std::string err = ::testing::internal::GetCapturedStderr();
        EXPECT_TRUE(IsWarningLine(err, "u_strFromUTF8", 10)) << err;
        ASSERT_NE(w, nullptr);
        EXPECT_EQ(w, s.wdata);
        ExpectViewDropped(s);
        ExpectText(s, text);

        ::testing::internal::CaptureStderr();
        EXPECT_EQ(s.convert_from_data(), -1);
        const std::string again = ::testing::internal::GetCapturedStderr();
        // Same place in the code, same line indicator.
        EXPECT_EQ(again, err);
        ExpectViewDropped(s);
        ExpectText(s, text);
    }
}

TEST(UstringWarnings, UnpairedSurrogateEmptiesTextAndView) {
    static const unsigned short kLoneHigh[] = {'a', 0xD800, 0};
    {
        ::testing::internal::CaptureStderr();
        ustring s(kLoneHigh);
        const std::string err = ::testing::internal::GetCapturedStderr();
        EXPECT_TRUE(IsWarningLine(err, "u_strToUTF8", 10)) << err;
        ExpectText(s, "");
        ExpectViewDropped(s);
    }
    {
        // Cutting the own view between the two halves of a pair.
        ustring s(kMixed8);
        s.c_str_utf16();
        ::testing::internal::CaptureStderr();
        s.assign(s.c_str_utf16(), 3);
        const std::string err = ::testing::internal::GetCapturedStderr();
        EXPECT_TRUE(IsWarningLine(err, "u_strToUTF8", 10)) << err;
        ExpectText(s, "");
        ExpectViewDropped(s);
    }
    {
        ustring s("ok");
        ::testing::internal::CaptureStderr();
        s += (unsigned short)0xDC00;
        const std::string err = ::testing::internal::GetCapturedStderr();
        EXPECT_TRUE(IsWarningLine(err, "u_strToUTF8", 10)) << err;
        ExpectText(s, "");
        ExpectViewDropped(s);
    }
}

TEST(UstringWarnings, ValidConversionsAreSilent) {
    ::testing::internal::CaptureStderr();
    ustring a(kMixed8);
    a.c_str_utf16();
    ustring b(U16(kMixed16));
    b += (unsigned short)0x00E9;
    ustring c = ustring("\xC3\xA9").normalize(NFD);
    ustring empty;
    empty.c_str_utf16();
    ustring::normalize(empty, NFC);
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(err, "");
    ExpectText(b, std::string(kMixed8) + "\xC3\xA9");
    ExpectText(c, "e\xCC\x81");
}

}  // namespace
