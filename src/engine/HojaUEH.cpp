// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/HojaUEH.h"

#include <algorithm>
#include <cmath>

#include "engine/FormulasUEH.h"
#include "engine/Resumen.h"
#include "engine/Totales.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace engine {

using model::Cociente;
using model::Entero32;
using model::NumeroATexto;
using model::Redondea;
using model::Simple;
using model::Siro;
using model::Suma16;

namespace {

constexpr float KDeReserva = 999999;
constexpr std::string_view KIncorrecto =
    "El parámetro de Singh (K de abatimiento) elegido es incorrecto, debe corregirlo. Se adopta "
    "transitoriamente K=999999 ó 1/K cercano a '0'. Verifique...";
constexpr double VolumenDespreciable = 0.001;  // [m3]

bool TieneRecesion(const model::UEH& u)
{
    return u.Q0Recesion > 0 && u.KRecesion > 0;
}

float CaudalBase(const Siro& s, const model::UEH& u, std::int16_t p)
{
    return Simple(u.Q0Recesion * Abatimiento(u.KRecesion, Minutos(p, s.Pasos.PasoQ)));
}

// --- recession, statement by statement ---

void RecesionDeUEH(Corrida& c, std::int16_t p, int i, float& Qb)
{
    Siro& s = c.s;
    if (!c.Vale([&] { return TieneRecesion(s.Red.UEHs(i)); })) return;
    c.Intenta([&] { Qb = CaudalBase(s, s.Red.UEHs(i), p); });
    if (Qb < 0) {
        model::Advierte(s, std::string(KIncorrecto));
        c.Intenta([&] { s.Red.UEHs(i).KRecesion = KDeReserva; });
        c.Intenta([&] { Qb = CaudalBase(s, s.Red.UEHs(i), p); });
    }
    c.Intenta([&] { s.Resultados.QSale(i, p) = Simple(double{s.Resultados.QSale(i, p)} + Qb); });
    c.Intenta([&] {
        std::int32_t& volumen = s.Resultados.VolBaseUEH(i);
        volumen = SumaBase(volumen, Qb, s.Pasos.PasoQ);
    });
    c.Intenta([&] { c.VolBaseTotal = SumaBase(c.VolBaseTotal, Qb, s.Pasos.PasoQ); });
}

void RecesionUnaPorUna(Corrida& c)
{
    float Qb = 0;
    for (int p = 1; p <= c.s.Resultados.NroPasosQ; ++p)
        for (int i = 1; i <= c.s.Red.NroUEHs(); ++i)
            RecesionDeUEH(c, static_cast<std::int16_t>(p), i, Qb);
}

// --- recession, proved beforehand ---

/// No statement of the recession can be at fault: volumes stay within 32 bits.
bool RecesionSegura(const Corrida& c)
{
    if (!c.UEHsAlcanzan()) return false;
    const model::Resultados& r = c.s.Resultados;
    double total = 0;
    for (int i = 1; i <= c.s.Red.NroUEHs(); ++i) {
        const model::UEH& u = c.s.Red.ColUEHs.Item(i);
        if (!TieneRecesion(u)) continue;
        // a constant this short would make powers too small for the type
        if (u.KRecesion < 0.001F || u.Q0Recesion > 1e6F) return false;
        if (!(Mayor(r.QSale.Fila(i), 1, r.NroPasosQ) < 1e30F)) return false;
        total += (double{u.Q0Recesion} * c.s.Pasos.PasoQ * 60 + 1) * r.NroPasosQ;
    }
    return total < INT32_MAX;
}

TablaAbatimiento& AbatimientoDe(Corrida& c, float K)
{
    const std::int16_t paso = c.s.Pasos.PasoQ;
    auto& tablas = c.memoria.abatimiento;
    auto tabla = std::find_if(tablas.begin(), tablas.end(),
                              [&](const TablaAbatimiento& t) { return t.K == K && t.paso == paso; });
    if (tabla == tablas.end()) {
        if (tablas.size() >= model::MaxUEHs) tablas.clear();  // a constant that changes with every run
        tabla = tablas.insert(tablas.end(), {K, paso, {1}});
    }
    for (auto p = tabla->potencia.size(); p <= static_cast<std::size_t>(c.s.Resultados.NroPasosQ); ++p)
        tabla->potencia.push_back(Abatimiento(K, static_cast<double>(p) * paso));
    return *tabla;
}

void RecesionRapida(Corrida& c)
{
    Siro& s = c.s;
    const auto pasos = static_cast<std::size_t>(s.Resultados.NroPasosQ);
    std::vector<float> Qb;  // one run of steps per UEH with recession
    std::size_t conRecesion = 0;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
        const model::UEH& u = s.Red.UEHs(i);
        if (!TieneRecesion(u)) continue;
        const double* potencia = AbatimientoDe(c, u.KRecesion).potencia.data();
        float* q = s.Resultados.QSale.Fila(i);
        std::int32_t& volumen = s.Resultados.VolBaseUEH(i);
        ++conRecesion;
        for (std::size_t p = 1; p <= pasos; ++p) {
            const auto base = static_cast<float>(u.Q0Recesion * potencia[p]);
            q[p] = static_cast<float>(double{q[p]} + base);
            volumen = SumaBase(volumen, base, s.Pasos.PasoQ);
            Qb.push_back(base);
        }
    }
    // The basin's volume is rounded at each share: the order of steps, then UEHs, is part of it.
    for (std::size_t p = 0; p < pasos; ++p)
        for (std::size_t n = 0; n < conRecesion; ++n)
            c.VolBaseTotal = SumaBase(c.VolBaseTotal, Qb[n * pasos + p], s.Pasos.PasoQ);
}

