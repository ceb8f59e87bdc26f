// Publishing in named shared memory: the block's layout, closing, the table of 100 slots taken in
// turn, unknown identifiers, and the names taken away at a normal exit. What each system does
// with a name that something else holds is tested in posix/ and windows/.
#include "debug/salidas.h"

#include "debug/proceso_nuevo.h"
#include "debug/publicacion.h"

#include <cstring>

namespace {

using Publicacion = PruebaDebug;

double doble_en(const std::vector<unsigned char> &bytes, size_t desplazamiento)
{
    double valor;
    std::memcpy(&valor, bytes.data() + desplazamiento, sizeof valor);
    return valor;
}

TEST_F(Publicacion, BlockHoldsDataBytesElementSizeAndTheElements)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_AppendDouble(array, 1.5);
    arr_AppendDouble(array, -2);
    debugarr_ini_serializa(array, identificador(1));
    const std::vector<unsigned char> bytes = lee_bloque(nombre_bloque(identificador(1)));
    ASSERT_EQ(bytes.size(), bytes_visibles_de_bloque(8 + 16));
    EXPECT_EQ(u32_en(bytes, 0), 16u);
    EXPECT_EQ(u32_en(bytes, 4), 8u);
    EXPECT_EQ(doble_en(bytes, 8), 1.5);
    EXPECT_EQ(doble_en(bytes, 16), -2.0);
    EXPECT_NE(debugarr_fin_serializa(identificador(1)), 0);
    arr_DestruyeDouble(&array);
}

TEST_F(Publicacion, PointsAndStringsArePublishedInTheirOwnWidths)
{
    ARRAY *puntos = arr_CreaPunto3D(0);
    arr_AppendPunto3D(puntos, 1, 2, 3);
    ARRAY *cadenas = arr_CreaCADENA(0);
    arr_AppendCADENA(cadenas, "uno");
    debugarr_ini_serializa(puntos, identificador(3));
    debugarr_ini_serializa(cadenas, identificador(4));
    const std::vector<unsigned char> de_puntos = lee_bloque(nombre_bloque(identificador(3)));
    const std::vector<unsigned char> de_cadenas = lee_bloque(nombre_bloque(identificador(4)));
    ASSERT_EQ(de_puntos.size(), bytes_visibles_de_bloque(8 + 24));
    EXPECT_EQ(u32_en(de_puntos, 4), 24u);
    EXPECT_EQ(doble_en(de_puntos, 8 + 16), 3.0);
    ASSERT_EQ(de_cadenas.size(), bytes_visibles_de_bloque(8 + 8));
    const char *publicada;
    std::memcpy(&publicada, de_cadenas.data() + 8, sizeof publicada);
    EXPECT_EQ(publicada, arr_GetCADENA(cadenas, 0)); // the pointer of this process
    debugarr_fin_serializa(identificador(3));
    debugarr_fin_serializa(identificador(4));
    arr_DestruyePunto3D(&puntos);
    arr_DestruyeCADENA(&cadenas);
}

TEST_F(Publicacion, ClosingUnmapsAndTakesTheNameAway)
{
    ARRAY *array = arr_CreaLong(1);
    debugarr_ini_serializa(array, identificador(5));
    EXPECT_TRUE(existe_bloque(nombre_bloque(identificador(5))));
    debugarr_fin_serializa(identificador(5));
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(5))));
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, UnknownIdentifierReturnsZeroAndChangesNothing)
{
    ARRAY *array = arr_CreaLong(1);
    debugarr_ini_serializa(array, identificador(6));
    const size_t ultimo = debugarr_ultimo_slot();
    EXPECT_EQ(debugarr_fin_serializa(identificador(7)), 0);
    EXPECT_EQ(debugarr_ultimo_slot(), ultimo);
    EXPECT_TRUE(existe_bloque(nombre_bloque(identificador(6))));
    debugarr_fin_serializa(identificador(6));
    arr_DestruyeLong(&array);
}

TEST_F(Publicacion, SearchWithoutItsOutParameterIsReported)
{
    EXPECT_FALSE(debugarr_busca_bloque(1, nullptr));
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "debugarr (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"(out_bloqueMemComp) != NULL"});
}

TEST_F(Publicacion, The101stPublicationReusesSlotZeroWithoutClearingTheTable)
{
    const auto id = [](ULONG n) { return identificador(100 + n); };
    en_proceso_nuevo([&] {
        bool bien = cumple(debugarr_ultimo_slot() == 100, "the index starts at 100");
        ARRAY *array = arr_CreaLong(0);
        for (ULONG n = 0; n <= 100; ++n) {
            arr_AppendLong(array, static_cast<LONG>(n));
            debugarr_ini_serializa(array, id(n));
            bien &= cumple(debugarr_ultimo_slot() == n % 100, "slots are taken in turn");
        }
        BloqueMemComp **bloque = nullptr;
        bien &= cumple(!debugarr_busca_bloque(id(0), &bloque), "slot 0 was taken again");
        for (ULONG n = 1; n <= 100; ++n)
            bien &= cumple(debugarr_busca_bloque(id(n), &bloque) && *bloque != nullptr,
                           "the other slots keep their blocks");
        bien &= cumple(u32_en(lee_bloque(nombre_bloque(id(0))), 0) == 4,
                       "the block of the slot taken again stays published");
        for (ULONG n = 1; n <= 100; ++n)
            debugarr_fin_serializa(id(n));
        for (ULONG n = 1; n <= 100; ++n)
            bien &= cumple(!existe_bloque(nombre_bloque(id(n))), "closed blocks are gone");
        arr_DestruyeLong(&array);
        return bien;
    });
    EXPECT_FALSE(existe_bloque(nombre_bloque(id(0)))) << "a normal exit takes it away";
}

TEST_F(Publicacion, EmptyArrayPublishesNothingWhileNoCopyWasEverMade)
{
    en_proceso_nuevo([] {
        ARRAY *vacio = arr_CreaDouble(0);
        ARRAY *lleno = arr_CreaDouble(2);
        bool bien = cumple(debugarr_elems(vacio) == nullptr, "no buffer yet: NULL");
        debugarr_ini_serializa(vacio, identificador(8));
        bien &= cumple(!existe_bloque(nombre_bloque(identificador(8))), "nothing published");
        bien &= cumple(debugarr_ultimo_slot() == 100, "no slot taken");
        void *buffer = debugarr_elems(lleno);
        bien &= cumple(buffer != nullptr && debugarr_elems(vacio) == buffer,
                       "once a buffer exists, an empty array gets it");
        debugarr_ini_serializa(vacio, identificador(8));
        const std::vector<unsigned char> bytes = lee_bloque(nombre_bloque(identificador(8)));
        bien &= cumple(bytes.size() == bytes_visibles_de_bloque(8) && u32_en(bytes, 0) == 0 && u32_en(bytes, 4) == 8,
                       "then it publishes a header alone");
        debugarr_fin_serializa(identificador(8));
        arr_DestruyeDouble(&vacio);
        arr_DestruyeDouble(&lleno);
        return bien;
    });
}

TEST_F(Publicacion, PublishedBlocksLeaveNoNameAfterANormalExit)
{
    en_proceso_nuevo([] {
        ARRAY *array = arr_CreaLong(2);
        debugarr_ini_serializa(array, identificador(12));
        const bool bien = cumple(existe_bloque(nombre_bloque(identificador(12))), "published");
        arr_DestruyeLong(&array);
        return bien;
    });
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(12))));
}

} // namespace
