// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Odt.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

#include "model/Numeros.h"
#include "model/Texto.h"
#include "report/Marcado.h"
#include "report/OdtEstilos.h"
#include "study/Paquete.h"

namespace report {
namespace {

constexpr std::string_view Tipo = "application/vnd.oasis.opendocument.text";
constexpr std::string_view Cabeza = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string Mm(double x)
{
    return model::NumeroATexto(model::Redondea(x, 2)) + "mm";
}

/// A text in XML, its blanks kept.
std::string Escrito(std::string_view texto)
{
    std::string t = Escapado(texto);
    for (std::size_t i = t.find("  "); i != std::string::npos; i = t.find("  ", i + 1))
        t.replace(i + 1, 1, "<text:s/>");
    return t;
}

std::string De(const Texto& texto)
{
    std::string t;
    for (const Tramo& tramo : texto) {
        const std::string estilo = EstiloDe(tramo);
        t += estilo.empty()
                 ? Escrito(tramo.texto)
                 : "<text:span text:style-name=\"" + estilo + "\">" + Escrito(tramo.texto) + "</text:span>";
    }
    return t;
}

std::string EnParrafo(std::string_view estilo, const std::string& dentro)
{
    return "<text:p text:style-name=\"" + std::string(estilo) + "\">" + dentro + "</text:p>\n";
}

/// How wide the columns of a table want to be [mm]: by their longest words and texts, within the page.
std::vector<double> AnchosDe(const Tabla& t, double pagina)
{
    constexpr double PorLetra = 1.75, Relleno = 4, MayorDeseo = 60, MayorTitulo = 28;
    std::vector<double> menor, deseo;
    const auto letras = [](std::string_view texto) {
        return static_cast<double>(model::CuentaCaracteres(texto)) * PorLetra + Relleno;
    };
    const auto palabra = [&](std::string_view texto) {
        double mayor = 0;
        while (!texto.empty()) {
            const std::size_t fin = std::min(texto.find(' '), texto.size());
            mayor = std::max(mayor, letras(texto.substr(0, fin)));
            texto.remove_prefix(std::min(fin + 1, texto.size()));
        }
        return mayor;
    };
    for (std::size_t k = 0; k < t.columnas.size(); ++k) {
        const ColumnaDeTabla& c = t.columnas[k];
        double m = std::max(palabra(EnLlano(c.titulo)), letras("[" + c.unidad + "]"));
        double d = std::max(m, std::min(letras(EnLlano(c.titulo)), MayorTitulo));
        for (const auto& fila : t.filas)
            if (k < fila.size()) {
                m = std::max(m, c.izquierda ? std::min(palabra(fila[k]), MayorDeseo / 2) : letras(fila[k]));
                d = std::max(d, std::min(letras(fila[k]), MayorDeseo));
            }
        menor.push_back(m);
        deseo.push_back(std::max(m, d));
    }
    double suma = 0, sumaDeMenores = 0;
    for (std::size_t k = 0; k < deseo.size(); ++k) {
        suma += deseo[k];
        sumaDeMenores += menor[k];
    }
    if (suma <= pagina) return deseo;
    // What is left over the narrowest goes to those that want more; where there is nothing left, all shrink.
    for (std::size_t k = 0; k < deseo.size(); ++k)
        deseo[k] = sumaDeMenores < pagina
                       ? menor[k] + (deseo[k] - menor[k]) * (pagina - sumaDeMenores) / (suma - sumaDeMenores)
                       : menor[k] * pagina / sumaDeMenores;
    return deseo;
}

/// Whether a table is better moved to the next page than parted.
bool EsCorta(const Tabla& t)
{
    constexpr std::size_t PocasFilas = 18, PocasLetras = 60;
    return t.filas.size() <= PocasFilas && std::all_of(t.filas.begin(), t.filas.end(), [](const auto& fila) {
               return std::all_of(fila.begin(), fila.end(),
                                  [](const std::string& celda) { return celda.size() <= PocasLetras; });
           });
}

class Paquete {
  public:
    Paquete(const Documento& documento, const Dibujante& dibujante)
        : d(documento),
          dibuja(dibujante),
          ancho(MedidasDe(d.hoja).ancho - 2 * Margen),
          alto(MedidasDe(d.hoja).alto - 2 * Margen)
    {
    }

