// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Valores.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Red.h"
#include "model/Tormenta.h"

namespace batch {

double Numero(std::string_view texto)
{
    try {
        if (const auto x = model::NumeroEntero(texto)) return *x;
    } catch (const model::Falla&) {
        throw ValorErroneo{"el número es demasiado grande"};
    }
    throw ValorErroneo{"\"" + std::string(texto) + "\" no es un número"};
}

double NumeroEnteroEntre(std::string_view texto, double menor, double mayor)
{
    const double x = Numero(texto);
    if (x == std::floor(x) && x >= menor && x <= mayor) return x;
    throw ValorErroneo{"debe ser un número entero entre " + model::NumeroATexto(menor) + " y " +
                       model::NumeroATexto(mayor)};
}

std::int16_t Entero(std::string_view texto, double menor, double mayor)
{
    return static_cast<std::int16_t>(NumeroEnteroEntre(texto, menor, mayor));
}

float Lamina(std::string_view texto)
{
    const double x = Numero(texto);
    if (x < 0) throw ValorErroneo{"debe ser 0 o más"};
    try {
        return model::Simple(x);
    } catch (const model::Falla&) {
        throw ValorErroneo{"el número es demasiado grande"};
    }
}

std::vector<float> Laminas(std::string_view texto)
{
    std::vector<float> valores;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t coma = std::min(texto.find(',', desde), texto.size());
        valores.push_back(Lamina(texto.substr(desde, coma - desde)));
        desde = coma + 1;
    }
    if (valores.size() > model::MaxUEHs)
        throw ValorErroneo{"hay más de " + model::NumeroATexto(std::int32_t{model::MaxUEHs}) + " valores"};
    return valores;
}

std::int16_t Forma(std::string_view texto)
{
    const std::int16_t forma = Entero(texto, 0, 4);
    if (forma == model::FormaLluvia::SeriePDR)
        throw ValorErroneo{"una serie P-D-R se corre con la orden serie"};
    return forma;
}

std::vector<std::pair<std::string, std::string>> Pares(std::string_view texto)
{
    std::vector<std::pair<std::string, std::string>> pares;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t coma = std::min(texto.find(',', desde), texto.size());
        const std::string_view par = texto.substr(desde, coma - desde);
        const std::size_t igual = par.find('=');
        if (igual == std::string_view::npos || igual == 0 || igual + 1 == par.size())
            throw ValorErroneo{"\"" + std::string(par) + "\" no tiene la forma nombre=valor"};
        pares.emplace_back(par.substr(0, igual), par.substr(igual + 1));
        desde = coma + 1;
    }
    return pares;
}

std::vector<std::pair<double, std::string>> Series(std::string_view texto)
{
    std::vector<std::pair<double, std::string>> series;
    for (const auto& [duracion, archivo] : Pares(texto))
        series.emplace_back(Numero(duracion), archivo);
    return series;
}

std::vector<study::Razon> Razones(std::string_view texto)
{
    std::vector<study::Razon> razones;
    for (const auto& [duracion, razon] : Pares(texto))
        razones.push_back({Numero(duracion), Numero(razon)});
    return razones;
}

std::vector<study::Coeficiente> Coeficientes(std::string_view texto)
{
    std::vector<study::Coeficiente> coeficientes;
    for (const auto& [nombre, valor] : Pares(texto)) {
        const std::size_t arroba = std::min(nombre.find('@'), nombre.size());
        const double recurrencia = arroba < nombre.size() ? Numero(nombre.substr(arroba + 1)) : 0;
        coeficientes.push_back({nombre.substr(0, arroba), Numero(valor), recurrencia});
    }
    return coeficientes;
}

bool EsDiaria(std::string_view texto)
{
    if (texto != "diaria" && texto != "corrida") throw ValorErroneo{"debe ser diaria o corrida"};
    return texto == "diaria";
}

bool EsRelativo(std::string_view texto)
{
    if (texto != "log" && texto != "relativo") throw ValorErroneo{"debe ser log o relativo"};
    return texto == "relativo";
}

double Positivo(std::string_view texto)
{
    const double x = Numero(texto);
    if (x <= 0) throw ValorErroneo{"debe ser mayor que 0"};
    return x;
}

std::string ConBlancos(std::string texto)
{
    std::replace(texto.begin(), texto.end(), ',', ' ');
    return texto;
}

std::vector<std::int16_t> DeLaLista(std::string_view texto, std::span<const std::int16_t> lista)
{
    std::vector<std::int16_t> elegidos;
    for (std::size_t desde = 0; desde <= texto.size();) {
        const std::size_t coma = std::min(texto.find(',', desde), texto.size());
        const auto x =
            static_cast<std::int16_t>(NumeroEnteroEntre(texto.substr(desde, coma - desde), 1, 10000));
        if (std::find(lista.begin(), lista.end(), x) == lista.end())
            throw ValorErroneo{model::NumeroATexto(std::int32_t{x}) +
                               " no está entre los de las tablas P-D-R"};
        elegidos.push_back(x);
        desde = coma + 1;
    }
    std::sort(elegidos.begin(), elegidos.end());
    elegidos.erase(std::unique(elegidos.begin(), elegidos.end()), elegidos.end());
    return elegidos;
}

bool RespondeSi(std::string_view texto)
{
    if (texto != "si" && texto != "no") throw ValorErroneo{"debe ser si o no"};
    return texto == "si";
}

int Hilos(std::string_view texto)
{
    constexpr double MaximoHilos = 1024;
    return static_cast<int>(NumeroEnteroEntre(texto, 0, MaximoHilos));
}

std::string Metodo(const std::string& texto)
{
    if (texto != "momentos" && texto != "l" && texto != "mv") throw ValorErroneo{"debe ser momentos, l o mv"};
    return texto;
}

std::string Bajos(const std::string& texto)
{
    if (texto != "17b" && texto != "17c") throw ValorErroneo{"debe ser 17b o 17c"};
    return texto;
}

std::string NombreDeCorrida(const std::string& texto)
{
    if (texto.empty()) throw ValorErroneo{"debe ser un nombre"};
    return texto;
}

double NumeroEntre(std::string_view texto, double menor, double mayor)
{
    const double x = Numero(texto);
    if (x >= menor && x <= mayor) return x;
    throw ValorErroneo{"debe ser un número entre " + model::NumeroATexto(menor) + " y " +
                       model::NumeroATexto(mayor)};
}

int Remuestras(std::string_view texto)
{
    constexpr double Menos = 100, Mas = 100000;
    const double n = NumeroEnteroEntre(texto, 0, Mas);
    if (n > 0 && n < Menos) throw ValorErroneo{"debe ser 0, o 100 o más"};
    return static_cast<int>(n);
}

Parte ParteDe(std::string_view texto)
{
    constexpr double MaximoDePartes = 100000;
    const std::size_t barra = texto.find('/');
    if (barra == std::string_view::npos) throw ValorErroneo{"debe tener la forma i/n"};
    Parte p;
    p.de = static_cast<int>(NumeroEnteroEntre(texto.substr(barra + 1), 1, MaximoDePartes));
    p.cual = static_cast<int>(NumeroEnteroEntre(texto.substr(0, barra), 1, p.de));
    return p;
}

}  // namespace batch
