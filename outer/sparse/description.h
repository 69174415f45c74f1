// What the user says of a matrix and of what to do with it, and which kernel does that.
#pragma once

#include "spblas/kernel/shape.h"

namespace orb {

// A description of six characters in capitals, the letters that do not matter for its kind as '_'.
struct Description {
  char kind, triangle, diagonal;
  bool from_one;  // columns count from 1, dense matrices by columns; otherwise from 0 and by rows

  bool by_rows() const { return !from_one; }
  bool square() const { return kind != 'G'; }
  bool solvable() const { return kind == 'T' || kind == 'D'; }
};
// The kind is 0 if the description is none.
Description read_description(const char* six);

// The operation in a capital, or 0. On real numbers, conjugation is none.
char read_operation(char letter, bool is_complex);

// The shape of the kernel (its element type left open) that works with op(A), perhaps with alpha negated.
struct Choice {
  spblas::Shape shape;
  bool negates;

  // Do rows of A go out to the result, instead of making an element of it each?
  bool transposes() const { return (shape.kind == 'g' || shape.kind == 't') && shape.transposes(); }
  bool mirrors() const { return shape.kind == 's' || shape.kind == 'h' || shape.kind == 'a'; }
};
Choice choose(const Description& matrix, char operation, bool is_complex);

}  // namespace orb
