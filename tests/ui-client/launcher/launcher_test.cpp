// The launcher's parts: dialog, wiring, a whole run and the slots; the single-instance guard; the packager.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QLocalServer>
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

int qInitResources_texts();
using namespace testsupport;

QString q(const std::string& s) { return QString::fromStdString(s); }
void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

// A child run to its end: exit code (-1 when it crashed), standard output, standard error.
std::tuple<int, QByteArray, QByteArray> run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(60000);
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(), p.readAllStandardError()};
}

QStringList g_wiring;

// Leaks of the system's font configuration and of Qt's offscreen platform, not ours.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\nleak:libqoffscreen.so\n"; }

TEST(Dialog, BuiltHiddenByItsConstructorInTheInstalledLanguage) {
    StrTable::InitStrTable();
    ProcessingProgressDialog d;
    EXPECT_EQ(d.windowTitle() + "|" + d.labelText(), "Quennet Lumora|Lumora is initializing...");
    // Exactly these two hints; Qt itself marks a widget without parent as a window.
    EXPECT_EQ(d.windowFlags(), Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    EXPECT_EQ(QVector<int>({d.minimum(), d.maximum(), d.value(), d.minimumWidth(), d.maximumWidth()}),
              QVector<int>({0, 100, 0, 400, 400}));
    EXPECT_EQ(d.font().family(), "Arial");
    EXPECT_EQ(d.windowModality(), Qt::WindowModal);
    EXPECT_EQ(d.styleSheet(), " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
    EXPECT_FALSE(d.isVisible());

    qInitResources_texts();
    QTranslator german;
    ASSERT_TRUE(german.load(":/deu.qm") && QCoreApplication::installTranslator(&german));
    ProcessingProgressDialog de;
    QCoreApplication::removeTranslator(&german);
    EXPECT_EQ(de.windowTitle() + "|" + de.labelText(), "Quennet Lumora|Lumora wird initialisiert ...");
}

// Over a current per-user install: client started, dialog never shown, loop ends with 0; then the slots.
TEST(Launcher, CurrentInstallStartsTheClientThenSlotsDriveTheDialog) {
    TempDir tmp;
    const std::string app = tmp / "home/.Lumora/app";
    QDir().mkpath(q(app + "/bin"));
    make_tree(app, {{"/INFO", "[Version]\nbuild_version=1\n"}, {"/bin/lumora-ui", "#!/bin/sh\necho $$ > '" + tmp / "ran" + "'\n"}});
    chmod((app + "/bin/lumora-ui").c_str(), 0755);
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QByteArray::fromStdString(tmp / "home"));
    StrTable::InitStrTable();
    Launcher launcher;  // its dialog has no parent link: it is the one window alive
    // Closing the dialog's window must not end the loop before LaunchDone.
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
    auto* d = dynamic_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    ASSERT_NE(d, nullptr);
    EXPECT_TRUE(d->findChildren<QPushButton*>().isEmpty());

    // The debug dump is the only public view of both ends of the launcher's connections.
    const QtMessageHandler previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) {
        if (m.contains("--> ") || m.contains("<-- ")) g_wiring << m.simplified();
    });
    launcher.dumpObjectInfo();
    qInstallMessageHandler(previous);
    g_wiring.sort();
    EXPECT_EQ(g_wiring.join(";"), "--> Worker::unnamed HandleServicce();<-- Notify_Adapter::unnamed SetLabelText(QString);<-- "
                                  "Notify_Adapter::unnamed UpdateProgress(int,int);<-- Worker::unnamed LaunchDone();<-- Worker::unnamed "
                                  "SetLabelText(QString);<-- Worker::unnamed ShowMsgBox();<-- Worker::unnamed UpdateProgress(int,int)");

    launcher.Run();
    launcher.Start();
    EXPECT_EQ(QApplication::exec(), 0);
    qputenv("HOME", home);
    EXPECT_EQ(d->windowHandle(), nullptr);  // never shown: no window was ever made
    ASSERT_GT(reap_marked(tmp / "ran"), 0);

    // (100, 100) first: with auto-reset on, reaching the maximum would reset the bar.
    for (const auto& p : {std::array<int, 3>{100, 100, 100}, {7, 3, 42}, {400, 0, 0}, {3, 2, 66}, {3, 1, 33}}) {
        QMetaObject::invokeMethod(&launcher, "UpdateProgress", Q_ARG(int, p[0]), Q_ARG(int, p[1]));
        EXPECT_EQ(d->value(), p[2]) << p[0] << ", " << p[1];
    }
    // Reports from another thread arrive as queued calls, run by the main thread.
    Notify_Adapter* adapter = Notify_Adapter::GetInstance();
    std::unique_ptr<QThread> reporter(QThread::create([=] { adapter->UpdateProgress(3, 2), adapter->UpdateDialogText("Entpacken"); }));
    reporter->start();
    reporter->wait();
    EXPECT_EQ(d->value(), 33);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(d->value(), 66);
    EXPECT_EQ(d->labelText(), "Entpacken");
    QMetaObject::invokeMethod(&launcher, "ShowMsgBox");
    EXPECT_TRUE(d->isVisible());
}

