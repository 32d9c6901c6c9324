// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "DiscoDeUnArchivo.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Texto.h"

namespace {

using model::Falla;
using model::NumeroFalla;

/// What a field is for one of the readers; nothing where it is a fault of those that a field can be.
template <typename Lee>
auto Valor(const model::Campo& campo, Lee lee) -> std::optional<decltype(lee(campo))>
{
    try {
        return lee(campo);
    } catch (const Falla& falla) {
        Exige(falla.numero == NumeroFalla::Tipos || falla.numero == NumeroFalla::Desbordamiento);
        return std::nullopt;
    }
}

/// The readers of a field agree with one another.
void RevisaCampo(const model::Campo& campo)
{
    const auto doble = Valor(campo, model::CampoDoble);
    const auto simple = Valor(campo, model::CampoSimple);
    const auto entero = Valor(campo, model::CampoNumero16);
    const auto logico = Valor(campo, model::CampoLogico);
    Exige(!campo.entreComillas || (!doble && !simple && !entero && !logico));
    if (entero) Exige(doble && std::nearbyint(*doble) == *entero);
    if (simple) Exige(doble && *simple == static_cast<float>(*doble));
    if (!doble) return;
    Exige(std::isfinite(*doble) && logico == (*doble != 0));
    if (campo.bytes.empty()) return;
    Exige(model::EsNumerico(campo.bytes) && model::Val(campo.bytes) == *doble);
    const std::string escrito = model::NumeroATexto(*doble);
    Exige(escrito.size() <= std::size_t{model::LargoNumero} && model::EsNumerico(escrito));
}

}  // namespace

// Any file is read to its end, field by field; going back gives the same fields; texts without a double quote
// are written and come back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    Exige(model::AWindows1252(model::DeWindows1252(bytes)) == bytes);
    Exige(model::AWindows1252(bytes).size() == model::CuentaCaracteres(bytes));

    model::LectorRegistros lector(bytes);
    const DiscoDeUnArchivo archivo;
    const model::Disco disco = archivo.Disco();
    model::EscritorRegistros escritor(disco);
    escritor.Abre("a");
    std::vector<std::string> textos;
    while (!lector.Fin()) {
        const std::size_t lugar = lector.Lugar();
        const model::Campo campo = lector.Siguiente();
        Exige(lector.Lugar() > lugar && lector.Lugar() <= largo + 1);
        RevisaCampo(campo);
        lector.Vuelve(lugar);
        const std::string texto = lector.Texto();
        Exige(model::AWindows1252(texto) == campo.bytes);
        if (texto.find('"') != std::string::npos) continue;
        textos.push_back(texto);
        escritor.Texto(texto);
        if (textos.size() % 3 == 0) escritor.FinRegistro();
    }
    escritor.FinRegistro();
    escritor.Cierra();

    model::LectorRegistros vuelta(*archivo.bytes);
    for (const std::string& texto : textos)
        Exige(vuelta.Texto() == texto);
    return 0;
}
