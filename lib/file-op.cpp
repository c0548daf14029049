#include "file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "fs-platform.h"
#include "log.h"
#include "tmp_name_gen.h"

namespace {

const ustring& component() {
    static const ustring name("file_op_debug");
    return name;
}

const uint32_t kKeepId = 0xFFFFFFFFu;  // chown: leave unchanged
uint32_t g_uid = kKeepId;
uint32_t g_gid = kKeepId;

const int kCopyBufferSize = 32 * 1024 * 1024;
const size_t kPathBufferSize = 4096;

uint32_t type_of_mode(mode_t mode, bool& known) {
    known = true;
    switch (mode & S_IFMT) {
    case S_IFREG: return FILE_TYPE_REGULAR;
    case S_IFDIR: return FILE_TYPE_DIR;
    case S_IFLNK: return FILE_TYPE_LINK;
    case S_IFCHR:
    case S_IFBLK: return FILE_TYPE_DEVICE;
    case S_IFIFO: return FILE_TYPE_FIFO;
    case S_IFSOCK: return FILE_TYPE_SOCKET;
    }
    known = false;
    return FILE_TYPE_UNKNOWN;
}

uint32_t type_of_dirent(unsigned char d_type) {
    switch (d_type) {
    case DT_REG: return FILE_TYPE_REGULAR;
    case DT_DIR: return FILE_TYPE_DIR;
    case DT_LNK: return FILE_TYPE_LINK;
    case DT_CHR:
    case DT_BLK: return FILE_TYPE_DEVICE;
    case DT_FIFO: return FILE_TYPE_FIFO;
    case DT_SOCK: return FILE_TYPE_SOCKET;
    default: return FILE_TYPE_UNKNOWN;
    }
}

bool is_dot_or_dotdot(const char* name) {
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

// readdir with errors told apart from the end: false at the end or on error (errno != 0).
bool next_entry(DIR* dir, dirent*& entry) {
    errno = 0;
    entry = readdir(dir);
    return entry != nullptr;
}

// The on-disk form of an existing path through the platform's reference pair; the status of
// the failing call otherwise.
OSStatus stored_form(const ustring& path, char (&out)[kPathBufferSize]) {
    FSRef ref;
    OSStatus status = FSPathMakeRef(reinterpret_cast<const UInt8*>(path.c_str()), &ref, nullptr);
    if (status != 0) return status;
    memset(out, 0, sizeof out);
    return FSRefMakePath(&ref, reinterpret_cast<UInt8*>(out), sizeof out);
}

// Ownership is a refinement: a folder we could not hand over is still the folder callers asked
// for, so a failing chown is not a failure of theirs.
void give_to_owner(const char* path, uid_t uid, gid_t gid) {
    if (chown(path, uid, gid) != 0) return;
}

ssize_t read_some(int fd, void* buf, size_t n) {
    ssize_t r;
    do r = read(fd, buf, n);
    while (r < 0 && errno == EINTR);
    return r;
}

ssize_t write_some(int fd, const void* buf, size_t n) {
    ssize_t w;
    do w = write(fd, buf, n);
    while (w < 0 && errno == EINTR);
    return w;
}

// Writes all n bytes; on failure logs and returns -2 for a full disk, -1 otherwise.
int write_all(int fd, const char* buf, size_t n) {
    while (n > 0) {
        ssize_t w = write_some(fd, buf, n);
        if (w < 1) {
            const int err = errno;
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): CopyFile: write: %s (%d)\n",
                           __LINE__, strerror(err), err);
            return err == ENOSPC ? -2 : -1;
        }
        buf += w;
        n -= static_cast<size_t>(w);
    }
    return 0;
}

// Copies until end of file; 0, -1 or -2 as FSCopy.
int copy_fd(int src, int dst, char* buf) {
    for (;;) {
        const ssize_t r = read_some(src, buf, kCopyBufferSize);
        if (r == 0) return 0;
        if (r < 0) {
            const int err = errno;
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): CopyFile: read: %s (%d)\n",
                           __LINE__, strerror(err), err);
            return -1;
        }
        const int rc = write_all(dst, buf, static_cast<size_t>(r));
        if (rc != 0) return rc;
    }
}

