// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteEventos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "calibration/taller/dlgImportaObservada.h"
#include "calibration/taller/dlgRecesion.h"
#include "model/Disco.h"
#include "model/VidaProyecto.h"
#include "study/Abierto.h"

namespace calibration {
namespace {

using study::Punto;

/// The sample project, in a folder of its own.
struct DeEventos : testing::Test {
    DeEventos()
    {
        std::filesystem::copy(SIRO_DATA_DIR, carpeta.Camino(), std::filesystem::copy_options::recursive);
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = model::DiscoDelSistema();
        s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = carpeta.Camino().string();
        model::AbreProyectoDe(s, model::Ruta(carpeta.Ruta("Proyectos"), "Quelmar_Conf.vlm"));
        s.Tormenta.PpTormenta = 80;
        s.Tormenta.DurTormenta = 120;
        s.Pasos.PasoPp = 10;
        s.Pasos.PasoQ = 5;
        anfitrion->sucesos.clear();
        estudio.Sigue();
        Actualiza();
    }
    void Actualiza()
    {
        Toma(f);
        Toma(m, f);
    }
    void PonFila(forms::Grilla& g, int fila, const std::vector<std::string>& celdas)
    {
        for (std::size_t c = 0; c < celdas.size(); ++c)
            g.Pon({fila, static_cast<int>(c)}, celdas[c]);
    }
    const study::Evento& Evento(int i = 0) const
    {
        return AjusteDe(f).eventos.at(static_cast<std::size_t>(i));
    }
    const study::Observacion& Observacion() const { return Evento(f.evento).observaciones.at(0); }
    bool Avisa(std::string_view que) const { return m.lblAvisos.find(que) != std::string::npos; }
    const forms::Serie* SerieDe(std::string_view leyenda) const
    {
        const auto& series = m.Grafico.series;
        const auto hallada = std::find_if(series.begin(), series.end(),
                                          [&](const forms::Serie& una) { return una.leyenda == leyenda; });
        return hallada == series.end() ? nullptr : &*hallada;
    }

