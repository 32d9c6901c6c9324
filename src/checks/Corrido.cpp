// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Corrido.h"

#include <algorithm>
#include <array>

#include "hydraulics/mdlFQs.h"
#include "hydraulics/mdlHAS.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

namespace {

constexpr double MetrosPorHectarea = 10000;
constexpr auto Metodos = std::to_array<std::string_view>({"Muskingum", "Piscina Nivelada", "Runge Kutta"});

MetodoEmbalse MetodoDe(std::string_view nombre)
{
    return static_cast<MetodoEmbalse>(std::find(Metodos.begin(), Metodos.end(), nombre) - Metodos.begin());
}

float KDe(const model::Represa& r)
{
    return r.Represa_k_Musk;
}
float KDe(const model::Lago& l)
{
    return l.Lago_k_Musk;
}

/// What a lookup gives; 0 where it is at fault.
template <typename Lectura>
double OCero(Lectura&& lee)
{
    double valor = 0;
    model::Sentencia([&] { valor = lee(); });
    return valor;
}

std::optional<int> OSinValor(auto&& minutos)
{
    std::optional<int> valor;
    model::Sentencia([&] { valor = minutos(); });
    return valor;
}

}  // namespace

bool EmbalseCorrido::TieneTabla() const
{
    const int n = tablas.numero;
    return n >= 1 && n <= tablas.filas.Tope() && tablas.filas(n) >= 1 &&
           tablas.tablaH.Alcanza(n, tablas.filas(n)) && tablas.tablaS.Alcanza(n, tablas.filas(n)) &&
           tablas.tablaA.Alcanza(n, tablas.filas(n));
}

double EmbalseCorrido::Almacenamiento(float h) const
{
    return OCero([&] { return hydraulics::SdeH(tablas, std::min(h, Tope())); });
}

double EmbalseCorrido::Descarga(float h) const
{
    return OCero([&] { return double{hydraulics::QdeH(tablas, h)}; });
}

double EmbalseCorrido::Superficie(float h) const
{
    return OCero([&] { return hydraulics::AdeH(tablas, h) * MetrosPorHectarea; });
}

Corrido::Corrido(const model::Red& unaRed, const model::Tormenta& unaTormenta, const model::Pasos& unosPasos,
                 const engine::Calculo& unCalculo)
    : red(unaRed), tormenta(unaTormenta), pasos(unosPasos), calculo(unCalculo)
{
    const int UEHs = red.NroUEHs(), todos = r().NroComponentes;
    for (const model::UEH& u : red.ColUEHs)
        componentes.push_back(
            {.nombre = u.NombreUEH, .destino = u.Cauce_aa, .fila = FilaDe(u.NombreUEH, 1, UEHs), .ueh = &u});
    for (const model::Cauce& c : red.ColCauces)
        componentes.push_back({.nombre = c.NombreCauce,
                               .destino = c.Cauce_aa,
                               .fila = FilaDe(c.NombreCauce, UEHs + 1, todos),
                               .cauce = &c});
    AgregaEmbalses<model::Lago>(r().HLago, r().SLago);
    AgregaEmbalses<model::Represa>(r().HRepresa, r().SRepresa);
}

template <typename T>
void Corrido::AgregaEmbalses(const model::Matriz<float>& H, const model::Matriz<float>& S)
{
    for (const T& e : model::Todos<T>(red))
        componentes.push_back({.nombre = model::Nombre(e),
                               .destino = e.Cauce_aa,
                               .fila = FilaDe(model::Nombre(e), red.NroUEHs() + 1, r().NroComponentes),
                               .embalse = EmbalseCorrido{hydraulics::EnMano(sordo, red, e),
                                                         MetodoDe(e.Metodo), KDe(e), e.HInicialEmb, H, S}});
}

int Corrido::FilaDe(std::string_view nombre, int desde, int hasta) const
{
    const auto& secuencia = r().Secuencia;
    for (int f = desde; f <= hasta && f < static_cast<int>(secuencia.size()); ++f)
        if (secuencia[static_cast<std::size_t>(f)] == nombre) return f;
    return 0;
}

bool Corrido::TieneResultados() const
{
    return calculo.fin == engine::FinCalculo::Completo && UltimoPaso() >= 1 &&
           r().QSale.Alcanza(r().NroComponentes, UltimoPaso()) &&
           r().QEntra.Alcanza(r().NroComponentes, UltimoPaso());
}

double Corrido::Volumen(const model::Matriz<float>& Q, int fila, int desde, int hasta) const
{
    double suma = 0;
    const float* q = Q.Fila(fila);
    for (int p = desde; p <= std::min(hasta, Q.TopeColumna()); ++p)
        suma += q[p];
    return suma * Segundos();
}

std::optional<int> Corrido::Traslado(const model::UEH& u)
{
    return OSinValor([&] { return model::Entero16(model::Cociente(u.LongitudMax, u.VelMedia) / 60); });
}

std::optional<int> Corrido::Viaje(const model::Cauce& c)
{
    return OSinValor([&] { return model::Entero16(model::Cociente(c.LongCauce, c.VelMediaCauce) / 60); });
}

std::optional<int> Corrido::Retardo(const model::Cauce& c, std::int16_t PasoQ)
{
    const std::optional<int> viaje = Viaje(c);
    if (!viaje) return {};
    return OSinValor([&] { return model::Entero16(model::Cociente(*viaje, PasoQ)); });
}

bool Corrido::HayReceptor(std::string_view nombre) const
{
    return model::EsDestino(nombre) &&
           std::any_of(componentes.begin(), componentes.end(),
                       [&](const ComponenteCorrido& c) { return c.ueh == nullptr && c.nombre == nombre; });
}

}  // namespace checks
