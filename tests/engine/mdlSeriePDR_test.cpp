// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/mdlSeriePDR.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "engine/RedDeUEHs.h"
#include "model/ArchivoConf.h"
#include "model/Disco.h"
#include "model/Texto.h"

namespace engine {
namespace {

using model::Icono;
using model::Mensaje;

struct Tormenta {
    float P;
    std::int16_t D, R;
};

const std::string Tabla = "/trabajo/SaleTablasQDRs_tem.txt";
const std::string Guardada =
    "La tabla de resultados Q-D-R se guarda completa en el archivo de texto <SaleTablasQDRs_tem.txt>. Puede "
    "leer "
    "directamente este archivo con un editor de texto o bien importar archivo desde Excel como <delimitado>, "
    "con "
    "separador <,> y formato <general>\"Tiempo de proceso: \r\n\r\n\r\nTiempo total del proceso: ";
const std::string TituloGuardada =
    "La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>";

class Serie : public testing::Test, public pruebas::RedDeUEHs {
  protected:
    Serie()
    {
        s.Tormenta.FormaPp = 2;
        PonUEH("u-1", "c-1");
        PonCauce("c-1", "0").LongCauce = 240;
        GuardaProyecto();
    }
    void Carga(const std::vector<Tormenta>& tormentas)
    {
        const auto n = static_cast<std::int16_t>(tormentas.size());
        s.Serie.NroSeriePDR = n;
        s.Serie.SerieP.Dimensiona(n);
        s.Serie.SerieD.Dimensiona(n);
        s.Serie.SerieR.Dimensiona(n);
        for (int i = 1; i <= n; ++i) {
            const Tormenta& t = tormentas[static_cast<std::size_t>(i) - 1];
            s.Serie.SerieP(i) = t.P;
            s.Serie.SerieD(i) = t.D;
            s.Serie.SerieR(i) = t.R;
        }
    }
    /// Changes a flag by the configuration file, as the user's ticks get to a run.
    void Desmarca(std::vector<std::size_t> recurrencias, std::vector<std::size_t> duraciones)
    {
        s.frmConfigura.CheckR.fill(1);
        s.frmConfigura.CheckD.fill(1);
        for (const std::size_t r : recurrencias)
            s.frmConfigura.CheckR[r] = 0;
        for (const std::size_t d : duraciones)
            s.frmConfigura.CheckD[d] = 0;
        model::cmdAplicar(s);
        anfitrion->sucesos.clear();
    }
    [[nodiscard]] std::vector<std::string> Renglones() const
    {
        std::vector<std::string> renglones;
        const std::string bytes = disco.Bytes(Tabla);
        for (std::size_t i = 0; i < bytes.size();) {
            const std::size_t fin = bytes.find("\r\n", i);
            renglones.push_back(model::DeWindows1252(bytes.substr(i, fin - i)));
            i = fin + 2;
        }
        return renglones;
    }
};

TEST_F(Serie, LaTablaALaLetra)
{
    s.Configuracion.TituloProyecto = s.frmConfigura.TextProyecto = "Título";
    s.Configuracion.Operador = s.frmConfigura.TextOpera = "Yo";
    GuardaProyecto();
    Carga({{60, 30, 10}, {30, 30, 2}});
    EXPECT_EQ(CorreSeriePDR(s), FinSerie::Completa);
    EXPECT_EQ(
        Renglones(),
        (std::vector<std::string>{
            "\"SIRO - Modelo de Simulación Hidrológica\"",
            "\"" + model::Ruta("/proyectos", "Prueba_Conf.vlm") + "\"", "\"Título\"", "\"\"", "\"\"", "\"\"",
            "\"Yo - 03/04/2011 10:20:30\"", "\"SIMULACION PARA SERIE PDR DE TORMENTAS SINTETICAS  \"",
            "\"Componente\",\"Nro.\",\"P[mm]\",\"D[min]\",\"R[años]\",\"Q[m3/s]\",\"E[m3]\",\"C[%]\"",
            // 20 and 10 mm a step of 10 min on 6 ha: 2 and 1 m3/s, all of the rain
            "\"u-1\",1,60,30,10,2,3600,100", "\"u-1\",1,30,30,2,1,1800,100", "\"c-1\",2,60,30,10,2",
            "\"c-1\",2,30,30,2,1"}));
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{Guardada + "0:0:0", TituloGuardada, Icono::Exclamacion}}));
    EXPECT_EQ(anfitrion->tablasSerie, 1);
    EXPECT_EQ(s.Serie.IndSerie, 3);
    EXPECT_EQ(s.Tormenta.PpTormenta, 30);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, "SaleTablasQDRs_tem.txt");
}

