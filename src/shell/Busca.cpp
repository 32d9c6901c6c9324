// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Busca.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace shell {
namespace {

constexpr std::size_t MaximoElegidas = 20;

// What a letter is worth by where it stands.
constexpr int AlComienzo = 12;  ///< of the text
constexpr int EnPalabra = 10;   ///< the start of another word
constexpr int Seguida = 7;      ///< behind the letter before
constexpr int Suelta = 1;       ///< elsewhere in the same word
constexpr int PorClase = 3;     ///< of a word that only the kind has
constexpr int PorDetalle = 1;   ///< of one that only the detail has
constexpr int No = std::numeric_limits<int>::min() / 2;

/// U+00C0 to U+00FF without their marks; a blank: the character stays as it is.
constexpr std::string_view Latinas =
    "aaaaaaaceeeeiiii"
    "dnooooo ouuuuy s"
    "aaaaaaaceeeeiiii"
    "dnooooo ouuuuy y";

enum class Tipo : std::uint8_t { Otro, Chica, Grande, Digito };

/// A character as it is compared, and its kind; 0: a mark on the one before.
struct Letra {
    char plegada = 0;
    Tipo tipo = Tipo::Otro;
};

constexpr unsigned char Continua = 0x80, HastaContinua = 0xC0;  // bytes behind the first of a character

/// What is of another alphabet is compared byte by byte.
Letra DeUnByte(unsigned char c)
{
    if (c >= 'A' && c <= 'Z') return {static_cast<char>(c - 'A' + 'a'), Tipo::Grande};
    if ((c >= 'a' && c <= 'z') || c >= Continua) return {static_cast<char>(c), Tipo::Chica};
    return {static_cast<char>(c), c >= '0' && c <= '9' ? Tipo::Digito : Tipo::Otro};
}

/// Of a character of two bytes, where it is one that is compared without its mark.
std::optional<Letra> DeDosBytes(unsigned char primero, unsigned char segundo)
{
    constexpr unsigned char Signos = 0xC2, Acentuadas = 0xC3;
    constexpr unsigned char Marcas = 0xCC, MasMarcas = 0xCD, HastaMarcas = 0xB0;  // U+0300 to U+036F
    constexpr unsigned char Femenino = 0xAA, Masculino = 0xBA;                    // as in "n.º"
    constexpr unsigned char Chicas = 0xA0;
    if (segundo < Continua || segundo >= HastaContinua) return {};
    if (primero == Marcas || (primero == MasMarcas && segundo < HastaMarcas)) return Letra{};
    if (primero == Signos && segundo == Femenino) return Letra{'a', Tipo::Chica};
    if (primero == Signos && segundo == Masculino) return Letra{'o', Tipo::Chica};
    if (primero != Acentuadas || Latinas[segundo - Continua] == ' ') return {};
    return Letra{Latinas[segundo - Continua], segundo < Chicas ? Tipo::Grande : Tipo::Chica};
}

bool EmpiezaPalabra(Tipo antes, Tipo tipo)
{
    if (tipo == Tipo::Otro) return false;
    const bool eraLetra = antes == Tipo::Chica || antes == Tipo::Grande;
    return antes == Tipo::Otro || (antes == Tipo::Chica && tipo == Tipo::Grande) ||
           eraLetra != (tipo != Tipo::Digito);
}

std::vector<std::string> Palabras(std::string_view texto)
{
    std::vector<std::string> palabras(1);
    for (const char c : Pliega(texto).letras)
        if (c != ' ')
            palabras.back() += c;
        else if (!palabras.back().empty())
            palabras.emplace_back();
    if (palabras.back().empty()) palabras.pop_back();
    return palabras;
}

/// Whether all letters are there in this order, wherever; what isn't needs no more looking at.
bool Contiene(std::string_view letras, std::string_view palabra)
{
    std::size_t hecho = 0;
    for (const char c : letras)
        if (hecho < palabra.size() && c == palabra[hecho]) ++hecho;
    return hecho == palabra.size();
}

}  // namespace

