// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/OdtEstilos.h"

#include "model/Numeros.h"
#include "report/Marcado.h"

namespace report {
namespace {

constexpr std::string_view Cabeza = R"(<?xml version="1.0" encoding="UTF-8"?>
)";

std::string Mm(double x)
{
    return model::NumeroATexto(x) + "mm";
}

constexpr std::string_view Fuentes = R"(<office:font-face-decls>
<style:font-face style:name="Liberation Serif" svg:font-family="'Liberation Serif'" style:font-family-generic="roman"/>
<style:font-face style:name="Liberation Sans" svg:font-family="'Liberation Sans'" style:font-family-generic="swiss"/>
</office:font-face-decls>
)";

constexpr std::string_view Parrafos = R"(<office:styles>
<style:default-style style:family="paragraph"><style:paragraph-properties style:tab-stop-distance="12.5mm" fo:orphans="2" fo:widows="2"/><style:text-properties style:font-name="Liberation Serif" fo:font-size="11pt" fo:language="es" fo:country="none" fo:hyphenate="false"/></style:default-style>
<style:default-style style:family="table"><style:table-properties table:border-model="collapsing"/></style:default-style>
<style:style style:name="Standard" style:family="paragraph" style:class="text"/>
<style:style style:name="Text_20_body" style:display-name="Text body" style:family="paragraph" style:parent-style-name="Standard" style:class="text"><style:paragraph-properties fo:margin-top="0mm" fo:margin-bottom="2.5mm" fo:line-height="120%" fo:text-align="justify"/></style:style>
<style:style style:name="Heading" style:family="paragraph" style:parent-style-name="Standard" style:next-style-name="Text_20_body" style:class="text"><style:paragraph-properties fo:margin-top="6mm" fo:margin-bottom="2.5mm" fo:keep-with-next="always"/><style:text-properties style:font-name="Liberation Sans" fo:font-weight="bold" fo:color="#1d3445"/></style:style>
<style:style style:name="Heading_20_1" style:display-name="Heading 1" style:family="paragraph" style:parent-style-name="Heading" style:next-style-name="Text_20_body" style:default-outline-level="1" style:class="text"><style:paragraph-properties fo:margin-top="8mm" fo:margin-bottom="2.5mm"/><style:text-properties fo:font-size="16pt"/></style:style>
<style:style style:name="Heading_20_2" style:display-name="Heading 2" style:family="paragraph" style:parent-style-name="Heading" style:next-style-name="Text_20_body" style:default-outline-level="2" style:class="text"><style:text-properties fo:font-size="13pt"/></style:style>
<style:style style:name="Heading_20_3" style:display-name="Heading 3" style:family="paragraph" style:parent-style-name="Heading" style:next-style-name="Text_20_body" style:default-outline-level="3" style:class="text"><style:text-properties fo:font-size="11pt"/></style:style>
<style:style style:name="Title" style:family="paragraph" style:parent-style-name="Heading" style:next-style-name="Subtitle" style:class="chapter"><style:paragraph-properties fo:text-align="center" fo:margin-top="12mm" fo:margin-bottom="5mm"/><style:text-properties fo:font-size="26pt"/></style:style>
<style:style style:name="Subtitle" style:family="paragraph" style:parent-style-name="Heading" style:next-style-name="Text_20_body" style:class="chapter"><style:paragraph-properties fo:text-align="center" fo:margin-top="0mm" fo:margin-bottom="20mm"/><style:text-properties fo:font-size="15pt" fo:font-weight="normal"/></style:style>
<style:style style:name="Portada" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:margin-top="0mm" fo:margin-bottom="3mm"/><style:text-properties style:font-name="Liberation Sans" fo:font-size="12pt"/></style:style>
<style:style style:name="Aviso" style:family="paragraph" style:parent-style-name="Text_20_body"><style:paragraph-properties fo:background-color="#fbeeed" fo:border-left="1.2mm solid #b3261e" fo:border-right="none" fo:border-top="none" fo:border-bottom="none" fo:padding="1.5mm"/></style:style>
<style:style style:name="Formula" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:margin-top="1.5mm" fo:margin-bottom="4mm"/></style:style>
<style:style style:name="List_20_1" style:display-name="List 1" style:family="paragraph" style:parent-style-name="Standard" style:class="list"><style:paragraph-properties fo:margin-bottom="1.5mm" fo:line-height="120%"/></style:style>
<style:style style:name="Caption" style:family="paragraph" style:parent-style-name="Standard" style:class="extra"><style:paragraph-properties fo:text-align="center" fo:margin-top="3mm" fo:margin-bottom="2mm"/><style:text-properties style:font-name="Liberation Sans" fo:font-size="9.5pt" fo:font-weight="bold" fo:color="#1d3445"/></style:style>
<style:style style:name="Tabla" style:family="paragraph" style:parent-style-name="Caption" style:class="extra"><style:paragraph-properties fo:keep-with-next="always"/></style:style>
<style:style style:name="Figura" style:family="paragraph" style:parent-style-name="Caption" style:class="extra"><style:paragraph-properties fo:margin-top="0mm" fo:margin-bottom="5mm"/></style:style>
<style:style style:name="Imagen" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:margin-top="3mm" fo:margin-bottom="1mm" fo:keep-with-next="always"/></style:style>
<style:style style:name="Nota" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:margin-top="1.5mm" fo:margin-bottom="5mm"/><style:text-properties fo:font-size="9pt" fo:color="#444444"/></style:style>
<style:style style:name="Separacion" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:margin-top="0mm" fo:margin-bottom="2mm"/><style:text-properties fo:font-size="4pt"/></style:style>
<style:style style:name="Salto" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:margin-top="0mm" fo:margin-bottom="0mm" fo:break-after="page"/><style:text-properties fo:font-size="2pt"/></style:style>
<style:style style:name="Table_20_Contents" style:display-name="Table Contents" style:family="paragraph" style:parent-style-name="Standard" style:class="extra"><style:text-properties fo:font-size="8.5pt"/></style:style>
<style:style style:name="Celda_20_derecha" style:display-name="Celda derecha" style:family="paragraph" style:parent-style-name="Table_20_Contents"><style:paragraph-properties fo:text-align="end"/></style:style>
<style:style style:name="Table_20_Heading" style:display-name="Table Heading" style:family="paragraph" style:parent-style-name="Table_20_Contents" style:class="extra"><style:text-properties style:font-name="Liberation Sans" fo:font-size="8pt" fo:font-weight="bold" fo:color="#1d3445"/></style:style>
<style:style style:name="Cabeza_20_derecha" style:display-name="Cabeza derecha" style:family="paragraph" style:parent-style-name="Table_20_Heading"><style:paragraph-properties fo:text-align="end"/></style:style>
<style:style style:name="Index_20_Link" style:display-name="Index Link" style:family="text"><style:text-properties fo:color="#111111" style:text-underline-style="none"/></style:style>
<style:style style:name="Index" style:family="paragraph" style:parent-style-name="Standard" style:class="index"/>
<style:style style:name="Contents_20_Heading" style:display-name="Contents Heading" style:family="paragraph" style:parent-style-name="Heading" style:class="index"><style:text-properties fo:font-size="16pt"/></style:style>
)";

