// File operations on real files, folders, links and special files in temporary folders, with
// the error lines they log.
//
// We run as root: permission bits do not stop root, so permission cases either use what still
// stops root (no execute bit, the immutable flag) or run in a child that has become "nobody".
#include "file-op.h"

#include <dirent.h>
#include <fcntl.h>
#include <grp.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <ctime>
#include <functional>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "log.h"
#include "test-support.h"

namespace {

using testsupport::TempDir;
using testsupport::exists;
using testsupport::is_dir;
using testsupport::make_dir;
using testsupport::read_file;
using testsupport::write_file;

const std::string kNameAlphabet = "0-9a-zA-Z_-";
const std::string kEacuteNFC = "\xC3\xA9";
const std::string kEacuteNFD = "e\xCC\x81";
const std::string kErr = R"(\[ERROR\] file-op\.cpp\(\d+\): )";
const std::string kWarn = R"(\[WARNING\] file-op\.cpp\(\d+\): )";
const std::string kDbg = R"(\[DEBUG\] file-op\.cpp\(\d+\): )";

std::string re(const std::string& literal) {
    static const std::string special = R"(\^$.|?*+()[]{})";
    std::string out;
    for (char c : literal) {
        if (special.find(c) != std::string::npos) out += '\\';
        out += c;
    }
    return out;
}

// The log of the current test, with debug output of this module switched on.
class LogCapture {
public:
    LogCapture() : path_(dir_ / "file-op.log") {
        write_file(dir_ / "levels", "file_op_debug=7\n");
        if (Logger::Initialize(Logger::TYPE_FILE, path_, dir_ / "levels", 50) != 0)
            throw std::runtime_error("cannot open the test log");
    }

    std::vector<std::string> lines() const {
        std::vector<std::string> out;
        if (!exists(path_)) return out;
        std::istringstream in(read_file(path_));
        for (std::string line; std::getline(in, line);) out.push_back(line);
        return out;
    }

    // Index of the first line whose message (behind the time prefix) is exactly `message_re`.
    int find(const std::string& message_re) const {
        std::regex full(R"(^\S+ \d{2} \d{2}:\d{2}:\d{2} )" + message_re + "$");
        std::vector<std::string> all = lines();
        for (size_t i = 0; i < all.size(); ++i)
            if (std::regex_match(all[i], full)) return static_cast<int>(i);
        return -1;
    }
    bool has(const std::string& message_re) const { return find(message_re) >= 0; }
    std::string dump() const { return exists(path_) ? read_file(path_) : "(no log)"; }

private:
    TempDir dir_;
    std::string path_;
};

#define EXPECT_LOGGED(regex) EXPECT_TRUE(log_.has(regex)) << "expected /" << (regex) << "/ in:\n" << log_.dump()
#define EXPECT_NOT_LOGGED(regex) EXPECT_FALSE(log_.has(regex)) << "unexpected /" << (regex) << "/ in:\n" << log_.dump()

struct stat lstat_of(const std::string& path) {
    struct stat st;
    memset(&st, 0, sizeof st);
    if (lstat(path.c_str(), &st) != 0) throw std::runtime_error("lstat failed: " + path);
    return st;
}

mode_t perms(const std::string& path) { return lstat_of(path).st_mode & 07777; }

void set_times(const std::string& path, time_t atime, time_t mtime) {
    struct utimbuf t = {atime, mtime};
    if (utime(path.c_str(), &t) != 0) throw std::runtime_error("utime failed: " + path);
}

void make_link(const std::string& target, const std::string& path) {
    if (symlink(target.c_str(), path.c_str()) != 0) throw std::runtime_error("symlink failed: " + path);
}

// Relative path -> file content, or "<dir>" / "<link>target" for other kinds.
std::map<std::string, std::string> snapshot(const std::string& root) {
    std::map<std::string, std::string> out;
    std::function<void(const std::string&)> walk = [&](const std::string& rel) {
        DIR* d = opendir((root + rel).c_str());
        if (!d) throw std::runtime_error("opendir failed: " + root + rel);
        while (struct dirent* e = readdir(d)) {
            std::string name = e->d_name;
            if (name == "." || name == "..") continue;
            std::string child = rel + "/" + name;
            struct stat st = lstat_of(root + child);
            if (S_ISDIR(st.st_mode)) {
                out[child] = "<dir>";
                walk(child);
            } else if (S_ISLNK(st.st_mode)) {
                char buf[PATH_MAX] = {0};
                ssize_t n = readlink((root + child).c_str(), buf, sizeof buf - 1);
                out[child] = "<link>" + std::string(buf, n > 0 ? n : 0);
            } else {
                out[child] = read_file(root + child);
            }
        }
        closedir(d);
    };
    walk("");
    return out;
}

// Sets or clears the immutable flag, which stops even root from changing an entry.
class Immutable {
public:
    explicit Immutable(const std::string& path) : path_(path) { ok_ = set(true); }
    ~Immutable() {
        if (ok_) set(false);
    }
    bool ok() const { return ok_; }

private:
    bool set(bool on) {
        int fd = open(path_.c_str(), O_RDONLY | O_NONBLOCK);
        if (fd < 0) return false;
        int flags = 0;
        bool done = ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
        if (done) {
            flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
            done = ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
        }
        close(fd);
        return done;
    }
    std::string path_;
    bool ok_ = false;
};

#define REQUIRE_IMMUTABLE(guard) \
    if (!(guard).ok()) GTEST_SKIP() << "the file system does not support the immutable flag"

#define REQUIRE_ROOT() \
    if (geteuid() != 0) GTEST_SKIP() << "needs root to hand out files and drop privileges"

const int kNobody = 65534;
const int kChildSetupFailed = 250;

// Runs fn in a child process that has dropped root for uid and gid 65534 and returns fn's
// result (0..249) as the child's exit code, or -1 if the child did not exit normally.
int as_nobody(const std::function<int()>& fn) {
    fflush(nullptr);
    pid_t pid = fork();
    if (pid < 0) return -1;
    if (pid == 0) {
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)
            _exit(kChildSetupFailed);
        _exit(fn() & 0xFF);
    }
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override { saved_umask_ = umask(022); }
    void TearDown() override { umask(saved_umask_); }

    std::string p(const std::string& rel) const { return tmp_ / rel; }

    // Lets the unprivileged child into the temporary folder.
    void open_for_nobody() { ASSERT_EQ(chmod(tmp_.path().c_str(), 0755), 0); }

    LogCapture log_;
    TempDir tmp_;
    mode_t saved_umask_ = 022;
};

// ---------------------------------------------------------------------------------------------
// File information

TEST_F(FileOpTest, GetFileInfoOfAMissingPath) {
    for (const std::string& path : {p("missing"), p("missing/deeper")}) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info;
        info.exists = true;
        info.type = FILE_TYPE_SOCKET;
        info.size = 99;
        info.mtime = 1;
        info.uid = info.gid = info.mode = 5;
        time_t before = time(nullptr);
        ASSERT_EQ(GetFileInfo(path, info), 0);
        time_t after = time(nullptr);

        EXPECT_FALSE(info.exists);
        EXPECT_EQ(info.type, static_cast<uint32_t>(FILE_TYPE_REGULAR));
        EXPECT_GE(info.mtime, before);
        EXPECT_LE(info.mtime, after);
        EXPECT_EQ(std::string(info.path.c_str()), path);
        EXPECT_EQ(info.size, 0u);
        EXPECT_EQ(info.uid, 0u);
        EXPECT_EQ(info.gid, 0u);
        EXPECT_EQ(info.mode, 0u);
    }
}

