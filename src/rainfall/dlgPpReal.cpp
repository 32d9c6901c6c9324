// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPpReal.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "forms/Calendario.h"
#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"
#include "model/Tormenta.h"
#include "rainfall/VistaLluvia.h"

namespace rainfall {

using forms::Evento;
using forms::FechaDeTexto;
using forms::HoraDeTexto;
using forms::Instante;
using forms::InstanteDeTextos;
using forms::SinFecha;
using forms::SinHora;
using forms::TextoFecha;
using forms::TextoHora;
using model::Advierte;
using model::NumeroATexto;
using model::Siro;
using model::Val;

namespace {

constexpr int ColumnaFecha = 1;
constexpr int ColumnaMinutos = 2;
constexpr int ColumnaParcial = 3;
constexpr int ColumnaAcumulada = 4;
constexpr auto Editables = std::to_array<forms::ColumnaEditable>({{ColumnaParcial}});
constexpr forms::ReglasGrilla ReglasTabla{
    .encabezado = "^Nro.  |^                    t [hs:min]  |^  t [min] |^Pp Parcial |^Pp Acumulada ",
    .editables = Editables,
    .columnasFijas = 1};

constexpr std::string_view NotasNuevas = "describa brevemente aquí la tormenta ";
constexpr std::string_view PasoSinLista = "10";  // [min]

constexpr std::string_view FechaMala = "Ingrese una fecha formato dd/mm/aaaa, Ej: 01/04/2004 ";
constexpr std::string_view HoraMala = "Ingrese una hora formato <hh:nn>, Ej:  <01:20>   ";
constexpr std::string_view FinalAntes = "El tiempo final ingresado es menor al inicial, Verifique";
constexpr std::string_view PideNombre = "Ingrese un nombre de archivo para la nueva tormenta";
constexpr std::string_view TituloNombre = "Asignar un nombre de archivo para la tormenta a ingresar";
constexpr std::string_view TituloBorrar = "¿Eliminar el archivo?";
constexpr std::string_view PreguntaBorrar1 = "La Tabla ha sido borrada. ¿Desea borrar tambien el archivo ";
constexpr std::string_view PreguntaBorrar2 = " ?";
constexpr std::string_view NoSeEncuentra = "No se encuentra el archivo ";
constexpr std::string_view TituloError = "Error...";

constexpr forms::ReglaNumero ReglaNroPpReal = forms::ReglaDeCuenta("txtNroPpReal");

/// Runs a command that writes the storm. Returns false where it came to a fault, which is told.
template <typename Cuerpo>
bool Escritura(const dlgPpReal& f, const Siro& s, Cuerpo&& cuerpo)
{
    return model::Sentencia(std::forward<Cuerpo>(cuerpo), [&](const model::Falla& falla) {
        if (falla.numero == model::NumeroFalla::ArchivoNoEsta)
            Advierte(s, std::string(NoSeEncuentra).append(f.tormenta.nombre), TituloError);
        else
            model::AvisaArchivo(s)(falla);
    });
}

// --- table ---

/// Room for depths 1..n. It never shrinks while the window is open, so that a number of intervals lowered and
/// raised again brings the old depths back.
void Ensancha(Siro& s, std::int16_t n)
{
    if (s.Tormenta.PpReal.Tope() < n + 1) s.Tormenta.PpReal.Redimensiona(n + 1);
}

void Suma(dlgPpReal& f, Siro& s)
{
    float suma = 0;
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j) {
        suma = model::Simple(double{suma} + double{s.Tormenta.PpReal(j)});
        f.MSFlexGridTablaPpReal.Pon({j, ColumnaAcumulada}, NumeroATexto(suma));
    }
    s.Tormenta.PpTormenta = suma;
    s.Tormenta.DurTormenta = model::Producto16(s.Tormenta.NroPpReal, f.tormenta.PasoPpReal);
}

/// Start of the storm; nothing where its file tells no date.
std::optional<Instante> Comienzo(const dlgPpReal& f)
{
    const auto dia = FechaDeTexto(f.tormenta.txtDateI);
    const auto minuto = HoraDeTexto(f.tormenta.txtTimeI);
    return dia && minuto ? std::optional(*dia + *minuto) : std::nullopt;
}

/// Fills the rows that there are.
void Llena(dlgPpReal& f, Siro& s)
{
    forms::Grilla& g = f.MSFlexGridTablaPpReal;
    const auto comienzo = Comienzo(f);
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j) {
        const std::int32_t minutos = j * std::int32_t{f.tormenta.PasoPpReal};
        g.Pon({j, 0}, NumeroATexto(j));
        g.Pon({j, ColumnaFecha}, comienzo
                                     ? TextoFecha(*comienzo + minutos) + ' ' + TextoHora(*comienzo + minutos)
                                     : std::string{});
        g.Pon({j, ColumnaMinutos}, NumeroATexto(minutos));
        g.Pon({j, ColumnaParcial}, NumeroATexto(s.Tormenta.PpReal(j)));
    }
    g.agrega = g.editada = false;
    Suma(f, s);
}

