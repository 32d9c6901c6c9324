// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteCalibracion.h"

#include <gtest/gtest.h>

#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "calibration/Gemelos.h"
#include "model/Siro.h"
#include "study/Abierto.h"

namespace calibration {
namespace {

/// A page over a project in memory whose network is that of the twin.
class PaginaDeCalibracion : public testing::Test {
  protected:
    PaginaDeCalibracion()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = "Gemelo";
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.ProyectoNuevo = false;
        estudio.Sigue();
        pruebas::Gemelo g = pruebas::UnaUnidad();
        const runs::Lluvia& lluvia = g.pedido.modelo.lluvias[0];
        g.pedido.eventos[0].lluvia = {.origen = "lamina",
                                      .lamina = double{lluvia.tormenta.PpTormenta},
                                      .duracion = lluvia.tormenta.DurTormenta,
                                      .distribucion = lluvia.tormenta.DistriPp};
        Cambia(f, "Gemelo", [&](study::Ajuste& a) {
            a.eventos = g.pedido.eventos;
            a.parametros = {g.pedido.modelo.parametros[1], g.pedido.modelo.parametros[4]};
            a.calibracion.corridas = 200;
        });
        // The project as if it had been read: there are no files.
        f.proyecto.Proyecto.NombreProyecto = "Gemelo";
        f.proyecto.Red = g.pedido.modelo.red;
        f.proyecto.Pasos = lluvia.pasos;
        f.noCarga.clear();
        m = NuevaAjusteCalibracion();
        calibration::Toma(m, f);
    }
    void Busca()
    {
        const auto pedido = Empieza(m, f);
        ASSERT_TRUE(pedido) << m.lblAvisos;
        auto c = Calibra(*pedido, {}, [&](const VistaDeCalibracion& v) { Mira(m, f, v); });
        ASSERT_TRUE(c);
        Termina(m, f, *std::move(c), "01/02/2026 10:00:00");
    }

    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    study::Abierto estudio{s};
    dlgAjuste f{estudio, s};
    AjusteCalibracion m{};
};

TEST_F(PaginaDeCalibracion, UnaBusquedaLlenaTablasGraficosYEstudio)
{
    EXPECT_EQ(FaltaCalibracion(f), "");
    EXPECT_FALSE(SePuedeAplicar(m, f));
    Busca();
    EXPECT_FALSE(m.corriendo);
    ASSERT_EQ(m.tblParametros.planilla.filas.size(), 2U);
    EXPECT_EQ(m.tblParametros.planilla.filas[0][0], "u-1.kostiakov_a (valor)");
    EXPECT_EQ(m.tblParametros.planilla.filas[0][2], "4");
    ASSERT_EQ(m.tblPuntajes.planilla.filas.size(), 1U);
    EXPECT_EQ(m.tblPuntajes.planilla.filas[0][2], "calibración");
    ASSERT_FALSE(m.Grafico.series.empty());
    EXPECT_EQ(m.Grafico.abscisas.back(), 200);
    for (std::size_t i = 1; i < m.Grafico.series[0].celdas.size(); ++i)
        EXPECT_GE(m.Grafico.series[0].celdas[i], m.Grafico.series[0].celdas[i - 1]);
    cmbGrafico_Click(m, f, 1);
    ASSERT_EQ(m.Grafico.series.size(), 2U);
    EXPECT_EQ(m.Grafico.series[1].leyenda, "Observado");
    EXPECT_EQ(PlanillaDeCorridas(m).filas.size(), 200U);

    const study::Calibracion& c = AjusteDe(f).calibracion;
    EXPECT_EQ(c.fecha, "01/02/2026 10:00:00");
    EXPECT_EQ(c.cercanos.front().valores, m.calibrado->Mejor());
    cmdDeshacer(f);
    EXPECT_TRUE(AjusteDe(f).calibracion.cercanos.empty()) << "one step of undo";
}

TEST_F(PaginaDeCalibracion, NadaCambiaEnLaRedHastaAplicarYSeAplicaUnaSolaVez)
{
    model::Red red = f.proyecto.Red;
    model::Tormenta tormenta{};
    int veces = 0;
    f.Aplica = [&](const CambioDeProyecto& cambio) {
        ++veces;
        cambio(red, tormenta);
        ++f.cargas;  // as the network is read anew
        return true;
    };
    Busca();
    EXPECT_EQ(veces, 0);
    ASSERT_TRUE(SePuedeAplicar(m, f));
    const double mejor = m.calibrado->Mejor()[0];
    cmdAplicar(m, f);
    EXPECT_EQ(veces, 1);
    EXPECT_EQ(red.ColUEHs.Item(1).KostiakovA, static_cast<float>(mejor));
    EXPECT_FALSE(SePuedeAplicar(m, f)) << "a factor would count twice";
    cmdAplicar(m, f);
    EXPECT_EQ(veces, 1);
    calibration::Toma(m, f);
    EXPECT_EQ(m.lblEstado, "El mejor conjunto está en la red; guárdela en el editor, o deshágalo allí.");
    ++f.cargas;
    calibration::Toma(m, f);
    EXPECT_EQ(m.lblEstado, "Lo que se ve es de antes: los datos cambiaron.");
}

TEST_F(PaginaDeCalibracion, LoQueFaltaOCambioSeDice)
{
    Busca();
    Cambia(f, "Rango", [](study::Ajuste& a) { a.parametros[0].maximo = 9; });
    calibration::Toma(m, f);
    EXPECT_EQ(m.lblEstado, "Lo que se ve es de antes: los datos cambiaron.");
    EXPECT_FALSE(SePuedeAplicar(m, f));
    Cambia(f, "Componente", [](study::Ajuste& a) { a.eventos[0].observaciones[0].componente = "u-9"; });
    calibration::Toma(m, f);
    EXPECT_EQ(Empieza(m, f), nullptr);
    EXPECT_NE(m.lblAvisos.find("u-9"), std::string::npos);
    EXPECT_FALSE(m.corriendo);
    Cambia(f, "Parámetros", [](study::Ajuste& a) { a.parametros.clear(); });
    EXPECT_NE(FaltaCalibracion(f).find("qué parámetros"), std::string::npos);
    Cambia(f, "Eventos", [](study::Ajuste& a) { a.eventos.clear(); });
    EXPECT_NE(FaltaCalibracion(f).find("Falta un evento"), std::string::npos);
}

TEST_F(PaginaDeCalibracion, LosCamposVanAlEstudioDentroDeSusLimites)
{
    m.txtCorridas = "5";
    EXPECT_FALSE(txtNumero_AlSalir(m, f, "txtCorridas"));
    m.txtCorridas = "700";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, "txtCorridas"));
    EXPECT_EQ(AjusteDe(f).calibracion.corridas, 700);
    cmbMetodoDeBusqueda_Click(f, 2);
    cmbPuntajeDeBusqueda_Click(f, 1);
    calibration::Toma(m, f);
    EXPECT_EQ(AjusteDe(f).calibracion.metodo, "dds");
    EXPECT_EQ(AjusteDe(f).calibracion.puntaje, "log_nse");
    EXPECT_FALSE(HayComplejos(m));
}

}  // namespace
}  // namespace calibration
