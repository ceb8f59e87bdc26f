// The run of one row: arming the failure around the operation, and the description, full check
// and destruction of what the row left.
#include "servicios/sin_memoria/caso.h"

#include "core/arrayprv.h"
#include "services/sin_memoria.h"
#include "servicios/sin_memoria/reserva.h"

#include <cstdio>
#include <cstring>

namespace {

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

// One element of a row, by the class of its array.
std::string describe_elemento(const unsigned char *elemento, size_t size_elem, Clase clase)
{
    switch (clase) {
    case Clase::cadenas:
        return texto_estrecho(lee<const char *>(elemento));
    case Clase::cadenas_anchas:
        return texto_ancho(lee<const WCHAR *>(elemento));
    case Clase::estructuras:
        return texto_entero(lee<const void *>(elemento));
    case Clase::arrays_de_estructuras:
        return describe(lee<const ARRAY *>(elemento), Clase::estructuras);
    default: {
        std::string bytes;
        char hex[3];
        for (size_t i = 0; i < size_elem; ++i) {
            std::snprintf(hex, sizeof hex, "%02x", elemento[i]);
            bytes += hex;
        }
        return bytes;
    }
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
    std::string texto =
        "{" + std::to_string(tipo) + " " + std::to_string(num_elems) + " elems:";
    if (clase == Clase::puntos_con_datos)
        return texto + describe_puntos_con_datos(array) + "}";
    ULONG en_fila = 0;
    for (ULONG fila = 0; const void *elementos = arr_Fila(array, fila, &en_fila); ++fila) {
        texto += "[";
        const auto *elemento = static_cast<const unsigned char *>(elementos);
        for (ULONG i = 0; i < en_fila; ++i, elemento += size_elem)
            texto += describe_elemento(elemento, size_elem, clase) + " ";
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
    if (clase != Clase::arrays_de_estructuras)
        return;
    for (ULONG i = 0; i < arr_NumElemsPunto2D(array); ++i)
        comprueba(static_cast<const ARRAY *>(arr_GetPunteroConTipo(const_cast<ARRAY *>(array), i)),
                  Clase::estructuras);
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
    std::string texto;
    for (; *cadena != 0; ++cadena)
        texto += std::to_string(static_cast<unsigned>(*cadena)) + " ";
    return texto;
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