void Redibuja(dlgPpReal& f, Siro& s)
{
    forms::PonEditable(f.MSFlexGridTablaPpReal, ColumnaParcial, !f.Protegida);
    forms::PonNroFilas(f.MSFlexGridTablaPpReal, s.Tormenta.NroPpReal);
    Ensancha(s, s.Tormenta.NroPpReal);
    Llena(f, s);
}

/// The same of the storm in hand, whose steps stay.
void RedibujaComoPaso(dlgPpReal& f, Siro& s)
{
    forms::ComoUnPaso(f.MSFlexGridTablaPpReal, [&] { Redibuja(f, s); });
}

void TomaCeldas(dlgPpReal& f, Siro& s, const forms::Efecto& efecto)
{
    for (const forms::Celda c : efecto.asentadas)
        if (c.columna == ColumnaParcial)
            s.Tormenta.PpReal(c.fila) = model::Simple(f.MSFlexGridTablaPpReal.Numero(c));
    if (!efecto.asentadas.empty()) Suma(f, s);
}

TormentaLeida EnLaForma(const dlgPpReal& f)
{
    return {f.tormenta, f.txtNroPpReal, f.MSFlexGridTablaPpReal.filas};
}

/// Takes up the cell that is still being typed.
void Asienta(dlgPpReal& f, Siro& s)
{
    TomaCeldas(f, s, forms::Deja(f.MSFlexGridTablaPpReal));
}

// --- step, number of intervals, end ---

void LlenaPasos(dlgPpReal& f, const Siro& s)
{
    f.itemsPasot.clear();
    const std::size_t n = s.Configuracion.ListaDur.empty()
                              ? 0
                              : std::min(s.Configuracion.ListaDur.size() - 1, MaxPasosTormenta);
    for (std::size_t i = 1; i <= n; ++i)
        f.itemsPasot.push_back(NumeroATexto(s.Configuracion.ListaDur[i]));
}

void EligeSegundoPaso(dlgPpReal& f)
{
    const auto& items = f.itemsPasot;
    f.cmbPasot =
        items.empty() ? std::string(PasoSinLista) : items[std::min<std::size_t>(1, items.size() - 1)];
    f.tormenta.PasoPpReal = model::Entero16(Val(f.cmbPasot));
}

void PonSinFechas(dlgPpReal& f, std::string_view fecha)
{
    f.tormenta.txtDateI = f.tormenta.txtDateF = fecha;
    f.tormenta.txtTimeI = f.tormenta.txtTimeF = SinHora;
}

void PonNro(dlgPpReal& f, Siro& s, std::int16_t n)
{
    Ensancha(s, n);
    s.Tormenta.NroPpReal = n;
    f.txtNroPpReal = NumeroATexto(n);
}

