// Tests of Config: the key=value reader behind the pid file and the logger's level file.
#include <gtest/gtest.h>

#include <tuple>

#include "config.h"
#include "test-support.h"

namespace {

using Entries = std::map<ustring, ustring>;

// Each file is read on top of an earlier entry: kept when the read succeeds, gone with a malformed line.
TEST(Config, ReadsLinesAndEmptiesTheMapOnAMalformedOne) {
    const std::string v(8189, 'v');  // "a=" + v fills the 8191-byte read buffer: the rest reads as a line of its own
    const std::tuple<std::string, int, Entries> cases[] = {
        {"pid=4711\n", 0, {{"pid", "4711"}}}, {"  pid = 4711  # note\n", 0, {{"pid", "4711"}}}, {"n\n", -1, {}},
        {"\t\v\f\r key \v=\f value \r\n", 0, {{"key", "value"}}}, {"   \t# pid=1\n      \n", 0, {}}, {"a#b=1\n", 0, {}},
        {"a=b#c\n", 0, {{"a", "b#c"}}}, {"n=''\n", 0, {{"n", ""}}}, {"n='a # b'#c\n", 0, {{"n", "a # b"}}},
        {"n=\"it's two\"\n", 0, {{"n", "it's two"}}}, {"=5\n", 0, {{"", "5"}}}, {"Az09_.-=v\n", 0, {{"Az09_.-", "v"}}},
        {"a=x\xc3\xa9y\n", 0, {{"a", "x\xc3\xa9y"}}}, {"k=1\nk=2\nseeded=after", 0, {{"k", "2"}, {"seeded", "after"}}},
        {"a=" + v + "x=1\n", 0, {{"a", v}, {"x", "1"}}}, {"n=   \t\n", -1, {}}, {"n=two words\n", -1, {}},
        {"n='open\n", -1, {}}, {"n='a\tb'\n", -1, {}}, {"n='a\x7f'\n", -1, {}}, {"a=1\n[Version]\nc=3\n", -1, {}},
        {"\xc3\xa9=1\n", -1, {}}, {"a='x'\xc3\xa9\n", -1, {}}, {"a=x\x01\n", -1, {}}, {"a=x\x7fy\n", -1, {}}};
    testsupport::TempDir dir;
    for (const auto& [text, rc, added] : cases) {
        testsupport::write_file(dir / "file.conf", text);
        Config cfg{{{"seeded", "before"}}};
        EXPECT_EQ(cfg.read(dir / "file.conf"), rc) << text.substr(0, 40);
        Entries expected = added;
        if (rc == 0) expected.emplace("seeded", "before");
        EXPECT_EQ(cfg.entries, expected) << text.substr(0, 40);
    }
    Config cfg{{{"kept", "yes"}}};  // an unusable path changes nothing
    EXPECT_EQ(std::make_pair(cfg.read(""), cfg.read(dir / "missing")), std::make_pair(-1, -1));
    EXPECT_EQ(cfg.entries, (Entries{{"kept", "yes"}}));
}

}  // namespace
