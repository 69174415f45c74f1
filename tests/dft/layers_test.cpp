// The layers between a descriptor and its lines: copies of columns, blocks, scratch, failures, the route of
// one line through two dimensions, tables.
#include <string.h>

#include "orb/dft_commit.h"
#include "orb/dft_compute.h"
#include "tests/dft/transform.h"
#include "tests/support/guarded.h"

using namespace orb::test;

namespace {

class Layers : public Dft {};

template <class C>
struct RowCopy {
  int width;
  void (*to_rows)(const C*, const int*, const int*, C*);
  void (*to_columns)(const C*, const int*, const int*, C*);
};
const RowCopy<c32> single_copies[] = {{1, orb_dft_dft_row_ccopy_1, orb_dft_dft_row_ccopy_back_1},
                                      {2, orb_dft_dft_row_ccopy_2, orb_dft_dft_row_ccopy_back_2},
                                      {4, orb_dft_dft_row_ccopy_4, orb_dft_dft_row_ccopy_back_4},
                                      {8, orb_dft_dft_row_ccopy_8, orb_dft_dft_row_ccopy_back_8},
                                      {16, orb_dft_dft_row_ccopy_16, orb_dft_dft_row_ccopy_back_16}};
const RowCopy<c64> double_copies[] = {{1, orb_dft_dft_row_zcopy_1, orb_dft_dft_row_zcopy_back_1},
                                      {2, orb_dft_dft_row_zcopy_2, orb_dft_dft_row_zcopy_back_2},
                                      {4, orb_dft_dft_row_zcopy_4, orb_dft_dft_row_zcopy_back_4},
                                      {8, orb_dft_dft_row_zcopy_8, orb_dft_dft_row_zcopy_back_8}};

template <class C>
void expect_copies(const RowCopy<C>& copy) {
  const int b = copy.width;
  for (int n : {0, 1, 2, 3, 7, 8, 9, 16, 31, 33})
    for (int stride : {b, b + 3, -b})
      for (int place = -1; place < 4; ++place) {
        const int step = stride < 0 ? -stride : stride, extent = n ? (n - 1) * step + b : 0;
        Guarded<C> matrix(extent, place), rows(b * n, place < 0 ? -1 : (place + 1) % 4);
        memset(matrix.data(), 0xFF, size_t(extent) * sizeof(C));  // NaN: bits are kept, gaps are left
        const int start = stride < 0 && n ? (n - 1) * step : 0;
        for (int i = 0; i < n; ++i)
          for (int c = 0; c < b; ++c) matrix[start + i * stride + c].re = part_of<C>(i * 100 + c);
        const std::vector<C> before(matrix.begin(), matrix.end());
        call(copy.to_rows, static_cast<const C*>(matrix.data() + start), &stride, &n, rows.data());
        for (int c = 0; c < b; ++c)
          for (int i = 0; i < n; ++i)
            ASSERT_EQ(memcmp(&rows[c * n + i], &matrix[start + i * stride + c], sizeof(C)), 0)
                << b << " by " << n << " stride " << stride;
        for (int i = 0; i < n; ++i)
          for (int c = 0; c < b; ++c) matrix[start + i * stride + c] = {};
        call(copy.to_columns, static_cast<const C*>(rows.data()), &stride, &n, matrix.data() + start);
        if (n > 0) {
          ASSERT_EQ(memcmp(before.data(), matrix.data(), before.size() * sizeof(C)), 0)
              << b << " by " << n << " stride " << stride;
        }
      }
}
TEST_F(Layers, ColumnsAndRows) {
  for (const auto& copy : single_copies) expect_copies(copy);
  for (const auto& copy : double_copies) expect_copies(copy);
}

// A line routine that writes down where it is called, and fails at a call if told.
std::vector<const char*> calls;
size_t fail_at = 0;
int noting_line(const void* in, void* out, DftiRecord*, void*) {
  EXPECT_EQ(in, out);
  calls.push_back(static_cast<const char*>(in));
  return calls.size() == fail_at ? 77 : 0;
}

// Lengths of the runs of neighbouring lines that the blocks are made of.
std::vector<int> blocks_of(int bytes) {
  std::vector<int> runs;
  for (size_t i = 0; i < calls.size(); ++i)
    if (i > 0 && calls[i] == calls[i - 1] + bytes)
      ++runs.back();
    else
      runs.push_back(1);
  return runs;
}

TEST_F(Layers, BlocksOfColumnsAndTheirScratch) {
  const struct {
    int length, count;
    std::vector<int> blocks;
    int columns;  // that scratch is asked for
  } cases[] = {{8, 5, {4, 1}, 5},
               {8, 16, {8, 8}, 8},
               {33, 64, {16, 16, 16, 16}, 16},
               {32, 64, {8, 8, 8, 8, 8, 8, 8, 8}, 8},
               {33, 63, {8, 8, 8, 8, 8, 8, 8, 4, 2, 1}, 8},
               {40, 79, {16, 16, 16, 16, 8, 4, 2, 1}, 16}};
  for (const auto& c : cases) {
    Handle s(VAL_SINGLE, {c.length}), d(VAL_DOUBLE, {c.length});
    const int stride = c.count + 2;
    s.set_strides(CFG_INPUT_STRIDES, {0, stride});
    d.set_strides(CFG_INPUT_STRIDES, {0, stride});
    std::vector<c64> data(size_t(stride * c.length));
    for (bool wide : {false, true}) {
      calls.clear();
      spy().scratch.clear();
      const int bytes = wide ? 16 : 8;
      void* no_work = nullptr;
      EXPECT_EQ(wide ? call(orb_dft_xzdft_mult, static_cast<DftiRecord*>(d), data.data(), noting_line,
                            c.count, no_work)
                     : call(orb_dft_xcdft_mult, static_cast<DftiRecord*>(s),
                            reinterpret_cast<c32*>(data.data()), noting_line, c.count, no_work),
                0);
      EXPECT_EQ(blocks_of(c.length * bytes), c.blocks) << c.length << " by " << c.count;
      EXPECT_EQ(spy().scratch, (std::vector<MemoryRequest>{{c.length * c.columns * bytes + 1024, 64}}));
    }
  }
}

TEST_F(Layers, LengthOneIsNotGathered) {
  Handle h(VAL_SINGLE, {1});
  std::vector<c32> data(5);
  calls.clear();
  EXPECT_EQ(orb_dft_xcdft_mult(h, data.data(), noting_line, 5, nullptr), 0);
  ASSERT_EQ(calls.size(), 5u);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(calls[size_t(i)], reinterpret_cast<char*>(&data[size_t(i)]));
}

// The first failure of a line ends everything, with its status and nothing kept.
TEST_F(Layers, AFailureEndsTheBatch) {
  for (const auto& lengths : {std::vector<int>{6}, {6, 5}, {4, 3, 5}})
    for (int distance : {1, 200})
      for (size_t k : {1u, 3u}) {
        Handle h(VAL_DOUBLE, lengths);
        std::vector<c64> data(2000);
        if (lengths.size() == 1) h.set_strides(CFG_INPUT_STRIDES, {0, 4});
        h.set(CFG_INPUT_DISTANCE, distance);
        for (DftiRecord* r = h; r; r = r->next) r->fwd_d = noting_line;
        calls.clear();
        fail_at = k;
        EXPECT_EQ(call(orb_dft_xzforward, static_cast<DftiRecord*>(h), static_cast<void*>(data.data()), 4,
                       static_cast<void*>(nullptr)),
                  77);
        EXPECT_EQ(calls.size(), k);
        fail_at = 0;
        spy().refuse_scratch_at = 1;
        EXPECT_EQ(orb_dft_xzforward(h, data.data(), 4, nullptr), STATUS_MEMORY);
        spy().refuse_scratch_at = 0;
      }
}

// Large slices go line by line through the buffer.
TEST_F(Layers, LongLinesOfLargeSlicesAreBuffered) {
  for (int n2 : {255, 256}) {
    Handle h(VAL_SINGLE, {n2, 4096});
    std::vector<c32> data(size_t(n2) * 4096);
    const int one = 1, step = 4096;
    calls.clear();
    EXPECT_EQ(orb_dft_xcdft2d(data.data(), &one, &step, noting_line, noting_line, h, nullptr), 0);
    EXPECT_EQ(calls[0] == reinterpret_cast<char*>(data.data()), n2 == 255);
    EXPECT_EQ(spy().scratch.back(), (MemoryRequest{8 * 4096, 64}));
  }
}

template <class T>
void expect_via_2d(int n) {
  using C = complex_for<T>;
  Handle h(precision_for<T>, {n});
  h.set(CFG_FORWARD_SCALE, 0.25);
  const bool single = sizeof(T) == 4;
  ASSERT_EQ(single ? orb_dft_xc_init_data_1d_via_2d(h, h) : orb_dft_xz_init_data_1d_via_2d(h, h), 0);
  ASSERT_EQ(single ? orb_dft_xc_init_data_1d_via_2d(h, h) : orb_dft_xz_init_data_1d_via_2d(h, h), 0)
      << "again";
  Guarded<C> in(n, 1), out(n, 2);
  std::vector<Wide> x;
  for (int i = 0; i < n; ++i) x.push_back({(in[i] = value<C>(i)).re, in[i].im});
  for (bool forward : {true, false}) {
    const auto f = single    ? forward ? orb_dft_xc_1d_via_2d_f : orb_dft_xc_1d_via_2d_b
                   : forward ? orb_dft_xz_1d_via_2d_f
                             : orb_dft_xz_1d_via_2d_b;
    const auto run = [&](C* to) {
      return call(f, static_cast<const void*>(in.data()), static_cast<void*>(to), static_cast<DftiRecord*>(h),
                  static_cast<void*>(nullptr));
    };
    memset(out.data(), 0, size_t(n) * sizeof(C));
    for (int k = 1; k <= 2; ++k) {
      spy().refuse_scratch_at = k;
      EXPECT_EQ(run(out.data()), 0);
      EXPECT_EQ(out[0].re, 0) << "nothing is done without memory";
    }
    spy().refuse_scratch_at = 0;
    ASSERT_EQ(run(out.data()), 0);
    auto expected = definition(x, forward);
    if (forward)
      for (Wide& e : expected) e /= 4;
    EXPECT_LE(relative_error(expected, [&](int k) { return Wide(out[k].re, out[k].im); }),
              2 * promised_error<T>(n))
        << n << " forward " << forward;
    const std::vector<C> before(in.begin(), in.end());
    ASSERT_EQ(run(in.data()), 0);
    EXPECT_EQ(memcmp(in.data(), out.data(), size_t(n) * sizeof(C)), 0) << "in place";
    memcpy(in.data(), before.data(), size_t(n) * sizeof(C));
  }
}

TEST_F(Layers, OneLineThroughTwoDimensions) {
  for (int n : {4, 6, 8, 64, 77, 35, 100, 128, 507, 1000, 2048, 2310}) {
    expect_via_2d<float>(n);
    expect_via_2d<double>(n);
  }
}

// The private block: rows, columns, their padded lengths, and at the end the size of the twist table.
TEST_F(Layers, RowsAndColumnsOfALine) {
  const struct {
    int n, rows, columns, single[2], wide[2], twist;
  } cases[] = {{1000, 25, 40, {32, 40}, {28, 40}, 32},
               {4096, 64, 64, {64, 64}, {64, 64}, 128},
               {8192, 64, 128, {64, 128}, {64, 128}, 128},
               {1 << 18, 512, 512, {520, 512 + 8}, {516, 516}, 1024},
               {2 * 10007, 2, 10007, {8, 10008}, {4, 10008}, 256}};
  for (const auto& c : cases)
    for (int wide : {0, 1}) {
      Handle h(wide ? VAL_DOUBLE : VAL_SINGLE, {c.n});
      ASSERT_EQ(wide ? orb_dft_xz_init_data_1d_via_2d(h, h) : orb_dft_xc_init_data_1d_via_2d(h, h), 0);
      const int* block = static_cast<const int*>(h->parallel_data);
      const int* padded = wide ? c.wide : c.single;
      EXPECT_EQ(std::vector<int>(block, block + 4),
                (std::vector<int>{c.rows, c.columns, padded[0], padded[1]}))
          << c.n;
      EXPECT_EQ(block[7], c.twist);
      EXPECT_EQ(block[4] == block[5], c.rows == c.columns) << "one descriptor serves both";
    }
  Handle prime(VAL_DOUBLE, {1009});
  EXPECT_EQ(orb_dft_xz_init_data_1d_via_2d(prime, prime), DFT_NO_FACTORISATION);
}

TEST_F(Layers, OneLineThroughTwoDimensionsSurvivesFailedAllocations) {
  for (bool signal : {false, true})
    for (int k = 1, status = -1; status != 0 && k < 50; ++k) {
      Handle h(VAL_SINGLE, {1000});
      (signal ? SignalMemory::refuse_at : spy().refuse_at) = k;
      status = orb_dft_xc_init_data_1d_via_2d(h, h);
      spy().refuse_at = SignalMemory::refuse_at = 0;
      EXPECT_TRUE(status == 0 || status == STATUS_MEMORY) << status;
      EXPECT_EQ(h->parallel_data != nullptr, status == 0);
    }
}

TEST_F(Layers, NativeTables) {
  for (int n : {4, 8, 64, 4096}) {
    Handle h(VAL_DOUBLE, {n});
    ASSERT_EQ(call(orb_dft_z_fft_init, static_cast<DftiRecord*>(h), static_cast<DftiRecord*>(h)), 0);
    EXPECT_EQ(spy().long_lived.back(), (MemoryRequest{n * 24 + 512, 64}));
    const auto start = (reinterpret_cast<uintptr_t>(h->twiddle_table) & ~uintptr_t(63)) + 64;
    const auto* triple = reinterpret_cast<const c64*>(start);
    for (int j = 0; j < n / 4; ++j)
      for (int power = 1; power <= 3; ++power, ++triple) {
        const Wide w = std::polar(1.0L, -2 * acosl(-1) * (long double)(power * j) / n);
        EXPECT_LE(std::abs(Wide(triple->re, triple->im) - w), 0x1p-52L);
      }
    const int* reversal = reinterpret_cast<const int*>(start + size_t(n) * 12 + 128);
    for (int k = 0; k < n; ++k) {
      int reversed = 0;
      for (int bit = 1; bit < n; bit *= 2) reversed = 2 * reversed + ((k & bit) != 0);
      EXPECT_EQ(reversal[k], reversed);
    }
  }
  Handle h(VAL_SINGLE, {16});
  spy().refuse_at = 1;
  EXPECT_EQ(orb_dft_c_fft_init(h, h), STATUS_MEMORY);
}

}  // namespace
