// The few file-system services that differ by platform, behind one interface.
//
// FSPathMakeRef / FSRefMakePath: on macOS the CoreServices calls; elsewhere our own pair with the
// same contract: given an existing path, FSRefMakePath gives back the same path in the form
// stored on disk (letter case and Unicode form of each component), and a path that cannot be
// resolved makes FSPathMakeRef fail with a non-zero status.
#ifndef LIB_FS_PLATFORM_H
#define LIB_FS_PLATFORM_H

#include <cstddef>
#include <cstdint>
#include <string>

#if defined(__APPLE__)
#include <CoreServices/CoreServices.h>
#else
typedef int32_t OSStatus;
typedef uint8_t UInt8;
typedef uint32_t UInt32;
typedef unsigned char Boolean;

enum {
    kFSStatusNotFound = -43,
    kFSStatusBadParam = -50,
    kFSStatusPathTooLong = -2110,
};

struct FSRef {
    std::string stored_path;
};

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 maxPathSize);
#endif

// The type name of the file system holding path, in the platform's statfs naming: "nfs",
// "smbfs", "afpfs", "msdos", ... 0, or -1 with errno set.
int FSFileSystemTypeName(const char* path, std::string& name);

// The path as stored on disk when it exists under a canonically equivalent spelling: the Unicode
// form of each component may differ (a folder copied from a system that decomposes names), the
// letter case may not. 0 found, -1 not.
int FSFindStoredForm(const char* path, std::string& stored);

// Makes the C library read and write names as UTF-8, whatever character set the environment's
// locale names: only the character-type category changes, the others (month names in the log)
// stay. 0, or -1 when the system has no UTF-8 character type.
int FSUseUtf8Names();

// Writes everything cached for the file system holding path to disk and waits for it: one flush
// for the whole file system, not one per file. 0, or -1 with errno set.
int FSSyncVolume(const char* path);

// A local stream socket, close-on-exec. -1 with errno on failure.
int FSLocalSocket();

// Listens on a local name that lives exactly as long as this process and needs no folder (the
// abstract namespace on Linux). The descriptor, or -1 with errno: EADDRINUSE when a live process
// holds the name, ENOSYS where the platform has no such names.
int FSClaimLocalName(const char* name);

// Marks every descriptor from `first` up close-on-exec, so that a program started next inherits
// none of them, whoever opened them.
void FSCloseOnExecFrom(int first);

// Whether process pid runs the program at program_path: its executable, or for an interpreted
// script the script named in its command line, is that file (links resolved). 1 yes, 0 no,
// -1 when the process's identity cannot be read (gone, a zombie, or not ours to inspect).
int FSProcessRunsProgram(long pid, const char* program_path);

#endif
