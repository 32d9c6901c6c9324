// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grilla.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "model/Siro.h"

namespace forms {
namespace {

using model::Icono;
using model::Mensaje;

constexpr auto DosYTres = std::to_array<ColumnaEditable>({{1}, {2}});
constexpr ReglasGrilla DeTabla{
    .encabezado = "^Indice|>H [m]   |> Q[m3/s]  ", .editables = DosYTres, .columnasFijas = 1};

constexpr auto Limitadas =
    std::to_array<ColumnaEditable>({{1, 15, "menor de 15"}, {2, 0.5, "entre 0 y 0.5"}});
constexpr ReglasGrilla DeComponentes{.encabezado = "^Nombre|^Vel.|^x|Orden",
                                     .editables = Limitadas,
                                     .sinNumero = SinNumero::Queda,
                                     .enterPoneCero = false,
                                     .tomaCaracter = [](char c) { return c >= '*' && c <= 'z' && c != '?'; }};

class UnaGrilla : public testing::Test {
  protected:
    explicit UnaGrilla(const ReglasGrilla& reglas = DeTabla, int filas = 3) : g(NuevaGrilla(reglas))
    {
        s.Anfitrion = anfitrion.Puerta();
        PonNroFilas(g, filas);
    }
    void Teclas(std::string_view texto)
    {
        for (const char c : texto)
            Escribe(g, s, std::string_view(&c, 1));
    }
    [[nodiscard]] std::string T(int fila, int columna) const { return g.Texto({fila, columna}); }
    [[nodiscard]] std::string UltimoAviso() const { return anfitrion->Avisos().back().texto; }

    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    Grilla g;
};

class GrillaDeComponentes : public UnaGrilla {
  protected:
    GrillaDeComponentes() : UnaGrilla(DeComponentes)
    {
        for (int fila = 1; fila <= 3; ++fila)
            g.Pon({fila, 0}, "c-" + std::to_string(fila));
    }
};

// --- heading, rows ---

TEST_F(UnaGrilla, ElEncabezadoDaTitulosYAlineaciones)
{
    ASSERT_EQ(g.NroColumnas(), 3);
    EXPECT_EQ(g.columnas[0], (ColumnaGrilla{"Indice", Alineacion::Centro, false}));
    EXPECT_EQ(g.columnas[1], (ColumnaGrilla{"H [m]   ", Alineacion::Derecha, true}));
    EXPECT_EQ(g.columnas[2], (ColumnaGrilla{" Q[m3/s]  ", Alineacion::Derecha, true}));
    EXPECT_EQ(ColumnasDeEncabezado("a|^b")[0].alineacion, Alineacion::Izquierda);
    EXPECT_EQ(T(0, 1), "H [m]   ");
}

TEST_F(UnaGrilla, ElCursorEmpiezaEnLaPrimeraColumnaEditable)
{
    EXPECT_EQ(g.actual, (Celda{1, 1}));
}

TEST_F(UnaGrilla, FueraDeLaGrillaEsFalla9)
{
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { (void)g.Texto({4, 1}); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { (void)g.Texto({1, 3}); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { (void)g.Texto({0, 3}); }), 9);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { g.Pon({0, 1}, "x"); }), 9);
}

TEST_F(UnaGrilla, AlCambiarElNumeroDeFilasLasQueQuedanConservanSuTexto)
{
    g.Pon({1, 1}, "a");
    g.Pon({3, 2}, "b");
    PonNroFilas(g, 2);
    EXPECT_EQ(g.NroFilas(), 2);
    PonNroFilas(g, 4);
    EXPECT_EQ(T(1, 1), "a");
    EXPECT_EQ(T(3, 2), "");
    EXPECT_EQ(T(4, 1), "");
}

TEST_F(UnaGrilla, SinLaFilaDelCursorEsteVuelveALaUltima)
{
    Mueve(g, {3, 2});
    PonNroFilas(g, 1);
    EXPECT_EQ(g.actual, (Celda{1, 2}));
    PonNroFilas(g, 0);
    EXPECT_EQ(g.actual, (Celda{1, 2}));
}

TEST_F(UnaGrilla, SinFilasNingunaTeclaHaceNada)
{
    PonNroFilas(g, 0);
    Teclas("1");
    for (const Tecla t : {Tecla::Enter, Tecla::Suprimir, Tecla::Arriba, Tecla::Abajo, Tecla::Izquierda,
                          Tecla::Derecha, Tecla::TabAtras})
        EXPECT_TRUE(Teclea(g, t).asentadas.empty());
    EXPECT_TRUE(Teclea(g, Tecla::Tab).sale);
    EXPECT_EQ(g.NroFilas(), 0);
    EXPECT_EQ(Copia(g, true), "");
}

