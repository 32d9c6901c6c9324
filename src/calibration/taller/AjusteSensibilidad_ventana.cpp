// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteSensibilidad_ventana.h"

#include <QSplitter>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "calibration/EscribeSensibilidad.h"
#include "forms/Lamina_ventana.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace calibration {

AjusteSensibilidad_ventana::AjusteSensibilidad_ventana(forms::Entorno& alrededor, dlgAjuste& taller)
    : PaginaDe(alrededor, taller, RotulosAjusteSensibilidad, "AjusteSensibilidad")
{
    tabla = new forms::TablaCuadro(entorno, m.tblIndices, "tblIndices", Fila("tblIndices").leyenda);
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] { forms::PulsaEncabezado(m.tblIndices, columna); });
    };
    tabla->Adorno = [](std::size_t, int columna, int papel) {
        return papel == Qt::TextAlignmentRole && columna != 1 ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                              : QVariant();
    };
    grafico = new forms::Lamina(entorno, "lamSensibilidad", "Sensibilidad");
    DejaChico(*grafico);
    auto* const fila =
        EnFila({Elecciones(),
                {EnPila({Ordenes(), {LadoALado(tabla, SobreAvisos(grafico, m.lblAvisos), 3, 2), 1}}), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLabel* AjusteSensibilidad_ventana::Ficha(std::string_view control, const std::string& texto)
{
    QLabel* const ficha = Texto(control, texto);
    ficha->setTextFormat(Qt::RichText);
    ficha->setWordWrap(true);
    ficha->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return ficha;
}

forms::Partes AjusteSensibilidad_ventana::SoloSi(forms::Partes renglon, Vale vale)
{
    if (vale == nullptr) return renglon;
    for (const forms::Parte& parte : renglon)
        if (parte.control != nullptr) VisibleSi(parte.control, [this, vale] { return vale(f); });
    return renglon;
}

forms::Partes AjusteSensibilidad_ventana::Numero(std::string_view control, std::string& texto, Vale vale)
{
    QLineEdit* const campo =
        Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, control); });
    return SoloSi(Renglon(control, campo), vale);
}

forms::Partes AjusteSensibilidad_ventana::Lista(std::string_view control,
                                                const std::vector<std::string>& items, const int& cual,
                                                std::function<void(int)> elige, Vale vale)
{
    return SoloSi(Renglon(control, Corta(Desplegable(control, items, cual, std::move(elige)))), vale);
}

/// What is asked; it scrolls where the room is low.
QWidget* AjusteSensibilidad_ventana::Elecciones()
{
    const Vale conSemilla = [](const dlgAjuste& x) { return EsDeMorris(x) || EsDeSobol(x); };
    QGroupBox* const metodo = Marco(
        "MarcoMetodo",
        EnPila(
            {EnRejilla({Lista("cmbMetodo", m.metodos, m.metodo, [this](int i) { cmbMetodo_Click(f, i); }),
                        Numero("txtTrayectorias", m.txtTrayectorias, &EsDeMorris),
                        Numero("txtNiveles", m.txtNiveles, &EsDeMorris),
                        Lista(
                            "cmbBase", m.bases, m.base, [this](int i) { cmbBase_Click(f, i); }, &EsDeSobol),
                        Numero("txtSemilla", m.txtSemilla, conSemilla)},
                       {0, 1}),
             Ficha("lblMetodo", m.lblMetodo)}));
    QGroupBox* const medida =
        Marco("MarcoMedida",
              EnPila({EnRejilla({Lista("cmbQue", m.ques, m.que, [this](int i) { cmbQue_Click(f, i); }),
                                 Lista(
                                     "cmbPuntaje", m.puntajes, m.puntaje,
                                     [this](int i) { cmbPuntaje_Click(m, f, i); }, &EsDePuntaje),
                                 Lista("cmbComponente", m.componentes, m.componente,
                                       [this](int i) { cmbComponente_Click(m, f, i); }),
                                 Lista("cmbDeEvento", m.eventos, m.evento,
                                       [this](int i) { cmbDeEvento_Click(m, f, i); })},
                                {0, 1}),
                      VisibleSi(Ficha("lblPuntaje", m.lblPuntaje), [this] { return EsDePuntaje(f); })}));
    constexpr int Letras = 48;
    return EnColumna({metodo, medida, Hueco()}, Letras);
}

