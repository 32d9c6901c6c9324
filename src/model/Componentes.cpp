// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Componentes.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Huellas.h"
#include "model/Numeros.h"
#include "model/OrdenCauces.h"
#include "model/Registros.h"
#include "model/RutaProyecto.h"
#include "model/Siro.h"

namespace model {

namespace {

constexpr std::string_view SufijoUEHs = "_UEHs.vlm";
constexpr std::string_view SufijoVerCau = "_VerCau.vlm";

// "prorgamador": kept as it stands.
constexpr std::string_view AvisoDanado =
    "Hay problemas con el archivo de datos o el archivo está dañado. Si es un prorgamador avanzado, intente "
    "ingresar directamente al archivo y corregir el problema";
constexpr std::string_view AvisoGuardado =
    "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
    "archivo ";
constexpr std::string_view AvisoNoSeBorra =
    "La red está vacía porque no se pudieron leer sus archivos. Los archivos quedan como están.";

// --- the fields of the records ---

template <typename A, typename T>
concept De = std::same_as<std::remove_const_t<A>, T>;

// The fields of a component in the order of the file, a record each. `campo` reads or writes those that it is
// handed: `Numero` the component's number, written as it stands, read and thrown away, since reading numbers
// anew; `SinFijar` a property that may never have been given a value, an empty line then.

void CadaCampo(De<Cauce> auto& c, auto&& campo)
{
    campo.Numero(c.numCauce);
    campo(c.NombreCauce, c.numVertices, c.IndiceParInicial);
    campo.AnotaVertices(c);
    campo(c.Cauce_aa, c.VelMediaCauce, c.LongCauce, c.OrdenCauce, c.Cauce_k_Musk, c.Cauce_n_Musk);
    campo(c.optDirMusk);
}

void CadaCampo(De<UEH> auto& u, auto&& campo)
{
    campo.Numero(u.numUEH);
    campo(u.NombreUEH, u.Area, u.Referencia, u.LongitudMax, u.VelMedia);
    campo.SinFijar(u.Metodo);
    campo(u.IconoUEHx, u.IconoUEHy, u.XCauce, u.YCauce, u.Cauce_aa);
    campo(u.KostiakovA, u.KostiakovB, u.KostiakovI, u.Q0Recesion, u.KRecesion, u.RetensionZ);
}

void CadaCampo(De<Represa> auto& r, auto&& campo)
{
    const auto deFunciones = [&](auto& numeros, std::size_t clase) {
        for (std::size_t i = 0; i < numeros.size(); ++i)
            if (FuncionesFQ[i].Lleva(clase)) campo(numeros[i]);
    };
    campo.Numero(r.numRepresa);
    campo(r.NombreRepresa, r.IconoRepresaX, r.IconoRepresaY);
    campo.SinFijar(r.Metodo);
    campo(r.XCauce, r.YCauce, r.Cauce_aa, r.optTabla);
    deFunciones(r.chkFQ, 1);
    deFunciones(r.FQa, 1);
    deFunciones(r.FQb, 2);
    deFunciones(r.FQc, 3);
    campo(r.Represa_k_Musk, r.Represa_n_Musk);
    deFunciones(r.FQmin, 4);
    deFunciones(r.FQMax, 5);
    campo(r.HInicialEmb);
}

void CadaCampo(De<Lago> auto& l, auto&& campo)
{
    campo.Numero(l.numLAGO);
    campo(l.NombreLAGO, l.Referencia);
    campo.SinFijar(l.Metodo);
    campo(l.IconoLAGOx, l.IconoLAGOy, l.XCauce, l.YCauce, l.Cauce_aa, l.Lago_k_Musk, l.HInicialEmb);
}

/// Does something with each collection, in the order of the file.
void PorGrupo(auto& red, auto&& hace)
{
    hace(red.ColCauces);
    hace(red.ColUEHs);
    hace(red.ColRepresas);
    hace(red.ColLagos);
}

std::string RutaDe(const Siro& s, std::string_view sufijo)
{
    return Ruta(s.Proyecto.DirProyecto, s.Proyecto.NombreProyecto + std::string(sufijo));
}

std::string Compone(Siro& s, std::string_view sufijo)
{
    return s.Proyecto.ArchivoTemp = RutaDe(s, sufijo);
}

/// How many of a reach's vertices, the first ones, have a place in the drawing's arrays.
int VerticesConLugar(const Siro& s, int cauce, int vertices)
{
    const int columnas = std::min(s.Red.XVertice.TopeColumna(), s.Red.YVertice.TopeColumna());
    const int filas = std::min(s.Red.XVertice.UltimaFila(), s.Red.YVertice.UltimaFila());
    return cauce > filas ? 0 : std::clamp(vertices, 0, std::max(columnas, 0));
}

/// A box for each vertex without a place. There may be thousands of them: none is thrown.
void InformaSinLugar(const Siro& s, int vertices)
{
    const Mensaje mensaje{TextoFallaArchivo({NumeroFalla::Subindice}), {}, Icono::Ninguno};
    for (int j = 0; j < vertices; ++j)
        s.Anfitrion.Avisa(mensaje);
}

// --- reading ---

/// The load under its handler: a statement at fault is reported and the next one runs; a file that isn't
/// there and the end of the file go on their way and end the load.
class Carga {
  public:
    /// `unosSabidos`: files whose bytes are known; the others are read from the disk.
    Carga(Siro& unSiro, const std::vector<CambioArchivo>& unosSabidos) : s(unSiro), sabidos(unosSabidos) {}

