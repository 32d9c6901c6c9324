// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AvisosLote.h"

#include <array>
#include <string_view>

#include "checks/EscribeHallazgos.h"
#include "checks/Json.h"
#include "checks/UltimaCorrida.h"
#include "model/Numeros.h"

namespace batch {
namespace {

using checks::RenglonBalance;
using checks::UltimaCorrida;

/// A column of a balance.
struct ColumnaBalance {
    std::string_view clave, rotulo;
    double (*valor)(const RenglonBalance& b);
};

constexpr auto Columnas = std::to_array<ColumnaBalance>({
    {"entra", "entra", [](const RenglonBalance& b) { return b.entra; }},
    {"sale", "sale", [](const RenglonBalance& b) { return b.sale; }},
    {"perdido", "se retiene o infiltra", [](const RenglonBalance& b) { return b.perdido; }},
    {"almacenado", "se almacena", [](const RenglonBalance& b) { return b.almacenado; }},
    {"cortado", "corta el final", [](const RenglonBalance& b) { return b.cortado; }},
    {"error", "error", [](const RenglonBalance& b) { return b.Error(); }},
});

std::string Cifra(double x, int decimales)
{
    return model::NumeroATexto(model::Redondea(x, decimales));
}

std::string EnTexto(const RenglonBalance& b)
{
    std::string linea = "balance ";
    linea += b.componente.empty() ? std::string_view("*") : b.componente;
    for (const ColumnaBalance& c : Columnas)
        linea.append(&c == Columnas.data() ? ": " : ", ")
            .append(c.rotulo)
            .append(" ")
            .append(Cifra(c.valor(b), 0))
            .append(" m3");
    return checks::EnUnRenglon(linea + " (" + Cifra(b.PorCiento(), 3) + " %)") + "\n";
}

std::string EnJson(const RenglonBalance& b)
{
    std::string objeto = "{\"componente\": " + checks::Citado(b.componente);
    for (const ColumnaBalance& c : Columnas)
        objeto.append(", \"").append(c.clave).append("\": ").append(Cifra(c.valor(b), 3));
    return objeto + ", \"errorPorCiento\": " + Cifra(b.PorCiento(), 6) + "}";
}

std::string EnTexto(const UltimaCorrida& informe)
{
    std::string texto = checks::EnTexto(informe.avisos, "Sin avisos");
    if (informe.balance) {
        for (const RenglonBalance& b : informe.balance->componentes)
            texto += EnTexto(b);
        texto += EnTexto(informe.balance->cuenca);
    }
    return texto + "huella " + informe.huella + "\n";
}

std::string EnJson(const UltimaCorrida& informe)
{
    std::string texto = "{\"avisos\": " + checks::EnJson(informe.avisos);
    if (informe.balance) {
        texto += ",\n\"balance\": [\n ";
        for (const RenglonBalance& b : informe.balance->componentes)
            texto += EnJson(b) + ",\n ";
        texto += EnJson(informe.balance->cuenca) + "\n]";
    }
    return texto + ",\n\"huella\": \"" + informe.huella + "\"}\n";
}

}  // namespace

std::string InformeDeAvisos(const model::Siro& s, const model::Tormenta& entrada, bool completa,
                            const Opciones& o, checks::VigiaDeSerie& vigia)
{
    const auto corrida = o.orden == Opciones::Orden::Serie ? UltimaCorrida::DeSerie(s, o.hilos, &vigia)
                                                           : UltimaCorrida::DeUna(s, entrada, completa);
    return o.json ? EnJson(*corrida) : EnTexto(*corrida);
}

}  // namespace batch
