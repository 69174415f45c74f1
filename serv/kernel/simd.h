// The SIMD vocabulary: one 16-byte register of doubles or singles, and a one-element twin of each with the
// same words, so that a loop body is written once for its vector middle and its scalar edges.
//   load, store     16-byte boundary required (one-element twins: none)
//   loadu, storeu   any address
//   low             one element into the first lane, zero elsewhere
//   gather          elements `step` apart, first element into the first lane; scatter puts them back
//   pair            two values in the first lanes, zero elsewhere; load_pair, store_pair: at any address
//   gather          elements `step` apart, first element into the first lane
//   pair            two values in the first lanes, zero elsewhere; load_pair, store_pair: at any address;
//                   pair_at: one value each from two addresses
//   reversed        the lanes in the opposite order
//   flip_odd        the sign of each lane of odd number changed; flip_even: of each of even number
//   quad            four values
//   low_pair, high_pair   the first or the last two lanes in the first two, zero elsewhere; pairs: two pairs
//                   from any addresses
//   add_low         a scalar added to the first lane, the others as they were
//   widen           singles from any address as doubles
//   sum             the lanes added: (l0 + l1), or (l0 + l2) + (l1 + l3)
//   each            elements from any address, each the factor of its own element
//   dup_even        each lane of even number into both lanes of its pair; dup_odd: each of odd number
//   not_le          lanes of ones where !(a <= b), as for NaN; zeros elsewhere; any() asks for a set lane
//   sums            sum() of four registers, side by side in one
//   splat_lane      one lane into all
//   load_first, store_first   n elements, 1 to all lanes, at any address; lanes beyond n repeat one of them
//   transpose       exchanges rows and columns of a 4 by 4 block of singles, a 2 by 2 block of doubles
#pragma once

#include <pmmintrin.h>
#include <stdint.h>

#include <cmath>

#include "serv/kernel/boundary.h"

namespace orb {

struct f64x2 {
  using scalar = double;
  static constexpr int lanes = 2;
  __m128d v;

