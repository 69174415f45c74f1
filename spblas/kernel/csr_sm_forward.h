// Lower triangles with many right-hand sides.
#pragma once

#include "orb/services.h"
#include "spblas/kernel/csr_sm_columns.h"
#include "spblas/kernel/csr_sv_columns.h"

namespace orb::spblas {

// Row by row: the sums of all columns side by side in `work`, which has room for every column of C, then the
// row.
template <bool conjugated, bool unit, bool by_rows, class T>
void sm_forward_by_rows(const Csr<T>& a, Range rows, const Columns<T>& c, T* work) {
  int stop = 0;
  for (int i = rows.first; i < rows.end; ++i) {
    Row<T> row = a.row(i);
    if (row.begin < row.end) stop = end_below(row, i);
    row.end = row.begin < row.end ? stop : row.begin;
    for_panels<T, by_rows, 4>(c.first, c.last, [&](auto panel, int j) ORB_INLINE_BODY {
      const auto x = panel(c.p, c.ld, j);
      auto sum = decltype(x)::Value::zero();
      for (int k = row.begin; k < row.end; ++k)
        sum += factor_for<decltype(x), conjugated>(row.values[k]) * x.at(row.columns[k]);
      sum.store(work + j);
    });
    const T factor = unit ? T{} : reciprocal(conjugate_if<conjugated>(a.values[stop]));
    for_panels<T, by_rows, 2>(c.first, c.last, [&](auto panel, int j) ORB_INLINE_BODY {
      const auto x = panel(c.p, c.ld, j);
      const auto left = x.at(i) - decltype(x)::Value::load(work + j);
      if constexpr (unit)
        x.put(i, left);
      else
        x.put(i, decltype(x)::Register::splat(factor) * left);
    });
  }
}

// `n` is the number of columns of all of C. Without memory for the sums it goes column by column, dividing.
template <bool conjugated, bool unit, bool by_rows, class T>
void sm_forward(const Csr<T>& a, Range rows, int n, const Columns<T>& c) {
  if (T* work = static_cast<T*>(orb_serv_allocate(n * int(sizeof(T)), 128))) {
    sm_forward_by_rows<conjugated, unit, by_rows>(a, rows, c, work);
    orb_serv_deallocate(work);
  } else {
    for (int j = c.first - 1; j < c.last; ++j)
      solve_forward<conjugated, unit>(a, rows, by_rows ? c.p + j : c.p + j * c.ld - 1, by_rows ? c.ld : 1);
  }
}

}  // namespace orb::spblas
