// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Planilla_ventana.h"

#include <locale.h>

#include <QClipboard>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

const Planilla Ejemplo{{"Un título & más"},
                       {{"Nombre", true}, {"P[mm]"}, {"Q[m3/s]"}},
                       {{"007", "12.35", "1E+10"}, {"río", "", "no hay"}}};

/// A file inside the .xlsx.
std::string Pieza(const std::string& libro, const char* nombre)
{
    const QTemporaryDir carpeta;
    QFile archivo(carpeta.filePath(QStringLiteral("libro.zip")));
    EXPECT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(QByteArray::fromStdString(libro));
    archivo.close();
    QProcess descomprime;
    descomprime.setWorkingDirectory(carpeta.path());
    descomprime.start(QStringLiteral("cmake"), {QStringLiteral("-E"), QStringLiteral("tar"),
                                                QStringLiteral("xf"), QStringLiteral("libro.zip")});
    EXPECT_TRUE(descomprime.waitForFinished());
    EXPECT_EQ(descomprime.exitCode(), 0);
    return apoyo::BytesDeArchivo(DeQ(carpeta.filePath(QString::fromUtf8(nombre))));
}

TEST(Xlsx, EsUnLibroConUnaHojaConLosNumerosComoNumerosYLosTextosComoTextos)
{
    const std::string libro = ComoXlsx(Ejemplo);
    EXPECT_TRUE(libro.starts_with("PK\x03\x04"));
    const std::string hoja = Pieza(libro, "xl/worksheets/sheet1.xml");
    const std::string textos = Pieza(libro, "xl/sharedStrings.xml");
    const auto hay = [](const std::string& donde, const char* que) {
        EXPECT_NE(donde.find(que), std::string::npos) << que << "\nin " << donde;
    };
    hay(hoja, "<mergeCell ref=\"A1:C1\"/>");
    hay(hoja, "<c r=\"B3\" s=\"1\"><v>12.35</v></c>");
    hay(hoja, "<c r=\"C3\" s=\"1\"><v>10000000000</v></c>");
    // A name of digits alone stays a text, and so does what is no number; an empty cell isn't there.
    hay(hoja, "<c r=\"A3\" t=\"s\"><v>4</v></c>");
    hay(hoja, "<c r=\"C4\" t=\"s\"><v>6</v></c>");
    EXPECT_EQ(hoja.find("\"B4\""), std::string::npos);
    hay(textos, "<si><t>Un título &amp; más</t></si><si><t>Nombre</t></si>");
    hay(textos, "<si><t>007</t></si><si><t>río</t></si><si><t>no hay</t></si>");
    // Titles and headings stay in sight.
    hay(hoja, "ySplit=\"2\"");
    hay(Pieza(libro, "xl/styles.xml"), "<b/>");
}

/// A desktop that writes 1,5, while the object lives; made here, since a machine needs no such language.
class ConComaDecimal {
  public:
    ConComaDecimal()
    {
        QProcess::execute(QStringLiteral("localedef"),
                          {QStringLiteral("-i"), QStringLiteral("es_AR"), QStringLiteral("-f"),
                           QStringLiteral("UTF-8"), carpeta.filePath(QStringLiteral("es_AR.UTF-8"))});
        qputenv("LOCPATH", carpeta.path().toLocal8Bit());
        con = newlocale(LC_NUMERIC_MASK, "es_AR.UTF-8", nullptr);
        qunsetenv("LOCPATH");
        if (con != nullptr) antes = uselocale(con);
    }
    ~ConComaDecimal()
    {
        if (con == nullptr) return;
        uselocale(antes);
        freelocale(con);
    }
    ConComaDecimal(const ConComaDecimal&) = delete;
    ConComaDecimal& operator=(const ConComaDecimal&) = delete;
    [[nodiscard]] bool Vale() const { return con != nullptr && *localeconv()->decimal_point == ','; }

  private:
    QTemporaryDir carpeta{};
    locale_t con = nullptr, antes = nullptr;
};

