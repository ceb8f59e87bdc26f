// The report service: a replaceable handler, a default one that writes a line to standard error
// (and aborts when ARRAYS_ABORTAR exists), and a process-wide counter of reports.
#include "services/informes.h"

#include "services/codificaciones.h"
#include "services/plataforma.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>

namespace {

// One line on standard error, in English: what was broken, where it was checked and, for a
// loop-guard report, where the caller was.
void manejador_por_defecto(const arr_informe *informe, void *)
{
    const int linea = static_cast<int>(informe->linea);
    if (informe->clase == ARR_INFORME_DEFAULT)
        std::fprintf(stderr, "arrays: unhandled element type in %s, line %d\n", informe->ubicacion,
                     linea);
    else if (informe->clase == ARR_INFORME_ORIGEN)
        std::fprintf(stderr,
                     "arrays: broken precondition \"%s\" in %s, line %d, called from %s, line %d\n",
                     informe->expresion, informe->ubicacion, linea, informe->ubicacion_origen,
                     static_cast<int>(informe->linea_origen));
    else
        std::fprintf(stderr, "arrays: broken precondition \"%s\" in %s, line %d\n",
                     informe->expresion, informe->ubicacion, linea);
    if (plataforma_hay_variable("ARRAYS_ABORTAR"))
        std::abort();
}

// The installed handler with its context. They change together under the lock, so that a report
// made on one thread while another installs a handler never pairs a handler with another's
// context. The lock is not held while a handler runs: a handler may install another.
struct Instalado {
    arr_manejador_informes manejador;
    void *contexto;
};
std::mutex cerrojo;
Instalado instalado{manejador_por_defecto, nullptr};
std::atomic<ULONG64> num_informes{0};

void informa(const arr_informe &informe)
{
    num_informes.fetch_add(1, std::memory_order_relaxed);
    Instalado actual;
    {
        const std::lock_guard<std::mutex> guarda(cerrojo);
        actual = instalado;
    }
    actual.manejador(&informe, actual.contexto);
}

} // namespace

void error_interno(const char *expresion, const char *ubicacion, LONG linea, int)
{
    informa({ARR_INFORME_ERROR, expresion, ubicacion, linea, nullptr, 0});
}

void error_interno_origen(const WCHAR *expresion, const char *ubicacion, LONG linea,
                          const char *ubicacion_origen, LONG linea_origen, int)
{
    const std::string texto = utf16_a_utf8(expresion);
    informa({ARR_INFORME_ORIGEN, texto.c_str(), ubicacion, linea,
             ubicacion_origen != nullptr ? ubicacion_origen : "", linea_origen});
}

void error_interno_default_error(int, int, const char *ubicacion, LONG linea, int)
{
    informa({ARR_INFORME_DEFAULT, "", ubicacion, linea, nullptr, 0});
}

extern "C" ARRAYS_API arr_manejador_informes arr_set_manejador_informes(arr_manejador_informes f,
                                                                        void *contexto) noexcept
{
    const std::lock_guard<std::mutex> guarda(cerrojo);
    const arr_manejador_informes anterior = instalado.manejador;
    instalado = {f != nullptr ? f : manejador_por_defecto, contexto};
    return anterior == manejador_por_defecto ? nullptr : anterior;
}

extern "C" ARRAYS_API ULONG64 arr_num_informes(void) noexcept
{
    return num_informes.load(std::memory_order_relaxed);
}
