// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerTormenta_ventana.h"

#include <QApplication>
#include <QSplitter>
#include <array>
#include <utility>

#include "forms/Lamina_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace frequency {
namespace {

/// Editors that hold the tables in memory, and would write over what is written here.
constexpr auto Editores = std::to_array<std::pair<const char*, const char*>>({
    {"dlgTablasPDRs", "las tablas P-D-R"},
    {"dlgDisPpPer", "las distribuciones personales"},
    {"dlgPpReal", "las tormentas reales"},
});

/// What an open editor has to be told; empty: none is open.
std::string EditorAbierto()
{
    for (QWidget* const ventana : QApplication::allWidgets())
        for (const auto& [nombre, que] : Editores)
            if (ventana->isVisible() && ventana->objectName() == QLatin1String(nombre))
                return std::string("Cierre antes la ventana de ") + que +
                       ", que tiene el archivo en mano y lo escribiría encima.";
    return {};
}

}  // namespace

TallerTormenta_ventana::TallerTormenta_ventana(forms::Entorno& alrededor, dlgTaller& taller)
    : PaginaDeTaller(alrededor, taller, RotulosTallerTormenta, "TallerTormenta")
{
    tabla = new forms::TablaCuadro(entorno, m.cuadro, "tblTormenta", "Hietograma");
    tabla->PonColumnas({8, 9, 12, 10, 8, 12});
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([this, columna] { forms::PulsaEncabezado(m.cuadro, columna); });
    };
    tabla->DaPlanilla = [this] { return PlanillaDeTormenta(m, f); };
    auto* const fila =
        EnFila({Elecciones(),
                {EnPila({{LadoALado(tabla, Derecha(), 9, 11), 1}, Marco("MarcoModelo", AlModelo())}), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLineEdit* TallerTormenta_ventana::CampoDeNumero(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, entorno.s, control); });
}

void TallerTormenta_ventana::SoloCon(const forms::Partes& renglon, bool (*vale)(const Patron&))
{
    for (const forms::Parte& parte : renglon)
        if (parte.control != nullptr)
            VisibleSi(parte.control, [this, vale] { return vale(PatronEnMano(m)); });
}

QLayout* TallerTormenta_ventana::DeLaTormenta()
{
    auto* const patron =
        Desplegable("cmbPatron", m.patrones, m.patron, [this](int i) { cmbPatron_Click(f, i); });
    auto* const recurrencia = CampoConLista("txtRecurrencia", m.recurrencias, m.txtRecurrencia, [this] {
        return txtNumero_AlSalir(m, f, entorno.s, "txtRecurrencia");
    });
    auto* const cuartil =
        Desplegable("cmbCuartil", m.cuartiles, m.cuartil, [this](int i) { cmbCuartil_Click(f, i); });
    auto* const probabilidad = Desplegable("cmbProbabilidad", m.probabilidades, m.probabilidad,
                                           [this](int i) { cmbProbabilidad_Click(f, i); });
    auto* const archivo =
        Desplegable("cmbArchivo", m.archivos, m.archivo, [this](int i) { cmbArchivo_Click(m, f, i); });
    for (QComboBox* const combo : {patron, archivo})
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* const periodos =
        Campo("txtPeriodos", m.txtPeriodos, [this] { return txtPeriodos_AlSalir(m, f, entorno.s); });
    const forms::Partes avance = Renglon("txtAvance", CampoDeNumero("txtAvance", m.txtAvance)),
                        cuartiles = Renglon("cmbCuartil", cuartil),
                        probabilidades = Renglon("cmbProbabilidad", probabilidad),
                        propia = Renglon("txtPeriodos", periodos);
    SoloCon(avance, [](const Patron& p) { return p.hechura == Hechura::CurvasYAvance; });
    SoloCon(cuartiles, TieneCuartiles);
    SoloCon(probabilidades, [](const Patron& p) { return p.hechura == Hechura::CuartilYProbabilidad; });
    for (const forms::Parte& parte : propia)
        if (parte.control != nullptr) VisibleSi(parte.control, [this] { return m.diseno.patron == &Propia; });
    auto* const dicho = Texto("lblPatron", m.lblPatron);
    dicho->setWordWrap(true);
    dicho->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return EnPila({EnRejilla({Renglon("cmbPatron", patron)}, {0, 1}), dicho,
                   EnRejilla({avance, cuartiles, probabilidades, propia,
                              Renglon("txtDuracion", CampoDeNumero("txtDuracion", m.txtDuracion), "min"),
                              Renglon("txtPaso", CampoDeNumero("txtPaso", m.txtPaso), "min"),
                              Renglon("txtRecurrencia", recurrencia, "años"),
                              Renglon("txtLamina", CampoDeNumero("txtLamina", m.txtLamina), "mm"),
                              Renglon("cmbArchivo", archivo)},
                             {0, 1})});
}

