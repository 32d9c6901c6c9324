// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Maximos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
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

/// Minutes of "5 min", "1 h", "2 días"; of a plain number where `conUnidad` isn't asked for.
std::optional<double> DuracionDe(std::string_view t, bool conUnidad)
{
    struct Unidad {
        std::string_view nombre;
        double minutos;
    };
    constexpr std::array<Unidad, 9> Unidades{{{"minutos", 1},
                                              {"min", 1},
                                              {"horas", 60},
                                              {"hora", 60},
                                              {"h", 60},
                                              {"días", 1440},
                                              {"día", 1440},
                                              {"dias", 1440},
                                              {"dia", 1440}}};
    double factor = conUnidad ? 0 : 1;
    for (const Unidad& u : Unidades)
        if (t.ends_with(u.nombre)) {
            factor = u.minutos;
            t = SinBlancos(t.substr(0, t.size() - u.nombre.size()));
            break;
        }
    const auto x = NumeroDe<double>(model::ComasAPuntos(t));
    return x && *x > 0 && std::isfinite(*x) && factor > 0 ? std::optional(*x * factor) : std::nullopt;
}

bool EsTituloDelAnio(std::string_view t)
{
    constexpr std::array<std::string_view, 8> Titulos{"Año",  "AÑO",  "año",  "Años",
                                                      "años", "Anio", "anio", "Fecha"};
    return std::find(Titulos.begin(), Titulos.end(), t) != Titulos.end();
}

bool EsTituloDeDias(std::string_view t)
{
    constexpr std::array<std::string_view, 4> Comienzos{"Días", "días", "Dias", "dias"};
    return std::any_of(Comienzos.begin(), Comienzos.end(), [t](auto c) { return t.starts_with(c); });
}

/// Reads row by row and gathers what is wrong.
class Lector {
  public:
    Tabla tabla{};
    std::size_t faltan = 0;

    void Renglon(std::size_t n, std::string_view texto)
    {
        texto = SinBlancos(texto);
        if (texto.empty() || texto.front() == '#') return;
        const bool primero = std::exchange(esPrimero, false);
        const std::vector<std::string_view> celdas = Celdas(texto);
        if (celdas.size() < 2) return Error(n, "faltan las dos columnas, año y valor");
        const auto anio = AnioDe(celdas[0]);
        if (!anio && primero && EsTitulo(celdas)) return;
        if (tabla.series.empty()) tabla.series.emplace_back();
        if (!anio) return Error(n, Citado(celdas[0]) + " no es un año ni una fecha");
        if (*anio < PrimerAnio || *anio > UltimoAnio)
            return Error(n, "el año " + std::to_string(*anio) + " no está entre 1500 y 2200");
        if (celdas.size() > Columnas()) return Error(n, "sobran columnas" + QueColumnas());
        std::optional<int> dias;
        if (const std::string_view celda = En(celdas, colDias); !EsFalta(celda)) {
            dias = NumeroDe<int>(celda);
            if (!dias || *dias < 0 || *dias > 366)
                return Error(n, "los días con registro van de 0 a 366, y dice " + Citado(celda));
        }
        std::size_t col = 0;
        for (std::size_t i = 0; i < tabla.series.size(); ++i) {
            col += col + 1 == colDias ? 2 : 1;
            Valor(n, i, En(celdas, col), {*anio, 0, dias});
        }
    }

    void Error(std::size_t n, const std::string& que)
    {
        tabla.errores.push_back("Renglón " + std::to_string(n) + ": " + que + ".");
    }

    /// Two maxima of a year, with the lines of both; but not of thousands.
    void MiraRepetidos()
    {
        for (std::size_t i = 0; i < tabla.series.size(); ++i) {
            const std::vector<Maximo>& maximos = tabla.series[i].maximos;
            std::map<int, std::size_t> vistos;
            for (std::size_t j = 0; j < maximos.size(); ++j) {
                const auto [donde, nuevo] = vistos.try_emplace(maximos[j].anio, renglones[i][j]);
                tabla.repetidos = tabla.repetidos || !nuevo;
                if (!nuevo && maximos.size() <= MaximoDeAnios)
                    Error(renglones[i][j], "el año " + std::to_string(maximos[j].anio) +
                                               " ya está en el renglón " + std::to_string(donde->second));
            }
        }
    }

  private:
    bool esPrimero = true;
    std::size_t colDias = 2;                                      ///< 0: there is none
    std::map<std::size_t, std::vector<std::size_t>> renglones{};  ///< of the maxima, by series

    static std::string Citado(std::string_view t) { return "\"" + std::string(t) + "\""; }
    [[nodiscard]] std::size_t Columnas() const { return tabla.series.size() + (colDias == 0 ? 1 : 2); }
    [[nodiscard]] std::string QueColumnas() const
    {
        if (tabla.conDuraciones) return ": hay " + std::to_string(tabla.series.size()) + " duraciones";
        return ": van año, valor y, si se sabe, días con registro";
    }

    static std::vector<std::string_view> Celdas(std::string_view t)
    {
        char separador = ' ';
        for (const char c : {',', '\t', ';'})
            if (t.find(c) != std::string_view::npos) separador = c;
        std::vector<std::string_view> celdas;
        while (true) {
            const std::size_t fin = std::min(t.find(separador), t.size());
            const std::string_view celda = SinBlancos(t.substr(0, fin));
            if (separador != ' ' || !celda.empty()) celdas.push_back(celda);
            if (fin == t.size()) break;
            t.remove_prefix(fin + 1);
        }
        while (celdas.size() > 2 && celdas.back().empty())
            celdas.pop_back();
        return celdas;
    }
    static std::string_view En(const std::vector<std::string_view>& celdas, std::size_t col)
    {
        return col > 0 && col < celdas.size() ? celdas[col] : std::string_view{};
    }

