// Every public export that asks the system for memory, one test case each: each of its requests
// fails in turn, with a handler that frees memory and has it retried, and the run ends exactly as
// the run without failures (the same arrays and results, no report of the full consistency check,
// no block left); without a handler each of those failures ends the process with the one message
// that names the size.
#include "services/memoria.h"
#include "services/sin_memoria.h"
#include "servicios/sin_memoria/operaciones.h"
#include "servicios/sin_memoria/reserva.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace
{

std::vector<Operacion> todas_las_operaciones()
{
    std::vector<Operacion> filas;
    for (auto familia : {operaciones_escalares, operaciones_cadenas, operaciones_punteros,
                         operaciones_puntos, operaciones_geometria, operaciones_varias})
        for (Operacion &fila : familia())
            filas.push_back(std::move(fila));
    return filas;
}

// A handler that counts the requests of a run: it has each request fail once and retried.
BOOL cuenta_y_reintenta(size_t, void *contexto)
{
    ++*static_cast<size_t *>(contexto);
    sin_memoria_falla_peticion(2); // the retry goes through, the next request fails
    return CIERTO;
}

class SinMemoriaPorOperacion : public ::testing::TestWithParam<Operacion>
{
protected:
    // A first run leaves what the operation keeps for later runs (free header slots, a slab
    // chunk kept for reuse), so that every run after it asks the system for the same requests.
    void SetUp() override
    {
        ejecuta(GetParam(), 0);
        bloques_antes_ = zarpspy_bloques_vivos();
    }

    // The requests to the system that the operation makes.
    size_t peticiones() const
    {
        size_t llamadas = 0;
        arr_set_manejador_sin_memoria(cuenta_y_reintenta, &llamadas);
        ejecuta(GetParam(), 1);
        arr_set_manejador_sin_memoria(nullptr, nullptr);
        return llamadas;
    }

    size_t bloques_antes_ = 0;
};

// The requests whose failure without a handler is a death test of its own. Each death test starts
// a process (under wine, a whole new one), and the operations make well over a thousand requests
// in all: every request of an operation that makes at most three, the first and the last of the
// others.
std::vector<size_t> peticiones_sin_manejador(size_t k)
{
    if (k <= 3) {
        std::vector<size_t> todas;
        for (size_t n = 1; n <= k; ++n)
            todas.push_back(n);
        return todas;
    }
    return {1, k};
}

// The one line that ends the process, naming a size in digits. A matcher rather than a regular
// expression, which GoogleTest's Windows build reads without character classes.
class LineaSinMemoria : public ::testing::MatcherInterface<const std::string &> {
public:
    bool MatchAndExplain(const std::string &salida, ::testing::MatchResultListener *) const override
    {
        const std::string inicio = "arrays: out of memory: no block of ";
        const std::string fin = " bytes\n";
        if (salida.size() <= inicio.size() + fin.size() ||
            salida.compare(0, inicio.size(), inicio) != 0 ||
            salida.compare(salida.size() - fin.size(), fin.size(), fin) != 0)
            return false;
        const std::string_view cifras = std::string_view(salida).substr(
            inicio.size(), salida.size() - inicio.size() - fin.size());
        return std::all_of(cifras.begin(), cifras.end(),
                           [](char c) { return c >= '0' && c <= '9'; });
    }
    void DescribeTo(std::ostream *os) const override
    {
        *os << "is the line \"arrays: out of memory: no block of N bytes\"";
    }
};

TEST(LineaSinMemoria, MatchesTheLineWithASizeInDigitsOnly)
{
    const ::testing::Matcher<const std::string &> linea =
        ::testing::MakeMatcher(new LineaSinMemoria);
    EXPECT_TRUE(linea.Matches("arrays: out of memory: no block of 32 bytes\n"));
    EXPECT_FALSE(linea.Matches("arrays: out of memory: no block of  bytes\n"));
    EXPECT_FALSE(linea.Matches("arrays: out of memory: no block of 3x2 bytes\n"));
    EXPECT_FALSE(linea.Matches("other: arrays: out of memory: no block of 32 bytes\n"));
    EXPECT_FALSE(linea.Matches("arrays: out of memory: no block of 32 bytes\nand more\n"));
}

// The death tests come first: each starts a process from this one, which is smaller before the
// sweeps with a handler have run (under AddressSanitizer, by the memory it holds back).
TEST_P(SinMemoriaPorOperacion, EachFailedRequestWithoutAHandlerEndsTheProcessNamingTheSize)
{
    const size_t k = peticiones();
    ASSERT_GE(k, 1u) << "the operation asks the system for no memory";
    for (const size_t n : peticiones_sin_manejador(k))
        EXPECT_DEATH(ejecuta(GetParam(), n), ::testing::MakeMatcher(new LineaSinMemoria))
            << "request " << n;
}

TEST_P(SinMemoriaPorOperacion, EachFailedRequestRetriedThroughTheHandlerChangesNothing)
{
    const Caso::Resultado referencia = ejecuta(GetParam(), 0);
    ASSERT_EQ(referencia.llamadas, 1u);
    ASSERT_EQ(referencia.informes, 0u) << referencia.texto;
    ASSERT_EQ(zarpspy_bloques_vivos(), bloques_antes_);
    const size_t k = peticiones();
    ASSERT_GE(k, 1u) << "the operation asks the system for no memory";
    for (size_t n = 1; n <= k + 1; ++n) {
        Reserva reserva;
        arr_set_manejador_sin_memoria(libera_reserva, &reserva);
        const Caso::Resultado resultado = ejecuta(GetParam(), n);
        arr_set_manejador_sin_memoria(nullptr, nullptr);
        ASSERT_EQ(reserva.llamadas, n <= k ? 1u : 0u) << "request " << n << " of " << k;
        ASSERT_EQ(resultado.texto, referencia.texto) << "request " << n;
        ASSERT_EQ(resultado.informes, 0u) << "request " << n;
        ASSERT_EQ(zarpspy_bloques_vivos(), bloques_antes_) << "request " << n;
    }
    RecordProperty("requests_failed", static_cast<int>(k));
}

INSTANTIATE_TEST_SUITE_P(Exportaciones, SinMemoriaPorOperacion,
                         ::testing::ValuesIn(todas_las_operaciones()),
                         [](const ::testing::TestParamInfo<Operacion> &info) {
                             return info.param.nombre;
                         });

} // namespace
