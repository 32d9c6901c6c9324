// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgRevisar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "checks/Lugares.h"
#include "checks/ProyectoDePrueba.h"

namespace checks {
namespace {

class DlgRevisar : public pruebas::ProyectoDePrueba {
  protected:
    [[nodiscard]] std::vector<int> Numeros() const
    {
        std::vector<int> numeros;
        for (const Hallazgo& h : f.hallazgos)
            numeros.push_back(h.numero);
        return numeros;
    }
    dlgRevisar f{};
};

TEST_F(DlgRevisar, DeUnProyectoSanoNoHayNadaQueDecirYNadaSeEscribe)
{
    const std::string antes = Archivos();
    RevisaTodo(f, s, nullptr);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblCuenta, "Sin hallazgos");
    EXPECT_EQ(f.lblDe, "Arroyo, como está guardado");
    EXPECT_TRUE(f.tblHallazgos.mostradas.empty());
    EXPECT_EQ(Archivos(), antes);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

// A drawing that isn't saved is no part of what a run would read.
TEST_F(DlgRevisar, RevisaLosArchivosYNoLaMemoria)
{
    RechazaMuskingum(1);
    s.Red.ColUEHs.Item(1).VelMedia = 9;
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.lblCuenta, "Sin hallazgos");
    Guarda();
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.lblCuenta, "1 error, 1 aviso, 0 notas");
    EXPECT_EQ(Numeros(), (std::vector<int>{213, 241}));
    const std::vector<std::string>& fila = f.tblHallazgos.planilla.filas.at(0);
    EXPECT_EQ(fila.at(0), "Error");
    EXPECT_EQ(fila.at(1), "213");
    EXPECT_EQ(fila.at(2), "c-1");
    EXPECT_EQ(fila.at(6), "K y x cercanos");
}

TEST_F(DlgRevisar, DelDibujoSinGuardarRevisaLoQueTiene)
{
    s.Red.ColUEHs.Item(1).VelMedia = 9;
    const std::string antes = Archivos();
    RevisaTodo(f, s, &s.Red);
    EXPECT_EQ(Numeros(), (std::vector<int>{241}));
    EXPECT_EQ(f.lblDe, "Arroyo, con los cambios del dibujo que no se han guardado");
    EXPECT_EQ(Archivos(), antes);
}

// The table of a Represa that has been drawn and not saved is told by the check, not by a reader's fault.
TEST_F(DlgRevisar, UnaRepresaSinGuardarNoTieneTablaTodavia)
{
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1",
                              .numRepresa = 1,
                              .Metodo = "Piscina Nivelada",
                              .Cauce_aa = "0",
                              .optTabla = true});
    s.Red.ColCauces.Item(2).Cauce_aa = "r-1";
    RevisaTodo(f, s, &s.Red);
    const auto numeros = Numeros();
    EXPECT_EQ(std::count(numeros.begin(), numeros.end(), 200), 0);
    EXPECT_EQ(std::count(numeros.begin(), numeros.end(), 220), 2) << "H-A-S and H-Q";
}

TEST_F(DlgRevisar, SinProyectoNoRevisaNada)
{
    s.Proyecto.NombreProyecto.clear();
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.lblCuenta, "No hay ningún proyecto abierto");
    EXPECT_TRUE(f.hallazgos.empty());
}

TEST_F(DlgRevisar, LaCuencaMedidaSeComparaConLaSumaYSeVaConSuProyecto)
{
    f.txtCuenca = "120";
    RevisaTodo(f, s, nullptr);
    f.txtCuenca = "120";  // the field of the project in hand
    EXPECT_TRUE(txtCuenca_Sale(f, s));
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(Numeros(), (std::vector<int>{250}));
    f.txtCuenca = "doce";
    EXPECT_FALSE(txtCuenca_Sale(f, s));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    s.Proyecto.DirProyecto = "/otro";
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.txtCuenca, "");
}

TEST_F(DlgRevisar, LasCasillasFiltranYElEncabezadoOrdenaPorGravedad)
{
    RechazaMuskingum(1);
    s.Red.ColUEHs.Item(1).VelMedia = 9;
    Guarda();
    RevisaTodo(f, s, nullptr);
    chkGravedad_Click(f, Gravedad::Error, false);
    EXPECT_EQ(f.tblHallazgos.mostradas, (std::vector<std::size_t>{1}));
    chkGravedad_Click(f, Gravedad::Error, true);
    AlPulsarEncabezado(f, 0);
    EXPECT_EQ(f.tblHallazgos.mostradas, (std::vector<std::size_t>{0, 1}))
        << "as words, Aviso would come first";
    chkGravedad_Click(f, Gravedad::Aviso, false);
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.tblHallazgos.mostradas, (std::vector<std::size_t>{0})) << "a check keeps what the user chose";
}

