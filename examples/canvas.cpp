// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"

#include <pango/pangocairo.h>

#include <cstdio>

namespace {

struct Unref {
    void operator()(cairo_t* p) const { cairo_destroy(p); }
    void operator()(gpointer p) const { g_object_unref(p); }
};
using Context = std::unique_ptr<cairo_t, Unref>;
using Layout = std::unique_ptr<PangoLayout, Unref>;

cairo_surface_t* cairo(void* surface) { return static_cast<cairo_surface_t*>(surface); }

void check(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error(std::string("drawing: ") + cairo_status_to_string(status));
}

Layout layout(const std::vector<TextLine>& lines, int width) {
    std::string markup;
    for (const TextLine& line : lines) {
        char span[128];
        std::snprintf(span, sizeof span, "<span font='%s %dpx' foreground='#%02x%02x%02x'>", line.style.face,
                      line.style.size, line.style.colour[0], line.style.colour[1], line.style.colour[2]);
        // A file's name may be no UTF-8.
        char* valid = g_utf8_make_valid(line.text.data(), static_cast<gssize>(line.text.size()));
        char* escaped = g_markup_escape_text(valid, -1);
        if (!markup.empty()) markup += '\n';
        markup.append(span).append(escaped).append("</span>");
        g_free(escaped);
        g_free(valid);
    }
    const std::unique_ptr<PangoContext, Unref> context(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    Layout result(pango_layout_new(context.get()));
    pango_layout_set_width(result.get(), width * PANGO_SCALE);
    pango_layout_set_ellipsize(result.get(), PANGO_ELLIPSIZE_END); // each line by itself
    pango_layout_set_spacing(result.get(), 2 * PANGO_SCALE);
    pango_layout_set_markup(result.get(), markup.c_str(), -1);
    return result;
}

} // namespace

void Canvas::Release::operator()(void* surface) const { cairo_surface_destroy(cairo(surface)); }

Canvas::Canvas(TpxiSize size, const Tpx8u (&colour)[kChannels])
    : size_(size), surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height)) {
    check(cairo_surface_status(cairo(surface_.get())));
    fill({0, 0, size.width, size.height}, colour);
}

void Canvas::fill(TpxiRect area, const Tpx8u (&colour)[kChannels]) {
    const Context cr(cairo_create(cairo(surface_.get())));
    cairo_set_source_rgb(cr.get(), colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0);
    cairo_rectangle(cr.get(), area.x, area.y, area.width, area.height);
    cairo_fill(cr.get());
    check(cairo_status(cr.get()));
}

void Canvas::paste(ConstPixels picture, TpxiPoint at) {
    cairo_surface_t* surface = cairo(surface_.get());
    cairo_surface_flush(surface);
    const int step = cairo_image_surface_get_stride(surface);
    Tpx8u* dst = cairo_image_surface_get_data(surface) + static_cast<std::ptrdiff_t>(at.y) * step + at.x * 4;
    const int order[4] = {2, 1, 0, 3};
    ::check(tpxiSwapChannels_8u_C3C4R(picture.data, picture.step, dst, step, picture.size, order, 0),
            "tpxiSwapChannels_8u_C3C4R");
    cairo_surface_mark_dirty(surface);
}

void Canvas::write(const std::vector<TextLine>& lines, TpxiPoint at, int width) {
    const Context cr(cairo_create(cairo(surface_.get())));
    cairo_move_to(cr.get(), at.x, at.y);
    pango_cairo_show_layout(cr.get(), layout(lines, width).get());
    check(cairo_status(cr.get()));
}

int Canvas::height(const std::vector<TextLine>& lines, int width) {
    int height = 0;
    pango_layout_get_pixel_size(layout(lines, width).get(), nullptr, &height);
    return height;
}

Image8u Canvas::image() const {
    cairo_surface_t* surface = cairo(surface_.get());
    cairo_surface_flush(surface);
    Image8u image(size_);
    const Pixels dst = image.view();
    const int order[kChannels] = {2, 1, 0};
    ::check(
        tpxiSwapChannels_8u_C4C3R(cairo_image_surface_get_data(surface),
                                  cairo_image_surface_get_stride(surface), dst.data, dst.step, size_, order),
        "tpxiSwapChannels_8u_C4C3R");
    return image;
}
