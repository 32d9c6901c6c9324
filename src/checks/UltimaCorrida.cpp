// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/UltimaCorrida.h"

#include <utility>

#include "checks/AvisosDeCorrida.h"
#include "checks/AvisosDeSerie.h"
#include "checks/Huella.h"
#include "model/Siro.h"

namespace checks {

using engine::FinCalculo;

UltimaCorrida::UltimaCorrida(const model::Siro& s)
    : sello(SelloDe(s)),
      titulo(s.Configuracion.TituloProyecto),
      cuando(s.Anfitrion.FechaHora()),
      red(s.Red),
      pasos(s.Pasos),
      tablas(s.TablasDeLluvia)
{
}

std::shared_ptr<const UltimaCorrida> UltimaCorrida::DeUna(const model::Siro& s,
                                                          const model::Tormenta& entrada, bool completa)
{
    const std::shared_ptr<UltimaCorrida> u(new UltimaCorrida(s));
    u->entrada = entrada;
    if (entrada.PpTormenta == 0 || entrada.DurTormenta == 0)
        u->calculo = {FinCalculo::Rechazado, {{{"La lámina o la duración de la tormenta es 0"}}}, {}, {}, {}};
    else
        u->calculo = engine::Calcula(s.Red, entrada, s.Pasos, s.TablasDeLluvia);
    if (completa) {
        // Whoever was asked may have answered otherwise: what counts is what is on show.
        u->calculo.fin = FinCalculo::Completo;
        u->calculo.Resultados = s.Resultados;
        u->calculo.Tormenta = s.Tormenta;
        u->calculo.Hietograma = s.Hietograma;
    } else if (u->calculo.fin == FinCalculo::Completo) {
        u->calculo.fin = FinCalculo::Rechazado;
    }
    u->corrido.emplace(u->red, u->entrada, u->pasos, u->calculo);
    if (u->corrido->TieneResultados()) u->balance = BalanceDe(*u->corrido);
    const auto busca = [&u = *u] {
        engine::Memoria memoria;
        return *(u.tiempo = TiempoQueAlcanza(u.red, u.entrada, u.pasos, u.tablas, memoria));
    };
    for (HallazgoMedido& h : BuscaAvisos(*u->corrido, u->balance.value_or(Balance{}), busca))
        u->avisos.push_back(std::move(h.hallazgo));
    OrdenaPorGravedad(u->avisos);
    u->huella = HuellaDeCorrida(u->red, u->entrada, u->pasos, u->tablas, u->calculo.Resultados);
    return u;
}

std::shared_ptr<const UltimaCorrida> UltimaCorrida::DeSerie(const model::Siro& s, int hilos,
                                                            VigiaDeSerie* vigia)
{
    const std::shared_ptr<UltimaCorrida> u(new UltimaCorrida(s));
    u->esSerie = true;
    u->entrada = s.Tormenta;
    u->serie = s.Serie;
    u->calculo.Resultados = s.Resultados;
    u->avisos = vigia != nullptr ? vigia->Avisos(hilos) : AvisosDeSerie(s, hilos);
    u->corridas = TormentasDeSerie(s).numeros;
    u->huella = HuellaDeSerie(s, u->corridas);
    return u;
}

}  // namespace checks
