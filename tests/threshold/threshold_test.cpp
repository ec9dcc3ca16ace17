// SPDX-License-Identifier: Apache-2.0
// tpxiThreshold through the exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>

#include "models/models.h"
#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
struct Values {
    const T *low, *lowValue, *high, *highValue; // low and lowValue are the only ones of the other operations
    TpxCmpOp cmpOp;
};

enum class Op { By, Gt, Lt, Val, GtVal, LtVal, Both };

template <class T>
struct Form {
    const char* name;
    Op op;
    int channels;
    bool alpha;
    TpxStatus (*run)(const T*, int, T*, int, TpxiSize, const Values<T>&);
    TpxStatus (*runInPlace)(T*, int, TpxiSize, const Values<T>&);

    int constants() const { return alpha ? 3 : channels; }
    bool takesCmpOp() const { return op == Op::By || op == Op::Val; }
    int arrays() const { return op == Op::By || op == Op::Gt || op == Op::Lt ? 1 : op == Op::Both ? 4 : 2; }
};

#define FORM(word, op, T, L, channels, ...)                                               \
    Form<Tpx##T> {                                                                        \
        "tpxiThreshold" #word "_" #T "_" #L, Op::op, channels, std::string(#L) == "AC4",  \
            [](const Tpx##T* s, int ss, Tpx##T* d, int ds, TpxiSize z,                    \
               [[maybe_unused]] const Values<Tpx##T>& v) {                                \
                return tpxiThreshold##word##_##T##_##L##R(s, ss, d, ds, z, __VA_ARGS__);  \
            },                                                                            \
            [](Tpx##T* d, int ds, TpxiSize z, [[maybe_unused]] const Values<Tpx##T>& v) { \
                return tpxiThreshold##word##_##T##_##L##IR(d, ds, z, __VA_ARGS__);        \
            }                                                                             \
    }
#define ONE_VALUE(T, L, channels, at)                             \
    FORM(_GTVal, GtVal, T, L, channels, at v.low, at v.lowValue), \
        FORM(_LTVal, LtVal, T, L, channels, at v.low, at v.lowValue)
#define LAYOUT(T, L, channels, at)                                                                        \
    FORM(, By, T, L, channels, at v.low, v.cmpOp), FORM(_GT, Gt, T, L, channels, at v.low),               \
        FORM(_LT, Lt, T, L, channels, at v.low),                                                          \
        FORM(_Val, Val, T, L, channels, at v.low, at v.lowValue, v.cmpOp), ONE_VALUE(T, L, channels, at), \
        FORM(_LTValGTVal, Both, T, L, channels, at v.low, at v.lowValue, at v.high, at v.highValue)
#define FORMS(T)                                                                                    \
    template <>                                                                                     \
    const std::vector<Form<Tpx##T>>& forms() {                                                      \
        static const std::vector<Form<Tpx##T>> list = {LAYOUT(T, C1, 1, *), LAYOUT(T, C3, 3, ),     \
                                                       LAYOUT(T, AC4, 4, ), ONE_VALUE(T, C4, 4, )}; \
        return list;                                                                                \
    }
template <class T>
const std::vector<Form<T>>& forms();
FORMS(8u)
FORMS(16u)
FORMS(16s)
FORMS(32f)

// What a sample gives.
template <class T>
T model(Op op, T x, const Values<T>& v, int c) {
    const bool greater = v.cmpOp == tpxCmpGreater;
    if (op == Op::By) op = greater ? Op::Gt : Op::Lt;
    if (op == Op::Val) op = greater ? Op::GtVal : Op::LtVal;
    const auto row = op == Op::Gt      ? tpx::model::thresholdGt<T>
                     : op == Op::Lt    ? tpx::model::thresholdLt<T>
                     : op == Op::GtVal ? tpx::model::thresholdGtVal<T>
                     : op == Op::LtVal ? tpx::model::thresholdLtVal<T>
                                       : tpx::model::thresholdLtValGtVal<T>;
    T result;
    row(&x, &result, 1, {1, 1, v.low + c, v.lowValue + c, v.high + c, v.highValue + c});
    return result;
}

// Constants that differ from channel to channel. Their arrays end at unreadable pages.
template <class T>
class Constants {
 public:
    explicit Constants(int count) {
        for (int i = 0; i < 4; i++) memory_[i] = std::make_unique<GuardedBytes>(size_t(count) * sizeof(T));
        for (int c = 0; c < count; c++) {
            const T low = T(std::is_signed_v<T> ? 40 - 37 * c : 60 + 29 * c);
            const T values[] = {low, T(3 + 50 * c), T(low + (c == 1 ? 0 : 61)), T(250 - 71 * c)};
            for (int i = 0; i < 4; i++) array(i)[c] = values[i];
        }
    }
    T* array(int i) { return reinterpret_cast<T*>(memory_[i]->data()); }
    Values<T> values(TpxCmpOp op) { return {array(0), array(1), array(2), array(3), op}; }

