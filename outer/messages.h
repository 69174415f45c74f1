// Names of the messages that the outer layer itself gives, and its two ways to give one.
#pragma once

#include "orb/services.h"

namespace orb {

enum Message : int {
#define ORB_MESSAGE(number, name, text) name = number,
#include "outer/messages.def"
#undef ORB_MESSAGE
};

// "orb: <sentence>" on the standard error stream.
void warn(const char* sentence);

// The same, then the end of the process with exit status 127, as of a program that could not be loaded.
// Output already written to streams is flushed; exit handlers do not run, since any thread may come here,
// with locks held.
[[noreturn]] void stop(const char* sentence);

}  // namespace orb
