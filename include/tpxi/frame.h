/* The library's frame: version and image memory. */
#ifndef TPXI_FRAME_H
#define TPXI_FRAME_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/* ---- Version ----------------------------------------------------------------------------------------
 * Points at the library's constant version record. */
TPX_API const TpxLibraryVersion* tpxiGetLibVersion(void);

/* ---- Image memory: tpxiMalloc, tpxiFree ---------------------------------------------------------------
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary, and stores the
 * step in bytes: the row's length rounded up to a multiple of 64. Release it with tpxiFree.
 *
 * Null is the only report of failure:
 *   - pStepBytes is null: nothing is stored;
 *   - width or height below 1, or a row too long: 0 is stored;
 *   - the block is too large (from 0x80000000 bytes in the short form) or memory is short: the step stays
 *     stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF bytes rounds up to a negative step. */
TPX_API Tpx8u* tpxiMalloc_8u_C1(int width, int height, int* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C2(int width, int height, int* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C3(int width, int height, int* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C4(int width, int height, int* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C1(int width, int height, int* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C2(int width, int height, int* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C3(int width, int height, int* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C4(int width, int height, int* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C1(int width, int height, int* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C2(int width, int height, int* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C3(int width, int height, int* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C4(int width, int height, int* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C1(int width, int height, int* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C2(int width, int height, int* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C3(int width, int height, int* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C4(int width, int height, int* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C1(int width, int height, int* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C2(int width, int height, int* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C3(int width, int height, int* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C4(int width, int height, int* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C1(int width, int height, int* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C2(int width, int height, int* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C3(int width, int height, int* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C4(int width, int height, int* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_AC4(int width, int height, int* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C1(int width, int height, int* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C2(int width, int height, int* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C3(int width, int height, int* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C4(int width, int height, int* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_AC4(int width, int height, int* pStepBytes);

TPX_API Tpx8u* tpxiMalloc_8u_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx8u* tpxiMalloc_8u_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16u* tpxiMalloc_16u_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx16s* tpxiMalloc_16s_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32s* tpxiMalloc_32s_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32f* tpxiMalloc_32f_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32sc* tpxiMalloc_32sc_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);
TPX_API Tpx32fc* tpxiMalloc_32fc_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/* Releases a block of either form. */
TPX_API void tpxiFree(void* p);

TPX_EXTERN_C_END

#endif
