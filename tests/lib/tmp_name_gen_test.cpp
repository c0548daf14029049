// TmpNameGen: RC4 against published keystreams, the name encoding, seeding and thread safety.
#include "tmp_name_gen.h"

#include <sys/time.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <regex>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

#include <gtest/gtest.h>

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
// Taken before main, so before anything in this binary can have created the singleton.
const time_t g_process_start = time(nullptr);

std::string hex(const unsigned char* p, size_t n) {
    static const char digits[] = "0123456789abcdef";
    std::string s;
    for (size_t i = 0; i < n; ++i) {
        s += digits[p[i] >> 4];
        s += digits[p[i] & 15];
    }
    return s;
}

bool valid_name(const std::string& name) {
    return name.size() == 8 && name.find_first_not_of(kAlphabet) == std::string::npos;
}

// Six bytes read as one 48-bit number, cut into 6-bit digits from the top.
std::string encode48(const unsigned char* b) {
    uint64_t v = 0;
    for (int i = 0; i < 6; ++i) v = (v << 8) | b[i];
    std::string s;
    for (int shift = 42; shift >= 0; shift -= 6) s += kAlphabet[(v >> shift) & 63];
    return s;
}

void fill_cyclic(unsigned char* key, const std::vector<unsigned char>& pattern) {
    for (size_t i = 0; i < 256; ++i) key[i] = pattern[i % pattern.size()];
}

void text_key(unsigned char* key, const char* text) {
    memset(key, 0, 256);
    memcpy(key, text, strlen(text));
}

// The textbook key schedule, for keys the published vectors do not cover.
void reference_ksa(unsigned char* s, const unsigned char* key) {
    for (int i = 0; i < 256; ++i) s[i] = static_cast<unsigned char>(i);
    unsigned j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + key[i] + s[i]) & 255;
        std::swap(s[i], s[j]);
    }
}

TmpNameGen* gen() { return TmpNameGen::getInstance(); }

TEST(TmpNameGenTest, GetInstanceIsASingleton) {
    TmpNameGen* a = TmpNameGen::getInstance();
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a, TmpNameGen::getInstance());

    std::atomic<TmpNameGen*> other{nullptr};
    std::thread t([&] { other = TmpNameGen::getInstance(); });
    t.join();
    EXPECT_EQ(a, other.load());
}

TEST(TmpNameGenTest, SingletonIsKeyedFromTheTimeOfDay) {
    const unsigned char* key = gen()->key;
    const char* text = reinterpret_cast<const char*>(key);
    size_t len = strnlen(text, 256);
    ASSERT_LT(len, 256u);
    std::string s(text, len);
    std::smatch m;
    ASSERT_TRUE(std::regex_match(s, m, std::regex("([0-9]+)-([0-9]+)"))) << s;
    unsigned long secs = std::stoul(m[1]);
    unsigned long usecs = std::stoul(m[2]);
    EXPECT_GE(secs, static_cast<unsigned long>(g_process_start));
    EXPECT_LE(secs, static_cast<unsigned long>(time(nullptr)));
    EXPECT_LT(usecs, 1000000u);
    for (size_t i = len; i < 256; ++i) ASSERT_EQ(key[i], 0) << "key byte " << i;

    // The permutation in use was built from that key (the draws since only permute it).
    unsigned char sorted[256];
    memcpy(sorted, gen()->sbox, 256);
    std::sort(sorted, sorted + 256);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(sorted[i], i);
}

TEST(TmpNameGenTest, GetKeyWritesSecondsAndMicroseconds) {
    unsigned char buf[300];
    memset(buf, 0xAA, sizeof buf);
    struct timeval before, after;
    gettimeofday(&before, nullptr);
    gen()->get_key(buf, 256);
    gettimeofday(&after, nullptr);

    std::string s(reinterpret_cast<const char*>(buf), strnlen(reinterpret_cast<const char*>(buf), 256));
    std::smatch m;
    ASSERT_TRUE(std::regex_match(s, m, std::regex("([1-9][0-9]*)-([0-9]+)"))) << s;
    double t = std::stoul(m[1]) + std::stoul(m[2]) / 1e6;
    EXPECT_GE(t, before.tv_sec + before.tv_usec / 1e6 - 1e-6);
    EXPECT_LE(t, after.tv_sec + after.tv_usec / 1e6 + 1e-6);
    EXPECT_LT(std::stoul(m[2]), 1000000u);
    EXPECT_EQ(buf[256], 0xAA);

    // The size limit is respected.
    memset(buf, 0xAA, sizeof buf);
    gen()->get_key(buf, 4);
    EXPECT_EQ(strlen(reinterpret_cast<const char*>(buf)), 3u);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(buf)), s.substr(0, 3));
    EXPECT_EQ(buf[4], 0xAA);
}

