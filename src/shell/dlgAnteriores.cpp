// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgAnteriores.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "model/Avisos.h"
#include "model/Camino.h"
#include "model/Candado.h"
#include "model/Configuracion.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "model/VidaProyecto.h"

namespace shell {

using model::Siro;

namespace {

constexpr std::string_view SinVersiones =
    "Todavía no hay versiones anteriores de este proyecto: queda una cada vez que un guardado lo cambia.";
constexpr std::string_view Danada =
    "El archivo de esta versión está dañado o no se puede leer. Se lo deja como está: ";
constexpr std::string_view FiltroConf = "Archivos de Proyecto (*_Conf.vlm) |*_Conf.vlm";

std::string DosCifras(int n)
{
    return (n < 10 ? "0" : "") + std::to_string(n);
}

std::string EnMano(const Siro& s)
{
    if (s.Proyecto.NombreProyecto.empty()) return {};
    return model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto);
}

/// Runs what writes files; a fault is told with its reason. Returns whether there was none.
template <typename Cuerpo>
bool Escribe(const Siro& s, Cuerpo&& cuerpo)
{
    return model::Sentencia(std::forward<Cuerpo>(cuerpo), [&](const model::Falla& falla) {
        std::string texto = model::TextoFallaArchivo(falla);
        if (!falla.nota.empty()) texto.append("\r\n").append(falla.nota);
        model::Advierte(s, texto, TituloDlgAnteriores);
    });
}

/// The project as it is; without a file where it is gone.
VersionLeida LaDeAhora(const model::Anteriores& a, const std::string& proyecto)
{
    model::VersionAnterior presente{proyecto, {}};
    model::Sentencia([&] { presente = model::VersionPresente(a.disco, proyecto); });
    return Lee(std::move(presente));
}

/// What the version in a place came after: the next older one that can be read.
const VersionLeida* LaQuePrecede(const dlgAnteriores& f, std::size_t lugar)
{
    for (std::size_t i = lugar + 1; i < f.leidas.size(); ++i)
        if (f.leidas[i]) return &*f.leidas[i];
    return nullptr;
}

void LlenaVersiones(dlgAnteriores& f)
{
    forms::Planilla planilla{{},
                             {{"Estuvo hasta", true},
                              {"Lo de ahora, frente a ella", true},
                              {"Ella, frente a la que la precede", true}},
                             {}};
    for (std::size_t i = 0; i < f.fichas.size(); ++i) {
        std::vector<std::string> fila{Momento(f.fichas[i].momento), "Dañada", ""};
        if (f.leidas[i]) {
            fila[1] = f.ahora.version.archivos.empty() ? "El proyecto no está"
                                                       : Compara(*f.leidas[i], f.ahora).resumen;
            const VersionLeida* const previa = LaQuePrecede(f, i);
            fila[2] = previa == nullptr ? "Es la primera" : Compara(*previa, *f.leidas[i]).resumen;
        }
        planilla.filas.push_back(std::move(fila));
    }
    forms::PonFilas(f.tblVersiones, std::move(planilla));
}

void LlenaDiferencias(dlgAnteriores& f)
{
    const VersionLeida* const elegida = f.Elegida();
    const bool conAhora = f.cmbContra.indice == 0;
    const VersionLeida* const otra = conAhora ? &f.ahora : LaQuePrecede(f, f.elegida);
    forms::Planilla planilla{{},
                             {{"Dónde", true},
                              {"Qué", true},
                              {"En esta versión", true},
                              {conAhora ? "Ahora" : "En la que la precede", true}},
                             {}};
    if (elegida != nullptr && otra != nullptr)
        for (Diferencia& d : Compara(*elegida, *otra).filas)
            planilla.filas.push_back(
                {std::move(d.donde), std::move(d.que), std::move(d.uno), std::move(d.otro)});
    forms::PonFilas(f.tblDiferencias, std::move(planilla));
    f.lblQueHacer.clear();
    if (f.fichas.empty())
        f.lblQueHacer = SinVersiones;
    else if (elegida == nullptr && f.elegida < f.fichas.size())
        f.lblQueHacer = std::string(Danada) + f.fichas[f.elegida].Archivo();
}

void Llena(dlgAnteriores& f, const model::Anteriores& a)
{
    f.fichas =
        f.Proyecto().empty() ? std::vector<model::FichaDeVersion>{} : model::VersionesDe(a, f.Proyecto());
    f.leidas.assign(f.fichas.size(), std::nullopt);
    for (std::size_t i = 0; i < f.fichas.size(); ++i)
        model::Sentencia([&] { f.leidas[i] = Lee(model::LeeVersion(a, f.fichas[i])); });
    f.ahora = LaDeAhora(a, f.Proyecto());
    LlenaVersiones(f);
    Elige(f, 0);
}

}  // namespace

