// SPDX-License-Identifier: Apache-2.0
// tpxiLUT through the exported names.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
using LevelOf = std::conditional_t<std::is_integral_v<T>, Tpx32s, Tpx32f>;

template <class T>
struct Form {
    const char* name;
    TpxChannelCode layout;
    int channels, code; // the identity code of the nearest interpolation
    TpxStatus (*run)(const T*, int, T*, int, TpxiSize, const TpxiLUT_Spec*);
    TpxStatus (*runInPlace)(T*, int, TpxiSize, const TpxiLUT_Spec*);

    int computed() const { return std::min(channels, layout == tpxChannelAC4 ? 3 : 4); }
};

template <class T>
struct Functions; // TpxDataType type; init; forms
#define FORM(T, L, channels, code) \
    { "tpxiLUT_" #T "_" #L, tpxChannel##L, channels, code, tpxiLUT_##T##_##L##R, tpxiLUT_##T##_##L##IR }
#define FUNCTIONS(T, code)                                                                                \
    template <>                                                                                           \
    struct Functions<Tpx##T> {                                                                            \
        static constexpr TpxDataType kType = tpxDataType##T;                                              \
        static constexpr auto init = tpxiLUT_Init_##T;                                                    \
        static inline const Form<Tpx##T> forms[] = {FORM(T, C1, 1, code), FORM(T, C3, 3, code + 1),       \
                                                    FORM(T, C4, 4, code + 2), FORM(T, AC4, 4, code + 3)}; \
    };
FUNCTIONS(8u, 0x1234567)
FUNCTIONS(16u, 0x123456B)
FUNCTIONS(16s, 0x123456F)
FUNCTIONS(32f, 0x1234573)

const TpxInterpolationType kInterpolations[] = {tpxInterpolationNearest, tpxInterpolationLinear,
                                                tpxInterpolationCubic};

// ---- The model -------------------------------------------------------------------------------------------

// The levels and values of a channel.
template <class T>
struct Points {
    std::vector<LevelOf<T>> levels, values;
    int count() const { return int(levels.size()); }
};
template <class T>
using Channels = std::vector<Points<T>>;

// What a sample may become: the neighbours of a result that is all but at the border of two integers, or the
// floats around a result, are right as well.
struct Range {
    double low, high;
};

// The line through points k and k + 1, or the cubic through four of them.
template <class T>
Range curveAt(const Points<T>& p, int k, double x, bool cubic) {
    const double low = p.levels[k], value = p.values[k];
    if (!cubic) {
        const double slope = (p.values[k + 1] - value) / (p.levels[k + 1] - low);
        if (std::is_integral_v<T>)
            return {value + 0.5 - low * slope + slope * x, value + 0.5 - low * slope + slope * x};
        return {(x - low) * slope + value, (x - low) * slope + value};
    }
    const int j = std::clamp(k - 1, 0, p.count() - 4);
    long double sum = 0, magnitude = 0;
    for (int a = j; a < j + 4; a++) { // Lagrange's form
        long double term = p.values[a];
        for (int b = j; b < j + 4; b++)
            if (b != a) term *= (x - (long double)(p.levels[b])) / ((long double)(p.levels[a]) - p.levels[b]);
        sum += term;
        magnitude += std::abs(term);
    }
    const long double rounding = std::is_integral_v<T> ? 0.5L : 0, slack = 1e-12L * (1 + magnitude);
    return {double(sum + rounding - slack), double(sum + rounding + slack)};
}

