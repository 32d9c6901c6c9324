// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/dlgTaller.h"

class QStackedWidget;
class QTabBar;

namespace frequency {

/// Window of the rain workshop: the steps along its top, below them station and series in hand, then the page
/// of the step, or what it lacks.
class dlgTaller_ventana : public forms::Ventana {
  public:
    dlgTaller_ventana(forms::Entorno& alrededor, dlgTaller& registro, QWidget* padre = nullptr);

    /// Comes to the front.
    void Abre();
    using forms::Ventana::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    /// The pages, a line each, in the order of the steps.
    void PonPaginas();
    void Agrega(std::string_view titulo, PaginaDeTaller* pagina);
    QLayout* Encabezado();
    QLayout* EnMano();
    QLayout* Botones();
    [[nodiscard]] PaginaDeTaller& Pagina() const;
    [[nodiscard]] bool HayPagina() const;
    /// An event of the window's own: what is being typed in the page is taken first.
    void SucesoDePagina(const std::function<void()>& cuerpo);
    void VeAlPaso(int cual);

    dlgTaller& f;
    std::string falta{};
    QTabBar* pasos = nullptr;
    QStackedWidget* pila = nullptr;
    std::vector<PaginaDeTaller*> paginas{};
};

}  // namespace frequency
