// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Opciones.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "batch/Valores.h"
#include "model/Configuracion.h"
#include "model/VidaProyecto.h"

namespace batch {
namespace {

// Which orders take an option; 0: one without a project.
constexpr int DeCorrida = 1, DeRevision = 2, DeFrecuencia = 4, DeIdf = 8, DeTormenta = 16, DeTarea = 32,
              DeConjunto = 64, DeUnion = 128, DeComparacion = 256, DeLista = 512,
              DeTareas = DeTarea | DeConjunto, DeAmbas = DeCorrida | DeRevision | DeTareas | DeComparacion,
              DeCurvas = DeIdf | DeTormenta;

/// An option with a value: how it is written and where its value goes.
struct FilaOpcion {
    const char* nombre;
    void (*toma)(Opciones& o, const std::string& valor);
    int ordenes = DeCorrida;  ///< those that take it
};

constexpr auto Filas = std::to_array<FilaOpcion>({
    {"--trabajo", [](Opciones& o, const std::string& v) { o.trabajo = v; }, DeAmbas | DeTormenta},
    {"--forma", [](Opciones& o, const std::string& v) { o.forma = Forma(v); }, DeAmbas},
    {"--pp", [](Opciones& o, const std::string& v) { o.pp = Lamina(v); }, DeAmbas},
    {"--dur", [](Opciones& o, const std::string& v) { o.dur = Entero(v, 0, TopeEntero); }, DeAmbas},
    {"--rec", [](Opciones& o, const std::string& v) { o.rec = Entero(v, 0, TopeEntero); }, DeAmbas},
    {"--distribucion", [](Opciones& o, const std::string& v) { o.distribucion = Entero(v, 0, 7); }, DeAmbas},
    {"--paso-pp", [](Opciones& o, const std::string& v) { o.pasoPp = Entero(v, 1, TopeEntero); }, DeAmbas},
    {"--paso-q", [](Opciones& o, const std::string& v) { o.pasoQ = Entero(v, 1, TopeEntero); }, DeAmbas},
    {"--pp-ueh", [](Opciones& o, const std::string& v) { o.ppUEH = Laminas(v); }, DeAmbas},
    {"--tormenta", [](Opciones& o, const std::string& v) { o.tormenta = v; }, DeAmbas},
    {"--tabla", [](Opciones& o, const std::string& v) { o.tabla = Entero(v, 0, 3); }},
    {"--tabla",
     [](Opciones& o, const std::string& v) {
         o.tabla = Entero(v, 0, 3);
         o.serie = true;
     },
     DeComparacion},
    {"--responde", [](Opciones& o, const std::string& v) { o.respondeSi = RespondeSi(v); }},
    {"--hilos", [](Opciones& o, const std::string& v) { o.hilos = Hilos(v); },
     DeCorrida | DeFrecuencia | DeTareas | DeComparacion},
    {"--resultados", [](Opciones& o, const std::string& v) { o.resultados = v; }},
    {"--guarda", [](Opciones& o, const std::string& v) { o.guarda = NombreDeCorrida(v); },
     DeCorrida | DeTareas},
    {"--posicion", [](Opciones& o, const std::string& v) { o.posicion = NumeroEntre(v, 0, 0.5); },
     DeFrecuencia},
    {"--registro", [](Opciones& o, const std::string& v) { o.registro = v; }, DeFrecuencia},
    {"--mes-inicial",
     [](Opciones& o, const std::string& v) { o.mesInicial = static_cast<int>(NumeroEnteroEntre(v, 1, 12)); },
     DeFrecuencia},
    {"--duracion", [](Opciones& o, const std::string& v) { o.duracion = NumeroEntre(v, 1, 14400); },
     DeFrecuencia},
    {"--dias-minimos",
     [](Opciones& o,
        const std::string& v) { o.diasMinimos = static_cast<int>(NumeroEnteroEntre(v, 0, 366)); },
     DeFrecuencia},
    {"--bajos", [](Opciones& o, const std::string& v) { o.bajos = Bajos(v); }, DeFrecuencia},
    {"--asimetria", [](Opciones& o, const std::string& v) { o.asimetria = NumeroEntre(v, -3, 3); },
     DeFrecuencia},
    {"--ecm-asimetria",
     [](Opciones& o, const std::string& v) { o.ecmAsimetria = NumeroEntre(v, 0.0001, 100); }, DeFrecuencia},
    {"--ley", [](Opciones& o, const std::string& v) { o.ley = v; }, DeFrecuencia | DeCurvas},
    {"--metodo", [](Opciones& o, const std::string& v) { o.metodo = Metodo(v); }, DeFrecuencia | DeCurvas},
    {"--remuestras", [](Opciones& o, const std::string& v) { o.remuestras = Remuestras(v); }, DeFrecuencia},
    {"--semilla",
     [](Opciones& o,
        const std::string&
            v) { o.semilla = static_cast<std::uint32_t>(NumeroEnteroEntre(v, 0, 4294967295.0)); },
     DeFrecuencia},
    {"--series", [](Opciones& o, const std::string& v) { o.series = Series(v); }, DeCurvas},
    {"--lectura", [](Opciones& o, const std::string& v) { o.lecturaDiaria = EsDiaria(v); }, DeCurvas},
    {"--factor", [](Opciones& o, const std::string& v) { o.idf.factorDiario = Numero(v); }, DeCurvas},
    {"--desagregacion", [](Opciones& o, const std::string& v) { o.idf.desagregacion = v; }, DeCurvas},
    {"--familia", [](Opciones& o, const std::string& v) { o.idf.familia = v == "ninguna" ? "" : v; },
     DeCurvas},
    {"--criterio", [](Opciones& o, const std::string& v) { o.idf.errorRelativo = EsRelativo(v); }, DeCurvas},
    {"--coeficientes", [](Opciones& o, const std::string& v) { o.idf.coeficientes = Coeficientes(v); },
     DeCurvas},
    {"--razones", [](Opciones& o, const std::string& v) { o.idf.razones = Razones(v); }, DeCurvas},
    {"--reduccion", [](Opciones& o, const std::string& v) { o.idf.reduccion = v; }, DeCurvas},
    {"--area", [](Opciones& o, const std::string& v) { o.idf.area = Numero(v); }, DeCurvas},
    {"--patron", [](Opciones& o, const std::string& v) { o.diseno.patron = v; }, DeTormenta},
    {"--pp", [](Opciones& o, const std::string& v) { o.diseno.lamina = Positivo(v); }, DeTormenta},
    {"--dur", [](Opciones& o, const std::string& v) { o.diseno.duracion = Positivo(v); }, DeTormenta},
    {"--rec", [](Opciones& o, const std::string& v) { o.diseno.recurrencia = Positivo(v); }, DeTormenta},
    {"--paso", [](Opciones& o, const std::string& v) { o.diseno.paso = Positivo(v); }, DeTormenta},
    {"--avance", [](Opciones& o, const std::string& v) { o.diseno.avance = Numero(v); }, DeTormenta},
    {"--cuartil",
     [](Opciones& o,
        const std::string& v) { o.diseno.cuartil = static_cast<int>(NumeroEnteroEntre(v, 1, 4)); },
     DeTormenta},
    {"--probabilidad",
     [](Opciones& o,
        const std::string& v) { o.diseno.probabilidad = static_cast<int>(NumeroEnteroEntre(v, 10, 90)); },
     DeTormenta},
    {"--periodos", [](Opciones& o, const std::string& v) { o.diseno.periodos = ConBlancos(v); }, DeTormenta},
    {"--registrada", [](Opciones& o, const std::string& v) { o.diseno.archivo = v; }, DeTormenta},
    {"--escribe-distribucion",
     [](Opciones& o,
        const std::string& v) { o.escribeDistribucion = static_cast<int>(NumeroEnteroEntre(v, 1, 3)); },
     DeTormenta},
    {"--escribe-tabla",
     [](Opciones& o, const std::string& v) { o.escribeTabla = static_cast<int>(NumeroEnteroEntre(v, 1, 3)); },
     DeTormenta},
    {"--duraciones",
     [](Opciones& o, const std::string& v) { o.duraciones = DeLaLista(v, model::Duraciones); }, DeTormenta},
    {"--recurrencias",
     [](Opciones& o, const std::string& v) { o.recurrencias = DeLaLista(v, model::Recurrencias); },
     DeTormenta},
    {"--tarea", [](Opciones& o, const std::string& v) { o.tarea = v; }, DeTareas},
    {"--corridas", [](Opciones& o, const std::string& v) { o.corridas = v; }, DeTarea},
    {"--parte", [](Opciones& o, const std::string& v) { o.parte = ParteDe(v); }, DeConjunto},
    {"--parcial", [](Opciones& o, const std::string& v) { o.parcial = v; }, DeConjunto},
    {"--cuenca", [](Opciones& o, const std::string& v) { o.cuenca = Lamina(v); }, DeRevision},
});

/// The words of a command line, before their values are looked at.
struct Palabras {
    std::array<std::string, Filas.size()> valores{};
    std::array<CLI::Option*, Filas.size()> opciones{};
    std::string conf{};
    std::vector<std::string> archivos{};
    bool pizarra = false, avisos = false, json = false, csv = false, reemplaza = false;
};

CLI::App* Orden(CLI::App& programa, const char* nombre, Palabras& p, int clase = DeCorrida)
{
    CLI::App* orden = programa.add_subcommand(nombre);
    orden->set_help_flag("--help,-h,--ayuda");
    orden->add_flag("--json", p.json);
    if (clase == 0) return orden;
    const bool deMaximos = (clase & (DeFrecuencia | DeCurvas)) != 0;
    if (clase == DeUnion || clase == DeComparacion)
        orden->add_option(clase == DeUnion ? "PARCIAL" : "LADO", p.archivos);
    else
        orden->add_option(deMaximos ? "ARCHIVO" : "CONF", p.conf);
    if (deMaximos || (clase & (DeTareas | DeUnion | DeComparacion | DeLista)) != 0)
        orden->add_flag("--csv", p.csv);
    if (clase == DeTormenta) orden->add_flag("--reemplaza", p.reemplaza);
    for (std::size_t i = 0; i < Filas.size(); ++i)
        if ((Filas[i].ordenes & clase) != 0) p.opciones[i] = orden->add_option(Filas[i].nombre, p.valores[i]);
    if (clase != DeCorrida) return orden;
    orden->add_flag("--pizarra", p.pizarra);
    orden->add_flag("--avisos", p.avisos);
    return orden;
}

/// The option that a message of the parser names.
std::string OpcionNombrada(const std::string& mensaje)
{
    const std::size_t desde = mensaje.find("--");
    if (desde == std::string::npos) return "CONF";
    return mensaje.substr(desde, mensaje.find_first_of(" :=,", desde) - desde);
}

std::string MotivoDe(const CLI::ParseError& error, const CLI::App& programa)
{
    const auto sobran = programa.remaining(true);
    if (!sobran.empty()) return "No se esperaba " + sobran.front();
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return "Falta la orden: una o serie";
    const std::string opcion = OpcionNombrada(error.what());
    if (opcion == "--pizarra" || opcion == "--avisos" || opcion == "--json" || opcion == "--csv" ||
        opcion == "--reemplaza" || opcion == "--help")
        return "La opción " + opcion + " no lleva valor";
    return "La opción " + opcion + " lleva un valor, y una sola vez";
}

/// Puts the values into the options that were given.
Lectura Toma(const Palabras& p, Opciones o)
{
    for (std::size_t i = 0; i < Filas.size(); ++i) {
        if (p.opciones[i] == nullptr || p.opciones[i]->count() == 0) continue;
        try {
            Filas[i].toma(o, p.valores[i]);
        } catch (const ValorErroneo& error) {
            return {{}, std::string(Filas[i].nombre) + ": " + error.motivo};
        }
    }
    return {std::move(o), {}};
}

/// Why a word is no configuration file.
std::string ReparoDeConf(const std::string& conf)
{
    if (conf.empty()) return "Falta CONF";
    return conf.ends_with(model::TerminacionConf)
               ? std::string{}
               : conf + " no termina en " + std::string(model::TerminacionConf);
}

Lectura Entiende(const Palabras& p, Opciones o)
{
    if (std::string reparo = ReparoDeConf(p.conf); !reparo.empty()) return {{}, std::move(reparo)};
    o.conf = p.conf;
    o.pizarra = p.pizarra;
    o.avisos = p.avisos;
    o.json = p.json;
    if (o.orden != Opciones::Orden::Revisa && o.json && !o.avisos) return {{}, "--json va con --avisos"};
    return Toma(p, std::move(o));
}

/// Takes the words of a command line apart. Returns what to say where there is nothing to do.
std::optional<Lectura> Reconoce(CLI::App& programa, int argc, const char* const* argv)
{
    try {
        programa.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return Lectura{};
    } catch (const CLI::ParseError& error) {
        return Lectura{{}, MotivoDe(error, programa)};
    }
    return {};
}

/// An order that takes a project and a task, or the parts of one.
Lectura LeeDeTarea(const char* nombre, Opciones::Orden orden, int clase, int argc, const char* const* argv)
{
    CLI::App programa{"", "siro-lote"};
    programa.allow_windows_style_options(false);
    Palabras p;
    Orden(programa, nombre, p, clase);
    if (auto otra = Reconoce(programa, argc, argv)) return *otra;
    if (p.json && p.csv) return {{}, "--json y --csv no van juntos"};
    if (clase == DeUnion && p.archivos.empty()) return {{}, "Falta PARCIAL"};
    if (clase != DeUnion && clase != DeComparacion)
        if (std::string reparo = ReparoDeConf(p.conf); !reparo.empty()) return {{}, std::move(reparo)};
    Opciones o;
    o.orden = orden;
    o.conf = p.conf;
    o.archivos = p.archivos;
    o.json = p.json;
    o.csv = p.csv;
    return Toma(p, std::move(o));
}

/// An order that takes maxima and no project.
Lectura LeeDeMaximos(const char* nombre, Opciones::Orden orden, int clase, int argc, const char* const* argv)
{
    CLI::App programa{"", "siro-lote"};
    programa.allow_windows_style_options(false);
    Palabras p;
    Orden(programa, nombre, p, clase);
    if (auto otra = Reconoce(programa, argc, argv)) return *otra;
    if (p.json && p.csv) return {{}, "--json y --csv no van juntos"};
    Opciones o;
    o.orden = orden;
    o.archivo = p.conf;
    o.json = p.json;
    o.csv = p.csv;
    o.reemplaza = p.reemplaza;
    return Toma(p, std::move(o));
}

/// What curves are made of, by what was given of it: one thing at most. Returns why not.
std::string PonOrigen(Opciones& o)
{
    if (!o.archivo.empty() && !o.series.empty()) return "ARCHIVO y --series no van juntos";
    o.idf.origen = !o.series.empty() ? "series" : o.archivo.empty() ? "coeficientes" : "diaria";
    return {};
}

}  // namespace

Lectura LeeOpciones(int argc, const char* const* argv)
{
    CLI::App programa{"", "siro-lote"};
    programa.set_help_flag("--help,-h,--ayuda");
    programa.allow_windows_style_options(false);  // "/x" is a path everywhere
    programa.require_subcommand(1);
    Palabras una, serie;
    const CLI::App* ordenUna = Orden(programa, "una", una);
    Orden(programa, "serie", serie);
    if (auto otra = Reconoce(programa, argc, argv)) return *otra;
    Opciones o;
    o.orden = ordenUna->parsed() ? Opciones::Orden::Una : Opciones::Orden::Serie;
    return Entiende(o.orden == Opciones::Orden::Una ? una : serie, std::move(o));
}

Lectura LeeOpcionesRevisa(int argc, const char* const* argv)
{
    CLI::App programa{"", "siro-lote"};
    Palabras revisa;
    Orden(programa, "revisa", revisa, DeRevision);
    if (auto otra = Reconoce(programa, argc, argv)) return *otra;
    Opciones o;
    o.orden = Opciones::Orden::Revisa;
    return Entiende(revisa, std::move(o));
}

Lectura LeeOpcionesVerifica(int argc, const char* const* argv)
{
    CLI::App programa{"", "siro-lote"};
    Palabras verifica;
    Orden(programa, "verifica", verifica, 0);
    if (auto otra = Reconoce(programa, argc, argv)) return *otra;
    Opciones o;
    o.orden = Opciones::Orden::Verifica;
    o.json = verifica.json;
    return {o, {}};
}

Lectura LeeOpcionesFrecuencia(int argc, const char* const* argv)
{
    Lectura l = LeeDeMaximos("frecuencia", Opciones::Orden::Frecuencia, DeFrecuencia, argc, argv);
    if (!l.opciones) return l;
    const Opciones& o = *l.opciones;
    if (o.archivo.empty() && o.registro.empty()) return {{}, "Falta ARCHIVO"};
    if (!o.archivo.empty() && !o.registro.empty()) return {{}, "ARCHIVO y --registro no van juntos"};
    if (o.registro.empty() && o.mesInicial != 1) return {{}, "--mes-inicial va con --registro"};
    if (o.metodo != "momentos" && (!o.bajos.empty() || o.asimetria))
        return {{}, "--bajos y --asimetria van con --metodo momentos"};
    return l;
}

Lectura LeeOpcionesIdf(int argc, const char* const* argv)
{
    Lectura l = LeeDeMaximos("idf", Opciones::Orden::Idf, DeIdf, argc, argv);
    if (!l.opciones) return l;
    if (std::string motivo = PonOrigen(*l.opciones); !motivo.empty()) return {{}, std::move(motivo)};
    if (!HayDeDonde(*l.opciones)) return {{}, "Falta de dónde: ARCHIVO, --series o --coeficientes"};
    return l;
}

Lectura LeeOpcionesTormenta(int argc, const char* const* argv)
{
    Lectura l = LeeDeMaximos("tormenta", Opciones::Orden::Tormenta, DeTormenta, argc, argv);
    if (!l.opciones) return l;
    if (std::string motivo = PonOrigen(*l.opciones); !motivo.empty()) return {{}, std::move(motivo)};
    if (!HayDeDonde(*l.opciones) && !l.opciones->diseno.lamina)
        return {{}, "Falta la lámina: --pp, o de dónde salen las curvas: ARCHIVO, --series o --coeficientes"};
    if (!HayDeDonde(*l.opciones) && l.opciones->escribeTabla > 0)
        return {{}, "--escribe-tabla pide curvas: ARCHIVO, --series o --coeficientes"};
    return l;
}

Lectura LeeOpcionesAjusta(int argc, const char* const* argv)
{
    return LeeDeTarea("ajusta", Opciones::Orden::Ajusta, DeTarea, argc, argv);
}

Lectura LeeOpcionesSensibilidad(int argc, const char* const* argv)
{
    return LeeDeTarea("sensibilidad", Opciones::Orden::Sensibilidad, DeTarea, argc, argv);
}

Lectura LeeOpcionesConjunto(int argc, const char* const* argv)
{
    Lectura l = LeeDeTarea("conjunto", Opciones::Orden::Conjunto, DeConjunto, argc, argv);
    if (l.opciones && l.opciones->parte != Parte{} && l.opciones->parcial.empty())
        return {{}, "--parte va con --parcial"};
    if (l.opciones && !l.opciones->guarda.empty() && !l.opciones->parcial.empty())
        return {{}, "--guarda y --parcial no van juntos"};
    return l;
}

Lectura LeeOpcionesCompara(int argc, const char* const* argv)
{
    Lectura l = LeeDeTarea("compara", Opciones::Orden::Compara, DeComparacion, argc, argv);
    if (!l.opciones) return l;
    l.opciones->lados = std::exchange(l.opciones->archivos, {});
    for (const std::string& lado : l.opciones->lados)
        if (std::string reparo = ReparoDeConf(lado.substr(0, lado.find('#'))); !reparo.empty())
            return {{}, std::move(reparo)};
    if (l.opciones->lados.size() < 2) return {{}, "Hacen falta dos CONF por lo menos"};
    return l;
}

Lectura LeeOpcionesCorridas(int argc, const char* const* argv)
{
    return LeeDeTarea("corridas", Opciones::Orden::Corridas, DeLista, argc, argv);
}

Lectura LeeOpcionesUne(int argc, const char* const* argv)
{
    return LeeDeTarea("une", Opciones::Orden::Une, DeUnion, argc, argv);
}

bool HayDeDonde(const Opciones& o)
{
    return !o.archivo.empty() || !o.series.empty() || !o.idf.coeficientes.empty();
}

}  // namespace batch
