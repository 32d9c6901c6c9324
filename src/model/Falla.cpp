// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Falla.h"

#include <array>

namespace model {

namespace {

struct RenglonFalla {
    NumeroFalla numero;
    std::string_view descripcion;
};

// clang-format off
constexpr auto Fallas = std::to_array<RenglonFalla>({
    {NumeroFalla::Argumento,           "Argumento o llamada a procedimiento no válidos"},
    {NumeroFalla::Desbordamiento,      "Desbordamiento"},
    {NumeroFalla::Subindice,           "El subíndice está fuera del intervalo"},
    {NumeroFalla::DivisionPorCero,     "División por cero"},
    {NumeroFalla::Tipos,               "No coinciden los tipos"},
    {NumeroFalla::ArchivoNoEsta,       "No se encontró el archivo"},
    {NumeroFalla::FinDeArchivo,        "La entrada de datos sobrepasó el final del archivo"},
    {NumeroFalla::AccesoRuta,          "Error de acceso a la ruta o al archivo"},
    {NumeroFalla::RutaNoEsta,          "No se encontró la ruta de acceso"},
    {NumeroFalla::ObjetoNoEstablecido, "Variable de objeto no establecida"},
});
// clang-format on

}  // namespace

std::string_view DescripcionFalla(NumeroFalla numero)
{
    for (const RenglonFalla& r : Fallas)
        if (r.numero == numero) return r.descripcion;
    return {};
}

}  // namespace model
