// libarrays from C++: arr::array owns an array of the library, and range-for walks its rows.
#include "arrays.hpp"

#include <cstdio>
#include <string>

int main()
{
    arr::array<double> precios;
    for (double precio : {9.5, 3.25, 12.0, 0.75})
        precios.push_back(precio);
    precios.insert(1, 5.0);
    precios.sort();
    std::printf("%zu prices, ascending:", precios.size());
    for (double precio : precios)
        std::printf(" %g", precio);
    std::printf("\n12 is at position %zu\n", *precios.find(12.0));

    arr::array<std::string> aves;
    for (const char *ave : {"ping\xC3\xBCino", "c\xC3\xB3ndor", "\xC3\xB1\x61nd\xC3\xBA"})
        aves.push_back(ave);
    for (std::string_view ave : aves)
        std::printf("%.*s\n", static_cast<int>(ave.size()), ave.data());

    arr::array<arr::punto2d> triangulo;
    triangulo.push_back({0, 0});
    triangulo.push_back({4, 0});
    triangulo.push_back({0, 3});
    std::printf("triangle area %g\n", arr_CalcularAreaPunto2D(triangulo.get()));
    return 0;
}
