// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCorridas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "model/Avisos.h"
#include "model/Companeros.h"
#include "model/Configuracion.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace runs {
namespace {

using model::Falla;
using model::NumeroATexto;
using study::Ficha;

constexpr double Mebibyte = 1024.0 * 1024.0;

constexpr forms::ReglaNumero ReglaTope{.control = "txtTope",
                                       .unidad = "MiB",
                                       .minimo = 0,
                                       .maximo = MayorTope,
                                       .mensaje =
                                           "Ingrese un número entero de MiB entre 0 y 1048576; con 0 "
                                           "no se guarda ninguna corrida.",
                                       .clase = forms::ClaseNumero::Entero};

constexpr std::string_view SinProyecto = "No hay un proyecto abierto.";
constexpr std::string_view Leyendo = "Se están leyendo las corridas guardadas...";
constexpr std::string_view SinCorridas =
    "Este proyecto no tiene corridas guardadas todavía: cada corrida de una tormenta (F5) o de una serie "
    "(F6), "
    "y cada calibración, sensibilidad o incertidumbre del taller de ajuste deja aquí su fila.";
constexpr std::string_view SinLugar = "El tope es 0: no se guarda ninguna corrida.";
constexpr std::string_view NadaSeEncuentra = "Ninguna corrida tiene esas palabras.";

// --- the table ---

std::string Redondo(double x, int decimales)
{
    const double escala = std::pow(10.0, decimales);
    return NumeroATexto(std::nearbyint(x * escala) / escala);
}

std::string EnMebibytes(std::uint64_t bytes)
{
    if (static_cast<double>(bytes) < Mebibyte / 10) return std::to_string((bytes + 1023) / 1024) + " KiB";
    return Redondo(static_cast<double>(bytes) / Mebibyte, 1) + " MiB";
}

std::string Cuenta(int cuantos, std::string_view uno, std::string_view varios)
{
    if (cuantos == 0) return {};
    return std::to_string(cuantos) + " " + std::string(cuantos == 1 ? uno : varios);
}

std::string Avisos(const Ficha& f)
{
    std::string texto;
    for (const std::string& cuenta : {Cuenta(f.errores, "error", "errores"),
                                      Cuenta(f.avisos, "aviso", "avisos"), Cuenta(f.notas, "nota", "notas")})
        if (!cuenta.empty()) texto += (texto.empty() ? "" : ", ") + cuenta;
    return texto;
}

/// The outfall with the greatest peak; none: null.
const study::PicoDeSalida* Mayor(const Ficha& f)
{
    const auto mayor = std::ranges::max_element(f.salidas, {}, &study::PicoDeSalida::caudal);
    return mayor == f.salidas.end() ? nullptr : &*mayor;
}

std::string QueSeCorrio(const RenglonDeLibro& r)
{
    if (!r.reparo.empty()) return r.reparo;
    const Ficha& f = r.ficha;
    return f.resumen.empty() || f.tormenta.empty() ? f.tormenta + f.resumen : f.resumen + " " + f.tormenta;
}

/// A column: what it says of a run.
struct Columna {
    std::string_view encabezado;
    bool deTexto;
    std::string (*celda)(const RenglonDeLibro& r);
};
// clang-format off
constexpr auto Columnas = std::to_array<Columna>({
    {"Fecha y hora", true, [](const RenglonDeLibro& r) { return r.ficha.cuando; }},
    {"Nombre", true, [](const RenglonDeLibro& r) { return r.reparo.empty() ? r.ficha.nombre : r.archivo; }},
    {"Fijada", true, [](const RenglonDeLibro& r) { return std::string(r.ficha.fijada ? "Sí" : ""); }},
    {"Clase", true, [](const RenglonDeLibro& r) { return r.ficha.clase; }},
    {"Qué se corrió", true, QueSeCorrio},
    {"Salida", true, [](const RenglonDeLibro& r) { return Mayor(r.ficha) ? Mayor(r.ficha)->componente : ""; }},
    {"Pico [m3/s]", false, [](const RenglonDeLibro& r) { return Mayor(r.ficha) ? Redondo(Mayor(r.ficha)->caudal, 3) : ""; }},
    {"A los [min]", false, [](const RenglonDeLibro& r) {
        const study::PicoDeSalida* const p = Mayor(r.ficha);
        return p != nullptr && p->minuto ? NumeroATexto(*p->minuto) : ""; }},
    {"Avisos", true, [](const RenglonDeLibro& r) { return Avisos(r.ficha); }},
    {"Tardó [s]", false, [](const RenglonDeLibro& r) { return r.reparo.empty() ? Redondo(r.ficha.segundos, 2) : ""; }},
    {"Nota", true, [](const RenglonDeLibro& r) { return r.ficha.nota; }},
    // what follows is in what is saved
    {"Tormenta del pico", true, [](const RenglonDeLibro& r) { return Mayor(r.ficha) ? Mayor(r.ficha)->tormenta : ""; }},
    {"Quién", true, [](const RenglonDeLibro& r) { return r.ficha.quien; }},
    {"Huella de las entradas", true, [](const RenglonDeLibro& r) { return r.ficha.huellaEntradas; }},
    {"Huella", true, [](const RenglonDeLibro& r) { return r.ficha.huella; }},
    {"Versión", true, [](const RenglonDeLibro& r) { return r.ficha.programa; }},
    {"Bytes", false, [](const RenglonDeLibro& r) { return std::to_string(r.bytes); }},
    {"Archivo", true, [](const RenglonDeLibro& r) { return r.archivo; }},
});
// clang-format on

/// Lower case without accents: letters of Spanish alone, whose capitals and accents stand behind 0xC3 in
/// UTF-8.
std::string Llano(std::string_view texto)
{
    constexpr std::string_view De = "\x81\x89\x8D\x93\x9A\x9C\x91\xA1\xA9\xAD\xB3\xBA\xBC\xB1",
                               A = "aeiouunaeiouun";
    std::string llano;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        char letra = texto[i];
        if (letra == '\xC3' && i + 1 < texto.size() && De.find(texto[i + 1]) != std::string_view::npos)
            letra = A[De.find(texto[++i])];
        llano += letra >= 'A' && letra <= 'Z' ? static_cast<char>(letra - 'A' + 'a') : letra;
    }
    return llano;
}

