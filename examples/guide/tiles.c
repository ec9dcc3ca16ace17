/* SPDX-License-Identifier: Apache-2.0 */
/* Tiles and threads: bands of a destination resized by one plan, each by a thread, with the bytes of one call.
 */
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <tpxi.h>

enum { kBands = 4 };
static const TpxiSize srcSize = {60, 40}, dstSize = {90, 61};
static Tpx8u src[40][60], whole[61][90], tiled[61][90];
static TpxiResizeSpec* plan;

/* Resizes rows first to last - 1 of the destination. */
static void resize(Tpx8u dst[61][90], int first, int last) {
    const TpxiPoint offset = {0, first};
    const TpxiSize size = {dstSize.width, last - first};
    TpxiPoint from; /* the first source pixel of the tile */
    int bytes;
    tpxiResizeGetSrcOffset_8u(plan, offset, &from);
    tpxiResizeGetBufferSize_8u(plan, size, 1, &bytes);
    Tpx8u* buffer = malloc((size_t)bytes + 1); /* every thread has its own */
    TpxBorderType border = tpxBorderReplicate; /* at the image's sides; at a seam the neighbours are read */
    if (first > 0) border |= tpxBorderInMemTop;
    if (last < dstSize.height) border |= tpxBorderInMemBottom;
    tpxiResizeLinear_8u_C1R(src[from.y], sizeof src[0], dst[first], sizeof dst[0], offset, size, border, NULL,
                            plan, buffer);
    free(buffer);
}

static void* band(void* number) {
    const int i = *(const int*)number;
    resize(tiled, dstSize.height * i / kBands, dstSize.height * (i + 1) / kBands);
    return NULL;
}

int main(void) {
    int bytes, none, numbers[kBands], i;
    pthread_t threads[kBands];
    for (i = 0; i < srcSize.width * srcSize.height; ++i) src[i / 60][i % 60] = (Tpx8u)(i * i / 7);
    tpxiResizeGetSize_8u(srcSize, dstSize, tpxInterpolationLinear, 0, &bytes, &none);
    plan = malloc((size_t)bytes);
    if (tpxiResizeLinearInit_8u(srcSize, dstSize, plan) != tpxOk) return 1;

    resize(whole, 0, dstSize.height);
    for (i = 0; i < kBands; ++i) {
        numbers[i] = i;
        pthread_create(&threads[i], NULL, band, &numbers[i]);
    }
    for (i = 0; i < kBands; ++i) pthread_join(threads[i], NULL);
    printf("%d bands, the bytes of one call: %s\n", kBands, memcmp(whole, tiled, sizeof whole) ? "no" : "yes");
    free(plan);
    return 0;
}
