// Power-of-two transforms by a record, all kinds.
#include <cstring>
#include <set>

#include "tests/signal/allocator.h"
#include "tests/signal/kinds.h"

using namespace orb::test;

namespace {

template <class Calls, int id, auto size, auto init, auto alloc, auto free, auto buffer>
struct Kind : Calls {
  static constexpr int kind = id;
  static constexpr auto get_size = size;
  static constexpr auto make = init;
  static constexpr auto make_alloc = alloc;
  static constexpr auto release = free;
  static constexpr auto buf_size = buffer;
};
#define KIND(calls, id, k)                                                                                \
  Kind<calls, id, t7_vspsFFTGetSize_##k, t7_vspsFFTInit_##k, t7_vspsFFTInitAlloc_##k, t7_vspsFFTFree_##k, \
       t7_vspsFFTGetBufSize_##k>
using S = VspsFFTSpec;
using Perm32 = RealCalls<float, S, Format::perm, t7_vspsFFTFwd_RToPerm_32f, t7_vspsFFTInv_PermToR_32f>;
using Pack32 = RealCalls<float, S, Format::pack, t7_vspsFFTFwd_RToPack_32f, t7_vspsFFTInv_PackToR_32f>;
using Perm64 = RealCalls<double, S, Format::perm, t7_vspsFFTFwd_RToPerm_64f, t7_vspsFFTInv_PermToR_64f>;
using Pack64 = RealCalls<double, S, Format::pack, t7_vspsFFTFwd_RToPack_64f, t7_vspsFFTInv_PackToR_64f>;
using Inter32 = InterleavedCalls<float, S, t7_vspsFFTFwd_CToC_32fc, t7_vspsFFTInv_CToC_32fc>;
using Inter64 = InterleavedCalls<double, S, t7_vspsFFTFwd_CToC_64fc, t7_vspsFFTInv_CToC_64fc>;
using Split32 = SplitCalls<float, S, t7_vspsFFTFwd_CToC_32f, t7_vspsFFTInv_CToC_32f>;
using Split64 = SplitCalls<double, S, t7_vspsFFTFwd_CToC_64f, t7_vspsFFTInv_CToC_64f>;
using Kinds = testing::Types<KIND(Inter32, 4, C_32fc), KIND(Split32, 5, C_32f), KIND(Perm32, 6, R_32f),
                             KIND(Pack32, 6, R_32f), KIND(Inter64, 7, C_64fc), KIND(Split64, 8, C_64f),
                             KIND(Perm64, 9, R_64f), KIND(Pack64, 9, R_64f)>;

constexpr int flags[] = {8, 1, 2, 4};

long double scale_of(int flag, int sign, int n) {
  if (flag == 4) return 1 / sqrtl(n);
  return flag == (sign == forward_sign ? 1 : 2) ? 1.0L / n : 1;
}

template <class K>
class Fft : public testing::Test {
 public:
  using T = typename K::T;
  Allocator memory;
  VspsFFTSpec* spec = nullptr;

