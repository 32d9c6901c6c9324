// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgTablaSalePDR.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "model/Disco.h"
#include "results/SerieDePrueba.h"

namespace results {
namespace {

using Celdas = std::array<std::string, NroColumnasQDR>;
using Textos = std::vector<std::string>;

class TablaCompleta : public pruebas::SerieDePrueba {
  protected:
    static constexpr std::size_t NroTitulos = 5;

    [[nodiscard]] const TablaQDR& Tabla() const { return f.MSFlexGridTablaSaleQDR; }
    [[nodiscard]] const std::vector<FilaQDR>& Filas() const { return Tabla().filas; }
    /// The rows below the titles in the order on show, a text each.
    [[nodiscard]] Textos Mostradas() const
    {
        Textos textos;
        for (std::size_t i = NroTitulos; i < Tabla().mostradas.size(); ++i)
            textos.push_back(Junta(Filas().at(Tabla().mostradas[i])));
        return textos;
    }
    static std::string Junta(const FilaQDR& fila)
    {
        std::string texto;
        for (const std::string& celda : fila.celdas)
            texto += celda + "|";
        return texto;
    }

    dlgTablaSalePDR f;
};

TEST_F(TablaCompleta, LosEncabezadosALaLetra)
{
    EXPECT_EQ(TituloDlgTablaSalePDR,
              "Serie de Tormentas Sintéticas: Resumen de Qpico, Escorrentía y Coef. Esc.");
    EXPECT_EQ(EncabezadosQDR(), (std::array<std::string_view, 8>{"Componente ", "Nro.", "P[mm]", "D[min]",
                                                                 "R[años]", "Qp[m3/s]", "E[m3]", "C[%]"}));
    EXPECT_EQ(forms::RotuloDe(RotulosTablaQDR, "cmdAplicarCambios").leyenda, "&Actualizar cambios");
    EXPECT_EQ(forms::RotuloDe(RotulosTablaQDR, "cmdImprimir").leyenda, "Imprimir");
}

TEST_F(TablaCompleta, CincoRenglonesDeTituloCruzanTodasLasColumnas)
{
    Abre(f, s);
    EXPECT_TRUE(f.abierta);
    const Textos textos = {model::Ruta("/proyectos", "Prueba_Conf.vlm"), "Un título",
                           "Ubicación: Un lugar - Cuenca: Un río", "SubCuenca: Un arroyo",
                           "Operador: Yo - 03/04/2011"};
    for (std::size_t i = 0; i < textos.size(); ++i) {
        Celdas celdas;
        celdas.fill(textos[i]);
        EXPECT_EQ(Filas().at(i), (FilaQDR{ClaseFila::Titulo, celdas})) << i;
    }
}

TEST_F(TablaCompleta, CadaComponenteConCadaTormentaYLosTotales)
{
    Abre(f, s);
    EXPECT_EQ(Mostradas(), (Textos{
                               "u-1|1|20|60|10|11.12|1001|41.12|",   //
                               "u-1|1|30|120|10|12.12|1002|41.25|",  //
                               "u-1|1|25|60|25|13.12|1003|41.38|",   //
                               "u-1|1|35|120|25|14.12|1004|41.5|",   //
                               "u-2|2|20|60|10|21.12|2001|42.12|",   //
                               "u-2|2|30|120|10|22.12|2002|42.25|",  //
                               "u-2|2|25|60|25|23.12|2003|42.38|",   //
                               "u-2|2|35|120|25|24.12|2004|42.5|",   //
                               "c-1|3|20|60|10|31.12|||",            //
                               "c-1|3|30|120|10|32.12|||",           //
                               "c-1|3|25|60|25|33.12|||",            //
                               "c-1|3|35|120|25|34.12|||",           //
                               "Escorrentía total ||20|60|10||5001|50.12|",
                               "Escorrentía total ||30|120|10||5002|50.25|",
                               "Escorrentía total ||25|60|25||5003|50.38|",
                               "Escorrentía total ||35|120|25||5004|50.5|",
                               "||||||||",
                           }));
    EXPECT_EQ(Filas().back().clase, ClaseFila::Cierre);
    EXPECT_EQ(Filas()[5].clase, ClaseFila::Componente);
    EXPECT_EQ(Filas()[17].clase, ClaseFila::Total);
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(TablaCompleta, LaLaminaSeEscribeComoNumeroDe32Bits)
{
    s.Serie.SerieP(1) = 20.1F;
    Abre(f, s);
    EXPECT_EQ(Filas()[5].celdas[2], "20.1");
}

TEST_F(TablaCompleta, LosBuclesMuevenElComponenteYLaTormentaDeMano)
{
    Abre(f, s);
    EXPECT_EQ(s.Control.IndComp, 4);
    EXPECT_EQ(s.Serie.IndSerie, 5);
    EXPECT_EQ(s.Tormenta.PpTormenta, 35);
    EXPECT_EQ(s.Tormenta.DurTormenta, 120);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
}

TEST_F(TablaCompleta, LasRepresasYLosLagosTampocoTienenEscorrentia)
{
    s.Resultados.Secuencia = {"", "u-1", "r-1", "l-1"};
    s.Red.ColUEHs.Anuncia(1);
    Abre(f, s);
    EXPECT_EQ(Mostradas()[4], "r-1|2|20|60|10|21.12|||");
    EXPECT_EQ(Mostradas()[8], "l-1|3|20|60|10|31.12|||");
}

TEST_F(TablaCompleta, SinElTildeDeUnaDuracionSusRenglonesYTotalesSeVan)
{
    DestildaD(D60);
    Abre(f, s);
    EXPECT_EQ(Mostradas(), (Textos{
                               "u-1|1|30|120|10|12.12|1002|41.25|",
                               "u-1|1|35|120|25|14.12|1004|41.5|",
                               "u-2|2|30|120|10|22.12|2002|42.25|",
                               "u-2|2|35|120|25|24.12|2004|42.5|",
                               "c-1|3|30|120|10|32.12|||",
                               "c-1|3|35|120|25|34.12|||",
                               "Escorrentía total ||30|120|10||5002|50.25|",
                               "Escorrentía total ||35|120|25||5004|50.5|",
                               "||||||||",
                           }));
}

TEST_F(TablaCompleta, UnaUltimaTormentaExcluidaDejaElRotuloSolo)
{
    DestildaR(R25);
    Abre(f, s);
    EXPECT_EQ(Mostradas().size(), 3 * 2 + 2 + 1U);
    EXPECT_EQ(Mostradas().back(), "Escorrentía total ||||||||");
    EXPECT_EQ(Filas().back().clase, ClaseFila::Cierre);
}

TEST_F(TablaCompleta, ConTodasExcluidasQuedaSoloElRotulo)
{
    s.frmConfigura.CheckR.fill(0);
    Abre(f, s);
    EXPECT_EQ(Mostradas(), (Textos{"Escorrentía total ||||||||"}));
}

TEST_F(TablaCompleta, UnaDuracionMenorQueElPasoQuedaFuera)
{
    s.Pasos.PasoPp = 61;
    Abre(f, s);
    EXPECT_EQ(Mostradas()[0], "u-1|1|30|120|10|12.12|1002|41.25|");
    EXPECT_EQ(Mostradas()[1], "u-1|1|35|120|25|14.12|1004|41.5|");
    s.Pasos.PasoPp = 60;
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Mostradas()[0], "u-1|1|20|60|10|11.12|1001|41.12|");
}

TEST_F(TablaCompleta, UnaPrimeraTormentaSinLaminaDejaSoloLosTitulos)
{
    s.Serie.SerieP(1) = 0;
    Abre(f, s);
    EXPECT_EQ(Filas().size(), NroTitulos);
    EXPECT_EQ(s.Control.IndComp, 1);
    EXPECT_EQ(s.Serie.IndSerie, 1);
}

TEST_F(TablaCompleta, UnaTormentaSinDuracionTerminaElLlenado)
{
    s.Serie.SerieD(3) = 0;
    Abre(f, s);
    EXPECT_EQ(Mostradas(), (Textos{"u-1|1|20|60|10|11.12|1001|41.12|", "u-1|1|30|120|10|12.12|1002|41.25|"}));
}

TEST_F(TablaCompleta, SinComponentesQuedaElEncabezadoSolo)
{
    Abre(f, s);
    s.Resultados.NroComponentes = 0;
    cmdAplicarCambios(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(Filas().empty());
    EXPECT_TRUE(Tabla().mostradas.empty());
}

TEST_F(TablaCompleta, AlVolverSigueALasCasillas)
{
    Abre(f, s);
    DestildaR(R10);
    EXPECT_EQ(Mostradas().size(), 17U);
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Mostradas().size(), 9U);
    s.frmConfigura.CheckR[R10] = 1;
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Mostradas().size(), 17U);
}

TEST_F(TablaCompleta, LoQueLaCorridaNoDejoQuedaVacioSinAvisos)
{
    Carga({{20, 60, 10}, {30, 120, 10}, {25, 60, 25}, {35, 120, 25}, {40, 180, 25}});
    Abre(f, s);
    EXPECT_EQ(Mostradas()[4], "u-1|1|40|180|25||||");
    EXPECT_EQ(Mostradas()[14], "c-1|3|40|180|25||||");
    EXPECT_EQ(Mostradas()[19], "Escorrentía total ||40|180|25||||");
    EXPECT_TRUE(anfitrion->Avisos().empty());
}

TEST_F(TablaCompleta, UnaSerieQueNoEstaSeAvisaYLoLlenadoQueda)
{
    s.Serie.SerieR.Dimensiona(2);
    Abre(f, s);
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<model::Mensaje>{{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique"}}));
    EXPECT_EQ(Mostradas().size(), 2U);
}

TEST_F(TablaCompleta, UnaSecuenciaMasCortaSeAvisa)
{
    s.Resultados.Secuencia = {"", "u-1"};
    Abre(f, s);
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(Mostradas().size(), 4U);
}

TEST_F(TablaCompleta, LasEntradasPidenMasDeUnaTormenta)
{
    s.Serie.NroSeriePDR = 1;
    EXPECT_FALSE(HayPlanillaPDR(s));
    s.Serie.NroSeriePDR = 2;
    EXPECT_TRUE(HayPlanillaPDR(s));
}

// --- order ---

class OrdenDeTabla : public TablaCompleta {
  protected:
    static constexpr int Nombre = 0, Nro = 1, P = 2, Q = 5, E = 6;

    OrdenDeTabla()
    {
        s.Serie.NroSeriePDR = 3;
        s.Serie.SerieP(1) = 100;  // after 20 and 25 as a number, before them as a text
        Abre(f, s);
    }
};

TEST_F(OrdenDeTabla, DosPulsacionesSubenYBajanYLaTerceraDevuelveElDado)
{
    const Textos dado = Mostradas();
    AlPulsarEncabezado(f, P);
    const Textos sube = {
        "u-1|1|25|60|25|13.12|1003|41.38|",
        "u-2|2|25|60|25|23.12|2003|42.38|",
        "c-1|3|25|60|25|33.12|||",
        "u-1|1|30|120|10|12.12|1002|41.25|",
        "u-2|2|30|120|10|22.12|2002|42.25|",
        "c-1|3|30|120|10|32.12|||",
        "u-1|1|100|60|10|11.12|1001|41.12|",
        "u-2|2|100|60|10|21.12|2001|42.12|",
        "c-1|3|100|60|10|31.12|||",
        "Escorrentía total ||25|60|25||5003|50.38|",
        "Escorrentía total ||30|120|10||5002|50.25|",
        "Escorrentía total ||100|60|10||5001|50.12|",
        "||||||||",
    };
    EXPECT_EQ(Mostradas(), sube);
    EXPECT_EQ(Tabla().columnaOrden, P);
    EXPECT_EQ(Tabla().sentido, Sentido::Ascendente);

    AlPulsarEncabezado(f, P);
    EXPECT_EQ(Tabla().sentido, Sentido::Descendente);
    EXPECT_EQ(Mostradas(), (Textos{sube[6], sube[7], sube[8], sube[3], sube[4], sube[5], sube[0], sube[1],
                                   sube[2], sube[11], sube[10], sube[9], sube[12]}));

    AlPulsarEncabezado(f, P);
    EXPECT_EQ(Tabla().columnaOrden, -1);
    EXPECT_EQ(Mostradas(), dado);

    AlPulsarEncabezado(f, P);
    EXPECT_EQ(Mostradas(), sube);
}

TEST_F(OrdenDeTabla, LosTitulosQuedanArriba)
{
    AlPulsarEncabezado(f, Q);
    AlPulsarEncabezado(f, Q);
    for (std::size_t i = 0; i < NroTitulos; ++i)
        EXPECT_EQ(Tabla().mostradas.at(i), i);
}

TEST_F(OrdenDeTabla, LasCeldasVaciasVanAlFinalEnAmbosSentidos)
{
    AlPulsarEncabezado(f, E);
    EXPECT_EQ(Mostradas()[0], "u-1|1|100|60|10|11.12|1001|41.12|");
    EXPECT_EQ(Mostradas()[6], "c-1|3|100|60|10|31.12|||");
    EXPECT_EQ(Mostradas()[8], "c-1|3|25|60|25|33.12|||");
    AlPulsarEncabezado(f, E);
    EXPECT_EQ(Mostradas()[0], "u-2|2|25|60|25|23.12|2003|42.38|");
    EXPECT_EQ(Mostradas()[6], "c-1|3|100|60|10|31.12|||");
    EXPECT_EQ(Mostradas()[8], "c-1|3|25|60|25|33.12|||");
}

TEST_F(OrdenDeTabla, LosNombresSeOrdenanComoTextoYLosIgualesConservanSuOrden)
{
    AlPulsarEncabezado(f, Nombre);
    EXPECT_EQ(Mostradas()[0], "c-1|3|100|60|10|31.12|||");
    EXPECT_EQ(Mostradas()[1], "c-1|3|30|120|10|32.12|||");
    EXPECT_EQ(Mostradas()[3], "u-1|1|100|60|10|11.12|1001|41.12|");
    AlPulsarEncabezado(f, Nombre);
    EXPECT_EQ(Mostradas()[0], "u-2|2|100|60|10|21.12|2001|42.12|");
    EXPECT_EQ(Mostradas()[1], "u-2|2|30|120|10|22.12|2002|42.25|");
    EXPECT_EQ(Mostradas()[8], "c-1|3|25|60|25|33.12|||");
}

TEST_F(OrdenDeTabla, OtraColumnaEmpiezaSubiendo)
{
    AlPulsarEncabezado(f, P);
    AlPulsarEncabezado(f, P);
    AlPulsarEncabezado(f, Q);
    EXPECT_EQ(Tabla().columnaOrden, Q);
    EXPECT_EQ(Tabla().sentido, Sentido::Ascendente);
    EXPECT_EQ(Mostradas()[0], "u-1|1|100|60|10|11.12|1001|41.12|");
    AlPulsarEncabezado(f, 8);
    AlPulsarEncabezado(f, -1);
    EXPECT_EQ(Tabla().columnaOrden, Q);
}

TEST_F(OrdenDeTabla, ElOrdenElegidoSigueAlVolverALlenar)
{
    AlPulsarEncabezado(f, Nro);
    AlPulsarEncabezado(f, Nro);
    DestildaR(R10);
    cmdAplicarCambios(f, s);
    EXPECT_EQ(Mostradas(), (Textos{"c-1|3|25|60|25|33.12|||", "u-2|2|25|60|25|23.12|2003|42.38|",
                                   "u-1|1|25|60|25|13.12|1003|41.38|",
                                   "Escorrentía total ||25|60|25||5003|50.38|", "||||||||"}));
}

TEST_F(OrdenDeTabla, SeGuardaYSeCopiaEnElOrdenALaVista)
{
    s.Configuracion.TituloProyecto = "El \"gran\" río";
    s.Serie.NroSeriePDR = 2;
    s.Resultados.Secuencia = {"", "u-1", "c-1"};
    s.Resultados.NroComponentes = 2;
    s.Red.ColUEHs.Anuncia(1);
    cmdAplicarCambios(f, s);
    AlPulsarEncabezado(f, P);
    const std::string conf = model::Ruta("/proyectos", "Prueba_Conf.vlm");
    EXPECT_EQ(ComoCsv(ComoPlanilla(Tabla())),
              "\"" + conf +
                  "\"\r\n"
                  "\"El \"\"gran\"\" río\"\r\n"
                  "\"Ubicación: Un lugar - Cuenca: Un río\"\r\n"
                  "\"SubCuenca: Un arroyo\"\r\n"
                  "\"Operador: Yo - 03/04/2011\"\r\n"
                  "\"Componente \",\"Nro.\",\"P[mm]\",\"D[min]\",\"R[años]\",\"Qp[m3/s]\","
                  "\"E[m3]\",\"C[%]\"\r\n"
                  "\"u-1\",1,30,120,10,12.12,1002,41.25\r\n"
                  "\"c-1\",2,30,120,10,22.12,,\r\n"
                  "\"u-1\",1,100,60,10,11.12,1001,41.12\r\n"
                  "\"c-1\",2,100,60,10,21.12,,\r\n"
                  "\"Escorrentía total \",,30,120,10,,5002,50.25\r\n"
                  "\"Escorrentía total \",,100,60,10,,5001,50.12\r\n");
    AlPulsarEncabezado(f, P);
    AlPulsarEncabezado(f, P);
    EXPECT_EQ(ComoTexto(ComoPlanilla(Tabla())),
              conf +
                  "\r\n"
                  "El \"gran\" río\r\n"
                  "Ubicación: Un lugar - Cuenca: Un río\r\n"
                  "SubCuenca: Un arroyo\r\n"
                  "Operador: Yo - 03/04/2011\r\n"
                  "Componente \tNro.\tP[mm]\tD[min]\tR[años]\tQp[m3/s]\tE[m3]\tC[%]\r\n"
                  "u-1\t1\t100\t60\t10\t11.12\t1001\t41.12\r\n"
                  "u-1\t1\t30\t120\t10\t12.12\t1002\t41.25\r\n"
                  "c-1\t2\t100\t60\t10\t21.12\t\t\r\n"
                  "c-1\t2\t30\t120\t10\t22.12\t\t\r\n"
                  "Escorrentía total \t\t100\t60\t10\t\t5001\t50.12\r\n"
                  "Escorrentía total \t\t30\t120\t10\t\t5002\t50.25\r\n");
}

TEST_F(OrdenDeTabla, UnRotuloSinTotalNoSeGuarda)
{
    s.frmConfigura.CheckR.fill(0);
    s.Resultados.NroComponentes = 3;
    cmdAplicarCambios(f, s);
    const std::string csv = ComoCsv(ComoPlanilla(Tabla()));
    EXPECT_EQ(csv.find("total"), std::string::npos);
    EXPECT_TRUE(csv.ends_with("\"C[%]\"\r\n"));
}

TEST_F(OrdenDeTabla, UnaTablaVaciaEsSuEncabezado)
{
    EXPECT_EQ(ComoTexto(ComoPlanilla(TablaQDR{})),
              "Componente \tNro.\tP[mm]\tD[min]\tR[años]\tQp[m3/s]\tE[m3]\tC[%]\r\n");
}

TEST_F(OrdenDeTabla, DeUnBloqueSeCopianSusCeldasYDeUnTituloSuTextoUnaVez)
{
    EXPECT_EQ(BloqueComoTexto(Tabla(),
                              {.primeraFila = 3, .ultimaFila = 6, .primeraColumna = 0, .ultimaColumna = 3}),
              "SubCuenca: Un arroyo\r\nOperador: Yo - 03/04/2011\r\nu-1\t1\t100\t60\r\nu-1\t1\t30\t120\r\n");
    EXPECT_EQ(BloqueComoTexto(Tabla(),
                              {.primeraFila = 5, .ultimaFila = 5, .primeraColumna = 5, .ultimaColumna = 99}),
              "11.12\t1001\t41.12\r\n");
    EXPECT_EQ(BloqueComoTexto(Tabla(), {.primeraFila = 9999, .ultimaFila = 9999}), "");
}

}  // namespace
}  // namespace results
