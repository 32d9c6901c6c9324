// SPDX-License-Identifier: GPL-3.0-or-later
//
// A memoria on its way into a file: in each format, and the file whole or as it was.

#include "report/Entrega_ventana.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QImage>
#include <QSvgRenderer>
#include <algorithm>

#include "apoyo/Compara.h"
#include "apoyo/Proceso.h"
#include "apoyo/Ventanas.h"
#include "model/LlamadasQueFallan.h"
#include "report/CorridaDeMuestra.h"
#include "report/Memoria.h"
#include "report/Plantilla.h"

namespace report {
namespace {

class EntregaDeMemoria : public testing::Test {
  protected:
    static CorridaDeMuestra& Muestra()
    {
        static CorridaDeMuestra muestra;
        return muestra;
    }
    static std::string Hace(Formato formato, const std::vector<std::string>& sinCapitulos = {})
    {
        Eleccion eleccion;
        eleccion.sinCapitulos = sinCapitulos;
        Entrega entrega({Muestra().datos, Memoria(Muestra().datos, eleccion, PlantillaDeFabrica()), formato});
        std::size_t pasos = 1;
        while (entrega.Adelanta())
            ++pasos;
        EXPECT_EQ(pasos, entrega.Total());
        EXPECT_EQ(entrega.Hechas(), entrega.Total());
        return entrega.Bytes();
    }
};

TEST_F(EntregaDeMemoria, CadaFormatoTieneLoSuyo)
{
    EXPECT_TRUE(Hace(Formato::Pdf).starts_with("%PDF-1.4"));
    const std::string odt = Hace(Formato::Odt);
    EXPECT_TRUE(odt.starts_with("PK"));
    EXPECT_NE(odt.find("application/vnd.oasis.opendocument.text"), std::string::npos);
    const std::string html = Hace(Formato::Html);
    EXPECT_NE(html.find("Hidrograma de r-Quelmar"), std::string::npos);
    EXPECT_EQ(html.find("</html>") == std::string::npos, false);
}

/// Between two pieces the windows answer: none takes longer than a tenth of a second, but for a machine that
/// does something else meanwhile.
TEST_F(EntregaDeMemoria, NingunaParteHaceEsperarALasVentanas)
{
    for (const Formato formato : {Formato::Pdf, Formato::Odt, Formato::Html}) {
        Documento documento = Memoria(Muestra().datos, {}, PlantillaDeFabrica());
        std::vector<qint64> tiempos;
        QElapsedTimer reloj;
        reloj.start();
        Entrega entrega({Muestra().datos, std::move(documento), formato});
        tiempos.push_back(reloj.restart());
        for (bool sigue = true; sigue; tiempos.push_back(reloj.restart()))
            sigue = entrega.Adelanta();
        entrega.Bytes();
        tiempos.push_back(reloj.restart());
        std::sort(tiempos.rbegin(), tiempos.rend());
        RecordProperty(std::string(ClaveDe(formato)), static_cast<int>(tiempos.front()));
        // Three times as much here, since many tests run at a time.
        EXPECT_LT(tiempos.front(), 300) << ClaveDe(formato);
    }
}

TEST_F(EntregaDeMemoria, ElMismoPedidoDaLosMismosBytes)
{
    for (const Formato f : {Formato::Pdf, Formato::Odt, Formato::Html})
        EXPECT_TRUE(Hace(f) == Hace(f)) << ClaveDe(f);
}

TEST_F(EntregaDeMemoria, UnaFiguraEsUnSvgYSuImagenDe300PuntosPorPulgada)
{
    Figuras figuras(Muestra().datos, ',');
    for (const Figura& f : {Figura{Figura::Clase::Red, {}}, Figura{Figura::Clase::Hidrograma, {"r-Quelmar"}},
                            Figura{Figura::Clase::Abaco, {"c-Quelmar5"}}}) {
        const Imagen i = figuras.Dibuja(f);
        QSvgRenderer svg(QByteArray::fromStdString(i.svg));
        EXPECT_TRUE(svg.isValid());
        EXPECT_EQ(i.svg.find("<image"), std::string::npos) << "lines and letters, no picture of them";
        const QImage png = QImage::fromData(QByteArray::fromStdString(i.png));
        EXPECT_NEAR(png.width(), i.ancho / 25.4 * 300, 1);
        EXPECT_NEAR(png.height(), i.alto / 25.4 * 300, 1);
    }
    EXPECT_EQ(figuras.Dibuja({Figura::Clase::Hidrograma, {"no está"}}).svg, "");
    EXPECT_EQ(figuras.Dibuja({Figura::Clase::Idf, {}}).svg, "") << "the sample has no study";
}

TEST_F(EntregaDeMemoria, LosColoresSeDistinguenEnGris)
{
    // Inflow and outflow of a dam on one chart: each of the two has greys that the other hasn't.
    Figuras figuras(Muestra().datos, ',');
    const Imagen i = figuras.Dibuja({Figura::Clase::Hidrograma, {"r-Quelmar"}});
    const auto gris = [](QRgb c) { return qGray(c); };
    EXPECT_GT(std::abs(gris(0x0072b2) - gris(0xd55e00)), 15);
    EXPECT_NE(i.svg.find("#0072b2"), std::string::npos);
    EXPECT_NE(i.svg.find("#d55e00"), std::string::npos);
    EXPECT_NE(i.svg.find("stroke-dasharray"), std::string::npos) << "and its dashes tell it too";
}

TEST_F(EntregaDeMemoria, MuertaEnCualquierLlamadaDejaElArchivoViejoOElNuevoEntero)
{
    const std::string nuevo = Hace(Formato::Pdf, {"empiricas", "verificacion"});
    ASSERT_GT(nuevo.size(), 10000U);
    int muertes = 0;
    for (const double hecha : {0.0, 0.5, 1.0})
        for (int n = 1; n < 40; ++n) {
            const apoyo::CarpetaTemporal carpeta;
            const std::string ruta = carpeta.Ruta("memoria.pdf");
            fallas::PonContenido(carpeta.Camino(), {{"memoria.pdf", "la de antes"}});
            const apoyo::Fin fin = apoyo::EnOtroProceso(
                [&] { EscribeEntera(fallas::Disco({.llamada = n, .hecha = hecha}), ruta, nuevo); });
            const std::string queda = apoyo::BytesDeArchivo(ruta);
            EXPECT_TRUE(queda == "la de antes" || queda == nuevo) << n;
            if (fin == apoyo::Fin::Entero) break;
            ++muertes;
            // The next one finds its way, and leaves nothing beside it.
            EscribeEntera(model::DiscoDelSistema(), ruta, nuevo);
            EXPECT_EQ(fallas::ContenidoDe(carpeta.Camino()), (fallas::Contenido{{"memoria.pdf", nuevo}}))
                << n;
        }
    EXPECT_GE(muertes, 6);
}

TEST_F(EntregaDeMemoria, UnDiscoLlenoLaDejaComoEstaba)
{
    const apoyo::CarpetaTemporal carpeta;
    const std::string ruta = carpeta.Ruta("memoria.pdf");
    fallas::PonContenido(carpeta.Camino(), {{"memoria.pdf", "la de antes"}});
    const auto lleno = fallas::Disco({.llamada = 1, .error = std::errc::no_space_on_device, .sigue = true});
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { EscribeEntera(lleno, ruta, "nueva"); }), 75);
    EXPECT_EQ(fallas::ContenidoDe(carpeta.Camino()), (fallas::Contenido{{"memoria.pdf", "la de antes"}}));
}

}  // namespace
}  // namespace report
