// The platform seam: resolving a path to the form stored on disk, and file-system type names.
//
// Our disks are case- and normalisation-sensitive, so resolution is exercised by asking for a
// name in another letter case or Unicode form than the one on disk.
#include "fs-platform.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "test-support.h"

#if defined(__linux__)
#include <linux/magic.h>

#include "fs-platform-linux.h"
#endif

namespace {

using testsupport::TempDir;
using testsupport::make_dir;
using testsupport::write_file;

// "é" and "É" in both normalisation forms, and a few other pairs whose forms differ.
const std::string kEacuteNFC = "\xC3\xA9";
const std::string kEacuteNFD = "e\xCC\x81";
const std::string kEacuteUpperNFC = "\xC3\x89";
const std::string kEacuteUpperNFD = "E\xCC\x81";
const std::string kHanNFC = "\xED\x95\x9C";                            // U+D55C
const std::string kHanNFD = "\xE1\x84\x92\xE1\x85\xA1\xE1\x86\xAB";  // its jamo
const std::string kAngstromSign = "\xE2\x84\xAB";                      // U+212B, NFC is U+00C5
const std::string kARingNFC = "\xC3\x85";
const std::string kPrivetMixed = "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82";  // Привет
const std::string kPrivetUpper = "\xD0\x9F\xD0\xA0\xD0\x98\xD0\x92\xD0\x95\xD0\xA2";  // ПРИВЕТ

struct Resolved {
    OSStatus make_status = 1;
    OSStatus path_status = 1;
    bool is_dir = false;
    std::string path;
};

Resolved resolve(const std::string& in, size_t buffer_size = 4096) {
    Resolved r;
    FSRef ref;
    Boolean is_dir = 2;  // neither value, so an untouched flag shows
    r.make_status = FSPathMakeRef(reinterpret_cast<const UInt8*>(in.c_str()), &ref, &is_dir);
    if (r.make_status != 0) return r;
    r.is_dir = is_dir == 1;
    std::vector<UInt8> buf(buffer_size + 1, 0);
    r.path_status = FSRefMakePath(&ref, buf.data(), static_cast<UInt32>(buffer_size));
    if (r.path_status == 0) r.path = reinterpret_cast<const char*>(buf.data());
    return r;
}

void expect_resolves(const std::string& in, const std::string& stored) {
    SCOPED_TRACE("input: " + in);
    Resolved r = resolve(in);
    ASSERT_EQ(r.make_status, 0);
    ASSERT_EQ(r.path_status, 0);
    EXPECT_EQ(r.path, stored);
}

void expect_unresolvable(const std::string& in) {
    SCOPED_TRACE("input: " + in);
    EXPECT_NE(resolve(in).make_status, 0);
}

class FsPlatformTest : public ::testing::Test {
protected:
    TempDir tmp_;
    std::string p(const std::string& rel) const { return tmp_ / rel; }
};

TEST_F(FsPlatformTest, ExistingPathsComeBackAsGiven) {
    make_dir(p("Dir"));
    make_dir(p("Dir/Sub"));
    write_file(p("Dir/Sub/File.txt"), "x");

    for (const std::string& in : {p("Dir"), p("Dir/Sub/File.txt"), tmp_.path(), std::string("/")}) {
        expect_resolves(in, in);
    }
}

TEST_F(FsPlatformTest, ReportsWhetherTheTargetIsADirectory) {
    make_dir(p("Dir"));
    write_file(p("file"), "x");

    Resolved dir = resolve(p("Dir"));
    ASSERT_EQ(dir.make_status, 0);
    EXPECT_TRUE(dir.is_dir);
    Resolved file = resolve(p("file"));
    ASSERT_EQ(file.make_status, 0);
    EXPECT_FALSE(file.is_dir);

    // Callers that do not care pass no flag.
    FSRef ref;
    EXPECT_EQ(FSPathMakeRef(reinterpret_cast<const UInt8*>(p("file").c_str()), &ref, nullptr), 0);
}

TEST_F(FsPlatformTest, RestoresTheStoredLetterCaseOfEveryComponent) {
    make_dir(p("MixedDir"));
    make_dir(p("MixedDir/Sub"));
    write_file(p("MixedDir/Sub/Read Me.TXT"), "x");
    write_file(p(kPrivetMixed), "x");

    struct Case {
        std::string ask, stored;
    } cases[] = {
        {"mixeddir", "MixedDir"},
        {"MIXEDDIR/sub", "MixedDir/Sub"},
        {"mixedDIR/SUB/read me.txt", "MixedDir/Sub/Read Me.TXT"},
        {"MixedDir/Sub/READ ME.txt", "MixedDir/Sub/Read Me.TXT"},
        {kPrivetUpper, kPrivetMixed},
    };
    for (const Case& c : cases) expect_resolves(p(c.ask), p(c.stored));
}

TEST_F(FsPlatformTest, RestoresTheStoredUnicodeForm) {
    struct Case {
        std::string stored, ask;
    } cases[] = {
        {"caf" + kEacuteNFD, "caf" + kEacuteNFC},
        {"th" + kEacuteNFC, "th" + kEacuteNFD},
        {kHanNFD + ".txt", kHanNFC + ".txt"},
        {kHanNFC + "2.txt", kHanNFD + "2.txt"},
        {kAngstromSign + "ngstr", kARingNFC + "ngstr"},
        // form and case differ at once
        {kEacuteUpperNFD + "cole", kEacuteNFC + "COLE"},
        {"r" + kEacuteNFC + "sum" + kEacuteNFC, "R" + kEacuteUpperNFD + "SUM" + kEacuteNFD},
    };
    for (const Case& c : cases) write_file(p(c.stored), "x");
    // and inside a folder named in the other form
    make_dir(p("dossier " + kEacuteNFD));
    write_file(p("dossier " + kEacuteNFD + "/n" + kEacuteNFC), "x");

    for (const Case& c : cases) expect_resolves(p(c.ask), p(c.stored));
    expect_resolves(p("DOSSIER " + kEacuteUpperNFC + "/N" + kEacuteUpperNFD),
                    p("dossier " + kEacuteNFD + "/n" + kEacuteNFC));
}

TEST_F(FsPlatformTest, AnExactMatchWinsOverOtherSpellings) {
    write_file(p("foo"), "lower");
    write_file(p("FOO"), "upper");
    write_file(p(kEacuteNFC), "nfc");
    write_file(p(kEacuteNFD), "nfd");

    expect_resolves(p("foo"), p("foo"));
    expect_resolves(p("FOO"), p("FOO"));
    expect_resolves(p(kEacuteNFC), p(kEacuteNFC));
    expect_resolves(p(kEacuteNFD), p(kEacuteNFD));
}

TEST_F(FsPlatformTest, AmbiguousOrMissingPathsFail) {
    write_file(p("foo"), "lower");
    write_file(p("FOO"), "upper");
    write_file(p(kEacuteNFC), "nfc");
    write_file(p(kEacuteNFD), "nfd");
    make_dir(p("Dir"));
    write_file(p("Dir/file"), "x");

    expect_unresolvable(p("fOo"));             // foo and FOO both match
    expect_unresolvable(p(kEacuteUpperNFC));   // both forms of é match
    expect_unresolvable(p("missing"));
    expect_unresolvable(p("missing/file"));
    expect_unresolvable(p("Dir/missing"));
    expect_unresolvable(p("dir/MISSING"));
    expect_unresolvable(p("Dir/file/below"));  // a file in the middle
    expect_unresolvable(p("DIR/FILE/below"));
    expect_unresolvable(p(std::string(300, 'n')));
    expect_unresolvable("");
}

TEST_F(FsPlatformTest, DotComponentsAndRepeatedSlashesAreKept) {
    make_dir(p("Dir"));
    make_dir(p("Dir/Sub"));
    write_file(p("Dir/File.txt"), "x");

    struct Case {
        std::string ask, stored;
    } cases[] = {
        {"dir/./sub/../file.TXT", "Dir/./Sub/../File.txt"},
        {"./DIR/.", "./Dir/."},
        {"dir//sub", "Dir//Sub"},
        {"DIR///FILE.txt", "Dir///File.txt"},
        {"dir/", "Dir/"},
        {"dir/sub//", "Dir/Sub//"},
    };
    for (const Case& c : cases) expect_resolves(p(c.ask), p(c.stored));
}

TEST_F(FsPlatformTest, RelativePathsStayRelative) {
    make_dir(p("Dir"));
    write_file(p("Dir/File.txt"), "x");

    int saved = open(".", O_RDONLY | O_DIRECTORY);
    ASSERT_GE(saved, 0);
    ASSERT_EQ(chdir(tmp_.path().c_str()), 0);
    Resolved plain = resolve("dir/FILE.TXT");
    Resolved dotted = resolve("./DIR");
    Resolved up = resolve("dir/../Dir/file.txt");
    EXPECT_EQ(fchdir(saved), 0);
    close(saved);

    ASSERT_EQ(plain.make_status, 0);
    EXPECT_EQ(plain.path, "Dir/File.txt");
    ASSERT_EQ(dotted.make_status, 0);
    EXPECT_EQ(dotted.path, "./Dir");
    ASSERT_EQ(up.make_status, 0);
    EXPECT_EQ(up.path, "Dir/../Dir/File.txt");
}

TEST_F(FsPlatformTest, SymbolicLinksKeepTheirOwnName) {
    make_dir(p("Target"));
    write_file(p("Target/Inner.txt"), "x");
    ASSERT_EQ(symlink("Target", p("Link").c_str()), 0);
    ASSERT_EQ(symlink("Inner.txt", p("Target/FileLink").c_str()), 0);
    ASSERT_EQ(symlink("nowhere", p("Dangling").c_str()), 0);

    expect_resolves(p("LINK"), p("Link"));
    expect_resolves(p("link/inner.TXT"), p("Link/Inner.txt"));
    expect_resolves(p("target/FILELINK"), p("Target/FileLink"));
    expect_resolves(p("Dangling"), p("Dangling"));
    expect_resolves(p("dangling"), p("Dangling"));
}

TEST_F(FsPlatformTest, RefMakePathNeedsRoomForTheWholePath) {
    write_file(p("File.txt"), "x");
    const std::string stored = p("File.txt");

    FSRef ref;
    ASSERT_EQ(FSPathMakeRef(reinterpret_cast<const UInt8*>(p("FILE.TXT").c_str()), &ref, nullptr), 0);

    std::vector<UInt8> exact(stored.size() + 1, 0xAA);
    EXPECT_EQ(FSRefMakePath(&ref, exact.data(), static_cast<UInt32>(exact.size())), 0);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(exact.data())), stored);

    for (size_t size : {stored.size(), size_t{5}, size_t{1}}) {
        SCOPED_TRACE(size);
        std::vector<UInt8> small(size + 16, 0);
        EXPECT_NE(FSRefMakePath(&ref, small.data(), static_cast<UInt32>(size)), 0);
    }
}