TEST_F(UnaGrilla, VaciarDatosDejaLoQueNoSeEdita)
{
    g.Pon({1, 0}, "1");
    g.Pon({1, 1}, "2");
    g.Pon({3, 2}, "4");
    VaciaDatos(g);
    EXPECT_EQ(T(1, 0), "1");
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(3, 2), "");
    EXPECT_EQ(g.NroFilas(), 3);
}

// --- keys ---

TEST_F(UnaGrilla, LaPrimeraTeclaReemplazaYLasSiguientesSeAgregan)
{
    g.Pon({1, 1}, "77");
    Teclas("1");
    EXPECT_EQ(T(1, 1), "1");
    Teclas("2.5");
    EXPECT_EQ(T(1, 1), "12.5");
}

TEST_F(UnaGrilla, AlVolverAUnaCeldaLaPrimeraTeclaReemplazaDeNuevo)
{
    Teclas("12");
    Teclea(g, Tecla::Abajo);
    Teclea(g, Tecla::Arriba);
    Teclas("3");
    EXPECT_EQ(T(1, 1), "3");
}

TEST_F(UnaGrilla, LaComaSeHacePunto)
{
    Teclas("1,5");
    EXPECT_EQ(T(1, 1), "1.5");
}

TEST_F(UnaGrilla, UnaTeclaQueDejaUnTextoSinNumeroVaciaLaCelda)
{
    for (const std::string_view teclas : {"a", "12a", "-", ".", "1e", "1.2."}) {
        Mueve(g, {2, 1});
        Mueve(g, {1, 1});
        Teclas(teclas);
        EXPECT_EQ(T(1, 1), "") << teclas;
    }
    Escribe(g, s, "ñ");
    EXPECT_EQ(T(1, 1), "");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaGrilla, TrasUnaLetraSeSigueDesdeElVacio)
{
    Teclas("12a34");
    EXPECT_EQ(T(1, 1), "34");
}

TEST_F(UnaGrilla, EnterPasaALaFilaSiguienteYDeLaUltimaALaPrimera)
{
    Teclas("1");
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(g.actual, (Celda{2, 1}));
    Teclea(g, Tecla::Enter);
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(g.actual, (Celda{1, 1}));
    EXPECT_EQ(T(1, 1), "1");
}

TEST_F(UnaGrilla, LaCeldaSinNumeroALaQueLlegaEnterQuedaEnCero)
{
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(2, 1), "0");
    Teclas("5");
    EXPECT_EQ(T(2, 1), "5");
}

TEST_F(UnaGrilla, EnUnaGrillaDeUnaFilaEnterEmpiezaDeNuevo)
{
    PonNroFilas(g, 1);
    Teclas("12");
    const Efecto efecto = Teclea(g, Tecla::Enter);
    EXPECT_EQ(efecto.asentadas, (std::vector<Celda>{{1, 1}}));
    Teclas("3");
    EXPECT_EQ(T(1, 1), "3");
    Teclea(g, Tecla::Suprimir);
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(T(1, 1), "0");
}

TEST_F(UnaGrilla, SuprimirVaciaLaCelda)
{
    Teclas("12");
    Teclea(g, Tecla::Suprimir);
    EXPECT_EQ(T(1, 1), "");
    Teclas("3");
    EXPECT_EQ(T(1, 1), "3");
}

TEST_F(UnaGrilla, EnUnaColumnaQueNoSeEditaLasTeclasNoHacenNada)
{
    g.Pon({1, 2}, "7");
    PonEditable(g, 2, false);
    Mueve(g, {1, 2});
    Teclas("1");
    Teclea(g, Tecla::Suprimir);
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(T(1, 2), "7");
    EXPECT_EQ(g.actual, (Celda{1, 2}));
    PonEditable(g, 2, true);
    Teclas("1");
    EXPECT_EQ(T(1, 2), "1");
}

TEST_F(UnaGrilla, UnaFilaDeTitulosNoSeEdita)
{
    g.filas[0].esTitulo = true;
    g.Pon({1, 1}, "Altura");
    Teclas("1");
    Teclea(g, Tecla::Suprimir);
    EXPECT_EQ(T(1, 1), "Altura");
}

TEST_F(UnaGrilla, LasFlechasSeDetienenEnLosBordesYNoEntranEnColumnasFijas)
{
    Teclea(g, Tecla::Arriba);
    Teclea(g, Tecla::Izquierda);
    EXPECT_EQ(g.actual, (Celda{1, 1}));
    Teclea(g, Tecla::Derecha);
    Teclea(g, Tecla::Derecha);
    EXPECT_EQ(g.actual, (Celda{1, 2}));
    for (int i = 0; i < 4; ++i)
        Teclea(g, Tecla::Abajo);
    EXPECT_EQ(g.actual, (Celda{3, 2}));
}

