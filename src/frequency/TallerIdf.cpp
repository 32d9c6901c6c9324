// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/TallerIdf.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "frequency/Cifras.h"
#include "frequency/idf/EscribeIdf.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

constexpr std::array<std::string_view, 3> Origenes{"diaria", "series", "coeficientes"};
constexpr int FilasDeGrilla = 40;

constexpr auto EditablesRazones =
    std::to_array<forms::ColumnaEditable>({{0, 2880, "La duración no puede pasar de 2880 minutos."},
                                           {1, 2, "La razón a 24 horas no puede pasar de 2."}});
constexpr auto EditablesLibre =
    std::to_array<forms::ColumnaEditable>({{0, 10000, "La recurrencia no puede pasar de 10000 años."},
                                           {1, 1e9, "El coeficiente a no puede pasar de 1000000000."},
                                           {2, 1e4, "El coeficiente b no puede pasar de 10000 minutos."},
                                           {3, 5, "El coeficiente c no puede pasar de 5."}});
constexpr forms::ReglasGrilla ReglasRazones{.encabezado = ">  Duración [min]  |>  Razón a 24 h  ",
                                            .editables = EditablesRazones,
                                            .enterPoneCero = false};
constexpr forms::ReglasGrilla ReglasLibre{.encabezado = ">  T [años]  |>  a  |>  b [min]  |>  c  ",
                                          .editables = EditablesLibre,
                                          .enterPoneCero = false};

const study::Idf& IdfDe(const dlgTaller& f)
{
    return TallerDe(f).idf;
}

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

template <typename Lista>
std::vector<std::string> Nombres(const Lista& lista, std::vector<std::string> antes = {})
{
    for (const auto& x : lista)
        antes.emplace_back(x.nombre);
    return antes;
}

/// Place of a key in a list; 0 where it isn't there.
template <typename Lista>
int Lugar(const Lista& lista, std::string_view clave)
{
    const auto cual =
        std::find_if(lista.begin(), lista.end(), [&](const auto& x) { return x.clave == clave; });
    return cual == lista.end() ? 0 : static_cast<int>(cual - lista.begin());
}

std::size_t Indice(const ListaDeTaller& lista)
{
    return static_cast<std::size_t>(std::max(lista.indice, 0));
}

/// Formula, source, limits below one another.
template <typename Fila>
std::string Ficha(const Fila& fila)
{
    return FormulaEnHtml(fila.formula) + "<br><small>" + std::string(fila.fuente) + ". " +
           std::string(fila.limites) + ".</small>";
}

// --- coefficients in fields ---

/// A field for a coefficient.
struct CampoDeCoeficiente {
    std::string simbolo{}, que{};
    double menor = 0, mayor = 0, siFalta = 0;
};

/// What the choices ask for, in the order of the fields.
std::vector<CampoDeCoeficiente> CamposDe(const study::Idf& pedido)
{
    std::vector<CampoDeCoeficiente> campos;
    if (pedido.origen == "diaria") {
        if (const idf::Desagregacion* const d = idf::DesagregacionDeClave(pedido.desagregacion))
            for (std::size_t i = 0; i < d->cuantos; ++i) {
                const idf::Pedido& q = d->pide[i];
                campos.push_back({std::string(q.simbolo), std::string(q.que), q.menor, q.mayor, q.siFalta});
            }
    } else if (pedido.origen == "coeficientes") {
        const idf::Familia* const familia = idf::FamiliaDeClave(pedido.familia);
        for (std::size_t i = 0; familia != nullptr && !familia->porRecurrencia && i < familia->cuantos; ++i) {
            const idf::CoeficienteDeFamilia& q = familia->coeficientes[i];
            campos.push_back({std::string(q.simbolo), std::string(q.que), q.menor, q.mayor, 0});
        }
    }
    return campos;
}

std::optional<double> Valor(const study::Idf& pedido, std::string_view simbolo)
{
    for (const study::Coeficiente& c : pedido.coeficientes)
        if (c.simbolo == simbolo && c.recurrencia == 0) return c.valor;
    return {};
}

