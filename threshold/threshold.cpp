// SPDX-License-Identifier: Apache-2.0
// tpxiThreshold: samples clamped or replaced against thresholds.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// ---- Rules: what happens on either side of a threshold. Operand order decides what NaN gives ------------

// Whether samples lie beyond a threshold; unsigned integers have no such instruction, but leave the threshold
// when they are limited to it.
struct Above {
    template <class V>
    static V clamp(V x, V threshold) {
        return minOf(x, threshold); // NaN gives the threshold
    }
    template <class V>
    static V replace(V x, V threshold, V value) {
        if constexpr (std::is_signed_v<LaneOf<V>>)
            return select(x > threshold, value, x);
        else
            return select(clamp(x, threshold) == x, x, value);
    }
    static V32f replace(V32f x, V32f threshold, V32f value) {
        return threshold < x ? value : x; // NaN stays
    }
};

struct Below {
    template <class V>
    static V clamp(V x, V threshold) {
        return maxOf(x, threshold); // NaN gives the threshold
    }
    template <class V>
    static V replace(V x, V threshold, V value) {
        if constexpr (std::is_signed_v<LaneOf<V>>)
            return select(x < threshold, value, x);
        else
            return select(clamp(x, threshold) == x, x, value);
    }
    static V32f replace(V32f x, V32f threshold, V32f value) {
        return threshold <= x ? x : value; // NaN gives the value
    }
};

// The lower threshold has the last word: NaN gives its value.
template <class V>
V replaceOutside(V x, V low, V lowValue, V high, V highValue) {
    const V upper = Above::replace(x, high, highValue);
    if constexpr (std::is_same_v<V, V32f>)
        return low <= x ? upper : lowValue;
    else if constexpr (std::is_signed_v<LaneOf<V>>)
        return select(x < low, lowValue, upper);
    else
        return select(Below::clamp(x, low) == x, upper, lowValue);
}

// ---- Constants and checks ---------------------------------------------------------------------------------

// One value a channel, as the registers that repeat with the pixels.
template <Layout L, class T>
struct Constant {
    explicit Constant(const T* values) {
        T pixel[4] = {};
        __builtin_memcpy(pixel, values, sizeof(T) * coloursOf(L));
        const Pattern pattern = makePattern(pixel, channelsOf(L) * int(sizeof(T)));
        for (int k = 0; k < kGroup<L>; k++)
            registers[k] = load(reinterpret_cast<const T*>(pattern.bytes) + k * kLanes<T>);
    }
    Vec<T> operator[](int k) const { return registers[k]; }

    Vec<T> registers[kGroup<L>];
};

// The images of a call. In place they are one.
template <class T>
struct Images {
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiSizeL roi;
};

// Checks of the images, then of the arrays of constants.
template <class T, class... Arrays>
TpxStatus check(const Images<T>& images, const Arrays*... arrays) {
    if (anyNull(images.src.data, images.dst.data)) return tpxErrNullPointer;
    if (isEmpty(images.roi)) return tpxErrSize;
    if (images.src.step < 1 || images.dst.step < 1) return tpxErrStep;
    return anyNull(arrays...) ? tpxErrNullPointer : tpxOk;
}

// ---- Operations ------------------------------------------------------------------------------------------

template <Layout L, class T, class Rule>
TpxStatus map(const Images<T>& images, Rule rule) {
    mapImageByChannel<L>(samplesOf(images.roi, channelsOf(L)), rule, images.dst, images.src);
    return tpxOk;
}

template <Layout L, class Rule, class T>
TpxStatus clampSide(const Images<T>& images, const T* threshold) {
    if (const TpxStatus status = check(images, threshold)) return status;
    return map<L>(images, [t = Constant<L, T>(threshold)](auto x, int k) { return Rule::clamp(x, t[k]); });
}

template <Layout L, class Rule, class T>
TpxStatus replaceSide(const Images<T>& images, const T* threshold, const T* value) {
    if (const TpxStatus status = check(images, threshold, value)) return status;
    return map<L>(images, [t = Constant<L, T>(threshold), v = Constant<L, T>(value)](auto x, int k) {
        return Rule::replace(inRegister(x), t[k], v[k]); // g++ would load it to compare and to keep it
    });
}

bool isSide(TpxCmpOp op) { return op == tpxCmpLess || op == tpxCmpGreater; }

