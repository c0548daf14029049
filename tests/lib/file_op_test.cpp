// File operations on real files, folders, links and special files, and the lines they log. As
// root, refusals come from a missing execute bit or the immutable flag.
#include "file-op.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <csignal>
#include <thread>
#include <vector>

#include "log.h"
#include "test-support.h"

namespace {
using namespace testsupport;
using Info = _FILE_INFO_tag;
using S = std::string;
using std::make_pair;
using std::make_tuple;
const S kNFC = "caf\xC3\xA9", kNFD = "cafe\xCC\x81", E = "[ERROR] file-op.cpp(N): ";

struct stat stat_of(const S& path) { struct stat st = {}; lstat(path.c_str(), &st); return st; }
mode_t perms(const S& path) { return stat_of(path).st_mode & 07777; }

class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override {
        umask(022);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logs / "log", "", 50), 0);
    }
    S p(const S& rel) const { return tmp / rel; }
    S log() const { return log_lines(logs / "log"); }  // each failure logged once, where it is detected
    TempDir logs, tmp;
};

TEST_F(FileOpTest, EntriesAreDescribedWithoutFollowingLinksAndFoundByTheirExactCase) {
    make_tree(tmp.path(), {{"/data", "12345"}, {"/Dir", "/"}, {"/link", "->data"}, {"/dangling", "->nowhere"}});
    ASSERT_EQ(mkfifo(p("fifo").c_str(), 0600), 0);
    ASSERT_EQ(mknod(p("sock").c_str(), S_IFSOCK | 0600, 0), 0);
    Info i;
    for (const auto& [path, type] : std::map<S, uint32_t>{{p("data"), FILE_TYPE_REGULAR}, {p("Dir"), FILE_TYPE_DIR},
             {p("link"), FILE_TYPE_LINK}, {p("dangling"), FILE_TYPE_LINK}, {p("fifo"), FILE_TYPE_FIFO},
             {p("sock"), FILE_TYPE_SOCKET}, {"/dev/null", FILE_TYPE_DEVICE}}) {
        ASSERT_EQ(GetFileInfo(path, i), 0) << path;
        EXPECT_EQ(make_tuple(i.type, i.exists, S(i.path.c_str()), i.mode, i.size),
                  make_tuple(type, true, path, stat_of(path).st_mode, uint64_t(stat_of(path).st_size)));
    }
    EXPECT_EQ(GetFileInfo(p("data/in"), i), -1);
    EXPECT_EQ(FSStat("", i, false), -1);
    for (const S& absent : {p("missing"), p("dangling"), p("DATA")}) {  // FSStat follows links and matches case
        i.exists = true;
        EXPECT_EQ(absent == p("missing") ? GetFileInfo(absent, i) : FSStat(absent, i, true), 0) << absent;
        EXPECT_FALSE(i.exists) << absent;
    }
}

TEST_F(FileOpTest, FSCopyCopiesEveryByteAndAMoveNeverLosesTheFile) {
    const S big = S(90000, 'x') + S(90000, 'y') + "z", binary("a\0b", 3);
    ASSERT_EQ(mkfifo(p("pipe").c_str(), 0600), 0);  // read in many pieces
    std::thread writer([&] { signal(SIGPIPE, SIG_IGN); write_file(p("pipe"), big); });  // a short read fails
    EXPECT_EQ(FSCopy(p("pipe"), p("dst"), false), 0);
    writer.join();
    EXPECT_EQ(read_file(p("dst")), big);
    EXPECT_EQ(perms(p("dst")), 0644u) << "0666 under the umask";
    write_file(p("src"), binary);
    EXPECT_EQ(FSCopy(p("src"), p("dst"), true), 0);
    EXPECT_EQ(make_pair(read_file(p("dst")), exists(p("src"))), make_pair(binary, false));
    make_dir(p("dir"));  // the source goes only once the copy is complete
    S logged;
    for (const auto& [from, to, rc, message] :
         {make_tuple(p("gone"), p("x"), -1, "CopyFile: open(" + p("gone") + "): No such file or directory (2)"),
          make_tuple(p("dst"), p("no/x"), -1, "CopyFile: open(" + p("no/x") + "): No such file or directory (2)"),
          make_tuple(p("dir"), p("x"), -1, S("CopyFile: read: Is a directory (21)")),
          make_tuple(p("dst"), S("/dev/full"), -2, S("CopyFile: write: No space left on device (28)"))}) {
        EXPECT_EQ(FSCopy(from, to, true), rc) << from << " -> " << to;
        EXPECT_EQ(exists(from), from != p("gone")) << from;
        logged += E + message + "\n";
    }
    EXPECT_EQ(log(), logged);
    make_tree(p("locked"), {{"", "/"}, {"/src", "payload"}});
    if (!set_immutable(p("locked"), true)) GTEST_SKIP() << "no immutable flag here";
    EXPECT_EQ(FSCopy(p("locked/src"), p("copy"), true), -1);
    EXPECT_EQ(read_file(p("copy")), "payload");
    EXPECT_EQ(log(), logged + E + "FSCopy: remove(" + p("locked/src") + "): Operation not permitted (1)\n");
    EXPECT_EQ(make_pair(FSRemove(p("locked/src")), FSRemove(p("locked"))), make_pair(-3, -3));
    EXPECT_TRUE(exists(p("locked/src")));
}

