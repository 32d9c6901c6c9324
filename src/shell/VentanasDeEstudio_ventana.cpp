// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VentanasDeEstudio_ventana.h"

#include <QStatusBar>

#include "checks/EscribeHallazgos.h"
#include "model/Siro.h"

namespace shell {

VentanasDeEstudio::VentanasDeEstudio(forms::Entorno& alrededor, MDIForm1_ventana& laPrincipal)
    : entorno(alrededor),
      linea(*laPrincipal.statusBar()),
      ventanaRevisar(alrededor, revisar),
      ventanaVerificar(alrededor, verificar)
{
    entorno.AlTerminarSuceso(juicio, [this] { MuestraEstado(); });
    juicio.AlCambiar = [this] {
        MuestraEstado();
        mapa.Refresca();
    };
    mapa.AbreHidrograma = [this](const std::string& componente) { AbreHidrograma(componente); };
    linea.AlPedirAvisos = [this] { entorno.Atiende([this] { Abre(Ventana::Avisos); }); };
    MuestraEstado();
}

void VentanasDeEstudio::TrasCorrer(const model::Tormenta& entrada, bool completa)
{
    corrido = true;
    sello = checks::SelloDe(entorno.s);
    cuando = entorno.s.Anfitrion.FechaHora();
    juicio.Pide(entorno.s, entrada, completa);
}

void VentanasDeEstudio::TrasSerie()
{
    corrido = true;
    sello = checks::SelloDe(entorno.s);
    cuando = entorno.s.Anfitrion.FechaHora();
    juicio.PideSerie(entorno.s);
}

checks::Sello VentanasDeEstudio::SelloDeResultados() const
{
    return corrido ? sello : checks::SelloDe(entorno.s);
}

void VentanasDeEstudio::Abre(Ventana ventana)
{
    if (ventana == Ventana::Revisar) ventanaRevisar.Abre();
    if (ventana == Ventana::Verificar) ventanaVerificar.Abre();
    if (ventana == Ventana::Mapa) mapa.Abre();
}

void VentanasDeEstudio::MuestraEstado()
{
    linea.PonTormenta(checks::TormentaEnMano(entorno.s) +
                      (corrido ? " · última corrida " + cuando : std::string(" · sin corrida")));
    const JuicioDeCorrida::Corrida& u = juicio.Ultima();
    linea.PonAvisos(juicio.EnCurso() ? "Revisando..."
                    : u == nullptr   ? "Sin corrida"
                                     : checks::Suma(u->avisos, "Sin avisos"));
}

}  // namespace shell
