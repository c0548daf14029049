#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QThread>
#include <regex>

#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "test-support.h"

using namespace testsupport;

const int kFile = AE_IFREG, kDir = AE_IFDIR, kTar = ARCHIVE_FORMAT_TAR_PAX_RESTRICTED, kPlain = ARCHIVE_FILTER_NONE;
struct Entry { std::string path; int mode; std::string data; };

void make_archive(const std::string& file, const std::vector<Entry>& entries, int format = kTar, int filter = kPlain) {
    archive* a = archive_write_new();
    archive_entry* en = archive_entry_new();
    ASSERT_EQ(archive_write_set_format(a, format) | archive_write_add_filter(a, filter) | archive_write_open_filename(a, file.c_str()), 0);
    for (const Entry& e : entries) {
        archive_entry_clear(en);
        archive_entry_set_pathname(en, e.path.c_str());
        archive_entry_set_mode(en, e.mode);
        archive_entry_set_size(en, e.data.size());
        EXPECT_EQ(archive_write_header(a, en) + archive_write_data(a, e.data.data(), e.data.size()), la_ssize_t(e.data.size()));
    }
    archive_entry_free(en);
    archive_write_free(a);
}

// Long and varied enough that half of a gzip stream holding it ends inside it.
const std::string kBig = [s = std::string()]() mutable {
    for (int i = 0; s.size() < 300000; ++i) s += std::to_string(i * 7919 % 10007);
    return s;
}();
const std::string kErr = "[ERROR] extractor.cpp(%d): ";
const std::vector<Entry> kTree = {{"app", kDir | 0777, ""}, {"app/bin", kDir | 0777, ""}, {"app/bin/run", kFile | 0777, "#!/bin/sh\n"},
                                  {"app/doc/notes.txt", kFile | 0644, std::string(3000, 'n')}, {"empty", kDir | 0755, ""},
                                  {"INFO", kFile | 0666, "build_version=3500\n"}};
using Results = std::vector<int>;

class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override {
        write_file(dir / "levels", "extractor_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, dir / "x.log", dir / "levels", 50), 0);
    }
    void TearDown() override { Logger::Destroy(); }

    // The lines logged since the last call, without their time prefix, are the literals of `want`, in
    // which %d stands for any source line.
    void expect_log(const std::vector<std::string>& want) {
        fflush(Logger::log_fp);
        std::istringstream in(read_file(dir / "x.log"));
        write_file(dir / "x.log", "");
        std::vector<std::string> got;
        for (std::string line; std::getline(in, line);) got.push_back(line.substr(16));
        ASSERT_EQ(got.size(), want.size()) << in.str();
        for (size_t i = 0; i < got.size(); ++i) {
            const std::string escaped = std::regex_replace(want[i], std::regex(R"([\\^$.|?*+()[\]{}])"), R"(\$&)");
            EXPECT_TRUE(std::regex_match(got[i], std::regex(std::regex_replace(escaped, std::regex("%d"), R"(\d+)")))) << got[i];
        }
    }
    std::string decompress_line() {
        return "[DEBUG] extractor.cpp(%d): decompress from '" + std::string(ex.archive_path.c_str()) + "' to '" + ex.dest_path.c_str() + "'";
    }
    std::string dest(const std::string& rel) { return std::string(ex.dest_path.c_str()) + "/" + rel; }

    TempDir dir;
    Extractor ex{dir / "out", dir / "pkg"};
};

// Every format gives the same tree; a file already at an entry's place is replaced, not written through.
TEST_F(ExtractorTest, EveryFormatExtractsTheSameTree) {
    const struct { const char* name; int format, filter; } kinds[] = {
        {"tar", kTar, kPlain}, {"tar.gz", kTar, ARCHIVE_FILTER_GZIP}, {"zip", ARCHIVE_FORMAT_ZIP, kPlain},
        {"7z", ARCHIVE_FORMAT_7ZIP, kPlain}, {"cpio", ARCHIVE_FORMAT_CPIO_SVR4_NOCRC, kPlain}, {"tar.xz", kTar, ARCHIVE_FILTER_XZ}};
    const mode_t old_mask = umask(027);
    for (const auto& kind : kinds) {
        SCOPED_TRACE(kind.name);
        ex = {dir / kind.name, dir / (std::string("pkg.") + kind.name)};
        make_archive(ex.archive_path.c_str(), kTree, kind.format, kind.filter);
        make_dir(ex.dest_path.c_str());
        write_file(dest("INFO"), "old and longer");
        ASSERT_EQ(link(dest("INFO").c_str(), (dir / kind.name + ".old").c_str()), 0);
        EXPECT_EQ((Results{ex.Count(), ex.Extract()}), (Results{6, 0}));
        expect_log({decompress_line()});
        for (const Entry& e : kTree) {
            struct stat st;
            ASSERT_EQ(lstat(dest(e.path).c_str(), &st), 0) << e.path;
            EXPECT_EQ(st.st_mode, mode_t(e.mode & ~027)) << e.path;
            EXPECT_EQ(e.mode & kDir ? "" : read_file(dest(e.path)), e.data) << e.path;
        }
        EXPECT_EQ(read_file(dir / kind.name + ".old"), "old and longer");
    }
    umask(old_mask);
}

