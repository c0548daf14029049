// Helpers shared by the tests: a temporary folder removed with everything in it, and small
// file helpers that fail the test loudly instead of returning codes.
#ifndef TESTS_TEST_SUPPORT_H
#define TESTS_TEST_SUPPORT_H

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>
#if defined(__linux__)
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace testsupport {

// The immutable flag stops even root from changing an entry. False where the file system (or the
// platform) lacks it.
inline bool set_immutable(const std::string& path, bool on) {
#if defined(__linux__)
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
    int flags = 0;
    bool done = fd >= 0 && ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    done = done && ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    if (fd >= 0) close(fd);
    return done;
#else
    (void)path;
    (void)on;
    return false;
#endif
}

class TempDir {
public:
    // Under `base`, else under $TMPDIR or /tmp.
    explicit TempDir(std::string base = "") {
        const char* env = std::getenv("TMPDIR");
        if (base.empty()) base = env && *env ? env : "/tmp";
        std::string tmpl = base + "/lumora-test-XXXXXX";
        if (!mkdtemp(&tmpl[0])) throw std::runtime_error("mkdtemp failed");
        path_ = tmpl;
    }
    ~TempDir() {
        // Restore permissions and flags a test may have taken away, then remove the tree.
        nftw(path_.c_str(), restore, 16, FTW_PHYS);
        nftw(path_.c_str(), remove_one, 16, FTW_DEPTH | FTW_PHYS);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& rel) const { return path_ + "/" + rel; }

private:
    static int restore(const char* p, const struct stat* st, int type, struct FTW*) {
        if (S_ISREG(st->st_mode) || S_ISDIR(st->st_mode)) set_immutable(p, false);
        if (type == FTW_D || type == FTW_DNR) chmod(p, 0700);
        else if (type == FTW_F && !S_ISLNK(st->st_mode)) chmod(p, 0600);
        return 0;
    }
    static int remove_one(const char* p, const struct stat*, int, struct FTW*) {
        ::remove(p);
        return 0;
    }
    std::string path_;
};

inline void write_file(const std::string& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) throw std::runtime_error("cannot write " + path);
    out << content;
}

inline std::string read_file(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + path);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline bool exists(const std::string& path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

inline bool is_dir(const std::string& path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

inline void make_dir(const std::string& path) {
    if (mkdir(path.c_str(), 0755) != 0) throw std::runtime_error("mkdir failed: " + path);
}

inline void make_link(const std::string& target, const std::string& path) {
    if (symlink(target.c_str(), path.c_str()) != 0) throw std::runtime_error("symlink failed: " + path);
}

// A tree as relative path ("/name/...") -> file content, "/" for a folder or "->target" for a
// symbolic link. Parents sort before their entries.
using Tree = std::map<std::string, std::string>;
inline void make_tree(const std::string& root, const Tree& tree) {
    for (const auto& [rel, content] : tree) {
        if (content == "/") make_dir(root + rel);
        else if (content.compare(0, 2, "->") == 0) make_link(content.substr(2), root + rel);
        else write_file(root + rel, content);
    }
}

// Whether `ok` holds, asked every 10 ms, at most n more times (5 s by default).
inline bool wait_for(const std::function<bool()>& ok, int n = 500) { return ok() || (n && (usleep(10000), wait_for(ok, n - 1))); }

}  // namespace testsupport

#endif