  void make(int order, int flag) { ASSERT_EQ(call(K::make_alloc, &spec, order, flag, 0), 0); }
  void release() { ASSERT_EQ(call(K::release, spec), 0); }
  int buffer_bytes() const {
    int bytes = -1;
    EXPECT_EQ(call(K::buf_size, spec, &bytes), 0);
    return bytes;
  }
  // The result of one call as it lies in memory. Places of in and out: words within 16 bytes; out < 0: in
  // place.
  std::vector<T> image(int n, int sign, const Sequence& x, int in_place, int out_place, void* buffer) const {
    const Arrays<T> in = K::arrays(n, in_place);
    sign == forward_sign ? K::put(x, in) : K::put_spectrum(x, in);
    if (out_place < 0) {
      EXPECT_EQ(K::run(sign, &in, &in, spec, buffer), 0);
      return in.image();
    }
    const auto before = in.image();
    const Arrays<T> out = K::arrays(n, out_place);
    EXPECT_EQ(K::run(sign, &in, &out, spec, buffer), 0);
    EXPECT_EQ(memcmp(before.data(), in.image().data(), before.size() * sizeof(T)), 0) << "input changed";
    return out.image();
  }
  Sequence transform(int n, int sign, const Sequence& x, int place = 0) const {
    const Arrays<T> in = K::arrays(n, place), out = K::arrays(n, place);
    sign == forward_sign ? K::put(x, in) : K::put_spectrum(x, in);
    EXPECT_EQ(K::run(sign, &in, &out, spec, nullptr), 0);
    return sign == forward_sign ? K::get_spectrum(out, n) : K::get(out, n);
  }
};
TYPED_TEST_SUITE(Fft, Kinds);

template <class K>
Places places_of(int n, int k) {
  if constexpr (K::is_real)
    return places(K::format, n, k);
  else
    return {};
}

// The bound holds for every order, both directions and every flag.
TYPED_TEST(Fft, AgreesWithLongDouble) {
  using Element = typename TypeParam::T;
  for (int order = 0; order <= 18; ++order) {
    const int n = 1 << order, flag = flags[order % 4];
    this->make(order, flag);
    const Sequence x = noise(n, unsigned(order), TypeParam::is_real);
    Sequence spectrum = wide_fft(x, forward_sign);
    for (Wide& z : spectrum) z *= scale_of(flag, forward_sign, n);
    EXPECT_LE(relative_error(this->transform(n, forward_sign, x), spectrum), error_bound<Element>(0.6L, n))
        << "forward, order " << order;
    // a spectrum that is exact in Element, of a real sequence if need be
    Sequence given = noise(n, 77);
    if (TypeParam::is_real)
      for (int k = 0; k <= n / 2; ++k) {
        auto& z = given[size_t(k)];
        if (k == 0 || 2 * k == n) z = z.real();
        if (k > 0) given[size_t(n - k)] = std::conj(z);
      }
    Sequence back = wide_fft(given, inverse_sign);
    for (Wide& z : back) z *= scale_of(flag, inverse_sign, n);
    EXPECT_LE(relative_error(this->transform(n, inverse_sign, given), back), error_bound<Element>(0.6L, n))
        << "inverse, order " << order;
    this->release();
  }
}

// Above what the table of cuts names in full; the last order has rows that are cut themselves. A few
// impulses, and some numbers of the result, keep the reference small.
TYPED_TEST(Fft, LargestOrders) {
  using Element = typename TypeParam::T;
  std::vector<int> orders = {21};
  if (!TypeParam::is_real) orders = {22, sizeof(Element) == 4 ? 25 : 23};
  for (int order : orders) {
    const int n = 1 << order;
    this->make(order, 8);
    const Arrays<Element> data = TypeParam::arrays(n, 0);
    for (const auto& part : data.parts) memset(part->data(), 0, size_t(part->size()) * sizeof(Element));
    const int places[] = {1, n / 5, n / 2 + 6, n - 9};
    const int reals =
        data.parts.size() == 1 && !TypeParam::is_real ? 2 : 1;  // of one number in the first array
    for (int j : places) data[0][j * reals] = Element(1 + j % 3);
    ASSERT_EQ(TypeParam::run(forward_sign, &data, &data, this->spec, nullptr), 0);
    Sequence got, expected;
    for (int k = 1; k < n / 2; k += n / 4096 + 1) {
      if (TypeParam::is_real) {
        const Places at = places_of<TypeParam>(n, k);
        got.push_back({data[0][at.re], data[0][at.im]});
      } else {
        got.push_back({data[0][k * reals], reals == 2 ? data[0][2 * k + 1] : data[1][k]});
      }
      expected.push_back(0);
      for (int j : places)
        expected.back() += (long double)(1 + j % 3) * root(forward_sign, (long long)j * k, n);
    }
    EXPECT_LE(relative_error(got, expected), error_bound<Element>(0.6L, n)) << order;
    this->release();
  }
}

TYPED_TEST(Fft, PlaceAlignmentAndBufferDoNotShow) {
  for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 14, 15, 16, 17, 18}) {
    const int n = 1 << order;
    this->make(order, flags[order % 4]);
    const int bytes = this->buffer_bytes();
    for (int sign : {forward_sign, inverse_sign}) {
      Sequence x = noise(n, 5, TypeParam::is_real);
      if (sign == inverse_sign) x = wide_fft(x, sign);
      const auto expected = this->image(n, sign, x, 0, 0, nullptr);
      for (int turn = 0; turn < 6; ++turn) {
        const Guarded<char> buffer(bytes + 16, -1);
        // its end touches the guard page; the start takes all places within 16 bytes
        void* const given = turn == 5 || bytes == 0 ? nullptr : buffer.data() + 16;
        const int out = turn < 4 ? turn : turn == 4 ? -1 : 2;
        const auto got = this->image(n, sign, x, (turn + 1) % 4, out, given);
        ASSERT_EQ(got.size(), expected.size());
        EXPECT_EQ(memcmp(got.data(), expected.data(), got.size() * sizeof got[0]), 0)
            << "order " << order << " sign " << sign << " turn " << turn;
      }
      EXPECT_EQ(this->memory.live(), 1);
    }
    this->release();
  }
}

