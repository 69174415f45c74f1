// Choice of the factors and their order, and the tables of the passes.
#include "signal/kernel/dft/plan.h"

#include "signal/kernel/dft/base.h"
#include "signal/kernel/dft/passes.h"

namespace orb::signal {
namespace {

// Fours first, a two, then odd factors by trial up to 150. Returns how many, 0 if what is left is too large.
int factor(int n, int (&factors)[32]) {
  int count = 0;
  for (; n % 4 == 0; n /= 4) factors[count++] = 4;
  if (n % 2 == 0) factors[count++] = 2, n /= 2;
  for (int candidate = 3; n >= 9 && candidate <= most_factor && candidate * candidate <= n;)
    if (n % candidate == 0)
      factors[count++] = candidate, n /= candidate;
    else
      candidate += 2;
  if (n > 1) factors[count++] = n;
  return n > most_factor || count < 2 ? 0 : count;
}

bool has_fixed_code(int factor) { return factor <= 5 || factor == 7 || factor == 11; }

// How good a factor is at the end of a plan, where its columns are one number wide: its own length is the
// width of the pass before, so it should fill registers; a register's own width is best.
template <class T>
int merit_at_the_end(int factor) {
  constexpr int lanes = vector_of<T>::lanes;
  if (factor == 4) return 1000;
  if (factor == lanes) return 999;
  if (factor < lanes) return factor;
  return has_fixed_code(factor) ? 500 - factor : 200 - factor;
}

// The best factor goes last, the others in falling order: the first pass has no twiddles to multiply with.
template <class T>
void arrange(int (&factors)[32], int count) {
  int best = 0;
  for (int i = 1; i < count; ++i)
    if (merit_at_the_end<T>(factors[i]) > merit_at_the_end<T>(factors[best])) best = i;
  const int last = factors[best];
  factors[best] = factors[count - 1];
  for (int i = 1; i < count - 1; ++i)
    for (int j = i; j > 0 && factors[j] > factors[j - 1]; --j) {
      const int f = factors[j];
      factors[j] = factors[j - 1], factors[j - 1] = f;
    }
  factors[count - 1] = last;
}

// Direct code takes over where a pass runs in single numbers.
template <class T>
bool needs_direct_table(const PlanEntry<T>& e) {
  return !has_fixed_code(e.factor) || (e.lanes == 1 && e.factor > 4);
}

template <class T>
int last_registers(const PlanEntry<T>& e, int rows) {
  return (rows + e.lanes - 1) / e.lanes;
}

// Writes the tables of one pass after another, or only counts what they take.
template <class T>
class TableWriter {
 public:
  TableWriter(const complex_of<T>* base, int base_length, T* to)
      : base_(base), length_(base_length), at_(to) {}
  int count() const { return count_; }

  // Every lane the same root: row by row.
  void pass(PlanEntry<T>& e) {
    e.lanes = e.remaining >= full ? full : 1;
    e.twiddles = start();
    if (e.done > 1)
      for (int k = 0; k < e.done; ++k) multiples(e, [=](int) { return k; });
    direct(e);
  }
  // The last pass over `rows` rows: each lane its own row, the last register perhaps over rows of the one
  // before.
  void last(PlanEntry<T>& e, int rows) {
    e.lanes = rows >= full ? full : 1;
    e.twiddles = start();
    for (int g = 0; g < last_registers(e, rows); ++g) {
      const int k = g * e.lanes + e.lanes <= rows ? g * e.lanes : rows - e.lanes;
      multiples(e, [=](int lane) { return k + lane; });
    }
    direct(e);
  }

 private:
  static constexpr int full = vector_of<T>::lanes;

  // The place of the next value, on a register's boundary: the block stands on one.
  T* start() {
    count_ = (count_ + full - 1) / full * full;
    return at_ ? at_ + count_ : nullptr;
  }
  void put(int lanes, auto root) {
    if (at_)
      for (int lane = 0; lane < lanes; ++lane) {
        const auto w = base_[root(lane)];
        at_[count_ + lane] = w.re, at_[count_ + lanes + lane] = w.im;
      }
    count_ += 2 * lanes;
  }
  void multiples(const PlanEntry<T>& e, auto row) {
    const int unit = length_ / (e.done * e.factor);
    for (int r = 1; r < e.factor; ++r) put(e.lanes, [=](int lane) { return row(lane) * r * unit; });
  }
  void direct(PlanEntry<T>& e) {
    if (!needs_direct_table(e)) return;
    e.direct_table = start();
    // the sines positive: those of the mirrored roots
    for (int k = 0; k < e.factor; ++k)
      put(e.lanes, [=, this](int) { return (e.factor - k) % e.factor * (length_ / e.factor); });
  }

  const complex_of<T>* const base_;
  const int length_;
  T* const at_;
  int count_ = 0;
};

template <class T>
int write_tables(DftSpec<T>& spec, TableWriter<T> writer, bool odd_real) {
  for (int i = 0; i < spec.last_factor; ++i) writer.pass(spec.plan[i]);
  auto& last = spec.plan[spec.last_factor];
  writer.last(last, last.done);
  if (odd_real) {
    spec.real_last = last;
    writer.last(spec.real_last, last.done / 2 + 1);
  }
  return writer.count();
}

}  // namespace

template <class T>
bool make_plan(DftSpec<T>& spec, int n) {
  int factors[32];
  const int count = factor(n, factors);
  if (count == 0) return false;
  arrange<T>(factors, count);
  int done = 1;
  for (int i = 0; i < count; ++i) {
    auto& e = spec.plan[i];
    e.factor = factors[i], e.done = done;
    done *= factors[i];
    e.remaining = n / done;
  }
  spec.has_factors = 1;
  spec.last_factor = count - 1;
  return true;
}

template <class T>
bool make_plan_tables(DftSpec<T>& spec, const complex_of<T>* base, int base_length, bool odd_real) {
  const int values = write_tables(spec, TableWriter<T>(base, base_length, nullptr), odd_real);
  spec.plan_tables = allocate_table<T>(values);
  if (!spec.plan_tables) return false;
  write_tables(spec, TableWriter<T>(base, base_length, spec.plan_tables), odd_real);
  return true;
}

template bool make_plan(DftSpec<float>&, int);
template bool make_plan(DftSpec<double>&, int);
template bool make_plan_tables(DftSpec<float>&, const c32*, int, bool);
template bool make_plan_tables(DftSpec<double>&, const c64*, int, bool);

}  // namespace orb::signal
