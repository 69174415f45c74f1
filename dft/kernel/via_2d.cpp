// Computes one long line through two dimensions.
#include "dft/kernel/via_2d.h"

#include "dft/kernel/row_copy.h"
#include "dft/kernel/work.h"
#include "orb/dft_compute.h"

namespace orb::dft {
namespace {

constexpr int bundle = 8;  // columns, and rows, that travel together: a cache line of singles

// Row k1 of the staging area holds column j2 transformed; element k1 gets the root of exponent j2 k1.
template <class C, bool forward>
void apply_twist(const Via2d& via, int column, C* line) {
  for (int k = 0; k < via.rows; ++k) {
    const C w = twist<C>(via, unsigned(column) * unsigned(k));
    line[k] = (forward ? w : conj(w)) * line[k];
  }
}

// Transforms all columns of the input into the rows of the large buffer. `staging` holds eight lines.
template <class C, bool forward>
int transform_all_columns(const Via2d& via, const C* in, C* large, C* staging, DftiLine routine, void* work) {
  int status = STATUS_OK, column = 0;
  const auto group = [&](auto width) {
    for (; via.columns - column >= width && !status; column += width) {
      columns_to_rows<width>(in + column, via.columns, via.rows, staging, via.rows_padded);
      for (int c = 0; c < width && !status; ++c) {
        C* line = staging + c * via.rows_padded;
        status = routine(line, line, via.sub_rows, work);
        apply_twist<C, forward>(via, column + c, line);
      }
      rows_to_columns<width>(staging, via.rows_padded, via.columns_padded, via.rows, large + column);
    }
  };
  group(Int<bundle>{});
  group(Int<1>{});
  return status;
}

// Rows of the large buffer into columns of the result, `rows` elements from step to step.
template <class C>
void write_columns(const C* source, int distance, int count, int columns, C* target, int rows) {
  if (count == bundle) return rows_to_columns<bundle>(source, distance, rows, columns, target);
  for (int r = 0; r < count; ++r)
    rows_to_columns<1>(source + r * distance, distance, rows, columns, target + r);
}

template <class C>
void write_scaled_columns(C* source, int distance, int count, int columns, C* target, int rows,
                          real_of<C> factor) {
  for (int r = 0; r < count; ++r) scale(columns, factor, source + r * distance);
  write_columns(source, distance, count, columns, target, rows);
}

template <class T, bool forward>
int transform_via_2d(const void* in, void* out, DftiRecord* record) {
  using C = complex_of<T>;
  constexpr auto line = line_field<T, forward>();
  const Via2d& via = *via_2d_of(record);
  const T factor = scale_of<T, forward>(record);
  const Work memory = Work::of<C>((long long)(via.rows) * via.columns_padded);
  const Work staging = Work::of<C>((long long)(bundle)*via.rows_padded);
  const unsigned row_bytes = via.sub_rows->max_work_size, column_bytes = via.sub_columns->max_work_size;
  const Work work = Work::of<char>(row_bytes > column_bytes ? row_bytes : column_bytes);
  if (!memory || !staging || (!work && (row_bytes || column_bytes))) return STATUS_OK;
  C* large = memory.as<C>();
  if (const int status = transform_all_columns<C, forward>(
          via, static_cast<const C*>(in), large, staging.as<C>(), via.sub_rows->*line, work.as<void>()))
    return status;
  const DftiLine routine = via.sub_columns->*line;
  for (int row = 0; row < via.rows; row += bundle) {
    const int count = via.rows - row < bundle ? via.rows - row : bundle;
    C* first = large + row * via.columns_padded;
    for (int r = 0; r < count; ++r) {
      C* at = first + r * via.columns_padded;
      if (const int status = routine(at, at, via.sub_columns, work.as<void>())) return status;
    }
    C* target = static_cast<C*>(out) + row;
    if (factor == 1)
      write_columns(first, via.columns_padded, count, via.columns, target, via.rows);
    else
      write_scaled_columns(first, via.columns_padded, count, via.columns, target, via.rows, factor);
  }
  return STATUS_OK;
}

}  // namespace
}  // namespace orb::dft

using namespace orb::dft;

#define VIA_2D(name, T, forward)                                              \
  ORB_EXPORT int name(const void* in, void* out, DftiRecord* record, void*) { \
    return transform_via_2d<T, forward>(in, out, record);                     \
  }
VIA_2D(orb_dft_xc_1d_via_2d_f, float, true)
VIA_2D(orb_dft_xc_1d_via_2d_b, float, false)
VIA_2D(orb_dft_xz_1d_via_2d_f, double, true)
VIA_2D(orb_dft_xz_1d_via_2d_b, double, false)

#define VIA_2D_STEPS(columns_name, copy_name, scale_copy_name, T)                                      \
  ORB_EXPORT int columns_name(DftiRecord* record, const complex_of<T>* in, complex_of<T>* large,       \
                              complex_of<T>* staging, int forward, void* work) {                       \
    using C = complex_of<T>;                                                                           \
    const Via2d& via = *via_2d_of(record);                                                             \
    constexpr auto f = line_field<T, true>(), b = line_field<T, false>();                              \
    return forward ? transform_all_columns<C, true>(via, in, large, staging, via.sub_rows->*f, work)   \
                   : transform_all_columns<C, false>(via, in, large, staging, via.sub_rows->*b, work); \
  }                                                                                                    \
  ORB_EXPORT void copy_name(const complex_of<T>* source, int distance, int count, int columns,         \
                            complex_of<T>* target, int rows) {                                         \
    write_columns(source, distance, count, columns, target, rows);                                     \
  }                                                                                                    \
  ORB_EXPORT void scale_copy_name(complex_of<T>* source, int distance, int count, int columns,         \
                                  complex_of<T>* target, int rows, T factor) {                         \
    write_scaled_columns(source, distance, count, columns, target, rows, factor);                      \
  }
VIA_2D_STEPS(orb_dft_xc_multiple_row_1d_dft, orb_dft_xc_bundle_col_copy, orb_dft_xc_bundle_col_scale_copy,
             float)
VIA_2D_STEPS(orb_dft_xz_multiple_row_1d_dft, orb_dft_xz_bundle_col_copy, orb_dft_xz_bundle_col_scale_copy,
             double)