TEST_F(FileOpTest, GetFileInfoDescribesEachKindWithoutFollowingLinks) {
    write_file(p("data"), "12345");
    set_times(p("data"), 1000, 1234567890);
    ASSERT_EQ(chmod(p("data").c_str(), 0640), 0);
    make_dir(p("dir"));
    make_link("data", p("link"));
    make_link("dir", p("dirlink"));
    make_link("nowhere", p("dangling"));
    ASSERT_EQ(mkfifo(p("fifo").c_str(), 0600), 0);
    int sock = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(sock, 0);
    struct sockaddr_un addr = {};
    addr.sun_family = AF_UNIX;
    ASSERT_LT(p("sock").size(), sizeof addr.sun_path);
    strcpy(addr.sun_path, p("sock").c_str());
    ASSERT_EQ(bind(sock, reinterpret_cast<struct sockaddr*>(&addr), sizeof addr), 0);

    struct {
        std::string path;
        uint32_t type;
    } kinds[] = {
        {p("data"), FILE_TYPE_REGULAR}, {p("dir"), FILE_TYPE_DIR},      {p("link"), FILE_TYPE_LINK},
        {p("dirlink"), FILE_TYPE_LINK}, {p("dangling"), FILE_TYPE_LINK}, {p("fifo"), FILE_TYPE_FIFO},
        {p("sock"), FILE_TYPE_SOCKET},  {"/dev/null", FILE_TYPE_DEVICE},
    };
    for (const auto& k : kinds) {
        SCOPED_TRACE(k.path);
        _FILE_INFO_tag info;
        ASSERT_EQ(GetFileInfo(k.path, info), 0);
        struct stat st = lstat_of(k.path);
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.type, k.type);
        EXPECT_EQ(std::string(info.path.c_str()), k.path);
        EXPECT_EQ(info.size, static_cast<uint64_t>(st.st_size));
        EXPECT_EQ(info.mtime, st.st_mtime);
        EXPECT_EQ(info.uid, st.st_uid);
        EXPECT_EQ(info.gid, st.st_gid);
        EXPECT_EQ(info.mode, st.st_mode);
    }
    close(sock);

    _FILE_INFO_tag data;
    ASSERT_EQ(GetFileInfo(p("data"), data), 0);
    EXPECT_EQ(data.size, 5u);
    EXPECT_EQ(data.mtime, 1234567890);
    EXPECT_EQ(data.mode, static_cast<uint32_t>(S_IFREG | 0640));
    _FILE_INFO_tag link;
    ASSERT_EQ(GetFileInfo(p("link"), link), 0);
    EXPECT_EQ(link.size, 4u);  // the length of "data", not the target's size
}

TEST_F(FileOpTest, GetFileInfoFailuresOtherThanMissingFillNothing) {
    write_file(p("data"), "x");
    for (const std::string& path : {p("data/below"), p(std::string(300, 'n'))}) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info;
        info.path = "untouched";
        info.exists = true;
        info.type = 42;
        info.mtime = 7;
        info.size = 8;
        info.uid = 9;
        info.gid = 10;
        info.mode = 11;
        EXPECT_EQ(GetFileInfo(path, info), -1);
        EXPECT_EQ(std::string(info.path.c_str()), "untouched");
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.type, 42u);
        EXPECT_EQ(info.mtime, 7);
        EXPECT_EQ(info.size, 8u);
        EXPECT_EQ(info.uid, 9u);
        EXPECT_EQ(info.gid, 10u);
        EXPECT_EQ(info.mode, 11u);
    }
}

TEST_F(FileOpTest, FileInfoEqualityIgnoresOwnerAndMode) {
    _FILE_INFO_tag base;
    base.path = "/a/b";
    base.aux_text = "aux";
    base.type = FILE_TYPE_REGULAR;
    base.mtime = 100;
    base.size = 200;
    base.exists = true;
    base.uid = 1;
    base.gid = 2;
    base.mode = 0100644;

    struct Change {
        const char* field;
        std::function<void(_FILE_INFO_tag&)> apply;
        bool still_equal;
    } changes[] = {
        {"nothing", [](_FILE_INFO_tag&) {}, true},
        {"uid", [](_FILE_INFO_tag& i) { i.uid = 1000; }, true},
        {"gid", [](_FILE_INFO_tag& i) { i.gid = 1000; }, true},
        {"mode", [](_FILE_INFO_tag& i) { i.mode = 040755; }, true},
        {"path", [](_FILE_INFO_tag& i) { i.path = "/a/c"; }, false},
        {"aux_text", [](_FILE_INFO_tag& i) { i.aux_text = "other"; }, false},
        {"aux_text emptied", [](_FILE_INFO_tag& i) { i.aux_text = ""; }, false},
        {"type", [](_FILE_INFO_tag& i) { i.type = FILE_TYPE_DIR; }, false},
        {"mtime", [](_FILE_INFO_tag& i) { i.mtime = 101; }, false},
        {"size", [](_FILE_INFO_tag& i) { i.size = 201; }, false},
        {"exists", [](_FILE_INFO_tag& i) { i.exists = false; }, false},
    };
    for (const Change& c : changes) {
        SCOPED_TRACE(c.field);
        _FILE_INFO_tag other = base;
        c.apply(other);
        EXPECT_EQ(base == other, c.still_equal);
        EXPECT_EQ(other == base, c.still_equal);
        EXPECT_EQ(base != other, !c.still_equal);
    }
}

TEST_F(FileOpTest, FSStat) {
    write_file(p("data"), "abc");
    make_link("nowhere", p("dangling"));

    _FILE_INFO_tag info;
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_EQ(FSStat("", info, true), -1);

    // Not existing: only `exists` changes. Existence is tested through links, so a dangling
    // link does not exist; the disk is case-sensitive, so another case does not either.
    for (const std::string& path : {p("missing"), p("dangling"), p("DATA"), p("data/below")}) {
        for (bool exact : {false, true}) {
            SCOPED_TRACE(path + (exact ? " exact" : ""));
            _FILE_INFO_tag kept;
            kept.path = "kept";
            kept.exists = true;
            kept.type = FILE_TYPE_DIR;
            kept.size = 42;
            kept.mtime = 43;
            kept.uid = 44;
            ASSERT_EQ(FSStat(path, kept, exact), 0);
            EXPECT_FALSE(kept.exists);
            EXPECT_EQ(std::string(kept.path.c_str()), "kept");
            EXPECT_EQ(kept.type, static_cast<uint32_t>(FILE_TYPE_DIR));
            EXPECT_EQ(kept.size, 42u);
            EXPECT_EQ(kept.mtime, 43);
            EXPECT_EQ(kept.uid, 44u);
        }
    }

    for (bool exact : {false, true}) {
        SCOPED_TRACE(exact);
        _FILE_INFO_tag expected, got;
        ASSERT_EQ(GetFileInfo(p("data"), expected), 0);
        ASSERT_EQ(FSStat(p("data"), got, exact), 0);
        EXPECT_TRUE(got.exists);
        EXPECT_TRUE(got == expected);
        EXPECT_EQ(got.size, 3u);
        EXPECT_EQ(got.mode, expected.mode);
        EXPECT_EQ(got.uid, expected.uid);
    }
}