TEST(Xlsx, LlevaPuntoEnSusNumerosAunqueElEscritorioEscribaComa)
{
    const std::string conPunto = Pieza(ComoXlsx(Ejemplo), "xl/worksheets/sheet1.xml");
    const ConComaDecimal coma;
    ASSERT_TRUE(coma.Vale());
    const std::string hoja = Pieza(ComoXlsx(Ejemplo), "xl/worksheets/sheet1.xml");
    EXPECT_NE(hoja.find("<v>12.35</v>"), std::string::npos) << hoja;
    EXPECT_EQ(hoja, conPunto);
    EXPECT_TRUE(coma.Vale()) << "the desktop's sign has gone";
}

TEST(Xlsx, UnaTablaVaciaEsSuEncabezado)
{
    const std::string hoja = Pieza(ComoXlsx({{}, {{"Nombre", true}, {"P"}}, {}}), "xl/worksheets/sheet1.xml");
    EXPECT_NE(hoja.find("<c r=\"B1\""), std::string::npos);
    EXPECT_EQ(hoja.find("<row r=\"2\""), std::string::npos);
}

TEST(Xlsx, LoQueNoCabeEnUnaHojaEsUnaFalla)
{
    constexpr std::size_t UnaColumnaDeMas = 16385;
    Planilla ancha;
    ancha.columnas.resize(UnaColumnaDeMas);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { ComoXlsx(ancha); }), 75);
}

struct Guardar : testing::Test {
    Guardar()
    {
        mundo.s.Disco = disco.Puerta();
        disco.PonDirectorio("/salida");
    }
    apoyo::Mundo mundo{};
    apoyo::DiscoPrueba disco{};
    DaPlanilla planilla = [] { return Ejemplo; };
};

TEST_F(Guardar, ElCsvEmpiezaConLaMarcaDeUtf8)
{
    mundo.anfitrion->elegidos = {"/salida/t.csv"};
    GuardaCsv(mundo.entorno, "Una tabla", planilla);
    EXPECT_EQ(disco.Bytes("/salida/t.csv"), "\xEF\xBB\xBF" + ComoCsv(Ejemplo));
    EXPECT_EQ(mundo.anfitrion->propuestos, std::vector<std::string>{"Una tabla.csv"});
}

TEST_F(Guardar, ElXlsxSeEscribeDondeSeElige)
{
    mundo.anfitrion->elegidos = {"/salida/t.xlsx"};
    GuardaXlsx(mundo.entorno, "Una tabla", planilla);
    EXPECT_EQ(Pieza(disco.Bytes("/salida/t.xlsx"), "xl/sharedStrings.xml"),
              Pieza(ComoXlsx(Ejemplo), "xl/sharedStrings.xml"));
    EXPECT_EQ(mundo.anfitrion->propuestos, std::vector<std::string>{"Una tabla.xlsx"});
}

TEST_F(Guardar, SinElegirNoSeEscribeNada)
{
    GuardaCsv(mundo.entorno, "t", planilla);
    GuardaXlsx(mundo.entorno, "t", planilla);
    EXPECT_TRUE(disco.Archivos().empty());
    EXPECT_TRUE(mundo.anfitrion->Avisos().empty());
}

TEST_F(Guardar, UnDiscoQueSeNiegaSeDice)
{
    mundo.anfitrion->elegidos = {"/no/hay/t.xlsx"};
    GuardaXlsx(mundo.entorno, "t", planilla);
    EXPECT_EQ(mundo.anfitrion->Avisos().size(), 1U);
}

TEST(CopiarPlanilla, QuedaEnElPortapapelesComoTexto)
{
    apoyo::Mundo mundo;
    CopiaPlanilla(mundo.entorno, Ejemplo);
    EXPECT_EQ(DeQ(QApplication::clipboard()->text()), ComoTexto(Ejemplo));
}

}  // namespace
}  // namespace forms
