// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Componentes.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Numeros.h"

namespace editor {

using model::Siro;

namespace {

constexpr std::string_view SufijoRHQ = "_RHQ.vlm";

// --- who drains into a component ---

template <typename... Clases>
bool AlgunoDrena(const model::Red& red, const std::string& nombre)
{
    return (std::ranges::any_of(model::Todos<Clases>(red),
                                [&](const auto& c) { return model::DrenaA(c, nombre); }) ||
            ...);
}

void Rechaza(const Siro& s, std::string_view titulo, std::string_view texto, const std::string& nombre)
{
    model::Advierte(s, Texto(texto, nombre, FinTributario), titulo);
}

// --- reaches ---

/// Objects and vertices of the reaches above move down one place; each place keeps its number. A reach that
/// is being drawn gives way, for its caller to put back.
void CierraHueco(model::Red& red, int hueco)
{
    const int cuenta = red.ColCauces.Cuenta();
    for (int i = hueco; i < cuenta; ++i) {
        const std::int16_t numero = red.Cauces(i).numCauce;
        red.Cauces(i) = red.Cauces(i + 1);
        red.Cauces(i).numCauce = numero;
        PonLinea(red, i, Linea(red, i + 1));
    }
    red.ColCauces.Quita(cuenta);
    red.NroVertices(cuenta) = 0;
    RehaceIndices(red);
}

/// Saves what is left. Where that fails the deletion holds in memory, and the numbers close up as a load
/// would have them. Returns whether it was saved.
bool GuardaTrasBorrar(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    if (!f.fallida && model::GuardaRed(s)) {
        f.guardada = true;
        return true;
    }
    f.fallida = true;
    f.guardada = false;
    model::RenumeraComponentes(s);
    return false;
}

}  // namespace

void BorraCauce(frmUEHs& f, Siro& s)
{
    if (!f.trazo.marcaCauce.empty() || !HayEnMano<model::Cauce>(s)) return;
    const int n = s.Seleccion.CauceSel;
    const std::string nombre = s.Red.Cauces(n).NombreCauce;
    if (AlgunoDrena<model::UEH, model::Cauce, model::Lago, model::Represa>(s.Red, nombre)) {
        Rechaza(s, TituloCauceTributario, CauceTributario, nombre);
        return;
    }
    ConservaTrazo(f, s, [&] {
        CierraHueco(s.Red, n);
        GuardaTrasBorrar(f, s);
    });
    Redibuja(f, s);
}

template <typename T>
void Borra(frmUEHs& f, Siro& s)
{
    if (!HayEnMano<T>(s)) return;
    const std::string nombre = model::Nombre(EnMano<T>(s));
    if (!ConIcono<T>.tituloTributario.empty() && AlgunoDrena<model::UEH, model::Cauce>(s.Red, nombre)) {
        Rechaza(s, ConIcono<T>.tituloTributario, ConIcono<T>.tributario, nombre);
        return;
    }
    auto& coleccion = model::Todos<T>(s.Red);
    coleccion.Quita(Elegido<T>(s.Seleccion));
    ConservaTrazo(f, s, [&] {
        if (GuardaTrasBorrar(f, s)) model::ReleeUEHs(s);
    });
    Redibuja(f, s);
    if (!std::is_same_v<T, model::Represa> || s.Red.NroRepresas() == 0) return;
    // The tables are kept by number, and the numbers have moved.
    model::Advierte(s, Texto(VerifiqueRepresas), {});
    f.pedidos.push_back(Pedido::FormaRepresa);
}
template void Borra<model::UEH>(frmUEHs& f, Siro& s);
template void Borra<model::Represa>(frmUEHs& f, Siro& s);
template void Borra<model::Lago>(frmUEHs& f, Siro& s);

void BorraSeleccionados(frmUEHs& f, Siro& s)
{
    const model::Seleccion antes = s.Seleccion;
    BorraCauce(f, s);
    PorClase([&]<typename T>() {
        // The save of a deletion clears the selection, and what it couldn't read again is there no longer.
        const std::int16_t n = Elegido<T>(antes);
        Elegido<T>(s.Seleccion) = n <= model::Todos<T>(s.Red).Cuenta() ? n : std::int16_t{0};
        Borra<T>(f, s);
    });
    Redibuja(f, s);
}

void BorraTodo(frmUEHs& f, Siro& s)
{
    if (!model::Consulta(s, Texto(PreguntaBorraTodo), TituloBorraTodo)) return;
    LimpiaSeleccion(s);
    model::CadaClase(s.Red, [](auto& coleccion) { coleccion.Vacia(); });
    f.trazo.ClicsCauce = 0;
    s.Control.CargaFallida = false;  // the user has seen the network, and wants none
    const std::string tabla = s.Proyecto.NombreProyecto + std::string(SufijoRHQ);  // most networks have none
    model::Sentencia([&] { s.Disco.Borra(model::Ruta(s.Proyecto.DirProyecto, tabla)); },
                     model::SalvoQueFalte);
    Redibuja(f, s);
}

}  // namespace editor
