// Publishing on Windows: the block is a file mapping with its creator's default security; a name
// that another kind of object holds is refused and left as it is; a mapping of the name that
// another holder keeps open is taken over, zeroed, when it is large enough, and refused when it
// is not.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "debug/salidas.h"

#include "debug/publicacion.h"

#include <cstring>
#include <vector>

namespace {

using Publicacion = PruebaDebug;

TEST_F(Publicacion, NameHeldByAnotherKindOfObjectIsRefusedAndLeftAsItIs)
{
    HANDLE mutex = CreateMutexA(nullptr, FALSE, nombre_bloque(identificador(9)).c_str());
    ASSERT_NE(mutex, nullptr);
    ARRAY *array = arr_CreaLong(3);
    const size_t ultimo = debugarr_ultimo_slot();
    debugarr_ini_serializa(array, identificador(9));
    EXPECT_EQ(debugarr_ultimo_slot(), ultimo);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0) << "the mutex still works";
    ReleaseMutex(mutex);
    CloseHandle(mutex);
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, MappingThatAnotherHolderKeepsOpenIsTakenOverZeroed)
{
    const std::string nombre = nombre_bloque(identificador(10));
    HANDLE ajeno = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, 4096,
                                      nombre.c_str());
    ASSERT_NE(ajeno, nullptr);
    void *vista = MapViewOfFile(ajeno, FILE_MAP_ALL_ACCESS, 0, 0, 4096);
    std::memset(vista, 0xAB, 4096);
    ARRAY *array = arr_CreaLong(2);
    arr_SetLong(array, 1, 7);
    debugarr_ini_serializa(array, identificador(10));
    const std::vector<unsigned char> bytes = lee_bloque(nombre);
    ASSERT_EQ(bytes.size(), 4096u);
    EXPECT_EQ(u32_en(bytes, 0), 2 * sizeof(LONG));
    EXPECT_EQ(u32_en(bytes, 8 + sizeof(LONG)), 7u);
    EXPECT_EQ(bytes[8 + 2 * sizeof(LONG)], 0xAB) << "past the block, the holder's bytes";
    EXPECT_NE(debugarr_fin_serializa(identificador(10)), 0);
    UnmapViewOfFile(vista);
    CloseHandle(ajeno);
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, MappingTooSmallThatAnotherHolderKeepsOpenIsRefused)
{
    const std::string nombre = nombre_bloque(identificador(11));
    HANDLE ajeno =
        CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, 16, nombre.c_str());
    ASSERT_NE(ajeno, nullptr);
    ARRAY *array = arr_CreaLong(10000);
    debugarr_ini_serializa(array, identificador(11));
    EXPECT_EQ(debugarr_fin_serializa(identificador(11)), 0) << "no slot was taken";
    CloseHandle(ajeno);
    arr_DestruyeLong(&array);
}

} // namespace
