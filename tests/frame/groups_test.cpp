// Run loops whose constants repeat with pixels, and those of two sources: every length, in the caches and past
// them.
#include <gtest/gtest.h>

#include <algorithm>

#include "frame/runs/memory_runs.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx;
using namespace tpx::test;

// A constant for every sample of a group, so that a register out of its turn shows.
template <int G, class T>
struct Turns {
    Vec<T> of[G];
    Turns() {
        for (int i = 0; i < G * kLanes<T>; i++) of[i / kLanes<T>][i % kLanes<T>] = sample(i);
    }
    static T sample(ptrdiff_t i) {
        const ptrdiff_t place = i % (G * kLanes<T>);
        return G == 1 ? T(11) : T(1 + 40 * (place % 3)); // what the groups are for: pixels of three samples
    }
};

template <class T>
void randomise(T* samples, ptrdiff_t len, unsigned seed) {
    uint32_t state = seed * 2654435761u + 1;
    for (ptrdiff_t i = 0; i < len; i++) {
        state = state * 1664525u + 1013904223u;
        const T value = T(state >> 20);
        std::memcpy(samples + i, &value, sizeof value);
    }
}

template <class T>
T at(const T* samples, ptrdiff_t i) {
    T value;
    std::memcpy(&value, samples + i, sizeof value);
    return value;
}

// A run before which, or behind which, bytes may be written but must not be.
template <class T>
class Run {
 public:
    Run(ptrdiff_t len, size_t misalign, Edge edge)
        : len_(len), memory_(size_t(len) * sizeof(T) + kMargin, misalign, edge), edge_(edge) {
        memory_.fill(kAround);
    }
    T* data() { return reinterpret_cast<T*>(memory_.data() + (edge_ == Edge::End ? kMargin : 0)); }
    bool marginIntact() const {
        const uint8_t* margin = memory_.data() + (edge_ == Edge::End ? 0 : size_t(len_) * sizeof(T));
        return std::all_of(margin, margin + kMargin, [](uint8_t b) { return b == kAround; });
    }

 private:
    static constexpr size_t kMargin = 64;
    static constexpr uint8_t kAround = 0xA5;
    ptrdiff_t len_;
    GuardedBytes memory_;
    Edge edge_;
};

template <class T, class Expected>
void expectRun(Run<T>& run, ptrdiff_t len, Expected expected) {
    for (ptrdiff_t i = 0; i < len; i++)
        ASSERT_TRUE(sameBits(at(run.data(), i), T(expected(i)))) << "sample " << i << " of " << len;
    ASSERT_TRUE(run.marginIntact()) << len;
}

template <int G, class T>
void checkMapGroups() {
    const Turns<G, T> turns;
    for (ptrdiff_t len = G; len <= 400; len += G)
        for (Edge edge : {Edge::End, Edge::Start})
            for (size_t misalign : {size_t(0), sizeof(T), size_t(1)}) {
                Run<T> src(len, 3 * misalign, edge), dst(len, misalign, edge);
                randomise(src.data(), len, unsigned(len));
                const std::vector<uint8_t> old(reinterpret_cast<uint8_t*>(src.data()),
                                               reinterpret_cast<uint8_t*>(src.data() + len));
                const auto want = [&](ptrdiff_t i) {
                    return T(at(reinterpret_cast<const T*>(old.data()), i) + turns.sample(i));
                };
                const auto rule = [&](Vec<T> x, int k) { return x + turns.of[k]; };
                mapGroups<G>(src.data(), dst.data(), len, rule);
                ASSERT_NO_FATAL_FAILURE(expectRun(dst, len, want));
                // What was computed twice shows in place.
                mapGroups<G>(src.data(), src.data(), len, rule);
                ASSERT_NO_FATAL_FAILURE(expectRun(src, len, want));
            }
}

TEST(Groups, EveryLength) {
    checkMapGroups<1, Tpx8u>();
    checkMapGroups<3, Tpx8u>();
    checkMapGroups<1, Tpx16s>();
    checkMapGroups<3, Tpx16s>();
    checkMapGroups<3, Tpx32f>();
}

// Two sources, from a run shorter than a line to more than four of the longest stretches. The destination lies
// at any sample of a line.
template <int G, class T>
void checkStreaming() {
    const Turns<G, T> turns;
    constexpr ptrdiff_t kLine = 64 / sizeof(T), kTurn = G * 128 / sizeof(T),
                        kFourPages = 4 * G * 4096 / sizeof(T), kFourStretches = 16 * kFourPages;
    std::vector<ptrdiff_t> lengths;
    for (ptrdiff_t bulk : {ptrdiff_t(0), kTurn, kFourPages, kFourPages + kTurn, 2 * kFourPages})
        for (ptrdiff_t more : {ptrdiff_t(3), kTurn - 3, kTurn + 3 * kLine})
            lengths.push_back((bulk + more) / 3 * 3);
    lengths.push_back(kTurn);
    lengths.push_back(kFourPages);
    lengths.push_back(kFourStretches + kFourPages + kTurn + 3);
    const ptrdiff_t longest = *std::max_element(lengths.begin(), lengths.end());
    std::vector<T> a(static_cast<size_t>(longest)), b(a.size());
    randomise(a.data(), longest, 1);
    randomise(b.data(), longest, 2);
    for (ptrdiff_t len : lengths) {
        const size_t next = len <= 3 * kTurn ? 1 : len <= kFourStretches ? sizeof(T) : 5 * sizeof(T);
        for (size_t misalign = 0; misalign < 64; misalign += next) {
            // Both ends of a run at unreadable pages: the destination and one source here, the other source
            // there.
            const Edge edge = misalign % 3 ? Edge::Start : Edge::End;
            Run<T> dst(len, misalign, Edge::Start), x(len, 0, edge), y(len, 5, Edge::End);
            std::memcpy(x.data(), a.data(), size_t(len) * sizeof(T));
            std::memcpy(y.data(), b.data(), size_t(len) * sizeof(T));
            const auto want = [&](ptrdiff_t i) {
                return G == 1 ? T(a[size_t(i)] - b[size_t(i)]) : T(a[size_t(i)] + turns.sample(i));
            };
            if constexpr (G == 1) {
                streamRun(
                    dst.data(), len, [](auto p, auto q) { return p - q; }, (const T*)x.data(),
                    (const T*)y.data());
            } else {
                streamGroups<G>((const T*)x.data(), dst.data(), len,
                                [&](auto p, int k) { return p + turns.of[k]; },
                                // Each rest begins with a pixel, and with the group's first register.
                                [&](T* d, ptrdiff_t n, const T* p) {
                                    ASSERT_EQ(n % G, 0);
                                    for (ptrdiff_t i = 0; i < n; i++) {
                                        const T value = T(at(p, i) + turns.sample(i));
                                        std::memcpy(d + i, &value, sizeof value);
                                    }
                                });
            }
            streamFence();
            ASSERT_NO_FATAL_FAILURE(expectRun(dst, len, want)) << "misaligned by " << misalign;
        }
    }
}

TEST(Groups, StreamedFromTwoSources) {
    checkStreaming<1, Tpx8u>();
    checkStreaming<3, Tpx8u>();
    checkStreaming<1, Tpx16s>();
    checkStreaming<3, Tpx16s>();
    checkStreaming<1, Tpx32f>();
    checkStreaming<3, Tpx32f>();
}

} // namespace
