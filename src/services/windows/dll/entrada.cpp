// The entry point of ARRAYS.DLL: the library keeps nothing per thread, so it asks not to be
// called as threads start and end.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE modulo, DWORD motivo, LPVOID)
{
    if (motivo == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(modulo);
    return TRUE;
}
