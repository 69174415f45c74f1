/** @file
 *  Number types and declaration marks shared by all public headers. Usable from C and C++.
 */
#ifndef ORB_TYPES_H
#define ORB_TYPES_H

/** @{ */
/** Opens and closes a run of declarations with C linkage and public visibility. */
#ifdef __cplusplus
#define ORB_BEGIN_DECLS _Pragma("GCC visibility push(default)") extern "C" {
#define ORB_END_DECLS \
  }                   \
  _Pragma("GCC visibility pop")
#else
#define ORB_BEGIN_DECLS
#define ORB_END_DECLS
#endif
/** @} */

/** A single-precision complex number: two adjacent floats, real part first. Arrays are interleaved. */
typedef struct orb_complex_float {
  float re; /**< real part */
  float im; /**< imaginary part */
} orb_complex_float;

/** A double-precision complex number: two adjacent doubles, real part first. Arrays are interleaved. */
typedef struct orb_complex_double {
  double re; /**< real part */
  double im; /**< imaginary part */
} orb_complex_double;

#endif