  static ORB_INLINE f64x2 zero() { return {_mm_setzero_pd()}; }
  static ORB_INLINE f64x2 splat(double a) { return {_mm_set1_pd(a)}; }
  static ORB_INLINE f64x2 load(const double* p) { return {_mm_load_pd(p)}; }
  static ORB_INLINE f64x2 loadu(const double* p) { return {_mm_loadu_pd(p)}; }
  static ORB_INLINE f64x2 low(const double* p) { return {_mm_load_sd(p)}; }
  static ORB_INLINE f64x2 gather(const double* p, int step) { return {_mm_set_pd(p[step], p[0])}; }
  ORB_INLINE void scatter(double* p, int step) const { _mm_storel_pd(p, v), _mm_storeh_pd(p + step, v); }
  static ORB_INLINE f64x2 pair(double a, double b) { return {_mm_setr_pd(a, b)}; }
  static ORB_INLINE f64x2 load_pair(const double* p) { return loadu(p); }
  ORB_INLINE void store_pair(double* p) const { storeu(p); }
  static ORB_INLINE f64x2 pair_at(const double* p, const double* q) {
    return {_mm_loadh_pd(_mm_load_sd(p), q)};
  }
  ORB_INLINE f64x2 reversed() const { return swap_halves(); }
  ORB_INLINE f64x2 flip_odd() const { return {_mm_xor_pd(v, _mm_setr_pd(0.0, -0.0))}; }
  ORB_INLINE f64x2 flip_even() const { return {_mm_xor_pd(v, _mm_setr_pd(-0.0, 0.0))}; }
  static ORB_INLINE f64x2 widen(const float* p) {
    return {_mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
  }
  static ORB_INLINE f64x2 load_first(const double* p, int n) { return n == 1 ? splat(*p) : loadu(p); }
  ORB_INLINE void store_first(double* p, int n) const { n == 1 ? _mm_store_sd(p, v) : storeu(p); }
  ORB_INLINE void store(double* p) const { _mm_store_pd(p, v); }
  ORB_INLINE void storeu(double* p) const { _mm_storeu_pd(p, v); }
  ORB_INLINE double first() const { return _mm_cvtsd_f64(v); }
  ORB_INLINE void add_low(double a) { v = _mm_add_sd(v, _mm_set_sd(a)); }
  ORB_INLINE double sum() const { return first() + _mm_cvtsd_f64(_mm_unpackhi_pd(v, v)); }
  // (a0, b0) and (a1, b1)
  static ORB_INLINE f64x2 low_halves(f64x2 a, f64x2 b) { return {_mm_unpacklo_pd(a.v, b.v)}; }
  static ORB_INLINE f64x2 high_halves(f64x2 a, f64x2 b) { return {_mm_unpackhi_pd(a.v, b.v)}; }
  static ORB_INLINE void transpose(f64x2 (&x)[2]) {
    const f64x2 row = low_halves(x[0], x[1]);
    x[1] = high_halves(x[0], x[1]);
    x[0] = row;
  }
  static ORB_INLINE f64x2 each(const double* p) { return loadu(p); }
  static ORB_INLINE f64x2 twice(const double* p) { return splat(*p); }
  ORB_INLINE f64x2 dup_even() const { return low_halves(*this, *this); }
  ORB_INLINE f64x2 dup_odd() const { return high_halves(*this, *this); }
  template <int lane>
  ORB_INLINE f64x2 splat_lane() const {
    return lane == 0 ? low_halves(*this, *this) : high_halves(*this, *this);
  }
  ORB_INLINE f64x2 swap_halves() const { return {_mm_shuffle_pd(v, v, 1)}; }
  // (a0, b0) and (a1, b1)
  static ORB_INLINE f64x2 even(f64x2 a, f64x2 b) { return {_mm_unpacklo_pd(a.v, b.v)}; }
  static ORB_INLINE f64x2 odd(f64x2 a, f64x2 b) { return {_mm_unpackhi_pd(a.v, b.v)}; }
  // (a0 - b0, a1 + b1)
  static ORB_INLINE f64x2 addsub(f64x2 a, f64x2 b) { return {_mm_addsub_pd(a.v, b.v)}; }
  // The mask is applied in the integer unit, which leaves the floating-point pipes to the sums.
  ORB_INLINE f64x2 abs() const {
    return {_mm_castsi128_pd(_mm_and_si128(_mm_castpd_si128(v), _mm_srli_epi64(_mm_set1_epi32(-1), 1)))};
  }

  static ORB_INLINE f64x2 not_le(f64x2 a, f64x2 b) { return {_mm_cmpnle_pd(a.v, b.v)}; }
  ORB_INLINE bool any() const { return _mm_movemask_pd(v) != 0; }
  friend ORB_INLINE f64x2 operator|(f64x2 a, f64x2 b) { return {_mm_or_pd(a.v, b.v)}; }

  friend ORB_INLINE f64x2 operator-(f64x2 a) { return {_mm_xor_pd(a.v, _mm_set1_pd(-0.0))}; }
  friend ORB_INLINE f64x2 operator+(f64x2 a, f64x2 b) { return {_mm_add_pd(a.v, b.v)}; }
  friend ORB_INLINE f64x2 operator-(f64x2 a, f64x2 b) { return {_mm_sub_pd(a.v, b.v)}; }
  friend ORB_INLINE f64x2 operator*(f64x2 a, f64x2 b) { return {_mm_mul_pd(a.v, b.v)}; }
  friend ORB_INLINE f64x2 operator/(f64x2 a, f64x2 b) { return {_mm_div_pd(a.v, b.v)}; }
  ORB_INLINE f64x2& operator+=(f64x2 b) { return *this = *this + b; }
};

struct f32x4 {
  using scalar = float;
  static constexpr int lanes = 4;
  __m128 v;

