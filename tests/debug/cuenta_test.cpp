// The element-count block: the count of the array last given, 0xFFFFFFFF and a message for an
// array that is not valid, a message for NULL and for a block that cannot be made, and its name
// taken away at a normal exit. Every test uses the one block, so they run one at a time.
#include "debug/proceso_nuevo.h"
#include "debug/salidas.h"

namespace {

using Cuenta = PruebaDebug;

const std::string NOMBRE = "MemComp_ZarpTools_serializa_num_elems";
const std::string NO_VALIDO = "\r\nArray acadorde no v\xE1lido.\r\n";

std::vector<uint32_t> palabras_del_bloque()
{
    const std::vector<unsigned char> bytes = lee_bloque(NOMBRE);
    if (bytes.size() != bytes_visibles_de_bloque(12))
        return {};
    return {u32_en(bytes, 0), u32_en(bytes, 4), u32_en(bytes, 8)};
}

// This one runs first, after the test of a name held by something else (posix/, windows/): a
// block made by this process stays for its life.
TEST_F(Cuenta, BlockIsMadeAtTheFirstUseAndItsNameGoesAtANormalExit)
{
    ASSERT_FALSE(existe_bloque(NOMBRE)) << "left by another process";
    en_proceso_nuevo([] {
        bool bien = cumple(!existe_bloque(NOMBRE), "no block before the first use");
        debugarr_serializa_num_elems_array(nullptr);
        bien &= cumple(!existe_bloque(NOMBRE), "NULL makes no block");
        ARRAY *array = arr_CreaLong(2);
        debugarr_serializa_num_elems_array(array);
        bien &= cumple(palabras_del_bloque() == std::vector<uint32_t>{2, 0, 0}, "made and written");
        arr_DestruyeLong(&array);
        return bien;
    });
    EXPECT_FALSE(existe_bloque(NOMBRE));
    EXPECT_EQ(salidas(), Salidas{}) << "the new process's texts stay there";
}

TEST_F(Cuenta, CountOfAValidArrayIsWrittenWithTwoZeroWords)
{
    ARRAY *array = arr_CreaDouble(5);
    debugarr_serializa_num_elems_array(array);
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{5, 0, 0}));
    arr_AppendDouble(array, 1);
    debugarr_serializa_num_elems_array(array);
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{6, 0, 0}));
    arr_DestruyeDouble(&array);
}

TEST_F(Cuenta, NullArrayIsNamedAndLeavesTheBlockAsItWas)
{
    ARRAY *array = arr_CreaLong(3);
    debugarr_serializa_num_elems_array(array);
    debugarr_serializa_num_elems_array(nullptr);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray acadorde es NULL.\r\n"}));
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{3, 0, 0}));
    arr_DestruyeLong(&array);
}

TEST_F(Cuenta, DestroyedArrayWritesNoCountAndSaysSo)
{
    ARRAY *array = arr_CreaLong(3);
    const ARRAY *viejo = array;
    arr_DestruyeLong(&array);
    debugarr_serializa_num_elems_array(viejo);
    EXPECT_EQ(salidas(), estrechos({NO_VALIDO}));
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{0xFFFFFFFF, 0, 0}));
}

TEST_F(Cuenta, BitArrayIsRefusedByTheValidityQuery)
{
    ARRAY *array = arr_CreaBIT(4);
    debugarr_serializa_num_elems_array(array);
    EXPECT_EQ(salidas(), estrechos({NO_VALIDO}));
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{0xFFFFFFFF, 0, 0}));
    arr_DestruyeBIT(&array);
}

TEST_F(Cuenta, UnreadableHandleWritesNoCountWithoutAFault)
{
    const PaginaProhibida ilegible;
    debugarr_serializa_num_elems_array(reinterpret_cast<const ARRAY *>(ilegible.inicio()));
    EXPECT_EQ(salidas(), estrechos({NO_VALIDO}));
    EXPECT_EQ(palabras_del_bloque(), (std::vector<uint32_t>{0xFFFFFFFF, 0, 0}));
}

} // namespace