TEST(SingleInstance, NamesComeFromTheExecutablePathAndTheUser) {
    auto* single = qobject_cast<QtSingleApplication*>(qApp);  // "launcher_test": six letters at most
    const QByteArray path = QCoreApplication::applicationFilePath().toUtf8();
    const QString name = "qtsingleapp-launch-" + QString::number(qChecksum(path.constData(), path.size()), 16) + "-" +
                         QString::number(getuid(), 16);
    EXPECT_EQ(single->socketName(), name);
    EXPECT_EQ(single->lockFileName(), QDir::tempPath() + "/" + name + "-lockfile");
}

QString said(QProcess& p) {
    while (!p.canReadLine() && p.waitForReadyRead(10000)) continue;
    return QString::fromUtf8(p.readLine()).trimmed();
}

// A guard probe that holds the guard hold_ms if it gets it, with `temp` as its temp folder. Qt's leaks at its exit
// are not the guard's; a preloaded library comes before the sanitizer's.
std::unique_ptr<QProcess> start_probe(const TempDir& temp, int hold_ms, const QString& preload = "") {
    auto p = std::make_unique<QProcess>();
    p->start("env", {"ASAN_OPTIONS=detect_leaks=0:verify_asan_link_order=0", "LD_PRELOAD=" + preload, "TMPDIR=" + q(temp.path()),
                     GUARD_PROBE, QString::number(hold_ms)});
    return p;
}

// Where no lock can be taken (no lock service: ENOLCK), that is no other instance: the probe says why and
// guards itself by its local name, which refuses a second one and ends with its holder, crashed or not.
TEST(SingleInstance, ALockThatCannotBeTakenFallsBackOnAGuardThatEndsWithItsHolder) {
    TempDir tmp;
    auto holder = start_probe(tmp, 3000, LOCK_FAILS);
    ASSERT_EQ(said(*holder), "first");
    EXPECT_EQ(said(*start_probe(tmp, 0, LOCK_FAILS)), "running");
    EXPECT_EQ(said(*start_probe(tmp, 0)), "running") << "an instance whose lock works sees it too";
    holder->kill();
    holder->waitForFinished();
    auto next = start_probe(tmp, 0, LOCK_FAILS);
    EXPECT_EQ(said(*next), "first");
    next->waitForFinished();
    EXPECT_TRUE(next->readAllStandardError().contains("cannot be used (No locks available, 37); guarded by its local name instead"));
}

