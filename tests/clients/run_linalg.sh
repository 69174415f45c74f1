#!/usr/bin/env bash
# run_linalg.sh LIBRARIES: for a system with NumPy, SciPy and Octave on it: their linear algebra on the libblas.so.3 in
# LIBRARIES and the plain LAPACK. Prints a line for each: name, tests run, failures; failed tests as comments before it.
set -u
here=$(dirname "$(readlink -f "$0")")
lapack=$(dirname "$(find /usr/lib -path '*/lapack/liblapack.so.3' | head -n 1)")
export LD_LIBRARY_PATH=$1:$lapack
cd "$(mktemp -d)" || exit 1

library=$(ldd "$(find /usr/lib/python3 -name '_flapack*.so' | head -n 1)" | sed -n 's/.*libblas.so.3 => \([^ ]*\).*/\1/p')
[ "$library" = "$1/libblas.so.3" ] || { echo "run_linalg.sh: the programs would use $library" >&2; exit 1; }

suite() {
  python3 -m pytest -q -p no:cacheprovider --junitxml=report.xml --pyargs "$1" >suite.log 2>&1
  python3 - "$1" <<'PYTHON'
import sys, xml.etree.ElementTree as tree
try:
    cases = list(tree.parse("report.xml").iter("testcase"))
except Exception as problem:
    print("#", problem)
    cases = []
bad = [c for c in cases if c.find("failure") is not None or c.find("error") is not None]
for c in bad:
    print("#", c.get("classname"), c.get("name"))
skipped = sum(c.find("skipped") is not None for c in cases)
print(sys.argv[1], len(cases) - skipped, len(bad) if cases else 1)
PYTHON
  rm -f report.xml
}
suite numpy.linalg
suite scipy.linalg
octave-cli --norc --quiet "$here/octave_check.m" 2>octave.log || { cat octave.log >&2; echo "octave 0 1"; }
