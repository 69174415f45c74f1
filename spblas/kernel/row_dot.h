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
  static constexpr int registers = 4;
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
  static constexpr int registers = 2;
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
  static constexpr int registers = 1;
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

template <>
struct FourSums<c32> {
  using V = ComplexVector<c32>;
  static constexpr int registers = 2;
  V sum[2] = {V::zero(), V::zero()};

  template <bool conjugated>
  ORB_INLINE void add(const c32* value, const int* column, const c32* x) {
    unroll<2>([&](auto k) ORB_INLINE_BODY {
      const V numbers{f32x4::pairs(&x[column[2 * k]].re, &x[column[2 * k + 1]].re)};
      if constexpr (conjugated)
        sum[k] += conj(V::each(value + 2 * k)) * numbers;
      else
        sum[k] += V::each(value + 2 * k) * numbers;
    });
  }
  ORB_INLINE ComplexLane<c32> total() const {
    const f32x4 first = sum[0].v.low_pair() + sum[0].v.high_pair();
    return {(first + sum[1].v.low_pair()) + sum[1].v.high_pair()};
  }
};

template <bool conjugated, class T>
ORB_INLINE one_of<T> row_dot(const Row<T>& row, const T* x) {
  using One = one_of<T>;
  FourSums<T> sums;
  int k = row.begin;
  for (; row.end - k >= 4; k += 4) sums.template add<conjugated>(row.values + k, row.columns + k, x);
  One sum = sums.total();
  for (; k < row.end; ++k) sum += product<conjugated>(row.values[k], One::loadu(x + row.columns[k]));
  return sum;
}

}  // namespace orb::spblas
