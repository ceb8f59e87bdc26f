// The out-of-memory path: a request that fails goes to the application's handler, which may free
// memory and have it retried; without a handler, or when it declines, the process ends with one
// line naming the size. A run of many operations in which each request to the system fails in
// turn ends exactly as the run without failures, consistent and without a leak.
#include "services/memoria.h"
#include "services/sin_memoria.h"
#include "servicios/sin_memoria/reserva.h"

#include "arrays.h"
#include "core/arrayprv.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

BOOL declina(size_t, void *) { return FALSO; }

int descendente(LONG a, LONG b)
{
    return a > b ? comparac_PRIMERO_MENOR : (a < b ? comparac_PRIMERO_MAYOR : comparac_IGUALES);
}

BOOL iguales(double a, double b) { return a == b ? CIERTO : FALSO; }

void *copia_entero(const void *entero) { return new int(*static_cast<const int *>(entero)); }
void libera_entero(void **entero)
{
    delete static_cast<int *>(*entero);
    *entero = nullptr;
}

// Many operations over every kind of family, each request of which may be the one that fails: what
// they leave, as text, and the reports of the full check of every array before it is destroyed.
std::string escenario(size_t &informes_de_comprobacion)
{
    std::string resultado;
    ARRAY *doubles = arr_CreaDouble(0);
    for (int i = 0; i < 3000; ++i)
        arr_AppendDouble(doubles, (i * 7919) % 3001);
    for (int i = 0; i < 50; ++i)
        arr_InsertarDouble(doubles, 10 * static_cast<ULONG>(i), -i);
    arr_BorrarDouble(doubles, 5);
    arr_QSortDouble(doubles, nullptr);
    ARRAY *copia = arr_CopiaDouble(doubles);
    arr_ConcatenaDouble(copia, doubles);
    arr_AumentaTamanyoDouble(copia, 7000);
    arr_ReduceTamanyoDouble(copia, 6500);
    ARRAY *longs = arr_CreaLong(0);
    for (LONG i = 0; i < 2000; ++i)
        arr_AppendLong(longs, (i * 31) % 2003);
    arr_QSortLong(longs, descendente);
    ARRAY *cadenas = arr_CreaCADENA(0);
    for (int i = 0; i < 300; ++i)
        arr_AppendCADENA(cadenas, std::to_string(i * 37 % 301).c_str());
    arr_SetCADENA(cadenas, 3, "tres");
    arr_InsertarCADENA(cadenas, 0, "primera");
    arr_QSortCADENA(cadenas, nullptr);
    ARRAY *puntos = arr_CreaPunto2D(0);
    for (int i = 0; i < 500; ++i)
        arr_AppendPunto2D(puntos, i, -i);
    ARRAY *mas_puntos = arr_CopiaPunto2D(puntos);
    ARRAY *circulo = arr_CreaPunto2D(0);
    arr_AnyadirCirculoPunto2D(circulo, 0, 0, 10, 0, 64);
    arr_ConcatenaPunto2D(mas_puntos, circulo);
    ARRAY *invertidos = arr_InvertirPunto2D(mas_puntos);
    ARRAY *puntos3d = arr_CreaPunto3D(0);
    for (int i = 0; i < 400; ++i)
        arr_AppendPunto3D(puntos3d, i, i, -i);
    ARRAY *puntos3d_invertidos = arr_InvertirPunto3D(puntos3d);
    ARRAY *anchas = arr_CreaCADENA_u(0);
    for (int i = 0; i < 200; ++i)
        arr_AppendCADENA_u(anchas, u"\u00f1and\u00fa");
    ARRAY *mas_anchas = arr_CopiaCADENA_u(anchas);
    arr_ConcatenaCADENA_u(mas_anchas, anchas);
    ARRAY *bits = arr_CreaBIT(0);
    for (int i = 0; i < 5000; ++i)
        arr_AppendBIT(bits, i % 3 == 0 ? CIERTO : FALSO);
    ARRAY *estructuras = arr_CreaPunteroConTipo(0);
    for (int i = 0; i < 300; ++i)
        arr_AppendPunteroConTipo(estructuras, new int(i));
    ARRAY *copia_estructuras = arr_CopiaEstructurasConTipo(estructuras, copia_entero);

    for (ULONG i = 0; i < arr_NumElemsDouble(copia); i += 97)
        resultado += std::to_string(arr_GetDouble(copia, i)) + ",";
    for (ULONG i = 0; i < arr_NumElemsLong(longs); i += 89)
        resultado += std::to_string(arr_GetLong(longs, i)) + ",";
    for (ULONG i = 0; i < arr_NumElemsCADENA(cadenas); i += 13)
        resultado += std::string(arr_GetCADENA(cadenas, i)) + ",";
    double x = 0;
    double y = 0;
    arr_GetPunto2D(mas_puntos, 499, &x, &y);
    resultado += std::to_string(x) + ";" + std::to_string(y);
    resultado += "|" + std::to_string(arr_BuscarDouble(copia, 42.0, iguales));
    arr_GetPunto2D(invertidos, 3, &x, &y);
    resultado += "|" + std::to_string(arr_NumElemsPunto2D(invertidos)) + ";" + std::to_string(x);
    resultado += "|" + std::to_string(arr_NumElemsPunto3D(puntos3d_invertidos));
    resultado += "|" + std::to_string(arr_NumElemsCADENA_u(mas_anchas));
    resultado +=
        "|" + std::to_string(arr_NumElemsBIT(bits)) + std::to_string(arr_GetBIT(bits, 4998));
    resultado +=
        "|" + std::to_string(*static_cast<int *>(arr_GetPunteroConTipo(copia_estructuras, 2)));

    const arr_manejador_informes anterior =
        arr_set_manejador_informes(cuenta_informe, &informes_de_comprobacion);
    for (ARRAY *array :
         {doubles, copia, longs, cadenas, puntos, mas_puntos, circulo, invertidos, puntos3d,
          puntos3d_invertidos, anchas, mas_anchas, bits, estructuras, copia_estructuras})
        arrayprv_comprueba_array(array, 1);
    arr_set_manejador_informes(anterior, nullptr);
    arr_DestruyeDouble(&doubles);
    arr_DestruyeDouble(&copia);
    arr_DestruyeLong(&longs);
    arr_DestruyeCADENA(&cadenas);
    arr_DestruyePunto2D(&puntos);
    arr_DestruyePunto2D(&mas_puntos);
    arr_DestruyePunto2D(&circulo);
    arr_DestruyePunto2D(&invertidos);
    arr_DestruyePunto3D(&puntos3d);
    arr_DestruyePunto3D(&puntos3d_invertidos);
    arr_DestruyeCADENA_u(&anchas);
    arr_DestruyeCADENA_u(&mas_anchas);
    arr_DestruyeBIT(&bits);
    arr_DestruyeEstructurasConTipo(&estructuras, libera_entero);
    arr_DestruyeEstructurasConTipo(&copia_estructuras, libera_entero);
    return resultado;
}

