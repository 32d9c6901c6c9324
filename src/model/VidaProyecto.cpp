// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/VidaProyecto.h"

#include <algorithm>
#include <utility>

#include "model/ArchivoConf.h"
#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/Clases.h"
#include "model/Companeros.h"
#include "model/Componentes.h"
#include "model/EscriturasEnEspera.h"
#include "model/Falla.h"
#include "model/Registros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view CarpetaProyectos = "Proyectos";

constexpr std::string_view TituloNuevo = "Proyecto Nuevo";
constexpr std::string_view TituloGuardarComo =  // kept as it stands
    "Cuardar Como...(copia el proyecto actual con otro nombre)";
constexpr std::string_view PreguntaNombre = "Ingrese un nombre de archivo para el nuevo proyecto: ";
constexpr std::string_view TituloNombreInvalido = "Nombre de Proyecto inválido!!";
constexpr std::string_view NombreInvalido =
    "Nombre inválido: Ingrese solamente letras y/o dígitos sin caracteres especiales";
constexpr std::string_view YaExiste1 = "El proyecto ya existe en el archivo <";
constexpr std::string_view YaExiste2 = ">. Elija un nombre distinto o elimine el proyecto existente.";
constexpr std::string_view ErrorDesconocido = "Error de archivo desconocido";
constexpr std::string_view TituloAbrir = "Abrir";
constexpr std::string_view FiltroAbrir = "Archivos de Proyecto (*_Conf.vlm) |*_Conf.vlm";
constexpr std::string_view TituloEliminar = "Consulta";
constexpr std::string_view Eliminar1 = "¿Está seguro de borrar los archivos del Proyecto <";
constexpr std::string_view Eliminar2 = "> ? ";
constexpr std::string_view Completado1 =
    "Un guardado anterior quedó interrumpido. Se lo completó ahora con los archivos: ";
constexpr std::string_view Pendiente1 =
    "Un guardado anterior quedó interrumpido y no se pudo completar. Se intentará otra vez en la próxima "
    "apertura. Archivos: ";
constexpr std::string_view SinNombre =
    "El archivo elegido no lleva nombre de proyecto: no se borra ningún archivo.";
constexpr std::string_view SinProyectoElegido = "Ninguno";

/// A path on another machine, where the program must leave the directories as they are.
bool RutaDeRed(std::string_view ruta)
{
    return ruta.size() > 1 && ruta[0] == Separador && ruta[1] == Separador;
}

/// Stands for the change to a directory. Throws Falla 76 where it isn't there; the empty path is none.
void Entra(const Siro& s, const std::string& directorio)
{
    if (directorio.empty() || !s.Disco.HayDirectorio(directorio)) throw Falla{NumeroFalla::RutaNoEsta};
}

/// Creates a directory. Throws Falla 75 where it isn't there afterwards.
void AseguraDirectorio(const Siro& s, const std::string& directorio)
{
    Sentencia([&] { s.Disco.CreaDirectorio(directorio); },
              [&](const Falla& falla) {
                  if (!s.Disco.HayDirectorio(directorio)) throw falla;
              });
}

std::string ProyectosPorDefecto(const Siro& s)
{
    return Ruta(s.Proyecto.DirTrabajo, CarpetaProyectos);
}

/// Steps of the pointer's reading. Throws Falla where one of them fails.
void BuscaProyecto(Siro& s)
{
    s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable;
    Entra(s, s.Proyecto.DirTrabajo);
    AseguraDirectorio(s, ProyectosPorDefecto(s));
    LectorRegistros lector(s.Disco.Lee(Ruta(s.Proyecto.DirTrabajo, ArchivoPuntero)));
    s.Proyecto.DirProyecto = lector.Texto();
    s.Proyecto.NombreProyecto = lector.Texto();
    if (!SirveDeNombre(s.Proyecto.NombreProyecto)) throw Falla{NumeroFalla::AccesoRuta};
    if (s.Proyecto.DirProyecto.empty()) s.Proyecto.DirProyecto = ProyectosPorDefecto(s);
    Entra(s, s.Proyecto.DirProyecto);
    if (s.Proyecto.ConfPendiente)
        s.Disco.Lee(Ruta(s.Proyecto.DirProyecto, ArchivoConf(s.Proyecto.NombreProyecto)));
}

