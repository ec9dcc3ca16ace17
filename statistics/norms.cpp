// Norms of an image, of the difference of two, and of the difference relative to the second.
#include "frame/entry/entry.h"
#include "frame/runs/routines.h"
#include "statistics/extremes.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

// ---- Terms ----------------------------------------------------------------------------------------------

// |x|, and the exact |x - y|; of integers, as unsigned ones.
struct Magnitude {
    static V32f of(V32f x) { return absSat(x); }
    static V64f of(V64f x) { return absSat(x); }
    static V32f of(V32f x, V32f y) { return absSat(x - y); }
    static V64f of(V64f x, V64f y) { return absSat(x - y); }

    template <class V>
    static auto of(V x) {
        return magnitude(x);
    }
    static V8u of(V8u x, V8u y) { return subSat(x, y) | subSat(y, x); }
    static V16u of(V16u x, V16u y) { return subSat(x, y) | subSat(y, x); }
    static V16u of(V16s x, V16s y) { return V16u(maxOf(x, y)) - V16u(minOf(x, y)); }
};
struct Square {
    template <class V>
    static V of(V x) {
        return x * x;
    }
    template <class V>
    static V of(V x, V y) {
        return (x - y) * (x - y);
    }
};

// ---- Kinds: what is gathered from one source or two, and what comes of it -------------------------------

template <class T>
using Unsigned = std::make_unsigned_t<T>;

// The same interface as that of a tally, for the largest term.
template <class T, int C, class U>
class Largest {
    TermLanes<T, Magnitude, ExtremeLanes<U, C, Most>> lanes;
    ptrdiff_t room = kEndless;

 public:
    template <class... Src>
    void run(ptrdiff_t len, const Src*... src) {
        takeRun(
            lanes, room, [](auto&) {}, len, src...);
    }
    Tpx64f value(int, int channel) const {
        const U largest = lanes.template of<Most>(channel);
        return largest > 0 ? Tpx64f(largest) : 0; // nothing but NaN is 0
    }
};

struct Inf {
    template <class T, int C, class Real, int Sources>
    static auto gather() {
        if constexpr (std::is_same_v<T, Tpx32f>)
            return std::type_identity<Largest<T, C, T>>{};
        else
            return std::type_identity<Largest<T, C, Unsigned<T>>>{};
    }
    static Tpx64f norm(Tpx64f largest) { return largest; }
};

struct L1 {
    template <class T, int C, class Real, int Sources>
    static auto gather() {
        if constexpr (std::is_same_v<T, Tpx32f>)
            return std::type_identity<Tally<RealLanes<T, C, Real, Real, Magnitude>>>{};
        else
            return std::type_identity<Tally<TermLanes<T, Magnitude, SumLanes<Unsigned<T>, C>>>>{};
    }
    static Tpx64f norm(Tpx64f sum) { return sum; }
};

struct L2 {
    template <class T, int C, class Real, int Sources>
    static auto gather() {
        if constexpr (std::is_same_v<T, Tpx32f>)
            return std::type_identity<Tally<RealLanes<T, C, Real, Real, Square>>>{};
        else if constexpr (Sources == 1)
            return std::type_identity<Tally<SquareLanes<T, C>>>{};
        else
            return std::type_identity<Tally<TermLanes<T, Magnitude, SquareLanes<Unsigned<T>, C>>>>{};
    }
    static Tpx64f norm(Tpx64f sum) { return TPXS(SqrtOne)(sum); }
};

template <class Kind, class T, int C, class Real, int Sources>
using GatherOf = typename decltype(Kind::template gather<T, C, Real, Sources>())::type;

// ---- Images ---------------------------------------------------------------------------------------------

