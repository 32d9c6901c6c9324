// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Calendario.h"

#include <gtest/gtest.h>

#include "model/Falla.h"

namespace forms {
namespace {

TEST(CalendarioGregoriano, ElPrimerDiaEsElUnoDeEneroDelAnnoUno)
{
    EXPECT_EQ(ComienzoDelDia(1, 1, 1), 0);
    EXPECT_EQ(ComienzoDelDia(2, 1, 1), 1440);
    // 1 to 1000 hold 250 leap years by fours, less 10 centuries, plus 2 by four hundreds: 242.
    EXPECT_EQ(ComienzoDelDia(1, 1, 1001), (1000LL * 365 + 242) * 1440);
}

TEST(CalendarioGregoriano, LosSiglosSonBisiestosCadaCuatrocientosAnnos)
{
    EXPECT_TRUE(ComienzoDelDia(29, 2, 2000));
    EXPECT_TRUE(ComienzoDelDia(29, 2, 1992));
    EXPECT_FALSE(ComienzoDelDia(29, 2, 1900));
    EXPECT_FALSE(ComienzoDelDia(29, 2, 1500));  // proleptic: a leap year of the older calendar
    EXPECT_FALSE(ComienzoDelDia(29, 2, 1991));
}

TEST(CalendarioGregoriano, LosDiasQueNoExistenNoSonFecha)
{
    EXPECT_FALSE(ComienzoDelDia(31, 4, 2004));
    EXPECT_FALSE(ComienzoDelDia(0, 4, 2004));
    EXPECT_FALSE(ComienzoDelDia(1, 13, 2004));
    EXPECT_FALSE(ComienzoDelDia(1, 0, 2004));
    EXPECT_FALSE(ComienzoDelDia(1, 1, 0));
    EXPECT_FALSE(ComienzoDelDia(1, 1, 10000));
}

TEST(CalendarioGregoriano, LasFechasDeTextoSonDiaMesYAnno)
{
    EXPECT_EQ(FechaDeTexto("01/01/0001"), 0);
    EXPECT_EQ(FechaDeTexto("2/1/1"), 1440);
    for (const char* mala : {"", "01-01-2004", "1/1", "a/1/2004", "-1/1/2004", "001/1/2004", "1/1/20045",
                             "1//2004", " 1/1/2004", "1/1/2004 "})
        EXPECT_FALSE(FechaDeTexto(mala)) << mala;
}

TEST(CalendarioGregoriano, LasHorasDeTextoLleganHastaLas2359)
{
    EXPECT_EQ(HoraDeTexto("00:00"), 0);
    EXPECT_EQ(HoraDeTexto("8:05"), 485);
    EXPECT_EQ(HoraDeTexto("23:59"), 1439);
    for (const char* mala : {"", "24:00", "08:60", "0805", "08:5", "08:055", ":05", "-1:05", "08:-5"})
        EXPECT_FALSE(HoraDeTexto(mala)) << mala;
}

TEST(CalendarioGregoriano, UnInstanteVaATextoYVuelve)
{
    const Instante t = InstanteDeTextos("29/02/1992", "23:50");
    EXPECT_EQ(TextoFecha(t) + ' ' + TextoHora(t), "29/02/1992 23:50");
    EXPECT_EQ(TextoFecha(t + 10) + ' ' + TextoHora(t + 10), "01/03/1992 00:00");
    EXPECT_EQ(TextoFecha(0) + ' ' + TextoHora(0), "01/01/0001 00:00");
    EXPECT_EQ(TextoFecha(-5), "01/01/0001");
    EXPECT_EQ(InstanteDeTextos("01/01/2001", "00:00") - InstanteDeTextos("01/01/1001", "00:00"),
              (1000LL * 365 + 243) * 1440);  // 2000 is a leap year of this thousand
}

TEST(CalendarioGregoriano, SinFechaNiHoraNoHayInstante)
{
    EXPECT_THROW(InstanteDeTextos("", "00:00"), model::Falla);
    EXPECT_THROW(InstanteDeTextos("01/01/1001", "x"), model::Falla);
}

}  // namespace
}  // namespace forms