void PonValor(study::Idf& pedido, const std::string& simbolo, std::optional<double> valor)
{
    std::erase_if(pedido.coeficientes,
                  [&](const study::Coeficiente& c) { return c.simbolo == simbolo && c.recurrencia == 0; });
    if (valor) pedido.coeficientes.push_back({simbolo, *valor, 0});
}

std::string TextoDeValor(std::optional<double> valor)
{
    return valor ? Numero(*valor) : std::string();
}

// --- grids ---

std::optional<double> Celda(const forms::FilaGrilla& fila, std::size_t columna)
{
    return forms::NumeroDeCampo(fila.celdas[columna]);
}

std::vector<study::Razon> RazonesDe(const forms::Grilla& g)
{
    std::vector<study::Razon> razones;
    for (const forms::FilaGrilla& fila : g.filas)
        if (const auto d = Celda(fila, 0), r = Celda(fila, 1); d && r) razones.push_back({*d, *r});
    return razones;
}

/// Coefficients by recurrence; a row without one says nothing yet.
std::vector<study::Coeficiente> LibresDe(const forms::Grilla& g)
{
    constexpr std::array<const char*, 3> Simbolos{"a", "b", "c"};
    std::vector<study::Coeficiente> coeficientes;
    for (const forms::FilaGrilla& fila : g.filas) {
        const auto T = Celda(fila, 0);
        for (std::size_t i = 0; T && i < Simbolos.size(); ++i)
            if (const auto valor = Celda(fila, i + 1)) coeficientes.push_back({Simbolos[i], *valor, *T});
    }
    return coeficientes;
}

std::vector<study::Coeficiente> PorRecurrencia(const study::Idf& pedido)
{
    std::vector<study::Coeficiente> suyos;
    std::copy_if(pedido.coeficientes.begin(), pedido.coeficientes.end(), std::back_inserter(suyos),
                 [](const study::Coeficiente& c) { return c.recurrencia > 0; });
    return suyos;
}

void PonFilas(forms::Grilla& g, const std::vector<std::vector<std::string>>& filas)
{
    forms::PonNroFilas(g, 0);
    forms::PonNroFilas(g, std::max(static_cast<int>(filas.size()) + 5, FilasDeGrilla));
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (std::size_t j = 0; j < filas[i].size(); ++j)
            g.Pon({static_cast<int>(i) + 1, static_cast<int>(j)}, filas[i][j]);
}

void PonRazones(forms::Grilla& g, const std::vector<study::Razon>& razones)
{
    std::vector<std::vector<std::string>> filas;
    for (const study::Razon& r : razones)
        filas.push_back({Numero(r.duracion), Numero(r.razon)});
    PonFilas(g, filas);
}

