// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivosTormenta.h"

#include <algorithm>

#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view ArchivoDisPer = "distriPp_dpt.vlm";

/// Changes the columns of a table of rain and keeps what it holds; the first time it is allocated.
template <typename T>
void Ajusta(Matriz<T>& tabla, int ultimaFila, int columnas)
{
    if (tabla.TopeColumna() < 0) {
        tabla.Dimensiona(ultimaFila, columnas);
    } else {
        tabla.Redimensiona(columnas);
    }
}

// Both table files leave nothing to be seen of tables 1 to 3 where they can't be read to their end. Slot 0
// is no concern of a failure.
void AnulaFilas(Siro& s)
{
    std::fill(s.NroFilasTabla.begin() + 1, s.NroFilasTabla.end(), std::int16_t{0});
}

void LeeUnaDisPer(Siro& s, LectorRegistros& lector, int k)
{
    const auto ranura = static_cast<std::size_t>(k);
    s.NotasDisPer[ranura] = lector.Texto();
    lector.Registro(2, [&] {
        const auto minima = lector.Numero16();
        const auto maxima = lector.Numero16();
        s.DurMinPer[ranura] = minima;
        s.DurMaxPer[ranura] = maxima;
    });
    // The decimals that the file holds end here: the variable that takes the field is a whole number.
    for (int j = 1; j <= s.NroFilasTabla[ranura]; ++j)
        s.DisPerso(k, j) = lector.Numero16();
}

}  // namespace

void LeeTablaDisTemPer(Siro& s)
{
    s.ArchivoTemp = Ruta(s.DirTrabajo, ArchivoDisPer);
    try {
        LectorRegistros lector(s.Disco.Lee(s.ArchivoTemp));
        lector.Registro(3, [&] {
            const auto n1 = lector.Numero16();
            const auto n2 = lector.Numero16();
            const auto n3 = lector.Numero16();
            s.NroFilasTabla[1] = n1;
            s.NroFilasTabla[2] = n2;
            s.NroFilasTabla[3] = n3;
        });
        const auto mayor = std::max({s.NroFilasTabla[1], s.NroFilasTabla[2], s.NroFilasTabla[3]});
        Ajusta(s.DisPerso, 3, Suma16(mayor, 1));
        for (int k = 1; k <= 3; ++k)
            for (int j = 1; j <= s.NroFilasTabla[static_cast<std::size_t>(k)]; ++j)
                s.DisPerso(k, j) = 0;
        for (int k = 1; k <= 3; ++k)
            LeeUnaDisPer(s, lector, k);
    } catch (const Falla&) {
        AnulaFilas(s);
    }
}

}  // namespace model