// The copy counts only once its bytes are on disk, so a moved file is never lost to a crash or
// a late write error between removing the source and closing the destination.
int sync_and_close(int fd) {
    int rc = 0;
    int err = 0;
    if (fsync(fd) != 0 && errno != EINVAL && errno != EROFS) {  // special files cannot sync
        err = errno;
        rc = -1;
    }
    if (close(fd) != 0 && rc == 0) {
        err = errno;
        rc = -1;
    }
    if (rc != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): CopyFile: write: %s (%d)\n",
                       __LINE__, strerror(err), err);
        return err == ENOSPC || err == EDQUOT ? -2 : -1;
    }
    return 0;
}

int rename_dir_across_devices(const ustring& source, const ustring& destination, bool exact_case) {
    if (FSMKDir(destination, true) != 0) return -3;
    DIR* dir = opendir(source.c_str());
    if (!dir) return -3;
    dirent* entry;
    int rc = 0;
    while (next_entry(dir, entry)) {
        if (is_dot_or_dotdot(entry->d_name)) continue;
        if (FSRename(source + "/" + entry->d_name, destination + "/" + entry->d_name, exact_case) != 0) {
            rc = -3;
            break;
        }
    }
    closedir(dir);
    if (rc != 0) return rc;
    return remove(source.c_str()) == 0 ? 0 : -3;
}

}  // namespace

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type && a.path == b.path &&
           a.aux_text == b.aux_text;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) { return !(a == b); }

void FSInitialize(uint32_t uid, uint32_t gid) {
    g_uid = uid;
    g_gid = gid;
}

int FSInit(const ustring&) { return 0; }

int FSChown(const ustring& path) { return chown(path.c_str(), g_uid, g_gid); }

namespace {

// Whether path exists, as given or (on_disk then tells how) under another Unicode form.
bool locate(const ustring& path, ustring& on_disk) {
    on_disk = path;
    if (access(path.c_str(), F_OK) == 0) return true;
    std::string stored;
    if (errno != ENOENT || FSFindStoredForm(path.c_str(), stored) != 0 || stored == path.c_str()) return false;
    on_disk = stored.c_str();
    return access(stored.c_str(), F_OK) == 0;  // as access tells: a dangling link does not exist
}

// Whether the existing on_disk names its entry in the letter case stored on disk, as path does.
bool same_case_as_stored(const ustring& on_disk, const ustring& normalized) {
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] file-op.cpp(%d): Input file path = [%s].\n", __LINE__,
                   normalized.c_str());
    char stored[kPathBufferSize];
    const OSStatus status = stored_form(on_disk, stored);
    if (status != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSPathMakeRef: %d\n", __LINE__,
                       static_cast<int>(status));
        return false;
    }
    const ustring target = ustring(stored).normalize(NFC);
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(),
                   "[DEBUG] file-op.cpp(%d): FSRefMakePath outTargetPath path = [%s].\n", __LINE__, target.c_str());
    if (target.compare(normalized) != 0) return false;
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] file-op.cpp(%d): File exist.\n", __LINE__);
    return true;
}

bool exists_on_disk(const ustring& path, bool exact_case, ustring& on_disk) {
    const ustring normalized = path.normalize(NFC);
    if (normalized.empty() || !locate(path, on_disk)) return false;
    return !exact_case || same_case_as_stored(on_disk, normalized);
}

}  // namespace

bool IsFileExist(const ustring& path, bool exact_case) {
    ustring on_disk;
    return exists_on_disk(path, exact_case, on_disk);
}

