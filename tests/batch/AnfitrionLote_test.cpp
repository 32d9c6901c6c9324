// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AnfitrionLote.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <string_view>

#include "model/Falla.h"

namespace {

using batch::AnfitrionLote;
using batch::LineaDeAviso;
using batch::Salidas;
using model::Mensaje;

/// Both outputs, caught.
struct Captura {
    std::string estandar;
    std::string errores;
    Salidas Hacia(bool terminal)
    {
        return {[this](std::string_view t) { estandar += t; }, [this](std::string_view t) { errores += t; },
                terminal};
    }
};

TEST(AnfitrionLote, UnAvisoEsUnaLinea)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), false, true);
    lote.Anfitrion().Avisa({"Sin datos", "Advertencia !", model::Icono::Exclamacion});
    EXPECT_EQ(c.errores, "[Advertencia !] Sin datos\n");
    EXPECT_EQ(c.estandar, "");
}

TEST(AnfitrionLote, UnAvisoSinTituloLlevaElNombreDelPrograma)
{
    EXPECT_EQ(LineaDeAviso("", "guardado"), "[SIRO] guardado\n");
}

TEST(AnfitrionLote, CadaSaltoDeLineaSeVeComoBarra)
{
    EXPECT_EQ(LineaDeAviso("T", "a\r\nb\rc\nd"), "[T] a / b / c / d\n");
    EXPECT_EQ(LineaDeAviso("T", "a\r\n\r\n\r\nb"), "[T] a /  /  / b\n");
    EXPECT_EQ(LineaDeAviso("T", "a\n\rb\r"), "[T] a /  / b / \n");
    EXPECT_EQ(LineaDeAviso("T\r\nU", "a"), "[T / U] a\n");
}

TEST(AnfitrionLote, LaRespuestaVaDetrasDeLaPregunta)
{
    Captura si;
    AnfitrionLote responde(si.Hacia(false), false, true);
    EXPECT_TRUE(responde.Anfitrion().Pregunta({"¿Seguir?\r\n", "Consulta", model::Icono::Pregunta}));
    EXPECT_EQ(si.errores, "[Consulta] ¿Seguir? /  -> Sí\n");

    Captura no;
    AnfitrionLote niega(no.Hacia(false), false, false);
    EXPECT_FALSE(niega.Anfitrion().Pregunta({"¿Seguir?", "", model::Icono::Pregunta}));
    EXPECT_EQ(no.errores, "[SIRO] ¿Seguir? -> No\n");
}

// 999 of a kind are written, the rest counted; other lines between them change nothing.
TEST(AnfitrionLote, DesdeLaMilesimaLineaIgualSoloSeCuenta)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), false, true);
    const auto anfitrion = lote.Anfitrion();
    for (int i = 1; i <= 32767; ++i)
        anfitrion.Avisa({"igual"});
    anfitrion.Avisa({"otra"});
    for (int i = 1; i <= 1000; ++i)
        EXPECT_TRUE(anfitrion.Pregunta({"¿Sigue?"}));
    for (int i = 1; i <= 999; ++i)
        anfitrion.Avisa({"justo"});
    std::string esperado;
    for (int i = 1; i <= 999; ++i)
        esperado += "[SIRO] igual\n";
    esperado += "[SIRO] otra\n";
    for (int i = 1; i <= 999; ++i)
        esperado += "[SIRO] ¿Sigue? -> Sí\n";
    for (int i = 1; i <= 999; ++i)
        esperado += "[SIRO] justo\n";
    EXPECT_EQ(c.errores, esperado);
    lote.CuentaRepetidas();
    EXPECT_EQ(c.errores, esperado + "[SIRO] igual (31768 veces más)\n[SIRO] ¿Sigue? -> Sí (1 veces más)\n");
}

TEST(AnfitrionLote, TerminarSaleConEstadoTres)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), false, true);
    int estado = -1;
    try {
        lote.Anfitrion().Termina();
    } catch (const model::FinDelPrograma& fin) {
        estado = fin.estado;
    }
    EXPECT_EQ(estado, 3);
}

TEST(AnfitrionLote, LaMarcaDeLaPizarraEsLaDeLasOpciones)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const auto anfitrion = lote.Anfitrion();
    EXPECT_TRUE(anfitrion.MarcaPizarra());
    anfitrion.PonMarcaPizarra(false);
    EXPECT_FALSE(anfitrion.MarcaPizarra());
    EXPECT_FALSE(AnfitrionLote(c.Hacia(false), false, true).Anfitrion().MarcaPizarra());
}

