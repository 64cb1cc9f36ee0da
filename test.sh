#!/bin/sh
# Sets up what is missing, checks the sources, builds everything, and runs every test: the portable cores natively under
# ASan and UBSan and against fuzzers, then everything for Windows in Wine.
#
#   ./test.sh --fuzz   lets each fuzzer run for a minute instead of a few seconds
#   ./test.sh --monkey [SEED [MINUTES]]   lets a monkey at the finished program instead, for ten minutes unless told
set -eu
fuzz_seconds=3
monkey=false
case "${1-}" in
  "") ;;
  --fuzz) fuzz_seconds=60 ;;
  --monkey) monkey=true; shift ;;
  *) echo "test.sh: unknown option $1; there are --fuzz and --monkey" >&2; exit 2 ;;
esac
cd "$(dirname "$0")"
. tools/packages.sh

if $monkey; then
  for number in "$@"; do
    case $number in
      *[!0-9]* | "") echo "test.sh: $number is no number; --monkey takes a seed and minutes" >&2; exit 2 ;;
    esac
  done
  # shellcheck disable=SC2086
  tools/install_packages $build_packages $wine_packages
  exec tests/monkey/run "$@"
fi

# shellcheck disable=SC2086
tools/install_packages $check_packages $build_packages $test_packages $printing_packages $packaging_packages \
  $wine_packages

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