TEST_F(FsPlatformTest, FileSystemTypeNames) {
    std::string local;
    ASSERT_EQ(FSFileSystemTypeName(tmp_.path().c_str(), local), 0);
    EXPECT_FALSE(local.empty());
    for (const char* network : {"nfs", "smbfs", "afpfs", "msdos"}) EXPECT_NE(local, network);

    struct statfs sfs;
    ASSERT_EQ(statfs(tmp_.path().c_str(), &sfs), 0);
    if (sfs.f_type == 0xEF53) {  // ext2/3/4
        EXPECT_EQ(local.compare(0, 3, "ext"), 0) << local;
    }

    // A different file system gives a different name.
    struct statfs shm;
    if (statfs("/dev/shm", &shm) == 0 && shm.f_type != sfs.f_type) {
        std::string other;
        ASSERT_EQ(FSFileSystemTypeName("/dev/shm", other), 0);
        EXPECT_FALSE(other.empty());
        EXPECT_NE(other, local);
    }

    write_file(p("file"), "x");
    struct {
        std::string path;
        int err;
    } failures[] = {{p("missing"), ENOENT}, {p("file/below"), ENOTDIR}};
    for (const auto& f : failures) {
        SCOPED_TRACE(f.path);
        std::string name;
        errno = 0;
        EXPECT_EQ(FSFileSystemTypeName(f.path.c_str(), name), -1);
        EXPECT_EQ(errno, f.err);
    }
}

