// Config: reader of key=value files (the client's pid file, the logger's level file).
//
// Line grammar: optional whitespace, a key of [A-Za-z0-9_.-] (may be empty), optional
// whitespace, "=", optional whitespace, then a value: quoted with " or ' (no escapes, no control
// bytes) or bare (up to the first space or control byte; never empty), then optional whitespace
// and an optional "# comment". Blank lines, comment lines (also "key#...") and a last line
// without a newline that holds only a key are ignored; a key alone on a line that ends with a
// newline is malformed. A malformed line empties the whole map.
#ifndef LIB_CONFIG_H
#define LIB_CONFIG_H

#include <map>

#include "ustring.h"

// The leading decimal integer of text as atoi or a stream reads it: leading whitespace, optional
// sign, digits up to the first non-digit; 0 when there are none. Saturates to INT_MAX / INT_MIN.
int parse_leading_int(const char* text);

class Config {
public:
    // Adds the file's entries (a later key replaces an earlier one). 0 when the whole file was
    // read; -1 for an empty path or an unopenable file (entries unchanged) or a malformed line
    // (entries emptied, also of earlier reads).
    int read(const ustring& path);

    // The value as a stream reads an int: leading whitespace, optional sign, digits up to the
    // first non-digit. 0 when no integer can be read. Values outside the int range saturate to
    // INT_MAX or INT_MIN. A missing key is inserted with an empty value (and reads as 0).
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
};

#endif
