// Search (first, next, unique) and whole-array equality through the predicate tables. Integer
// and BOOL values compare exactly at their width unless the caller gives a predicate.
#include "core/comparadores.h"

#include "services/informes.h"

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// How each type's predicate is found and called, and whether a missing one means exact equality.
template <tipo_elem_array TAG> struct Igualdad;

#define ARR_IGUALDAD_POR_VALOR(TAG, MIEMBRO, T, EXACTA_SIN_PREDICADO)                             \
    template <> struct Igualdad<TAG> {                                                            \
        static constexpr auto miembro = &fnc_compara::MIEMBRO;                                    \
        static constexpr const char *texto = "(fnc_compara->" #MIEMBRO ") != NULL";               \
        static constexpr bool exacta_sin_predicado = EXACTA_SIN_PREDICADO;                        \
        template <typename F> static bool llama(F f, const void *elemento, const void *dato)      \
        {                                                                                         \
            T a;                                                                                  \
            T b;                                                                                  \
            std::memcpy(&a, elemento, sizeof a);                                                  \
            std::memcpy(&b, dato, sizeof b);                                                      \
            return static_cast<BOOL>(f(a, b)) != 0;                                               \
        }                                                                                         \
    };
ARR_IGUALDAD_POR_VALOR(elem_BYTE_NO_USAR, fnc_compara_BYTE, BYTE, true)
ARR_IGUALDAD_POR_VALOR(elem_CHAR_NO_USAR, fnc_compara_char, char, true)
ARR_IGUALDAD_POR_VALOR(elem_UCHAR_NO_USAR, fnc_compara_uchar, UCHAR, true)
ARR_IGUALDAD_POR_VALOR(elem_SHORT_NO_USAR, fnc_compara_short, SHORT, true)
ARR_IGUALDAD_POR_VALOR(elem_USHORT_NO_USAR, fnc_compara_ushort, USHORT, true)
ARR_IGUALDAD_POR_VALOR(elem_LONG_NO_USAR, fnc_compara_long, LONG, true)
ARR_IGUALDAD_POR_VALOR(elem_ULONG_NO_USAR, fnc_compara_ulong, ULONG, true)
ARR_IGUALDAD_POR_VALOR(elem_LONG64_NO_USAR, fnc_compara_long64, LONG64, true)
ARR_IGUALDAD_POR_VALOR(elem_ULONG64_NO_USAR, fnc_compara_ulong64, ULONG64, true)
ARR_IGUALDAD_POR_VALOR(elem_DOUBLE_NO_USAR, fnc_compara_double, double, false)
ARR_IGUALDAD_POR_VALOR(elem_CADENA_NO_USAR, fnc_compara_CADENA, const char *, false)
ARR_IGUALDAD_POR_VALOR(elem_CADENA_U_NO_USAR, fnc_compara_CADENA_U, const WCHAR *, false)
ARR_IGUALDAD_POR_VALOR(elem_PUNTERO_NO_USAR, fnc_compara_puntero, const void *, false)
#undef ARR_IGUALDAD_POR_VALOR

template <> struct Igualdad<elem_PUNTO2D_NO_USAR> {
    static constexpr auto miembro = &fnc_compara::fnc_compara_punto2D;
    static constexpr const char *texto = "(fnc_compara->fnc_compara_punto2D) != NULL";
    static constexpr bool exacta_sin_predicado = false;
    template <typename F> static bool llama(F f, const void *elemento, const void *dato)
    {
        return Orden<elem_PUNTO2D_NO_USAR>::llama(f, elemento, dato) != 0;
    }
};

template <> struct Igualdad<elem_PUNTO2DX_NO_USAR> {
    static constexpr auto miembro = &fnc_compara::fnc_compara_punto2DX;
    static constexpr const char *texto = "(fnc_compara->fnc_compara_punto2DX) != NULL";
    static constexpr bool exacta_sin_predicado = false;
    template <typename F> static bool llama(F f, const void *elemento, const void *dato)
    {
        return Orden<elem_PUNTO2DX_NO_USAR>::llama(f, elemento, dato) != 0;
    }
};

