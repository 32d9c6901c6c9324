// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Ventanas.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <array>
#include <string_view>

namespace apoyo {
namespace {

constexpr int Paciencia = 5000;     // [ms]
constexpr int CadaCuantoMira = 10;  // [ms]

std::string Texto(const QString& texto)
{
    return texto.toUtf8().toStdString();
}

/// What the invisible screen says of itself and means nothing.
constexpr auto Inofensivos = std::to_array<std::string_view>({
    "This plugin does not support",
});

void AlAvisarQt(QtMsgType clase, const QMessageLogContext& /*lugar*/, const QString& mensaje)
{
    const std::string texto = Texto(mensaje);
    for (const std::string_view inofensivo : Inofensivos)
        if (texto.starts_with(inofensivo)) return;
    if (clase == QtDebugMsg || clase == QtInfoMsg) return;
    ADD_FAILURE() << "Qt: " << texto;
}

/// A test that ended the program leaves a toolkit in which no dialog waits any more: the next one begins
/// anew.
class EmpiezaDeNuevo : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*prueba*/) override
    {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }
};

}  // namespace

bool Espera(const std::function<bool()>& vale)
{
    return QTest::qWaitFor(vale, Paciencia);
}

void Muestra(QWidget& ventana)
{
    ventana.show();
    ventana.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ventana, Paciencia)) << Texto(ventana.objectName());
}

void Teclea(QWidget& control, const char* texto)
{
    // keyClicks knows ASCII alone.
    for (const QChar c : QString::fromUtf8(texto))
        QTest::sendKeyEvent(QTest::Click, &control, static_cast<Qt::Key>(c.toUpper().unicode()), QString(c),
                            Qt::NoModifier);
}

void Escribe(QWidget& campo, const char* texto)
{
    campo.setFocus(Qt::TabFocusReason);
    if (auto* const lista = qobject_cast<QComboBox*>(&campo);
        lista != nullptr && lista->lineEdit() != nullptr)
        lista->lineEdit()->selectAll();
    else
        QTest::keyClick(&campo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&campo, Qt::Key_Delete);
    Teclea(campo, texto);
}

void Pulsa(QWidget& control)
{
    const QPoint medio = control.rect().center();
    // A box or an option hears clicks on itself and its caption alone, however wide its place is.
    const bool conMarca =
        qobject_cast<QCheckBox*>(&control) != nullptr || qobject_cast<QRadioButton*>(&control) != nullptr;
    QTest::mouseClick(&control, Qt::LeftButton, {}, conMarca ? QPoint(medio.y(), medio.y()) : medio);
}

Usuario::Usuario()
{
    auto mirada = std::make_unique<QTimer>();
    QObject::connect(mirada.get(), &QTimer::timeout, mirada.get(), [this] { Mira(); });
    mirada->start(CadaCuantoMira);
    reloj = std::move(mirada);
}

Usuario::~Usuario()
{
    EXPECT_TRUE(acciones.empty()) << acciones.size() << " answers that nobody asked for";
}

Usuario& Usuario::Elige(const char* boton)
{
    const QString texto = QString::fromUtf8(boton);
    return Hace([texto](QWidget& caja) {
        for (QAbstractButton* b : caja.findChildren<QAbstractButton*>()) {
            if (!b->isVisible() || b->text().remove(QLatin1Char('&')) != texto) continue;
            b->click();
            return;
        }
        ADD_FAILURE() << "no button " << Texto(texto) << " in " << Texto(caja.windowTitle());
        caja.close();
    });
}

Usuario& Usuario::Hace(Accion accion)
{
    acciones.push_back(std::move(accion));
    return *this;
}

void Usuario::Mira()
{
    QWidget* const caja = QApplication::activeModalWidget();
    if (caja == nullptr) atendida = nullptr;
    if (caja == nullptr || caja == atendida || !caja->isVisible()) return;
    atendida = caja;
    if (const auto* const mensaje = qobject_cast<QMessageBox*>(caja))
        cajas.push_back(Texto(mensaje->windowTitle() + QLatin1Char('|') + mensaje->text()));
    if (acciones.empty()) {
        ADD_FAILURE() << "an unexpected window: " << Texto(caja->windowTitle())
                      << (cajas.empty() ? std::string() : ", " + cajas.back());
        if (auto* const dialogo = qobject_cast<QDialog*>(caja)) dialogo->done(QDialog::Rejected);
        return;
    }
    const Accion accion = std::move(acciones.front());
    acciones.pop_front();
    accion(*caja);
    // The next box may be the same object at the same place: this one has been dealt with.
    if (QApplication::activeModalWidget() != caja) atendida = nullptr;
}

