// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Componentes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Numeros.h"
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

constexpr int PasadasOrden = 10;

// --- the fields of the records ---

/// The component's number: written as it stands, read and thrown away, since reading numbers anew.
template <typename T>
struct NumeroCorrido {
    std::int16_t T::*propiedad;
};

/// A property that may never have been given a value; it is then written as nothing, an empty line.
template <typename T>
struct TextoSinFijar {
    std::string T::*propiedad;
};

/// A number of each outflow function that has it, a field each.
template <typename T, typename X>
struct Elementos {
    std::array<X, NroFuncionesFQ> T::*propiedad;
    std::size_t clase = 1;  ///< as FuncionDeRepresa counts them
};

/// A field of a component's record.
template <typename T>
struct CampoComponente {
    std::variant<std::int16_t T::*, float T::*, bool T::*, std::string T::*, NumeroCorrido<T>,
                 TextoSinFijar<T>, Elementos<T, float>, Elementos<T, std::int16_t>>
        propiedad;
    /// A statement of its own that follows the field's reading.
    void (*luego)(Siro& s, const T& componente) = nullptr;
};

/// The drawing keeps the vertex count apart from the reach.
void AnotaVertices(Siro& s, const Cauce& cauce)
{
    s.Red.NroVertices(cauce.numCauce) = cauce.numVertices;
}

// The fields in the order of the file, a line each.
// clang-format off
constexpr auto CamposCauce = std::to_array<CampoComponente<Cauce>>({
    {NumeroCorrido<Cauce>{&Cauce::numCauce}},
    {&Cauce::NombreCauce},
    {&Cauce::numVertices},
    {&Cauce::IndiceParInicial, AnotaVertices},
    {&Cauce::Cauce_aa},
    {&Cauce::VelMediaCauce},
    {&Cauce::LongCauce},
    {&Cauce::OrdenCauce},
    {&Cauce::Cauce_k_Musk},
    {&Cauce::Cauce_n_Musk},
    {&Cauce::optDirMusk},
});

constexpr auto CamposUEH = std::to_array<CampoComponente<UEH>>({
    {NumeroCorrido<UEH>{&UEH::numUEH}},
    {&UEH::NombreUEH},
    {&UEH::Area},
    {&UEH::Referencia},
    {&UEH::LongitudMax},
    {&UEH::VelMedia},
    {TextoSinFijar<UEH>{&UEH::Metodo}},
    {&UEH::IconoUEHx},
    {&UEH::IconoUEHy},
    {&UEH::XCauce},
    {&UEH::YCauce},
    {&UEH::Cauce_aa},
    {&UEH::KostiakovA},
    {&UEH::KostiakovB},
    {&UEH::KostiakovI},
    {&UEH::Q0Recesion},
    {&UEH::KRecesion},
    {&UEH::RetensionZ},
});

constexpr auto CamposRepresa = std::to_array<CampoComponente<Represa>>({
    {NumeroCorrido<Represa>{&Represa::numRepresa}},
    {&Represa::NombreRepresa},
    {&Represa::IconoRepresaX},
    {&Represa::IconoRepresaY},
    {TextoSinFijar<Represa>{&Represa::Metodo}},
    {&Represa::XCauce},
    {&Represa::YCauce},
    {&Represa::Cauce_aa},
    {&Represa::optTabla},
    {Elementos<Represa, std::int16_t>{&Represa::chkFQ}},
    {Elementos<Represa, float>{&Represa::FQa}},
    {Elementos<Represa, float>{&Represa::FQb}},
    {Elementos<Represa, float>{&Represa::FQc, 3}},
    {&Represa::Represa_k_Musk},
    {&Represa::Represa_n_Musk},
    {Elementos<Represa, float>{&Represa::FQmin}},
    {Elementos<Represa, float>{&Represa::FQMax}},
    {&Represa::HInicialEmb},
});

constexpr auto CamposLago = std::to_array<CampoComponente<Lago>>({
    {NumeroCorrido<Lago>{&Lago::numLAGO}},
    {&Lago::NombreLAGO},
    {&Lago::Referencia},
    {TextoSinFijar<Lago>{&Lago::Metodo}},
    {&Lago::IconoLAGOx},
    {&Lago::IconoLAGOy},
    {&Lago::XCauce},
    {&Lago::YCauce},
    {&Lago::Cauce_aa},
    {&Lago::Lago_k_Musk},
    {&Lago::HInicialEmb},
});
// clang-format on

