# The Debian packages that the project needs, by what needs them. Read by run.sh, test.sh, package.sh and benchmarks/report.
# shellcheck shell=sh disable=SC2034
check_packages="clang-format cppcheck shellcheck python3-minimal"
build_packages="cmake ninja-build g++-mingw-w64-x86-64-posix librsvg2-bin icoutils
  python3-fonttools fonts-liberation2 libz-mingw-w64-dev"
wine_packages="wine wine64 fonts-wine xvfb xauth imagemagick"
# The installer, the signing of files, and a certificate to try it with.
packaging_packages="nsis osslsigncode openssl python3-minimal"
test_packages="g++ googletest zlib1g-dev python3-minimal clang libclang-rt-14-dev
  libreoffice-writer-nogui libreoffice-calc-nogui fontconfig poppler-utils python3-icalendar python3-vobject tidy"
# A print server of the tests' own, and what turns its jobs into files and text.
printing_packages="cups-daemon ghostscript poppler-utils"
benchmark_packages="g++ libbenchmark-dev zlib1g-dev"
