// SPDX-License-Identifier: Apache-2.0
// What both walks over the exports share: which trials there are, and the races of each.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "trial.h"

namespace bench::walk {

struct Options {
    std::string before, now; // libraries
    std::string filter;      // a regular expression that names of trials have to match somewhere
    std::vector<TpxiSize> sizes;
    double seconds = 0.06; // of a trial
};

// Calls visit(export, trial, name with size) for each. Prints what fails, and at the end what is not walked;
// tells whether nothing failed.
bool eachTrial(const Options& options,
               const std::function<void(const Export&, std::unique_ptr<Trial>, const std::string&)>& visit);

// Seconds of a call in each round of two runs that take turns.
struct Rounds {
    std::vector<double> first, second;
};
Rounds race(const std::function<void()>& first, const std::function<void()>& second, double seconds);

double quantile(std::vector<double> values, double part);

// Each trial once, that none fails.
bool tryAll(const Options& options);
// Two libraries beside each other.
bool compare(const Options& options);
// One library's functions beside those that are like them.
bool compareSiblings(const Options& options);

} // namespace bench::walk
