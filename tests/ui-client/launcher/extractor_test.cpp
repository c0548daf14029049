#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <regex>

#include "log.h"
#include "notify-adapter.h"
#include "strtable.h"
#include "test-support.h"

using namespace testsupport;
using Results = std::vector<int>;
const std::string kErr = "[ERROR] extractor.cpp(%d): ";  // %d: any source line
struct Entry { std::string path; int mode; std::string data; };

void make_archive(const std::string& file, const std::vector<Entry>& entries) {  // format and filter by the name's extension
    archive* a = archive_write_new();
    ASSERT_EQ(archive_write_set_format_filter_by_ext(a, file.c_str()) | archive_write_open_filename(a, file.c_str()), ARCHIVE_OK);
    for (const Entry& e : entries) {
        archive_entry* en = archive_entry_new();
        archive_entry_set_pathname(en, e.path.c_str()), archive_entry_set_mode(en, e.mode), archive_entry_set_size(en, e.data.size());
        archive_write_header(a, en), archive_write_data(a, e.data.data(), e.data.size()), archive_entry_free(en);
    }
    archive_write_free(a);
}

struct ExtractorTest : ::testing::Test, QObject {  // on the extracting thread: reports come as direct calls
    void SetUp() override {
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, dir / "x.log", "", 50), 0);
        StrTable::InitStrTable();
        Notify_Adapter* relay = Notify_Adapter::GetInstance();
        connect(relay, &Notify_Adapter::sigUpdateDialogText, this, [this](QString text) { reports += text + ";"; });
        connect(relay, &Notify_Adapter::sigUpdateProgress, this, [this](int total, int i) { reports += QString("%1,%2;").arg(total).arg(i); });
    }
    std::string log() {  // what was logged since the last call, without times and dir, with %d for source lines
        const std::string text = std::regex_replace(read_file(dir / "x.log"), std::regex(R"([^\n]*?\d\d:\d\d:\d\d |)" + dir.path()), "");
        write_file(dir / "x.log", "");
        return std::regex_replace(text, std::regex(R"(\(\d+\))"), "(%d)");
    }
    TempDir dir;
    Extractor ex{dir / "out", dir / "pkg.tar"};
    QString reports;
};

// Every format gives the same tree, modes under the umask, reported entry by entry after the text.
TEST_F(ExtractorTest, EveryFormatExtractsTheSameTree) {
    const std::vector<Entry> tree = {{"app", AE_IFDIR | 0777, ""}, {"app/bin/run", AE_IFREG | 0777, "#!/bin/sh\n"},
        {"empty", AE_IFDIR | 0755, ""}, {"app/doc/notes.txt", AE_IFREG | 0644, std::string(3000, 'n')}, {"INFO", AE_IFREG | 0666, "v35\n"}};
    const mode_t old_mask = umask(027);
    for (const std::string name : {"tar", "tar.gz", "tar.xz", "zip", "7z", "cpio"}) {
        ex = {dir / name, dir / ("pkg." + name)};
        make_archive(dir / ("pkg." + name), tree);
        EXPECT_EQ(ex.Extract(), 0) << name;
        EXPECT_EQ(log() + std::exchange(reports, "").toStdString(), "Lumora is initializing...;5,1;5,2;5,3;5,4;5,5;") << name;
        for (const Entry& e : tree) {
            struct stat st = {};
            EXPECT_EQ(lstat((dir / name + "/" + e.path).c_str(), &st) ? 0 : st.st_mode, mode_t(e.mode & ~027)) << name << " " << e.path;
            EXPECT_EQ(e.mode & AE_IFDIR ? "" : read_file(dir / name + "/" + e.path), e.data) << name << " " << e.path;
        }
    }
    umask(old_mask);
}

// A broken archive fails at the broken entry, keeping the entries before it; one without entries, or none, yields nothing.
TEST_F(ExtractorTest, BrokenEmptyOrMissingArchivesFail) {
    const std::string no_file = kErr + "archive_read_open_filename failed: 'Failed to open '/pkg.tar''\n";
    const struct { const char* name; void (*damage)(const std::string&); int count; std::string log; const char* middle = "b"; } cases[] = {
        {"garbage", [](auto& p) { std::string d = read_file(p); write_file(p, d.replace(d.find("c.txt"), 512, 512, 'Z')); }, 2,
         kErr + "archive_read_next_header failed: 'Damaged tar archive'\n"},
        {"dotdot", [](auto&) {}, 3, kErr + "archive_read_extract2 failed: 'Path contains '..''\n", "../x"},
        {"empty", [](auto& p) { write_file(p, std::string(10240, '\0')); }, 0, kErr + "Failed to calculate total file numbers, ret: 0\n"},
        {"missing", [](auto& p) { unlink(p.c_str()); }, -1, no_file + no_file + kErr + "Failed to calculate total file numbers, ret: -1\n"}};
    for (const auto& c : cases) {
        ex.dest_path = dir / c.name;
        make_archive(dir / "pkg.tar", {{"a", AE_IFREG | 0644, "1"}, {c.middle, AE_IFREG | 0644, "2"}, {"c.txt", AE_IFREG | 0644, "3"}});
        c.damage(dir / "pkg.tar");
        EXPECT_EQ((Results{ex.Count(), ex.Extract()}), (Results{c.count, -1})) << c.name;
        EXPECT_EQ(log(), c.log) << c.name;
        EXPECT_EQ(exists(dir / c.name + "/a") ? read_file(dir / c.name + "/a") : "", c.count > 0 ? "1" : "") << c.name;
        EXPECT_FALSE(exists(dir / c.name + "/c.txt") || exists(dir / "x")) << c.name;
    }
}

// An empty field is refused before anything is read or reported; copy_data needs both ends.
TEST_F(ExtractorTest, EmptyFieldsAreRefused) {
    archive* reader = archive_read_new();
    const std::string refused = kErr + "Invalid Argument\n", refused_too = kErr + "Invalid argument\n";
    for (Extractor x : {Extractor{"", dir / "pkg.tar"}, Extractor{dir / "out", ""}}) {
        EXPECT_EQ((Results{x.Extract(), x.Count(), x.List(), ex.copy_data(reader, nullptr), ex.copy_data(nullptr, reader)}), Results(5, -1));
        EXPECT_EQ(log() + reports.toStdString(), refused + refused_too + refused_too + refused + refused);
    }
    archive_read_free(reader);
}
