// The rows of the typed pointer and structure arrays. Their arrays have short rows of four
// pointers, so that a row fills, splits or empties with few elements; each element points to an
// int the array owns.
#include "servicios/sin_memoria/operaciones.h"

namespace {

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
auto nulos(ULONG num) { return [num] { return arr_CreaPunteroConTipoEx(num, BYTES_FILA); }; }

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

int compara(const void *a, const void *b)
{
    const int x = *static_cast<const int *>(a);
    const int y = *static_cast<const int *>(b);
    return x < y ? comparac_PRIMERO_MENOR : (x > y ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

int descendente(const void *a, const void *b) { return compara(b, a); }

// `guarda(array, elemento)` with a new int made before the call: the array owns it afterwards.
template <typename Guarda> Operacion guarda_entero(const char *nombre, Guarda guarda)
{
    return {nombre, [guarda](Caso &caso) {
                ARRAY *array = caso.guarda(lleno(FILA)(), ESTRUCTURAS);
                void *entero = nuevo_entero(15);
                caso.llama([&] { guarda(array, entero); });
            }};
}

void borra_estructura(ARRAY *array, ULONG pos) { arr_BorrarEstructuraConTipo(array, pos, libera_entero); }

void borra_array(ARRAY *array, ULONG pos)
{
    arr_BorrarEstructuraArrayConTipo(array, pos, libera_entero);
}

// `borra(array, pos)` of the last element, alone in its row, which takes the row away; the
// element is freed afterwards.
template <typename Borra> Operacion borra_sin_liberar(const char *nombre, Borra borra)
{
    return {nombre, [borra](Caso &caso) {
                ARRAY *array = caso.guarda(para_borrar(lleno, borra_estructura, FILA)(), ESTRUCTURAS);
                void *entero = arr_GetPunteroConTipo(array, 2 * FILA);
                caso.llama([&] { borra(array, 2 * FILA); });
                libera_entero(&entero);
            }};
}

void anyade_altas(std::vector<Operacion> &filas)
{
    filas.push_back(crea("arr_CreaPunteroConTipo", arr_CreaPunteroConTipo, 300, ESTRUCTURAS));
    filas.push_back(crea("arr_CreaPunteroConTipoEx",
                         [](ULONG num) { return arr_CreaPunteroConTipoEx(num, BYTES_FILA); }, 9,
                         ESTRUCTURAS));
    filas.push_back(guarda_entero("arr_AppendPunteroConTipo", arr_AppendPunteroConTipo));
    filas.push_back(guarda_entero("arr_AppendPunteroConstConTipo", arr_AppendPunteroConstConTipo));
    filas.push_back(guarda_entero("arr_InsertarPunteroConTipo", [](ARRAY *a, void *e) {
        arr_InsertarPunteroConTipo(a, FILA / 2, e);
    }));
    filas.push_back(guarda_entero("arr_InsertarPunteroConstConTipo", [](ARRAY *a, void *e) {
        arr_InsertarPunteroConstConTipo(a, FILA / 2, e);
    }));
    filas.push_back(guarda_entero("arr_InsertarPunteroOrdenadoDicotomicamenteConTipo",
                                  [](ARRAY *a, void *e) {
                                      arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(a, compara,
                                                                                        e);
                                  }));
    filas.push_back({"arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste",
                     [](Caso &caso) {
                         ARRAY *array = caso.guarda(lleno(FILA)(), ESTRUCTURAS);
                         void *entero = nuevo_entero(15);
                         BOOL encontrado = CIERTO;
                         caso.llama([&] {
                             arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(
                                 array, compara, entero, &encontrado);
                         });
                         caso.anota(std::to_string(encontrado));
                     }});
    filas.push_back(cambia("arr_AumentaTamanyoEstructurasConTipo", lleno(FILA),
                           [](ARRAY *a) { arr_AumentaTamanyoEstructurasConTipo(a, 3 * FILA); },
                           ESTRUCTURAS));
}

void anyade_bajas(std::vector<Operacion> &filas)
{
    filas.push_back(borra_sin_liberar("arr_BorrarPuntero", arr_BorrarPuntero));
    filas.push_back(borra_sin_liberar("arr_BorrarPunteroConst", arr_BorrarPunteroConst));
    filas.push_back(cambia("arr_BorrarEstructuraConTipo",
                           para_borrar(lleno, borra_estructura, FILA),
                           [](ARRAY *a) { borra_estructura(a, 2 * FILA); }, ESTRUCTURAS));
    filas.push_back(cambia("arr_BorrarEstructuraArrayConTipo",
                           para_borrar(de_arrays, borra_array, FILA),
                           [](ARRAY *a) { borra_array(a, 2 * FILA); }, ARRAYS));
    filas.push_back(cambia(
        "arr_ReduceTamanyoEstructurasConTipo", lleno(3 * FILA + 1),
        [](ARRAY *a) { arr_ReduceTamanyoEstructurasConTipo(a, FILA / 2, libera_entero); },
        ESTRUCTURAS));
    filas.push_back(cambia("arr_ReduceTamanyoEstructurasConTipoConst", nulos(3 * FILA + 1),
                           [](ARRAY *a) { arr_ReduceTamanyoEstructurasConTipoConst(a, FILA / 2); },
                           ESTRUCTURAS));
    filas.push_back(cambia(
        "arr_ReduceEstructurasArrayConTipo", de_arrays(3 * FILA + 1),
        [](ARRAY *a) { arr_ReduceEstructurasArrayConTipo(a, FILA / 2, libera_entero); }, ARRAYS));
}

void anyade_copias(std::vector<Operacion> &filas)
{
    filas.push_back(cambia("arr_QSortPunteroConTipo", lleno(30),
                           [](ARRAY *a) { arr_QSortPunteroConTipo(a, descendente); },
                           ESTRUCTURAS));
    filas.push_back(cambia("arr_QSortPunteroConTipoConst", lleno(30),
                           [](ARRAY *a) { arr_QSortPunteroConTipoConst(a, descendente); },
                           ESTRUCTURAS));
    filas.push_back(
        cambia("arr_nousar_InvierteOrdenPunteroConTipo",
               para_leer(lleno, [](ARRAY *a) { arr_InsertarPunteroConTipo(a, 0, nullptr); }, FILA),
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
        [](ARRAY *d, ARRAY *o) {
            arr_ConcatenaEstructurasConTipoConst(d, o, UBICACION, __LINE__);
        },
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
    return filas;
}
