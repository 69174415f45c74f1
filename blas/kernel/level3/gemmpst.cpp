// The small path of the real matrix products: C = alpha op(A) op(B) + beta C for any shape, straight from the
// unpacked matrices. Two forms, chosen by op(A); op(B) is only a pair of strides.
//   A as it stands   C is scaled or cleared, then takes the terms A(i, k) * (alpha op(B)(k, j)) one by one in
//                    rising k. Blocks of C stay in registers over a slice of the depth.
//   A transposed     one dot product along k for each element, alpha * dot + beta * C(i, j). See dot().
#include "orb/blas_gemm.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

template <class T>
struct Product {
  int m, n, k;
  T alpha;
  const T* a;
  int lda;
  const T* b;
  int b_down, b_across;  // from op(B)(k, j) to (k + 1, j) and to (k, j + 1)
  T beta;
  T* c;
  int ldc;

  // The terms from `first` on, at most `depth`; only those from 0 on find the unscaled C.
  Product slice(int first, int depth) const {
    Product s = *this;
    s.k = k - first < depth ? k - first : depth;
    s.a += first * lda;
    s.b += first * b_down;
    if (first > 0) s.beta = 1;
    return s;
  }
};

// `rows` vectors by `cols` columns of C at (i, j), held in registers over all k.
template <class V, int rows, int cols, class T>
ORB_INLINE void add_terms(const Product<T>& p, int i, int j) {
  V sum[rows * cols];
  T* const c = p.c + i + j * p.ldc;
  unroll<rows * cols>([&](auto e) {
    sum[e] = V::zero();
    if (p.beta != 0) sum[e] = V::splat(p.beta) * V::loadu(c + e % rows * V::lanes + e / rows * p.ldc);
  });
  const V alpha = V::splat(p.alpha);
  const int lda = p.lda, down = p.b_down, across = p.b_across;
  const T* a = p.a + i;
  const T* b = p.b + j * across;
  for (int k = p.k; k > 0; --k, a += lda, b += down) {
    V column[rows];
    unroll<rows>([&](auto r) { column[r] = V::loadu(a + r * V::lanes); });
    unroll<cols>([&](auto q) {
      const V factor = alpha * V::splat(b[q * across]);
      unroll<rows>([&](auto r) { sum[q * rows + r] += column[r] * factor; });
    });
  }
  unroll<rows * cols>([&](auto e) { sum[e].storeu(c + e % rows * V::lanes + e / rows * p.ldc); });
}

// All columns of `rows` vectors of C from row i on.
template <class V, int rows, int cols, class T>
__attribute__((noinline)) void add_terms_across(const Product<T>& p, int i) {
  int j = 0;
  for (; p.n - j >= cols; j += cols) add_terms<V, rows, cols>(p, i, j);
  for (; j < p.n; ++j) add_terms<V, rows, 1>(p, i, j);
}

// Four sums at a time, in whatever shape the rows allow.
template <class T, int height>
ORB_INLINE void add_terms_to_rows(const Product<T>& p, int i) {
  using V = vector_of<T>;
  if constexpr (height >= V::lanes)
    add_terms_across<V, height / V::lanes, 4 * V::lanes / height>(p, i);
  else if constexpr (height == 2)
    add_terms_across<f32x2, 1, 4>(p, i);
  else
    add_terms_across<Lane<T>, 1, 4>(p, i);
}

// A slice of the depth keeps a strip of A, a cache line wide, in the first-level cache for all columns.
constexpr int slice_depth = 128;

template <class T>
void add_products(const Product<T>& p) {
  constexpr int lanes = vector_of<T>::lanes;
  int first = 0;
  do {
    const Product<T> slice = p.slice(first, slice_depth);
    // a height that stands twice (2, for double) is not taken twice
    ladder<4 * lanes, 2 * lanes, lanes, 2, 1>(
        0, p.m, [&](auto height, int i) { add_terms_to_rows<T, height>(slice, i); });
    first += slice_depth;
  } while (first < p.k);
}

