/** @file
 *  liborb.so as a whole: threads, and what the environment settles.
 *
 *  - `ORB_NUM_THREADS`: threads for large products, 1 to 256; read once.
 *  - `ORB_KERNEL_PATH`: the kernel library liborb_t7.so, or the directory that it lies in.
 *  - `ORB_L2_CLASS`, for tests: the class of the second-level cache instead of the processor's own, which is
 * 3 from 1 MiB on, 2 from 512 KiB, 1 below, 0 unknown.
 *  - `ORB_CPU_CLASS`, for tests: the processor class instead of the processor's own, which is 5 with SSSE3, 4
 *    with SSE3, 0 otherwise.
 *
 *  The kernel library is loaded at the first call that needs it: from ORB_KERNEL_PATH if that is set (and
 * from nowhere else then), otherwise from the directory in which liborb.so lies, otherwise from the library
 * path. If there is none, or none that suits, the process ends with a sentence on the standard error stream
 * and exit status 127; exit handlers do not run.
 *
 *  liborb.so may be loaded with dlopen() and RTLD_LOCAL. Since the kernel library has to find the services of
 *  liborb.so, its names then become global at that first call: libraries loaded later will see them.
 *  Once loaded, liborb.so stays until the process ends.
 */
#ifndef ORB_ORB_H
#define ORB_ORB_H

#include "orb/types.h"

ORB_BEGIN_DECLS

/** Sets the number of threads that large products may use from now on, in all threads of the process; numbers
 *  above 256 count as 256. A number below 1 takes the setting back: ORB_NUM_THREADS then counts, and without
 * it what OpenMP would use. */
void orb_set_num_threads(int threads);

/** The number of threads that a large product would use at most if it were called now: the setting above, but
 *  1 inside a parallel region of OpenMP and in a process forked off after threads had been used. */
int orb_get_max_threads(void);

ORB_END_DECLS

#endif
