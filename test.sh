#!/bin/sh
# Sets up what is missing, checks the sources, builds everything, and runs every test: the portable cores natively under
# ASan and UBSan and against fuzzers, then everything for Windows in Wine.
#
#   ./test.sh --fuzz   lets each fuzzer run for a minute instead of a few seconds
set -eu
fuzz_seconds=3
case "${1-}" in
  "") ;;
  --fuzz) fuzz_seconds=60 ;;
  *) echo "test.sh: unknown option $1; the only one is --fuzz" >&2; exit 2 ;;
esac
cd "$(dirname "$0")"
. tools/packages.sh

# shellcheck disable=SC2086
tools/install_packages $check_packages $build_packages $test_packages $printing_packages $wine_packages

tools/check_sources

echo "Building and testing natively ..."
cmake --preset native >/dev/null
cmake --build --preset native
ctest --preset native

echo "Fuzzing the portable cores ..."
tests/fuzz/run "$fuzz_seconds"

echo "Building and testing for Windows ..."
cmake --preset windows >/dev/null
cmake --build --preset windows
tools/with_display ctest --preset windows
