// The rows of the typed pointer and structure arrays. Their arrays have short rows of four
// pointers, so that a row fills, splits or empties with few elements; each element points to an
// int the array owns.
#include "servicios/sin_memoria/operaciones.h"

namespace
{

constexpr ULONG BYTES_FILA = 4 * sizeof(void *);
constexpr ULONG FILA = 4;
constexpr Clase ESTRUCTURAS = Clase::estructuras;
constexpr Clase ARRAYS = Clase::arrays_de_estructuras;
constexpr const char *UBICACION = "sin_memoria_por_operacion_test";

// An array of `num` ints, in ascending order.
auto lleno(ULONG num)
{
    return [num] {
        ARRAY *array = arr_CreaPunteroConTipoEx(0, BYTES_FILA);
        for (ULONG i = 0; i < num; ++i)
            arr_AppendPunteroConTipo(array, nuevo_entero(static_cast<int>(10 * i)));
        return array;
    };
}

// An array of `num` NULL elements, which nothing owns.
auto nulos(ULONG num)
{
    return [num] { return arr_CreaPunteroConTipoEx(num, BYTES_FILA); };
}

// An array of `num` arrays of ints.
auto de_arrays(ULONG num)
{
    return [num] {
        ARRAY *array = arr_CreaPunteroConTipoEx(0, BYTES_FILA);
        for (ULONG i = 0; i < num; ++i)
            arr_AppendPunteroConTipo(array, lleno(i % 3 + 1)());
        return array;
    };
}

// An array of ints in ascending order whose reads by position build the direct table.
auto leible()
{
    return para_leer([](ULONG num) { return lleno(num)(); },
                     [](ARRAY *a) { arr_InsertarPunteroConTipo(a, 0, nuevo_entero(-10)); }, FILA);
}

// The position every read of the rows reads, and the int there.
constexpr ULONG LEIDA = 2 * FILA;
const int BUSCADO = 10 * static_cast<int>(LEIDA - 1);

int compara(const void *a, const void *b)
{
    const int x = *static_cast<const int *>(a);
    const int y = *static_cast<const int *>(b);
    return x < y ? comparac_PRIMERO_MENOR : (x > y ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

int descendente(const void *a, const void *b) { return compara(b, a); }

BOOL iguales(const void *elemento, const void *dato)
{
    return compara(elemento, dato) == comparac_IGUALES ? CIERTO : FALSO;
}

// `guarda(array, elemento)` with a new int made before the call: the array owns it afterwards.
template <typename Guarda> Operacion guarda_entero(const char *nombre, Guarda guarda)
{
    return {nombre, [guarda](Caso &caso) {
                ARRAY *array = caso.guarda(lleno(FILA)(), ESTRUCTURAS);
                void *entero = nuevo_entero(15);
                caso.llama([&] { guarda(array, entero); });
            }};
}

void borra_estructura(ARRAY *array, ULONG pos)
{
    arr_BorrarEstructuraConTipo(array, pos, libera_entero);
}

void borra_array(ARRAY *array, ULONG pos)
{
    arr_BorrarEstructuraArrayConTipo(array, pos, libera_entero);
}

// `borra(array, pos)` of the last element, alone in its row, which takes the row away; the
// element is freed afterwards.
template <typename Borra> Operacion borra_sin_liberar(const char *nombre, Borra borra)
{
    return {nombre, [borra](Caso &caso) {
                ARRAY *array =
                    caso.guarda(para_borrar(lleno, borra_estructura, FILA)(), ESTRUCTURAS);
                void *entero = arr_GetPunteroConTipo(array, 2 * FILA);
                caso.llama([&] { borra(array, 2 * FILA); });
                libera_entero(&entero);
            }};
}

void anyade_altas(std::vector<Operacion> &filas)
{
    filas.push_back(crea("arr_CreaPunteroConTipo", arr_CreaPunteroConTipo, 300, ESTRUCTURAS));
    filas.push_back(crea(
        "arr_CreaPunteroConTipoEx",
        [](ULONG num) { return arr_CreaPunteroConTipoEx(num, BYTES_FILA); }, 9, ESTRUCTURAS));
    filas.push_back(guarda_entero("arr_AppendPunteroConTipo", arr_AppendPunteroConTipo));
    filas.push_back(guarda_entero("arr_AppendPunteroConstConTipo", arr_AppendPunteroConstConTipo));
    filas.push_back(guarda_entero("arr_InsertarPunteroConTipo", [](ARRAY *a, void *e) {
        arr_InsertarPunteroConTipo(a, FILA / 2, e);
    }));
    filas.push_back(guarda_entero("arr_InsertarPunteroConstConTipo", [](ARRAY *a, void *e) {
        arr_InsertarPunteroConstConTipo(a, FILA / 2, e);
    }));
    filas.push_back(
        guarda_entero("arr_InsertarPunteroOrdenadoDicotomicamenteConTipo", [](ARRAY *a, void *e) {
            arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(a, compara, e);
        }));
    filas.push_back(
        {"arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste", [](Caso &caso) {
             ARRAY *array = caso.guarda(lleno(FILA)(), ESTRUCTURAS);
             void *entero = nuevo_entero(15);
             BOOL encontrado = CIERTO;
             caso.llama([&] {
                 arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(array, compara,
                                                                              entero, &encontrado);
             });
             caso.anota(std::to_string(encontrado));
         }});
    filas.push_back(cambia(
        "arr_AumentaTamanyoEstructurasConTipo", lleno(FILA),
        [](ARRAY *a) { arr_AumentaTamanyoEstructurasConTipo(a, 3 * FILA); }, ESTRUCTURAS));
}

// The element at `pos`, found through the rows: a read by position would build the direct table
// before the operation under test could.
void *elemento_por_filas(const ARRAY *array, ULONG pos)
{
    ULONG en_fila = 0;
    for (ULONG fila = 0; void *elementos = arr_Fila(array, fila, &en_fila); ++fila) {
        if (pos < en_fila)
            return static_cast<void **>(elementos)[pos];
        pos -= en_fila;
    }
    return nullptr;
}

// `pon(array, pos, elemento)` over the int at LEIDA, which is released afterwards.
template <typename Pon> Operacion reemplaza(const char *nombre, Pon pon)
{
    return {nombre, [pon](Caso &caso) {
                ARRAY *array = caso.guarda(leible()(), ESTRUCTURAS);
                void *anterior = elemento_por_filas(array, LEIDA);
                void *entero = nuevo_entero(15);
                caso.llama([&] { pon(array, LEIDA, entero); });
                libera_entero(&anterior);
            }};
}

// `dame(array, dato, igualdad)`: the element of the only match, read by position.
template <typename Dame> Operacion dame_unica(const char *nombre, Dame dame)
{
    return {nombre, [dame](Caso &caso) {
                ARRAY *array = caso.guarda(leible()(), ESTRUCTURAS);
                caso.anota(std::to_string(*static_cast<int *>(
                    caso.llama([&] { return dame(array, &BUSCADO, iguales); }))));
            }};
}

// `busca(array, &primero, &ultimo)`: a bisection, found or not and the run it found.
template <typename Busca> Operacion biseca(const char *nombre, Busca busca)
{
    return {nombre, [busca](Caso &caso) {
                ARRAY *array = caso.guarda(leible()(), ESTRUCTURAS);
                ULONG primero = 0;
                ULONG ultimo = 0;
                const BOOL hallado = caso.llama([&] { return busca(array, &primero, &ultimo); });
                caso.anota(std::to_string(hallado) + " " + std::to_string(primero) + " " +
                           std::to_string(ultimo));
            }};
}

// The reads and writes by position, and the searches that read by position what they found or
// bisect by position.
void anyade_lecturas(std::vector<Operacion> &filas)
{
    filas.push_back({"arr_GetPunteroConTipo", [](Caso &caso) {
                         ARRAY *array = caso.guarda(leible()(), ESTRUCTURAS);
                         caso.anota(std::to_string(*static_cast<int *>(
                             caso.llama([&] { return arr_GetPunteroConTipo(array, LEIDA); }))));
                     }});
    filas.push_back(reemplaza("arr_SetPunteroConTipo", arr_SetPunteroConTipo));
    filas.push_back(reemplaza("arr_SetPunteroConstConTipo", arr_SetPunteroConstConTipo));
    filas.push_back(
        {"arr_SetPunteroConstArrayConTipo", [](Caso &caso) {
             ARRAY *array = caso.guarda(
                 para_leer([](ULONG num) { return nulos(num)(); },
                           [](ARRAY *a) { arr_InsertarPunteroConTipo(a, 0, nullptr); }, FILA)(),
                 ARRAYS);
             ARRAY *interior = lleno(2)();
             caso.llama([&] { arr_SetPunteroConstArrayConTipo(array, LEIDA, interior); });
         }});
    filas.push_back(
        dame_unica("nousar_arr_dame_unica_estructura", nousar_arr_dame_unica_estructura));
    filas.push_back(dame_unica("nousar_arr_dame_unica_estructura_const",
                               nousar_arr_dame_unica_estructura_const));
    filas.push_back(cambia(
        "arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo", leible(),
        [](ARRAY *a) {
            return arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(a, compara,
                                                                                  &BUSCADO);
        },
        ESTRUCTURAS));
    filas.push_back(biseca(
        "arr_BuscarEstructuraDicotomicamenteConTipo", [](ARRAY *a, ULONG *primero, ULONG *ultimo) {
            arr_BuscarEstructuraDicotomicamenteConTipo(a, &BUSCADO, compara, primero, ultimo);
            return CIERTO;
        }));
    filas.push_back(biseca("arr_ExisteEstructuraDicotomicamenteConTipo",
                           [](ARRAY *a, ULONG *primero, ULONG *ultimo) {
                               return arr_ExisteEstructuraDicotomicamenteConTipo(
                                   a, &BUSCADO, compara, primero, ultimo);
                           }));
}

void anyade_bajas(std::vector<Operacion> &filas)
{
    filas.push_back(borra_sin_liberar("arr_BorrarPuntero", arr_BorrarPuntero));
    filas.push_back(borra_sin_liberar("arr_BorrarPunteroConst", arr_BorrarPunteroConst));
    filas.push_back(cambia(
        "arr_BorrarEstructuraConTipo", para_borrar(lleno, borra_estructura, FILA),
        [](ARRAY *a) { borra_estructura(a, 2 * FILA); }, ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_BorrarEstructuraArrayConTipo", para_borrar(de_arrays, borra_array, FILA),
        [](ARRAY *a) { borra_array(a, 2 * FILA); }, ARRAYS));
    filas.push_back(cambia(
        "arr_ReduceTamanyoEstructurasConTipo", lleno(3 * FILA + 1),
        [](ARRAY *a) { arr_ReduceTamanyoEstructurasConTipo(a, FILA / 2, libera_entero); },
        ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_ReduceTamanyoEstructurasConTipoConst", nulos(3 * FILA + 1),
        [](ARRAY *a) { arr_ReduceTamanyoEstructurasConTipoConst(a, FILA / 2); }, ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_ReduceEstructurasArrayConTipo", de_arrays(3 * FILA + 1),
        [](ARRAY *a) { arr_ReduceEstructurasArrayConTipo(a, FILA / 2, libera_entero); }, ARRAYS));
}

void anyade_copias(std::vector<Operacion> &filas)
{
    filas.push_back(cambia(
        "arr_QSortPunteroConTipo", lleno(30),
        [](ARRAY *a) { arr_QSortPunteroConTipo(a, descendente); }, ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_QSortPunteroConTipoConst", lleno(30),
        [](ARRAY *a) { arr_QSortPunteroConTipoConst(a, descendente); }, ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_nousar_InvierteOrdenPunteroConTipo", leible(),
        [](ARRAY *a) { arr_nousar_InvierteOrdenPunteroConTipo(a); }, ESTRUCTURAS));
    filas.push_back(hace(
        "arr_CopiaEstructurasConTipo", lleno(FILA + 1),
        [](ARRAY *a) { return arr_CopiaEstructurasConTipo(a, copia_entero); }, ESTRUCTURAS));
    filas.push_back(hace(
        "arr_CopiaEstructurasArrayConTipo", de_arrays(FILA + 1),
        [](ARRAY *a) { return arr_CopiaEstructurasArrayConTipo(a, copia_entero); }, ARRAYS));
    filas.push_back(une(
        "arr_ConcatenaEstructurasConTipo", lleno(FILA + 1),
        [](ARRAY *d, ARRAY *o) {
            arr_ConcatenaEstructurasConTipo(d, o, copia_entero, UBICACION, __LINE__);
        },
        ESTRUCTURAS));
    filas.push_back(une(
        "arr_ConcatenaEstructurasConTipoConst", nulos(FILA + 1),
        [](ARRAY *d, ARRAY *o) { arr_ConcatenaEstructurasConTipoConst(d, o, UBICACION, __LINE__); },
        ESTRUCTURAS));
    filas.push_back(une(
        "arr_ConcatenaEstructurasArrayConTipo", de_arrays(FILA + 1),
        [](ARRAY *d, ARRAY *o) { arr_ConcatenaEstructurasArrayConTipo(d, o, copia_entero); },
        ARRAYS));
}

} // namespace

std::vector<Operacion> operaciones_punteros()
{
    std::vector<Operacion> filas;
    anyade_altas(filas);
    anyade_bajas(filas);
    anyade_copias(filas);
    anyade_lecturas(filas);
    return filas;
}
