#!/usr/bin/env bash
# install_test.sh CMAKE BUILD_TREE COMPILER FOLDER: installs into FOLDER and builds the consumer there by the CMake
# package, by orb.pc, and as a program that asks for "blas" and "cblas".
set -euo pipefail
cmake=$1 build=$2 compiler=$3 folder=$4
consumer=$(dirname "$0")/consumer
prefix=$folder/prefix
rm -rf "$prefix" "$folder/by_cmake"
"$cmake" --install "$build" --prefix "$prefix" >"$folder/install.log"

"$cmake" -G Ninja -S "$consumer" -B "$folder/by_cmake" -DCMAKE_C_COMPILER="$compiler" -DCMAKE_C_FLAGS=-m32 \
  -DCMAKE_PREFIX_PATH="$prefix" >"$folder/cmake.log"
"$cmake" --build "$folder/by_cmake" >>"$folder/cmake.log"
"$folder/by_cmake/consumer"

lib=$(dirname "$(find "$prefix" -name libblas.so.3)")
pkg() { PKG_CONFIG_PATH=$lib/pkgconfig pkg-config "$@"; }
"$compiler" -m32 "$consumer/main.c" $(pkg --cflags --libs orb) -Wl,-rpath,"$lib" -o "$folder/by_pkg_config"
"$folder/by_pkg_config"

"$compiler" -m32 "$consumer/main.c" $(pkg --cflags orb) -L"$lib" -lcblas -lblas -o "$folder/by_name"
LD_LIBRARY_PATH=$lib "$folder/by_name"
"$compiler" -m32 "$consumer/main.c" $(pkg --cflags orb) "$lib/libblas.so.3" -o "$folder/by_soname"
LD_LIBRARY_PATH=$lib "$folder/by_soname"
