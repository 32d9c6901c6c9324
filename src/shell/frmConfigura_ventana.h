// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "shell/frmConfigura.h"

class QCheckBox;
class QComboBox;
class QFileSystemModel;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTreeView;

namespace forms {
class ListaParaElegir;
}

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
    QWidget* FichaDeImagen();
    void ColumnaDeDirectorios(QWidget& padre, QGridLayout& columnas);
    void ColumnaDeConfiguraciones(QWidget& padre, QGridLayout& columnas);
    void ColumnaDeImagenes(QWidget& padre, QGridLayout& columnas);
    QWidget* MarcoDeImagen(QWidget& padre);
    QWidget* MarcoDeDibujo(QWidget& padre);
    QWidget* MarcoDeOpciones(std::string_view pregunta, QWidget& padre);
    template <std::size_t N>
    QWidget* MarcoDeSeleccion(std::string_view titulo, char letra, const std::array<std::int16_t, N>& valores,
                              std::array<std::int16_t, N>& casillas);
    QLayout* Botones();

    /// A control takes its name, its caption and its hint from its row.
    template <typename T>
    T* Nombra(T* control, std::string_view nombre);
    QPushButton* Boton(std::string_view nombre, QWidget& padre, std::function<void()> rutina);
    QCheckBox* Casilla(std::string_view nombre, QWidget& padre, std::function<void(bool)> rutina);
    /// A label that reads before its control.
    QLabel* Rotulo(std::string_view nombre, QWidget& control);
    /// A row of a text field: its label, the field, and its hint where `conAyuda` says so.
    void Renglon(QGridLayout& grilla, QLineEdit* campo, std::string_view nombre,
                 std::string model::ControlesConfigura::*texto, bool conAyuda = false);
    /// A text that the record gives, with its label.
    QLabel* Dato(QGridLayout& grilla, QWidget& padre, std::string_view nombre);

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
    forms::ListaParaElegir *filArchivoConfigura = nullptr, *filArchivoImagenDib = nullptr;
    QLabel *lblDir1 = nullptr, *lblMiArchivoConf = nullptr, *lblnombreproyecto = nullptr,
           *lblImagenDibujo = nullptr, *lblAvisoImagen = nullptr;
    QPushButton* cmdTraeImagen = nullptr;
    QCheckBox *CheckDirNv = nullptr, *chkImagenDibujo = nullptr;
    QLineEdit* TextDirNv = nullptr;
    std::array<QRadioButton*, OpcionesConfigura.size()> opciones{};

    struct Texto {
        QLineEdit* campo;
        std::string model::ControlesConfigura::*texto;
    };
    struct Tilde {
        QCheckBox* casilla;
        const std::int16_t* valor;
    };
    std::vector<Texto> textos{};
    std::vector<Tilde> tildes{};
};

}  // namespace shell
