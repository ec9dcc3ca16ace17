// SPDX-License-Identifier: Apache-2.0
// Sizes and making of plans.
#include "transforms/plan.h"

#include "frame/entry/entry.h"

namespace tpx {
namespace {

// ---- One dimension ---------------------------------------------------------------------------------------

constexpr int kLargestOrder = 30, kLargestOrderReal = 29, kLargestOrderComplex = 28;
constexpr uint64_t kLongestFactored = 134217727, kLongestOddChirp = 67108863;

constexpr bool isFlag(int flag) {
    return flag == tpxFftDivForward || flag == tpxFftDivInverse || flag == tpxFftDivBySqrt ||
           flag == tpxFftNoDivide;
}

TpxStatus checkOrder(int order, int flag, Domain domain) {
    if (order < 0 || order > kLargestOrder) return tpxErrFftOrder;
    if (!isFlag(flag)) return tpxErrFftFlag;
    return order > (domain == Domain::Real ? kLargestOrderReal : kLargestOrderComplex) ? tpxErrFftOrder : tpxOk;
}

TpxStatus checkLength(uint64_t length, int flag, Domain domain) {
    if (!isFlag(flag)) return tpxErrFftFlag;
    if ((length & (length - 1)) == 0) return tpxOk;
    const bool isOddChirp = domain == Domain::Real && length % 2 && LineKind{length, false}.isChirp();
    return length > (isOddChirp ? kLongestOddChirp : kLongestFactored) ? tpxErrSize : tpxOk;
}

// ---- Two dimensions --------------------------------------------------------------------------------------

// As callers tell it: orders or lengths.
struct Shape {
    int x, y;
    bool isPowerOfTwo;
    Domain domain;

