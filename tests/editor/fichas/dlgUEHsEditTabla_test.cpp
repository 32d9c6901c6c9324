// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEHsEditTabla.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "editor/RedGuardadaDePrueba.h"

namespace editor {
namespace {

using forms::Celda;
using model::Icono;
using model::Mensaje;

class EditorTabular : public testing::Test, public pruebas::ProyectoGuardado {
  protected:
    EditorTabular()
    {
        Agrega(model::Cauce{.NombreCauce = "c-alto",
                            .Cauce_aa = "c-bajo",
                            .LongCauce = 1200,
                            .VelMediaCauce = 1.5F,
                            .Cauce_k_Musk = 20,
                            .Cauce_n_Musk = 0.2F});
        Agrega(model::Cauce{.NombreCauce = "c-bajo", .LongCauce = 800, .optDirMusk = true});
        Agrega(model::UEH{.NombreUEH = "u-1",
                          .Area = 250.5F,
                          .LongitudMax = 1500,
                          .VelMedia = 0.75F,
                          .Metodo = "Directo",
                          .Cauce_aa = "c-alto",
                          .KostiakovA = 0.5F,
                          .KostiakovB = 0.25F,
                          .RetensionZ = 5.5F,
                          .Q0Recesion = 0.125F,
                          .KRecesion = 0.5F,
                          .KostiakovI = 30});
        Guarda();
    }
    void AbreForma() { Abre(f, s); }
    forms::Grilla& Grilla(bool deUEHs) { return deUEHs ? f.MSFlexGridEditUEHs : f.MSFlexGridEditCauces; }
    /// Types into row 1 of a column as a user who has just come there.
    std::string Teclea(bool deUEHs, int columna, std::string_view teclas)
    {
        forms::Grilla& g = Grilla(deUEHs);
        forms::Mueve(g, {1, 0});
        forms::Mueve(g, {1, columna});
        for (const char c : teclas)
            forms::Escribe(g, s, std::string_view(&c, 1));
        return g.Texto({1, columna});
    }
    dlgUEHsEditTabla f;
};

TEST_F(EditorTabular, LosTextosSonLosDados)
{
    EXPECT_EQ(TituloDlgUEHsEditTabla, "Tabla de Edición de datos entrada: Parámetros Físicos UHEs");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgUEHsEditTabla, "OKButton").leyenda, "&Aceptar");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgUEHsEditTabla, "cmdCancel").leyenda, "&Cancel");
    EXPECT_EQ(AyudaGrillasEditTabla,
              "Las celdas de datos con fondo blanco pueden modificarse desde esta tabla");
}

TEST_F(EditorTabular, AbreConLosDatosDelArchivo)
{
    s.Red.Cauces(1).LongCauce = 99;  // in memory only
    AbreForma();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblProyecto, "Arroyo");
    EXPECT_EQ(f.lblFileProyecto, "Arroyo_Conf.vlm");
    const forms::Grilla& c = f.MSFlexGridEditCauces;
    ASSERT_EQ(c.NroFilas(), 2);
    EXPECT_EQ(c.filas[0].celdas, (std::vector<std::string>{"Cauce", "1", "c-alto", "c-bajo", "Muskingum", "2",
                                                           "1", "1.5", "1200", "1", "20", "0.2"}));
    EXPECT_EQ(c.Texto({2, 4}), "Directo");
    const forms::Grilla& u = f.MSFlexGridEditUEHs;
    ASSERT_EQ(u.NroFilas(), 1);
    EXPECT_EQ(u.filas[0].celdas,
              (std::vector<std::string>{"UEH", "1", "u-1", "c-alto", "Directo", "250.5", "1500", "0.75",
                                        "0.5", "0.25", "30", "0.125", "0.5", "5.5"}));
    EXPECT_EQ(c.actual, (Celda{1, 7}));
    EXPECT_EQ(u.actual, (Celda{1, 5}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EditorTabular, LosEncabezadosSonLosDadosYCentrados)
{
    AbreForma();
    const std::vector<std::string> cauces = {"Componente",
                                             "Nro.",
                                             "       Nombre      ",
                                             "     Afluente de     ",
                                             "    Método    ",
                                             "Vértices",
                                             " Ind.Vért.",
                                             "Vel.Media",
                                             "Longitud",
                                             "Orden",
                                             "K Musk.",
                                             "x Musk."};
    ASSERT_EQ(f.MSFlexGridEditCauces.NroColumnas(), 12);
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(f.MSFlexGridEditCauces.Texto({0, i}), cauces[static_cast<std::size_t>(i)]);
        EXPECT_EQ(f.MSFlexGridEditCauces.columnas[static_cast<std::size_t>(i)].alineacion,
                  forms::Alineacion::Centro);
    }
    const std::vector<std::string> uehs = {"  Area   ",  " Long.Máx.", "Vel.Media", "'a' Kost.", "'b' Kost.",
                                           "H Ini[min]", "Q inicio",   "'K' Rec.",  "Z Ret."};
    ASSERT_EQ(f.MSFlexGridEditUEHs.NroColumnas(), 14);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(f.MSFlexGridEditUEHs.Texto({0, 5 + i}), uehs[static_cast<std::size_t>(i)]);
}