void CalculaFinal(dlgPpReal& f, const Siro& s)
{
    const Instante fin = InstanteDeTextos(f.tormenta.txtDateI, f.tormenta.txtTimeI) +
                         Instante{s.Tormenta.NroPpReal} * f.tormenta.PasoPpReal;
    f.tormenta.txtDateF = TextoFecha(fin);
    f.tormenta.txtTimeF = TextoHora(fin);
}

/// The number of intervals that fit up to the end. Returns false, and leaves it as it is, where there are too
/// many.
bool CalculaNro(dlgPpReal& f, Siro& s)
{
    const Instante minutos = InstanteDeTextos(f.tormenta.txtDateF, f.tormenta.txtTimeF) -
                             InstanteDeTextos(f.tormenta.txtDateI, f.tormenta.txtTimeI);
    std::int16_t n = model::Entero16(model::Cociente(static_cast<double>(minutos), f.tormenta.PasoPpReal));
    if (n < 0) {
        Advierte(s, std::string(FinalAntes));
        n = 0;
    }
    if (!forms::Cabe(ReglaNroPpReal, n)) {
        forms::MuestraRechazo(s, ReglaNroPpReal.rechazo, ReglaNroPpReal.mensaje);
        return false;
    }
    PonNro(f, s, n);
    return true;
}

// --- storm in hand ---

/// Items of FilePpReal, the storm's own selected. A directory that isn't there holds no storm.
void LlenaLista(dlgPpReal& f, const Siro& s)
{
    f.FilePpReal.items.clear();
    model::Sentencia([&] { f.FilePpReal.items = model::ListaTormentas(s); });
    f.FilePpReal.Elige(f.tormenta.nombre);
}

void PonNombre(dlgPpReal& f, const Siro& s, std::string nombre)
{
    f.tormenta.nombre = std::move(nombre);
    f.Protegida = model::TormentaProtegida(f.tormenta.nombre);
    f.lblMiFilePpReal = model::EtiquetaTormenta(s, f.tormenta.nombre);
    LlenaLista(f, s);
}

void Lee(dlgPpReal& f, Siro& s)
{
    // Where there is no storm to be read, what the last hyetograph has left isn't one either.
    s.Tormenta.PpReal.Dimensiona(0);
    model::LeePpReal(s, f.tormenta);
    f.cmbPasot = NumeroATexto(f.tormenta.PasoPpReal);
    f.txtNroPpReal = NumeroATexto(s.Tormenta.NroPpReal);
    Redibuja(f, s);
    f.leida = EnLaForma(f);
}

void AbreForma(dlgPpReal& f, const dlgPp& pp, Siro& s)
{
    f = dlgPpReal{.abierta = true, .MSFlexGridTablaPpReal = forms::NuevaGrilla(ReglasTabla)};
    PonNombre(f, s, model::NombreTormenta(pp.lblMiFilePpReal));
    // The storm that dlgPp shows may just have been deleted here.
    if (f.FilePpReal.indice < 0) PonNombre(f, s, std::string(model::TormentaPorDefecto));
    LlenaPasos(f, s);
    EligeSegundoPaso(f);
    PonSinFechas(f, SinFecha);
    s.Tormenta.NroPpReal = 0;
    optNroPpReal_Click(f, OpcionFijaNro);
    Lee(f, s);
}

/// An item that the list doesn't have leaves it as it is.
void EligeSiEsta(forms::Lista& lista, std::string_view item)
{
    if (forms::Lista otra = lista; otra.Elige(item)) lista.indice = otra.indice;
}

/// The storm becomes the one of dlgPp.
void LlevaNombre(const dlgPpReal& f, dlgPp& pp)
{
    pp.tormenta.nombre = pp.lblMiFilePpReal = f.tormenta.nombre;
    EligeSiEsta(pp.FilePpReal, f.tormenta.nombre);
}

void Aplica(dlgPpReal& f, dlgPp& pp, Siro& s)
{
    Asienta(f, s);
    LlevaNombre(f, pp);
    if (f.Protegida) return;
    model::GuardaPpReal(s, f.tormenta);
    f.leida = EnLaForma(f);
}

}  // namespace

