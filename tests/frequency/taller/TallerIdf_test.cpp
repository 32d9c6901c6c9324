// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerIdf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "frequency/Cifras.h"
#include "model/Siro.h"
#include "study/Abierto.h"

namespace frequency {
namespace {

/// A study on a disk in memory with a station of forty years, read once a day.
struct TallerIdfDePrueba : testing::Test {
    TallerIdfDePrueba()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = "Quelmar";
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.ProyectoNuevo = false;
        estudio.Sigue();
        Cambia(f, "Estación", [](study::Taller& t) {
            study::SerieDeMaximos serie;
            serie.lecturaDiaria = true;
            serie.ley = "gumbel";
            serie.metodo = "l";
            for (int i = 0; i < 40; ++i)
                serie.maximos.push_back({.anio = 1950 + i, .valor = 45.0 + (i * 29) % 41});
            t.estaciones.push_back({.nombre = "Quelmar", .series = {serie}});
        });
        Toma(m, f);
    }
    [[nodiscard]] const study::Idf& Pedido() const { return TallerDe(f).idf; }
    /// An event and what the window does behind it.
    template <typename Evento>
    void Hace(Evento evento)
    {
        evento();
        Toma(m, f);
    }
    void Elige(ListaDeTaller TallerIdf::*lista, const std::string& item,
               void (*evento)(const TallerIdf&, dlgTaller&))
    {
        const auto& items = (m.*lista).items;
        const auto cual = std::find(items.begin(), items.end(), item);
        ASSERT_NE(cual, items.end()) << item;
        (m.*lista).indice = static_cast<int>(cual - items.begin());
        Hace([&] { evento(m, f); });
    }
    bool Escribe(std::string& texto, const std::string& nuevo, std::string_view control)
    {
        texto = nuevo;
        const bool sale = txtIdf_AlSalir(m, f, s, control);
        if (sale) Toma(m, f);
        return sale;
    }
    [[nodiscard]] bool Nota(const std::string& parte) const
    {
        return m.lblNotas.find(parte) != std::string::npos;
    }

    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    study::Abierto estudio{s};
    dlgTaller f{estudio};
    TallerIdf m = NuevaTallerIdf();
};

TEST_F(TallerIdfDePrueba, EmpiezaPorLosMaximosDiarios)
{
    EXPECT_EQ(m.cmbOrigen.items[m.cmbOrigen.Lugar()], "Máximos diarios");
    EXPECT_EQ(m.cmbDesagregacion.items[m.cmbDesagregacion.Lugar()], "Dick-Peschke");
    EXPECT_EQ(m.cmbFamilia.items[m.cmbFamilia.Lugar()], "Sherman");
    EXPECT_EQ(m.cmbDe.items, std::vector<std::string>{"Quelmar"});
    EXPECT_TRUE(
        m.lblDesagregacion.starts_with("<i>P</i>(<i>d</i>) = P24 (<i>d</i>/1440)<sup>0.25</sup><br><small>"));
    EXPECT_TRUE(PideMaximos(f) && PideDesagregacion(f));
    EXPECT_FALSE(PideRazones(f) || PideLibre(f) || PideRegion(f) || PideArea(f) || PideKA(f));
    ASSERT_EQ(m.tblCurvas.planilla.filas.size(), 17U);
    ASSERT_EQ(m.tblCurvas.planilla.columnas.size(), 15U);
    EXPECT_EQ(m.tblCurvas.planilla.columnas[1].encabezado, "2 años");
    EXPECT_EQ(m.tblCurvas.planilla.filas[0][0], "5");
    EXPECT_TRUE(Nota("Máximos de 1440 min: Gumbel, de 40 años."));
    EXPECT_TRUE(Nota("La lámina crece con la duración y con la recurrencia en toda la tabla."));
}

TEST_F(TallerIdfDePrueba, LaTablaEsDeLaminasDeIntensidadesODeResiduos)
{
    Elige(&TallerIdf::cmbFamilia, "Ninguna", &cmbFamilia_Click);
    EXPECT_EQ(Pedido().familia, "");
    EXPECT_TRUE(Nota("Máximos de 1440 min"));
    const double lamina = std::stod(m.tblCurvas.planilla.filas[7].at(3));  // 120 min, 10 years
    m.cmbVista.indice = 1;
    cmbVista_Click(m, f);
    EXPECT_NEAR(std::stod(m.tblCurvas.planilla.filas[7].at(3)), lamina / 2, 0.051);
    EXPECT_EQ(m.Grafico.ejeY, "Intensidad [mm/h]");
    m.cmbVista.indice = 2;
    cmbVista_Click(m, f);
    EXPECT_TRUE(m.tblCurvas.planilla.filas.empty());  // nothing was fitted
    Elige(&TallerIdf::cmbFamilia, "Bernard", &cmbFamilia_Click);
    EXPECT_EQ(m.tblCurvas.planilla.filas.size(), 16U);  // 2880 min are beyond the disaggregation
    // The farthest residual is the one that the notes tell.
    double peor = 0;
    for (const auto& fila : m.tblCurvas.planilla.filas)
        for (std::size_t j = 1; j < fila.size(); ++j)
            peor = std::max(peor, std::abs(std::stod(fila[j])));
    EXPECT_NEAR(peor, 100 * std::abs(m.curvas.ajuste.calidad.errorMaximo), 0.0051);
    EXPECT_TRUE(Nota("R2 0.9"));
}

TEST_F(TallerIdfDePrueba, CadaEleccionEsUnPasoQueSeDeshace)
{
    const study::Taller antes = TallerDe(f);
    Elige(&TallerIdf::cmbDesagregacion, "5.2-IC de 1990", &cmbDesagregacion_Click);
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Desagregación");
    EXPECT_EQ(m.lblCoef[0], "I1Id, torrencialidad, la intensidad de una hora sobre la del día:");
    EXPECT_EQ(m.lblCoef[1], "");
    EXPECT_EQ(m.txtCoef[0], "");
    EXPECT_TRUE(Nota("Falta el coeficiente I1Id"));
    EXPECT_TRUE(m.tblCurvas.planilla.filas.empty());
    EXPECT_TRUE(Escribe(m.txtCoef[0], "10,5", "txtCoef0"));
    EXPECT_EQ(Pedido().coeficientes, (std::vector<study::Coeficiente>{{"I1Id", 10.5, 0}}));
    EXPECT_EQ(m.tblCurvas.planilla.filas.size(), 17U);
    EXPECT_TRUE(Nota("el factor 1.13 no se aplica otra vez."));
    cmdDeshacer(f);
    cmdDeshacer(f);
    Toma(m, f);
    EXPECT_EQ(TallerDe(f), antes);
    EXPECT_TRUE(Nota("las láminas de 24 horas son las suyas por 1.13."));
}

TEST_F(TallerIdfDePrueba, UnCampoRechazaLoQueNoPuedeSer)
{
    Elige(&TallerIdf::cmbDesagregacion, "5.2-IC de 1990", &cmbDesagregacion_Click);
    EXPECT_FALSE(Escribe(m.txtCoef[0], "50", "txtCoef0"));
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "El coeficiente I1Id debe estar entre 1 y 20.");
    EXPECT_TRUE(Escribe(m.txtCoef[0], "", "txtCoef0"));
    EXPECT_FALSE(Escribe(m.txtFactor, "2", "txtFactor"));
    EXPECT_EQ(anfitrion->Avisos()[1].texto, "El factor de un día a 24 horas debe estar entre 1 y 1.5.");
    EXPECT_TRUE(Escribe(m.txtFactor, "1.1", "txtFactor"));
    EXPECT_EQ(Pedido().factorDiario, 1.1);
    EXPECT_TRUE(Escribe(m.txtFactor, "", "txtFactor"));
    EXPECT_EQ(Pedido().factorDiario, 1.13);
    EXPECT_EQ(m.txtFactor, "1.13");
}

