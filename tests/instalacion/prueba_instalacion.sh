#!/usr/bin/env bash
# Installs the built library into a temporary prefix, then builds and runs an outside C program
# against it twice: found through the CMake package, and through pkg-config. A cross build names
# its toolchain file, C compiler and the emulator its programs run under (wine: the DLL is found
# in the prefix's bin directory).
#   prueba_instalacion.sh BUILD_DIR SOURCE_DIR [TOOLCHAIN_FILE C_COMPILER EMULATOR]
set -euo pipefail
construccion=$1
fuentes=$2
cadena=${3:-}
compilador=${4:-cc}
emulador=${5:-}
temporal=$(mktemp -d)
trap 'rm -rf "$temporal"' EXIT
prefijo=$temporal/prefijo

cmake --install "$construccion" --prefix "$prefijo" >/dev/null
test -f "$prefijo/include/arrays.h"
test -f "$prefijo/share/doc/arrays/LICENSE"
libdir=$(dirname "$(find "$prefijo" -name arrays.pc)")/..

# Runs a program built against the installed library; its output without Windows line ends.
ejecuta() {
    LD_LIBRARY_PATH="$libdir" WINEPATH="$prefijo/bin" WINEDEBUG=-all $emulador "$1" | tr -d '\r'
}

echo "CMake package:"
cmake -S "$fuentes/tests/instalacion/consumidor" -B "$temporal/cmake" -G Ninja \
      -DCMAKE_PREFIX_PATH="$prefijo" \
      ${cadena:+-DCMAKE_TOOLCHAIN_FILE="$cadena" -DCMAKE_FIND_ROOT_PATH="$prefijo"} >/dev/null
cmake --build "$temporal/cmake" >/dev/null
salida=$(ejecuta "$(find "$temporal/cmake" -maxdepth 1 -name 'uso' -o -maxdepth 1 -name 'uso.exe')")
echo "  $salida"
test "$salida" = "3 1.5 libarrays"

echo "pkg-config:"
export PKG_CONFIG_PATH="$libdir/pkgconfig"
test "$(pkg-config --modversion arrays)" = "$(sed -n 's/^project(arrays VERSION \([0-9.]*\).*/\1/p' "$fuentes/CMakeLists.txt")"
# shellcheck disable=SC2046
"$compilador" -std=c99 -Wall -Wextra -pedantic -Werror "$fuentes/tests/instalacion/consumidor/uso.c" \
   $(pkg-config --cflags --libs arrays) -o "$temporal/uso_pc${emulador:+.exe}"
salida=$(ejecuta "$temporal/uso_pc${emulador:+.exe}")
echo "  $salida"
test "$salida" = "3 1.5 libarrays"
