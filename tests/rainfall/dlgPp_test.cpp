// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPp.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"

namespace rainfall {
namespace {

using model::Icono;
using model::Mensaje;
using model::Siro;

const Mensaje SinTormenta = {"No ha ingresado datos de Pp y Duración de la tormenta.", "Advertencia !",
                             Icono::Exclamacion};
const Mensaje Desbordamiento = {"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno};

class DialogoPp : public testing::Test {
  protected:
    DialogoPp()
    {
        s.Anfitrion = anfitrion.Puerta();
        PonProyectoDeLluvia(s, disco);
    }
    void PonTormenta(const std::string& nombre, const std::string& notas, int n, int paso,
                     const std::string& laminas)
    {
        rainfall::PonTormenta(disco, nombre, notas, n, paso, laminas);
    }
    void AbreConTormenta(float P, std::int16_t D, std::int16_t R)
    {
        s.Tormenta.PpTormenta = P;
        s.Tormenta.DurTormenta = D;
        s.Tormenta.RecTormenta = R;
        Abre(f, s);
    }
    /// Which of the three fields of the storm show what.
    std::vector<std::string> Campos() const { return {f.txtPp, f.txtDur, f.cmbRec}; }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgPp f;
};

using Textos = std::vector<std::string>;

// --- texts ---

TEST(TextosDeDlgPp, LasLeyendasEstanLetraPorLetra)
{
    const std::map<std::string, std::string> leyendas = {
        {"cmdAplicar", "&Aplicar"},
        {"OKButton", "&Aceptar"},
        {"CancelButton", "&Cancelar"},
        {"cmdVerGrafico", "&Gráfico P-t"},
        {"cmdVerTablaPt", "Ver Tabla P-t"},
        {"cmdPDR", "Cargar Tormenta a Lista b)"},
        {"cmdBorraPDR", "Eliminar de Lista una tormenta ( P-t )"},
        {"cmdPpPerso", "Cargar Tabla Personalizada "},
        {"cmdPpReal", "Cargar lluvia Real (P-t)"},
        {"cmdCargaPDRnoUniforme", "Cargar datos"},
        {"lblValidez", "Validez: Duración [minutos]    Min        -    Máxima"},
    };
    for (const auto& [nombre, leyenda] : leyendas)
        EXPECT_EQ(RotuloDe(ControlesDlgPp, nombre).leyenda, leyenda) << nombre;
    EXPECT_EQ(TituloDlgPp, "Carga de Datos de Precipitación");
    EXPECT_EQ(FormasPp[0],
              "a) Ingresar una lluvia (Pp), de Duración (D) y Recurrencia(R) y asignar una distribución "
              "temporal tipo");
    EXPECT_EQ(FormasPp[1], "b) Cargar una tormenta  Pp-D-R desde Lista archivada");
    EXPECT_EQ(FormasPp[2], "c) Cargar una tabla de Pp-D-R desde archivo");
    EXPECT_EQ(FormasPp[3], "d) Cargar una Pp-D-R por cada UEH");
    EXPECT_EQ(DistribucionesPp[0], "Lluvia de intensidad constante");
    EXPECT_EQ(DistribucionesPp[1], "Distribución de López Cadenas, SECSCM: ");
    EXPECT_EQ(DistribucionesPp[7], "Opción de distribución personalizada 3. Debe cargar la Tabla.");
}

TEST(TextosDeDlgPp, CadaControlTieneUnNombrePropio)
{
    std::set<std::string_view> nombres;
    for (const forms::FilaRotulo& fila : ControlesDlgPp)
        EXPECT_TRUE(nombres.insert(fila.control).second) << fila.control;
}

// --- opening ---

TEST_F(DialogoPp, AlAbrirMuestraLaTormentaYLosPasosDeLaCorrida)
{
    s.Pasos.PasoPp = 30;
    s.Pasos.PasoQ = 15;
    s.Tormenta.DistriPp = 3;
    s.Tormenta.TablaPDR = 2;
    AbreConTormenta(80.5F, 120, 50);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Campos(), (Textos{"80.5", "120", "50"}));
    EXPECT_EQ(f.itemsRec, (Textos{"2", "10", "50"}));
    EXPECT_EQ(f.cmbPasoPp, "30");
    EXPECT_EQ(f.cmbPasoQ, "15");
    const Textos pasos = {"5", "10", "15", "20", "30", "60", "120", "180", "240", "300", "360", "540", "720"};
    EXPECT_EQ(f.itemsPaso, pasos);
    EXPECT_EQ(f.itemsPaso, pasos);
    EXPECT_EQ(f.optformaPp, 0);
    EXPECT_EQ(f.optDistriPp, 3);
    EXPECT_EQ(f.optTablaPDR, 2);
    EXPECT_EQ(s.Pasos.PasoPp, 30);
    EXPECT_EQ(s.Pasos.PasoQ, 15);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPp, SinTormentaEnMemoriaValen60MilimetrosEn60Minutos)
{
    AbreConTormenta(0, 0, 0);
    EXPECT_EQ(Campos(), (Textos{"60", "60", "0"}));
}

TEST_F(DialogoPp, SinPasosEnMemoriaValen10Minutos)
{
    s.Pasos.PasoPp = s.Pasos.PasoQ = 0;
    Abre(f, s);
    EXPECT_EQ(f.cmbPasoPp, "10");
    EXPECT_EQ(f.cmbPasoQ, "10");
    EXPECT_EQ(s.Pasos.PasoPp, 10);
    EXPECT_EQ(s.Pasos.PasoQ, 10);
}

TEST_F(DialogoPp, AlAbrirElPasoQSeBajaAlPasoPp)
{
    s.Pasos.PasoPp = 20;
    s.Pasos.PasoQ = 60;
    Abre(f, s);
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    EXPECT_EQ(s.Pasos.PasoQ, 20);
}

TEST_F(DialogoPp, LaListaSeLeeAlAbrirEnLasFormas0Y1YLosCamposNoCambian)
{
    for (const auto forma : std::to_array<std::int16_t>({0, 1})) {
        s.Tormenta.FormaPp = forma;
        AbreConTormenta(70, 40, 2);
        EXPECT_EQ(f.cmbPDR.items, (Textos{"Pp= 30 - Dur = 20 - Rec = 5", "Pp= 80 - Dur = 120 - Rec = 50"}));
        EXPECT_EQ(Campos(), (Textos{"70", "40", "2"}));
        // The reader's own variables are the run-wide ones: the last line stays in them.
        EXPECT_EQ(s.Tormenta.PpTormenta, 80);
        EXPECT_EQ(s.Tormenta.DurTormenta, 120);
        EXPECT_EQ(s.Tormenta.RecTormenta, 50);
    }
}

TEST_F(DialogoPp, EnLasOtrasFormasLaListaNoSeLee)
{
    for (const auto forma : std::to_array<std::int16_t>({2, 3, 4})) {
        s.Tormenta.FormaPp = forma;
        Abre(f, s);
        EXPECT_TRUE(f.cmbPDR.items.empty()) << forma;
    }
}

TEST_F(DialogoPp, SinListaArchivadaQuedaVaciaYCallada)
{
    disco.Quita("/proyectos/ListaPDR.vlm");
    AbreConTormenta(70, 40, 2);
    EXPECT_TRUE(f.cmbPDR.items.empty());
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Tormenta.PpTormenta, 70);
}

TEST_F(DialogoPp, ReabreComoSeLoDejoAlAplicar)
{
    Abre(f, s);
    f.txtPp = "45.5";
    f.txtDur = "90";
    f.cmbRec = "10";
    f.cmbPasoPp = "30";
    f.cmbPasoQ = "15";
    optDistriPp_Click(f, s, 1);
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    dlgPp otra;
    Abre(otra, s);
    EXPECT_EQ(otra.txtPp, "45.5");
    EXPECT_EQ(otra.txtDur, "90");
    EXPECT_EQ(otra.cmbRec, "10");
    EXPECT_EQ(otra.cmbPasoPp, "30");
    EXPECT_EQ(otra.cmbPasoQ, "15");
    EXPECT_EQ(otra.optDistriPp, 1);
}

// --- state per form ---

struct CasoEstado {
    std::int16_t forma;
    const char* habilitados;
    const char* deshabilitados;
    const char* visibles;
    const char* ocultos;
};

class EstadoPorForma : public DialogoPp, public testing::WithParamInterface<CasoEstado> {
  protected:
    static Textos Controles(const char* nombres)
    {
        Textos controles;
        std::istringstream palabras(nombres);
        for (std::string nombre; palabras >> nombre;)
            controles.push_back(nombre);
        return controles;
    }
    void Comprueba() const
    {
        const CasoEstado& caso = GetParam();
        for (const std::string& c : Controles(caso.habilitados))
            EXPECT_TRUE(f.Habilitado(c)) << c;
        for (const std::string& c : Controles(caso.deshabilitados))
            EXPECT_FALSE(f.Habilitado(c)) << c;
        for (const std::string& c : Controles(caso.visibles))
            EXPECT_TRUE(f.Visible(c)) << c;
        for (const std::string& c : Controles(caso.ocultos))
            EXPECT_FALSE(f.Visible(c)) << c;
        EXPECT_EQ(s.Tormenta.FormaPp, caso.forma);
    }
};

TEST_P(EstadoPorForma, EsElMismoAlAbrirYDesdeCualquierOtraForma)
{
    s.Tormenta.FormaPp = GetParam().forma;
    Abre(f, s);
    Comprueba();
    for (const auto desde : std::to_array<int>({0, 1, 2, 3, 4})) {
        optformaPp_Click(f, s, desde);
        optDistriPp_Click(f, s, 0);
        optformaPp_Click(f, s, GetParam().forma);
        if (GetParam().forma != 4) optDistriPp_Click(f, s, 0);  // form 4 leaves a personal one behind
        Comprueba();
    }
}

// Tables without a personal distribution and with table 0 ticked.
INSTANTIATE_TEST_SUITE_P(
    DlgPp, EstadoPorForma,
    testing::Values(
        CasoEstado{0,
                   "optformaPp txtPp txtDur cmbRec cmdPDR cmbPasoPp cmdVerGrafico cmdVerTablaPt optDistriPp",
                   "cmdPpPerso optTablaPDR cmdBorraPDR cmbPDR cmdTablaPDR",
                   "Frame2 Frame4 Frame5 Label9_0 Label9_1", "Frame3 Frame7 lblValidez lblDurMin lblDurMax"},
        CasoEstado{1, "optformaPp cmdBorraPDR cmbPDR cmbPasoPp cmdVerGrafico cmdVerTablaPt optDistriPp",
                   "cmdPDR cmdPpPerso txtPp txtDur cmbRec optTablaPDR cmdTablaPDR",
                   "Frame2 Frame4 Frame5 Label9_0 Label9_1", "Frame3 Frame7"},
        CasoEstado{2, "optformaPp optTablaPDR cmbPasoPp optDistriPp",
                   "cmdPDR cmdTablaPDR cmdPpPerso txtPp txtDur cmbRec cmdBorraPDR cmbPDR cmdVerGrafico "
                   "cmdVerTablaPt",
                   "Frame2 Frame3 Frame5 Label9_0 Label9_1", "Frame4 Frame7"},
        CasoEstado{
            3, "optformaPp cmdCargaPDRnoUniforme cmbRec cmbPasoPp",
            "txtPp txtDur cmdPpPerso optTablaPDR cmdBorraPDR cmbPDR cmdTablaPDR cmdVerGrafico cmdVerTablaPt "
            "optDistriPp",
            "Frame2 Frame5 Label9_1", "Frame3 Frame4 Frame7 Label9_0 lblValidez lblDurMin lblDurMax"},
        CasoEstado{4, "optformaPp cmbPasoQ cmdAplicar OKButton CancelButton",
                   "txtPp txtDur cmbRec optTablaPDR cmdBorraPDR cmbPDR cmdTablaPDR cmbPasoPp cmdVerGrafico "
                   "cmdVerTablaPt optDistriPp",
                   "Frame2 Frame7 Label9_0", "Frame3 Frame4 Frame5 Label9_1"}));

TEST_F(DialogoPp, AlAbrirLaValidezNoSeVeSinUnaPersonal)
{
    for (const auto forma : std::to_array<std::int16_t>({0, 1, 2, 3, 4})) {
        s.Tormenta.FormaPp = forma;
        s.Tormenta.DistriPp = 0;
        Abre(f, s);
        EXPECT_FALSE(f.Visible("lblValidez")) << forma;
        EXPECT_FALSE(f.Visible("lblDurMin")) << forma;
        EXPECT_FALSE(f.Visible("lblDurMax")) << forma;
    }
}

TEST_F(DialogoPp, LaCargaPorUEHSeHabilitaConSuForma)
{
    Abre(f, s);
    EXPECT_FALSE(f.Habilitado("cmdCargaPDRnoUniforme"));
    optformaPp_Click(f, s, 3);
    EXPECT_TRUE(f.Habilitado("cmdCargaPDRnoUniforme"));
}

TEST_F(DialogoPp, LaValidezDeUnaPersonalSeMuestraConSusLimitesMayoresQueCero)
{
    s.TablasDeLluvia.DurMinPer = {0, 30, 0, 0};
    s.TablasDeLluvia.DurMaxPer = {0, 120, 360, 0};
    Abre(f, s);
    optDistriPp_Click(f, s, 5);
    EXPECT_TRUE(f.Habilitado("cmdPpPerso"));
    EXPECT_TRUE(f.Visible("lblValidez"));
    EXPECT_TRUE(f.Visible("lblDurMin"));
    EXPECT_TRUE(f.Visible("lblDurMax"));
    EXPECT_EQ(f.lblDurMin, "30");
    EXPECT_EQ(f.lblDurMax, "120");
    optDistriPp_Click(f, s, 6);
    EXPECT_FALSE(f.Visible("lblDurMin"));
    EXPECT_TRUE(f.Visible("lblDurMax"));
    EXPECT_EQ(f.lblDurMax, "360");
    optDistriPp_Click(f, s, 7);
    EXPECT_TRUE(f.Visible("lblValidez"));
    EXPECT_FALSE(f.Visible("lblDurMax"));
    optDistriPp_Click(f, s, 4);
    EXPECT_FALSE(f.Visible("lblValidez"));
    EXPECT_FALSE(f.Habilitado("cmdPpPerso"));
}

TEST_F(DialogoPp, EnLasFormas1Y2LaTablaPersonalSeCargaConUnaDistribucionPersonal)
{
    for (const auto forma : std::to_array<int>({1, 2})) {
        Abre(f, s);
        optformaPp_Click(f, s, forma);
        for (const auto distribucion : std::to_array<int>({4, 5, 6, 7, 0})) {
            optDistriPp_Click(f, s, distribucion);
            EXPECT_EQ(f.Habilitado("cmdPpPerso"), distribucion >= 5) << forma << ' ' << distribucion;
        }
    }
}

TEST_F(DialogoPp, LaTablaPDR0NoSeCargaYLasPersonalesSi)
{
    Abre(f, s);
    optformaPp_Click(f, s, 2);
    for (const auto tabla : std::to_array<int>({0, 1, 2, 3, 0})) {
        optTablaPDR_Click(f, tabla);
        EXPECT_EQ(f.Habilitado("cmdTablaPDR"), tabla >= 1) << tabla;
        optDistriPp_Click(f, s, 0);
        EXPECT_EQ(f.Habilitado("cmdTablaPDR"), tabla >= 1) << tabla;
    }
    EXPECT_EQ(s.Tormenta.TablaPDR, 0);  // taken at apply
}

TEST_F(DialogoPp, LaFormaPorUEHEsSiempreDeIntensidadConstante)
{
    Abre(f, s);
    optDistriPp_Click(f, s, 6);
    ASSERT_EQ(s.Tormenta.DistriPp, 6);
    optformaPp_Click(f, s, 3);
    EXPECT_EQ(s.Tormenta.DistriPp, 0);
    EXPECT_EQ(f.optDistriPp, 0);
}

TEST_F(DialogoPp, LaFormaPorUEHIgnoraLaDistribucionAlAplicar)
{
    AbreConTormenta(20, 60, 0);
    optDistriPp_Click(f, s, 1);
    optformaPp_Click(f, s, 3);
    f.txtPp = "12";  // what the form of the rain per UEH puts there
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 3);
    EXPECT_EQ(s.Tormenta.DistriPp, 0);
    EXPECT_EQ(s.Tormenta.PpTormenta, 12);
}