TEST(SinMemoria, WithoutAHandlerTheProcessEndsNamingTheSize)
{
    EXPECT_DEATH(
        {
            sin_memoria_falla_peticion(1);
            void *bloque = zarpspy_nousar_malloc(12345);
            zarpspy_nousar_free_pp(&bloque, 1);
        },
        "^arrays: out of memory: no block of 12345 bytes\n$");
}

TEST(SinMemoria, AHandlerThatDeclinesEndsTheProcessToo)
{
    EXPECT_DEATH(
        {
            arr_set_manejador_sin_memoria(declina, nullptr);
            sin_memoria_falla_peticion(1);
            ARRAY *array = arr_CreaDouble(10);
            arr_DestruyeDouble(&array);
        },
        "arrays: out of memory: no block of .+ bytes");
}

TEST(SinMemoria, AHandlerThatFreesMemoryHasTheRequestRetried)
{
    Reserva reserva;
    ASSERT_EQ(arr_set_manejador_sin_memoria(libera_reserva, &reserva), nullptr);
    sin_memoria_falla_peticion(1);
    void *bloque = zarpspy_nousar_malloc(4321);
    EXPECT_NE(bloque, nullptr);
    EXPECT_EQ(reserva.llamadas, 1u);
    EXPECT_EQ(reserva.bytes_pedidos, 4321u);
    zarpspy_nousar_free_pp(&bloque, 1);
    EXPECT_EQ(arr_set_manejador_sin_memoria(nullptr, nullptr), libera_reserva);
}

// The n-th request fails for n = 1, 2, ... until a run makes fewer requests than n: every
// allocation of the run has failed once, and was retried through the handler.
TEST(SinMemoria, EveryRequestOfManyOperationsFailedInTurnChangesNothing)
{
    size_t informes_referencia = 0;
    const size_t bloques_antes = zarpspy_bloques_vivos();
    const std::string referencia = escenario(informes_referencia);
    ASSERT_EQ(informes_referencia, 0u);
    ASSERT_EQ(zarpspy_bloques_vivos(), bloques_antes);
    size_t fallos = 0;
    for (size_t n = 1;; ++n) {
        Reserva reserva;
        arr_set_manejador_sin_memoria(libera_reserva, &reserva);
        sin_memoria_falla_peticion(n);
        size_t informes = 0;
        const std::string resultado = escenario(informes);
        sin_memoria_falla_peticion(0);
        arr_set_manejador_sin_memoria(nullptr, nullptr);
        if (reserva.llamadas == 0)
            break; // the run made fewer than n requests
        ++fallos;
        ASSERT_EQ(reserva.llamadas, 1u) << "request " << n;
        ASSERT_EQ(resultado, referencia) << "request " << n;
        ASSERT_EQ(informes, 0u) << "request " << n;
        ASSERT_EQ(zarpspy_bloques_vivos(), bloques_antes) << "request " << n;
    }
    EXPECT_GT(fallos, 100u);
    RecordProperty("requests_failed", static_cast<int>(fallos));
}

} // namespace
