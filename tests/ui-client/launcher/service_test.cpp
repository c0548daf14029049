// The upgrade service on a real disk under a non-ASCII HOME: paths, the source version record, the
// backup/extract/rollback swap of the app folder. Real packages: launcher_e2e_test.
#include <gtest/gtest.h>

#include "log.h"
#include "mac/mac-service.h"
#include "test-support.h"

using namespace testsupport;
namespace fs = std::filesystem;

namespace {

const std::string E = "[ERROR] lumora-service.cpp(N): ", I = "[INFO] lumora-service.cpp(N): ";
const Tree kOld{{"/INFO", "[Version]\nbuild_version=100\n"}, {"/bin", "/"}, {"/bin/lumora-ui", "old ui"}};
const Tree kNew{{"/INFO", "[Version]\nbuild_version=200\n"}, {"/bin", "/"}, {"/bin/lumora-ui", "new ui"}}, kOther{{"/x", "x"}};

Tree under(const std::string& prefix, const Tree& tree) {
    Tree out{{prefix, "/"}};
    for (const auto& [rel, content] : tree) out[prefix + rel] = content;
    return out;
}

// The log sits beside the home folder, and nothing but .Lumora may appear inside it.
struct Sandbox {
    TempDir tmp;
    std::string home = tmp / "h\xC3\xB6m\xC3\xA9 \xE6\x97\xA5", lum = home + "/.Lumora", app = lum + "/app";
    Sandbox() {
        make_dir(home), setenv("HOME", home.c_str(), 1), write_file(tmp / "levels", "service_debug=6\nfile_op_debug=0\n");
        Logger::Initialize(Logger::TYPE_FILE, tmp / "log", tmp / "levels", 50);
    }
    ~Sandbox() { Logger::Destroy(); for (const auto& e : fs::directory_iterator(home)) EXPECT_EQ(e.path().filename(), ".Lumora"); }
    std::string log() const { return log_lines(tmp / "log"); }
};

// Extraction is scripted; left unset, a call throws and fails the test.
struct Scripted : MacService {
    std::function<int()> extract;
    int ExtractPackage() override { return extract(); }
};

}  // namespace

// The home, app and bundle paths are those of every end-to-end run (launcher_e2e_test); the data folder is no run's.
TEST(Service, DataPathSourceVersionTakesTheVersionGroupAndAFileInTheWayStopsExtraction) {
    Sandbox sb;
    EXPECT_EQ(std::string(Service::GetUserLumoraDataInstallPath().c_str()), sb.lum + "/data");
    Scripted svc;
    svc.source_version.minor_version = "kept", svc.source_version.icon_overlay_version = "kept too";  // no key, no change
    make_tree(sb.home, under("/.Lumora", under("/app", {{"/INFO", "[Other]\nminor_version=9\n[Version]\nmajor_version=3\nbuild_version=3423\n"}})));
    svc.LoadSourceVersion();
    fs::remove_all(sb.lum), write_file(sb.lum, "not a folder");
    EXPECT_EQ(svc.Service::ExtractPackage(), -1);
    EXPECT_EQ(read_file(sb.lum), "not a folder");
    EXPECT_EQ(sb.log(), I + "source_version = (3, kept, 3423, kept too)\n" + E + "failed to create folder: '" + sb.app + "'\n");
}

// old: an installation exists; taken: backup names 0..taken-1 hold other content; empty: the next
// name is an empty folder; ok: the scripted extraction succeeds, else it fails after writing a partial app.
TEST(Service, PrepareUserEnvBacksUpUnderFirstFreeNameThenCleansUpOrRollsBack) {
    const struct { bool old; int taken; bool empty, ok; } cases[] = {{false, 1, false, true}, {true, 1, false, true},
        {true, 0, true, true}, {true, 3, false, false}, {false, 0, false, false}, {true, 100, false, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << "old " << c.old << " taken " << c.taken << " ok " << c.ok);
        Sandbox sb;
        const auto backup = [&](int n) { return "/app_tmp" + (n ? std::to_string(n) : ""); };
        Tree want = under("/app", c.old ? kOld : kOther);  // .Lumora after a failure
        make_tree(sb.home, under("/.Lumora", c.old ? under("/app", kOld) : Tree()));
        for (int n = 0; n < c.taken; ++n) make_tree(sb.lum, under(backup(n), kOther)), want.merge(under(backup(n), kOther));
        if (c.empty) make_dir(sb.lum + backup(c.taken));
        Scripted svc;  // the old app waits under the first free name; extraction leaves the new app, else a partial one
        svc.extract = [&] {
            EXPECT_EQ(std::make_pair(exists(sb.app), c.old ? snapshot(sb.lum + backup(c.taken)) : kOld), std::make_pair(false, kOld));
            return make_tree(sb.lum, under("/app", c.ok ? kNew : kOther)), c.ok ? 0 : -1;
        };
        EXPECT_EQ(svc.PrepareUserEnv(), c.ok ? 0 : -1);
        EXPECT_EQ(snapshot(sb.lum), c.ok ? under("/app", kNew) : want);  // after success, the new app alone
        std::string log, from = E + "failed to backup app from '" + sb.app + "' -> '" + sb.app + "_tmp";
        for (int n = 0; c.old && n < c.taken; ++n) log += from + (n ? std::to_string(n) : "") + "'\n";
        EXPECT_EQ(sb.log(), log + (c.taken == 100 ? from + "99' at max retries, exiting" : c.ok ? I + "user installation is ready, removing backup app"
                                   : E + "Failed to extract package, " + (c.old ? "rollback to old installation" : "and no old installation to rollback")) + "\n");
    }
}

// A rollback whose rename fails says where the old installation is kept; a bundle without INFO is build 0.
TEST(Service, AFailedRollbackNamesTheBackupAndAMissingBundleInfoReadsEmpty) {
    Sandbox sb;
    make_tree(sb.home, under("/.Lumora", under("/app", kOld)));
    Scripted svc;
    svc.extract = [&] { return make_tree(sb.lum, under("/app", kOther)), set_immutable(sb.app + "_tmp", true) ? -1 : -2; };
    const int rc = svc.PrepareUserEnv();
    set_immutable(sb.app + "_tmp", false);
    if (rc == -2) GTEST_SKIP() << "no immutable flag here";
    EXPECT_EQ(rc, -1);
    EXPECT_EQ(snapshot(sb.app + "_tmp"), kOld);
    svc.LoadTargetVersion();  // this test program's "bundle" has no Contents/Resources/INFO
    EXPECT_EQ(sb.log(), E + "Failed to extract package, rollback to old installation\n" + E + "rollback incomplete (0), old installation kept at '" +
              sb.app + "_tmp'\n" + I + "target_version = (, , , )\n");
}

