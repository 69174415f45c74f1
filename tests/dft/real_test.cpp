// Real descriptors of one dimension: every packed format against the definition, layouts, and the way back.
#include <string.h>

#include "orb/dft_real.h"
#include "tests/dft/transform.h"
#include "tests/support/guarded.h"

using namespace orb::test;

namespace {

template <class T>
class Real : public Dft {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Real, Types);

// The reals of a format that X[0] to X[n/2] fill; `complex` stands for complex storage.
enum { complex = VAL_COMPLEX_FORMAT };
std::vector<Wide> packed(const std::vector<Wide>& x, int format) {
  const int n = int(x.size());
  std::vector<Wide> reals;
  if (format == complex || format == VAL_CCS_FORMAT) {
    for (int k = 0; k <= n / 2; ++k)
      reals.push_back(x[size_t(k)].real()), reals.push_back(k == 0 || 2 * k == n ? 0 : x[size_t(k)].imag());
    return reals;
  }
  const bool even = n % 2 == 0;
  reals.push_back(x[0].real());
  if (format == VAL_PERM_FORMAT && even) reals.push_back(x[size_t(n / 2)].real());
  for (int k = 1; 2 * k < n; ++k) reals.push_back(x[size_t(k)].real()), reals.push_back(x[size_t(k)].imag());
  if (format == VAL_PACK_FORMAT && even) reals.push_back(x[size_t(n / 2)].real());
  return reals;
}

struct Setup {
  int n, format, placement;
  int stride = 1, out_stride = 1, count = 1, threads = 1, users = 1;
};

template <class T>
void expect_transforms(const Setup& s) {
  const bool in_place = s.placement == VAL_INPLACE, as_complex = s.format == complex;
  Handle h(precision_for<T>, {s.n}, VAL_REAL);
  if (as_complex)
    h.set(CFG_CONJUGATE_EVEN_STORAGE, int(VAL_COMPLEX_COMPLEX));
  else
    h.set(CFG_PACKED_FORMAT, s.format);
  const int width = as_complex ? 2 : 1, room = (s.n + 4) / 2 * 2;  // reals of a transform, with a gap
  const int real_distance = room * s.stride, packed_distance = room / width * s.out_stride;
  h.set(CFG_PLACEMENT, s.placement);
  h.set(CFG_NUMBER_OF_TRANSFORMS, s.count);
  h.set(CFG_NUMBER_OF_USER_THREADS, s.users);
  h.set(CFG_FORWARD_SCALE, 0.5);
  h.set(CFG_BACKWARD_SCALE, 2.0 / s.n);
  spy().threads = s.threads;

  const int one_side = in_place && !as_complex ? s.stride : s.out_stride;
  Guarded<T> real(s.count * real_distance + 8), other(s.count * room * s.out_stride + 8);
  for (int i = 0; i < real.size(); ++i) real[i] = value<T>(i);
  const std::vector<T> before(real.begin(), real.end());
  T* target = in_place ? real.data() : other.data();

  h.set_strides(CFG_INPUT_STRIDES, {0, s.stride});
  h.set_strides(CFG_OUTPUT_STRIDES, {0, s.out_stride});
  h.set(CFG_INPUT_DISTANCE, real_distance);
  h.set(CFG_OUTPUT_DISTANCE, packed_distance);
  h.commit();
  ASSERT_EQ(in_place ? DftiComputeForward(h, real.data()) : DftiComputeForward(h, real.data(), target), 0);
  const int to_distance = in_place && !as_complex ? real_distance : packed_distance * width;
  for (int t = 0; t < s.count; ++t) {
    std::vector<Wide> x;
    for (int i = 0; i < s.n; ++i) x.push_back(before[size_t(t * real_distance + i * s.stride)]);
    auto expected = packed(definition(x, true), s.format);
    for (Wide& e : expected) e /= 2;
    const auto got = [&](int k) {
      return Wide(target[t * to_distance + k / width * width * one_side + k % width], 0);
    };
    ASSERT_LE(relative_error(expected, got), 2 * promised_error<T>(s.n))
        << s.n << " format " << s.format << " placement " << s.placement << " strides " << s.stride << ", "
        << s.out_stride << " transform " << t;
  }

  h.set_strides(CFG_INPUT_STRIDES, {0, one_side});
  h.set_strides(CFG_OUTPUT_STRIDES, {0, s.stride});
  h.set(CFG_INPUT_DISTANCE, in_place && !as_complex ? real_distance : packed_distance);
  h.set(CFG_OUTPUT_DISTANCE, real_distance);
  h.commit();
  ASSERT_EQ(in_place ? DftiComputeBackward(h, real.data()) : DftiComputeBackward(h, target, real.data()), 0);
  for (int t = 0; t < s.count; ++t) {
    std::vector<Wide> x;
    for (int i = 0; i < s.n; ++i) x.push_back(before[size_t(t * real_distance + i * s.stride)]);
    const auto got = [&](int i) { return Wide(real[t * real_distance + i * s.stride], 0); };
    ASSERT_LE(relative_error(x, got), 5 * promised_error<T>(s.n))
        << s.n << " format " << s.format << " placement " << s.placement;
  }
}

const int formats[] = {VAL_CCS_FORMAT, VAL_PACK_FORMAT, VAL_PERM_FORMAT, complex};

TYPED_TEST(Real, EveryFormatIsItsDefinition) {
  for (int n : {1, 2, 3, 4, 5, 8, 9, 16, 32, 64, 77, 100, 128, 210, 1000})
    for (int format : formats)
      for (int placement : {VAL_INPLACE, VAL_NOT_INPLACE})
        expect_transforms<TypeParam>({n, format, placement});
}

TYPED_TEST(Real, LayoutsAndThreads) {
  for (int n : {8, 21, 64, 501})
    for (int format : formats)
      for (const auto& [threads, users] : {std::pair(1, 1), {3, 1}, {1, 2}})
        for (int count : {1, 5}) {
          expect_transforms<TypeParam>({n, format, VAL_NOT_INPLACE, 1, 1, count, threads, users});
          expect_transforms<TypeParam>({n, format, VAL_NOT_INPLACE, 2, 3, count, threads, users});
          expect_transforms<TypeParam>({n, format, VAL_INPLACE, 1, 1, count, threads, users});
          if (format != complex)
            expect_transforms<TypeParam>({n, format, VAL_INPLACE, 3, 1, count, threads, users});
        }
}

TYPED_TEST(Real, StraightCodeIsTakenForShortPowersOfTwo) {
  for (int n : {1, 2, 32, 64, 128, 12}) {
    Handle h(precision_for<TypeParam>, {n}, VAL_REAL);
    h.commit();
    const bool short_power = n >= 2 && n <= 64 && (n & (n - 1)) == 0;
    EXPECT_EQ(h->use_signal_kernels, !short_power) << n;
    h.set_strides(CFG_OUTPUT_STRIDES, {0, 2});
    h.commit();
    EXPECT_EQ(h->use_signal_kernels, 1) << n;
  }
  Handle h(precision_for<TypeParam>, {12}, VAL_REAL);
  EXPECT_EQ(call(orb_dft_set_codelet_sf, static_cast<DftiRecord*>(h)), STATUS_UNIMPLEMENTED);
}

TYPED_TEST(Real, NoMemoryForAStridedLine) {
  Handle h(precision_for<TypeParam>, {20}, VAL_REAL);
  h.set_strides(CFG_INPUT_STRIDES, {0, 2});
  h.commit();
  TypeParam data[80] = {};
  spy().refuse_scratch_at = 1;
  EXPECT_EQ(DftiComputeForward(h, data), STATUS_MEMORY);
}

}  // namespace
