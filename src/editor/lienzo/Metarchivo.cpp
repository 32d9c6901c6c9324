// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Metarchivo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <utility>
#include <variant>

#include "model/Texto.h"

namespace editor {
namespace {

constexpr std::uint32_t ClaveConMarco = 0x9AC6CDD7;
constexpr std::size_t LargoMarco = 22;     // [bytes]
constexpr std::size_t LargoCabeza = 18;    // [bytes]
constexpr std::size_t MinimoRegistro = 3;  // [words]
constexpr int PuntosPorPulgada = 96;
constexpr int LadoMaximo = 16384;  // of a picture or bitmap [pixels]
constexpr std::size_t MaxObjetos = 4096;
constexpr std::size_t MaxGuardados = 256;  // states that a drawing may stack up

/// Little-endian numbers of a piece of the file. Beyond its end they are 0.
class Palabras {
  public:
    explicit Palabras(std::string_view pedazo) : bytes(pedazo) {}

    [[nodiscard]] std::uint16_t Sin(std::size_t lugar) const
    {
        return static_cast<std::uint16_t>(Byte(lugar) | (Byte(lugar + 1) << 8U));
    }
    [[nodiscard]] std::int16_t Con(std::size_t lugar) const { return static_cast<std::int16_t>(Sin(lugar)); }
    [[nodiscard]] std::uint32_t Larga(std::size_t lugar) const
    {
        return std::uint32_t{Sin(lugar)} | (std::uint32_t{Sin(lugar + 2)} << 16U);
    }
    [[nodiscard]] unsigned Byte(std::size_t lugar) const
    {
        return lugar < bytes.size() ? static_cast<unsigned char>(bytes[lugar]) : 0U;
    }
    [[nodiscard]] std::string_view Desde(std::size_t lugar) const
    {
        return bytes.substr(std::min(lugar, bytes.size()));
    }
    [[nodiscard]] std::size_t Largo() const { return bytes.size(); }

    /// A point whose ordinate comes first, as most records have it.
    [[nodiscard]] PuntoMeta PuntoYX(std::size_t lugar) const
    {
        return {double(Con(lugar + 2)), double(Con(lugar))};
    }
    [[nodiscard]] PuntoMeta PuntoXY(std::size_t lugar) const
    {
        return {double(Con(lugar)), double(Con(lugar + 2))};
    }
    /// Bottom, right, top, left.
    [[nodiscard]] RectanguloMeta Rectangulo(std::size_t lugar) const
    {
        const double abajo = Con(lugar), derecha = Con(lugar + 2), arriba = Con(lugar + 4),
                     izquierda = Con(lugar + 6);
        return {izquierda, arriba, derecha - izquierda, abajo - arriba};
    }
    [[nodiscard]] ColorMeta Color(std::size_t lugar) const
    {
        return {static_cast<std::uint8_t>(Byte(lugar)), static_cast<std::uint8_t>(Byte(lugar + 1)),
                static_cast<std::uint8_t>(Byte(lugar + 2))};
    }

