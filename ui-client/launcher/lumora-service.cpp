#include "lumora-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

#include <cstdio>

#include "extractor.h"
#include "file-op.h"
#include "log.h"

namespace {

const ustring& component() {
    static const ustring name("service_debug");
    return name;
}

const int kBackupAttempts = 100;

ustring utf8(const QString& text) { return ustring(text.toUtf8().constData()); }

// The backup name of attempt n: app + "_tmp", then app + "_tmp1" ... app + "_tmp99".
ustring GetAppBackupDir(const ustring& app, int n) {
    const ustring base = app + "_tmp";
    if (n == 0) return base;
    char suffix[8];
    if (snprintf(suffix, sizeof suffix, "%d", n) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] lumora-service.cpp(%d): snprintf failed (continuing without postfix)", __LINE__);
        suffix[0] = 0;
    }
    return base + suffix;
}

// Fills the fields whose keys the INFO file's [Version] group holds; others keep their value.
void read_version(const ustring& path, VerInfo& info) {
    QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Version"));
    const struct {
        const char* key;
        ustring VerInfo::*field;
    } keys[] = {
        {"major_version", &VerInfo::major_version},
        {"minor_version", &VerInfo::minor_version},
        {"build_version", &VerInfo::build_version},
        {"icon_overlay_version", &VerInfo::icon_overlay_version},
    };
    for (const auto& k : keys) {
        const QString key = QLatin1String(k.key);
        if (settings.contains(key)) info.*k.field = utf8(settings.value(key).toString());
    }
}

}  // namespace

Service::Service() : timeout(0) {}

Service::~Service() = default;

void Service::SetTimeout(int value) { timeout = value; }

// In the form the home folder is stored in, should HOME spell it in another Unicode form.
ustring Service::GetUserInstallPath() {
    ustring home = utf8(QDir::homePath());
    FSGetStoredForm(home);
    return home;
}

