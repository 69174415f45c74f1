// Calls an entry the way an old caller may: stack only 4-byte aligned, arguments pushed as words. Afterwards
// the x87 stack must be empty and both control words unchanged.
#pragma once

#include <stdint.h>
#include <string.h>

#include <type_traits>

#include "gtest/gtest.h"

namespace orb::test {

// Calls f with the stack `skew` bytes below a 16-byte boundary; the result stays where f left it.
extern "C" void orb_test_call_words(void* f, const uint32_t* words, int count, int skew);

struct ControlWords {
  uint32_t mxcsr;  // without the sticky exception flags
  uint16_t x87, tags;
  bool operator==(const ControlWords&) const = default;
};
ControlWords control_words();

struct Words {
  uint32_t at[32];
  int count = 0;

  template <class T>
  void push(T value) {
    static_assert(sizeof(T) % 4 == 0);
    memcpy(at + count, &value, sizeof value);
    count += int(sizeof(T) / 4);
  }
};

template <class R, class... P, class... A>
R call(R (*f)(P...), A... arguments) {
  static_assert(sizeof...(P) == sizeof...(A));
  static int turn = 0;
  const int skew = 4 * (turn++ % 4);
  Words words;
  (words.push<P>(arguments), ...);
  const ControlWords before = control_words();
  const auto enter = reinterpret_cast<R (*)(void*, const uint32_t*, int, int)>(
      reinterpret_cast<void*>(&orb_test_call_words));
  const auto check = [&] { EXPECT_TRUE(control_words() == before) << "control words or x87 stack changed"; };
  if constexpr (std::is_void_v<R>) {
    enter(reinterpret_cast<void*>(f), words.at, words.count, skew);
    check();
  } else {
    const R result = enter(reinterpret_cast<void*>(f), words.at, words.count, skew);
    check();
    return result;
  }
}

}  // namespace orb::test