    void Abre(std::string_view sufijo)
    {
        lector.reset();
        const std::string ruta = Compone(s, sufijo);
        Paso([&] {
            try {
                lector.emplace(Bytes(ruta));
            } catch (const Falla& falla) {
                causa = falla.numero;
                throw;
            }
        });
    }
    void Cierra() { lector.reset(); }
    /// The open file. Throws the fault of its opening where that failed.
    LectorRegistros& Archivo()
    {
        if (!lector) throw Falla{causa};
        return *lector;
    }
    template <typename F>
    bool Paso(F&& cuerpo)
    {
        return Sentencia(std::forward<F>(cuerpo), [&](const Falla& falla) {
            if (TerminaLaCarga(falla)) throw falla;
            s.Control.CargaFallida = true;
            AvisaArchivo(s)(falla);
        });
    }
    static bool TerminaLaCarga(const Falla& falla)
    {
        return falla.numero == NumeroFalla::ArchivoNoEsta || falla.numero == NumeroFalla::FinDeArchivo;
    }
    Siro& s;

  private:
    [[nodiscard]] std::string Bytes(const std::string& ruta) const
    {
        const auto sabido = std::find_if(sabidos.begin(), sabidos.end(),
                                         [&](const CambioArchivo& a) { return a.ruta == ruta; });
        if (sabido == sabidos.end()) return LeeVigilado(s, ruta);
        AnotaLeido(s, ruta, sabido->bytes);
        return sabido->bytes;
    }
    const std::vector<CambioArchivo>& sabidos;
    std::optional<LectorRegistros> lector;
    NumeroFalla causa = NumeroFalla::AccesoRuta;
};

/// Reads one value as a statement of its own. At fault, the value stays as it was.
template <typename X>
void LeeValor(Carga& carga, X& valor)
{
    carga.Paso([&] { carga.Archivo().Campos(valor); });
}

/// Reads the fields of a component, each as a statement of its own.
class LeeCampos {
  public:
    explicit LeeCampos(Carga& unaCarga) : carga(unaCarga) {}
    void operator()(auto&... campos) { (LeeValor(carga, campos), ...); }
    void Numero(std::int16_t)
    {
        std::int16_t descartado = 0;
        LeeValor(carga, descartado);
    }
    void SinFijar(std::string& texto) { LeeValor(carga, texto); }
    /// The drawing keeps the vertex count apart from the reach.
    void AnotaVertices(const Cauce& cauce)
    {
        carga.Paso([&] { carga.s.Red.NroVertices(cauce.numCauce) = cauce.numVertices; });
    }

