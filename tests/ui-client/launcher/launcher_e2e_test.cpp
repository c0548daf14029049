// The built launcher in a copy of the real bundle, run as a user would; the client it starts is checked live.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <QProcess>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <regex>
#include <thread>
#include "looping-iso.h"
#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;

static QString q(const std::string& s) { return QString::fromStdString(s); }

// A program reaped by a thread the moment it ends, so that the launcher's kill(pid, 0) sees it gone.
struct Child {
    explicit Child(const std::string& program) : pid(fork()) {
        if (pid == 0) execl(program.c_str(), program.c_str(), nullptr), _exit(127);
        reaper = std::thread([this] { int st = 0; waitpid(pid, &st, 0); status = st; });
    }
    ~Child() { if (status == -1) kill(pid, SIGKILL); reaper.join(); }
    const pid_t pid;
    std::atomic<int> status{-1};  // the wait status once reaped
    std::thread reaper;
};

static std::vector<pid_t> children() {  // ours, orphans adopted as subreaper included
    std::vector<pid_t> out;
    for (const auto& e : fs::directory_iterator("/proc"))  // each process's stat: "pid (name) S ppid ..."
        if (std::string s; isdigit(e.path().filename().c_str()[0]) && std::getline(std::ifstream(e.path() / "stat"), s))
            if (atoi(s.c_str() + s.rfind(')') + 4) == getpid()) out.push_back(atoi(s.c_str()));
    return out;
}

static Tree snapshot(const std::string& root, Tree tree = {}) {  // relative path -> content ("/" for a folder) and mode
    for (const auto& e : fs::recursive_directory_iterator(root))
        tree[fs::relative(e.path(), root)] = (e.is_directory() ? "/" : read_file(e.path())) + " mode " + std::to_string(int(fs::status(e.path()).permissions()));
    return tree;
}

enum Twist { kPlain, kNoBinary, kCorrupt, kRunning, kRelative, kNonAsciiHome }; enum Outcome { kInstalled, kKept, kRolledBack };
// installed: the app folder's build, 0 for none; bundle: the build the bundle's INFO names, 0 as built (100).
struct Case { const char* name; int installed, bundle; Twist twist; Outcome outcome; };
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

class LauncherE2E : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // detached clients become our children
        setenv("QT_QPA_PLATFORM", "minimal", 1);  // headless; the offscreen plug-in of Qt 5.15 leaks at exit
        unsetenv("QT_PLUGIN_PATH");  // only the bundle's plug-ins may serve the launcher
        ASSERT_EQ(QProcess::execute("cp", {"-a", BUNDLE_DIR, q(tmp.path())}), 0);
        make_dir(bundle + "/log"), write_file(bundle + "/log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
    }
    void TearDown() override {  // the clients still running are our children by now: end them, reap everything
        for (int i = 0; i < 700 && !children().empty(); ++i, usleep(10000))
            for (pid_t pid : children()) kill(pid, i < 500 ? SIGTERM : SIGKILL), waitpid(pid, nullptr, WNOHANG);
    }
    void set_home(const std::string& name) {
        home = tmp / name, user = home + "/.Lumora", app = user + "/app", bin = app + "/bin/lumora-ui";
        fs::create_directories(home), setenv("HOME", home.c_str(), 1);
    }
    void install(int build) {  // the bundle's client binary as the given build
        fs::create_directories(app);
        EXPECT_EQ(QProcess::execute("bsdtar", {"-xf", q(pkg), "-C", q(app), "bin/lumora-ui"}), 0);
        write_file(app + "/INFO", "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + std::to_string(build) + "\n");
    }
    std::unique_ptr<QProcess> start(bool relative = false, std::unique_ptr<QProcess> p = std::make_unique<QProcess>()) {
        p->setEnvironment(QProcess::systemEnvironment() << "TMPDIR=" + q(tmp.path()));  // the guard's lock file goes there
        if (relative) p->setWorkingDirectory(q(bundle + "/Contents/MacOS"));
        p->start(relative ? "./launcher" : q(bundle + "/Contents/MacOS/launcher"), QStringList());
        return p;
    }
    int finish(QProcess& p, int ms = 20000) {  // the exit code, -1 for a crash or a hang; its output in `out`, its run time in `secs`
        const auto t0 = std::chrono::steady_clock::now();
        const bool done = p.waitForFinished(ms);
        secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count(), out = p.readAllStandardOutput().toStdString();
        return done && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }
    std::string log_of(const std::string& re) {  // the log's lines whose "[level] file" matches re, no time, line numbers as N
        std::ifstream in(user + "/log/launcher.log");
        const std::regex line(R"(\w{3} \d\d \d\d:\d\d:\d\d ((?:)" + re + R"())\(\d+\)(: .*))");
        std::string found;
        for (std::string l; std::getline(in, l);) if (std::smatch m; std::regex_match(l, m, line)) found += m[1].str() + "(N)" + m[m.size() - 1].str() + "\n";
        return found;
    }
    bool pid_file_names(pid_t pid) { return wait_for([&] { return exists(user + "/ui.pid") && read_file(user + "/ui.pid") == "pid=" + std::to_string(pid) + "\n"; }); }
    pid_t client(pid_t old = 0) {  // once started: our (adopted) child other than `old` running the per-user binary; else 0
        pid_t found = 0;
        std::error_code ec;  // a zombie has no exe link
        wait_for([&] { for (pid_t pid : children()) if (pid != old && fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec) == bin) found = pid; return found; });
        return found;
    }
    TempDir tmp;
    std::string bundle = tmp / "Lumora.app", pkg = bundle + "/Contents/Resources/package/lumora.lpk", home, user, app, bin, out;
    double secs = 0;
};

