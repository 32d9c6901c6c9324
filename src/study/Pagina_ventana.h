// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Constructor_ventana.h"
#include "forms/Planilla.h"
#include "study/Avance.h"

class QSplitter;

namespace forms {
class TablaCuadro;
struct Cuadro;
}  // namespace forms

namespace study {

/// A step of a window with steps: controls by the rows of its captions, a table and its chart. Events run in
/// `Suceso`, behind which the whole window shows itself anew.
class Pagina : public QWidget, protected forms::Constructor {
  public:
    Pagina(forms::Entorno& alrededor, std::span<const forms::FilaRotulo> rotulos, std::string_view nombre);

    /// What the step lacks, in sentences; empty: nothing, and the page is shown.
    [[nodiscard]] virtual std::string Falta() const = 0;
    /// The table in hand, for the printer, with its titles.
    [[nodiscard]] virtual forms::Planilla ParaImprimir() const = 0;
    /// The chart in hand.
    virtual forms::Lamina& Grafico() = 0;
    /// The page comes into sight; leaves it; Esc, which it may take for itself.
    virtual void AlEntrar() {}
    virtual void AlDejar() {}
    virtual bool AlEscapar() { return false; }

    /// Takes what the user has typed and not left yet. Returns false where a field refuses it.
    bool Asienta() { return campos.Compromete(); }
    using forms::Constructor::Muestra;

  protected:
    /// Fills the record from the study.
    virtual void Toma() = 0;
    /// A chart may become as low as small screens ask for.
    static void DejaChico(QWidget& grafico);
    /// Table and chart side by side; the user moves the bar between them.
    static QSplitter* LadoALado(QWidget* tabla, QWidget* grafico, int parteDeTabla = 1,
                                int parteDeGrafico = 1);
    /// Choices in a column so many letters wide, which scrolls where the room is low.
    QWidget* EnColumna(const forms::Partes& partes, int letras);
    /// A list takes the room that there is, room for so many letters at least, however long its items are.
    static QComboBox* Corta(QComboBox* lista, int letras = 14);
    /// A table of results that a click on a heading sorts; its columns are so many letters wide.
    forms::TablaCuadro* TablaDe(forms::Cuadro& cuadro, std::string_view control, std::vector<int> letras);
    /// A chart above what is to be known of it, a few lines that scroll.
    QWidget* SobreAvisos(QWidget* grafico, const std::string& avisos);
    /// Bar "barAvance" and key "CancelButton" of work beside the page, on show while it lasts; the bar keeps
    /// its place, so that nothing jumps from under the pointer.
    forms::Partes Avance(const EstadoDeAvance& avance, const std::function<bool()>& enCurso,
                         const std::function<void()>& cancela);
};

/// A page on the record F of its window.
///
/// It shows a record of its own, which `Toma` fills whenever what `EnManoDe(f)` returns, a copy of all that
/// the page is made of, has become another. Whatever the user changes goes through the window's `Cambia(f,
/// caption, change)`: one step of undo each.
template <typename F>
class PaginaDe : public Pagina {
  public:
    PaginaDe(forms::Entorno& alrededor, F& registro, std::span<const forms::FilaRotulo> susRotulos,
             std::string_view nombre)
        : Pagina(alrededor, susRotulos, nombre), f(registro)
    {
    }

    void Muestra() override
    {
        if (auto enMano = EnManoDe(f); !tomado || !(*tomado == enMano)) {
            tomado.emplace(std::move(enMano));
            Toma();
        }
        Pagina::Muestra();
    }

  protected:
    F& f;

  private:
    std::optional<decltype(EnManoDe(std::declval<const F&>()))> tomado{};
};

}  // namespace study
