// SPDX-License-Identifier: Apache-2.0
// Fourier transforms in extended precision: by the sum that defines them, and faster for long sequences.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace tpx::model {

using Number = std::complex<long double>;
using Numbers = std::vector<Number>;

inline long double turn(size_t k, size_t n) { // k / n of a circle, in radians
    return 2 * 3.14159265358979323846264338327950288L * static_cast<long double>(k) /
           static_cast<long double>(n);
}
// exp(sign 2 pi i k / n) for all k.
inline Numbers roots(size_t n, int sign) {
    Numbers list(n);
    for (size_t k = 0; k < n; k++)
        list[k] = {cosl(turn(k, n)), static_cast<long double>(sign) * sinl(turn(k, n))};
    return list;
}

// Without the library's multiplication, which looks for infinities.
inline Number times(Number a, Number b) {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// sum of x[j * stride] root^(j k) for n numbers; `root` holds powers of a root whose order is a multiple of n.
inline void fourierBySum(const Number* x, size_t stride, size_t n, const Numbers& root, Number* result) {
    for (size_t k = 0; k < n; k++) {
        result[k] = 0;
        for (size_t j = 0, at = 0; j < n; j++, at = (at + k * (root.size() / n)) % root.size())
            result[k] += times(x[j * stride], root[at]);
    }
}

Numbers fourier(const Numbers& x, int sign);

// As 2 j k = j^2 + k^2 - (j - k)^2, a convolution.
inline void fourierByChirp(const Number* x, size_t stride, size_t n, int sign, Number* result) {
    size_t m = 1;
    while (m < 2 * n) m *= 2;
    const Numbers root = roots(2 * n, sign);
    Numbers a(m), b(m);
    for (size_t k = 0; k < n; k++) {
        const Number chirp = root[k * k % (2 * n)];
        a[k] = times(x[k * stride], chirp);
        b[k] = b[(m - k) % m] = std::conj(chirp);
    }
    a = fourier(a, 1);
    b = fourier(b, 1);
    for (size_t k = 0; k < m; k++) a[k] = times(a[k], b[k]);
    a = fourier(a, -1);
    for (size_t k = 0; k < n; k++) result[k] = times(a[k], root[k * k % (2 * n)]) / static_cast<long double>(m);
}

// As p parts for a small factor p of the length, if there is one.
inline void fourierByParts(const Number* x, size_t stride, size_t n, int sign, const Numbers& root,
                           Number* result) {
    if (n == 1) {
        *result = *x;
        return;
    }
    size_t p = 2;
    while (p < 8 && n % p) p += 1 + (p > 2);
    if (p > 8) {
        if (n < 64)
            fourierBySum(x, stride, n, root, result);
        else
            fourierByChirp(x, stride, n, sign, result);
        return;
    }
    const size_t part = n / p, step = root.size() / n;
    for (size_t i = 0; i < p; i++)
        fourierByParts(x + i * stride, stride * p, part, sign, root, result + i * part);
    for (size_t k = 0; k < part; k++) {
        Number terms[8];
        for (size_t i = 0; i < p; i++) terms[i] = times(result[i * part + k], root[i * k * step % root.size()]);
        for (size_t q = 0; q < p; q++) {
            Number sum = terms[0];
            for (size_t i = 1; i < p; i++) sum += times(terms[i], root[i * q * part * step % root.size()]);
            result[q * part + k] = sum;
        }
    }
}

// sum of x[j] exp(sign 2 pi i j k / n)
inline Numbers fourier(const Numbers& x, int sign) {
    Numbers result(x.size());
    fourierByParts(x.data(), 1, x.size(), sign, roots(x.size(), sign), result.data());
    return result;
}
inline Numbers fourierBySum(const Numbers& x, int sign) {
    Numbers result(x.size());
    fourierBySum(x.data(), 1, x.size(), roots(x.size(), sign), result.data());
    return result;
}

// Of an image of complex numbers, row by row.
inline Numbers fourier2D(Numbers image, size_t width, size_t height, int sign) {
    for (size_t y = 0; y < height; y++) {
        const auto at = image.begin() + static_cast<ptrdiff_t>(y * width);
        const Numbers row = fourier(Numbers(at, at + static_cast<ptrdiff_t>(width)), sign);
        std::copy(row.begin(), row.end(), at);
    }
    for (size_t x = 0; x < width; x++) {
        Numbers column(height);
        for (size_t y = 0; y < height; y++) column[y] = image[y * width + x];
        column = fourier(column, sign);
        for (size_t y = 0; y < height; y++) image[y * width + x] = column[y];
    }
    return image;
}

// Where a packed spectrum has the parts of frequencies: value(k, j) is F(k, j), k being vertical.
template <class Value>
std::vector<long double> packed(size_t width, size_t height, Value value) {
    std::vector<long double> image(width * height);
    for (size_t y = 0; y < height; y++)
        for (size_t x = 0; x < width; x++) {
            const bool alongY = x == 0 || (width % 2 == 0 && x == width - 1);
            const size_t j = (x + 1) / 2, k = alongY ? (y + 1) / 2 : y;
            const bool imaginary = alongY ? y > 0 && y % 2 == 0 : x % 2 == 0;
            const Number f = value(k, j);
            image[y * width + x] = imaginary ? f.imag() : f.real();
        }
    return image;
}

} // namespace tpx::model
