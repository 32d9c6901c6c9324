// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Cajas_ventana.h"

#include <QApplication>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <initializer_list>

#include "forms/Textos_ventana.h"

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

/// Between the first button and the one that cancels stands what does without the first.
QMessageBox::ButtonRole Papel(qsizetype lugar, std::size_t cuantos)
{
    if (lugar == 0) return QMessageBox::AcceptRole;
    return lugar + 1 == static_cast<qsizetype>(cuantos) ? QMessageBox::RejectRole
                                                        : QMessageBox::DestructiveRole;
}

/// Shows a box. Returns the place of the button chosen, from 0; the first one is the default, and closing the
/// frame chooses the last.
int Caja(Entorno& entorno, const Mensaje& mensaje, std::initializer_list<QString> leyendas)
{
    QMessageBox caja(Dibujo(mensaje.icono), Titulo(mensaje.titulo), Q(mensaje.texto), QMessageBox::NoButton,
                     QApplication::activeWindow());
    caja.setObjectName(QStringLiteral("Mensaje"));
    caja.setTextFormat(Qt::PlainText);
    QList<QPushButton*> botones;
    for (const QString& leyenda : leyendas)
        botones.append(caja.addButton(leyenda, Papel(botones.size(), leyendas.size())));
    caja.setDefaultButton(botones.constFirst());
    caja.setEscapeButton(botones.constLast());
    for (QPushButton* boton : botones)
        boton->setIcon({});
    entorno.Ejecuta(caja);
    for (int i = 0; i < botones.size(); ++i)
        if (caja.clickedButton() == botones.at(i)) return i;
    return static_cast<int>(botones.size()) - 1;
}

std::string Pide(Entorno& entorno, const Peticion& peticion)
{
    QInputDialog caja(QApplication::activeWindow());
    caja.setObjectName(QStringLiteral("Peticion"));
    caja.setWindowTitle(Titulo(peticion.titulo));
    caja.setLabelText(Q(peticion.texto));
    caja.setTextValue(Q(peticion.defecto));
    caja.setOkButtonText(QStringLiteral("&Aceptar"));
    caja.setCancelButtonText(QStringLiteral("&Cancelar"));
    for (QPushButton* boton : caja.findChildren<QPushButton*>())
        boton->setIcon({});
    return entorno.Ejecuta(caja) == QDialog::Accepted ? DeQ(caja.textValue()) : std::string{};
}

/// `filtro` is "Description |*pattern"; its description names the pattern itself.
void PonFiltro(QFileDialog& caja, std::string_view filtro)
{
    caja.setOption(QFileDialog::DontUseNativeDialog, true);
    const std::size_t barra = filtro.find('|');
    if (barra == std::string_view::npos) return;
    caja.setNameFilter(Q(filtro.substr(0, std::min(barra, filtro.find('(')))).trimmed() +
                       QStringLiteral(" (%1)").arg(Q(filtro.substr(barra + 1)).trimmed()));
}

std::string Elige(Entorno& entorno, std::string_view titulo, std::string_view filtro)
{
    QFileDialog caja(QApplication::activeWindow(), Titulo(titulo), Q(entorno.s.DirProyecto));
    caja.setObjectName(QStringLiteral("EligeArchivo"));
    caja.setFileMode(QFileDialog::ExistingFile);
    PonFiltro(caja, filtro);
    if (entorno.Ejecuta(caja) != QDialog::Accepted || caja.selectedFiles().isEmpty()) return {};
    return DeQ(QDir::toNativeSeparators(caja.selectedFiles().constFirst()));
}

std::string EligeDonde(Entorno& entorno, std::string_view titulo, std::string_view filtro,
                       std::string_view nombre)
{
    QFileDialog caja(QApplication::activeWindow(), Titulo(titulo), Q(entorno.s.DirProyecto));
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
    static constexpr char Si[] = "&Sí";
    static const QString acepta = QStringLiteral("&Aceptar"), cancela = QStringLiteral("&Cancelar");
    anfitrion.Avisa = [&entorno](const Mensaje& m) { Caja(entorno, m, {acepta}); };
    anfitrion.Pregunta = [&entorno](const Mensaje& m) {
        return Caja(entorno, m, {QString::fromUtf8(Si), QStringLiteral("&No")}) == 0;
    };
    anfitrion.Confirma = [&entorno](const Mensaje& m) { return Caja(entorno, m, {acepta, cancela}) == 0; };
    anfitrion.PideResguardo = [&entorno](const Mensaje& m) {
        return static_cast<model::Resguardo>(
            Caja(entorno, m, {QStringLiteral("&Guardar"), QStringLiteral("&Seguir sin guardar"), cancela}));
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
