// Sizing, initialising and querying a resize plan.
#include "geometry/resize/plan.h"
#include "frame/simd/control.h"

#include "frame/entry/entry.h"
#include "frame/images/walk.h"
#include "geometry/resize/weights.h"

namespace tpx {
namespace {

constexpr int64_t kSpare = 64; // for rounding the caller's address up

constexpr int64_t roundUp32(int64_t n) { return (n + 31) & -32; }

template <class Size>
TpxiSizeL widen(Size size) {
    return {size.width, size.height};
}

bool isSmaller(TpxiSizeL size, TpxiSizeL than) { return size.width < than.width || size.height < than.height; }

bool isSampleType(TpxDataType type) {
    return type == tpxDataType8u || type == tpxDataType16u || type == tpxDataType16s || type == tpxDataType32f;
}

// The _L forms serve lengths below 0x20000000.
bool isTooLong(TpxiSizeL size) { return size.width > 0x1fffffff || size.height > 0x1fffffff; }

// The smallest source of a kind that reads `taps` source pixels for a destination pixel.
constexpr TpxiSizeL squareOf(int taps) { return {taps, taps}; }

// ---- Sizes of a plan ----------------------------------------------------------------------------------

int64_t ceilOf(double x) {
    const auto whole = int64_t(x);
    return whole + (double(whole) != x);
}

// Taps that the plan of an antialiased resize has room for along an axis.
int64_t antialiasingTaps(int64_t src, int64_t dst, int kernelTaps) {
    const double ratio = double(src) / double(dst);
    return ratio <= 1 ? kernelTaps : 2 * ceilOf(kernelTaps * ratio);
}

int64_t superEntries(int64_t src, int64_t dst) {
    int64_t a = src, b = dst;
    while (b != 0) {
        const int64_t r = a % b;
        a = b;
        b = r;
    }
    return dst / a * superRun(src / a, dst / a);
}

TpxStatus planSizes(TpxiSizeL src, TpxiSizeL dst, TpxDataType dataType, TpxInterpolationType interpolation,
                    bool antialiasing, int64_t& specSize, int64_t& initSize) {
    const int64_t S = roundUp32(dst.width) + roundUp32(dst.height);
    const auto weightRoom = [&](int64_t perPosition, int64_t more) {
        return 4 * (roundUp32(perPosition * dst.width + more) + roundUp32(perPosition * dst.height + more));
    };
    specSize = 4 * S + 232;
    initSize = 0;

    if (dataType == tpxDataType64f) {
        if (antialiasing || interpolation != tpxInterpolationLinear) return tpxErrUnsupportedMode;
        if (isSmaller(src, squareOf(2))) return tpxErrSize;
        specSize = 12 * S + 192;
    } else {
        switch (interpolation) {
            case tpxInterpolationNearest:
                break;
            case tpxInterpolationLinear:
                if (isSmaller(src, squareOf(2))) return tpxErrSize;
                specSize = 8 * S + 232;
                break;
            case tpxInterpolationCubic:
            case tpxInterpolationLanczos:
                if (isSmaller(src, squareOf(4))) return tpxErrSize;
                specSize += interpolation == tpxInterpolationCubic ? weightRoom(4, 96) : weightRoom(6, 160);
                initSize = 4 * S;
                break;
            case tpxInterpolationSuper: {
                if (isSmaller(src, dst)) return tpxErrSize;
                const int64_t tx = superEntries(src.width, dst.width),
                              ty = superEntries(src.height, dst.height);
                specSize = 232 + 4 * (roundUp32(tx) + roundUp32(ty) + tx + ty);
                break;
            }
            default:
                return tpxErrUnsupportedMode;
        }
        const bool plainOnly =
            interpolation == tpxInterpolationNearest || interpolation == tpxInterpolationSuper;
        if (antialiasing && !plainOnly) {
            const int taps = interpolation == tpxInterpolationLinear  ? 2
                             : interpolation == tpxInterpolationCubic ? 4
                                                                      : 6;
            specSize = roundUp32(4 * dst.width * antialiasingTaps(src.width, dst.width, taps)) +
                       roundUp32(4 * dst.height * antialiasingTaps(src.height, dst.height, taps)) + 4 * S + 232;
            if (taps == 2 && src.width <= dst.width) specSize += roundUp32(4 * dst.width);
            initSize = 8 * S;
        }
        antialiasing = antialiasing && plainOnly;
    }
    specSize += kSpare;
    initSize += kSpare;
    return antialiasing ? tpxWarnNoAntialiasing : tpxOk;
}

template <class Form>
TpxStatus getSize(typename Form::Size srcSize, typename Form::Size dstSize, TpxDataType dataType,
                  TpxInterpolationType interpolation, Tpx32u antialiasing, typename Form::Length* pSpecSize,
                  typename Form::Length* pInitBufSize) {
    if (anyNull(pSpecSize, pInitBufSize)) return tpxErrNullPointer;
    if (isZero(srcSize) || isZero(dstSize)) return tpxWarnNoOperation;
    if (isEmpty(srcSize) || isEmpty(dstSize)) return tpxErrSize;
    if (interpolation != 0 && interpolation != tpxInterpolationNearest &&
        interpolation != tpxInterpolationLinear && interpolation != tpxInterpolationCubic &&
        interpolation != tpxInterpolationSuper && interpolation != tpxInterpolationLanczos)
        return tpxErrInterpolation;
    const TpxiSizeL src = widen(srcSize), dst = widen(dstSize);
    if constexpr (Form::kLong) {
        const bool linear64f = dataType == tpxDataType64f && interpolation == tpxInterpolationLinear;
        if (!isSampleType(dataType) && !linear64f) return tpxErrDataType;
        if (isTooLong(src) || isTooLong(dst)) return tpxErrSizeTooLarge;
    }
    int64_t specSize, initSize;
    const TpxStatus status =
        planSizes(src, dst, dataType, interpolation, antialiasing != 0, specSize, initSize);
    if (status < 0) return status;
    if (!Form::kLong && (specSize > 0x7ffffffe || initSize > 0x7ffffffe)) return tpxErrSizeTooLarge;
    *pSpecSize = typename Form::Length(specSize);
    *pInitBufSize = typename Form::Length(initSize);
    return status;
}

// ---- Initialising -------------------------------------------------------------------------------------

// Hands out the tables behind a plan's fixed part. A plan is 64-byte aligned, so alignment counts from it.
class Tables {
    Tpx8u* next;

