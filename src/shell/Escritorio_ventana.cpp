// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Escritorio_ventana.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <iterator>
#include <memory>
#include <utility>

#include "checks/EscribeHallazgos.h"
#include "checks/Lugares.h"
#include "forms/Cajas_ventana.h"
#include "forms/Textos_ventana.h"
#include "model/Avisos.h"
#include "model/Disco.h"
#include "shell/VisorDeAyuda_ventana.h"
#include "shell/dlgAnteriores_ventana.h"
#include "shell/dlgEliminarProyecto_ventana.h"
#include "shell/dlgRecuperar_ventana.h"
#include "shell/frmAcerca_ventana.h"
#include "shell/frmInicio_ventana.h"

namespace shell {
namespace {

constexpr std::chrono::milliseconds LatidoPortada{10};
constexpr std::chrono::seconds EsperaDelEditor{3};

/// Place of a component in the order of the results in memory; 0 where it isn't there.
std::int16_t LugarEnSecuencia(const model::Siro& s, const std::string& componente)
{
    const std::vector<std::string>& nombres = s.Resultados.Secuencia;
    for (std::int16_t i = 1; i <= s.Resultados.NroComponentes; ++i)
        if (nombres[static_cast<std::size_t>(i)] == componente) return i;
    return 0;
}

/// Whether a window is another one, or is owned by it, at however many removes.
bool EstaBajo(const QObject& ventana, const QObject& otra)
{
    for (const QObject* una = &ventana; una != nullptr; una = una->parent())
        if (una == &otra) return true;
    return false;
}

}  // namespace

Escritorio::Escritorio(const std::string& dirTrabajo, const std::string& dirUsuario)
{
    s.Proyecto.DirEjecutable = dirTrabajo;
    PonAnteriores(dirUsuario);
    PonAnfitrion();
    PonAvance();
    PonMandos();
    entorno.Presenta = [this](QWidget& ventana) { Presenta(ventana); };
    entorno.AbreAyuda = [this](const std::string& ventana) { AyudaDeVentana(s, mandos, ventana); };
    PonVentanas();
    PonDiario(dirUsuario);
}

Escritorio::~Escritorio()
{
    // It may still be the child of the window that asked for it last.
    ventanaAyuda.reset();
}

void Escritorio::Arranca(double segundosPortada, const std::string& archivoConf)
{
    entorno.Atiende([&] {
        frmInicio_ventana portada;
        QTimer latido;  // so that a wait for events ends in time, and leaves the processor alone meanwhile
        latido.start(LatidoPortada);
        const Portada pasos{
            .Abre = [&](const std::string& version) { portada.Abre(version); },
            .AtiendeSucesos = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); },
            .Cierra = [&] { portada.close(); },
        };
        Prepara(s, pasos, SIRO_VERSION, segundosPortada);
        AlAbrirse(principal, s);
        ventanaPrincipal->Abre();
        if (!archivoConf.empty()) model::AbreProyectoDe(s, archivoConf);
    });
}

int Escritorio::Atiende()
{
    const int estado = entorno.Terminando() ? entorno.Estado() : QApplication::exec();
    ventanaPrincipal->GuardaLugar();
    forms::GuardaLugares(entorno.Ajustes());
    return estado;
}

// --- what the rules ask of the world ---

void Escritorio::PonAnteriores(const std::string& dirUsuario)
{
    anteriores = {s.Disco, model::CarpetaDeAnteriores(dirUsuario), [] { return std::time(nullptr); }};
    if (dirUsuario.empty()) return;
    s.Disco = model::ConAnteriores(anteriores, [this](const std::string& aviso) {
        // Behind the command that saves, whatever it still has to do.
        QTimer::singleShot(0, ventanaPrincipal.get(),
                           [this, aviso] { entorno.Atiende([&] { model::Advierte(s, aviso); }); });
    });
}

