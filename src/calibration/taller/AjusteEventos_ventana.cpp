// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteEventos_ventana.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <utility>

#include "calibration/taller/dlgImportaObservada_ventana.h"
#include "calibration/taller/dlgRecesion_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"

namespace calibration {
namespace {

constexpr int LetrasDeLista = 8;

}  // namespace

AjusteEventos_ventana::AjusteEventos_ventana(forms::Entorno& alrededor, dlgAjuste& ajuste)
    : PaginaDeAjuste(alrededor, ajuste, RotulosAjusteEventos, "AjusteEventos")
{
    desdeElPrincipio = true;
    auto* const fila = EnFila({Elecciones(), {LadoALado(Tablas(), Derecha(), 0, 1), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLineEdit* AjusteEventos_ventana::CampoDe(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txt_AlSalir(m, f, entorno.s, control); });
}

/// Rows of the rain: those that its origin asks for.
std::vector<forms::Partes> AjusteEventos_ventana::Lluvia()
{
    QComboBox* const origen =
        Desplegable("cmbOrigen", m.origenes, m.origen, [this](int i) { cmbOrigen_Click(f, i); });
    QComboBox* const tormenta =
        Desplegable("cmbTormenta", m.tormentas, m.tormenta, [this](int i) { cmbTormenta_Click(m, f, i); });
    QComboBox* const distribucion = Desplegable("cmbDistribucion", m.distribuciones, m.distribucion,
                                                [this](int i) { cmbDistribucion_Click(f, i); });
    for (QComboBox* const lista : {origen, tormenta, distribucion})
        Corta(lista, LetrasDeLista);
    const auto con = [this](std::string_view control, QWidget* widget, int cual, std::string_view unidad) {
        forms::Partes partes = Renglon(control, widget, unidad);
        for (const forms::Parte& parte : partes)
            if (parte.control != nullptr) VisibleSi(parte.control, [this, cual] { return m.origen == cual; });
        return partes;
    };
    return {{Rotulo("cmbOrigen", origen), origen},
            con("cmbTormenta", tormenta, 1, ""),
            con("txtLamina", CampoDe("txtLamina", m.txtLamina), 2, "mm"),
            con("txtDuracion", CampoDe("txtDuracion", m.txtDuracion), 2, "min"),
            con("cmbDistribucion", distribucion, 2, "")};
}

QLayout* AjusteEventos_ventana::Evento()
{
    const auto hay = [this] { return EventoEnMano(f) != nullptr; };
    QComboBox* const papel =
        Desplegable("cmbPapel", m.papeles, m.papel, [this](int i) { cmbPapel_Click(f, i); });
    std::vector<forms::Partes> datos{Renglon("txtNombre", CampoDe("txtNombre", m.txtNombre)),
                                     Renglon("txtInicio", CampoDe("txtInicio", m.txtInicio)),
                                     {Rotulo("cmbPapel", papel), papel},
                                     Renglon("txtPesoEvento", CampoDe("txtPesoEvento", m.txtPesoEvento))};
    for (forms::Partes& renglon : Lluvia())
        datos.push_back(std::move(renglon));
    return EnPila({EnRejilla(datos, {0, 1}),
                   EnFila({Boton("cmdNuevoEvento", [this] { cmdNuevoEvento(f); }),
                           HabilitadoSi(Boton("cmdDuplicaEvento", [this] { cmdDuplicaEvento(f); }), hay),
                           HabilitadoSi(Boton("cmdQuitaEvento", [this] { cmdQuitaEvento(f); }), hay)}),
                   EnFila({HabilitadoSi(Boton("cmdSubeEvento", [this] { cmdMueveEvento(f, -1); }),
                                        [this] { return f.evento > 0; }),
                           HabilitadoSi(Boton("cmdBajaEvento", [this] { cmdMueveEvento(f, 1); }),
                                        [this] { return f.evento + 1 < static_cast<int>(f.eventos.size()); }),
                           Hueco()})});
}

QLayout* AjusteEventos_ventana::Observacion()
{
    const auto hay = [this] { return ObservacionEnMano(f) != nullptr; };
    const auto conValores = [this] {
        const study::Observacion* const o = ObservacionEnMano(f);
        return o != nullptr && !o->puntos.empty();
    };
    QComboBox* const componente = Desplegable("cmbComponente", m.componentes, m.componente,
                                              [this](int i) { cmbComponente_Click(m, f, i); });
    QComboBox* const magnitud =
        Desplegable("cmbMagnitud", m.magnitudes, m.magnitud, [this](int i) { cmbMagnitud_Click(f, i); });
    Corta(componente, LetrasDeLista);
    return EnPila(
        {EnRejilla({{Rotulo("cmbComponente", componente), componente},
                    {Rotulo("cmbMagnitud", magnitud), magnitud},
                    Renglon("txtPromedio", CampoDe("txtPromedio", m.txtPromedio), "min"),
                    Renglon("txtPesoObservacion", CampoDe("txtPesoObservacion", m.txtPesoObservacion)),
                    Renglon("txtFuente", CampoDe("txtFuente", m.txtFuente)),
                    Renglon("txtNotas", CampoDe("txtNotas", m.txtNotas))},
                   {0, 1}),
         EnFila({Boton("cmdNuevaObservacion", [this] { cmdNuevaObservacion(f); }),
                 HabilitadoSi(Boton("cmdQuitaObservacion", [this] { cmdQuitaObservacion(f); }), hay)}),
         EnFila({Boton("cmdImportar", [this] { Importa(); }), Boton("cmdPegar", [this] { Pega(); })}),
         HabilitadoSi(Boton("cmdBase", [this] { Separa(); }), conValores)});
}

/// What the event and the observation are; it scrolls where the room is low.
QWidget* AjusteEventos_ventana::Elecciones()
{
    constexpr int Letras = 50;
    return EnColumna({Marco("MarcoEvento", Evento()), Marco("MarcoObservacion", Observacion()), Hueco()},
                     Letras);
}

forms::TablaGrilla* AjusteEventos_ventana::TablaDe(forms::Grilla& grilla, std::string_view control,
                                                   void (*asienta)(AjusteEventos&, dlgAjuste&))
{
    forms::TablaGrilla* const tabla = Tabla(grilla, control);
    tabla->AlCambiar = [this, asienta](const forms::Efecto& efecto) {
        if (!efecto.asentadas.empty()) asienta(m, f);
    };
    tabla->DeshaceFuera = [this] { Suceso([this] { cmdDeshacer(f); }); };
    tabla->RehaceFuera = [this] { Suceso([this] { cmdRehacer(f); }); };
    constexpr int EntreFilas = 8;  // [pixels at 96 dpi]
    tabla->verticalHeader()->setMinimumSectionSize(tabla->fontMetrics().height());
    tabla->verticalHeader()->setDefaultSectionSize(tabla->fontMetrics().height() + EntreFilas);
    return tabla;
}

QWidget* AjusteEventos_ventana::Tablas()
{
    forms::TablaGrilla* const valores = TablaDe(m.grdValores, "grdValores", &grdValores_Asienta);
    forms::TablaGrilla* const ventanas = TablaDe(m.grdVentanas, "grdVentanas", &grdVentanas_Asienta);
    forms::TablaGrilla* const curva = TablaDe(m.grdCurva, "grdCurva", &grdCurva_Asienta);
    setFocusProxy(valores);
    QComboBox* const entre = Desplegable("cmbInterpolacion", m.interpolaciones, m.interpolacion,
                                         [this](int i) { cmbInterpolacion_Click(f, i); });
    Corta(entre, LetrasDeLista);
    const auto hoja = [](QLayout* pila) {
        auto* const lado = new QWidget;
        pila->setContentsMargins(0, 0, 0, 0);
        lado->setLayout(pila);
        return lado;
    };
    QLabel* const cuantos = Texto("lblValores", m.lblValores);
    cuantos->setWordWrap(true);
    auto* const fichas = Nombra(new QTabWidget, "fichas");
    fichas->setUsesScrollButtons(false);  // all four are in sight
    fichas->addTab(hoja(EnPila({{valores, 1}, cuantos})), QStringLiteral("Valores"));
    fichas->addTab(hoja(EnPila({{ventanas, 1}})), QStringLiteral("Ventanas"));
    fichas->addTab(hoja(EnPila({{curva, 1}, Rotulo("cmbInterpolacion", entre), entre})),
                   QStringLiteral("Curva"));
    tablaDePuntajes =
        new forms::TablaCuadro(entorno, m.puntajes.tblPuntajes, "tblPuntajes", Fila("tblPuntajes").leyenda);
    constexpr int DeValor = 16, DeUnidad = 8;
    tablaDePuntajes->PonColumnas({0, DeValor, DeUnidad});
    QLabel* const palabras = Texto("lblPuntajes", m.puntajes.lblPuntajes);
    palabras->setWordWrap(true);
    fichas->addTab(hoja(EnPila({{tablaDePuntajes, 1}, palabras})), QStringLiteral("Puntajes"));
    connect(fichas, &QTabWidget::currentChanged, this, [this](int cual) { m.ficha = cual; });
    // Wide enough for the widest of the three.
    fichas->setMinimumWidth(ventanas->horizontalHeader()->length() + 4 * ventanas->frameWidth() +
                            2 * ventanas->verticalScrollBar()->sizeHint().width());
    return fichas;
}

QWidget* AjusteEventos_ventana::Derecha()
{
    grafico = new forms::Lamina(entorno, "lamEvento", "Evento observado y corrida");
    DejaChico(*grafico);
    return SobreAvisos(grafico, m.lblAvisos);
}

void AjusteEventos_ventana::Importa()
{
    dlgImportaObservada_ventana(entorno, f, window()).AbreArchivo();
}

void AjusteEventos_ventana::Pega()
{
    dlgImportaObservada_ventana(entorno, f, window())
        .AbreTexto(forms::DeQ(QGuiApplication::clipboard()->text()));
}

void AjusteEventos_ventana::Separa()
{
    dlgRecesion_ventana(entorno, f, window()).Abre();
}

void AjusteEventos_ventana::Muestra()
{
    PaginaDeAjuste::Muestra();
    tablaDePuntajes->Muestra();
    grafico->Muestra(m.Grafico);
    const study::Observacion* const o = ObservacionEnMano(f);
    grafico->PonTema(TemaDe(f), o == nullptr ? TemaDe(f) : o->componente);
}

}  // namespace calibration
