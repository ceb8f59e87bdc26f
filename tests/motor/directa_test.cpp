// The direct table from indices to addresses kept beside the header: reads build it once enough
// of them have gone by since the rows last changed, its entries give each index the address of
// its element, and every change that moves, frees or shortens a row, or shifts elements inside
// one, expires it before the next read, which then finds every element where the rows hold it.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "core/directa.h"
#include "motor/ayudas_motor.h"

#include <functional>
#include <random>
#include <string>

namespace {

using Directa = PruebaArrays;

// 100 rows of uneven lengths between 1 and the maximum of 256 doubles, each full to its capacity,
// so that the first index outside the computed rows is 0: many spans lie over one or two rows,
// and those over a row of one element reach three. Rows 70 and 71 are at the maximum.
constexpr size_t FILA_LLENA_ANTES_DE_OTRA = 70;

std::vector<size_t> cuentas_desiguales()
{
    std::vector<size_t> cuentas;
    for (size_t fila = 0; fila < 100; ++fila)
        cuentas.push_back(fila % 10 == 3 ? 1 : 1 + (fila * 53) % 256);
    cuentas[FILA_LLENA_ANTES_DE_OTRA] = cuentas[FILA_LLENA_ANTES_DE_OTRA + 1] = 256;
    return cuentas;
}

const TablaDirecta &tabla_de(const ARRAY *array) { return arrayprv_directa(array); }

// Entries in use; 0 while the table is expired.
size_t entradas_de(const ARRAY *array)
{
    const TablaDirecta &tabla = tabla_de(array);
    return tabla.indices_cubiertos >> tabla.desplazamiento;
}

// Reads every element twice: enough reads for any build the table is waiting for.
void lee_todo(ARRAY *array)
{
    for (int vuelta = 0; vuelta < 2; ++vuelta)
        (void)contenido(array);
}

TEST_F(Directa, ReadsBuildATableThatGivesEachIndexTheAddressOfItsElement)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    lee_todo(array);
    const TablaDirecta &tabla = tabla_de(array);
    ASSERT_GT(entradas_de(array), 0u);
    const std::vector<size_t> cuentas = longitudes(array);
    const size_t tramo = size_t{1} << tabla.desplazamiento;
    size_t respondidas = 0;
    for (size_t entrada = 0; entrada < entradas_de(array); ++entrada) {
        const EntradaDirecta &e = tabla.entradas[entrada];
        if (e.base_primera == 0 && e.base_segunda == 0)
            continue;
        ++respondidas;
        for (size_t i = entrada * tramo; i < (entrada + 1) * tramo; ++i) {
            const auto [fila, pos] = posicion_contada(cuentas, i);
            const uintptr_t base = (i & tabla.mascara) < e.corte ? e.base_primera : e.base_segunda;
            const auto donde = reinterpret_cast<uintptr_t>(array->buffer[fila]) + pos * sizeof(double);
            ASSERT_EQ(base + i * sizeof(double), donde) << "index " << i;
        }
    }
    EXPECT_GT(respondidas, entradas_de(array) / 2);
    EXPECT_EQ(entradas_de(array) * tramo, tabla.indices_cubiertos); // whole spans only
    EXPECT_LE(tabla.indices_cubiertos, size_t{array->num_elems});
    arr_DestruyeDouble(&array);
}

TEST_F(Directa, AnInsertExpiresTheTableUntilHalfAsManyReadsAsItHasEntries)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    lee_todo(array);
    const size_t entradas = entradas_de(array);
    ASSERT_GT(entradas, 0u);
    arr_InsertarDouble(array, 500, -1.0);
    EXPECT_EQ(entradas_de(array), 0u);
    for (size_t lectura = 0; lectura < entradas / 2; ++lectura)
        ASSERT_EQ(arr_GetDouble(array, 500), -1.0);
    EXPECT_EQ(entradas_de(array), 0u);
    EXPECT_EQ(arr_GetDouble(array, 501), 501.0); // elements are numbered from 1; this read builds it
    EXPECT_GT(entradas_de(array), 0u);
    arr_DestruyeDouble(&array);
}

TEST_F(Directa, AnArrayOfFewerThanSixtyFourRowsGetsNoTable)
{
    ARRAY *array = crea_doubles_en_filas(std::vector<size_t>(63, 100));
    arr_InsertarDouble(array, 0, -1.0); // nothing left to compute
    for (int vuelta = 0; vuelta < 10; ++vuelta)
        (void)contenido(array);
    EXPECT_EQ(entradas_de(array), 0u);
    EXPECT_EQ(tabla_de(array).entradas, nullptr);
    arr_DestruyeDouble(&array);
}

TEST_F(Directa, DestroyingTheArrayFreesTheTable)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    lee_todo(array);
    ASSERT_NE(tabla_de(array).entradas, nullptr);
    arr_ReduceTamanyoDouble(array, 0); // every row goes, and the table with them
    EXPECT_EQ(tabla_de(array).entradas, nullptr);
    arr_DestruyeDouble(&array);
}

