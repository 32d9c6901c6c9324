// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgVerificar.h"

#include <charconv>
#include <cmath>
#include <utility>

#include "forms/Procedencia.h"

namespace checks {

namespace {

constexpr int Cifras = 6, CifrasDeDesvio = 2;

/// A number with so many digits; empty where there is none.
std::string Numero(double x, int cifras = Cifras)
{
    if (std::isnan(x)) return {};
    std::array<char, 32> lugar{};
    const auto fin =
        std::to_chars(lugar.data(), lugar.data() + lugar.size(), x, std::chars_format::general, cifras);
    return {lugar.data(), fin.ptr};
}

/// Tenths of a second, "0.6".
std::string Segundos(double segundos)
{
    std::array<char, 32> lugar{};
    const auto fin =
        std::to_chars(lugar.data(), lugar.data() + lugar.size(), segundos, std::chars_format::fixed, 1);
    return {lugar.data(), fin.ptr};
}

std::string_view Origen(const Caso& c)
{
    return c.recalculado ? "recalculada" : "impresa";
}

std::vector<forms::ColumnaPlanilla> Columnas()
{
    return {{"Nro."},         {"Caso", true},   {"Se compara", true},
            {"Cifra"},        {"Origen", true}, {"SIRO"},
            {"Desvío"},       {"Tolerancia"},   {"Estado", true},
            {"Cifras"},       {"Eje", true},    {"Donde"},
            {"Fuente", true}, {"Datos", true},  {"Por qué esa tolerancia", true}};
}

std::vector<std::string> Fila(const Caso& c, std::size_t numero)
{
    return {std::to_string(numero),
            std::string(c.nombre),
            std::string(c.magnitud),
            Numero(c.impreso),
            std::string(Origen(c)),
            Numero(c.nuestro),
            Numero(c.desvio, CifrasDeDesvio),
            Numero(c.tolerancia),
            c.Fuera() ? "FUERA" : "bien",
            std::to_string(CuantasCifras(c)),
            std::string(c.serie.eje),
            Numero(c.x),
            std::string(c.fuente),
            std::string(c.entrada),
            std::string(c.porque)};
}

std::string Suma(const std::vector<Caso>& casos, double segundos)
{
    return std::to_string(casos.size()) + (casos.size() == 1 ? " caso, " : " casos, ") +
           std::to_string(CuantosFuera(casos)) + " fuera de tolerancia, en " + Segundos(segundos) + " s";
}

std::string Desvio(const Caso& c)
{
    const std::string donde = std::string(c.serie.eje) + " = " + Numero(c.x);
    if (std::isnan(c.desvio)) return "la corrida no llegó al fin";
    return "desvío " + Numero(c.desvio, CifrasDeDesvio) + " en " + donde;
}

}  // namespace

void Empieza(dlgVerificar& f)
{
    f.abierta = f.corriendo = true;
    f.hechos = f.total = 0;
}

void Avanza(dlgVerificar& f, std::size_t hechos, std::size_t total)
{
    f.hechos = hechos;
    f.total = total;
}

void Cancela(dlgVerificar& f)
{
    f.corriendo = false;
    if (f.casos.empty()) f.lblSuma = "Verificación cancelada";
}

void Termina(dlgVerificar& f, const model::Siro& s, std::vector<Caso> casos, double segundos)
{
    f.corriendo = false;
    f.casos = std::move(casos);
    f.lblSuma = Suma(f.casos, segundos);
    forms::Planilla p{{std::string(TituloDlgVerificar), f.lblSuma, forms::FechaDelDia(s)}, Columnas(), {}};
    for (std::size_t k = 0; k < f.casos.size(); ++k)
        p.filas.push_back(Fila(f.casos[k], k + 1));
    forms::PonFilas(f.tblCasos, std::move(p));
    tblCasos_Mueve(f, f.caso < f.casos.size() ? f.caso : 0);
}

void tblCasos_Mueve(dlgVerificar& f, std::size_t fila)
{
    f.caso = fila;
    if (fila >= f.casos.size()) {
        f.lblCaso = f.lblFuente = f.lblEntrada = f.lblCompara = f.lblCifra = f.lblTolerancia = "";
        f.Grafico = {};
        return;
    }
    const Caso& c = f.casos[fila];
    const std::size_t cifras = CuantasCifras(c);
    f.lblCaso = c.nombre;
    f.lblFuente = c.fuente;
    f.lblEntrada = c.entrada;
    f.lblCompara = std::string(c.magnitud) +
                   (cifras == 1 ? ", una cifra; " : ", " + std::to_string(cifras) + " cifras; la peor: ") +
                   Desvio(c);
    f.lblCifra = c.recalculado ? "recalculada, no está impresa en la fuente" : "impresa en la fuente";
    f.lblTolerancia = Numero(c.tolerancia) + ": " + std::string(c.porque);
    f.Grafico = GraficoDeCaso(c);
}

void AlPulsarEncabezado(dlgVerificar& f, int columna)
{
    forms::PulsaEncabezado(f.tblCasos, columna);
}

forms::Planilla ParaImprimir(const dlgVerificar& f)
{
    forms::Planilla p = forms::ALaVista(f.tblCasos);
    p.columnas.resize(NroColumnasDeCaso);
    for (auto& fila : p.filas)
        fila.resize(NroColumnasDeCaso);
    for (std::size_t k = 0; k < f.casos.size(); ++k)
        p.titulos.push_back(std::to_string(k + 1) + ". " + std::string(f.casos[k].fuente));
    return p;
}

void OKButton(dlgVerificar& f)
{
    f.abierta = false;
}

forms::Grafico GraficoDeCaso(const Caso& c)
{
    const std::string nombre = c.recalculado ? "Recalculada" : "Impresa";
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.titulo = c.nombre;
    g.salvedad = "Fuente: " + std::string(c.fuente);
    g.ejeX = c.serie.eje;
    g.ejeY = c.magnitud;
    g.leyendaVisible = true;
    g.tituloLeyenda = "Cifra";
    for (const double x : c.serie.x)
        g.categorias.push_back(Numero(x));
    g.series = {{forms::TipoSerie::Linea2D, nombre, false, c.serie.impreso},
                {forms::TipoSerie::Linea2D, "SIRO", false, c.serie.nuestro}};
    for (std::size_t k = 0; k < c.serie.impreso.size(); ++k)
        if (!std::isnan(c.serie.impreso[k]))
            g.marcas.push_back({0, k, CuantasCifras(c) == 1 ? Numero(c.serie.impreso[k]) : ""});
    return g;
}

}  // namespace checks
