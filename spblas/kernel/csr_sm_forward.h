// Lower triangles with many right-hand sides.
#pragma once

#include "orb/services.h"
#include "serv/kernel/loops.h"
#include "spblas/kernel/csr_sv_columns.h"

namespace orb::spblas {

// Columns of C, from 0, that stand `step` apart in a row, rows `ld` apart.
template <class T>
struct Columns {
  T* p;
  int ld, step, first, end;

  ORB_INLINE T* place(int r, int j) const { return p + r * ld + j * step; }
  ORB_INLINE int count() const { return end - first; }
};

// body.template operator()<V>(element of row r of C, element of work) for all columns, registers at once
// where the row is contiguous.
template <bool contiguous, class T, class Body>
ORB_INLINE void along_row(const Columns<T>& c, int r, T* work, Body body) {
  T* row = c.place(r, c.first);
  if constexpr (contiguous)
    register_loop<T>(c.count(), 0, [&]<class V>(auto, int j) ORB_INLINE_BODY {
      body.template operator()<V>(row + j, work + j);
    });
  else
    for (int j = 0; j < c.count(); ++j) body.template operator()<one_of<T>>(row + j * c.step, work + j);
}

// Row by row, the sums of all columns side by side in `work`, which has room for every column of C.
template <bool conjugated, bool unit, bool contiguous, class T>
void sm_forward_by_rows(const Csr<T>& a, Range rows, const Columns<T>& c, T* work) {
  work += c.first;
  int stop = 0;
  for (int i = rows.first; i < rows.end; ++i) {
    for (int j = 0; j < c.count(); ++j) work[j] = T{};
    const int end = a.end(i);
    if (a.begin(i) < end)
      for (stop = a.begin(i); stop < end && a.columns[stop] < i; ++stop) {
        const T value = conjugate_if<conjugated>(a.values[stop]);
        along_row<contiguous>(c, a.columns[stop], work, [&]<class V>(T* x, T* sum) ORB_INLINE_BODY {
          (V::loadu(sum) + V::splat(value) * V::loadu(x)).storeu(sum);
        });
      }
    const T factor = unit ? T{} : reciprocal(conjugate_if<conjugated>(a.values[stop]));
    along_row<contiguous>(c, i, work, [&]<class V>(T* x, T* sum) ORB_INLINE_BODY {
      const V difference = V::loadu(x) - V::loadu(sum);
      if constexpr (unit)
        difference.storeu(x);
      else
        (V::splat(factor) * difference).storeu(x);
    });
  }
}

// `n` is the number of columns of all of C. Without memory for the sums it goes column by column, dividing.
template <bool conjugated, bool unit, bool contiguous, class T>
void sm_forward(const Csr<T>& a, Range rows, int n, const Columns<T>& c) {
  if (T* work = static_cast<T*>(orb_serv_allocate(n * int(sizeof(T)), 128))) {
    sm_forward_by_rows<conjugated, unit, contiguous>(a, rows, c, work);
    orb_serv_deallocate(work);
  } else {
    for (int j = c.first; j < c.end; ++j) solve_forward<conjugated, unit>(a, rows, c.place(0, j), c.ld);
  }
}

}  // namespace orb::spblas