TEST_F(TallerIdfDePrueba, LasRazonesVienenDeSuGrilla)
{
    Elige(&TallerIdf::cmbDesagregacion, "Razones propias", &cmbDesagregacion_Click);
    EXPECT_TRUE(PideRazones(f));
    Elige(&TallerIdf::cmbFamilia, "Ninguna", &cmbFamilia_Click);
    m.grdRazones.Pon({1, 0}, "60");
    m.grdRazones.Pon({1, 1}, "0.3");
    m.grdRazones.Pon({2, 0}, "1440");
    grdRazones_Asienta(m, f);
    EXPECT_EQ(Pedido().razones.size(), 1U);
    m.grdRazones.Pon({2, 1}, "1");
    Hace([&] { grdRazones_Asienta(m, f); });
    EXPECT_EQ(Pedido().razones, (std::vector<study::Razon>{{60, 0.3}, {1440, 1}}));
    EXPECT_EQ(m.tblCurvas.planilla.filas[0][1], "");  // 5 min are beyond the ratios
    EXPECT_NE(m.tblCurvas.planilla.filas[5][1], "");
    EXPECT_TRUE(Nota(
        "Sin lámina quedan las duraciones de 5, 10, 15, 20, 30 y 2880 min, que las razones no alcanzan."));
    Hace([&] { cmdDeshacer(f); });
    EXPECT_EQ(m.grdRazones.Texto({2, 1}), "");
}

