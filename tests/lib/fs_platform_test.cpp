// The platform seam: the stored form of a path, and file-system type names. Our disks are case-
// and normalisation-sensitive, so names are asked for in another case or Unicode form.
#include "fs-platform.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include <gtest/gtest.h>

#include "test-support.h"
#if defined(__linux__)
#include <linux/magic.h>

#include "fs-platform-linux.h"
#endif

namespace {

using namespace testsupport;

const std::string kEacuteNFC = "\xC3\xA9", kEacuteNFD = "e\xCC\x81";
const std::string kEacuteUpperNFC = "\xC3\x89", kEacuteUpperNFD = "E\xCC\x81";
// U+1FB4 (alpha, acute, ypogegrammeni) and alpha with the two marks in non-canonical order.
const std::string kAlphaYpogegrammeniNFC = "\xE1\xBE\xB4", kAlphaNonCanonical = "\xCE\xB1\xCD\x85\xCC\x81";

// The stored form of `in`, or "-" when FSPathMakeRef refuses it.
std::string resolve(const std::string& in, Boolean* is_dir = nullptr) {
    FSRef ref;
    if (FSPathMakeRef(reinterpret_cast<const UInt8*>(in.c_str()), &ref, is_dir) != 0) return "-";
    UInt8 buf[4096];
    if (FSRefMakePath(&ref, buf, sizeof buf) != 0) return "FSRefMakePath failed";
    return reinterpret_cast<const char*>(buf);
}

TEST(FsPlatformTest, ResolvesToTheStoredForm) {
    TempDir tmp;
    make_tree(tmp.path(), {{"/Dir", "/"}, {"/Dir/Sub", "/"}, {"/Dir/Sub/Read Me.TXT", "x"}, {"/Dir/File.txt", "x"},
                           {"/caf" + kEacuteNFD, "x"}, {"/th" + kEacuteNFC, "x"}, {"/" + kEacuteUpperNFD + "cole", "x"},
                           {"/d" + kEacuteNFD, "/"}, {"/d" + kEacuteNFD + "/n" + kEacuteNFC, "x"}, {"/foo", "x"},
                           {"/FOO", "x"}, {"/" + kEacuteNFC, "x"}, {"/" + kEacuteNFD, "x"}, {"/Target", "/"},
                           {"/Target/Inner", "x"}, {"/" + kAlphaNonCanonical, "x"}, {"/Link", "->Target"},
                           {"/Dangling", "->nowhere"}});

    // Relative paths resolve against the current folder and stay relative.
    const int saved_cwd = open(".", O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(chdir(tmp.path().c_str()), 0);
    const std::pair<std::string, std::string> cases[] = {  // asked, stored ("-": refused)
        {"Dir/Sub/Read Me.TXT", "Dir/Sub/Read Me.TXT"}, {"dir/SUB/read me.txt", "Dir/Sub/Read Me.TXT"},
        {"caf" + kEacuteNFC, "caf" + kEacuteNFD},       {"th" + kEacuteNFD, "th" + kEacuteNFC},
        {kEacuteNFC + "COLE", kEacuteUpperNFD + "cole"},  // form and case at once
        {"D" + kEacuteUpperNFC + "/N" + kEacuteUpperNFD, "d" + kEacuteNFD + "/n" + kEacuteNFC},
        {kAlphaYpogegrammeniNFC, kAlphaNonCanonical},  // folded after canonical ordering
        {"foo", "foo"}, {"FOO", "FOO"}, {kEacuteNFD, kEacuteNFD},  // an exact match wins over other spellings
        {"fOo", "-"}, {kEacuteUpperNFC, "-"},  // more than one match
        {"missing", "-"}, {"dir/MISSING", "-"}, {"Dir/File.txt/below", "-"}, {"Dir/File.txt/", "-"},
        {std::string(300, 'n'), "-"}, {"", "-"},
        {"./dir/./sub/../file.TXT", "./Dir/./Sub/../File.txt"}, {"DIR//sub/", "Dir//Sub/"},
        {"link/INNER", "Link/Inner"}, {"dangling", "Dangling"},  // links keep their own name
        {tmp / "DIR", tmp / "Dir"}};
    for (const auto& [ask, stored] : cases) EXPECT_EQ(resolve(ask), stored) << ask;
    Boolean dir = 2, file = 2;
    resolve("dir", &dir);
    resolve("dir/file.txt", &file);
    EXPECT_EQ(fchdir(saved_cwd), 0);
    close(saved_cwd);
    EXPECT_TRUE(dir == 1 && file == 0) << "isDirectory";

    // FSRefMakePath needs room for the whole path and its NUL.
    FSRef ref;
    ASSERT_EQ(FSPathMakeRef(reinterpret_cast<const UInt8*>("/"), &ref, nullptr), 0);
    UInt8 buf[4] = {0xAA, 0xAA, 0xAA, 0xAA};
    EXPECT_NE(FSRefMakePath(&ref, buf, 1), 0);
    EXPECT_EQ(FSRefMakePath(&ref, buf, 2), 0);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(buf)), "/");
}

TEST(FsPlatformTest, FileSystemTypeNames) {
    std::string name;
#if defined(__linux__)  // shares and FAT volumes cannot be mounted here: their names go by magic number
    const std::pair<unsigned long, std::string> names[] = {
        {NFS_SUPER_MAGIC, "nfs"},     {SMB_SUPER_MAGIC, "smbfs"},   {CIFS_SUPER_MAGIC, "smbfs"},
        {SMB2_SUPER_MAGIC, "smbfs"}, {MSDOS_SUPER_MAGIC, "msdos"}, {EXT4_SUPER_MAGIC, "ext4"},
        {TMPFS_MAGIC, "tmpfs"},       {0x12345678ul, "unknown"}};
    for (const auto& [magic, type_name] : names) EXPECT_EQ(FSFileSystemTypeNameOfMagic(magic), type_name) << magic;

    ASSERT_EQ(FSFileSystemTypeName("/dev/shm", name), 0);
    EXPECT_EQ(name, "tmpfs");
#endif
    errno = 0;
    EXPECT_EQ(FSFileSystemTypeName("/nonexistent/x", name), -1);
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
