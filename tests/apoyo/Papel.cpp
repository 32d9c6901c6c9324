// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Papel.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPageLayout>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

namespace apoyo {

std::string SalidaDe(const QString& programa, const QStringList& argumentos)
{
    QProcess proceso;
    proceso.start(programa, argumentos);
    EXPECT_TRUE(proceso.waitForFinished()) << programa.toStdString();
    EXPECT_EQ(proceso.exitCode(), 0) << proceso.readAllStandardError().toStdString();
    return proceso.readAllStandardOutput().toStdString();
}

std::string LeePlanilla(const std::string& bytes, const char* clase, char signoDecimal)
{
    const QTemporaryDir carpeta;
    QFile archivo(carpeta.filePath(QStringLiteral("planilla.%1").arg(QLatin1String(clase))));
    EXPECT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(QByteArray::fromStdString(bytes));
    archivo.close();
    return SalidaDe(QStringLiteral("python3"), {QStringLiteral(SIRO_TESTS_DIR "/apoyo/lee_planilla.py"),
                                                archivo.fileName(), QString(QLatin1Char(signoDecimal))});
}

namespace {

/// A field of what pdfinfo tells of a file.
QString Dato(const QString& archivo, const QString& campo)
{
    const QString datos = QString::fromStdString(SalidaDe(QStringLiteral("pdfinfo"), {archivo}));
    const QRegularExpression linea(QStringLiteral("^%1:\\s*(.*)$").arg(campo),
                                   QRegularExpression::MultilineOption);
    return linea.match(datos).captured(1);
}

}  // namespace

std::function<std::unique_ptr<QPrinter>()> ImpresoraDePrueba::Puerta()
{
    return [this] {
        auto impresora = std::make_unique<QPrinter>(QPrinter::HighResolution);
        impresora->setOutputFormat(QPrinter::PdfFormat);
        impresora->setOutputFileName(Archivo());
        impresora->setPageSize(QPageSize(QPageSize::A4));
        pintable = impresora->pageLayout().paintRect(QPageLayout::Point);
        return impresora;
    };
}

bool ImpresoraDePrueba::Imprimio() const
{
    return QFile::exists(Archivo());
}

int ImpresoraDePrueba::Paginas() const
{
    return Dato(Archivo(), QStringLiteral("Pages")).toInt();
}

std::string ImpresoraDePrueba::Titulo() const
{
    return Dato(Archivo(), QStringLiteral("Title")).toStdString();
}

std::string ImpresoraDePrueba::Texto(int pagina) const
{
    const QString n = QString::number(pagina);
    return SalidaDe(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-f"), n,
                                                  QStringLiteral("-l"), n, Archivo(), QStringLiteral("-")});
}

QImage ImpresoraDePrueba::Hoja(int pagina, int puntosPorPulgada) const
{
    const QString n = QString::number(pagina);
    const QString imagen = carpeta.filePath(QStringLiteral("hoja"));
    SalidaDe(QStringLiteral("pdftoppm"),
             {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
              QString::number(puntosPorPulgada), QStringLiteral("-f"), n, Archivo(), imagen});
    return QImage(imagen + QStringLiteral(".png"));
}

QRect ImpresoraDePrueba::Pintable(int puntosPorPulgada) const
{
    constexpr double PuntosDeImprenta = 72;  // of an inch
    const double escala = puntosPorPulgada / PuntosDeImprenta;
    const bool apaisada = Dato(Archivo(), QStringLiteral("Page size")).startsWith(QStringLiteral("842")) ||
                          Dato(Archivo(), QStringLiteral("Page size")).startsWith(QStringLiteral("841"));
    const QRectF lugar =
        apaisada ? QRectF(pintable.y(), pintable.x(), pintable.height(), pintable.width()) : pintable;
    return QRectF(lugar.topLeft() * escala, lugar.size() * escala).toAlignedRect();
}

}  // namespace apoyo
