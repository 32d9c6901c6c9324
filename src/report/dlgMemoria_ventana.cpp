// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/dlgMemoria_ventana.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QListWidget>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "checks/Verifica.h"
#include "model/Avisos.h"
#include "model/Camino.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "report/Hojas_ventana.h"
#include "report/Memoria.h"

namespace report {

using forms::Q;

namespace {

constexpr char Ajuste[] = "memoria/";  // of what is remembered

QString Clave(const char* cual)
{
    return QLatin1String(Ajuste) + QLatin1String(cual);
}

bool Incluye(const Eleccion& e, std::string_view clave)
{
    return std::find(e.sinCapitulos.begin(), e.sinCapitulos.end(), clave) == e.sinCapitulos.end();
}

}  // namespace

dlgMemoria_ventana::dlgMemoria_ventana(forms::Entorno& alrededor, dlgMemoria& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgMemoria", TituloDlgMemoria, RotulosDlgMemoria}, padre),
      f(registro),
      preparacion([this](auto& mirada) { Prepara(mirada); })
{
    Sigue(f.abierta);
    AbreArchivo = [](const std::string& ruta) {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(Q(ruta)));
    };
    QLabel* const corrida = Texto("lblCorrida", f.lblCorrida);
    corrida->setWordWrap(true);
    QPushButton* const corre = VisibleSi(Boton("cmdCorrer", [this] { Corre(); }),
                                         [this] { return !HayCorrida(f) || !f.datos.cambios.empty(); });
    QLabel* const faltas = Texto("lblFaltas", f.lblFaltas);
    faltas->setWordWrap(true);
    VisibleSi(faltas, [this] { return !f.lblFaltas.empty(); });
    QLabel* const nota = Texto("lblNota", f.lblNota);
    nota->setWordWrap(true);
    nota->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setLayout(EnPila({EnFila({{corrida, 1}, corre}),
                      {EnFila({{Listas(), 2}, {Campos1(), 3}, {Vista(), 3}}), 1},
                      faltas,
                      nota,
                      Botones()}));
    paso.setInterval(0);
    connect(&paso, &QTimer::timeout, this, [this] { Adelanta(); });
    entorno.AlActivarse(*this, [this] {
        if (f.abierta && !f.haciendo) LeePlantillaEnUso();
        Muestra();
    });
    RecuerdaElecciones();
}

dlgMemoria_ventana::~dlgMemoria_ventana() = default;

// --- its parts ---

/// Items that are ticked by a click on the box, or by the blank.
QListWidget* dlgMemoria_ventana::Tildes(std::string_view control,
                                        std::function<std::vector<std::string>()> textos,
                                        const std::vector<bool>& tildes,
                                        std::function<void(std::size_t, bool)> tilda)
{
    auto* const lista = Nombra(new QListWidget, control);
    lista->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    connect(lista, &QListWidget::itemChanged, this, [this, lista, tilda](const QListWidgetItem* item) {
        const auto lugar = static_cast<std::size_t>(lista->row(item));
        const bool tildado = item->checkState() == Qt::Checked;
        Suceso([&] { tilda(lugar, tildado); });
    });
    AlMostrar([lista, textos, &tildes] {
        const QSignalBlocker silencio(lista);
        const std::vector<std::string> dicen = textos();
        while (lista->count() > static_cast<int>(dicen.size()))
            delete lista->takeItem(lista->count() - 1);
        while (lista->count() < static_cast<int>(dicen.size()))
            lista->addItem(QString());
        for (std::size_t i = 0; i < dicen.size(); ++i) {
            QListWidgetItem& item = *lista->item(static_cast<int>(i));
            item.setText(Q(dicen[i]));
            item.setCheckState(tildes[i] ? Qt::Checked : Qt::Unchecked);
        }
        lista->viewport()->update();
    });
    return lista;
}

QLayout* dlgMemoria_ventana::Listas()
{
    QListWidget* const capitulos = Tildes(
        "lstCapitulos",
        [this] {
            std::vector<std::string> titulos;
            for (const Capitulo& c : f.capitulos)
                titulos.push_back(c.titulo);
            return titulos;
        },
        f.conCapitulo, [this](std::size_t i, bool si) { lstCapitulos_Tilda(f, i, si); });
    QListWidget* const compos = Tildes(
        "lstCompos", [this] { return f.componentes; }, f.conComponente,
        [this](std::size_t i, bool si) { lstCompos_Tilda(f, i, si); });
    constexpr int Letras = 44;  // of a chapter's title
    capitulos->setMinimumWidth(Letras * capitulos->fontMetrics().averageCharWidth());
    return EnPila(
        {Rotulo("lstCapitulos", capitulos), {capitulos, 3}, Rotulo("lstCompos", compos), {compos, 2}});
}

QLayout* dlgMemoria_ventana::Campos1()
{
    const auto conBoton = [this](QLineEdit* campo, std::string_view boton, std::function<void()> rutina) {
        return EnFila({{campo, 1}, Boton(boton, std::move(rutina))});
    };
    const auto linea = [this](std::string_view control, std::string& texto) {
        QLineEdit* const campo = Campo(control, texto);
        return forms::Partes{Rotulo(control, campo), campo};
    };
    QLineEdit* const logo = Campo("txtLogo", f.txtLogo);
    QLineEdit* const archivo = Campo("txtArchivo", f.txtArchivo);
    constexpr int LetrasDeRuta = 30;
    archivo->setMinimumWidth(LetrasDeRuta * archivo->fontMetrics().averageCharWidth());
    const auto lista = [this](std::string_view control, const std::vector<std::string>& items, int& indice) {
        QComboBox* const combo = Desplegable(control, items, indice, [&indice](int i) { indice = i; });
        return forms::Partes{Rotulo(control, combo), {combo, 0, Qt::AlignLeft}};
    };
    QComboBox* const formato =
        Desplegable("cmbFormato", f.formatos, f.formato, [this](int i) { cmbFormato_Click(f, i); });
    return EnRejilla(
        {linea("txtTitulo", f.txtTitulo),
         linea("txtAutor", f.txtAutor),
         linea("txtComitente", f.txtComitente),
         {Rotulo("txtLogo", logo), conBoton(logo, "cmdLogo", [this] { EligeLogo(); })},
         lista("cmbPapel", f.papeles, f.papel),
         lista("cmbDecimal", f.decimales, f.decimal),
         {Hueco(), Casilla(
                       "chkImagen", [this] { return f.chkImagen; }, [this](bool si) { f.chkImagen = si; })},
         {Hueco(), {Boton("cmdPlantilla", [this] { EditaPlantilla(); }), 0, Qt::AlignLeft}},
         {Rotulo("cmbFormato", formato), {formato, 0, Qt::AlignLeft}},
         {Rotulo("txtArchivo", archivo), conBoton(archivo, "cmdArchivo", [this] { EligeArchivo(); })},
         {}},
        {0, 1});
}

QLayout* dlgMemoria_ventana::Vista()
{
    hojas = Nombra(new Hojas, "hojas");
    hojas->setAccessibleName(QStringLiteral("Páginas de la memoria"));
    auto* const cual = Nombra(new QLabel, "lblPagina");
    AlMostrar([this, cual] {
        cual->setText(hojas->Paginas() == 0
                          ? QString()
                          : QStringLiteral("Página %1 de %2").arg(hojas->Pagina() + 1).arg(hojas->Paginas()));
    });
    const auto pasa = [this](std::string_view control, int cuantas) {
        QPushButton* const boton = Boton(control, [this, cuantas] { hojas->Pasa(cuantas); });
        boton->setMaximumWidth(3 * boton->fontMetrics().height());
        return HabilitadoSi(boton, [this, cuantas] {
            const int otra = hojas->Pagina() + cuantas;
            return otra >= 0 && otra < hojas->Paginas();
        });
    };
    QPushButton* const vista = HabilitadoSi(Boton("cmdVista", [this] { Empieza(Fin::Vista); }),
                                            [this] { return HayCorrida(f) && !f.haciendo; });
    return EnPila(
        {EnFila({vista, Hueco(), cual, pasa("cmdAnterior", -1), pasa("cmdSiguiente", 1)}), {hojas, 1}});
}

QLayout* dlgMemoria_ventana::Botones()
{
    auto* const avance = Nombra(new QProgressBar, "barAvance");
    AlMostrar([this, avance] {
        avance->setVisible(f.haciendo);
        avance->setRange(0, total);
        avance->setValue(hechas);
    });
    QPushButton* const cancela =
        VisibleSi(BotonSinRevisar("CancelButton", [this] { Cancela(); }), [this] { return f.haciendo; });
    QPushButton* const hace = HabilitadoSi(Boton("cmdHacer", [this] { Empieza(Fin::Archivo); }),
                                           [this] { return HayCorrida(f) && !f.haciendo; });
    QPushButton* const abre =
        HabilitadoSi(Boton("cmdAbrir",
                           [this] {
                               if (!AbreArchivo(f.hecha))
                                   model::Informa(entorno.s.Anfitrion,
                                                  "El sistema no tiene con qué abrir " + f.hecha + ".");
                           }),
                     [this] { return !f.hecha.empty() && !f.haciendo; });
    return EnFila({{avance, 1}, cancela, Hueco(), hace, abre, Boton("OKButton", [this] { close(); })});
}

// --- what is chosen ---

void dlgMemoria_ventana::RecuerdaElecciones()
{
    const QSettings& a = entorno.Ajustes();
    const auto numero = [&](const char* cual, std::size_t cuantos) {
        return std::clamp(a.value(Clave(cual), 0).toInt(), 0, static_cast<int>(cuantos) - 1);
    };
    f.formato = numero("formato", f.formatos.size());
    f.papel = numero("papel", f.papeles.size());
    f.decimal = numero("decimal", f.decimales.size());
    f.chkImagen = a.value(Clave("imagen"), true).toBool();
    f.txtAutor = forms::DeQ(a.value(Clave("autor")).toString());
    f.txtComitente = forms::DeQ(a.value(Clave("comitente")).toString());
    f.txtLogo = forms::DeQ(a.value(Clave("logo")).toString());
}

void dlgMemoria_ventana::GuardaElecciones()
{
    QSettings& a = entorno.Ajustes();
    a.setValue(Clave("formato"), f.formato);
    a.setValue(Clave("papel"), f.papel);
    a.setValue(Clave("decimal"), f.decimal);
    a.setValue(Clave("imagen"), f.chkImagen);
    a.setValue(Clave("autor"), Q(f.txtAutor));
    a.setValue(Clave("comitente"), Q(f.txtComitente));
    a.setValue(Clave("logo"), Q(f.txtLogo));
    a.setValue(Clave("sinCapitulos"), Q(SinCapitulos(f)));
}

void dlgMemoria_ventana::LeePlantillaEnUso()
{
    const bool primera = f.plantilla.empty();
    model::Sentencia(
        [&] { TomaPlantilla(f, PlantillaEnUso(entorno.s.Disco, entorno.s.Proyecto.DirTrabajo)); },
        model::AvisaArchivo(entorno.s.Anfitrion));
    if (!primera) return;
    std::vector<std::string> sin;
    for (const QString& clave : entorno.Ajustes().value(Clave("sinCapitulos")).toStringList())
        sin.push_back(forms::DeQ(clave));
    PonSinCapitulos(f, sin);
}

void dlgMemoria_ventana::EditaPlantilla()
{
    model::Sentencia(
        [&] {
            const std::string ruta = PreparaPlantilla(entorno.s.Disco, entorno.s.Proyecto.DirTrabajo);
            f.lblNota = "La plantilla está en " + ruta + ". Al volver a esta ventana se la lee de nuevo.";
            if (!AbreArchivo(ruta))
                model::Informa(entorno.s.Anfitrion,
                               "El sistema no tiene con qué abrir la plantilla. Está en " + ruta + ".");
        },
        model::AvisaArchivo(entorno.s.Anfitrion));
}

void dlgMemoria_ventana::EligeLogo()
{
    const std::string ruta =
        entorno.s.Anfitrion.EligeArchivo("Logo de la carátula", "Imágenes |*.png;*.jpg;*.jpeg;*.svg");
    if (!ruta.empty()) f.txtLogo = ruta;
}

void dlgMemoria_ventana::EligeArchivo()
{
    const std::string clave(ClaveDe(static_cast<Formato>(f.formato)));
    const std::string ruta = entorno.s.Anfitrion.EligeDestino("Guardar la memoria",
                                                              "Memoria de cálculo |*." + clave, f.txtArchivo);
    if (ruta.empty()) return;
    f.txtArchivo = ruta;
    f.hecha = ruta;  // the dialog has asked whether it may be replaced
}

bool dlgMemoria_ventana::LeeLogo(std::string& bytes)
{
    if (f.txtLogo.empty()) return true;
    if (!model::Sentencia([&] { bytes = entorno.s.Disco.Lee(model::RutaAbsoluta(f.txtLogo)); }))
        model::Advierte(entorno.s.Anfitrion, "No se puede leer el logo " + f.txtLogo + ".");
    else if (TipoDeImagen(bytes).empty())
        model::Advierte(entorno.s.Anfitrion, "El logo " + f.txtLogo + " no es una imagen PNG, JPEG ni SVG.");
    else
        return true;
    return false;
}

// --- making it ---

/// A file that this window hasn't written is replaced only where the user says so.
bool dlgMemoria_ventana::Reemplazable()
{
    if (f.txtArchivo.empty()) EligeArchivo();
    if (f.txtArchivo.empty()) return false;
    if (f.txtArchivo == f.hecha || !QFileInfo::exists(Q(f.txtArchivo))) return true;
    return model::Consulta(entorno.s.Anfitrion, f.txtArchivo + " ya existe. ¿Lo reemplaza?",
                           TituloDlgMemoria);
}

void dlgMemoria_ventana::Empieza(Fin para)
{
    if (f.haciendo || !HayCorrida(f)) return;
    LeePlantillaEnUso();
    Eleccion eleccion = EleccionDe(f);
    if (!LeeLogo(eleccion.logo) || (para == Fin::Archivo && !Reemplazable())) return;
    GuardaElecciones();
    fin = para;
    pedido = {f.datos,
              {},
              para == Fin::Vista ? Formato::Pdf : static_cast<Formato>(f.formato),
              eleccion.decimal,
              f.chkImagen ? Fondo() : results::FondoDeMapa{}};
    f.haciendo = true;
    f.lblNota.clear();
    hechas = total = 0;
    preparacion.Empieza([datos = f.datos, eleccion, plantilla = f.plantilla](const study::Avance& avance,
                                                                             const auto& entregaDe) {
        Datos conCasos = datos;
        if (Incluye(eleccion, "verificacion"))
            conCasos.casos =
                checks::Verifica([&](std::size_t van, std::size_t todos) { return avance(van, todos); });
        if (avance(1, 1)) entregaDe(Memoria(conCasos, eleccion, plantilla));
    });
}

void dlgMemoria_ventana::Prepara(study::Vigilada<Documento>::Mirada& mirada)
{
    if (mirada.nuevo) {
        pedido.documento = std::move(*mirada.nuevo);
        f.lblFaltas = TextoDeFaltas(pedido.documento.faltas);
        if (fin == Fin::Vista) {
            hojas->Muestra(std::move(pedido));
            return Termina("");
        }
        entrega = std::make_unique<Entrega>(std::move(pedido));
        total = static_cast<int>(entrega->Total());
        paso.start();
    } else {
        total = static_cast<int>(mirada.avance.total);
        hechas = static_cast<int>(mirada.avance.hechos);
        if (mirada.terminada) return Termina("No hubo memoria suficiente para hacerla.");
    }
    Muestra();
}

void dlgMemoria_ventana::Adelanta()
{
    if (entrega == nullptr) return paso.stop();
    const bool sigue = entrega->Adelanta();
    hechas = static_cast<int>(entrega->Hechas());
    if (sigue) return Muestra();
    paso.stop();
    entorno.Atiende([this] { Escribe(); });
    if (!entorno.Terminando()) Muestra();
}

void dlgMemoria_ventana::Escribe()
{
    const std::string ruta = model::RutaAbsoluta(f.txtArchivo);
    std::string nota = "No se pudo escribir " + ruta + "; queda como estaba.";
    const bool escrita = model::Sentencia([&] { EscribeEntera(entorno.s.Disco, ruta, entrega->Bytes()); },
                                          model::AvisaArchivo(entorno.s.Anfitrion));
    if (escrita) {
        f.hecha = f.txtArchivo;
        nota = "La memoria está en " + ruta + ".";
    }
    Termina(nota);
}

void dlgMemoria_ventana::Cancela()
{
    if (!f.haciendo) return;
    preparacion.Deja();
    Termina("Cancelada: el archivo queda como estaba.");
}

void dlgMemoria_ventana::Termina(const std::string& nota)
{
    paso.stop();
    entrega.reset();
    f.haciendo = false;
    f.lblNota = nota;
    Muestra();
}

// --- the window ---

void dlgMemoria_ventana::Abre()
{
    f.abierta = true;
    report::Toma(f, DeQue(), Base());
    LeePlantillaEnUso();
    Muestra();
    entorno.Presenta(*this);
}

void dlgMemoria_ventana::Toma()
{
    if (!f.abierta || f.haciendo) return;
    report::Toma(f, DeQue(), Base());
    Muestra();
}

void dlgMemoria_ventana::AlCerrar()
{
    Cancela();
    f.abierta = false;
}

void dlgMemoria_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && f.haciendo) return SucesoSinRevisar([this] { Cancela(); });
    Ventana::keyPressEvent(evento);
}

}  // namespace report