template <class Kind, int C, class Real, class T>
TpxStatus norm(const T* src, int step, TpxiSize size, Tpx64f* values) {
    if (anyNull(src) || anyNull(values)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    if (step < 1) return tpxErrStep;

    GatherOf<Kind, T, C, Real, 1> gather;
    forRuns<C>(
        size, [&](ptrdiff_t len, const T* x) { gather.run(len, x); }, src, step);
    for (int c = 0; c < C; c++) values[c] = Kind::norm(gather.value(C, c));
    return tpxOk;
}

// What both norms of two images share: the checks, and run(len, x, y) for their runs.
template <int C, class T, class Run>
TpxStatus checkedRuns(const T* src1, int src1Step, const T* src2, int src2Step, TpxiSize size,
                      const Tpx64f* values, Run run) {
    if (anyNull(src1, src2) || anyNull(values)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    if (src1Step < 1 || src2Step < 1) return tpxErrStep;

    forRuns<C>(size, run, src1, src1Step, src2, src2Step);
    return tpxOk;
}

template <class Kind, int C, class Real, class T>
TpxStatus normOfDifference(const T* src1, int src1Step, const T* src2, int src2Step, TpxiSize size,
                           Tpx64f* values) {
    GatherOf<Kind, T, C, Real, 2> gather;
    const TpxStatus status =
        checkedRuns<C>(src1, src1Step, src2, src2Step, size, values,
                       [&](ptrdiff_t len, const T* x, const T* y) { gather.run(len, x, y); });
    if (status != tpxOk) return status;
    for (int c = 0; c < C; c++) values[c] = Kind::norm(gather.value(C, c));
    return tpxOk;
}

// Of real numbers, those below the smallest normal one are taken for 0.
template <class T>
bool isZero(Tpx64f x) {
    return std::is_same_v<T, Tpx32f> ? x < 0x1p-1022 : x == 0;
}

// Runs are cut into pieces that stay in the first-level cache for the second passage, over the reference alone.
constexpr ptrdiff_t kPiece = 3072;

template <class Kind, int C, class Real, class T>
TpxStatus relativeNorm(const T* src, int srcStep, const T* ref, int refStep, TpxiSize size, Tpx64f* values) {
    GatherOf<Kind, T, C, Real, 2> difference;
    GatherOf<Kind, T, C, Real, 1> reference;
    TpxStatus status =
        checkedRuns<C>(src, srcStep, ref, refStep, size, values, [&](ptrdiff_t len, const T* x, const T* y) {
            for (ptrdiff_t i = 0; i < len; i += kPiece) {
                const ptrdiff_t piece = len - i < kPiece ? len - i : kPiece;
                difference.run(piece, x + i, y + i);
                reference.run(piece, y + i);
            }
        });
    if (status != tpxOk) return status;
    for (int c = 0; c < C; c++) {
        const Tpx64f over = difference.value(C, c), under = reference.value(C, c);
        if (isZero<T>(under)) {
            values[c] = isZero<T>(over) ? __builtin_bit_cast(Tpx64f, 0xFFF8000000000000) : __builtin_huge_val();
            status = tpxWarnDivByZero;
        } else {
            values[c] = Kind::norm(over / under);
        }
    }
    return status;
}

} // namespace

// pick(f, K, T, C) is the form of a template above, which may depend on the hint.
#define TPX_FORM(pick, K, T, C, ...)                                                               \
    TPX_ENTRY(tpxiNorm_##K##_##T##_C##C##R)                                                        \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize,                                            \
     Tpx64f* pValue __VA_OPT__(, TpxHintAlgorithm __VA_ARGS__)) {                                  \
        return pick(norm, K, T, C)(pSrc, srcStep, roiSize, pValue);                                \
    }                                                                                              \
    TPX_ENTRY(tpxiNormDiff_##K##_##T##_C##C##R)                                                    \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize,       \
     Tpx64f* pValue __VA_OPT__(, TpxHintAlgorithm __VA_ARGS__)) {                                  \
        return pick(normOfDifference, K, T, C)(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue); \
    }                                                                                              \
    TPX_ENTRY(tpxiNormRel_##K##_##T##_C##C##R)                                                     \
    (const Tpx##T* pSrc, int srcStep, const Tpx##T* pSrcRef, int srcRefStep, TpxiSize roiSize,     \
     Tpx64f* pValue __VA_OPT__(, TpxHintAlgorithm __VA_ARGS__)) {                                  \
        return pick(relativeNorm, K, T, C)(pSrc, srcStep, pSrcRef, srcRefStep, roiSize, pValue);   \
    }
#define TPX_PLAIN(f, K, T, C) (f<K, C, Tpx32f, Tpx##T>)
#define TPX_HINTED(f, K, T, C) (hint == tpxHintAccurate ? f<K, C, Tpx64f, Tpx##T> : f<K, C, Tpx32f, Tpx##T>)
#define TPX_TYPE(pick, K, T, ...)        \
    TPX_FORM(pick, K, T, 1, __VA_ARGS__) \
    TPX_FORM(pick, K, T, 3, __VA_ARGS__) \
    TPX_FORM(pick, K, T, 4, __VA_ARGS__)
#define TPX_KIND(K)             \
    TPX_TYPE(TPX_PLAIN, K, 8u)  \
    TPX_TYPE(TPX_PLAIN, K, 16u) \
    TPX_TYPE(TPX_PLAIN, K, 16s)
TPX_KIND(Inf)
TPX_TYPE(TPX_PLAIN, Inf, 32f)
TPX_KIND(L1)
TPX_TYPE(TPX_HINTED, L1, 32f, hint)
TPX_KIND(L2)
TPX_TYPE(TPX_HINTED, L2, 32f, hint)

} // namespace tpx
