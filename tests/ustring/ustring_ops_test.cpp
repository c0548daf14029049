// ustring: searching, trimming, comparison, operators, streams, normalisation and validity.
#include <gtest/gtest.h>

#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include "ustring.h"
#include "ustring_test_util.h"

using namespace ustest;

namespace {

// ---------------------------------------------------------------------------------------------
// Searching

enum Family { kFirstOf, kFirstNotOf, kLastOf, kLastNotOf, kFind, kRFind };

const char* FamilyName(Family f) {
    switch (f) {
        case kFirstOf: return "find_first_of";
        case kFirstNotOf: return "find_first_not_of";
        case kLastOf: return "find_last_of";
        case kLastNotOf: return "find_last_not_of";
        case kFind: return "find";
        case kRFind: return "rfind";
    }
    return "?";
}

template <class Arg>
uint32_t Search(const ustring& s, Family f, const Arg& arg, uint32_t pos) {
    switch (f) {
        case kFirstOf: return s.find_first_of(arg, pos);
        case kFirstNotOf: return s.find_first_not_of(arg, pos);
        case kLastOf: return s.find_last_of(arg, pos);
        case kLastNotOf: return s.find_last_not_of(arg, pos);
        case kFind: return s.find(arg, pos);
        case kRFind: return s.rfind(arg, pos);
    }
    return 0;
}

struct SearchCase {
    const char* text;
    Family family;
    const char* arg;  // set or needle
    uint32_t pos;
    uint32_t expected;
};

// Runs the case through every overload that can express the argument; all must agree.
void RunSearches(const std::vector<SearchCase>& cases) {
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(FamilyName(c.family)) + " text \"" + c.text + "\" arg \"" +
                     c.arg + "\" pos " + std::to_string(c.pos));
        const ustring s(c.text);
        const char* cstr = c.arg;
        EXPECT_EQ(Search(s, c.family, cstr, c.pos), c.expected) << "const char*";
        EXPECT_EQ(Search(s, c.family, std::string(c.arg), c.pos), c.expected) << "std::string";
        EXPECT_EQ(Search(s, c.family, ustring(c.arg), c.pos), c.expected) << "ustring";
        if (std::strlen(c.arg) == 1) {
            EXPECT_EQ(Search(s, c.family, c.arg[0], c.pos), c.expected) << "char";
        }
        ExpectText(s, c.text);
    }
}

// "hello world": h0 e1 l2 l3 o4 _5 w6 o7 r8 l9 d10, length 11.
const char kHello[] = "hello world";

TEST(UstringSearch, FindFirstOf) {
    RunSearches({
        {kHello, kFirstOf, "ol", 0, 2},
        {kHello, kFirstOf, "ol", 5, 7},
        {kHello, kFirstOf, "o", 8, kNpos},
        {kHello, kFirstOf, "xyz", 0, kNpos},
        {kHello, kFirstOf, "", 0, kNpos},
        {kHello, kFirstOf, "d", 10, 10},
        {kHello, kFirstOf, "h", 11, kNpos},
        {kHello, kFirstOf, "h", kNpos, kNpos},
        {"", kFirstOf, "a", 0, kNpos},
    });
}

TEST(UstringSearch, FindFirstNotOf) {
    RunSearches({
        {kHello, kFirstNotOf, "hel", 0, 4},
        {kHello, kFirstNotOf, "hello ", 0, 6},
        {kHello, kFirstNotOf, "l", 2, 4},
        {kHello, kFirstNotOf, "helo wrd", 0, kNpos},
        {kHello, kFirstNotOf, "d", 10, kNpos},
        {kHello, kFirstNotOf, "", 0, 0},
        {kHello, kFirstNotOf, "", 3, 3},
        {kHello, kFirstNotOf, "", 11, kNpos},
        {kHello, kFirstNotOf, "x", kNpos, kNpos},
        {"", kFirstNotOf, "", 0, kNpos},
    });
}

TEST(UstringSearch, FindLastOf) {
    RunSearches({
        {kHello, kLastOf, "ol", kNpos, 9},
        {kHello, kLastOf, "ol", 8, 7},
        {kHello, kLastOf, "ol", 9, 9},
        {kHello, kLastOf, "ol", 11, 9},
        {kHello, kLastOf, "ol", 100, 9},
        {kHello, kLastOf, "h", kNpos, 0},
        {kHello, kLastOf, "h", 0, 0},
        {kHello, kLastOf, "d", 9, kNpos},
        {kHello, kLastOf, "xyz", kNpos, kNpos},
        {kHello, kLastOf, "", kNpos, kNpos},
        {"", kLastOf, "a", kNpos, kNpos},
        {"", kLastOf, "a", 0, kNpos},
    });
}

