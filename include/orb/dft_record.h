/** @file
 *  The record behind a descriptor of a discrete Fourier transform: one per dimension, all in one allocation,
 *  chained with the fastest-varying dimension first. The handle is the first record, the head, which carries
 * what the whole descriptor shares. Programs use the calls of dfti.h and need nothing of this; it is for
 * outer layers, which commit descriptors and compute them on several threads.
 */
#ifndef ORB_DFT_RECORD_H
#define ORB_DFT_RECORD_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** One dimension of a descriptor; the first one is its handle. */
typedef struct DftiRecord DftiRecord;
/** A way to take a whole descriptor. */
typedef struct DftiBreakdown DftiBreakdown;
struct VspsDFTSpec;

/** Transforms through a whole descriptor. All four words stand on the stack, however many arrays the
 *  configuration has; a routine reads those that it needs. */
typedef int (*DftiCompute)(DftiRecord* head, void* a1, void* a2, void* a3, void* a4);
/** Commits the descriptor whose handle stands at `handle`. */
typedef int (*DftiCommit)(DftiRecord** handle);
/** Transforms one contiguous line along the record's dimension. Where parts are stored apart, `in` and `out`
 *  point to a pair of pointers, real part first. `work` has the record's work_size bytes. */
typedef int (*DftiLine)(const void* in, void* out, DftiRecord* record, void* work);
/** Transforms one two-dimensional slice; the routines are declared in dft_compute.h. */
typedef void (*DftiSlice)(void);
/** A real transform of the signal kernels in the chosen packed format. */
typedef int (*DftiPacked)(const void* in, void* out, const struct VspsDFTSpec* spec, void* work);

/** A way to take a whole descriptor, tried before the general commit. */
struct DftiBreakdown {
  double (*applicable)(const DftiBreakdown* self, DftiRecord* head); /**< 0: not for this descriptor */
  int (*commit)(const DftiBreakdown* self, DftiRecord* head);        /**< 0, or why it gave up */
  int (*myfree)(const DftiBreakdown* self, DftiRecord* head);        /**< releases backend_state */
};

