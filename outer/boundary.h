// The two kinds of entry of liborb.so. Callers may be old and keep the stack only 4-byte aligned.
#pragma once

#include "serv/kernel/boundary.h"

// An entry that does nothing but check and jump on into a kernel, with its own arguments: it has no stack
// frame, so that no alignment is needed and the way into the kernel costs a few instructions. Anything more
// is ORB_EXPORT, which aligns the stack for itself.
#define ORB_FACE extern "C" __attribute__((visibility("default")))

// A rare or costly way out of such an entry, kept out of its code.
#define ORB_ASIDE __attribute__((noinline, force_align_arg_pointer))