TEST_F(TallerIdfDePrueba, CoeficientesConocidos)
{
    Elige(&TallerIdf::cmbFamilia, "Ninguna", &cmbFamilia_Click);
    Elige(&TallerIdf::cmbOrigen, "Coeficientes", &cmbOrigen_Click);
    EXPECT_EQ(Pedido().familia, "sherman");  // there is no disaggregation to stand in
    EXPECT_FALSE(PideMaximos(f) || PideDesagregacion(f));
    EXPECT_EQ(std::count(m.cmbFamilia.items.begin(), m.cmbFamilia.items.end(), "Ninguna"), 0);
    const char* const valores[] = {"822", "0.2", "10", "0.8"};
    const char* const controles[] = {"txtCoef0", "txtCoef1", "txtCoef2", "txtCoef3"};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_TRUE(Escribe(m.txtCoef[i], valores[i], controles[i]));
    EXPECT_EQ(m.tblCurvas.planilla.filas[1][1], "14.3");  // 14 mm in the delivered table
    EXPECT_EQ(TemaDeCurvas(m, f), "Curvas de intensidad, duración y recurrencia, Sherman");
    const forms::Planilla p = PlanillaDeCurvas(m, f);
    EXPECT_EQ(p.titulos.at(0), "Taller de lluvia: Láminas [mm]");
    EXPECT_EQ(p.titulos.at(2), "k 822, a 0.2, b 10, c 0.8");

    Elige(&TallerIdf::cmbFamilia, "Libre", &cmbFamilia_Click);
    EXPECT_TRUE(PideLibre(f));
    EXPECT_EQ(m.lblCoef[0], "");
    const char* const celdas[] = {"10", "900", "12", "0.8"};
    for (int j = 0; j < 4; ++j)
        m.grdLibre.Pon({1, j}, celdas[j]);
    Hace([&] { grdLibre_Asienta(m, f); });
    EXPECT_EQ(m.tblCurvas.planilla.filas[0][1], "");
    EXPECT_EQ(m.tblCurvas.planilla.filas[0][3], "7.8");  // 900 / 17^0.8 / 12
    EXPECT_EQ(m.Grafico.series.size(), 1U);              // no other recurrence has a curve
    Elige(&TallerIdf::cmbFamilia, "Sherman", &cmbFamilia_Click);
    EXPECT_EQ(m.txtCoef[0], "822");  // kept
}

TEST_F(TallerIdfDePrueba, UnaFichaPoneLosCoeficientesDelDit)
{
    Elige(&TallerIdf::cmbDesagregacion, "Modelo DIT", &cmbDesagregacion_Click);
    EXPECT_TRUE(PideRegion(f));
    Elige(&TallerIdf::cmbRegion, "Salta Aero (Salta)", &cmbRegion_Click);
    EXPECT_EQ(m.txtCoef[0], "0.15");
    EXPECT_EQ(Pedido().coeficientes.size(), 1U);
    Elige(&TallerIdf::cmbOrigen, "Coeficientes", &cmbOrigen_Click);
    Elige(&TallerIdf::cmbFamilia, "DIT", &cmbFamilia_Click);
    EXPECT_EQ(m.cmbRegion.indice, 0);  // A and C aren't there yet
    Elige(&TallerIdf::cmbRegion, "Salta Aero (Salta)", &cmbRegion_Click);
    EXPECT_EQ(m.txtCoef[0], "0.38");
    EXPECT_EQ(m.txtCoef[2], "5.179");
    m.cmbVista.indice = 1;
    cmbVista_Click(m, f);
    EXPECT_EQ(m.tblCurvas.planilla.filas[5][3], "60.0");  // 59.9 in its table
    EXPECT_TRUE(Escribe(m.txtCoef[0], "0.4", "txtCoef0"));
    EXPECT_EQ(m.cmbRegion.indice, 0);
}

