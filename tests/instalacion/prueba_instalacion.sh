#!/usr/bin/env bash
# Installs the built library into a temporary prefix, then builds and runs an outside C program
# against it twice: found through the CMake package, and through pkg-config.
#   prueba_instalacion.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
construccion=$1
fuentes=$2
temporal=$(mktemp -d)
trap 'rm -rf "$temporal"' EXIT
prefijo=$temporal/prefijo

cmake --install "$construccion" --prefix "$prefijo" >/dev/null
test -f "$prefijo/include/arrays.h"
test -f "$prefijo/share/doc/arrays/LICENSE"
libdir=$(dirname "$(find "$prefijo" -name arrays.pc)")/..

echo "CMake package:"
cmake -S "$fuentes/tests/instalacion/consumidor" -B "$temporal/cmake" -G Ninja \
      -DCMAKE_PREFIX_PATH="$prefijo" >/dev/null
cmake --build "$temporal/cmake" >/dev/null
salida=$(LD_LIBRARY_PATH="$libdir" "$temporal/cmake/uso")
echo "  $salida"
test "$salida" = "3 1.5 libarrays"

echo "pkg-config:"
export PKG_CONFIG_PATH="$libdir/pkgconfig"
test "$(pkg-config --modversion arrays)" = "$(sed -n 's/^project(arrays VERSION \([0-9.]*\).*/\1/p' "$fuentes/CMakeLists.txt")"
# shellcheck disable=SC2046
cc -std=c99 -Wall -Wextra -pedantic -Werror "$fuentes/tests/instalacion/consumidor/uso.c" \
   $(pkg-config --cflags --libs arrays) -o "$temporal/uso_pc"
salida=$(LD_LIBRARY_PATH="$libdir" "$temporal/uso_pc")
echo "  $salida"
test "$salida" = "3 1.5 libarrays"
