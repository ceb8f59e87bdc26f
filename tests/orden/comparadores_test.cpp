// The comparator tables: the default order of each type, the per-type sort table constructors and
// sort adapters with their reports, the identical-bytes shortcut and the order of the members.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "core/quicksort.h"
#include "orden/ayudas_orden.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

namespace {

using Comparadores = PruebaArrays;

TEST_F(Comparadores, DefaultBoolOrderNeverAnswersLess)
{
    EXPECT_EQ(arrayprv_orden_bool(FALSO, CIERTO), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_bool(CIERTO, FALSO), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_bool(CIERTO, CIERTO), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_bool(FALSO, FALSO), comparac_IGUALES);
}

TEST_F(Comparadores, DefaultCharOrderIsSignedAndTheUCharOrderUnsigned)
{
    EXPECT_EQ(arrayprv_orden_char(static_cast<char>(0x80), 0x7F), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_byte(0x80, 0x7F), comparac_PRIMERO_MAYOR);
}

TEST_F(Comparadores, CharSortPutsTheHighBitFirstAndUCharSortLast)
{
    const std::vector<char> valores{static_cast<char>(0x80), 0x7F, 0x00};
    ARRAY *con_signo = crea_con<char>(elem_CHAR_NO_USAR, valores);
    ARRAY *sin_signo = crea_con<UCHAR>(elem_UCHAR_NO_USAR, {0x80, 0x7F, 0x00});
    arrayprv_ordena<elem_CHAR_NO_USAR>(con_signo, arrayprv_orden_char);
    arrayprv_ordena<elem_UCHAR_NO_USAR>(sin_signo, arrayprv_orden_byte);
    EXPECT_EQ(elementos<char>(con_signo, elem_CHAR_NO_USAR),
              (std::vector<char>{static_cast<char>(0x80), 0x00, 0x7F}));
    EXPECT_EQ(elementos<UCHAR>(sin_signo, elem_UCHAR_NO_USAR),
              (std::vector<UCHAR>{0x00, 0x7F, 0x80}));
    arrayprv_destruye(&con_signo);
    arrayprv_destruye(&sin_signo);
}

TEST_F(Comparadores, DefaultIntegerOrdersAnswerMinusOneZeroOneAtTheirSignedness)
{
    EXPECT_EQ(arrayprv_orden_short(-1, 1), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_ushort(0xFFFF, 1), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_long(-5, -5), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_long(std::numeric_limits<LONG>::min(), 0), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_ulong(0xFFFFFFFFu, 0), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_long64(std::numeric_limits<LONG64>::max(), -1),
              comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_ulong64(1, std::numeric_limits<ULONG64>::max()),
              comparac_PRIMERO_MENOR);
}

TEST_F(Comparadores, DefaultDoubleOrderIsExactAndTakesNaNAsEqualToEverything)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(arrayprv_orden_double(1.0, std::nextafter(1.0, 2.0)), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_double(2.0, 1.0), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_double(nan, 1.0), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_double(1.0, nan), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_double(0.0, -0.0), comparac_IGUALES);
}

TEST_F(Comparadores, DefaultStringOrdersAnswerMinusOneZeroOne)
{
    EXPECT_EQ(arrayprv_orden_cadena("abc", "abd"), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_cadena("b", "abc"), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_cadena("igual", "igual"), comparac_IGUALES);
    EXPECT_EQ(arrayprv_orden_cadena_u(u"abc", u"abd"), comparac_PRIMERO_MENOR);
    EXPECT_EQ(arrayprv_orden_cadena_u(u"b", u"abc"), comparac_PRIMERO_MAYOR);
    EXPECT_EQ(arrayprv_orden_cadena_u(u"igual", u"igual"), comparac_IGUALES);
}

TEST_F(Comparadores, PointerIdentityHoldsOnlyForTheSamePointer)
{
    int a = 0;
    int b = 0;
    EXPECT_EQ(arrayprv_mismo_puntero(&a, &a), CIERTO);
    EXPECT_EQ(arrayprv_mismo_puntero(&a, &b), FALSO);
}

size_t llamadas = 0;

int compara_contando(double a, double b)
{
    ++llamadas;
    return arrayprv_orden_double(a, b);
}

