// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/ImportaTormenta.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace rainfall {
namespace {

constexpr std::int64_t SegundosPorMinuto = 60;
constexpr std::int16_t PasoDeUnaLectura = 10;  // [min]
constexpr int MaxIntervalos = 999;
constexpr int MaxDuracion = std::numeric_limits<std::int16_t>::max();  // [min]

constexpr std::string_view SinLecturas = "El archivo no tiene ningún renglón con fecha, hora y lámina.";
constexpr std::string_view Renglon = "Renglón ";
constexpr std::string_view SinFechaOLamina = ": no tiene fecha, hora y lámina.";
constexpr std::string_view LaminaNegativa = ": la lámina es negativa.";
constexpr std::string_view VuelveAtras = ": el tiempo es anterior al del renglón previo.";
constexpr std::string_view PasoNoVale = "El paso debe ser un número entero de minutos mayor que 0.";
constexpr std::string_view DuraDemasiado = "La tormenta dura más de 32767 minutos.";
constexpr std::string_view SonDemasiados1 = "Con este paso resultan ";
constexpr std::string_view SonDemasiados2 = " intervalos; son 999 a lo sumo. Elija un paso mayor.";

// --- fields of a line ---

std::string_view SinBordes(std::string_view texto)
{
    constexpr std::string_view Bordes = " \t\r\"";
    const std::size_t desde = texto.find_first_not_of(Bordes);
    if (desde == std::string_view::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(Bordes) - desde + 1);
}

/// Pieces of a text, without blanks and quotes at their ends.
std::vector<std::string_view> Partes(std::string_view texto, char marca)
{
    std::vector<std::string_view> partes;
    for (;;) {
        const std::size_t lugar = texto.find(marca);
        partes.push_back(SinBordes(texto.substr(0, lugar)));
        if (lugar == std::string_view::npos) return partes;
        texto.remove_prefix(lugar + 1);
    }
}

char Separador(std::string_view csv)
{
    for (const char marca : {';', '\t'})
        if (csv.find(marca) != std::string_view::npos) return marca;
    return ',';
}

/// d/m/yyyy, or yyyy-m-d, with either mark.
std::optional<Instante> Dia(std::string_view texto)
{
    constexpr std::size_t CifrasAnno = 4;
    std::string fecha(texto);
    std::replace(fecha.begin(), fecha.end(), '-', '/');
    const auto partes = Partes(fecha, '/');
    if (partes.size() != 3) return {};
    const auto en = [&](std::size_t i) { return std::string(partes[i]); };
    if (partes[0].size() == CifrasAnno) return FechaDeTexto(en(2) + '/' + en(1) + '/' + en(0));
    return partes[2].size() == CifrasAnno ? FechaDeTexto(fecha) : std::nullopt;
}

/// Seconds since midnight of h:mm or h:mm:ss; 24:00 is the end of the day.
std::optional<std::int64_t> Hora(std::string_view texto)
{
    constexpr std::string_view FinDelDia = "24:00";
    constexpr std::size_t LargoSegundos = 3;  // ":ss"
    std::int64_t segundos = 0;
    const std::size_t marca = texto.find(':');
    const std::size_t otra = marca == std::string_view::npos ? marca : texto.find(':', marca + 1);
    if (otra != std::string_view::npos) {
        // Seconds have the limits of minutes.
        if (texto.size() - otra != LargoSegundos) return {};
        const auto valor = HoraDeTexto(std::string("0").append(texto.substr(otra)));
        if (!valor) return {};
        segundos = *valor;
        texto = texto.substr(0, otra);
    }
    if (texto == FinDelDia && segundos == 0) return MinutosPorDia * SegundosPorMinuto;
    const auto minutos = HoraDeTexto(texto);
    if (!minutos) return {};
    return *minutos * SegundosPorMinuto + segundos;
}

std::optional<std::int64_t> Momento(std::string_view fecha, std::string_view hora)
{
    const auto dia = Dia(fecha);
    const auto segundos = Hora(hora);
    if (!dia || !segundos) return {};
    return *dia * SegundosPorMinuto + *segundos;
}

std::optional<double> Lamina(std::string_view texto, char separador)
{
    std::optional<double> x;
    const std::string numero = separador == ',' ? std::string(texto) : model::ComasAPuntos(texto);
    try {
        x = model::NumeroEntero(numero);
    } catch (const model::Falla&) {
        return {};
    }
    const bool esSimple = x && std::fabs(*x) <= double{std::numeric_limits<float>::max()};
    return esSimple ? x : std::nullopt;
}

/// A reading; nothing where the line is none.
std::optional<LecturaLluvia> Lectura(std::string_view renglon, char separador)
{
    const auto campos = Partes(renglon, separador);
    const std::size_t corte = campos[0].find_first_of(" T");
    const bool juntas = corte != std::string_view::npos;
    const std::size_t campoLamina = juntas ? 1 : 2;
    if (campos.size() <= campoLamina) return {};
    const auto segundo =
        juntas ? Momento(SinBordes(campos[0].substr(0, corte)), SinBordes(campos[0].substr(corte + 1)))
               : Momento(campos[0], campos[1]);
    const auto lamina = Lamina(campos[campoLamina], separador);
    if (!segundo || !lamina) return {};
    return LecturaLluvia{*segundo, *lamina};
}

/// What is wrong with a reading that follows those before it; nothing where all is well.
std::string_view Reparo(const std::optional<LecturaLluvia>& lectura,
                        const std::vector<LecturaLluvia>& previas)
{
    if (!lectura) return SinFechaOLamina;
    if (lectura->lamina < 0) return LaminaNegativa;
    if (!previas.empty() && lectura->segundo < previas.back().segundo) return VuelveAtras;
    return {};
}

// --- resampling ---

/// Spreads a depth evenly over the blocks between two moments, in seconds since the start.
void Reparte(std::vector<double>& laminas, std::int64_t desde, std::int64_t hasta, double lamina,
             std::int64_t bloque)
{
    const auto ultimo = static_cast<std::int64_t>(laminas.size()) - 1;
    const auto enBloque = [&](std::int64_t b) -> double& { return laminas[static_cast<std::size_t>(b)]; };
    if (hasta <= desde) {  // two readings at once: a moment belongs to the block that it ends
        enBloque(std::clamp<std::int64_t>((hasta - 1) / bloque, 0, ultimo)) += lamina;
        return;
    }
    const auto largo = static_cast<double>(hasta - desde);
    for (std::int64_t b = desde / bloque; b <= ultimo && b * bloque < hasta; ++b) {
        const std::int64_t comun = std::min(hasta, (b + 1) * bloque) - std::max(desde, b * bloque);
        enBloque(b) += lamina * static_cast<double>(comun) / largo;
    }
}

}  // namespace

