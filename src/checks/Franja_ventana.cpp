// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Franja_ventana.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "forms/Textos_ventana.h"
#include "model/Siro.h"

namespace checks {

using forms::Q;

namespace {

constexpr char Aspecto[] =
    "#Franja { background: #fff4ce; border: 1px solid #b88a00; } #Franja QLabel { color: #3d2e00; }";
constexpr int Margen = 4;

}  // namespace

Franja::Franja(forms::Entorno& alrededor, Alcance unAlcance)
    : DeResultados([&alrededor] { return SelloDe(alrededor.s); }),
      entorno(alrededor),
      alcance(unAlcance),
      texto(new QLabel),
      boton(new QPushButton(QStringLiteral("Act&ualizar")))
{
    setObjectName(QStringLiteral("Franja"));
    setStyleSheet(QLatin1String(Aspecto));
    texto->setObjectName(QStringLiteral("lblFranja"));
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    boton->setObjectName(QStringLiteral("cmdFranja"));
    boton->setAutoDefault(false);
    boton->setFocusPolicy(Qt::NoFocus);  // as long as the strip is hidden
    connect(boton, &QPushButton::clicked, this, [this] { Pulsa(); });
    auto* const fila = new QHBoxLayout(this);
    fila->setContentsMargins(2 * Margen, Margen, Margen, Margen);
    fila->addWidget(texto, 1);
    fila->addWidget(boton);
    hide();
    entorno.AlTerminarSuceso(*this, [this] { Refresca(); });
}

void Franja::Toma(const Sello& sello)
{
    mostrado = sello;
    Refresca();
}

void Franja::Sigue(int llenados)
{
    if (llenados == vistos) return;
    vistos = llenados;
    Toma();
}

void Franja::Suelta()
{
    mostrado.reset();
    Refresca();
}

std::string Franja::Impedimento(const Sello& ahora) const
{
    if (alcance == Alcance::Serie && !ahora.serie) return "La tormenta en mano no es una serie";
    if (alcance == Alcance::Corrida && ahora.serie) return "La tormenta en mano es una serie";
    return {};
}

void Franja::Refresca()
{
    const bool aLaVista = parentWidget() != nullptr && parentWidget()->isVisible();
    const auto oculta = [this] {
        boton->setFocusPolicy(Qt::NoFocus);
        hide();
    };
    if (!mostrado || !Actualiza) return oculta();
    if (!aLaVista) return;  // looked at again when the window has come up
    const Sello ahora = SelloDe(entorno.s);
    const std::string difiere = QueDifiere(*mostrado, ahora, alcance);
    if (difiere.empty()) return oculta();
    texto->setText(Q("De una corrida anterior: " + difiere));
    const std::string impedimento = Impedimento(ahora);
    boton->setEnabled(impedimento.empty());
    boton->setToolTip(Q(impedimento.empty() ? "Vuelve a calcular lo que muestra esta ventana" : impedimento));
    boton->setFocusPolicy(Qt::StrongFocus);
    show();
}

void Franja::Pulsa()
{
    entorno.Atiende([this] {
        const bool deOtraCorrida = !QueDifiere(DeResultados(), SelloDe(entorno.s), alcance).empty();
        if (alcance != Alcance::Tormenta && alcance != Alcance::Red && deOtraCorrida) Corre();
        Actualiza();
    });
}

}  // namespace checks
