// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "frequency/taller/GraficosDeTaller.h"
#include "frequency/taller/TallerAjustes.h"
#include "frequency/taller/TallerMaximos.h"
#include "frequency/taller/TallerPruebas.h"
#include "frequency/taller/dlgImportaMaximos.h"
#include "model/Siro.h"
#include "study/Abierto.h"

namespace frequency {
namespace {

/// A study on a disk in memory, with a project in hand.
struct TallerDePrueba : testing::Test {
    TallerDePrueba()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = "Quelmar";
        s.Proyecto.DirProyecto = "/proy";
        s.Proyecto.ProyectoNuevo = false;
        estudio.Sigue();
        Toma(f);
    }
    void PonFila(int fila, const std::string& anio, const std::string& valor, const std::string& dias = {})
    {
        m.grdMaximos.Pon({fila, 0}, anio);
        m.grdMaximos.Pon({fila, 1}, valor);
        m.grdMaximos.Pon({fila, 2}, dias);
        grdMaximos_Asienta(m, f);
    }
    void PonDoce()
    {
        const std::vector<std::string> x{"51", "70", "48", "95",  "62", "58",
                                         "81", "44", "66", "120", "73", "55"};
        for (std::size_t i = 0; i < x.size(); ++i)
            PonFila(static_cast<int>(i) + 1, std::to_string(1990 + i), x[i]);
    }

    apoyo::DiscoPrueba disco{};
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    study::Abierto estudio{s};
    dlgTaller f{estudio};
    TallerMaximos m = NuevaTallerMaximos();
};

const study::SerieDeMaximos& Serie(const dlgTaller& f)
{
    return TallerDe(f).estaciones.at(0).series.at(0);
}

TEST(Taller, SinProyectoDiceQueFaltaYNoCambiaNada)
{
    model::Siro s{};
    study::Abierto estudio{s};
    dlgTaller f{estudio};
    EXPECT_NE(FaltaProyecto(f), "");
    cmdNuevaEstacion(f);
    EXPECT_TRUE(TallerDe(f).estaciones.empty());
}

TEST_F(TallerDePrueba, LaPrimeraEstacionNuevaEsUnaSola)
{
    cmdNuevaEstacion(f);
    EXPECT_EQ(TallerDe(f).estaciones.size(), 1U);
    EXPECT_EQ(f.estacion, 0);
}

TEST_F(TallerDePrueba, UnaFilaEnteraEsUnMaximoYLaQueNoEsperaSinPerderse)
{
    PonFila(1, "1991", "");
    EXPECT_TRUE(TallerDe(f).estaciones.empty());
    EXPECT_EQ(m.lblAvisos.substr(0, m.lblAvisos.find('\n')), "• Fila 1: falta el máximo.");
    PonFila(2, "1990", "51.5", "366");
    PonFila(1, "1991", "70");
    EXPECT_EQ(Serie(f).maximos, (std::vector<study::Maximo>{{1990, 51.5, 366}, {1991, 70, {}}}));
    Toma(m, f);
    EXPECT_EQ(m.grdMaximos.Texto({1, 0}), "1991") << "typed first, it stays where it was typed";
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Máximos anuales");
    cmdDeshacer(f);
    cmdDeshacer(f);
    EXPECT_TRUE(TallerDe(f).estaciones.empty());
    Toma(m, f);
    EXPECT_EQ(m.grdMaximos.Texto({1, 0}), "");
    cmdRehacer(f);
    cmdRehacer(f);
    Toma(m, f);
    EXPECT_EQ(m.grdMaximos.Texto({1, 0}), "1990");
}

TEST_F(TallerDePrueba, DiceTodoLoQueUnaSerieTieneDeMalo)
{
    EXPECT_NE(FaltanMaximos(f).find("paso 1"), std::string::npos);
    PonDoce();
    EXPECT_EQ(FaltanMaximos(f), "");
    PonFila(13, "1990", "33");
    EXPECT_NE(FaltanMaximos(f).find("El año 1990 tiene dos máximos."), std::string::npos);
    PonFila(13, "2004", "33", "200");
    Toma(m, f);
    EXPECT_NE(m.lblAvisos.find("Faltan años: 2002 a 2003."), std::string::npos);
    EXPECT_NE(m.lblAvisos.find("330 días"), std::string::npos);
    EXPECT_EQ(m.Grafico.categorias.size(), 15U);
    EXPECT_TRUE(forms::EstaVacia(m.Grafico.series.at(0).celdas.at(12)));
    ASSERT_EQ(m.Grafico.marcas.size(), 1U);
    EXPECT_EQ(m.Grafico.marcas[0].fila, 14U);
}

TEST_F(TallerDePrueba, LosDatosDeLaEstacionSeRevisanYUnPasoDeshaceCadaUno)
{
    m.txtNombre = "Quelmar";
    EXPECT_TRUE(txtTexto_AlSalir(m, f, "txtNombre"));
    m.txtLatitud = "-40,8";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, s, "txtLatitud"));
    EXPECT_EQ(TallerDe(f).estaciones.at(0).latitud, -40.8);
    m.txtLatitud = "91";
    EXPECT_FALSE(txtNumero_AlSalir(m, f, s, "txtLatitud"));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    m.txtLatitud = "";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, s, "txtLatitud"));
    EXPECT_FALSE(TallerDe(f).estaciones.at(0).latitud.has_value());
    cmdDeshacer(f);
    EXPECT_EQ(TallerDe(f).estaciones.at(0).latitud, -40.8);
    cmdDeshacer(f);
    cmdDeshacer(f);
    EXPECT_TRUE(TallerDe(f).estaciones.empty());
}

