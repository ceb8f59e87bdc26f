// Coverage-guided runs of appends, inserts, deletes, reads, writes, grows, shrinks and sorts on a
// Double array, checked against a std::vector. The input chooses the operations and their
// positions, past the end included: an operation on a position it may name must make no report,
// one on any other position the reports of its refusal, and then leave the array as it was. Bursts of
// reads and growths by whole rows reach the guide and the direct table.
#include "arrays.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// Large enough for the guide and the direct table (64 rows of 256 doubles), small enough to keep
// each input quick.
constexpr ULONG MAXIMO = 40000;
constexpr ULONG FILA = 2048 / sizeof(double);

ULONG64 informes = 0;

void cuenta(const arr_informe *, void *) { ++informes; }

void exige(bool condicion, const char *que)
{
    if (!condicion) {
        std::fprintf(stderr, "libarrays fuzz: %s\n", que);
        std::abort();
    }
}

// Runs `operacion` and checks that it made `esperados` reports.
template <typename F> void con_informes(ULONG64 esperados, const char *que, F &&operacion)
{
    const ULONG64 antes = informes;
    operacion();
    exige(informes - antes == esperados, que);
}

class Prueba {
  public:
    explicit Prueba(FuzzedDataProvider &datos) : datos_(datos), array_(arr_CreaDouble(0)) {}
    ~Prueba() { arr_DestruyeDouble(&array_); }
    Prueba(const Prueba &) = delete;
    Prueba &operator=(const Prueba &) = delete;

    void paso()
    {
        switch (datos_.ConsumeIntegralInRange(0, 8)) {
        case 0: anyade(); break;
        case 1: inserta(); break;
        case 2: borra(); break;
        case 3: lee(posicion(1)); break;
        case 4: escribe(); break;
        case 5: rafaga_de_lecturas(); break;
        case 6: crece(); break;
        case 7: reduce(); break;
        default: ordena(); break;
        }
        exige(arr_NumElemsDouble(array_) == modelo_.size(), "count");
    }

    void comprueba_todo()
    {
        for (ULONG i = 0; i < modelo_.size(); ++i)
            lee(i);
    }

  private:
    ULONG num() const { return static_cast<ULONG>(modelo_.size()); }
    // A position up to `mas` past the last element.
    ULONG posicion(ULONG mas) { return datos_.ConsumeIntegralInRange<ULONG>(0, num() + mas - 1); }
    double valor() { return datos_.ConsumeIntegralInRange(-50, 50); }
    // The reports of a refused position: it is past the end, and an empty array has no elements.
    ULONG64 informes_si(bool valida) const { return valida ? 0 : modelo_.empty() ? 2 : 1; }

    void anyade()
    {
        if (num() >= MAXIMO)
            return;
        const double v = valor();
        con_informes(0, "append", [&] { arr_AppendDouble(array_, v); });
        modelo_.push_back(v);
    }

    void inserta()
    {
        if (num() >= MAXIMO)
            return;
        const ULONG pos = posicion(2);
        const double v = valor();
        const bool valida = pos <= num();
        con_informes(informes_si(valida), "insert", [&] { arr_InsertarDouble(array_, pos, v); });
        if (valida)
            modelo_.insert(modelo_.begin() + pos, v);
    }

    void borra()
    {
        const ULONG pos = posicion(1);
        const bool valida = pos < num();
        con_informes(informes_si(valida), "delete", [&] { arr_BorrarDouble(array_, pos); });
        if (valida)
            modelo_.erase(modelo_.begin() + pos);
    }

    void lee(ULONG pos)
    {
        const bool valida = pos < num();
        double leido = 0;
        con_informes(informes_si(valida), "get", [&] { leido = arr_GetDouble(array_, pos); });
        exige(leido == (valida ? modelo_[pos] : 0.0), "value read");
    }

    void escribe()
    {
        const ULONG pos = posicion(1);
        const double v = valor();
        const bool valida = pos < num();
        con_informes(informes_si(valida), "set", [&] { arr_SetDouble(array_, pos, v); });
        if (valida)
            modelo_[pos] = v;
    }

    // Enough reads at positions spread by one seed for the direct table to be built.
    void rafaga_de_lecturas()
    {
        ULONG64 estado = datos_.ConsumeIntegral<uint32_t>() | 1u;
        for (int i = 0; i < 512 && num() > 0; ++i) {
            estado = estado * 6364136223846793005ull + 1442695040888963407ull;
            lee(static_cast<ULONG>((estado >> 33) % num()));
        }
    }

    // By up to 80 rows. The new elements are zero except for the spare slots of a last row that
    // keeps elements, which keep what an earlier shrink left there: the model takes them as read.
    void crece()
    {
        const ULONG nuevo = std::min(MAXIMO, num() + datos_.ConsumeIntegralInRange<ULONG>(0, 80) * FILA);
        con_informes(0, "grow", [&] { arr_AumentaTamanyoDouble(array_, nuevo); });
        for (ULONG i = num(); i < nuevo; ++i)
            con_informes(0, "get after a grow", [&] { modelo_.push_back(arr_GetDouble(array_, i)); });
    }

    void reduce()
    {
        const ULONG nuevo = datos_.ConsumeIntegralInRange<ULONG>(0, num());
        con_informes(0, "shrink", [&] { arr_ReduceTamanyoDouble(array_, nuevo); });
        modelo_.resize(nuevo);
    }

    void ordena()
    {
        con_informes(0, "sort", [&] { arr_QSortDouble(array_, nullptr); });
        std::sort(modelo_.begin(), modelo_.end());
    }

    FuzzedDataProvider &datos_;
    ARRAY *array_;
    std::vector<double> modelo_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t tamanyo)
{
    arr_set_manejador_informes(cuenta, nullptr);
    FuzzedDataProvider datos(bytes, tamanyo);
    Prueba prueba(datos);
    while (datos.remaining_bytes() > 0)
        prueba.paso();
    prueba.comprueba_todo();
    return 0;
}
