// Tests of Logger: thresholds, the time prefix, rotation, destinations, threads and cancellation.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <atomic>
#include <regex>
#include <thread>
#include <vector>

#include "log.h"
#include "test-support.h"

namespace {

using namespace testsupport;
using Lines = std::vector<std::string>;
using Output = std::pair<std::string, std::string>;  // standard output, standard error
const Logger::Level E = Logger::LEVEL_ERROR;
constexpr size_t kPrefixLen = 16;  // "Nov 16 21:52:09 "
constexpr long kRotateAt = 1048577;

std::string rotated(const std::string& p, int i) { return p + "_" + std::to_string(i); }

// The messages of a log text, each line checked for a time prefix.
Lines messages_of(const std::string& text) {
    static const std::regex re("[A-Z][a-z]{2} [0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} ");
    Lines out;
    for (size_t start = 0, nl; start < text.size(); start = nl + 1) {
        nl = std::min(text.find('\n', start), text.size() - 1);
        const std::string line = text.substr(start, nl + 1 - start);
        EXPECT_TRUE(std::regex_match(line.substr(0, kPrefixLen), re)) << line.substr(0, 80);
        out.push_back(line.substr(std::min(kPrefixLen, line.size())));
    }
    return out;
}

// A message that takes exactly len bytes in the file, time prefix included.
std::string sized(const std::string& tag, long len) {
    std::string m = tag;
    m.resize(len - kPrefixLen - 1, '.');
    return m + "\n";
}

template <class F> Output captured(F f) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    f();
    const std::string err = testing::internal::GetCapturedStderr();
    return {testing::internal::GetCapturedStdout(), err};
}

// Logs through LogMsg2, or through LogMSG_c when c is set.
void log_va(bool c, int level, const char* format, ...) {
    va_list ap;
    va_start(ap, format);
    if (c) LogMSG_c(level, "launcher_debug", format, ap);
    else Logger::LogMsg2(static_cast<Logger::Level>(level), "launcher_debug", format, ap);
    va_end(ap);
}

void reset_logger() {
    if (Logger::log_fp && Logger::log_fp != stdout && Logger::log_fp != stderr) fclose(Logger::log_fp);
    Logger::log_type = Logger::TYPE_STDOUT;
    Logger::log_fp = nullptr;
    Logger::log_level.clear();
}

// Must stay the first test: it looks at the state the program started with.
TEST(LoggerStartup, NothingIsWrittenBeforeInitialize) {
    EXPECT_EQ(captured([] { Logger::LogMsg(E, "launcher_debug", "early\n"); }), Output());
}

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override { reset_logger(); }
    void TearDown() override {
        // A message function that leaves the lock held would hang every later caller.
        const int rc = pthread_mutex_trylock(&Logger::log_lock);
        EXPECT_EQ(rc, 0) << "log_lock left held";
        if (rc == 0) pthread_mutex_unlock(&Logger::log_lock);
        reset_logger();
    }
    void init_file(int rotate = 50, const std::string& levels = "") {
        write_file(dir / "launcher.debug", levels);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, dir / "launcher.debug", rotate), 0);
    }
    TempDir dir;
    const std::string path = dir / "launcher.log";
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFileElseFour) {
    init_file(50, "default_component=7\nlauncher_debug=7\nextractor_debug=5\nfile_op_debug=abc\n");
    for (const char* comp : {"launcher_debug", "service_debug", "extractor_debug", "file_op_debug"})
        for (int level = 3; level <= 7; ++level)
            Logger::LogMsg(static_cast<Logger::Level>(level), comp, "%s %d\n", comp, level);
    for (bool c : {false, true})  // the va_list entry points; the C one without a newline
        for (int level : {7, 8}) log_va(c, level, "[%s] %s(%d)%s", "DEBUG", c ? "c" : "v2", -7, c ? "" : "\n");
    // Unlisted components keep 4, not default_component's value; a non-number reads as 0.
    EXPECT_EQ(messages_of(read_file(path)),
              (Lines{"launcher_debug 3\n", "launcher_debug 4\n", "launcher_debug 5\n", "launcher_debug 6\n",
                     "launcher_debug 7\n", "service_debug 3\n", "service_debug 4\n", "extractor_debug 3\n",
                     "extractor_debug 4\n", "extractor_debug 5\n", "[DEBUG] v2(-7)\n", "[DEBUG] c(-7)"}));

    // Initialize again: the old file is closed, thresholds are added to, the default goes back to 4.
    const int fd = fileno(Logger::log_fp);
    write_file(dir / "second.debug", "service_debug=5\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", dir / "second.debug", 50), 0);
    EXPECT_EQ(fcntl(fd, F_GETFD), -1) << "previous log file left open";
    EXPECT_EQ(Logger::log_level, (std::map<ustring, int>{{"default_component", 4}, {"extractor_debug", 5},
                                  {"file_op_debug", 0}, {"launcher_debug", 7}, {"service_debug", 5}}));
}

