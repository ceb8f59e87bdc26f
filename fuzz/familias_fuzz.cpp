// Coverage-guided runs of every kind of family against a plain C++ model: ULong, narrow and wide
// strings, owned structures behind typed pointers, 2D points, 2D points with private data and 3D
// points. The first byte chooses the family, the rest the operations: appends, inserts, deletes
// and sets at positions past the end too, reads, sorts by a total order and by a comparator that
// breaks its contract, searches, copies, concatenations, shrinks, and traversals, sorts and
// searches whose callbacks try to append to, delete from and destroy the array they walk. After
// every step the count, every element and the full consistency check must agree with the model;
// a refused step must leave the array as it was. Owned memory (strings, structures, private data)
// must all be released at the end, which LeakSanitizer sees.
#include "arrays.h"
#include "core/arrayprv.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace
{

constexpr ULONG MAXIMO = 3000;

ULONG64 informes = 0;
void cuenta(const arr_informe *, void *) { ++informes; }

// Steps checked against the model over the whole run, said when the run ends.
struct Pasos {
    ULONG64 total = 0;
    ~Pasos()
    {
        std::fprintf(stderr, "libarrays families fuzz: %llu operations checked\n",
                     static_cast<unsigned long long>(total));
    }
} pasos;

void exige(bool condicion, const char *que)
{
    if (!condicion) {
        std::fprintf(stderr, "libarrays families fuzz: %s\n", que);
        std::abort();
    }
}

// The array that hostile callbacks (which have no data pointer in every family) work on, and the
// state of the comparator that breaks its contract.
ARRAY *objetivo = nullptr;
uint32_t azar = 1;

// Hostile callbacks reach the array through this, which counts their calls: a sort compares
// elements of identical bytes without calling the comparator, so it may make none.
size_t llamadas_hostiles = 0;
ARRAY *contado()
{
    ++llamadas_hostiles;
    return objetivo;
}
int resultado_al_azar()
{
    azar = azar * 1103515245u + 12345u;
    return static_cast<int>((azar >> 16) % 3) - 1;
}

template <typename T> int orden_de(const T &a, const T &b) { return a < b ? -1 : (b < a ? 1 : 0); }

// ---- The families: each says how to make, change, read, sort and search its array ----------

struct ULong {
    using T = ULONG;
    static ARRAY *crea() { return arr_CreaULong(0); }
    static void destruye(ARRAY **a) { arr_DestruyeULong(a); }
    static ULONG num(ARRAY *a) { return arr_NumElemsULong(a); }
    static T valor(FuzzedDataProvider &d) { return d.ConsumeIntegralInRange<ULONG>(0, 40); }
    static void append(ARRAY *a, const T &v) { arr_AppendULong(a, v); }
    static void inserta(ARRAY *a, ULONG p, const T &v) { arr_InsertarULong(a, p, v); }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarULong(a, p); }
    static T get(ARRAY *a, ULONG p) { return arr_GetULong(a, p); }
    static void set(ARRAY *a, ULONG p, const T &v) { arr_SetULong(a, p, v); }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoULong(a, n); }
    static void ordena(ARRAY *a) { arr_QSortULong(a, nullptr); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortULong(a, [](ULONG, ULONG) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v)
    {
        return arr_BuscarULong(a, v, [](ULONG x, ULONG y) -> BOOL { return x == y; });
    }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaULong(a); }
    static void concatena(ARRAY *d, ARRAY *o) { arr_ConcatenaULong(d, o); }
    static void recorre_hostil(ARRAY *a)
    {
        arr_nousar_RecorreULong(
            a,
            [](ULONG *, void *) -> BOOL {
                arr_AppendULong(contado(), 1);
                arr_BorrarULong(contado(), 0);
                arr_DestruyeULong(&objetivo);
                return CIERTO;
            },
            nullptr, "fuzz", __LINE__);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortULong(a, [](ULONG x, ULONG y) {
            arr_AppendULong(contado(), 1);
            arr_DestruyeULong(&objetivo);
            return orden_de(x, y);
        });
    }
};

