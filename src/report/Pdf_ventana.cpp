// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Pdf_ventana.h"

#include <qcustomplot.h>

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <vector>

#include "forms/Textos_ventana.h"
#include "report/AcabadoPdf_ventana.h"

namespace report {
namespace {

/// "20110403102030" of "2011-04-03T10:20:30"; a fixed one where the document has none.
QByteArray FechaDePdf(const std::string& iso)
{
    QByteArray cifras;
    for (const char c : iso)
        if (c >= '0' && c <= '9') cifras += c;
    constexpr qsizetype ConHora = 14, SinHora = 8;
    if (cifras.size() == SinHora) cifras += "000000";
    return cifras.size() == ConHora ? cifras : QByteArray("20000101000000");
}

}  // namespace

Pdf::Pdf(const Documento& documento, Figuras& figuras) : d(documento), maqueta(documento, figuras)
{
    archivo.open(QIODevice::WriteOnly);
    hojas = std::make_unique<QPdfWriter>(&archivo);
    hojas->setTitle(forms::Q(d.titulo));
    hojas->setCreator(QStringLiteral("SIRO"));
    hojas->setResolution(PuntosPorPulgada);
    hojas->setPageSize(QPageSize(d.hoja == Hoja::A4 ? QPageSize::A4 : QPageSize::Letter));
    hojas->setPageMargins({});
    pintor = std::make_unique<QCPPainter>();
}

Pdf::~Pdf() = default;

bool Pdf::Adelanta()
{
    if (hechas >= Paginas()) return false;
    hojas->setPageOrientation(maqueta.Apaisada(hechas) ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (hechas == 0) {
        pintor->begin(hojas.get());
    } else {
        hojas->newPage();
    }
    pintor->setMode(QCPPainter::pmVectorized);
    maqueta.Pinta(hechas, *pintor);
    return ++hechas < Paginas();
}

std::string Pdf::Bytes()
{
    if (pintor->isActive()) pintor->end();
    std::vector<MarcadorPdf> marcadores;
    const auto desdeAbajo = [&](int pagina, double y) {
        return (maqueta.Tamano(pagina).height() - y) / Punto;
    };
    for (const Maqueta::LugarDeTitulo& t : maqueta.Titulos())
        marcadores.push_back({forms::Q(t.texto), t.nivel, t.pagina, desdeAbajo(t.pagina, t.y)});
    std::vector<EnlacePdf> enlaces;
    for (const Maqueta::Enlace& e : maqueta.Enlaces())
        enlaces.push_back({e.pagina,
                           QRectF(e.caja.left() / Punto, desdeAbajo(e.pagina, e.caja.bottom()),
                                  e.caja.width() / Punto, e.caja.height() / Punto),
                           e.titulo});
    return Acaba(archivo.data(), marcadores, enlaces, FechaDePdf(d.fecha)).toStdString();
}

}  // namespace report
