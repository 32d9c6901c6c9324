// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "editor/fichas/FichaEmbalse.h"
#include "editor/fichas/Ficha_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

/// What the windows of the Represas and of the Lagos have alike.
template <typename Forma>
class FichaEmbalse_ventana : public Ficha_ventana<Forma> {
  public:
    using Ficha_ventana<Forma>::Ficha_ventana;

    /// Opens the table of the component in hand and comes back when that form is closed.
    std::function<void(PedidoFicha)> AbreTabla = [](PedidoFicha) {};

  protected:
    using Base = Ficha_ventana<Forma>;
    using Base::entorno;
    using Base::f;

    /// Lines of text that tell one component, and the names of their controls.
    struct ControlesDeIdentidad {
        std::string_view lblNumero, lblNombre, txtNombre;
        std::string &numero, &nombre, &texto;
    };

    void Identidad(QGridLayout& grilla, const ControlesDeIdentidad& c, std::function<void()> cambia)
    {
        this->Dato(grilla, c.lblNumero, c.numero);
        this->Dato(grilla, c.lblNombre, c.nombre);
        this->CampoNombre(grilla, c.txtNombre, c.texto, std::move(cambia), this->Sale(c.txtNombre));
        Tablas(grilla);
    }

    /// Under the name, while there is something to say: what a rename has done to the tables, and the key
    /// that takes them along.
    void Tablas(QGridLayout& grilla)
    {
        QLabel* const linea = this->Texto("lblTablas", f.lblTablas);
        linea->setWordWrap(true);
        QPushButton* const lleva = this->Boton("cmdLlevaTablas", [this] { cmdLlevaTablas(f, entorno.s); });
        lleva->setToolTip(forms::Q(AyudaLlevaTablas));
        auto* const fila = new QHBoxLayout;
        fila->addWidget(linea, 1);
        fila->addWidget(lleva);
        grilla.addLayout(fila, grilla.rowCount(), 0, 1, -1);
        this->AlMostrar([this, linea, lleva] {
            linea->setVisible(!f.lblTablas.empty());
            lleva->setVisible(!f.tablasDe.empty());
        });
    }

    /// `actual`: label of the destination in force, where the form has one.
    void Destinos(QGridLayout& grilla, std::string_view controlActual = {},
                  const std::string* actual = nullptr)
    {
        constexpr int Lineas = 5;
        this->RenglonDeLista(grilla, {"lstCauceAA", f.lstCauceAA, Lineas, controlActual, actual},
                             [this](int linea) { lstCauceAA_Click(f, entorno.s, linea); });
    }

    void Metodo(QGridLayout& grilla)
    {
        constexpr int Lineas = static_cast<int>(MetodosEmbalse.size());
        this->RenglonDeLista(grilla, {"lstMetodo", f.lstMetodo, Lineas, "lblMetodo", &f.lblMetodo, true},
                             [this](int linea) { lstMetodo_Click(f, linea); });
    }

    /// A coefficient of Muskingum's behind the label that tells it, both from the record; the field shows
    /// with that method alone. `letra`: what a reader of the screen says of it.
    template <typename Campos>
    void Coeficiente(QBoxLayout& fila, const Campos& tabla, std::string_view control,
                     std::pair<std::string_view, const std::string&> rotulo, char letra)
    {
        QLabel* const leyenda = this->Texto(rotulo.first, rotulo.second);
        QLineEdit* const campo = this->NumeroSuelto(tabla, control);
        leyenda->setBuddy(campo);
        ConservaLugar(*campo);
        this->AlMostrar([this, campo] { campo->setVisible(f.MuskingumVisible()); });
        campo->setAccessibleName(QString(QLatin1Char(letra)));
        fila.addWidget(leyenda);
        fila.addWidget(campo, 1);
    }

    void AlturaInicial(QGridLayout& grilla)
    {
        QLineEdit* const campo = this->Campo("txtHInicialEmb", f.txtHInicialEmb);
        this->EsNumero(*campo, this->Sale("txtHInicialEmb"));
        this->Renglon(grilla, "txtHInicialEmb", *campo, ReglaHInicialEmb.unidad);
    }
};

}  // namespace editor
