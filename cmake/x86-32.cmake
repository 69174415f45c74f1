# Tool chain of every build: 32-bit x86 with SSE2 and SSE3, arithmetic in the SSE registers, each operation
# rounded by itself. Nothing that changes values (fast-math, contraction) may be added here.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
foreach(language C CXX)
  set(CMAKE_${language}_FLAGS_INIT "-m32 -msse3 -mfpmath=sse -ffp-contract=off")
endforeach()