void Escritorio::PonAnfitrion()
{
    forms::PonCajas(s.Anfitrion, entorno);
    s.Anfitrion.carga_lbl_proyecto = [this] {
        AlCargarProyecto(configura, s);
        carga_lbl_proyecto(principal, s);
        ventanaPrincipal->Muestra();
    };
    const auto habilita = [this](Variable entrada) {
        principal.Estado(entrada).habilitada = true;
        ventanaPrincipal->Muestra();
    };
    s.Anfitrion.HabilitaGuardarComo = [habilita] { habilita(Variable::mnuGuardarProyectoComo); };
    s.Anfitrion.HabilitaVerificacion = [habilita] {
        habilita(Variable::mnu_prueba_funcionesSHVrepresas);
        habilita(Variable::mnu_prueba_funcionesHQrepresas);
    };
    s.Vigilancia.activa = true;
    s.Anfitrion.ReclamaProyecto = [this](const std::string& conf) { return candado.Toma(conf); };
    s.Anfitrion.TiraAPapelera = [this](const std::string& ruta) {
        model::GuardaAntesDe(anteriores, ruta);
        return QFile::moveToTrash(forms::Q(ruta));
    };
    s.Anfitrion.AbreTablaSerie = [this] {
        Abre(Ventana::dlgTablaSalePDR, false);
        tablaDeSerie = true;
    };
}

void Escritorio::PonVentanas()
{
    ventanaPrincipal = std::make_unique<MDIForm1_ventana>(entorno, principal, mandos);
    entorno.VigilaHijas(ventanaPrincipal->Ventanas());
    ventanaAvance = std::make_unique<frmPp2_ventana>(avance, ventanaPrincipal.get());
    ventanaConfigura = std::make_unique<frmConfigura_ventana>(entorno, configura, ventanaPrincipal.get());
    PonLluvia();
    ventanaHietograma = std::make_unique<results::dlgChart1_ventana>(entorno, hietograma);
    ventanaHietogramaDeLluvia = std::make_unique<results::dlgChart1_ventana>(entorno, hietogramaDeLluvia);
    ventanaHidrograma = std::make_unique<results::dlgChart2_ventana>(entorno, hidrograma);
    ventanasSerie = std::make_unique<results::VentanasDeSerie>(entorno);
    PonEstudio();
    PonInicio();
    ventanaEmpiricas = std::make_unique<empirical::dlgEmpiricas_ventana>(entorno, empiricas);
    ventanaAyuda = std::make_unique<Ayuda_ventana>(entorno);
    ventanasEditor = std::make_unique<editor::VentanasDelEditor>(entorno, [this](bool visible) {
        if (principalQueda && !visible)
            return QTimer::singleShot(0, ventanaPrincipal.get(), [this] {
                if (principalQueda) TraePrincipal();
            });
        ventanaPrincipal->setVisible(visible);
    });
    ventanaPizarra = std::make_unique<results::frmPp_ventana>(entorno, pizarra);
    results::PonPizarra(s.Anfitrion, pizarra, *ventanaPizarra,
                        principal.Estado(Variable::mnuPizarra1).marcada,
                        [this] { ventanaPrincipal->Muestra(); });
    PonFranjas();
    PonBusca();
}

void Escritorio::PonLluvia()
{
    ventanaLluvia = std::make_unique<rainfall::dlgPp_ventana>(entorno, lluvia, ventanaPrincipal.get());
    ventanaLluvia->AbreHietograma = [this](const rainfall::PedidoHietograma& p) {
        ventanaHietogramaDeLluvia->Muestra({p.N, p.paso, p.titulo, p.P, p.D});
    };
}

