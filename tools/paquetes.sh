# The one list of Debian 12 packages that building, testing and benchmarking libarrays need, and
# the function that installs those missing. Sourced by tools/demo, tools/check,
# tools/check-windows and tools/bench.

# The library and the demo.
PAQUETES_DEMO=(cmake ninja-build g++)
# The tests besides: clang with its sanitizer runtimes, GoogleTest, Boost.Geometry (headers) for
# the geometry checks, valgrind, pkg-config for the installation test, Python with the Unicode
# Character Database to check the case-folding table and the header against their generators,
# X11's <Xmd.h> that the header must compile after, and Doxygen, which must find every export
# documented.
PAQUETES_PRUEBAS=("${PAQUETES_DEMO[@]}" clang libclang-rt-14-dev libgtest-dev libgmock-dev
                  libboost-dev valgrind pkgconf python3 unicode-data x11proto-dev doxygen)
# The Windows build and its tests: mingw-w64's compilers (the POSIX-threads variant) and objdump,
# GoogleTest's sources to build it for Windows, wine to run the programs, and the host's Python and
# Doxygen for the same checks of the header as on Linux.
PAQUETES_WINDOWS=(cmake ninja-build g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
                  googletest libboost-dev pkgconf wine wine64 python3 doxygen)
# The benchmarks besides: Google Benchmark and GLib, one of the peers.
PAQUETES_BANCOS=("${PAQUETES_PRUEBAS[@]}" libbenchmark-dev libglib2.0-dev)

# Installs the packages named that are missing (as root, or through sudo).
instala_que_falten() {
  local faltan=() paquete
  for paquete in "$@"; do
    dpkg -s "$paquete" >/dev/null 2>&1 || faltan+=("$paquete")
  done
  ((${#faltan[@]} == 0)) && return 0
  echo "Installing ${faltan[*]}" >&2
  local como=()
  [[ $(id -u) -eq 0 ]] || como=(sudo)
  export DEBIAN_FRONTEND=noninteractive
  "${como[@]}" apt-get update
  "${como[@]}" apt-get install -y --no-install-recommends "${faltan[@]}"
}
