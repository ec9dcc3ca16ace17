// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/image.h"
#include "../frame/pointwise.h"

#include <memory>

#ifdef TPX_HAVE_FFTW
#include <fftw3.h>
#endif

namespace bench {
namespace {

// ---- The library
// ---------------------------------------------------------------------------------------------

template <typename Spec>
struct Plan {
    std::vector<Tpx8u> memory;
    std::vector<Tpx8u> work;
    const Spec* spec() const { return reinterpret_cast<const Spec*>(memory.data()); }
};

template <typename Spec, typename GetSize, typename Init>
std::shared_ptr<Plan<Spec>> makePlan(GetSize getSize, Init init) {
    int bytes = 0;
    int initBytes = 0;
    int workBytes = 0;
    check(getSize(&bytes, &initBytes, &workBytes));
    const auto plan = std::make_shared<Plan<Spec>>();
    plan->memory.resize(bytes);
    plan->work.resize(workBytes);
    std::vector<Tpx8u> initBuffer(initBytes);
    check(init(reinterpret_cast<Spec*>(plan->memory.data()), initBuffer.data()));
    return plan;
}

// Forward and inverse are scaled alike, so that there and back is the image.
constexpr int kFlag = tpxFftDivBySqrt;

int orderOf(int length) {
    int order = 0;
    while (1 << order < length) order++;
    return order;
}
bool isPowerOfTwo(int n) { return (n & (n - 1)) == 0; }

// ---- FFTW, single precision, one thread
// ----------------------------------------------------------------------

#ifdef TPX_HAVE_FFTW
// Images of the same steps; the complex half of a spectrum has a number more a row.
struct Fftw {
    fftwf_plan plan;
    float* src;
    float* dst;

