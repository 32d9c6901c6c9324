// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Avisos.h"
#include "model/Siro.h"
#include "shell/TallerDeLluvia_ventana.h"

namespace shell {

struct TallerDeLluvia::Partes {};

TallerDeLluvia::TallerDeLluvia(forms::Entorno& alrededor) : entorno(alrededor) {}

TallerDeLluvia::~TallerDeLluvia() = default;

void TallerDeLluvia::Abre()
{
    model::Advierte(entorno.s, "Esta versión no trae el taller de lluvia; lo trae la versión completa.");
}

study::Abierto* TallerDeLluvia::Estudio()
{
    return nullptr;
}

void TallerDeLluvia::TrasGuardarComo() {}

void TallerDeLluvia::TrasEliminar() {}

void TallerDeLluvia::AlSalir() {}

}  // namespace shell
