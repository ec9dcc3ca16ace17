/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * libtpxcore: the companion of libtpxie9. It is the only part that asks anything of the platform: memory, and
 * the sizes of the processor's caches. */
#ifndef TPXCORE_H
#define TPXCORE_H

#include "tpxi/types.h"

TPX_EXTERN_C_BEGIN

/** @name Memory: tpxMalloc, tpxFree
 * @{ */

/**
 * Allocates memory that starts on a 64-byte boundary. Release it with tpxFree.
 *
 * @param length number of bytes; _L: of 64 bits
 * @return the memory; null on failure, and for a length below 1
 */
TPX_API void
    *tpxMalloc(int length),
    *tpxMalloc_L(TpxSizeL length);

/**
 * Releases what tpxMalloc and tpxMalloc_L gave.
 *
 * @param p the memory; null is ignored
 */
TPX_API void tpxFree(void* p);

/** @} */

/** @name Caches: tpxGetMaxCacheSizeB, tpx_get_cache_line_size
 * @{ */

/**
 * Tells the size of the largest cache of the processor (tpxGetMaxCacheSizeB), or of its cache line
 * (tpx_get_cache_line_size). A cache too large for the integer is told as the largest multiple of 4096 that
 * fits.
 *
 * @param pSizeByte takes the size in bytes
 * @return The first of these that applies: tpxErrNullPointer; tpxErrUnsupportedMode (neither the processor nor
 *     the operating system tells the size; nothing is stored); tpxOk.
 */
TPX_API TpxStatus
    tpxGetMaxCacheSizeB(int* pSizeByte),
    tpx_get_cache_line_size(int* pSizeByte);

/** @} */

TPX_EXTERN_C_END

#endif
