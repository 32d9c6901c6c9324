// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/idf/Curvas.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <optional>

#include "frequency/Analisis.h"
#include "frequency/Cifras.h"

namespace frequency::idf {
namespace {

constexpr double Dia = 1440;  // [min]
constexpr double NoHay = std::numeric_limits<double>::quiet_NaN();

/// "5, 10 y 2880".
std::string Enumera(const std::vector<double>& valores)
{
    std::string t;
    for (std::size_t i = 0; i < valores.size(); ++i)
        t += (i == 0 ? "" : i + 1 == valores.size() ? " y " : ", ") + Cifras(valores[i]);
    return t;
}

/// A coefficient that was typed for all recurrences.
std::optional<double> Tipeado(const study::Idf& pedido, std::string_view simbolo, double recurrencia = 0)
{
    for (const study::Coeficiente& c : pedido.coeficientes)
        if (c.simbolo == simbolo && c.recurrencia == recurrencia) return c.valor;
    return {};
}

std::string FueraDe(std::string_view simbolo, double menor, double mayor)
{
    return "El coeficiente " + std::string(simbolo) + " debe estar entre " + Cifras(menor) + " y " +
           Cifras(mayor) + ".";
}

/// Depth of a duration and a recurrence; not a number where the law hasn't one.
double Cuantil(const LeyDeDuracion& l, double recurrencia)
{
    try {
        return l.factor * frequency::Cuantil(*l.ley, l.p, l.p0, 1 - 1 / recurrencia);
    } catch (const std::exception&) {
        return NoHay;
    }
}

/// Works the request out part by part and gathers what is to be said.
class Taller {
  public:
    Curvas c{};

    Taller(const study::Idf& unPedido, std::span<const study::Estacion> unasEstaciones)
        : pedido(unPedido), estaciones(unasEstaciones)
    {
    }

    void Hace()
    {
        TomaReduccion();
        const Familia* familia = FamiliaDeClave(pedido.familia);
        if (familia == nullptr && !(pedido.familia.empty() && pedido.origen == "diaria"))
            return Error("No hay una familia de curvas \"" + pedido.familia + "\".");
        if (pedido.origen == "coeficientes") return TomaCoeficientes(*familia);
        if (pedido.origen == "series")
            DeSeries();
        else if (pedido.origen == "diaria")
            DeDiaria();
        else
            Error("No hay un origen \"" + pedido.origen + "\".");
        if (!c.errores.empty()) return;
        HazPuntos();
        if (familia != nullptr && c.errores.empty()) AjustaFamilia(*familia);
    }

    void Avisa()
    {
        if (!c.errores.empty()) return;
        AvisaDuraciones();
        AvisaRecurrencias();
        AvisaAjuste();
        if (c.reduccion != nullptr && !c.reduccion->propia && c.area > AreaHabitual)
            c.avisos.push_back("La reducción areal se usa en cuencas de hasta 3000 km2; el área es de " +
                               Cifras(c.area) + " km2.");
    }

  private:
    static constexpr double AreaHabitual = 3000;  // [km2]: Témez 1991
    const study::Idf& pedido;
    std::span<const study::Estacion> estaciones;

    void Error(std::string que) { c.errores.push_back(std::move(que)); }

    void TomaReduccion()
    {
        if (pedido.reduccion.empty()) return;
        c.reduccion = ReduccionDeClave(pedido.reduccion);
        c.area = pedido.area;
        if (c.reduccion == nullptr) return Error("No hay una reducción areal \"" + pedido.reduccion + "\".");
        if (c.reduccion->propia) {
            c.factorPropio = Tipeado(pedido, "KA").value_or(0);
            if (!(c.factorPropio > 0 && c.factorPropio <= 1))
                Error("El factor areal KA debe ser mayor que 0 y a lo sumo 1.");
        } else if (!(pedido.area > 0)) {
            Error("Para reducir por el área falta el área de la cuenca, en km2.");
        }
    }

    // --- typed ---

