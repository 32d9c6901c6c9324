// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <utility>

#include "frequency/Cifras.h"
#include "frequency/taller/TallerTormenta.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Configuracion.h"
#include "model/Siro.h"

namespace frequency {
namespace {

constexpr double Cien = 100;

bool Pregunta(const model::Siro& s, std::string texto, std::string titulo)
{
    return s.Anfitrion.Pregunta({std::move(texto), std::move(titulo), model::Icono::Pregunta});
}

std::string Renglones(const std::vector<std::string>& avisos)
{
    std::string t;
    for (const std::string& aviso : avisos)
        t += "\n• " + aviso;
    return t;
}

/// "La tabla P-D-R 2 tiene 140 tormentas ("Vieja")".
std::string LoQueHay(const std::string& que, const EnElArchivo& hay, const char* filas)
{
    if (hay.filas == 0) return que + " está vacía.";
    return que + " tiene " + std::to_string(hay.filas) + filas +
           (hay.notas.empty() ? "" : " (" + hay.notas + ")") + ", que se reemplazan.";
}

/// Keeps what was written for the way back and for the report, or says why nothing was.
void Anota(TallerTormenta& m, dlgTaller& f, const model::Siro& s, Escritura escritura,
           const std::string& origen)
{
    if (!escritura.error.empty()) return model::Advierte(s, escritura.error);
    const std::string destino = escritura.cambio.destino;
    m.escrituras.push_back(std::move(escritura.cambio));
    m.escrito = "Se escribió: " + destino + ".";
    Cambia(f, "Anotar " + destino, [&](study::Taller& t) {
        t.derivados.push_back({.fecha = s.Anfitrion.FechaHora(), .destino = destino, .origen = origen});
    });
    Toma(m, f, s);
}

/// A run of a series goes through the rows that the file holds.
void RecargaSerie(model::Siro& s, int tabla)
{
    if (s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR && s.Tormenta.TablaPDR == tabla)
        model::LeeTablaPDRs(s);
}

std::vector<std::int16_t> Tildadas(const std::vector<std::int16_t>& lista)
{
    return lista.empty() ? lista : std::vector<std::int16_t>(lista.begin() + 1, lista.end());
}

PedidoDeTabla PedidoDe(const TallerTormenta& m, const model::Siro& s)
{
    PedidoDeTabla pedido{.lamina = m.fuentes.curvas, .notas = OrigenDeTabla(m.fuentes)};
    if (!m.chkConfigura) return pedido;
    pedido.duraciones = Tildadas(s.Configuracion.ListaDur);
    pedido.recurrencias = Tildadas(s.Configuracion.ListaRec);
    return pedido;
}

std::string Redondeo(const PlanDeTabla& plan)
{
    return "El redondeo a mm enteros cambia a lo más " + Con(Cien * plan.desvio, 1) + " %: la de " +
           std::to_string(plan.peor.d) + " min y " + std::to_string(plan.peor.r) + " años, " +
           Con(plan.peor.exacta, 2) + " mm, queda en " + std::to_string(plan.peor.p) + ".";
}

/// The depth that a recorded storm is brought to: as typed, or that of the curves for its own duration.
double LaminaParaEscalar(const TallerTormenta& m, const study::TormentaDeDiseno& t, const Grabada& g)
{
    if (t.lamina) return *t.lamina;
    return m.fuentes.curvas ? m.fuentes.curvas(g.paso * static_cast<double>(g.laminas.size()), t.recurrencia)
                            : 0;
}

std::string NombrePropuesto(const std::string& archivo, double lamina)
{
    return archivo.substr(0, archivo.size() - model::TerminacionTormenta.size()) + " " + Con(lamina, 0) +
           " mm";
}

}  // namespace

void cmdLlenar(TallerTormenta& m, dlgTaller& f, model::Siro& s)
{
    const int k = TallerDe(f).tormenta.tabla;
    if (!m.fuentes.curvas) return model::Advierte(s, "Faltan las curvas: hágalas en el paso 4.");
    const PlanDeTabla plan = PlaneaTabla(PedidoDe(m, s));
    if (!plan.error.empty()) return model::Advierte(s, plan.error);
    const EnElArchivo hay = HayEnTabla(s, k);
    if (!hay.error.empty()) return model::Advierte(s, hay.error);
    const std::string que = "La tabla P-D-R " + std::to_string(k);
    if (!Pregunta(s,
                  LoQueHay(que, hay, " tormentas") + " Es de todos los proyectos. ¿La llena con " +
                      std::to_string(plan.filas.size()) + " tormentas?\n\n" + Redondeo(plan) +
                      Renglones(plan.avisos),
                  "Llenar tabla P-D-R"))
        return;
    Anota(m, f, s, EscribeTabla(s, plan, k), plan.notas);
    RecargaSerie(s, k);
}

void cmdEscribir(TallerTormenta& m, dlgTaller& f, model::Siro& s)
{
    const int k = TallerDe(f).tormenta.distribucion;
    const Diseno& d = m.diseno;
    if (!d.error.empty()) return model::Advierte(s, d.error);
    const EnElArchivo hay = HayEnDistribucion(s, k);
    if (!hay.error.empty()) return model::Advierte(s, hay.error);
    const std::string que = "La distribución personal " + std::to_string(k);
    if (!Pregunta(s,
                  LoQueHay(que, hay, " períodos") + " Es de todos los proyectos. ¿La escribe con " +
                      std::to_string(d.plan.porcentajes.size()) + " períodos?\n\nEn porcentajes enteros, " +
                      TextoDelRedondeo(d) + "." + Renglones(d.avisos),
                  "Escribir distribución"))
        return;
    Anota(m, f, s, EscribeDistribucion(s, d.plan, k), d.origen);
}

void cmdEscalar(TallerTormenta& m, dlgTaller& f, model::Siro& s)
{
    const study::TormentaDeDiseno& t = TallerDe(f).tormenta;
    if (t.archivo.empty()) return model::Advierte(s, "Elija antes la tormenta registrada.");
    const Grabada g = LeeGrabada(s, t.archivo);
    if (!g.error.empty()) return model::Advierte(s, g.error);
    const double lamina = LaminaParaEscalar(m, t, g);
    if (!(lamina > 0)) return model::Advierte(s, "Falta la lámina: escríbala, o haga las curvas del paso 4.");
    std::string nombre =
        s.Anfitrion.PideTexto({t.archivo + " tiene " + Con(g.total, 1) + " mm; llevada a " + Con(lamina, 1) +
                                   " mm (por " + Con(lamina / g.total, 3) + "), ¿con qué nombre se escribe?",
                               "Escalar tormenta registrada", NombrePropuesto(t.archivo, lamina)});
    if (nombre.empty()) return;
    if (!nombre.ends_with(model::TerminacionTormenta)) nombre = model::ArchivoTormentaNueva(nombre);
    const bool esta = std::find(m.archivos.begin(), m.archivos.end(), nombre) != m.archivos.end();
    if (esta && !Pregunta(s, "La tormenta " + nombre + " ya está en el proyecto. ¿La reemplaza?",
                          "Escalar tormenta registrada"))
        return;
    const std::string origen =
        t.archivo + " por " + Con(lamina / g.total, 4) + ", a " + Con(lamina, 1) + " mm" +
        (t.lamina ? "" : ", recurrencia " + TextoDe(t.recurrencia) + " años, de " + m.fuentes.deDonde);
    Anota(m, f, s, EscalaGrabada(s, t.archivo, nombre, lamina), origen);
}

void cmdDeshacerEscritura(TallerTormenta& m, dlgTaller& f, model::Siro& s)
{
    if (m.escrituras.empty()) return;
    const CambioDeLluvia& ultima = m.escrituras.back();
    const std::string destino = ultima.destino;
    if (!Pregunta(s, "¿Devuelve a " + ultima.ruta + " lo que tenía antes de escribir: " + destino + "?",
                  "Deshacer lo escrito"))
        return;
    if (const std::string error = Deshace(s, ultima); !error.empty()) return model::Advierte(s, error);
    m.escrituras.pop_back();
    m.escrito = "Se deshizo: " + destino + ".";
    Cambia(f, "Quitar la nota de " + destino, [&](study::Taller& t) {
        const auto nota = std::find_if(t.derivados.rbegin(), t.derivados.rend(),
                                       [&](const study::Derivado& d) { return d.destino == destino; });
        if (nota != t.derivados.rend()) t.derivados.erase(std::next(nota).base());
    });
    RecargaSerie(s, s.Tormenta.TablaPDR);
    Toma(m, f, s);
}

}  // namespace frequency
