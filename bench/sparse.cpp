// Cases of the sparse front: a grid Laplacian, whose rows are short and orderly, and a random matrix. Data of
// products are small integers, exact in any order; solutions are judged by their residual.
#include <algorithm>
#include <cstdio>
#include <map>

#include "bench/case.h"
#include "bench/operand.h"
#include "orb/sparse.h"

namespace orb::bench {
namespace {

enum class Job { mv, mm, sv, sm };

struct Row {
  Job job;
  char op;
  const char* matrix;  // description
  bool grid, quick;
};
constexpr Row rows[] = {
    {Job::mv, 'N', "G  C  ", true, true},  {Job::mv, 'N', "G  C  ", false, false},
    {Job::mv, 'T', "G  C  ", true, false}, {Job::mv, 'T', "G  C  ", false, false},
    {Job::mv, 'N', "SLNC  ", true, true},  {Job::mv, 'N', "SLNC  ", false, false},
    {Job::mm, 'N', "G  C  ", true, true},  {Job::mm, 'N', "G  C  ", false, false},
    {Job::mm, 'N', "G  F  ", true, true},  {Job::mm, 'N', "G  F  ", false, false},
    {Job::mm, 'T', "G  C  ", true, false}, {Job::mm, 'T', "G  C  ", false, false},
    {Job::mm, 'T', "G  F  ", true, false}, {Job::mm, 'T', "G  F  ", false, false},
    {Job::mm, 'N', "SLNC  ", true, false}, {Job::mm, 'N', "SLNC  ", false, false},
    {Job::sv, 'N', "TLNC  ", true, true},  {Job::sv, 'N', "TLNC  ", false, false},
    {Job::sv, 'N', "TUNC  ", true, false}, {Job::sv, 'N', "TUNC  ", false, false},
    {Job::sm, 'N', "TLNC  ", true, true},  {Job::sm, 'N', "TLNC  ", false, false},
    {Job::sm, 'N', "TUNC  ", true, false}, {Job::sm, 'N', "TUNC  ", false, false},
};
constexpr int dense_columns = 8;

constexpr bool solves(Job job) { return job == Job::sv || job == Job::sm; }
constexpr bool has_columns(Job job) { return job == Job::mm || job == Job::sm; }

// Square, rows ascending by column: all of it, or the triangle that the description names.
struct Pattern {
  int m;
  std::vector<int> columns, begin{0};

  bool takes(const Row& row, int i, int c) const {
    const bool half = row.matrix[0] == 'S' || row.matrix[0] == 'T';
    return !half || (row.matrix[1] == 'L' ? c <= i : c >= i);
  }
  void add(const Row& row, int i, std::vector<int> cs) {
    std::sort(cs.begin(), cs.end());
    cs.erase(std::unique(cs.begin(), cs.end()), cs.end());
    for (int c : cs)
      if (takes(row, i, c)) columns.push_back(c);
    begin.push_back(int(columns.size()));
  }
};
Pattern grid(const Row& row) {
  constexpr int side = 300;
  Pattern p{side * side, {}};
  for (int i = 0; i < p.m; ++i) {
    std::vector<int> cs = {i};
    if (i >= side) cs.push_back(i - side);
    if (i % side) cs.push_back(i - 1);
    if (i % side < side - 1) cs.push_back(i + 1);
    if (i < p.m - side) cs.push_back(i + side);
    p.add(row, i, cs);
  }
  return p;
}
Pattern random(const Row& row) {
  Pattern p{50000, {}};
  std::minstd_rand next(1);
  for (int i = 0; i < p.m; ++i) {
    std::vector<int> cs = {i};
    for (int k = 1; k < 20; ++k) cs.push_back(int(next() >> 4) % p.m);
    p.add(row, i, cs);
  }
  return p;
}
// Large patterns are made once.
const Pattern& pattern(const Row& row) {
  static std::map<std::string, Pattern> made;
  const std::string key = std::string(row.matrix, 2) + (row.grid ? "grid" : "random");
  const auto found = made.find(key);
  return found != made.end() ? found->second
                             : made.emplace(key, row.grid ? grid(row) : random(row)).first->second;
}

template <class T>
struct OrbType {
  using type = T;
};
template <>
struct OrbType<std::complex<float>> {
  using type = orb_complex_float;
};
template <>
struct OrbType<std::complex<double>> {
  using type = orb_complex_double;
};

template <class T>
class SparseExperiment : public Experiment {
  using O = typename OrbType<T>::type;
  using Mv = void(char, int, int, O, const char*, const O*, const int*, const int*, const int*, const O*, O,
                  O*);
  using Mm = void(char, int, int, int, O, const char*, const O*, const int*, const int*, const int*, const O*,
                  int, O, O*, int);
  using Sv = void(char, int, O, const char*, const O*, const int*, const int*, const int*, const O*, O*);
  using Sm = void(char, int, int, O, const char*, const O*, const int*, const int*, const int*, const O*, int,
                  O*, int);

