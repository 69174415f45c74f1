// Exported: single passes of factor plans on users' arrays.
#include "orb/signal_any_length.h"
#include "signal/kernel/dft/run.h"

namespace orb::signal {
namespace {

// A pass in full registers where the columns fill them, else in single numbers.
template <bool real, bool first, class Factor, class Source, class Target, class T>
void pass(Factor factor, Source source, Target target, int done, int count, const T* twiddles) {
  const auto run = [&]<class V>() {
    factor_pass<real, first>(factor, source.template with<V>(), target.template with<V>(), done, count,
                             twiddles);
  };
  if (count >= vector_of<T>::lanes)
    run.template operator()<vector_of<T>>();
  else
    run.template operator()<Lane<T>>();
}

template <bool swapped, class C>
PairsAt<real_of<C>, swapped> pairs(const C* p) {
  return {reinterpret_cast<real_of<C>*>(const_cast<C*>(p))};
}

}  // namespace
}  // namespace orb::signal

using namespace orb::signal;

#define PRIME(name, p, swapped, C, T)                                               \
  ORB_EXPORT void name(const C* in, C* out, int count) {                            \
    pass<false, true, FixedFactor<p>, PairsAt<T, swapped>, PairsAt<T, swapped>, T>( \
        {}, pairs<swapped>(in), pairs<swapped>(out), 1, count, nullptr);            \
  }
#define PRIME_ANY(name, swapped, C, T)                                                \
  ORB_EXPORT void name(const C* in, C* out, int factor, int count, const T* table) {  \
    pass<false, true, AnyFactor<T>, PairsAt<T, swapped>, PairsAt<T, swapped>, T>(     \
        {factor, table}, pairs<swapped>(in), pairs<swapped>(out), 1, count, nullptr); \
  }
#define FACT(name, p, swapped, C, T)                                                                      \
  ORB_EXPORT void name(const C* in, C* out, int done, int count, const T* twiddles) {                     \
    pass<false, false>(FixedFactor<p>{}, pairs<swapped>(in), pairs<swapped>(out), done, count, twiddles); \
  }
#define FACT_ANY(name, swapped, C, T)                                                                     \
  ORB_EXPORT void name(const C* in, C* out, int factor, int done, int count, const T* twiddles,           \
                       const T* table) {                                                                  \
    pass<false, false>(AnyFactor<T>{factor, table}, pairs<swapped>(in), pairs<swapped>(out), done, count, \
                       twiddles);                                                                         \
  }
PRIME(t7_vsps_cDftOutOrdFwd_Prime3_32fc, 3, false, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdFwd_Prime5_32fc, 5, false, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdFwd_Prime7_32fc, 7, false, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdFwd_Prime11_32fc, 11, false, orb_complex_float, float)
PRIME_ANY(t7_vsps_cDftOutOrdFwd_Prime_32fc, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact2_32fc, 2, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact3_32fc, 3, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact4_32fc, 4, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact5_32fc, 5, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact7_32fc, 7, false, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdFwd_Fact11_32fc, 11, false, orb_complex_float, float)
FACT_ANY(t7_vsps_cDftOutOrdFwd_Fact_32fc, false, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdInv_Prime3_32fc, 3, true, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdInv_Prime5_32fc, 5, true, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdInv_Prime7_32fc, 7, true, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdInv_Prime11_32fc, 11, true, orb_complex_float, float)
PRIME_ANY(t7_vsps_cDftOutOrdInv_Prime_32fc, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact2_32fc, 2, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact3_32fc, 3, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact4_32fc, 4, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact5_32fc, 5, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact7_32fc, 7, true, orb_complex_float, float)
FACT(t7_vsps_cDftOutOrdInv_Fact11_32fc, 11, true, orb_complex_float, float)
FACT_ANY(t7_vsps_cDftOutOrdInv_Fact_32fc, true, orb_complex_float, float)
PRIME(t7_vsps_cDftOutOrdFwd_Prime3_64fc, 3, false, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdFwd_Prime5_64fc, 5, false, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdFwd_Prime7_64fc, 7, false, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdFwd_Prime11_64fc, 11, false, orb_complex_double, double)
PRIME_ANY(t7_vsps_cDftOutOrdFwd_Prime_64fc, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact2_64fc, 2, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact3_64fc, 3, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact4_64fc, 4, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact5_64fc, 5, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact7_64fc, 7, false, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdFwd_Fact11_64fc, 11, false, orb_complex_double, double)
FACT_ANY(t7_vsps_cDftOutOrdFwd_Fact_64fc, false, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdInv_Prime3_64fc, 3, true, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdInv_Prime5_64fc, 5, true, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdInv_Prime7_64fc, 7, true, orb_complex_double, double)
PRIME(t7_vsps_cDftOutOrdInv_Prime11_64fc, 11, true, orb_complex_double, double)
PRIME_ANY(t7_vsps_cDftOutOrdInv_Prime_64fc, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact2_64fc, 2, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact3_64fc, 3, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact4_64fc, 4, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact5_64fc, 5, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact7_64fc, 7, true, orb_complex_double, double)
FACT(t7_vsps_cDftOutOrdInv_Fact11_64fc, 11, true, orb_complex_double, double)
FACT_ANY(t7_vsps_cDftOutOrdInv_Fact_64fc, true, orb_complex_double, double)

