// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/TablasEmbalse.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/Avisos.h"
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
using Columna = std::variant<Matriz<float> Siro::*, Matriz<std::int32_t> Siro::*>;

/// A table file: whose it is and, in the order of a data line, what it holds.
template <typename T, int Limite>
struct ArchivoTabla {
    std::string_view sufijo;
    Coleccion<T, Limite> Siro::*coleccion;
    std::int16_t Siro::*cuenta;
    std::string T::*nombre;
    std::int16_t T::*numero;
    Arreglo<std::int16_t> Siro::*filas;
    std::span<const Columna> columnas;
};

constexpr auto ColumnasRHAS = std::to_array<Columna>({&Siro::RepresaH, &Siro::RepresaA, &Siro::RepresaS});
constexpr auto ColumnasRHQ = std::to_array<Columna>({&Siro::RepresaQH, &Siro::RepresaQQ});
constexpr auto ColumnasLHASQ =
    std::to_array<Columna>({&Siro::LagoH, &Siro::LagoA, &Siro::LagoS, &Siro::LagoQ});
static_assert(ColumnasLHASQ.size() <= MaxColumnas);

constexpr ArchivoTabla<Represa, MaxRepresas> ArchivoRHAS{
    "_RHAS.vlm",          &Siro::ColRepresas,     &Siro::NroRepresas, &Represa::NombreRepresa,
    &Represa::numRepresa, &Siro::RepresaFilasHAS, ColumnasRHAS};
constexpr ArchivoTabla<Represa, MaxRepresas> ArchivoRHQ{
    "_RHQ.vlm",           &Siro::ColRepresas,    &Siro::NroRepresas, &Represa::NombreRepresa,
    &Represa::numRepresa, &Siro::RepresaFilasHQ, ColumnasRHQ};
constexpr ArchivoTabla<Lago, MaxLagos> ArchivoLHASQ{"_LHASQ.vlm",      &Siro::ColLagos, &Siro::NroLagos,
                                                    &Lago::NombreLAGO, &Lago::numLAGO,  &Siro::LagoFilas,
                                                    ColumnasLHASQ};

void InformaFalla(const Siro& s, const Falla& falla)
{
    Informa(s, TextoFallaArchivo(falla));
}

/// Goes to the project's directory as far as a program does that composes its paths.
void VaADirectorio(const Siro& s)
{
    if (!s.Disco.HayDirectorio(s.DirProyecto)) throw Falla{NumeroFalla::RutaNoEsta};
}

/// What readers and writers begin with: the count, the directory, the name of the file. Returns its path.
template <typename T, int Limite>
std::string Prepara(Siro& s, const ArchivoTabla<T, Limite>& archivo)
{
    const auto informa = [&](const Falla& falla) { InformaFalla(s, falla); };
    Sentencia([&] { s.*archivo.cuenta = Entero16((s.*archivo.coleccion).Cuenta()); }, informa);
    Sentencia([&] { VaADirectorio(s); }, informa);
    s.ArchivoTemp = s.NombreProyecto + std::string(archivo.sufijo);
    return Ruta(s.DirProyecto, s.ArchivoTemp);
}

// --- reading ---

/// What a scan for a block meets in a table file, which it takes in records of as many fields as a data line
/// has: headers, and records whose second field is no 16-bit number. A scan begins at the head of the file
/// for every component, so that the places of the records are the same for all, and one look is enough.
class Registros {
  public:
    struct Hallazgo {
        std::string marcador{};        ///< first field of a header
        std::int16_t filas = 0;        ///< second field
        std::optional<Falla> falla{};  ///< what the second field of any record is at fault for
        std::size_t detras = 0;        ///< place behind the record
    };

    Registros(std::string bytes, std::size_t camposPorRegistro)
        : lector(std::move(bytes)), campos(static_cast<int>(camposPorRegistro))
    {
        try {
            while (!lector.Fin())
                Mira();
        } catch (const Falla& falla) {
            if (falla.numero != NumeroFalla::FinDeArchivo) throw;  // the last record is short of fields
        }
    }
    /// The block of a component, each record at fault on the way reported; nothing where it isn't there.
    const Hallazgo* Busca(const Siro& s, const std::string& marcador) const
    {
        for (const Hallazgo& hallazgo : hallazgos) {
            if (hallazgo.falla) {
                InformaFalla(s, *hallazgo.falla);
            } else if (hallazgo.marcador == marcador) {
                return &hallazgo;
            }
        }
        return nullptr;
    }
    LectorRegistros& Desde(const Hallazgo& hallazgo)
    {
        lector.Vuelve(hallazgo.detras);
        return lector;
    }

  private:
    void Mira()
    {
        Campo primero;
        Hallazgo hallazgo;
        const auto lee = [&] {
            primero = lector.Siguiente();
            hallazgo.filas = CampoNumero16(lector.Siguiente());
            for (int i = 2; i < campos; ++i)
                lector.Siguiente();
        };
        Sentencia([&] { lector.Registro(campos, lee); },
                  [&](const Falla& falla) {
                      if (falla.numero == NumeroFalla::FinDeArchivo) throw falla;
                      hallazgo.falla = falla;
                  });
        hallazgo.detras = lector.Lugar();
        const bool cabecera = primero.bytes.starts_with(Marca);
        if (!cabecera && !hallazgo.falla) return;
        if (cabecera) hallazgo.marcador = DeWindows1252(primero.bytes);
        hallazgos.push_back(std::move(hallazgo));
    }
    LectorRegistros lector;
    int campos;
    std::vector<Hallazgo> hallazgos;
};