TEST_F(DialogoPp, SinNingunaFormaMarcadaValeLa0)
{
    Abre(f, s);
    f.optformaPp = -1;
    s.Tormenta.FormaPp = 3;
    EstadoFormaPp(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 0);
    s.Tormenta.FormaPp = 3;
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 0);
}

TEST_F(DialogoPp, UnaFormaDeMemoriaFueraDeLaTablaValeComo0)
{
    s.Tormenta.FormaPp = -1;
    s.Tormenta.DistriPp = 9;
    Abre(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 0);
    EXPECT_EQ(s.Tormenta.DistriPp, 9);  // no option is ticked, so none is taken
    EXPECT_EQ(f.optDistriPp, -1);
    EXPECT_FALSE(f.Visible("lblValidez"));

    s.Tormenta.FormaPp = 5;
    s.Tormenta.TablaPDR = 4;
    Abre(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 0);
    EXPECT_EQ(f.optTablaPDR, -1);
}

// --- real storm ---

TEST_F(DialogoPp, LaFormaRealLeeLaTormentaPorDefecto)
{
    s.Pasos.PasoPp = 60;
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    EXPECT_EQ(f.FilePpReal.items, (Textos{"Velmir_pt.vlm"}));
    EXPECT_EQ(f.FilePpReal.indice, 0);
    EXPECT_EQ(f.lblMiFilePpReal, "Velmir_pt.vlm");
    EXPECT_EQ(f.lblNumPer, "3");
    EXPECT_EQ(f.txtPp, "17.5");  // 5 + 10 + 2.5 mm
    EXPECT_EQ(f.txtDur, "60");   // 3 intervals of 20 min
    EXPECT_EQ(f.cmbPasoPp, "20");
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    EXPECT_EQ(s.Tormenta.DistriPp, 7);
    EXPECT_EQ(f.optDistriPp, 7);
    EXPECT_EQ(s.Tormenta.PpTormenta, 17.5F);
}