std::vector<std::string> Palabras(const std::string& texto)
{
    std::vector<std::string> palabras(1);
    for (const char letra : Llano(texto)) {
        if (letra != ' ')
            palabras.back() += letra;
        else if (!palabras.back().empty())
            palabras.emplace_back();
    }
    if (palabras.back().empty()) palabras.pop_back();
    return palabras;
}

RenglonDeLibro* Elegido(dlgCorridas& f)
{
    const auto r = std::ranges::find(f.renglones, f.elegida, &RenglonDeLibro::archivo);
    return f.elegida.empty() || r == f.renglones.end() ? nullptr : &*r;
}

void MuestraCampos(dlgCorridas& f)
{
    const RenglonDeLibro* const r = Elegido(f);
    const Ficha ficha = r != nullptr ? r->ficha : Ficha{};
    f.txtNombre = ficha.nombre;
    f.txtNota = ficha.nota;
    f.chkFijada = ficha.fijada;
}

void MuestraOcupado(dlgCorridas& f)
{
    std::uint64_t bytes = 0;
    for (const RenglonDeLibro& r : f.renglones)
        bytes += r.bytes;
    f.lblOcupado = "MiB por proyecto; este ocupa " + EnMebibytes(bytes) + " en " +
                   (f.renglones.size() == 1 ? std::string("1 corrida")
                                            : std::to_string(f.renglones.size()) + " corridas") +
                   ".";
}

void MuestraQueHacer(dlgCorridas& f)
{
    const bool nada = f.tblCorridas.mostradas.empty();
    f.lblQueHacer = !nada                  ? ""
                    : !f.libro             ? SinProyecto
                    : f.leyendo            ? Leyendo
                    : !f.renglones.empty() ? NadaSeEncuentra
                    : f.tope == 0          ? SinLugar
                                           : SinCorridas;
}

void MuestraTabla(dlgCorridas& f)
{
    forms::Planilla p;
    for (const Columna& c : Columnas)
        p.columnas.push_back({std::string(c.encabezado), c.deTexto, ""});
    for (const RenglonDeLibro& r : f.renglones) {
        std::vector<std::string>& fila = p.filas.emplace_back();
        for (const Columna& c : Columnas)
            fila.push_back(c.celda(r));
    }
    forms::PonFilas(f.tblCorridas, std::move(p));
    txtFiltro_Cambia(f);
    MuestraOcupado(f);
}

/// Does something to a file of the ledger, and tells where it can't be done. Returns whether it was.
bool Hace(dlgCorridas& f, const std::function<void()>& cuerpo)
{
    f.lblEstado.clear();
    return model::Sentencia(cuerpo, [&](const Falla& falla) {
        f.lblEstado = falla.nota.empty() ? "No se pudo escribir en la carpeta de las corridas guardadas."
                                         : std::string(falla.nota);
    });
}

