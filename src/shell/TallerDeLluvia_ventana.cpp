// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/TallerDeLluvia_ventana.h"

#include "frequency/taller/dlgTaller.h"
#include "frequency/taller/dlgTaller_ventana.h"
#include "study/Abierto.h"

namespace shell {

struct TallerDeLluvia::Partes {
    explicit Partes(forms::Entorno& entorno)
        : estudio(entorno.s), registro(estudio), ventana(entorno, registro)
    {
    }
    study::Abierto estudio;
    frequency::dlgTaller registro;
    frequency::dlgTaller_ventana ventana;
};

TallerDeLluvia::TallerDeLluvia(forms::Entorno& alrededor)
    : entorno(alrededor), partes(std::make_unique<Partes>(alrededor))
{
    entorno.AlTerminarSuceso(partes->ventana, [this] {
        if (partes->estudio.HaDeSeguir()) entorno.Atiende([this] { partes->estudio.Sigue(); });
    });
}

TallerDeLluvia::~TallerDeLluvia() = default;

void TallerDeLluvia::Abre()
{
    partes->estudio.Sigue();
    partes->ventana.Abre();
}

study::Abierto* TallerDeLluvia::Estudio()
{
    return &partes->estudio;
}

void TallerDeLluvia::TrasGuardarComo()
{
    partes->estudio.TrasGuardarComo();
}

void TallerDeLluvia::TrasEliminar()
{
    partes->estudio.TrasEliminar();
}

void TallerDeLluvia::AlSalir()
{
    partes->estudio.Cierra();
}

}  // namespace shell
