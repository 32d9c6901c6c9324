// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivoConf.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/Falla.h"
#include "model/Huellas.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace model {

namespace {

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

/// Sets the drive control. A drive that isn't there leaves it as it is.
void PonUnidad(Siro& s, const std::string& unidad)
{
    if (HayUnidades && !unidad.empty() && s.Disco.HayDirectorio(unidad + Separador))
        s.frmConfigura.Drive1 = unidad;
}

// --- the fields of the file ---

/// What a reading finds out about where the project stands.
struct Hallazgo {
    bool mudado = false;  ///< elsewhere than its file says
    bool deOtro = false;  ///< in a file that bears another name than it tells
};

/// A name that leads out of the project's directory makes the file a damaged one.
void TomaNombre(Siro& s, Hallazgo& h, std::string nombre)
{
    if (!SirveDeNombre(nombre)) throw Falla{NumeroFalla::FinDeArchivo};
    h.deOtro = nombre != s.Proyecto.NombreProyecto;
    s.Proyecto.NombreProyecto = std::move(nombre);
}

/// The directory, and with it the question whether the project has moved: then it keeps the present one, and
/// so it does where the file can't hold its characters.
void TomaDirectorio(Siro& s, Hallazgo& h, std::string_view leido)
{
    s.Proyecto.DirProyectoConf = RutaLlana(leido);
    s.Proyecto.DirProyecto = RutaLlana(s.Proyecto.DirProyecto);
    const std::string_view dicho = SinUnidad(s.Proyecto.DirProyectoConf);
    const bool igual = SinUnidad(s.Proyecto.DirProyecto) == dicho;
    const bool parecido = igual || SinUnidad(ComoVuelve(s.Proyecto.DirProyecto)) == dicho;
    h.mudado = s.Proyecto.DriveProyecto != s.frmConfigura.Drive1 || !parecido;
    if (h.mudado || !igual) s.Proyecto.DirProyectoConf = s.Proyecto.DirProyecto;
    s.frmConfigura.Dir1 = s.Proyecto.DirProyectoConf;
    s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf;
}

/// The fields of the image of the drawing, of whose numbers the controls hold the text.
void CamposDeImagen(Configuracion& f, ControlesConfigura& c, auto&& campo)
{
    const auto corrimiento = [&](float& variable, std::string& control) {
        campo(variable, [&](const std::string& leido) {
            variable = Simple(Val(leido));
            control = NumeroATexto(variable);
        });
    };
    campo(c.chkImagenDibujo);
    campo(c.lblImagenDibujo, [&](const std::string& leido) { f.ArchivoImagen = c.lblImagenDibujo = leido; });
    campo(c.TexIMGEscala, [&](const std::string& leido) {
        f.EscalaImagen = Val(leido);
        c.TexIMGEscala = NumeroATexto(f.EscalaImagen);
    });
    campo(c.TexS);
    campo(c.Optiona);
    campo(c.Optionb);
    campo(c.Optionc);
    corrimiento(f.ImagenX0, c.TexIMGX0);
    corrimiento(f.ImagenY0, c.TexIMGY0);
}

/// The boxes of a selection, and the flag that each is read into.
template <std::size_t N>
void CamposDeSeleccion(std::array<std::int16_t, N>& banderas, std::array<std::int16_t, N>& casillas,
                       const std::array<std::int16_t, N>& valores, auto&& campo)
{
    for (std::size_t i = 0; i < N; ++i)
        campo(casillas[i], [&](std::int16_t leido) {
            // R 5000 falls on the flag of R 500, and its own is never set: kept as it stands.
            const std::int16_t valor = valores[i] == 5000 ? std::int16_t{500} : valores[i];
            const auto lugar = std::find(valores.begin(), valores.end(), valor) - valores.begin();
            banderas[static_cast<std::size_t>(lugar)] = casillas[i] = leido;
        });
}

/// The fields in the order of the file, a record each. `campo` writes what it is handed, or reads it; what it
/// reads goes to its second argument, where there is one.
void CadaCampo(Siro& s, Hallazgo& h, auto&& campo)
{
    Configuracion& f = s.Configuracion;
    ControlesConfigura& c = s.frmConfigura;
    const auto doble = [&](std::string& variable, std::string& control) {
        campo(control, [&](const std::string& leido) { variable = control = leido; });
    };
    campo(s.Proyecto.NombreProyecto, [&](const std::string& leido) { TomaNombre(s, h, leido); });
    doble(f.TituloProyecto, c.TextProyecto);
    doble(f.Ubicacion, c.TextUbica);
    doble(f.Cuenca, c.TextCuenca);
    doble(f.Subcuenca, c.TextSbca);
    doble(f.Operador, c.TextOpera);
    campo(c.txtFecha);
    campo(c.Drive1, [&](const std::string& leido) {
        s.Proyecto.DriveProyecto = leido;
        PonUnidad(s, leido);
    });
    campo(c.Dir1, [&](const std::string& leido) { TomaDirectorio(s, h, leido); });
    campo(c.TextDirNv);
    campo(c.CheckDistriPp);
    campo(c.lblMiArchivoConf);
    CamposDeImagen(f, c, campo);
    campo(c.OptionMin);
    campo(c.OptionHr);
    campo(c.Optionm3);
    campo(c.OptionLt);
    campo(s.Pasos.N0Dur, [&](float leido) {
        s.Pasos.N0Dur = leido;
        c.txtN0Dur = NumeroATexto(leido);
    });
    doble(f.MaxUEHsPixel, c.txtMaxUEHsPixel);
    // The control keeps what was typed, with points; the variable is the text of its leading number.
    campo(c.txtEscalaImagen, [&](const std::string& leido) {
        c.txtEscalaImagen = ComasAPuntos(leido);
        f.EscalaDibujo = NumeroATexto(Val(c.txtEscalaImagen));
    });
    CamposDeSeleccion(f.CheckR, c.CheckR, Recurrencias, campo);
    CamposDeSeleccion(f.CheckD, c.CheckD, Duraciones, campo);
}

struct LeeCampo {
    LectorRegistros& lector;