// --- hydrographs ---

void EncabezaHidrogramas(Corrida& c)
{
    Siro& s = c.s;
    std::string& texto = s.Control.TextoPizarra;
    if (s.Control.SalidaPizarra)
        texto.append("\r\n\r\nCaudales propagados al pié de cada UEH:\r\n").append(12, ' ');
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        c.Intenta([&] {
            const std::string& nombre = s.Red.UEHs(i).NombreUEH;
            texto.append(8, ' ').append(nombre).append(7, ' ');
        });
    if (s.Control.SalidaPizarra) texto.append(7, ' ').append("\r\nPer.k  t[min]");
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        texto.append("- Pp[mm] Q[m3/s] ");
}

/// Adds a UEH's share to the line. A fault leaves the line as it was.
void EscribeParte(Corrida& c, std::int16_t p, int i)
{
    Siro& s = c.s;
    const bool yaNoLlueve =
        c.Vale([&] { return Minutos(p, s.Pasos.PasoQ) >= Suma16(s.Pasos.PasoPp, s.Tormenta.DurTormenta); });
    c.Intenta([&] {
        const float caudal = Redondea(s.Resultados.QSale(i, p), 2);
        if (yaNoLlueve) {
            c.Linea.Pone("    0").Derecha(caudal, 8).Blancos(4);
            return;
        }
        const std::int16_t m = model::Piso16(Cociente(Suma16(p, c.RelacionPasos) - 1, c.RelacionPasos));
        const double pp = Redondea(Cociente(s.Resultados.PpUEHPaso(i, m), c.RelacionPasos), 2);
        c.Linea.Derecha(pp, 5).Derecha(caudal, 8).Blancos(4);
    });
}

void HidrogramasUnoPorUno(Corrida& c)
{
    Siro& s = c.s;
    c.Linea.Vacia();
    for (int paso = 1; paso <= s.Resultados.NroPasosQ; ++paso) {
        const auto p = static_cast<std::int16_t>(paso);
        c.Intenta([&] {
            const std::int16_t t = Minutos(p, s.Pasos.PasoQ);
            c.Linea.Vacia();
            c.Linea.Izquierda(std::int32_t{p}, 7).Izquierda(std::int32_t{t}, 7);
        });
        for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
            EscribeParte(c, p, i);
            s.Control.TextoPizarra.append(12, ' ');
            c.Intenta([&] {
                float& volumen = s.Resultados.VolUEH(i);
                volumen = Simple(SumaVolumen(volumen, s.Resultados.QSale(i, p), s.Pasos.PasoQ));
            });
            c.Intenta([&] { SubePico(s, i, p); });
        }
        s.Control.TextoPizarra.append("\r\n ").append(c.Linea.Texto());
    }
}

/// Volumes and peaks alone, where nobody can read the table. Returns false, and does nothing, where a
/// statement of the table could be at fault.
bool HidrogramasSinTexto(Corrida& c)
{
    Siro& s = c.s;
    model::Resultados& r = s.Resultados;
    if (!c.UEHsAlcanzan() || r.NroPasosQ + c.RelacionPasos > INT16_MAX) return false;
    const int ultimoConLluvia = (s.Pasos.PasoPp + s.Tormenta.DurTormenta - 1) / s.Pasos.PasoQ;
    const int m = (std::min<int>(ultimoConLluvia, r.NroPasosQ) + c.RelacionPasos - 1) / c.RelacionPasos;
    if (r.PpUEHPaso.TopeColumna() < m) return false;

    std::vector<const float*> filas;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        filas.push_back(r.QSale.Fila(i));
    std::vector<float> volumenes(filas.size());
    SumaVolumenes(filas, {1, r.NroPasosQ}, s.Pasos.PasoQ, volumenes);
    if (!std::all_of(volumenes.begin(), volumenes.end(), [](float v) { return std::isfinite(v); }))
        return false;
    std::copy(volumenes.begin(), volumenes.end(), r.VolUEH.Datos() + 1);
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        SubePico(s, i, {1, r.NroPasosQ});
    return true;
}

// --- volumes ---

/// An expression written as a 64-bit number rounded to n decimals, a variable by its type.
template <typename Numero>
std::string Redondeado(Numero x, int decimales)
{
    return NumeroATexto(Redondea(x, decimales));
}