    std::string Hace()
    {
        for (const Bloque& bloque : d.bloques)
            std::visit([this](const auto& b) { Pon(b); }, bloque);
        std::vector<study::Pieza> piezas{{"mimetype", std::string(Tipo), false}};
        piezas.push_back({"content.xml", Contenido()});
        piezas.push_back({"styles.xml", EstilosOdt(d)});
        piezas.push_back({"meta.xml", MetaOdt(d)});
        std::string manifiesto =
            std::string(Cabeza) +
            "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:"
            "1.0\" manifest:version=\"1.3\">\n" +
            Entrada("/", Tipo);
        for (std::size_t k = 1; k < piezas.size(); ++k)
            manifiesto += Entrada(piezas[k].nombre, "text/xml");
        for (study::Pieza& imagen : imagenes) {
            manifiesto += Entrada(imagen.nombre, TipoDeImagen(imagen.bytes));
            piezas.push_back(std::move(imagen));
        }
        piezas.push_back({"META-INF/manifest.xml", manifiesto + "</manifest:manifest>\n"});
        return study::Empaqueta(piezas);
    }

  private:
    const Documento& d;
    const Dibujante& dibuja;
    const double ancho, alto;  ///< of what a page holds [mm]
    std::string cuerpo{}, estilos{};
    std::vector<study::Pieza> imagenes{};

    static std::string Entrada(std::string_view nombre, std::string_view tipo)
    {
        return "<manifest:file-entry manifest:full-path=\"" + std::string(nombre) +
               "\" manifest:media-type=\"" + std::string(tipo) + "\"" +
               (nombre == "/" ? " manifest:version=\"1.3\"" : "") + "/>\n";
    }

    [[nodiscard]] std::string Contenido() const
    {
        return std::string(Cabeza) + "<office:document-content " + std::string(EspaciosOdt) +
               ">\n<office:automatic-styles>\n" + EstilosDeContenido() + estilos +
               "</office:automatic-styles>\n<office:body><office:text>\n<text:sequence-decls>"
               "<text:sequence-decl text:display-outline-level=\"0\" text:name=\"Tabla\"/>"
               "<text:sequence-decl text:display-outline-level=\"0\" "
               "text:name=\"Figura\"/></text:sequence-decls>\n" +
               cuerpo + "</office:text></office:body>\n</office:document-content>\n";
    }

    /// A picture in the package, and the frame that shows it; `otra`: the same for those that can't show it.
    std::string Marco(const std::string& nombre, const std::string& bytes, const std::string& otra, Medidas m)
    {
        std::string t = "<draw:frame draw:style-name=\"Marco\" draw:name=\"" + nombre +
                        "\" text:anchor-type=\"as-char\" svg:width=\"" + Mm(m.ancho) + "\" svg:height=\"" +
                        Mm(m.alto) + "\">";
        for (const std::string& una : {bytes, otra}) {
            const std::string_view tipo = TipoDeImagen(una);
            if (tipo.empty()) continue;
            const std::string_view fin = tipo == "image/svg+xml" ? "svg" : tipo.substr(tipo.find('/') + 1);
            imagenes.push_back({"Pictures/" + nombre + "." + std::string(fin), una});
            t += "<draw:image xlink:href=\"" + imagenes.back().nombre +
                 "\" xlink:type=\"simple\" xlink:show=\"embed\" xlink:actuate=\"onLoad\" draw:mime-type=\"" +
                 std::string(tipo) + "\"/>";
        }
        return t + "</draw:frame>";
    }

    /// Sizes within these bounds, of the same shape.
    static Medidas Dentro(Medidas m, Medidas tope)
    {
        const double factor = std::min({1.0, tope.ancho / m.ancho, tope.alto / m.alto});
        return {m.ancho * factor, m.alto * factor};
    }

