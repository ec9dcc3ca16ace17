/* SPDX-License-Identifier: Apache-2.0 */
/* Scale factors: integer results are multiplied by 2^-n, rounded to nearest with ties to even, and saturated.
 */
#include <stdio.h>
#include <tpxi.h>

static void show(const char* what, const Tpx8u* samples) {
    printf("%-22s%4d%4d%4d%4d\n", what, samples[0], samples[1], samples[2], samples[3]);
}

int main(void) {
    const TpxiSize size = {4, 1};
    const Tpx8u a[4] = {3, 12, 100, 255}, b[4] = {4, 13, 200, 255};
    Tpx8u dst[4];
    show("a", a);
    show("b", b);

    tpxiAdd_8u_C1RSfs(a, 4, b, 4, dst, 4, size, 0);
    show("a + b, saturated", dst);
    tpxiAdd_8u_C1RSfs(a, 4, b, 4, dst, 4, size, 1);
    show("(a + b) / 2, to even", dst);

    tpxiSqr_8u_C1RSfs(a, 4, dst, 4, size, 8);
    show("a^2 / 256", dst);

    /* Negative factors keep bits that rounding would lose. */
    tpxiSqrt_8u_C1RSfs(a, 4, dst, 4, size, 0);
    show("root of a", dst);
    tpxiSqrt_8u_C1RSfs(a, 4, dst, 4, size, -4);
    show("root of a, times 16", dst);
    return 0;
}
