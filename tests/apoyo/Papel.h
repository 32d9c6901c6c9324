// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPrinter>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

// What came out on paper, as another program sees it: a printer that writes PDF, and poppler's tools on it.
namespace apoyo {

/// A printer whose job ends as a file.
class ImpresoraDePrueba {
  public:
    /// For forms::Entorno::Impresora.
    std::function<std::unique_ptr<QPrinter>()> Puerta();

    [[nodiscard]] QString Archivo() const { return carpeta.filePath(QStringLiteral("impreso.pdf")); }
    [[nodiscard]] bool Imprimio() const;

    // --- of the file, or of any other PDF ---
    [[nodiscard]] int Paginas() const;
    /// Title of the document.
    [[nodiscard]] std::string Titulo() const;
    /// Text of a page, from 1, its columns side by side.
    [[nodiscard]] std::string Texto(int pagina) const;
    /// A page as it looks, so many dots per inch.
    [[nodiscard]] QImage Hoja(int pagina, int puntosPorPulgada) const;
    /// What can be painted on of a page of that picture.
    [[nodiscard]] QRect Pintable(int puntosPorPulgada) const;

  private:
    QTemporaryDir carpeta{};
    QRectF pintable{};  ///< [points]
};

/// What a workbook or a CSV file (`clase`: "xlsx", "csv") holds, as tests/apoyo/lee_planilla.py tells it.
std::string LeePlanilla(const std::string& bytes, const char* clase, char signoDecimal = '.');

/// Standard output of a program; the test fails where it doesn't end well.
std::string SalidaDe(const QString& programa, const QStringList& argumentos);

}  // namespace apoyo
