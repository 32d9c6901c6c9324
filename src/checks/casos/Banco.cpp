// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/casos/Banco.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

#include "engine/FormulasUEH.h"

namespace checks::casos {

namespace {

constexpr float MetrosPorMinuto = 60;  // at 1 m/s

std::int16_t Siguiente(const auto& coleccion)
{
    return static_cast<std::int16_t>(coleccion.Cuenta() + 1);
}

std::string Nombre(std::string_view prefijo, int numero)
{
    return std::string(prefijo) + std::to_string(numero);
}

}  // namespace

model::UEH& Banco::PonUEH(const std::string& destino, double area, int minutos)
{
    const std::int16_t n = Siguiente(red.ColUEHs);
    model::UEH u;
    u.NombreUEH = Nombre("u-", n);
    u.numUEH = n;
    u.Cauce_aa = destino;
    u.Area = static_cast<float>(area);
    u.LongitudMax = MetrosPorMinuto * static_cast<float>(minutos);
    u.VelMedia = 1;
    return red.ColUEHs.Agrega(u);
}

model::Cauce& Banco::PonCauce(const std::string& destino)
{
    const std::int16_t n = Siguiente(red.ColCauces);
    model::Cauce c;
    c.NombreCauce = Nombre("c-", n);
    c.numCauce = n;
    c.Cauce_aa = destino;
    return red.ColCauces.Agrega(c);
}

model::Represa& Banco::PonRepresa(const std::string& destino, std::string_view metodo,
                                  const std::vector<Renglon>& tabla)
{
    const std::int16_t n = Siguiente(red.ColRepresas);
    model::Represa r;
    r.NombreRepresa = Nombre("r-", n);
    r.numRepresa = n;
    r.Cauce_aa = destino;
    r.Metodo = metodo;
    r.optTabla = true;
    r.HInicialEmb = static_cast<float>(tabla.front().H);
    tablasRepresas.push_back(tabla);
    return red.ColRepresas.Agrega(r);
}

model::Lago& Banco::PonLago(const std::string& destino, std::string_view metodo,
                            const std::vector<Renglon>& tabla)
{
    const std::int16_t n = Siguiente(red.ColLagos);
    model::Lago l;
    l.NombreLAGO = Nombre("l-", n);
    l.numLAGO = n;
    l.Cauce_aa = destino;
    l.Metodo = metodo;
    l.HInicialEmb = static_cast<float>(tabla.front().H);
    tablasLagos.push_back(tabla);
    return red.ColLagos.Agrega(l);
}

void Banco::Entra(const std::string& destino, std::span<const double> caudales, std::int16_t paso)
{
    PonUEH(destino, paso / engine::FactorCaudal, paso);
    pasos = {.PasoPp = paso, .PasoQ = paso, .N0Dur = static_cast<float>(paso)};
    const int n = static_cast<int>(caudales.size());
    tormenta.FormaPp = model::FormaLluvia::Real;
    tormenta.DistriPp = 7;  // what the desktop ticks for a recorded storm
    tormenta.DurTormenta = static_cast<std::int16_t>(n * paso);
    tormenta.PpTormenta = static_cast<float>(std::accumulate(caudales.begin(), caudales.end(), 0.0));
    tormenta.NroPpReal = static_cast<std::int16_t>(n);
    tormenta.PpReal.Dimensiona(n);
    std::copy(caudales.begin(), caudales.end(), tormenta.PpReal.Datos() + 1);
}

void Banco::LlenaTablas()
{
    std::size_t filas = 1;
    for (const auto* tablas : {&tablasRepresas, &tablasLagos})
        for (const auto& t : *tablas)
            filas = std::max(filas, t.size() + 1);
    const int r = red.ColRepresas.Cuenta(), l = red.ColLagos.Cuenta(), tope = static_cast<int>(filas);
    for (auto* m : {&red.RepresaH, &red.RepresaA, &red.RepresaQH, &red.RepresaQQ})
        m->Dimensiona(r, tope);
    for (auto* m : {&red.LagoH, &red.LagoA, &red.LagoQ})
        m->Dimensiona(l, tope);
    red.RepresaS.Dimensiona(r, tope);
    red.LagoS.Dimensiona(l, tope);
    for (auto* a : {&red.RepresaFilasHAS, &red.RepresaFilasHQ})
        a->Dimensiona(r);
    red.LagoFilas.Dimensiona(l);
    const auto llena = [](int n, const std::vector<Renglon>& t, auto& H, auto& A, auto& S, auto& Q) {
        for (int k = 1; const Renglon& renglon : t) {
            H(n, k) = static_cast<float>(renglon.H);
            A(n, k) = static_cast<float>(renglon.A);
            S(n, k) = static_cast<std::int32_t>(std::lround(renglon.S));
            Q(n, k) = static_cast<float>(renglon.Q);
            ++k;
        }
        return static_cast<std::int16_t>(t.size());
    };
    for (int n = 1; n <= r; ++n) {
        const auto& tabla = tablasRepresas[static_cast<std::size_t>(n) - 1];
        red.RepresaFilasHAS(n) = red.RepresaFilasHQ(n) =
            llena(n, tabla, red.RepresaH, red.RepresaA, red.RepresaS, red.RepresaQQ);
        std::copy_n(red.RepresaH.Fila(n), tope + 1, red.RepresaQH.Fila(n));
    }
    for (int n = 1; n <= l; ++n)
        red.LagoFilas(n) = llena(n, tablasLagos[static_cast<std::size_t>(n) - 1], red.LagoH, red.LagoA,
                                 red.LagoS, red.LagoQ);
}

engine::Calculo Banco::Corre()
{
    LlenaTablas();
    engine::Calculo calculo = engine::Calcula(red, tormenta, pasos);
    if (!calculo.avisos.empty()) throw std::runtime_error(calculo.avisos.front().mensaje.texto);
    if (calculo.fin != engine::FinCalculo::Completo) throw std::runtime_error("la corrida se interrumpió");
    return calculo;
}

std::vector<double> SaleDeRepresa(Banco& banco, std::span<const double> entra, std::int16_t paso)
{
    constexpr int Fila = 2;
    const bool desdeCero = banco.red.ColRepresas.Item(1).Metodo == Muskingum;
    banco.Entra("r-1", desdeCero ? entra : entra.subspan(1), paso);
    std::vector<double> sale =
        Columna(banco.Corre().Resultados.QSale, Fila, entra.size() - (desdeCero ? 0 : 1));
    if (desdeCero) sale.erase(sale.begin());
    return sale;
}

std::vector<double> Columna(const model::Matriz<float>& m, int fila, std::size_t n)
{
    std::vector<double> valores;
    for (std::size_t p = 0; p <= n; ++p)
        valores.push_back(m(fila, static_cast<int>(p)));
    return valores;
}

}  // namespace checks::casos