QLayout* AjusteSensibilidad_ventana::Ordenes()
{
    QPushButton* const corre =
        HabilitadoSi(Boton("cmdCorrer", [this] { Corre(); }), [this] { return !m.corriendo; });
    QLabel* const costo = VisibleSi(Texto("lblCosto", m.lblCosto), [this] { return !m.lblCosto.empty(); });
    QLabel* const estado =
        VisibleSi(EnNegrita(Texto("lblEstado", m.lblEstado)), [this] { return !m.lblEstado.empty(); });
    forms::Partes partes{corre, costo, estado};
    for (const forms::Parte& parte : Avance(
             m.avance, [this] { return corrida.EnCurso(); }, [this] { Deja(); }))
        partes.push_back(parte);
    return EnFila(partes);
}

void AjusteSensibilidad_ventana::Corre()
{
    std::optional<PedidoDeSensibilidad> pedido = Empieza(m, f);
    if (!pedido) return;
    hechas = {.clase = "sensibilidad", .ajuste = AjusteDe(f)};
    desde = f.s.Anfitrion.Reloj();
    corrida.Empieza([p = *std::move(pedido)](const study::Avance& avance, const auto& entrega) {
        if (std::optional<AnalisisDeSensibilidad> a = AnalizaSensibilidad(p.modelo, p.ajuste, 0, avance))
            entrega(*std::move(a));
    });
}

void AjusteSensibilidad_ventana::Mira(study::Vigilada<AnalisisDeSensibilidad>::Mirada& mirada)
{
    m.avance = mirada.avance;
    if (mirada.nuevo) {
        Termina(m, f, *std::move(mirada.nuevo));
        Guarda();
    }
    if (isVisible()) Muestra();
}

/// A copy, since what is on show may change while it is written.
void AjusteSensibilidad_ventana::Guarda()
{
    if (!m.analisis->reparos.empty()) return;
    const auto hallado = std::make_shared<const AnalisisDeSensibilidad>(*m.analisis);
    hechas.segundos = f.s.Anfitrion.Reloj() - desde;
    hechas.resumen = std::to_string(hallado->parametros.size()) + " parámetros, " +
                     std::to_string(hallado->corridas) + " corridas.";
    hechas.json = [hallado] { return JsonDe(*hallado); };
    f.GuardaCorridas(hechas);
}

void AjusteSensibilidad_ventana::Deja()
{
    if (corrida.Deja()) Cancela(m, f);
}

bool AjusteSensibilidad_ventana::AlEscapar()
{
    if (!corrida.EnCurso()) return false;
    Suceso([this] { Deja(); });
    return true;
}

void AjusteSensibilidad_ventana::Muestra()
{
    PaginaDeAjuste::Muestra();
    // Each index as wide as its heading, with room for its mark of order; the name takes the rest.
    constexpr int DeNumero = 5, DeLoQueSobra = 0, DeIndice = 12, Marca = 3;
    std::vector<int> letras{DeNumero, DeLoQueSobra};
    for (std::size_t k = letras.size(); k < m.tblIndices.planilla.columnas.size(); ++k) {
        const std::string& titulo = m.tblIndices.planilla.columnas[k].encabezado;
        letras.push_back(std::max(DeIndice, Marca + static_cast<int>(model::CuentaCaracteres(titulo))));
    }
    tabla->PonColumnas(std::move(letras));
    tabla->Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.tema, m.tema);
}

}  // namespace calibration
