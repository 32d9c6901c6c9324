// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/dlgImportaObservada_ventana.h"

#include <QScrollArea>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace calibration {

dlgImportaObservada_ventana::dlgImportaObservada_ventana(forms::Entorno& alrededor, dlgAjuste& suAjuste,
                                                         QWidget* padre)
    : Formulario(alrededor, {"dlgImportaObservada", TituloDlgImportaObservada, RotulosDlgImportaObservada},
                 padre),
      ajuste(suAjuste)
{
    Sigue(f.abierta);
    forms::TablaCuadro* const valores =
        Tabla(f.tblValores, "tblValores", "Valores que tomaría la observación");
    valores->PonColumnas({22, 10, 17});
    forms::TablaCuadro* const dudosos = Tabla(f.tblDudosos, "tblDudosos", "Renglones dudosos");
    dudosos->PonColumnas({9, 30, 0});
    VisibleSi(dudosos, [this] { return !f.importacion.dudosos.empty(); });
    grafico = new forms::Lamina(entorno, "lamImportada", "Valores", forms::Lamina::Modo::Compacta);
    QLabel* const avisos = Texto("lblAvisos", f.lblAvisos);
    avisos->setWordWrap(true);
    avisos->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    avisos->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarAvisos"));
    lugar->setWidgetResizable(true);
    lugar->setWidget(avisos);
    setLayout(EnPila({Datos(),
                      {EnFila({{valores, 5}, {grafico, 6}}), 4},
                      {dudosos, 2},
                      {lugar, 2},
                      EnFila({Hueco(),
                              HabilitadoSi(Boton("OKButton", [this] { OKButton(f, ajuste); }),
                                           [this] { return !f.importacion.puntos.empty(); }),
                              BotonSinRevisar("CancelButton", [this] { AlCerrar(); })})}));
}

forms::TablaCuadro* dlgImportaObservada_ventana::Tabla(forms::Cuadro& cuadro, std::string_view control,
                                                       std::string_view titulo)
{
    auto* const tabla = new forms::TablaCuadro(entorno, cuadro, control, titulo);
    tabla->AlPulsarEncabezado = [this, &cuadro](int columna) {
        Suceso([&] { forms::PulsaEncabezado(cuadro, columna); });
    };
    AlMostrar([tabla] { tabla->Muestra(); });
    return tabla;
}

QLayout* dlgImportaObservada_ventana::Datos()
{
    QLabel* const archivo = Texto("lblArchivo", f.lblArchivo);
    archivo->setWordWrap(true);
    const auto lista = [this](std::string_view control, const std::vector<std::string>& items,
                              const int& cual, void (*elige)(dlgImportaObservada&, int)) {
        QComboBox* const combo = Desplegable(control, items, cual, [this, elige](int i) { elige(f, i); });
        combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        return combo;
    };
    QComboBox* const columna = lista("cmbColumna", f.columnas, f.columna, &cmbColumna_Click);
    QComboBox* const unidad = lista("cmbUnidad", f.unidades, f.unidad, &cmbUnidad_Click);
    QComboBox* const tiempo = lista("cmbTiempo", f.tiempos, f.tiempo, &cmbTiempo_Click);
    HabilitadoSi(tiempo, [this] { return f.importacion.tiempo == ClaseDeTiempo::Numero; });
    const auto campo = [this](std::string_view control, std::string& texto) {
        QLineEdit* const linea = Campo(control, texto, [this] { return txtTiempo_AlSalir(f, entorno.s); });
        constexpr int Letras = 9;
        linea->setFixedWidth(Letras * fontMetrics().averageCharWidth());
        return linea;
    };
    QLineEdit* const desde = campo("txtDesde", f.txtDesde);
    QLineEdit* const hasta = campo("txtHasta", f.txtHasta);
    return EnRejilla({{Rotulo("lblArchivo"), archivo},
                      {Rotulo("lblTiempo"), Texto("lblTiempo", f.lblTiempo)},
                      {Rotulo("cmbColumna", columna), EnFila({{columna, 1},
                                                              Rotulo("cmbUnidad", unidad),
                                                              unidad,
                                                              Rotulo("cmbTiempo", tiempo),
                                                              tiempo,
                                                              Rotulo("txtDesde", desde),
                                                              desde,
                                                              Rotulo("txtHasta", hasta),
                                                              hasta,
                                                              new QLabel(QStringLiteral("min"))})}},
                     {0, 1});
}

void dlgImportaObservada_ventana::AbreArchivo()
{
    if (calibration::AbreArchivo(f, ajuste, entorno.s)) Ejecuta();
}

void dlgImportaObservada_ventana::AbreTexto(std::string texto)
{
    calibration::AbreTexto(f, ajuste, std::move(texto));
    Ejecuta();
}

void dlgImportaObservada_ventana::Ejecuta()
{
    Muestra();
    constexpr int Ancho = 60, Alto = 36;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
    entorno.Ejecuta(*this);
}

void dlgImportaObservada_ventana::Muestra()
{
    Formulario::Muestra();
    grafico->Muestra(f.Grafico);
}

void dlgImportaObservada_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

}  // namespace calibration
