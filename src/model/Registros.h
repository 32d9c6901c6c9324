// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "model/Disco.h"
#include "model/Falla.h"

// Delimited text records, the form of every project and table file: fields end at a comma or a line end,
// texts stand in double quotes, numbers are bare with a point, booleans are #TRUE# and #FALSE#. Behind
// a comma there is always a field, be it the last byte of a file; behind the last line end there is none.
namespace model {

/// One field as it stands in the file.
struct Campo {
    std::string_view bytes{};  ///< Windows-1252; without quotes, or with the blanks at both ends dropped
    bool entreComillas = false;
};

/// Takes fields in sequence. What a field can't give is Falla 13 (not of the type) or 6 (outside the type),
/// and the field is consumed; behind the last field comes Falla 62.
class LectorRegistros {
  public:
    /// `bytes`: the whole file, Windows-1252; the reader keeps it.
    explicit LectorRegistros(std::string bytes)
        : contenido(std::move(bytes)), lugar(contenido.empty() ? 1 : 0)
    {
    }

    /// Each throws Falla 62 past the end.
    std::string Texto();      ///< any field, as UTF-8
    std::int16_t Numero16();  ///< rounded, a tie to the even one; empty is 0. Throws Falla 13, 6
    float NumeroSimple();     ///< empty is 0. Throws Falla 13, 6
    bool Logico();            ///< empty is false, a number is true unless 0. Throws Falla 13, 6

    /// One field whatever it is. Throws Falla 62 past the end.
    Campo Siguiente();
    [[nodiscard]] bool Fin() const { return lugar > contenido.size(); }
    [[nodiscard]] std::size_t Lugar() const { return lugar; }
    /// Goes back to a place that Lugar() gave.
    void Vuelve(std::size_t donde) { lugar = donde; }

    /// Reads several fields as one statement: `lee` takes them one by one; where one of them is at fault the
    /// rest of the record's `campos` fields is consumed all the same, then the first fault goes on its way.
    template <typename F>
    void Registro(int campos, F lee);
    /// A record of so many fields, which are stored together or, where one of them is at fault, not at all.
    template <typename... X>
    void Campos(X&... lugares)
    {
        std::tuple<X...> leidos;
        Registro(sizeof...(X), [&] { std::apply([&](X&... x) { (Toma(x), ...); }, leidos); });
        std::tie(lugares...) = std::move(leidos);
    }

    /// `campos` takes the fields of a record, as it would put them for a writer.
    void Registro(auto&& campos) { campos(*this); }

  private:
    void Toma(std::string& x) { x = Texto(); }
    void Toma(std::int16_t& x) { x = Numero16(); }
    void Toma(float& x) { x = NumeroSimple(); }
    void Toma(bool& x) { x = Logico(); }
    std::string contenido;
    std::size_t lugar;  ///< contenido.size() is the empty field behind a comma that ends the file
};

/// What a field is as a number or boolean. Each throws Falla 13 or 6.
std::int16_t CampoNumero16(const Campo& campo);
float CampoSimple(const Campo& campo);
double CampoDoble(const Campo& campo);
bool CampoLogico(const Campo& campo);

template <typename F>
void LectorRegistros::Registro(int campos, F lee)
{
    const std::size_t inicio = lugar;
    try {
        lee();
    } catch (const Falla& falla) {
        if (falla.numero == NumeroFalla::FinDeArchivo) throw;
        lugar = inicio;
        for (int i = 0; i < campos && !Fin(); ++i)
            Siguiente();
        throw;
    }
}

/// How a writer's file comes to be.
enum class Salida {
    Entera,    ///< gathered, and put in place of the old file at the end, all of it or nothing
    PorPiezas  ///< the old file is emptied at once and the new one grows: for results of any length
};

/// Writes records. What is written reaches the disk at `Cierra` at the latest. By pieces, every record after
/// a failed open fails in its turn with the same fault.
class EscritorRegistros {
  public:
    explicit EscritorRegistros(const Disco& unDisco, Salida unaSalida = Salida::Entera)
        : disco(unDisco), salida(unaSalida)
    {
    }

    /// By pieces, throws Falla 76, 75.
    void Abre(const std::string& unaRuta);
    /// Fields of the record in hand. A text is written in double quotes as it stands.
    EscritorRegistros& Texto(std::string_view texto);
    EscritorRegistros& Numero(std::int32_t n);
    EscritorRegistros& Numero(float x);
    EscritorRegistros& Logico(bool b);
    EscritorRegistros& Vacio();  ///< a value never set: nothing, which reads back as "" or 0
    /// The same, each by its type.
    EscritorRegistros& Campos(const auto&... campos)
    {
        (Uno(campos), ...);
        return *this;
    }
    /// Ends the record in hand with CR LF. Throws the fault of a failed `Abre`.
    void FinRegistro();
    /// A record: `campos` puts its fields.
    void Registro(auto&& campos)
    {
        campos(*this);
        FinRegistro();
    }
    /// Sends what is pending to the disk. Throws Falla 76, 75.
    void Cierra();
    /// Instead of `Cierra`: the whole file, for who replaces several together.
    CambioArchivo Toma();

  private:
    void Uno(std::string_view x) { Texto(x); }
    void Uno(std::int16_t x) { Numero(std::int32_t{x}); }
    void Uno(std::int32_t x) { Numero(x); }
    void Uno(float x) { Numero(x); }
    void Uno(bool x) { Logico(x); }
    void Separa();
    const Disco& disco;
    Salida salida;
    std::string ruta;
    std::string pendiente;
    std::string registro;
    NumeroFalla causa = NumeroFalla::AccesoRuta;
    bool abierto = false;
    bool primero = true;
};

}  // namespace model
