// TmpNameGen: RC4 against published keystreams, the name encoding, seeding and thread safety.
#include "tmp_name_gen.h"

#include <cstring>
#include <ctime>
#include <regex>
#include <set>
#include <thread>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
const time_t g_process_start = time(nullptr);  // before anything here can create the singleton

std::string hex(const unsigned char* p, size_t n) {
    static const char digits[] = "0123456789abcdef";
    std::string s;
    for (size_t i = 0; i < n; ++i) s.append({digits[p[i] >> 4], digits[p[i] & 15]});
    return s;
}

// Six bytes read as one 48-bit number, cut into 6-bit digits from the top.
std::string encode48(const unsigned char* b) {
    uint64_t v = 0;
    for (int i = 0; i < 6; ++i) v = (v << 8) | b[i];
    std::string s;
    for (int shift = 42; shift >= 0; shift -= 6) s += kAlphabet[(v >> shift) & 63];
    return s;
}

TmpNameGen* gen() { return TmpNameGen::getInstance(); }

TEST(TmpNameGenTest, Rc4Keystreams) {
    // Key pattern, repeated (else the text, its NUL and zero bytes), bytes drawn per call, keystream.
    const std::tuple<std::string, bool, size_t, std::string> vectors[] = {
        {"Key", true, 10, "eb9f7781b734ca72a719"},
        {"\1\2\3\4\5", true, 16, "b2396305f03dc027ccc3524a0a1118a8"},
        {"1700000000-123456", false, 6, "10ef85c0e759"},
        {"Key", true, 3, "eb9f7755a730"},  // i and j restart on every call, the permutation goes on
    };
    for (const auto& [pattern, cyclic, chunk, stream] : vectors) {
        unsigned char key[256], sbox[256], out[16];
        for (size_t i = 0; i < 256; ++i) key[i] = cyclic || i < pattern.size() ? pattern[i % pattern.size()] : 0;
        gen()->rc4_init(sbox, key);
        for (size_t n = 0; n < stream.size() / 2; n += chunk) gen()->rc4_randomize(sbox, out + n, int(chunk));
        EXPECT_EQ(hex(out, stream.size() / 2), stream);
    }
}

TEST(TmpNameGenTest, EmptyKeyIsFilledFromTheSeededCLibraryGenerator) {
    for (int attempt = 0; attempt < 5; ++attempt) {
        unsigned char key[256], sbox[256], want_key[256], want_sbox[256];
        memset(key, 0x5A, sizeof key);
        key[0] = 0;  // only the first byte decides
        const time_t before = time(nullptr);
        gen()->rc4_init(sbox, key);
        if (time(nullptr) != before) continue;  // the seed second is not known
        srand(static_cast<unsigned>(before));
        for (int i = 0; i < 256; ++i) want_key[i] = static_cast<unsigned char>(rand() & 0xFF);
        EXPECT_EQ(hex(key, 256), hex(want_key, 256));
        gen()->rc4_init(want_sbox, want_key);
        EXPECT_EQ(hex(sbox, 256), hex(want_sbox, 256)) << "the permutation comes from the filled key";
        return;
    }
    FAIL() << "the clock kept changing second during rc4_init";
}

TEST(TmpNameGenTest, SingletonIsKeyedFromTheTimeOfDay) {
    const std::string text(reinterpret_cast<const char*>(gen()->key));
    ASSERT_TRUE(std::regex_match(text, std::regex("[0-9]+-[0-9]{1,6}"))) << text;
    EXPECT_TRUE(std::stol(text) >= g_process_start && std::stol(text) <= time(nullptr)) << text;
    for (size_t i = text.size(); i < 256; ++i) ASSERT_EQ(gen()->key[i], 0) << "key byte " << i;
    unsigned char buf[8];
    memset(buf, 0xAA, sizeof buf);
    gen()->get_key(buf, 4);
    EXPECT_TRUE(strlen(reinterpret_cast<char*>(buf)) == 3 && buf[4] == 0xAA) << "get_key writes at most n bytes";
}

TEST(TmpNameGenTest, NamesEncodeSixFreshBytesInBase64Grouping) {
    std::set<char> used;
    for (int round = 0; round < 400; ++round) {
        unsigned char copy[256], bytes[6];
        memcpy(copy, gen()->sbox, 256);
        gen()->rc4_randomize(copy, bytes, 6);
        const std::string name = gen()->getTmpName().c_str();
        ASSERT_EQ(name, encode48(bytes)) << "round " << round;
        ASSERT_EQ(memcmp(gen()->sbox, copy, 256), 0) << "the draw must advance the shared permutation";
        used.insert(name.begin(), name.end());
    }
    EXPECT_EQ(used.size(), 64u);  // every letter turned up, so the whole table was checked
    EXPECT_TRUE(std::regex_match(gen()->getTmpPath("/tmp").c_str(), std::regex("/tmp/[0-9a-zA-Z_-]{8}")));
}

TEST(TmpNameGenTest, ConcurrentCallersGetDistinctNames) {
    const int kThreads = 8, kPerThread = 20000;
    std::vector<std::vector<std::string>> names(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([&names, t] {
            for (int i = 0; i < kPerThread; ++i) names[t].push_back(gen()->getTmpName().c_str());
        });
    for (auto& th : threads) th.join();
    std::unordered_set<std::string> all;
    for (const auto& list : names) all.insert(list.begin(), list.end());
    EXPECT_EQ(all.size(), static_cast<size_t>(kThreads * kPerThread));
    EXPECT_EQ(std::set<unsigned char>(gen()->sbox, gen()->sbox + 256).size(), 256u) << "the permutation was corrupted";
}

}  // namespace