#if defined(__linux__)
// Shares and FAT volumes cannot be mounted here, so their names are checked on the magic numbers.
TEST(FsPlatformNames, KernelMagicNumbersMapToPlatformNames) {
    struct {
        unsigned long magic;
        const char* name;
    } cases[] = {
        {NFS_SUPER_MAGIC, "nfs"},    {SMB_SUPER_MAGIC, "smbfs"}, {CIFS_SUPER_MAGIC, "smbfs"},
        {SMB2_SUPER_MAGIC, "smbfs"}, {MSDOS_SUPER_MAGIC, "msdos"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.magic);
        EXPECT_STREQ(FSFileSystemTypeNameOfMagic(c.magic), c.name);
    }
    for (unsigned long local : {static_cast<unsigned long>(EXT4_SUPER_MAGIC), static_cast<unsigned long>(TMPFS_MAGIC),
                                static_cast<unsigned long>(BTRFS_SUPER_MAGIC), 0x12345678ul}) {
        SCOPED_TRACE(local);
        const char* name = FSFileSystemTypeNameOfMagic(local);
        ASSERT_NE(name, nullptr);
        for (const char* special : {"nfs", "smbfs", "afpfs", "msdos"}) EXPECT_STRNE(name, special);
    }
    EXPECT_EQ(std::string(FSFileSystemTypeNameOfMagic(EXT4_SUPER_MAGIC)).compare(0, 3, "ext"), 0);
}
#endif

}  // namespace
