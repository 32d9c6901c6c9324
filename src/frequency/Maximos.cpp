// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Maximos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace frequency {
namespace {

constexpr int PrimerAnio = 1500, UltimoAnio = 2200;
constexpr double MayorLluvia = 1e5;  // [mm]
constexpr std::size_t MaxErrores = 20;

std::string_view SinBlancos(std::string_view t)
{
    constexpr std::string_view Blancos = " \t\r\"";
    const std::size_t desde = t.find_first_not_of(Blancos);
    if (desde == std::string_view::npos) return {};
    return t.substr(desde, t.find_last_not_of(Blancos) + 1 - desde);
}

template <typename T>
std::optional<T> NumeroDe(std::string_view t)
{
    T n{};
    const auto fin = std::from_chars(t.data(), t.data() + t.size(), n);
    if (t.empty() || fin.ec != std::errc() || fin.ptr != t.data() + t.size()) return {};
    return n;
}

/// The year of "1987", "05/03/1987", "5-3-1987", "1987-03-05".
std::optional<int> AnioDe(std::string_view t)
{
    std::array<int, 3> partes{};
    std::size_t cuantas = 0;
    while (true) {
        const std::size_t fin = std::min(t.find_first_of("/-"), t.size());
        const auto n = NumeroDe<int>(t.substr(0, fin));
        if (!n || cuantas == partes.size()) return {};
        partes[cuantas++] = *n;
        if (fin == t.size()) break;
        t.remove_prefix(fin + 1);
    }
    if (cuantas == 1) return partes[0];
    if (cuantas != partes.size()) return {};
    const bool anioPrimero = partes[0] > 31;
    const int dia = anioPrimero ? partes[2] : partes[0], anio = anioPrimero ? partes[0] : partes[2];
    if (dia < 1 || dia > 31 || partes[1] < 1 || partes[1] > 12) return {};
    return anio;
}

bool EsFalta(std::string_view t)
{
    constexpr std::array<std::string_view, 6> Faltas{"", "-", "NA", "na", "s/d", "S/D"};
    return std::find(Faltas.begin(), Faltas.end(), t) != Faltas.end();
}

/// Reads row by row and gathers what is wrong.
class Lector {
  public:
    Serie serie{};
    std::vector<int> faltan{};

    void Renglon(std::size_t n, std::string_view texto)
    {
        texto = SinBlancos(texto);
        if (texto.empty() || texto.front() == '#') return;
        const bool primero = std::exchange(esPrimero, false);
        const std::size_t corte = Separador(texto);
        if (corte == std::string_view::npos) return Error(n, "faltan las dos columnas, año y valor");
        const std::string_view clave = SinBlancos(texto.substr(0, corte)),
                               valor = SinBlancos(texto.substr(corte + 1));
        const auto anio = AnioDe(clave);
        const std::string conPunto = model::ComasAPuntos(valor);
        const auto x = NumeroDe<double>(conPunto);
        if (!anio && !x && primero) return;
        if (!anio) return Error(n, "\"" + std::string(clave) + "\" no es un año ni una fecha");
        if (*anio < PrimerAnio || *anio > UltimoAnio)
            return Error(n, "el año " + std::to_string(*anio) + " no está entre 1500 y 2200");
        if (EsFalta(valor)) return faltan.push_back(*anio);
        if (!x || !std::isfinite(*x)) return Error(n, "\"" + std::string(valor) + "\" no es un número");
        if (*x < 0) return Error(n, "el valor es negativo");
        if (*x > MayorLluvia) return Error(n, "el valor pasa de 100000 mm");
        serie.maximos.push_back({*anio, *x});
    }

    void Error(std::size_t n, const std::string& que)
    {
        serie.errores.push_back("Renglón " + std::to_string(n) + ": " + que + ".");
    }

  private:
    bool esPrimero = true;