TEST(AnfitrionLote, LaPizarraReemplazaAgregaYAmplia)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const auto anfitrion = lote.Anfitrion();
    anfitrion.PonPizarra("uno\r\n");
    anfitrion.AgregaPizarra("dos");
    EXPECT_EQ(anfitrion.LeePizarra(), "uno\r\ndos");
    anfitrion.AmpliaPizarra("uno\r\ndos\r\ntres");
    EXPECT_EQ(anfitrion.LeePizarra(), "uno\r\ndos\r\ntres");
    anfitrion.AmpliaPizarra("uno\r\ndos\r\ntres");
    EXPECT_EQ(anfitrion.LeePizarra(), "uno\r\ndos\r\ntres");
    anfitrion.PonPizarra("");
    EXPECT_EQ(anfitrion.LeePizarra(), "");
    EXPECT_EQ(c.estandar + c.errores, "");
}

// 200000 bytes: more than three pieces, and a last one that isn't full.
TEST(AnfitrionLote, UnaPizarraLargaSaleEnteraYEnOrden)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const auto anfitrion = lote.Anfitrion();
    std::string texto;
    for (int i = 0; texto.size() < 200000; ++i)
        texto += std::to_string(i) + "\r\n";
    anfitrion.PonPizarra(texto.substr(0, 70001));
    anfitrion.AmpliaPizarra(texto.substr(0, 70002));
    anfitrion.AmpliaPizarra(texto);
    anfitrion.AgregaPizarra("fin");
    EXPECT_EQ(anfitrion.LeePizarra(), texto + "fin");
    EXPECT_EQ(c.estandar, "");
    lote.MuestraPizarra();
    EXPECT_EQ(c.estandar, texto + "fin");
}

// A run of 160 components hands up to 10 MB over after each of them: only what is new may be copied. The text
// begins with what the box holds; were that part copied again, it would show here.
TEST(AnfitrionLote, AmpliarSoloCopiaLoNuevo)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const auto anfitrion = lote.Anfitrion();
    anfitrion.PonPizarra("antes");
    anfitrion.AmpliaPizarra("ANTES y después");
    EXPECT_EQ(anfitrion.LeePizarra(), "antes y después");
}

TEST(AnfitrionLote, LaFechaEsDiaMesAnioYHora)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const std::string fecha = lote.Anfitrion().FechaHora();
    EXPECT_TRUE(std::regex_match(
        fecha,
        std::regex("(0[1-9]|[12][0-9]|3[01])/(0[1-9]|1[0-2])/20[0-9]{2} [0-2][0-9]:[0-5][0-9]:[0-6][0-9]")))
        << fecha;
}

TEST(AnfitrionLote, ElRelojNoVuelveAtras)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), true, true);
    const auto reloj = lote.Anfitrion().Reloj;
    const double antes = reloj();
    EXPECT_GT(antes, 0);
    EXPECT_GE(reloj(), antes);
}

TEST(AnfitrionLote, SinTerminalNoHayBarraDeAvance)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(false), false, true);
    const auto anfitrion = lote.Anfitrion();
    anfitrion.AbreAvance("un momento...");
    anfitrion.TextosAvance("P=60mm", "Tiempo de proceso: 0:0:1");
    anfitrion.BarraAvance(50);
    anfitrion.TextosAvance("P=70mm", "Tiempo de proceso: 0:0:2");
    anfitrion.CierraAvance();
    EXPECT_EQ(c.errores, "");
}

TEST(AnfitrionLote, EnUnTerminalLaBarraSeDibujaUnaVezPorPorcentajeYSeBorra)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(true), false, true);
    const auto anfitrion = lote.Anfitrion();
    anfitrion.AbreAvance("un momento...");
    anfitrion.TextosAvance("P=60mm", "0:0:1");
    // 0 of 30 places full.
    EXPECT_EQ(c.errores, "\r\x1b[K[..............................] 0 %  P=60mm  0:0:1");
    c.errores.clear();
    anfitrion.TextosAvance("P=61mm", "0:0:1");
    EXPECT_EQ(c.errores, "");
    anfitrion.BarraAvance(50);
    anfitrion.TextosAvance("P=62mm", "0:0:2");
    EXPECT_EQ(c.errores, "\r\x1b[K[###############...............] 50 %  P=62mm  0:0:2");
    c.errores.clear();
    anfitrion.CierraAvance();
    anfitrion.CierraAvance();
    EXPECT_EQ(c.errores, "\r\x1b[K");
    EXPECT_EQ(c.estandar, "");
}

TEST(AnfitrionLote, UnAvisoNoSeMezclaConLaBarra)
{
    Captura c;
    AnfitrionLote lote(c.Hacia(true), false, true);
    const auto anfitrion = lote.Anfitrion();
    anfitrion.TextosAvance("P=60mm", "0:0:1");
    c.errores.clear();
    anfitrion.Avisa({"cuidado", "", model::Icono::Ninguno});
    EXPECT_EQ(c.errores, "\r\x1b[K[SIRO] cuidado\n");
}

}  // namespace
