// Translation, scaling and rotation of both 2D families, checked on random point sets against
// the direct formulas, and the checks of the transform callbacks.
#include "puntos/ayudas_puntos.h"

#include "points/transformaciones.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;
constexpr tipo_elem_array PLANO = elem_PUNTO2D_NO_USAR;
constexpr tipo_elem_array CON_DATOS = elem_PUNTO2DX_NO_USAR;

class TransformacionTest : public PruebaArrays {
protected:
    const std::vector<P2> puntos_ = puntos_al_azar(700, 11);
};

// Within `relativa` of the expected value, relative to the larger of its magnitude and 1.
void espera_cerca(const std::vector<P2> &obtenidos, const std::vector<P2> &esperados,
                  double relativa)
{
    ASSERT_EQ(obtenidos.size(), esperados.size());
    for (size_t i = 0; i < esperados.size(); ++i)
        for (int eje = 0; eje < 2; ++eje)
            EXPECT_NEAR(obtenidos[i][eje], esperados[i][eje],
                        relativa * std::fmax(1.0, std::fabs(esperados[i][eje])))
                << "point " << i << " axis " << eje;
}

// (x, y) turned counter-clockwise about (xc, yc) by angulo.
P2 girado(const P2 &p, double xc, double yc, double angulo)
{
    const double dx = p[0] - xc;
    const double dy = p[1] - yc;
    return {xc + dx * std::cos(angulo) - dy * std::sin(angulo),
            yc + dx * std::sin(angulo) + dy * std::cos(angulo)};
}

TEST_F(TransformacionTest, MoveTranslatesEveryPointExactly)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_MoverPunto2D(array, 3.25, -17.5);
    std::vector<P2> esperados = puntos_;
    for (P2 &p : esperados)
        p = {p[0] + 3.25, p[1] - 17.5};
    EXPECT_EQ(puntos2D(array), esperados);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, MultiplyScalesBothCoordinatesByOneFactorExactly)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_MultiplicarPunto2D(array, -0.3);
    std::vector<P2> esperados = puntos_;
    for (P2 &p : esperados)
        p = {p[0] * -0.3, p[1] * -0.3};
    EXPECT_EQ(puntos2D(array), esperados);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, QuarterTurnTakesUnitXToUnitY)
{
    ARRAY *array = crea_puntos2D({{1, 0}});
    arr_GirarPunto2D(array, 0, 0, pi / 2);
    espera_cerca(puntos2D(array), {{0, 1}}, 1e-15);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, AnglesUpToTheThresholdLeaveEveryPointUntouched)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_GirarPunto2D(array, 5, 5, 1e-5);
    arr_GirarPunto2D(array, 5, 5, -1e-5);
    EXPECT_EQ(puntos2D(array), puntos_);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, AnAngleJustAboveTheThresholdTurnsThePoints)
{
    ARRAY *array = crea_puntos2D({{100, 0}});
    arr_GirarPunto2D(array, 0, 0, 1.01e-5);
    espera_cerca(puntos2D(array), {girado({100, 0}, 0, 0, 1.01e-5)}, 1e-15);
    EXPECT_NE(puntos2D(array)[0][1], 0.0);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, RotationMatchesTheCounterClockwiseFormula)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_GirarPunto2D(array, -4, 9, 2.1);
    std::vector<P2> esperados = puntos_;
    for (P2 &p : esperados)
        p = girado(p, -4, 9, 2.1);
    espera_cerca(puntos2D(array), esperados, 1e-12);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, RotatingByAnAngleAndBackRestoresThePoints)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_GirarPunto2D(array, 12.5, -3, 0.7);
    arr_GirarPunto2D(array, 12.5, -3, -0.7);
    espera_cerca(puntos2D(array), puntos_, 1e-12);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, RotationAboutACentreKeepsEachPointsDistanceToIt)
{
    ARRAY *array = crea_puntos2D(puntos_);
    arr_GirarPunto2D(array, 30, 40, -1.3);
    const std::vector<P2> girados = puntos2D(array);
    for (size_t i = 0; i < puntos_.size(); ++i) {
        const double antes = std::hypot(puntos_[i][0] - 30, puntos_[i][1] - 40);
        const double despues = std::hypot(girados[i][0] - 30, girados[i][1] - 40);
        EXPECT_NEAR(despues, antes, 1e-12 * antes) << "point " << i;
    }
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, ThePlainPrimitiveTurnsClockwise)
{
    ARRAY *array = crea_puntos2D({{1, 0}});
    arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D(array, 0, 0, 1, 0);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, -1}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, ThePrivateDataPrimitiveTurnsCounterClockwise)
{
    ARRAY *array = crea_puntos2DX({{1, 0}});
    arr_Girar_seno_y_cosenoPunto2DXPriv(array, 0, 0, 1, 0);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 1}}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(TransformacionTest, BothFamiliesTurnAlikeByAnAngle)
{
    ARRAY *plano = crea_puntos2D(puntos_);
    ARRAY *con_datos = crea_puntos2DX(puntos_);
    arr_GirarPunto2D(plano, 1, 2, 0.4);
    arr_GirarPunto2DXPriv(con_datos, 1, 2, 0.4);
    EXPECT_EQ(puntos2D(con_datos), puntos2D(plano));
    arr_DestruyePunto2D(&plano);
    arr_DestruyePunto2DXPriv(&con_datos, nullptr);
}

