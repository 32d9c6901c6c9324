// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Componentes.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Numeros.h"

namespace editor {

using model::Entero16;
using model::Siro;

namespace {

constexpr std::string_view SufijoRHQ = "_RHQ.vlm";

// --- who drains into a component ---

template <typename Coleccion>
bool AlgunoDrena(const Coleccion& coleccion, const std::string& nombre)
{
    return std::any_of(coleccion.begin(), coleccion.end(),
                       [&](const auto& c) { return model::DrenaA(c, nombre); });
}

bool DrenaUEHoCauce(const Siro& s, const std::string& nombre)
{
    return AlgunoDrena(s.Red.ColUEHs, nombre) || AlgunoDrena(s.Red.ColCauces, nombre);
}

bool DrenaAlguno(const Siro& s, const std::string& nombre)
{
    return DrenaUEHoCauce(s, nombre) || AlgunoDrena(s.Red.ColLagos, nombre) ||
           AlgunoDrena(s.Red.ColRepresas, nombre);
}

void Rechaza(const Siro& s, std::string_view titulo, std::string_view texto, const std::string& nombre)
{
    model::Advierte(s, Texto(texto, nombre, FinTributario), titulo);
}

// --- reaches ---

/// Objects and vertices of the reaches above move down one place; each place keeps its number. A reach that
/// is being drawn gives way, for its caller to put back.
void CierraHueco(Siro& s, int hueco)
{
    const int cuenta = s.Red.ColCauces.Cuenta();
    for (int i = hueco; i < cuenta; ++i) {
        const std::int16_t numero = s.Red.Cauces(i).numCauce;
        s.Red.Cauces(i) = s.Red.Cauces(i + 1);
        s.Red.Cauces(i).numCauce = numero;
        s.Red.NroVertices(i) = s.Red.NroVertices(i + 1);
        for (int j = 1; j <= s.Red.NroVertices(i); ++j)
            PonVertice(s, i, j, Vertice(s, i + 1, j));
    }
    s.Red.ColCauces.Quita(cuenta);
    s.Red.NroVertices(cuenta) = 0;
    s.Red.NroCauces = Entero16(s.Red.ColCauces.Cuenta());
    RehaceIndices(s);
}

/// Saves what is left. Where that fails the deletion holds in memory, and the numbers close up as a load
/// would have them. Returns whether it was saved.
bool GuardaTrasBorrar(frmUEHs& f, Siro& s)
{
    LimpiaSeleccion(s);
    if (!f.fallida && model::mnu_btn_toolbarGuardaUEHs(s)) {
        f.guardada = true;
        return true;
    }
    f.fallida = true;
    f.guardada = false;
    model::RenumeraComponentes(s);
    return false;
}

// --- components with an icon ---

/// Deletes the selected component of a kind. Returns false where it was refused, or none was selected.
template <typename T, int Limite>
bool BorraElegido(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase)
{
    const int n = s.Seleccion.*clase.elegido;
    auto& coleccion = s.Red.*clase.coleccion;
    if (n < 1 || n > coleccion.Cuenta()) return false;
    const std::string nombre = coleccion.Item(n).*clase.nombre;
    if (!clase.tituloTributario.empty() && DrenaUEHoCauce(s, nombre)) {
        Rechaza(s, clase.tituloTributario, clase.tributario, nombre);
        return false;
    }
    coleccion.Quita(n);
    s.Red.*clase.cuenta = Entero16(coleccion.Cuenta());
    ConservaTrazo(f, s, [&] {
        if (GuardaTrasBorrar(f, s)) model::ReleeUEHs(s);
    });
    Redibuja(f, s);
    return true;
}

}  // namespace

void BorraCauce(frmUEHs& f, Siro& s)
{
    const int n = s.Seleccion.CauceSel;
    if (!f.marcaCauce.empty() || n < 1 || n > CaucesEnteros(s)) return;
    const std::string nombre = s.Red.Cauces(n).NombreCauce;
    if (DrenaAlguno(s, nombre)) {
        Rechaza(s, TituloCauceTributario, CauceTributario, nombre);
        return;
    }
    ConservaTrazo(f, s, [&] {
        CierraHueco(s, n);
        GuardaTrasBorrar(f, s);
    });
    Redibuja(f, s);
}

void BorraUEH(frmUEHs& f, Siro& s)
{
    BorraElegido(f, s, ClaseUEH);
}

void BorraRepresa(frmUEHs& f, Siro& s)
{
    if (!BorraElegido(f, s, ClaseRepresa) || s.Red.NroRepresas == 0) return;
    // The tables are kept by number, and the numbers have moved.
    model::Advierte(s, Texto(VerifiqueRepresas), {});
    f.pedidos.push_back(Pedido::FormaRepresa);
}

void BorraLago(frmUEHs& f, Siro& s)
{
    BorraElegido(f, s, ClaseLago);
}

void BorraSeleccionados(frmUEHs& f, Siro& s)
{
    const std::int16_t UEH = s.Seleccion.UEHSel, represa = s.Seleccion.RepresaSel, lago = s.Seleccion.LagoSel;
    BorraCauce(f, s);
    // The save of a deletion clears the selection, and what it couldn't read again is there no longer.
    s.Seleccion.UEHSel = UEH <= s.Red.ColUEHs.Cuenta() ? UEH : std::int16_t{0};
    BorraUEH(f, s);
    s.Seleccion.RepresaSel = represa <= s.Red.ColRepresas.Cuenta() ? represa : std::int16_t{0};
    BorraRepresa(f, s);
    s.Seleccion.LagoSel = lago <= s.Red.ColLagos.Cuenta() ? lago : std::int16_t{0};
    BorraLago(f, s);
    Redibuja(f, s);
}

void BorraTodo(frmUEHs& f, Siro& s)
{
    if (!model::Consulta(s, Texto(PreguntaBorraTodo), TituloBorraTodo)) return;
    LimpiaSeleccion(s);
    s.Red.ColCauces.Vacia();
    PorClase([&](const auto& clase) {
        (s.Red.*clase.coleccion).Vacia();
        s.Red.*clase.cuenta = 0;
    });
    s.Red.NroCauces = f.ClicsCauce = 0;
    s.Control.CargaFallida = false;  // the user has seen the network, and wants none
    try {
        s.Disco.Borra(
            model::Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto + std::string(SufijoRHQ)));
    } catch (const model::Falla& falla) {
        if (falla.numero != model::NumeroFalla::ArchivoNoEsta) throw;  // most networks have none
    }
    Redibuja(f, s);
}

}  // namespace editor
