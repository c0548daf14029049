// Helpers shared by the tests: a temporary folder removed with everything in it, small file helpers
// that fail the test loudly instead of returning codes, trees, logs and child processes.
#ifndef TESTS_TEST_SUPPORT_H
#define TESTS_TEST_SUPPORT_H

#include <fcntl.h>
#include <ftw.h>
#include <grp.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#if defined(__linux__)
#include <linux/fs.h>
#include <sys/ioctl.h>
#endif

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#if defined(QT_CORE_LIB)
#include <QString>
#endif

namespace testsupport {

#if defined(QT_CORE_LIB)
inline QString q(const std::string& s) { return QString::fromStdString(s); }
#endif

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
    return (void)path, (void)on, false;
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
        nftw(path_.c_str(), [](const char* p, const struct stat*, int, struct FTW*) { return ::remove(p), 0; }, 16,
             FTW_DEPTH | FTW_PHYS);
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

// A tree as relative path ("/name/...") -> file content, "/" for a folder or "->target" for a
// symbolic link. Parents sort before their entries.
using Tree = std::map<std::string, std::string>;
inline void make_tree(const std::string& root, const Tree& tree) {
    for (const auto& [rel, content] : tree) {
        if (content == "/") make_dir(root + rel);
        else if (content.compare(0, 2, "->") != 0) write_file(root + rel, content);
        else if (symlink(content.c_str() + 2, (root + rel).c_str()) != 0) throw std::runtime_error("symlink failed: " + root + rel);
    }
}

// The tree under root as make_tree takes it; with `modes`, " mode <decimal>" after each file's and folder's.
inline Tree snapshot(const std::string& root, bool modes = false) {
    namespace fs = std::filesystem;
    Tree tree;
    for (const auto& e : fs::recursive_directory_iterator(root)) {
        std::string& entry = tree["/" + e.path().lexically_relative(root).string()];
        if (e.is_symlink()) entry = "->" + fs::read_symlink(e.path()).string();
        else entry = (e.is_directory() ? "/" : read_file(e.path())) + (modes ? " mode " + std::to_string(int(e.status().permissions())) : "");
    }
    return tree;
}

// The names under root, relative to it.
inline std::set<std::string> names(const std::string& root) {
    std::set<std::string> found;
    for (const auto& e : std::filesystem::recursive_directory_iterator(root)) found.insert(e.path().lexically_relative(root));
    return found;
}

// A log's lines without their times, source line numbers as N; with `only`, just those whose "[LEVEL] file" matches it.
inline std::string log_lines(const std::string& path, const std::string& only = "") {
    std::ifstream in(path);
    const std::regex time(R"(^\S+ \d\d \d\d:\d\d:\d\d )"), number(R"(\(\d+\))"), kept("(?:" + only + R"()\(N\).*)");
    std::string found;
    for (std::string l; std::getline(in, l);) {
        l = std::regex_replace(std::regex_replace(l, time, ""), number, "(N)", std::regex_constants::format_first_only);
        if (only.empty() || std::regex_match(l, kept)) found += l + "\n";
    }
    return found;
}

// Polls ok every 10 ms, n times at most; whether it came true.
inline bool wait_for(const std::function<bool()>& ok, int n = 500) {
    for (; !ok(); --n) {
        if (n <= 0) return false;
        usleep(10000);
    }
    return true;
}

// Whether the file comes to hold exactly `content` within 5 s.
inline bool comes_to_hold(const std::string& path, const std::string& content) {
    return wait_for([&] { return exists(path) && read_file(path) == content; });
}

inline double seconds_since(std::chrono::steady_clock::time_point t0) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

// Runs program with one argument or none, as `user` unless 0 (which needs root); its pid.
inline pid_t spawn(const char* program, const char* arg = nullptr, uid_t user = 0) {
    const pid_t pid = fork();
    if (pid == 0 && user && (setgroups(0, nullptr) != 0 || setgid(user) != 0 || setuid(user) != 0)) _exit(126);
    return pid == 0 ? (execlp(program, program, arg, nullptr), _exit(127), 0) : pid;
}

// Gives every entry under root to `user`.
inline void give_to(const std::string& root, uid_t user) {
    static uid_t to;
    to = user;
    nftw(root.c_str(), [](const char* p, const struct stat*, int, struct FTW*) { return lchown(p, to, to), 0; }, 16, FTW_PHYS);
}

// A client script that writes "pid=$$" to $HOME/.Lumora/ui.pid, runs `on_term` on SIGTERM and ends when a
// line comes down `fifo` or after `secs` seconds.
inline void write_client(const std::string& bin, const std::string& on_term, const std::string& secs, const std::string& fifo) {
    write_file(bin, "#!/bin/bash\ntrap '" + on_term + "' TERM\necho \"pid=$$\" > \"$HOME/.Lumora/ui.pid\"\nread -t " + secs + " _ <> '" + fifo + "'\n");
    chmod(bin.c_str(), 0755);
}

// Once a client script has written "$$\n" to `marker`, its process (adopted by us as subreaper) is reaped: its pid, else 0.
inline pid_t reap_marked(const std::string& marker) {
    if (!wait_for([&] { return exists(marker) && read_file(marker).back() == '\n'; }, 1000)) return 0;
    const pid_t pid = std::stoi(read_file(marker));
    return waitpid(pid, nullptr, 0) == pid ? pid : 0;
}

// Calls `start` (a fork; the child's pid) until the child gets the free id `pid`, by setting the last id given out to the one
// before (Linux, root); children that missed are killed. The last id is put back after. The child's pid, or -1.
template <class Start>
pid_t at_pid(pid_t pid, Start start) {
    const char* const last_pid = "/proc/sys/kernel/ns_last_pid";
    long before = 0, now = 0;
    std::ifstream(last_pid) >> before;
    pid_t child = -1;
    for (int i = 0; i < 100; ++i) {
        child = std::ofstream(last_pid) << pid - 1 << std::flush ? start() : -1;
        if (child == pid || child < 0) break;
        kill(child, SIGKILL), waitpid(child, nullptr, 0), child = -1;
    }
    std::ifstream(last_pid) >> now;
    if (now < before) std::ofstream(last_pid) << before;
    return child;
}

}  // namespace testsupport

#endif
