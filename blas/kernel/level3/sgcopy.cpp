// Packing of the single-precision B panel: a column at a time where k runs along memory (`sgcopybn`), by
// 4 by 4 transpositions where it runs across (`sgcopybt`).
#include "orb/blas_gemm_kernels.h"
#include "serv/kernel/loops.h"

namespace orb::blas {
namespace {

void sgcopybn(int n, int depth, const float* b, int ldb, float* buf, int ldbuf) {
  for (int j = 0; j < n; ++j, b += ldb, buf += ldbuf)
    for (int k = 0; k < depth; k += 8)
      unroll<2>([&](auto half) { f32x4::loadu(b + k + 4 * half).store(buf + k + 4 * half); });
}

void sgcopybt(int n, int depth, const float* b, int ldb, float* buf, int ldbuf) {
  for (int k = 0; k < depth; k += 4, b += 4 * ldb, buf += 4) {
    int j = 0;
    for (; n - j >= 4; j += 4) {
      f32x4 v[4];
      unroll<4>([&](auto row) { v[row] = f32x4::loadu(b + j + row * ldb); });
      f32x4::transpose(v);
      unroll<4>([&](auto column) { v[column].store(buf + (j + column) * ldbuf); });
    }
    for (; j < n; ++j) unroll<4>([&](auto row) { buf[j * ldbuf + row] = b[j + row * ldb]; });
  }
}

}  // namespace
}  // namespace orb::blas

ORB_EXPORT void orb_blas_sgcopybn(const int* n, const int* k, const float* b, const int* ldb, float* buf,
                                  const int* ldbuf) {
  orb::blas::sgcopybn(*n, *k, b, *ldb, buf, *ldbuf);
}
ORB_EXPORT void orb_blas_sgcopybt(const int* n, const int* k, const float* b, const int* ldb, float* buf,
                                  const int* ldbuf) {
  orb::blas::sgcopybt(*n, *k, b, *ldb, buf, *ldbuf);
}
