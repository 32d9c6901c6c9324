// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/fichas/FichaEmbalse.h"
#include "editor/fichas/Ficha_ventana.h"

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

    std::vector<forms::Partes> Identidad(const ControlesDeIdentidad& c, std::function<void()> cambia)
    {
        return {this->Dato(c.lblNumero, c.numero),
                this->Dato(c.lblNombre, c.nombre),
                this->CampoNombre(c.txtNombre, c.texto, std::move(cambia), this->Sale(c.txtNombre)),
                {Tablas()}};
    }

    /// Under the name, while there is something to say: what a rename has done to the tables, and the key
    /// that takes them along.
    QLayout* Tablas()
    {
        QLabel* const linea = this->Texto("lblTablas", f.lblTablas);
        linea->setWordWrap(true);
        QPushButton* const lleva = this->Boton("cmdLlevaTablas", [this] { cmdLlevaTablas(f, entorno.s); });
        lleva->setToolTip(forms::Q(AyudaLlevaTablas));
        this->VisibleSi(linea, [this] { return !f.lblTablas.empty(); });
        this->VisibleSi(lleva, [this] { return !f.tablasDe.empty(); });
        return this->EnFila({{linea, 1}, lleva});
    }

    /// `actual`: label of the destination in force, where the form has one.
    forms::Partes Destinos(std::string_view controlActual = {}, const std::string* actual = nullptr)
    {
        constexpr int Lineas = 5;
        return this->RenglonDeLista({"lstCauceAA", f.lstCauceAA, Lineas, controlActual, actual},
                                    [this](int linea) { lstCauceAA_Click(f, entorno.s, linea); });
    }

    forms::Partes Metodo()
    {
        constexpr int Lineas = static_cast<int>(MetodosEmbalse.size());
        return this->RenglonDeLista(
            {"lstMetodo", f.lstMetodo, Lineas, "lblMetodo", &f.lblMetodo, forms::Flechas::Eligen},
            [this](int linea) { lstMetodo_Click(f, linea); });
    }

    /// A coefficient of Muskingum's behind the label that tells it, both from the record; the field shows
    /// with that method alone. `letra`: what a reader of the screen says of it.
    template <typename Campos>
    forms::Partes Coeficiente(const Campos& tabla, std::string_view control,
                              std::pair<std::string_view, const std::string&> rotulo, char letra)
    {
        QLineEdit* const campo = this->ConservaLugar(this->NumeroSuelto(tabla, control));
        this->VisibleSi(campo, [this] { return f.MuskingumVisible(); });
        campo->setAccessibleName(QString(QLatin1Char(letra)));
        QLabel* const leyenda = this->Texto(rotulo.first, rotulo.second);
        leyenda->setBuddy(campo);
        return {leyenda, {campo, 1}};
    }

    forms::Partes AlturaInicial()
    {
        return this->Renglon(
            "txtHInicialEmb",
            this->CampoNumero("txtHInicialEmb", f.txtHInicialEmb, this->Sale("txtHInicialEmb")),
            ReglaHInicialEmb.unidad);
    }
};

}  // namespace editor
