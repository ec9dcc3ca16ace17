/*
 * libtpxcore: the companion of libtpxie9. It is the only part that asks anything of the platform:
 * memory, and the sizes of the processor's caches.
 */
#ifndef TPXCORE_H
#define TPXCORE_H

#include "tpxi/types.h"

TPX_EXTERN_C_BEGIN

/* Memory of `length` bytes that starts on a 64-byte boundary. Null on failure or for a length below 1. */
TPX_API void* tpxMalloc(int length);
TPX_API void* tpxMalloc_L(TpxSizeL length);

/* Releases what tpxMalloc and tpxMalloc_L gave. Null is ignored. */
TPX_API void tpxFree(void* p);

/* Stores the size in bytes of the largest cache of the processor, or of its cache line.
 * Statuses: tpxErrNullPointer; tpxErrUnsupportedMode if neither the processor nor the operating system
 * tells the size, nothing being stored then; tpxOk. A cache too large for the integer is stored as the
 * largest multiple of 4096 that fits. */
TPX_API TpxStatus tpxGetMaxCacheSizeB(int* pSizeByte);
TPX_API TpxStatus tpx_get_cache_line_size(int* pSizeByte);

TPX_EXTERN_C_END

#endif
