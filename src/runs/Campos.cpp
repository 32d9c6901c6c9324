// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Campos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <deque>
#include <limits>
#include <type_traits>
#include <utility>

#include "engine/Muskingum.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Represa.h"

namespace runs {

using model::Red;
using study::Parametro;

namespace {

constexpr double SinCota = 99999;  // of what the editor takes as it is typed
constexpr std::string_view Muskingum = "Muskingum";

template <auto Coleccion, auto Miembro>
constexpr Campo::Lugar En{
    [](const Red& red, int n) -> const float* { return &((red.*Coleccion).Ranura(n).*Miembro); },
    [](Red& red, int n) -> float* { return &((red.*Coleccion).Ranura(n).*Miembro); }};
template <auto Miembro, std::size_t Funcion>
constexpr Campo::Lugar EnFuncion{
    [](const Red& red, int n) -> const float* { return &(red.ColRepresas.Ranura(n).*Miembro)[Funcion]; },
    [](Red& red, int n) -> float* { return &(red.ColRepresas.Ranura(n).*Miembro)[Funcion]; }};

bool Siempre(const Red&, int)
{
    return true;
}
bool Directa(const Red& red, int numero)
{
    return red.ColCauces.Ranura(numero).optDirMusk;
}
bool PorMuskingum(const Red& red, int numero)
{
    return !Directa(red, numero);
}
template <auto Coleccion>
bool EmbalseMuskingum(const Red& red, int numero)
{
    return (red.*Coleccion).Ranura(numero).Metodo == Muskingum;
}
template <auto Coleccion>
bool EmbalseConAltura(const Red& red, int numero)
{
    return !EmbalseMuskingum<Coleccion>(red, numero);
}
template <std::size_t Funcion>
bool FuncionEnUso(const Red& red, int numero)
{
    const model::Represa& r = red.ColRepresas.Ranura(numero);
    return !r.optTabla && r.chkFQ[Funcion] == 1;
}

template <auto Miembro>
constexpr Campo::Lugar DeUEH = En<&Red::ColUEHs, Miembro>;
template <auto Miembro>
constexpr Campo::Lugar DeCauce = En<&Red::ColCauces, Miembro>;
template <auto Miembro>
constexpr Campo::Lugar DeRepresa = En<&Red::ColRepresas, Miembro>;
template <auto Miembro>
constexpr Campo::Lugar DeLago = En<&Red::ColLagos, Miembro>;
using model::Cauce;
using model::Lago;
using model::Represa;
using model::UEH;

// clang-format off
constexpr auto DeLasFichas = std::to_array<Campo>({
    {"area",            'u', "Área",                             "ha",       0, 99999, DeUEH<&UEH::Area>, Siempre},
    {"longitud_max",    'u', "Longitud máxima",                  "m",        0, 50000, DeUEH<&UEH::LongitudMax>, Siempre},
    {"velocidad_media", 'u', "Velocidad media",                  "m/s",      0, 15,    DeUEH<&UEH::VelMedia>, Siempre},
    {"retencion_z",     'u', "Retención superficial Z",          "mm",       0, 40,    DeUEH<&UEH::RetensionZ>, Siempre},
    {"kostiakov_a",     'u', "Kostiakov a",                      "mm/min^b", 0, 30,    DeUEH<&UEH::KostiakovA>, Siempre},
    {"kostiakov_b",     'u', "Kostiakov b",                      "-",        0, 1,     DeUEH<&UEH::KostiakovB>, Siempre},
    {"kostiakov_i",     'u', "Humedad previa",                   "min",      0, 1000,  DeUEH<&UEH::KostiakovI>, Siempre},
    {"q0_recesion",     'u', "Caudal inicial Q0",                "m3/s",     0, 1000,  DeUEH<&UEH::Q0Recesion>, Siempre},
    {"k_recesion",      'u', "Constante de recesión K",          "h",        0, 9999,  DeUEH<&UEH::KRecesion>, Siempre},
    {"longitud",        'c', "Longitud",                         "m",        0, 50000, DeCauce<&Cauce::LongCauce>, Directa},
    {"velocidad",       'c', "Velocidad media",                  "m/s",      0, 15,    DeCauce<&Cauce::VelMediaCauce>, Directa},
    {"musk_k",          'c', "Muskingum K",                      "min",      0, 9999,  DeCauce<&Cauce::Cauce_k_Musk>, PorMuskingum},
    {"musk_x",          'c', "Muskingum x",                      "-",        0, 0.5,   DeCauce<&Cauce::Cauce_n_Musk>, PorMuskingum},
    {"altura_inicial",  'r', "Altura inicial",                   "m",        -SinCota, SinCota, DeRepresa<&Represa::HInicialEmb>, EmbalseConAltura<&Red::ColRepresas>},
    {"musk_k",          'r', "Muskingum K",                      "min",      0, 99999, DeRepresa<&Represa::Represa_k_Musk>, EmbalseMuskingum<&Red::ColRepresas>},
    {"altura_inicial",  'l', "Altura inicial",                   "m",        -SinCota, SinCota, DeLago<&Lago::HInicialEmb>, EmbalseConAltura<&Red::ColLagos>},
    {"musk_k",          'l', "Muskingum K",                      "min",      0, 99999, DeLago<&Lago::Lago_k_Musk>, EmbalseMuskingum<&Red::ColLagos>},
    {"lamina",          't', "Lámina",                           "mm",       0, 999,   {}, nullptr},
    {"duracion",        't', "Duración",                         "min",      1, 14400, {}, nullptr},
});
// clang-format on

/// A number of an outflow function.
struct NumeroDeFuncion {
    std::string_view clave, nombre, unidad;
    std::size_t clase;  ///< as model::FuncionDeRepresa counts them
};
constexpr auto NumerosDeFuncion = std::to_array<NumeroDeFuncion>({{"a", "a", "-", 1},
                                                                  {"b", "b", "-", 2},
                                                                  {"c", "c", "-", 3},
                                                                  {"hmin", "H mín.", "m", 4},
                                                                  {"hmax", "H máx.", "m", 5}});

template <std::size_t Funcion>
void AgregaFuncion(std::vector<Campo>& todos, std::deque<std::string>& textos)
{
    constexpr std::array lugares{EnFuncion<&Represa::FQa, Funcion>, EnFuncion<&Represa::FQb, Funcion>,
                                 EnFuncion<&Represa::FQc, Funcion>, EnFuncion<&Represa::FQmin, Funcion>,
                                 EnFuncion<&Represa::FQMax, Funcion>};
    const std::string n = std::to_string(Funcion + 1);
    for (const NumeroDeFuncion& x : NumerosDeFuncion) {
        if (!model::FuncionesFQ[Funcion].Lleva(x.clase)) continue;
        const std::string& clave = textos.emplace_back("fq" + n + "_" + std::string(x.clave));
        const std::string& nombre = textos.emplace_back("Función " + n + ", " + std::string(x.nombre));
        todos.push_back(
            {clave, 'r', nombre, x.unidad, -SinCota, SinCota, lugares[x.clase - 1], FuncionEnUso<Funcion>});
    }
}

/// The rows of the sheets with those of the outflow functions behind the other fields of a dam.
std::vector<Campo> ArmaCampos()
{
    static std::deque<std::string> textos;
    std::vector<Campo> todos;
    for (const Campo& c : DeLasFichas) {
        if (c.clase == 'l' && todos.back().clase == 'r') [&]<std::size_t... F>(std::index_sequence<F...>)
            {
                (AgregaFuncion<F>(todos, textos), ...);
            }
        (std::make_index_sequence<model::FuncionesFQ.size()>{});
        todos.push_back(c);
    }
    return todos;
}

/// The components that a parameter names, and how many of them a run doesn't read the field of.
int Junta(Movido& m, const Parametro& p, const Red& red)
{
    int sinUso = 0;
    model::CadaComponente(red, [&](const auto& componente) {
        constexpr char clase = model::DeClase<std::remove_cvref_t<decltype(componente)>>::prefijo[0];
        if (clase != m.campo->clase || !Nombra(p.componentes, model::Nombre(componente))) return;
        const int numero = model::Numero(componente);
        if (!m.campo->cuenta(red, numero)) {
            ++sinUso;
            return;
        }
        m.numeros.push_back(numero);
        m.actual.push_back(double{*m.campo->lugar.lee(red, numero)});
    });
    return sinUso;
}

void ResuelveTormenta(Movido& m, const Parametro& p, const model::Tormenta& t)
{
    const bool esLamina = m.campo->clave == "lamina";
    const bool porUEH = t.FormaPp == model::FormaLluvia::PorUEH;
    if (t.FormaPp == model::FormaLluvia::Real && !esLamina)
        m.motivo = "La duración de una tormenta registrada no se mueve.";
    else if (porUEH && esLamina && p.modo != "factor")
        m.motivo = "La lámina de una tormenta dada por UEH se mueve por un factor.";
    else if (!porUEH && esLamina && t.PpTormenta == 0)
        m.motivo = "La tormenta en mano no tiene lámina.";
    m.actual.push_back(esLamina ? double{t.PpTormenta} : t.DurTormenta);
}

std::string ClavesDe(char clase)
{
    std::string claves;
    for (const Campo& c : Campos())
        if (c.clase == clase) claves += (claves.empty() ? "" : ", ") + std::string(c.clave);
    return claves;
}

/// Prefix of what a parameter names; '\0' where it can't be told.
char ClaseDe(const Parametro& p)
{
    if (p.componentes == LaTormenta) return 't';
    const std::string& c = p.componentes;
    return c.size() > 1 && c[1] == '-' && std::string_view("ucrl").find(c[0]) != std::string_view::npos
               ? c[0]
               : '\0';
}

bool Sirve(float K, float x, std::int16_t PasoQ)
{
    bool sirve = false;
    engine::Muskingum musk;
    model::Sentencia([&] { sirve = musk.Prepara(K, x, PasoQ, [](auto cuerpo) { cuerpo(); }); });
    return sirve;
}

/// The nearest K that a run takes; K itself where there is none so near.
float KQueSirve(float K, float x, std::int16_t PasoQ)
{
    constexpr int Lejos = 64;
    float arriba = K, abajo = K;
    for (int i = 0; i <= Lejos; ++i) {
        for (const float k : {arriba, abajo})
            if (Sirve(k, x, PasoQ)) return k;
        arriba = std::nextafter(arriba, std::numeric_limits<float>::max());
        abajo = std::nextafter(abajo, 0.0F);
    }
    return K;
}

/// Scales the depths that a storm has beside its total.
void EscalaLamina(const model::Tormenta& original, model::Tormenta& t, double factor)
{
    if (t.FormaPp == model::FormaLluvia::PorUEH)
        for (int i = 1; i <= t.PpUEH.Tope(); ++i)
            t.PpUEH(i) = static_cast<float>(original.PpUEH(i) * factor);
    if (t.FormaPp != model::FormaLluvia::Real) return;
    for (int j = 1; j <= t.PpReal.Tope(); ++j)
        t.PpReal(j) = static_cast<float>(original.PpReal(j) * factor);
}

}  // namespace

std::span<const Campo> Campos()
{
    static const std::vector<Campo> todos = ArmaCampos();
    return todos;
}

const Campo* CampoDe(std::string_view clave, char clase)
{
    const std::span<const Campo> todos = Campos();
    const auto c = std::ranges::find_if(
        todos, [&](const Campo& campo) { return campo.clave == clave && campo.clase == clase; });
    return c == todos.end() ? nullptr : &*c;
}

bool Nombra(std::string_view patron, std::string_view nombre)
{
    std::size_t p = 0, n = 0, trasEstrella = std::string_view::npos, desde = 0;
    while (n < nombre.size()) {
        if (p < patron.size() && patron[p] == '*') {
            trasEstrella = ++p;
            desde = n;
        } else if (p < patron.size() && (patron[p] == '?' || patron[p] == nombre[n])) {
            ++p, ++n;
        } else if (trasEstrella != std::string_view::npos) {
            p = trasEstrella;
            n = ++desde;
        } else {
            return false;
        }
    }
    return patron.find_first_not_of('*', p) == std::string_view::npos;
}

Movido Resuelve(const Parametro& p, const Red& red, const model::Tormenta& tormenta)
{
    Movido m;
    const char clase = ClaseDe(p);
    if (clase == '\0') {
        m.motivo = "«" + p.componentes + "» no nombra componentes: empiece por u-, c-, r- o l-, o escriba " +
                   std::string(LaTormenta) + ".";
        return m;
    }
    m.campo = CampoDe(p.campo, clase);
    if (m.campo == nullptr) {
        m.motivo =
            "«" + p.componentes + "» no tiene el campo «" + p.campo + "»; tiene " + ClavesDe(clase) + ".";
    } else if (p.modo != "valor" && p.modo != "factor" && p.modo != "suma") {
        m.motivo = "«" + p.modo + "» no es un modo: valor, factor o suma.";
    } else if (clase == 't') {
        ResuelveTormenta(m, p, tormenta);
    } else if (const int sinUso = Junta(m, p, red); m.numeros.empty()) {
        m.motivo = sinUso == 0 ? "Ningún componente se llama «" + p.componentes + "»."
                               : "Ninguna corrida lee «" + p.campo + "» de «" + p.componentes +
                                     "», por el método de propagación o porque la función no está en uso.";
    }
    return m;
}

double Movida(std::string_view modo, double actual, double valor)
{
    return modo == "factor" ? actual * valor : modo == "suma" ? actual + valor : valor;
}

void Pon(const Movido& movido, const Parametro& p, double valor, Red& red)
{
    for (std::size_t i = 0; i < movido.numeros.size(); ++i)
        *movido.campo->lugar.pone(red, movido.numeros[i]) =
            static_cast<float>(Movida(p.modo, movido.actual[i], valor));
}

void Pon(const Movido& movido, const Parametro& p, double valor, const model::Tormenta& original,
         model::Tormenta& t)
{
    const double nueva = Movida(p.modo, movido.actual[0], valor);
    if (movido.campo->clave == "duracion") {
        t.DurTormenta = static_cast<std::int16_t>(std::clamp(std::round(nueva), 1.0, 32767.0));
        return;
    }
    t.PpTormenta = static_cast<float>(nueva);
    EscalaLamina(original, t, p.modo == "factor" ? valor : nueva / movido.actual[0]);
}

void AfinaMuskingum(std::span<const Movido> movidos, std::int16_t PasoQ, Red& red)
{
    for (const Movido& m : movidos) {
        if (!m.motivo.empty() || !m.campo->clave.starts_with("musk_")) continue;
        const Campo *campoK = CampoDe("musk_k", m.campo->clase), *campoX = CampoDe("musk_x", m.campo->clase);
        for (const int numero : m.numeros) {
            float& K = *campoK->lugar.pone(red, numero);
            K = KQueSirve(K, campoX == nullptr ? 0 : *campoX->lugar.lee(red, numero), PasoQ);
        }
    }
}

void Aplica(std::span<const Parametro> parametros, std::span<const double> valores, const model::Pasos& pasos,
            Red& red, model::Tormenta& tormenta)
{
    std::vector<Movido> movidos;
    for (const Parametro& p : parametros)
        movidos.push_back(Resuelve(p, red, tormenta));
    const model::Tormenta original = tormenta;
    for (std::size_t i = 0; i < parametros.size(); ++i) {
        if (!movidos[i].motivo.empty()) continue;
        if (movidos[i].campo->clase == 't')
            Pon(movidos[i], parametros[i], valores[i], original, tormenta);
        else
            Pon(movidos[i], parametros[i], valores[i], red);
    }
    AfinaMuskingum(movidos, pasos.PasoQ, red);
}

std::string NombreDe(const Parametro& p)
{
    return p.componentes + "." + p.campo + " (" + p.modo + ")";
}

std::string ClaveDe(const Parametro& p)
{
    return p.componentes + "." + p.campo + "." + p.modo;
}

std::string_view UnidadDe(const Parametro& p)
{
    const Campo* campo = p.modo == "factor" ? nullptr : CampoDe(p.campo, ClaseDe(p));
    return campo == nullptr ? std::string_view("-") : campo->unidad;
}

}  // namespace runs
