// orb-accuracy [FOLDER]: errors of the forward complex transform against one in 80 bits, as a table and as
// FOLDER/accuracy.svg. Exit status 0: all errors are below what is promised; 1: one is not; 2: a transform or
// the picture could not be made.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <string>

#include "bench/exact_transform.h"
#include "orb/dfti.h"
#include "tour/gnuplot.h"

namespace orb::bench {
namespace {

// Lengths of one kind, and the promise for it: c eps sqrt(log2 n), relative, in the root mean square.
struct Kind {
  const char* name;
  double c;
  std::vector<int> lengths;
};

std::vector<Kind> kinds() {
  std::vector<int> powers;
  for (int n = 2; n <= 1 << 20; n *= 2) powers.push_back(n);
  return {
      {"power of two", 0.6, powers},
      {"composite", 1.6, {6,     10,    12,     15,     36,     60,     100,    210,    343,
                          500,   1000,  1001,   2310,   2820,   4913,   6561,   10000,  15625,
                          30030, 50000, 100000, 161051, 177147, 362880, 510510, 1000000}},
      {"prime", 1.6, {3,   5,    7,    11,   13,    17,    23,    31,    47,     61,     97,     127,   251,
                      499, 1009, 2003, 4999, 10007, 20011, 49999, 65537, 100003, 250007, 499979, 999983}}};
}

void require(int status) {
  if (status != STATUS_OK) throw std::runtime_error(DftiErrorMessage(status));
}

template <class T>
std::vector<std::complex<T>> transformed(const Sequence& x) {
  std::vector<std::complex<T>> data(x.begin(), x.end());
  DftiRecord* descriptor = nullptr;
  require(DftiCreateDescriptor(&descriptor, sizeof(T) == 8 ? VAL_DOUBLE : VAL_SINGLE, VAL_COMPLEX, 1,
                               int(x.size())));
  int status = DftiCommitDescriptor(descriptor);
  if (status == STATUS_OK) status = DftiComputeForward(descriptor, data.data());
  DftiFreeDescriptor(&descriptor);
  require(status);
  return data;
}

template <class T>
Sequence input(int n, std::mt19937& chance) {
  std::normal_distribution<T> part;
  Sequence x;
  for (int j = 0; j < n; ++j) {
    const T re = part(chance), im = part(chance);
    x.emplace_back(re, im);
  }
  return x;
}

// In units of eps. Short transforms are many, so that a thousand outputs count.
template <class T>
double error_of(int n) {
  std::mt19937 chance{unsigned(n)};
  long double error = 0, size = 0;
  for (int outputs = 0; outputs < 1000; outputs += n) {
    const Sequence x = input<T>(n, chance);
    const Outputs exact = exact_transform(x, chance);
    const auto got = transformed<T>(x);
    for (std::size_t i = 0; i < exact.places.size(); ++i) {
      error += std::norm(Wide(got[exact.places[i]]) - exact.values[i]);
      size += std::norm(exact.values[i]);
    }
  }
  return double(std::sqrt(error / size)) / std::numeric_limits<T>::epsilon();
}

struct Row {
  int n;
  double single, twice;
};

// Measures and prints one kind; the number of errors beyond the promise goes to `wrong`.
std::vector<Row> measure(const Kind& kind, int& wrong) {
  std::vector<Row> rows;
  for (int n : kind.lengths) {
    const Row row{n, error_of<float>(n), error_of<double>(n)};
    const double promise = kind.c * std::sqrt(std::log2(n));
    const bool right = row.single <= promise && row.twice <= promise;
    if (!right) ++wrong;
    std::printf("%-13s %8d %10.3f %10.3f %10.3f%s\n", kind.name, n, row.single, row.twice, promise,
                right ? "" : "   WRONG");
    std::fflush(stdout);
    rows.push_back(row);
  }
  return rows;
}

constexpr char panels[] = R"(set multiplot layout 1,2
set logscale x 2
set format x '2^{%L}'
set xtics 2,16
set xrange [1.5:1500000]
set yrange [0:10]
set grid linecolor '#dddddd'
set tics nomirror
set ytics 2
set key top left reverse Left
set samples 24
set xlabel 'n'
do for [column = 2:3] {
  set title (column == 2 ? 'single precision, eps = 2^{-23}' : 'double precision, eps = 2^{-52}')
  set ylabel 'relative error, root mean square, in eps'
  plot 1.6*sqrt(log(x)/log(2)) linecolor '#888888' dashtype 2 title '1.6 sqrt(log_2 n), promised for all', \
    0.6*sqrt(log(x)/log(2)) linecolor '#888888' title '0.6 sqrt(log_2 n), promised for powers of two', \
    $kind2 using 1:column with points linecolor '#c0392b' pointtype 9 pointsize 0.8 title 'primes', \
    $kind1 using 1:column with points linecolor '#239b56' pointtype 5 pointsize 0.6 title 'composite', \
    $kind0 using 1:column with points linecolor '#2471a3' pointtype 7 pointsize 0.6 title 'powers of two'
}
unset multiplot
)";

}  // namespace
}  // namespace orb::bench

int main(int count, char** arguments) try {
  using namespace orb::bench;
  const std::filesystem::path folder = count > 1 ? arguments[1] : ".", script = folder / "accuracy.gp";
  std::ofstream out(script);
  out << "set terminal svg size 1000,420 font 'DejaVu Sans,11' background 'white'\nset output '"
      << (folder / "accuracy.svg").string() << "'\n";
  std::printf("relative errors, root mean square, in eps\n%-13s %8s %10s %10s %10s\n", "kind", "n", "single",
              "double", "promised");
  int wrong = 0, block = 0;
  for (const Kind& kind : kinds()) {
    out << "$kind" << block++ << " << END\n";
    for (const Row& row : measure(kind, wrong)) out << row.n << ' ' << row.single << ' ' << row.twice << '\n';
    out << "END\n";
  }
  out << panels;
  out.close();
  if (!out || orb::tour::run_gnuplot(script) != orb::tour::Drawn::yes)
    throw std::runtime_error("no picture: gnuplot is missing or failed; its script is " + script.string());
  std::filesystem::remove(script);
  return wrong ? 1 : 0;
} catch (const std::exception& failure) {
  return std::fprintf(stderr, "orb-accuracy: %s\n", failure.what()), 2;
}
