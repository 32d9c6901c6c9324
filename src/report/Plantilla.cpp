// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Plantilla.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "model/Falla.h"
#include "model/Texto.h"
#include "report/Marcado.h"

namespace report {
namespace {

constexpr std::string_view Bom = "\xEF\xBB\xBF", Comentario = "%%";
constexpr int MayorNivel = 3;

std::string_view SinBlancos(std::string_view texto)
{
    constexpr std::string_view Blancos = " \t\r\f\v";
    const std::size_t desde = texto.find_first_not_of(Blancos);
    if (desde == std::string_view::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(Blancos) - desde + 1);
}

/// Digits, a point and a blank ahead of an item; how many bytes they are, 0 where it isn't one.
std::size_t LargoDeNumero(std::string_view linea)
{
    const std::size_t digitos = std::min(linea.find_first_not_of("0123456789"), linea.size());
    return digitos > 0 && linea.substr(digitos).starts_with(". ") ? digitos + 2 : 0;
}

/// Words that a command begins with, the longer ones first, and whether they name something.
struct Mando {
    std::string_view palabra;
    bool nombra;
};
constexpr auto Mandos = std::to_array<Mando>({{"si no", true},
                                              {"si", true},
                                              {"fin", false},
                                              {"tabla", true},
                                              {"figura", true},
                                              {"formula", true},
                                              {"portada", false},
                                              {"indice", false},
                                              {"pagina", false}});

class Lector {
  public:
    Plantilla p{};

    void Lee(std::string_view texto)
    {
        while (!texto.empty()) {
            const std::size_t fin = std::min(texto.find('\n'), texto.size());
            ++linea;
            Linea(SinBlancos(texto.substr(0, fin)));
            texto.remove_prefix(std::min(fin + 1, texto.size()));
        }
        for (const int si : abiertos)
            Falla(si, "A este [[si]] le falta su [[fin]].");
    }

  private:
    int linea = 0;
    bool sigue = false;  ///< the next line goes on with the paragraph or the item in hand
    std::vector<int> abiertos{};

    void Falla(int donde, std::string motivo) { p.faltas.push_back({donde, std::move(motivo)}); }

    void Agrega(Renglon::Clase clase, std::string_view texto, bool continuable = false)
    {
        p.renglones.push_back({.clase = clase, .linea = linea, .texto = std::string(texto)});
        sigue = continuable;
    }

    void Linea(std::string_view l)
    {
        if (l.empty() || l.starts_with(Comentario)) {
            sigue = sigue && !l.empty();
        } else if (l.front() == '#') {
            Titulo(l);
        } else if (l.starts_with("[[")) {
            Mandato(l);
        } else if (l.starts_with("- ")) {
            Agrega(Renglon::Clase::Vineta, SinBlancos(l.substr(2)), true);
        } else if (l.starts_with("= ")) {
            Agrega(Renglon::Clase::Formula, SinBlancos(l.substr(2)));
        } else if (const std::size_t n = LargoDeNumero(l); n > 0 && (!sigue || !EnParrafo())) {
            Agrega(Renglon::Clase::Numerado, SinBlancos(l.substr(n)), true);
        } else if (sigue) {
            p.renglones.back().texto.append(" ").append(l);
        } else {
            Agrega(Renglon::Clase::Parrafo, l, true);
        }
    }

    /// So that a year that begins a line of a paragraph doesn't number it.
    [[nodiscard]] bool EnParrafo() const { return p.renglones.back().clase == Renglon::Clase::Parrafo; }

    void Titulo(std::string_view l)
    {
        const std::size_t almohadillas = std::min(l.find_first_not_of('#'), l.size());
        std::string_view texto = SinBlancos(l.substr(almohadillas));
        std::string_view clave;
        const std::size_t llave = texto.rfind('{');
        if (texto.ends_with('}') && llave != std::string_view::npos &&
            (llave == 0 || texto[llave - 1] == ' ')) {
            clave = SinBlancos(texto.substr(llave + 1, texto.size() - llave - 2));
            texto = SinBlancos(texto.substr(0, llave));
        }
        if (almohadillas > MayorNivel) Falla(linea, "Los títulos tienen hasta tres niveles: #, ## y ###.");
        if (texto.empty()) return Falla(linea, "Falta el texto del título.");
        const bool repetida =
            !clave.empty() && std::any_of(p.renglones.begin(), p.renglones.end(), [&](const Renglon& r) {
                return r.clase == Renglon::Clase::Titulo && r.clave == clave;
            });
        if (repetida) Falla(linea, "La clave {" + std::string(clave) + "} ya es de otro título.");
        Agrega(Renglon::Clase::Titulo, texto);
        p.renglones.back().nivel = std::min(static_cast<int>(almohadillas), MayorNivel);
        p.renglones.back().clave = clave;
    }

    void Mandato(std::string_view l)
    {
        sigue = false;
        if (!l.ends_with("]]"))
            return Falla(linea, "A la marca le falta ]] al final, o no está sola en su renglón.");
        const std::string_view dentro = SinBlancos(l.substr(2, l.size() - 4));
        for (const Mando& m : Mandos) {
            if (!dentro.starts_with(m.palabra)) continue;
            std::string_view que = dentro.substr(m.palabra.size());
            if (!que.empty() && que.front() != ' ') continue;
            que = SinBlancos(que);
            if (m.nombra == que.empty())
                return Falla(linea, m.nombra ? "Falta decir qué: [[" + std::string(m.palabra) + " ...]]."
                                             : "[[" + std::string(m.palabra) + "]] va sin nada más.");
            if (!Cierra(m.palabra)) return;
            Agrega(Renglon::Clase::Mando, que);
            p.renglones.back().clave = m.palabra;
            return;
        }
        Falla(linea, "No hay una marca " + std::string(l) + ".");
    }