TEST_F(FileOpTest, IsFileExist) {
    write_file(p("data"), "x");
    make_dir(p("dir"));
    make_link("nowhere", p("dangling"));
    write_file(p("caf" + kEacuteNFC), "stored in NFC");
    write_file(p("th" + kEacuteNFD), "stored in NFD");

    // Paths are normalised to NFC before the disk is asked, so a name stored in NFD is not found
    // on this normalisation-sensitive disk, and an NFD spelling finds the NFC name.
    struct Case {
        std::string path;
        bool exists;
    } cases[] = {
        {p("data"), true},
        {p("dir"), true},
        {p("dir/"), true},
        {p("caf" + kEacuteNFC), true},
        {p("caf" + kEacuteNFD), true},
        {p("th" + kEacuteNFD), false},
        {p("th" + kEacuteNFC), false},
        {p("DATA"), false},
        {p("missing"), false},
        {p("dangling"), false},
        {p("data/below"), false},
        {"", false},
    };
    for (const Case& c : cases) {
        for (bool exact : {false, true}) {
            SCOPED_TRACE(c.path + (exact ? " exact" : ""));
            EXPECT_EQ(IsFileExist(c.path, exact), c.exists);
        }
    }
}

TEST_F(FileOpTest, IsFileExistLogsTheExactCaseCheck) {
    write_file(p("data"), "x");
    const std::string input = kDbg + R"(Input file path = \[)" + re(p("data")) + R"(\]\.)";
    const std::string resolved = kDbg + R"(FSRefMakePath outTargetPath path = \[)" + re(p("data")) + R"(\]\.)";
    const std::string found = kDbg + R"(File exist\.)";

    ASSERT_TRUE(IsFileExist(p("data"), false));
    EXPECT_NOT_LOGGED(input);

    ASSERT_TRUE(IsFileExist(p("data"), true));
    int a = log_.find(input), b = log_.find(resolved), c = log_.find(found);
    EXPECT_GE(a, 0) << log_.dump();
    EXPECT_GT(b, a) << log_.dump();
    EXPECT_GT(c, b) << log_.dump();
}

// ---------------------------------------------------------------------------------------------
// FSCopy

std::string pattern_bytes(size_t n) {
    std::string s(n, '\0');
    uint32_t x = 12345;
    for (size_t i = 0; i < n; ++i) {
        x = x * 1103515245u + 12345u;
        s[i] = static_cast<char>(x >> 23);
    }
    return s;
}

// read_file goes byte by byte through a stream iterator: too slow for the large copy.
std::string slurp(const std::string& path) {
    std::string out;
    FILE* f = fopen(path.c_str(), "rb");
    if (!f) throw std::runtime_error("cannot read " + path);
    char buf[1 << 16];
    for (size_t n; (n = fread(buf, 1, sizeof buf, f)) > 0;) out.append(buf, n);
    fclose(f);
    return out;
}

TEST_F(FileOpTest, FSCopyCopiesContentsOfAnySize) {
    struct Case {
        const char* what;
        std::string content;
    } cases[] = {
        {"empty", ""},
        {"small", std::string("hello\0world\n", 12)},
        {"more than one 32 MiB buffer", pattern_bytes(32u * 1024 * 1024 + 4097)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string src = p(std::string("src-") + c.what), dst = p(std::string("dst-") + c.what);
        write_file(src, c.content);
        ASSERT_EQ(FSCopy(src, dst, false), 0);
        EXPECT_TRUE(slurp(dst) == c.content) << "copied content differs";
        EXPECT_TRUE(slurp(src) == c.content);
    }
}

TEST_F(FileOpTest, FSCopyReplacesTheDestinationWithoutCopyingAttributes) {
    write_file(p("src"), "short");
    ASSERT_EQ(chmod(p("src").c_str(), 0600), 0);
    set_times(p("src"), 1000000000, 1000000000);
    write_file(p("dst"), "a much longer old content");
    ASSERT_EQ(chmod(p("dst").c_str(), 0600), 0);

    ASSERT_EQ(FSCopy(p("src"), p("dst"), false), 0);
    EXPECT_EQ(read_file(p("dst")), "short");

    time_t before = time(nullptr);
    ASSERT_EQ(FSCopy(p("src"), p("new"), false), 0);
    EXPECT_EQ(perms(p("new")), 0644u);  // 0666 under umask 022, not the source's 0600
    EXPECT_GE(lstat_of(p("new")).st_mtime, before);
}

TEST_F(FileOpTest, FSCopyRemovesTheSourceOnlyAfterASuccessfulCopy) {
    const std::string content = pattern_bytes(100000);
    write_file(p("src"), content);
    ASSERT_EQ(FSCopy(p("src"), p("dst"), true), 0);
    EXPECT_FALSE(exists(p("src")));
    EXPECT_TRUE(read_file(p("dst")) == content);
}

TEST_F(FileOpTest, FSCopyOpenFailures) {
    write_file(p("src"), "data");

    EXPECT_EQ(FSCopy(p("missing"), p("dst"), true), -1);
    EXPECT_FALSE(exists(p("dst")));
    EXPECT_LOGGED(kErr + "CopyFile: open" + re("(" + p("missing") + ")") + R"(: No such file or directory \(2\))");

    EXPECT_EQ(FSCopy(p("src"), p("nodir/dst"), true), -1);
    EXPECT_EQ(read_file(p("src")), "data");
    EXPECT_LOGGED(kErr + "CopyFile: open" + re("(" + p("nodir/dst") + ")") + R"(: No such file or directory \(2\))");
}

TEST_F(FileOpTest, FSCopyOfADirectoryFailsToRead) {
    make_dir(p("dir"));
    write_file(p("dir/inner"), "x");

    EXPECT_EQ(FSCopy(p("dir"), p("dst"), true), -1);
    EXPECT_LOGGED(kErr + R"(CopyFile: read: Is a directory \(21\))");
    EXPECT_TRUE(is_dir(p("dir")));
    EXPECT_EQ(read_file(p("dir/inner")), "x");
    // What was written so far (nothing) stays.
    ASSERT_TRUE(exists(p("dst")));
    EXPECT_EQ(read_file(p("dst")), "");
}

TEST_F(FileOpTest, FSCopyToAFullDiskKeepsTheSource) {
    if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
    write_file(p("src"), "some bytes");

    EXPECT_EQ(FSCopy(p("src"), "/dev/full", true), -2);
    EXPECT_EQ(read_file(p("src")), "some bytes");
    EXPECT_LOGGED(kErr + R"(CopyFile: write: No space left on device \(28\))");
}

TEST_F(FileOpTest, FSCopyReportsASourceThatCannotBeRemoved) {
    make_dir(p("locked"));
    write_file(p("locked/src"), "payload");
    Immutable guard(p("locked"));
    REQUIRE_IMMUTABLE(guard);

    EXPECT_EQ(FSCopy(p("locked/src"), p("dst"), true), -1);
    EXPECT_EQ(read_file(p("dst")), "payload");
    EXPECT_TRUE(exists(p("locked/src")));
}

// ---------------------------------------------------------------------------------------------
// FSRename on one file system

TEST_F(FileOpTest, FSRenameArgumentsAndMissingSources) {
    write_file(p("src"), "x");

    EXPECT_EQ(FSRename("", p("dst"), false), -1);
    EXPECT_EQ(FSRename(p("src"), "", false), -1);
    EXPECT_EQ(FSRename("", "", true), -1);
    for (bool exact : {false, true}) {
        EXPECT_EQ(FSRename(p("missing"), p("dst"), exact), -2);
        EXPECT_EQ(FSRename(p("SRC"), p("dst"), exact), -2);  // the disk is case-sensitive
        EXPECT_EQ(FSRename(p("src/below"), p("dst"), exact), -2);
    }
    EXPECT_FALSE(exists(p("dst")));
    EXPECT_EQ(read_file(p("src")), "x");
}

TEST_F(FileOpTest, FSRenameMovesFilesAndTrees) {
    write_file(p("file"), "content");
    make_dir(p("tree"));
    make_dir(p("tree/sub"));
    write_file(p("tree/sub/leaf"), "leaf");
    make_link("sub", p("tree/link"));
    write_file(p("old"), "replaced");
    make_dir(p("target"));
    auto tree = snapshot(p("tree"));

    for (bool exact : {false, true}) {
        const std::string to = exact ? "file2" : "file1", from = exact ? "file1" : "file";
        EXPECT_EQ(FSRename(p(from), p(to), exact), 0);
        EXPECT_FALSE(exists(p(from)));
        EXPECT_EQ(read_file(p(to)), "content");
    }
    EXPECT_EQ(FSRename(p("file2"), p("old"), true), 0);
    EXPECT_EQ(read_file(p("old")), "content");

    EXPECT_EQ(FSRename(p("tree"), p("target/moved"), false), 0);
    EXPECT_FALSE(exists(p("tree")));
    EXPECT_EQ(snapshot(p("target/moved")), tree);
}

TEST_F(FileOpTest, FSRenameFailures) {
    write_file(p("file"), "f");
    make_dir(p("dir"));
    write_file(p("dir/inside"), "i");
    make_dir(p("full"));
    write_file(p("full/occupant"), "o");

    struct Case {
        const char* what;
        std::string from, to;
        int result;
    } cases[] = {
        {"name too long", p("file"), p(std::string(256, 'n')), -100},
        {"name too long in a folder", p("dir"), p("full/" + std::string(300, 'n')), -100},
        {"directory onto a non-empty directory", p("dir"), p("full"), -3},
        {"file onto a directory", p("file"), p("full"), -3},
        {"directory onto a file", p("dir"), p("file"), -3},
        {"into a missing folder", p("file"), p("nodir/file"), -3},
        {"directory into itself", p("dir"), p("dir/self"), -3},
    };
    auto before = snapshot(tmp_.path());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(FSRename(c.from, c.to, false), c.result);
        EXPECT_EQ(snapshot(tmp_.path()), before);
    }
}

