// Memory for the kernels: scratch out of the calling thread's cache, long-lived blocks from the system.
#include <pthread.h>
#include <stdlib.h>

#include <bit>

#include "orb/services.h"
#include "outer/boundary.h"
#include "outer/messages.h"
#include "outer/scratch_cache.h"

namespace orb {
namespace {

// Any alignment is made a power of two, `least` or more.
size_t sound_alignment(int alignment, size_t least) {
  return alignment > int(least) ? std::bit_ceil(unsigned(alignment)) : least;
}

struct ThreadScratch {
  ScratchCache cache;
  bool released_at_end;  // is the thread's end known to release it?
};
// A few words of static thread storage: reached by one instruction, which a library loaded late may ask for.
constinit thread_local ThreadScratch scratch __attribute__((tls_model("initial-exec"))){};

pthread_once_t key_once = PTHREAD_ONCE_INIT;
pthread_key_t key;

void release(void* p) {
  auto* s = static_cast<ThreadScratch*>(p);
  s->released_at_end = false;
  s->cache.release_all();
}

// The key only carries the thread's end to release(). Without one the blocks of ended threads would be lost,
// so that nothing is kept then.
__attribute__((noinline)) bool release_at_thread_end() {
  pthread_once(&key_once, [] {
    if (pthread_key_create(&key, release) != 0) key = pthread_key_t(-1);
  });
  return scratch.released_at_end = key != pthread_key_t(-1) && pthread_setspecific(key, &scratch) == 0;
}

// At exit there is no end of thread for the main one.
__attribute__((destructor)) void release_of_exiting_thread() { scratch.cache.release_all(); }

}  // namespace
}  // namespace orb

ORB_EXPORT void* orb_serv_allocate(int bytes, int alignment) {
  const size_t wanted = bytes > 0 ? size_t(bytes) : 1;
  void* memory = orb::scratch.cache.take(wanted, orb::sound_alignment(alignment, 128));
  if (!memory) orb::stop(orb_serv_orb_get_msg(orb::out_of_scratch, 1, bytes));
  return memory;
}

ORB_EXPORT void orb_serv_deallocate(void* block) {
  if (!block) return;
  orb::scratch.cache.give_back(block);
  if (!orb::scratch.released_at_end && !orb::release_at_thread_end()) orb::scratch.cache.release_all();
}

ORB_EXPORT void* orb_serv_orb_malloc(int bytes, int alignment) {
  void* memory;
  if (bytes < 0 ||
      posix_memalign(&memory, orb::sound_alignment(alignment, 16), bytes ? size_t(bytes) : 1) != 0)
    return nullptr;
  return memory;
}

ORB_EXPORT void orb_serv_orb_free(void* block) { free(block); }

extern "C" {
void* (*i_malloc)(size_t) = malloc;
void (*i_free)(void*) = free;
}
