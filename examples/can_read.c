/* SPDX-License-Identifier: Apache-2.0 */
/* Reads a PNG file and says what is wrong with it, if anything: tools/demo asks before it builds the library.
 */
#include <png.h>
#include <stdio.h>
#include <stdlib.h>

int main(int argc, char** argv) {
    png_image image = {.version = PNG_IMAGE_VERSION};
    void* pixels = NULL;
    int ok;
    if (argc != 2) return 2;
    ok = png_image_begin_read_from_file(&image, argv[1]);
    if (ok) {
        image.format = PNG_FORMAT_RGBA;
        pixels = malloc(PNG_IMAGE_SIZE(image));
        if (pixels) ok = png_image_finish_read(&image, NULL, pixels, 0, NULL); /* else too large to tell */
    }
    if (!ok) fprintf(stderr, "%s: %s\n", argv[1], image.message);
    free(pixels);
    png_image_free(&image);
    return !ok;
}