template <class T>
Range model(TpxInterpolationType interpolation, const Points<T>& p, T sample, bool few) {
    const bool cubic = interpolation == tpxInterpolationCubic && !few;
    const double x = sample;
    int found = -1; // the last interval that has the sample, of floats the first
    for (int k = 0; k + 1 < p.count(); k++)
        if (p.levels[k] <= x && x < p.levels[k + 1] && (found < 0 || std::is_integral_v<T>)) found = k;
    if (found < 0) return {x, x};
    Range range = {double(p.values[found]), double(p.values[found])};
    const bool single = std::is_integral_v<T> && double(p.levels[found + 1]) - p.levels[found] == 1;
    if (interpolation != tpxInterpolationNearest && (cubic || !single)) {
        const int j = std::clamp(found - 1, 0, std::max(p.count() - 4, 0));
        std::vector<double> window(p.levels.begin() + j, p.levels.begin() + std::min(j + 4, p.count()));
        std::sort(window.begin(), window.end());
        const bool repeats = std::adjacent_find(window.begin(), window.end()) != window.end();
        range = curveAt(p, found, x, cubic && !repeats);
    }
    if constexpr (std::is_integral_v<T>) {
        using Limits = std::numeric_limits<T>;
        const auto limit = [](double y) {
            return std::clamp<double>(std::trunc(y), Limits::min(), Limits::max());
        };
        return {limit(range.low), limit(range.high)};
    }
    return {double(float(range.low)), double(float(range.high))};
}

template <class T>
bool fits(T got, T sample, const Range& range) {
    const double x = sample;
    if (std::is_floating_point_v<T> && !(range.low < x || x < range.low)) { // NaN and zeros stay as bits
        if (sameBits(got, sample)) return true;
        if (std::isnan(x)) return false;
    }
    return range.low <= got && got <= range.high;
}

// ---- Specs -----------------------------------------------------------------------------------------------

// A spec in exactly the memory that it asks for, between unreadable pages.
template <class T>
class Spec {
 public:
    Spec(TpxInterpolationType interpolation, TpxChannelCode layout, const Channels<T>& channels,
         size_t misalign = 1)
        : memory_(size(interpolation, layout, channels), misalign) {
        memory_.fill(0xEE);
        EXPECT_EQ(init(interpolation, layout, channels), tpxOk);
    }
    TpxStatus init(TpxInterpolationType interpolation, TpxChannelCode layout, const Channels<T>& channels) {
        std::vector<const LevelOf<T>*> levels, values;
        std::vector<int> counts;
        for (const auto& p : channels) {
            levels.push_back(p.levels.data());
            values.push_back(p.values.data());
            counts.push_back(p.count());
        }
        return Functions<T>::init(interpolation, layout, {1, 1}, values.data(), levels.data(), counts.data(),
                                  data());
    }
    TpxiLUT_Spec* data() { return reinterpret_cast<TpxiLUT_Spec*>(memory_.data()); }
    int code() const {
        int code;
        std::memcpy(&code, memory_.data(), sizeof code);
        return code;
    }
    std::vector<uint8_t> bytes() const { return {memory_.data(), memory_.data() + memory_.size()}; }

 private:
    static size_t size(TpxInterpolationType interpolation, TpxChannelCode layout, const Channels<T>& channels) {
        std::vector<int> counts;
        for (const auto& p : channels) counts.push_back(p.count());
        int size = 0;
        EXPECT_EQ(tpxiLUT_GetSize(interpolation, Functions<T>::kType, layout, {1, 1}, counts.data(), &size),
                  tpxOk);
        return size_t(size);
    }
    GuardedBytes memory_;
};

// Levels that rise over more than the middle of the type's range, at uneven or even distances.
template <class T>
Points<T> somePoints(int count, unsigned seed, bool even = false) {
    std::mt19937 random(seed);
    const double low = std::is_integral_v<T> ? std::numeric_limits<T>::min() : -1000;
    const double high = std::is_integral_v<T> ? std::numeric_limits<T>::max() : 1000;
    std::vector<double> at;
    for (int k = 0; k < count; k++)
        at.push_back(low + (high - low) * (even ? (k + 1.0) / (count + 1) : random() % 65536 / 65536.0));
    std::sort(at.begin(), at.end());
    Points<T> p;
    for (double level : at) {
        p.levels.push_back(LevelOf<T>(level));
        if (p.levels.size() > 1) // rising strictly
            p.levels.back() = std::max(p.levels.back(), p.levels[p.levels.size() - 2] + 1);
        p.values.push_back(LevelOf<T>(low + (high - low) * (random() % 65536 / 60000.0 - 0.04)));
    }
    return p;
}

