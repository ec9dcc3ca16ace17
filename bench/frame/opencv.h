// SPDX-License-Identifier: Apache-2.0
// OpenCV as a contender, where the build found it. opencv.cpp says which of its functions does a job's work.
#pragma once

#include "image.h"
#include "race.h"

#include <memory>

namespace bench {

// What a job works on, of any type: an image that the other contenders own, or constants.
struct Operand {
    void* data;
    int step;
    TpxiSize size;
    int channels;
    int sampleBytes;
    bool isFloat, isSigned;
    std::shared_ptr<const void> owned;

    template <typename T>
    Operand(T* first, int rowStep, TpxiSize pixels, int pixelChannels)
        : data(first),
          step(rowStep),
          size(pixels),
          channels(pixelChannels),
          sampleBytes(sizeof(T)),
          isFloat(std::is_floating_point_v<T>),
          isSigned(std::is_signed_v<T>) {}
    template <typename T>
    Operand(const Image<T>& image) : Operand(image.data(), image.step(), image.size(), image.channels()) {}
    template <typename T>
    Operand(const std::vector<T>& rows, int rowLength)
        : Operand(std::make_shared<std::vector<T>>(rows), rowLength) {}

 private:
    template <typename T>
    Operand(const std::shared_ptr<std::vector<T>>& rows, int rowLength)
        : Operand(rows->data(), rowLength * static_cast<int>(sizeof(T)),
                  {rowLength, static_cast<int>(rows->size()) / rowLength}, 1) {
        owned = rows;
    }
};
using Operands = std::vector<Operand>;

// Adds OpenCV to the contenders of a job whose work it has, after a look that it leaves in `to` what the
// library leaves there; or, without `to`, that it finds the library's value.
void joinOpencv(std::vector<Contender>& list, const std::string& function, const Operands& from,
                const Operands& to, double value = 0);

// The lines of opencv.cpp that belong to no job.
std::vector<std::string> strayOpencv(const std::vector<std::string>& functions);

// It cannot be held to AVX once it is loaded; a race within AVX goes without it.
void leaveOutOpencv();

// Its version, or that it was not found.
std::string opencvVersion();

} // namespace bench