TEST_F(UnaGrilla, TabRecorreLasCeldasYEnLosExtremosSale)
{
    EXPECT_TRUE(Teclea(g, Tecla::TabAtras).sale);
    Teclea(g, Tecla::Tab);
    EXPECT_EQ(g.actual, (Celda{1, 2}));
    Teclea(g, Tecla::Tab);
    EXPECT_EQ(g.actual, (Celda{2, 1}));
    Teclea(g, Tecla::TabAtras);
    EXPECT_EQ(g.actual, (Celda{1, 2}));
    Mueve(g, {3, 2});
    Teclas("4");
    const Efecto efecto = Teclea(g, Tecla::Tab);
    EXPECT_TRUE(efecto.sale);
    EXPECT_EQ(efecto.asentadas, (std::vector<Celda>{{3, 2}}));
    EXPECT_EQ(g.actual, (Celda{3, 2}));
}

TEST_F(UnaGrilla, UnaCeldaEditadaSeAsientaUnaVezAlDejarla)
{
    EXPECT_TRUE(Mueve(g, {2, 1}).asentadas.empty());
    Teclas("8");
    EXPECT_TRUE(Mueve(g, {2, 1}).asentadas.empty());
    EXPECT_EQ(Mueve(g, {1, 2}).asentadas, (std::vector<Celda>{{2, 1}}));
    EXPECT_TRUE(Deja(g).asentadas.empty());
    Teclea(g, Tecla::Suprimir);
    EXPECT_EQ(Deja(g).asentadas, (std::vector<Celda>{{1, 2}}));
}

TEST_F(UnaGrilla, ElCursorNoVaFueraNiAUnaColumnaFija)
{
    for (const Celda c : {Celda{0, 1}, Celda{4, 1}, Celda{1, 3}, Celda{1, 0}, Celda{1, -1}}) {
        Mueve(g, c);
        EXPECT_EQ(g.actual, (Celda{1, 1}));
    }
}

// --- a grid where letters pass ---

