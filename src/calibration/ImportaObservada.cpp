// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/ImportaObservada.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "calibration/Observada.h"
#include "forms/Calendario.h"
#include "forms/MomentoDeRegistro.h"
#include "forms/RenglonesDeRegistro.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace calibration {
namespace {

using study::Punto;
using Campos = std::vector<std::string>;

constexpr double Pie = 0.3048;                 // [m], exact
constexpr double PieCubico = Pie * Pie * Pie;  // [m3]
constexpr double SegundosPorMinuto = 60, MinutosPorHora = 60, UnDia = 1440;
constexpr std::size_t Muestra = 2000;       // lines that tell how a text is made
constexpr std::size_t CamposDelTiempo = 6;  // where a date may stand
constexpr std::size_t MaximoDudosos = 500;
constexpr std::size_t MaximoDeValores = 1'000'000;

constexpr auto LasUnidades = std::to_array<Unidad>({
    {"m3/s", "caudal", 1, 1},
    {"l/s", "caudal", 1, 1000},
    {"ft3/s", "caudal", PieCubico, 1},
    {"m", "nivel", 1, 1},
    {"cm", "nivel", 1, 100},
    {"ft", "nivel", Pie, 1},
});

/// How headings write them, the longest first.
constexpr auto EnEncabezados = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"ft3/s", "ft3/s"},
    {"ft³/s", "ft3/s"},
    {"cfs", "ft3/s"},
    {"pie3/s", "ft3/s"},
    {"m3/s", "m3/s"},
    {"m³/s", "m3/s"},
    {"l/s", "l/s"},
    {"lps", "l/s"},
    {"[cm]", "cm"},
    {"(cm)", "cm"},
    {"[m]", "m"},
    {"(m)", "m"},
    {"[ft]", "ft"},
    {"(ft)", "ft"},
});

/// Where several part as many readings, the first.
constexpr auto Separadores = std::to_array({';', '\t', ',', ' '});

constexpr auto Faltantes =
    std::to_array<std::string_view>({"", "-", "--", "---", "na", "n/a", "nan", "null", "s/d", "sd", "*",
                                     "-999", "-999.0", "-999.9", "-9999", "-9999.0", "-99999"});

std::string Minusculas(std::string_view texto)
{
    std::string t(texto);
    for (char& c : t)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return t;
}

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

std::string Cuantos(std::size_t n, const char* uno, const char* varios)
{
    return std::to_string(n) + ' ' + (n == 1 ? uno : varios);
}

std::optional<double> NumeroDe(std::string_view texto)
{
    std::optional<double> x;
    model::Sentencia([&] { x = model::NumeroEntero(model::ComasAPuntos(texto)); });
    return x;
}

bool Falta(std::string_view campo)
{
    return std::find(Faltantes.begin(), Faltantes.end(), Minusculas(model::ComasAPuntos(campo))) !=
           Faltantes.end();
}

/// Seconds of h:mm or h:mm:ss, of as many hours as there are.
std::optional<double> Transcurrido(std::string_view texto)
{
    const auto partes = forms::CamposDeRenglon(texto, ':');
    if (partes.size() < 2 || partes.size() > 3) return {};
    double segundos = 0;
    for (std::size_t i = 0; i < partes.size(); ++i) {
        const bool cifras =
            !partes[i].empty() && partes[i].find_first_not_of("0123456789") == std::string::npos;
        const auto x = cifras && (i == 0 || partes[i].size() == 2) ? NumeroDe(partes[i]) : std::nullopt;
        if (!x || (i > 0 && *x >= SegundosPorMinuto)) return {};
        segundos = segundos * SegundosPorMinuto + *x;
    }
    return partes.size() == 2 ? segundos * SegundosPorMinuto : segundos;
}

// --- how a text is made ---

struct Forma {
    ClaseDeTiempo clase = ClaseDeTiempo::Numero;
    char separador = ';';
    std::size_t campo = 0;  ///< of the time
};

/// A time, and the first field behind it. Of a date in seconds since 01/01/0001, else in minutes.
struct Tiempo {
    double valor = 0;
    std::size_t sigue = 0;
};

