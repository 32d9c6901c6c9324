// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Memoria.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "frequency/Cifras.h"
#include "model/Numeros.h"
#include "model/Tormenta.h"
#include "report/Filas.h"
#include "report/Plantilla.h"

namespace report {
namespace {

constexpr std::string_view SinDato = "(sin dato)";

/// The row of a name in one of several tables of rows; null: none.
template <typename Fila>
const Fila* Busca(std::initializer_list<std::span<const Fila>> tablas, std::string_view nombre)
{
    for (const std::span<const Fila> filas : tablas)
        for (const Fila& fila : filas)
            if (fila.nombre == nombre) return &fila;
    return nullptr;
}

/// frequency's formulas as text: what it has raised and slanted for a label.
Texto DeFormula(std::string_view formula)
{
    Texto texto;
    Tramo ahora;
    const std::string html = frequency::FormulaEnHtml(formula);
    constexpr auto Marcas =
        std::to_array<std::string_view>({"<i>", "</i>", "<sup>", "</sup>", "&lt;", "&gt;", "&amp;"});
    for (std::size_t i = 0; i < html.size();) {
        const std::string_view resto = std::string_view(html).substr(i);
        const auto* const marca = std::find_if(Marcas.begin(), Marcas.end(),
                                               [&](std::string_view m) { return resto.starts_with(m); });
        const auto cual = marca - Marcas.begin();
        i += marca == Marcas.end() ? 1 : marca->size();
        if (cual < 2) ahora.cursiva = cual == 0;
        if (cual == 2 || cual == 3) ahora.altura = cual == 2 ? Altura::Arriba : Altura::Linea;
        if (cual < 4) continue;
        ahora.texto = cual == 4 ? "<" : cual == 5 ? ">" : cual == 6 ? "&" : resto.substr(0, 1);
        const bool igual =
            !texto.empty() && texto.back().cursiva == ahora.cursiva && texto.back().altura == ahora.altura;
        if (igual)
            texto.back().texto += ahora.texto;
        else
            texto.push_back(ahora);
    }
    return texto;
}

/// "2011-04-03T10:20:30" of "03/04/2011 10:20:30"; empty for anything else.
std::string EnIso(std::string_view cuando)
{
    constexpr std::string_view Forma = "dd/dd/dddd dd:dd:dd";
    if (cuando.size() != Forma.size()) return {};
    for (std::size_t i = 0; i < Forma.size(); ++i)
        if (Forma[i] == 'd' ? cuando[i] < '0' || cuando[i] > '9' : cuando[i] != Forma[i]) return {};
    const std::string c(cuando);
    return c.substr(6, 4) + "-" + c.substr(3, 2) + "-" + c.substr(0, 2) + "T" + c.substr(11);
}

/// Goes through a template from its top and writes the document.
class Redactor {
  public:
    Documento doc{};

    Redactor(const Datos& datos, const Eleccion& eleccion) : f(datos, eleccion) {}

    void Escribe(const Plantilla& p)
    {
        doc.titulo = ValorDe("proyecto");
        doc.autor = ValorDe("autor");
        doc.fecha = EnIso(ValorDe("fecha"));
        doc.pie = "Memoria de cálculo. " + doc.titulo;
        doc.logo = f.e.logo;
        doc.hoja = f.e.hoja;
        for (const Falta& falta : p.faltas)
            Falla(falta.linea, falta.motivo);
        for (const Renglon& r : p.renglones)
            Hace(r);
    }

  private:
    const Fuente f;
    std::vector<bool> condiciones{};  ///< of those that are open, whether they hold
    bool omitido = false;             ///< the chapter in hand was left out
    std::array<int, 3> numeros{};     ///< of the headings
    int tablas = 0, figuras = 0;

    std::string ValorDe(std::string_view nombre) { return Busca({FilasDeValor()}, nombre)->valor(f); }

    void Falla(int linea, const std::string& motivo)
    {
        doc.faltas.push_back({linea, motivo});
        const std::string donde =
            linea > 0 ? "Plantilla, renglón " + std::to_string(linea) + ": " : "Plantilla: ";
        doc.bloques.emplace_back(Parrafo{Llano(donde + motivo), true});
    }

    [[nodiscard]] bool Vale() const
    {
        return std::find(condiciones.begin(), condiciones.end(), false) == condiciones.end();
    }

    void Hace(const Renglon& r)
    {
        if (r.clase == Renglon::Clase::Mando && (r.clave.starts_with("si") || r.clave == "fin"))
            return Condicion(r);
        if (!Vale()) return;
        if (r.clase == Renglon::Clase::Titulo && r.nivel == 1)
            omitido = !r.clave.empty() && std::find(f.e.sinCapitulos.begin(), f.e.sinCapitulos.end(),
                                                    r.clave) != f.e.sinCapitulos.end();
        if (omitido) return;
        switch (r.clase) {
        case Renglon::Clase::Titulo:
            return Encabeza(r);
        case Renglon::Clase::Parrafo:
            return Agrega(Parrafo{Compone(r)});
        case Renglon::Clase::Formula:
            return Agrega(Formula{Compone(r)});
        case Renglon::Clase::Vineta:
            return AgregaALista(r, false);
        case Renglon::Clase::Numerado:
            return AgregaALista(r, true);
        case Renglon::Clase::Mando:
            return Manda(r);
        }
    }

