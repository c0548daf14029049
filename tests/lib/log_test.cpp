// Tests of Logger: thresholds, the time prefix, size accounting, rotation, destinations, and
// behaviour under threads and cancellation.
#include <dirent.h>
#include <gtest/gtest.h>
#include <limits.h>
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "log.h"
#include "test-support.h"

namespace {

using testsupport::exists;
using testsupport::read_file;
using testsupport::TempDir;
using testsupport::write_file;

// Values as the program started, before any test touched them.
struct StartupState {
    Logger::Type type;
    FILE* fp;
    int32_t size;
    int32_t rotate;
};
const StartupState kStartup = {Logger::log_type, Logger::log_fp, Logger::log_size,
                               Logger::rotate_cnt};

// "Nov 16 21:52:09 " in the C locale the tests run in.
constexpr size_t kPrefixLen = 16;
// The size counter rotates once it reaches this many bytes.
constexpr int32_t kRotateAt = 1048577;

std::string str(const ustring& u) { return std::string(u.c_str(), u.size()); }

std::string prefix_at(time_t t) {
    struct tm tm;
    localtime_r(&t, &tm);
    char buf[64];
    strftime(buf, sizeof buf, "%b %d %H:%M:%S ", &tm);
    return buf;
}

bool looks_like_prefix(const std::string& s) {
    static const std::regex re("[A-Z][a-z]{2} [0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} ");
    return s.size() == kPrefixLen && std::regex_match(s, re);
}

// True when the prefix names a second within [t0, t1].
bool prefix_within(const std::string& prefix, time_t t0, time_t t1) {
    for (time_t t = t0; t <= t1; ++t)
        if (prefix_at(t) == prefix) return true;
    return false;
}

std::vector<std::string> split_lines(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < text.size()) {
        size_t nl = text.find('\n', start);
        size_t end = nl == std::string::npos ? text.size() : nl + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

// The message parts of a log text, each checked to carry a well-formed prefix.
std::vector<std::string> messages_of(const std::string& text) {
    std::vector<std::string> out;
    for (const std::string& line : split_lines(text)) {
        EXPECT_TRUE(looks_like_prefix(line.substr(0, kPrefixLen))) << "line: " << line.substr(0, 80);
        out.push_back(line.size() >= kPrefixLen ? line.substr(kPrefixLen) : line);
    }
    return out;
}

long file_size(const std::string& path) {
    struct stat st;
    if (stat(path.c_str(), &st) != 0) return -1;
    return static_cast<long>(st.st_size);
}

std::string head(const std::string& path, size_t n) {
    FILE* f = fopen(path.c_str(), "rb");
    if (!f) return "";
    std::string buf(n, '\0');
    size_t got = fread(&buf[0], 1, n, f);
    fclose(f);
    buf.resize(got);
    return buf;
}

std::string rotated(const std::string& p, int i) { return p + "_" + std::to_string(i); }

// Whether this process holds a descriptor on the file.
bool holds_open(const std::string& path) {
    char want[PATH_MAX];
    if (!realpath(path.c_str(), want)) return false;
    DIR* d = opendir("/proc/self/fd");
    if (!d) return false;
    bool found = false;
    while (dirent* e = readdir(d)) {
        if (e->d_name[0] == '.') continue;
        char target[PATH_MAX];
        ssize_t n = readlink((std::string("/proc/self/fd/") + e->d_name).c_str(), target,
                             sizeof target - 1);
        if (n <= 0) continue;
        target[n] = '\0';
        if (strcmp(target, want) == 0) found = true;
    }
    closedir(d);
    return found;
}

void log2(Logger::Level level, const ustring& component, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
void log2(Logger::Level level, const ustring& component, const char* format, ...) {
    va_list ap;
    va_start(ap, format);
    Logger::LogMsg2(level, component, format, ap);
    va_end(ap);
}

void log_c(int level, const char* component, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
void log_c(int level, const char* component, const char* format, ...) {
    va_list ap;
    va_start(ap, format);
    LogMSG_c(level, component, format, ap);
    va_end(ap);
}

// A message of exactly len bytes (newline included) that starts with tag.
std::string sized_message(const std::string& tag, size_t len) {
    std::string m = tag;
    m.resize(len - 1, '.');
    m += '\n';
    return m;
}

void reset_logger() {
    if (Logger::log_fp && Logger::log_fp != stdout && Logger::log_fp != stderr)
        fclose(Logger::log_fp);
    Logger::log_type = Logger::TYPE_STDOUT;
    Logger::log_fp = nullptr;
    Logger::log_path.clear();
    Logger::log_size = -1;
    Logger::rotate_cnt = 50;
    Logger::log_level.clear();
}

// Must stay the first test of the file: it looks at the state the program started with.
TEST(LoggerStartup, NothingIsWrittenBeforeInitialize) {
    EXPECT_EQ(kStartup.type, Logger::TYPE_STDOUT);
    EXPECT_EQ(kStartup.fp, nullptr);
    EXPECT_EQ(kStartup.size, -1);
    EXPECT_EQ(kStartup.rotate, 50);
    EXPECT_EQ(Logger::log_path.size(), 0u);
    EXPECT_TRUE(Logger::log_level.empty());

    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug", "[ERROR] x.cpp(%d): early\n", 1);
    log2(Logger::LEVEL_ERROR, "launcher_debug", "[ERROR] x.cpp(%d): early\n", 2);
    log_c(3, "launcher_debug", "[ERROR] x.cpp(%d): early\n", 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(Logger::log_size, -1);

    ASSERT_EQ(pthread_mutex_trylock(&Logger::log_lock), 0);
    pthread_mutex_unlock(&Logger::log_lock);
}

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override {
        reset_logger();
        path = dir / "launcher.log";
    }
    void TearDown() override {
        // A message function that leaves the lock held would hang every later caller.
        const int rc = pthread_mutex_trylock(&Logger::log_lock);
        EXPECT_EQ(rc, 0) << "log_lock left held";
        if (rc == 0) pthread_mutex_unlock(&Logger::log_lock);
        reset_logger();
    }

    void init_file(const std::string& levels = "", int rotate = 50) {
        std::string conf;
        if (!levels.empty()) {
            conf = dir / "launcher.debug";
            write_file(conf, levels);
        }
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, conf, rotate), 0);
        ASSERT_NE(Logger::log_fp, nullptr);
    }

    TempDir dir;
    std::string path;
};

// ---------------------------------------------------------------------------------------------
// Thresholds

TEST_F(LoggerTest, DefaultThresholdAdmitsErrorsAndWarningsOnly) {
    init_file();
    EXPECT_EQ(Logger::log_level, (std::map<ustring, int>{{"default_component", 4}}));
    const char* comps[] = {"launcher_debug", "default_component"};
    for (const char* comp : comps) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), comp, "%s %d\n", comp, level);
    }
    EXPECT_EQ(messages_of(read_file(path)),
              (std::vector<std::string>{"launcher_debug 3\n", "launcher_debug 4\n",
                                        "default_component 3\n", "default_component 4\n"}));
}

