// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "shell/frmConfigura.h"

class QFileSystemModel;
class QTabWidget;
class QTreeView;

namespace shell {

/// The configuration dialog. It lives as long as the program, on screen or not.
class frmConfigura_ventana : public forms::Formulario {
  public:
    frmConfigura_ventana(forms::Entorno& alrededor, frmConfigura& registro, QWidget* padre = nullptr);

    /// Opens the dialog and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where
    /// the program was ended meanwhile.
    void Abre();
    /// Opens the dialog beside the other windows, or brings it to the front.
    void AbreSinEsperar();
    void Muestra() override;

  protected:
    void AlCerrar() override;
    bool SinAplicar() override { return shell::SinAplicar(f, entorno.s); }

  private:
    QWidget* FichaDeArchivos();
    QWidget* FichaDeTitulos();
    QWidget* FichaDeSelecciones();
    void PonDeshacer(QWidget& ficha);
    QWidget* FichaDeImagen();
    std::array<forms::Parte, 3> ColumnaDeDirectorios();
    std::array<forms::Parte, 3> ColumnaDeConfiguraciones();
    std::array<forms::Parte, 3> ColumnaDeImagenes();
    QWidget* MarcoDeOpciones(std::string_view pregunta);
    template <std::size_t N>
    QWidget* MarcoDeSeleccion(std::string_view titulo, char letra, const std::array<std::int16_t, N>& valores,
                              std::array<std::int16_t, N>& casillas, QPushButton* boton);
    QLayout* Botones();

    QLineEdit* CampoDe(std::string_view nombre, std::string& texto);
    QCheckBox* CasillaDe(std::string_view nombre, std::int16_t& valor);
    QLabel* Ruta(std::string_view nombre, const std::string& texto, bool comoAyuda = false);
    /// A number field between its caption and its hint; the frame of several.
    forms::Partes RenglonConAyuda(std::string_view nombre, std::string& texto);
    QGroupBox* MarcoDeNumeros(std::string_view titulo, const std::vector<forms::Partes>& filas);

    void EmpiezaAbertura();
    void PonDirectorios();
    void EligeDirectorio(const QString& ruta);
    void MuestraDirectorio();
    void MuestraFichas();

    frmConfigura& f;
    model::ControlesConfigura& c;
    QTabWidget* SSTab1 = nullptr;
    QComboBox* Drive1 = nullptr;
    QTreeView* Dir1 = nullptr;
    QFileSystemModel* directorios = nullptr;  ///< made at the first opening
};

}  // namespace shell
