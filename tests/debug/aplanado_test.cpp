// The flattened copy and the queries: the elements one after another in the scratch buffer, a
// buffer that only grows and keeps the previous one alive, the copy left as it was for points
// with private data, and the answers for valid and invalid arrays.
#include "debug/proceso_nuevo.h"
#include "debug/salidas.h"

#include <cstring>

namespace {

using Aplanado = PruebaDebug;

template <typename T> T en(const void *buffer, size_t indice)
{
    T valor;
    std::memcpy(&valor, static_cast<const char *>(buffer) + indice * sizeof(T), sizeof valor);
    return valor;
}

TEST_F(Aplanado, ElementsOfManyRowsLieOneAfterAnotherInPositionOrder)
{
    ARRAY *array = arr_CreaShort(0);
    for (SHORT i = 0; i < 3000; ++i)
        arr_InsertarShort(array, static_cast<ULONG>(i / 3), i);
    const void *buffer = debugarr_elems(array);
    ASSERT_NE(buffer, nullptr);
    for (ULONG i = 0; i < 3000; ++i)
        ASSERT_EQ(en<SHORT>(buffer, i), arr_GetShort(array, i));
    arr_DestruyeShort(&array);
}

TEST_F(Aplanado, PointsAreCopiedWhole)
{
    ARRAY *array = arr_CreaPunto2D(0);
    arr_AppendPunto2D(array, 1, 2);
    arr_AppendPunto2D(array, 3, 4);
    const void *buffer = debugarr_elems(array);
    EXPECT_EQ(en<double>(buffer, 0), 1.0);
    EXPECT_EQ(en<double>(buffer, 1), 2.0);
    EXPECT_EQ(en<double>(buffer, 2), 3.0);
    EXPECT_EQ(en<double>(buffer, 3), 4.0);
    arr_DestruyePunto2D(&array);
}

TEST_F(Aplanado, PointsWithPrivateDataLeaveTheBufferAsItWas)
{
    ARRAY *dobles = arr_CreaDouble(0);
    for (double valor : {10.0, 20.0, 30.0})
        arr_AppendDouble(dobles, valor);
    ARRAY *puntos = arr_CreaPunto2DXPriv(0);
    arr_AppendPunto2DXPriv(puntos, 1, 2, nullptr); // 24 bytes, as the three doubles
    const void *de_dobles = debugarr_elems(dobles);
    const void *de_puntos = debugarr_elems(puntos);
    EXPECT_EQ(de_puntos, de_dobles);
    EXPECT_EQ(en<double>(de_puntos, 0), 10.0);
    EXPECT_EQ(en<double>(de_puntos, 2), 30.0);
    arr_DestruyeDouble(&dobles);
    arr_DestruyePunto2DXPriv(&puntos, nullptr);
}

TEST_F(Aplanado, BufferOnlyGrowsAndKeepsThePreviousOneAlive)
{
    en_proceso_nuevo([] {
        ARRAY *uno = arr_CreaDouble(0);
        arr_AppendDouble(uno, 1.5);
        ARRAY *mil = arr_CreaDouble(1000);
        arr_SetDouble(mil, 999, 7);
        ARRAY *dos_mil = arr_CreaDouble(2000);
        const void *primero = debugarr_elems(uno);
        const void *segundo = debugarr_elems(mil);
        bool bien = cumple(segundo != primero, "a larger copy takes a new buffer");
        bien &= cumple(en<double>(primero, 0) == 1.5, "the previous buffer stays alive");
        const void *tercero = debugarr_elems(dos_mil);
        bien &= cumple(en<double>(segundo, 999) == 7, "the previous buffer stays alive again");
        bien &= cumple(debugarr_elems(uno) == tercero && en<double>(tercero, 0) == 1.5,
                       "a smaller copy reuses the current buffer");
        arr_DestruyeDouble(&uno);
        arr_DestruyeDouble(&mil);
        arr_DestruyeDouble(&dos_mil);
        return bien;
    });
}

TEST_F(Aplanado, QueriesAnswerCountAndTagOfAValidArray)
{
    ARRAY *array = arr_CreaPunto3D(4);
    EXPECT_EQ(debugarr_num_elems(array), 4u);
    EXPECT_EQ(debugarr_tipo_array(array), static_cast<ULONG>(elem_PUNTO3D_NO_USAR));
    arr_DestruyePunto3D(&array);
}

TEST_F(Aplanado, BitArrayGetsTheAnswersOfAnInvalidArray)
{
    ARRAY *array = arr_CreaBIT(12);
    EXPECT_EQ(debugarr_num_elems(array), 0u);
    EXPECT_EQ(debugarr_tipo_array(array), 0xFFFFFFFFu);
    EXPECT_EQ(debugarr_elems(array), nullptr);
    debugarr_ini_serializa(array, identificador(50));
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(50)))) << "nothing was published";
    arr_DestruyeBIT(&array);
}

} // namespace
