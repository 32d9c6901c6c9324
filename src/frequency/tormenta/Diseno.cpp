// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Diseno.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/Falla.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

std::string Texto(double x)
{
    constexpr int Decimales = 3;
    return model::NumeroATexto(model::Redondea(x, Decimales));
}

std::string Detras(const std::string& motivo)
{
    return motivo.empty() ? motivo : " " + motivo;
}

/// The depth as typed, or that of the curves; 0 where there is none.
double LaminaDe(const study::TormentaDeDiseno& t, const FuentesDeTormenta& fuentes, std::string& error)
{
    if (t.lamina) return *t.lamina;
    if (!fuentes.curvas) {
        error = "Falta la lámina: escríbala, o haga las curvas." + Detras(fuentes.sinCurvas);
        return 0;
    }
    const double lamina = fuentes.curvas(t.duracion, t.recurrencia);
    if (!std::isfinite(lamina) || lamina <= 0)
        error = "Las curvas no dan una lámina para " + Texto(t.duracion) + " min y " + Texto(t.recurrencia) +
                " años.";
    return lamina;
}

std::string OrigenDe(const Diseno& d, const study::TormentaDeDiseno& t, const FuentesDeTormenta& fuentes)
{
    std::string origen = std::string(d.patron->nombre);
    if (TieneCuartiles(*d.patron)) origen += " " + Texto(t.cuartil);
    if (d.patron->hechura == Hechura::CuartilYProbabilidad) origen += ", " + Texto(t.probabilidad) + " %";
    if (d.patron->hechura == Hechura::CurvasYAvance) origen += ", avance " + Texto(t.avance);
    if (d.patron == &Registrada) origen += ", " + t.archivo;
    origen +=
        "; " + Texto(d.lamina) + " mm en " + Texto(t.duracion) + " min, pasos de " + Texto(t.paso) + " min";
    if (!t.lamina || UsaCurvas(*d.patron))
        origen += "; recurrencia " + Texto(t.recurrencia) + " años, de " + fuentes.deDonde;
    return origen;
}

bool Separa(char c)
{
    return c == ' ' || c == ';' || c == '\t' || c == '\n' || c == '\r';
}

}  // namespace

Diseno Disena(const study::TormentaDeDiseno& t, const FuentesDeTormenta& fuentes)
{
    Diseno d{.patron = PatronDeClave(t.patron), .paso = t.paso};
    if (d.patron == nullptr) {
        d.error = "No hay un patrón \"" + t.patron + "\".";
        return d;
    }
    PedidoDeTormenta pedido{.duracion = t.duracion,
                            .paso = t.paso,
                            .avance = t.avance,
                            .cuartil = t.cuartil,
                            .probabilidad = t.probabilidad};
    if (fuentes.curvas) pedido.lamina = [&](double m) { return fuentes.curvas(m, t.recurrencia); };
    pedido.total = d.lamina = LaminaDe(t, fuentes, d.error);
    pedido.periodos = d.patron == &Propia ? PeriodosDe(t.periodos, d.error) : fuentes.grabada;
    if (d.patron == &Registrada && d.error.empty()) d.error = fuentes.sinGrabada;
    if (UsaCurvas(*d.patron) && !fuentes.curvas)
        d.error = "Este patrón se hace de curvas de intensidad y no las hay." + Detras(fuentes.sinCurvas);
    if (!d.error.empty()) return d;
    d.reparto = Reparte(*d.patron, pedido);
    d.error = d.reparto.error;
    if (!d.error.empty()) return d;
    d.origen = OrigenDe(d, t, fuentes);
    d.plan = PlaneaDistribucion(d.reparto.laminas, t.duracion, d.origen);
    d.motor = HietogramaDelMotor(d.plan, d.lamina, t.duracion, t.paso);
    d.avisos = d.reparto.avisos;
    d.avisos.insert(d.avisos.end(), d.plan.avisos.begin(), d.plan.avisos.end());
    return d;
}

std::vector<double> PeriodosDe(std::string_view texto, std::string& error)
{
    std::vector<double> periodos;
    for (std::size_t desde = 0; desde < texto.size();) {
        if (Separa(texto[desde])) {
            ++desde;
            continue;
        }
        const std::size_t hasta = static_cast<std::size_t>(
            std::find_if(texto.begin() + static_cast<std::ptrdiff_t>(desde), texto.end(), Separa) -
            texto.begin());
        std::string palabra(texto.substr(desde, hasta - desde));
        std::replace(palabra.begin(), palabra.end(), ',', '.');
        std::optional<double> x;
        model::Sentencia([&] { x = model::NumeroEntero(palabra); });
        if (!x || *x < 0) {
            error = "El período \"" + palabra + "\" no es un número, 0 o mayor.";
            return {};
        }
        periodos.push_back(*x);
        desde = hasta;
    }
    return periodos;
}

std::string OrigenDeTabla(const FuentesDeTormenta& fuentes)
{
    return "Láminas de " + fuentes.deDonde + ", en mm enteros";
}

}  // namespace frequency
