// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/fichas/Ficha.h"
#include "forms/Formulario_ventana.h"

namespace editor {

/// What the windows of the property forms add to the controls that all forms are built of.
class PartesDeFicha : public forms::Formulario {
  public:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    PartesDeFicha(forms::Entorno& alrededor, const forms::DescripcionDeVentana& descripcion, Ficha& registro,
                  QWidget* padre);

    /// A caption and a text of the record, which stands out.
    forms::Partes Dato(std::string_view control, const std::string& texto);
    /// The name: while it is typed `cambia` puts it right.
    forms::Partes CampoNombre(std::string_view control, std::string& texto, std::function<void()> cambia,
                              std::function<bool()> revisa);
    /// A number: entering it selects all of it, leaving it checks it.
    QLineEdit* CampoNumero(std::string_view control, std::string& texto, std::function<bool()> revisa);
    /// A list beside its caption, below which stands what is in force now, where that has a label.
    struct DescripcionLista {
        std::string_view control;
        const Lista& lista;
        int lineas;  ///< in sight at least; the list of few lines has just these
        std::string_view controlActual{};
        const std::string* actual = nullptr;
        forms::Flechas flechas = forms::Flechas::EligenAlSalir;
    };
    /// Picking an entry is an event, with its line from 0.
    forms::Partes RenglonDeLista(const DescripcionLista& descripcion, std::function<void(int)> elige);
    /// The list of components with its caption above it.
    QWidget* ListaDeComponentes(std::string_view control, const Lista& lista, std::function<void(int)> elige);
    /// The whole form: what it holds, side by side, above "Aceptar" and "Cancelar".
    void Dispone(const forms::Partes& cuerpo, std::function<void()> acepta);

    /// The line under the field of a control, as a row of a grid: it follows every key.
    forms::Partes LineaDeApunte(std::string_view control, int lineas, std::function<std::string()> texto);

  private:
    void PonApuntes();

    Ficha& ficha;
    std::vector<std::function<void()>> apuntes{};
    QTimer porApuntar;  ///< runs behind the keys that are waiting
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
    Ficha_ventana(forms::Entorno& alrededor, const forms::DescripcionDeVentana& descripcion, Forma& registro,
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
        return CampoNumero(control, f.*FilaDe(tabla, control).texto, Sale(control));
    }

    /// What is said of the record in a line under a control; the object is `apunte_` and the control.
    forms::Partes Apunta(std::string_view control, int lineas,
                         std::string (*dice)(const Forma& forma, model::Siro& s))
    {
        return LineaDeApunte(control, lineas, [this, dice] { return dice(f, entorno.s); });
    }

    /// The same with caption and unit.
    template <typename Campos>
    forms::Partes Numero(const Campos& tabla, std::string_view control)
    {
        return Renglon(control, NumeroSuelto(tabla, control), FilaDe(tabla, control).regla.unidad);
    }

    Forma& f;

  private:
    template <typename Campos>
    static const auto& FilaDe(const Campos& tabla, std::string_view control)
    {
        return *std::find_if(tabla.begin(), tabla.end(),
                             [&](const auto& fila) { return fila.regla.control == control; });
    }
};

}  // namespace editor
