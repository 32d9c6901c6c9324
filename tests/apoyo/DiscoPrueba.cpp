// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/DiscoPrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "model/RutaProyecto.h"

namespace apoyo {

using model::Falla;
using model::NumeroFalla;

namespace {

constexpr char Barra = '/';

/// A path as this disk knows it, by the one separator; Windows has two.
std::string ConBarras(std::string ruta)
{
    if (model::Separador != Barra) std::replace(ruta.begin(), ruta.end(), model::Separador, Barra);
    return ruta;
}

std::string SinBarraFinal(const std::string& dada)
{
    std::string ruta = ConBarras(dada);
    while (ruta.size() > 1 && ruta.back() == Barra)
        ruta.pop_back();
    return ruta;
}

/// Directory of a path; empty for a bare name, which lies in the directory that is always there.
std::string DirectorioDe(const std::string& ruta)
{
    const std::size_t barra = ruta.rfind(Barra);
    if (barra == std::string::npos) return {};
    return ruta.substr(0, barra == 0 ? 1 : barra);
}

}  // namespace

struct DiscoPrueba::Estado {
    std::map<std::string, std::string> archivos{};
    std::set<std::string> directorios{"", std::string(1, Barra)};
    std::set<std::string> protegidos{};
    std::size_t espacio = std::string::npos;
    std::vector<Llamada> llamadas{};
    int faltan = 0;  ///< calls until the one that fails; 0: none does
    bool sigueFallando = false;
    bool huboFalla = false;
    NumeroFalla numero = NumeroFalla::AccesoRuta;

