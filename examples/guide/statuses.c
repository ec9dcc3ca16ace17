/* SPDX-License-Identifier: Apache-2.0 */
/* Statuses: 0 is success, a negative one an error, a positive one a warning. */
#include <stdio.h>
#include <tpxi.h>
#include <tpxi/status_text.h>

static void show(const char* what, TpxStatus status) {
    printf("%s: %d %s, %s\n", what, status, tpxStatusName(status), tpxStatusText(status));
}

int main(void) {
    const Tpx8u src[4] = {0, 1, 20, 55};
    Tpx8u dst[4] = {9, 9, 9, 9};
    const TpxiSize size = {4, 1}, flat = {4, 0};

    show("fine", tpxiLn_8u_C1RSfs(src + 1, 4, dst, 4, (TpxiSize){3, 1}, -4));

    /* A warning about samples: all results are stored, and are what the header says. */
    show("zero in a logarithm", tpxiLn_8u_C1RSfs(src, 4, dst, 4, size, -4));
    printf("  its result: %d\n", dst[0]);

    /* An error: nothing was written. */
    dst[0] = 9;
    show("no rows", tpxiLn_8u_C1RSfs(src, 4, dst, 4, flat, -4));
    show("no image", tpxiLn_8u_C1RSfs(NULL, 4, dst, 4, size, -4));
    printf("  dst as before: %d\n", dst[0]);

    /* A warning that nothing was to be done: no size is stored here. */
    int planBytes = -1, initBytes = -1;
    show("nothing to resize",
         tpxiResizeGetSize_8u(size, flat, tpxInterpolationNearest, 0, &planBytes, &initBytes));
    printf("  bytes as before: %d\n", planBytes);
    return 0;
}
