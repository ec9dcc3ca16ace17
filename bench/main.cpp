// SPDX-License-Identifier: Apache-2.0
// tpx_bench: runs every race, prints the table, and writes it and a picture to files.
#include "families.h"
#include "frame/opencv.h"
#include "geometry/yardsticks.h"
#include "picture.h"
#include "table.h"

#include <benchmark/benchmark.h>
#include <tpxi.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace bench {
namespace {

constexpr const char* kUsage =
    "  --table=FILE      write the table as Markdown\n"
    "  --bars=FILE       write what bench/picture.gp draws\n"
    "  --readme=FILE     renew its eight rows and its sentence\n"
    "  --yardsticks-avx  hold the other libraries to AVX\n"
    "  and the options of Google Benchmark, such as --benchmark_filter=REGEX\n";

struct Options {
    std::string table;
    std::string bars;
    std::string readme;
};

// Tells how far the run is, and what went wrong. The figures come at the end, in the table.
class Progress : public benchmark::BenchmarkReporter {
 public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            failed_ = failed_ || run.error_occurred;
            std::cerr << run.run_name.function_name << (run.error_occurred ? ": " + run.error_message : "")
                      << "\n";
        }
    }
    bool failed() const { return failed_; }

 private:
    bool failed_ = false;
};

// Ratios depend on what the processor has, not on who made it.
std::string processor() {
    std::string sets = "AVX";
    if (__builtin_cpu_supports("avx2")) sets += ", AVX2";
    if (__builtin_cpu_supports("avx512bw")) sets += ", AVX-512";
    std::string caches;
    for (const int level : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE})
        if (const long bytes = sysconf(level); bytes > 0)
            caches += (caches.empty() ? "" : ", ") + (bytes >= 1 << 20 ? std::to_string(bytes >> 20) + " MB"
                                                                       : std::to_string(bytes >> 10) + " KB");
    return "x86-64 with " + sets + "; " + std::to_string(sysconf(_SC_NPROCESSORS_ONLN)) + " cores; caches of " +
           caches;
}

Facts facts() {
    return {
        std::string("libtpxie9 ") + tpxiGetLibVersion()->version + ", built with " + TPX_COMPILER,
        processor() + "; one thread, its processor time", yardstickVersions(),
        "the best of interleaved rounds; \"x name\" is the time of that contender over ours, above 1 is faster",
        "GB/s counts bytes read and bytes written; images of 16384 pixels a row are larger than the largest "
        "cache"};
}

// Writes a file by write(stream).
template <class Write>
bool writeFile(const std::string& path, Write write) {
    std::ofstream out(path);
    write(out);
    out.close();
    if (!out) std::cerr << "cannot write " << path << "\n";
    return bool(out);
}

// Puts `text` between the README's marks of that name.
bool replaceMarked(std::string& readme, const std::string& name, const std::string& text) {
    const std::string begin = "<!-- " + name + " -->\n", end = "<!-- end of " + name + " -->";
    const size_t from = readme.find(begin), to = readme.find(end);
    if (from == std::string::npos || to == std::string::npos) {
        std::cerr << "the README has no marks of " << name << "\n";
        return false;
    }
    readme.replace(from + begin.size(), to - from - begin.size(), text);
    return true;
}

bool renewReadme(const std::string& path, const Facts& known) {
    std::ifstream in(path);
    std::string readme((std::istreambuf_iterator<char>(in)), {});
    in.close();
    std::ostringstream sentence, summary;
    writeSentence(sentence, rows());
    writeSummary(summary, known, rows());
    const bool ok =
        replaceMarked(readme, "figure", sentence.str()) && replaceMarked(readme, "benchmark", summary.str());
    return ok && writeFile(path, [&](std::ostream& out) { out << readme; });
}

} // namespace

int run(int argc, char** argv) {
    Options options;
    const auto value = [](const char* argument, const char* name) -> const char* {
        const size_t length = std::strlen(name);
        return std::strncmp(argument, name, length) == 0 ? argument + length : nullptr;
    };
    benchmark::Initialize(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (const char* file = value(argv[i], "--table="))
            options.table = file;
        else if (const char* file = value(argv[i], "--bars="))
            options.bars = file;
        else if (const char* file = value(argv[i], "--readme="))
            options.readme = file;
        else if (std::strcmp(argv[i], "--yardsticks-avx") == 0)
            limitYardsticksToAvx();
        else {
            std::cerr << "usage: tpx_bench [options]\n" << kUsage;
            return EXIT_FAILURE;
        }
    }
    addCopies();
    addBorders();
    addChannels();
    addConversions();
    addUnary();
    addBinary();
    addThresholds();
    addReductions();
    addExtremesOfTwoAndBlocks();
    addHistograms();
    addLookups();
    addFixedMasks();
    addBoxes();
    addMedians();
    addGeneralFilters();
    addResizes();
    addSuperResizes();
    addWarps();
    addFouriers();
    for (const std::string& jobs : strayOpencv(functions())) {
        std::cerr << "no function is called " << jobs << "\n";
        return EXIT_FAILURE;
    }
    Progress progress;
    benchmark::RunSpecifiedBenchmarks(&progress);
    benchmark::Shutdown();
    if (rows().empty()) return progress.failed() ? EXIT_FAILURE : EXIT_SUCCESS;

    const Facts known = facts();
    writeTable(std::cout, Style::text, known, rows());
    bool ok = !progress.failed();
    if (!options.table.empty())
        ok = writeFile(
                 options.table,
                 [&](std::ostream& out) {
                     out << "# Speed\n\nWritten by `bench/run`; `bench/README.md` tells how to read it.\n\n"
                         << "![Ratios](benchmark.png)\n\n";
                     writeTable(out, Style::markdown, known, rows());
                 }) &&
             ok;
    if (!options.bars.empty())
        ok = writeFile(options.bars, [](std::ostream& out) { writeBars(out, rows()); }) && ok;
    if (!options.readme.empty()) ok = renewReadme(options.readme, known) && ok;
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace bench

int main(int argc, char** argv) { return bench::run(argc, argv); }
