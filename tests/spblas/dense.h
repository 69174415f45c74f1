// Dense matrices for the tests, in the layout of a kernel: with room between the lines that nothing may
// touch.
#pragma once

#include <cmath>

#include "tests/spblas/csr_matrix.h"
#include "tests/support/bits.h"

namespace orb::test {

template <class T>
class Dense {
 public:
  // `place`: the word of a 16-byte line at which the array starts.
  Dense(bool by_rows, int rows, int columns, int room, int place)
      : by_rows_(by_rows),
        ld((by_rows ? columns : rows) + room),
        memory_(ld * (by_rows ? rows : columns), place) {
    for (T& e : memory_) e = multiply(part_of<T>(NAN), whole<T>(1, 1));
  }
  T* data() const { return memory_.data(); }
  T& at(int r, int j) const { return memory_[by_rows_ ? r * ld + j : j * ld + r]; }
  void set_column(int j, const std::vector<T>& x) const {
    for (int r = 0; r < int(x.size()); ++r) at(r, j) = x[size_t(r)];
  }
  std::vector<T> image() const { return {memory_.begin(), memory_.end()}; }

 private:
  bool by_rows_;

 public:
  const int ld;

 private:
  Guarded<T> memory_;
};

// Zeros lose their sign, which no exact result has.
template <class T>
void drop_zero_signs(const Dense<T>& c, int rows, int columns) {
  for (int r = 0; r < rows; ++r)
    for (int j = 0; j < columns; ++j) c.at(r, j) = add(c.at(r, j), T{});
}

}  // namespace orb::test
