// The sum of one row's entries times elements of a vector, in the order that all types keep: entry k of the
// whole groups of four goes to sum k mod 4, the sums are added as ((s0 + s1) + s2) + s3, and the up to three
// entries that are left are added to that one by one.
#pragma once

#include "serv/kernel/loops.h"
#include "spblas/kernel/csr.h"

namespace orb::spblas {

// The four sums. add() takes a group of four entries.
template <class T>
struct FourSums {
  using One = one_of<T>;
  One sum[4] = {One::zero(), One::zero(), One::zero(), One::zero()};

  template <bool conjugated>
  ORB_INLINE void add(const T* value, const int* column, const T* x) {
    unroll<4>([&](auto k) ORB_INLINE_BODY {
      sum[k] += factor<One, conjugated>(value[k]) * One::loadu(x + column[k]);
    });
  }
  ORB_INLINE One total() const { return ((sum[0] + sum[1]) + sum[2]) + sum[3]; }
};

// Sums side by side in a register, one a lane.
template <>
struct FourSums<double> {
  f64x2 sum[2] = {f64x2::zero(), f64x2::zero()};

  template <bool conjugated>
  ORB_INLINE void add(const double* value, const int* column, const double* x) {
    sum[0] += f64x2::loadu(value) * f64x2::pair(x[column[0]], x[column[1]]);
    sum[1] += f64x2::loadu(value + 2) * f64x2::pair(x[column[2]], x[column[3]]);
  }
  ORB_INLINE Lane<double> total() const {
    return {(sum[0].sum() + sum[1].first()) + sum[1].swap_halves().first()};
  }
};
template <>
struct FourSums<float> {
  f32x4 sum = f32x4::zero();

  template <bool conjugated>
  ORB_INLINE void add(const float* value, const int* column, const float* x) {
    sum += f32x4::loadu(value) * f32x4::quad(x[column[0]], x[column[1]], x[column[2]], x[column[3]]);
  }
  ORB_INLINE Lane<float> total() const {
    return {((sum.first() + sum.splat_lane<1>().first()) + sum.splat_lane<2>().first()) +
            sum.splat_lane<3>().first()};
  }
};

template <bool conjugated, class T>
ORB_INLINE T row_dot(const Row<T>& row, const T* x) {
  using One = one_of<T>;
  FourSums<T> sums;
  int k = 0;
  for (; row.count - k >= 4; k += 4) sums.template add<conjugated>(row.value + k, row.column + k, x);
  One sum = sums.total();
  for (; k < row.count; ++k) sum += factor<One, conjugated>(row.value[k]) * One::loadu(x + row.column[k]);
  return element<T>(sum);
}

}  // namespace orb::spblas
