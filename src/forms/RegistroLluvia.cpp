// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/RegistroLluvia.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "forms/Calendario.h"
#include "forms/MomentoDeRegistro.h"
#include "forms/RenglonesDeRegistro.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {
namespace {

constexpr std::int64_t SegundosPorMinuto = 60;

/// Where several part as many readings, the first.
constexpr auto Separadores = std::to_array({';', '\t', ',', ' '});

constexpr std::string_view Renglon = "Renglón ";
constexpr std::string_view LaminaNegativa = ": la lámina es negativa.";
constexpr std::string_view VuelveAtras = ": el tiempo es anterior al del renglón previo.";

constexpr std::string_view SinFechaOLamina = "no tiene fecha, hora y lámina: no se toma";
constexpr std::string_view Repetido = "repite la hora y la lámina del anterior: no se toma";
constexpr std::string_view MismaHora = "repite la hora del anterior con otra lámina: se suman";

bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

bool SonCifras(std::string_view texto)
{
    return !texto.empty() && std::all_of(texto.begin(), texto.end(), EsCifra);
}

// --- readings ---

std::optional<double> Lamina(std::string_view texto)
{
    std::optional<double> x;
    model::Sentencia([&] { x = model::NumeroEntero(model::ComasAPuntos(texto)); });
    const bool esSimple = x && std::fabs(*x) <= double{std::numeric_limits<float>::max()};
    return esSimple ? x : std::nullopt;
}

/// The field where the reading begins: a number of the line may stand ahead.
std::size_t Primero(const std::vector<std::string>& campos)
{
    return campos.size() > 1 && SonCifras(campos[0]) ? 1 : 0;
}

/// Lines to readings. A day has hundreds of them: its date is taken apart once.
class Renglones {
  public:
    explicit Renglones(bool conSoloFecha) : soloFecha(conSoloFecha) {}

    /// A reading; nothing where the line is none.
    std::optional<LecturaLluvia> Lectura(const std::vector<std::string>& campos)
    {
        const std::size_t primero = Primero(campos);
        const std::string_view fecha = campos[primero];
        const std::size_t corte = fecha.find_first_of(" T");
        const bool juntas = corte != std::string_view::npos;
        const std::size_t campoLamina = primero + (juntas ? 1 : 2);
        if (!juntas && soloFecha)
            if (const auto delDia = DelDia(campos, primero)) return delDia;
        if (campos.size() <= campoLamina) return {};
        const std::string_view resto =
            juntas ? fecha.substr(corte + 1) : std::string_view(campos[primero + 1]);
        const auto segundo = Momento(fecha.substr(0, corte),
                                     resto.substr(std::min(resto.find_first_not_of(' '), resto.size())));
        const auto lamina = Lamina(campos[campoLamina]);
        if (!segundo || !lamina) return {};
        return LecturaLluvia{*segundo, *lamina};
    }

  private:
    /// A date alone is told at its end, as a reading is that closes the day.
    std::optional<LecturaLluvia> DelDia(const std::vector<std::string>& campos, std::size_t primero)
    {
        if (campos.size() <= primero + 1) return {};
        const auto lamina = Lamina(campos[primero + 1]);
        const auto dia = DiaDe(campos[primero]);
        if (!lamina || !dia) return {};
        return LecturaLluvia{(*dia + MinutosPorDia) * SegundosPorMinuto, *lamina};
    }
    std::optional<std::int64_t> Momento(std::string_view fecha, std::string_view hora)
    {
        const auto dia = DiaDe(fecha);
        const auto segundos = HoraDeRegistro(hora);
        if (!dia || !segundos) return {};
        return *dia * SegundosPorMinuto + *segundos;
    }
    std::optional<Instante> DiaDe(std::string_view fecha)
    {
        if (fecha != ultima) {
            ultima = fecha;
            diaDeEsa = DiaDeRegistro(fecha);
        }
        return diaDeEsa;
    }

