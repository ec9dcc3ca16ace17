#include "transforms/line.h"

#include "transforms/groups.h"

namespace tpx {
namespace {

// ---- Factors ---------------------------------------------------------------------------------------------

struct Factors {
    int count = 0;
    Tpx8u radix[32];
    bool complete = true; // else a large prime is left

    void add(uint64_t r) { radix[count++] = Tpx8u(r); }
};

Factors factorsOf(uint64_t n) {
    Factors f;
    for (uint64_t r = 3; r < kLargestRadix && n > 1; r += 2)
        for (; n % r == 0; n /= r) f.add(r);
    // Eights, as far as they leave no lone 2.
    for (; n % 8 == 0 && n != 16; n /= 8) f.add(8);
    for (; n % 4 == 0; n /= 4) f.add(4);
    for (; n % 2 == 0; n /= 2) f.add(2);
    f.complete = n == 1;
    return f;
}

// ---- Tables ----------------------------------------------------------------------------------------------

// Of a pass of this radix over n elements: the roots of an odd butterfly, and the twiddles but those of 1.
uint64_t passFloats(uint64_t n, uint64_t radix) { return 2 * (radix - 1) * ((radix & 1) + n / radix - 1); }
uint64_t twiddleFloats(uint64_t n, const Factors& f) {
    uint64_t floats = 0;
    for (int i = 0; i < f.count; n /= f.radix[i++]) floats += passFloats(n, f.radix[i]);
    return floats;
}

float* put(float* at, Complex<double> z) {
    at[0] = float(z.re);
    at[1] = float(z.im);
    return at + 2;
}

void makeTwiddles(float* at, uint64_t length, const Factors& f, Complex<double>* rootTable) {
    const Roots roots(length, rootTable);
    uint64_t n = length;
    for (int i = 0; i < f.count; i++) {
        const uint64_t radix = f.radix[i], rest = n / radix;
        if (radix & 1)
            for (uint64_t k = 1; k < radix; k++) at = put(at, roots(length / radix * k));
        for (uint64_t p = 1; p < rest; p++)
            for (uint64_t k = 1; k < radix; k++) at = put(at, roots(length / n * p * k));
        n = rest;
    }
}

// ---- Chirps ----------------------------------------------------------------------------------------------

// The least power of two that a convolution of two such sequences fits.
uint64_t convolutionLength(uint64_t n) {
    uint64_t m = 1;
    while (m < 2 * n - 1) m *= 2;
    return m;
}

// A transform of 2^k numbers in double precision.
void transformDouble(Complex<double>* x, uint64_t n, const Roots& roots) {
    for (uint64_t half = n / 2, stride = 1; half; half /= 2, stride *= 2)
        for (uint64_t at = 0; at < n; at += 2 * half)
            for (uint64_t p = 0; p < half; p++) {
                const Complex<double> a = x[at + p], b = x[at + p + half];
                x[at + p] = a + b;
                x[at + p + half] = multiply(a - b, roots(p * stride));
            }
    for (uint64_t i = 1, j = 0; i < n; i++) { // out of bit-reversed order
        uint64_t bit = n / 2;
        for (; j & bit; bit /= 2) j ^= bit;
        j ^= bit;
        if (i >= j) continue;
        const Complex<double> swap = x[i];
        x[i] = x[j];
        x[j] = swap;
    }
}

// exp(-pi i k^2 / n), and the transform of its conjugate, wound around the convolution's length.
void makeChirp(float* chirp, float* spectrum, uint64_t n, Complex<double>* wound, Complex<double>* rootTable) {
    const uint64_t m = convolutionLength(n);
    for (uint64_t i = 0; i < m; i++) wound[i] = {0, 0};
    const Roots roots(2 * n, rootTable);
    for (uint64_t k = 0; k < n; k++) {
        const Complex<double> z = roots(k * k % (2 * n));
        chirp = put(chirp, z);
        wound[k] = wound[(m - k) % m] = {z.re, -z.im};
    }
    transformDouble(wound, m, Roots(m, rootTable));
    const double scale = 1 / double(m);
    for (uint64_t k = 0; k < m; k++) spectrum = put(spectrum, {wound[k].re * scale, wound[k].im * scale});
}

// ---- Passes ----------------------------------------------------------------------------------------------

inline Lanes splatComplex(const float* p) { return {splat<V32f>(p[0]), splat<V32f>(p[1])}; }

// n elements in `runs` interleaved sequences, of which butterflies take every rest-th element.
template <class B>
const float* passOf(const B& butterfly, const float* src, float* dst, ptrdiff_t n, ptrdiff_t runs,
                    const float* twiddles) {
    const int radix = butterfly.radix();
    const ptrdiff_t rest = n / radix;
    const auto part = [&]<bool Turn>(ptrdiff_t p) {
        const float* const from = src + p * runs * kGroupFloats;
        float* const to = dst + p * radix * runs * kGroupFloats;
        for (ptrdiff_t q = 0; q < runs * kGroupFloats; q += kGroupFloats) {
            Lanes x[B::kMost];
#pragma GCC unroll 16
            for (int i = 0; i < radix; i++) x[i] = loadElement(from + q + i * rest * runs * kGroupFloats);
            butterfly.run(x);
            storeElement(to + q, x[0]);
#pragma GCC unroll 16
            for (int k = 1; k < radix; k++) {
                if constexpr (Turn) x[k] = multiply(x[k], splatComplex(twiddles + 2 * k - 2));
                storeElement(to + q + k * runs * kGroupFloats, x[k]);
            }
        }
    };
    part.template operator()<false>(0);
    for (ptrdiff_t p = 1; p < rest; p++, twiddles += 2 * (radix - 1)) part.template operator()<true>(p);
    return twiddles;
}

const float* pass(int radix, const float* src, float* dst, ptrdiff_t n, ptrdiff_t runs, const float* table) {
    const float* const twiddles = table + (radix & 1 ? 2 * (radix - 1) : 0);
    switch (radix) {
        case 2:
            return passOf(EvenButterfly<2>(), src, dst, n, runs, twiddles);
        case 4:
            return passOf(EvenButterfly<4>(), src, dst, n, runs, twiddles);
        case 8:
            return passOf(EvenButterfly<8>(), src, dst, n, runs, twiddles);
        case 3:
            return passOf(OddButterfly<3>(table), src, dst, n, runs, twiddles);
        case 5:
            return passOf(OddButterfly<5>(table), src, dst, n, runs, twiddles);
        case 7:
            return passOf(OddButterfly<7>(table), src, dst, n, runs, twiddles);
        default:
            return passOf(OddButterfly<0>(table, radix), src, dst, n, runs, twiddles);
    }
}

ptrdiff_t elementsOf(const Line& line) {
    ptrdiff_t n = 1;
    for (int i = 0; i < line.passes; i++) n *= line.radix[i];
    return n;
}

float* transformByPasses(const Line& line, float* data, float* other) {
    const float* table = line.twiddles;
    ptrdiff_t n = elementsOf(line), runs = 1;
    for (int i = 0; i < line.passes; i++) {
        table = pass(line.radix[i], data, other, n, runs, table);
        n /= line.radix[i];
        runs *= line.radix[i];
        float* const swap = data;
        data = other;
        other = swap;
    }
    return data;
}

// The middle transform back is one forth with both parts exchanged.
float* transformByChirp(const Line& line, float* data, float* other) {
    const ptrdiff_t n = line.length, m = elementsOf(*line.inner);
    for (ptrdiff_t i = 0; i < n; i++) {
        float* const at = data + i * kGroupFloats;
        storeElement(at, multiply(loadElement(at), splatComplex(line.chirp + 2 * i)));
    }
    for (ptrdiff_t i = n; i < m; i++) storeElement(data + i * kGroupFloats, Lanes{});
    float* const spectrum = transformByPasses(*line.inner, data, other);
    for (ptrdiff_t i = 0; i < m; i++) {
        float* const at = spectrum + i * kGroupFloats;
        const Lanes x = multiply(loadElement(at), splatComplex(line.spectrum + 2 * i));
        storeElement(at, {x.im, x.re});
    }
    float* const result = transformByPasses(*line.inner, spectrum, spectrum == data ? other : data);
    for (ptrdiff_t i = 0; i < n; i++) {
        float* const at = result + i * kGroupFloats;
        const Lanes x = loadElement(at);
        storeElement(at, multiply(Lanes{x.im, x.re}, splatComplex(line.chirp + 2 * i)));
    }
    return result;
}

} // namespace

uint64_t groupBytes(uint64_t length) {
    const uint64_t elements = factorsOf(length).complete ? length : convolutionLength(length);
    return 2 * elements * kGroupFloats * sizeof(float);
}

Line* layOutLine(BlockLayout& block, uint64_t length, bool sharesTables) {
    Line* const line = block.take<Line>(1, kBlockAlignment);
    const Factors factors = factorsOf(length);
    block.take<Tpx8u>(kLineBytes1D - sizeof(Line));
    const float* twiddles = line ? reinterpret_cast<float*>(line + 1) : nullptr;
    const float *chirp = nullptr, *spectrum = nullptr;
    const Line* inner = nullptr;
    if (!sharesTables && factors.complete && length > kShortLine)
        twiddles = block.take<float>(twiddleFloats(length, factors), kBlockAlignment);
    if (!sharesTables && !factors.complete) {
        inner = layOutLine(block, convolutionLength(length), false);
        chirp = block.take<float>(2 * length, kBlockAlignment);
        spectrum = block.take<float>(2 * convolutionLength(length), kBlockAlignment);
    }
    if (!line) return nullptr;
    line->twiddles = twiddles;
    line->inner = inner;
    line->chirp = chirp;
    line->spectrum = spectrum;
    return line;
}

uint64_t lineInitBytes(uint64_t length) {
    if (factorsOf(length).complete) return Roots::tableEntries(length) * sizeof(Complex<double>);
    const uint64_t m = convolutionLength(length);
    const uint64_t entries = maxOf(Roots::tableEntries(m), Roots::tableEntries(2 * length));
    return (m + entries) * sizeof(Complex<double>);
}

void initLine(Line* line, uint64_t length, void* memory) {
    const Factors factors = factorsOf(length);
    auto* const numbers = static_cast<Complex<double>*>(memory);
    line->passes = factors.complete ? factors.count : 0;
    for (int i = 0; i < line->passes; i++) line->radix[i] = factors.radix[i];
    if (factors.complete) return makeTwiddles(const_cast<float*>(line->twiddles), length, factors, numbers);
    const uint64_t m = convolutionLength(length);
    initLine(const_cast<Line*>(line->inner), m, memory);
    makeChirp(const_cast<float*>(line->chirp), const_cast<float*>(line->spectrum), length, numbers,
              numbers + m);
}

float* transform(const Line& line, float* data, float* other) {
    return line.inner ? transformByChirp(line, data, other) : transformByPasses(line, data, other);
}

} // namespace tpx
