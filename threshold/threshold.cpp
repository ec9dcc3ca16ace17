// tpxiThreshold: samples clamped or replaced against thresholds.
#include "frame/entry/entry.h"
#include "frame/runs/memory_runs.h"

namespace tpx {
namespace {

// ---- Rules: what happens on either side of a threshold. Operand order decides what NaN gives ------------

// Integers: where clamping changed a sample it left the threshold, which is exchanged for the value.
template <class V>
V exchange(V x, V clamped, V threshold, V value) {
    return clamped ^ without(clamped == x, threshold ^ value);
}

struct Above {
    template <class V>
    static V clamp(V x, V threshold) {
        return minOf(x, threshold); // NaN gives the threshold
    }
    template <class V>
    static V replace(V x, V threshold, V value) {
        return exchange(x, clamp(x, threshold), threshold, value);
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
        return exchange(x, clamp(x, threshold), threshold, value);
    }
    static V32f replace(V32f x, V32f threshold, V32f value) {
        return threshold <= x ? x : value; // NaN gives the value
    }
};

// A replaced sample is not compared again: clamping to the lower threshold, which is not above the upper one,
// keeps it from the upper one.
template <class V>
V replaceOutside(V x, V low, V lowValue, V high, V highValue) {
    const V raised = Below::clamp(x, low), clamped = Above::clamp(raised, high);
    return exchange(raised, clamped, high, highValue) ^ without(raised == x, low ^ lowValue);
}
inline V32f replaceOutside(V32f x, V32f low, V32f lowValue, V32f high, V32f highValue) {
    const V32f upper = Above::replace(x, high, highValue);
    return low <= x ? upper : lowValue; // the lower threshold has the last word: NaN gives its value
}

// ---- One walk for all layouts ----------------------------------------------------------------------------

template <class T>
struct Images {
    const T* src;
    ptrdiff_t srcStep;
    T* dst;
    ptrdiff_t dstStep;
    TpxiSize roi;
};

// Pixels of three samples have three registers of constants, which repeat.
template <Layout L>
inline constexpr int kGroup = L == Layout::C3 ? 3 : 1;

// One value a channel, as registers. Of AC4 three are read.
template <Layout L, class T>
struct Constant {
    explicit Constant(const T* values) {
        T pixel[4] = {};
        __builtin_memcpy(pixel, values, sizeof(T) * (L == Layout::AC4 ? 3 : channelsOf(L)));
        const Pattern pattern = makePattern(pixel, channelsOf(L) * int(sizeof(T)));
        for (int k = 0; k < kGroup<L>; k++)
            registers[k] = load(reinterpret_cast<const T*>(pattern.bytes) + k * kLanes<T>);
    }
    Vec<T> operator[](int k) const { return registers[k]; }

