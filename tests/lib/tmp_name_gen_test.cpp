// TmpNameGen: RC4 keystreams, the keys, known names and thread safety.
#include "tmp_name_gen.h"

#include <cstring>
#include <ctime>
#include <regex>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

TmpNameGen& gen = *TmpNameGen::getInstance();
std::string Bytes(const unsigned char* p, size_t n) { return std::string(reinterpret_cast<const char*>(p), n); }

TEST(TmpNameGenTest, Rc4KeystreamsAndKeys) {
    const struct { const char *key; bool cyclic; size_t chunk; const char* stream; } vectors[] = {  // else zero padded
        {"Key", true, 3, "\xeb\x9f\x77\x55\xa7\x30"}, {"1700000000-123456", false, 6, "\x10\xef\x85\xc0\xe7\x59"}};
    unsigned char key[256], sbox[256], out[16], want[256], want_sbox[256];
    for (const auto& [pattern, cyclic, chunk, stream] : vectors) {
        for (size_t i = 0; i < 256; ++i) key[i] = cyclic || i < strlen(pattern) ? pattern[i % strlen(pattern)] : 0;
        gen.rc4_init(sbox, key);
        for (size_t n = 0; n < strlen(stream); n += chunk) gen.rc4_randomize(sbox, out + n, chunk);  // i, j from 0
        EXPECT_EQ(Bytes(out, strlen(stream)), stream);
    }
    for (time_t seed = 0; seed != time(nullptr);)  // a key starting with 0 comes from rand() seeded with the time
        memset(key, 0x5A, 256), key[0] = 0, seed = time(nullptr), gen.rc4_init(sbox, key), srand(unsigned(seed));
    for (unsigned char& byte : want) byte = static_cast<unsigned char>(rand() & 0xFF);
    gen.rc4_init(want_sbox, want);
    EXPECT_EQ(Bytes(key, 256) + Bytes(sbox, 256), Bytes(want, 256) + Bytes(want_sbox, 256));
}

TEST(TmpNameGenTest, NamesEncodeSixFreshBytesAndStayDistinctAcrossThreads) {
    unsigned char key[256] = "Key";  // zero padded: six bytes a name, six bits a character, most significant first
    gen.rc4_init(gen.sbox, key);
    std::string names;
    for (int i = 0; i < 2; ++i) names += gen.getTmpName().c_str() + std::string(" ");
    EXPECT_EQ(names + gen.getTmpPath("/tmp").c_str(), "HW1iIvI0 K9YyJglm /tmp/Lf5smJWo");
    std::vector<std::string> all(8 * 20000);
    std::vector<std::thread> pool;
    for (size_t t = 0; t < 8; ++t)
        pool.emplace_back([&all, t] { for (size_t i = t; i < all.size(); i += 8) all[i] = gen.getTmpName().c_str(); });
    for (auto& thread : pool) thread.join();
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size());
    EXPECT_EQ(std::set<unsigned char>(gen.sbox, gen.sbox + 256).size(), 256u) << "the permutation was corrupted";
    EXPECT_TRUE(std::regex_match(all.back(), std::regex("[0-9a-zA-Z_-]{8}"))) << all.back();
}

}  // namespace
