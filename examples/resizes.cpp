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

} // namespace

void resizes(Gallery& gallery, const Image8u& source) {
    const ConstPixels photo = source.view();
    const TpxiSize size = photo.size;

    const Resized larger = resize("Linear, 1.5 times, the middle", ResizeKind::linear, photo,
                                  {size.width * 3 / 2, size.height * 3 / 2});
    gallery.show(larger.image.view().centre(Sheet::box()), larger.operation);
    const Resized stretched = resize("Linear, to another shape", ResizeKind::linear, photo, {300, 400});
    gallery.show(stretched.image.view(), stretched.operation);

    gallery.sheet().section("Half the size, and a detail six times enlarged: nearest beside linear");
    const TpxiSize half = {size.width / 2, size.height / 2};
    // A region of interest is a pointer into the photograph and the photograph's step: nothing is copied.
    constexpr int kZoom = 6;
    const ConstPixels detail = photo.centre({300 / kZoom, 200 / kZoom});
    const TpxiSize enlarged = {detail.size.width * kZoom, detail.size.height * kZoom};
    for (const Resized& r : {resize("Nearest, one half", ResizeKind::nearest, photo, half),
                             resize("Linear, one half", ResizeKind::linear, photo, half),
                             resize("Nearest, detail, 6 times", ResizeKind::nearest, detail, enlarged),
                             resize("Linear, detail, 6 times", ResizeKind::linear, detail, enlarged)})
        gallery.show(r.image.view(), r.operation);
}
