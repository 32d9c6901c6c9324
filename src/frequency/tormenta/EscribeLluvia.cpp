// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/EscribeLluvia.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "model/ArchivosTormenta.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace frequency {
namespace {

using model::Siro;

/// A state of its own over the same disk and folders, whose boxes are kept as text.
class Ensayo {
  public:
    explicit Ensayo(const Siro& original)
    {
        s.Disco = original.Disco;
        s.Proyecto.DirTrabajo = original.Proyecto.DirTrabajo;
        s.Proyecto.DirProyecto = original.Proyecto.DirProyecto;
        s.Anfitrion.Avisa = [this](const model::Mensaje& m) { dicho = m.texto; };
    }
    Ensayo(const Ensayo&) = delete;
    Ensayo& operator=(const Ensayo&) = delete;

    Siro s{};
    std::string dicho{};
};

/// The bytes of a file; none where it can't be read.
std::optional<std::string> Bytes(const Siro& s, const std::string& ruta)
{
    try {
        return s.Disco.Lee(ruta);
    } catch (const model::Falla&) {
        return {};
    }
}

std::string Texto(int n)
{
    return model::NumeroATexto(std::int32_t{n});
}

std::string Descripcion(const model::Falla& falla)
{
    return std::string(model::DescripcionFalla(falla.numero)) + ".";
}

/// One of the two files of tables: how it is read, kept and told.
struct Archivo {
    std::string_view nombre;
    bool (*lee)(Siro& s);
    bool (*guarda)(Siro& s);
    const char* destino;
};
constexpr Archivo DeTablas{model::ArchivoPDRs, model::LeeTablaPDRs, model::GuardaTablaPDRs, "Tabla P-D-R "};
constexpr Archivo DeDistribuciones{model::ArchivoDisPer, model::LeeTablaDisTemPer, model::GuardaTablaDisPer,
                                   "Distribución personal "};

std::string RutaDe(const Siro& s, const Archivo& archivo)
{
    return model::Ruta(s.Proyecto.DirTrabajo, archivo.nombre);
}

std::string NoSeLee(const std::string& ruta)
{
    return "No se puede leer " + ruta + " hasta su fin: no se escribe, para no perder lo que tiene.";
}

EnElArchivo Hay(const Siro& s, const Archivo& archivo, std::size_t k,
                std::string (*notas)(const model::TablasDeLluvia& t, std::size_t k))
{
    Ensayo ensayo(s);
    if (!archivo.lee(ensayo.s)) return {.error = NoSeLee(RutaDe(s, archivo))};
    const model::TablasDeLluvia& t = ensayo.s.TablasDeLluvia;
    return {.filas = t.NroFilasTabla.at(k), .notas = notas(t, k)};
}

/// Reads the file's tables, changes one and writes them all.
Escritura Escribe(const Siro& s, const Archivo& archivo, int k,
                  const std::function<void(model::TablasDeLluvia& t)>& cambia)
{
    Ensayo ensayo(s);
    const std::string ruta = RutaDe(s, archivo);
    const std::optional<std::string> antes = Bytes(s, ruta);
    if (!antes || !archivo.lee(ensayo.s)) return {.error = NoSeLee(ruta)};
    cambia(ensayo.s.TablasDeLluvia);
    if (!archivo.guarda(ensayo.s)) return {.error = "No se pudo escribir " + ruta + ". " + ensayo.dicho};
    const std::optional<std::string> despues = Bytes(s, ruta);
    if (!despues) return {.error = NoSeLee(ruta)};
    return {.cambio = {ruta, antes, *despues, archivo.destino + Texto(k)}};
}

/// Room for so many rows in the tables of a file, whatever they hold now.
std::int16_t TopeDe(const model::TablasDeLluvia& t)
{
    return model::Suma16(*std::max_element(t.NroFilasTabla.begin(), t.NroFilasTabla.end()), 1);
}

/// The notes of the storm with what was done to it behind them.
std::string NotasDeEscalada(const std::string& notas, const std::string& origen, double lamina, double factor)
{
    constexpr int Decimales = 2;
    return SinComillas(notas + (notas.empty() ? "" : ". ") + "Escalada a " +
                       model::NumeroATexto(model::Redondea(lamina, Decimales)) + " mm: las láminas de " +
                       origen + " por " + model::NumeroATexto(model::Redondea(factor, 2 * Decimales)));
}

std::string ErrorDeDestino(const std::string& destino)
{
    if (!destino.ends_with(model::TerminacionTormenta))
        return "El archivo de una tormenta termina en _pt.vlm: " + destino + ".";
    if (model::TormentaProtegida(destino))
        return destino + " es una de las tormentas entregadas, que no se reemplazan.";
    return {};
}

}  // namespace

EnElArchivo HayEnTabla(const Siro& s, int tabla)
{
    return Hay(s, DeTablas, static_cast<std::size_t>(tabla),
               [](const model::TablasDeLluvia& t, std::size_t k) { return t.NotasPDR.at(k); });
}