  private:
    std::string_view bytes;
};

/// Pens, brushes, fonts; what a drawing makes beside them takes a place too and does nothing.
using Objeto = std::variant<std::monostate, PlumaMeta, PincelMeta, LetraMeta>;

/// What SaveDC keeps.
struct Estado {
    PlumaMeta pluma{};
    PincelMeta pincel{};
    LetraMeta letra{};
    PuntoMeta posicion{};
    ColorMeta colorTexto{}, colorFondo{255, 255, 255};
    bool fondoOpaco = true;
    bool alterna = true;
    std::uint16_t alineacion = 0;
};

enum Funcion : std::uint16_t {
    SaveDC = 0x001E,
    RestoreDC = 0x0127,
    SetBkMode = 0x0102,
    SetPolyFillMode = 0x0106,
    SetTextAlign = 0x012E,
    SelectObject = 0x012D,
    DeleteObject = 0x01F0,
    SetBkColor = 0x0201,
    SetTextColor = 0x0209,
    SetWindowOrg = 0x020B,
    SetWindowExt = 0x020C,
    LineTo = 0x0213,
    MoveTo = 0x0214,
    CreatePen = 0x02FA,
    CreateFont = 0x02FB,
    CreateBrush = 0x02FC,
    CreatePalette = 0x00F7,
    CreatePatternBrush = 0x01F9,
    CreateDibPatternBrush = 0x0142,
    CreateRegion = 0x06FF,
    Polygon = 0x0324,
    Polyline = 0x0325,
    PolyPolygon = 0x0538,
    Ellipse = 0x0418,
    Rectangle = 0x041B,
    RoundRect = 0x061C,
    Arc = 0x0817,
    Pie = 0x081A,
    Chord = 0x0830,
    TextOut = 0x0521,
    ExtTextOut = 0x0A32,
    DibBitBlt = 0x0940,
    DibStretchBlt = 0x0B41,
    StretchDib = 0x0F43,
};

/// What stands between the heads and the end, record by record.
class Registros {
  public:
    explicit Registros(std::string_view resto) : bytes(resto) {}
    /// Returns false at the end and at the first record that doesn't fit.
    bool Siguiente()
    {
        const Palabras cabeza(bytes);
        const std::size_t largo = std::size_t{cabeza.Larga(0)} * 2;
        if (bytes.size() < MinimoRegistro * 2 || largo < MinimoRegistro * 2 || largo > bytes.size())
            return false;
        funcion = cabeza.Sin(4);
        datos = bytes.substr(6, largo - 6);
        bytes.remove_prefix(largo);
        fin = funcion == 0;
        return !fin;
    }
    std::uint16_t funcion = 0;
    bool fin = false;  ///< the record that ends the file has been read
    std::string_view datos{};

  private:
    std::string_view bytes;
};

bool ConMarco(std::string_view bytes)
{
    return bytes.size() >= LargoMarco && Palabras(bytes).Larga(0) == ClaveConMarco;
}

std::string_view Cuerpo(std::string_view bytes)
{
    if (ConMarco(bytes)) bytes.remove_prefix(LargoMarco);
    return bytes;
}

/// Origin and extent that the drawing itself gives first.
RectanguloMeta VentanaDelDibujo(std::string_view bytes)
{
    RectanguloMeta ventana;
    Registros registros(Cuerpo(bytes).substr(LargoCabeza));
    while (registros.Siguiente()) {
        const PuntoMeta p = Palabras(registros.datos).PuntoYX(0);
        if (registros.funcion == SetWindowOrg) {
            ventana.x = p.x;
            ventana.y = p.y;
        }
        if (registros.funcion != SetWindowExt) continue;
        ventana.ancho = p.x;
        ventana.alto = p.y;
        break;
    }
    return ventana;
}

// --- bitmaps ---

/// A bitmap without the head of a file, with one: as far as its own head can be trusted.
std::string ConCabezaDeArchivo(std::string_view dib)
{
    constexpr std::size_t LargoCabezaArchivo = 14;
    constexpr std::size_t CabezaCorta = 12, CabezaLarga = 40;
    const Palabras p(dib);
    const std::size_t cabeza = p.Larga(0);
    if (cabeza < CabezaLarga && cabeza != CabezaCorta) return {};
    if (cabeza > dib.size()) return {};
    const bool corta = cabeza == CabezaCorta;
    const auto ancho = corta ? std::int64_t{p.Sin(4)} : std::int64_t{static_cast<std::int32_t>(p.Larga(4))};
    const auto alto = corta ? std::int64_t{p.Sin(6)} : std::int64_t{static_cast<std::int32_t>(p.Larga(8))};
    const unsigned bits = corta ? p.Sin(10) : p.Sin(14);
    if (ancho < 1 || ancho > LadoMaximo || alto == 0 || std::llabs(alto) > LadoMaximo) return {};
    const std::size_t usados = corta ? 0 : p.Larga(32);
    const std::size_t colores = bits > 8 ? 0 : usados == 0 ? std::size_t{1} << bits : usados;
    constexpr std::size_t MascarasAparte = 3;
    constexpr std::uint32_t ConMascaras = 3;
    const bool mascaras = !corta && cabeza == CabezaLarga && p.Larga(16) == ConMascaras;
    const std::size_t paleta = colores * (corta ? 3 : 4) + (mascaras ? MascarasAparte * 4 : 0);
    if (colores > 256 || cabeza + paleta >= dib.size()) return {};

    std::string bmp = "BM";
    const auto agrega = [&](std::size_t n) {
        for (unsigned i = 0; i < 4; ++i)
            bmp += static_cast<char>((n >> (8U * i)) & 0xFFU);
    };
    agrega(LargoCabezaArchivo + dib.size());
    agrega(0);
    agrega(LargoCabezaArchivo + cabeza + paleta);
    return bmp.append(dib);
}

// --- player ---

class Tocador {
  public:
    explicit Tocador(LienzoMeta& destino) : lienzo(destino) {}
    void Ejecuta(std::uint16_t funcion, std::string_view datos);

