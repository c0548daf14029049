// File operations on real files, folders, links and special files, and the lines they log. As
// root, refusals come from a missing execute bit or the immutable flag.
#include "file-op.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <csignal>
#include <regex>
#include <thread>

#include "log.h"
#include "test-support.h"

namespace {
using namespace testsupport;
using Info = _FILE_INFO_tag;
using S = std::string;
using std::make_tuple;
const S kNFC = "caf\xC3\xA9", kNFD = "cafe\xCC\x81";

struct stat stat_of(const S& path) { struct stat st = {}; lstat(path.c_str(), &st); return st; }
mode_t perms(const S& path) { return stat_of(path).st_mode & 07777; }
S line(const S& message) {  // the regex of an error line, time prefix included, with the message as it is
    return R"(\w{3} \d{2} \d{2}:\d{2}:\d{2} \[ERROR\] file-op\.cpp\(\d+\): )" +
           std::regex_replace(message, std::regex(R"([\\^$.|?*+()\[\]{}])"), R"(\$&)") + "\n";
}

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override {
        umask(022);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logs / "log", "", 50), 0);
    }
    S p(const S& rel) const { return tmp / rel; }
    S log() const { return read_file(logs / "log"); }
    TempDir logs, tmp;
};
#define EXPECT_LOGGED(lines) EXPECT_TRUE(std::regex_search(log(), std::regex("(^|\n)" + (lines)))) << log()

TEST_F(FileOpTest, EntriesAreDescribedAndListedWithoutFollowingLinksAndFoundByTheirStoredCaseAndForm) {
    make_tree(tmp.path(), {{"/data", "12345"}, {"/Dir", "/"}, {"/Dir/" + kNFD, "x"}, {"/FOO", "x"}, {"/foo", "x"},
                           {"/" + kNFC, "x"}, {"/link", "->data"}, {"/dangling", "->nowhere"}});
    ASSERT_TRUE(mkfifo(p("fifo").c_str(), 0600) == 0 && mknod(p("sock").c_str(), S_IFSOCK | 0600, 0) == 0);
    Info i;
    for (const auto& [path, type] : std::map<S, uint32_t>{{p("data"), FILE_TYPE_REGULAR}, {p("Dir"), FILE_TYPE_DIR},
             {p("link"), FILE_TYPE_LINK}, {p("dangling"), FILE_TYPE_LINK}, {p("fifo"), FILE_TYPE_FIFO},
             {p("sock"), FILE_TYPE_SOCKET}, {"/dev/null", FILE_TYPE_DEVICE}})
        EXPECT_TRUE(GetFileInfo(path, i) == 0 && i.type == type && i.exists && i.path == ustring(path) &&
                    i.mode == stat_of(path).st_mode && i.size == uint64_t(stat_of(path).st_size)) << path;
    EXPECT_TRUE(GetFileInfo(p("missing"), i) == 0 && !i.exists && GetFileInfo(p("data/in"), i) == -1);
    for (const S& absent : {p("missing"), p("dangling"), p("DATA")})
        EXPECT_TRUE(FSStat(absent, i, true) == 0 && !i.exists && FSStat("", i, false) == -1) << absent;
    const Info a = {"p", "t", 1, 2, 3, true, 4, 5, 6};  // equality leaves out uid, gid and mode, not aux_text
    EXPECT_TRUE((a == Info{"p", "t", 1, 2, 3, true} && a != Info{"p", "u", 1, 2, 3, true}));
    // This disk keeps names in the form they were given; either form finds them.
    for (const auto& [path, found] : std::map<S, bool>{{p("foo"), true}, {p(kNFD), true}, {p("Dir/" + kNFD), true},
             {p("Dir/" + kNFC), true}, {p("dIR/" + kNFC), false}, {p(kNFC + "/in"), false},
             {p("fOo"), false}, {p("dangling"), false}, {p("foo/in"), false}, {"", false}})
        for (bool exact : {false, true}) EXPECT_EQ(IsFileExist(path, exact), found) << path << exact;
    DIR_HANDLE h;
    for (int flags : {0, int{FS_DIR_FLAG_STAT}}) {  // kinds as GetFileInfo tells; sizes and times on request
        int n = 0;
        ASSERT_EQ(FSOpenDir(tmp.path(), flags, h), 0);
        for (DIR_ENTRY e; n < 20 && FSReadDir(h, e) == 1; ++n) {
            const bool filled = flags && e.name != ustring("dangling");  // FSStat follows links
            EXPECT_TRUE(GetFileInfo(tmp / e.name.c_str(), i) == 0 && e.type == i.type &&
                        e.size == (filled ? i.size : 0) && e.mtime == (filled ? i.mtime : 0)) << e.name.c_str();
        }
        FSCloseDir(h);
        EXPECT_TRUE(n == 11 && h.dir == nullptr && h.path.empty());
    }
    ustring ambiguous = p("fOo"), out;  // failures, each logged; fOo matches foo and FOO, so stays as it is
    EXPECT_TRUE(FSGetRealPath(ambiguous) == -1 && ambiguous == ustring(p("fOo")) && FSOpenDir(p("data"), 0, h) == -1 &&
                FSMktemp(p("missing"), out) == -1 && !isMountPoint(p("missing")) && !IsMSDOS(p("missing")));
    const S info = "Failed to get file system info '" + p("missing") + "'. No such file or directory";
    EXPECT_LOGGED(line("FSPathMakeRef: -43") + line("FSOpenDir: Failed to open directory '" + p("data") +
                  "'. Not a directory") + line("mkstemp(" + p("missing") + "/XXXXXX): No such file or directory") +
                  line("isMountPoint: " + info) + line("IsSupportLargeFile: " + info));
    EXPECT_TRUE(FSMktemp(tmp.path(), out) == 0 && perms(out.c_str()) == 0644 && read_file(out.c_str()).empty());
    EXPECT_TRUE(isFileLocked(out.c_str(), X_OK) && !isFileLocked(out.c_str(), R_OK | W_OK));  // no x bit: even root
}