TEST_F(EditorTabular, SeEditanLasColumnasDeDatosYNingunaOtra)
{
    AbreForma();
    std::string cauces;
    for (const auto& columna : f.MSFlexGridEditCauces.columnas)
        cauces += columna.editable ? 'x' : '-';
    EXPECT_EQ(cauces, "-------xx-xx");
    std::string uehs;
    for (const auto& columna : f.MSFlexGridEditUEHs.columnas)
        uehs += columna.editable ? 'x' : '-';
    EXPECT_EQ(uehs, "-----xxxxxxxxx");
}

TEST_F(EditorTabular, UnProyectoVacioMuestraSoloLosEncabezados)
{
    disco.Quita("/proy/Arroyo_UEHs.vlm");
    AbreForma();
    EXPECT_EQ(f.MSFlexGridEditCauces.NroFilas(), 0);
    EXPECT_EQ(f.MSFlexGridEditUEHs.NroFilas(), 0);
    EXPECT_EQ(f.MSFlexGridEditUEHs.NroColumnas(), 14);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

// --- keys ---

TEST_F(EditorTabular, LaPrimeraTeclaReemplazaLasSiguientesSeAgreganYEnterDaLaVuelta)
{
    AbreForma();
    EXPECT_EQ(Teclea(false, 7, "2,5"), "2.5");
    forms::Grilla& g = f.MSFlexGridEditCauces;
    forms::Teclea(g, forms::Tecla::Enter);
    EXPECT_EQ(g.actual, (Celda{2, 7}));
    forms::Teclea(g, forms::Tecla::Enter);
    EXPECT_EQ(g.actual, (Celda{1, 7}));
    forms::Teclea(g, forms::Tecla::Suprimir);
    EXPECT_EQ(g.Texto({1, 7}), "");
}

TEST_F(EditorTabular, EnUnaColumnaQueNoSeEditaNingunaTeclaVale)
{
    AbreForma();
    for (const int columna : {0, 1, 2, 3, 4, 5, 6, 9}) {
        const std::string antes = f.MSFlexGridEditCauces.Texto({1, columna});
        EXPECT_EQ(Teclea(false, columna, "7"), antes);
        forms::Teclea(f.MSFlexGridEditCauces, forms::Tecla::Suprimir);
        forms::Teclea(f.MSFlexGridEditCauces, forms::Tecla::Enter);
        EXPECT_EQ(f.MSFlexGridEditCauces.Texto({1, columna}), antes);
        EXPECT_EQ(f.MSFlexGridEditCauces.actual, (Celda{1, columna}));
    }
}

TEST_F(EditorTabular, SeTomanLosCodigos42A57Y64A122)
{
    AbreForma();
    for (int codigo = 32; codigo < 127; ++codigo) {
        const std::string tecla(1, static_cast<char>(codigo));
        Teclea(true, 8, "1");
        forms::Escribe(f.MSFlexGridEditUEHs, s, tecla);
        const bool tomada = f.MSFlexGridEditUEHs.Texto({1, 8}) != "1";
        EXPECT_EQ(tomada, (codigo >= 42 && codigo <= 57) || (codigo >= 64 && codigo <= 122)) << codigo;
    }
}

// --- limits ---

struct CasoLimite {
    bool deUEHs;
    int columna;
    const char* dentro;
    const char* limite;
    const char* fuera;
    const char* mensaje;
};

// clang-format off
const CasoLimite CasosLimite[] = {
    {false, 7,  "14.99",   "15",    "15.01",    "Ingrese un valor numérico entero o decimal menor de 15"},
    {false, 8,  "49999",   "50000", "50001",    "Ingrese un valor numérico entero menor de 50000"},
    {false, 10, "9998.9",  "9999",  "9999.1",   "Ingrese un valor numérico entero o decimal menor de 9999"},
    {false, 11, "0.49",    "0.5",   "0.51",     "Ingrese un valor numérico decimal entre 0 y 0.5"},
    {true,  5,  "99998.9", "99999", "99999.1",  "Ingrese un valor numérico entero o decimal menor de 99999"},
    {true,  6,  "9999",    "10000", "10001",    "Ingrese un valor numérico entero menor de 10000"},
    {true,  7,  "14.99",   "15",    "15.01",    "Ingrese un valor numérico entero o decimal menor de 15"},
    {true,  8,  "9998.9",  "9999",  "9999.1",   "Ingrese un valor numérico entero o decimal menor de 9999"},
    {true,  9,  "0.99",    "1",     "1.01",     "Ingrese un valor numérico decimal entre 0 y 1"},
    {true,  10, "999.9",   "1000",  "1000.1",   "Ingrese un valor numérico decimal entre 0 y 1000"},
    {true,  11, "9998.9",  "9999",  "9999.1",   "Ingrese un valor numérico entero o decimal menor de 9999"},
    {true,  12, "0.99",    "1",     "1.01",     "Ingrese un valor numérico decimal entre 0 y 1"},
    {true,  13, "39.99",   "40",    "40.01",    "Ingrese un valor numérico entero o decimal menor de 40"},
};
// clang-format on

TEST_F(EditorTabular, CadaColumnaTomaHastaSuLimiteInclusive)
{
    AbreForma();
    for (const CasoLimite& caso : CasosLimite) {
        anfitrion->sucesos.clear();
        EXPECT_EQ(Teclea(caso.deUEHs, caso.columna, "0"), "0");
        EXPECT_EQ(Teclea(caso.deUEHs, caso.columna, caso.dentro), caso.dentro);
        EXPECT_EQ(Teclea(caso.deUEHs, caso.columna, caso.limite), caso.limite);
        EXPECT_TRUE(anfitrion->sucesos.empty()) << caso.columna;
    }
}

TEST_F(EditorTabular, PasadoElLimiteOBajoCeroSeAvisaYLaCeldaQuedaEnCero)
{
    AbreForma();
    for (const CasoLimite& caso : CasosLimite) {
        const std::vector<Mensaje> aviso = {{caso.mensaje, "Advertencia !", Icono::Exclamacion}};
        anfitrion->sucesos.clear();
        EXPECT_EQ(Teclea(caso.deUEHs, caso.columna, caso.fuera), "0");
        EXPECT_EQ(anfitrion->Avisos(), aviso);
        anfitrion->sucesos.clear();
        EXPECT_EQ(Teclea(caso.deUEHs, caso.columna, "-1"), "0");
        EXPECT_EQ(anfitrion->Avisos(), aviso);
    }
}

TEST_F(EditorTabular, ElLimiteSePruebaACadaTecla)
{
    AbreForma();
    // 10000 is over the limit of 9999 before the point is typed; what comes then is appended to the 0.
    EXPECT_EQ(Teclea(true, 8, "10000.5"), "0.5");
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
}

TEST_F(EditorTabular, LosLimitesNoSonLosDeLaFormaDeUnaUEH)
{
    AbreForma();
    EXPECT_EQ(Teclea(true, 6, "50000"), "0");     // 50000 there
    EXPECT_EQ(Teclea(true, 8, "9999"), "9999");   // 30 there
    EXPECT_EQ(Teclea(true, 11, "9999"), "9999");  // 1000 there
    EXPECT_EQ(Teclea(true, 12, "2"), "0");        // 9999 there
}

// --- OK and cancel ---

TEST_F(EditorTabular, AceptarTomaPreguntaYGuarda)
{
    AbreForma();
    Teclea(false, 11, "0.3");
    Teclea(true, 13, "12.5");
    anfitrion->respuestas = {true};
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->Preguntas(),
              (std::vector<Mensaje>{{"Confirma los cambios producidos en la tabla de datos de Entradas ?",
                                     "Consulta de validación de cambios", Icono::Exclamacion}}));
    model::LeeUEHs(s);
    EXPECT_EQ(s.Red.Cauces(1).Cauce_n_Musk, 0.3F);
    EXPECT_EQ(s.Red.UEHs(1).RetensionZ, 12.5F);
    EXPECT_EQ(s.Red.UEHs(1).Area, 250.5F);
}

