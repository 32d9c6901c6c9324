// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgRecuperar.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Huellas.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace shell {

using model::Siro;

namespace {

constexpr std::size_t NombresDichos = 6;
constexpr std::string_view PreguntaDescartar =
    "Lo que no se guardó del proyecto %1 el %2 va a la papelera. ¿Desea descartarlo?";

std::string ConNombre(std::string texto, std::string_view marca, const std::string& valor)
{
    if (const std::size_t donde = texto.find(marca); donde != std::string::npos)
        texto.replace(donde, marca.size(), valor);
    return texto;
}

/// "3 nuevos (u-1, u-2, c-4)", the first ones by their names; nothing of none.
void Dice(std::string& texto, const std::vector<std::string>& nombres, std::string_view uno,
          std::string_view varios)
{
    if (nombres.empty()) return;
    if (!texto.empty()) texto += "; ";
    texto += std::to_string(nombres.size()) + ' ' + std::string(nombres.size() == 1 ? uno : varios) + " (";
    for (std::size_t i = 0; i < std::min(nombres.size(), NombresDichos); ++i)
        texto += (i == 0 ? "" : ", ") + (nombres[i].empty() ? std::string("sin nombre") : nombres[i]);
    texto += nombres.size() > NombresDichos ? ", ...)" : ")";
}

std::string DichoDeRed(const TrabajoHallado& t)
{
    if (!t.red) return "sin cambios";
    std::string texto;
    Dice(texto, t.diferencia.nuevos, "componente nuevo", "componentes nuevos");
    Dice(texto, t.diferencia.cambiados, "cambiado", "cambiados");
    Dice(texto, t.diferencia.quitados, "quitado", "quitados");
    if (t.diferencia.trazo)
        texto += texto.empty() ? "un cauce a medio dibujar" : "; un cauce a medio dibujar";
    return texto.empty() ? "igual al guardado" : texto;
}

std::string DichoDeFormas(const std::vector<forms::Contenido>& formas)
{
    std::string texto;
    for (const forms::Contenido& forma : formas)
        texto += (texto.empty() ? "" : "; ") + forma.titulo;
    return texto.empty() ? "ninguna con datos sin aplicar" : texto;
}

std::string DichoDeArchivos(const TrabajoHallado& t)
{
    if (t.hallado.diario.huellas.empty()) return "el proyecto no tenía archivos";
    if (t.cambiados.empty()) return "están como entonces";
    std::string texto = "han cambiado después: ";
    for (std::size_t i = 0; i < t.cambiados.size(); ++i)
        texto += (i == 0 ? "" : ", ") + t.cambiados[i].substr(t.cambiados[i].rfind(model::Separador) + 1);
    return texto + ". Se recupera sobre ellos, sin guardar";
}

std::string Renglon(const TrabajoHallado& t)
{
    if (!t.hallado.dano.empty())
        return "dañado: " + t.hallado.ruta.substr(t.hallado.ruta.rfind(model::Separador) + 1);
    return t.hallado.diario.proyecto + "   " + t.hallado.diario.cuando;
}

void MuestraEnMano(dlgRecuperar& f)
{
    f.lblProyecto = f.lblCuando = f.lblRed = f.lblFormas = f.lblArchivos = f.txtFormas = {};
    const TrabajoHallado* const t = f.EnMano();
    if (t == nullptr) return;
    if (!t->hallado.dano.empty()) {
        f.lblProyecto = t->hallado.dano + " Queda donde está.";
        f.lblArchivos = t->hallado.ruta;
        return;
    }
    const Diario& d = t->hallado.diario;
    f.lblProyecto = d.conf;
    f.lblCuando = d.cuando;
    f.lblRed = DichoDeRed(*t);
    f.lblFormas = DichoDeFormas(d.formas);
    f.lblArchivos = DichoDeArchivos(*t);
    for (const forms::Contenido& forma : d.formas)
        f.txtFormas += (f.txtFormas.empty() ? "" : "\n") + forms::ComoTexto(forma);
}

/// Takes the one in hand off the list, and closes the form behind the last one.
void Quita(dlgRecuperar& f)
{
    f.trabajos.erase(f.trabajos.begin() + f.elegido);
    Abre(f, std::exchange(f.trabajos, {}));
}

/// The network of a project as its files have it; nothing where it can't be read.
std::optional<editor::RedGuardada> RedDeArchivos(const Siro& s, const Diario& diario)
{
    Siro propio;  // with a host that tells nobody
    propio.Disco = s.Disco;
    propio.Proyecto.NombreProyecto = diario.proyecto;
    propio.Proyecto.DirProyecto = diario.conf.substr(0, diario.conf.rfind(model::Separador));
    editor::Historia h;
    model::Sentencia([&] {
        model::LeeUEHs(propio);
        if (!propio.Control.CargaFallida) editor::EmpiezaHistoria(h, {}, propio.Red, {});
    });
    return std::move(h.presente);
}

}  // namespace

TrabajoHallado Mira(const Siro& s, DiarioHallado hallado)
{
    TrabajoHallado t{.hallado = std::move(hallado)};
    if (!t.hallado.dano.empty()) return t;
    t.cambiados = model::Cambiados(s.Disco, t.hallado.diario.huellas);
    t.guardada = RedDeArchivos(s, t.hallado.diario);
    if (!t.hallado.diario.red) return t;
    t.red = editor::Lee(*t.hallado.diario.red);
    if (!t.red)
        t.hallado.dano = "El dibujo del diario está dañado.";
    else
        t.diferencia = editor::Compara(t.guardada.value_or(editor::RedGuardada{}), *t.red);
    return t;
}

bool EstaGuardado(const TrabajoHallado& t)
{
    return t.hallado.dano.empty() && t.hallado.diario.formas.empty() && t.diferencia.Ninguna();
}

void Abre(dlgRecuperar& f, std::vector<TrabajoHallado> trabajos)
{
    f.trabajos = std::move(trabajos);
    f.lstTrabajos.clear();
    for (const TrabajoHallado& t : f.trabajos)
        f.lstTrabajos.push_back(Renglon(t));
    f.elegido = static_cast<int>(f.trabajos.size()) - 1;
    f.abierta = !f.trabajos.empty();
    f.pedido.reset();
    MuestraEnMano(f);
}

void lstTrabajos_Click(dlgRecuperar& f, int linea)
{
    f.elegido = linea;
    MuestraEnMano(f);
}

void OKButton(dlgRecuperar& f)
{
    if (!f.SePuede()) return;
    f.pedido = *f.EnMano();
    f.abierta = false;
}

void cmdDescartar(dlgRecuperar& f, const Siro& s)
{
    if (f.EnMano() == nullptr) return;
    const DiarioHallado hallado = f.EnMano()->hallado;
    const std::string pregunta =
        ConNombre(ConNombre(std::string(PreguntaDescartar), "%1", hallado.diario.proyecto), "%2",
                  hallado.diario.cuando);
    if (!model::Consulta(
            s, hallado.dano.empty() ? pregunta : "El diario dañado va a la papelera. ¿Desea descartarlo?",
            TituloDlgRecuperar))
        return;
    const bool fuera = s.Anfitrion.TiraAPapelera(hallado.ruta) ||
                       model::Sentencia([&] { ApartaDiario(s.Disco, hallado.ruta); }, model::AvisaArchivo(s));
    if (fuera) Quita(f);
}

void CancelButton(dlgRecuperar& f)
{
    f.abierta = false;
}

}  // namespace shell