TEST_F(GrillaDeComponentes, UnaLetraPasaYSeLeeCero)
{
    Teclas("abc");
    EXPECT_EQ(T(1, 1), "abc");
    EXPECT_EQ(g.Numero({1, 1}), 0);
    EXPECT_FALSE(g.EsNumero({1, 1}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GrillaDeComponentes, UnCaracterQueNoSeTomaNoHaceNada)
{
    g.Pon({1, 1}, "7");
    Teclas("?");
    Escribe(g, s, "ñ");
    Escribe(g, s, "");
    EXPECT_EQ(T(1, 1), "7");
    Teclas("8");
    EXPECT_EQ(T(1, 1), "8");
}

TEST_F(GrillaDeComponentes, ElLimiteMismoPasa)
{
    Teclas("15");
    EXPECT_EQ(T(1, 1), "15");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GrillaDeComponentes, PasadoElLimiteSeAvisaYLaCeldaQuedaEnCero)
{
    Teclas("16");
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"menor de 15", "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(T(1, 1), "0");
    Teclas("5");
    EXPECT_EQ(T(1, 1), "05");
}

TEST_F(GrillaDeComponentes, UnNegativoSeRechazaApenasEsNumero)
{
    Teclas("-");
    EXPECT_EQ(T(1, 1), "-");
    Teclas("1");
    EXPECT_EQ(T(1, 1), "0");
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
}

TEST_F(GrillaDeComponentes, EnterNoPoneCeros)
{
    Teclea(g, Tecla::Enter);
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(2, 1), "");
    EXPECT_EQ(g.actual, (Celda{2, 1}));
}

TEST_F(UnaGrilla, UnCaracterDeControlNoHaceNada)
{
    g.Pon({1, 1}, "7");
    for (const std::string_view control : {"\b", "\x03", "\x7f", "\r", ""})
        Escribe(g, s, control);
    EXPECT_EQ(T(1, 1), "7");
    EXPECT_FALSE(g.editada);
}

// --- spreadsheet ---

TEST_F(UnaGrilla, CopiaElBloqueSeleccionadoConTabulaciones)
{
    g.Pon({1, 1}, "1.5");
    g.Pon({1, 2}, "2");
    g.Pon({2, 1}, "3");
    Mueve(g, {2, 2});
    Mueve(g, {1, 1}, true);
    EXPECT_EQ(Copia(g, false), "1.5\t2\n3\t\n");
    EXPECT_EQ(Copia(g, true), "H [m]\tQ[m3/s]\n1.5\t2\n3\t\n");
}

TEST_F(UnaGrilla, UnaSolaCeldaSeCopiaSola)
{
    g.Pon({1, 1}, "1.5");
    EXPECT_EQ(Copia(g, false), "1.5\n");
}

TEST_F(UnaGrilla, LoQuePartiriaUnaCeldaSeCopiaComoBlanco)
{
    g.Pon({1, 1}, "a\tb\nc");
    EXPECT_EQ(Copia(g, false), "a b c\n");
}

TEST_F(UnaGrilla, SeleccionarTodoTomaLasColumnasQueNoSonFijas)
{
    SeleccionaTodo(g);
    EXPECT_EQ(Seleccion(g), (Bloque{{1, 1}, {3, 2}}));
    EXPECT_TRUE(Seleccion(g).Tiene({2, 2}));
    EXPECT_FALSE(Seleccion(g).Tiene({2, 0}));
}

TEST_F(UnaGrilla, LaSeleccionSeEstiraConFlechas)
{
    Teclea(g, Tecla::Abajo, true);
    Teclea(g, Tecla::Derecha, true);
    EXPECT_EQ(Seleccion(g), (Bloque{{1, 1}, {2, 2}}));
    Teclea(g, Tecla::Izquierda);
    EXPECT_EQ(Seleccion(g), (Bloque{{2, 1}, {2, 1}}));
}

TEST_F(UnaGrilla, PegaUnBloqueConComasDecimalesYSaltosDeCualquierPlataforma)
{
    const Efecto efecto = Pega(g, s, "1,5\t 2 \r\n3\t4e1\r\n");
    EXPECT_EQ(T(1, 1), "1.5");
    EXPECT_EQ(T(1, 2), "2");
    EXPECT_EQ(T(2, 1), "3");
    EXPECT_EQ(T(2, 2), "4e1");
    EXPECT_EQ(T(3, 1), "");
    EXPECT_EQ(efecto.asentadas, (std::vector<Celda>{{1, 1}, {1, 2}, {2, 1}, {2, 2}}));
    EXPECT_EQ(Seleccion(g), (Bloque{{1, 1}, {2, 2}}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaGrilla, PegarNadaNoHaceNada)
{
    EXPECT_TRUE(Pega(g, s, "").asentadas.empty());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaGrilla, UnaCeldaVaciaDelBloqueVaciaLaSuya)
{
    g.Pon({1, 1}, "1");
    g.Pon({1, 2}, "2");
    Pega(g, s, "\t5");
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(1, 2), "5");
}

TEST_F(UnaGrilla, LoQueNoEsNumeroNoSePegaYNadaQuedaAMedias)
{
    const Grilla antes = g;
    EXPECT_TRUE(Pega(g, s, "1\t2\n3\tx").asentadas.empty());
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<Mensaje>{{"No se pegó ningún dato. Fila 2, columna \"Q[m3/s]\": \"x\" no es un número",
                               "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(g, antes);
}

TEST_F(UnaGrilla, LoQueSobraDeLaTablaNoSePega)
{
    const Grilla antes = g;
    Pega(g, s, "1\n2\n3\n4\n");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 4, columna \"H [m]\": la tabla no tiene esa fila");
    Pega(g, s, "1\t2\t3");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna 3: la tabla no tiene esa columna");
    EXPECT_EQ(g, antes);
}

TEST_F(UnaGrilla, ElBloqueEmpiezaEnLaEsquinaDeLaSeleccion)
{
    Mueve(g, {3, 2});
    Mueve(g, {2, 1}, true);
    Pega(g, s, "8");
    EXPECT_EQ(T(2, 1), "8");
}

TEST_F(UnaGrilla, LaCeldaEditadaSeAsientaTambienAlPegarEnOtra)
{
    Mueve(g, {1, 1});
    Mueve(g, {3, 2}, true);
    Teclas("9");
    const Efecto efecto = Pega(g, s, "8");
    EXPECT_EQ(efecto.asentadas, (std::vector<Celda>{{3, 2}, {1, 1}}));
    Teclas("7");
    EXPECT_EQ(T(1, 1), "7");
}

TEST_F(GrillaDeComponentes, UnaColumnaQueNoSeEditaSePasaPorAlto)
{
    Mueve(g, {1, 0});
    Pega(g, s, "c-9\t1\t0.1");
    EXPECT_EQ(T(1, 0), "c-1");
    EXPECT_EQ(T(1, 1), "1");
    EXPECT_EQ(T(1, 2), "0.1");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GrillaDeComponentes, UnBloqueSinNadaQueEditarSeRechaza)
{
    Mueve(g, {1, 0});
    const Grilla antes = g;
    Pega(g, s, "c-1\nc-9");
    EXPECT_EQ(UltimoAviso(),
              "No se pegó ningún dato. Fila 2, columna \"Nombre\": la celda no puede modificarse");
    EXPECT_EQ(g, antes);
}

TEST_F(GrillaDeComponentes, FilasEnterasVanALaPlanillaYVuelven)
{
    SeleccionaTodo(g);
    EXPECT_EQ(Copia(g, false), "c-1\t\t\t\nc-2\t\t\t\nc-3\t\t\t\n");
    Pega(g, s, "c-1\t1\t0,1\t\nc-2\t15\t0.5\t\nc-3\t3\t\t\n");
    EXPECT_EQ(T(1, 2), "0.1");
    EXPECT_EQ(T(2, 1), "15");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(GrillaDeComponentes, PegadoPasadoDelLimiteSeRechazaConElMensajeDeLaColumna)
{
    const Grilla antes = g;
    Pega(g, s, "15\n15.01");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 2, columna \"Vel.\": menor de 15");
    Pega(g, s, "1\t-0.1");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna \"x\": entre 0 y 0.5");
    EXPECT_EQ(g, antes);
}

TEST_F(GrillaDeComponentes, PegarLetrasNoPasaAunqueTeclearlasPase)
{
    const Grilla antes = g;
    Pega(g, s, "abc");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna \"Vel.\": \"abc\" no es un número");
    EXPECT_EQ(g, antes);
}

TEST_F(GrillaDeComponentes, UnEncabezadoPegadoNoCorreLosValores)
{
    Mueve(g, {1, 0});
    Pega(g, s, "Componente\tVel. [m/s]\tx\nc-1\t1\t0.1\nc-2\t2\t0.2\n");
    EXPECT_EQ(T(1, 1), "1");
    EXPECT_EQ(T(2, 2), "0.2");
    EXPECT_EQ(T(3, 1), "");
    EXPECT_EQ(
        anfitrion->Avisos(),
        (std::vector<Mensaje>{{"Se pegaron 2 filas. La primera fila del bloque no tiene números: se tomó "
                               "como encabezado y no se pegó.",
                               "", Icono::Ninguno}}));
}

TEST_F(UnaGrilla, SoloLaPrimeraFilaEsEncabezadoYSiNoTieneNumeros)
{
    const Grilla antes = g;
    Pega(g, s, "H\tQ\n[m]\t[m3/s]\n1\t2\n");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna \"H [m]\": \"[m]\" no es un número");
    Pega(g, s, "H\t2\n1\t2\n");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna \"H [m]\": \"H\" no es un número");
    Pega(g, s, "H\n1\n2\n3\n4\n");  // without the heading one too many
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 4, columna \"H [m]\": la tabla no tiene esa fila");
    EXPECT_EQ(g, antes);
    Pega(g, s, "H\n1,5\n");
    EXPECT_EQ(T(1, 1), "1.5");
    EXPECT_EQ(
        UltimoAviso(),
        "Se pegó 1 fila. La primera fila del bloque no tiene números: se tomó como encabezado y no se pegó.");
}

