// Edits that thin a polyline: removal of points equal to the one before them, and of points
// lying on the line between their neighbours, open and closed, on both kinds of 2D point array.
#include "geometria/ayudas_geometria.h"

namespace {

// Owns one array that a test fills from a point list.
class EdicionesDePolilinea : public PruebaArrays {
protected:
    void TearDown() override
    {
        if (array_ != nullptr)
            arr_DestruyePunto2D(&array_);
        PruebaArrays::TearDown();
    }

    ARRAY *polilinea(const Puntos &puntos) { return array_ = crea_puntos(puntos); }
    ARRAY *polilinea_con_datos(const Puntos &puntos)
    {
        return array_ = crea_puntos_con_datos(puntos);
    }

    ARRAY *array_ = nullptr;
};

ULONG quita_repetidos(ARRAY *array)
{
    ULONG eliminados = 99;
    arr_EliminarPuntosContiguosRepetidosPunto2D(array, &eliminados);
    return eliminados;
}

TEST_F(EdicionesDePolilinea, RepeatedNeighboursAreRemovedKeepingTheFirstOfEachRun)
{
    EXPECT_EQ(quita_repetidos(polilinea({{0, 0}, {0, 0}, {0, 0}, {1, 0}})), 2u);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {1, 0}}));
}

TEST_F(EdicionesDePolilinea, RepeatedNeighboursAreEqualWithinABillionthPerCoordinate)
{
    EXPECT_EQ(quita_repetidos(polilinea({{0, 0}, {5e-10, -5e-10}, {5e-10, 2e-9}, {1, 1}})), 1u);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {5e-10, 2e-9}, {1, 1}}));
}

TEST_F(EdicionesDePolilinea, RepeatedNeighboursAreComparedWithTheLastPointKept)
{
    // Each point is within 1e-9 of the one before it, but only the first two of the first.
    EXPECT_EQ(quita_repetidos(polilinea({{0, 0}, {0.8e-9, 0}, {1.6e-9, 0}})), 1u);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {1.6e-9, 0}}));
}

TEST_F(EdicionesDePolilinea, FirstAndLastPointsAreNotComparedWithEachOther)
{
    EXPECT_EQ(quita_repetidos(polilinea({{0, 0}, {1, 0}, {0, 0}})), 0u);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 3u);
}

TEST_F(EdicionesDePolilinea, FewerThanTwoPointsRemoveNothing)
{
    EXPECT_EQ(quita_repetidos(polilinea({{0, 0}})), 0u);
    arr_EliminarPuntosContiguosRepetidosPunto2D(array_, nullptr);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 1u);
}

TEST_F(EdicionesDePolilinea, RepeatedNeighboursWithDataAreRemovedToo)
{
    EXPECT_EQ(quita_repetidos(polilinea_con_datos({{2, 2}, {2, 2}, {3, 3}, {3, 3}})), 2u);
    EXPECT_EQ(puntos_de(array_), (Puntos{{2, 2}, {3, 3}}));
}

TEST_F(EdicionesDePolilinea, RepeatedNeighboursOfANullArrayAreNone)
{
    EXPECT_EQ(quita_repetidos(nullptr), 0u);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(EdicionesDePolilinea, ThinningRemovesAPointNearerTheLineThanTheTolerance)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {1, 0.001}, {2, 0}}), 0, 0.01);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {2, 0}}));
}

TEST_F(EdicionesDePolilinea, ThinningKeepsAPointExactlyAtTheTolerance)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {1, 0.001}, {2, 0}}), 0, 0.001);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {1, 0.001}, {2, 0}}));
}

TEST_F(EdicionesDePolilinea, ThinningRetestsWithTheNewNeighbourAfterARemoval)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 5}}), 0, 1e-9);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {3, 0}, {3, 5}}));
}

TEST_F(EdicionesDePolilinea, ThinningMeasuresToTheWholeLineNotTheSegment)
{
    // (3, 0) lies on the line through (0, 0) and (1, 0), beyond the segment.
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {3, 0}, {1, 0}}), 0, 1e-9);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {1, 0}}));
}

TEST_F(EdicionesDePolilinea, OpenThinningLeavesTheEndsAlone)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{1, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 1}}), 0, 0.01);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 5u);
}

TEST_F(EdicionesDePolilinea, ClosedThinningTestsTheLastPointAgainstTheFirst)
{
    // (0, 1) lies between (0, 2) and the first point (0, 0) once the polyline is closed.
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 1}}), 1, 0.01);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {2, 0}, {2, 2}, {0, 2}}));
}

TEST_F(EdicionesDePolilinea, ClosedThinningNeverRemovesPointZero)
{
    // (1, 0) lies between the last point (0, 0) and (2, 0), and stays.
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{1, 0}, {2, 0}, {2, 1}, {2, 2}, {0, 2}, {0, 0}}), 1, 0.01);
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}}));
}

TEST_F(EdicionesDePolilinea, OpenThinningOfPointsWithDataWorks)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea_con_datos({{0, 0}, {1, 0.001}, {2, 0}}), 0, 0.01);
    EXPECT_EQ(puntos_de(array_), (Puntos{{0, 0}, {2, 0}}));
}

TEST_F(EdicionesDePolilinea, ClosedThinningOfPointsWithDataIsRefusedByThePlainAppend)
{
    const Puntos puntos{{0, 0}, {1, 0}, {2, 0}, {2, 2}};
    polilinea_con_datos(puntos);
    arr_AppendPunto2D(array_, 0, 0);
    const Textos rechazo = informes();
    ASSERT_NE(rechazo, Textos{});
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(array_, 1, 0.01);
    EXPECT_EQ(informes(), rechazo);
    EXPECT_EQ(puntos_de(array_), puntos);
}

TEST_F(EdicionesDePolilinea, ClosedThinningOfAnEmptyPolylineEndsAtItsPointZero)
{
    polilinea({});
    arr_GetPunto2D(array_, 0, nullptr, nullptr);
    const Textos lectura = informes();
    ASSERT_NE(lectura, Textos{});
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(array_, 1, 0.01);
    EXPECT_EQ(informes(), lectura);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 0u);
}

TEST_F(EdicionesDePolilinea, OnlyCerradaOneCloses)
{
    arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
        polilinea({{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 1}}), 2, 0.01);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 5u);
}

} // namespace