template <> struct Igualdad<elem_PUNTO3D_NO_USAR> {
    static constexpr auto miembro = &fnc_compara::fnc_compara_punto3D;
    static constexpr const char *texto = "(fnc_compara->fnc_compara_punto3D) != NULL";
    static constexpr bool exacta_sin_predicado = false;
    template <typename F> static bool llama(F f, const void *elemento, const void *dato)
    {
        return Orden<elem_PUNTO3D_NO_USAR>::llama(f, elemento, dato) != 0;
    }
};

// A predicate that compares exactly at the element's width.
struct Exacta {
    size_t size_elem;
    bool operator()(const void *a, const void *b) const
    {
        return std::memcmp(a, b, size_elem) == 0;
    }
};

// Checks the predicate table for the type and runs `usa` with the equality to apply; returns
// false (after the reports) when the table cannot serve.
template <tipo_elem_array TAG, typename Usa>
bool con_igualdad_de(const fnc_compara *tabla, size_t size_elem, bool tabla_requerida, Usa &&usa)
{
    using I = Igualdad<TAG>;
    if (!tabla_requerida) {
        ARR_EXIGE(tabla == nullptr, "fnc_compara == NULL");
        usa(Exacta{size_elem});
        return true;
    }
    if (!ARR_EXIGE(tabla != nullptr, "(fnc_compara) != NULL"))
        return false;
    const auto predicado = tabla->*I::miembro;
    if (I::exacta_sin_predicado && predicado == nullptr) {
        usa(Exacta{size_elem});
        return true;
    }
    if (!ARR_EXIGE(predicado != nullptr, I::texto))
        return false;
    usa([predicado](const void *a, const void *b) { return I::llama(predicado, a, b); });
    return true;
}

// Dispatches on the tag; BOOL never takes a table. The default case is reported.
template <typename Usa>
bool con_igualdad(tipo_elem_array tipo, const fnc_compara *tabla, size_t size_elem,
                  bool tabla_de_enteros, Usa &&usa)
{
    switch (tipo) {
    case elem_BOOL_NO_USAR:
        ARR_EXIGE(tabla == nullptr, "fnc_compara == NULL");
        usa(Exacta{size_elem});
        return true;
#define ARR_CASO_ENTERO(TAG)                                                                      \
    case TAG:                                                                                     \
        return con_igualdad_de<TAG>(tabla, size_elem, tabla_de_enteros, usa);
        ARR_CASO_ENTERO(elem_BYTE_NO_USAR)
        ARR_CASO_ENTERO(elem_CHAR_NO_USAR)
        ARR_CASO_ENTERO(elem_UCHAR_NO_USAR)
        ARR_CASO_ENTERO(elem_SHORT_NO_USAR)
        ARR_CASO_ENTERO(elem_USHORT_NO_USAR)
        ARR_CASO_ENTERO(elem_LONG_NO_USAR)
        ARR_CASO_ENTERO(elem_ULONG_NO_USAR)
        ARR_CASO_ENTERO(elem_LONG64_NO_USAR)
        ARR_CASO_ENTERO(elem_ULONG64_NO_USAR)
#undef ARR_CASO_ENTERO
#define ARR_CASO_CON_PREDICADO(TAG)                                                               \
    case TAG:                                                                                     \
        return con_igualdad_de<TAG>(tabla, size_elem, true, usa);
        ARR_CASO_CON_PREDICADO(elem_DOUBLE_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_PUNTERO_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_CADENA_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_CADENA_U_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_PUNTO2D_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_PUNTO2DX_NO_USAR)
        ARR_CASO_CON_PREDICADO(elem_PUNTO3D_NO_USAR)
#undef ARR_CASO_CON_PREDICADO
    default:
        ARR_CASO_DESCONOCIDO();
        return false;
    }
}

