// The typed front of the string families, one template over the character type: narrow strings
// (char, module a_cadena) and wide ones (WCHAR, module a_cadenau). An element is a pointer to a
// string that the array owns: what is stored is a copy or a string handed over, and what leaves
// the array (deleted, replaced) is freed here; the engine frees what it cuts off or destroys.
#pragma once

#include "core/arrayprv.h"
#include "core/comparadores.h"
#include "core/quicksort.h"
#include "families/tabla_familias.h"
#include "services/cadenas.h"
#include "services/informes.h"

#include <cstring>
#include <utility>

// What differs between the two widths: tag, table members, string services, reporting module.
template <typename C> struct Cadenas;

template <> struct Cadenas<char> {
    static constexpr tipo_elem_array TAG = elem_CADENA_NO_USAR;
    static constexpr const char *UBICACION = "a_cadena (ARRAYS.DLL)";
    static constexpr auto accion = &fnc_accion::fnc_accion_CADENA;
    static constexpr auto igualdad = &fnc_compara::fnc_compara_CADENA;
    static constexpr auto exacta = cad_cadenas_iguales;
    static constexpr auto may_min = cad_cadenas_iguales_may_o_min;
    static constexpr auto orden_por_defecto = arrayprv_orden_cadena;
    static char *copia(const char *cadena) { return cad_copia_cadena(cadena); }
    static void destruye(char **cadena) { zarpstr_destruye(cadena); }
    static void concatena(char **destino, const char *cadena) { cad_concatena(destino, cadena); }
    static char *de_un_caracter(char caracter) { return creacadena_con_caracter(1, caracter); }
};

// The wide services are told where they are called from: this module and the line.
template <> struct Cadenas<WCHAR> {
    static constexpr tipo_elem_array TAG = elem_CADENA_U_NO_USAR;
    static constexpr const char *UBICACION = "a_cadenau (ARRAYS.DLL)";
    static constexpr auto accion = &fnc_accion::fnc_accion_CADENA_U;
    static constexpr auto igualdad = &fnc_compara::fnc_compara_CADENA_U;
    static constexpr auto exacta = widestr_fun_cadenas_iguales;
    static constexpr auto may_min = widestr_fun_cadenas_iguales_may_o_min;
    static constexpr auto orden_por_defecto = arrayprv_orden_cadena_u;
    static WCHAR *copia(const WCHAR *cadena) { return widestr_nousar_copia(cadena, UBICACION, __LINE__); }
    static void destruye(WCHAR **cadena) { widestr_nousar_destruye(cadena, UBICACION, __LINE__); }
    static void concatena(WCHAR **destino, const WCHAR *cadena)
    {
        widestr_nousar_cad_concatena(destino, cadena, UBICACION, __LINE__);
    }
    static WCHAR *de_un_caracter(WCHAR caracter)
    {
        return widestr_nousar_creacadena_con_caracter(1, caracter);
    }
};

