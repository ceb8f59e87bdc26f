// The repeated append's count precondition differs by family on purpose; after a report the
// value is still appended as many times as the count says.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

namespace {

class AppendN : public PruebaArrays {
protected:
    // The module of the first report, "" when there was none.
    std::string modulo() const
    {
        return informes_completos().empty() ? "" : informes_completos().front().ubicacion;
    }
};

TEST_F(AppendN, DoublesWithCountOneIsReportedAndStillAppendsOnce)
{
    EXPECT_EQ(tras_append_n<FamiliaDouble>(arr_AppendNDoubles, 1, 2.5), std::vector<double>{2.5});
    EXPECT_EQ(modulo(), "a_double (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_veces > 1"});
}

TEST_F(AppendN, BoolsWithCountOneIsReportedAndStillAppendsOnce)
{
    EXPECT_EQ(tras_append_n<FamiliaBOOL>(arr_AppendNBOOLs, 1, CIERTO), std::vector<BOOL>{CIERTO});
    EXPECT_EQ(modulo(), "a_bool (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_veces > 1"});
}

TEST_F(AppendN, ULongsWithCountZeroIsReportedAndAppendsNothing)
{
    EXPECT_EQ(tras_append_n<FamiliaULong>(arr_AppendNULongs, 0, 7), std::vector<ULONG>{});
    EXPECT_EQ(modulo(), "a_ulong (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_veces > 0"});
}

TEST_F(AppendN, ULong64sWithCountZeroIsReportedAndAppendsNothing)
{
    EXPECT_EQ(tras_append_n<FamiliaULong64>(arr_AppendNULong64s, 0, 7), std::vector<ULONG64>{});
    EXPECT_EQ(modulo(), "a_ulong64 (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_veces > 0"});
}

TEST_F(AppendN, ULongsAcceptACountOfOne)
{
    EXPECT_EQ(tras_append_n<FamiliaULong>(arr_AppendNULongs, 1, 7), std::vector<ULONG>{7});
}

TEST_F(AppendN, ManyCopiesFillSeveralRows)
{
    EXPECT_EQ(tras_append_n<FamiliaDouble>(arr_AppendNDoubles, 600, 1.5),
              std::vector<double>(600, 1.5));
}

} // namespace
