// What the binary interface fixes for every family: how an entry is exported and how option letters are read.
#pragma once

#include <float.h>

static_assert(sizeof(void*) == 4 && FLT_EVAL_METHOD == 0,
              "build for 32-bit x86 with arithmetic in the SSE registers: -m32 -msse3 -mfpmath=sse");

// Marks the definition of an exported entry. Old callers keep the stack only 4-byte aligned, so an entry
// aligns it for itself before any SSE code runs.
#define ORB_EXPORT extern "C" __attribute__((visibility("default"), force_align_arg_pointer))
#define ORB_INLINE inline __attribute__((always_inline))
// The same for a lambda, behind its parameters. Left to the compiler, a long straight run of calls may stop
// being inlined, and everything that the lambda captures then moves to the stack.
#define ORB_INLINE_BODY __attribute__((always_inline))

namespace orb {

// Is the option letter at p this one? Case is ignored and nothing behind the letter is read. `upper` is a
// capital: setting bit 5 folds the cases of a letter, and nothing else folds onto a letter but its other
// case.
ORB_INLINE bool is_option(const char* p, char upper) { return (*p | 0x20) == (upper | 0x20); }

}  // namespace orb
