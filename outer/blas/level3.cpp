// Fortran faces of the symmetric, Hermitian and triangular matrix-matrix routines. S is the type of real or
// complex factors.
#include "outer/blas/checks.h"
#include "outer/blas/level3_work.h"
#include "outer/blas/refuse.h"

namespace {
using orb::c32;
using orb::c64;
using orb::refuse;
}  // namespace

#define SYMM(name, NAME, entry, T)                                                                         \
  ORB_FACE void name(const char* side, const char* uplo, const int* m, const int* n, const T* alpha,       \
                     const T* a, const int* lda, const T* b, const int* ldb, const T* beta, T* c,          \
                     const int* ldc) {                                                                     \
    if (const int place = orb::bad_symm(side, uplo, *m, *n, *lda, *ldb, *ldc)) return refuse(NAME, place); \
    orb::Symm<entry>::run(side, uplo, m, n, alpha, a, lda, b, ldb, beta, c, ldc);                          \
  }
SYMM(ssymm_, "SSYMM ", orb_blas_xssymm, float)
SYMM(dsymm_, "DSYMM ", orb_blas_xdsymm, double)
SYMM(csymm_, "CSYMM ", orb_blas_xcsymm, c32)
SYMM(zsymm_, "ZSYMM ", orb_blas_xzsymm, c64)
SYMM(chemm_, "CHEMM ", orb_blas_xchemm, c32)
SYMM(zhemm_, "ZHEMM ", orb_blas_xzhemm, c64)

#define SYRK(name, NAME, whole, part, good, S, T)                                                     \
  ORB_FACE void name(const char* uplo, const char* trans, const int* n, const int* k, const S* alpha, \
                     const T* a, const int* lda, const S* beta, T* c, const int* ldc) {               \
    if (const int place = orb::bad_syrk(uplo, trans, good(trans), *n, *k, *lda, *ldc))                \
      return refuse(NAME, place);                                                                     \
    orb::update<T, whole, part>(uplo, trans, n, k, alpha, a, lda, beta, c, ldc);                      \
  }
SYRK(ssyrk_, "SSYRK ", orb_blas_xssyrk, orb_blas_ssyrk_part, orb::is_symmetric_transpose<float>, float, float)
SYRK(dsyrk_, "DSYRK ", orb_blas_xdsyrk, orb_blas_dsyrk_part, orb::is_symmetric_transpose<double>, double,
     double)
SYRK(csyrk_, "CSYRK ", orb_blas_xcsyrk, orb_blas_csyrk_part, orb::is_symmetric_transpose<c32>, c32, c32)
SYRK(zsyrk_, "ZSYRK ", orb_blas_xzsyrk, orb_blas_zsyrk_part, orb::is_symmetric_transpose<c64>, c64, c64)
SYRK(cherk_, "CHERK ", orb_blas_xcherk, orb_blas_cherk_part, orb::is_hermitian_transpose, float, c32)
SYRK(zherk_, "ZHERK ", orb_blas_xzherk, orb_blas_zherk_part, orb::is_hermitian_transpose, double, c64)

#define SYR2K(name, NAME, whole, part, good, S, T)                                                    \
  ORB_FACE void name(const char* uplo, const char* trans, const int* n, const int* k, const T* alpha, \
                     const T* a, const int* lda, const T* b, const int* ldb, const S* beta, T* c,     \
                     const int* ldc) {                                                                \
    if (const int place = orb::bad_syr2k(uplo, trans, good(trans), *n, *k, *lda, *ldb, *ldc))         \
      return refuse(NAME, place);                                                                     \
    orb::update<T, whole, part>(uplo, trans, n, k, alpha, a, lda, b, ldb, beta, c, ldc);              \
  }
SYR2K(ssyr2k_, "SSYR2K", orb_blas_xssyr2k, orb_blas_ssyr2k_part, orb::is_symmetric_transpose<float>, float,
      float)
SYR2K(dsyr2k_, "DSYR2K", orb_blas_xdsyr2k, orb_blas_dsyr2k_part, orb::is_symmetric_transpose<double>, double,
      double)
SYR2K(csyr2k_, "CSYR2K", orb_blas_xcsyr2k, orb_blas_csyr2k_part, orb::is_symmetric_transpose<c32>, c32, c32)
SYR2K(zsyr2k_, "ZSYR2K", orb_blas_xzsyr2k, orb_blas_zsyr2k_part, orb::is_symmetric_transpose<c64>, c64, c64)
SYR2K(cher2k_, "CHER2K", orb_blas_xcher2k, orb_blas_cher2k_part, orb::is_hermitian_transpose, float, c32)
SYR2K(zher2k_, "ZHER2K", orb_blas_xzher2k, orb_blas_zher2k_part, orb::is_hermitian_transpose, double, c64)

#define TRMM(name, NAME, entry, T)                                                                           \
  ORB_FACE void name(const char* side, const char* uplo, const char* transa, const char* diag, const int* m, \
                     const int* n, const T* alpha, const T* a, const int* lda, T* b, const int* ldb) {       \
    if (const int place = orb::bad_trmm(side, uplo, transa, diag, *m, *n, *lda, *ldb))                       \
      return refuse(NAME, place);                                                                            \
    orb::Trmm<entry>::run(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);                            \
  }
TRMM(strmm_, "STRMM ", orb_blas_xstrmm, float)
TRMM(dtrmm_, "DTRMM ", orb_blas_xdtrmm, double)
TRMM(ctrmm_, "CTRMM ", orb_blas_xctrmm, c32)
TRMM(ztrmm_, "ZTRMM ", orb_blas_xztrmm, c64)
TRMM(strsm_, "STRSM ", orb_blas_xstrsm, float)
TRMM(dtrsm_, "DTRSM ", orb_blas_xdtrsm, double)
TRMM(ctrsm_, "CTRSM ", orb_blas_xctrsm, c32)
TRMM(ztrsm_, "ZTRSM ", orb_blas_xztrsm, c64)

#define GEMMT(name, NAME, T)                                                                                 \
  ORB_EXPORT void name(const char* uplo, const char* transa, const char* transb, const int* n, const int* k, \
                       const T* alpha, const T* a, const int* lda, const T* b, const int* ldb,               \
                       const T* beta, T* c, const int* ldc) {                                                \
    if (const int place = orb::bad_gemmt(uplo, transa, transb, *n, *k, *lda, *ldb, *ldc))                    \
      return refuse(NAME, place);                                                                            \
    orb::TriangularProduct<T>{uplo, transa, transb, n, k, alpha, a, lda, b, ldb, beta, c, ldc}.run();        \
  }
GEMMT(sgemmt_, "SGEMMT", float)
GEMMT(dgemmt_, "DGEMMT", double)
GEMMT(cgemmt_, "CGEMMT", c32)
GEMMT(zgemmt_, "ZGEMMT", c64)
