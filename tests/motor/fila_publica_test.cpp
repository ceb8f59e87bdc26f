// Direct access to the rows (arr_Fila): every row in order, each with its count, NULL past the
// last; a NULL or dead handle is reported and gives nothing.
#include "motor/ayudas_motor.h"

#include <vector>

namespace {

using FilaPublica = PruebaArrays;

TEST_F(FilaPublica, RowsHoldEveryElementInPositionOrder)
{
    ARRAY *array = arr_CreaLong(0);
    for (LONG i = 0; i < 3000; ++i)
        arr_InsertarLong(array, static_cast<ULONG>(i / 2), i);
    std::vector<LONG> vistos;
    ULONG fila = 0;
    ULONG num = 0;
    for (const LONG *elementos; (elementos = static_cast<const LONG *>(arr_Fila(array, fila, &num)));
         ++fila) {
        ASSERT_GT(num, 0u);
        vistos.insert(vistos.end(), elementos, elementos + num);
    }
    EXPECT_EQ(num, 0u) << "past the last row";
    ASSERT_EQ(vistos.size(), 3000u);
    for (ULONG i = 0; i < 3000; ++i)
        ASSERT_EQ(vistos[i], arr_GetLong(array, i));
    arr_DestruyeLong(&array);
}

TEST_F(FilaPublica, EmptyArrayHasNoRow)
{
    ARRAY *array = arr_CreaDouble(0);
    ULONG num = 7;
    EXPECT_EQ(arr_Fila(array, 0, &num), nullptr);
    EXPECT_EQ(num, 0u);
    arr_DestruyeDouble(&array);
}

TEST_F(FilaPublica, NullAndDestroyedHandlesAreReportedAndGiveNothing)
{
    ULONG num = 7;
    EXPECT_EQ(arr_Fila(nullptr, 0, &num), nullptr);
    EXPECT_EQ(num, 0u);
    ARRAY *array = arr_CreaDouble(5);
    const ARRAY *viejo = array;
    arr_DestruyeDouble(&array);
    EXPECT_EQ(arr_Fila(viejo, 0, nullptr), nullptr);
    EXPECT_EQ(informes(), (Textos{"(array) != NULL", "array->mascara_debug == MASCARA_DEBUG"}));
}

} // namespace
