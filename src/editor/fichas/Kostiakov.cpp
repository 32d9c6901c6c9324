// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/Kostiakov.h"

#include "model/Potencia.h"

namespace editor {

CurvaInfiltracion CurvaKostiakov(double a, double b, double tInicial)
{
    const auto infiltrada = [&](double t) { return a * model::PotenciaRedondeada(t, b); };
    CurvaInfiltracion curva{.tInicial = tInicial, .IInicial = infiltrada(tInicial)};
    const double paso = (tInicial + DuracionCurvaInfiltracion) / TramosCurvaInfiltracion;
    for (int i = 0; i <= TramosCurvaInfiltracion; ++i) {
        curva.t.push_back(i * paso);
        curva.I.push_back(infiltrada(i * paso));
    }
    return curva;
}

}  // namespace editor
