// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ComponenteFinal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "model/Siro.h"

namespace engine {
namespace {

using model::Icono;
using model::Mensaje;
using model::Siro;

const std::string Cola = "         ¿Desea volver a la ventana de edición  (SI) o continuar (No) ?";

class Validacion : public testing::Test {
  protected:
    Validacion() { s.Anfitrion = anfitrion.Puerta(); }
    void UEH(const std::string& nombre, const std::string& destino)
    {
        s.Red.ColUEHs.Agrega({.NombreUEH = nombre, .Cauce_aa = destino});
    }
    void Cauce(const std::string& nombre, const std::string& destino)
    {
        s.Red.ColCauces.Agrega({.NombreCauce = nombre, .Cauce_aa = destino});
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
};

TEST_F(Validacion, UnaUEHSolaEsSalidaSinAviso)
{
    UEH("u-1", "");
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.NroSalidas, 1);
    EXPECT_EQ(s.Resultados.Salidas[1], "u-1");
    EXPECT_TRUE(s.Control.RedOk);
    EXPECT_FALSE(s.Control.ErrorRed);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Validacion, SinComponentesNoSePreguntaNiSeMarcaNada)
{
    s.Control.RedOk = s.Control.ErrorRed = s.Control.ContinuarSinCorregir = true;
    ComponenteFinal(s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_FALSE(s.Control.RedOk || s.Control.ErrorRed || s.Control.ContinuarSinCorregir);
    EXPECT_EQ(s.Resultados.NroComponentes, 0);
}

TEST_F(Validacion, LaSecuenciaVaPorClases)
{
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .Cauce_aa = "c-1"});
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1", .Cauce_aa = "c-1"});
    Cauce("c-1", "0");
    UEH("u-1", "l-1");
    UEH("u-2", "r-1");
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.Secuencia, (std::vector<std::string>{"", "u-1", "u-2", "c-1", "l-1", "r-1"}));
    EXPECT_EQ(s.Resultados.NroComponentes, 5);
    EXPECT_TRUE(s.Control.RedOk);
}

TEST_F(Validacion, UnCauceAlimentadoSoloPorOtroCauceEstaAlimentado)
{
    UEH("u-1", "c-2");
    Cauce("c-1", "0");
    Cauce("c-2", "c-1");
    ComponenteFinal(s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_TRUE(s.Control.RedOk);
}

TEST_F(Validacion, UnaUEHQueDrenaAUnNombreBorradoEsSalida)
{
    UEH("u-1", "c-9");
    UEH("u-2", "c-1");
    Cauce("c-1", "0");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.NroSalidas, 2);
    EXPECT_EQ(s.Resultados.Salidas[1], "u-1");
    EXPECT_EQ(s.Resultados.Salidas[2], "c-1");
}

TEST_F(Validacion, UnDestinoQueEsUEHHaceSalida)
{
    UEH("u-1", "u-2");
    UEH("u-2", "");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.NroSalidas, 2);
}

TEST_F(Validacion, SinSalidaPregunta)
{
    UEH("u-1", "c-1");
    Cauce("c-1", "c-2");
    Cauce("c-2", "c-1");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_EQ(anfitrion->Preguntas(),
              std::vector<Mensaje>(
                  {{"Error, ningun componente ingresado es una sección final de control o de salida "
                    "del sistema. Al menos un componente debe tener el campo <Drena a< = <0> o "
                    "<cadena nula>. ¿Desea volver a la ventana de edición  (SI) o continuar (No) ?",
                    "Error, Verifique Componente final del sistema", Icono::Exclamacion}}));
    EXPECT_TRUE(s.Control.ErrorRed);
    EXPECT_FALSE(s.Control.ContinuarSinCorregir);
    EXPECT_FALSE(s.Control.RedOk);
}

TEST_F(Validacion, CaucesSinAporteSeNombranConCuatroBlancos)
{
    UEH("u-1", "c-3");
    Cauce("c-1", "c-3");
    Cauce("c-2", "c-3");
    Cauce("c-3", "0");
    ComponenteFinal(s);
    EXPECT_EQ(
        anfitrion->Preguntas(),
        std::vector<Mensaje>({{"Hay tramos de Cauces sin aportes de UEHs. Verifique los tramos siguientes y "
                               "asigne sus UEH o componentes de aportes: c-1    c-2    " +
                                   Cola,
                               "Advertencia !!!", Icono::Exclamacion}}));
    EXPECT_TRUE(s.Control.ErrorRed);
    EXPECT_TRUE(s.Control.RedOk);  // one outfall and no answer of No
}

