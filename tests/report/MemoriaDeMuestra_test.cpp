// SPDX-License-Identifier: GPL-3.0-or-later
//
// The memoria of the delivered sample project, with a storm, its series and a study of its rain.

#include <gtest/gtest.h>

#include <algorithm>

#include "batch/Lote.h"
#include "frequency/Maximos.h"
#include "report/CorridaDeMuestra.h"
#include "report/Html.h"
#include "report/Memoria.h"
#include "report/Odt.h"
#include "report/Plantilla.h"

namespace report {
namespace {

CorridaDeMuestra& Muestra()
{
    static CorridaDeMuestra muestra;
    return muestra;
}

study::Taller Taller()
{
    study::Taller t;
    study::SerieDeMaximos serie =
        frequency::LeeTabla(apoyo::BytesDeArchivo(SIRO_DATA_DIR "/Proyectos/MaximosQuelmar.csv"))
            .series.at(0);
    serie.lecturaDiaria = true;
    serie.ley = "gumbel";
    serie.metodo = "momentos-l";
    serie.motivo = "Es la de la región.";
    t.estaciones = {{.nombre = "Quelmar <norte>", .fuente = "Datos de muestra", .series = {serie}}};
    t.tormenta.duracion = 120;
    t.tormenta.recurrencia = 50;
    return t;
}

const Tabla* TablaDe(const Documento& d, std::string_view titulo)
{
    for (const Bloque& b : d.bloques)
        if (const auto* const t = std::get_if<Tabla>(&b))
            if (t->titulo.starts_with(titulo)) return t;
    return nullptr;
}

std::string Todo(const Documento& d)
{
    return Html(d, {});
}

TEST(MemoriaDeQuelmar, TieneTodosLosCapitulosSinFaltas)
{
    Datos datos = Muestra().datos;
    datos.estudio.taller = Taller();
    datos.casos = checks::Verifica();
    const Documento d = Memoria(datos, {}, PlantillaDeFabrica());
    EXPECT_EQ(d.faltas, std::vector<Falta>{});
    std::vector<std::string> capitulos;
    for (const Bloque& b : d.bloques)
        if (const auto* const t = std::get_if<Titulo>(&b))
            if (t->nivel == 1) capitulos.push_back(t->texto);
    EXPECT_EQ(capitulos.size(), CapitulosDe(PlantillaDeFabrica()).size());
    for (const std::string_view titulo : {"Unidades",
                                          "Pérdidas",
                                          "Cauces",
                                          "Represas",
                                          "Altura, superficie",
                                          "Máximos anuales",
                                          "Pruebas",
                                          "Leyes",
                                          "Lámina de cada",
                                          "Coeficientes",
                                          "Intensidad",
                                          "Tormenta de diseño",
                                          "Hietograma",
                                          "Resultados",
                                          "Láminas de las tormentas",
                                          "Caudales máximos de",
                                          "La mayor crecida",
                                          "Niveles",
                                          "Fórmulas empíricas",
                                          "Balance",
                                          "Casos publicados"})
        EXPECT_NE(TablaDe(d, titulo), nullptr) << titulo;
    EXPECT_EQ(Todo(d).find("(sin dato)"), std::string::npos);
    EXPECT_NE(Todo(d).find("Quelmar &lt;norte&gt;"), std::string::npos);
    EXPECT_NE(Todo(d).find("Es la de la región."), std::string::npos);
    EXPECT_NE(Todo(d).find("La tormenta corrida no es la de diseño del estudio"), std::string::npos);
}

// A day's readings stay a day's; what a factor of 1.13 makes of them is of 24 hours. Gumbel by L-moments:
// alfa = l2 / ln 2, xi = l1 - 0.577216 alfa; x(50) = xi + 3.901939 alfa.
TEST(MemoriaDeQuelmar, LaLaminaDeCadaRecurrenciaEsLaDeLaLey)
{
    Datos datos = Muestra().datos;
    datos.estudio.taller = Taller();
    std::vector<double> x;
    for (const study::Maximo& m : datos.estudio.taller.estaciones[0].series[0].maximos)
        x.push_back(m.valor);
    std::sort(x.begin(), x.end());
    double b0 = 0, b1 = 0;
    const auto n = static_cast<double>(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        b0 += x[i] / n;
        b1 += x[i] * static_cast<double>(i) / (n - 1) / n;
    }
    const double alfa = (2 * b1 - b0) / 0.693147180559945, xi = b0 - 0.577215664901533 * alfa;
    const double x50 = xi + 3.901938657 * alfa;
    const auto celda = [&](std::string_view columna) {
        const Documento d = Memoria(datos, {.decimal = '.'}, "[[tabla cuantiles]]");
        const Tabla& t = std::get<Tabla>(d.bloques.at(0));
        EXPECT_EQ(EnLlano(t.columnas.at(1).titulo), columna);
        for (const auto& fila : t.filas)
            if (fila[0] == "50") return std::stod(fila[1]);
        return 0.0;
    };
    EXPECT_NEAR(celda("24 h"), 1.13 * x50, 0.051);
    // This one starts from a day.
    datos.estudio.taller.idf.desagregacion = "5.2-ic";
    datos.estudio.taller.idf.coeficientes = {{"I1Id", 10}};
    EXPECT_NEAR(celda("1 día"), x50, 0.051);
}

// The peaks of the table are those of the run, at the duration and recurrence that its head tells.
TEST(MemoriaDeQuelmar, LosPicosDeLaSerieEstanEnSuLugar)
{
    const Datos& datos = Muestra().datos;
    const Documento d = Memoria(datos, {.decimal = '.'}, "[[tabla serie_picos]]");
    const Tabla* const t = TablaDe(d, "Caudales máximos de");
    ASSERT_NE(t, nullptr);
    const model::Serie& s = datos.serie->serie;
    const auto& secuencia = datos.serie->r().Secuencia;
    const auto fila = std::find_if(secuencia.begin() + 1, secuencia.end(), [&](const std::string& nombre) {
        return t->titulo.starts_with("Caudales máximos de " + nombre + ",");
    });
    ASSERT_NE(fila, secuencia.end());
    int vistas = 0;
    for (int n = 1; n <= s.NroSeriePDR; ++n)
        for (const auto& celdas : t->filas)
            for (std::size_t k = 1; k < celdas.size(); ++k)
                if (celdas[0] == std::to_string(s.SerieD(n)) &&
                    EnLlano(t->columnas[k].titulo) == "R " + std::to_string(s.SerieR(n)) + " años" &&
                    celdas[k] != "-") {
                    const float q = datos.serie->r().QMax(static_cast<int>(fila - secuencia.begin()), n);
                    EXPECT_NEAR(std::stod(celdas[k]), q, 0.0005) << n;
                    ++vistas;
                }
    EXPECT_GT(vistas, 20);
}

/// What siro-lote says when it is called by a line of the memoria.
std::string SaleDe(std::string orden)
{
    std::vector<std::string> palabras;
    bool entre = false;
    std::string palabra;
    orden += ' ';
    for (const char c : orden) {
        if (c == '"') {
            entre = !entre;
        } else if (c == ' ' && !entre) {
            palabras.push_back(palabra);
            palabra.clear();
        } else {
            palabra += c;
        }
    }
    palabras.insert(palabras.end(), {"--trabajo", Muestra().dir.Camino().string()});
    std::vector<const char*> argv;
    for (const std::string& p : palabras)
        argv.push_back(p.c_str());
    std::string salida;
    const batch::Salidas salidas{.Estandar = [&](std::string_view t) { salida += t; },
                                 .Errores = [](std::string_view) {}};
    EXPECT_EQ(batch::Lote(static_cast<int>(argv.size()), argv.data(), salidas), 0);
    return salida;
}

TEST(MemoriaDeQuelmar, LaOrdenDeLoteDaLaMismaHuella)
{
    const Datos& datos = Muestra().datos;
    const std::string conf = Muestra().Conf();
    EXPECT_NE(SaleDe(OrdenDeLote(*datos.tormenta, conf)).find(datos.tormenta->huella), std::string::npos);
    EXPECT_NE(SaleDe(OrdenDeLote(*datos.serie, conf)).find(datos.serie->huella), std::string::npos);
    const std::string html = Todo(Memoria(datos, {}, "{{orden}}"));
    EXPECT_NE(
        html.find("siro-lote una Quelmar_Conf.vlm --pp 80 --dur 120 --rec 50 --distribucion 2 --paso-pp 10 "
                  "--paso-q 10 --avisos"),
        std::string::npos)
        << html;
}

TEST(MemoriaDeQuelmar, LosMismosDatosDanLosMismosBytes)
{
    const Datos& datos = Muestra().datos;
    const auto odt = [&] { return Odt(Memoria(datos, {}, PlantillaDeFabrica()), {}); };
    EXPECT_EQ(odt(), odt());
    EXPECT_NE(odt(), Odt(Memoria(datos, {.decimal = '.'}, PlantillaDeFabrica()), {}));
}

}  // namespace
}  // namespace report