template <typename C> struct Cadena;
template <> struct Cadena<char> {
    using T = std::string;
    static ARRAY *crea() { return arr_CreaCADENA(0); }
    static void destruye(ARRAY **a) { arr_DestruyeCADENA(a); }
    static ULONG num(ARRAY *a) { return arr_NumElemsCADENA(a); }
    static T valor(FuzzedDataProvider &d)
    {
        return T(d.ConsumeIntegralInRange(0, 3),
                 static_cast<char>('a' + d.ConsumeIntegralInRange(0, 3)));
    }
    static void append(ARRAY *a, const T &v) { arr_AppendCADENA(a, v.c_str()); }
    static void inserta(ARRAY *a, ULONG p, const T &v) { arr_InsertarCADENA(a, p, v.c_str()); }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarCADENA(a, p); }
    static T get(ARRAY *a, ULONG p)
    {
        const char *c = arr_GetCADENA(a, p);
        return c != nullptr ? T(c) : T("<null>");
    }
    static void set(ARRAY *a, ULONG p, const T &v) { arr_SetCADENA(a, p, v.c_str()); }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoCADENA(a, n); }
    static void ordena(ARRAY *a) { arr_QSortCADENA(a, nullptr); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortCADENA(a, [](const char *, const char *) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v) { return arr_BuscarCADENA(a, v.c_str()); }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaCADENA(a); }
    static void concatena(ARRAY *d, ARRAY *o) { arr_ConcatenaCADENA(d, o); }
    static void recorre_hostil(ARRAY *a)
    {
        nousar_RecorreCADENA(
            a,
            [](char **, void *) -> BOOL {
                arr_AppendCADENA(contado(), "x");
                arr_BorrarCADENA(contado(), 0);
                arr_DestruyeCADENA(&objetivo);
                return CIERTO;
            },
            nullptr, "fuzz", __LINE__);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortCADENA(a, [](const char *x, const char *y) {
            arr_SetCADENA(contado(), 0, "zz");
            arr_BorrarCADENA(contado(), 0);
            return orden_de(std::string(x), std::string(y));
        });
    }
};
template <> struct Cadena<WCHAR> {
    using T = std::u16string;
    static ARRAY *crea() { return arr_CreaCADENA_u(0); }
    static void destruye(ARRAY **a) { arr_DestruyeCADENA_u(a); }
    static ULONG num(ARRAY *a) { return arr_NumElemsCADENA_u(a); }
    static T valor(FuzzedDataProvider &d)
    {
        return T(d.ConsumeIntegralInRange(0, 3),
                 static_cast<char16_t>(0xE0 + d.ConsumeIntegralInRange(0, 3)));
    }
    static void append(ARRAY *a, const T &v) { arr_AppendCADENA_u(a, v.c_str()); }
    static void inserta(ARRAY *a, ULONG p, const T &v) { arr_InsertarCADENA_u(a, p, v.c_str()); }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarCADENA_u(a, p); }
    static T get(ARRAY *a, ULONG p)
    {
        const WCHAR *c = arr_GetCADENA_u(a, p);
        return c != nullptr ? T(c) : T(u"<null>");
    }
    static void set(ARRAY *a, ULONG p, const T &v) { arr_SetCADENA_u(a, p, v.c_str()); }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoCADENA_u(a, n); }
    static void ordena(ARRAY *a) { arr_QSortCADENA_u(a, nullptr); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortCADENA_u(a, [](const WCHAR *, const WCHAR *) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v) { return arr_BuscarCADENA_u(a, v.c_str()); }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaCADENA_u(a); }
    static void concatena(ARRAY *d, ARRAY *o) { arr_ConcatenaCADENA_u(d, o); }
    static void recorre_hostil(ARRAY *a)
    {
        nousar_RecorreCADENA_u(
            a,
            [](WCHAR **, void *) -> BOOL {
                arr_AppendCADENA_u(contado(), u"x");
                arr_BorrarCADENA_u(contado(), 0);
                arr_DestruyeCADENA_u(&objetivo);
                return CIERTO;
            },
            nullptr, "fuzz", __LINE__);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortCADENA_u(a, [](const WCHAR *x, const WCHAR *y) {
            arr_SetCADENA_u(contado(), 0, u"zz");
            arr_BorrarCADENA_u(contado(), 0);
            return orden_de(std::u16string(x), std::u16string(y));
        });
    }
};