TEST_P(LauncherE2E, LeavesTheInstallAndStartsTheClient) {
    const Case& c = GetParam();
    set_home(c.twist == kNonAsciiHome ? "Jérôme 数据" : "home");
    if (c.installed) install(c.installed);
    if (c.twist == kNoBinary) fs::remove(bin);
    if (c.bundle) write_file(bundle + "/Contents/Resources/INFO", "[Version]\nbuild_version=" + std::to_string(c.bundle) + "\n");
    if (c.twist == kCorrupt) fs::resize_file(pkg, fs::file_size(pkg) / 2);
    const Tree old = exists(app) ? snapshot(app) : Tree();
    std::unique_ptr<Child> old_client(c.twist == kRunning ? new Child(bin) : nullptr);  // it exits 0 on SIGTERM
    ASSERT_TRUE(!old_client || pid_file_names(old_client->pid));
    EXPECT_EQ(finish(*start(c.twist == kRelative)), 0);
    EXPECT_EQ(out, "lib path = '" + (c.twist == kRelative ? "../Frameworks/plugins" : bundle + "/Contents/Frameworks/plugins") + "'\n");
    if (c.outcome == kInstalled) fs::create_directories(tmp / "unpacked"), QProcess::execute("bsdtar", {"-xf", q(pkg), "-C", q(tmp / "unpacked")});
    EXPECT_EQ(snapshot(app), c.outcome == kInstalled ? snapshot(tmp / "unpacked") : old);
    EXPECT_FALSE(exists(app + "_tmp"));
    // Stopped by SIGTERM, on which it exits 0, not by the SIGKILL five seconds later.
    EXPECT_TRUE(!old_client || (secs < 3 && wait_for([&] { return old_client->status == 0; }))) << secs;
    EXPECT_GT(client(old_client ? old_client->pid : 0), 0);
    const std::string l = "[DEBUG] launcher.cpp(N): ", between[] = {"", l + "no need to upgrade\n",
        "[ERROR] lumora-service.cpp(N): Failed to extract package, rollback to old installation\n[ERROR] launcher.cpp(N): Failed to upgrade packge\n"};
    EXPECT_EQ(log_of(R"(\[\w+\] launcher\.cpp|\[ERROR\] lumora-service\.cpp)"), l + "running\n" + between[c.outcome] + l + "done\n");
}

INSTANTIATE_TEST_SUITE_P(Cases, LauncherE2E, ::testing::Values(
    Case{"FirstInstall", 0, 0, kPlain, kInstalled}, Case{"CurrentInstall", 100, 0, kPlain, kKept},
    Case{"DowngradeRefused", 100, 99, kPlain, kKept}, Case{"ReinstallWhenBinaryMissing", 200, 0, kNoBinary, kInstalled},
    Case{"CorruptPackageRollsBack", 99, 0, kCorrupt, kRolledBack}, Case{"UpgradeStopsRunningClient", 99, 0, kRunning, kInstalled},
    Case{"RelativeArgv0", 0, 0, kRelative, kInstalled}, Case{"NonAsciiHome", 0, 0, kNonAsciiHome, kInstalled}),
    [](const ::testing::TestParamInfo<Case>& i) { return std::string(i.param.name); });

// An old client that ignores SIGTERM holds the first launcher in its stop for some five seconds.
TEST_F(LauncherE2E, SecondInstanceIsRefusedAtOnceWhileTheFirstRuns) {
    set_home("home");
    install(99);
    ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);
    write_file(bin, "#!/bin/bash\ntrap '' TERM\necho \"pid=$$\" > \"$HOME/.Lumora/ui.pid\"\nread -t 30 _ <> '" + tmp / "fifo" + "'\n");
    Child stubborn(bin);
    ASSERT_TRUE(pid_file_names(stubborn.pid));
    const auto first = start();
    ASSERT_TRUE(wait_for([&] { return log_of(R"(\[DEBUG\] mac/mac-service\.cpp)").find("local appdata exist") != std::string::npos; }));
    EXPECT_EQ(finish(*start()), 0);
    EXPECT_LT(secs, 1.5);
    EXPECT_EQ(out, "lib path = '" + bundle + "/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(log_of(R"(\[\w+\] main\.cpp)"), "[DEBUG] main.cpp(N): app has already launched, return\n");
    EXPECT_EQ(log_of(R"(\[\w+\] launcher\.cpp)"), "[DEBUG] launcher.cpp(N): running\n");  // the first held the guard throughout
    EXPECT_EQ(finish(*first), 0);
}

// A package on which libarchive loops for ever: after 30 s without progress the launcher gives up,
// rolls back, starts the old client and exits, the looping reader still running.
TEST_F(LauncherE2E, LoopingPackageIsGivenUpAfterThirtySeconds) {
    set_home("home");
    install(99);
    make_looping_iso(pkg);
    const Tree old = snapshot(app);
    EXPECT_EQ(finish(*start(), 60000), 0);
    EXPECT_TRUE(secs > 30 && secs < 45) << secs;
    EXPECT_EQ(snapshot(app), old);
    EXPECT_FALSE(exists(app + "_tmp"));
    EXPECT_GT(client(), 0);
    EXPECT_EQ(log_of(R"(\[ERROR\] [\w-]+\.cpp|\[\w+\] launcher\.cpp)"), "[DEBUG] launcher.cpp(N): running\n"
        "[ERROR] extractor.cpp(N): no progress reading '" + pkg + "' for 30 s, giving up\n"
        "[ERROR] extractor.cpp(N): Failed to calculate total file numbers, ret: -1\n"
        "[ERROR] lumora-service.cpp(N): Failed to extract package, rollback to old installation\n"
        "[ERROR] launcher.cpp(N): Failed to upgrade packge\n[DEBUG] launcher.cpp(N): done\n");
}
