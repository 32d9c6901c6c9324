// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/TablasEmbalse.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Huellas.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace model {

namespace {

constexpr char Marca = '*';                ///< first letter of a block's header
constexpr std::string_view Relleno = "*";  ///< gives a header as many fields as a data line
constexpr int TopeMinimo = 10;             ///< rows that the arrays have at least, not counting row 0
// A table file: whose it is, how many rows each of its tables has, and in the order of a data line its
// columns, which are handed to `hace` all at once.

struct ArchivoRHAS {
    using De = Represa;
    static constexpr std::string_view sufijo = "_RHAS.vlm";
    static constexpr std::size_t columnas = 3;
    static auto& Filas(auto& red) { return red.RepresaFilasHAS; }
    static void Columnas(auto& red, auto&& hace) { hace(red.RepresaH, red.RepresaA, red.RepresaS); }
};

struct ArchivoRHQ {
    using De = Represa;
    static constexpr std::string_view sufijo = "_RHQ.vlm";
    static constexpr std::size_t columnas = 2;
    static auto& Filas(auto& red) { return red.RepresaFilasHQ; }
    static void Columnas(auto& red, auto&& hace) { hace(red.RepresaQH, red.RepresaQQ); }
};

struct ArchivoLHASQ {
    using De = Lago;
    static constexpr std::string_view sufijo = "_LHASQ.vlm";
    static constexpr std::size_t columnas = 4;
    static auto& Filas(auto& red) { return red.LagoFilas; }
    static void Columnas(auto& red, auto&& hace) { hace(red.LagoH, red.LagoA, red.LagoS, red.LagoQ); }
};
constexpr std::size_t MaxColumnas = ArchivoLHASQ::columnas;

/// Goes to the project's directory as far as a program does that composes its paths.
void VaADirectorio(const Siro& s)
{
    if (!s.Disco.HayDirectorio(s.Proyecto.DirProyecto)) throw Falla{NumeroFalla::RutaNoEsta};
}

/// Makes the components count that are there, and composes the name of the file. Returns its path.
template <typename Archivo>
std::string Compone(Siro& s)
{
    Todos<typename Archivo::De>(s.Red).Recuenta();
    s.Proyecto.ArchivoTemp = s.Proyecto.NombreProyecto + std::string(Archivo::sufijo);
    return Ruta(s.Proyecto.DirProyecto, s.Proyecto.ArchivoTemp);
}

// --- reading ---

/// Whether a field is a small number at first sight, so that it can't be at fault as a 16-bit one: at most
/// four digits, a point and digits if it likes.
bool EsNumeroChico(const Campo& campo)
{
    constexpr std::size_t CifrasSeguras = 4;
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    const auto punto = std::find_if_not(campo.bytes.begin(), campo.bytes.end(), cifra);
    const auto enteras = static_cast<std::size_t>(punto - campo.bytes.begin());
    if (campo.entreComillas || enteras == 0 || enteras > CifrasSeguras) return false;
    return punto == campo.bytes.end() || (*punto == '.' && std::all_of(punto + 1, campo.bytes.end(), cifra));
}

/// A table file in records of as many fields as a data line has, which is how a scan for a block takes it,
/// whatever a line holds. A scan begins at the head of the file for every component, so that the records are
/// the same for all: one look finds the headers, and the records whose second field is no 16-bit number.
///
/// No table has more than MaximoFilas rows: where so many records have gone by without a header, and where so
/// many headers and records at fault have been found, the file is damaged, and it is taken to end there.
class Registros {
  public:
    struct Hallazgo {
        std::string marcador{};        ///< first field of a header
        std::int16_t filas = 0;        ///< second field
        std::optional<Falla> falla{};  ///< what the second field is at fault for
        std::size_t datos = 0;         ///< where in the file the next record begins
    };

    Registros(std::string bytes, std::size_t camposPorRegistro)
        : lector(std::move(bytes)), porRegistro(camposPorRegistro)
    {
        // A field that no reader takes ends the file, as it does for whoever reads it.
        Sentencia([&] {
            while (sinCabecera <= MaximoFilas && hallazgos.size() < MaximoFilas && Mira()) {
            }
        });
    }
    Registros(const Registros&) = delete;
    Registros& operator=(const Registros&) = delete;

