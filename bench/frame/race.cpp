// SPDX-License-Identifier: Apache-2.0
#include "race.h"

#include "clock.h"

#include <benchmark/benchmark.h>
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define RUNNING_ON_VALGRIND 0
#endif

#include <algorithm>
#include <chrono>
#include <exception>

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr double kWarmSeconds = 20e-3; // shorter calls find their images in the cache they fit in
constexpr auto kBudget = std::chrono::milliseconds(150); // of a job, once it has had the rounds it needs
constexpr size_t kMinRounds = 3;
constexpr double kSlow = 8; // times as long as ours: such contenders have no more rounds than needed
constexpr size_t kMaxRounds = 201;

std::vector<Row> done;
std::vector<std::string> registered;

struct Lane {
    const Contender* contender;
    int calls;
    bool warm;
    std::vector<double> times;
};

// Rounds of A B C, B C A, C A B...: a slow moment of the machine falls on all alike, and no one always
// follows the same other.
Row race(Job job, const std::vector<Contender>& contenders) {
    std::vector<Lane> lanes;
    double cycle = secondsOfCycle();
    for (const Contender& contender : contenders) {
        contender.run();
        const Batch batch = fillBatch(contender.run);
        lanes.push_back({&contender, batch.calls, batch.once < kWarmSeconds, {}});
    }
    auto start = Clock::now();
    for (size_t round = 0; round <= kMinRounds || (round < kMaxRounds && Clock::now() - start < kBudget);
         ++round) {
        if (round == kMinRounds) start = Clock::now();
        cycle = std::min(cycle, secondsOfCycle());
        for (size_t i = 0; i < lanes.size(); ++i) {
            Lane& lane = lanes[(round + i) % lanes.size()];
            if (round >= kMinRounds && lane.times.front() > kSlow * lanes.front().times.front()) continue;
            if (lane.warm) lane.contender->run();
            lane.times.push_back(timeBatch(lane.contender->run, lane.calls));
        }
    }
    Row row{std::move(job), {}, cycle};
    for (Lane& lane : lanes) {
        std::sort(lane.times.begin(), lane.times.end());
        row.times.push_back({lane.contender->name, lane.times.front(), lane.times[lane.times.size() / 2]});
    }
    return row;
}

std::string nameOf(const Job& job) { return job.function + "/" + job.size; }

// For count_operations.py: callgrind counts a call of the library's function, with the job's name and its
// samples.
void count([[maybe_unused]] const Job& job, [[maybe_unused]] const Contender& ours) {
#ifdef CALLGRIND_START_INSTRUMENTATION
    CALLGRIND_START_INSTRUMENTATION;
    ours.run();
    CALLGRIND_STOP_INSTRUMENTATION;
    const std::string label = nameOf(job) + " = " + std::to_string(static_cast<long>(job.samples));
    CALLGRIND_DUMP_STATS_AT(label.c_str());
#endif
}

} // namespace

const Time* Row::find(const std::string& name) const {
    const auto at =
        std::find_if(times.begin(), times.end(), [&](const Time& time) { return time.name == name; });
    return at == times.end() ? nullptr : &*at;
}

void addJob(Job job, std::function<std::vector<Contender>()> prepare) {
    const std::string name = nameOf(job);
    if (registered.empty() || registered.back() != job.function) registered.push_back(job.function);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [job = std::move(job), prepare = std::move(prepare)](benchmark::State& state) {
                                     for (auto _ : state) try {
                                             if (RUNNING_ON_VALGRIND) {
                                                 count(job, prepare().front());
                                                 state.SetIterationTime(1);
                                                 continue;
                                             }
                                             const Row row = race(job, prepare());
                                             state.SetIterationTime(row.ours().best);
                                             for (const Time& other : row.times)
                                                 if (&other != &row.ours())
                                                     state.counters[other.name] = row.ratio(other);
                                             done.push_back(row);
                                         } catch (const std::exception& error) {
                                             state.SkipWithError(error.what());
                                             break;
                                         }
                                 })
        ->UseManualTime()
        ->Iterations(1) // the rounds are in the race
        ->Unit(benchmark::kMicrosecond);
}

const std::vector<std::string>& functions() { return registered; }
const std::vector<Row>& rows() { return done; }

} // namespace bench
