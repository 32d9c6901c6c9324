// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Configuracion.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace model {

namespace {

using Controles = ControlesConfigura;

constexpr std::string_view SufijoConf = "_Conf.vlm";
constexpr std::string_view SinImagen = "Ninguno";

constexpr std::string_view AvisoGuardado =
    "Los datos de configuración del proyecto se han guardado correctamente en el archivo ";
constexpr std::string_view AvisoDanado1 = " El archivo de configuración <";
constexpr std::string_view AvisoDanado2 =
    "_Conf.vlm > está dañado. Corrija o elimine manualmente este archivo";

constexpr std::string_view TituloDeOtro = "Archivo de otro proyecto";
constexpr std::string_view PreguntaDeOtro1 = "El archivo ";
constexpr std::string_view PreguntaDeOtro2 =
    " ya existe y no es el del proyecto que se abrió. ¿Desea reemplazarlo?";

constexpr std::int16_t Tildada = 1;

// --- drives ---

/// Bytes of the drive at the head of a path: its first two characters, on a platform without drives only
/// where the second one is a colon.
std::size_t LargoUnidad(std::string_view ruta)
{
    const auto fin = [&](std::size_t i) {
        ++i;
        while (i < ruta.size() && (static_cast<unsigned char>(ruta[i]) & 0xC0U) == 0x80U)
            ++i;
        return std::min(i, ruta.size());
    };
    const std::size_t segundo = fin(0);
    const bool dosPuntos = segundo < ruta.size() && ruta[segundo] == ':';
    return HayUnidades || dosPuntos ? fin(segundo) : 0;
}

std::string_view SinUnidad(std::string_view ruta)
{
    return ruta.substr(std::min(LargoUnidad(ruta), ruta.size()));
}

/// Sets the drive control. A drive that isn't there leaves it as it is.
void PonUnidad(Siro& s, const std::string& unidad)
{
    if (HayUnidades && s.Disco.HayDirectorio(unidad + Separador)) s.frmConfigura.Drive1 = unidad;
}

// --- the fields of the file ---

/// A reading under way.
struct Lectura {
    Siro& s;
    LectorRegistros& lector;
    bool mudado = false;  ///< the project stands elsewhere than its file says
    bool deOtro = false;  ///< the file bears another name than it tells
};

/// A field of the file: how it reaches variable and control, and how it is written.
struct CampoConf {
    void (*Lee)(Lectura& l);
    void (*Escribe)(EscritorRegistros& e, const Siro& s);
};

/// A field that is written from its control.
template <auto Control>
void EscribeTexto(EscritorRegistros& e, const Siro& s)
{
    e.Texto(s.frmConfigura.*Control);
}

template <auto Variable, auto Control>
consteval CampoConf Texto()
{
    return {[](Lectura& l) {
                l.s.Configuracion.*Variable = l.lector.Texto();
                l.s.frmConfigura.*Control = l.s.Configuracion.*Variable;
            },
            EscribeTexto<Control>};
}

template <auto Variable, auto Control>
consteval CampoConf Marca()
{
    return {[](Lectura& l) {
                l.s.Configuracion.*Variable = l.lector.Numero16();
                l.s.frmConfigura.*Control = l.s.Configuracion.*Variable;
            },
            [](EscritorRegistros& e, const Siro& s) { e.Numero(s.frmConfigura.*Control); }};
}

template <auto Variable, auto Control>
consteval CampoConf Opcion()
{
    return {[](Lectura& l) {
                l.s.Configuracion.*Variable = l.lector.Logico();
                l.s.frmConfigura.*Control = l.s.Configuracion.*Variable;
            },
            [](EscritorRegistros& e, const Siro& s) { e.Logico(s.frmConfigura.*Control); }};
}

/// A shift of the image: read as text, written as the bare number of the variable.
template <auto Variable, auto Control>
consteval CampoConf Corrimiento()
{
    return {[](Lectura& l) {
                l.s.Configuracion.*Variable = Simple(Val(l.lector.Texto()));
                l.s.frmConfigura.*Control = NumeroATexto(l.s.Configuracion.*Variable);
            },
            [](EscritorRegistros& e, const Siro& s) { e.Numero(s.Configuracion.*Variable); }};
}

template <std::size_t N>
consteval std::size_t Lugar(const std::array<std::int16_t, N>& lista, std::int16_t valor)
{
    std::size_t i = 0;
    while (lista[i] != valor)
        ++i;
    return i;
}

/// A box of a selection and the flag that its field is read into.
template <auto Variables, auto Casillas, std::size_t Casilla, std::size_t Bandera>
consteval CampoConf Seleccion()
{
    return {[](Lectura& l) {
                (l.s.Configuracion.*Variables)[Bandera] = l.lector.Numero16();
                (l.s.frmConfigura.*Casillas)[Casilla] = (l.s.Configuracion.*Variables)[Bandera];
            },
            [](EscritorRegistros& e, const Siro& s) { e.Numero((s.frmConfigura.*Casillas)[Casilla]); }};
}

template <std::int16_t R, std::int16_t RBandera = R>
consteval CampoConf Rec()
{
    return Seleccion<&Configuracion::CheckR, &Controles::CheckR, Lugar(Recurrencias, R),
                     Lugar(Recurrencias, RBandera)>();
}

template <std::int16_t D>
consteval CampoConf Dur()
{
    return Seleccion<&Configuracion::CheckD, &Controles::CheckD, Lugar(Duraciones, D),
                     Lugar(Duraciones, D)>();
}

/// A name that leads out of the project's directory makes the file a damaged one.
void LeeNombre(Lectura& l)
{
    std::string nombre = l.lector.Texto();
    if (!SirveDeNombre(nombre)) throw Falla{NumeroFalla::FinDeArchivo};
    l.deOtro = nombre != l.s.Proyecto.NombreProyecto;
    l.s.Proyecto.NombreProyecto = std::move(nombre);
}

void EscribeNombre(EscritorRegistros& e, const Siro& s)
{
    e.Texto(s.Proyecto.NombreProyecto);
}

void LeeUnidad(Lectura& l)
{
    l.s.Proyecto.DriveProyecto = l.lector.Texto();
    PonUnidad(l.s, l.s.Proyecto.DriveProyecto);
}

/// The directory, and with it the question whether the project has moved: then it keeps the present one, and
/// so it does where the file can't hold its characters.
void LeeDirectorio(Lectura& l)
{
    Siro& s = l.s;
    s.Proyecto.DirProyectoConf = RutaLlana(l.lector.Texto());
    s.Proyecto.DirProyecto = RutaLlana(s.Proyecto.DirProyecto);
    const std::string_view dicho = SinUnidad(s.Proyecto.DirProyectoConf);
    const bool igual = SinUnidad(s.Proyecto.DirProyecto) == dicho;
    const bool parecido = igual || SinUnidad(ComoVuelve(s.Proyecto.DirProyecto)) == dicho;
    l.mudado = s.Proyecto.DriveProyecto != s.frmConfigura.Drive1 || !parecido;
    if (l.mudado || !igual) s.Proyecto.DirProyectoConf = s.Proyecto.DirProyecto;
    s.frmConfigura.Dir1 = s.Proyecto.DirProyectoConf;
    s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf;
}

void LeeImagen(Lectura& l)
{
    l.s.Configuracion.ArchivoImagenDibujo = l.lector.Texto();
    l.s.frmConfigura.lblImagenDibujo = l.s.Configuracion.ArchivoImagenDibujo;
    l.s.Configuracion.ArchivoImagen = l.s.Configuracion.ArchivoImagenDibujo;
}

void LeeEscalaImagen(Lectura& l)
{
    l.s.Configuracion.EscalaImagen = Val(l.lector.Texto());
    l.s.frmConfigura.TexIMGEscala = NumeroATexto(l.s.Configuracion.EscalaImagen);
}

void LeeN0Dur(Lectura& l)
{
    l.s.Pasos.N0Dur = l.lector.NumeroSimple();
    l.s.frmConfigura.txtN0Dur = NumeroATexto(l.s.Pasos.N0Dur);
}

void EscribeN0Dur(EscritorRegistros& e, const Siro& s)
{
    e.Numero(s.Pasos.N0Dur);
}

/// The control keeps what was typed, with points; the variable is the text of its leading number.
void LeeEscalaDibujo(Lectura& l)
{
    l.s.frmConfigura.txtEscalaImagen = ComasAPuntos(l.lector.Texto());
    l.s.Configuracion.EscalaDibujo = NumeroATexto(Val(l.s.frmConfigura.txtEscalaImagen));
}

/// The fields in the order of the file, a line each.
// clang-format off
constexpr auto Campos = std::to_array<CampoConf>({
    {LeeNombre, EscribeNombre},
    Texto<&Configuracion::TituloProyecto, &Controles::TextProyecto>(),
    Texto<&Configuracion::Ubicacion, &Controles::TextUbica>(),
    Texto<&Configuracion::Cuenca, &Controles::TextCuenca>(),
    Texto<&Configuracion::Subcuenca, &Controles::TextSbca>(),
    Texto<&Configuracion::Operador, &Controles::TextOpera>(),
    Texto<&Configuracion::FechaProyecto, &Controles::txtFecha>(),
    {LeeUnidad, EscribeTexto<&Controles::Drive1>},
    {LeeDirectorio, EscribeTexto<&Controles::Dir1>},
    Texto<&Configuracion::DirNv, &Controles::TextDirNv>(),
    Marca<&Configuracion::CheckDistriPp, &Controles::CheckDistriPp>(),
    Texto<&Configuracion::NombreArchivoConf, &Controles::lblMiArchivoConf>(),
    Marca<&Configuracion::ImagenDibujo, &Controles::chkImagenDibujo>(),
    {LeeImagen, EscribeTexto<&Controles::lblImagenDibujo>},
    {LeeEscalaImagen, EscribeTexto<&Controles::TexIMGEscala>},
    Texto<&Configuracion::TextoS, &Controles::TexS>(),
    Opcion<&Configuracion::Optiona, &Controles::Optiona>(),
    Opcion<&Configuracion::Optionb, &Controles::Optionb>(),
    Opcion<&Configuracion::Optionc, &Controles::Optionc>(),
    Corrimiento<&Configuracion::ImagenX0, &Controles::TexIMGX0>(),
    Corrimiento<&Configuracion::ImagenY0, &Controles::TexIMGY0>(),
    Opcion<&Configuracion::OptionMin, &Controles::OptionMin>(),
    Opcion<&Configuracion::OptionHr, &Controles::OptionHr>(),
    Opcion<&Configuracion::Optionm3, &Controles::Optionm3>(),
    Opcion<&Configuracion::OptionLt, &Controles::OptionLt>(),
    {LeeN0Dur, EscribeN0Dur},
    Texto<&Configuracion::MaxUEHsPixel, &Controles::txtMaxUEHsPixel>(),
    {LeeEscalaDibujo, EscribeTexto<&Controles::txtEscalaImagen>},
    Rec<2>(), Rec<5>(), Rec<10>(), Rec<20>(), Rec<25>(), Rec<40>(), Rec<50>(), Rec<100>(), Rec<200>(), Rec<500>(),
    Rec<1000>(), Rec<2000>(),
    Rec<5000, 500>(),  // falls on the flag of R 500, and the flag of R 5000 is never read: kept as it stands
    Rec<10000>(),
    Dur<5>(), Dur<10>(), Dur<15>(), Dur<20>(), Dur<30>(), Dur<60>(), Dur<90>(), Dur<120>(), Dur<180>(), Dur<240>(),
    Dur<300>(), Dur<360>(), Dur<540>(), Dur<720>(), Dur<1080>(), Dur<1440>(), Dur<2880>(),
});
// clang-format on
static_assert(Campos.size() == 28 + Recurrencias.size() + Duraciones.size());

// --- selections ---

/// Lists the values of the ticked boxes from place 1 on and returns how many there are.
template <std::size_t N>
std::int16_t ListaTildadas(const std::array<std::int16_t, N>& casillas,
                           const std::array<std::int16_t, N>& valores, std::vector<std::int16_t>& lista)
{
    lista.assign(1, 0);
    for (std::size_t i = 0; i < N; ++i)
        if (casillas[i] == Tildada) lista.push_back(valores[i]);
    return static_cast<std::int16_t>(lista.size() - 1);
}

std::string RutaConf(const Siro& s, const std::string& directorio)
{
    return Ruta(directorio, s.Proyecto.NombreProyecto + std::string(SufijoConf));
}

void ComponeArchivo(Siro& s)
{
    s.Proyecto.ArchivoTemp = RutaConf(s, s.Proyecto.DirProyecto);
}

/// What can't be read is there too.
bool HayArchivo(const Siro& s, const std::string& ruta)
{
    try {
        static_cast<void>(s.Disco.Lee(ruta));
        return true;
    } catch (const Falla& falla) {
        return falla.numero == NumeroFalla::AccesoRuta;
    }
}

/// Writes the file with no question, and tells so. Throws Falla 76, 75; memory is then as it was.
void GuardaConf(Siro& s)
{
    if (s.Proyecto.NombreProyecto.empty()) {
        s.Proyecto.DirProyectoConf = s.frmConfigura.Dir1;
        s.Proyecto.DriveProyecto = s.frmConfigura.Drive1;
        return;
    }
    const std::string directorio = s.Proyecto.DirProyecto, imagen = s.Configuracion.ArchivoImagen;
    const std::int16_t conImagen = s.frmConfigura.chkImagenDibujo;
    try {
        EscribeConf(s);
    } catch (const Falla&) {
        s.Proyecto.DirProyecto = directorio;
        s.Configuracion.ArchivoImagen = imagen;
        s.frmConfigura.chkImagenDibujo = conImagen;
        throw;
    }
    AvisaConfGuardada(s, s.Proyecto.ArchivoTemp);
    s.Proyecto.ProyectoNuevo = false;
}

void LeeArchivo(Siro& s)
{
    s.frmConfigura.Dir1 = s.Proyecto.DirProyecto;
    s.frmConfigura.Drive1 = UnidadDe(s.Proyecto.DirProyecto);
    ComponeArchivo(s);
    LectorRegistros lector(LeeVigilado(s, s.Proyecto.ArchivoTemp));
    s.Vigilancia.archivoConf = s.Proyecto.ArchivoTemp;
    Lectura l{s, lector};
    for (const CampoConf& campo : Campos)
        campo.Lee(l);

    // Under the name that the file tells stands another project's, or none.
    if (l.mudado && !l.deOtro && PuedeGuardar(s, {s.Proyecto.ArchivoTemp})) GuardaConf(s);
    s.Configuracion.NroRec = ListaTildadas(s.frmConfigura.CheckR, Recurrencias, s.Configuracion.ListaRec);
    s.Configuracion.NroDur = ListaTildadas(s.frmConfigura.CheckD, Duraciones, s.Configuracion.ListaDur);
}

}  // namespace

