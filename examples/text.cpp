// SPDX-License-Identifier: Apache-2.0
#include "text.h"

#include <cairo.h>

#include <algorithm>
#include <memory>

namespace {

struct Release {
    void operator()(cairo_surface_t* p) const { cairo_surface_destroy(p); }
    void operator()(cairo_t* p) const { cairo_destroy(p); }
};
using Surface = std::unique_ptr<cairo_surface_t, Release>;
using Context = std::unique_ptr<cairo_t, Release>;

double advance(cairo_t* cr, const std::string& text) {
    cairo_text_extents_t extents;
    cairo_text_extents(cr, text.c_str(), &extents);
    return extents.x_advance;
}

void dropLastCharacter(std::string& text) {
    while (!text.empty() && (text.back() & 0xC0) == 0x80) text.pop_back();
    if (!text.empty()) text.pop_back();
}

} // namespace

void drawText(Pixels dst, int x, int baseline, int width, const std::string& text, const TextStyle& style) {
    // Coverage of a strip with room above and below the baseline, then blended with the colour.
    const int above = static_cast<int>(style.size * 1.25);
    const int height = static_cast<int>(style.size * 1.75);
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, width, height));
    const Context cr(cairo_create(surface.get()));
    cairo_select_font_face(cr.get(), style.family, CAIRO_FONT_SLANT_NORMAL,
                           style.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr.get(), style.size);

    std::string shown = text;
    if (advance(cr.get(), shown) > width) {
        do dropLastCharacter(shown);
        while (!shown.empty() && advance(cr.get(), shown + "\u2026") > width);
        shown += "\u2026";
    }
    cairo_move_to(cr.get(), 0, above);
    cairo_show_text(cr.get(), shown.c_str());
    cairo_surface_flush(surface.get());
    if (cairo_status(cr.get()) == CAIRO_STATUS_INVALID_STRING) {
        // Not UTF-8, as a file's name may be.
        std::string ascii = text;
        std::replace_if(
            ascii.begin(), ascii.end(), [](char c) { return c & 0x80; }, '?');
        return drawText(dst, x, baseline, width, ascii, style);
    }
    if (cairo_status(cr.get()) != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error(std::string("drawing text: ") +
                                 cairo_status_to_string(cairo_status(cr.get())));

    const unsigned char* coverage = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    const int top = baseline - above;
    for (int i = std::max(0, -top); i < std::min(height, dst.size.height - top); ++i)
        for (int j = std::max(0, -x); j < std::min(width, dst.size.width - x); ++j) {
            Tpx8u* pixel = dst.at(x + j, top + i);
            const int a = coverage[i * stride + j];
            for (int c = 0; c < kChannels; ++c)
                pixel[c] = static_cast<Tpx8u>((pixel[c] * (255 - a) + style.colour[c] * a + 127) / 255);
        }
}
