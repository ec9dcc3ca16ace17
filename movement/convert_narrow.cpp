// tpxiConvert to narrower integers, and of signed to unsigned ones: saturates.
#include "movement/convert.h"

namespace tpx {
namespace {

template <class S, class D>
struct Positive {
    Vec<D> operator()(const S* p) const {
        using Signed = std::make_signed_t<D>;
        return bitsAs<Vec<D>>(maxOf(loadAs<Signed>(p), Vec<Signed>{}));
    }
};

} // namespace
} // namespace tpx

TPX_CONVERT_LAYOUTS(Narrow, 16u, 8u)
TPX_CONVERT_LAYOUTS(Narrow, 16s, 8u)
TPX_CONVERT_LAYOUTS(Narrow, 32s, 8u)
TPX_CONVERT_LAYOUTS(Narrow, 32s, 8s)
TPX_CONVERT(Positive, Free, 8s, 8u, C1, Rs)
TPX_CONVERT(Positive, Free, 8s, 16u, C1, Rs)
TPX_CONVERT(Positive, Free, 8s, 32u, C1, Rs)
TPX_CONVERT(Positive, Free, 16s, 16u, C1, Rs)
TPX_CONVERT(Positive, Free, 16s, 32u, C1, Rs)
TPX_CONVERT(Positive, Free, 32s, 32u, C1, Rs)
