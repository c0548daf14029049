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

#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

bool wait_for(const std::function<bool()>& ok, double secs = 5) {
    for (int i = 0; i < secs * 100; ++i, usleep(10000)) if (ok()) return true;
    return false;
}

// A program reaped by a thread the moment it ends, so that the launcher's kill(pid, 0) sees it gone.
struct Child {
    explicit Child(const std::string& program) {
        if ((pid = fork()) == 0) execl(program.c_str(), program.c_str(), nullptr), _exit(127);
        reaper = std::thread([this] { int st = 0; waitpid(pid, &st, 0); status = st; });
    }
    ~Child() { if (status == -1) kill(pid, SIGKILL); reaper.join(); }
    int wait_status(double secs) { return wait_for([this] { return status != -1; }, secs) ? status.load() : -1; }
    pid_t pid;
    std::atomic<int> status{-1};
    std::thread reaper;
};

// Our child processes, orphans we adopted as subreaper included.
std::vector<pid_t> children() {
    std::vector<pid_t> out;
    for (const auto& e : fs::directory_iterator("/proc")) {
        std::ifstream in(e.path() / "stat");
        std::string stat;  // "pid (name) S ppid ..."
        pid_t ppid = 0;
        if (std::isdigit(e.path().filename().string()[0]) && std::getline(in, stat) &&
            std::istringstream(stat.substr(stat.rfind(')') + 4)) >> ppid && ppid == getpid())
            out.push_back(std::stoi(e.path().filename()));
    }
    return out;
}

// Relative path -> content ("/" for a folder) and permission bits.
std::map<std::string, std::string> snapshot(const std::string& root) {
    std::map<std::string, std::string> tree;
    for (const auto& e : fs::recursive_directory_iterator(root))
        tree[fs::relative(e.path(), root)] = (e.is_directory() ? "/" : read_file(e.path())) + " mode " +
                                               std::to_string(int(fs::status(e.path()).permissions()));
    return tree;
}

}  // namespace

class LauncherE2E : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // detached clients become our children
        setenv("QT_QPA_PLATFORM", "minimal", 1);  // headless; the offscreen plug-in of Qt 5.15 leaks at exit
        unsetenv("QT_PLUGIN_PATH");  // only the bundle's plug-ins may serve the launcher
        ASSERT_EQ(QProcess::execute("cp", {"-a", BUNDLE_DIR, q(tmp.path())}), 0);
        make_dir(bundle + "/log");
        write_file(bundle + "/log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
        set_home("home");
    }
    // Every client still running is our child by now: stop it and reap everything.
    void TearDown() override {
        for (pid_t pid : children()) kill(pid, SIGTERM);
        for (int i = 0; waitpid(-1, nullptr, WNOHANG) >= 0; ++i, usleep(10000))
            if (i == 500) for (pid_t pid : children()) kill(pid, SIGKILL);
        EXPECT_TRUE(children().empty());
    }
    void set_home(const std::string& name) { home = tmp / name, fs::create_directories(home), setenv("HOME", home.c_str(), 1); }
    std::string user() const { return home + "/.Lumora"; }
    std::string app() const { return user() + "/app"; }
    std::string package() const { return bundle + "/Contents/Resources/package/lumora.lpk"; }

    // A client folder of the given build around the bundle's client binary.
    void client_dir(const std::string& dir, int build) {
        fs::create_directories(dir);
        EXPECT_EQ(QProcess::execute("bsdtar", {"-xf", q(package()), "-C", q(dir), "bin/lumora-ui"}), 0);
        write_file(dir + "/INFO", "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + std::to_string(build) + "\n");
    }
    std::map<std::string, std::string> package_tree() {
        fs::create_directories(tmp / "unpacked");
        EXPECT_EQ(QProcess::execute("bsdtar", {"-xf", q(package()), "-C", q(tmp / "unpacked")}), 0);
        return snapshot(tmp / "unpacked");
    }

    void start(QProcess& p, bool relative = false) {
        p.setEnvironment(QProcess::systemEnvironment() << "TMPDIR=" + q(tmp.path()));  // the guard's lock file goes there
        if (relative) p.setWorkingDirectory(q(bundle + "/Contents/MacOS"));
        p.setProgram(relative ? "./launcher" : q(bundle + "/Contents/MacOS/launcher"));
        p.start();
    }
    // The exit code, -1 for a crash or a hang; its standard output in `out`, its run time in `secs`.
    int finish(QProcess& p) {
        const auto t0 = std::chrono::steady_clock::now();
        const bool done = p.waitForFinished(20000);
        secs = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
        out = p.readAllStandardOutput().toStdString();
        return done && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }
    int run(bool relative = false) { QProcess p; return start(p, relative), finish(p); }

    // The launcher log's lines from one source file, checked whole, with the line number shown as N.
    Lines log_of(const std::string& src) {
        std::ifstream in(user() + "/log/launcher.log");
        const std::regex line(R"(\w{3} \d\d \d\d:\d\d:\d\d (\[\w+\]) (\S+)\(\d+\): (.*))");
        Lines found;
        std::smatch m;
        for (std::string l; std::getline(in, l);)
            if (std::regex_match(l, m, line) && m[2] == src) found.push_back(m[1].str() + " " + src + "(N): " + m[3].str());
        return found;
    }
    long logged(const std::string& src, const std::string& line) { const Lines l = log_of(src); return std::count(l.begin(), l.end(), line); }
    // The pid in ui.pid once it names a live process (not `other`) running the per-user binary; else 0.
    pid_t client(pid_t other = 0) {
        pid_t pid = 0;
        std::error_code ec;  // a zombie has no exe link
        return wait_for([&] {
            std::ifstream in(user() + "/ui.pid");
            std::string l;
            pid = std::getline(in, l) && l.rfind("pid=", 0) == 0 ? std::atoi(l.c_str() + 4) : 0;
            return pid != other && fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec) == app() + "/bin/lumora-ui";
        }) ? pid : 0;
    }

    TempDir tmp;
    std::string bundle = tmp / "Lumora.app", home, out;
    std::string lib_line = "lib path = '" + bundle + "/Contents/Frameworks/plugins'\n";
    double secs = 0;
};

