// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgChart1.h"

#include <utility>

#include "engine/modDistriPp.h"
#include "model/Avisos.h"
#include "model/Numeros.h"
#include "model/Siro.h"
#include "model/Tormenta.h"
#include "results/EjeTiempo.h"

namespace results {

using forms::Grafico;
using forms::Serie;
using model::NumeroATexto;
using model::Siro;

namespace {

std::string NotaAlPie(const Hietograma& pedido, std::int16_t paso)
{
    return " Pp= " + NumeroATexto(pedido.P) + "mm;  D= " + NumeroATexto(std::int32_t{pedido.D}) +
           " min ;   paso = " + NumeroATexto(std::int32_t{paso}) + " min";
}

/// Length of a block, a tie going to the even minute.
std::int16_t MinutosPorBloque(const Siro& s)
{
    return model::Entero16(model::Cociente(s.Tormenta.DurTormenta, s.Tormenta.NroPpReal));
}

Grafico Llena(const dlgChart1& f, const Siro& s, std::int16_t N, std::int16_t paso)
{
    Grafico grafico = f.Grafico;
    Serie lluvia;
    grafico.categorias.clear();
    for (int i = 1; i <= N; ++i) {
        grafico.categorias.push_back(Categoria(static_cast<std::int16_t>(i), paso, f.MinutosEjeX));
        lluvia.celdas.push_back(s.Tormenta.PpReal(i));
    }
    grafico.series.clear();
    grafico.series.push_back(std::move(lluvia));
    grafico.magnitudX = MagnitudEjeX;
    grafico.ejeX = TituloEjeX(f.MinutosEjeX);
    grafico.ejeY = EjePrecipitacion;
    grafico.titulo = "  " + f.pedido.titulo + "  ";
    grafico.notaAlPie = NotaAlPie(f.pedido, paso);
    return grafico;
}

}  // namespace

void Abre(dlgChart1& f, const Siro& s)
{
    f = dlgChart1{};
    f.abierta = true;
    cmdHsMin(f, s);
    if (s.Tormenta.FormaPp == model::FormaLluvia::SeriePDR) f.abierta = false;
}

void Muestra(dlgChart1& f, const Siro& s, const Hietograma& pedido)
{
    if (!f.abierta) Abre(f, s);
    if (!f.abierta) return;
    f.pedido = pedido;
    AlGraficoPp(f, s, pedido.N, pedido.paso);
}

void AlGraficoPp(dlgChart1& f, const Siro& s, std::int16_t N, std::int16_t paso)
{
    if (N == 0) return;
    ++f.llenados;
    model::Sentencia([&] { f.Grafico = Llena(f, s, N, paso); }, model::AvisaMotor(s));
}

void cmdHsMin(dlgChart1& f, const Siro& s)
{
    f.MinutosEjeX = !f.MinutosEjeX;
    AlGraficoPp(f, s, f.pedido.N, f.pedido.paso);
}

bool HayTormentaConBloques(const Siro& s)
{
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0 || s.Tormenta.NroPpReal == 0) return false;
    return MinutosPorBloque(s) != 0;
}

std::optional<Hietograma> mnuGraficoPp(Siro& s, std::string_view notas)
{
    if (s.Tormenta.PpTormenta == 0 || s.Tormenta.DurTormenta == 0) return {};
    engine::ConstruyeHietograma(s);
    if (!HayTormentaConBloques(s)) return {};
    if (s.Control.SalidaPizarra) s.Anfitrion.AbrePizarra();
    return Hietograma{
        s.Tormenta.NroPpReal, MinutosPorBloque(s),
        std::string(s.Tormenta.FormaPp == model::FormaLluvia::Real ? notas : s.Configuracion.TituloProyecto),
        s.Tormenta.PpTormenta, s.Tormenta.DurTormenta};
}

}  // namespace results
