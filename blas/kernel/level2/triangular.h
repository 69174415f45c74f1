// The options of the triangular routines as constants.
#pragma once

#include "blas/kernel/level2/triangle.h"

namespace orb::blas {

enum class Op { plain, transposed, conjugated };

// a, or its conjugate.
template <Op op, class T>
ORB_INLINE T as(T a) {
  if constexpr (op == Op::conjugated) return conj(a);
  return a;
}

template <class T>
constexpr T number(real_of<T> a) {
  if constexpr (Complex<T>)
    return {a, 0};
  else
    return a;
}

// f.template operator()<upper, op>() as the letters have it. Real types know no conjugate form.
template <class T, class F>
ORB_INLINE void with_options(const char* uplo, const char* trans, F f) {
  const auto with_op = [&]<bool upper>() ORB_INLINE_BODY {
    if (is_option(trans, 'N')) return f.template operator()<upper, Op::plain>();
    if constexpr (Complex<T>)
      if (!is_option(trans, 'T')) return f.template operator()<upper, Op::conjugated>();
    f.template operator()<upper, Op::transposed>();
  };
  is_option(uplo, 'U') ? with_op.template operator()<true>() : with_op.template operator()<false>();
}

// The n elements of a vector from element `begin` on, as an argument for a routine; x is the first element.
template <class T>
ORB_INLINE T* sub_vector(T* x, int begin, int n, int inc) {
  return x + (inc < 0 ? begin + n - 1 : begin) * inc;
}

// block(begin, width) for the diagonal blocks of at most `most` from the front or from the back; a partial
// block is the last.
template <int most, class Block>
ORB_INLINE void for_blocks(int n, bool from_front, Block block) {
  for (int done = 0, width; done < n; done += width) {
    width = std::min(most, n - done);
    block(from_front ? done : n - done - width, width);
  }
}

}  // namespace orb::blas