TEST_F(DialogoPp, LaTormentaQueNoEstaDejaElegidaLaPrimera)
{
    disco.Quita("/proyectos/Velmir_pt.vlm");
    PonTormenta("Zeta_pt.vlm", "z", 1, 30, "4\r\n");
    PonTormenta("Alfa_pt.vlm", "a", 2, 15, "1\r\n2\r\n");
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    EXPECT_EQ(f.FilePpReal.indice, 0);
    EXPECT_EQ(f.lblMiFilePpReal, "Alfa_pt.vlm");
    EXPECT_EQ(f.txtPp, "3");
    EXPECT_EQ(f.txtDur, "30");
}

TEST_F(DialogoPp, SinTormentasEnElDirectorioNoHayIntervalos)
{
    disco.Quita("/proyectos");
    AbreConTormenta(70, 40, 2);
    optformaPp_Click(f, s, 4);
    EXPECT_TRUE(f.FilePpReal.items.empty());
    EXPECT_EQ(f.FilePpReal.indice, -1);
    EXPECT_EQ(f.lblNumPer, "0");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(Avisos().empty());
    AlActivarse(f, s);  // a click with nothing selected
    EXPECT_EQ(f.lblNumPer, "0");
}

TEST_F(DialogoPp, SinTormentaQueLeerElPasoQueda)
{
    s.Pasos.PasoPp = 30;
    disco.Quita("/proyectos/Velmir_pt.vlm");
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    EXPECT_EQ(s.Pasos.PasoPp, 30);
    EXPECT_EQ(f.cmbPasoPp, "30");
    // The step that a storm tells is taken, 0 too.
    PonTormenta("Velmir_pt.vlm", "Llovizna", 1, 0, "8\r\n");
    optformaPp_Click(f, s, 4);
    EXPECT_EQ(s.Pasos.PasoPp, 0);
}