Plegado Pliega(std::string_view texto)
{
    Plegado p;
    p.letras.reserve(texto.size());
    p.empieza.reserve(texto.size());
    Tipo antes = Tipo::Otro;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto c = static_cast<unsigned char>(texto[i]);
        std::optional<Letra> doble;
        if (i + 1 < texto.size()) doble = DeDosBytes(c, static_cast<unsigned char>(texto[i + 1]));
        if (doble) ++i;
        const Letra letra = doble.value_or(DeUnByte(c));
        if (letra.plegada == 0) continue;
        p.letras += letra.plegada;
        p.empieza.push_back(EmpiezaPalabra(antes, letra.tipo) ? 1 : 0);
        antes = letra.tipo;
    }
    return p;
}

int Encaja(std::string_view palabra, const Plegado& texto)
{
    const std::size_t n = texto.letras.size();
    if (palabra.empty()) return 0;
    if (!Contiene(texto.letras, palabra)) return -1;
    // The best ending of the word so far at each letter of the text.
    std::vector<int> mejor(n, No), sigue(n, No);
    for (std::size_t k = 0; k < palabra.size(); ++k) {
        int antes = k == 0 ? 0 : No;  // the best before here, in the whole text and in this word of it
        int enEsta = k == 0 ? 0 : No;
        for (std::size_t j = 0; j < n; ++j) {
            const bool comienza = texto.empieza[j] != 0;
            if (comienza && k > 0) enEsta = No;
            int puntos = No;
            if (texto.letras[j] == palabra[k]) {
                if (comienza) puntos = antes + (j == 0 ? AlComienzo : EnPalabra);
                puntos = std::max(puntos, enEsta + Suelta);
                if (k > 0 && j > 0) puntos = std::max(puntos, mejor[j - 1] + Seguida);
            }
            sigue[j] = puntos;
            antes = std::max(antes, k > 0 ? mejor[j] : 0);
            enEsta = std::max(enEsta, k > 0 ? mejor[j] : 0);
        }
        mejor.swap(sigue);
    }
    const int hallado = *std::max_element(mejor.begin(), mejor.end());
    return hallado < 0 ? -1 : hallado;
}

Buscador::Buscador(std::vector<Candidato> unos, const std::vector<std::string>& recientes)
    : todos(std::move(unos))
{
    fichas.reserve(todos.size());
    for (const Candidato& c : todos) {
        const auto lugar = std::find(recientes.begin(), recientes.end(), c.clave);
        fichas.push_back({Pliega(c.texto), Pliega(c.clase), Pliega(c.detalle).letras,
                          static_cast<std::size_t>(lugar - recientes.begin())});
    }
}

int Buscador::Puntaje(const Ficha& ficha, std::string_view palabra)
{
    const int enTexto = Encaja(palabra, ficha.texto);
    if (enTexto >= 0) return enTexto;
    for (std::size_t i = ficha.clase.letras.find(palabra); i != std::string::npos;
         i = ficha.clase.letras.find(palabra, i + 1))
        if (ficha.clase.empieza[i] != 0) return PorClase;
    return ficha.detalle.find(palabra) == std::string::npos ? -1 : PorDetalle;
}

std::vector<std::size_t> Buscador::Halla(std::string_view texto) const
{
    const std::vector<std::string> palabras = Palabras(texto);
    std::vector<int> puntajes(fichas.size(), 0);
    std::vector<std::size_t> halladas;
    for (std::size_t i = 0; i < fichas.size(); ++i) {
        const bool todas = std::ranges::all_of(palabras, [&](const std::string& palabra) {
            const int puntos = Puntaje(fichas[i], palabra);
            puntajes[i] += puntos;
            return puntos >= 0;
        });
        if (todas) halladas.push_back(i);
    }
    std::ranges::sort(halladas, [&](std::size_t a, std::size_t b) {
        if (puntajes[a] != puntajes[b]) return puntajes[a] > puntajes[b];
        if (fichas[a].reciente != fichas[b].reciente) return fichas[a].reciente < fichas[b].reciente;
        if (palabras.empty()) return a < b;
        const auto lugar = [this](std::size_t i) {
            const std::string& letras = fichas[i].texto.letras;
            return std::tuple(todos[i].turno, letras.size(), std::string_view(letras), i);
        };
        return lugar(a) < lugar(b);
    });
    return halladas;
}

void AnotaElegida(std::vector<std::string>& recientes, const std::string& clave)
{
    std::erase(recientes, clave);
    recientes.insert(recientes.begin(), clave);
    if (recientes.size() > MaximoElegidas) recientes.resize(MaximoElegidas);
}

}  // namespace shell