std::optional<Tiempo> TiempoDe(const Campos& campos, const Forma& forma)
{
    if (campos.size() <= forma.campo) return {};
    const std::string& campo = campos[forma.campo];
    if (forma.clase == ClaseDeTiempo::Numero) {
        const auto x = NumeroDe(campo);
        return x ? std::optional(Tiempo{*x, forma.campo + 1}) : std::nullopt;
    }
    if (forma.clase == ClaseDeTiempo::HorasYMinutos) {
        const auto x = Transcurrido(campo);
        return x ? std::optional(Tiempo{*x / SegundosPorMinuto, forma.campo + 1}) : std::nullopt;
    }
    if (const auto junto = forms::MomentoDeRegistro(campo))
        return Tiempo{static_cast<double>(*junto), forma.campo + 1};
    if (campos.size() <= forma.campo + 1) return {};
    const auto aparte = forms::MomentoDeRegistro(campo + ' ' + campos[forma.campo + 1]);
    return aparte ? std::optional(Tiempo{static_cast<double>(*aparte), forma.campo + 2}) : std::nullopt;
}

/// Whether a field is two numbers that a blank parts: another mark parts the fields.
bool SonDosNumeros(std::string_view campo)
{
    const std::size_t blanco = campo.find(' ');
    return blanco != std::string_view::npos && NumeroDe(campo.substr(0, blanco)) &&
           NumeroDe(campo.substr(campo.rfind(' ') + 1));
}

bool EsLectura(const Campos& campos, const Forma& forma)
{
    const auto tiempo = TiempoDe(campos, forma);
    return tiempo && std::none_of(campos.begin(), campos.end(), SonDosNumeros) &&
           std::any_of(campos.begin() + static_cast<std::ptrdiff_t>(tiempo->sigue), campos.end(),
                       [](const std::string& campo) { return NumeroDe(campo).has_value(); });
}

std::vector<std::string> PrimerosRenglones(std::string_view texto)
{
    std::vector<std::string> renglones;
    while (!texto.empty() && renglones.size() < Muestra)
        if (const auto renglon = forms::SacaRenglon(texto); !forms::EsVacio(renglon))
            renglones.push_back(forms::ConMeridianoPegado(renglon));
    return renglones;
}

/// The way that makes most readings of the lines; nothing where none makes any.
std::optional<Forma> FormaDe(const std::vector<std::string>& renglones)
{
    std::vector<Forma> formas;
    for (const auto clase : {ClaseDeTiempo::FechaYHora, ClaseDeTiempo::HorasYMinutos, ClaseDeTiempo::Numero})
        for (std::size_t campo = 0; campo < (clase == ClaseDeTiempo::Numero ? 1 : CamposDelTiempo); ++campo)
            formas.push_back({.clase = clase, .campo = campo});
    std::optional<Forma> mejor;
    std::ptrdiff_t mayor = 0;
    for (const char separador : Separadores) {
        std::vector<Campos> campos;
        for (const std::string& renglon : renglones)
            campos.push_back(forms::CamposDeRenglon(renglon, separador));
        for (Forma forma : formas) {
            forma.separador = separador;
            const auto n = std::count_if(campos.begin(), campos.end(),
                                         [&](const Campos& c) { return EsLectura(c, forma); });
            // Times of day are times of day even where a column of numbers stands ahead of all lines.
            const bool gana = n > mayor || (n == mayor && mejor && forma.clase < mejor->clase);
            if (n > 0 && gana) {
                mejor = forma;
                mayor = n;
            }
        }
    }
    return mejor;
}

