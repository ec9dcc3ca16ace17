// The calling thread's floating-point control register, for work whose results must not depend on what the
// caller has set there.
#pragma once

#include "frame/simd/core.h"

namespace tpx {

// Installs a rounding direction while it lives. Exceptions do not trap, and results too small for a normal
// number are zeros, which no rounding to integers tells from the numbers they were; samples that are denormal
// are taken as they are. At the end control and flags are again what they were.
//
// Arithmetic stays inside because its operands come from memory and its results go there.
class FloatControl {
 public:
    explicit FloatControl(Rounding rounding) {
        constexpr Tpx32u kNoTraps = 0x1F80, kFlushToZero = 0x8000, kRounding = 0x6000;
        asm volatile("vstmxcsr %0" : "=m"(callers_)::"memory");
        const Tpx32u direction = rounding == Rounding::OfThread ? callers_ & kRounding : Tpx32u(rounding) << 13;
        install(kNoTraps | kFlushToZero | direction);
    }
    ~FloatControl() { install(callers_); }
    FloatControl(const FloatControl&) = delete;
    FloatControl& operator=(const FloatControl&) = delete;

 private:
    static void install(Tpx32u control) { asm volatile("vldmxcsr %0" ::"m"(control) : "memory"); }
    Tpx32u callers_;
};

} // namespace tpx