    /// The block of a component, each record at fault on the way reported; nothing where it isn't there.
    const Hallazgo* Busca(const Siro& s, const std::string& marcador) const
    {
        for (const Hallazgo& hallazgo : hallazgos) {
            if (hallazgo.falla) {
                AvisaArchivo(s)(*hallazgo.falla);
            } else if (hallazgo.marcador == marcador) {
                return &hallazgo;
            }
        }
        return nullptr;
    }
    /// The headers, and what is at fault, in the order of the file.
    [[nodiscard]] const std::vector<Hallazgo>& Hallazgos() const { return hallazgos; }
    /// Goes to the first data line of a block.
    void Va(const Hallazgo& bloque) { lector.Vuelve(bloque.datos); }
    /// The numbers of the next data line. Throws Falla 13, 6, and 62 where the file ends first.
    std::array<float, MaxColumnas> Numeros()
    {
        std::array<float, MaxColumnas> numeros{};
        lector.Registro(static_cast<int>(porRegistro), [&] {
            for (std::size_t c = 0; c < porRegistro; ++c)
                numeros[c] = lector.NumeroSimple();
        });
        return numeros;
    }

  private:
    static constexpr std::size_t MaximoFilas = 32767;

    /// Looks at the next record as at a header. Returns false where the file ends inside it.
    bool Mira()
    {
        if (lector.Fin()) return false;
        const Campo primero = lector.Siguiente();
        if (lector.Fin()) return false;
        const Campo segundo = lector.Siguiente();
        std::size_t leidos = 2;
        for (; leidos < porRegistro && !lector.Fin(); ++leidos)
            lector.Siguiente();
        const bool entero = leidos == porRegistro;
        const bool cabecera = primero.bytes.starts_with(Marca);
        sinCabecera = cabecera ? 0 : sinCabecera + 1;
        Hallazgo hallazgo;
        if (cabecera || !EsNumeroChico(segundo))
            Sentencia([&] { hallazgo.filas = CampoNumero16(segundo); },
                      [&](const Falla& falla) { hallazgo.falla = falla; });
        if (hallazgo.falla || (cabecera && entero)) {
            if (cabecera) hallazgo.marcador = DeWindows1252(primero.bytes);
            hallazgo.datos = lector.Lugar();
            hallazgos.push_back(std::move(hallazgo));
        }
        return entero;
    }
    LectorRegistros lector;
    std::size_t porRegistro;
    std::size_t sinCabecera = 0;  ///< records since the last header
    std::vector<Hallazgo> hallazgos;
};

/// The tables of all components as they are filled.
template <typename Archivo>
class LecturaTabla {
  public:
    explicit LecturaTabla(Siro& unSiro) : s(unSiro), ruta(Compone<Archivo>(unSiro))
    {
        Sentencia([&] { VaADirectorio(s); }, AvisaArchivo(s));
        for (const T& componente : Todos<T>(s.Red))
            mayorNumero = std::max(mayorNumero, int{Numero(componente)});
        Archivo::Filas(s.Red).Dimensiona(mayorNumero);
        Archivo::Columnas(s.Red,
                          [&](auto&... columna) { (columna.Dimensiona(mayorNumero, TopeMinimo), ...); });
    }
    /// A missing file or block leaves its component and all that follow without rows.
    void Lee()
    {
        for (const T& componente : Todos<T>(s.Red))
            if (!LeeComponente(componente)) return;
    }

  private:
    using T = typename Archivo::De;
    enum class Apertura { Abierto, NoEsta, EnFalla };

