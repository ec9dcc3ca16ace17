// SPDX-License-Identifier: Apache-2.0
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
    Roots::makeTable(length, rootTable);
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
    Roots::makeTable(2 * n, rootTable);
    const Roots roots(2 * n, rootTable);
    for (uint64_t k = 0; k < n; k++) {
        const Complex<double> z = roots(k * k % (2 * n));
        chirp = put(chirp, z);
        wound[k] = wound[(m - k) % m] = {z.re, -z.im};
    }
    Roots::makeTable(m, rootTable);
    transformDouble(wound, m, Roots(m, rootTable));
    const double scale = 1 / double(m);
    for (uint64_t k = 0; k < m; k++) spectrum = put(spectrum, {wound[k].re * scale, wound[k].im * scale});
}

// ---- Long lines ------------------------------------------------------------------------------------------

// Groups of longer lines leave the caches; shorter lines that are alone gain nothing.
constexpr uint64_t kLongestGroup = 32768, kShortestAlone = 256;

// The rows of the matrix: the largest divisor up to the square root.
uint64_t splitRows(uint64_t n) {
    uint64_t rows = 1;
    while ((rows + 1) * (rows + 1) <= n) rows++;
    while (n % rows) rows--;
    return rows;
}

struct SplitKinds {
    LineKind columns, rows;
    explicit SplitKinds(uint64_t n) : columns{splitRows(n), false}, rows{n / splitRows(n), false} {}
    bool isSquare() const { return columns.length == rows.length; }
};

// ---- Passes ----------------------------------------------------------------------------------------------

inline Lanes splatComplex(const float* p) { return {splat<V32f>(p[0]), splat<V32f>(p[1])}; }

// Of n elements in `runs` interleaved sequences a butterfly takes every rest-th element.
template <class B>
const float* passOf(const B& butterfly, const Group& group, ptrdiff_t n, ptrdiff_t runs,
                    const float* twiddles) {
    const int radix = butterfly.radix();
    const ptrdiff_t rest = n / radix;
    const auto part = [&]<bool Turn>(ptrdiff_t p) {
        const Group from{group.data + p * runs * Group::kFloats, nullptr};
        const Group to{group.other + p * radix * runs * Group::kFloats, nullptr};
        for (ptrdiff_t q = 0; q < runs; q++) {
            Lanes x[B::kMost];
#pragma GCC unroll 16
            for (int i = 0; i < radix; i++) x[i] = from.load(q + i * rest * runs);
            butterfly.run(x);
            to.store(q, x[0]);
#pragma GCC unroll 16
            for (int k = 1; k < radix; k++) {
                if constexpr (Turn) x[k] = multiply(x[k], splatComplex(twiddles + 2 * k - 2));
                to.store(q + k * runs, x[k]);
            }
        }
    };
    part.template operator()<false>(0);
    for (ptrdiff_t p = 1; p < rest; p++, twiddles += 2 * (radix - 1)) part.template operator()<true>(p);
    return twiddles;
}

const float* pass(int radix, const Group& group, ptrdiff_t n, ptrdiff_t runs, const float* table) {
    const float* const twiddles = table + (radix & 1 ? 2 * (radix - 1) : 0);
    switch (radix) {
        case 2:
            return passOf(EvenButterfly<2>(), group, n, runs, twiddles);
        case 4:
            return passOf(EvenButterfly<4>(), group, n, runs, twiddles);
        case 8:
            return passOf(EvenButterfly<8>(), group, n, runs, twiddles);
        case 3:
            return passOf(OddButterfly<3>(table), group, n, runs, twiddles);
        case 5:
            return passOf(OddButterfly<5>(table), group, n, runs, twiddles);
        case 7:
            return passOf(OddButterfly<7>(table), group, n, runs, twiddles);
        default:
            return passOf(OddButterfly<0>(table, radix), group, n, runs, twiddles);
    }
}

template <class S>
void exchangeBuffers(S& sequences) {
    float* const data = sequences.data;
    sequences.data = sequences.other;
    sequences.other = data;
}

void transformByPasses(const Line& line, Group& group) {
    const float* table = line.twiddles;
    ptrdiff_t n = line.elements, runs = 1;
    for (int i = 0; i < line.passes; i++) {
        table = pass(line.radix[i], group, n, runs, table);
        n /= line.radix[i];
        runs *= line.radix[i];
        exchangeBuffers(group);
    }
}

