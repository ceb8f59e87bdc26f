// The rows of the bit arrays and of the shared-memory publishing of the debug module.
#include "servicios/sin_memoria/operaciones.h"

namespace
{

// A row of 2048 bytes holds this many bits.
constexpr ULONG FILA = 2048 * 8;

auto bits(ULONG num)
{
    return [num] {
        ARRAY *array = arr_CreaBIT(0);
        for (ULONG i = 0; i < num; ++i)
            arr_AppendBIT(array, i % 3 == 0 ? CIERTO : FALSO);
        return array;
    };
}

auto dobles(ULONG num)
{
    return [num] {
        ARRAY *array = arr_CreaDouble(0);
        for (ULONG i = 0; i < num; ++i)
            arr_AppendDouble(array, i * 0.5);
        return array;
    };
}

// A new identifier for each publication: the end of a publication finds the first slot that ever
// held its identifier, so that one identifier published again would be looked for in a slot
// already closed.
ULONG identificador_nuevo()
{
    static ULONG ultimo = 9000;
    return ++ultimo;
}

} // namespace

std::vector<Operacion> operaciones_varias()
{
    return {
        crea("arr_CreaBIT", arr_CreaBIT, FILA + 1),
        cambia("arr_AppendBIT", bits(FILA), [](ARRAY *a) { arr_AppendBIT(a, CIERTO); }),
        hace("arr_CopiaBIT", bits(FILA + 1), arr_CopiaBIT),
        cambia("arr_AumentaTamanyoBIT", bits(10),
               [](ARRAY *a) { arr_AumentaTamanyoBIT(a, FILA + 1); }),
        cambia("arr_ReduceTamanyoBIT", bits(2 * FILA + 1),
               [](ARRAY *a) { arr_ReduceTamanyoBIT(a, FILA / 2); }),
        {"debugarr_ini_serializa",
         [](Caso &caso) {
             ARRAY *array = caso.guarda(dobles(20)());
             const ULONG identificador = identificador_nuevo();
             caso.llama([&] { debugarr_ini_serializa(array, identificador); });
             caso.anota(std::to_string(debugarr_fin_serializa(identificador)));
         }},
    };
}
