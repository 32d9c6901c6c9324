// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "frequency/Cifras.h"
#include "frequency/idf/EscribeIdf.h"
#include "frequency/taller/GraficosDeTaller.h"
#include "frequency/taller/TallerIdf.h"
#include "model/Numeros.h"

// What the fourth step shows of the curves: table, chart, words.
namespace frequency {
namespace {

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

// --- table ---

std::string CeldaDe(double x, VistaDeCurvas vista)
{
    return std::isfinite(x) ? Con(x, vista == VistaDeCurvas::Residuos ? 2 : 1) : std::string();
}

/// What was fitted less what it was fitted to, as a part of that [%]: a row per duration, a column per
/// recurrence of the tables.
std::vector<std::vector<std::string>> FilasDeResiduos(const idf::Curvas& c)
{
    std::vector<double> duraciones;
    std::vector<std::vector<std::string>> filas;
    for (std::size_t j = 0; j < c.ajuste.ajustadas.size(); ++j) {
        const idf::Punto& p = c.puntos[j];
        const auto cual = std::find(duraciones.begin(), duraciones.end(), p.duracion);
        const auto i = static_cast<std::size_t>(cual - duraciones.begin());
        if (cual == duraciones.end()) {
            duraciones.push_back(p.duracion);
            filas.emplace_back(model::Recurrencias.size() + 1).front() = Numero(p.duracion);
        }
        const auto* const T =
            std::find(model::Recurrencias.begin(), model::Recurrencias.end(), p.recurrencia);
        filas[i].at(static_cast<std::size_t>(T - model::Recurrencias.begin()) + 1) =
            CeldaDe(100 * (c.ajuste.ajustadas[j] / p.intensidad - 1), VistaDeCurvas::Residuos);
    }
    return filas;
}

forms::Planilla PlanillaDe(const idf::Curvas& c, VistaDeCurvas vista)
{
    forms::Planilla p;
    p.columnas.push_back({.encabezado = "Duración [min]"});
    for (const int T : model::Recurrencias)
        p.columnas.push_back({.encabezado = std::to_string(T) + " años"});
    if (!c.errores.empty()) return p;
    if (vista == VistaDeCurvas::Residuos) {
        p.filas = FilasDeResiduos(c);
        return p;
    }
    for (const int d : model::Duraciones) {
        std::vector<std::string> fila{std::to_string(d)};
        for (const int T : model::Recurrencias)
            fila.push_back(CeldaDe(
                vista == VistaDeCurvas::Laminas ? idf::Lamina(c, d, T) : idf::Intensidad(c, d, T), vista));
        p.filas.push_back(std::move(fila));
    }
    return p;
}

// --- chart ---

constexpr std::array RecurrenciasDibujadas{2, 5, 10, 25, 100, 1000};

double Eje(bool logaritmos, double duracion)
{
    return logaritmos ? std::log10(duracion) : duracion;
}

forms::Grafico GraficoDeCurvas(const TallerIdf& m)
{
    const idf::Curvas& c = m.curvas;
    const bool deLaminas = m.cmbVista.indice == static_cast<int>(VistaDeCurvas::Laminas);
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Duración [min]";
    g.ejeY = deLaminas ? "Lámina [mm]" : "Intensidad [mm/h]";
    if (!c.errores.empty()) return g;
    g.leyendaVisible = g.muchasLineas = true;
    g.tituloLeyenda = "Recurrencia";
    g.ejeYLogaritmico = m.chkLogaritmos;
    const auto pon = [&](CurvaDeGrafico& curva, double d, double intensidad) {
        if (std::isfinite(intensidad) && intensidad > 0)
            curva.puntos.push_back({Eje(m.chkLogaritmos, d), intensidad * (deLaminas ? d / 60 : 1)});
    };
    std::vector<CurvaDeGrafico> curvas;
    CurvaDeGrafico ajustados{forms::TipoSerie::Puntos2D, "puntos", {}};
    for (const int T : RecurrenciasDibujadas) {
        CurvaDeGrafico& curva = curvas.emplace_back();
        curva.leyenda = std::to_string(T) + " años";
        for (const int d : model::Duraciones)
            pon(curva, d, idf::Intensidad(c, d, T));
        for (const idf::Punto& p : c.puntos)
            if (p.recurrencia == T) pon(ajustados, p.duracion, p.intensidad * idf::FactorAreal(c));
    }
    std::erase_if(curvas, [](const CurvaDeGrafico& curva) { return curva.puntos.empty(); });
    if (!c.ajuste.ajustadas.empty()) curvas.push_back(std::move(ajustados));
    PonCurvas(g, curvas, [&](double x) {
        return model::NumeroATexto(model::Redondea(m.chkLogaritmos ? std::pow(10, x) : x, 3)) + " min";
    });
    if (m.chkLogaritmos)
        for (const int d : {10, 60, 1440, 5, 30, 360, 180, 720, 120, 20, 2880, 90, 15, 240})
            g.rotulosX.push_back({Eje(true, d), std::to_string(d)});
    return g;
}

// --- words ---

std::string NotasDe(const idf::Curvas& c)
{
    std::string t;
    const auto renglon = [&](const std::string& que) { t += "• " + que + "\n"; };
    for (const std::string& error : c.errores)
        renglon(error);
    if (!c.errores.empty()) return t.substr(0, t.size() - 1);
    for (const idf::LeyDeDuracion& l : c.leyes)
        renglon("Máximos de " + Cifras(l.duracion) + " min: " + std::string(l.ley->nombre) + ", de " +
                std::to_string(l.anios) + " años.");
    if (c.ajuste.familia != nullptr && !c.ajuste.familia->porRecurrencia)
        renglon(std::string(c.ajuste.familia->nombre) + ": " +
                idf::TextoDeCoeficientes(*c.ajuste.familia, c.ajuste.coeficientes.front().c) + ".");
    if (const std::string calidad = idf::TextoDeCalidad(c); !calidad.empty()) renglon(calidad + ".");
    if (c.reduccion != nullptr) renglon("Factor areal: " + Con(idf::FactorAreal(c), 4) + ".");
    for (const std::string& aviso : c.avisos)
        renglon(aviso);
    const std::vector<std::string> cruces = idf::Cruces(idf::TablaDe(c));
    constexpr std::size_t Bastan = 5;
    for (std::size_t i = 0; i < std::min(cruces.size(), Bastan); ++i)
        renglon(cruces[i]);
    if (cruces.size() > Bastan) renglon("Y " + std::to_string(cruces.size() - Bastan) + " cruces más.");
    if (cruces.empty()) renglon("La lámina crece con la duración y con la recurrencia en toda la tabla.");
    return t.substr(0, t.size() - 1);
}

}  // namespace

void MuestraCurvas(TallerIdf& m, const dlgTaller& f)
{
    m.lblNotas = NotasDe(m.curvas);
    MuestraVista(m, f);
}

void MuestraVista(TallerIdf& m, const dlgTaller& f)
{
    forms::PonFilas(m.tblCurvas, PlanillaDe(m.curvas, static_cast<VistaDeCurvas>(m.cmbVista.indice)));
    m.Grafico = GraficoDeCurvas(m);
    m.Grafico.titulo = TemaDeCurvas(m, f);
}

std::string TemaDeCurvas(const TallerIdf& m, const dlgTaller& f)
{
    const idf::Curvas& c = m.curvas;
    std::string t = "Curvas de intensidad, duración y recurrencia";
    if (PideMaximos(f) && m.cmbDe.Lugar() < m.cmbDe.items.size()) t += ": " + m.cmbDe.items[m.cmbDe.Lugar()];
    if (c.desagregacion != nullptr) t += ", " + std::string(c.desagregacion->nombre);
    if (c.ajuste.familia != nullptr) t += ", " + std::string(c.ajuste.familia->nombre);
    return t;
}

forms::Planilla PlanillaDeCurvas(const TallerIdf& m, const dlgTaller& f)
{
    forms::Planilla p = m.tblCurvas.planilla;
    p.titulos = {std::string(TituloDlgTaller) + ": " + m.cmbVista.items[m.cmbVista.Lugar()],
                 TemaDeCurvas(m, f)};
    for (const idf::CoeficientesDeT& k : m.curvas.ajuste.coeficientes)
        p.titulos.push_back((k.recurrencia > 0 ? Numero(k.recurrencia) + " años: " : std::string()) +
                            idf::TextoDeCoeficientes(*m.curvas.ajuste.familia, k.c));
    return p;
}

}  // namespace frequency
