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
#include <variant>
#include <vector>

#include "model/Avisos.h"
#include "model/Candado.h"
#include "model/EscrituraInformada.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Siro.h"
#include "model/Texto.h"

namespace model {

namespace {

constexpr char Marca = '*';                ///< first letter of a block's header
constexpr std::string_view Relleno = "*";  ///< gives a header as many fields as a data line
constexpr int TopeMinimo = 10;             ///< rows that the arrays have at least, not counting row 0
constexpr std::size_t MaxColumnas = 4;

/// A column of a table: an array by component number and row of the table.
using Columna = std::variant<Matriz<float> Red::*, Matriz<std::int32_t> Red::*>;

/// A table file: whose it is and, in the order of a data line, what it holds.
template <typename T, int Limite>
struct ArchivoTabla {
    std::string_view sufijo;
    Coleccion<T, Limite> Red::*coleccion;
    std::int16_t Red::*cuenta;
    std::string T::*nombre;
    std::int16_t T::*numero;
    Arreglo<std::int16_t> Red::*filas;
    std::span<const Columna> columnas;
};

constexpr std::array<Columna, 3> ColumnasRHAS{&Red::RepresaH, &Red::RepresaA, &Red::RepresaS};
constexpr std::array<Columna, 2> ColumnasRHQ{&Red::RepresaQH, &Red::RepresaQQ};
constexpr std::array<Columna, 4> ColumnasLHASQ{&Red::LagoH, &Red::LagoA, &Red::LagoS, &Red::LagoQ};
static_assert(ColumnasLHASQ.size() <= MaxColumnas);

constexpr ArchivoTabla<Represa, MaxRepresas> ArchivoRHAS{
    "_RHAS.vlm",          &Red::ColRepresas,     &Red::NroRepresas, &Represa::NombreRepresa,
    &Represa::numRepresa, &Red::RepresaFilasHAS, ColumnasRHAS};
constexpr ArchivoTabla<Represa, MaxRepresas> ArchivoRHQ{
    "_RHQ.vlm",           &Red::ColRepresas,    &Red::NroRepresas, &Represa::NombreRepresa,
    &Represa::numRepresa, &Red::RepresaFilasHQ, ColumnasRHQ};
constexpr ArchivoTabla<Lago, MaxLagos> ArchivoLHASQ{"_LHASQ.vlm",      &Red::ColLagos, &Red::NroLagos,
                                                    &Lago::NombreLAGO, &Lago::numLAGO, &Red::LagoFilas,
                                                    ColumnasLHASQ};

/// Goes to the project's directory as far as a program does that composes its paths.
void VaADirectorio(const Siro& s)
{
    if (!s.Disco.HayDirectorio(s.Proyecto.DirProyecto)) throw Falla{NumeroFalla::RutaNoEsta};
}

/// Takes the count from the collection, and composes the name of the file. Returns its path.
template <typename T, int Limite>
std::string Compone(Siro& s, const ArchivoTabla<T, Limite>& archivo)
{
    Sentencia([&] { s.Red.*archivo.cuenta = Entero16((s.Red.*archivo.coleccion).Cuenta()); },
              AvisaArchivo(s));
    s.Proyecto.ArchivoTemp = s.Proyecto.NombreProyecto + std::string(archivo.sufijo);
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
template <typename T, int Limite>
class LecturaTabla {
  public:
    LecturaTabla(Siro& unSiro, const ArchivoTabla<T, Limite>& unArchivo)
        : s(unSiro), archivo(unArchivo), ruta(Compone(unSiro, unArchivo))
    {
        Sentencia([&] { VaADirectorio(s); }, AvisaArchivo(s));
        for (const T& componente : s.Red.*archivo.coleccion)
            mayorNumero = std::max(mayorNumero, int{componente.*archivo.numero});
        (s.Red.*archivo.filas).Dimensiona(mayorNumero);
        for (const Columna& columna : archivo.columnas)
            std::visit([&](auto matriz) { (s.Red.*matriz).Dimensiona(mayorNumero, TopeMinimo); }, columna);
    }
    /// A missing file or block leaves its component and all that follow without rows.
    void Lee()
    {
        for (const T& componente : s.Red.*archivo.coleccion)
            if (!LeeComponente(componente)) return;
    }

  private:
    enum class Apertura { Abierto, NoEsta, EnFalla };

    bool LeeComponente(const T& componente)
    {
        const Apertura apertura = Abre();
        if (apertura == Apertura::EnFalla) return true;
        const auto* bloque =
            apertura == Apertura::NoEsta ? nullptr : registros->Busca(s, Marca + componente.*archivo.nombre);
        const int numero = componente.*archivo.numero;
        if (bloque != nullptr && LeeBloque(*bloque, numero)) return true;
        Paso([&] { (s.Red.*archivo.filas)(numero) = 0; });
        return false;
    }
    // The file is opened anew for every component until it has been read; what can't be opened can't be
    // scanned either, and each of the two statements is reported.
    Apertura Abre()
    {
        if (registros) return Apertura::Abierto;
        Apertura apertura = Apertura::Abierto;
        Sentencia([&] { registros.emplace(LeeVigilado(s, ruta), archivo.columnas.size()); },
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
        Paso([&] { (s.Red.*archivo.filas)(numero) = bloque.filas; });
        Ensancha(bloque.filas);
        try {
            registros->Va(bloque);
            for (int k = 1; k <= bloque.filas; ++k)
                LeeFila(numero, k);
        } catch (const Falla&) {
            return false;  // the end of the file: all else is reported where it arises
        }
        return true;
    }
    void Ensancha(int filas)
    {
        mayorCuenta = std::max(mayorCuenta, filas);
        const int tope = std::max(TopeMinimo, mayorCuenta + 1);
        // A damaged network has components by the thousand: no table of theirs is worth the whole memory.
        constexpr std::size_t MaximoCeldas = std::size_t{1} << 23;
        if (static_cast<std::size_t>(mayorNumero) * static_cast<std::size_t>(tope) > MaximoCeldas)
            throw std::bad_alloc{};
        for (const Columna& columna : archivo.columnas)
            std::visit([&](auto matriz) { (s.Red.*matriz).Redimensiona(tope); }, columna);
    }
    void LeeFila(int numero, int k)
    {
        std::array<float, MaxColumnas> leidos{};
        const bool leida = Paso([&] { leidos = registros->Numeros(); });
        for (std::size_t c = 0; leida && c < archivo.columnas.size(); ++c)
            std::visit([&](auto matriz) { Paso([&] { Guarda((s.Red.*matriz)(numero, k), leidos[c]); }); },
                       archivo.columnas[c]);
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
    const ArchivoTabla<T, Limite>& archivo;
    std::string ruta;
    std::optional<Registros> registros;
    int mayorNumero = 0;
    int mayorCuenta = 0;
};

template <typename T, int Limite>
void LeeTabla(Siro& s, const ArchivoTabla<T, Limite>& archivo)
{
    LecturaTabla<T, Limite>(s, archivo).Lee();
}

// --- writing ---

void Pon(EscritorRegistros& escritor, float x)
{
    escritor.Numero(x);
}
void Pon(EscritorRegistros& escritor, std::int32_t x)
{
    escritor.Numero(x);
}

template <typename T, int Limite>
void EscribeCabecera(EscrituraInformada& salida, const Siro& s, const ArchivoTabla<T, Limite>& archivo,
                     const T& componente)
{
    salida.Registro([&](EscritorRegistros& escritor) {
        const std::int16_t filas = (s.Red.*archivo.filas)(componente.*archivo.numero);
        escritor.Texto(Marca + componente.*archivo.nombre).Numero(std::int32_t{filas});
        for (std::size_t c = 2; c < archivo.columnas.size(); ++c)
            escritor.Texto(Relleno);
    });
}

/// Puts a row's fields; whether all of them are there is seen first, so that no part of a record is left.
void PonFila(EscritorRegistros& escritor, const Siro& s, std::span<const Columna> columnas, int numero, int k)
{
    for (const Columna& columna : columnas)
        std::visit([&](auto matriz) { static_cast<void>((s.Red.*matriz)(numero, k)); }, columna);
    for (const Columna& columna : columnas)
        std::visit([&](auto matriz) { Pon(escritor, (s.Red.*matriz)(numero, k)); }, columna);
}

template <typename T, int Limite>
bool GuardaTabla(Siro& s, const ArchivoTabla<T, Limite>& archivo)
{
    const std::string ruta = Compone(s, archivo);
    if (!PuedeGuardar(s, {ruta})) return false;
    EscrituraInformada salida(s, ruta, NumeroFalla::ArchivoNoEsta);
    salida.Paso([&] { VaADirectorio(s); });
    for (const T& componente : s.Red.*archivo.coleccion) {
        EscribeCabecera(salida, s, archivo, componente);
        const int numero = componente.*archivo.numero;
        int filas = 0;
        salida.Paso([&] { filas = (s.Red.*archivo.filas)(numero); });
        for (int k = 1; k <= filas; ++k)
            salida.Registro(
                [&](EscritorRegistros& escritor) { PonFila(escritor, s, archivo.columnas, numero, k); });
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
        return hace(ArchivoRHQ);
    case ArchivoDeTablas::LHASQ:
        return hace(ArchivoLHASQ);
    case ArchivoDeTablas::RHAS:
        break;
    }
    return hace(ArchivoRHAS);
}

std::size_t CamposPorRegistro(ArchivoDeTablas archivo)
{
    return ConArchivo(archivo, [](const auto& a) { return a.columnas.size(); });
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
    return s.Proyecto.NombreProyecto +
           ConArchivo(archivo, [](const auto& a) { return std::string(a.sufijo); });
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
        try {
            bytes = s.Disco.Lee(ruta);
        } catch (const Falla& falla) {
            if (falla.numero != NumeroFalla::ArchivoNoEsta) throw;  // not every component has all its tables
            continue;
        }
        if (auto otros = Renombrado(std::move(bytes), CamposPorRegistro(archivo), viejo, nuevo))
            cambios.push_back({ruta, *std::move(otros)});
    }
    if (!cambios.empty()) s.Disco.Reemplaza(cambios);
    return !cambios.empty();
}

void LeeTablaHSVRepresa(Siro& s)
{
    LeeTabla(s, ArchivoRHAS);
}

void LeeTablaHQRepresa(Siro& s)
{
    LeeTabla(s, ArchivoRHQ);
}

void LeeTablaHSVQLago(Siro& s)
{
    LeeTabla(s, ArchivoLHASQ);
}

bool GuardaTablaHSVRepresa(Siro& s)
{
    return GuardaTabla(s, ArchivoRHAS);
}

bool GuardaTablaHQRepresa(Siro& s)
{
    return GuardaTabla(s, ArchivoRHQ);
}

bool GuardaTablaHSVQLago(Siro& s)
{
    return GuardaTabla(s, ArchivoLHASQ);
}

}  // namespace model
