// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Html.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <variant>

#include "model/Numeros.h"
#include "report/Marcado.h"

namespace report {
namespace {

constexpr std::string_view Estilo = R"(
body { font: 11pt/1.4 "Liberation Serif", "Times New Roman", serif; color: #111; max-width: 46em; margin: 2em auto; padding: 0 1em }
h1, h2, h3, .portada, th, caption, figcaption { font-family: "Liberation Sans", Arial, sans-serif; color: #1d3445 }
h1 { font-size: 17pt; margin: 1.6em 0 .5em } h2 { font-size: 13pt; margin: 1.4em 0 .4em } h3 { font-size: 11pt; margin: 1.2em 0 .3em }
h1, h2, h3 { break-after: avoid } p { text-align: justify; margin: .5em 0 }
.portada { text-align: center; padding: 55mm 0 20mm } .portada img { max-width: 60mm; max-height: 40mm }
.portada .titulo { font-size: 26pt; font-weight: bold; margin: 1em 0 .3em } .portada p { text-align: center }
.portada .subtitulo { font-size: 15pt; margin-bottom: 3em } .portada .fecha { margin-top: 3em }
.aviso { border-left: 4px solid #b3261e; padding: .2em .8em; background: #fbeeed }
sub, sup { font-size: 65%; line-height: 0 }
.formula { text-align: center; margin: .7em 0 }
nav ol { list-style: none; padding: 0 } nav li { margin: .15em 0 } nav .n2 { padding-left: 1.5em } nav .n3 { padding-left: 3em }
nav a { color: inherit; text-decoration: none }
table { border-collapse: collapse; margin: 1em auto; font-size: 9pt; max-width: 100% }
caption, figcaption { font-size: 9.5pt; font-weight: bold; margin: .3em 0; text-align: center }
th, td { border-bottom: 1px solid #c5cfd6; padding: .2em .5em; text-align: left; overflow-wrap: anywhere }
thead { display: table-header-group; border-top: 2px solid #3f5d73; border-bottom: 2px solid #3f5d73 }
th { font-size: 8.5pt; vertical-align: bottom } .d { text-align: right } .d, .c { white-space: nowrap } tr { break-inside: avoid }
.nota { font-size: 9pt; color: #444; margin-top: -.5em } .unidad { font-weight: normal }
caption { break-after: avoid } figure { margin: 1em 0; text-align: center; break-inside: avoid } figure img { max-width: 100% }
.pagina { break-after: page } li { overflow-wrap: anywhere }
)";

/// A name, which isn't to be parted at its hyphen.
bool EsPalabra(std::string_view celda)
{
    constexpr std::size_t MasLarga = 24;
    return celda.size() <= MasLarga && celda.find(' ') == std::string_view::npos;
}

/// A picture as a part of the page.
std::string Incrustada(std::string_view tipo, std::string_view bytes)
{
    return "data:" + std::string(tipo) + ";base64," + Base64(bytes);
}

std::string De(const Texto& texto)
{
    std::string t;
    for (const Tramo& tramo : texto) {
        std::string cierra;
        const auto abre = [&](bool hay, const std::string& marca) {
            if (!hay) return;
            t += "<" + marca + ">";
            cierra = "</" + marca + ">" + cierra;
        };
        abre(tramo.negrita, "b");
        abre(tramo.cursiva, "i");
        abre(tramo.altura == Altura::Arriba, "sup");
        abre(tramo.altura == Altura::Abajo, "sub");
        t += Escapado(tramo.texto) + cierra;
    }
    return t;
}

class Pagina {
  public:
    std::string t{};

    Pagina(const Documento& documento, const Dibujante& dibujante) : d(documento), dibuja(dibujante) {}

    void Escribe()
    {
        const Medidas hoja = MedidasDe(d.hoja);
        const auto mm = [](double x) { return model::NumeroATexto(x) + "mm"; };
        t = "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
            Escapado(d.titulo) + "</title>\n<meta name=\"author\" content=\"" + Escapado(d.autor) + "\">\n";
        if (!d.fecha.empty()) t += "<meta name=\"date\" content=\"" + Escapado(d.fecha) + "\">\n";
        t += "<style>\n@page { size: " + mm(hoja.ancho) + " " + mm(hoja.alto) + "; margin: " + mm(Margen) +
             "; @bottom-right { content: \"Página \" counter(page) \" de \" counter(pages); font: 8pt "
             "sans-serif } }\n@media print { body { margin: 0; max-width: none; padding: 0 } }" +
             std::string(Estilo) + "</style>\n</head>\n<body>\n";
        for (const Bloque& bloque : d.bloques)
            std::visit([this](const auto& b) { Pon(b); }, bloque);
        t += "</body>\n</html>\n";
    }

  private:
    const Documento& d;
    const Dibujante& dibuja;

    void Pon(const Portada& p)
    {
        t += "<header class=\"portada\">\n";
        if (const std::string_view tipo = TipoDeImagen(d.logo); !tipo.empty())
            t += "<img src=\"" + Incrustada(tipo, d.logo) + "\" alt=\"\">\n";
        const auto parrafo = [this](const std::string& clase, const std::string& texto) {
            if (!texto.empty()) t += "<p class=\"" + clase + "\">" + Escapado(texto) + "</p>\n";
        };
        parrafo("titulo", p.titulo);
        parrafo("subtitulo", p.subtitulo);
        for (const auto& [que, valor] : p.renglones)
            parrafo("renglon", que + ": " + valor);
        parrafo("autor", p.autor);
        parrafo("fecha", p.fecha);
        t += "</header>\n";
    }

    void Pon(const Indice& i)
    {
        t += "<nav>\n<h2>" + Escapado(i.titulo) + "</h2>\n<ol>\n";
        for (const Bloque& bloque : d.bloques)
            if (const auto* const titulo = std::get_if<Titulo>(&bloque))
                t += "<li class=\"n" + std::to_string(titulo->nivel) + "\"><a href=\"#" + titulo->ancla +
                     "\">" + Escapado(titulo->numero + " " + titulo->texto) + "</a></li>\n";
        t += "</ol>\n</nav>\n";
    }

    void Pon(const Titulo& x)
    {
        const std::string h = "h" + std::to_string(x.nivel);
        t += "<" + h + " id=\"" + x.ancla + "\">" + Escapado(x.numero + " " + x.texto) + "</" + h + ">\n";
    }

    void Pon(const Parrafo& p) { t += (p.aviso ? "<p class=\"aviso\">" : "<p>") + De(p.texto) + "</p>\n"; }

    void Pon(const Formula& f) { t += "<p class=\"formula\">" + De(f.texto) + "</p>\n"; }

    void Pon(const Lista& l)
    {
        const std::string marca = l.numerada ? "ol" : "ul";
        t += "<" + marca + ">\n";
        for (const Texto& renglon : l.renglones)
            t += "<li>" + De(renglon) + "</li>\n";
        t += "</" + marca + ">\n";
    }

    static std::string Clase(const ColumnaDeTabla& c) { return c.izquierda ? "" : " class=\"d\""; }

    void Pon(const Tabla& x)
    {
        t += "<table id=\"tabla-" + std::to_string(x.numero) + "\">\n<caption>Tabla " +
             std::to_string(x.numero) + ". " + Escapado(x.titulo) + "</caption>\n<thead><tr>";
        for (const ColumnaDeTabla& c : x.columnas) {
            t += "<th" + Clase(c) + ">" + De(c.titulo);
            if (!c.unidad.empty()) t += "<br><span class=\"unidad\">[" + Escapado(c.unidad) + "]</span>";
            t += "</th>";
        }
        t += "</tr></thead>\n<tbody>\n";
        for (const auto& fila : x.filas) {
            t += "<tr>";
            for (std::size_t k = 0; k < fila.size() && k < x.columnas.size(); ++k)
                t += "<td" +
                     (x.columnas[k].izquierda && EsPalabra(fila[k]) ? " class=\"c\"" : Clase(x.columnas[k])) +
                     ">" + Escapado(fila[k]) + "</td>";
            t += "</tr>\n";
        }
        t += "</tbody>\n</table>\n";
        if (!x.nota.empty()) t += "<p class=\"nota\">" + Escapado(x.nota) + "</p>\n";
    }

    void Pon(const FiguraPuesta& x)
    {
        const Imagen imagen = dibuja ? dibuja(x.figura) : Imagen{};
        t += "<figure id=\"figura-" + std::to_string(x.numero) + "\">\n";
        if (imagen.svg.empty())
            t += "<p>(No se pudo dibujar esta figura.)</p>\n";
        else
            t += "<img src=\"" + Incrustada("image/svg+xml", imagen.svg) + "\" alt=\"" + Escapado(x.titulo) +
                 "\" style=\"width:" + model::NumeroATexto(imagen.ancho) + "mm\">\n";
        t += "<figcaption>Figura " + std::to_string(x.numero) + ". " + Escapado(x.titulo) +
             "</figcaption>\n</figure>\n";
    }

    void Pon(const SaltoDePagina&) { t += "<div class=\"pagina\"></div>\n"; }
};

}  // namespace

std::string Html(const Documento& d, const Dibujante& dibuja)
{
    Pagina pagina(d, dibuja);
    pagina.Escribe();
    return std::move(pagina.t);
}

}  // namespace report