TEST_F(LoggerTest, LevelFileSetsPerComponentThresholds) {
    init_file("launcher_debug=7\nextractor_debug=5\nfile_op_debug=abc\n");
    EXPECT_EQ(Logger::log_level, (std::map<ustring, int>{{"default_component", 4},
                                                         {"extractor_debug", 5},
                                                         {"file_op_debug", 0},
                                                         {"launcher_debug", 7}}));
    const char* comps[] = {"launcher_debug", "service_debug", "extractor_debug", "file_op_debug"};
    for (const char* comp : comps) {
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), comp, "%s %d\n", comp, level);
    }
    // A non-numeric threshold reads as 0, which silences even errors.
    EXPECT_EQ(messages_of(read_file(path)),
              (std::vector<std::string>{"launcher_debug 3\n", "launcher_debug 4\n",
                                        "launcher_debug 5\n", "launcher_debug 6\n",
                                        "launcher_debug 7\n", "service_debug 3\n",
                                        "service_debug 4\n", "extractor_debug 3\n",
                                        "extractor_debug 4\n", "extractor_debug 5\n"}));
}

TEST_F(LoggerTest, LevelFileMayOverrideDefaultComponentButNotUnlistedOnes) {
    init_file("default_component=7\n");
    EXPECT_EQ(Logger::log_level.at("default_component"), 7);
    Logger::LogMsg(Logger::LEVEL_DEBUG, "default_component", "default debug\n");
    // Components without an entry keep 4; they do not fall back to default_component.
    Logger::LogMsg(Logger::LEVEL_NOTE, "service_debug", "service note\n");
    Logger::LogMsg(Logger::LEVEL_WARNING, "service_debug", "service warning\n");
    EXPECT_EQ(messages_of(read_file(path)),
              (std::vector<std::string>{"default debug\n", "service warning\n"}));
}

