// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Campos.h"

#include <gtest/gtest.h>

#include <set>

#include "editor/fichas/dlgCauceEditProp.h"
#include "editor/fichas/dlgLago.h"
#include "editor/fichas/dlgRepresas.h"
#include "editor/fichas/dlgUEH2.h"
#include "rainfall/dlgPp.h"
#include "runs/RedAlAzar.h"

namespace runs {
namespace {

/// The limits of a row of a sheet.
template <typename Fila>
void EsperaLimites(const char* clave, char clase, const Fila* fila)
{
    const Campo* campo = CampoDe(clave, clase);
    ASSERT_NE(campo, nullptr) << clave;
    ASSERT_NE(fila, nullptr) << clave;
    EXPECT_EQ(campo->maximo, fila->regla.maximo) << clave;
    EXPECT_EQ(campo->minimo, fila->regla.minimo) << clave;
}

TEST(LosCampos, TienenLosLimitesDeLasFichas)
{
    const auto ueh = [](const char* clave, const char* control) {
        EsperaLimites(clave, 'u', forms::CampoDe(editor::CamposDlgUEH2, control));
    };
    ueh("area", "txtArea");
    ueh("longitud_max", "txtLongMax");
    ueh("velocidad_media", "txtVelMedia");
    ueh("retencion_z", "txtRetension_Z");
    ueh("kostiakov_a", "txtKostiakov_a");
    ueh("kostiakov_b", "txtKostiakov_b");
    ueh("kostiakov_i", "txtKostiakov_i");
    ueh("q0_recesion", "txtQ0Recesion");
    ueh("k_recesion", "txtKRecesion");
    const auto cauce = [](const char* clave, const char* control) {
        EsperaLimites(clave, 'c', forms::CampoDe(editor::CamposDlgCauceEditProp, control));
    };
    cauce("longitud", "txtLongCauce");
    cauce("velocidad", "txtVelMediaCauce");
    cauce("musk_k", "txtCauce_k_Musk");
    cauce("musk_x", "txtCauce_n_Musk");
    EsperaLimites("musk_k", 'r', forms::CampoDe(editor::CamposDlgRepresas, "txtRepresa_k"));
    EsperaLimites("musk_k", 'l', forms::CampoDe(editor::CamposDlgLago, "txtLago_k"));
    EsperaLimites("lamina", 't', forms::CampoDe(rainfall::CamposDeTormenta, "txtPp"));
    EXPECT_EQ(CampoDe("duracion", 't')->maximo,
              forms::CampoDe(rainfall::CamposDeTormenta, "txtDur")->regla.maximo);
}

// Each one of its own place: what is put by it is read by it, and no other one moves.
TEST(LosCampos, CadaUnoMueveElSuyoYNadaMas)
{
    const pruebas::RedAlAzar azar(1);
    const std::span<const Campo> campos = Campos();
    std::set<std::pair<std::string_view, char>> claves;
    for (const Campo& c : campos) {
        EXPECT_TRUE(claves.emplace(c.clave, c.clase).second) << c.clave;
        EXPECT_LT(c.minimo, c.maximo) << c.clave;
        EXPECT_FALSE(c.nombre.empty() || c.unidad.empty()) << c.clave;
        if (c.clase == 't') continue;
        model::Red red = azar.m.red;
        *c.lugar.pone(red, 1) = 7.25F;
        for (const Campo& otro : campos) {
            if (otro.clase == 't') continue;
            EXPECT_EQ(*otro.lugar.lee(red, 1), &otro == &c ? 7.25F : *otro.lugar.lee(azar.m.red, 1))
                << c.clave << " moves " << otro.clave;
        }
    }
    // Four fields of dams and functions with three numbers, four with two; each has its range beside them.
    EXPECT_EQ(campos.size(), 9U + 4 + 2 + 4 * 4 + 4 * 5 + 2 + 2);
    EXPECT_EQ(CampoDe("fq4_c", 'r'), nullptr);
    EXPECT_EQ(CampoDe("fq8_c", 'r')->nombre, "Función 8, c");
    EXPECT_EQ(CampoDe("area", 'c'), nullptr);
}

TEST(Nombrar, EntiendeAsteriscosYPreguntas)
{
    for (const auto& [patron, nombre] : {std::pair{"u-1", "u-1"},
                                         {"u-*", "u-"},
                                         {"u-*", "u-12"},
                                         {"*", ""},
                                         {"u-?", "u-1"},
                                         {"u-*a*b", "u-xaybab"},
                                         {"u-**", "u-1"}})
        EXPECT_TRUE(Nombra(patron, nombre)) << patron << " " << nombre;
    for (const auto& [patron, nombre] : {std::pair{"u-1", "u-12"},
                                         {"u-?", "u-"},
                                         {"u-?", "u-12"},
                                         {"U-*", "u-1"},
                                         {"u-*a", "u-ab"},
                                         {"", "u"}})
        EXPECT_FALSE(Nombra(patron, nombre)) << patron << " " << nombre;
}

TEST(Resolver, DiceQueHayAhora)
{
    const pruebas::RedAlAzar azar(11);
    const Movido m = Resuelve({.componentes = "u-*", .campo = "area"}, azar.m.red, {});
    ASSERT_EQ(m.numeros.size(), static_cast<std::size_t>(azar.m.red.ColUEHs.Cuenta()));
    EXPECT_EQ(m.actual.front(), double{azar.m.red.ColUEHs.Item(1).Area});
    EXPECT_EQ(m.motivo, "");
    EXPECT_EQ(NombreDe({.componentes = "u-*", .campo = "area", .modo = "factor"}), "u-*.area (factor)");
    EXPECT_EQ(ClaveDe({.componentes = "u-*", .campo = "area", .modo = "factor"}), "u-*.area.factor");
    EXPECT_EQ(UnidadDe({.componentes = "u-*", .campo = "area", .modo = "factor"}), "-");
    EXPECT_EQ(UnidadDe({.componentes = "u-*", .campo = "area"}), "ha");
}

TEST(LaTormenta, SeMueveConTodoLoQueTiene)
{
    model::Red red;
    const std::vector<study::Parametro> doble{
        {.componentes = "tormenta", .campo = "lamina", .modo = "factor"}};
    model::Tormenta registrada;
    registrada.FormaPp = model::FormaLluvia::Real;
    registrada.PpTormenta = 9;
    registrada.PpReal.Dimensiona(2);
    registrada.PpReal(1) = 3;
    registrada.PpReal(2) = 6;
    model::Tormenta t = registrada;
    Aplica(doble, std::vector{2.0}, {}, red, t);
    EXPECT_EQ(t.PpTormenta, 18);
    EXPECT_EQ(t.PpReal(1), 6);
    EXPECT_EQ(t.PpReal(2), 12);
    t = registrada;
    Aplica(std::vector<study::Parametro>{{.componentes = "tormenta", .campo = "lamina"}}, std::vector{4.5},
           {}, red, t);
    EXPECT_EQ(t.PpReal(2), 3);
    EXPECT_EQ(Resuelve({.componentes = "tormenta", .campo = "duracion"}, red, registrada).motivo,
              "La duración de una tormenta registrada no se mueve.");

    model::Tormenta porUEH;
    porUEH.FormaPp = model::FormaLluvia::PorUEH;
    porUEH.PpUEH(3) = 12;
    EXPECT_EQ(Resuelve({.componentes = "tormenta", .campo = "lamina"}, red, porUEH).motivo,
              "La lámina de una tormenta dada por UEH se mueve por un factor.");
    Aplica(doble, std::vector{1.5}, {}, red, porUEH);
    EXPECT_EQ(porUEH.PpUEH(3), 18);

    model::Tormenta escrita;
    escrita.PpTormenta = 60;
    escrita.DurTormenta = 50;
    Aplica(std::vector<study::Parametro>{{.componentes = "tormenta", .campo = "duracion", .modo = "factor"}},
           std::vector{1.49}, {}, red, escrita);
    EXPECT_EQ(escrita.DurTormenta, 75);  // 74.5 minutes
    EXPECT_EQ(escrita.PpTormenta, 60);
}

}  // namespace
}  // namespace runs
