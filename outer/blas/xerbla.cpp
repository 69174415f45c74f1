// The default error handler and the letter test under their Fortran names. A program's own xerbla_ takes the
// place of this one: xerbla_ is the one name beside cblas_xerbla that this library calls through its table of
// global names.
#include <stdio.h>

#include "orb/blas.h"
#include "orb/services.h"
#include "outer/boundary.h"
#include "outer/messages.h"

// The name ends at its length, at a zero byte or after 32 characters: old C callers pass no length.
ORB_EXPORT __attribute__((weak)) void xerbla_(const char* name, const int* place, size_t name_length) {
  char text[33];
  size_t n = 0;
  for (; n < 32 && n < name_length && name[n]; ++n) text[n] = name[n];
  text[n] = 0;
  fprintf(stderr, "%s\n", orb_serv_orb_get_msg(orb::illegal_argument, 2, text, *place));
}

ORB_EXPORT void xerbla_array_(const char* name, const int* length, const int* place) {
  char text[32];
  for (int i = 0; i < 32; ++i) text[i] = i < *length ? name[i] : ' ';
  xerbla_(text, place, sizeof text);
}

ORB_EXPORT int lsame_(const char* a, const char* b, size_t, size_t) { return orb_serv_lsame(a, b, 1, 1); }