/// Fields behind the time that hold numbers in at least half as many lines as the fullest one does.
std::vector<ColumnaDeValores> ColumnasDe(const std::vector<std::string>& renglones, const Forma& forma)
{
    std::vector<std::size_t> numeros;
    Campos titulos;
    bool empezo = false;
    for (const std::string& renglon : renglones) {
        Campos campos = forms::CamposDeRenglon(renglon, forma.separador);
        const auto tiempo = TiempoDe(campos, forma);
        if (!tiempo) {
            if (!empezo) titulos = std::move(campos);
            continue;
        }
        empezo = true;
        if (numeros.size() < campos.size()) numeros.resize(campos.size());
        for (std::size_t i = tiempo->sigue; i < campos.size(); ++i)
            numeros[i] += NumeroDe(campos[i]) && !Falta(campos[i]) ? 1U : 0U;
    }
    const std::size_t mayor = numeros.empty() ? 0 : *std::max_element(numeros.begin(), numeros.end());
    std::vector<ColumnaDeValores> columnas;
    for (std::size_t i = 0; i < numeros.size(); ++i)
        if (numeros[i] > 0 && 2 * numeros[i] >= mayor)
            columnas.push_back({i, i < titulos.size() && !titulos[i].empty()
                                       ? titulos[i]
                                       : "Columna " + std::to_string(i + 1)});
    return columnas;
}

// --- readings ---

struct Lectura {
    double tiempo = 0;  ///< as Tiempo has it
    double valor = 0;
    int nro = 0;  ///< of its line
};

/// Lines to readings, one after another.
class Lecturas {
  public:
    Lecturas(ImportacionDeObservada& unaSalida, const Forma& unaForma) : i(unaSalida), forma(unaForma) {}

    void Renglon(std::string_view leido)
    {
        ++nro;
        if (forms::EsVacio(leido)) return;
        const std::string renglon = forms::ConMeridianoPegado(leido);
        const Campos campos = forms::CamposDeRenglon(renglon, forma.separador);
        auto tiempo = TiempoDe(campos, forma);
        if (!tiempo) {
            if (!lecturas.empty() || huecos > 0)
                Duda(renglon, "no tiene su tiempo donde los otros: no se toma");
            return;
        }
        const std::size_t cual = i.columnas[i.columna].campo;
        const std::string_view campo = cual < campos.size() ? std::string_view(campos[cual]) : "";
        SigueElReloj(tiempo->valor, renglon);
        if (Falta(campo)) return Hueco();
        const auto valor = NumeroDe(campo);
        if (!valor) return Duda(renglon, "\"" + std::string(campo) + "\" no es un número: no se toma");
        Toma({tiempo->valor, *valor, nro}, renglon);
    }
    void Duda(std::string_view renglon, std::string hecho)
    {
        constexpr std::size_t LargoMostrado = 80;
        if (++dudas > MaximoDudosos) return;
        i.dudosos.push_back({nro, model::PrimerosCaracteres(renglon, LargoMostrado), std::move(hecho)});
    }

    std::vector<Lectura> lecturas{};
    std::size_t huecos = 0, dudas = 0;
    bool deSobra = false;  ///< there are more than are kept

  private:
    void Hueco() { ++huecos; }
    /// A clock that goes from 23:50 to 0:00 tells the next day.
    void SigueElReloj(double& tiempo, std::string_view renglon)
    {
        if (forma.clase != ClaseDeTiempo::HorasYMinutos) return;
        const double desdeAntes = anterior - (tiempo + dias * UnDia);
        if (anterior < (dias + 1) * UnDia && desdeAntes > UnDia / 2) {
            ++dias;
            Duda(renglon, "la hora vuelve a empezar: se toma como la del día siguiente");
        }
        tiempo += dias * UnDia;
        anterior = tiempo;
    }
    void Toma(const Lectura& nueva, std::string_view renglon)
    {
        if (lecturas.size() == MaximoDeValores) {
            deSobra = true;
            return;
        }
        if (!lecturas.empty() && nueva.tiempo < lecturas.back().tiempo)
            Duda(renglon, "el tiempo es anterior al del renglón previo: se pone en su lugar");
        lecturas.push_back(nueva);
    }

    ImportacionDeObservada& i;
    const Forma forma;
    int nro = 0;
    double anterior = -1, dias = 0;
};

