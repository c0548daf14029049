// The progress dialog through whole runs: the recorder (the launcher's start-up, watched) copied into a real
// bundle with a real package, run as a child with its own home; what the dialog showed, in order, is checked.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTranslator>
#include <regex>

#include "strtable.h"
#include "test-support.h"

int qInitResources_texts();
using namespace testsupport;
namespace fs = std::filesystem;

enum Package { kThree, kDamaged, kCurrent, kMany };  // kMany: thousands of entries, about a second to extract
struct Case { const char* name; Package package; const char* lang; const char* option; const char* record; };
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

// The record in short, "; "-joined lines "kind value label": P and R stand for the language's texts 340 and 304,
// a title other than its text 306 follows the label.
const char* const kUpgrade = "shown 0 P; value 33 P; value 66 P; value 100 P; hidden 100 R; exit 0 hidden";
const Case kCases[] = {
    {"Upgrade", kThree, "C.UTF-8", nullptr, kUpgrade},
    // Reports for the first two of four entries, then only LaunchDone's 100.
    {"FailedUpgradeRollsBack", kDamaged, "C.UTF-8", nullptr, "shown 0 P; value 25 P; value 50 P; value 100 P; hidden 100 P; exit 0 hidden"},
    {"NoUpgrade", kCurrent, "C.UTF-8", nullptr, "value 100 P; exit 0 hidden"},
    // The loop goes on after the close: later reports still reach the dialog, up to the worker's 100.
    {"UserClosesTheWindow", kMany, "C.UTF-8", "--close", "shown 0 P; (value \\d+ P; )+close .*; value 100 P; (.*; )?exit 0 hidden"},
    {"Japanese", kThree, "ja_JP.UTF-8", nullptr, kUpgrade},
    {"OnAnX11Screen", kMany, "C.UTF-8", "--grab", "shown 0 P; (value \\d+ P; )*grab [1-9]\\d? 400x\\d+\\+\\d+\\+\\d+ on screen bar varied; "
                                                 "(value \\d+ P; )*value 100 P; hidden 100 R; exit 0 hidden"}};

// A client folder: the script client, `extra` more files, INFO of `build`.
std::string client(const std::string& dir, int build, int extra = 0) {
    make_tree(dir, {{"", "/"}, {"/bin", "/"}, {"/bin/lumora-ui", "#!/bin/sh\necho $$ > \"$HOME/started\"\n"},
                    {"/INFO", "[Version]\nbuild_version=" + std::to_string(build) + "\n"}});
    chmod((dir + "/bin/lumora-ui").c_str(), 0755);
    for (int i = 0; i < extra; ++i) {
        if (i % 100 == 0) make_dir(dir + "/d" + std::to_string(i / 100));
        write_file(dir + "/d" + std::to_string(i / 100) + "/f" + std::to_string(i), std::string(i % 700, 'x'));
    }
    return dir;
}

class DialogRun : public ::testing::TestWithParam<Case> {};

