// The C++ face: ownership (move-only, destroyed with its object), checked access, push_back,
// insert, erase, sort, find and range-for over the rows, for numbers, booleans, points and
// strings.
#include "arrays.hpp"

#include "soporte/prueba_arrays.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using CaraCpp = PruebaArrays;

static_assert(!std::is_copy_constructible_v<arr::array<double>>);
static_assert(std::is_nothrow_move_constructible_v<arr::array<double>>);

template <typename T> std::vector<T> recorre(const arr::array<T> &array)
{
    std::vector<T> vistos;
    for (const T &elemento : array)
        vistos.push_back(elemento);
    return vistos;
}

TEST_F(CaraCpp, NewArrayHoldsZeroElementsOfItsSize)
{
    const arr::array<std::int32_t> array(3);
    EXPECT_EQ(array.size(), 3u);
    EXPECT_EQ(recorre(array), (std::vector<std::int32_t>{0, 0, 0}));
}

TEST_F(CaraCpp, PushBackInsertEraseKeepTheOrderOfAVector)
{
    arr::array<double> array;
    std::vector<double> modelo;
    for (int i = 0; i < 2000; ++i) {
        array.push_back(i);
        modelo.push_back(i);
    }
    for (std::size_t i = 0; i < 600; ++i) {
        array.insert(i * 2, -1.0 * static_cast<double>(i));
        modelo.insert(modelo.begin() + static_cast<std::ptrdiff_t>(i * 2),
                      -1.0 * static_cast<double>(i));
        array.erase(i * 3);
        modelo.erase(modelo.begin() + static_cast<std::ptrdiff_t>(i * 3));
    }
    EXPECT_EQ(array.size(), modelo.size());
    EXPECT_EQ(recorre(array), modelo) << "iteration walks every row in position order";
}

TEST_F(CaraCpp, IterationWritesThroughToTheElements)
{
    arr::array<std::int64_t> array;
    for (std::int64_t i = 0; i < 1000; ++i)
        array.push_back(i);
    for (std::int64_t &elemento : array)
        elemento *= 2;
    EXPECT_EQ(array.at(999), 1998);
    EXPECT_EQ(std::accumulate(array.begin(), array.end(), std::int64_t{0}), 999000);
}

TEST_F(CaraCpp, CheckedAccessThrowsPastTheEndAndReportsNothing)
{
    arr::array<std::uint16_t> array(2);
    EXPECT_THROW(array.at(2), std::out_of_range);
    EXPECT_THROW(array.erase(2), std::out_of_range);
    EXPECT_THROW(array.insert(3, 1), std::out_of_range);
    EXPECT_THROW(array.set(5, 1), std::out_of_range);
    array.insert(2, 7);
    EXPECT_EQ(array.at(2), 7u);
}

TEST_F(CaraCpp, UncheckedAccessGoesThroughTheLibrarysOwnCheck)
{
    const arr::array<std::uint32_t> array(1);
    EXPECT_EQ(array[5], 0u);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

TEST_F(CaraCpp, SortAndFind)
{
    arr::array<std::int16_t> array;
    for (std::int16_t valor : {5, -3, 9, 0, -3})
        array.push_back(valor);
    array.sort();
    EXPECT_EQ(recorre(array), (std::vector<std::int16_t>{-3, -3, 0, 5, 9}));
    EXPECT_EQ(array.find(5), std::optional<std::size_t>(3));
    EXPECT_EQ(array.find(4), std::nullopt);
}

TEST_F(CaraCpp, DoublesAreFoundByExactValue)
{
    arr::array<double> array;
    array.push_back(0.5);
    array.push_back(2.25);
    EXPECT_EQ(array.find(2.25), std::optional<std::size_t>(1));
    EXPECT_EQ(array.find(2.2500001), std::nullopt);
}

TEST_F(CaraCpp, BooleansAndBytes)
{
    arr::array<arr::booleano> booleanos;
    booleanos.push_back(arr::booleano::cierto);
    booleanos.push_back(arr::booleano::falso);
    EXPECT_EQ(booleanos.at(0), arr::booleano::cierto);
    EXPECT_EQ(booleanos.find(arr::booleano::falso), std::optional<std::size_t>(1));
    arr::array<std::uint8_t> bytes;
    bytes.push_back(200);
    arr::array<char> caracteres;
    caracteres.push_back('z');
    EXPECT_EQ(bytes.at(0), 200);
    EXPECT_EQ(caracteres.at(0), 'z');
}

TEST_F(CaraCpp, PointsSortByXThenYAndIterateInTheirLayout)
{
    arr::array<arr::punto2d> puntos;
    puntos.push_back({2, 1});
    puntos.push_back({1, 5});
    puntos.push_back({1, -5});
    puntos.sort();
    EXPECT_EQ(recorre(puntos), (std::vector<arr::punto2d>{{1, -5}, {1, 5}, {2, 1}}));
    EXPECT_EQ(puntos.find({1, 5}), std::optional<std::size_t>(1));
    arr::array<arr::punto3d> espacio;
    espacio.push_back({1, 2, 3});
    espacio.push_back({1, 2, -3});
    espacio.sort();
    EXPECT_EQ(espacio.at(0), (arr::punto3d{1, 2, -3}));
}

TEST_F(CaraCpp, StringsGoInAsViewsAndComeOutAsStrings)
{
    arr::array<std::string> cadenas;
    const std::string_view sin_terminar = std::string_view("pera y manzana").substr(0, 4);
    cadenas.push_back(sin_terminar);
    cadenas.push_back("\xC3\xB1\x61nd\xC3\xBA");
    cadenas.insert(0, "arroz");
    EXPECT_EQ(cadenas.at(1), "pera");
    std::vector<std::string_view> vistas(cadenas.begin(), cadenas.end());
    EXPECT_EQ(vistas, (std::vector<std::string_view>{"arroz", "pera", "\xC3\xB1\x61nd\xC3\xBA"}));
    EXPECT_EQ(cadenas.find("pera"), std::optional<std::size_t>(1));
    const arr::array<std::string> vacias(2);
    EXPECT_EQ(std::vector<std::string_view>(vacias.begin(), vacias.end()),
              (std::vector<std::string_view>{"", ""}));
}

TEST_F(CaraCpp, WideStrings)
{
    arr::array<std::u16string> cadenas;
    cadenas.push_back(u"\u00D1and\u00FA");
    cadenas.push_back(u"ala");
    cadenas.sort();
    EXPECT_EQ(cadenas.at(0), u"ala");
    EXPECT_EQ(*cadenas.begin(), std::u16string_view(u"ala"));
}

TEST_F(CaraCpp, MovingHandsTheArrayOverAndReleaseGivesItUp)
{
    arr::array<double> primero(4);
    arr::array<double> segundo(std::move(primero));
    EXPECT_EQ(segundo.size(), 4u);
    EXPECT_EQ(primero.get(), nullptr);
    EXPECT_EQ(primero.size(), 0u);
    EXPECT_EQ(primero.begin(), primero.end());
    primero = std::move(segundo);
    ARRAY *suelto = primero.release();
    EXPECT_EQ(arr_NumElemsDouble(suelto), 4u);
    arr::array<double> adoptado = arr::array<double>::adopta(suelto);
    EXPECT_EQ(adoptado.size(), 4u);
}

TEST_F(CaraCpp, EmptyArrayIteratesNothing)
{
    const arr::array<std::uint64_t> array;
    EXPECT_EQ(array.begin(), array.end());
    EXPECT_TRUE(array.empty());
}

} // namespace
