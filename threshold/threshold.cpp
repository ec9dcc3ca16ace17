// SPDX-License-Identifier: Apache-2.0
// tpxiThreshold: samples clamped or replaced against thresholds.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// ---- Rules: what happens on either side of a threshold. Operand order decides what NaN gives ------------

// Of bytes, the top bit of average(x, ~t) tells whether x >= t, and is all that select() asks for; of 16 bits,
// there are comparisons of signed samples alone. So replace() takes thresholds, and their values, that are
// prepared for it.
inline V16s asSigned(V16s x) { return x; }
inline V16s asSigned(V16u x) { return V16s(x ^ splat<V16u>(0x8000)); }
inline void toSigned(Tpx16u& threshold) { threshold ^= 0x8000; }
inline void toSigned(Tpx16s&) {}

struct Above {
    template <class V>
    static V clamp(V x, V threshold) {
        return minOf(x, threshold); // NaN gives the threshold
    }

    template <class T>
    static void prepare(T& threshold, T& value) {
        if constexpr (sizeof(T) == 1) {
            const bool none = threshold == kMax<T>; // has no next: the largest sample is replaced by itself
            if (none) value = kMax<T>;
            threshold = T(~(threshold + !none));
        } else if constexpr (sizeof(T) == 2) {
            toSigned(threshold);
        }
    }
    template <class V>
    static V replace(V x, V threshold, V value, V otherwise) {
        if constexpr (std::is_same_v<V, V32f>)
            return threshold < x ? value : otherwise; // NaN stays
        else if constexpr (std::is_same_v<V, V8u>)
            return select(average(x, threshold), value, otherwise);
        else
            return select(asSigned(x) > V16s(threshold), value, otherwise);
    }
};

struct Below {
    template <class V>
    static V clamp(V x, V threshold) {
        return maxOf(x, threshold); // NaN gives the threshold
    }

    template <class T>
    static void prepare(T& threshold, T&) {
        if constexpr (sizeof(T) == 1)
            threshold = T(~threshold);
        else if constexpr (sizeof(T) == 2)
            toSigned(threshold);
    }
    template <class V>
    static V replace(V x, V threshold, V value, V otherwise) {
        if constexpr (std::is_same_v<V, V32f>)
            return threshold <= x ? otherwise : value; // NaN gives the value
        else if constexpr (std::is_same_v<V, V8u>)
            return select(average(x, threshold), otherwise, value);
        else
            return select(asSigned(x) < V16s(threshold), value, otherwise);
    }
};

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

// The thresholds and values of one side.
template <Layout L, class Rule, class T>
struct Replacement {
    static Replacement of(const T* thresholds, const T* values) {
        T threshold[coloursOf(L)], value[coloursOf(L)];
        __builtin_memcpy(threshold, thresholds, sizeof threshold);
        __builtin_memcpy(value, values, sizeof value);
        for (int c = 0; c < coloursOf(L); c++) Rule::prepare(threshold[c], value[c]);
        return {Constant<L, T>(threshold), Constant<L, T>(value)};
    }
    Vec<T> operator()(Vec<T> x, int k, Vec<T> otherwise) const {
        return Rule::replace(x, threshold[k], value[k], otherwise);
    }

    Constant<L, T> threshold, value;
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
    return map<L>(images,
                  Light{[t = Constant<L, T>(threshold)](auto x, int k) { return Rule::clamp(x, t[k]); }});
}

template <Layout L, class Rule, class T>
TpxStatus replaceSide(const Images<T>& images, const T* threshold, const T* value) {
    if (const TpxStatus status = check(images, threshold, value)) return status;
    return map<L>(images, Light{[side = Replacement<L, Rule, T>::of(threshold, value)](auto sample, int k) {
                      const auto x = inRegister(sample); // g++ would load it to compare and to keep it
                      return side(x, k, x);
                  }});
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
    // The lower threshold has the last word: NaN gives its value.
    const auto rule = [below = Replacement<L, Below, T>::of(thresholdLT, valueLT),
                       above = Replacement<L, Above, T>::of(thresholdGT, valueGT)](auto sample, int k) {
        const auto x = inRegister(sample);
        return below(x, k, above(x, k, x));
    };
    if constexpr (sizeof(T) == 1)
        return map<L>(images, Light{rule});
    else
        return map<L>(images, rule);
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