    bool soloFecha;
    std::string ultima{};
    std::optional<Instante> diaDeEsa{};
};

/// Whether a line ahead of all readings has a date or a time where a reading has them.
bool PareceLectura(const std::vector<std::string>& campos)
{
    const auto conMarca = [](std::string_view campo) {
        for (std::size_t i = 1; i + 1 < campo.size(); ++i)
            if (EsCifra(campo[i - 1]) && EsCifra(campo[i + 1]) &&
                std::string_view("/-:").find(campo[i]) != std::string_view::npos)
                return true;
        return false;
    };
    const std::size_t primero = Primero(campos);
    const std::string_view comienzo = campos[primero];
    if (primero + 1 == campos.size())  // a title with a date seldom begins with it
        return !comienzo.empty() && EsCifra(comienzo.front()) && conMarca(comienzo);
    return conMarca(comienzo) || conMarca(campos[primero + 1]);
}

/// What parts most readings of a text; nothing where it has none. A record has one among its first lines, so
/// that a long text that is none costs little.
std::optional<char> SeparadorDe(std::string_view texto, bool soloFecha)
{
    constexpr std::size_t Muestra = 10'000;
    std::vector<std::string> renglones;
    while (!texto.empty() && renglones.size() < Muestra)
        if (const auto renglon = SacaRenglon(texto); !EsVacio(renglon))
            renglones.push_back(ConMeridianoPegado(renglon));
    const auto cuenta = [&](char separador) {
        Renglones lector(soloFecha);
        return std::count_if(renglones.begin(), renglones.end(), [&](const std::string& renglon) {
            return lector.Lectura(CamposDeRenglon(renglon, separador)).has_value();
        });
    };
    std::pair mejor{Separadores.front(), cuenta(Separadores.front())};
    for (const char separador : Separadores)
        if (const auto n = cuenta(separador); n > mejor.second) mejor = {separador, n};
    if (mejor.second == 0) return {};
    return mejor.first;
}

/// Why a reading can't follow those before it; nothing where it can.
std::string_view Reparo(const LecturaLluvia& lectura, const std::vector<LecturaLluvia>& previas)
{
    if (lectura.lamina < 0) return LaminaNegativa;
    if (!previas.empty() && lectura.segundo < previas.back().segundo) return VuelveAtras;
    return {};
}

/// A record without readings, with the reason.
RegistroLluvia SinMas(std::string_view motivo)
{
    RegistroLluvia registro;
    registro.motivo = motivo;
    return registro;
}

}  // namespace

RegistroLluvia LeeRegistroLluvia(std::string_view bytes, const FormaDeLectura& forma)
{
    constexpr std::size_t LargoMostrado = 80;
    constexpr int RenglonesPorAvance = 4096;
    const std::string texto = TextoDeBytes(bytes);
    const auto separador = SeparadorDe(texto, forma.soloFecha);
    if (!separador) return SinMas(forma.soloFecha ? SinLecturasDelDia : SinLecturas);

    RegistroLluvia registro;
    Renglones lector(forma.soloFecha);
    int nro = 0;
    for (std::string_view resto = texto; !resto.empty();) {
        const bool toca = forma.avance && nro % RenglonesPorAvance == 0;
        if (toca && !forma.avance(texto.size() - resto.size(), texto.size())) return SinMas(LecturaCancelada);
        const std::string_view leido = SacaRenglon(resto);
        ++nro;
        if (EsVacio(leido)) continue;
        const std::string renglon = ConMeridianoPegado(leido);
        const auto duda = [&](std::string_view hecho) {
            if (registro.dudosos.size() >= forma.maximoDudosos)
                ++registro.masDudosos;
            else
                registro.dudosos.push_back(
                    {nro, model::PrimerosCaracteres(renglon, LargoMostrado), std::string(hecho)});
        };
        const auto campos = CamposDeRenglon(renglon, *separador);
        const auto lectura = lector.Lectura(campos);
        if (!lectura) {
            if (!registro.lecturas.empty() || PareceLectura(campos)) duda(SinFechaOLamina);
            continue;
        }
        const std::string_view reparo = Reparo(*lectura, registro.lecturas);
        if (!reparo.empty()) return SinMas(std::string(Renglon) + std::to_string(nro) + std::string(reparo));
        const bool mismaHora =
            !registro.lecturas.empty() && lectura->segundo == registro.lecturas.back().segundo;
        const bool repetido = mismaHora && *lectura == registro.lecturas.back();
        if (mismaHora) duda(repetido ? Repetido : MismaHora);
        if (!repetido) registro.lecturas.push_back(*lectura);
    }
    return registro;
}

std::int16_t PasoHabitual(const std::vector<LecturaLluvia>& lecturas)
{
    constexpr std::int16_t PasoDeUnaLectura = 10,
                           MayorPaso = std::numeric_limits<std::int16_t>::max();  // [min]
    std::map<std::int64_t, int> veces;
    for (std::size_t i = 1; i < lecturas.size(); ++i) {
        const std::int64_t minutos =
            (lecturas[i].segundo - lecturas[i - 1].segundo + SegundosPorMinuto / 2) / SegundosPorMinuto;
        ++veces[std::clamp<std::int64_t>(minutos, 1, MayorPaso)];
    }
    const auto habitual = std::max_element(veces.begin(), veces.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
    return habitual == veces.end() ? PasoDeUnaLectura : static_cast<std::int16_t>(habitual->first);
}

}  // namespace forms
