/* A short tour of libarrays from C: build an array of doubles, insert, delete, walk it, and see
 * a broken precondition reported instead of a crash. */
#include <stdio.h>

#include "arrays.h"

static BOOL imprime(double *elemento, void *datos)
{
    ULONG *indice = (ULONG *)datos;
    printf("  [%lu] %g\n", (unsigned long)(*indice)++, *elemento);
    return CIERTO;
}

static void muestra_informe(const arr_informe *informe, void *contexto)
{
    (void)contexto;
    printf("  report from %s: \"%s\"\n", informe->ubicacion, informe->expresion);
}

int main(void)
{
    ARRAY *precios = arr_CreaDouble(0);
    ULONG indice = 0;

    for (int i = 1; i <= 5; ++i)
        arr_AppendDouble(precios, i * 1.5);
    arr_InsertarDouble(precios, 0, 100.0);
    arr_BorrarDouble(precios, 3);
    arr_SetDouble(precios, 1, -2.25);
    printf("%lu elements:\n", (unsigned long)arr_NumElemsDouble(precios));
    arr_nousar_RecorreDouble(precios, imprime, &indice, __FILE__, __LINE__);

    arr_set_manejador_informes(muestra_informe, NULL);
    printf("reading past the end:\n");
    printf("  value read: %g\n", arr_GetDouble(precios, 99));
    arr_set_manejador_informes(NULL, NULL);

    arr_DestruyeDouble(&precios);
    printf("after destruction the handle is %s\n", precios == NULL ? "NULL" : "set");
    return 0;
}