enum Outcome { kInstalled, kKept, kRolledBack };
// installed 0: nothing installed; bundle_build 0: the package as built (build 100); running: the old client runs.
struct Case { const char *name, *home; bool relative_argv0; int installed; bool with_bin; int bundle_build; bool corrupt, running; Outcome outcome; };
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

class LauncherRun : public LauncherE2E, public ::testing::WithParamInterface<Case> {};

TEST_P(LauncherRun, LeavesTheInstallAndStartsTheClient) {
    const Case& c = GetParam();
    set_home(c.home);
    if (c.installed) client_dir(app(), c.installed), write_file(app() + "/notes.txt", "kept\n");
    if (c.installed && !c.with_bin) fs::remove(app() + "/bin/lumora-ui");
    if (c.bundle_build) {
        client_dir(tmp / "client", c.bundle_build);
        ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {q(tmp / "client"), q(tmp / "made")}), 0);
        fs::rename(tmp / "made/lumora.lpk", package()), fs::rename(tmp / "made/INFO", bundle + "/Contents/Resources/INFO");
    }
    if (c.corrupt) fs::resize_file(package(), fs::file_size(package()) / 2);
    const auto old = c.installed ? snapshot(app()) : std::map<std::string, std::string>();
    std::unique_ptr<Child> old_client(c.running ? new Child(app() + "/bin/lumora-ui") : nullptr);
    ASSERT_TRUE(!old_client || client() == old_client->pid);

    EXPECT_EQ(run(c.relative_argv0), 0);
    EXPECT_EQ(out, c.relative_argv0 ? "lib path = '../Frameworks/plugins'\n" : lib_line);
    EXPECT_EQ(snapshot(app()), c.outcome == kInstalled ? package_tree() : old);
    EXPECT_FALSE(exists(app() + "_tmp"));
    // A running old client is stopped by SIGTERM, on which it exits 0, not by the SIGKILL five seconds later.
    EXPECT_TRUE(!old_client || (secs < 3 && old_client->wait_status(5) == 0)) << secs;
    EXPECT_GT(client(old_client ? old_client->pid : 0), 0);

    Lines steps = {"[DEBUG] launcher.cpp(N): running", "[DEBUG] launcher.cpp(N): done"};
    if (c.outcome != kInstalled)
        steps.insert(steps.begin() + 1, c.outcome == kKept ? "[DEBUG] launcher.cpp(N): no need to upgrade"
                                                           : "[ERROR] launcher.cpp(N): Failed to upgrade packge");
    EXPECT_EQ(log_of("launcher.cpp"), steps);
    const std::string svc = "lumora-service.cpp", info = "[INFO] lumora-service.cpp(N): ";
    EXPECT_EQ(logged(svc, info + "extract package: '" + package() + "' -> '" + app() + "'"), c.outcome != kKept);
    EXPECT_EQ(logged(svc, info + "user installation is ready, removing backup app"), c.outcome == kInstalled);
    EXPECT_EQ(logged(svc, "[ERROR] " + svc + "(N): Failed to extract package, rollback to old installation"),
              c.outcome == kRolledBack);
}

