// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cuadro_ventana.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QFontMetrics>

#include "apoyo/Ventanas.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

/// Widths of the columns of a table in a face of letters [px].
std::vector<int> Anchos(const char* familia, const Cuadro& cuadro, std::vector<int> letras)
{
    apoyo::Mundo mundo;
    TablaCuadro tabla(mundo.entorno, cuadro, "tbl", "Tabla");
    QFont letra(QString::fromUtf8(familia));
    letra.setPixelSize(12);
    tabla.setFont(letra);
    tabla.PonColumnas(std::move(letras));
    std::vector<int> anchos;
    for (int k = 0; k < tabla.model()->columnCount(); ++k)
        anchos.push_back(tabla.columnWidth(k));
    return anchos;
}

// Liberation Sans tells a mean letter of 7 px where its headings take 5.5, as faces of Windows do. A face
// that isn't there is another one, and the same is true of it.
TEST(TablaCuadro, UnaColumnaNoEsMasAnchaQueLoQueDiceSuEncabezado)
{
    Cuadro cuadro;
    PonFilas(cuadro, {.columnas = {{"Duración [min]"}, {"Qp entra [m3/s]"}}, .filas = {{"60", "52.541"}}});
    for (const char* familia : {"DejaVu Sans", "Liberation Sans", "Nimbus Sans"}) {
        QFont letra(QString::fromUtf8(familia));
        letra.setPixelSize(12);
        const std::vector<int> anchos = Anchos(familia, cuadro, {14, 15});
        ASSERT_EQ(anchos.size(), 2U);
        for (std::size_t k = 0; k < anchos.size(); ++k) {
            const int texto =
                QFontMetrics(letra).horizontalAdvance(Q(cuadro.planilla.columnas[k].encabezado));
            EXPECT_LE(anchos[k], texto * 1.1) << familia;
            EXPECT_GE(anchos[k], texto * 0.8) << familia;
        }
    }
}

}  // namespace
}  // namespace forms
