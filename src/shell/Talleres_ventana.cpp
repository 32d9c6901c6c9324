// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Talleres_ventana.h"

#include "calibration/Observada.h"
#include "calibration/taller/dlgAjuste.h"
#include "calibration/taller/dlgAjuste_ventana.h"
#include "frequency/taller/dlgTaller.h"
#include "frequency/taller/dlgTaller_ventana.h"
#include "frequency/tormenta/Diseno.h"
#include "frequency/tormenta/Fuentes.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "report/dlgMemoria.h"
#include "report/dlgMemoria_ventana.h"
#include "runs/dlgCompararCorridas.h"
#include "runs/dlgCompararCorridas_ventana.h"
#include "study/Abierto.h"

namespace shell {

struct Talleres::Partes {
    explicit Partes(forms::Entorno& entorno)
        : estudio(entorno.s),
          lluvia(estudio),
          ventanaLluvia(entorno, lluvia),
          ajuste(estudio, entorno.s),
          ventanaAjuste(entorno, ajuste),
          ventanaMemoria(entorno, memoria),
          ventanaComparacion(entorno, comparacion)
    {
    }
    study::Abierto estudio;
    frequency::dlgTaller lluvia;
    frequency::dlgTaller_ventana ventanaLluvia;
    calibration::dlgAjuste ajuste;
    calibration::dlgAjuste_ventana ventanaAjuste;
    report::dlgMemoria memoria{};
    report::dlgMemoria_ventana ventanaMemoria;
    runs::dlgCompararCorridas comparacion{};
    runs::dlgCompararCorridas_ventana ventanaComparacion;
};

namespace {

/// What has changed since the runs, of either.
std::string CambiosDesde(const report::Datos& datos, const checks::Sello& ahora)
{
    std::string cambios;
    if (datos.tormenta != nullptr) cambios = checks::QueDifiere(datos.tormenta->sello, ahora);
    if (datos.serie != nullptr && cambios.empty())
        cambios = checks::QueDifiere(datos.serie->sello, ahora, checks::Alcance::Red);
    return cambios;
}

}  // namespace

Talleres::Talleres(forms::Entorno& alrededor)
    : entorno(alrededor), partes(std::make_unique<Partes>(alrededor))
{
    partes->estudio.AlCambiar([this] { AlCambiar(); });
    partes->ajuste.DibujoSinGuardar = [this] { return DibujoSinGuardar(); };
    partes->ventanaComparacion.Ultima = [this] { return UltimaCorrida(); };
    partes->ajuste.GuardaCorridas = [this](const calibration::CorridasHechas& hechas) {
        GuardaCorridas(hechas, partes->ajuste.proyecto, partes->ajuste.dibujo);
    };
    partes->ajuste.Aplica = [this](const auto& cambio) { return Aplica(cambio); };
    partes->ventanaMemoria.DeQue = [this] { return DatosDeMemoria(); };
    partes->ventanaMemoria.Base = [this] {
        const model::Siro& s = entorno.s;
        return s.Proyecto.NombreProyecto.empty()
                   ? std::string()
                   : model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto);
    };
    partes->ventanaMemoria.Fondo = [this] { return Fondo(); };
    partes->ventanaMemoria.Corre = [this] { Corre(); };
    entorno.AlTerminarSuceso(partes->ventanaMemoria, [this] { TomaCorridas(); });
    entorno.AlTerminarSuceso(partes->ventanaLluvia, [this] {
        if (partes->estudio.HaDeSeguir()) entorno.Atiende([this] { partes->estudio.Sigue(); });
    });
}

Talleres::~Talleres() = default;

void Talleres::AbreLluvia()
{
    partes->estudio.Sigue();
    partes->ventanaLluvia.Abre();
}

void Talleres::AbreAjuste()
{
    partes->estudio.Sigue();
    partes->ventanaAjuste.Abre();
}

void Talleres::AbreMemoria()
{
    partes->estudio.Sigue();
    partes->ventanaMemoria.Abre();
}

void Talleres::TomaCorridas()
{
    partes->ventanaMemoria.Toma();
}

report::Datos Talleres::DatosDeMemoria() const
{
    const model::Siro& s = entorno.s;
    report::Datos datos;
    datos.tormenta = UltimaTormenta();
    datos.serie = UltimaSerie();
    datos.configuracion = s.Configuracion;
    datos.archivoConf =
        model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto).append(model::TerminacionConf);
    datos.tormentaReal = TormentaReal();
    datos.estudio = partes->estudio.EnMano();
    frequency::FuentesDeTormenta fuentes;
    model::Sentencia([&] { frequency::PonGrabada(fuentes, datos.estudio.taller.tormenta, s); });
    datos.grabada = std::move(fuentes.grabada);
    datos.version = SIRO_VERSION;
    datos.cambios = CambiosDesde(datos, checks::SelloDe(s));
    return datos;
}

void Talleres::ComparaGuardadas(const std::vector<std::pair<std::string, std::string>>& corridas)
{
    std::vector<runs::Origen> lados;
    for (const auto& [archivo, nombre] : corridas)
        lados.push_back({runs::Origen::Clase::Guardada, archivo, nombre});
    partes->ventanaComparacion.Compara(lados);
}

void Talleres::AbreComparacion()
{
    partes->ventanaComparacion.Abre();
}

study::Abierto* Talleres::Estudio()
{
    return &partes->estudio;
}

std::vector<results::Observado> Talleres::Observados(const std::string& componente) const
{
    std::vector<results::Observado> observados;
    const auto& eventos = partes->estudio.EnMano().ajuste.eventos;
    const auto agrega = [&](const study::Evento& evento) {
        for (const study::Observacion& o : evento.observaciones) {
            if (o.componente != componente) continue;
            results::Observado uno{.evento = calibration::NombreDe(
                                       evento, static_cast<std::size_t>(&evento - eventos.data()) + 1)};
            for (const study::Punto& p : calibration::ObservadaDe(o).puntos)
                uno.caudales.push_back({p.minuto, p.valor});
            if (!uno.caudales.empty()) observados.push_back(std::move(uno));
        }
    };
    for (const bool enMano : {true, false})
        for (const study::Evento& evento : eventos)
            if ((evento.lluvia.origen == "proyecto") == enMano) agrega(evento);
    return observados;
}

void Talleres::TrasGuardarComo()
{
    partes->estudio.TrasGuardarComo();
}

void Talleres::TrasEliminar()
{
    partes->estudio.TrasEliminar();
}

void Talleres::TrasTraer()
{
    partes->estudio.TrasTraer();
}

void Talleres::AlSalir()
{
    partes->estudio.Cierra();
}

}  // namespace shell
