// SPDX-License-Identifier: Apache-2.0
// The conversions as data: every exported name with what it should make of a sample.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>

#include "models/conversion.h"
#include "tests/support/guarded.h"

namespace tpx::test {

// ---- Forms ----------------------------------------------------------------------------------------------

enum class Kind { Widening, Saturating, Rounding, Positive, Scaled };

template <class SourceType, class DestinationType>
struct ConvertForm {
    using S = SourceType;
    using D = DestinationType;
    const char* name;
    Kind kind;
    int channels;
    bool keepsAlpha;
    int zeroAbove; // of scaled integers
    std::function<TpxStatus(const S*, int, D*, int, TpxiSize, int mode, int scaleFactor)> run;

    D model(S x, int mode, int n) const {
        if constexpr (std::is_floating_point_v<S>)
            return tpx::model::real<D>(x, mode, n);
        else if constexpr (std::is_floating_point_v<D>)
            return D(x);
        else
            return kind == Kind::Scaled ? tpx::model::scaled<D>(x, mode, n, zeroAbove)
                                        : tpx::model::saturate<D>(Tpx64s(x));
    }
};

// Calls body(form) with each.
template <class Body>
void eachConvertForm(Body body) {
#define PLAIN(kind, s, d, L, channels, alpha, flags)                                                        \
    body(ConvertForm<Tpx##s, Tpx##d>{#s #d "_" #L, kind, channels, alpha, 0,                                \
                                     [](const Tpx##s* p, int ps, Tpx##d* q, int qs, TpxiSize z, int, int) { \
                                         return tpxiConvert_##s##d##_##L##flags(p, ps, q, qs, z);           \
                                     }})
#define PLAIN_LAYOUTS(kind, s, d)       \
    PLAIN(kind, s, d, C1, 1, false, R); \
    PLAIN(kind, s, d, C3, 3, false, R); \
    PLAIN(kind, s, d, C4, 4, false, R); \
    PLAIN(kind, s, d, AC4, 4, true, R)
#define ROUNDING(s, d, L, channels, alpha)                                                                    \
    body(ConvertForm<Tpx##s, Tpx##d>{#s #d "_" #L, Kind::Rounding, channels, alpha, 0,                        \
                                     [](const Tpx##s* p, int ps, Tpx##d* q, int qs, TpxiSize z, int m, int) { \
                                         return tpxiConvert_##s##d##_##L##R(p, ps, q, qs, z, m);              \
                                     }})
#define ROUNDING_LAYOUTS(s, d)    \
    ROUNDING(s, d, C1, 1, false); \
    ROUNDING(s, d, C3, 3, false); \
    ROUNDING(s, d, C4, 4, false); \
    ROUNDING(s, d, AC4, 4, true)
