// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/RedEscrita.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

#include "editor/EnMano.h"
#include "editor/frmUEHs.h"
#include "model/Clases.h"
#include "model/Componentes.h"
#include "model/Disco.h"
#include "model/Siro.h"

namespace editor {

namespace {

constexpr std::string_view Nombre = "Diario";  // nobody sees it: the project's is told beside
constexpr std::string_view FinUEHs = "_UEHs.vlm";
constexpr char FinDeRenglon = '\n';

/// A program of its own whose project's files are these bytes; empty ones are no files.
struct Banco {
    model::Siro s{};
    explicit Banco(std::string& uehs, std::string& verCau)
    {
        s.Proyecto.NombreProyecto = Nombre;
        const auto archivo = [&uehs, &verCau](const std::string& ruta) -> std::string& {
            return ruta.ends_with(FinUEHs) ? uehs : verCau;
        };
        s.Disco = {};
        s.Disco.Lee = [archivo](const std::string& ruta) {
            if (archivo(ruta).empty()) throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
            return archivo(ruta);
        };
        s.Disco.Borra = [](const std::string&) {};
    }
};

template <typename T>
void PonNumero(std::string& texto, T numero)
{
    std::array<char, 32> letras{};
    const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), numero);
    texto.append(letras.data(), fin.ptr).push_back(FinDeRenglon);
}

std::string EscribeTrazo(const RedGuardada& red)
{
    std::string texto;
    PonNumero(texto, red.trazo.ClicsCauce);
    texto.append(red.trazo.marcaCauce).push_back(FinDeRenglon);
    const auto dibujado = static_cast<std::size_t>(red.ColCauces.Cuenta());
    if (red.trazo.ClicsCauce == 0 || red.lineas.size() <= dibujado) return texto;
    for (const Punto p : red.lineas[dibujado]) {
        PonNumero(texto, p.X);
        PonNumero(texto, p.Y);
    }
    return texto;
}

/// Lines of a text, one after another.
class Renglones {
  public:
    explicit Renglones(std::string_view unTexto) : texto(unTexto) {}
    [[nodiscard]] bool Quedan() const { return !texto.empty(); }
    std::string_view Toma()
    {
        const std::size_t fin = texto.find(FinDeRenglon);
        const std::string_view renglon = texto.substr(0, fin);
        texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
        return renglon;
    }
    template <typename T>
    bool Numero(T& numero)
    {
        const std::string_view renglon = Toma();
        const char* const fin = renglon.data() + renglon.size();
        const auto leido = std::from_chars(renglon.data(), fin, numero);
        return leido.ec == std::errc{} && leido.ptr == fin;
    }

  private:
    std::string_view texto;
};

/// Puts the reach being drawn behind those that are whole. Returns false where its bytes are damaged.
bool LeeTrazo(std::string_view bytes, model::Red& red, Trazo& trazo)
{
    Renglones renglones(bytes);
    if (!renglones.Numero(trazo.ClicsCauce)) return false;
    trazo.marcaCauce = renglones.Toma();
    if (trazo.ClicsCauce == 0) return !renglones.Quedan();
    const int n = red.ColCauces.Cuenta() + 1;
    if (trazo.ClicsCauce < 0 || trazo.ClicsCauce > ClicsDeUnTrazo || n > model::MaxCauces) return false;
    std::vector<Punto> linea;
    while (renglones.Quedan()) {
        Punto& p = linea.emplace_back();
        if (!renglones.Numero(p.X) || !renglones.Numero(p.Y)) return false;
    }
    if (linea.size() > static_cast<std::size_t>(ClicsDeUnTrazo)) return false;
    red.ColCauces.Anuncia(static_cast<std::int16_t>(n));
    PonLinea(red, n, linea);
    return true;
}

/// A component without what a save works out.
template <typename T>
T SinCuentas(T c)
{
    model::Numero(c) = 0;
    if constexpr (std::is_same_v<T, model::Cauce>) c.numVertices = c.IndiceParInicial = c.OrdenCauce = 0;
    return c;
}

/// Whether the n-th of one network is as the m-th of another.
template <typename T>
bool Iguales(const RedGuardada& una, int n, const RedGuardada& otra, int m)
{
    if (SinCuentas(model::Todos<T>(una).Item(n)) != SinCuentas(model::Todos<T>(otra).Item(m))) return false;
    if constexpr (!std::is_same_v<T, model::Cauce>) return true;
    const auto linea = [](const RedGuardada& red, int cauce) {
        const auto i = static_cast<std::size_t>(cauce) - 1;
        return i < red.lineas.size() ? red.lineas[i] : std::vector<Punto>{};
    };
    return linea(una, n) == linea(otra, m);
}

