// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ResultadosCsv.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <utility>
#include <vector>

#include "engine/ColumnasDeSerie.h"
#include "engine/mdlSeriePDR.h"
#include "model/Disco.h"
#include "model/Siro.h"

namespace batch {
namespace {

constexpr std::string_view CabezaTormenta = "componente,p,minutos,qentra,qsale,h,s\n";
constexpr std::string_view CabezaSerie = "componente,storm,p,d,r";  // then the results
constexpr std::string_view NombreCuenca = "*";                      // the basin as a whole

constexpr std::size_t TrozoArchivo = std::size_t{1} << 18;  // bytes that are kept back before a write

/// A file that is written piece by piece, so that a long run needs no memory of its size.
class ArchivoCsv {
  public:
    ArchivoCsv(const model::Disco& unDisco, std::string unaRuta, std::string_view cabeza)
        : disco(unDisco), ruta(std::move(unaRuta))
    {
        disco.Escribe(ruta, cabeza);
    }
    void Fila(FilaCsv& fila)
    {
        fila.Termina(pendiente);
        if (pendiente.size() >= TrozoArchivo) Vuelca();
    }
    void Vuelca()
    {
        if (!pendiente.empty()) disco.Agrega(ruta, pendiente);
        pendiente.clear();
    }

  private:
    const model::Disco& disco;
    std::string ruta;
    std::string pendiente;
};

/// Height and storage of a Represa or Lago over time: the row `numero` of two arrays, which no other kind
/// has.
struct Embalse {
    const model::Matriz<float>* altura = nullptr;
    const model::Matriz<float>* volumen = nullptr;
    int numero = 0;
};

bool EsCauce(const model::Siro& s, const std::string& nombre)
{
    for (const auto& cauce : s.Red.ColCauces)
        if (cauce.NombreCauce == nombre) return true;
    return false;
}

/// The Represa or Lago of that name, without arrays where it is a Cauce. Kinds are looked at in the order in
/// which the sequence of computation looks at them.
Embalse EmbalseDe(const model::Siro& s, const std::string& nombre)
{
    if (EsCauce(s, nombre)) return {};
    for (const auto& lago : s.Red.ColLagos)
        if (lago.NombreLAGO == nombre) return Embalse{&s.Resultados.HLago, &s.Resultados.SLago, lago.numLAGO};
    for (const auto& represa : s.Red.ColRepresas)
        if (represa.NombreRepresa == nombre)
            return Embalse{&s.Resultados.HRepresa, &s.Resultados.SRepresa, represa.numRepresa};
    return {};
}

/// An element of a result array; an empty field where a fault of the run left the array without it.
template <typename T>
void Elemento(FilaCsv& fila, const model::Matriz<T>& matriz, int renglon, int columna)
{
    const bool esta =
        renglon >= matriz.PrimeraFila() && renglon <= matriz.UltimaFila() && columna <= matriz.TopeColumna();
    if (esta)
        fila.Numero(matriz(renglon, columna));
    else
        fila.Vacio();
}

void Elemento(FilaCsv& fila, const engine::ValorDeSerie& valor)
{
    if (const auto* x = std::get_if<float>(&valor))
        fila.Numero(*x);
    else if (const auto* n = std::get_if<std::int32_t>(&valor))
        fila.Numero(*n);
    else
        fila.Vacio();
}

void Componente(const model::Siro& s, int c, ArchivoCsv& archivo)
{
    const std::string& nombre = s.Resultados.Secuencia[static_cast<std::size_t>(c)];
    const bool esUEH = c <= s.Red.NroUEHs();
    const Embalse embalse = esUEH ? Embalse{} : EmbalseDe(s, nombre);
    FilaCsv fila;
    for (int p = 0; p <= s.Resultados.NroPasosQ; ++p) {
        fila.Texto(nombre).Numero(p).Numero(p * s.Pasos.PasoQ);
        if (esUEH)
            fila.Vacio();
        else
            Elemento(fila, s.Resultados.QEntra, c, p);
        Elemento(fila, s.Resultados.QSale, c, p);
        if (embalse.altura != nullptr) {
            Elemento(fila, *embalse.altura, embalse.numero, p);
            Elemento(fila, *embalse.volumen, embalse.numero, p);
        } else {
            fila.Vacio().Vacio();
        }
        archivo.Fila(fila);
    }
}

/// Numbers of the storms of the series that weren't skipped.
std::vector<int> TormentasCorridas(model::Siro& s)
{
    const std::int16_t ultimo = s.Serie.IndSerie;
    std::vector<int> corridas;
    for (int n = 1; n <= s.Serie.NroSeriePDR; ++n) {
        s.Serie.IndSerie = static_cast<std::int16_t>(n);
        engine::SaltaTormenta(s);
        if (!s.Serie.SaltarTormenta) corridas.push_back(n);
    }
    s.Serie.IndSerie = ultimo;
    return corridas;
}

void Tormenta(FilaCsv& fila, const model::Siro& s, std::string_view nombre, int n)
{
    fila.Texto(nombre)
        .Numero(n)
        .Numero(s.Serie.SerieP(n))
        .Numero(s.Serie.SerieD(n))
        .Numero(s.Serie.SerieR(n));
}

}  // namespace

FilaCsv& FilaCsv::Texto(std::string_view texto)
{
    Separa();
    if (texto.find_first_of(",\"\r\n") == std::string_view::npos) {
        fila += texto;
        return *this;
    }
    fila += '"';
    for (const char letra : texto) {
        if (letra == '"') fila += '"';
        fila += letra;
    }
    fila += '"';
    return *this;
}

/// A number with the comma ahead of it, in one piece.
template <typename T>
FilaCsv& FilaCsv::Cifras(T x)
{
    std::array<char, 32> texto;
    texto[0] = ',';
    const auto fin = std::to_chars(texto.data() + 1, texto.data() + texto.size(), x);
    fila.append(texto.data() + (primero ? 1 : 0), fin.ptr);
    primero = false;
    return *this;
}

FilaCsv& FilaCsv::Numero(float x)
{
    return Cifras(x);
}

FilaCsv& FilaCsv::Numero(std::int32_t n)
{
    return Cifras(n);
}

FilaCsv& FilaCsv::Vacio()
{
    Separa();
    return *this;
}

void FilaCsv::Termina(std::string& destino)
{
    destino += fila;
    destino += '\n';
    fila.clear();
    primero = true;
}

void FilaCsv::Separa()
{
    if (!primero) fila += ',';
    primero = false;
}

void GuardaCsvTormenta(const model::Siro& s, const std::string& ruta)
{
    ArchivoCsv archivo(s.Disco, ruta, CabezaTormenta);
    for (int c = 1; c <= s.Resultados.NroComponentes; ++c)
        Componente(s, c, archivo);
    archivo.Vuelca();
}

void GuardaCsvSerie(model::Siro& s, const std::string& ruta)
{
    std::string cabeza(CabezaSerie);
    for (const engine::ColumnaDeSerie& columna : engine::ColumnasDeSerie)
        cabeza.append(",").append(columna.enCsv);
    ArchivoCsv archivo(s.Disco, ruta, cabeza + "\n");
    const auto corridas = TormentasCorridas(s);
    const model::Resultados& r = s.Resultados;
    FilaCsv fila;
    const auto escribe = [&](std::string_view nombre, auto&& valor) {
        for (const int n : corridas) {
            Tormenta(fila, s, nombre, n);
            for (const engine::ColumnaDeSerie& columna : engine::ColumnasDeSerie)
                Elemento(fila, valor(columna, n));
            archivo.Fila(fila);
        }
    };
    for (int c = 1; c <= r.NroComponentes; ++c)
        escribe(r.Secuencia[static_cast<std::size_t>(c)], [&](const engine::ColumnaDeSerie& columna, int n) {
            return DelComponente(columna, r, s.Red.NroUEHs(), c, n);
        });
    escribe(NombreCuenca,
            [&](const engine::ColumnaDeSerie& columna, int n) { return columna.deLaCuenca(r, n); });
    archivo.Vuelca();
}

}  // namespace batch
