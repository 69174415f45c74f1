// Descriptors through liborb.so: the calls of dfti.h, and the same bits for every number of threads.
#include <string.h>

#include <string>
#include <thread>
#include <vector>

#include "gtest/gtest.h"
#include "orb/dfti.h"
#include "orb/orb.h"

namespace {

struct Setup {
  int precision, domain;
  std::vector<int> lengths;  // the last varies fastest
  int transforms = 1, placement = VAL_INPLACE;
  std::vector<int> strides = {};  // offset first; of both sides
  int distance = 0, out_distance = 0;
  int even_storage = VAL_STORAGE_40, ordering = VAL_ORDERED;
};
const Setup setups[] = {
    {VAL_SINGLE, VAL_COMPLEX, {1000}, 200, VAL_INPLACE, {}, 1000},
    {VAL_DOUBLE, VAL_COMPLEX, {77}, 301, VAL_NOT_INPLACE, {}, 80, 77},
    {VAL_DOUBLE, VAL_COMPLEX, {40}, 400, VAL_INPLACE, {0, 400}, 1},
    {VAL_SINGLE, VAL_COMPLEX, {64}, 300, VAL_INPLACE, {}, 0},  // all on the same data: an order of its own
    {VAL_SINGLE, VAL_COMPLEX, {64}, 300, VAL_INPLACE, {}, 20},
    {VAL_DOUBLE, VAL_COMPLEX, {260, 300}},
    {VAL_SINGLE, VAL_COMPLEX, {300, 227}, 1, VAL_NOT_INPLACE},
    {VAL_DOUBLE, VAL_COMPLEX, {60, 40, 30}},
    {VAL_SINGLE, VAL_COMPLEX, {40, 45, 40}, 1, VAL_INPLACE, {3, 4050, 90, 2}},
    {VAL_DOUBLE, VAL_COMPLEX, {8, 9, 10, 55}, 2, VAL_NOT_INPLACE, {}, 39600, 39600},
    {VAL_SINGLE, VAL_COMPLEX, {100, 100}, 9, VAL_INPLACE, {}, 10000, 0, VAL_STORAGE_40, VAL_OUT_OF_ORDER},
    {VAL_SINGLE, VAL_REAL, {500}, 301, VAL_INPLACE, {}, 502},
    {VAL_DOUBLE, VAL_REAL, {77}, 500, VAL_NOT_INPLACE, {}, 77, 78},
    {VAL_DOUBLE, VAL_REAL, {64}, 500, VAL_INPLACE, {}, 66, 33, VAL_COMPLEX_COMPLEX},
    {VAL_SINGLE, VAL_REAL, {100}, 500, VAL_NOT_INPLACE, {}, 100, 51, VAL_COMPLEX_COMPLEX},
};
constexpr size_t room = 1 << 19;  // reals, enough for each of them

struct Result {
  int threads;
  std::vector<double> data;  // as bytes
};

// Forward, then (with the distances exchanged) backward.
Result transformed(const Setup& s, int threads) {
  orb_set_num_threads(threads);
  DftiRecord* h = nullptr;
  const int rank = int(s.lengths.size());
  EXPECT_EQ(rank == 1 ? DftiCreateDescriptor(&h, s.precision, s.domain, 1, s.lengths[0])
                      : DftiCreateDescriptor(&h, s.precision, s.domain, rank, s.lengths.data()),
            0);
  EXPECT_EQ(DftiSetValue(h, CFG_NUMBER_OF_TRANSFORMS, s.transforms), 0);
  EXPECT_EQ(DftiSetValue(h, CFG_PLACEMENT, s.placement), 0);
  EXPECT_EQ(DftiSetValue(h, CFG_CONJUGATE_EVEN_STORAGE, s.even_storage), 0);
  EXPECT_EQ(DftiSetValue(h, CFG_ORDERING, s.ordering), 0);
  EXPECT_EQ(DftiSetValue(h, CFG_FORWARD_SCALE, 0.01), 0);
  if (!s.strides.empty()) {
    EXPECT_EQ(DftiSetValue(h, CFG_INPUT_STRIDES, s.strides.data()), 0);
    EXPECT_EQ(DftiSetValue(h, CFG_OUTPUT_STRIDES, s.strides.data()), 0);
  }
  Result r{0, std::vector<double>(2 * room)};
  const bool single = s.precision == VAL_SINGLE;
  for (size_t i = 0; i < room; ++i) {
    const double v = double((i * 7919) % 1009) / 331 - 1.5;
    if (single)
      reinterpret_cast<float*>(r.data.data())[i] = float(v);
    else
      r.data[i] = v;
  }
  void *a = r.data.data(), *b = s.placement == VAL_INPLACE ? nullptr : r.data.data() + room;
  for (bool forward : {true, false}) {
    EXPECT_EQ(DftiSetValue(h, CFG_INPUT_DISTANCE, forward || !s.out_distance ? s.distance : s.out_distance),
              0);
    EXPECT_EQ(DftiSetValue(h, CFG_OUTPUT_DISTANCE, forward ? s.out_distance : s.distance), 0);
    EXPECT_EQ(DftiCommitDescriptor(h), 0);
    r.threads = h->thread_count;
    EXPECT_EQ(forward ? DftiComputeForward(h, a, b)
              : b     ? DftiComputeBackward(h, b, a)
                      : DftiComputeBackward(h, a),
              0);
  }
  EXPECT_EQ(DftiFreeDescriptor(&h), 0);
  orb_set_num_threads(0);
  return r;
}

TEST(Transforms, SameBitsForEveryNumberOfThreads) {
  for (size_t i = 0; i < std::size(setups); ++i) {
    const Result one = transformed(setups[i], 1);
    for (int threads : {2, 3, 4, 31}) {
      const Result r = transformed(setups[i], threads);
      EXPECT_EQ(memcmp(r.data.data(), one.data.data(), one.data.size() * sizeof(double)), 0)
          << "setup " << i << ", " << threads << " threads";
      if (OPENMP) {
        EXPECT_GT(r.threads, 1) << "setup " << i << " was not divided";
      }
    }
  }
}

// Threads of the caller's own on one descriptor.
TEST(Transforms, CallersThreadsShareADescriptor) {
  DftiRecord* h = nullptr;
  ASSERT_EQ(DftiCreateDescriptor_d_1d(&h, VAL_COMPLEX, 1000), 0);
  ASSERT_EQ(DftiSetValue(h, CFG_NUMBER_OF_USER_THREADS, 4), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  const auto run = [&] {
    std::vector<double> x(2000);
    for (size_t i = 0; i < x.size(); ++i) x[i] = double(i % 37);
    for (int turn = 0; turn < 50; ++turn) {
      EXPECT_EQ(DftiComputeForward(h, x.data()), 0);
      for (double& v : x) v /= 40;
    }
    return x;
  };
  const auto expected = run();
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) threads.emplace_back([&] { EXPECT_EQ(run(), expected); });
  for (auto& t : threads) t.join();
  EXPECT_EQ(DftiFreeDescriptor(&h), 0);
}

TEST(Transforms, CallsReachTheKernels) {
  DftiRecord *h = nullptr, *copy = nullptr;
  const int lengths[] = {3, 4};
  EXPECT_EQ(DftiCreateDescriptor(&h, VAL_DOUBLE, VAL_COMPLEX, 9, lengths), STATUS_INVALID_ARGUMENT);
  ASSERT_EQ(DftiCreateDescriptor_s_md(&h, VAL_COMPLEX, 2, lengths), 0);
  EXPECT_EQ(DftiSetValue(h, CFG_BACKWARD_SCALE, 1.0 / 12), 0);
  ASSERT_EQ(DftiCommitDescriptor(h), 0);
  ASSERT_EQ(DftiCopyDescriptor(h, &copy), 0);
  EXPECT_EQ(DftiFreeDescriptor(&h), 0);
  float scale = 0, data[24] = {};
  EXPECT_EQ(DftiGetValue(copy, CFG_BACKWARD_SCALE, &scale), 0);
  EXPECT_EQ(scale, float(1.0 / 12));
  data[0] = 12;
  EXPECT_EQ(DftiComputeBackward(copy, data), 0);
  for (int i = 0; i < 24; ++i) EXPECT_EQ(data[i], i % 2 ? 0 : 1);
  char version[198];
  EXPECT_EQ(DftiGetValue(copy, CFG_VERSION, version), 0);
  EXPECT_EQ(std::string(version).substr(0, 4), "orb ");
  EXPECT_EQ(DftiFreeDescriptor(&copy), 0);
  EXPECT_EQ(DftiErrorClass(3, 3), 1);
  std::vector<std::string> messages;
  for (int status = 0; status <= 10; ++status) {
    const std::string text = DftiErrorMessage(status);
    EXPECT_EQ(text.find("not in the catalogue"), std::string::npos) << status;
    for (const auto& other : messages) EXPECT_NE(text, other);
    messages.push_back(text);
  }
  EXPECT_EQ(DftiErrorMessage(-1), messages.back());
}

}  // namespace
