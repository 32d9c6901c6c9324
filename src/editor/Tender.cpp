// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Tender.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "editor/Alcance.h"
#include "editor/ClasesConIcono.h"
#include "editor/EnMano.h"
#include "editor/TextosEdicion.h"
#include "model/Avisos.h"

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
bool LlegaACauce(const model::Red& red, float s, Punto p, Llegada& llegada)
{
    for (int i = 1; i <= CaucesEnteros(red); ++i) {
        if (!CabeceraCerca(red, i, p, AlcanceDeDestino * s)) continue;
        llegada = {red.ColCauces.Item(i).NombreCauce, UltimoVertice(red, i), ConElCauce};
        return true;
    }
    return false;
}

/// The first Represa, or Lago, whose box holds the pointer. Returns false where none does.
template <typename T>
bool LlegaA(const model::Red& red, float s, Punto p, Llegada& llegada)
{
    const int n = Bajo<T>(red, s, p);
    if (n == 0) return false;
    const T& componente = model::Todos<T>(red).Item(n);
    llegada = {model::Nombre(componente), Icono(componente), ConIcono<T>.conDestino};
    return true;
}

/// Whether a Represa or a Lago other than this one drains into a reach already.
template <typename T>
bool OtroDrena(const model::Red& red, const T& este, const std::string& cauce)
{
    const auto drena = [&](const auto& otro) {
        return static_cast<const void*>(&otro) != &este && model::DrenaA(otro, cauce);
    };
    return std::ranges::any_of(red.ColRepresas, drena) || std::ranges::any_of(red.ColLagos, drena);
}

template <typename T>
void AcoplaSiConfirma(Siro& s, const Llegada& llegada)
{
    constexpr const FilaConIcono& clase = ConIcono<T>;
    T& componente = EnMano<T>(s);
    const std::string& nombre = model::Nombre(componente);
    const std::string texto =
        Texto(clase.confirmaArrastre, nombre, llegada.clase, llegada.nombre, CierraNombre);
    if (!model::Consulta(s, texto, TituloConsulta)) return;
    if (!clase.otroAcople.empty() && OtroDrena(s.Red, componente, llegada.nombre)) {
        model::Informa(s, Texto(clase.otroAcople, clase.nombraOtroAcople ? nombre : std::string()));
        return;
    }
    Acopla(componente, llegada.nombre, llegada.en);
}

template <typename T>
void Tiende(frmUEHs& f, Siro& s, Punto p)
{
    const float t = f.vista.TamIcono;
    const Punto icono = Icono(EnMano<T>(s));
    f.gesto.banda = {
        {static_cast<float>(icono.X + InicioBandaX * t), static_cast<float>(icono.Y + InicioBandaY * t)}, p};
    Redibuja(f, s);
    Llegada llegada;
    const bool llega = LlegaACauce(s.Red, t, p, llegada) ||
                       (ConIcono<T>.enlazaEmbalses && (LlegaA<model::Represa>(s.Red, t, p, llegada) ||
                                                       LlegaA<model::Lago>(s.Red, t, p, llegada)));
    if (!llega) return;
    AcoplaSiConfirma<T>(s, llegada);
    AbandonaArrastre(f, s);
}

}  // namespace

void TiendeEnlace(frmUEHs& f, Siro& s, Punto p)
{
    const Arrastra enCurso = f.gesto.arrastra;
    PorClase([&]<typename T>() {
        if (enCurso == ConIcono<T>.enlaza) Tiende<T>(f, s, p);
    });
}

}  // namespace editor