TEST_F(LoggerTest, RotatesAfterTheMessageThatPassesOneMiB) {
    init_file();
    Logger::LogMsg(E, "x", "%s", sized("first", kRotateAt - 1).c_str());
    EXPECT_FALSE(exists(rotated(path, 0))) << "rotated at exactly 1 MiB";
    Logger::LogMsg(E, "x", "B\n");
    EXPECT_EQ(messages_of(read_file(rotated(path, 0))), (Lines{sized("first", kRotateAt - 1), "B\n"}));
    Logger::LogMsg(E, "x", "after\n");
    EXPECT_EQ(messages_of(read_file(path)), (Lines{"after\n"}));
    EXPECT_EQ(Logger::log_size, static_cast<long>(kPrefixLen + 6));
}

TEST_F(LoggerTest, KeepsOneRotatedFileFewerThanTheCount) {
    for (const auto& c : {std::make_pair(50, 60), std::make_pair(1, 3)}) {
        const int count = c.first, rotations = c.second, kept = std::max(count - 1, 1);
        SCOPED_TRACE(count);
        const std::string p = dir / ("n" + std::to_string(count) + ".log");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, p, "", count), 0);
        for (int k = 0; k < rotations; ++k)
            Logger::LogMsg(E, "x", "%s", sized(std::to_string(k) + " ", kRotateAt).c_str());
        for (int i = 0; i < kept; ++i) {  // P_0 is the newest
            const std::string tag = std::to_string(rotations - 1 - i) + " ";
            EXPECT_EQ(read_file(rotated(p, i)).substr(kPrefixLen, tag.size()), tag);
        }
        EXPECT_FALSE(exists(rotated(p, kept)));
    }
}

TEST_F(LoggerTest, FailedRenameOfTheLogFileDropsLaterMessages) {
    // With a count of 1 nothing moves P_0 away; a non-empty folder can be neither removed nor replaced.
    init_file(1);
    make_dir(rotated(path, 0));
    write_file(rotated(path, 0) + "/keep", "x");
    Logger::LogMsg(E, "x", "%s", sized("big", kRotateAt).c_str());
    EXPECT_EQ(captured([] { Logger::LogMsg(E, "x", "dropped\n"); }), Output());
    EXPECT_EQ(messages_of(read_file(path)), (Lines{sized("big", kRotateAt)}));
}

TEST_F(LoggerTest, FileTypeWithoutUsablePathFailsAndLogsNothing) {
    for (const std::string& p : {std::string(), dir / "no/such/launcher.log"}) {
        reset_logger();
        EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, p, "", 50), -1);
        EXPECT_EQ(Logger::log_type, Logger::TYPE_FILE);
        EXPECT_EQ(captured([] { Logger::LogMsg(E, "x", "lost\n"); }), Output());
    }
}

