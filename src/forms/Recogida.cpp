// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Recogida.h"

#include <string_view>

#include "model/Texto.h"

namespace forms {

bool Recogida::SeMuestra(const model::Mensaje& mensaje)
{
    if (mensajes < DeAUno) {
        ++mensajes;
        return true;
    }
    const auto [lugar, nuevo] = lugares.try_emplace({mensaje.titulo, mensaje.texto}, recogidos.size());
    if (nuevo)
        recogidos.push_back({mensaje});
    else
        ++recogidos[lugar->second].veces;
    return false;
}

std::vector<Recogido> Recogida::Saca()
{
    lugares.clear();
    return std::exchange(recogidos, {});
}

bool Recogida::OfreceTodas(const model::Mensaje& pregunta)
{
    return !pregunta.repetida.empty() && ++preguntas[pregunta.repetida] > DeAUno;
}

std::string ComoTexto(const std::vector<Recogido>& recogidos)
{
    constexpr std::string_view EntreLineas = " / ";
    std::string texto;
    for (const Recogido& r : recogidos) {
        if (r.veces > 1) texto += std::to_string(r.veces) + " veces: ";
        if (!r.mensaje.titulo.empty()) texto.append("[").append(r.mensaje.titulo).append("] ");
        for (std::size_t i = 0; i < r.mensaje.texto.size(); ++i) {
            const char c = r.mensaje.texto[i];
            if (c == '\r' && r.mensaje.texto.substr(i, 2) == model::SaltoLinea) continue;
            if (c == '\r' || c == '\n')
                texto += EntreLineas;
            else
                texto += c;
        }
        texto += model::SaltoLinea;
    }
    return texto;
}

}  // namespace forms