// --- opening, activation, list ---

void Abre(dlgPpReal& f, const dlgPp& pp, Siro& s)
{
    Evento(s, [&] { AbreForma(f, pp, s); });
}

void AlActivarse(dlgPpReal& f, dlgPp& pp, Siro& s)
{
    if (pp.optformaPp != model::FormaLluvia::Real) optformaPp_Click(pp, s, model::FormaLluvia::Real);
    s.Tormenta.FormaPp = model::FormaLluvia::Real;
    EligeSiEsta(f.FilePpReal, pp.lblMiFilePpReal);
    FilePpReal_Click(f, s);
}

void FilePpReal_Click(dlgPpReal& f, Siro& s)
{
    Evento(s, [&] {
        if (f.FilePpReal.indice >= 0) PonNombre(f, s, f.FilePpReal.Elegido());
        Lee(f, s);
    });
}

void cmdNuevaPpReal(dlgPpReal& f, Siro& s)
{
    const dlgPpReal forma = f;
    const auto laminas = s.Tormenta.PpReal;
    const std::int16_t n = s.Tormenta.NroPpReal;
    const bool hecha = Escritura(f, s, [&] {
        const std::string respuesta = s.Anfitrion.PideTexto(
            {std::string(PideNombre), std::string(TituloNombre), model::NombreTormentaNueva(s)});
        if (respuesta.empty()) return;
        f.tormenta.nombre = model::ArchivoTormentaNueva(respuesta);
        f.tormenta.Notas = NotasNuevas;
        PonSinFechas(f, SinFecha);
        EligeSegundoPaso(f);
        PonNro(f, s, 0);
        model::GuardaPpReal(s, f.tormenta);
        PonNombre(f, s, f.tormenta.nombre);
        Redibuja(f, s);
        f.leida = EnLaForma(f);
    });
    if (hecha) return;
    f = forma;
    s.Tormenta.PpReal = laminas;
    s.Tormenta.NroPpReal = n;
}

// --- fields ---

namespace {

/// A date or a time of the storm's start or end.
struct CampoTiempo {
    std::string_view control;
    std::string model::TormentaReal::*texto;
    bool esHora, esFinal;
};
constexpr auto CamposTiempo = std::to_array<CampoTiempo>({
    {"txtDateI", &model::TormentaReal::txtDateI, false, false},
    {"txtTimeI", &model::TormentaReal::txtTimeI, true, false},
    {"txtDateF", &model::TormentaReal::txtDateF, false, true},
    {"txtTimeF", &model::TormentaReal::txtTimeF, true, true},
});

/// The table's times follow the start, its number of intervals the end, which may be refused.
bool AlSalirTiempo(dlgPpReal& f, Siro& s, const CampoTiempo& campo)
{
    std::string& texto = f.tormenta.*campo.texto;
    if (campo.esHora ? forms::controlMiHora(texto) : forms::controlMiFecha(texto)) {
        Advierte(s, std::string(campo.esHora ? HoraMala : FechaMala));
        if (campo.esHora) texto = SinHora;
        return false;
    }
    bool pasa = true;  // a fault refuses nothing
    Evento(s, [&] {
        Asienta(f, s);
        pasa = !campo.esFinal || CalculaNro(f, s);
        if (pasa) RedibujaComoPaso(f, s);
    });
    return pasa;
}

}  // namespace

bool AlSalir(dlgPpReal& f, Siro& s, std::string_view control)
{
    for (const CampoTiempo& campo : CamposTiempo)
        if (campo.control == control) return AlSalirTiempo(f, s, campo);
    if (!forms::AlSalir(s, ReglaNroPpReal, f.txtNroPpReal)) return false;
    Evento(s, [&] {
        Asienta(f, s);
        PonNro(f, s, model::Entero16(Val(f.txtNroPpReal)));
        RedibujaComoPaso(f, s);
        CalculaFinal(f, s);
    });
    return true;
}