    static std::size_t Separador(std::string_view t)
    {
        for (const char c : {';', '\t', ','})
            if (const std::size_t donde = t.find(c); donde != std::string_view::npos) return donde;
        return t.find(' ');
    }
};

void MiraAnios(Serie& s)
{
    if (s.maximos.size() > MaximoDeAnios) {
        s.errores.push_back("Hay " + std::to_string(s.maximos.size()) +
                            " máximos: más de 1000 años no son de un pluviómetro. Revise si el archivo es de "
                            "máximos anuales, uno por año.");
        return;
    }
    std::stable_sort(s.maximos.begin(), s.maximos.end(),
                     [](const Maximo& a, const Maximo& b) { return a.anio < b.anio; });
    std::string huecos;
    for (std::size_t i = 1; i < s.maximos.size(); ++i) {
        const int antes = s.maximos[i - 1].anio, anio = s.maximos[i].anio;
        if (antes == anio && (i < 2 || s.maximos[i - 2].anio != anio))
            s.errores.push_back("El año " + std::to_string(anio) + " tiene dos máximos.");
        if (anio <= antes + 1) continue;
        huecos += (huecos.empty() ? "" : ", ") + std::to_string(antes + 1);
        if (anio > antes + 2) huecos += " a " + std::to_string(anio - 1);
    }
    if (!huecos.empty())
        s.avisos.push_back(
            "Faltan años: " + huecos +
            ". Se ajusta con los que hay; es correcto si faltan por azar y no por una crecida.");
}

void MiraTamano(Serie& s)
{
    std::vector<double> lluvias;
    std::string secos;
    for (const Maximo& m : s.maximos)
        if (m.valor != 0)
            lluvias.push_back(m.valor);
        else
            secos += (secos.empty() ? "" : ", ") + std::to_string(m.anio);
    const std::size_t n = lluvias.size(), sinLluvia = s.maximos.size() - n;
    if (n < MinimoDeAnios)
        s.errores.push_back("Hay " + std::to_string(n) + " máximos" +
                            (sinLluvia > 0 ? " mayores que 0" : "") + " y hacen falta 10 por lo menos.");
    const auto distinto = [&](double x) { return x != lluvias.front(); };
    if (n >= MinimoDeAnios && std::none_of(lluvias.begin(), lluvias.end(), distinto))
        s.errores.emplace_back("Todos los valores son iguales: no hay nada que ajustar.");
    if (sinLluvia > 0)
        s.avisos.push_back("Años sin lluvia: " + std::to_string(sinLluvia) + " de " +
                           std::to_string(s.maximos.size()) + " (" + secos +
                           "). Las leyes se ajustan a los otros, y F = p0 + (1 - p0) G con p0 = " +
                           model::NumeroATexto(model::Redondea(
                               static_cast<double>(sinLluvia) / static_cast<double>(s.maximos.size()), 4)) +
                           ". Si en alguno falta el dato, déjelo vacío.");
    if (n >= MinimoDeAnios && n < 30)
        s.avisos.push_back("Con " + std::to_string(n) + " años, las recurrencias de más de " +
                           std::to_string(2 * n) + " años son una extrapolación grande.");
}

void AcortaErrores(Serie& s)
{
    if (s.errores.size() <= MaxErrores) return;
    const std::size_t otros = s.errores.size() - MaxErrores;
    s.errores.resize(MaxErrores);
    s.errores.push_back("Y " + std::to_string(otros) + " más.");
}

}  // namespace

Serie RevisaMaximos(std::vector<Maximo> maximos)
{
    Serie s;
    s.maximos = std::move(maximos);
    for (const Maximo& m : s.maximos) {
        const std::string anio = "Año " + std::to_string(m.anio);
        if (m.anio < PrimerAnio || m.anio > UltimoAnio)
            s.errores.push_back(anio + ": no está entre 1500 y 2200.");
        if (!(m.valor >= 0))
            s.errores.push_back(anio + ": el valor no es un número, o es negativo.");
        else if (m.valor > MayorLluvia)
            s.errores.push_back(anio + ": el valor pasa de 100000 mm.");
    }
    MiraAnios(s);
    MiraTamano(s);
    AcortaErrores(s);
    return s;
}

Serie LeeMaximos(std::string_view texto)
{
    constexpr std::string_view Marca = "\xEF\xBB\xBF";
    if (texto.starts_with(Marca)) texto.remove_prefix(Marca.size());
    Lector lector;
    for (std::size_t n = 1; !texto.empty(); ++n) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        lector.Renglon(n, texto.substr(0, fin));
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    Serie s = std::move(lector.serie);
    MiraAnios(s);
    MiraTamano(s);
    if (!lector.faltan.empty())
        s.avisos.push_back("Años sin dato: " + std::to_string(lector.faltan.size()) + ".");
    AcortaErrores(s);
    return s;
}

}  // namespace frequency
