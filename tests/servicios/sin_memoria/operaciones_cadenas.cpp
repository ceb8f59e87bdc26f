// The rows of the narrow and wide string families, made alike for both widths, and of the copies
// of a string that callers hand over to an array.
#include "servicios/sin_memoria/operaciones.h"

#include "cadenas/anchura.h"

#include <string>

namespace
{

// A row of 2048 bytes holds this many string pointers.
constexpr ULONG FILA = 2048 / sizeof(void *);

// The exports of one width, under the names that the string tests give them, and what the rows
// add: the growth, the name of the string copy and a string as text.
template <typename C> struct Cadenas;

template <> struct Cadenas<char> : Estrecha {
    static constexpr const char *sufijo = "";
    static constexpr Clase clase = Clase::cadenas;
    static constexpr auto aumenta = arr_AumentaTamanyoCADENA;
    static constexpr const char *nombre_copia_cadena = "cad_copia_cadena";
    static std::string texto(const char *cadena) { return cadena; }
};

template <> struct Cadenas<WCHAR> : Ancha {
    static constexpr const char *sufijo = "_u";
    static constexpr Clase clase = Clase::cadenas_anchas;
    static constexpr auto aumenta = arr_AumentaTamanyoCADENA_u;
    static constexpr const char *nombre_copia_cadena = "widestr_fun_copia";
    static std::string texto(const WCHAR *cadena) { return texto_ancho(cadena); }
};

// The i-th string of the rows: a word with a letter outside ASCII, then i.
template <typename C> std::basic_string<C> cadena(ULONG i)
{
    std::basic_string<C> texto;
    for (const char c : "cad\xF1n " + std::to_string(i))
        texto += static_cast<C>(static_cast<unsigned char>(c));
    return texto;
}

template <typename C> auto lleno(ULONG num)
{
    return [num] {
        ARRAY *array = Cadenas<C>::Crea(0);
        for (ULONG i = 0; i < num; ++i)
            Cadenas<C>::Append(array, cadena<C>(i).c_str());
        return array;
    };
}

// An array whose reads by position build the direct table.
template <typename C> auto leible()
{
    using S = Cadenas<C>;
    return para_leer(
        [](ULONG num) {
            ARRAY *array = S::Crea(0);
            S::AppendN(array, num, cadena<C>(3).c_str());
            return array;
        },
        [](ARRAY *a) { S::Insertar(a, 0, cadena<C>(1).c_str()); }, FILA);
}

// The string an operation handed out, as text, released.
template <typename C> void anota_y_libera(Caso &caso, C *cadena)
{
    caso.anota(cadena == nullptr ? "NULL" : Cadenas<C>::texto(cadena));
    Cadenas<C>::libera(cadena);
}

template <typename C> int descendente(const C *a, const C *b)
{
    const std::basic_string<C> x(a);
    const std::basic_string<C> y(b);
    return x > y ? comparac_PRIMERO_MENOR : (x < y ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

template <typename C> void anyade_anchura(std::vector<Operacion> &filas)
{
    using S = Cadenas<C>;
    const auto nombre = [](const char *operacion) { return operacion + std::string(S::sufijo); };
    const Clase clase = S::clase;
    filas.push_back(crea(nombre("arr_CreaCADENA"), S::Crea, FILA + 1, clase));
    filas.push_back(cambia(
        nombre("arr_AppendCADENA"), lleno<C>(FILA),
        [](ARRAY *a) { S::Append(a, cadena<C>(7).c_str()); }, clase));
    filas.push_back({nombre("arr_AppendCADENAOriginal"), [](Caso &caso) {
                         ARRAY *array = caso.guarda(lleno<C>(FILA)(), S::clase);
                         C *propia = S::copia(cadena<C>(7).c_str());
                         caso.llama([&] { S::AppendOriginal(array, &propia); });
                         caso.anota(propia == nullptr ? "taken" : "left");
                     }});
    filas.push_back(cambia(
        nombre("arr_AppendNCADENAs"), lleno<C>(FILA - 1),
        [](ARRAY *a) { S::AppendN(a, 3, cadena<C>(7).c_str()); }, clase));
    filas.push_back(cambia(
        nombre("arr_InsertarCADENA"), lleno<C>(FILA),
        [](ARRAY *a) { S::Insertar(a, FILA / 2, cadena<C>(7).c_str()); }, clase));
    filas.push_back(cambia(
        nombre("arr_BorrarCADENA"),
        para_borrar([](ULONG num) { return lleno<C>(num); }, S::Borrar, FILA),
        [](ARRAY *a) { S::Borrar(a, 2 * FILA); }, clase));
    filas.push_back(cambia(
        nombre("arr_SetCADENA"), lleno<C>(5), [](ARRAY *a) { S::Set(a, 2, cadena<C>(7).c_str()); },
        clase));
    filas.push_back(cambia(
        nombre("arr_QSortCADENA"), lleno<C>(100), [](ARRAY *a) { S::QSort(a, descendente<C>); },
        clase));
    filas.push_back(hace(nombre("arr_CopiaCADENA"), lleno<C>(5), S::Copia, clase));
    filas.push_back(une(nombre("arr_ConcatenaCADENA"), lleno<C>(5), S::Concatena, clase));
    filas.push_back(cambia(
        nombre("arr_AumentaTamanyoCADENA"), lleno<C>(10),
        [](ARRAY *a) { return S::aumenta(a, 20); }, clase));
    filas.push_back(cambia(
        nombre("arr_ReduceTamanyoCADENA"), lleno<C>(2 * FILA + 1),
        [](ARRAY *a) { S::ReduceTamanyo(a, FILA / 2); }, clase));
    filas.push_back({nombre("arr_GetCopiaCADENA"), [](Caso &caso) {
                         ARRAY *array = caso.guarda(lleno<C>(5)(), S::clase);
                         anota_y_libera(caso, caso.llama([&] { return S::GetCopia(array, 3); }));
                     }});
    filas.push_back(
        {nombre("arr_cadena_de_referencias"), [](Caso &caso) {
             ARRAY *array = caso.guarda(lleno<C>(5)(), S::clase);
             anota_y_libera(caso, caso.llama([&] { return S::Referencias(array, '(', ',', ')'); }));
         }});
    filas.push_back({nombre("arr_GetCADENA"), [](Caso &caso) {
                         ARRAY *array = caso.guarda(leible<C>()(), S::clase);
                         caso.anota(S::texto(caso.llama([&] { return S::Get(array, 2 * FILA); })));
                     }});
    filas.push_back({nombre("arr_SetCADENAOriginal"), [](Caso &caso) {
                         ARRAY *array = caso.guarda(leible<C>()(), S::clase);
                         C *propia = S::copia(cadena<C>(7).c_str());
                         caso.llama([&] { S::SetOriginal(array, 2 * FILA, &propia); });
                         caso.anota(propia == nullptr ? "taken" : "left");
                     }});
    filas.push_back({S::nombre_copia_cadena, [](Caso &caso) {
                         const std::basic_string<C> original = cadena<C>(7);
                         anota_y_libera(caso,
                                        caso.llama([&] { return S::copia(original.c_str()); }));
                     }});
}

} // namespace

std::vector<Operacion> operaciones_cadenas()
{
    std::vector<Operacion> filas;
    anyade_anchura<char>(filas);
    anyade_anchura<WCHAR>(filas);
    return filas;
}
