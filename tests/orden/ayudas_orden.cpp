// Helpers of the search, sort and whole-array tests.
#include "orden/ayudas_orden.h"

#include "services/cadenas.h"

ARRAY *crea_doubles(const std::vector<double> &valores)
{
    ARRAY *array = arr_CreaDouble(0);
    for (double valor : valores)
        arr_AppendDouble(array, valor);
    return array;
}

std::vector<double> doubles_de(ARRAY *array)
{
    std::vector<double> valores;
    for (ULONG i = 0; i < arr_NumElemsDouble(array); ++i)
        valores.push_back(arr_GetDouble(array, i));
    return valores;
}

std::vector<double> uno_a(size_t n)
{
    std::vector<double> valores;
    for (size_t i = 1; i <= n; ++i)
        valores.push_back(static_cast<double>(i));
    return valores;
}

ARRAY *crea_cadenas(const std::vector<std::string> &cadenas)
{
    ARRAY *array = arrayprv_crea(0, elem_CADENA_NO_USAR, LONG_FILA_POR_DEFECTO);
    for (const std::string &cadena : cadenas) {
        char *copia = cad_copia_cadena(cadena.c_str());
        arrayprv_append(array, &copia, elem_CADENA_NO_USAR);
    }
    return array;
}

std::vector<std::string> cadenas_de(const ARRAY *array)
{
    std::vector<std::string> cadenas;
    for (const char *cadena : elementos<const char *>(array, elem_CADENA_NO_USAR))
        cadenas.emplace_back(cadena);
    return cadenas;
}

std::vector<uint64_t> bits_de(const std::vector<double> &valores)
{
    std::vector<uint64_t> resultado;
    for (double valor : valores)
        resultado.push_back(bits(valor));
    return resultado;
}

Disposicion disposicion(const ARRAY *array)
{
    const size_t n = array->num_filas;
    auto tabla = [n](const size_t *t) {
        return t == nullptr ? std::vector<size_t>{} : std::vector<size_t>(t, t + n);
    };
    return {n, tabla(array->long_filas), tabla(array->max_long_filas),
            tabla(array->acumulado_filas)};
}

void PrintTo(const Disposicion &d, std::ostream *os)
{
    *os << d.num_filas << " rows, counts " << ::testing::PrintToString(d.long_filas)
        << ", capacities " << ::testing::PrintToString(d.max_long_filas) << ", prefix sums "
        << ::testing::PrintToString(d.acumulado_filas);
}

std::vector<PredicadoRequerido> predicados_requeridos()
{
    return {{elem_DOUBLE_NO_USAR, "(fnc_compara->fnc_compara_double) != NULL"},
            {elem_PUNTERO_NO_USAR, "(fnc_compara->fnc_compara_puntero) != NULL"},
            {elem_CADENA_NO_USAR, "(fnc_compara->fnc_compara_CADENA) != NULL"},
            {elem_CADENA_U_NO_USAR, "(fnc_compara->fnc_compara_CADENA_U) != NULL"},
            {elem_PUNTO2D_NO_USAR, "(fnc_compara->fnc_compara_punto2D) != NULL"},
            {elem_PUNTO2DX_NO_USAR, "(fnc_compara->fnc_compara_punto2DX) != NULL"},
            {elem_PUNTO3D_NO_USAR, "(fnc_compara->fnc_compara_punto3D) != NULL"}};
}

std::string nombre_de_tipo(const ::testing::TestParamInfo<PredicadoRequerido> &info)
{
    return "Tag" + std::to_string(info.param.tipo);
}

void PrintTo(const PredicadoRequerido &predicado, std::ostream *os)
{
    *os << "tag " << predicado.tipo << ", " << predicado.texto;
}

namespace {

ComparadorAnotado *activo = nullptr;

} // namespace

ComparadorAnotado::ComparadorAnotado(Respuesta responde)
    : responde_(std::move(responde)), anterior_(activo)
{
    activo = this;
}

ComparadorAnotado::~ComparadorAnotado() { activo = anterior_; }

int ComparadorAnotado::compara(double a, double b)
{
    activo->llamadas_.emplace_back(bits(a), bits(b));
    return activo->responde_(a, b);
}