  static ORB_INLINE f32x4 zero() { return {_mm_setzero_ps()}; }
  static ORB_INLINE f32x4 splat(float a) { return {_mm_set1_ps(a)}; }
  static ORB_INLINE f32x4 load(const float* p) { return {_mm_load_ps(p)}; }
  static ORB_INLINE f32x4 loadu(const float* p) { return {_mm_loadu_ps(p)}; }
  static ORB_INLINE f32x4 low(const float* p) { return {_mm_load_ss(p)}; }
  static ORB_INLINE f32x4 gather(const float* p, int step) {
    return {_mm_set_ps(p[3 * step], p[2 * step], p[step], p[0])};
  }
  static ORB_INLINE f32x4 pair(float a, float b) { return {_mm_setr_ps(a, b, 0, 0)}; }
  static ORB_INLINE f32x4 load_pair(const float* p) {
    return {_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
  }
  static ORB_INLINE f32x4 quad(float a, float b, float c, float d) { return {_mm_setr_ps(a, b, c, d)}; }
  static ORB_INLINE f32x4 pairs(const float* p, const float* q) {
    return {_mm_movelh_ps(load_pair(p).v, load_pair(q).v)};
  }
  ORB_INLINE f32x4 low_pair() const { return {_mm_movelh_ps(v, _mm_setzero_ps())}; }
  ORB_INLINE f32x4 high_pair() const { return {_mm_movehl_ps(_mm_setzero_ps(), v)}; }
  ORB_INLINE void store_pair(float* p) const { _mm_storel_pi(reinterpret_cast<__m64*>(p), v); }
  // two pairs, from p and from q
  static ORB_INLINE f32x4 load_pairs(const float* p, const float* q) {
    return {_mm_loadh_pi(load_pair(p).v, reinterpret_cast<const __m64*>(q))};
  }
  static ORB_INLINE f32x4 pair_at(const float* p, const float* q) {
    return {_mm_unpacklo_ps(_mm_load_ss(p), _mm_load_ss(q))};
  }
  ORB_INLINE f32x4 reversed() const { return {_mm_shuffle_ps(v, v, _MM_SHUFFLE(0, 1, 2, 3))}; }
  ORB_INLINE f32x4 flip_odd() const { return {_mm_xor_ps(v, _mm_setr_ps(0.0f, -0.0f, 0.0f, -0.0f))}; }
  ORB_INLINE f32x4 flip_even() const { return {_mm_xor_ps(v, _mm_setr_ps(-0.0f, 0.0f, -0.0f, 0.0f))}; }
  static ORB_INLINE f32x4 load_first(const float* p, int n) {
    if (n == 4) return loadu(p);
    if (n == 1) return splat(*p);
    return {_mm_movelh_ps(load_pair(p).v, splat(p[n - 1]).v)};
  }
  ORB_INLINE void store_first(float* p, int n) const {
    if (n == 4) return storeu(p);
    if (n >= 2) store_pair(p);
    if (n == 1) _mm_store_ss(p, v);
    if (n == 3) _mm_store_ss(p + 2, _mm_movehl_ps(v, v));
  }
  ORB_INLINE void store(float* p) const { _mm_store_ps(p, v); }
  ORB_INLINE void storeu(float* p) const { _mm_storeu_ps(p, v); }
  ORB_INLINE float first() const { return _mm_cvtss_f32(v); }
  ORB_INLINE void add_low(float a) { v = _mm_add_ss(v, _mm_set_ss(a)); }
  // (l0 + l2, l1 + l3, ...)
  ORB_INLINE f32x4 sum_pairs() const { return {_mm_add_ps(v, _mm_movehl_ps(v, v))}; }
  ORB_INLINE float sum() const {
    const __m128 pair = sum_pairs().v;
    return _mm_cvtss_f32(_mm_add_ss(pair, _mm_shuffle_ps(pair, pair, 1)));
  }
  // the first and the last two lanes as doubles
  ORB_INLINE f64x2 widen_first() const { return {_mm_cvtps_pd(v)}; }
  ORB_INLINE f64x2 widen_last() const { return {_mm_cvtps_pd(_mm_movehl_ps(v, v))}; }
  static ORB_INLINE f32x4 sums(const f32x4 (&x)[4]) {
    const f32x4 pair01 = low_halves(x[0], x[1]) + high_halves(x[0], x[1]);  // l0 + l2 twice, l1 + l3 twice
    const f32x4 pair23 = low_halves(x[2], x[3]) + high_halves(x[2], x[3]);
    return f32x4{_mm_movelh_ps(pair01.v, pair23.v)} + f32x4{_mm_movehl_ps(pair23.v, pair01.v)};
  }
  static ORB_INLINE void transpose(f32x4 (&x)[4]) { _MM_TRANSPOSE4_PS(x[0].v, x[1].v, x[2].v, x[3].v); }
  static ORB_INLINE f32x4 each(const float* p) { return loadu(p); }
  // (p0, p0, p1, p1)
  static ORB_INLINE f32x4 twice(const float* p) {
    const __m128 pair = load_pair(p).v;
    return {_mm_unpacklo_ps(pair, pair)};
  }
  ORB_INLINE f32x4 dup_even() const { return {_mm_moveldup_ps(v)}; }
  ORB_INLINE f32x4 dup_odd() const { return {_mm_movehdup_ps(v)}; }
  template <int lane>
  ORB_INLINE f32x4 splat_lane() const {
    return {_mm_shuffle_ps(v, v, _MM_SHUFFLE(lane, lane, lane, lane))};
  }
  // exchanges the two lanes of each complex pair
  ORB_INLINE f32x4 swap_pairs() const { return {_mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1))}; }
  // (a0, a2, b0, b2) and (a1, a3, b1, b3)
  static ORB_INLINE f32x4 even(f32x4 a, f32x4 b) {
    return {_mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(2, 0, 2, 0))};
  }
  static ORB_INLINE f32x4 odd(f32x4 a, f32x4 b) {
    return {_mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(3, 1, 3, 1))};
  }
  // (a0, a1, b0, b1) and (a2, a3, b2, b3)
  static ORB_INLINE f32x4 low_pairs(f32x4 a, f32x4 b) { return {_mm_movelh_ps(a.v, b.v)}; }
  static ORB_INLINE f32x4 high_pairs(f32x4 a, f32x4 b) { return {_mm_movehl_ps(b.v, a.v)}; }
  // (a0 - b0, a1 + b1, a2 - b2, a3 + b3)
  static ORB_INLINE f32x4 addsub(f32x4 a, f32x4 b) { return {_mm_addsub_ps(a.v, b.v)}; }
  ORB_INLINE f32x4 abs() const {
    return {_mm_castsi128_ps(_mm_and_si128(_mm_castps_si128(v), _mm_srli_epi32(_mm_set1_epi32(-1), 1)))};
  }

  static ORB_INLINE f32x4 not_le(f32x4 a, f32x4 b) { return {_mm_cmpnle_ps(a.v, b.v)}; }
  ORB_INLINE bool any() const { return _mm_movemask_ps(v) != 0; }
  friend ORB_INLINE f32x4 operator|(f32x4 a, f32x4 b) { return {_mm_or_ps(a.v, b.v)}; }
  // (a0, b0, a1, b1) and (a2, b2, a3, b3)
  static ORB_INLINE f32x4 low_halves(f32x4 a, f32x4 b) { return {_mm_unpacklo_ps(a.v, b.v)}; }
  static ORB_INLINE f32x4 high_halves(f32x4 a, f32x4 b) { return {_mm_unpackhi_ps(a.v, b.v)}; }

  friend ORB_INLINE f32x4 operator-(f32x4 a) { return {_mm_xor_ps(a.v, _mm_set1_ps(-0.0f))}; }
  friend ORB_INLINE f32x4 operator+(f32x4 a, f32x4 b) { return {_mm_add_ps(a.v, b.v)}; }
  friend ORB_INLINE f32x4 operator-(f32x4 a, f32x4 b) { return {_mm_sub_ps(a.v, b.v)}; }
  friend ORB_INLINE f32x4 operator*(f32x4 a, f32x4 b) { return {_mm_mul_ps(a.v, b.v)}; }
  friend ORB_INLINE f32x4 operator/(f32x4 a, f32x4 b) { return {_mm_div_ps(a.v, b.v)}; }
  ORB_INLINE f32x4& operator+=(f32x4 b) { return *this = *this + b; }
};

