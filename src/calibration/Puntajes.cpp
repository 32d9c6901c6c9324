// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Puntajes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>

namespace calibration {
namespace {

using Pares = std::span<const Par>;
using Valor = std::optional<double>;
using Serie = double Par::*;

/// Sum by weights of what f makes of each pair.
template <typename F>
double Suma(Pares pares, F f)
{
    double suma = 0;
    for (const Par& p : pares)
        if (p.peso > 0) suma += p.peso * f(p);
    return suma;
}

double Peso(Pares pares)
{
    return Suma(pares, [](const Par&) { return 1.0; });
}

/// Requires a weight above 0.
double Media(Pares pares, Serie de)
{
    return Suma(pares, [de](const Par& p) { return p.*de; }) / Peso(pares);
}

/// Rounding makes the spread of equal numbers other than 0, so that they are compared instead.
bool Constante(Pares pares, Serie de)
{
    const Par* primero = nullptr;
    for (const Par& p : pares) {
        if (!(p.peso > 0)) continue;
        if (primero == nullptr) primero = &p;
        if (p.*de != primero->*de) return false;
    }
    return true;
}

/// Standard deviation with n in the denominator; 0 for equal numbers.
double Desvio(Pares pares, Serie de)
{
    if (Constante(pares, de)) return 0;
    const double media = Media(pares, de);
    return std::sqrt(Suma(pares, [=](const Par& p) { return (p.*de - media) * (p.*de - media); }) /
                     Peso(pares));
}

/// Pearson's coefficient; 0 where one of them is constant, as a mean flow is scored.
double Correlacion(Pares pares)
{
    const double de = Desvio(pares, &Par::simulado) * Desvio(pares, &Par::observado);
    if (de == 0) return 0;
    const double ms = Media(pares, &Par::simulado), mo = Media(pares, &Par::observado);
    return Suma(pares, [=](const Par& p) { return (p.simulado - ms) * (p.observado - mo); }) / Peso(pares) /
           de;
}

double SumaDeCuadrados(Pares pares)
{
    return Suma(pares, [](const Par& p) { return (p.simulado - p.observado) * (p.simulado - p.observado); });
}

Valor Nse(Pares pares)
{
    if (Constante(pares, &Par::observado)) return std::nullopt;
    const double media = Media(pares, &Par::observado);
    return 1 - SumaDeCuadrados(pares) / Suma(pares, [media](const Par& p) {
                   return (p.observado - media) * (p.observado - media);
               });
}

Valor LogNse(Pares pares)
{
    const double algo = Media(pares, &Par::observado) / 100;
    if (!(algo > 0)) return std::nullopt;
    std::vector<Par> logaritmos(pares.begin(), pares.end());
    for (Par& p : logaritmos) {
        p.simulado = std::log(p.simulado + algo);
        p.observado = std::log(p.observado + algo);
    }
    return Nse(logaritmos);
}

double Distancia(double r, double variabilidad, double sesgo)
{
    return 1 -
           std::sqrt((r - 1) * (r - 1) + (variabilidad - 1) * (variabilidad - 1) + (sesgo - 1) * (sesgo - 1));
}

/// Whether the ratios of Kling and Gupta have something to divide by.
bool TieneRazones(Pares pares)
{
    return !Constante(pares, &Par::observado) && Media(pares, &Par::observado) > 0;
}

Valor Kge(Pares pares)
{
    if (!TieneRazones(pares)) return std::nullopt;
    return Distancia(Correlacion(pares), Desvio(pares, &Par::simulado) / Desvio(pares, &Par::observado),
                     Media(pares, &Par::simulado) / Media(pares, &Par::observado));
}

Valor Kge2012(Pares pares)
{
    if (!TieneRazones(pares)) return std::nullopt;
    const double sesgo = Media(pares, &Par::simulado) / Media(pares, &Par::observado);
    const double alfa = Desvio(pares, &Par::simulado) / Desvio(pares, &Par::observado);
    // A constant series doesn't vary, even where it is 0.
    return Distancia(Correlacion(pares), alfa == 0 ? 0 : alfa / sesgo, sesgo);
}

/// Pairs by one of their values, the smallest first.
std::vector<Par> PorValor(Pares pares, Serie de)
{
    std::vector<Par> orden(pares.begin(), pares.end());
    std::ranges::stable_sort(orden, {}, de);
    return orden;
}

/// In place of each value the middle of the places that it and its equals hold.
void PonRangos(std::vector<Par>& pares, Serie de)
{
    const std::vector<Par> orden = PorValor(pares, de);
    std::vector<std::pair<double, double>> rangos;  // value, rank
    double antes = 0;
    for (std::size_t i = 0; i < orden.size();) {
        std::size_t fin = i;
        double suyo = 0;
        for (; fin < orden.size() && orden[fin].*de == orden[i].*de; ++fin)
            suyo += orden[fin].peso;
        rangos.emplace_back(orden[i].*de, antes + suyo / 2);
        antes += suyo;
        i = fin;
    }
    for (Par& p : pares)
        p.*de = std::ranges::lower_bound(rangos, p.*de, {}, &std::pair<double, double>::first)->second;
}

/// Half the area between the flow duration curves, each by its own mean: what is left of 1 is the variability
/// of the form without parameters.
double CurvasDeDuracion(Pares pares)
{
    const bool llana = Constante(pares, &Par::simulado);  // by its mean it is 1, even where it is 0
    const double ms = Media(pares, &Par::simulado), mo = Media(pares, &Par::observado);
    const std::vector<Par> S = PorValor(pares, &Par::simulado), O = PorValor(pares, &Par::observado);
    double area = 0, faltaS = S.front().peso, faltaO = O.front().peso;
    for (std::size_t i = 0, j = 0; i < S.size() && j < O.size();) {
        const double ancho = std::min(faltaS, faltaO);
        area += ancho * std::abs((llana ? 1 : S[i].simulado / ms) - O[j].observado / mo);
        faltaS -= ancho;
        faltaO -= ancho;
        if (faltaS <= 0 && ++i < S.size()) faltaS = S[i].peso;
        if (faltaO <= 0 && ++j < O.size()) faltaO = O[j].peso;
    }
    return area / Peso(pares) / 2;
}

Valor KgeSinParametros(Pares pares)
{
    if (!TieneRazones(pares)) return std::nullopt;
    std::vector<Par> rangos(pares.begin(), pares.end());
    PonRangos(rangos, &Par::simulado);
    PonRangos(rangos, &Par::observado);
    return Distancia(Correlacion(rangos), 1 - CurvasDeDuracion(pares),
                     Media(pares, &Par::simulado) / Media(pares, &Par::observado));
}

Valor Rmse(Pares pares)
{
    return std::sqrt(SumaDeCuadrados(pares) / Peso(pares));
}

Valor Rsr(Pares pares)
{
    if (Constante(pares, &Par::observado)) return std::nullopt;
    return *Rmse(pares) / Desvio(pares, &Par::observado);
}

Valor Mae(Pares pares)
{
    return Suma(pares, [](const Par& p) { return std::abs(p.simulado - p.observado); }) / Peso(pares);
}

Valor Volumen(Pares pares)
{
    const double observado = Media(pares, &Par::observado);
    if (!(observado > 0)) return std::nullopt;
    return 100 * (Media(pares, &Par::simulado) - observado) / observado;
}

/// The first of the largest ones. Requires a pair.
const Par& Mayor(Pares pares, Serie de)
{
    return *std::ranges::max_element(pares, {}, de);
}

/// The error of the window where it is largest. f tells that of one window; a window that says nothing of the
/// observed peak (`calla`) doesn't count, one whose error isn't defined makes the whole undefined.
template <typename Calla, typename F>
Valor PeorVentana(Pares pares, Calla calla, F f)
{
    int ultima = 0;
    for (const Par& p : pares)
        ultima = std::max(ultima, p.ventana);
    Valor peor;
    for (int v = 0; v <= ultima; ++v) {
        std::vector<Par> suyos;
        std::ranges::copy_if(pares, std::back_inserter(suyos), [v](const Par& p) { return p.ventana == v; });
        if (suyos.empty() || calla(suyos)) continue;
        const Valor error = f(suyos);
        if (!error) return std::nullopt;
        if (!peor || std::abs(*error) > std::abs(*peor)) peor = error;
    }
    return peor;
}

Valor Pico(Pares pares)
{
    return PeorVentana(
        pares, [](Pares p) { return !(Mayor(p, &Par::observado).observado > 0); },
        [](Pares p) -> Valor {
            const double observado = Mayor(p, &Par::observado).observado;
            return 100 * (Mayor(p, &Par::simulado).simulado - observado) / observado;
        });
}

Valor TiempoAlPico(Pares pares)
{
    return PeorVentana(
        pares, [](Pares p) { return Constante(p, &Par::observado); },
        [](Pares p) -> Valor {
            if (Constante(p, &Par::simulado)) return std::nullopt;
            return Mayor(p, &Par::simulado).minuto - Mayor(p, &Par::observado).minuto;
        });
}

/// A score of what may be asked: pairs with a weight, of numbers; what comes out is a number as well.
template <Valor (*F)(Pares)>
Valor Definido(Pares todos)
{
    std::vector<Par> pares;
    std::ranges::copy_if(todos, std::back_inserter(pares), [](const Par& p) { return p.peso > 0; });
    if (pares.empty() || !std::ranges::all_of(pares, [](const Par& p) {
            return std::isfinite(p.simulado) && std::isfinite(p.observado) && std::isfinite(p.peso);
        }))
        return std::nullopt;
    const Valor valor = F(pares);
    return valor && std::isfinite(*valor) ? valor : std::nullopt;
}

constexpr std::string_view Moriasi =
    "D. N. Moriasi y otros (2007), Model evaluation guidelines for systematic quantification of accuracy in "
    "watershed simulations, Trans. ASABE 50(3), 885-900";
constexpr std::string_view Green =
    "I. R. A. Green y D. Stephenson (1986), Criteria for comparison of single event models, Hydrol. Sci. J. "
    "31(3), 395-411";

constexpr auto Filas = std::to_array<Puntaje>({
    {"nse", "Nash-Sutcliffe", "1 - Σ(S - O)² / Σ(O - Ō)²", "-", 1, true,
     "J. E. Nash y J. V. Sutcliffe (1970), River flow forecasting through conceptual models, part I, J. "
     "Hydrol. 10(3), 282-290",
     Definido<Nse>},
    {"log_nse", "Nash-Sutcliffe de los logaritmos", "Nash-Sutcliffe de ln(Q + Ō/100)", "-", 1, true,
     "R. Pushpalatha, C. Perrin, N. Le Moine y V. Andréassian (2012), A review of efficiency criteria "
     "suitable for evaluating low-flow simulations, J. Hydrol. 420-421, 171-182",
     Definido<LogNse>},
    {"kge", "Kling-Gupta (2009)", "1 - √((r - 1)² + (σS/σO - 1)² + (μS/μO - 1)²)", "-", 1, true,
     "H. V. Gupta, H. Kling, K. K. Yilmaz y G. F. Martinez (2009), Decomposition of the mean squared error "
     "and NSE performance criteria, J. Hydrol. 377(1-2), 80-91",
     Definido<Kge>},
    {"kge2012", "Kling-Gupta (2012)", "1 - √((r - 1)² + (CVS/CVO - 1)² + (μS/μO - 1)²), CV = σ/μ", "-", 1,
     true,
     "H. Kling, M. Fuchs y M. Paulin (2012), Runoff conditions in the upper Danube basin under an ensemble "
     "of climate change scenarios, J. Hydrol. 424-425, 264-277",
     Definido<Kge2012>},
    {"kge_np", "Kling-Gupta sin parámetros",
     "1 - √((rs - 1)² + (α - 1)² + (μS/μO - 1)²), rs de Spearman, α = 1 - ½ Σ|S(k)/ΣS - O(k)/ΣO| de los "
     "valores en orden",
     "-", 1, true,
     "S. Pool, M. Vis y J. Seibert (2018), Evaluating model performance: towards a non-parametric variant of "
     "the Kling-Gupta efficiency, Hydrol. Sci. J. 63(13-14), 1941-1953",
     Definido<KgeSinParametros>},
    {"rsr", "RMSE sobre el desvío de lo observado", "√Σ(S - O)² / √Σ(O - Ō)²", "-", 0, false, Moriasi,
     Definido<Rsr>},
    {"mae", "Error absoluto medio", "Σ|S - O| / n", "m3/s", 0, false, Moriasi, Definido<Mae>},
    {"rmse", "Raíz del error cuadrático medio", "√(Σ(S - O)² / n)", "m3/s", 0, false, Moriasi,
     Definido<Rmse>},
    {"volumen", "Error del volumen", "100 Σ(S - O) / ΣO", "%", 0, false, Green, Definido<Volumen>},
    {"pico", "Error del pico", "100 (máx S - máx O) / máx O", "%", 0, false, Green, Definido<Pico>},
    {"tiempo_pico", "Error de la hora del pico", "t(máx S) - t(máx O)", "min", 0, false, Green,
     Definido<TiempoAlPico>},
});

std::string Redondo(double x)
{
    return std::to_string(std::lround(x));
}

}  // namespace

std::span<const Puntaje> Puntajes()
{
    return Filas;
}

const Puntaje* PuntajeDe(std::string_view clave)
{
    const auto* const i = std::ranges::find(Filas, clave, &Puntaje::clave);
    return i == Filas.end() ? nullptr : i;
}

double Perdida(const Puntaje& puntaje, std::optional<double> valor)
{
    return valor ? std::abs(puntaje.mejor - *valor) : std::numeric_limits<double>::infinity();
}

int VentanaDe(std::span<const study::Ventana> ventanas, double minuto)
{
    for (std::size_t i = ventanas.size(); i-- > 0;)
        if (ventanas[i].desde <= minuto && minuto <= ventanas[i].hasta) return static_cast<int>(i);
    return -1;
}

namespace {

/// The polygon through a simulated series.
class Poligono {
  public:
    explicit Poligono(const SerieSimulada& serie) : s(serie) {}
    /// [min]; nothing was computed before 0 or beyond it.
    [[nodiscard]] double Fin() const
    {
        return s.valores.empty() ? -1 : static_cast<double>(s.valores.size() - 1) * s.paso;
    }
    [[nodiscard]] double En(double minuto) const
    {
        const double lugar = minuto / s.paso;
        const auto i = static_cast<std::size_t>(lugar);
        const double a = s.valores[std::min(i, s.valores.size() - 1)];
        const double b = s.valores[std::min(i + 1, s.valores.size() - 1)];
        return a + (b - a) * (lugar - static_cast<double>(i));
    }
    /// The mean between two times, `desde` before `hasta`: trapezoids between the steps.
    [[nodiscard]] double Media(double desde, double hasta) const
    {
        double area = 0, t = desde, q = En(desde);
        while (t < hasta) {
            const double nudo = (std::floor(t / s.paso) + 1) * s.paso;
            const double hasta1 = nudo > t ? std::min(nudo, hasta) : hasta;
            const double q1 = En(hasta1);
            area += (q + q1) / 2 * (hasta1 - t);
            t = hasta1;
            q = q1;
        }
        return area / (hasta - desde);
    }