/// Asks for the name of a project. Returns the empty text where the user cancels or the name is refused.
std::string PideNombre(const Siro& s, std::string_view titulo)
{
    std::string nombre = s.Anfitrion.PideTexto({std::string(PreguntaNombre), std::string(titulo), {}});
    if (NombreProyectoValido(nombre)) return nombre;
    Advierte(s, std::string(NombreInvalido), TituloNombreInvalido);
    return {};
}

/// Makes a name the current project's. Returns false, after telling so, where such a project exists; the name
/// stays all the same. Throws Falla.
bool TomaNombreNuevo(Siro& s, const std::string& nombre)
{
    s.Proyecto.NombreProyecto = nombre;
    s.Proyecto.ProyectoNuevo = true;
    if (s.Proyecto.DirProyectoConf.empty()) s.Proyecto.DirProyectoConf = s.Proyecto.DirProyecto;
    Entra(s, s.Proyecto.DirProyectoConf);
    s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirProyectoConf, ArchivoConf(nombre));
    if (!Sentencia([&] { s.Disco.Lee(s.Proyecto.ArchivoTemp); }, SalvoQueFalte)) {
        s.Proyecto.ProyectoNuevo = ApartaCompaneros(s, s.Proyecto.DirProyecto, nombre);
        return s.Proyecto.ProyectoNuevo;
    }
    // The next opening of the configuration would otherwise write over the project that exists.
    s.Proyecto.ProyectoNuevo = false;
    Informa(s, std::string(YaExiste1).append(ArchivoConf(nombre)).append(YaExiste2));
    return false;
}

/// Runs something that works on another disk, and puts the disk back however it ends.
template <typename F>
void EnOtroDisco(Siro& s, Disco disco, F&& cuerpo)
{
    std::swap(s.Disco, disco);
    try {
        cuerpo();
    } catch (...) {
        std::swap(s.Disco, disco);
        throw;
    }
    std::swap(s.Disco, disco);
}

/// Copies every file of the project, or none: what is written waits until all of it is there. The messages
/// come when it is on the disk. Throws Falla.
void CopiaProyecto(Siro& s, const std::string& viejo, const std::string& nuevo)
{
    const EscriturasEnEspera espera(s.Disco);
    std::vector<CambioArchivo> red;
    std::string conf;
    const auto copia = [&](std::string_view terminacion) {
        const std::string original = Ruta(s.Proyecto.DirProyecto, std::string(viejo).append(terminacion));
        s.Proyecto.ArchivoTemp = Ruta(s.Proyecto.DirProyecto, std::string(nuevo).append(terminacion));
        Sentencia([&] { s.Disco.Copia(original, s.Proyecto.ArchivoTemp); }, SalvoQueFalte);
    };
    EnOtroDisco(s, espera.Puerta(), [&] {
        copia(TerminacionConf);
        s.frmConfigura.lblMiArchivoConf = ArchivoConf(nuevo);
        EscribeConf(s);
        conf = s.Proyecto.ArchivoTemp;
        copia("_VerCau.vlm");
        copia("_UEHs.vlm");
        // A network that couldn't be read is copied as it is; any other one must be written anew.
        if (!EscribeRed(s, red) && !s.Control.CargaFallida) throw Falla{NumeroFalla::AccesoRuta};
        copia("_RHQ.vlm");
        copia("_RHAS.vlm");
        copia("_LHASQ.vlm");
        CopiaCompaneros(s, s.Proyecto.DirProyecto, viejo, nuevo);
    });
    espera.Cumple();
    s.Proyecto.ProyectoNuevo = false;
    ReclamaProyecto(s);
    AvisaConfGuardada(s, conf);
    AlGuardarse(s, red);
}

/// Opens the project of a configuration file; of any other file, none.
void AbreRuta(Siro& s, std::string_view ruta)
{
    if (!TomaRutaProyecto(s, ruta)) return;
    RecuperaGuardado(s, s.Proyecto.DirProyecto);
    // The labels come before the configuration and so show the earlier titles: kept as it stands. A pointer
    // that can't be written keeps no project from being opened.
    Sentencia([&] { MuestraProyecto(s); });
    LeeConfReclamada(s);
    s.Anfitrion.HabilitaGuardarComo();
}

/// Runs what New and Save as do on disk: a fault that they have no answer for ends the program.
template <typename F>
void ConFallaFatal(const Siro& s, F&& cuerpo)
{
    if (Sentencia(cuerpo)) return;
    Informa(s, std::string(ErrorDesconocido));
    s.Anfitrion.Termina();
}

}  // namespace