    void Pon(const Portada& p)
    {
        std::string logo;
        if (const Medidas m = MedidasDeImagen(d.logo); m.ancho > 0 && m.alto > 0) {
            const double ampliado = 60 / m.ancho;
            logo = Marco("logo", d.logo, "", Dentro({60, m.alto * ampliado}, {60, 40}));
        }
        cuerpo += EnParrafo("Cara", logo) + EnParrafo("Title", Escrito(p.titulo)) +
                  EnParrafo("Subtitle", Escrito(p.subtitulo));
        for (const auto& [que, valor] : p.renglones)
            cuerpo += EnParrafo("Portada", Escrito(que + ": " + valor));
        cuerpo += EnParrafo("Portada", "");
        for (const std::string& renglon : {p.autor, p.fecha})
            if (!renglon.empty()) cuerpo += EnParrafo("Portada", Escrito(renglon));
    }

    void Pon(const Indice& x)
    {
        cuerpo +=
            "<text:table-of-content text:protected=\"true\" "
            "text:name=\"Indice\"><text:table-of-content-source "
            "text:outline-level=\"3\"><text:index-title-template text:style-name=\"Contents_20_Heading\">" +
            Escrito(x.titulo) + "</text:index-title-template>\n";
        for (int nivel = 1; nivel <= 3; ++nivel) {
            const std::string n = std::to_string(nivel);
            cuerpo += "<text:table-of-content-entry-template text:outline-level=\"" + n +
                      "\" text:style-name=\"Contents_20_" + n +
                      "\"><text:index-entry-link-start/><text:index-entry-chapter/><text:index-entry-span> "
                      "</text:index-entry-span><text:index-entry-text/><text:index-entry-tab-stop "
                      "style:type=\"right\" style:leader-char=\".\"/><text:index-entry-page-number/>"
                      "<text:index-entry-link-end/></text:table-of-content-entry-template>\n";
        }
        cuerpo +=
            "</text:table-of-content-source><text:index-body><text:index-title text:name=\"Indice_titulo\">" +
            EnParrafo("Contents_20_Heading", Escrito(x.titulo)) + "</text:index-title>\n";
        for (const Bloque& bloque : d.bloques)
            if (const auto* const t = std::get_if<Titulo>(&bloque))
                cuerpo += EnParrafo(
                    "Contents_20_" + std::to_string(t->nivel),
                    "<text:a xlink:type=\"simple\" text:style-name=\"Index_20_Link\" "
                    "text:visited-style-name=\"Index_20_Link\" xlink:href=\"#" +
                        t->ancla + "\">" + Escrito(t->numero + " " + t->texto) +
                        "<text:tab/><text:bookmark-ref text:reference-format=\"page\" text:ref-name=\"" +
                        t->ancla + "\">1</text:bookmark-ref></text:a>");
        cuerpo += "</text:index-body></text:table-of-content>\n";
    }

    void Pon(const Titulo& x)
    {
        const std::string n = std::to_string(x.nivel);
        cuerpo += "<text:h text:style-name=\"Heading_20_" + n + "\" text:outline-level=\"" + n +
                  "\"><text:bookmark-start text:name=\"" + x.ancla + "\"/>" + Escrito(x.texto) +
                  "<text:bookmark-end text:name=\"" + x.ancla + "\"/></text:h>\n";
    }

    void Pon(const Parrafo& p) { cuerpo += EnParrafo(p.aviso ? "Aviso" : "Text_20_body", De(p.texto)); }
    void Pon(const Formula& f) { cuerpo += EnParrafo("Formula", De(f.texto)); }

    void Pon(const Lista& l)
    {
        cuerpo +=
            std::string("<text:list text:style-name=\"") + (l.numerada ? "Numeros" : "Vinetas") + "\">\n";
        for (const Texto& renglon : l.renglones)
            cuerpo += "<text:list-item>" + EnParrafo("List_20_1", De(renglon)) + "</text:list-item>\n";
        cuerpo += "</text:list>\n";
    }

    /// "Tabla 3. Cauces", the number being a field that counts by itself.
    static std::string Leyenda(const std::string& clase, int numero, const std::string& titulo)
    {
        const std::string n = std::to_string(numero);
        return EnParrafo(clase, clase + " <text:sequence text:ref-name=\"ref" + clase + n +
                                    "\" text:name=\"" + clase + "\" text:formula=\"ooow:" + clase +
                                    "+1\" style:num-format=\"1\">" + n + "</text:sequence>. " +
                                    Escrito(titulo));
    }