TEST_F(LoggerTest, UnusableLevelFileLeavesOnlyTheDefault) {
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"missing", ""},
        {"malformed", "launcher_debug=7\n[Version]\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.first);
        reset_logger();
        const std::string conf = dir / (std::string(c.first) + ".debug");
        if (!c.second.empty()) write_file(conf, c.second);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, conf, 50), 0);
        EXPECT_EQ(Logger::log_level, (std::map<ustring, int>{{"default_component", 4}}));
    }
}

TEST_F(LoggerTest, InitializeAgainAddsThresholdsAndResetsTheDefault) {
    write_file(dir / "first.debug", "default_component=7\nlauncher_debug=6\n");
    write_file(dir / "second.debug", "service_debug=5\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", dir / "first.debug", 50), 0);
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", dir / "second.debug", 50), 0);
    EXPECT_EQ(Logger::log_level, (std::map<ustring, int>{{"default_component", 4},
                                                         {"launcher_debug", 6},
                                                         {"service_debug", 5}}));
}

// ---------------------------------------------------------------------------------------------
// Line format and size accounting

TEST_F(LoggerTest, WritesTimePrefixAndExactMessage) {
    init_file("launcher_debug=5\n");
    const time_t t0 = time(nullptr);
    Logger::LogMsg(Logger::LEVEL_NOTE, "launcher_debug", "[NOTE] launcher.cpp(%d): %s=%05.1f %c%%\n",
                   123, "ratio", 3.14159, 'x');
    log2(Logger::LEVEL_ERROR, "launcher_debug", "[ERROR] %s(%d): %u/%x\n", "a.cpp", -7, 42u, 255u);
    log_c(Logger::LEVEL_WARNING, "launcher_debug", "[WARNING] c(%d): %s", 9, "no newline");
    const time_t t1 = time(nullptr);

    const std::vector<std::string> lines = split_lines(read_file(path));
    ASSERT_EQ(lines.size(), 3u);
    const char* expected[] = {"[NOTE] launcher.cpp(123): ratio=003.1 x%\n",
                              "[ERROR] a.cpp(-7): 42/ff\n", "[WARNING] c(9): no newline"};
    for (size_t i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(i);
        const std::string prefix = lines[i].substr(0, kPrefixLen);
        EXPECT_TRUE(looks_like_prefix(prefix)) << prefix;
        EXPECT_TRUE(prefix_within(prefix, t0, t1))
            << "prefix \"" << prefix << "\" vs now \"" << prefix_at(t1) << "\"";
        EXPECT_EQ(lines[i].substr(kPrefixLen), expected[i]);
    }
}

TEST_F(LoggerTest, MessageVariantsFilterByComponent) {
    init_file("launcher_debug=7\n");
    log2(Logger::LEVEL_DEBUG, "launcher_debug", "v2 %d\n", 1);
    log2(Logger::LEVEL_DEBUG, "service_debug", "v2 %d\n", 2);
    log_c(7, "launcher_debug", "c %d\n", 3);
    log_c(7, "service_debug", "c %d\n", 4);
    log_c(4, "service_debug", "c %d\n", 5);
    EXPECT_EQ(messages_of(read_file(path)),
              (std::vector<std::string>{"v2 1\n", "c 3\n", "c 5\n"}));
}

TEST_F(LoggerTest, CountsBytesOfPrefixAndMessageFromZero) {
    // The file is appended to, but counting starts afresh.
    write_file(path, "old line\n");
    init_file();
    EXPECT_EQ(Logger::log_size, 0);
    EXPECT_EQ(str(Logger::log_path), path);

    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "first %s\n", "message");
    EXPECT_EQ(Logger::log_size, static_cast<int32_t>(kPrefixLen + 14));
    Logger::LogMsg(Logger::LEVEL_DEBUG, "x", "filtered out\n");
    EXPECT_EQ(Logger::log_size, static_cast<int32_t>(kPrefixLen + 14));
    Logger::LogMsg(Logger::LEVEL_WARNING, "x", "%s", "");
    Logger::LogMsg(Logger::LEVEL_WARNING, "x", "%s", std::string(5000, 'w').c_str());
    EXPECT_EQ(Logger::log_size, static_cast<int32_t>(3 * kPrefixLen + 14 + 5000));

    const std::string text = read_file(path);
    EXPECT_EQ(text.substr(0, 9), "old line\n");
    EXPECT_EQ(static_cast<long>(text.size()), 9 + Logger::log_size);
}

