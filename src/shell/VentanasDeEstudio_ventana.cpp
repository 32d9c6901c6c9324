// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VentanasDeEstudio_ventana.h"

#include <QIcon>
#include <QStatusBar>

#include "calibration/casos/Familias.h"
#include "checks/Verifica.h"
#include "frequency/casos/Familias.h"
#include "model/Siro.h"

namespace shell {

VentanasDeEstudio::VentanasDeEstudio(forms::Entorno& alrededor, MDIForm1_ventana& laPrincipal)
    : entorno(alrededor),
      corridas(alrededor),
      linea(*laPrincipal.statusBar()),
      talleres(alrededor),
      ventanaAvisos(alrededor, avisos, laPrincipal),
      ventanaRevisar(alrededor, revisar),
      ventanaVerificar(alrededor, verificar, checks::Junta({frequency::Familias(), calibration::Familias()})),
      ventanaResumen(alrededor, resumen),
      ventanaComparar(alrededor, comparar)
{
    PonResumen();
    PonMemoria();
    talleres.UltimaCorrida = [this] { return juicio.Ultima(); };
    entorno.AlTerminarSuceso(juicio, [this] { MuestraEstado(); });
    juicio.AlCambiar = [this] {
        MuestraEstado();
        ventanaResumen.Toma(juicio.Ultima());
        ventanaComparar.Toma(juicio.Ultima());
        if (const auto& u = juicio.Ultima(); u != nullptr) (u->esSerie ? ultimaSerie : ultimaTormenta) = u;
        talleres.TomaCorridas();
        if (pedida && !juicio.EnCurso()) entorno.Atiende([this] { Abre(*pedida); });
    };
    mapa.AbreHidrograma = [this](const std::string& componente) { AbreHidrograma(componente); };
    talleres.GuardaCorridas = [this](const auto& hechas, const auto& proyecto, const auto& dibujo) {
        corridas.Guarda(hechas, proyecto, dibujo);
    };
    corridas.Compara = [this](const auto& guardadas) { talleres.ComparaGuardadas(guardadas); };
    corridas.AlCambiarFallo = [this] { MuestraEstado(); };
    linea.AlPedirAvisos = [this] { entorno.Atiende([this] { Abre(Ventana::Avisos); }); };
    ventanaAvisos.AbreHidrograma = [this](const std::string& componente) { AbreHidrograma(componente); };
    MuestraEstado();
}

void VentanasDeEstudio::TrasCorrer(const model::Tormenta& entrada, bool completa, bool seGuarda)
{
    corrido = true;
    sello = checks::SelloDe(entorno.s);
    cuando = entorno.s.Anfitrion.FechaHora();
    juicio.Pide(entorno.s, entrada, completa, seGuarda && completa ? corridas.Prepara() : nullptr);
}

void VentanasDeEstudio::TrasSerie()
{
    corrido = true;
    sello = checks::SelloDe(entorno.s);
    cuando = entorno.s.Anfitrion.FechaHora();
    juicio.PideSerie(entorno.s, corridas.Prepara());
}

void VentanasDeEstudio::TrasTraer(const JuicioDeCorrida::Corrida& corrida)
{
    corrido = true;
    sello = corrida->sello;
    cuando = corrida->cuando;
    juicio.Pon(corrida);
}

checks::Sello VentanasDeEstudio::SelloDeResultados() const
{
    return corrido ? sello : checks::SelloDe(entorno.s);
}

std::vector<std::string> VentanasDeEstudio::ComponentesCorridos() const
{
    const model::Resultados& r = entorno.s.Resultados;
    if (!corrido || r.NroPasosQ <= 0 || sello.proyecto != checks::SelloDe(entorno.s).proyecto) return {};
    const auto desde = r.Secuencia.begin() + 1;
    return {desde, desde + r.NroComponentes};
}

void VentanasDeEstudio::PonResumen()
{
    ventanaResumen.AbreHidrograma = [this](const std::string& componente) { AbreHidrograma(componente); };
    ventanaResumen.Compara = [this](const std::vector<std::string>& componentes) {
        ventanaComparar.Compara(resumen.corrida, componentes);
    };
}

/// A run of another project is none of this one's memoria.
void VentanasDeEstudio::PonMemoria()
{
    const auto suya = [this](const JuicioDeCorrida::Corrida& u) {
        return u != nullptr && u->sello.proyecto == checks::SelloDe(entorno.s).proyecto ? u : nullptr;
    };
    talleres.UltimaTormenta = [this, suya] {
        return ultimaTormenta != nullptr && ultimaTormenta->balance ? suya(ultimaTormenta) : nullptr;
    };
    talleres.UltimaSerie = [this, suya] { return suya(ultimaSerie); };
    talleres.Fondo = [this] { return mapa.Fondo(); };
}

void VentanasDeEstudio::Abre(Ventana ventana)
{
    const bool deLaCorrida = ventana == Ventana::Resumen || ventana == Ventana::Comparar ||
                             ventana == Ventana::CompararCorridas || ventana == Ventana::Mapa ||
                             ventana == Ventana::Memoria;
    pedida.reset();
    if (deLaCorrida && juicio.EnCurso()) {
        pedida = ventana;
        return;
    }
    if (ventana == Ventana::Avisos) ventanaAvisos.Abre();
    if (ventana == Ventana::Resumen) ventanaResumen.Abre(juicio.Ultima());
    if (ventana == Ventana::Comparar) ventanaComparar.Abre(juicio.Ultima());
    if (ventana == Ventana::CompararCorridas) talleres.AbreComparacion();
    if (ventana == Ventana::Revisar) ventanaRevisar.Abre();
    if (ventana == Ventana::Verificar) ventanaVerificar.Abre();
    if (ventana == Ventana::Corridas) corridas.Abre();
    if (ventana == Ventana::Mapa) mapa.Abre();
    if (ventana == Ventana::Taller) talleres.AbreLluvia();
    if (ventana == Ventana::Ajuste) talleres.AbreAjuste();
    if (ventana == Ventana::Memoria) talleres.AbreMemoria();
}

void VentanasDeEstudio::MuestraEstado()
{
    // What comes back to the screen comes with an event.
    if (corrido && !ventanaAvisos.parentWidget()->isVisible()) return;
    linea.PonTormenta(checks::TormentaEnMano(entorno.s) +
                      (corrido ? " · última corrida " + cuando : std::string(" · sin corrida")) +
                      (corridas.Fallo().empty() ? "" : " · " + corridas.Fallo()));
    const checks::EstadoDeCorrida estado{juicio.Ultima(), juicio.EnCurso(),
                                         juicio.Ultima() ? checks::SelloDe(entorno.s) : checks::Sello{}};
    const bool revisada = estado.ultima != nullptr && !estado.enCurso;
    linea.PonAvisos(checks::TextoDeClave(estado),
                    revisada ? checks::IconoDe(checks::PeorGravedad(estado)) : QIcon(),
                    checks::AyudaDeClave(estado));
    checks::Muestra(avisos, estado);
    ventanaAvisos.Muestra();
}

}  // namespace shell
