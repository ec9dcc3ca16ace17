// SPDX-License-Identifier: Apache-2.0
/* The companion alone. */
#include <tpxcore.h>

int main(void) {
    int cache = 0;
    int line = 0;
    void* block = tpxMalloc(1000);
    const int sound = block && (uintptr_t)block % 64 == 0 && tpxGetMaxCacheSizeB(&cache) == tpxOk &&
                      tpx_get_cache_line_size(&line) == tpxOk && cache > line && line > 0;
    tpxFree(block);
    return !sound;
}
