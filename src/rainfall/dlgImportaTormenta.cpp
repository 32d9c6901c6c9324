// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgImportaTormenta.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "model/Avisos.h"
#include "model/Disco.h"
#include "model/Numeros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "rainfall/VistaLluvia.h"

namespace rainfall {

using forms::Instante;
using forms::LecturaLluvia;
using forms::TextoFecha;
using forms::TextoHora;
using model::NumeroATexto;

namespace {

constexpr std::string_view TituloElige = "Elegir un registro de lluvia";
constexpr std::string_view FiltroRegistro = "Registros de lluvia (*.csv) |*.csv";
constexpr std::string_view NotasImportada = "Importada de ";
constexpr std::string_view UnDudoso = "; 1 renglón dudoso";
constexpr std::string_view Dudosos = " renglones dudosos";

constexpr int ColumnaFecha = 1;
constexpr int ColumnaMinutos = 2;
constexpr int ColumnaLamina = 3;
constexpr forms::ReglasGrilla ReglasTabla{
    .encabezado = "^Nro.  |^                    t [hs:min]  |^  t [min] |^Pp Parcial ", .columnasFijas = 1};

// The blanks give the columns their width.
constexpr forms::ReglasGrilla ReglasDudosos{
    .encabezado =
        "^Renglón  |Texto                                             |"
        "Qué tiene y qué se hace                                                "};

/// Decimals of the totals that are shown.
constexpr int DecimalesTotal = 2;

std::string NombreDeArchivo(std::string_view ruta)
{
    const std::size_t barra = ruta.find_last_of(model::Separador);
    std::string nombre(barra == std::string_view::npos ? ruta : ruta.substr(barra + 1));
    // A text of the storm's file can't hold the quote that ends it.
    std::replace(nombre.begin(), nombre.end(), '"', '\'');
    return nombre;
}

std::string TextoInstante(std::int64_t segundo)
{
    const Instante t = segundo / forms::MinutosPorHora;  // as many seconds in a minute
    return TextoFecha(t) + ' ' + TextoHora(t);
}

std::string CuentaDudosos(std::size_t n)
{
    if (n == 0) return {};
    return n == 1 ? std::string(UnDudoso) : "; " + std::to_string(n) + std::string(Dudosos);
}

std::string DescribeRegistro(const std::vector<LecturaLluvia>& lecturas)
{
    double total = 0;
    for (const LecturaLluvia& lectura : lecturas)
        total += lectura.lamina;
    return std::to_string(lecturas.size()) + " lecturas, del " + TextoInstante(lecturas.front().segundo) +
           " al " + TextoInstante(lecturas.back().segundo) +
           ", Pp= " + NumeroATexto(model::Redondea(total, DecimalesTotal)) + " [mm]";
}

std::string DescribeTormenta(const TormentaImportada& t)
{
    double total = 0;
    for (const float lamina : t.laminas)
        total += double{lamina};
    const auto n = static_cast<int>(t.laminas.size());
    return std::to_string(n) + " intervalos, D= " + std::to_string(n * t.paso) +
           " [min], Pp= " + NumeroATexto(model::Redondea(total, DecimalesTotal)) + " [mm], máxima parcial " +
           NumeroATexto(model::Redondea(double{*std::max_element(t.laminas.begin(), t.laminas.end())},
                                        DecimalesTotal)) +
           " [mm]";
}

void LlenaGrilla(dlgImportaTormenta& f)
{
    forms::Grilla& g = f.grillaImportada;
    const auto n = static_cast<int>(f.tormenta.laminas.size());
    forms::PonNroFilas(g, n);
    for (int j = 1; j <= n; ++j) {
        const int minutos = j * f.tormenta.paso;
        const Instante t = f.tormenta.comienzo + minutos;
        g.Pon({j, 0}, std::to_string(j));
        g.Pon({j, ColumnaFecha}, TextoFecha(t) + ' ' + TextoHora(t));
        g.Pon({j, ColumnaMinutos}, std::to_string(minutos));
        g.Pon({j, ColumnaLamina}, NumeroATexto(f.tormenta.laminas[static_cast<std::size_t>(j) - 1]));
    }
}

void LlenaDudosos(dlgImportaTormenta& f)
{
    f.grillaDudosos = forms::NuevaGrilla(ReglasDudosos);
    for (const auto& [nro, texto, hecho] : f.registro.dudosos)
        f.grillaDudosos.filas.push_back({{std::to_string(nro), texto, hecho}});
}

/// Items: the steps of the model and the usual one of the record, in order.
void LlenaPasos(dlgImportaTormenta& f)
{
    const std::int16_t habitual = forms::PasoHabitual(f.registro.lecturas);
    std::vector<std::int16_t> pasos(PasosDeTiempo.begin(), PasosDeTiempo.end());
    const auto lugar = std::lower_bound(pasos.begin(), pasos.end(), habitual);
    if (lugar == pasos.end() || *lugar != habitual) pasos.insert(lugar, habitual);
    for (const std::int16_t paso : pasos)
        f.itemsPaso.push_back(std::to_string(paso));
    f.cmbPaso = std::to_string(habitual);
}

}  // namespace

bool Abre(dlgImportaTormenta& f, const model::Siro& s)
{
    f = {};
    const std::string ruta = s.Anfitrion.EligeArchivo(TituloElige, FiltroRegistro);
    if (ruta.empty()) return false;
    std::string bytes;
    const bool leido = model::Sentencia([&] { bytes = s.Disco.Lee(ruta); }, model::AvisaArchivo(s));
    if (!leido) return false;
    f.registro = forms::LeeRegistroLluvia(bytes);
    if (!f.registro.motivo.empty()) {
        model::Advierte(s, f.registro.motivo);
        return false;
    }
    f.abierta = true;
    f.lblArchivo = NombreDeArchivo(ruta);
    f.lblRegistro = DescribeRegistro(f.registro.lecturas) + CuentaDudosos(f.registro.dudosos.size());
    f.grillaImportada = forms::NuevaGrilla(ReglasTabla);
    LlenaDudosos(f);
    LlenaPasos(f);
    cmbPaso_Change(f);
    return true;
}

void cmbPaso_Change(dlgImportaTormenta& f)
{
    constexpr forms::ReglaNumero ReglaPaso{
        .control = "cmbPaso", .minimo = 1, .maximo = 32767, .clase = forms::ClaseNumero::Entero};
    const bool vale = forms::Vale(ReglaPaso, f.cmbPaso);
    const int paso = vale ? static_cast<int>(*forms::NumeroDeCampo(f.cmbPaso)) : 0;
    Remuestreo remuestreo = Remuestrea(f.registro.lecturas, paso);
    f.puedeImportar = remuestreo.motivo.empty();
    f.tormenta = std::move(remuestreo.tormenta);
    f.tormenta.notas = std::string(NotasImportada) + f.lblArchivo;
    f.lblResultado = f.puedeImportar ? DescribeTormenta(f.tormenta) : remuestreo.motivo;
    LlenaGrilla(f);
}

void OKButton(dlgImportaTormenta& f)
{
    if (!f.puedeImportar) return;
    f.aceptada = true;
    f.abierta = false;
}

void CancelButton(dlgImportaTormenta& f)
{
    f.abierta = false;
}

forms::Grafico Vista(const dlgImportaTormenta& f)
{
    return GraficoDeTabla(
        f.grillaImportada,
        {.columnaX = ColumnaMinutos, .columnaY = ColumnaLamina, .ejeX = "t [min]", .ejeY = "Pp [mm]"});
}

}  // namespace rainfall