// ---------------------------------------------------------------------------------------------
// Rotation

TEST_F(LoggerTest, RotatesAfterTheMessageThatReachesOneMiBPlusOne) {
    init_file();
    const std::string p0 = rotated(path, 0), p1 = rotated(path, 1);

    // Exactly 1 MiB: no rotation yet.
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "%s",
                   sized_message("first", kRotateAt - 1 - 2 * kPrefixLen - 2).c_str());
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "A\n");
    EXPECT_EQ(Logger::log_size, kRotateAt - 1);
    EXPECT_EQ(file_size(path), kRotateAt - 1);
    EXPECT_FALSE(exists(p0));

    // One more message rotates, after it was written.
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "B\n");
    EXPECT_EQ(Logger::log_size, 0);
    ASSERT_NE(Logger::log_fp, nullptr);
    EXPECT_EQ(file_size(path), 0);
    EXPECT_EQ(file_size(p0), kRotateAt - 1 + static_cast<long>(kPrefixLen) + 2);
    std::vector<std::string> msgs = messages_of(read_file(p0));
    ASSERT_EQ(msgs.size(), 3u);
    EXPECT_EQ(msgs[1], "A\n");
    EXPECT_EQ(msgs[2], "B\n");

    // In the new file: a message that brings the count to exactly 1,048,577 rotates.
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "%s",
                   sized_message("second", kRotateAt - 2 * kPrefixLen - 2).c_str());
    EXPECT_EQ(Logger::log_size, kRotateAt - static_cast<int32_t>(kPrefixLen) - 2);
    EXPECT_FALSE(exists(p1));
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "C\n");
    EXPECT_EQ(Logger::log_size, 0);
    EXPECT_EQ(file_size(path), 0);
    EXPECT_EQ(file_size(p0), kRotateAt);
    msgs = messages_of(read_file(p0));
    ASSERT_EQ(msgs.size(), 2u);
    EXPECT_EQ(msgs[0].substr(0, 6), "second");
    EXPECT_EQ(msgs[1], "C\n");
    EXPECT_EQ(head(p1, kPrefixLen + 5).substr(kPrefixLen), "first");

    // Logging continues in the reopened file.
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "after\n");
    EXPECT_EQ(messages_of(read_file(path)), (std::vector<std::string>{"after\n"}));
    EXPECT_EQ(Logger::log_size, static_cast<int32_t>(kPrefixLen + 6));
}

struct RotationCase {
    const char* name;
    int rotate_cnt;
    int rotations;
    int kept;  // rotated files left: P_0 .. P_(kept-1)
};

std::ostream& operator<<(std::ostream& os, const RotationCase& c) { return os << c.name; }

class LoggerRotationTest : public LoggerTest,
                           public ::testing::WithParamInterface<RotationCase> {};

TEST_P(LoggerRotationTest, KeepsOneFileFewerThanTheCount) {
    const RotationCase& c = GetParam();
    init_file("", c.rotate_cnt);
    EXPECT_EQ(Logger::rotate_cnt, c.rotate_cnt);

    // Each message alone reaches the threshold, so each one rotates.
    std::string msg = sized_message("", kRotateAt - kPrefixLen);
    for (int k = 0; k < c.rotations; ++k) {
        char tag[16];
        snprintf(tag, sizeof tag, "msg%04d ", k);
        memcpy(&msg[0], tag, 8);
        Logger::LogMsg(Logger::LEVEL_ERROR, "x", "%s", msg.c_str());
        ASSERT_EQ(Logger::log_size, 0) << "rotation " << k;
    }

    EXPECT_EQ(file_size(path), 0);
    for (int i = 0; i < c.kept; ++i) {
        SCOPED_TRACE(i);
        const std::string p = rotated(path, i);
        ASSERT_EQ(file_size(p), kRotateAt);
        // P_0 is the newest.
        char tag[16];
        snprintf(tag, sizeof tag, "msg%04d ", c.rotations - 1 - i);
        EXPECT_EQ(head(p, kPrefixLen + 8).substr(kPrefixLen), tag);
    }
    EXPECT_FALSE(exists(rotated(path, c.kept)));
    EXPECT_FALSE(exists(rotated(path, c.kept + 1)));
}

