// SPDX-License-Identifier: Apache-2.0
#include "yardsticks.h"

#include "../frame/image.h"
#include "../frame/opencv.h"

#include <memory>
#include <stdexcept>

#ifdef TPX_HAVE_LIBYUV
#include <libyuv/cpu_id.h>
#include <libyuv/scale.h>
#include <libyuv/scale_argb.h>
#include <libyuv/scale_rgb.h>
#include <libyuv/version.h>
#endif
#ifdef TPX_HAVE_ZIMG
#include <zimg.h>
#endif

namespace bench {
namespace {

bool avxOnly = false;

// A source full of noise and a destination, `count` times.
template <typename T>
struct Pairs {
    std::vector<std::unique_ptr<Image<T>>> from;
    std::vector<std::unique_ptr<Image<T>>> to;
    Pairs(const Scaling& s, int count, int channels) {
        for (int i = 0; i < count; ++i) {
            from.push_back(
                std::make_unique<Image<T>>(s.from, channels, 0, std::is_integral_v<T> ? T(-1) : T(1)));
            to.push_back(std::make_unique<Image<T>>(s.to, channels));
        }
    }
};

#ifdef TPX_HAVE_LIBYUV
// Calls one of libyuv's scalers, which all take the same arguments, for each plane.
template <typename T, typename F>
Contender libyuvContender(const char* name, F scale, const Scaling& s, int planes, int channels) {
    const auto images = std::make_shared<Pairs<T>>(s, planes, channels);
    const auto filter = s.kind == Kind::area     ? libyuv::kFilterBox
                        : s.kind == Kind::linear ? libyuv::kFilterBilinear
                                                 : libyuv::kFilterNone;
    return {name, [=] {
                for (int i = 0; i < planes; ++i) {
                    const Image<T>& from = *images->from[i];
                    const Image<T>& to = *images->to[i];
                    scale(from.data(), from.step() / int(sizeof(T)), s.from.width, s.from.height, to.data(),
                          to.step() / int(sizeof(T)), s.to.width, s.to.height, filter);
                }
            }};
}

void addLibyuv(const Scaling& s, std::vector<Contender>& list) {
    if (s.kind == Kind::cubic || s.kind == Kind::lanczos3) return; // it has no such kernels
    if (s.type == tpxDataType8u && s.channels == 1)
        list.push_back(libyuvContender<Tpx8u>("libyuv", libyuv::ScalePlane, s, 1, 1));
    if (s.type == tpxDataType8u && s.channels == 3) {
        list.push_back(libyuvContender<Tpx8u>("libyuv", libyuv::RGBScale, s, 1, 3));
        list.push_back(libyuvContender<Tpx8u>("libyuv planes", libyuv::ScalePlane, s, 3, 1));
        list.push_back(libyuvContender<Tpx8u>("libyuv ARGB", libyuv::ARGBScale, s, 1, 4));
    }
    if (s.type == tpxDataType8u && s.channels == 4)
        list.push_back(libyuvContender<Tpx8u>("libyuv", libyuv::ARGBScale, s, 1, 4));
    if (s.type == tpxDataType16u && s.channels == 1)
        list.push_back(libyuvContender<Tpx16u>("libyuv", libyuv::ScalePlane_16, s, 1, 1));
}
#endif

#ifdef TPX_HAVE_ZIMG
zimg_image_format zimgFormat(const Scaling& s, TpxiSize size) {
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = size.width;
    format.height = size.height;
    format.pixel_type = s.type == tpxDataType8u    ? ZIMG_PIXEL_BYTE
                        : s.type == tpxDataType16u ? ZIMG_PIXEL_WORD
                                                   : ZIMG_PIXEL_FLOAT;
    format.depth = s.type == tpxDataType8u ? 8 : s.type == tpxDataType16u ? 16 : 32;
    format.pixel_range = ZIMG_RANGE_FULL;
    if (s.channels == 3) {
        format.color_family = ZIMG_COLOR_RGB;
        format.matrix_coefficients = ZIMG_MATRIX_RGB;
    }
    return format;
}

template <typename T>
Contender zimgContender(const Scaling& s) {
    zimg_graph_builder_params params;
    zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
    params.resample_filter = s.kind == Kind::nearest  ? ZIMG_RESIZE_POINT
                             : s.kind == Kind::linear ? ZIMG_RESIZE_BILINEAR
                             : s.kind == Kind::cubic  ? ZIMG_RESIZE_BICUBIC
                                                      : ZIMG_RESIZE_LANCZOS;
    if (s.kind == Kind::cubic) {
        params.filter_param_a = kCubicB;
        params.filter_param_b = kCubicC;
    } else if (s.kind == Kind::lanczos3) {
        params.filter_param_a = 3;
    }
    params.cpu_type = avxOnly ? ZIMG_CPU_X86_AVX : ZIMG_CPU_AUTO_64B;
    const zimg_image_format from = zimgFormat(s, s.from);
    const zimg_image_format to = zimgFormat(s, s.to);
    const std::shared_ptr<zimg_filter_graph> graph(zimg_filter_graph_build(&from, &to, &params),
                                                   zimg_filter_graph_free);
    size_t bytes = 0;
    if (!graph || zimg_filter_graph_get_tmp_size(graph.get(), &bytes) != ZIMG_ERROR_SUCCESS) {
        char message[256];
        zimg_get_last_error(message, sizeof message);
        throw std::runtime_error(std::string("zimg: ") + message);
    }
    const auto work = std::make_shared<Image<Tpx8u>>(TpxiSize{static_cast<int>(bytes + 1), 1}, 1);
    const auto images = std::make_shared<Pairs<T>>(s, s.channels, 1);
    zimg_image_buffer_const src = {ZIMG_API_VERSION, {}};
    zimg_image_buffer dst = {ZIMG_API_VERSION, {}};
    for (int i = 0; i < s.channels; ++i) {
        src.plane[i] = {images->from[i]->data(), images->from[i]->step(), ZIMG_BUFFER_MAX};
        dst.plane[i] = {images->to[i]->data(), images->to[i]->step(), ZIMG_BUFFER_MAX};
    }
    return {"zimg", [=] {
                static_cast<void>(images); // the planes point into them
                zimg_filter_graph_process(graph.get(), &src, &dst, work->data(), nullptr, nullptr, nullptr,
                                          nullptr);
            }};
}

void addZimg(const Scaling& s, std::vector<Contender>& list) {
    if (s.kind == Kind::area) return; // it has no mean of what is covered
    if (s.channels == 4) return;      // its fourth plane is an alpha that takes part in the colours
    if (s.type == tpxDataType8u) list.push_back(zimgContender<Tpx8u>(s));
    if (s.type == tpxDataType16u) list.push_back(zimgContender<Tpx16u>(s));
    if (s.type == tpxDataType32f) list.push_back(zimgContender<Tpx32f>(s));
}
#endif

} // namespace

std::vector<Contender> yardsticks([[maybe_unused]] const Scaling& scaling) {
    std::vector<Contender> list;
#ifdef TPX_HAVE_LIBYUV
    addLibyuv(scaling, list);
#endif
#ifdef TPX_HAVE_ZIMG
    addZimg(scaling, list);
#endif
    return list;
}

std::string yardstickVersions() {
    std::string line;
#ifdef TPX_HAVE_LIBYUV
    line += "libyuv " + std::to_string(LIBYUV_VERSION);
#else
    line += "libyuv not found";
#endif
#ifdef TPX_HAVE_ZIMG
    unsigned version[3];
    zimg_get_version_info(&version[0], &version[1], &version[2]);
    line += ", zimg " + std::to_string(version[0]) + "." + std::to_string(version[1]) + "." +
            std::to_string(version[2]);
#else
    line += ", zimg not found";
#endif
    line += ", " + opencvVersion();
    return line + (avxOnly ? ", held held to AVX" : ", with all that the processor offers them");
}

void limitYardsticksToAvx() {
    avxOnly = true;
    leaveOutOpencv();
#ifdef TPX_HAVE_LIBYUV
    libyuv::MaskCpuFlags(libyuv::kCpuHasX86 | libyuv::kCpuHasSSE2 | libyuv::kCpuHasSSSE3 |
                         libyuv::kCpuHasSSE41 | libyuv::kCpuHasSSE42 | libyuv::kCpuHasAVX |
                         libyuv::kCpuHasERMS);
#endif
}

} // namespace bench