TEST(UstringSearch, FindLastNotOf) {
    RunSearches({
        {kHello, kLastNotOf, "dlr", kNpos, 7},
        {kHello, kLastNotOf, " ", kNpos, 10},
        {kHello, kLastNotOf, "el", 3, 0},
        {kHello, kLastNotOf, "h", 0, kNpos},
        {kHello, kLastNotOf, "helo wrd", kNpos, kNpos},
        {kHello, kLastNotOf, "", kNpos, 10},
        {kHello, kLastNotOf, "", 4, 4},
        {kHello, kLastNotOf, "", 100, 10},
        {"", kLastNotOf, "a", kNpos, kNpos},
        {"", kLastNotOf, "", kNpos, kNpos},
    });
}

TEST(UstringSearch, Find) {
    RunSearches({
        {kHello, kFind, "o", 0, 4},
        {kHello, kFind, "o", 5, 7},
        {kHello, kFind, "world", 0, 6},
        {kHello, kFind, "world", 7, kNpos},
        {kHello, kFind, "lo w", 0, 3},
        {kHello, kFind, "ld", 0, 9},
        {kHello, kFind, "d", 10, 10},
        {kHello, kFind, "worlds", 0, kNpos},
        {kHello, kFind, "hello world!", 0, kNpos},
        {kHello, kFind, "o", 11, kNpos},
        {kHello, kFind, "o", kNpos, kNpos},
        {kHello, kFind, "", 0, 0},
        {kHello, kFind, "", 3, 3},
        {kHello, kFind, "", 10, 10},
        {kHello, kFind, "", 11, kNpos},
        {"", kFind, "", 0, kNpos},
        {"aaab", kFind, "aab", 0, 1},  // a partial match must not skip the real one
    });
}

TEST(UstringSearch, RFind) {
    RunSearches({
        {kHello, kRFind, "o", kNpos, 7},
        {kHello, kRFind, "o", 7, 7},
        {kHello, kRFind, "o", 6, 4},
        {kHello, kRFind, "l", kNpos, 9},
        {kHello, kRFind, "ld", kNpos, 9},
        {kHello, kRFind, "d", kNpos, 10},
        {kHello, kRFind, "world", 100, 6},
        {kHello, kRFind, "world", 5, kNpos},
        {kHello, kRFind, "hello", kNpos, 0},
        {kHello, kRFind, "h", 0, 0},
        {kHello, kRFind, "xyz", kNpos, kNpos},
        {kHello, kRFind, "hello world!", kNpos, kNpos},
        {kHello, kRFind, "", kNpos, 10},
        {kHello, kRFind, "", 3, 3},
        {kHello, kRFind, "", 100, 10},
        {"", kRFind, "", kNpos, kNpos},
        {"", kRFind, "a", kNpos, kNpos},
    });
}

TEST(UstringSearch, PositionsAreUtf8ByteOffsets) {
    // a0 C3 1 A9 2 E4 3 B8 4 AD 5 b6: "a", U+00E9, U+4E2D, "b".
    const char text[] = "a\xC3\xA9\xE4\xB8\xAD" "b";
    RunSearches({
        {text, kFind, "\xE4\xB8\xAD", 0, 3},
        {text, kFind, "\xC3\xA9", 0, 1},
        {text, kFind, "b", 0, 6},
        {text, kRFind, "\xE4\xB8\xAD", kNpos, 3},
        // Single bytes above 0x7F, so a signed comparison would go wrong.
        {text, kFirstOf, "\xA9", 0, 2},
        {text, kFirstOf, "\xAD\xB8", 0, 4},
        {text, kLastOf, "\xC3\xE4", kNpos, 3},
        {text, kFirstNotOf, "a\xC3", 0, 2},
        {text, kLastNotOf, "b\xAD", kNpos, 4},
    });
}

TEST(UstringSearch, StdStringArgumentEndsAtItsFirstNul) {
    const ustring s(kHello);
    EXPECT_EQ(s.find_first_of(std::string("x\0o", 3)), kNpos);
    EXPECT_EQ(s.find_first_not_of(std::string("h\0e", 3)), 1u);
    EXPECT_EQ(s.find_last_of(std::string("h\0d", 3)), 0u);
    EXPECT_EQ(s.find_last_not_of(std::string("d\0l", 3)), 9u);
    EXPECT_EQ(s.find(std::string("wor\0xx", 6)), 6u);
    EXPECT_EQ(s.rfind(std::string("o\0w", 3)), 7u);
}

