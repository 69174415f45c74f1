// Triangular and diagonal systems with one right-hand side or many. Each unknown needs the ones before it, so
// one system runs on the calling thread; the columns of many are divided.
#include "outer/sparse/csr.h"

namespace orb {
namespace {

// The kernels of diagonal systems multiply by alpha themselves; a diagonal of ones has none.
bool kernel_takes_alpha(const Choice& choice) { return choice.shape.kind == 'd' && choice.shape.diag == 'n'; }
template <class T>
T factor_of_copy(const Choice& choice, T alpha) {
  T one{};
  real_of<T> unity = 1;
  memcpy(&one, &unity, sizeof unity);
  return kernel_takes_alpha(choice) ? one : alpha;
}

template <class T>
void csrsv(const char* routine, char op, int m, T alpha, const char* matrix, const CsrArrays<T>& a,
           const T* x, T* y) {
  const char operation = read_operation(op, Complex<T>);
  const Description d = read_description(matrix);
  if (!operation) return complain(routine, 1);
  if (m < 0) return complain(routine, 2);
  if (!d.kind || !d.solvable()) return complain(routine, 4);
  const Choice choice = choose(d, operation, Complex<T>);
  copy_scaled(lines_of(x, 1, false, m, 1), lines_of(y, 1, false, m, 1), factor_of_copy(choice, alpha));
  if (auto* kernel = csr_kernels<T>().sv.find(choice.shape))
    kernel(&m, &alpha, a.values, a.columns, a.row_begin, a.row_end, y);
}

template <class T>
void csrsm(const char* routine, char op, int m, int n, T alpha, const char* matrix, const CsrArrays<T>& a,
           const T* b, int ldb, T* c, int ldc) {
  const char operation = read_operation(op, Complex<T>);
  const Description d = read_description(matrix);
  if (!operation) return complain(routine, 1);
  if (m < 0) return complain(routine, 2);
  if (n < 0) return complain(routine, 3);
  if (!d.kind || !d.solvable()) return complain(routine, 5);
  if (bad_ld(d.by_rows(), ldb, m, n)) return complain(routine, 11);
  if (bad_ld(d.by_rows(), ldc, m, n)) return complain(routine, 13);
  if (m == 0 || n == 0) return;
  const Choice choice = choose(d, operation, Complex<T>);
  copy_scaled(lines_of(b, ldb, d.by_rows(), m, n), lines_of(c, ldc, d.by_rows(), m, n),
              factor_of_copy(choice, alpha));
  if (auto* kernel = csr_kernels<T>().sm.find(choice.shape))
    divide_columns(n, double(a.entries(m)) * n, [&](int first, int last) {
      kernel(&first, &last, &m, &n, &alpha, a.values, a.columns, a.row_begin, a.row_end, c, &ldc);
    });
}

}  // namespace
}  // namespace orb

#define CSRSV(name, routine, T)                                                                          \
  ORB_EXPORT void name(char op, int m, T alpha, const char* matrix, const T* values, const int* columns, \
                       const int* row_begin, const int* row_end, const T* x, T* y) {                     \
    orb::csrsv<T>(routine, op, m, alpha, matrix, {values, columns, row_begin, row_end}, x, y);           \
  }
CSRSV(orb_scsrsv, "SCSRSV", float)
CSRSV(orb_dcsrsv, "DCSRSV", double)
CSRSV(orb_ccsrsv, "CCSRSV", orb_complex_float)
CSRSV(orb_zcsrsv, "ZCSRSV", orb_complex_double)

#define CSRSM(name, routine, T)                                                                             \
  ORB_EXPORT void name(char op, int m, int n, T alpha, const char* matrix, const T* values,                 \
                       const int* columns, const int* row_begin, const int* row_end, const T* b, int ldb,   \
                       T* c, int ldc) {                                                                     \
    orb::csrsm<T>(routine, op, m, n, alpha, matrix, {values, columns, row_begin, row_end}, b, ldb, c, ldc); \
  }
CSRSM(orb_scsrsm, "SCSRSM", float)
CSRSM(orb_dcsrsm, "DCSRSM", double)
CSRSM(orb_ccsrsm, "CCSRSM", orb_complex_float)
CSRSM(orb_zcsrsm, "ZCSRSM", orb_complex_double)
