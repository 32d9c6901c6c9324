// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/dlgEmpiricas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "model/Numeros.h"

namespace empirical {
namespace {

class Calculadora : public testing::Test {
  protected:
    Calculadora() { Abre(f); }

    /// A field is typed into.
    void PonS(const std::string& texto)
    {
        f.txtSup = texto;
        AlCambiar(f, "txtSup");
    }
    void PonL(const std::string& texto)
    {
        f.txtLcauceP = texto;
        AlCambiar(f, "txtLcauceP");
    }
    void PonH(const std::string& texto)
    {
        f.txtcauceH = texto;
        AlCambiar(f, "txtcauceH");
    }
    void PonI(const std::string& texto)
    {
        f.txtPendiCP = texto;
        AlCambiar(f, "txtPendiCP");
    }
    [[nodiscard]] std::string Qp(std::string_view control) const
    {
        for (std::size_t k = 0; k < NroFormulasQp; ++k)
            if (FormulasQp()[k].control == control) return f.Qp[k];
        ADD_FAILURE() << control;
        return {};
    }
    [[nodiscard]] std::string California() const { return f.Tc[0]; }
    [[nodiscard]] std::string Ventura() const { return f.Tc[1]; }
    [[nodiscard]] std::string Scs() const { return f.Tc[2]; }

