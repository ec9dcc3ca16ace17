// SPDX-License-Identifier: Apache-2.0
// The clock of all races: time that this thread had the processor. What other processes take away is not
// counted.
#pragma once

#include <ctime>

namespace bench {

inline double threadSeconds() {
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

inline constexpr double kBatchSeconds = 100e-6; // far above the clock's resolution

// Seconds of a call, over a batch of them.
template <class Run>
double timeBatch(const Run& run, int calls) {
    const double start = threadSeconds();
    for (int i = 0; i < calls; ++i) {
        run();
        asm volatile("" : : : "memory");
    }
    return (threadSeconds() - start) / calls;
}

// As many calls as fill a batch, and seconds of a call.
struct Batch {
    int calls;
    double once;
};
template <class Run>
Batch fillBatch(const Run& run) {
    Batch batch{1, timeBatch(run, 1)};
    while (batch.once * batch.calls < kBatchSeconds) batch.once = timeBatch(run, batch.calls *= 2);
    return batch;
}

// Of the processor's clock, which changes with its load: sums that wait for each other take a cycle each.
inline double secondsOfCycle() {
    constexpr int kSums = 64, kTimes = 256;
    long sum = 0;
    const double start = threadSeconds();
    for (int i = 0; i < kTimes; ++i)
        asm volatile(".rept %c2\n\tadd %1, %0\n\t.endr" : "+r"(sum) : "r"(start > 0 ? 1L : 0L), "i"(kSums));
    return (threadSeconds() - start) / (kSums * kTimes);
}

} // namespace bench
