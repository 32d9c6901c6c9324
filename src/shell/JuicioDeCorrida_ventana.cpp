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
    if (hilo.joinable()) hilo.join();
}

void JuicioDeCorrida::Pide(const model::Siro& s, const model::Tormenta& entrada, bool completa)
{
    Empieza([copia = std::make_shared<const model::Siro>(s), entrada, completa] {
        return checks::UltimaCorrida::DeUna(*copia, entrada, completa);
    });
}

void JuicioDeCorrida::PideSerie(const model::Siro& s)
{
    Empieza([copia = std::make_shared<const model::Siro>(s)] {
        return checks::UltimaCorrida::DeSerie(*copia, TodosLosNucleos);
    });
}

void JuicioDeCorrida::Empieza(Tarea tarea)
{
    if (EnCurso()) {
        enEspera = std::move(tarea);
        return;
    }
    hilo = std::thread([this, tarea = std::move(tarea)] {
        Corrida corrida;
        try {
            corrida = tarea();
        } catch (const std::bad_alloc&) {  // nothing is said of it then
        }
        QMetaObject::invokeMethod(
            this, [this, corrida = std::move(corrida)] { Termina(corrida); }, Qt::QueuedConnection);
    });
    AlCambiar();
}

void JuicioDeCorrida::Termina(Corrida corrida)
{
    hilo.join();
    if (enEspera) return Empieza(std::exchange(enEspera, nullptr));
    ultima = std::move(corrida);
    AlCambiar();
}

}  // namespace shell
