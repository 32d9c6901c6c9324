// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "editor/lienzo/FormatoDeImagen.h"
#include "editor/lienzo/Metarchivo.h"

namespace {

void Exige(bool vale)
{
    if (!vale) std::abort();
}

/// A canvas that draws nothing and believes nothing.
class Lienzo : public editor::LienzoMeta {
  public:
    void Polilinea(const std::vector<editor::PuntoMeta>& puntos, const editor::PlumaMeta&) override
    {
        for (const auto& p : puntos)
            Punto(p);
    }
    void Poligonos(const std::vector<std::vector<editor::PuntoMeta>>& poligonos, bool,
                   const editor::PlumaMeta& pluma, const editor::PincelMeta&) override
    {
        for (const auto& puntos : poligonos)
            Polilinea(puntos, pluma);
    }
    void Rectangulo(const editor::RectanguloMeta& r, double radioX, double radioY, const editor::PlumaMeta&,
                    const editor::PincelMeta&) override
    {
        Marco(r);
        Exige(std::isfinite(radioX) && std::isfinite(radioY));
    }
    void Elipse(const editor::RectanguloMeta& r, const editor::PlumaMeta&,
                const editor::PincelMeta& pincel) override
    {
        Marco(r);
        Exige(pincel.trama >= 0 && pincel.trama <= 5);
    }
    void Arco(const editor::ArcoMeta& arco, const editor::PlumaMeta&, const editor::PincelMeta&) override
    {
        Marco(arco.marco);
        Punto(arco.desde);
        Punto(arco.hasta);
    }
    void Texto(const editor::TextoMeta& texto) override
    {
        Punto(texto.lugar);
        Exige(texto.letra.alto > 0);
    }
    void Imagen(const std::string& bmp, const editor::RectanguloMeta& origen,
                const editor::RectanguloMeta& destino) override
    {
        Exige(bmp.starts_with("BM") && bmp.size() > 26);
        Marco(origen);
        Marco(destino);
    }

  private:
    static void Punto(editor::PuntoMeta p) { Exige(std::abs(p.x) <= 32768 && std::abs(p.y) <= 32768); }
    static void Marco(const editor::RectanguloMeta& r)
    {
        Punto({r.x, r.y});
        Exige(std::abs(r.ancho) <= 65535 && std::abs(r.alto) <= 65535);
    }
};

}  // namespace

// Whatever the bytes are, nothing that is drawn lies outside what the format can say, and a frame has a size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string_view bytes(reinterpret_cast<const char*>(datos), largo);
    if (const auto marco = editor::MarcoDe(bytes)) {
        Exige(marco->ancho >= 1 && marco->alto >= 1 && marco->ancho <= 16384 && marco->alto <= 16384);
        Exige(marco->ventana.ancho != 0 && marco->ventana.alto != 0);
    }
    Lienzo lienzo;
    Exige(editor::Toca(bytes, lienzo) == editor::EsMetarchivo(bytes));
    Exige(!editor::EsMetarchivoMejorado(bytes) || !editor::EsMetarchivo(bytes));
    Exige(!editor::EsMetarchivo(bytes) || editor::EstaIncompleta(bytes) != editor::TieneFin(bytes));
    return 0;
}
