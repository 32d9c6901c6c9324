// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "calibration/taller/AjusteSensibilidad.h"
#include "calibration/taller/VentanaDeAjuste.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

// The third and the fourth step of the workshop, which run the model many times, by mouse and keys.
namespace calibration {
namespace {

using apoyo::Control;
using apoyo::Pulsa;
using forms::DeQ;

struct VentanaDeBusqueda : pruebas::VentanaDeAjuste {
    /// Parameters as they are proposed, and a flood that was observed at the outfall.
    void AbreConDatos()
    {
        Abre();
        ventana.resize(1340, 560);  // as on a screen of 1366
        VeAlPaso("2");
        Pulsa(En<QPushButton>("AjusteParametros", "cmdProponer"));
        ASSERT_EQ(Todos().size(), 6U);
        entorno.Atiende([this] {
            Cambia(f, "Crecida", [](study::Ajuste& a) {
                a.eventos = {
                    {.nombre = "Crecida",
                     .observaciones = {
                         {.componente = "c-2", .puntos = {{30, 1}, {60, 4}, {90, 6}, {120, 5}, {180, 2}}}}}};
                a.sensibilidad.metodo = "tornado";
                a.calibracion.corridas = 400;
            });
        });
    }
    std::string Texto(const char* pagina, const char* rotulo)
    {
        return DeQ(En<QLabel>(pagina, rotulo).text());
    }
    static std::vector<std::string> Columna(forms::TablaCuadro& tabla, int columna)
    {
        std::vector<std::string> celdas;
        for (int i = 0; i < tabla.model()->rowCount(); ++i)
            celdas.push_back(DeQ(tabla.model()->index(i, columna).data().toString()));
        return celdas;
    }
    static void PulsaEncabezado(forms::TablaCuadro& tabla, int columna)
    {
        QHeaderView& cabeza = *tabla.horizontalHeader();
        QTest::mouseClick(
            cabeza.viewport(), Qt::LeftButton, {},
            {cabeza.sectionViewportPosition(columna) + cabeza.sectionSize(columna) / 2, cabeza.height() / 2});
    }
    /// What a right click on a chart offers.
    static QStringList MenuDe(QWidget& grafico)
    {
        QStringList entradas;
        QTimer mira;
        QObject::connect(&mira, &QTimer::timeout, &mira, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            mira.stop();
            for (const QAction* accion : menu->actions())
                if (!accion->isSeparator()) entradas << accion->text().remove(QLatin1Char('&'));
            menu->close();
        });
        mira.start(5);
        EXPECT_TRUE(apoyo::Espera([&] { return !grafico.visibleRegion().isEmpty(); }));
        QTest::qWait(50);  // laid out and painted
        const QPoint medio = grafico.rect().center();
        QWidget* const superficie = grafico.window()->childAt(grafico.mapTo(grafico.window(), medio));
        if (superficie == nullptr || !grafico.isAncestorOf(superficie)) {
            ADD_FAILURE() << "something else lies over it";
            return {};
        }
        QTest::mouseClick(superficie, Qt::RightButton, {}, superficie->mapFrom(&grafico, medio));
        QContextMenuEvent pide(QContextMenuEvent::Mouse, superficie->mapFrom(&grafico, medio),
                               grafico.mapToGlobal(medio));
        QApplication::sendEvent(superficie, &pide);
        EXPECT_TRUE(apoyo::Espera([&] { return !entradas.isEmpty(); }));
        return entradas;
    }
    /// Whether all columns are in sight.
    static bool Entra(const forms::TablaCuadro& tabla)
    {
        return apoyo::Espera([&] { return tabla.horizontalHeader()->length() <= tabla.viewport()->width(); });
    }
    bool Corre(const char* pagina)
    {
        auto& avance = En<QProgressBar>(pagina, "barAvance");
        return QTest::qWaitFor([&] { return avance.isVisible() && avance.maximum() > 0; }, 20000);
    }
    /// That nothing runs any more, within the time that a user takes for at once.
    void EsDejadaAlInstante(const char* pagina, const std::function<void()>& deja)
    {
        QElapsedTimer reloj;
        reloj.start();
        deja();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !En<QProgressBar>(pagina, "barAvance").isVisible(); }));
        EXPECT_LT(reloj.elapsed(), 1000);
        EXPECT_TRUE(ventana.isVisible());
    }
};