TEST_F(Serie, ElAvanceALaLetra)
{
    anfitrion->pasoReloj = 0;
    Carga({{60, 30, 10}, {30, 30, 2}, {10, 60, 5}});
    CorreSeriePDR(s);
    EXPECT_EQ(anfitrion->avance,
              (std::vector<std::string>{
                  "abre un momento...esta opción puede tardar varios minutos...", "barra 0", "textos |PDR",
                  "textos P=60mm  -   D=30min  -   R=10años|Tiempo de proceso: 0:0:0", "barra 67",
                  "textos P=30mm  -   D=30min  -   R=2años|Tiempo de proceso: 0:0:0", "barra 100",
                  "textos P=10mm  -   D=60min  -   R=5años|Tiempo de proceso: 0:0:0", "barra 0", "cierra"}));
}

TEST_F(Serie, ElTiempoVaEnHorasMinutosYSegundosSinCeros)
{
    Carga({{60, 30, 10}});
    anfitrion->pasoReloj = 3723;  // each look at the clock: 1 h 2 min 3 s later
    CorreSeriePDR(s);
    EXPECT_EQ(anfitrion->avance[3], "textos P=60mm  -   D=30min  -   R=10años|Tiempo de proceso: 1:2:3");
    EXPECT_EQ(anfitrion->Avisos()[0].texto, Guardada + "2:4:6");
}

TEST_F(Serie, LaPizarraQuedaApagadaYSinMarca)
{
    anfitrion->marcaPizarra = true;
    s.Control.SalidaPizarra = true;
    Carga({{60, 30, 10}});
    CorreSeriePDR(s);
    EXPECT_FALSE(anfitrion->marcaPizarra);
    EXPECT_FALSE(s.Control.SalidaPizarra);
    EXPECT_FALSE(disco.Esta("/trabajo/SalePizarra1_tem.txt"));
    // what the Slate, switched on, would show: the last storm's table
    EXPECT_NE(s.Control.TextoPizarra.find("- Pp[mm] Q[m3/s] "), std::string::npos);
}

TEST_F(Serie, TodasDeseleccionadasDejanNueveRenglones)
{
    Desmarca({2}, {});  // R 10
    Carga({{60, 30, 10}, {30, 60, 10}});
    EXPECT_EQ(CorreSeriePDR(s), FinSerie::Completa);
    EXPECT_EQ(Renglones().size(), 9U);
    EXPECT_EQ(s.Resultados.QMax(1, 1), 0);
    EXPECT_EQ(anfitrion->avance.front(), "abre un momento...esta opción puede tardar varios minutos...");
    EXPECT_EQ(anfitrion->avance.back(), "cierra");
}

TEST_F(Serie, UnaDuracionMenorQueElPasoSeSaltaSinAviso)
{
    s.Pasos.PasoPp = s.Pasos.PasoQ = 30;
    Carga({{60, 20, 10}, {60, 30, 10}});
    CorreSeriePDR(s);
    EXPECT_EQ(Renglones().size(), 11U);
    EXPECT_EQ(s.Resultados.QMax(1, 1), 0);
    EXPECT_GT(s.Resultados.QMax(1, 2), 0);
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);  // the one of the table
}

