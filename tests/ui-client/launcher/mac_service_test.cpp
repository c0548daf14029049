// MacService with real processes: the upgrade decision, stopping and starting the client, a whole run.
#include "mac/mac-service.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <array>
#include <atomic>
#include <chrono>
#include <climits>
#include <regex>
#include <thread>

#include "fs-platform.h"
#include "log.h"
#include "test-support.h"

using namespace testsupport;

namespace {

bool wait_for(const std::function<bool()>& ok, double secs = 5) {
    for (int i = 0; i < secs * 100; ++i, usleep(10000))
        if (ok()) return true;
    return false;
}

// A forked program that a thread reaps the moment it ends, so that kill(pid, 0) sees it gone.
struct Child {
    explicit Child(std::vector<const char*> args) {
        args.push_back(nullptr);
        if ((pid = fork()) == 0) execvp(args[0], const_cast<char* const*>(args.data())), _exit(127);
        reaper = std::thread([this] { int st = 0; waitpid(pid, &st, 0); status = st; });
    }
    ~Child() { if (status == -1) kill(pid, SIGKILL); reaper.join(); }
    int end_signal(double secs = 5) {  // the signal that ended it, 0 for an exit, -1 while it runs
        return wait_for([this] { return status != -1; }, secs) ? (WIFSIGNALED(status.load()) ? WTERMSIG(status.load()) : 0) : -1;
    }
    pid_t pid;
    std::atomic<int> status{-1};  // the wait status once reaped
    std::thread reaper;
};

}  // namespace

class MacServiceTest : public ::testing::Test {
protected:
    void SetUp() override {
        setenv("HOME", tmp.path().c_str(), 1);
        make_tree(tmp.path(), {{"/.Lumora", "/"}, {"/.Lumora/app", "/"}, {"/.Lumora/app/bin", "/"}, {"/levels", "service_debug=7\n"}});
        ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);  // opening it blocks the client script
        Logger::Initialize(Logger::TYPE_FILE, tmp / "log", tmp / "levels", 50);
    }
    // Lines of a log that are this level's line with a text matching re, none for an empty level.
    // The test's own log: emptied, and -1 when it holds other lines too.
    int logged(const std::string& level, const std::string& re, const std::string& file = "") {
        std::istringstream in(read_file(file.empty() ? tmp / "log" : file));
        const std::regex whole(R"(\S+ \d\d \d\d:\d\d:\d\d \[)" + level + R"(\] mac/mac-service\.cpp\(\d+\): )" + re);
        int n = 0, others = 0;
        for (std::string l; std::getline(in, l);) !level.empty() && std::regex_match(l, whole) ? ++n : ++others;
        if (file.empty() && truncate((tmp / "log").c_str(), 0) != 0) return -2;
        return file.empty() && others ? -1 : n;
    }
    void script(const std::string& body) { write_file(bin, "#!/bin/sh\n" + body), chmod(bin.c_str(), 0755); }
    // Runs the client script until it has started and names it in the pid file.
    std::unique_ptr<Child> start() {
        auto c = std::make_unique<Child>(std::vector<const char*>{bin.c_str()});
        EXPECT_TRUE(wait_for([&] { return exists(tmp / ("ready." + std::to_string(c->pid))); }));
        write_file(pid_file, "pid=" + std::to_string(c->pid) + "\n");
        return c;
    }
    double stop() {  // seconds taken
        const auto t0 = std::chrono::steady_clock::now();
        MacService().StopService();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    }
    TempDir tmp;
    const std::string app = tmp / ".Lumora/app", bin = app + "/bin/lumora-ui", pid_file = tmp / ".Lumora/ui.pid";
    const std::string client = "touch \"$HOME/ready.$$\"\nread x < \"$HOME/fifo\"\n", named = "pid file '" + pid_file + "'";
};

TEST_F(MacServiceTest, UpgradeWhenTargetBuildIsHigherOrBinaryMissing) {
    const struct { const char *source, *target; int s, t; bool upgrade; } cases[] = {
        {"100", "100", 100, 100, false}, {"100", "99", 100, 99, false}, {"99", "100", 99, 100, true}, {"12abc", "12", 12, 12, false},
        {"12abc", "13", 12, 13, true}, {"abc", "", 0, 0, false}, {"", "1", 0, 1, true}, {" 7", "+7", 7, 7, false}, {"-5", "abc", -5, 0, true},
        {"99999999999", "2147483647", INT_MAX, INT_MAX, false}, {"2147483646", "99999999999", INT_MAX - 1, INT_MAX, true}};
    for (bool present : {true, false}) {
        present ? script("") : (void)::remove(bin.c_str());
        for (const auto& c : cases) {
            SCOPED_TRACE(std::string(c.source) + " -> " + c.target + (present ? " with" : " without") + " binary");
            MacService s;
            s.source_version.build_version = c.source;
            s.target_version.build_version = c.target;
            EXPECT_EQ(s.IsNeedUpgrade(), c.upgrade || !present);
            EXPECT_EQ(logged("DEBUG", "source version = " + std::to_string(c.s) + ", target version = " + std::to_string(c.t)), 1);
        }
    }
}

