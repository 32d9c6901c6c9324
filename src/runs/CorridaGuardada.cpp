// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/CorridaGuardada.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "checks/Huella.h"
#include "checks/Sha256.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/ArchivosTormenta.h"
#include "model/Companeros.h"
#include "model/Configuracion.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"
#include "study/ArchivoEstudio.h"
#include "study/Estudio.h"
#include "study/Series.h"

namespace runs {
namespace {

using model::Siro;
using study::Ficha;
using study::LluviaDeCorrida;
using study::Pieza;

constexpr int TodosLosNucleos = 0;
constexpr std::string_view Una = "una", Serie = "serie";

// --- what is only in memory ---

template <typename T>
std::vector<double> Valores(const model::Arreglo<T>& arreglo)
{
    return {arreglo.Datos(), arreglo.Datos() + arreglo.Tope() + 1};
}

template <typename T>
model::Arreglo<T> Arreglo(const std::vector<double>& valores)
{
    model::Arreglo<T> arreglo;
    if (valores.empty()) return arreglo;
    arreglo.Dimensiona(static_cast<int>(valores.size()) - 1);
    std::ranges::transform(valores, arreglo.Datos(), [](double x) { return static_cast<T>(x); });
    return arreglo;
}

LluviaDeCorrida LluviaDe(const model::Tormenta& t, const model::Pasos& pasos)
{
    return {.forma = t.FormaPp,
            .distribucion = t.DistriPp,
            .tabla = t.TablaPDR,
            .lamina = t.PpTormenta,
            .duracion = t.DurTormenta,
            .recurrencia = t.RecTormenta,
            .porUEH = Valores(t.PpUEH),
            .bloques = Valores(t.PpReal),
            .nroBloques = t.NroPpReal,
            .pasoPp = pasos.PasoPp,
            .pasoQ = pasos.PasoQ,
            .tiempoAgregado = pasos.N0Dur};
}

LluviaDeCorrida LluviaDe(const checks::UltimaCorrida& u)
{
    LluviaDeCorrida l = LluviaDe(u.entrada, u.pasos);
    if (!u.esSerie) return l;
    l.serieP = Valores(u.serie.SerieP);
    l.serieD = Valores(u.serie.SerieD);
    l.serieR = Valores(u.serie.SerieR);
    return l;
}

/// Whether all of a row's numbers are those of its 16-bit fields and of 32-bit floats.
bool Cabe(const LluviaDeCorrida& l)
{
    const auto en16 = [](double x) { return x >= INT16_MIN && x <= INT16_MAX && x == std::trunc(x); };
    const auto en32 = [](double x) { return static_cast<double>(static_cast<float>(x)) == x; };
    constexpr std::size_t Tope = INT16_MAX;
    const std::size_t tormentas = l.serieP.size();
    return en32(l.lamina) && en32(l.tiempoAgregado) && std::ranges::all_of(l.porUEH, en32) &&
           std::ranges::all_of(l.bloques, en32) && std::ranges::all_of(l.serieP, en32) &&
           std::ranges::all_of(l.serieD, en16) && std::ranges::all_of(l.serieR, en16) &&
           l.bloques.size() <= Tope + 1 && l.porUEH.size() == model::MaxUEHs + std::size_t{1} &&
           tormentas <= Tope && l.serieD.size() == tormentas && l.serieR.size() == tormentas;
}

void PonLluvia(Siro& s, const LluviaDeCorrida& l)
{
    const auto corto = [](int n) { return static_cast<std::int16_t>(n); };
    s.Tormenta = {.PpTormenta = static_cast<float>(l.lamina),
                  .DurTormenta = corto(l.duracion),
                  .RecTormenta = corto(l.recurrencia),
                  .FormaPp = corto(l.forma),
                  .DistriPp = corto(l.distribucion),
                  .TablaPDR = corto(l.tabla),
                  .PpUEH = Arreglo<float>(l.porUEH),
                  .PpReal = Arreglo<float>(l.bloques),
                  .NroPpReal = corto(l.nroBloques)};
    s.Pasos = {corto(l.pasoPp), corto(l.pasoQ), static_cast<float>(l.tiempoAgregado)};
    if (l.serieP.empty()) return;
    s.Serie.SerieP = Arreglo<float>(l.serieP);
    s.Serie.SerieD = Arreglo<std::int16_t>(l.serieD);
    s.Serie.SerieR = Arreglo<std::int16_t>(l.serieR);
    s.Serie.NroSeriePDR = corto(static_cast<int>(l.serieP.size()) - 1);
}

// --- the row ---

std::string Cifras(float x)
{
    char texto[32];
    const auto fin = std::to_chars(texto, texto + sizeof texto, x == 0 ? 0 : x);
    return {texto, fin.ptr};
}

std::string HuellaDeEntradas(const checks::UltimaCorrida& u)
{
    checks::Sha256 sha;
    sha.Agrega(checks::HuellaDeRed(u.red));
    sha.Agrega(checks::HuellaDeLluvia(u.red, u.entrada, u.pasos, u.tablas, u.esSerie ? &u.serie : nullptr));
    return sha.Cierra();
}

std::string HuellaDeResultados(const checks::UltimaCorrida& u)
{
    return checks::HuellaDeResultados(u.red, u.r(), u.esSerie ? u.serie.NroSeriePDR : 0);
}

int FilaDe(const model::Resultados& r, std::string_view componente)
{
    for (int fila = 1; fila <= r.NroComponentes; ++fila)
        if (r.Secuencia[static_cast<std::size_t>(fila)] == componente) return fila;
    return 0;
}

/// Where the largest element of columns desde..hasta stands, the first one of equals; `desde` where the row
/// doesn't reach so far.
int LugarDelMayor(const model::Matriz<float>& m, int fila, int desde, int hasta)
{
    if (!m.Alcanza(fila, hasta)) return desde;
    const float* const f = m.Fila(fila);
    return static_cast<int>(std::max_element(f + desde, f + hasta + 1) - f);
}

std::string EnPalabras(const model::Serie& s, int n)
{
    return "P " + Cifras(s.SerieP(n)) + " mm, D " + std::to_string(s.SerieD(n)) + " min, R " +
           std::to_string(s.SerieR(n)) + " años";
}

study::PicoDeSalida PicoDe(const checks::UltimaCorrida& u, std::string_view componente)
{
    const model::Resultados& r = u.r();
    study::PicoDeSalida pico{.componente = std::string(componente)};
    const int fila = FilaDe(r, componente);
    if (u.esSerie) {
        if (!r.QMax.Alcanza(fila, u.serie.NroSeriePDR) || fila < 1 || u.serie.NroSeriePDR < 1) return pico;
        const int tormenta = LugarDelMayor(r.QMax, fila, 1, u.serie.NroSeriePDR);
        pico.caudal = r.QMax(fila, tormenta);
        pico.tormenta = EnPalabras(u.serie, tormenta);
    } else if (fila >= 1 && r.QSale.Alcanza(fila, r.NroPasosQ)) {
        const int paso = LugarDelMayor(r.QSale, fila, 0, r.NroPasosQ);
        pico.caudal = r.QSale(fila, paso);
        pico.minuto = double{1} * paso * u.pasos.PasoQ;
    }
    return pico;
}

Ficha FichaDe(const checks::UltimaCorrida& u, const Circunstancias& c)
{
    Ficha f{.proyecto = c.proyecto,
            .clase = std::string(u.esSerie ? Serie : Una),
            .quien = c.quien,
            .tormenta = u.sello.tormenta,
            .huellaEntradas = HuellaDeEntradas(u),
            .huella = u.huella,
            .huellaResultados = HuellaDeResultados(u),
            .segundos = c.segundos,
            .programa = std::string(checks::Version())};
    const model::Resultados& r = u.r();
    for (std::size_t i = 1; i < r.Salidas.size() && i <= static_cast<std::size_t>(r.NroSalidas); ++i)
        f.salidas.push_back(PicoDe(u, r.Salidas[i]));
    for (const checks::Hallazgo& h : u.avisos)
        ++(h.gravedad == checks::Gravedad::Error   ? f.errores
           : h.gravedad == checks::Gravedad::Aviso ? f.avisos
                                                   : f.notas);
    return f;
}

/// Each component's peak; of a series each storm's.
std::string ResultadosDe(const checks::UltimaCorrida& u)
{
    const model::Resultados& r = u.r();
    std::string texto = u.esSerie ? "componente;tormenta;caudal máximo [m3/s]\n"
                                  : "componente;caudal máximo [m3/s];minuto [min]\n";
    for (int fila = 1; fila <= r.NroComponentes; ++fila) {
        const std::string& nombre = r.Secuencia[static_cast<std::size_t>(fila)];
        if (!u.esSerie) {
            const study::PicoDeSalida pico = PicoDe(u, nombre);
            texto += nombre + ";" + Cifras(static_cast<float>(pico.caudal)) + ";" +
                     Cifras(static_cast<float>(pico.minuto.value_or(0))) + "\n";
        }
        for (int n = 1; u.esSerie && r.QMax.Alcanza(fila, n) && n <= u.serie.NroSeriePDR; ++n)
            texto += nombre + ";" + EnPalabras(u.serie, n) + ";" + Cifras(r.QMax(fila, n)) + "\n";
    }
    return texto;
}

/// The name of a file that lies in a directory; empty: it doesn't.
std::string_view EnDirectorio(std::string_view ruta, std::string_view directorio)
{
    if (!ruta.starts_with(directorio) || ruta.size() <= directorio.size() + 1) return {};
    ruta.remove_prefix(directorio.size());
    if (ruta.front() != model::Separador && !directorio.ends_with(model::Separador)) return {};
    ruta.remove_prefix(std::min(ruta.find_first_not_of(model::Separador), ruta.size()));
    return ruta.find(model::Separador) == std::string_view::npos ? ruta : std::string_view{};
}

/// The files that were read: those of the project and of the shared tables.
void AgregaArchivos(std::vector<Pieza>& piezas, const Circunstancias& c)
{
    for (const auto& [ruta, bytes] : c.archivos) {
        if (const std::string_view suyo = EnDirectorio(ruta, c.dirProyecto); !suyo.empty())
            piezas.push_back({std::string(CarpetaDeProyecto).append(suyo), *bytes});
        else if (EnDirectorio(ruta, c.dirTrabajo) == model::ArchivoDisPer)
            piezas.push_back({std::string(CarpetaDeTrabajo).append(model::ArchivoDisPer), *bytes});
    }
}

// --- the way back ---

const Pieza* PiezaDe(const std::vector<Pieza>& piezas, std::string_view nombre)
{
    const auto hallada = std::ranges::find_if(piezas, [&](const Pieza& p) { return p.nombre == nombre; });
    return hallada == piezas.end() ? nullptr : &*hallada;
}

/// The configuration among the project's files.
std::string ArchivoConfEn(const std::vector<Pieza>& piezas)
{
    for (const Pieza& p : piezas)
        if (p.nombre.starts_with(CarpetaDeProyecto) && p.nombre.ends_with(model::TerminacionConf))
            return p.nombre.substr(CarpetaDeProyecto.size());
    return {};
}

std::optional<LluviaDeCorrida> LluviaEn(const std::vector<Pieza>& piezas)
{
    const Pieza* const pieza = PiezaDe(piezas, PiezaLluvia);
    if (pieza == nullptr) return {};
    study::LecturaDeLluvia lectura = study::LeeLluvia(pieza->bytes);
    if (!lectura.motivo.empty() || !Cabe(lectura.lluvia)) return {};
    return std::move(lectura.lluvia);
}

std::string AvisoDe(const Ficha& guardada, const checks::UltimaCorrida& u)
{
    if (HuellaDeResultados(u) == guardada.huellaResultados) return {};
    const std::string ahora(checks::Version());
    if (guardada.programa != ahora)
        return "La corrida se hizo con la versión " + guardada.programa + " del programa; con esta, " +
               ahora + ", los resultados no son los mismos.";
    return HuellaDeEntradas(u) == guardada.huellaEntradas
               ? "Vuelta a correr, la corrida no da los mismos resultados: al hacerla se contestó de otro "
                 "modo a una pregunta, o su archivo cambió."
               : "Las entradas guardadas no son las de la corrida: los resultados no son los mismos.";
}

bool Corre(Siro& s, const std::string& conf, const LluviaDeCorrida& lluvia)
{
    model::TomaRutaProyecto(s, conf);
    PonLluvia(s, lluvia);
    if (lluvia.serieP.empty()) return engine::CorreUnaTormenta(s);
    return engine::CorreSeriePDR(s, TodosLosNucleos) != engine::FinSerie::SinTormentas;
}

/// Runs it; `s` is left with the results.
std::shared_ptr<const checks::UltimaCorrida> CorreDeNuevo(Siro& s, const std::string& conf,
                                                          const LluviaDeCorrida& lluvia)
{
    const model::Tormenta entrada = [&] {
        Siro otra;
        PonLluvia(otra, lluvia);
        return otra.Tormenta;
    }();
    try {
        if (!Corre(s, conf, lluvia)) return nullptr;
    } catch (const model::FinDelPrograma&) {
        return nullptr;
    }
    return lluvia.serieP.empty() ? checks::UltimaCorrida::DeUna(s, entrada, true)
                                 : checks::UltimaCorrida::DeSerie(s, TodosLosNucleos);
}

void Rehace(Rehecha& rehecha, const Libro& libro, const std::vector<Pieza>& piezas)
{
    const std::optional<LluviaDeCorrida> lluvia = LluviaEn(piezas);
    const std::string conf = ArchivoConfEn(piezas);
    if (!lluvia || conf.empty()) {
        rehecha.reparo = "Al archivo de la corrida le falta la tormenta o la configuración del proyecto.";
        return;
    }
    const auto s = std::make_shared<Siro>();
    const std::string dirTrabajo = model::Ruta(libro.dirProyecto, "trabajo");
    s->Disco = DiscoDe(piezas, libro.dirProyecto, dirTrabajo);
    s->Anfitrion.FechaHora = [cuando = rehecha.ficha.cuando] { return cuando; };
    s->Proyecto.DirEjecutable = s->Proyecto.DirTrabajo = dirTrabajo;
    rehecha.corrida = CorreDeNuevo(*s, model::Ruta(libro.dirProyecto, conf), *lluvia);
    if (rehecha.corrida == nullptr) {
        rehecha.reparo = "La corrida no llega a su fin con esta versión del programa.";
        return;
    }
    rehecha.aviso = AvisoDe(rehecha.ficha, *rehecha.corrida);
    rehecha.estado = s;
}

}  // namespace

CorridaPorGuardar PorGuardar(const checks::UltimaCorrida& u, const Circunstancias& c)
{
    CorridaPorGuardar corrida{.ficha = FichaDe(u, c)};
    corrida.piezas.push_back({std::string(PiezaLluvia), study::EscribeLluvia(LluviaDe(u))});
    AgregaArchivos(corrida.piezas, c);
    corrida.piezas.push_back({std::string(PiezaResultados), ResultadosDe(u)});
    return corrida;
}

CorridaPorGuardar PorGuardar(const MuchasCorridas& m, const Circunstancias& c)
{
    CorridaPorGuardar corrida{.ficha = {.proyecto = c.proyecto,
                                        .clase = m.clase,
                                        .quien = c.quien,
                                        .tormenta = m.enPalabras,
                                        .resumen = m.resumen,
                                        .segundos = c.segundos,
                                        .programa = std::string(checks::Version())}};
    std::vector<Pieza>& piezas = corrida.piezas;
    piezas.push_back({std::string(PiezaLluvia), study::EscribeLluvia(LluviaDe(m.tormenta, m.pasos))});
    AgregaArchivos(piezas, c);
    study::Estudio estudio;
    estudio.ajuste = m.ajuste;
    const std::string base = std::string(CarpetaDeProyecto) + c.proyecto;
    piezas.push_back({base + std::string(model::TerminacionEstudio), study::EscribeEstudio(estudio)});
    for (const auto& [archivo, texto] : study::EscribeSeries(m.ajuste))
        if (!archivo.empty()) piezas.push_back({base + "_serie_" + archivo + ".csv", texto});
    piezas.push_back({std::string(PiezaTarea), study::EscribeAjuste(m.ajuste)});
    checks::Sha256 entradas, todo;
    for (const Pieza& p : piezas)
        entradas.Agrega(p.nombre + "\n" + p.bytes);
    corrida.ficha.huellaEntradas = entradas.Cierra();
    checks::Sha256 resultados;
    resultados.Agrega(m.json);
    corrida.ficha.huellaResultados = resultados.Cierra();
    todo.Agrega(corrida.ficha.huellaEntradas + corrida.ficha.huellaResultados);
    corrida.ficha.huella = todo.Cierra();
    piezas.push_back({std::string(PiezaResultado), m.json});
    return corrida;
}

model::Disco DiscoDe(const std::vector<Pieza>& piezas, const std::string& dirProyecto,
                     const std::string& dirTrabajo)
{
    using Archivos = std::map<std::string, std::string>;
    const auto archivos = std::make_shared<Archivos>();
    for (const Pieza& p : piezas) {
        const std::string_view nombre = p.nombre;
        if (nombre.starts_with(CarpetaDeProyecto))
            (*archivos)[model::Ruta(dirProyecto, nombre.substr(CarpetaDeProyecto.size()))] = p.bytes;
        if (nombre.starts_with(CarpetaDeTrabajo))
            (*archivos)[model::Ruta(dirTrabajo, nombre.substr(CarpetaDeTrabajo.size()))] = p.bytes;
    }
    const auto halla = [archivos](const std::string& ruta) {
        const auto hallado = archivos->find(ruta);
        if (hallado == archivos->end()) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
        return hallado;
    };
    model::Disco d;
    d.Lee = [halla](const std::string& ruta) { return halla(ruta)->second; };
    d.Escribe = [archivos](const std::string& ruta, std::string_view bytes) { (*archivos)[ruta] = bytes; };
    d.Agrega = [archivos](const std::string& ruta, std::string_view bytes) { (*archivos)[ruta] += bytes; };
    d.Reemplaza = [archivos](const std::vector<model::CambioArchivo>& cambios) {
        for (const model::CambioArchivo& c : cambios)
            (*archivos)[c.ruta] = c.bytes;
    };
    d.Recupera = [](const std::string&) { return model::Recuperacion{}; };
    d.HayDirectorio = [](const std::string&) { return true; };
    d.CreaDirectorio = [](const std::string&) { throw model::Falla{model::NumeroFalla::AccesoRuta}; };
    d.Lista = [archivos](const std::string& directorio) {
        std::vector<std::string> nombres;
        for (const auto& [ruta, bytes] : *archivos)
            if (const std::string_view nombre = EnDirectorio(ruta, directorio); !nombre.empty())
                nombres.emplace_back(nombre);
        return nombres;
    };
    d.Borra = [archivos, halla](const std::string& ruta) { archivos->erase(halla(ruta)); };
    d.Copia = [archivos, halla](const std::string& de, const std::string& a) {
        (*archivos)[a] = halla(de)->second;
    };
    return d;
}

bool PonLluvia(Siro& s, const std::vector<Pieza>& piezas)
{
    const std::optional<LluviaDeCorrida> lluvia = LluviaEn(piezas);
    if (lluvia) PonLluvia(s, *lluvia);
    return lluvia.has_value();
}

Rehecha Rehace(const Libro& libro, const std::string& archivo)
{
    Rehecha rehecha;
    try {
        const std::vector<Pieza> piezas = PiezasDe(libro, archivo);
        study::LecturaDeFicha lectura = study::LeeFicha(piezas.front().bytes);
        rehecha.ficha = std::move(lectura.ficha);
        if (!lectura.motivo.empty())
            rehecha.reparo = "El archivo está dañado: " + lectura.motivo + ".";
        else if (rehecha.ficha.clase != Una && rehecha.ficha.clase != Serie)
            rehecha.reparo = "De muchas corridas se guardan lo pedido y lo hallado: no vuelven a correrse.";
        else
            Rehace(rehecha, libro, piezas);
    } catch (const model::Falla& falla) {
        rehecha.reparo = falla.nota.empty() ? std::string(model::DescripcionFalla(falla.numero)) + "."
                                            : std::string(falla.nota);
    }
    return rehecha;
}

}  // namespace runs