    static std::string Celda(std::string_view estilo, std::string_view parrafo, const std::string& dentro)
    {
        return "<table:table-cell table:style-name=\"" + std::string(estilo) +
               "\" office:value-type=\"string\">" + EnParrafo(parrafo, dentro) + "</table:table-cell>";
    }

    /// Styles of a table's own: its width, those of its columns.
    void EstilosDe(const Tabla& x, const std::string& nombre)
    {
        double total = 0;
        const std::vector<double> anchos = AnchosDe(x, ancho);
        for (std::size_t k = 0; k < anchos.size(); ++k) {
            total += anchos[k];
            estilos +=
                "<style:style style:name=\"" + nombre + "c" + std::to_string(k) +
                "\" style:family=\"table-column\"><style:table-column-properties style:column-width=\"" +
                Mm(anchos[k]) + "\"/></style:style>\n";
        }
        estilos += "<style:style style:name=\"" + nombre +
                   "\" style:family=\"table\"><style:table-properties style:width=\"" + Mm(total) +
                   "\" table:align=\"center\" table:border-model=\"collapsing\"" +
                   (EsCorta(x) ? " style:may-break-between-rows=\"false\"" : "") + "/></style:style>\n";
    }

    void Pon(const Tabla& x)
    {
        const std::string nombre = "Tabla" + std::to_string(x.numero);
        EstilosDe(x, nombre);
        cuerpo += Leyenda("Tabla", x.numero, x.titulo) + "<table:table table:name=\"" + nombre +
                  "\" table:style-name=\"" + nombre + "\">";
        for (std::size_t k = 0; k < x.columnas.size(); ++k)
            cuerpo += "<table:table-column table:style-name=\"" + nombre + "c" + std::to_string(k) + "\"/>";
        cuerpo += "\n<table:table-header-rows><table:table-row table:style-name=\"Fila\">";
        for (const ColumnaDeTabla& c : x.columnas)
            cuerpo += Celda(
                "Cabeza", c.izquierda ? "Table_20_Heading" : "Cabeza_20_derecha",
                De(c.titulo) + (c.unidad.empty() ? "" : "<text:line-break/>[" + Escrito(c.unidad) + "]"));
        cuerpo += "</table:table-row></table:table-header-rows>\n";
        for (const auto& fila : x.filas) {
            cuerpo += "<table:table-row table:style-name=\"Fila\">";
            for (std::size_t k = 0; k < fila.size() && k < x.columnas.size(); ++k)
                cuerpo += Celda("Celda", x.columnas[k].izquierda ? "Table_20_Contents" : "Celda_20_derecha",
                                Escrito(fila[k]));
            cuerpo += "</table:table-row>\n";
        }
        cuerpo += "</table:table>\n";
        cuerpo += x.nota.empty() ? EnParrafo("Separacion", "") : EnParrafo("Nota", Escrito(x.nota));
    }

    void Pon(const FiguraPuesta& x)
    {
        const Imagen imagen = dibuja ? dibuja(x.figura) : Imagen{};
        const std::string nombre = "figura" + std::to_string(x.numero);
        constexpr double ParaLeyenda = 20;
        if (imagen.svg.empty() || imagen.ancho <= 0 || imagen.alto <= 0)
            cuerpo += EnParrafo("Imagen", "(No se pudo dibujar esta figura.)");
        else
            cuerpo +=
                EnParrafo("Imagen", Marco(nombre, imagen.svg, imagen.png,
                                          Dentro({imagen.ancho, imagen.alto}, {ancho, alto - ParaLeyenda})));
        cuerpo += Leyenda("Figura", x.numero, x.titulo);
    }

    void Pon(const SaltoDePagina&) { cuerpo += EnParrafo("Salto", ""); }
};

}  // namespace

std::string Odt(const Documento& d, const Dibujante& dibuja)
{
    return Paquete(d, dibuja).Hace();
}

}  // namespace report
