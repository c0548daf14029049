// macOS side of the platform seam: FSPathMakeRef and FSRefMakePath come from CoreServices.
#include "fs-platform.h"

#include <dirent.h>
#include <fcntl.h>
#include <langinfo.h>
#include <libproc.h>
#include <sys/mount.h>
#include <sys/param.h>
#include <sys/proc_info.h>
#include <sys/socket.h>
#include <sys/sysctl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <vector>

int FSFileSystemTypeName(const char* path, std::string& name) {
    struct statfs st;
    if (statfs(path, &st) != 0) return -1;
    name = st.f_fstypename;
    return 0;
}

// No process descriptors here: FSProcess checks the id before each use instead.
int FSPidfdOpen(long) {
    errno = ENOSYS;
    return -1;
}

int FSPidfdSignal(int, int) {
    errno = EBADF;
    return -1;
}

int FSPidfdExited(int) { return 1; }

int FSProcessReadInfo(long pid, FSProcessInfo& info) {
    info = FSProcessInfo();
    if (pid <= 0 || pid > INT_MAX) {
        errno = ESRCH;
        return -1;
    }
    const int id = static_cast<int>(pid);
    // With arg 0 the kernel does not look among zombies: a zombie fails with ESRCH as a gone
    // process does. Another user's process fails with EPERM and keeps its start time unknown.
    struct proc_bsdinfo bsd;
    errno = 0;
    if (proc_pidinfo(id, PROC_PIDTBSDINFO, 0, &bsd, sizeof bsd) == static_cast<int>(sizeof bsd))
        info.start = bsd.pbi_start_tvsec * 1000000ull + bsd.pbi_start_tvusec;
    else if (errno == ESRCH)
        return -1;

    char path[PROC_PIDPATHINFO_MAXSIZE], real[PATH_MAX];
    if (proc_pidpath(id, path, sizeof path) > 0 && realpath(path, real)) info.exe = real;
    struct proc_vnodepathinfo vnodes;
    if (proc_pidinfo(id, PROC_PIDVNODEPATHINFO, 0, &vnodes, sizeof vnodes) == static_cast<int>(sizeof vnodes))
        info.cwd = vnodes.pvi_cdir.vip_path;

    // KERN_PROCARGS2: argc as an int, the executable's path, NUL padding, then the argc arguments,
    // each NUL-terminated, then the environment.
    int mib[3] = {CTL_KERN, KERN_ARGMAX, 0};
    int argmax = 0;
    size_t size = sizeof argmax;
    if (sysctl(mib, 2, &argmax, &size, nullptr, 0) != 0 || argmax <= 0) return 0;
    std::vector<char> args(static_cast<size_t>(argmax));
    mib[1] = KERN_PROCARGS2;
    mib[2] = id;
    size = args.size();
    int argc = 0;
    if (sysctl(mib, 3, args.data(), &size, nullptr, 0) != 0 || size < sizeof argc) return 0;
    memcpy(&argc, args.data(), sizeof argc);
    const char* end = args.data() + size;
    const char* p = static_cast<const char*>(memchr(args.data() + sizeof argc, 0, size - sizeof argc));
    while (p && p < end && *p == 0) ++p;
    for (int i = 0; p && p < end && i < argc; ++i) {
        const char* nul = static_cast<const char*>(memchr(p, 0, static_cast<size_t>(end - p)));
        if (!nul) break;
        info.argv.emplace_back(p, nul);
        p = nul + 1;
    }
    return 0;
}

// The volume matches every Unicode form of a name itself.
int FSFindStoredForm(const char* path, std::string& stored) {
    if (!path || !*path || access(path, F_OK) != 0) return -1;
    stored = path;
    return 0;
}

int FSUseUtf8Names() {
    if (strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return 0;
    return setlocale(LC_CTYPE, "UTF-8") || setlocale(LC_CTYPE, "en_US.UTF-8") ? 0 : -1;
}

int FSSyncVolume(const char* path) {
    const int err = sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);  // an errno value
    if (err == 0) return 0;
    errno = err;
    return -1;
}

// No SOCK_CLOEXEC here: the flag is set right after.
int FSLocalSocket() {
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    if (fd >= 0 && fcntl(fd, F_SETFD, FD_CLOEXEC) != 0) {
        const int err = errno;
        close(fd);
        errno = err;
        return -1;
    }
    return fd;
}

int FSClaimLocalName(const char*) {
    errno = ENOSYS;
    return -1;
}

void FSCloseOnExecFrom(int first) {
    DIR* fds = opendir("/dev/fd");
    if (!fds) return;
    while (const dirent* entry = readdir(fds)) {
        const int fd = atoi(entry->d_name);
        if (fd >= first) fcntl(fd, F_SETFD, fcntl(fd, F_GETFD) | FD_CLOEXEC);
    }
    closedir(fds);
}