    void Cuenta(Clase clase, const std::string& ruta)
    {
        llamadas.push_back({clase, ConBarras(ruta)});
        if (faltan == 0 || --faltan > 0) return;
        huboFalla = true;
        if (sigueFallando) faltan = 1;
        throw Falla{numero};
    }
    void HazDirectorio(const std::string& ruta)
    {
        for (std::string d = ruta; directorios.insert(d).second;)
            d = DirectorioDe(d);
    }
    [[nodiscard]] std::size_t Ocupado() const
    {
        std::size_t bytes = 0;
        for (const auto& [ruta, contenido] : archivos)
            bytes += contenido.size();
        return bytes;
    }
    std::string& ExigeArchivo(const std::string& ruta)
    {
        if (directorios.contains(ruta)) throw Falla{NumeroFalla::AccesoRuta};
        if (!directorios.contains(DirectorioDe(ruta))) throw Falla{NumeroFalla::RutaNoEsta};
        const auto archivo = archivos.find(ruta);
        if (archivo == archivos.end()) throw Falla{NumeroFalla::ArchivoNoEsta};
        return archivo->second;
    }
    void ExigeEscribible(const std::string& ruta) const
    {
        if (!directorios.contains(DirectorioDe(ruta))) throw Falla{NumeroFalla::RutaNoEsta};
        if (directorios.contains(ruta) || protegidos.contains(ruta) ||
            protegidos.contains(DirectorioDe(ruta)))
            throw Falla{NumeroFalla::AccesoRuta};
    }
    void Escribe(const std::string& ruta, std::string_view bytes, bool agrega)
    {
        ExigeEscribible(ruta);
        std::string& archivo = archivos[ruta];
        if (!agrega) archivo.clear();
        const std::size_t ocupado = Ocupado();
        const std::size_t cabe = espacio > ocupado ? espacio - ocupado : 0;
        archivo += bytes.substr(0, cabe);
        if (bytes.size() > cabe) throw Falla{NumeroFalla::AccesoRuta};
    }
    void Reemplaza(const std::vector<model::CambioArchivo>& cambios)
    {
        const auto antes = archivos;
        for (const model::CambioArchivo& cambio : cambios) {
            try {
                Escribe(ConBarras(cambio.ruta), cambio.bytes, false);
            } catch (const Falla&) {
                archivos = antes;
                throw;
            }
        }
    }
    void CreaDirectorio(const std::string& ruta)
    {
        const bool ocupado = directorios.contains(ruta) || archivos.contains(ruta);
        const std::string encima = DirectorioDe(ruta);
        if (ocupado || !directorios.contains(encima) || protegidos.contains(encima))
            throw Falla{NumeroFalla::AccesoRuta};
        directorios.insert(ruta);
    }
    std::vector<std::string> Lista(const std::string& directorio)
    {
        if (!directorios.contains(directorio)) throw Falla{NumeroFalla::RutaNoEsta};
        std::vector<std::string> nombres;  // sorted, since all have the directory in front
        for (const auto& [ruta, contenido] : archivos)
            if (DirectorioDe(ruta) == directorio) nombres.push_back(ruta.substr(ruta.rfind(Barra) + 1));
        return nombres;
    }
    void Borra(const std::string& ruta)
    {
        ExigeArchivo(ruta);
        ExigeEscribible(ruta);
        archivos.erase(ruta);
    }
};

DiscoPrueba::DiscoPrueba() : estado(std::make_shared<Estado>()) {}

model::Disco DiscoPrueba::Puerta() const
{
    const auto e = estado;
    model::Disco disco;
    disco.Lee = [e](const std::string& ruta) {
        e->Cuenta(Clase::Lee, ruta);
        return e->ExigeArchivo(ConBarras(ruta));
    };
    disco.Escribe = [e](const std::string& ruta, std::string_view bytes) {
        e->Cuenta(Clase::Escribe, ruta);
        e->Escribe(ConBarras(ruta), bytes, false);
    };
    disco.Agrega = [e](const std::string& ruta, std::string_view bytes) {
        e->Cuenta(Clase::Agrega, ruta);
        e->Escribe(ConBarras(ruta), bytes, true);
    };
    disco.HayDirectorio = [e](const std::string& ruta) {
        try {
            e->Cuenta(Clase::HayDirectorio, ruta);
        } catch (const Falla&) {
            return false;
        }
        return e->directorios.contains(SinBarraFinal(ruta));
    };
    disco.CreaDirectorio = [e](const std::string& ruta) {
        e->Cuenta(Clase::CreaDirectorio, ruta);
        e->CreaDirectorio(SinBarraFinal(ruta));
    };
    disco.Lista = [e](const std::string& ruta) {
        e->Cuenta(Clase::Lista, ruta);
        return e->Lista(SinBarraFinal(ruta));
    };
    disco.Borra = [e](const std::string& ruta) {
        e->Cuenta(Clase::Borra, ruta);
        e->Borra(ConBarras(ruta));
    };
    disco.Copia = [e](const std::string& origen, const std::string& destino) {
        e->Cuenta(Clase::Copia, origen);
        const std::string bytes = e->ExigeArchivo(ConBarras(origen));
        if (ConBarras(origen) == ConBarras(destino)) throw Falla{NumeroFalla::AccesoRuta};
        e->Reemplaza({{destino, bytes}});
    };
    disco.Reemplaza = [e](const std::vector<model::CambioArchivo>& cambios) {
        e->Cuenta(Clase::Reemplaza, cambios.front().ruta);
        e->Reemplaza(cambios);
    };
    disco.Recupera = [e](const std::string& directorio) {
        e->Cuenta(Clase::Recupera, directorio);
        e->Lista(SinBarraFinal(directorio));
        return model::Recuperacion{};
    };
    return disco;
}

void DiscoPrueba::PonDirectorio(const std::string& ruta)
{
    estado->HazDirectorio(SinBarraFinal(ruta));
}

void DiscoPrueba::Pon(const std::string& dada, std::string_view bytes)
{
    const std::string ruta = ConBarras(dada);
    estado->HazDirectorio(DirectorioDe(ruta));
    estado->archivos[ruta] = bytes;
}

void DiscoPrueba::Quita(const std::string& dada)
{
    const std::string ruta = ConBarras(dada), dentro = ruta + Barra;
    std::erase_if(estado->archivos,
                  [&](const auto& a) { return a.first == ruta || a.first.starts_with(dentro); });
    std::erase_if(estado->directorios, [&](const auto& d) { return d == ruta || d.starts_with(dentro); });
}

bool DiscoPrueba::Esta(const std::string& ruta) const
{
    return estado->archivos.contains(ConBarras(ruta)) || estado->directorios.contains(SinBarraFinal(ruta));
}

std::string DiscoPrueba::Bytes(const std::string& ruta) const
{
    const auto archivo = estado->archivos.find(ConBarras(ruta));
    if (archivo != estado->archivos.end()) return archivo->second;
    ADD_FAILURE() << ruta << " isn't on the disk";
    return {};
}

std::vector<std::string> DiscoPrueba::Archivos() const
{
    std::vector<std::string> rutas;
    for (const auto& [ruta, contenido] : estado->archivos)
        rutas.push_back(ruta);
    return rutas;
}

void DiscoPrueba::Protege(const std::string& ruta, bool protegido)
{
    if (protegido)
        estado->protegidos.insert(SinBarraFinal(ruta));
    else
        estado->protegidos.erase(SinBarraFinal(ruta));
}

void DiscoPrueba::LimitaEspacio(std::size_t bytes)
{
    estado->espacio = bytes;
}

void DiscoPrueba::FallaEn(int n, NumeroFalla numero)
{
    estado->faltan = n;
    estado->numero = numero;
    estado->sigueFallando = false;
    estado->huboFalla = false;
}

void DiscoPrueba::FallaDesde(int n, NumeroFalla numero)
{
    FallaEn(n, numero);
    estado->sigueFallando = true;
}

void DiscoPrueba::DejaDeFallar()
{
    estado->faltan = 0;
    estado->sigueFallando = false;
}

bool DiscoPrueba::HuboFalla() const
{
    return estado->huboFalla;
}

const std::vector<DiscoPrueba::Llamada>& DiscoPrueba::Llamadas() const
{
    return estado->llamadas;
}

void DiscoPrueba::OlvidaLlamadas()
{
    estado->llamadas.clear();
}

}  // namespace apoyo