    Fftw(TpxiSize size, int step, int parts) {
        const int row = step / static_cast<int>(sizeof(float)) / parts; // in numbers
        const int half = row / 2 + 1;
        const size_t bytes = (static_cast<size_t>(row) + 2) * parts * size.height * sizeof(float);
        src = static_cast<float*>(fftwf_malloc(bytes));
        dst = static_cast<float*>(fftwf_malloc(bytes));
        const int lengths[] = {size.height, size.width};
        const int from[] = {size.height, row};
        const int to[] = {size.height, parts == 2 ? row : half};
        auto* spectrum = reinterpret_cast<fftwf_complex*>(dst);
        plan = parts == 2
                   ? fftwf_plan_many_dft(2, lengths, 1, reinterpret_cast<fftwf_complex*>(src), from, 1, 0,
                                         spectrum, to, 1, 0, FFTW_FORWARD, FFTW_MEASURE)
                   : fftwf_plan_many_dft_r2c(2, lengths, 1, src, from, 1, 0, spectrum, to, 1, 0, FFTW_MEASURE);
        for (size_t i = 0; i < bytes / sizeof(float); ++i) src[i] = static_cast<float>(i % 1021) / 1021;
    }
    Fftw(const Fftw&) = delete;
    Fftw& operator=(const Fftw&) = delete;
    ~Fftw() {
        fftwf_destroy_plan(plan);
        fftwf_free(src);
        fftwf_free(dst);
    }
};
#endif

// ---- Races
// ---------------------------------------------------------------------------------------------------

// Images are as wide as `padding` more pixels, so that rows need not be whole pages apart. forward(src, dst)
// and inverse() belong to a plan.
template <int Parts, typename MakeCalls>
void addTransform(const std::string& name, TpxiSize size, int padding, MakeCalls makeCalls) {
    const double pixels = static_cast<double>(size.width) * size.height;
    addJob({"Fourier transforms", name, text(size) + (padding ? ", padded rows" : ""), pixels,
            pixels * Parts * 2 * sizeof(float)},
           [=] {
               const TpxiSize padded = {size.width + padding, size.height};
               const auto src = std::make_shared<Image<float>>(padded, Parts, -1, 1);
               const auto dst = std::make_shared<Image<float>>(padded, Parts);
               const auto [forward, inverse] = makeCalls(size);
               const Image<float> back(padded, Parts);
               check(forward(*src, *dst));
               check(inverse(*dst, back));
               for (int y = 0; y < size.height; ++y) // what is beside the region has been left out
                   std::memcpy(back.row(y) + size.width * Parts, src->row(y) + size.width * Parts,
                               sizeof(float) * padding * Parts);
               checkSame(back, *src, 1e-5);
               std::vector<Contender> list = {{kOurs, [=, forward = forward] { forward(*src, *dst); }},
                                              {kCopy, [=] { copyImage(*src, *dst); }}};
#ifdef TPX_HAVE_FFTW
               const auto fftw = std::make_shared<Fftw>(size, src->step(), Parts);
               list.push_back({"FFTW", [=] { fftwf_execute(fftw->plan); }});
#endif
               return list;
           });
}

// A plan's calls on images whose samples are of type T.
template <typename T, typename Plan, typename Call>
auto callOf(std::shared_ptr<Plan> plan, Call call) {
    return [=](const Image<float>& src, const Image<float>& dst) {
        return call(reinterpret_cast<const T*>(src.data()), src.step(), reinterpret_cast<T*>(dst.data()),
                    dst.step(), plan->spec(), plan->work.data());
    };
}

#define CALLS(T, Spec, getSize, init, fwd, inv, ...)                                               \
    [](TpxiSize s) {                                                                               \
        const auto plan = makePlan<Spec>(                                                          \
            [=](int* a, int* b, int* c) { return getSize(__VA_ARGS__, kFlag, 0, a, b, c); },       \
            [=](Spec* spec, Tpx8u* buffer) { return init(__VA_ARGS__, kFlag, 0, spec, buffer); }); \
        return std::pair(callOf<T>(plan, fwd), callOf<T>(plan, inv));                              \
    }

void addSize(TpxiSize size, int padding) {
    if (isPowerOfTwo(size.width) && isPowerOfTwo(size.height)) {
        addTransform<2>(
            "tpxiFFTFwd_CToC_32fc_C1R", size, padding,
            CALLS(Tpx32fc, TpxiFFT2DSpec_C, tpxiFFTGetSize_C_32fc, tpxiFFTInit_C_32fc, tpxiFFTFwd_CToC_32fc_C1R,
                  tpxiFFTInv_CToC_32fc_C1R, orderOf(s.width), orderOf(s.height)));
        addTransform<1>(
            "tpxiFFTFwd_RToPack_32f_C1R", size, 2 * padding,
            CALLS(Tpx32f, TpxiFFT2DSpec_R, tpxiFFTGetSize_R_32f, tpxiFFTInit_R_32f, tpxiFFTFwd_RToPack_32f_C1R,
                  tpxiFFTInv_PackToR_32f_C1R, orderOf(s.width), orderOf(s.height)));
    } else {
        addTransform<2>("tpxiDFTFwd_CToC_32fc_C1R", size, padding,
                        CALLS(Tpx32fc, TpxiDFT2DSpec_C, tpxiDFTGetSize_C_32fc, tpxiDFTInit_C_32fc,
                              tpxiDFTFwd_CToC_32fc_C1R, tpxiDFTInv_CToC_32fc_C1R, s));
        addTransform<1>("tpxiDFTFwd_RToPack_32f_C1R", size, 2 * padding,
                        CALLS(Tpx32f, TpxiDFT2DSpec_R, tpxiDFTGetSize_R_32f, tpxiDFTInit_R_32f,
                              tpxiDFTFwd_RToPack_32f_C1R, tpxiDFTInv_PackToR_32f_C1R, s));
    }
}

#undef CALLS

} // namespace

void addFouriers() {
    for (const int side : {64, 256, 512, 1024, 2048}) addSize({side, side}, 0);
    for (const int side : {512, 1024, 2048}) addSize({side, side}, 8);
    for (const TpxiSize size :
         {TpxiSize{640, 480}, TpxiSize{1000, 1000}, TpxiSize{1920, 1080}, TpxiSize{509, 509}})
        addSize(size, 0);
}

} // namespace bench
