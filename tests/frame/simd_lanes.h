// SPDX-License-Identifier: Apache-2.0
// Registers that take in many samples, for tests of SIMD operations lane by lane: all 8-bit samples in pairs,
// all 16-bit samples against edge values, floats that are special or tie.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/simd/simd.h"
#include "tests/support/guarded.h"

namespace tpx::test {

inline constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
inline constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Operands: all values of the narrow types, telling ones of the wide; and what each of them is paired with.
template <class T>
std::vector<T> allOf() {
    std::vector<T> values;
    if constexpr (std::is_same_v<T, float>) {
        values = {0.0f,  -0.0f,  1,      -1,      0.5f,      1.5f,       2.5f,       -0.5f, -2.5f, 0.49999997f,
                  3e38f, -3e38f, 1e-42f, -1e-42f, kInfinity, -kInfinity, 8388607.5f, 1e9f,  kNan,  -kNan};
    } else if constexpr (sizeof(T) == 4) {
        std::mt19937 random(1);
        for (uint32_t i = 0; i < 40; i++)
            for (uint32_t edge : {0u, 127u, 255u, 32767u, 65535u, 0x7FFFFFFFu}) {
                values.push_back(T(edge + i % 3 - 1));
                values.push_back(T(-edge + i % 3));
            }
        for (int i = 0; i < 2000; i++) values.push_back(T(random() >> random() % 32));
    } else {
        for (int64_t v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); v++)
            values.push_back(T(v));
    }
    return values;
}

template <class T>
std::vector<T> edgesOf() {
    if constexpr (sizeof(T) == 1 || std::is_same_v<T, float>) {
        return allOf<T>();
    } else {
        constexpr int64_t kMin = std::numeric_limits<T>::min(), kMax = std::numeric_limits<T>::max();
        std::vector<T> values;
        for (int64_t base : {kMin, int64_t{0}, int64_t{255}, kMax / 2, kMax})
            for (int64_t v = base - 2; v <= base + 2; v++)
                if (v >= kMin && v <= kMax) values.push_back(T(v));
        return values;
    }
}

// Registers that take in all values in turn; every lane differs from its neighbours.
template <class T, class Body>
void eachRegister(const std::vector<T>& values, Body body) {
    constexpr size_t L = size_t(kLanes<T>);
    for (size_t i = 0; i < values.size(); i += L) {
        T lanes[L];
        for (size_t k = 0; k < L; k++) lanes[k] = values[(i + k) % values.size()];
        body(load(lanes));
    }
}

// operation(a, b) is model(a, b) in every lane, for registers of T and plain samples.
template <class T, class Operation, class Model>
void checkPairs(const char* name, Operation operation, Model model) {
    for (T b : edgesOf<T>())
        eachRegister(allOf<T>(), [&](Vec<T> a) {
            const auto r = operation(a, splat<Vec<T>>(b)), swapped = operation(splat<Vec<T>>(b), a);
            for (int i = 0; i < kLanes<T>; i++) {
                using R = std::remove_cvref_t<decltype(r[0])>;
                const T x = a[i];
                ASSERT_TRUE(sameBits<R>(r[i], R(model(x, b)))) << name << " of " << +x << ", " << +b;
                ASSERT_TRUE(sameBits<R>(swapped[i], R(model(b, x)))) << name << " of " << +b << ", " << +x;
            }
        });
}

// The same for operations of one operand whose result has as many lanes.
template <class T, class Operation, class Model>
void checkEach(const char* name, Operation operation, Model model) {
    eachRegister(allOf<T>(), [&](Vec<T> a) {
        const auto r = operation(a);
        for (int i = 0; i < kLanes<T>; i++) {
            using R = std::remove_cvref_t<decltype(r[0])>;
            const T x = a[i];
            ASSERT_TRUE(sameBits<R>(r[i], R(model(x)))) << name << " of " << +x;
        }
    });
}

template <class T>
int64_t saturate(int64_t v) {
    return std::clamp<int64_t>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

// The lanes of a pair in order.
template <class V>
auto lane(const Pair<V>& p, int i) {
    constexpr int kHalf = int(sizeof(V) / sizeof(LaneOf<V>));
    return i < kHalf ? p.low[i] : p.high[i - kHalf];
}

} // namespace tpx::test
