// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MDIForm1.h"

#include <algorithm>
#include <array>
#include <optional>

#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "model/VidaProyecto.h"
#include "results/dlgChart2.h"

namespace shell {

using model::Riesgo;
using model::Siro;

namespace {

constexpr int TodosLosNucleos = 0;
constexpr std::string_view TituloExplora = "Editar Directorios y Archivos";
constexpr std::string_view FiltroExplora = "Todos los archivos (*) |*";
constexpr std::string_view CarpetaAyuda = "Ayuda";
constexpr std::string_view AyudaCompilada = "AyudaSIRO.chm";
constexpr std::string_view PaginaInicial = "indice.html";
constexpr std::string_view TerminacionPagina = ".html";

/// Windows that share a page with another one.
struct PaginaComun {
    std::string_view ventana, pagina;
};
constexpr auto PaginasComunes = std::to_array<PaginaComun>({
    {"dlgTablaSHV", "dlgTabla"},
    {"dlgTablaFQ", "dlgTabla"},
    {"dlgTablaSHVQ", "dlgTabla"},
    {"dlgTablaSalePDR2", "dlgTablaSalePDR"},
    {"dlgImportaTormenta", "dlgPpReal"},
    {"dlgImportaMaximos", "dlgTaller"},
    {"dlgImportaObservada", "dlgAjuste"},
    {"dlgRecesion", "dlgAjuste"},
    {"dlgEliminarProyecto", "MDIForm1"},
    {"frmAcerca", "MDIForm1"},
    {"ListaDeAvisos", "mensajes"},
});

/// The wait pointer for as long as it lives, whatever ends the run.
struct Espera {
    explicit Espera(const Mandos& mandos) : m(mandos) { m.PunteroDeEspera(true); }
    ~Espera() { m.PunteroDeEspera(false); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;
    const Mandos& m;
};

bool ProyectoParaCorrer(const Siro& s)
{
    return !s.Proyecto.NombreProyecto.empty() && !s.Proyecto.DirProyecto.empty();
}

bool CorridaLarga(const Siro& s)
{
    return s.Tormenta.DurTormenta > DurCorridaLarga || s.Resultados.NroPasosQ >= PasosCorridaLarga;
}

bool HayArchivoDeAyuda(const Siro& s, std::string_view nombre)
{
    std::vector<std::string> archivos;
    model::Sentencia([&] { archivos = s.Disco.Lista(model::Ruta(s.Proyecto.DirTrabajo, CarpetaAyuda)); });
    return std::find(archivos.begin(), archivos.end(), nombre) != archivos.end();
}

std::string RutaDeAyuda(const Siro& s, std::string_view nombre)
{
    return model::Ruta(model::Ruta(s.Proyecto.DirTrabajo, CarpetaAyuda), nombre);
}

/// Shows the help. Throws Falla 53 where there is none.
void AbreAyuda(const Siro& s, const Mandos& m)
{
    if (HayArchivoDeAyuda(s, AyudaCompilada) && m.AbreConElSistema(RutaDeAyuda(s, AyudaCompilada))) return;
    if (!HayArchivoDeAyuda(s, PaginaInicial)) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
    m.AbrePaginaDeAyuda(RutaDeAyuda(s, PaginaInicial));
}

std::string PaginaDe(std::string_view ventana)
{
    const auto* const comun = std::find_if(PaginasComunes.begin(), PaginasComunes.end(),
                                           [&](const PaginaComun& p) { return p.ventana == ventana; });
    return std::string(comun == PaginasComunes.end() ? ventana : comun->pagina).append(TerminacionPagina);
}

}  // namespace

// --- opening, labels, closing ---

void Abre(MDIForm1& f)
{
    f = {};
    f.titulo = TituloMDIForm1;
    f.Estado(Variable::mnuGuardarProyectoComo).habilitada = false;
    f.Estado(Variable::mnu_prueba_funcionesSHVrepresas).habilitada = false;
    f.Estado(Variable::mnu_prueba_funcionesHQrepresas).habilitada = false;
}

void carga_lbl_proyecto(MDIForm1& f, Siro& s)
{
    f.Texto("lblProyecto") = s.Proyecto.NombreProyecto;
    f.Texto("lblTitulo") = s.frmConfigura.TextProyecto;
    f.Texto("lblMiDirTrabajo") = s.Proyecto.DirProyecto;
    f.Texto("lblFileProyecto") = model::ArchivoConf(s.Proyecto.NombreProyecto);
    f.Texto("lblCuenca") = s.frmConfigura.TextCuenca;
    f.Texto("lblSubCuenca") = s.frmConfigura.TextSbca;
    f.Texto("lblUbicacion") = s.frmConfigura.TextUbica;
    // The first name lacks the "s" of the file on disk: kept as it stands.
    f.Texto("lblFilesTrabajo") =
        s.Proyecto.NombreProyecto + "_UEH.vlm\r" + s.Proyecto.NombreProyecto + "_VerCau.vlm";
    model::Sentencia([&] { model::GuardaPuntero(s); });
}

bool RotuloCrece(double x, double y)
{
    constexpr double Izquierda = 20;
    constexpr double Derecha = 600;
    constexpr double Arriba = 40;
    constexpr double Abajo = 110;
    return x >= Izquierda && x < Derecha && y >= Arriba && y < Abajo;
}

void Cierra(Siro& s)
{
    model::Sentencia([&] { model::GuardaPuntero(s); });
    s.Anfitrion.Termina();
}

// --- commands ---

void mnuSalir(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    m.AlSalir();
    Cierra(s);
}

bool ExigeProyecto(const Siro& s)
{
    if (!s.Proyecto.NombreProyecto.empty()) return true;
    model::Advierte(s, std::string(TextoSinProyecto), TituloSinProyecto);
    return false;
}

void mnuNuevoProyecto(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (model::mnuNuevoProyecto(s)) m.Abre(Ventana::frmConfigura);
}

void mnuDirCrea(MDIForm1& /*f*/, Siro& s, const Mandos& /*m*/)
{
    s.Anfitrion.EligeArchivo(TituloExplora, FiltroExplora);
}

void mnuOpcionesConfigurar(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    m.Abre(Ventana::frmConfigura);
    model::MuestraProyecto(s);
}

void mnufrmUEHs(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (!s.Proyecto.NombreProyecto.empty() && m.AlzaEditor()) return;
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return;
    model::CadaClase(s.Red, [](auto& coleccion) {
        const std::int16_t nro = coleccion.Nro();  // not emptied with it: kept as it stands
        coleccion.Vacia();
        coleccion.Anuncia(nro);
    });
    if (ExigeProyecto(s))
        m.Abre(Ventana::frmUEHs);
    else
        m.Cierra(Ventana::frmUEHs);
}

void mnufrmPp(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (s.Proyecto.NombreProyecto.empty() && s.Proyecto.ArchivoTemp.empty()) return;
    m.Abre(Ventana::dlgPp);
}

void mnuCorre1(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (!ProyectoParaCorrer(s) || s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR) return;
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::ReleeRed)) return;
    s.Pasos.PasoQ = std::min(s.Pasos.PasoQ, s.Pasos.PasoPp);
    const Espera espera(m);
    if (CorridaLarga(s)) {
        s.Anfitrion.AbreAvance(TituloAvanceUna);
        s.Anfitrion.TextosAvance(TextoAvanceUna, "");
    }
    const model::Tormenta entrada = s.Tormenta;
    const bool completa = engine::CorreUnaTormenta(s);
    m.TrasCorrer(entrada, completa);
    m.Abre(Ventana::dlgChart2);
    // The run may have settled its number of steps anew, and then this closes what wasn't opened, or leaves
    // open what was: kept as it stands.
    if (CorridaLarga(s)) s.Anfitrion.CierraAvance();
}

