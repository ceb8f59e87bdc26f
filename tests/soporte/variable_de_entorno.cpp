// An environment variable set for the life of an object, on any platform.
#include "soporte/sistema.h"

VariableDeEntorno::VariableDeEntorno(const char *nombre, const char *valor)
    : nombre_(nombre), previo_(lee_variable(nombre))
{
    if (valor != nullptr)
        pon_variable(nombre, valor);
    else
        quita_variable(nombre);
}

VariableDeEntorno::~VariableDeEntorno()
{
    if (previo_)
        pon_variable(nombre_, previo_->c_str());
    else
        quita_variable(nombre_);
}