template <typename C> struct FamiliaCadena {
    using R = Cadenas<C>;
    static constexpr tipo_elem_array TAG = R::TAG;
    static constexpr const char *UBICACION = R::UBICACION;
    static constexpr C VACIA[1] = {0};

    using igualdad_t = BOOL (*)(const C *a, const C *b);

    static ARRAY *crea(ULONG tamanyo_inicial)
    {
        return arrayprv_crea(tamanyo_inicial, TAG, LONG_FILA_POR_DEFECTO);
    }

    // The handle check of the operations that read the count: NULL, mark and tag.
    static bool entrada(const ARRAY *array)
    {
        return arrayprv_entrada_tipo(array, TEXTOS_ARRAY, false, Modo::ninguno, TAG);
    }

    // Elements of a live array, without a report: tells whether an engine call added one.
    static size_t num_elems_sin_informe(const ARRAY *array)
    {
        return array != nullptr && arrayprv_marca_valida(array) ? array->num_elems : 0;
    }

    // Runs `pon`, an engine call that adds one element; true when the element was added.
    template <typename Pon> static bool anyadido(ARRAY *array, Pon &&pon)
    {
        const size_t antes = num_elems_sin_informe(array);
        pon();
        return num_elems_sin_informe(array) > antes;
    }

    // Adds a copy of `cadena` through `pon` (given the address of the copy); a copy that the
    // array did not take is freed. True when it was added.
    template <typename Pon> static bool pon_copia(ARRAY *array, const C *cadena, Pon &&pon)
    {
        C *copia = R::copia(cadena);
        if (anyadido(array, [&] { pon(&copia); }))
            return true;
        R::destruye(&copia);
        return false;
    }

    static bool append(ARRAY *array, const C *cadena)
    {
        return pon_copia(array, cadena, [&](C **copia) { arrayprv_append(array, copia, TAG); });
    }

    // The caller's string passes to the array only when the array took it.
    static void append_original(ARRAY *array, C **cadena)
    {
        if (!ARR_EXIGE(cadena != nullptr, "item"))
            return;
        if (anyadido(array, [&] { arrayprv_append(array, cadena, TAG); }))
            *cadena = nullptr;
    }

    // Stops at the first copy that could not be added (its report is enough).
    static void append_n(ARRAY *array, ULONG num_veces, const C *cadena)
    {
        for (ULONG i = 0; i < num_veces && append(array, cadena); ++i) {
        }
    }

    static void inserta(ARRAY *array, ULONG pos, const C *cadena)
    {
        pon_copia(array, cadena, [&](C **copia) { arrayprv_inserta(array, pos, copia, TAG); });
    }

    // The address of the stored string pointer; NULL (after the engine's reports) when there is
    // no such element.
    static C **direccion(ARRAY *array, ULONG pos)
    {
        return static_cast<C **>(arrayprv_get(array, pos, TAG));
    }

    // The string is freed once the engine has taken its element out (not, for one, inside a walk
    // over the array, where the delete is refused).
    static void borra(ARRAY *array, ULONG pos)
    {
        C **ptr_cad = direccion(array, pos);
        if (ptr_cad == nullptr)
            return;
        C *cadena = *ptr_cad;
        const size_t antes = array->num_elems;
        arrayprv_borra(array, pos, TAG);
        if (num_elems_sin_informe(array) < antes)
            R::destruye(&cadena);
    }

    static const C *get(ARRAY *array, ULONG pos)
    {
        C **ptr_cad = direccion(array, pos);
        return ptr_cad != nullptr ? *ptr_cad : nullptr;
    }

    static C *get_copia(ARRAY *array, ULONG pos) { return R::copia(get(array, pos)); }

    // Frees the string at `pos` and stores the one that `nueva()` gives, which the array then
    // owns. `nueva` is not called when `pos` names no element, nor inside a sort of the array.
    template <typename Nueva> static void reemplaza(ARRAY *array, ULONG pos, Nueva &&nueva)
    {
        C **ptr_cad = direccion(array, pos);
        if (!ARR_EXIGE(ptr_cad != nullptr, "(ptr_cad) != NULL") ||
            !arrayprv_admite_liberar_elemento(array, TEXTOS_ARRAY_CORTO))
            return;
        R::destruye(ptr_cad);
        C *cadena = nueva();
        arrayprv_set(array, pos, &cadena, TAG);
    }

    // A NULL string is reported and the element keeps its string: nothing of the caller's data
    // is lost for a wrong argument.
    static void set(ARRAY *array, ULONG pos, const C *cadena)
    {
        if (ARR_EXIGE(cadena != nullptr, "item"))
            reemplaza(array, pos, [&] { return R::copia(cadena); });
    }

    // Without an address there is no string to hand over: reported, and the element is left as
    // it was.
    static void set_original(ARRAY *array, ULONG pos, C **cadena)
    {
        if (ARR_EXIGE(cadena != nullptr, "item"))
            reemplaza(array, pos, [&] { return std::exchange(*cadena, nullptr); });
    }

    // Grows through the engine, then gives every new element a copy of "" through the path of
    // set, so that the grown array holds no NULL element. The new count.
    static ULONG aumenta_tamanyo(ARRAY *array, ULONG nuevo_tamanyo)
    {
        if (!entrada(array))
            return 0;
        const ULONG num_elems_ant = arrayprv_num_elems(array);
        ARR_EXIGE(nuevo_tamanyo > num_elems_ant, "nuevo_tamanyo > num_elems_ant");
        arrayprv_aumenta_tamanyo(array, nuevo_tamanyo);
        const ULONG num_elems = arrayprv_num_elems(array);
        for (ULONG i = num_elems_ant; i < num_elems; ++i)
            set(array, i, VACIA);
        return num_elems;
    }

    // Without a comparator, the quicksort specialised for the default order.
    static void ordena(ARRAY *array, comparador_de<TAG> comparador)
    {
        if (comparador == nullptr)
            arrayprv_qsort_valores<const C *, R::orden_por_defecto>(array, TAG);
        else
            arrayprv_ordena<TAG>(array, comparador);
    }

    static BOOL son_iguales(ARRAY *array1, ARRAY *array2, igualdad_t igualdad)
    {
        fnc_compara tabla{};
        tabla.*R::igualdad = igualdad;
        return arrayprv_son_iguales(array1, array2, &tabla, TAG);
    }

    // The position of the first element from `pos_inicial` for which igualdad(element, cadena)
    // holds, or ARR_ULONG_MAX; with `unico` a second match is reported and the last one counts.
    static ULONG busca(ARRAY *array, ULONG pos_inicial, const C *cadena, igualdad_t igualdad,
                       BOOL unico)
    {
        fnc_compara tabla{};
        tabla.*R::igualdad = igualdad;
        ULONG posicion = ARR_ULONG_MAX;
        arrayprv_busca(array, pos_inicial, &cadena, &tabla, &posicion, TAG, unico);
        return posicion;
    }

    static BOOL existe(ARRAY *array, const C *cadena, igualdad_t igualdad, ULONG *posicion,
                       BOOL unico)
    {
        const ULONG encontrada = busca(array, 0, cadena, igualdad, unico);
        if (posicion != nullptr)
            *posicion = encontrada;
        return encontrada < ARR_ULONG_MAX;
    }

    // Appends a one-character string of `caracter` to *resultado; nothing for the character 0.
    static void concatena_caracter(C **resultado, C caracter)
    {
        if (caracter == 0)
            return;
        C *temporal = R::de_un_caracter(caracter);
        R::concatena(resultado, temporal);
        R::destruye(&temporal);
    }

    // inicio, the strings with `separador` between them, fin after the last one; a NULL element
    // adds nothing, and an array without elements gives just inicio.
    static C *cadena_de_referencias(ARRAY *array, C inicio, C separador, C fin)
    {
        if (!entrada(array))
            return nullptr;
        const ULONG num_cadenas = arrayprv_num_elems(array);
        ARR_EXIGE(num_cadenas > 0, "num_cadenas > 0");
        C *resultado = inicio != 0 ? R::de_un_caracter(inicio) : R::copia(VACIA);
        ULONG vistas = 0;
        arrayprv_visita_todos(array, [&](const char *elemento) {
            const C *cadena;
            std::memcpy(&cadena, elemento, sizeof cadena);
            R::concatena(&resultado, cadena);
            concatena_caracter(&resultado, ++vistas < num_cadenas ? separador : fin);
        });
        return resultado;
    }

    static void recorre(ARRAY *array, BOOL (*accion)(C **cadena, void *datos), void *datos,
                        const char *ubicacion, LONG linea)
    {
        fnc_accion acciones{};
        acciones.*R::accion = accion;
        arrayprv_recorre(array, &acciones, datos, TAG, 0, 0, ubicacion, linea);
    }
};

