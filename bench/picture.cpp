// SPDX-License-Identifier: Apache-2.0
#include "picture.h"

#include "table.h"

#include <algorithm>
#include <cmath>
#include <ostream>

// Horizontal bars on a logarithmic axis that start at 1, where the library and the yardstick are equally
// fast: to the right the library is faster, to the left slower. A section of the picture has two panels side
// by side over the same lines. Heights are in pixels throughout.
namespace bench {
namespace {

struct Series {
    std::string title;
    const char* colour;
};
struct Bar {
    size_t series;
    double ratio;
};
constexpr size_t kPanels = 2;
struct Line {
    std::string label;
    std::vector<Bar> bars[kPanels];
    size_t depth() const { return std::max(bars[0].size(), bars[1].size()); } // 0: a heading
};
struct Section {
    std::string titles[kPanels];
    std::vector<Series> series[kPanels];
    std::vector<Line> lines;
};

constexpr double kBar = 11;     // from bar to bar
constexpr double kBarFill = 10; // of these
constexpr double kGap = 7;      // between lines
constexpr double kHeading = 22;
constexpr double kHead = 66; // title and key of a section
constexpr double kFoot = 34; // its axis
constexpr double kTop = 62;  // title of the picture
constexpr double kWidth = 1240;
constexpr int kFirstKeyTag = 10; // of gnuplot's labels
constexpr int kLastKeyTag = 40;
constexpr double kLeft[kPanels] = {0.21, 0.62}; // of the width
constexpr double kRight[kPanels] = {0.585, 0.985};

double height(const Line& line) {
    return line.depth() ? kBar * static_cast<double>(line.depth()) + kGap : kHeading;
}

double height(const Section& section) {
    double sum = 0;
    for (const Line& line : section.lines) sum += height(line);
    return sum;
}

// Functions that stand beside a copy and the scalar form only: a line each, a bar for a small, a middle and
// the largest image. Variants, which are not raced at the smallest size, are left to the table.
Section bySize(const std::string& group, const std::vector<Row>& rows) {
    const std::vector<Series> sizes = {
        {"64x64", "#9ecae1"}, {"1920x1080", "#3182bd"}, {"beyond the cache", "#08306b"}};
    const bool written = !rows.empty() && rows.front().find(kCopy);
    const char* yardsticks[kPanels] = {written ? kCopy : kRead, kScalar};
    Section section{{group + (written ? ": beside copying the same bytes" : ": beside reading the same bytes"),
                     group + ": beside the plain scalar form"},
                    {sizes, sizes},
                    {}};
    const auto isLeading = [&](const std::string& function) {
        return std::any_of(rows.begin(), rows.end(), [&](const Row& row) {
            return row.job.function == function && row.job.size == sizes[0].title;
        });
    };
    for (const Row& row : rows) {
        const std::string& size = row.job.size;
        if (!isLeading(row.job.function)) continue;
        if (section.lines.empty() || section.lines.back().label != row.job.function)
            section.lines.push_back({row.job.function, {}});
        const size_t series = size == sizes[0].title       ? 0
                              : size == sizes[1].title     ? 1
                              : size.starts_with("16384x") ? 2
                                                           : sizes.size();
        if (series == sizes.size()) continue;
        for (size_t panel = 0; panel < kPanels; ++panel)
            if (const Time* other = row.find(yardsticks[panel]))
                section.lines.back().bars[panel].push_back({series, row.ratio(*other)});
    }
    return section;
}

// Functions that stand beside other libraries too: a heading for each, a line for each size.
Section byYardstick(const std::string& group, const std::vector<Row>& rows,
                    const std::vector<std::string>& others) {
    constexpr const char* kColours[] = {"#e6842a", "#b35806", "#f5c08b", "#5a9a6a", "#a6cf9f", "#2f6040"};
    Section section{
        {group + ": beside other libraries", group + ": beside a copy of the result and the scalar form"},
        {{}, {{kCopy, "#9a9a9a"}, {kScalar, "#3182bd"}}},
        {}};
    for (const std::string& name : others)
        section.series[0].push_back({name, kColours[section.series[0].size() % std::size(kColours)]});
    std::string function;
    for (const Row& row : rows) {
        if (row.job.function != function) section.lines.push_back({function = row.job.function, {}});
        Line line{row.job.size, {}};
        for (size_t panel = 0; panel < kPanels; ++panel)
            for (size_t i = 0; i < section.series[panel].size(); ++i)
                if (const Time* other = row.find(section.series[panel][i].title))
                    line.bars[panel].push_back({i, row.ratio(*other)});
        section.lines.push_back(std::move(line));
    }
    return section;
}

std::string quoted(const std::string& text, bool bold = false) {
    std::string result;
    for (char c : text) result += c == '_' ? std::string("\\\\_") : std::string(1, c);
    return bold ? "\"{/:Bold " + result + "}\"" : "\"" + result + "\"";
}

// A coloured square and a name for each series; gnuplot's own key spaces them unevenly.
void writeKey(std::ostream& out, const std::vector<Series>& series, double x, double y) {
    constexpr double kSquare = 19;
    constexpr double kLetter = 6.6;
    int tag = kFirstKeyTag;
    for (const Series& one : series) {
        out << "set label " << tag << " '■' at screen " << x / kWidth << ", screen " << y
            << " font ',13' tc rgb '" << one.colour << "'\nset label " << tag + 1 << " " << quoted(one.title)
            << " at screen " << (x + kSquare) / kWidth << ", screen " << y << "\n";
        tag += 2;
        x += kSquare + kLetter * static_cast<double>(one.title.size()) + 18;
    }
    out << "do for [i=" << tag << ":" << kLastKeyTag << "] { unset label i }\n";
}

// `top` counts from the upper edge of the picture, which is `total` high.
void writePanel(std::ostream& out, const Section& section, size_t panel, double top, double total) {
    const auto screen = [&](double pixels) { return 1 - pixels / total; };
    const double tall = height(section);
    const std::string data = "$bars" + std::to_string(static_cast<int>(top)) + "_" + std::to_string(panel);
    double low = 0.8;
    double high = 1.25;
    out << data << " << EOD\n";
    for (size_t series = 0; series < section.series[panel].size(); ++series) {
        double y = 0;
        bool any = false;
        for (const Line& line : section.lines) {
            for (size_t i = 0; i < line.bars[panel].size(); ++i) {
                const auto [index, ratio] = line.bars[panel][i];
                if (index != series) continue;
                const double middle = y + kGap / 2 + kBar * (static_cast<double>(i) + 0.5);
                out << ratio << " " << middle << " " << std::min(1.0, ratio) << " " << std::max(1.0, ratio)
                    << " " << middle - kBarFill / 2 << " " << middle + kBarFill / 2 << "\n";
                low = std::min(low, ratio);
                high = std::max(high, ratio);
                any = true;
            }
            y += height(line);
        }
        out << (any ? "\n\n" : "NaN NaN NaN NaN NaN NaN\n\n\n");
    }
    const double room = std::pow(high / low, 0.13); // for the figures at the ends of the bars
    out << "EOD\n"
        << "set lmargin at screen " << kLeft[panel] << "\nset rmargin at screen " << kRight[panel] << "\n"
        << "set tmargin at screen " << screen(top + kHead) << "\n"
        << "set bmargin at screen " << screen(top + kHead + tall) << "\n"
        << "set label 1 " << quoted(section.titles[panel]) << " at screen " << kLeft[panel] << ", screen "
        << screen(top + 26) << " font ',12'\n"
        << "set xrange [" << low / room << ":" << high * room << "]\nset yrange [" << tall << ":0]\n"
        << "set ytics (";
    double y = 0;
    const char* comma = "";
    for (const Line& line : section.lines) {
        const double middle = line.depth() ? y + height(line) / 2 : y + kHeading - 8;
        out << comma << (panel == 0 ? quoted(line.label, !line.depth()) : "''") << " " << middle;
        comma = ", ";
        y += height(line);
    }
    out << ")\n";
    writeKey(out, section.series[panel], kLeft[panel] * kWidth, screen(top + 48));
    out << "plot ";
    for (size_t i = 0; i < section.series[panel].size(); ++i) {
        const std::string set = data + " index " + std::to_string(i);
        out << (i ? ", \\\n     " : "") << set << " using 1:2:3:4:5:6 with boxxyerror lc rgb '"
            << section.series[panel][i].colour << "', \\\n     " << set
            << " using ($1 < 1 ? $1 : NaN):2:(figure($1)) with labels right offset -0.5,0"
            << " font ',7.5', \\\n     " << set
            << " using ($1 < 1 ? NaN : $1):2:(figure($1)) with labels left offset 0.5,0 font ',7.5'";
    }
    out << "\n";
}

} // namespace

void writeScript(std::ostream& out, const std::string& png, const std::string& subtitle,
                 const std::vector<Row>& rows) {
    std::vector<Section> sections;
    double total = kTop;
    for (const std::string& group : groups(rows)) {
        const std::vector<Row> some = inGroup(rows, group);
        std::vector<std::string> others = yardsticksOf(some);
        std::erase_if(others, [](const std::string& name) {
            return name == kCopy || name == kScalar || name == kMemset || name == kRead;
        });
        sections.push_back(others.empty() ? bySize(group, some) : byYardstick(group, some, others));
        if (sections.back().lines.empty()) sections.pop_back();
    }
    for (const Section& section : sections) total += kHead + height(section) + kFoot;
    out << "set terminal pngcairo size " << kWidth << "," << total
        << " font 'DejaVu Sans,9' background rgb '#ffffff'\n"
        << "set output '" << png << "'\n"
        << "figure(x) = x < 0.01 ? sprintf('%.4f', x) : x < 0.1 ? sprintf('%.3f', x) : x < 10 ? "
           "sprintf('%.2f', x) "
        << ": sprintf('%.0f', x)\n"
        << "set multiplot\n"
        << "set label 100 'Speed of libtpxie9: times faster than its yardsticks, 1 is equal' at screen 0.015, "
           "screen "
        << 1 - 24 / total << " font ',16'\n"
        << "set label 101 " << quoted(subtitle) << " at screen 0.015, screen " << 1 - 48 / total
        << " tc rgb '#555555'\n"
        << "set style fill solid 1.0 noborder\nset border 0\nset tics scale 0\nset logscale x 10\n"
        << "set xtics (0.001, 0.01, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100, 1000) tc rgb '#555555'\n"
        << "set grid xtics lt 1 lc rgb '#d0d0d0' lw 0.8\n"
        << "set arrow 1 from first 1, graph 0 to first 1, graph 1 nohead lc rgb '#444444' lw 1.5 front\n"
        << "unset key\n";
    double top = kTop;
    for (const Section& section : sections) {
        for (size_t panel = 0; panel < kPanels; ++panel) {
            writePanel(out, section, panel, top, total);
            out << "unset label 100\nunset label 101\n";
        }
        top += kHead + height(section) + kFoot;
    }
    out << "unset multiplot\n";
}

} // namespace bench