TEST_F(EditorTabular, CadaColumnaSeGuardaEnSuPropiedad)
{
    AbreForma();
    int valor = 0;
    for (const CasoLimite& caso : CasosLimite)
        Grilla(caso.deUEHs).Pon({1, caso.columna}, "0." + std::to_string(++valor + 10));
    anfitrion->respuestas = {false};
    OKButton(f, s);
    const model::Cauce& c = s.Red.Cauces(1);
    EXPECT_EQ((std::vector<float>{c.VelMediaCauce, c.LongCauce, c.Cauce_k_Musk, c.Cauce_n_Musk}),
              (std::vector<float>{0.11F, 0.12F, 0.13F, 0.14F}));
    const model::UEH& u = s.Red.UEHs(1);
    EXPECT_EQ((std::vector<float>{u.Area, u.LongitudMax, u.VelMedia, u.KostiakovA, u.KostiakovB, u.KostiakovI,
                                  u.Q0Recesion, u.KRecesion, u.RetensionZ}),
              (std::vector<float>{0.15F, 0.16F, 0.17F, 0.18F, 0.19F, 0.20F, 0.21F, 0.22F, 0.23F}));
}

TEST_F(EditorTabular, ConNoElArchivoQuedaComoEstabaYLaMemoriaCambiada)
{
    AbreForma();
    Teclea(true, 5, "99");
    const std::string antes = disco.Bytes("/proy/Arroyo_UEHs.vlm");
    anfitrion->respuestas = {false};
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_UEHs.vlm"), antes);
    EXPECT_EQ(s.Red.UEHs(1).Area, 99.0F);
}

