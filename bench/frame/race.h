// SPDX-License-Identifier: Apache-2.0
// A race: one function of the library and its yardsticks on the same images, timed in turns.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Ways to do one job; the library's function comes first. A run owns what it works on.
struct Contender {
    std::string name;
    std::function<void()> run;
};

// What is known of a job before it is run. `bytes` counts what has to be read and written.
struct Job {
    std::string group;    // section of the table
    std::string function; // without the size
    std::string size;
    double samples;
    double bytes;
};

// Yardsticks that every job shares; others are named after their library.
inline constexpr const char* kOurs = "tpxi";
inline constexpr const char* kCopy = "copy";
inline constexpr const char* kScalar = "scalar";
inline constexpr const char* kMemset = "memset";
inline constexpr const char* kRead = "read";

struct Time {
    std::string name;
    double best;   // seconds of a call
    double median; // the same
};

struct Row {
    Job job;
    std::vector<Time> times; // in the order of the contenders
    double cycle;            // seconds of a cycle of the processor, meanwhile
    const Time* find(const std::string& name) const;
    const Time& ours() const { return times.front(); }
    double ratio(const Time& other) const { return other.best / ours().best; }
};

// Registers a job. `prepare` allocates its images and is called when its turn comes; what it throws is
// reported as the failure of this job alone.
void addJob(Job job, std::function<std::vector<Contender>()> prepare);

// The functions of all that is registered, once each.
const std::vector<std::string>& functions();

// The jobs done so far.
const std::vector<Row>& rows();

} // namespace bench
