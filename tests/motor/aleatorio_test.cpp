// Long random runs of appends, inserts, deletes, sets, grows and shrinks on Double arrays, checked
// step by step against a std::vector and the full consistency check of the header.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

#include <algorithm>
#include <random>

namespace {

// The row counts that compaction leaves (empty rows not yet removed): each row that still holds
// elements when its turn comes takes elements from the front of the following rows until it
// reaches the maximum row length or they run out.
std::vector<size_t> cuentas_tras_compactar(const ARRAY *array)
{
    std::vector<size_t> cuentas = longitudes(array);
    for (size_t i = 0; i + 1 < cuentas.size(); ++i) {
        if (cuentas[i] == 0)
            continue;
        for (size_t j = i + 1; j < cuentas.size() && cuentas[i] < array->long_max_fila_en_elem; ++j) {
            const size_t k = std::min(array->long_max_fila_en_elem - cuentas[i], cuentas[j]);
            cuentas[i] += k;
            cuentas[j] -= k;
        }
    }
    return cuentas;
}

// What a grow by `extra` elements must add: zeros, except that when the last row keeps elements
// through the compaction that precedes the grow, its spare slots are taken as they are: those
// that compaction vacates at the end of its used part are zero, and those past its used part
// keep what an earlier shrink left there. Every other row's spare slots are zero.
std::vector<double> esperado_al_crecer(const ARRAY *array, size_t extra)
{
    std::vector<double> nuevos(extra, 0.0);
    if (array->num_filas == 0)
        return nuevos;
    const size_t ultima = array->num_filas - 1;
    const size_t quedan = cuentas_tras_compactar(array)[ultima];
    if (quedan == 0)
        return nuevos;
    const size_t libres = array->max_long_filas[ultima] - quedan;
    for (size_t i = 0; i < std::min(extra, libres); ++i) {
        const size_t pos = quedan + i;
        nuevos[i] = pos < array->long_filas[ultima] ? 0.0 : double_en(array, ultima, pos);
    }
    return nuevos;
}

// One random run over one array, with the model it must match. The run heads for a target size
// that changes every few thousand steps, so that the array passes through small and large sizes.
class EnsayoAleatorio {
public:
    EnsayoAleatorio(ULONG long_fila_en_bytes, size_t tope, unsigned semilla)
        : array_(arrayprv_crea(0, elem_DOUBLE_NO_USAR, long_fila_en_bytes)), tope_(tope),
          azar_(semilla)
    {
    }
    ~EnsayoAleatorio() { arr_DestruyeDouble(&array_); }
    EnsayoAleatorio(const EnsayoAleatorio &) = delete;
    EnsayoAleatorio &operator=(const EnsayoAleatorio &) = delete;

    // Runs `pasos` random operations; stops at the first disagreement.
    void ejecuta(size_t pasos)
    {
        for (size_t paso = 0; paso < pasos; ++paso) {
            SCOPED_TRACE(testing::Message() << "step " << paso);
            if (paso % PASOS_POR_OBJETIVO == 0)
                objetivo_ = indice(tope_);
            const ULONG64 informes_antes = arr_num_informes();
            opera();
            arrayprv_comprueba_array(array_, 1);
            comprueba_filas_calculables(array_);
            ASSERT_EQ(arr_num_informes(), informes_antes);
            ASSERT_EQ(arr_NumElemsDouble(array_), modelo_.size());
            if (paso % PASOS_POR_COMPARACION == 0) {
                ASSERT_EQ(contenido(array_), modelo_);
            }
            filas_vistas_ = std::max(filas_vistas_, size_t{array_->num_filas});
        }
        ASSERT_EQ(contenido(array_), modelo_);
    }

    size_t filas_vistas() const { return filas_vistas_; }

private:
    static constexpr size_t PASOS_POR_OBJETIVO = 5000;
    static constexpr size_t PASOS_POR_COMPARACION = 1000;

    ULONG indice(size_t hasta)
    {
        return std::uniform_int_distribution<ULONG>(0, static_cast<ULONG>(hasta))(azar_);
    }
    double valor() { return ++ultimo_valor_; }

    void opera()
    {
        const size_t n = modelo_.size();
        const double a_favor = n < objetivo_ ? 0.65 : 0.35;
        const bool crece = n == 0 || std::bernoulli_distribution(a_favor)(azar_);
        const int tirada = std::uniform_int_distribution<int>(0, 99)(azar_);
        if (tirada < 1)
            crece ? aumenta() : reduce();
        else if (tirada < 30)
            crece ? anyade() : borra();
        else if (tirada < 80 || n == 0)
            crece ? inserta() : borra();
        else
            pon();
    }

    void anyade()
    {
        const double v = valor();
        arr_AppendDouble(array_, v);
        modelo_.push_back(v);
    }

    void inserta()
    {
        const ULONG i = indice(modelo_.size());
        const double v = valor();
        arr_InsertarDouble(array_, i, v);
        modelo_.insert(modelo_.begin() + i, v);
    }

    void borra()
    {
        const ULONG i = indice(modelo_.size() - 1);
        arr_BorrarDouble(array_, i);
        modelo_.erase(modelo_.begin() + i);
    }

    void pon()
    {
        const ULONG i = indice(modelo_.size() - 1);
        const double v = valor();
        arr_SetDouble(array_, i, v);
        modelo_[i] = v;
    }

    // Grows or shrinks by up to three rows' worth of elements.
    size_t cambio() { return 1 + indice(3 * array_->long_max_fila_en_elem - 1); }

    void aumenta()
    {
        const size_t extra = cambio();
        const std::vector<double> nuevos = esperado_al_crecer(array_, extra);
        arr_AumentaTamanyoDouble(array_, static_cast<ULONG>(modelo_.size() + extra));
        modelo_.insert(modelo_.end(), nuevos.begin(), nuevos.end());
    }

    void reduce()
    {
        const size_t nuevo = modelo_.size() - std::min(modelo_.size(), cambio());
        arr_ReduceTamanyoDouble(array_, static_cast<ULONG>(nuevo));
        modelo_.resize(nuevo);
    }

    ARRAY *array_;
    size_t tope_;
    std::mt19937 azar_;
    std::vector<double> modelo_;
    size_t objetivo_ = 0;
    double ultimo_valor_ = 0.0;
    size_t filas_vistas_ = 0;
};

using Aleatorio = PruebaArrays;

TEST_F(Aleatorio, DefaultRowsMatchAVectorOverFortyThousandSteps)
{
    EnsayoAleatorio ensayo(LONG_FILA_POR_DEFECTO, 3000, 20240611);
    ensayo.ejecuta(40000);
    EXPECT_GE(ensayo.filas_vistas(), 10u);
}

TEST_F(Aleatorio, RowsOfEightMatchAVectorOverFortyThousandSteps)
{
    EnsayoAleatorio ensayo(8 * sizeof(double), 600, 7);
    ensayo.ejecuta(40000);
    EXPECT_GE(ensayo.filas_vistas(), 50u);
}

TEST_F(Aleatorio, RowsOfFiveMatchAVectorOverTwentyFiveThousandSteps)
{
    EnsayoAleatorio ensayo(5 * sizeof(double), 300, 99);
    ensayo.ejecuta(25000);
    EXPECT_GE(ensayo.filas_vistas(), 30u);
}

} // namespace