TEST(UstringSearch, DefaultPositions) {
    const ustring s(kHello);
    EXPECT_EQ(s.find("o"), 4u);
    EXPECT_EQ(s.find('o'), 4u);
    EXPECT_EQ(s.rfind("o"), 7u);
    EXPECT_EQ(s.rfind('o'), 7u);
    EXPECT_EQ(s.find_first_of('w'), 6u);
    EXPECT_EQ(s.find_first_not_of('h'), 1u);
    EXPECT_EQ(s.find_last_of('l'), 9u);
    EXPECT_EQ(s.find_last_not_of('d'), 9u);
}

TEST(UstringSearch, NposArithmetic) {
    static_assert(ustring::npos == 0xFFFFFFFFu, "npos is all ones in 32 bits");
    const ustring s("file.txt");
    // Callers keep results in int and test against -1.
    const int results[] = {
        static_cast<int>(s.find("zz")),          static_cast<int>(s.rfind('z')),
        static_cast<int>(s.find_first_of("/")),  static_cast<int>(s.find_last_of('/')),
        static_cast<int>(s.find_first_not_of("eflitx.")),
        static_cast<int>(s.find_last_not_of("eflitx.")),
    };
    for (int r : results) EXPECT_EQ(r, -1);

    // Basename idiom: not found + 1 wraps to 0 and gives the whole text.
    ExpectText(s.substr(s.find_last_of('/') + 1), "file.txt");
    ExpectText(ustring("dir/sub/file.txt").substr(ustring("dir/sub/file.txt").find_last_of('/') + 1),
               "file.txt");
    // Prefix idiom: up to npos is the whole text.
    ExpectText(ustring("name").substr(0, ustring("name").find('.')), "name");
}

// ---------------------------------------------------------------------------------------------
// Trimming

enum TrimOp { kL, kR, kBoth };

struct TrimCase {
    const char* text;
    TrimOp op;
    const char* set;
    const char* expected;
};

TEST(UstringTrim, RemovesSetBytesFromTheEnds) {
    const TrimCase cases[] = {
        {"  ab  ", kL, " ", "ab  "},
        {"  ab  ", kR, " ", "  ab"},
        {"  ab  ", kBoth, " ", "ab"},
        {"\t\n ab c \n", kBoth, " \t\n", "ab c"},
        {"   ", kBoth, " ", ""},
        {"   ", kL, " ", ""},
        {"   ", kR, " ", ""},
        {"ab", kBoth, " ", "ab"},
        {"  ab  ", kL, "", "  ab  "},
        {"  ab  ", kR, "", "  ab  "},
        {"  ab  ", kBoth, "", "  ab  "},
        {"", kBoth, " ", ""},
        {"xxaxx", kL, "x", "axx"},
        {"xxaxx", kR, "x", "xxa"},
        {"xxaxx", kBoth, "x", "a"},
        {"ab ", kL, "ba", " "},
        {"ab ", kR, "ba", "ab "},
        // Byte sets: the bytes of U+00E9 and U+4E2D.
        {"\xC3\xA9" "a\xC3\xA9", kBoth, "\xC3\xA9", "a"},
        {"\xE4\xB8\xAD" "ab\xE4\xB8\xAD", kBoth, "\xE4\xB8\xAD", "ab"},
    };
    const char* names[] = {"ltrim", "rtrim", "trim"};
    for (const auto& c : cases) {
        for (int as_ustring = 0; as_ustring < 2; ++as_ustring) {
            SCOPED_TRACE(std::string(names[c.op]) + " \"" + c.text + "\" set \"" + c.set + "\"" +
                         (as_ustring ? " (ustring set)" : " (const char* set)"));
            ustring s(c.text);
            const ustring uset(c.set);
            switch (c.op) {
                case kL: as_ustring ? s.ltrim(uset) : s.ltrim(c.set); break;
                case kR: as_ustring ? s.rtrim(uset) : s.rtrim(c.set); break;
                case kBoth: as_ustring ? s.trim(uset) : s.trim(c.set); break;
            }
            ExpectText(s, c.expected);
            EXPECT_STREQ(s.c_str(), c.expected);
        }
    }
}

// ---------------------------------------------------------------------------------------------
// Comparison

struct CompareCase {
    const char* a;
    const char* b;
    int exact;        // member compare, and static compare without folding
    int ignore_case;  // static compare with ASCII folding
};

