// SPDX-License-Identifier: Apache-2.0
// The sheet, and the table of what was run for it.
#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "sheet.h"

constexpr int kThreads = 2;
constexpr int kRuns = 7;

inline std::string text(TpxiSize size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

// The least time of a few runs, in milliseconds: the one that other work on the machine disturbed least. Of
// long runs there are fewer.
template <class Run>
double bestTime(Run run) {
    constexpr double kEnough = 500;
    double best = HUGE_VAL, sum = 0;
    for (int i = 0; i < kRuns && sum < kEnough; ++i) {
        const auto start = std::chrono::steady_clock::now();
        run();
        const double time =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        best = std::min(best, time);
        sum += time;
    }
    return best;
}

// Tells on the standard error stream what is being done, once that takes more than two seconds.
class Progress {
 public:
    void at(const std::string& what) {
        const auto now = std::chrono::steady_clock::now();
        if (now - told_ < std::chrono::seconds(2)) return;
        told_ = now;
        std::fprintf(stderr, "%s ...\n", what.c_str());
    }

 private:
    std::chrono::steady_clock::time_point told_ = std::chrono::steady_clock::now();
};

struct Operation {
    std::string name;
    const char* function;
    TpxiSize src;
    TpxiSize dst;
    int threads;
    double ms;
};

class Gallery {
 public:
    Gallery(Sheet& sheet, Progress& progress) : sheet_(sheet), progress_(progress) {}

    void section(const std::string& title) {
        progress_.at(title);
        sheet_.section(title);
    }

    void show(ConstPixels picture, Operation op) {
        progress_.at(op.name);
        char time[64];
        std::snprintf(time, sizeof time, "%d thread%s, %.3f ms", op.threads, op.threads == 1 ? "" : "s", op.ms);
        const bool resized = op.src.width != op.dst.width || op.src.height != op.dst.height;
        const std::string sizes = resized ? text(op.src) + " to " + text(op.dst) : text(op.dst);
        sheet_.add(picture, {op.name, op.function, sizes, time});
        operations_.push_back(std::move(op));
    }

    void print() const {
        std::printf("%-30s %-32s %13s %13s %8s %10s\n", "operation", "function", "source", "destination",
                    "threads", "time (ms)");
        for (const Operation& op : operations_)
            std::printf("%-30s %-32s %13s %13s %8d %10.3f\n", op.name.c_str(), op.function,
                        text(op.src).c_str(), text(op.dst).c_str(), op.threads, op.ms);
        if (!notes_.empty()) std::printf("\n");
        for (const std::string& line : notes_) std::printf("%s\n", line.c_str());
    }

    // Figures that are printed below the table, too.
    void note(const std::vector<std::string>& lines) {
        notes_.insert(notes_.end(), lines.begin(), lines.end());
    }

    Sheet& sheet() { return sheet_; }

 private:
    Sheet& sheet_;
    Progress& progress_;
    std::vector<Operation> operations_;
    std::vector<std::string> notes_;
};

// The sections of the sheet, by family.
void resizes(Gallery& gallery, const Image8u& source);
void warps(Gallery& gallery, const Image8u& source);
void toneCurves(Gallery& gallery, const Image8u& source);
void twoImages(Gallery& gallery, const Image8u& source);
void channels(Gallery& gallery, const Image8u& source);
void borders(Gallery& gallery, const Image8u& source);
void thresholds(Gallery& gallery, const Image8u& source);
void measuring(Gallery& gallery, const Image8u& source);
void filters(Gallery& gallery, const Image8u& source);
void spectra(Gallery& gallery, const Image8u& source);