/** The record of one dimension, fastest first, chained by `next`. */
struct DftiRecord {
  DftiCompute compute_forward;          /**< null when not committed */
  DftiCompute compute_backward;         /**< null when not committed */
  const DftiBreakdown* backend;         /**< the breakdown that took the commit, or null */
  void* backend_state;                  /**< its own block */
  int io_arg_count;                     /**< data arguments of a compute call: 1, 2 or 4 */
  unsigned char mode_flags;             /**< see DFT_MODE_... */
  unsigned magic;                       /**< DFT_MAGIC */
  int commit_status;                    /**< VAL_COMMITTED or VAL_UNCOMMITTED */
  DftiCommit commit_routine;            /**< of the outer layer, settled at create */
  char name[10];                        /**< no terminator promised */
  unsigned reserved_head;               /**< carried from the head to every record */
  int forward_domain;                   /**< VAL_COMPLEX or VAL_REAL */
  int precision;                        /**< VAL_SINGLE or VAL_DOUBLE */
  int number_of_transforms;             /**< transforms of a batch */
  int complex_storage;                  /**< interleaved, or parts apart */
  int real_storage;                     /**< VAL_REAL_REAL */
  int conjugate_even_storage;           /**< of the transform of real data */
  int placement;                        /**< in place or not */
  int packed_format;                    /**< of the transform of real data */
  int input_stride;                     /**< elements from one to the next along this dimension */
  int output_stride;                    /**< the same for the output */
  unsigned reserved_a;                  /**< carried from the head to every record */
  unsigned reserved_b;                  /**< carried from the head to every record */
  int ordering;                         /**< natural or the kernels' own */
  int transpose;                        /**< VAL_NONE */
  int rank;                             /**< dimensions of the descriptor */
  int dimension_index;                  /**< place in the chain, from 0 */
  int length;                           /**< length of this dimension */
  int half_length;                      /**< length / 2 + 1 in the head, length elsewhere */
  void* twiddle_table;                  /**< native tables, on a 64-byte boundary */
  void* aux_table;                      /**< second table of a route through two dimensions */
  float forward_scale_f;                /**< forward scale, single */
  double forward_scale_d;               /**< forward scale, double */
  float backward_scale_f;               /**< backward scale, single */
  double backward_scale_d;              /**< backward scale, double */
  int log2_length;                      /**< place of the highest bit of `length` */
  int input_offset;                     /**< elements to skip in the input */
  int output_offset;                    /**< elements to skip in the output */
  int input_distance;                   /**< elements from one transform of a batch to the next */
  int output_distance;                  /**< the same for the output */
  int use_signal_kernels;               /**< 1: this dimension runs on the signal kernels */
  int cumulative_length;                /**< product of the lengths up to this one */
  int cumulative_half_length;           /**< product of the half lengths up to this one */
  DftiRecord* previous;                 /**< null at the head */
  DftiRecord* next;                     /**< null at the end */
  DftiLine bwd_s;                       /**< lines of this dimension: backward, single */
  DftiLine fwd_s;                       /**< forward, single */
  DftiLine bwd_d;                       /**< backward, double */
  DftiLine fwd_d;                       /**< forward, double */
  DftiLine par_bwd_s;                   /**< whole transforms on threads of the outer layer */
  DftiLine par_fwd_s;                   /**< forward, single */
  DftiLine par_bwd_d;                   /**< backward, double */
  DftiLine par_fwd_d;                   /**< forward, double */
  DftiLine real_inv_s;                  /**< lines of real data: to real, single */
  DftiLine real_fwd_s;                  /**< from real, single */
  DftiLine real_inv_d;                  /**< to real, double */
  DftiLine real_fwd_d;                  /**< from real, double */
  DftiLine outer_routine[4];            /**< of the outer layer, read when threads are settled */
  DftiSlice drv2d_c;                    /**< slices of complex data, single */
  DftiSlice drv2d_z;                    /**< complex, double */
  DftiSlice drv2d_sc;                   /**< real to complex, single */
  DftiSlice drv2d_dz;                   /**< real to complex, double */
  DftiSlice drv2d_cs;                   /**< complex to real, single */
  DftiSlice drv2d_zd;                   /**< complex to real, double */
  DftiPacked real_inv_s_fmt;            /**< signal kernels of the packed format: to real, single */
  DftiPacked real_fwd_s_fmt;            /**< from real, single */
  DftiPacked real_inv_d_fmt;            /**< to real, double */
  DftiPacked real_fwd_d_fmt;            /**< from real, double */
  int max_length;                       /**< largest length of all dimensions */
  struct VspsDFTSpec* spec_dft_c_32fc;  /**< tables of the signal kernels, owned by this record */
  struct VspsDFTSpec* spec_dft_c_64fc;  /**< complex, double */
  struct VspsDFTSpec* spec_dft_c_32f;   /**< parts apart, single */
  struct VspsDFTSpec* spec_dft_c_64f;   /**< parts apart, double */
  struct VspsDFTSpec* spec_dft_r_32f;   /**< real, single */
  struct VspsDFTSpec* spec_dft_r_64f;   /**< real, double */
  struct VspsDFTSpec* spec_outord_32fc; /**< scrambled, single */
  struct VspsDFTSpec* spec_outord_64fc; /**< scrambled, double */
  unsigned work_size;                   /**< work bytes of a line */
  unsigned max_work_size;               /**< head: bytes of one slice of work_buffer */
  void* work_buffer;                    /**< head: work memory, a slice per thread */
  void* aux_buffer;                     /**< freed with the record */
  int number_of_user_threads;           /**< callers' threads that may compute at once */
  int thread_count;                     /**< threads that one compute call may use */
  int split_rows;                       /**< two dimensions: rows may be divided */
  int split_cols;                       /**< two dimensions: columns may be divided */
  int* thread_slots;                    /**< a word per user thread, 1 while its slice is in use */
  void* parallel_data;                  /**< of a whole-transform routine; null when there is none */
  void (*free_parallel_data)(DftiRecord* record); /**< releases parallel_data, or null */
};

/** The bytes "D", "F", "T", 0. */
#define DFT_MAGIC 0x544644u

/** Bits of `mode_flags`, settled at commit. */
enum {
  DFT_MODE_ONE_LINE = 1, /**< one contiguous transform: the line routine can be called as it is */
  DFT_MODE_SLICE = 2,    /**< the two-dimensional driver is called at once */
  DFT_MODE_AT_ONCE = 4   /**< one line, and no user threads or batches to look after */
};

ORB_END_DECLS

#endif
