// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoria/Programa_ventana.h"

#include <QApplication>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include "batch/CorridaLote.h"
#include "checks/Verifica.h"
#include "editor/Fondo.h"
#include "editor/lienzo/Imagen_ventana.h"
#include "forms/MarcoDeImagen.h"
#include "memoria/CorreMemoria.h"
#include "memoria/OrdenMemoria.h"
#include "model/Camino.h"
#include "model/DirPropio.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "report/Entrega_ventana.h"
#include "report/Memoria.h"
#include "report/Plantilla.h"

namespace memoria {
namespace {

using report::Formato;

/// Charts are drawn with windows that nobody sees: no screen is asked for them.
class SinPantalla {
  public:
    SinPantalla()
    {
#ifndef Q_OS_WIN
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
        // What the toolkit has to say of a desktop that isn't there is of no use to anybody.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        qt.emplace(cuantas, palabras.data());
    }

  private:
    char nombre[13] = "siro-memoria";
    std::array<char*, 2> palabras{nombre, nullptr};
    int cuantas = 1;
    std::optional<QApplication> qt{};
};

/// Makes a memoria; each part says why it can't be, and returns false.
class Hacedor {
  public:
    Hacedor(Orden unaOrden, const std::string& dirEjecutable, const batch::Salidas& unasSalidas)
        : orden(std::move(unaOrden)), dir(dirEjecutable), salidas(unasSalidas)
    {
    }

    int Hace()
    {
        if (!LeeTextos()) return estado;
        estado = Corre(orden, dir, salidas, s, datos);
        if (estado != batch::EstadoCompleto) return estado;
        estado = batch::EstadoInterrumpido;
        if (!HayComponentes()) return estado;
        if (Incluye("verificacion")) datos.casos = checks::Verifica();
        datos.version = SIRO_VERSION;
        report::Documento documento = report::Memoria(datos, orden.eleccion, plantilla);
        for (const report::Falta& f : documento.faltas)
            Dice(salidas, (f.linea > 0 ? "plantilla, renglón " + std::to_string(f.linea) : "plantilla") +
                              ": " + f.motivo);
        return Entrega(std::move(documento)) ? batch::EstadoCompleto : batch::EstadoInterrumpido;
    }

  private:
    /// Reads a file that the command line names.
    bool Lee(const std::string& archivo, std::string& bytes)
    {
        const std::string ruta = model::RutaAbsoluta(archivo);
        if (model::Sentencia([&] { bytes = disco.Lee(ruta); })) return true;
        Dice(salidas, "no se puede leer " + ruta);
        return false;
    }

    /// Template, chapters and logo, ahead of the runs, which take longer.
    bool LeeTextos()
    {
        const std::string& trabajo = orden.tormenta.trabajo;
        const std::string dirTrabajo =
            trabajo.empty() ? model::DirTrabajoDe(dir) : model::RutaAbsoluta(trabajo);
        if (!orden.plantilla.empty()) {
            if (!Lee(orden.plantilla, plantilla)) return false;
        } else if (!model::Sentencia([&] { plantilla = report::PlantillaEnUso(disco, dirTrabajo); })) {
            Dice(salidas, "no se puede leer la plantilla de " + dirTrabajo);
            return false;
        }
        if (!orden.logo.empty()) {
            if (!Lee(orden.logo, orden.eleccion.logo)) return false;
            if (report::TipoDeImagen(orden.eleccion.logo).empty()) {
                Dice(salidas, orden.logo + " no es una imagen PNG, JPEG ni SVG");
                return false;
            }
        }
        return EligeCapitulos();
    }

    bool EligeCapitulos()
    {
        const std::vector<report::Capitulo> hay = report::CapitulosDe(plantilla);
        for (const std::string& pedido : orden.capitulos) {
            if (std::any_of(hay.begin(), hay.end(), [&](const auto& c) { return c.clave == pedido; }))
                continue;
            std::string claves;
            for (const report::Capitulo& c : hay)
                claves += (claves.empty() ? "" : ", ") + c.clave;
            Dice(salidas, "--capitulos: la plantilla no tiene un capítulo " + pedido + "; tiene " + claves);
            estado = batch::EstadoOrdenErronea;
            return false;
        }
        for (const report::Capitulo& c : hay)
            if (!Incluye(c.clave)) orden.eleccion.sinCapitulos.push_back(c.clave);
        return true;
    }
    [[nodiscard]] bool Incluye(const std::string& clave) const
    {
        return orden.capitulos.empty() ||
               std::find(orden.capitulos.begin(), orden.capitulos.end(), clave) != orden.capitulos.end();
    }

    bool HayComponentes()
    {
        const std::vector<std::string> hay = report::ComponentesConHidrograma(datos);
        for (const std::string& pedido : orden.eleccion.componentes)
            if (datos.tormenta != nullptr && std::find(hay.begin(), hay.end(), pedido) == hay.end()) {
                Dice(salidas, "--componentes: la corrida no tiene un hidrograma de " + pedido);
                return false;
            }
        return true;
    }

    [[nodiscard]] results::FondoDeMapa Fondo() const
    {
        if (!orden.conImagen) return {};
        const QImage imagen = editor::LeeImagen(editor::RutaImagen(s)).imagen;
        if (imagen.isNull()) return {};
        return {QPixmap::fromImage(imagen), forms::MarcoDe(s.Configuracion, imagen.width(), imagen.height())};
    }

    bool Entrega(report::Documento documento)
    {
        const SinPantalla sinPantalla;
        const Formato formato = orden.formato == "pdf"   ? Formato::Pdf
                                : orden.formato == "odt" ? Formato::Odt
                                                         : Formato::Html;
        report::Entrega entrega({datos, std::move(documento), formato, orden.eleccion.decimal, Fondo()});
        while (entrega.Adelanta()) {
        }
        const std::string ruta = model::RutaAbsoluta(orden.archivo);
        if (model::Sentencia([&] { report::EscribeEntera(disco, ruta, entrega.Bytes()); })) return true;
        Dice(salidas, "no se puede escribir " + ruta);
        return false;
    }

    Orden orden;
    const std::string& dir;
    const batch::Salidas& salidas;
    model::Siro s{};
    const model::Disco disco = model::DiscoDelSistema();
    report::Datos datos{};
    std::string plantilla{};
    int estado = batch::EstadoInterrumpido;
};

}  // namespace

int Corre(const std::vector<std::string>& palabras)
{
    const batch::Salidas salidas = batch::SalidasDelProceso();
    Lectura lectura = LeeOrden(palabras);
    if (!lectura.orden && lectura.motivo.empty())
        return batch::Muestra(salidas, Uso()) ? batch::EstadoCompleto : batch::EstadoInterrumpido;
    if (!lectura.orden) {
        Dice(salidas, lectura.motivo + "\n");
        salidas.Errores(Uso());
        return batch::EstadoOrdenErronea;
    }
    const std::string propio = model::RutaDelPrograma();
    const std::string nombre = palabras.empty() ? std::string() : palabras.front();
    try {
        return Hacedor(std::move(*lectura.orden),
                       model::DirectorioDe(propio.empty() ? model::RutaAbsoluta(nombre) : propio), salidas)
            .Hace();
    } catch (const std::bad_alloc&) {
        Dice(salidas, "no hay memoria suficiente");
        return batch::EstadoInterrumpido;
    }
}

}  // namespace memoria
