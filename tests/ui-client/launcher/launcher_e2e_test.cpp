// The built launcher in a copy of the real bundle, run as a user would; the client it starts is checked live.
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <QProcess>
#include <QRegularExpression>
#include <atomic>
#include <thread>
#include "looping-iso.h"
#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;

// As root, the launcher and the clients run as nobody, so that file modes stop them as they stop a user.
static const uid_t kUser = geteuid() == 0 ? 65534 : 0;

// A program reaped by a thread the moment it ends, so that the launcher's kill(pid, 0) sees it gone.
struct Child {
    explicit Child(const std::string& program) : pid(spawn(program.c_str(), nullptr, kUser)) {}
    ~Child() {
        if (status == -1) kill(pid, SIGKILL);
        reaper.join();
    }
    const pid_t pid;
    std::atomic<int> status{-1};  // the wait status once reaped
    std::thread reaper{[this] {
        int st = 0;
        waitpid(pid, &st, 0);
        status = st;
    }};
};

static std::vector<pid_t> children() {  // ours, orphans adopted as subreaper included
    std::vector<pid_t> out;
    for (const auto& e : fs::directory_iterator("/proc"))  // each process's stat: "pid (name) S ppid ..."
        if (std::string s; isdigit(e.path().filename().c_str()[0]) && std::getline(std::ifstream(e.path() / "stat"), s))
            if (atoi(s.c_str() + s.rfind(')') + 4) == getpid()) out.push_back(atoi(s.c_str()));
    return out;
}

enum Twist { kPlain, kNoBinary, kCorrupt, kRunning, kRelative, kLockedFolders, kNoLogFolder, kUnreadableInfo, kLooping };
enum Outcome { kInstalled, kKept, kRolledBack };
// installed: the app folder's build, 0 for none; bundle: the build the bundle's INFO names, 0 as built (100).
// home: the home folder's name as stored; asked: as HOME spells it, when otherwise.
struct Case { const char* name; int installed, bundle; Twist twist; Outcome outcome; const char* home = "home", *asked = nullptr; };
const char* const kNfdHome = "Jose\xCC\x81 Mu\xCC\x88ller";  // stored decomposed, as copied from another system
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

