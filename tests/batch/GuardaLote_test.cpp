// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/GuardaLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "batch/Lote.h"
#include "batch/ProyectoDePrueba.h"
#include "runs/CorridaGuardada.h"
#include "runs/LibroDeCorridas.h"

namespace batch {
namespace {

/// The order on the command line, and what it wrote.
struct Lotes {
    int Corre(std::vector<const char*> palabras)
    {
        estandar.clear();
        errores.clear();
        palabras.insert(palabras.begin(), "siro-lote");
        return Lote(static_cast<int>(palabras.size()), palabras.data(),
                    {[this](std::string_view t) { estandar += t; },
                     [this](std::string_view t) { errores += t; }, false});
    }
    prueba::ProyectoDePrueba p{};
    std::string conf = p.Conf(), estandar{}, errores{};
    [[nodiscard]] std::vector<runs::RenglonDeLibro> Filas() const
    {
        return runs::ListaDe({.dirProyecto = p.Dir(), .proyecto = "Mio"});
    }
};

TEST(GuardaLote, UnaDejaSuFilaYEscribeLoMismoQueSinGuardar)
{
    Lotes l;
    EXPECT_EQ(l.Corre({"una", l.conf.c_str(), "--trabajo", l.p.Dir().c_str(), "--avisos"}), 0);
    const std::string sin = l.estandar;
    EXPECT_TRUE(l.Filas().empty());
    EXPECT_EQ(
        l.Corre({"una", l.conf.c_str(), "--trabajo", l.p.Dir().c_str(), "--avisos", "--guarda", "Sin presa"}),
        0);
    EXPECT_EQ(l.estandar, sin);
    const auto filas = l.Filas();
    ASSERT_EQ(filas.size(), 1U);
    EXPECT_EQ(filas[0].ficha.nombre, "Sin presa");
    EXPECT_EQ(filas[0].ficha.quien, "Operadora");
    // The Lago's outflow stays what it is at the start.
    ASSERT_EQ(filas[0].ficha.salidas.size(), 1U);
    EXPECT_EQ(filas[0].ficha.salidas[0], (study::PicoDeSalida{"l-1", 2.5, 0, ""}));
    EXPECT_NE(sin.find("\nhuella " + filas[0].ficha.huella), std::string::npos);
    const runs::Rehecha otra = runs::Rehace({.dirProyecto = l.p.Dir(), .proyecto = "Mio"}, filas[0].archivo);
    ASSERT_NE(otra.corrida, nullptr) << otra.reparo;
    EXPECT_EQ(otra.aviso, "");
    EXPECT_EQ(otra.corrida->huella, filas[0].ficha.huella);
}

TEST(GuardaLote, UnaCorridaDetenidaNoDejaFila)
{
    Lotes l;
    l.p.Cambia("Mio_UEHs.vlm", "\"u-1\"\r\n100\r\n", "\"u-1\"\r\n0\r\n");
    EXPECT_EQ(l.Corre({"una", l.conf.c_str(), "--trabajo", l.p.Dir().c_str(), "--guarda", "x"}), 1);
    EXPECT_TRUE(l.Filas().empty());
}

TEST(GuardaLote, LoQueNoSePuedeEscribirEsEstadoUno)
{
    Lotes l;
    l.p.Escribe("Mio_corridas", "un archivo con ese nombre");
    EXPECT_EQ(l.Corre({"una", l.conf.c_str(), "--trabajo", l.p.Dir().c_str(), "--guarda", "x"}), 1);
    EXPECT_NE(l.errores.find("siro-lote: la corrida no se pudo guardar en "), std::string::npos) << l.errores;
}

TEST(GuardaLote, CorridasListaEnTextoJsonYCsv)
{
    Lotes l;
    for (const char* const nombre : {"a", "b"})
        EXPECT_EQ(l.Corre({"una", l.conf.c_str(), "--trabajo", l.p.Dir().c_str(), "--guarda", nombre}), 0);
    l.p.Escribe("Mio_corridas/leeme.txt", "notas");
    EXPECT_EQ(l.Corre({"corridas", l.conf.c_str()}), 0);
    EXPECT_NE(
        l.estandar.find("  una  b\n    Tormenta: P 60 mm, D 60 min, intensidad constante, pasos 10/10 min\n"
                        "    l-1: 2.5 m3/s a los 0 min\n"),
        std::string::npos)
        << l.estandar;
    EXPECT_NE(l.estandar.find("leeme.txt: El archivo no es una corrida guardada.\n"), std::string::npos);
    EXPECT_EQ(l.Corre({"corridas", l.conf.c_str(), "--csv"}), 0);
    EXPECT_EQ(std::count(l.estandar.begin(), l.estandar.end(), '\n'), 4);
    EXPECT_NE(l.estandar.find(",una,b,0,"), std::string::npos) << l.estandar;
    EXPECT_EQ(l.Corre({"corridas", l.conf.c_str(), "--json"}), 0);
    EXPECT_TRUE(l.estandar.starts_with("[\n{\"archivo\": \"")) << l.estandar;
    EXPECT_NE(l.estandar.find("\"nombre\": \"a\""), std::string::npos);
    EXPECT_TRUE(l.estandar.ends_with("}\n]\n"));
}

TEST(GuardaLote, LaLineaDeOrdenesErroneaSeDice)
{
    Lotes l;
    EXPECT_EQ(l.Corre({"una", l.conf.c_str(), "--guarda", ""}), 2);
    EXPECT_EQ(l.Corre({"revisa", l.conf.c_str(), "--guarda", "x"}), 2);
    EXPECT_EQ(l.Corre({"corridas", "x.vlm"}), 2);
    EXPECT_EQ(l.Corre({"corridas", l.conf.c_str(), "--json", "--csv"}), 2);
    EXPECT_EQ(l.Corre({"conjunto", l.conf.c_str(), "--guarda", "x", "--parte", "1/2", "--parcial", "y"}), 2);
    const std::string otro = l.p.Ruta("Otro_Conf.vlm");
    EXPECT_EQ(l.Corre({"corridas", otro.c_str()}), 1);
}

}  // namespace
}  // namespace batch