TEST_F(TransformacionTest, PrivateDataAnglesUpToTheThresholdChangeNothing)
{
    ARRAY *array = crea_puntos2DX(puntos_);
    arr_GirarPunto2DXPriv(array, 0, 0, -1e-5);
    EXPECT_EQ(puntos2D(array), puntos_);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(TransformacionTest, PrivateDataMoveAndMultiplyMatchTheFormulas)
{
    ARRAY *array = crea_puntos2DX(puntos_);
    arr_MoverPunto2DXPriv(array, -1.5, 2.75);
    arr_MultiplicarPunto2DXPriv(array, 4);
    std::vector<P2> esperados = puntos_;
    for (P2 &p : esperados)
        p = {(p[0] - 1.5) * 4, (p[1] + 2.75) * 4};
    EXPECT_EQ(puntos2D(array), esperados);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(TransformacionTest, TransformsLeaveThePrivateDataInPlace)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    int a = 0;
    int b = 0;
    arr_AppendPunto2DXPriv(array, 1, 1, &a);
    arr_AppendPunto2DXPriv(array, 2, 2, &b);
    arr_MoverPunto2DXPriv(array, 1, 1);
    arr_MultiplicarPunto2DXPriv(array, 2);
    arr_GirarPunto2DXPriv(array, 0, 0, 1);
    EXPECT_EQ(datos_de(array), (std::vector<void *>{&a, &b}));
    arr_SetPunto2D(array, 0, 0, 0);
    arr_SetPunto2D(array, 1, 0, 0);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(TransformacionTest, PlainTransformsRefuseAPrivateDataArray)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    arr_MoverPunto2D(array, 1, 1);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 1}}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(TransformacionTest, TransformingAnEmptyArrayDoesNothing)
{
    ARRAY *array = arr_CreaPunto2D(0);
    arr_MoverPunto2D(array, 1, 1);
    arr_GirarPunto2D(array, 0, 0, 1);
    EXPECT_EQ(arr_NumElemsPunto2D(array), 0u);
    arr_DestruyePunto2D(&array);
}

TEST_F(TransformacionTest, TranslationCallbackChecksItsArguments)
{
    double y = 1;
    EXPECT_EQ(Transformacion<PLANO>::traslada(nullptr, &y, nullptr), FALSO);
    EXPECT_EQ(informes(), (Textos{"(x) != NULL", "(desp) != NULL"}));
    EXPECT_EQ(y, 1);
    Traslacion t{1, 1};
    EXPECT_EQ(Transformacion<PLANO>::traslada(&y, nullptr, &t), FALSO);
    EXPECT_EQ(informes(), Textos{"(y) != NULL"});
    EXPECT_EQ(y, 1);
}

TEST_F(TransformacionTest, ScalingCallbackChecksItsRecord)
{
    double x = 2;
    double y = 3;
    EXPECT_EQ(Transformacion<PLANO>::escala(&x, &y, nullptr), FALSO);
    EXPECT_EQ(informes(), Textos{"(mult_ptr) != NULL"});
    EXPECT_EQ(x, 2);
}

TEST_F(TransformacionTest, RotationCallbackChecksItsArguments)
{
    Rotacion r{0, 0, 1, 0};
    double x = 2;
    EXPECT_EQ(Transformacion<PLANO>::gira(&x, nullptr, nullptr), FALSO);
    EXPECT_EQ(informes(), (Textos{"(py) != NULL", "(d) != NULL"}));
    EXPECT_EQ(Transformacion<CON_DATOS>::gira(nullptr, &x, &r), FALSO);
    EXPECT_EQ(informes(), Textos{"(px) != NULL"});
    EXPECT_EQ(x, 2);
}

TEST_F(TransformacionTest, PrivateDataTranslationCallbackNamesItsRecord)
{
    double x = 2;
    double y = 3;
    EXPECT_EQ(Transformacion<CON_DATOS>::traslada(&x, &y, nullptr), FALSO);
    EXPECT_EQ(informes(), Textos{"(desp_ptr) != NULL"});
}

TEST_F(TransformacionTest, PrivateDataScalingCallbackNamesItsRecord)
{
    double x = 2;
    EXPECT_EQ(Transformacion<CON_DATOS>::escala(&x, nullptr, nullptr), FALSO);
    EXPECT_EQ(informes(), (Textos{"(y) != NULL", "(mul_ptr) != NULL"}));
    EXPECT_EQ(x, 2);
}

} // namespace
