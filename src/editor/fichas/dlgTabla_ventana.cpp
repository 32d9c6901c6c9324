// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgTabla_ventana.h"

#include <QHeaderView>
#include <QScrollBar>
#include <utility>

#include "editor/fichas/GraficosDeFichas.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"

namespace editor {

dlgTabla_ventana::dlgTabla_ventana(forms::Entorno& alrededor, dlgTabla& registro, TipoTabla tipoTabla,
                                   QWidget* padre)
    : Formulario(alrededor,
                 {DescripcionDe(tipoTabla).nombre, DescripcionDe(tipoTabla).titulo, RotulosDlgTabla}, padre),
      f(registro),
      tipo(tipoTabla),
      d(DescripcionDe(tipoTabla))
{
    f = {.descripcion = &d, .grilla = forms::NuevaGrilla(d.grilla)};
    Sigue(f.abierta, &f.foco);
    QLayout* const encabezado = Encabezado();
    tabla = Tabla(f.grilla, d.nombreGrilla);
    tabla->setAccessibleName(forms::Q(d.titulo));
    tabla->AlCambiar = [this](const forms::Efecto& efecto) {
        if (!efecto.otrasFilas) return PonCurvas();
        AlVolverFilas(f);
        Muestra();
    };
    AlMostrar([this] { PonCurvas(); });
    forms::Partes laminas;
    for (const CurvaTabla& curva : Curvas(f)) {
        const std::string nombre = "Curva_" + std::to_string(curvas.size());
        const std::string titulo = std::string(curva.ejeY) + " - " + std::string(curva.ejeX);
        curvas.push_back(new forms::Lamina(entorno, nombre, titulo, forms::Lamina::Modo::Compacta));
        laminas.emplace_back(curvas.back(), 1);
    }
    setLayout(EnPila({encabezado, {EnFila({tabla, {EnPila(laminas), 1}}), 1}, Botones()}));
    resize(TamanoInicial());
}

/// Wide enough for all columns and a readable curve, high enough for a table of usual length.
QSize dlgTabla_ventana::TamanoInicial() const
{
    constexpr int Filas = 20, AnchoCurva = 55;  // rows in sight, [characters]
    int ancho = tabla->verticalScrollBar()->sizeHint().width() + 2 * tabla->frameWidth();
    for (int c = 0; c < f.grilla.NroColumnas(); ++c)
        ancho += tabla->columnWidth(c);
    tabla->setMinimumWidth(ancho);
    const int alto = Filas * tabla->verticalHeader()->defaultSectionSize();
    return {ancho + AnchoCurva * fontMetrics().averageCharWidth(), alto};
}

QLayout* dlgTabla_ventana::Encabezado()
{
    txtNroFilas = Nombra(new QLineEdit, "txtNroFilas");
    txtNroFilas->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    AlMostrar([this] { forms::Pon(*txtNroFilas, f.txtNroFilas); });
    connect(txtNroFilas, &QLineEdit::textEdited, this, [this](const QString& texto) {
        SucesoSinRevisar([&] { txtNroFilas_Change(f, entorno.s, forms::DeQ(texto)); });
    });
    return EnRejilla({{Rotulo(d.nombreLblNro), EnNegrita(Texto(d.nombreLblNro, f.lblNro)),
                       Rotulo(d.nombreLblNombre), EnNegrita(Texto(d.nombreLblNombre, f.lblNombre)), Hueco(),
                       Rotulo("txtNroFilas", txtNroFilas), txtNroFilas}},
                     {0, 0, 0, 0, 1});
}

QLayout* dlgTabla_ventana::Botones()
{
    const auto aplica = [this] {
        cmdAplicar(f, entorno.s);
        AlCambiarTablas();
    };
    const auto acepta = [this] {
        OKButton(f, entorno.s);
        AlCambiarTablas();
    };
    return EnFila({Boton("cmdBorraTablaHQ", [this] { cmdBorraTablaHQ(f); }), Hueco(),
                   Boton("cmdAplicar", aplica), Boton("OKButton", acepta),
                   BotonSinRevisar("CancelButton", [this] { AlCerrar(); })});
}

void dlgTabla_ventana::Abre(std::string nro, std::string nombre)
{
    editor::Abre(f, entorno.s, tipo, std::move(nro), std::move(nombre));
    if (ordenada) OrdenaPorAltura(f);
    AlCambiarTablas();
    Muestra();
    // Without rows there is nothing to type into but their number.
    (f.grilla.NroFilas() == 0 ? static_cast<QWidget*>(txtNroFilas) : tabla)->setFocus();
    entorno.Ejecuta(*this);
}

void dlgTabla_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

void dlgTabla_ventana::PonCurvas()
{
    const std::vector<CurvaTabla> nuevas = Curvas(f);
    for (std::size_t i = 0; i < curvas.size() && i < nuevas.size(); ++i) {
        curvas[i]->PonTema(f.lblNombre, f.lblNombre);
        curvas[i]->Muestra(GraficoDe(nuevas[i]));
    }
}

}  // namespace editor
