// macOS side of the platform seam: FSPathMakeRef and FSRefMakePath come from CoreServices.
#include "fs-platform.h"

#include <sys/mount.h>
#include <libproc.h>
#include <sys/param.h>

#include <climits>
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
