// MacService with real processes: stopping the client and starting it.
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include "log.h"
#include "mac/mac-service.h"
#include "test-support.h"

using namespace testsupport;

class MacServiceTest : public ::testing::Test {
protected:
    void SetUp() override {
        struct sigaction reap = {};  // children, as subreaper the clients started detached too, vanish as they end,
        reap.sa_flags = SA_NOCLDWAIT;  // so kill(pid, 0) sees them gone; their own children start with no such flag
        ASSERT_EQ(sigaction(SIGCHLD, &reap, nullptr), 0);
        ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
        setenv("HOME", tmp.path().c_str(), 1);
        make_tree(tmp.path(), {{"/.Lumora", "/"}, {"/.Lumora/app", "/"}, {"/.Lumora/app/bin", "/"}, {"/levels", "service_debug=7\n"}});
        ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);  // the client script waits on it
        Logger::Initialize(Logger::TYPE_FILE, tmp / "log", tmp / "levels", 50);
    }
    std::string log() {  // since the last call
        const std::string lines = log_lines(tmp / "log");
        return write_file(tmp / "log", ""), lines;
    }
    // The client script, which ignores SIGTERM, once running as `user` and named in the pid file; else 0.
    pid_t start(uid_t user = 0) {
        write_client(bin, "", "30", tmp / "fifo");
        const pid_t pid = spawn(bin.c_str(), nullptr, user);
        return comes_to_hold(pid_file, "pid=" + std::to_string(pid) + "\n") ? pid : 0;
    }
    double stop() {  // seconds taken
        const auto t0 = std::chrono::steady_clock::now();
        return MacService().StopService(), seconds_since(t0);
    }
    TempDir tmp;
    const std::string bin = tmp / ".Lumora/app/bin/lumora-ui", pid_file = tmp / ".Lumora/ui.pid", named = "pid file '" + pid_file + "'";
    const std::string D = "[DEBUG] mac/mac-service.cpp(N): ", N = "[NOTE] mac/mac-service.cpp(N): ";
};

// SIGKILL some five seconds after SIGTERM (a client that ends on SIGTERM: launcher_e2e_test's UpgradeStopsRunningClient);
// never to a process that is not the client, nor to a group.
TEST_F(MacServiceTest, StopEndsOnlyTheClientAfterFiveSecondsByKill) {
    const pid_t ui = start();
    EXPECT_NEAR(stop(), 5.75, 1.25);  // 4.5 to 7 s
    EXPECT_TRUE(wait_for([&] { return kill(ui, 0) != 0; }));
    const std::string other = std::to_string(spawn("sleep", "30"));
    // Each pid file with the line it gives. 0, a negative id or one truncated to ours would end this process.
    std::vector<std::pair<std::string, std::string>> cases = {{"pid=" + std::to_string(ui) + "\n", ""}, {"other=1\n", ""}, {"pid=''\n", ""},
        {"pid=" + other + "\n", N + "process " + other + " is not the Lumora UI, not terminating it\n"},
        {"", D + named + " does not exist, no need to terminate\n"}, {"[x]\n", N + "Failed to read " + named + ", not exist ?\n"}};
    for (const std::string& v : {std::string("abc"), std::string("0"), std::string("-5"), std::string("99999999999"), std::to_string((1L << 32) + getpid())})
        cases.push_back({"pid=" + v + "\n", N + named + " names no process ('" + v + "'), nothing to terminate\n"});
    for (const auto& [content, line] : cases) {
        content.empty() ? (void)::remove(pid_file.c_str()) : write_file(pid_file, content);
        EXPECT_LT(stop(), 0.5) << content;
        EXPECT_EQ(log(), line) << content;
    }
    EXPECT_EQ(kill(std::stoi(other), SIGKILL), 0);  // it was still running
}

// SIGTERM refused with another errno than ESRCH (EPERM: a client of another user, and no right to signal it
// after all) is logged; the five probes and the SIGKILL follow all the same.
TEST_F(MacServiceTest, ARefusedSigtermIsLoggedAndTheProbesAndSigkillStillFollow) {
    if (geteuid() != 0) GTEST_SKIP() << "root gives the client to another user, then gives up its right to signal it";
    give_to(tmp.path(), 65534);
    const pid_t ui = start(65534);
    const auto t0 = std::chrono::steady_clock::now();
    const pid_t stopper = fork();  // still root and still able to read the client's identity, but not to signal it
    if (stopper == 0) {
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct caps[2] = {};
        syscall(SYS_capget, &header, caps), caps[0].effective &= ~(1u << CAP_KILL);
        _exit(syscall(SYS_capset, &header, caps) == 0 ? (MacService().StopService(), 0) : 1);
    }
    ASSERT_TRUE(wait_for([&] { return kill(stopper, 0) != 0; }, 1200));
    EXPECT_NEAR(seconds_since(t0), 5.75, 1.25);
    EXPECT_EQ(log(), "[ERROR] mac/mac-service.cpp(N): kill: Operation not permitted (1)\n");
    EXPECT_EQ(kill(ui, SIGKILL), 0) << "SIGKILL was refused too";
}

TEST_F(MacServiceTest, PostUpgradeStartsTheClientDetachedWithoutArgumentsHereOrLogsItsAbsence) {
    MacService().PostUpgrade();
    EXPECT_EQ(log(), "[ERROR] mac/mac-service.cpp(N): Failed to launch Lumora UI\n");
    write_file(bin, "#!/bin/sh\necho \"$# $(pwd -P)\" > \"$HOME/launched\"\n"), chmod(bin.c_str(), 0755);
    MacService().PostUpgrade();
    EXPECT_TRUE(comes_to_hold(tmp / "launched", "0 " + std::filesystem::current_path().string() + "\n"));
    EXPECT_EQ(log(), "");
}
