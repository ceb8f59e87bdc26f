/* A tour of libarrays from C, in a few seconds: inserting into the middle of a million doubles
 * beside a contiguous array, sorting and searching, Spanish text found whatever its case, arcs
 * and circles measured against the exact values, a broken precondition reported instead of a
 * crash, and an array published for the arrays-visor tool.
 *   demo            runs the tour
 *   demo --espera   keeps the published array open until Enter is pressed */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "arrays.h"

#define MILLON 1000000UL
#define INSERCIONES 10000UL
#define PI 3.14159265358979323846

static unsigned long semilla = 20261124UL;

/* A small pseudo-random generator, the same on every platform. */
static unsigned long azar(void)
{
    semilla = (semilla * 1103515245UL + 12345UL) & 0x7FFFFFFFUL;
    return semilla;
}

static double segundos_desde(clock_t inicio) { return (double)(clock() - inicio) / CLOCKS_PER_SEC; }

/* The same inserts into a plain contiguous array, as std::vector or a realloc'ed buffer does
 * them: every insert moves all the elements after it. */
static double inserta_en_contiguo(void)
{
    double *contiguo = malloc((MILLON + INSERCIONES) * sizeof *contiguo);
    unsigned long num = MILLON, i;
    clock_t inicio;
    if (contiguo == NULL)
        return 0.0;
    for (i = 0; i < MILLON; ++i)
        contiguo[i] = (double)i;
    inicio = clock();
    for (i = 0; i < INSERCIONES; ++i) {
        unsigned long pos = azar() % num;
        memmove(contiguo + pos + 1, contiguo + pos, (num - pos) * sizeof *contiguo);
        contiguo[pos] = -1.0;
        ++num;
    }
    free(contiguo);
    return segundos_desde(inicio);
}

static void inserciones(void)
{
    ARRAY *dobles = arr_CreaDouble(0);
    unsigned long i;
    double nuestro, contiguo;
    clock_t inicio;
    for (i = 0; i < MILLON; ++i)
        arr_AppendDouble(dobles, (double)i);
    inicio = clock();
    for (i = 0; i < INSERCIONES; ++i)
        arr_InsertarDouble(dobles, (ULONG)(azar() % arr_NumElemsDouble(dobles)), -1.0);
    nuestro = segundos_desde(inicio);
    contiguo = inserta_en_contiguo();
    printf("1. %lu inserts at random places into %lu doubles\n", INSERCIONES, MILLON);
    printf("   libarrays:        %8.4f s (rows of 2 KiB: each insert moves part of one row)\n",
           nuestro);
    printf("   contiguous array: %8.4f s (each insert moves everything after it)\n", contiguo);
    arr_DestruyeDouble(&dobles);
}

static void orden_y_busqueda(void)
{
    ARRAY *numeros = arr_CreaLong(0);
    unsigned long i;
    ULONG pos;
    clock_t inicio;
    for (i = 0; i < MILLON; ++i)
        arr_AppendLong(numeros, (LONG)(azar() % 100000000UL));
    arr_AppendLong(numeros, 4242);
    inicio = clock();
    arr_QSortLong(numeros, NULL);
    printf("2. %lu longs sorted in %.3f s: first %ld, last %ld\n",
           (unsigned long)arr_NumElemsLong(numeros), segundos_desde(inicio),
           (long)arr_GetLong(numeros, 0), (long)arr_GetLong(numeros, arr_NumElemsLong(numeros) - 1));
    pos = arr_BuscarLong(numeros, 4242, NULL);
    printf("   4242 found at position %lu\n", (unsigned long)pos);
    arr_DestruyeLong(&numeros);
}