TEST_F(TallerDePrueba, CadaDuracionEsUnaSerieYNoHayDosIguales)
{
    PonDoce();
    cmdNuevaSerie(f);
    ASSERT_EQ(TallerDe(f).estaciones.at(0).series.size(), 2U);
    EXPECT_EQ(SerieEnMano(f)->duracion, 60);
    EXPECT_EQ(f.series, (std::vector<std::string>{"60 min (1 h)", "1440 min (24 h)"}));
    m.txtDuracion = "1440";
    EXPECT_FALSE(txtNumero_AlSalir(m, f, s, "txtDuracion"));
    m.txtDuracion = "30";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, s, "txtDuracion"));
    EXPECT_EQ(SerieEnMano(f)->duracion, 30);
    cmdQuitaSerie(f);
    EXPECT_EQ(SerieEnMano(f)->duracion, 1440);
    cmdNuevaEstacion(f);
    EXPECT_EQ(f.estacion, 1);
    cmdQuitaEstacion(f);
    EXPECT_EQ(f.estacion, 0);
    EXPECT_EQ(SerieEnMano(f)->maximos.size(), 12U);
}

// The numbers are worked out apart: medians of slopes and halves, Bulletin 17B's limits on logarithms.
TEST_F(TallerDePrueba, CadaPruebaTieneSuGrafico)
{
    PonDoce();
    TallerPruebas p;
    Toma(p, f);
    ASSERT_EQ(p.pruebas.size(), 5U);
    EXPECT_EQ(p.Grafico.abscisas.size(), 12U) << "each year against the next";
    tblPruebas_Mueve(p, f, 1);
    EXPECT_NEAR(p.Grafico.series.at(1).celdas.at(0), 64 - 5.5 * 1.2, 1e-9);
    tblPruebas_Mueve(p, f, 2);
    EXPECT_EQ(p.Grafico.series.at(1).celdas.at(5), 60);
    EXPECT_TRUE(forms::EstaVacia(p.Grafico.series.at(1).celdas.at(6)));
    EXPECT_EQ(p.Grafico.series.at(2).celdas.at(6), 69.5);
    tblPruebas_Mueve(p, f, 3);
    EXPECT_NEAR(p.Grafico.series.at(1).celdas.at(0), 122.519087565764, 1e-6);
    tblPruebas_Mueve(p, f, 4);
    EXPECT_NEAR(p.Grafico.series.at(1).celdas.at(0), 35.3804300583305, 1e-6);
    EXPECT_EQ(p.tblPruebas.planilla.filas.size(), 5U);
}

// Gumbel by L-moments, with more digits, in Python.
TEST_F(TallerDePrueba, LosAjustesSonTablasYLaElegidaQuedaConSuMotivo)
{
    PonDoce();
    TallerAjustes a = NuevaTallerAjustes();
    ASSERT_TRUE(Toma(a, f));
    Empieza(a, f);
    EXPECT_EQ(a.estado, Estado::Ajustando);
    EXPECT_FALSE(Toma(a, f)) << "that one is under way";
    const auto rapido =
        Analiza(Revisada(*SerieEnMano(f)), {.metodo = Metodo::MomentosL, .remuestreo = {.cuantas = 0}});
    TomaAjustes(a, f, *rapido);
    Cancela(a);
    EXPECT_EQ(a.estado, Estado::SinBandas);
    cmbEnMano_Click(a, f, 0);
    const auto& filas = a.tblCuantiles.planilla.filas;
    ASSERT_EQ(filas.size(), 14U);
    EXPECT_EQ(filas.at(7).at(0), "100");
    EXPECT_EQ(filas.at(7).at(1), "") << "no band";
    EXPECT_EQ(filas.at(7).at(2), "138.9");
    EXPECT_EQ(filas.at(13).at(2), "219.5");
    EXPECT_EQ(a.tblBondad.planilla.filas.size(), 8U);
    cmdRecomendada(a, f);
    EXPECT_EQ(Serie(f).ley, rapido->recomendacion.ley->clave);
    EXPECT_EQ(Serie(f).metodo, "l");
    EXPECT_EQ(Serie(f).motivo, rapido->recomendacion.motivo);
    a.txtMotivo = "La usa el organismo.";
    EXPECT_TRUE(txtMotivo_AlSalir(a, f));
    EXPECT_EQ(Serie(f).motivo, "La usa el organismo.");
    cmbElegida_Click(a, f, 0);
    EXPECT_EQ(Serie(f).ley, "");
}