// A matrix by its columns, turned by what their place and the frequency make, and its rows. These give every
// so-many-th frequency each, so that eight rows store whole lines.
void transformBySplit(const Line& line, LongLine& sequence) {
    const Line &ofColumns = *line.split->columns, &ofRows = *line.split->rows;
    const ptrdiff_t height = ofColumns.elements, width = ofRows.elements;
    const Roots roots(uint64_t(line.elements), line.split->roots);
    const ImageView<float> matrix{sequence.data, width * 2 * ptrdiff_t(sizeof(float))};
    forColumns<Group, 1>(width, [&](const auto& columns, ptrdiff_t x) {
        const ImageView<float> strip = matrix.from(2 * x, 0);
        Group group = sequence.group;
        for (ptrdiff_t y = 0; y < height; y++) group.store(y, columns.load(strip.row(y), 0));
        transform(ofColumns, group);
        for (ptrdiff_t k = 0; k < height; k++) {
            const Complex<double> root = roots(uint64_t(k * x));
            const Lanes turn = multiply(line.split->laneRoots[k],
                                        Lanes{splat<V32f>(float(root.re)), splat<V32f>(float(root.im))});
            columns.store(strip.row(k), 0, toInterleaved(multiply(group.load(k), turn)));
        }
    });
    const ImageView<float> result{sequence.other, height * 2 * ptrdiff_t(sizeof(float))};
    forColumns<Group, 1>(height, [&](const auto& columns, ptrdiff_t k) {
        Group group = sequence.group;
        loadRows<false>(rowsFrom<Group>(matrix, k, height), width, group);
        transform(ofRows, group);
        for (ptrdiff_t j = 0; j < width; j++)
            columns.store(result.row(j) + 2 * k, 0, inRowOrder(group.load(j)));
    });
    exchangeBuffers(sequence);
}

// The middle transform back is one forth with both parts exchanged.
template <class S>
void transformByChirp(const Line& line, S& s) {
    const Chirp& chirp = *line.chirp;
    const ptrdiff_t n = line.length, m = line.elements;
    for (ptrdiff_t i = 0; i < n; i++) s.store(i, multiply(s.load(i), splatComplex(chirp.chirp + 2 * i)));
    for (ptrdiff_t i = n; i < m; i++) s.store(i, Lanes{});
    transform(*chirp.inner, s);
    for (ptrdiff_t i = 0; i < m; i++)
        s.store(i, turned<true>(multiply(s.load(i), splatComplex(chirp.spectrum + 2 * i))));
    transform(*chirp.inner, s);
    for (ptrdiff_t i = 0; i < n; i++)
        s.store(i, multiply(turned<true>(s.load(i)), splatComplex(chirp.chirp + 2 * i)));
}

} // namespace

// ---- Plans -----------------------------------------------------------------------------------------------

LineKind LineKind::of(uint64_t length, uint64_t count) {
    const uint64_t elements = LineKind{length, false}.elements();
    return {length, elements > kLongestGroup || (count == 1 && elements >= kShortestAlone)};
}
bool LineKind::isChirp() const { return !factorsOf(length).complete; }
uint64_t LineKind::elements() const { return isChirp() ? convolutionLength(length) : length; }
uint64_t LineKind::bufferBytes(int groups) const {
    constexpr uint64_t kElement = Group::kFloats * sizeof(float);
    if (!isLong) return uint64_t(groups + 1) * elements() * kElement;
    return 2 * roundUp(elements() * 2 * sizeof(float), kBlockAlignment) +
           2 * SplitKinds(elements()).rows.length * kElement;
}