TEST_F(Serie, UnaDuracionFueraDeLaListaNoSePuedeDeseleccionar)
{
    Desmarca({}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    Carga({{60, 45, 10}, {60, 60, 10}});
    CorreSeriePDR(s);
    EXPECT_GT(s.Resultados.QMax(1, 1), 0);
    EXPECT_EQ(s.Resultados.QMax(1, 2), 0);
    EXPECT_EQ(Renglones().size(), 11U);
}

TEST_F(Serie, R500SigueLaMarcaDeR5000YR5000NuncaCorre)
{
    const std::size_t R500 = 9, R5000 = 12;
    Carga({{60, 30, 500}, {60, 30, 5000}});
    Desmarca({R5000}, {});
    CorreSeriePDR(s);
    EXPECT_EQ(s.Resultados.QMax(1, 1), 0);
    EXPECT_EQ(s.Resultados.QMax(1, 2), 0);
    Desmarca({R500}, {});
    CorreSeriePDR(s);
    EXPECT_GT(s.Resultados.QMax(1, 1), 0);
    EXPECT_EQ(s.Resultados.QMax(1, 2), 0);
    EXPECT_EQ(s.frmConfigura.CheckR[R500], 0);  // the boxes stand as they were loaded
    EXPECT_EQ(s.frmConfigura.CheckR[R5000], 1);
}

TEST_F(Serie, UnaLaminaCeroDetieneLaSerieYDejaElAvanceAbierto)
{
    Carga({{60, 30, 10}, {0, 30, 10}, {60, 30, 10}});
    EXPECT_EQ(CorreSeriePDR(s), FinSerie::TormentaNula);
    EXPECT_FALSE(disco.Esta(Tabla));
    EXPECT_TRUE(anfitrion->avanceAbierto);
    EXPECT_GT(s.Resultados.QMax(1, 1), 0);
    EXPECT_EQ(s.Resultados.QMax(1, 3), 0);
    EXPECT_EQ(s.Serie.IndSerie, 2);
    EXPECT_EQ(s.Tormenta.PpTormenta, 0);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Serie, SinTormentasSeAvisaYElAvanceSeCierra)
{
    EXPECT_EQ(CorreSeriePDR(s), FinSerie::SinTormentas);
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<Mensaje>{{"No se han cargado tormentas PDRs. Para correr esta opción debe previamente "
                               "cargar un conjunto de "
                               "tormentas desde Menu Principal\\Entradas\\Precipitaciones, luego tildar la "
                               "opción <c) Cargar una "
                               "tabla de Pp-D-R desde archivo> y pulsar el botón de cargar tabla PDR ...",
                               "Advertencia !", Icono::Exclamacion}}));
    EXPECT_FALSE(anfitrion->avanceAbierto);
}

TEST_F(Serie, UnaPruebaRechazadaSeMuestraUnaVezPorTormentaYLaSerieSigue)
{
    s.Red.UEHs(1).VelMedia = 0;
    GuardaProyecto();
    Carga({{60, 30, 10}, {30, 30, 10}, {20, 30, 10}});
    EXPECT_EQ(CorreSeriePDR(s, 2), FinSerie::Completa);
    EXPECT_EQ(anfitrion->Avisos().size(), 4U);  // and the one of the table
    EXPECT_EQ(Renglones().size(), 9U + 6U);
}

TEST_F(Serie, LaTablaQueNoSePuedeEscribirSeInforma)
{
    Carga({{60, 30, 10}});
    s.Proyecto.DirTrabajo = "/no/esta";
    EXPECT_EQ(CorreSeriePDR(s), FinSerie::Completa);
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<Mensaje>{{"El resguardo de resultados en el archivo <SaleTablasQDRs_tem.txt> ha fallado",
                               "Falla en resguardo de archivo", Icono::Exclamacion}}));
    EXPECT_GT(s.Resultados.QMax(1, 1), 0);
}