void Escritorio::PonEstudio()
{
    ventanasEstudio = std::make_unique<VentanasDeEstudio>(entorno, *ventanaPrincipal);
    // A slider's runs are looked over, and not kept.
    const auto trasCorrer = [this](bool seGuarda) {
        return [this, seGuarda](const model::Tormenta& entrada, bool completa) {
            ventanasEstudio->TrasCorrer(entrada, completa, seGuarda);
            ventanaPizarra->TrasCorrer();
        };
    };
    mandos.TrasCorrer = trasCorrer(true);
    mandos.AlSalir = [this] { ventanasEstudio->Talleres().AlSalir(); };
    mandos.TrasGuardarComo = [this] { ventanasEstudio->Talleres().TrasGuardarComo(); };
    mandos.TrasSerie = [this] {
        ventanasEstudio->TrasSerie();
        // Filled before the series had come to its end.
        if (std::exchange(tablaDeSerie, false)) ventanasSerie->ventanaTablaCompleta.Franja().Toma();
    };
    ventanaHidrograma->TrasCorrer = trasCorrer(false);
    hidrograma.Observados = [this](const std::string& componente) {
        return ventanasEstudio->Talleres().Observados(componente);
    };
    ventanasEstudio->Talleres().AlCambiar = [this] { ventanaHidrograma->TomaObservado(); };
    ventanasEstudio->AbreHidrograma = [this](const std::string& componente) {
        hidrograma.abierta = false;  // so that it opens on this component
        s.Control.IndComp = LugarEnSecuencia(s, componente);
        Abre(Ventana::dlgChart2);
    };
    ventanasEstudio->VeAComponente = [this](const std::string& componente) {
        VeAHallazgo({.componente = componente}, false);
    };
    checks::dlgAvisos_ventana& avisos = ventanasEstudio->VentanaAvisos();
    avisos.Va = [this](const checks::Hallazgo& h) { VeAHallazgo(h, false); };
    avisos.AgregaTiempo = [this](float minutos) {
        const bool puesto = PonTiempoAgregado(configura, s, minutos);
        if (configura.abierta) ventanaConfigura->Muestra();
        if (!puesto) return;
        hidrograma.abierta = false;  // so that it shows the new run
        mnuCorre1(principal, s, mandos);
    };
    checks::dlgRevisar_ventana& revisar = ventanasEstudio->VentanaRevisar();
    revisar.DibujoSinGuardar = [this] { return ventanasEditor->SinGuardar(); };
    revisar.Va = [this](const checks::Hallazgo& h) { VeAHallazgo(h, false); };
    revisar.Ordena = [this](const checks::Hallazgo& h) { ConLaListaALaVista([&] { VeAHallazgo(h, true); }); };
    revisar.Corrige = [this](const std::vector<checks::Hallazgo>& hallazgos) {
        int hechos = 0;
        ConLaListaALaVista([&] {
            if (!ventanasEditor->red.abierta) mnufrmUEHs(principal, s, mandos);
            if (ventanasEditor->red.abierta && !entorno.Terminando())
                hechos = ventanasEditor->Corrige(hallazgos);
        });
        return hechos;
    };
    Talleres& talleres = ventanasEstudio->Talleres();
    talleres.DibujoSinGuardar = revisar.DibujoSinGuardar;
    talleres.Aplica = [this](const std::function<void(model::Red&, model::Tormenta&)>& cambio) {
        bool hecho = false;
        ConLaListaALaVista([&] {
            if (!ventanasEditor->red.abierta) mnufrmUEHs(principal, s, mandos);
            if (!ventanasEditor->red.abierta || entorno.Terminando()) return;
            ventanasEditor->Aplica([&](model::Red& red) { cambio(red, s.Tormenta); });
            hecho = true;
        });
        return hecho;
    };
    PonCorridas();
}

void Escritorio::PonCorridas()
{
    Corridas& corridas = ventanasEstudio->CorridasGuardadas();
    corridas.DibujoSinGuardar = ventanasEstudio->Talleres().DibujoSinGuardar;
    corridas.Aplica = ventanasEstudio->Talleres().Aplica;
    corridas.MuestraTraida = [this](const Corridas::Corrida& corrida) {
        ventanasEstudio->TrasTraer(corrida);
        ventanaPizarra->TrasCorrer();
        hidrograma.abierta = ventanasSerie->abaco.abierta = false;  // so that they show the run
        Abre(corrida->esSerie ? Ventana::dlgChart3 : Ventana::dlgChart2);
    };
}

