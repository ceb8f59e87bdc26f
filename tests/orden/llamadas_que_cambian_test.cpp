// Comparators, search predicates, equalities and release callbacks that change or destroy the
// array being walked: every such change is reported and refused, the walk ends with the right
// result over memory the array still owns, and nothing leaks.
#include "soporte/prueba_arrays.h"

#include "orden/ayudas_orden.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

namespace {

using LlamadaQueCambiaSuArray = PruebaArrays;

// The array the callbacks below work on (a comparator has no data pointer), and their calls.
ARRAY *en_uso = nullptr;
size_t llamadas = 0;

int compara_y_anyade(LONG a, LONG b)
{
    ++llamadas;
    arr_AppendLong(en_uso, 7);
    return a < b ? comparac_PRIMERO_MENOR : (a > b ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

int compara_y_destruye(LONG a, LONG b)
{
    ++llamadas;
    arr_DestruyeLong(&en_uso);
    return a < b ? comparac_PRIMERO_MENOR : (a > b ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

BOOL igual_y_destruye(LONG a, LONG b)
{
    ++llamadas;
    arr_DestruyeLong(&en_uso);
    return a == b ? CIERTO : FALSO;
}

BOOL igual_y_vacia(double a, double b)
{
    ++llamadas;
    arr_ReduceTamanyoDouble(en_uso, 0);
    return a == b ? CIERTO : FALSO;
}

int compara_cadenas_y_cambia(const char *a, const char *b)
{
    ++llamadas;
    arr_SetCADENA(en_uso, 0, "otra");
    arr_BorrarCADENA(en_uso, 1);
    return std::clamp(std::string(a).compare(b), -1, 1);
}

void libera_y_destruye(void **elemento)
{
    ++llamadas;
    delete static_cast<int *>(*elemento);
    arr_AppendPunteroConTipo(en_uso, nullptr);
    arr_DestruyeEstructurasConTipo(&en_uso, nullptr);
}

// 0, 1, ..., n - 1 as Long, and an array of them in decreasing order.
std::vector<LONG> cero_a(LONG n)
{
    std::vector<LONG> v(static_cast<size_t>(n));
    std::iota(v.begin(), v.end(), 0);
    return v;
}

ARRAY *decrecientes(LONG n)
{
    std::vector<LONG> v = cero_a(n);
    std::reverse(v.begin(), v.end());
    return crea_con(elem_LONG_NO_USAR, v);
}

std::vector<LONG> valores(const ARRAY *array) { return elementos<LONG>(array, elem_LONG_NO_USAR); }

TEST_F(LlamadaQueCambiaSuArray, AnAppendFromASortComparatorIsRefusedAndTheSortEndsRight)
{
    en_uso = decrecientes(200);
    llamadas = 0;
    arr_QSortLong(en_uso, compara_y_anyade);
    ASSERT_GT(llamadas, 0u);
    EXPECT_EQ(informes(), Textos(llamadas, "array->en_bucle == FALSO"));
    EXPECT_EQ(valores(en_uso), cero_a(200));
    arr_DestruyeLong(&en_uso);
}

TEST_F(LlamadaQueCambiaSuArray, ADestroyFromASortComparatorIsRefusedAndTheHandleKept)
{
    en_uso = decrecientes(200);
    ARRAY *const handle = en_uso;
    llamadas = 0;
    arr_QSortLong(en_uso, compara_y_destruye);
    EXPECT_EQ(informes(), Textos(llamadas, "(*array)->en_bucle == FALSO"));
    ASSERT_EQ(en_uso, handle);
    EXPECT_EQ(valores(en_uso), cero_a(200));
    arr_DestruyeLong(&en_uso);
}

TEST_F(LlamadaQueCambiaSuArray, ADestroyFromASearchPredicateIsRefusedAndTheSearchFinds)
{
    en_uso = decrecientes(300);
    llamadas = 0;
    EXPECT_EQ(arr_BuscarLong(en_uso, 250, igual_y_destruye), 49u);
    EXPECT_EQ(llamadas, 50u);
    EXPECT_EQ(informes(), Textos(50, "(*array)->en_bucle_lectura == FALSO"));
    EXPECT_EQ(arr_NumElemsLong(en_uso), 300u);
    arr_DestruyeLong(&en_uso);
}

// Equality sets no guard flag: the walk it runs is what refuses the change, and reports it.
TEST_F(LlamadaQueCambiaSuArray, EmptyingFromAnEqualityIsRefusedAndTheAnswerStands)
{
    ARRAY *otro = arr_CreaDouble(600);
    en_uso = arr_CreaDouble(600);
    llamadas = 0;
    EXPECT_EQ(arr_SonIgualesDouble(otro, en_uso, igual_y_vacia), CIERTO);
    EXPECT_EQ(informes(), Textos(600, "array->en_bucle == FALSO"));
    EXPECT_EQ(arr_NumElemsDouble(en_uso), 600u);
    arr_DestruyeDouble(&en_uso);
    arr_DestruyeDouble(&otro);
}

// A set would free the string that the sort may hold as its pivot, a delete would shorten the
// rows under it: both are refused, and the sort ends with the strings it started with.
TEST_F(LlamadaQueCambiaSuArray, StringSetsAndDeletesFromASortComparatorAreRefused)
{
    en_uso = arr_CreaCADENA(0);
    const std::vector<std::string> palabras{"pera", "kiwi", "uva", "higo", "lima", "coco"};
    for (const std::string &palabra : palabras)
        arr_AppendCADENA(en_uso, palabra.c_str());
    llamadas = 0;
    arr_QSortCADENA(en_uso, compara_cadenas_y_cambia);
    Textos esperados;
    for (size_t i = 0; i < llamadas; ++i) {
        esperados.emplace_back("array->en_bucle == FALSO");
        esperados.emplace_back("array->en_bucle == FALSO");
    }
    EXPECT_EQ(informes(), esperados);
    std::vector<std::string> ordenadas = palabras;
    std::sort(ordenadas.begin(), ordenadas.end());
    ASSERT_EQ(arr_NumElemsCADENA(en_uso), ordenadas.size());
    for (ULONG i = 0; i < ordenadas.size(); ++i)
        EXPECT_EQ(arr_GetCADENA(en_uso, i), ordenadas[i]);
    arr_DestruyeCADENA(&en_uso);
}

// The action deletes, through the caller's release function, the structure it is handed.
size_t liberadas = 0;
void libera_contando(void **elemento)
{
    ++liberadas;
    delete static_cast<int *>(*elemento);
    *elemento = nullptr;
}
void borra_estructura(void *elemento, void *)
{
    ++llamadas;
    const int indice = *static_cast<int *>(elemento);
    arr_BorrarEstructuraConTipo(en_uso, static_cast<ULONG>(indice), libera_contando);
}

// Refused inside the walk, the delete frees nothing either: every element still holds its own
// structure afterwards, which the destroy then releases.
TEST_F(LlamadaQueCambiaSuArray, DeletingAStructureFromATraversalIsRefusedAndFreesNothing)
{
    en_uso = arr_CreaPunteroConTipo(0);
    for (int i = 0; i < 3; ++i)
        arr_AppendPunteroConTipo(en_uso, new int(i));
    llamadas = 0;
    liberadas = 0;
    arr_RecorreEstructuraSimpleConTipo(en_uso, borra_estructura, nullptr);
    EXPECT_EQ(llamadas, 3u);
    EXPECT_EQ(liberadas, 0u);
    EXPECT_EQ(informes(), Textos(3, "array->en_bucle == FALSO"));
    ASSERT_EQ(arrayprv_num_elems(en_uso), 3u);
    for (ULONG i = 0; i < 3; ++i)
        EXPECT_EQ(*static_cast<int *>(arr_GetPunteroConTipo(en_uso, i)), static_cast<int>(i));
    arr_DestruyeEstructurasConTipo(&en_uso, libera_contando);
    EXPECT_EQ(liberadas, 3u);
}

// The same for an inner array of an array of arrays: it stays whole in its slot.
void borra_array_interior(void *, void *)
{
    ++llamadas;
    arr_BorrarEstructuraArrayConTipo(en_uso, 0, libera_contando);
}

TEST_F(LlamadaQueCambiaSuArray, DeletingAnInnerArrayFromATraversalIsRefusedAndKeepsIt)
{
    en_uso = arr_CreaPunteroConTipo(0);
    ARRAY *interior = arr_CreaPunteroConTipo(0);
    arr_AppendPunteroConTipo(interior, new int(7));
    arr_AppendPunteroConTipo(en_uso, interior);
    llamadas = 0;
    liberadas = 0;
    arr_RecorreEstructuraSimpleConTipo(en_uso, borra_array_interior, nullptr);
    EXPECT_EQ(llamadas, 1u);
    EXPECT_EQ(liberadas, 0u);
    EXPECT_EQ(informes(), Textos(1, "array->en_bucle == FALSO"));
    ASSERT_EQ(arr_GetPunteroConTipo(en_uso, 0), static_cast<void *>(interior));
    EXPECT_EQ(*static_cast<int *>(arr_GetPunteroConTipo(interior, 0)), 7);
    arr_DestruyeEstructurasArrayConTipo(&en_uso, libera_contando);
    EXPECT_EQ(liberadas, 1u);
}

TEST_F(LlamadaQueCambiaSuArray, AppendsAndDestroysFromAReleaseCallbackAreRefused)
{
    en_uso = arr_CreaPunteroConTipo(0);
    for (int i = 0; i < 3; ++i)
        arr_AppendPunteroConTipo(en_uso, new int(i));
    llamadas = 0;
    ARRAY *handle = en_uso;
    arr_DestruyeEstructurasConTipo(&handle, libera_y_destruye);
    EXPECT_EQ(llamadas, 3u);
    Textos esperados;
    for (int i = 0; i < 3; ++i) {
        esperados.emplace_back("array->en_bucle == FALSO");
        esperados.emplace_back("(*array)->en_bucle == FALSO");
    }
    EXPECT_EQ(informes(), esperados);
    EXPECT_EQ(handle, nullptr); // the outer destroy went through; the fixture finds no leak
    en_uso = nullptr;
}

} // namespace
