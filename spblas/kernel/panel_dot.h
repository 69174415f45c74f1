// The row dot of row_dot.h for the columns of a panel, each column in the same order.
#pragma once

#include "spblas/kernel/panel.h"
#include "spblas/kernel/row_dot.h"

namespace orb::spblas {

// The four sums of a panel. Where it is laid out by columns, each column has its own four side by side.
template <class P>
struct PanelSums {
  using Value = typename P::Value;
  Value sum[4] = {Value::zero(), Value::zero(), Value::zero(), Value::zero()};

  template <bool conjugated, class T>
  ORB_INLINE void add(const T* value, const int* column, const P& x) {
    unroll<4>([&](auto k)
                  ORB_INLINE_BODY { sum[k] += factor_for<P, conjugated>(value[k]) * x.at(column[k]); });
  }
  ORB_INLINE Value total() const { return ((sum[0] + sum[1]) + sum[2]) + sum[3]; }
};
template <class P>
requires P::by_columns struct PanelSums<P> {
  using Value = typename P::Value;
  FourSums<typename P::Element> sums[P::columns];

  template <bool conjugated, class T>
  ORB_INLINE void add(const T* value, const int* column, const P& x) {
    unroll<P::columns>(
        [&](auto j) ORB_INLINE_BODY { sums[j].template add<conjugated>(value, column, x.place(0, j)); });
  }
  ORB_INLINE Value total() const {
    return Value::each([&](auto j) ORB_INLINE_BODY { return sums[j].total(); });
  }
};

template <bool conjugated, class T, class P>
ORB_INLINE typename P::Value panel_dot(const Row<T>& row, const P& x) {
  PanelSums<P> sums;
  int k = row.begin;
  for (; row.end - k >= 4; k += 4) sums.template add<conjugated>(row.values + k, row.columns + k, x);
  auto sum = sums.total();
  for (; k < row.end; ++k) sum += factor_for<P, conjugated>(row.values[k]) * x.at(row.columns[k]);
  return sum;
}

// The same for a row of fewer than eight entries: no sum has two of them, so that adding all of them to one
// in stored order gives the same bits, and panels may be wide.
template <class T>
ORB_INLINE bool is_short(const Row<T>& row) {
  return row.count() < 8;
}
template <bool conjugated, class T, class P>
ORB_INLINE typename P::Value short_panel_dot(const Row<T>& row, const P& x) {
  auto sum = P::Value::zero();
  for (int k = row.begin; k < row.end; ++k)
    sum += factor_for<P, conjugated>(row.values[k]) * x.at(row.columns[k]);
  return sum;
}

// The widest panel of which all sums stay in the registers.
template <class T, bool by_rows>
constexpr int dot_registers = by_rows ? 1 : 4 / FourSums<T>::registers;

}  // namespace orb::spblas
