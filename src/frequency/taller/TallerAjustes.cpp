// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerAjustes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/CampoNumerico.h"
#include "frequency/Cifras.h"
#include "frequency/taller/GraficosDeTaller.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

constexpr std::array Metodos{Metodo::Momentos, Metodo::MomentosL, Metodo::Verosimilitud};
constexpr int MaximasMuestras = 100000;

constexpr forms::ReglaNumero ReglaSemilla{.control = "txtSemilla",
                                          .minimo = 0,
                                          .maximo = 4294967295.0,
                                          .mensaje = "La semilla es un entero de 0 a 4294967295.",
                                          .clase = forms::ClaseNumero::Entero};
constexpr forms::ReglaNumero ReglaMuestras{.control = "txtMuestras",
                                           .minimo = 0,
                                           .maximo = MaximasMuestras,
                                           .mensaje = "Las muestras son un entero de 0 a 100000.",
                                           .clase = forms::ClaseNumero::Entero};

constexpr forms::ReglaNumero ReglaAsimetria{
    .control = "txtAsimetria", .minimo = -3, .maximo = 3, .mensaje = "La asimetría regional va de -3 a 3."};
constexpr forms::ReglaNumero ReglaEcm{.control = "txtEcm",
                                      .minimo = 0.001,
                                      .maximo = 10,
                                      .mensaje = "El error cuadrático medio va de 0.001 a 10."};

/// Plotting positions by name.
struct FilaPosicion {
    std::string_view nombre;
    double a;
};
constexpr auto Posiciones = std::to_array<FilaPosicion>({{"Weibull, a = 0", 0},
                                                         {"Blom, a = 0.375", 0.375},
                                                         {"Cunnane, a = 0.4", 0.4},
                                                         {"Gringorten, a = 0.44", 0.44},
                                                         {"Hazen, a = 0.5", 0.5}});

/// How low values are taken, by the study's keys.
struct FilaBajos {
    std::string_view nombre, clave;
};
constexpr auto TratosDeBajos =
    std::to_array<FilaBajos>({{"Como los demás", ""}, {"Bulletin 17B", "17b"}, {"Bulletin 17C", "17c"}});

std::string Numero(double x, int decimales)
{
    return std::isfinite(x) ? Con(x, decimales) : std::string();
}

/// The fit of the law in hand, or the first one where it isn't fitted.
const AjusteDeLey* EnMano(const TallerAjustes& m)
{
    if (!m.analisis || m.analisis->ajustes.empty()) return nullptr;
    const Ley* const ley = Leyes()[static_cast<std::size_t>(std::max(0, m.enMano))];
    const auto& ajustes = m.analisis->ajustes;
    const auto suya =
        std::find_if(ajustes.begin(), ajustes.end(), [ley](const auto& f) { return f.ley == ley; });
    return suya != ajustes.end() ? &*suya : &ajustes.front();
}

PedidoDeAjustes PedidoDe(const TallerAjustes& m, const study::SerieDeMaximos& s, const study::Taller& t)
{
    PedidoDeAjustes p{s.maximos, Metodos[static_cast<std::size_t>(m.metodo)], {}, t.semilla, t.remuestras};
    p.bajos = s.bajos;
    p.asimetria = s.asimetria;
    p.ecmAsimetria = s.ecmAsimetria;
    for (std::size_t i = 0; i < Leyes().size(); ++i)
        if (m.ajustadas[i]) p.leyes.push_back(Leyes()[i]);
    return p;
}

std::vector<std::string> TitulosDe(const TallerAjustes& m, std::string_view que)
{
    return {std::string(TituloDlgTaller) + ": " + std::string(que), m.temaDelAnalisis,
            "Método: " + std::string(NombreDe(m.analisis->metodo)) +
                (m.analisis->pedido.cuantas > 0
                     ? "; " + std::to_string(m.analisis->pedido.cuantas) + " muestras, semilla " +
                           std::to_string(m.analisis->pedido.semilla)
                     : "; sin remuestreo")};
}