TEST_P(DialogRun, ShowsWhatTheRunDoes) {
    const Case& c = GetParam();
    const bool x11 = c.option && std::string(c.option) == "--grab";
    if (x11 && QStandardPaths::findExecutable("xvfb-run").isEmpty()) GTEST_SKIP() << "xvfb-run not found (Debian package xvfb)";
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // the detached client becomes our child
    TempDir tmp;
    const std::string bundle = tmp / "Lumora.app", res = bundle + "/Contents/Resources", app = tmp / "home/.Lumora/app";
    for (const std::string& dir : {bundle + "/Contents/MacOS", bundle + "/log", res + "/package", app}) fs::create_directories(dir);
    fs::copy_file(RECORDER, bundle + "/Contents/MacOS/launcher");  // a copy: the bundle is found from the real path
    write_file(bundle + "/log/launcher.debug", "launcher_debug=7\n");

    // The package; the installation expected afterwards, and the one there before, if any.
    std::string expected = client(tmp / "new", 100, c.package == kMany ? 3000 : 0);
    if (c.package == kDamaged) {  // stored zip, one entry's data damaged: its CRC fails after two entries are out
        write_file(expected + "/z", std::string(1 << 16, 'z'));
        ASSERT_EQ(QProcess::execute("bsdtar", {"-cf", QString::fromStdString(res + "/package/lumora.lpk"), "--format", "zip", "--options",
                                               "zip:compression=store", "-n", "-C", QString::fromStdString(expected), "bin",
                                               "bin/lumora-ui", "z", "INFO"}), 0);
        std::fstream pkg(res + "/package/lumora.lpk", std::ios::in | std::ios::out | std::ios::binary);
        pkg.seekp(300 + (1 << 15));
        pkg.put('!');
        fs::copy_file(expected + "/INFO", res + "/INFO");
    } else {
        ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {QString::fromStdString(expected), QString::fromStdString(res + "/package")}), 0);
        fs::rename(res + "/package/INFO", res + "/INFO");
    }
    if (c.package == kDamaged || c.package == kCurrent) {
        expected = client(tmp / "old", c.package == kCurrent ? 100 : 99);
        fs::copy(expected, app, fs::copy_options::recursive);
    }

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"}) env.remove(name);
    env.insert("LANG", c.lang);
    env.insert("HOME", QString::fromStdString(tmp / "home"));
    env.insert("QT_QPA_PLATFORM", x11 ? "xcb" : "offscreen");
    // Under X11 the GL driver leaks and is unloaded before the leak check; only the slow unwinder names it.
    if (x11) env.insert("ASAN_OPTIONS", env.value("ASAN_OPTIONS") + ":fast_unwind_on_malloc=0");
    const std::string png = fs::temp_directory_path() / (std::string("dialog_test-") + c.name + ".png");  // kept for a look
    QStringList args = {QString::fromStdString(bundle + "/Contents/MacOS/launcher")};
    if (c.option) args << c.option;
    if (x11) args = QStringList{"xvfb-run", "-a", "-s", "-screen 0 800x600x24"} << args << QString::fromStdString(png);
    QProcess run;
    run.setProcessEnvironment(env);
    run.setProgram(args.takeFirst());
    run.setArguments(args);
    run.start();
    ASSERT_TRUE(run.waitForFinished(90000));
    const std::string out = run.readAllStandardOutput().toStdString(), err = run.readAllStandardError().toStdString();

    // The texts as the language's catalogue has them; the Japanese ones are not the English.
    qInitResources_texts();
    QTranslator catalogue;
    ASSERT_TRUE(catalogue.load(c.lang[0] == 'j' ? ":/jpn.qm" : ":/enu.qm"));
    QCoreApplication::installTranslator(&catalogue);
    StrTable::InitStrTable();
    const QString title = StrTable::LoadStr(306), preparing = StrTable::LoadStr(340), ready = StrTable::LoadStr(304);
    QCoreApplication::removeTranslator(&catalogue);
    EXPECT_EQ(preparing == StrTable::LoadStr(340), c.lang[0] != 'j');

    std::string record;
    for (const QString& line : QString::fromStdString(out).split('\n', Qt::SkipEmptyParts)) {
        QStringList f = line.split('\t');
        if (f.size() == 4) {
            f[2] = f[2] == preparing ? "P" : f[2] == ready ? "R" : f[2];
            if (f[3] == title) f.removeLast();
        }
        record += (record.empty() ? "" : "; ") + f.join(' ').toStdString();
    }
    EXPECT_TRUE(std::regex_match(record, std::regex(c.record))) << record << "\n" << err << (x11 ? "screen: " + png : "");
    EXPECT_EQ(std::make_pair(run.exitStatus(), run.exitCode()), std::make_pair(QProcess::NormalExit, 0)) << err;
    // The installation, the log's last word, the client started (and reaped).
    EXPECT_EQ(names(app), names(expected));
    const std::string log = read_file(tmp / "home/.Lumora/log/launcher.log");
    EXPECT_TRUE(std::regex_search(log, std::regex(R"(\[DEBUG\] launcher\.cpp\(\d+\): done\n$)"))) << log;
    EXPECT_GT(reap_marked(tmp / "home/started"), 0) << "the client was not started";
}

INSTANTIATE_TEST_SUITE_P(Cases, DialogRun, ::testing::ValuesIn(kCases), [](const auto& i) { return std::string(i.param.name); });