    void Agrega(Bloque bloque) { doc.bloques.push_back(std::move(bloque)); }

    void Condicion(const Renglon& r)
    {
        if (r.clave == "fin") return condiciones.pop_back();
        const FilaDeCondicion* const fila = Busca({FilasDeCondicion()}, r.texto);
        const bool seLee = Vale();  // in a chapter left out too, since the next one may begin inside
        if (fila == nullptr && seLee) Falla(r.linea, "No hay una condición \"" + r.texto + "\".");
        // What can't be judged is made.
        condiciones.push_back(fila == nullptr || !seLee || fila->vale(f) == (r.clave == "si"));
    }

    Texto Compone(const Renglon& r)
    {
        std::vector<Falta> faltas;
        const auto valor = [&](std::string_view nombre, std::string& dice) {
            const FilaDeValor* const fila = Busca({FilasDeValor()}, nombre);
            if (fila == nullptr) return EsNumero(nombre, dice);
            dice = fila->valor(f);
            if (dice.empty()) dice = SinDato;
            return true;
        };
        Texto texto = TextoConMarcas(r, valor, faltas);
        for (const Falta& falta : faltas)
            Falla(falta.linea, falta.motivo);
        return texto;
    }

    /// A number of the template's own, in the language of the document's.
    bool EsNumero(std::string_view nombre, std::string& dice) const
    {
        const bool es = !nombre.empty() &&
                        nombre.find_first_not_of("0123456789.") == std::string_view::npos &&
                        model::EsNumerico(nombre);
        if (es) dice = f.n.De(nombre);
        return es;
    }

    void Encabeza(const Renglon& r)
    {
        const std::string texto = EnLlano(Compone(r));
        // A level that skips one would be numbered 1.0.1.
        std::size_t nivel = 1;
        while (nivel < static_cast<std::size_t>(r.nivel) && numeros[nivel - 1] > 0)
            ++nivel;
        ++numeros[nivel - 1];
        std::fill(numeros.begin() + static_cast<std::ptrdiff_t>(nivel), numeros.end(), 0);
        std::string numero, ancla = "cap";
        for (std::size_t i = 0; i < nivel; ++i) {
            numero += (i > 0 ? "." : "") + std::to_string(numeros[i]);
            ancla += "-" + std::to_string(numeros[i]);
        }
        Agrega(Titulo{static_cast<int>(nivel), numero, texto, ancla});
    }

    void AgregaALista(const Renglon& r, bool numerada)
    {
        Texto texto = Compone(r);
        Lista* lista = doc.bloques.empty() ? nullptr : std::get_if<Lista>(&doc.bloques.back());
        if (lista == nullptr || lista->numerada != numerada) {
            Agrega(Lista{numerada, {}});
            lista = &std::get<Lista>(doc.bloques.back());
        }
        lista->renglones.push_back(std::move(texto));
    }

    void Manda(const Renglon& r)
    {
        if (r.clave == "portada") return Agrega(HazPortada());
        if (r.clave == "indice") return Agrega(Indice{"Índice"});
        if (r.clave == "pagina") return Agrega(SaltoDePagina{});
        if (r.clave == "formula") return PonFormula(r);
        if (r.clave == "figura") return PonFiguras(r);
        PonTablas(r);
    }

    void PonTablas(const Renglon& r)
    {
        const FilaDeTabla* const fila =
            Busca({TablasDeRed(), TablasDeCorrida(), TablasDeSerie(), TablasDeEstudio()}, r.texto);
        if (fila == nullptr) return Falla(r.linea, "No hay una tabla \"" + r.texto + "\".");
        std::vector<Tabla> hechas = fila->hace(f);
        if (hechas.empty()) Agrega(Parrafo{Llano(std::string(fila->sinDatos))});
        for (Tabla& t : hechas) {
            t.numero = ++tablas;
            Agrega(std::move(t));
        }
    }

    void PonFiguras(const Renglon& r)
    {
        const FilaDeFigura* const fila = Busca({FilasDeFigura()}, r.texto);
        if (fila == nullptr) return Falla(r.linea, "No hay una figura \"" + r.texto + "\".");
        std::vector<FiguraPuesta> hechas = fila->hace(f);
        if (hechas.empty()) Agrega(Parrafo{Llano(std::string(fila->sinDatos))});
        for (FiguraPuesta& figura : hechas) {
            figura.numero = ++figuras;
            Agrega(std::move(figura));
        }
    }

    void PonFormula(const Renglon& r)
    {
        const FilaDeFormula* const fila = Busca({FilasDeFormula()}, r.texto);
        if (fila == nullptr) return Falla(r.linea, "No hay una fórmula \"" + r.texto + "\".");
        const std::string_view formula = fila->formula(f);
        if (formula.empty()) return Agrega(Parrafo{Llano(std::string(fila->sinDatos))});
        Agrega(Formula{DeFormula(f.n.EnTexto(formula))});
    }

