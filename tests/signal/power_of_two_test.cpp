// The engine's tables, reversals, moves and passes, each called alone.
#include "orb/signal_power_of_two.h"

#include <cstring>

#include "orb/signal_real.h"
#include "tests/signal/kinds.h"
#include "tests/support/bits.h"

using namespace orb::test;

namespace {

int reversed(int k, int bits) {
  int r = 0;
  for (int b = 0; b < bits; ++b) r |= (k >> b & 1) << (bits - 1 - b);
  return r;
}
void* behind(const void* end) {
  return reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(end) + 31) & ~uintptr_t(31));
}

template <class T>
void check_sines(int order, T* (*init)(int, T*)) {
  const int n = 1 << order;
  const Guarded<T> table(n / 4 + 1);
  EXPECT_EQ(call(init, order, table.data()), behind(table.end()));
  for (int k = 0; k <= n / 4; ++k) {
    const long double exact = root(1, k, n).imag();
    // rounded once; long orders take the library's sine of a rounded angle
    EXPECT_LE(fabsl(table[k] - exact),
              (order > 10 && sizeof(T) == 8 ? 2 : 0.501L) * std::numeric_limits<T>::epsilon() * exact)
        << order << ", " << k;
  }
  EXPECT_EQ(table[n / 4], 1);
}
TEST(Tables, Sines) {
  for (int order = 2; order <= 14; ++order) {
    check_sines<float>(order, t7_vsps_initTabTwdBase_32f);
    check_sines<double>(order, t7_vsps_initTabTwdBase_64f);
  }
}

template <class T>
void check_twiddles(int order, int sine_order, T* (*sines_of)(int, T*),
                    void* (*init)(int, const T*, int, T*)) {
  const int n = 1 << order;
  std::vector<T> sines(size_t((1 << sine_order) / 4 + 1));
  sines_of(sine_order, sines.data());
  const Guarded<T> table(2 * n);
  for (T& v : table) v = 9;
  EXPECT_EQ(call(init, order, sines.data(), sine_order, table.data()), behind(table.end()));
  int at = 0;
  const auto group = [&](int radix, int s, int j) {
    for (int multiple = 1; multiple < radix; ++multiple)
      for (int part = 0; part < 2; ++part)
        for (int lane = 0; lane < 4; ++lane, ++at) {
          const Wide w = root(-1, (j + lane) * multiple, 1 << s);
          const long double exact = part ? w.imag() : w.real();
          ASSERT_LE(fabsl(table[at] - exact), std::numeric_limits<T>::epsilon() * 0.51L)
              << order << " at " << at;
        }
  };
  int s = 4;
  for (; s <= order; s += 2)
    for (int j = 0; j < 1 << s >> 2; j += 4) group(4, s, j);
  if (s == order + 1 && order > 3)
    for (int j = 0; j < n / 2; j += 4) group(2, order, j);
  for (; at < 2 * n; ++at) EXPECT_EQ(table[at], 9) << order;
}
TEST(Tables, TwiddlesOfTheLoop) {
  for (int order = 2; order <= 11; ++order)
    for (int more : {0, 3}) {
      check_twiddles<float>(order, order + more, t7_vsps_initTabTwdBase_32f, t7_vsps_initTabTwd_L1_32f);
      check_twiddles<double>(order, order + more, t7_vsps_initTabTwdBase_64f, t7_vsps_initTabTwd_L1_64f);
    }
}

TEST(Tables, Reversals) {
  for (int order = 2; order <= 13; ++order) {
    const int quarter = 1 << order >> 2;
    const Guarded<int> norm(quarter + 1), pairs(quarter + 1);
    EXPECT_EQ(call(t7_vsps_initTabBitRevNorm, order, norm.data()), behind(norm.end()));
    for (int k = 0; k < quarter; ++k) ASSERT_EQ(norm[k], 2 * reversed(k, order - 2));
    EXPECT_EQ(norm[quarter], 0);
    EXPECT_EQ(call(t7_vsps_initTabBitRev, order, pairs.data()), behind(pairs.end()));
    int at = 0, fixed = quarter;
    for (int i = 0; i < quarter; ++i) {
      const int j = reversed(i, order - 2);
      if (i < j) {
        ASSERT_EQ(pairs[at++], 8 * i);
        ASSERT_EQ(pairs[at++], 8 * j);
      }
      if (i == j) {
        ASSERT_EQ(pairs[fixed--], 8 * i);
      }
    }
    EXPECT_EQ(pairs[at], 0);
    EXPECT_EQ(at, fixed);
  }
  const int order = 15, block = 6;
  const Guarded<int> large(8 + 1025), inside(1025);
  EXPECT_EQ(call(t7_vsps_initTabBitRevLarge, order, block, large.data()), behind(large.end()));
  t7_vsps_initTabBitRev(12, inside.data());
  for (int k = 0; k < 8; ++k) EXPECT_EQ(large[k], reversed(k, 3) << block);
  EXPECT_EQ(memcmp(large.data() + 8, inside.data(), 1025 * sizeof(int)), 0);
}