    bool LeeComponente(const T& componente)
    {
        const Apertura apertura = Abre();
        if (apertura == Apertura::EnFalla) return true;
        const auto* bloque =
            apertura == Apertura::NoEsta ? nullptr : registros->Busca(s, Marca + Nombre(componente));
        const int numero = Numero(componente);
        if (bloque != nullptr && LeeBloque(*bloque, numero)) return true;
        Paso([&] { Archivo::Filas(s.Red)(numero) = 0; });
        return false;
    }
    // The file is opened anew for every component until it has been read; what can't be opened can't be
    // scanned either, and each of the two statements is reported.
    Apertura Abre()
    {
        if (registros) return Apertura::Abierto;
        Apertura apertura = Apertura::Abierto;
        Sentencia([&] { registros.emplace(LeeVigilado(s, ruta), Archivo::columnas); },
                  [&](const Falla& falla) {
                      apertura =
                          falla.numero == NumeroFalla::ArchivoNoEsta ? Apertura::NoEsta : Apertura::EnFalla;
                      if (apertura == Apertura::NoEsta) return;
                      AvisaArchivo(s)(falla);
                      AvisaArchivo(s)(falla);
                  });
        return apertura;
    }
    /// Returns false where the file ends inside the block.
    bool LeeBloque(const Registros::Hallazgo& bloque, int numero)
    {
        Paso([&] { Archivo::Filas(s.Red)(numero) = bloque.filas; });
        Ensancha(bloque.filas);
        // A fault here is the end of the file: all else is reported where it arises.
        return Sentencia([&] {
            registros->Va(bloque);
            for (int k = 1; k <= bloque.filas; ++k)
                LeeFila(numero, k);
        });
    }
    void Ensancha(int filas)
    {
        mayorCuenta = std::max(mayorCuenta, filas);
        const int tope = std::max(TopeMinimo, mayorCuenta + 1);
        // A damaged network has components by the thousand: no table of theirs is worth the whole memory.
        constexpr std::size_t MaximoCeldas = std::size_t{1} << 23;
        if (static_cast<std::size_t>(mayorNumero) * static_cast<std::size_t>(tope) > MaximoCeldas)
            throw std::bad_alloc{};
        Archivo::Columnas(s.Red, [&](auto&... columna) { (columna.Redimensiona(tope), ...); });
    }
    void LeeFila(int numero, int k)
    {
        std::array<float, MaxColumnas> leidos{};
        const bool leida = Paso([&] { leidos = registros->Numeros(); });
        const auto guarda = [&](auto& columna, float leido) {
            if (leida) Paso([&] { Guarda(columna(numero, k), leido); });
        };
        std::size_t c = 0;
        Archivo::Columnas(s.Red, [&](auto&... columna) { (guarda(columna, leidos[c++]), ...); });
    }
    static void Guarda(float& lugar, float valor) { lugar = valor; }
    // The storage has passed through a 32-bit float: above 2^24 only the float's steps are left of it.
    static void Guarda(std::int32_t& lugar, float valor) { lugar = Entero32(double{valor}); }

    template <typename F>
    bool Paso(F&& cuerpo)
    {
        return Sentencia(std::forward<F>(cuerpo), [&](const Falla& falla) {
            if (falla.numero == NumeroFalla::FinDeArchivo) throw falla;
            AvisaArchivo(s)(falla);
        });
    }

    Siro& s;
    std::string ruta;
    std::optional<Registros> registros;
    int mayorNumero = 0;
    int mayorCuenta = 0;
};

// --- writing ---

template <typename Archivo>
bool GuardaTabla(Siro& s)
{
    const std::string ruta = Compone<Archivo>(s);
    if (!PuedeGuardar(s, {ruta})) return false;
    EscrituraInformada salida(s, ruta, NumeroFalla::ArchivoNoEsta);
    salida.Paso([&] { VaADirectorio(s); });
    for (const auto& componente : Todos<typename Archivo::De>(s.Red)) {
        int filas = 0;
        salida.Registro([&](EscritorRegistros& escritor) {
            filas = Archivo::Filas(s.Red)(Numero(componente));
            escritor.Campos(Marca + Nombre(componente), filas);
            for (std::size_t c = 2; c < Archivo::columnas; ++c)
                escritor.Texto(Relleno);
        });
        for (int k = 1; k <= filas; ++k)
            salida.Registro([&](EscritorRegistros& escritor) {
                Archivo::Columnas(
                    s.Red, [&](auto&... columna) { escritor.Campos(columna(Numero(componente), k)...); });
            });
    }
    const bool guardada = salida.Cierra();
    if (guardada) AnotaGuardado(s, ruta);
    return guardada;
}

// --- blocks by name ---

/// Does something with the description of a file.
template <typename F>
auto ConArchivo(ArchivoDeTablas archivo, F hace)
{
    switch (archivo) {
    case ArchivoDeTablas::RHQ:
        return hace(ArchivoRHQ{});
    case ArchivoDeTablas::LHASQ:
        return hace(ArchivoLHASQ{});
    case ArchivoDeTablas::RHAS:
        break;
    }
    return hace(ArchivoRHAS{});
}

std::size_t CamposPorRegistro(ArchivoDeTablas archivo)
{
    return ConArchivo(archivo, [](auto a) { return a.columnas; });
}

std::vector<BloqueDeTabla> Bloques(std::string bytes, std::size_t camposPorRegistro)
{
    const Registros registros(std::move(bytes), camposPorRegistro);
    std::vector<BloqueDeTabla> bloques;
    for (const auto& hallazgo : registros.Hallazgos())
        if (!hallazgo.falla) bloques.push_back({hallazgo.marcador.substr(1), hallazgo.filas});
    return bloques;
}

}  // namespace

