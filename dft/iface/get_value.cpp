// Reading of parameters.
#include <stdarg.h>
#include <string.h>

#include "dft/iface/parameters.h"
#include "dft/iface/scale.h"
#include "orb/services.h"

namespace orb::dft {
namespace {

// Fastest dimension first; strides behind the offset.
int get_vector(DftiRecord* head, int key, int* out) {
  const Parameter* p = find_parameter(key);
  if (!p) return STATUS_BAD_PARAMETER;
  if (p->kind == Kind::reserved) return STATUS_UNIMPLEMENTED;
  if (p->kind == Kind::lengths) {
    for_each_record(head, [&](const DftiRecord* r) { *out++ = r->length; });
    return STATUS_OK;
  }
  if (p->kind != Kind::strides) return STATUS_BAD_PARAMETER;
  *out++ = key == CFG_INPUT_STRIDES ? head->input_offset : head->output_offset;
  for_each_record(head, [&](DftiRecord* r) { *out++ = number_at(r, p->field); });
  return STATUS_OK;
}

void reverse(int* first, int count) {
  for (int i = 0, j = count - 1; i < j; ++i, --j) {
    const int kept = first[i];
    first[i] = first[j];
    first[j] = kept;
  }
}

int get_text(DftiRecord* head, Kind kind, char* out) {
  if (kind == Kind::name) {
    memcpy(out, head->name, name_length);
    out[name_length - 1] = 0;
  } else {
    orb_serv_getversionstring_c(out, version_length);
    out[version_length - 1] = 0;
  }
  return STATUS_OK;
}

void copy_padded(char* to, int room, const char* from, int length) {
  if (room <= 0) return;
  memset(to, ' ', size_t(room));
  memcpy(to, from, size_t(room < length ? room : length));
}

template <class T>
int get_scale(DftiRecord** handle, const int* key, T* value) {
  if (const int status = check_references(handle, key, value)) return status;
  int answer;
  if (!find_of_kind(*key, Kind::scale, &answer)) return answer;
  *value = T(read_scale(*handle, *key));
  return STATUS_OK;
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

ORB_EXPORT int orb_dft_dfti_get_value_intval(DftiRecord** handle, const int* key, int* value) {
  if (const int status = check_references(handle, key, value)) return status;
  if (*key == CFG_LENGTHS && (*handle)->rank == 1) return get_vector(*handle, *key, value);
  int answer;
  const Parameter* p = find_of_kind(*key, Kind::number, &answer);
  if (!p) return answer;
  *value = number_at(*handle, p->field);
  return STATUS_OK;
}
ORB_EXPORT int orb_dft_dfti_get_value_intvec(DftiRecord** handle, const int* key, int* value) {
  if (const int status = check_references(handle, key, value)) return status;
  return get_vector(*handle, *key, value);
}
ORB_EXPORT int orb_dft_dfti_get_value_sglval(DftiRecord** handle, const int* key, float* value) {
  return get_scale(handle, key, value);
}
ORB_EXPORT int orb_dft_dfti_get_value_dblval(DftiRecord** handle, const int* key, double* value) {
  return get_scale(handle, key, value);
}
ORB_EXPORT int orb_dft_dfti_get_value_chars(DftiRecord** handle, const int* key, char* value,
                                            const int* length) {
  if (!length) return STATUS_BAD_PARAMETER;
  if (const int status = check_references(handle, key, value)) return status;
  if (*key == CFG_VERSION) {
    char text[version_length];
    orb_serv_getversionstring(text, version_length);
    copy_padded(value, *length, text, version_length);
    return STATUS_OK;
  }
  int answer;
  if (!find_of_kind(*key, Kind::name, &answer)) return answer;
  copy_padded(value, *length, (*handle)->name, name_length);
  return STATUS_OK;
}

ORB_EXPORT int DftiGetValue(DftiRecord* handle, int key, ...) {
  if (!is_descriptor(handle)) return STATUS_BAD_DESCRIPTOR;
  const Parameter* p = find_parameter(key);
  if (!p) return STATUS_BAD_PARAMETER;
  if (p->kind == Kind::reserved) return STATUS_UNIMPLEMENTED;
  va_list rest;
  va_start(rest, key);
  void* out = va_arg(rest, void*);
  va_end(rest);
  if (!out) return STATUS_BAD_PARAMETER;
  switch (p->kind) {
    case Kind::scale:
      if (handle->precision == VAL_SINGLE)
        return orb_dft_dfti_get_value_sglval(&handle, &key, static_cast<float*>(out));
      return orb_dft_dfti_get_value_dblval(&handle, &key, static_cast<double*>(out));
    case Kind::strides:
      get_vector(handle, key, static_cast<int*>(out));
      reverse(static_cast<int*>(out) + 1, handle->rank);  // the leftmost index first, behind the offset
      return STATUS_OK;
    case Kind::lengths:  // not reversed: the fastest dimension comes first here
      return get_vector(handle, key, static_cast<int*>(out));
    case Kind::name:
    case Kind::version:
      return get_text(handle, p->kind, static_cast<char*>(out));
    default:
      return orb_dft_dfti_get_value_intval(&handle, &key, static_cast<int*>(out));
  }
}