/// A row per recurrence: the law in hand with its band, then all laws.
forms::Planilla Cuantiles(const TallerAjustes& m)
{
    const AjusteDeLey* const suya = EnMano(m);
    forms::Planilla p{TitulosDe(m, "láminas por recurrencia [mm]"), {{"R [años]"}}, {}};
    p.columnas.push_back({"5 %"});
    p.columnas.push_back({suya != nullptr ? NombreCorto(*suya->ley) : std::string()});
    p.columnas.push_back({"95 %"});
    for (const AjusteDeLey& f : m.analisis->ajustes)
        if (&f != suya) p.columnas.push_back({NombreCorto(*f.ley)});
    for (std::size_t i = 0; i < model::Recurrencias.size(); ++i) {
        const auto lamina = [i](const AjusteDeLey& f, const PorRecurrencia& q, bool hay) {
            return f.estimado.p && hay ? Numero(q[i], 1) : std::string();
        };
        std::vector<std::string> fila{std::to_string(model::Recurrencias[i])};
        if (suya != nullptr) {
            const bool hay = suya->remuestreo.Hay();
            fila.push_back(lamina(*suya, suya->remuestreo.banda5, hay));
            fila.push_back(lamina(*suya, suya->cuantiles, true));
            fila.push_back(lamina(*suya, suya->remuestreo.banda95, hay));
        }
        for (const AjusteDeLey& f : m.analisis->ajustes)
            if (&f != suya) fila.push_back(lamina(f, f.cuantiles, true));
        p.filas.push_back(std::move(fila));
    }
    return p;
}

forms::Planilla BondadDe(const TallerAjustes& m)
{
    forms::Planilla p{TitulosDe(m, "bondad del ajuste"),
                      {{"Ley", true},
                       {"KS"},
                       {"p"},
                       {"A2"},
                       {"p"},
                       {"chi2"},
                       {"p"},
                       {"PPCC"},
                       {"p"},
                       {"AIC"},
                       {"AICc"},
                       {"BIC"}},
                      {}};
    for (const AjusteDeLey& f : m.analisis->ajustes) {
        std::vector<std::string> fila{std::string(f.ley->nombre)};
        for (double Bondad::*cual : {&Bondad::ks, &Bondad::ad, &Bondad::chi2, &Bondad::ppcc}) {
            fila.push_back(f.estimado.p ? Numero(f.bondad.*cual, 3) : "");
            fila.push_back(f.estimado.p && f.remuestreo.Hay() ? Numero(f.remuestreo.p.*cual, 3) : "");
        }
        for (double Criterios::*cual : {&Criterios::aic, &Criterios::aicc, &Criterios::bic})
            fila.push_back(f.estimado.p && std::isfinite(f.criterios.*cual) ? Numero(f.criterios.*cual, 1)
                                                                            : "");
        p.filas.push_back(std::move(fila));
    }
    return p;
}

forms::Planilla ParametrosDe(const TallerAjustes& m)
{
    forms::Planilla p{TitulosDe(m, "parámetros de las leyes"),
                      {{"Ley", true},
                       {"Parámetros", true},
                       {"Nota", true},
                       {"Fórmula", true},
                       {"Fuente", true},
                       {"Límites", true}},
                      {}};
    constexpr int Decimales = 5;
    for (const AjusteDeLey& f : m.analisis->ajustes) {
        std::string texto;
        for (std::size_t i = 0; f.estimado.p && i < f.ley->cuantos; ++i)
            texto += (i > 0 ? "; " : "") + std::string(f.ley->parametros[i].simbolo) + " = " +
                     Numero((*f.estimado.p)[i], Decimales);
        p.filas.push_back({std::string(f.ley->nombre), texto, f.estimado.nota, std::string(f.ley->formula),
                           std::string(f.ley->fuente), std::string(f.ley->limites)});
    }
    return p;
}

