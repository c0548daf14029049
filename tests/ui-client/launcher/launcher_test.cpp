// The launcher's parts in-process: the dialog and the slots that drive it; the single-instance guard; the packager.
#include <gtest/gtest.h>

#include <QLocalSocket>
#include <QPushButton>
#include <QtTest>

#include "extractor.h"
#include "launcher.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "qtsingleapplication.h"
#include "strtable.h"
#include "test-support.h"

using namespace testsupport;

void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

// A child started with the environment's assignments and command, through env.
std::unique_ptr<QProcess> start(const QStringList& args) {
    auto p = std::make_unique<QProcess>();
    p->start("env", args);
    return p;
}

// Leaks of the system's font configuration and of Qt's offscreen platform, not ours.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\nleak:libqoffscreen.so\n"; }

// The launcher's dialog as built, hidden; progress reports, also from another thread, set its bar and label. The texts,
// the values of whole runs, the width and what closing the window does, the dialog test pins down.
TEST(Launcher, DialogBuiltHiddenThenSlotsDriveIt) {
    StrTable::InitStrTable();
    Launcher launcher;  // its dialog has no parent link: it is the one window alive
    auto* d = dynamic_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    ASSERT_NE(d, nullptr);
    // Exactly two hints (Qt itself marks a widget without parent as a window), no cancel button.
    EXPECT_EQ(int(d->windowFlags()), int(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint));
    EXPECT_EQ(QVector<int>({d->minimum(), d->maximum(), d->isVisible(), d->findChildren<QPushButton*>().size()}),
              QVector<int>({0, 100, false, 0}));
    QMetaObject::invokeMethod(&launcher, "UpdateProgress", Q_ARG(int, 7), Q_ARG(int, 3));
    EXPECT_EQ(d->value(), 42);
    // Reports from another thread arrive as queued calls, run by the main thread.
    Notify_Adapter* adapter = Notify_Adapter::GetInstance();
    std::unique_ptr<QThread> reporter(QThread::create([=] {
        adapter->UpdateProgress(3, 2);
        adapter->UpdateDialogText("Entpacken");
    }));
    reporter->start();
    reporter->wait();
    EXPECT_EQ(d->value(), 42);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(std::make_pair(d->value(), d->labelText()), std::make_pair(66, QString("Entpacken")));
}

QString said(QProcess& p) {
    while (!p.canReadLine() && p.waitForReadyRead(10000)) continue;
    return QString::fromUtf8(p.readLine()).trimmed();
}

// The guard probe `exe` with `temp` as its temp folder, holding the guard hold_ms if it gets it; `before` goes before
// it on env's command line. Qt's leaks at its exit are not the guard's; a preloaded library comes before the sanitizer's.
std::unique_ptr<QProcess> probe(const std::string& temp, int hold_ms, const std::string& exe = GUARD_PROBE,
                                const QStringList& before = {}) {
    return start(QStringList{"ASAN_OPTIONS=detect_leaks=0:verify_asan_link_order=0", q("TMPDIR=" + temp)}
                 << before << q(exe) << QString::number(hold_ms));
}

// One holder per executable path and user: a copy at another path, or another user, holds it at the same time. The holder
// listens on a socket next to its lock file; a crashed one leaves both behind, an ended one only the lock file.
TEST(SingleInstance, OneHolderPerPathAndUserAndAnEndedOneFreesTheGuard) {
    TempDir tmp;
    chmod(tmp.path().c_str(), 0755);
    make_tree(tmp.path(), {{"/a", "/"}, {"/b", "/"}, {"/t", "/"}});
    chmod((tmp / "t").c_str(), 01777);
    const std::string temp = tmp / "t", a = tmp / "a/guard_probe", b = tmp / "b/guard_probe";
    std::filesystem::copy_file(GUARD_PROBE, a);
    std::filesystem::copy_file(GUARD_PROBE, b);
    auto holder = probe(temp, 1500, a);
    ASSERT_EQ(said(*holder), "first");
    const QString socket = q(temp) + "/" + QDir(q(temp)).entryList({"*-lockfile"}).value(0).remove("-lockfile");
    const auto listened = [&socket] {
        QLocalSocket s;
        s.connectToServer(socket);
        return s.waitForConnected(2000);
    };
    EXPECT_TRUE(listened());
    const QStringList nobody = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--"};
    EXPECT_EQ(QStringList({said(*probe(temp, 0, a)), said(*probe(temp, 0, b)), said(*probe(temp, 0, a, nobody))}),
              QStringList({"running", "first", "first"})) << "same path; another path; another user";
    holder->kill();  // a crashed instance: its lock file and socket stay behind
    holder->waitForFinished();
    // Each round starts after both of the last one have ended normally.
    for (int round = 0; round < 10; ++round) {
        auto first = probe(temp, 1000, a), second = probe(temp, 1000, a);
        EXPECT_EQ(QSet<QString>({said(*first), said(*second)}), QSet<QString>({"first", "running"})) << "round " << round;
        if (round == 0) { EXPECT_TRUE(listened()) << "the stale socket replaced"; }
        first->waitForFinished();
        second->waitForFinished();
    }
    EXPECT_FALSE(exists(socket.toStdString())) << "an instance that ends removes its socket";
    EXPECT_TRUE(exists(socket.toStdString() + "-lockfile"));
}

