// SPDX-License-Identifier: Apache-2.0
// Warps: planned once from coefficients or quadrangles, for any number of images, or through maps of positions.
#include "gallery.h"

namespace {

struct Warped {
    Image8u image;
    Operation operation;
};

// The picture that warp(pixels) makes, over stripes that it may leave to be seen.
template <class Warp>
Warped overStripes(const char* name, const char* function, TpxiSize srcSize, TpxiSize size, Warp warp) {
    Image8u image(size);
    const Pixels dst = image.view();
    const double ms = bestTime([&] { warp(dst); });
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            std::fill_n(dst.at(x, y), kChannels, static_cast<Tpx8u>((x + y) / 12 % 2 ? 80 : 95));
    warp(dst); // what a smooth edge is blended with is new
    return {std::move(image), {name, function, srcSize, size, 1, ms}};
}

// A plan, and the work buffer for the whole of its destination.
class WarpPlan {
 public:
    // getSize(planBytes, initBytes) and initialise(spec, initBuffer) are the calls that make it.
    template <class GetSize, class Initialise>
    WarpPlan(TpxiSize dst, GetSize getSize, Initialise initialise) : dst_(dst) {
        int planBytes = 0, initBytes = 0, bufferBytes = 0;
        check(getSize(&planBytes, &initBytes), "the size of a plan");
        plan_.resize(static_cast<size_t>(planBytes));
        std::vector<Tpx8u> init(static_cast<size_t>(initBytes));
        check(initialise(reinterpret_cast<TpxiWarpSpec*>(plan_.data()), init.data()),
              "the initialiser of a plan");
        check(tpxiWarpGetBufferSize(spec(), dst, &bufferBytes), "tpxiWarpGetBufferSize");
        buffer_.resize(static_cast<size_t>(bufferBytes));
    }
    // The plan points into its own memory.
    WarpPlan(const WarpPlan&) = delete;
    WarpPlan& operator=(const WarpPlan&) = delete;

    // The picture of `src` by one of the processing calls.
    template <class Call>
    Warped run(const char* name, const char* function, Call call, ConstPixels src) {
        return overStripes(name, function, src.size, dst_, [&](Pixels dst) {
            check(call(src.data, src.step, dst.data, dst.step, {0, 0}, dst_, spec(), buffer_.data()), function);
        });
    }

 private:
    const TpxiWarpSpec* spec() const { return reinterpret_cast<const TpxiWarpSpec*>(plan_.data()); }

    TpxiSize dst_;
    std::vector<Tpx8u> plan_, buffer_;
};

constexpr Tpx64f kColour[kChannels] = {62, 90, 140}; // of constant borders

// coeffs map the source to the destination, but for the shift that leaves the middle in the middle.
Warped affine(const char* name, ConstPixels src, TpxiSize size, Tpx64f coeffs[2][3], TpxBorderType border,
              int smoothEdge = 0) {
    const double middle[2] = {(size.width - 1) / 2.0, (size.height - 1) / 2.0};
    for (int k = 0; k < 2; ++k)
        coeffs[k][2] =
            middle[k] - coeffs[k][0] * (src.size.width - 1) / 2 - coeffs[k][1] * (src.size.height - 1) / 2;
    constexpr double kB = 0, kC = 0.5; // the kernel that passes through the samples
    WarpPlan plan(
        size,
        [&](int* bytes, int* init) {
            return tpxiWarpAffineGetSize(src.size, size, tpxDataType8u, coeffs, tpxInterpolationCubic, 0,
                                         border, bytes, init);
        },
        [&](TpxiWarpSpec* spec, Tpx8u* init) {
            return tpxiWarpAffineCubicInit(src.size, size, tpxDataType8u, coeffs, 0, kChannels, kB, kC, border,
                                           kColour, smoothEdge, spec, init);
        });
    return plan.run(name, "tpxiWarpAffineCubic_8u_C3R", tpxiWarpAffineCubic_8u_C3R, src);
}

// ---- Pictures --------------------------------------------------------------------------------------------

Warped rotated(ConstPixels src) {
    Tpx64f coeffs[2][3];
    check(tpxiGetRotateTransform(15, 0, 0, coeffs), "tpxiGetRotateTransform");
    return affine("Rotated by 15 degrees", src, src.size, coeffs, tpxBorderConstant);
}

Warped sheared(ConstPixels src) {
    Tpx64f coeffs[2][3] = {{1, -1 / 3.0, 0}, {0, 1, 0}};
    return affine("Sheared", src, src.size, coeffs, tpxBorderConstant);
}

// A part that narrows with the distance, made a rectangle.
Warped rectified(ConstPixels src) {
    const TpxiSize size = {src.size.width, src.size.height * 6 / 5};
    const double right = src.size.width - 1, bottom = src.size.height - 1, lower = size.height - 1;
    const Tpx64f part[4][2] = {{right * 0.12, 0}, {right * 0.88, 0}, {right, bottom}, {0, bottom}};
    const Tpx64f rectangle[4][2] = {{0, 0}, {right, 0}, {right, lower}, {0, lower}};
    const TpxiRect all = tpxiWarpGetRectInfinite(), dst = {0, 0, size.width, size.height};
    constexpr int kPerspective = 1;
    WarpPlan plan(
        size,
        [&](int* bytes, int* init) {
            return tpxiWarpQuadGetSize(src.size, all, part, dst, rectangle, kPerspective, tpxDataType8u,
                                       tpxInterpolationLinear, tpxBorderReplicate, bytes, init);
        },
        [&](TpxiWarpSpec* spec, Tpx8u* init) {
            return tpxiWarpQuadLinearInit(src.size, all, part, dst, rectangle, kPerspective, tpxDataType8u,
                                          kChannels, tpxBorderReplicate, nullptr, 0, spec, init);
        });
    return plan.run("Rectified", "tpxiWarpPerspectiveLinear_8u_C3R", tpxiWarpPerspectiveLinear_8u_C3R, src);
}

// Enlarged, so that the rim shows what the border makes.
Warped turnedDetail(const char* name, ConstPixels detail, TpxBorderType border, int smoothEdge = 0) {
    constexpr double kZoom = 3.2;
    Tpx64f coeffs[2][3];
    check(tpxiGetRotateTransform(20, 0, 0, coeffs), "tpxiGetRotateTransform");
    for (auto& row : coeffs)
        for (Tpx64f& c : row) c *= kZoom;
    return affine(name, detail, {300, 200}, coeffs, border, smoothEdge);
}

// ---- Through maps ----------------------------------------------------------------------------------------

// Moves every pixel along the line from the picture's middle: what appears at distance r from there, in half
// diagonals, is taken from scale(r) times as far.
template <class Scale>
Warped radial(const char* name, ConstPixels src, int interpolation, Scale scale) {
    const int width = src.size.width, height = src.size.height;
    const double middle[2] = {(width - 1) / 2.0, (height - 1) / 2.0}, unit = std::hypot(middle[0], middle[1]);
    std::vector<Tpx32f> xMap, yMap;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double dx = x - middle[0], dy = y - middle[1], factor = scale(std::hypot(dx, dy) / unit);
            xMap.push_back(static_cast<Tpx32f>(middle[0] + dx * factor));
            yMap.push_back(static_cast<Tpx32f>(middle[1] + dy * factor));
        }
    const int mapStep = width * static_cast<int>(sizeof(Tpx32f));
    return overStripes(name, "tpxiRemap_8u_C3R", src.size, src.size, [&](Pixels dst) {
        check(tpxiRemap_8u_C3R(src.data, src.size, src.step, {0, 0, width, height}, xMap.data(), mapStep,
                               yMap.data(), mapStep, dst.data, dst.step, dst.size, interpolation),
              "tpxiRemap_8u_C3R");
    });
}

