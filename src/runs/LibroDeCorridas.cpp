// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/LibroDeCorridas.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <future>
#include <iterator>
#include <random>
#include <thread>
#include <utility>

#include "model/Falla.h"
#include "model/Sistema.h"

namespace runs {
namespace {

using model::Falla;
using model::NumeroFalla;

constexpr std::string_view Terminacion = "_corridas", TerminacionPaquete = ".zip", DeReemplazo = ".siro-";
constexpr std::size_t LargoHuella = 8, LargoAzar = 16;

constexpr std::string_view NoEsDelLibro = "El archivo no es una corrida guardada.";
constexpr std::string_view Cortado = "El archivo está cortado.";
constexpr std::string_view Danado = "El archivo está dañado.";

// --- names ---

/// Decimal, or hexadecimal, of `largo` digits.
std::string Cifras(std::uint64_t n, std::size_t largo, unsigned base = 10)
{
    std::string texto(largo, '0');
    for (std::size_t i = largo; i-- > 0; n /= base)
        texto[i] = "0123456789abcdef"[n % base];
    return texto;
}

std::string FechaUtc(std::int64_t milisegundos)
{
    using namespace std::chrono;
    const sys_time<milliseconds> momento{milliseconds(milisegundos)};
    const year_month_day dia{floor<days>(momento)};
    const hh_mm_ss hora{momento - floor<days>(momento)};
    const auto dos = [](auto n) { return Cifras(static_cast<std::uint64_t>(n), 2); };
    return Cifras(static_cast<std::uint64_t>(static_cast<int>(dia.year())), 4) +
           dos(static_cast<unsigned>(dia.month())) + dos(static_cast<unsigned>(dia.day())) + "-" +
           dos(hora.hours().count()) + dos(hora.minutes().count()) + dos(hora.seconds().count()) + "-" +
           Cifras(static_cast<std::uint64_t>(hora.subseconds().count()), 3);
}

std::string FechaLocal(std::int64_t milisegundos)
{
    const std::tm t = model::HoraLocal(static_cast<std::time_t>(milisegundos / 1000));
    const auto cifras = [](int n, std::size_t largo = 2) {
        return Cifras(static_cast<std::uint64_t>(n), largo);
    };
    return cifras(t.tm_year + 1900, 4) + "-" + cifras(t.tm_mon + 1) + "-" + cifras(t.tm_mday) + " " +
           cifras(t.tm_hour) + ":" + cifras(t.tm_min) + ":" + cifras(t.tm_sec);
}

std::string NombreDe(std::int64_t milisegundos, std::string_view huella)
{
    std::random_device dado;
    const std::uint64_t azar = std::uint64_t{dado()} << 32 | dado();
    std::string principio(huella.substr(0, LargoHuella));
    principio.resize(LargoHuella, '0');
    return FechaUtc(milisegundos) + "_" + principio + "_" + Cifras(azar, LargoAzar, 16) +
           std::string(TerminacionPaquete);
}

/// Whether a name is one of those that NombreDe makes: 0 for a decimal digit, x for a hexadecimal one.
bool EsDelLibro(std::string_view nombre)
{
    constexpr std::string_view Forma = "00000000-000000-000_xxxxxxxx_xxxxxxxxxxxxxxxx.zip";
    return std::ranges::equal(nombre, Forma, [](char letra, char forma) {
        const bool cifra = letra >= '0' && letra <= '9';
        if (forma == '0') return cifra;
        return forma == 'x' ? cifra || (letra >= 'a' && letra <= 'f') : letra == forma;
    });
}

// --- the first piece of a package, and its end: PKWARE, APPNOTE.TXT 6.3, sections 4.3.7 and 4.3.16 ---

constexpr std::size_t CabezaLocal = 30, FinDeDirectorio = 22;
constexpr std::size_t PrimeraLectura = 4096, MaximoDeFicha = std::size_t{1} << 20;

std::uint32_t Entero(std::string_view bytes, std::size_t lugar, std::size_t largo)
{
    std::uint32_t n = 0;
    for (std::size_t i = largo; i-- > 0;)
        n = n << 8 | static_cast<unsigned char>(bytes[lugar + i]);
    return n;
}

constexpr auto TablaDeSuma = [] {
    std::array<std::uint32_t, 256> tabla{};
    for (std::uint32_t i = 0; i < tabla.size(); ++i) {
        std::uint32_t n = i;
        for (int k = 0; k < 8; ++k)
            n = (n & 1U) != 0 ? 0xEDB88320U ^ n >> 1 : n >> 1;
        tabla[i] = n;
    }
    return tabla;
}();

/// The check sum of a zip package's piece: CRC-32 of ISO 3309.
std::uint32_t Suma(std::string_view bytes)
{
    std::uint32_t n = 0xFFFFFFFFU;
    for (const char letra : bytes)
        n = TablaDeSuma[(n ^ static_cast<unsigned char>(letra)) & 0xFFU] ^ n >> 8;
    return ~n;
}

/// Where the row stands in a file, by its local header.
struct LugarDeFicha {
    std::size_t desde = 0, bytes = 0;
    std::uint32_t suma = 0;
};
/// Nothing, with 0 bytes, where the first piece isn't a row that stands there as it is.
LugarDeFicha LugarDe(std::string_view comienzo)
{
    constexpr std::uint32_t Firma = 0x04034B50, ConDescriptor = 8;
    const std::size_t nombre = CabezaLocal + PiezaFicha.size();
    if (comienzo.size() < nombre || Entero(comienzo, 0, 4) != Firma) return {};
    const bool tieneNombre = Entero(comienzo, 26, 2) == PiezaFicha.size() &&
                             comienzo.substr(CabezaLocal, PiezaFicha.size()) == PiezaFicha;
    const bool llana = Entero(comienzo, 8, 2) == 0 && (Entero(comienzo, 6, 2) & ConDescriptor) == 0;
    const std::size_t bytes = Entero(comienzo, 22, 4);
    if (!tieneNombre || !llana || bytes > MaximoDeFicha) return {};
    return {nombre + Entero(comienzo, 28, 2), bytes, Entero(comienzo, 14, 4)};
}

/// Whether the end of a file is that of a package of so many bytes.
bool LlegaAlFin(std::string_view fin, std::uint64_t bytes)
{
    constexpr std::uint32_t Firma = 0x06054B50;
    if (fin.size() < FinDeDirectorio) return false;
    const std::string_view cola = fin.substr(fin.size() - FinDeDirectorio);
    return Entero(cola, 0, 4) == Firma &&
           std::uint64_t{Entero(cola, 12, 4)} + Entero(cola, 16, 4) + FinDeDirectorio == bytes;
}

RenglonDeLibro Lee(const Libro& libro, const std::string& archivo)
{
    const std::string ruta = model::Ruta(libro.Carpeta(), archivo);
    try {
        model::Puntas puntas = libro.puntas(ruta, PrimeraLectura, FinDeDirectorio);
        const LugarDeFicha lugar = LugarDe(puntas.comienzo);
        if (lugar.desde + lugar.bytes > puntas.comienzo.size() && puntas.comienzo.size() < puntas.bytes)
            puntas = libro.puntas(ruta, lugar.desde + lugar.bytes, FinDeDirectorio);
        return RenglonDe(archivo, puntas);
    } catch (const Falla&) {
        return {.archivo = archivo, .reparo = "El archivo no se puede leer."};
    }
}

/// On as many threads as there are cores, since half of the time is the system's.
std::vector<RenglonDeLibro> LeeTodos(const Libro& libro, const std::vector<std::string>& archivos)
{
    constexpr std::size_t PorHilo = 500;
    std::vector<RenglonDeLibro> renglones(archivos.size());
    const std::size_t hilos = std::clamp<std::size_t>(archivos.size() / PorHilo, 1,
                                                      std::max(1U, std::thread::hardware_concurrency()));
    const auto lee = [&](std::size_t desde) {
        for (std::size_t i = desde; i < archivos.size(); i += hilos)
            renglones[i] = Lee(libro, archivos[i]);
    };
    std::vector<std::future<void>> otros;
    for (std::size_t h = 1; h < hilos; ++h)
        otros.push_back(std::async(std::launch::async, lee, h));
    lee(0);
    for (std::future<void>& otro : otros)
        otro.get();
    return renglones;
}

void PreparaCarpeta(const Libro& libro)
{
    const std::string carpeta = libro.Carpeta();
    if (libro.disco.HayDirectorio(carpeta)) return;
    // Another program may have made it meanwhile.
    if (!model::Sentencia([&] { libro.disco.CreaDirectorio(carpeta); }) &&
        !libro.disco.HayDirectorio(carpeta))
        throw Falla{NumeroFalla::AccesoRuta};
}

std::vector<std::string> Archivos(const Libro& libro)
{
    if (!libro.disco.HayDirectorio(libro.Carpeta())) return {};
    return libro.disco.Lista(libro.Carpeta());
}

/// Names and sizes of the ledger's own files, the oldest first.
std::vector<std::pair<std::string, std::uint64_t>> Medidos(const Libro& libro)
{
    std::vector<std::pair<std::string, std::uint64_t>> medidos;
    for (const std::string& archivo : Archivos(libro))
        if (EsDelLibro(archivo))
            model::Sentencia([&] {
                medidos.emplace_back(archivo,
                                     libro.puntas(model::Ruta(libro.Carpeta(), archivo), 0, 0).bytes);
            });
    return medidos;
}

}  // namespace

std::string Libro::Carpeta() const
{
    return model::Ruta(dirProyecto, proyecto + std::string(Terminacion));
}

std::int64_t Libro::RelojDelSistema()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

RenglonDeLibro RenglonDe(std::string archivo, const model::Puntas& puntas)
{
    RenglonDeLibro r{.archivo = std::move(archivo), .bytes = puntas.bytes};
    const LugarDeFicha lugar = LugarDe(puntas.comienzo);
    if (lugar.bytes == 0) {
        r.reparo = EsDelLibro(r.archivo) ? Danado : NoEsDelLibro;
        return r;
    }
    if (!LlegaAlFin(puntas.fin, puntas.bytes) || lugar.desde + lugar.bytes > puntas.comienzo.size()) {
        r.reparo = Cortado;
        return r;
    }
    const std::string_view texto = std::string_view(puntas.comienzo).substr(lugar.desde, lugar.bytes);
    if (Suma(texto) != lugar.suma) {
        r.reparo = Danado;
        return r;
    }
    study::LecturaDeFicha lectura = study::LeeFicha(texto);
    if (lectura.motivo.empty())
        r.ficha = std::move(lectura.ficha);
    else
        r.reparo = "Renglón " + std::to_string(lectura.renglon) + " de " + std::string(PiezaFicha) + ": " +
                   lectura.motivo + ".";
    return r;
}

std::vector<RenglonDeLibro> ListaDe(const Libro& libro)
{
    std::vector<std::string> archivos = Archivos(libro);
    const auto esResto = [](const std::string& nombre) { return nombre.starts_with(DeReemplazo); };
    if (std::ranges::any_of(archivos, esResto)) {
        model::Sentencia([&] { libro.disco.Recupera(libro.Carpeta()); });
        archivos = Archivos(libro);
        std::erase_if(archivos, esResto);
    }
    // What bears another name has no time, and stands behind.
    std::ranges::sort(archivos, std::ranges::greater());
    std::stable_partition(archivos.begin(), archivos.end(), EsDelLibro);
    return LeeTodos(libro, archivos);
}

std::string Guarda(const Libro& libro, CorridaPorGuardar corrida)
{
    const std::int64_t ahora = libro.ahora();
    if (corrida.ficha.cuando.empty()) corrida.ficha.cuando = FechaLocal(ahora);
    std::string nombre = NombreDe(ahora, corrida.ficha.huella);
    std::vector<study::Pieza> piezas{{std::string(PiezaFicha), study::EscribeFicha(corrida.ficha), false}};
    std::ranges::move(corrida.piezas, std::back_inserter(piezas));
    PreparaCarpeta(libro);
    libro.disco.Reemplaza({{model::Ruta(libro.Carpeta(), nombre), study::Empaqueta(piezas)}});
    return nombre;
}

int HaceLugar(const Libro& libro, std::uint64_t tope, const std::string& salvo)
{
    const auto medidos = Medidos(libro);
    std::uint64_t ocupado = 0;
    for (const auto& [archivo, bytes] : medidos)
        ocupado += bytes;
    int borradas = 0;
    for (const auto& medido : medidos) {
        if (ocupado <= tope) break;
        const std::string& archivo = medido.first;
        if (archivo == salvo) continue;
        const RenglonDeLibro renglon = Lee(libro, archivo);
        if (!renglon.reparo.empty() || renglon.ficha.fijada) continue;
        if (!model::Sentencia([&] { libro.disco.Borra(model::Ruta(libro.Carpeta(), archivo)); })) continue;
        ocupado -= medido.second;
        ++borradas;
    }
    return borradas;
}

std::uint64_t Ocupado(const Libro& libro)
{
    std::uint64_t ocupado = 0;
    for (const auto& [archivo, bytes] : Medidos(libro))
        ocupado += bytes;
    return ocupado;
}

std::vector<study::Pieza> PiezasDe(const Libro& libro, const std::string& archivo)
{
    std::vector<study::Pieza> piezas =
        study::Desempaqueta(libro.disco.Lee(model::Ruta(libro.Carpeta(), archivo)));
    if (piezas.empty() || piezas.front().nombre != PiezaFicha)
        throw Falla{NumeroFalla::AccesoRuta, NoEsDelLibro};
    return piezas;
}

void CambiaFicha(const Libro& libro, const std::string& archivo,
                 const std::function<void(study::Ficha&)>& cambio)
{
    std::vector<study::Pieza> piezas = PiezasDe(libro, archivo);
    study::LecturaDeFicha lectura = study::LeeFicha(piezas.front().bytes);
    if (!lectura.motivo.empty()) throw Falla{NumeroFalla::AccesoRuta, Danado};
    cambio(lectura.ficha);
    piezas.front().bytes = study::EscribeFicha(lectura.ficha);
    libro.disco.Reemplaza({{model::Ruta(libro.Carpeta(), archivo), study::Empaqueta(piezas)}});
}

}  // namespace runs
