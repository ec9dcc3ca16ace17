// Fourier transforms in extended precision: by the sum that defines them, and a fast one for long sequences.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <vector>

namespace tpx::model {

using Number = std::complex<long double>;
using Numbers = std::vector<Number>;

inline long double turn(size_t k, size_t n) { // k / n of a circle, in radians
    return 2 * 3.14159265358979323846264338327950288L * static_cast<long double>(k) / static_cast<long double>(n);
}
// exp(sign 2 pi i k / n) for all k.
inline Numbers roots(size_t n, int sign) {
    Numbers list(n);
    for (size_t k = 0; k < n; k++) list[k] = {cosl(turn(k, n)), static_cast<long double>(sign) * sinl(turn(k, n))};
    return list;
}

// Without the library's multiplication, which looks for infinities.
inline Number times(Number a, Number b) {
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// sum of x[j] exp(sign 2 pi i j k / n)
inline Numbers fourierBySum(const Numbers& x, int sign) {
    const size_t n = x.size();
    const Numbers root = roots(n, sign);
    Numbers result(n);
    for (size_t k = 0; k < n; k++)
        for (size_t j = 0, at = 0; j < n; j++, at = (at + k) % n) result[k] += times(x[j], root[at]);
    return result;
}

// The same. Even lengths are two halves, a quick start of odd ones is p parts for a small p; what remains is a
// convolution, n being (a^2 + b^2 - (a - b)^2) / 2.
inline Numbers fourier(const Numbers& x, int sign) {
    const size_t n = x.size();
    if (n < 8) return fourierBySum(x, sign);
    for (size_t p : {2, 3, 5, 7}) {
        if (n % p) continue;
        std::vector<Numbers> parts;
        for (size_t i = 0; i < p; i++) {
            Numbers part(n / p);
            for (size_t j = 0; j < n / p; j++) part[j] = x[j * p + i];
            parts.push_back(fourier(part, sign));
        }
        const Numbers root = roots(n, sign);
        Numbers result(n);
        for (size_t k = 0; k < n; k++)
            for (size_t i = 0; i < p; i++) result[k] += times(parts[i][k % (n / p)], root[i * k % n]);
        return result;
    }
    if (n < 128) return fourierBySum(x, sign);
    size_t m = 1;
    while (m < 2 * n) m *= 2;
    const Numbers root = roots(2 * n, sign);
    Numbers a(m), b(m);
    for (size_t k = 0; k < n; k++) {
        const Number chirp = root[k * k % (2 * n)];
        a[k] = times(x[k], chirp);
        b[k] = b[(m - k) % m] = std::conj(chirp);
    }
    a = fourier(a, 1);
    b = fourier(b, 1);
    for (size_t k = 0; k < m; k++) a[k] = times(a[k], b[k]);
    a = fourier(a, -1);
    Numbers result(n);
    for (size_t k = 0; k < n; k++)
        result[k] = times(a[k], root[k * k % (2 * n)]) / static_cast<long double>(m);
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
