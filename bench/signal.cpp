// Cases of the signal transforms: complex data, forward, from sixteen numbers to a million. The kernels are
// called as they stand in the kernel library beside ours; the peer is FFTW, planned by measurement, with
// whatever instructions it finds on the machine.
#include <dlfcn.h>

#include <cmath>
#include <filesystem>
#include <vector>

#include "bench/case.h"
#include "bench/operand.h"
#include "orb/signal.h"

namespace orb::bench {
namespace {

struct Row {
  int n;
  bool quick;
};
constexpr Row rows[] = {{16, true},     {64, false},    {256, false},  {1000, true},    {1009, false},
                        {1024, true},   {1536, false},  {4096, false}, {10000, false},  {16384, true},
                        {30030, false}, {65521, false}, {65536, true}, {262144, false}, {1048576, false}};

// The kernel library beside liborb.so, whose services it asks for by name.
const Library* kernels_of(const Library& ours) {
  static const std::optional<Library> kernels = [&]() -> std::optional<Library> {
    const char* const named = std::getenv("ORB_KERNEL_PATH");
    std::filesystem::path path = named ? named : std::filesystem::path(ours.path).parent_path();
    if (std::filesystem::is_directory(path)) path /= "liborb_t7.so";
    if (!dlopen(ours.path.c_str(), RTLD_NOW | RTLD_GLOBAL | RTLD_NOLOAD)) return {};
    std::string why;
    return Library::open(ours.name, path, why);
  }();
  return kernels ? &*kernels : nullptr;
}

template <class T>
struct Names;
template <>
struct Names<float> {
  static constexpr const char *make = "t7_vspsDFTInitAlloc_C_32fc", *run = "t7_vspsDFTFwd_CToC_32fc",
                              *bytes = "t7_vspsDFTGetBufSize_C_32fc", *release = "t7_vspsDFTFree_C_32fc",
                              *plan = "fftwf_plan_dft_1d", *execute = "fftwf_execute_dft",
                              *destroy = "fftwf_destroy_plan";
};
template <>
struct Names<double> {
  static constexpr const char *make = "t7_vspsDFTInitAlloc_C_64fc", *run = "t7_vspsDFTFwd_CToC_64fc",
                              *bytes = "t7_vspsDFTGetBufSize_C_64fc", *release = "t7_vspsDFTFree_C_64fc",
                              *plan = "fftw_plan_dft_1d", *execute = "fftw_execute_dft",
                              *destroy = "fftw_destroy_plan";
};

// One library's transform of n numbers, made ready.
template <class T>
class Transform {
 public:
  using C = std::complex<T>;
  using N = Names<T>;
  virtual ~Transform() = default;
  virtual void run(const C* in, C* out) = 0;
  static std::unique_ptr<Transform> of(const Library& library, int n);
};

template <class T>
class Ours : public Transform<T> {
 public:
  using typename Transform<T>::C;
  using typename Transform<T>::N;
  Ours(const Library& kernels, int n)
      : run_(kernels.find<VspStatus(const C*, C*, const VspsDFTSpec*, void*)>(N::run)),
        release_(kernels.find<VspStatus(VspsDFTSpec*)>(N::release)) {
    int bytes = 0;
    if (kernels.find<VspStatus(VspsDFTSpec**, int, int, int)>(N::make)(&spec_, n, VSP_FFT_NODIV_BY_ANY, 0))
      throw std::bad_alloc();
    kernels.find<VspStatus(const VspsDFTSpec*, int*)>(N::bytes)(spec_, &bytes);
    buffer_.resize(std::size_t(bytes));
  }
  ~Ours() override { release_(spec_); }
  void run(const C* in, C* out) override { run_(in, out, spec_, buffer_.data()); }

