// SPDX-License-Identifier: Apache-2.0
// Scalar functions of double precision, in place of a system's math library.
//
// Errors, in units in the last place, measured against a library of 64-bit significands under rounding to
// nearest: sine and cosine below 0.80 over all finite arguments, ExpOne 0.76, LogOne 0.85, PowOne 0.75; a
// denormal result is rounded twice and stays below 0.80. ExpOneF: 0.74. The square roots are the processor's.
#include "frame/runs/routines.h"
#include "frame/simd/math.h"

namespace tpx {
namespace {

constexpr Tpx64u kSignBit = Tpx64u(1) << 63;
constexpr double kInfinity = __builtin_huge_val();

inline Tpx64u bitsOf(double x) { return bitsAs<Tpx64u>(x); }
inline double fromBits(Tpx64u bits) { return bitsAs<double>(bits); }
inline double magnitudeOf(double x) { return fromBits(bitsOf(x) & ~kSignBit); }

// ---- Numbers of twice the precision ----------------------------------------------------------------------
// The exact sum is by D. E. Knuth, the exact product by T. J. Dekker and G. W. Veltkamp (Numerische Mathematik
// 18, 1971); the product wants factors below 2^990.

struct Twofold {
    double high, low;
};

inline Twofold exactSum(double a, double b) {
    const double sum = a + b, fromB = sum - a;
    return {sum, (a - (sum - fromB)) + (b - fromB)};
}

inline Twofold exactProduct(double a, double b) {
    const auto upperHalf = [](double x) {
        const double c = x * 0x8000001p0;
        return c - (c - x);
    };
    const double product = a * b, aHigh = upperHalf(a), bHigh = upperHalf(b), aLow = a - aHigh,
                 bLow = b - bHigh;
    return {product, ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow};
}

inline Twofold operator+(Twofold a, Twofold b) {
    const Twofold sum = exactSum(a.high, b.high);
    return exactSum(sum.high, sum.low + (a.low + b.low));
}

inline Twofold operator*(Twofold a, Twofold b) {
    const Twofold product = exactProduct(a.high, b.high);
    return exactSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

// ---- Sine and cosine -------------------------------------------------------------------------------------

// pi / 2 in parts: three of 33 bits, whose product with a number of 16 bits is exact, and the rest.
constexpr double kHalfPi[] = {0x1.921FB544p+0, 0x1.0B4611A6p-34, 0x1.3198A2Ep-69, 0x1.B839A252049C1p-104};

// Minimax fits for |x| <= pi / 4: (sin(x) / x - 1) / x^2 and (cos(x) - 1 + x^2 / 2) / x^4 in powers of x^2,
// to 2^-56.4 of the sine and 2^-59.6 of the cosine.
constexpr double kSine[] = {-0x1.5555555555548p-3, 0x1.111111110F7D0p-7,   -0x1.A01A019BFDEDBp-13,
                            0x1.71DE3567D2482p-19, -0x1.AE5E5A90BE6BEp-26, 0x1.5D8FD17213E2Fp-33};
constexpr double kCosine[] = {0x1.555555555554Bp-5,   -0x1.6C16C16C14F91p-10, 0x1.A01A019C844DFp-16,
                              -0x1.27E4F7EAC3B33p-22, 0x1.1EE9D7B429482p-29,  -0x1.8FA499A419438p-37};

// The words of 2 / pi after its binary point, behind one of zeros.
constexpr Tpx64u kTwoOverPi[] = {
    0,
    0xA2F9836E4E441529,
    0xFC2757D1F534DDC0,
    0xDB6295993C439041,
    0xFE5163ABDEBBC561,
    0xB7246E3A424DD2E0,
    0x06492EEA09D1921C,
    0xFE1DEB1CB129A73E,
    0xE88235F52EBB4484,
    0xE99C7026B45F7E41,
    0x3991D639835339F4,
    0x9C845F8BBDF9283B,
    0x1FF897FFDE05980F,
    0xEF2F118B5A0A6D1F,
    0x6D367ECF27CB09B7,
    0x4F463F669E5FEA2D,
    0x7527BAC7EBE5F17B,
    0x3D0739F78A5292EA,
    0x6BFB5FB11F8D5D08,
    0x56033046FC7B6BAB,
};

// An angle as a number of quarter turns, of which the two lowest bits count, and a rest within an eighth turn.
struct Angle {
    Tpx64u quarters;
    Twofold rest;
};

// For 0 <= x < 90112: at most 57368 quarters, 16 bits. The difference to the first product is exact, since the
// two are so close, and the next ones keep what they lose.
inline Angle reduced(double x) {
    const double n = rounded<Rounding::Nearest>(x * 0x1.45F306DC9C883p-1);
    Twofold rest = exactSum(x - n * kHalfPi[0], -n * kHalfPi[1]);
    rest = rest + exactSum(-n * kHalfPi[2], -n * kHalfPi[3]);
    return {Tpx64u(Tpx32s(n)), rest};
}

// For finite x from 90112 (M. H. Payne, R. N. Hanek, 1983): x = m 2^e is multiplied with those 192 bits of
// 2 / pi that matter modulo 4. The bits before give multiples of 4, those after less than 2^-137, while no
// double comes nearer than 2^-62 to a multiple of pi / 2.
inline Angle reducedHuge(double x) {
    using Wide = unsigned __int128;
    const int e = int(bitsOf(x) >> 52) - (1023 + 52); // from -36 to 971
    const Tpx64u m = (bitsOf(x) & FloatFormat<double>::kFraction) | Tpx64u(1) << 52;

    const int first = e + 62, shift = first % 64; // the bit worth 2 m
    const Tpx64u* words = kTwoOverPi + first / 64;
    const auto window = [&](int i) { return words[i] << shift | words[i + 1] >> 1 >> (63 - shift); };
    const Wide low = Wide(m) * window(2), middle = Wide(m) * window(1) + Tpx64u(low >> 64);
    const Tpx64u high = m * window(0) + Tpx64u(middle >> 64);

    // Two bits of quarters, then the fraction, which is rounded to nearest and thereby signed.
    Wide fraction = (Wide(high) << 64 | Tpx64u(middle)) << 2 | Tpx64u(low) >> 62;
    const bool negative = fraction >> 127;
    const Tpx64u quarters = (high >> 62) + negative;
    if (negative) fraction = -fraction;
    if (fraction == 0) return {quarters, {}};
    const Tpx64u top = Tpx64u(fraction >> 64);
    const int zeros = top ? __builtin_clzll(top) : 64 + __builtin_clzll(Tpx64u(fraction));
    fraction <<= zeros;

    // 53 bits, and 53 bits after them.
    const double scale = fromBits(Tpx64u(1023 - 53 - zeros) << 52 | (negative ? kSignBit : 0));
    const Tpx64s upper = Tpx64s(fraction >> 75), lower = Tpx64s(fraction >> 22 & ((Tpx64u(1) << 53) - 1));
    const Twofold turn = {double(upper) * scale, double(lower) * 0x1p-53 * scale};
    return {quarters, turn * Twofold{0x1.921FB54442D18p+0, 0x1.1A62633145C07p-54}};
}

inline double sine(Angle angle) {
    const double x = angle.rest.high, low = angle.rest.low, z = x * x, half = 0.5 * z;
    const double y = angle.quarters & 1 ? sumOfThree(1.0, -half, z * z * polynomial(z, kCosine) - x * low)
                                        : x + (x * z * polynomial(z, kSine) + (low - half * low));
    return angle.quarters & 2 ? -y : y;
}

inline double sineOf(double x, Angle angle) { return fromBits(bitsOf(sine(angle)) ^ (bitsOf(x) & kSignBit)); }
inline double cosineOf(Angle angle) { return sine({angle.quarters + 1, angle.rest}); }

double ownsSinOne(double x) { return sineOf(x, reduced(magnitudeOf(x))); }
double ownsCosOne(double x) { return cosineOf(reduced(magnitudeOf(x))); }

enum { kSelectCosine = 1, kSelectSine = 2 };
double ownsSinCosHuge(double x, int selector) {
    const Angle angle = reducedHuge(magnitudeOf(x));
    return selector == kSelectSine ? sineOf(x, angle) : cosineOf(angle);
}

template <int Selector, class Plain>
inline double sineOrCosine(double x, Plain plain) {
    const Tpx64u top = bitsOf(magnitudeOf(x)) >> 48;
    if (top < 0x40F6) return plain(x);
    return top >= 0x7FF0 ? x * -0.0 : ownsSinCosHuge(x, Selector);
}

// ---- Powers ----------------------------------------------------------------------------------------------

// 1 / (2 i + 1) for i from 3: the coefficients of atanh(s) / s in powers of s^2 that double precision serves.
constexpr double kOddReciprocals[] = {1 / 7.,  1 / 9.,  1 / 11., 1 / 13., 1 / 15., 1 / 17.,
                                      1 / 19., 1 / 21., 1 / 23., 1 / 25., 1 / 27., 1 / 29.};

// The logarithm of a positive finite number to about 2^-68 of its value: the scheme of logarithm(), with its
// quotient and the first three coefficients in twice the precision.
inline Twofold logarithmTwofold(double x) {
    using Format = FloatFormat<double>;
    using Constants = MathConstants<double>;
    double k = -1023;
    if (x < Format::kMinNormal) {
        x *= 0x1p60;
        k -= 60;
    }
    k += double(Tpx64s(bitsOf(x) >> 52));
    double unit = fromBits((bitsOf(x) & Format::kFraction) | Format::kOne);
    if (unit > 4 / 3.0) {
        unit *= 0.5;
        k += 1;
    }
    const double f = unit - 1;
    const Twofold divisor = exactSum(2, f);
    const double quotient = f / divisor.high;
    const Twofold product = exactProduct(quotient, divisor.high);
    const double remainder = (f - product.high) - product.low - quotient * divisor.low;
    const Twofold s = exactSum(quotient, remainder / divisor.high), z = s * s;

    Twofold series = {z.high * polynomial(z.high, kOddReciprocals), 0};
    series = z * (series + Twofold{0x1.999999999999Ap-3, -0x1.999999999999Ap-57});
    series = z * (series + Twofold{0x1.5555555555555p-2, 0x1.5555555555555p-56});
    series = Twofold{2 * s.high, 2 * s.low} * (series + Twofold{1, 0});
    return Twofold{k * Constants::kLn2High, k * Constants::kLn2Low} + series;
}

inline double power(double x, double y) {
    if (y == 0 || x == 1) return 1;
    if (x != x || y != y) return x + y;
    const double base = magnitudeOf(x);
    const auto isWhole = [](double v) { return rounded<Rounding::Down>(v) == v; };
    if (x < 0 && base < kInfinity && !isWhole(y)) return kInfinity - kInfinity;

    const bool odd = isWhole(y) && !isWhole(0.5 * y);
    const Tpx64u sign = odd ? bitsOf(x) & kSignBit : 0;
    const auto extreme = [&](bool large) { return fromBits(sign | (large ? bitsOf(kInfinity) : 0)); };
    if (base == 1) return fromBits(sign | bitsOf(1));
    if (base == 0 || base == kInfinity || magnitudeOf(y) == kInfinity) return extreme((base > 1) == (y > 0));

    const Twofold log = logarithmTwofold(base);
    if (magnitudeOf(y * log.high) > 800) return extreme(y * log.high > 0);
    Twofold exponent = exactProduct(y, log.high);
    exponent = exactSum(exponent.high, exponent.low + y * log.low);
    const double result = exponential(splat<V64f>(exponent.high), splat<V64f>(exponent.low))[0];
    return fromBits(sign | bitsOf(result));
}

} // namespace
} // namespace tpx

using namespace tpx;

double TPXS(FabsOne)(double x) { return magnitudeOf(x); }
double TPXS(FloorOne)(double x) { return rounded<Rounding::Down>(x); }
double TPXS(CeilOne)(double x) { return rounded<Rounding::Up>(x); }
double TPXS(SqrtOne)(double x) { return squareRoot(x); }
double TPXS(SinOne)(double x) { return sineOrCosine<kSelectSine>(x, ownsSinOne); }
double TPXS(CosOne)(double x) { return sineOrCosine<kSelectCosine>(x, ownsCosOne); }
double TPXS(ExpOne)(double x) { return exponential(splat<V64f>(x))[0]; }
double TPXS(LogOne)(double x) { return logarithm(splat<V64f>(x))[0]; }
double TPXS(PowOne)(double x, double y) { return power(x, y); }

float TPXS(FloorOneF)(float x) { return rounded<Rounding::Down>(x); }
float TPXS(SqrtOneF)(float x) { return squareRoot(x); }
float TPXS(ExpOneF)(float x) { return exponential(splat<V32f>(x))[0]; }