template <Layout L, class T>
TpxStatus clampBy(const Images<T>& images, const T* threshold, TpxCmpOp op) {
    if (const TpxStatus status = check(images, threshold)) return status;
    if (!isSide(op)) return tpxErrUnsupportedMode;
    return op == tpxCmpGreater ? clampSide<L, Above>(images, threshold)
                               : clampSide<L, Below>(images, threshold);
}

// The word comes before everything else.
template <Layout L, class T>
TpxStatus replaceBy(const Images<T>& images, const T* threshold, const T* value, TpxCmpOp op) {
    if (!isSide(op)) return tpxErrUnsupportedMode;
    return op == tpxCmpGreater ? replaceSide<L, Above>(images, threshold, value)
                               : replaceSide<L, Below>(images, threshold, value);
}

template <Layout L, class T>
TpxStatus replaceBoth(const Images<T>& images, const T* thresholdLT, const T* valueLT, const T* thresholdGT,
                      const T* valueGT) {
    if (const TpxStatus status = check(images, thresholdLT, valueLT, thresholdGT, valueGT)) return status;
    for (int c = 0; c < coloursOf(L); c++)
        if (thresholdGT[c] < thresholdLT[c]) return tpxErrThresholdBounds;
    using C = Constant<L, T>;
    return map<L>(images, [low = C(thresholdLT), lowValue = C(valueLT), high = C(thresholdGT),
                           highValue = C(valueGT)](auto x, int k) {
        return replaceOutside(inRegister(x), low[k], lowValue[k], high[k], highValue[k]);
    });
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

// Each instance has two: source to destination, and in place.
#define TPX_CLAMP(T, L, name, Rule)                                                                  \
    TPX_ENTRY(name##_##T##_##L##R)                                                                   \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                   \
     Given<Layout::L, Tpx##T> threshold) {                                                           \
        return clampSide<Layout::L, Rule, Tpx##T>({{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)}, \
                                                  arrayOf(threshold));                               \
    }                                                                                                \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                  \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, Given<Layout::L, Tpx##T> threshold) {       \
        return clampSide<Layout::L, Rule, Tpx##T>(                                                   \
            {{pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)}, arrayOf(threshold));      \
    }
#define TPX_REPLACE(T, L, name, Rule)                                                                  \
    TPX_ENTRY(name##_##T##_##L##R)                                                                     \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                     \
     Given<Layout::L, Tpx##T> threshold, Given<Layout::L, Tpx##T> value) {                             \
        return replaceSide<Layout::L, Rule, Tpx##T>({{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)}, \
                                                    arrayOf(threshold), arrayOf(value));               \
    }                                                                                                  \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                    \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, Given<Layout::L, Tpx##T> threshold,           \
     Given<Layout::L, Tpx##T> value) {                                                                 \
        return replaceSide<Layout::L, Rule, Tpx##T>(                                                   \
            {{pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)}, arrayOf(threshold),         \
            arrayOf(value));                                                                           \
    }
#define TPX_CLAMP_BY(T, L, name)                                                                               \
    TPX_ENTRY(name##_##T##_##L##R)                                                                             \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                             \
     Given<Layout::L, Tpx##T> threshold, TpxCmpOp cmpOp) {                                                     \
        return clampBy<Layout::L, Tpx##T>({{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)},                   \
                                          arrayOf(threshold), cmpOp);                                          \
    }                                                                                                          \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                            \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, Given<Layout::L, Tpx##T> threshold, TpxCmpOp cmpOp) { \
        return clampBy<Layout::L, Tpx##T>({{pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)},       \
                                          arrayOf(threshold), cmpOp);                                          \
    }
#define TPX_REPLACE_BY(T, L, name)                                                                         \
    TPX_ENTRY(name##_##T##_##L##R)                                                                         \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                         \
     Given<Layout::L, Tpx##T> threshold, Given<Layout::L, Tpx##T> value, TpxCmpOp cmpOp) {                 \
        return replaceBy<Layout::L, Tpx##T>({{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)},             \
                                            arrayOf(threshold), arrayOf(value), cmpOp);                    \
    }                                                                                                      \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                        \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, Given<Layout::L, Tpx##T> threshold,               \
     Given<Layout::L, Tpx##T> value, TpxCmpOp cmpOp) {                                                     \
        return replaceBy<Layout::L, Tpx##T>({{pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)}, \
                                            arrayOf(threshold), arrayOf(value), cmpOp);                    \
    }