// Owned structures: each element points to an int of its own, freed by the array's release.
struct Estructura {
    using T = int;
    static int *nueva(int v) { return new int(v); }
    static void libera(void **e)
    {
        delete static_cast<int *>(*e);
        *e = nullptr;
    }
    static int de(const void *e) { return *static_cast<const int *>(e); }
    static ARRAY *crea() { return arr_CreaPunteroConTipo(0); }
    static void destruye(ARRAY **a) { arr_DestruyeEstructurasConTipo(a, libera); }
    static ULONG num(ARRAY *a)
    {
        return arrayprv_num_elems(a);
    } // the family's count is the shared one
    static T valor(FuzzedDataProvider &d) { return d.ConsumeIntegralInRange(-20, 20); }
    static void append(ARRAY *a, const T &v) { arr_AppendPunteroConTipo(a, nueva(v)); }
    static void inserta(ARRAY *a, ULONG p, const T &v)
    {
        int *e = nueva(v);
        const ULONG antes = num(a);
        arr_InsertarPunteroConTipo(a, p, e);
        if (num(a) == antes)
            delete e;
    }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarEstructuraConTipo(a, p, libera); }
    static T get(ARRAY *a, ULONG p)
    {
        const void *e = arr_GetPunteroConTipo(a, p);
        return e != nullptr ? de(e) : -1000;
    }
    static void set(ARRAY *a, ULONG p, const T &v)
    {
        void *vieja = arr_GetPunteroConTipo(a, p);
        if (vieja == nullptr)
            return;
        arr_SetPunteroConTipo(a, p, nueva(v));
        libera(&vieja);
    }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoEstructurasConTipo(a, n, libera); }
    static int compara(const void *x, const void *y) { return orden_de(de(x), de(y)); }
    static void ordena(ARRAY *a) { arr_QSortPunteroConTipo(a, compara); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortPunteroConTipo(a, [](const void *, const void *) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v)
    {
        return arr_BuscarEstructuraConTipo(
            a, &v, [](const void *e, const void *d) -> BOOL { return de(e) == de(d); });
    }
    static void *copia_de(const void *e) { return nueva(de(e)); }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaEstructurasConTipo(a, copia_de); }
    static void concatena(ARRAY *d, ARRAY *o)
    {
        arr_ConcatenaEstructurasConTipo(d, o, copia_de, "fuzz", __LINE__);
    }
    static void recorre_hostil(ARRAY *a)
    {
        arr_RecorrePunteroConTipo(a, [](void *) {
            arr_AppendPunteroConTipo(contado(), nullptr);
            arr_BorrarPuntero(contado(), 0);
            arr_DestruyeEstructurasConTipo(&objetivo, libera);
        });
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortPunteroConTipo(a, [](const void *x, const void *y) {
            arr_AppendPunteroConTipo(contado(), nullptr);
            arr_DestruyeEstructurasConTipo(&objetivo, libera);
            return compara(x, y);
        });
    }
};

