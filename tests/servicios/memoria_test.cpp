// Tracked memory: every block is counted while it lives, reallocation keeps the contents, the
// free-and-clear operation leaves the pointer NULL, blocks from slabs behave as heap blocks, and
// array headers come from a pool that keeps a destroyed header readable and knows its live slots.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "services/losas.h"
#include "services/memoria.h"

#include <cstdio>
#include <cstring>

namespace {

// What is allocated now compared with when the object was made.
class Balance {
public:
    size_t bloques() const { return zarpspy_bloques_vivos() - bloques_; }
    size_t bytes() const { return zarpspy_bytes_vivos() - bytes_; }

private:
    size_t bloques_ = zarpspy_bloques_vivos();
    size_t bytes_ = zarpspy_bytes_vivos();
};

using Memoria = PruebaArrays;

TEST_F(Memoria, MallocCountsTheBlockAndItsBytesUntilFreed)
{
    const Balance balance;
    void *bloque = zarpspy_nousar_malloc(100);
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 100u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(bloque, nullptr);
    EXPECT_EQ(balance.bloques(), 0u);
    EXPECT_EQ(balance.bytes(), 0u);
}

TEST_F(Memoria, CallocGivesCountTimesSizeZeroedBytes)
{
    const Balance balance;
    auto *tabla = static_cast<size_t *>(zarpspy_nousar_calloc(10, sizeof(size_t)));
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 10 * sizeof(size_t));
    for (size_t i = 0; i < 10; ++i)
        EXPECT_EQ(tabla[i], 0u);
    zarpspy_nousar_free_pp(&tabla, sizeof(size_t));
    EXPECT_EQ(balance.bloques(), 0u);
}

TEST_F(Memoria, GrowingReallocKeepsTheContentsAndCountsTheNewSize)
{
    const Balance balance;
    char *bloque = static_cast<char *>(zarpspy_nousar_malloc(4));
    std::memcpy(bloque, "abc", 4);
    bloque = static_cast<char *>(zarpspy_nousar_realloc(bloque, 4096));
    EXPECT_STREQ(bloque, "abc");
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 4096u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(balance.bytes(), 0u);
}

TEST_F(Memoria, ShrinkingReallocKeepsTheHeadAndCountsTheNewSize)
{
    const Balance balance;
    char *bloque = static_cast<char *>(zarpspy_nousar_malloc(4096));
    std::memcpy(bloque, "abc", 4);
    bloque = static_cast<char *>(zarpspy_nousar_realloc(bloque, 2));
    EXPECT_EQ(std::memcmp(bloque, "ab", 2), 0);
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 2u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(balance.bytes(), 0u);
}

TEST_F(Memoria, ReallocOfNullAllocatesANewBlock)
{
    const Balance balance;
    void *bloque = zarpspy_nousar_realloc(nullptr, 24);
    EXPECT_NE(bloque, nullptr);
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 24u);
    zarpspy_nousar_free_pp(&bloque, 1);
}

TEST_F(Memoria, FreeingANullPointerOrANullAddressChangesNothing)
{
    const Balance balance;
    void *nada = nullptr;
    zarpspy_nousar_free_pp(&nada, 1);
    zarpspy_nousar_free_pp(nullptr, 1);
    EXPECT_EQ(nada, nullptr);
    EXPECT_EQ(balance.bloques(), 0u);
    EXPECT_EQ(balance.bytes(), 0u);
}

TEST_F(Memoria, FreeingThroughAnUnalignedSlotClearsIt)
{
    const Balance balance;
    alignas(8) unsigned char cabecera_empaquetada[16] = {};
    unsigned char *celda = cabecera_empaquetada + 2;
    zarpspy_escribe_puntero(celda, zarpspy_nousar_malloc(8));
    EXPECT_EQ(balance.bloques(), 1u);
    zarpspy_nousar_free_pp(celda, 1);
    EXPECT_EQ(zarpspy_lee_puntero(celda), nullptr);
    EXPECT_EQ(balance.bloques(), 0u);
}

TEST_F(Memoria, ASlabBlockIsCountedMeasuredAndFreedAsAnyBlock)
{
    const Balance balance;
    const size_t en_losas = losas_bytes_en_uso();
    void *bloque = zarpspy_reserva_en_losa(2040);
    EXPECT_EQ(losas_bytes_en_uso() - en_losas, 2048u + 16) << "the block and its prefix";
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 2040u);
    EXPECT_EQ(zarpspy_tamanyo_bloque(bloque), 2040u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(bloque, nullptr);
    EXPECT_EQ(losas_bytes_en_uso(), en_losas);
    EXPECT_EQ(balance.bloques(), 0u);
    EXPECT_EQ(balance.bytes(), 0u);
}

TEST_F(Memoria, ReallocMovesASlabBlockToTheHeapWithItsContents)
{
    const Balance balance;
    const size_t en_losas = losas_bytes_en_uso();
    char *bloque = static_cast<char *>(zarpspy_reserva_en_losa(2048));
    std::memset(bloque, 'x', 2048);
    bloque = static_cast<char *>(zarpspy_nousar_realloc(bloque, 4096));
    EXPECT_EQ(losas_bytes_en_uso(), en_losas);
    EXPECT_EQ(bloque[0], 'x');
    EXPECT_EQ(bloque[2047], 'x');
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), 4096u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(balance.bloques(), 0u);
}

