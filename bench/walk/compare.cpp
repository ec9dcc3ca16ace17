// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "walk.h"

namespace bench::walk {
namespace {

// Times before over times now: above 1 is faster now.
struct Ratio {
    double before, now;       // the best times of a call
    double low, middle, high; // quartiles of the ratios of rounds

    explicit Ratio(const Rounds& rounds) : before(quantile(rounds.first, 0)), now(quantile(rounds.second, 0)) {
        std::vector<double> ratios;
        for (size_t i = 0; i < rounds.first.size(); ++i) ratios.push_back(rounds.first[i] / rounds.second[i]);
        low = quantile(ratios, 0.25), middle = quantile(ratios, 0.5), high = quantile(ratios, 0.75);
    }
    // By both measures, beyond what two equal builds differ by.
    bool faster() const { return low > 1 + kNoise && before / now > 1 + kNoise; }
    bool slower() const { return high < 1 - kNoise && before / now < 1 - kNoise; }

    static constexpr double kNoise = 0.03;
};

struct Result {
    std::string name, family;
    Ratio ratio;
};

void print(const Result& r) {
    std::printf("%6.3f  %6.3f..%-6.3f %10.3f us  %10.3f us  %s%s\n", r.ratio.middle, r.ratio.low, r.ratio.high,
                r.ratio.before * 1e6, r.ratio.now * 1e6, r.name.c_str(),
                r.ratio.slower()   ? "  SLOWER"
                : r.ratio.faster() ? "  faster"
                                   : "");
    std::fflush(stdout);
}

void printFamilies(const std::vector<Result>& results) {
    struct Figures {
        int count = 0;
        double logs = 0, worst = 1e9, best = 0;
    };
    std::map<std::string, Figures> families;
    const auto add = [](Figures& f, double ratio) {
        ++f.count;
        f.logs += std::log(ratio);
        f.worst = std::min(f.worst, ratio);
        f.best = std::max(f.best, ratio);
    };
    Figures all;
    for (const Result& r : results) {
        add(families[r.family], r.ratio.middle);
        add(all, r.ratio.middle);
    }
    std::printf("\n%-28s trials    mean   worst    best   (time before / time now)\n", "family");
    const auto line = [](const char* name, const Figures& f) {
        std::printf("%-28s %6d  %6.3f  %6.3f  %6.3f\n", name, f.count, std::exp(f.logs / f.count), f.worst,
                    f.best);
    };
    for (const auto& [name, figures] : families) line(name.c_str(), figures);
    line("all", all);
}

} // namespace

bool compare(const Options& options) {
    const Library before(options.before), now(options.now);
    std::vector<Result> results;
    std::printf(" ratio  quartiles             before            now\n");
    const bool ok =
        eachTrial(options, [&](const Export& e, std::unique_ptr<Trial> trial, const std::string& name) {
            if (!before.find(e.name)) {
                std::printf("new: %s\n", name.c_str());
                return;
            }
            const Call old = trial->bind(before), current = trial->bind(now);
            old.make();
            current.make();
            const auto run = [&](double seconds) {
                return Ratio(race([&] { old(); }, [&] { current(); }, seconds));
            };
            Result result{name, e.operation, run(options.seconds)};
            // What stands out has to do so again.
            if (result.ratio.faster() || result.ratio.slower()) result.ratio = run(options.seconds * 3);
            print(result);
            results.push_back(result);
        });
    if (results.empty()) return ok;
    printFamilies(results);
    std::printf("\nbeyond the spread:\n");
    std::sort(results.begin(), results.end(),
              [](const Result& a, const Result& b) { return a.ratio.middle < b.ratio.middle; });
    for (const Result& r : results)
        if (r.ratio.slower() || r.ratio.faster()) print(r);
    return ok;
}

} // namespace bench::walk
