#!/bin/sh
# Sets up what is missing, builds Times / Readings and starts it.
# Without a display it starts a virtual one, saves a screenshot of the program there and says where.
set -eu
cd "$(dirname "$0")"
. tools/packages.sh

# shellcheck disable=SC2086
tools/install_packages $build_packages googletest $wine_packages
echo "Building ..."
cmake --preset windows >/dev/null
cmake --build --preset windows --target shabbat

if [ -n "${DISPLAY-}" ]; then
  echo "Starting ..."
  tools/make_wine_prefix "$PWD/build/wine"
  exec tools/wine_run build/windows/program/shabbat.exe
fi

echo "No display: starting a virtual one ..."
screenshot=$PWD/build/screenshot.png
tools/with_display tools/take_screenshot "$screenshot"
echo "The program's screenshot: $screenshot"
