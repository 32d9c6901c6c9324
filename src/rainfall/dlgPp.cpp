// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "engine/modDistriPp.h"
#include "forms/Evento.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace rainfall {

using forms::Evento;
using model::Advierte;
using model::Entero16;
using model::NumeroATexto;
using model::Simple;
using model::Siro;
using model::Val;

namespace {

constexpr std::size_t FormaDeLista = 1;
constexpr std::size_t FormaSerie = 2;
constexpr std::size_t FormaPorUEH = 3;
constexpr std::size_t FormaReal = 4;
constexpr std::size_t PrimeraPersonal = 5;  // distributions 5 to 7 are personal tables 1 to 3

constexpr std::string_view PorDefecto = "60";
constexpr std::string_view PasoPorDefecto = "10";
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

// --- state per form ---

/// A set of controls, a bit each.
using Conjunto = std::uint64_t;
static_assert(NroControles <= 64);

consteval Conjunto De(std::initializer_list<std::string_view> controles)
{
    Conjunto c = 0;
    for (const std::string_view control : controles) {
        const std::size_t i = forms::LugarDe(ControlesDlgPp, control);
        if (i == NroControles) throw control;  // it doesn't build then
        c |= Conjunto{1} << i;
    }
    return c;
}

/// What a form of the rain makes of the controls; a control that it doesn't name stays as it is.
struct FilaForma {
    Conjunto habilita, deshabilita, muestra, oculta;
};

constexpr Conjunto DesdeElComienzo =
    De({"txtPp", "txtDur", "cmbRec", "optTablaPDR", "cmdBorraPDR", "cmbPDR", "cmdTablaPDR"});
constexpr Conjunto Validez = De({"lblValidez", "lblDurMin", "lblDurMax"});
constexpr Conjunto Vistas = De({"cmdVerGrafico", "cmdVerTablaPt"});

// clang-format off
/// The index is FormaPp.
constexpr auto FilasForma = std::to_array<FilaForma>({
    {.habilita = De({"optformaPp", "txtPp", "txtDur", "cmbRec", "cmdPDR",
                     "cmbPasoPp"}) | Vistas,
     .deshabilita = De({"cmdPpPerso"}),
     .muestra = De({"Frame2", "Frame4", "Frame5", "Label9_0", "Label9_1"}),
     .oculta = De({"Frame3", "Frame7"}) | Validez},
    {.habilita = De({"cmdBorraPDR", "cmbPDR", "cmbPasoPp"}) | Vistas,
     .deshabilita = De({"cmdPDR", "cmdPpPerso"}),
     .muestra = De({"Frame2", "Frame4", "Frame5", "Label9_0", "Label9_1"}),
     .oculta = De({"Frame3", "Frame7"})},
    {.habilita = De({"optTablaPDR", "cmbPasoPp"}),
     .deshabilita = De({"cmdPDR", "cmdTablaPDR", "cmdPpPerso"}) | Vistas,
     .muestra = De({"Frame2", "Frame3", "Frame5", "Label9_0", "Label9_1"}),
     .oculta = De({"Frame4", "Frame7"})},
    {.habilita = De({"cmdCargaPDRnoUniforme", "cmbRec", "cmbPasoPp"}),
     .deshabilita = De({"txtPp", "txtDur", "cmdPpPerso"}) | Vistas,
     .muestra = De({"Frame2", "Frame5", "Label9_1"}),
     .oculta = De({"Frame3", "Frame4", "Frame7", "Label9_0"}) | Validez},
    {.habilita = 0,
     .deshabilita = De({"cmbPasoPp"}) | Vistas,
     .muestra = De({"Frame2", "Frame7", "Label9_0"}),
     .oculta = De({"Frame3", "Frame4", "Frame5", "Label9_1"})},
});
// clang-format on
static_assert(FilasForma.size() == FormasPp.size());

void Pon(dlgPp& f, Conjunto controles, bool EstadoControl::*que, bool valor)
{
    for (std::size_t i = 0; i < NroControles; ++i)
        if ((controles >> i & 1U) != 0) f.estados[i].*que = valor;
}

// --- options ---

/// Index of the first ticked option; the number of options where none is.
template <std::size_t N>
std::size_t Marcada(const std::array<bool, N>& opciones)
{
    return static_cast<std::size_t>(std::find(opciones.begin(), opciones.end(), true) - opciones.begin());
}

template <std::size_t N>
std::size_t MarcadaOCero(const std::array<bool, N>& opciones)
{
    return Marcada(opciones) % N;
}

template <std::size_t N>
void Marca(std::array<bool, N>& opciones, std::size_t i)
{
    opciones.fill(false);
    if (i < N) opciones[i] = true;
}

bool PersonalMarcada(const dlgPp& f)
{
    const std::size_t i = Marcada(f.optDistriPp);
    return i >= PrimeraPersonal && i < f.optDistriPp.size();
}

void TomaDistribucion(const dlgPp& f, Siro& s)
{
    const std::size_t i = Marcada(f.optDistriPp);
    if (i < f.optDistriPp.size()) s.Tormenta.DistriPp = static_cast<std::int16_t>(i);
}

// --- texts ---

std::string Texto(std::int16_t n)
{
    return NumeroATexto(std::int32_t{n});
}

std::string EnCampo(std::string_view texto)
{
    return model::ComasAPuntos(texto);
}

void MuestraTormenta(dlgPp& f, const Siro& s)
{
    f.txtPp = f.mostrados.txtPp = EnCampo(NumeroATexto(s.Tormenta.PpTormenta));
    f.txtDur = f.mostrados.txtDur = Texto(s.Tormenta.DurTormenta);
}

void MuestraConRecurrencia(dlgPp& f, const Siro& s)
{
    MuestraTormenta(f, s);
    f.cmbRec.texto = f.mostrados.cmbRec = Texto(s.Tormenta.RecTormenta);
}

void RecuerdaCampos(dlgPp& f)
{
    f.mostrados = {f.txtPp, f.txtDur, f.cmbRec.texto, f.cmbPasoPp.texto, f.cmbPasoQ.texto};
}

// --- real storm ---

/// Items of FilePpReal. A directory that isn't there holds no storm.
void LlenaFilePpReal(dlgPp& f, const Siro& s)
{
    f.FilePpReal.items.clear();
    model::Sentencia([&] { f.FilePpReal.items = model::ListaTormentas(s); });
}

/// Selects the item of the storm's name, or the first, whose name then is the storm's.
void SeleccionaTormenta(dlgPp& f)
{
    f.tormenta.nombre = model::NombreTormenta(f.tormenta.nombre);
    auto& [items, indice] = f.FilePpReal;
    const auto lugar = std::find(items.begin(), items.end(), f.tormenta.nombre);
    indice = items.empty() ? -1 : lugar == items.end() ? 0 : static_cast<int>(lugar - items.begin());
    if (indice >= 0) f.tormenta.nombre = items[static_cast<std::size_t>(indice)];
}

/// Reads the storm. Its step becomes that of the model, but where its file tells none: the step then stays.
void LeeTormenta(dlgPp& f, Siro& s)
{
    constexpr std::int16_t SinLeer = -1;  // [min]
    const std::int16_t paso = std::exchange(f.tormenta.PasoPpReal, SinLeer);
    model::LeePpReal(s, f.tormenta);
    const bool conPaso = f.tormenta.PasoPpReal != SinLeer;
    if (!conPaso) f.tormenta.PasoPpReal = paso;
    f.lblNumPer = Texto(s.Tormenta.NroPpReal);
    f.lblMiFilePpReal = model::EtiquetaTormenta(s, f.tormenta.nombre);
    MuestraTormenta(f, s);
    if (conPaso) s.Pasos.PasoPp = f.tormenta.PasoPpReal;
    f.cmbPasoPp.texto = Texto(s.Pasos.PasoPp);
}

// --- besides the table, per form ---

void HabilitaTablaPDR(dlgPp& f)
{
    const std::size_t tabla = Marcada(f.optTablaPDR);
    f.Estado("cmdTablaPDR").habilitado = tabla >= 1 && tabla < f.optTablaPDR.size();
}

void EstadoReal(dlgPp& f, Siro& s)
{
    LlenaFilePpReal(f, s);
    SeleccionaTormenta(f);
    LeeTormenta(f, s);
    Marca(f.optDistriPp, f.optDistriPp.size() - 1);
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
    if (MarcadaOCero(f.optformaPp) != 0 || !PersonalMarcada(f)) return;
    const std::size_t k = Marcada(f.optDistriPp) - (PrimeraPersonal - 1);
    f.Estado("lblValidez").visible = true;
    f.Estado("lblDurMin").visible = s.TablasDeLluvia.DurMinPer[k] > 0;
    f.Estado("lblDurMax").visible = s.TablasDeLluvia.DurMaxPer[k] > 0;
    f.lblDurMin = Texto(s.TablasDeLluvia.DurMinPer[k]);
    f.lblDurMax = Texto(s.TablasDeLluvia.DurMaxPer[k]);
}

void TomaTormentas(dlgPp& f, const std::vector<std::string>& archivos)
{
    auto& [items, indice] = f.FilePpReal;
    const std::string elegida = indice < 0 ? std::string() : items[static_cast<std::size_t>(indice)];
    items = archivos;
    const auto lugar = std::find(items.begin(), items.end(), elegida);
    indice = lugar == items.end() ? -1 : static_cast<int>(lugar - items.begin());
}

void EstadoFormaPp(dlgPp& f, Siro& s)
{
    const std::size_t forma = MarcadaOCero(f.optformaPp);
    s.Tormenta.FormaPp = static_cast<std::int16_t>(forma);
    Pon(f, DesdeElComienzo, &EstadoControl::habilitado, false);
    f.Estado("optDistriPp").habilitado = forma < FormaPorUEH;
    TomaDistribucion(f, s);

    if (forma == FormaDeLista) LeeLista(f, s);
    const FilaForma& fila = FilasForma[forma];
    Pon(f, fila.habilita, &EstadoControl::habilitado, true);
    Pon(f, fila.deshabilita, &EstadoControl::habilitado, false);
    Pon(f, fila.muestra, &EstadoControl::visible, true);
    Pon(f, fila.oculta, &EstadoControl::visible, false);

    if (forma <= FormaSerie && PersonalMarcada(f)) f.Estado("cmdPpPerso").habilitado = true;
    MuestraValidez(f, s);
    if (forma == FormaSerie) HabilitaTablaPDR(f);
    // Storms per UEH are always of constant intensity. The click comes back here with the option ticked.
    if (forma == FormaPorUEH && Marcada(f.optDistriPp) != 0) optDistriPp_Click(f, s, 0);
    if (forma == FormaReal) EstadoReal(f, s);
}

// --- opening and activation ---

namespace {

void LlenaListas(dlgPp& f, const Siro& s)
{
    const std::size_t nroRec =
        std::min(static_cast<std::size_t>(std::max<std::int16_t>(s.Configuracion.NroRec, 0)),
                 s.Configuracion.ListaRec.empty() ? 0 : s.Configuracion.ListaRec.size() - 1);
    for (std::size_t i = 1; i <= nroRec; ++i)
        f.cmbRec.items.push_back(Texto(s.Configuracion.ListaRec[i]));
    for (const std::int16_t paso : PasosDeTiempo)
        f.cmbPasoPp.items.push_back(Texto(paso));
    f.cmbPasoQ.items = f.cmbPasoPp.items;
}

std::string PasoMostrado(std::int16_t paso)
{
    return paso == 0 ? std::string(PasoPorDefecto) : Texto(paso);
}

void TomaPasos(dlgPp& f, Siro& s)
{
    f.cmbPasoPp.texto = PasoMostrado(s.Pasos.PasoPp);
    f.cmbPasoQ.texto = PasoMostrado(s.Pasos.PasoQ);
    s.Pasos.PasoPp = Entero16(Val(f.cmbPasoPp.texto));
    s.Pasos.PasoQ = std::min(Entero16(Val(f.cmbPasoQ.texto)), s.Pasos.PasoPp);
}

}  // namespace

void Abre(dlgPp& f, Siro& s)
{
    f = dlgPp{.tormenta = std::move(f.tormenta)};
    f.abierta = true;
    // Enabled by the one form that uses it.
    f.Estado("cmdCargaPDRnoUniforme").habilitado = false;
    // Shown with a personal distribution only.
    Pon(f, Validez, &EstadoControl::visible, false);
    LlenaListas(f, s);
    f.cmbRec.texto = Texto(s.Tormenta.RecTormenta);
    TomaPasos(f, s);
    MuestraTormenta(f, s);
    if (s.Tormenta.PpTormenta == 0) f.txtPp = PorDefecto;
    if (s.Tormenta.DurTormenta == 0) f.txtDur = PorDefecto;
    Marca(f.optformaPp, static_cast<std::size_t>(s.Tormenta.FormaPp));
    Marca(f.optDistriPp, static_cast<std::size_t>(s.Tormenta.DistriPp));
    Marca(f.optTablaPDR, static_cast<std::size_t>(s.Tormenta.TablaPDR));
    RecuerdaCampos(f);
    if (MarcadaOCero(f.optformaPp) == 0) LeeLista(f, s);  // form 1 reads it with its state
    Evento(s, [&] { EstadoFormaPp(f, s); });
}

void AlActivarse(dlgPp& f, Siro& s)
{
    if (f.optformaPp[FormaReal]) FilePpReal_Click(f, s);
}

void AlVolver(dlgPp& f, Siro& s)
{
    const model::CamposTormenta campos{f.txtPp, f.txtDur, f.cmbRec.texto};
    Evento(s, [&] { EstadoFormaPp(f, s); });
    f.txtPp = campos.txtPp;
    f.txtDur = campos.txtDur;
    f.cmbRec.texto = campos.cmbRec;
    AlActivarse(f, s);
}

// --- clicks ---

void optformaPp_Click(dlgPp& f, Siro& s, std::size_t i)
{
    const bool dejaLaReal = f.optformaPp[FormaReal] && i != FormaReal;
    Marca(f.optformaPp, i);
    if (dejaLaReal && s.Tormenta.DistriPp > static_cast<std::int16_t>(PrimeraPersonal))
        Advierte(s, std::string(VerifiqueDistribucion), TituloAtencion);
    Evento(s, [&] { EstadoFormaPp(f, s); });
}

void optDistriPp_Click(dlgPp& f, Siro& s, std::size_t i)
{
    Marca(f.optDistriPp, i);
    Evento(s, [&] { EstadoFormaPp(f, s); });
    // The same for the three sample storms, though the last of them took 48 hours: kept as it stands.
    if (f.optDistriPp[2] || f.optDistriPp[3] || f.optDistriPp[4]) f.txtDur = DuracionDeMuestra;
}

void optTablaPDR_Click(dlgPp& f, std::size_t i)
{
    Marca(f.optTablaPDR, i);
    HabilitaTablaPDR(f);
}

void cmbPDR_Click(dlgPp& f, Siro& s)
{
    if (f.cmbPDR.indice < 0) return;
    Evento(s, [&] {
        model::ParsePDR(s, f.cmbPDR.items[static_cast<std::size_t>(f.cmbPDR.indice)]);
        MuestraConRecurrencia(f, s);
    });
}

void FilePpReal_Click(dlgPp& f, Siro& s)
{
    if (f.FilePpReal.indice < 0) return;
    f.tormenta.nombre = f.FilePpReal.items[static_cast<std::size_t>(f.FilePpReal.indice)];
    Evento(s, [&] { LeeTormenta(f, s); });
}

// --- leaving a field ---

namespace {

/// `toma` puts the number into its run-wide value, where it fits there; one that is refused too.
template <typename Toma>
bool AlSalir(dlgPp& f, const Siro& s, const CampoPp& campo, Toma&& toma)
{
    std::string& texto = f.*campo.texto;
    texto = model::ComasAPuntos(texto);
    const bool vacio = texto.find_first_not_of(' ') == std::string::npos;
    const std::optional<double> x = vacio ? 0 : forms::NumeroDeCampo(texto);
    if (x) model::Sentencia([&] { toma(*x); });
    if (forms::Vale(campo.regla, texto)) return true;
    forms::MuestraRechazo(s, campo.regla.caja, std::string(campo.regla.mensaje));
    if (!campo.regla.alRechazar.empty()) texto = campo.regla.alRechazar;
    return false;
}

}  // namespace

bool txtPp_AlSalir(dlgPp& f, Siro& s)
{
    return AlSalir(f, s, CamposPp[0], [&](double x) { s.Tormenta.PpTormenta = Simple(x); });
}

bool txtDur_AlSalir(dlgPp& f, Siro& s)
{
    return AlSalir(f, s, CamposPp[1], [&](double x) { s.Tormenta.DurTormenta = Entero16(x); });
}

bool cmbPasoPp_AlSalir(dlgPp& f, const Siro& s)
{
    bool sobra = false;
    Evento(s, [&] {
        const double paso = Val(f.cmbPasoPp.texto);
        sobra = paso != 0 && !f.txtDur.empty() && paso > Val(f.txtDur);
    });
    if (!sobra) return true;
    Advierte(s, std::string(PasoPpLargo), TituloPasoPp);
    return false;
}

bool cmbPasoQ_AlSalir(dlgPp& f, Siro& s)
{
    bool noCabe = false;
    Evento(s, [&] {
        const double pasoQ = Val(f.cmbPasoQ.texto);
        if (pasoQ == 0) return;
        const double pasoPp = Val(f.cmbPasoPp.texto);
        const double veces = pasoPp / pasoQ;
        noCabe = pasoQ > pasoPp || veces != std::floor(veces);
    });
    if (noCabe) {
        Advierte(s, std::string(PasoQNoCabe), TituloPasoQ);
        f.cmbPasoQ.texto = f.cmbPasoPp.texto;
        s.Pasos.PasoQ = s.Pasos.PasoPp;
    }
    return true;
}

// --- commands ---

namespace {

void TomaSerie(dlgPp& f, Siro& s)
{
    s.Tormenta.TablaPDR = static_cast<std::int16_t>(MarcadaOCero(f.optTablaPDR));
    model::LeeTablaPDRs(s);
    if (s.Serie.NroSeriePDR <= 0) return;
    f.txtPp = EnCampo(NumeroATexto(s.Serie.SerieP(1)));
    f.txtDur = Texto(s.Serie.SerieD(1));
    f.cmbRec.texto = Texto(s.Serie.SerieR(1));
}

/// A step may not outlast the storm, and none is 0. The two steps aren't compared here.
void CorrigePasos(dlgPp& f, const Siro& s)
{
    if (Val(f.cmbPasoPp.texto) > s.Tormenta.DurTormenta) f.cmbPasoPp.texto = Texto(s.Tormenta.DurTormenta);
    for (ListaConTexto* lista : {&f.cmbPasoPp, &f.cmbPasoQ})
        if (Val(lista->texto) == 0 && !lista->items.empty()) lista->texto = lista->items.front();
}

bool HayTormenta(const Siro& s)
{
    return s.Tormenta.PpTormenta != 0 && s.Tormenta.DurTormenta != 0;
}

void Aplica(dlgPp& f, Siro& s)
{
    const std::size_t forma = MarcadaOCero(f.optformaPp);
    s.Tormenta.FormaPp = static_cast<std::int16_t>(forma);
    if (forma == FormaSerie) TomaSerie(f, s);
    s.Tormenta.PpTormenta = Simple(Val(f.txtPp));
    s.Tormenta.DurTormenta = Entero16(Val(f.txtDur));
    s.Tormenta.RecTormenta = Entero16(Val(f.cmbRec.texto));
    if (!HayTormenta(s)) {
        Advierte(s, std::string(SinTormenta));
        f.abierta = false;
        return;
    }
    Pon(f, Validez, &EstadoControl::visible, false);
    TomaDistribucion(f, s);
    CorrigePasos(f, s);
    s.Pasos.PasoPp = Entero16(Val(f.cmbPasoPp.texto));
    s.Pasos.PasoQ = Entero16(Val(f.cmbPasoQ.texto));
    RecuerdaCampos(f);
}

/// Whether a field holds another number than the value in use. One that this can't hold is another.
template <typename T, typename Toma>
bool Otro(const std::string& texto, const std::string& mostrado, T enUso, Toma toma)
{
    if (texto == mostrado) return false;
    bool otro = true;
    model::Sentencia([&] { otro = toma(Val(texto)) != enUso; });
    return otro;
}

/// Applies. Returns false where there is nothing to show: no storm, or a fault on the way.
bool AplicaYHayTormenta(dlgPp& f, Siro& s)
{
    return Evento(s, [&] { Aplica(f, s); }) && HayTormenta(s);
}

model::CamposTormenta Campos(const dlgPp& f)
{
    return {f.txtPp, f.txtDur, f.cmbRec.texto};
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
    AgregaRenglon(s, "Duración= " + Texto(s.Tormenta.DurTormenta) + " [min]");
    if (s.Tormenta.RecTormenta != 0)
        AgregaRenglon(s, "Recurrencia= " + Texto(s.Tormenta.RecTormenta) + " [años]");
    AgregaRenglon(s, "paso Pp= " + Texto(s.Pasos.PasoPp) + " [min]");
    AgregaRenglon(s, "paso Q = " + Texto(s.Pasos.PasoQ) + " [min]");
    AgregaRenglon(s, "Distribución Pp(t)= " + Texto(s.Tormenta.DistriPp) + " [índice]");
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
    const auto tabla = static_cast<std::int16_t>(MarcadaOCero(f.optTablaPDR));
    return Otro(f.txtPp, f.mostrados.txtPp, s.Tormenta.PpTormenta, Simple) ||
           Otro(f.txtDur, f.mostrados.txtDur, s.Tormenta.DurTormenta, Entero16) ||
           Otro(f.cmbRec.texto, f.mostrados.cmbRec, s.Tormenta.RecTormenta, Entero16) ||
           Otro(f.cmbPasoPp.texto, f.mostrados.cmbPasoPp, s.Pasos.PasoPp, Entero16) ||
           Otro(f.cmbPasoQ.texto, f.mostrados.cmbPasoQ, s.Pasos.PasoQ, Entero16) ||
           (f.optformaPp[FormaSerie] && tabla != s.Tormenta.TablaPDR);
}

void CancelButton(dlgPp& f)
{
    f.abierta = false;
}

void cmdPDR(dlgPp& f, Siro& s)
{
    f.cmbPDR.items.push_back(model::TextoPDR(f.txtPp, f.txtDur, f.cmbRec.texto));
    model::GuardaListaPDR(s, f.cmbPDR.items, Campos(f));
    f.cmbPDR.indice = static_cast<int>(f.cmbPDR.items.size()) - 1;
}

void cmdBorraPDR(dlgPp& f, Siro& s)
{
    if (f.cmbPDR.indice < 0) return;
    f.cmbPDR.items.erase(f.cmbPDR.items.begin() + f.cmbPDR.indice);
    f.cmbPDR.indice = -1;
    model::GuardaListaPDR(s, f.cmbPDR.items, Campos(f));
    MuestraConRecurrencia(f, s);
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
    return s.Tormenta.FormaPp == static_cast<std::int16_t>(FormaReal) ? f.tormenta.Notas
                                                                      : s.Configuracion.TituloProyecto;
}

}  // namespace rainfall
