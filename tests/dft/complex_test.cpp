// Complex descriptors as a whole: lines against the definition, everything else against the lines.
#include <string.h>

#include "tests/dft/transform.h"
#include "tests/support/guarded.h"

using namespace orb::test;

namespace {

template <class T>
class Complex : public Dft {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Complex, Types);

// Straight through the routine that the commit installed, from a badly aligned stack.
int run(DftiRecord* h, bool forward, void* a, void* b = nullptr, void* c = nullptr, void* d = nullptr) {
  return call(forward ? h->compute_forward : h->compute_backward, h, a, b, c, d);
}

// Every back-end: straight code, the stack, the general commit; scales inside and as a pass.
TYPED_TEST(Complex, ALineIsItsDefinition) {
  using T = TypeParam;
  using C = complex_for<T>;
  for (int n : {1, 2, 3, 4, 5, 8, 12, 16, 17, 32, 60, 64, 100, 128, 151, 256, 480, 1000, 1009, 1024})
    for (double s : {1.0, 1.0 / n, 1 / sqrt(double(n)), 0.3})
      for (int placement : {VAL_INPLACE, VAL_NOT_INPLACE})
        for (bool forward : {true, false}) {
          Handle h(precision_for<T>, {n});
          h.set(CFG_PLACEMENT, placement);
          h.set(forward ? CFG_FORWARD_SCALE : CFG_BACKWARD_SCALE, s);
          h.commit();
          Guarded<C> in(n, n % 4), out(n, (n + 1) % 4);
          std::vector<Wide> x;
          for (int i = 0; i < n; ++i) {
            in[i] = value<C>(i + n);
            x.push_back({in[i].re, in[i].im});
          }
          const bool in_place = placement == VAL_INPLACE;
          ASSERT_EQ(run(h, forward, in.data(), in_place ? nullptr : out.data()), 0);
          auto expected = definition(x, forward);
          for (Wide& e : expected) e *= (long double)(T(s));
          const auto got = [&](int k) {
            const C v = (in_place ? in : out)[k];
            return Wide(v.re, v.im);
          };
          ASSERT_LE(relative_error(expected, got), promised_error<T>(n))
              << n << " scale " << s << " forward " << forward << " placement " << placement;
        }
}

struct Setup {
  std::vector<int> lengths;  // fastest first
  Shape in, out;
  int count = 1, placement = VAL_INPLACE, ordering = VAL_ORDERED, storage = VAL_COMPLEX_COMPLEX;
};

// The batch, element after element: dense, transform after transform.
template <class C>
std::vector<C> plain_transform(DftiRecord* h, const std::vector<int>& lengths, bool forward,
                               std::vector<C> x) {
  using T = part_of<C>;
  std::vector<char> work(h->max_work_size + 64);
  int stride = 1;
  for (DftiRecord* r = h; r; stride *= r->length, r = r->next) {
    std::vector<C> line(static_cast<size_t>(r->length));
    for (int i = 0; i < product(lengths); ++i) {
      if (i / stride % r->length) continue;
      for (int j = 0; j < r->length; ++j) line[size_t(j)] = x[size_t(i + j * stride)];
      EXPECT_EQ(line_of<T>(r, forward)(line.data(), line.data(), r, work.data()), 0);
      for (int j = 0; j < r->length; ++j) x[size_t(i + j * stride)] = line[size_t(j)];
    }
  }
  return x;
}
template <class T>
std::vector<complex_for<T>> plain_parts_line(DftiRecord* h, bool forward, std::vector<complex_for<T>> x) {
  std::vector<char> work(h->max_work_size + 64);
  std::vector<T> re, im;
  for (auto e : x) re.push_back(e.re), im.push_back(e.im);
  T* parts[] = {re.data(), im.data()};
  EXPECT_EQ(line_of<T>(h, forward)(parts, parts, h, work.data()), 0);
  for (size_t i = 0; i < x.size(); ++i) x[i] = {re[i], im[i]};
  return x;
}

// Complex data in guarded memory, interleaved or with parts apart.
template <class T>
struct Data {
  using C = complex_for<T>;
  bool apart;
  Guarded<C> whole;
  Guarded<T> re, im;
  Data(int n, bool parts) : apart(parts), whole(parts ? 0 : n), re(parts ? n : 0), im(parts ? n : 0) {
    for (int i = 0; i < n; ++i) set(i, value<C>(i * 7 + 3));
  }
  int size() const { return apart ? re.size() : whole.size(); }
  C get(int i) const { return apart ? C{re[i], im[i]} : whole[i]; }
  void set(int i, C v) const {
    if (apart)
      re[i] = v.re, im[i] = v.im;
    else
      whole[i] = v;
  }
  void* first() const { return apart ? static_cast<void*>(re.data()) : whole.data(); }
  void* second() const { return apart ? im.data() : nullptr; }
  std::vector<C> all() const {
    std::vector<C> v;
    for (int i = 0; i < size(); ++i) v.push_back(get(i));
    return v;
  }
};

template <class T>
void expect_as_by_lines(const Setup& s, bool forward, int threads, int users) {
  using C = complex_for<T>;
  const bool in_place = s.placement == VAL_INPLACE, parts = s.storage == VAL_REAL_REAL;
  Handle h(precision_for<T>, std::vector<int>(s.lengths.rbegin(), s.lengths.rend()));
  const Layout in = layout(s.in, s.lengths, s.count), out = in_place ? in : layout(s.out, s.lengths, s.count);
  h.set(CFG_NUMBER_OF_TRANSFORMS, s.count);
  h.set(CFG_PLACEMENT, s.placement);
  h.set(CFG_ORDERING, s.ordering);
  h.set(CFG_COMPLEX_STORAGE, s.storage);
  h.set(CFG_NUMBER_OF_USER_THREADS, users);
  h.set_strides(CFG_INPUT_STRIDES, in.offset_and_strides());
  h.set_strides(CFG_OUTPUT_STRIDES, layout(s.out, s.lengths, s.count).offset_and_strides());
  h.set(CFG_INPUT_DISTANCE, in.distance);
  h.set(CFG_OUTPUT_DISTANCE, in_place ? 12345 : out.distance);
  h.set(forward ? CFG_FORWARD_SCALE : CFG_BACKWARD_SCALE, 0.375);
  spy().threads = threads;
  spy().par_calls = 0;
  h.commit();
  if (h->backend) return;  // no layers there

  Data<T> source(extent(in, s.lengths, s.count), parts),
      apart(in_place ? 0 : extent(out, s.lengths, s.count), parts);
  const Data<T>& target = in_place ? source : apart;
  auto expected = target.all();
  const auto source_before = source.all();
  for (int t = 0; t < s.count; ++t) {
    std::vector<C> x(static_cast<size_t>(product(s.lengths)));
    for_each_index(s.lengths,
                   [&](const std::vector<int>& index, int i) { x[size_t(i)] = source.get(in.at(index, t)); });
    x = parts ? plain_parts_line<T>(h, forward, x) : plain_transform(h, s.lengths, forward, x);
    for_each_index(s.lengths, [&](const std::vector<int>& index, int i) {
      expected[size_t(out.at(index, t))] = x[size_t(i)];
    });
  }
  ASSERT_EQ(parts ? run(h, forward, source.first(), source.second(), target.first(), target.second())
                  : run(h, forward, source.first(), target.first()),
            0);
  const auto same = [](const std::vector<C>& a, const std::vector<C>& b) {
    return a.empty() || memcmp(a.data(), b.data(), a.size() * sizeof(C)) == 0;
  };
  EXPECT_TRUE(same(target.all(), expected))
      << testing::PrintToString(s.lengths) << " shapes " << s.in << ", " << s.out << " count " << s.count
      << " placement " << s.placement << " ordering " << s.ordering << " storage " << s.storage << " forward "
      << forward << " threads " << threads << " users " << users;
  if (!in_place) {
    EXPECT_TRUE(same(source.all(), source_before)) << "the input was written";
  }
  if (h->thread_count > 1 && !parts && !(in_place && h->mode_flags & DFT_MODE_SLICE)) {
    EXPECT_EQ(spy().par_calls, 1);
  }
}

const Setup setups[] = {
    {{150}, dense, dense},
    {{9}, spaced, dense},
    {{9}, dense, spaced, 3},
    {{8}, interleaved, interleaved, 5},
    {{21}, interleaved, dense, 40},
    {{40}, interleaved, interleaved, 70},
    {{1}, interleaved, interleaved, 6},
    {{6}, dense, dense, 0},
    {{6}, dense, dense, -2},
    {{500}, dense, dense, 90},
    {{5, 4}, dense, dense},
    {{5, 4}, spaced, dense, 2},
    {{5, 4}, interleaved, interleaved, 3},
    {{5, 4}, transposed, spaced},
    {{1, 6}, interleaved, interleaved, 3},
    {{6, 1}, dense, dense},
    {{70, 40}, dense, dense},
    {{33, 17}, spaced, transposed, 2},
    {{3, 4, 5}, dense, dense},
    {{3, 4, 5}, spaced, dense, 2},
    {{20, 34, 3}, dense, spaced},
    {{130, 3, 4}, dense, dense},
    {{18, 2, 40}, transposed, dense},
    {{3, 2, 3, 2}, spaced, transposed, 2},
    {{2, 1, 3, 1, 2, 1, 3}, dense, spaced},
};

TYPED_TEST(Complex, EveryLayoutIsMadeOfLines) {
  for (Setup s : setups)
    for (int placement : {VAL_INPLACE, VAL_NOT_INPLACE})
      for (int ordering : {VAL_ORDERED, VAL_OUT_OF_ORDER})
        for (bool forward : {true, false})
          for (const auto& [threads, users] : {std::pair(1, 1), {3, 1}, {1, 2}}) {
            s.placement = placement;
            s.ordering = ordering;
            expect_as_by_lines<TypeParam>(s, forward, threads, users);
          }
}

TYPED_TEST(Complex, PartsApartAreLinesToo) {
  for (Setup s : setups)
    if (s.lengths.size() == 1)
      for (int placement : {VAL_INPLACE, VAL_NOT_INPLACE})
        for (bool forward : {true, false})
          for (const auto& [threads, users] : {std::pair(1, 1), {3, 1}, {1, 2}}) {
            s.placement = placement;
            s.storage = VAL_REAL_REAL;
            expect_as_by_lines<TypeParam>(s, forward, threads, users);
          }
}

TYPED_TEST(Complex, PartsApartOfTwoDimensionsOrScrambledAreNotOffered) {
  for (int placement : {VAL_INPLACE, VAL_NOT_INPLACE})
    for (bool scrambled : {false, true}) {
      Handle h(precision_for<TypeParam>, scrambled ? std::vector<int>{40} : std::vector<int>{4, 5});
      h.set(CFG_COMPLEX_STORAGE, int(VAL_REAL_REAL));
      h.set(CFG_PLACEMENT, placement);
      if (scrambled) h.set(CFG_ORDERING, int(VAL_OUT_OF_ORDER));
      h.commit();
      TypeParam data[4][40] = {};
      EXPECT_EQ(run(h, true, data[0], data[1], data[2], data[3]), STATUS_UNIMPLEMENTED);
    }
}

// Forward and backward undo each other, in whatever order the spectrum is kept.
TYPED_TEST(Complex, TheWayThereAndBack) {
  using C = complex_for<TypeParam>;
  for (const auto& lengths : {std::vector<int>{1000}, {4096}, {77}, {30, 32}, {6, 7, 8}})
    for (int ordering : {VAL_ORDERED, VAL_OUT_OF_ORDER}) {
      Handle h(precision_for<TypeParam>, lengths);
      const int n = product(lengths);
      h.set(CFG_ORDERING, ordering);
      h.set(CFG_BACKWARD_SCALE, 1.0 / n);
      h.commit();
      Guarded<C> data(n);
      std::vector<Wide> before;
      for (int i = 0; i < n; ++i) before.push_back({(data[i] = value<C>(i)).re, data[i].im});
      ASSERT_EQ(run(h, true, data.data()), 0);
      ASSERT_EQ(run(h, false, data.data()), 0);
      const auto got = [&](int k) { return Wide(data[k].re, data[k].im); };
      EXPECT_LE(relative_error(before, got), 3 * promised_error<TypeParam>(n));
    }
}

// Two transforms of a batch on the same data: nothing checks, one follows the other.
TYPED_TEST(Complex, DistanceZeroTransformsTwice) {
  using C = complex_for<TypeParam>;
  Handle twice(precision_for<TypeParam>, {20}), once(precision_for<TypeParam>, {20});
  twice.set(CFG_NUMBER_OF_TRANSFORMS, 2);
  once.set(CFG_FORWARD_SCALE, 0.5);
  twice.set(CFG_FORWARD_SCALE, 0.5);
  once.commit();
  twice.commit();
  C a[20], b[20];
  for (int i = 0; i < 20; ++i) a[i] = b[i] = value<C>(i);
  ASSERT_EQ(run(twice, true, a), 0);
  ASSERT_EQ(run(once, true, b), 0);
  ASSERT_EQ(run(once, true, b), 0);
  EXPECT_EQ(memcmp(a, b, sizeof a), 0);
}

}  // namespace