// The three sizes are enough to the byte wherever the memory starts.
TYPED_TEST(Fft, SizesAreEnough) {
  for (int order : {0, 3, 4, 5, 6, 7, 10, 11, 15, 16, 17, 18, 20}) {
    const int n = 1 << order;
    int spec_bytes = -1, init_bytes = -1, buf_bytes = -1;
    ASSERT_EQ(call(TypeParam::get_size, order, 8, 0, &spec_bytes, &init_bytes, &buf_bytes), 0);
    EXPECT_EQ(init_bytes > 0, order > 10);
    const Sequence x = noise(n, 9, TypeParam::is_real);
    this->make(order, 8);
    const auto expected = this->image(n, forward_sign, x, 0, 0, nullptr);
    this->release();
    for (int shift = 0; shift < 32; shift += order < 12 ? 4 : 12) {
      // each block ends `shift` bytes before its guard page
      const auto block = [&](int bytes) { return std::make_unique<Guarded<char>>(bytes + shift); };
      const auto spec_memory = block(spec_bytes), init_memory = block(init_bytes), buffer = block(buf_bytes);
      for (const auto* b : {&spec_memory, &init_memory, &buffer})
        memset((*b)->data(), 0x5A, size_t((*b)->size()));
      ASSERT_EQ(call(TypeParam::make, &this->spec, order, 8, 0, spec_memory->data(),
                     init_bytes ? init_memory->data() : nullptr),
                0);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(this->spec) % 32, 0u);
      EXPECT_EQ(this->buffer_bytes(), buf_bytes);
      memset(init_memory->data(), 0xFF, size_t(init_memory->size()));
      const auto got = this->image(n, forward_sign, x, 1, 2, buf_bytes ? buffer->data() : nullptr);
      EXPECT_EQ(memcmp(got.data(), expected.data(), got.size() * sizeof got[0]), 0) << order;
      for (const auto* b : {&spec_memory, &init_memory, &buffer})
        for (int i = 0; i < shift; ++i)
          if (b != &init_memory) {
            ASSERT_EQ((**b)[(*b)->size() - 1 - i], 0x5A) << order << " beyond the size";
          }
      ASSERT_EQ(call(TypeParam::release, this->spec), 0);
      EXPECT_EQ(call(TypeParam::release, this->spec), VSP_CONTEXT_MISMATCH) << "freed twice";
    }
    EXPECT_EQ(this->memory.live(), 0);
  }
}

