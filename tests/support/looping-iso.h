// An archive on which libarchive (3.6.2 at least) loops for ever without reading: an ISO 9660 image
// whose Rock Ridge continuation area is turned into a continuation entry ("CE") pointing at itself.
#ifndef TESTS_LOOPING_ISO_H
#define TESTS_LOOPING_ISO_H

#include <archive.h>
#include <archive_entry.h>

#include <cstdint>
#include <string>

#include "test-support.h"

namespace testsupport {

inline void make_looping_iso(const std::string& path) {
    archive* a = archive_write_new();  // a name too long for its directory record goes on in a continuation area
    archive_entry* e = archive_entry_new();
    archive_entry_set_pathname(e, std::string(200, 'n').c_str()), archive_entry_set_mode(e, AE_IFREG | 0644);
    archive_write_set_format_iso9660(a), archive_write_open_filename(a, path.c_str()), archive_write_header(a, e);
    archive_entry_free(e), archive_write_free(a);
    // CE: signature, length 28, version 1, then block, offset and length, each 32 bits little then big endian.
    std::string iso = read_file(path), ce("CE\x1c\x01", 4);
    auto both = [](uint32_t v) { return std::string{char(v), char(v >> 8), char(v >> 16), char(v >> 24), char(v >> 24), char(v >> 16), char(v >> 8), char(v)}; };
    auto at = [&](size_t i) { return uint32_t(uint8_t(iso[i]) | uint8_t(iso[i + 1]) << 8 | uint8_t(iso[i + 2]) << 16) | uint32_t(uint8_t(iso[i + 3])) << 24; };
    for (size_t i = 0; (i = iso.find(ce, i)) != std::string::npos; i += ce.size())
        if (const size_t area = size_t(at(i + 4)) * 2048 + at(i + 12); iso.compare(area, 2, "NM") == 0)  // the long name's area
            iso.replace(area, 28, ce + both(at(i + 4)) + both(at(i + 12)) + both(28));
    write_file(path, iso);
}

}  // namespace testsupport

#endif