template <class E, class R1, class R2>
void check_reversal(R1 in_place, R2 copy) {
  for (int order = 0; order <= 12; ++order) {
    const int n = 1 << order;
    std::vector<int> table(size_t(n / 4 + 1));
    if (n >= 4) t7_vsps_initTabBitRev(order, table.data());
    for (int place = 0; place < 4; ++place) {
      const Guarded<E> in(n, place), out(n, 3 - place);
      for (int i = 0; i < n; ++i) in[i] = value<E>(i);
      call(copy, in.data(), out.data(), n, table.data());
      for (int i = 0; i < n; ++i) ASSERT_TRUE(same(out[i], value<E>(reversed(i, order)))) << n << ", " << i;
      call(in_place, in.data(), n, table.data());
      ASSERT_EQ(memcmp(in.data(), out.data(), sizeof(E) * size_t(n)), 0);
    }
  }
}
TEST(Reversal, EveryElementType) {
  check_reversal<float>(t7_vsps_BitRev1_S, t7_vsps_BitRev2_S);
  check_reversal<double>(t7_vsps_BitRev1_D, t7_vsps_BitRev2_D);
  check_reversal<c32>(t7_vsps_BitRev1_C, t7_vsps_BitRev2_C);
  check_reversal<c64>(t7_vsps_BitRev1_Z, t7_vsps_BitRev2_Z);
  check_reversal<float>(t7_vsps_BitRev1_4, t7_vsps_BitRev2_4);
  check_reversal<double>(t7_vsps_BitRev1_8, t7_vsps_BitRev2_8);
  check_reversal<float>(t7_vsps_sBitRev1_Blk, t7_vsps_BitRev2_S);
  check_reversal<double>(t7_vsps_dBitRev1_Blk, t7_vsps_BitRev2_D);
  check_reversal<c32>(t7_vsps_cBitRev1_Blk, t7_vsps_BitRev2_C);
  check_reversal<c64>(t7_vsps_zBitRev1_Blk, t7_vsps_BitRev2_Z);
}

