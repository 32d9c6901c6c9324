// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CampoNumerico.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "model/Siro.h"

namespace forms {
namespace {

using model::Icono;
using model::Mensaje;

struct Registro {
    float Area = 0;
    float x = 0;
};

struct Forma {
    std::string txtArea{};
    std::string txtX{};
};

constexpr std::string_view MensajeArea = "Ingrese un valor numérico entero o decimal menor de 99999";

constexpr auto Campos = std::to_array<CampoNumerico<Forma, float Registro::*>>({
    {{.control = "txtArea", .unidad = "has", .maximo = 99999, .mensaje = MensajeArea},
     &Forma::txtArea,
     &Registro::Area},
    {{.control = "txtX",
      .maximo = 0.5,
      .mensaje = "entre 0 y 0.5",
      .rechazo = Rechazo::Llana,
      .alRechazar = "0"},
     &Forma::txtX,
     &Registro::x},
});

class UnaForma : public testing::Test {
  protected:
    UnaForma() { s.Anfitrion = anfitrion.Puerta(); }
    bool Sale(std::string texto)
    {
        f.txtArea = std::move(texto);
        return AlSalir(f, s, Campos, "txtArea");
    }
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    Forma f;
};

TEST_F(UnaForma, UnTextoQueEsNumeroDentroDelLimitePasaCallado)
{
    for (const char* texto : {"0", "-0", "0.5", " 12 ", "1E2", "99998.999", "99999"})
        EXPECT_TRUE(Sale(texto)) << texto;
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(UnaForma, LoDemasSeRechazaConSuMensajeYQuedaComoEsta)
{
    for (const char* texto : {"", " ", "abc", "12x", "-0.001", "99999.001", "1E999", ".", "1.2.3"}) {
        anfitrion->sucesos.clear();
        EXPECT_FALSE(Sale(texto)) << texto;
        EXPECT_EQ(anfitrion->Avisos(),
                  (std::vector<Mensaje>{{std::string(MensajeArea), "", Icono::Exclamacion}}));
        EXPECT_EQ(f.txtArea, texto);
    }
}

TEST_F(UnaForma, LaComaDecimalSeHacePunto)
{
    EXPECT_TRUE(Sale("12,5"));
    EXPECT_EQ(f.txtArea, "12.5");
    EXPECT_FALSE(Sale("1,2,3"));
    EXPECT_EQ(f.txtArea, "1.2.3");
}

TEST_F(UnaForma, CorregidoElTextoPasa)
{
    EXPECT_FALSE(Sale("x"));
    EXPECT_TRUE(Sale("1"));
}

TEST_F(UnaForma, UnaFilaPuedeReponerUnTextoYHablarEnCajaLlana)
{
    f.txtX = "0.51";
    EXPECT_FALSE(AlSalir(f, s, Campos, "txtX"));
    EXPECT_EQ(f.txtX, "0");
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"entre 0 y 0.5", "", Icono::Ninguno}}));
    f.txtX = "0.5";
    EXPECT_TRUE(AlSalir(f, s, Campos, "txtX"));
}

TEST_F(UnaForma, UnControlSinFilaNoSeRevisa)
{
    EXPECT_TRUE(AlSalir(f, s, Campos, "txtReferencia"));
}

TEST_F(UnaForma, MuestraYGuardaSonIdaYVuelta)
{
    Registro r{12.5F, 0.05F};
    Muestra(f, r, Campos);
    EXPECT_EQ(f.txtArea, "12.5");
    EXPECT_EQ(f.txtX, "0.05");
    f.txtArea = "3,25";
    f.txtX = "abc";
    Guarda(f, r, Campos);
    EXPECT_EQ(r.Area, 3.25F);
    EXPECT_EQ(r.x, 0.0F);
}

TEST_F(UnaForma, GuardarNoMiraLimitesYTomaElNumeroDelComienzo)
{
    Registro r;
    f.txtArea = "100000ha";
    Guarda(f, r, Campos);
    EXPECT_EQ(r.Area, 100000.0F);
}

TEST_F(UnaForma, UnNumeroFueraDelTipoEsFalla6)
{
    Registro r;
    f.txtArea = "1E39";
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { Guarda(f, r, Campos); }), 6);
}

TEST(ReglaNumero, UnEnteroNoLlevaFraccion)
{
    const ReglaNumero entero{.minimo = 0, .maximo = 999, .clase = ClaseNumero::Entero};
    for (const char* texto : {"0", "999", "5.0", "1E2"})
        EXPECT_TRUE(Vale(entero, texto)) << texto;
    for (const char* texto : {"-1", "1000", "5.5", "", "x"})
        EXPECT_FALSE(Vale(entero, texto)) << texto;
}

