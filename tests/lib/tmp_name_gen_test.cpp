// TmpNameGen: known names from a known key, and thread safety.
#include "tmp_name_gen.h"

#include <regex>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

TmpNameGen& gen = *TmpNameGen::getInstance();

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
