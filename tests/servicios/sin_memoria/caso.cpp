// The run of one row: arming the failure around the operation, and the description, full check
// and destruction of what the row left.
#include "servicios/sin_memoria/caso.h"

#include "core/arrayprv.h"
#include "services/sin_memoria.h"
#include "servicios/sin_memoria/reserva.h"

#include <cstring>

namespace
{

template <typename T> T lee(const unsigned char *celda)
{
    T valor;
    std::memcpy(&valor, celda, sizeof valor);
    return valor;
}

std::string texto_estrecho(const char *cadena) { return cadena == nullptr ? "NULL" : cadena; }

std::string texto_entero(const void *entero)
{
    return entero == nullptr ? "NULL" : std::to_string(*static_cast<const int *>(entero));
}

std::string describe(const ARRAY *array, Clase clase);

// The class of the arrays that an array of arrays holds; plana for any other.
Clase interior(Clase clase)
{
    return clase == Clase::arrays_de_estructuras ? Clase::estructuras : Clase::plana;
}

bool de_arrays(Clase clase)
{
    return clase == Clase::arrays_de_estructuras || clase == Clase::arrays_de_puntos;
}

// Destroys the 2D point array held in an element of an array of arrays.
void libera_puntos(void **elemento)
{
    auto *array = static_cast<ARRAY *>(*elemento);
    arr_DestruyePunto2D(&array);
    *elemento = nullptr;
}

// One element of a row of an array of pointers, by the class of its array.
std::string describe_elemento(const unsigned char *elemento, Clase clase)
{
    switch (clase) {
    case Clase::cadenas:
        return texto_estrecho(lee<const char *>(elemento));
    case Clase::cadenas_anchas:
        return texto_ancho(lee<const WCHAR *>(elemento));
    case Clase::estructuras:
        return texto_entero(lee<const void *>(elemento));
    case Clase::arrays_de_estructuras:
    case Clase::arrays_de_puntos:
        return describe(lee<const ARRAY *>(elemento), interior(clase));
    default:
        return {};
    }
}

// A 2D point array with private data, point by point through the interface.
std::string describe_puntos_con_datos(const ARRAY *array)
{
    std::string texto;
    for (ULONG i = 0; i < arr_NumElemsPunto2D(array); ++i) {
        double x = 0;
        double y = 0;
        void *datos = nullptr;
        arr_GetPunto2DXPriv(array, i, &x, &y, &datos);
        texto += std::to_string(x) + "," + std::to_string(y) + "," + texto_entero(datos) + " ";
    }
    return texto;
}

// The type, the count and the elements of every row, or NULL.
std::string describe(const ARRAY *array, Clase clase)
{
    if (array == nullptr)
        return "NULL";
    int32_t tipo = -1;
    int32_t num_elems = -1;
    uint64_t size_elem = 0;
    arryprv_es_array_correcto(array, &tipo, &num_elems, &size_elem);
    std::string texto = "{" + std::to_string(tipo) + " " + std::to_string(num_elems) + " elems:";
    if (clase == Clase::puntos_con_datos)
        return texto + describe_puntos_con_datos(array) + "}";
    ULONG en_fila = 0;
    for (ULONG fila = 0; const void *elementos = arr_Fila(array, fila, &en_fila); ++fila) {
        const auto *elemento = static_cast<const unsigned char *>(elementos);
        texto += "[" + std::to_string(en_fila) + ":";
        if (clase == Clase::plana) // the bytes themselves, which only need to compare equal
            texto.append(reinterpret_cast<const char *>(elemento), en_fila * size_elem);
        else
            for (ULONG i = 0; i < en_fila; ++i, elemento += size_elem)
                texto += describe_elemento(elemento, clase) + " ";
        texto += "]";
    }
    return texto + "}";
}

// The full check of an array and of the arrays it holds.
void comprueba(const ARRAY *array, Clase clase)
{
    if (array == nullptr)
        return;
    arrayprv_comprueba_array(array, 1);
    if (!de_arrays(clase))
        return;
    for (ULONG i = 0; i < arr_NumElemsDouble(array); ++i)
        comprueba(static_cast<const ARRAY *>(arr_GetPunteroConTipo(const_cast<ARRAY *>(array), i)),
                  interior(clase));
}

void destruye(ARRAY **array, Clase clase)
{
    switch (clase) {
    case Clase::estructuras:
        arr_DestruyeEstructurasConTipo(array, libera_entero);
        break;
    case Clase::arrays_de_estructuras:
        arr_DestruyeEstructurasArrayConTipo(array, libera_entero);
        break;
    case Clase::arrays_de_puntos:
        arr_DestruyeEstructurasConTipo(array, libera_puntos);
        break;
    case Clase::puntos_con_datos:
        arr_DestruyePunto2DXPriv(array, libera_entero);
        break;
    default:
        arr_DestruyeDouble(array);
        break;
    }
}

} // namespace

std::string texto_ancho(const WCHAR *cadena)
{
    if (cadena == nullptr)
        return "NULL";
    size_t longitud = 0;
    while (cadena[longitud] != 0)
        ++longitud;
    return std::string(reinterpret_cast<const char *>(cadena), longitud * sizeof(WCHAR));
}

void *nuevo_entero(int valor) { return new int(valor); }

void *copia_entero(const void *entero)
{
    return entero == nullptr ? nullptr : nuevo_entero(*static_cast<const int *>(entero));
}

void libera_entero(void **entero)
{
    delete static_cast<int *>(*entero);
    *entero = nullptr;
}

Caso::Armado::Armado(size_t peticion) { sin_memoria_falla_peticion(peticion); }
Caso::Armado::~Armado() { sin_memoria_falla_peticion(0); }

Caso::Caso(size_t peticion_que_falla)
    : peticion_que_falla_(peticion_que_falla),
      anterior_(arr_set_manejador_informes(cuenta_informe, &informes_))
{
}

ARRAY *Caso::guarda(ARRAY *array, Clase clase)
{
    arrays_.emplace_back(array, clase);
    return array;
}

Caso::Resultado Caso::termina()
{
    for (auto &[array, clase] : arrays_)
        texto_ += describe(array, clase) + "|";
    for (auto &[array, clase] : arrays_)
        comprueba(array, clase);
    for (auto &[array, clase] : arrays_)
        if (array != nullptr)
            destruye(&array, clase);
    arrays_.clear();
    arr_set_manejador_informes(anterior_, nullptr);
    return {texto_, informes_, llamadas_};
}

void PrintTo(const Operacion &operacion, std::ostream *salida) { *salida << operacion.nombre; }

Caso::Resultado ejecuta(const Operacion &operacion, size_t peticion_que_falla)
{
    Caso caso(peticion_que_falla);
    operacion.ejecuta(caso);
    return caso.termina();
}
