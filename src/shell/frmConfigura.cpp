// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmConfigura.h"

#include <algorithm>

#include "editor/EnMano.h"
#include "forms/Evento.h"
#include "model/ArchivoConf.h"
#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/Numeros.h"
#include "model/RutaProyecto.h"
#include "model/VidaProyecto.h"

namespace shell {

using forms::Evento;
using model::ControlesConfigura;
using model::Falla;
using model::Informa;
using model::NumeroATexto;
using model::NumeroFalla;
using model::Riesgo;
using model::Siro;
using model::Val;

namespace {

constexpr std::string_view TerminacionConfigura = "Conf.vlm";
constexpr auto TerminacionesImagen = std::to_array<std::string_view>({".jpg", ".gif", ".bmp", ".wmf"});
constexpr std::string_view SinImagen = "Ninguno";
constexpr std::size_t LargoFecha = 10;

constexpr std::string_view Cargado1 = "Se han cargado los datos de configuración del archivo ";
constexpr std::string_view Cargado2 = " del proyecto ";
constexpr std::string_view NoEsConf1 = "El archivo ";
constexpr std::string_view NoEsConf2 =
    " no es un archivo de configuración válido. Los archivos de configuración tienen el formato nnConf.vlm, "
    "donde nn es el nombre del proyecto";
constexpr std::string_view DebeCargarConf = "debe cargar el archivo Conf.";
constexpr std::string_view NoEsImagen2 =  // kept as it stands
    " no es un archivo de Imágen válido. Los archivos de Imágen son extensión .bmp .gif .jpg y.wmf";
constexpr std::string_view ImagenAfuera = "La imagen está en otra carpeta. Al aplicar, el proyecto pasa a ";
constexpr std::string_view RedVacia = ", donde no tiene red.";
constexpr std::string_view SeMudo1 = "El proyecto pasó a la carpeta de su imagen, ";
constexpr std::string_view SeMudo2 = ". Su red quedó en ";
constexpr std::string_view TituloHayImagen = "Imagen de fondo";
constexpr std::string_view HayImagen1 = "En la carpeta del proyecto ya hay otro archivo ";
constexpr std::string_view HayImagen2 = ". ¿Desea reemplazarlo?";
constexpr std::string_view HayQueAplicar =
    "La ventana <Configurar> tiene cambios sin aplicar. Aplíquelos o cancélelos primero";
constexpr std::string_view YaHayDirectorio = "Verifique. Puede que ya exista un Directorio con ese nombre...";

// --- directories ---

std::string Dentro(const std::string& directorio, std::string_view nombre)
{
    const bool raiz = !directorio.empty() && directorio.back() == model::Separador;
    return raiz ? directorio + std::string(nombre) : model::Ruta(directorio, nombre);
}

void Entra(const Siro& s, const std::string& directorio)
{
    if (!s.Disco.HayDirectorio(directorio)) throw Falla{NumeroFalla::RutaNoEsta};
}

/// Creates a directory unless it is there.
void Asegura(const Siro& s, const std::string& directorio)
{
    if (!s.Disco.HayDirectorio(directorio)) s.Disco.CreaDirectorio(directorio);
}

std::string EnMinusculas(std::string nombre)
{
    const auto minuscula = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    std::transform(nombre.begin(), nombre.end(), nombre.begin(), minuscula);
    return nombre;
}

bool TerminaEnConf(const std::string& nombre)
{
    return EnMinusculas(nombre).ends_with("conf.vlm");
}

/// The pattern of the first list is "*Conf.vlm", whatever the case; what is loaded goes by the exact ending.
void ListaLosDe(frmConfigura& f, const Siro& s, const std::string& directorio)
{
    std::vector<std::string> archivos = s.Disco.Lista(directorio);
    std::erase_if(archivos, model::EsCandado);
    f.filArchivoImagenDib.PonItems(archivos);
    std::erase_if(archivos, [](const std::string& nombre) { return !TerminaEnConf(nombre); });
    f.filArchivoConfigura.PonItems(std::move(archivos));
}

/// A directory that has gone lists nothing.
void Relista(frmConfigura& f, const Siro& s)
{
    const bool listado = model::Sentencia([&] { ListaLosDe(f, s, s.frmConfigura.Dir1); });
    if (!listado) f.filArchivoConfigura = f.filArchivoImagenDib = {};
}

/// Picks a directory. Throws Falla, nothing being changed.
void Elige(frmConfigura& f, Siro& s, const std::string& directorio, const std::string& unidad)
{
    ListaLosDe(f, s, directorio);
    s.frmConfigura.Dir1 = directorio;
    s.frmConfigura.Drive1 = unidad;
}

std::string ArchivoConf(const Siro& s)
{
    return s.Proyecto.NombreProyecto + std::string(model::TerminacionConf);
}

/// Whether the image chosen is one of the directory picked.
bool ImagenDeDir1(const Siro& s)
{
    const ControlesConfigura& c = s.frmConfigura;
    const std::size_t separador = c.lblImagenDibujo.rfind(model::Separador);
    if (c.chkImagenDibujo != 1 || separador == std::string::npos) return false;
    return Dentro(c.Dir1, c.lblImagenDibujo.substr(separador + 1)) == c.lblImagenDibujo;
}

std::string RutaConf(const Siro& s, const std::string& directorio)
{
    return model::Ruta(directorio, ArchivoConf(s));
}

// --- number fields ---

/// Size of the drawing at 100 % [pixels].
double EscalaBase(const Siro& s)
{
    std::int32_t base = 0;
    model::Sentencia([&] { base = model::Entero32(Val(s.Configuracion.MaxUEHsPixel)); });
    constexpr double PorDefecto = 800;
    return base > 0 ? base : PorDefecto;
}

/// The image may be moved as far as the drawing's edge.
constexpr auto Corrimientos = std::to_array<std::string_view>({"TexIMGX0", "TexIMGY0"});

}  // namespace

bool HayImagen(const Siro& s)
{
    return Tildada(s.frmConfigura.chkImagenDibujo);
}

bool AlSalir(Siro& s, std::string_view control)
{
    const CampoConfigura* const campo = forms::CampoDe(CamposConfigura, control);
    if (campo == nullptr) return true;
    forms::ReglaNumero regla = campo->regla;
    const std::string base = NumeroATexto(EscalaBase(s));
    if (std::ranges::find(Corrimientos, control) != Corrimientos.end()) {
        regla.maximo = EscalaBase(s) - 1;
        regla.alRechazar = base;
    }
    bool pasa = true;
    Evento(s, [&] {
        std::string& texto = s.frmConfigura.*campo->texto;
        pasa = forms::AlSalir(s, regla, texto);
        if (pasa) campo->valor(s, Val(texto));
    });
    return pasa;
}

void txtFecha_DblClick(Siro& s)
{
    s.frmConfigura.txtFecha = s.Anfitrion.FechaHora().substr(0, LargoFecha);
}

// --- what was applied ---

namespace {

void RecuerdaControles(frmConfigura& f, const Siro& s)
{
    f.guardados = s.frmConfigura;
    f.archivoGuardado = s.Vigilancia.archivoConf;
}

}  // namespace

void AlCargarProyecto(frmConfigura& f, const Siro& s)
{
    if (f.archivoGuardado != s.Vigilancia.archivoConf) RecuerdaControles(f, s);
}

bool SinAplicar(const frmConfigura& f, const Siro& s)
{
    if (!f.abierta) return false;
    ControlesConfigura ahora = s.frmConfigura;
    ahora.Drive1 = f.guardados.Drive1;
    ahora.Dir1 = f.guardados.Dir1;
    ahora.lblMiArchivoConf = f.guardados.lblMiArchivoConf;
    return !(ahora == f.guardados);
}

// --- opening and activation ---

void Abre(frmConfigura& f, Siro& s)
{
    ControlesConfigura& c = s.frmConfigura;
    c.Dir1 = s.Proyecto.DirProyecto;
    c.Drive1 = model::UnidadDe(s.Proyecto.DirProyecto);
    Relista(f, s);
    f.filArchivoConfigura.indice = f.filArchivoImagenDib.indice = -1;
    if (!s.Proyecto.NombreProyecto.empty()) {
        f.lblnombreproyecto = s.Proyecto.NombreProyecto;
        c.lblMiArchivoConf = ArchivoConf(s);
    }
    f.SSTab1 = 0;
    if (s.Proyecto.ProyectoNuevo) {
        OKButton(f, s);
        f.SSTab1 = FichaImagen;
        model::Sentencia([&] { ListaLosDe(f, s, s.Proyecto.DirProyectoConf); });
        f.filArchivoConfigura.Elige(ArchivoConf(s));
        c.lblMiArchivoConf = ArchivoConf(s);
    }
    if (!f.CheckDirNv) c.TextDirNv.clear();
    RecuerdaControles(f, s);
    f.abierta = true;
}

void AlActivarse(frmConfigura& f, const Siro& s)
{
    Relista(f, s);
}

// --- directories ---

void Dir1_Change(frmConfigura& f, Siro& s, const std::string& directorio)
{
    Evento(s, [&] { Elige(f, s, directorio, model::UnidadDe(directorio)); });
}

void Drive1_Change(frmConfigura& f, Siro& s, const std::string& unidad)
{
    Dir1_Change(f, s, unidad + model::Separador);
}

void BtnDefecto(frmConfigura& f, Siro& s)
{
    Evento(s, [&] {
        if (!s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return;
        const std::string base = model::HayUnidades ? "c:\\SIRO" : model::Ruta(f.DirPersonal, "SIRO");
        const std::string proyectos = model::Ruta(base, "Proyectos");
        Asegura(s, base);
        Asegura(s, proyectos);
        Elige(f, s, proyectos, model::HayUnidades ? "C: [Disco C]" : "");
        s.Proyecto.DirProyecto = proyectos;
        s.frmConfigura.CheckDistriPp = 1;
        f.CheckDirNv = false;
    });
}

void CheckDirNv_Click(frmConfigura& f, Siro& s, bool tildada)
{
    f.CheckDirNv = tildada;
    if (!tildada) s.frmConfigura.TextDirNv.clear();
}

void BtnDirNv(frmConfigura& f, Siro& s)
{
    Evento(s, [&] {
        const std::string& nombre = s.frmConfigura.TextDirNv;
        const std::string directorio = Dentro(s.frmConfigura.Dir1, nombre);
        if (nombre.empty() || s.Disco.HayDirectorio(directorio))
            return Informa(s, std::string(YaHayDirectorio));
        if (!s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return;
        s.Disco.CreaDirectorio(directorio);
        Entra(s, directorio);
        Elige(f, s, directorio, model::UnidadDe(directorio));
        s.Proyecto.DirProyecto = directorio;
    });
}

// --- boxes and options ---

bool Tildada(std::int16_t casilla)
{
    return casilla == 1;
}

void Casilla_Click(std::int16_t& casilla, bool tildada)
{
    casilla = tildada ? 1 : 0;
}

void chkImagenDibujo_Click(Siro& s, bool tildada)
{
    Casilla_Click(s.frmConfigura.chkImagenDibujo, tildada);
    if (!tildada) s.frmConfigura.lblImagenDibujo = SinImagen;
}

void Opcion_Click(Siro& s, std::size_t i)
{
    for (const OpcionConfigura& otra : OpcionesConfigura)
        if (otra.pregunta == OpcionesConfigura[i].pregunta) s.frmConfigura.*otra.marcada = false;
    s.frmConfigura.*OpcionesConfigura[i].marcada = true;
}

// --- files ---

void filArchivoConfigura_Click(frmConfigura& f, Siro& s)
{
    if (f.filArchivoConfigura.indice < 0) return;
    const std::string archivo = f.filArchivoConfigura.Elegido();
    if (!archivo.ends_with(TerminacionConfigura)) {
        Informa(s, std::string(NoEsConf1).append(archivo).append(NoEsConf2));
        s.frmConfigura.lblMiArchivoConf = DebeCargarConf;
        return;
    }
    std::string proyecto = archivo.substr(0, archivo.size() - TerminacionConfigura.size());
    if (proyecto.ends_with('_')) proyecto.pop_back();
    const bool esOtro =
        proyecto != s.Proyecto.NombreProyecto || s.Proyecto.DirProyecto != s.frmConfigura.Dir1;
    if (esOtro && !s.Anfitrion.ResguardaDibujo(Riesgo::OtroProyecto)) return;
    s.Proyecto.DirProyecto = s.frmConfigura.Dir1;
    s.Proyecto.NombreProyecto = proyecto;
    model::RecuperaGuardado(s, s.Proyecto.DirProyecto);
    model::LeeConfReclamada(s);
    RecuerdaControles(f, s);
    f.lblnombreproyecto = s.Proyecto.NombreProyecto;
    Relista(f, s);
    // A pointer that can't be written keeps no project from being loaded.
    model::Sentencia([&] { model::MuestraProyecto(s); });
    Informa(s, std::string(Cargado1).append(archivo).append(Cargado2).append(s.Proyecto.NombreProyecto));
}

void filArchivoImagenDib_Click(frmConfigura& f, Siro& s)
{
    if (f.filArchivoImagenDib.indice < 0) return;
    const std::string archivo = f.filArchivoImagenDib.Elegido();
    const std::string minuscula = EnMinusculas(archivo);
    const bool esImagen = std::any_of(TerminacionesImagen.begin(), TerminacionesImagen.end(),
                                      [&](std::string_view fin) { return minuscula.ends_with(fin); });
    if (esImagen) {
        s.frmConfigura.lblImagenDibujo = Dentro(s.frmConfigura.Dir1, archivo);
        return;
    }
    Informa(s, std::string(NoEsConf1).append(archivo).append(NoEsImagen2));
    s.frmConfigura.lblImagenDibujo = SinImagen;
}

// --- commands ---

namespace {

/// Whether a file of a directory is there; one that can't be listed has none.
bool Esta(const Siro& s, const std::string& directorio, std::string_view nombre)
{
    bool esta = false;
    model::Sentencia([&] {
        const auto nombres = s.Disco.Lista(directorio);
        esta = std::find(nombres.begin(), nombres.end(), nombre) != nombres.end();
    });
    return esta;
}

/// Stores the configuration. Returns false where the user or a fault, which was told, kept it from that.
bool Aplica(frmConfigura& f, Siro& s)
{
    const std::string antes = s.Proyecto.DirProyecto;
    const bool semuda = !s.Proyecto.NombreProyecto.empty() && s.frmConfigura.Dir1 != antes;
    const bool porLaImagen = semuda && ImagenDeDir1(s);
    const bool habiaConf = Esta(s, s.frmConfigura.Dir1, ArchivoConf(s));
    if (semuda && !s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return false;
    bool guardada = false;
    Evento(s, [&] { guardada = model::cmdAplicar(s); });
    if (guardada) RecuerdaControles(f, s);
    if (!guardada || !semuda) return guardada;
    f.mudanza = porLaImagen ? Mudanza{antes, RutaConf(s, s.Proyecto.DirProyecto), !habiaConf} : Mudanza{};
    return true;
}

/// Whether the project in hand is the one that went to the folder of its image.
bool SeMudo(const frmConfigura& f, const Siro& s)
{
    return !f.mudanza.desde.empty() && f.mudanza.conf == RutaConf(s, s.Proyecto.DirProyecto);
}

/// Copies a file into the project's folder, over another one only where the user wants that. Returns whether
/// it is there. Throws Falla.
bool CopiaACasa(const Siro& s, const std::string& casa, const std::string& ruta, const std::string& nombre)
{
    const std::string destino = Dentro(casa, nombre);
    if (Esta(s, casa, nombre)) {
        if (s.Disco.Lee(destino) == s.Disco.Lee(ruta)) return true;
        const std::string pregunta = std::string(HayImagen1).append(nombre).append(HayImagen2);
        if (!model::Consulta(s, pregunta, TituloHayImagen)) return false;
    }
    s.Disco.Copia(ruta, destino);
    return true;
}

/// The project that the choice has left in the image's folder is none: its one file goes.
void QuitaLoDejado(const Mudanza& mudanza, const Siro& s)
{
    if (!mudanza.nueva) return;
    if (!s.Anfitrion.TiraAPapelera(mudanza.conf)) s.Disco.Borra(mudanza.conf);
}

}  // namespace

std::string AvisoImagen(const frmConfigura& f, const Siro& s)
{
    if (s.Proyecto.NombreProyecto.empty()) return {};
    if (s.frmConfigura.Dir1 != s.Proyecto.DirProyecto && ImagenDeDir1(s))
        return std::string(ImagenAfuera).append(s.frmConfigura.Dir1).append(RedVacia);
    if (!SeMudo(f, s) || s.frmConfigura.Dir1 != s.Proyecto.DirProyecto || !ImagenDeDir1(s)) return {};
    return std::string(SeMudo1).append(s.Proyecto.DirProyecto).append(SeMudo2).append(f.mudanza.desde);
}

void cmdTraeImagen(frmConfigura& f, Siro& s)
{
    Evento(s, [&] {
        if (AvisoImagen(f, s).empty()) return;
        const std::string casa = SeMudo(f, s) ? f.mudanza.desde : s.Proyecto.DirProyecto;
        const std::string ruta = s.frmConfigura.lblImagenDibujo;
        const std::string nombre = ruta.substr(ruta.rfind(model::Separador) + 1);
        if (!s.Anfitrion.ResguardaDibujo(Riesgo::MueveProyecto)) return;
        if (!CopiaACasa(s, casa, ruta, nombre)) return;
        Elige(f, s, casa, model::UnidadDe(casa));
        s.frmConfigura.lblImagenDibujo = Dentro(casa, nombre);
        if (casa == s.Proyecto.DirProyecto) return;
        s.Vigilancia.archivoConf = RutaConf(s, casa);  // the project's own, left as it was
        if (!model::cmdAplicar(s)) return;
        RecuerdaControles(f, s);
        QuitaLoDejado(f.mudanza, s);
        f.mudanza = {};
        s.Anfitrion.carga_lbl_proyecto();
        Relista(f, s);
    });
}

void cmdAplicar(frmConfigura& f, Siro& s)
{
    Aplica(f, s);
    Relista(f, s);
}

bool PonTiempoAgregado(frmConfigura& f, Siro& s, float minutos)
{
    if (SinAplicar(f, s)) {
        Informa(s, std::string(HayQueAplicar));
        return false;
    }
    if (!model::leoConf(s)) return false;  // what an earlier opening left in the fields isn't stored
    s.frmConfigura.txtN0Dur = NumeroATexto(minutos);
    const bool guardada = AlSalir(s, "txtN0Dur") && Aplica(f, s);
    Relista(f, s);
    return guardada;
}

void OKButton(frmConfigura& f, Siro& s)
{
    if (!Aplica(f, s)) return;
    Relista(f, s);
    f.abierta = false;
    s.Anfitrion.carga_lbl_proyecto();
}

void CancelButton(frmConfigura& f)
{
    f.abierta = false;
}

}  // namespace shell