/// Changes the row in hand and its file. Returns whether it did.
bool Cambia(dlgCorridas& f, const std::function<void(Ficha&)>& cambio)
{
    RenglonDeLibro* const r = Elegido(f);
    if (r == nullptr || !r->reparo.empty()) return false;
    Ficha nueva = r->ficha;
    cambio(nueva);
    if (nueva == r->ficha) return true;
    if (!Hace(f, [&] { CambiaFicha(*f.libro, r->archivo, cambio); })) {
        MuestraCampos(f);
        return false;
    }
    r->ficha = std::move(nueva);
    MuestraTabla(f);
    return true;
}

std::string RutaDe(const dlgCorridas& f, const std::string& archivo)
{
    return model::Ruta(f.libro->Carpeta(), archivo);
}

}  // namespace

void Pon(dlgCorridas& f, std::optional<Libro> libro, std::vector<RenglonDeLibro> renglones)
{
    const bool otro = !libro || !f.libro || libro->Carpeta() != f.libro->Carpeta();
    const RenglonDeLibro* const antes = Elegido(f);
    const Ficha ficha = antes != nullptr ? antes->ficha : Ficha{};
    f.libro = std::move(libro);
    f.renglones = std::move(renglones);
    f.leyendo = false;
    if (otro) {
        f.borradas.clear();
        f.lblEstado.clear();
        f.elegida.clear();
    }
    const RenglonDeLibro* const ahora = Elegido(f);
    if (ahora == nullptr) f.elegida.clear();
    // What is being typed stays, unless another program has changed it.
    if (ahora == nullptr || ahora->ficha != ficha) MuestraCampos(f);
    MuestraTabla(f);
}

void PonLeyendo(dlgCorridas& f)
{
    f.leyendo = true;
    MuestraQueHacer(f);
}

void PonTope(dlgCorridas& f, int mebibytes)
{
    f.tope = std::clamp(mebibytes, 0, MayorTope);
    f.txtTope = std::to_string(f.tope);
    MuestraQueHacer(f);
}

void PonFallo(dlgCorridas& f, const std::string& motivo)
{
    f.lblEstado = motivo;
}

void txtFiltro_Cambia(dlgCorridas& f)
{
    const std::vector<std::string> palabras = Palabras(f.txtFiltro);
    forms::Filtra(f.tblCorridas, [&](std::size_t fila) {
        if (palabras.empty()) return true;
        std::string todo;
        for (const std::string& celda : f.tblCorridas.planilla.filas[fila])
            todo += Llano(celda) + '\n';
        return std::ranges::all_of(palabras,
                                   [&](const std::string& p) { return todo.find(p) != std::string::npos; });
    });
    MuestraQueHacer(f);
}

void AlMoverse(dlgCorridas& f, std::size_t fila)
{
    const std::string archivo = fila < f.renglones.size() ? f.renglones[fila].archivo : "";
    if (archivo == f.elegida) return;
    f.elegida = archivo;
    MuestraCampos(f);
}

void AlPulsarEncabezado(dlgCorridas& f, int columna)
{
    forms::PulsaEncabezado(f.tblCorridas, columna);
}

bool txtNombre_AlSalir(dlgCorridas& f)
{
    Cambia(f, [nombre = f.txtNombre](Ficha& ficha) { ficha.nombre = nombre; });
    return true;
}

bool txtNota_AlSalir(dlgCorridas& f)
{
    Cambia(f, [nota = f.txtNota](Ficha& ficha) { ficha.nota = nota; });
    return true;
}

void chkFijada_Click(dlgCorridas& f, bool fijada)
{
    f.chkFijada = fijada;
    Cambia(f, [fijada](Ficha& ficha) { ficha.fijada = fijada; });
}

bool txtTope_AlSalir(dlgCorridas& f, const model::Siro& s)
{
    if (!forms::AlSalir(s, ReglaTope, f.txtTope)) return false;
    PonTope(f, static_cast<int>(*forms::NumeroDeCampo(f.txtTope)));
    return true;
}

