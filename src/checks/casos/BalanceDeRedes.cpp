// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "checks/casos/Banco.h"
#include "checks/casos/Familias.h"
#include "engine/FormulasUEH.h"
#include "engine/Muskingum.h"
#include "model/Clases.h"

// What enters each component, less what it stores and what the end of the run cuts off, is what leaves it:
// over random networks, each kind by the equation that its method keeps.
namespace checks::casos {

namespace {

constexpr int NroRedes = 200;

/// Numbers that are the same on every machine (Numerical Recipes, 1992, 7.1: x = 1664525·x + 1013904223).
class Azar {
  public:
    explicit Azar(std::uint32_t semilla) : x(semilla) {}
    /// Whole, from a to b.
    int Entero(int a, int b)
    {
        x = 1664525U * x + 1013904223U;
        return a + static_cast<int>((x >> 8) % static_cast<std::uint32_t>(b - a + 1));
    }
    /// In hundredths.
    double Real(int a, int b) { return Entero(100 * a, 100 * b) / 100.0; }

  private:
    std::uint32_t x;
};

/// A random tree: UEHs into reaches; each Lago and Represa, fed by a UEH, into a reach; reaches into reaches
/// of a lower number, the first one to the outfall.
class RedAlAzar {
  public:
    explicit RedAlAzar(std::uint32_t semilla) : azar(semilla)
    {
        const int pasoQ = azar.Entero(1, 2) * 5, pasoPp = pasoQ * azar.Entero(1, 3);
        banco.pasos = {.PasoPp = static_cast<std::int16_t>(pasoPp),
                       .PasoQ = static_cast<std::int16_t>(pasoQ),
                       .N0Dur = static_cast<float>(azar.Entero(30, 600))};
        banco.tormenta.DurTormenta = static_cast<std::int16_t>(pasoPp * azar.Entero(1, 8));
        banco.tormenta.PpTormenta = static_cast<float>(azar.Real(20, 120));
        banco.tormenta.DistriPp = static_cast<std::int16_t>(azar.Entero(0, 4));
        const int cauces = azar.Entero(1, 7);
        for (int i = 1; i <= cauces; ++i)
            PonCauce(i == 1 ? "0" : "c-" + std::to_string(azar.Entero(1, i - 1)));
        for (int i = 1; i <= cauces; ++i)
            PonUEH("c-" + std::to_string(i));
        for (int i = azar.Entero(0, 2); i > 0; --i)
            PonEmbalse(cauces, false);
        for (int i = azar.Entero(0, 2); i > 0; --i)
            PonEmbalse(cauces, true);
    }
    Banco banco{};

  private:
    void PonUEH(const std::string& destino)
    {
        // One draw a statement: compilers take the arguments of a call in orders of their own.
        const double retencion = azar.Real(0, 10);  // and no infiltration, so that the excess is known
        const double area = azar.Real(50, 300);
        const int minutos = azar.Entero(5, 90);
        banco.PonUEH(destino, area, minutos).RetensionZ = static_cast<float>(retencion);
    }
    void PonCauce(const std::string& destino)
    {
        model::Cauce& c = banco.PonCauce(destino);
        c.optDirMusk = azar.Entero(0, 1) == 1;
        c.LongCauce = static_cast<float>(azar.Real(100, 9000));
        c.VelMediaCauce = static_cast<float>(azar.Real(1, 3));
        engine::Muskingum m;
        do {
            c.Cauce_k_Musk = static_cast<float>(azar.Entero(5, 60));
            c.Cauce_n_Musk = static_cast<float>(azar.Real(0, 1)) * 0.4F;
        } while (
            !m.Prepara(c.Cauce_k_Musk, c.Cauce_n_Musk, banco.pasos.PasoQ, [](auto cuerpo) { cuerpo(); }));
    }
    void PonEmbalse(int cauces, bool represa)
    {
        // Tall enough that no height leaves the table: walls, S = 10000·A·d, Q = q·d².
        const double A = azar.Real(1, 10), q = azar.Real(1, 5);
        std::vector<Renglon> tabla;
        for (int d = 0; d <= 100; ++d)
            tabla.push_back({100.0 + d, A, 10000 * A * d, q * d * d});
        const std::string_view metodo = azar.Entero(0, 1) == 1 ? Piscina : RungeKutta;
        const std::string destino = "c-" + std::to_string(azar.Entero(1, cauces));
        PonUEH(represa ? banco.PonRepresa(destino, metodo, tabla).NombreRepresa
                       : banco.PonLago(destino, metodo, tabla).NombreLAGO);
    }
    Azar azar;
};

/// One network that has been run, by volumes [m3].
struct Corrida {
    Banco banco{};
    model::Resultados r{};
    model::Tormenta tormenta{};

