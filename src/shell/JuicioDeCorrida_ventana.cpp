// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/JuicioDeCorrida_ventana.h"

#include <new>
#include <utility>

namespace shell {

namespace {

constexpr int TodosLosNucleos = 0;

}  // namespace

JuicioDeCorrida::~JuicioDeCorrida()
{
    const auto entrega = [](const Pedido& pedido, const Corrida& corrida) {
        if (pedido.luego && corrida != nullptr) pedido.luego(corrida);
    };
    if (!hilo.joinable()) return;
    hilo.join();
    entrega(enCurso, hecha);
    for (const Pedido& pedido : enEspera)
        if (pedido.luego) entrega(pedido, pedido.tarea());
}

void JuicioDeCorrida::Pide(const model::Siro& s, const model::Tormenta& entrada, bool completa, Luego luego)
{
    Encola({[copia = std::make_shared<const model::Siro>(s), entrada, completa] {
                return checks::UltimaCorrida::DeUna(*copia, entrada, completa);
            },
            std::move(luego)});
}

void JuicioDeCorrida::PideSerie(const model::Siro& s, Luego luego)
{
    Encola({[copia = std::make_shared<const model::Siro>(s)] {
                return checks::UltimaCorrida::DeSerie(*copia, TodosLosNucleos);
            },
            std::move(luego)});
}

void JuicioDeCorrida::Pon(Corrida corrida)
{
    Encola({[corrida = std::move(corrida)] { return corrida; }, {}});
}

void JuicioDeCorrida::Encola(Pedido pedido)
{
    if (!EnCurso()) return Empieza(std::move(pedido));
    std::erase_if(enEspera, [](const Pedido& otro) { return !otro.luego; });
    enEspera.push_back(std::move(pedido));
}

void JuicioDeCorrida::Empieza(Pedido pedido)
{
    enCurso = std::move(pedido);
    hecha = nullptr;
    hilo = std::thread([this] {
        try {
            hecha = enCurso.tarea();
        } catch (const std::bad_alloc&) {  // nothing is said of it then
        }
        QMetaObject::invokeMethod(
            this, [this] { Termina(); }, Qt::QueuedConnection);
    });
    AlCambiar();
}

void JuicioDeCorrida::Termina()
{
    hilo.join();
    const Corrida corrida = std::exchange(hecha, nullptr);
    const Luego luego = std::exchange(enCurso, {}).luego;
    if (luego && corrida != nullptr) luego(corrida);
    if (!enEspera.empty()) {
        Pedido siguiente = std::move(enEspera.front());
        enEspera.pop_front();
        return Empieza(std::move(siguiente));
    }
    ultima = corrida;
    AlCambiar();
}

}  // namespace shell