 private:
    std::unique_ptr<GuardedBytes> memory_[4];
};

template <class T>
std::vector<TpxCmpOp> sides(const Form<T>& form) {
    return form.takesCmpOp() ? std::vector<TpxCmpOp>{tpxCmpLess, tpxCmpGreater} : std::vector<TpxCmpOp>{0};
}

// Samples at and beside the thresholds of their channel, random ones, and what floats have beyond numbers.
template <class T>
void fill(GuardedImage<T>& image, const Values<T>& v, int constants) {
    std::mt19937 random(unsigned(image.width()));
    image.fill([&](int, int, int c) {
        const int channel = c % constants;
        const T near = random() % 2 ? v.low[channel] : v.high[channel];
        const unsigned kind = random() % 4;
        if (kind < 2) return T(near + T(int(random() % 5) - 2));
        if (std::is_integral_v<T>) return T(random());
        const float special[] = {NAN, -NAN, INFINITY, -INFINITY, 0.0f, -0.0f, 1e-45f, 3e38f, 1e-9f, -77.25f};
        return T(special[random() % std::size(special)]);
    });
}

template <class T>
class Threshold : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Threshold, Types);

// ---- Samples --------------------------------------------------------------------------------------------

template <class T>
void checkImage(const Form<T>& form, int width, int height, Lie srcLie, Lie dstLie) {
    Constants<T> constants(form.constants());
    for (TpxCmpOp side : sides(form)) {
        const Values<T> v = constants.values(side);
        GuardedImage<T> src(width, height, form.channels, srcLie), dst(width, height, form.channels, dstLie);
        fill(src, v, form.constants());
        // Alpha of the destination before the call tells its place.
        const auto before = [](int x, int y, int) { return T(7 * x + y); };
        dst.fill(before);
        ASSERT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size(), v), tpxOk);
        ASSERT_TRUE(matches(dst, [&](int x, int y, int c) {
            return form.alpha && c == 3 ? before(x, y, c) : model(form.op, src.at(x, y, c), v, c);
        })) << form.name;
        dst.copySamplesFrom(src);
        ASSERT_EQ(form.runInPlace(dst.data(), dst.step(), dst.size(), v), tpxOk);
        ASSERT_TRUE(matches(dst,
                            [&](int x, int y, int c) {
                                return form.alpha && c == 3 ? src.at(x, y, c)
                                                            : model(form.op, src.at(x, y, c), v, c);
                            }))
            << form.name << " in place";
    }
}

TYPED_TEST(Threshold, EveryForm) {
    for (const auto& form : forms<TypeParam>()) {
        checkImage(form, 50, 4, Lie{3, Edge::End, 1}, Lie{5, Edge::Start, 3});
        if (this->HasFatalFailure()) return;
    }
}

// Every sample against thresholds and values: all of 8 bits, the edges of 16.
template <class T>
void everySample() {
    using Limits = std::numeric_limits<T>;
    const int low = Limits::min(), high = Limits::max(), count = high - low + 1;
    std::vector<T> src, some;
    for (int i = low; i <= high; i++) src.push_back(T(i));
    std::vector<T> dst = src;
    for (int i : {low, low + 1, -1, 0, 1, 127, 128, high / 2, high / 2 + 1, high - 1, high})
        some.push_back(T(i));
    const std::vector<T>& thresholds = sizeof(T) == 1 ? src : some;
    for (const Form<T>& form : forms<T>()) {
        if (form.channels != 1 || form.takesCmpOp()) continue;
        const auto check = [&](T t, T value, T upper, T upperValue) {
            const Values<T> v = {&t, &value, &upper, &upperValue, 0};
            const int step = count * int(sizeof(T));
            ASSERT_EQ(form.run(src.data(), step, dst.data(), step, {count, 1}, v), tpxOk);
            for (size_t i = 0; i < src.size(); i++)
                ASSERT_EQ(dst[i], model(form.op, src[i], v, 0)) << form.name << " of " << +src[i] << ", " << +t;
        };
        for (T t : thresholds)
            for (T value : form.op == Op::Both ? thresholds : some)
                if (form.op != Op::Both)
                    check(t, value, t, value);
                else if (value >= t) // the upper threshold
                    for (T upperValue : {T(low), T(t - 1), T(value + 1), T(high)})
                        check(t, T(upperValue ^ 0x55), value, upperValue);
    }
}
TEST(ThresholdIntegers, EverySample) {
    everySample<Tpx8u>();
    everySample<Tpx16u>();
    everySample<Tpx16s>();
}

