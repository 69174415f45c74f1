#include "outer/messages.h"

#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <atomic>

#include "outer/boundary.h"

namespace orb {
namespace {

struct Text {
  int number;
  const char* text;
};
constexpr Text catalogue[] = {
#define ORB_MESSAGE(number, name, text) {number, text},
#include "outer/messages.def"
#undef ORB_MESSAGE
};

constexpr size_t longest = 2048;

// The calling thread's buffer, freed at its end. Not thread storage of the library: all of that would have to
// be there from the start, since the scratch cache is.
char* thread_buffer() {
  static constinit pthread_once_t once = PTHREAD_ONCE_INIT;
  static constinit pthread_key_t key = 0;
  static constinit char shared[longest] = {};  // when memory is out, and this is a sentence about that
  pthread_once(&once, [] {
    if (pthread_key_create(&key, free) != 0) stop("out of keys for thread storage");
  });
  void* buffer = pthread_getspecific(key);
  if (!buffer) {
    buffer = malloc(longest);
    if (!buffer || pthread_setspecific(key, buffer) != 0) return free(buffer), shared;
  }
  return static_cast<char*>(buffer);
}

const char* find(int number) {
  for (const Text& t : catalogue)
    if (t.number == number) return t.text;
  return nullptr;
}

int placeholders(const char* text) {
  int count = 0;
  for (; *text; ++text)
    if (*text == '%') text[1] == '%' ? void(++text) : void(++count);
  return count;
}

// Never reads a value that was not passed: a text that wants more than `count` is given as it stands.
const char* compose(int number, int count, va_list values) {
  char* buffer = thread_buffer();
  const char* text = find(number);
  if (!text)
    snprintf(buffer, longest, "message %d is not in the catalogue", number);
  else if (placeholders(text) > count)
    snprintf(buffer, longest, "%s", text);
  else
    vsnprintf(buffer, longest, text, values);
  return buffer;
}

}  // namespace

void warn(const char* sentence) { fprintf(stderr, "orb: %s\n", sentence); }

void stop(const char* sentence) {
  static constinit std::atomic_flag stopping;
  while (stopping.test_and_set()) pause();  // one thread is enough to say it
  warn(sentence);
  fflush(nullptr);
  _exit(127);
}

}  // namespace orb

ORB_EXPORT const char* orb_serv_orb_get_msg(int number, int count, ...) {
  va_list values;
  va_start(values, count);
  const char* text = orb::compose(number, count, values);
  va_end(values);
  return text;
}

ORB_EXPORT void orb_serv_orb_print(int, int number, int count, ...) {
  va_list values;
  va_start(values, count);
  puts(orb::compose(number, count, values));
  va_end(values);
}