class LauncherE2E : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // detached clients become our children
        setenv("QT_QPA_PLATFORM", "minimal", 1);  // headless; the offscreen plug-in of Qt 5.15 leaks at exit
        unsetenv("QT_PLUGIN_PATH");  // only the bundle's plug-ins may serve the launcher
        ASSERT_EQ(QProcess::execute("cp", {"-a", BUNDLE_DIR, q(tmp.path())}), 0);
        make_dir(bundle + "/log");
        write_file(bundle + "/log/launcher.debug", "launcher_debug=7\nservice_debug=7\n");
    }
    void TearDown() override {  // the clients still running are our children by now: end them, reap everything
        for (int i = 0; i < 700 && !children().empty(); ++i, usleep(10000))
            for (pid_t pid : children()) kill(pid, i < 500 ? SIGTERM : SIGKILL), waitpid(pid, nullptr, WNOHANG);
    }
    void set_home(const std::string& name) {
        home = tmp / name, user = home + "/.Lumora", app = user + "/app", bin = app + "/bin/lumora-ui";
        fs::create_directories(home);
        setenv("HOME", home.c_str(), 1);
    }
    void install(int build) {  // the bundle's client binary as the given build, and a file only it has
        fs::create_directories(app + "/share");
        write_file(app + "/share/only-in-" + std::to_string(build), "old");
        EXPECT_EQ(QProcess::execute("bsdtar", {"-xf", q(pkg), "-C", q(app), "bin/lumora-ui"}), 0);
        write_file(app + "/INFO", "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + std::to_string(build) + "\n");
    }
    // Through env, with its options and assignments `vars` ("-i" for no inherited variable, "NAME=value").
    std::unique_ptr<QProcess> start(bool relative = false, const QStringList& vars = {}) {
        if (kUser) give_to(tmp.path(), kUser);
        auto p = std::make_unique<QProcess>();
        if (relative) p->setWorkingDirectory(q(bundle + "/Contents/MacOS"));
        QStringList args = wrapper;  // the guard's lock file goes into TMPDIR
        args << "env" << vars << q("TMPDIR=" + (temp.empty() ? tmp.path() : temp));
        if (kUser) args << "/usr/bin/setpriv" << "--reuid=65534" << "--regid=65534" << "--clear-groups" << "--";
        args << (relative ? "./launcher" : q(bundle + "/Contents/MacOS/launcher"));
        p->start(args.takeFirst(), args);
        return p;
    }
    void put_package(const Tree& client) {  // the client folder's package, made by our packager, as the bundle's
        make_dir(tmp / "client");
        make_tree(tmp / "client", client);
        write_file(tmp / "client/INFO", "[Version]\nbuild_version=100\n");
        chmod((tmp / "client/bin/lumora-ui").c_str(), 0755);
        ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {q(tmp / "client"), q(bundle + "/Contents/Resources/package")}), 0);
        fs::rename(bundle + "/Contents/Resources/package/INFO", bundle + "/Contents/Resources/INFO");
    }
    // The exit code, -1 for a crash or a hang; its output in `out`, its run time in `secs`.
    int finish(QProcess& p, int ms = 60000) {  // generous: each upgrade flushes a file system others write to
        const auto t0 = std::chrono::steady_clock::now();
        const bool done = p.waitForFinished(ms);
        secs = seconds_since(t0);
        out = p.readAllStandardOutput().toStdString();
        return done && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }
    std::string log_of(const std::string& re) { return log_lines(user + "/log/launcher.log", re); }
    Tree package() {  // the package's tree as unpacked
        fs::create_directories(tmp / "unpacked");
        QProcess::execute("bsdtar", {"-xf", q(pkg), "-C", q(tmp / "unpacked")});
        return snapshot(tmp / "unpacked", true);
    }
    // `bin` started, when `stubborn` as a script that ignores SIGTERM and ends when a line comes down the fifo; its pid once
    // the pid file names it, else 0.
    pid_t running(std::unique_ptr<Child>& client, bool stubborn = false) {
        if (stubborn) {
            mkfifo((tmp / "fifo").c_str(), 0600);  // or there already
            write_client(bin, "", "30", tmp / "fifo");
        }
        if (kUser) give_to(tmp.path(), kUser);
        client = std::make_unique<Child>(bin);
        return comes_to_hold(user + "/ui.pid", "pid=" + std::to_string(client->pid) + "\n") ? client->pid : 0;
    }
    pid_t client(pid_t old = 0) {  // once started: our (adopted) child other than `old` running the per-user binary; else 0
        pid_t found = 0;
        std::error_code ec;  // a zombie has no exe link
        wait_for([&] {
            for (pid_t pid : children())
                if (pid != old && fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec) == bin) found = pid;
            return found;
        });
        return found;
    }
    TempDir tmp;
    QStringList wrapper;  // a program the launcher runs under
    std::string temp;  // its temp folder, if not tmp
    std::string bundle = tmp / "Lumora.app", pkg = bundle + "/Contents/Resources/package/lumora.lpk", home, user, app, bin, out;
    double secs = 0;
};

