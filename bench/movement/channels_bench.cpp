// SPDX-License-Identifier: Apache-2.0
// Channels between pixels and planes, in another order, one of them, under a mask. The copy beside them moves
// the larger of the two images.
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

#include <array>

namespace bench {
namespace {

// How samples lie in an image: pixels of channels, or planes below one another.
struct Form {
    int channels;
    bool planar = false;

    TpxiSize storedSize(TpxiSize size) const {
        return {size.width, planar ? size.height * channels : size.height};
    }
    int storedChannels() const { return planar ? 1 : channels; }
};

// An image of a form, seen as the first samples of its channels.
template <typename T>
struct Picture {
    Picture(TpxiSize pixels, Form how, bool filled)
        : size(pixels), form(how), image(how.storedSize(pixels), how.storedChannels()) {
        if (filled) image.fill(0, 100);
    }
    T* channel(int c, int y) const { return form.planar ? image.row(y + c * size.height) : image.row(y) + c; }
    std::array<T*, 4> planes() const {
        std::array<T*, 4> all = {};
        for (int c = 0; c < form.channels; ++c) all[c] = channel(c, 0);
        return all;
    }

    Operands operands() const {
        if (!form.planar) return {image};
        Operands all;
        for (int c = 0; c < form.channels; ++c) all.emplace_back(channel(c, 0), image.step(), size, 1);
        return all;
    }

