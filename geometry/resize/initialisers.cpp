// SPDX-License-Identifier: Apache-2.0
// Making plans: the checks of the initialisers, and the kinds' records and tables.
#include "frame/entry/entry.h"
#include "frame/simd/control.h"
#include "geometry/resize/plan.h"
#include "geometry/resize/weights.h"

namespace tpx {
namespace {

// ---- Plans ----------------------------------------------------------------------------------------------

// What is to be initialised, once the arguments have passed their checks.
struct Request {
    Form form;
    TpxiSizeL src, dst;
    TpxDataType dataType;
    TpxiResizeSpec* spec;
    bool antialiasing = false;
};

// Begins the plan of a kernel that reaches so many pixels to either side.
TpxiResizeSpec& begin(const Request& request, TpxInterpolationType interpolation, int lobes) {
    TpxiResizeSpec& plan = *planIn(request.spec);
    plan = {};
    plan.tag = Tpx32u(request.form);
    plan.dataType = request.dataType == tpxDataType64f ? tpxDataType64f : tpxDataType32f;
    plan.interpolation = interpolation;
    plan.antialiasing = request.antialiasing;
    plan.axisY = axisOf(request.src.height, request.dst.height);
    plan.axisX = axisOf(request.src.width, request.dst.width);
    plan.lobesX = request.antialiasing ? stretchOf(plan.axisX, lobes).lobes : lobes;
    plan.lobesY = request.antialiasing ? stretchOf(plan.axisY, lobes).lobes : lobes;
    plan.border = {plan.lobesX, plan.lobesY, plan.lobesX, plan.lobesY};
    return plan;
}

TpxiResizeSpec& beginWithTables(const Request& request, TpxInterpolationType interpolation, int lobes) {
    TpxiResizeSpec& plan = begin(request, interpolation, lobes);
    BlockLayout block(&plan);
    takeTables(plan, request.antialiasing ? Weights::Single : weightsFor(request.dataType, interpolation),
               block);
    return plan;
}

void initNearest(const Request& request) {
    TpxiResizeSpec& plan = beginWithTables(request, tpxInterpolationNearest, 0);
    buildNearest(plan.axisY);
    buildNearest(plan.axisX);
}

void initLinear(const Request& request) {
    TpxiResizeSpec& plan = beginWithTables(request, tpxInterpolationLinear, 1);
    TpxiResizeAxis &y = plan.axisY, &x = plan.axisX;
    switch (weightsFor(request.dataType, tpxInterpolationLinear)) {
        case Weights::Q14:
            buildLinearQ14(y, false);
            buildLinearQ14(x, true);
            break;
        case Weights::Single:
            buildFractions(y, 1, y.pCoef32f);
            buildFractions(x, 1, x.pCoef32f);
            break;
        case Weights::Double:
            buildFractions(y, 1, y.pCoef64f);
            buildFractions(x, 1, x.pCoef64f);
            break;
    }
}

// Kernels of several taps keep the fractions in the caller's temporary buffer and turn them into the weights of
// each position's taps: weigh(fractions, axis).
template <class Fraction, class Weigh>
void initTaps(const Request& request, TpxInterpolationType interpolation, int lobes, Tpx8u* pInitBuf,
              Weigh weigh) {
    TpxiResizeSpec& plan = beginWithTables(request, interpolation, lobes);
    BlockLayout block(alignUp(pInitBuf));
    const FloatControl control(kFlushingToZero);
    const auto build = [&](TpxiResizeAxis& axis, int reach) {
        Fraction* const fractions = block.take<Fraction>(axis.dstLen);
        buildFractions(axis, reach, fractions);
        weigh(fractions, axis);
    };
    build(plan.axisY, plan.lobesY);
    build(plan.axisX, plan.lobesX);
}

void initStretchedLinear(const Request& request, Tpx8u* pInitBuf) {
    initTaps<Tpx64f>(request, tpxInterpolationLinear, 1, pInitBuf, buildStretchedLinear);
}

void initCubic(const Request& request, Tpx32f valueB, Tpx32f valueC, Tpx8u* pInitBuf) {
    if (request.antialiasing)
        initTaps<Tpx64f>(request, tpxInterpolationCubic, 2, pInitBuf,
                         [=](const Tpx64f* fractions, TpxiResizeAxis& axis) {
                             buildStretchedCubic(fractions, axis, valueB, valueC);
                         });
    else
        initTaps<Tpx32f>(request, tpxInterpolationCubic, 2, pInitBuf,
                         [=](const Tpx32f* fractions, TpxiResizeAxis& axis) {
                             buildCubic(fractions, axis.dstLen, valueB, valueC, axis.pCoef32f);
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
    if (request.antialiasing)
        initTaps<Tpx64f>(request, tpxInterpolationLanczos, lobes, pInitBuf,
                         [=](const Tpx64f* fractions, TpxiResizeAxis& axis) {
                             buildStretchedLanczos(fractions, axis, lobes);
                         });
    else
        initTaps<Tpx32f>(request, tpxInterpolationLanczos, lobes, pInitBuf,
                         [=](const Tpx32f* fractions, TpxiResizeAxis& axis) {
                             buildLanczos(fractions, axis.dstLen, lobes, axis.pCoef32f);
                         });
}

void initSuper(const Request& request) {
    TpxiResizeSpec& plan = beginWithTables(request, tpxInterpolationSuper, 0);
    buildSuper(plan.axisY);
    buildSuper(plan.axisX);
}

// ---- Checks ---------------------------------------------------------------------------------------------

bool isTypeOf(const Request& request, TpxInterpolationType interpolation) {
    return request.antialiasing ? isDataType(request.dataType) : isPlanType(request.dataType, interpolation);
}

// The checks of all initialisers but Lanczos, then init(request).
template <class Init>
TpxStatus initialise(const Request& request, TpxInterpolationType interpolation, const void* pInitBuf,
                     Init init) {
    if (anyNull(request.spec) || anyNull(pInitBuf)) return tpxErrNullPointer;
    const TpxiSizeL src = request.src, dst = request.dst;
    if (isZero(src) || isZero(dst)) return tpxWarnNoOperation;
    const TpxiSizeL needed = interpolation == tpxInterpolationNearest  ? squareOf(kOnePixel.size)
                             : interpolation == tpxInterpolationLinear ? squareOf(kTwoTaps.size)
                             : interpolation == tpxInterpolationCubic  ? squareOf(kFourTaps.size)
                                                                       : dst;
    if (isEmpty(src) || isEmpty(dst) || isSmaller(src, needed)) return tpxErrSize;
    if (request.form == Form::Long && !isTypeOf(request, interpolation)) return tpxErrDataType;
    if (request.form == Form::Long && (isTooLong(src) || isTooLong(dst))) return tpxErrSizeTooLarge;
    init(request);
    return tpxOk;
}

TpxStatus initialiseStretchedLinear(const Request& request, Tpx8u* pInitBuf) {
    return initialise(request, tpxInterpolationLinear, pInitBuf,
                      [=](const Request& r) { initStretchedLinear(r, pInitBuf); });
}

TpxStatus initialiseCubic(const Request& request, Tpx32f valueB, Tpx32f valueC, Tpx8u* pInitBuf) {
    return initialise(request, tpxInterpolationCubic, pInitBuf,
                      [=](const Request& r) { initCubic(r, valueB, valueC, pInitBuf); });
}

// Lanczos tests the lobes between its size tests: the _L forms and those of antialiasing before anything is
// written, the other short forms as the last thing of all, with the plan begun. A stretched kernel of 3 lobes
// needs no larger source than the sizing call does, which does not know the lobes.
TpxStatus initialiseLanczos(const Request& request, Tpx32u numLobes, Tpx8u* pInitBuf) {
    if (anyNull(request.spec) || anyNull(pInitBuf)) return tpxErrNullPointer;
    const TpxiSizeL src = request.src, dst = request.dst;
    if (isZero(src) || isZero(dst)) return tpxWarnNoOperation;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    const bool isLong = request.form == Form::Long;
    const auto late = [&](TpxStatus status) {
        if (!isLong && !request.antialiasing) abandonLanczos(request, numLobes);
        return status;
    };
    if (numLobes != 2 && numLobes != 3) return late(tpxErrUnsupportedMode);
    if (isLong && !isTypeOf(request, tpxInterpolationLanczos)) return tpxErrDataType;
    const int needed = request.antialiasing ? kFourTaps.size : footprintOf(int(numLobes)).size;
    if (isSmaller(src, squareOf(needed))) return late(tpxErrSize);
    if (isLong && (isTooLong(src) || isTooLong(dst))) return tpxErrSizeTooLarge;
    initLanczos(request, numLobes, pInitBuf);
    return tpxOk;
}

template <class Size>
Request requestOf(Size src, Size dst, TpxDataType dataType, TpxiResizeSpec* spec) {
    return {kFormOf<Size>, wide(src), wide(dst), dataType, spec};
}

// The short forms of antialiasing have no type: plans of all types are alike.
template <class Size>
Request antialiasingOf(Size src, Size dst, TpxDataType dataType, TpxiResizeSpec* spec) {
    return {kFormOf<Size>, wide(src), wide(dst), dataType, spec, true};
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

// Initialisers that take nothing but the plan.
#define TPX_RESIZE_NEAREST_INIT(T)                                                                     \
    TPX_ENTRY(tpxiResizeNearestInit_##T)(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec * pSpec) { \
        return tpx::initialise(tpx::requestOf(srcSize, dstSize, tpxDataType##T, pSpec),                \
                               tpxInterpolationNearest, pSpec, tpx::initNearest);                      \
    }
#define TPX_RESIZE_LINEAR_INIT(T)                                                                     \
    TPX_ENTRY(tpxiResizeLinearInit_##T)(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec * pSpec) { \
        return tpx::initialise(tpx::requestOf(srcSize, dstSize, tpxDataType##T, pSpec),               \
                               tpxInterpolationLinear, pSpec, tpx::initLinear);                       \
    }
#define TPX_RESIZE_SUPER_INIT(T)                                                                               \
    TPX_ENTRY(tpxiResizeSuperInit_##T)(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec * pSpec) {           \
        return tpx::initialise(tpx::requestOf(srcSize, dstSize, tpxDataType##T, pSpec), tpxInterpolationSuper, \
                               pSpec, tpx::initSuper);                                                         \
    }
#define TPX_RESIZE_CUBIC_INIT(T)                                                                             \
    TPX_ENTRY(tpxiResizeCubicInit_##T)                                                                       \
    (TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC, TpxiResizeSpec * pSpec,               \
     Tpx8u * pInitBuf) {                                                                                     \
        return tpx::initialiseCubic(tpx::requestOf(srcSize, dstSize, tpxDataType##T, pSpec), valueB, valueC, \
                                    pInitBuf);                                                               \
    }
#define TPX_RESIZE_LANCZOS_INIT(T)                                                                       \
    TPX_ENTRY(tpxiResizeLanczosInit_##T)                                                                 \
    (TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec * pSpec, Tpx8u * pInitBuf) {    \
        return tpx::initialiseLanczos(tpx::requestOf(srcSize, dstSize, tpxDataType##T, pSpec), numLobes, \
                                      pInitBuf);                                                         \
    }
#define TPX_FOUR_TYPES(INSTANCE) INSTANCE(8u) INSTANCE(16u) INSTANCE(16s) INSTANCE(32f)

TPX_FOUR_TYPES(TPX_RESIZE_NEAREST_INIT)
TPX_ENTRY(tpxiResizeNearestInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec) {
    return tpx::initialise(tpx::requestOf(srcSize, dstSize, dataType, pSpec), tpxInterpolationNearest, pSpec,
                           tpx::initNearest);
}

TPX_FOUR_TYPES(TPX_RESIZE_LINEAR_INIT)
TPX_RESIZE_LINEAR_INIT(64f)
TPX_ENTRY(tpxiResizeLinearInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec) {
    return tpx::initialise(tpx::requestOf(srcSize, dstSize, dataType, pSpec), tpxInterpolationLinear, pSpec,
                           tpx::initLinear);
}

TPX_FOUR_TYPES(TPX_RESIZE_SUPER_INIT)
TPX_ENTRY(tpxiResizeSuperInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec) {
    return tpx::initialise(tpx::requestOf(srcSize, dstSize, dataType, pSpec), tpxInterpolationSuper, pSpec,
                           tpx::initSuper);
}

TPX_FOUR_TYPES(TPX_RESIZE_CUBIC_INIT)
TPX_ENTRY(tpxiResizeCubicInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32f valueB, Tpx32f valueC,
 TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseCubic(tpx::requestOf(srcSize, dstSize, dataType, pSpec), valueB, valueC, pInitBuf);
}

TPX_FOUR_TYPES(TPX_RESIZE_LANCZOS_INIT)
TPX_ENTRY(tpxiResizeLanczosInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32u numLobes, TpxiResizeSpec* pSpec,
 Tpx8u* pInitBuf) {
    return tpx::initialiseLanczos(tpx::requestOf(srcSize, dstSize, dataType, pSpec), numLobes, pInitBuf);
}

TPX_ENTRY(tpxiResizeAntialiasingLinearInit)
(TpxiSize srcSize, TpxiSize dstSize, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseStretchedLinear(tpx::antialiasingOf(srcSize, dstSize, tpxDataType32f, pSpec),
                                          pInitBuf);
}
TPX_ENTRY(tpxiResizeAntialiasingLinearInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseStretchedLinear(tpx::antialiasingOf(srcSize, dstSize, dataType, pSpec), pInitBuf);
}
TPX_ENTRY(tpxiResizeAntialiasingCubicInit)
(TpxiSize srcSize, TpxiSize dstSize, Tpx32f valueB, Tpx32f valueC, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseCubic(tpx::antialiasingOf(srcSize, dstSize, tpxDataType32f, pSpec), valueB, valueC,
                                pInitBuf);
}
TPX_ENTRY(tpxiResizeAntialiasingCubicInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32f valueB, Tpx32f valueC,
 TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseCubic(tpx::antialiasingOf(srcSize, dstSize, dataType, pSpec), valueB, valueC,
                                pInitBuf);
}
TPX_ENTRY(tpxiResizeAntialiasingLanczosInit)
(TpxiSize srcSize, TpxiSize dstSize, Tpx32u numLobes, TpxiResizeSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialiseLanczos(tpx::antialiasingOf(srcSize, dstSize, tpxDataType32f, pSpec), numLobes,
                                  pInitBuf);
}
TPX_ENTRY(tpxiResizeAntialiasingLanczosInit_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, Tpx32u numLobes, TpxiResizeSpec* pSpec,
 Tpx8u* pInitBuf) {
    return tpx::initialiseLanczos(tpx::antialiasingOf(srcSize, dstSize, dataType, pSpec), numLobes, pInitBuf);
}
#undef TPX_RESIZE_NEAREST_INIT
#undef TPX_RESIZE_LINEAR_INIT
#undef TPX_RESIZE_SUPER_INIT
#undef TPX_RESIZE_CUBIC_INIT
#undef TPX_RESIZE_LANCZOS_INIT
#undef TPX_FOUR_TYPES
