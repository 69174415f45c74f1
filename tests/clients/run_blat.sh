#!/usr/bin/env bash
# run_blat.sh PROGRAMS LIBRARIES FOLDER: the BLAS test programs in PROGRAMS, on the libblas.so.3 in LIBRARIES; their output
# goes to FOLDER. Prints a line for each: name, tests run, failures.
set -u
programs=$1 libraries=$2 folder=$3
mkdir -p "$folder" && cd "$folder" || exit 1

# Level 1 of Fortran says PASS for each routine, the others "PASSED THE TESTS" and "PASSED THE COMPUTATIONAL TESTS"; what
# fails is marked by FAIL or a row of asterisks.
count() { grep -cE "$1" "$2" || true; }
report() {
  local status=$1 name=$2 output=$3 failed
  failed=$(count 'FAIL|\*\*\*\*\*\*|FATAL' "$output")
  [ "$status" = 0 ] || failed=$((failed + 1))
  printf '%s %d %d\n' "$name" "$(($(count 'PASS' "$output") + failed))" "$failed"
}

for type in s d c z; do
  for level in 1 2 3; do
    input=/dev/null
    [ $level = 1 ] || input=$programs/${type}blat$level.in
    rm -f ${type}blat$level.out
    LD_LIBRARY_PATH=$libraries "$programs/xblat$level$type" <"$input" >"xblat$level$type.log" 2>&1
    status=$?
    [ -f ${type}blat$level.out ] && cat ${type}blat$level.out >>"xblat$level$type.log"
    report $status "xblat$level$type" "xblat$level$type.log"
    [ $level = 1 ] || input=$programs/${type}in$level
    LD_LIBRARY_PATH=$libraries "$programs/x${type}cblat$level" <"$input" >"x${type}cblat$level.log" 2>&1
    report $? "x${type}cblat$level" "x${type}cblat$level.log"
  done
done
