// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgResumen.h"

#include <algorithm>
#include <utility>

#include "checks/EscribeHallazgos.h"
#include "checks/Huella.h"

namespace results {

namespace {

constexpr std::string_view SinCorrida =
    "Todavía no se corrió nada: defina la tormenta (F4) y corra el proceso (F5). El resumen se llena solo.";
constexpr std::string_view SinResultados =
    "La corrida no llegó a su fin y no dejó resultados. Los avisos de la corrida (menú Estudio) dicen por "
    "qué.";
constexpr std::string_view DeSerieDeTormentas =
    "Fue una serie: se muestra el mayor pico de cada componente y la tormenta que lo da. Una serie no guarda "
    "hidrogramas; para volúmenes, alturas y balance corra esa tormenta sola (F4, F5).";

std::string Avisos(const checks::UltimaCorrida& u)
{
    return checks::Suma(u.avisos, "Sin avisos");
}

std::string Cuando(const checks::UltimaCorrida& u)
{
    return u.cuando + ", SIRO " + std::string(checks::Version());
}

std::string_view QueHacer(const dlgResumen& f)
{
    if (f.corrida == nullptr) return SinCorrida;
    if (f.resumen.planilla.filas.empty()) return SinResultados;
    return f.corrida->esSerie ? DeSerieDeTormentas : std::string_view();
}

void CuencaAlFinal(dlgResumen& f)
{
    std::stable_partition(f.tblResumen.mostradas.begin(), f.tblResumen.mostradas.end(),
                          [&](std::size_t fila) { return !f.resumen.nombres[fila].empty(); });
}

}  // namespace

void Pon(dlgResumen& f, Corrida corrida)
{
    f.corrida = std::move(corrida);
    f.resumen = f.corrida != nullptr ? checks::ResumenDe(*f.corrida) : checks::Resumen{};
    if (f.resumen.planilla.columnas != f.tblResumen.planilla.columnas) f.tblResumen = {};
    forms::PonFilas(f.tblResumen, f.resumen.planilla);
    CuencaAlFinal(f);
    const checks::UltimaCorrida* const u = f.corrida.get();
    f.lblProyecto = u != nullptr ? ProyectoDe(*u) : "";
    f.lblTormenta = u != nullptr ? u->sello.tormenta : "";
    f.lblCuando = u != nullptr ? Cuando(*u) : "";
    f.lblAvisos = u != nullptr ? Avisos(*u) : "";
    f.lblHuella = u != nullptr ? u->huella : "";
    f.lblQueHacer = QueHacer(f);
}

void AlPulsarEncabezado(dlgResumen& f, int columna)
{
    forms::PulsaEncabezado(f.tblResumen, columna);
    CuencaAlFinal(f);
}

std::vector<std::string> Hidrogramas(const dlgResumen& f, const std::vector<std::size_t>& filas)
{
    std::vector<std::string> nombres;
    for (const std::size_t fila : filas) {
        if (fila >= f.resumen.hidrogramas.size()) continue;
        for (const std::string& nombre : f.resumen.hidrogramas[fila])
            if (std::find(nombres.begin(), nombres.end(), nombre) == nombres.end()) nombres.push_back(nombre);
    }
    return nombres;
}

std::string ProyectoDe(const checks::UltimaCorrida& u)
{
    return u.titulo.empty() ? u.sello.nombre : u.sello.nombre + " - " + u.titulo;
}

std::vector<std::string> RenglonesDe(const checks::UltimaCorrida& u)
{
    return {"Proyecto: " + ProyectoDe(u), "Lluvia: " + u.sello.tormenta, "Corrida: " + Cuando(u),
            "Avisos: " + Avisos(u), "Huella: " + u.huella};
}

forms::Planilla ComoPlanilla(const dlgResumen& f)
{
    forms::Planilla planilla = forms::ALaVista(f.tblResumen);
    planilla.titulos = {std::string(TituloDlgResumen)};
    if (f.corrida != nullptr)
        for (std::string& renglon : RenglonesDe(*f.corrida))
            planilla.titulos.push_back(std::move(renglon));
    return planilla;
}

void OKButton(dlgResumen& f)
{
    f.abierta = false;
}

}  // namespace results