// ---- The exports of one width: S is the name suffix ("" or _u), C the character type ---------

// The predicate a search passes on, by how it compares (see ARR_PREDICADO_CADENA_*).
#define ARR_IGUALDAD_CADENA_EXACTA(C) Cadenas<C>::exacta
#define ARR_IGUALDAD_CADENA_EX(C) igualdad
#define ARR_IGUALDAD_CADENA_MAYMIN(C) Cadenas<C>::may_min

#define ARR_DEFINE_BUSQUEDAS_CADENA(S, C, CLASE, PREDICADO, IGUALDAD)                             \
    extern "C" ULONG arr_Buscar##CLASE##CADENA##S(ARRAY *array,                                   \
                                                  const C *cadena PREDICADO(S)) noexcept          \
    {                                                                                             \
        return FamiliaCadena<C>::busca(array, 0, cadena, IGUALDAD(C), FALSO);                     \
    }                                                                                             \
    extern "C" ULONG arr_BuscarSiguiente##CLASE##CADENA##S(                                       \
        ARRAY *array, ULONG pos_inicial, const C *cadena PREDICADO(S)) noexcept                   \
    {                                                                                             \
        return FamiliaCadena<C>::busca(array, pos_inicial, cadena, IGUALDAD(C), FALSO);           \
    }                                                                                             \
    extern "C" ULONG arr_BuscarUnica##CLASE##CADENA##S(ARRAY *array,                              \
                                                       const C *cadena PREDICADO(S)) noexcept     \
    {                                                                                             \
        return FamiliaCadena<C>::busca(array, 0, cadena, IGUALDAD(C), CIERTO);                    \
    }                                                                                             \
    extern "C" BOOL arr_Existe##CLASE##CADENA##S(ARRAY *array, const C *cadena PREDICADO(S),      \
                                                 ULONG *posicion) noexcept                        \
    {                                                                                             \
        return FamiliaCadena<C>::existe(array, cadena, IGUALDAD(C), posicion, FALSO);             \
    }                                                                                             \
    extern "C" BOOL arr_ExisteUnica##CLASE##CADENA##S(ARRAY *array, const C *cadena PREDICADO(S), \
                                                      ULONG *posicion) noexcept                   \
    {                                                                                             \
        return FamiliaCadena<C>::existe(array, cadena, IGUALDAD(C), posicion, CIERTO);            \
    }

