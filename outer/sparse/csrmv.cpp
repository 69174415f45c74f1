// Products with a vector. Rows are divided among threads where row i alone makes y[i]; the kinds that store
// half of the matrix get a y for each thread, and those are summed in the order of the pieces. Transposed
// products run on the calling thread: any two rows may write to the same place.
#include "outer/sparse/csr.h"

namespace orb {
namespace {

// Row, from 0, at which piece i of `pieces` begins: pieces have about the same number of entries.
template <class T>
int piece_start(const CsrArrays<T>& a, int m, int i, int pieces) {
  if (i == pieces) return m;
  const int before = int((long long)(a.entries(m)) * i / pieces);
  int low = 0, high = m;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (a.row_begin[middle] - a.row_begin[0] < before)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

template <class T>
struct RangeProduct {
  typename CsrKernels<T>::MvPar* kernel;
  bool from_first;  // wants x and y from the first row of the range on
  int m;
  T alpha;
  CsrArrays<T> a;
  const T* x;

  // The rows from `begin` to before `end`, from 0.
  void run(int begin, int end, T* y) const {
    const int first = begin + 1, shift = from_first ? begin : 0;
    kernel(&first, &end, &m, &alpha, a.values, a.columns, a.row_begin, a.row_end, x + shift, y + shift);
  }
  int start(int i, int pieces) const { return piece_start(a, m, i, pieces); }
};

template <class T>
void product_by_rows(const RangeProduct<T>& p, T* y, int pieces) {
  run_pieces(pieces, [&](int i) { p.run(p.start(i, pieces), p.start(i + 1, pieces), y); });
}

// y takes the first piece itself. False, and nothing done, if there is no memory for the others.
template <class T>
bool product_by_copies(const RangeProduct<T>& p, T* y, int pieces) {
  const double bytes = double(pieces - 1) * p.m * sizeof(T);
  T* copies = bytes < 1e9 ? static_cast<T*>(orb_serv_orb_malloc(int(bytes), 64)) : nullptr;
  if (!copies) return false;
  run_pieces(pieces, [&](int i) {
    T* own = i == 0 ? y : copies + (i - 1) * p.m;
    if (i > 0) memset(static_cast<void*>(own), 0, size_t(p.m) * sizeof(T));
    p.run(p.start(i, pieces), p.start(i + 1, pieces), own);
  });
  run_pieces(pieces, [&](int part) {
    const int begin = int((long long)(p.m) * part / pieces),
              end = int((long long)(p.m) * (part + 1) / pieces);
    for (int i = 1; i < pieces; ++i) {
      const T* own = copies + (i - 1) * p.m;
      for (int r = begin; r < end; ++r) y[r] += own[r];
    }
  });
  orb_serv_orb_free(copies);
  return true;
}

template <class T>
void csrmv(const char* routine, char op, int m, int k, T alpha, const char* matrix, const CsrArrays<T>& a,
           const T* x, T beta, T* y) {
  const char operation = read_operation(op, Complex<T>);
  const Description d = read_description(matrix);
  if (!operation) return complain(routine, 1);
  if (m < 0) return complain(routine, 2);
  if (k < 0 || (d.square() && d.kind && k != m)) return complain(routine, 3);
  if (!d.kind) return complain(routine, 5);

  const Choice choice = choose(d, operation, Complex<T>);
  scale(lines_of(y, 1, false, choice.transposes() ? k : m, 1), beta);
  if (m == 0 || k == 0 || is(alpha, 0)) return;
  if (choice.negates) alpha = negated(alpha);

  const auto& kernels = csr_kernels<T>();
  if (auto* seq = kernels.mv_seq.find(choice.shape))
    return seq(&m, &alpha, a.values, a.columns, a.row_begin, a.row_end, x, y);
  const spblas::Shape& s = choice.shape;
  const bool from_first = s.op == 'n' && s.kind == 's' && s.diag == 'n';
  const RangeProduct<T> product{kernels.mv_par.find(s), from_first, m, alpha, a, x};
  const int pieces = pieces_for(a.entries(m), m);
  if (pieces == 1 || (choice.mirrors() && !product_by_copies(product, y, pieces)))
    product.run(0, m, y);
  else if (!choice.mirrors())
    product_by_rows(product, y, pieces);
}

}  // namespace
}  // namespace orb

#define CSRMV(name, routine, T)                                                                          \
  ORB_EXPORT void name(char op, int m, int k, T alpha, const char* matrix, const T* values,              \
                       const int* columns, const int* row_begin, const int* row_end, const T* x, T beta, \
                       T* y) {                                                                           \
    orb::csrmv<T>(routine, op, m, k, alpha, matrix, {values, columns, row_begin, row_end}, x, beta, y);  \
  }
CSRMV(orb_scsrmv, "SCSRMV", float)
CSRMV(orb_dcsrmv, "DCSRMV", double)
CSRMV(orb_ccsrmv, "CCSRMV", orb_complex_float)
CSRMV(orb_zcsrmv, "ZCSRMV", orb_complex_double)