  private:
    Carga& carga;
};

/// A kind of component: its count, which stays where the file breaks off, then its records.
template <typename T, int Limite>
void LeeGrupo(Carga& carga, Coleccion<T, Limite>& coleccion)
{
    std::int16_t cuenta = 0;
    coleccion.Vacia();
    LeeValor(carga, cuenta);
    coleccion.Anuncia(cuenta);
    for (int n = 1; n <= cuenta; ++n) {
        T& componente = coleccion.Agrega(T{});
        coleccion.Anuncia(cuenta);
        carga.Paso(
            [&] { static_cast<void>(coleccion.Ranura(n)); });  // its slot: beyond the array it has none
        Numero(componente) = static_cast<std::int16_t>(n);
        CadaCampo(componente, LeeCampos(carga));
    }
}

/// A name that leads out of the project's directory makes the file a damaged one.
void LeeNombre(Carga& carga)
{
    std::string nombre = carga.s.Proyecto.NombreProyecto;
    LeeValor(carga, nombre);
    if (!SirveDeNombre(nombre)) throw Falla{NumeroFalla::FinDeArchivo};
    carga.s.Proyecto.NombreProyecto = std::move(nombre);
}

void LeeArchivoUEHs(Carga& carga)
{
    carga.Abre(SufijoUEHs);
    LeeNombre(carga);
    PorGrupo(carga.s.Red, [&](auto& coleccion) { LeeGrupo(carga, coleccion); });
    carga.Cierra();
}

void LeePar(Carga& carga, int cauce, int vertice)
{
    carga.Paso([&] {
        float& x = carga.s.Red.XVertice(cauce, vertice);
        float& y = carga.s.Red.YVertice(cauce, vertice);
        carga.Archivo().Campos(x, y);
    });
}

void LeeArchivoVerCau(Carga& carga)
{
    Siro& s = carga.s;
    int mayor = 0;
    s.Red.XVertice.Dimensiona(MaxCauces, mayor);
    s.Red.YVertice.Dimensiona(MaxCauces, mayor);
    carga.Abre(SufijoVerCau);
    for (int i = 1; i <= s.Red.NroCauces(); ++i) {
        bool ensancha = false;
        carga.Paso([&] { ensancha = s.Red.NroVertices(i) > mayor; });
        if (ensancha) {
            mayor = s.Red.NroVertices(i);
            s.Red.XVertice.Redimensiona(mayor);
            s.Red.YVertice.Redimensiona(mayor);
        }
        int vertices = 0;
        carga.Paso([&] { vertices = s.Red.NroVertices(i); });
        const int conLugar = VerticesConLugar(s, i, vertices);
        for (int j = 1; j <= conLugar; ++j)
            LeePar(carga, i, j);
        InformaSinLugar(s, vertices - conLugar);  // their pairs stay in the file
    }
    carga.Cierra();
}

void VaciaComponentes(Siro& s)
{
    CadaClase(s.Red, [](auto& coleccion) { coleccion.Vacia(); });
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = 0;
}

// --- writing ---

/// Writes one value as a line and a statement of its own.
void EscribeValor(EscrituraInformada& archivo, const auto& valor)
{
    archivo.Registro([&](EscritorRegistros& escritor) { escritor.Campos(valor); });
}

/// Writes the fields of a component.
class EscribeCampos {
  public:
    explicit EscribeCampos(EscrituraInformada& unArchivo) : archivo(unArchivo) {}
    void operator()(const auto&... campos) { (EscribeValor(archivo, campos), ...); }
    void Numero(std::int16_t numero) { EscribeValor(archivo, numero); }
    void SinFijar(const std::string& texto)
    {
        archivo.Registro([&](EscritorRegistros& e) { texto.empty() ? e.Vacio() : e.Texto(texto); });
    }
    void AnotaVertices(const Cauce&) {}

