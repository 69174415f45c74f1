// Every parameter: its default, what a set takes and refuses, what a get returns, through both faces.
#include <string.h>

#include <string>

#include "tests/dft/handle.h"

using namespace orb::test;

namespace {

class Parameters : public Dft {};

enum { ok = STATUS_OK, bad = STATUS_BAD_PARAMETER, none = STATUS_UNIMPLEMENTED };

struct Row {
  int key, at_start;                // of a double complex descriptor of 8
  std::vector<int> taken;           // values that a set takes
  std::vector<int> refused, known;  // that give 3, that give 6
};
const Row rows[] = {
    {CFG_FORWARD_DOMAIN, 32, {}, {32, 33}, {}},
    {CFG_RANK, 1, {}, {1, 2}, {}},
    {CFG_PRECISION, 36, {}, {35, 36}, {}},
    {CFG_NUMBER_OF_TRANSFORMS, 1, {7, 0, -3}, {}, {}},
    {CFG_COMPLEX_STORAGE, 39, {42, 39}, {38, 43, -1, 0}, {40, 41}},
    {CFG_REAL_STORAGE, 42, {42}, {39, 40, 43}, {41}},
    {CFG_CONJUGATE_EVEN_STORAGE, 40, {39, 40}, {38, 43}, {41, 42}},
    {CFG_PLACEMENT, 43, {44, 43}, {42, 45}, {}},
    {CFG_INPUT_DISTANCE, 0, {5, -5}, {}, {}},
    {CFG_OUTPUT_DISTANCE, 0, {5, -5}, {}, {}},
    {CFG_ORDERING, 48, {49, 48}, {47, 51, 52}, {50}},
    {CFG_TRANSPOSE, 53, {}, {53, 54}, {}},
    {CFG_PACKED_FORMAT, 54, {55, 56, 57, 54}, {53, 58}, {}},
    {CFG_COMMIT_STATUS, 31, {}, {30, 31}, {}},
    {CFG_NUMBER_OF_USER_THREADS, 1, {4, 0, -1, 1}, {}, {}},
};

// Fields of all records, as the set of a number leaves them.
std::vector<int> in_all_records(const Handle& h, int key) {
  std::vector<int> values;
  for (DftiRecord* r = h; r; r = r->next) {
    int value = -1;
    call(orb_dft_dfti_get_value_intval, &r, &key, &value);
    values.push_back(value);
  }
  return values;
}

TEST_F(Parameters, NumbersFollowTheirRows) {
  for (const Row& row : rows) {
    Handle h(VAL_DOUBLE, {8});
    EXPECT_EQ(h.get(row.key), row.at_start) << row.key;
    for (int value : row.taken) {
      h.set(row.key, value);
      EXPECT_EQ(h.get(row.key), value) << row.key;
    }
    const int before = h.get(row.key);
    for (int value : row.refused) EXPECT_EQ(DftiSetValue(h, row.key, value), bad) << row.key << ": " << value;
    for (int value : row.known) EXPECT_EQ(DftiSetValue(h, row.key, value), none) << row.key << ": " << value;
    EXPECT_EQ(h.get(row.key), before) << row.key;
  }
}

TEST_F(Parameters, ANumberReachesEveryRecord) {
  Handle h(VAL_SINGLE, {3, 4, 5});
  for (const Row& row : rows)
    if (!row.taken.empty()) {
      h.set(row.key, row.taken[0]);
      EXPECT_EQ(in_all_records(h, row.key), std::vector<int>(3, row.taken[0])) << row.key;
    }
}

TEST_F(Parameters, ComplexStorageOfConjugateEvenDataForcesTheFormat) {
  Handle h(VAL_SINGLE, {3, 4}, VAL_REAL);
  h.set(CFG_PACKED_FORMAT, int(VAL_PERM_FORMAT));
  h.set(CFG_CONJUGATE_EVEN_STORAGE, int(VAL_STORAGE_40));
  EXPECT_EQ(h.get(CFG_PACKED_FORMAT), VAL_PERM_FORMAT);
  h.set(CFG_CONJUGATE_EVEN_STORAGE, int(VAL_COMPLEX_COMPLEX));
  EXPECT_EQ(in_all_records(h, CFG_PACKED_FORMAT), std::vector<int>(2, VAL_COMPLEX_FORMAT));
  EXPECT_EQ(DftiSetValue(h, CFG_ORDERING, VAL_OUT_OF_ORDER), none);
}

// Each entry takes the keys of its kind; reserved ones and all others are told apart.
TEST_F(Parameters, KeysOfOtherKindsAreRefused) {
  Handle h;
  int number[8] = {};
  float single;
  double wide;
  char text[198];
  const int length = 10;
  for (int key = -2; key <= 30; ++key) {
    const bool reserved = key == 6 || key == 16 || key == 17 || key == 24 || key == 25;
    const bool scale = key == 4 || key == 5, strides = key == 12 || key == 13, chars = key == 20 || key == 23;
    const auto expected = [&](bool mine) { return mine ? ok : reserved ? none : bad; };
    const bool is_number = key >= 0 && key <= 26 && !reserved && !scale && !strides && !chars && key != 2;
    EXPECT_EQ(call(orb_dft_dfti_get_value_intval, h.address(), &key, number),
              expected(is_number || key == 2));
    EXPECT_EQ(call(orb_dft_dfti_get_value_intvec, h.address(), &key, number), expected(strides || key == 2));
    EXPECT_EQ(call(orb_dft_dfti_get_value_sglval, h.address(), &key, &single), expected(scale));
    EXPECT_EQ(call(orb_dft_dfti_get_value_dblval, h.address(), &key, &wide), expected(scale));
    EXPECT_EQ(call(orb_dft_dfti_get_value_chars, h.address(), &key, text, &length), expected(chars));
    EXPECT_EQ(call(orb_dft_dfti_set_value_intvec, h.address(), &key, number), expected(strides));
    single = 1, wide = 1;
    EXPECT_EQ(call(orb_dft_dfti_set_value_sglval, h.address(), &key, &single), expected(scale));
    EXPECT_EQ(call(orb_dft_dfti_set_value_dblval, h.address(), &key, &wide), expected(scale));
    EXPECT_EQ(call(orb_dft_dfti_set_value_chars, h.address(), &key, text, &length), expected(key == 20));
    EXPECT_EQ(DftiGetValue(h, key, text), key < 0 || key > 26 ? bad : reserved ? none : ok) << key;
    if (!is_number || key < 0) {
      EXPECT_EQ(call(orb_dft_dfti_set_value_intval, h.address(), &key, number), expected(false)) << key;
    }
    if (reserved || key < 0 || key > 26 || key == 2 || key == 23) {
      EXPECT_EQ(DftiSetValue(h, key, number), expected(false)) << key;
    }
  }
}

TEST_F(Parameters, StridesAreReversedInCAndLengthsAreNotRead) {
  Handle h(VAL_DOUBLE, {3, 4, 5});
  const auto read = [&](int key, int count) {
    std::vector<int> v(size_t(count), -1);
    EXPECT_EQ(DftiGetValue(h, key, v.data()), ok);
    return v;
  };
  const auto read_fortran = [&](int key, int count) {
    std::vector<int> v(size_t(count), -1);
    EXPECT_EQ(call(orb_dft_dfti_get_value_intvec, h.address(), &key, v.data()), ok);
    return v;
  };
  using V = std::vector<int>;
  EXPECT_EQ(read(CFG_LENGTHS, 3), (V{5, 4, 3}));
  EXPECT_EQ(read_fortran(CFG_LENGTHS, 3), (V{5, 4, 3}));
  for (int key : {CFG_INPUT_STRIDES, CFG_OUTPUT_STRIDES}) {
    EXPECT_EQ(read(key, 4), (V{0, 20, 5, 1}));
    h.set_strides(key, {7, 100, 10, 2});
    EXPECT_EQ(read(key, 4), (V{7, 100, 10, 2}));
    EXPECT_EQ(read_fortran(key, 4), (V{7, 2, 10, 100}));
    const V back = {3, 1, 5, 20};
    EXPECT_EQ(call(orb_dft_dfti_set_value_intvec, h.address(), &key, back.data()), ok);
    EXPECT_EQ(read(key, 4), (V{3, 20, 5, 1}));
  }
  int length = 0;
  const int key = CFG_LENGTHS;
  EXPECT_EQ(call(orb_dft_dfti_get_value_intval, h.address(), &key, &length), bad) << "rank 3";
}

// The record that bears a scale, by lengths fastest first.
TEST_F(Parameters, AScaleGoesToTheFirstRecordThatIsLongerThanOne) {
  const struct {
    std::vector<int> lengths;  // as in C
    int bearer;
  } cases[] = {{{8}, 0}, {{4, 8}, 0}, {{4, 1}, 1}, {{5, 1, 1}, 2}, {{1, 1}, 0}, {{1}, 0}};
  for (const auto& c : cases)
    for (int key : {CFG_FORWARD_SCALE, CFG_BACKWARD_SCALE})
      for (int precision : {VAL_SINGLE, VAL_DOUBLE}) {
        Handle h(precision, c.lengths);
        h.set(key, 0.1);
        for (int k = 0; k < int(c.lengths.size()); ++k) {
          const DftiRecord* r = h.record(k);
          const bool forward = key == CFG_FORWARD_SCALE;
          EXPECT_EQ(forward ? r->forward_scale_d : r->backward_scale_d, k == c.bearer ? 0.1 : 1.0);
          EXPECT_EQ(forward ? r->forward_scale_f : r->backward_scale_f, k == c.bearer ? 0.1f : 1.0f);
        }
        float single = 0;
        double wide = 0;
        if (precision == VAL_SINGLE) {
          EXPECT_EQ(DftiGetValue(h, key, &single), ok);
          EXPECT_EQ(single, 0.1f);
        } else {
          EXPECT_EQ(DftiGetValue(h, key, &wide), ok);
          EXPECT_EQ(wide, 0.1);
        }
        const float other = 0.3f;
        EXPECT_EQ(call(orb_dft_dfti_set_value_sglval, h.address(), &key, &other), ok);
        EXPECT_EQ(call(orb_dft_dfti_get_value_dblval, h.address(), &key, &wide), ok);
        EXPECT_EQ(wide, double(0.3f));
      }
}

TEST_F(Parameters, TheNameIsCutAndPadded) {
  Handle h;
  const int key = CFG_DESCRIPTOR_NAME, version = CFG_VERSION;
  const auto from_c = [&] {
    std::string text(12, '#');
    EXPECT_EQ(DftiGetValue(h, key, text.data()), ok);
    EXPECT_EQ(text.substr(10), "##");
    return std::string(text.c_str());
  };
  const auto from_fortran = [&](int k, int length) {
    std::string text(size_t(length) + 1, '#');
    EXPECT_EQ(call(orb_dft_dfti_get_value_chars, h.address(), &k, text.data(), &length), ok);
    EXPECT_EQ(text.back(), '#');
    return text.substr(0, size_t(length));
  };
  EXPECT_EQ(from_c(), "");
  h.set(key, "twelve chars");
  EXPECT_EQ(from_c(), "twelve ch");
  h.set(key, "one");
  EXPECT_EQ(from_c(), "one");
  for (int length : {0, 3, 10, 14}) {
    EXPECT_EQ(call(orb_dft_dfti_set_value_chars, h.address(), &key, "fourteen chars", &length), ok);
    EXPECT_EQ(from_fortran(key, 12),
              (std::string("fourteen chars", size_t(length)) + "          ").substr(0, 10) + "  ");
  }
  EXPECT_EQ(from_fortran(key, 4), "four");
  EXPECT_EQ(from_fortran(version, 9), "spy 1.0  ");
  EXPECT_EQ(from_fortran(version, 202), "spy 1.0" + std::string(195, ' '));
  char text[199];
  text[197] = text[198] = '#';
  EXPECT_EQ(DftiGetValue(h, version, text), ok);
  EXPECT_STREQ(text, "spy 1.0");
  EXPECT_EQ(text[197], 0);
  EXPECT_EQ(text[198], '#');
}

// What uncommits: numbers and vectors even when they are refused, scales when they are taken, names never.
TEST_F(Parameters, SettingUncommits) {
  int vector[] = {0, 1};
  const struct {
    const char* what;
    int (*set)(DftiRecord*, int*);
    int committed;
  } cases[] = {
      {"number", [](DftiRecord* r, int*) { return DftiSetValue(r, CFG_PLACEMENT, VAL_INPLACE); }, 31},
      {"refused value", [](DftiRecord* r, int*) { return DftiSetValue(r, CFG_COMPLEX_STORAGE, 99); }, 31},
      {"refused key", [](DftiRecord* r, int*) { return DftiSetValue(r, CFG_RANK, 1); }, 31},
      {"strides", [](DftiRecord* r, int* v) { return DftiSetValue(r, CFG_INPUT_STRIDES, v); }, 31},
      {"scale", [](DftiRecord* r, int*) { return DftiSetValue(r, CFG_FORWARD_SCALE, 1.0); }, 31},
      {"name", [](DftiRecord* r, int*) { return DftiSetValue(r, CFG_DESCRIPTOR_NAME, "x"); }, 30},
      {"lengths", [](DftiRecord* r, int* v) { return DftiSetValue(r, CFG_LENGTHS, v); }, 30},
      {"no key", [](DftiRecord* r, int* v) { return DftiSetValue(r, 27, v); }, 30}};
  for (const auto& c : cases) {
    Handle h(VAL_DOUBLE, {1000});
    h.commit();
    EXPECT_EQ(h.get(CFG_COMMIT_STATUS), 30);
    c.set(h, vector);
    EXPECT_EQ(h.get(CFG_COMMIT_STATUS), c.committed) << c.what;
    EXPECT_EQ(h->compute_forward != nullptr, c.committed == 30) << c.what;
    EXPECT_EQ(h->compute_backward != nullptr, c.committed == 30) << c.what;
  }
}

}  // namespace
