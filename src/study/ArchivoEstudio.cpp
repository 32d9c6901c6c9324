// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/ArchivoEstudio.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <type_traits>
#include <utility>
#include <vector>

#include "study/CamposDeEstudio.h"
#include "study/Series.h"

namespace study {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* ClaveVersion = "version";
constexpr std::size_t MaximoDeClaves = 1000;  ///< of an object: they are looked for one after another

/// What is wrong, and with which part of the text.
struct Reparo {
    const Json* lugar;
    std::string que;
};

// --- reading ---

std::string Cifras(double x)
{
    return Json(x == std::floor(x) && std::fabs(x) < TopeEntero ? Json(static_cast<std::int64_t>(x))
                                                                : Json(x))
        .dump();
}

/// Takes the fields of an object.
class Lector {
  public:
    explicit Lector(const Json& unObjeto) : objeto(unObjeto)
    {
        if (!objeto.is_object()) throw Reparo{&objeto, "hace falta un objeto, entre llaves"};
    }

    template <typename T, typename... Topes>
    void operator()(const char* clave, T& campo, Topes... topes)
    {
        const auto hallada = objeto.find(clave);
        conocidas.insert(clave);
        if (hallada == objeto.end() || hallada->is_null()) return;
        Toma(clave, *hallada, campo, topes...);
    }
    template <typename T, typename... Topes>
    void Exige(const char* clave, T& campo, Topes... topes)
    {
        const auto hallada = objeto.find(clave);
        if (hallada == objeto.end() || hallada->is_null())
            throw Reparo{&objeto, "falta la clave \"" + std::string(clave) + "\""};
        (*this)(clave, campo, topes...);
    }
    /// What hasn't been asked for.
    void Resto(std::string& texto) const
    {
        Json otras = Json::object();
        for (const auto& [clave, valor] : objeto.items())
            if (!conocidas.contains(clave)) otras[clave] = valor;
        if (!otras.empty()) texto = otras.dump();
    }
    void Conoce(const char* clave) { conocidas.insert(clave); }

  private:
    [[noreturn]] static void Falla(const char* clave, const Json& j, const std::string& que)
    {
        throw Reparo{&j, "\"" + std::string(clave) + "\" " + que};
    }
    static void Toma(const char* clave, const Json& j, double& campo, double minimo, double maximo)
    {
        if (!j.is_number()) Falla(clave, j, "no es un número");
        const double x = j.get<double>();
        if (x < minimo || x > maximo) Falla(clave, j, FueraDe(minimo, maximo));
        campo = x;
    }
    static void Toma(const char* clave, const Json& j, int& campo, double minimo, double maximo)
    {
        double x = 0;
        if (!j.is_number_integer()) Falla(clave, j, "no es un número entero");
        Toma(clave, j, x, minimo, maximo);
        campo = static_cast<int>(x);
    }
    template <typename T>
    static void Toma(const char* clave, const Json& j, std::optional<T>& campo, double minimo, double maximo)
    {
        T x{};
        Toma(clave, j, x, minimo, maximo);
        campo = x;
    }
    static void Toma(const char* clave, const Json& j, std::uint64_t& campo)
    {
        if (!j.is_number_unsigned()) Falla(clave, j, "no es un número entero, 0 o mayor");
        campo = j.get<std::uint64_t>();
    }
    static void Toma(const char* clave, const Json& j, bool& campo)
    {
        if (!j.is_boolean()) Falla(clave, j, "no es true ni false");
        campo = j.get<bool>();
    }
    static void Toma(const char* clave, const Json& j, std::string& campo)
    {
        if (!j.is_string()) Falla(clave, j, "no es un texto entre comillas");
        campo = j.get<std::string>();
    }
    static void Elemento(const char* clave, const Json& j, double& x)
    {
        Toma(clave, j, x, -SinTope, SinTope);
    }
    static void Elemento(const char* clave, const Json& j, std::string& x) { Toma(clave, j, x); }
    template <typename T>
    static void Elemento(const char* /*clave*/, const Json& j, T& x)
    {
        Lector lector(j);
        Campos(lector, x);
    }
    template <typename T>
    static void Toma(const char* clave, const Json& j, std::vector<T>& campo)
    {
        if (!j.is_array()) Falla(clave, j, "no es una lista, entre corchetes");
        campo.clear();
        for (const Json& elemento : j)
            Elemento(clave, elemento, campo.emplace_back());
    }
    template <typename T>
    requires std::is_class_v<T>
    static void Toma(const char* /*clave*/, const Json& j, T& campo)
    {
        Lector lector(j);
        Campos(lector, campo);
    }
    static std::string FueraDe(double minimo, double maximo)
    {
        if (maximo < SinTope) return "no está entre " + Cifras(minimo) + " y " + Cifras(maximo);
        if (minimo == MayorQueCero) return "no es mayor que 0";
        return minimo == 0 ? "es negativo" : "pasa de lo que cabe en un número";
    }

