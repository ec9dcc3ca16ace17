// SPDX-License-Identifier: Apache-2.0
// The run routines (tpxs*): checked work on one contiguous run, called inside the library and not exported.
//
// Common contract: each required pointer null gives tpxErrNullPointer, then a length below 1 tpxErrSize;
// nothing has been changed then. Lengths are in samples. The own* workers check nothing.
//
// Routines that nothing calls yet name the families that will ("to come").
#pragma once

#include "tpxi/types.h"

#define TPXS(name) e9_tpxs##name

extern "C" {

// ---- Copy, set, zero (frame/runs/memory_runs.cpp): source and destination do not overlap ---------------
// To come: rows that filters and transforms set aside or pad; Zero_32s for the counts of medians.
TpxStatus TPXS(Copy_8u)(const Tpx8u* pSrc, Tpx8u* pDst, int len);
TpxStatus TPXS(Copy_16s)(const Tpx16s* pSrc, Tpx16s* pDst, int len);
TpxStatus TPXS(Copy_32s)(const Tpx32s* pSrc, Tpx32s* pDst, int len);
TpxStatus TPXS(Copy_32f)(const Tpx32f* pSrc, Tpx32f* pDst, int len);
TpxStatus TPXS(Copy_64f)(const Tpx64f* pSrc, Tpx64f* pDst, int len);

TpxStatus TPXS(Set_8u)(Tpx8u val, Tpx8u* pDst, int len);
TpxStatus TPXS(Set_16s)(Tpx16s val, Tpx16s* pDst, int len);
TpxStatus TPXS(Set_32f)(Tpx32f val, Tpx32f* pDst, int len);
TpxStatus TPXS(Set_64f)(Tpx64f val, Tpx64f* pDst, int len);
TpxStatus TPXS(Set_32fc)(Tpx32fc val, Tpx32fc* pDst, int len);

TpxStatus TPXS(Zero_8u)(Tpx8u* pDst, int len);
TpxStatus TPXS(Zero_16s)(Tpx16s* pDst, int len);
TpxStatus TPXS(Zero_32s)(Tpx32s* pDst, int len);
TpxStatus TPXS(Zero_32f)(Tpx32f* pDst, int len);
TpxStatus TPXS(Zero_64f)(Tpx64f* pDst, int len);
TpxStatus TPXS(Zero_32fc)(Tpx32fc* pDst, int len);

// ---- Reversal, constants, slopes, extremes (frame/runs/sample_runs.cpp) --------------------------------
// To come: mirrored images.
TpxStatus TPXS(Flip_8u)(const Tpx8u* pSrc, Tpx8u* pDst, int len);
TpxStatus TPXS(Flip_16u)(const Tpx16u* pSrc, Tpx16u* pDst, int len);
TpxStatus TPXS(Flip_32f)(const Tpx32f* pSrc, Tpx32f* pDst, int len);
TpxStatus TPXS(Flip_8u_I)(Tpx8u* pSrcDst, int len);
TpxStatus TPXS(Flip_16u_I)(Tpx16u* pSrcDst, int len);
TpxStatus TPXS(Flip_32f_I)(Tpx32f* pSrcDst, int len);

// Multiplies by a constant. 1 touches nothing; 0 clears the run, NaN and infinity included.
// To come: the scaling of transforms.
TpxStatus TPXS(MulC_32f_I)(Tpx32f val, Tpx32f* pSrcDst, int len);

// Writes offset + slope * i, rounded half away from zero and saturated in the integer forms.
// To come: images of ramps.
TpxStatus TPXS(VectorSlope_8u)(Tpx32f offset, Tpx32f slope, Tpx8u* pDst, int len);
TpxStatus TPXS(VectorSlope_16u)(Tpx32f offset, Tpx32f slope, Tpx16u* pDst, int len);
TpxStatus TPXS(VectorSlope_16s)(Tpx32f offset, Tpx32f slope, Tpx16s* pDst, int len);
TpxStatus TPXS(VectorSlope_32f)(Tpx32f offset, Tpx32f slope, Tpx32f* pDst, int len);

// To come: minimum and maximum filters.
TpxStatus TPXS(MaxEvery_8u_I)(const Tpx8u* pSrc, Tpx8u* pSrcDst, int len);
TpxStatus TPXS(MaxEvery_16u_I)(const Tpx16u* pSrc, Tpx16u* pSrcDst, int len);
TpxStatus TPXS(MaxEvery_16s_I)(const Tpx16s* pSrc, Tpx16s* pSrcDst, int len);
TpxStatus TPXS(MaxEvery_32f_I)(const Tpx32f* pSrc, Tpx32f* pSrcDst, int len);
TpxStatus TPXS(MinEvery_8u_I)(const Tpx8u* pSrc, Tpx8u* pSrcDst, int len);
TpxStatus TPXS(MinEvery_16u_I)(const Tpx16u* pSrc, Tpx16u* pSrcDst, int len);
TpxStatus TPXS(MinEvery_16s_I)(const Tpx16s* pSrc, Tpx16s* pSrcDst, int len);
TpxStatus TPXS(MinEvery_32f_I)(const Tpx32f* pSrc, Tpx32f* pSrcDst, int len);

// ---- Sorting (frame/runs/sort.cpp) ---------------------------------------------------------------------
// To come: medians, by comparison for small masks and by radix for large ones.
TpxStatus TPXS(SortAscend_32f_I)(Tpx32f* pSrcDst, int len);
// Bytes that the radix sort of `len` samples needs; a length below 1 is found before a bad data type.
TpxStatus TPXS(SortRadixGetBufferSize)(int len, TpxDataType dataType, int* pSize);
TpxStatus TPXS(SortRadixAscend_32f_I)(Tpx32f* pSrcDst, int len, Tpx8u* pBuffer);

// ---- Scalars (frame/runs/scalar_math.cpp): no status ---------------------------------------------------
// Floor and ceiling do not depend on the control register's rounding. The others are right to less than 1 unit
// in the last place when it says to nearest, for all arguments; the measured bounds stand in the file. Special
// values are those of C99, except that the sine and cosine of infinity and NaN are x * -0.0, a NaN.
// To come: exponential, logarithm and power for the weights of filters, square roots for the edges of
// warps.
double TPXS(FabsOne)(double x);
double TPXS(FloorOne)(double x);
double TPXS(CeilOne)(double x);
double TPXS(SqrtOne)(double x);
double TPXS(SinOne)(double x);
double TPXS(CosOne)(double x);
double TPXS(ExpOne)(double x);
double TPXS(LogOne)(double x);
double TPXS(PowOne)(double x, double y);
float TPXS(FloorOneF)(float x);
float TPXS(SqrtOneF)(float x);
float TPXS(ExpOneF)(float x);
}

namespace tpx {

// Workers for callers that have checked their arguments (frame/runs/memory_runs.cpp): lengths in samples
// from 1.
void ownsCopy_8u(const Tpx8u* pSrc, Tpx8u* pDst, int64_t len);
void ownsSet_8u(Tpx8u val, Tpx8u* pDst, int64_t len);
void ownsSet_16u(Tpx16u val, Tpx16u* pDst, int64_t len);
void ownsSet_32s(Tpx32s val, Tpx32s* pDst, int64_t len);
void ownsSet_64s(Tpx64s val, Tpx64s* pDst, int64_t len);
void ownsZero_8u(Tpx8u* pDst, int64_t len);

} // namespace tpx
