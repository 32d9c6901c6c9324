// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CampoNumerico.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"

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
    Foco foco{};
};

constexpr std::string_view MensajeArea = "Ingrese un valor numérico entero o decimal menor de 99999";

constexpr auto Campos = std::to_array<CampoNumerico<Forma, Registro>>({
    {{.control = "txtArea", .unidad = "has", .maximo = 99999, .mensaje = MensajeArea},
     &Forma::txtArea,
     &Registro::Area},
    {{.control = "txtX",
      .maximo = 0.5,
      .mensaje = "entre 0 y 0.5",
      .caja = CajaRechazo::Llana,
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
    EXPECT_EQ(f.foco, Foco{});
}

TEST_F(UnaForma, LoDemasSeRechazaConSuMensajeYElFocoQuedaConTodoSeleccionado)
{
    for (const char* texto : {"", " ", "abc", "12x", "-0.001", "99999.001", "1E999", ".", "1.2.3"}) {
        anfitrion->sucesos.clear();
        f.foco = {};
        EXPECT_FALSE(Sale(texto)) << texto;
        EXPECT_EQ(anfitrion->Avisos(),
                  (std::vector<Mensaje>{{std::string(MensajeArea), "", Icono::Exclamacion}}));
        EXPECT_EQ(f.foco, (Foco{"txtArea", true}));
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

TEST_F(UnaForma, CorregidoElTextoElFocoSeSuelta)
{
    EXPECT_FALSE(Sale("x"));
    EXPECT_TRUE(Sale("1"));
    EXPECT_EQ(f.foco, Foco{});
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

TEST_F(UnaForma, ElMensajePuedeSerDelMomento)
{
    f.txtX = "7";
    ReglaNumero regla = Campos[1].regla;
    regla.minimo = 2;
    regla.maximo = 6;
    EXPECT_FALSE(AlSalir(f, s, regla, f.txtX, "entre 2 y 6"));
    EXPECT_EQ(anfitrion->Avisos().back().texto, "entre 2 y 6");
}

TEST_F(UnaForma, UnControlSinFilaNoSeRevisa)
{
    EXPECT_TRUE(AlSalir(f, s, Campos, "txtReferencia"));
}

TEST_F(UnaForma, EntrarEnUnCampoLoSelecciona)
{
    AlEntrar(f, "txtArea");
    EXPECT_EQ(f.foco, (Foco{"txtArea", true}));
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

TEST(ReglaNumero, LosExtremosPuedenExcluirse)
{
    const ReglaNumero abierta{.minimo = 0, .maximo = 1, .incluyeMinimo = false, .incluyeMaximo = false};
    EXPECT_FALSE(Cabe(abierta, 0));
    EXPECT_TRUE(Cabe(abierta, 0.001));
    EXPECT_TRUE(Cabe(abierta, 0.999));
    EXPECT_FALSE(Cabe(abierta, 1));
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

TEST(ReglaNumero, CadaCajaTieneSuAspecto)
{
    apoyo::AnfitrionPrueba anfitrion;
    model::Siro s;
    s.Anfitrion = anfitrion.Puerta();
    MuestraRechazo(s, CajaRechazo::Exclamacion, "a");
    MuestraRechazo(s, CajaRechazo::Advertencia, "b");
    MuestraRechazo(s, CajaRechazo::Llana, "c");
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{"a", "", Icono::Exclamacion},
                                                         {"b", "Advertencia !", Icono::Exclamacion},
                                                         {"c", "", Icono::Ninguno}}));
}

}  // namespace
}  // namespace forms
