/* SPDX-License-Identifier: Apache-2.0 */
/* Results come again: from any address, step and tile of integers; sums of floats from the same arguments. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <tpxi.h>

enum { kWidth = 203, kHeight = 50 };

int main(void) {
    static Tpx8u src[kHeight][kWidth], whole[kHeight][kWidth], parts[kHeight][kWidth];
    static Tpx32f real[kHeight][kWidth + 5];
    const TpxiSize size = {kWidth, kHeight}, mask = {5, 5};
    int x, y, bytes;
    srand(1);
    for (y = 0; y < kHeight; ++y)
        for (x = 0; x < kWidth; ++x) {
            src[y][x] = (Tpx8u)rand();
            real[y][x] = (Tpx32f)rand() / 1e6f;
        }

    /* A filter of bytes, at once and in tiles 37 pixels wide. */
    tpxiFilterBoxBorderGetBufferSize(size, mask, tpxDataType8u, 1, &bytes);
    Tpx8u* buffer = malloc((size_t)bytes + 1);
    tpxiFilterBoxBorder_8u_C1R(src[0], kWidth, whole[0], kWidth, size, mask, tpxBorderReplicate, NULL, buffer);
    for (x = 0; x < kWidth; x += 37) {
        const TpxiSize tile = {kWidth - x < 37 ? kWidth - x : 37, kHeight};
        TpxBorderType border = tpxBorderReplicate;
        if (x > 0) border |= tpxBorderInMemLeft;
        if (x + tile.width < kWidth) border |= tpxBorderInMemRight;
        tpxiFilterBoxBorder_8u_C1R(&src[0][x], kWidth, &parts[0][x], kWidth, tile, mask, border, NULL, buffer);
    }
    printf("means of bytes, in tiles as at once: %s\n", memcmp(whole, parts, sizeof whole) ? "no" : "yes");

    /* A sum of floats: the same call again, and the true sum. */
    Tpx64f first, again, plain = 0;
    tpxiSum_32f_C1R(real[0], sizeof real[0], size, &first, tpxHintFast);
    tpxiSum_32f_C1R(real[0], sizeof real[0], size, &again, tpxHintFast);
    for (y = 0; y < kHeight; ++y)
        for (x = 0; x < kWidth; ++x) plain += real[y][x];
    printf("a sum of floats, again as before: %s\n", first == again ? "yes" : "no");
    printf("beside a loop of doubles within 1e-12: %s\n",
           first - plain < 1e-12 * plain && plain - first < 1e-12 * plain ? "yes" : "no");
    free(buffer);
    return 0;
}
