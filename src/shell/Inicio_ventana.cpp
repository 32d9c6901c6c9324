// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Inicio_ventana.h"

#include <QApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "forms/Textos_ventana.h"
#include "model/Siro.h"
#include "model/VidaProyecto.h"

namespace shell {

using forms::DeQ;
using forms::Q;

namespace {

constexpr char ClaveDeRecientes[] = "inicio/recientes";
constexpr int NroPasos = 4;
constexpr int Margen = 16;  // [pixels]

void GuardaRecientes(QSettings& ajustes, const std::vector<ProyectoReciente>& lista)
{
    ajustes.beginWriteArray(QLatin1String(ClaveDeRecientes), static_cast<int>(lista.size()));
    for (std::size_t i = 0; i < lista.size(); ++i) {
        ajustes.setArrayIndex(static_cast<int>(i));
        ajustes.setValue(QStringLiteral("ruta"), Q(lista[i].ruta));
        ajustes.setValue(QStringLiteral("cuenca"), Q(lista[i].cuenca));
        ajustes.setValue(QStringLiteral("cuando"), Q(lista[i].cuando));
    }
    ajustes.endArray();
}

QLabel* Encabezado(const QString& texto, QWidget* padre)
{
    auto* const rotulo = new QLabel(texto, padre);
    constexpr double Mayor = 1.2;
    QFont letra = rotulo->font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * Mayor);
    rotulo->setFont(letra);
    rotulo->setTextFormat(Qt::PlainText);
    return rotulo;
}

const FilaMenu& EntradaDelMenu(std::string_view entrada)
{
    const auto filas = MenuMDIForm1();
    return *std::find_if(filas.begin(), filas.end(), [&](const FilaMenu& f) { return f.nombre == entrada; });
}

Tarjeta::Marca MarcaDe(EstadoPaso estado)
{
    if (estado == EstadoPaso::Hecho) return Tarjeta::Marca::Hecha;
    return estado == EstadoPaso::Repetir ? Tarjeta::Marca::Repetir : Tarjeta::Marca::Falta;
}

}  // namespace

std::vector<ProyectoReciente> LeeRecientes(QSettings& ajustes)
{
    std::vector<ProyectoReciente> lista;
    ajustes.sync();  // another program may have added to it
    const int cuantos =
        std::min(ajustes.beginReadArray(QLatin1String(ClaveDeRecientes)), static_cast<int>(MaximoRecientes));
    const auto texto = [&](const char* clave) { return DeQ(ajustes.value(QLatin1String(clave)).toString()); };
    for (int i = 0; i < cuantos; ++i) {
        ajustes.setArrayIndex(i);
        if (!texto("ruta").empty()) lista.push_back({texto("ruta"), texto("cuenca"), texto("cuando")});
    }
    ajustes.endArray();
    return lista;
}

Inicio_ventana::Inicio_ventana(forms::Entorno& alrededor, std::function<void(Rutina)> laOrden, QWidget* padre)
    : QScrollArea(padre), entorno(alrededor), orden(std::move(laOrden))
{
    setObjectName(QStringLiteral("Inicio"));
    setAccessibleName(QStringLiteral("Inicio"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setAutoFillBackground(true);
    auto* const hoja = new QWidget(this);
    auto* const columnas = new QHBoxLayout(hoja);
    columnas->setContentsMargins(Margen, Margen, Margen, Margen);
    columnas->setSpacing(Margen);
    columnas->addWidget(ColumnaDelProyecto(hoja), 1);
    columnas->addWidget(ColumnaDeRecientes(hoja), 1);
    setWidget(hoja);
    hoja->hide();  // until there is something to say: a box may come first
}

QWidget* Inicio_ventana::ColumnaDelProyecto(QWidget* padre)
{
    auto* const columna = new QWidget(padre);
    auto* const pila = new QVBoxLayout(columna);
    pila->setContentsMargins(0, 0, 0, 0);
    proyecto = Encabezado({}, columna);
    proyecto->setObjectName(QStringLiteral("inicio_proyecto"));
    proyecto->setWordWrap(true);
    pila->addWidget(proyecto);
    for (int i = 0; i < NroPasos; ++i)
        pasos.push_back(Nueva(QStringLiteral("inicio_paso_%1").arg(i + 1), *pila, [this, i] {
            const auto cual = static_cast<std::size_t>(i);
            if (cual < delProyecto.size()) orden(EntradaDelMenu(delProyecto[cual].menu).rutina);
        }));
    sinProyecto = {DelMenu(QStringLiteral("inicio_abrir"), *pila, "mnuAbrirProyecto"),
                   DelMenu(QStringLiteral("inicio_nuevo"), *pila, "mnuNuevoProyecto")};
    pila->addSpacing(Margen);
    pila->addWidget(Encabezado(QStringLiteral("Para empezar"), columna));
    muestra = Nueva(QStringLiteral("inicio_muestra"), *pila,
                    [this] { AbreProyecto(ProyectoDeMuestra(entorno.s)); });
    tutorial = Nueva(QStringLiteral("inicio_tutorial"), *pila,
                     [this] { entorno.Atiende([this] { AbreTutorial(); }); });
    pila->addStretch(1);
    return columna;
}

QWidget* Inicio_ventana::ColumnaDeRecientes(QWidget* padre)
{
    auto* const columna = new QWidget(padre);
    auto* const pila = new QVBoxLayout(columna);
    pila->setContentsMargins(0, 0, 0, 0);
    pila->addWidget(Encabezado(QStringLiteral("Últimos proyectos"), columna));
    sinRecientes = new QLabel(QStringLiteral("Todavía no se ha abierto ninguno."), columna);
    sinRecientes->setObjectName(QStringLiteral("inicio_sin_recientes"));
    pila->addWidget(sinRecientes);
    for (std::size_t i = 0; i < MaximoRecientes; ++i)
        recientes.push_back(
            Nueva(QStringLiteral("inicio_reciente_%1").arg(i + 1), *pila, [this, i] { AbreReciente(i); }));
    pila->addStretch(1);
    return columna;
}

Tarjeta* Inicio_ventana::Nueva(const QString& nombre, QVBoxLayout& pila, std::function<void()> rutina)
{
    auto* const tarjeta = new Tarjeta(nombre, pila.parentWidget());
    connect(tarjeta, &QAbstractButton::clicked, this, std::move(rutina));
    pila.addWidget(tarjeta);
    return tarjeta;
}

Tarjeta* Inicio_ventana::DelMenu(const QString& nombre, QVBoxLayout& pila, std::string_view entrada)
{
    const FilaMenu& fila = EntradaDelMenu(entrada);
    Tarjeta* const tarjeta = Nueva(nombre, pila, [this, rutina = fila.rutina] { orden(rutina); });
    tarjeta->Pon(SinTecla(fila.leyenda), std::string(fila.ayuda), Tarjeta::Marca::Ninguna, true);
    return tarjeta;
}

void Inicio_ventana::AbreProyecto(const std::string& ruta)
{
    if (ruta.empty()) return;
    entorno.Atiende([&] { model::AbreProyectoDe(entorno.s, ruta); });
}

/// One that has gone since it was looked for turns grey, and nothing else happens.
void Inicio_ventana::AbreReciente(std::size_t cual)
{
    if (cual >= lista.size()) return;
    const ProyectoReciente elegido = lista[cual];
    if (EntradaDe(entorno.s.Disco, elegido).habilitada) return AbreProyecto(elegido.ruta);
    porMirar = true;
    RefrescaLuego();
}

// --- what is shown ---

void Inicio_ventana::RefrescaLuego()
{
    if (std::exchange(programado, true)) return;
    QTimer::singleShot(0, this, [this] { Refresca(); });
}

void Inicio_ventana::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) {
        porMirar = true;
        RefrescaLuego();
    }
    QScrollArea::showEvent(evento);
}

