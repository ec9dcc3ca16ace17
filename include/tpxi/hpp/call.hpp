// SPDX-License-Identifier: Apache-2.0
// From an operation, sample types and layouts to the one exported function, and the call of it.
#ifndef TPXI_HPP_CALL_HPP
#define TPXI_HPP_CALL_HPP

#include "image.hpp"

namespace tpxi {

// ---- Tables of names -----------------------------------------------------------------------------------
// An operation is a struct of the namespace `op` with an overload of `of` for each function that the library
// has, whose argument is a key and whose result the function. Those that work in place are a struct InPlace
// within.
template <class SrcSample, int srcLayout, class DstSample = SrcSample, int dstLayout = srcLayout>
struct Key {};

// Whether there is a function: offers<op::Sqr, Key<Tpx8u, C3>>, offers<op::Convert, Key<Tpx8u, C1, Tpx32f,
// C1>>.
template <class Operation, class K, class = void>
constexpr bool offers = false;
template <class Operation, class K>
constexpr bool offers<Operation, K, std::void_t<decltype(Operation::of(K{}))>> = true;

// An entry gives the name up to the sample type, and its tail: R, IR, RSfs and the like.
#define TPXI_NAME(stem, type, layout, tail) \
    static constexpr auto of(Key<Tpx##type, layout>) { return &stem##type##_##layout##tail; }
#define TPXI_NAMES_13(stem, type, tail) TPXI_NAME(stem, type, C1, tail) TPXI_NAME(stem, type, C3, tail)
#define TPXI_NAMES_134(stem, type, tail) TPXI_NAMES_13(stem, type, tail) TPXI_NAME(stem, type, C4, tail)
#define TPXI_NAMES_13A(stem, type, tail) TPXI_NAMES_13(stem, type, tail) TPXI_NAME(stem, type, AC4, tail)
#define TPXI_NAMES_134A(stem, type, tail) TPXI_NAMES_134(stem, type, tail) TPXI_NAME(stem, type, AC4, tail)
// The same for several types.
#define TPXI_8U_16U_16S(names, stem, tail) names(stem, 8u, tail) names(stem, 16u, tail) names(stem, 16s, tail)
#define TPXI_8U_16U_16S_32F(names, stem, tail) TPXI_8U_16U_16S(names, stem, tail) names(stem, 32f, tail)
#define TPXI_8U_16U_16S_32S_32F(names, stem, tail) TPXI_8U_16U_16S_32F(names, stem, tail) names(stem, 32s, tail)
// Of functions that have a type and no layout.
#define TPXI_TYPED_NAME(stem, type) \
    static constexpr auto of(Key<Tpx##type, C1>) { return &stem##type; }

namespace detail {

// What takes the place of a function that there is not, so that the compiler says one thing only.
struct Missing {
    template <class... Arguments>
    constexpr TpxStatus operator()(Arguments&&...) const {
        return tpxOk;
    }
};

template <class Operation, class K>
constexpr auto find() {
    static_assert(offers<Operation, K>,
                  "libtpxie9 has no function of this operation for these sample types and layouts");
    if constexpr (offers<Operation, K>)
        return Operation::of(K{});
    else
        return Missing{};
}

// ---- Images as arguments -------------------------------------------------------------------------------
template <class T>
struct ImageTraits {
    static constexpr bool isImage = false;
    static constexpr int layout = C1;
    using Sample = void;
};
template <class T, int l>
struct ImageTraits<View<T, l>> {
    static constexpr bool isImage = true;
    static constexpr int layout = l;
    using Sample = std::remove_const_t<T>;
};
template <class T, int l>
struct ImageTraits<Image<T, l>> : ImageTraits<View<T, l>> {};
template <class T>
using TraitsOf = ImageTraits<std::remove_cv_t<std::remove_reference_t<T>>>;

template <class T>
constexpr int layoutOf = TraitsOf<T>::layout;
template <class T>
using SampleOf = typename TraitsOf<T>::Sample;

template <class T, int l>
View<const T, l> readable(View<T, l> view) {
    return view;
}
template <class T, int l>
View<const T, l> readable(const Image<T, l>& image) {
    return image;
}
template <class T, int l>
View<T, l> writable(View<T, l> view) {
    static_assert(!std::is_const_v<T>, "the destination is constant");
    return view;
}
template <class T, int l>
View<T, l> writable(Image<T, l>& image) {
    return image;
}
template <class T, int l>
View<T, l> writable(const Image<T, l>& image) {
    static_assert(sizeof(T) == 0, "the destination is constant");
    return {const_cast<T*>(image.data()), image.step(), image.size()};
}

// A source of four channels has the layout that the destination asks for.
template <class Src, class Dst>
constexpr int srcLayoutOf = channelsOf(layoutOf<Src>) == 4 && layoutOf<Dst> == AC4 ? AC4
                            : layoutOf<Src> == AC4                                 ? C4
                                                                                   : layoutOf<Src>;
template <class Src, class Dst>
using KeyOf = Key<SampleOf<Src>, srcLayoutOf<Src, Dst>, SampleOf<Dst>, layoutOf<Dst>>;
template <class Src>
using KeyOfOne = Key<SampleOf<Src>, layoutOf<Src>>;

// One value, or the array of a pixel, as C takes it.
template <class Value>
Value raw(Value value) {
    return value;
}
template <class Value, std::size_t n>
const Value* raw(const std::array<Value, n>& values) {
    return values.data();
}
// The same where C takes an address for every layout, or stores a result.
template <class Value>
Value* address(Value& value) {
    return &value;
}
template <class Value, std::size_t n>
Value* address(std::array<Value, n>& values) {
    return values.data();
}
template <class Value, std::size_t n>
const Value* address(const std::array<Value, n>& values) {
    return values.data();
}

inline void expectSameSize(TpxiSize a, TpxiSize b, const char* where) {
    if (a.width != b.width || a.height != b.height) fail(tpxErrSize, where);
}

// ---- The shapes of calls -------------------------------------------------------------------------------
// Images become pointer and step, and their size, which they must share, comes behind them.
template <class Operation, class Src, class Dst, class... Rest>
TpxStatus map(const char* where, const Src& src, Dst&& dst, Rest... rest) {
    const auto from = readable(src);
    const auto to = writable(dst);
    expectSameSize(from.size(), to.size(), where);
    const auto function = find<Operation, KeyOf<Src, Dst>>();
    return check(function(from.data(), from.step(), to.data(), to.step(), to.size(), rest...), where);
}

template <class Operation, class SrcDst, class... Rest>
TpxStatus mapInPlace(const char* where, SrcDst&& srcDst, Rest... rest) {
    const auto image = writable(srcDst);
    const auto function = find<typename Operation::InPlace, KeyOfOne<SrcDst>>();
    return check(function(image.data(), image.step(), image.size(), rest...), where);
}

template <class Operation, class Src1, class Src2, class Dst, class... Rest>
TpxStatus combine(const char* where, const Src1& src1, const Src2& src2, Dst&& dst, Rest... rest) {
    static_assert(std::is_same_v<KeyOf<Src1, Dst>, KeyOf<Src2, Dst>>, "both sources have one type and layout");
    const auto a = readable(src1);
    const auto b = readable(src2);
    const auto to = writable(dst);
    expectSameSize(a.size(), to.size(), where);
    expectSameSize(b.size(), to.size(), where);
    const auto function = find<Operation, KeyOf<Src1, Dst>>();
    return check(function(a.data(), a.step(), b.data(), b.step(), to.data(), to.step(), to.size(), rest...),
                 where);
}

template <class Operation, class Src, class SrcDst, class... Rest>
TpxStatus combineInPlace(const char* where, const Src& src, SrcDst&& srcDst, Rest... rest) {
    static_assert(std::is_same_v<KeyOf<Src, SrcDst>, KeyOfOne<SrcDst>>, "both images have one type and layout");
    const auto from = readable(src);
    const auto to = writable(srcDst);
    expectSameSize(from.size(), to.size(), where);
    const auto function = find<typename Operation::InPlace, KeyOfOne<SrcDst>>();
    return check(function(from.data(), from.step(), to.data(), to.step(), to.size(), rest...), where);
}

// ---- Constraints: which arguments are images, and of what.
template <class... T>
using Images = std::enable_if_t<(TraitsOf<T>::isImage && ...), int>;
template <class T, bool isImage = TraitsOf<T>::isImage>
constexpr bool holdsFloats = false;
template <class T>
constexpr bool holdsFloats<T, true> = std::is_floating_point_v<SampleOf<T>>;
template <class T>
using Floats = std::enable_if_t<TraitsOf<T>::isImage && holdsFloats<T>, int>;
template <class T>
using Integers = std::enable_if_t<TraitsOf<T>::isImage && !holdsFloats<T>, int>;

} // namespace detail

// A pixel of an image: a sample for C1, an array with an entry a colour for the others.
template <class I>
using PixelOf = Pixel<detail::SampleOf<I>, detail::layoutOf<I>>;

} // namespace tpxi

#endif