TEST(ThresholdFloats, NaNInSamplesAndThresholds) {
    const float edges[] = {NAN, -INFINITY, -1.0f, -0.0f, 0.0f, 1e-45f, 2.0f, INFINITY};
    for (const auto& form : forms<Tpx32f>())
        for (float low : edges)
            for (float high : edges)
                for (float x : edges) {
                    if (form.channels != 1 || form.takesCmpOp() || high < low) continue;
                    const float value = 7, highValue = NAN;
                    const Values<float> v = {&low, &value, &high, &highValue, 0};
                    std::vector<float> samples(19, x);
                    ASSERT_EQ(form.runInPlace(samples.data(), 76, {19, 1}, v), tpxOk);
                    for (float got : samples)
                        ASSERT_TRUE(sameBits(got, model(form.op, x, v, 0)))
                            << form.name << " of " << x << ", " << low << ", " << high << ": " << got;
                }
}

// ---- Statuses -------------------------------------------------------------------------------------------

template <class T>
struct Call {
    bool src = true, dst = true;
    bool arrays[4] = {true, true, true, true};
    TpxiSize size = {2, 2};
    int srcStep = 32, dstStep = 32;
    TpxCmpOp cmpOp = tpxCmpGreater;
    int crossed = -1; // the channel whose upper threshold is below the lower one
};

template <class T>
std::vector<Fault<Call<T>>> faultsOf(const Form<T>& form, bool inPlace) {
    using C = Call<T>;
    std::vector<Fault<C>> list, modes;
    for (int op : {1, 2, 3, 5, -1, INT_MAX})
        modes.push_back({"mode", [=](C& c) { c.cmpOp = op; }, tpxErrUnsupportedMode});
    if (form.op == Op::Val) list = modes;
    if (!inPlace) list.push_back({"source", [](C& c) { c.src = false; }, tpxErrNullPointer});
    list.push_back({"destination", [](C& c) { c.dst = false; }, tpxErrNullPointer});
    list.push_back({"size", [](C& c) { c.size.width = 0; }, tpxErrSize});
    list.push_back({"size", [](C& c) { c.size.height = -1; }, tpxErrSize});
    if (!inPlace) list.push_back({"source step", [](C& c) { c.srcStep = 0; }, tpxErrStep});
    list.push_back({"destination step", [](C& c) { c.dstStep = -32; }, tpxErrStep});
    for (int i = 0; i < form.arrays() && form.channels > 1; i++)
        list.push_back({"array", [=](C& c) { c.arrays[i] = false; }, tpxErrNullPointer});
    if (form.op == Op::By) list.insert(list.end(), modes.begin(), modes.end());
    for (int channel = 0; channel < form.constants() && form.op == Op::Both; channel++)
        list.push_back({"bounds", [=](C& c) { c.crossed = channel; }, tpxErrThresholdBounds});
    return list;
}

TYPED_TEST(Threshold, OrderOfChecks) {
    using T = TypeParam;
    for (const Form<T>& form : forms<T>())
        for (bool inPlace : {false, true})
            expectCheckOrder(Call<T>{}, faultsOf(form, inPlace), [&](const Call<T>& call) {
                Constants<T> constants(form.constants());
                if (call.crossed >= 0)
                    constants.array(2)[call.crossed] = T(constants.array(0)[call.crossed] - 1);
                const auto array = [&](int i) { return call.arrays[i] ? constants.array(i) : nullptr; };
                const Values<T> v = {array(0), array(1), array(2), array(3), call.cmpOp};
                T src[64] = {}, dst[64];
                std::fill_n(dst, 64, T(77));
                T* to = call.dst ? dst : nullptr;
                const TpxStatus status =
                    inPlace ? form.runInPlace(to, call.dstStep, call.size, v)
                            : form.run(call.src ? src : nullptr, call.srcStep, to, call.dstStep, call.size, v);
                for (T x : dst) EXPECT_EQ(x, T(77)) << form.name << ", status " << status;
                return status;
            });
}

TEST(ThresholdStatus, BoundsWithNaNPass) {
    float low[] = {NAN, 1, 5}, high[] = {-3, NAN, 5}, values[] = {8, 9, 10}, pixel[] = {2, 3, 5};
    EXPECT_EQ(tpxiThreshold_LTValGTVal_32f_C3IR(pixel, 12, {1, 1}, low, values, high, values), tpxOk);
    EXPECT_EQ(std::vector<float>(pixel, pixel + 3), (std::vector<float>{8, 3, 5}));
}

} // namespace
