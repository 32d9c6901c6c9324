// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Corridas_ventana.h"

#include <QObject>
#include <deque>
#include <new>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "calibration/taller/dlgAjuste.h"
#include "checks/Sello.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "runs/CorridaGuardada.h"
#include "runs/LibroDeCorridas.h"
#include "runs/Testigo.h"
#include "runs/dlgCorridas.h"
#include "runs/dlgCorridas_ventana.h"
#include "study/Vigilada_ventana.h"

namespace shell {

namespace {

constexpr std::uint64_t Mebibyte = std::uint64_t{1} << 20;

/// One write after another on a thread of its own; what is asked for is written even as the program ends.
class Escritor : public QObject {
  public:
    /// Returns why it couldn't, a sentence; empty: it did.
    using Trabajo = std::function<std::string()>;

    Escritor() = default;
    ~Escritor() override
    {
        if (hilo.joinable()) hilo.join();
        for (const Trabajo& trabajo : enEspera)
            trabajo();
    }
    void Pide(Trabajo trabajo)
    {
        enEspera.push_back(std::move(trabajo));
        if (!hilo.joinable()) Empieza();
    }
    std::function<void(const std::string& motivo)> AlTerminar = [](const std::string&) {};

  private:
    void Empieza()
    {
        hilo = std::thread([this, trabajo = std::move(enEspera.front())] {
            std::string motivo = trabajo();
            QMetaObject::invokeMethod(
                this, [this, motivo = std::move(motivo)] { Termina(motivo); }, Qt::QueuedConnection);
        });
        enEspera.pop_front();
    }
    void Termina(const std::string& motivo)
    {
        hilo.join();
        if (!enEspera.empty()) Empieza();
        AlTerminar(motivo);
    }
    std::deque<Trabajo> enEspera{};
    std::thread hilo{};
};

std::string Escribe(const runs::Libro& libro, std::uint64_t tope,
                    const std::function<runs::CorridaPorGuardar()>& corrida)
{
    std::string motivo;
    try {
        model::Sentencia([&] { runs::HaceLugar(libro, tope, runs::Guarda(libro, corrida())); },
                         [&](const model::Falla& falla) {
                             motivo = "La corrida no se guardó en " + libro.Carpeta() + ": " +
                                      (falla.nota.empty()
                                           ? std::string(model::DescripcionFalla(falla.numero)) + "."
                                           : std::string(falla.nota));
                         });
    } catch (const std::bad_alloc&) {
        motivo = "La corrida no se guardó: falta memoria.";
    }
    return motivo;
}

bool HayResultados(const checks::UltimaCorrida& u)
{
    if (u.esSerie) return u.r().NroComponentes > 0 && u.serie.NroSeriePDR > 0;
    return u.calculo.fin == engine::FinCalculo::Completo && u.corrido && u.corrido->TieneResultados();
}

/// The files of components as a save of what the editor holds would leave them.
void PonDibujo(runs::ArchivosLeidos& archivos, const model::Siro& proyecto)
{
    model::Siro aparte = proyecto;
    aparte.Disco = runs::DiscoDe({}, proyecto.Proyecto.DirProyecto, proyecto.Proyecto.DirTrabajo);
    std::vector<model::CambioArchivo> escritos;
    if (!model::EscribeRed(aparte, escritos)) return;
    for (model::CambioArchivo& archivo : escritos)
        archivos[archivo.ruta] = std::make_shared<const std::string>(std::move(archivo.bytes));
}

/// What a run of its own left becomes what is in memory; the network has gone there already.
void PonResultados(model::Siro& s, const model::Siro& de)
{
    s.Tormenta = de.Tormenta;
    s.Pasos = de.Pasos;
    s.Serie = de.Serie;
    s.Hietograma = de.Hietograma;
    s.Resultados = de.Resultados;
    s.Control.TextoPizarra = de.Control.TextoPizarra;
}

}  // namespace

struct Corridas::Partes {
    Partes(Corridas& suya, forms::Entorno& entorno) : c(suya), ventana(entorno, registro)
    {
        entorno.s.Disco = testigo.Sobre(entorno.s.Disco);
    }
    void Trae(const runs::Libro& libro, const std::string& archivo);
    void Pon(const runs::Rehecha& rehecha);
    void AbreAparte(const runs::Libro& libro, const std::string& archivo, const std::string& conf);