    const Json& objeto;
    std::set<std::string, std::less<>> conocidas{};
};

/// Lines that a parser has passed: the present one, and that of the last character that is no blank, since
/// a number ends a character behind itself.
struct Cuenta {
    int linea = 1, ultima = 1;
};

class Letra {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Letra(const char* unLugar, Cuenta& unaCuenta) : lugar(unLugar), cuenta(&unaCuenta) {}
    reference operator*() const { return *lugar; }
    Letra& operator++()
    {
        if (*lugar == '\n')
            ++cuenta->linea;
        else if (*lugar != ' ' && *lugar != '\t' && *lugar != '\r')
            cuenta->ultima = cuenta->linea;
        ++lugar;
        return *this;
    }
    Letra operator++(int)
    {
        const Letra antes = *this;
        ++*this;
        return antes;
    }
    bool operator==(const Letra& otra) const { return lugar == otra.lugar; }

  private:
    const char* lugar;
    Cuenta* cuenta;
};

/// A text as a tree, and the line of each of its values in the order of the text: what the parser tells,
/// piece by piece. A routine that returns false ends the parse.
class Arbol : public nlohmann::json_sax<Json> {
  public:
    Json raiz{};
    std::string motivo{};  ///< why the text is none; empty: it is one

    void Lee(std::string_view bytes)
    {
        const char* const desde = bytes.data();
        Json::sax_parse(Letra(desde, cuenta), Letra(desde + bytes.size(), cuenta), this);
    }
    [[nodiscard]] int Renglon() const { return cuenta.ultima; }
    [[nodiscard]] int RenglonDe(const Json& parte) const
    {
        std::size_t orden = 0;
        return Halla(raiz, parte, orden) && orden < renglones.size() ? renglones[orden] : 1;
    }

    bool null() override { return Pon(nullptr); }
    bool boolean(bool x) override { return Pon(x); }
    bool number_integer(std::int64_t x) override { return Pon(x); }
    bool number_unsigned(std::uint64_t x) override { return Pon(x); }
    bool number_float(double x, const std::string& /*texto*/) override { return Pon(x); }
    bool string(std::string& x) override { return Pon(std::move(x)); }
    bool binary(Json::binary_t& /*x*/) override { return false; }
    bool start_object(std::size_t /*cuantos*/) override { return Abre(Json::object()); }
    bool start_array(std::size_t /*cuantos*/) override { return Abre(Json::array()); }
    bool end_object() override { return Cierra(); }
    bool end_array() override { return Cierra(); }
    bool key(std::string& x) override
    {
        clave = std::move(x);
        if (abiertos.back()->contains(clave))
            return Falla("la clave " + Json(clave).dump() + " está dos veces");
        return abiertos.back()->size() < MaximoDeClaves || Falla("hay demasiadas claves entre dos llaves");
    }
    bool parse_error(std::size_t /*lugar*/, const std::string& /*texto*/,
                     const Json::exception& error) override
    {
        const auto dice = [que = std::string_view(error.what())](std::string_view parte) {
            return que.find(parte) != std::string_view::npos;
        };
        if (dice("number overflow")) return Falla("hay un número que pasa de lo que cabe");
        if (dice("UTF-8")) return Falla("hay un carácter que no es UTF-8");
        const bool cortado = dice("end of input") || dice("missing closing quote");
        return Falla(cortado ? "el archivo está cortado" : "no es JSON bien formado");
    }

