// Helpers shared by the tests: a temporary folder removed with everything in it, and small
// file helpers that fail the test loudly instead of returning codes.
#ifndef TESTS_TEST_SUPPORT_H
#define TESTS_TEST_SUPPORT_H

#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>

namespace testsupport {

class TempDir {
public:
    TempDir() {
        const char* base = std::getenv("TMPDIR");
        std::string tmpl = std::string(base && *base ? base : "/tmp") + "/lumora-test-XXXXXX";
        if (!mkdtemp(&tmpl[0])) throw std::runtime_error("mkdtemp failed");
        path_ = tmpl;
    }
    ~TempDir() {
        // Restore permissions a test may have taken away, then remove the tree.
        nftw(path_.c_str(), restore, 16, FTW_PHYS);
        nftw(path_.c_str(), remove_one, 16, FTW_DEPTH | FTW_PHYS);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& rel) const { return path_ + "/" + rel; }

private:
    static int restore(const char* p, const struct stat* st, int type, struct FTW*) {
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

}  // namespace testsupport

#endif
