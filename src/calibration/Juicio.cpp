// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Juicio.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

#include "calibration/Observada.h"
#include "model/Clases.h"

namespace calibration {
namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();

bool Esta(const model::Red& red, std::string_view componente)
{
    bool esta = false;
    model::CadaComponente(red, [&](const auto& c) { esta = esta || model::Nombre(c) == componente; });
    return esta;
}

int FilaDe(const model::Resultados& r, std::string_view componente)
{
    for (std::size_t fila = 1; fila <= static_cast<std::size_t>(r.NroComponentes); ++fila)
        if (fila < r.Secuencia.size() && r.Secuencia[fila] == componente) return static_cast<int>(fila);
    return 0;
}

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

study::Observacion EnCaudal(study::Observacion o)
{
    o.puntos = ObservadaDe(o).puntos;
    o.magnitud = "caudal";
    return o;
}

Emparejados ParesDe(const engine::Calculo& calculo, const model::Pasos& pasos,
                    const study::Observacion& observacion)
{
    const model::Resultados& r = calculo.Resultados;
    const int fila = FilaDe(r, observacion.componente);
    if (fila == 0 || !r.QSale.Alcanza(fila, r.NroPasosQ)) return {};
    const std::span<const float> caudales{r.QSale.Fila(fila), static_cast<std::size_t>(r.NroPasosQ) + 1};
    return Empareja({caudales, static_cast<double>(pasos.PasoQ)}, observacion, observacion.puntos);
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
            if (!Esta(modelo.red, o.componente))
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