static void texto(void)
{
    static const char *const animales[] = {"c\xC3\xB3ndor", "ping\xC3\xBCino", "\xC3\xB1\x61nd\xC3\xBA",
                                           "alpaca"};
    ARRAY *cadenas = arr_CreaCADENA(0);
    size_t i;
    for (i = 0; i < sizeof animales / sizeof animales[0]; ++i)
        arr_AppendCADENA(cadenas, animales[i]);
    printf("3. \"\xC3\x91\x41ND\xC3\x9A\" found, ignoring case, at position %lu: \"%s\"\n",
           (unsigned long)arr_BuscarMayMinCADENA(cadenas, "\xC3\x91\x41ND\xC3\x9A"),
           arr_GetCADENA(cadenas, arr_BuscarMayMinCADENA(cadenas, "\xC3\x91\x41ND\xC3\x9A")));
    arr_QSortCADENA(cadenas, NULL);
    printf("   sorted by bytes: %s, %s, %s, %s\n", arr_GetCADENA(cadenas, 0),
           arr_GetCADENA(cadenas, 1), arr_GetCADENA(cadenas, 2), arr_GetCADENA(cadenas, 3));
    arr_DestruyeCADENA(&cadenas);
}

static ARRAY *geometria(void)
{
    const double radio = 10.0;
    ARRAY *circulo = arr_CreaPunto2D(0);
    ARRAY *arco = arr_CreaPunto2D(0);
    arr_AnyadirCirculoPunto2D(circulo, 0.0, 0.0, radio, 0, 3600);
    arr_AppendPunto2D(circulo, radio, 0.0); /* closes it, so that its length is the perimeter */
    arr_AnyadirArcoPunto2D_numPuntosArco(arco, 0.0, 0.0, radio, 0.0, -radio, 0.0, 0, 1801);
    arr_AnyadirArcoPunto2D_numPuntosArco(arco, -2 * radio, 0.0, -radio, 0.0, -3 * radio, 0.0, 1,
                                         1801);
    printf("4. a circle of radius 10 as %lu points: length %.6f (2 pi r = %.6f), area %.4f "
           "(pi r^2 = %.4f)\n",
           (unsigned long)arr_NumElemsPunto2D(circulo), arr_LongitudPunto2D(circulo, NULL, NULL),
           2 * PI * radio, arr_CalcularAreaPunto2D(circulo), PI * radio * radio);
    printf("   two half circles of radius 10 joined as one polyline of %lu points: length %.6f "
           "(2 pi r = %.6f)\n",
           (unsigned long)arr_NumElemsPunto2D(arco), arr_LongitudPunto2D(arco, NULL, NULL),
           2 * PI * radio);
    arr_DestruyePunto2D(&circulo);
    return arco;
}

static void muestra_informe(const arr_informe *informe, void *contexto)
{
    (void)contexto;
    printf("   reported by %s, line %ld: \"%s\"\n", informe->ubicacion, (long)informe->linea,
           informe->expresion);
}

static void precondicion_rota(void)
{
    ARRAY *dobles = arr_CreaDouble(3);
    printf("5. reading position 99 of an array of 3 doubles:\n");
    arr_set_manejador_informes(muestra_informe, NULL);
    printf("   value read: %g, the array still has %lu elements\n", arr_GetDouble(dobles, 99),
           (unsigned long)arr_NumElemsDouble(dobles));
    arr_set_manejador_informes(NULL, NULL);
    arr_DestruyeDouble(&dobles);
    printf("   after destruction the handle is %s\n", dobles == NULL ? "NULL" : "still set");
}

static void publica(ARRAY *puntos, int espera)
{
    debugarr_ini_serializa(puntos, 42);
    printf("6. the polyline is published as the shared-memory block MemComp_ZarpTools_debugarr_42 "
           "(%lu points)\n",
           (unsigned long)debugarr_num_elems(puntos));
    if (espera) {
        printf("   look at it from another terminal:\n"
               "     arrays-visor show 42 --tipo punto2d | head\n"
               "     arrays-visor plot 42 --tipo punto2d -o polyline.svg\n"
               "   press Enter to close it\n");
        getchar();
    } else {
        printf("   (run the demo with --espera to keep it open for arrays-visor)\n");
    }
    debugarr_fin_serializa(42);
}

int main(int argc, char **argv)
{
    ARRAY *polilinea;
    printf("libarrays %s\n\n", ARRAYS_VERSION_STRING);
    inserciones();
    orden_y_busqueda();
    texto();
    polilinea = geometria();
    precondicion_rota();
    publica(polilinea, argc > 1 && strcmp(argv[1], "--espera") == 0);
    arr_DestruyePunto2D(&polilinea);
    return 0;
}