void PonLibres(forms::Grilla& g, const std::vector<study::Coeficiente>& coeficientes)
{
    std::vector<double> recurrencias;
    std::vector<std::vector<std::string>> filas;
    for (const study::Coeficiente& c : coeficientes) {
        const auto cual = std::find(recurrencias.begin(), recurrencias.end(), c.recurrencia);
        const auto i = static_cast<std::size_t>(cual - recurrencias.begin());
        if (cual == recurrencias.end()) {
            recurrencias.push_back(c.recurrencia);
            filas.push_back({Numero(c.recurrencia), "", "", ""});
        }
        const std::size_t columna = c.simbolo == "a" ? 1 : c.simbolo == "b" ? 2 : 3;
        filas[i][columna] = Numero(c.valor);
    }
    PonFilas(g, filas);
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

/// Durations of the curves and of the points that they were fitted to, rising.
std::vector<double> DuracionesDibujadas(const idf::Curvas& c)
{
    std::vector<double> duraciones(model::Duraciones.begin(), model::Duraciones.end());
    for (const idf::Punto& p : c.puntos)
        duraciones.push_back(p.duracion);
    std::sort(duraciones.begin(), duraciones.end());
    duraciones.erase(std::unique(duraciones.begin(), duraciones.end()), duraciones.end());
    return duraciones;
}

forms::Grafico GraficoDeCurvas(const TallerIdf& m)
{
    const bool deLaminas = m.cmbTabla.indice == static_cast<int>(VistaDeCurvas::Laminas);
    const std::vector<double> duraciones = DuracionesDibujadas(m.curvas);
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Duración [min]";
    g.ejeY = deLaminas ? "Lámina [mm]" : "Intensidad [mm/h]";
    g.leyendaVisible = g.muchasLineas = true;
    g.tituloLeyenda = "Recurrencia";
    g.ejeYLogaritmico = m.chkLogaritmos;
    if (!m.curvas.errores.empty()) return g;
    for (const double d : duraciones) {
        g.categorias.push_back(Numero(d) + " min");
        g.abscisas.push_back(Eje(m.chkLogaritmos, d));
    }
    if (m.chkLogaritmos)
        for (const int d : {10, 60, 1440, 5, 30, 360, 180, 720, 120, 20, 2880, 90, 15, 240})
            g.rotulosX.push_back({Eje(true, d), std::to_string(d)});
    for (const int T : RecurrenciasDibujadas) {
        forms::Serie curva{.tipo = forms::TipoSerie::Linea2D, .leyenda = std::to_string(T) + " años"};
        forms::Serie puntos{.tipo = forms::TipoSerie::Puntos2D};
        for (const double d : duraciones) {
            const double i = idf::Intensidad(m.curvas, d, T);
            curva.celdas.push_back(std::isfinite(i) ? i * (deLaminas ? d / 60 : 1) : forms::CeldaVacia);
            const auto p =
                std::find_if(m.curvas.puntos.begin(), m.curvas.puntos.end(),
                             [&](const idf::Punto& q) { return q.duracion == d && q.recurrencia == T; });
            puntos.celdas.push_back(p == m.curvas.puntos.end() || m.curvas.ajuste.ajustadas.empty()
                                        ? forms::CeldaVacia
                                        : p->intensidad * idf::FactorAreal(m.curvas) *
                                              (deLaminas ? d / 60 : 1));
        }
        g.series.push_back(std::move(curva));
        if (!m.curvas.ajuste.ajustadas.empty()) g.series.push_back(std::move(puntos));
    }
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

void MuestraVista(TallerIdf& m, const dlgTaller& f)
{
    forms::PonFilas(m.tblCurvas, PlanillaDe(m.curvas, static_cast<VistaDeCurvas>(m.cmbTabla.indice)));
    m.Grafico = GraficoDeCurvas(m);
    m.Grafico.titulo = TemaDeCurvas(m, f);
}

void TomaListas(TallerIdf& m, const dlgTaller& f)
{
    const study::Idf& pedido = IdfDe(f);
    const auto* const origen = std::find(Origenes.begin(), Origenes.end(), pedido.origen);
    m.cmbOrigen.indice = origen == Origenes.end() ? 0 : static_cast<int>(origen - Origenes.begin());
    m.cmbDe = {f.estaciones, 0};
    const auto& estaciones = TallerDe(f).estaciones;
    for (std::size_t i = estaciones.size(); i-- > 0;)
        if (estaciones[i].nombre == pedido.estacion) m.cmbDe.indice = static_cast<int>(i);
    m.cmbDesagregacion.indice = Lugar(idf::Desagregaciones(), pedido.desagregacion);
    m.cmbFamilia = {Nombres(idf::Familias()), Lugar(idf::Familias(), pedido.familia)};
    if (pedido.origen == "diaria") {
        m.cmbFamilia.items.emplace_back("Ninguna, la desagregación misma");
        if (pedido.familia.empty()) m.cmbFamilia.indice = static_cast<int>(idf::Familias().size());
    }
    m.cmbCriterio.indice = pedido.errorRelativo ? 1 : 0;
    m.cmbReduccion.indice = pedido.reduccion.empty() ? 0 : 1 + Lugar(idf::Reducciones(), pedido.reduccion);
    m.cmbRegion.indice = 0;
    for (std::size_t i = 0; i < idf::EstacionesDit().size(); ++i) {
        const idf::EstacionDit& e = idf::EstacionesDit()[i];
        const bool todos =
            pedido.origen == "diaria" || (Valor(pedido, "A") == e.A && Valor(pedido, "C") == e.C);
        if (Valor(pedido, "B") == e.B && todos) m.cmbRegion.indice = static_cast<int>(i) + 1;
    }
}

/// Changes the curves' part of the study.
template <typename Cambio>
void CambiaIdf(dlgTaller& f, std::string_view leyenda, Cambio cambio)
{
    Cambia(f, leyenda, [&](study::Taller& t) { cambio(t.idf); });
}

}  // namespace

TallerIdf NuevaTallerIdf()
{
    TallerIdf m;
    m.cmbOrigen.items = {"Máximos diarios, desagregados", "Máximos de varias duraciones",
                         "Coeficientes conocidos"};
    m.cmbDesagregacion.items = Nombres(idf::Desagregaciones());
    m.cmbCriterio.items = {"Logaritmos", "Errores relativos"};
    m.cmbReduccion.items = Nombres(idf::Reducciones(), {"Ninguna"});
    m.cmbRegion.items = Nombres(idf::EstacionesDit(), {"(otra)"});
    m.cmbTabla.items = {"Láminas [mm]", "Intensidades [mm/h]", "Residuos del ajuste [%]"};
    m.grdRazones = forms::NuevaGrilla(ReglasRazones);
    m.grdLibre = forms::NuevaGrilla(ReglasLibre);
    PonRazones(m.grdRazones, {});
    PonLibres(m.grdLibre, {});
    return m;
}

void Toma(TallerIdf& m, const dlgTaller& f)
{
    const study::Idf& pedido = IdfDe(f);
    TomaListas(m, f);
    m.txtFactor = Numero(pedido.factorDiario);
    m.txtArea = pedido.area > 0 ? Numero(pedido.area) : std::string();
    m.txtKA = TextoDeValor(Valor(pedido, "KA"));
    m.txtCoef = {};
    m.lblCoef = {};
    const std::vector<CampoDeCoeficiente> campos = CamposDe(pedido);
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const auto valor = Valor(pedido, campos[i].simbolo);
        m.lblCoef[i] = campos[i].simbolo + ", " + campos[i].que + ":";
        m.txtCoef[i] = valor || campos[i].siFalta == 0 ? TextoDeValor(valor) : Numero(campos[i].siFalta);
    }
    // What is typed stays as it was typed while it says the same.
    if (RazonesDe(m.grdRazones) != pedido.razones) PonRazones(m.grdRazones, pedido.razones);
    if (const auto libres = PorRecurrencia(pedido); LibresDe(m.grdLibre) != libres)
        PonLibres(m.grdLibre, libres);
    const idf::Desagregacion* const d = idf::DesagregacionDeClave(pedido.desagregacion);
    m.lblDesagregacion = d == nullptr ? std::string() : Ficha(*d);
    const idf::Familia* const familia = idf::FamiliaDeClave(pedido.familia);
    m.lblFamilia =
        familia == nullptr ? std::string("Las láminas son las de la desagregación.") : Ficha(*familia);
    const idf::Reduccion* const reduccion = idf::ReduccionDeClave(pedido.reduccion);
    m.lblReduccion = reduccion == nullptr ? std::string()
                                          : FormulaEnHtml(reduccion->formula) + "<br><small>" +
                                                std::string(reduccion->fuente) + ".</small>";
    m.curvas = idf::Calcula(pedido, TallerDe(f).estaciones);
    m.lblNotas = NotasDe(m.curvas);
    MuestraVista(m, f);
}

