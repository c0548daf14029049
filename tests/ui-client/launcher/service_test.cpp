// The upgrade service on a real disk: per-user paths under a sandboxed HOME, version records from
// INFO files, the backup/extract/rollback swap of the app folder, the bundle's probe, the copy.
#include <gtest/gtest.h>

#include <QProcess>

#include <filesystem>
#include <functional>
#include <regex>

#include "log.h"
#include "lumora-service.h"
#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;

namespace {

const std::string E = "[ERROR] lumora-service.cpp(%d): ", I = "[INFO] lumora-service.cpp(%d): ";

// Lines of `log` that are the time prefix and `fmt`, whole; "%d" stands for a number.
long count(const std::string& log, const std::string& fmt) {
    std::string re = R"((?:^|\n)\S+ \d\d \d\d:\d\d:\d\d )";
    for (char c : fmt) re += std::string(strchr(".^$|()[]{}*+?\\", c) ? "\\" : "") + c;
    const std::regex line(std::regex_replace(re, std::regex("%d"), R"(\d+)") + "(?=\n)");
    return std::distance(std::sregex_iterator(log.begin(), log.end(), line), std::sregex_iterator());
}

Tree snapshot(const std::string& root) {
    Tree tree;
    for (const auto& e : fs::recursive_directory_iterator(root))
        tree[e.path().string().substr(root.size())] = e.is_directory() ? "/" : read_file(e.path().string());
    return tree;
}

Tree under(const std::string& prefix, const Tree& tree) {
    Tree out{{prefix, "/"}};
    for (const auto& [rel, content] : tree) out[prefix + rel] = content;
    return out;
}

std::string tmp_name(const std::string& app, int n) { return app + "_tmp" + (n ? std::to_string(n) : ""); }

// A gzip'd tar holding `tree`, entries in the tree's order.
void write_tgz(const std::string& path, const Tree& tree) {
    TempDir src;
    make_tree(src.path(), tree);
    QStringList args{"-czf", QString::fromStdString(path), "-n", "-C", QString::fromStdString(src.path())};
    for (const auto& entry : tree) args << QString::fromStdString(entry.first.substr(1));
    ASSERT_EQ(QProcess::execute("bsdtar", args), 0);
}

const Tree kOld{{"/INFO", "[Version]\nbuild_version=100\n"}, {"/bin", "/"}, {"/bin/lumora-ui", "old ui"}};
const Tree kNew{{"/INFO", "[Version]\nbuild_version=200\n"}, {"/bin", "/"}, {"/bin/lumora-ui", "new ui"}};
const Tree kTaken{{"", "/"}, {"/x", "x"}}, kPartial{{"/INFO", "partial"}};

// A non-ASCII home folder; the log sits beside it, and nothing but .Lumora may appear inside it.
struct Sandbox {
    TempDir tmp;
    std::string home = tmp / "h\xC3\xB6m\xC3\xA9 \xE6\x97\xA5", lum = home + "/.Lumora", app = lum + "/app";
    Sandbox() {
        make_dir(home);
        setenv("HOME", home.c_str(), 1);
        write_file(tmp / "levels", "service_debug=7\nextractor_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, tmp / "log", tmp / "levels", 50);
    }
    ~Sandbox() {
        Logger::Destroy();
        for (const auto& e : fs::directory_iterator(home)) EXPECT_EQ(e.path().filename(), ".Lumora");
    }
    std::string log() const { return read_file(tmp / "log"); }
};

// Extraction is scripted; left unset, a call throws and fails the test.
struct Scripted : Service {
    std::function<int()> extract;
    void StopService() override {}
    int HandlePackageUpgrade() override { return 0; }
    void PostUpgrade() override {}
    void PreUpgrade() override {}
    bool IsNeedUpgrade() override { return false; }
    int ExtractPackage() override { return extract(); }
};

}  // namespace

TEST(ServicePaths, PerUserFoldersFollowHomeInUtf8AndRootIsTwoAboveTheExecutable) {
    for (const std::string name : {"someone", "J\xC3\xB6rg \xD0\x96"}) {
        TempDir tmp;
        make_dir(tmp / name);
        setenv("HOME", (tmp / name).c_str(), 1);
        const std::pair<ustring (*)(), const char*> ops[] = {
            {&Service::GetUserInstallPath, ""}, {&Service::GetUserLumoraInstallPath, "/.Lumora"},
            {&Service::GetUserLumoraAppInstallPath, "/.Lumora/app"}, {&Service::GetUserLumoraDataInstallPath, "/.Lumora/data"}};
        for (const auto& [op, suffix] : ops) EXPECT_EQ(std::string(op().c_str()), tmp / name + suffix);
    }
    const std::string root = fs::read_symlink("/proc/self/exe").parent_path().parent_path().parent_path().string();
    EXPECT_EQ(std::string(Service::GetRootLumoraInstallPath().c_str()), root);
    EXPECT_EQ(std::string(Service::GetRootLumoraResourceInstallPath().c_str()), root + "/Contents/Resources");
}

TEST(ServiceVersion, SourceFieldsComeFromVersionGroupAndAbsentKeysKeepTheirValue) {
    Sandbox sb;
    Scripted svc;
    svc.source_version.minor_version = "kept";
    svc.source_version.icon_overlay_version = "kept too";
    const std::string info = "[Other]\nminor_version=9\n[Version]\nmajor_version=3\nbuild_version=3423\n";
    make_tree(sb.home, under("/.Lumora", under("/app", {{"/INFO", info}})));
    svc.LoadSourceVersion();
    EXPECT_EQ(count(sb.log(), I + "source_version = (3, kept, 3423, kept too)"), 1);
}

// old: an installation exists; taken: backup names 0..taken-1 hold other content; empty: the next
// name is an empty folder; ok: the scripted extraction succeeds, else it fails after writing a partial app.
TEST(ServicePrepareUserEnv, BacksUpUnderFirstFreeNameThenCleansUpOrRollsBack) {
    const struct { bool old; int taken; bool empty, ok; } cases[] = {
        {false, 1, false, true}, {true, 1, false, true}, {true, 0, true, true},
        {true, 3, false, false}, {false, 0, false, false}, {true, 100, false, false}};
    for (const auto& c : cases) {
        Sandbox sb;
        make_dir(sb.lum);
        if (c.old) make_tree(sb.lum, under("/app", kOld));
        Tree want = under("/app", c.ok ? kNew : c.old ? kOld : kPartial);  // .Lumora afterwards
        for (int n = 0; n < c.taken; ++n) {
            make_tree(tmp_name(sb.app, n), kTaken);
            if (!c.ok) want.insert({{tmp_name("/app", n), "/"}, {tmp_name("/app", n) + "/x", "x"}});
        }
        if (c.empty) make_dir(tmp_name(sb.app, c.taken));
        Scripted svc;
        svc.app_path = Service::GetUserLumoraAppInstallPath();
        int calls = 0;
        svc.extract = [&] {  // the old app waits under the first free name
            const std::string aside = tmp_name(sb.app, c.taken);
            EXPECT_TRUE(!exists(sb.app) && (!c.old || (is_dir(aside) && snapshot(aside) == kOld)));
            return ++calls, make_tree(sb.app, under("", c.ok ? kNew : kPartial)), c.ok ? 0 : -1;
        };
        EXPECT_EQ(svc.PrepareUserEnv(), c.ok ? 0 : -1);
        EXPECT_EQ(calls, c.taken < 100 ? 1 : 0);
        EXPECT_EQ(snapshot(sb.lum), want);
        const std::string log = sb.log(), from = E + "failed to backup app from '" + sb.app + "' -> '";
        for (int n = 0; n < c.taken; ++n) EXPECT_EQ(count(log, from + tmp_name(sb.app, n) + "'"), c.old ? 1 : 0) << n;
        EXPECT_EQ(count(log, from + sb.app + "_tmp99' at max retries, exiting"), c.taken == 100 ? 1 : 0);
        EXPECT_EQ(count(log, E + "Failed to extract package, rollback to old installation"), !c.ok && c.old && c.taken < 100);
        EXPECT_EQ(count(log, E + "Failed to extract package, and no old installation to rollback"), !c.ok && !c.old);
        EXPECT_EQ(count(log, I + "user installation is ready, removing backup app"), c.ok);
    }
}

TEST(ServiceExtractPackage, PerUserFolderThatCannotBeCreatedOpensNoPackage) {
    Sandbox sb;
    write_file(sb.lum, "not a folder");
    EXPECT_EQ(Scripted().Service::ExtractPackage(), -1);
    EXPECT_EQ(count(sb.log(), E + "failed to create folder: '" + sb.app + "'"), 1);
    EXPECT_EQ(sb.log().find("extract"), std::string::npos);
    EXPECT_EQ(read_file(sb.lum), "not a folder");
}

// The probe copied into X.app/Contents/MacOS, run twice: a first install, then a broken upgrade.
TEST(ServiceProbe, InstallsThePackageThenKeepsItWhenTheUpgradeIsCorrupt) {
    TempDir tmp;
    const std::string root = tmp / "X.app", res = root + "/Contents/Resources", pkg = res + "/package/lumora.lpk";
    const std::string home = tmp / "home", app = home + "/.Lumora/app";
    for (const auto& dir : {root + "/Contents/MacOS", res + "/package", root + "/log", home}) fs::create_directories(dir);
    fs::copy_file(SERVICE_PROBE, root + "/Contents/MacOS/service_probe");
    write_file(root + "/log/launcher.debug", "service_debug=7\nextractor_debug=7\n");
    const auto run = [&](const std::string& info) {
        write_file(res + "/INFO", info);
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("HOME", QString::fromStdString(home));
        p.setProcessEnvironment(env);
        p.start(QString::fromStdString(root + "/Contents/MacOS/service_probe"), {"run"});
        EXPECT_TRUE(p.waitForFinished(60000) && p.exitCode() == 0);
        return p.readAllStandardOutput().trimmed().toStdString();
    };
    const Tree v2 = {{"/INFO", "[Version]\nmajor_version=2\nminor_version=0\nbuild_version=200\nicon_overlay_version=1\n"},
                     {"/bin", "/"}, {"/bin/lumora-ui", "ui"}, {"/share", "/"}, {"/share/a.txt", "a"}};
    write_tgz(pkg, v2);
    EXPECT_EQ(run("[Version]\nmajor_version=2\nminor_version=1\nbuild_version=200\n[Other]\nicon_overlay_version=9\n"), "need=1 rc=0");
    EXPECT_EQ(snapshot(app), v2);
    std::string log = read_file(home + "/.Lumora/log/launcher.log");
    EXPECT_EQ(count(log, I + "target_version = (2, 1, 200, )"), 1);
    EXPECT_EQ(count(log, I + "source does not exist"), 1);
    EXPECT_EQ(log.find("source_version"), std::string::npos);
    EXPECT_EQ(count(log, I + "extract package: '" + pkg + "' -> '" + app + "'"), 1);
    // Newer, but cut in the middle of its sizeable second entry, after its INFO was extracted.
    write_tgz(pkg, {{"/INFO", "[Version]\nbuild_version=300\n"}, {"/big", read_file(SERVICE_PROBE)}, {"/bin", "/"},
                    {"/bin/lumora-ui", "new"}});
    fs::resize_file(pkg, fs::file_size(pkg) / 2);
    EXPECT_EQ(run("[Version]\nbuild_version=300\n"), "need=1 rc=-1");
    EXPECT_EQ(snapshot(app), v2);
    EXPECT_FALSE(exists(app + "_tmp"));
    log = read_file(home + "/.Lumora/log/launcher.log");
    EXPECT_EQ(count(log, I + "source_version = (2, 0, 200, 1)"), 1);
    EXPECT_EQ(count(log, E + "Failed to extract package, rollback to old installation"), 1);
}

TEST(ServiceCopyPath, CopiesFilesAndTreesAndRefusesMissingSource) {
    Sandbox sb;
    Scripted svc;
    make_tree(sb.tmp.path(), under("/src", under("/sub", kOld)));
    write_file(sb.tmp / "one", "single");
    EXPECT_EQ(svc.FSCopyPath((sb.tmp / "one").c_str(), (sb.tmp / "one.copy").c_str()), 0);
    EXPECT_EQ(read_file(sb.tmp / "one.copy"), "single");
    EXPECT_EQ(svc.FSCopyPath((sb.tmp / "src").c_str(), (sb.tmp / "dst").c_str()), 0);
    EXPECT_EQ(snapshot(sb.tmp / "dst"), snapshot(sb.tmp / "src"));
    EXPECT_EQ(svc.FSCopyPath((sb.tmp / "gone").c_str(), (sb.tmp / "gone.copy").c_str()), -1);
    EXPECT_EQ(count(sb.log(), E + "FSCopyPath: source path '" + sb.tmp / "gone" + "' does not exist"), 1);
    EXPECT_FALSE(exists(sb.tmp / "gone.copy"));
}
