// The progress dialog through whole runs: the recorder (the launcher's start-up, watched) copied into a real
// bundle with a real package, run as a child with its own home; what the dialog showed, in order, is checked.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QProcess>
#include <QStandardPaths>

#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;

enum Package { kThree, kDamaged, kCurrent, kMany };  // kMany: thousands of entries, about a second to extract
struct Case { const char* name; Package package; const char* lang; const char* option; const char* record; };
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

// The record in short, "; "-joined lines "kind value label": P and R stand for the language's texts while preparing and
// when ready; a title other than "Quennet Lumora" (the same in both languages) follows the label.
const char* const kUpgrade = "shown 0 P; value 33 P; value 66 P; value 100 P; hidden 100 R; exit 0 hidden";
const Case kCases[] = {
    {"Upgrade", kThree, "C.UTF-8", nullptr, kUpgrade},
    // Reports for the first two of four entries, then only LaunchDone's 100.
    {"FailedUpgradeRollsBack", kDamaged, "C.UTF-8", nullptr,
     "shown 0 P; value 25 P; value 50 P; value 100 P; hidden 100 P; exit 0 hidden"},
    {"NoUpgrade", kCurrent, "C.UTF-8", nullptr, "value 100 P; exit 0 hidden"},
    // The loop goes on after the close: later reports still reach the dialog, up to the worker's 100.
    {"UserClosesTheWindow", kMany, "C.UTF-8", "--close", "shown 0 P; (value \\d+ P; )+close .*; value 100 P; (.*; )?exit 0 hidden"},
    {"Japanese", kThree, "ja_JP.UTF-8", nullptr, kUpgrade},
    {"OnAnX11Screen", kMany, "C.UTF-8", "--grab", "shown 0 P; (value \\d+ P; )*grab [1-9]\\d? 400 bar varied; "
                                                 "(value \\d+ P; )*value 100 P; hidden 100 R; exit 0 hidden"}};

class DialogRun : public ::testing::TestWithParam<Case> {};

TEST_P(DialogRun, ShowsWhatTheRunDoes) {
    const Case& c = GetParam();
    const bool x11 = c.option && std::string(c.option) == "--grab";
    if (x11 && QStandardPaths::findExecutable("xvfb-run").isEmpty()) GTEST_SKIP() << "xvfb-run not found (Debian package xvfb)";
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // the detached client becomes our child
    TempDir tmp;
    const std::string bundle = tmp / "Lumora.app", res = bundle + "/Contents/Resources", app = tmp / "home/.Lumora/app";
    // The client: a script, INFO of build 100, thousands of files for kMany.
    make_tree(tmp.path(), {{"/c", "/"}, {"/c/bin", "/"}, {"/c/bin/lumora-ui", "#!/bin/sh\necho $$ > \"$HOME/started\"\n"},
                           {"/c/INFO", "[Version]\nbuild_version=100\n"}});
    chmod((tmp / "c/bin/lumora-ui").c_str(), 0755);
    for (int i = 0; c.package == kMany && i < 3000; ++i) {
        if (i % 100 == 0) make_dir(tmp / "c/d" + std::to_string(i / 100));
        write_file(tmp / "c/d" + std::to_string(i / 100) + "/f" + std::to_string(i), std::string(i % 700, 'x'));
    }
    for (const std::string& dir : {bundle + "/Contents/MacOS", res + "/package", app}) fs::create_directories(dir);
    fs::copy_file(RECORDER, bundle + "/Contents/MacOS/launcher");  // a copy: the bundle is found from the real path
    if (c.package == kDamaged || c.package == kCurrent) fs::copy(tmp / "c", app, fs::copy_options::recursive);
    if (c.package == kDamaged) {  // stored zip, one entry's data damaged: its CRC fails after two entries are out
        write_file(app + "/INFO", "[Version]\nbuild_version=99\n");
        write_file(tmp / "c/z", std::string(1 << 16, 'z'));
        const std::string lpk = res + "/package/lumora.lpk";
        ASSERT_EQ(QProcess::execute("bsdtar", {"-cf", q(lpk), "--format", "zip", "--options", "zip:compression=store", "-n", "-C",
                                               q(tmp / "c"), "bin", "bin/lumora-ui", "z", "INFO"}), 0);
        std::string damaged = read_file(lpk);
        damaged[300 + (1 << 15)] = '!';
        write_file(lpk, damaged);
        fs::copy_file(tmp / "c/INFO", res + "/INFO");
    } else {
        ASSERT_EQ(QProcess::execute(MAKE_PACKAGE, {q(tmp / "c"), q(res + "/package")}), 0);
        fs::rename(res + "/package/INFO", res + "/INFO");
    }

    const std::string png = fs::temp_directory_path() / (std::string("dialog_test-") + c.name + ".png");  // kept for a look
    QStringList args = {"-u", "LC_ALL", "-u", "LC_MESSAGES", "-u", "LANGUAGE", QString("LANG=") + c.lang, q("HOME=" + tmp / "home"),
                        x11 ? "QT_QPA_PLATFORM=xcb" : "QT_QPA_PLATFORM=offscreen"};
    // Under X11 the GL driver leaks and is unloaded before the leak check; only the slow unwinder names it.
    if (x11) args << "ASAN_OPTIONS=" + qEnvironmentVariable("ASAN_OPTIONS") + ":fast_unwind_on_malloc=0" << "xvfb-run" << "-a"
                  << "-s" << "-screen 0 800x600x24";
    args << q(bundle + "/Contents/MacOS/launcher") << c.option << q(png);
    QProcess run;
    run.start("env", args);
    ASSERT_TRUE(run.waitForFinished(90000));

    const bool ja = c.lang[0] == 'j';
    QString record = QString::fromUtf8(run.readAllStandardOutput()).trimmed();
    record.replace("\tQuennet Lumora", "").replace(ja ? "Lumora は初期化中です。" : "Lumora is initializing...", "P");
    record.replace(ja ? "Lumora は準備完了です。" : "Lumora is ready.", "R").replace('\t', ' ').replace('\n', "; ");
    const std::string err = run.readAllStandardError().toStdString();
    EXPECT_TRUE(std::regex_match(record.toStdString(), std::regex(c.record))) << record.toStdString() << "\n" << err << png;
    EXPECT_EQ(std::make_pair(run.exitStatus(), run.exitCode()), std::make_pair(QProcess::NormalExit, 0)) << err;
    EXPECT_GT(reap_marked(tmp / "home/started"), 0) << "the client was not started";
}

INSTANTIATE_TEST_SUITE_P(Cases, DialogRun, ::testing::ValuesIn(kCases), [](const auto& i) { return std::string(i.param.name); });
