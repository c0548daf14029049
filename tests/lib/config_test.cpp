// Tests of Config: the key=value reader behind the pid file and the logger's level file.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "config.h"
#include "test-support.h"

namespace {

using Entries = std::map<ustring, ustring>;
using namespace testsupport;

TEST(Config, ReadsLines) {
    struct Case { std::string text; int rc; Entries added; };  // added to the seeded entry
    const std::string v8189(8189, 'v');
    const std::vector<Case> cases = {
        {"pid=4711\n", 0, {{"pid", "4711"}}},
        {"    pid = 4711    # note\n", 0, {{"pid", "4711"}}},
        {"\t\v\f\r key \v=\f value \r\n", 0, {{"key", "value"}}},
        {"   \t# pid=1\n      \n", 0, {}},
        {"a#b=1\n", 0, {}},
        {"a=b#c\n", 0, {{"a", "b#c"}}},
        {"name=   \t\n", -1, {}},
        {"name=''\n", 0, {{"name", ""}}},
        {"name=\"it's two\"\n", 0, {{"name", "it's two"}}},
        {"name='a # b'#c\n", 0, {{"name", "a # b"}}},
        {"name=two words\n", -1, {}},
        {"name='open\n", -1, {}},
        {"name='a\tb'\n", -1, {}},
        {"name='a\x7f'\n", -1, {}},
        {"name\n", -1, {}},
        {"=5\n", 0, {{"", "5"}}},
        {"Az09_.-=v\n", 0, {{"Az09_.-", "v"}}},
        {"\xc3\xa9=1\n", -1, {}},
        {"a=x\xc3\xa9y\n", 0, {{"a", "x\xc3\xa9y"}}},
        {"a='x'\xc3\xa9\n", -1, {}},
        {"a=x\x01\n", -1, {}},
        {"a=x\x7fy\n", -1, {}},
        {"a=1\n[Version]\nc=3\n", -1, {}},
        {"k=1\nk=2\nseeded=after", 0, {{"k", "2"}, {"seeded", "after"}}},
        // 8191 bytes fill the read buffer; the rest of the line is a line of its own.
        {"a=" + v8189 + "x=1\n", 0, {{"a", v8189}, {"x", "1"}}},
    };
    TempDir dir;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 40));
        write_file(dir / "file.conf", c.text);
        Config cfg;
        cfg.entries["seeded"] = "before";  // as from an earlier read: kept unless malformed
        EXPECT_EQ(cfg.read(dir / "file.conf"), c.rc);
        Entries expected = c.added;
        if (c.rc == 0) expected.emplace("seeded", "before");
        EXPECT_EQ(cfg.entries, expected);
    }
}

TEST(Config, UnusablePathChangesNothing) {
    TempDir dir;
    Config cfg;
    cfg.entries["kept"] = "yes";
    EXPECT_EQ(cfg.read(""), -1);
    EXPECT_EQ(cfg.read(dir / "missing.conf"), -1);
    EXPECT_EQ(cfg.entries, (Entries{{"kept", "yes"}}));
}

TEST(Config, GetIntReadsLikeAStream) {
    const std::vector<std::pair<std::string, int>> cases = {
        {"4711", 4711}, {"12abc", 12}, {"abc", 0}, {"", 0}, {" -3", -3}, {"\t\n+7", 7}, {"- 3", 0},
        {"2147483647", INT_MAX}, {"-2147483648", INT_MIN}, {"2147483648", INT_MAX}, {"-2147483649", INT_MIN},
        {"99999999999999999999", INT_MAX}, {"-99999999999999999999", INT_MIN}};
    for (const auto& c : cases) {
        Config cfg;
        cfg.entries["key"] = c.first;
        EXPECT_EQ(cfg.get_int("key"), c.second) << "value \"" << c.first << "\"";
    }
    Config cfg;
    EXPECT_EQ(cfg.get_int("absent"), 0);
    EXPECT_EQ(cfg.entries, (Entries{{"absent", ""}}));
}

}  // namespace
