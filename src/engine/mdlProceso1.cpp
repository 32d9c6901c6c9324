// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/mdlProceso1.h"

#include <algorithm>

#include "engine/Corrida.h"
#include "engine/Embalses.h"
#include "engine/HojaUEH.h"
#include "engine/OrdenaRed.h"
#include "engine/PasosUEH.h"
#include "engine/Resumen.h"
#include "engine/Tramos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace engine {

using model::Advierte;
using model::Cociente;
using model::NumeroATexto;
using model::Piso16;
using model::Simple;
using model::Siro;
using model::Suma16;

namespace {

constexpr std::string_view SinUEHs =
    "Debe haber al menos una Unidad de Estudios Hidrólógicos (UEH) Cargada en el sistema. (Ingresar UEHs "
    "desde el Menú Principal  \\Entradas\\Editor UEHs (Gráfico)...";
constexpr std::string_view SinArea =
    "Error en la carga de datos de UEHS, posiblemente no ha cargado correctamente las superficies y demás "
    "parámetros, ...";
constexpr std::string_view ErrorEnUEH = "Error en la carga de datos de UEHS Nro. ";
constexpr std::string_view SinVelocidad =
    ". El dato de Velocidad media de la gota en ladera es incorrecto. Revise desde Menú Principal: "
    "Entradas\\Editor de UEHS...";
constexpr std::string_view SinLongitud =
    ". El dato de Longitud máxima de la gota en ladera es incorrecto. Revise desde Menú Principal: "
    "Entradas\\Editor de UEHS...";
// The words say the reverse of the test: kept as they stand.
constexpr std::string_view PasosDesiguales =
    "Error, el paso de salida (Q) debe ser múltiplo del paso de cálculo (Pp). Verifique la carga en "
    "\\Entradas\\Preicpitaciones...";
constexpr std::string_view RedConErrores =
    "Error en la carga de datos de UEHS. Revise desde Menú Principal: Entradas\\Editor de UEHS...";
constexpr std::string_view TituloTextoExtenso = "La tabla de resultados es muy extensa";
constexpr std::string_view TextoExtenso =
    "La tabla de resultados es muy extensa para ser presentada completa en la Pizarra. Los datos se guardan "
    "completos en el archivo de texto <SalePizarra1_tem.txt> del directorio de trabajo. Puede leer "
    "directamente este archivo con un editor de texto o bien importar archivo desde Excel como <delimitado>, "
    "con separador <espacio> y formato <general>";
constexpr std::size_t LargoExtenso = 60000;  // characters

bool Rechaza(const Siro& s, std::string texto)
{
    Advierte(s, std::move(texto));
    return false;
}

// --- checks and set-up ---

bool CompruebaUEH(Corrida& c, int i)
{
    Siro& s = c.s;
    c.Intenta([&] { c.AreaTotal = Simple(double{c.AreaTotal} + s.Red.UEHs(i).Area); });
    if (c.AreaTotal == 0) return Rechaza(s, std::string(SinArea));
    c.Intenta([&] { s.Resultados.PasosInfiltra(i) = 1; });
    if (c.Vale([&] { return s.Red.UEHs(i).VelMedia == 0; }))
        return Rechaza(s, std::string(ErrorEnUEH) + NumeroATexto(i) + std::string(SinVelocidad));
    if (c.Vale([&] { return s.Red.UEHs(i).LongitudMax == 0; }))
        return Rechaza(s, std::string(ErrorEnUEH) + NumeroATexto(i) + std::string(SinLongitud));
    return true;
}

bool CompruebaUEHs(Corrida& c)
{
    Siro& s = c.s;
    c.Intenta([&] { s.Resultados.PasosInfiltra.Redimensiona(s.Red.NroUEHs()); });
    s.Control.TextoPizarra = s.Anfitrion.LeePizarra();
    if (s.Red.NroUEHs() == 0) return Rechaza(s, std::string(SinUEHs));
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        if (!CompruebaUEH(c, i)) return false;
    return true;
}

/// Steps that the simulated time takes, a part of one included; kept as they were where that is at fault.
void CuentaPasos(Corrida& c, std::int16_t paso, std::int16_t& pasos)
{
    const Siro& s = c.s;
    c.Intenta([&] {
        const double x = Cociente(s.Tormenta.DurTormenta + double{s.Pasos.N0Dur}, paso);
        const std::int16_t enteros = Piso16(x);
        pasos = Simple(x) > static_cast<float>(enteros) ? Suma16(enteros, 1) : enteros;
    });
}

bool CompruebaPasos(Corrida& c)
{
    Siro& s = c.s;
    c.Intenta([&] { c.RelacionPasos = Piso16(Cociente(s.Pasos.PasoPp, s.Pasos.PasoQ)); });
    if (c.Vale([&] { return Cociente(s.Pasos.PasoPp, s.Pasos.PasoQ) != c.RelacionPasos; }))
        return Rechaza(s, std::string(PasosDesiguales));
    CuentaPasos(c, s.Pasos.PasoPp, c.NroPasosPp);
    CuentaPasos(c, s.Pasos.PasoQ, s.Resultados.NroPasosQ);
    return true;
}

void DimensionaTrabajo(Corrida& c)
{
    Siro& s = c.s;
    c.Intenta([&] { c.RetencionRestante.Dimensiona(s.Red.NroUEHs()); });
    c.Intenta([&] { s.Resultados.VolBaseUEH.Dimensiona(Suma16(s.Red.NroUEHs(), 1)); });
    c.Intenta([&] { s.Resultados.CoefUEH.Dimensiona(Suma16(s.Red.NroUEHs(), 1)); });
    c.Intenta([&] { s.Resultados.VolUEH.Dimensiona(Suma16(s.Red.NroUEHs(), 1)); });
    c.Intenta([&] { c.PpMediaPaso.Dimensiona(s.Resultados.NroPasosQ); });
    c.Intenta([&] {
        s.Resultados.PpUEHPaso.Dimensiona(s.Red.NroUEHs(),
                                          Piso16(Cociente(s.Tormenta.DurTormenta, s.Pasos.PasoQ)) + 1);
    });
    c.Intenta(
        [&] { s.Resultados.HRepresa.Dimensiona(s.Red.NroRepresas(), Suma16(s.Resultados.NroPasosQ, 1)); });
    c.Intenta(
        [&] { s.Resultados.SRepresa.Dimensiona(s.Red.NroRepresas(), Suma16(s.Resultados.NroPasosQ, 1)); });
    c.Intenta([&] { s.Resultados.HLago.Dimensiona(s.Red.NroLagos(), Suma16(s.Resultados.NroPasosQ, 1)); });
    c.Intenta([&] { s.Resultados.SLago.Dimensiona(s.Red.NroLagos(), Suma16(s.Resultados.NroPasosQ, 1)); });
    if (s.Tormenta.FormaPp == model::FormaLluvia::PorUEH) return;
    for (int i = 1; i <= s.Red.NroUEHs(); ++i)
        c.Intenta([&] { s.Tormenta.PpUEH(i) = 0; });
}

void DimensionaResultados(Corrida& c)
{
    Siro& s = c.s;
    c.Intenta([&] {
        s.Resultados.QSale.Dimensiona(s.Resultados.NroComponentes, Suma16(s.Resultados.NroPasosQ, 1));
    });
    c.Intenta([&] {
        s.Resultados.QEntra.Dimensiona(Suma16(s.Red.NroUEHs(), 1), Suma16(s.Resultados.NroComponentes, 1),
                                       Suma16(s.Resultados.NroPasosQ, 1));
    });
    if (s.Tormenta.FormaPp != model::FormaLluvia::SeriePDR) {
        s.Serie.NroSeriePDR = 1;
        s.Serie.IndSerie = 1;
    }
    if (s.Serie.NroSeriePDR == 1) s.Resultados.DimensionaTormentas(s.Red.NroUEHs(), 1);
}

bool PreparaUEHs(Corrida& c)
{
    Siro& s = c.s;
    if (s.Control.ErrorRed || !OrdenaRed(c)) return Rechaza(s, std::string(RedConErrores));
    for (int i = 1; i <= s.Red.NroUEHs(); ++i) {
        c.Intenta([&] { c.RetencionRestante(i) = s.Red.UEHs(i).RetensionZ; });
        c.Intenta([&] { s.Resultados.PasosInfiltra(i) = 1; });
        c.Intenta([&] { s.Resultados.VolUEH(i) = 0; });
    }
    return true;
}

bool PreparaCorrida(Corrida& c)
{
    if (!CompruebaUEHs(c) || !CompruebaPasos(c)) return false;
    DimensionaTrabajo(c);
    ValidaRed(c);
    DimensionaResultados(c);
    return PreparaUEHs(c);
}

/// Makes room for the text of the run, as far as it can be told, so that it seldom has to move.
void ReservaTexto(const Corrida& c)
{
    Siro& s = c.s;
    // Bytes of a line where its numbers are everyday ones, and of a component's titles and summaries.
    constexpr std::size_t DePaso = 78, PorUEH = 29, DeDetalle = 106, DeEmbalse = 61, DeCauce = 38;
    constexpr std::size_t DeResumen = 512, Tope = 64 << 20;
    const auto cuenta = [](int n) { return static_cast<std::size_t>(std::max(n, 0)); };
    const std::size_t UEHs = cuenta(s.Red.NroUEHs()), pasosQ = cuenta(s.Resultados.NroPasosQ) + 1;
    const std::size_t embalses = cuenta(s.Red.ColRepresas.Cuenta()) + cuenta(s.Red.ColLagos.Cuenta());
    std::size_t bytes = pasosQ * (PorUEH * UEHs + DeDetalle * embalses);
    if (s.Control.SalidaPizarra)
        bytes += cuenta(c.NroPasosPp) * UEHs * DePaso + cuenta(s.Resultados.NroComponentes) * DeResumen +
                 pasosQ * (DeEmbalse * embalses + DeCauce * cuenta(s.Red.ColCauces.Cuenta()));
    bytes += bytes / 8;  // the last slopes may lengthen the run
    s.Control.TextoPizarra.reserve(s.Control.TextoPizarra.size() + std::min(Tope, bytes));
}

// --- second half: reaches, Lagos, Represas ---

void AbreSegundaParte(Corrida& c)
{
    Siro& s = c.s;
    c.RetardoMax = 0;
    if (!s.Control.SalidaPizarra) return;
    s.Control.TextoPizarra +=
        "\r\n\r\nII- SIMULACION EN COMPONENTES RESTANTES"
        "\r\n    (Cauces, Lagos y Represas)";
    // The block ahead of any component shows what the last one of an earlier run left: kept as it stands.
    c.Intenta([&] { EscribeResumen(c, 0); });
    s.Control.TextoPizarra += "\r\n";
    s.Anfitrion.AmpliaPizarra(s.Control.TextoPizarra);
}

bool ProcesaComponente(Corrida& c, int fila)
{
    const std::string_view nombre = c.s.Resultados.Secuencia[static_cast<std::size_t>(fila)];
    if (nombre.starts_with("l-")) {
        c.Intenta([&] { Proceso_en_Lago(c, fila); });
    } else if (nombre.starts_with("r-")) {
        c.Intenta([&] { Proceso_en_Represa(c, fila); });
    } else if (nombre.starts_with("c-")) {
        return ProcesoEnCauce(c, fila);
    }
    return true;
}

bool RecorreSecuencia(Corrida& c)
{
    for (int fila = std::max(c.s.Red.NroUEHs() + 1, 0); fila <= c.s.Resultados.NroComponentes; ++fila)
        if (!ProcesaComponente(c, fila)) return false;
    return true;
}

/// Writes the text as one record: quotes inside it are not escaped.
void GuardaTextoPizarra(Siro& s)
{
    s.Proyecto.ArchivoTemp = ArchivoPizarra;
    const std::string ruta = model::Ruta(s.Proyecto.DirTrabajo, ArchivoPizarra);
    s.Disco.Escribe(ruta, "\"");
    constexpr std::size_t Trozo = 1 << 18;
    const std::string_view texto = s.Control.TextoPizarra;
    for (std::size_t desde = 0; desde < texto.size();) {
        std::size_t hasta = std::min(desde + Trozo, texto.size());
        while (hasta < texto.size() && (texto[hasta] & 0xC0) == 0x80)
            ++hasta;  // whole characters
        s.Disco.Agrega(ruta, model::AWindows1252(texto.substr(desde, hasta - desde)));
        desde = hasta;
    }
    s.Disco.Agrega(ruta, "\"\r\n");
}

void CierraCorrida(Corrida& c)
{
    Siro& s = c.s;
    const std::string& texto = s.Control.TextoPizarra;
    constexpr std::size_t BytesPorCaracter = 4;  // at most
    if (texto.size() > BytesPorCaracter * LargoExtenso ||
        (texto.size() > LargoExtenso && model::CuentaCaracteres(texto) > LargoExtenso))
        Advierte(s, std::string(TextoExtenso), TituloTextoExtenso);
    c.Intenta([&] { GuardaTextoPizarra(s); });
}

}  // namespace

