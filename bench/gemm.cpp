// Cases of the matrix product. Operands are small integers, so that every order of additions gives the same
// exact result, and a library is right when it matches the plain product to the bit.
#include <cstdio>

#include "bench/case.h"
#include "bench/operand.h"

namespace orb::bench {
namespace {

struct Row {
  char transa, transb;
  int m, n, k, beta;
  bool quick, on_curve;
};
constexpr Row rows[] = {
    {'N', 'N', 4, 4, 4, 1, false, true},           {'N', 'N', 8, 8, 8, 1, true, true},
    {'N', 'N', 16, 16, 16, 1, false, true},        {'N', 'N', 32, 32, 32, 1, false, true},
    {'N', 'N', 64, 64, 64, 1, true, true},         {'N', 'N', 128, 128, 128, 1, false, true},
    {'N', 'N', 256, 256, 256, 1, true, true},      {'N', 'N', 512, 512, 512, 1, false, true},
    {'N', 'N', 1000, 1000, 1000, 1, false, true},  {'N', 'N', 8, 8, 8, 0, false, false},
    {'N', 'N', 64, 64, 64, 0, false, false},       {'N', 'N', 256, 256, 256, 0, false, false},
    {'N', 'N', 1000, 1000, 1000, 0, false, false}, {'N', 'T', 16, 16, 16, 1, false, false},
    {'T', 'N', 16, 16, 16, 1, false, false},       {'T', 'T', 16, 16, 16, 1, false, false},
    {'N', 'T', 64, 64, 64, 1, false, false},       {'T', 'N', 64, 64, 64, 1, true, false},
    {'T', 'T', 64, 64, 64, 1, false, false},       {'N', 'T', 512, 512, 512, 1, false, false},
    {'T', 'N', 512, 512, 512, 1, false, false},    {'T', 'T', 512, 512, 512, 1, false, false},
    {'N', 'N', 2000, 32, 128, 1, true, false},     {'N', 'N', 32, 2000, 128, 1, true, false},
    {'N', 'N', 1000, 1000, 32, 1, true, false},
};

// The two trailing lengths of the option strings are Fortran's; a library that has none does not see them.
template <class T>
using Entry = void(const char*, const char*, const int*, const int*, const int*, const T*, const T*,
                   const int*, const T*, const int*, const T*, T*, const int*, int, int);

template <class T>
void fill_integers(Array<T>& array, unsigned seed) {
  std::minstd_rand random(seed);
  for (T& element : array) element = T(int(random() >> 8) % 9) - 4;
}

template <class T>
class ProductExperiment : public Experiment {
 public:
  explicit ProductExperiment(const Row& row)
      : row_(row), a_(product(row.m, row.k)), b_(product(row.k, row.n)), c_(product(row.m, row.n)) {
    fill_integers(a_, 1);
    fill_integers(b_, 2);
  }

  bool offered_by(const Library& library) const override { return entry(library); }

  void time(const Library& library, benchmark::State& state) override {
    auto* gemm = entry(library);
    fill_integers(c_, 3);
    for (auto _ : state) call(gemm);
  }

  double check(const Library& library) override {
    start_result(c_);
    if (expected_.empty()) expected_ = plain_product();
    call(entry(library));
    const bool same = std::equal(c_.begin(), c_.end(), expected_.begin());
    return same ? 0 : std::numeric_limits<double>::infinity();
  }

 private:
  static std::size_t product(int a, int b) { return std::size_t(a) * std::size_t(b); }
  static auto* entry(const Library& library) { return library.find<Entry<T>>(letter_of<T>() + "gemm_"); }
  int lda() const { return row_.transa == 'N' ? row_.m : row_.k; }
  int ldb() const { return row_.transb == 'N' ? row_.k : row_.n; }

  void call(Entry<T>* gemm) {
    const int leading_a = lda(), leading_b = ldb();
    const T beta = T(row_.beta);
    gemm(&row_.transa, &row_.transb, &row_.m, &row_.n, &row_.k, &alpha_, a_.data(), &leading_a, b_.data(),
         &leading_b, &beta, c_.data(), &row_.m, 1, 1);
  }

  // With a beta of zero C may not be read: a NaN in it would show.
  void start_result(Array<T>& c) const {
    if (row_.beta == 0)
      std::fill(c.begin(), c.end(), std::numeric_limits<T>::quiet_NaN());
    else
      fill_integers(c, 3);
  }

  // Columns of C as sums of columns of op(A).
  std::vector<T> plain_product() const {
    std::vector<T> c(c_.begin(), c_.end());
    if (row_.beta == 0) std::fill(c.begin(), c.end(), T(0));
    const std::size_t m = std::size_t(row_.m), n = std::size_t(row_.n), k = std::size_t(row_.k);
    const std::size_t leading_b = std::size_t(ldb());
    const std::vector<T> a = columns_of_a();
    for (std::size_t j = 0; j < n; ++j)
      for (std::size_t p = 0; p < k; ++p) {
        const T factor = alpha_ * (row_.transb == 'N' ? b_[p + j * leading_b] : b_[j + p * leading_b]);
        for (std::size_t i = 0; i < m; ++i) c[i + j * m] += factor * a[i + p * m];
      }
    return c;
  }

  std::vector<T> columns_of_a() const {
    std::vector<T> a(a_.begin(), a_.end());
    if (row_.transa == 'N') return a;
    const std::size_t m = std::size_t(row_.m), k = std::size_t(row_.k);
    for (std::size_t p = 0; p < k; ++p)
      for (std::size_t i = 0; i < m; ++i) a[i + p * m] = a_[p + i * k];
    return a;
  }

  Row row_;
  T alpha_ = T(0.5);  // exact, and no value that a library might treat apart
  Array<T> a_, b_, c_;
  std::vector<T> expected_;
};

std::string shape_of(const Row& row) {
  char text[64];
  std::snprintf(text, sizeof text, "%c%c %dx%dx%d beta %d", row.transa, row.transb, row.m, row.n, row.k,
                row.beta);
  return text;
}

template <class T>
void add_type(std::vector<Case>& cases) {
  for (const Row& row : rows) {
    const double elements = double(row.m) * row.k + double(row.k) * row.n + double(row.m) * row.n;
    cases.push_back({.group = "gemm, " + letter_of<T>(),
                     .family = "gemm",
                     .routine = "gemm",
                     .type = letter_of<T>(),
                     .entry = letter_of<T>() + "gemm",
                     .shape = shape_of(row),
                     .alignment = "16",
                     .work = product_operations(row.m, row.n, row.k),
                     .footprint = elements * sizeof(T),
                     .quick = row.quick,
                     .abscissa = row.on_curve ? row.n : 0,
                     .set_up = [row] { return std::make_unique<ProductExperiment<T>>(row); }});
  }
}

}  // namespace

void add_gemm(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
}

}  // namespace orb::bench
