// Test support: report capture and the tracked-memory balance of each test.
#include "soporte/prueba_arrays.h"

#include "services/memoria.h"

CapturaInformes::CapturaInformes() : anterior_(arr_set_manejador_informes(captura, this)) {}

CapturaInformes::~CapturaInformes() { arr_set_manejador_informes(anterior_, nullptr); }

void CapturaInformes::captura(const arr_informe *informe, void *contexto)
{
    auto *yo = static_cast<CapturaInformes *>(contexto);
    yo->informes_.push_back({informe->clase, informe->expresion, informe->ubicacion, informe->linea,
                             informe->ubicacion_origen != nullptr ? informe->ubicacion_origen : "",
                             informe->linea_origen});
}

std::vector<std::string> CapturaInformes::textos() const
{
    std::vector<std::string> textos;
    for (const InformeCapturado &informe : informes_)
        textos.push_back(informe.expresion);
    return textos;
}

std::vector<std::string> CapturaInformes::toma()
{
    std::vector<std::string> tomados = textos();
    informes_.clear();
    return tomados;
}

void PruebaArrays::SetUp()
{
    bloques_al_empezar_ = zarpspy_bloques_vivos();
    bytes_al_empezar_ = zarpspy_bytes_vivos();
}

void PruebaArrays::TearDown()
{
    EXPECT_EQ(captura_.textos(), Textos{}) << "reports that the test did not check";
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques_al_empezar_) << "blocks left allocated";
    EXPECT_EQ(zarpspy_bytes_vivos(), bytes_al_empezar_) << "bytes left allocated";
}
