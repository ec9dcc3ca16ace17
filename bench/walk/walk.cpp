// SPDX-License-Identifier: Apache-2.0
#include "walk.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <map>
#include <regex>

#include "bench/frame/clock.h"
#include "bench/frame/image.h"

namespace bench::walk {

bool eachTrial(const Options& options,
               const std::function<void(const Export&, std::unique_ptr<Trial>, const std::string&)>& visit) {
    const std::regex wanted(options.filter);
    bool ok = true;
    std::map<std::string, int> left;
    for (const Export& e : tpx::test::exports()) {
        const int trials = trialsOf(e);
        if (trials == 0 && options.filter.empty()) ++left[whyNone(e)];
        for (const TpxiSize size : options.sizes)
            for (int number = 0; number < trials; ++number) try {
                    // The name alone decides before images are made.
                    if (!options.filter.empty() && !std::regex_search(e.name, wanted)) continue;
                    std::unique_ptr<Trial> trial = makeTrial(e, number, size);
                    const std::string how = trial->text.empty() ? "" : ", " + trial->text;
                    visit(e, std::move(trial), e.name + how + " of " + text(size));
                } catch (const std::exception& error) {
                    std::cout << error.what() << "\n";
                    ok = false;
                }
    }
    for (const auto& [reason, count] : left)
        std::cout << "not walked: " << count << " functions (" << reason << ")\n";
    return ok;
}

Rounds race(const std::function<void()>& first, const std::function<void()>& second, double seconds) {
    constexpr size_t kMinRounds = 5, kMaxRounds = 200;
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    first();
    second();
    const int calls[] = {fillBatch(first).calls, fillBatch(second).calls};
    Rounds rounds;
    const std::chrono::duration<double> budget(seconds);
    for (size_t round = 0; round < kMaxRounds && (round < kMinRounds || Clock::now() - start < budget); ++round)
        for (int turn = 0; turn < 2; ++turn)
            if ((round + turn) % 2 == 0)
                rounds.first.push_back(timeBatch(first, calls[0]));
            else
                rounds.second.push_back(timeBatch(second, calls[1]));
    return rounds;
}

double quantile(std::vector<double> values, double part) {
    const auto at =
        values.begin() + static_cast<ptrdiff_t>(std::lround(part * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

bool tryAll(const Options& options) {
    const Library library(options.now);
    int count = 0;
    const bool ok = eachTrial(options, [&](const Export&, std::unique_ptr<Trial> trial, const std::string&) {
        trial->bind(library).make();
        ++count;
    });
    std::cout << count << " trials\n";
    return ok && count > 0;
}

} // namespace bench::walk
