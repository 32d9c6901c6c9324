// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/VersionAnterior.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>
#include <utility>

#include "model/ArchivosTormenta.h"
#include "model/Companeros.h"
#include "model/Configuracion.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

namespace model {

namespace {

constexpr std::string_view FirmaDeVersion = "siro version 1\n";
constexpr std::string_view Terminacion = ".anterior";
constexpr std::string_view NotaDanada = "El archivo de la versión anterior está dañado.";
constexpr std::string_view NotaGrande = "El proyecto ocupa demasiado.";
constexpr std::string_view NotaNombre = "El nombre del proyecto o de su carpeta no sirve.";
constexpr int Hexadecimal = 16, Decimal = 10;
constexpr std::size_t CifrasDeHuella = 16, CifrasDeTurno = 8;

[[noreturn]] void Danada()
{
    throw Falla{NumeroFalla::AccesoRuta, NotaDanada};
}

bool EsDelProyecto(std::string_view archivo, std::string_view nombre)
{
    if (!archivo.starts_with(nombre) || archivo.substr(nombre.size(), 1) != "_") return false;
    return archivo.ends_with(".vlm") || EsDeEstudio(archivo);
}

bool EsDeLaCarpeta(std::string_view archivo)
{
    return archivo == ArchivoListaPDR || archivo.ends_with(TerminacionTormenta);
}

/// A number with leading zeros.
std::string Cifras(std::uint64_t numero, int base, std::size_t largo)
{
    std::array<char, 24> lugar{};
    const auto fin = std::to_chars(lugar.data(), lugar.data() + lugar.size(), numero, base).ptr;
    std::string texto(lugar.data(), fin);
    return texto.insert(0, largo - std::min(largo, texto.size()), '0');
}

template <typename Entero>
std::optional<Entero> Lee(std::string_view texto, int base)
{
    Entero numero{};
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero, base);
    if (error != std::errc{} || fin != texto.data() + texto.size()) return {};
    return numero;
}

/// The text up to the next mark, which goes with it.
std::string_view TomaHasta(std::string_view& resto, char marca)
{
    const std::size_t fin = resto.find(marca);
    if (fin == std::string_view::npos) Danada();
    const std::string_view texto = resto.substr(0, fin);
    resto.remove_prefix(fin + 1);
    return texto;
}

std::size_t TomaLargo(std::string_view& resto, char marca)
{
    const auto largo = Lee<std::size_t>(TomaHasta(resto, marca), Decimal);
    if (!largo || *largo > MaximoDeVersion) Danada();
    return *largo;
}

bool Sirve(const VersionAnterior& version)
{
    const std::string nombre = NombreDeProyecto(version.proyecto);
    if (nombre.empty() || !SirveDeNombre(nombre) || version.proyecto.find('\n') != std::string::npos)
        return false;
    return std::all_of(version.archivos.begin(), version.archivos.end(), [&](const CambioArchivo& a) {
        return SirveDeNombre(a.ruta) && (EsDelProyecto(a.ruta, nombre) || EsDeLaCarpeta(a.ruta));
    });
}

}  // namespace

std::string DirectorioDeProyecto(std::string_view proyecto)
{
    const std::size_t fin = proyecto.rfind(Separador);
    return std::string(proyecto.substr(0, fin == std::string_view::npos ? 0 : fin));
}

std::string NombreDeProyecto(std::string_view proyecto)
{
    return std::string(proyecto.substr(proyecto.rfind(Separador) + 1));
}

std::string ProyectoDeArchivo(std::string_view archivo, const std::vector<std::string>& delDirectorio)
{
    std::string suyo, unico;
    int proyectos = 0;
    for (const std::string& conf : delDirectorio) {
        if (!conf.ends_with(TerminacionConf)) continue;
        const std::string nombre = conf.substr(0, conf.size() - TerminacionConf.size());
        if (nombre.empty()) continue;
        ++proyectos;
        unico = nombre;
        if (EsDelProyecto(archivo, nombre) && nombre.size() > suyo.size()) suyo = nombre;
    }
    return suyo.empty() && proyectos == 1 && EsDeLaCarpeta(archivo) ? unico : suyo;
}

