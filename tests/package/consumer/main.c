// SPDX-License-Identifier: Apache-2.0
/* A user's program in strict C99: an image is allocated, filled within a region and rooted in place. */
#include <stdio.h>
#include <string.h>
#include <tpxi.h>

static int failures = 0;

static void expect(int holds, const char* what) {
    if (holds) return;
    fprintf(stderr, "does not hold: %s\n", what);
    ++failures;
}
#define EXPECT(condition) expect((condition), #condition)

int main(void) {
    enum { width = 100, height = 7, left = 3, value = 200 };
    const TpxLibraryVersion* version = tpxiGetLibVersion();
    const TpxiSize region = {width - left, height - 1};
    int step = 0;
    int strays = 0;
    Tpx8u* image = tpxiMalloc_8u_C1(width, height, &step);

    EXPECT(version->major == 2017 && version->minor == 0 && version->update == 3);
    EXPECT(strcmp(version->targetCpu, "e9") == 0);
    EXPECT(step == 128);
    EXPECT((uintptr_t)image % 64 == 0);
    if (!image) return 1;

    memset(image, 77, (size_t)step * height);
    EXPECT(tpxiSet_8u_C1R(value, image + left, step, region) == tpxOk);
    EXPECT(tpxiSqrt_8u_C1IRSfs(image + left, step, region, 0) == tpxOk);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < step; ++x) {
            const int inside = x >= left && x < width && y < height - 1;
            strays += image[y * step + x] != (inside ? 14 : 77); /* the square root of 200 is 14.1 */
        }
    }
    EXPECT(strays == 0);
    EXPECT(tpxiSet_8u_C1R(value, NULL, step, region) == tpxErrNullPointer);
    tpxiFree(image);
    return failures != 0;
}