template <class E, class Merge, class Split>
void check_moves(Merge merge, Split split, int arrays) {
  const int stride = 21, rows = 5, columns = 16;
  std::vector<std::unique_ptr<Guarded<E>>> from, to;
  for (int a = 0; a < arrays; ++a) {
    from.push_back(std::make_unique<Guarded<E>>(stride * (rows - 1) + columns, 1));
    to.push_back(std::make_unique<Guarded<E>>(stride * (rows - 1) + columns, 2));
    for (int i = 0; i < from[size_t(a)]->size(); ++i)
      (*from[size_t(a)])[i] = value<E>(i + 50 * a), (*to[size_t(a)])[i] = E{};
  }
  const Guarded<E> buffer(arrays * rows * columns);
  merge([&](int a) { return from[size_t(a)]->data(); }, buffer.data(), stride, rows, columns);
  split([&](int a) { return to[size_t(a)]->data(); }, buffer.data(), stride, rows, columns);
  for (int a = 0; a < arrays; ++a)
    for (int i = 0; i < from[size_t(a)]->size(); ++i) {
      const bool moved = i % stride < columns;
      ASSERT_TRUE(same((*to[size_t(a)])[i], moved ? value<E>(i + 50 * a) : E{})) << i;
      if (moved) {
        ASSERT_TRUE(
            same(buffer[a * rows * columns + i / stride * columns + i % stride], value<E>(i + 50 * a)));
      }
    }
}
#define MOVES(name, bits, T, arrays, ...)                                                        \
  check_moves<T>([](auto a, T* b, int s, int r,                                                  \
                    int c) { call(t7_vsps_##name##_BlkMerge_##bits, __VA_ARGS__, b, s, r, c); }, \
                 [](auto a, T* b, int s, int r, int c) {                                         \
                   call(t7_vsps_##name##_BlkSplit_##bits, __VA_ARGS__, b, s, r, c, 1);           \
                 },                                                                              \
                 arrays)
TEST(Moves, MergeAndSplit) {
  MOVES(cFft, 32fc, c32, 1, a(0));
  MOVES(cFft, 64fc, c64, 1, a(0));
  MOVES(crFft, 32f, float, 2, a(0), a(1));
  MOVES(crFft, 64f, double, 2, a(0), a(1));
}

// One pass, from the definition, in the element type's own arithmetic and order.
template <class T>
struct Model {
  using C = complex_type<T>;
  std::vector<C> data;
  int count, blocks, radix;
  bool inverse;
  std::vector<T> twiddles;

  Model(int count_, int blocks_, int radix_, bool inverse_)
      : data(size_t(count_ * blocks_ * radix_)),
        count(count_),
        blocks(blocks_),
        radix(radix_),
        inverse(inverse_),
        twiddles(size_t(2 * (radix_ - 1) * count_)) {
    for (size_t i = 0; i < data.size(); ++i) data[i] = value<C>(int(i));
    for (size_t i = 0; i < twiddles.size(); ++i) twiddles[i] = value<T>(int(i) + 7);
  }
  C twiddled(C x, int row_multiple, int at) const {
    const T* const w = twiddles.data() + at / 4 * 8 * (radix - 1) + (row_multiple - 1) * 8 + at % 4;
    const T re = w[0], im = inverse ? -w[4] : w[4];
    return {x.re * re - x.im * im, x.im * re + x.re * im};
  }
  std::vector<C> result() const {
    std::vector<C> out = data;
    for (int b = 0; b < blocks; ++b)
      for (int x = 0; x < count; ++x) {
        const int at = b * radix * count + x;
        const auto row = [&](int r) { return data[size_t(at + r * count)]; };
        const auto put = [&](int r, C v) { out[size_t(at + r * count)] = v; };
        if (radix == 2) {
          const C a = row(0), t = twiddled(row(1), 1, x);
          put(0, add(a, t)), put(1, subtract(a, t));
          continue;
        }
        const C a = row(0), t = twiddled(row(1), 2, x), c = twiddled(row(2), 1, x),
                e = twiddled(row(3), 3, x);
        const C s02 = add(a, t), d02 = subtract(a, t), s13 = add(c, e), d13 = subtract(c, e);
        const C turned = inverse ? C{-d13.im, d13.re} : C{d13.im, -d13.re};
        put(0, add(s02, s13)), put(2, subtract(s02, s13)), put(1, add(d02, turned)),
            put(3, subtract(d02, turned));
      }
    return out;
  }
};

template <class T, class Run>
void check_pass(int radix, bool inverse, int arrays, Run run) {
  for (int count : {4, 8, 20})
    for (int blocks : {0, 1, 3}) {
      const Model<T> model(count, blocks, radix, inverse);
      const auto expected = model.result();
      const Guarded<T> twiddles(int(model.twiddles.size()), 0);
      memcpy(twiddles.data(), model.twiddles.data(), sizeof(T) * model.twiddles.size());
      const int n = count * blocks * radix;
      for (int turn = 0; turn < 4; ++turn) {
        const Arrays<T> in(arrays, arrays == 1 ? 2 * n : n, turn),
            out(arrays, arrays == 1 ? 2 * n : n, turn / 2);
        const auto part = [&](const Arrays<T>& a, int i, int p) -> T& {
          return arrays == 1 ? a[0][2 * i + p] : a[p][i];
        };
        for (int i = 0; i < n; ++i)
          part(in, i, 0) = model.data[size_t(i)].re, part(in, i, 1) = model.data[size_t(i)].im;
        const Arrays<T>& target = turn == 3 ? in : out;
        run(in, target, count, blocks, twiddles.data());
        for (int i = 0; i < n; ++i) {
          ASSERT_EQ(part(target, i, 0), expected[size_t(i)].re) << count << ' ' << blocks << ' ' << i;
          ASSERT_EQ(part(target, i, 1), expected[size_t(i)].im) << count << ' ' << blocks << ' ' << i;
        }
      }
    }
}
#define PASS(way, radix, bits, T)                                                                       \
  check_pass<T>(radix, #way[0] == 'I', 1, [](auto& in, auto& out, int count, int blocks, const T* w) {  \
    using C = complex_type<T>;                                                                          \
    call(t7_vsps_cFft##way##_Fact##radix##_##bits##fc, reinterpret_cast<C*>(in[0]),                     \
         reinterpret_cast<C*>(out[0]), count, blocks, w);                                               \
  });                                                                                                   \
  check_pass<T>(radix, #way[0] == 'I', 2, [](auto& in, auto& out, int count, int blocks, const T* w) {  \
    call(t7_vsps_crFft##way##_Fact##radix##_##bits##f, in[0], in[1], out[0], out[1], count, blocks, w); \
  })
TEST(Passes, AgreeWithThePlainOrderOfOperations) {
  PASS(Fwd, 4, 32, float);
  PASS(Inv, 4, 32, float);
  PASS(Fwd, 2, 32, float);
  PASS(Inv, 2, 32, float);
  PASS(Fwd, 4, 64, double);
  PASS(Inv, 4, 64, double);
  PASS(Fwd, 2, 64, double);
  PASS(Inv, 2, 64, double);
}

// The loop with and without the reversal gives the same bits, in split arrays too, wherever the data stands.
template <class T, class E, class Norm, class Loop, class NormApart, class LoopApart>
void check_loop(Norm norm, Loop loop, NormApart norm_apart, LoopApart loop_apart, int sign,
                T* (*sines_of)(int, T*), void* (*twiddles_of)(int, const T*, int, T*)) {
  for (int order = 3; order <= 12; ++order) {
    const int n = 1 << order;
    std::vector<T> sines(size_t(n / 4 + 1));
    sines_of(order, sines.data());
    const Guarded<T> twiddles(2 * n, 0), buffer(2 * n, 0);
    twiddles_of(order, sines.data(), order, twiddles.data());
    std::vector<int> table(size_t(n / 4 + 1));
    t7_vsps_initTabBitRevNorm(order, table.data());
    const Sequence x = noise(n, 3), expected = wide_fft(x, sign);
    for (int place = 0; place < 4; ++place) {
      const Guarded<E> in(n, place), out(n, place / 2), again(n, place);
      const Guarded<T> re(n, place), im(n, place);
      Sequence got;
      for (int i = 0; i < n; ++i) {
        const Wide z = x[size_t(i)];
        const int j = reversed(i, order);
        in[i] = {T(z.real()), T(z.imag())}, again[j] = in[i];
        re[i] = in[i].re, im[i] = in[i].im;
      }
      call(norm, in.data(), out.data(), n, twiddles.data(), table.data(), buffer.data());
      for (const E& z : out) got.push_back({z.re, z.im});
      ASSERT_LE(relative_error(got, expected), error_bound<T>(0.6L, n)) << order;
      if (order > 3) {
        call(loop, again.data(), n, twiddles.data(), buffer.data(), 0);
        ASSERT_EQ(memcmp(again.data(), out.data(), sizeof(E) * size_t(n)), 0) << order;
      }
      call(norm_apart, re.data(), im.data(), re.data(), im.data(), n, twiddles.data(), table.data(),
           buffer.data());
      for (int i = 0; i < n; ++i) ASSERT_TRUE(same(out[i], E{re[i], im[i]})) << order << ", " << i;
      if (order > 3) {
        for (int i = 0; i < n; ++i) re[reversed(i, order)] = in[i].re, im[reversed(i, order)] = in[i].im;
        call(loop_apart, re.data(), im.data(), n, twiddles.data(), buffer.data(), 0);
        for (int i = 0; i < n; ++i) ASSERT_TRUE(same(out[i], E{re[i], im[i]})) << order << ", " << i;
      }
    }
  }
}
TEST(Loop, WithAndWithoutReversal) {
  check_loop<float, c32>(t7_vsps_cRadix4FwdNorm_32fc, t7_vsps_cRadix4Fwd_32fc, t7_vsps_crRadix4FwdNorm_32f,
                         t7_vsps_crRadix4Fwd_32f, forward_sign, t7_vsps_initTabTwdBase_32f,
                         t7_vsps_initTabTwd_L1_32f);
  check_loop<float, c32>(t7_vsps_cRadix4InvNorm_32fc, t7_vsps_cRadix4Inv_32fc, t7_vsps_crRadix4InvNorm_32f,
                         t7_vsps_crRadix4Inv_32f, inverse_sign, t7_vsps_initTabTwdBase_32f,
                         t7_vsps_initTabTwd_L1_32f);
  check_loop<double, c64>(t7_vsps_cRadix4FwdNorm_64fc, t7_vsps_cRadix4Fwd_64fc, t7_vsps_crRadix4FwdNorm_64f,
                          t7_vsps_crRadix4Fwd_64f, forward_sign, t7_vsps_initTabTwdBase_64f,
                          t7_vsps_initTabTwd_L1_64f);
  check_loop<double, c64>(t7_vsps_cRadix4InvNorm_64fc, t7_vsps_cRadix4Inv_64fc, t7_vsps_crRadix4InvNorm_64f,
                          t7_vsps_crRadix4Inv_64f, inverse_sign, t7_vsps_initTabTwdBase_64f,
                          t7_vsps_initTabTwd_L1_64f);
}

// What the sizes say of the large orders, and the place of the row length's tables in them.
TEST(Large, Sizes) {
  int spec, init, buf;
  t7_vsps_getSizesTwd_Large_32f(17, &spec, &init, &buf);
  EXPECT_EQ(spec, ((8 << 14) + 32) + (8 << 17));
  EXPECT_EQ(init, 0);
  EXPECT_EQ(buf, 8 << 14);
  t7_vsps_getSizesTwd_Large_32f(18, &spec, &init, &buf);
  EXPECT_EQ(buf, 8 << 14);
  t7_vsps_getSizesTwd_Large_32f(25, &spec, &init, &buf);  // rows of 2^17, cut again
  EXPECT_EQ(spec, ((8 << 14) + 32) + (8 << 17) + (8 << 25));
  EXPECT_EQ(buf, 8 << 15);
  t7_vsps_getSizeTwd_Large_64f(15, &spec, &init, &buf);
  EXPECT_EQ(spec, ((16 << 11) + 32) + (16 << 15));
  EXPECT_EQ(buf, 16 << 11);
  int spec_size, init_size, buf_size;
  ASSERT_EQ(t7_vspsFFTGetSize_C_32fc(10, 8, 0, &spec_size, &init_size, &buf_size), 0);
  EXPECT_EQ(spec_size, 8192 + 32 + 1024 + 32 + 128);
  EXPECT_EQ(init_size, 0);
  EXPECT_EQ(buf_size, 8192 + 32);
  ASSERT_EQ(t7_vspsFFTGetSize_C_32f(5, 8, 0, &spec_size, &init_size, &buf_size), 0);
  EXPECT_EQ(spec_size, 116);
}

// Against the definition: the real transform of 2 half numbers whose even and odd samples are the parts.
template <class T, class After, class Before>
void check_recombination(T* (*sines_of)(int, T*), void* (*after_table)(int, const T*, int, T*),
                         void* (*before_table)(int, const T*, int, T*), After after, Before before) {
  using C = complex_type<T>;
  for (int order = 2; order <= 9; ++order) {
    const int n = 1 << order, half = n / 2;
    std::vector<T> sines(size_t(n / 4 + 1));
    sines_of(order, sines.data());
    const Guarded<T> forth(n / 2, 0), back(n / 2, 0);
    EXPECT_EQ(call(after_table, order, sines.data(), order, forth.data()), behind(forth.end()));
    EXPECT_EQ(call(before_table, order, sines.data(), order, back.data()), behind(back.end()));
    const Sequence x = noise(n, 8, true), spectrum = wide_fft(x, forward_sign);
    Sequence z((size_t)half);
    for (int i = 0; i < half; ++i) z[size_t(i)] = {x[size_t(2 * i)].real(), x[size_t(2 * i + 1)].real()};
    z = wide_fft(z, forward_sign);
    const Guarded<C> data(half, 1), separated(half, 2);
    for (int i = 0; i < half; ++i) data[i] = {T(z[size_t(i)].real()), T(z[size_t(i)].imag())};
    call(after, data.data(), half, 1, forth.data());
    EXPECT_EQ(data[0].re, T(z[0].real()));
    Sequence got, expected;
    for (int k = 1; k < half; ++k)
      got.push_back({data[k].re, data[k].im}), expected.push_back(spectrum[size_t(k)]);
    EXPECT_LE(relative_error(got, expected), 2 * std::numeric_limits<T>::epsilon()) << n;
    data[0] = {T(spectrum[0].real()), T(spectrum[size_t(half)].real())};
    call(before, &data[0].re, separated.data(), half, -1, back.data());
    got.clear(), expected.clear();
    for (int k = 0; k < half; ++k)
      got.push_back({separated[k].re, separated[k].im}), expected.push_back(z[size_t(k)] * 2.0L);
    EXPECT_LE(relative_error(got, expected), 4 * std::numeric_limits<T>::epsilon()) << n;
  }
}
TEST(Recombination, AgreesWithTheDefinition) {
  check_recombination<float>(t7_vsps_initTabTwdBase_32f, t7_vsps_initTabTwdRealRec_32f,
                             t7_vsps_initTabTwdCcsRec_32f, t7_vsps_cRealRecombine_32f,
                             t7_vsps_cCcsRecombine_32f);
  check_recombination<double>(t7_vsps_initTabTwdBase_64f, t7_vsps_initTabTwdRealRec_64f,
                              t7_vsps_initTabTwdCcsRec_64f, t7_vsps_cRealRecombine_64f,
                              t7_vsps_cCcsRecombine_64f);
}

}  // namespace
