// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerAjustes_ventana.h"

#include <QMenu>
#include <QSplitter>
#include <QTabWidget>
#include <optional>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/Lamina_ventana.h"

namespace frequency {

namespace {

/// The fits first, then all of it with the bootstrap.
study::Tarea<Analisis>::Trabajo Trabajo(Serie serie, PedidoDeAjustes pedido)
{
    return [serie = std::move(serie), pedido = std::move(pedido)](const Avance& avance, const auto& entrega) {
        for (const int muestras : {0, pedido.muestras}) {
            PedidoDeAnalisis p;
            p.metodo = pedido.metodo;
            p.leyes = pedido.leyes;
            p.tratamiento = TratamientoDe(pedido.bajos, pedido.asimetria, pedido.ecmAsimetria);
            p.remuestreo = {.semilla = pedido.semilla, .cuantas = muestras};
            std::optional<Analisis> a = Analiza(serie, p, avance);
            if (!a) return;
            entrega(*std::move(a));
            if (pedido.muestras == 0) return;
        }
    };
}

}  // namespace

TallerAjustes_ventana::TallerAjustes_ventana(forms::Entorno& alrededor, dlgTaller& taller)
    : PaginaDeTaller(alrededor, taller, RotulosTallerAjustes, "TallerAjustes")
{
    auto* const todo = EnPila({Pedido(), Opciones(), {LadoALado(Tablas(), Derecha(), 9, 10), 1}, Eleccion()});
    todo->setContentsMargins(0, 0, 0, 0);
    setLayout(todo);
}

/// A number of a few digits.
QLineEdit* TallerAjustes_ventana::Corto(std::string_view control, std::string& texto)
{
    QLineEdit* const campo =
        Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, entorno.s, control); });
    constexpr int Letras = 11;
    campo->setMaximumWidth(Letras * fontMetrics().averageCharWidth());
    return campo;
}

QLayout* TallerAjustes_ventana::Pedido()
{
    QComboBox* const metodo = Desplegable("cmbMetodo", m.metodos, m.metodo, [this](int i) {
        cmbMetodo_Click(m, i);
        Calcula();
    });
    QLineEdit* const semilla = Corto("txtSemilla", m.txtSemilla);
    QLineEdit* const muestras = Corto("txtMuestras", m.txtMuestras);
    QComboBox* const ley =
        Desplegable("cmbEnMano", m.leyes, m.enMano, [this](int i) { cmbEnMano_Click(m, f, i); });
    return EnFila({Rotulo("cmbMetodo", metodo),
                   metodo,
                   Rotulo("txtSemilla", semilla),
                   semilla,
                   Rotulo("txtMuestras", muestras),
                   muestras,
                   Rotulo("cmbEnMano", ley),
                   ley,
                   {ConAvance(), 1}});
}

QLayout* TallerAjustes_ventana::Opciones()
{
    QComboBox* const posicion =
        Desplegable("cmbPosicion", m.posiciones, m.posicion, [this](int i) { cmbPosicion_Click(f, i); });
    const auto conMomentos = [this] { return TrataBajos(m); };
    auto* const bajos = Desplegable("cmbBajos", m.tratos, m.bajos, [this](int i) { cmbBajos_Click(f, i); });
    HabilitadoSi(bajos, conMomentos);
    forms::Partes partes{Rotulo("cmbPosicion", posicion), posicion, Rotulo("cmbBajos", bajos), bajos};
    for (const auto& [control, texto] :
         {std::pair<std::string_view, std::string&>{"txtAsimetria", m.txtAsimetria}, {"txtEcm", m.txtEcm}}) {
        QLineEdit* const campo = Corto(control, texto);
        HabilitadoSi(campo, conMomentos);
        partes.emplace_back(Rotulo(control, campo));
        partes.emplace_back(campo);
    }
    partes.push_back(Hueco());
    return EnFila(partes);
}

QLayout* TallerAjustes_ventana::ConAvance()
{
    forms::Partes partes = Avance(
        m.avance, [this] { return corrida.EnCurso(); }, [this] { Deja(); });
    partes.emplace_back(VisibleSi(Boton("cmdCalcular", [this] { Calcula(); }),
                                  [this] { return m.estado == Estado::SinBandas; }));
    return EnFila(partes);
}

QWidget* TallerAjustes_ventana::Tablas()
{
    fichas = Nombra(new QTabWidget, "fichas");
    fichas->setDocumentMode(true);
    const auto ficha = [this](std::size_t i, QWidget* tabla) {
        fichas->addTab(tabla, forms::Q(FichasDeAjustes[i]));
    };
    ficha(0, TablaDe(m.tblCuantiles, "tblCuantiles", {10, 9, 15, 9, 15, 15, 15, 15, 15, 15, 15}));
    ficha(1, TablaDe(m.tblBondad, "tblBondad", {18, 8, 8, 9, 8, 9, 8, 8, 8, 9, 9, 9}));
    ficha(2, TablaDe(m.tblParametros, "tblParametros", {18, 30, 0}));
    connect(fichas, &QTabWidget::currentChanged, this, [this](int i) { Suceso([&] { m.ficha = i; }); });
    return fichas;
}