struct Punto2D {
    using T = std::tuple<double, double>;
    static ARRAY *crea() { return arr_CreaPunto2D(0); }
    static void destruye(ARRAY **a) { arr_DestruyePunto2D(a); }
    static ULONG num(ARRAY *a) { return arr_NumElemsPunto2D(a); }
    static T valor(FuzzedDataProvider &d)
    {
        return {d.ConsumeIntegralInRange(-3, 3), d.ConsumeIntegralInRange(-3, 3)};
    }
    static void append(ARRAY *a, const T &v)
    {
        arr_AppendPunto2D(a, std::get<0>(v), std::get<1>(v));
    }
    static void inserta(ARRAY *a, ULONG p, const T &v)
    {
        arr_InsertarPunto2D(a, p, std::get<0>(v), std::get<1>(v));
    }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarPunto2D(a, p); }
    static T get(ARRAY *a, ULONG p)
    {
        double x = -99;
        double y = -99;
        arr_GetPunto2D(a, p, &x, &y);
        return {x, y};
    }
    static void set(ARRAY *a, ULONG p, const T &v)
    {
        arr_SetPunto2D(a, p, std::get<0>(v), std::get<1>(v));
    }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoPunto2D(a, n); }
    static int compara(double x1, double y1, double x2, double y2)
    {
        return orden_de(T{x1, y1}, T{x2, y2});
    }
    static void ordena(ARRAY *a) { arr_QSortPunto2D(a, compara); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortPunto2D(a, [](double, double, double, double) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v)
    {
        return arr_BuscarPunto2D(a, std::get<0>(v), std::get<1>(v),
                                 [](double x1, double y1, double x2, double y2) -> BOOL {
                                     return x1 == x2 && y1 == y2;
                                 });
    }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaPunto2D(a); }
    static void concatena(ARRAY *d, ARRAY *o) { arr_ConcatenaPunto2D(d, o); }
    static void recorre_hostil(ARRAY *a)
    {
        arr_nousar_RecorrePunto2D(
            a,
            [](double *, double *, void *) -> BOOL {
                arr_AppendPunto2D(contado(), 0, 0);
                arr_BorrarPunto2D(contado(), 0);
                arr_DestruyePunto2D(&objetivo);
                return CIERTO;
            },
            nullptr, "fuzz", __LINE__);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortPunto2D(a, [](double x1, double y1, double x2, double y2) {
            arr_AppendPunto2D(contado(), 0, 0);
            arr_DestruyePunto2D(&objetivo);
            return compara(x1, y1, x2, y2);
        });
    }
};

struct Punto3D {
    using T = std::tuple<double, double, double>;
    static ARRAY *crea() { return arr_CreaPunto3D(0); }
    static void destruye(ARRAY **a) { arr_DestruyePunto3D(a); }
    static ULONG num(ARRAY *a) { return arr_NumElemsPunto3D(a); }
    static T valor(FuzzedDataProvider &d)
    {
        return {d.ConsumeIntegralInRange(-2, 2), d.ConsumeIntegralInRange(-2, 2),
                d.ConsumeIntegralInRange(-2, 2)};
    }
    static void append(ARRAY *a, const T &v)
    {
        arr_AppendPunto3D(a, std::get<0>(v), std::get<1>(v), std::get<2>(v));
    }
    static void inserta(ARRAY *a, ULONG p, const T &v)
    {
        arr_InsertarPunto3D(a, p, std::get<0>(v), std::get<1>(v), std::get<2>(v));
    }
    static void borra(ARRAY *a, ULONG p) { arr_BorrarPunto3D(a, p); }
    static T get(ARRAY *a, ULONG p)
    {
        double x = -99;
        double y = -99;
        double z = -99;
        arr_GetPunto3D(a, p, &x, &y, &z);
        return {x, y, z};
    }
    static void set(ARRAY *a, ULONG p, const T &v)
    {
        arr_SetPunto3D(a, p, std::get<0>(v), std::get<1>(v), std::get<2>(v));
    }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoPunto3D(a, n); }
    static int compara(double x1, double y1, double z1, double x2, double y2, double z2)
    {
        return orden_de(T{x1, y1, z1}, T{x2, y2, z2});
    }
    static void ordena(ARRAY *a) { arr_QSortPunto3D(a, compara); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortPunto3D(
            a, [](double, double, double, double, double, double) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v)
    {
        return arr_BuscarPunto3D(
            a, std::get<0>(v), std::get<1>(v), std::get<2>(v),
            [](double x1, double y1, double z1, double x2, double y2, double z2) -> BOOL {
                return x1 == x2 && y1 == y2 && z1 == z2;
            });
    }
    static ARRAY *copia(ARRAY *a) { return arr_CopiaPunto3D(a); }
    static void concatena(ARRAY *d, ARRAY *o) { arr_ConcatenaPunto3D(d, o); }
    static void recorre_hostil(ARRAY *a)
    {
        arr_nousar_RecorrePunto3D(
            a,
            [](double *, double *, double *, void *) -> BOOL {
                arr_AppendPunto3D(contado(), 0, 0, 0);
                arr_BorrarPunto3D(contado(), 0);
                arr_DestruyePunto3D(&objetivo);
                return CIERTO;
            },
            nullptr, "fuzz", __LINE__);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortPunto3D(a, [](double x1, double y1, double z1, double x2, double y2, double z2) {
            arr_AppendPunto3D(contado(), 0, 0, 0);
            arr_DestruyePunto3D(&objetivo);
            return compara(x1, y1, z1, x2, y2, z2);
        });
    }
};

