// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Distintos.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "checks/Sello.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "runs/Campos.h"

namespace runs {

using model::FormaLluvia;
using model::NumeroATexto;
using model::Red;

namespace {

// --- fields of components beyond the numbers of Campos() ---

/// A field that is a word, by the caption of the component's form.
struct CampoDeTexto {
    char clase;
    std::string_view nombre;
    std::string (*lee)(const Red& red, int numero);
    bool seLee = true;  ///< a run reads it
};

std::string EnUso(const Red& red, int numero)
{
    std::string texto;
    const auto& tildes = red.ColRepresas.Ranura(numero).chkFQ;
    for (std::size_t i = 0; i < tildes.size(); ++i)
        if (tildes[i] == 1)
            texto += (texto.empty() ? "" : ", ") + NumeroATexto(static_cast<std::int32_t>(i + 1));
    return texto.empty() ? "ninguna" : texto;
}

// clang-format off
constexpr auto CamposDeTexto = std::to_array<CampoDeTexto>({
    {'u', "Propagación/Método", [](const Red& r, int n) { return r.ColUEHs.Ranura(n).Metodo; }, false},
    {'u', "Referencias",        [](const Red& r, int n) { return r.ColUEHs.Ranura(n).Referencia; }, false},
    {'c', "Propagación",        [](const Red& r, int n) { return std::string(r.ColCauces.Ranura(n).optDirMusk ? "Directa" : "Muskingum"); }},
    {'r', "Método",             [](const Red& r, int n) { return r.ColRepresas.Ranura(n).Metodo; }},
    {'r', "Muskingum x",        [](const Red& r, int n) { return NumeroATexto(r.ColRepresas.Ranura(n).Represa_n_Musk); }, false},
    {'r', "Descarga",           [](const Red& r, int n) { return std::string(r.ColRepresas.Ranura(n).optTabla ? "por tabla" : "por funciones"); }},
    {'r', "Funciones en uso",   EnUso},
    {'l', "Método",             [](const Red& r, int n) { return r.ColLagos.Ranura(n).Metodo; }},
    {'l', "Referencias",        [](const Red& r, int n) { return r.ColLagos.Ranura(n).Referencia; }, false},
});
// clang-format on

std::string DestinoDe(const Red& red, char clase, int n)
{
    switch (clase) {
    case 'u':
        return red.ColUEHs.Ranura(n).Cauce_aa;
    case 'c':
        return red.ColCauces.Ranura(n).Cauce_aa;
    case 'l':
        return red.ColLagos.Ranura(n).Cauce_aa;
    default:
        return red.ColRepresas.Ranura(n).Cauce_aa;
    }
}

int NumeroDe(const Red& red, char clase, const std::string& nombre)
{
    switch (clase) {
    case 'u':
        return model::NumeroDe<model::UEH>(red, nombre);
    case 'c':
        return model::NumeroDe<model::Cauce>(red, nombre);
    case 'l':
        return model::NumeroDe<model::Lago>(red, nombre);
    default:
        return model::NumeroDe<model::Represa>(red, nombre);
    }
}

// --- tables ---

/// A column of a table, by component and row.
using LeeCelda = std::string (*)(const Red& red, int numero, int fila);
struct ColumnaDeTabla {
    std::string_view nombre, unidad;
    LeeCelda lee;
};
struct TablaDeEmbalse {
    char clase;
    std::string_view nombre;
    const model::Arreglo<std::int16_t> Red::*filas;
    std::vector<ColumnaDeTabla> columnas;
};

template <auto Miembro>
std::string Celda(const Red& red, int numero, int fila)
{
    const auto& matriz = red.*Miembro;
    return matriz.Alcanza(numero, fila) ? NumeroATexto(matriz(numero, fila)) : std::string();
}

const std::vector<TablaDeEmbalse>& Tablas()
{
    static const std::vector<TablaDeEmbalse> tablas{
        {'r',
         "Tabla H-A-S",
         &Red::RepresaFilasHAS,
         {{"H", "m", Celda<&Red::RepresaH>},
          {"A", "ha", Celda<&Red::RepresaA>},
          {"S", "m3", Celda<&Red::RepresaS>}}},
        {'r',
         "Tabla H-Q",
         &Red::RepresaFilasHQ,
         {{"H", "m", Celda<&Red::RepresaQH>}, {"Q", "m3/s", Celda<&Red::RepresaQQ>}}},
        {'l',
         "Tabla H-A-S-Q",
         &Red::LagoFilas,
         {{"H", "m", Celda<&Red::LagoH>},
          {"A", "ha", Celda<&Red::LagoA>},
          {"S", "m3", Celda<&Red::LagoS>},
          {"Q", "m3/s", Celda<&Red::LagoQ>}}},
    };
    return tablas;
}

int FilasDe(const TablaDeEmbalse& tabla, const Red& red, int numero)
{
    const auto& filas = red.*tabla.filas;
    return numero <= filas.Tope() ? filas(numero) : 0;
}

// --- who is who ---

/// All data of a component but its name and its destination, as one text.
std::string DatosDe(const Red& red, char clase, int numero)
{
    std::string datos;
    const auto agrega = [&](const std::string& dato) { datos += dato + '\n'; };
    for (const Campo& c : Campos())
        if (c.clase == clase) agrega(NumeroATexto(*c.lugar.lee(red, numero)));
    for (const CampoDeTexto& c : CamposDeTexto)
        if (c.clase == clase) agrega(c.lee(red, numero));
    for (const TablaDeEmbalse& t : Tablas())
        for (int fila = 1; t.clase == clase && fila <= FilasDe(t, red, numero); ++fila)
            for (const ColumnaDeTabla& c : t.columnas)
                agrega(c.lee(red, numero, fila));
    return datos;
}

std::size_t PrimerLado(const Emparejado& e)
{
    const auto lado = std::ranges::find_if(e.nombres, [](const auto& n) { return !n.empty(); });
    return static_cast<std::size_t>(lado - e.nombres.begin());
}

std::string DatosDe(const Lados& lados, const Emparejado& e)
{
    const std::size_t lado = PrimerLado(e);
    const Red& red = lados[lado].corrida->red;
    return DatosDe(red, e.clase, NumeroDe(red, e.clase, e.nombres[lado]));
}

/// Joins what stands under two names and is the only pair with the same data in networks apart.
void JuntaRenombrados(const Lados& lados, std::vector<Emparejado>& todos)
{
    std::map<std::pair<char, std::string>, std::vector<std::size_t>> iguales;
    for (std::size_t i = 0; i < todos.size(); ++i)
        if (std::ranges::any_of(todos[i].nombres, &std::string::empty))
            iguales[{todos[i].clase, DatosDe(lados, todos[i])}].push_back(i);
    std::set<std::size_t> sobran;
    for (const auto& [datos, lugares] : iguales) {
        if (lugares.size() != 2) continue;
        Emparejado &a = todos[lugares[0]], &b = todos[lugares[1]];
        bool aparte = true;
        for (std::size_t k = 0; k < lados.size(); ++k)
            aparte = aparte && (a.nombres[k].empty() || b.nombres[k].empty());
        if (!aparte) continue;
        for (std::size_t k = 0; k < lados.size(); ++k)
            if (a.nombres[k].empty()) a.nombres[k] = b.nombres[k];
        sobran.insert(lugares[1]);
    }
    std::size_t lugar = 0;
    std::erase_if(todos, [&](const Emparejado&) { return sobran.contains(lugar++); });
}

// --- what differs ---

/// What is compared of one component, or of the storm: how it is told, and what each side has of it.
class Busca {
  public:
    explicit Busca(std::vector<Distinto>& hallados, std::string suComponente = {})
        : todos(hallados), componente(std::move(suComponente))
    {
    }
    /// Adds it where two sides that have a value differ; `claves`: what is compared in place of the values.
    void Mira(std::string_view nombre, std::string_view unidad, std::vector<std::string> valores, bool seLee,
              const std::vector<std::string>& claves)
    {
        std::set<std::string> distintos;
        for (std::size_t k = 0; k < valores.size(); ++k)
            if (!valores[k].empty()) distintos.insert(claves[k]);
        if (distintos.size() < 2) return;
        todos.push_back({componente, std::string(nombre), std::string(unidad), std::move(valores), seLee});
    }
    void Mira(std::string_view nombre, std::string_view unidad, std::vector<std::string> valores,
              bool seLee = true)
    {
        const std::vector<std::string> claves = valores;
        Mira(nombre, unidad, std::move(valores), seLee, claves);
    }