// ---------------------------------------------------------------------------------------------
// FSRename across file systems: /dev/shm is tmpfs, the temporary folder usually is not.

class CrossDeviceTest : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        const char* old = getenv("TMPDIR");
        std::string saved = old ? old : "";
        setenv("TMPDIR", "/dev/shm", 1);
        try {
            other_ = std::make_unique<TempDir>();
        } catch (const std::exception&) {
        }
        if (old) setenv("TMPDIR", saved.c_str(), 1);
        else unsetenv("TMPDIR");
        if (!other_) GTEST_SKIP() << "no /dev/shm";
        if (lstat_of(tmp_.path()).st_dev == lstat_of(other_->path()).st_dev)
            GTEST_SKIP() << "the temporary folder is on the same file system as /dev/shm";
    }
    std::string q(const std::string& rel) const { return *other_ / rel; }
    std::unique_ptr<TempDir> other_;
};

TEST_F(CrossDeviceTest, MovesARegularFile) {
    const std::string content = pattern_bytes(300000);
    write_file(p("file"), content);
    ASSERT_EQ(chmod(p("file").c_str(), 0600), 0);

    ASSERT_EQ(FSRename(p("file"), q("file"), false), 0);
    EXPECT_FALSE(exists(p("file")));
    EXPECT_TRUE(read_file(q("file")) == content);

    ASSERT_EQ(FSRename(q("file"), p("back"), true), 0);
    EXPECT_FALSE(exists(q("file")));
    EXPECT_TRUE(read_file(p("back")) == content);
}

TEST_F(CrossDeviceTest, RecreatesADirectoryTree) {
    make_dir(p("tree"));
    write_file(p("tree/x"), "x");
    make_dir(p("tree/b"));
    write_file(p("tree/b/y"), "y");
    make_dir(p("tree/empty"));
    make_dir(p("tree/deep"));
    make_dir(p("tree/deep/er"));
    write_file(p("tree/deep/er/z"), pattern_bytes(5000));
    write_file(p("tree/.hidden"), "h");
    make_dir(p("tree/..odd"));
    auto tree = snapshot(p("tree"));

    ASSERT_EQ(FSRename(p("tree"), q("moved"), false), 0);
    EXPECT_FALSE(exists(p("tree")));
    EXPECT_EQ(snapshot(q("moved")), tree);

    // into a folder that already exists
    make_dir(p("existing"));
    ASSERT_EQ(FSRename(q("moved"), p("existing"), true), 0);
    EXPECT_FALSE(exists(q("moved")));
    EXPECT_EQ(snapshot(p("existing")), tree);
}