template <class T>
bool isFew(const Channels<T>& channels) {
    return std::any_of(channels.begin(), channels.end(), [](const auto& p) { return p.count() < 4; });
}

// Samples of a channel: its levels and what lies around them, others, and what is no number.
template <class T>
T someSample(const Points<T>& p, std::mt19937& random) {
    const double level = double(p.levels[random() % p.levels.size()]);
    const unsigned kind = random() % 8;
    if constexpr (std::is_floating_point_v<T>) {
        const float special[] = {NAN, -NAN, INFINITY, -INFINITY, -0.0f, 0.0f, 1e-42f, -3e38f};
        uint32_t payload = 0xFFA00001 + random() % 1000;
        float signalling;
        std::memcpy(&signalling, &payload, sizeof payload);
        return kind == 0   ? special[random() % std::size(special)]
               : kind == 1 ? signalling
               : kind == 2 ? float(level)
               : kind == 3 ? std::nextafter(float(level), random() % 2 ? INFINITY : -INFINITY)
                           : float(int(random() % 2200) - 1100) * 1.0037f;
    } else {
        using Limits = std::numeric_limits<T>;
        const double near = level + int(random() % 3) - 1;
        return kind < 4 && near >= Limits::min() && near <= Limits::max() ? T(near) : T(random());
    }
}

template <class T>
void checkImage(const Form<T>& form, TpxInterpolationType interpolation, const Channels<T>& channels, int width,
                int height, Lie srcLie, Lie dstLie) {
    Spec<T> spec(interpolation, form.layout, channels, size_t(width % 67));
    const auto specBefore = spec.bytes();
    GuardedImage<T> src(width, height, form.channels, srcLie), dst(width, height, form.channels, dstLie);
    std::mt19937 random(unsigned(width) + 77);
    src.fill([&](int, int, int c) { return someSample(channels[size_t(c) % channels.size()], random); });
    // Alpha of the destination before the call tells its place.
    const auto before = [](int x, int y, int) { return T(7 * x + y); };
    dst.fill(before);
    const bool few = isFew(channels);
    const auto check = [&](auto alpha, const char* how) {
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                for (int c = 0; c < form.channels; c++) {
                    const T from = src.at(x, y, c), got = dst.at(x, y, c);
                    if (c >= form.computed())
                        ASSERT_TRUE(sameBits(got, T(alpha(x, y, c)))) << form.name << how << " alpha at " << x;
                    else
                        ASSERT_TRUE(fits(got, from, model(interpolation, channels[size_t(c)], from, few)))
                            << form.name << how << ", interpolation " << interpolation << ": " << +from
                            << " became " << +got << " instead of "
                            << model(interpolation, channels[size_t(c)], from, few).low << " at " << x << ", "
                            << y << ", channel " << c << " of " << width;
                }
        ASSERT_TRUE(dst.paddingIntact());
    };
    ASSERT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size(), spec.data()), tpxOk);
    check(before, "");
    dst.copySamplesFrom(src);
    ASSERT_EQ(form.runInPlace(dst.data(), dst.step(), dst.size(), spec.data()), tpxOk);
    check([&](int x, int y, int c) { return src.at(x, y, c); }, " in place");
    ASSERT_EQ(spec.bytes(), specBefore);
}

template <class T>
class Lookup : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Lookup, Types);

// ---- Samples ---------------------------------------------------------------------------------------------

template <class T>
Channels<T> channelsOf(const Form<T>& form, int count) {
    Channels<T> channels;
    for (int c = 0; c < form.computed(); c++)
        channels.push_back(somePoints<T>(count + c, unsigned(31 * count + c)));
    return channels;
}

TYPED_TEST(Lookup, StepsThatAreNotWholeSamples) {
    for (const auto& form : Functions<TypeParam>::forms)
        for (TpxInterpolationType interpolation : kInterpolations)
            checkImage(form, interpolation, channelsOf(form, 5), 50, 4, Lie{3, Edge::End, 1},
                       Lie{5, Edge::Start, 3});
}

