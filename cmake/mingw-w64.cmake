# Cross-building ARRAYS.DLL for 64-bit Windows with Debian's mingw-w64 (the POSIX-threads variant
# of its compilers, which has std::thread and std::mutex); the programs built run under wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ARRAYS_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ARRAYS_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ARRAYS_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${ARRAYS_MINGW}-windres)

# The target's libraries and headers; a prefix given with -DCMAKE_FIND_ROOT_PATH is searched too.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${ARRAYS_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs carry their C and C++ runtimes, so that they run without mingw's DLLs beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Debian's `wine` runs 64-bit programs too; CTest and test discovery start every program with it.
find_program(ARRAYS_WINE wine REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${ARRAYS_WINE})
