// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QSizeF>
#include <string>
#include <vector>

#include "report/Documento.h"
#include "report/Figuras_ventana.h"
#include "report/Piezas_ventana.h"

namespace report {

/// A document set in pages: what stands on each, and where. Sizes are in dots of 1440 to the inch.
class Maqueta {
  public:
    /// Sets it; draws no figure. Document and figures must outlive it.
    Maqueta(const Documento& documento, Figuras& figuras);

    [[nodiscard]] int Paginas() const { return static_cast<int>(paginas.size()); }
    [[nodiscard]] bool Apaisada(int pagina) const { return De(pagina).apaisada; }
    [[nodiscard]] QSizeF Tamano(int pagina) const;
    /// Paints a page, from 0, with its upper left corner at the painter's origin.
    void Pinta(int pagina, QCPPainter& pintor) const;

    /// A heading, and where it stands; `y` from the top of the page.
    struct LugarDeTitulo {
        std::string texto{};
        int nivel = 1;
        int pagina = 0;
        double y = 0;
    };
    [[nodiscard]] const std::vector<LugarDeTitulo>& Titulos() const { return titulos; }
    /// A line of the table of contents, and the heading that it leads to.
    struct Enlace {
        int pagina = 0;
        QRectF caja{};
        int titulo = 0;
    };
    [[nodiscard]] const std::vector<Enlace>& Enlaces() const { return enlaces; }

  private:
    struct Puesta {
        const Pieza* pieza;
        double y;  ///< from the margin
    };
    struct Pagina {
        bool apaisada = false;
        std::vector<Puesta> puestas{};
    };
    [[nodiscard]] const Pagina& De(int pagina) const { return paginas[static_cast<std::size_t>(pagina)]; }

    void Agrega(const Portada& b);
    void Agrega(const Indice& b);
    void Agrega(const Titulo& b);
    void Agrega(const Parrafo& b);
    void Agrega(const Lista& b);
    void Agrega(const Formula& b);
    void Agrega(const Tabla& b);
    void Agrega(const FiguraPuesta& b);
    void Agrega(const SaltoDePagina& b);
    void AgregaRenglonDeIndice(const Titulo& b, int cual);
    void PintaPortada(QCPPainter& pintor, const Portada& b) const;
    void PintaLogo(QCPPainter& pintor) const;
    void PintaBordes(QCPPainter& pintor, int pagina) const;

    void Reparte();
    void Coloca(const Pieza& pieza);
    void NuevaPagina(bool apaisada);
    [[nodiscard]] double AltoDeCadena(std::size_t desde) const;
    [[nodiscard]] double Ancho(bool apaisada = false) const;
    [[nodiscard]] double Alto(bool apaisada = false) const;

    const Documento& d;
    Figuras& figuras;
    Piezas piezas{};
    bool salta = false;  ///< the next piece begins a page
    std::vector<Pagina> paginas{};
    double y = 0;  ///< of the next piece on the last page
    std::vector<LugarDeTitulo> titulos{};
    std::vector<Enlace> enlaces{};
};

}  // namespace report