void mnuCorre2(MDIForm1& f, Siro& s, const Mandos& m)
{
    if (!ProyectoParaCorrer(s) || s.Tormenta.FormaPp != model::FormaLluvia::SeriePDR) return;
    s.Pasos.PasoQ = std::min(s.Pasos.PasoQ, s.Pasos.PasoPp);
    if (s.Serie.NroSeriePDR < 1) {
        m.PunteroDeEspera(false);
        return;
    }
    if (!s.Anfitrion.Confirma(
            {std::string(TextoContinuar), std::string(TituloContinuar), model::Icono::Pregunta}))
        return;
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::ReleeRed)) return;
    const Espera espera(m);
    s.Control.SalidaPizarra = false;
    f.Estado(Variable::mnuPizarra1).marcada = false;
    if (engine::CorreSeriePDR(s, TodosLosNucleos) != engine::FinSerie::SinTormentas) m.TrasSerie();
    m.Abre(Ventana::dlgChart3);
}

void mnuPizarra1(MDIForm1& f, Siro& s, const Mandos& m)
{
    bool& marcada = f.Estado(Variable::mnuPizarra1).marcada;
    f.VerPizarra = false;
    if (!ExigeProyecto(s)) {
        marcada = false;
        return;
    }
    if (marcada) {
        marcada = false;
        s.Control.SalidaPizarra = false;
        m.Cierra(Ventana::frmPp);
        return;
    }
    marcada = true;
    s.Control.SalidaPizarra = true;
    m.Abre(Ventana::frmPp);
    s.Anfitrion.PonPizarra(s.Control.TextoPizarra);
}

void VerPizarra(MDIForm1& f, Siro& s, const Mandos& m)
{
    f.Estado(Variable::mnuPizarra1).marcada = f.VerPizarra;
    mnuPizarra1(f, s, m);
}

void mnuGraficoPp(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return;
    const std::optional<results::Hietograma> pedido = results::mnuGraficoPp(s, m.NotasDeTormenta());
    // Building it may find the storm to be none.
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) s.Anfitrion.Termina();
    if (pedido) m.AbreHietograma(*pedido);
}

void mnuHidrogramas(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    if (results::mnuHidrogramas(s)) m.Abre(Ventana::dlgChart2);
}

void mnuHelpContents(MDIForm1& /*f*/, Siro& s, const Mandos& m)
{
    const auto informa = [&](const model::Falla& falla) {
        model::AvisaMotor(s)(falla);
        s.Anfitrion.Termina();
    };
    model::Sentencia([&] { AbreAyuda(s, m); }, informa);
}

void AyudaDeVentana(const Siro& s, const Mandos& m, std::string_view ventana)
{
    const std::string pagina = PaginaDe(ventana);
    for (const std::string_view nombre : {std::string_view(pagina), PaginaInicial})
        if (HayArchivoDeAyuda(s, nombre)) return m.AbrePaginaDeAyuda(RutaDeAyuda(s, nombre));
}

}  // namespace shell