TEST_F(LoggerTest, OtherDestinationsWriteWithoutCountingAndIgnoreDestroy) {
    for (Logger::Type type : {Logger::TYPE_STDOUT, Logger::TYPE_STDERR, Logger::TYPE_SYSLOG}) {
        SCOPED_TRACE(type);
        ASSERT_EQ(Logger::Initialize(type, path, "", 50), 0);
        Logger::log_size = 0;  // only the file type counts, even from 0
        const Output got = captured([] { Logger::LogMsg(Logger::LEVEL_WARNING, "launcher_debug", "[WARNING] s\n"); });
        EXPECT_EQ(messages_of(got.first + got.second),
                  type == Logger::TYPE_SYSLOG ? Lines{} : Lines{"[WARNING] s\n"});
        EXPECT_EQ(type == Logger::TYPE_STDOUT ? got.second : got.first, "");
        EXPECT_EQ(Logger::log_size, 0);
        FILE* const fp = Logger::log_fp;
        Logger::Destroy();
        EXPECT_EQ(Logger::log_type, type);
        EXPECT_EQ(Logger::log_fp, fp);
    }
}

TEST_F(LoggerTest, DestroyClosesTheFileAndMovesToStandardOutput) {
    init_file();
    const int fd = fileno(Logger::log_fp);
    Logger::Destroy();
    EXPECT_EQ(fcntl(fd, F_GETFD), -1) << "log file left open";
    EXPECT_EQ(Logger::log_type, Logger::TYPE_STDERR);
    EXPECT_EQ(Logger::rotate_cnt, 32);
    const Output got = captured([] { Logger::LogMsg(E, "x", "after\n"); });
    EXPECT_EQ(messages_of(got.first), Lines{"after\n"});
    EXPECT_EQ(Logger::log_size, -1);
}

TEST_F(LoggerTest, ConcurrentMessagesStayWholeAcrossRotations) {
    init_file();
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t)
        threads.emplace_back([t] {
            const std::string payload(200, 'a' + t);
            for (int n = 0; n < 2000; ++n) Logger::LogMsg(E, "x", "%d %d %s\n", t, n, payload.c_str());
        });
    for (std::thread& th : threads) th.join();
    std::vector<int> next(8, 0);
    for (int i = 48; i >= -1; --i) {  // oldest first, P last
        const std::string f = i < 0 ? path : rotated(path, i);
        for (const std::string& msg : messages_of(exists(f) ? read_file(f) : "")) {
            int t = -1, n = -1, used = 0;
            sscanf(msg.c_str(), "%d %d %n", &t, &n, &used);
            ASSERT_TRUE(t >= 0 && t < 8 && n == next[t]++ && msg.substr(used) == std::string(200, 'a' + t) + "\n")
                << f << ": " << msg.substr(0, 80);
        }
    }
    EXPECT_TRUE(exists(rotated(path, 2))) << "too few rotations";
    EXPECT_EQ(next, std::vector<int>(8, 2000));
    EXPECT_EQ(Logger::log_size, static_cast<long>(read_file(path).size()));
}

std::atomic<int> g_logged{0};

// A thread cancelled while logging must not leave the lock held, and callers get their
// cancellation state back. In a child, so that a hang costs only the child.
TEST_F(LoggerTest, CancellationNeitherLeavesTheLockHeldNorChangesTheCallersState) {
    init_file();
    fflush(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {
        alarm(20);
        int state;
        for (int round = 0; round < 20; ++round) {
            g_logged = 0;
            pthread_t th;
            pthread_create(&th, nullptr, [](void*) -> void* {
                for (const std::string msg = sized("cancel me", 4096);; ++g_logged, pthread_testcancel())
                    Logger::LogMsg(E, "x", "%s", msg.c_str());
            }, nullptr);
            while (g_logged.load() < 2) sched_yield();
            pthread_cancel(th);
            pthread_join(th, nullptr);
            if (pthread_mutex_trylock(&Logger::log_lock) != 0) _exit(4);
            pthread_mutex_unlock(&Logger::log_lock);
        }
        pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, nullptr);
        Logger::LogMsg(E, "x", "disabled\n");
        pthread_setcancelstate(PTHREAD_CANCEL_ENABLE, &state);
        _exit(state == PTHREAD_CANCEL_DISABLE ? 0 : 5);
    }
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "child status " << status << " (exit 4: lock left held; 5: cancellation state changed)";
}

}  // namespace
