// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/EscribaDeDiario.h"

#include <utility>

#include "model/Falla.h"

namespace shell {

EscribaDeDiario::EscribaDeDiario(model::Disco unDisco, std::string unaRuta)
    : disco(std::move(unDisco)), ruta(std::move(unaRuta))
{
}

EscribaDeDiario::~EscribaDeDiario()
{
    {
        const std::scoped_lock cierra(cerrojo);
        termina = true;
    }
    hayAlgo.notify_one();
    if (hilo.joinable()) hilo.join();
}

void EscribaDeDiario::Escribe(std::string bytes)
{
    Encarga({std::move(bytes)});
}

void EscribaDeDiario::Borra()
{
    Encarga({});
}

void EscribaDeDiario::Encarga(Pedido pedido)
{
    {
        const std::scoped_lock cierra(cerrojo);
        porHacer = std::move(pedido);
    }
    if (!hilo.joinable()) hilo = std::thread([this] { Trabaja(); });
    hayAlgo.notify_one();
}

bool EscribaDeDiario::Espera()
{
    std::unique_lock cierra(cerrojo);
    nadaQueda.wait(cierra, [this] { return !porHacer && !ocupado; });
    return bien;
}

bool EscribaDeDiario::Fallo() const
{
    const std::scoped_lock cierra(cerrojo);
    return !bien;
}

bool EscribaDeDiario::Cumple(const Pedido& pedido) const
{
    return model::Sentencia([&] {
        if (pedido.bytes)
            disco.Reemplaza({{ruta, *pedido.bytes}});
        else
            model::Sentencia([&] { disco.Borra(ruta); }, model::SalvoQueFalte);
    });
}

void EscribaDeDiario::Trabaja()
{
    std::unique_lock cierra(cerrojo);
    while (true) {
        hayAlgo.wait(cierra, [this] { return porHacer || termina; });
        if (!porHacer) return;
        const Pedido pedido = *std::exchange(porHacer, {});
        ocupado = true;
        cierra.unlock();
        const bool hecho = Cumple(pedido);
        cierra.lock();
        ocupado = false;
        bien = hecho;
        nadaQueda.notify_all();
    }
}

}  // namespace shell