    Portada HazPortada()
    {
        Portada p{.titulo = doc.titulo, .subtitulo = "Memoria de cálculo hidrológico", .autor = doc.autor};
        constexpr auto Renglones =
            std::to_array<std::pair<std::string_view, std::string_view>>({{"Ubicación", "ubicacion"},
                                                                          {"Cuenca", "cuenca"},
                                                                          {"Subcuenca", "subcuenca"},
                                                                          {"Comitente", "comitente"}});
        for (const auto& [que, marca] : Renglones)
            if (std::string valor = ValorDe(marca); !valor.empty())
                p.renglones.emplace_back(que, std::move(valor));
        p.fecha = ValorDe("fecha").substr(0, ValorDe("fecha").find(' '));
        return p;
    }
};

/// A word of a command line, in quotes where it needs them.
std::string Palabra(const std::string& texto)
{
    const bool llana = !texto.empty() && std::all_of(texto.begin(), texto.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view("_-./:\\,").find(c) != std::string_view::npos;
    });
    return llana ? texto : "\"" + texto + "\"";
}

std::string Opcion(std::string_view nombre, const std::string& valor)
{
    return " --" + std::string(nombre) + " " + Palabra(valor);
}

std::string LluviaDe(const checks::UltimaCorrida& u, const std::string& tormentaReal)
{
    const model::Tormenta& t = u.entrada;
    if (t.FormaPp == model::FormaLluvia::Real)
        return Opcion("forma", "4") +
               Opcion("tormenta", tormentaReal.empty() ? "NOMBRE_pt.vlm" : tormentaReal);
    std::string orden;
    if (t.FormaPp == model::FormaLluvia::PorUEH) {
        std::string laminas;
        for (int k = 1; k <= std::min<int>(u.red.ColUEHs.Cuenta(), t.PpUEH.Tope()); ++k)
            laminas += (k > 1 ? "," : "") + model::NumeroATexto(t.PpUEH(k));
        orden = Opcion("forma", "3") + Opcion("pp-ueh", laminas);
    } else {
        orden = Opcion("pp", model::NumeroATexto(t.PpTormenta));
    }
    orden += Opcion("dur", model::NumeroATexto(t.DurTormenta));
    if (t.RecTormenta > 0) orden += Opcion("rec", model::NumeroATexto(t.RecTormenta));
    if (t.FormaPp != model::FormaLluvia::PorUEH)
        orden += Opcion("distribucion", model::NumeroATexto(t.DistriPp));
    return orden;
}

template <typename Filas>
void Anota(std::vector<Marca>& marcas, std::string_view abre, const Filas& filas, std::string_view cierra)
{
    for (const auto& fila : filas)
        marcas.push_back({std::string(abre).append(fila.nombre).append(cierra), fila.explica});
}

}  // namespace

Documento Memoria(const Datos& datos, const Eleccion& eleccion, std::string_view plantilla)
{
    Redactor redactor(datos, eleccion);
    redactor.Escribe(LeePlantilla(plantilla));
    return std::move(redactor.doc);
}

std::vector<Marca> Marcas()
{
    std::vector<Marca> marcas{
        {"[[portada]]", "la carátula: logo, título, cuenca, comitente, autor, fecha"},
        {"[[indice]]", "el índice de los títulos"},
        {"[[pagina]]", "lo que sigue empieza en otra página"},
        {"{{0.5}}", "un número, con el signo decimal elegido"},
        {"[[si X]] ... [[fin]]", "lo de adentro va sólo si vale la condición X"},
        {"[[si no X]] ... [[fin]]", "lo de adentro va sólo si no vale la condición X"},
    };
    Anota(marcas, "{{", FilasDeValor(), "}}");
    Anota(marcas, "[[si ", FilasDeCondicion(), "]]");
    for (const auto filas : {TablasDeRed(), TablasDeCorrida(), TablasDeSerie(), TablasDeEstudio()})
        Anota(marcas, "[[tabla ", filas, "]]");
    Anota(marcas, "[[figura ", FilasDeFigura(), "]]");
    Anota(marcas, "[[formula ", FilasDeFormula(), "]]");
    return marcas;
}

std::string OrdenDeLote(const checks::UltimaCorrida& u, const std::string& archivoConf,
                        const std::string& tormentaReal)
{
    std::string orden = std::string("siro-lote ") + (u.esSerie ? "serie " : "una ") + Palabra(archivoConf);
    if (u.esSerie)
        orden += Opcion("tabla", model::NumeroATexto(u.entrada.TablaPDR)) +
                 Opcion("distribucion", model::NumeroATexto(u.entrada.DistriPp));
    else
        orden += LluviaDe(u, tormentaReal);
    return orden + Opcion("paso-pp", model::NumeroATexto(u.pasos.PasoPp)) +
           Opcion("paso-q", model::NumeroATexto(u.pasos.PasoQ)) + " --avisos";
}

}  // namespace report
