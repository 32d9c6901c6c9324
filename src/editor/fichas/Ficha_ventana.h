// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/fichas/Ficha.h"
#include "forms/Formulario_ventana.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace forms {
class ListaParaElegir;
}

namespace editor {

/// Keeps the place of what a form hides, so that nothing jumps.
void ConservaLugar(QWidget& widget);

/// What tells the window of one property form from another's.
struct DescripcionFicha {
    std::string_view nombre;  ///< object name of the window
    std::string_view titulo;
    std::span<const forms::FilaRotulo> leyendas;
};

/// What the windows of the property forms are built of. Controls are made with their captions from the form's
/// table, and each remembers how it is shown from the record.
class PartesDeFicha : public forms::Formulario {
  public:
    void Muestra() override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    PartesDeFicha(forms::Entorno& alrededor, const DescripcionFicha& descripcion, Ficha& registro,
                  QWidget* padre);

    /// The caption of a control; empty where it has none.
    [[nodiscard]] std::string_view Leyenda(std::string_view control) const;
    /// Runs at each `Muestra`, in the order of the calls.
    void AlMostrar(std::function<void()> rutina) { muestran.push_back(std::move(rutina)); }
    template <typename T>
    T* Nombra(T* widget, std::string_view control)
    {
        NombraWidget(*widget, control);
        return widget;
    }

    QGroupBox* Marco(std::string_view control);
    /// A label of the caption, and the text beside it, both at the end of a grid.
    QLabel* Dato(QGridLayout& grilla, std::string_view control, const std::string& texto);
    /// A label that only shows a text of the record.
    QLabel* Texto(std::string_view control, const std::string& texto);
    /// A field with the text of the record, kept there at each edit.
    QLineEdit* Campo(std::string_view control, std::string& texto);
    /// A control with its caption before it and its unit behind it, at the end of a grid.
    void Renglon(QGridLayout& grilla, std::string_view control, QWidget& campo, std::string_view unidad = {});
    /// The name: while it is typed `cambia` puts it right.
    QLineEdit* CampoNombre(QGridLayout& grilla, std::string_view control, std::string& texto,
                           std::function<void()> cambia, std::function<bool()> revisa);
    /// A number: entering it selects all of it, leaving it checks it.
    void EsNumero(QLineEdit& campo, std::function<bool()> revisa);
    /// A list beside its caption, below which stands what is in force now, where that has a label.
    struct RenglonLista {
        std::string_view control;
        const Lista& lista;
        int lineas;  ///< in sight at least; the list of few lines has just these
        std::string_view controlActual{};
        const std::string* actual = nullptr;
        /// The arrows pick at once; otherwise what they have come to is picked when the list is left.
        bool conFlechas = false;
    };
    /// The same at the end of a grid; picking an entry is an event, with its line from 0.
    void RenglonDeLista(QGridLayout& grilla, const RenglonLista& renglon, std::function<void(int)> elige);
    /// The list of components with its caption above it.
    QWidget* ListaDeComponentes(std::string_view control, const Lista& lista, std::function<void(int)> elige);
    QRadioButton* Opcion(std::string_view control, const bool& marcada, std::function<void()> elige);
    QPushButton* Boton(std::string_view control, std::function<void()> rutina);
    /// "Aceptar" and "Cancelar" at the end.
    void Cierre(QVBoxLayout& pila, std::function<void()> acepta);

  private:
    forms::ListaParaElegir* NuevaLista(std::string_view control, const Lista& lista, bool conFlechas,
                                       std::function<void(int)> elige);
    void NombraWidget(QWidget& widget, std::string_view control) const;
    void PonFoco();

    std::span<const forms::FilaRotulo> leyendas;
    Ficha& ficha;
    std::vector<std::function<void()>> muestran{};
};

/// Routines of a form by its record's type, from where a window's own ones of the same name hide them.
template <typename Forma>
void AbreRegistro(Forma& f, model::Siro& s)
{
    Abre(f, s);
}
template <typename Forma>
bool RegistroSinAplicar(const Forma& f, model::Siro& s)
{
    return SinAplicar(f, s);
}

/// The window of a property form: the record's routines are found by its type.
template <typename Forma>
class Ficha_ventana : public PartesDeFicha {
  public:
    /// Shows the selected component, or the first one, until the form is closed; with no component it doesn't
    /// open. Runs inside an event.
    void Abre()
    {
        AbreRegistro(f, entorno.s);
        if (!f.abierta) return;
        Muestra();
        entorno.Ejecuta(*this);
    }

  protected:
    Ficha_ventana(forms::Entorno& alrededor, const DescripcionFicha& descripcion, Forma& registro,
                  QWidget* padre)
        : PartesDeFicha(alrededor, descripcion, registro, padre), f(registro)
    {
    }

    void AlCerrar() override
    {
        CancelButton(f, entorno.s);
        Muestra();
    }

    bool SinAplicar() override { return RegistroSinAplicar(f, entorno.s); }

    /// Leaving a control.
    auto Sale(std::string_view control)
    {
        return [this, control] { return AlSalir(f, entorno.s, control); };
    }

    /// A field of the form's table without its caption.
    template <typename Campos>
    QLineEdit* NumeroSuelto(const Campos& tabla, std::string_view control)
    {
        for (const auto& fila : tabla)
            if (fila.regla.control == control) {
                QLineEdit* const campo = Campo(control, f.*fila.texto);
                EsNumero(*campo, Sale(control));
                return campo;
            }
        return nullptr;
    }

    /// The same with caption and unit, at the end of a grid.
    template <typename Campos>
    QLineEdit* Numero(QGridLayout& grilla, const Campos& tabla, std::string_view control)
    {
        QLineEdit* const campo = NumeroSuelto(tabla, control);
        for (const auto& fila : tabla)
            if (fila.regla.control == control) Renglon(grilla, control, *campo, fila.regla.unidad);
        return campo;
    }

    Forma& f;
};

}  // namespace editor
