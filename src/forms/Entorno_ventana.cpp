// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Entorno_ventana.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include "forms/SinComillas_ventana.h"
#include "model/Avisos.h"
#include "model/Siro.h"

namespace forms {
namespace {

constexpr std::string_view SinMemoria =
    "No hay memoria suficiente para terminar la orden. Cierre otros programas o reduzca los datos del "
    "proyecto";

/// The modal dialog on show, where there is one.
QDialog* FormularioModal()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

void PresentaEnEscritorio(QWidget& ventana)
{
    QDialog* const dueno = FormularioModal();
    if (dueno != nullptr && ventana.parentWidget() != dueno) ventana.setParent(dueno, Qt::Window);
    ventana.show();
    ventana.raise();
    ventana.activateWindow();
}

std::unique_ptr<QPrinter> ImpresoraDelSistema()
{
    // A QPrinter without a printer calls itself valid and writes PDF: only this tells.
    const QPrinterInfo porDefecto = QPrinterInfo::defaultPrinter();
    if (porDefecto.isNull()) return nullptr;
    return std::make_unique<QPrinter>(porDefecto, QPrinter::HighResolution);
}

QWidget* VentanaDe(const QWindow* ventana)
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (ventana != nullptr && widget->windowHandle() == ventana) return widget;
    return nullptr;
}

/// The one at the front of the windows that stand in a window; without any, it itself.
QWidget* AlFrente(QWidget* ventana)
{
    const auto* const area = ventana == nullptr ? nullptr : ventana->findChild<QMdiArea*>();
    const QMdiSubWindow* const hija = area == nullptr ? nullptr : area->currentSubWindow();
    const bool aLaVista = hija != nullptr && hija->isVisible() && hija->widget() != nullptr;
    return aLaVista ? hija->widget() : ventana;
}

/// A box belongs to the window that was active before it, whatever window it stands over.
bool EsCaja(const QWidget& ventana)
{
    return qobject_cast<const QMessageBox*>(&ventana) != nullptr ||
           qobject_cast<const QFileDialog*>(&ventana) != nullptr ||
           qobject_cast<const QInputDialog*>(&ventana) != nullptr ||
           dynamic_cast<const ComoCaja*>(&ventana) != nullptr;
}

}  // namespace

Entorno::Entorno(model::Siro& estadoSiro)
    : s(estadoSiro),
      Presenta(PresentaEnEscritorio),
      AbreAyuda([](const std::string&) {}),
      ListaMensajes([](const std::vector<Recogido>&) {}),
      Impresora(ImpresoraDelSistema),
      ajustes(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("SIRO"), QStringLiteral("siro"))
{
    new SinComillas(*this);  // which it owns
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this](QWindow* ventana) { CambioDeVentana(AlFrente(VentanaDe(ventana))); });
    qApp->installEventFilter(this);
}

bool Entorno::eventFilter(QObject* objeto, QEvent* suceso)
{
    if (suceso->type() != QEvent::Polish) return false;
    auto* const rotulo = qobject_cast<QLabel*>(objeto);
    if (rotulo != nullptr && rotulo->textFormat() == Qt::AutoText) rotulo->setTextFormat(Qt::PlainText);
    return false;
}

void Entorno::Atiende(const std::function<void()>& cuerpo)
{
    if (terminando) return;
    const bool propia = orden == nullptr || orden->dialogos != dialogos;
    Orden nueva{dialogos};
    Orden* const anterior = orden;
    if (propia) orden = &nueva;
    std::optional<int> fin = Corre(cuerpo);
    if (!terminando && (propia || fin)) {
        const std::optional<int> mientras = Corre([this] { MuestraRecogidos(); });
        if (!fin) fin = mientras;
    }
    orden = anterior;
    if (fin) return Termina(*fin);
    if (!oyentes.empty() && !std::exchange(avisado, true))
        QTimer::singleShot(0, this, [this] { AvisaTrasSuceso(); });
}

void Entorno::AlTerminarSuceso(QObject& quien, std::function<void()> rutina)
{
    oyentes.push_back({&quien, std::move(rutina)});
}

void Entorno::AvisaTrasSuceso()
{
    avisado = false;
    std::erase_if(oyentes, [](const Oyente& o) { return o.quien.isNull(); });
    const std::vector<Oyente> todos = oyentes;  // a routine may bring in more
    for (const Oyente& o : todos)
        if (!o.quien.isNull() && !terminando) o.rutina();
}

/// Returns the status with which the program is to end, where it is.
std::optional<int> Entorno::Corre(const std::function<void()>& cuerpo)
{
    try {
        try {
            cuerpo();
        } catch (const model::Falla& falla) {
            Informa(falla);
        } catch (const std::bad_alloc&) {
            model::Advierte(s, std::string(SinMemoria));
        }
    } catch (const model::FinDelPrograma& fin) {
        return fin.estado;
    }
    return {};
}

void Entorno::MuestraRecogidos()
{
    if (orden == nullptr || !orden->recogida.HayRecogidos()) return;
    ListaMensajes(orden->recogida.Saca());
}

int Entorno::Ejecuta(QDialog& dialogo)
{
    if (terminando) throw model::FinDelPrograma{estado};
    MuestraRecogidos();
    const QPointer<QWidget> anterior = QApplication::activeWindow();
    ++dialogos;
    const int resultado = dialogo.exec();
    --dialogos;
    if (terminando) throw model::FinDelPrograma{estado};
    // Where a form closes together with its box, a window manager may leave no window with the keyboard.
    if (!anterior.isNull() && anterior->isVisible()) anterior->activateWindow();
    return resultado;
}

void Entorno::Termina(int estadoFinal)
{
    terminando = true;
    estado = estadoFinal;
    QCoreApplication::exit(estado);
}

void Entorno::Informa(const model::Falla& falla)
{
    model::AvisaMotor(s)(falla);
}

void Entorno::AlActivarse(QWidget& ventana, std::function<void()> rutina)
{
    vigiladas.push_back({&ventana, std::move(rutina)});
}

void Entorno::VigilaHijas(QMdiArea& area)
{
    connect(&area, &QMdiArea::subWindowActivated, this, [this, &area](const QMdiSubWindow* hija) {
        if (hija != nullptr && QApplication::activeWindow() == area.window())
            CambioDeVentana(AlFrente(area.window()));
    });
}

void Entorno::CambioDeVentana(QWidget* activa)
{
    if (activa == nullptr || activa->windowType() == Qt::Popup || activa->windowType() == Qt::ToolTip) return;
    if (EsCaja(*activa)) return;
    const bool deLoSuyo = std::find(ultima.begin(), ultima.end(), activa) != ultima.end();
    const bool hayAnterior = !ultima.empty();
    ultima.clear();
    for (QWidget* w = activa; w != nullptr; w = w->parentWidget())
        ultima.emplace_back(w);
    if (deLoSuyo || !hayAnterior) return;

    std::erase_if(vigiladas, [](const Vigilada& v) { return v.ventana.isNull(); });
    const auto vigilada = std::find_if(vigiladas.begin(), vigiladas.end(),
                                       [&](const Vigilada& v) { return v.ventana == activa; });
    if (vigilada == vigiladas.end()) return;
    const std::function<void()> rutina = vigilada->rutina;
    Atiende(rutina);
}

}  // namespace forms
