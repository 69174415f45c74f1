// What the name of a sparse kernel says. The name is the only truth: a wrapper's body follows from it, and
// the table of the outer layer is sorted by it.
//
//   orb_spblas_ d csr 0 n g _ _ c __ mv out_ par
//               |  |  | | | | | |    |       |
//               |  |  | | | | | |    |       par: a range of rows or of dense columns; seq: the whole matrix
//               |  |  | | | | | |    mv mm: product with a vector, a dense matrix; sv sm: solution of one or
//               many |  |  | | | | | layout of dense matrices: c by rows, f by columns |  |  | | | |
//               diagonal: n stored, u all ones, whatever is stored |  |  | | | triangle that counts: l u |  |
//               | | kind: g general, s symmetric, h Hermitian, t triangular, a antisymmetric, d diagonal |  |
//               | n the matrix itself, t transposed, c transposed and conjugated, s conjugated |  |  base of
//               the column numbers |  rows compressed element type
#pragma once

#include "serv/kernel/complex.h"

namespace orb::spblas {

enum class Side { lower, upper };

struct Shape {
  char type, base, op, kind, uplo, diag, layout;

  constexpr int first_number() const { return base - '0'; }
  constexpr bool by_rows() const { return layout == 'c'; }
  constexpr Side side() const { return uplo == 'l' ? Side::lower : Side::upper; }
  constexpr bool unit() const { return diag == 'u'; }
  constexpr bool transposes() const { return op == 't' || op == 'c'; }
  constexpr bool conjugates() const { return op == 'c' || op == 's'; }
  // A stored entry stands for itself and, in the kinds that store half, for its mirror image. A transposed
  // Hermitian matrix is the conjugated one: there one of the two is conjugated.
  constexpr bool conjugates_entry() const { return kind == 'h' ? op == 't' : conjugates(); }
  constexpr bool conjugates_mirror() const { return kind == 'h' ? op == 'n' : conjugates(); }
};

// Reached only by a name outside the grammar, which so ends the compilation.
void letter_outside_the_grammar();

constexpr char letter_among(char letter, const char* letters) {
  for (; *letters; ++letters)
    if (*letters == letter) return letter;
  letter_outside_the_grammar();
  return 0;
}

consteval Shape shape_of(const char* name) {
  for (const char* prefix = "orb_spblas_"; *prefix; ++prefix, ++name)
    if (*name != *prefix) letter_outside_the_grammar();
  const Shape s{letter_among(name[0], "sdcz"),   letter_among(name[4], "01"),  letter_among(name[5], "ntcs"),
                letter_among(name[6], "gshtad"), letter_among(name[7], "lu_"), letter_among(name[8], "nu_"),
                letter_among(name[9], "cf")};
  letter_among(s.layout, s.base == '0' ? "c" : "f");
  return s;
}

template <char type>
struct ElementOf;
template <>
struct ElementOf<'s'> {
  using type = float;
};
template <>
struct ElementOf<'d'> {
  using type = double;
};
template <>
struct ElementOf<'c'> {
  using type = c32;
};
template <>
struct ElementOf<'z'> {
  using type = c64;
};
template <Shape s>
using element_of = typename ElementOf<s.type>::type;

// The same from a name as it stands in a list.
#define ORB_SHAPE(name) orb::spblas::shape_of(#name)
#define ORB_SHAPE_ELEMENT(name) orb::spblas::element_of<ORB_SHAPE(name)>

}  // namespace orb::spblas