TEST_F(UnaGrilla, UnaFilaVaciaNoEsEncabezado)
{
    g.Pon({1, 1}, "7");
    Pega(g, s, "\n5");
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(2, 1), "5");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaGrilla, UnNegativoNoSePegaComoNoSeTeclea)
{
    const Grilla antes = g;
    Pega(g, s, "1\n-30");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 2, columna \"H [m]\": \"-30\" es negativo");
    EXPECT_EQ(g, antes);
}

TEST_F(UnaGrilla, LoQueLaCeldaYaTieneVuelveAElla)
{
    g.Pon({1, 1}, "-2");  // a height of a file
    Pega(g, s, "-2\t1\n3\t2\n");
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(T(1, 1), "-2");
    EXPECT_EQ(T(2, 1), "3");
}

// --- marks of thousands ---

TEST_F(UnaGrilla, ElPuntoAnteTresCifrasSePreguntaUnaVez)
{
    for (const bool deMiles : {true, false}) {
        anfitrion->sucesos.clear();
        anfitrion->respuestas = {deMiles};
        Pega(g, s, "2.300\t5\n12.450\t0,5\n");
        EXPECT_EQ(T(1, 1), deMiles ? "2300" : "2.300");
        EXPECT_EQ(T(2, 1), deMiles ? "12450" : "12.450");
        EXPECT_EQ(T(1, 2), "5");
        EXPECT_EQ(T(2, 2), "0.5");
        ASSERT_EQ(anfitrion->sucesos.size(), 1U);
        EXPECT_EQ(anfitrion->Preguntas(),
                  (std::vector<Mensaje>{
                      {"Los números del bloque pueden leerse de dos maneras. ¿Separa el punto los "
                       "miles?\n\nSí:  2.300 es 2300;   12.450 es 12450\nNo:  2.300 es 2.3;   "
                       "12.450 es 12.45",
                       "Números pegados", Icono::Pregunta}}));
    }
}

