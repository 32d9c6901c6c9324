// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/mdlSeriePDR.h"

#include <algorithm>
#include <cmath>

#include "engine/ComponenteFinal.h"
#include "engine/SerieRapida.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "engine/modProceso0.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace engine {

using model::Falla;
using model::NumeroATexto;
using model::Siro;

namespace {

constexpr std::string_view TituloAvance = "un momento...esta opción puede tardar varios minutos...";
constexpr std::string_view SinTormentasPDR =
    "No se han cargado tormentas PDRs. Para correr esta opción debe previamente cargar un conjunto de "
    "tormentas desde Menu Principal\\Entradas\\Precipitaciones, luego tildar la opción <c) Cargar una tabla "
    "de Pp-D-R desde archivo> y pulsar el botón de cargar tabla PDR ...";
constexpr std::string_view TituloTablaGuardada =
    "La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>";
// The lone quote is part of the text.
constexpr std::string_view TablaGuardada =
    "La tabla de resultados Q-D-R se guarda completa en el archivo de texto <SaleTablasQDRs_tem.txt>. Puede "
    "leer directamente este archivo con un editor de texto o bien importar archivo desde Excel como "
    "<delimitado>, con separador <,> y formato <general>\"Tiempo de proceso: ";
constexpr std::string_view TituloFallaTabla = "Falla en resguardo de archivo";
constexpr std::string_view FallaTabla =
    "El resguardo de resultados en el archivo <SaleTablasQDRs_tem.txt> ha fallado";

/// Time since the series began, hours, minutes and seconds without leading zeros.
std::string TiempoDeProceso(const Siro& s)
{
    const int segundos = std::max(0, static_cast<int>(s.Anfitrion.Reloj() - s.Serie.HoraInicio));
    return NumeroATexto(segundos / 3600) + ":" + NumeroATexto(segundos / 60 % 60) + ":" +
           NumeroATexto(segundos % 60);
}

bool TormentaNula(const Siro& s, int numero)
{
    return s.Serie.SerieP(numero) == 0 || s.Serie.SerieD(numero) == 0;
}

void MuestraAvance(Siro& s, int numero)
{
    s.Anfitrion.TextosAvance("P=" + NumeroATexto(s.Serie.SerieP(numero)) +
                                 "mm  -   D=" + NumeroATexto(std::int32_t{s.Serie.SerieD(numero)}) +
                                 "min  -   R=" + NumeroATexto(std::int32_t{s.Serie.SerieR(numero)}) + "años",
                             "Tiempo de proceso: " + TiempoDeProceso(s));
}

void MueveBarra(Siro& s, int numero)
{
    if (numero < s.Serie.NroSeriePDR)
        s.Anfitrion.BarraAvance(static_cast<int>(std::nearbyint((numero + 1) * 100.0 / s.Serie.NroSeriePDR)));
}

void AbreSerie(Siro& s)
{
    s.Anfitrion.AbreAvance(TituloAvance);
    s.Anfitrion.BarraAvance(0);
    s.Anfitrion.TextosAvance("", "PDR");
    s.Serie.HoraInicio = s.Anfitrion.Reloj();
    s.Anfitrion.PonMarcaPizarra(false);
    s.Control.SalidaPizarra = false;
    CargaProyecto(s);
    RehaceSecuencia(s);
    s.Control.AvisoDescargasVisto = true;
}

/// Storms that the series runs, in order, up to the first of depth or duration 0.
std::vector<int> TormentasElegidas(Siro& s)
{
    std::vector<int> numeros;
    for (int numero = 1; numero <= s.Serie.NroSeriePDR && !TormentaNula(s, numero); ++numero) {
        s.Serie.IndSerie = static_cast<std::int16_t>(numero);
        SaltaTormenta(s);
        if (!s.Serie.SaltarTormenta) numeros.push_back(numero);
    }
    return numeros;
}

/// Runs storms one after another from a place on. Only the last one's text can be read afterwards.
void CorreUnaTrasOtra(Siro& s, const std::vector<int>& numeros, std::size_t desde)
{
    Memoria memoria;
    memoria.VariasCorridas = numeros.size() - desde > 1;
    for (std::size_t i = desde; i < numeros.size(); ++i) {
        s.Serie.IndSerie = static_cast<std::int16_t>(numeros[i]);
        SaltaTormenta(s);
        MuestraAvance(s, numeros[i]);
        ConstruyeHietograma(s);
        ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = i + 1 == numeros.size()}, memoria);
        MueveBarra(s, numeros[i]);
    }
}

/// Leaves IndSerie and the storm in hand as a walk through the whole series does. Returns false where a storm
/// of depth or duration 0 ends it.
bool TerminaSerie(Siro& s)
{
    for (int numero = 1; numero <= s.Serie.NroSeriePDR; ++numero) {
        s.Serie.IndSerie = static_cast<std::int16_t>(numero);
        SaltaTormenta(s);
        if (TormentaNula(s, numero)) return false;
    }
    s.Serie.IndSerie = model::Suma16(s.Serie.NroSeriePDR, 1);
    return true;
}

