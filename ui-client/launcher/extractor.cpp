#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <cstring>

#include "file-op.h"
#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"

namespace {

const ustring& component() {
    static const ustring name("extractor_debug");
    return name;
}

const size_t kBlockSize = 10240;
// ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA
const int kExtractFlags = 0x2210;
const int kPreparingTextId = 340;

const char* error_of(archive* a) {
    const char* text = archive_error_string(a);
    return text ? text : "";
}

// Opens a reader of every filter and format, or logs why not and returns null.
archive* open_reader(const ustring& path) {
    archive* reader = archive_read_new();
    if (!reader) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Allocate archive failed\n", __LINE__);
        return nullptr;
    }
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    if (archive_read_open_filename(reader, path.c_str(), kBlockSize) != ARCHIVE_OK) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_read_open_filename failed: '%s'\n",
                       __LINE__, error_of(reader));
        archive_read_free(reader);
        return nullptr;
    }
    return reader;
}

// The package's top-level INFO is the installation's commit record: a folder without it is
// extracted again at the next start, one with it passes as complete. So it must reach the disk
// after everything else, which a power cut would otherwise not respect.
bool is_commit_record(const char* name) { return strcmp(name, "INFO") == 0 || strcmp(name, "./INFO") == 0; }

// Keeps the commit record of dest last on disk. INFO is written only once all that came before it
// is on disk; should entries follow it (a package not written by our packager), it is moved aside
// until they are on disk too.
class CommitRecord {
public:
    explicit CommitRecord(const ustring& dest) : dest_(dest), path_(dest + "/INFO"), aside_(dest + "/.INFO-pending") {}

    // Before writing the entry `name`; false when the extraction must stop.
    bool before_entry(const char* name) {
        if (is_commit_record(name)) {
            if (FSSyncFileSystem(dest_) != 0) return false;
            if (moved_aside_) FSRemove(aside_);
            written_ = true;
            moved_aside_ = false;
            return true;
        }
        if (!written_ || moved_aside_) return true;
        moved_aside_ = move(path_, aside_);
        return moved_aside_;
    }

    // After the last entry: everything on disk, the record last. False when that fails.
    bool commit() {
        if (moved_aside_ && (FSSyncFileSystem(dest_) != 0 || !move(aside_, path_))) return false;
        return FSSyncFileSystem(dest_) == 0;
    }

private:
    static bool move(const ustring& from, const ustring& to) {
        if (FSRename(from, to, false) == 0) return true;
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): failed to rename '%s' to '%s'\n", __LINE__,
                       from.c_str(), to.c_str());
        return false;
    }

    const ustring dest_, path_, aside_;
    bool written_ = false;
    bool moved_aside_ = false;
};

}  // namespace

int Extractor::Count() {
    if (dest_path.empty() || archive_path.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Invalid argument\n", __LINE__);
        return -1;
    }
    archive* reader = open_reader(archive_path);
    if (!reader) return -1;
    int count = 0;
    archive_entry* entry;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader);
    }
    archive_read_free(reader);
    return count;
}

int Extractor::List() {
    if (dest_path.empty() || archive_path.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Invalid argument\n", __LINE__);
        return -1;
    }
    archive* reader = open_reader(archive_path);
    if (!reader) return -1;
    archive_entry* entry;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        const char* name = archive_entry_pathname(entry);
        printf("%s\n", name ? name : "");
        fflush(stdout);
        archive_read_data_skip(reader);
    }
    archive_read_close(reader);
    archive_read_free(reader);
    return 0;
}

int Extractor::Extract() {
    if (archive_path.empty() || dest_path.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Invalid Argument\n", __LINE__);
        return -1;
    }
    Logger::LogMsg(Logger::LEVEL_DEBUG, component(), "[DEBUG] extractor.cpp(%d): decompress from '%s' to '%s'\n", __LINE__,
                   archive_path.c_str(), dest_path.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(kPreparingTextId));

    const int total = Count();
    if (total < 1) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(),
                       "[ERROR] extractor.cpp(%d): Failed to calculate total file numbers, ret: %d\n", __LINE__, total);
        return -1;
    }

    archive* reader = archive_read_new();
    if (!reader) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Allocate extractor failed\n", __LINE__);
        return -1;
    }
    archive* writer = archive_write_disk_new();
    if (!writer) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Allocate extractor failed\n", __LINE__);
        archive_read_free(reader);
        return -1;
    }
    archive_write_disk_set_options(writer, kExtractFlags);
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);

    int result = 0;
    CommitRecord record(dest_path);
    if (archive_read_open_filename(reader, archive_path.c_str(), kBlockSize) != ARCHIVE_OK) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Failed to read file '%s' ('%s')\n",
                       __LINE__, archive_path.c_str(), error_of(reader));
        result = -1;
    }
    for (int i = 1; result == 0; ++i) {
        archive_entry* entry;
        const int rc = archive_read_next_header(reader, &entry);
        if (rc == ARCHIVE_EOF) break;
        if (rc != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_read_next_header failed: '%s'\n",
                           __LINE__, error_of(reader));
            result = -1;
            break;
        }
        const char* name = archive_entry_pathname(entry);
        if (!name) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): entry %d has no path name\n",
                           __LINE__, i);
            result = -1;
            break;
        }
        if (!record.before_entry(name)) {
            result = -1;
            break;
        }
        archive_entry_set_pathname(entry, (dest_path + "/" + name).c_str());
        if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_read_extract2 failed: '%s'\n",
                           __LINE__, error_of(writer));
            result = -1;
            break;
        }
        Notify_Adapter::GetInstance()->UpdateProgress(total, i);
        if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_write_finish_entry failed: '%s'\n",
                           __LINE__, error_of(writer));
            result = -1;
        }
    }
    archive_read_free(reader);
    archive_write_free(writer);  // sets the folders' modes: part of what must be on disk
    if (result == 0 && !record.commit()) result = -1;
    return result;
}

int Extractor::copy_data(archive* in, archive* out) {
    if (!in || !out) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Invalid Argument\n", __LINE__);
        return -1;
    }
    for (;;) {
        const void* buffer;
        size_t size;
        la_int64_t offset;
        const int rc = archive_read_data_block(in, &buffer, &size, &offset);
        if (rc == ARCHIVE_EOF) return 0;
        if (rc != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_read_data_block failed: '%s'\n",
                           __LINE__, error_of(in));
            return -1;
        }
        if (archive_write_data_block(out, buffer, size, offset) != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_write_data_block failed: '%s'\n",
                           __LINE__, error_of(out));
            return -1;
        }
    }
}