INSTANTIATE_TEST_SUITE_P(Counts, LoggerRotationTest,
                         ::testing::Values(RotationCase{"Fifty", 50, 60, 49},
                                           RotationCase{"One", 1, 3, 1},
                                           RotationCase{"Two", 2, 3, 1},
                                           RotationCase{"Three", 3, 4, 2}),
                         [](const ::testing::TestParamInfo<RotationCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(LoggerTest, RotateMovesFileAndReopens) {
    init_file();
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "before\n");
    EXPECT_EQ(Logger::Rotate(), 0);
    ASSERT_NE(Logger::log_fp, nullptr);
    EXPECT_EQ(messages_of(read_file(rotated(path, 0))), (std::vector<std::string>{"before\n"}));
    EXPECT_EQ(file_size(path), 0);
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "after\n");
    EXPECT_EQ(messages_of(read_file(path)), (std::vector<std::string>{"after\n"}));
}

// Ways to make the rename of P to P_0 fail.
struct FaultCase {
    const char* name;
    int rotate_cnt;
    void (*arrange)(const std::string& p);
};

std::ostream& operator<<(std::ostream& os, const FaultCase& c) { return os << c.name; }

class LoggerRotationFaultTest : public LoggerTest,
                                public ::testing::WithParamInterface<FaultCase> {};

TEST_P(LoggerRotationFaultTest, DropsLaterMessages) {
    const FaultCase& c = GetParam();
    init_file("", c.rotate_cnt);
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "before\n");
    c.arrange(path);

    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "%s", sized_message("big", kRotateAt).c_str());
    EXPECT_EQ(Logger::log_fp, nullptr);
    EXPECT_EQ(Logger::log_size, 0);
    EXPECT_EQ(Logger::log_type, Logger::TYPE_FILE);

    const long size_before = file_size(path);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "dropped\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(file_size(path), size_before);
    EXPECT_EQ(Logger::log_size, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Faults, LoggerRotationFaultTest,
    ::testing::Values(
        // With a count of 1 nothing shifts P_0 out of the way; a non-empty folder cannot be
        // removed, nor can a file be renamed onto it.
        FaultCase{"RotatedNameIsFolder", 1,
                  [](const std::string& p) {
                      testsupport::make_dir(p + "_0");
                      write_file(p + "_0/keep", "x");
                  }},
        // P was deleted while open: there is nothing to rename.
        FaultCase{"LogFileDeleted", 50, [](const std::string& p) { ASSERT_EQ(unlink(p.c_str()), 0); }}),
    [](const ::testing::TestParamInfo<FaultCase>& info) { return std::string(info.param.name); });

TEST_F(LoggerTest, RotateReportsFailedRename) {
    init_file("", 1);
    testsupport::make_dir(rotated(path, 0));
    write_file(rotated(path, 0) + "/keep", "x");
    EXPECT_EQ(Logger::Rotate(), -1);
    EXPECT_EQ(Logger::log_fp, nullptr);
    EXPECT_TRUE(testsupport::is_dir(rotated(path, 0)));
}

// ---------------------------------------------------------------------------------------------
// Initialize and Destroy

TEST_F(LoggerTest, FileTypeWithoutUsablePathFails) {
    write_file(dir / "plainfile", "x");
    testsupport::make_dir(dir / "folder");
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"empty path", ""},
        {"missing folder", dir / "no/such/dir/launcher.log"},
        {"file used as folder", dir / "plainfile/launcher.log"},
        {"path is a folder", dir / "folder"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.first);
        reset_logger();
        EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, c.second, "", 50), -1);
        EXPECT_EQ(Logger::log_type, Logger::TYPE_FILE);
        EXPECT_EQ(Logger::log_fp, nullptr);
        EXPECT_EQ(Logger::log_size, -1);

        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Logger::LogMsg(Logger::LEVEL_ERROR, "x", "[ERROR] lost\n");
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        EXPECT_EQ(Logger::log_size, -1);
    }
    EXPECT_FALSE(exists(dir / "no"));
}

