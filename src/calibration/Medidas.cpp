// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Medidas.h"

#include <algorithm>
#include <array>

#include "calibration/Juicio.h"
#include "model/Clases.h"

namespace calibration {
namespace {

constexpr auto Clases = std::to_array<ClaseDeMedida>({
    {"pico", "Pico", "el pico", "m3/s"},
    {"tiempo", "Hora del pico", "la hora del pico", "min"},
    {"volumen", "Volumen", "el volumen", "m3"},
    {"nivel", "Nivel máximo", "el nivel máximo", "m"},
    {"puntaje", "Puntaje", "el puntaje", ""},
});

const ClaseDeMedida* ClaseDe(std::string_view clave)
{
    const auto* const i = std::ranges::find(Clases, clave, &ClaseDeMedida::clave);
    return i == Clases.end() ? nullptr : i;
}

std::string PonNivel(MedidaPuesta& m, const model::Red& red)
{
    const std::string& nombre = m.medida.componente;
    m.represa =
        nombre.empty() ? std::min<int>(1, red.NroRepresas()) : model::NumeroDe<model::Represa>(red, nombre);
    if (m.represa == 0)
        m.lago =
            nombre.empty() ? std::min<int>(1, red.NroLagos()) : model::NumeroDe<model::Lago>(red, nombre);
    if (m.represa > 0 || m.lago > 0) return {};
    return nombre.empty() ? "La red no tiene ninguna represa ni laguna cuyo nivel se pueda medir."
                          : "El nivel es de una represa o una laguna; " + nombre + " no lo es.";
}

std::string PonPuntaje(MedidaPuesta& m, const std::string& evento, std::span<const study::Evento> eventos)
{
    m.puntaje = PuntajeDe(m.medida.puntaje);
    if (m.puntaje == nullptr) return "No hay ningún puntaje \"" + m.medida.puntaje + "\".";
    m.unidad = m.puntaje->unidad;
    const auto cual = std::ranges::find(eventos, evento, &study::Evento::nombre);
    if (cual == eventos.end()) return "Un puntaje pide un evento con observaciones.";
    const auto& suyas = cual->observaciones;
    const auto obs = std::ranges::find_if(suyas, [&](const study::Observacion& o) {
        return m.medida.componente.empty() || o.componente == m.medida.componente;
    });
    if (obs == suyas.end())
        return "El evento " + evento + " no tiene observaciones" +
               (m.medida.componente.empty() ? "." : " de " + m.medida.componente + ".");
    m.observacion = EnCaudal(*obs);
    m.medida.componente = obs->componente;
    if (m.observacion.puntos.empty()) return "La observación de " + obs->componente + " no tiene caudales.";
    return {};
}

}  // namespace

std::span<const ClaseDeMedida> ClasesDeMedida()
{
    return Clases;
}

MedidaPuesta PonMedida(const study::Medida& medida, const runs::Modelo& modelo,
                       std::span<const study::Evento> eventos)
{
    MedidaPuesta m{.medida = medida};
    const ClaseDeMedida* const clase = ClaseDe(medida.que);
    const auto falla = [&m](std::string motivo) {
        m.motivo = std::move(motivo);
        return m;
    };
    if (clase == nullptr) return falla("No hay ninguna medida \"" + medida.que + "\".");
    const auto lluvia = medida.evento.empty()
                            ? modelo.lluvias.begin()
                            : std::ranges::find(modelo.lluvias, medida.evento, &runs::Lluvia::nombre);
    if (lluvia == modelo.lluvias.end())
        return falla(medida.evento.empty() ? "No hay ninguna tormenta que correr."
                                           : "No hay ningún evento " + medida.evento + " que se corra.");
    m.lluvia = static_cast<std::size_t>(lluvia - modelo.lluvias.begin());
    m.paso = lluvia->pasos.PasoQ;
    m.unidad = clase->unidad;
    if (!medida.componente.empty() && !EstaEnRed(modelo.red, medida.componente))
        return falla("La red no tiene ningún componente " + medida.componente + ".");
    if (medida.que == "nivel") m.motivo = PonNivel(m, modelo.red);
    if (medida.que == "puntaje") m.motivo = PonPuntaje(m, lluvia->nombre, eventos);
    m.nombre = std::string(clase->conLetra);
    if (m.puntaje != nullptr) m.nombre += " (" + std::string(m.puntaje->nombre) + ")";
    if (!m.medida.componente.empty()) m.nombre += " de " + m.medida.componente;
    return m;
}

namespace {

std::optional<double> NivelMaximo(const model::Matriz<float>& alturas, int numero, int pasos)
{
    if (!alturas.Alcanza(numero, pasos)) return {};
    const float* const h = alturas.Fila(numero);
    return *std::max_element(h, h + pasos + 1);
}

constexpr double SegundosPorMinuto = 60;

}  // namespace

std::optional<double> Mide(const MedidaPuesta& m, const engine::Calculo& calculo)
{
    const model::Resultados& r = calculo.Resultados;
    if (m.represa > 0) return NivelMaximo(r.HRepresa, m.represa, r.NroPasosQ);
    if (m.lago > 0) return NivelMaximo(r.HLago, m.lago, r.NroPasosQ);
    const SerieSimulada q = SalidaDe(calculo, m.medida.componente, m.paso);
    if (q.valores.empty()) return {};
    if (m.puntaje != nullptr) return m.puntaje->valor(Empareja(q, m.observacion, m.observacion.puntos).pares);
    const auto mayor = std::ranges::max_element(q.valores);
    if (m.medida.que == "pico") return *mayor;
    if (m.medida.que == "tiempo") return static_cast<double>(mayor - q.valores.begin()) * m.paso;
    double suma = 0;
    for (const float caudal : q.valores.subspan(1))
        suma += caudal;
    return suma * m.paso * SegundosPorMinuto;
}

}  // namespace calibration