  private:
    std::vector<Distinto>& todos;
    std::string componente;
};

constexpr std::string_view SinUnidad = "-";
constexpr const char* NoEsta = "no está";

/// A value of each side that has the component; none of the others.
std::vector<std::string> PorLado(const Lados& lados, const Emparejado& e,
                                 const std::function<std::string(const Red& red, int numero)>& lee)
{
    std::vector<std::string> valores;
    for (std::size_t k = 0; k < lados.size(); ++k) {
        const Red& red = lados[k].corrida->red;
        valores.push_back(e.nombres[k].empty() ? std::string()
                                               : lee(red, NumeroDe(red, e.clase, e.nombres[k])));
    }
    return valores;
}

/// Whether it is there, and under which name.
void MiraPresencia(const Emparejado& e, Busca& busca)
{
    std::vector<std::string> esta;
    for (const std::string& nombre : e.nombres)
        esta.emplace_back(nombre.empty() ? NoEsta : "está");
    busca.Mira("Componente", SinUnidad, std::move(esta));
    busca.Mira("Nombre", SinUnidad, e.nombres);
}

/// A destination is the same where it is the same component, whatever its name there.
void MiraDestino(const Lados& lados, const std::vector<Emparejado>& componentes, const Emparejado& e,
                 Busca& busca)
{
    std::vector<std::string> valores, claves;
    for (std::size_t k = 0; k < lados.size(); ++k) {
        const Red& red = lados[k].corrida->red;
        std::string valor, clave;
        if (!e.nombres[k].empty()) {
            valor = DestinoDe(red, e.clase, NumeroDe(red, e.clase, e.nombres[k]));
            if (!model::EsDestino(valor)) valor = "nada";
            const auto a = std::ranges::find_if(componentes, [&](const Emparejado& otro) {
                return otro.clase != 'u' && otro.nombres[k] == valor;
            });
            clave = a == componentes.end() ? valor : a->Nombre();
        }
        valores.push_back(std::move(valor));
        claves.push_back(std::move(clave));
    }
    busca.Mira("Drena a", SinUnidad, std::move(valores), true, claves);
}

void MiraCampos(const Lados& lados, const Emparejado& e, Busca& busca)
{
    for (const CampoDeTexto& c : CamposDeTexto)
        if (c.clase == e.clase) busca.Mira(c.nombre, SinUnidad, PorLado(lados, e, c.lee), c.seLee);
    for (const Campo& c : Campos()) {
        if (c.clase != e.clase) continue;
        bool seLee = false;
        std::vector<std::string> valores = PorLado(lados, e, [&](const Red& red, int numero) {
            seLee = seLee || c.cuenta(red, numero);
            return NumeroATexto(*c.lugar.lee(red, numero));
        });
        busca.Mira(c.nombre, c.unidad, std::move(valores), seLee);
    }
}

std::string FilaDeTabla(const TablaDeEmbalse& t, const Red& red, int numero, int fila)
{
    if (fila > FilasDe(t, red, numero)) return NoEsta;
    std::string texto;
    for (const ColumnaDeTabla& c : t.columnas)
        texto += (texto.empty() ? "" : "; ") + std::string(c.nombre) + " " + c.lee(red, numero, fila) + " " +
                 std::string(c.unidad);
    return texto;
}

void MiraTablas(const Lados& lados, const Emparejado& e, Busca& busca)
{
    for (const TablaDeEmbalse& t : Tablas()) {
        if (t.clase != e.clase) continue;
        int filas = 0;
        PorLado(lados, e, [&](const Red& red, int numero) {
            filas = std::max(filas, FilasDe(t, red, numero));
            return std::string();
        });
        for (int fila = 1; fila <= filas; ++fila)
            busca.Mira(std::string(t.nombre) + ", fila " + NumeroATexto(std::int32_t{fila}), SinUnidad,
                       PorLado(lados, e, [&](const Red& red, int numero) {
                           return FilaDeTabla(t, red, numero, fila);
                       }));
    }
}

// --- storm and steps ---

std::string_view FormaDe(const checks::UltimaCorrida& u)
{
    if (u.esSerie) return "serie de tormentas";
    if (u.entrada.FormaPp == FormaLluvia::PorUEH) return "una lámina por UEH";
    return u.entrada.FormaPp == FormaLluvia::Real ? "tormenta registrada" : "una tormenta";
}

bool PorDistribucion(const checks::UltimaCorrida& u)
{
    return u.esSerie || u.entrada.FormaPp != FormaLluvia::Real;
}

/// A field of the rain or of the steps; a run that hasn't it has none.
struct CampoDeLluvia {
    std::string_view nombre, unidad;
    std::string (*lee)(const checks::UltimaCorrida& u);
    bool seLee = true;
};

// clang-format off
constexpr auto CamposDeLluvia = std::to_array<CampoDeLluvia>({
    {"Forma de la lluvia", SinUnidad, [](const checks::UltimaCorrida& u) { return std::string(FormaDe(u)); }},
    {"Lámina P", "mm", [](const checks::UltimaCorrida& u) {
         const bool una = !u.esSerie && u.entrada.FormaPp != FormaLluvia::PorUEH;
         return una ? NumeroATexto(u.entrada.PpTormenta) : std::string(); }},
    {"Duración D", "min", [](const checks::UltimaCorrida& u) { return u.esSerie ? std::string() : NumeroATexto(u.entrada.DurTormenta); }},
    {"Recurrencia R", "años", [](const checks::UltimaCorrida& u) { return u.esSerie ? std::string() : NumeroATexto(u.entrada.RecTormenta); }, false},
    {"Distribución temporal", SinUnidad, [](const checks::UltimaCorrida& u) { return PorDistribucion(u) ? checks::NombreDeDistribucion(u.entrada.DistriPp) : std::string(); }},
    {"Tormentas corridas", SinUnidad, [](const checks::UltimaCorrida& u) { return u.esSerie ? NumeroATexto(static_cast<std::int32_t>(u.corridas.size())) : std::string(); }},
    {"Paso del modelo", "min", [](const checks::UltimaCorrida& u) { return NumeroATexto(u.pasos.PasoPp); }},
    {"Paso de salida", "min", [](const checks::UltimaCorrida& u) { return NumeroATexto(u.pasos.PasoQ); }},
    {"Tiempo agregado", "min", [](const checks::UltimaCorrida& u) { return NumeroATexto(u.pasos.N0Dur); }},
});
// clang-format on

/// Values of a list of each side, by its label: depths of the UEHs, of the blocks, of the storms of a series,
/// shares of a personal distribution.
using Lista = std::map<std::pair<int, std::string>, std::string>;  // by order and label
Lista LaminasPorUEH(const checks::UltimaCorrida& u)
{
    Lista lista;
    if (u.esSerie || u.entrada.FormaPp != FormaLluvia::PorUEH) return lista;
    for (int n = 1; n <= u.red.ColUEHs.Cuenta() && n <= u.entrada.PpUEH.Tope(); ++n)
        lista[{n, "P de " + u.red.ColUEHs.Item(n).NombreUEH}] = NumeroATexto(u.entrada.PpUEH(n));
    return lista;
}

Lista Bloques(const checks::UltimaCorrida& u)
{
    Lista lista;
    if (u.esSerie || u.entrada.FormaPp != FormaLluvia::Real) return lista;
    for (int n = 1; n <= u.entrada.NroPpReal && n <= u.entrada.PpReal.Tope(); ++n)
        lista[{n, "P del bloque " + NumeroATexto(std::int32_t{n})}] = NumeroATexto(u.entrada.PpReal(n));
    return lista;
}

Lista Personal(const checks::UltimaCorrida& u)
{
    Lista lista;
    const int tabla = u.entrada.DistriPp - model::PrimeraPersonal + 1;
    if (!PorDistribucion(u) || tabla < 1 || tabla > u.tablas.DisPerso.UltimaFila()) return lista;
    for (int n = 1; n <= u.tablas.DisPerso.TopeColumna(); ++n)
        lista[{n, "Período " + NumeroATexto(std::int32_t{n}) + " de la distribución"}] =
            NumeroATexto(u.tablas.DisPerso(tabla, n));
    return lista;
}

Lista LaminasDeSerie(const checks::UltimaCorrida& u)
{
    constexpr int PorRecurrencia = 32768;  // by recurrence, then by duration
    Lista lista;
    for (const int n : u.corridas)
        lista[{PorRecurrencia * u.serie.SerieR(n) + u.serie.SerieD(n),
               "P de D " + NumeroATexto(u.serie.SerieD(n)) + " min, R " + NumeroATexto(u.serie.SerieR(n)) +
                   " años"}] = NumeroATexto(u.serie.SerieP(n));
    return lista;
}

/// What a list of that kind lacks that another one has, is told as well.
void MiraLista(const Lados& lados, std::string_view unidad, Lista (*lee)(const checks::UltimaCorrida&),
               Busca& busca)
{
    std::vector<Lista> listas;
    std::set<std::pair<int, std::string>> claves;
    for (const Lado& lado : lados)
        for (const auto& [clave, valor] : listas.emplace_back(lee(*lado.corrida)))
            claves.insert(clave);
    for (const auto& clave : claves) {
        std::vector<std::string> valores;
        for (const Lista& lista : listas) {
            const auto suyo = lista.find(clave);
            valores.emplace_back(suyo != lista.end() ? suyo->second : lista.empty() ? "" : NoEsta);
        }
        busca.Mira(clave.second, unidad, std::move(valores));
    }
}

void MiraLluvia(const Lados& lados, Busca busca)
{
    for (const CampoDeLluvia& c : CamposDeLluvia) {
        std::vector<std::string> valores;
        for (const Lado& lado : lados)
            valores.push_back(c.lee(*lado.corrida));
        busca.Mira(c.nombre, c.unidad, std::move(valores), c.seLee);
    }
    MiraLista(lados, "mm", LaminasPorUEH, busca);
    MiraLista(lados, "mm", Bloques, busca);
    MiraLista(lados, "%", Personal, busca);
    MiraLista(lados, "mm", LaminasDeSerie, busca);
}

}  // namespace

const std::string& Emparejado::Nombre() const
{
    return *std::find_if(nombres.begin(), nombres.end() - 1, [](const auto& n) { return !n.empty(); });
}

std::vector<Emparejado> Empareja(const Lados& lados)
{
    std::vector<Emparejado> todos;
    std::map<std::pair<char, std::string>, std::size_t> lugares;
    for (std::size_t k = 0; k < lados.size(); ++k)
        model::CadaComponente(lados[k].corrida->red, [&](const auto& componente) {
            constexpr char clase = model::DeClase<std::remove_cvref_t<decltype(componente)>>::prefijo[0];
            const std::string& nombre = model::Nombre(componente);
            const auto [lugar, nuevo] = lugares.try_emplace({clase, nombre}, todos.size());
            if (nuevo) todos.push_back({clase, std::vector<std::string>(lados.size())});
            todos[lugar->second].nombres[k] = nombre;
        });
    JuntaRenombrados(lados, todos);
    constexpr std::string_view Orden = "uclr";
    std::ranges::stable_sort(todos, {}, [&](const Emparejado& e) { return Orden.find(e.clase); });
    return todos;
}

std::vector<Distinto> Distintos(const Lados& lados, const std::vector<Emparejado>& componentes)
{
    std::vector<Distinto> todos;
    MiraLluvia(lados, Busca(todos));
    for (const Emparejado& e : componentes) {
        Busca busca(todos, e.Nombre());
        MiraPresencia(e, busca);
        MiraDestino(lados, componentes, e, busca);
        MiraCampos(lados, e, busca);
        MiraTablas(lados, e, busca);
    }
    return todos;
}

}  // namespace runs
