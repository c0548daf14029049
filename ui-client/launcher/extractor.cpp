#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>

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
// What libarchive's file-name reader makes of kBlockSize for a regular file (it reads those like disks).
const size_t kFileBlockSize = 65536;
// ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA
const int kExtractFlags = 0x2210;
const int kPreparingTextId = 340;

const char* error_of(archive* a) {
    const char* text = archive_error_string(a);
    return text ? text : "";
}

// A reader of every filter and format, or null.
archive* new_reader() {
    archive* reader = archive_read_new();
    if (reader) {
        archive_read_support_filter_all(reader);
        archive_read_support_format_all(reader);
    }
    return reader;
}

// Opens a reader of every filter and format, or logs why not and returns null.
archive* open_reader(const ustring& path) {
    archive* reader = new_reader();
    if (!reader) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Allocate archive failed\n", __LINE__);
        return nullptr;
    }
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

// libarchive's file-name reader, but on a descriptor of our own in `fd_out`, so that someone else
// can watch the offset: the same open flags, block size (regular files are read like disks) and
// error texts.
bool open_file(archive* reader, const std::string& path, std::atomic<int>& fd_out) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    fd_out = fd;
    if (fd < 0) {
        archive_set_error(reader, errno, "Failed to open '%s'", path.c_str());
        return false;
    }
    struct stat st;
    const bool regular = fstat(fd, &st) == 0 && S_ISREG(st.st_mode);
    if (archive_read_open_fd(reader, fd, regular ? kFileBlockSize : kBlockSize) == ARCHIVE_OK) return true;
    // The descriptor reader says "fd N" where the file-name reader names the file.
    std::string text = error_of(reader);
    const std::string fd_name = "fd " + std::to_string(fd);
    const size_t at = text.find(fd_name);
    if (at != std::string::npos)
        archive_set_error(reader, archive_errno(reader), "%s", text.replace(at, fd_name.size(), "'" + path + "'").c_str());
    return false;
}

std::atomic<int> stall_limit_s{30};

// One counting pass on a thread of its own. libarchive loops for ever, without reading, on some
// damaged archives (a looping ISO 9660 continuation record), and a FIFO or a hung file system may
// block open or read for ever. So whoever waits for the pass may give up on it; the thread then
// runs on, at worst until the process ends. It owns everything it uses (its path, its reader, a
// share of this record) and never logs: the waiting side logs what it reports.
struct CountPass {
    ~CountPass() {
        if (fd >= 0) close(fd);
    }
    // Progress, read by the waiting side at any time: headers read, and the descriptor (-1 until
    // opened) whose offset shows how far into the file the reader has got.
    std::atomic<int> headers{0};
    std::atomic<int> fd{-1};
    // The outcome, under `mutex`.
    std::mutex mutex;
    std::condition_variable done_cv;
    bool done = false;
    enum { kCounted, kNoReader, kNotOpened } outcome = kCounted;
    std::string open_error;

    static void Run(const std::shared_ptr<CountPass>& self, const std::string& path) {
        auto outcome = kCounted;
        std::string open_error;
        archive* reader = new_reader();
        if (!reader) {
            outcome = kNoReader;
        } else if (!open_file(reader, path, self->fd)) {
            outcome = kNotOpened;
            open_error = error_of(reader);
        } else {
            archive_entry* entry;
            while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
                ++self->headers;
                archive_read_data_skip(reader);
            }
        }
        if (reader) archive_read_free(reader);
        std::lock_guard<std::mutex> lock(self->mutex);
        self->done = true;
        self->outcome = outcome;
        self->open_error = open_error;
        self->done_cv.notify_one();
    }
};

}  // namespace

int Extractor::Count() {
    if (dest_path.empty() || archive_path.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Invalid argument\n", __LINE__);
        return -1;
    }
    const auto pass = std::make_shared<CountPass>();
    try {
        std::thread(CountPass::Run, pass, std::string(archive_path.c_str())).detach();
    } catch (const std::system_error& e) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): cannot start counting '%s': %s\n", __LINE__,
                       archive_path.c_str(), e.what());
        return -1;
    }
    // Wait while the reader reads new headers or gets further into the file; a loop that re-reads
    // what it has read does neither.
    using Clock = std::chrono::steady_clock;
    const int limit_s = stall_limit_s;
    const std::chrono::milliseconds limit(limit_s * 1000), look = std::min(limit / 10, std::chrono::milliseconds(1000));
    int headers = 0;
    off_t furthest = 0;
    Clock::time_point deadline = Clock::now() + limit;
    std::unique_lock<std::mutex> lock(pass->mutex);
    while (!pass->done_cv.wait_for(lock, look, [&] { return pass->done; })) {
        const int fd = pass->fd;
        const off_t at = fd >= 0 ? lseek(fd, 0, SEEK_CUR) : -1;
        if (pass->headers != headers || at > furthest) {
            headers = pass->headers;
            furthest = std::max(furthest, at);
            deadline = Clock::now() + limit;
        } else if (Clock::now() >= deadline) {
            Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): no progress reading '%s' for %d s, giving up\n",
                           __LINE__, archive_path.c_str(), limit_s);
            return -1;
        }
    }
    if (pass->outcome == CountPass::kNoReader) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): Allocate archive failed\n", __LINE__);
        return -1;
    }
    if (pass->outcome == CountPass::kNotOpened) {
        Logger::LogMsg(Logger::LEVEL_ERROR, component(), "[ERROR] extractor.cpp(%d): archive_read_open_filename failed: '%s'\n",
                       __LINE__, pass->open_error.c_str());
        return -1;
    }
    return pass->headers;
}

void SetCountStallLimitForTests(int seconds) {
    stall_limit_s = seconds;
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

    archive* reader = new_reader();
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