TEST_F(Comparadores, IdenticalBitsCompareEqualWithoutCallingTheComparator)
{
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<elem_DOUBLE_NO_USAR>(compara_contando);
    const double nan1 = std::numeric_limits<double>::quiet_NaN();
    const double nan2 = nan1;
    llamadas = 0;
    EXPECT_EQ(arrayprv_compara_elementos(tabla, arrayprv_adaptador<elem_DOUBLE_NO_USAR>, &nan1,
                                         &nan2, sizeof(double)),
              comparac_IGUALES);
    EXPECT_EQ(llamadas, 0u);
    arrayprv_destruye_funciones_ordenacion(&tabla);
    EXPECT_EQ(tabla, nullptr);
}

TEST_F(Comparadores, DifferentBitsReachTheComparator)
{
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<elem_DOUBLE_NO_USAR>(compara_contando);
    const double cero = 0.0;
    const double menos_cero = -0.0;
    llamadas = 0;
    EXPECT_EQ(arrayprv_compara_elementos(tabla, arrayprv_adaptador<elem_DOUBLE_NO_USAR>, &cero,
                                         &menos_cero, sizeof(double)),
              comparac_IGUALES);
    EXPECT_EQ(llamadas, 1u);
    const double uno = 1.0;
    EXPECT_EQ(arrayprv_compara_elementos(tabla, arrayprv_adaptador<elem_DOUBLE_NO_USAR>, &cero,
                                         &uno, sizeof(double)),
              comparac_PRIMERO_MENOR);
    EXPECT_EQ(llamadas, 2u);
    arrayprv_destruye_funciones_ordenacion(&tabla);
}

TEST_F(Comparadores, AdapterWithoutElementsIsReportedAndAnswersEqual)
{
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<elem_DOUBLE_NO_USAR>(compara_contando);
    const double uno = 1.0;
    llamadas = 0;
    EXPECT_EQ(arrayprv_adaptador<elem_DOUBLE_NO_USAR>(tabla, nullptr, &uno), comparac_IGUALES);
    EXPECT_EQ(informes(), Textos{"p1 && p2"});
    EXPECT_EQ(arrayprv_adaptador<elem_DOUBLE_NO_USAR>(tabla, &uno, nullptr), comparac_IGUALES);
    EXPECT_EQ(informes(), Textos{"p1 && p2"});
    EXPECT_EQ(llamadas, 0u);
    arrayprv_destruye_funciones_ordenacion(&tabla);
}

TEST_F(Comparadores, AdapterWithoutTableIsReportedAndAnswersEqual)
{
    const double uno = 1.0;
    const double dos = 2.0;
    EXPECT_EQ(arrayprv_adaptador<elem_DOUBLE_NO_USAR>(nullptr, &uno, &dos), comparac_IGUALES);
    EXPECT_EQ(informes(), Textos{"(funciones_ordenacion) != NULL"});
}

TEST_F(Comparadores, AdapterWithoutElementsOrTableReportsBoth)
{
    const double uno = 1.0;
    EXPECT_EQ(arrayprv_adaptador<elem_DOUBLE_NO_USAR>(nullptr, &uno, nullptr), comparac_IGUALES);
    EXPECT_EQ(informes(), (Textos{"p1 && p2", "(funciones_ordenacion) != NULL"}));
}

TEST_F(Comparadores, AdapterPassesTheStoredStringPointers)
{
    static std::vector<const char *> recibidas;
    funciones_ordenacion *tabla =
        arrayprv_crea_ordenacion<elem_CADENA_NO_USAR>([](const char *a, const char *b) {
            recibidas = {a, b};
            return 7;
        });
    const char *a = "a";
    const char *b = "b";
    EXPECT_EQ(arrayprv_adaptador<elem_CADENA_NO_USAR>(tabla, &a, &b), 7);
    EXPECT_EQ(recibidas, (std::vector<const char *>{a, b}));
    arrayprv_destruye_funciones_ordenacion(&tabla);
}

