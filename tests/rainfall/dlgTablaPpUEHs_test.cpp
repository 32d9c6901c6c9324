// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgTablaPpUEHs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Componentes.h"

namespace rainfall {
namespace {

using model::Icono;
using model::Mensaje;
using model::Siro;
using Textos = std::vector<std::string>;

const Mensaje SinUEHs = {"No existen UEHs cargadas, no hay un proyecto asociado", "", Icono::Exclamacion};
const Mensaje EnteroMalo = {"Ingrese un valor numérico entero entre 0 y 1440 ", "", Icono::Exclamacion};
const Mensaje SinDuracion = {"Si la Duración de la Tormenta es '0' se anularan los datos de Pp cargados", "",
                             Icono::Exclamacion};
const Mensaje SinRecurrencia = {
    "Si la Recurrencia 'R' de la Tormenta es '0' se interpreta como de Período de Retorno desconocido", "",
    Icono::Exclamacion};

/// A project of three UEHs, written by the editor's own command.
class DialogoPpUEHs : public testing::Test {
  protected:
    DialogoPpUEHs()
    {
        s.Anfitrion = anfitrion.Puerta();
        PonProyectoDeLluvia(s, disco);
        s.Proyecto.NombreProyecto = "Prueba";
        s.Proyecto.DirProyectoConf = "/proyectos";
        for (std::int16_t n = 1; n <= 3; ++n) {
            model::UEH ueh;
            ueh.numUEH = n;
            ueh.NombreUEH = "u-" + std::to_string(n);
            s.Red.ColUEHs.Agrega(ueh);
        }
        model::GuardaRed(s);
        anfitrion->sucesos.clear();
        s.Tormenta.FormaPp = 3;
        rainfall::Abre(pp, s);
    }
    void Abre() { rainfall::Abre(f, s); }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }
    forms::Grilla& G() { return f.MSFlexGridPpUEHs; }
    Textos Columna(int columna)
    {
        Textos textos;
        for (int j = 1; j <= G().NroFilas(); ++j)
            textos.push_back(G().Texto({j, columna}));
        return textos;
    }
    void Pega(const std::string& columna)
    {
        forms::Mueve(G(), {1, 2});
        forms::Pega(G(), s, columna);
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    dlgTablaPpUEHs f;
};

TEST(TextosDeDlgTablaPpUEHs, LasLeyendasEstanLetraPorLetra)
{
    const auto fila = [](const char* nombre) { return RotuloDe(LeyendasDlgTablaPpUEHs, nombre); };
    EXPECT_EQ(TituloDlgTablaPpUEHs, "Distribución areal de la Precipitación: Tabla P-D-R por UEHs");
    EXPECT_EQ(fila("txtDPpUEHs").leyenda, "Duración [min]:");
    EXPECT_EQ(fila("txtRPpUEHs").leyenda, "Recurrencia [años]:");
    EXPECT_EQ(fila("MSFlexGridPpUEHs").leyenda,
              "Datos de Precipitación P[mm], Duración D[min] y Recurrencia R[años] ");
    EXPECT_EQ(fila("MSFlexGridPpUEHs").ayuda,
              "Ingresar los datos tabulados para la función de descarga en la forma H[m]-Q[m3/s]");
    EXPECT_EQ(fila("cmdBorraTablaHQ").leyenda, "Borrar Tabla");
    EXPECT_EQ(fila("cmdAplicar").leyenda, "&Aplicar");
    EXPECT_EQ(fila("OKButton").leyenda, "Ce&rrar");
    EXPECT_EQ(fila("CancelButton").leyenda, "&Cancelar");
}

TEST_F(DialogoPpUEHs, AlAbrirHayUnaFilaPorUEHConSuLamina)
{
    s.Tormenta.PpUEH(2) = 12.5F;
    s.Red.ColUEHs.Vacia();  // read again from the project
    Abre();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Columna(0), (Textos{"1", "2", "3"}));
    EXPECT_EQ(Columna(1), (Textos{"u-1", "u-2", "u-3"}));
    EXPECT_EQ(Columna(2), (Textos{"0", "12.5", "0"}));
    EXPECT_EQ(f.txtDPpUEHs, "0");
    EXPECT_EQ(f.txtRPpUEHs, "0");
    Textos titulos;
    for (const auto& columna : G().columnas)
        titulos.push_back(columna.titulo);
    EXPECT_EQ(titulos, (Textos{"Nro. UEH", "Nombre UEH      ", " P[mm]         "}));
    EXPECT_TRUE(G().columnas[2].editable);
    EXPECT_FALSE(G().columnas[1].editable);
}

TEST_F(DialogoPpUEHs, SinUEHsSeAvisaYLaTablaQuedaVacia)
{
    disco.Quita("/proyectos/Prueba_UEHs.vlm");
    Abre();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{SinUEHs});
}