TEST(TmpNameGenTest, Rc4MatchesPublishedKeystreams) {
    struct Vector {
        std::vector<unsigned char> pattern;
        std::string keystream;
    } vectors[] = {
        {{'K', 'e', 'y'}, "eb9f7781b734ca72a719"},
        {{1, 2, 3, 4, 5}, "b2396305f03dc027ccc3524a0a1118a8"},
    };
    for (const Vector& v : vectors) {
        SCOPED_TRACE(v.keystream);
        unsigned char key[256], sbox[256], out[32];
        fill_cyclic(key, v.pattern);
        gen()->rc4_init(sbox, key);
        size_t n = v.keystream.size() / 2;
        gen()->rc4_randomize(sbox, out, static_cast<int>(n));
        EXPECT_EQ(hex(out, n), v.keystream);
    }
}

TEST(TmpNameGenTest, Rc4UsesAll256KeyBytesWithoutRepeatingTheText) {
    unsigned char key[256], sbox[256], out[6];
    text_key(key, "1700000000-123456");
    unsigned char key_copy[256];
    memcpy(key_copy, key, 256);
    gen()->rc4_init(sbox, key);
    gen()->rc4_randomize(sbox, out, 6);
    EXPECT_EQ(hex(out, 6), "10ef85c0e759");
    EXPECT_EQ(memcmp(key, key_copy, 256), 0) << "a non-empty key is used as it stands";
}

TEST(TmpNameGenTest, EveryDrawRestartsTheGeneratorState) {
    unsigned char key[256], once[256], twice[256];
    fill_cyclic(key, {'K', 'e', 'y'});
    gen()->rc4_init(once, key);
    memcpy(twice, once, 256);

    unsigned char six[6], first[3], second[3];
    gen()->rc4_randomize(once, six, 6);
    gen()->rc4_randomize(twice, first, 3);
    unsigned char after_first[256];
    memcpy(after_first, twice, 256);
    gen()->rc4_randomize(twice, second, 3);

    EXPECT_EQ(hex(six, 6), "eb9f7781b734");
    EXPECT_EQ(hex(first, 3), "eb9f77");
    EXPECT_NE(hex(second, 3), "81b734") << "i and j must not carry over between calls";

    // The second call starts from i = j = 0 on the permutation the first one left.
    unsigned char expect[3];
    unsigned i = 0, j = 0;
    for (int k = 0; k < 3; ++k) {
        i = (i + 1) & 255;
        j = (j + after_first[i]) & 255;
        std::swap(after_first[i], after_first[j]);
        expect[k] = after_first[(after_first[i] + after_first[j]) & 255];
    }
    EXPECT_EQ(hex(second, 3), hex(expect, 3));
    EXPECT_EQ(memcmp(twice, after_first, 256), 0);

    // Drawing nothing changes nothing.
    unsigned char before_empty[256], dummy[1] = {0x5A};
    memcpy(before_empty, twice, 256);
    gen()->rc4_randomize(twice, dummy, 0);
    EXPECT_EQ(memcmp(twice, before_empty, 256), 0);
    EXPECT_EQ(dummy[0], 0x5A);
}

TEST(TmpNameGenTest, EmptyKeyIsFilledFromTheSeededCLibraryGenerator) {
    for (int attempt = 0; attempt < 5; ++attempt) {
        unsigned char key[256], sbox[256];
        memset(key, 0, sizeof key);
        memset(key + 1, 0x5A, sizeof key - 1);  // only the first byte decides
        time_t before = time(nullptr);
        gen()->rc4_init(sbox, key);
        time_t after = time(nullptr);
        if (before != after) continue;  // the seed second is not known

        srand(static_cast<unsigned>(before));
        unsigned char expect_key[256];
        for (int i = 0; i < 256; ++i) expect_key[i] = static_cast<unsigned char>(rand() & 0xFF);
        EXPECT_EQ(hex(key, 256), hex(expect_key, 256));

        unsigned char expect_sbox[256];
        reference_ksa(expect_sbox, expect_key);
        EXPECT_EQ(hex(sbox, 256), hex(expect_sbox, 256));
        return;
    }
    FAIL() << "the clock kept changing second during rc4_init";
}