    uint64_t lengthOf(int n) const { return isPowerOfTwo ? uint64_t(1) << n : uint64_t(n); }
    LineKind rows() const { return LineKind::of(lengthOf(x), lengthOf(y)); }
    LineKind columns() const { return LineKind::of(lengthOf(y), lengthOf(x)); }
    bool isReal() const { return domain == Domain::Real; }
};

TpxStatus checkShape(const Shape& shape, int flag) {
    const auto check = [&](int n, Domain domain) {
        return shape.isPowerOfTwo ? checkOrder(n, flag, domain) : checkLength(uint64_t(n), flag, domain);
    };
    if (const TpxStatus status = check(shape.x, shape.domain)) return status;
    if (const TpxStatus status = check(shape.y, shape.domain)) return status;
    return check(shape.y, Domain::Complex);
}

constexpr uint64_t kRecordBytes = 128;

struct Lines {
    Line *rows, *columns, *realColumns; // the last one of real plans alone
};
// Tables of equal lengths are there once.
Lines layOutLines(BlockLayout& block, const Shape& shape) {
    const bool isSquare = shape.x == shape.y;
    block.take<Tpx8u>(kRecordBytes);
    Lines lines{};
    lines.rows = layOutLine(block, shape.rows(), false);
    if (shape.isReal() || !isSquare) lines.columns = layOutLine(block, shape.columns(), isSquare);
    if (shape.isReal() && !isSquare) lines.realColumns = layOutLine(block, shape.columns(), true);
    return lines;
}

uint64_t bufSizeOf(LineKind kind, Domain domain) {
    return kind.length > uint64_t(kShortLine) ? kind.bufferBytes(groupsOf(domain)) : 0;
}

struct PlanSizes {
    uint64_t spec, init, work;
    bool fit() const { return maxOf(maxOf(spec, init), work) <= kLongestBlock; }
};

PlanSizes sizesOf(const Shape& shape) {
    const LineKind rows = shape.rows(), columns = shape.columns();
    const auto anywhere = [](uint64_t bytes) {
        return bytes ? roundUp(bytes, kBlockAlignment) + kBlockAlignment : 0;
    };
    BlockLayout spec, work;
    layOutLines(spec, shape);
    // By contract there is some room at least, though short lines use none; one row of them may do without.
    const uint64_t buffers = maxOf(bufSizeOf(rows, shape.domain), bufSizeOf(columns, shape.domain));
    if (buffers) layOutWork(work, buffers, shape.domain, columns.length);
    const uint64_t room = maxOf(shape.isReal() ? 16 * rows.length : 0, 64 * columns.length);
    const bool none = !shape.isPowerOfTwo && columns.length == 1 && !buffers;
    return {anywhere(spec.bytes()), anywhere(maxOf(lineInitBytes(rows), lineInitBytes(columns))),
            none ? 0 : anywhere(maxOf(work.bytes(), room))};
}

TpxStatus getSizes(const Shape& shape, int flag, int* specSize, int* initSize, int* workSize) {
    if (const TpxStatus status = checkShape(shape, flag)) return status;
    const PlanSizes sizes = sizesOf(shape);
    if (!sizes.fit()) return tpxErrSizeTooLarge;
    *specSize = int(sizes.spec);
    *initSize = int(sizes.init);
    *workSize = int(sizes.work);
    return tpxOk;
}

void describeLine(Line* line, int told, LineKind kind, int flag, int hint, Tpx32s tag, Domain domain) {
    line->tag = tag;
    line->length = told;
    line->doFwdScale = flag == tpxFftDivForward || flag == tpxFftDivBySqrt;
    line->doInvScale = flag == tpxFftDivInverse || flag == tpxFftDivBySqrt;
    line->scale = flag == tpxFftDivBySqrt ? float(1 / squareRoot(double(kind.length))) : 1 / float(kind.length);
    line->hint = hint;
    line->bufSize = Tpx32s(bufSizeOf(kind, domain));
}

template <class Spec>
TpxStatus initPlan(int x, int y, int flag, int hint, Spec* callersSpec, Tpx8u* initBuf) {
    const Shape shape{x, y, kIsPowerOfTwo<Spec>, kDomainOf<Spec>};
    Spec* const spec = alignUp(callersSpec);
    // The identity is there from here on, but nothing that a transform could use.
    spec->tag = kTagOf<Spec>;
    spec->rows = spec->columns = nullptr;
    if (const TpxStatus status = checkShape(shape, flag)) return status;
    const PlanSizes sizes = sizesOf(shape);
    if (!sizes.fit()) return tpxErrSizeTooLarge;
    if (sizes.init && anyNull(initBuf)) return tpxErrNullPointer;

    BlockLayout block(spec);
    const Lines lines = layOutLines(block, shape);
    const Tpx32s complexTag = shape.isPowerOfTwo ? 4 : 13, realTag = shape.isPowerOfTwo ? 6 : 15;
    describeLine(lines.rows, x, shape.rows(), flag, hint, shape.isReal() ? realTag : complexTag, shape.domain);
    initLine(lines.rows, shape.rows(), alignUp(initBuf));
    if (lines.columns) {
        describeLine(lines.columns, y, shape.columns(), flag, hint, complexTag, shape.domain);
        if (x == y)
            lendTables(*lines.rows, lines.columns);
        else
            initLine(lines.columns, shape.columns(), alignUp(initBuf));
    }
    if (lines.realColumns) {
        describeLine(lines.realColumns, y, shape.columns(), flag, hint, realTag, shape.domain);
        lendTables(*lines.columns, lines.realColumns);
    }
    spec->lenX = x;
    spec->lenY = y;
    spec->flag = hint;
    spec->workSize = Tpx32s(sizes.work);
    spec->columns = lines.columns;
    if constexpr (kDomainOf<Spec> == Domain::Real) spec->realColumns = lines.realColumns;
    spec->rows = lines.rows;
    return tpxOk;
}

// ---- The checks of either family -------------------------------------------------------------------------

TpxStatus getSizes(int orderX, int orderY, Domain domain, int flag, int* spec, int* init, int* work) {
    if (anyNull(spec, init, work)) return tpxErrNullPointer;
    return getSizes(Shape{orderX, orderY, true, domain}, flag, spec, init, work);
}
TpxStatus getSizes(TpxiSize size, Domain domain, int flag, int* spec, int* init, int* work) {
    if (anyNull(spec, init, work)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    return getSizes(Shape{size.width, size.height, false, domain}, flag, spec, init, work);
}

template <class Spec>
TpxStatus initOrders(int orderX, int orderY, int flag, int hint, Spec* spec, Tpx8u* initBuf) {
    if (orderX > kLargestOrder || orderY > kLargestOrder) return tpxErrFftOrder;
    if (anyNull(spec)) return tpxErrNullPointer;
    return initPlan(orderX, orderY, flag, hint, spec, initBuf);
}
template <class Spec>
TpxStatus initSize(TpxiSize size, int flag, int hint, Spec* spec, Tpx8u* initBuf) {
    if (anyNull(spec)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    return initPlan(size.width, size.height, flag, hint, spec, initBuf);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

using namespace tpx;

#define TPX_PLANS(FFT, DFT, domain, D, type)                                                                  \
    TPX_ENTRY(FFT##GetSize_##type)                                                                            \
    (int orderX, int orderY, int flag, TpxHintAlgorithm, int* pSpecSize, int* pInitBufSize, int* pWorkSize) { \
        return getSizes(orderX, orderY, Domain::domain, flag, pSpecSize, pInitBufSize, pWorkSize);            \
    }                                                                                                         \
    TPX_ENTRY(FFT##Init_##type)                                                                               \
    (int orderX, int orderY, int flag, TpxHintAlgorithm hint, TpxiFFT2DSpec_##D* pSpec, Tpx8u* pInitBuf) {    \
        return initOrders(orderX, orderY, flag, hint, pSpec, pInitBuf);                                       \
    }                                                                                                         \
    TPX_ENTRY(DFT##GetSize_##type)                                                                            \
    (TpxiSize roiSize, int flag, TpxHintAlgorithm, int* pSpecSize, int* pInitBufSize, int* pWorkSize) {       \
        return getSizes(roiSize, Domain::domain, flag, pSpecSize, pInitBufSize, pWorkSize);                   \
    }                                                                                                         \
    TPX_ENTRY(DFT##Init_##type)                                                                               \
    (TpxiSize roiSize, int flag, TpxHintAlgorithm hint, TpxiDFT2DSpec_##D* pSpec, Tpx8u* pInitBuf) {          \
        return initSize(roiSize, flag, hint, pSpec, pInitBuf);                                                \
    }

TPX_PLANS(tpxiFFT, tpxiDFT, Complex, C, C_32fc)
TPX_PLANS(tpxiFFT, tpxiDFT, Real, R, R_32f)

#undef TPX_PLANS
