#include "tests/support/call.h"

#include <xmmintrin.h>

asm(R"(
.text
.globl orb_test_call_words
.type orb_test_call_words, @function
orb_test_call_words:
  push %ebp
  mov %esp, %ebp
  push %esi
  push %edi
  mov 16(%ebp), %ecx
  lea (,%ecx,4), %eax
  sub %eax, %esp
  and $-16, %esp
  sub 20(%ebp), %esp
  mov %esp, %edi
  mov 12(%ebp), %esi
  cld
  rep movsl
  call *8(%ebp)
  lea -8(%ebp), %esp
  pop %edi
  pop %esi
  pop %ebp
  ret
.size orb_test_call_words, .-orb_test_call_words
)");

namespace orb::test {

ControlWords control_words() {
  struct {
    uint16_t control, pad0, status, pad1, tags, pad2;
    uint32_t rest[4];
  } x87;
  asm volatile("fnstenv %0\n\tfldenv %0" : "=m"(x87));
  return {_mm_getcsr() & ~0x3Fu, x87.control, x87.tags};
}

}  // namespace orb::test
