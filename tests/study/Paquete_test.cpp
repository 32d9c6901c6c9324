// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Paquete.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "model/Falla.h"

namespace {

using study::Desempaqueta;
using study::Empaqueta;
using study::Pieza;

/// The note of the fault with which a package is refused; empty where it is taken.
std::string Rechazo(std::string_view paquete)
{
    try {
        Desempaqueta(paquete);
        return {};
    } catch (const model::Falla& falla) {
        EXPECT_EQ(falla.numero, model::NumeroFalla::AccesoRuta);
        return std::string(falla.nota);
    }
}

std::string Repite(std::string_view texto, int veces)
{
    std::string todo;
    for (int i = 0; i < veces; ++i)
        todo += texto;
    return todo;
}

const std::vector<Pieza> Muestra{{"mimetype", "application/vnd.oasis.opendocument.text", false},
                                 {"carpeta/Ñandú (año 1).txt", Repite("hidrograma ", 1000)},
                                 {"vacía", ""}};

TEST(ElPaquete, DevuelveSusPiezasEnOrden)
{
    const std::string paquete = Empaqueta(Muestra);
    EXPECT_LT(paquete.size(), 1000U);
    const std::vector<Pieza> vuelta = Desempaqueta(paquete);
    ASSERT_EQ(vuelta.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(vuelta[i].nombre, Muestra[i].nombre);
        EXPECT_EQ(vuelta[i].bytes, Muestra[i].bytes);
    }
}

TEST(ElPaquete, DejaLaPrimeraPiezaDondeUnLectorDeDocumentosLaBusca)
{
    // OpenDocument 1.3, part 2, 3.3: the type starts at byte 38, after the name of the first file.
    const std::string paquete = Empaqueta(Muestra);
    EXPECT_EQ(paquete.substr(0, 4), "PK\x03\x04");
    EXPECT_EQ(paquete.substr(30, 8), "mimetype");
    EXPECT_EQ(paquete.substr(38, Muestra[0].bytes.size()), Muestra[0].bytes);
}

TEST(ElPaquete, TieneLosMismosBytesCadaVez)
{
    EXPECT_EQ(Empaqueta(Muestra), Empaqueta(Muestra));
}

TEST(ElPaquete, CortadoSeRechaza)
{
    const std::string paquete = Empaqueta(Muestra);
    for (std::size_t n = 0; n < paquete.size(); ++n)
        EXPECT_NE(Rechazo(paquete.substr(0, n)), "") << n;
}

TEST(ElPaquete, DanadoSeRechazaODaLoMismo)
{
    const std::string entero = Empaqueta(Muestra);
    int rechazados = 0;
    for (std::size_t n = 0; n < entero.size(); ++n) {
        std::string paquete = entero;
        paquete[n] = static_cast<char>(paquete[n] ^ 0x20);
        if (!Rechazo(paquete).empty()) {
            ++rechazados;
            continue;
        }
        // Where nobody looks, a date for one; a name can't be told to be another.
        const std::vector<Pieza> vuelta = Desempaqueta(paquete);
        for (std::size_t i = 0; i < vuelta.size(); ++i)
            EXPECT_EQ(vuelta[i].bytes, Muestra[i].bytes) << n;
    }
    EXPECT_GT(rechazados, static_cast<int>(entero.size()) / 3);
}

TEST(ElPaquete, QueCreceDemasiadoSeRechaza)
{
    const std::string paquete =
        Empaqueta({{"a", std::string(study::TopeDesempaquetado, ' ')}, {"b", "uno de más"}});
    EXPECT_LT(paquete.size(), std::size_t{1} << 20);
    EXPECT_EQ(Rechazo(paquete), "El paquete es demasiado grande: contiene más de 64 MiB.");
    EXPECT_EQ(Rechazo("Título;Valor\n"), "No es un paquete, o está dañado.");
}

RC_GTEST_PROP(ElPaquete, VuelveEntero, (const std::vector<std::string>& contenidos))
{
    std::vector<Pieza> piezas{{"primera", "x"}};
    for (const std::string& bytes : contenidos)
        piezas.push_back({std::to_string(piezas.size()), bytes, piezas.size() % 2 == 0});
    const std::vector<Pieza> vuelta = Desempaqueta(Empaqueta(piezas));
    RC_ASSERT(vuelta.size() == piezas.size());
    for (std::size_t i = 0; i < piezas.size(); ++i)
        RC_ASSERT(vuelta[i].bytes == piezas[i].bytes);
}

}  // namespace
