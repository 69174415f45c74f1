// The life of a descriptor: create by all its names, copy, free, statuses in words, and what computing
// answers when it cannot.
#include <math.h>
#include <string.h>

#include <string>

#include "orb/dft_commit.h"
#include "tests/dft/handle.h"

using namespace orb::test;

namespace {

class Descriptor : public Dft {};

struct Arguments {
  int precision, domain, rank, lengths[8], status;
};
const Arguments arguments[] = {
    {35, 32, 1, {1}, 0},
    {36, 33, 1, {7}, 0},
    {35, 33, 3, {2, 3, 4}, 0},
    {36, 32, 7, {2, 1, 2, 1, 3, 1, 2}, 0},
    {34, 32, 1, {8}, 2},
    {37, 32, 1, {8}, 2},
    {35, 31, 1, {8}, 2},
    {35, 34, 1, {8}, 2},
    {35, 32, 0, {8}, 2},
    {35, 32, -1, {8}, 2},
    {35, 32, 8, {2, 2, 2, 2, 2, 2, 2, 2}, 2},
    {35, 32, 1, {0}, 2},
    {35, 32, 2, {4, -1}, 2},
    {35, 33, 4, {2, 2, 2, 2}, 6},
    {36, 33, 7, {2, 2, 2, 2, 2, 2, 2}, 6},
    {36, 33, 4, {2, 2, 0, 2}, 2},
};

DftiRecord* const untouched = reinterpret_cast<DftiRecord*>(0x10);

// Checks the answer, and frees what was made.
void expect_created(DftiRecord* made, int status, const Arguments& a, bool reversed) {
  EXPECT_EQ(status, a.status);
  if (status != 0) {
    EXPECT_EQ(made, untouched);
    return;
  }
  ASSERT_NE(made, untouched);
  EXPECT_EQ(made->precision, a.precision);
  EXPECT_EQ(made->forward_domain, a.domain);
  int k = 0;
  for (DftiRecord* r = made; r; r = r->next, ++k)
    EXPECT_EQ(r->length, a.lengths[reversed ? a.rank - 1 - k : k]) << "dimension " << k;
  EXPECT_EQ(k, a.rank);
  EXPECT_EQ(call(DftiFreeDescriptor, &made), 0);
}

TEST_F(Descriptor, EveryCreateChecksItsArguments) {
  for (const Arguments& a : arguments) {
    DftiRecord* made = untouched;
    int status = a.rank == 1 ? DftiCreateDescriptor(&made, a.precision, a.domain, a.rank, a.lengths[0])
                             : DftiCreateDescriptor(&made, a.precision, a.domain, a.rank, a.lengths);
    expect_created(made, status, a, true);
    made = untouched;
    status = call(orb_dft_dfti_create_descriptor_highd, &made, &a.precision, &a.domain, &a.rank, a.lengths);
    expect_created(made, status, a, false);

    const bool single = a.precision == 35;
    if (!single && a.precision != 36) continue;
    made = untouched;
    status = call(single ? DftiCreateDescriptor_s_md : DftiCreateDescriptor_d_md, &made, a.domain, a.rank,
                  a.lengths);
    expect_created(made, status, a, true);
    const float tag = 35;
    const double wide_tag = 36;
    made = untouched;
    status = single
                 ? call(orb_dft_dfti_create_descriptor_s_md, &made, &tag, &a.domain, &a.rank, a.lengths)
                 : call(orb_dft_dfti_create_descriptor_d_md, &made, &wide_tag, &a.domain, &a.rank, a.lengths);
    expect_created(made, status, a, false);
    if (a.rank == 1) {
      made = untouched;
      status =
          call(single ? DftiCreateDescriptor_s_1d : DftiCreateDescriptor_d_1d, &made, a.domain, a.lengths[0]);
      expect_created(made, status, a, true);
    }
    Arguments one = a;
    if (a.rank != 1) one.status = 2;
    made = untouched;
    status = single
                 ? call(orb_dft_dfti_create_descriptor_s_1d, &made, &tag, &a.domain, &a.rank, a.lengths)
                 : call(orb_dft_dfti_create_descriptor_d_1d, &made, &wide_tag, &a.domain, &a.rank, a.lengths);
    expect_created(made, status, one, false);
    made = untouched;
    status = call(orb_dft_dfti_create_descriptor_1d, &made, &a.precision, &a.domain, &a.rank, a.lengths);
    expect_created(made, status, one, false);
  }
}

TEST_F(Descriptor, ATagOfAnotherValueIsRefused) {
  const int domain = 32, rank = 1, length = 8;
  DftiRecord* made = untouched;
  for (float tag : {36.0f, 0.0f, 35.000004f, NAN})
    EXPECT_EQ(call(orb_dft_dfti_create_descriptor_s_1d, &made, &tag, &domain, &rank, &length), 2) << tag;
  for (double tag : {35.0, -36.0, double(NAN)})
    EXPECT_EQ(call(orb_dft_dfti_create_descriptor_d_md, &made, &tag, &domain, &rank, &length), 2) << tag;
  EXPECT_EQ(made, untouched);
}

TEST_F(Descriptor, RecordsStartWithTheirDimensions) {
  Handle h(VAL_SINGLE, {6, 16, 5});
  const struct {
    int length, half, stride, product, half_product, log2, signal;
  } expected[] = {{5, 3, 1, 5, 3, 2, 1}, {16, 16, 5, 80, 48, 4, 0}, {6, 6, 80, 480, 288, 2, 1}};
  for (int k = 0; k < 3; ++k) {
    const DftiRecord* r = h.record(k);
    const auto& e = expected[k];
    EXPECT_EQ(r->magic, 0x544644u);
    EXPECT_EQ(r->rank, 3);
    EXPECT_EQ(r->dimension_index, k);
    EXPECT_EQ(r->length, e.length);
    EXPECT_EQ(r->half_length, e.half);
    EXPECT_EQ(r->input_stride, e.stride);
    EXPECT_EQ(r->output_stride, e.stride);
    EXPECT_EQ(r->cumulative_length, e.product);
    EXPECT_EQ(r->cumulative_half_length, e.half_product);
    EXPECT_EQ(r->log2_length, e.log2);
    EXPECT_EQ(r->use_signal_kernels, e.signal);
    EXPECT_EQ(r->max_length, 16);
    EXPECT_EQ(r->previous, k ? h.record(k - 1) : nullptr);
    EXPECT_EQ(r, h + k) << "records lie side by side";
  }
  EXPECT_EQ(spy().long_lived, (std::vector<MemoryRequest>{{3 * int(sizeof(DftiRecord)), 16}}));
}

TEST_F(Descriptor, NoMemoryAtCreate) {
  spy().refuse_at = 1;
  DftiRecord* made = untouched;
  EXPECT_EQ(DftiCreateDescriptor(&made, VAL_DOUBLE, VAL_COMPLEX, 1, 8), STATUS_MEMORY);
  EXPECT_EQ(made, untouched);
}

TEST_F(Descriptor, CopyTakesTheConfiguration) {
  Handle h(VAL_SINGLE, {3, 4});
  h.set(CFG_DESCRIPTOR_NAME, "original");
  h.set(CFG_FORWARD_SCALE, 0.25);
  h.set(CFG_BACKWARD_SCALE, 3.0);
  for (int key :
       {CFG_NUMBER_OF_TRANSFORMS, CFG_INPUT_DISTANCE, CFG_OUTPUT_DISTANCE, CFG_NUMBER_OF_USER_THREADS})
    h.set(key, key + 1);
  h.set(CFG_PLACEMENT, int(VAL_NOT_INPLACE));
  h.set(CFG_ORDERING, int(VAL_OUT_OF_ORDER));
  h.set(CFG_CONJUGATE_EVEN_STORAGE, int(VAL_COMPLEX_COMPLEX));
  h.set_strides(CFG_INPUT_STRIDES, {1, 40, 10});
  h.set_strides(CFG_OUTPUT_STRIDES, {2, 60, 20});
  for (bool committed : {false, true}) {
    if (committed) h.commit();
    DftiRecord* copy = untouched;
    ASSERT_EQ(call(DftiCopyDescriptor, static_cast<DftiRecord*>(h), &copy), 0);
    EXPECT_EQ(memcmp(copy->name, h->name, 10), 0);
    for (int key = 0; key <= 26; ++key) {
      int a[3] = {}, b[3] = {};
      if (key == CFG_DESCRIPTOR_NAME || key == CFG_VERSION) continue;
      EXPECT_EQ(DftiGetValue(copy, key, a), DftiGetValue(h, key, b)) << key;
      EXPECT_EQ(memcmp(a, b, sizeof a), 0) << key;
    }
    EXPECT_EQ(copy->compute_forward, h->compute_forward);
    if (committed) {
      EXPECT_NE(copy->spec_outord_32fc, h->spec_outord_32fc);
    }
    EXPECT_EQ(call(DftiFreeDescriptor, &copy), 0);
  }
}

// Every request for memory refused in turn, until one copy succeeds.
TEST_F(Descriptor, ACopyThatFailsLeavesNothing) {
  Handle h(VAL_DOUBLE, {40, 20});
  h.commit();
  const int before = spy().live_blocks(), signal_before = SignalMemory::live;
  for (bool signal : {false, true}) {
    int k = 0, status = STATUS_MEMORY;
    while (status == STATUS_MEMORY && k < 100) {
      (signal ? SignalMemory::refuse_at : spy().refuse_at) = ++k;
      DftiRecord* copy = untouched;
      status = call(orb_dft_dfti_copy_descriptor_external, h.address(), &copy);
      if (status == 0)
        DftiFreeDescriptor(&copy);
      else
        EXPECT_EQ(copy, untouched);
      EXPECT_EQ(spy().live_blocks(), before);
      EXPECT_EQ(SignalMemory::live, signal_before);
    }
    EXPECT_EQ(status, 0);
    EXPECT_GT(k, 2);
    spy().refuse_at = SignalMemory::refuse_at = 0;
  }
}

TEST_F(Descriptor, NullsAndStrangersAreToldApart) {
  Handle h;
  DftiRecord stranger{};
  DftiRecord *none = nullptr, *other = &stranger, *copy = untouched;
  const int key = CFG_PLACEMENT, length = 4;
  int value = VAL_INPLACE;
  char text[4];
  using Set = int (*)(DftiRecord**, const int*, const int*);
  for (DftiRecord** handle : {&none, &other}) {
    EXPECT_EQ(call(DftiCommitDescriptor, *handle), 5);
    EXPECT_EQ(call(orb_dft_dfti_commit_descriptor_external, handle), 5);
    EXPECT_EQ(call(DftiCopyDescriptor, *handle, &copy), 5);
    EXPECT_EQ(call(DftiFreeDescriptor, handle), 5);
    EXPECT_EQ(DftiSetValue(*handle, key, value), 5);
    EXPECT_EQ(DftiGetValue(*handle, key, &value), 5);
    EXPECT_EQ(call(Set(orb_dft_dfti_set_value_intval), handle, &key, &value), 5);
    EXPECT_EQ(call(orb_dft_dfti_get_value_chars, handle, &key, text, &length), 5);
  }
  EXPECT_EQ(call(DftiCopyDescriptor, static_cast<DftiRecord*>(h), static_cast<DftiRecord**>(nullptr)), 3);
  EXPECT_EQ(call(DftiFreeDescriptor, static_cast<DftiRecord**>(nullptr)), 3);
  EXPECT_EQ(call(orb_dft_dfti_get_value_intval, h.address(), &key, static_cast<int*>(nullptr)), 3);
  EXPECT_EQ(call(orb_dft_dfti_set_value_intval, h.address(), static_cast<const int*>(nullptr), &value), 3);
  h->commit_routine = nullptr;
  EXPECT_EQ(call(DftiCommitDescriptor, static_cast<DftiRecord*>(h)), 7);
}

TEST_F(Descriptor, StatusesHaveMessagesAndClasses) {
  for (int status = -2; status <= 12; ++status) {
    EXPECT_STREQ(call(DftiErrorMessage, status), "a message");
    EXPECT_EQ(spy().message, status >= 0 && status <= 9 ? 761 + status : 771) << status;
    for (int cls = -2; cls <= 12; ++cls) {
      EXPECT_EQ(call(DftiErrorClass, status, cls), status == cls);
      EXPECT_EQ(call(orb_dft_dfti_error_class_external, &status, &cls), status == cls);
    }
    for (int length : {0, 4, 12}) {
      std::string buffer(14, '#');
      call(orb_dft_dfti_error_message_external, buffer.data(), &length, &status);
      EXPECT_EQ(buffer, (std::string("a message") + "     ").substr(0, size_t(length)) +
                            std::string(14 - size_t(length), '#'));
    }
  }
}

// The Fortran entries by their letters, each for its number of arrays.
struct Entry {
  int arrays;
  void* forward;
  void* backward;
};
#define ENTRY(arrays, letters)                                               \
  {                                                                          \
    arrays, reinterpret_cast<void*>(orb_dft_dfti_compute_forward_##letters), \
        reinterpret_cast<void*>(orb_dft_dfti_compute_backward_##letters)     \
  }
#define FORWARD(letters) \
  { 2, reinterpret_cast<void*>(orb_dft_dfti_compute_forward_##letters), nullptr }
#define BACKWARD(letters) \
  { 2, nullptr, reinterpret_cast<void*>(orb_dft_dfti_compute_backward_##letters) }
const Entry entries[] = {ENTRY(1, c),      ENTRY(1, s),     ENTRY(1, d),     ENTRY(1, z),     ENTRY(2, cc),
                         ENTRY(2, ss),     ENTRY(2, dd),    ENTRY(2, zz),    ENTRY(2, cs),    ENTRY(2, sc),
                         ENTRY(2, dz),     ENTRY(2, zd),    ENTRY(4, ssss),  ENTRY(4, dddd),  ENTRY(2, c_out),
                         ENTRY(2, s_out),  ENTRY(2, d_out), ENTRY(2, z_out), FORWARD(sc_out), FORWARD(dz_out),
                         BACKWARD(cs_out), BACKWARD(zd_out)};

std::vector<void*> seen;
int note(DftiRecord*, void* a, void* b, void* c, void* d) {
  seen = {a, b, c, d};
  return 70;
}

TEST_F(Descriptor, FortranComputeWantsItsNumberOfArrays) {
  Handle h;
  DftiRecord stranger{};
  DftiRecord *none = nullptr, *other = &stranger;
  char words[4];
  using F = int (*)(DftiRecord**, void*, void*, void*, void*);
  for (const Entry& e : entries)
    for (bool forward : {true, false}) {
      const auto f = reinterpret_cast<F>(forward ? e.forward : e.backward);
      if (!f) continue;
      const auto run = [&](DftiRecord** handle) {
        return call(f, handle, (void*)words, (void*)(words + 1), (void*)(words + 2), (void*)(words + 3));
      };
      EXPECT_EQ(run(nullptr), 5);
      EXPECT_EQ(run(&none), 5);
      EXPECT_EQ(run(&other), 5);
      for (int count : {1, 2, 4}) {
        h->io_arg_count = count;
        h->compute_forward = h->compute_backward = nullptr;
        EXPECT_EQ(run(h.address()), count == e.arrays ? 2 : 3);
        (forward ? h->compute_forward : h->compute_backward) = note;
        seen.clear();
        EXPECT_EQ(run(h.address()), count == e.arrays ? 70 : 3);
        for (size_t i = 0; i < seen.size() && int(i) < e.arrays; ++i) EXPECT_EQ(seen[i], words + i);
        EXPECT_EQ(seen.empty(), count != e.arrays);
      }
    }
}

TEST_F(Descriptor, CComputeWantsACommit) {
  Handle h;
  double data[16] = {};
  EXPECT_EQ(DftiComputeForward(nullptr, data), 5);
  EXPECT_EQ(DftiComputeForward(h, data), 2);
  EXPECT_EQ(DftiComputeBackward(h, data), 2);
  h->compute_backward = note;
  EXPECT_EQ(DftiComputeBackward(h, data, data + 1, data + 2, data + 3), 70);
  EXPECT_EQ(seen, (std::vector<void*>{data, data + 1, data + 2, data + 3}));
}

}  // namespace
