// Extractor: counts, lists or extracts the entries of an archive (any format and filter that
// libarchive reads) below a destination folder. Each call opens and frees its own archive.
#ifndef UI_CLIENT_LAUNCHER_EXTRACTOR_H
#define UI_CLIENT_LAUNCHER_EXTRACTOR_H

#include "ustring.h"

struct archive;

class Extractor {
public:
    // Number of entries, or -1. The entries are read on a thread of their own; when that reader
    // neither reads a new header nor gets further into the file for 30 s (libarchive loops for ever
    // on some damaged archives), Count() gives up with -1 and leaves the thread to the process exit.
    int Count();
    // Writes every entry's path to standard output; 0 or -1.
    int List();
    // Extracts every entry below dest_path, reporting (total, i) after each; 0 or -1. Entries
    // written before a failure stay on disk.
    int Extract();
    // Copies one entry's data blocks; 0 or -1.
    int copy_data(archive* in, archive* out);

    ustring dest_path;
    ustring archive_path;
};

// Tests only: the stall limit of Count() in seconds instead of 30.
void SetCountStallLimitForTests(int seconds);

#endif
