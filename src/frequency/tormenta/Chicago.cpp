// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Patron.h"

// Storms whose greatest rain of every duration is that of the curve, without steps: what has fallen until t
// is had from the curve itself, since its intensities taken at the middle of the steps lose part of the peak.
namespace frequency {
namespace {

std::vector<double> ConPico(const PedidoDeTormenta& p, std::size_t n, double r)
{
    const double Td = p.duracion, tp = r * Td, total = p.lamina(Td);
    return PesosDeMasa(n, [&](double parte) {
        const double t = parte * Td;
        if (t < tp) return r * total - r * p.lamina((tp - t) / r);
        return r * total + (t > tp ? (1 - r) * p.lamina((t - tp) / (1 - r)) : 0);
    });
}

std::vector<double> PesosChicago(const PedidoDeTormenta& p, std::size_t n)
{
    return ConPico(p, n, p.avance);
}

std::vector<double> PesosCentrados(const PedidoDeTormenta& p, std::size_t n)
{
    constexpr double AlMedio = 0.5;
    return ConPico(p, n, AlMedio);
}

}  // namespace

const Patron Chicago{
    .clave = "chicago",
    .nombre = "Chicago (Keifer y Chu)",
    .formula =
        "antes del pico P(t) = r·D(Td) − r·D((tp−t)/r); después P(t) = r·D(Td) + "
        "(1−r)·D((t−tp)/(1−r)); tp = r·Td",
    .fuente =
        "Keifer y Chu (1957), Synthetic storm pattern for drainage design, J. Hydraul. Div. ASCE "
        "83(HY4), 1332-1 a 1332-25",
    .limites =
        "Reúne en una sola tormenta las intensidades de todas las duraciones; el avance r se toma de "
        "tormentas de la región (0.375 en Chicago)",
    .hechura = Hechura::CurvasYAvance,
    .pesos = PesosChicago};

const Patron Equilibrada{
    .clave = "equilibrada",
    .nombre = "Equilibrada (láminas anidadas al centro)",
    .formula = "P(t) = D(Td)/2 ± D(2·|t − Td/2|)/2: la lámina de cada duración cae centrada en Td/2",
    .fuente =
        "USACE (1994), Flood-Runoff Analysis, EM 1110-2-1417; USDA-NRCS (2019), National Engineering "
        "Handbook, parte 630, capítulo 4",
    .limites = "Reúne en una sola tormenta las intensidades de todas las duraciones, con el pico al centro",
    .hechura = Hechura::Curvas,
    .pesos = PesosCentrados};

}  // namespace frequency
