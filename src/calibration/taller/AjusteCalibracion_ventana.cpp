// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteCalibracion_ventana.h"

#include <QSplitter>
#include <QTabWidget>
#include <memory>
#include <optional>
#include <utility>

#include "calibration/EscribeCalibracion.h"
#include "forms/Lamina_ventana.h"
#include "forms/Planilla_ventana.h"
#include "model/Numeros.h"
#include "model/Siro.h"

namespace calibration {

AjusteCalibracion_ventana::AjusteCalibracion_ventana(forms::Entorno& alrededor, dlgAjuste& taller)
    : PaginaDe(alrededor, taller, RotulosAjusteCalibracion, "AjusteCalibracion")
{
    auto* const fila =
        EnFila({Elecciones(), {EnPila({Ordenes(), {LadoALado(Tablas(), Derecha(), 3, 2), 1}}), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLineEdit* AjusteCalibracion_ventana::CampoDeNumero(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, control); });
}

QComboBox* AjusteCalibracion_ventana::Lista(std::string_view control, const std::vector<std::string>& items,
                                            const int& cual, std::function<void(int)> elige)
{
    return Corta(Desplegable(control, items, cual, std::move(elige)));
}

/// What is asked; it scrolls where the room is low.
QWidget* AjusteCalibracion_ventana::Elecciones()
{
    QLineEdit* const complejos =
        HabilitadoSi(CampoDeNumero("txtComplejos", m.txtComplejos), [this] { return HayComplejos(m); });
    QGroupBox* const busqueda =
        Marco("MarcoBusqueda",
              EnRejilla({Renglon("cmbMetodo", Lista("cmbMetodo", m.metodos, m.metodo,
                                                    [this](int i) { cmbMetodoDeBusqueda_Click(f, i); })),
                         Renglon("cmbPuntaje", Lista("cmbPuntaje", m.puntajes, m.puntaje,
                                                     [this](int i) { cmbPuntajeDeBusqueda_Click(f, i); })),
                         Renglon("txtCorridas", CampoDeNumero("txtCorridas", m.txtCorridas)),
                         Renglon("txtComplejos", complejos),
                         Renglon("txtSemilla", CampoDeNumero("txtSemilla", m.txtSemilla)),
                         Renglon("txtCercania", CampoDeNumero("txtCercania", m.txtCercania))},
                        {0, 1}));
    constexpr int Letras = 48;
    return EnColumna({busqueda, Hueco()}, Letras);
}

QLayout* AjusteCalibracion_ventana::Ordenes()
{
    QPushButton* const busca =
        HabilitadoSi(Boton("cmdBuscar", [this] { Busca(); }), [this] { return !m.corriendo; });
    QPushButton* const aplica = HabilitadoSi(Boton("cmdAplicar", [this] { cmdAplicar(m, f); }),
                                             [this] { return SePuedeAplicar(m, f); });
    QPushButton* const guarda = HabilitadoSi(
        Boton("cmdGuardar",
              [this] {
                  forms::GuardaCsv(entorno, m.tema + " corridas", [this] { return PlanillaDeCorridas(m); });
              }),
        [this] { return m.calibrado && !m.corriendo; });
    QLabel* const estado =
        VisibleSi(EnNegrita(Texto("lblEstado", m.lblEstado)), [this] { return !m.lblEstado.empty(); });
    forms::Partes partes{busca, aplica, guarda, estado};
    for (const forms::Parte& parte : Avance(
             m.avance, [this] { return corrida.EnCurso(); }, [this] { corrida.Pide(); }))
        partes.push_back(parte);
    return EnFila(partes);
}

QWidget* AjusteCalibracion_ventana::Tablas()
{
    fichas = Nombra(new QTabWidget, "fichas");
    fichas->setDocumentMode(true);
    fichas->addTab(TablaDe(m.tblParametros, "tblParametros", {25, 7, 8, 10, 14, 10, 22}),
                   forms::Q(FichasDeCalibracion[0]));
    fichas->addTab(TablaDe(m.tblPuntajes, "tblPuntajes", {14, 12, 12, 8, 9, 40}),
                   forms::Q(FichasDeCalibracion[1]));
    connect(fichas, &QTabWidget::currentChanged, this, [this](int i) { Suceso([&] { m.ficha = i; }); });
    return fichas;
}

QWidget* AjusteCalibracion_ventana::Derecha()
{
    QComboBox* const cual =
        Lista("cmbGrafico", m.graficos, m.grafico, [this](int i) { cmbGrafico_Click(m, f, i); });
    grafico = new forms::Lamina(entorno, "lamCalibracion", "Calibración", forms::Lamina::Modo::Compacta);
    DejaChico(*grafico);
    auto* const lado = new QWidget;
    auto* const pila =
        EnPila({EnFila({Rotulo("cmbGrafico", cual), cual, Hueco()}), {SobreAvisos(grafico, m.lblAvisos), 1}});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

void AjusteCalibracion_ventana::Busca()
{
    const auto pedido = Empieza(m, f);
    if (!pedido) return;
    hechas = {.clase = "ajuste", .ajuste = AjusteDe(f)};
    desde = f.s.Anfitrion.Reloj();
    corrida.Empieza([pedido](const study::Avance& avance, const auto& entrega) {
        auto c = Calibra(*pedido, avance, [&](const VistaDeCalibracion& vista) { entrega({vista, {}}); });
        if (c) entrega({{}, std::move(c)});
    });
}

void AjusteCalibracion_ventana::Mira(study::Vigilada<EntregaDeCalibracion>::Mirada& mirada)
{
    m.avance = mirada.avance;
    if (mirada.nuevo && mirada.nuevo->fin)
        entorno.Atiende([&] {
            Termina(m, f, *std::move(mirada.nuevo->fin), f.s.Anfitrion.FechaHora());
            Guarda();
        });
    else if (mirada.nuevo)
        calibration::Mira(m, f, std::move(mirada.nuevo->vista));
    if (mirada.terminada && m.corriendo) Cancela(m, f);
    if (isVisible()) Muestra();
}

/// A copy, since what is on show may change while it is written.
void AjusteCalibracion_ventana::Guarda()
{
    const auto hallado = std::make_shared<const Calibrado>(*m.calibrado);
    hechas.segundos = f.s.Anfitrion.Reloj() - desde;
    hechas.resumen = "Puntaje " + model::NumeroATexto(hallado->Puntaje()) + " en " +
                     std::to_string(hallado->corridas.size()) + " corridas.";
    hechas.json = [pedido = m.pedido, hallado] { return JsonDe(*pedido, *hallado); };
    f.GuardaCorridas(hechas);
}

bool AjusteCalibracion_ventana::AlEscapar()
{
    if (!corrida.EnCurso()) return false;
    corrida.Pide();
    return true;
}

void AjusteCalibracion_ventana::Muestra()
{
    PaginaDeAjuste::Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.tema, m.tema);
}

}  // namespace calibration
