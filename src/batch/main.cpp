// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include "batch/Lote.h"
#include "model/Sistema.h"

int main(int argc, char** argv)
{
    const auto palabras = model::PalabrasDelProceso(argc, argv);
    std::vector<const char*> punteros;
    punteros.reserve(palabras.size());
    for (const auto& palabra : palabras)
        punteros.push_back(palabra.c_str());
    return batch::Lote(static_cast<int>(punteros.size()), punteros.data(), batch::SalidasDelProceso());
}
