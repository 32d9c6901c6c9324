// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "engine/EmbalseSolo.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"

// What enters each component, less what it stores and what the end of the run cuts off, is what leaves it:
// over random networks, each kind by the equation that its method keeps.
namespace engine {
namespace {

using pruebas::RedAMano;
using pruebas::RenglonHASQ;

/// A random tree: UEHs into reaches, Lagos and Represas; each Lago and Represa into a reach; reaches into
/// reaches of a lower number, the first one to the outfall. Every component is fed.
class RedAlAzar : public RedAMano {
  public:
    explicit RedAlAzar(unsigned semilla) : azar(semilla)
    {
        s.Proyecto.DirTrabajo = "/trabajo";
        disco.PonDirectorio("/trabajo");
        s.Control.AvisoDescargasVisto = true;
        s.Pasos.PasoQ = Uno(std::vector<std::int16_t>{5, 10});
        s.Pasos.PasoPp = static_cast<std::int16_t>(s.Pasos.PasoQ * Entero(1, 3));
        s.Tormenta.DurTormenta = static_cast<std::int16_t>(s.Pasos.PasoPp * Entero(1, 12));
        s.Tormenta.PpTormenta = Real(5, 120);
        s.Tormenta.DistriPp = Uno(std::vector<std::int16_t>{0, 1, 2, 3, 4});
        s.Pasos.N0Dur = static_cast<float>(Entero(30, 900));
        const int cauces = Entero(1, 9);
        for (int i = 1; i <= cauces; ++i)
            PonCauceAlAzar(i);
        for (int i = 1; i <= cauces; ++i)
            PonUEHAlAzar("c-" + std::to_string(i));
        for (int i = Entero(0, 3); i > 0; --i)
            PonEmbalseAlAzar("l-" + std::to_string(i), cauces);
        for (int i = Entero(0, 3); i > 0; --i)
            PonEmbalseAlAzar("r-" + std::to_string(i), cauces);
    }
    bool Corre()
    {
        CuentaComponentes();
        LlenaTablas();
        ConstruyeHietograma(s);
        return ProcesoPrincipal(s, false);
    }