constexpr std::string_view Pie =
    R"(<style:style style:name="Footer" style:family="paragraph" style:parent-style-name="Standard" style:class="extra"><style:paragraph-properties fo:border-top="0.3mm solid #3f5d73" fo:border-bottom="none" fo:border-left="none" fo:border-right="none" fo:padding-top="1.5mm"><style:tab-stops><style:tab-stop style:position="@ANCHO@" style:type="right"/></style:tab-stops></style:paragraph-properties><style:text-properties style:font-name="Liberation Sans" fo:font-size="8pt" fo:color="#444444"/></style:style>
)";

/// Lines of the table of contents: their page numbers stand at the right.
std::string RenglonesDeIndice(const std::string& ancho)
{
    std::string t;
    for (int nivel = 1; nivel <= 3; ++nivel) {
        const std::string n = std::to_string(nivel);
        t += "<style:style style:name=\"Contents_20_" + n + "\" style:display-name=\"Contents " + n +
             "\" style:family=\"paragraph\" style:parent-style-name=\"Index\" style:class=\"index\">"
             "<style:paragraph-properties fo:margin-left=\"" +
             Mm(6.0 * (nivel - 1)) + "\" fo:margin-top=\"" + (nivel == 1 ? "1.5mm" : "0mm") +
             "\" fo:margin-bottom=\"0.5mm\"><style:tab-stops><style:tab-stop style:position=\"" + ancho +
             "\" style:type=\"right\" style:leader-style=\"dotted\" "
             "style:leader-text=\".\"/></style:tab-stops>"
             "</style:paragraph-properties></style:style>\n";
    }
    return t;
}

