// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgRevisar_ventana.h"

#include <QApplication>
#include <QMenu>
#include <QStyle>
#include <chrono>
#include <string>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/ImpresionTabla_ventana.h"
#include "forms/Procedencia.h"
#include "model/Siro.h"

namespace checks {

namespace {

constexpr std::chrono::milliseconds EntreMiradas{400};

/// Widths of the columns [letters]; 0: what is left over.
constexpr std::array<int, 7> Anchos{13, 6, 14, 0, 0, 0, 14};

QStyle::StandardPixmap IconoDe(Gravedad gravedad)
{
    constexpr std::array Iconos{QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                QStyle::SP_MessageBoxInformation};
    return Iconos[static_cast<std::size_t>(gravedad)];
}

}  // namespace

dlgRevisar_ventana::dlgRevisar_ventana(forms::Entorno& alrededor, dlgRevisar& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgRevisar", TituloDlgRevisar, RotulosDlgRevisar}, padre), f(registro)
{
    Constructor::Sigue(f.abierta);
    tabla = new forms::TablaCuadro(entorno, f.tblHallazgos, "tblHallazgos", TituloDlgRevisar);
    tabla->setToolTip(forms::Q(Fila("tblHallazgos").ayuda));
    tabla->PonColumnas({Anchos.begin(), Anchos.end()});
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    tabla->AlElegir = [this](std::size_t fila) {
        const Hallazgo h = f.hallazgos.at(fila);
        Suceso([&] { Va(h); });
    };
    tabla->Adorno = [this](std::size_t fila, int columna, int papel) {
        const bool icono = papel == Qt::DecorationRole && columna == 0 && fila < f.hallazgos.size();
        return icono ? QVariant(style()->standardIcon(IconoDe(f.hallazgos[fila].gravedad))) : QVariant();
    };
    QLabel* const de = Texto("lblDe", f.lblDe);
    QLabel* const hecho = VisibleSi(Texto("lblHecho", f.lblHecho), [this] { return !f.lblHecho.empty(); });
    hecho->setWordWrap(true);
    setLayout(EnPila({Encabezado(), de, {tabla, 1}, hecho, Botones()}));
    AlMostrar([this] { tabla->Muestra(); });
    tabla->AlMoverse = [this] { Constructor::Muestra(); };
    entorno.AlActivarse(*this, [this] {
        if (f.abierta) Revisa();
    });
    latido.setInterval(EntreMiradas);
    connect(&latido, &QTimer::timeout, this, [this] { Sigue(); });
}

QLayout* dlgRevisar_ventana::Encabezado()
{
    forms::Partes partes{EnNegrita(Texto("lblCuenta", f.lblCuenta)), Hueco()};
    for (std::size_t k = 0; k < f.chkGravedad.size(); ++k)
        partes.emplace_back(Casilla(
            RotulosDlgRevisar[1 + k].control, [this, k] { return f.chkGravedad[k]; },
            [this, k](bool seVe) { chkGravedad_Click(f, static_cast<Gravedad>(k), seVe); }));
    QLineEdit* const cuenca = Campo("txtCuenca", f.txtCuenca, [this] {
        const bool vale = txtCuenca_Sale(f, entorno.s);
        if (vale) Revisa();
        return vale;
    });
    cuenca->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
    partes.insert(partes.end(),
                  {Hueco(fontMetrics().averageCharWidth() * 3), Rotulo("txtCuenca", cuenca), cuenca});
    return EnFila(partes);
}

QLayout* dlgRevisar_ventana::Botones()
{
    const auto hayFila = [this] { return tabla->Actual() < f.hallazgos.size(); };
    const auto hayArreglo = [this] {
        const auto filas = tabla->Elegidas();
        return !ConArreglo(f, filas, false).empty() || !ConArreglo(f, filas, true).empty();
    };
    return EnFila({Boton("cmdRevisar", [this] { Revisa(); }),
                   HabilitadoSi(Boton("cmdIr", [this] { VaALaActual(); }), hayFila),
                   HabilitadoSi(Boton("cmdCorregir", [this] { CorrigeElegidas(); }), hayArreglo), Hueco(),
                   Boton("cmdImprimir", [this] { Imprime(); }), Boton("OKButton", [this] { OKButton(f); })});
}

void dlgRevisar_ventana::Abre()
{
    Revisa();
    Muestra();
    latido.start();
    entorno.Presenta(*this);
    tabla->setFocus();
}

void dlgRevisar_ventana::AlCerrar()
{
    latido.stop();
    OKButton(f);
}

void dlgRevisar_ventana::Revisa()
{
    RevisaTodo(f, entorno.s, DibujoSinGuardar());
}

/// What changes step by step, a slider for one, is checked once it stays as it is from one look to the next.
/// A form that is being filled in is waited for.
void dlgRevisar_ventana::Sigue()
{
    if (!f.abierta) return latido.stop();
    if (!isVisible() || QApplication::activeModalWidget() != nullptr || entorno.Terminando()) return;
    const std::string ahora = EstadoEnMemoria(entorno.s, DibujoSinGuardar());
    const bool quieto = std::exchange(ultimo, ahora) == ahora;
    if (ahora == f.estado || !quieto) return;
    entorno.Atiende([this] { Revisa(); });
    Muestra();
}

void dlgRevisar_ventana::VaALaActual()
{
    if (tabla->Actual() < f.hallazgos.size()) tabla->AlElegir(tabla->Actual());
}

void dlgRevisar_ventana::CorrigeElegidas()
{
    const auto filas = tabla->Elegidas();
    const auto enElDibujo = ConArreglo(f, filas, false), deTabla = ConArreglo(f, filas, true);
    if (!enElDibujo.empty()) {
        const int hechos = Corrige(enElDibujo);
        Revisa();
        AlCorregir(f, hechos);
    } else if (!deTabla.empty()) {
        Ordena(deTabla.front());
        Revisa();
    }
}

void dlgRevisar_ventana::Imprime()
{
    forms::ImprimePlanilla(entorno, forms::NombreDeArchivo({.titulo = std::string(TituloDlgRevisar)}),
                           forms::ALaVista(f.tblHallazgos));
}

}  // namespace checks