TEST_F(VentanaDeBusqueda, LaSensibilidadSeCorreYDaLoMismoQueSusReglas)
{
    AbreConDatos();
    VeAlPaso("3");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    auto& tabla = En<forms::TablaCuadro>("AjusteSensibilidad", "tblIndices");
    EXPECT_EQ(tabla.model()->rowCount(), 0);
    Pulsa(En<QPushButton>("AjusteSensibilidad", "cmdCorrer"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return tabla.model()->rowCount() == 6; }, 20000));
    AjusteSensibilidad m = NuevaAjusteSensibilidad();
    Toma(m, f);
    const std::optional<PedidoDeSensibilidad> pedido = Empieza(m, f);
    ASSERT_TRUE(pedido);
    Termina(m, f, *AnalizaSensibilidad(pedido->modelo, pedido->ajuste, 1));
    for (int columna = 0; columna < 5; ++columna)
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(Columna(tabla, columna).at(i),
                      m.tblIndices.planilla.filas.at(i).at(static_cast<std::size_t>(columna)));
    EXPECT_EQ(m.Grafico.series.size(), 2U);
    EXPECT_NE(DeQ(Control<QWidget>(ventana, "lamSensibilidad").accessibleDescription()).find("En su mínimo"),
              std::string::npos);
}

TEST_F(VentanaDeBusqueda, SusIndicesSeOrdenanPorElEncabezadoYEntranSinDesplazarse)
{
    AbreConDatos();
    VeAlPaso("3");
    auto& tabla = En<forms::TablaCuadro>("AjusteSensibilidad", "tblIndices");
    for (const char* metodo : {"tornado", "morris", "sobol"}) {
        entorno.Atiende([&] {
            Cambia(f, "Método", [&](study::Ajuste& a) {
                a.sensibilidad.metodo = metodo;
                a.sensibilidad.base = 64;
            });
        });
        ventana.Muestra();
        Pulsa(En<QPushButton>("AjusteSensibilidad", "cmdCorrer"));
        const int columnas = std::string(metodo) == "tornado" ? 5 : std::string(metodo) == "morris" ? 6 : 8;
        ASSERT_TRUE(QTest::qWaitFor([&] { return tabla.model()->columnCount() == columnas; }, 20000));
        EXPECT_TRUE(Entra(tabla)) << metodo;
    }
    const std::vector<std::string> antes = Columna(tabla, 1);
    PulsaEncabezado(tabla, 1);
    std::vector<std::string> ordenados = antes;
    std::ranges::sort(ordenados);
    EXPECT_TRUE(apoyo::Espera([&] { return Columna(tabla, 1) == ordenados; }));
    PulsaEncabezado(tabla, 1);
    std::ranges::reverse(ordenados);
    EXPECT_TRUE(apoyo::Espera([&] { return Columna(tabla, 1) == ordenados; }));
    PulsaEncabezado(tabla, 1);
    EXPECT_TRUE(apoyo::Espera([&] { return Columna(tabla, 1) == antes; }));
}

TEST_F(VentanaDeBusqueda, LosGraficosTraenSuMenuConElBotonDerecho)
{
    AbreConDatos();
    VeAlPaso("3");
    Pulsa(En<QPushButton>("AjusteSensibilidad", "cmdCorrer"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return En<forms::TablaCuadro>("AjusteSensibilidad", "tblIndices").model()->rowCount() == 6; },
        20000));
    const QStringList deSensibilidad = MenuDe(Control<QWidget>(ventana, "lamSensibilidad"));
    EXPECT_TRUE(deSensibilidad.contains(QStringLiteral("Guardar celdas como CSV...")))
        << DeQ(deSensibilidad.join(u' '));
    VeAlPaso("4");
    Pulsa(En<QPushButton>("AjusteCalibracion", "cmdBuscar"));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return En<QPushButton>("AjusteCalibracion", "cmdGuardar").isEnabled(); }, 20000));
    EXPECT_EQ(DeQ(MenuDe(Control<QWidget>(ventana, "lamCalibracion")).join(u',')),
              DeQ(deSensibilidad.join(u',')));
}

TEST_F(VentanaDeBusqueda, LaSensibilidadSeDejaConEscYConElBoton)
{
    AbreConDatos();
    entorno.Atiende([this] {
        Cambia(f, "Sobol", [](study::Ajuste& a) {
            a.sensibilidad.metodo = "sobol";
            a.sensibilidad.base = 65536;
        });
    });
    VeAlPaso("3");
    const auto empieza = [this] {
        Pulsa(En<QPushButton>("AjusteSensibilidad", "cmdCorrer"));
        return Corre("AjusteSensibilidad");
    };
    ASSERT_TRUE(empieza());
    EXPECT_FALSE(En<QPushButton>("AjusteSensibilidad", "cmdCorrer").isEnabled());
    EsDejadaAlInstante("AjusteSensibilidad", [this] { QTest::keyClick(&ventana, Qt::Key_Escape); });
    EXPECT_EQ(Texto("AjusteSensibilidad", "lblEstado"), "Cancelado.");
    ASSERT_TRUE(empieza());
    EsDejadaAlInstante("AjusteSensibilidad",
                       [this] { Pulsa(En<QPushButton>("AjusteSensibilidad", "CancelButton")); });
    EXPECT_EQ(Texto("AjusteSensibilidad", "lblEstado"), "Cancelado.");
    EXPECT_TRUE(En<QPushButton>("AjusteSensibilidad", "cmdCorrer").isEnabled());
    EXPECT_EQ(En<forms::TablaCuadro>("AjusteSensibilidad", "tblIndices").model()->rowCount(), 0);
}

