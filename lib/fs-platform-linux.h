// Linux-only detail of the platform seam, visible for tests.
#ifndef LIB_FS_PLATFORM_LINUX_H
#define LIB_FS_PLATFORM_LINUX_H

// The statfs type name for a kernel file-system magic number; "unknown" for others.
const char* FSFileSystemTypeNameOfMagic(unsigned long magic);

// Off: FSPidfdOpen fails with ENOSYS, as on a kernel without pidfds, so FSProcess falls back.
void FSPidfdEnable(bool on);

#endif