/// Puts the readings in order of time, and those of one time together.
std::vector<Lectura> EnOrden(Lecturas& l, ImportacionDeObservada& i)
{
    std::stable_sort(l.lecturas.begin(), l.lecturas.end(),
                     [](const Lectura& a, const Lectura& b) { return a.tiempo < b.tiempo; });
    std::vector<Lectura> unicas;
    for (auto desde = l.lecturas.begin(); desde != l.lecturas.end();) {
        const auto hasta = std::find_if(desde, l.lecturas.end(),
                                        [&](const Lectura& otra) { return otra.tiempo != desde->tiempo; });
        double suma = 0;
        for (auto una = desde; una != hasta; ++una) {
            suma += una->valor;
            if (una == desde || ++l.dudas > MaximoDudosos) continue;
            const bool igual = una->valor == desde->valor;
            i.dudosos.push_back({una->nro, Numero(una->valor),
                                 "repite el tiempo del renglón " + std::to_string(desde->nro) +
                                     (igual ? " con el mismo valor: cuenta una vez"
                                            : " con otro valor: se toma el promedio")});
        }
        const auto n = static_cast<double>(hasta - desde);
        unicas.push_back({desde->tiempo, n > 1 ? suma / n : suma, desde->nro});
        desde = hasta;
    }
    return unicas;
}

void PonPuntos(const std::vector<Lectura>& lecturas, const PedidoDeObservada& pedido,
               ImportacionDeObservada& i)
{
    if (i.tiempo == ClaseDeTiempo::FechaYHora)
        i.inicio = pedido.inicio.value_or(static_cast<std::int64_t>(lecturas.front().tiempo));
    const Unidad& unidad = UnidadDe(pedido.unidad);
    std::size_t afuera = 0;
    for (const Lectura& l : lecturas) {
        double minuto = l.tiempo;
        if (i.inicio) minuto = (l.tiempo - static_cast<double>(*i.inicio)) / SegundosPorMinuto;
        if (i.tiempo == ClaseDeTiempo::Numero && pedido.enHoras) minuto *= MinutosPorHora;
        if ((pedido.desde && minuto < *pedido.desde) || (pedido.hasta && minuto > *pedido.hasta))
            ++afuera;
        else
            i.puntos.push_back({minuto, l.valor * unidad.multiplica / unidad.divide});
    }
    if (afuera > 0)
        i.avisos.push_back(Cuantos(afuera, "lectura queda", "lecturas quedan") +
                           " fuera de los tiempos pedidos.");
}

std::string Fecha(std::int64_t segundo)
{
    const auto t = static_cast<forms::Instante>(segundo / static_cast<std::int64_t>(SegundosPorMinuto));
    return forms::TextoFecha(t) + ' ' + forms::TextoHora(t);
}

void Dice(const Lecturas& l, const PedidoDeObservada& pedido, ImportacionDeObservada& i)
{
    const auto& puntos = i.puntos;
    std::vector<std::string> antes = std::exchange(i.avisos, {});
    i.avisos.push_back(
        Cuantos(puntos.size(), "lectura", "lecturas") + ", del minuto " + Numero(puntos.front().minuto) +
        " al " + Numero(puntos.back().minuto) +
        (puntos.size() > 1 ? ", cada " + Numero(PasoUsual(puntos)) + " min por lo usual." : "."));
    if (i.inicio && !pedido.inicio)
        i.avisos.push_back("El evento no tiene inicio: los minutos cuentan desde la primera lectura, " +
                           Fecha(*i.inicio) + ".");
    if (puntos.back().minuto <= 0 && pedido.inicio)
        i.avisos.push_back("Ninguna lectura es posterior al inicio de la tormenta, " + Fecha(*pedido.inicio) +
                           ": revise ese inicio.");
    if (puntos.front().minuto > 10 * UnDia)
        i.avisos.emplace_back("La primera lectura está a más de 10 días del inicio de la tormenta.");
    const Unidad& unidad = UnidadDe(pedido.unidad);
    if (unidad.multiplica != unidad.divide)
        i.avisos.push_back("Los valores, en " + std::string(unidad.clave) + ", se llevan a " +
                           (unidad.magnitud == "nivel" ? "m." : "m3/s."));
    if (l.huecos > 0)
        i.avisos.push_back(Cuantos(l.huecos, "renglón no tiene", "renglones no tienen") +
                           " valor (vacío, -, NA, -999 o parecido): queda como hueco.");
    if (const auto huecos = HuecosDe(puntos); !huecos.empty())
        i.avisos.push_back(Cuantos(huecos.size(), "hueco", "huecos") +
                           " de al menos dos lecturas; el primero, del minuto " +
                           Numero(huecos.front().desde) + " al " + Numero(huecos.front().hasta) + ".");
    const auto negativos =
        std::count_if(puntos.begin(), puntos.end(), [](const Punto& p) { return p.valor < 0; });
    if (negativos > 0 && unidad.magnitud == "caudal")
        i.avisos.push_back(
            Cuantos(static_cast<std::size_t>(negativos), "caudal es negativo.", "caudales son negativos."));
    if (l.dudas > 0)
        i.avisos.push_back(Cuantos(l.dudas, "renglón dudoso", "renglones dudosos") +
                           (l.dudas > MaximoDudosos ? "; se muestran los primeros 500." : "."));
    if (l.deSobra) i.avisos.emplace_back("Hay más de un millón de lecturas: se toman las primeras.");
    i.avisos.insert(i.avisos.end(), antes.begin(), antes.end());
}

}  // namespace

