// The table from the shape of a kernel on compressed rows to the kernel.
#pragma once

#include "outer/kernels.h"
#include "spblas/kernel/shape.h"

namespace orb {

// Where a shape stands: operation, kind with triangle and diagonal, base.
constexpr int kernel_place(const spblas::Shape& s) {
  constexpr char kinds[][3] = {
      {'g', '_', '_'}, {'d', '_', 'n'}, {'d', '_', 'u'}, {'a', 'l', '_'}, {'a', 'u', '_'}, {'s', 'l', 'n'},
      {'s', 'l', 'u'}, {'s', 'u', 'n'}, {'s', 'u', 'u'}, {'h', 'l', 'n'}, {'h', 'l', 'u'}, {'h', 'u', 'n'},
      {'h', 'u', 'u'}, {'t', 'l', 'n'}, {'t', 'l', 'u'}, {'t', 'u', 'n'}, {'t', 'u', 'u'}};
  constexpr char operations[] = {'n', 't', 'c', 's'};
  int kind = 0, operation = 0;
  while (kinds[kind][0] != s.kind || kinds[kind][1] != s.uplo || kinds[kind][2] != s.diag) ++kind;
  while (operations[operation] != s.op) ++operation;
  return (kind * 4 + operation) * 2 + (s.base - '0');
}
inline constexpr int kernel_places = 17 * 4 * 2;

// Functions of type F by shape.
template <class F>
class KernelTable {
 public:
  constexpr void add(const spblas::Shape& s, const std::atomic<F*>* address) {
    at_[kernel_place(s)] = address;
  }
  // The kernel, or null if there is none of this shape.
  F* find(const spblas::Shape& s) const {
    const auto* address = at_[kernel_place(s)];
    return address ? address->load(std::memory_order_relaxed) : nullptr;
  }

 private:
  const std::atomic<F*>* at_[kernel_places] = {};
};

template <class T>
struct CsrKernels {
  using MvPar = void(const int* first, const int* last, const int* m, const T* alpha, const T* values,
                     const int* columns, const int* row_begin, const int* row_end, const T* x, T* y);
  using MvSeq = void(const int* m, const T* alpha, const T* values, const int* columns, const int* row_begin,
                     const int* row_end, const T* x, T* y);
  using MmPar = void(const int* first, const int* last, const int* m, const int* k, const T* alpha,
                     const T* values, const int* columns, const int* row_begin, const int* row_end,
                     const T* b, const int* ldb, T* c, const int* ldc);
  using MmSeq = void(const int* m, const int* n, const T* alpha, const T* values, const int* columns,
                     const int* row_begin, const int* row_end, const T* b, const int* ldb, T* c,
                     const int* ldc);
  using Sv = void(const int* m, const T* alpha, const T* values, const int* columns, const int* row_begin,
                  const int* row_end, T* y);
  using Sm = void(const int* first, const int* last, const int* m, const int* n, const T* alpha,
                  const T* values, const int* columns, const int* row_begin, const int* row_end, T* c,
                  const int* ldc);
  KernelTable<MvPar> mv_par;
  KernelTable<MvSeq> mv_seq;
  KernelTable<MmPar> mm_par;
  KernelTable<MmSeq> mm_seq;
  KernelTable<Sv> sv;
  KernelTable<Sm> sm;
};
template <class T>
const CsrKernels<T>& csr_kernels();

}  // namespace orb