ustring Service::GetRootLumoraInstallPath() {
    return utf8(QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")));
}

ustring Service::GetRootLumoraResourceInstallPath() { return GetRootLumoraInstallPath() + "/Contents/Resources"; }

ustring Service::GetUserLumoraInstallPath() { return GetUserInstallPath() + "/.Lumora"; }

ustring Service::GetUserLumoraAppInstallPath() { return GetUserLumoraInstallPath() + "/app"; }

ustring Service::GetUserLumoraDataInstallPath() { return GetUserLumoraInstallPath() + "/data"; }

void Service::LoadTargetVersion() {
    read_version(GetRootLumoraResourceInstallPath() + "/INFO", target_version);
    Logger::LogMsg(Logger::LEVEL_INFO, component(), "[INFO] lumora-service.cpp(%d): target_version = (%s, %s, %s, %s)\n",
                   __LINE__, target_version.major_version.c_str(), target_version.minor_version.c_str(),
                   target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

void Service::LoadSourceVersion() {
    const ustring path = GetUserLumoraAppInstallPath() + "/INFO";
    if (!IsFileExist(path, false)) {
        Logger::LogMsg(Logger::LEVEL_INFO, component(), "[INFO] lumora-service.cpp(%d): source does not exist\n", __LINE__);
        return;
    }
    read_version(path, source_version);
    Logger::LogMsg(Logger::LEVEL_INFO, component(), "[INFO] lumora-service.cpp(%d): source_version = (%s, %s, %s, %s)\n",
                   __LINE__, source_version.major_version.c_str(), source_version.minor_version.c_str(),
                   source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
}

int Service::ExtractPackage() {
    const ustring package = GetRootLumoraResourceInstallPath() + "/package/lumora.lpk";
    const ustring destination = GetUserLumoraAppInstallPath();
    if (FSMKDir(destination, true) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] lumora-service.cpp(%d): failed to create folder: '%s'\n",
                       __LINE__, destination.c_str());
        return -1;
    }
    Logger::LogMsg(Logger::LEVEL_INFO, component(), "[INFO] lumora-service.cpp(%d): extract package: '%s' -> '%s'\n",
                   __LINE__, package.c_str(), destination.c_str());
    Extractor extractor;
    extractor.dest_path = destination;
    extractor.archive_path = package;
    return extractor.Extract();
}

// Old folder aside under the first free backup name, package extracted, then either the backups
// removed or the old folder put back. The old installation is never deleted before the new one
// is complete.
int Service::PrepareUserEnv() {
    const ustring app = app_path;
    ustring backup;
    int n = 0;
    if (IsFileExist(app, false)) {
        for (;; ++n) {
            backup = GetAppBackupDir(app, n);
            if (FSRename(app, backup, false) == 0) break;
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] lumora-service.cpp(%d): failed to backup app from '%s' -> '%s'\n",
                           __LINE__, app.c_str(), backup.c_str());
            if (n == kBackupAttempts - 1) {
                Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                               "[ERROR] lumora-service.cpp(%d): failed to backup app from '%s' -> '%s' at max retries, exiting\n",
                               __LINE__, app.c_str(), backup.c_str());
                return -1;
            }
        }
    }

    if (ExtractPackage() != 0) {
        if (backup.empty()) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                           "[ERROR] lumora-service.cpp(%d): Failed to extract package, and no old installation to rollback\n", __LINE__);
            return -1;
        }
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] lumora-service.cpp(%d): Failed to extract package, rollback to old installation\n", __LINE__);
        const int removed = FSRemove(app, false);
        if (removed != 0 || FSRename(backup, app, false) != 0)
            Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                           "[ERROR] lumora-service.cpp(%d): rollback incomplete (%d), old installation kept at '%s'\n",
                           __LINE__, removed, backup.c_str());
        return -1;
    }

    Logger::LogMsg(Logger::LEVEL_INFO, component(),
                   "[INFO] lumora-service.cpp(%d): user installation is ready, removing backup app\n", __LINE__);
    for (int j = 0; j <= n; ++j) FSRemove(GetAppBackupDir(app, j), false);
    return 0;
}

int Service::FSCopyPath(const ustring& src, const ustring& dst) {
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] lumora-service.cpp(%d): copy from '%s' to '%s'\n", __LINE__,
                   src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] lumora-service.cpp(%d): FSCopyPath: failed to stat source '%s'\n",
                       __LINE__, src.c_str());
        return -1;
    }
    if (!info.exists) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] lumora-service.cpp(%d): FSCopyPath: source path '%s' does not exist\n", __LINE__, src.c_str());
        return -1;
    }
    if (info.type != FILE_TYPE_DIR) return FSCopy(src, dst, false) == 0 ? 0 : -1;

    if (FSMKDir(dst, true) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] lumora-service.cpp(%d): FSCopyPath: failed to create dest folder '%s'\n", __LINE__, dst.c_str());
        return -1;
    }
    DIR_HANDLE handle;
    if (FSOpenDir(src, 0, handle) != 0) {
        Logger::LogMsg(Logger::LEVEL_WARNING, component(),
                       "[WARNING] lumora-service.cpp(%d): FSCopyPath: failed to create handle  for src '%s' failed\n", __LINE__,
                       src.c_str());
        return 0;
    }
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) == 1) {
        if (entry.name == ustring(".") || entry.name == ustring("..")) continue;
        const ustring from = src + "/" + entry.name;
        const ustring to = dst + "/" + entry.name;
        const int rc = entry.type == FILE_TYPE_DIR ? FSCopyPath(from, to) : FSCopy(from, to, false);
        if (rc < 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                           "[ERROR] lumora-service.cpp(%d): FSCopyPath: failed to copy from '%s' to '%s'\n", __LINE__,
                           from.c_str(), to.c_str());
            FSCloseDir(handle);
            return -1;
        }
    }
    FSCloseDir(handle);
    return 0;
}
