/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * The library's frame: version and image memory. */
#ifndef TPXI_FRAME_H
#define TPXI_FRAME_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Version: tpxiGetLibVersion
 * @{ */

/**
 * Points at the library's constant version record.
 * @return the record; never null, and nothing to release
 */
TPX_API const TpxLibraryVersion* tpxiGetLibVersion(void);

/** @} */

/** @name Image memory: tpxiMalloc
 * @{ */

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx8u
    *tpxiMalloc_8u_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_8u_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_8u_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_8u_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_8u_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_8u_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_8u_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_8u_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_8u_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_8u_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx16u
    *tpxiMalloc_16u_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_16u_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_16u_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_16u_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_16u_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_16u_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16u_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16u_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16u_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16u_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx16s
    *tpxiMalloc_16s_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_16s_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_16s_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_16s_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_16s_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_16s_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16s_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16s_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16s_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_16s_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx32s
    *tpxiMalloc_32s_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_32s_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_32s_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_32s_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_32s_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_32s_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32s_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32s_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32s_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32s_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx32f
    *tpxiMalloc_32f_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_32f_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_32f_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_32f_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_32f_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_32f_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32f_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32f_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32f_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32f_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx32sc
    *tpxiMalloc_32sc_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_32sc_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_32sc_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_32sc_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_32sc_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_32sc_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32sc_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32sc_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32sc_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32sc_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/**
 * Allocates an image of width x height pixels whose rows all start on a 64-byte boundary. Release it with
 * tpxiFree. _L: sizes and steps of 64 bits.
 *
 * @param width      pixels of a row
 * @param height     number of rows
 * @param pStepBytes takes the step: the bytes of a row, rounded up to a multiple of 64
 * @return the first pixel. Null is the only report of failure: pStepBytes is null and takes nothing; width or
 *     height below 1, or a row too long, and the step is 0; the block is too large (from 0x80000000 bytes, in
 *     the short form) or memory is short, and the step is stored. A short row of 0x7FFFFFC1 to 0x7FFFFFFF
 *     bytes rounds up to a negative step.
 */
TPX_API Tpx32fc
    *tpxiMalloc_32fc_C1(int width, int height, int* pStepBytes),
    *tpxiMalloc_32fc_C2(int width, int height, int* pStepBytes),
    *tpxiMalloc_32fc_C3(int width, int height, int* pStepBytes),
    *tpxiMalloc_32fc_C4(int width, int height, int* pStepBytes),
    *tpxiMalloc_32fc_AC4(int width, int height, int* pStepBytes),

    *tpxiMalloc_32fc_C1_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32fc_C2_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32fc_C3_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32fc_C4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes),
    *tpxiMalloc_32fc_AC4_L(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes);

/** @} */

/** @name Releasing: tpxiFree
 * @{ */

/**
 * Releases an image that a function of the tpxiMalloc family gave, of either form.
 *
 * @param p the image; null is ignored
 */
TPX_API void tpxiFree(void* p);

/** @} */

TPX_EXTERN_C_END

#endif
