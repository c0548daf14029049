// TmpNameGen: short random names for temporary files and folders.
//
// A process-wide RC4 generator keyed from the time of day at first use. Names are 8 characters
// of the alphabet 0-9 a-z A-Z - _ (six random bytes in Base64 grouping). Nothing is created on
// disk and nothing checks that a name is free.
#ifndef LIB_TMP_NAME_GEN_H
#define LIB_TMP_NAME_GEN_H

#include <pthread.h>

#include "ustring.h"

class TmpNameGen {
public:
    static TmpNameGen* getInstance();

    ustring getTmpName();
    ustring getTmpPath(const ustring& dir);

    // Writes the time-of-day key text "<seconds>-<microseconds>" into buf (at most n bytes).
    void get_key(unsigned char* buf, unsigned long n);
    // RC4 key schedule over all 256 key bytes. A key whose first byte is 0 is first filled from
    // the C library generator, seeded with the current time.
    void rc4_init(unsigned char* sbox, unsigned char* key);
    // RC4 output: n bytes, with i and j starting at 0 on every call.
    void rc4_randomize(unsigned char* sbox, unsigned char* out, int n);

    unsigned char sbox[256];
    unsigned char key[256];
    unsigned char rand_buf[6];

    static pthread_mutex_t m_lock;

private:
    TmpNameGen();
    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;
};

#endif