QPushButton* TallerAjustes_ventana::ClaveDeLeyes()
{
    QPushButton* const clave = Nombra(new QPushButton, "cmdLeyes");
    clave->setAutoDefault(false);
    auto* const menu = new QMenu(clave);
    menu->setObjectName(QStringLiteral("mnuLeyes"));
    for (std::size_t i = 0; i < m.leyes.size(); ++i) {
        QAction* const ley = menu->addAction(forms::Q(m.leyes[i]));
        ley->setCheckable(true);
        connect(ley, &QAction::triggered, this, [this, i](bool tildada) {
            Suceso([&] {
                cmdLeyes_Click(m, i, tildada);
                Calcula();
            });
        });
        AlMostrar([this, ley, i] { ley->setChecked(m.ajustadas[i]); });
    }
    clave->setMenu(menu);
    return clave;
}

QWidget* TallerAjustes_ventana::Derecha()
{
    QComboBox* const cual =
        Desplegable("cmbGrafico", m.graficos, m.grafico, [this](int i) { cmbGrafico_Click(m, f, i); });
    constexpr int Letras = 22;
    cual->setMinimumContentsLength(Letras);
    grafico = new forms::Lamina(entorno, "lamAjustes", "Ajustes", forms::Lamina::Modo::Compacta);
    auto* const lado = new QWidget;
    auto* const pila = EnPila({EnFila({Rotulo("cmbGrafico", cual), cual,
                                       Casilla(
                                           "chkSola", [this] { return m.chkSola; },
                                           [this](bool tildada) { chkSola_Click(m, f, tildada); }),
                                       Hueco(), ClaveDeLeyes()}),
                               {grafico, 1}});
    pila->setContentsMargins(0, 0, 0, 0);
    lado->setLayout(pila);
    return lado;
}

QLayout* TallerAjustes_ventana::Eleccion()
{
    QLabel* const recomendacion = Texto("lblRecomendacion", m.lblRecomendacion);
    recomendacion->setWordWrap(true);
    recomendacion->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    recomendacion->setMinimumHeight(2 * fontMetrics().lineSpacing());
    recomendacion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QComboBox* const elegida =
        Desplegable("cmbElegida", m.elegibles, m.elegida, [this](int i) { cmbElegida_Click(m, f, i); });
    QLineEdit* const motivo = Campo("txtMotivo", m.txtMotivo, [this] { return txtMotivo_AlSalir(m, f); });
    QPushButton* const recomendada =
        HabilitadoSi(Boton("cmdRecomendada", [this] { cmdRecomendada(m, f); }),
                     [this] { return m.analisis && m.analisis->recomendacion.ley != nullptr; });
    QLabel* const estado =
        VisibleSi(EnNegrita(Texto("lblEstado", m.lblEstado)), [this] { return !m.lblEstado.empty(); });
    return EnPila(
        {EnFila(
             {{estado, 0, Qt::AlignTop}, {Rotulo("lblRecomendacion"), 0, Qt::AlignTop}, {recomendacion, 1}}),
         EnFila({Rotulo("cmbElegida", elegida),
                 elegida,
                 Rotulo("txtMotivo", motivo),
                 {motivo, 1},
                 recomendada})});
}

forms::Planilla TallerAjustes_ventana::ParaImprimir() const
{
    return forms::ALaVista(m.ficha == 0 ? m.tblCuantiles : m.ficha == 1 ? m.tblBondad : m.tblParametros);
}

void TallerAjustes_ventana::Toma()
{
    if (frequency::Toma(m, f)) Calcula();
}

void TallerAjustes_ventana::Muestra()
{
    if (m.estado == Estado::Nada && !corrida.EnCurso() && Falta().empty()) Toma();
    PaginaDeTaller::Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(m.temaDelAnalisis, m.temaDelAnalisis);
}

void TallerAjustes_ventana::Calcula()
{
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (s == nullptr) return;
    Deja();
    Empieza(m, f);
    corrida.Empieza(Trabajo(Revisada(*s), m.pedido));
}

void TallerAjustes_ventana::Mira(study::Vigilada<Analisis>::Mirada& mirada)
{
    m.avance = mirada.avance;
    if (mirada.nuevo && mirada.nuevo->pedido.cuantas == m.pedido.muestras)
        TomaCompleto(m, f, *std::move(mirada.nuevo));
    else if (mirada.nuevo)
        TomaAjustes(m, f, *std::move(mirada.nuevo));
    Muestra();
}

void TallerAjustes_ventana::Deja()
{
    if (corrida.Deja()) Cancela(m);
}

bool TallerAjustes_ventana::AlEscapar()
{
    if (!corrida.EnCurso()) return false;
    Suceso([this] { Deja(); });
    return true;
}

}  // namespace frequency