    /// Takes the durations that a title gives. Returns false where the row is none: it has a value.
    bool EsTitulo(const std::vector<std::string_view>& celdas)
    {
        std::size_t suDias = 0;
        std::vector<study::SerieDeMaximos> series;
        for (std::size_t col = 1; col < celdas.size(); ++col) {
            if (const auto duracion = DuracionDe(celdas[col], !EsTituloDelAnio(celdas[0])))
                series.push_back({.duracion = *duracion});
            else if (suDias == 0 && EsTituloDeDias(celdas[col]))
                suDias = col;
            else
                return !NumeroDe<double>(model::ComasAPuntos(celdas[1]));
        }
        if (series.empty()) return true;
        tabla.series = std::move(series);
        tabla.conDuraciones = true;
        colDias = suDias;
        return true;
    }

    void Valor(std::size_t n, std::size_t serie, std::string_view celda, Maximo maximo)
    {
        if (EsFalta(celda)) {
            ++faltan;
            return;
        }
        const auto x = NumeroDe<double>(model::ComasAPuntos(celda));
        if (!x || !std::isfinite(*x)) return Error(n, Citado(celda) + " no es un número");
        if (*x < 0) return Error(n, "el valor es negativo");
        if (*x > MayorLluvia) return Error(n, "el valor pasa de 100000 mm");
        maximo.valor = *x;
        tabla.series[serie].maximos.push_back(maximo);
        renglones[serie].push_back(n);
    }
};

bool AntesDe(const Maximo& a, const Maximo& b)
{
    return a.anio < b.anio;
}

void MiraAnios(Serie& s)
{
    if (s.maximos.size() > MaximoDeAnios) {
        s.errores.push_back("Hay " + std::to_string(s.maximos.size()) +
                            " máximos: más de 1000 años no son de un pluviómetro. Revise si el archivo es de "
                            "máximos anuales, uno por año.");
        return;
    }
    std::stable_sort(s.maximos.begin(), s.maximos.end(), AntesDe);
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
    std::string cortos;
    for (const Maximo& m : s.maximos)
        if (m.dias && *m.dias < DiasDeUnAnioCompleto)
            cortos +=
                (cortos.empty() ? "" : ", ") + std::to_string(m.anio) + " (" + std::to_string(*m.dias) + ")";
    if (!cortos.empty())
        s.avisos.push_back("Años con menos de 330 días de registro, cuyo máximo puede faltar: " + cortos +
                           ".");
    if (n >= MinimoDeAnios && n < 30)
        s.avisos.push_back("Con " + std::to_string(n) + " años, las recurrencias de más de " +
                           std::to_string(2 * n) + " años son una extrapolación grande.");
}

void Acorta(std::vector<std::string>& errores)
{
    if (errores.size() <= MaxErrores) return;
    const std::size_t otros = errores.size() - MaxErrores;
    errores.resize(MaxErrores);
    errores.push_back("Y " + std::to_string(otros) + " más.");
}

Tabla LeeEntera(std::string_view texto)
{
    constexpr std::string_view Marca = "\xEF\xBB\xBF";
    if (texto.starts_with(Marca)) texto.remove_prefix(Marca.size());
    Lector lector;
    for (std::size_t n = 1; !texto.empty(); ++n) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        lector.Renglon(n, texto.substr(0, fin));
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    lector.MiraRepetidos();
    if (lector.faltan > 0)
        lector.tabla.avisos.push_back("Años sin dato: " + std::to_string(lector.faltan) + ".");
    return std::move(lector.tabla);
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
    Acorta(s.errores);
    return s;
}

Tabla LeeTabla(std::string_view texto)
{
    Tabla tabla = LeeEntera(texto);
    Acorta(tabla.errores);
    return tabla;
}

Serie LeeMaximos(std::string_view texto, std::optional<double> duracion)
{
    Tabla tabla = LeeEntera(texto);
    const bool una = tabla.series.size() < 2 && !duracion;
    const auto suya = std::find_if(tabla.series.begin(), tabla.series.end(),
                                   [&](const auto& serie) { return una || serie.duracion == duracion; });
    Serie s;
    if (suya == tabla.series.end() && !tabla.series.empty()) {
        std::string duraciones;
        for (const study::SerieDeMaximos& serie : tabla.series)
            duraciones += (duraciones.empty() ? "" : ", ") + model::NumeroATexto(serie.duracion);
        s.errores = std::move(tabla.errores);
        s.errores.push_back("El archivo tiene máximos de estas duraciones [min]: " + duraciones +
                            ". Elija una de ellas.");
        return s;
    }
    std::vector<Maximo> maximos =
        suya == tabla.series.end() ? std::vector<Maximo>{} : std::move(suya->maximos);
    if (maximos.size() <= MaximoDeAnios) {  // what is there twice has been told with its lines
        std::stable_sort(maximos.begin(), maximos.end(), AntesDe);
        const auto esUno = [](const Maximo& a, const Maximo& b) { return a.anio == b.anio; };
        maximos.erase(std::unique(maximos.begin(), maximos.end(), esUno), maximos.end());
    }
    s = RevisaMaximos(std::move(maximos));
    s.errores.insert(s.errores.begin(), tabla.errores.begin(), tabla.errores.end());
    s.avisos.insert(s.avisos.end(), tabla.avisos.begin(), tabla.avisos.end());
    Acorta(s.errores);
    return s;
}

}  // namespace frequency