void cmbPasot_Click(dlgPpReal& f, Siro& s)
{
    Evento(s, [&] {
        Asienta(f, s);
        f.tormenta.PasoPpReal = model::Entero16(Val(f.cmbPasot));
        if (f.FinalEditable())
            CalculaNro(f, s);
        else
            CalculaFinal(f, s);
        RedibujaComoPaso(f, s);
    });
}

void optNroPpReal_Click(dlgPpReal& f, int i)
{
    f.optNroPpReal = i;
}

// --- table and commands ---

void AlAsentar(dlgPpReal& f, Siro& s, const forms::Efecto& efecto)
{
    Evento(s, [&] {
        if (efecto.otrasFilas) PonNro(f, s, static_cast<std::int16_t>(f.MSFlexGridTablaPpReal.NroFilas()));
        TomaCeldas(f, s, efecto);
        if (!efecto.otrasFilas) return;
        Llena(f, s);
        CalculaFinal(f, s);
    });
}

PedidoHietograma cmdVerGrafico(dlgPpReal& f, Siro& s)
{
    Evento(s, [&] { Asienta(f, s); });
    return {s.Tormenta.NroPpReal, f.tormenta.PasoPpReal, f.tormenta.Notas, s.Tormenta.PpTormenta,
            s.Tormenta.DurTormenta};
}

void cmdBorraTablaDisPer(dlgPpReal& f, const dlgPp& pp, Siro& s)
{
    Escritura(f, s, [&] {
        PonNro(f, s, 0);
        f.tormenta.Notas.clear();
        PonSinFechas(f, forms::FechaBorrada);
        EligeSegundoPaso(f);
        Redibuja(f, s);
        const bool borra = s.Anfitrion.Pregunta(
            {std::string(PreguntaBorrar1).append(f.tormenta.nombre).append(PreguntaBorrar2),
             std::string(TituloBorrar), model::Icono::Pregunta});
        if (borra) {
            s.Disco.Borra(model::Ruta(s.Proyecto.DirProyecto, f.tormenta.nombre));
            AbreForma(f, pp, s);
        }
        // After a deletion this writes the storm that the opening came to.
        model::GuardaPpReal(s, f.tormenta);
        LlenaLista(f, s);
        Redibuja(f, s);
        f.leida = EnLaForma(f);
    });
}

void cmdAplicar(dlgPpReal& f, dlgPp& pp, Siro& s)
{
    Escritura(f, s, [&] { Aplica(f, pp, s); });
}

void OKButton(dlgPpReal& f, dlgPp& pp, Siro& s)
{
    Escritura(f, s, [&] {
        Aplica(f, pp, s);
        model::GuardaPpReal(s, f.tormenta);
        f.abierta = false;
    });
}

void CancelButton(dlgPpReal& f)
{
    f.abierta = false;
}

bool SinAplicar(const dlgPpReal& f)
{
    return f.abierta && !(f.leida == EnLaForma(f));
}

void TomaImportada(dlgPpReal& f, Siro& s, const TormentaImportada& importada)
{
    Evento(s, [&] {
        const auto n = static_cast<std::int16_t>(importada.laminas.size());
        f.tormenta.Notas = importada.notas;
        f.tormenta.PasoPpReal = importada.paso;
        f.cmbPasot = NumeroATexto(importada.paso);
        f.tormenta.txtDateI = TextoFecha(importada.comienzo);
        f.tormenta.txtTimeI = TextoHora(importada.comienzo);
        PonNro(f, s, n);
        for (int j = 1; j <= n; ++j)
            s.Tormenta.PpReal(j) = importada.laminas[static_cast<std::size_t>(j) - 1];
        CalculaFinal(f, s);
        Redibuja(f, s);
    });
}

forms::Grafico Vista(const dlgPpReal& f)
{
    return GraficoDeTabla(
        f.MSFlexGridTablaPpReal,
        {.columnaX = ColumnaMinutos, .columnaY = ColumnaParcial, .ejeX = "t [min]", .ejeY = "Pp [mm]"});
}

}  // namespace rainfall
