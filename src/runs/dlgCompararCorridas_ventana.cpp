// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCompararCorridas_ventana.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QProgressBar>
#include <QTabWidget>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "forms/Cuadro_ventana.h"
#include "forms/ImpresionTabla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Planilla_ventana.h"
#include "forms/Procedencia.h"
#include "forms/Textos_ventana.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace runs {

using forms::Q;

namespace {

enum Pagina { Parametros, Resultados, Hidrograma, Series };

constexpr std::string_view FiltroConf = "Configuración del Proyecto |*_Conf.vlm";
constexpr int FilasDeLados = 3;

}  // namespace

dlgCompararCorridas_ventana::dlgCompararCorridas_ventana(forms::Entorno& alrededor,
                                                         dlgCompararCorridas& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgCompararCorridas", TituloDlgCompararCorridas, RotulosDlgCompararCorridas},
              padre),
      f(registro)
{
    forms::Ventana::Sigue(f.abierta);
    QCheckBox* const distintas = Casilla(
        "chkDistintas", [this] { return f.chkDistintas; }, [this](bool si) { chkDistintas_Click(f, si); });
    paginas = Nombra(new QTabWidget, "tabPaginas");
    paginas->setDocumentMode(true);
    const std::array<QWidget*, PaginasDeComparacion.size()> suyas{
        PaginaDeTabla(parametros, f.tblParametros, "tblParametros"),
        PaginaDeTabla(resultados, f.tblResultados, "tblResultados", distintas), PaginaDeHidrogramas(),
        PaginaDeSeries()};
    for (std::size_t i = 0; i < suyas.size(); ++i)
        paginas->addTab(suyas[i], Q(PaginasDeComparacion[i]));
    connect(paginas, &QTabWidget::currentChanged, this, [this] { Muestra(); });
    QLabel* const queHacer = Texto("lblQueHacer", f.lblQueHacer);
    queHacer->setWordWrap(true);
    VisibleSi(queHacer, [this] { return !f.lblQueHacer.empty() && !imprimiendo; });
    setLayout(EnPila({Lados(), queHacer, {paginas, 1}, Botones()}));
}

QLayout* dlgCompararCorridas_ventana::Lados()
{
    auto* const arriba = new QWidget;
    forms::ListaParaElegir* const lista = Listado("lstLados", f.lstLados, forms::Flechas::Eligen, [] {});
    QComboBox* const origen = Desplegable("cmbOrigen", f.cmbOrigen, [] {});
    QComboBox* const tormenta = Desplegable("cmbTormenta", f.cmbTormenta, [] {});
    constexpr int Letras = 30;
    for (QComboBox* const combo : {origen, tormenta}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(Letras);
    }
    lista->setFixedHeight((FilasDeLados + 1) * (fontMetrics().height() + 4));
    QLayout* const izquierda =
        EnRejilla({Renglon("cmbOrigen", origen), Renglon("cmbTormenta", tormenta), {}}, {0, 1});
    QLayout* const fila = EnFila({izquierda,
                                  EnPila({Boton("cmdAgregar", [this] { Agrega(); }), Hueco()}),
                                  EnPila({Rotulo("lstLados", lista), Hueco()}),
                                  {lista, 1},
                                  BotonesDeLados()});
    fila->setContentsMargins(0, 0, 0, 0);
    arriba->setLayout(fila);
    VisibleSi(arriba, [this] { return !imprimiendo; });
    return EnFila({{arriba, 1}});
}

QLayout* dlgCompararCorridas_ventana::BotonesDeLados()
{
    const auto elegido = [this] { return f.lstLados.indice >= 0 && !EnCurso(); };
    auto* const barra = Nombra(new QProgressBar, "barAvance");
    AlMostrar([this, barra] {
        barra->setVisible(EnCurso());
        barra->setRange(0, static_cast<int>(f.avance.hechos == 0 ? 0 : f.avance.total));
        barra->setValue(static_cast<int>(f.avance.hechos));
        barra->setFormat(Q(f.avance.texto));
    });
    QPushButton* const cancela =
        VisibleSi(Boton("CancelButton", [this] { Deja(); }), [this] { return EnCurso(); });
    return EnPila({EnFila({HabilitadoSi(Boton("cmdSubir", [this] { cmdSubir(f); }),
                                        [this, elegido] { return elegido() && f.lstLados.indice > 0; }),
                           HabilitadoSi(Boton("cmdQuitar", [this] { cmdQuitar(f); }), elegido)}),
                   EnFila({{barra, 1}, cancela}), Hueco()});
}