TEST(UstringCompare, DifferenceOfFirstDifferingUnsignedBytes) {
    const CompareCase cases[] = {
        {"abc", "abc", 0, 0},
        {"abc", "abd", -1, -1},
        {"abd", "abc", 1, 1},
        {"ab", "abc", -'c', -'c'},
        {"abc", "ab", 'c', 'c'},
        {"", "", 0, 0},
        {"", "a", -'a', -'a'},
        {"ABC", "abc", 'A' - 'a', 0},
        {"abc", "ABD", 'a' - 'A', 'c' - 'd'},
        {"Zebra", "zebra", 'Z' - 'z', 0},
        // Folding changes the order against bytes between the two letter ranges.
        {"Z", "[", 'Z' - '[', 'z' - '['},
        {"@", "`", '@' - '`', '@' - '`'},
        // U+00E9 vs U+00C9: only ASCII is folded.
        {"\xC3\xA9", "\xC3\x89", 0xA9 - 0x89, 0xA9 - 0x89},
        {"\xC3\xA9", "e", 0xC3 - 'e', 0xC3 - 'e'},
        {"a", "\xC3", 'a' - 0xC3, 'a' - 0xC3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("\"") + c.a + "\" vs \"" + c.b + "\"");
        const ustring a(c.a), b(c.b);
        EXPECT_EQ(a.compare(b), c.exact);
        EXPECT_EQ(ustring::compare(a, b, false), c.exact);
        EXPECT_EQ(ustring::compare(a, b, true), c.ignore_case);
    }
    EXPECT_EQ(ustring::compare(ustring("ABC"), ustring("abc"), true), 0);
    EXPECT_NE(ustring::compare(ustring("\xC3\x89"), ustring("\xC3\xA9"), true), 0);
}

TEST(UstringCompare, LimitedToNBytes) {
    struct Case {
        const char* a;
        const char* b;
        uint32_t n;
        int expected;
    };
    const Case cases[] = {
        {"abcX", "abcY", 3, 0},
        {"abcX", "abcY", 4, 'X' - 'Y'},
        {"abcX", "abcY", 0, 0},
        {"a", "b", 0, 0},
        {"ab", "ab", 10, 0},
        {"ab", "abc", 10, -'c'},
        {"ab", "abc", 2, 0},
        {"b", "a", 1, 1},
        {"\xC3\xA9", "\xC3\x89", 2, 0xA9 - 0x89},
        {"\xC3\xA9", "\xC3\x89", 1, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("\"") + c.a + "\" vs \"" + c.b + "\" n " + std::to_string(c.n));
        EXPECT_EQ(ustring(c.a).compare(ustring(c.b), c.n), c.expected);
    }
}

TEST(UstringCompare, RelationalOperatorsFollowByteOrder) {
    // Ascending by unsigned bytes; U+00E9 (C3) and U+4E2D (E4) sort after all ASCII.
    const char* ordered[] = {"", "a", "ab", "abc", "abd", "b", "z", "\xC3\xA9", "\xE4\xB8\xAD"};
    const size_t n = sizeof(ordered) / sizeof(ordered[0]);
    for (size_t i = 0; i < n; ++i) {
        for (size_t j = 0; j < n; ++j) {
            SCOPED_TRACE(std::to_string(i) + " vs " + std::to_string(j));
            const ustring a(ordered[i]), b(ordered[j]);
            EXPECT_EQ(a == b, i == j);
            EXPECT_EQ(a != b, i != j);
            EXPECT_EQ(a < b, i < j);
            EXPECT_EQ(a > b, i > j);
        }
    }
    const ustring a("same");
    const ustring& alias = a;
    EXPECT_TRUE(a == alias);
    EXPECT_FALSE(a != alias);
    EXPECT_FALSE(a < alias);
    EXPECT_FALSE(a > alias);
    // Equal texts in different buffers with different capacities.
    ustring big("0123456789");
    big = "same";
    EXPECT_TRUE(big == a);
}

// ---------------------------------------------------------------------------------------------
// operator+

TEST(UstringOperators, PlusCopiesLeftAndAppendsRight) {
    const ustring left("ab");
    ExpectText(left + ustring("\xE4\xB8\xAD"), "ab\xE4\xB8\xAD");
    ExpectText(left + "cd", "abcd");
    ExpectText(left + 'c', "abc");
    ExpectText(left + U16(u"\U0001F600"), "ab\xF0\x9F\x98\x80");
    ExpectText(left + (unsigned short)0x4E2D, "ab\xE4\xB8\xAD");
    ExpectText(left + left, "abab");
    ExpectText(ustring() + "x", "x");
    ExpectText(left, "ab");
}

// ---------------------------------------------------------------------------------------------
// Streams

TEST(UstringStreams, OutputWritesUtf8Bytes) {
    std::ostringstream out;
    out << ustring("a\xE4\xB8\xAD\xF0\x9F\x98\x80") << '|' << ustring() << '|';
    EXPECT_EQ(out.str(), "a\xE4\xB8\xAD\xF0\x9F\x98\x80||");
    EXPECT_TRUE(out.good());
}

