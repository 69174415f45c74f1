// The exported copies between columns and rows.
#include "dft/kernel/row_copy.h"
#include "orb/dft_compute.h"

#define ROW_COPY(name, back, width, C)                                                  \
  ORB_EXPORT void name(const C* source, const int* stride, const int* count, C* rows) { \
    orb::dft::columns_to_rows<width>(source, *stride, *count, rows, *count);            \
  }                                                                                     \
  ORB_EXPORT void back(const C* rows, const int* stride, const int* count, C* target) { \
    orb::dft::rows_to_columns<width>(rows, *count, *stride, *count, target);            \
  }
ROW_COPY(orb_dft_dft_row_ccopy_1, orb_dft_dft_row_ccopy_back_1, 1, orb_complex_float)
ROW_COPY(orb_dft_dft_row_ccopy_2, orb_dft_dft_row_ccopy_back_2, 2, orb_complex_float)
ROW_COPY(orb_dft_dft_row_ccopy_4, orb_dft_dft_row_ccopy_back_4, 4, orb_complex_float)
ROW_COPY(orb_dft_dft_row_ccopy_8, orb_dft_dft_row_ccopy_back_8, 8, orb_complex_float)
ROW_COPY(orb_dft_dft_row_ccopy_16, orb_dft_dft_row_ccopy_back_16, 16, orb_complex_float)
ROW_COPY(orb_dft_dft_row_zcopy_1, orb_dft_dft_row_zcopy_back_1, 1, orb_complex_double)
ROW_COPY(orb_dft_dft_row_zcopy_2, orb_dft_dft_row_zcopy_back_2, 2, orb_complex_double)
ROW_COPY(orb_dft_dft_row_zcopy_4, orb_dft_dft_row_zcopy_back_4, 4, orb_complex_double)
ROW_COPY(orb_dft_dft_row_zcopy_8, orb_dft_dft_row_zcopy_back_8, 8, orb_complex_double)