TEST(TmpNameGenTest, NamesAreEightAlphabetCharacters) {
    std::unordered_set<std::string> seen;
    for (int i = 0; i < 1000; ++i) {
        std::string name = gen()->getTmpName().c_str();
        ASSERT_TRUE(valid_name(name)) << name;
        seen.insert(name);
    }
    EXPECT_EQ(seen.size(), 1000u);

    ustring path = gen()->getTmpPath("/tmp");
    std::string s = path.c_str();
    ASSERT_EQ(s.size(), 13u) << s;
    EXPECT_EQ(s.substr(0, 5), "/tmp/");
    EXPECT_TRUE(valid_name(s.substr(5))) << s;
    EXPECT_NE(gen()->getTmpPath("/tmp"), path);

    std::string nested = gen()->getTmpPath("relative/dir").c_str();
    EXPECT_TRUE(std::regex_match(nested, std::regex("relative/dir/[0-9a-zA-Z_-]{8}"))) << nested;
}

TEST(TmpNameGenTest, NameFromAKnownPermutation) {
    // Keystreams 10ef85c0e759 and eb9f7781b734 written in the name alphabet.
    TmpNameGen* g = gen();
    unsigned char saved[256];
    memcpy(saved, g->sbox, 256);

    unsigned char key[256];
    text_key(key, "1700000000-123456");
    g->rc4_init(g->sbox, key);
    EXPECT_EQ(std::string(g->getTmpName().c_str()), "4e-5Metp");
    EXPECT_EQ(hex(g->rand_buf, 6), "10ef85c0e759");

    fill_cyclic(key, {'K', 'e', 'y'});
    g->rc4_init(g->sbox, key);
    EXPECT_EQ(std::string(g->getTmpName().c_str()), "WVZTwrsQ");
    EXPECT_EQ(hex(g->rand_buf, 6), "eb9f7781b734");

    memcpy(g->sbox, saved, 256);
}

TEST(TmpNameGenTest, NamesEncodeSixFreshBytesInBase64Grouping) {
    TmpNameGen* g = gen();
    std::unordered_set<char> used;
    for (int round = 0; round < 400; ++round) {
        unsigned char copy[256], bytes[6];
        memcpy(copy, g->sbox, 256);
        g->rc4_randomize(copy, bytes, 6);

        std::string name = g->getTmpName().c_str();
        ASSERT_EQ(name, encode48(bytes)) << "round " << round << " bytes " << hex(bytes, 6);
        ASSERT_EQ(hex(g->rand_buf, 6), hex(bytes, 6));
        ASSERT_EQ(memcmp(g->sbox, copy, 256), 0) << "the draw must advance the shared permutation";
        used.insert(name.begin(), name.end());
    }
    // 3200 characters: every letter of the alphabet turns up, so the whole table is checked.
    EXPECT_EQ(used.size(), 64u);
}

TEST(TmpNameGenTest, DrawsAreSerialisedByTheSharedLock) {
    gen();
    std::atomic<bool> done{false};
    ASSERT_EQ(pthread_mutex_lock(&TmpNameGen::m_lock), 0);
    std::thread t([&] {
        gen()->getTmpName();
        done = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    bool finished_while_locked = done;
    pthread_mutex_unlock(&TmpNameGen::m_lock);
    t.join();
    EXPECT_FALSE(finished_while_locked);
    EXPECT_TRUE(done);
}

TEST(TmpNameGenTest, ConcurrentCallersGetDistinctValidNames) {
    const int kThreads = 8, kPerThread = 20000;
    std::vector<std::vector<std::string>> names(kThreads);
    std::vector<std::thread> threads;
    std::atomic<bool> go{false};
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            names[t].reserve(kPerThread);
            while (!go) std::this_thread::yield();
            for (int i = 0; i < kPerThread; ++i) names[t].push_back(gen()->getTmpName().c_str());
        });
    }
    go = true;
    for (auto& th : threads) th.join();

    std::unordered_set<std::string> all;
    all.reserve(kThreads * kPerThread);
    size_t invalid = 0;
    for (const auto& list : names) {
        for (const auto& n : list) {
            if (!valid_name(n)) ++invalid;
            all.insert(n);
        }
    }
    EXPECT_EQ(invalid, 0u);
    EXPECT_EQ(all.size(), static_cast<size_t>(kThreads * kPerThread));
}

}  // namespace
