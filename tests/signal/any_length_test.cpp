// The methods and passes of the any-length transforms, each called alone.
#include "orb/signal_any_length.h"

#include <cstring>

#include "tests/signal/allocator.h"
#include "tests/signal/kinds.h"

using namespace orb::test;

namespace {

template <class C>
Sequence sequence_of(const C* p, int n) {
  Sequence x;
  for (int i = 0; i < n; ++i) x.push_back({p[i].re, p[i].im});
  return x;
}
template <class C>
void put(const Sequence& x, C* p) {
  for (const Wide& z : x) *p++ = {part_of<C>(z.real()), part_of<C>(z.imag())};
}
template <class T>
constexpr long double eps = std::numeric_limits<T>::epsilon();

template <class T, class C, class Base, class Direct, class Rec>
void check_tables(Base base_of, Direct direct_of, Rec after_of, Rec before_of) {
  Allocator memory;
  for (int n : {1, 2, 3, 4, 6, 7, 8, 12, 14, 16, 20, 27, 30, 64, 100, 126, 1000}) {
    C* const base = call(base_of, n);
    for (int k = 0; k < n; ++k) {
      const Wide w = root(forward_sign, k, n);
      ASSERT_LE(std::abs(Wide(base[k].re, base[k].im) - w), eps<T>) << n << ", " << k;
      if (k > 0) {  // mirrored, not computed twice
        ASSERT_EQ(base[k].re, base[n - k].re);
        ASSERT_EQ(base[k].im, -base[n - k].im);
      }
    }
    if (n % 2 == 0) {
      C* const direct = call(direct_of, n / 2, base, n);
      for (int k = 0; k < n / 2; ++k) ASSERT_EQ(direct[k].im, base[2 * k].im);
      t7_vspsFree(direct);
      T* const after = call(after_of, n, base, n);
      T* const before = call(before_of, n, base, n);
      const int pairs = n / 4, grouped = pairs / 4 * 4;
      for (int k = 1; k <= pairs; ++k) {
        const bool group = k <= grouped;
        const int first = group ? 4 * ((k - 1) / 2) + (k - 1) % 2 : 2 * (k - 1),
                  second = first + (group ? 2 : 1);
        ASSERT_EQ(before[first], base[k].re) << n << ", " << k;
        ASSERT_EQ(before[second], base[k].im) << n << ", " << k;
        ASSERT_EQ(after[first], base[k].re / 2);
        ASSERT_EQ(after[second], T(0.5) + base[k].im / 2);
      }
      t7_vspsFree(after), t7_vspsFree(before);
    }
    t7_vspsFree(base);
  }
  memory.refuse_at = 1;
  EXPECT_EQ(call(base_of, 100), nullptr);
}
TEST(DftTables, RootsAndRecombination) {
  check_tables<float, c32>(t7_vsps_createTabDftBase_32f, t7_vsps_createTabDftDir_32f,
                           t7_vsps_createTabDftFwdRec_32f, t7_vsps_createTabDftInvRec_32f);
  check_tables<double, c64>(t7_vsps_createTabDftBase_64f, t7_vsps_createTabDftDir_64f,
                            t7_vsps_createTabDftFwdRec_64f, t7_vsps_createTabDftInvRec_64f);
}

// Halves that are no multiple of a register, odd ones among them.
template <class T, class C, class Base, class Rec, class After, class Before>
void check_recombination(Base base_of, Rec after_of, Rec before_of, After after, Before before) {
  for (int half : {1, 2, 3, 5, 8, 9, 10, 15, 18, 21, 50}) {
    const int n = 2 * half;
    C* const base = base_of(n);
    T *const forth = after_of(n, base, n), *const back = before_of(n, base, n);
    const Sequence x = noise(n, 8, true), spectrum = wide_dft(x, forward_sign);
    Sequence z((size_t)half);
    for (int i = 0; i < half; ++i) z[size_t(i)] = {x[size_t(2 * i)].real(), x[size_t(2 * i + 1)].real()};
    z = wide_dft(z, forward_sign);
    const Guarded<C> data(half, 1), separated(half, 2);
    put(z, data.data());
    call(after, data.data(), half, 1, forth);
    if (half > 1) {
      const Sequence got = sequence_of(data.data() + 1, half - 1);
      EXPECT_LE(relative_error(got, Sequence(spectrum.begin() + 1, spectrum.begin() + half)), 2 * eps<T>)
          << half;
    }
    data[0] = {T(spectrum[0].real()), T(spectrum[size_t(half)].real())};
    call(before, &data[0].re, separated.data(), half, -1, back);
    for (Wide& w : z) w *= 2;
    EXPECT_LE(relative_error(sequence_of(separated.data(), half), z), 4 * eps<T>) << half;
    t7_vspsFree(base), t7_vspsFree(forth), t7_vspsFree(back);
  }
}
TEST(DftRecombination, AgreesWithTheDefinition) {
  check_recombination<float, c32>(t7_vsps_createTabDftBase_32f, t7_vsps_createTabDftFwdRec_32f,
                                  t7_vsps_createTabDftInvRec_32f, t7_vsps_rDftFwdRecombine_32f,
                                  t7_vsps_rDftInvRecombine_32f);
  check_recombination<double, c64>(t7_vsps_createTabDftBase_64f, t7_vsps_createTabDftFwdRec_64f,
                                   t7_vsps_createTabDftInvRec_64f, t7_vsps_rDftFwdRecombine_64f,
                                   t7_vsps_rDftInvRecombine_64f);
}

template <class T>
struct Entries;
#define ENTRIES(T, C_, b)                                                                            \
  template <>                                                                                        \
  struct Entries<T> {                                                                                \
    using C = C_;                                                                                    \
    static constexpr auto base = t7_vsps_createTabDftBase_##b##f;                                    \
    static constexpr auto direct = t7_vsps_cDft_Dir_##b##fc;                                         \
    static constexpr auto real_direct = t7_vsps_rDftFwd_Dir_##b##f;                                  \
    static constexpr auto chirp = t7_vsps_cDft_Conv_##b##fc;                                         \
    static constexpr auto real_chirp = t7_vsps_rDftFwd_Conv_##b##f;                                  \
    static constexpr auto real_chirp_back = t7_vsps_rDftInv_Conv_##b##f;                             \
    static constexpr auto product = t7_vsps_cbMpy3_##b##fc;                                          \
    static constexpr auto zero = t7_vsps_cbZero_##b##fc;                                             \
    static constexpr auto make = t7_vspsDFTInitAlloc_C_##b##fc;                                      \
    static constexpr auto release = t7_vspsDFTFree_C_##b##fc;                                        \
    static constexpr auto bytes = t7_vspsDFTGetBufSize_C_##b##fc;                                    \
    static constexpr auto make_real = t7_vspsDFTInitAlloc_R_##b##f;                                  \
    static constexpr auto release_real = t7_vspsDFTFree_R_##b##f;                                    \
    static constexpr auto bytes_real = t7_vspsDFTGetBufSize_R_##b##f;                                \
    using Plan = void (*)(const VspsDFTSpec*, const C*, C*, void*);                                  \
    static constexpr Plan plans[2][2] = {                                                            \
        {t7_vsps_cDftFwd_PrimeFact_##b##fc, t7_vsps_cDftFwd_OutOrd_##b##fc},                         \
        {t7_vsps_cDftInv_PrimeFact_##b##fc, t7_vsps_cDftInv_OutOrd_##b##fc}};                        \
    using Prime = void (*)(const C*, C*, int);                                                       \
    using Fact = void (*)(const C*, C*, int, int, const T*);                                         \
    using RealPrime = void (*)(const T*, C*, int);                                                   \
    struct Factor {                                                                                  \
      int p;                                                                                         \
      Prime prime[2];                                                                                \
      Fact fact[2];                                                                                  \
      RealPrime real_prime;                                                                          \
      Fact real_fact;                                                                                \
    };                                                                                               \
    static constexpr Factor factors[] = {                                                            \
        {2, {}, {t7_vsps_cDftOutOrdFwd_Fact2_##b##fc, t7_vsps_cDftOutOrdInv_Fact2_##b##fc}, {}, {}}, \
        {4, {}, {t7_vsps_cDftOutOrdFwd_Fact4_##b##fc, t7_vsps_cDftOutOrdInv_Fact4_##b##fc}, {}, {}}, \
        FACTOR(3, b),                                                                                \
        FACTOR(5, b),                                                                                \
        FACTOR(7, b),                                                                                \
        FACTOR(11, b)};                                                                              \
    static constexpr auto prime = t7_vsps_cDftOutOrdFwd_Prime_##b##fc;                               \
    static constexpr auto prime_back = t7_vsps_cDftOutOrdInv_Prime_##b##fc;                          \
    static constexpr auto fact = t7_vsps_cDftOutOrdFwd_Fact_##b##fc;                                 \
    static constexpr auto fact_back = t7_vsps_cDftOutOrdInv_Fact_##b##fc;                            \
    static constexpr auto real_prime = t7_vsps_rDftFwd_Prime_##b##f;                                 \
    static constexpr auto real_fact = t7_vsps_rDftFwd_Fact_##b##f;                                   \
  };
#define FACTOR(p, b)                                                                         \
  {                                                                                          \
    p, {t7_vsps_cDftOutOrdFwd_Prime##p##_##b##fc, t7_vsps_cDftOutOrdInv_Prime##p##_##b##fc}, \
        {t7_vsps_cDftOutOrdFwd_Fact##p##_##b##fc, t7_vsps_cDftOutOrdInv_Fact##p##_##b##fc},  \
        t7_vsps_rDftFwd_Prime##p##_##b##f, t7_vsps_rDftFwd_Fact##p##_##b##f                  \
  }
ENTRIES(float, c32, 32)
ENTRIES(double, c64, 64)

template <class T>
class Methods : public testing::Test {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Methods, Types);

TYPED_TEST(Methods, DirectSum) {
  using E = Entries<TypeParam>;
  using C = typename E::C;
  for (int n : {3, 9, 17, 149, 179}) {
    C* const table = E::base(n);
    const Guarded<C> in(n, 1), room(n, 0);
    for (int sign : {1, -1}) {
      const Sequence x = noise(n, 2);
      put(x, in.data());
      call(E::direct, in.data(), in.data(), n, sign, table, room.data());
      EXPECT_LE(relative_error(sequence_of(in.data(), n), wide_dft(x, -sign)),
                error_bound<TypeParam>(1.3L, n))
          << n;
    }
    const Sequence x = noise(n, 2, true), expected = wide_dft(x, forward_sign);
    const Guarded<TypeParam> real(n, 3);
    for (int i = 0; i < n; ++i) real[i] = TypeParam(x[size_t(i)].real());
    call(E::real_direct, real.data(), real.data(), n, table, room.data());
    Sequence got = {real[0]};
    for (int k = 1; k <= n / 2; ++k) got.push_back({real[2 * k - 1], real[2 * k]});
    EXPECT_LE(relative_error(got, Sequence(expected.begin(), expected.begin() + n / 2 + 1)),
              error_bound<TypeParam>(1.3L, n))
        << n;
    t7_vspsFree(table);
  }
}

TYPED_TEST(Methods, ConvolutionAndPlan) {
  using T = TypeParam;
  using E = Entries<T>;
  using C = typename E::C;
  for (int n : {151, 1009, 60, 1001}) {
    const bool planned = n == 60 || n == 1001;
    VspsDFTSpec *spec = nullptr, *real = nullptr;
    ASSERT_EQ(E::make(&spec, n, 8, 0), 0);
    ASSERT_EQ(E::make_real(&real, n, 8, 0), 0);
    int bytes = 0, real_bytes = 0;
    E::bytes(spec, &bytes), E::bytes_real(real, &real_bytes);
    const Guarded<char> buffer(bytes, -1), real_buffer(real_bytes, -1);
    const Guarded<C> in(n, 1), out(n, 2);
    const Sequence x = noise(n, 2);
    put(x, in.data());
    for (int inverse : {0, 1}) {
      const Sequence expected = wide_dft(x, inverse ? 1 : -1);
      for (int form : {0, 1}) {
        if (planned)
          call(E::plans[inverse][form], spec, in.data(), out.data(), buffer.data());
        else
          EXPECT_EQ(call(E::chirp, spec, in.data(), out.data(), n, inverse ? -1 : 1, buffer.data()), 0);
        EXPECT_LE(relative_error(sequence_of(out.data(), n), expected), error_bound<T>(1.6L, n)) << n;
      }
    }
    if (!planned) {
      const Sequence samples = noise(n, 3, true), spectrum = wide_dft(samples, forward_sign);
      const Guarded<T> data(n, 1);
      for (int i = 0; i < n; ++i) data[i] = T(samples[size_t(i)].real());
      EXPECT_EQ(call(E::real_chirp, real, data.data(), data.data(), n, real_buffer.data()), 0);
      Sequence got = {data[0]};
      for (int k = 1; k <= n / 2; ++k) got.push_back({data[2 * k - 1], data[2 * k]});
      EXPECT_LE(relative_error(got, Sequence(spectrum.begin(), spectrum.begin() + n / 2 + 1)),
                error_bound<T>(1.6L, n));
      EXPECT_EQ(call(E::real_chirp_back, real, data.data(), data.data(), n, real_buffer.data()), 0);
      got.clear();
      for (int i = 0; i < n; ++i) got.push_back((long double)data[i] / n);
      EXPECT_LE(relative_error(got, samples), 2 * error_bound<T>(1.6L, n));
    }
    E::release(spec), E::release_real(real);
  }
}

TYPED_TEST(Methods, ProductAndZero) {
  using E = Entries<TypeParam>;
  using C = typename E::C;
  for (int n : {0, 1, 2, 3, 4, 5, 11}) {
    const Guarded<C> a(n, 1), b(n, 2), out(n, 3);
    for (int i = 0; i < n; ++i)
      a[i] = {TypeParam(i + 1), TypeParam(2 - i)}, b[i] = {TypeParam(3 * i), TypeParam(i - 4)};
    call(E::product, a.data(), b.data(), out.data(), n);
    for (int i = 0; i < n; ++i) {  // small integers: exact
      EXPECT_EQ(out[i].re, a[i].re * b[i].re - a[i].im * b[i].im);
      EXPECT_EQ(out[i].im, a[i].re * b[i].im + a[i].im * b[i].re);
    }
    call(E::zero, out.data(), n);
    for (int i = 0; i < n; ++i) EXPECT_TRUE(out[i].re == 0 && out[i].im == 0);
  }
}

// Passes against their definition: rows of p pieces, turned and transformed.
template <class T>
class Pass {
 public:
  using C = typename Entries<T>::C;
  int p, done, count, lanes;
  bool real;
  Sequence x;
  Guarded<T> twiddles, table;
  Pass(int p_, int done_, int count_, bool real_)
      : p(p_),
        done(done_),
        count(count_),
        lanes(count_ >= int(16 / sizeof(T)) ? int(16 / sizeof(T)) : 1),
        real(real_),
        x(noise(done_ * p_ * count_, 4)),
        twiddles(done_ * (p_ - 1) * 2 * lanes, 0),
        table(2 * lanes * p_, 0) {
    T* at = twiddles.data();
    const auto put_root = [&](Wide w) {
      for (int part = 0; part < 2; ++part)
        for (int lane = 0; lane < lanes; ++lane) *at++ = T(part ? w.imag() : w.real());
    };
    for (int k = 0; k < done; ++k)
      for (int r = 1; r < p; ++r) put_root(root(forward_sign, k * r, done * p));
    at = table.data();
    for (int k = 0; k < p; ++k) put_root(root(inverse_sign, k, p));
    // real transforms so far: row 0 real, row done - k the conjugate of row k
    if (real)
      for (int k = 0; k < done; ++k)
        for (int i = 0; i < p * count; ++i) {
          Wide& z = x[size_t(k * p * count + i)];
          if (k == 0) z = z.real();
          if (2 * k > done) z = std::conj(x[size_t((done - k) * p * count + i)]);
        }
  }
  int rows_in() const { return real ? done / 2 + 1 : done; }
  int rows_out() const { return real ? done * p / 2 + 1 : done * p; }
  template <class Run>
  void check(int sign, Run run) const {
    const Guarded<C> in(rows_in() * p * count, 1), out(rows_out() * count, 2);
    put(Sequence(x.begin(), x.begin() + in.size()), in.data());
    run(in.data(), out.data());
    Sequence expected((size_t)out.size());
    for (int k = 0; k < done; ++k)
      for (int t = 0; t < p; ++t)
        for (int i = 0; i < count && k + done * t < rows_out(); ++i)
          for (int r = 0; r < p; ++r)
            expected[size_t((k + done * t) * count + i)] +=
                x[size_t((k * p + r) * count + i)] * root(sign, (long long)r * (k + done * t), done * p);
    EXPECT_LE(relative_error(sequence_of(out.data(), out.size()), expected), error_bound<T>(1.3L, p * 2))
        << "factor " << p << " done " << done << " count " << count << (real ? " real" : "");
  }
};

TYPED_TEST(Methods, FixedFactors) {
  using T = TypeParam;
  using E = Entries<T>;
  for (const auto& f : E::factors)
    for (int count : {1, 2, 3, 4, 5, 8, 13}) {
      for (int inverse : {0, 1}) {
        const int sign = inverse ? 1 : -1;
        const Pass<T> later(f.p, 3, count, false), first(f.p, 1, count, false);
        later.check(sign, [&](auto* in, auto* out) {
          call(f.fact[inverse], in, out, 3, count, later.twiddles.data());
        });
        if (f.prime[inverse])
          first.check(sign, [&](auto* in, auto* out) { call(f.prime[inverse], in, out, count); });
      }
      if (!f.real_prime) continue;
      const Pass<T> later(f.p, 5, count, true), first(f.p, 1, count, true);
      later.check(-1,
                  [&](auto* in, auto* out) { call(f.real_fact, in, out, 5, count, later.twiddles.data()); });
      const Guarded<T> samples(f.p * count, 3);
      for (int i = 0; i < samples.size(); ++i) samples[i] = T(first.x[size_t(i)].real());
      first.check(-1, [&](auto*, auto* out) { call(f.real_prime, samples.data(), out, count); });
    }
}

TYPED_TEST(Methods, AnyFactor) {
  using T = TypeParam;
  using E = Entries<T>;
  for (int p : {3, 13, 149})
    for (int count : {1, 4, 7}) {
      for (int inverse : {0, 1}) {
        const int sign = inverse ? 1 : -1;
        const Pass<T> later(p, 3, count, false), first(p, 1, count, false);
        later.check(sign, [&](auto* in, auto* out) {
          call(inverse ? E::fact_back : E::fact, in, out, p, 3, count, later.twiddles.data(),
               later.table.data());
        });
        first.check(sign, [&](auto* in, auto* out) {
          call(inverse ? E::prime_back : E::prime, in, out, p, count, first.table.data());
        });
      }
      const Pass<T> later(p, 5, count, true), first(p, 1, count, true);
      later.check(-1, [&](auto* in, auto* out) {
        call(E::real_fact, in, out, p, 5, count, later.twiddles.data(), later.table.data());
      });
      const Guarded<T> samples(p * count, 3);
      for (int i = 0; i < samples.size(); ++i) samples[i] = T(first.x[size_t(i)].real());
      first.check(-1, [&](auto*, auto* out) {
        call(E::real_prime, samples.data(), out, p, count, first.table.data());
      });
    }
}

}  // namespace
