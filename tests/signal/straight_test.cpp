// The straight-line routines, each against long double, scaled and in place.
#include "orb/signal_straight.h"

#include <cstring>

#include "tests/signal/kinds.h"

using namespace orb::test;

namespace {

template <class T, class C>
struct Pairs {  // complex interleaved
  int n, sign;
  void (*plain)(const C*, C*);
  void (*scaled)(const C*, C*, T);
  using Kind = InterleavedCalls<T, void, 0, 0>;
  void run(const Arrays<T>& in, const Arrays<T>& out) const {
    call(plain, reinterpret_cast<C*>(in[0]), reinterpret_cast<C*>(out[0]));
  }
  void run(const Arrays<T>& in, const Arrays<T>& out, T scale) const {
    call(scaled, reinterpret_cast<C*>(in[0]), reinterpret_cast<C*>(out[0]), scale);
  }
};
template <class T>
struct Parts {  // complex in two arrays
  int n, sign;
  void (*plain)(const T*, const T*, T*, T*);
  void (*scaled)(const T*, const T*, T*, T*, T);
  using Kind = SplitCalls<T, void, 0, 0>;
  void run(const Arrays<T>& in, const Arrays<T>& out) const { call(plain, in[0], in[1], out[0], out[1]); }
  void run(const Arrays<T>& in, const Arrays<T>& out, T scale) const {
    call(scaled, in[0], in[1], out[0], out[1], scale);
  }
};
template <class T>
struct Reals {  // real, Perm format
  int n, sign;
  void (*plain)(const T*, T*);
  void (*scaled)(const T*, T*, T);
  using Kind = RealCalls<T, void, Format::perm, 0, 0>;
  void run(const Arrays<T>& in, const Arrays<T>& out) const { call(plain, in[0], out[0]); }
  void run(const Arrays<T>& in, const Arrays<T>& out, T scale) const { call(scaled, in[0], out[0], scale); }
};

template <class T, class Routine>
void check(const Routine& r) {
  using K = typename Routine::Kind;
  const int n = r.n;
  const long double bound = error_bound<T>(0.9L, n);
  const Sequence x = noise(n, unsigned(n), K::is_real);
  const Sequence spectrum = wide_dft(x, r.sign);
  const Sequence start = K::is_real && r.sign == inverse_sign ? wide_dft(x, forward_sign) : x;
  Sequence expected = spectrum;
  if (K::is_real && r.sign == inverse_sign) {
    expected = x;
    for (Wide& z : expected) z *= n;
  }
  const auto put = [&](const Arrays<T>& to) {
    r.sign == forward_sign ? K::put(x, to) : K::put_spectrum(start, to);
  };
  const auto get = [&](const Arrays<T>& from) {
    return r.sign == forward_sign ? K::get_spectrum(from, n) : K::get(from, n);
  };
  for (int place = 0; place < 4; ++place) {
    const Arrays<T> in = K::arrays(n, place), out = K::arrays(n, 3 - place), scaled = K::arrays(n, place);
    put(in);
    r.run(in, out);
    // a real inverse starts from a spectrum that is rounded, which adds an error of its own
    EXPECT_LE(relative_error(get(out), expected), 2 * bound) << n << " sign " << r.sign;
    const T scale = T(0.7);
    r.run(in, scaled, scale);
    const auto plain_image = out.image(), scaled_image = scaled.image();
    for (size_t i = 0; i < plain_image.size(); ++i)
      ASSERT_EQ(scaled_image[i], scale * plain_image[i]) << n << " sign " << r.sign << " scaled";
    r.run(in, in);
    EXPECT_EQ(in.image(), plain_image) << n << " sign " << r.sign << " in place";
  }
}

#define BOTH(stem, n, t)                                                                   \
  {n, forward_sign, t7_vsps_##stem##fwd_##n##_##t, t7_vsps_##stem##fwd_##n##_scale_##t}, { \
    n, inverse_sign, t7_vsps_##stem##inv_##n##_##t, t7_vsps_##stem##inv_##n##_scale_##t    \
  }
#define ONE(stem, n, t)                                                              \
  {n, forward_sign, t7_vsps_##stem##_##n##_##t, t7_vsps_##stem##_##n##_scale_##t}, { \
    n, inverse_sign, t7_vsps_##stem##_##n##_##t, t7_vsps_##stem##_##n##_scale_##t    \
  }
#define POWERS(stem, t) \
  ONE(stem, 1, t), ONE(stem, 2, t), BOTH(stem, 4, t), BOTH(stem, 8, t), BOTH(stem, 16, t), BOTH(stem, 32, t)
#define OTHERS(t)                                                                                    \
  BOTH(cDFT, 3, t), BOTH(cDFT, 5, t), BOTH(cDFT, 6, t), BOTH(cDFT, 7, t), BOTH(cDFT, 9, t),          \
      BOTH(cDFT, 10, t), BOTH(cDFT, 11, t), BOTH(cDFT, 12, t), BOTH(cDFT, 13, t), BOTH(cDFT, 14, t), \
      BOTH(cDFT, 15, t)

TEST(StraightTransforms, SingleComplex) {
  for (const auto& r : {Pairs<float, orb_complex_float> POWERS(cFFT, 32fc), OTHERS(32fc)}) check<float>(r);
}
TEST(StraightTransforms, DoubleComplex) {
  for (const auto& r : {Pairs<double, orb_complex_double> POWERS(cFFT, 64fc), OTHERS(64fc)}) check<double>(r);
}
TEST(StraightTransforms, TwoArrays) {
  for (const auto& r : {Parts<float> POWERS(crFFT, 32f)}) check<float>(r);
  for (const auto& r : {Parts<double> POWERS(crFFT, 64f)}) check<double>(r);
}
TEST(StraightTransforms, Real) {
  for (const auto& r : {Reals<float> POWERS(rFFT, 32f)}) check<float>(r);
  for (const auto& r : {Reals<double> POWERS(rFFT, 64f)}) check<double>(r);
}

}  // namespace
