// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCorridas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

namespace runs {
namespace {

using Textos = std::vector<std::string>;

/// A ledger of three: "a" of a storm, "b" of a series with two outfalls, "c" of a set.
struct LasCorridas : ::testing::Test {
    LasCorridas()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        libro.disco = disco.Puerta();
        libro.puntas = model::PuntasPorEntero(libro.disco);
        libro.ahora = [reloj = std::int64_t{1'795'442'709'123}]() mutable { return reloj += 1000; };
        Guarda({.clase = "una",
                .tormenta = "Tormenta: P 60 mm",
                .salidas = {{"c-1", 12.5, 70, ""}},
                .errores = 1,
                .avisos = 2,
                .segundos = 0.126,
                .nombre = "a",
                .nota = "Cuenca húmeda"});
        Guarda({.clase = "serie",
                .salidas = {{"c-1", 2, {}, "P 1 mm"}, {"c-2", 3.25, {}, "P 9 mm"}},
                .nombre = "b"});
        Guarda({.clase = "conjunto", .resumen = "500 miembros.", .nombre = "c"});
        Pon(f, libro, ListaDe(libro));
    }
    void Guarda(study::Ficha ficha)
    {
        ficha.proyecto = "P";
        runs::Guarda(libro, {.ficha = std::move(ficha), .piezas = {{"proyecto/P_Conf.vlm", "bytes"}}});
    }
    Textos Columna(std::size_t columna) const
    {
        Textos celdas;
        for (const std::size_t fila : f.tblCorridas.mostradas)
            celdas.push_back(f.tblCorridas.planilla.filas[fila][columna]);
        return celdas;
    }
    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    Libro libro{.dirProyecto = "/proy", .proyecto = "P"};
    dlgCorridas f{};
};

TEST_F(LasCorridas, LasColumnasDicenLoDeCadaUna)
{
    EXPECT_EQ(Columna(1), (Textos{"c", "b", "a"}));
    EXPECT_EQ(Columna(3), (Textos{"conjunto", "serie", "una"}));
    EXPECT_EQ(Columna(4), (Textos{"500 miembros.", "", "Tormenta: P 60 mm"}));
    EXPECT_EQ(Columna(5), (Textos{"", "c-2", "c-1"}));  // the outfall with the greatest peak
    EXPECT_EQ(Columna(6), (Textos{"", "3.25", "12.5"}));
    EXPECT_EQ(Columna(7), (Textos{"", "", "70"}));
    EXPECT_EQ(Columna(8), (Textos{"", "", "1 error, 2 avisos"}));
    EXPECT_EQ(Columna(9), (Textos{"0", "0", "0.13"}));
    EXPECT_TRUE(f.lblOcupado.ends_with("KiB en 3 corridas.")) << f.lblOcupado;
    EXPECT_EQ(f.lblQueHacer, "");
}

TEST_F(LasCorridas, BuscaPalabrasSinAcentosNiMayusculas)
{
    f.txtFiltro = "HUMEDA cuenca ";
    txtFiltro_Cambia(f);
    EXPECT_EQ(Columna(1), Textos{"a"});
    f.txtFiltro = "cuenca 500";
    txtFiltro_Cambia(f);
    EXPECT_TRUE(Columna(1).empty());
    EXPECT_EQ(f.lblQueHacer, "Ninguna corrida tiene esas palabras.");
    f.txtFiltro = "";
    txtFiltro_Cambia(f);
    EXPECT_EQ(Columna(1).size(), 3U);
}

TEST_F(LasCorridas, LaElegidaSigueSiendoLaMismaCuandoLlegaOtra)
{
    AlMoverse(f, 2);
    EXPECT_EQ(f.txtNota, "Cuenca húmeda");
    f.txtNombre = "a medio escribir";
    Guarda({.clase = "una", .nombre = "d"});
    Pon(f, libro, ListaDe(libro));
    EXPECT_EQ(f.txtNombre, "a medio escribir");
    EXPECT_EQ(Columna(1), (Textos{"d", "c", "b", "a"}));
    txtNombre_AlSalir(f);
    EXPECT_EQ(Columna(1), (Textos{"d", "c", "b", "a medio escribir"}));
}

TEST_F(LasCorridas, SiNoSePuedeEscribirElCampoVuelveYSeDice)
{
    AlMoverse(f, 2);
    disco.Protege("/proy/P_corridas");
    f.txtNombre = "otro";
    txtNombre_AlSalir(f);
    EXPECT_EQ(f.txtNombre, "a");
    EXPECT_EQ(f.lblEstado, "No se pudo escribir en la carpeta de las corridas guardadas.");
    chkFijada_Click(f, true);
    EXPECT_FALSE(f.chkFijada);
}

TEST_F(LasCorridas, BorraTrasPreguntarYDeshaceDevuelveLosMismosBytes)
{
    const auto antes = disco.Archivos();
    std::vector<std::string> bytes;
    for (const std::string& ruta : antes)
        bytes.push_back(disco.Bytes(ruta));
    anfitrion->respuestas = {false};
    cmdBorrar(f, s, {0, 2});
    EXPECT_EQ(disco.Archivos(), antes);
    cmdBorrar(f, s, {0, 2});
    EXPECT_EQ(Columna(1), Textos{"b"});
    cmdBorrar(f, s, {0});
    EXPECT_TRUE(disco.Archivos().empty());
    cmdDeshacer(f);
    EXPECT_EQ(Columna(1), Textos{"b"});
    cmdDeshacer(f);
    EXPECT_EQ(Columna(1), (Textos{"c", "b", "a"}));
    EXPECT_EQ(disco.Archivos(), antes);
    for (std::size_t i = 0; i < antes.size(); ++i)
        EXPECT_EQ(disco.Bytes(antes[i]), bytes[i]);
    EXPECT_TRUE(f.borradas.empty());
}

TEST_F(LasCorridas, SoloTormentasYSeriesSeTraenYSeComparan)
{
    AlMoverse(f, 0);
    EXPECT_TRUE(HayElegida(f));
    EXPECT_FALSE(SePuedeTraer(f));
    AlMoverse(f, 1);
    EXPECT_TRUE(SePuedeTraer(f));
    EXPECT_EQ(ParaComparar(f, {0, 1, 2}), (Textos{f.renglones[1].archivo, f.renglones[2].archivo}));
    AlMoverse(f, 99);
    EXPECT_FALSE(HayElegida(f));
    EXPECT_EQ(f.txtNombre, "");
}

TEST_F(LasCorridas, OtroProyectoOlvidaLoBorradoYLaElegida)
{
    AlMoverse(f, 0);
    cmdBorrar(f, s, {0});
    Pon(f, Libro{.dirProyecto = "/proy", .proyecto = "Q"}, {});
    EXPECT_TRUE(f.borradas.empty());
    EXPECT_EQ(f.elegida, "");
    EXPECT_TRUE(f.lblQueHacer.starts_with("Este proyecto no tiene corridas guardadas todavía"));
    PonTope(f, 0);
    EXPECT_EQ(f.lblQueHacer, "El tope es 0: no se guarda ninguna corrida.");
    Pon(f, {}, {});
    EXPECT_EQ(f.lblQueHacer, "No hay un proyecto abierto.");
}

TEST_F(LasCorridas, ElTopeTomaEnterosYNadaMas)
{
    PonTope(f, 256);
    for (const char* const texto : {"-1", "1.5", "x", "", "9999999"}) {
        f.txtTope = texto;
        EXPECT_FALSE(txtTope_AlSalir(f, s)) << texto;
        EXPECT_EQ(f.tope, 256);
    }
    f.txtTope = "12";
    EXPECT_TRUE(txtTope_AlSalir(f, s));
    EXPECT_EQ(f.tope, 12);
}

TEST_F(LasCorridas, AparteNoPisaNada)
{
    disco.PonDirectorio("/otra");
    const std::string archivo = f.renglones[2].archivo;
    EXPECT_EQ(EscribeAparte(libro, archivo, "/otra", s), model::Ruta("/otra", "P_Conf.vlm"));
    EXPECT_EQ(disco.Bytes("/otra/P_Conf.vlm"), "bytes");
    disco.Pon("/otra/P_Conf.vlm", "del usuario");
    EXPECT_EQ(EscribeAparte(libro, archivo, "/otra", s), "");
    EXPECT_EQ(disco.Bytes("/otra/P_Conf.vlm"), "del usuario");
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "En esa carpeta ya hay un archivo P_Conf.vlm: elija otra.");
    EXPECT_EQ(EscribeAparte(libro, archivo, "/no está", s), "");
}

}  // namespace
}  // namespace runs
