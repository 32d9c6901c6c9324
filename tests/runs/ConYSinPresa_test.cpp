// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tutorial's chapter on the sample project with and without its dam says what the program makes of both.
// Peaks and level are worked out apart as well: from the hydrographs above the dam, by the storage equation
// dS/dt = I - Q(h(S)) in steps of 0.6 s over the rows of the table, and by Muskingum's equation (Chow,
// Maidment, Mays, Applied Hydrology, 1988, eq. 8.4.8) in the two reaches below it.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/Compara.h"
#include "checks/ResumenDeCorrida.h"
#include "engine/modProceso0.h"
#include "model/ArchivosTormenta.h"
#include "model/Clases.h"
#include "model/Componentes.h"
#include "runs/Comparacion.h"
#include "runs/ProyectoCorrido.h"

namespace runs {
namespace {

using checks::CifraDeResumen;
using pruebas::ProyectoCorrido;
using Caudales = std::vector<double>;

/// Sample project under 80 mm in 120 min of constant intensity, steps of 10 min, whole or as the chapter
/// leaves it: c-Quelmar3 drains into c-Quelmar4, and r-Quelmar is gone.
struct Proyecto : ProyectoCorrido {
    explicit Proyecto(bool conPresa)
    {
        PonMuestra();
        s.Tormenta.PpTormenta = 80;
        s.Tormenta.DurTormenta = 120;
        s.Pasos.PasoPp = s.Pasos.PasoQ = 10;
        if (conPresa) return;
        engine::CargaProyecto(s);
        s.Red.Cauces(model::NumeroDe<model::Cauce>(s.Red, "c-Quelmar3")).Cauce_aa = "c-Quelmar4";
        s.Red.ColRepresas.Quita(model::NumeroDe<model::Represa>(s.Red, "r-Quelmar"));
        EXPECT_TRUE(model::GuardaRed(s));
    }
};

struct ConYSinPresa : testing::Test {
    Proyecto con{true}, sin{false};
};

double CifraDe(const Comparacion& c, const std::string& componente, std::string_view magnitud,
               std::size_t lado)
{
    for (const Cifra& x : c.cifras)
        if (x.componente == componente && x.magnitud == magnitud && x.valores[lado]) return *x.valores[lado];
    ADD_FAILURE() << componente << " " << magnitud;
    return 0;
}

/// Outflow of a component from the beginning of the storm on [m3/s].
Caudales Sale(const checks::UltimaCorrida& u, const std::string& nombre)
{
    const auto fila = static_cast<int>(std::ranges::find(u.r().Secuencia, nombre) - u.r().Secuencia.begin());
    Caudales q{0};
    for (int i = 1; i <= u.r().NroPasosQ; ++i)
        q.push_back(double{u.r().QSale(fila, i)});
    return q;
}

Caudales Suma(Caudales a, const Caudales& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        a[i] += b[i];
    return a;
}

Caudales Muskingum(const Caudales& entra, double K, double x)
{
    constexpr double Paso = 10;
    const double d = 2 * K * (1 - x) + Paso;
    Caudales sale{entra[0]};
    for (std::size_t i = 1; i < entra.size(); ++i)
        sale.push_back((Paso - 2 * K * x) / d * entra[i] + (Paso + 2 * K * x) / d * entra[i - 1] +
                       (2 * K * (1 - x) - Paso) / d * sale.back());
    return sale;
}

/// r-Quelmar as its files describe it: height [m] and storage [m3]; a low outlet over all heights, a spillway
/// from 14 m on.
constexpr auto Tabla = std::to_array<std::pair<double, double>>(
    {{12, 1170000}, {13, 1391000}, {14, 1635500}, {15, 1904000}, {16, 2197500}, {17, 2516500}});
double Altura(double S)
{
    std::size_t i = 1;
    while (S > Tabla[i].second)
        ++i;
    const auto [h, s] = Tabla[i - 1];
    return h + (Tabla[i].first - h) * (S - s) / (Tabla[i].second - s);
}
double Descarga(double h)
{
    return 0.13 * std::sqrt(h) + (h > 14 ? 50 * std::pow(h - 14, 1.5) : 0);
}

struct Piscina {
    Caudales sale{Descarga(14)};
    double mayor = 14, S = 1635500;
};
Piscina Propaga(const Caudales& entra)
{
    constexpr int Partes = 1000;
    constexpr double dt = 600.0 / Partes;
    Piscina p;
    for (std::size_t k = 1; k < entra.size(); ++k) {
        for (int j = 0; j < Partes; ++j) {
            const auto I = [&](int n) { return entra[k - 1] + (entra[k] - entra[k - 1]) * n / Partes; };
            const double a = I(j) - Descarga(Altura(p.S));
            p.S += (a + I(j + 1) - Descarga(Altura(p.S + a * dt))) / 2 * dt;
            p.mayor = std::max(p.mayor, Altura(p.S));
        }
        p.sale.push_back(Descarga(Altura(p.S)));
    }
    return p;
}

/// The outfall for what leaves the dam's place.
Caudales Salida(const checks::UltimaCorrida& u, const Caudales& delSitio)
{
    const Caudales en4 = Suma(Suma(delSitio, Sale(u, "c-Calfún")), Sale(u, "u-Puesto"));
    return Muskingum(Suma(Suma(Muskingum(en4, 12.4, 0.16), Sale(u, "c-Desagüe")), Sale(u, "u-Estancia")), 10,
                     0.15);
}

std::string Fila(const std::string& que, const std::vector<std::string>& celdas)
{
    std::string fila = "<tr><td>" + que + "</td>";
    for (const std::string& celda : celdas)
        fila += "<td>" + celda + "</td>";
    return fila + "</tr>";
}

void EsperaEnLaPagina(const std::string& texto)
{
    static const std::string pagina = apoyo::BytesDeArchivo(SIRO_DATA_DIR "/Ayuda/tutorial.html");
    EXPECT_NE(pagina.find(texto), std::string::npos) << texto;
}

TEST_F(ConYSinPresa, ElCapituloDiceLosPicosYVolumenesYSalenTambienPorSeparado)
{
    const auto conPresa = con.CorreUna(), sinPresa = sin.CorreUna();
    ASSERT_TRUE(conPresa != nullptr && sinPresa != nullptr);
    const Comparacion c = Compara({{"Quelmar, última corrida", conPresa}, {"SinPresa", sinPresa}});
    ASSERT_EQ(c.parametros.size(), 2u);
    EXPECT_EQ(c.parametros[0].valores, (std::vector<std::string>{"r-Quelmar", "c-Quelmar4"}));
    EXPECT_EQ(c.parametros[1].componente, "r-Quelmar");
    EXPECT_EQ(c.parametros[1].valores, (std::vector<std::string>{"está", "no está"}));

    const Piscina p = Propaga(Sale(*conPresa, "c-Quelmar3"));
    const Caudales q3 = Sale(*sinPresa, "c-Quelmar3");
    const std::array<Caudales, 2> salidas{Salida(*conPresa, p.sale), Salida(*sinPresa, q3)};
    for (std::size_t k = 0; k < 2; ++k) {
        const auto pico = std::ranges::max_element(salidas[k]);
        EXPECT_NEAR(CifraDe(c, "", "Qp sale", k), *pico, 0.02);
        EXPECT_EQ(CifraDe(c, "", "tp sale", k), 10.0 * static_cast<double>(pico - salidas[k].begin()));
    }
    EXPECT_NEAR(CifraDe(c, "r-Quelmar", "Qp sale", 0), *std::ranges::max_element(p.sale), 0.02);
    EXPECT_NEAR(CifraDe(c, "r-Quelmar", "H máx", 0), p.mayor, 0.01);
    // What the outfall lacks stands above the spillway's sill, but for what is still on its way.
    EXPECT_NEAR(CifraDe(c, "", "V sale", 1) - CifraDe(c, "", "V sale", 0), p.S - 1635500, 2500);

    const auto fila = [&](const std::string& que, const std::string& componente, std::string_view magnitud,
                          int decimales) {
        const double a = CifraDe(c, componente, magnitud, 0), b = CifraDe(c, componente, magnitud, 1);
        EsperaEnLaPagina(Fila(que, {CifraDeResumen(a, decimales, true), CifraDeResumen(b, decimales, true),
                                    CifraDeResumen(*Diferencia(a, b), decimales, true),
                                    CifraDeResumen(*PorCiento(a, b), 1, true)}));
    };
    fila("Pico que entra a c-Quelmar4, al pie de la presa [m3/s]", "c-Quelmar4", "Qp entra", 1);
    fila("Pico a la salida de la cuenca [m3/s]", "", "Qp sale", 1);
    fila("Su hora [min]", "", "tp sale", 0);
    fila("Volumen que sale de la cuenca [m3]", "", "V sale", 0);
    EsperaEnLaPagina("entra un pico de " + CifraDeResumen(CifraDe(c, "r-Quelmar", "Qp entra", 0), 1, true) +
                     " m<sup>3</sup>/s y sale uno de " +
                     CifraDeResumen(CifraDe(c, "r-Quelmar", "Qp sale", 0), 1, true));
    EsperaEnLaPagina("sube hasta " + CifraDeResumen(CifraDe(c, "r-Quelmar", "H máx", 0), 2, true) + " m");
}

TEST_F(ConYSinPresa, ElCapituloDiceLosPicosDeLaSerie)
{
    const auto conPresa = con.CorreSerie(0), sinPresa = sin.CorreSerie(0);
    ASSERT_TRUE(conPresa != nullptr && sinPresa != nullptr);
    const Lados lados{{"Quelmar", conPresa}, {"SinPresa", sinPresa}};
    const Comparacion c = Compara(lados);
    const auto salida =
        std::ranges::find_if(c.componentes, [](const Emparejado& e) { return e.Nombre() == "c-Quelmar5"; });
    ASSERT_NE(salida, c.componentes.end());
    std::vector<std::string> duraciones, conElla, sinElla, diferencias;
    double anterior = 1e9;
    for (const PicoDeSerie& p : PicosDeSerie(lados, *salida)) {
        if (p.R != 100) continue;
        const double parte = *PorCiento(p.picos[0], p.picos[1]);
        EXPECT_LT(parte, anterior) << "the longer the storm, the less the dam does; D " << p.D;
        anterior = parte;
        if (p.D != 10 && p.D != 60 && p.D != 120 && p.D != 360 && p.D != 1440) continue;
        duraciones.push_back(std::to_string(p.D));
        conElla.push_back(CifraDeResumen(*p.picos[0], 1, true));
        sinElla.push_back(CifraDeResumen(*p.picos[1], 1, true));
        diferencias.push_back(CifraDeResumen(parte, 0, true));
    }
    ASSERT_EQ(duraciones.size(), 5u);
    EsperaEnLaPagina(Fila("Con la represa [m3/s]", conElla));
    EsperaEnLaPagina(Fila("Sin ella [m3/s]", sinElla));
    EsperaEnLaPagina(Fila("Diferencia [%]", diferencias));
}

}  // namespace
}  // namespace runs
