// Tests of Logger: thresholds, the time prefix, rotation and threads.
#include <gtest/gtest.h>
#include <regex>
#include <thread>

#include "log.h"
#include "test-support.h"

namespace {
using namespace testsupport;
using L = Logger;
constexpr long kRotateAt = 1048577, kFraming = 17;  // "Nov 16 21:52:09 " and "\n": sized() is n bytes in the file
void put(const std::string& message) { L::LogMsg(L::LEVEL_ERROR, "x", "%s", message.c_str()); }
std::string sized(std::string t, long n = kRotateAt) { return t + std::string(n - kFraming - t.size(), '.') + "\n"; }
std::string marked(const std::string& text) {  // each line's time prefix replaced by "|", so a missing one shows
    static const std::regex prefix("(^|\n)[A-Z][a-z]{2} [0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} ");
    return std::regex_replace(text, prefix, "$1|");
}
template <class F> std::string captured(F f) {  // what f writes to standard output
    testing::internal::CaptureStdout();
    f();
    return marked(testing::internal::GetCapturedStdout());
}

class LoggerTest : public ::testing::Test {
protected:
    void init_file(int rotate) { ASSERT_EQ(L::Initialize(L::TYPE_FILE, path, dir / "levels", rotate), 0); }
    std::string logged(int i = -1) const { return marked(read_file(i < 0 ? path : path + "_" + std::to_string(i))); }
    TempDir dir;
    const std::string path = dir / "launcher.log", p0 = path + "_0";
};

TEST_F(LoggerTest, ThresholdsComeFromTheLevelFileElseFourAndFilesGetClosed) {
    write_file(dir / "levels", "default_component=7\nl=7\ne=5\nf=abc\n");
    init_file(50);
    for (const char* comp : {"l", "s", "e", "f"})
        for (int level = 3; level <= 7; ++level) L::LogMsg(L::Level(level), comp, "%s %d\n", comp, level);
    // Unlisted components keep 4, not default_component's value; a non-number reads as 0.
    EXPECT_EQ(logged(), "|l 3\n|l 4\n|l 5\n|l 6\n|l 7\n|s 3\n|s 4\n|e 3\n|e 4\n|e 5\n");
    // A file is closed when Initialize replaces it, and by Destroy, which moves to standard output.
    const int fd = fileno(L::log_fp);
    init_file(50);
    const int fd2 = fileno(L::log_fp);
    EXPECT_EQ(captured([] { L::Destroy(); put("after\n"); }), "|after\n");
    EXPECT_EQ(std::make_pair(fcntl(fd, F_GETFD), fcntl(fd2, F_GETFD)), std::make_pair(-1, -1)) << "log file left open";
}

TEST_F(LoggerTest, RotatesAfterTheMessageThatPassesOneMiBKeepingOneFileFewerThanTheCount) {
    init_file(3);
    put(sized("first", kRotateAt - 1));
    EXPECT_FALSE(exists(p0)) << "rotated at exactly 1 MiB";
    for (const char* m : {"B\n", "after\n"}) put(m);
    EXPECT_EQ(logged(0) + "/" + logged(), "|" + sized("first", kRotateAt - 1) + "|B\n/|after\n");
    for (const char* tag : {"0 ", "1 ", "2 "}) put(sized(tag));
    EXPECT_EQ(logged(), "");
    EXPECT_FALSE(exists(path + "_2"));
    EXPECT_EQ(logged(1) + logged(0), "|" + sized("1 ") + "|" + sized("2 ")) << "P_0 is the newest";
    init_file(1);  // nothing moves P_0 away: a non-empty folder there is neither removed nor replaced,
    remove(p0.c_str());  // so P is gone after the next rotation and later messages are dropped
    make_tree(p0, {{"", "/"}, {"/keep", "x"}});
    put(sized("big"));
    EXPECT_EQ(captured([] { put("dropped\n"); }) + logged(), "|" + sized("big"));
}

// A rotation closes and reopens the file: no other thread's message may be lost or torn meanwhile. Writers
// force one every other message, taking P_0 away first.
TEST_F(LoggerTest, ThreadsLoseNoMessageAcrossRotations) {
    init_file(2);
    std::string taken;
    const auto take = [&] { taken += exists(p0) ? read_file(p0) : ""; remove(p0.c_str()); };
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t)
        threads.emplace_back([&, t] {
            for (int n = 0; n < 2000; ++n) {
                put(std::string(20, 'a' + t) + "\n");
                if (n % 2) continue;
                pthread_mutex_lock(&L::log_lock);
                take();
                L::log_size = kRotateAt;
                pthread_mutex_unlock(&L::log_lock);
            }
        });
    for (std::thread& th : threads) th.join();
    take();
    std::map<std::string, int> seen, want;
    for (int t = 0; t < 8; ++t) want["|" + std::string(20, 'a' + t)] = 2000;
    std::istringstream in(marked(taken + read_file(path)));
    for (std::string msg; std::getline(in, msg);) ++seen[msg];
    EXPECT_EQ(seen, want);
}
}  // namespace