    /// The coefficients of one recurrence, with what is wrong with them.
    Coeficientes Toma(const Familia& familia, double recurrencia)
    {
        Coeficientes suyos{};
        const std::string deT = recurrencia > 0 ? " de la recurrencia " + Cifras(recurrencia) : "";
        for (std::size_t i = 0; i < familia.cuantos; ++i) {
            const CoeficienteDeFamilia& q = familia.coeficientes[i];
            const auto valor = Tipeado(pedido, q.simbolo, recurrencia);
            if (!valor)
                Error("Falta el coeficiente " + std::string(q.simbolo) + deT + " de " +
                      std::string(familia.nombre) + ": " + std::string(familia.formula) + ".");
            else if (!(*valor >= q.menor && *valor <= q.mayor))
                Error(FueraDe(std::string(q.simbolo) + deT, q.menor, q.mayor));
            suyos[i] = valor.value_or(0);
        }
        return suyos;
    }

    void TomaCoeficientes(const Familia& familia)
    {
        c.ajuste.familia = &familia;
        std::vector<double> recurrencias;
        if (!familia.porRecurrencia) recurrencias = {0};
        for (const study::Coeficiente& k : pedido.coeficientes)
            if (familia.porRecurrencia && k.recurrencia > 1) recurrencias.push_back(k.recurrencia);
        std::sort(recurrencias.begin(), recurrencias.end());
        recurrencias.erase(std::unique(recurrencias.begin(), recurrencias.end()), recurrencias.end());
        if (recurrencias.empty())
            return Error("Faltan los coeficientes de cada recurrencia: " + std::string(familia.formula) +
                         ".");
        for (const double T : recurrencias)
            c.ajuste.coeficientes.push_back({T, Toma(familia, T)});
    }

    // --- maxima ---

    const study::Estacion* SuEstacion()
    {
        for (const study::Estacion& e : estaciones)
            if (pedido.estacion.empty() || e.nombre == pedido.estacion) return &e;
        Error(estaciones.empty() ? std::string("No hay máximos: falta una estación con sus series.")
                                 : "No hay una estación \"" + pedido.estacion + "\".");
        return nullptr;
    }

    /// The law that the user took for a series, or else the one recommended.
    void TomaLey(const study::SerieDeMaximos& s, double factor)
    {
        const std::string cual = "La serie de " + Cifras(s.duracion) + " min";
        Serie serie;
        for (const study::Maximo& m : s.maximos)
            serie.maximos.push_back({m.anio, m.valor});
        std::size_t conLluvia = 0;
        for (const study::Maximo& m : s.maximos) {
            if (!(m.valor >= 0))
                return Error(cual + " tiene un valor negativo en " + std::to_string(m.anio) + ".");
            if (m.valor > 0) ++conLluvia;
        }
        if (conLluvia < MinimoDeAnios)
            return Error(cual + " tiene " + std::to_string(conLluvia) + " años con lluvia; hacen falta 10.");
        PedidoDeAnalisis p;
        p.remuestreo.cuantas = 0;
        const Ley* ley = LeyDeClave(s.ley);
        if (ley != nullptr) p.leyes = {ley};
        for (const Metodo m : {Metodo::Momentos, Metodo::MomentosL, Metodo::Verosimilitud})
            if (ClaveDe(m) == s.metodo) p.metodo = m;
        p.tratamiento = TratamientoDe(s.bajos, s.asimetria, s.ecmAsimetria);
        const Analisis a = *Analiza(serie, p);
        const bool recomendada = ley == nullptr;
        if (recomendada) ley = a.recomendacion.ley;
        for (const AjusteDeLey& f : a.ajustes)
            if (f.ley == ley && f.estimado.p)
                return c.leyes.push_back(
                    {s.duracion, ley, *f.estimado.p, a.muestra.P0(), factor, recomendada, s.maximos.size()});
        Error(cual + (recomendada
                          ? ": " + a.recomendacion.motivo
                          : ", " + std::string(ley->nombre) + ": " + a.ajustes.front().estimado.nota + "."));
    }

