// What a commit chooses, and what it leaves behind when it fails or is repeated.
#include <math.h>

#include "orb/dft_commit.h"
#include "orb/dft_compute.h"
#include "orb/dft_real.h"
#include "tests/dft/handle.h"

using namespace orb::test;

namespace {

class Commit : public Dft {};

double inverse_root(int n) { return 1 / sqrt(double(n)); }

// Which breakdown takes a complex line, 0: none.
int taker(const DftiRecord* r) {
  if (!r->backend) return 0;
  const DftiBreakdown* all[] = {&orb_dft_bkd1_c, &orb_dft_bkd2_c, &orb_dft_bkd3_c,
                                &orb_dft_bkd1_z, &orb_dft_bkd2_z, &orb_dft_bkd3_z};
  for (int i = 0; i < 6; ++i)
    if (r->backend->commit == all[i]->commit) return i % 3 + 1;
  return -1;
}

TEST_F(Commit, BreakdownsTakeWhatSuitsThem) {
  const struct {
    int length, single, wide;
    double forward = 1, backward = 1;
    void (*configure)(Handle&) = [](Handle&) {};
  } cases[] = {
      {2, 2, 2},
      {4, 2, 2},
      {8, 2, 3},
      {16, 3, 3},
      {64, 3, 3},
      {1, 1, 1},
      {15, 1, 1},
      {16, 1, 1, 1.0 / 16},
      {16, 1, 1, 1, 1.0 / 16},
      {16, 1, 1, inverse_root(16), inverse_root(16)},
      {7, 1, 1, inverse_root(7), inverse_root(7)},
      {16, 0, 0, 0.5},
      {16, 0, 0, 1.0 / 16, 1.0 / 16},
      {1000, 0, 0},
      {4097, 0, 0},
      {16, 0, 0, 1, 1,
       [](Handle& h) {
         h.set_strides(CFG_INPUT_STRIDES, {0, 2});
       }},
      {16, 0, 0, 1, 1,
       [](Handle& h) {
         h.set_strides(CFG_INPUT_STRIDES, {1, 1});
       }},
      {16, 3, 3, 1, 1,
       [](Handle& h) {
         h.set_strides(CFG_OUTPUT_STRIDES, {1, 2});
       }},
      {16, 0, 0, 1, 1,
       [](Handle& h) {
         h.set_strides(CFG_OUTPUT_STRIDES, {0, 2}), h.set(CFG_PLACEMENT, 44);
       }},
      {16, 3, 3, 1, 1, [](Handle& h) { h.set(CFG_PLACEMENT, 44); }},
      {16, 3, 3, 1, 1, [](Handle& h) { h.set(CFG_ORDERING, 49); }},
      {16, 0, 0, 1, 1, [](Handle& h) { h.set(CFG_NUMBER_OF_TRANSFORMS, 2); }},
      {16, 0, 0, 1, 1, [](Handle& h) { h.set(CFG_COMPLEX_STORAGE, 42); }},
  };
  for (const auto& c : cases)
    for (int precision : {VAL_SINGLE, VAL_DOUBLE}) {
      Handle h(precision, {c.length});
      h.set(CFG_FORWARD_SCALE, c.forward);
      h.set(CFG_BACKWARD_SCALE, c.backward);
      c.configure(h);
      h.commit();
      EXPECT_EQ(taker(h), precision == VAL_SINGLE ? c.single : c.wide)
          << c.length << " scales " << c.forward << ", " << c.backward << " precision " << precision;
      EXPECT_EQ(h->io_arg_count, orb_dft_determine_nioargs(h));
    }
  for (int domain : {VAL_COMPLEX, VAL_REAL}) {
    Handle h(VAL_DOUBLE, domain == VAL_COMPLEX ? std::vector<int>{2, 8} : std::vector<int>{8}, domain);
    h.commit();
    EXPECT_EQ(taker(h), 0);
  }
}

std::vector<int> tried;
template <int id, int status>
constexpr DftiBreakdown fake = {[](const DftiBreakdown*, DftiRecord* r) { return r->forward_scale_d; },
                                [](const DftiBreakdown*, DftiRecord*) { return tried.push_back(id), status; },
                                [](const DftiBreakdown*, DftiRecord*) { return 0; }};

TEST_F(Commit, BreakdownsAreTriedInOrder) {
  Handle h;
  static constexpr DftiBreakdown a = fake<1, 101>, b = fake<2, 0>, c = fake<3, 0>;
  const DftiBreakdown *list[] = {&a, &b, &c, nullptr}, *empty[] = {nullptr}, *failing[] = {&a, nullptr};
  const auto apply = [&](const DftiBreakdown* const* l) {
    return tried.clear(), call(orb_dft_apply_bkdowns, static_cast<DftiRecord*>(h), l);
  };
  EXPECT_EQ(apply(list), 0);
  EXPECT_EQ(tried, (std::vector{1, 2}));
  EXPECT_EQ(apply(failing), 100);
  EXPECT_EQ(apply(empty), 100);
  h->forward_scale_d = 0;
  EXPECT_EQ(apply(list), 100);
  EXPECT_TRUE(tried.empty()) << "a score of 0";
  h->forward_scale_d = NAN;
  EXPECT_EQ(apply(list), 0) << "no number counts as a score";
}

TEST_F(Commit, ScalesThatFold) {
  for (int precision : {VAL_SINGLE, VAL_DOUBLE})
    for (int n : {1, 3, 7, 49, 1000}) {
      const double part = 1.0 / n, root = inverse_root(n);
      const struct {
        double forward, backward;
        int flag;
      } cases[] = {{1, 1, 8},
                   {part, 1, n == 1 ? 8 : 1},
                   {1, part, n == 1 ? 8 : 2},
                   {root, root, n == 1 ? 8 : 4},
                   {part, part, n == 1 ? 8 : 0},
                   {part * (1 + 1e-6), 1, 0},
                   {0, 1, 0},
                   {NAN, 1, 0}};
      for (const auto& c : cases) {
        Handle h(precision, {n});
        h->forward_scale_f = float(h->forward_scale_d = c.forward);
        h->backward_scale_f = float(h->backward_scale_d = c.backward);
        int flag = 0;
        EXPECT_EQ(call(orb_dft_vsp_can_scale, static_cast<const DftiRecord*>(h), &flag), c.flag != 0)
            << n << " " << c.forward;
        EXPECT_EQ(flag, c.flag);
        EXPECT_EQ(orb_dft_vsp_can_scale(h, nullptr), c.flag != 0);
      }
    }
}

TEST_F(Commit, LinesByStorageAndOrder) {
  const struct {
    int storage, ordering;
    DftiLine forward[2], backward[2];
    VspsDFTSpec* DftiRecord::*spec[2];
  } cases[] = {{39,
                48,
                {orb_dft_xvsps_fwd_32fc, orb_dft_xvsps_fwd_64fc},
                {orb_dft_xvsps_inv_32fc, orb_dft_xvsps_inv_64fc},
                {&DftiRecord::spec_dft_c_32fc, &DftiRecord::spec_dft_c_64fc}},
               {39,
                49,
                {orb_dft_xvsps_fwd_rev_32fc, orb_dft_xvsps_fwd_rev_64fc},
                {orb_dft_xvsps_inv_rev_32fc, orb_dft_xvsps_inv_rev_64fc},
                {&DftiRecord::spec_outord_32fc, &DftiRecord::spec_outord_64fc}},
               {42,
                48,
                {orb_dft_xvsps_fwd_32f, orb_dft_xvsps_fwd_64f},
                {orb_dft_xvsps_inv_32f, orb_dft_xvsps_inv_64f},
                {&DftiRecord::spec_dft_c_32f, &DftiRecord::spec_dft_c_64f}}};
  for (const auto& c : cases)
    for (int wide : {0, 1}) {
      Handle h(wide ? VAL_DOUBLE : VAL_SINGLE, {24, 6000});
      h.set(CFG_COMPLEX_STORAGE, c.storage);
      h.set(CFG_ORDERING, c.ordering);
      h.commit();
      for (int k : {0, 1}) {
        DftiRecord* r = h.record(k);
        EXPECT_EQ(wide ? r->fwd_d : r->fwd_s, c.forward[wide]);
        EXPECT_EQ(wide ? r->bwd_d : r->bwd_s, c.backward[wide]);
        EXPECT_NE(r->*c.spec[wide], nullptr);
        EXPECT_EQ(r->use_signal_kernels, 1);
        EXPECT_GE(h->max_work_size, r->work_size);
      }
      EXPECT_EQ(h->max_work_size % 64, 0u);
    }
}

// The bits of the mode: one line, slice, at once.
TEST_F(Commit, Mode) {
  const struct {
    std::vector<int> lengths;
    int domain, mode;
    void (*configure)(Handle&) = [](Handle&) {};
  } cases[] = {
      {{5000}, 32, 5},
      {{5000}, 32, 0, [](Handle& h) { h.set(CFG_NUMBER_OF_TRANSFORMS, 2); }},
      {{5000},
       32,
       0,
       [](Handle& h) {
         h.set_strides(CFG_INPUT_STRIDES, {0, 3});
       }},
      {{5000},
       32,
       0,
       [](Handle& h) {
         h.set_strides(CFG_OUTPUT_STRIDES, {0, 3});
       }},
      {{5000}, 32, 1, [](Handle& h) { h.set(CFG_NUMBER_OF_USER_THREADS, 3); }},
      {{45, 45}, 32, 2},
      {{46, 45}, 32, 0},
      {{45, 45}, 32, 0, [](Handle& h) { h.set(CFG_NUMBER_OF_TRANSFORMS, 2); }},
      {{45, 45}, 32, 0, [](Handle& h) { h.set(CFG_NUMBER_OF_USER_THREADS, 2); }},
      {{8, 8, 8}, 32, 0},
      {{4096}, 33, 5},
      {{4097}, 33, 0},
      {{4097}, 33, 5, [](Handle& h) { h.set(CFG_PACKED_FORMAT, 56); }},
      {{4097}, 33, 5, [](Handle& h) { h.set(CFG_CONJUGATE_EVEN_STORAGE, 39); }},
      {{4097},
       33,
       0,
       [](Handle& h) {
         h.set(CFG_CONJUGATE_EVEN_STORAGE, 39), h.set_strides(CFG_INPUT_STRIDES, {2, 1});
       }},
  };
  for (size_t i = 0; i < std::size(cases); ++i) {
    const auto& c = cases[i];
    Handle h(VAL_DOUBLE, c.lengths, c.domain);
    c.configure(h);
    h.commit();
    EXPECT_EQ(h->mode_flags, c.mode) << "case " << i;
    h.set(CFG_NUMBER_OF_USER_THREADS, 2);
    h.commit();
    EXPECT_EQ(h->mode_flags & 6, 0) << "a thread of the caller's goes past no slot, case " << i;
  }
}

// Threads that a descriptor gets of eight at hand.
TEST_F(Commit, ThreadsFollowTheSize) {
  const struct {
    std::vector<int> lengths;  // double complex
    int transforms, processor, parallel, threads;
  } cases[] = {
      {{100000}, 1, 5, 1, 1},                           // no parallel routines for one line
      {{1000}, 1, 5, 1, 1},       {{100}, 4, 5, 1, 1},  // sqrt(6400 ln 6400 / 313600) = 0.4
      {{1000}, 100, 5, 1, 8},                           // 8.5
      {{1000}, 20, 5, 1, 4},                            // 3.6
      {{1000}, 20, 5, 0, 8},      {{1000}, 0, 5, 1, 1},  {{1000}, -2, 5, 1, 1}, {{16, 16}, 1, 5, 1, 1},
      {{7, 49}, 1, 5, 1, 4},      {{7, 49}, 1, 4, 1, 2}, {{7, 49}, 1, 3, 1, 1}, {{90, 91}, 1, 5, 1, 4},
      {{100, 3000}, 1, 5, 1, 2},  // 48000 bytes of the first dimension: 1.3, times the rank
      {{100, 30000}, 1, 5, 1, 8},
  };
  for (const auto& c : cases) {
    Handle h(VAL_DOUBLE, c.lengths);
    h.set(CFG_NUMBER_OF_TRANSFORMS, c.transforms);
    spy().cpu = c.processor;
    h->thread_count = 8;
    EXPECT_EQ(call(orb_dft_threaded_mode_definition, static_cast<DftiRecord*>(h), c.parallel), 0);
    EXPECT_EQ(h->thread_count, c.threads)
        << c.lengths[0] << " x " << c.transforms << " on " << c.processor << ", parallel " << c.parallel;
  }
}

TEST_F(Commit, WorkMemoryHasASliceForEachThread) {
  spy().threads = 3;
  for (int users : {1, 5}) {
    Handle h(VAL_SINGLE, {1000});
    h.set(CFG_NUMBER_OF_TRANSFORMS, 500);
    h.set(CFG_NUMBER_OF_USER_THREADS, users);
    h.commit();
    EXPECT_EQ(h->thread_count, users > 1 ? 1 : 3);
    EXPECT_EQ(spy().long_lived.back(), (MemoryRequest{int(h->max_work_size) * (users > 1 ? users : 3), 64}));
  }
}

TEST_F(Commit, SlotsAreGivenOutOnce) {
  Handle h(VAL_SINGLE, {1000});
  h.set(CFG_NUMBER_OF_USER_THREADS, 3);
  h.commit();
  const auto grasp = [&] { return call(orb_dft_grasp_user_thread, static_cast<DftiRecord*>(h)); };
  for (int expected : {0, 1, 2, -1, -1}) EXPECT_EQ(grasp(), expected);
  call(orb_dft_release_user_thread, static_cast<DftiRecord*>(h), 1);
  EXPECT_EQ(grasp(), 1);
  EXPECT_EQ(grasp(), -1);
  std::vector<orb_complex_float> data(1000);
  EXPECT_EQ(DftiComputeForward(h, data.data()), STATUS_NO_THREAD_SLOT);
}

TEST_F(Commit, LengthsBeyondTheLimit) {
  const struct {
    int precision, length, status;
  } cases[] = {{VAL_SINGLE, 0x10000000, 9},
               {VAL_SINGLE, 0x4000001, 9},
               {VAL_DOUBLE, 0x8000000, 9},
               {VAL_DOUBLE, 0x2000001, 9}};
  for (const auto& c : cases) {
    Handle h(c.precision, {c.length, 2});  // of rank 1 they would go through two dimensions
    EXPECT_EQ(call(DftiCommitDescriptor, static_cast<DftiRecord*>(h)), c.status) << c.length;
    EXPECT_EQ(h.get(CFG_COMMIT_STATUS), VAL_UNCOMMITTED);
  }
  Handle prime(VAL_SINGLE, {67108879});  // a prime above the limit has no rows and columns
  EXPECT_EQ(orb_dft_xc_init_data_1d_via_2d(prime, prime), DFT_NO_FACTORISATION);
  EXPECT_EQ(call(DftiCommitDescriptor, static_cast<DftiRecord*>(prime)), 9);
}

TEST_F(Commit, RealDataOfMoreDimensionsIsNotOffered) {
  Handle h(VAL_SINGLE, {4, 8}, VAL_REAL);
  EXPECT_EQ(DftiCommitDescriptor(h), 6);
  Handle g(VAL_SINGLE, {8}, VAL_REAL);
  g.set(CFG_PACKED_FORMAT, int(VAL_COMPLEX_FORMAT));
  EXPECT_EQ(DftiCommitDescriptor(g), 6) << "complex numbers in real storage";
}

struct Kind {
  int precision, domain;
  std::vector<int> lengths;
  int ordering = VAL_ORDERED, storage = VAL_COMPLEX_COMPLEX, users = 1;
};
const Kind kinds[] = {
    {35, 32, {16}},     {36, 32, {100}},         {35, 32, {1000}},           {36, 32, {1000}, 49},
    {36, 32, {20, 30}}, {35, 32, {500}, 48, 42}, {36, 32, {3, 40, 50}},      {35, 33, {1000}},
    {36, 33, {32}},     {36, 33, {77}},          {35, 32, {1000}, 48, 39, 4}};

// Every request for memory refused in turn: the commit says so, computing is refused, nothing is left, and
// the next commit succeeds.
TEST_F(Commit, SurvivesEveryFailedAllocation) {
  for (const Kind& kind : kinds)
    for (bool signal : {false, true}) {
      Handle h(kind.precision, kind.lengths, kind.domain);
      if (kind.ordering != VAL_ORDERED) h.set(CFG_ORDERING, kind.ordering);
      h.set(CFG_COMPLEX_STORAGE, kind.storage);
      h.set(CFG_NUMBER_OF_USER_THREADS, kind.users);
      for (int k = 1, status = -1; status != 0 && k < 100; ++k) {
        (signal ? SignalMemory::refuse_at : spy().refuse_at) = k;
        status = call(DftiCommitDescriptor, static_cast<DftiRecord*>(h));
        const bool refused = (signal ? SignalMemory::refuse_at : spy().refuse_at) == 0;
        if (status == 0) break;  // a breakdown may have failed and the general commit stepped in
        EXPECT_TRUE(refused);
        EXPECT_EQ(status, STATUS_MEMORY);
        EXPECT_EQ(h.get(CFG_COMMIT_STATUS), VAL_UNCOMMITTED);
        EXPECT_EQ(DftiComputeForward(h, nullptr), STATUS_INVALID_ARGUMENT);
        EXPECT_EQ(h->backend, nullptr);
      }
      spy().refuse_at = SignalMemory::refuse_at = 0;
      h.commit();
      EXPECT_EQ(h.get(CFG_COMMIT_STATUS), VAL_COMMITTED);
    }
}

// Committed again and again with other settings, a descriptor holds no more than after the first round.
TEST_F(Commit, RepeatedCommitsKeepNothingOld) {
  for (const Kind& kind : kinds) {
    Handle h(kind.precision, kind.lengths, kind.domain);
    const auto round = [&] {
      for (const auto& [users, scale] : {std::pair(1, 1.0), {1, 1.0}, {1, 0.7}, {3, 0.7}, {1, 1.0}}) {
        h.set(CFG_NUMBER_OF_USER_THREADS, users);
        h.set(CFG_FORWARD_SCALE, scale);
        h.commit();
      }
      return std::pair(spy().live_blocks(), SignalMemory::live);
    };
    const auto once = round();
    EXPECT_EQ(round(), once);
  }
}

// What the outer layer puts into the head before a commit stays there.
TEST_F(Commit, KeepsWhatTheOuterLayerPutThere) {
  Handle h(VAL_DOUBLE, {1000});
  h->aux_buffer = orb_serv_orb_malloc(8, 16);
  h->twiddle_table = orb_serv_orb_malloc(8, 64);
  h->aux_table = orb_serv_orb_malloc(8, 64);
  const void *aux = h->aux_buffer, *twiddle = h->twiddle_table, *table = h->aux_table;
  for (int turn = 0; turn < 2; ++turn) {
    h.commit();
    EXPECT_EQ(h->aux_buffer, aux);
    EXPECT_EQ(h->twiddle_table, twiddle);
    EXPECT_EQ(h->aux_table, table);
  }
  EXPECT_EQ(call(orb_dft_free_allocated_buffers, static_cast<DftiRecord*>(h)), 0);
  EXPECT_EQ(call(orb_dft_free_allocated_buffers, static_cast<DftiRecord*>(h)), 0) << "twice";
  EXPECT_EQ(h->aux_buffer, nullptr);
}

TEST_F(Commit, StatusesOfTheSignalKernels) {
  for (const auto& [signal, status] : {std::pair(0, 0), {-9, 1}, {-8, 7}, {-17, 7}, {5, 7}})
    EXPECT_EQ(call(orb_dft_transfer_vsp_orb_error, signal), status);
}

}  // namespace