TEST_F(DialogoPpUEHs, LaDuracionYLaRecurrenciaSobrevivenALaVentana)
{
    Abre();
    f.txtDPpUEHs = "90";
    f.txtRPpUEHs = "25";
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    Abre();
    EXPECT_EQ(f.txtDPpUEHs, "90");
    EXPECT_EQ(f.txtRPpUEHs, "25");
}

TEST_F(DialogoPpUEHs, LosDosCamposSonEnterosConLimitesQueElMensajeNoDice)
{
    Abre();
    for (const char* bueno : {"0", "1441", "2880"}) {
        f.txtDPpUEHs = bueno;
        EXPECT_TRUE(AlSalir(f, s, "txtDPpUEHs")) << bueno;
    }
    for (const char* bueno : {"0", "2881", "10000"}) {
        f.txtRPpUEHs = bueno;
        EXPECT_TRUE(AlSalir(f, s, "txtRPpUEHs")) << bueno;
    }
    EXPECT_TRUE(Avisos().empty());
    for (const char* malo : {"-1", "2881", "1.5", "", "x"}) {
        anfitrion->sucesos.clear();
        f.txtDPpUEHs = malo;
        EXPECT_FALSE(AlSalir(f, s, "txtDPpUEHs")) << malo;
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{EnteroMalo}) << malo;
    }
    for (const char* malo : {"-1", "10001", "2.5"}) {
        anfitrion->sucesos.clear();
        f.txtRPpUEHs = malo;
        EXPECT_FALSE(AlSalir(f, s, "txtRPpUEHs")) << malo;
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{EnteroMalo}) << malo;
    }
}

TEST_F(DialogoPpUEHs, UnTextoDeMasDeCincoCaracteresSeCorta)
{
    Abre();
    f.txtDPpUEHs = "001201";
    EXPECT_TRUE(AlSalir(f, s, "txtDPpUEHs"));
    EXPECT_EQ(f.txtDPpUEHs, "00120");
    f.txtRPpUEHs = "100000";
    EXPECT_TRUE(AlSalir(f, s, "txtRPpUEHs"));
    EXPECT_EQ(f.txtRPpUEHs, "10000");
}

TEST_F(DialogoPpUEHs, BorrarVaciaLasLaminasYNoTocaElArreglo)
{
    s.Tormenta.PpUEH(1) = 9;
    Abre();
    cmdBorraTablaHQ(f, s);
    EXPECT_EQ(Columna(2), (Textos{"", "", ""}));
    EXPECT_EQ(Columna(1), (Textos{"u-1", "u-2", "u-3"}));
    EXPECT_EQ(s.Tormenta.PpUEH(1), 9.0F);
}

// --- apply ---

TEST_F(DialogoPpUEHs, AplicarLlevaLaPrimeraLaminaMayorQueCero)
{
    Abre();
    f.txtDPpUEHs = "90";
    f.txtRPpUEHs = "25";
    Pega("0\n35,5\n20\n");
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Tormenta.PpUEH(1), 0.0F);
    EXPECT_EQ(s.Tormenta.PpUEH(2), 35.5F);
    EXPECT_EQ(s.Tormenta.PpUEH(3), 20.0F);
    EXPECT_EQ(s.Tormenta.PpTormenta, 35.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 90);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_EQ(pp.txtPp, "35.5");
    EXPECT_EQ(pp.txtDur, "90");
    EXPECT_EQ(pp.cmbRec, "25");
    EXPECT_FALSE(pp.Habilitado("txtPp"));
    EXPECT_FALSE(pp.Habilitado("txtDur"));
    EXPECT_TRUE(f.abierta);
}

TEST_F(DialogoPpUEHs, ConTodasEnCeroLaLaminaQuedaComoEstaba)
{
    Abre();
    s.Tormenta.PpTormenta = 44;
    pp.txtPp = "44";
    f.txtDPpUEHs = "60";
    f.txtRPpUEHs = "5";
    Pega("0\n0\n0\n");
    cmdAplicar(f, pp, s);
    EXPECT_EQ(s.Tormenta.PpTormenta, 44.0F);
    EXPECT_EQ(pp.txtPp, "44");
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
}

TEST_F(DialogoPpUEHs, SinDuracionNiRecurrenciaSeAvisaYSeSigue)
{
    Abre();
    Pega("1\n2\n3\n");
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{SinDuracion, SinRecurrencia}));
    EXPECT_EQ(f.foco.control, "txtDPpUEHs");
    EXPECT_EQ(s.Tormenta.PpUEH(3), 3.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 0);
    EXPECT_EQ(s.Tormenta.RecTormenta, 0);
    EXPECT_EQ(pp.txtDur, "0");
    EXPECT_EQ(pp.cmbRec, "0");
}

