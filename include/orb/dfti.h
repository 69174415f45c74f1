/** @file
 *  Discrete Fourier transforms through descriptors. A descriptor is created for a precision, a domain and one
 *  to seven lengths, configured by DftiSetValue(), committed, and then computes forward and backward
 * transforms until it is freed:
 *
 *      DftiRecord* h;
 *      DftiCreateDescriptor(&h, VAL_DOUBLE, VAL_COMPLEX, 1, 1000);
 *      DftiCommitDescriptor(h);
 *      DftiComputeForward(h, data);
 *      DftiFreeDescriptor(&h);
 *
 *  Forward is X[k] = s sum over j of x[j] exp(-2 pi i j k / n) with the forward scale s, backward the same
 * with +i and the backward scale, in each dimension. Element i of transform t of a batch stands i strides and
 * t distances behind the offset; all of them count elements of the array in question.
 *
 *  Every call returns a status. Create, set, commit and free may not run while another thread uses the same
 *  descriptor; computing may, in up to CFG_NUMBER_OF_USER_THREADS threads.
 */
#ifndef ORB_DFTI_H
#define ORB_DFTI_H

#include "orb/dft_record.h"
#include "orb/types.h"

ORB_BEGIN_DECLS

/** What every call returns. */
enum {
  STATUS_OK = 0,
  STATUS_MEMORY = 1,           /**< memory could not be had */
  STATUS_INVALID_ARGUMENT = 2, /**< bad precision, domain, rank or length; computing without a commit */
  STATUS_BAD_PARAMETER = 3,    /**< key or value refused; a null pointer; wrong number of data arrays */
  STATUS_RESERVED_4 = 4,       /**< given by no call */
  STATUS_BAD_DESCRIPTOR = 5,   /**< a null handle, or no descriptor */
  STATUS_UNIMPLEMENTED = 6,    /**< known, but not offered */
  STATUS_INTERNAL = 7,         /**< no commit routine, or a kernel failed */
  STATUS_NO_THREAD_SLOT = 8,   /**< more threads compute than the descriptor was set to */
  STATUS_LENGTH_LIMIT = 9      /**< a length is too large */
};

/** Configuration parameters. Setting a number or a vector, even one that is refused, uncommits. */
enum {
  CFG_FORWARD_DOMAIN = 0,          /**< from create; read only */
  CFG_RANK = 1,                    /**< from create; read only */
  CFG_LENGTHS = 2,                 /**< from create; read only. Read fastest dimension first */
  CFG_PRECISION = 3,               /**< from create; read only */
  CFG_FORWARD_SCALE = 4,           /**< 1.0; set as double, read in the descriptor's precision */
  CFG_BACKWARD_SCALE = 5,          /**< 1.0; the same */
  CFG_RESERVED_6 = 6,              /**< not offered */
  CFG_NUMBER_OF_TRANSFORMS = 7,    /**< 1; below 1 a compute call does nothing */
  CFG_COMPLEX_STORAGE = 8,         /**< VAL_COMPLEX_COMPLEX or VAL_REAL_REAL */
  CFG_REAL_STORAGE = 9,            /**< VAL_REAL_REAL */
  CFG_CONJUGATE_EVEN_STORAGE = 10, /**< VAL_STORAGE_40 or VAL_COMPLEX_COMPLEX (sets VAL_COMPLEX_FORMAT) */
  CFG_PLACEMENT = 11,              /**< VAL_INPLACE or VAL_NOT_INPLACE */
  CFG_INPUT_STRIDES = 12,          /**< vector of rank + 1: the offset, then strides, leftmost first */
  CFG_OUTPUT_STRIDES = 13,         /**< the same for the output; in place the input's count */
  CFG_INPUT_DISTANCE = 14,         /**< 0 */
  CFG_OUTPUT_DISTANCE = 15,        /**< 0 */
  CFG_RESERVED_16 = 16,            /**< not offered */
  CFG_RESERVED_17 = 17,            /**< not offered */
  CFG_ORDERING = 18,               /**< VAL_ORDERED or VAL_OUT_OF_ORDER (complex domain only) */
  CFG_TRANSPOSE = 19,              /**< VAL_NONE; read only */
  CFG_DESCRIPTOR_NAME = 20,        /**< text; does not uncommit */
  CFG_PACKED_FORMAT = 21,          /**< VAL_CCS_FORMAT, ..._PACK_..., ..._PERM_..., ..._COMPLEX_... */
  CFG_COMMIT_STATUS = 22,          /**< VAL_UNCOMMITTED; read only */
  CFG_VERSION = 23,                /**< text of at most 198 characters; read only */
  CFG_RESERVED_24 = 24,            /**< not offered */
  CFG_RESERVED_25 = 25,            /**< not offered */
  CFG_NUMBER_OF_USER_THREADS = 26  /**< 1 */
};