QPushButton* TallerTormenta_ventana::Escribe(std::string_view control,
                                             void (*rutina)(TallerTormenta&, dlgTaller&, model::Siro&))
{
    return Boton(control, [this, rutina] {
        if (const std::string abierto = EditorAbierto(); !abierto.empty())
            return model::Advierte(entorno.s, abierto);
        rutina(m, f, entorno.s);
    });
}

QLayout* TallerTormenta_ventana::AlModelo()
{
    auto* const tablaPDR =
        Desplegable("cmbTabla", m.tablas, m.tabla, [this](int i) { cmbTabla_Click(f, i); });
    auto* const distribucion = Desplegable("cmbDistribucion", m.tablas, m.distribucion,
                                           [this](int i) { cmbDistribucion_Click(f, i); });
    auto* const deshace = HabilitadoSi(Escribe("cmdDeshacerEscritura", &cmdDeshacerEscritura),
                                       [this] { return !m.escrituras.empty(); });
    AlMostrar([this, deshace] {
        constexpr int Letras = 44;
        const QString leyenda = forms::Q(m.cmdDeshacerEscritura);
        deshace->setText(
            fontMetrics().elidedText(leyenda, Qt::ElideMiddle, Letras * fontMetrics().averageCharWidth()));
        deshace->setToolTip(leyenda + QStringLiteral("\n") + forms::Q(Fila("cmdDeshacerEscritura").ayuda));
    });
    return EnRejilla(
        {{Rotulo("cmbTabla", tablaPDR), tablaPDR,
          HabilitadoSi(Escribe("cmdLlenar", &cmdLlenar), [this] { return bool(m.fuentes.curvas); }),
          Casilla(
              "chkConfigura", [this] { return m.chkConfigura; },
              [this](bool tildada) { m.chkConfigura = tildada; }),
          Hueco(), deshace},
         {Rotulo("cmbDistribucion", distribucion), distribucion,
          HabilitadoSi(Escribe("cmdEscribir", &cmdEscribir), [this] { return m.diseno.error.empty(); }),
          HabilitadoSi(Escribe("cmdEscalar", &cmdEscalar), [this] { return m.archivo >= 0; }), Hueco(),
          Hueco()}},
        {0, 0, 0, 0, 1, 0});
}

/// What the storm is; it scrolls where the room is low.
QWidget* TallerTormenta_ventana::Elecciones()
{
    constexpr int Letras = 42;
    return EnColumna({Marco("MarcoTormenta", DeLaTormenta()), Hueco()}, Letras);
}

QWidget* TallerTormenta_ventana::Derecha()
{
    grafico = new forms::Lamina(entorno, "lamTormenta", "Hietograma");
    return SobreAvisos(grafico, m.lblAvisos);
}

void TallerTormenta_ventana::Muestra()
{
    PaginaDeTaller::Muestra();
    tabla->Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.diseno.origen, TemaDe(f));
}

}  // namespace frequency
