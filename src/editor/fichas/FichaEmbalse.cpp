// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/FichaEmbalse.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/Avisos.h"
#include "model/Numeros.h"

namespace editor {

namespace {

// Kept as they stand.
constexpr std::string_view HastaHMinima = "Ingrese '0' o un valor numérico entre la altura H mímima=";
constexpr std::string_view HastaHMaxima = "y la altura H máxima=";
constexpr std::string_view TrasHMaxima = " dadas en la 'Tabla SHV'";

std::string MensajeHInicialEmb(AlturasTabla alturas)
{
    return std::string(HastaHMinima) + model::NumeroATexto(alturas.minima) + std::string(HastaHMaxima) +
           model::NumeroATexto(alturas.maxima) + std::string(TrasHMaxima);
}

}  // namespace

void MuestraMetodo(FichaEmbalse& f, std::string& Metodo)
{
    auto metodo = std::ranges::find(MetodosEmbalse, Metodo);
    if (metodo == MetodosEmbalse.end()) metodo = std::ranges::find(MetodosEmbalse, PiscinaNivelada);
    Metodo = *metodo;
    f.lstMetodo.items.assign(MetodosEmbalse.begin(), MetodosEmbalse.end());
    EligeMetodo(f, static_cast<int>(metodo - MetodosEmbalse.begin()));
}

bool EligeMetodo(FichaEmbalse& f, int indice)
{
    if (indice < 0 || indice >= static_cast<int>(MetodosEmbalse.size())) return false;
    f.lstMetodo.indice = indice;
    f.lblMetodo = MetodosEmbalse[static_cast<std::size_t>(indice)];
    return true;
}

std::string RotuloDeK(const FichaEmbalse& f)
{
    return f.MuskingumVisible() ? std::string(RotuloK) : f.lblMetodo;
}

bool SaleDeHInicialEmb(FichaEmbalse& f, const model::Siro& s, AlturasTabla alturas)
{
    forms::ReglaNumero regla = ReglaHInicialEmb;
    regla.minimo = double{alturas.minima};
    regla.maximo = double{alturas.maxima};
    // Compared as it is stored: 100.1 isn't above a table that ends at the 32-bit float of 100.1.
    const std::optional<double> x = forms::NumeroDeCampo(f.txtHInicialEmb);
    const auto altura = static_cast<float>(x.value_or(0));
    if (x && (*x == 0 || (std::isfinite(altura) && forms::Cabe(regla, double{altura})))) {
        f.txtHInicialEmb = model::ComasAPuntos(f.txtHInicialEmb);
        return true;
    }
    forms::MuestraRechazo(s, regla.rechazo, MensajeHInicialEmb(alturas));
    f.txtHInicialEmb = regla.alRechazar;
    return false;
}

std::optional<float> AlturaEscrita(const FichaEmbalse& f)
{
    const std::optional<double> x = forms::NumeroDeCampo(f.txtHInicialEmb);
    const auto altura = static_cast<float>(x.value_or(0));
    if (!x || !std::isfinite(altura)) return {};
    return altura;
}

void LlevaTablas(FichaEmbalse& f, const model::Siro& s, std::span<const model::ArchivoDeTablas> archivos,
                 const std::string& nombre)
{
    const auto lleva = [&] {
        const bool alguna = model::RenombraBloques(s, archivos, f.tablasDe, nombre);
        f.tablasDe.clear();
        f.lblTablas.clear();
        if (alguna)
            f.lblTablas = "Las tablas llevan ahora el nombre «" + nombre + "»: guarde la red en el editor.";
    };
    model::Sentencia(lleva, model::AvisaArchivo(s));
}

}  // namespace editor