// --- the pointer to the last project ---

void LeePuntero(Siro& s)
{
    const bool guardado = Sentencia([&] {
        if (!RutaDeRed(s.Proyecto.DirEjecutable)) BuscaProyecto(s);
        GuardaPuntero(s);
    });
    if (guardado) return;
    s.Proyecto.DirProyecto = ProyectosPorDefecto(s);
    s.Proyecto.NombreProyecto.clear();
    Sentencia([&] { GuardaPuntero(s); });
}

void GuardaPuntero(Siro& s)
{
    Entra(s, s.Proyecto.DirTrabajo);
    EscritorRegistros escritor(s.Disco);
    escritor.Abre(Ruta(s.Proyecto.DirTrabajo, ArchivoPuntero));
    escritor.Texto(s.Proyecto.DirProyecto).FinRegistro();
    escritor.Texto(s.Proyecto.NombreProyecto).FinRegistro();
    escritor.Cierra();
}

void MuestraProyecto(Siro& s)
{
    s.Anfitrion.carga_lbl_proyecto();
    GuardaPuntero(s);
}

void RecuperaGuardado(const Siro& s, const std::string& directorio)
{
    const auto avisa = [&](std::string_view texto, const std::vector<std::string>& nombres) {
        std::string lista;
        for (const std::string& nombre : nombres)
            lista.append(lista.empty() ? "" : ", ").append(nombre);
        if (!nombres.empty()) Advierte(s, std::string(texto) + lista);
    };
    Sentencia([&] {
        const Recuperacion hecha = s.Disco.Recupera(directorio);
        avisa(Completado1, hecha.completados);
        avisa(Pendiente1, hecha.pendientes);
    });  // whoever opens the folder next will meet it
}

void LimpiaProyecto(Siro& s)
{
    CadaClase(s.Red, [](auto& coleccion) { coleccion.Vacia(); });
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = s.Seleccion.VerticeSel = 0;
    s.Proyecto.NombreProyecto.clear();
    s.Proyecto.DirProyecto.clear();
    s.Proyecto.DirProyectoConf.clear();
    s.Proyecto.ArchivoTemp.clear();
    LeePuntero(s);
}

// --- the commands of the main menu ---

bool NombreProyectoValido(std::string_view nombre)
{
    return std::all_of(nombre.begin(), nombre.end(), [](char letra) {
        const auto codigo = static_cast<unsigned char>(letra);
        return codigo >= 48 && codigo <= 122 && !(codigo >= 58 && codigo <= 63) &&
               !(codigo >= 91 && codigo <= 96);
    });
}

bool mnuNuevoProyecto(Siro& s)
{
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::OtroProyecto)) return false;
    LimpiaProyecto(s);
    const std::string nombre = PideNombre(s, TituloNuevo);
    if (nombre.empty()) return false;
    bool hayNuevo = false;
    ConFallaFatal(s, [&] {
        if (!TomaNombreNuevo(s, nombre)) return;
        MuestraProyecto(s);
        hayNuevo = true;
    });
    return hayNuevo;
}

void mnuAbrirProyecto(Siro& s)
{
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::OtroProyecto)) return;
    LimpiaProyecto(s);
    const std::string ruta = s.Anfitrion.EligeArchivo(TituloAbrir, FiltroAbrir);
    if (!ruta.empty()) AbreRuta(s, ruta);
}

void LeeConfReclamada(Siro& s)
{
    ReclamaProyecto(s);
    const std::string nombre = s.Proyecto.NombreProyecto;
    leoConf(s);
    if (s.Proyecto.NombreProyecto != nombre) ReclamaProyecto(s);
}

void AbreProyectoDe(Siro& s, std::string_view ruta)
{
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::OtroProyecto)) return;
    LimpiaProyecto(s);
    AbreRuta(s, ruta);
}

bool TomaRutaProyecto(Siro& s, std::string_view ruta)
{
    if (!ruta.ends_with(TerminacionConf)) {
        s.Proyecto.ArchivoTemp.clear();
        s.Proyecto.NombreProyecto.clear();
        return false;
    }
    s.Proyecto.ArchivoTemp = RutaLlana(ruta);
    const std::string_view llana = s.Proyecto.ArchivoTemp;
    const std::string_view resto = llana.substr(0, llana.size() - TerminacionConf.size());
    const std::size_t ultimo = resto.rfind(Separador);
    if (ultimo == std::string_view::npos) {
        s.Proyecto.NombreProyecto = resto;
        return true;
    }
    s.Proyecto.DirProyecto = resto.substr(0, ultimo);
    s.Proyecto.NombreProyecto = resto.substr(ultimo + 1);
    s.Proyecto.DirProyectoConf = resto.substr(0, resto.find(Separador) + 1);
    return true;
}