struct StreamCase {
    const char* name;
    Logger::Type type;
    FILE* stream;
};

std::ostream& operator<<(std::ostream& os, const StreamCase& c) { return os << c.name; }

class LoggerStreamTest : public LoggerTest, public ::testing::WithParamInterface<StreamCase> {};

TEST_P(LoggerStreamTest, WritesPrefixedMessagesWithoutCounting) {
    const StreamCase& c = GetParam();
    ASSERT_EQ(Logger::Initialize(c.type, path, "", 50), 0);
    EXPECT_EQ(Logger::log_type, c.type);
    EXPECT_EQ(Logger::log_fp, c.stream);
    EXPECT_EQ(Logger::log_path.size(), 0u);
    EXPECT_EQ(Logger::log_size, -1);
    EXPECT_FALSE(exists(path));

    const time_t t0 = time(nullptr);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_WARNING, "launcher_debug", "[WARNING] s.cpp(%d): shown\n", 5);
    Logger::LogMsg(Logger::LEVEL_INFO, "launcher_debug", "[INFO] s.cpp(%d): hidden\n", 6);
    const std::string err = testing::internal::GetCapturedStderr();
    const std::string out = testing::internal::GetCapturedStdout();
    const time_t t1 = time(nullptr);

    const std::string& written = c.type == Logger::TYPE_STDOUT ? out : err;
    const std::string& other = c.type == Logger::TYPE_STDOUT ? err : out;
    EXPECT_EQ(other, "");
    ASSERT_EQ(written.size(), kPrefixLen + 26) << written;
    EXPECT_TRUE(prefix_within(written.substr(0, kPrefixLen), t0, t1)) << written;
    EXPECT_EQ(written.substr(kPrefixLen), "[WARNING] s.cpp(5): shown\n");
    EXPECT_EQ(Logger::log_size, -1);

    // Only the file destination counts, even when the counter is not negative.
    Logger::log_size = 0;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug", "[ERROR] s.cpp(%d): shown\n", 7);
    testing::internal::GetCapturedStderr();
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(Logger::log_size, 0);
}

INSTANTIATE_TEST_SUITE_P(Streams, LoggerStreamTest,
                         ::testing::Values(StreamCase{"Stdout", Logger::TYPE_STDOUT, stdout},
                                           StreamCase{"Stderr", Logger::TYPE_STDERR, stderr}),
                         [](const ::testing::TestParamInfo<StreamCase>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(LoggerTest, SyslogTypeWritesNoStreamOrFile) {
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, path, "", 50), 0);
    EXPECT_EQ(Logger::log_type, Logger::TYPE_SYSLOG);
    EXPECT_EQ(Logger::log_fp, nullptr);
    EXPECT_EQ(Logger::log_path.size(), 0u);
    EXPECT_EQ(Logger::log_size, -1);

    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug", "[ERROR] sys.cpp(%d): %s\n", 1, "to syslog");
    Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] filtered\n");
    log_c(4, "service_debug", "[WARNING] %s\n", "from C");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_FALSE(exists(path));
    EXPECT_EQ(Logger::log_size, -1);
}

TEST_F(LoggerTest, UnknownTypeWritesToStderrWithoutPrefix) {
    Logger::log_type = static_cast<Logger::Type>(5);
    Logger::log_fp = stdout;
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "[ERROR] odd %d\n", 5);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[ERROR] odd 5\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(Logger::log_size, -1);
    Logger::log_fp = nullptr;
}