/// The room's first sheet follows each event, as the line of the status bar does.
void Escritorio::PonInicio()
{
    const auto orden = [this](Rutina rutina) { ventanaPrincipal->Ejecuta(rutina); };
    auto* const inicio = new Inicio_ventana(entorno, orden, &ventanaPrincipal->Ventanas());
    inicio->AbreTutorial = [this] { AyudaDeVentana(s, mandos, "tutorial"); };
    inicio->Corrida = [this]() -> CorridaHecha {
        if (!ventanasEstudio->HayCorrida()) return {};
        const checks::Sello suyo = ventanasEstudio->SelloDeResultados(), ahora = checks::SelloDe(s);
        const JuicioDeCorrida& juicio = ventanasEstudio->Juicio();
        const bool juzgada = !juicio.EnCurso() && juicio.Ultima() != nullptr;
        return {.hay = true,
                .deOtro = suyo.proyecto != ahora.proyecto,
                .cuando = ventanasEstudio->Cuando(),
                .difiere = checks::QueDifiere(suyo, ahora),
                .avisos = juzgada ? checks::Suma(juicio.Ultima()->avisos, "sin avisos") : std::string{}};
    };
    ventanaPrincipal->Ventanas().PonInicio(*inicio);
    entorno.AlTerminarSuceso(*inicio, [inicio] { inicio->RefrescaLuego(); });
}

void Escritorio::PonBusca()
{
    ventanaBusca = std::make_unique<dlgBusca_ventana>(entorno, *ventanaPrincipal);
    ventanaBusca->Junta = [this] {
        const IrAComponente ir{
            .propiedades =
                [this](const std::string& componente) { ventanasEstudio->VeAComponente(componente); },
            .hidrograma =
                [this](const std::string& componente) { ventanasEstudio->AbreHidrograma(componente); },
            .corridos = ventanasEstudio->ComponentesCorridos()};
        std::vector<Candidato> todos;
        for (std::vector<Candidato>& parte :
             std::array{DelMenu(principal, [this](Rutina rutina) { ventanaPrincipal->Ejecuta(rutina); }),
                        DeVentanas(*ventanaPrincipal, [this] { TraePrincipal(); }),
                        DeRecientes(s.Disco, LeeRecientes(entorno.Ajustes()),
                                    [this](const std::string& conf) { model::AbreProyectoDe(s, conf); }),
                        DeComponentes(s, ir), DeAyuda(s, mandos.AbrePaginaDeAyuda)})
            std::ranges::move(parte, std::back_inserter(todos));
        return todos;
    };
}

/// Does something that opens the editor, which comes up behind the main window this time.
void Escritorio::ConLaListaALaVista(const std::function<void()>& cuerpo)
{
    principalQueda = true;
    cuerpo();
    if (entorno.Terminando()) return;
    principalQueda = true;
    TraePrincipal();
    // Meanwhile a window that is being mapped asks for the keyboard more than once, in no fixed order with
    // what is asked for here.
    QTimer::singleShot(EsperaDelEditor, ventanaPrincipal.get(), [this] { principalQueda = false; });
}

/// Not over a form that the user is in.
void Escritorio::TraePrincipal()
{
    if (QApplication::activeModalWidget() != nullptr) return;
    ventanaPrincipal->show();
    ventanaPrincipal->raise();
    ventanaPrincipal->activateWindow();
}

/// Opens the place where a finding can be changed, with a table's rows put in order where `ordenada`. One
/// that names no component is the configuration's, unless it has a place of its own.
void Escritorio::VeAHallazgo(const checks::Hallazgo& hallazgo, bool ordenada)
{
    const checks::Lugar lugar = checks::LugarDe(hallazgo);
    const bool sinNumero = hallazgo.numero == 0 && hallazgo.componente.empty();
    if (lugar == checks::Lugar::Configuracion || sinNumero)
        return mnuOpcionesConfigurar(principal, s, mandos);
    if (lugar == checks::Lugar::Tormenta) return mnufrmPp(principal, s, mandos);
    mnufrmUEHs(principal, s, mandos);
    if (lugar == checks::Lugar::Editor || !ventanasEditor->red.abierta || entorno.Terminando()) return;
    if (!ventanasEditor->VaA(hallazgo, ordenada) && !entorno.Terminando())
        model::Informa(s, "El componente " + hallazgo.componente + " no está en la red del proyecto");
}