TEST_F(Directa, WritesThroughTheTableLandInTheirElements)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    lee_todo(array);
    ASSERT_GT(entradas_de(array), 0u);
    std::vector<double> modelo = contenido(array);
    for (ULONG i = 0; i < modelo.size(); i += 7) {
        arr_SetDouble(array, i, -static_cast<double>(i));
        modelo[i] = -static_cast<double>(i);
    }
    EXPECT_EQ(contenido(array), modelo);
    arr_DestruyeDouble(&array);
}

// The table answers the indices it spans with no other bound; a shrink expires it, so the indices
// it spanned past the new end are refused by their own report.
TEST_F(Directa, AfterAShrinkIndicesTheTableSpannedPastTheEndAreReported)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    lee_todo(array);
    const size_t cubiertos = tabla_de(array).indices_cubiertos;
    const auto quedan = static_cast<ULONG>(array->acumulado_filas[80]); // 80 rows: enough for a table
    ASSERT_GT(cubiertos, size_t{quedan});
    arr_ReduceTamanyoDouble(array, quedan);
    EXPECT_EQ(arr_GetDouble(array, quedan), 0.0);
    arr_SetDouble(array, static_cast<ULONG>(cubiertos - 1), 7.0);
    EXPECT_EQ(informes(), (Textos{"real_pos < array->num_elems", "real_pos < array->num_elems"}));
    lee_todo(array); // builds the table again, over the elements left
    ASSERT_GT(tabla_de(array).indices_cubiertos, 0u);
    EXPECT_LE(tabla_de(array).indices_cubiertos, size_t{quedan});
    EXPECT_EQ(arr_GetDouble(array, static_cast<ULONG>(cubiertos - 1)), 0.0);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(contenido(array), numerados(1, quedan));
    arr_DestruyeDouble(&array);
}

using Modelo = std::vector<double>;

// One change made to the array and to its model, after the table has been built.
struct Cambio {
    std::string nombre;
    std::function<void(ARRAY *, Modelo &)> aplica;
    std::function<void(ARRAY *)> prepara = [](ARRAY *) {};
};

void inserta(ARRAY *array, std::vector<double> &modelo, size_t i, double valor)
{
    arr_InsertarDouble(array, static_cast<ULONG>(i), valor);
    modelo.insert(modelo.begin() + static_cast<ptrdiff_t>(i), valor);
}

void borra(ARRAY *array, std::vector<double> &modelo, size_t i)
{
    arr_BorrarDouble(array, static_cast<ULONG>(i));
    modelo.erase(modelo.begin() + static_cast<ptrdiff_t>(i));
}

void anyade(ARRAY *array, std::vector<double> &modelo, double valor)
{
    arr_AppendDouble(array, valor);
    modelo.push_back(valor);
}

// The first index of row `fila`.
size_t inicio_de(const ARRAY *array, size_t fila) { return array->acumulado_filas[fila]; }

