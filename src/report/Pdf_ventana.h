// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <memory>
#include <string>

#include "report/Maqueta_ventana.h"

class QPdfWriter;

namespace report {

/// A document on its way into a PDF, page by page: charts as lines and letters, outline, links from the table
/// of contents. The same document gives the same bytes as long as its fonts do.
class Pdf {
  public:
    /// Sets the pages. Document and figures must outlive it.
    Pdf(const Documento& documento, Figuras& figuras);
    ~Pdf();
    Pdf(const Pdf&) = delete;
    Pdf& operator=(const Pdf&) = delete;

    [[nodiscard]] int Hechas() const { return hechas; }
    [[nodiscard]] int Paginas() const { return maqueta.Paginas(); }
    /// Paints the next page. Returns whether there are more.
    bool Adelanta();
    /// The file, once all pages are painted.
    std::string Bytes();

  private:
    const Documento& d;
    Maqueta maqueta;
    QBuffer archivo{};
    std::unique_ptr<QPdfWriter> hojas{};
    std::unique_ptr<QCPPainter> pintor{};
    int hechas = 0;
};

}  // namespace report
