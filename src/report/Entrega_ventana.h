// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Disco.h"
#include "report/Datos.h"
#include "report/Documento.h"
#include "report/Figuras_ventana.h"

// A memoria on its way into a file.
namespace report {

enum class Formato : std::uint8_t { Pdf, Odt, Html };

/// How a format is written in a command line and in names of files: "pdf".
std::string_view ClaveDe(Formato formato);

class Pdf;

/// Makes the file piece by piece, a page or a figure at a time, so that windows stay alive meanwhile. On the
/// thread of the windows.
class Entrega {
  public:
    struct Pedido {
        Datos datos{};
        Documento documento{};
        Formato formato = Formato::Pdf;
        char decimal = ',';
        results::FondoDeMapa fondo{};  ///< a null one: none
    };
    explicit Entrega(Pedido unPedido);
    ~Entrega();
    Entrega(const Entrega&) = delete;
    Entrega& operator=(const Entrega&) = delete;

    /// Makes a piece. Returns whether there are more.
    bool Adelanta();
    [[nodiscard]] std::size_t Hechas() const { return hechas; }
    [[nodiscard]] std::size_t Total() const { return total; }
    /// The file, once there are no more.
    std::string Bytes();

  private:
    void Prepara();
    void Dibuja();
    void Compone();

    const Pedido pedido;
    Figuras figuras;
    std::unique_ptr<Pdf> pdf;
    std::vector<Figura> pendientes{};  ///< to be measured or drawn, the last one first
    std::vector<std::pair<Figura, Imagen>> dibujadas{};
    bool enSvg = false;  ///< the last one of them has no PNG yet
    QImage fina{};       ///< that it is made of
    std::string texto{};
    std::size_t hechas = 0, total = 0;
};

/// Puts a file in place of another, whole or not at all, and clears what a program that was killed there has
/// left. Throws Falla 76, 75.
void EscribeEntera(const model::Disco& disco, const std::string& ruta, std::string bytes);

}  // namespace report