TEST_F(FileOpTest, FSCopyCopiesEveryByteAndAMoveNeverLosesTheFile) {
    const S big = S(90000, 'x') + S(90000, 'y') + "z", binary("a\0b", 3);
    ASSERT_EQ(mkfifo(p("pipe").c_str(), 0600), 0);  // read in many pieces
    std::thread writer([&] { signal(SIGPIPE, SIG_IGN); write_file(p("pipe"), big); });  // a short read fails
    EXPECT_EQ(FSCopy(p("pipe"), p("dst"), false), 0);
    writer.join();
    EXPECT_TRUE(read_file(p("dst")) == big && perms(p("dst")) == 0644) << "0666 under the umask";
    write_file(p("src"), binary);
    EXPECT_TRUE(FSCopy(p("src"), p("dst"), true) == 0 && read_file(p("dst")) == binary && !exists(p("src")));
    make_dir(p("dir"));  // the source goes only once the copy is complete
    for (const auto& [from, to, rc, message] :
         {make_tuple(p("gone"), p("x"), -1, "CopyFile: open(" + p("gone") + "): No such file or directory (2)"),
          make_tuple(p("dst"), p("no/x"), -1, "CopyFile: open(" + p("no/x") + "): No such file or directory (2)"),
          make_tuple(p("dir"), p("x"), -1, S("CopyFile: read: Is a directory (21)")),
          make_tuple(p("dst"), S("/dev/full"), -2, S("CopyFile: write: No space left on device (28)"))}) {
        EXPECT_TRUE(FSCopy(from, to, true) == rc && exists(from) == (from != p("gone"))) << from << " -> " << to;
        EXPECT_LOGGED(line(message));
    }
    make_tree(p("locked"), {{"", "/"}, {"/src", "payload"}});
    if (!set_immutable(p("locked"), true)) GTEST_SKIP() << "no immutable flag here";
    EXPECT_TRUE(FSCopy(p("locked/src"), p("copy"), true) == -1 && read_file(p("copy")) == "payload");
    EXPECT_LOGGED(line("FSCopy: remove(" + p("locked/src") + "): Operation not permitted (1)"));
    EXPECT_TRUE(FSRemove(p("locked/src")) == -3 && FSRemove(p("locked")) == -3 && exists(p("locked/src")));
}