// The elements of op(B)'s column that go with the lanes of V at x: next to each other, and then on a 16-byte
// boundary, or `step` apart.
template <class V, bool contiguous, class T>
ORB_INLINE V along(const T* x, int step) {
  if constexpr (contiguous)
    return V::load(x);
  else
    return V::gather(x, step);
}

// x . y over n terms, x contiguous, y `step` apart (1 if contiguous). Below nine terms one sum in rising
// order. From nine on: the terms up to y's first 16-byte boundary add up in rising order and start sum 0;
// then eight terms a round go to the sums 0 to 7, which at the end are added as
// ((0 + 4) + (2 + 6)) + ((1 + 5) + (3 + 7)); the rest follows in rising order. A y that is not contiguous has
// no terms in front of the rounds, and one that meets no boundary is left to the one sum.
template <bool contiguous, class T>
ORB_INLINE T dot(int n, const T* x, const T* y, int step) {
  using V = vector_of<T>;
  constexpr int sums = 8 / V::lanes;
  const int peel = contiguous ? elements_to_boundary(y) : 0;
  int k = 0;
  T total = 0;
  if (n >= 9 && peel >= 0) {
    for (; k < peel; ++k) total += x[k] * y[k * step];
    V sum[sums] = {V::low(&total)};
    for (int s = 1; s < sums; ++s) sum[s] = V::zero();
    for (; n - k >= 8; k += 8)
      unroll<sums>([&](auto s) {
        const int at = k + s * V::lanes;
        sum[s] += V::loadu(x + at) * along<V, contiguous>(y + at * step, step);
      });
    for (int half = sums / 2; half > 0; half /= 2)
      for (int s = 0; s < half; ++s) sum[s] += sum[s + half];
    total = sum[0].sum();
  }
  for (; k < n; ++k) total += x[k] * y[k * step];
  return total;
}

// Rows in strips, so that a strip of A stays in the cache for all columns of op(B).
constexpr int strip_rows = 4;

template <bool contiguous, class T>
void set_dots(const Product<T>& p) {
  const int step = contiguous ? 1 : p.b_down;
  for (int top = 0; top < p.m; top += strip_rows) {
    const int bottom = p.m - top < strip_rows ? p.m : top + strip_rows;
    for (int j = 0; j < p.n; ++j)
      for (int i = top; i < bottom; ++i) {
        const T product = p.alpha * dot<contiguous>(p.k, p.a + i * p.lda, p.b + j * p.b_across, step);
        T& c = p.c[i + j * p.ldc];
        c = p.beta == 0 ? product : product + p.beta * c;
      }
  }
}

template <class T>
void small_product(bool a_plain, bool b_plain, const Product<T>& p) {
  if (a_plain)
    add_products(p);
  else if (b_plain)
    set_dots<true>(p);
  else
    set_dots<false>(p);
}

template <class T>
void gemmpst(const char* transa, const char* transb, const int* m, const int* n, const int* k, const T* alpha,
             const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c, const int* ldc) {
  const bool b_plain = is_option(transb, 'N');
  small_product(
      is_option(transa, 'N'), b_plain,
      Product<T>{*m, *n, *k, *alpha, a, *lda, b, b_plain ? 1 : *ldb, b_plain ? *ldb : 1, *beta, c, *ldc});
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_dgemmpst(const char* transa, const char* transb, const int* m, const int* n,
                                  const int* k, const double* alpha, const double* a, const int* lda,
                                  const double* b, const int* ldb, const double* beta, double* c,
                                  const int* ldc) {
  orb::blas::gemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
ORB_EXPORT void orb_blas_sgemmpst(const char* transa, const char* transb, const int* m, const int* n,
                                  const int* k, const float* alpha, const float* a, const int* lda,
                                  const float* b, const int* ldb, const float* beta, float* c,
                                  const int* ldc) {
  orb::blas::gemmpst(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