/// Number of the component that bears a name, the n-th of those that do: reaches may have none. 0 where there
/// is none.
template <typename T>
int NumeroDelEnesimo(const RedGuardada& red, const std::string& nombre, int n)
{
    int numero = 0;
    for (const T& c : model::Todos<T>(red)) {
        ++numero;
        if (model::Nombre(c) == nombre && --n == 0) return numero;
    }
    return 0;
}

template <typename T>
void ComparaClase(const RedGuardada& antes, const RedGuardada& ahora, Diferencia& d)
{
    // Hands each component of one network to `hace`, with its number in both.
    const auto recorre = [](const RedGuardada& una, const RedGuardada& otra, auto&& hace) {
        int n = 0;
        std::map<std::string, int> veces;
        for (const T& c : model::Todos<T>(una)) {
            const std::string& nombre = model::Nombre(c);
            hace(nombre, ++n, NumeroDelEnesimo<T>(otra, nombre, ++veces[nombre]));
        }
    };
    recorre(ahora, antes, [&](const std::string& nombre, int n, int m) {
        if (m == 0)
            d.nuevos.push_back(nombre);
        else if (!Iguales<T>(ahora, n, antes, m))
            d.cambiados.push_back(nombre);
    });
    recorre(antes, ahora, [&](const std::string& nombre, int, int m) {
        if (m == 0) d.quitados.push_back(nombre);
    });
}

}  // namespace

std::optional<RedEscrita> Escribe(const RedGuardada& red)
{
    RedEscrita escrita{.trazo = EscribeTrazo(red)};
    Banco banco(escrita.uehs, escrita.verCau);
    Historia h{.presente = red};
    Trazo trazo;
    bool bien = false;
    std::vector<model::CambioArchivo> archivos;
    banco.s.Disco.Reemplaza = [](const std::vector<model::CambioArchivo>&) {};
    model::Sentencia([&] {
        Repone(h, banco.s.Red, trazo);
        banco.s.Red.ColCauces.Recuenta();  // the reach being drawn goes its own way
        bien = model::EscribeRed(banco.s, archivos);
    });
    if (!bien) return {};
    for (model::CambioArchivo& archivo : archivos)
        (archivo.ruta.ends_with(FinUEHs) ? escrita.uehs : escrita.verCau) = std::move(archivo.bytes);
    return escrita;
}

std::optional<RedGuardada> Lee(const RedEscrita& escrita)
{
    RedEscrita copia = escrita;
    Banco banco(copia.uehs, copia.verCau);
    Historia h;
    Trazo trazo;
    bool bien = false;
    model::Sentencia([&] {
        model::LeeUEHs(banco.s);
        bien = !banco.s.Control.CargaFallida && LeeTrazo(escrita.trazo, banco.s.Red, trazo);
        if (bien) EmpiezaHistoria(h, {}, banco.s.Red, trazo);
    });
    if (!bien) return {};
    return std::move(h.presente);
}

Diferencia Compara(const RedGuardada& antes, const RedGuardada& ahora)
{
    Diferencia d;
    ComparaClase<model::Cauce>(antes, ahora, d);
    ComparaClase<model::UEH>(antes, ahora, d);
    ComparaClase<model::Represa>(antes, ahora, d);
    ComparaClase<model::Lago>(antes, ahora, d);
    const auto trazada = [](const RedGuardada& red) {
        const bool hay = red.trazo.ClicsCauce > 0 && !red.lineas.empty();
        return hay ? red.lineas.back() : std::vector<Punto>{};
    };
    d.trazo = trazada(antes) != trazada(ahora);
    return d;
}

void Recupera(frmUEHs& f, model::Siro& s, const RedGuardada& red)
{
    Orden(f, s, [&] {
        LimpiaSeleccion(s);
        Repone(Historia{.presente = red}, s.Red, f.trazo);
        if (f.trazo.ClicsCauce > 0) PonModo(f, Boton::Cauce);
        f.vista.recentra = f.vista.reescala = true;
        Redibuja(f, s);
    });
}

}  // namespace editor