TEST_F(UnaGrilla, PegarDeNuevoPreguntaDeNuevo)
{
    anfitrion->respuestas = {false, true};
    Pega(g, s, "2.300\n");
    EXPECT_EQ(T(1, 1), "2.300");
    Pega(g, s, "2.300\n");
    EXPECT_EQ(T(1, 1), "2300");
    EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
}

TEST_F(UnaGrilla, ConUnaSolaCeldaDudosaElOtroEjemploEsDeLasDemas)
{
    Pega(g, s, "2.300\n1,5\n7\n");
    EXPECT_EQ(anfitrion->Preguntas().at(0).texto,
              "Los números del bloque pueden leerse de dos maneras. ¿Separa el punto los miles?\n\n"
              "Sí:  2.300 es 2300;   1,5 es 1.5\nNo:  2.300 es 2.3;   1,5 es 1.5");
}

TEST_F(UnaGrilla, LoQueNoEsDelBloqueEditableNoSePregunta)
{
    PonEditable(g, 1, false);
    Pega(g, s, "2.300\t1,5\n");
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(1, 2), "1.5");
}

TEST_F(UnaGrilla, LoPropioNoSePregunta)
{
    Pega(g, s, "2.300\n", OrigenBloque::Propio);
    EXPECT_EQ(T(1, 1), "2.300");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaGrilla, LoQueNoCabeDeNingunaManeraNoSePregunta)
{
    Pega(g, s, "2.300\n-1\n");
    EXPECT_TRUE(anfitrion->Preguntas().empty());
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 2, columna \"H [m]\": \"-1\" es negativo");
}

TEST_F(GrillaDeComponentes, LoQueLaRespuestaHaceDemasiadoGrandeSeRechaza)
{
    const Grilla antes = g;
    anfitrion->respuestas = {true, false};
    Pega(g, s, "2.300\n");
    EXPECT_EQ(UltimoAviso(), "No se pegó ningún dato. Fila 1, columna \"Vel.\": menor de 15");
    EXPECT_EQ(g, antes);
    Pega(g, s, "2.300\n");
    EXPECT_EQ(T(1, 1), "2.300");
}

// --- backspace and undo ---

TEST_F(UnaGrilla, RetrocesoQuitaUnCaracterYDejaAgregar)
{
    g.Pon({1, 1}, "1.25");
    Retrocede(g, s);
    EXPECT_EQ(T(1, 1), "1.2");
    Teclas("7");
    EXPECT_EQ(T(1, 1), "1.27");
    g.Pon({2, 1}, "4e1");
    Mueve(g, {2, 1});
    Retrocede(g, s);  // "4e" is no number
    EXPECT_EQ(T(2, 1), "");
    Retrocede(g, s);
    EXPECT_EQ(T(2, 1), "");
    PonEditable(g, 2, false);
    g.Pon({1, 2}, "7");
    Mueve(g, {1, 2});
    Retrocede(g, s);
    EXPECT_EQ(T(1, 2), "7");
}

TEST_F(GrillaDeComponentes, TrasRetrocesoSePruebaElLimite)
{
    g.Pon({1, 1}, "añ");
    Retrocede(g, s);
    EXPECT_EQ(T(1, 1), "a");
    g.Pon({1, 1}, "16x");
    Retrocede(g, s);
    EXPECT_EQ(UltimoAviso(), "menor de 15");
    EXPECT_EQ(T(1, 1), "0");
}

TEST_F(UnaGrilla, DeshacerVuelveUnaCeldaEnteraYRehacerLaRepite)
{
    g.Pon({1, 1}, "77");
    Teclas("12.5");
    Teclea(g, Tecla::Abajo);
    Teclas("3");
    EXPECT_EQ(Deshace(g).asentadas, (std::vector<Celda>{{2, 1}, {2, 1}}));
    EXPECT_EQ(T(2, 1), "");
    EXPECT_EQ(Deshace(g).asentadas, (std::vector<Celda>{{1, 1}}));
    EXPECT_EQ(T(1, 1), "77");
    EXPECT_EQ(g.actual, (Celda{1, 1}));
    EXPECT_TRUE(Deshace(g).asentadas.empty());
    Rehace(g);
    EXPECT_EQ(T(1, 1), "12.5");
    Rehace(g);
    EXPECT_EQ(T(2, 1), "3");
    EXPECT_EQ(g.actual, (Celda{2, 1}));
    EXPECT_TRUE(Rehace(g).asentadas.empty());
    Deshace(g);
    Teclas("9");
    EXPECT_TRUE(Rehace(g).asentadas.size() ==
                1);  // the cell in hand settles; nothing else is left to be done
    EXPECT_EQ(T(2, 1), "9");
}

