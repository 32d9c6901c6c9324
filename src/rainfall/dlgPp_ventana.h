// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <memory>

#include "forms/Formulario_ventana.h"
#include "rainfall/dlgDisPpPer.h"
#include "rainfall/dlgPp.h"
#include "rainfall/dlgPpReal.h"
#include "rainfall/dlgTablaPpUEHs.h"
#include "rainfall/dlgTablasPDRs.h"

namespace rainfall {

class dlgDisPpPer_ventana;
class dlgPpReal_ventana;
class dlgTablaPpUEHs_ventana;
class dlgTablasPDRs_ventana;

/// The storm dialog. The record outlives it and serves as its hidden instance.
class dlgPp_ventana : public forms::Formulario {
  public:
    dlgPp_ventana(forms::Entorno& alrededor, dlgPp& registro, QWidget* padre = nullptr);
    ~dlgPp_ventana() override;

    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();

    /// What the shell opens for the form.
    std::function<void(const PedidoHietograma&)> AbreHietograma = [](const PedidoHietograma&) {};
    /// The forms opened from here. Each returns once its window is closed.
    std::function<void()> AbreDisPer;      ///< personal distributions
    std::function<void()> AbreTablasPDRs;  ///< P-D-R tables
    std::function<void()> AbrePpReal;      ///< real storms
    std::function<void()> AbrePpUEHs;      ///< rainfall of each UEH

  protected:
    void AlCerrar() override;
    bool SinAplicar() override { return rainfall::SinAplicar(f, entorno.s); }

  private:
    // Each makes a part of the form, with its events.
    QWidget* MarcoDeFormas();
    QWidget* MarcoDeTormenta();
    QWidget* MarcoDePasos();
    QWidget* MarcoDeDistribuciones();
    QLayout* Validez();
    QWidget* MarcoDeLista();
    QWidget* MarcoDeTablas();
    QWidget* MarcoDeTormentaReal();
    QLayout* Botones();

    /// What a control shows of itself, and with it its options and the label of a field.
    void SigueEstados();
    void ConectaVentanas();
    void AbreOtra(const std::function<void()>& abre);
    /// Shows what the form opened from here has changed so far.
    void MuestraDetras();

    dlgPp& f;
    // The forms opened from here and their windows, each made at its first use.
    dlgDisPpPer disPer{};
    dlgTablasPDRs tablasPDRs{};
    dlgPpReal ppReal{};
    dlgTablaPpUEHs ppUEHs{};
    std::unique_ptr<dlgDisPpPer_ventana> ventanaDisPer;
    std::unique_ptr<dlgTablasPDRs_ventana> ventanaTablasPDRs;
    std::unique_ptr<dlgPpReal_ventana> ventanaPpReal;
    std::unique_ptr<dlgTablaPpUEHs_ventana> ventanaPpUEHs;

    std::array<QRadioButton*, FormasPp.size()> optformaPp{};
};

}  // namespace rainfall
