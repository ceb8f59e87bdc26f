// The rows of the 2D, 3D and 2D-with-private-data point arrays, made alike for the three kinds
// from the calls that differ between them.
#include "servicios/sin_memoria/operaciones.h"

#include "points/familia_punto.h"

namespace
{

constexpr const char *UBICACION = "sin_memoria_por_operacion_test";

// What differs between the kinds: the exports by role, the point stored at i, and how the
// rows place them.
struct Tipo {
    std::string nombre; // Punto2D, Punto3D, Punto2DXPriv
    ULONG fila;         // points in a row of 2048 bytes
    Clase clase;
    ARRAY *(*crea)(ULONG);
    void (*append)(ARRAY *, ULONG i);
    void (*inserta)(ARRAY *, ULONG pos, ULONG i);
    void (*borra)(ARRAY *, ULONG pos);
    void (*ordena)(ARRAY *);
    ARRAY *(*invierte)(const ARRAY *);
    ARRAY *(*copia)(ARRAY *);
    void (*concatena)(ARRAY *, ARRAY *);
    void (*reduce)(ARRAY *, ULONG);
    void (*lee)(const ARRAY *, ULONG pos, double *coordenadas);
    void (*pon)(ARRAY *, ULONG pos);
};

double coordenada(ULONG i) { return static_cast<double>(i * 7 % 13) - 0.5; }

int descendente_2d(double x1, double, double x2, double)
{
    return x1 > x2 ? comparac_PRIMERO_MENOR : (x1 < x2 ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

int descendente_3d(double x1, double y1, double, double x2, double y2, double)
{
    return descendente_2d(x1, y1, x2, y2);
}

void *copia_dato(void *dato) { return copia_entero(dato); }

int descendente_2dx(double x1, double y1, void *, double x2, double y2, void *)
{
    return descendente_2d(x1, y1, x2, y2);
}

const Tipo PUNTO2D{
    "Punto2D",
    2048 / sizeof(Punto2D),
    Clase::plana,
    arr_CreaPunto2D,
    [](ARRAY *a, ULONG i) { arr_AppendPunto2D(a, coordenada(i), -coordenada(i)); },
    [](ARRAY *a, ULONG pos, ULONG i) { arr_InsertarPunto2D(a, pos, coordenada(i), 1); },
    arr_BorrarPunto2D,
    [](ARRAY *a) { arr_QSortPunto2D(a, descendente_2d); },
    arr_InvertirPunto2D,
    [](ARRAY *a) { return arr_CopiaPunto2D(a); },
    [](ARRAY *d, ARRAY *o) { arr_ConcatenaPunto2D(d, o); },
    arr_ReduceTamanyoPunto2D,
    [](const ARRAY *a, ULONG pos, double *c) { arr_GetPunto2D(a, pos, &c[0], &c[1]); },
    [](ARRAY *a, ULONG pos) { arr_SetPunto2D(a, pos, 8, 9); },
};

const Tipo PUNTO3D{
    "Punto3D",
    2048 / sizeof(Punto3D),
    Clase::plana,
    arr_CreaPunto3D,
    [](ARRAY *a, ULONG i) { arr_AppendPunto3D(a, coordenada(i), 2, -coordenada(i)); },
    [](ARRAY *a, ULONG pos, ULONG i) { arr_InsertarPunto3D(a, pos, coordenada(i), 1, 2); },
    arr_BorrarPunto3D,
    [](ARRAY *a) { arr_QSortPunto3D(a, descendente_3d); },
    arr_InvertirPunto3D,
    [](ARRAY *a) { return arr_CopiaPunto3D(a); },
    [](ARRAY *d, ARRAY *o) { arr_ConcatenaPunto3D(d, o); },
    arr_ReduceTamanyoPunto3D,
    [](const ARRAY *a, ULONG pos, double *c) { arr_GetPunto3D(a, pos, &c[0], &c[1], &c[2]); },
    [](ARRAY *a, ULONG pos) { arr_SetPunto3D(a, pos, 8, 9, 10); },
};

// Points with data: the even ones of the first row carry an int. The points that deletes take
// away come after it, as a delete does not release data; the reversal gets points without data,
// as it reports every point that has some.
constexpr ULONG FILA_2DX = 2048 / sizeof(Punto2DX);
const Tipo PUNTO2DX{
    "Punto2DXPriv",
    FILA_2DX,
    Clase::puntos_con_datos,
    arr_CreaPunto2DXPriv,
    [](ARRAY *a, ULONG i) {
        arr_AppendPunto2DXPriv(a, coordenada(i), 3,
                               i % 2 == 0 && i < FILA_2DX ? nuevo_entero(static_cast<int>(i))
                                                          : nullptr);
    },
    [](ARRAY *a, ULONG pos, ULONG i) {
        arr_InsertarPunto2DXPriv(a, pos, coordenada(i), 4, nuevo_entero(-static_cast<int>(i)));
    },
    arr_BorrarPunto2DXPriv,
    [](ARRAY *a) { arr_QSortPunto2DXPriv(a, descendente_2dx); },
    arr_InvertirPunto2DXPriv,
    [](ARRAY *a) { return arr_CopiaPunto2DXPriv_nousar(a, copia_dato, UBICACION, __LINE__); },
    [](ARRAY *d, ARRAY *o) {
        arr_ConcatenaPunto2DXPriv_nousar(d, o, copia_dato, UBICACION, __LINE__);
    },
    [](ARRAY *a, ULONG num) { arr_ReduceTamanyoPunto2DXPriv(a, num, libera_entero); },
    [](const ARRAY *a, ULONG pos, double *c) {
        arr_GetPunto2DXPriv(a, pos, &c[0], &c[1], nullptr);
    },
    [](ARRAY *a, ULONG pos) { arr_SetPunto2DXPriv(a, pos, 8, 9, nullptr); },
};

auto lleno(const Tipo &tipo, ULONG num)
{
    return [&tipo, num] {
        ARRAY *array = tipo.crea(0);
        for (ULONG i = 0; i < num; ++i)
            tipo.append(array, i);
        return array;
    };
}

// An array whose reads by position build the direct table.
auto leible(const Tipo &tipo)
{
    return para_leer(
        tipo.crea, [&tipo](ARRAY *a) { tipo.inserta(a, 0, 1); }, tipo.fila);
}

// The read and the write by position, of a point after the first row (which holds no data).
void anyade_lecturas(std::vector<Operacion> &filas, const Tipo &t)
{
    filas.push_back({"arr_Get" + t.nombre, [&t](Caso &caso) {
                         ARRAY *array = caso.guarda(leible(t)(), t.clase);
                         double coordenadas[3] = {0, 0, 0};
                         caso.llama([&] { t.lee(array, 2 * t.fila, coordenadas); });
                         for (const double coordenada : coordenadas)
                             caso.anota(std::to_string(coordenada));
                     }});
    filas.push_back(cambia(
        "arr_Set" + t.nombre, leible(t), [&t](ARRAY *a) { t.pon(a, 2 * t.fila); }, t.clase));
}

void anyade_tipo(std::vector<Operacion> &filas, const Tipo &t)
{
    anyade_lecturas(filas, t);
    const auto nombre = [&t](const char *operacion) { return operacion + t.nombre; };
    const auto nombre_nousar = [&t](const char *operacion) {
        return operacion + t.nombre + "_nousar";
    };
    const bool con_datos = t.clase == Clase::puntos_con_datos;
    filas.push_back(crea(nombre("arr_Crea"), t.crea, t.fila + 1, t.clase));
    filas.push_back(cambia(
        nombre("arr_Append"), lleno(t, t.fila), [&t](ARRAY *a) { t.append(a, 5); }, t.clase));
    filas.push_back(cambia(
        nombre("arr_Insertar"), lleno(t, t.fila), [&t](ARRAY *a) { t.inserta(a, t.fila / 2, 5); },
        t.clase));
    filas.push_back(cambia(
        nombre("arr_Borrar"),
        para_borrar([&t](ULONG num) { return lleno(t, num); }, t.borra, t.fila),
        [&t](ARRAY *a) { t.borra(a, 2 * t.fila); }, t.clase));
    filas.push_back(cambia(nombre("arr_QSort"), lleno(t, 100), t.ordena, t.clase));
    filas.push_back(hace(con_datos ? nombre_nousar("arr_Copia") : nombre("arr_Copia"),
                         lleno(t, t.fila + 1), t.copia, t.clase));
    filas.push_back(une(con_datos ? nombre_nousar("arr_Concatena") : nombre("arr_Concatena"),
                        lleno(t, t.fila + 1), t.concatena, t.clase));
    filas.push_back(cambia(
        nombre("arr_ReduceTamanyo"), lleno(t, 2 * t.fila + 1),
        [&t](ARRAY *a) { t.reduce(a, t.fila / 2); }, t.clase));
    if (con_datos) // its reversal reports every point that carries data
        filas.push_back({nombre("arr_Invertir"), [&t](Caso &caso) {
                             ARRAY *array = caso.guarda(t.crea(t.fila + 1), t.clase);
                             caso.guarda(caso.llama([&] { return t.invierte(array); }), t.clase);
                         }});
    else
        filas.push_back(hace(nombre("arr_Invertir"), lleno(t, t.fila + 1), t.invierte, t.clase));
}

} // namespace

std::vector<Operacion> operaciones_puntos()
{
    std::vector<Operacion> filas;
    for (const Tipo *tipo : {&PUNTO2D, &PUNTO3D, &PUNTO2DX})
        anyade_tipo(filas, *tipo);
    filas.push_back(cambia("arr_AumentaTamanyoPunto2D", lleno(PUNTO2D, 10),
                           [](ARRAY *a) { arr_AumentaTamanyoPunto2D(a, PUNTO2D.fila + 1); }));
    filas.push_back(cambia("arr_AumentaTamanyoPunto3D", lleno(PUNTO3D, 10),
                           [](ARRAY *a) { arr_AumentaTamanyoPunto3D(a, PUNTO3D.fila + 1); }));
    return filas;
}