bool PideDesagregacion(const dlgTaller& f)
{
    return IdfDe(f).origen == "diaria";
}

bool PideMaximos(const dlgTaller& f)
{
    return IdfDe(f).origen != "coeficientes";
}

bool PideRazones(const dlgTaller& f)
{
    const std::string& d = IdfDe(f).desagregacion;
    return PideDesagregacion(f) && (d == "razones" || d == "5.2-ic-2016");
}

bool PideLibre(const dlgTaller& f)
{
    const idf::Familia* const familia = idf::FamiliaDeClave(IdfDe(f).familia);
    return !PideMaximos(f) && familia != nullptr && familia->porRecurrencia;
}

bool PideRegion(const dlgTaller& f)
{
    const study::Idf& pedido = IdfDe(f);
    return (PideDesagregacion(f) && pedido.desagregacion == "dit") ||
           (!PideMaximos(f) && pedido.familia == "dit");
}

bool PideArea(const dlgTaller& f)
{
    return !IdfDe(f).reduccion.empty() && !PideKA(f);
}

bool PideKA(const dlgTaller& f)
{
    const idf::Reduccion* const r = idf::ReduccionDeClave(IdfDe(f).reduccion);
    return r != nullptr && r->propia;
}

void cmbOrigen_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Origen de las curvas", [&](study::Idf& pedido) {
        pedido.origen = Origenes.at(Indice(m.cmbOrigen));
        if (pedido.origen != "diaria" && pedido.familia.empty()) pedido.familia = study::Idf{}.familia;
    });
}

