// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "study/Pagina_ventana.h"
#include "study/Pasos.h"

class QStackedWidget;
class QTabBar;

namespace study {

/// A window with steps along its top, below them what is in hand, then the page of the step, or what it
/// lacks. A derived one hands in its pages with `Agrega`, in the order of the steps, and then lays it out
/// with `Arma`.
class Pasos_ventana : public forms::Ventana {
  public:
    Pasos_ventana(forms::Entorno& alrededor, Pasos& registro, const forms::DescripcionDeVentana& descripcion,
                  QWidget* padre = nullptr);

    /// Comes to the front.
    void Abre();
    using forms::Ventana::Muestra;
    void Muestra() override;

  protected:
    void Agrega(std::string_view titulo, Pagina* pagina);
    void Arma(const forms::Partes& enMano);
    /// A list of what can be had in hand.
    QComboBox* ListaEnMano(std::string_view control, const std::vector<std::string>& items, const int& cual,
                           const std::function<void(int)>& elige);
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    QLayout* Encabezado();
    QLayout* EnMano(const forms::Partes& enMano);
    QLayout* Botones();
    void PonAtajos();
    [[nodiscard]] Pagina& EnVista() const;
    [[nodiscard]] bool HayPagina() const;
    /// An event of the window's own: what is being typed in the page is taken first.
    void SucesoDePagina(const std::function<void()>& cuerpo);
    void VeAlPaso(int cual);

    Pasos& f;
    std::string titulo;
    std::string falta{};
    QTabBar* pasos = nullptr;
    QStackedWidget* pila = nullptr;
    std::vector<Pagina*> paginas{};
};

}  // namespace study