bool EsDeEstudio(std::string_view archivo)
{
    return archivo.ends_with(TerminacionEstudio) ||
           (archivo.find("_serie_") != std::string_view::npos && archivo.ends_with(".csv"));
}

std::string EscribeVersion(const VersionAnterior& version)
{
    if (!Sirve(version)) throw Falla{NumeroFalla::AccesoRuta, NotaNombre};
    std::string cuerpo = version.proyecto + '\n' + std::to_string(version.archivos.size()) + '\n';
    std::size_t bytes = 0;
    for (const CambioArchivo& archivo : version.archivos) {
        bytes += archivo.bytes.size();
        cuerpo += std::to_string(archivo.bytes.size()) + ' ' + archivo.ruta + '\n';
    }
    if (bytes > MaximoDeVersion) throw Falla{NumeroFalla::AccesoRuta, NotaGrande};
    for (const CambioArchivo& archivo : version.archivos)
        cuerpo += archivo.bytes;
    return ConHuella(cuerpo);
}

std::string ConHuella(const std::string& cuerpo)
{
    return std::string(FirmaDeVersion) + Cifras(HuellaFnv(cuerpo), Hexadecimal, CifrasDeHuella) + '\n' +
           cuerpo;
}

VersionAnterior LeeVersion(std::string_view bytes)
{
    if (!bytes.starts_with(FirmaDeVersion)) Danada();
    bytes.remove_prefix(FirmaDeVersion.size());
    const auto huella = Lee<std::uint64_t>(TomaHasta(bytes, '\n'), Hexadecimal);
    if (huella != HuellaFnv(bytes)) Danada();
    VersionAnterior version{std::string(TomaHasta(bytes, '\n')), {}};
    const std::size_t cuantos = TomaLargo(bytes, '\n');
    std::vector<std::size_t> largos;
    for (std::size_t i = 0; i < cuantos; ++i) {  // ends with the bytes, whatever the number says
        largos.push_back(TomaLargo(bytes, ' '));
        std::string nombre(TomaHasta(bytes, '\n'));
        if (!version.archivos.empty() && nombre <= version.archivos.back().ruta) Danada();
        version.archivos.push_back({std::move(nombre), {}});
    }
    if (!Sirve(version)) Danada();
    for (std::size_t i = 0; i < cuantos; ++i) {
        if (largos[i] > bytes.size()) Danada();
        version.archivos[i].bytes = bytes.substr(0, largos[i]);
        bytes.remove_prefix(largos[i]);
    }
    if (!bytes.empty()) Danada();
    return version;
}

std::string FichaDeVersion::Archivo() const
{
    return Cifras(clave, Hexadecimal, CifrasDeHuella) + '-' + Cifras(turno, Decimal, CifrasDeTurno) + '-' +
           std::to_string(momento) + '-' + Cifras(huella, Hexadecimal, CifrasDeHuella) +
           std::string(Terminacion);
}

std::optional<FichaDeVersion> LeeFicha(std::string_view archivo)
{
    if (!archivo.ends_with(Terminacion)) return {};
    std::string_view resto = archivo.substr(0, archivo.size() - Terminacion.size());
    std::array<std::string_view, 4> partes;
    for (std::string_view& parte : partes) {
        const std::size_t fin = std::min(resto.find('-'), resto.size());
        parte = resto.substr(0, fin);
        resto.remove_prefix(std::min(fin + 1, resto.size()));
    }
    const auto clave = Lee<std::uint64_t>(partes[0], Hexadecimal),
               huella = Lee<std::uint64_t>(partes[3], Hexadecimal);
    const auto turno = Lee<std::uint64_t>(partes[1], Decimal);
    const auto momento = Lee<std::int64_t>(partes[2], Decimal);
    if (!clave || !turno || !momento || !huella) return {};
    const FichaDeVersion ficha{*clave, *turno, *momento, *huella};
    if (ficha.Archivo() != archivo) return {};
    return ficha;
}

std::uint64_t HuellaFnv(std::string_view bytes)
{
    std::uint64_t huella = 14695981039346656037U;
    for (const char byte : bytes) {
        huella ^= static_cast<unsigned char>(byte);
        huella *= 1099511628211U;
    }
    return huella;
}

}  // namespace model