TEST_F(TallerIdfDePrueba, LaReduccionPideElArea)
{
    Elige(&TallerIdf::cmbReduccion, "KA de la 5.2-IC", &cmbReduccion_Click);
    EXPECT_TRUE(PideArea(f));
    EXPECT_TRUE(Nota("Para reducir por el área falta el área de la cuenca, en km2."));
    EXPECT_TRUE(Escribe(m.txtArea, "380", "txtArea"));
    EXPECT_TRUE(Nota("Factor areal: 0.8280."));
    Elige(&TallerIdf::cmbReduccion, "Factor propio", &cmbReduccion_Click);
    EXPECT_TRUE(PideKA(f));
    EXPECT_FALSE(PideArea(f));
    EXPECT_TRUE(Escribe(m.txtKA, "0.9", "txtKA"));
    EXPECT_TRUE(Nota("Factor areal: 0.9000."));
    Elige(&TallerIdf::cmbReduccion, "Ninguna", &cmbReduccion_Click);
    EXPECT_FALSE(Nota("Factor areal"));
}

TEST_F(TallerIdfDePrueba, ElGraficoLlevaLosPuntosDelAjuste)
{
    ASSERT_EQ(m.Grafico.series.size(), 7U);  // six recurrences and the points
    EXPECT_EQ(m.Grafico.series[0].leyenda, "2 años");
    EXPECT_EQ(m.Grafico.series[6].tipo, forms::TipoSerie::Puntos2D);
    const auto cuenta = [](const forms::Serie& serie) {
        return std::count_if(serie.celdas.begin(), serie.celdas.end(),
                             [](double x) { return !forms::EstaVacia(x); });
    };
    EXPECT_EQ(cuenta(m.Grafico.series[0]), 17);
    EXPECT_EQ(cuenta(m.Grafico.series[6]), 6 * 16);
    EXPECT_TRUE(std::is_sorted(m.Grafico.abscisas.begin(), m.Grafico.abscisas.end()));
    EXPECT_NEAR(m.Grafico.abscisas.front(), std::log10(5), 1e-12);
    EXPECT_EQ(m.Grafico.categorias.front(), "5 min");
    EXPECT_TRUE(m.Grafico.ejeYLogaritmico);
    chkLogaritmos_Click(m, f, false);
    EXPECT_EQ(m.Grafico.abscisas.front(), 5);
    EXPECT_FALSE(m.Grafico.ejeYLogaritmico);
    Elige(&TallerIdf::cmbFamilia, "Ninguna", &cmbFamilia_Click);
    EXPECT_EQ(m.Grafico.series.size(), 6U);
    EXPECT_EQ(m.Grafico.titulo, "Curvas de intensidad, duración y recurrencia: Quelmar, Dick-Peschke");
}

TEST_F(TallerIdfDePrueba, SinMaximosDiceQueFalta)
{
    Cambia(f, "Sin estaciones", [](study::Taller& t) { t.estaciones.clear(); });
    Toma(m, f);
    EXPECT_EQ(m.lblNotas, "• No hay máximos: falta una estación con sus series.");
    EXPECT_TRUE(m.tblCurvas.planilla.filas.empty());
    EXPECT_TRUE(m.Grafico.series.empty());
}

TEST_F(TallerIdfDePrueba, LasCurvasSonDeLaEstacionElegida)
{
    Cambia(f, "Otra estación", [](study::Taller& t) {
        study::Estacion otra = t.estaciones[0];
        otra.nombre = "Ruvera";
        for (study::Maximo& maximo : otra.series[0].maximos)
            maximo.valor *= 2;
        t.estaciones.push_back(otra);
    });
    Toma(m, f);
    const double antes = std::stod(m.tblCurvas.planilla.filas[15][1]);
    Elige(&TallerIdf::cmbDe, "Ruvera", &cmbDe_Click);
    EXPECT_EQ(Pedido().estacion, "Ruvera");
    EXPECT_NEAR(std::stod(m.tblCurvas.planilla.filas[15][1]), 2 * antes, 0.11);
}

TEST(FormulaEnHtml, AlzaLosExponentesEInclinaLasLetras)
{
    EXPECT_EQ(FormulaEnHtml("i = k T^a / (d + b)^c"),
              "<i>i</i> = <i>k</i> <i>T</i><sup><i>a</i></sup> / (<i>d</i> + <i>b</i>)<sup><i>c</i></sup>");
    EXPECT_EQ(FormulaEnHtml("(ln d)^(5/3)"), "(ln <i>d</i>)<sup>5/3</sup>");
    EXPECT_EQ(FormulaEnHtml("x^((28^0.1 - t^0.1)/2)"), "<i>x</i><sup>(28^0.1 - <i>t</i>^0.1)/2</sup>");
    EXPECT_EQ(FormulaEnHtml("A < 1 & c^"), "<i>A</i> &lt; 1 &amp; <i>c</i><sup></sup>");
}

}  // namespace
}  // namespace frequency