/// A table that is saved with what it is of above it.
QWidget* dlgCompararCorridas_ventana::PaginaDeTabla(forms::TablaCuadro*& tabla, forms::Cuadro& cuadro,
                                                    std::string_view control, QWidget* arriba)
{
    tabla = new forms::TablaCuadro(entorno, cuadro, control, Fila(control).leyenda);
    tabla->AlPulsarEncabezado = [this, &cuadro](int columna) {
        Suceso([&] { forms::PulsaEncabezado(cuadro, columna); });
    };
    tabla->DaPlanilla = [this, &cuadro] { return ParaGuardar(f, forms::ALaVista(cuadro)); };
    QHeaderView& encabezado = *tabla->horizontalHeader();
    encabezado.setDefaultAlignment(Qt::Alignment(QFlag(int{Qt::AlignCenter} | int{Qt::TextWordWrap})));
    encabezado.setFixedHeight(fontMetrics().height() * 5 / 2);
    auto* const pagina = new QWidget;
    pagina->setLayout(arriba == nullptr ? EnPila({{tabla, 1}}) : EnPila({arriba, {tabla, 1}}));
    return pagina;
}

/// The list of components, on either page the same one.
QWidget* dlgCompararCorridas_ventana::Componentes(std::string_view control)
{
    forms::ListaParaElegir* const lista =
        Listado(control, f.lstCompos, forms::Flechas::Eligen, [this] { lstCompos_Click(f); });
    lista->setAccessibleName(Q(Fila("lstCompos").lector));
    constexpr int Letras = 27;
    lista->setFixedWidth(Letras * fontMetrics().averageCharWidth());
    return lista;
}

/// Why a chart isn't there, in its place.
QLabel* dlgCompararCorridas_ventana::Motivo(std::string_view control, const std::string& motivo,
                                            QWidget& grafico)
{
    QLabel* const texto = Texto(control, motivo);
    texto->setWordWrap(true);
    texto->setAlignment(Qt::AlignTop);
    VisibleSi(texto, [&motivo] { return !motivo.empty(); });
    VisibleSi(&grafico, [&motivo] { return motivo.empty(); });
    return texto;
}

QWidget* dlgCompararCorridas_ventana::PaginaDeHidrogramas()
{
    hidrogramas = new forms::Lamina(entorno, "lamHidrogramas", "Hidrogramas comparados");
    QWidget* const lista = Componentes("lstCompos");
    QCheckBox* const entra = Casilla(
        "chkEntra", [this] { return f.chkEntra; }, [this](bool si) { chkEntra_Click(f, si); });
    auto* const costado = new QWidget;
    QLayout* const pila =
        EnPila({Rotulo("lstCompos", lista), {lista, 1}, entra, Boton("cmdHsMin", [this] { cmdHsMin(f); })});
    pila->setContentsMargins(0, 0, 0, 0);
    costado->setLayout(pila);
    VisibleSi(costado, [this] { return !imprimiendo; });
    auto* const pagina = new QWidget;
    pagina->setLayout(EnFila(
        {costado, {EnPila({Motivo("lblHidrograma", f.lblHidrograma, *hidrogramas), {hidrogramas, 1}}), 1}}));
    return pagina;
}

QWidget* dlgCompararCorridas_ventana::PaginaDeSeries()
{
    abaco = new forms::Lamina(entorno, "lamAbaco", "Series comparadas");
    QWidget* const lista = Componentes("lstComposSerie");
    auto* const costado = new QWidget;
    QComboBox* const recurrencia =
        Desplegable("cmbRecurrencia", f.cmbRecurrencia, [this] { cmbRecurrencia_Click(f); });
    QLayout* const pila = EnPila({{lista, 1}, Rotulo("cmbRecurrencia", recurrencia), recurrencia});
    pila->setContentsMargins(0, 0, 0, 0);
    costado->setLayout(pila);
    QWidget* const tabla = PaginaDeTabla(serie, f.tblSerie, "tblSerie");
    tabla->layout()->setContentsMargins(0, 0, 0, 0);
    VisibleSi(costado, [this] { return !imprimiendo; });
    VisibleSi(tabla, [this] { return !imprimiendo && f.lblSerie.empty(); });
    auto* const pagina = new QWidget;
    pagina->setLayout(
        EnFila({costado, {EnPila({Motivo("lblSerie", f.lblSerie, *abaco), {abaco, 3}, {tabla, 1}}), 1}}));
    return pagina;
}

QLayout* dlgCompararCorridas_ventana::Botones()
{
    const auto hay = [this] { return !f.corridos.empty(); };
    const auto boton = [this](std::string_view control, std::function<void()> rutina) {
        return VisibleSi(Boton(control, std::move(rutina)), [this] { return !imprimiendo; });
    };
    return EnFila({Hueco(), HabilitadoSi(boton("cmdXlsx", [this] { GuardaLibro(); }), hay),
                   HabilitadoSi(boton("cmdImprimir", [this] { Imprime(); }), hay),
                   boton("OKButton", [this] { f.abierta = false; })});
}

