/* SPDX-License-Identifier: Apache-2.0 */
/* Borders: what a filter reads beyond the region it is given. */
#include <stdio.h>
#include <stdlib.h>
#include <tpxi.h>

/* The mean of 3 x 1 of one row of pixels. */
static void show(const char* name, const Tpx8u* src, TpxBorderType border, const Tpx8u* value) {
    const TpxiSize size = {4, 1}, mask = {3, 1};
    Tpx8u dst[4];
    int bytes, i;
    tpxiFilterBoxBorderGetBufferSize(size, mask, tpxDataType8u, 1, &bytes);
    Tpx8u* buffer = malloc((size_t)bytes + 1);
    TpxStatus status = tpxiFilterBoxBorder_8u_C1R(src, 6, dst, 4, size, mask, border, value, buffer);
    free(buffer);
    printf("%-12s", name);
    if (status != tpxOk) printf("  status %d", status);
    for (i = 0; i < 4 && status == tpxOk; ++i) printf("%5d", dst[i]);
    printf("\n");
}

int main(void) {
    /* The region is the middle of a row of six pixels. */
    const Tpx8u row[6] = {240, 30, 60, 90, 120, 0}, black = 0;
    const Tpx8u* region = row + 1;

    show("replicate", region, tpxBorderReplicate, NULL);
    show("mirror", region, tpxBorderMirror, NULL);
    show("constant", region, tpxBorderConstant, &black);

    /* The pixels around the region are there, so they may be read: on all sides, or on some. */
    show("in memory", region, tpxBorderInMemAll, NULL);
    show("left only", region, tpxBorderReplicate | tpxBorderInMemLeft, NULL);

    show("unknown", region, 5, NULL);
    return 0;
}