int FSGetStoredForm(ustring& path) {
    ustring on_disk;
    if (path.empty() || !locate(path, on_disk)) return -1;
    path = on_disk;
    return 0;
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info) {
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        if (errno != ENOENT) return -1;
        info.exists = false;
        info.mtime = static_cast<int32_t>(time(nullptr));
        info.path = path;
        info.size = 0;
        info.type = FILE_TYPE_REGULAR;
        info.uid = info.gid = info.mode = 0;
        return 0;
    }
    info.exists = true;
    info.mtime = static_cast<int32_t>(st.st_mtime);
    info.path = path;
    info.size = static_cast<uint64_t>(st.st_size);
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode & 0xFFFF;
    bool known;
    const uint32_t type = type_of_mode(st.st_mode, known);
    if (!known) return -1;
    info.type = type;
    return 0;
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact_case) {
    if (path.empty()) return -1;
    ustring on_disk;
    if (!exists_on_disk(path, exact_case, on_disk)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(on_disk, info) == 0 ? 0 : -2;
}

int FSCopy(const ustring& source, const ustring& destination, bool remove_source) {
    const int src = open(source.c_str(), O_RDONLY | O_CLOEXEC);
    if (src < 0) {
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): CopyFile: open(%s): %s (%d)\n",
                       __LINE__, source.c_str(), strerror(err), err);
        return -1;
    }
    const int dst = open(destination.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (dst < 0) {
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): CopyFile: open(%s): %s (%d)\n",
                       __LINE__, destination.c_str(), strerror(err), err);
        close(src);
        return -1;
    }
    char* buf = static_cast<char*>(malloc(kCopyBufferSize));
    if (!buf) {
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSCopy: malloc(%d): %s (%d)\n",
                       __LINE__, kCopyBufferSize, strerror(err), err);
        close(src);
        close(dst);
        return -1;
    }

    int rc = copy_fd(src, dst, buf);
    free(buf);
    close(src);
    if (rc != 0) {
        fsync(dst);
        close(dst);
        return rc;
    }
    rc = sync_and_close(dst);
    if (rc != 0 || !remove_source) return rc;
    if (remove(source.c_str()) != 0) {
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSCopy: remove(%s): %s (%d)\n",
                       __LINE__, source.c_str(), strerror(err), err);
        return -1;
    }
    return 0;
}

int FSRename(const ustring& source, const ustring& destination, bool exact_case) {
    if (source.empty() || destination.empty()) return -1;
    ustring from;
    _FILE_INFO_tag info;
    if (!exists_on_disk(source, exact_case, from) || GetFileInfo(from, info) != 0 || !info.exists) return -2;
    if (rename(from.c_str(), destination.c_str()) == 0) return 0;
    if (errno == ENAMETOOLONG) return -100;
    if (errno != EXDEV) return -3;

    switch (info.type) {
    case FILE_TYPE_REGULAR:
        return FSCopy(from, destination, true) < 0 ? -3 : 0;
    case FILE_TYPE_DIR:
        return rename_dir_across_devices(from, destination, exact_case);
    default:
        return 0;  // links and special files are not carried across devices
    }
}

int FSMKDir(const ustring& path, bool parents) {
    if (path.empty()) return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSMKDir: Failed to to file info '%s'\n",
                       __LINE__, path.c_str());
        return -1;
    }
    if (info.exists) {
        if (info.type == FILE_TYPE_DIR) return 0;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] file-op.cpp(%d): FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
                       __LINE__, path.c_str(), static_cast<int>(info.type));
        return -1;
    }
    const int rc = parents ? FSMKDirP(path, nullptr, false, 0xFFFF) : mkdir(path.c_str(), 0777);
    if (rc != 0) return -2;
    give_to_owner(path.c_str(), g_uid, g_gid);
    return 0;
}