std::vector<std::string> SinNombre(QWidget& ventana)
{
    std::vector<std::string> faltas;
    for (const QWidget* w : ventana.findChildren<QWidget*>()) {
        const bool campo = qobject_cast<const QLineEdit*>(w) != nullptr ||
                           qobject_cast<const QComboBox*>(w) != nullptr ||
                           qobject_cast<const QPlainTextEdit*>(w) != nullptr;
        const bool otro = qobject_cast<const QAbstractButton*>(w) != nullptr ||
                          qobject_cast<const QAbstractItemView*>(w) != nullptr;
        if (!campo && !otro) continue;
        // Parts of a composed control answer for themselves.
        const QWidget* const padre = w->parentWidget();
        if (padre != nullptr &&
            (padre->inherits("QComboBox") || padre->inherits("QAbstractItemView") ||
             padre->inherits("QAbstractSpinBox") || padre->inherits("QComboBoxPrivateContainer") ||
             padre->inherits("QLineEdit") || padre->inherits("QToolBar") || padre->inherits("QMenuBar") ||
             padre->inherits("QMdiSubWindow") || padre->inherits("QTabBar") ||
             padre->inherits("QDockWidget")))
            continue;
        if (w->objectName().isEmpty() || w->objectName().startsWith(QLatin1String("qt_"))) {
            faltas.push_back(std::string(w->metaObject()->className()) + " without a name");
            continue;
        }
        QAccessibleInterface* const lector = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(w));
        if (campo && lector != nullptr && lector->text(QAccessible::Name).isEmpty())
            faltas.push_back(Texto(w->objectName()) + " without a caption");
    }
    return faltas;
}

}  // namespace apoyo

namespace {

/// The screen that SIRO_PANTALLA asks for, its pixels and what is told of their density, "1920x1080@2";
/// without it the platform's own.
QByteArray Plataforma(const QString& carpeta)
{
    static const QRegularExpression forma(QStringLiteral("^([0-9]+)x([0-9]+)(?:@([0-9.]+))?$"));
    const QRegularExpressionMatch pedida = forma.match(qEnvironmentVariable("SIRO_PANTALLA"));
    if (!pedida.hasMatch()) return "offscreen";
    // By the density alone: the platform's own factor would come on top of it.
    const double escala = pedida.captured(3).isEmpty() ? 1 : pedida.captured(3).toDouble();
    const QJsonObject pantalla{{QStringLiteral("name"), QStringLiteral("una")},
                               {QStringLiteral("x"), 0},
                               {QStringLiteral("y"), 0},
                               {QStringLiteral("width"), pedida.captured(1).toInt()},
                               {QStringLiteral("height"), pedida.captured(2).toInt()},
                               {QStringLiteral("logicalDpi"), static_cast<int>(96 * escala)},
                               {QStringLiteral("logicalBaseDpi"), 96},
                               {QStringLiteral("dpr"), 1}};
    QFile archivo(carpeta + QStringLiteral("/pantalla.json"));
    if (archivo.open(QIODevice::WriteOnly))
        archivo.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), QJsonArray{pantalla}}}).toJson());
    return "offscreen:configfile=" + archivo.fileName().toUtf8();
}

}  // namespace

int main(int argc, char** argv)
{
    // Set here, so that a test program behaves the same from a shell, a debugger and ctest.
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleTest(&argc, argv);
    // What ctest asks for the list of the cases needs no screen.
    if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    const QTemporaryDir ajustes;
    qputenv("QT_QPA_PLATFORM", Plataforma(ajustes.path()));
    qputenv("XDG_RUNTIME_DIR", ajustes.path().toUtf8());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ajustes.path());
    QApplication programa(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    qInstallMessageHandler(apoyo::AlAvisarQt);
    testing::UnitTest::GetInstance()->listeners().Append(new apoyo::EmpiezaDeNuevo);  // which owns it
    return RUN_ALL_TESTS();
}
