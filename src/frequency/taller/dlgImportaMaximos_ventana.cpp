// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgImportaMaximos_ventana.h"

#include <QProgressBar>
#include <QScrollArea>
#include <optional>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace frequency {

dlgImportaMaximos_ventana::dlgImportaMaximos_ventana(forms::Entorno& alrededor, dlgTaller& suTaller,
                                                     QWidget* padre)
    : Formulario(alrededor, {"dlgImportaMaximos", TituloDlgImportaMaximos, RotulosDlgImportaMaximos}, padre),
      taller(suTaller)
{
    Sigue(f.abierta);
    tabla = new forms::TablaCuadro(entorno, f.tblSeries, "tblSeries", "Series que tomaría la estación");
    tabla->PonColumnas({16, 7, 9, 9, 13, 9, 13});
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] { forms::PulsaEncabezado(f.tblSeries, columna); });
    };
    tabla->AlMoverse = [this] {
        if (!f.importacion.series.empty()) Suceso([&] { tblSeries_Mueve(f, tabla->Actual()); });
    };
    AlMostrar([this] { tabla->Muestra(); });
    grafico = new forms::Lamina(entorno, "lamImportados", "Máximos anuales", forms::Lamina::Modo::Compacta);
    QLabel* const avisos = Texto("lblAvisos", f.lblAvisos);
    avisos->setWordWrap(true);
    avisos->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    avisos->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarAvisos"));
    lugar->setWidgetResizable(true);
    lugar->setWidget(avisos);
    setLayout(EnPila({Datos(), {EnFila({{tabla, 6}, {grafico, 5}}), 3}, {lugar, 1}, Botones()}));
    constexpr std::chrono::milliseconds EntreMiradas{30};
    latido.setInterval(EntreMiradas);
    connect(&latido, &QTimer::timeout, this, [this] { Mira(); });
}

dlgImportaMaximos_ventana::~dlgImportaMaximos_ventana() = default;

QLayout* dlgImportaMaximos_ventana::Datos()
{
    QLabel* const archivo = Texto("lblArchivo", f.lblArchivo);
    archivo->setWordWrap(true);
    QComboBox* const clase = Desplegable("cmbClase", f.clases, f.clase, [this](int i) {
        f.clase = i;
        Lee();
    });
    QComboBox* const mes = Desplegable("cmbMes", f.meses, f.mes, [this](int i) {
        f.mes = i;
        Lee();
    });
    HabilitadoSi(mes, [this] { return f.clase == 0; });
    QLineEdit* const duraciones = Campo("txtDuraciones", f.txtDuraciones, [this] {
        const bool vale = txtDuraciones_AlSalir(f, entorno.s);
        if (vale) Lee();
        return vale;
    });
    return EnRejilla({{Rotulo("lblArchivo"), archivo},
                      {Rotulo("cmbClase", clase), EnFila({clase,
                                                          Rotulo("cmbMes", mes),
                                                          mes,
                                                          Rotulo("txtDuraciones", duraciones),
                                                          {duraciones, 1},
                                                          new QLabel(QStringLiteral("[min]"))})}},
                     {0, 1});
}

QLayout* dlgImportaMaximos_ventana::Botones()
{
    auto* const avance = ConservaLugar(Nombra(new QProgressBar, "barAvance"));
    AlMostrar([this, avance] {
        avance->setVisible(f.leyendo);
        avance->setRange(0, lectura == nullptr ? 0 : static_cast<int>(lectura->Total()));
        avance->setValue(lectura == nullptr ? 0 : static_cast<int>(lectura->Hechas()));
        avance->setFormat(forms::Q(f.barAvance));
    });
    return EnFila({{avance, 1},
                   HabilitadoSi(Boton("OKButton", [this] { OKButton(f, taller); }),
                                [this] { return !f.leyendo && !f.importacion.series.empty(); }),
                   BotonSinRevisar("CancelButton", [this] { AlCerrar(); })});
}

void dlgImportaMaximos_ventana::Abre()
{
    if (!frequency::Abre(f, entorno.s)) return;
    Lee();
    Muestra();
    constexpr int Ancho = 68, Alto = 32;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
    entorno.Ejecuta(*this);
    latido.stop();
    lectura.reset();
}

void dlgImportaMaximos_ventana::Muestra()
{
    Formulario::Muestra();
    grafico->Muestra(f.Grafico);
}

void dlgImportaMaximos_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

void dlgImportaMaximos_ventana::Lee()
{
    Empieza(f);
    lectura = std::make_unique<study::Tarea<Importacion>>(
        [bytes = f.bytes, clase = static_cast<ClaseDeArchivo>(f.clase), pedido = PedidoDe(f)](
            const Avance& avance, const auto& entrega) {
            std::optional<Importacion> i = frequency::Lee(bytes, clase, pedido, avance);
            if (i) entrega(*std::move(i));
        });
    latido.start();
}

void dlgImportaMaximos_ventana::Mira()
{
    if (lectura == nullptr) return latido.stop();
    Avanza(f, lectura->Hechas(), lectura->Total());
    if (lectura->Terminada()) {
        latido.stop();
        if (std::optional<Importacion> i = lectura->Saca()) Termina(f, *std::move(i));
        lectura.reset();
    }
    Muestra();
}

}  // namespace frequency
