// SPDX-License-Identifier: Apache-2.0
#include "table.h"

#include "bounds.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace bench {
namespace {

using Cells = Lines::value_type;

// Three significant digits, never an exponent.
std::string number(double value) {
    char buffer[32];
    const int decimals = value < 0.01 ? 4 : value < 0.1 ? 3 : value < 10 ? 2 : value < 100 ? 1 : 0;
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    return buffer;
}

std::string duration(double seconds) {
    if (seconds < 1e-6) return number(seconds * 1e9) + " ns";
    if (seconds < 1e-3) return number(seconds * 1e6) + " us";
    return number(seconds * 1e3) + " ms";
}

// The letter tells which bound it is.
std::string boundCell(const Row& row) {
    const Bound bound = boundOf(row);
    return bound.name.empty() ? "" : number(ofBound(row)) + " " + bound.name[0];
}

std::vector<Cells> cells(const std::vector<Row>& rows) {
    const std::vector<std::string> yardsticks = yardsticksOf(rows);
    Cells head = {"Function", "Size", "Call", "ns/sample", "GB/s", "Of bound"};
    for (const std::string& name : yardsticks) head.push_back("x " + name);
    std::vector<Cells> result = {head};
    for (const Row& row : rows) {
        const double best = row.ours().best;
        Cells line = {row.job.function,
                      row.job.size,
                      duration(best),
                      number(best * 1e9 / row.job.samples),
                      number(row.job.bytes / best * 1e-9),
                      boundCell(row)};
        for (const std::string& name : yardsticks) {
            const Time* other = row.find(name);
            line.push_back(other ? number(row.ratio(*other)) : "");
        }
        result.push_back(line);
    }
    return result;
}

void writeCells(std::ostream& out, Style style, const std::vector<Cells>& lines) {
    constexpr size_t kTextColumns = 2; // the rest are numbers, and stand to the right
    std::vector<size_t> widths(lines.front().size());
    for (const Cells& line : lines)
        for (size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], line[i].size());
    const bool markdown = style == Style::markdown;
    for (size_t at = 0; at < lines.size(); ++at) {
        for (size_t i = 0; i < widths.size(); ++i) {
            const std::string pad(widths[i] - lines[at][i].size(), ' ');
            out << (markdown ? "| " : "") << (i < kTextColumns ? lines[at][i] + pad : pad + lines[at][i])
                << (markdown ? " " : "  ");
        }
        out << (markdown ? "|\n" : "\n");
        if (at > 0 || !markdown) continue;
        for (size_t i = 0; i < widths.size(); ++i)
            out << "|-" << std::string(widths[i] - 1, '-') << (i < kTextColumns ? "--" : "-:");
        out << "|\n";
    }
}

// How far a run of the machine is from quiet: the median of a job's rounds over their minimum.
double unrest(const std::vector<Row>& rows) {
    std::vector<double> ratios;
    for (const Row& row : rows) ratios.push_back(row.ours().median / row.ours().best);
    std::sort(ratios.begin(), ratios.end());
    return ratios[ratios.size() / 2];
}

// Most rows' worth: what is asked for most often, resizes ahead.
struct Chosen {
    const char* function;
    const char* size;
};
constexpr const char* kEnlarged = "640x480 to 1600x1200";
constexpr Chosen kSummary[] = {{"tpxiResizeLinear_8u_C1R", kEnlarged},
                               {"tpxiResizeLinear_8u_C3R", kEnlarged},
                               {"tpxiResizeCubic_8u_C3R", kEnlarged},
                               {"tpxiResizeSuper_8u_C1R", "1920x1080 to 640x360"},
                               {"tpxiDFTFwd_RToPack_32f_C1R", "1920x1080"},
                               {"tpxiWarpAffineLinear_8u_C3R, 15 degrees", "1920x1080"},
                               {"tpxiFilterMedianBorder_8u_C1R, 3x3", "1920x1080"},
                               {"tpxiAdd_8u_C1RSfs, 0", "1920x1080"}};

const Row* findRow(const std::vector<Row>& rows, const Chosen& chosen) {
    const auto at = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
        return row.job.function == chosen.function && row.job.size == chosen.size;
    });
    return at == rows.end() ? nullptr : &*at;
}

