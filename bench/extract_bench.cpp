// Times the launcher's package extraction: an Extractor set up the way Service::ExtractPackage
// does it, run into a fresh folder below <dest-root> each time, after untimed warm-up runs.
//   extract_bench [--runs N] [--warmup W] [--mode extract|count] [--keep] [-v] <archive> <dest-root>
// extract: Extract(), i.e. the counting pass and the extracting pass, as the launcher runs it.
// count:   Count() alone, to tell the two passes apart.
// Prints "median_s=<wall> cpu_median_s=<user+system> runs=<N> entries=<n> mode=<m>"; -v adds
// every run's times on stderr. CPU time is the steadier figure on a busy machine.
// --keep leaves the last run's folder (<dest-root>/r<N>) for checking; the others are removed.
#include <QCoreApplication>

#include <ftw.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "extractor.h"
#include "file-op.h"
#include "strtable.h"

namespace {

int usage() {
    fprintf(stderr,
            "usage: extract_bench [--runs N] [--warmup W] [--mode extract|count] [--keep] [-v] "
            "<archive> <dest-root>\n");
    return 2;
}

int remove_entry(const char* path, const struct stat*, int, struct FTW*) { return ::remove(path); }

bool remove_tree(const std::string& path) {
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) return true;
    return nftw(path.c_str(), remove_entry, 32, FTW_DEPTH | FTW_PHYS) == 0;
}

double cpu_seconds() {
    struct rusage ru;
    getrusage(RUSAGE_SELF, &ru);
    return ru.ru_utime.tv_sec + ru.ru_stime.tv_sec + (ru.ru_utime.tv_usec + ru.ru_stime.tv_usec) / 1e6;
}

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    const size_t n = v.size();
    return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();  // Extract() shows a label text from the table

    int runs = 5, warmup = 1;
    bool keep = false, verbose = false, count_only = false;
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if ((a == "--runs" || a == "--warmup" || a == "--mode") && i + 1 < argc) {
            const std::string v = argv[++i];
            if (a == "--mode") {
                if (v != "extract" && v != "count") return usage();
                count_only = v == "count";
            } else {
                char* end = nullptr;
                const long n = strtol(v.c_str(), &end, 10);
                if (v.empty() || *end || n < (a == "--runs" ? 1 : 0) || n > 1000) return usage();
                (a == "--runs" ? runs : warmup) = static_cast<int>(n);
            }
        } else if (a == "--keep") {
            keep = true;
        } else if (a == "-v") {
            verbose = true;
        } else if (!a.empty() && a[0] == '-') {
            return usage();
        } else {
            args.push_back(a);
        }
    }
    if (args.size() != 2) return usage();
    const std::string archive = args[0], root = args[1];
    if (access(archive.c_str(), R_OK) != 0) {
        fprintf(stderr, "extract_bench: cannot read archive '%s': %s\n", archive.c_str(), strerror(errno));
        return 1;
    }
    if (FSMKDir(root.c_str(), true) < 0) {
        fprintf(stderr, "extract_bench: cannot create '%s'\n", root.c_str());
        return 1;
    }

    std::vector<double> times, cpu_times;
    int entries = -1;
    for (int i = 0; i < warmup + runs; ++i) {
        const bool timed = i >= warmup;
        const std::string dest = root + (timed ? "/r" + std::to_string(i - warmup + 1) : "/w" + std::to_string(i + 1));
        if (!remove_tree(dest)) {
            fprintf(stderr, "extract_bench: cannot clear '%s'\n", dest.c_str());
            return 1;
        }
        sync();  // no write-back of an earlier run inside this one
        const double cpu_start = cpu_seconds();
        const auto start = std::chrono::steady_clock::now();
        if (FSMKDir(dest.c_str(), true) < 0) {  // as ExtractPackage does before extracting
            fprintf(stderr, "extract_bench: cannot create '%s'\n", dest.c_str());
            return 1;
        }
        Extractor extractor;
        extractor.dest_path = dest.c_str();
        extractor.archive_path = archive.c_str();
        const int rc = count_only ? extractor.Count() : extractor.Extract();
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const double cpu = cpu_seconds() - cpu_start;
        if (count_only ? rc < 1 : rc != 0) {
            fprintf(stderr, "extract_bench: %s of '%s' failed (%d)\n", count_only ? "Count" : "Extract",
                    archive.c_str(), rc);
            return 1;
        }
        if (count_only) entries = rc;
        if (timed) {
            times.push_back(seconds);
            cpu_times.push_back(cpu);
        }
        if (verbose)
            fprintf(stderr, "%s %d: %.6f s wall, %.6f s cpu\n", timed ? "run" : "warm-up", timed ? i - warmup + 1 : i + 1,
                    seconds, cpu);
        const bool last = i == warmup + runs - 1;
        if (!(keep && last) && !remove_tree(dest)) {
            fprintf(stderr, "extract_bench: cannot remove '%s'\n", dest.c_str());
            return 1;
        }
    }
    if (entries < 0) {
        Extractor counter;
        counter.dest_path = root.c_str();
        counter.archive_path = archive.c_str();
        entries = counter.Count();
    }
    printf("median_s=%.6f cpu_median_s=%.6f runs=%d entries=%d mode=%s\n", median(times), median(cpu_times), runs,
           entries, count_only ? "count" : "extract");
    return 0;
}
