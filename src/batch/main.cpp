// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridaLote.h"

int main(int argc, char** argv)
{
    return batch::Lote(argc, argv, batch::SalidasDelProceso());
}
