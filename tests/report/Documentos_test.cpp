// SPDX-License-Identifier: GPL-3.0-or-later
//
// A document as HTML and as an OpenDocument text, looked at by other parsers than ours.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "apoyo/Compara.h"
#include "report/Html.h"
#include "report/Marcado.h"
#include "report/Odt.h"
#include "study/Paquete.h"

namespace report {
namespace {

constexpr std::string_view Hostil = "<script>&\"']]>{{x}}";
constexpr std::string_view HostilEscrito = "&lt;script&gt;&amp;&quot;&#39;]]&gt;{{x}}";

std::string Png()
{
    std::string b = "\x89PNG\r\n\x1a\n";
    b += std::string("\0\0\0\rIHDR\0\0\0\x40\0\0\0\x20", 16);
    return b;
}

Imagen Dibujada(const Figura& f)
{
    if (f.clase == Figura::Clase::Idf) return {};
    return {"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"160mm\" height=\"80mm\"/>", Png(), 160, 80};
}

Documento DeTodo()
{
    const std::string hostil(Hostil);
    Documento d{
        .titulo = hostil, .autor = "Ñandú", .fecha = "2011-04-03T10:20:30", .pie = hostil, .logo = Png()};
    d.bloques.emplace_back(Portada{hostil, "Sub", {{"Cuenca", hostil}}, "Ñandú", "03/04/2011"});
    d.bloques.emplace_back(SaltoDePagina{});
    d.bloques.emplace_back(Indice{"Índice"});
    d.bloques.emplace_back(Titulo{1, "1", hostil, "cap-1"});
    d.bloques.emplace_back(
        Parrafo{{{"Q", false, true}, {"0", true, false, Altura::Abajo}, {"  fin " + hostil}}, true});
    d.bloques.emplace_back(Titulo{2, "1.1", "Dentro", "cap-1-1"});
    d.bloques.emplace_back(Lista{false, {Llano("uno"), Llano(hostil)}});
    d.bloques.emplace_back(Lista{true, {Llano("primero")}});
    d.bloques.emplace_back(Formula{{{"e"}, {"−t/k", false, false, Altura::Arriba}}});
    Tabla t{
        .numero = 1, .titulo = hostil, .columnas = {{Llano("A"), "m³/s", false}, {Llano(hostil), "", true}}};
    for (int k = 0; k < 300; ++k)
        t.filas.push_back({std::to_string(k), hostil});
    t.nota = hostil;
    d.bloques.emplace_back(t);
    d.bloques.emplace_back(FiguraPuesta{1, hostil, {Figura::Clase::Red, {}}});
    d.bloques.emplace_back(FiguraPuesta{2, "Sin dibujo", {Figura::Clase::Idf, {}}});
    d.bloques.emplace_back(Titulo{1, "2", "Último", "cap-2"});
    return d;
}

std::string PiezaDe(const std::string& odt, std::string_view nombre)
{
    for (const study::Pieza& p : study::Desempaqueta(odt))
        if (p.nombre == nombre) return p.bytes;
    ADD_FAILURE() << nombre;
    return {};
}

int Veces(std::string_view texto, std::string_view que)
{
    int n = 0;
    for (std::size_t i = texto.find(que); i != std::string_view::npos; i = texto.find(que, i + 1))
        ++n;
    return n;
}

TEST(DocumentosDeMemoria, OtrosProgramasLosLeen)
{
    const apoyo::CarpetaTemporal carpeta;
    std::ofstream(carpeta.Ruta("m.odt"), std::ios::binary) << Odt(DeTodo(), Dibujada);
    std::ofstream(carpeta.Ruta("m.html"), std::ios::binary) << Html(DeTodo(), Dibujada);
    const std::string orden = "python3 \"" SIRO_TESTS_DIR "/report/revisa_documento.py\" \"" +
                              carpeta.Ruta("m.odt") + "\" \"" + carpeta.Ruta("m.html") + "\"";
    EXPECT_EQ(std::system(orden.c_str()), 0) << "what it said stands above";
}

TEST(DocumentosDeMemoria, NadaDeLoQueSeEscribeEsMarca)
{
    const std::string html = Html(DeTodo(), Dibujada);
    EXPECT_EQ(html.find("<script"), std::string::npos);
    // title, cover twice, contents, heading, paragraph, item, caption, head, 300 cells, note, figure's alt
    // and caption
    EXPECT_EQ(Veces(html, HostilEscrito), 312);
    const std::string contenido = PiezaDe(Odt(DeTodo(), Dibujada), "content.xml");
    EXPECT_EQ(contenido.find("<script"), std::string::npos);
    EXPECT_EQ(Escapado(std::string("a\x01\tb\xff\xc3z\xed\xa0\x80", 10)),
              "a b\xEF\xBF\xBD\xEF\xBF\xBDz\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(Escapado("Ñ€😀"), "Ñ€😀");
}

TEST(DocumentosDeMemoria, LaPaginaHtmlTieneTodoAdentro)
{
    const std::string html = Html(DeTodo(), Dibujada);
    EXPECT_NE(html.find("<html lang=\"es\">"), std::string::npos);
    EXPECT_NE(html.find("@page { size: 210mm 297mm; margin: 25mm; @bottom-right"), std::string::npos);
    EXPECT_NE(html.find("<a href=\"#cap-1-1\">1.1 Dentro</a>"), std::string::npos);
    EXPECT_NE(html.find("<h2 id=\"cap-1-1\">1.1 Dentro</h2>"), std::string::npos);
    EXPECT_NE(html.find("<caption>Tabla 1. "), std::string::npos);
    EXPECT_NE(html.find("<figcaption>Figura 2. Sin dibujo</figcaption>"), std::string::npos);
    EXPECT_NE(html.find("<i>Q</i><b><sub>0</sub></b>"), std::string::npos);
    EXPECT_NE(html.find("src=\"data:image/svg+xml;base64,"), std::string::npos);
    EXPECT_NE(html.find("src=\"data:image/png;base64,"), std::string::npos) << "the logo";
    EXPECT_EQ(html.find("http:"), std::string::npos) << "nothing comes from elsewhere";
    EXPECT_NE(html.find("(No se pudo dibujar esta figura.)"), std::string::npos);
    Documento carta = DeTodo();
    carta.hoja = Hoja::Carta;
    EXPECT_NE(Html(carta, {}).find("size: 215.9mm 279.4mm"), std::string::npos);
}

TEST(DocumentosDeMemoria, Base64SegunElRfc)
{
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Base64("\xff\xfe\xfd"), "//79");
}

TEST(DocumentosDeMemoria, ElOdtTieneTitulosLeyendasYPie)
{
    const std::string odt = Odt(DeTodo(), Dibujada);
    const std::string contenido = PiezaDe(odt, "content.xml"), estilos = PiezaDe(odt, "styles.xml");
    EXPECT_NE(contenido.find("<text:h text:style-name=\"Heading_20_2\" text:outline-level=\"2\">"),
              std::string::npos);
    EXPECT_NE(
        contenido.find("text:formula=\"ooow:Tabla+1\" style:num-format=\"1\">1</text:sequence>. &lt;script"),
        std::string::npos);
    EXPECT_EQ(Veces(contenido, "<table:table-header-rows>"), 1);
    EXPECT_EQ(Veces(contenido, "<text:bookmark-ref "), 3);
    EXPECT_NE(contenido.find("Pictures/figura1.svg"), std::string::npos);
    EXPECT_NE(contenido.find("Pictures/figura1.png"), std::string::npos);
    EXPECT_NE(contenido.find(" <text:s/>fin"), std::string::npos) << "two blanks stay two";
    EXPECT_NE(estilos.find("fo:page-width=\"210mm\""), std::string::npos);
    EXPECT_NE(estilos.find("<text:page-number"), std::string::npos);
    EXPECT_NE(PiezaDe(odt, "meta.xml").find("<meta:creation-date>2011-04-03T10:20:30<"), std::string::npos);
    Documento carta = DeTodo();
    carta.hoja = Hoja::Carta;
    EXPECT_NE(PiezaDe(Odt(carta, {}), "styles.xml").find("fo:page-width=\"215.9mm\""), std::string::npos);
}

TEST(DocumentosDeMemoria, LosMismosBytes)
{
    EXPECT_EQ(Odt(DeTodo(), Dibujada), Odt(DeTodo(), Dibujada));
    EXPECT_EQ(Html(DeTodo(), Dibujada), Html(DeTodo(), Dibujada));
}

TEST(DocumentosDeMemoria, MedidasDeImagenes)
{
    const auto medidas = [](std::string_view b) {
        return std::pair(MedidasDeImagen(b).ancho, MedidasDeImagen(b).alto);
    };
    using Par = std::pair<double, double>;
    EXPECT_EQ(medidas(Png()), Par(64, 32));
    EXPECT_EQ(medidas("<svg width=\"30.5mm\" height=\"20\">"), Par(30.5, 20));
    EXPECT_EQ(medidas("<?xml?><svg viewBox=\"0 0 40 10\">"), Par(40, 10));
    const std::string jpeg("\xff\xd8\xff\xe0\0\x04\0\0\xff\xc0\0\x0b\x08\0\x10\0\x20", 17);
    EXPECT_EQ(medidas(jpeg), Par(32, 16));
    EXPECT_EQ(medidas(std::string_view(jpeg).substr(0, 10)), Par(0, 0)) << "cut short";
    EXPECT_EQ(medidas(Png().substr(0, 12)), Par(0, 0));
    EXPECT_EQ(medidas("<svg"), Par(0, 0));
    EXPECT_EQ(medidas("BM"), Par(0, 0));
    EXPECT_EQ(TipoDeImagen("GIF89a"), "");
}

}  // namespace
}  // namespace report
