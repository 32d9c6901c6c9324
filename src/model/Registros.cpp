// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Registros.h"

#include <algorithm>
#include <array>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace model {

namespace {

constexpr std::string_view Verdadero = "#TRUE#";
constexpr std::string_view Falso = "#FALSE#";
constexpr std::string_view FinesDeCampo = ",\r\n";
constexpr std::string_view Blancos = " \t";

/// Bytes of the longest field: no text of a project comes near.
constexpr std::size_t MaximoCampo = std::size_t{1} << 20;

/// Bytes that a writer gathers before it goes to the disk.
constexpr std::size_t Pieza = std::size_t{1} << 16;

}  // namespace

// --- fields ---

Campo LectorRegistros::Siguiente()
{
    if (Fin()) throw Falla{NumeroFalla::FinDeArchivo};
    const std::string_view resto = std::string_view(contenido).substr(lugar);
    const auto hasta = [&](std::string_view que, std::size_t desde) {
        return std::min(resto.find_first_of(que, desde), resto.size());
    };

    Campo campo;
    const std::size_t inicio = std::min(resto.find_first_not_of(Blancos), resto.size());
    std::size_t fin;
    if (inicio < resto.size() && resto[inicio] == '"') {
        const std::size_t cierre = hasta("\"", inicio + 1);
        campo = {resto.substr(inicio + 1, cierre - inicio - 1), true};
        fin = hasta(FinesDeCampo, cierre);
    } else {
        fin = hasta(FinesDeCampo, inicio);
        campo.bytes = resto.substr(inicio, fin - inicio);
        campo.bytes.remove_suffix(campo.bytes.size() - (campo.bytes.find_last_not_of(Blancos) + 1));
    }
    if (campo.bytes.size() > MaximoCampo) {
        lugar = contenido.size() + 1;
        throw Falla{NumeroFalla::FinDeArchivo};
    }
    const std::size_t largoFin = resto.substr(fin, 2) == SaltoLinea ? 2 : 1;
    const bool hayMas = fin + largoFin < resto.size() || (fin < resto.size() && resto[fin] == ',');
    lugar = hayMas ? lugar + fin + largoFin : contenido.size() + 1;
    return campo;
}

double CampoDoble(const Campo& campo)
{
    if (!campo.entreComillas) {
        if (campo.bytes.empty()) return 0;
        if (const auto numero = NumeroEntero(campo.bytes)) return *numero;
    }
    throw Falla{NumeroFalla::Tipos};
}

float CampoSimple(const Campo& campo)
{
    return Simple(CampoDoble(campo));
}

std::int16_t CampoNumero16(const Campo& campo)
{
    return Entero16(CampoDoble(campo));
}

bool CampoLogico(const Campo& campo)
{
    if (!campo.entreComillas) {
        if (campo.bytes == Verdadero) return true;
        if (campo.bytes == Falso) return false;
    }
    return CampoDoble(campo) != 0;
}

std::string LectorRegistros::Texto()
{
    return DeWindows1252(Siguiente().bytes);
}
std::int16_t LectorRegistros::Numero16()
{
    return CampoNumero16(Siguiente());
}
float LectorRegistros::NumeroSimple()
{
    return CampoSimple(Siguiente());
}
bool LectorRegistros::Logico()
{
    return CampoLogico(Siguiente());
}

// --- writer ---

void EscritorRegistros::Abre(const std::string& unaRuta)
{
    ruta = unaRuta;
    pendiente.clear();
    registro.clear();
    primero = true;
    abierto = false;
    try {
        if (salida == Salida::PorPiezas) disco.Escribe(ruta, {});
        abierto = true;
    } catch (const Falla& falla) {
        causa = falla.numero;
        throw;
    }
}

void EscritorRegistros::Separa()
{
    if (!primero) registro += ',';
    primero = false;
}

EscritorRegistros& EscritorRegistros::Texto(std::string_view texto)
{
    Separa();
    registro += '"';
    registro += AWindows1252(texto);
    registro += '"';
    return *this;
}

EscritorRegistros& EscritorRegistros::Numero(std::int32_t n)
{
    Separa();
    std::array<char, LargoNumero> texto;
    registro.append(texto.data(), EscribeNumero(texto.data(), n));
    return *this;
}

EscritorRegistros& EscritorRegistros::Numero(float x)
{
    Separa();
    std::array<char, LargoNumero> texto;
    registro.append(texto.data(), EscribeNumero(texto.data(), x));
    return *this;
}

EscritorRegistros& EscritorRegistros::Logico(bool b)
{
    Separa();
    registro += b ? Verdadero : Falso;
    return *this;
}

EscritorRegistros& EscritorRegistros::Vacio()
{
    Separa();
    return *this;
}

void EscritorRegistros::FinRegistro()
{
    primero = true;
    if (abierto) pendiente.append(registro).append(SaltoLinea);
    registro.clear();
    if (!abierto) throw Falla{causa};
    if (salida == Salida::PorPiezas && pendiente.size() >= Pieza)
        disco.Agrega(ruta, std::exchange(pendiente, {}));
}

void EscritorRegistros::Cierra()
{
    registro.clear();
    primero = true;
    if (!abierto) return;  // the cause of a failed open stays
    abierto = false;
    causa = NumeroFalla::AccesoRuta;
    if (salida == Salida::Entera) return disco.Reemplaza({Toma()});
    const std::string resto = std::exchange(pendiente, {});
    if (!resto.empty()) disco.Agrega(ruta, resto);
}

CambioArchivo EscritorRegistros::Toma()
{
    abierto = false;
    return {ruta, std::exchange(pendiente, {})};
}

}  // namespace model
