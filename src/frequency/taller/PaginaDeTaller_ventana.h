// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "forms/Constructor_ventana.h"
#include "forms/Planilla.h"
#include "frequency/taller/dlgTaller.h"

class QSplitter;

namespace frequency {

/// A step of the workshop: controls by the rows of its captions, a table and its chart.
///
/// A page shows a record of its own, which `Toma` fills from the study (`TallerDe(f)`, `SerieEnMano(f)`)
/// whenever that, or what is in hand, has become another. Whatever the user changes goes through `Cambia(f,
/// caption, change)`: one step of undo each. Events run in `Suceso`, behind which the whole window shows
/// itself anew.
class PaginaDeTaller : public QWidget, protected forms::Constructor {
  public:
    PaginaDeTaller(forms::Entorno& alrededor, dlgTaller& taller, std::span<const forms::FilaRotulo> rotulos,
                   std::string_view nombre);

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
    void Muestra() override;

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
    /// A chart above what is to be known of it, a few lines that scroll.
    QWidget* SobreAvisos(QWidget* grafico, const std::string& avisos);

    dlgTaller& f;

  private:
    std::optional<study::Taller> tomado{};
    int estacionTomada = -1, serieTomada = -1;  ///< in hand as they were
};

}  // namespace frequency
