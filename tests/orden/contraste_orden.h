// The differential check of the sorts by a default order: the same elements sorted once by the
// public sort without a comparator (whatever way it takes) and once through the comparator table
// with the same order (the documented quicksort, exact to the comparison) must end in the same
// bytes, in the same rows.
#pragma once

#include "core/comparadores.h"
#include "core/quicksort.h"
#include "orden/ayudas_orden.h"

#include <random>

// Builds two equal arrays of `valores` (`inserciones` of them put at random places, so that rows
// are uneven), sorts the first through the public sort without a comparator and the second
// through the table with `orden`, and compares what is left.
template <tipo_elem_array TAG, typename T>
void compara_con_la_tabla(const std::vector<T> &valores, comparador_de<TAG> orden,
                          void (*ordena_sin_comparador)(ARRAY *), size_t inserciones = 0)
{
    std::mt19937 azar(11);
    ARRAY *arrays[2];
    for (ARRAY *&array : arrays) {
        azar.seed(11);
        array = crea_con<T>(TAG, std::vector<T>(valores.begin(), valores.end() - inserciones));
        for (size_t k = valores.size() - inserciones; k < valores.size(); ++k)
            arrayprv_inserta(array, static_cast<ULONG>(azar() % (array->num_elems + 1)), &valores[k], TAG);
    }
    ordena_sin_comparador(arrays[0]);
    arrayprv_ordena<TAG>(arrays[1], orden);
    const auto a = elementos<T>(arrays[0], TAG);
    const auto b = elementos<T>(arrays[1], TAG);
    ASSERT_EQ(a.size(), b.size());
    EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(T)), 0);
    EXPECT_EQ(disposicion(arrays[0]), disposicion(arrays[1]));
    EXPECT_EQ(campo(arrays[0]->en_bucle), FALSO);
    for (ARRAY *&array : arrays)
        arrayprv_destruye(&array);
}
