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
#include <vector>

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

// What the platform tells of a live process. What it cannot read stays empty or 0.
struct FSProcessInfo {
    std::string exe;                // the executable, links resolved
    std::vector<std::string> argv;  // the command line
    std::string cwd;                // a folder that relative arguments resolve against
    unsigned long long start = 0;   // when it started, in the platform's units
};

// 0, or -1 when no live process has that id (none at all, or a zombie).
int FSProcessReadInfo(long pid, FSProcessInfo& info);

// Process descriptors (Linux pidfds): they stay with one process and never pass to a later owner
// of its id. Open: the descriptor, or -1 with errno (ESRCH: no such process; ENOSYS and others:
// none to be had). Signal: kill(2) through it. Exited: 1 once the process has exited, a zombie
// included, else 0.
int FSPidfdOpen(long pid);
int FSPidfdSignal(int fd, int sig);
int FSPidfdExited(int fd);

// One process, held from before its identity is checked until the last signal, so that no signal
// or probe reaches a later owner of its id: through a process descriptor where there is one, else
// by checking before each call that the id still names a live process with the start time and the
// identity seen at approval.
class FSProcess {
public:
    explicit FSProcess(long pid);
    ~FSProcess();
    FSProcess(const FSProcess&) = delete;
    FSProcess& operator=(const FSProcess&) = delete;

    // Whether the held process runs program_path: its executable is that file (links resolved),
    // or that file is a script whose "#!" interpreter runs it as its script. 1 yes, 0 no, -1 when
    // its identity cannot be read, or it has ended (ended() then says so).
    int approve(const char* program_path);
    // kill(2) on the held process: 0, or -1 with errno, ESRCH once it has ended.
    int signal(int sig);
    // It has exited (a zombie counts), or its id now names another process.
    bool ended();

private:
    bool same_process();

    long pid_;
    int fd_ = -1;                   // its descriptor; -1 when the fallback checks are used
    bool gone_ = false;
    unsigned long long start_ = 0;  // fallback: the start time when it was taken hold of
    int verdict_ = -1;              // fallback: approve's answer, which must not change
    std::string program_;
};

#endif