void cmdBorrar(dlgCorridas& f, const model::Siro& s, const std::vector<std::size_t>& filas)
{
    std::vector<std::string> archivos;
    bool fijadas = false;
    for (const std::size_t fila : filas) {
        if (fila >= f.renglones.size()) continue;
        archivos.push_back(f.renglones[fila].archivo);
        fijadas = fijadas || f.renglones[fila].ficha.fijada;
    }
    if (!f.libro || archivos.empty()) return;
    const std::string cuantas = archivos.size() == 1
                                    ? "la corrida elegida"
                                    : "las " + std::to_string(archivos.size()) + " corridas elegidas";
    if (!s.Anfitrion.Confirma({"¿Borrar " + cuantas + "?" + (fijadas ? " Alguna está fijada." : ""),
                               std::string(TituloDlgCorridas), model::Icono::Pregunta}))
        return;
    std::vector<CorridaBorrada> borradas;
    Hace(f, [&] {
        for (const std::string& archivo : archivos) {
            CorridaBorrada una{archivo, f.libro->disco.Lee(RutaDe(f, archivo))};
            if (!s.Anfitrion.TiraAPapelera(RutaDe(f, archivo))) f.libro->disco.Borra(RutaDe(f, archivo));
            borradas.push_back(std::move(una));
        }
    });
    std::erase_if(f.renglones, [&](const RenglonDeLibro& r) {
        return std::ranges::find(borradas, r.archivo, &CorridaBorrada::archivo) != borradas.end();
    });
    if (!borradas.empty()) f.borradas.push_back(std::move(borradas));
    f.elegida.clear();
    MuestraCampos(f);
    MuestraTabla(f);
}

void cmdDeshacer(dlgCorridas& f)
{
    if (!f.libro || f.borradas.empty()) return;
    std::vector<model::CambioArchivo> cambios;
    for (const CorridaBorrada& b : f.borradas.back())
        cambios.push_back({RutaDe(f, b.archivo), b.bytes});
    if (!Hace(f, [&] { f.libro->disco.Reemplaza(cambios); })) return;
    f.borradas.pop_back();
    Hace(f, [&] { Pon(f, f.libro, ListaDe(*f.libro)); });
}

bool HayElegida(const dlgCorridas& f)
{
    const auto r = std::ranges::find(f.renglones, f.elegida, &RenglonDeLibro::archivo);
    return r != f.renglones.end() && r->reparo.empty();
}

bool SePuedeTraer(const dlgCorridas& f)
{
    const auto r = std::ranges::find(f.renglones, f.elegida, &RenglonDeLibro::archivo);
    return r != f.renglones.end() && (r->ficha.clase == "una" || r->ficha.clase == "serie");
}

std::vector<std::string> ParaComparar(const dlgCorridas& f, const std::vector<std::size_t>& filas)
{
    std::vector<std::string> archivos;
    for (const std::size_t fila : filas)
        if (fila < f.renglones.size() &&
            (f.renglones[fila].ficha.clase == "una" || f.renglones[fila].ficha.clase == "serie"))
            archivos.push_back(f.renglones[fila].archivo);
    return archivos;
}

forms::Planilla ComoPlanilla(const dlgCorridas& f)
{
    forms::Planilla planilla = forms::ALaVista(f.tblCorridas);
    planilla.titulos = {std::string(TituloDlgCorridas)};
    if (f.libro) planilla.titulos.push_back("Proyecto: " + f.libro->proyecto);
    return planilla;
}

std::string EscribeAparte(const Libro& libro, const std::string& archivo, const std::string& carpeta,
                          const model::Siro& s)
{
    std::string conf;
    const auto niega = [&](const std::string& motivo) {
        model::Advierte(s, motivo, std::string(TituloDlgCorridas));
        return std::string();
    };
    try {
        std::vector<model::CambioArchivo> cambios;
        const std::vector<std::string> hay = s.Disco.Lista(carpeta);
        for (const study::Pieza& p : PiezasDe(libro, archivo)) {
            const std::string_view nombre = p.nombre;
            const bool deProyecto = nombre.starts_with(CarpetaDeProyecto);
            if (!deProyecto && !nombre.starts_with(CarpetaDeTrabajo)) continue;
            const std::string suyo(
                nombre.substr(deProyecto ? CarpetaDeProyecto.size() : CarpetaDeTrabajo.size()));
            if (!model::SirveDeNombre(suyo)) return niega("El archivo de la corrida está dañado.");
            if (std::ranges::binary_search(hay, suyo))
                return niega("En esa carpeta ya hay un archivo " + suyo + ": elija otra.");
            cambios.push_back({model::Ruta(carpeta, suyo), p.bytes});
            if (suyo.ends_with(model::TerminacionConf)) conf = cambios.back().ruta;
        }
        if (conf.empty()) return niega("A la corrida le falta la configuración del proyecto.");
        s.Disco.Reemplaza(cambios);
    } catch (const Falla& falla) {
        return niega(falla.nota.empty() ? "No se pudo escribir en " + carpeta + "."
                                        : std::string(falla.nota));
    }
    return conf;
}

}  // namespace runs
