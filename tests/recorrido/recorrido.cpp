// Support of the traversal tests.
#include "recorrido/recorrido.h"

void PruebaRecorrido::TearDown()
{
    arrayprv_set_comprobar_en_bucle(1);
    PruebaArrays::TearDown();
}

ARRAY *PruebaRecorrido::crea_de_tipo(tipo_elem_array tipo, ULONG num)
{
    ARRAY *array = arrayprv_crea(num, tipo, LONG_FILA_POR_DEFECTO);
    if (tipo == elem_PUNTERO_NO_USAR) {
        EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    }
    return array;
}

ARRAY *PruebaRecorrido::crea_punteros(std::initializer_list<void *> punteros)
{
    ARRAY *array = crea_de_tipo(elem_PUNTERO_NO_USAR, 0);
    for (void *puntero : punteros)
        arrayprv_append(array, &puntero, elem_PUNTERO_NO_USAR);
    return array;
}

ARRAY *crea_indices(ULONG num)
{
    ARRAY *array = arr_CreaDouble(num);
    for (ULONG i = 0; i < num; ++i)
        arr_SetDouble(array, i, i);
    return array;
}

std::vector<double> indices(ULONG desde, ULONG hasta)
{
    std::vector<double> valores;
    for (ULONG i = desde; i <= hasta; ++i)
        valores.push_back(i);
    return valores;
}

std::vector<double> indices(ULONG num)
{
    return num > 0 ? indices(0, num - 1) : std::vector<double>{};
}

BOOL anota_valor(double *elemento, void *datos)
{
    static_cast<std::vector<double> *>(datos)->push_back(*elemento);
    return CIERTO;
}

fnc_accion acciones_double(BOOL (*accion)(double *elemento, void *datos))
{
    fnc_accion acciones{};
    acciones.fnc_accion_double = accion;
    return acciones;
}
