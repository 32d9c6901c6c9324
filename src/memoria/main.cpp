// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoria/Programa_ventana.h"
#include "model/Sistema.h"

int main(int argc, char** argv)
{
    return memoria::Corre(model::PalabrasDelProceso(argc, argv));
}
