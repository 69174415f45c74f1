// The default error handler of the C face, and the way to it; a program's own handler takes its place.
#include <stdarg.h>
#include <stdio.h>

#include "outer/cblas/arguments.h"
#include "outer/messages.h"

int RowMajorStrg = 0;

namespace orb {
namespace {

// The places that a row-major call exchanges, by what the routine's name contains; the first line that fits
// counts.
struct Exchange {
  const char* name;
  int pairs[2][2];
};
constexpr Exchange exchanges[] = {
    {"gemmt", {{9, 11}}}, {"gemm", {{4, 5}, {9, 11}}}, {"symm", {{4, 5}}}, {"hemm", {{4, 5}}},
    {"trmm", {{6, 7}}},   {"trsm", {{6, 7}}},          {"gemv", {{3, 4}}}, {"gbmv", {{3, 4}, {5, 6}}},
    {"her2k", {}},        {"her2", {{6, 8}}},          {"hpr2", {{6, 8}}}, {"ger", {{2, 3}, {6, 8}}},
};

int callers_place(const char* routine, int place) {
  for (const Exchange& e : exchanges)
    if (strstr(routine, e.name)) {
      for (const auto& [a, b] : e.pairs)
        if (place == a || place == b) return a + b - place;
      return place;
    }
  return place;
}

}  // namespace

void refuse(const char* routine, bool row_major, int place, const char* form, int option) {
  RowMajorStrg = row_major;
  cblas_xerbla(place, routine, form, option);
  RowMajorStrg = 0;
}

}  // namespace orb

ORB_EXPORT __attribute__((weak)) void cblas_xerbla(int place, const char* routine, const char* form, ...) {
  if (RowMajorStrg) place = orb::callers_place(routine, place);
  fprintf(stderr, "%s\n", orb_serv_orb_get_msg(orb::incorrect_parameter, 2, place, routine));
  va_list values;
  va_start(values, form);
  vfprintf(stderr, form, values);
  va_end(values);
}
