// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/AnfitrionPrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string_view>

#include "model/Disco.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

namespace model {

void PrintTo(const Mensaje& mensaje, std::ostream* salida)
{
    constexpr std::array<const char*, 3> Iconos = {"Ninguno", "Exclamacion", "Pregunta"};
    *salida << "{\"" << mensaje.texto << "\", \"" << mensaje.titulo << "\", "
            << Iconos[static_cast<std::size_t>(mensaje.icono)] << "}";
}

}  // namespace model

namespace apoyo {

void PrintTo(const Suceso& suceso, std::ostream* salida)
{
    constexpr std::array<const char*, 7> Clases = {"Aviso",    "Pregunta", "Confirmacion", "Resguardo",
                                                   "Peticion", "Archivo",  "Fin"};
    *salida << Clases[static_cast<std::size_t>(suceso.clase)] << ' ';
    PrintTo(suceso.mensaje, salida);
    if (suceso.clase != Suceso::Clase::Aviso) *salida << " -> " << suceso.respuesta;
}

std::vector<model::Mensaje> AnfitrionPrueba::Estado::Mensajes(Suceso::Clase clase) const
{
    std::vector<model::Mensaje> mensajes;
    for (const Suceso& suceso : sucesos)
        if (suceso.clase == clase) mensajes.push_back(suceso.mensaje);
    return mensajes;
}

bool AnfitrionPrueba::Estado::Termino() const
{
    return std::any_of(sucesos.begin(), sucesos.end(),
                       [](const Suceso& suceso) { return suceso.clase == Suceso::Clase::Fin; });
}

namespace {

using Estado = AnfitrionPrueba::Estado;

template <typename T>
T Saca(std::deque<T>& cola, T siEstaVacia)
{
    if (cola.empty()) return siEstaVacia;
    T primero = std::move(cola.front());
    cola.pop_front();
    return primero;
}

/// What is said, with the paths that begin as a test tells them written through as it tells them: behind its
/// slash the program has put the separator of the system.
std::string ConBarras(std::string texto)
{
    if (model::Separador == '/') return texto;
    bool enRuta = false;
    char antes = ' ';
    for (char& c : texto) {
        if (c == '/' && std::string_view(" \"<(|").find(antes) != std::string_view::npos) enRuta = true;
        if (std::string_view("\r\n\"<>|").find(c) != std::string_view::npos) enRuta = false;
        if (enRuta && c == model::Separador) c = '/';
        antes = c;
    }
    return texto;
}

model::Mensaje ConBarras(model::Mensaje m)
{
    m.texto = ConBarras(m.texto);
    m.titulo = ConBarras(m.titulo);
    return m;
}

void ConectaPreguntas(model::Anfitrion& a, const std::shared_ptr<Estado>& e)
{
    a.Avisa = [e](const model::Mensaje& m) {
        e->sucesos.push_back({Suceso::Clase::Aviso, ConBarras(m), {}});
    };
    a.Pregunta = [e](const model::Mensaje& m) {
        const bool si = Saca(e->respuestas, e->respuestaDeSiempre);
        e->sucesos.push_back({Suceso::Clase::Pregunta, ConBarras(m), si ? "Sí" : "No"});
        return si;
    };
    a.Confirma = [e](const model::Mensaje& m) {
        const bool acepta = Saca(e->respuestas, e->respuestaDeSiempre);
        e->sucesos.push_back({Suceso::Clase::Confirmacion, ConBarras(m), acepta ? "Aceptar" : "Cancelar"});
        return acepta;
    };
    a.PideResguardo = [e](const model::Mensaje& m) {
        constexpr std::array<const char*, 3> Respuestas = {"Guardar", "Seguir sin guardar", "Cancelar"};
        const model::Resguardo elegido = Saca(e->resguardos, model::Resguardo::Cancelar);
        e->sucesos.push_back(
            {Suceso::Clase::Resguardo, ConBarras(m), Respuestas[static_cast<std::size_t>(elegido)]});
        return elegido;
    };
    a.PideTexto = [e](const model::Peticion& p) {
        std::string texto = Saca(e->textos, e->aceptaDefecto ? p.defecto : std::string{});
        e->sucesos.push_back({Suceso::Clase::Peticion, ConBarras(model::Mensaje{p.texto, p.titulo}), texto});
        return texto;
    };
    a.EligeArchivo = [e](std::string_view titulo, std::string_view filtro) {
        std::string ruta = Saca(e->elegidos, std::string{});
        e->sucesos.push_back({Suceso::Clase::Archivo, {std::string(filtro), std::string(titulo)}, ruta});
        return ruta;
    };
    a.EligeDestino = [e](std::string_view titulo, std::string_view filtro, std::string_view nombre) {
        std::string ruta = Saca(e->elegidos, std::string{});
        e->propuestos.emplace_back(nombre);
        e->sucesos.push_back({Suceso::Clase::Archivo, {std::string(filtro), std::string(titulo)}, ruta});
        return ruta;
    };
    a.Termina = [e] {
        e->sucesos.push_back({Suceso::Clase::Fin, {}, {}});
        throw model::FinDelPrograma{};
    };
}

void ConectaPizarra(model::Anfitrion& a, const std::shared_ptr<Estado>& e)
{
    a.MarcaPizarra = [e] { return e->marcaPizarra; };
    a.PonMarcaPizarra = [e](bool marca) { e->marcaPizarra = marca; };
    a.AbrePizarra = [e] { ++e->pizarrasAbiertas; };
    a.LeePizarra = [e] { return e->pizarra; };
    a.PonPizarra = [e](std::string_view texto) { e->pizarra = texto; };
    a.AmpliaPizarra = [e](const std::string& texto) {
        EXPECT_TRUE(texto.starts_with(e->pizarra))
            << "the Slate's text doesn't begin with what its box holds";
        e->pizarra = texto;
    };
    a.AgregaPizarra = [e](std::string_view texto) { e->pizarra += texto; };
}

void ConectaAvance(model::Anfitrion& a, const std::shared_ptr<Estado>& e)
{
    a.AbreAvance = [e](std::string_view titulo) {
        e->avance.push_back("abre " + std::string(titulo));
        e->avanceAbierto = true;
    };
    a.TextosAvance = [e](std::string_view primero, std::string_view segundo) {
        e->avance.push_back("textos " + std::string(primero) + "|" + std::string(segundo));
    };
    a.BarraAvance = [e](int porcentaje) { e->avance.push_back("barra " + std::to_string(porcentaje)); };
    a.CierraAvance = [e] {
        e->avance.emplace_back("cierra");
        e->avanceAbierto = false;
    };
}

}  // namespace

model::Anfitrion AnfitrionPrueba::Puerta() const
{
    const auto e = estado;
    model::Anfitrion a;
    ConectaPreguntas(a, e);
    ConectaPizarra(a, e);
    ConectaAvance(a, e);
    a.AbreTablaSerie = [e] { ++e->tablasSerie; };
    a.carga_lbl_proyecto = [e] { ++e->rotulosProyecto; };
    a.HabilitaGuardarComo = [e] { ++e->guardarComoHabilitado; };
    a.HabilitaVerificacion = [e] { ++e->verificacionHabilitada; };
    a.ReclamaProyecto = [e](const std::string& conf) {
        e->reclamados.push_back(ConBarras(conf));
        return e->ocupante;
    };
    a.TiraAPapelera = [e](const std::string& ruta) {
        if (e->hayPapelera) e->tirados.push_back(ConBarras(ruta));
        return e->hayPapelera;
    };
    a.RedibujaEditor = [e] { ++e->redibujos; };
    a.FechaHora = [e] { return e->fechaHora; };
    a.Reloj = [e] {
        const double ahora = e->reloj;
        e->reloj += e->pasoReloj;
        return ahora;
    };
    return a;
}

}  // namespace apoyo
