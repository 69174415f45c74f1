// Any-length transforms by a record, all kinds.
#include <cstring>

#include "tests/signal/allocator.h"
#include "tests/signal/kinds.h"

using namespace orb::test;

namespace {

template <class Calls, int id, auto alloc, auto free, auto buffer>
struct Kind : Calls {
  static constexpr int kind = id;
  static constexpr auto make_alloc = alloc;
  static constexpr auto release = free;
  static constexpr auto buf_size = buffer;
};
#define KIND(calls, id, k) \
  Kind<calls, id, t7_vspsDFTInitAlloc_##k, t7_vspsDFTFree_##k, t7_vspsDFTGetBufSize_##k>
#define OUT_OF_ORDER(calls, id, k) \
  Kind<calls, id, t7_vspsDFTOutOrdInitAlloc_##k, t7_vspsDFTOutOrdFree_##k, t7_vspsDFTOutOrdGetBufSize_##k>
#define REAL(T, bits, lower, Word) \
  RealCalls<T, VspsDFTSpec, Format::lower, t7_vspsDFTFwd_RTo##Word##_##bits, t7_vspsDFTInv_##Word##ToR_##bits>
using S = VspsDFTSpec;
using Inter32 = InterleavedCalls<float, S, t7_vspsDFTFwd_CToC_32fc, t7_vspsDFTInv_CToC_32fc>;
using Inter64 = InterleavedCalls<double, S, t7_vspsDFTFwd_CToC_64fc, t7_vspsDFTInv_CToC_64fc>;
using OutOrd32 = InterleavedCalls<float, S, t7_vspsDFTOutOrdFwd_CToC_32fc, t7_vspsDFTOutOrdInv_CToC_32fc>;
using OutOrd64 = InterleavedCalls<double, S, t7_vspsDFTOutOrdFwd_CToC_64fc, t7_vspsDFTOutOrdInv_CToC_64fc>;
using Split32 = SplitCalls<float, S, t7_vspsDFTFwd_CToC_32f, t7_vspsDFTInv_CToC_32f>;
using Split64 = SplitCalls<double, S, t7_vspsDFTFwd_CToC_64f, t7_vspsDFTInv_CToC_64f>;
using Perm32 = REAL(float, 32f, perm, Perm);
using Pack32 = REAL(float, 32f, pack, Pack);
using CCS32 = REAL(float, 32f, ccs, CCS);
using Perm64 = REAL(double, 64f, perm, Perm);
using Pack64 = REAL(double, 64f, pack, Pack);
using CCS64 = REAL(double, 64f, ccs, CCS);
using Kinds = testing::Types<KIND(Inter32, 13, C_32fc), KIND(Split32, 14, C_32f), KIND(Perm32, 15, R_32f),
                             KIND(Pack32, 15, R_32f), KIND(CCS32, 15, R_32f), KIND(Inter64, 16, C_64fc),
                             KIND(Split64, 17, C_64f), KIND(Perm64, 18, R_64f), KIND(Pack64, 18, R_64f),
                             KIND(CCS64, 18, R_64f), OUT_OF_ORDER(OutOrd32, 0x434d414a, C_32fc),
                             OUT_OF_ORDER(OutOrd64, 0x434d414b, C_64fc)>;

constexpr int flags[] = {8, 1, 2, 4};

long double scale_of(int flag, int sign, int n) {
  if (flag == 4) return 1 / sqrtl(n);
  return flag == (sign == forward_sign ? 1 : 2) ? 1.0L / n : 1;
}

// The constant of the bound, by the largest prime factor.
template <class T>
long double constant_of(int n) {
  int largest = 1;
  for (int p = 2, m = n; m > 1; ++p)
    while (m % p == 0) m /= p, largest = p;
  if (largest == 2 || n == 1) return 0.6L;
  if (largest <= 11) return sizeof(T) == 4 ? 0.7L : 0.9L;
  return largest <= 150 ? 1.3L : 1.6L;
}

template <class K>
class Dft : public testing::Test {
 public:
  using T = typename K::T;
  Allocator memory;
  VspsDFTSpec* spec = nullptr;

