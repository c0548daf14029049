// Tests of Config: the key=value reader behind the pid file and the logger's level file.
#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>
#include <vector>

#include "config.h"
#include "test-support.h"

namespace {

using Entries = std::map<std::string, std::string>;
using testsupport::TempDir;
using testsupport::write_file;

std::string str(const ustring& u) { return std::string(u.c_str(), u.size()); }

Entries plain(const Config& cfg) {
    Entries out;
    for (const auto& kv : cfg.entries) out[str(kv.first)] = str(kv.second);
    return out;
}

// ---------------------------------------------------------------------------------------------
// One line (or a few) per case. Every case starts from a map that already holds an entry, so a
// malformed line must also throw that away, and a good one must keep it.

struct LineCase {
    const char* name;
    std::string text;
    bool malformed;
    Entries added;  // entries the text adds when it is not malformed
};

std::ostream& operator<<(std::ostream& os, const LineCase& c) { return os << c.name; }

class ConfigLineTest : public ::testing::TestWithParam<LineCase> {};

TEST_P(ConfigLineTest, ReadsLine) {
    const LineCase& c = GetParam();
    TempDir dir;
    const std::string path = dir / "file.conf";
    write_file(path, c.text);

    Config cfg;
    cfg.entries["seeded"] = "before";
    const int rc = cfg.read(path);

    if (c.malformed) {
        EXPECT_EQ(rc, -1);
        EXPECT_TRUE(cfg.entries.empty()) << "left " << cfg.entries.size() << " entries";
    } else {
        EXPECT_EQ(rc, 0);
        Entries expected = c.added;
        expected["seeded"] = "before";
        EXPECT_EQ(plain(cfg), expected);
    }
}

const LineCase kLineCases[] = {
    {"Plain", "pid=4711\n", false, {{"pid", "4711"}}},
    {"SpacesAndTrailingComment", "    pid = 4711    # note\n", false, {{"pid", "4711"}}},
    {"CommentLine", "# comment\n", false, {}},
    {"IndentedCommentLine", "   \t# pid=1\n", false, {}},
    {"EmptyLine", "\n", false, {}},
    {"LineOfSpaces", "      \n", false, {}},
    {"SpacesWithoutNewline", "   ", false, {}},
    {"EmptyFile", "", false, {}},
    {"HashRightAfterKey", "a#b=1\n", false, {}},
    {"HashInsideBareValue", "a=b#c\n", false, {{"a", "b#c"}}},
    {"BareValueMayStartWithEquals", "a==b\n", false, {{"a", "=b"}}},
    {"BareValueWithQuoteInside", "a=x'y\n", false, {{"a", "x'y"}}},
    {"EmptyBareValue", "name=\n", true, {}},
    {"OnlyBlanksAfterEquals", "name=   \t\n", true, {}},
    {"EmptySingleQuoted", "name=''\n", false, {{"name", ""}}},
    {"EmptyDoubleQuoted", "name=\"\"\n", false, {{"name", ""}}},
    {"SingleQuotedWords", "name='two words'\n", false, {{"name", "two words"}}},
    {"DoubleQuotedWords", "name=\"two words\"\n", false, {{"name", "two words"}}},
    {"DoubleQuoteInsideSingle", "name='say \"hi\"'\n", false, {{"name", "say \"hi\""}}},
    {"SingleQuoteInsideDouble", "name=\"it's\"\n", false, {{"name", "it's"}}},
    {"HashInsideQuotes", "name='a # b'\n", false, {{"name", "a # b"}}},
    {"CommentRightAfterQuote", "name='v'#c\n", false, {{"name", "v"}}},
    {"CommentAfterQuoteAndBlanks", "name = \"v\"  # c\n", false, {{"name", "v"}}},
    {"TwoBareWords", "name=two words\n", true, {}},
    {"WordAfterClosingQuote", "name='a'b\n", true, {}},
    {"SecondQuotedWord", "name='a' 'b'\n", true, {}},
    {"UnclosedSingleQuote", "name='open\n", true, {}},
    {"UnclosedDoubleQuote", "name=\"open\n", true, {}},
    {"UnclosedQuoteAtEndOfFile", "name='open", true, {}},
    {"TabInsideQuotes", "name='a\tb'\n", true, {}},
    {"DelInsideQuotes", "name='a\x7f'\n", true, {}},
    {"KeyWithoutEquals", "name\n", true, {}},
    {"KeyThenBlanksThenComment", "name   # c\n", true, {}},
    {"KeyOnlyLastLineWithoutNewline", "name", false, {}},
    {"KeyOnlyAfterGoodLine", "a=1\nname", false, {{"a", "1"}}},
    {"EmptyKey", "=5\n", false, {{"", "5"}}},
    {"AllKeyCharacters", "Az09_.-=v\n", false, {{"Az09_.-", "v"}}},
    {"SpaceInsideKey", "a b=1\n", true, {}},
    {"HighByteInKey", "\xc3\xa9=1\n", true, {}},
    {"HighByteAfterKeyCharacters", "ab\xc3\xa9=1\n", true, {}},
    {"HighBytesInBareValue", "a=x\xc3\xa9y\n", false, {{"a", "x\xc3\xa9y"}}},
    {"HighByteAfterQuotedValue", "a='x'\xc3\xa9\n", true, {}},
    {"ControlByteAfterBareValue", "a=x\x01\n", true, {}},
    {"ControlByteAfterQuotedValue", "a='x' \x08\n", true, {}},
    {"DelEndsBareValue", "a=x\x7fy\n", true, {}},
    {"SectionHeader", "[Version]\n", true, {}},
    {"SectionHeaderAfterGoodLines", "a=1\nb=2\n[Version]\nc=3\n", true, {}},
    {"AllWhitespaceKinds", "\t\v\f\r key \v=\f value \r\n", false, {{"key", "value"}}},
    {"VerticalTabBeforeComment", "a=b\v#c\n", false, {{"a", "b"}}},
    {"FormFeedSeparatesWords", "a=b\fc\n", true, {}},
    {"CrLfLines", "pid=1\r\n\r\nname='x y'\r\n", false, {{"pid", "1"}, {"name", "x y"}}},
    {"LaterLineWins", "k=1\nk=2\nj=3\n", false, {{"k", "2"}, {"j", "3"}}},
    {"LastLineWithoutNewline", "a=1\nb=2", false, {{"a", "1"}, {"b", "2"}}},
};

INSTANTIATE_TEST_SUITE_P(Lines, ConfigLineTest, ::testing::ValuesIn(kLineCases),
                         [](const ::testing::TestParamInfo<LineCase>& info) {
                             return std::string(info.param.name);
                         });

// ---------------------------------------------------------------------------------------------
// Lines longer than the 8191-byte reading piece: the rest is a line of its own.

TEST(ConfigLongLine, RestOfOverlongLineIsParsedOnItsOwn) {
    TempDir dir;
    struct Case {
        const char* name;
        std::string text;
        int rc;
        Entries entries;
    };
    const std::string v8188(8188, 'v');
    const std::string v8189(8189, 'v');
    const std::vector<Case> cases = {
        // Exactly one full piece including its newline: still one line.
        {"FitsWithNewline", "a=" + v8188 + "\n" + "b=2\n", 0, {{"a", v8188}, {"b", "2"}}},
        // The piece ends right after the value, so x=1 starts a line of its own.
        {"SplitAfterValue", "a=" + v8189 + "x=1\n", 0, {{"a", v8189}, {"x", "1"}}},
        // A comment does not swallow what lies beyond the piece.
        {"SplitInsideComment", "#" + std::string(8190, 'c') + "x=1\n", 0, {{"x", "1"}}},
        // The rest ("word") is a key without "=".
        {"RestIsMalformed", "a=" + std::string(8188, 'v') + " word\n", -1, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string path = dir / (std::string(c.name) + ".conf");
        write_file(path, c.text);
        Config cfg;
        EXPECT_EQ(cfg.read(path), c.rc);
        EXPECT_EQ(plain(cfg), c.entries);
    }
}

// ---------------------------------------------------------------------------------------------
// Several reads into one Config.

TEST(ConfigReads, SecondFileAddsAndOverrides) {
    TempDir dir;
    write_file(dir / "one", "a=1\nshared=first\n");
    write_file(dir / "two", "b=2\nshared=second\n");
    Config cfg;
    ASSERT_EQ(cfg.read(dir / "one"), 0);
    ASSERT_EQ(cfg.read(dir / "two"), 0);
    EXPECT_EQ(plain(cfg), (Entries{{"a", "1"}, {"b", "2"}, {"shared", "second"}}));
}

TEST(ConfigReads, MalformedFileClearsEntriesOfEarlierReads) {
    TempDir dir;
    write_file(dir / "good", "a=1\n");
    write_file(dir / "bad", "b=2\nname\nc=3\n");
    Config cfg;
    ASSERT_EQ(cfg.read(dir / "good"), 0);
    ASSERT_EQ(plain(cfg), (Entries{{"a", "1"}}));
    EXPECT_EQ(cfg.read(dir / "bad"), -1);
    EXPECT_TRUE(cfg.entries.empty());
    // The Config stays usable.
    EXPECT_EQ(cfg.read(dir / "good"), 0);
    EXPECT_EQ(plain(cfg), (Entries{{"a", "1"}}));
}

TEST(ConfigReads, UnusablePathLeavesEntriesUnchanged) {
    TempDir dir;
    write_file(dir / "plainfile", "x=1\n");
    const std::vector<std::pair<const char*, std::string>> paths = {
        {"empty path", ""},
        {"missing file", dir / "missing.conf"},
        {"missing folder", dir / "no/such/folder.conf"},
        {"file used as folder", dir / "plainfile/a.conf"},
    };
    for (const auto& p : paths) {
        SCOPED_TRACE(p.first);
        Config cfg;
        cfg.entries["kept"] = "yes";
        cfg.entries["other"] = "";
        EXPECT_EQ(cfg.read(p.second), -1);
        EXPECT_EQ(plain(cfg), (Entries{{"kept", "yes"}, {"other", ""}}));
    }
}

// ---------------------------------------------------------------------------------------------
// get_int reads like a stream extracting an int.

struct IntCase {
    const char* name;
    std::string value;
    int expected;
};

std::ostream& operator<<(std::ostream& os, const IntCase& c) { return os << c.name; }

class ConfigGetIntTest : public ::testing::TestWithParam<IntCase> {};

TEST_P(ConfigGetIntTest, ReadsValue) {
    const IntCase& c = GetParam();
    Config cfg;
    cfg.entries["key"] = c.value;
    EXPECT_EQ(cfg.get_int("key"), c.expected) << "value \"" << c.value << "\"";
    // Reading does not alter the stored text.
    EXPECT_EQ(str(cfg.entries["key"]), c.value);
}

const IntCase kIntCases[] = {
    {"Plain", "4711", 4711},
    {"TrailingLetters", "12abc", 12},
    {"Letters", "abc", 0},
    {"Empty", "", 0},
    {"LeadingSpaceNegative", " -3", -3},
    {"LeadingMixedWhitespace", "\t\v\f\r\n 8", 8},
    {"ExplicitPlus", "+7", 7},
    {"LeadingZeros", "007", 7},
    {"Fraction", "3.9", 3},
    {"SignOnly", "-", 0},
    {"DoubleSign", "--3", 0},
    {"SpaceAfterSign", "- 3", 0},
    {"Hex", "0x1F", 0},
    {"IntMax", "2147483647", INT_MAX},
    {"IntMin", "-2147483648", INT_MIN},
    {"JustAboveIntMax", "2147483648", INT_MAX},
    {"JustBelowIntMin", "-2147483649", INT_MIN},
    {"FarAboveIntMax", "99999999999999999999", INT_MAX},
    {"FarBelowIntMin", "-99999999999999999999", INT_MIN},
};

INSTANTIATE_TEST_SUITE_P(Values, ConfigGetIntTest, ::testing::ValuesIn(kIntCases),
                         [](const ::testing::TestParamInfo<IntCase>& info) {
                             return std::string(info.param.name);
                         });

TEST(ConfigGetInt, MissingKeyIsInsertedEmpty) {
    Config cfg;
    cfg.entries["present"] = "5";
    EXPECT_EQ(cfg.get_int("absent"), 0);
    EXPECT_EQ(plain(cfg), (Entries{{"absent", ""}, {"present", "5"}}));
}

TEST(ConfigGetInt, ReadsValuesFromFile) {
    TempDir dir;
    write_file(dir / "levels", "launcher_debug=7\nneg=' -3'\nword=abc\n");
    Config cfg;
    ASSERT_EQ(cfg.read(dir / "levels"), 0);
    EXPECT_EQ(cfg.get_int("launcher_debug"), 7);
    EXPECT_EQ(cfg.get_int("neg"), -3);
    EXPECT_EQ(cfg.get_int("word"), 0);
}

}  // namespace
