// A kernel library for some other processor class.
extern "C" __attribute__((visibility("default"))) int dll_cpu_version() { return 7; }