    apoyo::CarpetaTemporal carpeta{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
    study::Abierto estudio{s};
    dlgAjuste f{estudio, s};
    AjusteEventos m = NuevaAjusteEventos();
};

TEST_F(DeEventos, SinEventosLaPaginaLoDice)
{
    EXPECT_TRUE(Avisa("No hay hidrograma de la corrida. No hay ningún evento."));
    EXPECT_TRUE(m.Grafico.series.empty());
    EXPECT_FALSE(m.componentes.empty());
    EXPECT_EQ(m.distribuciones.size(), 8U);
}

TEST_F(DeEventos, SeAgreganSeDuplicanSeOrdenanYSeQuitan)
{
    cmdNuevoEvento(f);
    EXPECT_EQ(Evento().nombre, "Evento 1");
    EXPECT_EQ(Observacion().componente, PrimeraSalida(ProyectoDe(f).Red));
    EXPECT_NE(Observacion().componente, "");
    Actualiza();
    m.txtNombre = "Marzo";
    EXPECT_TRUE(txt_AlSalir(m, f, s, "txtNombre"));
    PonFila(m.grdValores, 1, {"0", "1.5"});
    grdValores_Asienta(m, f);
    cmdDuplicaEvento(f);
    EXPECT_EQ(f.evento, 1);
    EXPECT_EQ(Evento(1).nombre, "Marzo (copia)");
    EXPECT_EQ(Evento(1).observaciones[0].puntos, (std::vector<Punto>{{0, 1.5}}));
    EXPECT_NE(Evento(1).observaciones[0].archivo, Evento(0).observaciones[0].archivo);
    cmdMueveEvento(f, -1);
    EXPECT_EQ(f.evento, 0);
    EXPECT_EQ(Evento(0).nombre, "Marzo (copia)");
    cmdMueveEvento(f, -1);
    EXPECT_EQ(Evento(0).nombre, "Marzo (copia)");
    cmdQuitaEvento(f);
    EXPECT_EQ(AjusteDe(f).eventos.size(), 1U);
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Quitar el evento");
    for (int i = 0; i < 6; ++i)
        cmdDeshacer(f);
    EXPECT_TRUE(AjusteDe(f).eventos.empty());
}

TEST_F(DeEventos, CadaCampoLlegaAlEstudioYElQueNoSirveSeRechaza)
{
    cmdNuevoEvento(f);
    Actualiza();
    const auto pone = [&](std::string AjusteEventos::*texto, const char* valor, std::string_view control) {
        m.*texto = valor;
        return txt_AlSalir(m, f, s, control);
    };
    EXPECT_TRUE(pone(&AjusteEventos::txtInicio, "4/3/2019 6:05", "txtInicio"));
    EXPECT_EQ(Evento().inicio, "2019-03-04 06:05");
    EXPECT_FALSE(pone(&AjusteEventos::txtInicio, "marzo", "txtInicio"));
    EXPECT_EQ(anfitrion->Avisos().back().texto,
              "El inicio es una fecha con su hora, como 2019-03-04 12:00 o 04/03/2019 12:00.");
    EXPECT_TRUE(pone(&AjusteEventos::txtPesoEvento, "2,5", "txtPesoEvento"));
    EXPECT_FALSE(pone(&AjusteEventos::txtPesoEvento, "-1", "txtPesoEvento"));
    EXPECT_TRUE(pone(&AjusteEventos::txtLamina, "45.5", "txtLamina"));
    EXPECT_TRUE(pone(&AjusteEventos::txtDuracion, "90", "txtDuracion"));
    EXPECT_FALSE(pone(&AjusteEventos::txtDuracion, "90.5", "txtDuracion"));
    EXPECT_TRUE(pone(&AjusteEventos::txtPromedio, "10", "txtPromedio"));
    EXPECT_TRUE(pone(&AjusteEventos::txtPesoObservacion, "3", "txtPesoObservacion"));
    EXPECT_TRUE(pone(&AjusteEventos::txtFuente, "INA", "txtFuente"));
    cmbPapel_Click(f, 1);
    cmbOrigen_Click(f, 2);
    cmbDistribucion_Click(f, 3);
    cmbMagnitud_Click(f, 1);
    cmbInterpolacion_Click(f, 1);
    cmbComponente_Click(m, f, 0);
    const study::Evento e = Evento();
    EXPECT_EQ(e.peso, 2.5);
    EXPECT_EQ(e.papel, "valida");
    EXPECT_EQ(e.lluvia,
              (study::LluviaDeEvento{.origen = "lamina", .lamina = 45.5, .duracion = 90, .distribucion = 3}));
    EXPECT_EQ(Observacion().promedio, 10);
    EXPECT_EQ(Observacion().peso, 3);
    EXPECT_EQ(Observacion().fuente, "INA");
    EXPECT_EQ(Observacion().magnitud, "nivel");
    EXPECT_EQ(Observacion().interpolacion, "lineal");
    EXPECT_EQ(Observacion().componente, m.componentes[0]);
    Actualiza();
    EXPECT_EQ(m.txtInicio, "2019-03-04 06:05");
    EXPECT_EQ(m.grdValores.columnas[1].titulo, "  Nivel [m]  ");
}

TEST_F(DeEventos, LasFilasEnterasSonLosValoresLasOtrasEsperanYSeDicen)
{
    cmdNuevoEvento(f);
    Actualiza();
    PonFila(m.grdValores, 1, {"20", "3"});
    PonFila(m.grdValores, 2, {"10", "2"});
    PonFila(m.grdValores, 3, {"20", "9"});
    PonFila(m.grdValores, 4, {"30"});
    grdValores_Asienta(m, f);
    Actualiza();
    EXPECT_EQ(Observacion().puntos, (std::vector<Punto>{{10, 2}, {20, 3}}));
    EXPECT_EQ(m.grdValores.Texto({1, 0}), "20") << "typed first, it stays where it was typed";
    EXPECT_TRUE(Avisa("Fila 3: el minuto 20 ya está: se toma el primero."));
    EXPECT_TRUE(Avisa("Fila 4: falta el segundo número."));
    PonFila(m.grdVentanas, 1, {"0", "15"});
    PonFila(m.grdVentanas, 2, {"100", "50", "2"});
    grdVentanas_Asienta(m, f);
    Actualiza();
    EXPECT_EQ(Observacion().ventanas, (std::vector<study::Ventana>{{0, 15, 1}, {100, 50, 2}}));
    EXPECT_TRUE(Avisa("La ventana de 100 a 50 min termina antes de empezar"));
    PonFila(m.grdCurva, 1, {"0.5", "1"});
    PonFila(m.grdCurva, 2, {"2.5", "30"});
    grdCurva_Asienta(m, f);
    EXPECT_EQ(Observacion().curva, (std::vector<study::PuntoDeCurva>{{0.5, 1}, {2.5, 30}}));
    cmbMagnitud_Click(f, 1);
    Actualiza();
    EXPECT_TRUE(Avisa("se interpolan los logaritmos de nivel y caudal."));
    cmdDeshacer(f);
    cmdDeshacer(f);
    Actualiza();
    EXPECT_TRUE(Observacion().curva.empty());
    EXPECT_EQ(m.grdCurva.Texto({1, 0}), "");
}

TEST_F(DeEventos, ElGraficoMuestraLluviaCorridaYPuntosConSuComparacion)
{
    cmdNuevoEvento(f);
    Cambia(f, "Valores", [&](study::Ajuste& a) {
        ObservacionDe(f, a).puntos = {{0, 0}, {5, 0.5}, {62, 4}, {120, 9}, {400, 1}};
    });
    Actualiza();
    ASSERT_NE(SerieDe("Corrida"), nullptr) << m.corrida.motivo;
    ASSERT_NE(SerieDe("Lluvia media"), nullptr);
    ASSERT_NE(SerieDe("Observado"), nullptr);
    EXPECT_EQ(m.Grafico.tipo, forms::TipoGrafico::Combinacion);
    EXPECT_EQ(SerieDe("Lluvia media")->tipo, forms::TipoSerie::Escalon2D);
    EXPECT_TRUE(SerieDe("Lluvia media")->ejeSecundario);
    double lluvia = 0;
    for (const double celda : SerieDe("Lluvia media")->celdas)
        lluvia += celda;
    EXPECT_NEAR(lluvia, 80, 1e-3);
    const auto& puntos = SerieDe("Observado")->celdas;
    ASSERT_GE(puntos.size(), 80U);  // the run reaches the last reading, at 400 min in steps of 5
    EXPECT_EQ(puntos[0], 0.5);
    EXPECT_EQ(puntos[11], 4);  // 62 min is nearest to 60
    EXPECT_EQ(puntos[79], 1);
    EXPECT_TRUE(forms::EstaVacia(puntos[1]));
    EXPECT_TRUE(Avisa("La corrida, con los parámetros de ahora, "));
    EXPECT_TRUE(Avisa("5 pares."));
    EXPECT_TRUE(Avisa("El gráfico no muestra 1 lectura:"));  // that of minute 0
    const forms::Planilla p = PlanillaDeEventos(m, f);
    EXPECT_EQ(p.filas.at(2), (std::vector<std::string>{"62", "4", "4"}));
    cmbOrigen_Click(f, 1);
    Actualiza();
    EXPECT_EQ(SerieDe("Corrida"), nullptr);
    EXPECT_TRUE(Avisa("falta elegir la tormenta registrada."));
    ASSERT_FALSE(m.tormentas.empty());
    cmbTormenta_Click(m, f, 0);
    Actualiza();
    EXPECT_NE(SerieDe("Corrida"), nullptr) << m.corrida.motivo;
}

TEST_F(DeEventos, MasDeCincoMilValoresNoSePuedenTocarEnLaTabla)
{
    cmdNuevoEvento(f);
    std::vector<Punto> puntos;
    for (int i = 0; i < 5001; ++i)
        puntos.push_back({i * 1.0, 1});
    Cambia(f, "Valores", [&](study::Ajuste& a) { ObservacionDe(f, a).puntos = puntos; });
    Actualiza();
    EXPECT_TRUE(m.demasiados);
    EXPECT_FALSE(m.grdValores.SePuedeEditar({1, 0}));
    grdValores_Asienta(m, f);
    EXPECT_EQ(Observacion().puntos, puntos);
}

// --- import ---

TEST_F(DeEventos, LoPegadoEsDeLaObservacionConSuUnidadYSuInicio)
{
    cmdNuevoEvento(f);
    dlgImportaObservada d;
    AbreTexto(d, f,
              "Fecha;Nivel (cm);Caudal (l/s)\n04/03/2019 12:00;50;1500\n04/03/2019 12:10;NA;2500\n"
              "04/03/2019 12:20;70;4000\n");
    EXPECT_EQ(d.pedido.unidad, "cm");  // as the heading says
    EXPECT_EQ(d.columnas, (std::vector<std::string>{"Nivel (cm)", "Caudal (l/s)"}));
    cmbColumna_Click(d, 1);
    EXPECT_EQ(d.pedido.unidad, "l/s");
    EXPECT_EQ(d.tblValores.planilla.filas.at(1), (std::vector<std::string>{"2019-03-04 12:10", "10", "2.5"}));
    d.txtHasta = "10";
    EXPECT_TRUE(txtTiempo_AlSalir(d, s));
    EXPECT_EQ(d.importacion.puntos.size(), 2U);
    d.txtDesde = "20";
    EXPECT_FALSE(txtTiempo_AlSalir(d, s));
    d.txtDesde = d.txtHasta = "";
    EXPECT_TRUE(txtTiempo_AlSalir(d, s));
    OKButton(d, f);
    EXPECT_TRUE(d.aceptada);
    EXPECT_EQ(Evento().inicio, "2019-03-04 12:00");
    EXPECT_EQ(Observacion().magnitud, "caudal");
    EXPECT_EQ(Observacion().puntos, (std::vector<Punto>{{0, 1.5}, {10, 2.5}, {20, 4}}));
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Importar valores observados");
}

TEST_F(DeEventos, UnArchivoQueNoTieneNadaSeDiceYNoSeToma)
{
    cmdNuevoEvento(f);
    dlgImportaObservada d;
    anfitrion->elegidos = {carpeta.Ruta("no.csv")};
    EXPECT_FALSE(AbreArchivo(d, f, s));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    AbreTexto(d, f, "nada");
    EXPECT_TRUE(d.importacion.puntos.empty());
    EXPECT_NE(d.lblAvisos.find("Ningún renglón tiene un tiempo"), std::string::npos);
}

// --- base flow ---

TEST_F(DeEventos, ElCaudalBaseSeAplicaEnElEditorSoloAPedido)
{
    cmdNuevoEvento(f);
    Cambia(f, "Valores", [&](study::Ajuste& a) {
        // 3.2·2.7183^(-t/12.5) from 10 h on
        ObservacionDe(f, a).puntos = {{0, 1},
                                      {300, 9},
                                      {600, 1.4378449956584489},
                                      {720, 1.225249372035929},
                                      {900, 0.96381374647364126},
                                      {1200, 0.646061947356264}};
    });
    dlgRecesion d;
    Abre(d, f);
    d.txtDesde = "600";
    EXPECT_TRUE(txtTiempo_AlSalir(d, f, s));
    EXPECT_NEAR(d.ajuste.K, 12.5, 1e-9);
    EXPECT_EQ(d.lblResultado.substr(0, d.lblResultado.find(", con")), "Q0 = 3.2 m3/s, K = 12.5 h");
    EXPECT_EQ(d.tblUnidades.planilla.filas.size(), d.reparto.unidades.size());
    EXPECT_TRUE(d.Grafico.ejeYLogaritmico);
    EXPECT_EQ(
        d.lblAviso.substr(0, d.lblAviso.find(". ") + 1),
        "La recta pasa por encima de lo observado en 1 lectura, la primera en el minuto 0: allí no puede ser "
        "el caudal base.");
    d.txtHasta = "500";
    EXPECT_FALSE(txtTiempo_AlSalir(d, f, s));
    int veces = 0;
    model::Red red = ProyectoDe(f).Red;
    model::Tormenta tormenta;
    f.Aplica = [&](const CambioDeProyecto& cambio) {
        ++veces;
        cambio(red, tormenta);
        return true;
    };
    cmdAplicar(d, f);
    EXPECT_EQ(veces, 1);
    double total = 0;
    for (const model::UEH& u : red.ColUEHs)
        total += u.KRecesion == 12.5F ? double{u.Q0Recesion} : 0;
    EXPECT_NEAR(total, 3.2, 1e-5);
    EXPECT_NE(d.lblAviso.find("Ctrl+Z"), std::string::npos);
    cmdAplicar(d, f);
    EXPECT_EQ(d.lblAviso, "Las unidades ya tenían esos valores.");
    f.Aplica = [](const CambioDeProyecto&) { return false; };
    cmdAplicar(d, f);
    EXPECT_EQ(d.lblAviso, "No se aplicó: el editor no se abrió.");
}

}  // namespace
}  // namespace calibration