void EscribeVolumenes(Corrida& c, int i)
{
    Siro& s = c.s;
    std::string& texto = s.Control.TextoPizarra;
    const auto nombre = [&] { return NumeroATexto(i) + " " + s.Red.UEHs(i).NombreUEH + "   "; };
    c.Intenta(
        [&] { texto += "\r\nPrecipitación   UEH " + nombre() + Redondeado(s.Tormenta.PpUEH(i), 1) + " mm"; });
    // "m3" is kept as it stands
    c.Intenta([&] {
        texto += "\r\nCaudal Máximo   UEH " + nombre() +
                 Redondeado(s.Resultados.QMax(i, s.Serie.IndSerie), 2) + " m3";
    });
    c.Intenta([&] {
        texto += "\r\nEscorrentía     UEH " + nombre() +
                 Redondeado(double{s.Resultados.VolUEH(i)} - s.Resultados.VolBaseUEH(i), 0) + " m3";
    });
    c.Intenta([&] {
        texto += "\r\nCoef.Escorrent. UEH " + nombre() + Redondeado(s.Resultados.CoefUEH(i), 1) + " %";
    });
    c.Intenta([&] {
        texto += "\r\nVolumen de Base UEH " + nombre() + NumeroATexto(s.Resultados.VolBaseUEH(i)) + " m3";
    });
}

void VolumenDeUEH(Corrida& c, int i)
{
    Siro& s = c.s;
    c.Intenta([&] { c.EscTotalCalc = Entero32(double{s.Resultados.VolUEH(i)} + c.EscTotalCalc); });
    const bool sinEscorrentia = c.Vale([&] {
        return s.Resultados.VolUEH(i) <= VolumenDespreciable || s.Red.UEHs(i).Area <= 0 ||
               s.Tormenta.PpUEH(i) <= 0;
    });
    if (sinEscorrentia)
        c.Intenta([&] { s.Resultados.CoefUEH(i) = 0; });
    else
        c.Intenta([&] {
            const double volumen = double{s.Resultados.VolUEH(i)} - s.Resultados.VolBaseUEH(i);
            s.Resultados.CoefUEH(i) =
                Simple(Cociente(Cociente(volumen, s.Red.UEHs(i).Area) / 10 * 100, s.Tormenta.PpUEH(i)));
        });
    if (s.Control.SalidaPizarra) EscribeVolumenes(c, i);
    c.Intenta([&] {
        s.Resultados.EscUEH(i, s.Serie.IndSerie) =
            Entero32(double{s.Resultados.VolUEH(i)} - s.Resultados.VolBaseUEH(i));
    });
    c.Intenta([&] { s.Resultados.CoefEscUEH(i, s.Serie.IndSerie) = s.Resultados.CoefUEH(i); });
}

void EscribeTotales(Corrida& c)
{
    std::string& texto = c.s.Control.TextoPizarra;
    texto += "\r\n";
    texto += "\r\nEscorrentía total[m3]    = " + NumeroATexto(c.EscTotalCalc) + " m3";
    c.Intenta([&] {
        texto +=
            "\r\nEscorrentía total[mm]    = " + Redondeado(Cociente(c.EscTotalCalc, c.AreaTotal) / 10, 1) +
            " mm";
    });
    texto += "\r\nCoef. Escorrentía        = " + Redondeado(c.CoefTotal, 2) + " %";
    texto += "\r\nVolumen de Base          = " + NumeroATexto(c.VolBaseTotal) + " m3";
    texto += "\r\nSuma Pp UEHs             = " + Redondeado(c.SumaPp, 1) + " mm";
}

}  // namespace

void SumaRecesion(Corrida& c)
{
    if (RecesionSegura(c))
        RecesionRapida(c);
    else
        RecesionUnaPorUna(c);
}

void HidrogramasDeUEHs(Corrida& c)
{
    if (!c.ConTexto && HidrogramasSinTexto(c)) return;
    EncabezaHidrogramas(c);
    HidrogramasUnoPorUno(c);
}

void VolumenesDeUEHs(Corrida& c)
{
    Siro& s = c.s;
    c.EscTotalCalc = 0;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        VolumenDeUEH(c, i);
    c.Intenta([&] { c.EscTotalCalc = Entero32(double{1} * c.EscTotalCalc - c.VolBaseTotal); });
    if (c.EscTotalCalc <= VolumenDespreciable || c.AreaTotal <= 0)
        c.CoefTotal = 0;
    else
        c.Intenta([&] {
            c.CoefTotal = Simple(Cociente(Cociente(c.EscTotalCalc, c.AreaTotal) / 10 * 100, c.SumaPp));
        });
    c.Intenta([&] { s.Resultados.CoefEscTotal(s.Serie.IndSerie) = c.CoefTotal; });
    c.Intenta([&] { s.Resultados.EscTotal(s.Serie.IndSerie) = c.EscTotalCalc; });
    if (s.Control.SalidaPizarra) EscribeTotales(c);
}

}  // namespace engine
