// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AvisosLote.h"

#include <array>
#include <string_view>
#include <vector>

#include "checks/AvisosDeCorrida.h"
#include "checks/AvisosDeSerie.h"
#include "checks/EscribeHallazgos.h"
#include "checks/Huella.h"
#include "checks/Json.h"
#include "engine/Calcula.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace batch {
namespace {

using checks::RenglonBalance;

struct Informe {
    std::vector<checks::Hallazgo> avisos{};
    checks::Balance balance{};
    bool conBalance = false;
    std::string huella{};
};

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

/// One storm, run once more as a function, which gives the same bits and tells what it had to say.
Informe DeUna(const model::Siro& s, const model::Tormenta& entrada)
{
    engine::Calculo calculo;
    if (entrada.PpTormenta == 0 || entrada.DurTormenta == 0)
        calculo = {
            engine::FinCalculo::Rechazado, {{{"La lámina o la duración de la tormenta es 0"}}}, {}, {}, {}};
    else
        calculo = engine::Calcula(s.Red, entrada, s.Pasos, s.TablasDeLluvia);
    Informe informe;
    informe.avisos = checks::AvisosDeCorrida(s.Red, entrada, s.Pasos, s.TablasDeLluvia, calculo);
    const checks::Corrido corrido(s.Red, entrada, s.Pasos, calculo);
    informe.conBalance = corrido.TieneResultados();
    if (informe.conBalance) informe.balance = BalanceDe(corrido);
    informe.huella = checks::HuellaDeCorrida(s.Red, entrada, s.Pasos, s.TablasDeLluvia, calculo.Resultados);
    return informe;
}

Informe DeSerie(const model::Siro& s, int hilos)
{
    Informe informe;
    informe.avisos = checks::AvisosDeSerie(s, hilos);
    informe.huella = checks::HuellaDeSerie(s.Red, s.Tormenta, s.Pasos, s.TablasDeLluvia, s.Serie,
                                           checks::TormentasDeSerie(s).numeros, s.Resultados);
    return informe;
}

std::string EnTexto(const Informe& informe)
{
    std::string texto = checks::EnTexto(informe.avisos, "Sin avisos");
    if (informe.conBalance) {
        for (const RenglonBalance& b : informe.balance.componentes)
            texto += EnTexto(b);
        texto += EnTexto(informe.balance.cuenca);
    }
    return texto + "huella " + informe.huella + "\n";
}

std::string EnJson(const Informe& informe)
{
    std::string texto = "{\"avisos\": " + checks::EnJson(informe.avisos);
    if (informe.conBalance) {
        texto += ",\n\"balance\": [\n ";
        for (const RenglonBalance& b : informe.balance.componentes)
            texto += EnJson(b) + ",\n ";
        texto += EnJson(informe.balance.cuenca) + "\n]";
    }
    return texto + ",\n\"huella\": \"" + informe.huella + "\"}\n";
}

}  // namespace

std::string InformeDeAvisos(const model::Siro& s, const model::Tormenta& entrada, const Opciones& o)
{
    const Informe informe = o.orden == Opciones::Orden::Serie ? DeSerie(s, o.hilos) : DeUna(s, entrada);
    return o.json ? EnJson(informe) : EnTexto(informe);
}

}  // namespace batch
