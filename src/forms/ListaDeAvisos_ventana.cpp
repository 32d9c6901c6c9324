// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ListaDeAvisos_ventana.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace forms {
namespace {

constexpr int LetrasDeAncho = 96;
constexpr int RenglonesDeAlto = 20;

/// How many there are, equal ones counted each.
int Cuenta(const std::vector<Recogido>& recogidos)
{
    int cuenta = 0;
    for (const Recogido& r : recogidos)
        cuenta += r.veces;
    return cuenta;
}

}  // namespace

ListaDeAvisos::ListaDeAvisos(Entorno& alrededor, const std::vector<Recogido>& recogidos, QWidget* padre)
    : Formulario(alrededor, {"ListaDeAvisos"}, padre), texto(ComoTexto(recogidos))
{
    setWindowTitle(QStringLiteral("Mensajes de la orden"));
    auto* const pila = new QVBoxLayout(this);
    const int cuenta = Cuenta(recogidos);
    auto* const rotulo =
        new QLabel(cuenta == 1 ? QStringLiteral("La orden dio otro &mensaje:")
                               : QStringLiteral("La orden dio otros %1 &mensajes:").arg(cuenta));
    auto* const lista = new QPlainTextEdit(Q(texto).trimmed());
    lista->setObjectName(QStringLiteral("Mensajes"));
    lista->setReadOnly(true);
    lista->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lista->setTabChangesFocus(true);
    rotulo->setBuddy(lista);
    pila->addWidget(rotulo);
    pila->addWidget(lista, 1);

    auto* const botones = new QDialogButtonBox;
    const auto boton = [&](const char* leyenda, const char* nombre, QDialogButtonBox::ButtonRole papel) {
        QPushButton* const nuevo = botones->addButton(QString::fromUtf8(leyenda), papel);
        nuevo->setObjectName(QString::fromUtf8(nombre));
        return nuevo;
    };
    QPushButton* const acepta = boton("&Aceptar", "cmdAceptar", QDialogButtonBox::AcceptRole);
    acepta->setDefault(true);
    AlPulsar(*acepta, [this] { accept(); });
    AlPulsar(*boton("&Copiar", "cmdCopiar", QDialogButtonBox::ActionRole),
             [this] { QGuiApplication::clipboard()->setText(Q(texto)); });
    AlPulsar(*boton("&Guardar...", "cmdGuardar", QDialogButtonBox::ActionRole), [this] { Guarda(); });
    pila->addWidget(botones);
    resize(fontMetrics().averageCharWidth() * LetrasDeAncho, fontMetrics().height() * RenglonesDeAlto);
    acepta->setFocus();
}

void ListaDeAvisos::Guarda()
{
    const model::Siro& s = entorno.s;
    const std::string ruta = s.Anfitrion.EligeDestino("Guardar los mensajes", "Texto |*.txt", "Mensajes.txt");
    if (ruta.empty()) return;
    model::Sentencia([&] { s.Disco.Escribe(ruta, texto); }, model::AvisaArchivo(s));
}

}  // namespace forms
