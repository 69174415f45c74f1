// The default error handler of the C face; a program's own takes its place.
#include <stdarg.h>
#include <stdio.h>

#include "orb/cblas.h"
#include "orb/services.h"
#include "outer/boundary.h"
#include "outer/messages.h"

ORB_EXPORT __attribute__((weak)) void cblas_xerbla(int place, const char* routine, const char* form, ...) {
  fprintf(stderr, "%s\n", orb_serv_orb_get_msg(orb::incorrect_parameter, 2, place, routine));
  va_list values;
  va_start(values, form);
  vfprintf(stderr, form, values);
  va_end(values);
}
