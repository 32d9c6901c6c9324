// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteSensibilidad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/taller/GraficoDeSensibilidad.h"
#include "calibration/taller/TallerDeAjuste.h"

namespace calibration {
namespace {

struct SensibilidadDeAjuste : pruebas::TallerDeAjuste {
    SensibilidadDeAjuste()
    {
        Cambia(f, "Parámetros", [](study::Ajuste& a) {
            a.parametros = {
                {.componentes = "u-*", .campo = "kostiakov_a", .modo = "factor", .minimo = 0.5, .maximo = 2},
                {.componentes = "u-1", .campo = "retencion_z", .minimo = 0, .maximo = 20},
                {.componentes = "u-2", .campo = "k_recesion", .minimo = 5, .maximo = 20}};
        });
        Retoma();
    }
    void Retoma() { calibration::Toma(m, f); }
    /// All that the window does between the key and the last look.
    bool Analiza()
    {
        const auto pedido = Empieza(m, f);
        if (!pedido) return false;
        Termina(m, f, *AnalizaSensibilidad(pedido->modelo, pedido->ajuste, 1));
        return true;
    }
    [[nodiscard]] const study::Sensibilidad& Como() const { return AjusteDe(f).sensibilidad; }

    AjusteSensibilidad m = NuevaAjusteSensibilidad();
};

TEST_F(SensibilidadDeAjuste, DiceDeAntemanoCuantasCorridasSon)
{
    EXPECT_TRUE(m.lblCosto.starts_with("80 corridas, ")) << m.lblCosto;  // 20 (3 + 1)
    cmbMetodo_Click(f, 0);
    Retoma();
    EXPECT_TRUE(m.lblCosto.starts_with("7 corridas, menos de 0.1 s")) << m.lblCosto;
    cmbMetodo_Click(f, 2);
    cmbBase_Click(f, 2);
    Retoma();
    EXPECT_EQ(Como().base, 64);
    EXPECT_TRUE(m.lblCosto.starts_with("320 corridas, ")) << m.lblCosto;
    Cambia(f, "Uno menos", [](study::Ajuste& a) { a.parametros[0].activo = false; });
    Retoma();
    EXPECT_TRUE(m.lblCosto.starts_with("256 corridas, ")) << m.lblCosto;
}

// u-2 has no base flow: its recession does nothing.
TEST_F(SensibilidadDeAjuste, CadaMetodoDaSuTablaSuGraficoYSusPalabras)
{
    for (const int metodo : {0, 1, 2}) {
        cmbMetodo_Click(f, metodo);
        cmbBase_Click(f, 1);
        Retoma();
        ASSERT_TRUE(Analiza()) << m.lblAvisos;
        const forms::Planilla& p = m.tblIndices.planilla;
        ASSERT_EQ(p.filas.size(), 3U);
        EXPECT_EQ(p.columnas.size(),
                  2 + MetodosDeSensibilidad()[static_cast<std::size_t>(metodo)].indices.size());
        EXPECT_EQ(p.filas[0][1], "u-*.kostiakov_a (factor)") << metodo;
        EXPECT_EQ(p.filas[2][1], "u-2.k_recesion (valor)");
        EXPECT_NE(m.lblAvisos.find("• El pico depende sobre todo de u-*.kostiakov_a"), std::string::npos)
            << m.lblAvisos;
        EXPECT_NE(m.lblAvisos.find("• Sin efecto: u-2.k_recesion (valor)."), std::string::npos);
        EXPECT_FALSE(m.Grafico.series.empty());
        for (const forms::Serie& serie : m.Grafico.series)
            EXPECT_EQ(serie.celdas.size(), m.Grafico.abscisas.size()) << serie.leyenda;
        EXPECT_TRUE(std::is_sorted(m.Grafico.abscisas.begin(), m.Grafico.abscisas.end()));
        EXPECT_EQ(m.lblEstado, "");
    }
}

// A bar from today's peak to that at each end of the range.
TEST_F(SensibilidadDeAjuste, LasBarrasDelTornadoVanDeHoyACadaExtremo)
{
    cmbMetodo_Click(f, 0);
    Retoma();
    ASSERT_TRUE(Analiza());
    const AnalisisDeSensibilidad& a = *m.analisis;
    const auto orden = PorImportancia(*MetodoDeSensibilidadDe("tornado"), a.filas);
    std::vector<double> minimos, maximos;
    for (std::size_t i = 0; i < m.Grafico.abscisas.size(); ++i) {
        if (!forms::EstaVacia(m.Grafico.series[0].celdas[i]))
            minimos.push_back(m.Grafico.series[0].celdas[i]);
        if (!forms::EstaVacia(m.Grafico.series[1].celdas[i]))
            maximos.push_back(m.Grafico.series[1].celdas[i]);
    }
    ASSERT_EQ(minimos.size(), 3U);
    ASSERT_EQ(maximos.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(minimos[i], a.filas[orden[i]][0] - *a.actual);
        EXPECT_EQ(maximos[i], a.filas[orden[i]][1] - *a.actual);
    }
    EXPECT_GT(minimos[0], 0) << "less infiltration, a higher peak";
    EXPECT_LT(maximos[0], 0);
    ASSERT_EQ(m.Grafico.rotulosX.size(), 3U);
    EXPECT_EQ(m.Grafico.rotulosX[0].texto, "1");
}

TEST_F(SensibilidadDeAjuste, LosPuntosDeMorrisLlevanElNumeroDeLaTabla)
{
    ASSERT_TRUE(Analiza());
    ASSERT_EQ(m.Grafico.marcas.size(), 3U);
    std::vector<std::string> rotulos;
    for (const forms::Marca& marca : m.Grafico.marcas) {
        rotulos.push_back(marca.rotulo);
        EXPECT_FALSE(forms::EstaVacia(m.Grafico.series[0].celdas[marca.fila]));
    }
    EXPECT_EQ(rotulos, (std::vector<std::string>{"3", "2", "1"}));
}

TEST_F(SensibilidadDeAjuste, UnCambioDejaDichoQueLoVistoEsDeAntes)
{
    ASSERT_TRUE(Analiza());
    const auto filas = m.tblIndices.planilla.filas;
    cmbMetodo_Click(f, 2);
    Retoma();
    EXPECT_EQ(m.lblEstado, "Lo que se ve es de antes: los datos cambiaron.");
    EXPECT_EQ(m.tblIndices.planilla.filas, filas);
    EXPECT_EQ(f.cmdDeshacer, "Deshacer: Método de la sensibilidad");
    cmdDeshacer(f);
    Retoma();
    EXPECT_EQ(m.lblEstado, "");
    ASSERT_TRUE(Empieza(m, f));
    EXPECT_EQ(m.lblEstado, "Corriendo: lo que se ve es de antes.");
    Cancela(m, f);
    EXPECT_EQ(m.lblEstado, "Cancelado: lo que se ve es de antes.");
    EXPECT_EQ(m.tblIndices.planilla.filas, filas);
}

TEST_F(SensibilidadDeAjuste, LoQueNoSePuedePedirSeDiceYNoCorre)
{
    cmbQue_Click(f, 3);
    Retoma();
    EXPECT_EQ(m.componentes.front(), "(la primera represa o laguna)");
    EXPECT_FALSE(Analiza());
    EXPECT_EQ(m.lblAvisos, "• La red no tiene ninguna represa ni laguna cuyo nivel se pueda medir.");
    cmbQue_Click(f, 4);
    Retoma();
    EXPECT_TRUE(EsDePuntaje(f));
    EXPECT_NE(m.lblPuntaje.find("Nash"), std::string::npos);
    EXPECT_FALSE(Analiza());
    EXPECT_EQ(m.lblAvisos, "• Un puntaje pide un evento con observaciones.");
    Cambia(f, "Nada", [](study::Ajuste& a) { a.parametros.clear(); });
    EXPECT_NE(FaltaSensibilidad(f), "");
}

TEST_F(SensibilidadDeAjuste, LosCamposRechazanLoQueNoPuedeSer)
{
    for (const auto& [control, texto] : std::vector<std::pair<std::string_view, std::string>>{
             {"txtTrayectorias", "1"}, {"txtNiveles", "5"}, {"txtNiveles", "0"}, {"txtSemilla", "-1"}}) {
        std::string& campo = control == "txtTrayectorias" ? m.txtTrayectorias
                             : control == "txtNiveles"    ? m.txtNiveles
                                                          : m.txtSemilla;
        campo = texto;
        EXPECT_FALSE(txtNumero_AlSalir(m, f, control)) << control << " " << texto;
    }
    EXPECT_EQ(anfitrion->Avisos().size(), 4U);
    m.txtTrayectorias = "35";
    EXPECT_TRUE(txtNumero_AlSalir(m, f, "txtTrayectorias"));
    EXPECT_EQ(Como().trayectorias, 35);
    cmbComponente_Click(m, f, 1);
    EXPECT_EQ(Como().medida.componente, "u-1");
    cmbComponente_Click(m, f, 0);
    EXPECT_EQ(Como().medida.componente, "");
}

}  // namespace
}  // namespace calibration
