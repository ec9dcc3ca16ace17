/* SPDX-License-Identifier: Apache-2.0 */
/* Plans: ask for sizes, make the plan once, use it for any number of images. */
#include <stdio.h>
#include <stdlib.h>
#include <tpxi.h>

int main(void) {
    const TpxiSize srcSize = {64, 48}, dstSize = {16, 12};
    int planBytes, initBytes, bufferBytes;

    /* 1. How many bytes the plan takes, and the memory for making it. */
    TpxStatus status =
        tpxiResizeGetSize_8u(srcSize, dstSize, tpxInterpolationLanczos, 1, &planBytes, &initBytes);
    if (status != tpxOk) return 1;

    /* 2. Make it. What it was made with is not needed any more. */
    TpxiResizeSpec* plan = malloc((size_t)planBytes);
    Tpx8u* init = malloc((size_t)initBytes + 1);
    status = tpxiResizeAntialiasingLanczosInit(srcSize, dstSize, 3, plan, init);
    free(init);
    if (status != tpxOk) return 1;

    /* 3. A work buffer: one for each call that runs at a time. */
    if (tpxiResizeGetBufferSize_8u(plan, dstSize, 1, &bufferBytes) != tpxOk) return 1;
    Tpx8u* buffer = malloc((size_t)bufferBytes + 1);

    /* 4. Any number of images of these sizes. */
    static Tpx8u src[48][64], dst[12][16];
    const TpxiPoint whole = {0, 0};
    int grey;
    for (grey = 50; grey <= 250; grey += 100) {
        tpxiSet_8u_C1R((Tpx8u)grey, src[0], sizeof src[0], srcSize);
        status = tpxiResizeAntialiasing_8u_C1R(src[0], sizeof src[0], dst[0], sizeof dst[0], whole, dstSize,
                                               tpxBorderReplicate, NULL, plan, buffer);
        printf("grey %d: status %d, the middle is %d\n", grey, status, dst[6][8]);
    }

    /* There is nothing to release but the memory. */
    free(buffer);
    free(plan);
    return 0;
}
