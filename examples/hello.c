/* SPDX-License-Identifier: Apache-2.0
 * Sharpens a PNG picture: hello IN.png OUT.png */
#include <png.h>
#include <stdio.h>
#include <string.h>
#include <tpxi.h>
#include <tpxi/status_text.h>

/* The filter works in a buffer of the caller's, whose size the library tells. */
static TpxStatus sharpen(const Tpx8u* src, Tpx8u* dst, int step, TpxiSize size) {
    int bytes = 0, bufferStep = 0;
    Tpx8u* buffer;
    TpxStatus status = tpxiFilterSharpenBorderGetBufferSize(size, 33, tpxDataType8u, tpxDataType8u, 3, &bytes);
    if (status != tpxOk) return status;
    buffer = tpxiMalloc_8u_C1(bytes, 1, &bufferStep);
    if (!buffer) return tpxErrMemAlloc;
    status = tpxiFilterSharpenBorder_8u_C3R(src, step, dst, step, size, 33, tpxBorderReplicate, 0, buffer);
    tpxiFree(buffer);
    return status;
}

int main(int argc, char** argv) {
    png_image png;
    TpxiSize size;
    int step = 0, done = 0;
    Tpx8u *photo, *sharp;
    if (argc != 3) return fprintf(stderr, "usage: hello IN.png OUT.png\n"), 2;

    memset(&png, 0, sizeof png);
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, argv[1]))
        return fprintf(stderr, "%s: %s\n", argv[1], png.message), 1;
    png.format = PNG_FORMAT_RGB;
    size.width = (int)png.width;
    size.height = (int)png.height;
    photo = tpxiMalloc_8u_C3(size.width, size.height, &step); /* rows start on 64 bytes */
    sharp = tpxiMalloc_8u_C3(size.width, size.height, &step);
    if (!photo || !sharp) {
        fprintf(stderr, "%s: %s\n", argv[1], tpxStatusText(tpxErrMemAlloc));
    } else if (!png_image_finish_read(&png, NULL, photo, step, NULL)) {
        fprintf(stderr, "%s: %s\n", argv[1], png.message);
    } else {
        const TpxStatus status = sharpen(photo, sharp, step, size);
        if (status < 0)
            fprintf(stderr, "%s: %s\n", tpxStatusName(status), tpxStatusText(status));
        else if (!png_image_write_to_file(&png, argv[2], 0, sharp, step, NULL))
            fprintf(stderr, "%s: %s\n", argv[2], png.message);
        else
            done = 1;
    }
    png_image_free(&png);
    tpxiFree(photo);
    tpxiFree(sharp);
    return !done;
}