// Walks from pos_inicial and records matches; the array is marked as being read meanwhile.
template <typename Iguales>
void recorre_buscando(ARRAY *array, ULONG pos_inicial, const void *elemento, ULONG *posicion,
                      BOOL unico, Iguales iguales)
{
    array->en_bucle_lectura = CIERTO;
    bool ya_encontrado = false;
    posicion_array desde;
    if (pos_inicial >= array->num_elems) {
        ARR_EXIGE(pos_inicial == array->num_elems, "pos_inicial == array->num_elems");
    } else if (arrayprv_posicion(array, pos_inicial, &desde)) {
        ULONG actual = pos_inicial;
        arrayprv_visita(array, desde, SIZE_MAX, [&](const char *candidato) {
            if (iguales(candidato, elemento)) {
                *posicion = actual;
                if (!unico) {
                    ya_encontrado = true;
                    return false;
                }
                ARR_EXIGE(!ya_encontrado, "!ya_encontrado");
                ya_encontrado = true;
            }
            ++actual;
            return true;
        });
    }
    if (!ya_encontrado)
        *posicion = ARR_ULONG_MAX;
    array->en_bucle_lectura = FALSO;
}

} // namespace

void arrayprv_busca(ARRAY *array, ULONG pos_inicial, const void *elemento,
                    const fnc_compara *tabla, ULONG *posicion, tipo_elem_array tipo_elem,
                    BOOL unico)
{
    if (posicion != nullptr)
        *posicion = ARR_ULONG_MAX;
    if (!arrayprv_entrada(array, TEXTOS_ARRAY_CORTO, false, Modo::leniente))
        return;
    // Every check is reported; the walk runs only when all of them hold.
    const bool hay_elemento = ARR_EXIGE(elemento, "elemento");
    const auto destino_y_tipo = [&] {
        const bool hay_destino = ARR_EXIGE(posicion != nullptr, "(posicion) != NULL");
        const bool mismo_tipo =
            ARR_EXIGE(array->tipo_elem == tipo_elem, "array->tipo_elem == tipo_elem");
        return hay_destino && mismo_tipo;
    };
    const bool hay_igualdad =
        con_igualdad(tipo_elem, tabla, array->size_elem, true, [&](auto iguales) {
            if (destino_y_tipo() && hay_elemento)
                recorre_buscando(array, pos_inicial, elemento, posicion, unico, iguales);
        });
    if (!hay_igualdad)
        destino_y_tipo();
}

BOOL arrayprv_son_iguales(const ARRAY *array1, const ARRAY *array2, const fnc_compara *tabla,
                          tipo_elem_array tipo_elem)
{
    if (arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(array1, 0);
        arrayprv_comprueba_array(array2, 0);
        if (array1 == nullptr || array2 == nullptr || !arrayprv_marca_valida(array1) ||
            !arrayprv_marca_valida(array2))
            return FALSO;
    } else {
        const bool hay_array1 = ARR_EXIGE(array1 != nullptr, "(array1) != NULL");
        const bool hay_array2 = ARR_EXIGE(array2 != nullptr, "(array2) != NULL");
        if (!(hay_array1 && hay_array2))
            return FALSO;
        const bool vivo1 = ARR_EXIGE(arrayprv_marca_valida(array1),
                                     "array1->mascara_debug == MASCARA_DEBUG");
        const bool vivo2 = ARR_EXIGE(arrayprv_marca_valida(array2),
                                     "array2->mascara_debug == MASCARA_DEBUG");
        if (!(vivo1 && vivo2))
            return FALSO;
        arrayprv_comprueba_en_bucle(array1->en_bucle, 0, UBICACION, __LINE__);
        arrayprv_comprueba_en_bucle(array2->en_bucle, 0, UBICACION, __LINE__);
    }
    if (!ARR_EXIGE(array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem,
                   "array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem"))
        return FALSO;
    BOOL iguales = FALSO;
    con_igualdad(tipo_elem, tabla, array1->size_elem, false, [&](auto igualdad) {
        if (array1->num_elems != array2->num_elems)
            return;
        iguales = CIERTO;
        arrayprv_visita_pares(array1, array2, [&](const char *a, const char *b) {
            if (!igualdad(a, b))
                iguales = FALSO;
            return iguales == CIERTO;
        });
    });
    return iguales;
}
