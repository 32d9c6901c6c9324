// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerPruebas_ventana.h"

#include <QSplitter>

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace frequency {

TallerPruebas_ventana::TallerPruebas_ventana(forms::Entorno& alrededor, dlgTaller& taller)
    : PaginaDeTaller(alrededor, taller, RotulosTallerPruebas, "TallerPruebas")
{
    tabla = new forms::TablaCuadro(entorno, m.tblPruebas, "tblPruebas", "Pruebas de la muestra");
    tabla->PonColumnas({23, 15, 8, 9, 0});  // [letters]; what to do and the source stand below
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(m, columna); }); };
    tabla->AlMoverse = [this] {
        if (!m.pruebas.empty()) Suceso([&] { tblPruebas_Mueve(m, f, tabla->Actual()); });
    };
    AlMostrar([this] { tabla->Muestra(); });
    grafico = new forms::Lamina(entorno, "lamPruebas", "Prueba de la muestra");
    DejaChico(*grafico);
    auto* const lado = new QWidget;
    auto* const pila = EnPila({{tabla, 1}, Detalle()});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    auto* const todo = EnPila({{LadoALado(lado, grafico, 9, 10), 1}});
    todo->setContentsMargins(0, 0, 0, 0);
    setLayout(todo);
}

QWidget* TallerPruebas_ventana::Detalle()
{
    std::vector<forms::Partes> filas;
    const auto fila = [&](std::string_view control, const std::string& texto) {
        QLabel* const valor = Texto(control, texto);
        valor->setWordWrap(true);
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        filas.push_back({{Rotulo(control), 0, Qt::AlignTop}, {valor, 0, Qt::AlignTop}});
    };
    fila("lblVeredicto", m.lblVeredicto);
    fila("lblRemedio", m.lblRemedio);
    fila("lblFuente", m.lblFuente);
    auto* const dentro = new QWidget;
    auto* const pila = EnPila({EnNegrita(Texto("lblPrueba", m.lblPrueba)), EnRejilla(filas, {0, 1})});
    pila->setContentsMargins(0, 0, 0, 0);
    dentro->setLayout(pila);
    return dentro;
}

void TallerPruebas_ventana::Muestra()
{
    PaginaDeTaller::Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(TemaDe(f), m.lblPrueba);
}

}  // namespace frequency