    /// Counts conditions; false where one ends that hasn't begun.
    bool Cierra(std::string_view palabra)
    {
        if (palabra.starts_with("si")) abiertos.push_back(linea);
        if (palabra != "fin") return true;
        if (abiertos.empty()) {
            Falla(linea, "Este [[fin]] no tiene su [[si]].");
            return false;
        }
        abiertos.pop_back();
        return true;
    }
};

/// Works out the manners of a text, from its left.
class Escribiente {
  public:
    Texto texto{};

    Escribiente(const Renglon& r, const ValorDeMarca& unValor, std::vector<Falta>& unasFaltas)
        : renglon(r), valor(unValor), faltas(unasFaltas)
    {
    }

    void Escribe()
    {
        std::string_view t = renglon.texto;
        while (!t.empty())
            t.remove_prefix(Toma(t));
        if (ahora.altura != Altura::Linea) Falla("Falta } al final de ^{ o de _{.");
        if (ahora.negrita) Falla("Falta ** al final de la negrita.");
        if (ahora.cursiva) Falla("Falta * al final de la cursiva.");
    }

  private:
    const Renglon& renglon;
    const ValorDeMarca& valor;
    std::vector<Falta>& faltas;
    Tramo ahora{};  ///< its manner is that of what comes next

    void Falla(std::string motivo) { faltas.push_back({renglon.linea, std::move(motivo)}); }

    void Agrega(std::string_view que)
    {
        if (que.empty()) return;
        const bool igual = !texto.empty() && texto.back().negrita == ahora.negrita &&
                           texto.back().cursiva == ahora.cursiva && texto.back().altura == ahora.altura;
        if (!igual) texto.push_back({{}, ahora.negrita, ahora.cursiva, ahora.altura});
        texto.back().texto += que;
    }

    /// Takes what a text begins with; how many bytes that is.
    std::size_t Toma(std::string_view t)
    {
        if (t.starts_with("\\") && t.size() > 1) return Agrega(t.substr(1, 1)), 2;
        if (t.starts_with("{{")) return Valor(t);
        if (t.starts_with("**")) return ahora.negrita = !ahora.negrita, 2;
        if (t.starts_with("*")) return ahora.cursiva = !ahora.cursiva, 1;
        if (ahora.altura != Altura::Linea && t.starts_with("}")) return ahora.altura = Altura::Linea, 1;
        if (ahora.altura == Altura::Linea && (t.starts_with("^{") || t.starts_with("_{"))) {
            ahora.altura = t.front() == '^' ? Altura::Arriba : Altura::Abajo;
            return 2;
        }
        const std::size_t llano = std::min(t.find_first_of("\\{*}^_", 1), t.size());
        Agrega(t.substr(0, llano));
        return llano;
    }

    std::size_t Valor(std::string_view t)
    {
        const std::size_t fin = t.find("}}");
        if (fin == std::string_view::npos) {
            Falla("A la marca {{ le falta su }}.");
            Agrega("{{");
            return 2;
        }
        const std::string_view nombre = SinBlancos(t.substr(2, fin - 2));
        std::string dice;
        if (valor(nombre, dice)) {
            Agrega(dice);
        } else {
            Falla("No hay una marca {{" + std::string(nombre) + "}}.");
            Agrega(t.substr(0, fin + 2));
        }
        return fin + 2;
    }
};

std::string RutaDePlantilla(const std::string& dirTrabajo)
{
    return model::Ruta(model::Ruta(dirTrabajo, CarpetaDePlantillas), ArchivoDePlantilla);
}

}  // namespace

Plantilla LeePlantilla(std::string_view bytes)
{
    Lector lector;
    if (bytes.starts_with(Bom)) bytes.remove_prefix(Bom.size());
    if (EsUtf8(bytes)) {
        lector.Lee(bytes);
    } else {
        lector.p.faltas.push_back({0, "La plantilla no está en UTF-8: se la leyó como Windows-1252."});
        lector.Lee(model::DeWindows1252(bytes));
    }
    return std::move(lector.p);
}

std::vector<Capitulo> CapitulosDe(std::string_view plantilla)
{
    std::vector<Capitulo> capitulos;
    for (const Renglon& r : LeePlantilla(plantilla).renglones)
        if (r.clase == Renglon::Clase::Titulo && r.nivel == 1 && !r.clave.empty())
            capitulos.push_back({r.clave, r.texto});
    return capitulos;
}

Texto TextoConMarcas(const Renglon& renglon, const ValorDeMarca& valor, std::vector<Falta>& faltas)
{
    Escribiente e(renglon, valor, faltas);
    e.Escribe();
    return std::move(e.texto);
}

std::string PlantillaEnUso(const model::Disco& disco, const std::string& dirTrabajo)
{
    try {
        return disco.Lee(RutaDePlantilla(dirTrabajo));
    } catch (const model::Falla& falla) {
        if (falla.numero != model::NumeroFalla::ArchivoNoEsta &&
            falla.numero != model::NumeroFalla::RutaNoEsta)
            throw;
    }
    return std::string(PlantillaDeFabrica());
}

std::string PreparaPlantilla(const model::Disco& disco, const std::string& dirTrabajo)
{
    const std::string carpeta = model::Ruta(dirTrabajo, CarpetaDePlantillas);
    if (!disco.HayDirectorio(carpeta)) disco.CreaDirectorio(carpeta);
    const std::vector<std::string> estan = disco.Lista(carpeta);
    const std::string ruta = RutaDePlantilla(dirTrabajo);
    if (std::find(estan.begin(), estan.end(), ArchivoDePlantilla) == estan.end())
        disco.Reemplaza({{ruta, std::string(PlantillaDeFabrica())}});
    return ruta;
}

}  // namespace report