  private:
    int Entero(int a, int b) { return std::uniform_int_distribution<int>(a, b)(azar); }
    float Real(float a, float b) { return std::uniform_real_distribution<float>(a, b)(azar); }
    template <typename T>
    T Uno(const std::vector<T>& de)
    {
        return de[static_cast<std::size_t>(Entero(0, static_cast<int>(de.size()) - 1))];
    }
    void PonUEHAlAzar(const std::string& destino)
    {
        PonUEH("u-" + std::to_string(s.Red.ColUEHs.Cuenta() + 1), destino);
        model::UEH& u = s.Red.ColUEHs.Item(s.Red.ColUEHs.Cuenta());
        u.Area = Real(1, 300);
        u.LongitudMax = Real(100, 4000);
        u.VelMedia = Real(0.2F, 3);
        u.RetensionZ = Real(0, 10);  // and no infiltration, so that the excess is known
    }
    void PonCauceAlAzar(int i)
    {
        model::Cauce& c =
            PonCauce("c-" + std::to_string(i), i == 1 ? "0" : "c-" + std::to_string(Entero(1, i - 1)));
        c.optDirMusk = Entero(0, 1) == 1;
        c.LongCauce = Real(100, 9000);
        c.VelMediaCauce = Real(0.4F, 3);
        do {
            c.Cauce_k_Musk = static_cast<float>(Entero(5, 60));
            c.Cauce_n_Musk = static_cast<float>(Entero(0, 40)) / 100;
        } while (!SumaUno(c.Cauce_k_Musk, c.Cauce_n_Musk));
    }
    [[nodiscard]] bool SumaUno(double K, double x) const
    {
        const double m = 0.5 * s.Pasos.PasoQ;
        const auto d = static_cast<float>(K - K * x + m);
        const auto C0 = static_cast<float>((m - K * x) / d), C1 = static_cast<float>((K * x + m) / d),
                   C2 = static_cast<float>((K - K * x - m) / d);
        return static_cast<float>(double{C0} + C1 + C2) == 1;
    }
    void PonEmbalseAlAzar(const std::string& nombre, int cauces)
    {
        // Wide and tall enough that no height leaves the table: walls, S = 10000·A·d, Q = q·d².
        const float A = Real(5, 50), q = Real(0.5F, 20);
        std::vector<RenglonHASQ> tabla;
        for (int k = 0; k <= 40; ++k) {
            const auto d = static_cast<float>(k);
            tabla.push_back({100 + d, A, static_cast<std::int32_t>(10000 * A * d), q * d * d});
        }
        const std::string metodo = Uno(std::vector<std::string>{"Piscina Nivelada", "Runge Kutta"});
        const std::string destino = "c-" + std::to_string(Entero(1, cauces));
        if (nombre.starts_with("l-")) {
            model::Lago& l = PonLago(nombre, metodo, tabla);
            l.Cauce_aa = destino;
            l.HInicialEmb = 100;
        } else {
            model::Represa& r = PonRepresa(nombre, metodo, tabla);
            r.Cauce_aa = destino;
            r.HInicialEmb = 100;
        }
        PonUEHAlAzar(nombre);
    }
    std::mt19937 azar;
};

/// Volume [m3] that a hydrograph carries over the steps a..b.
double Volumen(const model::Siro& s, const model::Matriz<float>& q, int fila, int a, int b)
{
    double v = 0;
    for (int p = a; p <= b; ++p)
        v += double{q(fila, p)} * s.Pasos.PasoQ * 60;
    return v;
}

/// Half of the first and the last flow of the steps a..b [m3]: what the trapezoid rule leaves of their sum.
double Extremos(const model::Siro& s, const model::Matriz<float>& q, int fila, int a, int b)
{
    return (double{q(fila, a)} + q(fila, b)) / 2 * s.Pasos.PasoQ * 60;
}

void BalanceDeUEH(const model::Siro& s, int fila)
{
    const model::UEH& u = s.Red.ColUEHs.Item(fila);
    const double exceso =
        std::max(0.0, double{s.Tormenta.PpUEH(fila)} - u.RetensionZ);  // [mm] of the steps that ran
    const double entra = exceso * u.Area * 10 * (0.166667 * 6);        // the constant isn't 1/6
    const double sale = Volumen(s, s.Resultados.QSale, fila, 1, s.Resultados.NroPasosQ + 1);
    const bool sinTiempo = std::nearbyint(double{u.LongitudMax} / u.VelMedia / 60) == 0;
    if (sinTiempo) return;
    EXPECT_NEAR(sale, entra, 1e-4 * entra + 0.5) << u.NombreUEH;
}

void BalanceDirecto(const model::Siro& s, int fila, const model::Cauce& c)
{
    const double minutos = std::nearbyint(double{c.LongCauce} / c.VelMediaCauce / 60);
    const int retardo = static_cast<int>(std::nearbyint(minutos / s.Pasos.PasoQ));
    const double entra = Volumen(s, s.Resultados.QEntra, fila, 1, s.Resultados.NroPasosQ);
    const double cortado = Volumen(s, s.Resultados.QEntra, fila,
                                   std::max(1, s.Resultados.NroPasosQ - retardo + 1), s.Resultados.NroPasosQ);
    const double sale = Volumen(s, s.Resultados.QSale, fila, 1, s.Resultados.NroPasosQ);
    EXPECT_NEAR(sale, entra - cortado, 1e-5 * entra + 0.5) << c.NombreCauce;
}

void BalanceMuskingum(const model::Siro& s, int fila, const model::Cauce& c)
{
    const int n = s.Resultados.NroPasosQ;
    const double K = double{c.Cauce_k_Musk} * 60, x = c.Cauce_n_Musk;
    const auto almacenado = [&](int p) {
        return K * (x * s.Resultados.QEntra(fila, p) + (1 - x) * s.Resultados.QSale(fila, p));
    };
    const double entra =
        Volumen(s, s.Resultados.QEntra, fila, 1, n) - Extremos(s, s.Resultados.QEntra, fila, 1, n);
    const double sale =
        Volumen(s, s.Resultados.QSale, fila, 1, n) - Extremos(s, s.Resultados.QSale, fila, 1, n);
    EXPECT_NEAR(entra - sale, almacenado(n) - almacenado(1), 1e-4 * entra + 1) << c.NombreCauce;
}

void BalanceDeEmbalse(const model::Siro& s, int fila, const std::string& nombre)
{
    const bool esLago = nombre.starts_with("l-");
    int numero = 0;
    std::string metodo;
    for (const auto& l : s.Red.ColLagos)
        if (l.NombreLAGO == nombre) numero = l.numLAGO, metodo = l.Metodo;
    for (const auto& r : s.Red.ColRepresas)
        if (r.NombreRepresa == nombre) numero = r.numRepresa, metodo = r.Metodo;
    const model::Matriz<float>& S = esLago ? s.Resultados.SLago : s.Resultados.SRepresa;
    const int n = s.Resultados.NroPasosQ;
    const double entra =
        Volumen(s, s.Resultados.QEntra, fila, 0, n) - Extremos(s, s.Resultados.QEntra, fila, 0, n);
    const double sale =
        Volumen(s, s.Resultados.QSale, fila, 0, n) - Extremos(s, s.Resultados.QSale, fila, 0, n);
    // The level pool stands within 5 mm of its height, and on an empty bottom it lets out in every step what
    // runs at those 5 mm. Runge-Kutta, of the third order, is off by a part of what passes through.
    const double area = double{(esLago ? s.Red.LagoA : s.Red.RepresaA)(numero, 1)} * 10000;
    const double caudal5mm = 0.005 * (esLago ? s.Red.LagoQ : s.Red.RepresaQQ)(numero, 2);
    const double de5mm = 0.005 * area + caudal5mm * n * s.Pasos.PasoQ * 60;
    const double tolerancia = metodo == "Runge Kutta" ? 0.02 * entra + de5mm : de5mm + 1e-4 * entra;
    EXPECT_NEAR(entra - sale, S(numero, n), tolerancia) << nombre << ", " << metodo;
}

class BalanceDeAgua : public testing::TestWithParam<unsigned> {};

TEST_P(BalanceDeAgua, LoQueEntraMenosLoQueQuedaEsLoQueSale)
{
    RedAlAzar red(GetParam());
    ASSERT_TRUE(red.Corre());
    ASSERT_TRUE(red.anfitrion->sucesos.empty());
    const model::Siro& s = red.s;
    for (int fila = 1; fila <= s.Red.NroUEHs(); ++fila)
        BalanceDeUEH(s, fila);
    for (int fila = s.Red.NroUEHs() + 1; fila <= s.Resultados.NroComponentes; ++fila) {
        const std::string& nombre = s.Resultados.Secuencia[static_cast<std::size_t>(fila)];
        if (!nombre.starts_with("c-")) {
            BalanceDeEmbalse(s, fila, nombre);
            continue;
        }
        for (const model::Cauce& c : s.Red.ColCauces) {
            if (c.NombreCauce != nombre) continue;
            if (c.optDirMusk)
                BalanceDirecto(s, fila, c);
            else
                BalanceMuskingum(s, fila, c);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Redes, BalanceDeAgua, testing::Range(1U, 201U));

}  // namespace
}  // namespace engine
