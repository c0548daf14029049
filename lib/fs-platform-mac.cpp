// macOS side of the platform seam: FSPathMakeRef and FSRefMakePath come from CoreServices.
#include "fs-platform.h"

#include <sys/mount.h>
#include <sys/param.h>

int FSFileSystemTypeName(const char* path, std::string& name) {
    struct statfs st;
    if (statfs(path, &st) != 0) return -1;
    name = st.f_fstypename;
    return 0;
}
