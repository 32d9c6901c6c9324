// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Entorno_ventana.h"
#include "forms/Grafico.h"
#include "forms/Planilla.h"
#include "forms/Procedencia.h"

class QCustomPlot;

namespace forms {

class Trazo;

/// Paints a chart and lets the user look into it: the wheel zooms along the categories (with Ctrl along the
/// values), dragging moves what is zoomed, a double click shows all again; the value under the pointer is
/// told; a menu copies and saves image and cells. All of it by the keyboard too: arrows read row by row,
/// + and - zoom, 0 shows all, the menu key opens the menu.
class Lamina : public QWidget {
  public:
    enum class Modo : std::uint8_t {
        Normal,
        Compacta,  ///< beside the fields of a form: small letters, neither title nor footnote
    };

    /// `nombre`: object name; `titulo`: what a reader of the screen says, and the name proposed for files.
    Lamina(Entorno& alrededor, std::string_view nombre, std::string_view titulo, Modo modo = Modo::Normal);
    ~Lamina() override;

    /// Shows a chart; what the user has zoomed stays so while the number of rows does. Painting waits for
    /// the events of the moment, so that several changes in a row cost one.
    void Muestra(const Grafico& nuevo);
    /// What is on show, as a reader of the screen gets it ahead of rows and peaks and as pictures and files
    /// bear it: component, storm; and the component's name, for the names of files.
    void PonTema(std::string_view nuevo, std::string_view nombre = {});

    /// Of what project and when the chart is, where it isn't of the project in hand and of today.
    void PonOrigen(std::string_view proyecto, std::string_view fecha);

    /// The text of the row under the pointer; none: no row.
    [[nodiscard]] std::string Lectura() const;
    /// Categories in sight, rows from 1 (and what part of them).
    struct Tramo {
        double desde = 0, hasta = 0;
    };
    [[nodiscard]] Tramo EnVista() const;
    /// Labels of the categories in sight, as they stand on the axis.
    [[nodiscard]] QStringList RotulosEnVista() const;
    /// Labels of the marks that have room beside their rings.
    [[nodiscard]] QStringList MarcasRotuladas() const;
    /// Where these labels and the entries of the legend stand in this widget.
    [[nodiscard]] QList<QRectF> LugaresDeMarcas() const;
    [[nodiscard]] QList<QRectF> LugaresDeLeyenda() const;
    /// Where the chart comes from: title, component, storm, project, day.
    [[nodiscard]] Procedencia DeDonde() const;
    /// What a printed page says below the chart.
    [[nodiscard]] std::vector<std::string> AlPie() const;

    // --- the commands of the menu ---
    void Acerca(double veces);  ///< above 1: nearer
    void VeTodo();
    void CopiaImagen() const;
    void GuardaPng() const;
    void GuardaSvg() const;
    void GuardaPdf() const;
    void GuardaCsv() const;
    void GuardaXlsx() const;

    /// So many dots of the image per dot of the screen, while the window is printed. 0: back to the screen.
    void Afina(double puntos);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    void ConectaRaton();
    [[nodiscard]] QSize TamanoDeImagen() const;
    [[nodiscard]] std::vector<std::string> Rotulos(bool todo) const;
    std::string EnPapel(const std::function<std::string(QSize)>& pinta) const;
    void Lee(std::size_t fila);
    void DejaDeLeer();
    void Describe();
    [[nodiscard]] Planilla Celdas() const;
    void Guarda(std::string_view pregunta, std::string_view filtro, std::string_view extension,
                const std::function<std::string()>& bytes) const;

    Entorno& entorno;
    QString titulo, tema;
    std::string componente{}, proyecto{}, fecha{};
    Modo modo;
    QCustomPlot* plano;
    std::unique_ptr<Trazo> trazo;
};

/// Prints the image of a window with its chart as sharp as the paper takes it; below it project, day and what
/// the chart has to say besides.
void ImprimeConLamina(Entorno& entorno, QWidget& ventana, Lamina& lamina);

}  // namespace forms
