// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerTormenta.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "frequency/Cifras.h"
#include "frequency/tormenta/Fuentes.h"
#include "model/ArchivosTormenta.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

using study::TormentaDeDiseno;
using Texto = std::string TallerTormenta::*;

/// A number of the storm, as its field checks it.
struct CampoDeTormenta {
    forms::ReglaNumero regla;
    std::string_view leyenda;
    Texto texto;
    double TormentaDeDiseno::*en;
};
constexpr auto CamposDeTormenta = std::to_array<CampoDeTormenta>({
    {{.control = "txtDuracion",
      .unidad = "min",
      .minimo = 1,
      .maximo = MaximoDeDuracion,
      .mensaje = "La duración va de 1 a 14400 minutos enteros.",
      .clase = forms::ClaseNumero::Entero},
     "Duración de la tormenta",
     &TallerTormenta::txtDuracion,
     &TormentaDeDiseno::duracion},
    {{.control = "txtPaso",
      .unidad = "min",
      .minimo = 1,
      .maximo = MaximoDeDuracion,
      .mensaje = "El paso va de 1 a 14400 minutos enteros.",
      .clase = forms::ClaseNumero::Entero},
     "Paso de la tormenta",
     &TallerTormenta::txtPaso,
     &TormentaDeDiseno::paso},
    {{.control = "txtRecurrencia",
      .unidad = "años",
      .minimo = 1.01,
      .maximo = 10000,
      .mensaje = "La recurrencia va de 1.01 a 10000 años."},
     "Recurrencia de la tormenta",
     &TallerTormenta::txtRecurrencia,
     &TormentaDeDiseno::recurrencia},
    {{.control = "txtAvance", .minimo = 0.01, .maximo = 0.99, .mensaje = "El avance va de 0.01 a 0.99."},
     "Avance de la tormenta",
     &TallerTormenta::txtAvance,
     &TormentaDeDiseno::avance},
});

constexpr forms::ReglaNumero ReglaLamina{
    .control = "txtLamina",
    .unidad = "mm",
    .minimo = 0.1,
    .maximo = 9999,
    .mensaje = "La lámina va de 0.1 a 9999 mm; vacía, la de las curvas."};

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

const TormentaDeDiseno& TormentaDe(const dlgTaller& f)
{
    return TallerDe(f).tormenta;
}

void CambiaTormenta(dlgTaller& f, std::string_view leyenda,
                    const std::function<void(TormentaDeDiseno&)>& cambio)
{
    Cambia(f, leyenda, [&](study::Taller& t) { cambio(t.tormenta); });
}

std::string DichoDe(const Patron& p)
{
    return std::string(p.formula) + "\nFuente: " + std::string(p.fuente) + ".\n" + std::string(p.limites) +
           ".";
}

std::string AvisosDe(const TallerTormenta& m)
{
    const Diseno& d = m.diseno;
    std::string t = m.escrito.empty() ? "" : m.escrito + "\n";
    if (!d.error.empty()) return t + d.error;
    t += "Lámina: " + Con(d.lamina, 1) + " mm. En porcentajes enteros, " + TextoDelRedondeo(d) + ".";
    for (const std::string& aviso : d.avisos)
        t += "\n• " + aviso;
    return t;
}

void PonCuadro(TallerTormenta& m, const dlgTaller& f)
{
    forms::PonFilas(m.cuadro, PlanillaDeTormenta(m, f));
}

forms::Grafico GraficoDe(const Diseno& d)
{
    forms::Grafico g;
    g.titulo = "Hietograma";
    g.magnitudX = "t";
    g.ejeX = "minutos";
    g.ejeY = "Precipitación [mm]";
    g.leyendaVisible = true;
    forms::Serie ideal{.leyenda = "Patrón"},
        corrida{.tipo = forms::TipoSerie::Puntos2D, .leyenda = "En la corrida"};
    for (const PasoDeDiseno& p : PasosDe(d)) {
        g.categorias.push_back(Numero(p.hasta));
        ideal.celdas.push_back(p.lamina);
        corrida.celdas.push_back(p.motor);
    }
    g.series = {std::move(ideal), std::move(corrida)};
    return g;
}

/// The curves are made anew where what they are made of is another.
void PonFuentes(TallerTormenta& m, const study::Taller& t, const model::Siro& s)
{
    const bool nuevas = !m.fuentes.curvas && m.fuentes.sinCurvas.empty();
    if (nuevas || m.hechas.idf != t.idf || m.hechas.estaciones != t.estaciones)
        PonCurvas(m.fuentes, t.idf, t.estaciones);
    m.hechas = t;
    PonGrabada(m.fuentes, t.tormenta, s);
}

void PonListas(TallerTormenta& m, const model::Siro& s)
{
    m.archivos.clear();
    model::Sentencia([&] { m.archivos = model::ListaTormentas(s); });
}

}  // namespace

TallerTormenta NuevaTallerTormenta()
{
    TallerTormenta m;
    for (const Patron* patron : Patrones())
        m.patrones.emplace_back(patron->nombre);
    for (const std::int16_t r : model::Recurrencias)
        m.recurrencias.push_back(std::to_string(r));
    m.cuartiles = {"1", "2", "3", "4"};
    m.probabilidades = {"10 %", "20 %", "30 %", "40 %", "50 %", "60 %", "70 %", "80 %", "90 %"};
    m.tablas = {"1", "2", "3"};
    return m;
}

const Patron& PatronEnMano(const TallerTormenta& m)
{
    return *Patrones()[static_cast<std::size_t>(m.patron)];
}