TEST_P(LauncherE2E, LeavesTheInstallAndStartsTheClient) {
    const Case& c = GetParam();
    set_home(c.home);
    if (c.installed) install(c.installed);
    if (c.twist == kNoBinary) fs::remove(bin);
    if (c.bundle) write_file(bundle + "/Contents/Resources/INFO", "[Version]\nbuild_version=" + std::to_string(c.bundle) + "\n");
    if (c.twist == kLockedFolders) {  // damaged after a folder that its extraction leaves with mode 000
        put_package({{"/a", "/"}, {"/a/f", "x"}, {"/z", std::string(1 << 20, '\0')}});
        for (std::string d : {"/client/a", "/client"}) chmod((tmp / d).c_str(), 0);  // the package's own folder too
        ASSERT_EQ(QProcess::execute("bsdtar", {"-czf", q(pkg), "-n", "-C", q(tmp / "client"), ".", "a", "a/f", "z", "INFO"}), 0);
    }
    if (c.twist == kCorrupt || c.twist == kLockedFolders) fs::resize_file(pkg, fs::file_size(pkg) / 2);
    if (c.twist == kLooping) make_looping_iso(pkg);
    if (c.twist == kNoLogFolder) make_tree(home, {{"/.Lumora", "/"}, {"/.Lumora/log", "in the way"}});
    const Tree old = exists(app) ? snapshot(app, true) : Tree();
    std::unique_ptr<Child> old_client;  // it exits 0 on SIGTERM
    if (c.twist == kRunning) { ASSERT_GT(running(old_client), 0); }
    if (c.twist == kUnreadableInfo) chmod((bundle + "/Contents/Resources/INFO").c_str(), 0);
    EXPECT_EQ(finish(*start(c.twist == kRelative, c.asked ? QStringList{q("HOME=" + tmp / c.asked)} : QStringList())), 0);
    EXPECT_EQ(out, "lib path = '" + (c.twist == kRelative ? "../Frameworks/plugins" : bundle + "/Contents/Frameworks/plugins") + "'\n");
    EXPECT_EQ(snapshot(app, true), c.outcome == kInstalled ? package() : old);
    EXPECT_FALSE(exists(app + "_tmp"));
    for (const char* made : {"/.Lumora/app", "/.Lumora/log"})  // the client may make its own folder there, not the launcher
        if (c.asked) { EXPECT_FALSE(exists(tmp / c.asked + made)) << "a second home in the other form"; }
    if (old_client) {  // stopped by SIGTERM, on which it exits 0, not by the SIGKILL five seconds later
        EXPECT_LT(secs, 3);
        EXPECT_TRUE(wait_for([&] { return old_client->status == 0; })) << old_client->status;
    }
    EXPECT_GT(client(old_client ? old_client->pid : 0), 0);
    const std::string l = "[DEBUG] launcher.cpp(N): ", between[] = {"", l + "no need to upgrade\n",
        "[ERROR] lumora-service.cpp(N): Failed to extract package, rollback to old installation\n"
        "[ERROR] launcher.cpp(N): Failed to upgrade packge\n"};
    const std::string lines = c.twist == kNoLogFolder ? "" : l + "running\n" + between[c.outcome] + l + "done\n";
    EXPECT_EQ(log_of(R"(\[\w+\] launcher\.cpp|\[ERROR\] lumora-service\.cpp)"), lines);
    if (c.twist == kUnreadableInfo) {
        EXPECT_EQ(log_of(R"(\[INFO\] lumora-service\.cpp(?=\(N\): target))"), "[INFO] lumora-service.cpp(N): target_version = (, , , )\n");
    }
    if (c.twist == kLooping) {  // libarchive loops for ever: given up after 30 s without progress, the reader still running
        EXPECT_GT(secs, 30);
        EXPECT_LT(secs, 45);
        EXPECT_EQ(log_of(R"(\[ERROR\] extractor\.cpp)"), "[ERROR] extractor.cpp(N): no progress reading '" + pkg +
                  "' for 30 s, giving up\n[ERROR] extractor.cpp(N): Failed to calculate total file numbers, ret: -1\n");
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, LauncherE2E, ::testing::Values(
    Case{"FirstInstall", 0, 0, kPlain, kInstalled}, Case{"CurrentInstall", 100, 0, kPlain, kKept},
    Case{"DowngradeRefused", 100, 99, kPlain, kKept}, Case{"ReinstallWhenBinaryMissing", 200, 0, kNoBinary, kInstalled},
    Case{"CorruptPackageRollsBack", 99, 0, kCorrupt, kRolledBack}, Case{"UpgradeStopsRunningClient", 99, 0, kRunning, kInstalled},
    Case{"RelativeArgv0", 0, 0, kRelative, kInstalled}, Case{"NonAsciiHome", 0, 0, kPlain, kInstalled, "Jérôme 数据"},
    Case{"NfdHomeFirstInstall", 0, 0, kPlain, kInstalled, kNfdHome}, Case{"NfdHomeCurrentInstall", 100, 0, kPlain, kKept, kNfdHome},
    Case{"NfdHomeAskedForInNfc", 99, 0, kRunning, kInstalled, kNfdHome, "Jos\xC3\xA9 M\xC3\xBCller"},
    Case{"LockedFoldersOfADamagedPackageRollBack", 99, 0, kLockedFolders, kRolledBack},
    Case{"NoLogFolderLogsNothingAndGoesOn", 0, 0, kNoLogFolder, kInstalled},
    Case{"UnreadableBundleInfoIsBuildZero", 100, 0, kUnreadableInfo, kKept},
    Case{"LoopingPackageIsGivenUpAfterThirtySeconds", 99, 0, kLooping, kRolledBack}),
    [](const ::testing::TestParamInfo<Case>& i) { return std::string(i.param.name); });

// An old client that ignores SIGTERM holds the first launcher in its stop for some five seconds: a second instance is
// refused at once. Where the lock file cannot even be made, the first instance says so and guards itself by other means.
// The old client exits 2.5 s in; another program takes its pid before the SIGKILL moment and is never signalled.
TEST_F(LauncherE2E, SecondInstanceIsRefusedAndTheProgramThatTookTheClientsPidIsNeverSignalled) {
    write_file(tmp / "file", "");
    for (const std::string& folder : {tmp.path(), tmp / "file"}) {  // a file: no lock file can be made in it
        SCOPED_TRACE(folder);
        temp = folder;
        set_home("home-" + std::to_string(temp.size()));
        install(99);
        std::unique_ptr<Child> stubborn;
        ASSERT_GT(running(stubborn, true), 0);
        const auto first = start();
        ASSERT_TRUE(wait_for([&] { return log_of(R"(\[DEBUG\] mac/mac-service\.cpp(?=\(N\): local appdata exist))") != ""; }));
        const auto begun = std::chrono::steady_clock::now();
        EXPECT_EQ(finish(*start()), 0);
        EXPECT_LT(secs, 1.5);
        const std::string refused = "[DEBUG] main.cpp(N): app has already launched, return\n", fallback = "[WARNING] main.cpp(N): "
            "single-instance lock '" + temp + "/qtsingleapp-launch-*' cannot be used (Not a directory, 20); guarded by its local name instead\n";
        const std::string main_lines = std::regex_replace(log_of(R"(\[\w+\] main\.cpp)"), std::regex("launch-[^']*-lockfile"), "launch-*");
        EXPECT_EQ(main_lines, folder == tmp.path() ? refused : fallback + refused);
        EXPECT_EQ(log_of(R"(\[\w+\] launcher\.cpp)"), "[DEBUG] launcher.cpp(N): running\n");  // the first held the guard throughout
        std::this_thread::sleep_until(begun + std::chrono::milliseconds(2500));
        write_file(tmp / "fifo", "end\n");
        ASSERT_TRUE(wait_for([&] { return stubborn->status != -1; }));
        const auto sleeper = [] { return spawn("/bin/sleep", "30", kUser); };  // taking a given pid needs root
        const pid_t taker = geteuid() == 0 ? at_pid(stubborn->pid, sleeper) : sleeper();
        if (geteuid() == 0) { EXPECT_EQ(taker, stubborn->pid); }
        EXPECT_EQ(finish(*first), 0);
        EXPECT_EQ(waitpid(taker, nullptr, WNOHANG), 0) << "the program that took the client's pid was signalled";
        EXPECT_EQ(snapshot(app, true), package());
        EXPECT_EQ(log_of(R"(\[ERROR\] [\w/.-]+|\[NOTE\] mac/mac-service\.cpp)"), "");
    }
}

// Names are UTF-8 bytes whatever the locale: without locale variables, or with C or POSIX, a package written as
// most are (UTF-8 names, made under a UTF-8 locale) installs byte for byte as under a UTF-8 locale.
TEST_F(LauncherE2E, EveryLocaleInstallsThePackageByteForByte) {
    const std::string nfd = "cafe\xCC\x81", nfc = "\xC3\xA9t\xC3\xA9";
    put_package({{"/bin", "/"}, {"/bin/lumora-ui", "#!/bin/sh\n"}, {"/données", "/"}, {"/données/" + nfc, nfc}, {"/" + nfd, nfd},
                 {"/日本語", "->données/" + nfc}});
    Tree reference;  // as installed under a UTF-8 locale, the first
    // The environment of `env -i`, and what the sanitizers are told.
    const QStringList bare = QStringList{"-i", "QT_QPA_PLATFORM=minimal"}
                             << QProcess::systemEnvironment().filter(QRegularExpression("^(A|UB|L)SAN_OPTIONS="));
    for (const char* format : {"pax", "zip"}) {
        ASSERT_EQ(QProcess::execute("env", {"LC_ALL=C.UTF-8", "bsdtar", "-c", "--format", format, "-f", q(pkg), "-n", "-C",
                                            q(tmp / "client"), "bin", "bin/lumora-ui", "données", "données/" + q(nfc), q(nfd), "日本語",
                                            "INFO"}), 0);
        for (const QStringList& locale : {QStringList{"LANG=C.UTF-8"}, {}, {"LANG=C"}, {"LC_ALL=POSIX"}, {"LANG=C.UTF-8", "LC_ALL=C"}}) {
            SCOPED_TRACE(format + (" " + locale.join(" ").toStdString()));
            set_home(std::string("home-") + format + locale.join("-").toStdString());
            EXPECT_EQ(finish(*start(false, QStringList(bare) << q("HOME=" + home) << locale)), 0);
            if (reference.empty()) reference = snapshot(app, true);
            EXPECT_EQ(snapshot(app, true), reference);
        }
    }
    EXPECT_EQ(reference.size(), 7u);
    EXPECT_EQ(reference["/données/" + nfc], nfc + " mode 420");
    EXPECT_EQ(reference["/日本語"], "->données/" + nfc);
}

// INFO tells the next start that the installation is complete, so it reaches the disk after everything else, and the
// old installation is deleted only once the new one is on disk: one flush before each. The client gets the launcher's
// standard streams and nothing else: no log, guard, socket or archive, nor a descriptor the launcher itself inherited.
TEST_F(LauncherE2E, AnUpgradeFlushesBeforeItsInfoAndBeforeTheBackupGoesAndTheClientInheritsNoDescriptors) {
    set_home("home");
    put_package({{"/bin", "/"}, {"/bin/lumora-ui", "#!/bin/sh\nexec ls /proc/self/fd > \"$HOME/fds\"\n"}});  // it ends, so strace ends
    install(99);
    const std::string trace = tmp / "trace";
    wrapper = QStringList{"strace", "-f", "-qq", "-o", q(trace), "-e", "trace=syncfs,openat,unlink,unlinkat,rmdir"};
    const int inherited = open("/dev/null", O_RDONLY);  // not close-on-exec: the launcher gets it
    auto launcher = start(false, {"ASAN_OPTIONS=detect_leaks=0"});  // no leak check under ptrace
    close(inherited);
    EXPECT_EQ(finish(*launcher), 0);
    std::vector<std::string> events;  // "sync", "write <path in app>", "remove" (of a run of removals in app_tmp)
    const std::regex sync(R"(syncfs\(\d+\) += 0)"), write(R"x(openat\(AT_FDCWD, ")x" + app + R"x(/([^"]+)", O_WRONLY)x"),
        remove(R"x((?:unlink|unlinkat|rmdir)\((?:AT_FDCWD, )?")x" + app + R"x(_tmp)x");
    std::ifstream in(trace);
    for (std::string l; std::getline(in, l);)
        if (std::smatch m; std::regex_search(l, sync)) events.push_back("sync");
        else if (std::regex_search(l, m, write)) events.push_back("write " + m[1].str());
        else if (std::regex_search(l, m, remove) && (events.empty() || events.back() != "remove")) events.push_back("remove");
    EXPECT_EQ(events, (std::vector<std::string>{"write bin/lumora-ui", "sync", "write INFO", "sync", "remove"}));
    ASSERT_TRUE(wait_for([&] { return exists(home + "/fds") && !read_file(home + "/fds").empty(); }));
    EXPECT_EQ(read_file(home + "/fds"), "0\n1\n2\n3\n");  // 3 is the folder ls reads
}