void mnu_ultimoarchivo1(Siro& s)
{
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::OtroProyecto)) return;
    LimpiaProyecto(s);
    RecuperaGuardado(s, s.Proyecto.DirProyecto);
    LeeConfReclamada(s);
    Sentencia([&] { MuestraProyecto(s); });
    if (!s.Proyecto.NombreProyecto.empty()) s.Anfitrion.HabilitaGuardarComo();
}

void mnuGuardarProyectoComo(Siro& s)
{
    if (s.Proyecto.NombreProyecto.empty()) return;
    if (!s.Anfitrion.ResguardaDibujo(Riesgo::ReleeRed)) return;
    const std::string viejo = s.Proyecto.NombreProyecto;  // the load takes the name from inside the file
    LeeUEHs(s);
    const std::string nuevo = PideNombre(s, TituloGuardarComo);
    if (nuevo.empty()) return;
    ConFallaFatal(s, [&] {
        if (TomaNombreNuevo(s, nuevo)) CopiaProyecto(s, viejo, nuevo);
    });
}

// --- deleting ---

namespace {

/// What stands before the first "_" of a file that was picked: every file that begins so goes with it.
std::string_view PrefijoDe(std::string_view archivo)
{
    return archivo.substr(0, archivo.find('_'));
}

}  // namespace

void dlgEliminarProyecto::Abre(const Siro& s)
{
    *this = {};
    DirProyecto = s.Proyecto.DirProyecto;
    Sentencia([&] {
        filProyectoEliminar = s.Disco.Lista(s.Proyecto.DirProyecto);
        companeros = CompanerosPorConf(s, DirProyecto, filProyectoEliminar);
    });
    std::erase_if(filProyectoEliminar, [](const std::string& n) { return !n.ends_with(TerminacionConf); });
}

void dlgEliminarProyecto::filProyectoEliminar_AlPulsar(std::string_view archivo)
{
    lblProyectoAEliminar = archivo;
    lblTambien.clear();
    const std::string_view prefijo = PrefijoDe(archivo);
    for (const auto& [conf, nombres] : companeros)
        if (!prefijo.empty() && conf.starts_with(prefijo))
            for (const std::string& nombre : nombres)
                lblTambien.append(lblTambien.empty() ? "" : ", ").append(nombre);
}

void dlgEliminarProyecto::OKButton(Siro& s)
{
    // The name asked about is the current project's and not that of the file picked: kept as it stands.
    const std::string texto = std::string(Eliminar1).append(s.Proyecto.NombreProyecto).append(Eliminar2);
    if (!s.Anfitrion.Pregunta({texto, std::string(TituloEliminar), Icono::Pregunta})) return;
    if (lblProyectoAEliminar.empty() || lblProyectoAEliminar == SinProyectoElegido) return;
    const std::string prefijo(PrefijoDe(lblProyectoAEliminar));
    const bool elPresente =
        !s.Proyecto.NombreProyecto.empty() && ArchivoConf(s.Proyecto.NombreProyecto).starts_with(prefijo);
    if (prefijo.empty()) return Advierte(s, std::string(SinNombre), TituloEliminar);
    if (elPresente && !s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return;
    Entra(s, s.Proyecto.DirProyecto);
    const std::string& dir = s.Proyecto.DirProyecto;
    Sentencia([&] { companeros = CompanerosPorConf(s, dir, s.Disco.Lista(dir)); });
    for (const auto& [conf, nombres] : companeros)
        for (const std::string& nombre : nombres)
            if (conf.starts_with(prefijo) && companeros.contains(lblProyectoAEliminar)) Tira(s, dir, nombre);
    Tira(s, dir, lblProyectoAEliminar);
    constexpr std::string_view terminacion = ".vlm";
    for (const std::string& nombre : s.Disco.Lista(dir)) {
        const bool coincide = nombre.size() >= prefijo.size() + terminacion.size() &&
                              nombre.starts_with(prefijo) && nombre.ends_with(terminacion);
        if (coincide) Tira(s, dir, nombre);
    }
    abierto = false;
}

}  // namespace model
