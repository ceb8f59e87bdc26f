// Plane geometry on 2D point arrays: what the arc, ellipse and polyline modules share. The
// geometry is a client of the 2D point families: every vertex goes in and every point comes out
// through their exported operations, so it serves plain arrays and arrays of points with private
// data alike. Angles are radians, counter-clockwise from the positive x axis.
#pragma once

#include "arrays.h"

#include <optional>

namespace geometria {

// The geometry reports as part of the 2D point module.
inline constexpr const char *UBICACION = "a_pto2d (ARRAYS.DLL)";

inline constexpr double PI = 3.14159265358979323846;
// A full turn, 6.283185307179586: the step of a circle of n points is VUELTA / n.
inline constexpr double VUELTA = 2 * PI;

// ---- The two kinds of 2D point array ------------------------------------------------------

// What a handle is, as far as the geometry cares: not a live array at all (NULL, or its header
// is not valid), a live array of some other element type, or one of the two 2D point kinds.
enum class Clase { sin_array, otro_tipo, plano, con_datos };
Clase clase_de(const ARRAY *array);

// A new empty array of the kind `clase` (a plain one for plano, one with private data otherwise).
ARRAY *crea_vacio(Clase clase);

struct Punto {
    double x;
    double y;
};

// Where a generator's vertices go, one by one, with the append of the array's kind (a point
// with private data gets NULL data). An array of neither kind is handed the first vertex anyway,
// so that its family reports why it refuses it, and nothing after that.
class Salida {
public:
    explicit Salida(ARRAY *array);
    void emite(double x, double y);

private:
    ARRAY *array_;
    Clase clase_;
    bool rechazada_ = false;
};

// A 2D point array read as a polyline through the family's count and read operations.
struct Polilinea {
    const ARRAY *array;
    Clase clase;
    ULONG num_puntos;

    Punto punto(ULONG i) const;
};

// The polyline held by `array`, or nothing when it holds none: a NULL or dead handle is reported
// by the count, an array of another element type by its first read.
std::optional<Polilinea> lee_polilinea(const ARRAY *array);

// Deletes point i of a 2D point array of the kind `clase` with that kind's delete.
void borra_punto(ARRAY *array, Clase clase, ULONG i);

// ---- Angles and point counts --------------------------------------------------------------

// The angle filter of the ellipse and of the count by side length: the arc from angulo_inicial to
// angulo_final, clockwise when sentido is 1 and counter-clockwise for every other value, written
// as the counter-clockwise interval [*angulo_inicial_filtrado, *angulo_final_filtrado]. Equal
// angles give an empty interval, not a full turn. A NULL out-pointer is reported and not written.
void filtra_angulos(double angulo_inicial, double angulo_final, SHORT sentido,
                    double *angulo_inicial_filtrado, double *angulo_final_filtrado);

// A circular sweep from alfa1 to alfa2 (the angles of the arc's end points), one of them unwrapped
// by a turn so that it runs counter-clockwise for sentido 0 and clockwise for any other value.
struct Barrido {
    double alfa1;
    double alfa2;
    double arco; // |alfa1 - alfa2|
    bool horario;
};
Barrido orienta_barrido(double alfa1, double alfa2, SHORT sentido);

// How the circular generators count their points.
enum class Cuenta {
    // num_puntos is the count of the whole circle; the arc takes the circle's step, evened out.
    circulo = 0,
    // num_puntos is the count of the arc, both end points included.
    arco = 1
};

// The angular step between the vertices of an arc of `arco` radians, and whether only the two end
// points are emitted (an arc shorter than 1.1 circle steps, or an arc of two points).
struct Paso {
    double paso;
    bool solo_extremos;
};
Paso paso_del_arco(double arco, ULONG num_puntos, Cuenta cuenta);

// The point count of an arc of radius `radio` whose sides are at most longitud_maxima_lado and
// whose steps are at most those of a circle of num_puntos points; never below 2.
ULONG num_puntos_por_lado(double radio, double angulo_inicial, double angulo_final, SHORT sentido,
                          ULONG num_puntos, double longitud_maxima_lado);

} // namespace geometria