// 2D points whose private data is an int of their own (or none), released by the destroy
// function; the model keeps the int's value (-1000 for none).
struct Punto2DXPriv {
    using T = std::tuple<double, double, int>;
    static void *dato(int v) { return v == -1000 ? nullptr : new int(v); }
    static int valor_de(const void *d)
    {
        return d == nullptr ? -1000 : *static_cast<const int *>(d);
    }
    static void libera(void **d)
    {
        delete static_cast<int *>(*d);
        *d = nullptr;
    }
    static ARRAY *crea() { return arr_CreaPunto2DXPriv(0); }
    static void destruye(ARRAY **a) { arr_DestruyePunto2DXPriv(a, libera); }
    static ULONG num(ARRAY *a) { return arr_NumElemsPunto2D(a); }
    static T valor(FuzzedDataProvider &d)
    {
        const int v = d.ConsumeIntegralInRange(-3, 3);
        return {d.ConsumeIntegralInRange(-3, 3), d.ConsumeIntegralInRange(-3, 3),
                v == 3 ? -1000 : v};
    }
    static void append(ARRAY *a, const T &v)
    {
        arr_AppendPunto2DXPriv(a, std::get<0>(v), std::get<1>(v), dato(std::get<2>(v)));
    }
    static void inserta(ARRAY *a, ULONG p, const T &v)
    {
        void *d = dato(std::get<2>(v));
        const ULONG antes = num(a);
        arr_InsertarPunto2DXPriv(a, p, std::get<0>(v), std::get<1>(v), d);
        if (num(a) == antes)
            libera(&d);
    }
    static void borra(ARRAY *a, ULONG p)
    {
        double x = 0;
        double y = 0;
        void *d = nullptr;
        arr_GetPunto2DXPriv(a, p, &x, &y, &d);
        const ULONG antes = num(a);
        arr_BorrarPunto2DXPriv(a, p);
        if (num(a) < antes)
            libera(&d);
    }
    static T get(ARRAY *a, ULONG p)
    {
        double x = -99;
        double y = -99;
        void *d = nullptr;
        arr_GetPunto2DXPriv(a, p, &x, &y, &d);
        return {x, y, valor_de(d)};
    }
    static void set(ARRAY *a, ULONG p, const T &v)
    {
        if (p >= num(a)) {
            arr_SetPunto2DXPriv(a, p, std::get<0>(v), std::get<1>(v), nullptr);
            return;
        }
        double x = 0;
        double y = 0;
        void *viejo = nullptr;
        arr_GetPunto2DXPriv(a, p, &x, &y, &viejo);
        arr_SetPunto2DXPriv(a, p, std::get<0>(v), std::get<1>(v), dato(std::get<2>(v)));
        libera(&viejo);
    }
    static void reduce(ARRAY *a, ULONG n) { arr_ReduceTamanyoPunto2DXPriv(a, n, libera); }
    static int compara(double x1, double y1, void *d1, double x2, double y2, void *d2)
    {
        return orden_de(T{x1, y1, valor_de(d1)}, T{x2, y2, valor_de(d2)});
    }
    static void ordena(ARRAY *a) { arr_QSortPunto2DXPriv(a, compara); }
    static void ordena_roto(ARRAY *a)
    {
        arr_QSortPunto2DXPriv(
            a, [](double, double, void *, double, double, void *) { return resultado_al_azar(); });
    }
    static ULONG busca(ARRAY *a, const T &v)
    {
        const int buscado = std::get<2>(v);
        return arr_BuscarPunto2DXPriv(
            a, std::get<0>(v), std::get<1>(v), const_cast<int *>(&buscado),
            [](double x1, double y1, void *d1, double x2, double y2, void *d2) -> BOOL {
                return x1 == x2 && y1 == y2 && valor_de(d1) == *static_cast<int *>(d2);
            });
    }
    static void *copia_de(void *d) { return d == nullptr ? nullptr : new int(valor_de(d)); }
    static ARRAY *copia(ARRAY *a)
    {
        return arr_CopiaPunto2DXPriv_nousar(a, copia_de, "fuzz", __LINE__);
    }
    static void concatena(ARRAY *d, ARRAY *o)
    {
        arr_ConcatenaPunto2DXPriv_nousar(d, o, copia_de, "fuzz", __LINE__);
    }
    static void recorre_hostil(ARRAY *a)
    {
        arr_RecorrePunto2DXPriv(
            a,
            [](double *, double *, void **, void *) -> BOOL {
                arr_AppendPunto2DXPriv(contado(), 0, 0, nullptr);
                arr_BorrarPunto2D(contado(), 0);
                arr_DestruyePunto2DXPriv(&objetivo, libera);
                return CIERTO;
            },
            nullptr);
    }
    static void ordena_hostil(ARRAY *a)
    {
        arr_QSortPunto2DXPriv(a,
                              [](double x1, double y1, void *d1, double x2, double y2, void *d2) {
                                  arr_AppendPunto2DXPriv(contado(), 0, 0, nullptr);
                                  arr_DestruyePunto2DXPriv(&objetivo, libera);
                                  return compara(x1, y1, d1, x2, y2, d2);
                              });
    }
};