/** Values of parameters. */
enum {
  VAL_COMMITTED = 30,
  VAL_UNCOMMITTED = 31,
  VAL_COMPLEX = 32,         /**< complex data both ways */
  VAL_REAL = 33,            /**< real data, conjugate-even transform */
  VAL_SINGLE = 35,          /**< precision */
  VAL_DOUBLE = 36,          /**< precision */
  VAL_COMPLEX_COMPLEX = 39, /**< storage: interleaved complex numbers */
  VAL_STORAGE_40 = 40,      /**< storage: conjugate-even data packed into real numbers */
  VAL_STORAGE_41 = 41,      /**< known, not offered */
  VAL_REAL_REAL = 42,       /**< storage: real and imaginary parts in an array each */
  VAL_INPLACE = 43,         /**< placement: the result overwrites the data */
  VAL_NOT_INPLACE = 44,     /**< placement: the result goes to arrays of its own */
  VAL_ORDERED = 48,         /**< natural order */
  VAL_OUT_OF_ORDER = 49,    /**< forward results and backward data may stay in the kernels' own order */
  VAL_ORDERING_50 = 50,     /**< known, not offered */
  VAL_NONE = 53,            /**< no transposition */
  VAL_CCS_FORMAT = 54,      /**< Re X[0], 0, Re X[1], Im X[1], ..., Re X[n/2], 0 */
  VAL_PACK_FORMAT = 55,     /**< Re X[0], Re X[1], Im X[1], ..., Re X[n/2] */
  VAL_PERM_FORMAT = 56,     /**< Re X[0], Re X[n/2], Re X[1], Im X[1], ... */
  VAL_COMPLEX_FORMAT = 57   /**< n/2 + 1 complex numbers */
};

/* Life of a descriptor */

/** A descriptor of `rank` 1 to 7 dimensions. The further argument is the length for rank 1, else a pointer to
 *  rank lengths, the last varying fastest. A bad precision, domain, rank or length: STATUS_INVALID_ARGUMENT;
 *  real data of rank 4 and more: STATUS_UNIMPLEMENTED. After a failure `*handle` is as it was. */
int DftiCreateDescriptor(DftiRecord** handle, int precision, int domain, int rank, ...);

/** @{ */
/** The same of a fixed precision, for one dimension and for many. */
int DftiCreateDescriptor_s_1d(DftiRecord** handle, int domain, int length);
int DftiCreateDescriptor_d_1d(DftiRecord** handle, int domain, int length);
int DftiCreateDescriptor_s_md(DftiRecord** handle, int domain, int rank, const int* lengths);
int DftiCreateDescriptor_d_md(DftiRecord** handle, int domain, int rank, const int* lengths);
/** @} */

/** Builds tables and work memory for the configuration. May be repeated; after a failure the descriptor is
 *  uncommitted. */
int DftiCommitDescriptor(DftiRecord* handle);

/** A descriptor with the configuration of `source`, committed if that is. Tables are built anew. `*copy` is
 *  written on success only. */
int DftiCopyDescriptor(DftiRecord* source, DftiRecord** copy);

/** Releases everything, and nulls the handle. */
int DftiFreeDescriptor(DftiRecord** handle);

/** @{ */
/** Transforms. In place: the data, or its real and its imaginary array. Not in place: the input, one array or
 *  two, then the output, one or two. STATUS_INVALID_ARGUMENT without a commit. The handle is not checked
 *  further. */
int DftiComputeForward(DftiRecord* handle, ...);
int DftiComputeBackward(DftiRecord* handle, ...);
/** @} */

/* Configuration */

/** Sets a parameter to the further argument: an int; a double for the scales in either precision; const int*
 *  to rank + 1 numbers for strides; const char* for the name, of which nine characters are kept. */
int DftiSetValue(DftiRecord* handle, int key, ...);

/** Reads a parameter into what the further argument points to: an int; a float or double, by the
 * descriptor's precision, for a scale; rank ints for the lengths, rank + 1 for strides; 10 characters for the
 * name, 198 for the version. */
