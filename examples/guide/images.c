/* SPDX-License-Identifier: Apache-2.0 */
/* Images and steps: memory from the library or the caller's own, pixels, regions. */
#include <stdio.h>
#include <tpxi.h>

int main(void) {
    /* Memory from the library: every row starts on 64 bytes. */
    const TpxiSize size = {100, 80};
    int step;
    Tpx8u* image = tpxiMalloc_8u_C3(size.width, size.height, &step);
    if (!image) return 1;
    printf("a row of %d pixels of 3 bytes, one every %d bytes\n", size.width, step);

    const Tpx8u grey[3] = {90, 90, 90}, red[3] = {200, 0, 0};
    tpxiSet_8u_C3R(grey, image, step, size);

    /* A region is the address of its first pixel, the image's step, and a size of its own. */
    const TpxiRect r = {10, 20, 30, 40};
    Tpx8u* region = image + r.y * step + r.x * 3;
    const TpxiSize regionSize = {r.width, r.height};
    tpxiSet_8u_C3R(red, region, step, regionSize);

    /* Memory of the caller's own: any address and step will do. */
    static Tpx8u copy[40][30][3];
    tpxiCopy_8u_C3R(region - 3, step, copy[0][0], sizeof copy[0], regionSize);
    printf("in the copy, left to right: %d %d\n", copy[0][0][0], copy[0][1][0]);

    /* Steps count bytes, whatever the samples are. */
    static Tpx32f plane[40][30];
    tpxiSet_32f_C1R(0.5f, plane[0], sizeof plane[0], regionSize);
    Tpx64f sum;
    tpxiSum_32f_C1R(plane[0], sizeof plane[0], regionSize, &sum, tpxHintFast);
    printf("the sum of %d samples: %g\n", 30 * 40, sum);
    tpxiFree(image);
    return 0;
}
