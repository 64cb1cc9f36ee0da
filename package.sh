#!/bin/sh
# Sets up what is missing, builds Times / Readings and packs it for its users into build/packages: the installer, the
# portable zip file, symbols, the list of components, checksums.
#
# Signed with a certificate when TIMES_READINGS_CERTIFICATE names one (see packaging/sign).
set -eu
# The files of the certificate may be named from the folder at hand.
for variable in TIMES_READINGS_CERTIFICATE TIMES_READINGS_CERTIFICATE_PASSWORD_FILE; do
  file=$(printenv "$variable" || true)
  [ -n "$file" ] || continue
  [ -r "$file" ] || { echo "package.sh: $file ($variable) cannot be read" >&2; exit 1; }
  export "$variable=$(realpath "$file")"
done
cd "$(dirname "$0")"
. tools/packages.sh

# shellcheck disable=SC2086
tools/install_packages $build_packages googletest $packaging_packages
echo "Building ..."
cmake --preset windows >/dev/null
cmake --build --preset windows --target shabbat
cmake --build --preset windows --target packages

echo "Packages in build/packages:"
(cd build/packages && du -h --apparent-size -- *.zip *.exe *.json SHA256SUMS)