 public:
  explicit SparseExperiment(const Row& row)
      : row_(row),
        pattern_(pattern(row)),
        columns_(pattern_.columns.size()),
        begin_(pattern_.begin.size()),
        values_(columns_.size()),
        x_(size_t(pattern_.m * n_)),
        y_(x_.size()) {
    const int base = by_columns();
    std::transform(pattern_.columns.begin(), pattern_.columns.end(), columns_.begin(),
                   [=](int c) { return c + base; });
    std::transform(pattern_.begin.begin(), pattern_.begin.end(), begin_.begin(),
                   [=](int b) { return b + base; });
    for (int i = 0; i < pattern_.m; ++i)
      for (int k = pattern_.begin[size_t(i)]; k < pattern_.begin[size_t(i) + 1]; ++k)
        values_[size_t(k)] = value(i, pattern_.columns[size_t(k)]);
    fill(x_, 1);
  }

  static std::string entry(const Row& row) {
    const char* const jobs[] = {"csrmv", "csrmm", "csrsv", "csrsm"};
    return letter_of<T>() + jobs[int(row.job)];
  }
  bool offered_by(const Library& library) const override {
    return library.find<void()>("orb_" + entry(row_)) != nullptr;
  }
  void time(const Library& library, benchmark::State& state) override {
    fill(y_, 2);
    const auto run = call(library);
    for (auto _ : state) run();
  }
  double check(const Library& library) override {
    fill(y_, 2);
    const Array<T>& x = x_;
    std::vector<Wide<T>> expected(y_.begin(), y_.end());
    if (!solves(row_.job))
      product([&](size_t r, size_t c, auto v) { expected[r] += v * Wide<T>(x[c]) / 2.0L; });
    call(library)();
    if (solves(row_.job)) return residual();
    for (size_t i = 0; i < expected.size(); ++i)
      if (Wide<T>(y_[i]) != expected[i]) return std::numeric_limits<double>::infinity();
    return 0;
  }

 private:
  bool by_columns() const { return row_.matrix[3] == 'F'; }
  T value(int i, int c) const {
    if (!solves(row_.job)) return T(Real<T>((i + c) % 7 - 3));
    return c == i ? T(4) : T(Real<T>((i * 3 + c) % 5 - 2)) / T(16);  // solutions stay of the size of x
  }
  static void fill(Array<T>& array, unsigned seed) {
    std::minstd_rand next(seed);
    for (T& e : array) e = T(Real<T>(int(next() >> 8) % 9 - 4)) * T(2);
  }
  // f(place in y, place in x, value) for every term of every column.
  template <class F>
  void product(F f) const {
    const auto at = [&](int r, int j) { return size_t(by_columns() ? j * pattern_.m + r : r * n_ + j); };
    for (int i = 0; i < pattern_.m; ++i)
      for (int k = pattern_.begin[size_t(i)]; k < pattern_.begin[size_t(i) + 1]; ++k) {
        const int c = pattern_.columns[size_t(k)];
        const Wide<T> v(values_[size_t(k)]);
        for (int j = 0; j < n_; ++j) {
          row_.op == 'T' ? f(at(c, j), at(i, j), v) : f(at(i, j), at(c, j), v);
          if (row_.matrix[0] == 'S' && c != i) f(at(c, j), at(i, j), v);
        }
      }
  }
  // |A y - x| over the bound of substitution, (terms + 3) u |A| |y| in each row.
  double residual() const {
    std::vector<Wide<T>> difference;
    for (const T& e : x_) difference.push_back(-Wide<T>(e));
    std::vector<long double> size(difference.size()), terms(size.size(), 3);
    product([&](size_t r, size_t c, auto v) {
      difference[r] += v * Wide<T>(y_[c]);
      size[r] += std::abs(v * Wide<T>(y_[c]));
      terms[r] += 1;
    });
    double worst = 0;
    for (size_t i = 0; i < size.size(); ++i)
      worst = std::max(worst, over_bound(difference[i], Wide<T>(0), terms[i] * unit_roundoff<T>() * size[i]));
    return worst;
  }