TEST_F(DlgRevisar, ElEstadoEnMemoriaCambiaConLoQueUnaCorridaLee)
{
    const std::string antes = EstadoEnMemoria(s, nullptr);
    EXPECT_EQ(EstadoEnMemoria(s, nullptr), antes);
    EXPECT_NE(EstadoEnMemoria(s, &s.Red), antes);
    s.Tormenta.PpTormenta = 61;
    EXPECT_NE(EstadoEnMemoria(s, nullptr), antes);
    s.Tormenta.PpTormenta = 60;
    s.Red.ColCauces.Item(1).VelMediaCauce = 3;
    EXPECT_NE(EstadoEnMemoria(s, nullptr), antes);
    s.Red.ColCauces.Item(1).VelMediaCauce = 2;
    EXPECT_EQ(EstadoEnMemoria(s, nullptr), antes);
    s.Proyecto.DirProyecto = "/otro";
    EXPECT_NE(EstadoEnMemoria(s, nullptr), antes);
}

TEST_F(DlgRevisar, SeCorrigeLoQueTieneArregloYLasTablasAparte)
{
    f.hallazgos = {{.numero = 213, .arreglo = Arreglo::MuskingumCercano},
                   {.numero = 241},
                   {.numero = 221, .arreglo = Arreglo::OrdenaTabla}};
    ASSERT_EQ(ConArreglo(f, {0, 1, 2}, false).size(), 1U);
    EXPECT_EQ(ConArreglo(f, {0, 1, 2}, false).front().numero, 213);
    EXPECT_EQ(ConArreglo(f, {0, 1, 2}, true).front().numero, 221);
    EXPECT_TRUE(ConArreglo(f, {1}, false).empty());
    AlCorregir(f, 2);
    EXPECT_NE(f.lblHecho.find("sin guardar (2)"), std::string::npos);
    RevisaTodo(f, s, nullptr);
    EXPECT_EQ(f.lblHecho, "");
}

struct FilaLugar {
    Hallazgo hallazgo;
    Lugar lugar;
};

TEST(Lugares, CadaHallazgoTieneElSuyo)
{
    const FilaLugar filas[] = {
        {{.numero = 200}, Lugar::Configuracion},
        {{.numero = 206}, Lugar::Tormenta},
        {{.numero = 201}, Lugar::Editor},
        {{.numero = 250}, Lugar::Editor},
        {{.numero = 203, .componente = "u-1"}, Lugar::Ficha},
        {{.numero = 217, .componente = "u-1"}, Lugar::Dibujo},
        {{.numero = 207}, Lugar::Editor},
        {{.numero = 220, .componente = "r-1", .que = "Falta la tabla H-Q"}, Lugar::TablaHQ},
        {{.numero = 221, .componente = "r-1", .que = "Las alturas de la tabla H-Q no suben"}, Lugar::TablaHQ},
        {{.numero = 221, .componente = "r-1", .que = "Las alturas de la tabla H-A-S no suben"},
         Lugar::TablaHAS},
        {{.numero = 221, .componente = "l-1", .que = "Las alturas de la tabla H-A-S-Q no suben"},
         Lugar::TablaHAS},
        {{.numero = 223, .componente = "r-1"}, Lugar::TablaHQ},
        {{.numero = 225, .componente = "r-1"}, Lugar::TablaHAS},
        {{.numero = 226, .componente = "r-1"}, Lugar::Ficha},
        {{.numero = 228, .componente = "r-1"}, Lugar::Ficha},
        // of a run
        {{.numero = 101, .componente = "c-1"}, Lugar::Ficha},
        {{.numero = 102}, Lugar::Configuracion},
        {{.numero = 103, .componente = "r-1"}, Lugar::TablaHAS},
        {{.numero = 106}, Lugar::Editor},
        {{.numero = 112, .componente = "u-1"}, Lugar::Dibujo},
        {{.numero = 121}, Lugar::Configuracion},
        {{.numero = 123}, Lugar::Configuracion},
        {{.numero = 124}, Lugar::Tormenta},
    };
    for (const FilaLugar& fila : filas)
        EXPECT_EQ(LugarDe(fila.hallazgo), fila.lugar) << fila.hallazgo.numero << " " << fila.hallazgo.que;
}

}  // namespace
}  // namespace checks