TEST(UstringStreams, OutputOfNullTextSetsBadbit) {
    ustring s("text");
    char* saved = s.data;
    s.data = nullptr;
    std::ostringstream out;
    out << s;
    s.data = saved;
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(out.str(), "");
}

TEST(UstringStreams, InputReadsOneWord) {
    std::istringstream in("  first \t zw\xC3\xB6lf\nlast");
    ustring s("previous");
    in >> s;
    ExpectText(s, "first");
    in >> s;
    ExpectText(s, "zw\xC3\xB6lf");
    in >> s;
    ExpectText(s, "last");
    EXPECT_TRUE(in.eof());
}

// ---------------------------------------------------------------------------------------------
// Normalisation and validity

struct NormCase {
    const char* name;
    const char* input;
    normalization_form form;
    const char* expected;
};

TEST(UstringNormalize, ComposesAndDecomposes) {
    const NormCase cases[] = {
        {"e acute decomposed", "\xC3\xA9", NFD, "e\xCC\x81"},
        {"e acute composed", "e\xCC\x81", NFC, "\xC3\xA9"},
        {"composed stays", "\xC3\xA9", NFC, "\xC3\xA9"},
        {"decomposed stays", "e\xCC\x81", NFD, "e\xCC\x81"},
        {"angstrom sign NFC", "\xE2\x84\xAB", NFC, "\xC3\x85"},
        {"angstrom sign NFD", "\xE2\x84\xAB", NFD, "A\xCC\x8A"},
        {"mixed text keeps CJK and emoji", "Caf\xC3\xA9 \xE4\xB8\xAD\xF0\x9F\x98\x80", NFD,
         "Cafe\xCC\x81 \xE4\xB8\xAD\xF0\x9F\x98\x80"},
        {"ascii", "plain", NFC, "plain"},
        {"empty NFC", "", NFC, ""},
        {"empty NFD", "", NFD, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const ustring s(c.input);
        ustring by_static = ustring::normalize(s, c.form);
        ExpectText(by_static, c.expected);
        ustring by_member = s.normalize(c.form);
        ExpectText(by_member, c.expected);
        // Both representations of the result agree.
        EXPECT_EQ(Text(ustring(by_member.c_str_utf16())), c.expected);
        ExpectText(s, c.input);
    }
}

TEST(UstringNormalize, RoundTripChangesByteLength) {
    const ustring e("\xC3\xA9");
    EXPECT_EQ(e.length(), 2u);
    const ustring d = e.normalize(NFD);
    EXPECT_EQ(d.length(), 3u);
    const ustring c = d.normalize(NFC);
    EXPECT_EQ(c.length(), 2u);
    EXPECT_TRUE(c == e);
}

TEST(UstringNormalize, InvalidTextGivesEmptyResult) {
    const char* texts[] = {"\xC3\x28", "e\xCC\x81\xFF", "abc\xE4\xB8"};
    for (const char* text : texts) {
        for (normalization_form form : {NFC, NFD}) {
            SCOPED_TRACE(std::string(text) + (form == NFC ? " NFC" : " NFD"));
            const ustring bad(text);
            ::testing::internal::CaptureStderr();
            ustring r = ustring::normalize(bad, form);
            const std::string err = ::testing::internal::GetCapturedStderr();
            ExpectText(r, "");
            EXPECT_TRUE(IsWarningLine(err, "u_strFromUTF8", 10)) << err;
            ExpectText(bad, text);
        }
    }
}

TEST(UstringValidity, IcuPreflightDecides) {
    struct Case {
        const char* name;
        const char* text;
        bool valid;
    };
    const Case cases[] = {
        {"empty", "", true},
        {"ascii", "abc", true},
        {"two byte", "\xC3\xA9", true},
        {"three byte", "\xE4\xB8\xAD", true},
        {"four byte", "\xF0\x9F\x98\x80", true},
        {"noncharacter U+FFFF is still well formed", "\xEF\xBF\xBF", true},
        {"lead byte then ascii", "\xC3\x28", false},
        {"byte FF", "\xFF", false},
        {"lone continuation", "a\x80", false},
        {"truncated at end", "a\xE4\xB8", false},
        {"encoded surrogate", "\xED\xA0\x80", false},
        {"overlong", "\xC0\xAF", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const ustring s(c.text);
        EXPECT_EQ(ustring::is_valid(s), c.valid);
        ExpectText(s, c.text);
    }
}

}  // namespace
