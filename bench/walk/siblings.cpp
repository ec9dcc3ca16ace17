// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "walk.h"

namespace bench::walk {
namespace {

// The same trial with as many rows as make half a megabyte, so that samples of all widths are in the same
// cache.
std::unique_ptr<Trial> ofBytes(const Export& e, const Trial& trial) {
    constexpr double kBytes = 512 << 10;
    if (!trial.isPointwise || trial.bytes == 0) return nullptr;
    const int rows = std::max(static_cast<int>(kBytes / trial.bytes * trial.size.height), 8);
    return makeTrial(e, trial.number, {trial.size.width, rows});
}

} // namespace

bool compareSiblings(const Options& options) {
    const Library library(options.now);
    return eachTrial(options, [&](const Export& e, Trial& wanted, const std::string& name) {
        const std::unique_ptr<Trial> resized = ofBytes(e, wanted);
        Trial& trial = resized ? *resized : wanted;
        const Call call = trial.bind(library);
        call.make();
        const size_t half = static_cast<size_t>(trial.bytes / 2);
        const Block from = makeBlock(half), to = makeBlock(half);
        std::memset(from.get(), 1, half);
        std::memset(to.get(), 1, half);
        const Rounds rounds =
            race([&] { call(); }, [&] { std::memcpy(to.get(), from.get(), half); }, options.seconds);
        const double time = quantile(rounds.first, 0), copy = quantile(rounds.second, 0);
        std::printf("%s\t%s\t%s\t%s\t%d\t%s\t%.0f\t%.0f\t%.1f\t%.1f\n", name.c_str(), e.operation.c_str(),
                    e.types.c_str(), e.layout.c_str(), e.isLong, trial.text.c_str(), trial.bytes, trial.samples,
                    time * 1e9, copy * 1e9);
        std::fflush(stdout);
    });
}

} // namespace bench::walk
