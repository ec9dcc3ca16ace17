// SPDX-License-Identifier: Apache-2.0
// tpx_bench: runs every race, prints the table, and writes it and a picture to files.
#include "families.h"
#include "geometry/yardsticks.h"
#include "picture.h"
#include "table.h"

#include <benchmark/benchmark.h>
#include <tpxi.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>

namespace bench {
namespace {

constexpr const char* kUsage =
    "  --table=FILE      write the table as Markdown\n"
    "  --picture=FILE    draw the ratios into a PNG file (needs gnuplot)\n"
    "  --script=FILE     where the gnuplot script goes, default tpx_bench.gp\n"
    "  --yardsticks-avx  hold the other libraries to AVX\n"
    "  and the options of Google Benchmark, such as --benchmark_filter=REGEX\n";

struct Options {
    std::string table;
    std::string picture;
    std::string script = "tpx_bench.gp";
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

bool draw(const Options& options, const std::string& subtitle) {
    std::ofstream script(options.script);
    writeScript(script, options.picture, subtitle, rows());
    script.close();
    if (!script) {
        std::cerr << "cannot write " << options.script << "\n";
        return false;
    }
    if (std::system("command -v gnuplot >/dev/null") != 0) {
        std::cerr << "gnuplot is missing, no picture; the script for it is " << options.script << "\n";
        return true;
    }
    return std::system(("gnuplot '" + options.script + "'").c_str()) == 0;
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
        else if (const char* file = value(argv[i], "--picture="))
            options.picture = file;
        else if (const char* file = value(argv[i], "--script="))
            options.script = file;
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
    Progress progress;
    benchmark::RunSpecifiedBenchmarks(&progress);
    benchmark::Shutdown();
    if (rows().empty()) return progress.failed() ? EXIT_FAILURE : EXIT_SUCCESS;

    const Facts known = facts();
    writeTable(std::cout, Style::text, known, rows());
    bool ok = !progress.failed();
    if (!options.table.empty()) {
        std::ofstream out(options.table);
        out << "# Speed\n\nWritten by `bench/run`; `bench/README.md` tells how to read it.\n\n"
            << "![Ratios](benchmark.png)\n\n";
        writeTable(out, Style::markdown, known, rows());
        out.close();
        if (!out) std::cerr << "cannot write " << options.table << "\n";
        ok = ok && out;
    }
    if (!options.picture.empty()) ok = draw(options, known[1] + "; " + known[2]) && ok;
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace bench

int main(int argc, char** argv) { return bench::run(argc, argv); }
