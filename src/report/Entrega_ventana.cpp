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
    for (const Bloque& bloque : pedido.documento.bloques)
        if (const auto* f = std::get_if<FiguraPuesta>(&bloque)) pendientes.push_back(f->figura);
    std::reverse(pendientes.begin(), pendientes.end());
    total = (pedido.formato == Formato::Odt ? 3 : 1) * pendientes.size() + 1;
}

Entrega::~Entrega() = default;

bool Entrega::Adelanta()
{
    if (hechas >= total) return false;
    if (pedido.formato == Formato::Pdf)
        Prepara();
    else if (!pendientes.empty() || enSvg)
        Dibuja();
    else
        Compone();
    return ++hechas < total;
}

/// How large the figures are comes first, then where all stands, then page by page.
void Entrega::Prepara()
{
    if (!pendientes.empty()) {
        figuras.Tamano(pendientes.back());
        pendientes.pop_back();
    } else if (pdf == nullptr) {
        pdf = std::make_unique<Pdf>(pedido.documento, figuras);
        total += static_cast<std::size_t>(pdf->Paginas());
    } else {
        pdf->Adelanta();
    }
}

/// One manner of a figure. An HTML page has no use for the second one.
void Entrega::Dibuja()
{
    if (enSvg && fina.isNull()) {
        fina = figuras.Fina(dibujadas.back().first);
        enSvg = !fina.isNull();
        if (!enSvg) ++hechas;  // nothing to draw, nothing to press
        return;
    }
    if (enSvg) {
        dibujadas.back().second.png = Figuras::Png(std::exchange(fina, {}));
        enSvg = false;
        return;
    }
    const Figura& figura = pendientes.back();
    const QSizeF tamano = figuras.Tamano(figura);
    dibujadas.emplace_back(figura, Imagen{figuras.Svg(figura), {}, tamano.width(), tamano.height()});
    pendientes.pop_back();
    enSvg = pedido.formato == Formato::Odt;
}

void Entrega::Compone()
{
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
