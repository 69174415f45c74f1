// Cases of the vector routines: unit strides, all four types, from ten elements to a million.
#include "bench/case.h"
#include "bench/level1_routines.h"

namespace orb::bench {
namespace {

struct Row {
  int n;
  std::size_t y_offset;  // bytes from a 16-byte boundary; x is on one
  const char* alignment;
  bool quick;
};
constexpr Row rows[] = {
    {10, 0, "16", false},    {100, 0, "16", true},   {1000, 0, "16", false},
    {1000, 8, "16+8", true}, {10000, 0, "16", true}, {1000000, 0, "16", false},
};

template <class Routine, class T>
class VectorExperiment : public Experiment {
 public:
  explicit VectorExperiment(const Row& row) : row_(row), vectors_(row.n, row.y_offset, windows()) {}

  bool offered_by(const Library& library) const override { return entry(library); }

  void time(const Library& library, benchmark::State& state) override {
    auto* routine = entry(library);
    vectors_.reset();
    for (auto _ : state) Routine::template call<T>(routine, vectors_);
  }

  double check(const Library& library) override {
    const Vectors<T> before(row_.n, row_.y_offset, windows());
    vectors_.reset();
    Routine::template call<T>(entry(library), vectors_);
    return Routine::template error<T>(before, vectors_);
  }

 private:
  static constexpr int windows() {
    if constexpr (requires { Routine::windows; }) return Routine::windows;
    return 1;
  }
  static std::string symbol() {
    const std::string entry = Routine::entries[Scalar<T>::index];
    if constexpr (requires { Routine::symbol(entry); }) return Routine::symbol(entry);
    return entry + '_';
  }
  auto* entry(const Library& library) const {
    return library.find<typename Routine::template Entry<T>>(symbol());
  }
  Row row_;
  Vectors<T> vectors_;
};

template <class Routine, class T>
void add_routine(std::vector<Case>& cases) {
  const int vectors = Routine::two_vectors ? 2 : 1;
  for (const Row& row : rows) {
    if (row.y_offset && !Routine::two_vectors) continue;
    cases.push_back({.group = "level 1, " + letter_of<T>(),
                     .family = "level-1",
                     .routine = Routine::routine,
                     .type = letter_of<T>(),
                     .entry = Routine::entries[Scalar<T>::index],
                     .shape = "n " + std::to_string(row.n),
                     .alignment = row.alignment,
                     .work = vector_traffic(Routine::passes, row.n, sizeof(T)),
                     .footprint = double(vectors) * row.n * sizeof(T),
                     .quick = row.quick,
                     .abscissa = row.y_offset ? 0 : row.n,
                     .set_up = [row] { return std::make_unique<VectorExperiment<Routine, T>>(row); }});
  }
}

template <class T>
void add_type(std::vector<Case>& cases) {
  add_routine<Axpy, T>(cases);
  add_routine<Dot, T>(cases);
  add_routine<Scal, T>(cases);
  add_routine<Copy, T>(cases);
  add_routine<Swap, T>(cases);
  add_routine<Asum, T>(cases);
  add_routine<Nrm2, T>(cases);
  add_routine<Iamax, T>(cases);
  add_routine<Rot, T>(cases);
}

}  // namespace

void add_level1(std::vector<Case>& cases) {
  add_type<float>(cases);
  add_type<double>(cases);
  add_type<std::complex<float>>(cases);
  add_type<std::complex<double>>(cases);
}

}  // namespace orb::bench
