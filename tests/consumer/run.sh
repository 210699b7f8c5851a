#!/usr/bin/env bash
# Installs a build into a folder of its own and builds and runs consumer.c against what is there, in both ways on offer.
# usage: run.sh BUILD_DIR CC [TOOLCHAIN_FILE]     with a toolchain file the programs run under scripts/wine32
set -eu
here=$(cd "$(dirname "$0")" && pwd)
build=$1 cc=$2 toolchain=${3-}
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
cmake --install "$build" --prefix "$place/installed" >install.log
run=()
[ -z "$toolchain" ] || run=("$here/../../scripts/wine32")

# Installed libraries are found the way each platform does it.
library=$(dirname "$(find installed -name 'libkxgeom32.so' -o -name 'libKXGEOM32.dll.a')")
export LD_LIBRARY_PATH=$place/$library PKG_CONFIG_PATH=$place/$library/pkgconfig
beside() { [ -z "$toolchain" ] || cp installed/bin/KXGEOM32.dll "$1"; }
export KXLINK=$place/installed/share/kxgeom

echo "-- find_package"
where=(-DCMAKE_PREFIX_PATH="$place/installed")
[ -z "$toolchain" ] || where=(-DCMAKE_TOOLCHAIN_FILE="$toolchain" -Dkxgeom_DIR="$place/$library/cmake/kxgeom")
cmake -S "$here" -B by_cmake -G Ninja "${where[@]}" >cmake.log || { cat cmake.log; exit 1; }
cmake --build by_cmake --target consumer >build.log || { cat build.log; exit 1; }
beside by_cmake
if [ -z "$toolchain" ]; then
  env -u KXLINK -u LD_LIBRARY_PATH cmake --build by_cmake --target run
else
  "${run[@]}" by_cmake/consumer.exe
fi

echo "-- pkg-config"
[ "$(readlink -f "$(pkg-config --variable=kxlink kxgeom)")" = "$(readlink -f "$KXLINK")" ]
mkdir by_pkg_config
"$cc" -std=c99 -pedantic-errors -Wall -Wextra -Werror "$here/consumer.c" $(pkg-config --cflags --libs kxgeom) \
  -o by_pkg_config/consumer.exe
beside by_pkg_config
"${run[@]}" by_pkg_config/consumer.exe
