// SPDX-License-Identifier: Apache-2.0
// Resize: planned once, done tile by tile on two threads.
#include "gallery.h"
#include "tiled_resize.h"

namespace {

struct Resized {
    Image8u image;
    Operation operation;
};

Resized resize(const char* name, ResizeKind kind, ConstPixels src, TpxiSize dstSize) {
    Image8u dst(dstSize);
    TiledResize plan(kind, src.size, dstSize, kThreads);
    const double ms = bestTime([&] { plan.run(src, dst.view()); });
    return {std::move(dst), {name, TiledResize::function(kind), src.size, dstSize, plan.threads(), ms}};
}

// A zone plate: rings that grow finer with the distance from the middle, down to two pixels at the sides.
Image8u finestRings(TpxiSize size) {
    Image8u image(size);
    const Pixels dst = image.view();
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const double dx = x - size.width / 2, dy = y - size.height / 2;
            const double phase = 3.14159265 * (dx * dx + dy * dy) / size.width;
            std::fill_n(dst.at(x, y), kChannels,
                        static_cast<Tpx8u>(std::lround(127.5 + 127.5 * std::cos(phase))));
        }
    return image;
}

} // namespace

void resizes(Gallery& gallery, const Image8u& source) {
    const ConstPixels photo = source.view();
    const TpxiSize size = photo.size;

    const Resized larger = resize("Linear, 1.5 times, the middle", ResizeKind::linear, photo,
                                  {size.width * 3 / 2, size.height * 3 / 2});
    gallery.show(larger.image.view().centre(gallery.sheet().box()), larger.operation);
    const Resized stretched = resize("Linear, to another shape", ResizeKind::linear, photo, {300, 400});
    gallery.show(stretched.image.view(), stretched.operation);

    gallery.section("A detail six times enlarged");
    // A region of interest is a pointer into the photograph and the photograph's step: nothing is copied.
    constexpr int kZoom = 6;
    const ConstPixels detail = photo.centre({300 / kZoom, 200 / kZoom});
    const TpxiSize enlarged = {detail.size.width * kZoom, detail.size.height * kZoom};
    for (const Resized& r : {resize("Nearest", ResizeKind::nearest, detail, enlarged),
                             resize("Linear", ResizeKind::linear, detail, enlarged),
                             resize("Cubic", ResizeKind::cubic, detail, enlarged),
                             resize("Lanczos, 3 lobes", ResizeKind::lanczos, detail, enlarged)})
        gallery.show(r.image.view(), r.operation);

    gallery.section("Fine rings, a quarter of their size: all but the inner ones should turn grey");
    constexpr int kReduction = 4;
    const TpxiSize small = {300, 200};
    const Image8u rings = finestRings({small.width * kReduction, small.height * kReduction});
    for (const Resized& r :
         {resize("Nearest", ResizeKind::nearest, rings.view(), small),
          resize("Linear: false rings", ResizeKind::linear, rings.view(), small),
          resize("Super-sampling", ResizeKind::super, rings.view(), small),
          resize("Antialiasing, Lanczos of 3 lobes", ResizeKind::antialiasing, rings.view(), small)})
        gallery.show(r.image.view(), r.operation);
}
