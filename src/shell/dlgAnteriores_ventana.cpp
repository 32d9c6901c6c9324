// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgAnteriores_ventana.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "editor/Historia.h"
#include "editor/lienzo/VistaDeRed_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "shell/ComparaVersiones.h"

namespace shell {

namespace {

constexpr int LetrasDeFecha = 24, LetrasDeLugar = 24, LetrasDeCampo = 18;

/// The network of a version; nothing where it has none that can be read.
std::optional<editor::RedGuardada> RedDe(const model::VersionAnterior& version)
{
    editor::Historia historia;
    if (!version.archivos.empty())
        model::Sentencia([&] { editor::EmpiezaHistoria(historia, {}, ProyectoDe(version).Red, {}); });
    return historia.presente;
}

}  // namespace

dlgAnteriores_ventana::dlgAnteriores_ventana(forms::Entorno& alrededor, dlgAnteriores& registro,
                                             const model::Anteriores& dondeEstan, QWidget* padre)
    : Formulario(alrededor, {"dlgAnteriores", TituloDlgAnteriores, RotulosDlgAnteriores}, padre),
      f(registro),
      anteriores(dondeEstan)
{
    Sigue(f.abierta);
    PonTablas();
    entonces = new editor::VistaDeRed;
    ahora = new editor::VistaDeRed;
    AlMostrar([this, puestas = std::array<model::VersionAnterior, 2>{}]() mutable {
        const std::array<model::VersionAnterior, 2> nuevas{
            f.Elegida() == nullptr ? model::VersionAnterior{} : f.Elegida()->version, f.ahora.version};
        for (std::size_t i = 0; i < nuevas.size(); ++i)
            if (nuevas[i] != puestas[i]) (i == 0 ? entonces : ahora)->Muestra(RedDe(nuevas[i]));
        puestas = nuevas;
    });
    QLabel* const queHacer = Texto("lblQueHacer", f.lblQueHacer);
    queHacer->setWordWrap(true);
    VisibleSi(queHacer, [this] { return !f.lblQueHacer.empty(); });
    setLayout(EnPila({Arriba(), {versiones, 2}, queHacer, {Abajo(), 3}, Botones()}));
    constexpr int Ancho = 82, Alto = 42;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
}

void dlgAnteriores_ventana::PonTablas()
{
    const auto tabla = [this](std::string_view control, forms::Cuadro& cuadro, std::vector<int> letras) {
        auto* const una = new forms::TablaCuadro(entorno, cuadro, control, Fila(control).leyenda);
        una->setToolTip(forms::Q(Fila(control).ayuda));
        una->PonColumnas(std::move(letras));
        AlMostrar([una] { una->Muestra(); });
        return una;
    };
    versiones = tabla("tblVersiones", f.tblVersiones, {LetrasDeFecha, 0, 0});
    versiones->setSelectionMode(QAbstractItemView::SingleSelection);
    versiones->AlMoverse = [this] {
        if (versiones->Actual() != f.elegida) Suceso([this] { Elige(f, versiones->Actual()); });
    };
    diferencias = tabla("tblDiferencias", f.tblDiferencias, {LetrasDeLugar, LetrasDeCampo, 0, 0});
    diferencias->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] { forms::PulsaEncabezado(f.tblDiferencias, columna); });
    };
    diferencias->DaPlanilla = [this] { return ComoPlanilla(f); };
}

QLayout* dlgAnteriores_ventana::Arriba()
{
    QComboBox* const proyecto =
        Desplegable("cmbProyecto", f.cmbProyecto, [this] { cmbProyecto_Click(f, anteriores); });
    return EnRejilla({{Rotulo("cmbProyecto", proyecto), proyecto}}, {0, 1});
}

QLayout* dlgAnteriores_ventana::Dibujo(std::string_view control, editor::VistaDeRed& red) const
{
    red.setObjectName(QStringLiteral("red_") + forms::Q(control));
    red.setAccessibleName(forms::Q(Fila(control).leyenda));
    return EnPila({Rotulo(control), {&red, 1}});
}

QLayout* dlgAnteriores_ventana::Abajo()
{
    QComboBox* const contra = Desplegable("cmbContra", f.cmbContra, [this] { Elige(f, f.elegida); });
    QLayout* const lista = EnPila({EnFila({Rotulo("cmbContra", contra), contra, Hueco()}), {diferencias, 1}});
    return EnFila({{lista, 2}, {Dibujo("lblEntonces", *entonces), 1}, {Dibujo("lblAhora", *ahora), 1}});
}

QLayout* dlgAnteriores_ventana::Botones()
{
    const auto hay = [this] { return f.Elegida() != nullptr; };
    return EnFila({HabilitadoSi(Boton("cmdTraer", [this] { Trae(); }), hay),
                   HabilitadoSi(Boton("cmdAparte", [this] { cmdAparte(f, entorno.s, anteriores); }), hay),
                   HabilitadoSi(Boton("cmdCopiar", [this] { Copia(); }),
                                [this] { return !f.tblDiferencias.planilla.filas.empty(); }),
                   Hueco(), Boton("OKButton", [this] { OKButton(f); })});
}

void dlgAnteriores_ventana::Abre()
{
    shell::Abre(f, entorno.s, anteriores);
    Muestra();
    versiones->setFocus();
    if (!f.fichas.empty()) versiones->selectRow(0);
    entorno.Ejecuta(*this);
}

void dlgAnteriores_ventana::AlCerrar()
{
    OKButton(f);
    Muestra();
}

void dlgAnteriores_ventana::Trae()
{
    if (!cmdTraer(f, entorno.s, anteriores)) return;
    TrasTraer();
    if (!f.fichas.empty()) versiones->selectRow(0);
}

void dlgAnteriores_ventana::Copia()
{
    QGuiApplication::clipboard()->setText(
        forms::Q(forms::ComoTexto(ComoPlanilla(f), forms::SignoElegido(entorno))));
}

}  // namespace shell