    void DeSeries()
    {
        const study::Estacion* e = SuEstacion();
        if (e == nullptr) return;
        std::vector<const study::SerieDeMaximos*> suyas;
        for (const study::SerieDeMaximos& s : e->series)
            suyas.push_back(&s);
        // Where a gauge recorded 24 hours, readings once a day have nothing to add.
        const bool hay24 = std::any_of(suyas.begin(), suyas.end(),
                                       [](const auto* s) { return s->duracion == Dia && !s->lecturaDiaria; });
        std::erase_if(suyas, [&](const auto* s) { return hay24 && s->lecturaDiaria; });
        std::sort(suyas.begin(), suyas.end(),
                  [](const auto* a, const auto* b) { return a->duracion < b->duracion; });
        for (std::size_t i = 0; i < suyas.size(); ++i) {
            if (i > 0 && suyas[i]->duracion == suyas[i - 1]->duracion) {
                Error("Hay dos series de " + Cifras(suyas[i]->duracion) + " min.");
                continue;
            }
            const bool diaria = suyas[i]->lecturaDiaria && suyas[i]->duracion == Dia;
            if (diaria) DiceFactor();
            TomaLey(*suyas[i], diaria ? pedido.factorDiario : 1);
        }
        if (suyas.size() < 2 && c.errores.empty())
            Error(
                "Para ajustar curvas hacen falta máximos de dos duraciones por lo menos; con los de un día "
                "solo, "
                "elija una desagregación.");
    }

    void DiceFactor()
    {
        c.avisos.push_back(
            "Los máximos son de una lectura diaria: las láminas de 24 horas son las suyas por " +
            Cifras(pedido.factorDiario) + ".");
    }

    void DeDiaria()
    {
        TomaDesagregacion();
        const study::Estacion* e = SuEstacion();
        if (e == nullptr || c.desagregacion == nullptr) return;
        const study::SerieDeMaximos* suya = nullptr;
        for (const study::SerieDeMaximos& s : e->series)
            if (s.duracion == Dia && (suya == nullptr || s.lecturaDiaria == c.desagregacion->deDiaria))
                suya = &s;
        if (suya == nullptr) return Error("La estación no tiene máximos diarios (de 1440 min).");
        const bool deDiaria = c.desagregacion->deDiaria;
        double factor = 1;
        if (suya->lecturaDiaria && !deDiaria) {
            factor = pedido.factorDiario;
            DiceFactor();
        } else if (suya->lecturaDiaria) {
            c.avisos.push_back(
                std::string(c.desagregacion->nombre) +
                " parte de la lámina de un día y ya lleva dentro el paso a 24 horas: el factor " +
                Cifras(pedido.factorDiario) + " no se aplica otra vez.");
        } else if (deDiaria) {
            factor = 1 / pedido.factorDiario;
            c.avisos.push_back(
                "Los máximos son de 24 horas corridas, y " + std::string(c.desagregacion->nombre) +
                " parte de la lámina de un día: se los divide por " + Cifras(pedido.factorDiario) + ".");
        }
        TomaLey(*suya, factor);
    }

    void TomaDesagregacion()
    {
        c.desagregacion = DesagregacionDeClave(pedido.desagregacion);
        if (c.desagregacion == nullptr)
            return Error("No hay una desagregación \"" + pedido.desagregacion + "\".");
        if (!(pedido.factorDiario >= 1 && pedido.factorDiario <= 1.5))
            Error("El factor de un día a 24 horas debe estar entre 1 y 1.5.");
        const Desagregacion& d = *c.desagregacion;
        for (std::size_t i = 0; i < d.cuantos; ++i) {
            const Pedido& q = d.pide[i];
            c.datos.c[i] = Tipeado(pedido, q.simbolo).value_or(q.siFalta);
            if (c.datos.c[i] == 0)
                Error("Falta el coeficiente " + std::string(q.simbolo) + " de " + std::string(d.nombre) +
                      ": " + std::string(q.que) + ".");
            else if (!(c.datos.c[i] >= q.menor && c.datos.c[i] <= q.mayor))
                Error(FueraDe(q.simbolo, q.menor, q.mayor));
        }
        c.datos.razones = pedido.razones;
        auto& r = c.datos.razones;
        std::sort(r.begin(), r.end(),
                  [](const study::Razon& a, const study::Razon& b) { return a.duracion < b.duracion; });
        if (d.pideRazones && r.size() < 2)
            Error("Las razones propias son dos por lo menos, con su duración.");
        for (std::size_t i = 0; i < r.size(); ++i) {
            if (!(r[i].duracion >= 1 && r[i].razon > 0))
                Error("La razón de " + Cifras(r[i].duracion) +
                      " min debe ser mayor que 0, y la duración de 1 min o "
                      "más.");
            if (i > 0 && r[i].duracion == r[i - 1].duracion)
                Error("Hay dos razones de " + Cifras(r[i].duracion) + " min.");
        }
    }