TEST_F(Serie, SaltaTormentaConLaminaCeroDejaLaMarcaComoEstaba)
{
    Carga({{0, 30, 10}, {60, 30, 10}});
    s.Configuracion.CheckR.fill(1);
    s.Configuracion.CheckD.fill(1);
    s.Serie.SaltarTormenta = true;
    s.Serie.IndSerie = 1;
    SaltaTormenta(s);
    EXPECT_TRUE(s.Serie.SaltarTormenta);
    s.Serie.IndSerie = 2;
    SaltaTormenta(s);
    EXPECT_FALSE(s.Serie.SaltarTormenta);
}

TEST_F(Serie, ConUnoOVariosHilosTodoQuedaIgual)
{
    PonUEH("u-2", "c-1").LongitudMax = 5000;
    s.Red.UEHs(2).Q0Recesion = 0.3F;
    s.Red.UEHs(2).KRecesion = 2;
    GuardaProyecto();
    std::vector<Tormenta> tormentas;
    for (int i = 1; i <= 40; ++i)
        tormentas.push_back(
            {static_cast<float>(10 + i % 13 * 7), static_cast<std::int16_t>(10 + i * 37 % 170), 20});
    Carga(tormentas);
    s.Tormenta.DistriPp = 2;
    model::Siro uno = s, tres = s;
    EXPECT_EQ(CorreSeriePDR(uno, 1), FinSerie::Completa);
    const std::string tablaUno = disco.Bytes(Tabla);
    EXPECT_EQ(CorreSeriePDR(tres, 3), FinSerie::Completa);
    EXPECT_TRUE(apoyo::MismoTexto(tablaUno, disco.Bytes(Tabla)));
    EXPECT_EQ(uno.Resultados.QMax, tres.Resultados.QMax);
    EXPECT_EQ(uno.Resultados.EscUEH, tres.Resultados.EscUEH);
    EXPECT_EQ(uno.Resultados.CoefEscUEH, tres.Resultados.CoefEscUEH);
    EXPECT_EQ(uno.Resultados.EscTotal, tres.Resultados.EscTotal);
    EXPECT_EQ(uno.Resultados.CoefEscTotal, tres.Resultados.CoefEscTotal);
    EXPECT_EQ(uno.Resultados.QSale, tres.Resultados.QSale);
    EXPECT_EQ(uno.Hietograma.PpAcum, tres.Hietograma.PpAcum);
    EXPECT_EQ(uno.Hietograma.IntensidadPp, tres.Hietograma.IntensidadPp);
    EXPECT_EQ(uno.Control.TextoPizarra, tres.Control.TextoPizarra);
    EXPECT_EQ(uno.Resultados.VolSale, tres.Resultados.VolSale);
    EXPECT_EQ(uno.Serie.IndSerie, tres.Serie.IndSerie);
}

TEST_F(Serie, CadaTormentaDaLoQueDaSola)
{
    const std::vector<Tormenta> tormentas = {{35, 60, 20}, {50, 90, 20}, {80, 120, 20}, {20, 30, 20}};
    Carga(tormentas);
    s.Tormenta.DistriPp = 3;
    CorreSeriePDR(s, 2);
    for (std::size_t i = 0; i < tormentas.size(); ++i) {
        model::Siro sola = s;
        sola.Serie.NroSeriePDR = 1;
        sola.Serie.SerieP.Dimensiona(1);
        sola.Serie.SerieD.Dimensiona(1);
        sola.Serie.SerieR.Dimensiona(1);
        sola.Serie.SerieP(1) = tormentas[i].P;
        sola.Serie.SerieD(1) = tormentas[i].D;
        sola.Serie.SerieR(1) = tormentas[i].R;
        CorreSeriePDR(sola);
        EXPECT_EQ(sola.Resultados.QMax(1, 1), s.Resultados.QMax(1, static_cast<int>(i) + 1)) << i;
        EXPECT_EQ(sola.Resultados.EscTotal(1), s.Resultados.EscTotal(static_cast<int>(i) + 1)) << i;
    }
}

}  // namespace
}  // namespace engine