void Toma(TallerTormenta& m, const dlgTaller& f, const model::Siro& s)
{
    const TormentaDeDiseno& t = TormentaDe(f);
    const auto cual = std::find(Patrones().begin(), Patrones().end(), PatronDeClave(t.patron));
    m.patron = cual == Patrones().end() ? 0 : static_cast<int>(cual - Patrones().begin());
    m.lblPatron = DichoDe(*Patrones()[static_cast<std::size_t>(m.patron)]);
    for (const CampoDeTormenta& campo : CamposDeTormenta)
        m.*campo.texto = Numero(t.*campo.en);
    m.txtLamina = t.lamina ? Numero(*t.lamina) : std::string();
    m.txtPeriodos = t.periodos;
    m.cuartil = t.cuartil - 1;
    m.probabilidad = t.probabilidad / 10 - 1;
    m.tabla = t.tabla - 1;
    m.distribucion = t.distribucion - 1;
    PonListas(m, s);
    const auto archivo = std::find(m.archivos.begin(), m.archivos.end(), t.archivo);
    m.archivo = archivo == m.archivos.end() ? -1 : static_cast<int>(archivo - m.archivos.begin());
    PonFuentes(m, TallerDe(f), s);
    m.diseno = Disena(t, m.fuentes);
    m.cmdDeshacerEscritura =
        m.escrituras.empty() ? "Deshacer..." : "Deshacer: " + m.escrituras.back().destino + "...";
    m.lblAvisos = AvisosDe(m);
    m.Grafico = GraficoDe(m.diseno);
    PonCuadro(m, f);
}

void cmbPatron_Click(dlgTaller& f, int cual)
{
    const Patron& patron = *Patrones()[static_cast<std::size_t>(cual)];
    CambiaTormenta(f, "Patrón de la tormenta", [&](TormentaDeDiseno& t) { t.patron = patron.clave; });
}

void cmbCuartil_Click(dlgTaller& f, int cual)
{
    CambiaTormenta(f, "Cuartil de la tormenta", [&](TormentaDeDiseno& t) { t.cuartil = cual + 1; });
}

void cmbProbabilidad_Click(dlgTaller& f, int cual)
{
    CambiaTormenta(f, "Probabilidad de la tormenta",
                   [&](TormentaDeDiseno& t) { t.probabilidad = (cual + 1) * 10; });
}

void cmbArchivo_Click(const TallerTormenta& m, dlgTaller& f, int cual)
{
    CambiaTormenta(f, "Tormenta registrada",
                   [&](TormentaDeDiseno& t) { t.archivo = m.archivos.at(static_cast<std::size_t>(cual)); });
}

void cmbTabla_Click(dlgTaller& f, int cual)
{
    CambiaTormenta(f, "Tabla P-D-R", [&](TormentaDeDiseno& t) { t.tabla = cual + 1; });
}

void cmbDistribucion_Click(dlgTaller& f, int cual)
{
    CambiaTormenta(f, "Distribución personal", [&](TormentaDeDiseno& t) { t.distribucion = cual + 1; });
}

bool txtNumero_AlSalir(TallerTormenta& m, dlgTaller& f, const model::Siro& s, std::string_view control)
{
    if (control == ReglaLamina.control) {
        if (!m.txtLamina.empty() && !forms::AlSalir(s, ReglaLamina, m.txtLamina)) return false;
        const std::optional<double> x = forms::NumeroDeCampo(m.txtLamina);
        if (x != TormentaDe(f).lamina)
            CambiaTormenta(f, "Lámina de la tormenta", [&](TormentaDeDiseno& t) { t.lamina = x; });
        return true;
    }
    for (const CampoDeTormenta& campo : CamposDeTormenta) {
        if (campo.regla.control != control) continue;
        std::string& texto = m.*campo.texto;
        if (!forms::AlSalir(s, campo.regla, texto)) return false;
        const double x = *forms::NumeroDeCampo(texto);
        if (x != TormentaDe(f).*campo.en)
            CambiaTormenta(f, campo.leyenda, [&](TormentaDeDiseno& t) { t.*campo.en = x; });
    }
    return true;
}

bool txtPeriodos_AlSalir(const TallerTormenta& m, dlgTaller& f, const model::Siro& s)
{
    std::string error;
    PeriodosDe(m.txtPeriodos, error);
    if (!error.empty()) {
        forms::MuestraRechazo(s, forms::Rechazo::Exclamacion, error);
        return false;
    }
    if (m.txtPeriodos != TormentaDe(f).periodos)
        CambiaTormenta(f, "Períodos de la tormenta",
                       [&](TormentaDeDiseno& t) { t.periodos = m.txtPeriodos; });
    return true;
}

forms::Planilla PlanillaDeTormenta(const TallerTormenta& m, const dlgTaller& f)
{
    constexpr int Decimales = 2;
    forms::Planilla p{{std::string(TituloDlgTaller) + ": tormenta", TemaDe(f), m.diseno.origen},
                      {{"t [min]"},
                       {"P [mm]", false, "0.00"},
                       {"Suma [mm]", false, "0.00"},
                       {"i [mm/h]", false, "0.00"},
                       {"P [%]"},
                       {"Corre [mm]", false, "0.00"}},
                      {}};
    for (const PasoDeDiseno& paso : PasosDe(m.diseno))
        p.filas.push_back({Numero(paso.hasta), Con(paso.lamina, Decimales), Con(paso.acumulada, Decimales),
                           Con(paso.intensidad, Decimales), std::to_string(paso.porcentaje),
                           Con(paso.motor, Decimales)});
    return p;
}

}  // namespace frequency