std::vector<Cambio> cambios()
{
    return {
        {"InsertIntoARowThatGrows", [](ARRAY *a, Modelo &m) { inserta(a, m, inicio_de(a, 40) + 1, -1); }},
        {"InsertIntoARowWithRoom", [](ARRAY *a, Modelo &m) { inserta(a, m, inicio_de(a, 40) + 1, -2); },
         [](ARRAY *a) { arr_InsertarDouble(a, static_cast<ULONG>(inicio_de(a, 40)), -1); }},
        {"InsertIntoAFullRowThatSpillsIntoTheNext", [](ARRAY *a, Modelo &m) {
             size_t fila = 0;
             while (a->long_filas[fila] != a->long_max_fila_en_elem ||
                    a->long_filas[fila + 1] == a->long_max_fila_en_elem)
                 ++fila;
             inserta(a, m, inicio_de(a, fila) + 2, -1);
         }},
        {"InsertIntoAFullRowThatSplits", [](ARRAY *a, Modelo &m) {
             inserta(a, m, inicio_de(a, FILA_LLENA_ANTES_DE_OTRA) + 2, -1);
         }},
        {"InsertAtTheFront", [](ARRAY *a, Modelo &m) { inserta(a, m, 0, -1); }},
        {"DeleteInsideARow", [](ARRAY *a, Modelo &m) { borra(a, m, inicio_de(a, 50) + 1); }},
        {"DeleteTheOnlyElementOfARow", [](ARRAY *a, Modelo &m) { borra(a, m, inicio_de(a, 13)); }},
        {"DeleteTheFirstElement", [](ARRAY *a, Modelo &m) { borra(a, m, 0); }},
        {"AppendIntoTheLastRowsRoom", [](ARRAY *a, Modelo &m) { anyade(a, m, -1); },
         [](ARRAY *a) { arr_AppendDouble(a, -3); }},
        {"AppendThatGrowsTheLastRow", [](ARRAY *a, Modelo &m) { anyade(a, m, -1); }},
        {"AppendsThatAddRows", [](ARRAY *a, Modelo &m) {
             for (int k = 0; k < 600; ++k)
                 anyade(a, m, -k);
         }},
        {"AppendN", [](ARRAY *a, Modelo &m) {
             arr_AppendNDoubles(a, 700, -4.0);
             m.insert(m.end(), 700, -4.0);
         }},
        {"GrowTheSize", [](ARRAY *a, Modelo &m) {
             arr_AumentaTamanyoDouble(a, static_cast<ULONG>(m.size() + 300));
             m.insert(m.end(), 300, 0.0);
         }},
        {"ShrinkTheSize", [](ARRAY *a, Modelo &m) {
             m.resize(m.size() - 1000);
             arr_ReduceTamanyoDouble(a, static_cast<ULONG>(m.size()));
         }},
        {"Sort", [](ARRAY *a, Modelo &m) {
             for (size_t i = 0; i < m.size(); i += 3) {
                 arr_SetDouble(a, static_cast<ULONG>(i), -static_cast<double>(i));
                 m[i] = -static_cast<double>(i);
             }
             arr_QSortDouble(a, nullptr);
             std::sort(m.begin(), m.end());
         }},
        {"Initialise", [](ARRAY *a, Modelo &m) {
             arr_InicializaDouble(a, 9.5);
             std::fill(m.begin(), m.end(), 9.5);
         }},
        {"ConcatenateOntoIt", [](ARRAY *a, Modelo &m) {
             ARRAY *otro = crea_doubles_anyadidos(1000);
             arr_ConcatenaDouble(a, otro);
             const std::vector<double> suyo = contenido(otro);
             m.insert(m.end(), suyo.begin(), suyo.end());
             arr_DestruyeDouble(&otro);
         }},
    };
}

// What a failing test names: the change.
void PrintTo(const Cambio &cambio, std::ostream *salida) { *salida << cambio.nombre; }

class DirectaTrasUnCambio : public PruebaArrays, public testing::WithParamInterface<Cambio> {};

// A stale table would read moved elements, or freed rows (which the sanitizers report).
TEST_P(DirectaTrasUnCambio, EveryElementIsReadWhereTheRowsHoldIt)
{
    ARRAY *array = crea_doubles_en_filas(cuentas_desiguales());
    GetParam().prepara(array);
    std::vector<double> modelo = contenido(array);
    lee_todo(array);
    ASSERT_GT(entradas_de(array), 0u);
    GetParam().aplica(array, modelo);
    ASSERT_EQ(contenido(array), modelo); // reads during the reads that build the table again
    ASSERT_EQ(contenido(array), modelo); // and through it once built
    arrayprv_comprueba_array(array, 1);
    arr_DestruyeDouble(&array);
}

INSTANTIATE_TEST_SUITE_P(Cambios, DirectaTrasUnCambio, testing::ValuesIn(cambios()),
                         [](const testing::TestParamInfo<Cambio> &info) { return info.param.nombre; });

// Random inserts, deletes and reads on 3D points (24 bytes: rows of 85, which no shift computes),
// checked against a model.
TEST_F(Directa, PointsOfThreeCoordinatesAreReadRightThroughInsertsAndDeletes)
{
    ARRAY *array = arr_CreaPunto3D(0);
    std::vector<double> modelo;
    for (int i = 0; i < 20000; ++i) {
        arr_AppendPunto3D(array, i, 2.0 * i, 3.0 * i);
        modelo.push_back(i);
    }
    std::mt19937 azar(5);
    for (int paso = 0; paso < 40; ++paso) {
        for (int k = 0; k < 50; ++k) {
            const auto i = static_cast<ULONG>(azar() % modelo.size());
            if (k % 3 == 2) {
                arr_BorrarPunto3D(array, i);
                modelo.erase(modelo.begin() + i);
            } else {
                const double x = -paso * 100.0 - k;
                arr_InsertarPunto3D(array, i, x, 2.0 * x, 3.0 * x);
                modelo.insert(modelo.begin() + i, x);
            }
        }
        for (int vuelta = 0; vuelta < 2; ++vuelta)
            for (ULONG i = 0; i < modelo.size(); ++i) {
                double x = 0, y = 0, z = 0;
                arr_GetPunto3D(array, i, &x, &y, &z);
                ASSERT_EQ(x, modelo[i]) << "step " << paso << " index " << i;
                ASSERT_EQ(z, 3.0 * modelo[i]) << "step " << paso << " index " << i;
            }
    }
    EXPECT_GT(entradas_de(array), 0u);
    arr_DestruyePunto3D(&array);
}

} // namespace
