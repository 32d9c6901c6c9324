// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/Ficha_ventana.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "forms/Lista_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

using forms::DeQ;
using forms::Pon;
using forms::Q;

namespace {

/// The user's own ways into a field; the window or a menu that comes back isn't one.
bool EsEntrada(const QFocusEvent& evento)
{
    return evento.reason() == Qt::MouseFocusReason || evento.reason() == Qt::TabFocusReason ||
           evento.reason() == Qt::BacktabFocusReason || evento.reason() == Qt::ShortcutFocusReason;
}

constexpr int LineasFijas = 3;  ///< a list of so few lines doesn't grow with the window

QLabel* EnNegrita(QLabel* rotulo)
{
    QFont letra = rotulo->font();
    letra.setBold(true);
    rotulo->setFont(letra);
    return rotulo;
}

}  // namespace

void ConservaLugar(QWidget& widget)
{
    QSizePolicy politica = widget.sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politica);
}

PartesDeFicha::PartesDeFicha(forms::Entorno& alrededor, const DescripcionFicha& descripcion, Ficha& registro,
                             QWidget* padre)
    : Formulario(alrededor, descripcion.nombre, padre), leyendas(descripcion.leyendas), ficha(registro)
{
    setWindowTitle(Q(descripcion.titulo));
}

std::string_view PartesDeFicha::Leyenda(std::string_view control) const
{
    return forms::RotuloDe(leyendas, control).leyenda;
}

void PartesDeFicha::NombraWidget(QWidget& widget, std::string_view control) const
{
    widget.setObjectName(Q(control));
    widget.setAccessibleName(Q(Leyenda(control)).trimmed());
    widget.setToolTip(Q(forms::RotuloDe(leyendas, control).ayuda));
}

// --- parts ---

QGroupBox* PartesDeFicha::Marco(std::string_view control)
{
    auto* const marco = new QGroupBox(Q(Leyenda(control)));
    marco->setObjectName(Q(control));
    return marco;
}

QLabel* PartesDeFicha::Texto(std::string_view control, const std::string& texto)
{
    auto* const rotulo = new QLabel;
    rotulo->setObjectName(Q(control));
    rotulo->setToolTip(Q(forms::RotuloDe(leyendas, control).ayuda));
    rotulo->setTextFormat(Qt::PlainText);
    AlMostrar([rotulo, &texto] { Pon(*rotulo, texto); });
    return rotulo;
}

QLabel* PartesDeFicha::Dato(QGridLayout& grilla, std::string_view control, const std::string& texto)
{
    const int fila = grilla.rowCount();
    QLabel* const valor = EnNegrita(Texto(control, texto));
    grilla.addWidget(new QLabel(Q(Leyenda(control))), fila, 0);
    grilla.addWidget(valor, fila, 1, 1, -1);
    return valor;
}

QLineEdit* PartesDeFicha::Campo(std::string_view control, std::string& texto)
{
    auto* const campo = Nombra(new QLineEdit, control);
    forms::Refleja(*campo, texto);
    AlMostrar([campo, &texto] {
        if (campo->text() == Q(texto)) return;
        Pon(*campo, texto);
        campo->setCursorPosition(0);  // a long text is read from its beginning
    });
    return campo;
}

void PartesDeFicha::Renglon(QGridLayout& grilla, std::string_view control, QWidget& campo,
                            std::string_view unidad)
{
    const int fila = grilla.rowCount();
    auto* const rotulo = new QLabel(Q(Leyenda(control)));
    rotulo->setBuddy(&campo);
    grilla.addWidget(rotulo, fila, 0);
    const std::string aparte = UnidadAparte(Leyenda(control), unidad);
    grilla.addWidget(&campo, fila, 1, 1, aparte.empty() ? -1 : 1);
    if (!aparte.empty()) grilla.addWidget(new QLabel(Q(aparte)), fila, 2);
}

QLineEdit* PartesDeFicha::CampoNombre(QGridLayout& grilla, std::string_view control, std::string& texto,
                                      std::function<void()> cambia, std::function<bool()> revisa)
{
    auto* const campo = Nombra(new QLineEdit, control);
    Renglon(grilla, control, *campo);
    AlMostrar([campo, &texto] { Pon(*campo, texto); });
    campos.Agrega(*campo, std::move(revisa));
    connect(campo, &QLineEdit::textEdited, this, [this, campo, &texto, cambia](const QString& escrito) {
        const int cursor = campo->cursorPosition();
        entorno.Atiende([&] {
            texto = DeQ(escrito);
            cambia();
        });
        if (entorno.Terminando()) return;
        const QString nuevo = Q(texto);
        Pon(*campo, texto);
        // What was put in front moves the cursor on.
        const auto delante = nuevo.endsWith(escrito) ? nuevo.size() - escrito.size() : 0;
        campo->setCursorPosition(cursor + static_cast<int>(delante));
        Muestra();
    });
    return campo;
}

void PartesDeFicha::EsNumero(QLineEdit& campo, std::function<bool()> revisa)
{
    campos.Agrega(campo, std::move(revisa));
    campo.installEventFilter(this);
}