// Qt has no temp folder for a TMPDIR that does not exist: the guard then keeps to /tmp, never the working folder. Where
// no lock can be taken (no lock service: ENOLCK), that is no other instance: the probe says why and guards itself by
// its local name, which refuses a second one and ends with its holder, crashed or not.
TEST(SingleInstance, AMissingTempFolderOrALockThatCannotBeTakenStillGuards) {
    TempDir tmp;
    auto lone = probe(tmp / "missing", 0);
    EXPECT_EQ(said(*lone), "first");
    lone->waitForFinished();
    EXPECT_EQ(QDir::current().entryList({"qtsingleapp-*"}), QStringList());
    const QStringList no_locks = {"LD_PRELOAD=" LOCK_FAILS};
    auto holder = probe(tmp.path(), 3000, GUARD_PROBE, no_locks);
    ASSERT_EQ(said(*holder), "first");
    EXPECT_EQ(said(*probe(tmp.path(), 0, GUARD_PROBE, no_locks)), "running");
    EXPECT_EQ(said(*probe(tmp.path(), 0)), "running") << "an instance whose lock works sees it too";
    holder->kill();
    holder->waitForFinished();
    auto next = probe(tmp.path(), 0, GUARD_PROBE, no_locks);
    EXPECT_EQ(said(*next), "first");
    next->waitForFinished();
    EXPECT_TRUE(next->readAllStandardError().contains("cannot be used (No locks available, 37); guarded by its local name instead"));
}

// Each case runs the packager on a folder with its own temporary folder. A refusal gives its reason, exit 1 and leaves
// nothing behind; the launcher's extractor makes exactly the folder's names of a package (which the packager itself
// lists back to check it, INFO last).
TEST(Packager, RefusesUnsafeFoldersAndWritesInfoLast) {
    using Twist = std::function<void(const std::string&)>;
    const std::string info = "[Version]\nbuild_version=7\n";
    // Odd but legal: a name bsdtar -T would take for an option, quotes, a leading backslash, NFC and NFD, U+0085.
    const Twist odd = [](const std::string& d) {
        for (const char* n : {"-C", "bin/-x y", "it's \"*\"", "\\123", "Jos\xc3\xa9", "Jose\xcc\x81", "nel\xc2\x85"})
            write_file(d + "/" + n, n);
    };
    const std::string listback = "the archive does not list back as written ";
    const std::string control = "names with control characters (line breaks, tabs, ...) cannot be packaged: ";
    const std::tuple<const char*, std::string, Twist> cases[] = {
        {"zip", "", nullptr}, {"tar.gz", "", odd},
        // 7z keeps names as UTF-16, which readers give back in NFC; zip readers take a top-level '\' for '/'.
        {"7z", listback + "(missing: $'Jose\\314\\201'; extra: $'Jos\\303\\251')", odd},
        {"zip", listback + "(missing: '\\123'; extra: '/123')", odd},
        {"tar.gz", control + "$'./bin/a\\nb'", [](const std::string& d) { write_file(d + "/bin/a\nb", "x"); }},
        {"tar.gz", "hard links cannot be packaged: ", [](const std::string& d) { link((d + "/a").c_str(), (d + "/h").c_str()); }},
        {"tar.gz", "absolute symbolic link: ./abs -> /etc/hostname", [](const std::string& d) { make_tree(d, {{"/abs", "->/etc/hostname"}}); }},
        {"tar.gz", "symbolic link leads outside the folder", [](const std::string& d) { make_tree(d, {{"/bin/up", "->../../elsewhere"}}); }},
        {"tar.gz", "devices, FIFOs or sockets cannot be packaged: ./fifo", [](const std::string& d) { mkfifo((d + "/fifo").c_str(), 0600); }},
        {"tar.gz", "names that are not valid UTF-8", [](const std::string& d) { write_file(d + "/bad\xff", "x"); }},
        {"tar.gz", "has no INFO file", [](const std::string& d) { unlink((d + "/INFO").c_str()); }},
        {"7z", "no numeric [Version] build_version (found 'v7')", [](const std::string& d) { write_file(d + "/INFO", "[Version]\nbuild_version=v7\n"); }},
    };
    for (const auto& [format, expect, twist] : cases) {
        SCOPED_TRACE(format + (": " + expect));
        TempDir tmp;
        // Names that sort after INFO, and a link that stays inside.
        make_tree(tmp.path(), {{"/c", "/"}, {"/c/INFO", info}, {"/c/a", "a"}, {"/c/bin", "/"}, {"/c/bin/lumora-ui", "ui"},
                               {"/c/bin/ui", "->lumora-ui"}, {"/c/zz", "z"}, {"/tmp", "/"}, {"/x", "/"}});
        if (twist) twist(tmp / "c");
        auto packager = start({q("TMPDIR=" + (tmp / "tmp")), MAKE_PACKAGE, "--format", format, q(tmp / "c"), q(tmp / "out")});
        ASSERT_TRUE(packager->waitForFinished(60000));
        const QString err = packager->readAllStandardError();
        EXPECT_TRUE(QDir(q(tmp / "tmp")).isEmpty());
        if (!expect.empty()) {
            EXPECT_EQ(std::make_tuple(packager->exitCode(), err.startsWith("make-package: "), err.contains(q(expect)), exists(tmp / "out")),
                      std::make_tuple(1, true, true, false)) << err.toStdString();
            continue;
        }
        ASSERT_EQ(packager->exitCode(), 0) << err.toStdString();
        EXPECT_EQ(read_file(tmp / "out/INFO"), info);
        EXPECT_EQ((Extractor{tmp / "x", tmp / "out/lumora.lpk"}).Extract(), 0);
        EXPECT_EQ(names(tmp / "x"), names(tmp / "c"));
    }
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QtSingleApplication app(argc, argv, true);
    return RUN_ALL_TESTS();
}