    Corridas& c;
    runs::Testigo testigo{};
    runs::dlgCorridas registro{};
    runs::dlgCorridas_ventana ventana;
    Escritor escritor{};
    study::Vigilada<runs::Rehecha> rehace{[this](auto& mirada) {
        if (mirada.nuevo) c.entorno.Atiende([&] { Pon(*mirada.nuevo); });
        if (mirada.terminada) ventana.Refresca();
    }};
};

Corridas::Corridas(forms::Entorno& alrededor) : entorno(alrededor)
{
    partes = std::make_unique<Partes>(*this, entorno);
    Partes& p = *partes;
    p.ventana.Trae = [&p](const runs::Libro& libro, const std::string& archivo) { p.Trae(libro, archivo); };
    p.ventana.TrasAparte = [&p](const runs::Libro& libro, const std::string& archivo,
                                const std::string& conf) { p.AbreAparte(libro, archivo, conf); };
    p.ventana.Compara = [this](const runs::Libro&, const std::vector<std::string>& archivos) {
        std::vector<std::pair<std::string, std::string>> corridas;
        for (const std::string& archivo : archivos)
            for (const runs::RenglonDeLibro& r : partes->registro.renglones)
                if (r.archivo == archivo)
                    corridas.emplace_back(archivo, r.ficha.nombre.empty() ? r.ficha.cuando : r.ficha.nombre);
        Compara(corridas);
    };
    p.escritor.AlTerminar = [this](const std::string& motivo) {
        if (std::exchange(fallo, motivo) != motivo) AlCambiarFallo();
        partes->ventana.TrasGuardar(motivo);
    };
}

Corridas::~Corridas() = default;

void Corridas::Abre()
{
    partes->ventana.Abre();
}

runs::dlgCorridas_ventana* Corridas::Ventana()
{
    return &partes->ventana;
}

std::function<void(const Corridas::Corrida&)> Corridas::Prepara()
{
    const model::Siro& s = entorno.s;
    if (runs::TopeDeCorridas(entorno) == 0) return {};
    runs::Circunstancias suyas{.dirProyecto = s.Proyecto.DirProyecto,
                               .proyecto = s.Proyecto.NombreProyecto,
                               .dirTrabajo = s.Proyecto.DirTrabajo,
                               .quien = s.Configuracion.Operador,
                               .segundos = partes->testigo.Segundos(),
                               .archivos = partes->testigo.Leidos()};
    return [this, suyas = std::move(suyas)](const Corrida& u) {
        if (!HayResultados(*u)) return;
        const runs::Libro libro{.dirProyecto = suyas.dirProyecto, .proyecto = suyas.proyecto};
        partes->escritor.Pide(
            [libro, u, suyas, tope = static_cast<std::uint64_t>(runs::TopeDeCorridas(entorno)) * Mebibyte] {
                return Escribe(libro, tope, [&] { return runs::PorGuardar(*u, suyas); });
            });
    };
}

void Corridas::Guarda(const calibration::CorridasHechas& hechas, const model::Siro& proyecto,
                      const std::optional<model::Colecciones>& dibujo)
{
    const std::uint64_t tope = static_cast<std::uint64_t>(runs::TopeDeCorridas(entorno)) * Mebibyte;
    const model::Proyecto& p = proyecto.Proyecto;
    if (tope == 0 || p.NombreProyecto.empty()) return;
    runs::Circunstancias suyas{.dirProyecto = p.DirProyecto,
                               .proyecto = p.NombreProyecto,
                               .dirTrabajo = p.DirTrabajo,
                               .quien = proyecto.Configuracion.Operador,
                               .segundos = hechas.segundos,
                               .archivos = partes->testigo.Leidos()};
    if (dibujo) PonDibujo(suyas.archivos, proyecto);
    partes->escritor.Pide([libro = runs::Libro{.dirProyecto = p.DirProyecto, .proyecto = p.NombreProyecto},
                           tope, suyas = std::move(suyas), hechas, tormenta = proyecto.Tormenta,
                           pasos = proyecto.Pasos, enPalabras = checks::TormentaEnMano(proyecto)] {
        return Escribe(libro, tope, [&] {
            return runs::PorGuardar({.clase = hechas.clase,
                                     .ajuste = hechas.ajuste,
                                     .json = hechas.json(),
                                     .resumen = hechas.resumen,
                                     .enPalabras = enPalabras,
                                     .tormenta = tormenta,
                                     .pasos = pasos},
                                    suyas);
        });
    });
}

/// A series may take a while: it is run beside the windows.
void Corridas::Partes::Trae(const runs::Libro& libro, const std::string& archivo)
{
    if (c.DibujoSinGuardar() != nullptr &&
        !c.entorno.s.Anfitrion.Confirma(
            {"El dibujo tiene cambios sin guardar. La red de la corrida queda en el editor como un paso más, "
             "que se puede deshacer allí. ¿Traerla?",
             std::string(runs::TituloDlgCorridas), model::Icono::Pregunta}))
        return;
    registro.lblEstado = "Se está corriendo de nuevo...";
    rehace.Empieza([libro, archivo](const study::Avance&, const auto& entrega) {
        try {
            entrega(runs::Rehace(libro, archivo));
        } catch (const std::bad_alloc&) {
            entrega(runs::Rehecha{.reparo = "Falta memoria para correrla de nuevo."});
        }
    });
}

void Corridas::Partes::Pon(const runs::Rehecha& rehecha)
{
    registro.lblEstado = rehecha.corrida == nullptr ? rehecha.reparo : rehecha.aviso;
    if (rehecha.corrida == nullptr)
        return model::Advierte(c.entorno.s, rehecha.reparo, std::string(runs::TituloDlgCorridas));
    const bool puesta = c.Aplica([&](model::Red& red, model::Tormenta&) { red = rehecha.estado->Red; });
    if (!puesta || c.entorno.Terminando()) return;
    PonResultados(c.entorno.s, *rehecha.estado);
    if (!rehecha.aviso.empty())
        model::Advierte(c.entorno.s, rehecha.aviso, std::string(runs::TituloDlgCorridas));
    c.MuestraTraida(rehecha.corrida);
}

void Corridas::Partes::AbreAparte(const runs::Libro& libro, const std::string& archivo,
                                  const std::string& conf)
{
    model::Siro& s = c.entorno.s;
    if (!s.Anfitrion.Pregunta({"El proyecto se escribió: " + conf +
                                   ". ¿Desea abrirlo ahora, con la tormenta y los pasos de la corrida?",
                               std::string(runs::TituloDlgCorridas), model::Icono::Pregunta}))
        return;
    model::AbreProyectoDe(s, conf);
    if (model::Ruta(s.Proyecto.DirProyecto, model::ArchivoConf(s.Proyecto.NombreProyecto)) == conf)
        model::Sentencia([&] { runs::PonLluvia(s, runs::PiezasDe(libro, archivo)); });
}

}  // namespace shell
