// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Incertidumbre.h"
#include "model/Numeros.h"

namespace calibration {

namespace {

/// Lines of a text, one after another.
class Renglones {
  public:
    explicit Renglones(std::string_view unTexto) : texto(unTexto) {}
    /// The next one without its end; empty at the end of the text.
    std::string_view Otro()
    {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        const std::string_view uno = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        return uno;
    }
    /// The next one as whole numbers, as many as asked for. Returns false where they aren't.
    bool Enteros(std::vector<std::uint64_t>& numeros, std::size_t cuantos)
    {
        std::string_view uno = Otro();
        numeros.clear();
        for (std::size_t i = 0; i < cuantos; ++i) {
            const std::size_t fin = std::min(uno.find(' '), uno.size());
            std::uint64_t n = 0;
            for (const char c : uno.substr(0, fin)) {
                if (c < '0' || c > '9') return false;
                n = 10 * n + static_cast<std::uint64_t>(c - '0');
            }
            if (fin == 0) return false;
            numeros.push_back(n);
            uno.remove_prefix(std::min(fin + 1, uno.size()));
        }
        resto = uno;
        return true;
    }
    std::string_view resto{};  ///< of the last line behind its numbers

  private:
    std::string_view texto;
};

}  // namespace

std::string Escribe(const Conjunto& c)
{
    std::string t = c.componente + '\n' + c.evento + '\n' + model::NumeroATexto(c.paso) + '\n' +
                    model::NumeroATexto(c.base) + '\n';
    for (const std::uint64_t n :
         {std::uint64_t{c.embalse}, std::uint64_t{c.conTope}, c.miembros, c.cuentan, c.rebosan,
          c.pesoQueRebosa, std::uint64_t{c.fallidos.size()}, std::uint64_t{c.caudal.size()}})
        t += std::to_string(n) + ' ';
    t.back() = '\n';
    for (const auto& [motivo, suyos] : c.fallidos) {
        std::string llano = motivo;
        for (char& letra : llano)
            if (letra == '\n' || letra == '\r') letra = ' ';
        t += std::to_string(suyos.cuantos) + ' ' + std::to_string(suyos.primeros.size()) + ' ' + llano + '\n';
        for (const std::size_t k : suyos.primeros)
            t += std::to_string(k) + ' ';
        t.back() = '\n';
    }
    for (const runs::Cuantiles* const d : {&c.pico, &c.tiempo, &c.volumen, &c.nivel})
        d->Escribe(t);
    for (const runs::Cuantiles& d : c.caudal)
        d.Escribe(t);
    return t;
}

bool Lee(std::string_view texto, Conjunto& c)
{
    Renglones r(texto);
    c = {};
    c.componente = r.Otro();
    c.evento = r.Otro();
    const std::optional<double> paso = model::NumeroEntero(r.Otro()), base = model::NumeroEntero(r.Otro());
    constexpr std::size_t Numeros = 8;
    constexpr std::uint64_t TopePasos = 1U << 16U;
    std::vector<std::uint64_t> n;
    if (!paso || !base || !r.Enteros(n, Numeros) || n[7] > TopePasos) return false;
    c.paso = *paso;
    c.base = *base;
    c.embalse = n[0] != 0;
    c.conTope = n[1] != 0;
    c.miembros = n[2];
    c.cuentan = n[3];
    c.rebosan = n[4];
    c.pesoQueRebosa = n[5];
    const std::uint64_t motivos = n[6];
    c.caudal.resize(n[7]);
    for (std::uint64_t i = 0; i < motivos; ++i) {
        if (!r.Enteros(n, 2) || n[1] < 1 || n[1] > MaximoDePrimeros) return false;
        Fallidos& f = c.fallidos[std::string(r.resto)];
        f.cuantos = n[0];
        if (!r.Enteros(n, static_cast<std::size_t>(n[1]))) return false;
        f.primeros.assign(n.begin(), n.end());
    }
    for (runs::Cuantiles* const d : {&c.pico, &c.tiempo, &c.volumen, &c.nivel})
        if (!d->Lee(r.Otro())) return false;
    for (runs::Cuantiles& d : c.caudal)
        if (!d.Lee(r.Otro())) return false;
    return c.fallidos.size() == motivos;
}

}  // namespace calibration
