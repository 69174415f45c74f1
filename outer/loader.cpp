// Finds the kernel library, at the first call of any kernel, and checks that it is the right one.
#include <dlfcn.h>
#include <limits.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include "outer/kernels.h"
#include "outer/messages.h"
#include "outer/processor.h"

namespace orb {
namespace {

constexpr char file_name[] = "liborb_t7.so";
constexpr int driven_class = 3;  // x86-32 with SSE2 and SSE3

char loaded_path[PATH_MAX] = "liborb_t7.so";  // for messages; written once, by the loading thread

const char* last_error() {
  const char* text = dlerror();
  return text ? text : "no reason given";
}

// This library as the dynamic loader knows it.
Dl_info own_file() {
  Dl_info info{};
  dladdr(reinterpret_cast<void*>(&own_file), &info);
  return info;
}

// directory/liborb_t7.so, for the directory in which this library really lies: links to it are followed, and
// a relative name counts from the directory in which the process was when it loaded this library.
void beside_this_library(char (&path)[PATH_MAX]) {
  char name[2 * PATH_MAX], real[PATH_MAX];
  const char* own = own_file().dli_fname;
  void* self = dlopen(own, RTLD_LAZY | RTLD_NOLOAD);
  char origin[PATH_MAX];
  if (own[0] != '/' && self && dlinfo(self, RTLD_DI_ORIGIN, origin) == 0) {
    const char* slash = strrchr(own, '/');
    snprintf(name, sizeof name, "%s/%s", origin, slash ? slash + 1 : own);
    own = name;
  }
  if (self) dlclose(self);
  if (realpath(own, real)) own = real;
  const char* slash = strrchr(own, '/');
  const int length = slash ? int(slash - own) : 1;
  snprintf(path, sizeof path, "%.*s/%s", length, slash ? own : ".", file_name);
}

// ORB_KERNEL_PATH names the file, or the directory that it lies in.
bool from_environment(char (&path)[PATH_MAX]) {
  const char* place = secure_getenv("ORB_KERNEL_PATH");
  if (!place || !*place) return false;
  struct stat s;
  const bool directory = stat(place, &s) == 0 && S_ISDIR(s.st_mode);
  snprintf(path, sizeof path, directory ? "%s/%s" : "%s", place, file_name);
  return true;
}

// The kernel library leaves the services and upward entries of this library undefined. They are found if this
// library was loaded with the program or with RTLD_GLOBAL. A program that loaded it with RTLD_LOCAL, as
// scripting languages do, hides them; then this library is made global after the fact. Side effect: all names
// that it exports, the BLAS names too, become visible to libraries that are loaded from then on.
void make_services_visible() {
  void* program = dlopen(nullptr, RTLD_LAZY);
  const bool visible = program && dlsym(program, "orb_serv_allocate");
  if (program) dlclose(program);
  if (visible) return;
  const char* own = own_file().dli_fname;
  if (!dlopen(own, RTLD_LAZY | RTLD_NOLOAD | RTLD_GLOBAL))
    stop(orb_serv_orb_get_msg(services_not_visible, 2, own, last_error()));
}

void* open_library() {
  const int how = RTLD_NOW | RTLD_LOCAL;
  const bool settled = from_environment(loaded_path);
  if (!settled) beside_this_library(loaded_path);
  if (settled || access(loaded_path, F_OK) == 0) {
    if (void* library = dlopen(loaded_path, how)) return library;
    stop(orb_serv_orb_get_msg(kernels_not_loaded, 2, loaded_path, last_error()));
  }
  void* library = dlopen(file_name, how);
  if (!library) stop(orb_serv_orb_get_msg(kernels_not_found, 2, loaded_path, last_error()));
  snprintf(loaded_path, sizeof loaded_path, "%s", file_name);
  return library;
}

void check_class(void* library) {
  const auto identity = reinterpret_cast<int (*)()>(dlsym(library, "dll_cpu_version"));
  if (!identity) stop(orb_serv_orb_get_msg(kernels_without_entry, 2, loaded_path, "dll_cpu_version"));
  if (const int found = identity(); found != driven_class)
    stop(orb_serv_orb_get_msg(kernels_of_other_class, 3, loaded_path, found, driven_class));
  if (const Processor p = read_processor(); !p.sse2 || !p.sse3)
    stop(orb_serv_orb_get_msg(processor_too_old, 1, loaded_path));
}

// The name as the library has it, without the namespace of a tag.
constexpr const char* bare(const char* name) {
  const char* start = name;
  for (; *name; ++name)
    if (*name == ':') start = name + 1;
  return start;
}

template <auto* entry>
void resolve(void* library, const char* name) {
  if (void* p = dlsym(library, name))
    Kernel<entry>::address.store(reinterpret_cast<decltype(entry)>(p), std::memory_order_relaxed);
}

void load() {
  make_services_visible();
  void* library = open_library();
  check_class(library);
#define ORB_KERNEL(name) resolve<name>(library, bare(#name));
#include "outer/kernels.def"
#undef ORB_KERNEL
}

constinit pthread_once_t load_once = PTHREAD_ONCE_INIT;

template <auto* entry>
constexpr const char* name_of = nullptr;
#define ORB_KERNEL(name) \
  template <>            \
  constexpr const char* name_of<name> = bare(#name);
#include "outer/kernels.def"
#undef ORB_KERNEL

// The stand-in for a kernel, with its signature. Still in place after loading, it means a library without it.
template <auto* entry>
struct FirstCall;
template <class R, class... A, R (*entry)(A...)>
struct FirstCall<entry> {
  ORB_ASIDE static R run(A... arguments) {
    pthread_once(&load_once, load);
    const auto kernel = Kernel<entry>::address.load(std::memory_order_relaxed);
    if (kernel == run) stop(orb_serv_orb_get_msg(kernels_without_entry, 2, loaded_path, name_of<entry>));
    return kernel(arguments...);
  }
};

}  // namespace

#define ORB_KERNEL(name) \
  template <>            \
  constinit std::atomic<decltype(&name)> Kernel<name>::address{FirstCall<name>::run};
#include "outer/kernels.def"
#undef ORB_KERNEL

}  // namespace orb
