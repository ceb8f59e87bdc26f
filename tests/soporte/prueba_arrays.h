// Test support: a report handler that captures every report, and a fixture that installs it and
// proves at the end of each test that the tracked memory is back where it started.
#pragma once

#include "arrays.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

struct InformeCapturado {
    int clase;
    std::string expresion;
    std::string ubicacion;
    LONG linea;
    std::string ubicacion_origen;
    LONG linea_origen;
};

// Installs itself as the report handler for its lifetime and records every report.
class CapturaInformes {
public:
    CapturaInformes();
    ~CapturaInformes();
    CapturaInformes(const CapturaInformes &) = delete;
    CapturaInformes &operator=(const CapturaInformes &) = delete;

    // The expression texts reported so far, in order.
    std::vector<std::string> textos() const;
    const std::vector<InformeCapturado> &informes() const { return informes_; }
    // The texts reported so far, forgetting them.
    std::vector<std::string> toma();
    void limpia() { informes_.clear(); }

private:
    static void captura(const arr_informe *informe, void *contexto);
    std::vector<InformeCapturado> informes_;
    arr_manejador_informes anterior_;
};

// Every test starts with a capturing handler and ends with no report left unchecked and no
// memory left allocated.
class PruebaArrays : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The texts reported since the last call, forgetting them.
    std::vector<std::string> informes() { return captura_.toma(); }
    const std::vector<InformeCapturado> &informes_completos() const { return captura_.informes(); }

private:
    CapturaInformes captura_;
    size_t bloques_al_empezar_ = 0;
    size_t bytes_al_empezar_ = 0;
};

using Textos = std::vector<std::string>;