/// The bulletins' options stay with the series, ask for another analysis and reach the curves of step 4.
TEST_F(TallerDePrueba, LosBoletinesQuedanConLaSerieYSonOtroAnalisis)
{
    PonDoce();
    TallerAjustes a = NuevaTallerAjustes();
    cmbMetodo_Click(a, 0);
    ASSERT_TRUE(Toma(a, f));
    EXPECT_TRUE(TrataBajos(a));
    EXPECT_EQ(a.posiciones.at(static_cast<std::size_t>(a.posicion)), "Cunnane, a = 0.4");
    EXPECT_EQ(a.tratos.at(static_cast<std::size_t>(a.bajos)), "Como los demás");
    EXPECT_EQ(a.txtAsimetria, "");
    EXPECT_EQ(a.txtEcm, "0.302");
    Empieza(a, f);
    EXPECT_FALSE(Toma(a, f));
    cmbBajos_Click(f, 2);
    EXPECT_EQ(Serie(f).bajos, "17c");
    EXPECT_TRUE(Toma(a, f)) << "another analysis";
    Empieza(a, f);
    a.txtAsimetria = "4";
    EXPECT_FALSE(txtNumero_AlSalir(a, f, s, "txtAsimetria"));
    EXPECT_FALSE(Serie(f).asimetria);
    a.txtAsimetria = "-0.4";
    ASSERT_TRUE(txtNumero_AlSalir(a, f, s, "txtAsimetria"));
    a.txtEcm = "0.2";
    ASSERT_TRUE(txtNumero_AlSalir(a, f, s, "txtEcm"));
    EXPECT_EQ(Serie(f).asimetria, -0.4);
    EXPECT_EQ(Serie(f).ecmAsimetria, 0.2);
    EXPECT_TRUE(Toma(a, f));
    a.txtAsimetria = " ";
    ASSERT_TRUE(txtNumero_AlSalir(a, f, s, "txtAsimetria"));
    EXPECT_FALSE(Serie(f).asimetria) << "the sample's alone";
    cmdDeshacer(f);
    EXPECT_EQ(Serie(f).asimetria, -0.4);
    cmbPosicion_Click(f, 4);
    EXPECT_EQ(TallerDe(f).posicion, 0.5);
    cmbMetodo_Click(a, 1);
    EXPECT_FALSE(TrataBajos(a));
}

TEST_F(TallerDePrueba, SeAjustanLasLeyesTildadasYUnaAlMenos)
{
    PonDoce();
    TallerAjustes a = NuevaTallerAjustes();
    for (std::size_t i = 0; i < a.leyes.size(); ++i)
        cmdLeyes_Click(a, i, i == 1);
    cmdLeyes_Click(a, 1, false);
    EXPECT_TRUE(a.ajustadas[1]);
    Empieza(a, f);
    EXPECT_EQ(a.pedido.leyes, (std::vector<const Ley*>{&Gev}));
    TomaCompleto(
        a, f, *Analiza(Revisada(*SerieEnMano(f)), {.leyes = a.pedido.leyes, .remuestreo = {.cuantas = 0}}));
    EXPECT_EQ(a.tblBondad.planilla.filas.size(), 1U);
    EXPECT_EQ(a.tblCuantiles.planilla.columnas.size(), 4U);
    cmbEnMano_Click(a, f, 0);
    EXPECT_EQ(a.tblCuantiles.planilla.columnas.at(2).encabezado, "GEV") << "Gumbel isn't fitted";
    cmdLeyes_Click(a, 0, true);
    EXPECT_TRUE(Toma(a, f)) << "another analysis";
}

