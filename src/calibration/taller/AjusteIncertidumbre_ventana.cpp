// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteIncertidumbre_ventana.h"

#include <QSplitter>
#include <memory>
#include <optional>
#include <utility>

#include "calibration/InformeDeConjunto.h"
#include "forms/Lamina_ventana.h"
#include "model/Siro.h"

namespace calibration {

AjusteIncertidumbre_ventana::AjusteIncertidumbre_ventana(forms::Entorno& alrededor, dlgAjuste& taller)
    : PaginaDe(alrededor, taller, RotulosAjusteIncertidumbre, "AjusteIncertidumbre")
{
    tabla = new forms::TablaCuadro(entorno, m.tblCuantiles, "tblCuantiles", Fila("tblCuantiles").leyenda);
    tabla->PonColumnas({10, 13, 12, 15, 11});
    auto* const fila =
        EnFila({Elecciones(), {EnPila({Ordenes(), {LadoALado(tabla, Derecha(), 7, 8), 1}}), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLineEdit* AjusteIncertidumbre_ventana::CampoDeNumero(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, control); });
}

QComboBox* AjusteIncertidumbre_ventana::Lista(std::string_view control, const std::vector<std::string>& items,
                                              const int& cual, std::function<void(int)> elige)
{
    return Corta(Desplegable(control, items, cual, std::move(elige)));
}

/// What is asked; it scrolls where the room is low.
QWidget* AjusteIncertidumbre_ventana::Elecciones()
{
    QGroupBox* const sorteo = Marco(
        "MarcoSorteo", EnRejilla({Renglon("txtMiembros", CampoDeNumero("txtMiembros", m.txtMiembros)),
                                  Renglon("cmbMuestreo", Lista("cmbMuestreo", m.muestreos, m.muestreo,
                                                               [this](int i) { cmbMuestreo_Click(f, i); })),
                                  Renglon("txtSemilla", CampoDeNumero("txtSemilla", m.txtSemilla))},
                                 {0, 1}));
    QGroupBox* const mirada =
        Marco("MarcoMirada",
              EnRejilla({Renglon("cmbDeEvento", Lista("cmbDeEvento", m.eventos, m.evento,
                                                      [this](int i) { cmbDeEvento_Click(m, f, i); })),
                         Renglon("cmbComponente", Lista("cmbComponente", m.componentes, m.componente,
                                                        [this](int i) { cmbComponente_Click(m, f, i); }))},
                        {0, 1}));
    QComboBox* const puntaje =
        Lista("cmbPuntaje", m.puntajes, m.puntaje, [this](int i) { cmbPuntaje_Click(f, i); });
    QLineEdit* const umbral = CampoDeNumero("txtUmbral", m.txtUmbral);
    for (QWidget* const control : {static_cast<QWidget*>(puntaje), static_cast<QWidget*>(umbral)})
        HabilitadoSi(control, [this] { return m.chkGlue; });
    QGroupBox* const glue =
        Marco("MarcoGlue",
              EnPila({Casilla(
                          "chkGlue", [this] { return m.chkGlue; },
                          [this](bool tildada) { chkGlue_Click(f, tildada); }),
                      EnRejilla({Renglon("cmbPuntaje", puntaje), Renglon("txtUmbral", umbral)}, {0, 1})}));
    constexpr int Letras = 48;
    return EnColumna({sorteo, mirada, glue, Hueco()}, Letras);
}

QLayout* AjusteIncertidumbre_ventana::Ordenes()
{
    QPushButton* const corre =
        HabilitadoSi(Boton("cmdCorrer", [this] { Corre(); }), [this] { return !m.corriendo; });
    QLabel* const estado =
        VisibleSi(EnNegrita(Texto("lblEstado", m.lblEstado)), [this] { return !m.lblEstado.empty(); });
    forms::Partes partes{corre, estado};
    for (const forms::Parte& parte : Avance(
             m.avance, [this] { return corrida.EnCurso(); }, [this] { Deja(); }))
        partes.push_back(parte);
    return EnFila(partes);
}

QWidget* AjusteIncertidumbre_ventana::Derecha()
{
    QComboBox* const cual =
        Lista("cmbGrafico", m.graficos, m.grafico, [this](int i) { cmbGrafico_Click(m, i); });
    QComboBox* const medida =
        Lista("cmbMedida", m.medidas, m.medida, [this](int i) { cmbMedida_Click(f, i); });
    const auto deMedida = [this] { return m.grafico == 1; };
    grafico = new forms::Lamina(entorno, "lamIncertidumbre", "Incertidumbre");
    DejaChico(*grafico);
    auto* const lado = new QWidget;
    auto* const pila =
        EnPila({EnFila({Rotulo("cmbGrafico", cual), cual, VisibleSi(Rotulo("cmbMedida", medida), deMedida),
                        VisibleSi(medida, deMedida), Hueco()}),
                {SobreAvisos(grafico, m.lblAvisos), 1}});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

void AjusteIncertidumbre_ventana::Corre()
{
    std::optional<PedidoDeIncertidumbre> pedido = Empieza(m, f);
    if (!pedido) return;
    hechas = {.clase = "conjunto", .ajuste = AjusteDe(f)};
    desde = f.s.Anfitrion.Reloj();
    enCurso = std::make_shared<const PedidoDeIncertidumbre>(*std::move(pedido));
    corrida.Empieza([suyo = enCurso](const study::Avance& avance, const auto& entrega) {
        if (std::optional<Conjunto> c = CorreConjunto(*suyo, avance)) entrega(*std::move(c));
    });
}

void AjusteIncertidumbre_ventana::Mira(study::Vigilada<Conjunto>::Mirada& mirada)
{
    m.avance = mirada.avance;
    if (mirada.nuevo) {
        Termina(m, f, *std::move(mirada.nuevo));
        Guarda();
    }
    if (isVisible()) Muestra();
}

/// A copy, since what is on show may change while it is written.
void AjusteIncertidumbre_ventana::Guarda()
{
    const auto hallado = std::make_shared<const Conjunto>(*m.conjunto);
    hechas.segundos = f.s.Anfitrion.Reloj() - desde;
    hechas.resumen = std::to_string(hallado->miembros) + " miembros, " + hallado->componente + ".";
    hechas.json = [pedido = enCurso, hallado, proyecto = ProyectoDe(f).Proyecto.NombreProyecto] {
        return JsonDe(EncabezadoDe(proyecto, *pedido), *hallado);
    };
    f.GuardaCorridas(hechas);
}

void AjusteIncertidumbre_ventana::Deja()
{
    if (corrida.Deja()) Cancela(m, f);
}

bool AjusteIncertidumbre_ventana::AlEscapar()
{
    if (!corrida.EnCurso()) return false;
    Suceso([this] { Deja(); });
    return true;
}

void AjusteIncertidumbre_ventana::Muestra()
{
    PaginaDeAjuste::Muestra();
    tabla->Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.temaDelConjunto, m.temaDelConjunto);
}

}  // namespace calibration
