// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What a metafile draws with: points, pens, brushes, fonts, and the canvas that is told to draw.
namespace editor {

struct PuntoMeta {
    double x = 0, y = 0;
    bool operator==(const PuntoMeta&) const = default;
};

struct RectanguloMeta {
    double x = 0, y = 0, ancho = 0, alto = 0;  ///< a negative size is a mirrored one
    bool operator==(const RectanguloMeta&) const = default;
};

struct ColorMeta {
    std::uint8_t rojo = 0, verde = 0, azul = 0;
    bool operator==(const ColorMeta&) const = default;
};

enum class TrazoMeta : std::uint8_t { Continuo, Rayas, Puntos, RayaPunto, RayaPuntoPunto, Nada };
enum class RellenoMeta : std::uint8_t { Lleno, Nada, Tramado };

struct PlumaMeta {
    TrazoMeta trazo = TrazoMeta::Continuo;
    double ancho = 0;  ///< [logical units]; 0: the thinnest
    ColorMeta color{};
    bool operator==(const PlumaMeta&) const = default;
};

struct PincelMeta {
    RellenoMeta relleno = RellenoMeta::Lleno;
    int trama = 0;  ///< 0 to 5: horizontal, vertical, two diagonals, cross, diagonal cross
    ColorMeta color{255, 255, 255};
    bool operator==(const PincelMeta&) const = default;
};

struct LetraMeta {
    double alto = 12;          ///< [logical units]
    bool altoDeCelda = false;  ///< the height counts what stands above the capitals too
    double giro = 0;           ///< counterclockwise [degrees]
    bool negrita = false, cursiva = false, subrayada = false, tachada = false;
    std::string familia{};
    bool operator==(const LetraMeta&) const = default;
};

enum class AlineaMeta : std::uint8_t { Izquierda, Centro, Derecha };
enum class RenglonMeta : std::uint8_t { Arriba, Base, Abajo };

struct TextoMeta {
    std::string texto{};  ///< UTF-8
    PuntoMeta lugar{};
    LetraMeta letra{};
    ColorMeta color{};
    AlineaMeta alinea = AlineaMeta::Izquierda;
    RenglonMeta renglon = RenglonMeta::Arriba;
    std::optional<ColorMeta> fondo{};
};

enum class ClaseArco : std::uint8_t { Abierto, Porcion, Cuerda };

/// Part of an ellipse, counterclockwise from the direction of one point to that of another.
struct ArcoMeta {
    ClaseArco clase = ClaseArco::Abierto;
    RectanguloMeta marco{};
    PuntoMeta desde{}, hasta{};
};

/// Who draws. All points are in logical units; a closed figure is filled and then outlined.
class LienzoMeta {
  public:
    virtual ~LienzoMeta() = default;
    virtual void Polilinea(const std::vector<PuntoMeta>& puntos, const PlumaMeta& pluma) = 0;
    /// Polygons that are one figure: `alterna` says that what lies inside two of them is outside.
    virtual void Poligonos(const std::vector<std::vector<PuntoMeta>>& poligonos, bool alterna,
                           const PlumaMeta& pluma, const PincelMeta& pincel) = 0;
    virtual void Rectangulo(const RectanguloMeta& r, double radioX, double radioY, const PlumaMeta& pluma,
                            const PincelMeta& pincel) = 0;
    virtual void Elipse(const RectanguloMeta& r, const PlumaMeta& pluma, const PincelMeta& pincel) = 0;
    virtual void Arco(const ArcoMeta& arco, const PlumaMeta& pluma, const PincelMeta& pincel) = 0;
    virtual void Texto(const TextoMeta& texto) = 0;
    /// A bitmap, as the bytes of a .bmp file, its part `origen` [pixels] stretched over `destino`.
    virtual void Imagen(const std::string& bmp, const RectanguloMeta& origen,
                        const RectanguloMeta& destino) = 0;
};

}  // namespace editor
