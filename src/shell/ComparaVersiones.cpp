// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ComparaVersiones.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string_view>

#include "editor/ClasesConIcono.h"
#include "editor/fichas/dlgUEHsTabla.h"
#include "forms/ReglasGrilla.h"
#include "model/ArchivoConf.h"
#include "model/Falla.h"
#include "model/Texto.h"

namespace shell {

namespace {

constexpr std::size_t RenglonesALaVista = 12;
constexpr std::size_t ColumnaClase = 0, ColumnaNombre = 2, PrimeraPropia = 5;
/// Numbers of the files, which other components change.
constexpr std::string_view DeOrden = "Ind.Vért.";

const std::string* Bytes(const model::VersionAnterior& version, std::string_view archivo)
{
    for (const model::CambioArchivo& uno : version.archivos)
        if (uno.ruta == archivo) return &uno.bytes;
    return nullptr;
}

std::string TextoDe(std::string_view archivo, std::string_view renglon)
{
    if (renglon.ends_with('\r')) renglon.remove_suffix(1);
    return archivo.ends_with(".vlm") ? model::DeWindows1252(renglon) : std::string(renglon);
}

/// The fields of each component out of the overview's rows; a Represa's functions stand in rows of their own.
void TomaTabla(const forms::Grilla& g, VersionLeida& leida)
{
    std::vector<std::string> titulos;
    CamposDeComponente* suyos = nullptr;
    int funcion = 1;
    for (const forms::FilaGrilla& fila : g.filas) {
        if (fila.esTitulo) {
            titulos = fila.celdas;
            continue;
        }
        const bool sigue = fila.celdas[ColumnaNombre].empty() && suyos != nullptr;
        funcion = sigue ? funcion + 1 : 1;
        if (!sigue) suyos = &leida.componentes[fila.celdas[ColumnaClase] + ' ' + fila.celdas[ColumnaNombre]];
        for (std::size_t c = ColumnaNombre + 1; c < fila.celdas.size(); ++c) {
            const bool propia = c >= PrimeraPropia;
            const std::string_view titulo =
                forms::SinBlancos(propia && c < titulos.size() ? titulos[c] : g.columnas[c].titulo);
            if (titulo.empty() || titulo == DeOrden || (fila.celdas[c].empty() && sigue)) continue;
            const std::string suFuncion =
                sigue ? " (función " + std::to_string(funcion) + ")" : std::string{};
            suyos->emplace_back(std::string(titulo) + suFuncion, fila.celdas[c]);
        }
    }
}

/// What the overview doesn't show: where each stands in the drawing.
void TomaDibujo(const model::Red& red, VersionLeida& leida)
{
    const auto en = [](const char* clase, const std::string& nombre) { return clase + (' ' + nombre); };
    const auto lugar = [&](const char* clase, const auto& c, const std::string& nombre) {
        const editor::Punto p = editor::Icono(c);
        leida.componentes[en(clase, nombre)].emplace_back(
            "Lugar en el dibujo",
            std::to_string(static_cast<int>(p.X)) + ", " + std::to_string(static_cast<int>(p.Y)));
    };
    for (const auto& c : red.ColUEHs)
        lugar("UEH", c, c.NombreUEH);
    for (const auto& c : red.ColLagos)
        lugar("Lag./Mallin", c, c.NombreLAGO);
    for (const auto& c : red.ColRepresas)
        lugar("Represa", c, c.NombreRepresa);
    for (const model::Cauce& c : red.ColCauces) {
        std::string trazado;
        for (int j = 1; j <= red.NroVertices(c.numCauce); ++j)
            trazado += std::to_string(static_cast<int>(red.XVertice(c.numCauce, j))) + "," +
                       std::to_string(static_cast<int>(red.YVertice(c.numCauce, j))) + " ";
        leida.componentes[en("Cauce", c.NombreCauce)].emplace_back("Trazado", trazado);
    }
}

/// What the components of two versions differ in. `cuantos`: how many change, are more, are fewer.
void ComparaComponentes(const VersionLeida& una, const VersionLeida& otra, Diferencias& d, int (&cuantos)[3])
{
    const auto valor = [](const CamposDeComponente& campos, const std::string& cual) {
        const auto campo =
            std::find_if(campos.begin(), campos.end(), [&](const auto& c) { return c.first == cual; });
        return campo == campos.end() ? std::string{} : campo->second;
    };
    for (const auto& [nombre, campos] : una.componentes) {
        const auto suyo = otra.componentes.find(nombre);
        if (suyo == otra.componentes.end()) {
            ++cuantos[2];
            d.filas.push_back({nombre, "Componente", "está", "no está"});
            continue;
        }
        const std::size_t antes = d.filas.size();
        for (const auto& [campo, texto] : campos)
            if (const std::string ahora = valor(suyo->second, campo); ahora != texto)
                d.filas.push_back({nombre, campo, texto, ahora});
        if (d.filas.size() > antes) ++cuantos[0];
    }
    for (const auto& [nombre, campos] : otra.componentes)
        if (!una.componentes.contains(nombre)) {
            ++cuantos[1];
            d.filas.push_back({nombre, "Componente", "no está", "está"});
        }
}

void ComparaRenglones(const std::string& archivo, const std::string& uno, const std::string& otro,
                      std::vector<Diferencia>& filas)
{
    const auto a = forms::Pedazos(uno, '\n'), b = forms::Pedazos(otro, '\n');
    std::vector<Diferencia> distintos;
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        const std::string x = i < a.size() ? TextoDe(archivo, a[i]) : std::string{},
                          y = i < b.size() ? TextoDe(archivo, b[i]) : std::string{};
        if (x != y) distintos.push_back({archivo, "Renglón " + std::to_string(i + 1), x, y});
    }
    if (distintos.size() > RenglonesALaVista)
        distintos = {{archivo, std::to_string(distintos.size()) + " renglones distintos",
                      std::to_string(a.size()) + " renglones", std::to_string(b.size()) + " renglones"}};
    filas.insert(filas.end(), distintos.begin(), distintos.end());
}

bool EsDeLaRed(std::string_view archivo)
{
    return archivo.ends_with("_UEHs.vlm") || archivo.ends_with("_VerCau.vlm");
}

std::string Cuenta(const int (&cuantos)[3])
{
    std::string texto;
    const auto agrega = [&](int n, const char* cola) {
        if (n > 0) texto += (texto.empty() ? "" : ", ") + std::to_string(n) + cola;
    };
    agrega(cuantos[0], cuantos[0] == 1 ? " componente cambia" : " componentes cambian");
    agrega(cuantos[1], " más");
    agrega(cuantos[2], " menos");
    return texto;
}

}  // namespace