TEST_F(CrossDeviceTest, OtherKindsAreLeftWhereTheyAre) {
    ASSERT_EQ(mkfifo(p("fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSRename(p("fifo"), q("fifo"), false), 0);
    EXPECT_TRUE(exists(p("fifo")));
    EXPECT_FALSE(exists(q("fifo")));
}

TEST_F(CrossDeviceTest, FailuresLeaveTheSource) {
    write_file(p("file"), "f");
    make_dir(p("tree"));
    write_file(p("tree/x"), "x");
    write_file(q("occupied"), "not a folder");
    make_dir(q("clash"));
    make_dir(q("clash/x"));  // a folder where the file x must go
    write_file(q("clash/x/keep"), "k");

    EXPECT_EQ(FSRename(p("file"), q("nodir/file"), false), -3);
    EXPECT_EQ(read_file(p("file")), "f");

    EXPECT_EQ(FSRename(p("tree"), q("occupied"), false), -3);
    EXPECT_EQ(read_file(p("tree/x")), "x");
    EXPECT_EQ(read_file(q("occupied")), "not a folder");

    EXPECT_EQ(FSRename(p("tree"), q("clash"), false), -3);
    EXPECT_EQ(read_file(p("tree/x")), "x");
    EXPECT_EQ(read_file(q("clash/x/keep")), "k");
}

// ---------------------------------------------------------------------------------------------
// FSMKDir and FSMKDirP

TEST_F(FileOpTest, FSMKDirCreatesDirectories) {
    EXPECT_EQ(FSMKDir("", false), -1);
    EXPECT_EQ(FSMKDir("", true), -1);

    EXPECT_EQ(FSMKDir(p("one"), false), 0);
    EXPECT_TRUE(is_dir(p("one")));
    EXPECT_EQ(perms(p("one")), 0755u);

    EXPECT_EQ(FSMKDir(p("a/b/c"), true), 0);
    for (const char* d : {"a", "a/b", "a/b/c"}) {
        SCOPED_TRACE(d);
        EXPECT_TRUE(is_dir(p(d)));
        EXPECT_EQ(perms(p(d)), 0755u);
    }

    EXPECT_EQ(FSMKDir(p("x/y"), false), -2);
    EXPECT_FALSE(exists(p("x")));
}

TEST_F(FileOpTest, FSMKDirLeavesAnExistingDirectoryAlone) {
    make_dir(p("dir"));
    write_file(p("dir/inside"), "i");
    ASSERT_EQ(chmod(p("dir").c_str(), 0710), 0);
    set_times(p("dir"), 1000000000, 1100000000);

    for (bool parents : {false, true}) {
        EXPECT_EQ(FSMKDir(p("dir"), parents), 0);
        EXPECT_EQ(perms(p("dir")), 0710u);
        EXPECT_EQ(lstat_of(p("dir")).st_mtime, 1100000000);
        EXPECT_EQ(read_file(p("dir/inside")), "i");
    }
}

TEST_F(FileOpTest, FSMKDirRefusesWhatIsNotADirectory) {
    write_file(p("file"), "keep");
    make_dir(p("dir"));
    make_link("dir", p("link"));  // the link itself is looked at

    for (bool parents : {false, true}) {
        EXPECT_EQ(FSMKDir(p("file"), parents), -1);
        EXPECT_EQ(FSMKDir(p("link"), parents), -1);
        EXPECT_EQ(FSMKDir(p("file/below"), parents), -1);
    }
    EXPECT_EQ(read_file(p("file")), "keep");
    EXPECT_TRUE(is_dir(p("dir")));
    EXPECT_LOGGED(kErr + "FSMKDir: Create a folder but local file system is not directory '" + re(p("file")) + R"(' \(1\))");
    EXPECT_LOGGED(kErr + "FSMKDir: Create a folder but local file system is not directory '" + re(p("link")) + R"(' \(3\))");
    EXPECT_LOGGED(kErr + "FSMKDir: Failed to to file info '" + re(p("file/below")) + "'");
}

TEST_F(FileOpTest, FSMKDirReportsAFailedCreation) {
    make_dir(p("locked"));
    Immutable guard(p("locked"));
    REQUIRE_IMMUTABLE(guard);

    EXPECT_EQ(FSMKDir(p("locked/new"), false), -2);
    EXPECT_EQ(FSMKDir(p("locked/new/deeper"), true), -2);
    EXPECT_FALSE(exists(p("locked/new")));
}

TEST_F(FileOpTest, FSMKDirPStopsWhereItFailed) {
    const std::string long_name(300, 'n');
    struct Case {
        const char* what;
        std::vector<std::string> files;  // regular files put in the way first
        std::string rel;
        bool force;
        int result;
        int err;                  // errno after a failure, 0: not checked
        std::string stop_behind;  // the stop position is behind this prefix of rel
        std::vector<std::string> dirs_after;
        std::vector<std::string> files_after;
    } cases[] = {
        {"fresh", {}, "a/b/c", false, 0, 0, "a/b/c", {"a", "a/b", "a/b/c"}, {}},
        {"trailing slash", {}, "a/b/", false, 0, 0, "a/b/", {"a", "a/b"}, {}},
        {"all there", {}, "a", false, 0, 0, "a", {"a"}, {}},
        {"inner file", {"a/b"}, "a/b/c", false, -1, ENOTDIR, "a/b", {"a"}, {"a/b"}},
        {"last is a file", {"a/b"}, "a/b", false, -1, EEXIST, "a/b", {"a"}, {"a/b"}},
        {"last is a file, trailing slash", {"a/b"}, "a/b/", false, -1, EEXIST, "a/b", {"a"}, {"a/b"}},
        {"inner file forced away", {"a/b"}, "a/b/c", true, 0, 0, "a/b/c", {"a", "a/b", "a/b/c"}, {}},
        {"last file forced away", {"a/b"}, "a/b", true, 0, 0, "a/b", {"a", "a/b"}, {}},
        {"mkdir fails", {}, "a/" + long_name + "/c", false, -1, 0, "a/" + long_name, {"a"}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TempDir dir;
        if (!c.files.empty()) make_dir(dir / "a");
        for (const auto& f : c.files) write_file(dir / f, "in the way");
        const ustring path = dir / c.rel;
        char* stop = nullptr;
        errno = 0;
        EXPECT_EQ(FSMKDirP(path, &stop, c.force, 0xFFFF), c.result);
        if (c.err) {
            EXPECT_EQ(errno, c.err);
        }
        ASSERT_NE(stop, nullptr);
        EXPECT_EQ(stop - path.c_str(), static_cast<long>(dir.path().size() + 1 + c.stop_behind.size()));
        if (c.result == 0) {
            EXPECT_EQ(*stop, '\0');
        }
        for (const auto& d : c.dirs_after) EXPECT_TRUE(is_dir(dir / d)) << d;
        for (const auto& f : c.files_after) EXPECT_EQ(read_file(dir / f), "in the way") << f;
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_EQ(FSMKDirP(p("no/stop/wanted"), nullptr, false, 0xFFFF), 0);
    EXPECT_TRUE(is_dir(p("no/stop/wanted")));
}

TEST_F(FileOpTest, FSMKDirPGoesThroughLinksToDirectories) {
    make_dir(p("real"));
    make_link("real", p("link"));
    char* stop = nullptr;
    const ustring path = p("link/new");
    EXPECT_EQ(FSMKDirP(path, &stop, false, 0xFFFF), 0);
    EXPECT_TRUE(is_dir(p("real/new")));
    EXPECT_EQ(stop, path.c_str() + path.length());
}

TEST_F(FileOpTest, FSMKDirPUsesAnExplicitModeExactly) {
    make_dir(p("existing"));
    ASSERT_EQ(chmod(p("existing").c_str(), 0711), 0);

    for (unsigned short mode : {0700, 0777, 0751}) {
        SCOPED_TRACE(mode);
        umask(022);
        std::string top = "m" + std::to_string(mode);
        ASSERT_EQ(FSMKDirP(p("existing/" + top + "/inner"), nullptr, false, mode), 0);
        EXPECT_EQ(perms(p("existing/" + top)), mode);
        EXPECT_EQ(perms(p("existing/" + top + "/inner")), mode);
        EXPECT_EQ(umask(022), 022u) << "umask not restored";
    }
    EXPECT_EQ(perms(p("existing")), 0711u);

    struct {
        mode_t mask, expect;
    } defaults[] = {{022, 0755}, {077, 0700}, {027, 0750}};
    for (const auto& d : defaults) {
        SCOPED_TRACE(d.mask);
        umask(d.mask);
        std::string rel = "d" + std::to_string(d.mask);
        ASSERT_EQ(FSMKDirP(p(rel + "/inner"), nullptr, false, 0xFFFF), 0);
        EXPECT_EQ(perms(p(rel)), d.expect);
        EXPECT_EQ(perms(p(rel + "/inner")), d.expect);
        EXPECT_EQ(umask(022), d.mask);
    }
}

TEST_F(FileOpTest, NewDirectoriesTakeTheStoredOwner) {
    REQUIRE_ROOT();
    // A set-group-id parent hands its group down, which shows whether a group was set explicitly.
    make_dir(p("sgid"));
    ASSERT_EQ(chown(p("sgid").c_str(), 0, 12345), 0);
    ASSERT_EQ(chmod(p("sgid").c_str(), 02775), 0);
    const std::string s = p("sgid");
    struct Reset {
        ~Reset() { FSInitialize(static_cast<uint32_t>(-1), static_cast<uint32_t>(-1)); }
    } reset;
    auto owner = [](const std::string& path) {
        struct stat st = lstat_of(path);
        return std::to_string(st.st_uid) + ":" + std::to_string(st.st_gid);
    };
    const std::string inherited = std::to_string(geteuid()) + ":12345";

    FSInitialize(static_cast<uint32_t>(-1), static_cast<uint32_t>(-1));
    ASSERT_EQ(FSMKDirP(s + "/default/x", nullptr, false, 0xFFFF), 0);
    ASSERT_EQ(FSMKDir(s + "/plain", false), 0);
    EXPECT_EQ(owner(s + "/default"), inherited);
    EXPECT_EQ(owner(s + "/default/x"), inherited);
    EXPECT_EQ(owner(s + "/plain"), inherited);

    // One stored id: the other becomes the effective one.
    FSInitialize(65534, static_cast<uint32_t>(-1));
    ASSERT_EQ(FSMKDirP(s + "/mixed/x", nullptr, false, 0xFFFF), 0);
    const std::string mixed = "65534:" + std::to_string(getegid());
    EXPECT_EQ(owner(s + "/mixed"), mixed);
    EXPECT_EQ(owner(s + "/mixed/x"), mixed);

    FSInitialize(65534, 65533);
    ASSERT_EQ(FSMKDir(s + "/owned", false), 0);
    ASSERT_EQ(FSMKDir(s + "/deep/a/b", true), 0);
    for (const char* d : {"/owned", "/deep", "/deep/a", "/deep/a/b"}) EXPECT_EQ(owner(s + d), "65534:65533") << d;
    EXPECT_EQ(owner(s), "0:12345");  // existing folders are not touched
    EXPECT_EQ(FSChown(s + "/plain"), 0);
    EXPECT_EQ(owner(s + "/plain"), "65534:65533");
    EXPECT_NE(FSChown(p("missing")), 0);
}

// ---------------------------------------------------------------------------------------------
// FSRemove

TEST_F(FileOpTest, FSRemoveRemovesTrees) {
    EXPECT_EQ(FSRemove(""), -1);
    EXPECT_EQ(FSRemove(p("missing")), 0);

    write_file(p("file"), "x");
    EXPECT_EQ(FSRemove(p("file")), 0);
    EXPECT_FALSE(exists(p("file")));

    make_dir(p("outside"));
    write_file(p("outside/keep"), "k");
    make_dir(p("tree"));
    make_dir(p("tree/a"));
    make_dir(p("tree/a/b"));
    make_dir(p("tree/empty"));
    write_file(p("tree/a/b/f"), "f");
    write_file(p("tree/top"), "t");
    ASSERT_EQ(mkfifo(p("tree/a/fifo").c_str(), 0600), 0);
    make_link("../../outside", p("tree/a/out"));
    make_link("nowhere", p("tree/dangling"));
    write_file(p("tree/.hidden"), "h");
    make_dir(p("tree/a/..odd"));
    write_file(p("tree/a/..odd/.x"), "x");
    ASSERT_EQ(chmod(p("tree/a/b").c_str(), 0500), 0);

    EXPECT_EQ(FSRemove(p("tree"), true), 0);
    EXPECT_FALSE(exists(p("tree")));
    EXPECT_EQ(read_file(p("outside/keep")), "k");
}

TEST_F(FileOpTest, FSRemoveOfALinkToADirectoryRemovesOnlyTheLink) {
    make_dir(p("dir"));
    write_file(p("dir/inside"), "i");
    make_link("dir", p("link"));

    EXPECT_EQ(FSRemove(p("link")), 0);
    EXPECT_FALSE(exists(p("link")));
    EXPECT_EQ(read_file(p("dir/inside")), "i");
}

TEST_F(FileOpTest, FSRemoveFailures) {
    write_file(p("file"), "x");
    EXPECT_EQ(FSRemove(p("file/below")), -1);

    make_dir(p("tree"));
    write_file(p("tree/stuck"), "s");
    Immutable guard(p("tree/stuck"));
    REQUIRE_IMMUTABLE(guard);

    EXPECT_EQ(FSRemove(p("tree/stuck")), -3);
    EXPECT_EQ(FSRemove(p("tree")), -3);
    EXPECT_TRUE(is_dir(p("tree")));
    EXPECT_TRUE(exists(p("tree/stuck")));
}

TEST_F(FileOpTest, FSRemoveSkipsADirectoryItCannotOpen) {
    REQUIRE_ROOT();
    open_for_nobody();
    make_dir(p("open"));
    ASSERT_EQ(chmod(p("open").c_str(), 0777), 0);
    make_dir(p("open/closed"));
    write_file(p("open/closed/inside"), "i");
    ASSERT_EQ(chmod(p("open/closed").c_str(), 0), 0);

    int status = as_nobody([&] {
        int closed = FSRemove(p("open/closed"));
        int parent = FSRemove(p("open"));
        return (closed == 0 ? 0 : 1) | (parent == -3 ? 0 : 2);
    });
    ASSERT_NE(status, kChildSetupFailed);
    EXPECT_EQ(status & 1, 0) << "an unreadable directory gives 0";
    EXPECT_EQ(status & 2, 0) << "its non-empty parent cannot go, -3";
    EXPECT_TRUE(exists(p("open/closed/inside")));
}

// ---------------------------------------------------------------------------------------------
// TraverseDir

struct Walk {
    std::vector<std::string> seen;
    size_t stop_at = SIZE_MAX;
};

int record(const ustring& path, void* context) {
    Walk* w = static_cast<Walk*>(context);
    w->seen.push_back(path.c_str());
    return w->seen.size() - 1 == w->stop_at ? 1 : 0;
}

// The order the disk gives: each directory, then its entries as readdir returns them, with
// subdirectories walked where they appear.
void disk_order(const std::string& dir, std::vector<std::string>& out) {
    out.push_back(dir);
    DIR* d = opendir(dir.c_str());
    ASSERT_NE(d, nullptr);
    while (struct dirent* e = readdir(d)) {
        std::string name = e->d_name;
        if (name == "." || name == "..") continue;
        if (S_ISDIR(lstat_of(dir + "/" + name).st_mode)) disk_order(dir + "/" + name, out);
        else out.push_back(dir + "/" + name);
    }
    closedir(d);
}

class TraverseDirTest : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        make_dir(p("a"));
        write_file(p("a/x"), "x");
        make_dir(p("a/b"));
        write_file(p("a/b/y"), "y");
        make_dir(p("a/b/c"));
        write_file(p("a/b/c/z"), "z");
        write_file(p("a/w"), "w");
        make_link("b", p("a/link"));  // a link to a directory is an entry, not walked
        write_file(p("a/.hidden"), "h");  // only "." and ".." are skipped
        write_file(p("a/b/..odd"), "o");
        disk_order(p("a"), expected_);
    }
    std::vector<std::string> expected_;
};

TEST_F(TraverseDirTest, WalksDepthFirstInDirectoryOrder) {
    Walk w;
    ASSERT_EQ(TraverseDir(p("a"), record, &w), 0);
    EXPECT_EQ(w.seen, expected_);

    std::set<std::string> all(w.seen.begin(), w.seen.end());
    std::set<std::string> want = {p("a"),       p("a/x"), p("a/b"),    p("a/b/y"),    p("a/b/c"),
                                  p("a/b/c/z"), p("a/w"), p("a/link"), p("a/.hidden"), p("a/b/..odd")};
    EXPECT_EQ(all, want);
    ASSERT_FALSE(w.seen.empty());
    EXPECT_EQ(w.seen.front(), p("a"));
    auto b = std::find(w.seen.begin(), w.seen.end(), p("a/b"));
    ASSERT_NE(b, w.seen.end());
    auto c = std::find(w.seen.begin(), w.seen.end(), p("a/b/c"));
    auto z = std::find(w.seen.begin(), w.seen.end(), p("a/b/c/z"));
    // Everything below b comes straight after it.
    ASSERT_GE(w.seen.end() - b, 5);
    std::set<std::string> after_b(b + 1, b + 5);
    EXPECT_EQ(after_b, (std::set<std::string>{p("a/b/y"), p("a/b/c"), p("a/b/c/z"), p("a/b/..odd")}));
    ASSERT_NE(c, w.seen.end());
    EXPECT_EQ(c + 1, z);  // c is walked where it appears
}

TEST_F(TraverseDirTest, StopsWhenTheCallbackAsks) {
    for (size_t k = 0; k < expected_.size(); ++k) {
        SCOPED_TRACE(k);
        Walk w;
        w.stop_at = k;
        EXPECT_EQ(TraverseDir(p("a"), record, &w), -2);
        EXPECT_EQ(w.seen, std::vector<std::string>(expected_.begin(), expected_.begin() + k + 1));
    }
}

TEST_F(TraverseDirTest, RejectsWhatItCannotWalk) {
    Walk w;
    EXPECT_EQ(TraverseDir("", record, &w), -1);
    EXPECT_EQ(TraverseDir(p("a"), nullptr, &w), -1);
    EXPECT_EQ(TraverseDir(p("missing"), record, &w), -1);
    EXPECT_EQ(TraverseDir(p("a/x"), record, &w), -1);
    EXPECT_EQ(TraverseDir(p("a/link"), record, &w), -1);
    EXPECT_EQ(TraverseDir(p("a/x/below"), record, &w), -1);
    EXPECT_TRUE(w.seen.empty());
}

TEST_F(TraverseDirTest, UnreadableDirectoriesStopTheWalk) {
    REQUIRE_ROOT();
    open_for_nobody();
    ASSERT_EQ(chmod(p("a/b/c").c_str(), 0), 0);

    int status = as_nobody([&] {
        Walk top, inner;
        int closed = TraverseDir(p("a/b/c"), record, &inner);
        int walk = TraverseDir(p("a"), record, &top);
        bool ok = closed == -2 && inner.seen.empty() && walk == -2 &&
                  std::find(top.seen.begin(), top.seen.end(), p("a/b/c")) == top.seen.end();
        return ok ? 0 : 1;
    });
    ASSERT_NE(status, kChildSetupFailed);
    EXPECT_EQ(status, 0) << "an unreadable directory gives -2 before the callback sees it";
}

// ---------------------------------------------------------------------------------------------
// Directory reading

class DirReadTest : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        make_dir(p("dir"));
        write_file(p("dir/file"), "eleven byte");
        set_times(p("dir/file"), 1000000000, 1111111111);
        make_dir(p("dir/sub"));
        set_times(p("dir/sub"), 1000000000, 1222222222);
        make_link("file", p("dir/link"));
        make_link("nowhere", p("dir/dangling"));
        ASSERT_EQ(mkfifo(p("dir/fifo").c_str(), 0600), 0);
        write_file(p("dir/.hidden"), "h");
    }

    std::map<std::string, DIR_ENTRY> read_all(int flags) {
        std::map<std::string, DIR_ENTRY> out;
        DIR_HANDLE h;
        EXPECT_EQ(FSOpenDir(p("dir"), flags, h), 0);
        EXPECT_NE(h.dir, nullptr);
        EXPECT_EQ(std::string(h.path.c_str()), p("dir"));
        EXPECT_EQ(h.flags, flags);
        for (int guard = 0; guard < 100; ++guard) {
            DIR_ENTRY e;
            e.mtime = 77;
            e.size = 88;
            int r = FSReadDir(h, e);
            if (r == 0) break;
            EXPECT_EQ(r, 1);
            if (r != 1) break;
            EXPECT_EQ(out.count(e.name.c_str()), 0u) << "twice: " << e.name;
            out[e.name.c_str()] = e;
        }
        DIR_ENTRY after;
        EXPECT_EQ(FSReadDir(h, after), 0);
        FSCloseDir(h);
        EXPECT_EQ(h.dir, nullptr);
        EXPECT_TRUE(h.path.empty());
        return out;
    }
};

TEST_F(DirReadTest, ReturnsEveryEntryWithItsKind) {
    auto entries = read_all(0);
    std::map<std::string, uint32_t> kinds;
    for (const auto& [name, e] : entries) {
        kinds[name] = e.type;
        EXPECT_EQ(e.mtime, 0) << name;
        EXPECT_EQ(e.size, 0u) << name;
    }
    std::map<std::string, uint32_t> want = {
        {".", FILE_TYPE_DIR},       {"..", FILE_TYPE_DIR},       {"file", FILE_TYPE_REGULAR},
        {"sub", FILE_TYPE_DIR},     {"link", FILE_TYPE_LINK},    {"dangling", FILE_TYPE_LINK},
        {"fifo", FILE_TYPE_FIFO},   {".hidden", FILE_TYPE_REGULAR},
    };
    EXPECT_EQ(kinds, want);
}

TEST_F(DirReadTest, FillsTimeAndSizeWhenAsked) {
    auto entries = read_all(FS_DIR_FLAG_STAT);
    ASSERT_EQ(entries.size(), 8u);
    EXPECT_EQ(entries["file"].size, 11u);
    EXPECT_EQ(entries["file"].mtime, 1111111111);
    EXPECT_EQ(entries["sub"].mtime, 1222222222);
    for (const char* name : {".", "..", "sub", "link", "fifo"}) {
        SCOPED_TRACE(name);
        struct stat st = lstat_of(p("dir/") + name);
        EXPECT_EQ(entries[name].size, static_cast<uint64_t>(st.st_size));
        EXPECT_EQ(entries[name].mtime, st.st_mtime);
    }
    // A link whose target is gone does not exist for FSStat.
    EXPECT_EQ(entries["dangling"].size, 0u);
    EXPECT_EQ(entries["dangling"].mtime, 0);
}

TEST_F(DirReadTest, OpenFailuresAreLogged) {
    struct {
        std::string path, reason;
    } cases[] = {{p("dir/file"), "Not a directory"}, {p("missing"), "No such file or directory"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        DIR_HANDLE h;
        EXPECT_EQ(FSOpenDir(c.path, 0, h), -1);
        EXPECT_EQ(h.dir, nullptr);
        EXPECT_LOGGED(kErr + "FSOpenDir: Failed to open directory '" + re(c.path) + "'\\. " + c.reason);
    }
}

// ---------------------------------------------------------------------------------------------
// Temporary files and names

TEST_F(FileOpTest, FSMktempCreatesAnEmptyFile) {
    umask(077);
    std::set<std::string> made;
    for (int i = 0; i < 5; ++i) {
        ustring out;
        ASSERT_EQ(FSMktemp(tmp_.path(), out), 0);
        std::string path = out.c_str();
        EXPECT_TRUE(std::regex_match(path, std::regex(re(tmp_.path()) + "/[A-Za-z0-9]{6}"))) << path;
        struct stat st = lstat_of(path);
        EXPECT_TRUE(S_ISREG(st.st_mode));
        EXPECT_EQ(st.st_size, 0);
        EXPECT_EQ(st.st_mode & 07777, 0644u);
        made.insert(path);
    }
    EXPECT_EQ(made.size(), 5u);
}

TEST_F(FileOpTest, FSMktempInAMissingFolder) {
    ustring out;
    EXPECT_EQ(FSMktemp(p("missing"), out), -1);
    // The template as formed, not the names mkstemp tried.
    EXPECT_LOGGED(kErr + "mkstemp\\(" + re(p("missing")) + "/XXXXXX\\): No such file or directory");
}

TEST_F(FileOpTest, FSCreateTempPathOnlyMakesAName) {
    std::set<std::string> names;
    for (const std::string& dir : {tmp_.path(), p("not/there")}) {
        for (int i = 0; i < 20; ++i) {
            ustring out;
            ASSERT_EQ(FSCreateTempPath(dir, out), 0);
            std::string path = out.c_str();
            EXPECT_TRUE(std::regex_match(path, std::regex(re(dir) + "/[" + kNameAlphabet + "]{8}"))) << path;
            names.insert(path);
        }
    }
    EXPECT_EQ(names.size(), 40u);
    EXPECT_TRUE(snapshot(tmp_.path()).empty());
}

// ---------------------------------------------------------------------------------------------
// Times

TEST_F(FileOpTest, FSUTimeSetsBothTimes) {
    write_file(p("file"), "x");
    make_dir(p("dir"));
    for (const std::string& path : {p("file"), p("dir")}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(FSUTime(path, 1000000000, 1100000000), 0);
        struct stat st = lstat_of(path);
        EXPECT_EQ(st.st_atime, 1000000000);
        EXPECT_EQ(st.st_mtime, 1100000000);
    }
    EXPECT_EQ(FSUTime(p("missing"), 1, 2), -1);
    EXPECT_FALSE(exists(p("missing")));
}

TEST_F(FileOpTest, FSTimeEqualHasNoTolerance) {
    struct {
        long a, b;
        bool equal;
    } cases[] = {
        {0, 0, true},   {1100000000, 1100000000, true}, {-5, -5, true},     {LONG_MAX, LONG_MAX, true},
        {5, 6, false},  {6, 5, false},                  {10, 12, false},    {1, -1, false},
        {0, LONG_MIN, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.a) + " vs " + std::to_string(c.b));
        EXPECT_EQ(FSTimeEqual(c.a, c.b), c.equal);
    }
}

// ---------------------------------------------------------------------------------------------
// Probes

TEST_F(FileOpTest, IsFileLockedReportsOnlyPermissionRefusals) {
    write_file(p("plain"), "x");
    ASSERT_EQ(chmod(p("plain").c_str(), 0644), 0);
    write_file(p("program"), "x");
    ASSERT_EQ(chmod(p("program").c_str(), 0755), 0);

    struct {
        std::string path;
        int mode;
        bool locked;
    } cases[] = {
        {p("plain"), F_OK, false},
        {p("plain"), R_OK | W_OK, false},
        {p("plain"), X_OK, true},  // EACCES even for root without any execute bit
        {p("program"), X_OK, false},
        {p("missing"), F_OK, false},  // ENOENT is no lock
        {p("missing"), R_OK, false},
        {p("plain/below"), R_OK, false},  // ENOTDIR neither
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path + " mode " + std::to_string(c.mode));
        EXPECT_EQ(isFileLocked(c.path, c.mode), c.locked);
    }

    write_file(p("frozen"), "x");
    Immutable guard(p("frozen"));
    REQUIRE_IMMUTABLE(guard);
    EXPECT_TRUE(isFileLocked(p("frozen"), W_OK));  // EPERM
    EXPECT_FALSE(isFileLocked(p("frozen"), R_OK));
}

