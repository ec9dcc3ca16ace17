// SPDX-License-Identifier: Apache-2.0
#include "bounds.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "table.h"

namespace bench {
namespace {

// Cycles of a sample on the busiest of a core's units, if nothing had to be waited for: those of all
// instructions of a call. Jobs of two sizes, which are not alike at others, are named with them.
struct Operations {
    std::string_view job;
    double cycles;
};
constexpr Operations kOperations[] = {
#include "operations.inc"
};

double operationsOf(const Job& job) {
    for (const Operations& known : kOperations)
        if (known.job == job.function || known.job == job.function + "/" + job.size) return known.cycles;
    return 0;
}

std::string text(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.2f", value);
    return buffer;
}

// "1920x1080" begins with itself and with "1920x1080 to 1280x720".
bool isOf(const Row& row, const std::string& size) {
    return row.job.size == size || row.job.size.starts_with(size + " ");
}

std::string mean(const std::vector<Row>& rows, const std::string& size) {
    double logs = 0;
    int count = 0;
    for (const Row& row : rows)
        if (const double part = ofBound(row); part > 0 && isOf(row, size)) {
            logs += std::log(part);
            ++count;
        }
    return count ? text(std::exp(logs / count)) : "";
}

} // namespace

Bound boundOf(const Row& row) {
    Bound bound;
    for (const char* name : {kMemset, kRead, kCopy})
        if (const Time* time = row.find(name); time && bound.name.empty()) bound = {name, time->best};
    if (const double seconds = operationsOf(row.job) * row.job.samples * row.cycle; seconds > bound.seconds)
        bound = {"operations", seconds};
    return bound;
}

double ofBound(const Row& row) { return boundOf(row).seconds / row.ours().best; }

Lines boundsByGroup(const std::vector<Row>& rows) {
    constexpr const char *kLarge = "1920x1080", *kSmall = "640x480";
    Lines lines = {{"Family", "Worst job", "Jobs", "Operations", kLarge, kSmall, "Worst"}};
    for (const std::string& group : groups(rows)) {
        const Row* worst = nullptr;
        int jobs = 0, counted = 0;
        const std::vector<Row> all = inGroup(rows, group);
        for (const Row& row : all) {
            if (!isOf(row, kLarge) && !isOf(row, kSmall)) continue;
            const Bound bound = boundOf(row);
            if (bound.name.empty()) continue;
            ++jobs;
            counted += bound.name == "operations";
            if (!worst || ofBound(row) < ofBound(*worst)) worst = &row;
        }
        if (worst)
            lines.push_back({group, worst->job.function + " of " + worst->job.size, std::to_string(jobs),
                             std::to_string(counted), mean(all, kLarge), mean(all, kSmall),
                             text(ofBound(*worst))});
    }
    return lines;
}

} // namespace bench