void Escritorio::PonFranjas()
{
    const auto pon = [this](checks::Franja& franja, std::function<void()> actualiza) {
        franja.DeResultados = [this] { return ventanasEstudio->SelloDeResultados(); };
        franja.Corre = [this] {
            if (s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR)
                mnuCorre2(principal, s, mandos);
            else
                mnuCorre1(principal, s, mandos);
        };
        franja.Actualiza = std::move(actualiza);
    };
    pon(ventanaHietograma->Franja(), [this] { mnuGraficoPp(principal, s, mandos); });
    ventanaHietograma->Franja().DeResultados = [this] { return checks::SelloDe(s); };
    pon(ventanaHidrograma->Franja(), [this] {
        hidrograma.abierta = false;  // opened anew on the component in hand
        Abre(Ventana::dlgChart2);
    });
    pon(ventanasEstudio->Mapa().Franja(), [this] { Abre(Ventana::Mapa); });
    pon(ventanaPizarra->Franja(), [this] { ventanaPizarra->Abre(); });
    for (checks::Franja* const franja : ventanasEstudio->VentanaAvisos().Franjas())
        pon(*franja, franja->Actualiza);
    pon(ventanasSerie->ventanaAbaco.Franja(), [this] {
        ventanasSerie->abaco.abierta = false;
        Abre(Ventana::dlgChart3);
    });
    pon(ventanasSerie->ventanaTablaCompleta.Franja(), [this] { Abre(Ventana::dlgTablaSalePDR); });
    pon(ventanasSerie->ventanaTablaComponente.Franja(), [this] { Abre(Ventana::dlgTablaSalePDR2); });
    pon(ventanasEstudio->VentanaResumen().Franja(), [this] { Abre(Ventana::Resumen); });
    pon(ventanasEstudio->VentanaComparar().Franja(), [this] { Abre(Ventana::Comparar); });
    ventanasEstudio->Talleres().Corre = ventanasEstudio->VentanaComparar().Franja().Corre;
    ventanasEstudio->Talleres().TormentaReal = [this] {
        return s.Tormenta.FormaPp == model::FormaLluvia::Real ? lluvia.tormenta.nombre : std::string();
    };
}

void Escritorio::PonAvance()
{
    s.Anfitrion.AbreAvance = [this](std::string_view titulo) {
        avance = {.abierta = true, .titulo = std::string(titulo)};
        ventanaAvance->Muestra();
    };
    s.Anfitrion.TextosAvance = [this](std::string_view primero, std::string_view segundo) {
        avance.primero = primero;
        avance.segundo = segundo;
        ventanaAvance->Muestra();
    };
    s.Anfitrion.BarraAvance = [this](int porcentaje) {
        avance.porcentaje = porcentaje;
        ventanaAvance->Muestra();
    };
    s.Anfitrion.CierraAvance = [this] {
        avance.abierta = false;
        ventanaAvance->Muestra();
    };
}

// --- what isn't saved ---

void Escritorio::PonDiario(const std::string& dirUsuario)
{
    const std::string dirDiarios = dirUsuario.empty() ? dirUsuario : model::Ruta(dirUsuario, "Diario");
    guarda = std::make_unique<GuardaDeDiario>(entorno, ventanasEditor->red, dirDiarios);
    auto* const sinDiario = new QLabel(QStringLiteral("Sin diario"));
    sinDiario->setObjectName(QStringLiteral("lblSinDiario"));
    ventanaPrincipal->statusBar()->addPermanentWidget(sinDiario);
    sinDiario->hide();
    guarda->AlFallar = [sinDiario](const std::string& carpeta) {
        sinDiario->setVisible(!carpeta.empty());
        sinDiario->setToolTip(
            forms::Q("El diario del trabajo sin guardar no se puede escribir en " + carpeta));
    };
    if (dirDiarios.empty()) return;
    entorno.AlTerminarSuceso(*ventanaPrincipal, [this, arrancado = std::make_shared<bool>(false)] {
        if (QApplication::activeModalWidget() != nullptr) return;
        std::string conf = ConfEnMano(s);
        const bool primera = !std::exchange(*arrancado, true), otro = conf != ofrecido;
        ofrecido = std::move(conf);
        if (primera || (otro && !ofrecido.empty()))
            entorno.Atiende([&] { OfreceRecuperar(primera ? std::string{} : ofrecido); });
    });
}

