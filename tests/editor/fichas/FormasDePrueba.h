// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "apoyo/Ventanas.h"
#include "editor/VentanasDelEditor_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Componentes.h"

namespace editor {

/// The windows of the room on a copy of the sample project, the graphic editor open. The forms are modal: a
/// test acts in them with `EnForma`.
struct FormasDePrueba : testing::Test {
    FormasDePrueba()
    {
        namespace fs = std::filesystem;
        fs::copy(SIRO_DATA_DIR, Dir(), fs::copy_options::recursive);
        s.Proyecto.DirTrabajo = Dir();
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = s.frmConfigura.Dir1 = Dir() + "/Proyectos";
        s.Proyecto.NombreProyecto = s.frmConfigura.TextProyecto = "Quelmar";
        ventanas =
            std::make_unique<VentanasDelEditor>(mundo.entorno, [this](bool visible) { principal = visible; });
        ventanas->AbreEditor();
        mundo.anfitrion->sucesos.clear();
    }
    [[nodiscard]] std::string Dir() const { return forms::DeQ(dir.path()); }

    /// Acts in the next modal form, as soon as it is on show; whatever it leaves open is then cancelled.
    FormasDePrueba& EnForma(const char* nombre, std::function<void(QDialog& forma)> actua)
    {
        auto* const reloj = new QTimer(&relojes);
        QObject::connect(reloj, &QTimer::timeout, reloj, [reloj, nombre, actua = std::move(actua)] {
            auto* const forma = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (forma == nullptr || !forma->isVisible() || forma->objectName() != QLatin1String(nombre))
                return;
            reloj->stop();
            // A timer's own event can't be nested: what is done may open a further form.
            QTimer::singleShot(0, forma, [forma, actua] {
                EXPECT_TRUE(QTest::qWaitForWindowActive(forma));
                actua(*forma);
                if (forma->isVisible()) forma->reject();
            });
        });
        reloj->start(5);
        return *this;
    }
    /// Opens a form of the editor and returns when it is closed.
    void Abre(Pedido forma)
    {
        mundo.entorno.Atiende([&] { ventanas->formas.Abre(forma); });
    }
    /// Clicks on an entry of a list.
    static void Elige(QDialog& forma, const char* lista, const char* entrada)
    {
        auto& control = apoyo::Control<QListWidget>(forma, lista);
        const auto items = control.findItems(QString::fromUtf8(entrada), Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << entrada;
        control.scrollToItem(items.front());
        QTest::mouseClick(control.viewport(), Qt::LeftButton, {},
                          control.visualItemRect(items.front()).center());
    }
    static QLineEdit& Campo(QDialog& forma, const char* nombre)
    {
        return apoyo::Control<QLineEdit>(forma, nombre);
    }
    static std::string TextoDe(QDialog& forma, const char* nombre)
    {
        return forms::DeQ(Campo(forma, nombre).text());
    }
    static void Boton(QDialog& forma, const char* nombre)
    {
        apoyo::Pulsa(apoyo::Control<QAbstractButton>(forma, nombre));
    }
    /// Types a value into a field and leaves it with Tab.
    static void Llena(QDialog& forma, const char* campo, const char* valor)
    {
        apoyo::Escribe(Campo(forma, campo), valor);
        QTest::keyClick(&Campo(forma, campo), Qt::Key_Tab);
        QTest::qWait(0);
    }

    QTemporaryDir dir{};
    apoyo::Mundo mundo{};
    model::Siro& s = mundo.s;
    QObject relojes{};
    bool principal = true;
    std::unique_ptr<VentanasDelEditor> ventanas{};
};

}  // namespace editor
