// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MapaDeEstudio_ventana.h"

#include <algorithm>
#include <utility>

#include "editor/Fondo.h"
#include "editor/lienzo/CargaImagen_ventana.h"
#include "forms/MarcoDeImagen.h"
#include "model/Avisos.h"
#include "model/Siro.h"
#include "results/SerieDeTormentas.h"

namespace shell {

namespace {

constexpr auto SinCorrida =
    "No hay ninguna corrida para mostrar en el mapa. Corra una tormenta (F5) y ábralo de nuevo.";
constexpr auto EsDeSerie =
    "La última corrida es una serie de tormentas, que no guarda hidrogramas. El mapa muestra la corrida de "
    "una "
    "sola tormenta (F5).";

}  // namespace

MapaDeEstudio::MapaDeEstudio(forms::Entorno& alrededor, const JuicioDeCorrida& elJuicio)
    : entorno(alrededor), juicio(elJuicio), ventana(alrededor, mapa)
{
    ventana.AbreHidrograma = [this](const std::string& componente) { PideHidrograma(componente); };
}

void MapaDeEstudio::Abre()
{
    const JuicioDeCorrida::Corrida& u = juicio.Ultima();
    if (u != nullptr && u->esSerie) return model::Informa(entorno.s, EsDeSerie);
    if (u == nullptr || !u->corrido->TieneResultados()) return model::Informa(entorno.s, SinCorrida);
    Muestra(*u);
}

void MapaDeEstudio::Muestra(const checks::UltimaCorrida& u)
{
    const std::string tema = u.sello.tormenta + "; corrida del " + u.cuando;
    forms::Procedencia procedencia{.titulo = std::string(results::TituloMapaDeCorrida), .tema = tema};
    results::FondoDeMapa fondo;
    if (u.sello.proyecto == checks::SelloDe(entorno.s).proyecto) {
        procedencia = forms::DeHoy(entorno.s, std::move(procedencia));
        fondo = Fondo();
    } else {
        procedencia.proyecto = u.sello.nombre;
    }
    ventana.Abre(results::CopiaDeCorrida(u.red, u.pasos, u.r()), procedencia, std::move(fondo));
    ventana.Franja().Toma(u.sello);
}

/// The project's image as the editor shows it; none where its file can't be read, which the editor tells.
results::FondoDeMapa MapaDeEstudio::Fondo()
{
    const QImage imagen = editor::CargaImagen(entorno, editor::RutaImagen(entorno.s)).imagen;
    return {QPixmap::fromImage(imagen),
            forms::MarcoDe(entorno.s.Configuracion, imagen.width(), imagen.height())};
}

void MapaDeEstudio::PideHidrograma(const std::string& componente)
{
    const std::vector<std::string> enMemoria = results::Componentes(entorno.s.Resultados);
    const bool hay = entorno.s.Tormenta.FormaPp != model::FormaLluvia::SeriePDR &&
                     std::find(enMemoria.begin(), enMemoria.end(), componente) != enMemoria.end();
    if (hay) return AbreHidrograma(componente);
    model::Informa(entorno.s, "El hidrograma de <" + componente +
                                  "> ya no está en memoria. Corra la tormenta de nuevo (F5).");
}

}  // namespace shell