EnElArchivo HayEnDistribucion(const Siro& s, int distribucion)
{
    return Hay(s, DeDistribuciones, static_cast<std::size_t>(distribucion),
               [](const model::TablasDeLluvia& t, std::size_t k) { return t.NotasDisPer.at(k); });
}

Escritura EscribeTabla(const Siro& s, const PlanDeTabla& plan, int tabla)
{
    return Escribe(s, DeTablas, tabla, [&](model::TablasDeLluvia& t) {
        const auto k = static_cast<std::size_t>(tabla);
        t.NroFilasTabla.at(k) = static_cast<std::int16_t>(plan.filas.size());
        t.NotasPDR.at(k) = plan.notas;
        for (auto* matriz : {&t.TablasP, &t.TablasD, &t.TablasR})
            model::Ajusta(*matriz, 4, TopeDe(t));
        int j = 0;
        for (const FilaDeTormenta& fila : plan.filas) {
            ++j;
            t.TablasP(tabla, j) = fila.p;
            t.TablasD(tabla, j) = fila.d;
            t.TablasR(tabla, j) = fila.r;
        }
    });
}

Escritura EscribeDistribucion(const Siro& s, const PlanDeDistribucion& plan, int distribucion)
{
    return Escribe(s, DeDistribuciones, distribucion, [&](model::TablasDeLluvia& t) {
        const auto k = static_cast<std::size_t>(distribucion);
        t.NroFilasTabla.at(k) = static_cast<std::int16_t>(plan.porcentajes.size());
        t.NotasDisPer.at(k) = plan.notas;
        t.DurMinPer.at(k) = plan.durMin;
        t.DurMaxPer.at(k) = plan.durMax;
        model::Ajusta(t.DisPerso, 3, TopeDe(t));
        int j = 0;
        for (const std::int16_t porcentaje : plan.porcentajes)
            t.DisPerso(distribucion, ++j) = porcentaje;
    });
}

Grabada LeeGrabada(const Siro& s, const std::string& archivo)
{
    Ensayo ensayo(s);
    model::TormentaReal tormenta{.nombre = archivo};
    model::LeePpReal(ensayo.s, tormenta);
    const model::Tormenta& t = ensayo.s.Tormenta;
    Grabada g{.paso = double{1} * tormenta.PasoPpReal, .total = t.PpTormenta};
    for (int j = 1; j <= t.NroPpReal; ++j)
        g.laminas.push_back(t.PpReal(j));
    if (g.laminas.empty())
        g.error = "La tormenta " + tormenta.nombre + " no se puede leer, o no tiene intervalos.";
    else if (!(g.total > 0))
        g.error = "La tormenta " + tormenta.nombre + " no tiene lluvia.";
    return g;
}

Escritura EscalaGrabada(const Siro& s, const std::string& origen, const std::string& destino, double lamina)
{
    if (std::string error = ErrorDeDestino(destino); !error.empty()) return {.error = std::move(error)};
    if (!(lamina > 0)) return {.error = "La lámina debe ser mayor que 0."};
    if (const Grabada g = LeeGrabada(s, origen); !g.error.empty()) return {.error = g.error};
    Ensayo ensayo(s);
    model::TormentaReal tormenta{.nombre = origen};
    model::LeePpReal(ensayo.s, tormenta);
    const double factor = lamina / double{ensayo.s.Tormenta.PpTormenta};
    try {
        for (int j = 1; j <= ensayo.s.Tormenta.NroPpReal; ++j)
            ensayo.s.Tormenta.PpReal(j) = model::Simple(double{ensayo.s.Tormenta.PpReal(j)} * factor);
        tormenta.Notas = NotasDeEscalada(tormenta.Notas, origen, lamina, factor);
        tormenta.nombre = destino;
        const std::string ruta = model::Ruta(s.Proyecto.DirProyecto, destino);
        const std::optional<std::string> antes = Bytes(s, ruta);
        model::GuardaPpReal(ensayo.s, tormenta);
        return {.cambio = {ruta, antes, s.Disco.Lee(ruta), "Tormenta " + destino}};
    } catch (const model::Falla& falla) {
        return {.error = "No se pudo escribir " + destino + ": " + Descripcion(falla)};
    }
}

std::string Deshace(const Siro& s, const CambioDeLluvia& cambio)
{
    if (Bytes(s, cambio.ruta) != cambio.despues)
        return cambio.ruta + " ya no es como quedó: otro programa lo cambió, u otra ventana. No se deshace.";
    try {
        if (cambio.antes)
            s.Disco.Reemplaza({{cambio.ruta, *cambio.antes}});
        else
            s.Disco.Borra(cambio.ruta);
    } catch (const model::Falla& falla) {
        return "No se pudo deshacer " + cambio.ruta + ": " + Descripcion(falla);
    }
    return {};
}

}  // namespace frequency