TEST_F(MacServiceTest, StopEndsTheClientByTermOrAfterFiveSecondsByKill) {
    script(client);
    auto ui = start();
    EXPECT_EQ(FSProcessRunsProgram(ui->pid, bin.c_str()), 1);
    EXPECT_LT(stop(), 1.5);
    EXPECT_EQ(ui->end_signal(), SIGTERM);
    EXPECT_EQ(FSProcessRunsProgram(ui->pid, bin.c_str()), -1);
    EXPECT_LT(stop(), 0.5);  // the pid file names a process that has ended and been reaped
    script("trap '' TERM\n" + client);
    ui = start();
    EXPECT_NEAR(stop(), 5.75, 1.25);  // 4.5 to 7 s
    EXPECT_EQ(ui->end_signal(), SIGKILL);
    EXPECT_EQ(logged("", ""), 0);
}

TEST_F(MacServiceTest, StopSignalsNothingButTheClient) {
    script(client);
    Child other({"sleep", "30"});
    const std::string id = std::to_string(other.pid);
    EXPECT_EQ(FSProcessRunsProgram(other.pid, bin.c_str()), 0);
    // Each pid file with the line it gives. 0, a negative id or one truncated to ours would end this process.
    std::vector<std::array<std::string, 3>> cases = {
        {"pid=" + id + "\n", "NOTE", "process " + id + " is not the Lumora UI, not terminating it"}, {"other=1\n", "", ""}, {"pid=''\n", "", ""},
        {"", "DEBUG", named + " does not exist, no need to terminate"}, {"[x]\n", "NOTE", "Failed to read " + named + ", not exist \\?"}};
    for (const std::string& v : {std::string("abc"), std::string("0"), std::string("-5"), std::string("99999999999"),
                                 std::to_string((1L << 32) + getpid()), "-" + std::to_string(getpgrp())})
        cases.push_back({"pid=" + v + "\n", "NOTE", named + " names no process \\('" + v + "'\\), nothing to terminate"});
    for (const auto& [content, level, text] : cases) {
        content.empty() ? (void)::remove(pid_file.c_str()) : write_file(pid_file, content);
        EXPECT_LT(stop(), 0.5) << content;
        EXPECT_EQ(logged(level, text), level.empty() ? 0 : 1) << content;
    }
    EXPECT_EQ(other.end_signal(0.3), -1);
}

TEST_F(MacServiceTest, ConstructionAndStartingTheClient) {
    MacService s;
    EXPECT_EQ(s.timeout, 10000);
    EXPECT_STREQ(s.app_path.c_str(), app.c_str());
    EXPECT_EQ(MacService::GetInstace(), MacService::GetInstace());
    EXPECT_EQ(MacService::GetInstace()->timeout, 10000);
    EXPECT_FALSE(s.PerUserBinPathExist());
    EXPECT_EQ(s.LaunchPerUserBin(), -1);
    s.PostUpgrade();
    EXPECT_EQ(logged("ERROR", "Failed to launch Lumora UI"), 1);
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // adopt the detached client to reap it
    script("echo \"$# $(pwd -P)\" > \"$HOME/launched\"\n");
    EXPECT_TRUE(s.PerUserBinPathExist());
    s.PostUpgrade();  // no arguments, our working folder
    EXPECT_TRUE(wait_for([&] { return exists(tmp / "launched") && read_file(tmp / "launched") == "0 " + QDir::currentPath().toStdString() + "\n"; }));
    EXPECT_EQ(logged("", ""), 0);
    int st = -1;
    EXPECT_TRUE(wait_for([&] { return waitpid(-1, &st, WNOHANG) > 0; }) && WIFEXITED(st) && WEXITSTATUS(st) == 0);
}

TEST_F(MacServiceTest, ProbeRunStopsTheClientThenInstallsThePackage) {
    const std::string log = tmp / ".Lumora/log/launcher.log", info = "[Version]\nbuild_version=200\n", res = "/X.app/Contents/Resources";
    make_tree(tmp.path(), {{"/X.app", "/"}, {"/X.app/Contents", "/"}, {"/X.app/Contents/MacOS", "/"}, {res, "/"}, {res + "/INFO", info},
                           {res + "/bin", "/"}, {res + "/bin/lumora-ui", "#!/bin/sh\n"}, {res + "/package", "/"}, {"/X.app/log", "/"},
                           {"/X.app/log/launcher.debug", "service_debug=7\n"}});
    const QString probe = QString::fromStdString(tmp / "X.app/Contents/MacOS/service_probe"), dir = QString::fromStdString(tmp.path() + res);
    ASSERT_TRUE(QFile::copy(QStringLiteral(SERVICE_PROBE), probe));
    ASSERT_EQ(QProcess::execute("bsdtar", {"-czf", dir + "/package/lumora.lpk", "-C", dir, "INFO", "bin"}), 0);
    const struct { bool binary, running; } cases[] = {{true, true}, {true, false}, {false, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.binary) + std::to_string(c.running));
        write_file(app + "/INFO", "[Version]\nbuild_version=100\n");
        c.binary ? script(client) : (void)::remove(bin.c_str());
        ::remove(pid_file.c_str()), ::remove(log.c_str());
        auto ui = c.running ? start() : nullptr;
        QProcess p;
        p.start(probe, {QStringLiteral("run")});
        ASSERT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.readAllStandardOutput().toStdString(), "need=1 rc=0\n");
        EXPECT_EQ(ui ? ui->end_signal() : SIGTERM, SIGTERM);
        EXPECT_EQ(read_file(bin) + read_file(app + "/INFO"), "#!/bin/sh\n" + info);  // the new installation
        EXPECT_EQ(logged("DEBUG", named + " does not exist, no need to terminate", log), c.binary && !c.running);
        EXPECT_EQ(logged("DEBUG", "local appdata exist", log), c.binary ? 1 : 0);
    }
}
