// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "rainfall/dlgDisPpPer.h"
#include "rainfall/dlgPp.h"
#include "rainfall/dlgPpReal.h"
#include "rainfall/dlgTablaPpUEHs.h"
#include "rainfall/dlgTablasPDRs.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace forms {
class ListaParaElegir;
}

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
    void Muestra() override;

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
    QLayout* Validez(QWidget& padre);
    QWidget* MarcoDeLista();
    QWidget* MarcoDeTablas();
    QWidget* MarcoDeTormentaReal();
    QLayout* Botones();

    QGroupBox* Marco(std::string_view control);
    QLabel* Rotulo(std::string_view control, QWidget& padre);
    QPushButton* Boton(std::string_view control, QWidget& padre, std::function<void()> rutina);
    void Renglon(QGridLayout& grilla, std::string_view control, QWidget& campo);
    QComboBox* ListaConTextoDe(std::string_view control, QWidget& padre, std::string& texto);
    template <std::size_t N>
    void Opciones(std::string_view control, const std::array<std::string_view, N>& leyendas,
                  std::array<QRadioButton*, N>& opciones, QWidget& padre);
    void AlPulsarOpciones();
    void ConectaVentanas();
    void AbreOtra(const std::function<void()>& abre);
    /// Shows what the form opened from here has changed so far.
    void MuestraDetras();
    /// The control is shown as the record tells of `control`.
    template <typename T>
    T* Toma(std::string_view control, T* widget);

    struct Mostrado {
        std::string_view control;
        QWidget* widget;
    };

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

    std::vector<Mostrado> mostrados{};
    std::array<QRadioButton*, FormasPp.size()> optformaPp{};
    std::array<QRadioButton*, DistribucionesPp.size()> optDistriPp{};
    std::array<QRadioButton*, TablasPDR.size()> optTablaPDR{};
    QLineEdit *txtPp = nullptr, *txtDur = nullptr;
    QComboBox *cmbRec = nullptr, *cmbPDR = nullptr, *cmbPasoPp = nullptr, *cmbPasoQ = nullptr;
    forms::ListaParaElegir* FilePpReal = nullptr;
    QLabel *lblDurMin = nullptr, *lblDurMax = nullptr, *lblNumPer = nullptr, *lblMiFilePpReal = nullptr;
};

}  // namespace rainfall