TEST(SingleInstance, OneHolderAtATimeAndAnEndedOneFreesTheGuard) {
    TempDir tmp;
    const auto start_probe = [&tmp](int hold_ms) { return ::start_probe(tmp, hold_ms); };
    // The holder listens on "<lock file name without -lockfile>" in the same folder.
    const QString socket = q(tmp.path()) + "/qtsingleapp-guardp-" +
                           QString::number(qChecksum(QByteArray(GUARD_PROBE).constData(), sizeof GUARD_PROBE - 1), 16) + "-" +
                           QString::number(getuid(), 16);
    const auto listened = [&socket] {
        QLocalSocket s;
        s.connectToServer(socket);
        return s.waitForConnected(2000);
    };
    auto holder = start_probe(1500);
    ASSERT_EQ(said(*holder), "first");
    EXPECT_TRUE(listened());
    EXPECT_EQ(said(*start_probe(0)), "running");
    holder->kill();  // a crashed instance: its lock file and socket stay behind
    holder->waitForFinished();
    EXPECT_FALSE(listened());
    // Each round starts after both of the last one have ended normally.
    for (int round = 0; round < 10; ++round) {
        auto a = start_probe(1000), b = start_probe(1000);
        EXPECT_EQ(QSet<QString>({said(*a), said(*b)}), QSet<QString>({"first", "running"})) << "together, round " << round;
        if (round == 0) {
            EXPECT_TRUE(listened()) << "the stale socket replaced";
        }
        a->waitForFinished(), b->waitForFinished();
    }
    EXPECT_FALSE(exists(socket.toStdString())) << "an instance that ends removes its socket";
    EXPECT_TRUE(exists(socket.toStdString() + "-lockfile"));
}