/// A kind of component as the file holds it: its count, then its records.
template <typename T, int Limite>
struct Grupo {
    Coleccion<T, Limite> Red::*coleccion;
    std::int16_t Red::*cuenta;
    std::int16_t T::*numero;
    std::span<const CampoComponente<T>> campos;
};

constexpr Grupo<Cauce, MaxCauces> GrupoCauces{&Red::ColCauces, &Red::NroCauces, &Cauce::numCauce,
                                              CamposCauce};
constexpr Grupo<UEH, MaxUEHs> GrupoUEHs{&Red::ColUEHs, &Red::NroUEHs, &UEH::numUEH, CamposUEH};
constexpr Grupo<Represa, MaxRepresas> GrupoRepresas{&Red::ColRepresas, &Red::NroRepresas,
                                                    &Represa::numRepresa, CamposRepresa};
constexpr Grupo<Lago, MaxLagos> GrupoLagos{&Red::ColLagos, &Red::NroLagos, &Lago::numLAGO, CamposLago};

/// Does something with each kind, in the order of the file.
template <typename F>
void PorGrupo(F hace)
{
    hace(GrupoCauces);
    hace(GrupoUEHs);
    hace(GrupoRepresas);
    hace(GrupoLagos);
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

void Toma(LectorRegistros& lector, std::int16_t& x)
{
    x = lector.Numero16();
}
void Toma(LectorRegistros& lector, float& x)
{
    x = lector.NumeroSimple();
}
void Toma(LectorRegistros& lector, bool& x)
{
    x = lector.Logico();
}
void Toma(LectorRegistros& lector, std::string& x)
{
    x = lector.Texto();
}

/// Reads one value as a statement of its own. At fault, the value stays as it was.
template <typename X>
void LeeValor(Carga& carga, X& valor)
{
    carga.Paso([&] { Toma(carga.Archivo(), valor); });
}

template <typename T>
void LeeCampo(Carga& carga, const CampoComponente<T>& campo, T& componente)
{
    const auto lee = [&](const auto& propiedad) {
        using Propiedad = std::decay_t<decltype(propiedad)>;
        if constexpr (std::is_member_object_pointer_v<Propiedad>) {
            LeeValor(carga, componente.*propiedad);
        } else if constexpr (std::is_same_v<Propiedad, NumeroCorrido<T>>) {
            std::int16_t descartado = 0;
            LeeValor(carga, descartado);
        } else if constexpr (std::is_same_v<Propiedad, TextoSinFijar<T>>) {
            LeeValor(carga, componente.*propiedad.propiedad);
        } else {
            auto& elementos = componente.*propiedad.propiedad;
            for (std::size_t i = 0; i < elementos.size(); ++i)
                if (FuncionesFQ[i].Lleva(propiedad.clase)) LeeValor(carga, elementos[i]);
        }
    };
    std::visit(lee, campo.propiedad);
    if (campo.luego != nullptr) carga.Paso([&] { campo.luego(carga.s, componente); });
}

template <typename T, int Limite>
void LeeGrupo(Carga& carga, const Grupo<T, Limite>& grupo)
{
    Coleccion<T, Limite>& coleccion = carga.s.Red.*grupo.coleccion;
    coleccion.Vacia();
    LeeValor(carga, carga.s.Red.*grupo.cuenta);
    const int cuenta = carga.s.Red.*grupo.cuenta;
    for (int n = 1; n <= cuenta; ++n) {
        T& componente = coleccion.Agrega(T{});
        carga.Paso(
            [&] { static_cast<void>(coleccion.Ranura(n)); });  // its slot: beyond the array it has none
        componente.*grupo.numero = static_cast<std::int16_t>(n);
        for (const CampoComponente<T>& campo : grupo.campos)
            LeeCampo(carga, campo, componente);
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
    PorGrupo([&](const auto& grupo) { LeeGrupo(carga, grupo); });
    carga.Cierra();
}

void LeePar(Carga& carga, int cauce, int vertice)
{
    carga.Paso([&] {
        float& x = carga.s.Red.XVertice(cauce, vertice);
        float& y = carga.s.Red.YVertice(cauce, vertice);
        LectorRegistros& lector = carga.Archivo();
        lector.Registro(2, [&] {
            const float leidaX = lector.NumeroSimple();
            y = lector.NumeroSimple();
            x = leidaX;
        });
    });
}

void LeeArchivoVerCau(Carga& carga)
{
    Siro& s = carga.s;
    int mayor = 0;
    s.Red.XVertice.Dimensiona(MaxCauces, mayor);
    s.Red.YVertice.Dimensiona(MaxCauces, mayor);
    carga.Abre(SufijoVerCau);
    for (int i = 1; i <= s.Red.NroCauces; ++i) {
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
    PorGrupo([&](const auto& grupo) {
        (s.Red.*grupo.coleccion).Vacia();
        s.Red.*grupo.cuenta = 0;
    });
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = 0;
}

// --- writing ---

void Pon(EscritorRegistros& escritor, std::int16_t x)
{
    escritor.Numero(std::int32_t{x});
}
void Pon(EscritorRegistros& escritor, float x)
{
    escritor.Numero(x);
}
void Pon(EscritorRegistros& escritor, bool x)
{
    escritor.Logico(x);
}
void Pon(EscritorRegistros& escritor, const std::string& x)
{
    escritor.Texto(x);
}

/// Writes one value as a line and a statement of its own.
template <typename X>
void EscribeValor(EscrituraInformada& archivo, const X& valor)
{
    archivo.Registro([&](EscritorRegistros& escritor) { Pon(escritor, valor); });
}

template <typename T>
void EscribeCampo(EscrituraInformada& archivo, const CampoComponente<T>& campo, const T& componente)
{
    const auto escribe = [&](const auto& propiedad) {
        using Propiedad = std::decay_t<decltype(propiedad)>;
        if constexpr (std::is_member_object_pointer_v<Propiedad>) {
            EscribeValor(archivo, componente.*propiedad);
        } else if constexpr (std::is_same_v<Propiedad, NumeroCorrido<T>>) {
            EscribeValor(archivo, componente.*propiedad.propiedad);
        } else if constexpr (std::is_same_v<Propiedad, TextoSinFijar<T>>) {
            const std::string& texto = componente.*propiedad.propiedad;
            archivo.Registro([&](EscritorRegistros& escritor) {
                if (texto.empty()) {
                    escritor.Vacio();
                } else {
                    Pon(escritor, texto);
                }
            });
        } else {
            const auto& elementos = componente.*propiedad.propiedad;
            for (std::size_t i = 0; i < elementos.size(); ++i)
                if (FuncionesFQ[i].Lleva(propiedad.clase)) EscribeValor(archivo, elementos[i]);
        }
    };
    std::visit(escribe, campo.propiedad);
}

template <typename T, int Limite>
void EscribeGrupo(EscrituraInformada& archivo, const Siro& s, const Grupo<T, Limite>& grupo)
{
    EscribeValor(archivo, s.Red.*grupo.cuenta);
    for (const T& componente : s.Red.*grupo.coleccion)
        for (const CampoComponente<T>& campo : grupo.campos)
            EscribeCampo(archivo, campo, componente);
}

std::optional<CambioArchivo> ArchivoUEHs(Siro& s)
{
    EscrituraInformada archivo(s, Compone(s, SufijoUEHs));
    EscribeValor(archivo, s.Proyecto.NombreProyecto);
    PorGrupo([&](const auto& grupo) { EscribeGrupo(archivo, s, grupo); });
    return archivo.Toma();
}

/// The vertices come from the drawing by reach number, not from the collection.
std::optional<CambioArchivo> ArchivoVerCau(Siro& s)
{
    EscrituraInformada archivo(s, Compone(s, SufijoVerCau));
    for (int i = 1; i <= s.Red.NroCauces; ++i) {
        int vertices = 0;
        archivo.Paso([&] { vertices = s.Red.NroVertices(i); });
        const int conLugar = VerticesConLugar(s, i, vertices);
        for (int j = 1; j <= conLugar; ++j)
            archivo.Registro([&](EscritorRegistros& escritor) {
                escritor.Numero(s.Red.XVertice(i, j)).Numero(s.Red.YVertice(i, j));
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
        if (s.Red.NroRepresas > 0) s.Anfitrion.HabilitaVerificacion();
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::ArchivoNoEsta) {
            s.Red.NroCauces = 0;
        } else {
            s.Control.CargaFallida = true;
            Advierte(s, std::string(AvisoDanado), {});
        }
    }
}

bool SinComponentes(const Siro& s)
{
    return s.Red.NroCauces == 0 && s.Red.NroUEHs == 0 && s.Red.NroRepresas == 0 && s.Red.NroLagos == 0;
}

// --- stream orders ---

/// Components by the name that they drain into, each list in the order of the collection. Nobody drains into
/// the empty name or "0", even where a component bears it.
template <typename T>
using PorDestino = std::unordered_map<std::string_view, std::vector<T*>>;

template <typename T, int Limite>
PorDestino<T> Agrupa(Coleccion<T, Limite>& coleccion)
{
    PorDestino<T> grupos;
    for (T& componente : coleccion)
        if (!componente.Cauce_aa.empty() && componente.Cauce_aa != "0")
            grupos[componente.Cauce_aa].push_back(&componente);
    return grupos;
}

template <typename T, typename F>
void PorAfluente(const PorDestino<T>& grupos, const std::string& nombre, F hace)
{
    const auto grupo = grupos.find(nombre);
    if (grupo == grupos.end()) return;
    for (T* componente : grupo->second)
        hace(*componente);
}

/// Order of a reach as its tributaries come one by one.
struct OrdenCreciente {
    bool primero = true;
    std::int16_t orden = 0;

    void Recibe(const Cauce& afluente)
    {
        if (!primero && orden == afluente.OrdenCauce) orden = Suma16(orden, 1);
        if (orden < afluente.OrdenCauce) orden = afluente.OrdenCauce;
        primero = false;
    }
    /// A reach without tributaries is of the first order.
    [[nodiscard]] std::int16_t Orden() const { return primero ? std::int16_t{1} : orden; }
};

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
    PorGrupo([&](const auto& grupo) {
        std::int16_t numero = 0;
        for (auto& componente : s.Red.*grupo.coleccion)
            componente.*grupo.numero = ++numero;
    });
}

bool EscribeRed(Siro& s, std::vector<CambioArchivo>& escritos)
{
    const auto cauces = s.Red.ColCauces;
    const std::int16_t nroCauces = s.Red.NroCauces;
    escritos.clear();
    Sentencia([&] { CalculaOrdenCauces(s); }, AvisaArchivo(s));
    if (SinComponentes(s)) {
        if (!s.Control.CargaFallida) return BorraArchivos(s);
        Advierte(s, std::string(AvisoNoSeBorra));
        return false;
    }
    const bool contados =
        Sentencia([&] { s.Red.NroCauces = Entero16(s.Red.ColCauces.Cuenta()); }, AvisaArchivo(s));
    if (contados && ReemplazaArchivos(s, escritos)) return true;
    s.Red.ColCauces = cauces;
    s.Red.NroCauces = nroCauces;
    return false;
}

void AlGuardarse(Siro& s, const std::vector<CambioArchivo>& escritos)
{
    if (escritos.empty()) return;
    Lee(s, escritos);
    s.Anfitrion.RedibujaEditor();
    Informa(s, std::string(AvisoGuardado) + s.Proyecto.ArchivoTemp);
}

bool mnu_btn_toolbarGuardaUEHs(Siro& s)
{
    if (!PuedeGuardar(s, {RutaDe(s, SufijoUEHs), RutaDe(s, SufijoVerCau)})) return false;
    std::vector<CambioArchivo> escritos;
    if (!EscribeRed(s, escritos)) return false;
    AlGuardarse(s, escritos);
    return true;
}

void CalculaOrdenCauces(Siro& s)
{
    for (Cauce& cauce : s.Red.ColCauces)
        cauce.OrdenCauce = 0;
    const PorDestino<Cauce> cauces = Agrupa(s.Red.ColCauces);
    const PorDestino<Lago> lagos = Agrupa(s.Red.ColLagos);
    const PorDestino<Represa> represas = Agrupa(s.Red.ColRepresas);

    for (int pasada = 0; pasada < PasadasOrden; ++pasada) {
        for (Cauce& cauce : s.Red.ColCauces) {
            OrdenCreciente creciente;
            const auto recibe = [&](const Cauce& afluente) { creciente.Recibe(afluente); };
            PorAfluente(cauces, cauce.NombreCauce, [&](const Cauce& afluente) {
                if (afluente.NombreCauce != cauce.NombreCauce) recibe(afluente);
            });
            PorAfluente(lagos, cauce.NombreCauce,
                        [&](const Lago& lago) { PorAfluente(cauces, lago.NombreLAGO, recibe); });
            PorAfluente(represas, cauce.NombreCauce,
                        [&](const Represa& represa) { PorAfluente(cauces, represa.NombreRepresa, recibe); });
            cauce.OrdenCauce = creciente.Orden();
        }
    }
}

}  // namespace model
