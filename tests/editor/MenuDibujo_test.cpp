// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MenuDibujo.h"

#include <set>
#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"

namespace {

using editor::Pedido;
using editor::Punto;

struct Menu : EditorDePrueba {
    Menu()
    {
        red.Cauce("c-1", {{100, 300}, {200, 200}, {250, 150}});
        red.Cauce("c-2", {{400, 300}, {420, 200}});
        red.UEH("u-1", {250, 150});
        red.Represa("r-1", {300, 150});
        red.Lago("l-1", {350, 150});
        Parte();
    }
    void Elige(int cauce, int ueh, int represa, int lago)
    {
        s.Seleccion.CauceSel = static_cast<std::int16_t>(cauce);
        s.Seleccion.UEHSel = static_cast<std::int16_t>(ueh);
        s.Seleccion.RepresaSel = static_cast<std::int16_t>(represa);
        s.Seleccion.LagoSel = static_cast<std::int16_t>(lago);
    }
    /// Names of the enabled entries, the two that always are apart.
    std::set<std::string> Habilitadas()
    {
        std::set<std::string> r;
        for (const auto& e : editor::MenuDibujoSec())
            if (e.habilitada(s)) r.emplace(e.nombre);
        EXPECT_EQ(r.erase("mnu_CentrarDibujo"), 1U);
        EXPECT_EQ(r.erase("mnu_ZoomAll"), 1U);
        return r;
    }
};
using Nombres = std::set<std::string>;

TEST_F(Menu, TieneSusDiecinueveEntradasConSusLeyendas)
{
    std::vector<std::string> filas;
    for (const auto& e : editor::MenuDibujoSec())
        filas.push_back(std::string(e.nombre) + "|" + std::string(e.leyenda));
    EXPECT_EQ(filas, (std::vector<std::string>{
                         "mnu_CentrarDibujo|&Centrar el Dibujo",
                         "mnu_ZoomAll|&Zoom All",
                         "mnu_PopUpdlgUEH2|Editar Propiedades de la &UHE",
                         "mnu_acoplaUEHaCauce|Acopla UHE a Cauce",
                         "mnu_acoplaUEHaLago|Acopla UHE a Lago",
                         "mnu_acoplaUEHaRepresa|Acopla UHE a Represa",
                         "mnu_desacoplaUEH|Desacopla UHE",
                         "mnu_PopUpCauceEditPropiedades|&Editar Propiedades del Cauce",
                         "mnu_DivideCauce|&Divide un tramo de Cauce en dos",
                         "mnu_acoplaCauce1aCauce2|Acopla Cauce 1 a Cauce 2",
                         "mnu_acoplaCauceaLago|Acopla Cauce a Lago",
                         "mnu_acoplaCauceaRepresa|Acopla Cauce a Represa",
                         "mnu_desacoplaCauce|Desacopla Cauce",
                         "mnu_PopUpdlgLAGO|Editar Propiedades de Lagos/Lagunas...",
                         "mnu_acoplaLAGOaCauce|Acopla Lago/Laguna a Cauce",
                         "mnu_desacoplaLAGO|Desacopla Lago",
                         "mnu_PopUpdlgRepresa|Editar Propiedades de la Represa",
                         "mnu_acoplaRepresaaCauce|Acopla Represa a Cauce",
                         "mnu_desacoplaRepresa|Desacopla Represa",
                     }));
}

TEST_F(Menu, ConCadaSeleccionSeHabilitaLoSuyo)
{
    struct Fila {
        int cauce, ueh, represa, lago;
        Nombres nombres;
    };
    const std::vector<Fila> filas{
        {0, 0, 0, 0, {}},
        {0, 1, 0, 0, {"mnu_PopUpdlgUEH2"}},
        {1, 0, 0, 0, {"mnu_PopUpCauceEditPropiedades"}},
        {0, 0, 1, 0, {"mnu_PopUpdlgRepresa"}},
        {0, 0, 0, 1, {"mnu_PopUpdlgLAGO"}},
        {1, 1, 0, 0, {"mnu_acoplaUEHaCauce"}},
        {0, 1, 0, 1, {"mnu_acoplaUEHaLago"}},
        {0, 1, 1, 0, {"mnu_acoplaUEHaRepresa"}},
        {1, 0, 0, 1, {"mnu_acoplaCauceaLago", "mnu_acoplaLAGOaCauce"}},
        {1, 0, 1, 0, {"mnu_acoplaCauceaRepresa", "mnu_acoplaRepresaaCauce"}},
        {0, 0, 1, 1, {}},
        {1,
         1,
         1,
         0,
         {"mnu_acoplaUEHaCauce", "mnu_acoplaUEHaRepresa", "mnu_acoplaCauceaRepresa",
          "mnu_acoplaRepresaaCauce"}},
    };
    for (const Fila& fila : filas) {
        Elige(fila.cauce, fila.ueh, fila.represa, fila.lago);
        EXPECT_EQ(Habilitadas(), fila.nombres) << fila.cauce << fila.ueh << fila.represa << fila.lago;
    }
}

TEST_F(Menu, DesacoplarPideUnDestinoQueNoSeaVacioNi0)
{
    struct Fila {
        std::string destino;
        bool habilita;
    };
    for (const auto& [destino, habilita] :
         std::vector<Fila>{{"", false}, {"0", false}, {"c-2", true}, {"c-borrado", true}}) {
        s.Red.ColUEHs.Item(1).Cauce_aa = s.Red.ColCauces.Item(1).Cauce_aa = s.Red.ColLagos.Item(1).Cauce_aa =
            s.Red.ColRepresas.Item(1).Cauce_aa = destino;
        Elige(0, 1, 0, 0);
        EXPECT_EQ(Habilitadas().contains("mnu_desacoplaUEH"), habilita) << destino;
        Elige(1, 0, 0, 0);
        EXPECT_EQ(Habilitadas().contains("mnu_desacoplaCauce"), habilita) << destino;
        Elige(0, 0, 1, 0);
        EXPECT_EQ(Habilitadas().contains("mnu_desacoplaRepresa"), habilita) << destino;
        Elige(0, 0, 0, 1);
        EXPECT_EQ(Habilitadas().contains("mnu_desacoplaLAGO"), habilita) << destino;
    }
}

TEST_F(Menu, DividirPideUnVerticeTomadoSinUEHNiRepresa)
{
    const auto divide = [&] { return Habilitadas().contains("mnu_DivideCauce"); };
    Elige(1, 0, 0, 0);
    EXPECT_FALSE(divide());
    s.Seleccion.VerticeSel = 2;
    EXPECT_TRUE(divide());
    Elige(1, 0, 0, 1);
    EXPECT_TRUE(divide());  // a Lago doesn't matter
    Elige(1, 1, 0, 0);
    EXPECT_FALSE(divide());
    Elige(1, 0, 1, 0);
    EXPECT_FALSE(divide());
    Elige(0, 0, 0, 0);
    EXPECT_FALSE(divide());
}

TEST_F(Menu, AcoplarDosCaucesPideDosYQueElPrimeroNoDreneYaAlSegundo)
{
    const auto acopla = [&] { return Habilitadas().contains("mnu_acoplaCauce1aCauce2"); };
    Elige(2, 0, 0, 0);
    EXPECT_FALSE(acopla());
    s.Seleccion.CauceAnterior = 1;
    EXPECT_TRUE(acopla());
    s.Red.ColCauces.Item(1).Cauce_aa = "c-2";
    EXPECT_FALSE(acopla());
    s.Red.ColCauces.Item(1).Cauce_aa = "0";
    s.Red.ColCauces.Item(2).Cauce_aa = "c-1";  // the inversion is the command's to refuse
    EXPECT_TRUE(acopla());
    s.Seleccion.CauceAnterior = 2;
    EXPECT_FALSE(acopla());
}

TEST_F(Menu, CentrarYZoomAllLimpianLaSeleccion)
{
    Elige(1, 1, 1, 1);
    editor::mnu_DibujoSec_Click(f, s, "mnu_CentrarDibujo");
    EXPECT_EQ(s.Seleccion.CauceSel + s.Seleccion.UEHSel + s.Seleccion.RepresaSel + s.Seleccion.LagoSel, 0);
    EXPECT_EQ(f.vista.sldEscala, 100);
    EXPECT_EQ(f.vista.origen, (Punto{-140, -175}));  // 100..420 and 150..300 in 800
    Elige(1, 1, 1, 1);
    editor::mnu_DibujoSec_Click(f, s, "mnu_ZoomAll");
    EXPECT_EQ(s.Seleccion.CauceSel + s.Seleccion.UEHSel + s.Seleccion.RepresaSel + s.Seleccion.LagoSel, 0);
    EXPECT_EQ(f.vista.sldEscala, 44);  // 320 * 1.1 / 800
    EXPECT_EQ(f.vista.origen, (Punto{84, 49}));
}

TEST_F(Menu, LasEntradasDePropiedadesPidenSuForma)
{
    Elige(0, 1, 0, 0);
    editor::mnu_DibujoSec_Click(f, s, "mnu_PopUpdlgUEH2");
    Elige(1, 0, 0, 0);
    editor::mnu_DibujoSec_Click(f, s, "mnu_PopUpCauceEditPropiedades");
    Elige(0, 0, 0, 1);
    editor::mnu_DibujoSec_Click(f, s, "mnu_PopUpdlgLAGO");
    Elige(0, 0, 1, 0);
    editor::mnu_DibujoSec_Click(f, s, "mnu_PopUpdlgRepresa");
    EXPECT_EQ(f.pedidos, (std::vector<Pedido>{Pedido::FormaUEH, Pedido::FormaCauce, Pedido::FormaLago,
                                              Pedido::FormaRepresa}));
}

TEST_F(Menu, UnaEntradaDeshabilitadaODesconocidaNoHaceNada)
{
    editor::mnu_DibujoSec_Click(f, s, "mnu_PopUpdlgUEH2");
    editor::mnu_DibujoSec_Click(f, s, "mnu_Otra");
    EXPECT_TRUE(f.pedidos.empty());
}

}  // namespace
