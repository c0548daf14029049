// The platform-independent half of FSProcess: what counts as running a program, and holding on to
// one process through a process descriptor or, without one, through repeated checks.
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "fs-platform.h"

namespace {

// realpath, or empty when the path cannot be resolved.
std::string resolved(const std::string& path) {
    char buf[PATH_MAX];
    return realpath(path.c_str(), buf) ? std::string(buf) : std::string();
}

// The first executable file called name in the folders of PATH.
std::string on_path(const std::string& name) {
    if (name.empty() || name.find('/') != std::string::npos) return name;
    const char* env = getenv("PATH");
    std::istringstream dirs(env && *env ? env : "/usr/bin:/bin");
    struct stat st;
    for (std::string dir; std::getline(dirs, dir, ':');) {
        const std::string path = (dir.empty() ? "." : dir) + "/" + name;
        if (access(path.c_str(), X_OK) == 0 && stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode)) return path;
    }
    return std::string();
}

// What runs a script: the interpreter of its "#!" line (for "#!/usr/bin/env NAME", NAME as found
// on PATH), resolved, and the line's optional argument, which comes before the script when the
// kernel starts the interpreter. Empty for a file that is not a script.
struct Shebang {
    std::string interpreter, arg;
};

Shebang shebang_of(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    Shebang sb;
    if (!std::getline(in, line) || line.compare(0, 2, "#!") != 0) return sb;
    std::istringstream words(line.substr(2));
    std::string interpreter;
    words >> interpreter;
    std::getline(words >> std::ws, sb.arg);
    sb.arg.erase(sb.arg.find_last_not_of(" \t\r") + 1);
    if (interpreter.size() >= 4 && interpreter.compare(interpreter.size() - 4, 4, "/env") == 0) {
        std::istringstream args(sb.arg);
        std::string name;
        while (args >> name && (name[0] == '-' || name.find('=') != std::string::npos)) {}  // env's options, assignments
        interpreter = on_path(name);
        sb.arg.clear();  // env takes it
    }
    sb.interpreter = interpreter.empty() ? std::string() : resolved(interpreter);
    return sb;
}

// 1 when the process runs program_path: as its executable, or as the script argument of the
// script's interpreter (after argv[0], the "#!" line's argument and options). 0 when it does not,
// -1 when the process cannot be told apart (nothing of it readable).
int runs_program(const FSProcessInfo& info, const std::string& program_path) {
    const std::string target = resolved(program_path);
    if (target.empty() || (info.exe.empty() && info.argv.empty())) return -1;
    if (info.exe == target) return 1;
    const Shebang sb = shebang_of(target);
    if (sb.interpreter.empty() || info.exe != sb.interpreter) return 0;
    const std::vector<std::string>& argv = info.argv;
    size_t i = 1;
    if (!sb.arg.empty() && i < argv.size() && argv[i] == sb.arg) ++i;
    while (i < argv.size() && argv[i].size() > 1 && argv[i][0] == '-')
        if (argv[i++] == "--") break;
    if (i >= argv.size() || argv[i].empty()) return 0;
    const std::string& script = argv[i];
    return resolved(script[0] == '/' ? script : info.cwd + "/" + script) == target ? 1 : 0;
}

}  // namespace

FSProcess::FSProcess(long pid) : pid_(pid) {
    fd_ = pid > 0 ? FSPidfdOpen(pid) : -1;
    if (fd_ >= 0) return;
    FSProcessInfo info;
    gone_ = pid <= 0 || errno == ESRCH || FSProcessReadInfo(pid, info) != 0;
    start_ = info.start;
}

FSProcess::~FSProcess() {
    if (fd_ >= 0) close(fd_);
}

int FSProcess::approve(const char* program_path) {
    program_ = program_path;
    FSProcessInfo info;
    const bool read = !gone_ && FSProcessReadInfo(pid_, info) == 0;
    verdict_ = read ? runs_program(info, program_) : -1;
    // The id may have passed to another process since we took hold: then what was read is not ours.
    if (fd_ >= 0 ? FSPidfdExited(fd_) == 1 : !read || info.start != start_ || !same_process()) gone_ = true;
    return gone_ ? verdict_ = -1 : verdict_;
}

int FSProcess::signal(int sig) {
    if (ended()) {
        errno = ESRCH;
        return -1;
    }
    return fd_ >= 0 ? FSPidfdSignal(fd_, sig) : kill(static_cast<pid_t>(pid_), sig);
}

bool FSProcess::ended() {
    if (!gone_) gone_ = fd_ >= 0 ? FSPidfdExited(fd_) == 1 : !same_process();
    return gone_;
}

// Without a descriptor: the id still names a live process that started when ours did and still
// looks as it did at approval. A pid cannot return to a process once it has passed on.
bool FSProcess::same_process() {
    FSProcessInfo now;
    return FSProcessReadInfo(pid_, now) == 0 && now.start == start_ && runs_program(now, program_) == verdict_;
}