TEST_F(UnaGrilla, LaLetraQueVaciaUnaCeldaSeDeshace)
{
    g.Pon({1, 1}, "77");
    Teclas("x");
    EXPECT_EQ(T(1, 1), "");
    Deshace(g);
    EXPECT_EQ(T(1, 1), "77");
}

TEST_F(UnaGrilla, UnBloquePegadoYUnaTablaVaciadaSeDeshacenDeUnaVez)
{
    g.Pon({2, 2}, "8");
    Pega(g, s, "1\t2\n3\t4\n");
    VaciaDatos(g);
    Deshace(g);
    EXPECT_EQ(T(2, 2), "4");
    const Efecto efecto = Deshace(g);
    EXPECT_EQ(efecto.asentadas.size(), 4U);
    EXPECT_EQ(T(1, 1), "");
    EXPECT_EQ(T(2, 2), "8");
    EXPECT_EQ(Seleccion(g), (Bloque{{1, 1}, {2, 2}}));
}

TEST_F(UnaGrilla, OtrasFilasNoSeDeshacen)
{
    Teclas("5");
    PonNroFilas(g, 2);
    Deshace(g);
    EXPECT_EQ(T(1, 1), "5");
}

// --- whatever is done ---

/// One of several texts.
std::string UnoDe(const std::vector<std::string>& textos)
{
    return textos[*rc::gen::inRange<std::size_t>(0, textos.size())];
}

// --- rows as a step ---

TEST(FilasComoPaso, VuelvenConLoQueTeniaCadaCeldaYLosPasosDeAntesQuedan)
{
    const model::Siro s;
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 3);
    const auto vacia = g.filas;
    Mueve(g, {3, 1});
    Escribe(g, s, "9");
    const auto escrita = g.filas;
    ComoUnPaso(g, [&] { PonNroFilas(g, 1); });
    EXPECT_EQ(g.NroFilas(), 1);
    EXPECT_EQ(g.actual.fila, 1);
    const Efecto efecto = Deshace(g);
    EXPECT_TRUE(efecto.otrasFilas);
    EXPECT_EQ(efecto.asentadas.size(), 6U) << "two columns of three rows";
    EXPECT_EQ(g.filas, escrita);
    EXPECT_FALSE(Deshace(g).otrasFilas);
    EXPECT_EQ(g.filas, vacia);
    Rehace(g);
    Rehace(g);
    EXPECT_EQ(g.NroFilas(), 1);
    Deshace(g);
    EXPECT_EQ(g.filas, escrita);
}

TEST(FilasComoPaso, LasCifrasDeUnNumeroSonUnoYLoQueNoCambiaNadaEsNinguno)
{
    const model::Siro s;
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 3);
    ComoUnPaso(g, [&] { PonNroFilas(g, 3); });
    ComoUnPaso(g, [&] { g.Pon({1, 0}, "índice"); });  // nobody's edit
    EXPECT_TRUE(g.hechos.empty());
    ComoUnPaso(
        g, [&] { PonNroFilas(g, 1); }, true);
    ComoUnPaso(
        g, [&] { PonNroFilas(g, 12); }, true);
    EXPECT_EQ(g.hechos.size(), 1U);
    ComoUnPaso(g, [&] { PonNroFilas(g, 4); });
    EXPECT_EQ(g.hechos.size(), 2U);
    Deshace(g);
    EXPECT_EQ(g.NroFilas(), 12);
    Deshace(g);
    EXPECT_EQ(g.NroFilas(), 3);
    // Another grid in its place: a table that was emptied by its window.
    Escribe(g, s, "5");
    ComoUnPaso(g, [&] { g = NuevaGrilla(DeTabla); });
    EXPECT_EQ(g.NroFilas(), 0);
    Deshace(g);
    EXPECT_EQ(g.NroFilas(), 3);
    EXPECT_EQ(g.Texto({1, 1}), "5");
    // Rows that a grid without columns was given.
    Grilla sinColumnas;
    PonNroFilas(sinColumnas, 2);
    ComoUnPaso(sinColumnas, [&] {
        sinColumnas = NuevaGrilla(DeTabla);
        PonNroFilas(sinColumnas, 2);
    });
    EXPECT_TRUE(sinColumnas.hechos.empty());
}

