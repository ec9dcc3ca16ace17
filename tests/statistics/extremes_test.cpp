// SPDX-License-Identifier: Apache-2.0
// tpxiMin, tpxiMax, tpxiMinMax, tpxiMinIndx and tpxiMaxIndx through the exported names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

#include "tests/support/reductions.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
struct Search {
    const char* name;
    bool most, both, places; // what the first array holds, whether a second one holds the largest samples
    int channels, results;
    TpxStatus (*run)(View<T>, TpxiSize, T*, T*, int*, int*);
};

#define SEARCH(word, T, L, channels, results, most, both, places, ...)                                     \
    Search<Tpx##T> {                                                                                       \
        "tpxi" #word "_" #T "_" #L, most, both, places, channels, results,                                 \
            [](View<Tpx##T> a, TpxiSize z, Tpx##T* v, [[maybe_unused]] Tpx##T* w, [[maybe_unused]] int* x, \
               [[maybe_unused]] int* y) {                                                                  \
                return tpxi##word##_##T##_##L##R(a.data, a.step, z, v __VA_OPT__(, __VA_ARGS__));          \
            }                                                                                              \
    }
#define SEARCHES_OF(T, ...)                                                                            \
    SEARCH(Min, T, __VA_ARGS__, false, false, false), SEARCH(Max, T, __VA_ARGS__, true, false, false), \
        SEARCH(MinMax, T, __VA_ARGS__, false, true, false, w),                                         \
        SEARCH(MinIndx, T, __VA_ARGS__, false, false, true, x, y),                                     \
        SEARCH(MaxIndx, T, __VA_ARGS__, true, false, true, x, y)
#define SEARCHES(T)                                                                                            \
    template <>                                                                                                \
    const std::vector<Search<Tpx##T>>& searches() {                                                            \
        static const std::vector<Search<Tpx##T>> list = {SEARCHES_OF(T, C1, 1, 1), SEARCHES_OF(T, C3, 3, 3),   \
                                                         SEARCHES_OF(T, C4, 4, 4), SEARCHES_OF(T, AC4, 4, 3)}; \
        return list;                                                                                           \
    }
template <class T>
const std::vector<Search<T>>& searches();
SEARCHES(8u)
SEARCHES(16u)
SEARCHES(16s)
SEARCHES(32f)

template <class T>
struct Extreme {
    T value;
    int x = 0, y = 0;
};

template <class T>
Extreme<T> extreme(View<T> image, TpxiSize size, int channels, int c, bool most) {
    Extreme<T> best = {};
    bool found = false;
    if (std::is_floating_point_v<T>) best.value = T(most ? -INFINITY : INFINITY);
    for (int y = 0; y < size.height; y++)
        for (int x = 0; x < size.width; x++) {
            const T v = image.at(ptrdiff_t(x) * channels + c, y);
            if (v != v || (found && !(most ? v > best.value : v < best.value))) continue;
            best = {v, x, y};
            found = true;
        }
    return best;
}

template <class T>
void check(const Search<T>& search, View<T> image, TpxiSize size) {
    T v[kRoom], w[kRoom];
    int x[kRoom], y[kRoom];
    std::fill_n(v, kRoom, T(kUnwritten)), std::fill_n(w, kRoom, T(kUnwritten));
    std::fill_n(x, kRoom, kUnwritten), std::fill_n(y, kRoom, kUnwritten);
    ASSERT_EQ(search.run(image, size, v, w, x, y), tpxOk) << search.name;
    for (int c = 0; c < kRoom; c++) {
        const bool written = c < search.results;
        Extreme<T> first = {T(kUnwritten), kUnwritten, kUnwritten}, second = first;
        if (written) first = extreme(image, size, search.channels, c, search.most);
        if (written && search.both) second = extreme(image, size, search.channels, c, true);
        if (!search.places) first.x = first.y = kUnwritten;
        ASSERT_TRUE(v[c] == first.value && w[c] == second.value && x[c] == first.x && y[c] == first.y)
            << search.name << ", channel " << c << " of " << size.width << " x " << size.height << ": got "
            << +v[c] << ", " << +w[c] << " at " << x[c] << ", " << y[c] << ", expected " << +first.value << ", "
            << +second.value << " at " << first.x << ", " << first.y;
    }
}

