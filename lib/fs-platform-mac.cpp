// macOS side of the platform seam: FSPathMakeRef and FSRefMakePath come from CoreServices.
#include "fs-platform.h"

#include <dirent.h>
#include <fcntl.h>
#include <langinfo.h>
#include <libproc.h>
#include <sys/mount.h>
#include <sys/param.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <clocale>
#include <cstdlib>
#include <cstring>

int FSFileSystemTypeName(const char* path, std::string& name) {
    struct statfs st;
    if (statfs(path, &st) != 0) return -1;
    name = st.f_fstypename;
    return 0;
}

int FSProcessRunsProgram(long pid, const char* program_path) {
    char target[PATH_MAX];
    char exe[PROC_PIDPATHINFO_MAXSIZE];
    if (pid <= 0 || !realpath(program_path, target)) return -1;
    if (proc_pidpath(static_cast<int>(pid), exe, sizeof exe) <= 0) return -1;
    char exe_real[PATH_MAX];
    return realpath(exe, exe_real) && strcmp(exe_real, target) == 0 ? 1 : 0;
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
