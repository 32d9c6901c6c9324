// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Juicio.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "calibration/Observada.h"
#include "model/Clases.h"

namespace calibration {
namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();

double PerdidaDeEvento(const Puntaje& puntaje, const engine::Calculo& calculo, const model::Pasos& pasos,
                       const study::Evento& evento)
{
    double suma = 0, pesos = 0;
    for (const study::Observacion& o : evento.observaciones) {
        if (!(o.peso > 0)) continue;
        suma += o.peso * Perdida(puntaje, puntaje.valor(ParesDe(calculo, pasos, o).pares));
        pesos += o.peso;
    }
    return pesos > 0 ? suma / pesos : Infinito;
}

}  // namespace

bool EstaEnRed(const model::Red& red, std::string_view nombre)
{
    bool esta = false;
    model::CadaComponente(red, [&](const auto& c) { esta = esta || model::Nombre(c) == nombre; });
    return esta;
}

SerieSimulada SalidaDe(const engine::Calculo& calculo, std::string_view componente, double paso)
{
    const model::Resultados& r = calculo.Resultados;
    if (componente.empty()) {
        if (r.NroSalidas < 1) return {};
        componente = r.Salidas[1];
    }
    for (int fila = 1; fila <= r.NroComponentes && fila < static_cast<int>(r.Secuencia.size()); ++fila)
        if (r.Secuencia[static_cast<std::size_t>(fila)] == componente && r.QSale.Alcanza(fila, r.NroPasosQ))
            return {{r.QSale.Fila(fila), static_cast<std::size_t>(r.NroPasosQ) + 1}, paso};
    return {};
}

study::Observacion EnCaudal(study::Observacion o)
{
    o.puntos = ObservadaDe(o).puntos;
    o.magnitud = "caudal";
    return o;
}

Emparejados ParesDe(const engine::Calculo& calculo, const model::Pasos& pasos,
                    const study::Observacion& observacion)
{
    return Empareja(SalidaDe(calculo, observacion.componente, pasos.PasoQ), observacion, observacion.puntos);
}

Fallo CostoDe(const Puntaje& puntaje, const runs::Modelo& modelo, std::span<const study::Evento> eventos,
              std::span<const double> valores, runs::Corredor& corredor)
{
    double suma = 0, pesos = 0;
    for (std::size_t i = 0; i < eventos.size(); ++i) {
        const study::Evento& evento = eventos[i];
        if (evento.papel != "calibra" || !(evento.peso > 0)) continue;
        const engine::Calculo& calculo = corredor.Corre(valores, i);
        if (std::string motivo = runs::MotivoDe(calculo); !motivo.empty())
            return {Infinito, evento.nombre + ": " + motivo};
        suma += evento.peso * PerdidaDeEvento(puntaje, calculo, modelo.lluvias[i].pasos, evento);
        pesos += evento.peso;
    }
    return {pesos > 0 ? suma / pesos : Infinito, {}};
}

double PuntajeDeCosto(const Puntaje& puntaje, double costo)
{
    return puntaje.masEsMejor ? puntaje.mejor - costo : costo;
}

std::vector<std::string> ReparosDeEventos(const runs::Modelo& modelo, std::span<const study::Evento> eventos)
{
    std::vector<std::string> reparos;
    bool calibra = false;
    for (const study::Evento& e : eventos) {
        if (e.papel == "fuera") continue;
        bool pesa = false;
        for (const study::Observacion& o : e.observaciones) {
            if (!(o.peso > 0)) continue;
            if (!EstaEnRed(modelo.red, o.componente))
                reparos.push_back("El evento " + e.nombre + " tiene valores observados en " + o.componente +
                                  ", que no está en la red.");
            else if (o.puntos.empty())
                reparos.push_back("El evento " + e.nombre + " no tiene valores observados en " +
                                  o.componente + ".");
            else
                pesa = true;
        }
        calibra = calibra || (pesa && e.papel == "calibra" && e.peso > 0);
    }
    if (!calibra)
        reparos.emplace_back(
            "Ningún evento con valores observados tiene el papel de calibrar y un peso "
            "mayor que 0.");
    return reparos;
}

}  // namespace calibration