TEST_F(DialogoPp, ElegirOtraTormentaRealLaMuestra)
{
    PonTormenta("Zeta_pt.vlm", "Temporal", 1, 30, "4\r\n");
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    f.FilePpReal.indice = 1;
    FilePpReal_Click(f, s);
    EXPECT_EQ(f.lblMiFilePpReal, "Zeta_pt.vlm");
    EXPECT_EQ(f.lblNumPer, "1");
    EXPECT_EQ(f.txtPp, "4");
    EXPECT_EQ(f.txtDur, "30");
    EXPECT_EQ(s.Pasos.PasoPp, 30);
    EXPECT_EQ(TituloDeTormenta(f, s), "Temporal");
    OKButton(f, s);
    Abre(f, s);  // the same record: the storm chosen is still the one
    EXPECT_EQ(f.lblMiFilePpReal, "Zeta_pt.vlm");
}

TEST_F(DialogoPp, CadaActivacionEnLaFormaRealRepiteElClic)
{
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    PonTormenta("Velmir_pt.vlm", "Llovizna", 1, 30, "8\r\n");
    AlActivarse(f, s);
    EXPECT_EQ(f.txtPp, "8");
    EXPECT_EQ(f.lblNumPer, "1");
    optformaPp_Click(f, s, 0);
    f.txtPp = "33";
    AlActivarse(f, s);
    EXPECT_EQ(f.txtPp, "33");
}

TEST_F(DialogoPp, AlVolverDeOtraFormaLosTresCamposQuedan)
{
    s.Tormenta.FormaPp = 3;
    Abre(f, s);
    f.txtPp = "12";
    f.txtDur = "200";
    f.cmbRec = "25";
    f.Estado("txtPp").habilitado = true;
    AlVolver(f, s);
    EXPECT_EQ(Campos(), (Textos{"12", "200", "25"}));
    EXPECT_FALSE(f.Habilitado("txtPp"));  // the state was shown again
}

TEST_F(DialogoPp, AlVolverSinTormentaRealElegidaLosTresCamposQuedan)
{
    disco.Quita("/proyectos");
    AbreConTormenta(70, 40, 2);
    optformaPp_Click(f, s, 4);
    f.txtPp = "12";
    f.txtDur = "200";
    f.cmbRec = "25";
    AlVolver(f, s);
    EXPECT_EQ(Campos(), (Textos{"12", "200", "25"}));
}

TEST_F(DialogoPp, AlVolverDeEditarLaTormentaRealSeMuestranSusValores)
{
    PonTormenta("Zeta_pt.vlm", "Temporal", 1, 30, "4\r\n");
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    f.tormenta.nombre = "Zeta_pt.vlm";  // what the editor of real storms hands over
    AlVolver(f, s);
    EXPECT_EQ(f.FilePpReal.indice, 1);
    EXPECT_EQ(f.txtPp, "4");
    EXPECT_EQ(f.txtDur, "30");
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.PpTormenta, 4);
    EXPECT_EQ(s.Tormenta.FormaPp, 4);
    EXPECT_EQ(s.Pasos.PasoPp, 30);
}

TEST_F(DialogoPp, LaFormaRealTomaSuLluviaDeLaTormentaYNoDeLoEscrito)
{
    AbreConTormenta(70, 40, 2);
    f.txtPp = "500";
    f.txtDur = "400";
    optformaPp_Click(f, s, 4);
    OKButton(f, s);
    EXPECT_EQ(s.Tormenta.PpTormenta, 17.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(s.Tormenta.DistriPp, 7);
}

TEST_F(DialogoPp, DejarLaFormaRealAvisaDeLaDistribucion)
{
    const Mensaje verifique = {"Verifique la Distribución temporal de LLuvia", "Atención...",
                               Icono::Exclamacion};
    Abre(f, s);
    optformaPp_Click(f, s, 4);
    EXPECT_TRUE(Avisos().empty());
    optformaPp_Click(f, s, 4);  // not left
    EXPECT_TRUE(Avisos().empty());
    optformaPp_Click(f, s, 0);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{verifique}));
    optformaPp_Click(f, s, 1);  // not from the real storm
    EXPECT_EQ(Avisos().size(), 1U);
}

TEST_F(DialogoPp, DejarLaFormaRealAvisaSoloConLasPersonales2Y3)
{
    for (const auto distribucion : std::to_array<std::int16_t>({0, 5, 6, 7})) {
        Abre(f, s);
        optformaPp_Click(f, s, 4);
        anfitrion->sucesos.clear();
        s.Tormenta.DistriPp = distribucion;
        optformaPp_Click(f, s, 0);
        EXPECT_EQ(Avisos().size(), distribucion > 5 ? 1U : 0U) << distribucion;
    }
}