/// The tables of all components as they are filled.
template <typename T, int Limite>
class LecturaTabla {
  public:
    LecturaTabla(Siro& unSiro, const ArchivoTabla<T, Limite>& unArchivo)
        : s(unSiro), archivo(unArchivo), ruta(Prepara(unSiro, unArchivo))
    {
        for (const T& componente : s.*archivo.coleccion)
            mayorNumero = std::max(mayorNumero, int{componente.*archivo.numero});
        (s.*archivo.filas).Dimensiona(mayorNumero);
        for (const Columna& columna : archivo.columnas)
            std::visit([&](auto matriz) { (s.*matriz).Dimensiona(mayorNumero, TopeMinimo); }, columna);
    }
    /// A missing file or block leaves its component and all that follow without rows.
    void Lee()
    {
        for (const T& componente : s.*archivo.coleccion)
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
        Paso([&] { (s.*archivo.filas)(numero) = 0; });
        return false;
    }
    // The file is opened anew for every component until it has been read; what can't be opened can't be
    // scanned either, and each of the two statements is reported.
    Apertura Abre()
    {
        if (registros) return Apertura::Abierto;
        Apertura apertura = Apertura::Abierto;
        Sentencia([&] { registros.emplace(s.Disco.Lee(ruta), archivo.columnas.size()); },
                  [&](const Falla& falla) {
                      apertura =
                          falla.numero == NumeroFalla::ArchivoNoEsta ? Apertura::NoEsta : Apertura::EnFalla;
                      if (apertura == Apertura::NoEsta) return;
                      InformaFalla(s, falla);
                      InformaFalla(s, falla);
                  });
        return apertura;
    }
    /// Returns false where the file ends inside the block.
    bool LeeBloque(const Registros::Hallazgo& bloque, int numero)
    {
        Paso([&] { (s.*archivo.filas)(numero) = bloque.filas; });
        Ensancha(bloque.filas);
        LectorRegistros& lector = registros->Desde(bloque);
        try {
            for (int k = 1; k <= bloque.filas; ++k)
                LeeFila(lector, numero, k);
        } catch (const Falla&) {
            return false;  // the end of the file: all else is reported where it arises
        }
        return true;
    }
    void Ensancha(int filas)
    {
        mayorCuenta = std::max(mayorCuenta, filas);
        const int tope = std::max(TopeMinimo, mayorCuenta + 1);
        for (const Columna& columna : archivo.columnas)
            std::visit([&](auto matriz) { (s.*matriz).Redimensiona(tope); }, columna);
    }
    void LeeFila(LectorRegistros& lector, int numero, int k)
    {
        const std::size_t campos = archivo.columnas.size();
        std::array<float, MaxColumnas> leidos{};
        const bool leida = Paso([&] {
            lector.Registro(static_cast<int>(campos), [&] {
                for (std::size_t c = 0; c < campos; ++c)
                    leidos[c] = lector.NumeroSimple();
            });
        });
        for (std::size_t c = 0; leida && c < campos; ++c)
            std::visit([&](auto matriz) { Paso([&] { Guarda((s.*matriz)(numero, k), leidos[c]); }); },
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
            InformaFalla(s, falla);
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
        const std::int16_t filas = (s.*archivo.filas)(componente.*archivo.numero);
        escritor.Texto(Marca + componente.*archivo.nombre).Numero(std::int32_t{filas});
        for (std::size_t c = 2; c < archivo.columnas.size(); ++c)
            escritor.Texto(Relleno);
    });
}

/// Puts a row's fields; whether all of them are there is seen first, so that no part of a record is left.
void PonFila(EscritorRegistros& escritor, const Siro& s, std::span<const Columna> columnas, int numero, int k)
{
    for (const Columna& columna : columnas)
        std::visit([&](auto matriz) { static_cast<void>((s.*matriz)(numero, k)); }, columna);
    for (const Columna& columna : columnas)
        std::visit([&](auto matriz) { Pon(escritor, (s.*matriz)(numero, k)); }, columna);
}

template <typename T, int Limite>
void GuardaTabla(Siro& s, const ArchivoTabla<T, Limite>& archivo)
{
    const std::string ruta = Prepara(s, archivo);
    EscrituraInformada salida(s, NumeroFalla::ArchivoNoEsta);
    salida.Abre(ruta);
    for (const T& componente : s.*archivo.coleccion) {
        EscribeCabecera(salida, s, archivo, componente);
        const int numero = componente.*archivo.numero;
        int filas = 0;
        salida.Paso([&] { filas = (s.*archivo.filas)(numero); });
        for (int k = 1; k <= filas; ++k)
            salida.Registro(
                [&](EscritorRegistros& escritor) { PonFila(escritor, s, archivo.columnas, numero, k); });
    }
    salida.Cierra();
}

}  // namespace

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

void GuardaTablaHSVRepresa(Siro& s)
{
    GuardaTabla(s, ArchivoRHAS);
}

void GuardaTablaHQRepresa(Siro& s)
{
    GuardaTabla(s, ArchivoRHQ);
}

void GuardaTablaHSVQLago(Siro& s)
{
    GuardaTabla(s, ArchivoLHASQ);
}

}  // namespace model
