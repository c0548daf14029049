// The platform seam: a path's stored form, asked for in another case or Unicode form, and holding on to one process.
#include "fs-platform.h"

#include <filesystem>
#include <map>
#include <vector>

#include <gtest/gtest.h>

#include "test-support.h"
#if defined(__linux__)
#include "fs-platform-linux.h"
#endif

namespace {
using namespace testsupport;
using std::make_pair;

const std::string kE = "\xC3\xA9", kEd = "e\xCC\x81", kEU = "\xC3\x89", kEUd = "E\xCC\x81";  // é and É, NFC and NFD
const std::string kAlphaNFC = "\xE1\xBE\xB4", kAlphaOdd = "\xCE\xB1\xCD\x85\xCC\x81";  // U+1FB4; its marks reordered

// The stored form (by a caseless search, with "*" for a folder), or "-" when refused. FSRefMakePath needs room for
// the path and its NUL.
std::string Caseless(const std::string& in) {
    FSRef ref;
    UInt8 buf[4096];
    Boolean dir = 2;
    if (FSPathMakeRef(reinterpret_cast<const UInt8*>(in.c_str()), &ref, &dir) != 0) return "-";
    const std::string out = FSRefMakePath(&ref, buf, sizeof buf) == 0 ? reinterpret_cast<const char*>(buf) : "failed";
    return FSRefMakePath(&ref, buf, out.size()) == 0 ? "written without room for the NUL" : out + (dir ? "*" : "");
}
std::string Canonical(const std::string& in) {  // only the Unicode form may differ
    std::string found;
    return FSFindStoredForm(in.c_str(), found) == 0 ? found : "-";
}

TEST(FsPlatformTest, ResolvesToTheStoredForm) {
    TempDir tmp;
    make_tree(tmp.path(), {{"/Dir", "/"}, {"/Dir/Sub", "/"}, {"/Dir/Sub/Read Me.TXT", "x"},
        {"/Dir/File.txt", "x"}, {"/d" + kEd, "/"}, {"/d" + kEd + "/n" + kE, "x"}, {"/foo", "x"}, {"/FOO", "x"},
        {"/" + kE, "x"}, {"/" + kEd, "x"}, {"/" + kAlphaOdd, "x"}, {"/Target", "/"}, {"/Target/Inner", "x"},
        {"/Link", "->Target"}, {"/Dangling", "->nowhere"}});
    ASSERT_EQ(chdir(tmp.path().c_str()), 0);  // relative paths resolve against the current folder and stay relative
    const std::string dn = "d" + kEd + "/n" + kE;
    const std::tuple<std::string, std::string, std::string> cases[] = {  // asked, stored: an exact name wins, else a sole match
        {"dir/SUB/read me.txt", "Dir/Sub/Read Me.TXT", "-"}, {"d" + kE + "/n" + kEd, dn, dn}, {"D" + kEU + "/N" + kEUd, dn, "-"},
        {kAlphaNFC, kAlphaOdd, kAlphaOdd}, {"foo", "foo", "foo"}, {"FOO", "FOO", "FOO"}, {kEd, kEd, kEd}, {"fOo", "-", "-"},
        {kEU, "-", "-"}, {"missing", "-", "-"}, {"Dir/File.txt/below", "-", "-"}, {"Dir/File.txt/", "-", "-"}, {"", "-", "-"},
        {"link", "Link*", "-"}, {"./dir/./sub/../file.TXT", "./Dir/./Sub/../File.txt", "-"}, {"DIR//sub/", "Dir//Sub/*", "-"},
        {"dangling", "Dangling", "-"}, {"Dangling", "Dangling", "Dangling"}, {"link/INNER", "Link/Inner", "-"},
        {tmp / "DIR", tmp / "Dir*", "-"}, {tmp / "Dir", tmp / "Dir*", tmp / "Dir"}};
    for (const auto& [ask, caseless, canonical] : cases)
        EXPECT_EQ(make_pair(Caseless(ask), Canonical(ask)), make_pair(caseless, canonical)) << ask;
    EXPECT_EQ(chdir("/"), 0);  // out of the folder about to be removed
}

#if defined(__linux__)
// Real processes, each waiting on a pipe as its standard input; with pidfds, and as on a kernel without them.
class FsProcessTest : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        FSPidfdEnable(GetParam());
        std::filesystem::copy_file("/bin/cat", ui);  // the clients: a program, a script for sh, one for bash through env
        make_tree(tmp.path(), {{"/sh-ui", "#!/bin/sh\nread x"}, {"/env-ui", "#!/usr/bin/env bash\nread x"}, {"/link", "->ui"}});
        for (const std::string& f : {ui, sh, env}) chmod(f.c_str(), 0755);
    }
    void TearDown() override {
        FSPidfdEnable(true);
        for (const auto& [pid, in] : stdins) {  // only our children still unreaped: a reaped pid may be someone else's now
            if (in >= 0) close(in);
            if (waitpid(pid, nullptr, WNOHANG) == 0) kill(pid, SIGKILL), waitpid(pid, nullptr, 0);
        }
    }
    pid_t run(std::vector<std::string> args) {  // in the temp folder; returns once the first exec is done
        std::vector<char*> argv;
        for (std::string& a : args) argv.push_back(&a[0]);
        argv.push_back(nullptr);
        int in[2], exec[2];
        if (pipe2(in, O_CLOEXEC) != 0 || pipe2(exec, O_CLOEXEC) != 0) return -1;
        const pid_t pid = fork();
        if (pid == 0 && (dup2(in[0], 0) != 0 || !freopen("/dev/null", "w", stdout) || chdir(tmp.path().c_str()) != 0 ||
                            execvp(argv[0], argv.data())))
            _exit(127);
        close(in[0]), close(exec[1]);
        for (char c; read(exec[0], &c, 1) > 0;) {}
        return close(exec[0]), stdins[pid] = in[1], pid;
    }
    void end(pid_t pid) { close(stdins[pid]), stdins[pid] = -1; }  // it reads the end of its input and exits
    TempDir tmp;
    const std::string ui = tmp / "ui", sh = tmp / "sh-ui", env = tmp / "env-ui";
    std::map<pid_t, int> stdins;
};

