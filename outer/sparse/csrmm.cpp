// Products with a dense matrix, its columns divided among threads: the result has the same bits for any
// number.
#include "outer/sparse/csr.h"

namespace orb {
namespace {

template <class T>
void csrmm(const char* routine, char op, int m, int n, int k, T alpha, const char* matrix,
           const CsrArrays<T>& a, const T* b, int ldb, T beta, T* c, int ldc) {
  const char operation = read_operation(op, Complex<T>);
  const Description d = read_description(matrix);
  if (!operation) return complain(routine, 1);
  if (m < 0) return complain(routine, 2);
  if (n < 0) return complain(routine, 3);
  if (k < 0 || (d.square() && d.kind && k != m)) return complain(routine, 4);
  if (!d.kind) return complain(routine, 6);
  const Choice choice = choose(d, operation, Complex<T>);
  const int rows_b = choice.transposes() ? m : k, rows_c = choice.transposes() ? k : m;
  if (bad_ld(d.by_rows(), ldb, rows_b, n)) return complain(routine, 12);
  if (bad_ld(d.by_rows(), ldc, rows_c, n)) return complain(routine, 15);

  scale(lines_of(c, ldc, d.by_rows(), rows_c, n), beta);
  if (m == 0 || n == 0 || k == 0 || is(alpha, 0)) return;
  if (choice.negates) alpha = negated(alpha);
  const auto& kernels = csr_kernels<T>();
  if (auto* seq = kernels.mm_seq.find(choice.shape))
    return seq(&m, &n, &alpha, a.values, a.columns, a.row_begin, a.row_end, b, &ldb, c, &ldc);
  auto* par = kernels.mm_par.find(choice.shape);
  divide_columns(n, double(a.entries(m)) * n, [&](int first, int last) {
    par(&first, &last, &m, &k, &alpha, a.values, a.columns, a.row_begin, a.row_end, b, &ldb, c, &ldc);
  });
}

}  // namespace
}  // namespace orb

#define CSRMM(name, routine, T)                                                                             \
  ORB_EXPORT void name(char op, int m, int n, int k, T alpha, const char* matrix, const T* values,          \
                       const int* columns, const int* row_begin, const int* row_end, const T* b, int ldb,   \
                       T beta, T* c, int ldc) {                                                             \
    orb::csrmm<T>(routine, op, m, n, k, alpha, matrix, {values, columns, row_begin, row_end}, b, ldb, beta, \
                  c, ldc);                                                                                  \
  }
CSRMM(orb_scsrmm, "SCSRMM", float)
CSRMM(orb_dcsrmm, "DCSRMM", double)
CSRMM(orb_ccsrmm, "CCSRMM", orb_complex_float)
CSRMM(orb_zcsrmm, "ZCSRMM", orb_complex_double)