    TpxiSize size;
    Form form;
    Image<T> image;
};

// Which source channel feeds which destination channel.
using Feeds = std::vector<std::array<int, 2>>;

struct Move {
    const char* function;
    Form from, to;
    Feeds feeds;
    bool masked = false;
    Sizes sizes = Sizes::middle;
};

template <typename T>
using Call = std::function<TpxStatus(const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>& mask)>;

template <typename T>
void moveScalar(const Move& what, const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>& mask) {
    std::array<const T*, 4> from;
    std::array<T*, 4> to;
    for (int y = 0; y < src.size.height; ++y) {
        for (size_t k = 0; k < what.feeds.size(); ++k) {
            from[k] = src.channel(what.feeds[k][0], y);
            to[k] = dst.channel(what.feeds[k][1], y);
        }
        tpx::model::moveChannels(from.data(), src.form.storedChannels(), to.data(), dst.form.storedChannels(),
                                 what.feeds.size(), what.masked ? mask.row(y) : nullptr, src.size.width);
    }
}

template <typename T>
void addMove(const Move& what, Call<T> ours) {
    const int most = std::max(what.from.channels, what.to.channels);
    for (const TpxiSize size : sizes(what.sizes, most * sizeof(T))) {
        const double pixels = static_cast<double>(size.width) * size.height;
        const Job job{"Channels", what.function, text(size), pixels * most,
                      pixels * (what.from.channels + what.to.channels) * sizeof(T)};
        addJob(job, [=] {
            struct Images {
                Picture<T> src, dst, copySrc, copyDst;
                Image<Tpx8u> mask;
            };
            const auto all = std::shared_ptr<Images>(new Images{
                Picture<T>(size, what.from, true), Picture<T>(size, what.to, false),
                Picture<T>(size, {most}, true), Picture<T>(size, {most}, false), Image<Tpx8u>(size, 1, 0, 1)});
            if (all->src.image.bytes() < beyondCacheBytes() / 2) {
                const Picture<T> got(size, what.to, false);
                check(ours(all->src, got, all->mask));
                moveScalar(what, all->src, all->dst, all->mask);
                checkSame(got.image, all->dst.image, 0);
            }
            std::vector<Contender> list = {{kOurs, [=] { ours(all->src, all->dst, all->mask); }},
                                           {kCopy, [=] { copyImage(all->copySrc.image, all->copyDst.image); }},
                                           {kScalar, [=] { moveScalar(what, all->src, all->dst, all->mask); }}};
            Operands from = all->src.operands();
            if (what.masked) from.push_back(all->mask);
            joinOpencv(list, what.function, from, all->dst.operands());
            return list;
        });
    }
}

const Feeds kStraight[] = {{}, {{0, 0}}, {}, {{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {1, 1}, {2, 2}, {3, 3}}};

// Pixels to pixels; the last arguments follow the size.
template <typename T, typename F, typename... Last>
void addPixels(const Move& what, F function, Last... last) {
    addMove<T>(what, [=](const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>&) {
        return function(src.image.data(), src.image.step(), dst.image.data(), dst.image.step(), src.size,
                        last...);
    });
}

template <typename T, typename F>
void addOrder(const char* name, int channels, F function, Sizes sizes = Sizes::middle) {
    static constexpr int kOrder[] = {2, 1, 0, 3};
    Feeds feeds = {{2, 0}, {1, 1}, {0, 2}};
    if (channels == 4) feeds.push_back({3, 3});
    addPixels<T>({name, {channels}, {channels}, feeds, false, sizes}, function, kOrder);
}

template <typename T, typename F>
void addSplit(const char* name, int channels, F function, Sizes sizes = Sizes::middle) {
    addMove<T>({name, {channels}, {channels, true}, kStraight[channels], false, sizes},
               [=](const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>&) {
                   return function(src.image.data(), src.image.step(), dst.planes().data(), dst.image.step(),
                                   src.size);
               });
}

template <typename T, typename F>
void addJoin(const char* name, int channels, F function, Sizes sizes = Sizes::middle) {
    addMove<T>({name, {channels, true}, {channels}, kStraight[channels], false, sizes},
               [=](const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>&) {
                   const auto planes = src.planes();
                   const std::array<const T*, 4> from = {planes[0], planes[1], planes[2], planes[3]};
                   return function(from.data(), src.image.step(), dst.image.data(), dst.image.step(), src.size);
               });
}

template <typename T, typename F>
void addMasked(const char* name, int channels, int changed, F function, Sizes sizes = Sizes::middle) {
    addMove<T>({name, {channels}, {channels}, kStraight[changed], true, sizes},
               [=](const Picture<T>& src, const Picture<T>& dst, const Image<Tpx8u>& mask) {
                   return function(src.image.data(), src.image.step(), dst.image.data(), dst.image.step(),
                                   src.size, mask.data(), mask.step());
               });
}

} // namespace

void addChannels() {
    addSplit<Tpx8u>("tpxiCopy_8u_C3P3R", 3, tpxiCopy_8u_C3P3R, Sizes::all);
    addSplit<Tpx8u>("tpxiCopy_8u_C4P4R", 4, tpxiCopy_8u_C4P4R);
    addSplit<Tpx16u>("tpxiCopy_16u_C3P3R", 3, tpxiCopy_16u_C3P3R);
    addSplit<Tpx16u>("tpxiCopy_16u_C4P4R", 4, tpxiCopy_16u_C4P4R);
    addSplit<Tpx32f>("tpxiCopy_32f_C3P3R", 3, tpxiCopy_32f_C3P3R);
    addJoin<Tpx8u>("tpxiCopy_8u_P3C3R", 3, tpxiCopy_8u_P3C3R, Sizes::all);
    addJoin<Tpx8u>("tpxiCopy_8u_P4C4R", 4, tpxiCopy_8u_P4C4R);
    addJoin<Tpx16u>("tpxiCopy_16u_P3C3R", 3, tpxiCopy_16u_P3C3R);
    addJoin<Tpx32f>("tpxiCopy_32f_P3C3R", 3, tpxiCopy_32f_P3C3R);
    addOrder<Tpx8u>("tpxiSwapChannels_8u_C3R", 3, tpxiSwapChannels_8u_C3R, Sizes::all);
    addOrder<Tpx8u>("tpxiSwapChannels_8u_C4R", 4, tpxiSwapChannels_8u_C4R);
    addOrder<Tpx16u>("tpxiSwapChannels_16u_C3R", 3, tpxiSwapChannels_16u_C3R);
    addPixels<Tpx8u>({"tpxiCopy_8u_AC4C3R", {4}, {3}, kStraight[3], false, Sizes::all}, tpxiCopy_8u_AC4C3R);
    addPixels<Tpx8u>({"tpxiCopy_8u_C3AC4R", {3}, {4}, kStraight[3], false, Sizes::all}, tpxiCopy_8u_C3AC4R);
    addPixels<Tpx8u>({"tpxiDup_8u_C1C3R", {1}, {3}, {{0, 0}, {0, 1}, {0, 2}}, false, Sizes::all},
                     tpxiDup_8u_C1C3R);
    addPixels<Tpx8u>({"tpxiCopy_8u_C3C1R", {3}, {1}, kStraight[1]}, tpxiCopy_8u_C3C1R);
    addPixels<Tpx8u>({"tpxiCopy_8u_C1C3R", {1}, {3}, kStraight[1]}, tpxiCopy_8u_C1C3R);
    addPixels<Tpx8u>({"tpxiCopy_8u_C3CR", {3}, {3}, kStraight[1]}, tpxiCopy_8u_C3CR);
    addPixels<Tpx32f>({"tpxiCopy_32f_C4C1R", {4}, {1}, kStraight[1]}, tpxiCopy_32f_C4C1R);
    addMasked<Tpx8u>("tpxiCopy_8u_C1MR", 1, 1, tpxiCopy_8u_C1MR);
    addMasked<Tpx8u>("tpxiCopy_8u_C3MR", 3, 3, tpxiCopy_8u_C3MR, Sizes::all);
    addMasked<Tpx8u>("tpxiCopy_8u_AC4MR", 4, 3, tpxiCopy_8u_AC4MR);
    addMasked<Tpx16u>("tpxiCopy_16u_C1MR", 1, 1, tpxiCopy_16u_C1MR, Sizes::all);
    addMasked<Tpx32f>("tpxiCopy_32f_C1MR", 1, 1, tpxiCopy_32f_C1MR);
}

} // namespace bench
