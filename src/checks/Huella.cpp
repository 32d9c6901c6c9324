// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Huella.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstdint>
#include <numeric>
#include <string_view>
#include <vector>

#include "checks/Sha256.h"
#include "model/Clases.h"
#include "model/Siro.h"

namespace checks {

namespace {

constexpr std::size_t LargoTrozo = std::size_t{1} << 15;

/// The lines on their way into the hash.
class Renglones {
  public:
    Renglones& Abre(std::string_view palabra)
    {
        if (empezado) texto += '\n';
        empezado = true;
        texto += palabra;
        return *this;
    }
    Renglones& Pone(std::string_view t)
    {
        texto.append(" ").append(std::to_string(t.size())).append(":").append(t);
        return *this;
    }
    Renglones& Pone(std::integral auto n)
    {
        texto.append(" ").append(std::to_string(n));
        return *this;
    }
    Renglones& Pone(float x)
    {
        constexpr std::string_view Cifras = "0123456789abcdef";
        const std::uint32_t bits = x == 0 ? 0 : std::bit_cast<std::uint32_t>(x);
        char cifras[9] = {' '};
        for (int i = 0; i < 8; ++i)
            cifras[i + 1] = Cifras[bits >> (28 - 4 * i) & 0xf];
        texto.append(cifras, sizeof cifras);
        if (texto.size() > LargoTrozo) Vacia();
        return *this;
    }
    Renglones& Todos(const auto&... valores)
    {
        (Pone(valores), ...);
        return *this;
    }
    /// Elements desde..hasta of a row; those that aren't there are left out.
    template <typename T>
    Renglones& Fila(const model::Matriz<T>& m, int fila, int desde, int hasta)
    {
        if (fila < m.PrimeraFila() || fila > m.UltimaFila()) return *this;
        for (int k = desde; k <= std::min(hasta, m.TopeColumna()); ++k)
            Pone(m(fila, k));
        return *this;
    }
    template <typename T>
    Renglones& De(const model::Arreglo<T>& a, int i)
    {
        if (i >= 0 && i <= a.Tope()) Pone(a(i));
        return *this;
    }
    std::string Cierra()
    {
        texto += '\n';
        Vacia();
        return sha.Cierra();
    }