// --- distributions ---

TEST_F(DialogoPp, LasTresTormentasDeMuestraPonen1440Minutos)
{
    for (int i = 0; i < static_cast<int>(DistribucionesPp.size()); ++i) {
        Abre(f, s);
        f.txtDur = "77";
        optDistriPp_Click(f, s, i);
        EXPECT_EQ(f.txtDur, i >= 2 && i <= 4 ? "1440" : "77") << i;
        EXPECT_EQ(s.Tormenta.DistriPp, static_cast<std::int16_t>(i));
    }
}

// --- applying ---

TEST_F(DialogoPp, AplicarTomaTormentaDistribucionYPasosRedondeados)
{
    Abre(f, s);
    f.txtPp = "12.25";
    f.txtDur = "62.5";  // a tie goes to the even minute
    f.cmbRec = "7.5";   // and here to 8
    f.cmbPasoPp = "15.5";
    f.cmbPasoQ = "4.6";
    f.optDistriPp = 1;
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.PpTormenta, 12.25F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 62);
    EXPECT_EQ(s.Tormenta.RecTormenta, 8);
    EXPECT_EQ(s.Tormenta.DistriPp, 1);
    EXPECT_EQ(s.Pasos.PasoPp, 16);
    EXPECT_EQ(s.Pasos.PasoQ, 5);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPp, AplicarConLluvia0CierraTrasElMensajeConLosPasosDeAntes)
{
    for (const bool sinLluvia : {true, false}) {
        s.Pasos.PasoPp = 20;
        s.Pasos.PasoQ = 10;
        s.Tormenta.DistriPp = 0;
        AbreConTormenta(50, 60, 5);
        anfitrion->sucesos.clear();
        (sinLluvia ? f.txtPp : f.txtDur) = "0";
        f.cmbPasoPp = "30";
        f.cmbPasoQ = "30";
        f.optDistriPp = 1;
        OKButton(f, s);
        EXPECT_EQ(Avisos(), (std::vector<Mensaje>{SinTormenta}));
        EXPECT_FALSE(f.abierta);
        EXPECT_EQ(s.Pasos.PasoPp, 20);
        EXPECT_EQ(s.Pasos.PasoQ, 10);
        EXPECT_EQ(s.Tormenta.DistriPp, 0);
    }
}

TEST_F(DialogoPp, AplicarCierraTambienSinAceptarCuandoFaltaLaDuracion)
{
    Abre(f, s);
    f.txtDur = "";
    cmdAplicar(f, s);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{SinTormenta}));
    EXPECT_FALSE(f.abierta);
}

TEST_F(DialogoPp, AplicarOcultaLaValidez)
{
    s.TablasDeLluvia.DurMinPer = {0, 30, 0, 0};
    Abre(f, s);
    optDistriPp_Click(f, s, 5);
    ASSERT_TRUE(f.Visible("lblDurMin"));
    cmdAplicar(f, s);
    EXPECT_FALSE(f.Visible("lblValidez"));
    EXPECT_FALSE(f.Visible("lblDurMin"));
    EXPECT_FALSE(f.Visible("lblDurMax"));
}

TEST_F(DialogoPp, UnaDuracionMenorQueElPasoLoVuelveLaDuracion)
{
    for (const auto& [dur, paso] : {std::pair{"29", "29"}, {"30", "30"}, {"31", "30"}}) {
        Abre(f, s);
        f.txtDur = dur;
        f.cmbPasoPp = "30";
        cmdAplicar(f, s);
        EXPECT_EQ(f.cmbPasoPp, paso);
        EXPECT_EQ(s.Pasos.PasoPp, std::stoi(paso));
    }
}

TEST_F(DialogoPp, UnPasoEnCeroEsElPrimeroDeLaLista)
{
    Abre(f, s);
    f.cmbPasoPp = "";
    f.cmbPasoQ = "x";
    cmdAplicar(f, s);
    EXPECT_EQ(f.cmbPasoPp, "5");
    EXPECT_EQ(f.cmbPasoQ, "5");
    EXPECT_EQ(s.Pasos.PasoPp, 5);
    EXPECT_EQ(s.Pasos.PasoQ, 5);
}

TEST_F(DialogoPp, AplicarNoComparaLosDosPasos)
{
    Abre(f, s);
    f.cmbPasoPp = "20";  // changed after the output step was left
    f.cmbPasoQ = "30";
    cmdAplicar(f, s);
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    EXPECT_EQ(s.Pasos.PasoQ, 30);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPp, AplicarUnaSerieLeeSuTablaYMuestraSuPrimeraTormenta)
{
    Abre(f, s);
    optformaPp_Click(f, s, 2);
    optTablaPDR_Click(f, 1);
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 2);
    EXPECT_EQ(s.Tormenta.TablaPDR, 1);
    EXPECT_EQ(s.Serie.NroSeriePDR, 1);
    EXPECT_EQ(Campos(), (Textos{"25", "45", "10"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 25);
    EXPECT_EQ(s.Tormenta.DurTormenta, 45);
    EXPECT_EQ(s.Tormenta.RecTormenta, 10);
    f.optTablaPDR = -1;  // none: table 0
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.TablaPDR, 0);
    EXPECT_EQ(s.Serie.NroSeriePDR, 2);
    EXPECT_EQ(Campos(), (Textos{"30", "60", "2"}));
}

TEST_F(DialogoPp, UnaTablaSinTormentasDejaLosCampos)
{
    AbreConTormenta(50, 60, 5);
    optformaPp_Click(f, s, 2);
    optTablaPDR_Click(f, 2);
    cmdAplicar(f, s);
    EXPECT_EQ(s.Serie.NroSeriePDR, 0);
    EXPECT_EQ(Campos(), (Textos{"50", "60", "5"}));
}

