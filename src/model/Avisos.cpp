// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Avisos.h"

#include <utility>

namespace model {

namespace {

std::string Numero(const Falla& falla)
{
    return std::to_string(static_cast<int>(falla.numero));
}

std::string Nota(const Falla& falla)
{
    return falla.nota.empty() ? std::string() : "\r\n\r\n" + std::string(falla.nota);
}

}  // namespace

void Advierte(const Anfitrion& anfitrion, std::string texto, std::string_view titulo)
{
    anfitrion.Avisa({std::move(texto), std::string(titulo), Icono::Exclamacion});
}

void Informa(const Anfitrion& anfitrion, std::string texto)
{
    anfitrion.Avisa({std::move(texto), {}, Icono::Ninguno});
}

bool Consulta(const Anfitrion& anfitrion, std::string texto, std::string_view titulo, std::string repetida)
{
    return anfitrion.Pregunta(
        {std::move(texto), std::string(titulo), Icono::Exclamacion, std::move(repetida)});
}

std::string TextoFallaMotor(const Falla& falla)
{
    return "Error Nro. " + Numero(falla) + " ," + std::string(DescripcionFalla(falla.numero)) + "Verifique" +
           Nota(falla);
}

std::string TextoFallaArchivo(const Falla& falla)
{
    return "Error Nro. " + Numero(falla) + std::string(DescripcionFalla(falla.numero)) + " ,Verifique" +
           Nota(falla);
}

}  // namespace model