INSTANTIATE_TEST_SUITE_P(Cases, LauncherRun, ::testing::Values(
    Case{"FirstInstall", "home", false, 0, true, 0, false, false, kInstalled},
    Case{"RelativeArgv0", "home", true, 0, true, 0, false, false, kInstalled},
    Case{"NonAsciiHome", "Jérôme 数据", false, 0, true, 0, false, false, kInstalled},
    Case{"CurrentInstall", "home", false, 100, true, 0, false, false, kKept},
    Case{"DowngradeRefused", "home", false, 100, true, 99, false, false, kKept},
    Case{"ReinstallWhenBinaryMissing", "home", false, 200, false, 0, false, false, kInstalled},
    Case{"UpgradeStopsRunningClient", "home", false, 99, true, 0, false, true, kInstalled},
    Case{"CorruptPackageRollsBack", "home", false, 99, true, 0, true, false, kRolledBack}),
    [](const ::testing::TestParamInfo<Case>& i) { return std::string(i.param.name); });

TEST_F(LauncherE2E, SecondInstanceLeavesAtOnceWhileTheFirstUpgrades) {
    // An old client that ignores SIGTERM holds the first launcher in its stop for about five seconds.
    client_dir(app(), 99);
    ASSERT_EQ(mkfifo((tmp / "fifo").c_str(), 0600), 0);
    write_file(app() + "/bin/lumora-ui", "#!/bin/bash\ntrap '' TERM\necho \"pid=$$\" > \"$HOME/.Lumora/ui.pid\"\n"
                                         "read -t 30 _ <> '" + tmp / "fifo" + "'\n");
    Child stubborn(app() + "/bin/lumora-ui");
    ASSERT_TRUE(wait_for([&] { return exists(user() + "/ui.pid") && read_file(user() + "/ui.pid") == "pid=" + std::to_string(stubborn.pid) + "\n"; }));
    QProcess first;
    start(first);
    ASSERT_TRUE(wait_for([&] { return logged("mac/mac-service.cpp", "[DEBUG] mac/mac-service.cpp(N): local appdata exist"); }));
    const auto before = snapshot(app());

    EXPECT_EQ(run(), 0);
    EXPECT_LT(secs, 1.5);
    EXPECT_EQ(out, lib_line);
    EXPECT_EQ(log_of("main.cpp"), Lines{"[DEBUG] main.cpp(N): app has already launched, return"});
    EXPECT_EQ(snapshot(app()), before);
    EXPECT_EQ(log_of("launcher.cpp").size(), 1u);  // the first has not finished: it held the guard throughout

    EXPECT_EQ(finish(first), 0);
    EXPECT_EQ(stubborn.wait_status(1), SIGKILL);  // the wait status of a process killed by that signal
    EXPECT_EQ(log_of("launcher.cpp"), (Lines{"[DEBUG] launcher.cpp(N): running", "[DEBUG] launcher.cpp(N): done"}));
    EXPECT_GT(client(stubborn.pid), 0);
}