// Each case runs the packager with its own temporary folder and a wrapper bsdtar, when the case
// writes one, first on PATH. A refusal gives its reason, exit 1 and leaves nothing behind; a package
// lists INFO last, and the launcher's extractor makes exactly the folder's names of it.
TEST(Packager, RefusesUnsafeFoldersAndWritesInfoLast) {
    using Twist = std::function<void(const std::string&)>;
    const std::string info = "[Version]\nbuild_version=7\n";
    std::unique_ptr<QLocalServer> server;
    const auto named = [](std::string name) -> Twist { return [name](const std::string& d) { write_file(d + "/bin/" + name, "x"); }; };
    // Odd but legal: a name bsdtar -T would take for an option, quotes, a leading backslash, NFC and NFD, U+0085.
    const Twist odd = [](const std::string& d) {
        for (const char* n : {"-C", "bin/-x y", "it's \"*\"", "\\123", "Jos\xc3\xa9", "Jose\xcc\x81", "nel\xc2\x85"})
            write_file(d + "/" + n, n);
    };
    // bsdtar that, when it creates, runs with these arguments instead.
    const auto wrap = [](std::string args) -> Twist { return [args](const std::string& d) {
        write_file(d + "/../wrap/bsdtar", "#!/bin/sh\n[ \"$1\" = -c ] && set -- " + args + "\nexec /usr/bin/bsdtar \"$@\"\n");
        chmod((d + "/../wrap/bsdtar").c_str(), 0755);
    }; };
    const std::string listback = "the archive does not list back as written ";
    const std::string control = "names with control characters (line breaks, tabs, ...) cannot be packaged: ";
    const std::tuple<const char*, std::string, Twist> cases[] = {
        {"tar.gz", "", nullptr}, {"zip", "", nullptr}, {"7z", "", nullptr}, {"tar.gz", "", odd}, {"cpio", "", odd},
        // 7z keeps names as UTF-16, which readers give back in NFC; zip readers take a top-level '\' for '/'.
        {"7z", listback + "(missing: $'Jose\\314\\201'; extra: $'Jos\\303\\251')", odd},
        {"zip", listback + "(missing: '\\123'; extra: '/123')", odd},
        {"tar.gz", listback + "(missing: 'zz'; extra: none)", wrap("--exclude zz \"$@\"")},
        {"zip", listback + "(missing: none; extra: 'a')", wrap("\"$@\" a")},
        {"tar.gz", control + "$'./bin/a\\nb'", named("a\nb")}, {"tar.gz", control + "$'./bin/a\\tb'", named("a\tb")},
        {"tar.gz", control + "$'./bin/c\\001'", named("c\x01")}, {"tar.gz", control + "$'./bin/d\\177'", named("d\x7f")},
        {"tar.gz", "hard links cannot be packaged: ", [](const std::string& d) {
             for (int i = 0; i < 3000; ++i) link((d + "/a").c_str(), (d + "/h" + std::to_string(i)).c_str());
         }},
        {"tar.gz", "absolute symbolic link: ./abs -> /etc/hostname", [](const std::string& d) { make_link("/etc/hostname", d + "/abs"); }},
        {"tar.gz", "symbolic link leads outside the folder", [](const std::string& d) { make_link("../../elsewhere", d + "/bin/up"); }},
        {"tar.gz", "devices, FIFOs or sockets cannot be packaged: ./fifo", [](const std::string& d) { mkfifo((d + "/fifo").c_str(), 0600); }},
        {"zip", "devices, FIFOs or sockets cannot be packaged: ./s", [&](const std::string& d) {
             (server = std::make_unique<QLocalServer>())->listen(q(d + "/s"));
         }},
        {"tar.gz", "names that are not valid UTF-8", [](const std::string& d) { write_file(d + "/bad\xff", "x"); }},
        {"tar.gz", "has no INFO file", [](const std::string& d) { unlink((d + "/INFO").c_str()); }},
        {"7z", "no numeric [Version] build_version (found 'v7')", [](const std::string& d) {  // a long INFO: read to its end
             std::string lots = "[Version]\n";
             for (int i = 0; i < 100000; ++i) lots += "build_version=v7\n";
             write_file(d + "/INFO", lots);
         }},
    };
    for (const auto& [format, expect, twist] : cases) {
        TempDir tmp;
        // Names that sort after INFO, and a link that stays inside.
        make_tree(tmp.path(), {{"/c", "/"}, {"/c/INFO", info}, {"/c/a", "a"}, {"/c/bin", "/"}, {"/c/bin/lumora-ui", "ui"},
                               {"/c/bin/ui", "->lumora-ui"}, {"/c/zz", "z"}, {"/wrap", "/"}, {"/tmp", "/"}, {"/x", "/"}});
        if (twist) twist(tmp / "c");
        const auto [rc, out, err] = run("env", {q("PATH=" + (tmp / "wrap:") + getenv("PATH")), q("TMPDIR=" + (tmp / "tmp")), MAKE_PACKAGE,
                                                "--format", format, q(tmp / "c"), q(tmp / "out")});
        server.reset();
        EXPECT_TRUE(QDir(q(tmp / "tmp")).isEmpty()) << expect;
        if (!expect.empty()) {
            EXPECT_EQ(rc, 1) << expect;
            EXPECT_TRUE(err.startsWith("make-package: ") && err.contains(expect.c_str())) << expect << "\n" << err.toStdString();
            EXPECT_FALSE(exists(tmp / "out")) << expect;
            continue;
        }
        EXPECT_EQ(rc, 0) << format << ": " << err.toStdString();
        if (rc != 0) continue;
        const QByteArray listed = std::get<1>(run("bsdtar", {"-tf", q(tmp / "out/lumora.lpk")}));
        const QStringList files = QString::fromUtf8(listed).split('\n', Qt::SkipEmptyParts).filter(QRegularExpression("[^/]$"));
        EXPECT_EQ(files.value(files.size() - 1), "INFO") << format;
        EXPECT_EQ(read_file(tmp / "out/INFO"), info) << format;
        EXPECT_EQ((Extractor{tmp / "x", tmp / "out/lumora.lpk"}).Extract(), 0) << format;
        EXPECT_EQ(names(tmp / "x"), names(tmp / "c")) << format;
    }
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    prctl(PR_SET_CHILD_SUBREAPER, 1);  // the client a run starts is detached: reparented here, reaped
    QtSingleApplication app(argc, argv, true);
    return RUN_ALL_TESTS();
}