// From the fewest levels on, where a channel with fewer than four makes all of a cubic spec linear; at even and
// uneven distances; images on both sides of 4096 pixels.
TYPED_TEST(Lookup, LevelCounts) {
    using T = TypeParam;
    for (const Form<T>& form : Functions<T>::forms)
        for (int count : {2, 3, 4, 5, 7, 8, 9, 10, 17, 40, 100})
            for (TpxInterpolationType interpolation : kInterpolations)
                for (bool even : {false, true}) {
                    Channels<T> channels = channelsOf(form, count);
                    for (auto& p : channels) p = somePoints<T>(p.count(), unsigned(count), even);
                    checkImage(form, interpolation, channels, 64, count % 2 ? 64 : 65, Lie{}, Lie{});
                    if (this->HasFatalFailure()) return;
                }
}

// ---- Every integer sample --------------------------------------------------------------------------------

template <class T>
void everySample(const Points<T>& p) {
    using Limits = std::numeric_limits<T>;
    const auto& form = Functions<T>::forms[0];
    const int count = Limits::max() - Limits::min() + 1;
    std::vector<T> src, dst(size_t(count), T(0));
    for (int i = 0; i < count; i++) src.push_back(T(Limits::min() + i));
    for (TpxInterpolationType interpolation : kInterpolations)
        for (int width : {count, 4096}) { // of 16s the second is searched
            Spec<T> spec(interpolation, tpxChannelC1, {p});
            const int step = width * int(sizeof(T));
            for (int x = 0; x < count; x += width)
                ASSERT_EQ(form.run(src.data() + x, step, dst.data() + x, step, {std::min(width, count - x), 1},
                                   spec.data()),
                          tpxOk);
            for (size_t i = 0; i < src.size(); i++)
                ASSERT_TRUE(fits(dst[i], src[i], model(interpolation, p, src[i], p.count() < 4)))
                    << +src[i] << " became " << +dst[i] << " instead of "
                    << model(interpolation, p, src[i], p.count() < 4).low << ", interpolation " << interpolation
                    << ", " << p.count() << " levels from " << p.levels[0];
        }
}

template <class T>
class IntegerLookup : public testing::Test {};
using IntegerTypes = testing::Types<Tpx8u, Tpx16u, Tpx16s>;
TYPED_TEST_SUITE(IntegerLookup, IntegerTypes);

TYPED_TEST(IntegerLookup, EverySample) {
    using T = TypeParam;
    const Points<T> cases[] = {
        {{0, 100, 200}, {255, 0, 128}},
        // Beyond the type on either side, levels and values.
        {{-70000, -300, 5, 90, 300, 70000}, {-5, 70000, 3, -40000, 260, 9}},
        {{INT_MIN, -1, 17, INT_MAX}, {INT_MAX, INT_MIN, INT_MAX, INT_MIN}},
        {{INT_MIN, INT_MAX}, {INT_MIN, INT_MAX}},
        // Intervals of one sample; negative values are truncated toward zero but for these.
        {{10, 11, 12, 20, 21, 40}, {-5, 7, -9, -100, -3, -50}},
        {{-40, -39, -20, 0, 1, 30}, {-5, -7, -9, 100, -3, 50}},
        // Levels that repeat, and that fall: of intervals that overlap the last one counts.
        {{10, 10, 30, 30, 30, 60}, {1, 2, 3, 4, 5, 6}},
        {{10, 50, 20, 80, 5, 100}, {1, 20, 30, 40, 250, 60}},
        {{90, 80, 70, 60, 50}, {1, 2, 3, 4, 5}},
        // Wholly outside.
        {{-900000, -800000, -700000, -600000}, {1, 2, 3, 4}},
        {{600000, 700000, 800000, 900000}, {1, 2, 3, 4}},
    };
    for (const auto& p : cases) {
        everySample(p);
        if (this->HasFatalFailure()) return;
    }
    for (int count : {4, 5, 12, 200}) everySample(somePoints<T>(count, unsigned(count)));
}

// ---- Floats beyond ordinary levels ------------------------------------------------------------------------