std::string Momento(std::int64_t segundos)
{
    constexpr int PrimerAnio = 1900;
    const std::tm hora = model::HoraLocal(static_cast<std::time_t>(segundos));
    return DosCifras(hora.tm_mday) + '/' + DosCifras(hora.tm_mon + 1) + '/' +
           std::to_string(hora.tm_year + PrimerAnio) + ' ' + DosCifras(hora.tm_hour) + ':' +
           DosCifras(hora.tm_min);
}

void Abre(dlgAnteriores& f, const Siro& s, const model::Anteriores& anteriores)
{
    f = {.abierta = true};
    f.cmbProyecto.items = model::ProyectosConVersiones(anteriores);
    const std::string presente = EnMano(s);
    auto& items = f.cmbProyecto.items;
    if (!presente.empty() && std::find(items.begin(), items.end(), presente) == items.end())
        items.insert(items.begin(), presente);
    f.cmbProyecto.indice = items.empty() ? -1 : 0;
    f.cmbProyecto.Elige(presente);
    if (f.cmbProyecto.indice < 0 && !items.empty()) f.cmbProyecto.indice = 0;
    Llena(f, anteriores);
}

void cmbProyecto_Click(dlgAnteriores& f, const model::Anteriores& anteriores)
{
    Llena(f, anteriores);
}

void Elige(dlgAnteriores& f, std::size_t cual)
{
    f.elegida = std::min(cual, f.fichas.size());
    LlenaDiferencias(f);
}

bool cmdTraer(dlgAnteriores& f, Siro& s, const model::Anteriores& anteriores)
{
    if (f.Elegida() == nullptr) return false;
    const model::VersionAnterior version = f.Elegida()->version;
    const std::string pregunta = "Los archivos del proyecto " + version.proyecto +
                                 " se reemplazan por los que tenía hasta el " +
                                 Momento(f.fichas[f.elegida].momento) +
                                 ". Los de ahora quedan como una versión más, que también se puede traer de "
                                 "vuelta. ¿Desea traer esta versión ?";
    if (!model::Consulta(s, pregunta, TituloDlgAnteriores)) return false;
    const bool enMano = version.proyecto == EnMano(s);
    if (enMano && !s.Anfitrion.ResguardaDibujo(model::Riesgo::OtroProyecto)) return false;
    const std::string directorio = model::DirectorioDeProyecto(version.proyecto),
                      conf = model::Ruta(directorio,
                                         model::ArchivoConf(model::NombreDeProyecto(version.proyecto)));
    // What another program has left in the files isn't asked about: it is kept with them.
    if (enMano && !model::PuedeSerDeDos(s)) return false;
    if (!Escribe(s, [&] { model::TraeDeVuelta(anteriores, version); })) return false;
    if (enMano) model::AbreProyectoDe(s, conf);
    Llena(f, anteriores);
    return true;
}

bool cmdAparte(dlgAnteriores& f, Siro& s, const model::Anteriores& anteriores)
{
    if (f.Elegida() == nullptr) return false;
    const model::VersionAnterior version = f.Elegida()->version;
    const std::string archivo = model::ArchivoConf(model::NombreDeProyecto(version.proyecto));
    const std::string destino = s.Anfitrion.EligeDestino("Carpeta para esta versión", FiltroConf, archivo);
    if (destino.empty()) return false;
    std::string conf;
    const std::string directorio = model::DirectorioDe(destino);
    if (!Escribe(s, [&] { conf = model::EscribeAparte(anteriores.disco, version, directorio); }))
        return false;
    if (conf.empty()) {
        model::Advierte(s,
                        "La carpeta " + directorio +
                            " ya tiene archivos con los nombres de este proyecto. Elija otra: no se "
                            "escribió ninguno.",
                        TituloDlgAnteriores);
        return false;
    }
    model::AbreProyectoDe(s, conf);
    f.abierta = false;
    return true;
}

forms::Planilla ComoPlanilla(const dlgAnteriores& f)
{
    forms::Planilla planilla = forms::ALaVista(f.tblDiferencias);
    if (f.elegida < f.fichas.size())
        planilla.titulos = {"Proyecto " + f.Proyecto() + ", versión hasta el " +
                            Momento(f.fichas[f.elegida].momento) + ", frente a " + f.cmbContra.Elegido()};
    return planilla;
}

void OKButton(dlgAnteriores& f)
{
    f.abierta = false;
}

}  // namespace shell