    Vec<T> registers[kGroup<L>];
};

// Checks of the images, then of the arrays of constants.
template <class T, class... Arrays>
TpxStatus check(const Images<T>& images, const Arrays*... arrays) {
    if (anyNull(images.src, images.dst)) return tpxErrNullPointer;
    if (isEmpty(images.roi)) return tpxErrSize;
    if (images.srcStep < 1 || images.dstStep < 1) return tpxErrStep;
    return anyNull(arrays...) ? tpxErrNullPointer : tpxOk;
}

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
constexpr uint64_t kFloor = 4194304;

// dst = rule(src, k) with k the register's place in its group.
template <Layout L, class T, class Rule>
void mapImages(const Images<T>& images, Rule rule) {
    ptrdiff_t len = ptrdiff_t(images.roi.width) * channelsOf(L), height = images.roi.height;
    joinRows(len, height, sizeof(T), images.srcStep, images.dstStep);
    const uint64_t traffic = 2 * uint64_t(len) * uint64_t(height) * sizeof(T);
    const bool stream = L != Layout::AC4 && images.src != images.dst && exceedsCache(traffic, kFloor);
    walkRows(images.src, images.srcStep, images.dst, images.dstStep, height, [&](const T* s, T* d) {
        const auto single = [&](auto x) { return rule(x, 0); };
        const auto cached = [&](T* to, ptrdiff_t n, const T* from) {
            if constexpr (L == Layout::C1)
                mapRun(from, to, n, single);
            else
                mapGroups<kGroup<L>>(from, to, n, rule);
        };
        // A line that is streamed begins with a pixel of four only if the row does.
        const bool linesOfPixels = L != Layout::C4 || reinterpret_cast<uintptr_t>(d) % (4 * sizeof(T)) == 0;
        if constexpr (L == Layout::AC4)
            mapColours<T>(s, d, len, single);
        else if (stream && linesOfPixels)
            streamGroups<kGroup<L>>(s, d, len, rule, cached);
        else
            cached(d, len, s);
    });
    if (stream) streamFence();
}

// ---- Operations ------------------------------------------------------------------------------------------

template <Layout L, class Side, class T>
TpxStatus clampSide(const Images<T>& images, const T* threshold) {
    if (const TpxStatus status = check(images, threshold)) return status;
    mapImages<L>(images, [t = Constant<L, T>(threshold)](auto x, int k) { return Side::clamp(x, t[k]); });
    return tpxOk;
}

template <Layout L, class Side, class T>
TpxStatus replaceSide(const Images<T>& images, const T* threshold, const T* value) {
    if (const TpxStatus status = check(images, threshold, value)) return status;
    mapImages<L>(images, [t = Constant<L, T>(threshold), v = Constant<L, T>(value)](auto x, int k) {
        return Side::replace(x, t[k], v[k]);
    });
    return tpxOk;
}

bool isSide(TpxCmpOp op) { return op == tpxCmpLess || op == tpxCmpGreater; }

template <Layout L, class T>
TpxStatus clampBy(const Images<T>& images, const T* threshold, TpxCmpOp op) {
    if (const TpxStatus status = check(images, threshold)) return status;
    if (!isSide(op)) return tpxErrUnsupportedMode;
    return op == tpxCmpGreater ? clampSide<L, Above>(images, threshold)
                               : clampSide<L, Below>(images, threshold);
}

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
    for (int c = 0; c < (L == Layout::C1 ? 1 : 3); c++)
        if (thresholdGT[c] < thresholdLT[c]) return tpxErrThresholdBounds;
    using C = Constant<L, T>;
    mapImages<L>(images,
                 [low = C(thresholdLT), lowValue = C(valueLT), high = C(thresholdGT), highValue = C(valueGT)](
                     auto x, int k) { return replaceOutside(x, low[k], lowValue[k], high[k], highValue[k]); });
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

// The two forms of a name: source to destination, and in place. `constants` are the parameters after the size,
// in parentheses; `call` is the operation and `arguments` what it is given after the images.
#define TPX_UNWRAP(...) __VA_ARGS__
#define TPX_THRESHOLD(name, T, L, constants, call, ...)                                                    \
    TPX_ENTRY(tpxiThreshold##name##_##T##_##L##R)                                                          \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, TPX_UNWRAP constants) { \
        using namespace tpx;                                                                               \
        return TPX_UNWRAP call(Images<Tpx##T>{pSrc, srcStep, pDst, dstStep, roiSize}, __VA_ARGS__);        \
    }                                                                                                      \
    TPX_ENTRY(tpxiThreshold##name##_##T##_##L##IR)                                                         \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, TPX_UNWRAP constants) {                           \
        using namespace tpx;                                                                               \
        return TPX_UNWRAP call(Images<Tpx##T>{pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize},          \
                               __VA_ARGS__);                                                               \
    }

// A constant of a layout: a sample for C1, whose address the operations take, or an array.
#define TPX_SAMPLE(T, name) Tpx##T name
#define TPX_ARRAY(T, name) const Tpx##T name[]

#define TPX_ONE_VALUE(T, L, P, at)                                                                             \
    TPX_THRESHOLD(_GTVal, T, L, (P(T, threshold), P(T, value)), (replaceSide<Layout::L, Above>), at threshold, \
                  at value)                                                                                    \
    TPX_THRESHOLD(_LTVal, T, L, (P(T, threshold), P(T, value)), (replaceSide<Layout::L, Below>), at threshold, \
                  at value)
#define TPX_LAYOUT(T, L, P, at)                                                                            \
    TPX_THRESHOLD(, T, L, (P(T, threshold), TpxCmpOp cmpOp), (clampBy<Layout::L>), at threshold, cmpOp)    \
    TPX_THRESHOLD(_GT, T, L, (P(T, threshold)), (clampSide<Layout::L, Above>), at threshold)               \
    TPX_THRESHOLD(_LT, T, L, (P(T, threshold)), (clampSide<Layout::L, Below>), at threshold)               \
    TPX_THRESHOLD(_Val, T, L, (P(T, threshold), P(T, value), TpxCmpOp cmpOp), (replaceBy<Layout::L>),      \
                  at threshold, at value, cmpOp)                                                           \
    TPX_ONE_VALUE(T, L, P, at)                                                                             \
    TPX_THRESHOLD(_LTValGTVal, T, L, (P(T, thresholdLT), P(T, valueLT), P(T, thresholdGT), P(T, valueGT)), \
                  (replaceBoth<Layout::L>), at thresholdLT, at valueLT, at thresholdGT, at valueGT)
#define TPX_TYPE(T)                  \
    TPX_LAYOUT(T, C1, TPX_SAMPLE, &) \
    TPX_LAYOUT(T, C3, TPX_ARRAY, )   \
    TPX_LAYOUT(T, AC4, TPX_ARRAY, )  \
    TPX_ONE_VALUE(T, C4, TPX_ARRAY, )
TPX_TYPE(8u)
TPX_TYPE(16u)
TPX_TYPE(16s)
TPX_TYPE(32f)