TEST(FloatLookup, AnyLevels) {
    const auto& form = Functions<Tpx32f>::forms[0];
    const float samples[] = {-1000, -7, -1, -0.0f, 0, 0.5f, 1,     1.5f, 2,        2.5f,
                             3,     4,  6,  7.5f,  9, 20,   1e30f, NAN,  INFINITY, -INFINITY};
    const Points<Tpx32f> cases[] = {
        {{0, 5, 2, 9, 1}, {10, -20, 30, 40, 50}}, // the first interval counts
        {{9, 4, 2, 0}, {1, 2, 3, 4}},
        {{0, 0, 3, 3, 8}, {1, 2, -3, 4, 5}},
        {{0, 2, NAN, 3, 8, 9}, {1, 2, 3, 4, 5, 6}},
        {{NAN, 2, 4, NAN}, {1, 2, 3, 4}},
        {{-INFINITY, 0, 2, INFINITY}, {1, 2, 3, 4}},
        {{0, 1, 2, 3}, {NAN, INFINITY, 5, -3e38f}},
        {{-3e38f, -2e38f, 2e38f, 3e38f}, {3e38f, -3e38f, 3e38f, -3e38f}},
    };
    for (const auto& p : cases)
        for (TpxInterpolationType interpolation : kInterpolations) {
            Spec<Tpx32f> spec(interpolation, tpxChannelC1, {p});
            for (float x : samples) {
                float got[3] = {x, x, x};
                ASSERT_EQ(form.runInPlace(got, 12, {3, 1}, spec.data()), tpxOk);
                const Range range = model(interpolation, p, x, p.count() < 4);
                for (float y : got)
                    ASSERT_TRUE(fits(y, x, range) || (std::isnan(range.low) && std::isnan(y)))
                        << x << " became " << y << " instead of " << range.low << ", interpolation "
                        << interpolation << ", levels from " << p.levels[0];
            }
        }
}

// ---- Specs and statuses ----------------------------------------------------------------------------------

// The code stands at the address that was given, whatever it is, and is none of another form's. It tells the
// cubic also where that is linear.
TYPED_TEST(Lookup, CodesAtAnyAddress) {
    using T = TypeParam;
    for (const auto& form : Functions<T>::forms)
        for (int step = 0; step < 3; step++)
            for (size_t misalign = 0; misalign <= 64; misalign += step ? 13 : 1) {
                Spec<T> spec(kInterpolations[step], form.layout, channelsOf(form, 3), misalign);
                ASSERT_EQ(spec.code(), form.code + 0x10 * step);
                T pixel[4] = {};
                for (const auto& other : Functions<T>::forms)
                    ASSERT_EQ(other.runInPlace(pixel, 16, {1, 1}, spec.data()),
                              &other == &form ? tpxOk : tpxErrBadArgument);
            }
}

struct SizeCall {
    TpxInterpolationType interpolation = tpxInterpolationCubic;
    TpxDataType type = tpxDataType16s;
    TpxChannelCode layout = tpxChannelC4;
    TpxiSize size = {1, 1};
    bool counts = true, result = true;
    int count[4] = {2, 2, 2, 2};
};

template <class C>
void interpolationFaults(std::vector<Fault<C>>& faults) {
    for (int code : {0, 3, 4, 5, 7, 8, 16, -1, INT_MIN})
        faults.push_back({"interpolation", [=](C& c) { c.interpolation = code; }, tpxErrInterpolation});
}
template <class C>
void levelFaults(std::vector<Fault<C>>& faults) {
    for (int channel = 0; channel < 4; channel++)
        for (int count : {1, 0, -5, INT_MIN})
            faults.push_back({"levels", [=](C& c) { c.count[channel] = count; }, tpxErrLutLevels});
}

