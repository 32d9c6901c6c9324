// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoria/OrdenMemoria.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace memoria {
namespace {

constexpr std::string_view TextoUso =
    R"(Uso: siro-memoria CONF --pdf|--odt|--html ARCHIVO [opciones]    la memoria de cálculo de un proyecto

CONF es el archivo <Proyecto>_Conf.vlm de un proyecto. La tormenta y los pasos son los de la orden una de
siro-lote: --forma, --pp, --dur, --rec, --distribucion, --paso-pp, --paso-q, --pp-ueh, --tormenta, y el directorio
--trabajo. ARCHIVO queda entero o como estaba.

  --pdf, --odt, --html ARCHIVO   formato y destino
  --serie                 corre además una serie, con --tabla K y --hilos N como en siro-lote serie
  --sin-tormenta          no corre la tormenta: la serie sola
  --capitulos C,C,...     sólo esos capítulos, por sus claves en la plantilla (todos)
  --componentes C,C,...   de quiénes son los hidrogramas (las salidas, las represas y los lagos)
  --papel A4|Carta        tamaño de las páginas (A4)
  --logo ARCHIVO          imagen PNG, JPEG o SVG de la carátula
  --decimal coma|punto    signo decimal (coma)
  --titulo, --autor, --comitente TEXTO   lo que dice la carátula (los del proyecto)
  --plantilla ARCHIVO     el texto, en lugar de Plantillas/memoria.txt del usuario
  --sin-imagen            la red sin la imagen de fondo
  --ayuda, --help         este texto

Estado de salida: 0 la memoria está escrita; 1 un control o la entrada dañada terminó la corrida, o no se pudo
                  leer o escribir un archivo; 2 la línea de órdenes es errónea; 3 un mensaje fatal terminó la
                  corrida.
)";

std::vector<std::string> Lista(std::string_view texto)
{
    std::vector<std::string> partes;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t fin = std::min(texto.find(',', desde), texto.size());
        if (fin > desde) partes.emplace_back(texto.substr(desde, fin - desde));
        desde = fin + 1;
    }
    return partes;
}

/// An option of the memoria's own. `toma` returns why its value can't be; empty where it can.
struct Fila {
    std::string_view nombre;
    bool conValor;
    std::string (*toma)(Orden& o, const std::string& valor);
};

template <std::string Orden::*campo>
std::string Toma(Orden& o, const std::string& v)
{
    o.*campo = v;
    return {};
}

template <int formato>
std::string TomaDestino(Orden& o, const std::string& v)
{
    constexpr std::array<std::string_view, 3> Claves{"pdf", "odt", "html"};
    if (!o.formato.empty()) return "el formato va una sola vez";
    o.formato = Claves[formato];
    o.archivo = v;
    return {};
}

constexpr auto Filas = std::to_array<Fila>({
    {"--pdf", true, TomaDestino<0>},
    {"--odt", true, TomaDestino<1>},
    {"--html", true, TomaDestino<2>},
    {"--logo", true, Toma<&Orden::logo>},
    {"--plantilla", true, Toma<&Orden::plantilla>},
    {"--serie", false,
     [](Orden& o, const std::string&) {
         o.conSerie = true;
         return std::string();
     }},
    {"--sin-tormenta", false,
     [](Orden& o, const std::string&) {
         o.conTormenta = false;
         return std::string();
     }},
    {"--sin-imagen", false,
     [](Orden& o, const std::string&) {
         o.conImagen = false;
         return std::string();
     }},
    {"--capitulos", true,
     [](Orden& o, const std::string& v) {
         o.capitulos = Lista(v);
         return std::string(o.capitulos.empty() ? "falta la clave de un capítulo" : "");
     }},
    {"--componentes", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.componentes = Lista(v);
         return std::string(o.eleccion.componentes.empty() ? "falta el nombre de un componente" : "");
     }},
    {"--papel", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.hoja = v == "Carta" ? report::Hoja::Carta : report::Hoja::A4;
         return std::string(v == "Carta" || v == "A4" ? "" : "es A4 o Carta");
     }},
    {"--decimal", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.decimal = v == "punto" ? '.' : ',';
         return std::string(v == "punto" || v == "coma" ? "" : "es coma o punto");
     }},
    {"--titulo", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.titulo = v;
         return std::string();
     }},
    {"--autor", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.autor = v;
         return std::string();
     }},
    {"--comitente", true,
     [](Orden& o, const std::string& v) {
         o.eleccion.comitente = v;
         return std::string();
     }},
});

/// Goes through the words and takes the memoria's own; the others stay in `resto`.
class Lector {
  public:
    explicit Lector(const std::vector<std::string>& unasPalabras) : palabras(unasPalabras) {}

    Lectura Lee()
    {
        for (i = 1; i < palabras.size(); ++i) {
            if (palabras[i] == "--help" || palabras[i] == "--ayuda" || palabras[i] == "-h") return {};
            if (std::string motivo = Toma1(); !motivo.empty()) return {{}, std::move(motivo)};
        }
        if (o.formato.empty()) return {{}, "Falta el formato con su archivo: --pdf, --odt o --html"};
        if (o.archivo.empty()) return {{}, "--" + o.formato + ": falta el nombre del archivo"};
        if (!o.conTormenta && !o.conSerie) return {{}, "--sin-tormenta va con --serie"};
        for (const auto& [orden, destino] : {std::pair{"una", &o.tormenta}, std::pair{"serie", &o.serie}}) {
            std::string motivo = LeeComoLote(orden, *destino);
            if (!motivo.empty()) return {{}, std::move(motivo)};
        }
        return {std::move(o), {}};
    }

  private:
    std::string Toma1()
    {
        const std::string& palabra = palabras[i];
        const std::size_t igual = palabra.find('=');
        const std::string nombre = palabra.substr(0, igual);
        const auto* const fila =
            std::find_if(Filas.begin(), Filas.end(), [&](const Fila& f) { return f.nombre == nombre; });
        if (fila == Filas.end()) {
            resto.push_back(palabra);
            return {};
        }
        const bool pegado = igual != std::string::npos;
        if (!fila->conValor) return pegado ? "La opción " + nombre + " no lleva valor" : fila->toma(o, "");
        if (std::count(dadas.begin(), dadas.end(), nombre) > 0 || (!pegado && i + 1 >= palabras.size()))
            return "La opción " + nombre + " lleva un valor, y una sola vez";
        dadas.push_back(nombre);
        const std::string motivo = fila->toma(o, pegado ? palabra.substr(igual + 1) : palabras[++i]);
        return motivo.empty() ? motivo : nombre + ": " + motivo;
    }

    std::string LeeComoLote(const char* orden, batch::Opciones& destino)
    {
        std::vector<const char*> suyas{"siro-memoria", orden};
        for (const std::string& palabra : resto)
            suyas.push_back(palabra.c_str());
        const batch::Lectura l = batch::LeeOpciones(static_cast<int>(suyas.size()), suyas.data());
        if (!l.opciones) return l.motivo;
        destino = *l.opciones;
        if (destino.pizarra) return "No se esperaba --pizarra";
        if (destino.avisos) return "No se esperaba --avisos";
        if (!destino.resultados.empty()) return "No se esperaba --resultados";
        return {};
    }

    const std::vector<std::string>& palabras;
    std::size_t i = 1;
    Orden o{};
    std::vector<std::string> resto{}, dadas{};
};

}  // namespace

std::string_view Uso()
{
    return TextoUso;
}

Lectura LeeOrden(const std::vector<std::string>& palabras)
{
    return Lector(palabras).Lee();
}

}  // namespace memoria