TEST_F(FileOpTest, IsFileLockedForAnUnprivilegedUser) {
    REQUIRE_ROOT();
    open_for_nobody();
    write_file(p("private"), "x");
    ASSERT_EQ(chmod(p("private").c_str(), 0600), 0);
    write_file(p("shared"), "x");
    ASSERT_EQ(chmod(p("shared").c_str(), 0644), 0);

    int status = as_nobody([&] {
        int bits = 0;
        bits |= isFileLocked(p("private"), R_OK) ? 1 : 0;
        bits |= isFileLocked(p("shared"), W_OK) ? 2 : 0;
        bits |= isFileLocked(p("shared"), R_OK) ? 4 : 0;
        bits |= isFileLocked(p("missing"), R_OK) ? 8 : 0;
        return bits;
    });
    ASSERT_NE(status, kChildSetupFailed);
    ASSERT_GE(status, 0);
    EXPECT_TRUE(status & 1) << "cannot read a private file";
    EXPECT_TRUE(status & 2) << "cannot write someone else's file";
    EXPECT_FALSE(status & 4) << "may read a shared file";
    EXPECT_FALSE(status & 8) << "a missing file is not locked";
}

TEST_F(FileOpTest, LocalDisksAreNeitherNetworkSharesNorMSDOS) {
    for (const std::string& path : {tmp_.path(), std::string("/dev/shm"), std::string("/")}) {
        SCOPED_TRACE(path);
        EXPECT_FALSE(isMountPoint(path));
        EXPECT_FALSE(IsMSDOS(path));
    }
    EXPECT_NOT_LOGGED(kWarn + ".*");
    EXPECT_NOT_LOGGED(kErr + ".*");
}

