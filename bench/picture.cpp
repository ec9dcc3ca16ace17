// SPDX-License-Identifier: Apache-2.0
#include "picture.h"

#include "table.h"

#include <algorithm>
#include <ostream>

namespace bench {
namespace {

// How the other libraries are shown; a name that is not here is no library.
struct Library {
    const char* name;
    unsigned colour;
};
constexpr Library kLibraries[] = {{"zimg", 0x2f7040},          {"libyuv", 0xe6842a}, {"libyuv ARGB", 0xe0b080},
                                  {"libyuv planes", 0xe0b080}, {"OpenCV", 0xa63d40}, {"FFTW", 0x7b4ea7}};
constexpr unsigned kMemory = 0x3182bd; // a copy, or reading
constexpr const char* kSize = "1920x1080";

// Lines of one column of the picture, from the top.
class Column {
 public:
    explicit Column(std::ostream& out) : out_(out) {}
    void heading(const std::string& text) {
        if (row_ > 1) row_ += 0.5;
        line("?", 0, text);
    }
    void bar(double ratio, unsigned colour, const std::string& label) {
        line(std::to_string(ratio), colour, label);
    }
    void gap() { row_ += 0.25; }
    // gnuplot refuses a column without a bar.
    void end() {
        if (!any_) line("1", 0xffffff, "nothing was run");
        out_ << "\n\n";
    }

 private:
    void line(const std::string& ratio, unsigned colour, const std::string& label) {
        out_ << row_ << "\t" << ratio << "\t" << colour << "\t" << label << "\n";
        any_ = any_ || ratio != "?";
        row_ += 1;
    }

    std::ostream& out_;
    double row_ = 1;
    bool any_ = false;
};

// What others do all day; single operations beside OpenCV are left to the table.
bool besideLibraries(const Row& row) {
    if (row.job.group != "Resize" && row.job.group != "Fourier transforms") return false;
    return std::any_of(std::begin(kLibraries), std::end(kLibraries),
                       [&](const Library& library) { return row.find(library.name); });
}

void writeLibraries(Column column, const std::vector<Row>& rows) {
    // One enlargement and one reduction tell enough of a resize; smaller and larger ones are in the table.
    const auto shown = [](const Row& row) {
        const std::string& size = row.job.size;
        return besideLibraries(row) &&
               (size.find(" to ") == std::string::npos || size == "640x480 to 1600x1200" ||
                size == "1920x1080 to 1280x720" || size == "1920x1080 to 640x360");
    };
    std::string size;
    std::vector<Row> sorted;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(sorted), shown);
    std::stable_sort(sorted.begin(), sorted.end(), [](const Row& a, const Row& b) {
        const bool resizes[] = {a.job.size.find(" to ") != std::string::npos,
                                b.job.size.find(" to ") != std::string::npos};
        return resizes[0] != resizes[1] ? resizes[0] : a.job.size > b.job.size;
    });
    for (const Row& row : sorted) {
        if (row.job.size != size) column.heading(size = row.job.size);
        std::string label = row.job.function;
        for (const Library& library : kLibraries)
            if (const Time* other = row.find(library.name)) {
                column.bar(row.ratio(*other), library.colour, label);
                label.clear();
            }
        column.gap();
    }
    column.end();
}

void writeMemory(Column column, const std::vector<Row>& rows) {
    for (const std::string& group : groups(rows)) {
        bool headed = false;
        for (const Row& row : inGroup(rows, group)) {
            const Time* other = row.find(kCopy) ? row.find(kCopy) : row.find(kRead);
            // Functions that are raced at every size; variants are left to the table.
            const bool leading = std::any_of(rows.begin(), rows.end(), [&](const Row& small) {
                return small.job.function == row.job.function && small.job.size == "64x64";
            });
            if (!other || !leading || row.job.size != kSize || besideLibraries(row)) continue;
            if (!headed) column.heading(group);
            headed = true;
            column.bar(row.ratio(*other), kMemory, row.job.function);
        }
    }
    column.end();
}

} // namespace

void writeBars(std::ostream& out, const std::vector<Row>& rows) {
    writeLibraries(Column(out), rows);
    writeMemory(Column(out), rows);
}

} // namespace bench