TEST_F(DialogoPpUEHs, LaPrimeraCeldaSinNumeroTieneElCursorYNadaSeToma)
{
    Abre();
    f.txtDPpUEHs = "60";
    f.txtRPpUEHs = "5";
    Pega("1\n\n\n");
    s.Tormenta.DurTormenta = 7;
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(G().actual, (forms::Celda{2, 2}));
    EXPECT_EQ(f.foco.control, "MSFlexGridPpUEHs");
    EXPECT_EQ(s.Tormenta.PpUEH(1), 0.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 7);
}

TEST_F(DialogoPpUEHs, LasTeclasDeLaTablaDanLaVuelta)
{
    Abre();
    for (const char* tecla : {"1", "2"})
        forms::Escribe(G(), s, tecla);
    forms::Teclea(G(), forms::Tecla::Enter);
    EXPECT_EQ(Columna(2), (Textos{"12", "0", "0"}));
    forms::Teclea(G(), forms::Tecla::Enter);
    forms::Teclea(G(), forms::Tecla::Enter);
    EXPECT_EQ(G().actual, (forms::Celda{1, 2}));
}

TEST_F(DialogoPpUEHs, CerrarAplicaYCierra)
{
    Abre();
    f.txtDPpUEHs = "2880";
    f.txtRPpUEHs = "10000";
    Pega("5\n6\n7\n");
    OKButton(f, pp, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Tormenta.PpTormenta, 5.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 2880);
    EXPECT_EQ(s.Tormenta.RecTormenta, 10000);
    Abre();
    EXPECT_EQ(Columna(2), (Textos{"5", "6", "7"}));
}

TEST_F(DialogoPpUEHs, LoQueSeAplicaQuedaEnDlgPpAlVolver)
{
    Abre();
    f.txtDPpUEHs = "90";
    f.txtRPpUEHs = "25";
    Pega("30\n20\n10\n");
    OKButton(f, pp, s);
    AlVolver(pp, s);
    rainfall::cmdAplicar(pp, s);
    EXPECT_EQ(s.Tormenta.PpTormenta, 30.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 90);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_EQ(s.Tormenta.FormaPp, 3);
    EXPECT_EQ(s.Tormenta.DistriPp, 0);
}

TEST_F(DialogoPpUEHs, NingunArchivoSeToca)
{
    Abre();
    const auto antes = disco.Archivos();
    Pega("1\n2\n3\n");
    disco.OlvidaLlamadas();
    OKButton(f, pp, s);
    EXPECT_TRUE(disco.Llamadas().empty());
    EXPECT_EQ(disco.Archivos(), antes);
}

TEST_F(DialogoPpUEHs, LaVistaMuestraLaLaminaDeCadaUEH)
{
    Abre();
    Pega("1\n2\n3\n");
    const forms::Grafico vista = Vista(f);
    EXPECT_EQ(vista.categorias, (Textos{"u-1", "u-2", "u-3"}));
    EXPECT_EQ(vista.series.at(0).celdas, (std::vector<double>{1, 2, 3}));
}

TEST_F(DialogoPpUEHs, UnaDuracionRechazadaNoSobreviveAlCancelar)
{
    Abre();
    f.txtDPpUEHs = "240";
    f.txtRPpUEHs = "50";
    EXPECT_TRUE(AlSalir(f, s, "txtDPpUEHs"));
    EXPECT_TRUE(AlSalir(f, s, "txtRPpUEHs"));
    f.txtDPpUEHs = "2881";
    EXPECT_FALSE(AlSalir(f, s, "txtDPpUEHs"));
    f.txtRPpUEHs = "x";
    CancelButton(f);
    Abre();
    EXPECT_EQ(f.txtDPpUEHs, "240");
    EXPECT_EQ(f.txtRPpUEHs, "50");
    f.txtDPpUEHs = "300";  // one that is right stays, as it did
    CancelButton(f);
    EXPECT_EQ(f.txtDPpUEHs, "300");
}

TEST_F(DialogoPpUEHs, SinAplicarEstaLoQueNoSeTomo)
{
    Abre();
    EXPECT_FALSE(SinAplicar(f));
    f.txtRPpUEHs = "50";
    EXPECT_TRUE(SinAplicar(f));
    cmdAplicar(f, pp, s);
    EXPECT_FALSE(SinAplicar(f));
    Pega("1\n2\n3\n");
    EXPECT_TRUE(SinAplicar(f));
    cmdBorraTablaHQ(f, s);
    cmdAplicar(f, pp, s);  // no depth is a number
    EXPECT_TRUE(SinAplicar(f));
    Pega("1\n2\n3\n");
    cmdAplicar(f, pp, s);
    EXPECT_FALSE(SinAplicar(f));
    CancelButton(f);
    Abre();
    EXPECT_FALSE(SinAplicar(f));
}

}  // namespace
}  // namespace rainfall
