// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Companeros.h"

#include <algorithm>
#include <cstddef>

#include "model/Avisos.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view ComienzoSerie = "_serie_";
constexpr std::string_view TerminacionSerie = ".csv";
constexpr std::string_view TerminacionCorridas = "_corridas";
constexpr std::string_view Apartado = ".anterior";

constexpr std::string_view NoSeVe = "No se pudo ver qué archivos hay en la carpeta. Si el proyecto <";
constexpr std::string_view NoSeCopia = "> tiene un estudio o series, no se copiaron.";
constexpr std::string_view TituloAparta = "Archivos del estudio";
constexpr std::string_view Aparta1 = "En la carpeta quedaban archivos de otro proyecto de nombre <";
constexpr std::string_view Aparta2 = ">. Se los apartó con otro nombre: ";
constexpr std::string_view NoAparta2 =
    ">, y no se los pudo apartar. Elija un nombre distinto, o mueva de allí estos archivos: ";

bool EsDirectorioDe(std::string_view nombre)
{
    return nombre.ends_with(Separador);
}

std::string EnLista(const std::vector<std::string>& nombres)
{
    std::string lista;
    for (const std::string& nombre : nombres)
        lista.append(lista.empty() ? "" : ", ").append(nombre);
    return lista;
}

void Muda(const Siro& s, const std::string& de, const std::string& a)
{
    s.Disco.Copia(de, a);
    s.Disco.Borra(de);
}

}  // namespace

std::vector<std::string> CompanerosDe(const Siro& s, const std::string& directorio,
                                      const std::vector<std::string>& archivos, std::string_view proyecto)
{
    std::vector<std::string> nombres;
    const std::string estudio = std::string(proyecto).append(TerminacionEstudio),
                      serie = std::string(proyecto).append(ComienzoSerie);
    for (const std::string& nombre : archivos) {
        const bool esSerie = nombre.size() > serie.size() + TerminacionSerie.size() &&
                             nombre.starts_with(serie) && nombre.ends_with(TerminacionSerie);
        if (nombre == estudio || esSerie) nombres.push_back(nombre);
    }
    const std::string corridas = std::string(proyecto).append(TerminacionCorridas);
    std::vector<std::string> guardadas;
    if (s.Disco.HayDirectorio(Ruta(directorio, corridas)))
        Sentencia([&] { guardadas = s.Disco.Lista(Ruta(directorio, corridas)); });
    if (!guardadas.empty()) nombres.push_back(corridas + Separador);
    return nombres;
}

std::map<std::string, std::vector<std::string>> CompanerosPorConf(const Siro& s,
                                                                  const std::string& directorio,
                                                                  const std::vector<std::string>& archivos)
{
    std::map<std::string, std::vector<std::string>> todos;
    for (const std::string& conf : archivos)
        if (conf.ends_with(TerminacionConf))
            todos[conf] =
                CompanerosDe(s, directorio, archivos,
                             std::string_view(conf).substr(0, conf.size() - TerminacionConf.size()));
    return todos;
}

void CopiaCompaneros(const Siro& s, const std::string& directorio, const std::string& viejo,
                     const std::string& nuevo)
{
    std::vector<std::string> archivos;
    // A folder whose files can be read by name alone.
    if (!Sentencia([&] { archivos = s.Disco.Lista(directorio); }))
        Advierte(s, std::string(NoSeVe) + viejo + std::string(NoSeCopia), TituloAparta);
    for (const std::string& nombre : CompanerosDe(s, directorio, archivos, viejo))
        if (!EsDirectorioDe(nombre))
            s.Disco.Copia(Ruta(directorio, nombre), Ruta(directorio, nuevo + nombre.substr(viejo.size())));
}

std::string ApartaCompanero(const Siro& s, const std::string& directorio, const std::string& nombre)
{
    const std::vector<std::string> archivos = s.Disco.Lista(directorio);
    const bool esDirectorio = EsDirectorioDe(nombre);
    const std::string llano = nombre.substr(0, nombre.size() - (esDirectorio ? 1 : 0));
    const auto ocupado = [&](const std::string& otro) {
        return std::binary_search(archivos.begin(), archivos.end(), otro) ||
               s.Disco.HayDirectorio(Ruta(directorio, otro));
    };
    std::string libre = llano + std::string(Apartado);
    for (int n = 2; ocupado(libre); ++n)
        libre = llano + std::string(Apartado) + std::to_string(n);
    const std::string de = Ruta(directorio, llano), a = Ruta(directorio, libre);
    if (!esDirectorio) {
        Muda(s, de, a);
    } else {
        s.Disco.CreaDirectorio(a);
        for (const std::string& archivo : s.Disco.Lista(de))
            Muda(s, Ruta(de, archivo), Ruta(a, archivo));
    }
    return libre;
}

bool ApartaCompaneros(const Siro& s, const std::string& directorio, const std::string& proyecto)
{
    std::vector<std::string> quedan, apartados;
    Sentencia([&] {
        const std::vector<std::string> archivos = s.Disco.Lista(directorio);
        const bool esDeAlguien = std::binary_search(archivos.begin(), archivos.end(), ArchivoConf(proyecto));
        if (!esDeAlguien) quedan = CompanerosDe(s, directorio, archivos, proyecto);
    });
    std::reverse(quedan.begin(), quedan.end());
    while (!quedan.empty() &&
           Sentencia([&] { apartados.push_back(ApartaCompanero(s, directorio, quedan.back())); }))
        quedan.pop_back();
    const std::string comienzo = std::string(Aparta1) + proyecto;
    if (!quedan.empty())
        Advierte(s, comienzo + std::string(NoAparta2) + EnLista(quedan), TituloAparta);
    else if (!apartados.empty())
        Advierte(s, comienzo + std::string(Aparta2) + EnLista(apartados), TituloAparta);
    return quedan.empty();
}

void Tira(const Siro& s, const std::string& directorio, const std::string& nombre)
{
    const bool esDirectorio = EsDirectorioDe(nombre);
    const std::string ruta = Ruta(directorio, nombre.substr(0, nombre.size() - (esDirectorio ? 1 : 0)));
    if (s.Anfitrion.TiraAPapelera(ruta)) return;
    if (!esDirectorio) return s.Disco.Borra(ruta);
    for (const std::string& archivo : s.Disco.Lista(ruta))
        s.Disco.Borra(Ruta(ruta, archivo));
}

}  // namespace model