// How much faster than a library in the fastest of its ways ("libyuv", "libyuv planes"); 0 if it was not raced.
double ratioTo(const Row& row, const std::string& library) {
    double least = 0;
    for (const Time& time : row.times)
        if (time.name.starts_with(library) && (least == 0 || row.ratio(time) < least)) least = row.ratio(time);
    return least;
}

} // namespace

std::vector<std::string> groups(const std::vector<Row>& rows) {
    std::vector<std::string> names;
    for (const Row& row : rows)
        if (std::find(names.begin(), names.end(), row.job.group) == names.end()) names.push_back(row.job.group);
    return names;
}

std::vector<Row> inGroup(const std::vector<Row>& rows, const std::string& group) {
    std::vector<Row> result;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(result),
                 [&](const Row& row) { return row.job.group == group; });
    return result;
}

std::vector<std::string> yardsticksOf(const std::vector<Row>& rows) {
    std::vector<std::string> names;
    for (const Row& row : rows)
        for (const Time& time : row.times)
            if (time.name != kOurs && std::find(names.begin(), names.end(), time.name) == names.end())
                names.push_back(time.name);
    // Behind those that all jobs share, a library's ways stand together.
    std::sort(std::find_if(names.begin(), names.end(),
                           [](const std::string& name) { return name != kCopy && name != kScalar; }),
              names.end());
    return names;
}

void writeTable(std::ostream& out, Style style, const Facts& facts, const std::vector<Row>& rows) {
    const bool markdown = style == Style::markdown;
    for (const std::string& fact : facts) out << (markdown ? "- " : "") << fact << "\n";
    out << (markdown ? "- " : "") << "unrest of the machine: the typical round took " << number(unrest(rows))
        << " times the best one\n";
    const Lines bounds = boundsByGroup(rows);
    if (bounds.size() > 1) {
        out << "\nWhat is left to gain: the bound's time over ours (1 is the bound), the mean of a family's "
               "jobs.\n\n";
        writeCells(out, style, bounds);
    }
    for (const std::string& group : groups(rows)) {
        out << "\n" << (markdown ? "## " : "") << group << "\n\n";
        writeCells(out, style, cells(inGroup(rows, group)));
    }
}

void writeSummary(std::ostream& out, const Facts& facts, const std::vector<Row>& rows) {
    const std::vector<std::string> others = {kCopy, kScalar, "zimg", "libyuv", "OpenCV", "FFTW"};
    std::vector<Cells> lines = {{"Function", "Size", "Call"}};
    for (const std::string& name : others) lines.front().push_back("x " + name);
    for (const Chosen& chosen : kSummary)
        if (const Row* row = findRow(rows, chosen)) {
            lines.push_back({row->job.function, row->job.size, duration(row->ours().best)});
            for (const std::string& name : others) {
                const double ratio = ratioTo(*row, name);
                lines.back().push_back(ratio > 0 ? number(ratio) : "");
            }
        }
    writeCells(out, Style::markdown, lines);
    out << "\n";
    for (size_t i = 0; i < 3; ++i) out << "- " << facts[i] << "\n"; // library, processor, yardsticks
}

void writeSentence(std::ostream& out, const std::vector<Row>& rows) {
    const Row* linear = findRow(rows, {"tpxiResizeLinear_8u_C1R", kEnlarged});
    const Row* nearest = findRow(rows, {"tpxiResizeNearest_8u_C1R", kEnlarged});
    if (!linear || !nearest || ratioTo(*linear, "zimg") == 0 || ratioTo(*linear, "libyuv") == 0) {
        out << "\n";
        return;
    }
    const auto both = [&](const char* library) {
        return number(ratioTo(*linear, library)) + " (linear) and " + number(ratioTo(*nearest, library)) +
               " (nearest)";
    };
    out << "One thread enlarges bytes " << both("zimg") << " times as fast as zimg, and\n"
        << both("libyuv")
        << " times as fast as libyuv: with AVX alone, beside all that the processor offers them.\n";
}

} // namespace bench
