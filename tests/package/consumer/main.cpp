// SPDX-License-Identifier: Apache-2.0
// A user's program in C++17: the installed tpxi.hpp, with all that it includes, and a refused call.
#include <cstring>
#include <tpxi.hpp>

int main() {
    tpxi::Image<Tpx8u, 1> image(100, 7);
    tpxi::set(200, image);
    tpxi::sqrt(image.sub(3, 0, 97, 6), 0); // the square root of 200 is 14.1
    if (image.row(5)[3] != 14 || image.row(5)[2] != 200 || image.row(6)[3] != 200) return 1;
    try {
        tpxi::copy(image, image.sub(0, 0, 5, 5));
    } catch (const tpxi::Error& error) {
        return std::strcmp(error.name(), "tpxErrSize") != 0;
    }
    return 1;
}