// Holds four running sums in registers here. A compiler that sees many rounds of straight code hoists their
// loads and pushes the sums to the stack instead.
template <class V>
ORB_INLINE void keep_in_registers(V (&sum)[4]) {
  auto v0 = sum[0].v, v1 = sum[1].v, v2 = sum[2].v, v3 = sum[3].v;
  asm volatile("" : "+x"(v0), "+x"(v1), "+x"(v2), "+x"(v3));
  sum[0].v = v0, sum[1].v = v1, sum[2].v = v2, sum[3].v = v3;
}
// Two sums. A compiler that puts several rounds into one register spends more on filling it than it saves on
// the products.
template <class V>
ORB_INLINE void keep_in_registers(V (&sum)[2]) {
  asm volatile("" : "+x"(sum[0].v), "+x"(sum[1].v));
}
// Six sums, which leave one register for the common factor and one for the products.
template <class V>
ORB_INLINE void keep_in_registers(V (&sum)[6]) {
  asm volatile(""
               : "+x"(sum[0].v), "+x"(sum[1].v), "+x"(sum[2].v), "+x"(sum[3].v), "+x"(sum[4].v),
                 "+x"(sum[5].v));
}

// One element under the same words.
template <class T>
struct Lane {
  using scalar = T;
  static constexpr int lanes = 1;
  T v;

