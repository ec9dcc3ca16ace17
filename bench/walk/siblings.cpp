// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "walk.h"

namespace bench::walk {
namespace {

// What times are divided by.
enum class Per { byte, sample, pixel };
const char* nameOf(Per per) { return per == Per::byte ? "byte" : per == Per::sample ? "sample" : "pixel"; }

// What is told of one trial.
struct Figure {
    const Export* e;
    int number;
    TpxiSize size;
    std::string text;
    double time, copy, samples, bytes;
    bool writes;

    double count(Per per) const {
        return per == Per::byte ? bytes : per == Per::sample ? samples : samples / (writes ? e->to : e->from);
    }
    std::string name() const { return e->name + (text.empty() ? "" : ", " + text); }
};

// The same trial with as many rows as make half a megabyte, so that samples of all widths are in the same
// cache.
std::unique_ptr<Trial> ofBytes(const Export& e, std::unique_ptr<Trial> trial) {
    constexpr double kBytes = 512 << 10;
    if (!trial->isPointwise || trial->bytes == 0) return trial;
    const int rows = std::max(static_cast<int>(kBytes / trial->bytes * trial->size.height), 8);
    return makeTrial(e, trial->number, {trial->size.width, rows});
}

Figure measure(const Library& library, const Export& e, Trial& trial, double seconds) {
    const Call call = trial.bind(library);
    call.make();
    const size_t half = static_cast<size_t>(trial.bytes / 2);
    const Block from = makeBlock(half), to = makeBlock(half);
    std::memset(from.get(), 1, half);
    std::memset(to.get(), 1, half);
    const Rounds rounds = race([&] { call(); }, [&] { std::memcpy(to.get(), from.get(), half); }, seconds);
    return {&e,
            trial.number,
            trial.size,
            trial.text,
            quantile(rounds.first, 0),
            quantile(rounds.second, 0),
            trial.samples,
            trial.bytes,
            trial.writes};
}

// ---- Who is like whom --------------------------------------------------------------------------------------

std::string outOfPlace(std::string flags) {
    if (const size_t at = flags.find('I'); at != std::string::npos) flags.erase(at, 1);
    return flags;
}

// Bits of the samples of source and destination, "816" of "8u16s".
std::string digitsOf(const std::string& types) {
    std::string digits;
    std::copy_if(types.begin(), types.end(), std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}
bool isOneType(const Export& e) { return e.types == digitsOf(e.types) + e.types.back(); } // not "8u16s"

bool isPlain(const Export& e) { return !e.isLong && !e.isInPlace(); }
bool arePlain(const Export& a, const Export& b) { return isPlain(a) && isPlain(b) && a.flags == b.flags; }

struct Kinship {
    const char* name;
    Per per;
    double limit; // times as long: worth a look
    // Whether `b` is what `a` is held against.
    bool (*are)(const Export& a, const Export& b);
};
constexpr Kinship kKinships[] = {
    {"short sizes", Per::sample, 1.2,
     [](const Export& a, const Export& b) {
         return a.isLong && !b.isLong && a.types == b.types && a.layout == b.layout && a.flags == b.flags;
     }},
    {"out of place", Per::sample, 1.2,
     [](const Export& a, const Export& b) {
         return !a.isLong && a.isInPlace() && isPlain(b) && a.types == b.types && a.layout == b.layout &&
                outOfPlace(a.flags) == b.flags;
     }},
    {"other layouts", Per::byte, 1.3,
     [](const Export& a, const Export& b) {
         return arePlain(a, b) && a.types == b.types && a.layout != b.layout;
     }},
    {"more channels", Per::pixel, 1.05,
     [](const Export& a, const Export& b) {
         return arePlain(a, b) && a.types == b.types && a.from == a.to && b.from == b.to && a.from < b.from;
     }},
    {"other types, as wide", Per::sample, 1.3,
     [](const Export& a, const Export& b) {
         return arePlain(a, b) && a.layout == b.layout && a.types != b.types &&
                digitsOf(a.types) == digitsOf(b.types);
     }},
    {"wider types", Per::sample, 1.05,
     [](const Export& a, const Export& b) {
         return arePlain(a, b) && a.layout == b.layout && isOneType(a) && isOneType(b) &&
                std::stoi(digitsOf(a.types)) < std::stoi(digitsOf(b.types));
     }},
    {"other widths", Per::byte, 2, [](const Export& a, const Export& b) {
         return arePlain(a, b) && a.layout == b.layout && digitsOf(a.types) != digitsOf(b.types);
     }}};

// Borders in place are written alone, and initialisers make tables.
bool isCompared(const Figure& f) {
    return f.samples > 0 && !(f.e->operation.ends_with("Border") && f.e->isInPlace());
}

double timeOf(const Figure& f, const Kinship& by) { return f.time / f.count(by.per); }

const Figure* fastest(const std::vector<Figure>& figures, const Figure& f, const Kinship& kinship) {
    const Figure* best = nullptr;
    for (const Figure& other : figures)
        if (isCompared(other) && other.e->operation == f.e->operation && other.text == f.text &&
            kinship.are(*f.e, *other.e) && (!best || timeOf(other, kinship) < timeOf(*best, kinship)))
            best = &other;
    return best;
}

// Both in turns, which a change of the machine's pace does not touch.
double raceOf(const Library& library, const Figure& f, const Figure& other, const Kinship& by, double seconds) {
    const auto first = makeTrial(*f.e, f.number, f.size),
               second = makeTrial(*other.e, other.number, other.size);
    const Call a = first->bind(library), b = second->bind(library);
    const Rounds rounds = race([&] { a(); }, [&] { b(); }, seconds);
    const double scale = other.count(by.per) / f.count(by.per);
    std::vector<double> ratios;
    for (size_t i = 0; i < rounds.first.size(); ++i)
        ratios.push_back(scale * rounds.first[i] / rounds.second[i]);
    return quantile(ratios, 0.5);
}

} // namespace

bool compareSiblings(const Options& options) {
    const Library library(options.now);
    std::vector<Figure> figures;
    std::printf("ns/sample    ns/byte  x copy\n");
    const bool ok = eachTrial(options, [&](const Export& e, std::unique_ptr<Trial> wanted, const std::string&) {
        const auto trial = ofBytes(e, std::move(wanted));
        figures.push_back(measure(library, e, *trial, options.seconds / 3));
        const Figure& f = figures.back();
        if (isCompared(f))
            std::printf("%9.4f  %9.4f  %6.2f  %s\n", f.time * 1e9 / f.samples, f.time * 1e9 / f.bytes,
                        f.copy / f.time, f.name().c_str());
    });
    for (const Kinship& kinship : kKinships) {
        std::printf("\nbeside %s: times of a %s\n", kinship.name, nameOf(kinship.per));
        for (const Figure& f : figures) {
            const Figure* const other = isCompared(f) ? fastest(figures, f, kinship) : nullptr;
            constexpr double kDoubt = 0.9; // of the first measurement, which the race may correct
            if (!other || timeOf(f, kinship) < kDoubt * kinship.limit * timeOf(*other, kinship)) continue;
            const double ratio = raceOf(library, f, *other, kinship, options.seconds);
            if (ratio < kinship.limit) continue;
            std::printf("%5.2f  %-50s %8.4f ns/sample, x copy %5.2f; %-50s x copy %5.2f\n", ratio,
                        f.name().c_str(), f.time * 1e9 / f.samples, f.copy / f.time, other->name().c_str(),
                        other->copy / other->time);
        }
    }
    return ok;
}

} // namespace bench::walk