TEST_F(LoggerTest, InitializeAgainClosesThePreviousFile) {
    struct Next {
        const char* name;
        Logger::Type type;
        const char* file;
    };
    const Next nexts[] = {{"another file", Logger::TYPE_FILE, "other.log"},
                          {"the same file", Logger::TYPE_FILE, "launcher.log"},
                          {"standard output", Logger::TYPE_STDOUT, nullptr}};
    for (const Next& n : nexts) {
        SCOPED_TRACE(n.name);
        reset_logger();
        unlink(path.c_str());
        init_file();
        Logger::LogMsg(Logger::LEVEL_ERROR, "x", "one\n");
        ASSERT_TRUE(holds_open(path));

        const std::string next_path = n.file ? dir / n.file : std::string();
        ASSERT_EQ(Logger::Initialize(n.type, next_path, "", 50), 0);
        if (next_path != path) {
            EXPECT_FALSE(holds_open(path)) << "old stream still open";
        }
        if (n.file) {
            Logger::LogMsg(Logger::LEVEL_ERROR, "x", "two\n");
            EXPECT_EQ(str(Logger::log_path), next_path);
            if (next_path == path) {
                EXPECT_EQ(messages_of(read_file(path)),
                          (std::vector<std::string>{"one\n", "two\n"}));
            } else {
                EXPECT_EQ(messages_of(read_file(path)), (std::vector<std::string>{"one\n"}));
                EXPECT_EQ(messages_of(read_file(next_path)), (std::vector<std::string>{"two\n"}));
            }
        } else {
            EXPECT_EQ(Logger::log_fp, stdout);
            EXPECT_EQ(Logger::log_path.size(), 0u);
        }
    }
}

TEST_F(LoggerTest, DestroyMovesFileLoggerToStandardOutput) {
    init_file("", 50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "in file\n");
    Logger::Destroy();
    EXPECT_EQ(Logger::log_fp, stdout);
    EXPECT_EQ(Logger::log_type, Logger::TYPE_STDERR);
    EXPECT_EQ(Logger::rotate_cnt, 32);
    EXPECT_EQ(Logger::log_size, -1);
    EXPECT_EQ(Logger::log_path.size(), 0u);
    EXPECT_FALSE(holds_open(path));

    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::LEVEL_ERROR, "x", "[ERROR] after destroy %d\n", 1);
    const std::string err = testing::internal::GetCapturedStderr();
    const std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(err, "");
    ASSERT_EQ(out.size(), kPrefixLen + 24) << out;
    EXPECT_TRUE(looks_like_prefix(out.substr(0, kPrefixLen)));
    EXPECT_EQ(out.substr(kPrefixLen), "[ERROR] after destroy 1\n");
    EXPECT_EQ(Logger::log_size, -1);
    EXPECT_EQ(messages_of(read_file(path)), (std::vector<std::string>{"in file\n"}));
}

TEST_F(LoggerTest, DestroyLeavesOtherTypesAlone) {
    const Logger::Type types[] = {Logger::TYPE_SYSLOG, Logger::TYPE_STDOUT, Logger::TYPE_STDERR};
    for (Logger::Type type : types) {
        SCOPED_TRACE(type);
        reset_logger();
        ASSERT_EQ(Logger::Initialize(type, "", "", 50), 0);
        Logger::rotate_cnt = 7;
        FILE* const fp = Logger::log_fp;
        Logger::Destroy();
        EXPECT_EQ(Logger::log_type, type);
        EXPECT_EQ(Logger::log_fp, fp);
        EXPECT_EQ(Logger::rotate_cnt, 7);
        EXPECT_EQ(Logger::log_size, -1);
    }
}

// ---------------------------------------------------------------------------------------------
// Threads and cancellation

