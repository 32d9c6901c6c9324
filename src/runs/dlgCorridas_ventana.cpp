// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/dlgCorridas_ventana.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QSettings>
#include <algorithm>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/ImpresionTabla_ventana.h"
#include "forms/Procedencia.h"
#include "forms/Textos_ventana.h"
#include "model/Falla.h"
#include "model/Siro.h"

namespace runs {

namespace {

constexpr auto ClaveTope = "Corridas/TopeMiB";

/// Widths of the columns on show [letters]; 0: what is left over.
const std::vector<int> Anchos{24, 20, 9, 13, 0, 18, 14, 14, 18, 12, 0};

std::string EligeUnaCarpeta(forms::Entorno& entorno)
{
    QFileDialog caja(QApplication::activeWindow(), QStringLiteral("Carpeta para el proyecto"),
                     forms::Q(entorno.s.Proyecto.DirProyecto));
    caja.setObjectName(QStringLiteral("EligeCarpeta"));
    caja.setFileMode(QFileDialog::Directory);
    caja.setOption(QFileDialog::ShowDirsOnly);
    if (entorno.Ejecuta(caja) != QDialog::Accepted || caja.selectedFiles().isEmpty()) return {};
    return forms::DeQ(QDir::toNativeSeparators(caja.selectedFiles().constFirst()));
}

}  // namespace

int TopeDeCorridas(forms::Entorno& entorno)
{
    return std::clamp(entorno.Ajustes().value(QLatin1String(ClaveTope), TopePorDefecto).toInt(), 0,
                      MayorTope);
}

dlgCorridas_ventana::dlgCorridas_ventana(forms::Entorno& alrededor, dlgCorridas& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgCorridas", TituloDlgCorridas, RotulosDlgCorridas}, padre),
      EligeCarpeta([&alrededor] { return EligeUnaCarpeta(alrededor); }),
      f(registro)
{
    Sigue(f.abierta);
    PonTope(f, TopeDeCorridas(entorno));
    PonTabla();
    QLabel* const queHacer =
        VisibleSi(Texto("lblQueHacer", f.lblQueHacer), [this] { return !f.lblQueHacer.empty(); });
    queHacer->setWordWrap(true);
    QLabel* const estado =
        VisibleSi(Texto("lblEstado", f.lblEstado), [this] { return !f.lblEstado.empty(); });
    estado->setWordWrap(true);
    setLayout(EnPila({Arriba(), queHacer, {tabla, 1}, DeLaElegida(), estado, Botones()}));
    entorno.AlActivarse(*this, [this] { Refresca(); });
    entorno.AlTerminarSuceso(*this, [this] {
        const std::optional<Libro> ahora = DelProyecto();
        const bool mismo =
            ahora.has_value() == f.libro.has_value() && (!ahora || ahora->Carpeta() == f.libro->Carpeta());
        if (!mismo) Refresca();
    });
}

std::optional<Libro> dlgCorridas_ventana::DelProyecto() const
{
    const model::Proyecto& p = entorno.s.Proyecto;
    if (p.NombreProyecto.empty() || p.DirProyecto.empty() || p.ProyectoNuevo) return {};
    return Libro{.dirProyecto = p.DirProyecto, .proyecto = p.NombreProyecto};
}

QLayout* dlgCorridas_ventana::Arriba()
{
    QLineEdit* const filtro = Campo("txtFiltro", f.txtFiltro);
    filtro->setClearButtonEnabled(true);
    connect(filtro, &QLineEdit::textEdited, this, [this] {
        txtFiltro_Cambia(f);
        Muestra();
    });
    connect(filtro, &QLineEdit::textChanged, this, [this, filtro] {  // the key that empties it
        if (filtro->text().isEmpty() && !f.txtFiltro.empty()) {
            f.txtFiltro.clear();
            txtFiltro_Cambia(f);
            Muestra();
        }
    });
    QLineEdit* const tope = Campo("txtTope", f.txtTope, [this] {
        if (!txtTope_AlSalir(f, entorno.s)) return false;
        entorno.Ajustes().setValue(QLatin1String(ClaveTope), f.tope);
        return true;
    });
    tope->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    return EnFila({Rotulo("txtFiltro", filtro),
                   {filtro, 1},
                   Hueco(fontMetrics().averageCharWidth() * 3),
                   Rotulo("txtTope", tope),
                   tope,
                   Texto("lblOcupado", f.lblOcupado)});
}

void dlgCorridas_ventana::PonTabla()
{
    tabla = new forms::TablaCuadro(entorno, f.tblCorridas, "tblCorridas", TituloDlgCorridas);
    tabla->setAccessibleDescription(forms::Q(Fila("tblCorridas").ayuda));
    tabla->setWordWrap(false);
    tabla->PonColumnas(Anchos);
    tabla->AlPulsarEncabezado = [this](int columna) {
        Suceso([&] {
            AlPulsarEncabezado(f, columna);
            VeALaElegida();
        });
    };
    tabla->AlElegir = [this](std::size_t) {
        if (SePuedeTraer(f)) findChild<QPushButton*>(QStringLiteral("cmdTraer"))->click();
    };
    tabla->DaPlanilla = [this] { return ComoPlanilla(f); };
    tabla->AlArmarMenu = [this](QMenu& menu) {
        for (const char* const control : {"cmdTraer", "cmdAparte", "cmdComparar", "cmdBorrar"}) {
            auto* const boton = findChild<QPushButton*>(QString::fromLatin1(control));
            QAction* const entrada = menu.addAction(boton->text());
            entrada->setEnabled(boton->isEnabled());
            connect(entrada, &QAction::triggered, boton, &QPushButton::click);
        }
        menu.addSeparator();
    };
    tabla->Adorno = [this](std::size_t fila, int, int papel) {
        if (fila >= f.renglones.size()) return QVariant();
        const bool mala = !f.renglones[fila].reparo.empty();
        if (papel == Qt::ForegroundRole && mala) return QVariant(palette().color(QPalette::PlaceholderText));
        if (papel != Qt::FontRole || !f.renglones[fila].ficha.fijada) return QVariant();
        QFont letra = font();
        letra.setBold(true);
        return QVariant(letra);
    };
    tabla->AlMoverse = [this] {
        if (poniendo) return;
        AlMoverse(f, tabla->Actual());
        Constructor::Muestra();
    };
    AlMostrar([this] {
        poniendo = true;
        tabla->Muestra();
        VeALaElegida();
        poniendo = false;
    });
}

/// The cursor stays on the run that it was on, wherever that stands by now.
void dlgCorridas_ventana::VeALaElegida()
{
    if (tabla->Actual() < f.renglones.size() && f.renglones[tabla->Actual()].archivo == f.elegida) return;
    const auto& mostradas = f.tblCorridas.mostradas;
    const auto lugar = std::ranges::find_if(
        mostradas, [this](std::size_t fila) { return f.renglones[fila].archivo == f.elegida; });
    if (!f.elegida.empty() && lugar != mostradas.end())
        tabla->setCurrentIndex(tabla->model()->index(static_cast<int>(lugar - mostradas.begin()), 0));
    else
        AlMoverse(f, tabla->Actual());
}

QLayout* dlgCorridas_ventana::DeLaElegida()
{
    const auto hay = [this] { return HayElegida(f); };
    QLineEdit* const nombre =
        HabilitadoSi(Campo("txtNombre", f.txtNombre, [this] { return txtNombre_AlSalir(f); }), hay);
    QLineEdit* const nota =
        HabilitadoSi(Campo("txtNota", f.txtNota, [this] { return txtNota_AlSalir(f); }), hay);
    QCheckBox* const fijada = HabilitadoSi(
        Casilla(
            "chkFijada", [this] { return f.chkFijada; }, [this](bool si) { chkFijada_Click(f, si); }),
        hay);
    return EnFila({Rotulo("txtNombre", nombre), {nombre, 1}, Rotulo("txtNota", nota), {nota, 2}, fijada});
}

QLayout* dlgCorridas_ventana::Botones()
{
    const auto hay = [this] { return HayElegida(f); };
    return EnFila(
        {HabilitadoSi(Boton("cmdTraer", [this] { Trae(*f.libro, std::string(f.elegida)); }),
                      [this] { return SePuedeTraer(f); }),
         HabilitadoSi(Boton("cmdAparte", [this] { Aparte(); }), hay),
         HabilitadoSi(Boton("cmdComparar", [this] { Compara(*f.libro, ParaComparar(f, tabla->Elegidas())); }),
                      [this] { return Compara && ParaComparar(f, tabla->Elegidas()).size() >= 2; }),
         Hueco(fontMetrics().averageCharWidth() * 3),
         HabilitadoSi(Boton("cmdBorrar", [this] { cmdBorrar(f, entorno.s, tabla->Elegidas()); }),
                      [this] { return !tabla->Elegidas().empty(); }),
         HabilitadoSi(Boton("cmdDeshacer", [this] { cmdDeshacer(f); }),
                      [this] { return !f.borradas.empty(); }),
         Hueco(),
         HabilitadoSi(Boton("cmdImprimir", [this] { Imprime(); }), [this] { return !f.renglones.empty(); }),
         Boton("OKButton", [this] { f.abierta = false; })});
}

void dlgCorridas_ventana::Abre()
{
    f.abierta = true;
    Lee();
    Muestra();
    entorno.Presenta(*this);
    tabla->setFocus();
}

void dlgCorridas_ventana::Refresca()
{
    if (!f.abierta) return;
    Lee();
    Constructor::Muestra();
}

void dlgCorridas_ventana::TrasGuardar(const std::string& motivo)
{
    if (!motivo.empty() || !f.lblEstado.empty()) PonFallo(f, motivo);
    Refresca();
}

void dlgCorridas_ventana::Lee()
{
    const std::optional<Libro> libro = DelProyecto();
    if (!libro) {
        lectura.Deja();
        return Pon(f, {}, {});
    }
    if (!f.libro || f.libro->Carpeta() != libro->Carpeta()) Pon(f, libro, {});
    PonLeyendo(f);
    lectura.Empieza([suyo = *libro](const study::Avance&, const auto& entrega) {
        Leido leido{.libro = suyo, .renglones = {}, .motivo = {}};
        model::Sentencia([&] { leido.renglones = ListaDe(suyo); },
                         [&](const model::Falla&) {
                             leido.motivo = "No se pudo leer la carpeta " + suyo.Carpeta() + ".";
                         });
        entrega(std::move(leido));
    });
}

void dlgCorridas_ventana::Toma(study::Vigilada<Leido>::Mirada& mirada)
{
    if (!mirada.nuevo) return;
    Pon(f, mirada.nuevo->libro, std::move(mirada.nuevo->renglones));
    if (!mirada.nuevo->motivo.empty()) PonFallo(f, mirada.nuevo->motivo);
    if (f.abierta) Constructor::Muestra();
}

void dlgCorridas_ventana::Aparte()
{
    const Libro libro = *f.libro;
    const std::string archivo = f.elegida, carpeta = EligeCarpeta();
    if (carpeta.empty()) return;
    if (const std::string conf = EscribeAparte(libro, archivo, carpeta, entorno.s); !conf.empty())
        TrasAparte(libro, archivo, conf);
}

void dlgCorridas_ventana::AlCerrar()
{
    lectura.Deja();
    f.abierta = false;
}

void dlgCorridas_ventana::Imprime()
{
    forms::ImprimePlanilla(entorno, forms::NombreDeArchivo({.titulo = std::string(TituloDlgCorridas)}),
                           ComoPlanilla(f));
}

}  // namespace runs
