// Users' arrays as views. Null pointers give views that may only be thrown away.
#pragma once

#include "signal/kernel/split.h"

namespace orb::signal {

ORB_INLINE Interleaved<const float> view(const c32* p) { return {reinterpret_cast<const float*>(p)}; }
ORB_INLINE Interleaved<float> view(c32* p) { return {reinterpret_cast<float*>(p)}; }
ORB_INLINE Interleaved<const double> view(const c64* p) { return {reinterpret_cast<const double*>(p)}; }
ORB_INLINE Interleaved<double> view(c64* p) { return {reinterpret_cast<double*>(p)}; }

}  // namespace orb::signal