bool Corrida::Alcanzan() const
{
    const model::Resultados& r = s.Resultados;
    const int pasos = r.NroPasosQ, filas = r.NroComponentes;
    return s.Pasos.PasoQ >= 1 && pasos >= 1 && pasos * s.Pasos.PasoQ <= INT16_MAX &&
           r.QSale.Alcanza(filas, pasos) && r.QEntra.Alcanza(filas, pasos) &&
           r.QEntra.PrimeraFila() <= s.Red.NroUEHs() + 1 && s.Serie.IndSerie >= 0 &&
           r.QMax.Alcanza(filas, s.Serie.IndSerie);
}

bool Corrida::UEHsAlcanzan() const
{
    const model::Resultados& r = s.Resultados;
    const int n = s.Red.NroUEHs();
    return Alcanzan() && n >= 1 && n <= r.NroComponentes && n <= s.Red.ColUEHs.Cuenta() &&
           n <= model::MaxUEHs && r.PpUEHPaso.UltimaFila() >= n && r.PasosInfiltra.Tope() >= n &&
           RetencionRestante.Tope() >= n && r.VolUEH.Tope() >= n && r.VolBaseUEH.Tope() >= n &&
           s.Pasos.PasoPp + s.Tormenta.DurTormenta <= INT16_MAX;
}

bool ProcesoPrincipal(Siro& s, ModoCorrida modo, Memoria& memoria)
{
    Corrida c(s, memoria);
    c.ConTexto = modo.ConTexto || modo.GuardaTexto || s.Control.SalidaPizarra;
    c.ConVolumenes = c.ConTexto || modo.ConVolumenes;
    if (!PreparaCorrida(c)) return false;
    if (c.ConTexto) ReservaTexto(c);
    PasosDeLasUEHs(c);
    SumaRecesion(c);
    HidrogramasDeUEHs(c);
    VolumenesDeUEHs(c);
    AbreSegundaParte(c);
    if (!RecorreSecuencia(c)) return false;
    if (modo.GuardaTexto) CierraCorrida(c);
    return true;
}

bool ProcesoPrincipal(Siro& s, bool GuardaTexto)
{
    Memoria memoria;
    return ProcesoPrincipal(s, {.GuardaTexto = GuardaTexto, .ConTexto = true}, memoria);
}

}  // namespace engine