#define REAL_PRIME(name, p, C, T)                                                                      \
  ORB_EXPORT void name(const T* in, C* out, int count) {                                               \
    pass<true, true, FixedFactor<p>, RealsAt<T>, PairsAt<T, false>, T>({}, {in}, pairs<false>(out), 1, \
                                                                       count, nullptr);                \
  }
#define REAL_PRIME_ANY(name, C, T)                                                                          \
  ORB_EXPORT void name(const T* in, C* out, int factor, int count, const T* table) {                        \
    pass<true, true, AnyFactor<T>, RealsAt<T>, PairsAt<T, false>, T>({factor, table}, {in},                 \
                                                                     pairs<false>(out), 1, count, nullptr); \
  }
#define REAL_FACT(name, p, C, T)                                                                     \
  ORB_EXPORT void name(const C* in, C* out, int done, int count, const T* twiddles) {                \
    pass<true, false>(FixedFactor<p>{}, pairs<false>(in), pairs<false>(out), done, count, twiddles); \
  }
#define REAL_FACT_ANY(name, C, T)                                                                    \
  ORB_EXPORT void name(const C* in, C* out, int factor, int done, int count, const T* twiddles,      \
                       const T* table) {                                                             \
    pass<true, false>(AnyFactor<T>{factor, table}, pairs<false>(in), pairs<false>(out), done, count, \
                      twiddles);                                                                     \
  }
REAL_PRIME(t7_vsps_rDftFwd_Prime3_32f, 3, orb_complex_float, float)
REAL_PRIME(t7_vsps_rDftFwd_Prime5_32f, 5, orb_complex_float, float)
REAL_PRIME(t7_vsps_rDftFwd_Prime7_32f, 7, orb_complex_float, float)
REAL_PRIME(t7_vsps_rDftFwd_Prime11_32f, 11, orb_complex_float, float)
REAL_PRIME_ANY(t7_vsps_rDftFwd_Prime_32f, orb_complex_float, float)
REAL_FACT(t7_vsps_rDftFwd_Fact3_32f, 3, orb_complex_float, float)
REAL_FACT(t7_vsps_rDftFwd_Fact5_32f, 5, orb_complex_float, float)
REAL_FACT(t7_vsps_rDftFwd_Fact7_32f, 7, orb_complex_float, float)
REAL_FACT(t7_vsps_rDftFwd_Fact11_32f, 11, orb_complex_float, float)
REAL_FACT_ANY(t7_vsps_rDftFwd_Fact_32f, orb_complex_float, float)
REAL_PRIME(t7_vsps_rDftFwd_Prime3_64f, 3, orb_complex_double, double)
REAL_PRIME(t7_vsps_rDftFwd_Prime5_64f, 5, orb_complex_double, double)
REAL_PRIME(t7_vsps_rDftFwd_Prime7_64f, 7, orb_complex_double, double)
REAL_PRIME(t7_vsps_rDftFwd_Prime11_64f, 11, orb_complex_double, double)
REAL_PRIME_ANY(t7_vsps_rDftFwd_Prime_64f, orb_complex_double, double)
REAL_FACT(t7_vsps_rDftFwd_Fact3_64f, 3, orb_complex_double, double)
REAL_FACT(t7_vsps_rDftFwd_Fact5_64f, 5, orb_complex_double, double)
REAL_FACT(t7_vsps_rDftFwd_Fact7_64f, 7, orb_complex_double, double)
REAL_FACT(t7_vsps_rDftFwd_Fact11_64f, 11, orb_complex_double, double)
REAL_FACT_ANY(t7_vsps_rDftFwd_Fact_64f, orb_complex_double, double)