TEST_F(DialogoPp, EnLasOtrasFormasLaTablaYLaSerieQuedanComoEstaban)
{
    s.Tormenta.TablaPDR = 2;
    s.Serie.NroSeriePDR = 7;
    Abre(f, s);
    optTablaPDR_Click(f, 1);
    disco.OlvidaLlamadas();
    cmdAplicar(f, s);
    EXPECT_EQ(s.Tormenta.TablaPDR, 2);
    EXPECT_EQ(s.Serie.NroSeriePDR, 7);
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_F(DialogoPp, UnaRecurrenciaQueNoCabeSeDiceYElDialogoQueda)
{
    s.Pasos.PasoPp = 20;
    Abre(f, s);
    f.cmbRec = "32768";
    f.cmbPasoPp = "30";
    OKButton(f, s);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{Desbordamiento}));
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    f.cmbRec = "32767";
    OKButton(f, s);
    EXPECT_EQ(s.Tormenta.RecTormenta, 32767);
    EXPECT_FALSE(f.abierta);
}

TEST_F(DialogoPp, SinAplicarEstaLoQueNiSeMostroNiSeUsa)
{
    s.Pasos.PasoPp = 20;
    s.Pasos.PasoQ = 10;
    AbreConTormenta(60, 60, 10);  // the list's last storm, 80 mm, comes into use: what is shown stays shown
    EXPECT_FALSE(SinAplicar(f, s));
    for (std::string* campo : {&f.txtPp, &f.txtDur, &f.cmbRec, &f.cmbPasoPp, &f.cmbPasoQ}) {
        const std::string antes = std::exchange(*campo, "15");
        EXPECT_TRUE(SinAplicar(f, s));
        *campo = "99999999999";
        EXPECT_TRUE(SinAplicar(f, s));
        *campo = antes;
        EXPECT_FALSE(SinAplicar(f, s));
    }
    f.cmbRec = "25";
    cmdAplicar(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    f.cmbRec = "10";  // as it opened, and no longer in use
    EXPECT_TRUE(SinAplicar(f, s));
    CancelButton(f);
    EXPECT_FALSE(SinAplicar(f, s));
}

TEST_F(DialogoPp, LoQueSeTomaAlElegirNoQuedaSinAplicar)
{
    Abre(f, s);
    optformaPp_Click(f, s, 1);
    optDistriPp_Click(f, s, 1);
    f.cmbPDR.indice = 0;  // 30 mm, 20 min, 5 years
    cmbPDR_Click(f, s);
    EXPECT_EQ(f.txtPp, "30");
    EXPECT_FALSE(SinAplicar(f, s));
    optformaPp_Click(f, s, 4);
    EXPECT_FALSE(SinAplicar(f, s));
    optformaPp_Click(f, s, 0);
    EXPECT_FALSE(SinAplicar(f, s));
    optTablaPDR_Click(f, 1);  // no form of the rain uses it yet
    EXPECT_FALSE(SinAplicar(f, s));
    optformaPp_Click(f, s, 2);
    EXPECT_TRUE(SinAplicar(f, s));
    cmdAplicar(f, s);
    EXPECT_FALSE(SinAplicar(f, s));
    optDistriPp_Click(f, s, 2);  // its duration, 1440 min, waits
    EXPECT_TRUE(SinAplicar(f, s));
}

TEST_F(DialogoPp, CancelarDejaLaFormaElegidaYLoDemasComoSeAplico)
{
    s.Tormenta.TablaPDR = 3;
    s.Pasos.PasoPp = 20;
    s.Pasos.PasoQ = 10;
    Abre(f, s);
    optformaPp_Click(f, s, 2);
    optTablaPDR_Click(f, 1);
    f.cmbPasoPp = "60";
    f.cmbPasoQ = "60";
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Tormenta.FormaPp, 2);
    EXPECT_EQ(s.Tormenta.TablaPDR, 3);
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    EXPECT_EQ(s.Pasos.PasoQ, 10);
}

// --- leaving a field ---

struct CasoCampo {
    const char* escrito;
    bool pasa;
    const char* queda;
    double valor;  ///< run-wide value afterwards, where the text passes
};

TEST_F(DialogoPp, LaLluviaVaDe0A999)
{
    const Mensaje mensaje = {"Ingrese un valor numérico, entero o decimal, entre 0 y 999", "Advertencia !",
                             Icono::Exclamacion};
    const CasoCampo casos[] = {
        {"0", true, "0", 0},
        {"0.01", true, "0.01", 0.01F},
        {"-0.01", false, "-0.01", 0},
        {"999", true, "999", 999},
        {"998.99", true, "998.99", 998.99F},
        {"999.01", false, "999.01", 0},
        {"12,5", true, "12.5", 12.5},
        {"", true, "", 0},
        {"abc", false, "abc", 0},
        {"12x", false, "12x", 0},
        {"1e400", false, "1e400", 0},
    };
    for (const CasoCampo& caso : casos) {
        Abre(f, s);
        anfitrion->sucesos.clear();
        f.txtPp = caso.escrito;
        EXPECT_EQ(AlSalir(f, s, "txtPp"), caso.pasa) << caso.escrito;
        EXPECT_EQ(f.txtPp, caso.queda);
        if (caso.pasa) {
            EXPECT_EQ(s.Tormenta.PpTormenta, static_cast<float>(caso.valor)) << caso.escrito;
            EXPECT_TRUE(Avisos().empty());
        } else {
            EXPECT_EQ(Avisos(), (std::vector<Mensaje>{mensaje})) << caso.escrito;
        }
    }
}

TEST_F(DialogoPp, LaDuracionVaDe0A14400YUnaRechazadaVuelveA1440)
{
    const Mensaje mensaje = {"Ingrese un valor numérico, entero o decimal, entre 0 y 14400", "Advertencia !",
                             Icono::Exclamacion};
    const CasoCampo casos[] = {
        {"0", true, "0", 0},
        {"-1", false, "1440", 0},
        {"14399", true, "14399", 14399},
        {"14400", true, "14400", 14400},
        {"14400.1", false, "1440", 0},
        {"40000", false, "1440", 0},
        {"90,5", true, "90.5", 90},  // a tie goes to the even minute
        {"", true, "", 0},
        {"dos", false, "1440", 0},
    };
    for (const CasoCampo& caso : casos) {
        Abre(f, s);
        anfitrion->sucesos.clear();
        f.txtDur = caso.escrito;
        EXPECT_EQ(AlSalir(f, s, "txtDur"), caso.pasa) << caso.escrito;
        EXPECT_EQ(f.txtDur, caso.queda);
        if (caso.pasa) {
            EXPECT_EQ(s.Tormenta.DurTormenta, static_cast<std::int16_t>(caso.valor)) << caso.escrito;
            EXPECT_TRUE(Avisos().empty());
        } else {
            EXPECT_EQ(Avisos(), (std::vector<Mensaje>{mensaje})) << caso.escrito;
        }
    }
}