  std::function<void()> call(const Library& library) {
    const std::string name = "orb_" + entry(row_);
    const O *values = as(values_.data()), *x = as(x_.data());
    const int *columns = columns_.data(), *begin = begin_.data(), m = pattern_.m;
    O *y = as(y_.data()), half = number(0.5), one = number(1);
    const int ld = by_columns() ? m : n_;
    const Row& r = row_;
    switch (row_.job) {
      case Job::mv:
        return [=, f = library.find<Mv>(name)] {
          f(r.op, m, m, half, r.matrix, values, columns, begin, begin + 1, x, one, y);
        };
      case Job::mm:
        return [=, f = library.find<Mm>(name)] {
          f(r.op, m, dense_columns, m, half, r.matrix, values, columns, begin, begin + 1, x, ld, one, y, ld);
        };
      case Job::sv:
        return [=, f = library.find<Sv>(name)] {
          f(r.op, m, one, r.matrix, values, columns, begin, begin + 1, x, y);
        };
      default:
        return [=, f = library.find<Sm>(name)] {
          f(r.op, m, dense_columns, one, r.matrix, values, columns, begin, begin + 1, x, ld, y, ld);
        };
    }
  }
  static O* as(T* p) { return reinterpret_cast<O*>(p); }
  static O number(double x) {
    T value = T(Real<T>(x));
    return *as(&value);
  }

  Row row_;
  const Pattern& pattern_;
  const int n_ = has_columns(row_.job) ? dense_columns : 1;
  Array<int> columns_, begin_;
  Array<T> values_, x_, y_;
};

template <class T>
void add_type(std::vector<Case>& cases) {
  for (const Row& row : rows) {
    const Pattern& p = pattern(row);
    const double entries = double(p.columns.size()), n = has_columns(row.job) ? dense_columns : 1;
    const double terms = row.matrix[0] == 'S' ? 2 * entries - p.m : entries;
    char shape[64];
    std::snprintf(shape, sizeof shape, "%c %.4s %s%s", row.op, row.matrix,
                  row.grid ? "grid 300x300" : "random 50000", has_columns(row.job) ? " x 8" : "");
    cases.push_back(
        {.group = "sparse, " + letter_of<T>(),
         .family = "sparse",
         .routine = SparseExperiment<T>::entry(row).substr(1),
         .type = letter_of<T>(),
         .entry = SparseExperiment<T>::entry(row),
         .shape = shape,
         .alignment = "16",
         .work = {2 * (Scalar<T>::is_complex ? 4 : 1) * terms * n, Unit::gflops},
         .footprint = entries * (sizeof(T) + sizeof(int)) + p.m * (2 * n * sizeof(T) + sizeof(int)),
         .quick = row.quick,
         .abscissa = 0,
         .set_up = [row] { return std::make_unique<SparseExperiment<T>>(row); }});
  }
}

}  // namespace

void add_sparse(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
  add_type<std::complex<float>>(cases);
  add_type<std::complex<double>>(cases);
}

}  // namespace orb::bench
