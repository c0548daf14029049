// Runs the upgrade service the way the launcher's worker does, for tests that copy this program
// into a bundle layout (X.app/Contents/MacOS/) and point HOME at a sandbox.
//   service_probe run      PreUpgrade, IsNeedUpgrade, HandlePackageUpgrade when needed
//   service_probe post     the same, then PostUpgrade
//   service_probe extract  ExtractPackage only
//   service_probe stop     StopService only
// Prints "need=<0|1> rc=<n>" and logs like the launcher (~/.Lumora/log/launcher.log).
#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstring>

#include "log.h"
#include "mac/mac-service.h"
#include "strtable.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QDir().mkpath(QString::fromUtf8((Service::GetUserLumoraInstallPath() + "/log").c_str()));
    Logger::Initialize(Logger::TYPE_FILE, Service::GetUserLumoraInstallPath() + "/log/launcher.log",
                       Service::GetRootLumoraInstallPath() + "/log/launcher.debug", 50);
    StrTable::InitStrTable();

    const char* mode = argc > 1 ? argv[1] : "run";
    MacService service;
    int need = 0, rc = 0;
    if (strcmp(mode, "extract") == 0) {
        rc = service.ExtractPackage();
    } else if (strcmp(mode, "stop") == 0) {
        service.StopService();
    } else {
        service.PreUpgrade();
        need = service.IsNeedUpgrade();
        if (need) rc = service.HandlePackageUpgrade();
        if (strcmp(mode, "post") == 0) service.PostUpgrade();
    }
    printf("need=%d rc=%d\n", need, rc);
    return 0;
}
