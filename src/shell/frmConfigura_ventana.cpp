// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmConfigura_ventana.h"

#include <QApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

#include "model/RutaProyecto.h"

namespace shell {

using forms::DeQ;
using forms::Q;

frmConfigura_ventana::frmConfigura_ventana(forms::Entorno& alrededor, frmConfigura& registro, QWidget* padre)
    : Formulario(alrededor, {"frmConfigura", TituloConfigura, RotulosConfigura}, padre),
      f(registro),
      c(alrededor.s.frmConfigura)
{
    Sigue(f.abierta);
    if (f.DirPersonal.empty()) f.DirPersonal = DeQ(QDir::toNativeSeparators(QDir::homePath()));

    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    QWidget* const fichas[] = {FichaDeArchivos(), FichaDeTitulos(), FichaDeSelecciones(), FichaDeImagen()};
    for (std::size_t i = 0; i < FichasConfigura.size(); ++i)
        SSTab1->addTab(fichas[i], Q(FichasConfigura[i]));
    QLayout* const pila = EnPila({{SSTab1, 1}, Botones()});
    setLayout(pila);
    for (QPushButton* const boton : findChildren<QPushButton*>())
        boton->setAutoDefault(true);  // Enter presses the one that has the focus

    // Wide enough for the captions of all tabs.
    const int margen = pila->contentsMargins().left() + pila->contentsMargins().right();
    resize(sizeHint().expandedTo({SSTab1->tabBar()->sizeHint().width() + 2 * margen, 0}));

    connect(SSTab1, &QTabWidget::currentChanged, this,
            [this](int i) { Suceso([this, i] { f.SSTab1 = i; }); });
    entorno.AlActivarse(*this, [this] {
        AlActivarse(f, entorno.s);
        Muestra();
    });
}

// --- opening and closing ---

void frmConfigura_ventana::EmpiezaAbertura()
{
    if (directorios == nullptr) PonDirectorios();
    if (!isVisible() || entorno.s.Proyecto.ProyectoNuevo) {
        shell::Abre(f, entorno.s);
        SSTab1->tabBar()->setFocus();
    }
    Muestra();
}

void frmConfigura_ventana::Abre()
{
    EmpiezaAbertura();
    hide();  // where it stands beside the others, it becomes modal as it is shown anew
    entorno.Ejecuta(*this);
}

void frmConfigura_ventana::AbreSinEsperar()
{
    EmpiezaAbertura();
    show();
    raise();
    activateWindow();
}

void frmConfigura_ventana::AlCerrar()
{
    CancelButton(f);
    Muestra();
}

// --- directories ---

void frmConfigura_ventana::PonDirectorios()
{
    directorios = new QFileSystemModel(this);
    directorios->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    directorios->setOption(QFileSystemModel::DontWatchForChanges);
    directorios->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    directorios->setRootPath(QString());
    Dir1->setModel(directorios);
    for (int columna = 1; columna < directorios->columnCount(); ++columna)
        Dir1->hideColumn(columna);

    // A directory is read and sorted beside the program: only then the one picked has its place. Not while
    // the user goes through the tree.
    const auto alaVista = [this] {
        if (!Dir1->hasFocus()) Dir1->scrollTo(Dir1->currentIndex(), QTreeView::PositionAtCenter);
    };
    connect(directorios, &QFileSystemModel::directoryLoaded, Dir1,
            [this, alaVista] { QTimer::singleShot(0, Dir1, alaVista); });
    connect(directorios, &QFileSystemModel::layoutChanged, Dir1, alaVista);
    connect(Dir1, &QTreeView::clicked, this,
            [this](const QModelIndex& i) { EligeDirectorio(directorios->filePath(i)); });
    connect(Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        // By the keyboard; the mouse has picked with its release.
        if (QApplication::mouseButtons() == Qt::NoButton && i.isValid())
            EligeDirectorio(directorios->filePath(i));
    });
}

void frmConfigura_ventana::EligeDirectorio(const QString& ruta)
{
    if (ruta == QDir::cleanPath(Q(c.Dir1))) return;
    Suceso([this, ruta] { Dir1_Change(f, entorno.s, DeQ(QDir::toNativeSeparators(ruta))); });
}

void frmConfigura_ventana::MuestraDirectorio()
{
    Drive1->setCurrentIndex(Drive1->findText(Q(model::UnidadDe(c.Drive1)), Qt::MatchFixedString));
    if (directorios == nullptr) return;
    const QModelIndex elegido = directorios->index(Q(c.Dir1));
    if (Dir1->currentIndex() == elegido) return;
    Dir1->setCurrentIndex(elegido);
    Dir1->scrollTo(elegido);
}

// --- the record on the screen ---

void frmConfigura_ventana::MuestraFichas()
{
    if (SSTab1->currentIndex() == f.SSTab1) return;
    const QSignalBlocker silencio(SSTab1);
    SSTab1->setCurrentIndex(f.SSTab1);
}

void frmConfigura_ventana::Muestra()
{
    MuestraFichas();
    MuestraDirectorio();
    Formulario::Muestra();
}

}  // namespace shell
