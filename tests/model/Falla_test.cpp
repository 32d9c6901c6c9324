// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Falla.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

using namespace model;

namespace {

TEST(Falla, CadaNumeroConSuDescripcion)
{
    struct Renglon {
        NumeroFalla falla;
        int numero;
        std::string_view descripcion;
    };
    for (const Renglon& r : std::vector<Renglon>{
             {NumeroFalla::Argumento, 5, "Argumento o llamada a procedimiento no válidos"},
             {NumeroFalla::Desbordamiento, 6, "Desbordamiento"},
             {NumeroFalla::Subindice, 9, "El subíndice está fuera del intervalo"},
             {NumeroFalla::DivisionPorCero, 11, "División por cero"},
             {NumeroFalla::Tipos, 13, "No coinciden los tipos"},
             {NumeroFalla::ArchivoNoEsta, 53, "No se encontró el archivo"},
             {NumeroFalla::FinDeArchivo, 62, "La entrada de datos sobrepasó el final del archivo"},
             {NumeroFalla::AccesoRuta, 75, "Error de acceso a la ruta o al archivo"},
             {NumeroFalla::RutaNoEsta, 76, "No se encontró la ruta de acceso"},
             {NumeroFalla::ObjetoNoEstablecido, 91, "Variable de objeto no establecida"},
         }) {
        EXPECT_EQ(static_cast<int>(r.falla), r.numero);
        EXPECT_EQ(DescripcionFalla(r.falla), r.descripcion) << r.numero;
    }
}

TEST(Falla, UnNumeroQueNoEsDeLaTablaNoTieneDescripcion)
{
    EXPECT_EQ(DescripcionFalla(static_cast<NumeroFalla>(7)), "");
    EXPECT_EQ(DescripcionFalla(static_cast<NumeroFalla>(0)), "");
}

}  // namespace