/// Names and units as wide as they mostly are; the sides share what is left over.
void dlgCompararCorridas_ventana::PonColumnas()
{
    constexpr int DeNombre = 18, DeParametro = 30, DeUnidad = 13, DeNumero = 11;
    const std::size_t n = f.comparacion.lados.size();
    std::vector<int> letras{DeNombre, DeParametro, DeUnidad};
    letras.insert(letras.end(), n + 1, 0);
    parametros->PonColumnas(letras);
    parametros->Muestra();
    letras = {DeNombre, DeNombre, DeUnidad};
    letras.insert(letras.end(), f.tblResultados.planilla.columnas.size() - letras.size(), 0);
    resultados->PonColumnas(letras);
    resultados->Muestra();
    letras.assign(f.tblSerie.planilla.columnas.size(), 0);
    std::fill_n(letras.begin(), std::min<std::size_t>(2, letras.size()), DeNumero);
    serie->PonColumnas(letras);
    serie->Muestra();
}

void dlgCompararCorridas_ventana::Muestra()
{
    hidrogramas->Muestra(f.Hidrogramas);
    abaco->Muestra(f.Abaco);
    for (forms::Lamina* const lamina : {hidrogramas, abaco}) {
        lamina->PonTema(f.tema, f.lstCompos.Elegido());
        if (!f.corridos.empty())
            lamina->PonOrigen(f.corridos.front().corrida->sello.nombre, f.corridos.front().corrida->cuando);
    }
    Ventana::Muestra();
    PonColumnas();
}

void dlgCompararCorridas_ventana::Abre()
{
    runs::Abre(f, entorno.s, Ultima());
    Muestra();
    entorno.Presenta(*this);
    Sigue();
}

void dlgCompararCorridas_ventana::Compara(const std::vector<Origen>& guardadas)
{
    Deja();
    f.lados.clear();
    runs::Abre(f, entorno.s, nullptr);
    for (const Origen& origen : guardadas)
        runs::Agrega(f, origen);
    Muestra();
    entorno.Presenta(*this);
    Sigue();
}

/// Another project is asked for by its configuration.
void dlgCompararCorridas_ventana::Agrega()
{
    if (f.cmbOrigen.indice < 0 || static_cast<std::size_t>(f.cmbOrigen.indice) >= f.origenes.size()) return;
    Origen origen = f.origenes[static_cast<std::size_t>(f.cmbOrigen.indice)];
    if (origen.clase == Origen::Clase::Proyecto && origen.archivo.empty()) {
        origen.archivo = entorno.s.Anfitrion.EligeArchivo("Proyecto que se compara", FiltroConf);
        if (!origen.archivo.ends_with(model::TerminacionConf)) return;
    }
    if (!runs::Agrega(f, origen, Ultima())) {
        f.lblQueHacer = "Ese lado ya está, o no hay ninguna corrida.";
        return;
    }
    Sigue();
}

/// Runs the next side that has to be run.
void dlgCompararCorridas_ventana::Sigue()
{
    if (EnCurso()) return;
    corriendo = PorCorrer(f);
    if (corriendo >= f.lados.size()) return Muestra();
    f.avance = {};
    corrida.Empieza(
        [trabajo = TrabajoDe(f, corriendo, entorno.s)](const study::Avance& avance, const auto& entrega) {
            CorridaAparte hecha = trabajo(avance);
            if (avance(1, 1)) entrega(std::move(hecha));
        });
    Muestra();
}

void dlgCompararCorridas_ventana::Mira(study::Vigilada<CorridaAparte>::Mirada& mirada)
{
    f.avance = mirada.avance;
    if (mirada.nuevo) runs::Toma(f, corriendo, *std::move(mirada.nuevo));
    if (mirada.terminada) return Sigue();
    if (isVisible()) Muestra();
}

void dlgCompararCorridas_ventana::Deja()
{
    if (corrida.Deja()) runs::Cancela(f);
}

void dlgCompararCorridas_ventana::AlCerrar()
{
    Deja();
    f.abierta = false;
}

void dlgCompararCorridas_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && EnCurso()) return Suceso([this] { Deja(); });
    Ventana::keyPressEvent(evento);
}

/// The table at sight, or the chart alone.
void dlgCompararCorridas_ventana::Imprime()
{
    const int pagina = paginas->currentIndex();
    const std::string nombre = forms::NombreDeArchivo(
        {.titulo = std::string(PaginasDeComparacion[static_cast<std::size_t>(pagina)])});
    if (pagina == Parametros || pagina == Resultados) {
        const forms::Cuadro& tabla = pagina == Parametros ? f.tblParametros : f.tblResultados;
        return forms::ImprimePlanilla(entorno, nombre, ParaGuardar(f, forms::ALaVista(tabla)));
    }
    imprimiendo = true;
    Muestra();
    layout()->activate();
    forms::ImprimeConLamina(entorno, *this, pagina == Hidrograma ? *hidrogramas : *abaco);
    imprimiendo = false;
    Muestra();
}

void dlgCompararCorridas_ventana::GuardaLibro()
{
    forms::GuardaLibro(entorno,
                       forms::NombreDeArchivo({.titulo = "Comparación", .componente = f.lstCompos.Elegido()}),
                       [this] {
                           std::vector<forms::HojaDeLibro> hojas;
                           for (auto& [nombre, planilla] : Hojas(f))
                               hojas.push_back({nombre, std::move(planilla)});
                           return hojas;
                       });
}

}  // namespace runs
