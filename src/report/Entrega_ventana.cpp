// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Entrega_ventana.h"

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

#include "model/CambioArchivo.h"
#include "model/Camino.h"
#include "model/Falla.h"
#include "report/Html.h"
#include "report/Odt.h"
#include "report/Pdf_ventana.h"

namespace report {

std::string_view ClaveDe(Formato formato)
{
    constexpr std::array<std::string_view, 3> Claves{"pdf", "odt", "html"};
    return Claves[static_cast<std::size_t>(formato)];
}

Entrega::Entrega(Pedido unPedido)
    : pedido(std::move(unPedido)), figuras(pedido.datos, pedido.decimal, pedido.fondo)
{
    if (pedido.formato == Formato::Pdf) {
        pdf = std::make_unique<Pdf>(pedido.documento, figuras);
        total = static_cast<std::size_t>(pdf->Paginas());
        return;
    }
    for (const Bloque& bloque : pedido.documento.bloques)
        if (const auto* f = std::get_if<FiguraPuesta>(&bloque)) pendientes.push_back(f->figura);
    std::reverse(pendientes.begin(), pendientes.end());
    total = pendientes.size() + 1;
}

Entrega::~Entrega() = default;

bool Entrega::Adelanta()
{
    if (hechas >= total) return false;
    if (pdf != nullptr)
        pdf->Adelanta();
    else
        Dibuja();
    return ++hechas < total;
}

/// A figure, or behind the last one the text around them.
void Entrega::Dibuja()
{
    if (!pendientes.empty()) {
        dibujadas.emplace_back(pendientes.back(), figuras.Dibuja(pendientes.back()));
        pendientes.pop_back();
        return;
    }
    const Dibujante dibujante = [this](const Figura& figura) {
        const auto hallada = std::find_if(dibujadas.begin(), dibujadas.end(),
                                          [&](const auto& una) { return una.first == figura; });
        return hallada == dibujadas.end() ? Imagen{} : hallada->second;
    };
    texto =
        pedido.formato == Formato::Odt ? Odt(pedido.documento, dibujante) : Html(pedido.documento, dibujante);
}

std::string Entrega::Bytes()
{
    return pdf != nullptr ? pdf->Bytes() : std::move(texto);
}

void EscribeEntera(const model::Disco& disco, const std::string& ruta, std::string bytes)
{
    model::Sentencia([&] { disco.Recupera(model::DirectorioDe(ruta)); });
    disco.Reemplaza({{ruta, std::move(bytes)}});
}

}  // namespace report