RegistroLluvia LeeRegistroLluvia(std::string_view csv)
{
    RegistroLluvia registro;
    const char separador = Separador(csv);
    int nro = 0;
    for (const std::string_view renglon : Partes(csv, '\n')) {
        ++nro;
        if (renglon.empty()) continue;
        const auto lectura = Lectura(renglon, separador);
        const bool enElEncabezado = !lectura && registro.lecturas.empty();
        if (enElEncabezado) continue;
        const std::string_view reparo = Reparo(lectura, registro.lecturas);
        if (!reparo.empty()) return {{}, std::string(Renglon).append(std::to_string(nro)).append(reparo)};
        registro.lecturas.push_back(*lectura);
    }
    if (registro.lecturas.empty()) registro.motivo = SinLecturas;
    return registro;
}

std::int16_t PasoHabitual(const std::vector<LecturaLluvia>& lecturas)
{
    std::map<std::int64_t, int> veces;
    for (std::size_t i = 1; i < lecturas.size(); ++i) {
        const std::int64_t minutos =
            (lecturas[i].segundo - lecturas[i - 1].segundo + SegundosPorMinuto / 2) / SegundosPorMinuto;
        ++veces[std::clamp<std::int64_t>(minutos, 1, MaxDuracion)];
    }
    const auto habitual = std::max_element(veces.begin(), veces.end(),
                                           [](const auto& a, const auto& b) { return a.second < b.second; });
    return habitual == veces.end() ? PasoDeUnaLectura : static_cast<std::int16_t>(habitual->first);
}

Remuestreo Remuestrea(const std::vector<LecturaLluvia>& lecturas, int paso)
{
    if (lecturas.empty()) return {{}, std::string(SinLecturas)};
    if (paso < 1) return {{}, std::string(PasoNoVale)};
    const std::int64_t antes = lecturas.front().segundo - PasoHabitual(lecturas) * SegundosPorMinuto;
    const Instante comienzo = std::max<std::int64_t>(antes, 0) / SegundosPorMinuto;
    const std::int64_t origen = comienzo * SegundosPorMinuto;
    const std::int64_t bloque = paso * SegundosPorMinuto;
    const std::int64_t n =
        std::max<std::int64_t>((lecturas.back().segundo - origen + bloque - 1) / bloque, 1);
    if (n > MaxIntervalos)
        return {{}, std::string(SonDemasiados1).append(std::to_string(n)).append(SonDemasiados2)};
    if (n * paso > MaxDuracion) return {{}, std::string(DuraDemasiado)};

    std::vector<double> laminas(static_cast<std::size_t>(n));
    std::int64_t desde = 0;
    for (const LecturaLluvia& lectura : lecturas) {
        const std::int64_t hasta = lectura.segundo - origen;
        Reparte(laminas, desde, hasta, lectura.lamina, bloque);
        desde = hasta;
    }
    Remuestreo remuestreo;
    remuestreo.tormenta.paso = static_cast<std::int16_t>(paso);
    remuestreo.tormenta.comienzo = comienzo;
    for (const double lamina : laminas)
        remuestreo.tormenta.laminas.push_back(static_cast<float>(lamina));
    return remuestreo;
}

}  // namespace rainfall
