// The configuration parameters, one row each, and the checks that all entries share.
#pragma once

#include <stddef.h>

#include "dft/kernel/record.h"

namespace orb::dft {

enum class Kind : unsigned char { reserved, number, scale, lengths, strides, name, version };

// Values that a setter tells apart: a run of them from `first`, each taken (1), known and not offered (6) or
// refused (3); everything else is refused.
enum class Accept : unsigned char { nothing, anything, listed };
constexpr int most_values = 4;
struct Values {
  int first = 0;
  signed char answers[most_values] = {};  // a status for first, first + 1, ...; 0: taken
  int count = 0;
};

struct Parameter {
  Kind kind;
  Accept accept;
  unsigned short field;  // offset in the record
  Values values;
};

#define ORB_FIELD(name) static_cast<unsigned short>(offsetof(DftiRecord, name))
constexpr signed char refused = STATUS_BAD_PARAMETER, not_offered = STATUS_UNIMPLEMENTED;
constexpr Parameter read_only(unsigned short field) { return {Kind::number, Accept::nothing, field, {}}; }
constexpr Parameter any_number(unsigned short field) { return {Kind::number, Accept::anything, field, {}}; }
constexpr Parameter one_of(unsigned short field, Values values) {
  return {Kind::number, Accept::listed, field, values};
}
constexpr Parameter other(Kind kind, unsigned short field = 0) { return {kind, Accept::nothing, field, {}}; }

constexpr Parameter parameters[] = {
    /*  0 forward domain */ read_only(ORB_FIELD(forward_domain)),
    /*  1 rank */ read_only(ORB_FIELD(rank)),
    /*  2 lengths */ other(Kind::lengths),
    /*  3 precision */ read_only(ORB_FIELD(precision)),
    /*  4 forward scale */ other(Kind::scale),
    /*  5 backward scale */ other(Kind::scale),
    /*  6 */ other(Kind::reserved),
    /*  7 number of transforms */ any_number(ORB_FIELD(number_of_transforms)),
    /*  8 complex storage */
    one_of(ORB_FIELD(complex_storage), {VAL_COMPLEX_COMPLEX, {0, not_offered, not_offered, 0}, 4}),
    /*  9 real storage */ one_of(ORB_FIELD(real_storage), {VAL_STORAGE_41, {not_offered, 0}, 2}),
    /* 10 conjugate-even storage */
    one_of(ORB_FIELD(conjugate_even_storage), {VAL_COMPLEX_COMPLEX, {0, 0, not_offered, not_offered}, 4}),
    /* 11 placement */ one_of(ORB_FIELD(placement), {VAL_INPLACE, {0, 0}, 2}),
    /* 12 input strides */ other(Kind::strides, ORB_FIELD(input_stride)),
    /* 13 output strides */ other(Kind::strides, ORB_FIELD(output_stride)),
    /* 14 input distance */ any_number(ORB_FIELD(input_distance)),
    /* 15 output distance */ any_number(ORB_FIELD(output_distance)),
    /* 16 */ other(Kind::reserved),
    /* 17 */ other(Kind::reserved),
    /* 18 ordering */ one_of(ORB_FIELD(ordering), {VAL_ORDERED, {0, 0, not_offered}, 3}),
    /* 19 transpose */ read_only(ORB_FIELD(transpose)),
    /* 20 name */ other(Kind::name),
    /* 21 packed format */ one_of(ORB_FIELD(packed_format), {VAL_CCS_FORMAT, {0, 0, 0, 0}, 4}),
    /* 22 commit status */ read_only(ORB_FIELD(commit_status)),
    /* 23 version */ other(Kind::version),
    /* 24 */ other(Kind::reserved),
    /* 25 */ other(Kind::reserved),
    /* 26 number of user threads */ any_number(ORB_FIELD(number_of_user_threads)),
};
#undef ORB_FIELD
static_assert(sizeof parameters / sizeof *parameters == CFG_NUMBER_OF_USER_THREADS + 1);

// The row of a key, or null. Keys below 0 are above all others.
inline const Parameter* find_parameter(int key) {
  return unsigned(key) <= CFG_NUMBER_OF_USER_THREADS ? &parameters[key] : nullptr;
}

// The row of a key if it is of this kind; else null, and what to answer.
inline const Parameter* find_of_kind(int key, Kind kind, int* answer) {
  const Parameter* p = find_parameter(key);
  if (p && p->kind == kind) return p;
  *answer = p && p->kind == Kind::reserved ? STATUS_UNIMPLEMENTED : STATUS_BAD_PARAMETER;
  return nullptr;
}

inline int& number_at(DftiRecord* record, unsigned short field) {
  return *reinterpret_cast<int*>(reinterpret_cast<char*>(record) + field);
}

constexpr int name_length = int(sizeof DftiRecord::name);
constexpr int version_length = 198;

// Of the Fortran entries: pointers, then the descriptor.
inline int check_references(DftiRecord** handle, const int* key, const void* value) {
  if (!handle || !key || !value) return STATUS_BAD_PARAMETER;
  return is_descriptor(*handle) ? STATUS_OK : STATUS_BAD_DESCRIPTOR;
}

}  // namespace orb::dft