  private:
    EscrituraInformada& archivo;
};

std::optional<CambioArchivo> ArchivoUEHs(Siro& s)
{
    EscrituraInformada archivo(s, Compone(s, SufijoUEHs));
    EscribeValor(archivo, s.Proyecto.NombreProyecto);
    PorGrupo(s.Red, [&](auto& coleccion) {
        EscribeValor(archivo, coleccion.Nro());
        for (auto& componente : coleccion)
            CadaCampo(componente, EscribeCampos(archivo));
    });
    return archivo.Toma();
}

/// The vertices come from the drawing by reach number, not from the collection.
std::optional<CambioArchivo> ArchivoVerCau(Siro& s)
{
    EscrituraInformada archivo(s, Compone(s, SufijoVerCau));
    for (int i = 1; i <= s.Red.NroCauces(); ++i) {
        int vertices = 0;
        archivo.Paso([&] { vertices = s.Red.NroVertices(i); });
        const int conLugar = VerticesConLugar(s, i, vertices);
        for (int j = 1; j <= conLugar; ++j)
            archivo.Registro([&](EscritorRegistros& escritor) {
                escritor.Campos(s.Red.XVertice(i, j), s.Red.YVertice(i, j));
            });
        if (vertices > conLugar) archivo.Paso([] { throw Falla{NumeroFalla::Subindice}; });
    }
    return archivo.Toma();
}

/// Puts both files in place. Returns false after a fault, which is told; the disk is then as it was.
bool ReemplazaArchivos(Siro& s, std::vector<CambioArchivo>& escritos)
{
    auto uehs = ArchivoUEHs(s), vertices = ArchivoVerCau(s);
    if (!uehs || !vertices) return false;
    std::vector<CambioArchivo> cambios{std::move(*uehs), std::move(*vertices)};
    if (!Sentencia([&] { s.Disco.Reemplaza(cambios); }, AvisaArchivo(s))) return false;
    escritos = std::move(cambios);
    return true;
}

/// Deletes both files of a network without components, or none. One that isn't there ends the command
/// quietly. Returns false after a fault, which is told.
bool BorraArchivos(Siro& s)
{
    const std::string ruta = Compone(s, SufijoUEHs);
    std::optional<CambioArchivo> borrado;
    try {
        std::string bytes = s.Disco.Lee(ruta);
        s.Disco.Borra(ruta);
        borrado = {ruta, std::move(bytes)};
        s.Disco.Borra(Compone(s, SufijoVerCau));
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::ArchivoNoEsta) return true;
        AvisaArchivo(s)(falla);
        if (borrado) Sentencia([&] { s.Disco.Reemplaza({*borrado}); });
        return false;
    }
    return true;
}

/// Reads the network. `sabidos`: files whose bytes needn't be asked of the disk.
void Lee(Siro& s, const std::vector<CambioArchivo>& sabidos)
{
    VaciaComponentes(s);
    s.Control.CargaFallida = false;
    try {
        Carga carga(s, sabidos);
        LeeArchivoUEHs(carga);
        LeeArchivoVerCau(carga);
        if (s.Red.NroRepresas() > 0) s.Anfitrion.HabilitaVerificacion();
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::ArchivoNoEsta) {
            s.Red.ColCauces.Anuncia(0);
        } else {
            s.Control.CargaFallida = true;
            Advierte(s, std::string(AvisoDanado), {});
        }
    }
}

bool SinComponentes(const Siro& s)
{
    return s.Red.NroCauces() == 0 && s.Red.NroUEHs() == 0 && s.Red.NroRepresas() == 0 &&
           s.Red.NroLagos() == 0;
}

}  // namespace

void LeeUEHs(Siro& s)
{
    Lee(s, {});
}

void ReleeUEHs(Siro& s)
{
    std::vector<CambioArchivo> leidos;
    for (const std::string_view sufijo : {SufijoUEHs, SufijoVerCau}) {
        const std::string ruta = Compone(s, sufijo);
        try {
            leidos.push_back({ruta, s.Disco.Lee(ruta)});
        } catch (const Falla& falla) {
            if (falla.numero == NumeroFalla::ArchivoNoEsta) break;
            AvisaArchivo(s)(falla);
            return RenumeraComponentes(s);
        }
    }
    Lee(s, leidos);
}

void RenumeraComponentes(Siro& s)
{
    CadaClase(s.Red, [](auto& coleccion) {
        std::int16_t numero = 0;
        for (auto& componente : coleccion)
            Numero(componente) = ++numero;
    });
}

bool EscribeRed(Siro& s, std::vector<CambioArchivo>& escritos)
{
    const auto cauces = s.Red.ColCauces;
    escritos.clear();
    Sentencia([&] { CalculaOrdenCauces(s.Red); }, AvisaArchivo(s));
    if (SinComponentes(s)) {
        if (!s.Control.CargaFallida) return BorraArchivos(s);
        Advierte(s, std::string(AvisoNoSeBorra));
        return false;
    }
    const auto recuenta = [&] { s.Red.ColCauces.Anuncia(Entero16(s.Red.ColCauces.Cuenta())); };
    if (Sentencia(recuenta, AvisaArchivo(s)) && ReemplazaArchivos(s, escritos)) return true;
    s.Red.ColCauces = cauces;
    return false;
}

void AlGuardarse(Siro& s, const std::vector<CambioArchivo>& escritos)
{
    if (escritos.empty()) return;
    Lee(s, escritos);
    s.Anfitrion.RedibujaEditor();
    Informa(s, std::string(AvisoGuardado) + s.Proyecto.ArchivoTemp);
}

bool GuardaRed(Siro& s)
{
    if (!PuedeGuardar(s, {RutaDe(s, SufijoUEHs), RutaDe(s, SufijoVerCau)})) return false;
    std::vector<CambioArchivo> escritos;
    if (!EscribeRed(s, escritos)) return false;
    AlGuardarse(s, escritos);
    return true;
}

}  // namespace model