// A broken archive fails at the broken entry; entries written before it stay.
TEST_F(ExtractorTest, BrokenArchivesFailAtTheBrokenEntry) {
    const struct { const char* name; int filter; const char* middle; void (*damage)(std::string&); int count; std::string error; } cases[] = {
        {"garbage", kPlain, "b", [](std::string& d) { d.replace(d.find("c.txt"), 512, std::string(512, 'Z')); }, 2,
         "archive_read_next_header failed: 'Damaged tar archive'"},
        {"truncated", ARCHIVE_FILTER_GZIP, "b", [](std::string& d) { d.resize(d.size() / 2); }, 2, "archive_read_extract2 failed: ''"},
        {"dotdot", kPlain, "../x", [](std::string&) {}, 3, "archive_read_extract2 failed: 'Path contains '..''"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ex.dest_path = dir / c.name;
        make_archive(dir / "pkg", {{"a.txt", kFile | 0644, "first"}, {c.middle, kFile | 0644, kBig}, {"c.txt", kFile | 0644, "last"}},
                     kTar, c.filter);
        std::string data = read_file(dir / "pkg");
        c.damage(data);
        write_file(dir / "pkg", data);
        EXPECT_EQ((Results{ex.Count(), ex.Extract()}), (Results{c.count, -1}));
        expect_log({decompress_line(), kErr + c.error});
        EXPECT_EQ(read_file(dest("a.txt")), "first");
        EXPECT_FALSE(exists(dest("c.txt")) || exists(dir / "x"));
    }
}

TEST_F(ExtractorTest, EmptyOrMissingArchiveHasNothingToExtract) {
    make_archive(dir / "pkg", {});
    EXPECT_EQ((Results{ex.Count(), ex.Extract()}), (Results{0, -1}));
    expect_log({decompress_line(), kErr + "Failed to calculate total file numbers, ret: 0"});
    ex.archive_path = dir / "missing";
    EXPECT_EQ((Results{ex.Count(), ex.List(), ex.Extract()}), (Results{-1, -1, -1}));
    const std::string open_failed = kErr + "archive_read_open_filename failed: 'Failed to open '" + (dir / "missing") + "''";
    expect_log({open_failed, open_failed, decompress_line(), open_failed, kErr + "Failed to calculate total file numbers, ret: -1"});
}

// List prints every path. With an empty field nothing is read, written, printed or reported.
TEST_F(ExtractorTest, ListPrintsEveryPathAndEmptyFieldsAreRefused) {
    make_archive(dir / "pkg", kTree);
    QSignalSpy text(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText);
    QSignalSpy progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    testing::internal::CaptureStdout();
    EXPECT_EQ(ex.List(), 0);
    for (Extractor empty : {Extractor{dir / "out", ""}, Extractor{"", dir / "pkg"}}) {
        EXPECT_EQ((Results{empty.Extract(), empty.Count(), empty.List()}), (Results{-1, -1, -1}));
        expect_log({kErr + "Invalid Argument", kErr + "Invalid argument", kErr + "Invalid argument"});
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "app/\napp/bin/\napp/bin/run\napp/doc/notes.txt\nempty/\nINFO\n");
    EXPECT_EQ(text.count() + progress.count(), 0);
}

TEST_F(ExtractorTest, CopyDataMovesOneEntrysBlocks) {
    make_archive(dir / "pkg", {{"data.txt", kFile | 0644, kBig}});
    archive* in = archive_read_new();
    archive* out = archive_write_disk_new();
    archive_entry* entry;
    archive_read_support_format_all(in);
    ASSERT_EQ(archive_read_open_filename(in, (dir / "pkg").c_str(), 10240) | archive_read_next_header(in, &entry), ARCHIVE_OK);
    archive_entry_set_pathname(entry, (dir / "copy.txt").c_str());
    ASSERT_EQ(archive_write_header(out, entry), ARCHIVE_OK);
    EXPECT_EQ((Results{ex.copy_data(in, nullptr), ex.copy_data(nullptr, out), ex.copy_data(in, out)}), (Results{-1, -1, 0}));
    EXPECT_EQ(archive_write_finish_entry(out), ARCHIVE_OK);
    EXPECT_EQ(read_file(dir / "copy.txt"), kBig);
    expect_log({kErr + "Invalid Argument", kErr + "Invalid Argument"});
    archive_read_free(in);
    archive_write_free(out);
}

// Reports of an extraction on a worker thread reach the main thread queued, in order, the text first.
TEST_F(ExtractorTest, ReportsAreQueuedToTheMainThreadInOrder) {
    StrTable::InitStrTable();
    make_archive(dir / "pkg", {{"one", kFile | 0644, "1"}, {"two", kFile | 0644, "2"}, {"three", kFile | 0644, "3"}});
    QObject receiver;
    std::vector<QString> got;
    Notify_Adapter* adapter = Notify_Adapter::GetInstance();
    QObject::connect(adapter, &Notify_Adapter::sigUpdateDialogText, &receiver, [&](QString text) { got.push_back(text); });
    QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int current) { got.push_back(QString("%1,%2").arg(total).arg(current)); });
    int rc = 1;
    std::unique_ptr<QThread> worker(QThread::create([&] { rc = ex.Extract(); }));
    worker->start();
    ASSERT_TRUE(worker->wait(30000));
    EXPECT_TRUE(got.empty());  // the main thread was blocked in wait(): nothing came as a direct call
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(rc, 0);
    EXPECT_EQ(got, (std::vector<QString>{"Lumora is initializing...", "3,1", "3,2", "3,3"}));
}
