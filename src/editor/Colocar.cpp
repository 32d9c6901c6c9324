// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <string>

#include "editor/ClasesConIcono.h"
#include "editor/Edicion.h"
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
template <typename T, int Limite>
std::optional<std::string> NombreEn(const Siro& s, const ClaseConIcono<T, Limite>& clase, Punto en)
{
    for (const T& componente : s.Red.*clase.coleccion)
        if (Icono(clase, componente) == en) return componente.*clase.nombre;
    return {};
}

template <typename T, int Limite>
T Nuevo(const ClaseConIcono<T, Limite>& clase, int n, Punto en)
{
    T nuevo = clase.nuevo();
    nuevo.*clase.numero = model::Entero16(n);
    nuevo.*clase.nombre = clase.marca;  // until it gets its own
    nuevo.*clase.x = en.X;
    nuevo.*clase.y = en.Y;
    return nuevo;
}

template <typename T, int Limite>
void Coloca(frmUEHs& f, Siro& s, const ClaseConIcono<T, Limite>& clase, Punto en)
{
    auto& coleccion = s.Red.*clase.coleccion;
    const int n = coleccion.Cuenta() + 1;
    if (n > Limite) throw model::Falla{model::NumeroFalla::Subindice};
    const std::optional<std::string> otro = NombreEn(s, clase, en);
    coleccion.Agrega(Nuevo(clase, n, en));
    s.Red.*clase.cuenta = model::Entero16(n);

    std::optional<std::string> nombre;
    if (otro) {
        model::Advierte(s, Texto(clase.yaExiste, *otro, EnEsaPosicion), {});
    } else {
        nombre = PideNombre(s, clase.pide, coleccion, clase.nombre);
    }
    if (!nombre) {
        s.Seleccion.*clase.elegido = model::Entero16(n);
        clase.borra(f, s);
        return;
    }
    coleccion.Item(n).*clase.nombre = *nombre;
    Redibuja(f, s);
}

}  // namespace

void ColocaUEH(frmUEHs& f, Siro& s, Punto en)
{
    Coloca(f, s, ClaseUEH, en);
}

void ColocaRepresa(frmUEHs& f, Siro& s, Punto en)
{
    Coloca(f, s, ClaseRepresa, en);
}

void ColocaLago(frmUEHs& f, Siro& s, Punto en)
{
    Coloca(f, s, ClaseLago, en);
}

}  // namespace editor
