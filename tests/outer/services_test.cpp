#include "orb/services.h"

#include <malloc.h>
#include <string.h>

#include <string>
#include <thread>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/call.h"

using orb::test::call;

namespace {

bool aligned(void* p, int alignment) { return reinterpret_cast<uintptr_t>(p) % unsigned(alignment) == 0; }

constexpr int large = 2 << 20;

TEST(Scratch, HasTheAlignmentAndRoomAskedFor) {
  for (int alignment : {1, 16, 64, 100, 128, 4096, 1 << 16})
    for (int bytes : {-5, 0, 1, 63, 4096, 100'000, large}) {
      void* p = call(orb_serv_allocate, bytes, alignment);
      ASSERT_TRUE(p && aligned(p, alignment & -alignment)) << bytes << " at " << alignment;
      if (bytes > 0) memset(p, 0xAA, size_t(bytes));
      call(orb_serv_deallocate, p);
    }
  orb_serv_deallocate(nullptr);
}

TEST(Scratch, GivesAThreadItsBlocksAgain) {
  void* outer = orb_serv_allocate(large, 128);
  void* inner = orb_serv_allocate(100'000, 128);
  EXPECT_NE(outer, inner);
  for (int turn = 0; turn < 3; ++turn) {
    orb_serv_deallocate(inner);
    orb_serv_deallocate(outer);
    EXPECT_EQ(orb_serv_allocate(large - 1000, 64), outer);
    EXPECT_EQ(orb_serv_allocate(100'000, 128), inner) << "the smallest that fits";
  }
  std::thread([&] {  // a block may come back from another thread, and stays there
    orb_serv_deallocate(outer);
    EXPECT_EQ(orb_serv_allocate(large, 128), outer);
    orb_serv_deallocate(outer);
  })
      .join();
  orb_serv_deallocate(inner);
}

#if !ORB_SANITIZED  // the allocator of that preset keeps no such count, and ends the process itself
// What the system's allocator has handed out beyond its heap: all blocks of half a megabyte and more.
size_t large_blocks() { return mallinfo2().hblkhd; }
TEST(Scratch, KeepsNoMoreThanItsBoundsAndNothingPastItsThread) {
  const size_t before = large_blocks();
  std::thread([&] {
    std::vector<void*> blocks;
    for (int i = 0; i < 12; ++i) blocks.push_back(orb_serv_allocate(large, 128));
    blocks.push_back(orb_serv_allocate(40 << 20, 128));
    for (void* p : blocks) orb_serv_deallocate(p);
    EXPECT_GE(large_blocks(), before + size_t(large)) << "nothing kept";
    EXPECT_LE(large_blocks(), before + (9u << 20));
  }).join();
  EXPECT_LE(large_blocks(), before);
}

TEST(Scratch, StopsTheProcessWhenThereIsNone) {
  EXPECT_EXIT(for (;;) memset(orb_serv_allocate(1 << 30, 128), 0, 1), testing::ExitedWithCode(127),
              "orb: out of memory: no 1073741824 bytes of scratch");
}

TEST(LongLivedMemory, IsNullWhenThereIsNone) { EXPECT_EQ(orb_serv_orb_malloc(0x7FFFFFFF, 64), nullptr); }
#endif

TEST(LongLivedMemory, HasTheAlignmentAskedForOrIsNull) {
  for (int alignment : {-1, 0, 1, 16, 24, 32, 64, 128, 4096})
    for (int bytes : {0, 1, 1000, large}) {
      void* p = call(orb_serv_orb_malloc, bytes, alignment);
      ASSERT_TRUE(p && aligned(p, alignment > 0 ? alignment & -alignment : 16))
          << bytes << " at " << alignment;
      memset(p, 0xAA, size_t(bytes));
      call(orb_serv_orb_free, p);
    }
  EXPECT_EQ(orb_serv_orb_malloc(-1, 16), nullptr);
  orb_serv_orb_free(nullptr);
  void* p = i_malloc(10);
  EXPECT_NE(p, nullptr);
  i_free(p);
}

TEST(Text, LettersAreEqualButForCase) {
  const struct {
    char a, b;
    bool same;
  } cases[] = {{'n', 'N', true},  {'T', 'T', true},  {'z', 'Z', true},
               {'N', 'T', false}, {'@', '`', false}, {'[', '{', false}};
  for (const auto& c : cases) EXPECT_EQ(call(orb_serv_lsame, &c.a, &c.b, 1, 1) != 0, c.same) << c.a << c.b;
}

TEST(Text, VersionFillsTheBufferAndNoMore) {
  std::string fortran(200, '#'), c(200, '#');
  call(orb_serv_getversionstring, fortran.data(), 198);
  call(orb_serv_getversionstring_c, c.data(), 198);
  const size_t length = strlen(c.c_str());
  EXPECT_EQ(c.compare(0, 4, "orb "), 0);
  EXPECT_EQ(fortran, c.substr(0, length) + std::string(198 - length, ' ') + "##");
  for (int room : {0, 1, 5}) {
    std::string f(8, '#'), z(8, '#');
    orb_serv_getversionstring(f.data(), room);
    orb_serv_getversionstring_c(z.data(), room);
    EXPECT_EQ(f, c.substr(0, size_t(room)) + std::string(8 - size_t(room), '#'));
    EXPECT_EQ(z.substr(size_t(room)), std::string(8 - size_t(room), '#'));
    if (room > 0) {
      EXPECT_EQ(z.c_str(), c.substr(0, size_t(room) - 1));
    }
  }
}

TEST(Messages, FillPlaceholdersPerThread) {
  const std::string mine = orb_serv_orb_get_msg(10010, 2, "DGEMM ", 8);
  EXPECT_EQ(mine, " ** On entry to DGEMM  parameter number  8 had an illegal value");
  EXPECT_EQ(orb_serv_orb_get_msg(10010, 1, "DGEMM "),
            std::string(" ** On entry to %-6s parameter number %2d had an illegal value"))
      << "a value is missing";
  EXPECT_EQ(orb_serv_orb_get_msg(-3, 0), std::string("message -3 is not in the catalogue"));
  const char* held = orb_serv_orb_get_msg(10011, 2, 1, "a");
  std::thread([&] { EXPECT_NE(orb_serv_orb_get_msg(10011, 2, 2, "b"), held); }).join();
  EXPECT_STREQ(held, "Parameter 1 to routine a was incorrect");
  testing::internal::CaptureStdout();
  orb_serv_orb_print(1, 10011, 2, 9, "cblas_dgemm");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "Parameter 9 to routine cblas_dgemm was incorrect\n");
}

TEST(Lock, LetsOneThreadInAtATime) {
  int count = 0;
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([&] {
      for (int i = 0; i < 20'000; ++i) {
        orb_serv_lock();
        ++count;
        orb_serv_unlock();
      }
    });
  for (auto& t : threads) t.join();
  EXPECT_EQ(count, 80'000);
}

}  // namespace
