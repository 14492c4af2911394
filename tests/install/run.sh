#!/usr/bin/env bash
# Installs a build tree into a staging folder, then builds and runs the consumers against it, by the CMake
# package and by pkg-config: run.sh BUILD_TREE GENERATOR C_COMPILER CXX_COMPILER.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

cmake --install "$1" --prefix "$stage/usr" >/dev/null
library=$(dirname "$(find "$stage/usr" -name libvormu8.so.7.1 -not -path '*/glibc-hwcaps/*')")
for file in libvormu8.so libvorcore.so libvorcore.so.7.1 pkgconfig/vorm.pc cmake/vorm/vormConfig.cmake; do
    [ -e "$library/$file" ] || { echo "not installed: $file"; exit 1; }
done
for file in vorm/vorm.h vorm/elementwise.inc vorcore/vorcore.h; do
    [ -e "$stage/usr/include/$file" ] || { echo "not installed: $file"; exit 1; }
done

cmake -G "$2" -S "$here" -B "$stage/build" -DCMAKE_PREFIX_PATH="$stage/usr" -DCMAKE_C_COMPILER="$3" \
    -DCMAKE_CXX_COMPILER="$4" >/dev/null
cmake --build "$stage/build" >/dev/null
"$stage/build/consumer_c"
"$stage/build/consumer_cpp"

export PKG_CONFIG_PATH=$library/pkgconfig
# shellcheck disable=SC2046
"$3" -std=c99 "$here/consumer.c" -o "$stage/by_pkg_config" $(pkg-config --define-variable=prefix="$stage/usr" --cflags --libs vorm) \
    -Wl,-rpath-link,"$library"
LD_LIBRARY_PATH=$library "$stage/by_pkg_config"
echo "installed package works"