TYPED_TEST(Fft, Statuses) {
  using K = TypeParam;
  int a, b, c;
  EXPECT_EQ(call(K::get_size, -1, 3, 0, nullptr, &b, &c), VSP_FFT_ORDER_ERROR);
  EXPECT_EQ(call(K::get_size, 31, 8, 0, &a, &b, &c), VSP_FFT_ORDER_ERROR);
  EXPECT_EQ(call(K::get_size, 4, 3, 0, nullptr, &b, &c), VSP_NULL_POINTER);
  EXPECT_EQ(call(K::get_size, 4, 8, 0, &a, nullptr, &c), VSP_NULL_POINTER);
  EXPECT_EQ(call(K::get_size, 4, 8, 0, &a, &b, nullptr), VSP_NULL_POINTER);
  for (int flag : {0, 3, 5, 16, -1}) EXPECT_EQ(call(K::get_size, 4, flag, 0, &a, &b, &c), VSP_FFT_FLAG_ERROR);
  const int most = sizeof(typename K::T) == 4 ? 27 : 26;
  EXPECT_EQ(call(K::get_size, most, 8, 0, &a, &b, &c), 0);
  EXPECT_EQ(call(K::get_size, most + 1, 8, 0, &a, &b, &c), VSP_FFT_ORDER_ERROR);

  const Guarded<int> room(8192);
  for (int& word : room) word = -1;
  VspsFFTSpec* made = nullptr;
  EXPECT_EQ(call(K::make, nullptr, 4, 8, 0, room.data(), nullptr), VSP_NULL_POINTER);
  for (int order : {-1, most + 1, 31})
    EXPECT_EQ(call(K::make, &made, order, 8, 0, room.data(), nullptr), VSP_FFT_ORDER_ERROR);
  EXPECT_EQ(call(K::make, &made, 4, 3, 0, nullptr, nullptr), VSP_NULL_POINTER);
  EXPECT_EQ(call(K::make, &made, 4, 3, 0, room.data(), nullptr), VSP_FFT_FLAG_ERROR);
  const auto at = (reinterpret_cast<uintptr_t>(room.data()) + 31) & ~uintptr_t(31);
  EXPECT_EQ(*reinterpret_cast<int*>(at), 0);
  EXPECT_EQ(call(K::make, &made, 11, 8, 0, room.data(), nullptr), VSP_NULL_POINTER);
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(call(K::make_alloc, &made, 4, 3, 0), VSP_FFT_FLAG_ERROR);
  EXPECT_EQ(call(K::make_alloc, &made, -1, 8, 0), VSP_FFT_ORDER_ERROR);
  EXPECT_EQ(call(K::make_alloc, nullptr, 4, 8, 0), VSP_NULL_POINTER);
  EXPECT_EQ(made, nullptr);
  EXPECT_EQ(call(K::release, nullptr), VSP_NULL_POINTER);
  EXPECT_EQ(call(K::buf_size, nullptr, &a), VSP_NULL_POINTER);

  this->make(6, 8);
  EXPECT_EQ(call(K::buf_size, this->spec, nullptr), VSP_NULL_POINTER);
  const auto data = K::arrays(64, 0);
  EXPECT_EQ(K::run(forward_sign, nullptr, &data, nullptr, nullptr), VSP_NULL_POINTER);
  for (int sign : {forward_sign, inverse_sign}) {
    EXPECT_EQ(K::run(sign, nullptr, &data, this->spec, nullptr), VSP_NULL_POINTER);
    EXPECT_EQ(K::run(sign, &data, nullptr, this->spec, nullptr), VSP_NULL_POINTER);
  }
  // every kind refuses the records of the others
  int* const id = reinterpret_cast<int*>(this->spec);
  EXPECT_EQ(*id, K::kind);
  EXPECT_EQ(id[1], 6);
  for (int other : {0, 3, 4, 5, 6, 7, 8, 9, 10, 13}) {
    *id = other;
    const int status = other == K::kind ? 0 : VSP_CONTEXT_MISMATCH;
    EXPECT_EQ(K::run(forward_sign, status ? nullptr : &data, &data, this->spec, nullptr), status);
    EXPECT_EQ(K::run(inverse_sign, &data, &data, this->spec, nullptr), status);
    EXPECT_EQ(call(K::buf_size, this->spec, &a), status);
    if (status) {
      EXPECT_EQ(call(K::release, this->spec), status);
    }
  }
  *id = K::kind;
  this->release();
}

TYPED_TEST(Fft, EveryRefusedAllocationIsTold) {
  for (int order : {3, 6, 12, 17}) {
    for (int k = 1;; ++k) {
      this->memory.refuse_at = k;
      VspsFFTSpec* made = nullptr;
      const int status = call(TypeParam::make_alloc, &made, order, 8, 0);
      if (this->memory.refuse_at > 0) {  // fewer requests than that
        ASSERT_EQ(status, 0);
        this->spec = made;
        break;
      }
      EXPECT_EQ(status, VSP_NO_MEMORY) << order << ", request " << k;
      EXPECT_EQ(made, nullptr);
      EXPECT_EQ(this->memory.live(), 0);
    }
    const auto data = TypeParam::arrays(1 << order, 0);
    TypeParam::put(noise(1 << order, 3, TypeParam::is_real), data);
    const auto before = data.image();
    this->memory.refuse_at = this->buffer_bytes() > 0 ? 1 : 0;
    const int status = TypeParam::run(forward_sign, &data, &data, this->spec, nullptr);
    EXPECT_EQ(status, this->buffer_bytes() > 0 ? VSP_NO_MEMORY : 0);
    if (status) {
      EXPECT_EQ(before, data.image());
    }
    this->memory.refuse_at = 0;
    this->release();
  }
}

TYPED_TEST(Fft, ImpulseAndConstantAreExact) {
  for (int order : {0, 1, 2, 3, 4, 5, 6, 9, 12, 16, 18}) {
    const int n = 1 << order;
    this->make(order, 2);
    Sequence impulse((size_t)n), ones((size_t)n, Wide(1));
    impulse[0] = 1;
    EXPECT_EQ(this->transform(n, forward_sign, impulse), ones) << order;
    Sequence peak((size_t)n);
    peak[0] = n;
    EXPECT_EQ(this->transform(n, forward_sign, ones), peak) << order;
    EXPECT_EQ(this->transform(n, inverse_sign, peak), ones) << order;
    this->release();
  }
}

}  // namespace
