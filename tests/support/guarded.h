// Arrays that show every stray access: an inaccessible page right behind the last element (or `gap` words
// behind it, which shifts the alignment), and canaries in the gap and in front.
#pragma once

#include <stddef.h>

namespace orb::test {

class GuardedBytes {
 public:
  GuardedBytes(size_t bytes, size_t gap_bytes);
  ~GuardedBytes();
  GuardedBytes(const GuardedBytes&) = delete;
  GuardedBytes& operator=(const GuardedBytes&) = delete;
  void* data() const { return start_; }
  bool canaries_whole() const;

 private:
  unsigned char *map_, *start_, *fence_;
  size_t bytes_, map_bytes_;
};

// `place` 0 to 3 is the word of a 16-byte line at which the array starts. With place -1 the last element
// touches the guard page.
template <class T>
class Guarded {
 public:
  explicit Guarded(int n, int place = -1) : bytes_(size(n), gap(n, place)), n_(n) {}
  T* data() const { return static_cast<T*>(bytes_.data()); }
  T& operator[](int i) const { return data()[i]; }
  T* begin() const { return data(); }
  T* end() const { return data() + n_; }
  int size() const { return n_; }
  bool canaries_whole() const { return bytes_.canaries_whole(); }

 private:
  static size_t size(int n) { return size_t(n) * sizeof(T); }
  static size_t gap(int n, int place) { return place < 0 ? 0 : (0 - size(n) - size_t(place) * 4) & 15; }
  GuardedBytes bytes_;
  int n_;
};

}  // namespace orb::test
