// The platform seam: a path's stored form, asked for in another case or Unicode form, and file-system type names.
#include "fs-platform.h"

#include <langinfo.h>
#include <unistd.h>
#include <cerrno>
#include <clocale>

#include <gtest/gtest.h>

#include "test-support.h"
#if defined(__linux__)
#include <linux/magic.h>
#include "fs-platform-linux.h"
#endif

namespace {

const std::string kE = "\xC3\xA9", kEd = "e\xCC\x81", kEU = "\xC3\x89", kEUd = "E\xCC\x81";  // é and É, NFC and NFD
const std::string kAlphaNFC = "\xE1\xBE\xB4", kAlphaOdd = "\xCE\xB1\xCD\x85\xCC\x81";  // U+1FB4; its marks reordered

// The stored form, with "*" for a folder, or "-" when refused. FSRefMakePath needs room for the path and its NUL.
std::string Resolve(const std::string& in) {
    FSRef ref;
    UInt8 buf[4096];
    Boolean dir = 2;
    if (FSPathMakeRef(reinterpret_cast<const UInt8*>(in.c_str()), &ref, &dir) != 0) return "-";
    const std::string out = FSRefMakePath(&ref, buf, sizeof buf) == 0 ? reinterpret_cast<const char*>(buf) : "failed";
    return FSRefMakePath(&ref, buf, out.size()) == 0 ? "written without room for the NUL" : out + (dir ? "*" : "");
}

TEST(FsPlatformTest, ResolvesToTheStoredForm) {
    testsupport::TempDir tmp;
    testsupport::make_tree(tmp.path(), {{"/Dir", "/"}, {"/Dir/Sub", "/"}, {"/Dir/Sub/Read Me.TXT", "x"},
        {"/Dir/File.txt", "x"}, {"/caf" + kEd, "x"}, {"/d" + kEd, "/"}, {"/d" + kEd + "/n" + kE, "x"}, {"/foo", "x"},
        {"/FOO", "x"}, {"/" + kE, "x"}, {"/" + kEd, "x"}, {"/" + kAlphaOdd, "x"}, {"/Target", "/"},
        {"/Target/Inner", "x"}, {"/Link", "->Target"}, {"/Dangling", "->nowhere"}});
    ASSERT_EQ(chdir(tmp.path().c_str()), 0);  // relative paths resolve against the current folder and stay relative
    const std::pair<std::string, std::string> cases[] = {  // asked, stored: an exact name wins, else a sole match
        {"dir/SUB/read me.txt", "Dir/Sub/Read Me.TXT"}, {"caf" + kE, "caf" + kEd}, {kAlphaNFC, kAlphaOdd},
        {"D" + kEU + "/N" + kEUd, "d" + kEd + "/n" + kE}, {"foo", "foo"}, {"FOO", "FOO"}, {kEd, kEd}, {"fOo", "-"},
        {kEU, "-"}, {"missing", "-"}, {"Dir/File.txt/below", "-"}, {"Dir/File.txt/", "-"}, {"", "-"}, {"link", "Link*"},
        {"./dir/./sub/../file.TXT", "./Dir/./Sub/../File.txt"}, {"DIR//sub/", "Dir//Sub/*"}, {"dangling", "Dangling"},
        {"link/INNER", "Link/Inner"}, {tmp / "DIR", tmp / "Dir*"}};
    for (const auto& [ask, stored] : cases) EXPECT_EQ(Resolve(ask), stored) << ask;
    EXPECT_EQ(chdir("/"), 0);  // out of the folder about to be removed
}

// Only the Unicode form may differ from what is stored; the letter case may not.
TEST(FsPlatformTest, FindsTheStoredFormOfAnotherUnicodeSpellingOnly) {
    testsupport::TempDir tmp;
    testsupport::make_tree(tmp.path(), {{"/d" + kEd, "/"}, {"/d" + kEd + "/n" + kE, "x"}, {"/Dir", "/"}, {"/Dangling", "->nowhere"}});
    const std::pair<std::string, std::string> cases[] = {{"d" + kE + "/n" + kEd, "d" + kEd + "/n" + kE}, {"Dir", "Dir"},
        {"Dangling", "Dangling"}, {"dir", "-"}, {"D" + kEd, "-"}, {"d" + kE + "/missing", "-"}, {"", "-"}};
    for (const auto& [ask, stored] : cases) {
        std::string found;
        EXPECT_EQ(FSFindStoredForm((ask.empty() ? ask : tmp / ask).c_str(), found) == 0 ? found : "-", stored.empty() || stored == "-" ? stored : tmp / stored) << ask;
    }
}

// Names become UTF-8 for the C library; the other categories keep what the environment gave them.
TEST(FsPlatformTest, Utf8NamesChangeOnlyTheCharacterType) {
    ASSERT_TRUE(setlocale(LC_ALL, "C") && setlocale(LC_TIME, "C.UTF-8"));
    EXPECT_EQ(FSUseUtf8Names(), 0);
    EXPECT_STREQ(nl_langinfo(CODESET), "UTF-8");
    EXPECT_STREQ(setlocale(LC_TIME, nullptr), "C.UTF-8");
    EXPECT_STREQ(setlocale(LC_MESSAGES, nullptr), "C");
    setlocale(LC_ALL, "C");
}

TEST(FsPlatformTest, FileSystemTypeNames) {
    std::string name;
#if defined(__linux__)  // shares and FAT volumes cannot be mounted here: their names go by magic number
    for (const auto& [magic, type] : {std::pair<unsigned long, const char*>(NFS_SUPER_MAGIC, "nfs"),
             {SMB_SUPER_MAGIC, "smbfs"}, {CIFS_SUPER_MAGIC, "smbfs"}, {SMB2_SUPER_MAGIC, "smbfs"},
             {MSDOS_SUPER_MAGIC, "msdos"}, {EXT4_SUPER_MAGIC, "ext4"}, {0x12345678ul, "unknown"}})
        EXPECT_STREQ(FSFileSystemTypeNameOfMagic(magic), type) << magic;
    EXPECT_TRUE(FSFileSystemTypeName("/dev/shm", name) == 0 && name == "tmpfs") << name;
#endif
    errno = 0;
    EXPECT_TRUE(FSFileSystemTypeName("/nonexistent/x", name) == -1 && errno == ENOENT);
}

}  // namespace