TEST_F(FileOpTest, TreesAreWalkedRemovedAndMovedEvenAcrossFileSystemsOrLeftInPlace) {
    make_tree(tmp.path(), {{"/t", "/"}, {"/t/b", "/"}, {"/t/b/x", "/"}, {"/t/b/x/y", "y"}, {"/u", "/"},
                           {"/u/up", "->.."}, {"/file", "f"}, {"/full", "/"}, {"/full/x", "x"}});
    const TraverseCallback record = [](const ustring& path, void* seen) {  // stops at a name ending in x
        static_cast<S*>(seen)->append(path.c_str()).append(";");
        return int(path.c_str()[path.length() - 1] == 'x');
    };
    S seen;  // each folder holds one entry, so one order; a link is passed to the callback, not walked
    EXPECT_TRUE(TraverseDir(p("t"), record, &seen) == -2 && TraverseDir(p("u"), record, &seen) == 0 &&
                TraverseDir(p("u/up"), record, &seen) == -1 && TraverseDir(p("t"), nullptr, &seen) == -1);
    EXPECT_EQ(seen, p("t") + ";" + p("t/b") + ";" + p("t/b/x") + ";" + p("u") + ";" + p("u/up") + ";");

    ASSERT_TRUE(mkfifo(p("t/b/fifo").c_str(), 0600) == 0 && mkfifo(p("fifo").c_str(), 0600) == 0);
    EXPECT_TRUE(FSRemove("") == -1 && FSRemove(p("missing")) == 0 && FSRemove(p("t/b/x/y/in")) == -1);
    EXPECT_TRUE(FSRemove(p("u/up")) == 0 && !exists(p("u/up")) && FSRemove(p("t/b")) == 0 && !exists(p("t/b")));
    const Tree tree = {{"", "/"}, {"/sub", "/"}, {"/sub/leaf", "leaf"}, {"/empty", "/"}, {"/.hidden", "h"}};
    make_tree(p("tree"), tree);
    for (const auto& [from, to, rc] : {make_tuple(S(), p("x"), -1), make_tuple(p("file"), S(), -1),
             make_tuple(p("missing"), p("x"), -2), make_tuple(p("FILE"), p("x"), -2),
             make_tuple(p("file/in"), p("x"), -2), make_tuple(p("file"), p(S(256, 'n')), -100),
             make_tuple(p("tree"), p("full"), -3), make_tuple(p("file"), p("no/file"), -3),
             make_tuple(p("tree"), p("tree/self"), -3)})
        EXPECT_TRUE(FSRename(from, to, true) == rc && read_file(p("file")) == "f" && is_dir(p("tree/sub"))) << to;
    ASSERT_TRUE(FSRename(p("tree"), p("full/tree"), true) == 0 && !exists(p("tree")));
    make_tree(p("full"), {{"/" + kNFD, "d"}});  // stored decomposed, moved by its composed name
    EXPECT_TRUE(FSRename(p("full/" + kNFC), p("moved"), true) == 0 && read_file(p("moved")) == "d" && !exists(p("full/" + kNFD)));
    TempDir shm("/dev/shm");  // tmpfs: a tree is copied there, then removed here
    if (stat_of(shm.path()).st_dev == stat_of(tmp.path()).st_dev) GTEST_SKIP() << "one file system only";
    const S moved = shm / "tree";
    ASSERT_TRUE(FSRename(p("full/tree"), moved, false) == 0 && !exists(p("full/tree")));
    for (const auto& [rel, content] : tree) EXPECT_EQ(is_dir(moved + rel) ? "/" : read_file(moved + rel), content);
    EXPECT_TRUE(FSRename(p("fifo"), shm / "f", false) == 0 && exists(p("fifo")) && !exists(shm / "f")) << "not carried";
}