 private:
  VspStatus (*run_)(const C*, C*, const VspsDFTSpec*, void*);
  VspStatus (*release_)(VspsDFTSpec*);
  VspsDFTSpec* spec_ = nullptr;
  std::vector<char> buffer_;
};

template <class T>
class Fftw : public Transform<T> {
 public:
  using typename Transform<T>::C;
  using typename Transform<T>::N;
  Fftw(const Library& library, int n)
      : execute_(library.find<void(void*, const C*, C*)>(N::execute)),
        destroy_(library.find<void(void*)>(N::destroy)) {
    Array<C> in{std::size_t(n)}, out{std::size_t(n)};  // planning writes into them
    constexpr unsigned measure = 0;
    plan_ = library.find<void*(int, C*, C*, int, unsigned)>(N::plan)(n, in.data(), out.data(), -1, measure);
  }
  ~Fftw() override { destroy_(plan_); }
  void run(const C* in, C* out) override { execute_(plan_, in, out); }

 private:
  void (*execute_)(void*, const C*, C*);
  void (*destroy_)(void*);
  void* plan_;
};

template <class T>
std::unique_ptr<Transform<T>> Transform<T>::of(const Library& library, int n) {
  if (library.find<void>(N::plan)) return std::make_unique<Fftw<T>>(library, n);
  if (!library.find<void>("orb_serv_getversionstring")) return nullptr;
  const Library* const kernels = kernels_of(library);
  if (!kernels || !kernels->find<void>(N::make)) return nullptr;
  return std::make_unique<Ours<T>>(*kernels, n);
}

template <class T>
class TransformExperiment : public Experiment {
 public:
  using C = std::complex<T>;
  explicit TransformExperiment(int n) : n_(n), in_(std::size_t(n)), out_(std::size_t(n)) {
    fill_uniform(in_, 1);
    for (int k : places()) expected_.push_back(number(k));
  }
  bool offered_by(const Library& library) const override { return Transform<T>::of(library, n_) != nullptr; }
  void time(const Library& library, benchmark::State& state) override {
    const auto transform = Transform<T>::of(library, n_);
    for (auto _ : state) transform->run(in_.data(), out_.data());
  }
  // A few numbers of the result, in the root mean square, against the largest constant of the growth law that
  // any method is held to.
  double check(const Library& library) override {
    Transform<T>::of(library, n_)->run(in_.data(), out_.data());
    long double error = 0, size = 0;
    std::size_t i = 0;
    for (int k : places()) {
      error += std::norm(Wide<C>(out_[std::size_t(k)]) - expected_[i]), size += std::norm(expected_[i]);
      ++i;
    }
    const long double bound =
        1.6L * std::numeric_limits<T>::epsilon() * std::sqrt(std::log2((long double)n_));
    return over_bound(std::sqrt(error / size), 0.0L, bound);
  }

 private:
  std::vector<int> places() const { return {1, n_ / 3, n_ / 2, n_ - 1}; }
  Wide<C> number(int k) const {
    const long double unit = -2 * std::acos(-1.0L) / n_;
    Wide<C> sum = 0;
    for (int j = 0; j < n_; ++j)
      sum += Wide<C>(in_[std::size_t(j)]) * std::polar(1.0L, unit * (long double)((long long)j * k % n_));
    return sum;
  }
  int n_;
  Array<C> in_, out_;
  std::vector<Wide<C>> expected_;
};

template <class T>
void add_type(std::vector<Case>& cases) {
  const std::string letter = letter_of<std::complex<T>>();
  for (const Row& row : rows)
    cases.push_back({.group = "transforms, " + letter,
                     .family = "transforms",
                     .routine = "dft",
                     .type = letter,
                     .entry = letter + "dft",
                     .shape = "n " + std::to_string(row.n),
                     .alignment = "16",
                     .work = transform_operations(row.n),
                     .footprint = 4.0 * row.n * sizeof(T),
                     .quick = row.quick,
                     .abscissa = (row.n & (row.n - 1)) == 0 ? row.n : 0,
                     .set_up = [row] { return std::make_unique<TransformExperiment<T>>(row.n); }});
}

}  // namespace

void add_signal(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
}

}  // namespace orb::bench
