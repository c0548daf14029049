#include "mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <QProcess>
#include <QString>
#include <QStringList>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "config.h"
#include "file-op.h"
#include "fs-platform.h"
#include "log.h"

namespace {

const ustring& component() {
    static const ustring name("service_debug");
    return name;
}

const int kDefaultTimeout = 10000;
const int kTerminateProbes = 5;

ustring per_user_bin(const ustring& app) { return app + "/bin/lumora-ui"; }

// The pid file's value as a process id, or 0 when it names no single process (0 and negative
// ids would address process groups, ours included).
long process_id(const ustring& value) {
    errno = 0;
    char* end = nullptr;
    const long pid = strtol(value.c_str(), &end, 10);
    if (errno == ERANGE || end == value.c_str() || pid <= 0 || pid > INT_MAX) return 0;
    return pid;
}

// SIGTERM, up to five probes a second apart, then SIGKILL: all to the process held, never to a
// later owner of its pid.
void terminate(FSProcess& ui) {
    if (ui.signal(SIGTERM) != 0) {
        if (errno == ESRCH) return;
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] mac/mac-service.cpp(%d): kill: %s (%d)\n", __LINE__,
                       strerror(err), err);
    }
    for (int probe = 0; probe < kTerminateProbes; ++probe) {
        if (ui.ended()) return;
        sleep(1);
    }
    ui.signal(SIGKILL);
}

}  // namespace

MacService::MacService() {
    timeout = kDefaultTimeout;
    app_path = Service::GetUserLumoraAppInstallPath();
}

MacService::~MacService() = default;

MacService* MacService::GetInstace() {
    static MacService serv;
    return &serv;
}

void MacService::PreUpgrade() {
    LoadTargetVersion();
    LoadSourceVersion();
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] mac/mac-service.cpp(%d): Source version: ('%s', '%s')\n",
                   __LINE__, source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] mac/mac-service.cpp(%d): Target version: ('%s', '%s')\n",
                   __LINE__, target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
    const int source = parse_leading_int(source_version.build_version.c_str());
    const int target = parse_leading_int(target_version.build_version.c_str());
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] mac/mac-service.cpp(%d): source version = %d, target version = %d\n",
                   __LINE__, source, target);
    return target > source || !PerUserBinPathExist();
}

bool MacService::PerUserBinPathExist() { return access(per_user_bin(app_path).c_str(), F_OK) == 0; }

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] mac/mac-service.cpp(%d): local appdata exist\n", __LINE__);
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::StopService() {
    const ustring path = Service::GetUserLumoraInstallPath() + "/ui.pid";
    if (!IsFileExist(path, false)) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, component(),
                       "[DEBUG] mac/mac-service.cpp(%d): pid file '%s' does not exist, no need to terminate\n", __LINE__,
                       path.c_str());
        return;
    }
    Config pid_file;
    if (pid_file.read(path) < 0) {
        Logger::LogMsg(Logger::LEVEL_NOTE, component(), "[NOTE] mac/mac-service.cpp(%d): Failed to read pid file '%s', not exist ?\n",
                       __LINE__, path.c_str());
        return;
    }
    const auto it = pid_file.entries.find(ustring("pid"));
    if (it == pid_file.entries.end() || it->second.empty()) return;

    const long pid = process_id(it->second);
    if (pid == 0) {
        Logger::LogMsg(Logger::LEVEL_NOTE, component(),
                       "[NOTE] mac/mac-service.cpp(%d): pid file '%s' names no process ('%s'), nothing to terminate\n", __LINE__,
                       path.c_str(), it->second.c_str());
        return;
    }
    // A pid file left behind by a client that died may name a process that now runs something else.
    FSProcess ui(pid);
    if (ui.approve(per_user_bin(app_path).c_str()) == 0) {
        Logger::LogMsg(Logger::LEVEL_NOTE, component(),
                       "[NOTE] mac/mac-service.cpp(%d): process %ld is not the Lumora UI, not terminating it\n", __LINE__, pid);
        return;
    }
    terminate(ui);
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0)
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] mac/mac-service.cpp(%d): Failed to launch Lumora UI\n", __LINE__);
}

int MacService::LaunchPerUserBin() {
    const QString program = QString::fromUtf8(per_user_bin(app_path).c_str());
    // The client must not hold our log, guard or anything a library left open without the flag.
    FSCloseOnExecFrom(3);
    return QProcess::startDetached(program, QStringList()) ? 0 : -1;
}

void MacService::LoadSourceVerInfo() { LoadSourceVersion(); }

void MacService::LoadTargetVerInfo() { LoadTargetVersion(); }