TEST(ReglaNumero, ElVacioPuedeValerCero)
{
    ReglaNumero regla{.maximo = 5, .vacioEsCero = true};
    EXPECT_TRUE(Vale(regla, ""));
    EXPECT_TRUE(Vale(regla, "  "));
    EXPECT_FALSE(Vale(regla, "x"));
    regla.minimo = 1;
    EXPECT_FALSE(Vale(regla, ""));
}

TEST_F(UnaForma, LaFilaDeUnControlSeHallaPorSuNombre)
{
    EXPECT_EQ(CampoDe(Campos, "txtX"), &Campos[1]);
    EXPECT_EQ(CampoDe(Campos, "txtY"), nullptr);
}

// The limits hold for the leading number, and what lies within them stays as it was typed.
TEST_F(UnaForma, UnCampoPuedeRecortarseCallado)
{
    struct Caso {
        const char* escrito;
        const char* queda;
    };
    const ReglaNumero regla{.control = "txtX", .minimo = 1, .maximo = 9, .rechazo = Rechazo::Recorta};
    for (const Caso& caso : {Caso{"9", "9"},
                             {"9.01", "9"},
                             {"12x", "9"},
                             {"8x", "8x"},
                             {"1.0", "1"},
                             {"1,5", "1"},
                             {"1.5", "1.5"},
                             {"0", "1"},
                             {"-3", "1"},
                             {"", "1"}}) {
        std::string texto = caso.escrito;
        EXPECT_TRUE(AlSalir(s, regla, texto));
        EXPECT_EQ(texto, caso.queda) << caso.escrito;
    }
    EXPECT_TRUE(anfitrion->sucesos.empty());
    std::string enorme = "1E999";
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { AlSalir(s, regla, enorme); }), 6);
}

TEST(ReglaNumero, LoQueSobraPuedeSerReemplazadoPorOtroTextoQueElMaximo)
{
    const ReglaNumero regla{.minimo = -SinLimite, .maximo = 799, .alRechazar = "800"};
    std::string texto = "799.5";
    Recorta(regla, 799.5, texto);
    EXPECT_EQ(texto, "800");
    texto = "-1000";
    Recorta(regla, -1000, texto);
    EXPECT_EQ(texto, "-1000");
    Recorta(regla, -SinLimite, texto);
    EXPECT_EQ(texto, "-1000");
}

TEST(ReglaNumero, UnaCuentaVaDe0A999)
{
    const ReglaNumero regla = ReglaDeCuenta("txtNro");
    EXPECT_EQ(regla.control, "txtNro");
    EXPECT_EQ(regla.mensaje, "Ingrese un valor numérico entero entre 0 y 999 ");
    EXPECT_EQ(regla.rechazo, Rechazo::Llana);
    for (const char* texto : {"0", "999"})
        EXPECT_TRUE(Vale(regla, texto)) << texto;
    for (const char* texto : {"-1", "1000", "1.5", ""})
        EXPECT_FALSE(Vale(regla, texto)) << texto;
}

TEST(NumeroDeSiro, SeRedondeaComoSuTipo)
{
    constexpr NumeroDeSiro P = EnSiro<&model::Siro::Tormenta, &model::Tormenta::PpTormenta>;
    constexpr NumeroDeSiro D = EnSiro<&model::Siro::Tormenta, &model::Tormenta::DurTormenta>;
    model::Siro s;
    P.pon(s, 0.1);
    D.pon(s, 90.5);  // a tie goes to the even minute
    EXPECT_EQ(s.Tormenta.PpTormenta, 0.1F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 90);
    EXPECT_EQ(P.texto(s), "0.1");
    EXPECT_EQ(D.texto(s), "90");
    EXPECT_TRUE(P.es(s, 0.1));
    EXPECT_FALSE(P.es(s, 0.2));
    EXPECT_TRUE(D.es(s, 89.9));
    EXPECT_FALSE(D.es(s, 91));
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { D.pon(s, 40000); }), 6);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { static_cast<void>(P.es(s, 1E39)); }), 6);
}

TEST(ReglaNumero, CadaCajaTieneSuAspecto)
{
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    s.Anfitrion = anfitrion.Puerta();
    MuestraRechazo(s, Rechazo::Exclamacion, "a");
    MuestraRechazo(s, Rechazo::Advertencia, "b");
    MuestraRechazo(s, Rechazo::Llana, "c");
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"a", "", Icono::Exclamacion},
                                                         {"b", "Advertencia !", Icono::Exclamacion},
                                                         {"c", "", Icono::Ninguno}}));
}

}  // namespace
}  // namespace forms
