// SPDX-License-Identifier: GPL-3.0-or-later
//
// The PDF of a memoria, as poppler's tools see it.

#include "report/Pdf_ventana.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "apoyo/Papel.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"
#include "report/CorridaDeMuestra.h"
#include "report/Figuras_ventana.h"

namespace report {
namespace {

using apoyo::SalidaDe;
using forms::Q;

Tabla TablaDePrueba(int columnas, int filas)
{
    Tabla t{.numero = 1, .titulo = "Parámetros"};
    for (int c = 0; c < columnas; ++c)
        t.columnas.push_back({Llano("Col" + std::to_string(c + 1)), c == 0 ? "" : "m3/s", c == 0});
    for (int f = 1; f <= filas; ++f) {
        std::vector<std::string> fila{"u-Fila" + std::to_string(f)};
        for (int c = 1; c < columnas; ++c)
            fila.push_back(std::to_string(f) + "," + std::to_string(1000 + c));
        t.filas.push_back(std::move(fila));
    }
    return t;
}

class PdfDeMemoria : public testing::Test {
  protected:
    static CorridaDeMuestra& Muestra()
    {
        static CorridaDeMuestra muestra;
        return muestra;
    }
    void Escribe()
    {
        Pdf pdf(d, figuras);
        while (pdf.Adelanta()) {
        }
        bytes = pdf.Bytes();
        QFile archivo(Ruta());
        ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
        archivo.write(bytes.data(), static_cast<qint64>(bytes.size()));
        archivo.close();
        if (const QString copia = qEnvironmentVariable("SIRO_FOTOS"); !copia.isEmpty()) {
            const QString destino =
                copia + QLatin1Char('/') +
                QString::fromUtf8(testing::UnitTest::GetInstance()->current_test_info()->name()) +
                QStringLiteral(".pdf");
            QFile::remove(destino);
            QFile::copy(Ruta(), destino);
        }
    }
    [[nodiscard]] QString Ruta() const { return carpeta.filePath(QStringLiteral("memoria.pdf")); }
    [[nodiscard]] QString Texto(int pagina) const
    {
        return Q(SalidaDe(QStringLiteral("pdftotext"),
                          {QStringLiteral("-layout"), QStringLiteral("-f"), QString::number(pagina),
                           QStringLiteral("-l"), QString::number(pagina), Ruta(), QStringLiteral("-")}));
    }
    [[nodiscard]] int Paginas() const
    {
        const QString dicho = Q(SalidaDe(QStringLiteral("pdfinfo"), {Ruta()}));
        return QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(dicho).captured(1).toInt();
    }
    /// No word lies beyond the margins but in the strips of head and foot.
    void NadaAfuera() const
    {
        const QString todo =
            Q(SalidaDe(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), Ruta(), QStringLiteral("-")}));
        static const QRegularExpression Cosa(QStringLiteral(
            "<page width=\"([\\d.]+)\" height=\"([\\d.]+)\"|<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" "
            "xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">([^<]*)"));
        constexpr double Lado = Margen / 25.4 * 72, Arriba = 11 / 25.4 * 72, Holgura = 0.5;
        double ancho = 0, alto = 0;
        int palabras = 0;
        auto cada = Cosa.globalMatch(todo);
        while (cada.hasNext()) {
            const auto una = cada.next();
            if (!una.captured(1).isEmpty()) {
                ancho = una.captured(1).toDouble();
                alto = una.captured(2).toDouble();
                continue;
            }
            ++palabras;
            const std::string cual = forms::DeQ(una.captured(7));
            EXPECT_GE(una.captured(3).toDouble(), Lado - Holgura) << cual;
            EXPECT_LE(una.captured(5).toDouble(), ancho - Lado + Holgura) << cual;
            EXPECT_GE(una.captured(4).toDouble(), Arriba) << cual;
            EXPECT_LE(una.captured(6).toDouble(), alto - Arriba) << cual;
        }
        EXPECT_GT(palabras, 0);
    }

    QTemporaryDir carpeta{};
    Documento d{.titulo = "Presa del arroyo Ñandú",
                .fecha = "2011-04-03T10:20:30",
                .pie = "Quelmar · SIRO",
                .bloques = {}};
    Figuras figuras{Muestra().datos, ','};
    std::string bytes{};
};

TEST_F(PdfDeMemoria, LosNumerosDelIndiceSonLosDeSusPaginas)
{
    d.bloques.emplace_back(Portada{.titulo = "Memoria de cálculo", .subtitulo = "Quelmar"});
    d.bloques.emplace_back(Indice{"Índice"});
    for (int i = 1; i <= 12; ++i) {
        const std::string n = std::to_string(i);
        d.bloques.emplace_back(SaltoDePagina{});
        d.bloques.emplace_back(Titulo{1, n, "Capítulo número " + n, "c" + n});
        for (int j = 0; j < i * 6; ++j)
            d.bloques.emplace_back(
                Parrafo{Llano("Una frase que llena renglones. Otra frase más que los "
                              "llena, y otra todavía, hasta el margen.")});
        d.bloques.emplace_back(Titulo{2, n + ".1", "Apartado " + n, "a" + n});
        d.bloques.emplace_back(Parrafo{Llano("Lo que sigue al apartado.")});
    }
    Escribe();
    const int paginas = Paginas();
    ASSERT_GT(paginas, 12);
    const QString indice = Texto(2);
    for (int i = 1; i <= 12; ++i)
        for (const QString& que : {QStringLiteral("%1\\s+Capítulo número %1").arg(i),
                                   QStringLiteral("%1\\.1\\s+Apartado %1").arg(i)}) {
            const auto hallado = QRegularExpression(que + QStringLiteral("\\s+(\\d+)\n")).match(indice);
            ASSERT_TRUE(hallado.hasMatch()) << forms::DeQ(que);
            EXPECT_TRUE(Texto(hallado.captured(1).toInt()).contains(QRegularExpression(que)))
                << forms::DeQ(que);
        }
    EXPECT_TRUE(Texto(paginas).contains(QStringLiteral("Página %1 de %1").arg(paginas)));
    EXPECT_TRUE(Texto(3).contains(QStringLiteral("Presa del arroyo Ñandú")));
    EXPECT_TRUE(Texto(3).contains(QStringLiteral("3/4/2011")));
    EXPECT_FALSE(Texto(1).contains(QStringLiteral("Página"))) << "the cover bears neither head nor foot";
    NadaAfuera();
}

TEST_F(PdfDeMemoria, UnTituloNoQuedaSoloAlPie)
{
    for (int renglones = 1; renglones < 60; ++renglones) {
        d.bloques.emplace_back(SaltoDePagina{});
        for (int i = 0; i < renglones; ++i)
            d.bloques.emplace_back(Lista{false, {Llano("Un renglón.")}});
        d.bloques.emplace_back(Titulo{2, std::to_string(renglones), "Apartado", ""});
        d.bloques.emplace_back(Parrafo{Llano("Párrafo de " + std::to_string(renglones))});
    }
    Escribe();
    int hallados = 0;
    for (int p = 1, paginas = Paginas(); p <= paginas; ++p) {
        static const QRegularExpression Apartado(QStringLiteral("(\\d+)\\s+Apartado"));
        const QString texto = Texto(p);
        auto cada = Apartado.globalMatch(texto);
        while (cada.hasNext()) {
            const QString n = cada.next().captured(1);
            ++hallados;
            EXPECT_TRUE(texto.contains(QStringLiteral("Párrafo de ") + n)) << p;
        }
    }
    EXPECT_EQ(hallados, 59);
}

TEST_F(PdfDeMemoria, LasTablasRepitenSuCabezaYNoCortanFilas)
{
    d.bloques.emplace_back(TablaDePrueba(5, 140));
    Escribe();
    const int paginas = Paginas();
    ASSERT_GE(paginas, 3);
    int filas = 0;
    for (int p = 1; p <= paginas; ++p) {
        const QString texto = Texto(p);
        EXPECT_TRUE(texto.contains(QStringLiteral("Col5"))) << p;
        EXPECT_EQ(texto.contains(QStringLiteral("Tabla 1. Parámetros (continuación)")), p > 1) << p;
        filas += static_cast<int>(texto.count(QRegularExpression(QStringLiteral("u-Fila\\d+ +\\d+,1001 "))));
    }
    EXPECT_EQ(filas, 140);
    NadaAfuera();
}

TEST_F(PdfDeMemoria, LasTablasAnchasNoPierdenColumnas)
{
    for (const int columnas : {9, 13, 18, 40}) {
        d.bloques = {TablaDePrueba(columnas, 6)};
        Escribe();
        QString todo;
        for (int p = 1, paginas = Paginas(); p <= paginas; ++p)
            todo += Texto(p);
        for (int c = 1; c < columnas; ++c)
            EXPECT_TRUE(todo.contains(QStringLiteral("3,") + QString::number(1000 + c)))
                << columnas << " " << c;
        EXPECT_EQ(todo.contains(QStringLiteral("(parte 1 de ")), columnas == 40) << columnas;
        NadaAfuera();
    }
}

TEST_F(PdfDeMemoria, UnaPalabraSinFinNoSaleDeSuCelda)
{
    Tabla t{.numero = 1, .titulo = "Nombres"};
    t.columnas = {{Llano("Nombre")}, {Llano("Otro")}};
    t.filas = {{std::string(400, 'W'), "<b>&amp;\\\"%s"}};
    d.bloques.emplace_back(t);
    d.bloques.emplace_back(Parrafo{Llano(std::string(900, 'M'))});
    d.bloques.emplace_back(Titulo{1, "1", std::string(300, 'Q'), ""});
    d.titulo = std::string(500, 'T');
    d.pie = std::string(500, 'P');
    Escribe();
    NadaAfuera();
    EXPECT_TRUE(Texto(1).contains(QStringLiteral("<b>&amp;\\\"%s")));
}

TEST_F(PdfDeMemoria, LasFigurasSonTrazosYConservanSuRotulo)
{
    int numero = 0;
    const auto figura = [&](Figura::Clase clase, std::vector<std::string> componentes) {
        d.bloques.emplace_back(
            FiguraPuesta{++numero, "Rótulo " + std::to_string(numero), {clase, std::move(componentes)}});
    };
    figura(Figura::Clase::Red, {});
    figura(Figura::Clase::Hietograma, {});
    figura(Figura::Clase::Hidrograma, {"r-Quelmar"});
    figura(Figura::Clase::Embalse, {"r-Quelmar"});
    figura(Figura::Clase::CurvasHASQ, {"r-Quelmar"});
    figura(Figura::Clase::Abaco, {"r-Quelmar"});
    figura(Figura::Clase::Hidrograma, {"no está"});
    Escribe();
    const std::string imagenes = SalidaDe(QStringLiteral("pdfimages"), {QStringLiteral("-list"), Ruta()});
    EXPECT_EQ(Q(imagenes).count(QRegularExpression(QStringLiteral("\\bimage\\b"))), 0) << imagenes;
    QString todo;
    for (int p = 1, paginas = Paginas(); p <= paginas; ++p) {
        const QString texto = Texto(p);
        // The caption of a figure stands on its page, below it.
        for (const auto& [titulo, cual] : {std::pair{QStringLiteral("Hietograma de la tormenta"), 2},
                                           {QStringLiteral("Nivel del embalse"), 4},
                                           {QStringLiteral("Ábaco de caudales"), 6}})
            if (texto.contains(titulo)) {
                EXPECT_TRUE(texto.contains(QStringLiteral("Figura %1. Rótulo %1").arg(cual))) << p;
            }
        todo += texto;
    }
    EXPECT_TRUE(todo.contains(QStringLiteral("No hay datos para dibujarla.")));
    EXPECT_TRUE(todo.contains(QStringLiteral("Q entra")));
    EXPECT_TRUE(todo.contains(QStringLiteral("Tope de la tabla")));
    EXPECT_EQ(todo.count(QStringLiteral("Hidrograma: r-Quelmar")), 1);
    NadaAfuera();
}

TEST_F(PdfDeMemoria, ElMismoDocumentoDaLosMismosBytesYSuEsquema)
{
    d.bloques = {Titulo{1, "1", "Objeto", ""}, Parrafo{Llano("Texto.")}, Titulo{2, "1.1", "Alcance", ""},
                 Titulo{1, "2", "Área ñandú", ""},
                 FiguraPuesta{1, "Una", {Figura::Clase::Hidrograma, {"r-Quelmar"}}}};
    Escribe();
    const std::string primera = bytes;
    QTest::qWait(1100);  // another second of the clock
    Escribe();
    EXPECT_TRUE(primera == bytes);
    const QString dicho = Q(SalidaDe(QStringLiteral("pdfinfo"), {QStringLiteral("-isodates"), Ruta()}));
    EXPECT_TRUE(dicho.contains(QStringLiteral("2011-04-03T10:20:30"))) << forms::DeQ(dicho);
    EXPECT_TRUE(dicho.contains(QStringLiteral("Presa del arroyo Ñandú")));
    // Second heading of the first level, as UTF-16: "2  Área ñandú".
    EXPECT_NE(bytes.find("<FEFF00320020002000C1007200650061002000F10061"), std::string::npos);
    EXPECT_NE(bytes.find("/Type /Outlines"), std::string::npos);
}

TEST_F(PdfDeMemoria, LaCartaYElA4TienenSuTamano)
{
    d.bloques = {Parrafo{Llano("Texto.")}};
    for (const auto& [hoja, puntos] : {std::pair{Hoja::A4, "595"}, {Hoja::Carta, "612 x 792"}}) {
        d.hoja = hoja;
        Escribe();
        EXPECT_NE(SalidaDe(QStringLiteral("pdfinfo"), {Ruta()}).find(puntos), std::string::npos);
    }
}

}  // namespace
}  // namespace report