namespace {

// Creates the directory at `prefix` (or replaces what is in the way, with force). errno is set
// on failure.
bool make_component(const char* prefix, bool last, bool force, mode_t mode, bool change_owner, uid_t uid, gid_t gid) {
    struct stat st;
    if (stat(prefix, &st) == 0) {
        if (S_ISDIR(st.st_mode)) return true;
        if (!force) {
            errno = last ? EEXIST : ENOTDIR;
            return false;
        }
        if (remove(prefix) != 0) return false;
    }
    if (mkdir(prefix, mode) != 0) {
        // Someone else may have made it meanwhile; that is as good as making it.
        const int err = errno;
        if (err == EEXIST && stat(prefix, &st) == 0 && S_ISDIR(st.st_mode)) return true;
        errno = err;
        return false;
    }
    if (change_owner) give_to_owner(prefix, uid, gid);
    return true;
}

}  // namespace

int FSMKDirP(const ustring& path, char** stop_pos, bool force, unsigned short mode) {
    if (path.empty()) return -1;
    char* buf = strdup(path.c_str());
    if (!buf) return -1;

    const bool default_mode = mode == 0xFFFF;
    const mode_t dir_mode = default_mode ? 0777 : mode;
    const mode_t saved_umask = default_mode ? 0 : umask(0);
    const bool change_owner = !(g_uid == kKeepId && g_gid == kKeepId);
    const uid_t uid = g_uid == kKeepId ? geteuid() : g_uid;
    const gid_t gid = g_gid == kKeepId ? getegid() : g_gid;

    int rc = 0;
    char* p = buf + (*buf == '/' ? 1 : 0);
    for (;;) {
        p += strcspn(p, "/");
        const bool last = p[0] == 0 || (p[0] == '/' && p[1] == 0);
        const char saved = *p;
        *p = 0;
        const bool made = make_component(buf, last, force, dir_mode, change_owner, uid, gid);
        *p = saved;
        if (!made) {
            rc = -1;
            break;
        }
        if (last) {
            p = buf + path.length();
            break;
        }
        ++p;
    }

    const int err = errno;
    if (!default_mode) umask(saved_umask);
    if (stop_pos) *stop_pos = const_cast<char*>(path.c_str()) + (p - buf);
    free(buf);
    errno = err;
    return rc;
}

int FSRemove(const ustring& path, bool) {
    if (path.empty()) return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) return -1;
    if (!info.exists) return 0;
    if (info.type != FILE_TYPE_DIR) return remove(path.c_str()) == 0 ? 0 : -3;

    // Listing needs read, removing entries write and search: a folder extracted with mode 000
    // would otherwise outlive every rollback. Only its owner (or root) can change that.
    const mode_t owner_all = S_IRWXU;
    if ((info.mode & owner_all) != owner_all) chmod(path.c_str(), (info.mode & 07777) | owner_all);
    DIR* dir = opendir(path.c_str());
    if (!dir) return 0;
    dirent* entry;
    int rc = 0;
    while (next_entry(dir, entry)) {
        if (is_dot_or_dotdot(entry->d_name)) continue;
        if (FSRemove(path + "/" + entry->d_name, false) != 0) {
            rc = -3;
            break;
        }
    }
    closedir(dir);
    if (rc != 0) return rc;
    return remove(path.c_str()) == 0 ? 0 : -3;
}

int FSMktemp(const ustring& directory, ustring& out) {
    char path[kPathBufferSize];
    snprintf(path, sizeof path, "%s/XXXXXX", directory.c_str());
    const std::string template_text(path);  // mkstemp overwrites the X's even when it fails
    const int fd = mkostemp(path, O_CLOEXEC);
    if (fd < 0) {
        const int err = errno;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): mkstemp(%s): %s\n", __LINE__,
                       template_text.c_str(), strerror(err));
        return -1;
    }
    fsync(fd);
    close(fd);
    out = path;
    chmod(path, 0644);
    return 0;
}

int FSCreateTempPath(const ustring& directory, ustring& out) {
    out = TmpNameGen::getInstance()->getTmpPath(directory);
    return out.empty() ? -1 : 0;
}

