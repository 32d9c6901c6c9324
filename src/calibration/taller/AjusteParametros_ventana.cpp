// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteParametros_ventana.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QSplitter>

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace calibration {

AjusteParametros_ventana::AjusteParametros_ventana(forms::Entorno& alrededor, dlgAjuste& taller)
    : PaginaDe(alrededor, taller, RotulosAjusteParametros, "AjusteParametros")
{
    grafico = new forms::Lamina(entorno, "lamParametros", "Distribución", forms::Lamina::Modo::Compacta);
    DejaChico(*grafico);
    auto* const fila =
        EnFila({Elecciones(),
                {EnPila({Ordenes(), {LadoALado(Tabla(), SobreAvisos(grafico, m.lblAvisos), 12, 9), 1}}), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
    setFocusProxy(tabla);
}

QLineEdit* AjusteParametros_ventana::CampoDeNumero(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, control); });
}

forms::Partes AjusteParametros_ventana::SoloSi(forms::Partes renglon, const bool& vale)
{
    for (const forms::Parte& parte : renglon)
        if (parte.control != nullptr) VisibleSi(parte.control, [&vale] { return vale; });
    return renglon;
}

/// The parameter in hand; it scrolls where the room is low.
QWidget* AjusteParametros_ventana::Elecciones()
{
    auto* const componentes = CampoConLista("cmbComponentes", m.componentes, m.txtComponentes,
                                            [this] { return txtComponentes_AlSalir(m, f); });
    auto* const campo =
        Desplegable("cmbCampo", m.campos, m.campo, [this](int i) { cmbCampo_Click(m, f, i); });
    auto* const modo = Desplegable("cmbModo", m.modos, m.modo, [this](int i) { cmbModo_Click(m, f, i); });
    auto* const distribucion = Desplegable("cmbDistribucion", m.distribuciones, m.distribucion,
                                           [this](int i) { cmbDistribucion_Click(m, f, i); });
    for (QComboBox* const combo : {componentes, campo, modo, distribucion})
        Corta(combo);
    QLabel* const actual = Texto("lblActual", m.lblActual);
    actual->setWordWrap(true);
    actual->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const auto conUnidad = [this](std::string_view control, std::string& texto) {
        forms::Partes partes = Renglon(control, CampoDeNumero(control, texto));
        partes.emplace_back(Texto("", m.lblUnidad));
        return partes;
    };
    QGroupBox* const parametro =
        Marco("MarcoParametro", EnPila({EnRejilla({Renglon("cmbComponentes", componentes),
                                                   Renglon("cmbCampo", campo),
                                                   {Rotulo("lblActual"), actual},
                                                   Renglon("cmbModo", modo),
                                                   conUnidad("txtMinimo", m.txtMinimo),
                                                   conUnidad("txtMaximo", m.txtMaximo)},
                                                  {0, 1}),
                                        Casilla(
                                            "chkLogaritmica", [this] { return m.chkLogaritmica; },
                                            [this](bool tildada) { chkLogaritmica_Click(m, f, tildada); }),
                                        Casilla(
                                            "chkActivo", [this] { return m.chkActivo; },
                                            [this](bool tildada) { chkActivo_Click(m, f, tildada); })}));
    QLineEdit* const valores = Campo("txtValores", m.txtValores, [this] { return txtValores_AlSalir(m, f); });
    const auto conNota = [this](std::string_view control, std::string& texto, const std::string& nota,
                                const bool& vale) {
        forms::Partes partes = Renglon(control, CampoDeNumero(control, texto));
        partes.emplace_back(Texto("", nota));
        return SoloSi(partes, vale);
    };
    QGroupBox* const sorteo = Marco(
        "MarcoSorteo", EnRejilla({Renglon("cmbDistribucion", distribucion),
                                  conNota("txtCentro", m.txtCentro, m.lblCentro, m.conCentro),
                                  conNota("txtDispersion", m.txtDispersion, m.lblDispersion, m.conDispersion),
                                  SoloSi(Renglon("txtValores", valores), m.conValores)},
                                 {0, 1}));
    for (QGroupBox* const marco : {parametro, sorteo})
        HabilitadoSi(marco, [this] { return Hay(); });
    constexpr int Letras = 46;
    return EnColumna({parametro, sorteo, Hueco()}, Letras);
}

QLayout* AjusteParametros_ventana::Ordenes()
{
    const auto hay = [this] { return Hay(); };
    const auto ultimo = [this] { return static_cast<int>(AjusteDe(f).parametros.size()) - 1; };
    return EnFila(
        {Boton("cmdProponer", [this] { cmdProponer(m, f); }),
         Boton("cmdAgregar", [this] { cmdAgregar(m, f); }),
         HabilitadoSi(Boton("cmdDuplicar", [this] { cmdDuplicar(m, f); }), hay),
         HabilitadoSi(Boton("cmdQuitar", [this] { cmdQuitar(m, f); }), hay),
         HabilitadoSi(Boton("cmdSubir", [this] { cmdMover(m, f, -1); }), [this] { return m.enMano > 0; }),
         HabilitadoSi(Boton("cmdBajar", [this] { cmdMover(m, f, 1); }),
                      [this, ultimo] { return m.enMano < ultimo(); }),
         Boton("cmdPegar", [this] { Pega(); }), Hueco()});
}

QWidget* AjusteParametros_ventana::Tabla()
{
    tabla = new forms::TablaCuadro(entorno, m.tblParametros, "tblParametros", Fila("tblParametros").leyenda);
    tabla->PonColumnas({15, 0, 8, 9, 9, 10});  // [letters]; the rest stands beside
    tabla->AlMoverse = [this] {
        const std::size_t cual = tabla->Actual();
        if (!mostrando && static_cast<int>(cual) != m.enMano && cual < AjusteDe(f).parametros.size())
            Suceso([&] { tblParametros_Mueve(m, f, cual); });
    };
    return tabla;
}

void AjusteParametros_ventana::Pega()
{
    cmdPegar(m, f, forms::DeQ(QGuiApplication::clipboard()->text()));
}

void AjusteParametros_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (tabla->hasFocus() && evento->matches(QKeySequence::Paste)) return Suceso([this] { Pega(); });
    if (tabla->hasFocus() && evento->key() == Qt::Key_Delete) return Suceso([this] { cmdQuitar(m, f); });
    PaginaDeAjuste::keyPressEvent(evento);
}

void AjusteParametros_ventana::Muestra()
{
    PaginaDeAjuste::Muestra();
    mostrando = true;
    tabla->Muestra();
    if (Hay() && static_cast<int>(tabla->Actual()) != m.enMano) tabla->selectRow(m.enMano);
    mostrando = false;
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.Grafico.titulo, m.Grafico.titulo);
}

}  // namespace calibration