// How much further out the lens has found what it draws at distance r.
constexpr double kBend = 0.45;
double lens(double r) { return 1 + kBend * r * r; }

// Where the lens draws what is at distance r, for each unit of r: Newton's method for d lens(d) = r.
double undone(double r) {
    double d = r;
    for (int i = 0; i < 8; ++i) d -= (d * lens(d) - r) / (1 + 3 * kBend * d * d);
    return r > 0 ? d / r : 1;
}

// With straight lines, to see them bend.
Image8u withGrid(ConstPixels src) {
    Image8u image(src.size);
    const Pixels dst = image.view();
    check(tpxiCopy_8u_C3R(src.data, src.step, dst.data, dst.step, src.size), "tpxiCopy_8u_C3R");
    const int pitch = std::max(src.size.width / 12, 2), line = std::max(src.size.width / 300, 1);
    for (int y = 0; y < src.size.height; ++y)
        for (int x = 0; x < src.size.width; ++x)
            if ((x + pitch / 2) % pitch < line || (y + pitch / 2) % pitch < line)
                std::fill_n(dst.at(x, y), kChannels, static_cast<Tpx8u>(235));
    return image;
}

} // namespace

void warps(Gallery& gallery, const Image8u& source) {
    const ConstPixels photo = source.view();
    gallery.section("Rotated, sheared, rectified");
    for (const Warped& w : {rotated(photo), sheared(photo), rectified(photo)})
        gallery.show(w.image.view(), w.operation);

    gallery.section("A detail turned: what becomes of pixels outside");
    // With pixels of the photograph around it, which the last of the borders reads.
    const ConstPixels detail =
        photo.centre({std::min(60, photo.size.width - 2), std::min(40, photo.size.height - 2)});
    for (const Warped& w : {turnedDetail("Replicate", detail, tpxBorderReplicate),
                            turnedDetail("Constant", detail, tpxBorderConstant),
                            turnedDetail("Transparent, smooth edge", detail, tpxBorderTransparent, 1),
                            turnedDetail("In memory: taps reach outside", detail, tpxBorderInMemAll)})
        gallery.show(w.image.view(), w.operation);

    gallery.section("Through maps: bent by a lens, and undone");
    const Image8u grid = withGrid(photo);
    const Warped bent = radial("Bent by a lens", grid.view(), tpxInterpolationCubic, lens);
    const Warped straight = radial("Straightened", bent.image.view(), tpxInterpolationLanczos, undone);
    for (const Warped* w : {&bent, &straight}) gallery.show(w->image.view(), w->operation);
}