void cmbDe_Click(const TallerIdf& m, dlgTaller& f)
{
    const auto& estaciones = TallerDe(f).estaciones;
    if (Indice(m.cmbDe) >= estaciones.size()) return;
    const std::string nombre = estaciones[Indice(m.cmbDe)].nombre;
    CambiaIdf(f, "Estación de las curvas", [&](study::Idf& pedido) { pedido.estacion = nombre; });
}

void cmbDesagregacion_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Desagregación", [&](study::Idf& pedido) {
        pedido.desagregacion = idf::Desagregaciones()[Indice(m.cmbDesagregacion)].clave;
    });
}

void cmbFamilia_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Familia de curvas", [&](study::Idf& pedido) {
        const std::size_t i = Indice(m.cmbFamilia);
        pedido.familia = i < idf::Familias().size() ? std::string(idf::Familias()[i].clave) : std::string();
    });
}

void cmbCriterio_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Criterio del ajuste",
              [&](study::Idf& pedido) { pedido.errorRelativo = m.cmbCriterio.indice == 1; });
}

void cmbRegion_Click(const TallerIdf& m, dlgTaller& f)
{
    const std::size_t i = Indice(m.cmbRegion);
    if (i == 0 || i > idf::EstacionesDit().size()) return;
    const idf::EstacionDit& e = idf::EstacionesDit()[i - 1];
    CambiaIdf(f, "Coeficientes de una ficha", [&](study::Idf& pedido) {
        PonValor(pedido, "B", e.B);
        if (pedido.origen == "diaria") return;
        PonValor(pedido, "A", e.A);
        PonValor(pedido, "C", e.C);
    });
}

void cmbReduccion_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Reducción por el área", [&](study::Idf& pedido) {
        const std::size_t i = Indice(m.cmbReduccion);
        pedido.reduccion = i == 0 ? std::string() : std::string(idf::Reducciones()[i - 1].clave);
    });
}

namespace {

/// A field's number within limits; nothing in it where it is empty, which is let pass. False: refused.
bool Toma(const model::Siro& s, std::string& texto, std::string_view que, double menor, double mayor,
          std::optional<double>& valor)
{
    valor.reset();
    if (texto.empty()) return true;
    const std::string mensaje =
        std::string(que) + " debe estar entre " + Numero(menor) + " y " + Numero(mayor) + ".";
    const forms::ReglaNumero regla{.minimo = menor, .maximo = mayor, .mensaje = mensaje};
    if (!forms::AlSalir(s, regla, texto)) return false;
    valor = forms::NumeroDeCampo(texto);
    return true;
}

/// Leaving the field of a coefficient, typed or of the disaggregation.
bool Coeficiente_AlSalir(TallerIdf& m, dlgTaller& f, const model::Siro& s, std::size_t i)
{
    const std::vector<CampoDeCoeficiente> campos = CamposDe(IdfDe(f));
    if (i >= campos.size()) return true;
    std::optional<double> valor;
    if (!Toma(s, m.txtCoef[i], "El coeficiente " + campos[i].simbolo, campos[i].menor, campos[i].mayor,
              valor))
        return false;
    const auto antes = Valor(IdfDe(f), campos[i].simbolo);
    if (valor == antes || (!antes && campos[i].siFalta != 0 && valor == campos[i].siFalta)) return true;
    CambiaIdf(f, "Coeficiente " + campos[i].simbolo,
              [&](study::Idf& pedido) { PonValor(pedido, campos[i].simbolo, valor); });
    return true;
}

}  // namespace

