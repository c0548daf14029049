// Linux side of the platform seam.
//
// The on-disk form of a path is found component by component: a component that is stored
// byte-for-byte is kept; otherwise its parent folder is searched for the one entry that equals
// it under canonical caseless matching (NFD, case folding, NFD). That is what a folder that
// ignores case or Unicode form would have matched. Linux folders do neither: they store names
// as bytes, so the same search, by Unicode form alone, finds a path stored in another form.
#include "fs-platform.h"

#include <dirent.h>
#include <fcntl.h>
#include <langinfo.h>
#include <linux/close_range.h>
#include <linux/magic.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <cerrno>
#include <climits>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "fs-platform-linux.h"
#include "ustring.h"

namespace {

// The caseless-match key of a name in UTF-8; empty when the name is not valid UTF-8.
std::string caseless_key(const char* name) {
    const ustring text(name);
    if (text.empty() || !ustring::is_valid(text)) return std::string();
    const ustring nfd = text.normalize(NFD);
    const UChar* src = reinterpret_cast<const UChar*>(nfd.c_str_utf16());
    UErrorCode err = U_ZERO_ERROR;
    const int32_t len = u_strFoldCase(nullptr, 0, src, -1, U_FOLD_CASE_DEFAULT, &err);
    std::u16string folded(static_cast<size_t>(len), u'\0');
    err = U_ZERO_ERROR;
    u_strFoldCase(reinterpret_cast<UChar*>(&folded[0]), len, src, -1, U_FOLD_CASE_DEFAULT, &err);
    if (U_FAILURE(err)) return std::string();
    const ustring key(reinterpret_cast<const unsigned short*>(folded.c_str()));
    return key.normalize(NFD).c_str();
}

class DirStream {
public:
    explicit DirStream(const std::string& dir) : dir_(opendir(dir.empty() ? "." : dir.c_str())) {}
    ~DirStream() {
        if (dir_) closedir(dir_);
    }
    DirStream(const DirStream&) = delete;
    DirStream& operator=(const DirStream&) = delete;
    DIR* get() const { return dir_; }

private:
    DIR* dir_;
};

// The canonical-equivalence key of a name: its NFC form; empty when the name is not valid UTF-8.
std::string canonical_key(const char* name) {
    const ustring text(name);
    if (text.empty() || !ustring::is_valid(text)) return std::string();
    return text.normalize(NFC).c_str();
}

using NameKey = std::string (*)(const char*);

// Finds how `component` is stored in the folder `dir` ("" for the current folder, else ending
// in "/"): as given, else as the one entry whose key equals its key. False when it is not there
// or more than one entry matches.
bool stored_name(const std::string& dir, const std::string& component, NameKey key, std::string& stored) {
    struct stat st;
    const bool as_given = lstat((dir + component).c_str(), &st) == 0;
    stored = component;
    // Found as given means stored so, unless the folder ignores case: then only its listing tells.
    if (as_given && key != caseless_key) return true;
    DirStream stream(dir);
    const std::string wanted = stream.get() ? key(component.c_str()) : std::string();
    if (wanted.empty()) return as_given;  // searchable but not listable, or not UTF-8
    int matches = 0;
    std::string found;
    while (const dirent* entry = readdir(stream.get())) {
        if (component == entry->d_name) return true;
        if (key(entry->d_name) == wanted) {
            found = entry->d_name;
            ++matches;
        }
    }
    if (matches == 1) stored = found;
    return matches == 1 || (as_given && matches == 0);
}

// Resolves `in` component by component into the names stored on disk.
bool stored_path(const std::string& in, NameKey key, std::string& out) {
    out.clear();
    out.reserve(in.size());
    for (size_t i = 0; i < in.size();) {
        if (in[i] == '/') {
            out += '/';
            ++i;
            continue;
        }
        size_t end = in.find('/', i);
        if (end == std::string::npos) end = in.size();
        const std::string component = in.substr(i, end - i);
        if (component == "." || component == "..") {
            out += component;
        } else {
            std::string stored;
            if (!stored_name(out, component, key, stored)) return false;
            out += stored;
        }
        i = end;
    }
    struct stat st;
    return lstat(out.c_str(), &st) == 0;
}

}  // namespace

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory) {
    if (!path || !ref || !*path) return kFSStatusBadParam;
    std::string out;
    if (!stored_path(reinterpret_cast<const char*>(path), caseless_key, out)) return kFSStatusNotFound;
    struct stat st;
    if (isDirectory) *isDirectory = stat(out.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
    ref->stored_path = out;
    return 0;
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 maxPathSize) {
    if (!ref || !path) return kFSStatusBadParam;
    const std::string& stored = ref->stored_path;
    if (stored.size() + 1 > maxPathSize) return kFSStatusPathTooLong;
    memcpy(path, stored.c_str(), stored.size() + 1);
    return 0;
}

int FSFindStoredForm(const char* path, std::string& stored) {
    if (!path || !*path) return -1;
    return stored_path(path, canonical_key, stored) ? 0 : -1;
}

int FSUseUtf8Names() {
    if (strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return 0;
    for (const char* name : {"C.UTF-8", "C.utf8", "en_US.UTF-8"})
        if (setlocale(LC_CTYPE, name)) return 0;
    return -1;
}

int FSSyncVolume(const char* path) {
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0) return -1;
    const int rc = syncfs(fd);
    const int err = errno;
    close(fd);
    errno = err;
    return rc == 0 ? 0 : -1;
}

int FSLocalSocket() { return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0); }