TEST_F(VentanaDeBusqueda, LaCalibracionSeBuscaSeGuardaEnCsvYSeAplicaUnaVez)
{
    AbreConDatos();
    VeAlPaso("4");
    EXPECT_EQ(apoyo::SinNombre(ventana), std::vector<std::string>{});
    EXPECT_FALSE(En<QPushButton>("AjusteCalibracion", "cmdAplicar").isEnabled());
    EXPECT_FALSE(En<QPushButton>("AjusteCalibracion", "cmdGuardar").isEnabled());
    model::Red red = f.proyecto.Red;
    model::Tormenta tormenta{};
    int veces = 0;
    f.Aplica = [&](const CambioDeProyecto& cambio) {
        cambio(red, tormenta);
        return ++veces > 0;
    };
    Pulsa(En<QPushButton>("AjusteCalibracion", "cmdBuscar"));
    auto& tabla = En<forms::TablaCuadro>("AjusteCalibracion", "tblParametros");
    ASSERT_TRUE(QTest::qWaitFor([&] { return tabla.model()->rowCount() == 6; }, 20000));
    EXPECT_TRUE(Entra(tabla));
    EXPECT_EQ(veces, 0);
    const study::Calibracion& hallada = AjusteDe(f).calibracion;
    ASSERT_FALSE(hallada.cercanos.empty());
    const std::vector<double> mejor = hallada.cercanos.front().valores;

    anfitrion->elegidos = {"/proy/corridas.csv"};
    Pulsa(En<QPushButton>("AjusteCalibracion", "cmdGuardar"));
    const std::string csv = disco.Bytes("/proy/corridas.csv");
    EXPECT_EQ(std::ranges::count(csv, '\n'), 401) << "a line per run below its heading";

    ASSERT_TRUE(En<QPushButton>("AjusteCalibracion", "cmdAplicar").isEnabled());
    Pulsa(En<QPushButton>("AjusteCalibracion", "cmdAplicar"));
    EXPECT_EQ(veces, 1);
    EXPECT_EQ(Todos()[0].campo, "kostiakov_a");
    EXPECT_NE(red.ColUEHs.Item(1).KostiakovA, f.proyecto.Red.ColUEHs.Item(1).KostiakovA);
    QTest::keyClick(&ventana, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(AjusteDe(f).calibracion.cercanos.empty()) << "one step takes back what was found";
    EXPECT_EQ(Todos().size(), 6U);
}

TEST_F(VentanaDeBusqueda, UnaBusquedaQueSeDejaConEscOConElBotonSeQuedaConLoMejor)
{
    AbreConDatos();
    entorno.Atiende([this] {
        Cambia(f, "Corridas", [](study::Ajuste& a) {
            a.calibracion.corridas = 1000000;
            a.calibracion.metodo = "dds";
        });
    });
    VeAlPaso("4");
    const auto empieza = [this] {
        Pulsa(En<QPushButton>("AjusteCalibracion", "cmdBuscar"));
        return Corre("AjusteCalibracion") && QTest::qWaitFor([this] {
                   return Texto("AjusteCalibracion", "lblEstado").starts_with("Mejor hasta ahora: ");
               });
    };
    const auto deja = [this] { QTest::keyClick(&ventana, Qt::Key_Escape); };
    const auto pulsa = [this] { Pulsa(En<QPushButton>("AjusteCalibracion", "CancelButton")); };
    for (const std::function<void()>& una : {std::function<void()>(deja), std::function<void()>(pulsa)}) {
        ASSERT_TRUE(empieza());
        EsDejadaAlInstante("AjusteCalibracion", una);
        EXPECT_EQ(En<forms::TablaCuadro>("AjusteCalibracion", "tblParametros").model()->rowCount(), 6);
        EXPECT_FALSE(AjusteDe(f).calibracion.cercanos.empty());
        EXPECT_TRUE(En<QPushButton>("AjusteCalibracion", "cmdAplicar").isEnabled());
        EXPECT_TRUE(En<QPushButton>("AjusteCalibracion", "cmdBuscar").isEnabled());
    }
}

}  // namespace
}  // namespace calibration