#define TPX_REPLACE_BOTH(T, L, name)                                                                         \
    TPX_ENTRY(name##_##T##_##L##R)                                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                           \
     Given<Layout::L, Tpx##T> thresholdLT, Given<Layout::L, Tpx##T> valueLT,                                 \
     Given<Layout::L, Tpx##T> thresholdGT, Given<Layout::L, Tpx##T> valueGT) {                               \
        return replaceBoth<Layout::L, Tpx##T>({{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)},             \
                                              arrayOf(thresholdLT), arrayOf(valueLT), arrayOf(thresholdGT),  \
                                              arrayOf(valueGT));                                             \
    }                                                                                                        \
    TPX_ENTRY(name##_##T##_##L##IR)                                                                          \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, Given<Layout::L, Tpx##T> thresholdLT,               \
     Given<Layout::L, Tpx##T> valueLT, Given<Layout::L, Tpx##T> thresholdGT,                                 \
     Given<Layout::L, Tpx##T> valueGT) {                                                                     \
        return replaceBoth<Layout::L, Tpx##T>({{pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)}, \
                                              arrayOf(thresholdLT), arrayOf(valueLT), arrayOf(thresholdGT),  \
                                              arrayOf(valueGT));                                             \
    }

#define TPX_TYPES(INSTANCE, L, ...) \
    INSTANCE(8u, L, __VA_ARGS__)    \
    INSTANCE(16u, L, __VA_ARGS__)   \
    INSTANCE(16s, L, __VA_ARGS__)   \
    INSTANCE(32f, L, __VA_ARGS__)
TPX_TYPES(TPX_CLAMP_BY, C1, tpxiThreshold)
TPX_TYPES(TPX_CLAMP_BY, C3, tpxiThreshold)
TPX_TYPES(TPX_CLAMP_BY, AC4, tpxiThreshold)
TPX_TYPES(TPX_CLAMP, C1, tpxiThreshold_GT, Above)
TPX_TYPES(TPX_CLAMP, C3, tpxiThreshold_GT, Above)
TPX_TYPES(TPX_CLAMP, AC4, tpxiThreshold_GT, Above)
TPX_TYPES(TPX_CLAMP, C1, tpxiThreshold_LT, Below)
TPX_TYPES(TPX_CLAMP, C3, tpxiThreshold_LT, Below)
TPX_TYPES(TPX_CLAMP, AC4, tpxiThreshold_LT, Below)
TPX_TYPES(TPX_REPLACE_BY, C1, tpxiThreshold_Val)
TPX_TYPES(TPX_REPLACE_BY, C3, tpxiThreshold_Val)
TPX_TYPES(TPX_REPLACE_BY, AC4, tpxiThreshold_Val)
TPX_TYPES(TPX_REPLACE, C1, tpxiThreshold_GTVal, Above)
TPX_TYPES(TPX_REPLACE, C3, tpxiThreshold_GTVal, Above)
TPX_TYPES(TPX_REPLACE, C4, tpxiThreshold_GTVal, Above)
TPX_TYPES(TPX_REPLACE, AC4, tpxiThreshold_GTVal, Above)
TPX_TYPES(TPX_REPLACE, C1, tpxiThreshold_LTVal, Below)
TPX_TYPES(TPX_REPLACE, C3, tpxiThreshold_LTVal, Below)
TPX_TYPES(TPX_REPLACE, C4, tpxiThreshold_LTVal, Below)
TPX_TYPES(TPX_REPLACE, AC4, tpxiThreshold_LTVal, Below)
TPX_TYPES(TPX_REPLACE_BOTH, C1, tpxiThreshold_LTValGTVal)
TPX_TYPES(TPX_REPLACE_BOTH, C3, tpxiThreshold_LTValGTVal)
TPX_TYPES(TPX_REPLACE_BOTH, AC4, tpxiThreshold_LTValGTVal)
#undef TPX_CLAMP
#undef TPX_REPLACE
#undef TPX_CLAMP_BY
#undef TPX_REPLACE_BY
#undef TPX_REPLACE_BOTH
#undef TPX_TYPES
