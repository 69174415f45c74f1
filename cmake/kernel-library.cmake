# liborb_t7.so: hidden by default, no start files, no C++ run-time, calls bound inside. Every family adds its
# sources to orb_kernels with orb_kernel_sources(); the objects are compiled once.
add_library(orb_kernels OBJECT)
target_link_libraries(orb_kernels PRIVATE orb_options)
set_target_properties(orb_kernels PROPERTIES
  CXX_VISIBILITY_PRESET hidden
  VISIBILITY_INLINES_HIDDEN ON)
# -fno-math-errno: kernels never set errno, so square roots are the bare instruction. Values do not change.
target_compile_options(orb_kernels PRIVATE
  -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-semantic-interposition -fno-math-errno)

add_library(orb_t7 SHARED)
target_link_libraries(orb_t7 PRIVATE orb_kernels m)
set_target_properties(orb_t7 PROPERTIES
  LINKER_LANGUAGE C
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
target_link_options(orb_t7 PRIVATE
  -nostartfiles -static-libgcc
  -Wl,-Bsymbolic -Wl,--as-needed -Wl,-z,relro -Wl,-z,noexecstack
  -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)

function(orb_kernel_sources)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  target_sources(orb_kernels PRIVATE ${ARGN})
endfunction()