int DftiGetValue(DftiRecord* handle, int key, ...);

/** 1 if `status` is of the class `cls`, else 0. Each status is a class of its own. */
int DftiErrorClass(int status, int cls);

/** A sentence for a status, valid until the calling thread asks for its next message. */
const char* DftiErrorMessage(int status);

/* The same for Fortran: every argument by reference, lengths and strides fastest dimension first. A null
   pointer gives STATUS_BAD_PARAMETER. */

/** @{ */
/** One length, `rank` must be 1; or 1 to 7 lengths. */
int orb_dft_dfti_create_descriptor_1d(DftiRecord** handle, const int* precision, const int* domain,
                                      const int* rank, const int* length);
int orb_dft_dfti_create_descriptor_highd(DftiRecord** handle, const int* precision, const int* domain,
                                         const int* rank, const int* lengths);
/** @} */

/** @{ */
/** The same where the type of `precision` tells the entry: its value must be 35.0, or 36.0 as double. */
int orb_dft_dfti_create_descriptor_s_1d(DftiRecord** handle, const float* precision, const int* domain,
                                        const int* rank, const int* length);
int orb_dft_dfti_create_descriptor_d_1d(DftiRecord** handle, const double* precision, const int* domain,
                                        const int* rank, const int* length);
int orb_dft_dfti_create_descriptor_s_md(DftiRecord** handle, const float* precision, const int* domain,
                                        const int* rank, const int* lengths);
int orb_dft_dfti_create_descriptor_d_md(DftiRecord** handle, const double* precision, const int* domain,
                                        const int* rank, const int* lengths);
/** @} */

/** @{ */
/** As the C calls of these names. */
int orb_dft_dfti_commit_descriptor_external(DftiRecord** handle);
int orb_dft_dfti_free_descriptor_external(DftiRecord** handle);
int orb_dft_dfti_copy_descriptor_external(DftiRecord** source, DftiRecord** copy);
int orb_dft_dfti_error_class_external(const int* status, const int* cls);
/** @} */

/** The sentence for a status into `length` characters, cut or filled with blanks, no terminator. */
int orb_dft_dfti_error_message_external(char* buffer, const int* length, const int* status);

/** @{ */
/** Sets a number; a scale; offset and strides (rank + 1 numbers); the name (10 characters, filled with
 *  blanks). A key of another kind gives STATUS_BAD_PARAMETER. */
int orb_dft_dfti_set_value_intval(DftiRecord** handle, const int* key, const int* value);
int orb_dft_dfti_set_value_sglval(DftiRecord** handle, const int* key, const float* value);
int orb_dft_dfti_set_value_dblval(DftiRecord** handle, const int* key, const double* value);
int orb_dft_dfti_set_value_intvec(DftiRecord** handle, const int* key, const int* value);
int orb_dft_dfti_set_value_chars(DftiRecord** handle, const int* key, const char* value, const int* length);
/** @} */

/** @{ */
/** Reads a number (of the lengths: at rank 1 only); a scale; all lengths, or offset and strides; the name or
 *  the version, cut or filled with blanks. */
int orb_dft_dfti_get_value_intval(DftiRecord** handle, const int* key, int* value);
int orb_dft_dfti_get_value_sglval(DftiRecord** handle, const int* key, float* value);
int orb_dft_dfti_get_value_dblval(DftiRecord** handle, const int* key, double* value);
int orb_dft_dfti_get_value_intvec(DftiRecord** handle, const int* key, int* value);
int orb_dft_dfti_get_value_chars(DftiRecord** handle, const int* key, char* value, const int* length);
/** @} */

/** @{ */
/** Transforms of exactly as many arrays as there are letters; the letters name the elements: s float, d
 *  double, c and z complex. `_out` is another name of the form with two arrays. In this order: null pointer
 * or handle STATUS_BAD_DESCRIPTOR; no descriptor the same; another number of arrays STATUS_BAD_PARAMETER; not
 *  committed STATUS_INVALID_ARGUMENT. */
int orb_dft_dfti_compute_forward_c(DftiRecord** handle, orb_complex_float* data);
int orb_dft_dfti_compute_forward_c_out(DftiRecord** handle, const orb_complex_float* in,
                                       orb_complex_float* out);
