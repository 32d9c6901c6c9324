// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/VerificaLote.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "batch/CorridaLote.h"
#include "batch/Lote.h"
#include "calibration/casos/Familias.h"
#include "checks/Verifica.h"
#include "frequency/casos/Familias.h"
#include "model/Falla.h"

namespace {

struct Respuesta {
    int estado = 0;
    std::string estandar{}, errores{};
};

Respuesta Lote(std::vector<const char*> palabras, bool seEscribe = true)
{
    palabras.insert(palabras.begin(), "siro-lote");
    Respuesta r;
    batch::Salidas salidas;
    salidas.Estandar = [&](std::string_view texto) {
        if (!seEscribe) throw model::Falla{model::NumeroFalla::AccesoRuta};
        r.estandar += texto;
    };
    salidas.Errores = [&](std::string_view texto) { r.errores += texto; };
    r.estado = batch::Lote(static_cast<int>(palabras.size()), palabras.data(), salidas);
    return r;
}

TEST(Verifica, MuestraElTextoOElJson)
{
    const std::vector<checks::Caso> casos =
        checks::Verifica({}, checks::Junta({frequency::Familias(), calibration::Familias()}));
    const Respuesta texto = Lote({"verifica"}), json = Lote({"verifica", "--json"});
    EXPECT_EQ(texto.estado, batch::EstadoCompleto);
    EXPECT_EQ(texto.estandar, checks::TextoDeVerifica(casos));
    EXPECT_EQ(texto.errores, "");
    EXPECT_EQ(json.estado, batch::EstadoCompleto);
    EXPECT_EQ(json.estandar, checks::JsonDeVerifica(casos));
}

TEST(Verifica, UnaPalabraDeMasEsUnError)
{
    const Respuesta r = Lote({"verifica", "--jason"});
    EXPECT_EQ(r.estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(r.estandar, "");
    EXPECT_TRUE(r.errores.starts_with("siro-lote: No se esperaba --jason\n\nUso: siro-lote verifica "))
        << r.errores;
}

TEST(Verifica, MuestraSuUso)
{
    for (const char* ayuda : {"--help", "-h", "--ayuda"}) {
        const Respuesta r = Lote({"verifica", ayuda});
        EXPECT_EQ(r.estado, batch::EstadoCompleto);
        EXPECT_TRUE(r.estandar.starts_with("Uso: siro-lote verifica [--json]\n")) << r.estandar;
    }
}

TEST(Verifica, LoQueNoSePuedeEscribirSeDice)
{
    const Respuesta r = Lote({"verifica"}, false);
    EXPECT_EQ(r.estado, batch::EstadoInterrumpido);
    EXPECT_EQ(r.errores, "siro-lote: no se puede escribir en la salida estándar\n");
}

TEST(Verifica, UnaPalabraParecidaEsUnError)
{
    EXPECT_EQ(Lote({"verificar"}).estado, batch::EstadoOrdenErronea);
    EXPECT_EQ(Lote({"verifica", "--pizarra"}).estado, batch::EstadoOrdenErronea);
}

}  // namespace
