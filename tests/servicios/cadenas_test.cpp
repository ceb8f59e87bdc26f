// Narrow and wide string primitives, tested once for both forms: copy, destruction, order, exact
// equality, concatenation and strings of one repeated character, all in tracked memory.
#include "soporte/prueba_arrays.h"

#include "services/cadenas.h"
#include "services/memoria.h"

#include <string>

namespace {

constexpr const char *UBICACION = "prueba (CADENAS)";

struct Estrechas {
    using C = char;
    static C *copia(const C *s) { return cad_copia_cadena(s); }
    static void destruye(C **s) { zarpstr_destruye(s); }
    static int compara(const C *a, const C *b) { return cad_cadenas_compara(a, b); }
    static BOOL iguales(const C *a, const C *b) { return cad_cadenas_iguales(a, b); }
    static void concatena(C **destino, const C *s) { cad_concatena(destino, s); }
    static C *repite(ULONG num, C c) { return creacadena_con_caracter(num, c); }
};

struct Anchas {
    using C = WCHAR;
    static C *copia(const C *s) { return widestr_fun_copia(s); }
    static void destruye(C **s) { widestr_nousar_destruye(s, UBICACION, __LINE__); }
    static int compara(const C *a, const C *b)
    {
        return widestr_nousar_compara(a, b, UBICACION, __LINE__);
    }
    static BOOL iguales(const C *a, const C *b) { return widestr_fun_cadenas_iguales(a, b); }
    static void concatena(C **destino, const C *s)
    {
        widestr_nousar_cad_concatena(destino, s, UBICACION, __LINE__);
    }
    static C *repite(ULONG num, C c) { return widestr_nousar_creacadena_con_caracter(num, c); }
};

template <typename Forma> class Cadenas : public PruebaArrays {
protected:
    using C = typename Forma::C;
    using Texto = std::basic_string<C>;

    // An ASCII text in this form.
    static Texto de(const char *ascii)
    {
        return Texto(ascii, ascii + std::char_traits<char>::length(ascii));
    }
    // The text of a string the service returned, which is then destroyed.
    static Texto toma(C *cadena)
    {
        Texto texto(cadena);
        Forma::destruye(&cadena);
        return texto;
    }
};

using Formas = ::testing::Types<Estrechas, Anchas>;
TYPED_TEST_SUITE(Cadenas, Formas);

TYPED_TEST(Cadenas, CopyIsANewStringWithTheSameText)
{
    const auto original = this->de("hola");
    auto *copia = TypeParam::copia(original.c_str());
    EXPECT_NE(copia, original.c_str());
    EXPECT_EQ(this->toma(copia), original);
}

TYPED_TEST(Cadenas, CopyOfNullIsNull) { EXPECT_EQ(TypeParam::copia(nullptr), nullptr); }

TYPED_TEST(Cadenas, DestroyFreesTheStringAndClearsThePointer)
{
    const size_t bloques = zarpspy_bloques_vivos();
    auto *copia = TypeParam::copia(this->de("hola").c_str());
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques + 1);
    TypeParam::destruye(&copia);
    EXPECT_EQ(copia, nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    TypeParam::destruye(&copia);
    EXPECT_EQ(copia, nullptr);
}

TYPED_TEST(Cadenas, CompareGivesTheOrderOfTheFirstDifferentCharacter)
{
    const auto abc = this->de("abc");
    const auto abd = this->de("abd");
    const auto ab = this->de("ab");
    EXPECT_LT(TypeParam::compara(abc.c_str(), abd.c_str()), 0);
    EXPECT_GT(TypeParam::compara(abd.c_str(), abc.c_str()), 0);
    EXPECT_EQ(TypeParam::compara(abc.c_str(), abc.c_str()), 0);
    EXPECT_LT(TypeParam::compara(ab.c_str(), abc.c_str()), 0);
    EXPECT_LT(TypeParam::compara(abc.c_str(), this->de("b").c_str()), 0);
}

TYPED_TEST(Cadenas, CompareOrdersNullBeforeEveryString)
{
    const auto vacia = this->de("");
    EXPECT_LT(TypeParam::compara(nullptr, vacia.c_str()), 0);
    EXPECT_GT(TypeParam::compara(vacia.c_str(), nullptr), 0);
    EXPECT_EQ(TypeParam::compara(nullptr, nullptr), 0);
}

TYPED_TEST(Cadenas, EqualityIsExact)
{
    const auto abc = this->de("abc");
    EXPECT_TRUE(TypeParam::iguales(abc.c_str(), this->de("abc").c_str()));
    EXPECT_FALSE(TypeParam::iguales(abc.c_str(), this->de("ABC").c_str()));
    EXPECT_FALSE(TypeParam::iguales(abc.c_str(), this->de("abcd").c_str()));
    EXPECT_FALSE(TypeParam::iguales(nullptr, this->de("").c_str()));
    EXPECT_TRUE(TypeParam::iguales(nullptr, nullptr));
}

TYPED_TEST(Cadenas, ConcatenatingOntoANullTargetStartsFromEmpty)
{
    typename TestFixture::C *destino = nullptr;
    TypeParam::concatena(&destino, this->de("uno").c_str());
    EXPECT_EQ(typename TestFixture::Texto(destino), this->de("uno"));
    TypeParam::concatena(&destino, this->de(" dos").c_str());
    EXPECT_EQ(this->toma(destino), this->de("uno dos"));
}

TYPED_TEST(Cadenas, ConcatenatingNullOrEmptyKeepsTheText)
{
    auto *destino = TypeParam::copia(this->de("uno").c_str());
    TypeParam::concatena(&destino, nullptr);
    TypeParam::concatena(&destino, this->de("").c_str());
    EXPECT_EQ(this->toma(destino), this->de("uno"));
}

TYPED_TEST(Cadenas, RepeatedCharacterStringHasCountCopies)
{
    EXPECT_EQ(this->toma(TypeParam::repite(4, '*')), this->de("****"));
    EXPECT_EQ(this->toma(TypeParam::repite(0, '*')), this->de(""));
}

using CadenasEstrechas = PruebaArrays;

TEST_F(CadenasEstrechas, CompareOrdersBytesAsUnsigned)
{
    EXPECT_GT(cad_cadenas_compara("é", "z"), 0);
}

TEST_F(CadenasEstrechas, DestroyingAListFreesEveryBlockAndTheTable)
{
    const size_t bloques = zarpspy_bloques_vivos();
    auto **tabla = static_cast<char **>(zarpspy_nousar_malloc(3 * sizeof(char *)));
    for (int i = 0; i < 3; ++i)
        tabla[i] = cad_copia_cadena("fila");
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques + 4);
    zarpstr_destruyeListaCadenas(3, &tabla);
    EXPECT_EQ(tabla, nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
}

TEST_F(CadenasEstrechas, DestroyingAListThroughAnUnalignedTablePointerClearsIt)
{
    const size_t bloques = zarpspy_bloques_vivos();
    auto **tabla = static_cast<char **>(zarpspy_nousar_malloc(2 * sizeof(char *)));
    tabla[0] = cad_copia_cadena("fila");
    tabla[1] = cad_copia_cadena("fila");
    alignas(8) unsigned char cabecera_empaquetada[16] = {};
    unsigned char *celda = cabecera_empaquetada + 6;
    zarpspy_escribe_puntero(celda, tabla);
    zarpstr_destruyeListaCadenas(2, celda);
    EXPECT_EQ(zarpspy_lee_puntero(celda), nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
}

TEST_F(CadenasEstrechas, FormatWritesAsPrintf)
{
    char *texto = nousar_formatea("%s=%d (%.2f)", "x", 42, 1.5);
    EXPECT_STREQ(texto, "x=42 (1.50)");
    zarpstr_destruye(&texto);
}

TEST_F(CadenasEstrechas, FormatHasNoLengthLimit)
{
    char *texto = nousar_formatea("%05000d", 7);
    EXPECT_EQ(std::string(texto), std::string(4999, '0') + "7");
    zarpstr_destruye(&texto);
}

TEST_F(CadenasEstrechas, FormatOfAnEmptyResultIsAnEmptyString)
{
    char *texto = nousar_formatea("%s", "");
    EXPECT_STREQ(texto, "");
    zarpstr_destruye(&texto);
}

using CadenasAnchas = PruebaArrays;

TEST_F(CadenasAnchas, NousarCopyIsANewStringWithTheSameText)
{
    const WCHAR original[] = u"año";
    WCHAR *copia = widestr_nousar_copia(original, UBICACION, __LINE__);
    EXPECT_NE(copia, original);
    EXPECT_EQ(std::u16string(copia), original);
    widestr_nousar_destruye(&copia, UBICACION, __LINE__);
}

TEST_F(CadenasAnchas, CompareOrdersCodeUnitsNotCodePoints)
{
    EXPECT_LT(widestr_nousar_compara(u"\xD800\xDC00", u"\xFFFF", UBICACION, __LINE__), 0);
}

} // namespace
