// Setting of parameters.
#include <stdarg.h>
#include <string.h>

#include "dft/iface/parameters.h"
#include "dft/iface/scale.h"

namespace orb::dft {
namespace {

// A number or vector uncommits before its key is looked at, so that a refused one does too.
void uncommit_for_numbers(DftiRecord* head) {
  uncommit(head);
  head->mode_flags &= ~DFT_MODE_ONE_LINE;
}

int answer_to(const Parameter& p, int value) {
  if (p.accept == Accept::anything) return STATUS_OK;
  if (p.accept == Accept::nothing) return STATUS_BAD_PARAMETER;
  const unsigned at = unsigned(value) - unsigned(p.values.first);
  return at < unsigned(p.values.count) ? int(p.values.answers[at]) : int(STATUS_BAD_PARAMETER);
}

int set_number(DftiRecord* head, int key, int value) {
  uncommit_for_numbers(head);
  int answer;
  const Parameter* p = find_of_kind(key, Kind::number, &answer);
  if (!p) return answer;
  if (const int status = answer_to(*p, value)) return status;
  if (key == CFG_ORDERING && value == VAL_OUT_OF_ORDER && head->forward_domain == VAL_REAL)
    return STATUS_UNIMPLEMENTED;
  for_each_record(head, [&](DftiRecord* r) {
    number_at(r, p->field) = value;
    if (key == CFG_CONJUGATE_EVEN_STORAGE && value == VAL_COMPLEX_COMPLEX)
      r->packed_format = VAL_COMPLEX_FORMAT;
  });
  return STATUS_OK;
}

int set_strides(DftiRecord* head, int key, const int* offset_and_strides) {
  uncommit_for_numbers(head);
  int answer;
  const Parameter* p = find_of_kind(key, Kind::strides, &answer);
  if (!p) return answer;
  int k = 0;
  for_each_record(head, [&](DftiRecord* r) {
    (key == CFG_INPUT_STRIDES ? r->input_offset : r->output_offset) = offset_and_strides[0];
    number_at(r, p->field) = offset_and_strides[++k];
  });
  return STATUS_OK;
}

template <class T>
int set_scale(DftiRecord* head, int key, T value) {
  int answer;
  if (!find_of_kind(key, Kind::scale, &answer)) return answer;
  const Scale scale = scale_of(key);
  const DftiRecord* bearer = bearer_of_scale(head);
  for_each_record(head, [&](DftiRecord* r) {
    r->*scale.single = r == bearer ? float(value) : 1;
    r->*scale.wide = r == bearer ? double(value) : 1;
  });
  uncommit(head);
  return STATUS_OK;
}

// Of the C entry: nine characters and an end.
int set_name(DftiRecord* head, const char* text) {
  strncpy(head->name, text, name_length - 1);
  head->name[name_length - 1] = 0;
  return STATUS_OK;
}

// Of the C entry: the leftmost index comes first there, behind the offset.
int set_strides_leftmost_first(DftiRecord* head, int key, const int* vector) {
  int fastest_first[8] = {vector[0]};
  for (int k = 1; k <= head->rank; ++k) fastest_first[k] = vector[head->rank + 1 - k];
  return orb_dft_dfti_set_value_intvec(&head, &key, fastest_first);
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

ORB_EXPORT int orb_dft_dfti_set_value_intval(DftiRecord** handle, const int* key, const int* value) {
  if (const int status = check_references(handle, key, value)) return status;
  return set_number(*handle, *key, *value);
}
ORB_EXPORT int orb_dft_dfti_set_value_intvec(DftiRecord** handle, const int* key, const int* value) {
  if (const int status = check_references(handle, key, value)) return status;
  return set_strides(*handle, *key, value);
}
ORB_EXPORT int orb_dft_dfti_set_value_sglval(DftiRecord** handle, const int* key, const float* value) {
  if (const int status = check_references(handle, key, value)) return status;
  return set_scale(*handle, *key, *value);
}
ORB_EXPORT int orb_dft_dfti_set_value_dblval(DftiRecord** handle, const int* key, const double* value) {
  if (const int status = check_references(handle, key, value)) return status;
  return set_scale(*handle, *key, *value);
}
ORB_EXPORT int orb_dft_dfti_set_value_chars(DftiRecord** handle, const int* key, const char* value,
                                            const int* length) {
  if (!length) return STATUS_BAD_PARAMETER;
  if (const int status = check_references(handle, key, value)) return status;
  int answer;
  if (!find_of_kind(*key, Kind::name, &answer)) return answer;
  const int kept = *length < 0 ? 0 : *length < name_length ? *length : name_length;
  memset((*handle)->name, ' ', name_length);
  memcpy((*handle)->name, value, size_t(kept));
  return STATUS_OK;
}

ORB_EXPORT int DftiSetValue(DftiRecord* handle, int key, ...) {
  if (!is_descriptor(handle)) return STATUS_BAD_DESCRIPTOR;
  const Parameter* p = find_parameter(key);
  if (!p || p->kind == Kind::lengths || p->kind == Kind::version) return STATUS_BAD_PARAMETER;
  va_list rest;
  va_start(rest, key);
  int number = 0;
  double scale = 0;
  const void* pointer = &number;
  if (p->kind == Kind::scale)
    scale = va_arg(rest, double);
  else if (p->kind == Kind::strides || p->kind == Kind::name)
    pointer = va_arg(rest, const void*);
  else
    number = va_arg(rest, int);
  va_end(rest);
  if (!pointer) return STATUS_BAD_PARAMETER;
  switch (p->kind) {
    case Kind::scale:
      return orb_dft_dfti_set_value_dblval(&handle, &key, &scale);
    case Kind::strides:
      return set_strides_leftmost_first(handle, key, static_cast<const int*>(pointer));
    case Kind::name:
      return set_name(handle, static_cast<const char*>(pointer));
    default:
      return orb_dft_dfti_set_value_intval(&handle, &key, &number);
  }
}