  private:
    SerieSimulada s;
};

}  // namespace

Emparejados Empareja(const SerieSimulada& simulada, const study::Observacion& observacion,
                     std::span<const study::Punto> puntos)
{
    Emparejados e;
    const Poligono poligono(simulada);
    for (const study::Punto& punto : puntos) {
        const double desde = punto.minuto - std::max(0.0, observacion.promedio);
        const int ventana = VentanaDe(observacion.ventanas, punto.minuto);
        const bool todas = observacion.ventanas.empty();
        const double peso =
            ventana >= 0 ? observacion.ventanas[static_cast<std::size_t>(ventana)].peso : (todas ? 1 : 0);
        if (!std::isfinite(punto.valor)) {
            ++e.sinValor;
        } else if (!(peso > 0)) {
            ++e.sinPeso;
        } else if (!(desde >= 0 && punto.minuto <= poligono.Fin())) {
            ++e.fuera;
        } else {
            const double simulado =
                desde < punto.minuto ? poligono.Media(desde, punto.minuto) : poligono.En(punto.minuto);
            e.pares.push_back({punto.minuto, simulado, punto.valor, peso, std::max(0, ventana)});
        }
    }
    return e;
}

std::string CuantosPares(const Emparejados& e)
{
    const auto n = e.pares.size();
    std::string t = n == 0 ? "Ningún par" : std::to_string(n) + (n == 1 ? " par" : " pares");
    const auto dice = [&t](int cuantas, std::string_view que) {
        if (cuantas == 0) return;
        t += "; " + std::to_string(cuantas) + (cuantas == 1 ? " observación " : " observaciones ");
        t += que;
    };
    dice(e.fuera, "fuera del tiempo calculado");
    dice(e.sinPeso, "sin peso");
    dice(e.sinValor, "sin valor");
    return t + ".";
}

std::string Texto(const Puntaje& puntaje, std::optional<double> valor)
{
    if (!valor) return "no está definido";
    const bool error = puntaje.unidad == "%" || puntaje.unidad == "min";
    std::array<char, 350> texto{};
    const auto fin = error ? std::to_chars(texto.begin(), texto.end(), *valor, std::chars_format::fixed, 1)
                           : std::to_chars(texto.begin(), texto.end(), *valor, std::chars_format::general, 4);
    return (error && *valor > 0 ? "+" : "") + std::string(texto.begin(), fin.ptr);
}

std::string EnPalabras(std::span<const Par> pares)
{
    std::string t;
    const auto agrega = [&t](const std::string& parte) { t += (t.empty() ? "" : ", ") + parte; };
    const auto porCiento = [&](Valor error, std::string_view que) {
        if (!error || std::lround(*error) == 0) return;
        agrega((*error > 0 ? "sobrestima " : "subestima ") + std::string(que) + " " +
               Redondo(std::abs(*error)) + " %");
    };
    const Valor volumen = Definido<Volumen>(pares), pico = Definido<Pico>(pares);
    const Valor tiempo = Definido<TiempoAlPico>(pares);
    porCiento(volumen, "el volumen");
    porCiento(pico, "el pico");
    if (tiempo && std::lround(*tiempo) != 0)
        agrega("el pico llega " + Redondo(std::abs(*tiempo)) +
               (*tiempo > 0 ? " min tarde" : " min temprano"));
    if (t.empty() && volumen && pico && tiempo) t = "acierta el volumen, el pico y su hora";
    return t;
}

}  // namespace calibration