/// With a dialog open the project may be half way between two states; its end is an event of its own.
void Inicio_ventana::Refresca()
{
    programado = false;
    if (entorno.Terminando() || QApplication::activeModalWidget() != nullptr) return;
    AnotaElProyecto();
    if (!isVisible()) return;
    MuestraProyecto();
    if (std::exchange(porMirar, false)) MuestraRecientes();
}

void Inicio_ventana::AnotaElProyecto()
{
    const std::string ruta = ConfEnMano(entorno.s);
    const std::string& cuenca = entorno.s.frmConfigura.TextCuenca;
    if (ruta.empty() || (ruta == anotado.ruta && cuenca == anotado.cuenca)) return;
    const QString ahora = QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yyyy HH:mm"));
    anotado = {ruta, cuenca, ruta == anotado.ruta ? anotado.cuando : DeQ(ahora)};
    lista = LeeRecientes(entorno.Ajustes());
    AnotaReciente(lista, anotado);
    GuardaRecientes(entorno.Ajustes(), lista);
    porMirar = true;
}

void Inicio_ventana::MuestraProyecto()
{
    const model::Siro& s = entorno.s;
    const bool hay = !s.Proyecto.NombreProyecto.empty();
    proyecto->setText(hay ? Q("Proyecto " + s.Proyecto.NombreProyecto)
                          : QStringLiteral("No hay un proyecto abierto"));
    delProyecto = hay ? PasosDelProyecto(s, RedEnDisco(s), Corrida()) : std::vector<Paso>{};
    for (std::size_t i = 0; i < pasos.size(); ++i) {
        if (i < delProyecto.size())
            pasos[i]->Pon(delProyecto[i].entrada.titulo, delProyecto[i].entrada.detalle,
                          MarcaDe(delProyecto[i].estado), true);
        pasos[i]->setVisible(hay);
    }
    for (Tarjeta* const tarjeta : sinProyecto)
        tarjeta->setVisible(!hay);
    const bool hayMuestra = !ProyectoDeMuestra(s).empty();
    muestra->Pon("Abrir el proyecto de muestra",
                 hayMuestra ? "Quelmar: una cuenca con dos represas y un lago, lista para correr"
                            : "No está en la carpeta de proyectos",
                 Tarjeta::Marca::Ninguna, hayMuestra);
    tutorial->Pon("Leer el tutorial", "De un proyecto vacío a un estudio terminado", Tarjeta::Marca::Ninguna,
                  HayTutorial(s));
    widget()->show();
}

void Inicio_ventana::MuestraRecientes()
{
    lista = LeeRecientes(entorno.Ajustes());
    sinRecientes->setVisible(lista.empty());
    for (std::size_t i = 0; i < recientes.size(); ++i) {
        if (i < lista.size()) {
            const Entrada e = EntradaDe(entorno.s.Disco, lista[i]);
            recientes[i]->Pon(e.titulo, e.detalle, Tarjeta::Marca::Ninguna, e.habilitada);
        }
        recientes[i]->setVisible(i < lista.size());
    }
}

}  // namespace shell
