// The guide from indices to rows: its slot beside the header, its rebuilds and its release.
#include "core/guia.h"

#include "services/memoria.h"

#include <algorithm>
#include <bit>

namespace {

// Below this many rows the prediction from the average row length is as quick as a guide.
constexpr size_t FILAS_MINIMAS = 64;

// Inserts and deletes between rebuilds, counted in the indices one entry spans (before the first
// build, in FILAS_MINIMAS indices): each change moves row boundaries by one index, so the rows
// named stay within a few rows of the truth, which the lookup's window covers.
constexpr size_t TRAMOS_ENTRE_RECONSTRUCCIONES = 2;

// Rows added or removed between rebuilds: the lookup spreads them evenly over the indices, which
// puts the guide's row within a few rows of the truth while they are few.
constexpr size_t FILAS_NUEVAS_MAXIMAS = 64;

void reconstruye(ARRAY *array, GuiaFilas &guia)
{
    const size_t num_filas = array->num_filas;
    const size_t num_elems = array->num_elems;
    guia.cambios = 0;
    if (num_filas < FILAS_MINIMAS || num_elems < num_filas) {
        guia.num_entradas = 0;
        return;
    }
    // Entries span a power of two between a quarter and a half of the average row, so most
    // indices lie in the row their entry names or the next.
    const unsigned log_media = static_cast<unsigned>(std::bit_width(num_elems / num_filas)) - 1;
    guia.desplazamiento = log_media > 0 ? log_media - 1 : 0;
    const size_t entradas = ((num_elems - 1) >> guia.desplazamiento) + 1;
    if (entradas > guia.capacidad) {
        const size_t capacidad = entradas + entradas / 4;
        guia.filas = static_cast<uint32_t *>(
            zarpspy_nousar_realloc(guia.filas, capacidad * sizeof(uint32_t)));
        guia.capacidad = capacidad;
    }
    // Each row marks the first entry at or after its start (a later row starting before the
    // same entry overwrites it: it is the one holding the entry's index); an entry no row marks
    // lies in the row of the entry before. Without branches on the layout.
    uint32_t *const filas = guia.filas;
    std::fill_n(filas, entradas, uint32_t{0});
    const size_t redondeo = (size_t{1} << guia.desplazamiento) - 1;
    for (size_t fila = 0; fila < num_filas; ++fila) {
        const size_t primera = (array->acumulado_filas[fila] + redondeo) >> guia.desplazamiento;
        if (primera < entradas)
            filas[primera] = static_cast<uint32_t>(fila);
    }
    for (size_t entrada = 1; entrada < entradas; ++entrada)
        filas[entrada] = std::max(filas[entrada], filas[entrada - 1]);
    guia.num_entradas = entradas;
    guia.filas_al_construir = num_filas;
    guia.elems_al_construir = num_elems;
    guia.filas_nuevas_por_indice = 0;
}

} // namespace

ARRAY *arrayprv_reserva_cabecera()
{
    auto *cabecera = static_cast<CabeceraArray *>(zarpspy_reserva_cabecera(sizeof(CabeceraArray)));
    cabecera->guia = GuiaFilas{};
    return &cabecera->array;
}

void arrayprv_guia_tras_cambio(ARRAY *array)
{
    GuiaFilas &guia = arrayprv_guia(array);
    const size_t tramo = guia.num_entradas > 0 ? size_t{1} << guia.desplazamiento : FILAS_MINIMAS;
    const int64_t filas_nuevas =
        static_cast<int64_t>(array->num_filas) - static_cast<int64_t>(guia.filas_al_construir);
    const int64_t maximas = FILAS_NUEVAS_MAXIMAS;
    if (++guia.cambios >= TRAMOS_ENTRE_RECONSTRUCCIONES * tramo || filas_nuevas > maximas ||
        filas_nuevas < -maximas)
        reconstruye(array, guia);
    else if (guia.num_entradas > 0)
        // At most FILAS_NUEVAS_MAXIMAS rows over the indices the entries cover: the lookup's
        // product of an index and this stays far below 2^63.
        guia.filas_nuevas_por_indice =
            filas_nuevas * (int64_t{1} << 32) / static_cast<int64_t>(guia.elems_al_construir);
}

void arrayprv_guia_olvida(ARRAY *array)
{
    GuiaFilas &guia = arrayprv_guia(array);
    zarpspy_nousar_free_pp(&guia.filas, sizeof(uint32_t));
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