int orb_dft_dfti_compute_forward_cc(DftiRecord** handle, const orb_complex_float* in, orb_complex_float* out);
int orb_dft_dfti_compute_forward_cs(DftiRecord** handle, const orb_complex_float* in, float* out);
int orb_dft_dfti_compute_forward_d(DftiRecord** handle, double* data);
int orb_dft_dfti_compute_forward_d_out(DftiRecord** handle, double* a, double* b);
int orb_dft_dfti_compute_forward_dd(DftiRecord** handle, double* a, double* b);
int orb_dft_dfti_compute_forward_dddd(DftiRecord** handle, const double* in_re, const double* in_im,
                                      double* out_re, double* out_im);
int orb_dft_dfti_compute_forward_dz(DftiRecord** handle, const double* in, orb_complex_double* out);
int orb_dft_dfti_compute_forward_dz_out(DftiRecord** handle, const double* in, orb_complex_double* out);
int orb_dft_dfti_compute_forward_s(DftiRecord** handle, float* data);
int orb_dft_dfti_compute_forward_s_out(DftiRecord** handle, float* a, float* b);
int orb_dft_dfti_compute_forward_sc(DftiRecord** handle, const float* in, orb_complex_float* out);
int orb_dft_dfti_compute_forward_sc_out(DftiRecord** handle, const float* in, orb_complex_float* out);
int orb_dft_dfti_compute_forward_ss(DftiRecord** handle, float* a, float* b);
int orb_dft_dfti_compute_forward_ssss(DftiRecord** handle, const float* in_re, const float* in_im,
                                      float* out_re, float* out_im);
int orb_dft_dfti_compute_forward_z(DftiRecord** handle, orb_complex_double* data);
int orb_dft_dfti_compute_forward_z_out(DftiRecord** handle, const orb_complex_double* in,
                                       orb_complex_double* out);
int orb_dft_dfti_compute_forward_zd(DftiRecord** handle, const orb_complex_double* in, double* out);
int orb_dft_dfti_compute_forward_zz(DftiRecord** handle, const orb_complex_double* in,
                                    orb_complex_double* out);
int orb_dft_dfti_compute_backward_c(DftiRecord** handle, orb_complex_float* data);
int orb_dft_dfti_compute_backward_c_out(DftiRecord** handle, const orb_complex_float* in,
                                        orb_complex_float* out);
int orb_dft_dfti_compute_backward_cc(DftiRecord** handle, const orb_complex_float* in,
                                     orb_complex_float* out);
int orb_dft_dfti_compute_backward_cs(DftiRecord** handle, const orb_complex_float* in, float* out);
int orb_dft_dfti_compute_backward_cs_out(DftiRecord** handle, const orb_complex_float* in, float* out);
int orb_dft_dfti_compute_backward_d(DftiRecord** handle, double* data);
int orb_dft_dfti_compute_backward_d_out(DftiRecord** handle, double* a, double* b);
int orb_dft_dfti_compute_backward_dd(DftiRecord** handle, double* a, double* b);
int orb_dft_dfti_compute_backward_dddd(DftiRecord** handle, const double* in_re, const double* in_im,
                                       double* out_re, double* out_im);
int orb_dft_dfti_compute_backward_dz(DftiRecord** handle, const double* in, orb_complex_double* out);
int orb_dft_dfti_compute_backward_s(DftiRecord** handle, float* data);
int orb_dft_dfti_compute_backward_s_out(DftiRecord** handle, float* a, float* b);
int orb_dft_dfti_compute_backward_sc(DftiRecord** handle, const float* in, orb_complex_float* out);
int orb_dft_dfti_compute_backward_ss(DftiRecord** handle, float* a, float* b);
int orb_dft_dfti_compute_backward_ssss(DftiRecord** handle, const float* in_re, const float* in_im,
                                       float* out_re, float* out_im);
int orb_dft_dfti_compute_backward_z(DftiRecord** handle, orb_complex_double* data);
int orb_dft_dfti_compute_backward_z_out(DftiRecord** handle, const orb_complex_double* in,
                                        orb_complex_double* out);
int orb_dft_dfti_compute_backward_zd(DftiRecord** handle, const orb_complex_double* in, double* out);
int orb_dft_dfti_compute_backward_zd_out(DftiRecord** handle, const orb_complex_double* in, double* out);
int orb_dft_dfti_compute_backward_zz(DftiRecord** handle, const orb_complex_double* in,
                                     orb_complex_double* out);
/** @} */

ORB_END_DECLS

#endif