// What the launcher extracted it can remove, whatever modes the package gave its folders; as a normal user,
// for whom a folder of mode 000 cannot be listed or emptied until its owner gives itself the right back.
TEST_F(FileOpTest, FSRemoveRemovesAnOwnTreeWhateverItsModes) {
    make_tree(tmp.path(), {{"/t", "/"}, {"/t/none", "/"}, {"/t/none/f", "x"}, {"/t/read", "/"}, {"/t/read/in", "/"},
                           {"/t/read/in/g", "y"}, {"/t/write", "/"}, {"/t/write/h", "z"}});
    for (const auto& [rel, mode] : std::map<S, mode_t>{{"t/none", 0}, {"t/read", 0500}, {"t/read/in", 0}, {"t/write", 0300}, {"t", 0555}})
        chmod(p(rel).c_str(), mode);
    const pid_t pid = fork();  // as nobody when we are root, as ourselves otherwise
    if (pid == 0) {
        if (geteuid() == 0) nftw(tmp.path().c_str(), [](const char* f, const struct stat*, int, FTW*) { return lchown(f, 65534, 65534); }, 16, FTW_PHYS);
        _exit((geteuid() != 0 || setuid(65534) == 0) && FSRemove(p("t")) == 0 ? 0 : 1);
    }
    int status = -1;
    waitpid(pid, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(exists(p("t")));
}

TEST_F(FileOpTest, FSMKDirMakesWhatIsMissingAndFSMKDirPStopsBehindTheFailingComponent) {
    EXPECT_TRUE(FSMKDir("", false) == -1 && FSMKDir(p("x/y"), false) == -2 && FSMKDirP("", nullptr, false, 0) == -1);
    ASSERT_TRUE(FSMKDir(p("one"), false) == 0 && FSMKDir(p("a/b/c"), true) == 0 && chmod(p("one").c_str(), 0710) == 0);
    EXPECT_TRUE(perms(p("a/b")) == 0755 && perms(p("a/b/c")) == 0755 && FSMKDir(p("one"), true) == 0 &&
                perms(p("one")) == 0710) << "0777 under the umask; an existing folder is left alone";
    make_tree(tmp.path(), {{"/file", "keep"}, {"/link", "->one"}});
    for (bool parents : {false, true})
        for (const char* bad : {"file", "link", "file/in"}) EXPECT_EQ(FSMKDir(p(bad), parents), -1) << bad;
    const S not_dir = "FSMKDir: Create a folder but local file system is not directory '";
    EXPECT_LOGGED(line(not_dir + p("file") + "' (1)") + line(not_dir + p("link") + "' (3)") +
                  line("FSMKDir: Failed to to file info '" + p("file/in") + "'"));
    // stop_pos: behind the component that failed, else at the end; force replaces what is in the way.
    const ustring deep = p("file/x/y"), last = p("file/"), made = p("one/new/");
    char* at = nullptr;
    EXPECT_TRUE(FSMKDirP(deep, &at, false, 0xFFFF) == -1 && errno == ENOTDIR && at == deep.c_str() + p("file").size());
    EXPECT_TRUE(FSMKDirP(last, &at, false, 0xFFFF) == -1 && errno == EEXIST && at == last.c_str() + p("file").size());
    EXPECT_TRUE(FSMKDirP(made, &at, false, 0xFFFF) == 0 && is_dir(p("one/new")) && at == made.c_str() + made.length());
    EXPECT_TRUE(read_file(p("file")) == "keep" && FSMKDirP(last, &at, true, 0xFFFF) == 0 && is_dir(p("file")));
    umask(077);  // an explicit mode is used exactly, and the umask restored; the default one is under it
    EXPECT_TRUE(FSMKDirP(p("m/in"), nullptr, false, 0751) == 0 && perms(p("m")) == 0751 && perms(p("m/in")) == 0751);
    EXPECT_TRUE(umask(077) == 077 && FSMKDirP(p("d/in"), nullptr, false, 0xFFFF) == 0 && perms(p("d/in")) == 0700);
}
}  // namespace