TEST(LookupStatus, GetSizeOrderOfChecks) {
    using C = SizeCall;
    std::vector<Fault<C>> faults;
    interpolationFaults(faults);
    faults.push_back({"counts", [](C& c) { c.counts = false; }, tpxErrNullPointer});
    faults.push_back({"result", [](C& c) { c.result = false; }, tpxErrNullPointer});
    faults.push_back({"size", [](C& c) { c.size.width = 0; }, tpxErrSize});
    faults.push_back({"size", [](C& c) { c.size.height = -1; }, tpxErrSize});
    levelFaults(faults);
    for (int type : {0, 2, 3, 19, -1}) faults.push_back({"type", [=](C& c) { c.type = type; }, tpxErrDataType});
    faults.push_back({"levels",
                      [](C& c) {
                          c.count[0] = c.count[3] = INT_MAX;
                          c.interpolation = tpxInterpolationNearest;
                      },
                      tpxErrSizeTooLarge});
    expectCheckOrder(C{}, faults, [](const C& call) {
        int size = -77;
        const TpxStatus status =
            tpxiLUT_GetSize(call.interpolation, call.type, call.layout, call.size,
                            call.counts ? call.count : nullptr, call.result ? &size : nullptr);
        EXPECT_EQ(size == -77, status != tpxOk || !call.result);
        return status;
    });
}

// Level counts are read for the channels of the layout; of an unknown layout one is, before it is told.
TEST(LookupStatus, LayoutsAndLevelCounts) {
    for (int layout = -3; layout < 20; layout++) {
        const bool known = layout == 1 || layout == 3 || layout == 4 || layout == 9;
        const size_t channels = !known || layout == 1 ? 1 : layout == 4 ? 4 : 3;
        GuardedBytes counts(channels * sizeof(int));
        auto* count = reinterpret_cast<int*>(counts.data());
        std::fill_n(count, channels, 4);
        GuardedBytes pointers(channels * sizeof(void*));
        auto* arrays = reinterpret_cast<const float**>(pointers.data());
        const float levels[] = {0, 1, 2, 3};
        std::fill_n(arrays, channels, levels);
        const auto check = [&](TpxStatus expected) {
            int size = 0;
            EXPECT_EQ(tpxiLUT_GetSize(tpxInterpolationCubic, tpxDataType32f, layout, {1, 1}, count, &size),
                      expected);
            std::vector<uint8_t> memory(4096, 0xEE);
            auto* spec = reinterpret_cast<TpxiLUT_Spec*>(memory.data());
            ASSERT_LE(size, 4096);
            EXPECT_EQ(tpxiLUT_Init_32f(tpxInterpolationCubic, layout, {1, 1}, arrays, arrays, count, spec),
                      expected);
        };
        check(known ? tpxOk : tpxErrChannelIndex);
        count[channels - 1] = 1;
        check(tpxErrLutLevels);
    }
}

TEST(LookupStatus, SizesBeyond31Bits) {
    int count = 0x7FFFFFFF / 52, size = 0;
    EXPECT_EQ(tpxiLUT_GetSize(tpxInterpolationCubic, tpxDataType32f, tpxChannelC1, {1, 1}, &count, &size),
              tpxErrSizeTooLarge);
    count -= 20;
    EXPECT_EQ(tpxiLUT_GetSize(tpxInterpolationCubic, tpxDataType32f, tpxChannelC1, {1, 1}, &count, &size),
              tpxOk);
    EXPECT_GT(size, INT_MAX - 2000);
    count = INT_MAX;
    EXPECT_EQ(tpxiLUT_GetSize(tpxInterpolationLinear, tpxDataType16u, tpxChannelC1, {1, 1}, &count, &size),
              tpxOk);
}

struct InitCall : SizeCall {
    bool values = true, levels = true, spec = true;
    int missingValues = -1, missingLevels = -1;
};