void HaceAlgo(Grilla& g, const model::Siro& s, bool otrasFilas = true)
{
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        Teclea(g, static_cast<Tecla>(*rc::gen::inRange(0, 8)), *rc::gen::arbitrary<bool>());
        break;
    case 1:
        Mueve(g, {*rc::gen::inRange(-1, 6), *rc::gen::inRange(-1, 5)}, *rc::gen::arbitrary<bool>());
        break;
    case 2:
        Pega(g, s, UnoDe({"1", "x", "1\t2", "1,5\n-2\n", "\t\n3", "1\t2\t3\n4\t5\t6\n"}));
        break;
    case 3:
        if (otrasFilas)
            PonNroFilas(g, *rc::gen::inRange(0, 5));
        else
            ComoUnPaso(
                g, [&] { PonNroFilas(g, *rc::gen::inRange(0, 5)); }, *rc::gen::arbitrary<bool>());
        break;
    case 4:
        *rc::gen::arbitrary<bool>() ? Deshace(g) : Rehace(g);
        break;
    case 5:
        Retrocede(g, s);
        break;
    default:
        Escribe(g, s, UnoDe({"0", "1", "9", ".", ",", "-", "e", "a", " ", "ñ"}));
    }
}

RC_GTEST_PROP(PropiedadesGrilla, UnaCeldaEditableEstaVaciaOTieneUnNumeroYElCursorEstaDentro, ())
{
    const model::Siro s;
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 3);
    for (int n = *rc::gen::inRange(0, 60); n > 0; --n) {
        HaceAlgo(g, s);
        for (int fila = 1; fila <= g.NroFilas(); ++fila) {
            RC_ASSERT(g.Texto({fila, 0}).empty());
            for (const int columna : {1, 2})
                RC_ASSERT(g.Texto({fila, columna}).empty() || g.EsNumero({fila, columna}));
        }
        RC_ASSERT(g.filas.empty() || (g.Esta(g.actual) && g.Esta(g.ancla)));
        RC_ASSERT(g.actual.columna >= 1 && g.ancla.columna >= 1);
    }
}

RC_GTEST_PROP(PropiedadesGrilla, LoCopiadoSePegaComoEstaba, ())
{
    const model::Siro s;
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 4);
    for (int n = *rc::gen::inRange(0, 40); n > 0; --n)
        HaceAlgo(g, s);
    // A spreadsheet gives numbers back without the blanks that a user may have typed around them.
    for (FilaGrilla& fila : g.filas)
        for (std::string& celda : fila.celdas)
            std::erase(celda, ' ');
    const std::string bloque = Copia(g, false);
    const auto antes = g.filas;
    Pega(g, s, bloque, OrigenBloque::Propio);
    RC_ASSERT(g.filas == antes);
    RC_ASSERT(Copia(g, false) == bloque);
}

RC_GTEST_PROP(PropiedadesGrilla, UnBloqueSePegaEnteroOSeDicePorQueNo, ())
{
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    s.Anfitrion = anfitrion.Puerta();
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 4);
    Mueve(g, {*rc::gen::inRange(1, 4), *rc::gen::inRange(1, 3)});
    std::string bloque;  // behind a number: a block without any may be a heading
    int celdas = 0;
    for (int filas = *rc::gen::inRange(1, 4); filas > 0; --filas) {
        for (int columnas = *rc::gen::inRange(1, 3); columnas > 0; --columnas, ++celdas)
            bloque += UnoDe({"1", "2.5", "x"}) + (columnas > 1 ? "\t" : "");
        bloque += "\n";
    }
    const Grilla antes = g;
    const Efecto efecto = Pega(g, s, "1\n" + bloque);
    if (anfitrion->Avisos().empty())
        RC_ASSERT(efecto.asentadas.size() == static_cast<std::size_t>(celdas) + 1);
    else
        RC_ASSERT(g == antes && anfitrion->Avisos().size() == 1U);
}

RC_GTEST_PROP(PropiedadesGrilla, DeshacerTodoDejaComoEstabaYRehacerTodoComoQuedo, ())
{
    const model::Siro s;
    Grilla g = NuevaGrilla(DeTabla);
    PonNroFilas(g, 3);
    g.Pon({1, 1}, "77");
    const auto antes = g.filas;
    for (int n = *rc::gen::inRange(0, 40); n > 0; --n)
        HaceAlgo(g, s, false);
    while (!g.deshechos.empty())
        Rehace(g);
    const auto despues = g.filas;
    while (!g.hechos.empty())
        Deshace(g);
    RC_ASSERT(g.filas == antes);
    while (!g.deshechos.empty())
        Rehace(g);
    RC_ASSERT(g.filas == despues);
}

}  // namespace
}  // namespace forms
