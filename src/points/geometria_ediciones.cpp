// Edits that thin a polyline held in a 2D point array: removal of a point equal to the one before
// it, and of a point lying on the line between its two neighbours.
#include "points/geometria_interna.h"

#include "services/matematicas.h"

using namespace geometria;

extern "C" void arr_EliminarPuntosContiguosRepetidosPunto2D(ARRAY *array,
                                                            ULONG *num_eliminados) noexcept
{
    ULONG eliminados = 0;
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    if (polilinea && polilinea->num_puntos > 1) {
        ULONG n = polilinea->num_puntos;
        // Invariant: points 0 .. i-1 have no equal neighbours, and `anterior` is point i-1.
        Punto anterior = polilinea->punto(0);
        for (ULONG i = 1; i < n;) {
            const Punto actual = polilinea->punto(i);
            if (SON_IGUALES(actual.x, anterior.x) && SON_IGUALES(actual.y, anterior.y)) {
                borra_punto(array, polilinea->clase, i);
                ++eliminados;
                --n;
            } else {
                anterior = actual;
                ++i;
            }
        }
    }
    if (num_eliminados != nullptr)
        *num_eliminados = eliminados;
}

extern "C" void arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
    ARRAY *array, SHORT cerrada, double tolerancia) noexcept
{
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    if (!polilinea)
        return;
    ULONG n = polilinea->num_puntos;
    // A closed polyline is thinned as an open one that comes back to a copy of its first point.
    // The copy goes in with the plain append: an array with private data refuses it, and an
    // empty one has no point 0 to copy; either ends the edit with nothing changed.
    const bool cierra = cerrada == 1;
    if (cierra) {
        if (n == 0) {
            arr_GetPunto2D(array, 0, nullptr, nullptr);
            return;
        }
        const Punto primero = polilinea->punto(0);
        arr_AppendPunto2D(array, primero.x, primero.y);
        if (arr_NumElemsPunto2D(array) == n)
            return;
        ++n;
    }
    // Invariant: points 1 .. i were each kept because, when tested, they stood at least the
    // tolerance off the line through their neighbours; point 0 is never tested.
    for (ULONG i = 0; n > 2 && i < n - 2;) {
        const Punto a = polilinea->punto(i);
        const Punto b = polilinea->punto(i + 1);
        const Punto c = polilinea->punto(i + 2);
        Punto pie{0.0, 0.0};
        if (mt_distancia_a_recta(b.x, b.y, a.x, a.y, c.x, c.y, &pie.x, &pie.y) < tolerancia) {
            arr_BorrarPunto2D(array, i + 1);
            --n;
        } else {
            ++i;
        }
    }
    if (cierra)
        arr_BorrarPunto2D(array, n - 1);
}
