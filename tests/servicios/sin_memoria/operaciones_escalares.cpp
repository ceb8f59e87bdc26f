// The rows of the scalar families, made from the family table for every family alike, and of the
// ULong and ULong64 families under their second names.
#include "escalares/familias.h"
#include "servicios/sin_memoria/operaciones.h"

namespace
{

template <typename F> using Valor = typename F::Valor;

// Rows of 2048 bytes: an array of this many elements fills its first row exactly.
template <typename F> constexpr ULONG FILA = elementos_por_fila<F>();

template <typename F> Valor<F> valor(ULONG i) { return static_cast<Valor<F>>(i * 7 % 13); }

// A new array of the family holding `num` values, made through `crea` and `append`.
template <typename F, typename Crea, typename Append>
auto lleno(ULONG num, Crea crea, Append append)
{
    return [=] {
        ARRAY *array = crea();
        for (ULONG i = 0; i < num; ++i)
            append(array, valor<F>(i));
        return array;
    };
}

template <typename F> auto lleno(ULONG num)
{
    return lleno<F>(
        num, [] { return F::crea(0); }, F::append);
}

template <typename F> int descendente(Valor<F> a, Valor<F> b)
{
    return precede(b, a) ? comparac_PRIMERO_MENOR
                         : (precede(a, b) ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

// An array of the family whose reads by position build the direct table, its first row split
// through `inserta`.
template <typename F, typename Inserta> auto leible(Inserta inserta)
{
    return para_leer(
        F::crea, [inserta](ARRAY *a) { inserta(a, 0, valor<F>(1)); }, FILA<F>);
}

// The rows every name of a family has: an append into a full row, an insert that splits one, a
// delete that empties the last row, a sort with the caller's comparator, a copy, a concatenation,
// a read and a write by position that build the direct table and, where the family has them, the
// repeated append and the shrink. `prepara(num)` gives the arrays of `num` values they start from.
template <typename F, typename Prepara, typename Exportaciones>
void anyade_comunes(std::vector<Operacion> &filas, Prepara prepara, const Exportaciones &e)
{
    constexpr ULONG fila = FILA<F>;
    filas.push_back(cambia(e.append.first, prepara(fila),
                           [f = e.append.second](ARRAY *a) { f(a, valor<F>(5)); }));
    filas.push_back(cambia(e.inserta.first, prepara(fila),
                           [f = e.inserta.second](ARRAY *a) { f(a, fila / 2, valor<F>(5)); }));
    filas.push_back(cambia(e.borra.first, para_borrar(prepara, e.borra.second, fila),
                           [f = e.borra.second](ARRAY *a) { f(a, 2 * fila); }));
    filas.push_back(cambia(e.ordena.first, prepara(100),
                           [f = e.ordena.second](ARRAY *a) { f(a, descendente<F>); }));
    const auto para_leer = leible<F>(e.inserta.second);
    filas.push_back(
        cambia(e.get.first, para_leer, [f = e.get.second](ARRAY *a) { return f(a, 2 * fila); }));
    filas.push_back(cambia(e.set.first, para_leer,
                           [f = e.set.second](ARRAY *a) { f(a, 2 * fila, valor<F>(3)); }));
    filas.push_back(hace(e.copia.first, prepara(fila + 1), e.copia.second));
    filas.push_back(une(e.concatena.first, prepara(fila + 1), e.concatena.second));
    if constexpr (requires { e.append_n; })
        filas.push_back(cambia(e.append_n.first, prepara(fila),
                               [f = e.append_n.second](ARRAY *a) { f(a, 3, valor<F>(5)); }));
    if constexpr (requires { e.reduce; })
        filas.push_back(cambia(e.reduce.first, prepara(2 * fila + 1),
                               [f = e.reduce.second](ARRAY *a) { f(a, fila / 2); }));
}

template <typename Funcion> using Exportacion = std::pair<std::string, Funcion>;

template <typename F> std::string nombre(const char *operacion)
{
    return operacion + std::string(F::nombre);
}

// The family's own names, with the optional ones it has.
template <typename F> struct Nombres {
    Exportacion<decltype(F::append)> append{nombre<F>("arr_Append"), F::append};
    Exportacion<decltype(F::inserta)> inserta{nombre<F>("arr_Insertar"), F::inserta};
    Exportacion<decltype(F::borra)> borra{nombre<F>("arr_Borrar"), F::borra};
    Exportacion<decltype(F::ordena)> ordena{nombre<F>("arr_QSort"), F::ordena};
    Exportacion<decltype(F::get)> get{nombre<F>("arr_Get"), F::get};
    Exportacion<decltype(F::set)> set{nombre<F>("arr_Set"), F::set};
    Exportacion<decltype(F::copia)> copia{nombre<F>("arr_Copia"), F::copia};
    Exportacion<decltype(F::concatena)> concatena{nombre<F>("arr_Concatena"), F::concatena};
};

template <typename F> void anyade_familia(std::vector<Operacion> &filas)
{
    filas.push_back(crea(nombre<F>("arr_Crea"), F::crea, 2 * FILA<F> + 1));
    const auto prepara = [](ULONG num) { return lleno<F>(num); };
    if constexpr (
        requires { F::append_n; } && requires { F::reduce; }) {
        struct : Nombres<F> {
            Exportacion<decltype(F::append_n)> append_n{nombre<F>("arr_AppendN") + "s",
                                                        F::append_n};
            Exportacion<decltype(F::reduce)> reduce{nombre<F>("arr_ReduceTamanyo"), F::reduce};
        } exportaciones;
        anyade_comunes<F>(filas, prepara, exportaciones);
    } else if constexpr (requires { F::reduce; }) {
        struct : Nombres<F> {
            Exportacion<decltype(F::reduce)> reduce{nombre<F>("arr_ReduceTamanyo"), F::reduce};
        } exportaciones;
        anyade_comunes<F>(filas, prepara, exportaciones);
    } else {
        anyade_comunes<F>(filas, prepara, Nombres<F>{});
    }
    if constexpr (requires { F::aumenta; })
        filas.push_back(cambia(nombre<F>("arr_AumentaTamanyo"), lleno<F>(10),
                               [](ARRAY *a) { F::aumenta(a, 2 * FILA<F>); }));
}

template <typename... Familias>
void anyade_familias(std::vector<Operacion> &filas, ::testing::Types<Familias...>)
{
    (anyade_familia<Familias>(filas), ...);
}

// The second names of a family. P_crea makes the arrays the other rows start from; it has no row
// of its own: an empty array is a header slot from the pool, which asks the system for slots only
// when the process holds more arrays than it ever did, so no run after the first asks for any.
template <typename F, typename Crea, typename AppendN>
void anyade_segundos_nombres(std::vector<Operacion> &filas, const std::string &p, Crea crea_vacio,
                             AppendN append_n, decltype(F::append) append,
                             decltype(F::inserta) inserta, decltype(F::borra) borra,
                             decltype(F::ordena) ordena, decltype(F::get) get, decltype(F::set) set,
                             decltype(F::copia) copia, decltype(F::concatena) concatena,
                             decltype(F::reduce) reduce)
{
    struct {
        Exportacion<decltype(F::append)> append;
        Exportacion<decltype(F::inserta)> inserta;
        Exportacion<decltype(F::borra)> borra;
        Exportacion<decltype(F::ordena)> ordena;
        Exportacion<decltype(F::get)> get;
        Exportacion<decltype(F::set)> set;
        Exportacion<decltype(F::copia)> copia;
        Exportacion<decltype(F::concatena)> concatena;
        Exportacion<AppendN> append_n;
        Exportacion<decltype(F::reduce)> reduce;
    } exportaciones{{p + "_append", append},     {p + "_inserta", inserta},
                    {p + "_borra", borra},       {p + "_qsort", ordena},
                    {p + "_get", get},           {p + "_set", set},
                    {p + "_copia", copia},       {p + "_concatena", concatena},
                    {p + "_append_n", append_n}, {p + "_reduce_tamanyo", reduce}};
    anyade_comunes<F>(
        filas, [crea_vacio, append](ULONG num) { return lleno<F>(num, crea_vacio, append); },
        exportaciones);
}

// The same through the family's own insert.
template <typename F> auto leible() { return leible<F>(F::inserta); }

// The sums in place, one row per family that has one.
#define ARR_FILA_SUMAR(D, F)                                                                       \
    filas.push_back(cambia("arr_Sumar" #F, leible<Familia##F>(),                                   \
                           [](ARRAY *a) { arr_Sumar##F(a, 2 * FILA<Familia##F>, D{1}); }));
#define ARR_FILAS_SUMAR(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO, RECORRE)   \
    SUMAR(ARR_FILA_SUMAR, F)

void anyade_sumas(std::vector<Operacion> &filas) { ARR_FAMILIAS_ESCALARES(ARR_FILAS_SUMAR) }

#undef ARR_FILAS_SUMAR
#undef ARR_FILA_SUMAR

} // namespace

std::vector<Operacion> operaciones_escalares()
{
    std::vector<Operacion> filas;
    anyade_familias(filas, TodasLasFamilias{});
    filas.push_back(cambia("arr_InvertirBOOL", leible<FamiliaBOOL>(), arr_InvertirBOOL));
    anyade_sumas(filas);
    filas.push_back(cambia("arr_cambio_precio_pesetas_a_euros", leible<FamiliaDouble>(),
                           arr_cambio_precio_pesetas_a_euros));
    anyade_segundos_nombres<FamiliaULong>(filas, "arulong", arulong_crea, arulong_append_n,
                                          arulong_append, arulong_inserta, arulong_borra,
                                          arulong_qsort, arulong_get, arulong_set, arulong_copia,
                                          arulong_concatena, arulong_reduce_tamanyo);
    anyade_segundos_nombres<FamiliaULong64>(
        filas, "arulong64", arulong64_crea, arulong64_append_n, arulong64_append, arulong64_inserta,
        arulong64_borra, arulong64_qsort, arulong64_get, arulong64_set, arulong64_copia,
        arulong64_concatena, arulong64_reduce_tamanyo);
    return filas;
}