TEST_F(EditorTabular, UnaLetraPasaYSeLeeCeroAlGuardar)
{
    AbreForma();
    EXPECT_EQ(Teclea(true, 5, "x"), "x");
    EXPECT_EQ(Teclea(true, 6, "12m"), "12m");
    forms::Mueve(f.MSFlexGridEditUEHs, {1, 7});
    forms::Teclea(f.MSFlexGridEditUEHs, forms::Tecla::Suprimir);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    anfitrion->respuestas = {false};
    OKButton(f, s);
    EXPECT_EQ(s.Red.UEHs(1).Area, 0.0F);
    EXPECT_EQ(s.Red.UEHs(1).LongitudMax, 12.0F);
    EXPECT_EQ(s.Red.UEHs(1).VelMedia, 0.0F);
}

TEST_F(EditorTabular, UnNumeroFueraDelTipoSeDiceYLaFormaSigueAbierta)
{
    AbreForma();
    Teclea(true, 5, "x");
    f.MSFlexGridEditUEHs.Pon({1, 5}, "1E39x");
    OKButton(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno}}));
    EXPECT_TRUE(anfitrion->Preguntas().empty());
}

TEST_F(EditorTabular, CancelarNoTomaNada)
{
    AbreForma();
    Teclea(true, 5, "99");
    cmdCancel(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Red.UEHs(1).Area, 250.5F);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

}  // namespace
}  // namespace editor