int TraverseDir(const ustring& path, TraverseCallback callback, void* context) {
    if (path.empty() || !callback) return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0 || !info.exists || info.type != FILE_TYPE_DIR) return -1;

    DIR* dir = opendir(path.c_str());
    if (!dir) return -2;
    int rc = callback(path, context) == 0 ? 0 : -2;
    dirent* entry;
    while (rc == 0 && next_entry(dir, entry)) {
        if (is_dot_or_dotdot(entry->d_name)) continue;
        const ustring child = path + "/" + entry->d_name;
        const int result = entry->d_type == DT_DIR ? TraverseDir(child, callback, context) : callback(child, context);
        if (result != 0) rc = -2;
    }
    if (rc == 0 && errno != 0) rc = -2;  // the listing ended on a read error
    closedir(dir);
    return rc;
}

int FSUTime(const ustring& path, long atime, long mtime) {
    struct utimbuf times;
    times.actime = atime;
    times.modtime = mtime;
    return utime(path.c_str(), &times) == 0 ? 0 : -1;
}

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle) {
    DIR* dir = opendir(path.c_str());
    if (!dir) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSOpenDir: Failed to open directory '%s'. %s\n",
                       __LINE__, path.c_str(), strerror(errno));
        return -1;
    }
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    dirent* found;
    if (!next_entry(handle.dir, found)) {
        if (errno == 0) return 0;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSOpenDir: Failed to read directory '%s'. %s\n",
                       __LINE__, handle.path.c_str(), strerror(errno));
        return -1;
    }
    entry.mtime = 0;
    entry.size = 0;
    if (handle.flags & FS_DIR_FLAG_STAT) {
        const ustring full = handle.path + "/" + found->d_name;
        _FILE_INFO_tag info;
        if (FSStat(full, info, true) != 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSOpenDir: Failed to get info for '%s'\n",
                           __LINE__, full.c_str());
            return -1;
        }
        if (info.exists) {
            entry.mtime = info.mtime;
            entry.size = info.size;
        }
    }
    entry.name = found->d_name;
    entry.type = type_of_dirent(found->d_type);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    if (handle.dir) closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}

bool FSTimeEqual(long a, long b) { return a == b; }

bool isFileLocked(const ustring& path, int mode) {
    if (access(path.c_str(), mode) == 0) return false;
    return errno == EACCES || errno == EPERM;
}

bool isMountPoint(const ustring& path) {
    std::string type;
    if (FSFileSystemTypeName(path.c_str(), type) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] file-op.cpp(%d): isMountPoint: Failed to get file system info '%s'. %s\n", __LINE__,
                       path.c_str(), strerror(errno));
        return false;
    }
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const ustring& path) {
    std::string type;
    if (FSFileSystemTypeName(path.c_str(), type) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] file-op.cpp(%d): IsSupportLargeFile: Failed to get file system info '%s'. %s\n", __LINE__,
                       path.c_str(), strerror(errno));
        return false;
    }
    if (type != "msdos") return false;
    Logger::LogMsg(Logger::LEVEL_WARNING, component(), "[WARNING] file-op.cpp(%d): Detect a MSDOS platform for path '%s'.\n",
                   __LINE__, path.c_str());
    return true;
}

int FSGetRealPath(ustring& path) {
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] file-op.cpp(%d):  org path [%s]\n", __LINE__, path.c_str());
    char stored[kPathBufferSize];
    const OSStatus status = stored_form(path, stored);
    if (status != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSPathMakeRef: %d\n", __LINE__,
                       static_cast<int>(status));
        return -1;
    }
    path = stored;
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] file-op.cpp(%d):  get full path [%s]\n", __LINE__, path.c_str());
    return 0;
}

int FSSyncFileSystem(const ustring& path) {
    if (FSSyncVolume(path.c_str()) == 0) return 0;
    const int err = errno;
    Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] file-op.cpp(%d): FSSyncFileSystem(%s): %s (%d)\n", __LINE__,
                   path.c_str(), strerror(err), err);
    return -1;
}