void EscribeEncabezado(Siro& s, model::EscritorRegistros& archivo)
{
    const std::string conf =
        model::Ruta(s.Proyecto.DirProyecto, model::ArchivoConf(s.Proyecto.NombreProyecto));
    const std::string operador = s.Configuracion.Operador + " - " + s.Anfitrion.FechaHora();
    for (const std::string_view texto :
         {std::string_view("SIRO - Modelo de Simulación Hidrológica"), std::string_view(conf),
          std::string_view(s.Configuracion.TituloProyecto), std::string_view(s.Configuracion.Ubicacion),
          std::string_view(s.Configuracion.Cuenca), std::string_view(s.Configuracion.Subcuenca),
          std::string_view(operador),
          std::string_view("SIMULACION PARA SERIE PDR DE TORMENTAS SINTETICAS  ")})
        archivo.Texto(texto).FinRegistro();
    for (const std::string_view columna :
         {"Componente", "Nro.", "P[mm]", "D[min]", "R[años]", "Q[m3/s]", "E[m3]", "C[%]"})
        archivo.Texto(columna);
    archivo.FinRegistro();
}

void EscribeResultado(Siro& s, model::EscritorRegistros& archivo, int fila)
{
    const int numero = s.Serie.IndSerie;
    archivo.Texto(s.Resultados.Secuencia[static_cast<std::size_t>(fila)])
        .Numero(std::int32_t{fila})
        .Numero(s.Serie.SerieP(numero));
    archivo.Numero(std::int32_t{s.Serie.SerieD(numero)}).Numero(std::int32_t{s.Serie.SerieR(numero)});
    archivo.Numero(model::Redondea(s.Resultados.QMax(fila, numero), 2));
    if (fila <= s.Red.NroUEHs())
        archivo.Numero(s.Resultados.EscUEH(fila, numero))
            .Numero(model::Redondea(s.Resultados.CoefEscUEH(fila, numero), 2));
    archivo.FinRegistro();
}

/// Returns false where a storm of depth or duration 0 ends the table.
bool EscribeResultados(Siro& s, model::EscritorRegistros& archivo)
{
    for (int fila = 1; fila <= s.Resultados.NroComponentes; ++fila) {
        for (s.Serie.IndSerie = 1; s.Serie.IndSerie <= s.Serie.NroSeriePDR;
             s.Serie.IndSerie = model::Suma16(s.Serie.IndSerie, 1)) {
            SaltaTormenta(s);
            if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return false;
            if (!s.Serie.SaltarTormenta) EscribeResultado(s, archivo, fila);
        }
    }
    return true;
}

void EscribeTablaQDR(Siro& s)
{
    s.Proyecto.ArchivoTemp = ArchivoTablaQDR;
    model::EscritorRegistros archivo(s.Disco, model::Salida::PorPiezas);
    archivo.Abre(model::Ruta(s.Proyecto.DirTrabajo, ArchivoTablaQDR));
    EscribeEncabezado(s, archivo);
    const bool completa = EscribeResultados(s, archivo);
    archivo.Cierra();
    if (completa)
        model::Advierte(
            s, std::string(TablaGuardada) + "\r\n\r\n\r\nTiempo total del proceso: " + TiempoDeProceso(s),
            TituloTablaGuardada);
}

/// Whether the flag of a value among those that a configuration can select is off; any other value has none.
template <std::size_t N>
bool Deseleccionada(const std::array<std::int16_t, N>& valores, const std::array<std::int16_t, N>& marcas,
                    std::int16_t valor)
{
    const auto hallado = std::find(valores.begin(), valores.end(), valor);
    return hallado != valores.end() && marcas[static_cast<std::size_t>(hallado - valores.begin())] == 0;
}

FinSerie CorreSerie(Siro& s, int hilos, const MiraTormenta& mira)
{
    AbreSerie(s);
    if (s.Serie.NroSeriePDR >= 0) s.Resultados.DimensionaTormentas(s.Red.NroUEHs(), s.Serie.NroSeriePDR);
    if (s.Serie.NroSeriePDR < 1) {
        model::Advierte(s, std::string(SinTormentasPDR));
        s.Anfitrion.CierraAvance();
        return FinSerie::SinTormentas;
    }
    const std::vector<int> numeros = TormentasElegidas(s);
    const auto avisa = [&](int numero) {
        MuestraAvance(s, numero);
        MueveBarra(s, numero);
    };
    const std::size_t hechas = CorreTormentasSinAvisos(s, numeros, hilos, avisa, mira);
    for (std::size_t i = hechas; mira && i < numeros.size(); ++i)
        mira(numeros[i], nullptr);
    CorreUnaTrasOtra(s, numeros, hechas);
    if (!TerminaSerie(s)) return FinSerie::TormentaNula;  // the window of the progress stays open
    s.Anfitrion.BarraAvance(0);
    s.Anfitrion.CierraAvance();
    s.Anfitrion.AbreTablaSerie();
    GuardaTablaQDR(s);
    return FinSerie::Completa;
}

}  // namespace

void SaltaTormenta(Siro& s)
{
    model::TomaTormenta(s.Tormenta, s.Serie, s.Serie.IndSerie);
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return;
    s.Serie.SaltarTormenta =
        s.Tormenta.DurTormenta < s.Pasos.PasoPp ||
        Deseleccionada(model::Duraciones, s.Configuracion.CheckD, s.Tormenta.DurTormenta) ||
        Deseleccionada(model::Recurrencias, s.Configuracion.CheckR, s.Tormenta.RecTormenta);
}

void GuardaTablaQDR(Siro& s)
{
    model::Sentencia([&] { EscribeTablaQDR(s); },
                     [&](const Falla&) { model::Advierte(s, std::string(FallaTabla), TituloFallaTabla); });
}

FinSerie CorreSeriePDR(Siro& s, int hilos, const MiraTormenta& mira)
{
    FinSerie fin = FinSerie::SinTormentas;
    model::Sentencia([&] { fin = CorreSerie(s, hilos, mira); }, model::AvisaMotor(s));
    return fin;
}

}  // namespace engine