int FSClaimLocalName(const char* name) {
    struct sockaddr_un address = {};
    const size_t length = strlen(name);
    if (length + 1 > sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return -1;
    }
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path + 1, name, length);  // a leading NUL: the abstract namespace
    const int fd = FSLocalSocket();
    if (fd < 0) return -1;
    const socklen_t size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    if (bind(fd, reinterpret_cast<const sockaddr*>(&address), size) != 0 || listen(fd, SOMAXCONN) != 0) {
        const int err = errno;
        close(fd);
        errno = err;
        return -1;
    }
    return fd;
}

void FSCloseOnExecFrom(int first) {
#if defined(SYS_close_range) && defined(CLOSE_RANGE_CLOEXEC)
    if (syscall(SYS_close_range, static_cast<unsigned>(first), ~0U, CLOSE_RANGE_CLOEXEC) == 0) return;
#endif
    // Kernels before 5.11: each open descriptor, as /proc lists them.
    DirStream fds("/proc/self/fd/");
    if (!fds.get()) return;
    while (const dirent* entry = readdir(fds.get())) {
        const int fd = atoi(entry->d_name);
        if (fd >= first) fcntl(fd, F_SETFD, fcntl(fd, F_GETFD) | FD_CLOEXEC);
    }
}

const char* FSFileSystemTypeNameOfMagic(unsigned long magic) {
    switch (magic) {
    case NFS_SUPER_MAGIC: return "nfs";
    case SMB_SUPER_MAGIC:
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC: return "smbfs";
    case MSDOS_SUPER_MAGIC: return "msdos";  // vfat shares it
    case EXFAT_SUPER_MAGIC: return "exfat";
    case 0x482b: return "hfs";  // hfsplus
    case EXT4_SUPER_MAGIC: return "ext4";  // ext2 and ext3 share it
    case BTRFS_SUPER_MAGIC: return "btrfs";
    case XFS_SUPER_MAGIC: return "xfs";
    case TMPFS_MAGIC: return "tmpfs";
    case OVERLAYFS_SUPER_MAGIC: return "overlay";
    case FUSE_SUPER_MAGIC: return "fuse";
    default: return "unknown";
    }
}

int FSFileSystemTypeName(const char* path, std::string& name) {
    struct statfs st;
    if (statfs(path, &st) != 0) return -1;
    name = FSFileSystemTypeNameOfMagic(static_cast<unsigned long>(st.f_type));
    return 0;
}

namespace {

bool pidfd_enabled = true;

}  // namespace

void FSPidfdEnable(bool on) { pidfd_enabled = on; }

int FSPidfdOpen(long pid) {
    if (!pidfd_enabled) {
        errno = ENOSYS;
        return -1;
    }
    return static_cast<int>(syscall(SYS_pidfd_open, static_cast<pid_t>(pid), 0));  // close-on-exec
}

int FSPidfdSignal(int fd, int sig) { return static_cast<int>(syscall(SYS_pidfd_send_signal, fd, sig, nullptr, 0)); }

int FSPidfdExited(int fd) {
    pollfd p = {fd, POLLIN, 0};
    return poll(&p, 1, 0) == 1 && (p.revents & POLLIN) ? 1 : 0;
}

int FSProcessReadInfo(long pid, FSProcessInfo& info) {
    info = FSProcessInfo();
    errno = ESRCH;
    const std::string proc = "/proc/" + std::to_string(pid);
    const int fd = pid > 0 ? open((proc + "/stat").c_str(), O_RDONLY | O_CLOEXEC) : -1;
    char buf[1024];
    const ssize_t got = fd >= 0 ? read(fd, buf, sizeof buf - 1) : -1;
    if (fd >= 0) close(fd);
    if (got <= 0 && (errno == ENOENT || errno == ESRCH)) return -1;
    if (got > 0) {
        // "pid (name) state ppid ...": the name may hold anything, so fields count from the last ')'.
        const std::string stat(buf, static_cast<size_t>(got));
        std::istringstream fields(stat.substr(stat.rfind(')') + 1));
        std::string state, field;
        fields >> state;
        for (int i = 4; i < 22; ++i) fields >> field;
        fields >> info.start;  // field 22: clock ticks after boot
        if (state == "Z" || state == "X") {
            errno = ESRCH;
            return -1;
        }
    }
    char exe[PATH_MAX], real[PATH_MAX];
    const ssize_t n = readlink((proc + "/exe").c_str(), exe, sizeof exe - 1);
    if (n > 0 && (exe[n] = 0, realpath(exe, real))) info.exe = real;
    std::ifstream cmdline(proc + "/cmdline", std::ios::binary);
    for (std::string arg; std::getline(cmdline, arg, '\0');) info.argv.push_back(arg);
    info.cwd = proc + "/cwd";  // the link resolves even where the folder's name does not
    return 0;
}
