// The guide from indices to rows: its slot beside the header, its rebuilds, the counts that keep
// it current between rebuilds, and its release.
#include "core/guia.h"

#include "services/memoria.h"

#include <algorithm>
#include <bit>

namespace {

// Inserts and deletes between rebuilds: at least this many, else eight per block, so that a block
// has seen about eight changes (which its own counts do not cover) when the guide is rebuilt, and
// a rebuild, which reads every row and writes every entry, costs about 8 entries per change. A
// lookup in a block whose own changes moved its index past a row's end walks to the next row; at
// eight changes against rows of hundreds of elements that is rare, while rebuilding four times as
// often cost an insert and delete at 10^6 doubles a tenth of its time.
constexpr size_t CAMBIOS_MINIMOS = 256;
constexpr size_t CAMBIOS_POR_BLOQUE = 8;

size_t bloques_de(size_t entradas) { return (entradas + ENTRADAS_POR_BLOQUE - 1) / ENTRADAS_POR_BLOQUE; }

// Makes room for `entradas` entries and their blocks, in one allocation.
void reserva(GuiaFilas &guia, size_t entradas)
{
    if (entradas <= guia.capacidad)
        return;
    const size_t capacidad = entradas + entradas / 4;
    const size_t bloques = capacidad / ENTRADAS_POR_BLOQUE + 1;
    guia.elems_insertados = static_cast<int32_t *>(zarpspy_nousar_realloc(
        guia.elems_insertados, (2 * bloques) * sizeof(int32_t) + capacidad * sizeof(uint32_t)));
    guia.filas_insertadas = guia.elems_insertados + bloques;
    guia.entradas = reinterpret_cast<uint32_t *>(guia.filas_insertadas + bloques);
    guia.capacidad = capacidad;
}

// Adds `cuenta` to the counts of every block from `primero` on.
void suma_desde(int32_t *cuentas, size_t primero, size_t num_bloques, int32_t cuenta)
{
    for (size_t bloque = primero; bloque < num_bloques; ++bloque)
        cuentas[bloque] += cuenta;
}

void reconstruye(ARRAY *array, GuiaFilas &guia)
{
    const size_t num_filas = array->num_filas;
    const size_t num_elems = array->num_elems;
    guia.cambios = 0;
    if (!arrayprv_merece_guia(num_elems, num_filas)) {
        guia.num_entradas = 0;
        guia.num_bloques = 0;
        return;
    }
    const unsigned desplazamiento = arrayprv_log_tramo(num_elems, num_filas);
    const size_t tramo = size_t{1} << desplazamiento;
    const size_t entradas = ((num_elems - 1) >> desplazamiento) + 1;
    reserva(guia, entradas);
    const size_t *const acumulado = array->acumulado_filas;
    const size_t *const long_filas = array->long_filas;
    uint32_t *const valores = guia.entradas;
    // Without branches on the layout: each row marks the first entry at or after its start (a
    // later row starting before the same entry overwrites it, being the one that holds the
    // entry's index); an entry no row marks lies in the row of the entry before. Then each entry
    // takes its row's end.
    std::fill_n(valores, entradas, uint32_t{0});
    for (size_t fila = 0; fila < num_filas; ++fila) {
        const size_t primera = (acumulado[fila] + tramo - 1) >> desplazamiento;
        if (primera < entradas)
            valores[primera] = static_cast<uint32_t>(fila);
    }
    size_t fila = 0;
    for (size_t entrada = 0; entrada < entradas; ++entrada) {
        fila = std::max<size_t>(valores[entrada], fila);
        const size_t hasta_la_siguiente = acumulado[fila] + long_filas[fila] - (entrada << desplazamiento);
        valores[entrada] = static_cast<uint32_t>((fila << desplazamiento) |
                                                 (std::clamp<size_t>(hasta_la_siguiente, 1, tramo) - 1));
    }
    guia.desplazamiento = desplazamiento;
    guia.mascara = tramo - 1;
    guia.num_entradas = entradas;
    guia.num_bloques = bloques_de(entradas);
    std::fill_n(guia.elems_insertados, guia.num_bloques, 0);
    std::fill_n(guia.filas_insertadas, guia.num_bloques, 0);
}

// The first block whose indices all come at or after `indice`.
size_t primer_bloque_desde(const GuiaFilas &guia, size_t indice)
{
    const unsigned log_bloque = guia.desplazamiento + LOG_ENTRADAS_POR_BLOQUE;
    return std::min((indice + (size_t{1} << log_bloque) - 1) >> log_bloque, guia.num_bloques);
}

} // namespace

