// File operations on real files, folders, links and special files, and the lines they log. As
// root, refusals come from a missing execute bit or the immutable flag.
#include "file-op.h"

#include <dirent.h>

#include <cstring>
#include <ctime>
#include <functional>
#include <regex>
#include <vector>

#include <gtest/gtest.h>

#include "log.h"
#include "test-support.h"

namespace {

using namespace testsupport;

const std::string kEacuteNFC = "\xC3\xA9", kEacuteNFD = "e\xCC\x81";
const std::string kErr = R"(\[ERROR\] file-op\.cpp\(\d+\): )", kDbg = R"(\[DEBUG\] file-op\.cpp\(\d+\): )";

std::string re(const std::string& literal) {
    return std::regex_replace(literal, std::regex(R"([\\^$.|?*+()\[\]{}])"), R"(\$&)");
}

struct stat lstat_of(const std::string& path) {
    struct stat st = {};
    return lstat(path.c_str(), &st) == 0 ? st : throw std::runtime_error("lstat failed: " + path);
}
mode_t perms(const std::string& path) { return lstat_of(path).st_mode & 07777; }

void expect_tree(const std::string& root, const Tree& tree) {
    for (const auto& [rel, content] : tree)
        EXPECT_EQ(is_dir(root + rel) ? "/" : exists(root + rel) ? read_file(root + rel) : "(missing)", content) << rel;
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override {
        saved_umask_ = umask(022);
        write_file(logdir_ / "levels", "file_op_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logdir_ / "log", logdir_ / "levels", 50), 0);
    }
    void TearDown() override { umask(saved_umask_); }
    std::string p(const std::string& rel) const { return tmp_ / rel; }

    // Index of the first log line whose message, behind the time prefix, is all of message_re.
    int logged(const std::string& message_re) const {
        std::istringstream in(read_file(logdir_ / "log"));
        const std::regex full(R"(\w{3} \d{2} \d{2}:\d{2}:\d{2} )" + message_re);
        int i = 0;
        for (std::string line; std::getline(in, line); ++i)
            if (std::regex_match(line, full)) return i;
        return -1;
    }

    TempDir logdir_, tmp_;
    mode_t saved_umask_ = 022;
};
#define EXPECT_LOGGED(message_re) \
    EXPECT_GE(logged(message_re), 0) << (message_re) << " not in:\n" << read_file(logdir_ / "log")

TEST_F(FileOpTest, GetFileInfoFSStatAndEquality) {
    make_tree(tmp_.path(), {{"/data", "12345"}, {"/dir", "/"}, {"/link", "->data"}, {"/dangling", "->nowhere"}});
    ASSERT_TRUE(mkfifo(p("fifo").c_str(), 0600) == 0 && mknod(p("sock").c_str(), S_IFSOCK | 0600, 0) == 0);
    const std::pair<std::string, uint32_t> kinds[] = {
        {p("data"), FILE_TYPE_REGULAR}, {p("dir"), FILE_TYPE_DIR},     {p("link"), FILE_TYPE_LINK},
        {p("dangling"), FILE_TYPE_LINK}, {p("fifo"), FILE_TYPE_FIFO},   {p("sock"), FILE_TYPE_SOCKET},
        {"/dev/null", FILE_TYPE_DEVICE}};
    for (const auto& [path, type] : kinds) {
        _FILE_INFO_tag info;
        const struct stat st = lstat_of(path);  // links are described, not followed
        ASSERT_EQ(GetFileInfo(path, info), 0) << path;
        EXPECT_EQ(info.type, type) << path;
        EXPECT_TRUE(info.exists && info.path == ustring(path) && info.size == static_cast<uint64_t>(st.st_size) &&
                    info.mtime == st.st_mtime && info.mode == st.st_mode && info.uid == st.st_uid &&
                    info.gid == st.st_gid) << path;
    }

    _FILE_INFO_tag info = {"", "", 9, 9, 9, true, 9, 9, 9};
    const time_t before = time(nullptr);
    ASSERT_EQ(GetFileInfo(p("missing"), info), 0);
    EXPECT_TRUE(!info.exists && info.type == FILE_TYPE_REGULAR && info.size == 0 && info.uid == 0 && info.mode == 0);
    EXPECT_TRUE(info.mtime >= before && info.mtime <= time(nullptr) && info.path == ustring(p("missing")));
    info.path = "kept";
    EXPECT_EQ(GetFileInfo(p("data/below"), info), -1);
    EXPECT_EQ(FSStat("", info, false), -1);
    for (const std::string& absent : {p("missing"), p("dangling"), p("DATA")}) {
        info.exists = true;
        EXPECT_EQ(FSStat(absent, info, true), 0);
        EXPECT_TRUE(!info.exists && info.path == ustring("kept")) << absent << ": only exists is set";
    }
    _FILE_INFO_tag direct, other;
    ASSERT_TRUE(GetFileInfo(p("data"), direct) == 0 && FSStat(p("data"), other, true) == 0);
    EXPECT_TRUE(other == direct && other.exists && other.size == 5);

    // Equality leaves out uid, gid and mode only.
    other.uid = other.gid = other.mode = 77;
    EXPECT_TRUE(other == direct && !(other != direct));
    const std::function<void(_FILE_INFO_tag&)> changes[] = {
        [](auto& i) { i.exists = false; }, [](auto& i) { i.size++; },         [](auto& i) { i.mtime++; },
        [](auto& i) { i.type++; },         [](auto& i) { i.path = "p"; }, [](auto& i) { i.aux_text = "x"; }};
    for (const auto& change : changes) {
        other = direct;
        change(other);
        EXPECT_TRUE(other != direct && !(other == direct));
    }
}

TEST_F(FileOpTest, IsFileExistAndFSGetRealPath) {
    make_tree(tmp_.path(), {{"/Dir", "/"}, {"/Dir/Read Me.TXT", "x"}, {"/Dir/caf" + kEacuteNFD, "x"}, {"/foo", "x"},
                            {"/FOO", "x"}, {"/caf" + kEacuteNFC, "x"}, {"/dangling", "->nowhere"}});
    const std::string input = kDbg + re("Input file path = [" + p("foo") + "].");
    ASSERT_TRUE(IsFileExist(p("foo"), false));
    ASSERT_EQ(logged(input), -1) << "only the exact-case check logs";
    ASSERT_TRUE(IsFileExist(p("foo"), true));
    const int a = logged(input), b = logged(kDbg + re("FSRefMakePath outTargetPath path = [" + p("foo") + "]."));
    EXPECT_TRUE(a >= 0 && b == a + 1 && logged(kDbg + re("File exist.")) == b + 1) << read_file(logdir_ / "log");
    // Paths are asked for in NFC, so an NFD name is not found on this disk.
    const std::pair<std::string, bool> exist[] = {{p("caf" + kEacuteNFD), true}, {p("Dir/caf" + kEacuteNFD), false},
        {p("fOo"), false}, {p("dangling"), false}, {p("foo/below"), false}, {"", false}};
    for (const auto& [path, found] : exist)
        for (bool exact : {false, true}) EXPECT_EQ(IsFileExist(path, exact), found) << path << exact;

    const std::pair<std::string, std::string> stored[] = {{p("Dir/Read Me.TXT"), p("Dir/Read Me.TXT")},
        {p("dir/READ ME.txt"), p("Dir/Read Me.TXT")}, {p("DIR/CAF" + kEacuteNFC), p("Dir/caf" + kEacuteNFD)},
        {p("fOo"), ""}, {p("missing"), ""}};  // "": foo and FOO both match, or nothing does
    for (const auto& [ask, form] : stored) {
        ustring path = ask;
        EXPECT_EQ(FSGetRealPath(path), form.empty() ? -1 : 0) << ask;
        EXPECT_EQ(std::string(path.c_str()), form.empty() ? ask : form);
        EXPECT_LOGGED(kDbg + re(" org path [" + ask + "]"));
        EXPECT_TRUE(form.empty() || logged(kDbg + re(" get full path [" + form + "]")) >= 0) << form;
    }
    EXPECT_LOGGED(kErr + "FSPathMakeRef: -43");
}

std::string pattern_bytes(size_t n) {
    std::string s(n, '\0');
    for (size_t i = 0; i < n; ++i) s[i] = static_cast<char>((i * 2654435761u) >> 13);
    return s;
}

TEST_F(FileOpTest, FSCopy) {
    for (const std::string& content : {std::string(), std::string("a\0b\n", 4), pattern_bytes((32u << 20) + 4097)}) {
        write_file(p("src"), content);
        ASSERT_EQ(chmod(p("src").c_str(), 0600), 0);
        ASSERT_EQ(FSCopy(p("src"), p("dst"), false), 0);
        EXPECT_TRUE(read_file(p("dst")) == content && exists(p("src"))) << content.size() << " bytes";
    }
    EXPECT_EQ(perms(p("dst")), 0644u) << "0666 under the umask, not the source's mode";
    write_file(p("dst"), "an older and longer content");
    write_file(p("src"), "new");
    ASSERT_EQ(FSCopy(p("src"), p("dst"), true), 0);
    EXPECT_TRUE(read_file(p("dst")) == "new" && !exists(p("src")));

    EXPECT_EQ(FSCopy(p("missing"), p("x"), true), -1);
    EXPECT_LOGGED(kErr + re("CopyFile: open(" + p("missing") + "): No such file or directory (2)"));
    EXPECT_EQ(FSCopy(p("dst"), p("nodir/x"), true), -1);
    EXPECT_LOGGED(kErr + re("CopyFile: open(" + p("nodir/x") + "): No such file or directory (2)"));
    make_dir(p("dir"));
    EXPECT_TRUE(FSCopy(p("dir"), p("x"), true) == -1 && is_dir(p("dir")));
    EXPECT_LOGGED(kErr + re("CopyFile: read: Is a directory (21)"));

    // The source goes only once the copy is complete.
    EXPECT_EQ(FSCopy(p("dst"), "/dev/full", true), -2);
    EXPECT_EQ(read_file(p("dst")), "new");
    EXPECT_LOGGED(kErr + re("CopyFile: write: No space left on device (28)"));
    make_tree(p("locked"), {{"", "/"}, {"/src", "payload"}});
    if (!set_immutable(p("locked"), true)) GTEST_SKIP() << "no immutable flag here";
    EXPECT_EQ(FSCopy(p("locked/src"), p("copy"), true), -1) << "the source cannot be removed";
    EXPECT_EQ(read_file(p("copy")), "payload");
    EXPECT_LOGGED(kErr + re("FSCopy: remove(" + p("locked/src") + "): Operation not permitted (1)"));
}

TEST_F(FileOpTest, FSRenameOnOneFileSystem) {
    const Tree tree = {{"", "/"}, {"/sub", "/"}, {"/sub/leaf", "leaf"}, {"/top", "top"}};
    make_tree(p("tree"), tree);
    make_tree(tmp_.path(), {{"/file", "f"}, {"/full", "/"}, {"/full/x", "x"}});
    const std::tuple<std::string, std::string, int> cases[] = {
        {"", p("x"), -1},          {p("file"), "", -1},   {p("missing"), p("x"), -2}, {p("FILE"), p("x"), -2},
        {p("file/below"), p("x"), -2}, {p("file"), p(std::string(256, 'n')), -100}, {p("tree"), p("full"), -3},
        {p("file"), p("nodir/file"), -3}, {p("tree"), p("tree/self"), -3}};
    for (const auto& [from, to, result] : cases) {
        EXPECT_EQ(FSRename(from, to, true), result) << from << " -> " << to;
        EXPECT_EQ(read_file(p("file")), "f");
    }
    EXPECT_TRUE(FSRename(p("tree"), p("full/tree"), true) == 0 && !exists(p("tree")));
    expect_tree(p("full/tree"), tree);
}

// /dev/shm is tmpfs; the temporary folder usually is not.
TEST_F(FileOpTest, FSRenameAcrossFileSystems) {
    TempDir shm("/dev/shm");
    if (lstat_of(shm.path()).st_dev == lstat_of(tmp_.path()).st_dev) GTEST_SKIP() << "one file system only";
    const Tree tree = {{"", "/"},    {"/x", "x"},     {"/b", "/"},      {"/b/y", pattern_bytes(300000)},
                       {"/e", "/"}, {"/b/c", "/"}, {"/b/c/z", "z"}, {"/.hidden", "h"}};
    make_tree(p("tree"), tree);
    ASSERT_TRUE(FSRename(p("tree"), shm / "moved", false) == 0 && !exists(p("tree")));
    expect_tree(shm / "moved", tree);
    ASSERT_EQ(FSRename(shm / "moved/b/y", p("y"), true), 0);
    EXPECT_TRUE(!exists(shm / "moved/b/y") && read_file(p("y")) == tree.at("/b/y"));

    ASSERT_EQ(mkfifo(p("fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSRename(p("fifo"), shm / "fifo", false), 0) << "other kinds are not carried";
    EXPECT_TRUE(exists(p("fifo")) && !exists(shm / "fifo"));
}

TEST_F(FileOpTest, FSMKDir) {
    EXPECT_EQ(FSMKDir("", false), -1);
    EXPECT_EQ(FSMKDir(p("one"), false), 0);
    EXPECT_EQ(FSMKDir(p("a/b/c"), true), 0);
    EXPECT_TRUE(perms(p("one")) == 0755 && perms(p("a/b")) == 0755 && perms(p("a/b/c")) == 0755);
    EXPECT_EQ(FSMKDir(p("x/y"), false), -2);
    ASSERT_EQ(chmod(p("one").c_str(), 0710), 0);
    EXPECT_TRUE(FSMKDir(p("one"), true) == 0 && perms(p("one")) == 0710) << "an existing folder is left alone";

    make_tree(tmp_.path(), {{"/file", "keep"}, {"/link", "->one"}});
    for (bool parents : {false, true})
        for (const char* bad : {"file", "link", "file/below"}) EXPECT_EQ(FSMKDir(p(bad), parents), -1) << bad;
    const std::string not_dir = "FSMKDir: Create a folder but local file system is not directory '";
    EXPECT_LOGGED(kErr + re(not_dir + p("file") + "' (1)"));
    EXPECT_LOGGED(kErr + re(not_dir + p("link") + "' (3)"));
    EXPECT_LOGGED(kErr + re("FSMKDir: Failed to to file info '" + p("file/below") + "'"));

    FSInitialize(65534, 65533);
    EXPECT_TRUE(FSMKDir(p("owned/deep"), true) == 0 && FSMKDir(p("owned/flat"), false) == 0);
    FSInitialize(UINT32_MAX, UINT32_MAX);
    for (const char* d : {"owned", "owned/deep", "owned/flat"})
        EXPECT_TRUE(lstat_of(p(d)).st_uid == 65534 && lstat_of(p(d)).st_gid == 65533) << d;
}

TEST_F(FileOpTest, FSMKDirP) {
    // A file put in the way, the path, force, result, errno, the prefix of path that stop_pos is behind.
    const std::tuple<std::string, std::string, bool, int, int, std::string> cases[] = {
        {"f", "a/b/c", false, 0, 0, "a/b/c"},      {"f", "a/b/", false, 0, 0, "a/b/"},
        {"a/b", "a/b/c", false, -1, ENOTDIR, "a/b"}, {"a/b", "a/b", false, -1, EEXIST, "a/b"},
        {"a/b", "a/b/", false, -1, EEXIST, "a/b"},  {"a/b", "a/b/c", true, 0, 0, "a/b/c"},
        {"a/b", "a/b", true, 0, 0, "a/b"},          {"f", "link/new", false, 0, 0, "link/new"},  // through links
        {"f", "a/" + std::string(300, 'n') + "/c", false, -1, ENAMETOOLONG, "a/" + std::string(300, 'n')},
    };
    for (const auto& [file, rel, force, result, err, stop_behind] : cases) {
        SCOPED_TRACE(rel + (force ? " forced" : ""));
        TempDir dir;
        make_tree(dir.path(), {{"/a", "/"}, {"/" + file, "file"}, {"/link", "->a"}});
        const ustring path = dir / rel;
        char* stop = nullptr;
        EXPECT_EQ(FSMKDirP(path, &stop, force, 0xFFFF), result);
        EXPECT_TRUE(result == 0 || (errno == err && read_file(dir / file) == "file")) << strerror(errno);
        EXPECT_EQ(stop - path.c_str(), static_cast<long>(dir.path().size() + 1 + stop_behind.size()));
        EXPECT_EQ(is_dir(dir / rel), result == 0);
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);

    // An explicit mode is used exactly, whatever the umask, which is restored afterwards.
    for (unsigned short mode : {0700, 0777, 0751}) {
        const std::string top = p("m" + std::to_string(mode));
        ASSERT_EQ(FSMKDirP(top + "/inner", nullptr, false, mode), 0);
        EXPECT_TRUE(perms(top) == mode && perms(top + "/inner") == mode) << mode;
        EXPECT_EQ(umask(022), 022u);
    }
    umask(077);
    ASSERT_EQ(FSMKDirP(p("d/inner"), nullptr, false, 0xFFFF), 0);
    EXPECT_TRUE(perms(p("d")) == 0700 && perms(p("d/inner")) == 0700);
    EXPECT_EQ(umask(022), 077u);
}

// Each folder, then its entries as readdir gives them, subfolders walked where they appear.
void disk_order(const std::string& dir, std::vector<std::string>& out) {
    out.push_back(dir);
    DIR* d = opendir(dir.c_str());
    while (const dirent* e = readdir(d)) {
        const std::string name = e->d_name, child = dir + "/" + name;
        if (name != "." && name != "..") is_dir(child) ? disk_order(child, out) : out.push_back(child);
    }
    closedir(d);
}

TEST_F(FileOpTest, TraverseDirAndFSRemove) {
    // Links are passed to the callback, not walked.
    make_tree(p("a"), {{"", "/"}, {"/x", "x"}, {"/b", "/"}, {"/b/y", "y"}, {"/b/c", "/"}, {"/b/c/z", "z"}, {"/w", "w"},
                       {"/.hidden", "h"}, {"/b/..odd", "o"}, {"/link", "->b"}, {"/b/c/out", "->../../x"}});
    std::vector<std::string> expected;
    disk_order(p("a"), expected);
    ASSERT_EQ(expected.size(), 11u);
    using Walk = std::pair<std::vector<std::string>, size_t>;  // paths seen, stop after that many
    const TraverseCallback record = [](const ustring& path, void* walk) {
        static_cast<Walk*>(walk)->first.push_back(path.c_str());
        return int(static_cast<Walk*>(walk)->first.size() == static_cast<Walk*>(walk)->second);
    };
    for (size_t k = 1; k <= expected.size() + 1; ++k) {
        Walk w = {{}, k};
        EXPECT_EQ(TraverseDir(p("a"), record, &w), k <= expected.size() ? -2 : 0) << k;
        EXPECT_EQ(w.first, std::vector<std::string>(expected.begin(), expected.begin() + std::min(k, expected.size())));
    }
    Walk w = {{}, 0};
    for (const std::string& bad : {std::string(), p("missing"), p("a/x"), p("a/link")})
        EXPECT_EQ(TraverseDir(bad, record, &w), -1) << bad;
    EXPECT_EQ(TraverseDir(p("a"), nullptr, &w), -1);
    EXPECT_TRUE(w.first.empty());

    EXPECT_TRUE(FSRemove("") == -1 && FSRemove(p("missing")) == 0 && FSRemove(p("a/x/below")) == -1);
    make_link("a/b", p("link"));
    EXPECT_TRUE(FSRemove(p("link")) == 0 && !exists(p("link")) && exists(p("a/b/y"))) << "only the link goes";
    ASSERT_EQ(mkfifo(p("a/b/fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSRemove(p("a/b")), 0);
    EXPECT_TRUE(!exists(p("a/b")) && exists(p("a/x")));
    if (!set_immutable(p("a/w"), true)) GTEST_SKIP() << "no immutable flag here";
    EXPECT_TRUE(FSRemove(p("a/w")) == -3 && FSRemove(p("a")) == -3 && exists(p("a/w")));
    ASSERT_TRUE(set_immutable(p("a/w"), false));
    EXPECT_TRUE(FSRemove(p("a")) == 0 && !exists(p("a")));
}

TEST_F(FileOpTest, FSOpenDirAndFSReadDir) {
    make_tree(p("dir"), {{"", "/"}, {"/file", "eleven byte"}, {"/sub", "/"}, {"/dangling", "->nowhere"}});
    ASSERT_TRUE(FSUTime(p("dir/file"), 1000000000, 1111111111) == 0 && FSUTime(p("missing"), 1, 2) == -1);
    ASSERT_EQ(mkfifo(p("dir/fifo").c_str(), 0600), 0);
    const std::map<std::string, uint32_t> kinds = {{".", FILE_TYPE_DIR}, {"..", FILE_TYPE_DIR}, {"sub", FILE_TYPE_DIR},
        {"file", FILE_TYPE_REGULAR}, {"dangling", FILE_TYPE_LINK}, {"fifo", FILE_TYPE_FIFO}};
    for (int flags : {0, int{FS_DIR_FLAG_STAT}}) {
        DIR_HANDLE h;
        ASSERT_EQ(FSOpenDir(p("dir"), flags, h), 0);
        std::map<std::string, DIR_ENTRY> got;
        DIR_ENTRY e;
        for (int r; (r = FSReadDir(h, e)) != 0 && got.size() < 20; got[e.name.c_str()] = e) ASSERT_EQ(r, 1);
        FSCloseDir(h);
        EXPECT_TRUE(h.dir == nullptr && h.path.empty() && got.size() == 6);
        for (const auto& [name, type] : kinds) {
            const struct stat st = lstat_of(p("dir/") + name);
            const bool filled = flags && name != "dangling";  // FSStat follows links
            EXPECT_TRUE(got[name].type == type && got[name].size == (filled ? static_cast<uint64_t>(st.st_size) : 0) &&
                        got[name].mtime == (filled ? st.st_mtime : 0)) << name << " flags " << flags;
        }
        EXPECT_EQ(got["file"].mtime, flags ? 1111111111 : 0);
    }
    DIR_HANDLE h;
    EXPECT_EQ(FSOpenDir(p("dir/file"), 0, h), -1);
    EXPECT_LOGGED(kErr + re("FSOpenDir: Failed to open directory '" + p("dir/file") + "'. Not a directory"));
}

TEST_F(FileOpTest, TemporaryFilesAndNames) {
    umask(077);
    ustring out;
    ASSERT_EQ(FSMktemp(tmp_.path(), out), 0);
    EXPECT_TRUE(std::regex_match(out.c_str(), std::regex(re(tmp_.path()) + "/[A-Za-z0-9]{6}"))) << out.c_str();
    const struct stat st = lstat_of(out.c_str());
    EXPECT_TRUE(S_ISREG(st.st_mode) && st.st_size == 0 && (st.st_mode & 07777) == 0644);
    EXPECT_EQ(FSMktemp(p("missing"), out), -1);
    EXPECT_LOGGED(kErr + re("mkstemp(" + p("missing") + "/XXXXXX): No such file or directory"));
    ASSERT_EQ(FSCreateTempPath(p("not/there"), out), 0);
    EXPECT_TRUE(std::regex_match(out.c_str(), std::regex(re(p("not/there")) + "/[0-9a-zA-Z_-]{8}"))) << out.c_str();
    EXPECT_FALSE(exists(p("not")));
}

TEST_F(FileOpTest, Probes) {
    make_tree(tmp_.path(), {{"/plain", "x"}, {"/program", "x"}});
    ASSERT_EQ(chmod(p("program").c_str(), 0755), 0);
    const std::tuple<std::string, int, bool> cases[] = {
        {p("plain"), R_OK | W_OK, false}, {p("plain"), X_OK, true},  // no x bit stops even root
        {p("program"), X_OK, false},      {p("missing"), R_OK, false}, {p("plain/below"), R_OK, false}};
    for (const auto& [path, mode, locked] : cases) EXPECT_EQ(isFileLocked(path, mode), locked) << path << " " << mode;

    EXPECT_FALSE(isMountPoint(tmp_.path()) || IsMSDOS(tmp_.path()) || isMountPoint("/dev/shm") || IsMSDOS("/"));
    EXPECT_FALSE(isMountPoint(p("missing")) || IsMSDOS(p("missing")));
    const std::string info = "Failed to get file system info '" + p("missing") + "'. No such file or directory";
    EXPECT_LOGGED(kErr + re("isMountPoint: " + info));
    EXPECT_LOGGED(kErr + re("IsSupportLargeFile: " + info));
    if (!set_immutable(p("plain"), true)) GTEST_SKIP() << "no immutable flag here";
    EXPECT_TRUE(isFileLocked(p("plain"), W_OK));  // EPERM
}

}  // namespace
