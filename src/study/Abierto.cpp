// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Abierto.h"

#include <algorithm>
#include <utility>

#include "model/Avisos.h"
#include "model/Companeros.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Huellas.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "study/ArchivoEstudio.h"

namespace study {
namespace {

using Clase = EstadoDeArchivo::Clase;

constexpr std::size_t MaximoDePasos = 200;
constexpr std::size_t MaximoDeValoresEnPasos = 4'000'000;  // of observations, in all of them
constexpr double EsperaDeIntento = 5;                      // [s]

constexpr std::string_view Titulo = "Estudio";
constexpr std::string_view SinProyecto =
    "No hay un proyecto guardado: el estudio queda en la memoria hasta que lo haya.";
constexpr std::string_view SeReintenta =
    " Los cambios están en la memoria; se vuelve a intentar con cada cambio y cada pocos segundos.";
constexpr std::string_view Negado =
    " no se guardó, a su pedido. Los cambios están en la memoria; puede guardarlos cuando quiera.";
constexpr std::string_view SeDeja =
    " El archivo se deja como está, y los cambios que haga quedan en la memoria hasta que lo aparte.";

constexpr std::string_view SeriesSeDejan =
    "Esos archivos se dejan como están, y las observaciones quedan sin valores hasta que los vuelva a dar.";

constexpr std::string_view SePierde =
    " no se pudieron guardar en la carpeta de su proyecto. Elija otro lugar para guardarlos; si cancela, se "
    "pierden.";

/// The file of the project in hand, which has one as soon as it is stored itself.
std::string RutaEnMano(const model::Siro& s)
{
    const auto& p = s.Proyecto;
    if (p.NombreProyecto.empty() || p.DirProyecto.empty() || p.ProyectoNuevo) return {};
    return model::Ruta(p.DirProyecto, p.NombreProyecto + std::string(model::TerminacionEstudio));
}

/// A project is in hand from the program's start on, and opened later; only then there is something to tell.
bool EstaAbierto(const model::Siro& s)
{
    const auto& p = s.Proyecto;
    return !s.Vigilancia.activa ||
           s.Vigilancia.reclamado == model::Ruta(p.DirProyecto, model::ArchivoConf(p.NombreProyecto));
}

std::string MotivoDe(const model::Falla& falla)
{
    std::string motivo(model::DescripcionFalla(falla.numero));
    motivo += '.';
    if (!falla.nota.empty()) motivo.append(" ").append(falla.nota);
    return motivo;
}

std::string_view NombreDe(std::string_view ruta)
{
    const std::size_t separador = ruta.rfind(model::Separador);
    return separador == std::string_view::npos ? ruta : ruta.substr(separador + 1);
}

}  // namespace

// --- the value ---

bool Abierto::Cambia(std::string leyenda, Estudio nuevo)
{
    NombraSus(nuevo.ajuste);
    if (nuevo == valor) return false;
    if (const std::string reparo = ReparoDe(nuevo); !reparo.empty()) {
        model::Advierte(s, "El cambio no se hizo: " + reparo + ".", Titulo);
        return false;
    }
    hechos.push_back({std::move(leyenda), std::exchange(valor, std::move(nuevo))});
    deshechos.clear();
    Recorta();
    pendiente = true;
    Escribe();
    AvisaCambio();
    return true;
}

bool Abierto::CambiaTaller(std::string leyenda, Taller nuevo)
{
    Estudio estudio = valor;
    estudio.taller = std::move(nuevo);
    return Cambia(std::move(leyenda), std::move(estudio));
}

bool Abierto::CambiaAjuste(std::string leyenda, Ajuste nuevo)
{
    Estudio estudio = valor;
    estudio.ajuste = std::move(nuevo);
    return Cambia(std::move(leyenda), std::move(estudio));
}

/// Forgets the oldest steps: each is a whole value.
void Abierto::Recorta()
{
    std::size_t valores = 0, quedan = 0;
    for (auto paso = hechos.rbegin(); paso != hechos.rend() && quedan < MaximoDePasos; ++paso, ++quedan) {
        valores += CuentaDeValores(paso->otro.ajuste);
        if (quedan > 0 && valores > MaximoDeValoresEnPasos) break;
    }
    hechos.erase(hechos.begin(), hechos.end() - static_cast<std::ptrdiff_t>(quedan));
}

bool Abierto::Salta(std::vector<Paso>& desde, std::vector<Paso>& hacia)
{
    if (desde.empty()) return false;
    Paso paso = std::move(desde.back());
    desde.pop_back();
    std::swap(paso.otro, valor);
    hacia.push_back(std::move(paso));
    pendiente = true;
    Escribe();
    AvisaCambio();
    return true;
}

bool Abierto::Deshace()
{
    return Salta(hechos, deshechos);
}

bool Abierto::Rehace()
{
    return Salta(deshechos, hechos);
}

std::string Abierto::PorDeshacer() const
{
    return hechos.empty() ? std::string{} : hechos.back().leyenda;
}

std::string Abierto::PorRehacer() const
{
    return deshechos.empty() ? std::string{} : deshechos.back().leyenda;
}

void Abierto::AlCambiar(std::function<void()> rutina)
{
    oyentes.push_back(std::move(rutina));
}

void Abierto::AvisaCambio() const
{
    for (const auto& rutina : oyentes)
        rutina();
}

// --- its file ---

bool Abierto::Reintenta()
{
    negado = false;
    dicho = dicho && archivo.clase == Clase::Danado;
    if (pendiente) Escribe();
    AvisaCambio();
    return !pendiente;
}

bool Abierto::ApartaDanado()
{
    if (archivo.clase != Clase::Danado) return false;
    const std::string nombre(NombreDe(ruta)), carpeta = ruta.substr(0, ruta.size() - nombre.size() - 1);
    bool queda = false;
    model::Sentencia([&] { model::ApartaCompanero(s, carpeta, nombre); },
                     [&](const model::Falla& falla) {
                         queda = falla.numero == model::NumeroFalla::AccesoRuta;
                         if (queda)
                             model::Advierte(s, "No se pudo apartar " + nombre + ": " + MotivoDe(falla),
                                             Titulo);
                     });
    if (queda) return false;
    enDisco = false;
    archivo = {Clase::Guardado, {}};
    Escribe();
    AvisaCambio();
    return true;
}

/// Names for files of series: none that something else bears on the disk.
void Abierto::NombraSus(Ajuste& ajuste) const
{
    const std::string base = BaseDeSeries(ruta);
    const auto libre = [&](const std::string& nombre) {
        if (ruta.empty() || series.contains(nombre)) return true;
        bool esta = true;
        model::Sentencia(
            [&] { static_cast<void>(s.Disco.Lee(RutaDeSerie(base, nombre))); },
            [&](const model::Falla& falla) { esta = falla.numero == model::NumeroFalla::AccesoRuta; });
        return !esta;
    };
    NombraSeries(ajuste, danadas, libre);
}

/// Writes the value into a file of its project, or of any other place. Returns whether it is written; where
/// not, the state says why.
bool Abierto::Reemplaza(const std::string& enRuta)
{
    const std::string base = BaseDeSeries(enRuta);
    return model::Sentencia(
        [&] {
            std::vector<model::CambioArchivo> cambios{{enRuta, EscribeEstudio(valor)}};
            for (auto& [nombre, texto] : EscribeSeries(valor.ajuste))
                if (const auto conocida = series.find(nombre);
                    enRuta != ruta || conocida == series.end() || conocida->second != texto)
                    cambios.push_back({RutaDeSerie(base, nombre), texto});
            s.Disco.Reemplaza(cambios);
        },
        [&](const model::Falla& falla) {
            archivo = {Clase::SinGuardar, std::string(NombreDe(enRuta)) + " no se pudo guardar: " +
                                              MotivoDe(falla) + std::string(SeReintenta)};
        });
}

/// Writes what has changed, and takes away the files of observations that are gone.
bool Abierto::EscribeTodo()
{
    const std::string base = BaseDeSeries(ruta);
    std::map<std::string, std::string> nuevas = EscribeSeries(valor.ajuste), sobran;
    std::vector<std::string> puestas{ruta};
    for (const auto& [nombre, texto] : nuevas)
        if (const auto conocida = series.find(nombre); conocida == series.end() || conocida->second != texto)
            puestas.push_back(RutaDeSerie(base, nombre));
    std::vector<std::string> tocadas = puestas;
    for (const auto& [nombre, texto] : series)
        if (!nuevas.contains(nombre) && !DanadaDe(danadas, nombre)) {
            tocadas.push_back(RutaDeSerie(base, nombre));
            sobran.emplace(nombre, texto);
        }
    negado = !model::PuedeGuardar(s, tocadas);
    if (negado) archivo = {Clase::SinGuardar, std::string(NombreDe(ruta)) + std::string(Negado)};
    if (negado || !Reemplaza(ruta)) return false;
    for (const std::string& puesta : puestas)
        model::AnotaGuardado(s, puesta);
    series = std::move(nuevas);
    for (const auto& sobra : sobran)  // one that stays is tried again
        model::Sentencia([&] { s.Disco.Borra(RutaDeSerie(base, sobra.first)); },
                         [&](const model::Falla& falla) {
                             if (falla.numero == model::NumeroFalla::AccesoRuta) series.insert(sobra);
                         });
    return true;
}

void Abierto::Escribe()
{
    if (archivo.clase == Clase::Danado || negado) return;
    if (ruta.empty()) {
        archivo = {Clase::SinProyecto, pendiente ? std::string(SinProyecto) : std::string{}};
        return;
    }
    if (pendiente) {
        ocupado = true;
        intento = s.Anfitrion.Reloj();
        const bool escrito = EscribeTodo();
        ocupado = false;
        if (!escrito) return;
        enDisco = true;
        pendiente = dicho = false;
    }
    archivo = {Clase::Guardado, {}};
}

bool Abierto::HaDeDecir() const
{
    return (HaDeDecirArchivo() || (!danadas.empty() && !seriesDichas)) && EstaAbierto(s);
}

bool Abierto::HaDeDecirArchivo() const
{
    const bool hay = archivo.clase == Clase::SinGuardar || archivo.clase == Clase::Danado;
    return hay && !dicho && !negado;
}

/// What is wrong with the files, in a box each, once.
void Abierto::Dice()
{
    if (!HaDeDecir()) return;
    ocupado = true;
    if (HaDeDecirArchivo()) {
        dicho = true;
        model::Advierte(s, archivo.texto, Titulo);
    }
    if (!danadas.empty() && !std::exchange(seriesDichas, true)) {
        std::string texto;
        for (const SerieDanada& danada : danadas)
            texto.append(danada.texto) += ' ';
        model::Advierte(s, texto + std::string(SeriesSeDejan), Titulo);
    }
    ocupado = false;
}

// --- the project in hand ---

/// Returns whether there is such a file.
bool Abierto::Lee(const std::string& deRuta, Estudio& estudio, EstadoDeArchivo& estado)
{
    if (deRuta.empty()) return false;
    estado.clase = Clase::Guardado;
    const auto noSirve = [&](const std::string& motivo) {
        estado = {Clase::Danado, "El estudio " + std::string(NombreDe(deRuta)) + " no se puede leer. " +
                                     motivo + std::string(SeDeja)};
    };
    bool hay = true;
    model::Sentencia(
        [&] {
            LecturaDeEstudio lectura = LeeEstudio(model::LeeVigilado(s, deRuta));
            estudio = std::move(lectura.estudio);
            if (!lectura.motivo.empty())
                noSirve("Renglón " + std::to_string(lectura.renglon) + ": " + lectura.motivo + ".");
        },
        [&](const model::Falla& falla) {
            hay = falla.numero == model::NumeroFalla::AccesoRuta;
            if (hay) noSirve(MotivoDe(falla));
        });
    return hay;
}

/// The values of the observations that the study in hand names, each in its file.
void Abierto::LeeSusSeries()
{
    danadas = LeeSeries(valor.ajuste, BaseDeSeries(ruta),
                        [this](const std::string& deRuta) { return model::LeeVigilado(s, deRuta); });
    series = EscribeSeries(valor.ajuste);
    seriesDichas = false;
}

void Abierto::Olvida()
{
    valor = {};
    series.clear();
    danadas.clear();
    hechos.clear();
    deshechos.clear();
    pendiente = enDisco = negado = dicho = false;
    archivo = {ruta.empty() ? Clase::SinProyecto : Clase::Guardado, {}};
}

/// What was done without a project goes with the user into one that has no study yet.
void Abierto::PasaA(std::string nueva)
{
    Estudio estudio;
    EstadoDeArchivo estado;
    const bool hay = Lee(nueva, estudio, estado), trae = ruta.empty() && !hay;
    if (!trae) Deja();
    ruta = std::move(nueva);
    if (!trae) {
        Olvida();
        valor = std::move(estudio);
        LeeSusSeries();
    } else {
        NombraSus(valor.ajuste);
    }
    enDisco = hay;
    archivo = std::move(estado);
    Escribe();
}

void Abierto::Deja()
{
    if (!pendiente) return;
    const bool seIntenta = archivo.clase == Clase::SinGuardar && !negado;
    if (!seIntenta || !Reemplaza(ruta)) OfreceOtroLugar();
}

void Abierto::OfreceOtroLugar()
{
    ocupado = true;
    const std::string nombre = ruta.empty() ? "Estudio.json" : std::string(NombreDe(ruta));
    model::Advierte(s, "Los últimos cambios del estudio " + nombre + std::string(SePierde), Titulo);
    for (bool escrito = false; !escrito;) {
        const std::string otra =
            s.Anfitrion.EligeDestino("Guardar el estudio en otro lugar", "Estudio (*.json) |*.json", nombre);
        escrito = otra.empty() || Reemplaza(otra);
        if (!escrito) model::Advierte(s, archivo.texto, Titulo);
    }
    ocupado = false;
}

bool Abierto::HaDeSeguir() const
{
    return !ocupado && (RutaEnMano(s) != ruta || EsHora() || HaDeDecir());
}

void Abierto::Sigue()
{
    if (ocupado) return;
    const EstadoDeArchivo antes = archivo;
    if (std::string ahora = RutaEnMano(s); ahora != ruta) {
        PasaA(std::move(ahora));
        AvisaCambio();
    } else if (EsHora()) {
        Escribe();
        if (archivo != antes) AvisaCambio();
    }
    Dice();
}

bool Abierto::EsHora() const
{
    return archivo.clase == Clase::SinGuardar && !negado && s.Anfitrion.Reloj() >= intento + EsperaDeIntento;
}

void Abierto::TrasGuardarComo()
{
    std::string nueva = RutaEnMano(s);
    if (!EstaAbierto(s) || archivo.clase == Clase::Danado || nueva.empty() || nueva == ruta) return Sigue();
    ruta = std::move(nueva);
    model::AnotaGuardado(s, ruta);  // its files have been copied
    for (const auto& [nombre, texto] : series)
        model::AnotaGuardado(s, RutaDeSerie(BaseDeSeries(ruta), nombre));
    negado = dicho = false;
    Escribe();
    AvisaCambio();
}

void Abierto::TrasEliminar()
{
    if (!enDisco) return;
    const auto falta = [&](const model::Falla& falla) {
        if (falla.numero == model::NumeroFalla::AccesoRuta) return;
        Olvida();
        AvisaCambio();
    };
    model::Sentencia([&] { static_cast<void>(s.Disco.Lee(ruta)); }, falta);
}

void Abierto::TrasTraer()
{
    Olvida();
    PasaA(std::exchange(ruta, {}));
    AvisaCambio();
}

void Abierto::Cierra()
{
    Deja();
}

}  // namespace study