  void make(int n, int flag) { ASSERT_EQ(call(K::make_alloc, &spec, n, flag, 0), 0); }
  void release() { ASSERT_EQ(call(K::release, spec), 0); }
  int buffer_bytes() const {
    int bytes = -1;
    EXPECT_EQ(call(K::buf_size, spec, &bytes), 0);
    return bytes;
  }
  static void put(int sign, const Sequence& x, const Arrays<T>& to) {
    for (const auto& part : to.parts) memset(part->data(), 0, sizeof(T) * size_t(part->size()));
    sign == forward_sign ? K::put(x, to) : K::put_spectrum(x, to);
  }
  // out < 0: in place
  std::vector<T> image(int n, int sign, const Sequence& x, int in_place, int out_place, void* buffer) const {
    const Arrays<T> in = K::arrays(n, in_place), out = K::arrays(n, out_place < 0 ? 0 : out_place);
    put(sign, x, in);
    const auto before = in.image();
    EXPECT_EQ(K::run(sign, &in, out_place < 0 ? &in : &out, spec, buffer), 0);
    auto image = (out_place < 0 ? in : out).image();
    if (out_place >= 0) {
      EXPECT_EQ(memcmp(before.data(), in.image().data(), before.size() * sizeof(T)), 0) << "input changed";
    }
    if (K::is_real && sign == inverse_sign) image.resize(size_t(n));  // CCS has more on the way in
    return image;
  }
  Sequence transform(int n, int sign, const Sequence& x) const {
    const Arrays<T> in = K::arrays(n, 1), out = K::arrays(n, 2);
    put(sign, x, in);
    EXPECT_EQ(K::run(sign, &in, &out, spec, nullptr), 0);
    return sign == forward_sign ? K::get_spectrum(out, n) : K::get(out, n);
  }
  // Forward against long double, then back to the start.
  void check(int n, int flag) {
    make(n, flag);
    const Sequence x = noise(n, unsigned(n), K::is_real);
    Sequence expected = wide_dft(x, forward_sign);
    for (Wide& z : expected) z *= scale_of(flag, forward_sign, n);
    const Sequence spectrum = transform(n, forward_sign, x);
    const long double bound = error_bound<T>(constant_of<T>(n), n);
    ASSERT_LE(relative_error(spectrum, expected), bound) << "forward, length " << n;
    // the inverse of what came out, which T holds exactly
    Sequence back = wide_dft(spectrum, inverse_sign);
    for (Wide& z : back) z *= scale_of(flag, inverse_sign, n);
    ASSERT_LE(relative_error(transform(n, inverse_sign, spectrum), back), bound) << "inverse, length " << n;
    release();
  }
};
TYPED_TEST_SUITE(Dft, Kinds);

TYPED_TEST(Dft, EveryShortLengthAgreesWithLongDouble) {
  for (int n = 1; n <= 260; ++n) this->check(n, flags[n % 4]);
}

// All factors, in plans of several shapes, around the limits of the methods.
TYPED_TEST(Dft, LongLengthsAgreeWithLongDouble) {
  for (int n : {298,  300,  302,   343,   362,   447,   453,   507,   625,   729,   1000,  1009,
                1024, 1331, 1536,  1617,  2000,  2002,  2187,  2401,  2431,  2816,  3125,  4862,
                5005, 6859, 10000, 10007, 16384, 19321, 22201, 30030, 46189, 50000, 65521, 65536})
    this->check(n, flags[n % 4]);
}

TYPED_TEST(Dft, PlaceAlignmentAndBufferDoNotShow) {
  for (int n : {1,  2,  3,   5,   7,   9,   12,  15,  16,   17,   18,   30,   34,   45,   49,   50,
                64, 77, 150, 151, 179, 298, 302, 338, 1000, 1001, 1009, 2187, 2048, 3718, 10007}) {
    this->make(n, flags[n % 4]);
    const int bytes = this->buffer_bytes();
    for (int sign : {forward_sign, inverse_sign}) {
      Sequence x = noise(n, 5, TypeParam::is_real);
      if (sign == inverse_sign) x = wide_dft(x, sign);
      const auto expected = this->image(n, sign, x, 0, 0, nullptr);
      for (int turn = 0; turn < 6; ++turn) {
        const Guarded<char> buffer(bytes + 4 * turn, -1);
        void* const given = turn == 5 || bytes == 0 ? nullptr : buffer.data() + 4 * turn;
        const int out = turn < 4 ? turn : turn == 4 ? -1 : 2;
        const auto got = this->image(n, sign, x, (turn + 1) % 4, out, given);
        ASSERT_EQ(got.size(), expected.size());
        EXPECT_EQ(memcmp(got.data(), expected.data(), got.size() * sizeof got[0]), 0)
            << "length " << n << " sign " << sign << " turn " << turn;
      }
    }
    this->release();
  }
}

// An impulse gives the same number everywhere; a shift turns every number by its own angle; sums stay sums;
// the energy stays.
TYPED_TEST(Dft, Identities) {
  using Element = typename TypeParam::T;
  for (int n : {12, 17, 45, 60, 101, 302, 1000, 1009, 4096, 30030}) {
    this->make(n, 8);
    const long double bound = 3 * error_bound<Element>(1.6L, n);
    Sequence impulse((size_t)n);
    impulse[0] = 1;
    EXPECT_LE(relative_error(this->transform(n, forward_sign, impulse), Sequence((size_t)n, 1)), bound);
    const Sequence x = noise(n, 1, TypeParam::is_real), y = noise(n, 2, TypeParam::is_real);
    Sequence shifted = x, sum = x;
    std::rotate(shifted.begin(), shifted.begin() + 1, shifted.end());
    for (int i = 0; i < n; ++i) sum[size_t(i)] += y[size_t(i)] * 2.0L;
    const Sequence fx = this->transform(n, forward_sign, x), fy = this->transform(n, forward_sign, y);
    Sequence turned = fx, added = fx;
    long double energy = 0, energy_of_x = 0;
    for (int k = 0; k < n; ++k) {
      turned[size_t(k)] *= root(inverse_sign, k, n), added[size_t(k)] += fy[size_t(k)] * 2.0L;
      energy += std::norm(fx[size_t(k)]), energy_of_x += std::norm(x[size_t(k)]);
    }
    EXPECT_LE(relative_error(this->transform(n, forward_sign, shifted), turned), bound) << n;
    EXPECT_LE(relative_error(this->transform(n, forward_sign, sum), added), bound) << n;
    EXPECT_LE(fabsl(energy / n / energy_of_x - 1), bound) << n;
    this->release();
  }
}

TYPED_TEST(Dft, Statuses) {
  using K = TypeParam;
  VspsDFTSpec* none = nullptr;
  EXPECT_EQ(call(K::make_alloc, nullptr, 8, 8, 0), VSP_NULL_POINTER);
  for (int n : {0, -5}) EXPECT_EQ(call(K::make_alloc, &none, n, 3, 0), VSP_SIZE_ERROR);
  for (int flag : {0, 3, 5, 16}) EXPECT_EQ(call(K::make_alloc, &none, 30, flag, 0), VSP_FFT_FLAG_ERROR);
  // too long for a plan, and a prime too long for the convolution
  EXPECT_EQ(call(K::make_alloc, &none, 0x8000000 + 3, 8, 0), VSP_SIZE_ERROR);
  EXPECT_EQ(call(K::make_alloc, &none, 0x8000000 - 39, 8, 0), VSP_SIZE_ERROR);
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(this->memory.live(), 0);
  EXPECT_EQ(call(K::release, nullptr), VSP_NULL_POINTER);
  int size;
  EXPECT_EQ(call(K::buf_size, nullptr, &size), VSP_NULL_POINTER);

  this->make(60, 8);
  EXPECT_EQ(call(K::buf_size, this->spec, nullptr), VSP_NULL_POINTER);
  const auto data = K::arrays(60, 0);
  for (int sign : {forward_sign, inverse_sign}) {
    EXPECT_EQ(K::run(sign, nullptr, &data, nullptr, nullptr), VSP_NULL_POINTER);
    EXPECT_EQ(K::run(sign, nullptr, &data, this->spec, nullptr), VSP_NULL_POINTER);
    EXPECT_EQ(K::run(sign, &data, nullptr, this->spec, nullptr), VSP_NULL_POINTER);
  }
  int* const id = reinterpret_cast<int*>(this->spec);
  EXPECT_EQ(*id, K::kind);
  EXPECT_EQ(id[1], 60);
  for (int other : {0, 4, 9, 13, 14, 15, 16, 17, 18, 0x434d414a, 0x434d414b})
    if (other != K::kind) {
      *id = other;
      EXPECT_EQ(K::run(forward_sign, nullptr, &data, this->spec, nullptr), VSP_CONTEXT_MISMATCH);
      EXPECT_EQ(K::run(inverse_sign, &data, &data, this->spec, nullptr), VSP_CONTEXT_MISMATCH);
      EXPECT_EQ(call(K::buf_size, this->spec, &size), VSP_CONTEXT_MISMATCH);
      EXPECT_EQ(call(K::release, this->spec), VSP_CONTEXT_MISMATCH);
    }
  *id = K::kind;
  this->release();
}

// Of every method.
TYPED_TEST(Dft, EveryRefusedAllocationIsTold) {
  for (int n : {7, 18, 60, 75, 64, 4096, 101, 202, 1009, 2018}) {
    for (int k = 1;; ++k) {
      this->memory.refuse_at = k;
      VspsDFTSpec* made = nullptr;
      const int status = call(TypeParam::make_alloc, &made, n, 8, 0);
      if (this->memory.refuse_at > 0) {
        ASSERT_EQ(status, 0);
        this->spec = made;
        break;
      }
      EXPECT_EQ(status, VSP_NO_MEMORY) << n << ", request " << k;
      EXPECT_EQ(made, nullptr);
      EXPECT_EQ(this->memory.live(), 0) << n << ", request " << k;
    }
    const auto data = TypeParam::arrays(n, 0);
    this->put(forward_sign, noise(n, 3, TypeParam::is_real), data);
    const auto before = data.image();
    const bool needs = this->buffer_bytes() > 0;
    this->memory.refuse_at = needs ? 1 : 0;
    EXPECT_EQ(TypeParam::run(forward_sign, &data, &data, this->spec, nullptr), needs ? VSP_NO_MEMORY : 0)
        << n;
    if (needs) {
      EXPECT_EQ(before, data.image());
    }
    this->memory.refuse_at = 0;
    this->release();
  }
}

}  // namespace
