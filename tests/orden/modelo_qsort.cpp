// The model quicksort: explicit stack of (left, right) ranges, smaller part first.
#include "orden/modelo_qsort.h"

#include <cstdint>
#include <cstring>
#include <utility>

namespace {

class Modelo {
public:
    Modelo(std::vector<double> &valores, const std::function<int(double, double)> &compara)
        : v_(valores), compara_(compara)
    {
    }

    size_t ordena()
    {
        if (v_.size() < 2)
            return 0;
        std::vector<std::pair<int64_t, int64_t>> pendientes{
            {0, static_cast<int64_t>(v_.size()) - 1}};
        while (!pendientes.empty()) {
            auto [izquierda, derecha] = pendientes.back();
            pendientes.pop_back();
            while (izquierda < derecha) {
                const auto [i, j] = particiona(izquierda, derecha);
                if (j - izquierda < derecha - i) {
                    if (i < derecha)
                        pendientes.emplace_back(i, derecha);
                    derecha = j;
                } else {
                    if (izquierda < j)
                        pendientes.emplace_back(izquierda, j);
                    izquierda = i;
                }
            }
        }
        return fuera_;
    }

private:
    // The element at k, or nothing (counted) when k lies outside the array.
    const double *en(int64_t k)
    {
        if (k < 0 || k >= static_cast<int64_t>(v_.size())) {
            ++fuera_;
            return nullptr;
        }
        return &v_[static_cast<size_t>(k)];
    }

    int orden(const double *a, const double *b) const
    {
        if (a == nullptr || b == nullptr || std::memcmp(a, b, sizeof *a) == 0)
            return 0;
        return compara_(*a, *b);
    }

    // One partition of izquierda..derecha; the final i and j.
    std::pair<int64_t, int64_t> particiona(int64_t izquierda, int64_t derecha)
    {
        int64_t i = izquierda;
        int64_t j = derecha;
        const double pivote = v_[static_cast<size_t>((izquierda + derecha) / 2)];
        do {
            while (orden(en(i), &pivote) == -1)
                ++i;
            while (orden(&pivote, en(j)) == -1)
                --j;
            if (i <= j) {
                if (i < j) {
                    const double *a = en(i);
                    const double *b = en(j);
                    if (orden(a, b) != 0)
                        std::swap(v_[static_cast<size_t>(i)], v_[static_cast<size_t>(j)]);
                }
                ++i;
                --j;
            }
        } while (i <= j);
        return {i, j};
    }

    std::vector<double> &v_;
    const std::function<int(double, double)> &compara_;
    size_t fuera_ = 0;
};

} // namespace

size_t ordena_como_la_biblioteca(std::vector<double> &valores,
                                 const std::function<int(double a, double b)> &compara)
{
    return Modelo(valores, compara).ordena();
}