/// What programs that run no more haven't saved, of one project or, where none is named, of all. What is in
/// the files after all goes without a word.
void Escritorio::OfreceRecuperar(const std::string& soloConf)
{
    std::vector<TrabajoHallado> trabajos;
    std::vector<std::string> tomados;
    for (DiarioHallado& hallado : guarda->Hallados()) {
        tomados.push_back(hallado.ruta);
        if (!soloConf.empty() && hallado.diario.conf != soloConf) continue;
        TrabajoHallado trabajo = Mira(s, std::move(hallado));
        if (EstaGuardado(trabajo))
            model::Sentencia([&] { model::DiscoDelSistema().Borra(trabajo.hallado.ruta); });
        else
            trabajos.push_back(std::move(trabajo));
    }
    if (!trabajos.empty()) {
        shell::Abre(recuperar, std::move(trabajos));
        dlgRecuperar_ventana(entorno, recuperar, ventanaPrincipal.get()).Abre();
        // Its journal goes once all of it is in this program's own.
        if (const auto pedido = std::exchange(recuperar.pedido, {}); pedido && Recupera(*pedido))
            model::Sentencia([&] { model::DiscoDelSistema().Borra(pedido->hallado.ruta); });
    }
    for (const std::string& ruta : tomados)
        guarda->Suelta(ruta);
}

/// Brings unsaved work back: on top of what the project's files hold now, unsaved as it was.
bool Escritorio::Recupera(const TrabajoHallado& trabajo)
{
    const Diario& diario = trabajo.hallado.diario;
    ofrecido = diario.conf;
    if (ConfEnMano(s) != diario.conf) model::AbreProyectoDe(s, diario.conf);
    if (ConfEnMano(s) != diario.conf) {
        model::Advierte(s, "El proyecto " + diario.conf + " no se pudo abrir. El trabajo queda donde está.");
        return false;
    }
    if (trabajo.red) {
        mnufrmUEHs(principal, s, mandos);
        if (!ventanasEditor->red.abierta || entorno.Terminando()) return false;
        ventanasEditor->Recupera(*trabajo.red);
    }
    return guarda->EscribeYa() && diario.formas.empty();
}

// --- what the commands of the main window ask for ---

void Escritorio::PonMandos()
{
    mandos.Abre = [this](Ventana ventana) { Abre(ventana, true); };
    mandos.AbreSinEsperar = [this](Ventana ventana) { Abre(ventana, false); };
    mandos.Cierra = [this](Ventana ventana) { Cierra(ventana); };
    mandos.AlzaEditor = [this] {
        if (ventanasEditor->red.abierta) principalQueda = false;
        return ventanasEditor->AlzaEditor();
    };
    mandos.AbreHietograma = [this](const results::Hietograma& pedido) { ventanaHietograma->Muestra(pedido); };
    mandos.NotasDeTormenta = [this] { return rainfall::TituloDeTormenta(lluvia, s); };
    mandos.PunteroDeEspera = [](bool espera) {
        if (espera) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            PintaYa();
        } else {
            QGuiApplication::restoreOverrideCursor();
        }
    };
    mandos.AbrePaginaDeAyuda = [this](const std::string& ruta) { ventanaAyuda->Abre(ruta); };
    mandos.AbreConElSistema = AbreConVisorDeAyuda;
}

