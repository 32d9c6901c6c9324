// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cajas_ventana.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <initializer_list>

#include "forms/ListaDeAvisos_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Siro.h"

namespace forms {
namespace {

using model::Icono;
using model::Mensaje;
using model::Peticion;

QString Titulo(std::string_view titulo)
{
    return titulo.empty() ? QString::fromLatin1(NombrePrograma) : Q(titulo);
}

QMessageBox::Icon Dibujo(Icono icono)
{
    switch (icono) {
    case Icono::Exclamacion:
        return QMessageBox::Warning;
    case Icono::Pregunta:
        return QMessageBox::Question;
    case Icono::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

constexpr char Aceptar[] = "&Aceptar", Cancelar[] = "&Cancelar";
constexpr char Si[] = "&Sí", SiATodas[] = "Sí a &todas", No[] = "&No";

/// A firm box takes its buttons and nothing else: neither Esc nor the frame answers for the user.
class Caja : public QMessageBox {
  public:
    Caja(const Mensaje& mensaje, bool esFirme)
        : QMessageBox(Dibujo(mensaje.icono), Titulo(mensaje.titulo), Q(mensaje.texto), QMessageBox::NoButton,
                      QApplication::activeWindow()),
          firme(esFirme)
    {
        setObjectName(QStringLiteral("Mensaje"));
        setTextFormat(Qt::PlainText);
        if (firme) setWindowFlag(Qt::WindowCloseButtonHint, false);
    }

  protected:
    void closeEvent(QCloseEvent* suceso) override
    {
        if (firme) return suceso->ignore();
        QMessageBox::closeEvent(suceso);
    }
    void keyPressEvent(QKeyEvent* suceso) override
    {
        if (!firme || !suceso->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(suceso);
    }

  private:
    bool firme;
};

/// Between the first button and the one that cancels stands what does without the first.
QMessageBox::ButtonRole Papel(qsizetype lugar, std::size_t cuantos)
{
    if (lugar == 0) return QMessageBox::AcceptRole;
    return lugar + 1 == static_cast<qsizetype>(cuantos) ? QMessageBox::RejectRole
                                                        : QMessageBox::DestructiveRole;
}

/// Shows a box. Returns the place of the button chosen, from 0; the first one is the default, and closing the
/// frame of one that isn't firm chooses the last.
int MuestraCaja(Entorno& entorno, const Mensaje& mensaje, std::initializer_list<const char*> leyendas,
                bool firme = false)
{
    Caja caja(mensaje, firme);
    QList<QPushButton*> botones;
    for (const char* leyenda : leyendas)
        botones.append(caja.addButton(QString::fromUtf8(leyenda), Papel(botones.size(), leyendas.size())));
    caja.setDefaultButton(botones.constFirst());
    if (!firme) caja.setEscapeButton(botones.constLast());
    for (QPushButton* boton : botones)
        boton->setIcon({});
    entorno.Ejecuta(caja);
    for (int i = 0; i < botones.size(); ++i)
        if (caja.clickedButton() == botones.at(i)) return i;
    return static_cast<int>(botones.size()) - 1;
}

void Avisa(Entorno& entorno, const Mensaje& mensaje)
{
    Recogida* const recogida = entorno.Recoge();
    if (recogida == nullptr || recogida->SeMuestra(mensaje)) MuestraCaja(entorno, mensaje, {Aceptar});
}

/// A No may end the program or throw work away, so that nothing but the button says it.
bool Pregunta(Entorno& entorno, const Mensaje& mensaje)
{
    constexpr bool Firme = true;
    Recogida* const recogida = entorno.Recoge();
    if (recogida != nullptr && recogida->RespondidaATodas(mensaje)) return true;
    if (recogida == nullptr || !recogida->OfreceTodas(mensaje))
        return MuestraCaja(entorno, mensaje, {Si, No}, Firme) == 0;
    const int elegido = MuestraCaja(entorno, mensaje, {Si, SiATodas, No}, Firme);
    if (elegido == 1) recogida->RespondeSiATodas(mensaje);
    return elegido != 2;
}

std::string Pide(Entorno& entorno, const Peticion& peticion)
{
    QInputDialog caja(QApplication::activeWindow());
    caja.setObjectName(QStringLiteral("Peticion"));
    caja.setWindowTitle(Titulo(peticion.titulo));
    // The label belongs to the field: a lone "&" would vanish as the mark of a shortcut.
    caja.setLabelText(Q(peticion.texto).replace(QLatin1Char('&'), QLatin1String("&&")));
    caja.setTextValue(Q(peticion.defecto));
    caja.setOkButtonText(QString::fromUtf8(Aceptar));
    caja.setCancelButtonText(QString::fromUtf8(Cancelar));
    for (QPushButton* boton : caja.findChildren<QPushButton*>())
        boton->setIcon({});
    return entorno.Ejecuta(caja) == QDialog::Accepted ? DeQ(caja.textValue()) : std::string{};
}

/// `filtro` is "Description |*pattern"; its description names the pattern itself.
void PonFiltro(QFileDialog& caja, std::string_view filtro)
{
#if !defined(Q_OS_WIN)
    // The desktops' own boxes would come each with its texts and names of controls; Windows has one.
    caja.setOption(QFileDialog::DontUseNativeDialog, true);
#endif
    const std::size_t barra = filtro.find('|');
    if (barra == std::string_view::npos) return;
    caja.setNameFilter(Q(filtro.substr(0, std::min(barra, filtro.find('(')))).trimmed() +
                       QStringLiteral(" (%1)").arg(Q(filtro.substr(barra + 1)).trimmed()));
}

std::string Elige(Entorno& entorno, std::string_view titulo, std::string_view filtro)
{
    QFileDialog caja(QApplication::activeWindow(), Titulo(titulo), Q(entorno.s.Proyecto.DirProyecto));
    caja.setObjectName(QStringLiteral("EligeArchivo"));
    caja.setFileMode(QFileDialog::ExistingFile);
    PonFiltro(caja, filtro);
    if (entorno.Ejecuta(caja) != QDialog::Accepted || caja.selectedFiles().isEmpty()) return {};
    return DeQ(QDir::toNativeSeparators(caja.selectedFiles().constFirst()));
}

std::string EligeDonde(Entorno& entorno, std::string_view titulo, std::string_view filtro,
                       std::string_view nombre)
{
    QFileDialog caja(QApplication::activeWindow(), Titulo(titulo), Q(entorno.s.Proyecto.DirProyecto));
    caja.setObjectName(QStringLiteral("EligeDestino"));
    caja.setAcceptMode(QFileDialog::AcceptSave);
    PonFiltro(caja, filtro);
    const std::size_t punto = filtro.rfind("*.");
    if (punto != std::string_view::npos) caja.setDefaultSuffix(Q(filtro.substr(punto + 2)).trimmed());
    caja.selectFile(Q(nombre));
    if (entorno.Ejecuta(caja) != QDialog::Accepted || caja.selectedFiles().isEmpty()) return {};
    return DeQ(QDir::toNativeSeparators(caja.selectedFiles().constFirst()));
}

}  // namespace

void PonCajas(model::Anfitrion& anfitrion, Entorno& entorno)
{
    entorno.ListaMensajes = [&entorno](const std::vector<Recogido>& recogidos) {
        ListaDeAvisos lista(entorno, recogidos, QApplication::activeWindow());
        entorno.Ejecuta(lista);
    };
    anfitrion.Avisa = [&entorno](const Mensaje& m) { Avisa(entorno, m); };
    anfitrion.Pregunta = [&entorno](const Mensaje& m) { return Pregunta(entorno, m); };
    anfitrion.Confirma = [&entorno](const Mensaje& m) {
        return MuestraCaja(entorno, m, {Aceptar, Cancelar}) == 0;
    };
    anfitrion.PideResguardo = [&entorno](const Mensaje& m) {
        return static_cast<model::Resguardo>(
            MuestraCaja(entorno, m, {"&Guardar", "&Seguir sin guardar", Cancelar}));
    };
    anfitrion.PideTexto = [&entorno](const Peticion& p) { return Pide(entorno, p); };
    anfitrion.EligeArchivo = [&entorno](std::string_view titulo, std::string_view filtro) {
        return Elige(entorno, titulo, filtro);
    };
    anfitrion.EligeDestino = [&entorno](std::string_view titulo, std::string_view filtro,
                                        std::string_view nombre) {
        return EligeDonde(entorno, titulo, filtro, nombre);
    };
    anfitrion.Termina = [] { throw model::FinDelPrograma{}; };
    anfitrion.FechaHora = [] {
        return DeQ(QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yyyy HH:mm:ss")));
    };
    anfitrion.Reloj = [] {
        QElapsedTimer reloj;
        reloj.start();
        constexpr double MilisegundosPorSegundo = 1000;
        return static_cast<double>(reloj.msecsSinceReference()) / MilisegundosPorSegundo;
    };
}

}  // namespace forms
