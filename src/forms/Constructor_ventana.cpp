// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Constructor_ventana.h"

#include <QKeyEvent>
#include <utility>

#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"

namespace forms {

Constructor::Constructor(Entorno& alrededor, std::span<const FilaRotulo> filas)
    : entorno(alrededor), campos(alrededor), rotulos(filas)
{
    campos.AlRevisar = [this] { Muestra(); };
}

void Constructor::Muestra()
{
    for (const std::function<void()>& muestra : muestran)
        muestra();
}

bool Constructor::AtiendeF1(const QWidget& ventana, QEvent& evento)
{
    const bool esTecla = evento.type() == QEvent::KeyPress;
    if (!esTecla && evento.type() != QEvent::ShortcutOverride) return false;
    const auto& tecla = static_cast<const QKeyEvent&>(evento);
    if (tecla.key() != Qt::Key_F1 || tecla.modifiers() != Qt::NoModifier) return false;
    evento.accept();  // of the two, the first keeps the main window's shortcut
                      // from taking the key
    if (esTecla && !tecla.isAutoRepeat())
        entorno.Atiende([&] { entorno.AbreAyuda(DeQ(ventana.objectName())); });
    return true;
}

/// Once: the record's wish is spent.
void Constructor::LlevaFoco(QWidget& ventana)
{
    const Foco suyo = foco == nullptr ? Foco{} : std::exchange(*foco, {});
    auto* const control = suyo.control.empty() ? nullptr : ventana.findChild<QWidget*>(Q(suyo.control));
    if (control == nullptr) return;
    control->setFocus(Qt::OtherFocusReason);
    auto* const campo = qobject_cast<QLineEdit*>(control);
    if (campo != nullptr && suyo.todoSeleccionado) campo->selectAll();
}

FilaRotulo Constructor::Fila(std::string_view control) const
{
    return RotuloDe(rotulos, control);
}

void Constructor::NombraWidget(QWidget& widget, std::string_view control) const
{
    const FilaRotulo fila = Fila(control);
    widget.setObjectName(Q(control));
    if (!fila.ayuda.empty()) widget.setToolTip(Q(fila.ayuda));
    if (auto* const boton = qobject_cast<QAbstractButton*>(&widget))
        boton->setText(Q(fila.leyenda));
    else
        widget.setAccessibleName(
            Q(fila.lector.empty() ? fila.leyenda : fila.lector).remove(QLatin1Char('&')).trimmed());
}

// --- fields ---

QLineEdit* Constructor::Campo(std::string_view control, std::string& texto, std::function<bool()> revisa)
{
    auto* const campo = Nombra(new QLineEdit, control);
    Refleja(*campo, texto);
    AlMostrar([this, campo, &texto] {
        const bool nuevo = campo->text() != Q(texto);
        Pon(*campo, texto);
        if (nuevo && desdeElPrincipio) campo->setCursorPosition(0);
    });
    if (revisa) campos.Agrega(*campo, std::move(revisa));
    return campo;
}

QComboBox* Constructor::CampoConLista(std::string_view control, const std::vector<std::string>& items,
                                      std::string& texto, std::function<bool()> revisa)
{
    auto* const campo = Nombra(new QComboBox, control);
    campo->setEditable(true);
    campo->setInsertPolicy(QComboBox::NoInsert);
    campo->setCompleter(nullptr);  // it would make "10" of a "1"
    Refleja(*campo, texto);
    AlMostrar([campo, &items, &texto] { Pon(*campo, items, texto); });
    if (revisa) campos.Agrega(*campo, std::move(revisa));
    return campo;
}

QCheckBox* Constructor::Casilla(std::string_view control, std::function<bool()> tildada,
                                std::function<void(bool)> pulsa)
{
    auto* const casilla = Nombra(new QCheckBox, control);
    QObject::connect(casilla, &QCheckBox::clicked, casilla,
                     [this, pulsa = std::move(pulsa)](bool estado) { Suceso([&] { pulsa(estado); }); });
    AlMostrar([casilla, tildada = std::move(tildada)] { Pon(*casilla, tildada()); });
    return casilla;
}

QRadioButton* Constructor::Opcion(std::string_view control, const bool& marcada, std::function<void()> elige)
{
    auto* const opcion = Nombra(new QRadioButton, control);
    AlPulsar(*opcion, std::move(elige));
    AlMostrar([opcion, &marcada] { PonOpcion(*opcion, marcada); });
    return opcion;
}

QRadioButton* Constructor::OpcionDe(std::string_view control, int numero, std::string_view leyenda,
                                    const int& marcada, const std::function<void(int)>& elige)
{
    auto* const opcion = Nombra(new QRadioButton, control);
    opcion->setObjectName(QStringLiteral("%1_%2").arg(Q(control)).arg(numero));
    opcion->setText(Q(leyenda));
    AlPulsar(*opcion, [elige, numero] { elige(numero); });
    AlMostrar([opcion, &marcada, numero] { PonOpcion(*opcion, marcada == numero); });
    return opcion;
}

// --- lists ---

ListaParaElegir* Constructor::Listado(std::string_view control, const std::vector<std::string>& items,
                                      const int& indice, Flechas flechas, std::function<void(int)> elige)
{
    auto* const lista = Nombra(new ListaParaElegir, control);
    lista->conFlechas = flechas == Flechas::Eligen;
    lista->AlElegir = [this, elige](int i) { Suceso([&] { elige(i); }); };
    const bool espera = flechas == Flechas::EligenAlSalir;
    if (espera)
        campos.Agrega(*lista, [lista, elige] {
            if (const int i = lista->TomaPorElegir(); i >= 0) elige(i);
            return true;
        });
    AlMostrar([lista, &items, &indice, espera] {
        if (!espera || lista->PorElegir() < 0) Pon(*lista, items, indice);
    });
    return lista;
}

QComboBox* Constructor::Desplegable(std::string_view control, const std::vector<std::string>& items,
                                    const int& indice, std::function<void(int)> elige)
{
    auto* const lista = Nombra(new QComboBox, control);
    QObject::connect(lista, &QComboBox::activated, lista,
                     [this, elige = std::move(elige)](int i) { Suceso([&] { elige(i); }); });
    AlMostrar([lista, &items, &indice] { Pon(*lista, items, indice); });
    return lista;
}

// --- buttons ---

QPushButton* Constructor::Boton(std::string_view control, std::function<void()> rutina)
{
    auto* const boton = Nombra(new QPushButton, control);
    boton->setAutoDefault(false);
    AlPulsar(*boton, std::move(rutina));
    return boton;
}

QPushButton* Constructor::BotonSinRevisar(std::string_view control, std::function<void()> rutina)
{
    auto* const boton = Nombra(new QPushButton, control);
    boton->setAutoDefault(false);
    QObject::connect(boton, &QPushButton::clicked, boton,
                     [this, rutina = std::move(rutina)] { SucesoSinRevisar(rutina); });
    return boton;
}

// --- labels ---

QLabel* Constructor::Rotulo(std::string_view control, QWidget* lleva) const
{
    auto* const rotulo = new QLabel(Q(Fila(control).leyenda));
    rotulo->setObjectName(QStringLiteral("rotulo_") + Q(control));
    rotulo->setBuddy(lleva);
    return rotulo;
}

QLabel* Constructor::Texto(std::string_view control, const std::string& texto)
{
    auto* const rotulo = new QLabel;
    rotulo->setObjectName(Q(control));
    rotulo->setToolTip(Q(Fila(control).ayuda));
    rotulo->setTextFormat(Qt::PlainText);
    AlMostrar([rotulo, &texto] { Pon(*rotulo, texto); });
    return rotulo;
}

QLabel* Constructor::Texto(std::string_view control) const
{
    QLabel* const rotulo = Rotulo(control);
    rotulo->setObjectName(Q(control));
    return rotulo;
}

Partes Constructor::Renglon(std::string_view control, QWidget* widget, std::string_view unidad) const
{
    Partes partes{Rotulo(control, widget), widget};
    const std::string aparte = UnidadAparte(Fila(control).leyenda, unidad);
    if (!aparte.empty()) partes.emplace_back(new QLabel(Q(aparte)));
    return partes;
}

Partes Constructor::Dato(std::string_view control, const std::string& texto)
{
    return {Rotulo(control), Texto(control, texto)};
}

// --- composed ---

QGroupBox* Constructor::Marco(std::string_view control, QLayout* dentro) const
{
    auto* const marco = new QGroupBox(Q(Fila(control).leyenda));
    marco->setObjectName(Q(control));
    marco->setLayout(dentro);
    return marco;
}

TablaGrilla* Constructor::Tabla(Grilla& grilla, std::string_view control)
{
    const FilaRotulo fila = Fila(control);
    auto* const tabla = new TablaGrilla(entorno, grilla, control, fila.leyenda);
    tabla->setToolTip(Q(fila.ayuda));
    AlMostrar([tabla] { tabla->Muestra(); });
    return tabla;
}

Lamina* Constructor::Curva(std::string_view control, std::function<Grafico()> grafico)
{
    auto* const curva = new Lamina(entorno, control, Fila(control).leyenda, Lamina::Modo::Compacta);
    AlMostrar([curva, grafico = std::move(grafico)] { curva->Muestra(grafico()); });
    return curva;
}

}  // namespace forms