// The client's own program, or the interpreter its "#!" line names running it as the script; not a program that
// merely has its path among its arguments, nor its interpreter running something else.
TEST_P(FsProcessTest, TheClientIsItsProgramOrItsInterpreterRunningItsScript) {
    const struct { std::vector<std::string> args; std::string client; int is; } cases[] = {{{ui}, ui, 1},
        {{ui}, tmp / "link", 1}, {{tmp / "link"}, ui, 1}, {{sh}, sh, 1}, {{"sh", "-e", "sh-ui"}, sh, 1}, {{env}, env, 1},
        {{"bash", "--", "env-ui", "x"}, env, 1}, {{"tail", "-f", ui}, ui, 0}, {{"sh", "-c", "read x", "sh-ui"}, sh, 0},
        {{"bash", sh}, sh, 0}, {{"sh", "env-ui"}, env, 0}, {{"cat", "-", sh}, sh, 0}};
    for (const auto& c : cases) {
        const pid_t pid = run(c.args);
        int is = -2;  // env starts bash by a second exec
        wait_for([&] { return (is = FSProcess(pid).approve(c.client.c_str())) == 1 || !c.is; }, 300);
        EXPECT_EQ(is, c.is) << c.args.front() << " ... " << c.args.back() << " as " << c.client;
    }
}

// Once the process held has exited (a zombie at first), signals fail with ESRCH, also after a second client took its
// pid; and a handle taken before the pid changed hands approves nothing.
TEST_P(FsProcessTest, AHandleNeverReachesALaterOwnerOfItsPid) {
    if (geteuid() != 0) GTEST_SKIP() << "taking a given pid needs root";
    const pid_t first = run({ui});
    FSProcess held(first), quiet(first);  // quiet: not asked again until its pid has changed hands
    ASSERT_EQ(make_pair(held.approve(ui.c_str()), quiet.approve(ui.c_str())), make_pair(1, 1));
    EXPECT_EQ(make_pair(held.ended(), held.signal(0)), make_pair(false, 0));
    end(first);
    EXPECT_TRUE(wait_for([&] { return held.ended(); }));  // a zombie
    EXPECT_EQ(held.signal(SIGTERM), -1);
    EXPECT_EQ(errno, ESRCH);
    ASSERT_EQ(waitpid(first, nullptr, 0), first);
    usleep(20000);  // a later start time (in 10 ms ticks), which is all that tells the fallback two clients apart
    ASSERT_EQ(at_pid(first, [&] { return run({ui}); }), first);
    EXPECT_EQ(quiet.signal(SIGKILL), -1);
    EXPECT_EQ(errno, ESRCH);
    EXPECT_EQ(FSProcess(first).approve(ui.c_str()), 1);  // the second client, alive
    FSProcess stale(first);
    end(first), waitpid(first, nullptr, 0), usleep(20000);
    ASSERT_EQ(at_pid(first, [&] { return run({ui}); }), first);
    EXPECT_EQ(stale.approve(ui.c_str()), -1);
    EXPECT_EQ(stale.signal(SIGKILL), -1);
    EXPECT_EQ(waitpid(first, nullptr, WNOHANG), 0);  // the third, untouched
}

INSTANTIATE_TEST_SUITE_P(Pidfd, FsProcessTest, ::testing::Values(true, false),
    [](const ::testing::TestParamInfo<bool>& i) { return i.param ? "WithPidfd" : "Fallback"; });
#endif

}  // namespace