TEST_F(Comparadores, AdapterPassesTheCoordinatesAndPrivateDataOfBothPoints)
{
    static std::vector<double> coordenadas;
    static std::vector<void *> datos;
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<elem_PUNTO2DX_NO_USAR>(
        [](double x1, double y1, void *d1, double x2, double y2, void *d2) {
            coordenadas = {x1, y1, x2, y2};
            datos = {d1, d2};
            return -1;
        });
    int d1 = 0;
    int d2 = 0;
    const Punto2DX a{1, 2, &d1};
    const Punto2DX b{3, 4, &d2};
    EXPECT_EQ(arrayprv_adaptador<elem_PUNTO2DX_NO_USAR>(tabla, &a, &b), -1);
    EXPECT_EQ(coordenadas, (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(datos, (std::vector<void *>{&d1, &d2}));
    arrayprv_destruye_funciones_ordenacion(&tabla);
}

TEST_F(Comparadores, AdapterPassesTheCoordinatesOfPlaneAndSpacePoints)
{
    static std::vector<double> coordenadas;
    funciones_ordenacion *plano = arrayprv_crea_ordenacion<elem_PUNTO2D_NO_USAR>(
        [](double x1, double y1, double x2, double y2) {
            coordenadas = {x1, y1, x2, y2};
            return 1;
        });
    const Punto2D a{1, 2};
    const Punto2D b{3, 4};
    EXPECT_EQ(arrayprv_adaptador<elem_PUNTO2D_NO_USAR>(plano, &a, &b), 1);
    EXPECT_EQ(coordenadas, (std::vector<double>{1, 2, 3, 4}));
    funciones_ordenacion *espacio = arrayprv_crea_ordenacion<elem_PUNTO3D_NO_USAR>(
        [](double x1, double y1, double z1, double x2, double y2, double z2) {
            coordenadas = {x1, y1, z1, x2, y2, z2};
            return 0;
        });
    const Punto3D c{1, 2, 3};
    const Punto3D d{4, 5, 6};
    EXPECT_EQ(arrayprv_adaptador<elem_PUNTO3D_NO_USAR>(espacio, &c, &d), 0);
    EXPECT_EQ(coordenadas, (std::vector<double>{1, 2, 3, 4, 5, 6}));
    arrayprv_destruye_funciones_ordenacion(&plano);
    arrayprv_destruye_funciones_ordenacion(&espacio);
}

TEST_F(Comparadores, PredicateTableKeepsSignedMembersBeforeUnsignedOnes)
{
    const std::vector<size_t> desplazamientos{
        offsetof(fnc_compara, fnc_compara_BYTE),     offsetof(fnc_compara, fnc_compara_char),
        offsetof(fnc_compara, fnc_compara_uchar),    offsetof(fnc_compara, fnc_compara_short),
        offsetof(fnc_compara, fnc_compara_ushort),   offsetof(fnc_compara, fnc_compara_long),
        offsetof(fnc_compara, fnc_compara_ulong),    offsetof(fnc_compara, fnc_compara_long64),
        offsetof(fnc_compara, fnc_compara_ulong64),  offsetof(fnc_compara, fnc_compara_double),
        offsetof(fnc_compara, fnc_compara_CADENA),   offsetof(fnc_compara, fnc_compara_CADENA_U),
        offsetof(fnc_compara, fnc_compara_puntero),  offsetof(fnc_compara, fnc_compara_punto2D),
        offsetof(fnc_compara, fnc_compara_punto2DX), offsetof(fnc_compara, fnc_compara_punto3D)};
    for (size_t i = 0; i < desplazamientos.size(); ++i)
        EXPECT_EQ(desplazamientos[i], i * sizeof(void *)) << "member " << i;
    EXPECT_EQ(sizeof(fnc_compara), 16 * sizeof(void *));
}

// The ordering comparator member of each element type: its name and its place in the table.
struct Miembro {
    std::string nombre;
    size_t indice;
};

Miembro miembro_de(tipo_elem_array tipo)
{
    switch (tipo) {
    case elem_BYTE_NO_USAR: return {"func_compara_byte", 0};
    case elem_BOOL_NO_USAR: return {"func_compara_bool", 1};
    case elem_UCHAR_NO_USAR: return {"func_compara_uchar", 2};
    case elem_CHAR_NO_USAR: return {"func_compara_char", 3};
    case elem_USHORT_NO_USAR: return {"func_compara_ushort", 4};
    case elem_SHORT_NO_USAR: return {"func_compara_short", 5};
    case elem_ULONG_NO_USAR: return {"func_compara_ulong", 6};
    case elem_LONG_NO_USAR: return {"func_compara_long", 7};
    case elem_ULONG64_NO_USAR: return {"func_compara_ulong64", 8};
    case elem_LONG64_NO_USAR: return {"func_compara_long64", 9};
    case elem_DOUBLE_NO_USAR: return {"func_compara_double", 10};
    case elem_PUNTERO_NO_USAR: return {"func_compara_puntero", 11};
    case elem_CADENA_NO_USAR: return {"func_compara_cadena", 12};
    case elem_CADENA_U_NO_USAR: return {"func_compara_cadena_u", 13};
    case elem_PUNTO2D_NO_USAR: return {"func_compara_punto2D", 14};
    case elem_PUNTO2DX_NO_USAR: return {"func_compara_punto2Dx", 15};
    case elem_PUNTO3D_NO_USAR: return {"func_compara_punto3D", 16};
    default: return {"", 17};
    }
}

template <tipo_elem_array TAG> struct Etiqueta {
    static constexpr tipo_elem_array tipo = TAG;
};

template <typename E> class PorTipo : public PruebaArrays {
};

using TiposOrdenables = ::testing::Types<
    Etiqueta<elem_BYTE_NO_USAR>, Etiqueta<elem_BOOL_NO_USAR>, Etiqueta<elem_UCHAR_NO_USAR>,
    Etiqueta<elem_CHAR_NO_USAR>, Etiqueta<elem_USHORT_NO_USAR>, Etiqueta<elem_SHORT_NO_USAR>,
    Etiqueta<elem_ULONG_NO_USAR>, Etiqueta<elem_LONG_NO_USAR>, Etiqueta<elem_ULONG64_NO_USAR>,
    Etiqueta<elem_LONG64_NO_USAR>, Etiqueta<elem_DOUBLE_NO_USAR>, Etiqueta<elem_PUNTERO_NO_USAR>,
    Etiqueta<elem_CADENA_NO_USAR>, Etiqueta<elem_CADENA_U_NO_USAR>, Etiqueta<elem_PUNTO2D_NO_USAR>,
    Etiqueta<elem_PUNTO2DX_NO_USAR>, Etiqueta<elem_PUNTO3D_NO_USAR>>;

class NombreDeTag {
public:
    template <typename E> static std::string GetName(int)
    {
        return "Tag" + std::to_string(E::tipo);
    }
};

TYPED_TEST_SUITE(PorTipo, TiposOrdenables, NombreDeTag);

TYPED_TEST(PorTipo, SortTableWithoutItsComparatorIsReportedAndNotBuilt)
{
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<TypeParam::tipo>(nullptr);
    EXPECT_EQ(this->informes(), Textos{"(" + miembro_de(TypeParam::tipo).nombre + ") != NULL"});
    EXPECT_EQ(tabla, nullptr);
}

// A comparator of any shape that always answers 5.
constexpr auto responde_cinco = [](auto...) { return 5; };

TYPED_TEST(PorTipo, SortTableHoldsOnlyItsComparatorAtItsPlace)
{
    comparador_de<TypeParam::tipo> comparador = responde_cinco;
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<TypeParam::tipo>(comparador);
    ASSERT_NE(tabla, nullptr);
    static_assert(sizeof(funciones_ordenacion) == 17 * sizeof(void *));
    std::vector<bool> puestos(17);
    for (size_t i = 0; i < puestos.size(); ++i) {
        void *miembro;
        std::memcpy(&miembro, reinterpret_cast<const char *>(tabla) + i * sizeof(void *),
                    sizeof miembro);
        puestos[i] = miembro != nullptr;
    }
    std::vector<bool> esperados(17);
    esperados[miembro_de(TypeParam::tipo).indice] = true;
    EXPECT_EQ(puestos, esperados);
    const char a[24] = {1};
    const char b[24] = {2};
    EXPECT_EQ(arrayprv_adaptador<TypeParam::tipo>(tabla, a, b), 5);
    arrayprv_destruye_funciones_ordenacion(&tabla);
}

TYPED_TEST(PorTipo, AdapterWithoutItsMemberIsReportedAndAnswersEqual)
{
    const funciones_ordenacion vacia{};
    const char a[24] = {1};
    const char b[24] = {2};
    EXPECT_EQ(arrayprv_adaptador<TypeParam::tipo>(&vacia, a, b), comparac_IGUALES);
    EXPECT_EQ(this->informes(),
              Textos{"(funciones_ordenacion->" + miembro_de(TypeParam::tipo).nombre + ") != NULL"});
}

} // namespace
