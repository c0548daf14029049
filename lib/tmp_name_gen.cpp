#include "tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <utility>

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

namespace {

const char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Base64 grouping: each 3 bytes become 4 characters of 6 bits, most significant first.
void encode_group(const unsigned char* b, char* out) {
    out[0] = kAlphabet[b[0] >> 2];
    out[1] = kAlphabet[((b[0] & 3) << 4) | (b[1] >> 4)];
    out[2] = kAlphabet[((b[1] & 15) << 2) | (b[2] >> 6)];
    out[3] = kAlphabet[b[2] & 63];
}

}  // namespace

TmpNameGen* TmpNameGen::getInstance() {
    static TmpNameGen instance;
    return &instance;
}

TmpNameGen::TmpNameGen() {
    memset(key, 0, sizeof key);
    memset(rand_buf, 0, sizeof rand_buf);
    get_key(key, sizeof key);
    rc4_init(sbox, key);
}

void TmpNameGen::get_key(unsigned char* buf, unsigned long n) {
    struct timeval tv;
    gettimeofday(&tv, nullptr);
    snprintf(reinterpret_cast<char*>(buf), n, "%lu-%lu", static_cast<unsigned long>(tv.tv_sec),
             static_cast<unsigned long>(tv.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* s, unsigned char* k) {
    for (int i = 0; i < 256; ++i) s[i] = static_cast<unsigned char>(i);
    if (k[0] == 0) {
        srand(static_cast<unsigned>(time(nullptr)));
        for (int i = 0; i < 256; ++i) k[i] = static_cast<unsigned char>(rand() & 0xFF);
    }
    // The key length is always 256: the text, its NUL and the zero bytes behind it all count.
    unsigned j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + k[i] + s[i]) & 0xFF;
        std::swap(s[i], s[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* s, unsigned char* out, int n) {
    unsigned i = 0, j = 0;
    for (int k = 0; k < n; ++k) {
        i = (i + 1) & 0xFF;
        j = (j + s[i]) & 0xFF;
        std::swap(s[i], s[j]);
        out[k] = s[(s[i] + s[j]) & 0xFF];
    }
}

ustring TmpNameGen::getTmpName() {
    char name[9];
    pthread_mutex_lock(&m_lock);
    rc4_randomize(sbox, rand_buf, sizeof rand_buf);
    encode_group(rand_buf, name);
    encode_group(rand_buf + 3, name + 4);
    pthread_mutex_unlock(&m_lock);
    name[8] = 0;
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& dir) { return dir + "/" + getTmpName(); }