TYPED_TEST(Lookup, InitOrderOfChecks) {
    using T = TypeParam;
    using C = InitCall;
    std::vector<Fault<C>> faults;
    interpolationFaults(faults);
    faults.push_back({"size", [](C& c) { c.size.width = -1; }, tpxErrSize});
    faults.push_back({"size", [](C& c) { c.size.height = 0; }, tpxErrSize});
    faults.push_back({"values", [](C& c) { c.values = false; }, tpxErrNullPointer});
    faults.push_back({"levels array", [](C& c) { c.levels = false; }, tpxErrNullPointer});
    faults.push_back({"counts", [](C& c) { c.counts = false; }, tpxErrNullPointer});
    faults.push_back({"spec", [](C& c) { c.spec = false; }, tpxErrNullPointer});
    for (int channel = 0; channel < 4; channel++) {
        faults.push_back({"values", [=](C& c) { c.missingValues = channel; }, tpxErrNullPointer});
        faults.push_back({"levels array", [=](C& c) { c.missingLevels = channel; }, tpxErrNullPointer});
    }
    levelFaults(faults);
    const auto& form = Functions<T>::forms[2];
    const Channels<T> channels(4, somePoints<T>(2, 1));
    expectCheckOrder(C{}, faults, [&](const C& call) {
        Spec<T> spec(tpxInterpolationCubic, tpxChannelC4, channels);
        const LevelOf<T>*values[4], *levels[4];
        for (int c = 0; c < 4; c++) {
            values[c] = c == call.missingValues ? nullptr : channels[0].values.data();
            levels[c] = c == call.missingLevels ? nullptr : channels[0].levels.data();
        }
        const TpxStatus status =
            Functions<T>::init(call.interpolation, call.layout, call.size, call.values ? values : nullptr,
                               call.levels ? levels : nullptr, call.counts ? call.count : nullptr,
                               call.spec ? spec.data() : nullptr);
        // A spec that was ready is not after a call that failed.
        T pixel[4] = {};
        EXPECT_EQ(form.runInPlace(pixel, 16, {1, 1}, spec.data()),
                  status == tpxOk || !call.spec ? tpxOk : tpxErrBadArgument);
        return status;
    });
}

template <class T>
struct Call {
    bool src = true, dst = true, spec = true;
    int srcStep = 32, dstStep = 32, code = 0; // added to the code
    TpxiSize size = {2, 2};
};

TYPED_TEST(Lookup, OrderOfChecks) {
    using T = TypeParam;
    using C = Call<T>;
    for (const auto& form : Functions<T>::forms) {
        Spec<T> spec(tpxInterpolationLinear, form.layout, channelsOf(form, 4));
        for (bool inPlace : {false, true}) {
            std::vector<Fault<C>> faults = {{"destination", [](C& c) { c.dst = false; }, tpxErrNullPointer},
                                            {"spec", [](C& c) { c.spec = false; }, tpxErrNullPointer},
                                            {"destination step", [](C& c) { c.dstStep = 0; }, tpxErrStep},
                                            {"size", [](C& c) { c.size.width = 0; }, tpxErrSize},
                                            {"size", [](C& c) { c.size.height = -1; }, tpxErrSize}};
            for (int code : {1, -1, 4, -4, 0x20, -0x20, 0x30, 0x10000, -0x1234577})
                faults.push_back({"code", [=](C& c) { c.code = code; }, tpxErrBadArgument});
            if (!inPlace) {
                faults.insert(faults.begin(), {"source", [](C& c) { c.src = false; }, tpxErrNullPointer});
                faults.insert(faults.begin() + 3, {"source step", [](C& c) { c.srcStep = -32; }, tpxErrStep});
            }
            expectCheckOrder(C{}, faults, [&](const C& call) {
                const int code = spec.code(), changed = code + call.code;
                std::memcpy(spec.data(), &changed, sizeof code);
                T src[64] = {}, dst[64];
                std::fill_n(dst, 64, T(77));
                T* to = call.dst ? dst : nullptr;
                const TpxiLUT_Spec* by = call.spec ? spec.data() : nullptr;
                const TpxStatus status =
                    inPlace ? form.runInPlace(to, call.dstStep, call.size, by)
                            : form.run(call.src ? src : nullptr, call.srcStep, to, call.dstStep, call.size, by);
                for (T x : dst) EXPECT_EQ(x, T(77)) << form.name << ", status " << status;
                std::memcpy(spec.data(), &code, sizeof code);
                return status;
            });
        }
    }
}

} // namespace
