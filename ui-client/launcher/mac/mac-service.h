// MacService: the upgrade decisions and process handling of the launcher's service: whether the
// per-user installation must be replaced, stopping the running client through its pid file,
// and starting the per-user client.
#ifndef UI_CLIENT_LAUNCHER_MAC_MAC_SERVICE_H
#define UI_CLIENT_LAUNCHER_MAC_MAC_SERVICE_H

#include "lumora-service.h"

class MacService : public Service {
public:
    MacService();
    ~MacService() override;

    static MacService* GetInstace();

    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    bool PerUserBinPathExist();
    int LaunchPerUserBin();
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
};

#endif
