// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgUEH2_ventana.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "editor/fichas/GraficosDeFichas.h"
#include "forms/Lamina_ventana.h"
#include "forms/Textos_ventana.h"

namespace editor {

using forms::Q;

dlgUEH2_ventana::dlgUEH2_ventana(forms::Entorno& alrededor, dlgUEH2& registro, QWidget* padre)
    : Ficha_ventana(alrededor, {"dlgUEH2", TituloDlgUEH2, RotulosDlgUEH2}, registro, padre)
{
    // Made in reading order, which is the order of the Tab key.
    auto* const pila = new QVBoxLayout(this);
    auto* const cuerpo = new QHBoxLayout;
    pila->addLayout(cuerpo, 1);
    cuerpo->addWidget(
        ListaDeComponentes("lstUEHs", f.lstUEHs, [this](int linea) { lstUEHs_Click(f, entorno.s, linea); }));
    auto* const izquierda = new QVBoxLayout;
    izquierda->addWidget(MarcoDeIdentificacion());
    izquierda->addWidget(MarcoDeArea(), 1);
    izquierda->addWidget(MarcoDe("fraPropagacion", {"txtLongMax", "txtVelMedia"}));
    izquierda->addWidget(MarcoDe("fraRetencion", {"txtRetension_Z"}));
    cuerpo->addLayout(izquierda);
    auto* const derecha = new QVBoxLayout;
    derecha->addWidget(MarcoDeInfiltracion(), 1);
    derecha->addWidget(MarcoDeRecesion());
    cuerpo->addLayout(derecha, 1);
    Cierre(*pila, [this] { OKButton(f, entorno.s); });
}

QWidget* dlgUEH2_ventana::MarcoDeIdentificacion()
{
    QGroupBox* const marco = Marco("fraIdentificacion");
    auto* const grilla = new QGridLayout(marco);
    Dato(*grilla, "lblNroUEH", f.lblNroUEH);
    Dato(*grilla, "lblNombreUEH", f.lblNombreUEH);
    CampoNombre(
        *grilla, "txtNombreUEH", f.txtNombreUEH, [this] { txtNombreUEH_Cambia(f, entorno.s); },
        Sale("txtNombreUEH"));
    Renglon(*grilla, "txtReferencia", *Campo("txtReferencia", f.txtReferencia));
    return marco;
}

QWidget* dlgUEH2_ventana::MarcoDeArea()
{
    QGroupBox* const marco = Marco("fraAreaMetodo");
    auto* const grilla = new QGridLayout(marco);
    Numero(*grilla, CamposDlgUEH2, "txtArea");
    RenglonDeLista(*grilla, {"lstMetodo", f.lstMetodo, 1, "lblMetodo", &f.lblMetodo, true},
                   [this](int linea) { lstMetodo_Click(f, linea); });
    constexpr int LineasDeDestinos = 5;
    RenglonDeLista(*grilla, {"lstCauceAA", f.lstCauceAA, LineasDeDestinos},
                   [this](int linea) { lstCauceAA_Click(f, entorno.s, linea); });
    Dato(*grilla, "lblDrenaCauceAA", f.lblDrenaCauceAA);
    return marco;
}

QWidget* dlgUEH2_ventana::MarcoDe(std::string_view marco, std::initializer_list<std::string_view> numeros)
{
    QGroupBox* const grupo = Marco(marco);
    auto* const grilla = new QGridLayout(grupo);
    for (const std::string_view numero : numeros)
        Numero(*grilla, CamposDlgUEH2, numero);
    return grupo;
}

QWidget* dlgUEH2_ventana::MarcoDeInfiltracion()
{
    QGroupBox* const marco = Marco("fraInfiltracion");
    auto* const pila = new QVBoxLayout(marco);
    auto* const formula = new QHBoxLayout;
    formula->addWidget(new QLabel(Q(Leyenda("txtKostiakov_a"))));
    for (const char* const letra : {"a", "b"}) {
        const std::string_view control = letra[0] == 'a' ? "txtKostiakov_a" : "txtKostiakov_b";
        QLineEdit* const campo = NumeroSuelto(CamposDlgUEH2, control);
        auto* const rotulo = new QLabel(QStringLiteral("&%1 =").arg(QLatin1String(letra)));
        rotulo->setBuddy(campo);
        campo->setAccessibleName(QLatin1String(letra));
        campo->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
        formula->addWidget(rotulo);
        formula->addWidget(campo, 1);
        connect(campo, &QLineEdit::textEdited, this, [this] { MuestraCurva(); });
    }
    pila->addLayout(formula);
    auto* const grilla = new QGridLayout;
    QLineEdit* const inicial = Numero(*grilla, CamposDlgUEH2, "txtKostiakov_i");
    connect(inicial, &QLineEdit::textEdited, this, [this] { MuestraCurva(); });
    pila->addLayout(grilla);
    curva =
        new forms::Lamina(entorno, "CurvaInfiltracion", "Infiltración I(t)", forms::Lamina::Modo::Compacta);
    pila->addWidget(curva, 1);
    return marco;
}

QWidget* dlgUEH2_ventana::MarcoDeRecesion()
{
    QGroupBox* const marco = Marco("fraRecesion");
    auto* const grilla = new QGridLayout(marco);
    Numero(*grilla, CamposDlgUEH2, "txtQ0Recesion");
    Numero(*grilla, CamposDlgUEH2, "txtKRecesion");
    // The exponent stands raised behind the formula.
    auto* const formula = new QHBoxLayout;
    formula->setSpacing(0);
    formula->addWidget(Nombra(new QLabel(Q(Leyenda("lblFormulaRecesion"))), "lblFormulaRecesion"));
    auto* const exponente = Nombra(new QLabel(Q(Leyenda("lblExponenteRecesion"))), "lblExponenteRecesion");
    exponente->setContentsMargins(0, 0, 0, fontMetrics().height() / 2);
    formula->addWidget(exponente);
    formula->addStretch(1);
    grilla->addLayout(formula, grilla->rowCount(), 0, 1, -1);
    return marco;
}

void dlgUEH2_ventana::MuestraCurva()
{
    curva->PonTema(f.lblNombreUEH, f.lblNombreUEH);
    curva->Muestra(GraficoDe(CurvaDeCampos(f)));
}

void dlgUEH2_ventana::Muestra()
{
    PartesDeFicha::Muestra();
    MuestraCurva();
}

}  // namespace editor
