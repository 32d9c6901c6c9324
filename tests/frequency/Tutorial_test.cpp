// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tutorial's chapter from maxima to the table of storms says what the program makes of the delivered
// ones. The table was worked out apart from the same forty years with 16 digits: L-moments, GEV, straight
// line in logarithms.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frequency/Maximos.h"
#include "frequency/idf/Curvas.h"
#include "frequency/tormenta/Planes.h"
#include "model/ArchivosTormenta.h"
#include "model/Disco.h"
#include "model/Siro.h"

namespace {

using Tormentas = std::map<std::pair<int, int>, int>;  // depth [mm] of a duration [min] and a recurrence

Tormentas DeLaRegion()
{
    model::Siro s;
    s.Disco = model::DiscoDelSistema();
    s.Proyecto.DirTrabajo = SIRO_DATA_DIR;
    EXPECT_TRUE(model::LeeTablaPDRs(s));
    const model::TablasDeLluvia& t = s.TablasDeLluvia;
    Tormentas tormentas;
    for (int i = 1; i <= t.NroFilasTabla[0]; ++i)
        tormentas[{t.TablasD(0, i), t.TablasR(0, i)}] = t.TablasP(0, i);
    return tormentas;
}

study::Estacion Quelmar()
{
    const frequency::Serie serie =
        frequency::LeeMaximos(model::DiscoDelSistema().Lee(SIRO_DATA_DIR "/Proyectos/MaximosQuelmar.csv"));
    EXPECT_TRUE(serie.errores.empty());
    study::Estacion estacion{.nombre = "Quelmar"};
    study::SerieDeMaximos diaria{.lecturaDiaria = true, .ley = "gev", .metodo = "l"};
    for (const frequency::Maximo& m : serie.maximos)
        diaria.maximos.push_back({.anio = m.anio, .valor = m.valor});
    estacion.series = {std::move(diaria)};
    return estacion;
}

Tormentas DelTaller()
{
    const std::vector<study::Estacion> estaciones{Quelmar()};
    const frequency::idf::Curvas curvas = frequency::idf::Calcula(study::Idf{}, estaciones);
    EXPECT_TRUE(curvas.errores.empty());
    const frequency::PlanDeTabla plan = frequency::PlaneaTabla(
        {.lamina = [&](double minutos, double anios) { return Lamina(curvas, minutos, anios); },
         .duraciones = {10, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440},
         .recurrencias = {2, 5, 10, 20, 25, 40, 50, 100, 200, 1000}});
    EXPECT_TRUE(plan.error.empty()) << plan.error;
    Tormentas tormentas;
    for (const frequency::FilaDeTormenta& fila : plan.filas)
        tormentas[{fila.d, fila.r}] = fila.p;
    return tormentas;
}

/// A row of a table of the page.
std::string Fila(std::string texto, const std::vector<int>& numeros)
{
    texto = "<tr><td>" + texto + "</td>";
    for (const int n : numeros)
        texto += "<td>" + std::to_string(n) + "</td>";
    return texto + "</tr>";
}

TEST(Tutorial, DeCuarentaMaximosSalenLas140TormentasQueDice)
{
    const Tormentas region = DeLaRegion(), taller = DelTaller();
    ASSERT_EQ(region.size(), 140u);
    ASSERT_EQ(taller.size(), 140u);

    // 50 years: 37.139, 44.166, 48.878, ... mm; mean differences in percent: 36.76, 11.51, 3.94, ...
    const std::array<int, 8> duraciones{10, 20, 30, 60, 120, 360, 720, 1440};
    const std::vector<int> cincuenta{37, 44, 49, 58, 69, 91, 108, 129}, medias{37, 12, 4, -3, -5, -4, -2, 1};
    std::vector<int> dePuesta;
    for (std::size_t k = 0; k < duraciones.size(); ++k) {
        const int d = duraciones[k];
        EXPECT_EQ(taller.at({d, 50}), cincuenta[k]) << d;
        dePuesta.push_back(region.at({d, 50}));
        double suma = 0;
        for (const auto& [clave, p] : region)
            if (clave.first == d) suma += 100.0 * (taller.at(clave) - p) / p;
        EXPECT_NEAR(suma / 10, medias[k], 0.51) << d;
    }
    for (const auto& [clave, p] : region) {
        const double diferencia = 100.0 * (taller.at(clave) - p) / p;
        if (clave.first < 30) continue;
        EXPECT_GT(diferencia, -7.5) << clave.first;
        EXPECT_LT(diferencia, 5.5) << clave.first;
    }

    const std::string pagina = model::DiscoDelSistema().Lee(SIRO_DATA_DIR "/Ayuda/tutorial.html");
    for (const std::string& fila : {Fila("Tabla del taller, 50 años [mm]", cincuenta),
                                    Fila("Tabla de la región, 50 años [mm]", dePuesta),
                                    Fila("Diferencia media de las diez recurrencias [%]", medias)})
        EXPECT_NE(pagina.find(fila), std::string::npos) << fila;
}

}  // namespace
