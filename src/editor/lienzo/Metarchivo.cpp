// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Metarchivo.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "editor/lienzo/RegistrosMeta.h"
#include "model/Texto.h"

namespace editor {
namespace {

constexpr std::uint32_t ClaveConMarco = 0x9AC6CDD7;
constexpr std::size_t LargoMarco = 22;   // [bytes]
constexpr std::size_t LargoCabeza = 18;  // [bytes]
constexpr int PuntosPorPulgada = 96;
constexpr std::size_t MaxObjetos = 4096;
constexpr std::size_t MaxGuardados = 256;  // states that a drawing may stack up

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