std::string Numeracion()
{
    std::string t = "<text:outline-style style:name=\"Outline\">\n";
    for (int nivel = 1; nivel <= 3; ++nivel)
        t += "<text:outline-level-style text:level=\"" + std::to_string(nivel) +
             "\" style:num-format=\"1\" text:display-levels=\"" + std::to_string(nivel) +
             "\"><style:list-level-properties text:list-level-position-and-space-mode=\"label-alignment\">"
             "<style:list-level-label-alignment "
             "text:label-followed-by=\"space\"/></style:list-level-properties>"
             "</text:outline-level-style>\n";
    return t + "</text:outline-style>\n";
}

}  // namespace

const std::string_view EspaciosOdt =
    R"(xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0" xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0" xmlns:xlink="http://www.w3.org/1999/xlink" xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0" office:version="1.3")";

std::string EstilosOdt(const Documento& d)
{
    const Medidas hoja = MedidasDe(d.hoja);
    const std::string ancho = Mm(hoja.ancho - 2 * Margen);
    std::string pie(Pie);
    constexpr std::string_view Hueco = "@ANCHO@";
    pie.replace(pie.find(Hueco), Hueco.size(), ancho);
    const auto pagina = [&](const std::string& nombre, bool conPie) {
        return "<style:page-layout style:name=\"" + nombre +
               "\"><style:page-layout-properties fo:page-width=\"" + Mm(hoja.ancho) + "\" fo:page-height=\"" +
               Mm(hoja.alto) + "\" style:print-orientation=\"portrait\" fo:margin-top=\"" + Mm(Margen) +
               "\" fo:margin-left=\"" + Mm(Margen) + "\" fo:margin-right=\"" + Mm(Margen) +
               "\" fo:margin-bottom=\"" + Mm(conPie ? Margen - 10 : Margen) + "\"/>" +
               (conPie ? "<style:footer-style><style:header-footer-properties fo:min-height=\"10mm\" "
                         "fo:margin-top=\"4mm\"/></style:footer-style>"
                       : "") +
               "</style:page-layout>\n";
    };
    return std::string(Cabeza) + "<office:document-styles " + std::string(EspaciosOdt) + ">\n" +
           std::string(Fuentes) + std::string(Parrafos) + pie + RenglonesDeIndice(ancho) +
           "<style:style style:name=\"Graphics\" style:family=\"graphic\"/>\n" + Numeracion() +
           "</office:styles>\n<office:automatic-styles>\n" + pagina("Hoja", true) +
           pagina("HojaDePortada", false) +
           "</office:automatic-styles>\n<office:master-styles>\n"
           "<style:master-page style:name=\"Standard\" style:page-layout-name=\"Hoja\"><style:footer>"
           "<text:p text:style-name=\"Footer\">" +
           Escapado(d.pie) +
           "<text:tab/>Página <text:page-number text:select-page=\"current\">1</text:page-number> de "
           "<text:page-count>1</text:page-count></text:p></style:footer></style:master-page>\n"
           "<style:master-page style:name=\"First_20_Page\" style:display-name=\"First Page\" "
           "style:page-layout-name=\"HojaDePortada\" style:next-style-name=\"Standard\"/>\n"
           "</office:master-styles>\n</office:document-styles>\n";
}

