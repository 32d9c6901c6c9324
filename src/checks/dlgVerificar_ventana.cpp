// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgVerificar_ventana.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QProgressBar>
#include <QScrollArea>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/ImpresionTabla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Procedencia.h"

namespace checks {

namespace {

constexpr std::chrono::milliseconds EntreMiradas{30};
constexpr int FilasALaVista = 7;  // at least

/// Widths of the columns [letters]; 0: what is left over.
constexpr std::array<int, NroColumnasDeCaso> Anchos{5, 0, 27, 11, 13, 11, 11, 12, 9};

}  // namespace

/// A run of the cases on a thread of its own. It is waited for as it goes, which takes as long as the case in
/// hand at most.
class dlgVerificar_ventana::Corrida {
  public:
    explicit Corrida(std::span<const casos::Familia> mas) : familias(mas), hilo([this] { Corre(); }) {}
    ~Corrida()
    {
        Cancela();
        hilo.join();
    }
    Corrida(const Corrida&) = delete;
    Corrida& operator=(const Corrida&) = delete;

    void Cancela() { cancelada = true; }
    [[nodiscard]] bool Terminada() const { return terminada; }
    [[nodiscard]] std::size_t Hechos() const { return hechos; }
    [[nodiscard]] std::size_t Total() const { return total; }
    /// The cases done, once it has ended.
    std::vector<Caso> Saca() { return std::move(casos); }
    [[nodiscard]] double Segundos() const { return segundos; }

  private:
    void Corre()
    {
        const auto avance = [this](std::size_t van, std::size_t todos) {
            hechos = van;
            total = todos;
            return !cancelada;
        };
        casos = Verifica(avance, familias);
        segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - comienzo).count();
        terminada = true;
    }

    std::span<const casos::Familia> familias;
    std::chrono::steady_clock::time_point comienzo = std::chrono::steady_clock::now();
    std::atomic<std::size_t> hechos = 0, total = 0;
    std::atomic<bool> cancelada = false, terminada = false;
    std::vector<Caso> casos{};
    double segundos = 0;
    std::thread hilo;  // the last one: it uses those above
};

dlgVerificar_ventana::dlgVerificar_ventana(forms::Entorno& alrededor, dlgVerificar& registro,
                                           std::vector<casos::Familia> masFamilias, QWidget* padre)
    : Ventana(alrededor, {"dlgVerificar", TituloDlgVerificar, RotulosDlgVerificar}, padre),
      f(registro),
      familias(std::move(masFamilias))
{
    Sigue(f.abierta);
    tabla = new forms::TablaCuadro(entorno, f.tblCasos, "tblCasos", TituloDlgVerificar);
    tabla->PonColumnas({Anchos.begin(), Anchos.end()});
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    tabla->AlMoverse = [this] {
        if (f.casos.empty()) return;
        Suceso([&] { tblCasos_Mueve(f, tabla->Actual()); });
    };
    tabla->Adorno = [this](std::size_t fila, int columna, int papel) {
        const bool fuera = columna + 1 == int{NroColumnasDeCaso} && f.casos.at(fila).Fuera();
        if (!fuera || papel != Qt::ForegroundRole) return QVariant();
        return QVariant(QColor(Qt::red));
    };
    AlMostrar([this] { tabla->Muestra(); });
    Grafico = new forms::Lamina(entorno, "Grafico", TituloDlgVerificar);
    tabla->setMinimumHeight(FilasALaVista * tabla->verticalHeader()->defaultSectionSize());
    setLayout(EnPila({Encabezado(), {tabla, 3}, {EnFila({{Detalle(), 2}, {Grafico, 3}}), 4}, Botones()}));
    latido.setInterval(EntreMiradas);
    connect(&latido, &QTimer::timeout, this, [this] { Mira(); });
}

dlgVerificar_ventana::~dlgVerificar_ventana() = default;

QLayout* dlgVerificar_ventana::Encabezado()
{
    auto* const avance = Nombra(new QProgressBar, "barAvance");
    AlMostrar([this, avance] {
        avance->setVisible(f.corriendo);
        avance->setRange(0, static_cast<int>(f.total));
        avance->setValue(static_cast<int>(f.hechos));
        avance->setFormat(QStringLiteral("%v de %m casos"));
    });
    QPushButton* const cancela =
        VisibleSi(Boton("CancelButton", [this] { Cancela(); }), [this] { return f.corriendo; });
    return EnFila({EnNegrita(Texto("lblSuma", f.lblSuma)), Hueco(), {avance, 1}, cancela});
}