/// The order that the user chose stays while the columns do.
void PonTablas(TallerAjustes& m)
{
    forms::PonFilas(m.tblCuantiles, Cuantiles(m));
    forms::PonFilas(m.tblBondad, BondadDe(m));
    forms::PonFilas(m.tblParametros, ParametrosDe(m));
}

void PonGrafico(TallerAjustes& m, const dlgTaller& f)
{
    if (!m.analisis) {
        m.Grafico = {};
        return;
    }
    const AjusteDeLey* const suya = EnMano(m);
    constexpr int Diagrama = 2;
    m.Grafico =
        m.grafico == Diagrama
            ? GraficoDeDiagrama(*m.analisis, suya)
            : GraficoDePapel(*m.analisis, {.ejes = m.grafico == 0 ? Ejes::DeGumbel : Ejes::DeLogNormal,
                                           .enMano = suya,
                                           .sola = m.chkSola,
                                           .posicion = TallerDe(f).posicion});
    m.Grafico.titulo = std::string(GraficosDeAjustes[static_cast<std::size_t>(m.grafico)]) + ", " +
                       std::string(NombreDe(m.analisis->metodo)) + "\n" + m.temaDelAnalisis;
}

/// Shows an analysis; the law in hand is the one chosen, or the one recommended, where none has been.
void Pon(TallerAjustes& m, const dlgTaller& f, Analisis analisis)
{
    const bool primero = !m.analisis;
    m.analisis = std::move(analisis);
    m.temaDelAnalisis = TemaDe(f);
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    const Ley* deEntrada = s != nullptr ? LeyDeClave(s->ley) : nullptr;
    if (deEntrada == nullptr) deEntrada = m.analisis->recomendacion.ley;
    for (std::size_t i = 0; primero && i < Leyes().size(); ++i)
        if (Leyes()[i] == deEntrada) m.enMano = static_cast<int>(i);
    m.lblRecomendacion = m.analisis->recomendacion.motivo;
    PonTablas(m);
    PonGrafico(m, f);
}

std::string ElegidaEnPalabras(const TallerAjustes& m, const study::SerieDeMaximos* s)
{
    if (s == nullptr || s->ley.empty()) return "Los pasos 4 y 5 esperan que elija una ley.";
    for (const Metodo metodo : Metodos)
        if (s->metodo == ClaveDe(metodo))
            return metodo == Metodos[static_cast<std::size_t>(m.metodo)]
                       ? "Ajustada por " + std::string(NombreDe(metodo)) + "."
                       : "Se eligió ajustada por " + std::string(NombreDe(metodo)) +
                             "; las tablas muestran otro método.";
    return {};
}

bool AsientaAsimetria(TallerAjustes& m, dlgTaller& f, const model::Siro& s, std::string_view control)
{
    const bool asimetria = control == ReglaAsimetria.control;
    std::string& texto = asimetria ? m.txtAsimetria : m.txtEcm;
    const bool vacia = asimetria && texto.find_first_not_of(' ') == std::string::npos;
    if (!vacia && !forms::AlSalir(s, asimetria ? ReglaAsimetria : ReglaEcm, texto)) return false;
    Cambia(f, asimetria ? "Asimetría regional" : "Error de la asimetría", [&](study::Taller& t) {
        study::SerieDeMaximos& serie = SerieDe(f, t);
        if (!asimetria)
            serie.ecmAsimetria = *forms::NumeroDeCampo(texto);
        else if (vacia)
            serie.asimetria.reset();
        else
            serie.asimetria = *forms::NumeroDeCampo(texto);
    });
    return true;
}

}  // namespace