ARRAY *arrayprv_reserva_cabecera()
{
    auto *cabecera = static_cast<CabeceraArray *>(zarpspy_reserva_cabecera(sizeof(CabeceraArray)));
    cabecera->recorridos = 0;
    cabecera->ordenaciones = 0;
    cabecera->guia = GuiaFilas{};
    cabecera->directa = TablaDirecta{};
    return &cabecera->array;
}

void arrayprv_guia_tras_cambio(ARRAY *array, ULONG real_pos, int32_t elems)
{
    GuiaFilas &guia = arrayprv_guia(array);
    if (guia.num_entradas > 0) {
        // An insert moves the elements after the new one; a delete, those from its index on.
        const size_t movidos_desde = size_t{real_pos} + (elems > 0 ? 1 : 0);
        suma_desde(guia.elems_insertados, primer_bloque_desde(guia, movidos_desde), guia.num_bloques, elems);
    }
    // The first change to an array of enough rows builds the guide at once.
    const bool sin_guia = guia.num_entradas == 0 && array->num_filas >= FILAS_MINIMAS_GUIA;
    if (++guia.cambios >= std::max(CAMBIOS_MINIMOS, CAMBIOS_POR_BLOQUE * guia.num_bloques) || sin_guia)
        reconstruye(array, guia);
}

void arrayprv_guia_renumera_filas(ARRAY *array, size_t indice, int32_t filas)
{
    GuiaFilas &guia = arrayprv_guia(array);
    const size_t bloque_actual = indice >> (guia.desplazamiento + LOG_ENTRADAS_POR_BLOQUE);
    if (bloque_actual >= guia.num_bloques)
        return; // no index the guide answers for comes after `indice`
    // The entries that span only indices from `indice` on, taken back to the build: those of
    // whole blocks by their count, the others one by one. The entry spanning `indice` itself
    // stays as it was.
    const int64_t al_construir = static_cast<int64_t>(indice) - guia.elems_insertados[bloque_actual];
    const int64_t tramo = int64_t{1} << guia.desplazamiento;
    const size_t primera =
        al_construir > 0 ? static_cast<size_t>((al_construir + tramo - 1) >> guia.desplazamiento) : 0;
    const size_t fin_de_su_bloque =
        std::min((primera / ENTRADAS_POR_BLOQUE + 1) * ENTRADAS_POR_BLOQUE, guia.num_entradas);
    const size_t primera_del_resto = primera % ENTRADAS_POR_BLOQUE == 0 ? primera : fin_de_su_bloque;
    const auto paso = static_cast<uint32_t>(int64_t{filas} * tramo);
    for (size_t entrada = primera; entrada < primera_del_resto; ++entrada)
        guia.entradas[entrada] += paso;
    suma_desde(guia.filas_insertadas, primera_del_resto / ENTRADAS_POR_BLOQUE, guia.num_bloques, filas);
}

void arrayprv_guia_reconstruye(ARRAY *array)
{
    GuiaFilas &guia = arrayprv_guia(array);
    if (guia.num_entradas > 0)
        reconstruye(array, guia);
}

void arrayprv_guia_olvida(ARRAY *array)
{
    GuiaFilas &guia = arrayprv_guia(array);
    zarpspy_nousar_free_pp(&guia.elems_insertados, sizeof(int32_t));
    guia = GuiaFilas{};
}

void arrayprv_cuenta_filas_llenas(ARRAY *array)
{
    GuiaFilas &guia = arrayprv_guia(array);
    const size_t long_max = array->long_max_fila_en_elem;
    if (!std::has_single_bit(long_max))
        return;
    const unsigned log_long_fila = static_cast<unsigned>(std::countr_zero(long_max));
    size_t llenas = guia.indices_calculables >> guia.log_long_fila;
    while (llenas < array->num_filas && array->long_filas[llenas] == long_max)
        ++llenas;
    guia.log_long_fila = log_long_fila;
    guia.indices_calculables = llenas << log_long_fila;
}