  static ORB_INLINE Lane zero() { return {0}; }
  static ORB_INLINE Lane splat(T a) { return {a}; }
  static ORB_INLINE Lane load(const T* p) { return {*p}; }
  static ORB_INLINE Lane loadu(const T* p) { return {*p}; }
  static ORB_INLINE Lane load_first(const T* p, int) { return {*p}; }
  ORB_INLINE void store_first(T* p, int) const { *p = v; }
  static ORB_INLINE Lane each(const T* p) { return {*p}; }
  static ORB_INLINE Lane widen(const float* p) { return {T(*p)}; }
  ORB_INLINE void store(T* p) const { *p = v; }
  ORB_INLINE void storeu(T* p) const { *p = v; }
  template <int lane>
  ORB_INLINE Lane splat_lane() const {
    return *this;
  }
  ORB_INLINE T sum() const { return v; }
  ORB_INLINE Lane reversed() const { return *this; }
  ORB_INLINE Lane abs() const { return {std::abs(v)}; }

  friend ORB_INLINE Lane operator+(Lane a, Lane b) { return {a.v + b.v}; }
  friend ORB_INLINE Lane operator-(Lane a, Lane b) { return {a.v - b.v}; }
  friend ORB_INLINE Lane operator*(Lane a, Lane b) { return {a.v * b.v}; }
  friend ORB_INLINE Lane operator/(Lane a, Lane b) { return {a.v / b.v}; }
  ORB_INLINE Lane& operator+=(Lane b) { return *this = *this + b; }
};

template <class T>
struct VectorOf;
template <>
struct VectorOf<double> {
  using type = f64x2;
};
template <>
struct VectorOf<float> {
  using type = f32x4;
};
// The full register for elements of type T, and the one-element twin.
template <class T>
using vector_of = typename VectorOf<T>::type;
template <class T>
struct OneOf {
  using type = Lane<T>;
};
template <class T>
using one_of = typename OneOf<T>::type;

// Fetches what lies `strides` steps of `inc` elements behind p, for one use: past the outer caches. Nothing
// need lie there.
template <class T>
ORB_INLINE void prefetch_once(const T* p, int strides, int inc) {
  const uintptr_t address = reinterpret_cast<uintptr_t>(p) + uintptr_t(strides) * uintptr_t(inc) * sizeof(T);
  _mm_prefetch(reinterpret_cast<const char*>(address), _MM_HINT_NTA);
}

ORB_INLINE bool is_aligned(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 15) == 0; }

// Do both addresses stand at the same place within 16 bytes?
ORB_INLINE bool same_alignment(const void* p, const void* q) {
  return ((reinterpret_cast<uintptr_t>(p) ^ reinterpret_cast<uintptr_t>(q)) & 15) == 0;
}

// Elements from p to the next 16-byte boundary (0 if p is on one), or -1 if none of p's elements is on one.
template <class T>
ORB_INLINE int elements_to_boundary(const T* p) {
  const unsigned bytes = -reinterpret_cast<uintptr_t>(p) & 15;
  return bytes % sizeof(T) == 0 ? int(bytes / sizeof(T)) : -1;
}

}  // namespace orb