TallerAjustes NuevaTallerAjustes()
{
    TallerAjustes m;
    for (const Metodo metodo : Metodos)
        m.metodos.emplace_back(NombreDe(metodo));
    for (const FilaPosicion& p : Posiciones)
        m.posiciones.emplace_back(p.nombre);
    for (const FilaBajos& b : TratosDeBajos)
        m.tratos.emplace_back(b.nombre);
    m.ajustadas.assign(Leyes().size(), true);
    m.elegibles.emplace_back("(ninguna)");
    for (const Ley* const ley : Leyes()) {
        m.leyes.emplace_back(ley->nombre);
        m.elegibles.emplace_back(ley->nombre);
    }
    m.graficos.assign(GraficosDeAjustes.begin(), GraficosDeAjustes.end());
    return m;
}

bool Toma(TallerAjustes& m, const dlgTaller& f)
{
    const study::Taller& t = TallerDe(f);
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    m.txtSemilla = std::to_string(t.semilla);
    m.txtMuestras = std::to_string(t.remuestras);
    m.txtMotivo = s != nullptr ? s->motivo : std::string();
    m.txtAsimetria = s != nullptr && s->asimetria ? TextoDe(*s->asimetria) : std::string();
    m.txtEcm = s != nullptr ? TextoDe(s->ecmAsimetria) : std::string();
    const int posicionDeAntes = m.posicion;
    m.posicion = m.bajos = -1;
    for (std::size_t i = 0; i < Posiciones.size(); ++i)
        if (Posiciones[i].a == t.posicion) m.posicion = static_cast<int>(i);
    for (std::size_t i = 0; s != nullptr && i < TratosDeBajos.size(); ++i)
        if (TratosDeBajos[i].clave == s->bajos) m.bajos = static_cast<int>(i);
    if (m.posicion != posicionDeAntes) PonGrafico(m, f);
    m.elegida = 0;
    for (std::size_t i = 0; s != nullptr && i < Leyes().size(); ++i)
        if (Leyes()[i]->clave == s->ley) m.elegida = static_cast<int>(i) + 1;
    m.lblElegida = ElegidaEnPalabras(m, s);
    const bool otraSerie = s != nullptr && s->maximos != m.pedido.maximos;
    for (std::size_t i = 0; otraSerie && i < Metodos.size(); ++i)
        if (s->metodo == ClaveDe(Metodos[i])) m.metodo = static_cast<int>(i);
    if (s == nullptr || !FaltanMaximos(f).empty()) return false;
    if (PedidoDe(m, *s, t) == m.pedido && m.estado != Estado::Nada) return false;
    if (otraSerie) m.tblCuantiles.columnaOrden = -1;
    return true;
}

void Empieza(TallerAjustes& m, const dlgTaller& f)
{
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (s == nullptr) return;
    m.pedido = PedidoDe(m, *s, TallerDe(f));
    m.estado = Estado::Ajustando;
    m.avance = {};
    m.lblElegida = ElegidaEnPalabras(m, s);
    m.lblEstado = m.analisis ? "Recalculando: lo que se ve es de antes." : "Ajustando las leyes...";
}

void TomaAjustes(TallerAjustes& m, const dlgTaller& f, Analisis analisis)
{
    Pon(m, f, std::move(analisis));
    m.estado = Estado::Remuestreando;
    m.lblEstado = "Faltan bandas y p.";
}

void TomaCompleto(TallerAjustes& m, const dlgTaller& f, Analisis analisis)
{
    Pon(m, f, std::move(analisis));
    m.estado = Estado::Completo;
    m.lblEstado = m.pedido.muestras > 0 ? "" : "Sin remuestreo: no hay bandas ni p.";
}

void Cancela(TallerAjustes& m)
{
    if (m.estado == Estado::Completo || m.estado == Estado::Nada) return;
    m.lblEstado = m.estado == Estado::Ajustando ? "Cancelado: lo que se ve es de antes."
                                                : "Cancelado: faltan bandas y p.";
    m.estado = Estado::SinBandas;
}

void cmbMetodo_Click(TallerAjustes& m, int cual)
{
    m.metodo = cual;
}