// The same gap in two networks.
TEST_F(Validacion, LaPreguntaPorLosAportesEsUnaNombreAQuienNombre)
{
    UEH("u-1", "c-2");
    Cauce("c-1", "c-2");
    Cauce("c-2", "0");
    ComponenteFinal(s);
    Cauce("c-3", "c-2");
    ComponenteFinal(s);
    const auto preguntas = anfitrion->Preguntas();
    ASSERT_EQ(preguntas.size(), 2U);
    EXPECT_NE(preguntas[0], preguntas[1]);
    EXPECT_EQ(preguntas[0].repetida,
              "Hay tramos de Cauces sin aportes de UEHs. Verifique los tramos "
              "siguientes y asigne sus UEH o componentes de aportes: ");
    EXPECT_EQ(preguntas[1].repetida, preguntas[0].repetida);
}

TEST_F(Validacion, RepresasYLagosSinAporteTienenSuPropioTexto)
{
    UEH("u-1", "c-1");
    Cauce("c-1", "0");
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .Cauce_aa = "c-1"});
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1", .Cauce_aa = "c-1"});
    ComponenteFinal(s);
    EXPECT_EQ(
        anfitrion->Preguntas(),
        std::vector<Mensaje>(
            {{"Hay represas sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o "
              "componentes de aportes: r-1    " +
                  Cola,
              "Advertencia !!!", Icono::Exclamacion},
             {"Hay Lagos/Mallines sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o "
              "componentes de aportes: l-1    " +
                  Cola,
              "Advertencia !!!", Icono::Exclamacion}}));
    EXPECT_TRUE(s.Control.ErrorRed);
}

TEST_F(Validacion, RespondidoNoSeContinuaSinRedOk)
{
    UEH("u-1", "c-1");
    Cauce("c-1", "0");
    Cauce("c-2", "c-1");
    anfitrion->respuestaDeSiempre = false;
    ComponenteFinal(s);
    EXPECT_TRUE(s.Control.ContinuarSinCorregir);
    EXPECT_FALSE(s.Control.RedOk);
    EXPECT_TRUE(s.Control.ErrorRed);
}

TEST_F(Validacion, VariasSalidasSePreguntanSiNoSeAvisaron)
{
    UEH("u-1", "c-1");
    Cauce("c-1", "0");
    UEH("u-2", "");
    ComponenteFinal(s);
    EXPECT_EQ(
        anfitrion->Preguntas(),
        std::vector<Mensaje>(
            {{"Hay más de un componente de descarga para el sistema (sección final de control). El sistema "
              "admite esta posibilidad para el cálculo para un máximo de 10 componentes, pero si el sistema "
              "es "
              "de salida final única debe verificar los campos <Drena a> de los siguientes componentes:u-2   "
              " "
              "c-1    " +
                  Cola,
              "Advertencia !!!", Icono::Exclamacion}}));
    EXPECT_FALSE(s.Control.ErrorRed);
    EXPECT_FALSE(s.Control.AvisoDescargasVisto);
    EXPECT_FALSE(s.Control.RedOk);
}

TEST_F(Validacion, VariasSalidasYaAvisadasCallan)
{
    UEH("u-1", "");
    UEH("u-2", "");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Validacion, LaUndecimaSalidaSeCuentaYSeInforma)
{
    for (int i = 1; i <= 12; ++i)
        UEH("u-" + std::to_string(i), "");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.NroSalidas, 12);
    EXPECT_EQ(s.Resultados.Salidas[10], "u-10");
    const Mensaje falla{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", Icono::Ninguno};
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{falla, falla}));
}

TEST_F(Validacion, ElVacioYElCeroNoNombranANadie)
{
    UEH("u-1", "0");
    Cauce("0", "");
    s.Control.AvisoDescargasVisto = true;
    ComponenteFinal(s);
    EXPECT_EQ(s.Resultados.NroSalidas, 2);
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);  // the reach named "0" is fed by nothing
}

}  // namespace
}  // namespace engine