TEST_F(FileOpTest, TreesAreRemovedAndMovedEvenAcrossFileSystemsOrLeftInPlace) {
    make_tree(tmp.path(), {{"/t", "/"}, {"/t/b", "/"}, {"/t/b/x", "/"}, {"/t/b/x/y", "y"}, {"/u", "/"},
                           {"/u/up", "->.."}, {"/file", "f"}, {"/full", "/"}, {"/full/x", "x"}});
    ASSERT_EQ(mkfifo(p("t/b/fifo").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo(p("fifo").c_str(), 0600), 0);
    const std::vector<int> removed{FSRemove(""), FSRemove(p("missing")), FSRemove(p("t/b/x/y/in")), FSRemove(p("u/up")),
                                   FSRemove(p("t/b")), exists(p("u/up")), exists(p("t/b"))};
    EXPECT_EQ(removed, (std::vector<int>{-1, 0, -1, 0, 0, false, false}));
    const Tree tree = {{"", "/"}, {"/sub", "/"}, {"/sub/leaf", "leaf"}, {"/empty", "/"}, {"/.hidden", "h"}};
    make_tree(p("tree"), tree);
    for (const auto& [from, to, rc] : {make_tuple(S(), p("x"), -1), make_tuple(p("file"), S(), -1),
             make_tuple(p("missing"), p("x"), -2), make_tuple(p("FILE"), p("x"), -2),
             make_tuple(p("file/in"), p("x"), -2), make_tuple(p("file"), p(S(256, 'n')), -100),
             make_tuple(p("tree"), p("full"), -3), make_tuple(p("file"), p("no/file"), -3),
             make_tuple(p("tree"), p("tree/self"), -3)})
        EXPECT_EQ(FSRename(from, to, true), rc) << from << " -> " << to;
    EXPECT_EQ(read_file(p("file")), "f");
    EXPECT_TRUE(is_dir(p("tree/sub")));
    ASSERT_EQ(FSRename(p("tree"), p("full/tree"), true), 0);
    EXPECT_FALSE(exists(p("tree")));
    make_tree(p("full"), {{"/" + kNFD, "d"}});  // stored decomposed, moved by its composed name
    ASSERT_EQ(FSRename(p("full/" + kNFC), p("moved"), true), 0);
    EXPECT_EQ(make_pair(read_file(p("moved")), exists(p("full/" + kNFD))), make_pair(S("d"), false));
    TempDir shm("/dev/shm");  // tmpfs: a tree is copied there, then removed here
    if (stat_of(shm.path()).st_dev == stat_of(tmp.path()).st_dev) GTEST_SKIP() << "one file system only";
    const S moved = shm / "tree";
    ASSERT_EQ(FSRename(p("full/tree"), moved, false), 0);
    EXPECT_FALSE(exists(p("full/tree")));
    for (const auto& [rel, content] : tree) EXPECT_EQ(is_dir(moved + rel) ? "/" : read_file(moved + rel), content);
    EXPECT_EQ(FSRename(p("fifo"), shm / "f", false), 0);
    EXPECT_EQ(make_pair(exists(p("fifo")), exists(shm / "f")), make_pair(true, false)) << "not carried";
}

// What the launcher extracted it can remove, whatever modes the package gave its folders; as a normal user,
// for whom a folder of mode 000 cannot be listed or emptied until its owner gives itself the right back.
TEST_F(FileOpTest, FSRemoveRemovesAnOwnTreeWhateverItsModes) {
    make_tree(p("t"), {{"", "/"}, {"/none", "/"}, {"/none/f", "x"}, {"/read", "/"}, {"/read/in", "/"}, {"/read/in/g", "y"}});
    for (const auto& [rel, mode] : std::map<S, mode_t>{{"t/none", 0}, {"t/read", 0500}, {"t/read/in", 0}, {"t", 0555}})
        chmod(p(rel).c_str(), mode);
    give_to(tmp.path(), 65534);  // as nobody when we are root, as ourselves otherwise
    const pid_t pid = fork();
    if (pid == 0) _exit((geteuid() != 0 || setuid(65534) == 0) && FSRemove(p("t")) == 0 ? 0 : 1);
    int status = -1;
    EXPECT_EQ(waitpid(pid, &status, 0), pid);
    EXPECT_EQ(make_pair(status, exists(p("t"))), make_pair(0, false));
}

TEST_F(FileOpTest, FSMKDirMakesWhatIsMissingAndRefusesWhatIsInTheWay) {
    const std::vector<int> made_rc{FSMKDir("", false), FSMKDir(p("x/y"), false), FSMKDirP("", nullptr, false, 0),
                                   FSMKDir(p("one"), false), FSMKDir(p("a/b/c"), true), chmod(p("one").c_str(), 0710),
                                   FSMKDir(p("one"), true)};
    EXPECT_EQ(made_rc, (std::vector<int>{-1, -2, -1, 0, 0, 0, 0}));
    EXPECT_EQ((std::vector<mode_t>{perms(p("a/b")), perms(p("a/b/c")), perms(p("one"))}), (std::vector<mode_t>{0755, 0755, 0710}))
        << "0777 under the umask; an existing folder is left alone";
    make_tree(tmp.path(), {{"/file", "keep"}, {"/link", "->one"}});
    for (const char* bad : {"file", "link", "file/in"}) EXPECT_EQ(FSMKDir(p(bad), true), -1) << bad;
    const S not_dir = E + "FSMKDir: Create a folder but local file system is not directory '";
    EXPECT_EQ(log(), not_dir + p("file") + "' (1)\n" + not_dir + p("link") + "' (3)\n" + E + "FSMKDir: Failed to to file info '" +
                     p("file/in") + "'\n");
    EXPECT_EQ(read_file(p("file")), "keep");
}
}  // namespace