std::string MetaOdt(const Documento& d)
{
    std::string t = std::string(Cabeza) + "<office:document-meta " + std::string(EspaciosOdt) +
                    "><office:meta><meta:generator>SIRO</meta:generator><dc:title>" + Escapado(d.titulo) +
                    "</dc:title><meta:initial-creator>" + Escapado(d.autor) +
                    "</meta:initial-creator><dc:creator>" + Escapado(d.autor) + "</dc:creator>";
    if (!d.fecha.empty())
        t += "<meta:creation-date>" + Escapado(d.fecha) + "</meta:creation-date><dc:date>" +
             Escapado(d.fecha) + "</dc:date>";
    return t + "<dc:language>es</dc:language></office:meta></office:document-meta>\n";
}

std::string EstiloDe(const Tramo& tramo)
{
    std::string nombre;
    if (tramo.negrita) nombre += 'N';
    if (tramo.cursiva) nombre += 'C';
    if (tramo.altura != Altura::Linea) nombre += tramo.altura == Altura::Arriba ? 'S' : 'B';
    return nombre.empty() ? nombre : "T" + nombre;
}

std::string EstilosDeContenido()
{
    std::string t;
    for (int k = 1; k < 12; ++k) {
        const Tramo tramo{{}, k % 2 == 1, k / 2 % 2 == 1, static_cast<Altura>(k / 4)};
        t += "<style:style style:name=\"" + EstiloDe(tramo) +
             "\" style:family=\"text\"><style:text-properties" +
             (tramo.negrita ? " fo:font-weight=\"bold\"" : "") +
             (tramo.cursiva ? " fo:font-style=\"italic\"" : "");
        if (tramo.altura != Altura::Linea)
            t += std::string(" style:text-position=\"") + (tramo.altura == Altura::Arriba ? "super" : "sub") +
                 " 62%\"";
        t += "/></style:style>\n";
    }
    return t +
           R"(<style:style style:name="Cara" style:family="paragraph" style:parent-style-name="Portada" style:master-page-name="First_20_Page"><style:paragraph-properties fo:margin-top="55mm" style:page-number="auto"/></style:style>
<style:style style:name="Marco" style:family="graphic" style:parent-style-name="Graphics"><style:graphic-properties style:vertical-pos="top" style:vertical-rel="baseline" fo:padding="0mm" fo:border="none"/></style:style>
<style:style style:name="Fila" style:family="table-row"><style:table-row-properties fo:keep-together="always"/></style:style>
<style:style style:name="Celda" style:family="table-cell"><style:table-cell-properties fo:padding-left="1.5mm" fo:padding-right="1.5mm" fo:padding-top="0.5mm" fo:padding-bottom="0.5mm" fo:border-bottom="0.2mm solid #c5cfd6" fo:border-top="none" fo:border-left="none" fo:border-right="none"/></style:style>
<style:style style:name="Cabeza" style:family="table-cell"><style:table-cell-properties style:vertical-align="bottom" fo:padding-left="1.5mm" fo:padding-right="1.5mm" fo:padding-top="1mm" fo:padding-bottom="1mm" fo:border-top="0.5mm solid #3f5d73" fo:border-bottom="0.5mm solid #3f5d73" fo:border-left="none" fo:border-right="none"/></style:style>
<text:list-style style:name="Vinetas"><text:list-level-style-bullet text:level="1" text:bullet-char="•"><style:list-level-properties text:list-level-position-and-space-mode="label-alignment"><style:list-level-label-alignment text:label-followed-by="listtab" text:list-tab-stop-position="6mm" fo:text-indent="-5mm" fo:margin-left="6mm"/></style:list-level-properties></text:list-level-style-bullet></text:list-style>
<text:list-style style:name="Numeros"><text:list-level-style-number text:level="1" style:num-format="1" style:num-suffix="."><style:list-level-properties text:list-level-position-and-space-mode="label-alignment"><style:list-level-label-alignment text:label-followed-by="listtab" text:list-tab-stop-position="7mm" fo:text-indent="-6mm" fo:margin-left="7mm"/></style:list-level-properties></text:list-level-style-number></text:list-style>
)";
}

}  // namespace report