    dlgEmpiricas f;
};

// --- opening and captions ---

TEST_F(Calculadora, AbreConSusValoresYSinResultados)
{
    f.txtSup = "77";
    PonS("88");
    Abre(f);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.txtSup, "1");
    EXPECT_EQ(f.txtLcauceP, "1");
    EXPECT_EQ(f.txtcauceH, "100");
    EXPECT_EQ(f.txtPendiCP, "1");
    EXPECT_EQ(f.lblSup, "1");
    for (const std::string& q : f.Qp)
        EXPECT_EQ(q, "");
    for (const std::string& t : f.Tc)
        EXPECT_EQ(t, "");
    btnCerrar(f);
    EXPECT_FALSE(f.abierta);
}

TEST_F(Calculadora, LosRotulosALaLetra)
{
    EXPECT_EQ(TituloDlgEmpiricas, "Fórmulas Empiricas de Caudal Máximo y Tiempo de Concentración");
    EXPECT_EQ(LeyendaBtnCerrar, "&Cerrar");
    EXPECT_EQ(LeyendaLblSup, "Superficie [Km2]");
    EXPECT_EQ(MarcoDatosQp, "Datos para cálculo rápido de Qp, Caudal Pico [m3/s]");
    EXPECT_EQ(MarcoQp, "Estimaciones empíricas de Qp, Caudal Pico, [m3/s]");
    EXPECT_EQ(LineaQp, "En función de la superficie de la cuenca...");
    EXPECT_EQ(MarcoDatosTc, "Datos para estimar Tc, Tiempo de Concentración");
    EXPECT_EQ(MarcoTc, "Estimaciones empíricas de Tc, Tiempo de Concentración [min]");
    const std::vector<std::pair<std::string_view, std::string_view>> campos = {
        {"txtSup", "Superficie S[Km2]:"},
        {"txtLcauceP", "Longitud Cauce Principal  L[Km]:"},
        {"txtcauceH", "Desnivel Máximo H[m]:"},
        {"txtPendiCP", "Pendiente media cauce mñas largo [%]:"}};
    ASSERT_EQ(CamposEmpiricos.size(), campos.size());
    for (std::size_t k = 0; k < campos.size(); ++k) {
        EXPECT_EQ(CamposEmpiricos[k].regla.control, campos[k].first);
        EXPECT_EQ(RotulosEmpiricos[k].control, campos[k].first);
        EXPECT_EQ(RotulosEmpiricos[k].leyenda, campos[k].second);
    }
}

// --- peak discharges ---

/// What a box shows at an area, and the working; a formula that overflows or is out of its range has none.
struct Cuenta {
    std::string_view control;
    std::string_view texto;
    double cuenta = std::numeric_limits<double>::quiet_NaN();
};

class CaudalesA : public Calculadora {
  protected:
    void Compara(const std::string& S, const std::vector<Cuenta>& cuentas)
    {
        PonS(S);
        ASSERT_EQ(cuentas.size(), NroFormulasQp);
        for (std::size_t k = 0; k < NroFormulasQp; ++k) {
            EXPECT_EQ(FormulasQp()[k].control, cuentas[k].control);
            EXPECT_EQ(f.Qp[k], cuentas[k].texto) << cuentas[k].control;
            if (std::isnan(cuentas[k].cuenta)) continue;
            // Two decimals of a number of seven digits.
            const double margen = 0.0051 + 1e-6 * cuentas[k].cuenta;
            EXPECT_NEAR(model::Val(cuentas[k].texto), cuentas[k].cuenta, margen) << cuentas[k].control;
        }
    }
};

// clang-format off

TEST_F(CaudalesA, Un1Km2)  // every power is 1
{
    Compara("1", {
        {"txtQCreager",     "16.5",  0.55 * 30},
        {"txtQpSanti100",   "33",    33},
        {"txtQpSanti500",   "50",    50},
        {"txtQpSanti1000",  "66",    66},
        {"txtQpMyerC30",    "52.5",  1.75 * 30},
        {"txtQpMyerC100",   "175",   1.75 * 100},
        {"txtQpScimeni",    "55.55", 600.0 / 11 + 1},
        {"txtQpPagliaro",   ""},
        {"txtQpGauguillet", "4.17",  25.0 / 6},
        {"txtQpFanning",    "2.5",   2.5},
        {"txtQpDickens",    "6.9",   6.9},
        {"txtQpQuijano",    "17",    17},
        {"txtQpZapata",     "21",    21},
        {"txtQpKuicklingO", "3.05",  1246.0 / 441 + 0.22},
        {"txtQpKuicklingE", "3.83",  3596.0 / 959 + 0.08},
        {"txtQpRyves",      "8.5",   8.5},
        {"txtQpValentini",  "27",    27},
        {"txtQpGutmann",    "29.2",  2832.0 / 97},
    });
}

// 16 = 2^4: 16^(1/2) = 4, 16^(3/4) = 8, 16^(2/3) = 2^(8/3) = 6.3496042, 16^(5/6) = 2^(10/3) = 10.0793684,
// 16^0.6 = 2^2.4 = 5.2780316, 16^15.95 = 2^63.8 = 2^63 · 2^0.8 = 9.2233720e18 · 1.7411011.
TEST_F(CaudalesA, A16Km2)
{
    Compara("16", {
        {"txtQCreager",     "2.649706E+20", 16.5 * 9.2233720368547758e18 * 1.7411011265922483},
        {"txtQpSanti100",   "132",    33 * 4},
        {"txtQpSanti500",   "200",    50 * 4},
        {"txtQpSanti1000",  "264",    66 * 4},
        {"txtQpMyerC30",    "210",    52.5 * 4},
        {"txtQpMyerC100",   "700",    175 * 4},
        {"txtQpScimeni",    "385.23", 16 * (600.0 / 26 + 1)},
        {"txtQpPagliaro",   ""},
        {"txtQpGauguillet", "44.44",  400.0 / 9},
        {"txtQpFanning",    "25.2",   2.5 * 10.0793684},
        {"txtQpDickens",    "55.2",   6.9 * 8},
        {"txtQpQuijano",    "107.94", 17 * 6.3496042},
        {"txtQpZapata",     "110.84", 21 * 5.2780316},
        {"txtQpKuicklingO", "47.24",  16 * (1246.0 / 456 + 0.22)},
        {"txtQpKuicklingE", "60.35",  16 * (3596.0 / 974 + 0.08)},
        {"txtQpRyves",      "53.97",  8.5 * 6.3496042},
        {"txtQpValentini",  "108",    27 * 4},
        {"txtQpGutmann",    "404.57", 16 * 2832.0 / 112},
    });
}

// 64 = 2^6: 64^(1/2) = 8, 64^(2/3) = 16, 64^(5/6) = 32, 64^(3/4) = 2^4.5 = 22.6274170, 64^0.6 = 2^3.6 =
// 12.1257325; 64^63.95 is beyond 32 bits.
TEST_F(CaudalesA, A64Km2)
{
    Compara("64", {
        {"txtQCreager",     "0"},
        {"txtQpSanti100",   "264",     33 * 8},
        {"txtQpSanti500",   "400",     50 * 8},
        {"txtQpSanti1000",  "528",     66 * 8},
        {"txtQpMyerC30",    "420",     52.5 * 8},
        {"txtQpMyerC100",   "1400",    175 * 8},
        {"txtQpScimeni",    "582.92",  64 * (600.0 / 74 + 1)},
        {"txtQpPagliaro",   "1205.19", 64 * 2900.0 / 154},
        {"txtQpGauguillet", "123.08",  25 * 64.0 / 13},
        {"txtQpFanning",    "80",      2.5 * 32},
        {"txtQpDickens",    "156.13",  6.9 * 22.6274170},
        {"txtQpQuijano",    "272",     17 * 16},
        {"txtQpZapata",     "254.64",  21 * 12.1257325},
        {"txtQpKuicklingO", "172.3",   64 * (1246.0 / 504 + 0.22)},
        {"txtQpKuicklingE", "230.31",  64 * (3596.0 / 1022 + 0.08)},
        {"txtQpRyves",      "136",     8.5 * 16},
        {"txtQpValentini",  "216",     27 * 8},
        {"txtQpGutmann",    "1132.8",  64 * 2832.0 / 160},
    });
}

// 1000 = 10^3: 1000^(2/3) = 100, 1000^(1/2) = 31.6227766, 1000^(5/6) = 10^2.5 = 316.2277660, 1000^(3/4) = 10^2.25 =
// 177.8279410, 1000^0.6 = 10^1.8 = 63.0957344. Santi changes its power here; Scimeni and Pagliaro still hold.
TEST_F(CaudalesA, A1000Km2)
{
    Compara("1000", {
        {"txtQCreager",     "0"},
        {"txtQpSanti100",   "3300",    33 * 100},
        {"txtQpSanti500",   "5000",    50 * 100},
        {"txtQpSanti1000",  "6600",    66 * 100},
        {"txtQpMyerC30",    "1660.2",  52.5 * 31.6227766},
        {"txtQpMyerC100",   "5533.99", 175 * 31.6227766},
        {"txtQpScimeni",    "1594.06", 1000 * (600.0 / 1010 + 1)},
        {"txtQpPagliaro",   "2660.55", 1000 * 2900.0 / 1090},
        {"txtQpGauguillet", "682.64",  25000 / (5 + 31.6227766)},
        {"txtQpFanning",    "790.57",  2.5 * 316.2277660},
        {"txtQpDickens",    "1227.01", 6.9 * 177.8279410},
        {"txtQpQuijano",    "1700",    17 * 100},
        {"txtQpZapata",     "1325.01", 21 * 63.0957344},
        {"txtQpKuicklingO", "1085.28", 1000 * (1246.0 / 1440 + 0.22)},
        {"txtQpKuicklingE", "1916.57", 1000 * (3596.0 / 1958 + 0.08)},
        {"txtQpRyves",      "850",     8.5 * 100},
        {"txtQpValentini",  "853.81",  27 * 31.6227766},
        {"txtQpGutmann",    "2583.94", 1000 * 2832.0 / 1096},
    });
}

// 4096 = 2^12: 4096^(1/2) = 64, 4096^(2/3) = 256, 4096^(5/6) = 1024, 4096^(3/4) = 512, 4096^0.6 = 2^7.2 = 147.0333894.
TEST_F(CaudalesA, A4096Km2)
{
    Compara("4096", {
        {"txtQCreager",     "0"},
        {"txtQpSanti100",   "8448",    33 * 256},
        {"txtQpSanti500",   "12800",   50 * 256},
        {"txtQpSanti1000",  "16896",   66 * 256},
        {"txtQpMyerC30",    "3360",    52.5 * 64},
        {"txtQpMyerC100",   "11200",   175 * 64},
        {"txtQpScimeni",    ""},
        {"txtQpPagliaro",   ""},
        {"txtQpGauguillet", "1484.06", 25 * 4096.0 / 69},
        {"txtQpFanning",    "2560",    2.5 * 1024},
        {"txtQpDickens",    "3532.8",  6.9 * 512},
        {"txtQpQuijano",    "4352",    17 * 256},
        {"txtQpZapata",     "3087.7",  21 * 147.0333894},
        {"txtQpKuicklingO", "2026.26", 4096 * (1246.0 / 4536 + 0.22)},
        {"txtQpKuicklingE", "3242.05", 4096 * (3596.0 / 5054 + 0.08)},
        {"txtQpRyves",      "2176",    8.5 * 256},
        {"txtQpValentini",  "1728",    27 * 64},
        {"txtQpGutmann",    "2767.15", 4096 * 2832.0 / 4192},
    });
}

// clang-format on

// 16.5 · 26.32^26.27 = 3.375935509e38 is still within 32 bits, the nearest of which is 16644647 · 2^104 =
// 3.37593548e38; 16.5 · 26.33^26.28 = 3.52e38 isn't.
TEST_F(Calculadora, CreagerDesbordaDesde26con33Km2)
{
    PonS("26.32");
    EXPECT_EQ(Qp("txtQCreager"), "3.375935E+38");
    PonS("26.33");
    EXPECT_EQ(Qp("txtQCreager"), "0");
    PonS("10000");  // beyond 64 bits too
    EXPECT_EQ(Qp("txtQCreager"), "0");
    EXPECT_EQ(Qp("txtQpSanti100"), "15317.24");  // 33 · 10000^(2/3) = 33 · 464.1588834
}

TEST_F(Calculadora, SantiCambiaDePotenciaEn1000)
{
    PonS("999.99");  // 33 · 31.6226185
    EXPECT_EQ(Qp("txtQpSanti100"), "1043.55");
    EXPECT_EQ(Qp("txtQpSanti500"), "1581.13");
    EXPECT_EQ(Qp("txtQpSanti1000"), "2087.09");
    PonS("1000");
    EXPECT_EQ(Qp("txtQpSanti100"), "3300");
}

TEST_F(Calculadora, ScimeniYPagliaroFueraDeSuRangoQuedanVacios)
{
    struct Fila {
        std::string_view S, scimeni, pagliaro;
    };
    // 20 · (600/30 + 1), 20 · 2900/110; 19.99 · (600/29.99 + 1)
    for (const auto& [S, scimeni, pagliaro] : {Fila{"19.99", "419.92", ""}, Fila{"20", "420", "527.27"},
                                               Fila{"1000", "1594.06", "2660.55"}, Fila{"1000.01", "", ""}}) {
        PonS(std::string(S));
        EXPECT_EQ(Qp("txtQpScimeni"), scimeni) << S;
        EXPECT_EQ(Qp("txtQpPagliaro"), pagliaro) << S;
    }
}

// --- the field of the area ---

TEST_F(Calculadora, LaSuperficieSeCorrigeEnElCampo)
{
    struct Fila {
        std::string_view escrito, queda;
    };
    for (const auto& [escrito, queda] :
         {Fila{"10000", "10000"}, Fila{"10000.01", "10000"}, Fila{"9999.99", "9999.99"}, Fila{"1e5", "10000"},
          Fila{"1e999", "10000"}, Fila{"0", "1"}, Fila{"", "1"}, Fila{"0.0", "1"}, Fila{"-", "1"},
          Fila{"abc", "1"}, Fila{"0.001", "0.001"}, Fila{"25km2", "25km2"}, Fila{"2,5", "2,5"},
          Fila{"-3", "-3"}}) {
        PonS(std::string(escrito));
        EXPECT_EQ(f.txtSup, queda) << escrito;
        EXPECT_EQ(f.lblSup, queda) << escrito;
    }
}

TEST_F(Calculadora, UnTextoDeCifrasYLetrasValeSusCifras)
{
    PonS("64km2");
    EXPECT_EQ(Qp("txtQpSanti100"), "264");
    PonS("4,9");  // the comma ends the number
    EXPECT_EQ(Qp("txtQpSanti100"), "66");
    PonS("letras");
    EXPECT_EQ(Qp("txtQpSanti100"), "33");
}

TEST_F(Calculadora, UnaSuperficieNegativaDejaLosCaudalesComoEstaban)
{
    PonS("64");
    PonS("-64");
    EXPECT_EQ(f.lblSup, "-64");
    EXPECT_EQ(Qp("txtQpSanti100"), "264");
    EXPECT_EQ(Ventura(), "");  // the times are worked out all the same
    EXPECT_EQ(California(), "9.66");
}

TEST_F(Calculadora, AlSalirDeLaSuperficieElCeroEsUnoYSeCalcula)
{
    f.txtSup = "0";
    AlSalir(f, "txtSup");
    EXPECT_EQ(f.txtSup, "1");
    EXPECT_EQ(f.lblSup, "1");
    EXPECT_EQ(Qp("txtQpSanti100"), "33");
    EXPECT_EQ(Ventura(), "76.32");
    f.txtSup = "20000";  // leaving looks at the zero alone
    AlSalir(f, "txtSup");
    EXPECT_EQ(f.txtSup, "20000");
}

// --- times of concentration ---

TEST_F(Calculadora, LosTresTiemposConLosValoresDeEntrada)
{
    PonS("1");
    EXPECT_EQ(California(), "9.66");  // 60 · 0.0087^0.385 = 60 · 0.16095887
    EXPECT_EQ(Ventura(), "76.32");    // 60 · 0.1272 · 10
    EXPECT_EQ(Scs(), "29.29");        // 60 · 0.1947 · 3.3^0.77 = 11.682 · 2.50758541
    EXPECT_NEAR(model::Val(California()), 60 * 0.16095887, 0.0051);
    EXPECT_NEAR(model::Val(Ventura()), 60 * 0.1272 * 10, 0.0051);
    EXPECT_NEAR(model::Val(Scs()), 11.682 * 2.50758541, 0.0051);
}

TEST_F(Calculadora, LosTresTiemposConOtros)
{
    PonS("64");
    PonL("8");
    PonH("250");
    PonI("2");
    EXPECT_EQ(California(), "74.94");  // 0.87 · 512 / 250 = 1.78176; 1.78176^0.385 = 1.24904172
    EXPECT_EQ(Ventura(), "215.87");    // 7.632 · 80 / 8^0.5 = 7.632 · 28.28427125
    EXPECT_EQ(Scs(), "85.18");         // (26.4 / 2)^0.77 = 7.29192053
    EXPECT_NEAR(model::Val(California()), 60 * 1.24904172, 0.0051);
    EXPECT_NEAR(model::Val(Ventura()), 7.632 * 28.28427125, 0.0051);
    EXPECT_NEAR(model::Val(Scs()), 11.682 * 7.29192053, 0.0051);
}

// L 27 and H 0.87 make (27^3)^0.385 = 27^1.155 = 45.00130909; 100 km2 make 100 / 27^0.5 = 19.24500897;
// 3.3 · 27 / 100 = 0.891, and 0.891^0.77 = 0.91496776.
TEST_F(Calculadora, LosTresTiemposEnUnaTerceraCuenca)
{
    PonS("100");
    PonL("27");
    PonH("0.87");
    PonI("100");
    EXPECT_EQ(California(), "2700.08");
    EXPECT_EQ(Ventura(), "146.88");
    EXPECT_EQ(Scs(), "10.69");
    EXPECT_NEAR(model::Val(California()), 60 * 45.00130909, 0.0051);
    EXPECT_NEAR(model::Val(Ventura()), 7.632 * 19.24500897, 0.0051);
    EXPECT_NEAR(model::Val(Scs()), 11.682 * 0.91496776, 0.0051);
}

TEST_F(Calculadora, SinDesnivelOSinLongitudNoHayTiempo)
{
    PonS("1");
    PonH("0");
    EXPECT_EQ(California(), "");
    EXPECT_EQ(Ventura(), "76.32");
    EXPECT_EQ(Scs(), "29.29");
    PonH("100");
    EXPECT_EQ(California(), "9.66");
    PonL("0");
    EXPECT_EQ(California(), "");
    EXPECT_EQ(Ventura(), "");
    EXPECT_EQ(Scs(), "");
    EXPECT_EQ(f.txtLcauceP, "0");  // shown as typed
}

TEST_F(Calculadora, LoQueFallaNoDejaTiempo)
{
    PonS("1");
    PonH("-100");  // a negative base
    EXPECT_EQ(California(), "");
    PonL("-1");  // -0.87 / -100 isn't
    EXPECT_EQ(California(), "9.66");
    EXPECT_EQ(Ventura(), "");
    EXPECT_EQ(Scs(), "");
    PonL("1e200");  // its cube is beyond 64 bits
    EXPECT_EQ(California(), "");
    PonL("1e999");
    EXPECT_EQ(California(), "");
    EXPECT_EQ(Ventura(), "");
    EXPECT_EQ(Scs(), "");
    PonL("1e60");  // 3.3e60^0.77 is beyond 32 bits
    EXPECT_EQ(Scs(), "");
    PonL("letras");
    EXPECT_EQ(California(), "");
}

// A time that is more than nothing and rounds to 0 is shown.
TEST_F(Calculadora, UnTiempoMuyChicoSeMuestraComoCero)
{
    PonS("1");
    PonL("0.001");
    PonH("10000");  // 60 · (0.87e-13)^0.385 = 60 · 9.2e-6
    EXPECT_EQ(California(), "0");
}

TEST_F(Calculadora, LaPendienteSeCorrigeEnElCampo)
{
    struct Fila {
        std::string_view escrita, queda;
    };
    for (const auto& [escrita, queda] :
         {Fila{"100", "100"}, Fila{"100.01", "100"}, Fila{"150", "100"}, Fila{"99.99", "99.99"},
          Fila{"0", "0"}, Fila{"-0.1", "0"}, Fila{"-5", "0"}, Fila{"-1e999", "0"}, Fila{"1e999", "100"},
          Fila{"letras", "0"}, Fila{"", "0"}, Fila{"0.", "0"}, Fila{"0.01", "0.01"}, Fila{"5%", "5%"}}) {
        PonI(std::string(escrita));
        EXPECT_EQ(f.txtPendiCP, queda) << escrita;
        EXPECT_EQ(Scs().empty(), queda == "0") << escrita;
    }
}

TEST_F(Calculadora, SinPendienteElRotuloDeScsQuedaVacio)
{
    PonI("1");
    EXPECT_EQ(Scs(), "29.29");
    PonI("0");
    EXPECT_EQ(Scs(), "");
    EXPECT_EQ(California(), "9.66");
    f.txtPendiCP = "150";  // leaving corrects nothing above
    AlSalir(f, "txtPendiCP");
    EXPECT_EQ(f.txtPendiCP, "150");
    EXPECT_EQ(Scs(), "0.62");  // 11.682 · 0.022^0.77 = 11.682 · 0.05292
    f.txtPendiCP = "-1";
    AlSalir(f, "txtPendiCP");
    EXPECT_EQ(f.txtPendiCP, "0");
    EXPECT_EQ(Scs(), "");
}

TEST_F(Calculadora, LaSuperficieTambienCalculaLosTiemposYLosDatosDeEstosNoLosCaudales)
{
    PonL("8");
    EXPECT_EQ(Qp("txtQpSanti100"), "");
    EXPECT_EQ(Ventura(), "26.98");  // 76.32 / 8^0.5
    PonS("64");
    EXPECT_EQ(Ventura(), "215.87");
}

// Each row of the fields does what its control's events do.
TEST_F(Calculadora, CadaCampoSeMandaPorSuFila)
{
    for (const auto& campo : CamposEmpiricos) {
        dlgEmpiricas uno, otro;
        Abre(uno);
        Abre(otro);
        uno.*campo.texto = otro.*campo.texto = "4";
        AlCambiar(uno, campo.regla.control);
        AlSalir(otro, campo.regla.control);
        EXPECT_EQ(uno, otro) << campo.regla.control;
        EXPECT_NE(uno.Tc[1], "") << campo.regla.control;
        EXPECT_EQ(uno.Qp[1] == "66", campo.regla.control == "txtSup") << campo.regla.control;
    }
}

// --- copying ---

TEST_F(Calculadora, SeCopiaTodoDeUnaVez)
{
    PonS("64");
    PonI("0");
    EXPECT_EQ(ComoTexto(f),
              "Estimaciones empíricas de Qp, Caudal Pico, [m3/s]\r\n"
              "Superficie S[Km2]:\t64\r\n"
              "Creager\t0\r\n"
              "Santi R=100años\t264\r\n"
              "Santi R=500años\t400\r\n"
              "Santi R=1000años\t528\r\n"
              "Myer, C=30\t420\r\n"
              "            C=100\t1400\r\n"
              "Scimeni (S<1000Km2)\t582.92\r\n"
              "Pagliaro\t1205.19\r\n"
              "Gauguillet\t123.08\r\n"
              "Fanning\t80\r\n"
              "Dickens\t156.13\r\n"
              "Quijano\t272\r\n"
              "Zapata\t254.64\r\n"
              "Kuickling, Ordinarias\t172.3\r\n"
              "Kuickling, Extra-Ordinarias\t230.31\r\n"
              "Rives\t136\r\n"
              "Valentini\t216\r\n"
              "Gutmann\t1132.8\r\n"
              "Estimaciones empíricas de Tc, Tiempo de Concentración [min]\r\n"
              "Superficie [Km2]\t64\r\n"
              "Longitud Cauce Principal  L[Km]:\t1\r\n"
              "Desnivel Máximo H[m]:\t100\r\n"
              "Pendiente media cauce mñas largo [%]:\t0\r\n"
              "California Culverts\t9.66\r\n"
              "Ventura\t610.56\r\n"
              "SCS-US\t\r\n");
}

}  // namespace
}  // namespace empirical