// ---- One family against its model ------------------------------------------------------------

template <typename F> class Prueba
{
public:
    using T = typename F::T;
    explicit Prueba(FuzzedDataProvider &datos) : datos_(datos), array_(F::crea()) {}
    ~Prueba() { F::destruye(&array_); }
    Prueba(const Prueba &) = delete;
    Prueba &operator=(const Prueba &) = delete;

    void paso()
    {
        switch (datos_.ConsumeIntegralInRange(0, 11)) {
        case 0:
            anyade();
            break;
        case 1:
            inserta();
            break;
        case 2:
            borra();
            break;
        case 3:
            escribe();
            break;
        case 4:
            reduce();
            break;
        case 5:
            ordena();
            break;
        case 6:
            ordena_roto();
            break;
        case 7:
            busca();
            break;
        case 8:
            copia_y_concatena();
            break;
        case 9:
            hostil([] { F::recorre_hostil(objetivo); }, false);
            break;
        case 10:
            hostil([] { F::ordena_hostil(objetivo); }, true);
            break;
        default:
            anyade_varios();
            break;
        }
        comprueba();
        ++pasos.total;
    }

private:
    ULONG num() const { return static_cast<ULONG>(modelo_.size()); }
    ULONG posicion(ULONG mas) { return datos_.ConsumeIntegralInRange<ULONG>(0, num() + mas - 1); }

    // Count, every element and the full check, which must report nothing.
    void comprueba()
    {
        exige(F::num(array_) == num(), "count");
        const ULONG64 antes = informes;
        for (ULONG i = 0; i < num(); ++i)
            exige(F::get(array_, i) == modelo_[i], "element");
        arrayprv_comprueba_array(array_, 1);
        exige(informes == antes, "consistency check");
    }

    void anyade()
    {
        if (num() < MAXIMO) {
            const T v = F::valor(datos_);
            F::append(array_, v);
            modelo_.push_back(v);
        }
    }

    void anyade_varios()
    {
        for (int i = datos_.ConsumeIntegralInRange(0, 600); i > 0; --i)
            anyade();
    }

    void inserta()
    {
        if (num() >= MAXIMO)
            return;
        const ULONG pos = posicion(2);
        const T v = F::valor(datos_);
        F::inserta(array_, pos, v);
        if (pos <= num())
            modelo_.insert(modelo_.begin() + pos, v);
    }

    void borra()
    {
        const ULONG pos = posicion(1);
        F::borra(array_, pos);
        if (pos < num())
            modelo_.erase(modelo_.begin() + pos);
    }

    void escribe()
    {
        const ULONG pos = posicion(1);
        const T v = F::valor(datos_);
        F::set(array_, pos, v);
        if (pos < num())
            modelo_[pos] = v;
    }

    void reduce()
    {
        const ULONG nuevo = datos_.ConsumeIntegralInRange<ULONG>(0, num());
        F::reduce(array_, nuevo);
        modelo_.resize(nuevo);
    }

    void ordena()
    {
        F::ordena(array_);
        std::sort(modelo_.begin(), modelo_.end());
    }

    // A comparator that answers at random: the elements stay the same, in some order.
    void ordena_roto()
    {
        azar = datos_.ConsumeIntegral<uint32_t>();
        F::ordena_roto(array_);
        std::vector<T> ahora;
        for (ULONG i = 0; i < num(); ++i)
            ahora.push_back(F::get(array_, i));
        std::vector<T> mismos = ahora;
        std::sort(mismos.begin(), mismos.end());
        std::sort(modelo_.begin(), modelo_.end());
        exige(mismos == modelo_, "elements after a broken comparator");
        modelo_ = std::move(ahora);
    }

    void busca()
    {
        const T v = F::valor(datos_);
        const auto donde = std::find(modelo_.begin(), modelo_.end(), v);
        const ULONG esperada =
            donde == modelo_.end() ? ARR_ULONG_MAX : static_cast<ULONG>(donde - modelo_.begin());
        exige(F::busca(array_, v) == esperada, "search");
    }

    void copia_y_concatena()
    {
        ARRAY *copia = F::copia(array_);
        exige(F::num(copia) == num(), "copy count");
        for (ULONG i = 0; i < num(); ++i)
            exige(F::get(copia, i) == modelo_[i], "copy element");
        if (2 * num() <= MAXIMO) {
            F::concatena(array_, copia);
            const std::vector<T> doble = modelo_;
            modelo_.insert(modelo_.end(), doble.begin(), doble.end());
        }
        F::destruye(&copia);
    }

    // Callbacks that try to append to, delete from and destroy the array they walk: every try is
    // reported and refused, and the array is left as it was (sorted, for a sort).
    template <typename Operacion> void hostil(Operacion &&operacion, bool ordena)
    {
        objetivo = array_;
        llamadas_hostiles = 0;
        const ULONG64 antes = informes;
        operacion();
        exige(objetivo == array_, "handle after a refused destroy");
        exige(informes - antes >= llamadas_hostiles, "reports of the hostile callbacks");
        informes = antes;
        objetivo = nullptr;
        if (ordena)
            std::sort(modelo_.begin(), modelo_.end());
    }

    FuzzedDataProvider &datos_;
    ARRAY *array_;
    std::vector<T> modelo_;
};

template <typename F> void prueba(FuzzedDataProvider &datos)
{
    Prueba<F> prueba(datos);
    while (datos.remaining_bytes() > 0)
        prueba.paso();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t tamanyo)
{
    arr_set_manejador_informes(cuenta, nullptr);
    FuzzedDataProvider datos(bytes, tamanyo);
    switch (datos.ConsumeIntegralInRange(0, 6)) {
    case 0:
        prueba<ULong>(datos);
        break;
    case 1:
        prueba<Cadena<char>>(datos);
        break;
    case 2:
        prueba<Cadena<WCHAR>>(datos);
        break;
    case 3:
        prueba<Estructura>(datos);
        break;
    case 4:
        prueba<Punto2D>(datos);
        break;
    case 5:
        prueba<Punto3D>(datos);
        break;
    default:
        prueba<Punto2DXPriv>(datos);
        break;
    }
    return 0;
}
