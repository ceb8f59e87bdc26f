// The element-count block on Windows: a name that another kind of object holds cannot be made
// into the block; the message names it, and the object is left as it was. Runs before the other
// count tests: a block made by this process stays for its life.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "debug/cuenta_ocupada.h"

namespace {

using Cuenta = PruebaDebug;

TEST_F(Cuenta, BlockThatCannotBeMadeIsNamedInAMessage)
{
    // The new process runs these lines again: its own mutex of the name opens this one.
    HANDLE mutex = CreateMutexA(nullptr, FALSE, NOMBRE_CUENTA.c_str());
    ASSERT_NE(mutex, nullptr);
    publicar_la_cuenta_nombra_el_bloque();
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0) << "the mutex still works";
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

} // namespace
