// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgRecuperar_ventana.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <optional>

#include "editor/lienzo/VistaDeRed_ventana.h"

namespace shell {

namespace {

constexpr int RenglonesDeLista = 4, RenglonesEscritos = 8;

}  // namespace

dlgRecuperar_ventana::dlgRecuperar_ventana(forms::Entorno& alrededor, dlgRecuperar& registro, QWidget* padre)
    : Formulario(alrededor, {"dlgRecuperar", TituloDlgRecuperar, RotulosDlgRecuperar}, padre), f(registro)
{
    Sigue(f.abierta);
    auto* const lista = Listado("lstTrabajos", f.lstTrabajos, f.elegido, forms::Flechas::Eligen,
                                [this](int linea) { lstTrabajos_Click(f, linea); });
    lista->setMaximumHeight(fontMetrics().lineSpacing() * RenglonesDeLista);
    QPushButton* const recupera =
        HabilitadoSi(Boton("OKButton", [this] { OKButton(f); }), [this] { return f.SePuede(); });
    recupera->setDefault(true);
    setLayout(EnPila({Rotulo("lstTrabajos", lista),
                      lista,
                      Datos(),
                      {Vistas(), 1},
                      Escrito(),
                      EnFila({Boton("cmdDescartar", [this] { cmdDescartar(f, entorno.s); }), Hueco(),
                              recupera, BotonSinRevisar("CancelButton", [this] { CancelButton(f); })})}));
}

QLayout* dlgRecuperar_ventana::Datos()
{
    const auto dato = [this](std::string_view control, const std::string& texto) {
        QLabel* const valor = Texto(control, texto);
        valor->setWordWrap(true);
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return forms::Partes{{Rotulo(control), 0, Qt::AlignTop}, {valor, 0, Qt::AlignTop}};
    };
    return EnRejilla(
        {dato("lblProyecto", f.lblProyecto), dato("lblCuando", f.lblCuando), dato("lblRed", f.lblRed),
         dato("lblFormas", f.lblFormas), dato("lblArchivos", f.lblArchivos)},
        {0, 1});
}

QLayout* dlgRecuperar_ventana::Vistas()
{
    const auto vista = [this](std::string_view control,
                              std::optional<editor::RedGuardada> TrabajoHallado::*cual) {
        auto* const dibujo = Nombra(new editor::VistaDeRed, control);
        AlMostrar([this, dibujo, cual] {
            const TrabajoHallado* const t = f.EnMano();
            dibujo->setVisible(t != nullptr && t->red);
            dibujo->Muestra(t == nullptr ? std::optional<editor::RedGuardada>{} : t->*cual);
        });
        QLabel* const rotulo = EnNegrita(Rotulo(control));
        VisibleSi(rotulo, [this] { return f.EnMano() != nullptr && f.EnMano()->red; });
        return EnPila({rotulo, {dibujo, 1}});
    };
    return EnFila({{vista("VistaGuardada", &TrabajoHallado::guardada), 1},
                   {vista("VistaHallada", &TrabajoHallado::red), 1}});
}

QWidget* dlgRecuperar_ventana::Escrito()
{
    auto* const parte = new QWidget;
    auto* const texto = Nombra(new QPlainTextEdit, "txtFormas");
    texto->setReadOnly(true);
    texto->setMaximumHeight(fontMetrics().lineSpacing() * RenglonesEscritos);
    AlMostrar([this, texto, parte] {
        parte->setVisible(!f.txtFormas.empty());
        if (const QString nuevo = forms::Q(f.txtFormas); texto->toPlainText() != nuevo)
            texto->setPlainText(nuevo);
    });
    QPushButton* const copia =
        Boton("cmdCopiar", [this] { QGuiApplication::clipboard()->setText(forms::Q(f.txtFormas)); });
    QLayout* const pila = EnPila({EnFila({Rotulo("txtFormas", texto), Hueco(), copia}), texto});
    pila->setContentsMargins(0, 0, 0, 0);
    parte->setLayout(pila);
    return parte;
}

void dlgRecuperar_ventana::Abre()
{
    Muestra();
    entorno.Ejecuta(*this);
}

void dlgRecuperar_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

}  // namespace shell