TEST_F(DialogoPp, UnCampoCorregidoSueltaElFoco)
{
    Abre(f, s);
    f.txtPp = "1000";
    ASSERT_FALSE(AlSalir(f, s, "txtPp"));
    f.txtPp = "100";
    EXPECT_TRUE(AlSalir(f, s, "txtPp"));
}

TEST_F(DialogoPp, ElPasoPpMayorQueLaDuracionNoSeDeja)
{
    const Mensaje mensaje = {
        "Elija un paso de tiempo para las entradas (Precipitaciones)  múlitplo menor, o al menos igual, a la "
        "Duración "
        "de la Tormenta. (Sugerido: 1/3 del tiempo de concentración de la cuenca)",
        "Corrección de selección del paso de entrada (Precipitación)", Icono::Exclamacion};
    struct Caso {
        const char* paso;
        const char* dur;
        bool pasa;
    };
    for (const Caso& caso : {Caso{"59", "60", true},
                             {"60", "60", true},
                             {"61", "60", false},
                             {"0", "60", true},
                             {"", "60", true},
                             {"61", "", true},
                             {"5", "0", false}}) {
        Abre(f, s);
        anfitrion->sucesos.clear();
        f.cmbPasoPp = caso.paso;
        f.txtDur = caso.dur;
        EXPECT_EQ(AlSalir(f, s, "cmbPasoPp"), caso.pasa) << caso.paso << ' ' << caso.dur;
        EXPECT_EQ(Avisos(), caso.pasa ? std::vector<Mensaje>{} : std::vector<Mensaje>{mensaje});
        EXPECT_EQ(f.cmbPasoPp, caso.paso);
    }
}

TEST_F(DialogoPp, UnPasoQQueNoCabeEnElPasoPpSeReemplazaYElFocoSigue)
{
    const Mensaje mensaje = {
        "Elija un paso de tiempo para las salidas (Caudales) igual, o múlitplo menor, al paso de entradas "
        "(precipitaciones)",
        "Corrección de selección del paso de salida", Icono::Exclamacion};
    struct Caso {
        const char* pasoQ;
        bool cabe;
    };
    for (const Caso& caso : {Caso{"30", true},
                             {"15", true},
                             {"10", true},
                             {"7.5", true},
                             {"0", true},
                             {"", true},
                             {"31", false},
                             {"60", false},
                             {"20", false},
                             {"29", false}}) {
        s.Pasos.PasoPp = 30;
        s.Pasos.PasoQ = 10;
        Abre(f, s);
        anfitrion->sucesos.clear();
        f.cmbPasoQ = caso.pasoQ;
        EXPECT_TRUE(AlSalir(f, s, "cmbPasoQ"));
        EXPECT_EQ(f.cmbPasoQ, caso.cabe ? caso.pasoQ : "30") << caso.pasoQ;
        EXPECT_EQ(s.Pasos.PasoQ, caso.cabe ? 10 : 30) << caso.pasoQ;
        EXPECT_EQ(Avisos(), caso.cabe ? std::vector<Mensaje>{} : std::vector<Mensaje>{mensaje}) << caso.pasoQ;
    }
}

TEST_F(DialogoPp, SinPasoPpNingunPasoQCabe)
{
    Abre(f, s);
    f.cmbPasoPp = "";
    f.cmbPasoQ = "10";  // 0/10 is whole, but 10 is above 0
    EXPECT_TRUE(AlSalir(f, s, "cmbPasoQ"));
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(f.cmbPasoQ, "");
}

TEST_F(DialogoPp, UnPasoQMayorNoSePuedeDejarPeroUnPasoPpCambiadoDespuesSi)
{
    s.Pasos.PasoPp = 30;
    Abre(f, s);
    f.cmbPasoQ = "60";
    AlSalir(f, s, "cmbPasoQ");
    ASSERT_EQ(f.cmbPasoQ, "30");
    f.cmbPasoPp = "10";  // afterwards; nothing looks at the output step any more
    EXPECT_TRUE(AlSalir(f, s, "cmbPasoPp"));
    cmdAplicar(f, s);
    EXPECT_EQ(s.Pasos.PasoPp, 10);
    EXPECT_EQ(s.Pasos.PasoQ, 30);  // a run lowers it
}

// --- list of storms ---