model::Disco DiscoDe(const model::VersionAnterior& version)
{
    const std::string directorio = model::DirectorioDeProyecto(version.proyecto);
    std::map<std::string, std::string> archivos;
    for (const model::CambioArchivo& archivo : version.archivos)
        archivos[model::Ruta(directorio, archivo.ruta)] = archivo.bytes;
    model::Disco disco;
    disco.Lee = [archivos](const std::string& ruta) {
        const auto suyo = archivos.find(ruta);
        if (suyo == archivos.end()) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
        return suyo->second;
    };
    disco.Escribe = disco.Agrega = [](const std::string&, std::string_view) {};
    disco.Reemplaza = [](const std::vector<model::CambioArchivo>&) {};
    disco.Recupera = [](const std::string&) { return model::Recuperacion{}; };
    disco.HayDirectorio = [directorio](const std::string& ruta) { return ruta == directorio; };
    disco.Lista = [version](const std::string&) {
        std::vector<std::string> nombres;
        for (const model::CambioArchivo& archivo : version.archivos)
            nombres.push_back(archivo.ruta);
        return nombres;
    };
    disco.CreaDirectorio = disco.Borra = [](const std::string&) {};
    disco.Copia = [](const std::string&, const std::string&) {};
    return disco;
}

model::Siro ProyectoDe(const model::VersionAnterior& version)
{
    model::Siro s;
    s.Disco = DiscoDe(version);
    s.Proyecto.NombreProyecto = model::NombreDeProyecto(version.proyecto);
    s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = model::DirectorioDeProyecto(version.proyecto);
    model::leoConf(s);
    return s;
}

VersionLeida Lee(model::VersionAnterior version)
{
    VersionLeida leida{std::move(version), {}};
    model::Sentencia([&] {
        model::Siro s = ProyectoDe(leida.version);
        editor::dlgUEHsTabla tabla;
        editor::Abre(tabla, s);
        TomaTabla(tabla.MSFlexGridTablaUEHs, leida);
        TomaDibujo(s.Red, leida);
    });
    return leida;
}

Diferencias Compara(const VersionLeida& una, const VersionLeida& otra)
{
    Diferencias d;
    int cuantos[3] = {};
    ComparaComponentes(una, otra, d, cuantos);
    d.resumen = Cuenta(cuantos);
    const bool redIgual = d.filas.empty();
    std::set<std::string> nombres;
    for (const auto* version : {&una.version, &otra.version})
        for (const model::CambioArchivo& archivo : version->archivos)
            nombres.insert(archivo.ruta);
    std::string archivos;
    for (const std::string& nombre : nombres) {
        const std::string *const uno = Bytes(una.version, nombre), *const otro = Bytes(otra.version, nombre);
        if (uno != nullptr && otro != nullptr && *uno == *otro) continue;
        if (EsDeLaRed(nombre) && !redIgual) continue;  // told by its components
        archivos += (archivos.empty() ? "" : ", ") + nombre;
        if (uno == nullptr || otro == nullptr)
            d.filas.push_back({nombre, "Archivo", uno == nullptr ? "no está" : "está",
                               otro == nullptr ? "no está" : "está"});
        else
            ComparaRenglones(nombre, *uno, *otro, d.filas);
    }
    if (!archivos.empty()) d.resumen += (d.resumen.empty() ? "" : "; ") + archivos;
    if (d.resumen.empty()) d.resumen = "Igual";
    return d;
}

}  // namespace shell