void cmdLeyes_Click(TallerAjustes& m, std::size_t ley, bool tildada)
{
    m.ajustadas[ley] = tildada;
    if (std::find(m.ajustadas.begin(), m.ajustadas.end(), true) == m.ajustadas.end()) m.ajustadas[ley] = true;
}

bool txtNumero_AlSalir(TallerAjustes& m, dlgTaller& f, const model::Siro& s, std::string_view control)
{
    if (control == ReglaAsimetria.control || control == ReglaEcm.control)
        return AsientaAsimetria(m, f, s, control);
    const bool semilla = control == ReglaSemilla.control;
    std::string& texto = semilla ? m.txtSemilla : m.txtMuestras;
    if (!forms::AlSalir(s, semilla ? ReglaSemilla : ReglaMuestras, texto)) return false;
    const double x = *forms::NumeroDeCampo(texto);
    Cambia(f, semilla ? "Semilla" : "Número de muestras", [&](study::Taller& t) {
        if (semilla)
            t.semilla = static_cast<std::uint64_t>(x);
        else
            t.remuestras = static_cast<int>(x);
    });
    return true;
}

void cmbPosicion_Click(dlgTaller& f, int cual)
{
    Cambia(f, "Posiciones en el papel",
           [&](study::Taller& t) { t.posicion = Posiciones.at(static_cast<std::size_t>(cual)).a; });
}

void cmbBajos_Click(dlgTaller& f, int cual)
{
    Cambia(f, "Valores bajos", [&](study::Taller& t) {
        SerieDe(f, t).bajos = TratosDeBajos.at(static_cast<std::size_t>(cual)).clave;
    });
}

bool TrataBajos(const TallerAjustes& m)
{
    return Metodos[static_cast<std::size_t>(m.metodo)] == Metodo::Momentos;
}

void cmbEnMano_Click(TallerAjustes& m, const dlgTaller& f, int cual)
{
    m.enMano = cual;
    if (!m.analisis) return;
    PonTablas(m);
    PonGrafico(m, f);
}

void cmbGrafico_Click(TallerAjustes& m, const dlgTaller& f, int cual)
{
    m.grafico = cual;
    PonGrafico(m, f);
}

void chkSola_Click(TallerAjustes& m, const dlgTaller& f, bool tildada)
{
    m.chkSola = tildada;
    PonGrafico(m, f);
}

void cmbElegida_Click(const TallerAjustes& m, dlgTaller& f, int cual)
{
    Cambia(
        f,
        cual > 0 ? "Elegir " + m.elegibles[static_cast<std::size_t>(cual)] : std::string("Sin ley elegida"),
        [&](study::Taller& t) {
            study::SerieDeMaximos& s = SerieDe(f, t);
            s.ley = cual > 0 ? Leyes()[static_cast<std::size_t>(cual) - 1]->clave : std::string_view();
            s.metodo = cual > 0 ? ClaveDe(Metodos[static_cast<std::size_t>(m.metodo)]) : std::string_view();
        });
}

bool txtMotivo_AlSalir(const TallerAjustes& m, dlgTaller& f)
{
    Cambia(f, "Motivo de la ley elegida", [&](study::Taller& t) { SerieDe(f, t).motivo = m.txtMotivo; });
    return true;
}

void cmdRecomendada(const TallerAjustes& m, dlgTaller& f)
{
    if (!m.analisis || m.analisis->recomendacion.ley == nullptr) return;
    const Recomendacion& r = m.analisis->recomendacion;
    Cambia(f, "Elegir " + std::string(r.ley->nombre), [&](study::Taller& t) {
        study::SerieDeMaximos& s = SerieDe(f, t);
        s.ley = r.ley->clave;
        s.metodo = ClaveDe(m.analisis->metodo);
        s.motivo = r.motivo;
    });
}

forms::Cuadro& EnFicha(TallerAjustes& m)
{
    return m.ficha == 0 ? m.tblCuantiles : m.ficha == 1 ? m.tblBondad : m.tblParametros;
}

}  // namespace frequency
