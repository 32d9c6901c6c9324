// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <string>

#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
#include "editor/EnMano.h"
#include "editor/TextosEdicion.h"
#include "editor/frmUEHs.h"
#include "model/Avisos.h"
#include "model/Falla.h"
#include "model/Numeros.h"

// Placing components with an icon.
namespace editor {

using model::Siro;

namespace {

/// Name of the first component at exactly this position.
template <typename T>
std::optional<std::string> NombreEn(const model::Red& red, Punto en)
{
    for (const T& componente : model::Todos<T>(red))
        if (Icono(componente) == en) return model::Nombre(componente);
    return {};
}

template <typename T>
T Nuevo(int n, Punto en)
{
    T nuevo{.Metodo = std::string(ConIcono<T>.Metodo)};
    if constexpr (std::is_same_v<T, model::Represa>) nuevo.optTabla = true;
    model::Numero(nuevo) = model::Entero16(n);
    model::Nombre(nuevo) = ConIcono<T>.marca;  // until it gets its own
    PonIcono(nuevo, en);
    return nuevo;
}

template <typename T>
bool ColocaDeClase(frmUEHs& f, Siro& s, Punto en)
{
    auto& coleccion = model::Todos<T>(s.Red);
    const int n = coleccion.Cuenta() + 1;
    if (n > coleccion.Limite) throw model::Falla{model::NumeroFalla::Subindice};
    const std::optional<std::string> otro = NombreEn<T>(s.Red, en);
    coleccion.Agrega(Nuevo<T>(n, en));

    std::optional<std::string> nombre;
    if (otro) {
        model::Advierte(s, Texto(ConIcono<T>.yaExiste, *otro, EnEsaPosicion), {});
    } else {
        nombre = PideNombre<T>(s.Anfitrion, s.Red, ConIcono<T>.pide);
    }
    if (!nombre) {
        Elegido<T>(s.Seleccion) = model::Entero16(n);
        Borra<T>(f, s);
        return true;
    }
    model::Nombre(coleccion.Item(n)) = *nombre;
    Redibuja(f, s);
    return true;
}

}  // namespace

bool Coloca(frmUEHs& f, Siro& s, Punto en)
{
    switch (Modo(f)) {
    case Boton::UEH:
        return ColocaDeClase<model::UEH>(f, s, en);
    case Boton::Represa:
        return ColocaDeClase<model::Represa>(f, s, en);
    case Boton::LAGO:
        return ColocaDeClase<model::Lago>(f, s, en);
    default:
        return false;
    }
}

}  // namespace editor
