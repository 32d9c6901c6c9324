// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Pagina_ventana.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "forms/Cuadro.h"
#include "forms/Cuadro_ventana.h"

namespace study {
namespace {

/// The wheel over a list in what scrolls is for scrolling, unless the list has the focus: it would change
/// what is under the pointer by chance.
class RuedaDelLugar : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        auto* const lista = qobject_cast<QComboBox*>(objeto);
        if (evento->type() != QEvent::Wheel || lista == nullptr || lista->hasFocus()) return false;
        evento->ignore();
        return true;
    }
};

}  // namespace

Pagina::Pagina(forms::Entorno& alrededor, std::span<const forms::FilaRotulo> filas, std::string_view nombre)
    : Constructor(alrededor, filas)
{
    setObjectName(forms::Q(nombre));
}

void Pagina::DejaChico(QWidget& grafico)
{
    constexpr int Ancho = 16, Alto = 10;  // [heights of a letter]
    grafico.setMinimumSize(Ancho * grafico.fontMetrics().height(), Alto * grafico.fontMetrics().height());
}

QSplitter* Pagina::LadoALado(QWidget* tabla, QWidget* grafico, int parteDeTabla, int parteDeGrafico)
{
    auto* const barra = new QSplitter(Qt::Horizontal);
    barra->setObjectName(QStringLiteral("barra"));
    barra->addWidget(tabla);
    barra->addWidget(grafico);
    barra->setStretchFactor(0, parteDeTabla);
    barra->setStretchFactor(1, parteDeGrafico);
    barra->setChildrenCollapsible(false);
    constexpr int Ancho = 1000;  // shares of what there is
    barra->setSizes({parteDeTabla * Ancho, parteDeGrafico * Ancho});
    return barra;
}

QWidget* Pagina::EnColumna(const forms::Partes& partes, int letras)
{
    auto* const dentro = new QWidget;
    auto* const pila = EnPila(partes);
    pila->setContentsMargins(0, 0, 0, 0);
    dentro->setLayout(pila);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarElecciones"));
    lugar->setWidgetResizable(true);
    lugar->setFrameShape(QFrame::NoFrame);
    lugar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lugar->setWidget(dentro);
    auto* const rueda = new RuedaDelLugar(lugar);
    for (QComboBox* const lista : dentro->findChildren<QComboBox*>()) {
        lista->setFocusPolicy(Qt::StrongFocus);
        lista->installEventFilter(rueda);
    }
    lugar->setFixedWidth(letras * fontMetrics().averageCharWidth() +
                         lugar->verticalScrollBar()->sizeHint().width());
    return lugar;
}

QComboBox* Pagina::Corta(QComboBox* lista, int letras)
{
    lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista->setMinimumContentsLength(letras);
    return lista;
}

forms::TablaCuadro* Pagina::TablaDe(forms::Cuadro& cuadro, std::string_view control, std::vector<int> letras)
{
    auto* const tabla = new forms::TablaCuadro(entorno, cuadro, control, Fila(control).leyenda);
    tabla->PonColumnas(std::move(letras));
    tabla->AlPulsarEncabezado = [this, &cuadro](int columna) {
        Suceso([&] { forms::PulsaEncabezado(cuadro, columna); });
    };
    AlMostrar([tabla] { tabla->Muestra(); });
    return tabla;
}

QWidget* Pagina::SobreAvisos(QWidget* grafico, const std::string& avisos)
{
    QLabel* const texto = Texto("lblAvisos", avisos);
    texto->setWordWrap(true);
    texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
    texto->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarAvisos"));
    lugar->setWidgetResizable(true);
    lugar->setWidget(texto);
    constexpr int Renglones = 4;
    lugar->setFixedHeight(Renglones * fontMetrics().lineSpacing());
    auto* const lado = new QWidget;
    auto* const pila = EnPila({{grafico, 1}, lugar});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

forms::Partes Pagina::Avance(const EstadoDeAvance& avance, const std::function<bool()>& enCurso,
                             const std::function<void()>& cancela)
{
    auto* const barra = ConservaLugar(Nombra(new QProgressBar, "barAvance"));
    AlMostrar([barra, &avance, enCurso] {
        constexpr std::size_t Partes = 1000;
        barra->setVisible(enCurso());
        barra->setRange(0, static_cast<int>(Partes));
        barra->setValue(static_cast<int>(avance.hechos * Partes / std::max<std::size_t>(1, avance.total)));
        barra->setFormat(forms::Q(avance.texto));
    });
    constexpr int Letras = 20;
    barra->setMinimumWidth(Letras * fontMetrics().averageCharWidth());
    return {{barra, 1}, VisibleSi(Boton("CancelButton", cancela), enCurso)};
}

}  // namespace study