    // --- points and fit ---

    void Pon(double duracion, double recurrencia, double lamina)
    {
        if (std::isfinite(lamina) && lamina > 0)
            c.puntos.push_back({duracion, recurrencia, lamina * 60 / duracion});
    }

    /// Of several durations, those of the maxima; of a day, those of the tables that the way is meant for.
    void HazPuntos()
    {
        for (const double T : model::Recurrencias) {
            if (c.desagregacion == nullptr) {
                for (const LeyDeDuracion& l : c.leyes)
                    Pon(l.duracion, T, Cuantil(l, T));
                continue;
            }
            const double base = Cuantil(c.leyes.front(), T);
            for (const double d : model::Duraciones)
                if (d >= c.desagregacion->menor && d <= c.desagregacion->mayor)
                    Pon(d, T, base * c.desagregacion->parte(c.datos, d));
        }
        if (c.puntos.empty())
            Error("Ninguna lámina se puede calcular con la ley y la desagregación elegidas.");
    }

    void AjustaFamilia(const Familia& familia)
    {
        c.ajuste =
            Ajusta(familia, c.puntos, pedido.errorRelativo ? Criterio::Relativo : Criterio::Logaritmos);
        if (c.ajuste.coeficientes.empty()) Error(c.ajuste.nota);
    }

    // --- what is to be known ---

    /// A power of T follows no law of maxima from end to end.
    void AvisaAjuste()
    {
        constexpr double Mucho = 0.10;
        const Calidad& q = c.ajuste.calidad;
        if (!(std::abs(q.errorMaximo) > Mucho)) return;
        std::string t = std::string(c.ajuste.familia->nombre) + " se aparta hasta " +
                        Con(100 * std::abs(q.errorMaximo), 0) + " % de lo que ajusta: ";
        t += c.ajuste.familia->porRecurrencia ? "pruebe otra" : "la familia Libre lo sigue mejor";
        if (c.desagregacion != nullptr) t += "; sin familia las láminas son las de la desagregación";
        c.avisos.push_back(t + ".");
    }

    void AvisaDuraciones()
    {
        double menor = 0, mayor = std::numeric_limits<double>::infinity();
        std::string quien;
        if (c.desagregacion != nullptr) {
            menor = c.desagregacion->menor;
            mayor = c.desagregacion->mayor;
            quien = std::string(c.desagregacion->nombre) + " vale";
        } else if (!c.leyes.empty()) {
            menor = c.leyes.front().duracion;
            mayor = c.leyes.back().duracion;
            quien = "Los máximos son";
        }
        std::vector<double> fuera, faltan;
        for (const double d : model::Duraciones) {
            if (!std::isfinite(Lamina(c, d, 10)) && !c.leyes.empty())
                faltan.push_back(d);
            else if (d < menor || d > mayor)
                fuera.push_back(d);
        }
        if (!fuera.empty())
            c.avisos.push_back(quien + " de " + Cifras(menor) + " a " + Cifras(mayor) +
                               " min: la lámina de " + Enumera(fuera) + " min es una extrapolación.");
        if (!faltan.empty())
            c.avisos.push_back("Sin lámina quedan las duraciones de " + Enumera(faltan) +
                               " min, que las razones no alcanzan.");
    }