bool txtIdf_AlSalir(TallerIdf& m, dlgTaller& f, const model::Siro& s, std::string_view control)
{
    constexpr std::string_view Coef = "txtCoef";
    constexpr double MayorArea = 1e6;
    if (control.starts_with(Coef))
        return Coeficiente_AlSalir(m, f, s, static_cast<std::size_t>(control.back() - '0'));
    std::optional<double> valor;
    const study::Idf& pedido = IdfDe(f);
    if (control == "txtFactor") {
        if (!Toma(s, m.txtFactor, "El factor de un día a 24 horas", 1, 1.5, valor)) return false;
        const double factor = valor.value_or(study::Idf{}.factorDiario);
        if (factor != pedido.factorDiario || !valor)
            CambiaIdf(f, "Factor de lectura diaria", [&](study::Idf& p) { p.factorDiario = factor; });
        m.txtFactor = Numero(factor);
    } else if (control == "txtArea") {
        if (!Toma(s, m.txtArea, "El área, en km2,", 0, MayorArea, valor)) return false;
        if (valor.value_or(0) != pedido.area)
            CambiaIdf(f, "Área de la cuenca", [&](study::Idf& p) { p.area = valor.value_or(0); });
    } else if (control == "txtKA") {
        if (!Toma(s, m.txtKA, "El factor KA", 0.01, 1, valor)) return false;
        if (valor != Valor(pedido, "KA"))
            CambiaIdf(f, "Factor areal", [&](study::Idf& p) { PonValor(p, "KA", valor); });
    }
    return true;
}

void grdRazones_Asienta(TallerIdf& m, dlgTaller& f)
{
    const std::vector<study::Razon> razones = RazonesDe(m.grdRazones);
    if (razones == IdfDe(f).razones) return;
    CambiaIdf(f, "Razones a 24 horas", [&](study::Idf& pedido) { pedido.razones = razones; });
    m.grdRazones.hechos.clear();  // from here on the workshop's own undoing takes them back
    m.grdRazones.deshechos.clear();
}

void grdLibre_Asienta(TallerIdf& m, dlgTaller& f)
{
    const std::vector<study::Coeficiente> libres = LibresDe(m.grdLibre);
    if (libres == PorRecurrencia(IdfDe(f))) return;
    CambiaIdf(f, "Coeficientes por recurrencia", [&](study::Idf& pedido) {
        std::erase_if(pedido.coeficientes, [](const study::Coeficiente& c) { return c.recurrencia > 0; });
        pedido.coeficientes.insert(pedido.coeficientes.end(), libres.begin(), libres.end());
    });
    m.grdLibre.hechos.clear();
    m.grdLibre.deshechos.clear();
}

void cmbTabla_Click(TallerIdf& m, const dlgTaller& f)
{
    MuestraVista(m, f);
}

void chkLogaritmos_Click(TallerIdf& m, const dlgTaller& f, bool tildada)
{
    m.chkLogaritmos = tildada;
    MuestraVista(m, f);
}

std::string TemaDeCurvas(const TallerIdf& m, const dlgTaller& f)
{
    const idf::Curvas& c = m.curvas;
    std::string t = "Curvas de intensidad, duración y recurrencia";
    if (PideMaximos(f) && Indice(m.cmbDe) < m.cmbDe.items.size()) t += ": " + m.cmbDe.items[Indice(m.cmbDe)];
    if (c.desagregacion != nullptr) t += ", " + std::string(c.desagregacion->nombre);
    if (c.ajuste.familia != nullptr) t += ", " + std::string(c.ajuste.familia->nombre);
    return t;
}

forms::Planilla PlanillaDeCurvas(const TallerIdf& m, const dlgTaller& f)
{
    forms::Planilla p = m.tblCurvas.planilla;
    p.titulos = {std::string(TituloDlgTaller) + ": " + m.cmbTabla.items[Indice(m.cmbTabla)],
                 TemaDeCurvas(m, f)};
    for (const idf::CoeficientesDeT& k : m.curvas.ajuste.coeficientes)
        p.titulos.push_back((k.recurrencia > 0 ? Numero(k.recurrencia) + " años: " : std::string()) +
                            idf::TextoDeCoeficientes(*m.curvas.ajuste.familia, k.c));
    return p;
}

}  // namespace frequency
