// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerIdf.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "frequency/Cifras.h"
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
constexpr forms::ReglasGrilla ReglasLibre{
    .encabezado = ">  T [años]  |>           a  |>  b [min]  |>         c  ",
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

std::vector<study::Coeficiente> DeUnaRecurrencia(const study::Idf& pedido)
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
        m.cmbFamilia.items.emplace_back("Ninguna");
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
    m.cmbOrigen.items = {"Máximos diarios", "Varias duraciones", "Coeficientes"};
    m.cmbDesagregacion.items = Nombres(idf::Desagregaciones());
    m.cmbCriterio.items = {"Logaritmos", "Errores relativos"};
    m.cmbReduccion.items = Nombres(idf::Reducciones(), {"Ninguna"});
    m.cmbRegion.items = Nombres(idf::EstacionesDit(), {"(otra)"});
    m.cmbVista.items = {"Láminas [mm]", "Intensidades [mm/h]", "Residuos del ajuste [%]"};
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
    if (const auto libres = DeUnaRecurrencia(pedido); LibresDe(m.grdLibre) != libres)
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
    MuestraCurvas(m, f);
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
        pedido.origen = Origenes.at(m.cmbOrigen.Lugar());
        if (pedido.origen != "diaria" && pedido.familia.empty()) pedido.familia = study::Idf{}.familia;
    });
}

void cmbDe_Click(const TallerIdf& m, dlgTaller& f)
{
    const auto& estaciones = TallerDe(f).estaciones;
    if (m.cmbDe.Lugar() >= estaciones.size()) return;
    const std::string nombre = estaciones[m.cmbDe.Lugar()].nombre;
    CambiaIdf(f, "Estación de las curvas", [&](study::Idf& pedido) { pedido.estacion = nombre; });
}

void cmbDesagregacion_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Desagregación", [&](study::Idf& pedido) {
        pedido.desagregacion = idf::Desagregaciones()[m.cmbDesagregacion.Lugar()].clave;
    });
}

void cmbFamilia_Click(const TallerIdf& m, dlgTaller& f)
{
    CambiaIdf(f, "Familia de curvas", [&](study::Idf& pedido) {
        const std::size_t i = m.cmbFamilia.Lugar();
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
    const std::size_t i = m.cmbRegion.Lugar();
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
        const std::size_t i = m.cmbReduccion.Lugar();
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
    if (libres == DeUnaRecurrencia(IdfDe(f))) return;
    CambiaIdf(f, "Coeficientes por recurrencia", [&](study::Idf& pedido) {
        std::erase_if(pedido.coeficientes, [](const study::Coeficiente& c) { return c.recurrencia > 0; });
        pedido.coeficientes.insert(pedido.coeficientes.end(), libres.begin(), libres.end());
    });
    m.grdLibre.hechos.clear();
    m.grdLibre.deshechos.clear();
}

void cmbVista_Click(TallerIdf& m, const dlgTaller& f)
{
    MuestraVista(m, f);
}

void chkLogaritmos_Click(TallerIdf& m, const dlgTaller& f, bool tildada)
{
    m.chkLogaritmos = tildada;
    MuestraVista(m, f);
}

}  // namespace frequency
