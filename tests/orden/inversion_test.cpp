// Reversal of the order of the elements: in place (BOOL, pointers) or into a new array (points),
// and the reports of a busy or mistyped array.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"

namespace {

using Inversion = PruebaArrays;

TEST_F(Inversion, BoolReversalOfAnOddCountKeepsTheMiddleElement)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO, CIERTO, FALSO, FALSO, FALSO});
    arrayprv_invierte(array, elem_BOOL_NO_USAR);
    EXPECT_EQ(elementos<BOOL>(array, elem_BOOL_NO_USAR),
              (std::vector<BOOL>{FALSO, FALSO, FALSO, CIERTO, CIERTO}));
    arrayprv_destruye(&array);
}

TEST_F(Inversion, BoolReversalOfAnEvenCountAcrossRowsReversesEverything)
{
    std::vector<BOOL> valores;
    for (int i = 0; i < 2500; ++i)
        valores.push_back(i % 3 == 0 ? CIERTO : FALSO);
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, valores);
    ASSERT_GT(campo(array->num_filas), 2u);
    arrayprv_invierte(array, elem_BOOL_NO_USAR);
    EXPECT_EQ(elementos<BOOL>(array, elem_BOOL_NO_USAR),
              std::vector<BOOL>(valores.rbegin(), valores.rend()));
    arrayprv_destruye(&array);
}

TEST_F(Inversion, BoolReversalOfZeroOrOneElementChangesNothing)
{
    ARRAY *vacio = crea_con<BOOL>(elem_BOOL_NO_USAR, {});
    ARRAY *uno = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO});
    arrayprv_invierte(vacio, elem_BOOL_NO_USAR);
    arrayprv_invierte(uno, elem_BOOL_NO_USAR);
    EXPECT_EQ(campo(vacio->num_elems), 0u);
    EXPECT_EQ(elementos<BOOL>(uno, elem_BOOL_NO_USAR), std::vector<BOOL>{CIERTO});
    arrayprv_destruye(&vacio);
    arrayprv_destruye(&uno);
}

TEST_F(Inversion, PointerReversalInPlaceReversesTheStoredPointers)
{
    int a = 0;
    int b = 0;
    int c = 0;
    ARRAY *array = crea_con<void *>(elem_PUNTERO_NO_USAR, {&a, &b, &c});
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    arrayprv_invierte(array, elem_PUNTERO_NO_USAR);
    EXPECT_EQ(elementos<void *>(array, elem_PUNTERO_NO_USAR), (std::vector<void *>{&c, &b, &a}));
    arrayprv_opera_direccion_todos(array, [](void **ptr) { *ptr = nullptr; });
    arrayprv_destruye(&array);
}

TEST_F(Inversion, InPlaceReversalOfABusyArrayIsReportedByEveryWrite)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO, FALSO});
    array->en_bucle = CIERTO;
    array->en_bucle_lectura = CIERTO;
    arrayprv_invierte(array, elem_BOOL_NO_USAR);
    EXPECT_EQ(informes(), (Textos{"array->en_bucle == FALSO", "array->en_bucle_lectura == FALSO",
                                  "array->en_bucle == FALSO", "array->en_bucle_lectura == FALSO"}));
    array->en_bucle = FALSO;
    array->en_bucle_lectura = FALSO;
    EXPECT_EQ(elementos<BOOL>(array, elem_BOOL_NO_USAR), (std::vector<BOOL>{FALSO, CIERTO}));
    arrayprv_destruye(&array);
}

TEST_F(Inversion, InPlaceReversalWithAnotherTagIsReportedAndChangesNothing)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    arrayprv_invierte(array, elem_BOOL_NO_USAR);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&array);
}

BOOL mismo_punto(double x1, double y1, double x2, double y2) { return x1 == x2 && y1 == y2; }