forms::ListaParaElegir* PartesDeFicha::NuevaLista(std::string_view control, const Lista& lista,
                                                  bool conFlechas, std::function<void(int)> elige)
{
    auto* const visible = Nombra(new forms::ListaParaElegir, control);
    visible->conFlechas = conFlechas;
    visible->AlElegir = [this, elige](int linea) { Suceso([&] { elige(linea); }); };
    if (!conFlechas)
        campos.Agrega(*visible, [visible, elige] {
            if (const int linea = visible->TomaPorElegir(); linea >= 0) elige(linea);
            return true;
        });
    AlMostrar([visible, &lista] {
        if (visible->PorElegir() < 0) Pon(*visible, lista.items, lista.indice);
    });
    return visible;
}

void PartesDeFicha::RenglonDeLista(QGridLayout& grilla, const RenglonLista& renglon,
                                   std::function<void(int)> elige)
{
    forms::ListaParaElegir* const visible =
        NuevaLista(renglon.control, renglon.lista, renglon.conFlechas, std::move(elige));
    const int alto = renglon.lineas * (visible->fontMetrics().height() + 2) + 2 * visible->frameWidth() + 2;
    visible->setMinimumHeight(alto);
    if (renglon.lineas <= LineasFijas) visible->setMaximumHeight(alto);
    const int fila = grilla.rowCount();
    auto* const lado = new QVBoxLayout;
    auto* const rotulo = new QLabel(Q(Leyenda(renglon.control)));
    rotulo->setBuddy(visible);
    lado->addWidget(rotulo);
    if (renglon.actual != nullptr) lado->addWidget(EnNegrita(Texto(renglon.controlActual, *renglon.actual)));
    lado->addStretch(1);
    grilla.addLayout(lado, fila, 0);
    grilla.addWidget(visible, fila, 1, 1, -1);
    if (renglon.lineas > LineasFijas) grilla.setRowStretch(fila, 1);
}

QWidget* PartesDeFicha::ListaDeComponentes(std::string_view control, const Lista& lista,
                                           std::function<void(int)> elige)
{
    auto* const cuadro = new QWidget;
    auto* const pila = new QVBoxLayout(cuadro);
    pila->setContentsMargins(0, 0, 0, 0);
    forms::ListaParaElegir* const visible = NuevaLista(control, lista, true, std::move(elige));
    if (const QString leyenda = Q(Leyenda(control)); !leyenda.isEmpty()) {
        auto* const rotulo = new QLabel(leyenda);
        rotulo->setBuddy(visible);
        pila->addWidget(rotulo);
    } else {
        visible->setAccessibleName(windowTitle());
    }
    pila->addWidget(visible, 1);
    constexpr int Caracteres = 22;  // a name, frame and scroll bar
    cuadro->setFixedWidth(Caracteres * fontMetrics().averageCharWidth());
    return cuadro;
}

QRadioButton* PartesDeFicha::Opcion(std::string_view control, const bool& marcada,
                                    std::function<void()> elige)
{
    auto* const opcion = Nombra(new QRadioButton(Q(Leyenda(control))), control);
    AlPulsar(*opcion, std::move(elige));
    AlMostrar([opcion, &marcada] { forms::PonOpcion(*opcion, marcada); });
    return opcion;
}

QPushButton* PartesDeFicha::Boton(std::string_view control, std::function<void()> rutina)
{
    auto* const boton = Nombra(new QPushButton(Q(Leyenda(control))), control);
    boton->setAutoDefault(false);
    AlPulsar(*boton, std::move(rutina));
    return boton;
}

void PartesDeFicha::Cierre(QVBoxLayout& pila, std::function<void()> acepta)
{
    auto* const fila = new QHBoxLayout;
    fila->addStretch(1);
    QPushButton* const aceptar = Boton("OKButton", std::move(acepta));
    aceptar->setDefault(true);
    auto* const cancelar = Nombra(new QPushButton(Q(Leyenda("CancelButton"))), "CancelButton");
    cancelar->setAutoDefault(false);
    connect(cancelar, &QPushButton::clicked, this, [this] { SucesoSinRevisar([this] { AlCerrar(); }); });
    fila->addWidget(aceptar);
    fila->addWidget(cancelar);
    pila.addLayout(fila);
}

// --- showing ---

void PartesDeFicha::Muestra()
{
    for (const std::function<void()>& muestra : muestran)
        muestra();
    PonFoco();
    if (!ficha.abierta && isVisible()) done(QDialog::Accepted);
}

/// Takes the focus where the record sends it, once.
void PartesDeFicha::PonFoco()
{
    const forms::Foco foco = std::exchange(ficha.foco, {});
    if (foco.control.empty()) return;
    auto* const control = findChild<QWidget*>(Q(foco.control));
    if (control == nullptr) return;
    control->setFocus(Qt::OtherFocusReason);
    auto* const campo = qobject_cast<QLineEdit*>(control);
    if (campo != nullptr && foco.todoSeleccionado) campo->selectAll();
}

bool PartesDeFicha::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* const campo = qobject_cast<QLineEdit*>(objeto);
    if (campo != nullptr && evento->type() == QEvent::FocusIn &&
        EsEntrada(static_cast<QFocusEvent&>(*evento)))
        // Behind the press that brought the focus, which would put the cursor.
        QTimer::singleShot(0, campo, [this, campo] {
            if (!campo->hasFocus() || !ficha.abierta) return;
            const std::string control = DeQ(campo->objectName());
            forms::AlEntrar(ficha, control);
            PonFoco();
        });
    return Formulario::eventFilter(objeto, evento);
}

}  // namespace editor