std::span<const Unidad> Unidades()
{
    return LasUnidades;
}

const Unidad& UnidadDe(std::string_view clave)
{
    const auto* const hallada = std::find_if(LasUnidades.begin(), LasUnidades.end(),
                                             [&](const Unidad& u) { return u.clave == clave; });
    return hallada == LasUnidades.end() ? LasUnidades.front() : *hallada;
}

std::string_view UnidadEnTexto(std::string_view encabezado)
{
    const std::string texto = Minusculas(encabezado);
    for (const auto& [escrita, clave] : EnEncabezados)
        if (texto.find(escrita) != std::string::npos) return clave;
    return {};
}

ImportacionDeObservada ImportaObservada(std::string_view bytes, const PedidoDeObservada& pedido)
{
    ImportacionDeObservada i;
    const std::string texto = forms::TextoDeBytes(bytes);
    const auto renglones = PrimerosRenglones(texto);
    const auto forma = FormaDe(renglones);
    if (forma) i.columnas = ColumnasDe(renglones, *forma);
    if (i.columnas.empty()) {
        i.motivo = renglones.empty() ? "No hay nada escrito."
                                     : "Ningún renglón tiene un tiempo (fecha y hora, h:mm o un número) y, "
                                       "detrás, un valor. El primero dice: " +
                                           model::PrimerosCaracteres(renglones.front(), 80);
        return i;
    }
    i.tiempo = forma->clase;
    for (std::size_t k = 0; k < i.columnas.size(); ++k)
        if (pedido.columna == i.columnas[k].campo) i.columna = k;
    Lecturas lecturas(i, *forma);
    for (std::string_view resto = texto; !resto.empty();)
        lecturas.Renglon(forms::SacaRenglon(resto));
    if (!lecturas.lecturas.empty()) PonPuntos(EnOrden(lecturas, i), pedido, i);
    std::stable_sort(i.dudosos.begin(), i.dudosos.end(),
                     [](const auto& a, const auto& b) { return a.nro < b.nro; });
    if (i.puntos.empty())
        i.motivo = lecturas.lecturas.empty() ? "La columna elegida no tiene ningún valor."
                                             : "Ninguna lectura está entre los tiempos pedidos.";
    else
        Dice(lecturas, pedido, i);
    return i;
}

std::string TextoDeMomento(std::int64_t segundo)
{
    const auto t = static_cast<forms::Instante>(segundo / static_cast<std::int64_t>(SegundosPorMinuto));
    const std::string fecha = forms::TextoFecha(t);  // dd/mm/yyyy
    return fecha.substr(6) + '-' + fecha.substr(3, 2) + '-' + fecha.substr(0, 2) + ' ' + forms::TextoHora(t);
}

}  // namespace calibration