std::string NombreDeArchivo(const Siro& s, ArchivoDeTablas archivo)
{
    return s.Proyecto.NombreProyecto + ConArchivo(archivo, [](auto a) { return std::string(a.sufijo); });
}

std::vector<BloqueDeTabla> BloquesDe(const Siro& s, ArchivoDeTablas archivo)
{
    std::vector<BloqueDeTabla> bloques;
    Sentencia([&] {
        bloques = Bloques(s.Disco.Lee(Ruta(s.Proyecto.DirProyecto, NombreDeArchivo(s, archivo))),
                          CamposPorRegistro(archivo));
    });
    return bloques;
}

namespace {

/// The bytes of a file with one header changed; nothing where there is nothing to change.
std::optional<std::string> Renombrado(std::string bytes, std::size_t campos, std::string_view viejo,
                                      std::string_view nuevo)
{
    for (const BloqueDeTabla& bloque : Bloques(bytes, campos))
        if (bloque.nombre == nuevo) return {};
    const std::string cabecera = AWindows1252(Marca + std::string(viejo));
    LectorRegistros lector(bytes);
    for (std::size_t n = 0; !lector.Fin(); ++n) {
        const std::size_t desde = lector.Lugar();
        const Campo campo = lector.Siguiente();
        if (n % campos != 0 || campo.bytes != cabecera) continue;
        // Between the field's beginning and its text stand blanks and a quote at the most.
        bytes.replace(bytes.find(cabecera, desde), cabecera.size(), AWindows1252(Marca + std::string(nuevo)));
        return bytes;
    }
    return {};
}

}  // namespace

bool RenombraBloques(const Siro& s, std::span<const ArchivoDeTablas> archivos, std::string_view viejo,
                     std::string_view nuevo)
{
    std::vector<CambioArchivo> cambios;
    for (const ArchivoDeTablas archivo : archivos) {
        const std::string ruta = Ruta(s.Proyecto.DirProyecto, NombreDeArchivo(s, archivo));
        std::string bytes;
        if (!Sentencia([&] { bytes = s.Disco.Lee(ruta); }, SalvoQueFalte)) continue;
        if (auto otros = Renombrado(std::move(bytes), CamposPorRegistro(archivo), viejo, nuevo))
            cambios.push_back({ruta, *std::move(otros)});
    }
    if (!cambios.empty()) s.Disco.Reemplaza(cambios);
    return !cambios.empty();
}

void LeeTablaHSVRepresa(Siro& s)
{
    LecturaTabla<ArchivoRHAS>(s).Lee();
}

void LeeTablaHQRepresa(Siro& s)
{
    LecturaTabla<ArchivoRHQ>(s).Lee();
}

void LeeTablaHSVQLago(Siro& s)
{
    LecturaTabla<ArchivoLHASQ>(s).Lee();
}

bool GuardaTablaHSVRepresa(Siro& s)
{
    return GuardaTabla<ArchivoRHAS>(s);
}

bool GuardaTablaHQRepresa(Siro& s)
{
    return GuardaTabla<ArchivoRHQ>(s);
}

bool GuardaTablaHSVQLago(Siro& s)
{
    return GuardaTabla<ArchivoLHASQ>(s);
}

}  // namespace model
