// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/Ficha_ventana.h"

#include <QFocusEvent>
#include <QTimer>
#include <utility>

#include "forms/Apunte_ventana.h"
#include "model/Avisos.h"

namespace editor {

using forms::ListaParaElegir;
using forms::Partes;
using forms::Q;

namespace {

/// The user's own ways into a field; the window or a menu that comes back isn't one.
bool EsEntrada(const QFocusEvent& evento)
{
    return evento.reason() == Qt::MouseFocusReason || evento.reason() == Qt::TabFocusReason ||
           evento.reason() == Qt::BacktabFocusReason || evento.reason() == Qt::ShortcutFocusReason;
}

constexpr int LineasFijas = 3;  ///< a list of so few lines doesn't grow with the window

}  // namespace

PartesDeFicha::PartesDeFicha(forms::Entorno& alrededor, const forms::DescripcionDeVentana& descripcion,
                             Ficha& registro, QWidget* padre)
    : Formulario(alrededor, descripcion, padre), ficha(registro)
{
    desdeElPrincipio = true;
    Sigue(ficha.abierta, &ficha.foco);
    porApuntar.setSingleShot(true);
    connect(&porApuntar, &QTimer::timeout, this, [this] { PonApuntes(); });
}

// --- parts ---

Partes PartesDeFicha::Dato(std::string_view control, const std::string& texto)
{
    return {Rotulo(control), EnNegrita(Texto(control, texto))};
}

Partes PartesDeFicha::CampoNombre(std::string_view control, std::string& texto, std::function<void()> cambia,
                                  std::function<bool()> revisa)
{
    auto* const campo = Nombra(new QLineEdit, control);
    AlMostrar([campo, &texto] { forms::Pon(*campo, texto); });
    campos.Agrega(*campo, std::move(revisa));
    connect(campo, &QLineEdit::textEdited, this, [this, campo, &texto, cambia](const QString& escrito) {
        const int cursor = campo->cursorPosition();
        entorno.Atiende([&] {
            texto = forms::DeQ(escrito);
            cambia();
        });
        if (entorno.Terminando()) return;
        const QString nuevo = Q(texto);
        forms::Pon(*campo, texto);
        // What was put in front moves the cursor on.
        const auto delante = nuevo.endsWith(escrito) ? nuevo.size() - escrito.size() : 0;
        campo->setCursorPosition(cursor + static_cast<int>(delante));
        Muestra();
    });
    return Renglon(control, campo);
}

QLineEdit* PartesDeFicha::CampoNumero(std::string_view control, std::string& texto,
                                      std::function<bool()> revisa)
{
    QLineEdit* const campo = Campo(control, texto, std::move(revisa));
    campo->installEventFilter(this);
    return campo;
}

Partes PartesDeFicha::RenglonDeLista(const DescripcionLista& d, std::function<void(int)> elige)
{
    ListaParaElegir* const lista =
        Listado(d.control, d.lista.items, d.lista.indice, d.flechas, std::move(elige));
    const int alto = d.lineas * (lista->fontMetrics().height() + 2) + 2 * lista->frameWidth() + 2;
    lista->setMinimumHeight(alto);
    if (d.lineas <= LineasFijas) lista->setMaximumHeight(alto);
    Partes lado{Rotulo(d.control, lista)};
    if (d.actual != nullptr) lado.emplace_back(EnNegrita(Texto(d.controlActual, *d.actual)));
    lado.push_back(Hueco());
    return {EnPila(lado), {lista, d.lineas > LineasFijas ? 1 : 0}};
}

QWidget* PartesDeFicha::ListaDeComponentes(std::string_view control, const Lista& lista,
                                           std::function<void(int)> elige)
{
    ListaParaElegir* const visible =
        Listado(control, lista.items, lista.indice, forms::Flechas::Eligen, std::move(elige));
    Partes partes{{visible, 1}};
    if (Fila(control).leyenda.empty())
        visible->setAccessibleName(windowTitle());
    else
        partes.insert(partes.begin(), Rotulo(control, visible));
    auto* const cuadro = new QWidget;
    cuadro->setLayout(EnPila(partes));
    cuadro->layout()->setContentsMargins(0, 0, 0, 0);
    constexpr int Caracteres = 22;  // a name, frame and scroll bar
    cuadro->setFixedWidth(Caracteres * fontMetrics().averageCharWidth());
    return cuadro;
}

void PartesDeFicha::Dispone(const Partes& cuerpo, std::function<void()> acepta)
{
    QPushButton* const aceptar = Boton("OKButton", std::move(acepta));
    aceptar->setDefault(true);
    setLayout(EnPila({{EnFila(cuerpo), 1},
                      EnFila({Hueco(), aceptar, BotonSinRevisar("CancelButton", [this] { AlCerrar(); })})}));
    for (const QLineEdit* const campo : findChildren<QLineEdit*>())
        connect(campo, &QLineEdit::textEdited, &porApuntar, qOverload<>(&QTimer::start));
}

// --- what is said of the fields ---

Partes PartesDeFicha::LineaDeApunte(std::string_view control, int lineas, std::function<std::string()> texto)
{
    auto* const linea = new forms::Apunte(lineas);
    linea->setObjectName(QStringLiteral("apunte_") + Q(control));
    apuntes.emplace_back([linea, texto = std::move(texto)] {
        std::string dicho;
        model::Sentencia([&] { dicho = texto(); });
        linea->Pon(Q(dicho));
    });
    AlMostrar(apuntes.back());
    return {linea};
}

void PartesDeFicha::PonApuntes()
{
    for (const std::function<void()>& pone : apuntes)
        pone();
}

// --- focus ---

bool PartesDeFicha::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* const campo = qobject_cast<QLineEdit*>(objeto);
    if (campo != nullptr && evento->type() == QEvent::FocusIn &&
        EsEntrada(static_cast<QFocusEvent&>(*evento)))
        // Behind the press that brought the focus, which would put the cursor.
        QTimer::singleShot(0, campo, [this, campo] {
            if (campo->hasFocus() && ficha.abierta) campo->selectAll();
        });
    return Formulario::eventFilter(objeto, evento);
}

}  // namespace editor