TEST_F(Inversion, PlanePointReversalLeavesItsArgumentAndReturnsANewArray)
{
    const std::vector<Punto2D> puntos{{1, 2}, {3, 4}, {5, 6}};
    ARRAY *array = crea_con<Punto2D>(elem_PUNTO2D_NO_USAR, puntos);
    ARRAY *invertida = arrayprv_invertida(array, elem_PUNTO2D_NO_USAR);
    ASSERT_NE(invertida, array);
    std::vector<double> xs;
    for (const Punto2D &p : elementos<Punto2D>(invertida, elem_PUNTO2D_NO_USAR))
        xs.push_back(p.x);
    EXPECT_EQ(xs, (std::vector<double>{5, 3, 1}));
    EXPECT_EQ(elementos<Punto2D>(array, elem_PUNTO2D_NO_USAR)[0].x, 1.0);
    arrayprv_destruye(&array);
    arrayprv_destruye(&invertida);
}

TEST_F(Inversion, PlanePointsReversedTwiceEqualTheArgument)
{
    std::vector<Punto2D> puntos;
    for (double i = 0; i < 300; ++i)
        puntos.push_back({i, -i});
    ARRAY *array = crea_con<Punto2D>(elem_PUNTO2D_NO_USAR, puntos);
    ARRAY *una_vez = arrayprv_invertida(array, elem_PUNTO2D_NO_USAR);
    ARRAY *dos_veces = arrayprv_invertida(una_vez, elem_PUNTO2D_NO_USAR);
    fnc_compara tabla{};
    tabla.fnc_compara_punto2D = mismo_punto;
    EXPECT_EQ(arrayprv_son_iguales(dos_veces, array, &tabla, elem_PUNTO2D_NO_USAR), CIERTO);
    EXPECT_EQ(arrayprv_son_iguales(una_vez, array, &tabla, elem_PUNTO2D_NO_USAR), FALSO);
    arrayprv_destruye(&array);
    arrayprv_destruye(&una_vez);
    arrayprv_destruye(&dos_veces);
}

TEST_F(Inversion, SpacePointReversalReturnsTheReversedPoints)
{
    ARRAY *array = crea_con<Punto3D>(elem_PUNTO3D_NO_USAR, {{1, 2, 3}, {4, 5, 6}});
    ARRAY *invertida = arrayprv_invertida(array, elem_PUNTO3D_NO_USAR);
    const std::vector<Punto3D> puntos = elementos<Punto3D>(invertida, elem_PUNTO3D_NO_USAR);
    ASSERT_EQ(puntos.size(), 2u);
    EXPECT_EQ(std::vector<double>({puntos[0].x, puntos[0].y, puntos[0].z}),
              (std::vector<double>{4, 5, 6}));
    EXPECT_EQ(std::vector<double>({puntos[1].x, puntos[1].y, puntos[1].z}),
              (std::vector<double>{1, 2, 3}));
    arrayprv_destruye(&array);
    arrayprv_destruye(&invertida);
}

TEST_F(Inversion, ReversalIntoANewArrayCopiesPointsWithTheirPrivateDataAsStored)
{
    int datos = 0;
    ARRAY *array = crea_con<Punto2DX>(elem_PUNTO2DX_NO_USAR, {{1, 1, nullptr}, {2, 2, &datos}});
    ARRAY *invertida = arrayprv_invertida(array, elem_PUNTO2DX_NO_USAR);
    const std::vector<Punto2DX> puntos = elementos<Punto2DX>(invertida, elem_PUNTO2DX_NO_USAR);
    ASSERT_EQ(puntos.size(), 2u);
    EXPECT_EQ(puntos[0].x, 2.0);
    EXPECT_EQ(puntos[0].datos, &datos);
    EXPECT_EQ(puntos[1].x, 1.0);
    EXPECT_EQ(puntos[1].datos, nullptr);
    for (ARRAY *a : {array, invertida})
        arrayprv_opera_direccion_todos(a, [](void **ptr) { *ptr = nullptr; });
    arrayprv_destruye(&array);
    arrayprv_destruye(&invertida);
}

TEST_F(Inversion, ReversalIntoANewArrayWithAnotherTagIsReportedAndYieldsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    EXPECT_EQ(arrayprv_invertida(array, elem_PUNTO2D_NO_USAR), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    arr_DestruyeDouble(&array);
}

} // namespace