  private:
    bool Falla(std::string que)
    {
        motivo = std::move(que);
        return false;
    }
    bool Pon(Json&& j)
    {
        renglones.push_back(cuenta.ultima);
        if (abiertos.empty())
            ultimo = &(raiz = std::move(j));
        else if (abiertos.back()->is_array())
            ultimo = &abiertos.back()->emplace_back(std::move(j));
        else
            ultimo = &((*abiertos.back())[clave] = std::move(j));
        return true;
    }
    bool Abre(Json&& j)
    {
        if (abiertos.size() >= MaximaProfundidad)
            return Falla("hay demasiadas llaves o corchetes, unos dentro de otros");
        Pon(std::move(j));
        abiertos.push_back(ultimo);
        return true;
    }
    bool Cierra()
    {
        abiertos.pop_back();
        return true;
    }
    /// Counts the values ahead of one.
    static bool Halla(const Json& en, const Json& parte, std::size_t& orden)
    {
        if (&en == &parte) return true;
        ++orden;
        return en.is_structured() &&
               std::any_of(en.begin(), en.end(), [&](const Json& hija) { return Halla(hija, parte, orden); });
    }

    Cuenta cuenta{};
    std::vector<int> renglones{};
    std::vector<Json*> abiertos{};
    Json* ultimo = nullptr;
    std::string clave{};
};

void ExigeVersion(const Json& raiz, unsigned ultima)
{
    const auto version = raiz.find(ClaveVersion);
    if (version == raiz.end()) throw Reparo{&raiz, "falta la clave \"version\""};
    if (!version->is_number_unsigned() || *version == 0)
        throw Reparo{&*version, "\"version\" no es un número entero mayor que 0"};
    if (*version > ultima)
        throw Reparo{&*version,
                     "es de una versión posterior del programa (\"version\": " + version->dump() + ")"};
}

/// What `toma` takes out of the tree of a text.
template <typename Lectura>
Lectura Lee(std::string_view bytes, void (*toma)(const Json& raiz, Lectura& lectura))
{
    const auto falla = [](int renglon, std::string motivo) {
        Lectura lectura;
        lectura.renglon = renglon;
        lectura.motivo = std::move(motivo);
        return lectura;
    };
    if (bytes.size() > MaximoDeBytes) return falla(1, "el archivo pasa de 16 MiB");
    if (bytes.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return falla(1, "el archivo está vacío");
    Arbol arbol;
    arbol.Lee(bytes);
    if (!arbol.motivo.empty()) return falla(arbol.Renglon(), arbol.motivo);
    try {
        Lectura lectura;
        toma(arbol.raiz, lectura);
        return lectura;
    } catch (const Reparo& reparo) {
        return falla(arbol.RenglonDe(*reparo.lugar), reparo.que);
    }
}

// --- writing ---

/// Puts the fields into an object.
class Escritor {
  public:
    Json objeto = Json::object();

    template <typename T, typename... Topes>
    void operator()(const char* clave, const T& campo, Topes... /*topes*/)
    {
        if (Json j = De(campo); !j.is_null()) objeto[clave] = std::move(j);
    }
    template <typename T, typename... Topes>
    void Exige(const char* clave, const T& campo, Topes... topes)
    {
        (*this)(clave, campo, topes...);
    }
    void Resto(const std::string& texto)
    {
        const Json otras = Json::parse(texto, nullptr, false);
        if (!otras.is_object()) return;
        for (const auto& [clave, valor] : otras.items())
            if (!objeto.contains(clave)) objeto[clave] = valor;
    }

  private:
    template <typename T>
    static Json De(const T& campo)
    {
        if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
            return campo;
        } else {
            Escritor escritor;
            T copia = campo;
            Campos(escritor, copia);
            return std::move(escritor.objeto);
        }
    }
    template <typename T>
    static Json De(const std::optional<T>& campo)
    {
        return campo ? Json(*campo) : Json();
    }
    template <typename T>
    static Json De(const std::vector<T>& campo)
    {
        Json lista = Json::array();
        for (const T& elemento : campo)
            lista.push_back(De(elemento));
        return lista;
    }
};

std::string Llano(const Json& j)
{
    return j.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// A list's elements of a few numbers, a maximum for one, take a line each.
void Vuelca(std::string& texto, const Json& j, std::size_t sangria)
{
    const auto simple = [](const Json& hija) { return !hija.is_structured(); };
    const bool enLista = !j.is_structured() || j.empty();
    if (enLista) return texto.append(Llano(j)), void();
    const std::string margen(sangria + 2, ' ');
    texto += j.is_array() ? '[' : '{';
    const char* separador = "\n";
    for (const auto& [clave, hija] : j.items()) {
        texto.append(std::exchange(separador, ",\n")).append(margen);
        if (j.is_object()) texto.append(Llano(Json(clave))).append(": ");
        if (j.is_array() && std::all_of(hija.begin(), hija.end(), simple))
            texto += Llano(hija);
        else
            Vuelca(texto, hija, sangria + 2);
    }
    texto.append("\n").append(std::string(sangria, ' ')) += j.is_array() ? ']' : '}';
}

/// The text of a value; version 0: it bears none.
template <typename T>
std::string Texto(const T& valor, int version)
{
    Escritor escritor;
    if (version > 0) escritor.objeto[ClaveVersion] = version;
    T copia = valor;
    Campos(escritor, copia);
    std::string texto;
    Vuelca(texto, escritor.objeto, 0);
    return texto += '\n';
}

}  // namespace

LecturaDeEstudio LeeEstudio(std::string_view bytes)
{
    return Lee<LecturaDeEstudio>(bytes, [](const Json& raiz, LecturaDeEstudio& lectura) {
        Lector lector(raiz);
        ExigeVersion(raiz, VersionDeEstudio);
        lector.Conoce(ClaveVersion);
        Campos(lector, lectura.estudio);
    });
}

LecturaDeFicha LeeFicha(std::string_view bytes)
{
    return Lee<LecturaDeFicha>(bytes, [](const Json& raiz, LecturaDeFicha& lectura) {
        Lector lector(raiz);
        ExigeVersion(raiz, VersionDeFicha);
        lector.Conoce(ClaveVersion);
        Campos(lector, lectura.ficha);
    });
}

LecturaDeLluvia LeeLluvia(std::string_view bytes)
{
    return Lee<LecturaDeLluvia>(bytes, [](const Json& raiz, LecturaDeLluvia& lectura) {
        Lector lector(raiz);
        Campos(lector, lectura.lluvia);
    });
}

LecturaDeAjuste LeeAjuste(std::string_view bytes)
{
    return Lee<LecturaDeAjuste>(bytes, [](const Json& raiz, LecturaDeAjuste& lectura) {
        Lector lector(raiz);
        Campos(lector, lectura.ajuste);
    });
}

std::string EscribeEstudio(const Estudio& estudio)
{
    return Texto(estudio, VersionDeEstudio);
}

std::string EscribeAjuste(const Ajuste& ajuste)
{
    return Texto(ajuste, 0);
}

std::string EscribeFicha(const Ficha& ficha)
{
    return Texto(ficha, VersionDeFicha);
}

std::string EscribeLluvia(const LluviaDeCorrida& lluvia)
{
    return Texto(lluvia, 0);
}

std::string ReparoDe(const Estudio& estudio)
{
    if (std::string reparo = ReparoDe(estudio.ajuste); !reparo.empty()) return reparo;
    const LecturaDeEstudio lectura = LeeEstudio(EscribeEstudio(estudio));
    if (!lectura.motivo.empty()) return lectura.motivo;
    Estudio sinPuntos = estudio;
    for (Evento& evento : sinPuntos.ajuste.eventos)
        for (Observacion& observacion : evento.observaciones)
            observacion.puntos.clear();
    return lectura.estudio == sinPuntos ? std::string{}
                                        : "hay un texto que no es UTF-8 o un número que no lo es";
}

}  // namespace study