/// It scrolls where the room is low: how high its lines are depends on how wide they are.
QWidget* dlgVerificar_ventana::Detalle()
{
    QLabel* const nombre = EnNegrita(Texto("lblCaso", f.lblCaso));
    nombre->setWordWrap(true);
    std::vector<forms::Partes> filas{{nombre}};
    const auto fila = [&](std::string_view control, const std::string& texto) {
        QLabel* const valor = Texto(control, texto);
        valor->setWordWrap(true);
        valor->setTextInteractionFlags(Qt::TextSelectableByMouse);
        filas.push_back({{Rotulo(control), 0, Qt::AlignTop}, {valor, 0, Qt::AlignTop}});
    };
    fila("lblFuente", f.lblFuente);
    fila("lblEntrada", f.lblEntrada);
    fila("lblCompara", f.lblCompara);
    fila("lblCifra", f.lblCifra);
    fila("lblTolerancia", f.lblTolerancia);
    filas.push_back({});
    auto* const dentro = new QWidget;
    dentro->setLayout(EnRejilla(filas, {0, 1}));
    dentro->layout()->setContentsMargins(0, 0, 4, 0);
    auto* const lugar = new QScrollArea;
    lugar->setObjectName(QStringLiteral("lugarDetalle"));
    lugar->setWidgetResizable(true);
    lugar->setFrameShape(QFrame::NoFrame);
    lugar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lugar->setWidget(dentro);
    return lugar;
}

QLayout* dlgVerificar_ventana::Botones()
{
    const auto quieta = [this] { return !f.corriendo; };
    const auto conCasos = [this] { return !f.corriendo && !f.casos.empty(); };
    return EnFila(
        {HabilitadoSi(Boton("cmdVerificar", [this] { Corre(); }), quieta), Hueco(),
         HabilitadoSi(Boton("cmdImprimirCaso", [this] { forms::ImprimeConLamina(entorno, *this, *Grafico); }),
                      conCasos),
         HabilitadoSi(Boton("cmdImprimir", [this] { ImprimeTabla(); }), conCasos),
         Boton("OKButton", [this] { OKButton(f); })});
}

void dlgVerificar_ventana::Abre()
{
    f.abierta = true;
    if (f.casos.empty()) Corre();
    Muestra();
    entorno.Presenta(*this);
    tabla->setFocus();
}

void dlgVerificar_ventana::Muestra()
{
    Grafico->Muestra(f.Grafico);
    Grafico->PonTema(f.lblCaso, f.lblCaso);
    Ventana::Muestra();
}

void dlgVerificar_ventana::AlCerrar()
{
    Cancela();
    OKButton(f);
}

void dlgVerificar_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && f.corriendo) return Suceso([this] { Cancela(); });
    Ventana::keyPressEvent(evento);
}

void dlgVerificar_ventana::Corre()
{
    if (f.corriendo) return;
    Empieza(f);
    corrida = std::make_unique<Corrida>(familias);
    latido.start();
}

void dlgVerificar_ventana::Mira()
{
    if (corrida == nullptr) return latido.stop();
    Avanza(f, corrida->Hechos(), corrida->Total());
    if (corrida->Terminada()) {
        latido.stop();
        const double segundos = corrida->Segundos();
        Suceso([&] { Termina(f, entorno.s, corrida->Saca(), segundos); });
        corrida.reset();
        return;
    }
    Muestra();
}

/// The window is free at once; the thread goes on to the end of its case, of which nothing is seen.
void dlgVerificar_ventana::Cancela()
{
    std::erase_if(dejadas, [](const auto& una) { return una->Terminada(); });
    if (corrida == nullptr) return;
    corrida->Cancela();
    dejadas.push_back(std::move(corrida));
    latido.stop();
    checks::Cancela(f);
}

void dlgVerificar_ventana::ImprimeTabla()
{
    forms::ImprimePlanilla(entorno, forms::NombreDeArchivo({.titulo = std::string(TituloDlgVerificar)}),
                           ParaImprimir(f));
}

}  // namespace checks