TEST_F(DialogoPp, ElegirUnaTormentaDeLaListaLaMuestra)
{
    s.Tormenta.FormaPp = 1;
    AbreConTormenta(70, 40, 2);
    f.cmbPDR.indice = 0;
    cmbPDR_Click(f, s);
    EXPECT_EQ(Campos(), (Textos{"30", "20", "5"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 30);
    EXPECT_EQ(s.Tormenta.DurTormenta, 20);
    EXPECT_EQ(s.Tormenta.RecTormenta, 5);
}

TEST_F(DialogoPp, SinNadaElegidoEnUnaListaElClicNoHaceNada)
{
    s.Tormenta.FormaPp = 1;
    AbreConTormenta(70, 40, 2);
    disco.OlvidaLlamadas();
    cmbPDR_Click(f, s);
    cmdBorraPDR(f, s);
    FilePpReal_Click(f, s);
    EXPECT_EQ(Campos(), (Textos{"70", "40", "2"}));
    EXPECT_EQ(f.cmbPDR.items.size(), 2U);
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_F(DialogoPp, UnItemQueNoCabeEnSuTipoSeDiceYLosCamposQuedan)
{
    AbreConTormenta(70, 40, 2);
    f.cmbPDR.items = {"Pp= 10 - Dur = 40000 - Rec = 5"};
    f.cmbPDR.indice = 0;
    cmbPDR_Click(f, s);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{Desbordamiento}));
    EXPECT_EQ(Campos(), (Textos{"70", "40", "2"}));
}

TEST_F(DialogoPp, AgregarUnaTormentaLaGuardaYLaElige)
{
    Abre(f, s);
    f.txtPp = "45.5";
    f.txtDur = "90";
    f.cmbRec = "10";
    cmdPDR(f, s);
    ASSERT_EQ(f.cmbPDR.items.size(), 3U);
    EXPECT_EQ(f.cmbPDR.items[2], "Pp= 45.5 - Dur = 90 - Rec = 10");
    EXPECT_EQ(f.cmbPDR.indice, 2);
    EXPECT_EQ(disco.Bytes("/proyectos/ListaPDR.vlm"), "30,20,5\r\n80,120,50\r\n45.5,90,10\r\n");
    EXPECT_EQ(s.Tormenta.PpTormenta, 45.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 90);
}

TEST_F(DialogoPp, BorrarUnaTormentaGuardaLaListaYMuestraLaDeLosCampos)
{
    s.Tormenta.FormaPp = 1;
    AbreConTormenta(70, 40, 2);
    f.cmbPDR.indice = 0;
    cmdBorraPDR(f, s);
    EXPECT_EQ(f.cmbPDR.items, (Textos{"Pp= 80 - Dur = 120 - Rec = 50"}));
    EXPECT_EQ(f.cmbPDR.indice, -1);
    EXPECT_EQ(disco.Bytes("/proyectos/ListaPDR.vlm"), "80,120,50\r\n");
    // Writing the list takes the storm in hand back from the fields.
    EXPECT_EQ(Campos(), (Textos{"70", "40", "2"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 70);
}

TEST_F(DialogoPp, UnaListaQueNoSePuedeGuardarSeDiceYElDialogoQueda)
{
    Abre(f, s);
    disco.Protege("/proyectos/ListaPDR.vlm");
    cmdPDR(f, s);
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique", "", Icono::Ninguno}}));
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.cmbPDR.items.size(), 3U);
}

// --- hyetograph ---

TEST_F(DialogoPp, VerElGraficoPideElHietogramaDeLoAplicado)
{
    Abre(f, s);
    f.txtPp = "100";
    f.txtDur = "180";
    f.cmbPasoPp = "60";
    optDistriPp_Click(f, s, 1);  // 3 h: 20, 60, 20 %
    const auto pedido = cmdVerGrafico(f, s);
    ASSERT_TRUE(pedido);
    EXPECT_EQ(*pedido, (PedidoHietograma{3, 60, "Arroyo de prueba", 100, 180}));
    EXPECT_EQ(s.Tormenta.PpReal(2), 60);
    EXPECT_TRUE(anfitrion->pizarra.empty());
}

TEST_F(DialogoPp, ElPasoDelGraficoEsElPasoPpAunqueLosBloquesSeanOtros)
{
    Abre(f, s);
    const auto pedido = cmdVerGrafico(f, s);  // constant: a single block of 60 min
    ASSERT_TRUE(pedido);
    EXPECT_EQ(pedido->N, 1);
    EXPECT_EQ(pedido->paso, 10);
}

TEST_F(DialogoPp, SinTormentaNoHayGraficoNiTabla)
{
    for (const bool grafico : {true, false}) {
        s.Control.SalidaPizarra = true;
        Abre(f, s);
        anfitrion->sucesos.clear();
        f.txtPp = "0";
        if (grafico) {
            EXPECT_FALSE(cmdVerGrafico(f, s));
        } else {
            cmdVerTablaPt(f, s);
        }
        EXPECT_EQ(Avisos(), (std::vector<Mensaje>{SinTormenta}));
        EXPECT_TRUE(anfitrion->pizarra.empty());
        EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
    }
}

TEST_F(DialogoPp, UnaDistribucionSinPeriodosNoAbreElGrafico)
{
    Abre(f, s);
    optDistriPp_Click(f, s, 7);  // personal table 3 has no periods
    EXPECT_FALSE(cmdVerGrafico(f, s));
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
}

TEST_F(DialogoPp, LaTablaPtSeListaEnLaPizarra)
{
    s.Control.SalidaPizarra = true;
    AbreConTormenta(60, 60, 10);
    cmdVerTablaPt(f, s);
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 1);
    EXPECT_EQ(
        anfitrion->pizarra,
        "\r\nEntrada: PRECIPITACION\r\nPp Total= 60 [mm]\r\nDuración= 60 [min]\r\nRecurrencia= 10 [años]"
        "\r\npaso Pp= 10 [min]\r\npaso Q = 10 [min]\r\nDistribución Pp(t)= 0 [índice]"
        // the hyetograph's own lines
        "\r\nEntrada: PRECIPITACION\r\nPp= 60 [mm]  60 [min]\r\nDistribución temporal de la Pp:"
        "\r\nPer.k t[min] Pp[mm]  Pp Acumulada[mm]  Intensidad de Pp[mm/min]"
        "\r\n 1    10    60         60                       1"
        "\r\nPer. Pp[mm] PpAcum[mm] Int.Pp[mm/min]"
        "\r\n1    60     60         1");
}

TEST_F(DialogoPp, SinRecurrenciaSuRenglonFalta)
{
    s.Control.SalidaPizarra = true;
    AbreConTormenta(60, 60, 0);
    cmdVerTablaPt(f, s);
    EXPECT_EQ(anfitrion->pizarra.find("Recurrencia"), std::string::npos);
    EXPECT_NE(anfitrion->pizarra.find("Duración= 60 [min]\r\npaso Pp= 10 [min]"), std::string::npos);
}

TEST_F(DialogoPp, ConLaPizarraCerradaLaTablaPtNoEscribeNada)
{
    AbreConTormenta(60, 60, 10);
    cmdVerTablaPt(f, s);
    EXPECT_EQ(anfitrion->pizarrasAbiertas, 0);
    EXPECT_TRUE(anfitrion->pizarra.empty());
    EXPECT_EQ(s.Tormenta.NroPpReal, 1);  // the hyetograph is built all the same
}

TEST_F(DialogoPp, ElTituloDeUnaTormentaEscritaEsElDelProyecto)
{
    Abre(f, s);
    f.tormenta.Notas = "Llovizna";
    EXPECT_EQ(TituloDeTormenta(f, s), "Arroyo de prueba");
    s.Tormenta.FormaPp = 4;
    EXPECT_EQ(TituloDeTormenta(f, s), "Llovizna");
}

}  // namespace
}  // namespace rainfall