 public:
    explicit Tables(TpxiResizeSpec& plan) : next(reinterpret_cast<Tpx8u*>(&plan + 1)) {}

    template <class T>
    void take(T*& table, int64_t count, int alignment = 1) {
        next = alignUp(next, uintptr_t(alignment));
        table = reinterpret_cast<T*>(next);
        next += count * int64_t(sizeof(T));
    }
};

TpxiResizeAxis axisOf(int64_t src, int64_t dst) {
    auto a = Tpx32u(src), b = Tpx32u(dst);
    while (b != 0) {
        const Tpx32u r = a % b;
        a = b;
        b = r;
    }
    TpxiResizeAxis axis = {};
    axis.srcLen = Tpx32u(src);
    axis.dstLen = Tpx32s(dst);
    axis.srcRatio = axis.srcLen / a;
    axis.dstRatio = Tpx32u(dst) / a;
    return axis;
}

// What is to be initialised, once the arguments have passed their checks.
struct Request {
    Tpx32u tag;
    TpxiSizeL src, dst;
    TpxDataType dataType;
    TpxiResizeSpec* spec;
};

TpxiResizeSpec& begin(const Request& request, TpxInterpolationType interpolation, int lobes) {
    TpxiResizeSpec& plan = *planIn(request.spec);
    plan = {};
    plan.tag = request.tag;
    plan.dataType = request.dataType == tpxDataType64f ? tpxDataType64f : tpxDataType32f;
    plan.interpolation = interpolation;
    plan.lobesX = plan.lobesY = lobes;
    plan.border = {lobes, lobes, lobes, lobes};
    plan.axisY = axisOf(request.src.height, request.dst.height);
    plan.axisX = axisOf(request.src.width, request.dst.width);
    return plan;
}

Tables takeIndices(TpxiResizeSpec& plan) {
    Tables tables(plan);
    tables.take(plan.axisY.pIndex, plan.axisY.dstLen);
    tables.take(plan.axisX.pIndex, plan.axisX.dstLen);
    return tables;
}

void initNearest(const Request& request) {
    TpxiResizeSpec& plan = begin(request, tpxInterpolationNearest, 0);
    takeIndices(plan);
    buildNearest(plan.axisY);
    buildNearest(plan.axisX);
}

void initLinear(const Request& request) {
    TpxiResizeSpec& plan = begin(request, tpxInterpolationLinear, 1);
    Tables tables = takeIndices(plan);
    TpxiResizeAxis &y = plan.axisY, &x = plan.axisX;
    if (request.dataType == tpxDataType8u) {
        tables.take(y.pCoefQ14, y.dstLen);
        tables.take(x.pCoefQ14, 2 * int64_t(x.dstLen));
        buildLinearQ14(y, false);
        buildLinearQ14(x, true);
    } else if (request.dataType == tpxDataType64f) {
        tables.take(y.pCoef64f, y.dstLen, 64);
        tables.take(x.pCoef64f, x.dstLen, 64);
        buildFractions(y, 1, y.pCoef64f);
        buildFractions(x, 1, x.pCoef64f);
    } else {
        tables.take(y.pCoef32f, y.dstLen);
        tables.take(x.pCoef32f, x.dstLen);
        buildFractions(y, 1, y.pCoef32f);
        buildFractions(x, 1, x.pCoef32f);
    }
}

// Cubic and Lanczos keep the fractions in the caller's temporary buffer and turn them into `taps` weights for
// each position: weigh(fractions, count, weights).
template <class Weigh>
void initTaps(const Request& request, TpxInterpolationType interpolation, int lobes, Tpx8u* pInitBuf,
              Weigh weigh) {
    TpxiResizeSpec& plan = begin(request, interpolation, lobes);
    Tables tables = takeIndices(plan);
    const int taps = 2 * lobes;
    auto fractions = reinterpret_cast<Tpx32f*>(alignUp(pInitBuf, 64));
    const FloatControl control(kFlushingToZero);
    TpxiResizeAxis* const axes[] = {&plan.axisY, &plan.axisX};
    for (TpxiResizeAxis* axis : axes) {
        tables.take(axis->pCoef32f, int64_t(taps) * axis->dstLen, 32);
        buildFractions(*axis, lobes, fractions);
        weigh(fractions, axis->dstLen, axis->pCoef32f);
        fractions += axis->dstLen;
    }
}

void initCubic(const Request& request, Tpx32f valueB, Tpx32f valueC, Tpx8u* pInitBuf) {
    initTaps(request, tpxInterpolationCubic, 2, pInitBuf,
             [=](const Tpx32f* fractions, int64_t count, Tpx32f* weights) {
                 buildCubic(fractions, count, valueB, valueC, weights);
             });
}

// The beginning of a Lanczos plan whose lobes or source turn out not to do: the fields that come first are
// written, tables and borders are not, and the control register stays set for building.
void abandonLanczos(const Request& request, Tpx32u numLobes) {
    begin(request, tpxInterpolationLanczos, int(numLobes)).border = {};
    FloatControl::install(kFlushingToZero);
}

void initLanczos(const Request& request, Tpx32u numLobes, Tpx8u* pInitBuf) {
    const int lobes = int(numLobes);
    initTaps(request, tpxInterpolationLanczos, lobes, pInitBuf,
             [=](const Tpx32f* fractions, int64_t count, Tpx32f* weights) {
                 buildLanczos(fractions, count, lobes, weights);
             });
}

void initSuper(const Request& request) {
    TpxiResizeSpec& plan = begin(request, tpxInterpolationSuper, 0);
    TpxiResizeAxis &y = plan.axisY, &x = plan.axisX;
    const auto entries = [](const TpxiResizeAxis& axis) {
        return axis.dstRatio * int64_t(superRun(axis.srcRatio, axis.dstRatio));
    };
    Tables tables(plan);
    tables.take(y.pIndex, entries(y));
    tables.take(x.pIndex, entries(x));
    tables.take(y.pCoef32f, entries(y), 32);
    tables.take(x.pCoef32f, entries(x), 32);
    buildSuper(y);
    buildSuper(x);
}

// The checks of all initialisers but Lanczos, then init(request).
template <class Form, class Init>
TpxStatus initialise(typename Form::Size srcSize, typename Form::Size dstSize, TpxDataType dataType,
                     TpxInterpolationType interpolation, TpxiResizeSpec* pSpec, const void* pInitBuf,
                     Init init) {
    if (anyNull(pSpec, pInitBuf)) return tpxErrNullPointer;
    if (isZero(srcSize) || isZero(dstSize)) return tpxWarnNoOperation;
    const TpxiSizeL src = widen(srcSize), dst = widen(dstSize);
    const TpxiSizeL needed = interpolation == tpxInterpolationNearest  ? squareOf(1)
                             : interpolation == tpxInterpolationLinear ? squareOf(2)
                             : interpolation == tpxInterpolationCubic  ? squareOf(4)
                                                                       : dst;
    if (isEmpty(src) || isEmpty(dst) || isSmaller(src, needed)) return tpxErrSize;
    if constexpr (Form::kLong) {
        const bool linear64f = dataType == tpxDataType64f && interpolation == tpxInterpolationLinear;
        if (!isSampleType(dataType) && !linear64f) return tpxErrDataType;
        if (isTooLong(src) || isTooLong(dst)) return tpxErrSizeTooLarge;
    }
    init(Request{Form::kTag, src, dst, dataType, pSpec});
    return tpxOk;
}

// Lanczos tests the lobes between its size tests: the _L form before anything is written, the short forms as
// the last thing of all, with the plan begun.
template <class Form>
TpxStatus initialiseLanczos(typename Form::Size srcSize, typename Form::Size dstSize, TpxDataType dataType,
                            Tpx32u numLobes, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    if (anyNull(pSpec, pInitBuf)) return tpxErrNullPointer;
    if (isZero(srcSize) || isZero(dstSize)) return tpxWarnNoOperation;
    const TpxiSizeL src = widen(srcSize), dst = widen(dstSize);
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    const Request request{Form::kTag, src, dst, dataType, pSpec};
    const auto late = [&](TpxStatus status) {
        if (!Form::kLong) abandonLanczos(request, numLobes);
        return status;
    };
    if (numLobes != 2 && numLobes != 3) return late(tpxErrUnsupportedMode);
    if (Form::kLong && !isSampleType(dataType)) return tpxErrDataType;
    if (isSmaller(src, squareOf(2 * int(numLobes)))) return late(tpxErrSize);
    if (Form::kLong && (isTooLong(src) || isTooLong(dst))) return tpxErrSizeTooLarge;
    initLanczos(request, numLobes, pInitBuf);
    return tpxOk;
}

// ---- Queries ------------------------------------------------------------------------------------------

// Bytes of the work buffer for a tile of the plan, or a negative status.
int64_t workSize(const TpxiResizeSpec& plan, TpxiSizeL tile, int64_t channels) {
    const TpxiResizeAxis &x = plan.axisX, &y = plan.axisY;
    const int64_t w = minOf<int64_t>(tile.width, x.dstLen), h = minOf<int64_t>(tile.height, y.dstLen);
    const int64_t lobesX = plan.lobesX, lobesY = plan.lobesY;

    if (plan.dataType == tpxDataType64f) {
        if (plan.interpolation != tpxInterpolationLinear) return tpxErrUnsupportedMode;
        return kSpare + 8 * channels * roundUp32(2 * w + 32) + 4 * (roundUp32(w) + roundUp32(h));
    }
    int64_t bytes = kSpare + roundUp32(4 * w) + roundUp32(4 * h);
    switch (plan.interpolation) {
        case tpxInterpolationNearest:
            return bytes;
        case tpxInterpolationLinear:
        case tpxInterpolationCubic:
        case tpxInterpolationLanczos: {
            const int64_t row = roundUp32(4 * channels * w);
            bytes += 2 * lobesY * row;
            if (plan.antialiasing)
                bytes += roundUp32(16 * lobesY + 8) + roundUp32(16 * lobesX * x.leadCount) +
                         roundUp32(16 * lobesX * x.trailCount) + roundUp32(16 * lobesY * y.leadCount) +
                         roundUp32(16 * lobesY * y.trailCount) + row;
            return bytes;
        }
        case tpxInterpolationSuper: {
            const float covered = Tpx32f(x.srcRatio) * Tpx32f(w) / Tpx32f(x.dstRatio) + 3.0f;
            const int64_t columns = minOf<int64_t>(int64_t(covered), x.srcLen);
            const int64_t rows = minOf<int64_t>(y.dstRatio, tile.height);
            int64_t ring;
            if (__builtin_mul_overflow(4 * channels * roundUp32(columns) + 8, rows, &ring) ||
                __builtin_add_overflow(bytes + 32, ring, &bytes))
                return tpxErrSizeTooLarge;
            return bytes;
        }
        default:
            return tpxErrUnsupportedMode;
    }
}

template <class Form>
TpxStatus getBufferSize(const TpxiResizeSpec* pSpec, typename Form::Size dstSize, Tpx32u numChannels,
                        typename Form::Length* pBufSize) {
    if (anyNull(pSpec, pBufSize)) return tpxErrNullPointer;
    if (isZero(dstSize)) return tpxWarnNoOperation;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (plan.tag != Form::kTag) return tpxErrContext;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return tpxErrChannelCount;
    if (isEmpty(dstSize)) return tpxErrSize;
    const int64_t bytes = workSize(plan, widen(dstSize), numChannels);
    if (bytes < 0) return TpxStatus(bytes);
    if (!Form::kLong && bytes >= 0x7fffffff) return tpxErrSizeTooLarge;
    *pBufSize = typename Form::Length(bytes);
    return isLarger(dstSize, plan) ? tpxWarnValueAdjusted : tpxOk;
}

template <class Form>
TpxStatus getBorderSize(const TpxiResizeSpec* pSpec, typename Form::Border* pBorderSize) {
    if (anyNull(pSpec, pBorderSize)) return tpxErrNullPointer;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (plan.tag != Form::kTag) return tpxErrContext;
    *pBorderSize = {plan.border.left, plan.border.top, plan.border.right, plan.border.bottom};
    return tpxOk;
}

template <class Form>
TpxStatus getSrcOffset(const TpxiResizeSpec* pSpec, typename Form::Point dstOffset,
                       typename Form::Point* pSrcOffset) {
    using Length = typename Form::Length;
    if (anyNull(pSpec, pSrcOffset)) return tpxErrNullPointer;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (plan.tag != Form::kTag) return tpxErrContext;
    if (isOutside(dstOffset, plan)) return tpxErrOutOfRange;
    *pSrcOffset = {Length(srcOffset(plan, plan.axisX, dstOffset.x)),
                   Length(srcOffset(plan, plan.axisY, dstOffset.y))};
    return tpxOk;
}

// The extent along an axis of the source of `len` destination positions beginning at `d`, from `offset`.
int64_t srcExtent(const TpxiResizeSpec& plan, const TpxiResizeAxis& axis, int64_t d, int64_t len,
                  int64_t offset) {
    const int64_t end = d + len;
    if (plan.interpolation != tpxInterpolationSuper)
        return end == axis.dstLen ? axis.srcLen - offset : axis.pIndex[end - 1] - offset + 1;
    const int64_t run = superRun(axis.srcRatio, axis.dstRatio), r = end % axis.dstRatio;
    const int64_t last = r == 0 ? int64_t(axis.srcRatio) - 1 : axis.pIndex[r * run - 1];
    return axis.srcRatio * ((end - 1) / axis.dstRatio) - offset + 1 + last;
}

template <class Form>
TpxStatus getSrcRoi(const TpxiResizeSpec* pSpec, typename Form::Point dstRoiOffset,
                    typename Form::Size dstRoiSize, typename Form::Point* pSrcRoiOffset,
                    typename Form::Size* pSrcRoiSize) {
    using Length = typename Form::Length;
    if (anyNull(pSpec, pSrcRoiOffset, pSrcRoiSize)) return tpxErrNullPointer;
    if (isEmpty(dstRoiSize)) return tpxErrSize;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (plan.tag != Form::kTag) return tpxErrContext;
    if (isOutside(dstRoiOffset, plan)) return tpxErrOutOfRange;
    const auto along = [&](const TpxiResizeAxis& axis, int64_t d, int64_t len, Length& offset, Length& extent) {
        const int64_t from = srcOffset(plan, axis, d);
        offset = Length(from);
        extent = Length(srcExtent(plan, axis, d, minOf(len, axis.dstLen - d), from));
    };
    along(plan.axisX, dstRoiOffset.x, dstRoiSize.width, pSrcRoiOffset->x, pSrcRoiSize->width);
    along(plan.axisY, dstRoiOffset.y, dstRoiSize.height, pSrcRoiOffset->y, pSrcRoiSize->height);
    return isLarger(dstRoiSize, plan) ? tpxWarnValueAdjusted : tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ------------------------------------------------------------------------------------------

#define FOUR_TYPES(FORMS) FORMS(8u) FORMS(16u) FORMS(16s) FORMS(32f)
#define FIVE_TYPES(FORMS) FOUR_TYPES(FORMS) FORMS(64f)

#define GET_SIZE(type)                                                                                         \
    TPX_ENTRY(tpxiResizeGetSize_##type)                                                                        \
    (TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation, Tpx32u antialiasing,              \
     int* pSpecSize, int* pInitBufSize) {                                                                      \
        return getSize<ShortForm>(srcSize, dstSize, tpxDataType##type, interpolation, antialiasing, pSpecSize, \
                                  pInitBufSize);                                                               \
    }
FIVE_TYPES(GET_SIZE)
TPX_ENTRY(tpxiResizeGetSize_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxInterpolationType interpolation,
 Tpx32u antialiasing, TpxSizeL* pSpecSize, TpxSizeL* pInitBufSize) {
    return getSize<LongForm>(srcSize, dstSize, dataType, interpolation, antialiasing, pSpecSize, pInitBufSize);
}

// Initialisers that take nothing but the plan.
#define PLAIN_INIT(Kind, type)                                                                             \
    TPX_ENTRY(tpxiResize##Kind##Init_##type)(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec * pSpec) { \
        return initialise<ShortForm>(srcSize, dstSize, tpxDataType##type, tpxInterpolation##Kind, pSpec,   \
                                     pSpec, init##Kind);                                                   \
    }
#define PLAIN_INIT_L(Kind)                                                                            \
    TPX_ENTRY(tpxiResize##Kind##Init_L)                                                               \
    (TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec * pSpec) {            \
        return initialise<LongForm>(srcSize, dstSize, dataType, tpxInterpolation##Kind, pSpec, pSpec, \
                                    init##Kind);                                                      \
    }
#define NEAREST_INIT(type) PLAIN_INIT(Nearest, type)
#define LINEAR_INIT(type) PLAIN_INIT(Linear, type)
#define SUPER_INIT(type) PLAIN_INIT(Super, type)
FOUR_TYPES(NEAREST_INIT)
PLAIN_INIT_L(Nearest)
FIVE_TYPES(LINEAR_INIT)
PLAIN_INIT_L(Linear)
FOUR_TYPES(SUPER_INIT)
PLAIN_INIT_L(Super)

#define CUBIC_INIT_BODY(Form, dataType)                                                         \
    return initialise<Form>(srcSize, dstSize, dataType, tpxInterpolationCubic, pSpec, pInitBuf, \
                            [=](const Request& request) { initCubic(request, valueB, valueC, pInitBuf); });
#define CUBIC_INIT(type)                                                                       \
    TPX_ENTRY(tpxiResizeCubicInit_##type)                                                      \
    (TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC, TpxiResizeSpec * pSpec, \
     Tpx8u * pInitBuf) {                                                                       \
        CUBIC_INIT_BODY(ShortForm, tpxDataType##type)                                          \
    }
FOUR_TYPES(CUBIC_INIT)
TPX_ENTRY(tpxiResizeCubicInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32f valueB, Tpx32f valueC,
 TpxiResizeSpec* pSpec, Tpx8u* pInitBuf){CUBIC_INIT_BODY(LongForm, dataType)}
#define LANCZOS_INIT(type)                                                                                   \
    TPX_ENTRY(tpxiResizeLanczosInit_##type)                                                                  \
    (TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec * pSpec, Tpx8u * pInitBuf) {        \
        return initialiseLanczos<ShortForm>(srcSize, dstSize, tpxDataType##type, numLobes, pSpec, pInitBuf); \
    }
FOUR_TYPES(LANCZOS_INIT)
    TPX_ENTRY(tpxiResizeLanczosInit_L)(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType,
                                       Tpx32u numLobes, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return initialiseLanczos<LongForm>(srcSize, dstSize, dataType, numLobes, pSpec, pInitBuf);
}

#define BUFFER_SIZE(type)                                                                \
    TPX_ENTRY(tpxiResizeGetBufferSize_##type)                                            \
    (const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels, int* pBufSize) { \
        return getBufferSize<ShortForm>(pSpec, dstSize, numChannels, pBufSize);          \
    }
FIVE_TYPES(BUFFER_SIZE)
TPX_ENTRY(tpxiResizeGetBufferSize_L)
(const TpxiResizeSpec* pSpec, TpxiSizeL dstSize, Tpx32u numChannels, TpxSizeL* pBufSize) {
    return getBufferSize<LongForm>(pSpec, dstSize, numChannels, pBufSize);
}

#define BORDER_SIZE(type)                                                                                 \
    TPX_ENTRY(tpxiResizeGetBorderSize_##type)(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize) { \
        return getBorderSize<ShortForm>(pSpec, pBorderSize);                                              \
    }
FIVE_TYPES(BORDER_SIZE)
TPX_ENTRY(tpxiResizeGetBorderSize_L)(const TpxiResizeSpec* pSpec, TpxiBorderSizeL* pBorderSize) {
    return getBorderSize<LongForm>(pSpec, pBorderSize);
}

#define SRC_OFFSET(type)                                                        \
    TPX_ENTRY(tpxiResizeGetSrcOffset_##type)                                    \
    (const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset) { \
        return getSrcOffset<ShortForm>(pSpec, dstOffset, pSrcOffset);           \
    }
FIVE_TYPES(SRC_OFFSET)
TPX_ENTRY(tpxiResizeGetSrcOffset_L)
(const TpxiResizeSpec* pSpec, TpxiPointL dstOffset, TpxiPointL* pSrcOffset) {
    return getSrcOffset<LongForm>(pSpec, dstOffset, pSrcOffset);
}

#define SRC_ROI(type)                                                                                    \
    TPX_ENTRY(tpxiResizeGetSrcRoi_##type)                                                                \
    (const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, \
     TpxiSize* pSrcRoiSize) {                                                                            \
        return getSrcRoi<ShortForm>(pSpec, dstRoiOffset, dstRoiSize, pSrcRoiOffset, pSrcRoiSize);        \
    }
FIVE_TYPES(SRC_ROI)
TPX_ENTRY(tpxiResizeGetSrcRoi_L)
(const TpxiResizeSpec* pSpec, TpxiPointL dstRoiOffset, TpxiSizeL dstRoiSize, TpxiPointL* pSrcRoiOffset,
 TpxiSizeL* pSrcRoiSize) {
    return getSrcRoi<LongForm>(pSpec, dstRoiOffset, dstRoiSize, pSrcRoiOffset, pSrcRoiSize);
}