TEST_F(Memoria, ABlockLargerThanASlabSlotComesFromTheHeap)
{
    const size_t en_losas = losas_bytes_en_uso();
    void *bloque = zarpspy_reserva_en_losa(ZARPSPY_MAX_BLOQUE_LOSA + 1);
    EXPECT_EQ(losas_bytes_en_uso(), en_losas);
    EXPECT_EQ(zarpspy_tamanyo_bloque(bloque), ZARPSPY_MAX_BLOQUE_LOSA + 1);
    zarpspy_nousar_free_pp(&bloque, 1);
}

TEST_F(Memoria, HeaderSlotIsCountedUntilReturnedToThePool)
{
    const Balance balance;
    void *cabecera = zarpspy_reserva_cabecera(sizeof(CabeceraArray));
    EXPECT_EQ(balance.bloques(), 1u);
    EXPECT_EQ(balance.bytes(), sizeof(CabeceraArray));
    zarpspy_libera_cabecera(&cabecera);
    EXPECT_EQ(cabecera, nullptr);
    EXPECT_EQ(balance.bloques(), 0u);
    EXPECT_EQ(balance.bytes(), 0u);
}

// The pool knows its live slots from its own records: a handed-out slot until it comes back, and
// nothing else, not a pointer into a slot nor one from elsewhere.
TEST_F(Memoria, PoolKnowsWhichOfItsSlotsHoldAHeader)
{
    void *cabecera = zarpspy_reserva_cabecera(sizeof(CabeceraArray));
    const void *copia = cabecera;
    int local = 0;
    EXPECT_TRUE(zarpspy_cabecera_viva(cabecera));
    EXPECT_FALSE(zarpspy_cabecera_viva(static_cast<char *>(cabecera) + 1));
    EXPECT_FALSE(zarpspy_cabecera_viva(&local));
    EXPECT_FALSE(zarpspy_cabecera_viva(nullptr));
    zarpspy_libera_cabecera(&cabecera);
    EXPECT_FALSE(zarpspy_cabecera_viva(copia));
}

// A returned slot waits behind every other free slot, so that a stale handle stays dead for as
// long as the pool can keep it so.
TEST_F(Memoria, ReturnedHeaderSlotIsHandedOutAgainOnlyAfterTheOtherFreeSlots)
{
    void *primera = zarpspy_reserva_cabecera(sizeof(CabeceraArray));
    const void *devuelta = primera;
    zarpspy_libera_cabecera(&primera);
    void *segunda = zarpspy_reserva_cabecera(sizeof(CabeceraArray));
    EXPECT_NE(segunda, devuelta);
    EXPECT_FALSE(zarpspy_cabecera_viva(devuelta));
    zarpspy_libera_cabecera(&segunda);
}

// A slot's generation says whether it is out: returning a header that is not out is a fault of
// the library itself, which ends the process rather than hand one slot to two arrays.
TEST_F(Memoria, ReturningAHeaderThatIsNotOutEndsTheProcess)
{
    void *cabecera = zarpspy_reserva_cabecera(sizeof(CabeceraArray));
    void *copia = cabecera;
    zarpspy_libera_cabecera(&cabecera);
    EXPECT_DEATH(zarpspy_libera_cabecera(&copia), "");
    int local = 0;
    void *ajeno = &local;
    EXPECT_DEATH(zarpspy_libera_cabecera(&ajeno), "");
}

// A destroyed header is never a live one to the checks; it stays mapped with its mark cleared,
// and in an AddressSanitizer build its slot is poisoned, so that any other read of it is caught.
TEST_F(Memoria, DestroyedHeaderIsDeadToTheChecksAndPoisonedUnderASan)
{
    ARRAY *array = arr_CreaDouble(3);
    const ARRAY *copia_del_handle = array;
    EXPECT_TRUE(zarpspy_cabecera_legible(copia_del_handle));
    EXPECT_TRUE(arrayprv_marca_valida(copia_del_handle));
    arr_DestruyeDouble(&array);
    EXPECT_EQ(array, nullptr);
    EXPECT_FALSE(arrayprv_marca_valida(copia_del_handle));
#if defined(ZARPSPY_CON_ASAN)
    EXPECT_FALSE(zarpspy_cabecera_legible(copia_del_handle));
    EXPECT_DEATH(
        {
            const size_t leido = copia_del_handle->num_elems;
            std::printf("%zu\n", leido);
        },
        "use-after-poison");
#else
    EXPECT_EQ(copia_del_handle->mascara_debug, 0);
#endif
    EXPECT_EQ(arr_NumElemsDouble(copia_del_handle), 0u);
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
    ARRAY *otra = arr_CreaDouble(1); // takes the slot back: readable and live again
    EXPECT_TRUE(zarpspy_cabecera_legible(otra));
    arr_DestruyeDouble(&otra);
}

} // namespace