void Escritorio::Abre(Ventana ventana, bool espera)
{
    switch (ventana) {
    case Ventana::frmUEHs:
        return ventanasEditor->AbreEditor();
    case Ventana::dlgUEHsEditTabla:
        return ventanasEditor->AbreEditorDeTabla(*ventanaPrincipal);
    case Ventana::dlgUEHsTabla:
        return ventanasEditor->AbreTabla();
    case Ventana::dlgEliminarProyecto:
        dlgEliminarProyecto_ventana(entorno, eliminar, ventanaPrincipal.get()).Abre();
        return ventanasEstudio->Talleres().TrasEliminar();
    case Ventana::dlgAnteriores: {
        dlgAnteriores_ventana forma(entorno, versiones, anteriores, ventanaPrincipal.get());
        forma.TrasTraer = [this] { ventanasEstudio->Talleres().TrasTraer(); };
        return forma.Abre();
    }
    case Ventana::frmAcerca:
        return frmAcerca_ventana(entorno, ventanaPrincipal.get()).Abre();
    case Ventana::frmConfigura:
        return espera ? ventanaConfigura->Abre() : ventanaConfigura->AbreSinEsperar();
    case Ventana::dlgPp:
        return ventanaLluvia->Abre();
    case Ventana::frmPp:
        return ventanaPizarra->Abre();
    case Ventana::dlgChart2:
        return ventanaHidrograma->Abre();
    case Ventana::dlgChart3:
        return ventanasSerie->ventanaAbaco.Abre();
    case Ventana::dlgTablaSalePDR:
        return ventanasSerie->ventanaTablaCompleta.Abre();
    case Ventana::dlgTablaSalePDR2:
        return ventanasSerie->ventanaTablaComponente.Abre();
    case Ventana::dlgEmpiricas:
        return ventanaEmpiricas->Abre();
    case Ventana::Busca:
        return ventanaBusca->Abre();
    case Ventana::Avisos:
    case Ventana::Resumen:
    case Ventana::Comparar:
    case Ventana::CompararCorridas:
    case Ventana::Mapa:
    case Ventana::Revisar:
    case Ventana::Verificar:
    case Ventana::Corridas:
    case Ventana::Taller:
    case Ventana::Ajuste:
    case Ventana::Memoria:
        return ventanasEstudio->Abre(ventana);
    }
}

void Escritorio::Cierra(Ventana ventana)
{
    if (ventana == Ventana::frmPp) ventanaPizarra->close();
    if (ventana == Ventana::frmUEHs) ventanasEditor->CierraEditor();
}

/// A chart goes with the form that asked for it, and can then stand elsewhere. The Slate, whose switch is
/// that of the runs to come, goes back to the main window.
void Escritorio::PonBajo(QWidget& ventana, QWidget& dueno)
{
    ventanaPrincipal->Ventanas().Saca(ventana);
    if (ventana.parent() != nullptr) QObject::disconnect(ventana.parent(), nullptr, &ventana, nullptr);
    ventana.setParent(&dueno, Qt::Window);
    // The window isn't its owner's: an owner that goes without having been closed must not delete it.
    QObject::connect(&dueno, &QObject::destroyed, &ventana, [&ventana] { ventana.setParent(nullptr); });
    const auto* const formulario = qobject_cast<QDialog*>(&dueno);
    if (formulario == nullptr) return;
    const auto alTerminar = [this, &ventana, &dueno] {
        QObject::disconnect(&dueno, nullptr, &ventana, nullptr);
        const bool queda = &ventana == ventanaPizarra.get() && pizarra.abierta && !entorno.Terminando();
        if (!queda) ventana.close();
        ventana.setParent(nullptr);
        if (queda) Presenta(ventana);
    };
    QObject::connect(formulario, &QDialog::finished, &ventana, alTerminar, Qt::SingleShotConnection);
}

void Escritorio::Presenta(QWidget& ventana)
{
    QWidget* dueno = QApplication::activeModalWidget();
    // The editor hides the main window, and whatever stands in it, for as long as it is at the front.
    if (dueno == nullptr && !ventanaPrincipal->isVisible()) dueno = QApplication::activeWindow();
    if (dueno == nullptr) return ventanaPrincipal->Ventanas().Presenta(ventana);
    // What is at the front may be the window itself or stand under it, and then it stays where it is.
    if (!EstaBajo(*dueno, ventana) && ventana.parentWidget() != dueno) PonBajo(ventana, *dueno);
    ventana.show();
    ventana.raise();
    ventana.activateWindow();
}

}  // namespace shell
