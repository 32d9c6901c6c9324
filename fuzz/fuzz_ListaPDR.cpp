// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "DiscoDeUnArchivo.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

namespace {

// The dashes of a negative number and of an exponent are taken for those of the item: not expected to come
// back.
bool Vuelve(const std::string& item)
{
    std::size_t guiones = 0;
    for (const char letra : item)
        guiones += letra == '-' ? 1U : 0U;
    return guiones == 2;
}

void ParteLinea(const std::string& texto)
{
    model::Siro s;
    try {
        model::ParsePDR(s, texto);
    } catch (const model::Falla& falla) {
        Exige(falla.numero == model::NumeroFalla::Desbordamiento);
    }
}

}  // namespace

// The list comes back after a writing; any text at all can be taken for an item.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const DiscoDeUnArchivo archivo;
    archivo.bytes->assign(datos, datos + largo);
    ParteLinea(*archivo.bytes);
    model::Siro s;
    s.Disco = archivo.Disco();
    std::vector<std::string> cmbPDR;
    model::leeListaPpDurRec(s, cmbPDR);
    for (const std::string& item : cmbPDR)
        if (!Vuelve(item)) return 0;
    model::GuardaListaPDR(s, cmbPDR, {"60", "30", "10"});
    Exige(s.Tormenta.PpTormenta == 60 && s.Tormenta.DurTormenta == 30 && s.Tormenta.RecTormenta == 10);
    std::vector<std::string> otra{"vieja"};
    model::leeListaPpDurRec(s, otra);
    Exige(otra == cmbPDR);
    return 0;
}
