// Many threads, each with arrays of its own, at once: they share the report service, the lazy
// decision of the checking mode, the header pool, the row slabs and the memory counts. Every
// thread checks its arrays against a model of its own, and the reports they all make add up.
// ThreadSanitizer runs this program through the tsan preset.
#include "arrays.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr int HILOS = 8;
constexpr int PASOS = 4000;

std::atomic<ULONG64> informes{0};
void cuenta(const arr_informe *, void *) { informes.fetch_add(1, std::memory_order_relaxed); }

BOOL iguales(double a, double b) { return a == b ? CIERTO : FALSO; }

// One thread's work: random steps over a Double, a string and a 2D point array, each step checked
// against std::vector models; every 100th step reads past the end, which must make one report.
// Returns the number of mismatches and the reports this thread caused.
struct Resultado {
    int diferencias = 0;
    ULONG64 informes_provocados = 0;
};

Resultado trabaja(unsigned semilla)
{
    Resultado r;
    std::mt19937 azar(semilla);
    ARRAY *doubles = arr_CreaDouble(0);
    ARRAY *cadenas = arr_CreaCADENA(0);
    ARRAY *puntos = arr_CreaPunto2D(0);
    std::vector<double> modelo;
    std::vector<std::string> modelo_cadenas;
    for (int paso = 0; paso < PASOS; ++paso) {
        const double v = static_cast<double>(azar() % 1000);
        const auto n = static_cast<ULONG>(modelo.size());
        switch (azar() % 6) {
        case 0:
        case 1:
            arr_AppendDouble(doubles, v);
            modelo.push_back(v);
            arr_AppendCADENA(cadenas, std::to_string(v).c_str());
            modelo_cadenas.push_back(std::to_string(v));
            arr_AppendPunto2D(puntos, v, -v);
            break;
        case 2: {
            const ULONG pos = n == 0 ? 0 : static_cast<ULONG>(azar() % (n + 1));
            arr_InsertarDouble(doubles, pos, v);
            modelo.insert(modelo.begin() + pos, v);
            break;
        }
        case 3:
            if (n > 0) {
                const ULONG pos = static_cast<ULONG>(azar() % n);
                arr_BorrarDouble(doubles, pos);
                modelo.erase(modelo.begin() + pos);
            }
            break;
        case 4:
            if (paso % 500 == 0) {
                arr_QSortDouble(doubles, nullptr);
                std::sort(modelo.begin(), modelo.end());
                arr_QSortCADENA(cadenas, nullptr);
                std::sort(modelo_cadenas.begin(), modelo_cadenas.end());
            }
            break;
        default: {
            const auto donde = std::find(modelo.begin(), modelo.end(), v);
            const ULONG esperada =
                donde == modelo.end() ? ARR_ULONG_MAX : static_cast<ULONG>(donde - modelo.begin());
            r.diferencias += arr_BuscarDouble(doubles, v, iguales) != esperada;
            break;
        }
        }
        if (paso % 100 == 0) {
            arr_GetDouble(doubles, arr_NumElemsDouble(doubles)); // past the end: one report
            ++r.informes_provocados;
            if (arr_NumElemsDouble(doubles) == 0)
                ++r.informes_provocados; // an empty array is reported as such too
        }
    }
    r.diferencias += arr_NumElemsDouble(doubles) != modelo.size();
    for (ULONG i = 0; i < modelo.size(); ++i)
        r.diferencias += arr_GetDouble(doubles, i) != modelo[i];
    for (ULONG i = 0; i < modelo_cadenas.size(); ++i)
        r.diferencias += modelo_cadenas[i] != arr_GetCADENA(cadenas, i);
    r.diferencias += arr_NumElemsPunto2D(puntos) != modelo_cadenas.size();
    arr_DestruyeDouble(&doubles);
    arr_DestruyeCADENA(&cadenas);
    arr_DestruyePunto2D(&puntos);
    return r;
}

TEST(Hilos, ThreadsWithArraysOfTheirOwnShareTheLibraryCleanly)
{
    arr_set_manejador_informes(cuenta, nullptr);
    std::vector<Resultado> resultados(HILOS);
    std::vector<std::thread> hilos;
    // Every thread makes its first call at once, so that the checking mode is decided under
    // contention.
    std::barrier salida(HILOS);
    for (int h = 0; h < HILOS; ++h)
        hilos.emplace_back([&, h] {
            salida.arrive_and_wait();
            resultados[static_cast<size_t>(h)] = trabaja(static_cast<unsigned>(h) + 1);
        });
    for (std::thread &hilo : hilos)
        hilo.join();
    arr_set_manejador_informes(nullptr, nullptr);
    ULONG64 provocados = 0;
    for (const Resultado &r : resultados) {
        EXPECT_EQ(r.diferencias, 0);
        provocados += r.informes_provocados;
    }
    EXPECT_EQ(informes.load(), provocados);
}

} // namespace
