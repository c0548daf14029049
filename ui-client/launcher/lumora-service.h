// Service: the upgrade service. It names both installations (the bundle the user started and
// the per-user copy under ~/.Lumora), reads their version records, extracts the bundle's package
// and swaps the per-user application folder safely: old folder aside, new one extracted, rolled
// back on failure. The decisions and process handling come from the platform's implementation.
#ifndef UI_CLIENT_LAUNCHER_LUMORA_SERVICE_H
#define UI_CLIENT_LAUNCHER_LUMORA_SERVICE_H

#include "ustring.h"

struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;  // the only field compared
    ustring icon_overlay_version;
};

class Service {
public:
    Service();
    virtual ~Service();

    virtual void StopService() = 0;
    virtual void SetTimeout(int value);
    virtual int HandlePackageUpgrade() = 0;
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;
    // Extracts the bundle's package into the per-user application folder; 0 or -1.
    virtual int ExtractPackage();
    // Read the per-user and the bundle's INFO files into the version records.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Replaces the per-user application folder by the package's content; 0 ready, -1 failed.
    virtual int PrepareUserEnv();

    // The home folder, the bundle, its resources, and the per-user folders.
    static ustring GetUserInstallPath();
    static ustring GetRootLumoraInstallPath();
    static ustring GetRootLumoraResourceInstallPath();
    static ustring GetUserLumoraInstallPath();
    static ustring GetUserLumoraAppInstallPath();
    static ustring GetUserLumoraDataInstallPath();

    // Depth-first recursive copy of a file or folder; 0 or -1.
    int FSCopyPath(const ustring& src, const ustring& dst);

    int timeout;
    ustring app_path;
    VerInfo target_version;
    VerInfo source_version;
};

#endif