    void operator()(auto& lugar) { lector.Campos(lugar); }
    template <typename X, typename Toma>
    void operator()(X&, Toma&& toma)
    {
        std::conditional_t<std::invocable<Toma, std::string>, std::string, X> leido{};
        lector.Campos(leido);
        toma(leido);
    }
};

struct EscribeCampo {
    EscritorRegistros& escritor;

    void operator()(const auto& lugar, auto&&...) { escritor.Campos(lugar).FinRegistro(); }
};

// --- selections ---

/// Lists the values of the ticked boxes from place 1 on.
template <std::size_t N>
void ListaTildadas(const std::array<std::int16_t, N>& casillas, const std::array<std::int16_t, N>& valores,
                   std::vector<std::int16_t>& lista)
{
    lista.assign(1, 0);
    for (std::size_t i = 0; i < N; ++i)
        if (casillas[i] == Tildada) lista.push_back(valores[i]);
}

std::string RutaConf(const Siro& s, const std::string& directorio)
{
    return Ruta(directorio, ArchivoConf(s.Proyecto.NombreProyecto));
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
    Hallazgo h;
    CadaCampo(s, h, LeeCampo{lector});

    // Under the name that the file tells stands another project's, or none.
    if (h.mudado && !h.deOtro && PuedeGuardar(s, {s.Proyecto.ArchivoTemp})) GuardaConf(s);
    ListaTildadas(s.frmConfigura.CheckR, Recurrencias, s.Configuracion.ListaRec);
    ListaTildadas(s.frmConfigura.CheckD, Duraciones, s.Configuracion.ListaDur);
}

}  // namespace

bool leoConf(Siro& s)
{
    try {
        LeeArchivo(s);
        return true;
    } catch (const Falla& falla) {
        std::string texto = TextoFallaMotor(falla) + ".";
        if (falla.numero != NumeroFalla::FinDeArchivo) {
            Informa(s, std::move(texto));
            return false;
        }
        texto.append(AvisoDanado1).append(s.Proyecto.NombreProyecto).append(AvisoDanado2);
        Informa(s, std::move(texto));
        s.Proyecto.NombreProyecto.clear();
        return false;
    }
}

void EscribeConf(Siro& s)
{
    ControlesConfigura& controles = s.frmConfigura;
    if (controles.chkImagenDibujo == Tildada && controles.lblImagenDibujo == SinImagen) {
        controles.chkImagenDibujo = 0;
        s.Configuracion.ArchivoImagen.clear();
    }
    s.Proyecto.DirProyecto = controles.Dir1;
    ComponeArchivo(s);
    EscritorRegistros escritor(s.Disco);
    escritor.Abre(s.Proyecto.ArchivoTemp);
    Hallazgo ninguno;
    CadaCampo(s, ninguno, EscribeCampo{escritor});
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
