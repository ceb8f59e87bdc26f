// Inserting and deleting at random positions (the size stays put: each iteration inserts one
// element and deletes another), and inserting at the front (with a deletion at the back).
#include "comun.h"

namespace {

constexpr size_t PARES = 4096;

template <typename C> struct InsertaBorraAlAzar {
    static void corre(benchmark::State &estado)
    {
        const size_t n = static_cast<size_t>(estado.range(0));
        C c(n);
        const auto posiciones = posiciones_aleatorias(2 * PARES, n);
        size_t k = 0;
        for (auto _ : estado) {
            c.inserta(posiciones[k], 1.0);
            c.borra(posiciones[k + 1]);
            k = (k + 2) % posiciones.size();
        }
        estado.SetItemsProcessed(estado.iterations() * 2);
    }
};

template <typename C> struct InsertaDelante {
    static void corre(benchmark::State &estado)
    {
        const size_t n = static_cast<size_t>(estado.range(0));
        C c(n);
        for (auto _ : estado) {
            c.inserta_delante(1.0);
            c.borra(n);
        }
        estado.SetItemsProcessed(estado.iterations() * 2);
    }
};

const bool registrado = [] {
    registra_todos<InsertaBorraAlAzar, ARR_TODOS_LOS_CONTENEDORES>("random_insert_delete",
                                                                  {1000, 100000, 1000000});
    registra_todos<InsertaDelante, ARR_TODOS_LOS_CONTENEDORES>("front_insert",
                                                              {1000, 100000, 1000000});
    return true;
}();

} // namespace
