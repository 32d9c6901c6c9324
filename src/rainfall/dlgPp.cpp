// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "engine/modDistriPp.h"
#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Texto.h"
#include "model/Tormenta.h"

namespace rainfall {

using forms::Evento;
using model::Advierte;
using model::FormaLluvia;
using model::NumeroATexto;
using model::PrimeraPersonal;
using model::Siro;
using model::Val;

namespace {

constexpr std::string_view PorDefecto = "60";
constexpr std::int16_t PasoPorDefecto = 10;  // [min]
constexpr int UltimaDistribucion = DistribucionesPp.size() - 1;
constexpr int PrimeraMuestra = 2;  // distributions 2 to 4 are storms of Ruvera
constexpr std::string_view DuracionDeMuestra = "1440";

constexpr std::string_view SinTormenta = "No ha ingresado datos de Pp y Duración de la tormenta.";
constexpr std::string_view TituloAtencion = "Atención...";
constexpr std::string_view VerifiqueDistribucion = "Verifique la Distribución temporal de LLuvia";
constexpr std::string_view TituloPasoPp = "Corrección de selección del paso de entrada (Precipitación)";
constexpr std::string_view PasoPpLargo =  // kept as it stands
    "Elija un paso de tiempo para las entradas (Precipitaciones)  múlitplo menor, o al menos igual, a la "
    "Duración de la Tormenta. (Sugerido: 1/3 del tiempo de concentración de la cuenca)";
constexpr std::string_view TituloPasoQ = "Corrección de selección del paso de salida";
constexpr std::string_view PasoQNoCabe =  // kept as it stands
    "Elija un paso de tiempo para las salidas (Caudales) igual, o múlitplo menor, al paso de entradas "
    "(precipitaciones)";

// --- options and fields ---

/// The form that is ticked; the first one where none is.
FormaLluvia Forma(const dlgPp& f)
{
    return FormaLluvia{static_cast<std::int16_t>(std::max(f.optformaPp, 0))};
}

std::int16_t Tabla(const dlgPp& f)
{
    return static_cast<std::int16_t>(std::max(f.optTablaPDR, 0));
}

void TomaDistribucion(const dlgPp& f, Siro& s)
{
    if (f.optDistriPp >= 0) s.Tormenta.DistriPp = static_cast<std::int16_t>(f.optDistriPp);
}

/// An option by its number; none for a number that none has.
int Opcion(int i, std::size_t cuantas)
{
    return i < static_cast<int>(cuantas) ? std::max(i, -1) : -1;
}

void MuestraCampos(dlgPp& f, const Siro& s, std::span<const CampoPp> campos)
{
    for (const CampoPp& campo : campos)
        f.*campo.texto = f.mostrados.*campo.texto = campo.valor.texto(s);
}

/// Depth and duration. A real storm has no recurrence.
void MuestraTormenta(dlgPp& f, const Siro& s)
{
    MuestraCampos(f, s, std::span(CamposDeTormenta).first(2));
}

void TomaCampos(const dlgPp& f, Siro& s, std::span<const CampoPp> campos)
{
    for (const CampoPp& campo : campos)
        campo.valor.pon(s, Val(f.*campo.texto));
}

// --- real storm ---

/// Items of FilePpReal, that of the storm's name selected, or the first, whose name then is the storm's. A
/// directory that isn't there holds no storm.
void LlenaFilePpReal(dlgPp& f, const Siro& s)
{
    f.FilePpReal = {};
    model::Sentencia([&] { f.FilePpReal.items = model::ListaTormentas(s); });
    f.tormenta.nombre = model::NombreTormenta(f.tormenta.nombre);
    if (f.FilePpReal.items.empty()) return;
    if (!f.FilePpReal.Elige(f.tormenta.nombre)) f.FilePpReal.indice = 0;
    f.tormenta.nombre = f.FilePpReal.Elegido();
}

/// Reads the storm. Its step becomes that of the model, but where its file tells none: the step then stays.
void LeeTormenta(dlgPp& f, Siro& s)
{
    constexpr std::int16_t SinLeer = -1;  // [min]
    const std::int16_t paso = std::exchange(f.tormenta.PasoPpReal, SinLeer);
    model::LeePpReal(s, f.tormenta);
    const bool conPaso = f.tormenta.PasoPpReal != SinLeer;
    if (!conPaso) f.tormenta.PasoPpReal = paso;
    f.lblNumPer = NumeroATexto(s.Tormenta.NroPpReal);
    f.lblMiFilePpReal = model::EtiquetaTormenta(s, f.tormenta.nombre);
    MuestraTormenta(f, s);
    if (conPaso) s.Pasos.PasoPp = f.tormenta.PasoPpReal;
    f.cmbPasoPp = NumeroATexto(s.Pasos.PasoPp);
}

// --- besides the table, per form ---

void HabilitaTablaPDR(dlgPp& f)
{
    f.Estado("cmdTablaPDR").habilitado = f.optTablaPDR > 0;
}

void EstadoReal(dlgPp& f, Siro& s)
{
    LlenaFilePpReal(f, s);
    LeeTormenta(f, s);
    f.optDistriPp = UltimaDistribucion;
    TomaDistribucion(f, s);
}

void LeeLista(dlgPp& f, Siro& s)
{
    model::leeListaPpDurRec(s, f.cmbPDR.items);
    f.cmbPDR.indice = -1;
}

}  // namespace

void MuestraValidez(dlgPp& f, const Siro& s)
{
    if (Forma(f) != FormaLluvia::Escrita || f.optDistriPp < PrimeraPersonal) return;
    const auto k = static_cast<std::size_t>(f.optDistriPp - (PrimeraPersonal - 1));
    f.Estado("lblValidez").visible = true;
    f.Estado("lblDurMin").visible = s.TablasDeLluvia.DurMinPer[k] > 0;
    f.Estado("lblDurMax").visible = s.TablasDeLluvia.DurMaxPer[k] > 0;
    f.lblDurMin = NumeroATexto(s.TablasDeLluvia.DurMinPer[k]);
    f.lblDurMax = NumeroATexto(s.TablasDeLluvia.DurMaxPer[k]);
}

void EstadoFormaPp(dlgPp& f, Siro& s)
{
    const FormaLluvia forma = Forma(f);
    s.Tormenta.FormaPp = forma;
    Pon(f.estados, Deshabilitados, &EstadoControl::habilitado, false);
    f.Estado("optDistriPp").habilitado = forma < FormaLluvia::PorUEH;
    TomaDistribucion(f, s);

    if (forma == FormaLluvia::DeLista) LeeLista(f, s);
    const FilaForma& fila = FilasForma.at(static_cast<std::size_t>(forma));
    Pon(f.estados, fila.habilita, &EstadoControl::habilitado, true);
    Pon(f.estados, fila.deshabilita, &EstadoControl::habilitado, false);
    Pon(f.estados, Marcos | fila.oculta, &EstadoControl::visible, false);
    Pon(f.estados, fila.muestra, &EstadoControl::visible, true);

    if (forma <= FormaLluvia::SeriePDR && f.optDistriPp >= PrimeraPersonal)
        f.Estado("cmdPpPerso").habilitado = true;
    MuestraValidez(f, s);
    if (forma == FormaLluvia::SeriePDR) HabilitaTablaPDR(f);
    // Storms per UEH are always of constant intensity. The click comes back here with the option ticked.
    if (forma == FormaLluvia::PorUEH && f.optDistriPp != 0) optDistriPp_Click(f, s, 0);
    if (forma == FormaLluvia::Real) EstadoReal(f, s);
}

// --- opening and activation ---

namespace {

void LlenaListas(dlgPp& f, const Siro& s)
{
    const auto& recurrencias = s.Configuracion.ListaRec;
    for (std::size_t i = 1; i < recurrencias.size(); ++i)
        f.itemsRec.push_back(NumeroATexto(recurrencias[i]));
    for (const std::int16_t paso : PasosDeTiempo)
        f.itemsPaso.push_back(NumeroATexto(paso));
}

}  // namespace

void Abre(dlgPp& f, Siro& s)
{
    dlgPp nueva;
    nueva.tormenta = std::move(f.tormenta);
    nueva.abierta = true;
    f = std::move(nueva);
    // Enabled by the one form that uses it.
    f.Estado("cmdCargaPDRnoUniforme").habilitado = false;
    // Shown with a personal distribution only.
    Pon(f.estados, Validez, &EstadoControl::visible, false);
    LlenaListas(f, s);
    for (std::int16_t* paso : {&s.Pasos.PasoPp, &s.Pasos.PasoQ})
        if (*paso == 0) *paso = PasoPorDefecto;
    MuestraCampos(f, s, CamposDePasos);
    s.Pasos.PasoQ = std::min(s.Pasos.PasoQ, s.Pasos.PasoPp);
    MuestraCampos(f, s, CamposDeTormenta);
    if (s.Tormenta.PpTormenta == 0) f.txtPp = PorDefecto;
    if (s.Tormenta.DurTormenta == 0) f.txtDur = PorDefecto;
    f.optformaPp = Opcion(s.Tormenta.FormaPp, FormasPp.size());
    f.optDistriPp = Opcion(s.Tormenta.DistriPp, DistribucionesPp.size());
    f.optTablaPDR = Opcion(s.Tormenta.TablaPDR, TablasPDR.size());
    f.mostrados = f;
    if (Forma(f) == FormaLluvia::Escrita) LeeLista(f, s);  // form 1 reads it with its state
    Evento(s, [&] { EstadoFormaPp(f, s); });
}

void AlActivarse(dlgPp& f, Siro& s)
{
    if (Forma(f) == FormaLluvia::Real) FilePpReal_Click(f, s);
}

void AlVolver(dlgPp& f, Siro& s)
{
    const TextosDePp textos = f;
    Evento(s, [&] { EstadoFormaPp(f, s); });
    for (const CampoPp& campo : CamposDeTormenta)
        f.*campo.texto = textos.*campo.texto;
    AlActivarse(f, s);
}

// --- clicks ---

void optformaPp_Click(dlgPp& f, Siro& s, int i)
{
    const bool dejaLaReal = Forma(f) == FormaLluvia::Real && i != f.optformaPp;
    f.optformaPp = i;
    if (dejaLaReal && s.Tormenta.DistriPp > PrimeraPersonal)
        Advierte(s, std::string(VerifiqueDistribucion), TituloAtencion);
    Evento(s, [&] { EstadoFormaPp(f, s); });
}

void optDistriPp_Click(dlgPp& f, Siro& s, int i)
{
    f.optDistriPp = i;
    Evento(s, [&] { EstadoFormaPp(f, s); });
    // The same for the three sample storms, though the last of them took 48 hours: kept as it stands.
    if (f.optDistriPp >= PrimeraMuestra && f.optDistriPp < PrimeraPersonal) f.txtDur = DuracionDeMuestra;
}

void optTablaPDR_Click(dlgPp& f, int i)
{
    f.optTablaPDR = i;
    HabilitaTablaPDR(f);
}

void cmbPDR_Click(dlgPp& f, Siro& s)
{
    if (f.cmbPDR.indice < 0) return;
    Evento(s, [&] {
        model::ParsePDR(s, f.cmbPDR.Elegido());
        MuestraCampos(f, s, CamposDeTormenta);
    });
}

void FilePpReal_Click(dlgPp& f, Siro& s)
{
    if (f.FilePpReal.indice < 0) return;
    f.tormenta.nombre = f.FilePpReal.Elegido();
    Evento(s, [&] { LeeTormenta(f, s); });
}

// --- leaving a field ---

namespace {

bool PasoPpCabe(const dlgPp& f, const Siro& s)
{
    bool sobra = false;
    Evento(s, [&] {
        const double paso = Val(f.cmbPasoPp);
        sobra = paso != 0 && !f.txtDur.empty() && paso > Val(f.txtDur);
    });
    if (sobra) Advierte(s, std::string(PasoPpLargo), TituloPasoPp);
    return !sobra;
}

void AjustaPasoQ(dlgPp& f, Siro& s)
{
    bool noCabe = false;
    Evento(s, [&] {
        const double pasoQ = Val(f.cmbPasoQ);
        if (pasoQ == 0) return;
        const double pasoPp = Val(f.cmbPasoPp);
        const double veces = pasoPp / pasoQ;
        noCabe = pasoQ > pasoPp || veces != std::floor(veces);
    });
    if (!noCabe) return;
    Advierte(s, std::string(PasoQNoCabe), TituloPasoQ);
    f.cmbPasoQ = f.cmbPasoPp;
    s.Pasos.PasoQ = s.Pasos.PasoPp;
}

}  // namespace

bool AlSalir(dlgPp& f, Siro& s, std::string_view control)
{
    if (control == "cmbPasoPp") return PasoPpCabe(f, s);
    if (control == "cmbPasoQ") AjustaPasoQ(f, s);
    const CampoPp* campo = forms::CampoDe(CamposDeTormenta, control);
    if (campo == nullptr) campo = forms::CampoDe(CamposDePasos, control);
    if (campo == nullptr || campo->regla.mensaje.empty()) return true;
    const std::optional<double> x = forms::NumeroDeCampo(campo->regla, f.*campo->texto);
    // One that its type can't hold is refused too.
    if (x) model::Sentencia([&] { campo->valor.pon(s, *x); });
    return forms::AlSalir(s, campo->regla, f.*campo->texto);
}

// --- commands ---

namespace {

void TomaSerie(dlgPp& f, Siro& s)
{
    s.Tormenta.TablaPDR = Tabla(f);
    model::LeeTablaPDRs(s);
    if (s.Serie.NroSeriePDR <= 0) return;
    f.txtPp = NumeroATexto(s.Serie.SerieP(1));
    f.txtDur = NumeroATexto(s.Serie.SerieD(1));
    f.cmbRec = NumeroATexto(s.Serie.SerieR(1));
}

/// A step may not outlast the storm, and none is 0. The two steps aren't compared here.
void CorrigePasos(dlgPp& f, const Siro& s)
{
    if (Val(f.cmbPasoPp) > s.Tormenta.DurTormenta) f.cmbPasoPp = NumeroATexto(s.Tormenta.DurTormenta);
    for (std::string* paso : {&f.cmbPasoPp, &f.cmbPasoQ})
        if (Val(*paso) == 0 && !f.itemsPaso.empty()) *paso = f.itemsPaso.front();
}

bool HayTormenta(const Siro& s)
{
    return s.Tormenta.PpTormenta != 0 && s.Tormenta.DurTormenta != 0;
}

void Aplica(dlgPp& f, Siro& s)
{
    s.Tormenta.FormaPp = Forma(f);
    if (s.Tormenta.FormaPp == FormaLluvia::SeriePDR) TomaSerie(f, s);
    TomaCampos(f, s, CamposDeTormenta);
    if (!HayTormenta(s)) {
        Advierte(s, std::string(SinTormenta));
        f.abierta = false;
        return;
    }
    Pon(f.estados, Validez, &EstadoControl::visible, false);
    TomaDistribucion(f, s);
    CorrigePasos(f, s);
    TomaCampos(f, s, CamposDePasos);
    f.mostrados = f;
}

/// Whether a field holds another number than the value in use. One that this can't hold is another.
bool Otro(const dlgPp& f, const Siro& s, const CampoPp& campo)
{
    const std::string& texto = f.*campo.texto;
    if (texto == f.mostrados.*campo.texto) return false;
    bool otro = true;
    model::Sentencia([&] { otro = !campo.valor.es(s, Val(texto)); });
    return otro;
}

/// Applies. Returns false where there is nothing to show: no storm, or a fault on the way.
bool AplicaYHayTormenta(dlgPp& f, Siro& s)
{
    return Evento(s, [&] { Aplica(f, s); }) && HayTormenta(s);
}

model::CamposTormenta Campos(const dlgPp& f)
{
    return {f.txtPp, f.txtDur, f.cmbRec};
}

void AgregaRenglon(const Siro& s, std::string_view renglon)
{
    s.Anfitrion.AgregaPizarra(std::string(model::SaltoLinea).append(renglon));
}

void ListaTormenta(const Siro& s)
{
    s.Anfitrion.AbrePizarra();
    AgregaRenglon(s, "Entrada: PRECIPITACION");
    AgregaRenglon(s, "Pp Total= " + NumeroATexto(s.Tormenta.PpTormenta) + " [mm]");
    AgregaRenglon(s, "Duración= " + NumeroATexto(s.Tormenta.DurTormenta) + " [min]");
    if (s.Tormenta.RecTormenta != 0)
        AgregaRenglon(s, "Recurrencia= " + NumeroATexto(s.Tormenta.RecTormenta) + " [años]");
    AgregaRenglon(s, "paso Pp= " + NumeroATexto(s.Pasos.PasoPp) + " [min]");
    AgregaRenglon(s, "paso Q = " + NumeroATexto(s.Pasos.PasoQ) + " [min]");
    AgregaRenglon(s, "Distribución Pp(t)= " + NumeroATexto(s.Tormenta.DistriPp) + " [índice]");
}

/// A column of each block under each piece of the heading, the blank ahead of a piece being its own.
void ListaBloques(const Siro& s)
{
    constexpr std::size_t AnchoPer = 4;    // "Per."
    constexpr std::size_t AnchoPp = 6;     // "Pp[mm]"
    constexpr std::size_t AnchoAcum = 10;  // "PpAcum[mm]"
    AgregaRenglon(s, "Per. Pp[mm] PpAcum[mm] Int.Pp[mm/min]");
    for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
        AgregaRenglon(s, model::AjustaIzquierda(NumeroATexto(j), AnchoPer) + ' ' +
                             model::AjustaIzquierda(NumeroATexto(s.Tormenta.PpReal(j)), AnchoPp) + ' ' +
                             model::AjustaIzquierda(NumeroATexto(s.Hietograma.PpAcum(j)), AnchoAcum) + ' ' +
                             NumeroATexto(s.Hietograma.IntensidadPp(j)));
}

}  // namespace

void cmdAplicar(dlgPp& f, Siro& s)
{
    Evento(s, [&] { Aplica(f, s); });
}

void OKButton(dlgPp& f, Siro& s)
{
    if (Evento(s, [&] { Aplica(f, s); })) f.abierta = false;
}

bool SinAplicar(const dlgPp& f, const Siro& s)
{
    if (!f.abierta) return false;
    const auto otro = [&](const CampoPp& campo) { return Otro(f, s, campo); };
    return std::ranges::any_of(CamposDeTormenta, otro) || std::ranges::any_of(CamposDePasos, otro) ||
           (Forma(f) == FormaLluvia::SeriePDR && Tabla(f) != s.Tormenta.TablaPDR);
}

void CancelButton(dlgPp& f)
{
    f.abierta = false;
}

void cmdPDR(dlgPp& f, Siro& s)
{
    f.cmbPDR.items.push_back(model::TextoPDR(f.txtPp, f.txtDur, f.cmbRec));
    model::GuardaListaPDR(s, f.cmbPDR.items, Campos(f));
    f.cmbPDR.indice = static_cast<int>(f.cmbPDR.items.size()) - 1;
}

void cmdBorraPDR(dlgPp& f, Siro& s)
{
    if (f.cmbPDR.indice < 0) return;
    f.cmbPDR.items.erase(f.cmbPDR.items.begin() + f.cmbPDR.indice);
    f.cmbPDR.indice = -1;
    model::GuardaListaPDR(s, f.cmbPDR.items, Campos(f));
    MuestraCampos(f, s, CamposDeTormenta);
}

std::optional<PedidoHietograma> cmdVerGrafico(dlgPp& f, Siro& s)
{
    if (!AplicaYHayTormenta(f, s)) return {};
    engine::ConstruyeHietograma(s);
    if (s.Tormenta.NroPpReal == 0) return {};
    return PedidoHietograma{s.Tormenta.NroPpReal, s.Pasos.PasoPp, TituloDeTormenta(f, s),
                            s.Tormenta.PpTormenta, s.Tormenta.DurTormenta};
}

void cmdVerTablaPt(dlgPp& f, Siro& s)
{
    if (!AplicaYHayTormenta(f, s)) return;
    if (s.Control.SalidaPizarra) ListaTormenta(s);
    engine::ConstruyeHietograma(s);
    if (s.Tormenta.NroPpReal != 0 && s.Control.SalidaPizarra) Evento(s, [&] { ListaBloques(s); });
}

std::string TituloDeTormenta(const dlgPp& f, const Siro& s)
{
    return s.Tormenta.FormaPp == FormaLluvia::Real ? f.tormenta.Notas : s.Configuracion.TituloProyecto;
}

}  // namespace rainfall