    void AvisaRecurrencias()
    {
        for (const LeyDeDuracion& l : c.leyes) {
            if (!l.recomendada) continue;
            c.avisos.push_back("Nadie eligió la ley de " + Cifras(l.duracion) +
                               " min: se toma la recomendada, " + std::string(l.ley->nombre) + ".");
        }
        if (c.leyes.empty()) return;
        const auto corta = std::min_element(
            c.leyes.begin(), c.leyes.end(),
            [](const LeyDeDuracion& a, const LeyDeDuracion& b) { return a.anios < b.anios; });
        c.avisos.push_back("Hay " + std::to_string(corta->anios) + " años de máximos: por encima de unos " +
                           std::to_string(2 * corta->anios) +
                           " años de recurrencia las láminas son una extrapolación de la ley.");
    }
};

}  // namespace

Curvas Calcula(const study::Idf& pedido, std::span<const study::Estacion> estaciones)
{
    Taller taller(pedido, estaciones);
    taller.Hace();
    taller.Avisa();
    return taller.c;
}

double FactorAreal(const Curvas& curvas)
{
    return curvas.reduccion == nullptr ? 1 : curvas.reduccion->factor(curvas.area, curvas.factorPropio);
}

double Intensidad(const Curvas& curvas, double duracion, double recurrencia)
{
    const double areal = FactorAreal(curvas);
    if (curvas.ajuste.familia != nullptr)
        return areal *
               IntensidadDe(*curvas.ajuste.familia, curvas.ajuste.coeficientes, duracion, recurrencia);
    if (curvas.desagregacion == nullptr || curvas.leyes.empty()) return NoHay;
    return areal * Cuantil(curvas.leyes.front(), recurrencia) *
           curvas.desagregacion->parte(curvas.datos, duracion) * 60 / duracion;
}

double Lamina(const Curvas& curvas, double duracion, double recurrencia)
{
    return Intensidad(curvas, duracion, recurrencia) * duracion / 60;
}

TablaDeLaminas TablaDe(const Curvas& curvas)
{
    TablaDeLaminas tabla{};
    for (std::size_t i = 0; i < tabla.size(); ++i)
        for (std::size_t j = 0; j < tabla[i].size(); ++j)
            tabla[i][j] = Lamina(curvas, model::Duraciones[i], model::Recurrencias[j]);
    return tabla;
}

std::vector<std::string> Cruces(const TablaDeLaminas& tabla)
{
    std::vector<std::string> dichos;
    const auto dice = [&](const std::string& sentido, const std::string& entre, double antes, double despues,
                          const std::string& de) {
        dichos.push_back("La lámina no crece con la " + sentido + ": " + entre + " pasa de " + Con(antes, 2) +
                         " a " + Con(despues, 2) + " mm" + de + ".");
    };
    for (std::size_t j = 0; j < model::Recurrencias.size(); ++j)
        for (std::size_t i = 1; i < model::Duraciones.size(); ++i)
            if (tabla[i][j] <= tabla[i - 1][j])
                dice("duración",
                     "de " + std::to_string(model::Duraciones[i - 1]) + " a " +
                         std::to_string(model::Duraciones[i]) + " min",
                     tabla[i - 1][j], tabla[i][j],
                     ", para " + std::to_string(model::Recurrencias[j]) + " años");
    for (std::size_t i = 0; i < model::Duraciones.size(); ++i)
        for (std::size_t j = 1; j < model::Recurrencias.size(); ++j)
            if (tabla[i][j] <= tabla[i][j - 1])
                dice("recurrencia",
                     "de " + std::to_string(model::Recurrencias[j - 1]) + " a " +
                         std::to_string(model::Recurrencias[j]) + " años",
                     tabla[i][j - 1], tabla[i][j], ", para " + std::to_string(model::Duraciones[i]) + " min");
    return dichos;
}

}  // namespace frequency::idf
