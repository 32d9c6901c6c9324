// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Tender.h"

#include <string>
#include <string_view>

#include "editor/Alcance.h"
#include "editor/Cauces.h"
#include "editor/ClasesConIcono.h"
#include "editor/Destinos.h"
#include "editor/TextosEdicion.h"
#include "model/Avisos.h"
#include "model/Clases.h"

namespace editor {

using model::Siro;

namespace {

constexpr double InicioBandaX = 1.5, InicioBandaY = 0.25;  // from the position of the icon [sizes s]

/// What a link has come to.
struct Llegada {
    std::string nombre{};
    Punto en{};                ///< where the component will meet it
    std::string_view clase{};  ///< how the question goes on after the component's name
};

/// The first reach whose head is near the pointer. Returns false where none is.
bool LlegaACauce(const frmUEHs& f, const Siro& s, Punto p, Llegada& llegada)
{
    for (int i = 1; i <= CaucesEnteros(s); ++i) {
        if (!CabeceraCerca(s, i, p, AlcanceDeDestino * f.TamIcono)) continue;
        llegada = {s.Red.ColCauces.Item(i).NombreCauce, UltimoVertice(s, i), ConElCauce};
        return true;
    }
    return false;
}

/// The first Represa, or Lago, whose box holds the pointer. Returns false where none does.
bool LlegaAEmbalse(const frmUEHs& f, const Siro& s, Punto p, Llegada& llegada)
{
    const auto llega = [&](const auto& clase) {
        const int n = Bajo(f, s, clase, p);
        if (n == 0) return false;
        const auto& componente = (s.Red.*clase.coleccion).Item(n);
        llegada = {componente.*clase.nombre, Icono(clase, componente), clase.conDestino};
        return true;
    };
    return llega(ClaseRepresa) || llega(ClaseLago);
}

/// Whether a Represa or a Lago other than this component drains into a reach already.
template <typename T>
bool OtroDrena(const Siro& s, const T& este, const std::string& cauce)
{
    const auto drena = [&](const auto& coleccion) {
        for (const auto& otro : coleccion)
            if (static_cast<const void*>(&otro) != &este && model::DrenaA(otro, cauce)) return true;
        return false;
    };
    return drena(s.Red.ColRepresas) || drena(s.Red.ColLagos);
}

template <typename T, int Limite>
void AcoplaSiConfirma(Siro& s, const ClaseConIcono<T, Limite>& clase, const Llegada& llegada)
{
    T& componente = Elegido(s, clase);
    const std::string& nombre = componente.*clase.nombre;
    const std::string texto =
        Texto(clase.confirmaArrastre, nombre, llegada.clase, llegada.nombre, CierraNombre);
    if (!model::Consulta(s, texto, TituloConsulta)) return;
    if (!clase.otroAcople.empty() && OtroDrena(s, componente, llegada.nombre)) {
        model::Informa(s, Texto(clase.otroAcople, clase.nombraOtroAcople ? nombre : std::string()));
        return;
    }
    Acopla(componente, llegada.nombre, llegada.en);
}

template <typename T, int Limite>
void Tiende(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase, Punto p)
{
    const Punto icono = Icono(clase, Elegido(s, clase));
    f.banda = {{static_cast<float>(icono.X + InicioBandaX * f.TamIcono),
                static_cast<float>(icono.Y + InicioBandaY * f.TamIcono)},
               p};
    Redibuja(f, s);
    Llegada llegada;
    if (!LlegaACauce(f, s, p, llegada) && !(clase.enlazaEmbalses && LlegaAEmbalse(f, s, p, llegada))) return;
    AcoplaSiConfirma(s, clase, llegada);
    AbandonaArrastre(f, s);
}

}  // namespace

void TiendeEnlace(frmUEHs& f, Siro& s, Punto p)
{
    const Arrastra enCurso = f.arrastra;
    PorClase([&](const auto& clase) {
        if (enCurso == clase.enlaza) Tiende(f, s, clase, p);
    });
}

}  // namespace editor
