// Plane transforms of the two 2D point families, applied to every point by a writing traversal:
// the records handed to the traversal as its context, the callbacks that apply one record to one
// point, and the bodies of the exports. The families differ only in their reporting module, the
// texts that name the records, and the sense of their rotation primitive.
#pragma once

#include "points/familia_punto.h"
#include "services/informes.h"
#include "services/matematicas.h"

#include <cmath>

struct Traslacion {
    double dx;
    double dy;
};
struct Escalado {
    double factor;
};
// The angle is given by its cosine and sine; the centre stays in place.
struct Rotacion {
    double xc;
    double yc;
    double coseno;
    double seno;
};

template <tipo_elem_array TAG> struct EstiloTransformacion;

template <> struct EstiloTransformacion<elem_PUNTO2D_NO_USAR> {
    static constexpr const char *texto_traslacion = "(desp) != NULL";
    static constexpr const char *texto_escalado = "(mult_ptr) != NULL";
    // The rotation primitive turns clockwise: the record's sine goes to the math service as it is.
    static constexpr double signo_seno = 1.0;
};

template <> struct EstiloTransformacion<elem_PUNTO2DX_NO_USAR> {
    static constexpr const char *texto_traslacion = "(desp_ptr) != NULL";
    static constexpr const char *texto_escalado = "(mul_ptr) != NULL";
    // The rotation primitive turns counter-clockwise: the sine is negated for the clockwise
    // service.
    static constexpr double signo_seno = -1.0;
};

// A point callback in the shape of the private-data traversal, which leaves the data alone.
template <BOOL (*F)(double *, double *, void *)>
BOOL sin_tocar_datos(double *x, double *y, void **, void *registro)
{
    return F(x, y, registro);
}

template <tipo_elem_array TAG> struct Transformacion {
    using E = EstiloTransformacion<TAG>;
    static constexpr const char *UBICACION = Escalar<TAG>::UBICACION;
    // Angles up to this magnitude are taken as no rotation at all.
    static constexpr double ANGULO_DESPRECIABLE = 1e-5;

    // x += dx, y += dy.
    static BOOL traslada(double *x, double *y, void *desp)
    {
        if (!todas({ARR_EXIGE(x != nullptr, "(x) != NULL"), ARR_EXIGE(y != nullptr, "(y) != NULL"),
                    ARR_EXIGE(desp != nullptr, E::texto_traslacion)}))
            return FALSO;
        const auto *t = static_cast<const Traslacion *>(desp);
        *x += t->dx;
        *y += t->dy;
        return CIERTO;
    }

    // Both coordinates times one factor.
    static BOOL escala(double *x, double *y, void *mult)
    {
        if (!todas({ARR_EXIGE(x != nullptr, "(x) != NULL"), ARR_EXIGE(y != nullptr, "(y) != NULL"),
                    ARR_EXIGE(mult != nullptr, E::texto_escalado)}))
            return FALSO;
        const double factor = static_cast<const Escalado *>(mult)->factor;
        *x *= factor;
        *y *= factor;
        return CIERTO;
    }

    // The point turned about the record's centre, in the family's sense.
    static BOOL gira(double *px, double *py, void *d)
    {
        if (!todas({ARR_EXIGE(px != nullptr, "(px) != NULL"),
                    ARR_EXIGE(py != nullptr, "(py) != NULL"),
                    ARR_EXIGE(d != nullptr, "(d) != NULL")}))
            return FALSO;
        const auto *r = static_cast<const Rotacion *>(d);
        mt_gira_xy_sentido_horario(*px - r->xc, *py - r->yc, r->coseno, E::signo_seno * r->seno, px,
                                   py);
        *px += r->xc;
        *py += r->yc;
        return CIERTO;
    }

    static void mueve(ARRAY *array, double dx, double dy)
    {
        Traslacion traslacion{dx, dy};
        aplica<traslada>(array, &traslacion);
    }

    static void multiplica(ARRAY *array, double factor)
    {
        Escalado escalado{factor};
        aplica<escala>(array, &escalado);
    }

    static void gira_seno_coseno(ARRAY *array, double xc, double yc, double seno, double coseno)
    {
        Rotacion rotacion{xc, yc, coseno, seno};
        aplica<gira>(array, &rotacion);
    }

    // Counter-clockwise by a positive angle in both families: the sine handed to the family's
    // primitive is chosen so that the math service receives -sin(angulo).
    static void gira_angulo(ARRAY *array, double xc, double yc, double angulo)
    {
        if (std::fabs(angulo) > ANGULO_DESPRECIABLE)
            gira_seno_coseno(array, xc, yc, -E::signo_seno * std::sin(angulo), std::cos(angulo));
    }

private:
    template <BOOL (*F)(double *, double *, void *)>
    static void aplica(ARRAY *array, void *registro)
    {
        if constexpr (TAG == elem_PUNTO2D_NO_USAR)
            FamiliaPunto<TAG>::recorre(array, F, registro, UBICACION, __LINE__);
        else
            FamiliaPunto<TAG>::recorre(array, sin_tocar_datos<F>, registro, UBICACION, __LINE__);
    }
};