TEST_F(FileOpTest, FileSystemProbesOfAMissingPath) {
    const std::string missing = p("missing");
    EXPECT_FALSE(isMountPoint(missing));
    EXPECT_LOGGED(kErr + "isMountPoint: Failed to get file system info '" + re(missing) + "'\\. No such file or directory");
    EXPECT_FALSE(IsMSDOS(missing));
    EXPECT_LOGGED(kErr + "IsSupportLargeFile: Failed to get file system info '" + re(missing) +
                  "'\\. No such file or directory");
    EXPECT_NOT_LOGGED(kWarn + ".*");
}

// ---------------------------------------------------------------------------------------------
// FSGetRealPath

TEST_F(FileOpTest, FSGetRealPathGivesTheStoredForm) {
    make_dir(p("Dir"));
    write_file(p("Dir/Read Me.TXT"), "x");
    write_file(p("Dir/caf" + kEacuteNFD), "x");

    struct {
        std::string ask, stored;
    } cases[] = {
        {p("Dir/Read Me.TXT"), p("Dir/Read Me.TXT")},
        {p("dir/READ ME.txt"), p("Dir/Read Me.TXT")},
        {p("DIR/CAF" + kEacuteNFC), p("Dir/caf" + kEacuteNFD)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.ask);
        ustring path = c.ask;
        EXPECT_EQ(FSGetRealPath(path), 0);
        EXPECT_EQ(std::string(path.c_str()), c.stored);
        EXPECT_LOGGED(kDbg + " org path \\[" + re(c.ask) + "\\]");
        EXPECT_LOGGED(kDbg + " get full path \\[" + re(c.stored) + "\\]");
    }
}

TEST_F(FileOpTest, FSGetRealPathLeavesUnresolvablePathsAlone) {
    write_file(p("foo"), "lower");
    write_file(p("FOO"), "upper");
    for (const std::string& ask : {p("missing"), p("fOo"), p("foo/below")}) {
        SCOPED_TRACE(ask);
        ustring path = ask;
        EXPECT_EQ(FSGetRealPath(path), -1);
        EXPECT_EQ(std::string(path.c_str()), ask);
        EXPECT_LOGGED(kDbg + " org path \\[" + re(ask) + "\\]");
    }
    EXPECT_NOT_LOGGED(kDbg + " get full path .*");
}

TEST_F(FileOpTest, FSInitDoesNothing) {
    EXPECT_EQ(FSInit(p("missing")), 0);
    EXPECT_EQ(FSInit(""), 0);
    EXPECT_EQ(FSInit(tmp_.path()), 0);
    EXPECT_TRUE(snapshot(tmp_.path()).empty());
}

}  // namespace