#define ARR_DEFINE_FAMILIA_CADENA(S, C)                                                           \
    extern "C" ARRAY *arr_CreaCADENA##S(ULONG tamanyo_inicial) noexcept                           \
    {                                                                                             \
        return FamiliaCadena<C>::crea(tamanyo_inicial);                                           \
    }                                                                                             \
    extern "C" void arr_AppendCADENA##S(ARRAY *array, const C *cadena) noexcept                   \
    {                                                                                             \
        FamiliaCadena<C>::append(array, cadena);                                                  \
    }                                                                                             \
    extern "C" void arr_AppendCADENAOriginal##S(ARRAY *array, C **cadena) noexcept                \
    {                                                                                             \
        FamiliaCadena<C>::append_original(array, cadena);                                         \
    }                                                                                             \
    extern "C" void arr_AppendNCADENAs##S(ARRAY *array, ULONG num_veces, const C *cadena) noexcept \
    {                                                                                             \
        FamiliaCadena<C>::append_n(array, num_veces, cadena);                                     \
    }                                                                                             \
    extern "C" void arr_InsertarCADENA##S(ARRAY *array, ULONG pos, const C *cadena) noexcept      \
    {                                                                                             \
        FamiliaCadena<C>::inserta(array, pos, cadena);                                            \
    }                                                                                             \
    extern "C" void arr_BorrarCADENA##S(ARRAY *array, ULONG pos) noexcept                         \
    {                                                                                             \
        FamiliaCadena<C>::borra(array, pos);                                                      \
    }                                                                                             \
    extern "C" const C *arr_GetCADENA##S(ARRAY *array, ULONG pos) noexcept                        \
    {                                                                                             \
        return FamiliaCadena<C>::get(array, pos);                                                 \
    }                                                                                             \
    extern "C" C *arr_GetCopiaCADENA##S(ARRAY *array, ULONG pos) noexcept                         \
    {                                                                                             \
        return FamiliaCadena<C>::get_copia(array, pos);                                           \
    }                                                                                             \
    extern "C" void arr_SetCADENA##S(ARRAY *array, ULONG pos, const C *cadena) noexcept           \
    {                                                                                             \
        FamiliaCadena<C>::set(array, pos, cadena);                                                \
    }                                                                                             \
    extern "C" void arr_SetCADENAOriginal##S(ARRAY *array, ULONG pos, C **cadena) noexcept        \
    {                                                                                             \
        FamiliaCadena<C>::set_original(array, pos, cadena);                                       \
    }                                                                                             \
    extern "C" void arr_QSortCADENA##S(ARRAY *array, arr_orden_CADENA##S comparador) noexcept     \
    {                                                                                             \
        FamiliaCadena<C>::ordena(array, comparador);                                              \
    }                                                                                             \
    extern "C" BOOL arr_SonIgualesCADENA##S(ARRAY *array1, ARRAY *array2,                         \
                                            arr_igualdad_CADENA##S igualdad) noexcept             \
    {                                                                                             \
        return FamiliaCadena<C>::son_iguales(array1, array2, igualdad);                           \
    }                                                                                             \
    extern "C" BOOL arr_SonIgualesExactamenteCADENA##S(ARRAY *array1, ARRAY *array2) noexcept     \
    {                                                                                             \
        return FamiliaCadena<C>::son_iguales(array1, array2, Cadenas<C>::exacta);                 \
    }                                                                                             \
    extern "C" C *arr_cadena_de_referencias##S(ARRAY *array, C inicio, C separador,               \
                                               C fin) noexcept                                    \
    {                                                                                             \
        return FamiliaCadena<C>::cadena_de_referencias(array, inicio, separador, fin);            \
    }                                                                                             \
    extern "C" void nousar_RecorreCADENA##S(ARRAY *array, arr_accion_CADENA##S accion,            \
                                            void *datos, const char *ubicacion,                   \
                                            LONG linea) noexcept                                  \
    {                                                                                             \
        FamiliaCadena<C>::recorre(array, accion, datos, ubicacion, linea);                        \
    }                                                                                             \
    ARR_DEFINE_BUSQUEDAS_CADENA(S, C, , ARR_PREDICADO_CADENA_EXACTA, ARR_IGUALDAD_CADENA_EXACTA)  \
    ARR_DEFINE_BUSQUEDAS_CADENA(S, C, Ex, ARR_PREDICADO_CADENA_EX, ARR_IGUALDAD_CADENA_EX)        \
    ARR_DEFINE_BUSQUEDAS_CADENA(S, C, MayMin, ARR_PREDICADO_CADENA_MAYMIN,                        \
                                ARR_IGUALDAD_CADENA_MAYMIN)
