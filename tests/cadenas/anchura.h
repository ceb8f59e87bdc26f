// The string tests run once per width: Estrecha (char, UTF-8) and Ancha (WCHAR, UTF-16) give the
// same names to the exports of their family, so one typed test body serves both. TXT("...") is
// the literal in the width of the test (u8"..." or u"...").
#pragma once

#include "soporte/prueba_arrays.h"

#include "arrays.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// The exports of a string family under width-independent names; S is the suffix ("" or _u).
#define ARR_PRUEBA_FUNCIONES_CADENA(S)                                                            \
    static constexpr auto Crea = arr_CreaCADENA##S;                                               \
    static constexpr auto Destruye = arr_DestruyeCADENA##S;                                       \
    static constexpr auto NumElems = arr_NumElemsCADENA##S;                                       \
    static constexpr auto Append = arr_AppendCADENA##S;                                           \
    static constexpr auto AppendOriginal = arr_AppendCADENAOriginal##S;                           \
    static constexpr auto AppendN = arr_AppendNCADENAs##S;                                        \
    static constexpr auto Insertar = arr_InsertarCADENA##S;                                       \
    static constexpr auto Borrar = arr_BorrarCADENA##S;                                           \
    static constexpr auto Get = arr_GetCADENA##S;                                                 \
    static constexpr auto GetCopia = arr_GetCopiaCADENA##S;                                       \
    static constexpr auto Set = arr_SetCADENA##S;                                                 \
    static constexpr auto SetOriginal = arr_SetCADENAOriginal##S;                                 \
    static constexpr auto ReduceTamanyo = arr_ReduceTamanyoCADENA##S;                             \
    static constexpr auto Copia = arr_CopiaCADENA##S;                                             \
    static constexpr auto Concatena = arr_ConcatenaCADENA##S;                                     \
    static constexpr auto QSort = arr_QSortCADENA##S;                                             \
    static constexpr auto SonIguales = arr_SonIgualesCADENA##S;                                   \
    static constexpr auto SonIgualesExactamente = arr_SonIgualesExactamenteCADENA##S;             \
    static constexpr auto Referencias = arr_cadena_de_referencias##S;                             \
    static constexpr auto Recorre = nousar_RecorreCADENA##S;                                      \
    static constexpr auto Buscar = arr_BuscarCADENA##S;                                           \
    static constexpr auto BuscarEx = arr_BuscarExCADENA##S;                                       \
    static constexpr auto BuscarMayMin = arr_BuscarMayMinCADENA##S;                               \
    static constexpr auto BuscarSiguiente = arr_BuscarSiguienteCADENA##S;                         \
    static constexpr auto BuscarSiguienteEx = arr_BuscarSiguienteExCADENA##S;                     \
    static constexpr auto BuscarSiguienteMayMin = arr_BuscarSiguienteMayMinCADENA##S;             \
    static constexpr auto BuscarUnica = arr_BuscarUnicaCADENA##S;                                 \
    static constexpr auto BuscarUnicaEx = arr_BuscarUnicaExCADENA##S;                             \
    static constexpr auto BuscarUnicaMayMin = arr_BuscarUnicaMayMinCADENA##S;                     \
    static constexpr auto Existe = arr_ExisteCADENA##S;                                           \
    static constexpr auto ExisteEx = arr_ExisteExCADENA##S;                                       \
    static constexpr auto ExisteMayMin = arr_ExisteMayMinCADENA##S;                               \
    static constexpr auto ExisteUnica = arr_ExisteUnicaCADENA##S;                                 \
    static constexpr auto ExisteUnicaEx = arr_ExisteUnicaExCADENA##S;                             \
    static constexpr auto ExisteUnicaMayMin = arr_ExisteUnicaMayMinCADENA##S;

struct Estrecha {
    using C = char;
    ARR_PRUEBA_FUNCIONES_CADENA()
    static constexpr const char *ubicacion = "a_cadena (ARRAYS.DLL)";
    static constexpr const char *texto_igualdad = "(fnc_compara->fnc_compara_CADENA) != NULL";
    static constexpr const char *texto_accion = "(fnc_accion->fnc_accion_CADENA) != NULL";
    static char *copia(const char *cadena) { return cad_copia_cadena(cadena); }
    static void libera(char *&cadena) { zarpstr_destruye(&cadena); }
    static const char *de(const char8_t *utf8, const char16_t *) { return reinterpret_cast<const char *>(utf8); }
};

struct Ancha {
    using C = WCHAR;
    ARR_PRUEBA_FUNCIONES_CADENA(_u)
    static constexpr const char *ubicacion = "a_cadenau (ARRAYS.DLL)";
    static constexpr const char *texto_igualdad = "(fnc_compara->fnc_compara_CADENA_U) != NULL";
    static constexpr const char *texto_accion = "(fnc_accion->fnc_accion_CADENA_U) != NULL";
    static WCHAR *copia(const WCHAR *cadena) { return widestr_fun_copia(cadena); }
    static void libera(WCHAR *&cadena) { widestr_nousar_destruye(&cadena, __FILE__, __LINE__); }
    static const WCHAR *de(const char8_t *, const char16_t *utf16) { return utf16; }
};

#define TXT(literal) (TypeParam::de(u8##literal, u##literal))

// The fixture of the typed string tests, with helpers to build and read arrays of width A.
template <typename A> class PruebaCadenas : public PruebaArrays {
public:
    using C = typename A::C;
    using Texto = std::basic_string<C>;
    // An element as read back: its text, or nullopt for a NULL element.
    using Elemento = std::optional<Texto>;
    using Elementos = std::vector<Elemento>;

    static Elemento elemento(const C *cadena)
    {
        return cadena != nullptr ? Elemento(Texto(cadena)) : std::nullopt;
    }

    // A new array holding copies of `cadenas` (NULL stays NULL).
    static ARRAY *crea_con(std::initializer_list<const C *> cadenas)
    {
        ARRAY *array = A::Crea(0);
        for (const C *cadena : cadenas)
            A::Append(array, cadena);
        return array;
    }

    static Elementos lee(ARRAY *array)
    {
        Elementos elementos;
        for (ULONG i = 0; i < A::NumElems(array); ++i)
            elementos.push_back(elemento(A::Get(array, i)));
        return elementos;
    }

    static Elementos lista(std::initializer_list<const C *> cadenas)
    {
        Elementos elementos;
        for (const C *cadena : cadenas)
            elementos.push_back(elemento(cadena));
        return elementos;
    }
};

class NombreAnchura {
public:
    template <typename A> static std::string GetName(int)
    {
        return std::is_same_v<A, Estrecha> ? "Narrow" : "Wide";
    }
};

using Anchuras = ::testing::Types<Estrecha, Ancha>;
