// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/Formulario_ventana.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSplitter;
class QTextBrowser;
class QUrl;

namespace shell {

/// The delivered pages of help: beside the page the contents, below it a search through all pages.
class Ayuda_ventana : public forms::Ventana {
  public:
    explicit Ayuda_ventana(forms::Entorno& alrededor, QWidget* padre = nullptr);
    /// Opens the window, or brings it to the front, at a page.
    void Abre(const std::string& ruta);
    using forms::Ventana::Muestra;
    void Muestra() override {}

  private:
    QBoxLayout* HazBotones();
    void PonTeclas();
    /// The links of the first page are the contents.
    void LlenaContenido();
    void MarcaContenido(const QUrl& pagina);
    /// Finds the text typed, from the selection on, in this page and in those behind it.
    void Busca(bool haciaAtras);

    QSplitter* Partes;
    QListWidget* Contenido;
    QTextBrowser* Paginas;
    QPushButton* cmdInicio;
    QPushButton* cmdAtras;
    QPushButton* cmdAdelante;
    QPushButton* cmdCerrar;
    QLineEdit* txtBuscar;
    QLabel* lblBusqueda;
};

}  // namespace shell