Line* layOutLine(BlockLayout& block, LineKind kind, bool sharesTables) {
    Line* const line = block.take<Line>(1, kBlockAlignment);
    block.take<Tpx8u>(kLineBytes1D - sizeof(Line));
    const float* twiddles = line ? reinterpret_cast<float*>(line + 1) : nullptr;
    Chirp chirp{}, *chirpPlace = nullptr;
    Split split{}, *splitPlace = nullptr;
    if (sharesTables) {
        // Nothing of its own.
    } else if (kind.isChirp()) {
        const uint64_t m = kind.elements();
        chirpPlace = block.take<Chirp>(1, kBlockAlignment);
        chirp.inner = layOutLine(block, {m, kind.isLong}, false);
        chirp.chirp = block.take<float>(2 * kind.length, kBlockAlignment);
        chirp.spectrum = block.take<float>(2 * m, kBlockAlignment);
    } else if (kind.isLong) {
        const SplitKinds parts(kind.length);
        splitPlace = block.take<Split>(1, kBlockAlignment);
        split.rows = split.columns = layOutLine(block, parts.columns, false);
        if (!parts.isSquare()) split.rows = layOutLine(block, parts.rows, false);
        split.roots = block.take<Complex<double>>(Roots::tableEntries(kind.length), kBlockAlignment);
        split.laneRoots = block.take<Lanes>(parts.columns.length, kBlockAlignment);
    } else if (kind.length > uint64_t(kShortLine)) {
        twiddles = block.take<float>(twiddleFloats(kind.length, factorsOf(kind.length)), kBlockAlignment);
    }
    if (!line) return nullptr;
    line->twiddles = twiddles;
    line->chirp = chirpPlace;
    line->split = splitPlace;
    if (chirpPlace) *chirpPlace = chirp;
    if (splitPlace) *splitPlace = split;
    return line;
}

uint64_t lineInitBytes(LineKind kind) {
    const uint64_t m = kind.elements();
    const uint64_t entries =
        maxOf(Roots::tableEntries(m), kind.isChirp() ? Roots::tableEntries(2 * kind.length) : 0);
    return ((kind.isChirp() ? m : 0) + entries) * sizeof(Complex<double>);
}

void initLine(Line* line, LineKind kind, void* memory) {
    auto* const numbers = static_cast<Complex<double>*>(memory);
    line->elements = Tpx32s(kind.elements());
    line->isLong = kind.isLong;
    line->passes = 0;
    if (line->chirp) {
        const Chirp& chirp = *line->chirp;
        initLine(const_cast<Line*>(chirp.inner), {kind.elements(), kind.isLong}, memory);
        makeChirp(const_cast<float*>(chirp.chirp), const_cast<float*>(chirp.spectrum), kind.length, numbers,
                  numbers + kind.elements());
    } else if (line->split) {
        const Split& split = *line->split;
        const SplitKinds parts(kind.length);
        initLine(const_cast<Line*>(split.columns), parts.columns, memory);
        if (!parts.isSquare()) initLine(const_cast<Line*>(split.rows), parts.rows, memory);
        Roots::makeTable(kind.length, const_cast<Complex<double>*>(split.roots));
        const Roots roots(kind.length, split.roots);
        for (uint64_t k = 0; k < parts.columns.length; k++)
            for (int i = 0; i < 8; i++) {
                const Complex<double> root = roots(k * uint64_t(kColumnOfLane[i]) % kind.length);
                Lanes& at = const_cast<Lanes*>(split.laneRoots)[k];
                at.re[i] = float(root.re);
                at.im[i] = float(root.im);
            }
    } else {
        const Factors factors = factorsOf(kind.length);
        line->passes = factors.count;
        for (int i = 0; i < factors.count; i++) line->radix[i] = factors.radix[i];
        makeTwiddles(const_cast<float*>(line->twiddles), kind.length, factors, numbers);
    }
}

void lendTables(const Line& from, Line* to) {
    to->elements = from.elements;
    to->passes = from.passes;
    to->twiddles = from.twiddles;
    to->chirp = from.chirp;
    to->split = from.split;
    to->isLong = from.isLong;
    for (int i = 0; i < from.passes; i++) to->radix[i] = from.radix[i];
}

// ---- Transforms ------------------------------------------------------------------------------------------

template <>
Group sequencesOf<Group>(const Line& line, float* buffers, int place, int other) {
    const ptrdiff_t floats = ptrdiff_t(line.elements) * Group::kFloats;
    return {buffers + place * floats, buffers + other * floats};
}
template <>
LongLine sequencesOf<LongLine>(const Line& line, float* buffers, int, int) {
    const Line& split = line.chirp ? *line.chirp->inner : line;
    const auto floats = ptrdiff_t(roundUp(uint64_t(line.elements) * 2, kBlockAlignment / sizeof(float)));
    float* const group = buffers + 2 * floats;
    return {buffers, buffers + floats, sequencesOf<Group>(*split.split->rows, group)};
}

void transform(const Line& line, Group& group) {
    if (line.chirp)
        transformByChirp(line, group);
    else
        transformByPasses(line, group);
}
void transform(const Line& line, LongLine& sequence) {
    if (line.chirp)
        transformByChirp(line, sequence);
    else
        transformBySplit(line, sequence);
}

} // namespace tpx
