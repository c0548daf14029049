// File operations: every touch of the file system by non-UI code.
//
// Paths are UTF-8 ustrings passed to POSIX calls as they are. Results are 0 on success and small
// negative codes on failure (see each function); failures are logged under "file_op_debug".
#ifndef LIB_FILE_OP_H
#define LIB_FILE_OP_H

#include <dirent.h>

#include <cstdint>

#include "ustring.h"

// Kinds of entries, from st_mode or from a directory entry's d_type. 4 is not used.
enum {
    FILE_TYPE_UNKNOWN = 0,
    FILE_TYPE_REGULAR = 1,
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LINK = 3,
    FILE_TYPE_DEVICE = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7,
};

struct _FILE_INFO_tag {
    ustring path;
    ustring aux_text;  // free for callers; takes part in equality
    uint32_t type = FILE_TYPE_UNKNOWN;
    int32_t mtime = 0;
    uint64_t size = 0;
    bool exists = false;
    uint32_t uid = 0;
    uint32_t gid = 0;
    uint32_t mode = 0;  // st_mode: kind and permission bits
};
typedef _FILE_INFO_tag FILE_INFO;

// Compares exists, size, mtime, type, path and aux_text (not uid, gid, mode).
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

enum { FS_DIR_FLAG_STAT = 1 };  // FSReadDir fills mtime and size

struct DIR_HANDLE {
    ustring path;
    int flags = 0;
    DIR* dir = nullptr;
};

struct DIR_ENTRY {
    ustring name;
    uint32_t type = FILE_TYPE_UNKNOWN;
    int32_t mtime = 0;
    uint64_t size = 0;
};

typedef int (*TraverseCallback)(const ustring& path, void* context);

// Owner given to directories this module creates; (uint32_t)-1 keeps the default.
void FSInitialize(uint32_t uid, uint32_t gid);
int FSInit(const ustring& path);
int FSChown(const ustring& path);

// True when the path exists as given or under another Unicode form of its names (folders that
// store names as bytes keep whatever form they were given). With exact_case, the path must also
// name the entry in the letter case stored on disk.
bool IsFileExist(const ustring& path, bool exact_case);
// Replaces the path by the spelling stored on disk when it exists only under another Unicode
// form. 0 when it exists either way, -1 (path unchanged) when it does not.
int FSGetStoredForm(ustring& path);
// lstat-based. A missing path gives 0 with exists false; -1 on any other failure.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// 0 (exists false when missing), -1 empty path, -2 information unreadable.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact_case);
// 0, -1 open/read/write failure, -2 disk full. The destination is synced before the source is
// removed.
int FSCopy(const ustring& source, const ustring& destination, bool remove_source);
// 0, -1 empty path, -2 source missing or unreadable, -3 move failed, -100 name too long. Falls
// back to copy-and-remove across file systems.
int FSRename(const ustring& source, const ustring& destination, bool exact_case);
// 0 (also when the directory exists), -1 bad path or not a directory, -2 creation failed.
int FSMKDir(const ustring& path, bool parents);
// Creates every missing component. mode 0xFFFF means 0777 under the umask; any other mode is
// used exactly. With force, a non-directory in the way is replaced. *stop_pos (if given) points
// into path's text: behind the component that failed, or at the end on success.
int FSMKDirP(const ustring& path, char** stop_pos, bool force, unsigned short mode);
// Recursive. A folder of ours that lacks our own read, write or search permission gets it first,
// so whatever modes a package gave its entries, what we extracted can be removed.
// 0 (also for a missing path or a directory that cannot be opened), -1, -3.
int FSRemove(const ustring& path, bool unused = false);
int FSMktemp(const ustring& directory, ustring& out);
int FSCreateTempPath(const ustring& directory, ustring& out);
// Pre-order walk: the callback sees the directory, then each entry; subdirectories are walked
// where they appear. 0, -1 bad path, -2 open/read error or the callback returned non-zero.
int TraverseDir(const ustring& path, TraverseCallback callback, void* context);
int FSUTime(const ustring& path, long atime, long mtime);
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);
// 1 entry read ("." and ".." included), 0 end, -1 error.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
void FSCloseDir(DIR_HANDLE& handle);
bool FSTimeEqual(long a, long b);
bool isFileLocked(const ustring& path, int mode);
// True when the path lies on a network share (nfs, smbfs, afpfs).
bool isMountPoint(const ustring& path);
bool IsMSDOS(const ustring& path);
// Replaces the path by its form stored on disk. 0, or -1 with the path unchanged.
int FSGetRealPath(ustring& path);
// Flushes the file system holding path to disk and waits for it. 0, or -1 (logged).
int FSSyncFileSystem(const ustring& path);

#endif