    /// What a hydrograph carries over the steps a..b.
    [[nodiscard]] double Volumen(const model::Matriz<float>& q, int fila, int a, int b) const
    {
        double v = 0;
        for (int p = a; p <= b; ++p)
            v += q(fila, p);
        return v * banco.pasos.PasoQ * 60;
    }
    /// The same by the rule of the trapezoid.
    [[nodiscard]] double Trapecio(const model::Matriz<float>& q, int fila, int a, int b) const
    {
        return Volumen(q, fila, a, b) - (double{q(fila, a)} + q(fila, b)) / 2 * banco.pasos.PasoQ * 60;
    }
};

/// What is missing of what should have left, in % of what entered; of a pool, in what 5 mm are worth.
struct Faltas {
    double ueh = 0, directo = 0, muskingum = 0, piscina = 0, rungeKutta = 0;
};

void Anota(double& peor, double falta, double entra)
{
    if (entra > 0) peor = std::max(peor, 100 * std::abs(falta) / entra);
}

void BalanceDeUEH(const Corrida& c, int fila, Faltas& f)
{
    const model::UEH& u = c.banco.red.ColUEHs.Item(fila);
    const double exceso = std::max(0.0, double{c.tormenta.PpUEH(fila)} - u.RetensionZ);  // [mm]
    const double entra = exceso * u.Area * 60 * engine::FactorCaudal;
    Anota(f.ueh, c.Volumen(c.r.QSale, fila, 1, c.r.NroPasosQ + 1) - entra, entra);
}

void BalanceDirecto(const Corrida& c, int fila, const model::Cauce& cauce, Faltas& f)
{
    const int n = c.r.NroPasosQ;
    const double minutos = std::nearbyint(double{cauce.LongCauce} / cauce.VelMediaCauce / 60);
    const int retardo = static_cast<int>(std::nearbyint(minutos / c.banco.pasos.PasoQ));
    const double entra = c.Volumen(c.r.QEntra, fila, 1, n);
    const double cortado = c.Volumen(c.r.QEntra, fila, std::max(1, n - retardo + 1), n);
    Anota(f.directo, c.Volumen(c.r.QSale, fila, 1, n) - (entra - cortado), entra);
}

void BalanceMuskingum(const Corrida& c, int fila, const model::Cauce& cauce, Faltas& f)
{
    const int n = c.r.NroPasosQ;
    const double K = double{cauce.Cauce_k_Musk} * 60, x = cauce.Cauce_n_Musk;
    const auto almacenado = [&](int p) {
        return K * (x * c.r.QEntra(fila, p) + (1 - x) * c.r.QSale(fila, p));
    };
    const double entra = c.Trapecio(c.r.QEntra, fila, 1, n), sale = c.Trapecio(c.r.QSale, fila, 1, n);
    Anota(f.muskingum, entra - sale - (almacenado(n) - almacenado(1)), c.Volumen(c.r.QEntra, fila, 1, n));
}

/// A pool's height is looked for down to 5 mm, and on an empty bottom it lets out in every step what runs at
/// those 5 mm: its want is told in what these are worth, and Runge-Kutta's, which doesn't keep the volume, in
/// %.
template <typename T>
void BalanceDeEmbalse(const Corrida& c, int fila, const T& e, const model::Matriz<float>& S, Faltas& f)
{
    const int n = c.r.NroPasosQ;
    const int numero = model::Numero(e);
    const double entra = c.Trapecio(c.r.QEntra, fila, 0, n), sale = c.Trapecio(c.r.QSale, fila, 0, n);
    const double falta = entra - sale - S(numero, n);
    if (e.Metodo != Piscina) return Anota(f.rungeKutta, falta, c.Volumen(c.r.QEntra, fila, 0, n));
    const bool lago = model::DeClase<T>::clase == model::Clase::Lago;
    const model::Red& red = c.banco.red;
    const double area = double{(lago ? red.LagoA : red.RepresaA)(numero, 1)} * 10000;
    const double porMetro = (lago ? red.LagoQ : red.RepresaQQ)(numero, 2);  // of the lowest metre
    const double de5mm = 0.005 * (area + porMetro * n * c.banco.pasos.PasoQ * 60) + 1e-5 * std::abs(entra);
    f.piscina = std::max(f.piscina, std::abs(falta) / de5mm);
}

Faltas BalanceDeRed(std::uint32_t semilla)
{
    Corrida c{.banco = RedAlAzar(semilla).banco};
    engine::Calculo calculo = c.banco.Corre();
    c.r = std::move(calculo.Resultados);
    c.tormenta = std::move(calculo.Tormenta);
    const model::Red& red = c.banco.red;
    Faltas f;
    for (int fila = 1; fila <= c.r.NroComponentes; ++fila) {
        const std::string& nombre = c.r.Secuencia[static_cast<std::size_t>(fila)];
        int numero = 0;
        std::from_chars(nombre.data() + 2, nombre.data() + nombre.size(), numero);
        switch (nombre[0]) {
        case 'u':
            BalanceDeUEH(c, fila, f);
            break;
        case 'c':
            (red.ColCauces.Item(numero).optDirMusk ? BalanceDirecto : BalanceMuskingum)(
                c, fila, red.ColCauces.Item(numero), f);
            break;
        case 'l':
            BalanceDeEmbalse(c, fila, red.ColLagos.Item(numero), c.r.SLago, f);
            break;
        default:
            BalanceDeEmbalse(c, fila, red.ColRepresas.Item(numero), c.r.SRepresa, f);
        }
    }
    return f;
}

/// The worst component of a kind in each network; the networks are made and run anew for each kind.
Comparacion Balance(double Faltas::*clase)
{
    Comparacion c;
    for (int red = 1; red <= NroRedes; ++red) {
        c.x.push_back(red);
        c.impreso.push_back(0);
        c.nuestro.push_back(BalanceDeRed(static_cast<std::uint32_t>(red)).*clase);
    }
    return c;
}

constexpr std::string_view Fuente = "conservación del agua: entra = sale + queda almacenado + corta el fin";
constexpr std::string_view Entrada =
    "200 redes al azar de semilla fija, de hasta 11 UEHs, 7 tramos y 4 embalses, todas las distribuciones "
    "fijas";
constexpr std::string_view Magnitud = "falta de la que más le falta [% de lo que entra]", Red = "red";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Balance de agua de las UEHs", Fuente, Entrada, Magnitud, Red, 0.001,
     "sumas de 32 bits; el exceso es la lluvia menos la retención, sin infiltración", true,
     [] { return Balance(&Faltas::ueh); }},
    {"Balance de agua de los tramos directos", Fuente, Entrada, Magnitud, Red, 0.001, "sumas de 32 bits",
     true, [] { return Balance(&Faltas::directo); }},
    {"Balance de agua de los tramos Muskingum", Fuente, Entrada, Magnitud, Red, 0.001, "sumas de 32 bits",
     true, [] { return Balance(&Faltas::muskingum); }},
    {"Balance de agua de las piscinas niveladas", Fuente, Entrada,
     "falta de la que más le falta [veces lo que valen 5 mm de altura]", Red, 1,
     "la altura se busca hasta 5 mm: el área por 5 mm, y en cada paso lo que sale a esa altura", true,
     [] { return Balance(&Faltas::piscina); }},
    {"Balance de agua de los Runge-Kutta", Fuente, Entrada, Magnitud, Red, 2,
     "el método no conserva el volumen: tercer orden en pasos de hasta 10 min", true,
     [] { return Balance(&Faltas::rungeKutta); }},
});

}  // namespace

std::span<const FilaDeCaso> BalanceDeRedes()
{
    return Filas;
}

}  // namespace checks::casos