TEST_F(LoggerTest, ConcurrentMessagesStayWholeAcrossRotations) {
    init_file("", 50);
    constexpr int kThreads = 8;
    constexpr int kLines = 2000;
    constexpr size_t kPayload = 200;

    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t, &go] {
            const std::string payload(kPayload, static_cast<char>('a' + t));
            while (!go.load()) std::this_thread::yield();
            for (int n = 0; n < kLines; ++n)
                Logger::LogMsg(Logger::LEVEL_ERROR, "x", "[ERROR] t%d n%d %s\n", t, n,
                               payload.c_str());
        });
    }
    go = true;
    for (std::thread& th : threads) th.join();

    // Oldest first: P_k ... P_0, then P.
    std::vector<std::string> files;
    for (int i = 48; i >= 0; --i)
        if (exists(rotated(path, i))) files.push_back(rotated(path, i));
    ASSERT_FALSE(files.empty()) << "no rotation happened";
    files.push_back(path);

    std::vector<int> next(kThreads, 0);
    int bad = 0;
    for (size_t f = 0; f < files.size(); ++f) {
        const std::string text = read_file(files[f]);
        const std::vector<std::string> lines = split_lines(text);
        for (const std::string& line : lines) {
            int t = -1, n = -1, used = 0;
            const bool ok = line.size() > kPrefixLen &&
                            looks_like_prefix(line.substr(0, kPrefixLen)) &&
                            sscanf(line.c_str() + kPrefixLen, "[ERROR] t%d n%d %n", &t, &n, &used) == 2 &&
                            t >= 0 && t < kThreads && n == next[t] &&
                            line.substr(kPrefixLen + used) ==
                                std::string(kPayload, static_cast<char>('a' + t)) + "\n";
            if (!ok) {
                if (++bad <= 5) ADD_FAILURE() << files[f] << ": bad line: " << line.substr(0, 120);
                continue;
            }
            ++next[t];
        }
        if (f + 1 < files.size()) {
            // A rotated file holds the messages up to the one that crossed the threshold.
            ASSERT_FALSE(lines.empty());
            EXPECT_GE(static_cast<long>(text.size()), kRotateAt) << files[f];
            EXPECT_LT(static_cast<long>(text.size() - lines.back().size()), kRotateAt) << files[f];
        }
    }
    EXPECT_EQ(bad, 0);
    for (int t = 0; t < kThreads; ++t) EXPECT_EQ(next[t], kLines) << "thread " << t;
    EXPECT_EQ(Logger::log_size, file_size(path));
}

TEST_F(LoggerTest, RestoresCallersCancellationState) {
    init_file();
    const int states[] = {PTHREAD_CANCEL_DISABLE, PTHREAD_CANCEL_ENABLE};
    for (int state : states) {
        SCOPED_TRACE(state);
        int old;
        ASSERT_EQ(pthread_setcancelstate(state, &old), 0);
        Logger::LogMsg(Logger::LEVEL_ERROR, "x", "written\n");
        Logger::LogMsg(Logger::LEVEL_DEBUG, "x", "filtered\n");
        int now;
        pthread_setcancelstate(PTHREAD_CANCEL_ENABLE, &now);
        EXPECT_EQ(now, state);
    }
}

std::atomic<int> g_logged{0};

void* log_forever(void*) {
    const std::string msg = sized_message("cancel me", 4096);
    for (;;) {
        Logger::LogMsg(Logger::LEVEL_ERROR, "x", "%s", msg.c_str());
        ++g_logged;
        pthread_testcancel();
    }
    return nullptr;
}

// Whether the last line of the current file, or of P_0 right after a rotation, is msg.
bool last_message_is(const std::string& p, const std::string& msg) {
    const std::string file = Logger::log_size == 0 ? rotated(p, 0) : p;
    if (!exists(file)) return false;
    const std::vector<std::string> lines = split_lines(read_file(file));
    return !lines.empty() && lines.back().size() > kPrefixLen && lines.back().substr(kPrefixLen) == msg;
}

TEST_F(LoggerTest, CancelledThreadDoesNotLeaveTheLockHeld) {
    init_file();
    fflush(nullptr);
    // In a child, so that a hang costs only the child.
    const pid_t pid = fork();
    ASSERT_NE(pid, -1);
    if (pid == 0) {
        alarm(20);
        for (int round = 0; round < 20; ++round) {
            g_logged = 0;
            pthread_t th;
            if (pthread_create(&th, nullptr, log_forever, nullptr) != 0) _exit(2);
            while (g_logged.load() < 2) sched_yield();
            pthread_cancel(th);
            void* res = nullptr;
            pthread_join(th, &res);
            if (res != PTHREAD_CANCELED) _exit(3);
            if (pthread_mutex_trylock(&Logger::log_lock) != 0) _exit(4);
            pthread_mutex_unlock(&Logger::log_lock);
            Logger::LogMsg(Logger::LEVEL_ERROR, "x", "main %d\n", round);
            if (!last_message_is(path, "main " + std::to_string(round) + "\n")) _exit(5);
        }
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    ASSERT_TRUE(WIFEXITED(status)) << "child hung or crashed, signal "
                                   << (WIFSIGNALED(status) ? WTERMSIG(status) : 0);
    EXPECT_EQ(WEXITSTATUS(status), 0)
        << "4: lock left held after cancellation; 5: main thread's message missing";
}

}  // namespace