  private:
    void EjecutaEstado(std::uint16_t funcion, const Palabras& p);
    void EjecutaFigura(std::uint16_t funcion, const Palabras& p);

    void Crea(Objeto objeto)
    {
        const auto libre =
            std::find_if(objetos.begin(), objetos.end(), [](const auto& o) { return !o.ocupado; });
        if (libre != objetos.end())
            *libre = {true, std::move(objeto)};
        else if (objetos.size() < MaxObjetos)
            objetos.push_back({true, std::move(objeto)});
    }
    void Elige(std::size_t indice);
    void Guarda()
    {
        if (guardados.size() < MaxGuardados) guardados.push_back(estado);
    }
    void Restaura(int cual);
    void Poligono(const Palabras& p);
    void VariosPoligonos(const Palabras& p);
    void Arco(ClaseArco clase, const Palabras& p);
    void Escribe(std::string_view bytes, PuntoMeta lugar);
    void TextoCorto(const Palabras& p);
    void TextoLargo(const Palabras& p);
    void Dib(const Palabras& p, std::size_t medidas, std::size_t dib, bool estirada);

    struct Ranura {
        bool ocupado = false;
        Objeto objeto{};
    };
    LienzoMeta& lienzo;
    Estado estado{};
    std::vector<Estado> guardados{};
    std::vector<Ranura> objetos{};
};

PlumaMeta LeePluma(const Palabras& p)
{
    constexpr auto Trazos = std::to_array({TrazoMeta::Continuo, TrazoMeta::Rayas, TrazoMeta::Puntos,
                                           TrazoMeta::RayaPunto, TrazoMeta::RayaPuntoPunto, TrazoMeta::Nada});
    const std::size_t estilo = p.Sin(0) & 0x0FU;
    return {estilo < Trazos.size() ? Trazos[estilo] : TrazoMeta::Continuo, std::abs(double(p.Con(2))),
            p.Color(6)};
}

PincelMeta LeePincel(const Palabras& p)
{
    constexpr std::uint16_t Nada = 1, Tramado = 2;
    const std::uint16_t estilo = p.Sin(0);
    const RellenoMeta relleno = estilo == Nada      ? RellenoMeta::Nada
                                : estilo == Tramado ? RellenoMeta::Tramado
                                                    : RellenoMeta::Lleno;
    return {relleno, std::min<int>(p.Sin(6), 5), p.Color(2)};
}

LetraMeta LeeLetra(const Palabras& p)
{
    constexpr std::size_t LugarDelNombre = 18, LargoDelNombre = 32;
    constexpr double DecimasPorGrado = 10;
    constexpr int PesoNegrita = 600;
    LetraMeta letra;
    const int alto = p.Con(0);
    if (alto != 0) letra.alto = std::abs(alto);
    letra.altoDeCelda = alto > 0;
    letra.giro = p.Con(4) / DecimasPorGrado;
    letra.negrita = p.Con(8) >= PesoNegrita;
    letra.cursiva = p.Byte(10) != 0;
    letra.subrayada = p.Byte(11) != 0;
    letra.tachada = p.Byte(12) != 0;
    const std::string_view nombre = p.Desde(LugarDelNombre).substr(0, LargoDelNombre);
    letra.familia = model::DeWindows1252(nombre.substr(0, nombre.find('\0')));
    return letra;
}

void Tocador::Elige(std::size_t indice)
{
    if (indice >= objetos.size()) return;
    const Objeto& objeto = objetos[indice].objeto;
    if (const auto* pluma = std::get_if<PlumaMeta>(&objeto)) estado.pluma = *pluma;
    if (const auto* pincel = std::get_if<PincelMeta>(&objeto)) estado.pincel = *pincel;
    if (const auto* letra = std::get_if<LetraMeta>(&objeto)) estado.letra = *letra;
}

/// A negative number counts back from the last state kept, a positive one from the first.
void Tocador::Restaura(int cual)
{
    const int lugar = cual < 0 ? static_cast<int>(guardados.size()) + cual : cual - 1;
    if (lugar < 0 || lugar >= static_cast<int>(guardados.size())) return;
    estado = guardados[static_cast<std::size_t>(lugar)];
    guardados.resize(static_cast<std::size_t>(lugar));
}

/// Points of a record from a place on, as many as are said and are there.
std::vector<PuntoMeta> LeePuntos(const Palabras& p, std::size_t lugar, std::size_t cuantos)
{
    std::vector<PuntoMeta> puntos;
    const std::size_t hay = p.Largo() > lugar ? (p.Largo() - lugar) / 4 : 0;
    puntos.reserve(std::min(cuantos, hay));
    for (std::size_t i = 0; i < std::min(cuantos, hay); ++i)
        puntos.push_back(p.PuntoXY(lugar + 4 * i));
    return puntos;
}

void Tocador::Poligono(const Palabras& p)
{
    lienzo.Poligonos({LeePuntos(p, 2, p.Sin(0))}, estado.alterna, estado.pluma, estado.pincel);
}

void Tocador::VariosPoligonos(const Palabras& p)
{
    const std::size_t cuantos = std::min<std::size_t>(p.Sin(0), p.Largo() / 2);
    std::vector<std::vector<PuntoMeta>> poligonos;
    std::size_t lugar = 2 + 2 * cuantos;
    for (std::size_t i = 0; i < cuantos && lugar < p.Largo(); ++i) {
        const std::size_t puntos = p.Sin(2 + 2 * i);
        poligonos.push_back(LeePuntos(p, lugar, puntos));
        lugar += 4 * puntos;
    }
    lienzo.Poligonos(poligonos, estado.alterna, estado.pluma, estado.pincel);
}

void Tocador::Arco(ClaseArco clase, const Palabras& p)
{
    lienzo.Arco({clase, p.Rectangulo(8), p.PuntoYX(4), p.PuntoYX(0)}, estado.pluma, estado.pincel);
}

void Tocador::Escribe(std::string_view bytes, PuntoMeta lugar)
{
    constexpr unsigned DesdeLaPosicion = 1, Derecha = 2, Centro = 6, Abajo = 8, Base = 24;
    const unsigned a = estado.alineacion;
    TextoMeta texto{.texto = model::DeWindows1252(bytes),
                    .lugar = (a & DesdeLaPosicion) != 0 ? estado.posicion : lugar,
                    .letra = estado.letra,
                    .color = estado.colorTexto};
    if ((a & Centro) == Centro)
        texto.alinea = AlineaMeta::Centro;
    else if ((a & Centro) == Derecha)
        texto.alinea = AlineaMeta::Derecha;
    if ((a & Base) == Base)
        texto.renglon = RenglonMeta::Base;
    else if ((a & Base) == Abajo)
        texto.renglon = RenglonMeta::Abajo;
    if (estado.fondoOpaco) texto.fondo = estado.colorFondo;
    lienzo.Texto(texto);
}

void Tocador::TextoCorto(const Palabras& p)
{
    const std::size_t largo = p.Sin(0);
    const std::size_t lugar = 2 + largo + largo % 2;
    if (lugar + 4 <= p.Largo()) Escribe(p.Desde(2).substr(0, largo), p.PuntoYX(lugar));
}

void Tocador::TextoLargo(const Palabras& p)
{
    constexpr unsigned ConRectangulo = 6;
    constexpr std::size_t LargoRectangulo = 8;
    const std::size_t lugar = 8 + ((p.Sin(6) & ConRectangulo) != 0 ? LargoRectangulo : 0);
    Escribe(p.Desde(lugar).substr(0, p.Sin(4)), p.PuntoYX(0));
}

/// `medidas`: where the height of the source stands. A bitmap that isn't stretched gives its own size.
void Tocador::Dib(const Palabras& p, std::size_t medidas, std::size_t dib, bool estirada)
{
    if (dib >= p.Largo()) return;  // a plain fill of the target
    const std::string bmp = ConCabezaDeArchivo(p.Desde(dib));
    if (bmp.empty()) return;
    RectanguloMeta origen, destino;
    if (estirada) {
        origen = {double(p.Con(medidas + 6)), double(p.Con(medidas + 4)), double(p.Con(medidas + 2)),
                  double(p.Con(medidas))};
        destino = {double(p.Con(medidas + 14)), double(p.Con(medidas + 12)), double(p.Con(medidas + 10)),
                   double(p.Con(medidas + 8))};
    } else {
        const double alto = p.Con(medidas + 4), ancho = p.Con(medidas + 6);
        origen = {double(p.Con(medidas + 2)), double(p.Con(medidas)), ancho, alto};
        destino = {double(p.Con(medidas + 10)), double(p.Con(medidas + 8)), ancho, alto};
    }
    lienzo.Imagen(bmp, origen, destino);
}

void Tocador::EjecutaEstado(std::uint16_t funcion, const Palabras& p)
{
    constexpr std::uint16_t Opaco = 2, Alterna = 1;
    switch (funcion) {
    case SaveDC:
        return Guarda();
    case RestoreDC:
        return Restaura(p.Con(0));
    case SetBkMode:
        estado.fondoOpaco = p.Sin(0) == Opaco;
        return;
    case SetPolyFillMode:
        estado.alterna = p.Sin(0) == Alterna;
        return;
    case SetTextAlign:
        estado.alineacion = p.Sin(0);
        return;
    case SetBkColor:
        estado.colorFondo = p.Color(0);
        return;
    case SetTextColor:
        estado.colorTexto = p.Color(0);
        return;
    case SelectObject:
        return Elige(p.Sin(0));
    case DeleteObject:
        if (p.Sin(0) < objetos.size()) objetos[p.Sin(0)] = {};
        return;
    case CreatePen:
        return Crea(LeePluma(p));
    case CreateBrush:
        return Crea(LeePincel(p));
    case CreateFont:
        return Crea(LeeLetra(p));
    case CreatePalette:
    case CreatePatternBrush:
    case CreateDibPatternBrush:
    case CreateRegion:
        return Crea({});
    default:
        return;
    }
}

void Tocador::EjecutaFigura(std::uint16_t funcion, const Palabras& p)
{
    switch (funcion) {
    case MoveTo:
        estado.posicion = p.PuntoYX(0);
        return;
    case LineTo:
        lienzo.Polilinea({estado.posicion, p.PuntoYX(0)}, estado.pluma);
        estado.posicion = p.PuntoYX(0);
        return;
    case Polyline:
        return lienzo.Polilinea(LeePuntos(p, 2, p.Sin(0)), estado.pluma);
    case Polygon:
        return Poligono(p);
    case PolyPolygon:
        return VariosPoligonos(p);
    case Rectangle:
        return lienzo.Rectangulo(p.Rectangulo(0), 0, 0, estado.pluma, estado.pincel);
    case RoundRect:
        return lienzo.Rectangulo(p.Rectangulo(4), p.Con(2) / 2.0, p.Con(0) / 2.0, estado.pluma,
                                 estado.pincel);
    case Ellipse:
        return lienzo.Elipse(p.Rectangulo(0), estado.pluma, estado.pincel);
    case Arc:
        return Arco(ClaseArco::Abierto, p);
    case Pie:
        return Arco(ClaseArco::Porcion, p);
    case Chord:
        return Arco(ClaseArco::Cuerda, p);
    default:
        return;
    }
}

void Tocador::Ejecuta(std::uint16_t funcion, std::string_view datos)
{
    const Palabras p(datos);
    switch (funcion) {
    case TextOut:
        return TextoCorto(p);
    case ExtTextOut:
        return TextoLargo(p);
    case DibBitBlt:
        return Dib(p, 4, 16, false);
    case DibStretchBlt:
        return Dib(p, 4, 20, true);
    case StretchDib:
        return Dib(p, 6, 22, true);
    default:
        EjecutaEstado(funcion, p);
        EjecutaFigura(funcion, p);
    }
}

}  // namespace

bool EsMetarchivo(std::string_view bytes)
{
    constexpr std::uint16_t EnMemoria = 1, EnDisco = 2, PalabrasDeCabeza = 9;
    const std::string_view cuerpo = Cuerpo(bytes);
    const Palabras cabeza(cuerpo);
    return cuerpo.size() >= LargoCabeza && (cabeza.Sin(0) == EnMemoria || cabeza.Sin(0) == EnDisco) &&
           cabeza.Sin(2) == PalabrasDeCabeza;
}

std::optional<MarcoMeta> MarcoDe(std::string_view bytes)
{
    if (!EsMetarchivo(bytes)) return {};
    const RectanguloMeta ventana = VentanaDelDibujo(bytes);
    MarcoMeta marco{.ventana = ventana};
    double ancho = std::abs(ventana.ancho), alto = std::abs(ventana.alto);
    if (ConMarco(bytes)) {
        const Palabras p(bytes);
        const double pulgada = p.Sin(14) == 0 ? PuntosPorPulgada : p.Sin(14);
        const PuntoMeta a = p.PuntoXY(6), b = p.PuntoXY(10);
        if (ventana.ancho == 0 || ventana.alto == 0) marco.ventana = {a.x, a.y, b.x - a.x, b.y - a.y};
        ancho = std::abs(b.x - a.x) / pulgada * PuntosPorPulgada;
        alto = std::abs(b.y - a.y) / pulgada * PuntosPorPulgada;
    }
    if (marco.ventana.ancho == 0 || marco.ventana.alto == 0) return {};
    marco.ancho = static_cast<int>(std::clamp(std::round(ancho), 1.0, double(LadoMaximo)));
    marco.alto = static_cast<int>(std::clamp(std::round(alto), 1.0, double(LadoMaximo)));
    return marco;
}

bool Toca(std::string_view bytes, LienzoMeta& lienzo, const std::function<bool()>& sigue)
{
    if (!EsMetarchivo(bytes)) return false;
    Tocador tocador(lienzo);
    Registros registros(Cuerpo(bytes).substr(LargoCabeza));
    while (registros.Siguiente() && sigue())
        tocador.Ejecuta(registros.funcion, registros.datos);
    return true;
}

bool TieneFin(std::string_view bytes)
{
    if (!EsMetarchivo(bytes)) return false;
    Registros registros(Cuerpo(bytes).substr(LargoCabeza));
    while (registros.Siguiente()) {
    }
    return registros.fin;
}

}  // namespace editor
