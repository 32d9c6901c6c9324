// SPDX-License-Identifier: GPL-3.0-or-later
//
// HTML and OpenDocument of the whole memoria with its figures drawn. With SIRO_FOTOS=folder they are kept
// there.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "checks/Verifica.h"
#include "frequency/Maximos.h"
#include "report/CorridaDeMuestra.h"
#include "report/Figuras_ventana.h"
#include "report/Html.h"
#include "report/Memoria.h"
#include "report/Odt.h"
#include "report/Plantilla.h"
#include "study/Paquete.h"

namespace report {
namespace {

study::Taller TallerDeQuelmar()
{
    study::Taller t;
    study::SerieDeMaximos serie =
        frequency::LeeTabla(apoyo::BytesDeArchivo(SIRO_DATA_DIR "/Proyectos/MaximosQuelmar.csv"))
            .series.at(0);
    serie.lecturaDiaria = true;
    t.estaciones = {{.nombre = "Quelmar", .fuente = "Datos de muestra del programa", .series = {serie}}};
    t.tormenta.duracion = 120;
    return t;
}

TEST(DocumentosConFiguras, CadaFiguraVaDibujada)
{
    CorridaDeMuestra muestra;
    muestra.datos.estudio.taller = TallerDeQuelmar();
    muestra.datos.casos = checks::Verifica();
    const Documento d = Memoria(
        muestra.datos,
        {.comitente = "Dirección de Hidráulica", .tc = empirical::DatosTc{.L = 12, .H = 300, .i = 2.5}},
        PlantillaDeFabrica());
    Figuras figuras(muestra.datos, ',');
    const auto dibuja = [&](const Figura& f) { return figuras.Dibuja(f); };
    const std::string odt = Odt(d, dibuja), html = Html(d, dibuja);
    std::size_t puestas = 0, svg = 0, png = 0;
    for (const Bloque& b : d.bloques)
        if (std::holds_alternative<FiguraPuesta>(b)) ++puestas;
    for (const study::Pieza& p : study::Desempaqueta(odt)) {
        svg += p.nombre.ends_with(".svg") ? 1 : 0;
        png += p.nombre.ends_with(".png") ? 1 : 0;
    }
    EXPECT_GT(puestas, 7U);
    EXPECT_EQ(svg, puestas);
    EXPECT_EQ(png, puestas);
    EXPECT_EQ(html.find("No se pudo dibujar"), std::string::npos);
    const char* const copia = std::getenv("SIRO_FOTOS");
    if (copia == nullptr) return;
    std::ofstream(std::string(copia) + "/memoria.odt", std::ios::binary) << odt;
    std::ofstream(std::string(copia) + "/memoria.html", std::ios::binary) << html;
}

}  // namespace
}  // namespace report