// Samples close to `base`, many of them equal; the smallest and the largest of a channel at one pixel and those
// next to it. Unused alpha has more extreme ones.
template <class T>
void plant(GuardedImage<T>& image, const Search<T>& search, int base, int pixel) {
    std::mt19937 random(unsigned(pixel + base));
    const int count = image.width() * image.height();
    image.fill([&](int x, int y, int c) {
        const int at = (y * image.width() + x + count - (pixel + 5 * c) % count) % count;
        const int r = int(random() % 16);
        if (c >= search.results)
            return r < 8 ? std::numeric_limits<T>::lowest() : std::numeric_limits<T>::max();
        if (at <= 1) return T(at == 0 ? base - 40 : base + 40);
        if (std::is_floating_point_v<T> && r == 0) return T(NAN);
        return T(base + r % 3);
    });
}

template <class T>
class Extremes : public testing::Test {};
using ExtremeTypes = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Extremes, ExtremeTypes);

TYPED_TEST(Extremes, EveryShape) {
    using T = TypeParam;
    const int farBase = std::is_unsigned_v<T> ? int(std::numeric_limits<T>::max()) - 50 : -90;
    for (const Search<T>& search : searches<T>())
        sweepOddShapes([&](int width, Lie lie, Lie otherLie) {
            for (int height = 1; height <= 3 && !this->HasFatalFailure(); height++)
                for (int pixel : {0, width * height - 1, (width * height * 7 + 3) / 11}) {
                    GuardedImage<T> a(width, height, search.channels, lie),
                        b(width, height, search.channels, otherLie);
                    plant(a, search, 90, pixel);
                    plant(b, search, farBase, pixel);
                    check(search, View<T>(a), a.size());
                    check(search, View<T>(b).fromBelow(height), b.size());
                    check(search, View<T>(a.data(), 0), a.size());
                }
        });
}

// Large images are passed in strips: ties lie in the same row, the next one, other strips and the last row.
TYPED_TEST(Extremes, FirstOfTiesInRowMajorOrder) {
    using T = TypeParam;
    const struct { int x, y; } ties[] = {{700, 1}, {3, 2}, {899, 38}, {0, 39}, {450, 70}, {899, 70}};
    for (const Search<T>& search : searches<T>())
        for (size_t first = 0; first < std::size(ties) && !this->HasFatalFailure(); first++) {
            GuardedImage<T> image(900, 71, search.channels, Lie{5, Edge::End, 0});
            // Other channels are full of what is sought in one of them.
            const int sought = int(first) % search.results;
            const T value = search.most ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
            image.fill([&](int, int, int c) { return c == sought ? T(50) : value; });
            for (size_t i = first; i < std::size(ties); i++) image.set(ties[i].x, ties[i].y, sought, value);
            check(search, View<T>(image), image.size());
            GuardedImage<T> wide(20011, 3, search.channels);
            wide.randomise(unsigned(first));
            check(search, View<T>(wide), wide.size());
        }
}

// The first sample is at x, y; all others are the second one.
TEST(ExtremesOfFloats, InfinitiesAndNaN) {
    const float edges[] = {INFINITY, -INFINITY, FLT_MAX, -FLT_MAX, NAN, -NAN, 1e-45f};
    for (const auto& search : searches<Tpx32f>())
        for (float one : edges)
            for (float others : edges)
                for (int place : {0, 5, 33, 40 * 130, 41 * 200 - 1}) {
                    GuardedImage<float> image(41, 200, search.channels);
                    image.fill([&](int x, int y, int) { return y * 41 + x == place ? one : others; });
                    check(search, View<float>(image), image.size());
                    if (HasFatalFailure()) return;
                }
}

// ---- Statuses -----------------------------------------------------------------------------------------------

TYPED_TEST(Extremes, OrderOfChecks) {
    using T = TypeParam;
    const T src[64] = {};
    for (const Search<T>& search : searches<T>()) {
        std::vector<int> pointers = {0, 1};
        if (search.both) pointers.push_back(2);
        if (search.places) pointers.insert(pointers.end(), {3, 4});
        expectCheckOrder(Call{}, faultsOf(pointers, false), [&](const Call& call) {
            T v[kRoom], w[kRoom];
            int x[kRoom], y[kRoom];
            std::fill_n(v, kRoom, T(kUnwritten)), std::fill_n(w, kRoom, T(kUnwritten));
            std::fill_n(x, kRoom, kUnwritten), std::fill_n(y, kRoom, kUnwritten);
            const auto unless = [&](int i, auto* p) { return call.null[i] ? nullptr : p; };
            const TpxStatus status = search.run({unless(0, src), call.steps[0]}, call.size, unless(1, v),
                                                unless(2, w), unless(3, x), unless(4, y));
            for (int c = 0; c < kRoom; c++)
                EXPECT_TRUE(v[c] == kUnwritten && w[c] == kUnwritten && x[c] == kUnwritten &&
                            y[c] == kUnwritten)
                    << search.name;
            return status;
        });
    }
}

} // namespace