TEST_F(TallerDePrueba, LosPapelesTienenUnaFilaPorLugarYUnaColumnaPorLey)
{
    PonDoce();
    const auto a =
        Analiza(Revisada(*SerieEnMano(f)), {.metodo = Metodo::MomentosL, .remuestreo = {.cuantas = 50}});
    const forms::Grafico g =
        GraficoDePapel(*a, {.ejes = Ejes::DeGumbel, .enMano = &a->ajustes[0], .sola = true});
    ASSERT_EQ(g.series.size(), 4U) << "maxima, the law, both lines of its band";
    EXPECT_EQ(g.series[0].tipo, forms::TipoSerie::Puntos2D);
    EXPECT_EQ(g.series[3].tipo, forms::TipoSerie::Banda2D);
    EXPECT_TRUE(std::is_sorted(g.abscisas.begin(), g.abscisas.end()));
    for (const forms::Serie& serie : g.series)
        EXPECT_EQ(serie.celdas.size(), g.abscisas.size());
    EXPECT_EQ(std::count_if(g.series[0].celdas.begin(), g.series[0].celdas.end(),
                            [](double x) { return !forms::EstaVacia(x); }),
              12);
    EXPECT_EQ(g.rotulosX.front().texto, "10") << "what must not go comes first";
    EXPECT_TRUE(GraficoDePapel(*a, {.ejes = Ejes::DeLogNormal}).ejeYLogaritmico);
    const forms::Grafico d = GraficoDeDiagrama(*a, &a->ajustes[0]);
    EXPECT_EQ(d.series.size(), 1U + 6U + 2U);
    EXPECT_NEAR(d.abscisas.at(static_cast<std::size_t>(
                    std::find_if(d.series[0].celdas.begin(), d.series[0].celdas.end(),
                                 [](double x) { return !forms::EstaVacia(x); }) -
                    d.series[0].celdas.begin())),
                a->muestra.directos.l.t3, 1e-12);
}

/// What a file has, read to its end.
void LeeTodo(dlgImportaMaximos& i)
{
    Empieza(i);
    const auto leida = Lee(i.bytes, static_cast<ClaseDeArchivo>(i.clase), PedidoDe(i), {});
    ASSERT_TRUE(leida.has_value());
    Termina(i, *leida);
}

TEST_F(TallerDePrueba, UnArchivoDeMaximosTomaElLugarDeLaSerieDeSuDuracionYSeDeshace)
{
    PonDoce();
    disco.Pon("/proy/maximos.csv", "anio;mm\n1970;40\n1971;0\n1972;s/d\n1973;61,5\n");
    anfitrion->elegidos = {"/proy/maximos.csv"};
    dlgImportaMaximos i;
    ASSERT_TRUE(Abre(i, s));
    EXPECT_EQ(anfitrion->sucesos.back().mensaje.texto.find(';'), std::string::npos)
        << "patterns of names stand apart by blanks; with anything else no file is offered";
    EXPECT_EQ(i.clase, 1) << "a year a line";
    LeeTodo(i);
    ASSERT_EQ(i.importacion.series.size(), 1U);
    EXPECT_EQ(i.tblSeries.planilla.filas.at(0).at(1), std::to_string(i.importacion.series[0].maximos.size()));
    i.txtDuraciones = "60; -3";
    EXPECT_FALSE(txtDuraciones_AlSalir(i, s));
    i.txtDuraciones = "1440";
    EXPECT_TRUE(txtDuraciones_AlSalir(i, s));
    OKButton(i, f);
    EXPECT_EQ(TallerDe(f).estaciones.at(0).series.size(), 1U);
    EXPECT_EQ(Serie(f).maximos.front(), (study::Maximo{1970, 40, {}}));
    EXPECT_EQ(Serie(f).maximos.back(), (study::Maximo{1973, 61.5, {}}));
    cmdDeshacer(f);
    EXPECT_EQ(Serie(f).maximos.size(), 12U);
}

// Two days of July's year 1990, and one of 1991's: 30 mm on 30/06/1991 still belong to 1990.
TEST_F(TallerDePrueba, UnRegistroDaLosMaximosDelAnioQueEmpiezaEnJulio)
{
    std::string texto = "fecha;mm\n";
    for (int dia = 1; dia <= 30; ++dia)
        texto += (dia < 10 ? "0" : "") + std::to_string(dia) + "/06/1991;" + (dia == 30 ? "30" : "1") + "\n";
    for (int dia = 1; dia <= 30; ++dia)
        texto += (dia < 10 ? "0" : "") + std::to_string(dia) + "/07/1991;" + (dia == 9 ? "12" : "1") + "\n";
    disco.Pon("/proy/diario.csv", texto);
    anfitrion->elegidos = {"/proy/diario.csv"};
    dlgImportaMaximos i;
    ASSERT_TRUE(Abre(i, s));
    EXPECT_EQ(i.clase, 0);
    i.mes = 6;
    LeeTodo(i);
    ASSERT_EQ(i.importacion.series.size(), 1U) << i.lblAvisos;
    OKButton(i, f);
    ASSERT_EQ(Serie(f).maximos.size(), 2U);
    EXPECT_EQ(Serie(f).maximos[0].anio, 1990);
    EXPECT_EQ(Serie(f).maximos[0].valor, 30);
    EXPECT_EQ(Serie(f).maximos[1].valor, 12);
}

}  // namespace
}  // namespace frequency