std::string UnidadDe(std::string_view ruta)
{
    return HayUnidades ? std::string(ruta.substr(0, LargoUnidad(ruta))) : std::string{};
}

void BtnRecuDef(ControlesConfigura& controles)
{
    controles.CheckR = RecurrenciasDefecto;
}

void BtnDurDef(ControlesConfigura& controles)
{
    controles.CheckD = DuracionesDefecto;
}

void leoConf(Siro& s)
{
    try {
        LeeArchivo(s);
    } catch (const Falla& falla) {
        std::string texto = TextoFallaMotor(falla) + ".";
        if (falla.numero != NumeroFalla::FinDeArchivo) {
            Informa(s, std::move(texto));
            return;
        }
        texto.append(AvisoDanado1).append(s.Proyecto.NombreProyecto).append(AvisoDanado2);
        Informa(s, std::move(texto));
        s.Proyecto.NombreProyecto.clear();
    }
}

void EscribeConf(Siro& s)
{
    Controles& controles = s.frmConfigura;
    if (controles.chkImagenDibujo == Tildada && controles.lblImagenDibujo == SinImagen) {
        controles.chkImagenDibujo = 0;
        s.Configuracion.ArchivoImagen.clear();
    }
    s.Proyecto.DirProyecto = controles.Dir1;
    ComponeArchivo(s);
    EscritorRegistros escritor(s.Disco);
    escritor.Abre(s.Proyecto.ArchivoTemp);
    for (const CampoConf& campo : Campos) {
        campo.Escribe(escritor, s);
        escritor.FinRegistro();
    }
    escritor.Cierra();
    s.Vigilancia.archivoConf = s.Proyecto.ArchivoTemp;
    AnotaGuardado(s, s.Proyecto.ArchivoTemp);
}

void AvisaConfGuardada(const Siro& s, const std::string& ruta)
{
    Informa(s, std::string(AvisoGuardado) + ruta);
}

bool cmdAplicar(Siro& s)
{
    const std::string ruta = RutaConf(s, s.frmConfigura.Dir1);
    const bool deOtro =
        !s.Proyecto.NombreProyecto.empty() && ruta != s.Vigilancia.archivoConf && HayArchivo(s, ruta);
    if (deOtro &&
        !Consulta(s, std::string(PreguntaDeOtro1).append(ruta).append(PreguntaDeOtro2), TituloDeOtro))
        return false;
    if (deOtro) AnotaGuardado(s, ruta);  // what is there has been asked about
    if (!PuedeGuardar(s, {ruta})) return false;
    GuardaConf(s);
    if (!s.Proyecto.NombreProyecto.empty() && s.Vigilancia.reclamado != ruta) ReclamaProyecto(s);
    return true;
}

}  // namespace model