  private:
    void Vacia()
    {
        sha.Agrega(texto);
        texto.clear();
    }
    Sha256 sha{};
    std::string texto{};
    bool empezado = false;
};

int Filas(const model::Arreglo<std::int16_t>& filas, int numero)
{
    return numero >= 0 && numero <= filas.Tope() ? filas(numero) : 0;
}

void PoneRepresa(Renglones& t, const model::Red& red, const model::Represa& r)
{
    const int n = r.numRepresa, has = Filas(red.RepresaFilasHAS, n), hq = Filas(red.RepresaFilasHQ, n);
    t.Abre("r").Todos(r.NombreRepresa, r.Cauce_aa, r.Metodo, r.Represa_k_Musk, r.HInicialEmb,
                      int{r.optTabla});
    t.Abre("has").Fila(red.RepresaH, n, 1, has).Fila(red.RepresaA, n, 1, has).Fila(red.RepresaS, n, 1, has);
    if (r.optTabla) {
        t.Abre("hq").Fila(red.RepresaQH, n, 1, hq).Fila(red.RepresaQQ, n, 1, hq);
        return;
    }
    t.Abre("fq");
    for (std::size_t i = 0; i < r.chkFQ.size(); ++i)
        t.Todos(r.chkFQ[i], r.FQa[i], r.FQb[i], r.FQc[i], r.FQmin[i], r.FQMax[i]);
}

void PoneRed(Renglones& t, const model::Red& red)
{
    t.Abre("siro").Pone(Version());
    for (const model::UEH& u : red.ColUEHs)
        t.Abre("u").Todos(u.NombreUEH, u.Cauce_aa, u.Area, u.LongitudMax, u.VelMedia, u.KostiakovA,
                          u.KostiakovB, u.KostiakovI, u.RetensionZ, u.Q0Recesion, u.KRecesion);
    for (const model::Cauce& c : red.ColCauces)
        t.Abre("c").Todos(c.NombreCauce, c.Cauce_aa, int{c.optDirMusk}, c.LongCauce, c.VelMediaCauce,
                          c.Cauce_k_Musk, c.Cauce_n_Musk);
    for (const model::Lago& l : red.ColLagos) {
        const int n = l.numLAGO, filas = Filas(red.LagoFilas, n);
        t.Abre("l").Todos(l.NombreLAGO, l.Cauce_aa, l.Metodo, l.Lago_k_Musk, l.HInicialEmb);
        t.Abre("has").Fila(red.LagoH, n, 1, filas).Fila(red.LagoA, n, 1, filas).Fila(red.LagoS, n, 1, filas);
        t.Abre("hq").Fila(red.LagoQ, n, 1, filas);
    }
    for (const model::Represa& r : red.ColRepresas)
        PoneRepresa(t, red, r);
}

void PoneLluvia(Renglones& t, const model::Tormenta& tormenta, const model::Pasos& pasos,
                const model::TablasDeLluvia& tablas)
{
    t.Abre("pasos").Todos(pasos.PasoPp, pasos.PasoQ, pasos.N0Dur);
    t.Abre("lluvia").Todos(tormenta.FormaPp == model::FormaLluvia::DeLista
                               ? std::int16_t{model::FormaLluvia::Escrita}
                               : tormenta.FormaPp,
                           tormenta.DistriPp);
    const int tabla = tormenta.DistriPp - (model::PrimeraPersonal - 1);
    const bool personal = tormenta.FormaPp < model::FormaLluvia::Real && tabla >= 1 && tabla <= 3;
    if (personal)
        t.Abre("personal")
            .Fila(tablas.DisPerso, tabla, 1, tablas.NroFilasTabla[static_cast<std::size_t>(tabla)]);
}

void PoneTormenta(Renglones& t, const model::Red& red, const model::Tormenta& tormenta)
{
    t.Abre("tormenta").Todos(tormenta.DurTormenta);
    if (tormenta.FormaPp == model::FormaLluvia::PorUEH) {
        for (int i = 1; i <= red.NroUEHs(); ++i)
            t.De(tormenta.PpUEH, i);
    } else {
        t.Pone(tormenta.PpTormenta);
    }
    if (tormenta.FormaPp == model::FormaLluvia::Real)
        for (int i = 1; i <= tormenta.NroPpReal; ++i)
            t.De(tormenta.PpReal, i);
}

void PoneTormenta(Renglones& t, const model::Serie& serie, int numero)
{
    t.Abre("tormenta").De(serie.SerieD, numero).De(serie.SerieP, numero).De(serie.SerieR, numero);
}

bool EsEmbalse(std::string_view nombre)
{
    return nombre.starts_with("l-") || nombre.starts_with("r-");
}

void PoneEmbalse(Renglones& t, const model::Red& red, const model::Resultados& r, std::string_view nombre)
{
    const bool esLago = nombre.starts_with("l-");
    const int n =
        esLago ? model::NumeroDe<model::Lago>(red, nombre) : model::NumeroDe<model::Represa>(red, nombre);
    t.Fila(esLago ? r.HLago : r.HRepresa, n, 1, r.NroPasosQ);
    t.Fila(esLago ? r.SLago : r.SRepresa, n, 1, r.NroPasosQ);
}

void PoneResultados(Renglones& t, const model::Red& red, const model::Resultados& r)
{
    t.Abre("res").Pone(r.NroPasosQ);
    for (int f = 1; f <= r.NroComponentes; ++f) {
        const std::string& nombre = r.Secuencia[static_cast<std::size_t>(f)];
        t.Abre("q").Pone(nombre).Fila(r.QSale, f, 1, r.NroPasosQ).Fila(r.QEntra, f, 1, r.NroPasosQ);
        t.Fila(r.QMax, f, 1, 1);
        if (f <= red.NroUEHs()) {
            t.De(r.VolUEH, f).De(r.VolBaseUEH, f);
            t.Fila(r.EscUEH, f, 1, 1).Fila(r.CoefEscUEH, f, 1, 1);
        }
        if (EsEmbalse(nombre)) PoneEmbalse(t, red, r, nombre);
    }
    t.Abre("fin").De(r.EscTotal, 1).De(r.CoefEscTotal, 1);
}

void PoneResultados(Renglones& t, const model::Red& red, const model::Resultados& r,
                    const std::vector<int>& numeros)
{
    t.Abre("res").Pone(numeros.size());
    for (int f = 1; f <= r.NroComponentes; ++f) {
        t.Abre("q").Pone(r.Secuencia[static_cast<std::size_t>(f)]);
        for (const int k : numeros) {
            t.Fila(r.QMax, f, k, k);
            if (f <= red.NroUEHs()) t.Fila(r.EscUEH, f, k, k).Fila(r.CoefEscUEH, f, k, k);
        }
    }
    t.Abre("fin");
    for (const int k : numeros)
        t.De(r.EscTotal, k).De(r.CoefEscTotal, k);
}

}  // namespace

std::string_view Version()
{
    return SIRO_VERSION;
}

std::string HuellaDeCorrida(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                            const model::TablasDeLluvia& tablas, const model::Resultados& resultados)
{
    Renglones t;
    PoneRed(t, red);
    PoneLluvia(t, tormenta, pasos, tablas);
    PoneTormenta(t, red, tormenta);
    PoneResultados(t, red, resultados);
    return t.Cierra();
}

std::string HuellaDeSerie(const model::Siro& s, const std::vector<int>& numeros)
{
    Renglones t;
    PoneRed(t, s.Red);
    PoneLluvia(t, s.Tormenta, s.Pasos, s.TablasDeLluvia);
    for (const int k : numeros)
        PoneTormenta(t, s.Serie, k);
    PoneResultados(t, s.Red, s.Resultados, numeros);
    return t.Cierra();
}

std::string HuellaDeResultados(const model::Red& red, const model::Resultados& resultados, int tormentas)
{
    Renglones t;
    std::vector<int> numeros(static_cast<std::size_t>(std::max(tormentas, 0)));
    std::iota(numeros.begin(), numeros.end(), 1);
    if (numeros.empty())
        PoneResultados(t, red, resultados);
    else
        PoneResultados(t, red, resultados, numeros);
    return t.Cierra();
}

std::string HuellaDeRed(const model::Red& red)
{
    Renglones t;
    PoneRed(t, red);
    return t.Cierra();
}

std::string HuellaDeLluvia(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                           const model::TablasDeLluvia& tablas, const model::Serie* serie)
{
    Renglones t;
    PoneLluvia(t, tormenta, pasos, tablas);
    if (serie == nullptr) PoneTormenta(t, red, tormenta);
    for (int k = 1; serie != nullptr && k <= serie->NroSeriePDR; ++k)
        PoneTormenta(t, *serie, k);
    return t.Cierra();
}

}  // namespace checks