#define SCALED(s, d, zeroAbove)                                                         \
    body(ConvertForm<Tpx##s, Tpx##d>{#s #d "_C1Sfs", Kind::Scaled, 1, false, zeroAbove, \
                                     tpxiConvert_##s##d##_C1RSfs})
    PLAIN_LAYOUTS(Kind::Widening, 8u, 16u);
    PLAIN_LAYOUTS(Kind::Widening, 8u, 16s);
    PLAIN_LAYOUTS(Kind::Widening, 8u, 32s);
    PLAIN_LAYOUTS(Kind::Widening, 8u, 32f);
    PLAIN_LAYOUTS(Kind::Widening, 8s, 32s);
    PLAIN_LAYOUTS(Kind::Widening, 8s, 32f);
    PLAIN_LAYOUTS(Kind::Widening, 16u, 32s);
    PLAIN_LAYOUTS(Kind::Widening, 16u, 32f);
    PLAIN_LAYOUTS(Kind::Widening, 16s, 32s);
    PLAIN_LAYOUTS(Kind::Widening, 16s, 32f);
    PLAIN(Kind::Widening, 8s, 16s, C1, 1, false, R);
    PLAIN(Kind::Widening, 16u, 32u, C1, 1, false, R);
    PLAIN(Kind::Widening, 32s, 32f, C1, 1, false, R);
    PLAIN(Kind::Widening, 32u, 32f, C1, 1, false, R);
    PLAIN(Kind::Widening, 8s, 64f, C1, 1, false, R);
    PLAIN_LAYOUTS(Kind::Saturating, 16u, 8u);
    PLAIN_LAYOUTS(Kind::Saturating, 16s, 8u);
    PLAIN_LAYOUTS(Kind::Saturating, 32s, 8u);
    PLAIN_LAYOUTS(Kind::Saturating, 32s, 8s);
    ROUNDING_LAYOUTS(32f, 8u);
    ROUNDING_LAYOUTS(32f, 8s);
    ROUNDING_LAYOUTS(32f, 16u);
    ROUNDING_LAYOUTS(32f, 16s);
    PLAIN(Kind::Positive, 8s, 8u, C1, 1, false, Rs);
    PLAIN(Kind::Positive, 8s, 16u, C1, 1, false, Rs);
    PLAIN(Kind::Positive, 8s, 32u, C1, 1, false, Rs);
    PLAIN(Kind::Positive, 16s, 16u, C1, 1, false, Rs);
    PLAIN(Kind::Positive, 16s, 32u, C1, 1, false, Rs);
    PLAIN(Kind::Positive, 32s, 32u, C1, 1, false, Rs);
    SCALED(8u, 8s, 8);
    SCALED(16s, 8s, 17);
    SCALED(16u, 8s, 15);
    SCALED(16u, 16s, 16);
    SCALED(32s, 16s, 31);
    SCALED(32s, 16u, 31);
    SCALED(32u, 8s, 15);
    SCALED(32u, 8u, 15);
    SCALED(32u, 16s, 31);
    SCALED(32u, 16u, 33);
    SCALED(32u, 32s, 32);
    SCALED(32f, 8s, 0);
    SCALED(32f, 8u, 0);
    SCALED(32f, 16s, 0);
    SCALED(32f, 16u, 0);
    SCALED(32f, 32s, 0);
    SCALED(32f, 32u, 0);
    SCALED(64f, 8s, 0);
    SCALED(64f, 8u, 0);
    SCALED(64f, 16s, 0);
    SCALED(64f, 16u, 0);
#undef PLAIN
#undef PLAIN_LAYOUTS
#undef ROUNDING
#undef ROUNDING_LAYOUTS
#undef SCALED
}

// ---- Samples --------------------------------------------------------------------------------------------

template <class T>
T fromBits(Tpx64u bits) {
    T v;
    std::memcpy(&v, &bits, sizeof v);
    return v;
}

// All samples of up to 16 bits. Of the wider: all powers of two, halves between integers and the limits of the
// narrower types with their neighbours, of both signs; infinities, NaNs, denormals; and random bits.
template <class T>
std::vector<T> tellingSamples() {
    std::vector<T> values;
    std::mt19937_64 random(1);
    if constexpr (sizeof(T) <= 2) {
        for (int i = 0; i < 1 << (8 * sizeof(T)); i++) values.push_back(T(i));
    } else if constexpr (std::is_integral_v<T>) {
        for (int shift = 0; shift < 32; shift++)
            for (Tpx64s high : {1, 3, 5, 127, 128, 255, 256, 32767, 32768, 65535})
                for (Tpx64s off = -2; off <= 2; off++) {
                    values.push_back(T((high << shift) + off));
                    values.push_back(T(-(high << shift) + off));
                }
        for (int i = 0; i < 4000; i++) values.push_back(T(random() >> random() % 40));
    } else {
        using L = std::numeric_limits<T>;
        std::vector<T> middles = {0, L::infinity(), L::max(), L::min(), L::denorm_min(), 5 * L::denorm_min()};
        for (int i = 0; i < 20; i++) middles.push_back(T(i) + T(0.5));
        for (T limit : {127, 128, 255, 256, 32767, 32768, 65535, 65536})
            for (T off : {T(-0.5), T(0), T(0.5)}) middles.push_back(limit + off);
        for (int e = L::min_exponent - 30; e<L::max_exponent; e += e> - 4 && e < 40 ? 1 : 3)
            for (T m : {T(1), T(1.5), T(1.25)}) middles.push_back(std::ldexp(m, e));
        for (T m : middles)
            for (T v : {m, std::nextafter(m, T(0)), std::nextafter(m, L::infinity())})
                for (T sign : {T(1), T(-1)}) values.push_back(v * sign);
        for (T sign : {T(1), T(-1)}) values.push_back(std::copysign(L::quiet_NaN(), sign));
        for (int i = 0; i < 2000; i++) values.push_back(fromBits<T>(random()));
        std::uniform_real_distribution<double> near(-70000, 70000);
        for (int i = 0; i < 2000; i++) values.push_back(T(near(random)));
    }
    return values;
}

} // namespace tpx::test
