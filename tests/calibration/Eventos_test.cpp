// SPDX-License-Identifier: GPL-3.0-or-later
//
// The delivered projects of observed floods: what they hold is what was published. Depths in inches, flows in
// cubic feet per second, runoff accumulated in inches as the tables print them.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "calibration/Calibra.h"
#include "calibration/CrecidasDeMuestra.h"
#include "calibration/Juicio.h"
#include "calibration/Puntajes.h"
#include "runs/ModeloDe.h"

namespace calibration {
namespace {

using pruebas::CrecidasDeMuestra;

constexpr double MmPorPulgada = 25.4;
constexpr double M3sPorCfs = 0.3048 * 0.3048 * 0.3048;
constexpr double M2PorMilla2 = 1609.344 * 1609.344;

/// Volume under the readings, straight between them [m3].
double Volumen(const std::vector<study::Punto>& puntos)
{
    double volumen = 0;
    for (std::size_t i = 1; i < puntos.size(); ++i)
        volumen +=
            (puntos[i].valor + puntos[i - 1].valor) / 2 * (puntos[i].minuto - puntos[i - 1].minuto) * 60;
    return volumen;
}

const study::Punto& Pico(const std::vector<study::Punto>& puntos)
{
    return *std::max_element(puntos.begin(), puntos.end(),
                             [](const auto& a, const auto& b) { return a.valor < b.valor; });
}

struct Impreso {
    std::string evento;
    double lluvia;       ///< [in], the last of the accumulated depths
    int paso;            ///< that the rain is cut by [min]
    double escorrentia;  ///< [in], accumulated between the first and the last reading taken
    double pico;         ///< [cfs]
    double minuto;       ///< of the peak, by the clocks of both tables
    std::size_t lecturas;
};

/// USGS, Open-File Report 2004-1035, station 08055700.
const std::vector<Impreso> Bachman{
    {"17/06/1966", 1.85, 5, 0.5209 - 0.0032, 1100, 136, 26},
    {"07/06/1974", 3.05, 15, 0.9799 - 0.0010, 2730, 136, 48},
    {"18/06/1976", 1.80, 15, 0.4585 - 0.0029, 2340, 225, 21},
    {"12/06/1977", 3.31, 15, 0.8121 - 0.0012, 3740, 150, 32},
};

TEST(Eventos, LosDeBachmanSonLosQueElServicioGeologicoPublico)
{
    for (const char* const proyecto : {"Bachman", "BachmanTres"}) {
        CrecidasDeMuestra m(proyecto);
        ASSERT_EQ(m.ajuste.eventos.size(), Bachman.size());
        for (std::size_t i = 0; i < Bachman.size(); ++i) {
            const Impreso& impreso = Bachman[i];
            const study::Evento& evento = m.ajuste.eventos[i];
            EXPECT_EQ(evento.nombre, impreso.evento);
            const model::TormentaReal tormenta = m.Tormenta(evento);
            EXPECT_EQ(tormenta.PasoPpReal, impreso.paso);
            EXPECT_NEAR(m.s.Tormenta.PpTormenta, impreso.lluvia * MmPorPulgada, 0.001) << impreso.evento;
            ASSERT_EQ(evento.observaciones.size(), 1u);
            const auto& puntos = evento.observaciones[0].puntos;
            EXPECT_EQ(puntos.size(), impreso.lecturas);
            EXPECT_NEAR(Pico(puntos).valor, impreso.pico * M3sPorCfs, 5e-5) << impreso.evento;
            EXPECT_EQ(Pico(puntos).minuto, impreso.minuto) << impreso.evento;
            const double pulgadas = Volumen(puntos) / (10.0 * M2PorMilla2) * 1000 / MmPorPulgada;
            EXPECT_NEAR(pulgadas, impreso.escorrentia, 0.003) << impreso.evento;
        }
    }
}

TEST(Eventos, LosDeWeisseritzSonLosDelPaquete)
{
    CrecidasDeMuestra m("Weisseritz");
    ASSERT_EQ(m.ajuste.eventos.size(), 2u);
    const std::vector<double> lluvia{34.1, 53.0}, pico{1.173, 2.335};
    const std::vector<std::size_t> horas{89, 75};
    for (std::size_t i = 0; i < 2; ++i) {
        m.Tormenta(m.ajuste.eventos[i]);
        EXPECT_NEAR(m.s.Tormenta.PpTormenta, lluvia[i], 1e-4);
        const auto& puntos = m.ajuste.eventos[i].observaciones.at(0).puntos;
        EXPECT_EQ(puntos.size(), horas[i]);
        EXPECT_EQ(Pico(puntos).valor, pico[i]);
    }
    // The page estimates the area from the first flood, for a runoff of 0.7 of the rain: 3.368 km2.
    double suma = 0;
    for (const study::Punto& p : m.ajuste.eventos[0].observaciones[0].puntos)
        suma += p.valor;
    EXPECT_NEAR(suma * 3600 / (0.7 * 34.1 / 1000) / 1e6, 3.368, 0.0005);
}

TEST(Eventos, LasRedesTienenElAreaPublicadaYUnaSolaSalida)
{
    const std::vector<std::pair<std::string, double>> proyectos{
        {"Bachman", 2590.0}, {"BachmanTres", 2590.0}, {"Weisseritz", 340.0}};
    for (const auto& [proyecto, area] : proyectos) {
        CrecidasDeMuestra m(proyecto);
        EXPECT_TRUE(m.anfitrion->Avisos().empty());
        double suma = 0;
        for (const model::UEH& u : m.s.Red.ColUEHs)
            suma += double{u.Area};
        EXPECT_NEAR(suma, area, 0.2);
        EXPECT_EQ(m.s.Red.NroUEHs(), proyecto == "BachmanTres" ? 3 : 1);
        EXPECT_EQ(m.s.Red.NroCauces(), m.s.Red.NroUEHs() + 1);
        EXPECT_EQ(m.ajuste.eventos[0].observaciones[0].componente, m.s.Red.ColCauces.Item(1).NombreCauce);
    }
}

TEST(Eventos, ElEstudioEntregadoDiceFuenteYCondicionesYSeEscribeComoSeLeyo)
{
    for (const char* const proyecto : {"Bachman", "BachmanTres", "Weisseritz"}) {
        CrecidasDeMuestra m(proyecto);
        for (const study::Evento& e : m.ajuste.eventos) {
            EXPECT_NE(e.observaciones[0].fuente, "");
            const bool libre = e.observaciones[0].fuente.find("dominio público") != std::string::npos ||
                               e.observaciones[0].fuente.find("GPL") != std::string::npos;
            EXPECT_TRUE(libre) << e.observaciones[0].fuente;
            EXPECT_EQ(e.resto, "") << "a key that the program doesn't know";
        }
        EXPECT_EQ(study::ReparoDe(m.ajuste), "");
        m.Tormenta(m.ajuste.eventos[0]);
        const runs::Modelo modelo{.red = m.s.Red,
                                  .tablas = {},
                                  .lluvias = {{.tormenta = m.s.Tormenta, .pasos = m.s.Pasos}},
                                  .parametros = m.ajuste.parametros};
        EXPECT_EQ(runs::ReparosDe(modelo), std::vector<std::string>{});
        const study::LecturaDeEstudio otra =
            study::LeeEstudio(study::EscribeEstudio(study::Estudio{.ajuste = m.ajuste}));
        EXPECT_EQ(otra.motivo, "");
        EXPECT_EQ(otra.estudio.ajuste.parametros, m.ajuste.parametros);
        for (const auto& [archivo, texto] : study::EscribeSeries(m.ajuste))
            EXPECT_EQ(texto, m.s.Disco.Lee(study::RutaDeSerie(model::Ruta(m.s.Proyecto.DirProyecto, proyecto),
                                                              archivo)));
    }
}

// The page fits a cascade of n reservoirs of k hours to the first flood, on all rain over 3.4 km2 and the
// first flow: "n 0.41 k 244.9 NSE 0.74 psi 0.45".
TEST(Eventos, ElModeloDelPaqueteTieneEnSuCrecidaElPuntajeQueDice)
{
    CrecidasDeMuestra m("Weisseritz");
    const study::Evento& evento = m.ajuste.eventos[0];
    m.Tormenta(evento);
    constexpr double n = 0.41, k = 244.9, M3sPorMm = 3.4 * 1000 / 3600;
    const auto& puntos = evento.observaciones[0].puntos;
    const double base = puntos[0].valor;
    std::vector<Par> pares;
    double directa = 0;
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        double q = base;
        for (std::size_t j = 0; j <= i && static_cast<int>(j) < m.s.Tormenta.NroPpReal; ++j) {
            const auto t = static_cast<double>(i - j + 1);
            q += M3sPorMm * double{m.s.Tormenta.PpReal(static_cast<int>(j) + 1)} * std::pow(t, n - 1) /
                 std::pow(k, n) / std::tgamma(n) * std::exp(-t / k);
        }
        pares.push_back({.minuto = puntos[i].minuto, .simulado = q, .observado = puntos[i].valor});
        directa += puntos[i].valor - base;
    }
    EXPECT_NEAR(PuntajeDe("nse")->valor(pares).value(), 0.74, 0.005);
    EXPECT_NEAR(directa / (M3sPorMm * 34.1), 0.45, 0.005);
}

// --- how well they are fitted ---

/// A delivered project as a task: one event is fitted, the others show what that is worth.
struct PorAjustar : CrecidasDeMuestra {
    PorAjustar(const std::string& proyecto, const std::string& crecida) : CrecidasDeMuestra(proyecto)
    {
        for (study::Evento& e : ajuste.eventos) {
            runs::LluviaPuesta puesta = runs::LluviaDe(s, e);
            EXPECT_EQ(puesta.motivo, "");
            pedido.modelo.lluvias.push_back(std::move(puesta.lluvia));
            e.papel = e.nombre == crecida ? "calibra" : "valida";
        }
        pedido.modelo.red = s.Red;
        pedido.modelo.parametros = ajuste.parametros;
        pedido.eventos = ajuste.eventos;
        pedido.como = ajuste.calibracion;
        EXPECT_EQ(ReparosDe(pedido), std::vector<std::string>{});
    }
    void Fija(const std::vector<std::string>& campos)
    {
        std::erase_if(pedido.modelo.parametros, [&](const study::Parametro& p) {
            return std::find(campos.begin(), campos.end(), p.campo) != campos.end();
        });
    }
    /// Nash-Sutcliffe of a set of values in an event.
    [[nodiscard]] double Nse(const std::vector<double>& valores, std::size_t evento) const
    {
        runs::Corredor corredor(pedido.modelo);
        const runs::Lluvia& lluvia = pedido.modelo.lluvias[evento];
        const Emparejados e = ParesDe(corredor.Corre(valores, evento), lluvia.pasos,
                                      EnCaudal(pedido.eventos[evento].observaciones[0]));
        return PuntajeDe("nse")->valor(e.pares).value_or(-99);
    }
    PedidoDeCalibracion pedido{};
};

/// A row of docs/eventos.md, texts as they stand there.
struct Renglon {
    std::string proyecto, crecida;
    std::vector<std::string> valores;
    std::string nse;
    std::string enOtra{};  ///< in the third flood
};
const std::vector<Renglon> Hallados{
    {"Bachman",
     "17/06/1966",
     {"1.373486", "5.803918", "0.57835", "222.78", "3.255", "1.391348", "72.26026"},
     "0.953"},
    {"BachmanTres",
     "17/06/1966",
     {"1.226804", "7.952822", "0.53722", "239.73", "2.82", "1.327607", "70.80537"},
     "0.937"},
    {"Weisseritz",
     "Crecida 1",
     {"0.6093212", "1.690134", "0.41761", "126.42", "10.539", "4.94135", "683.7709"},
     "0.967"},
    {"Bachman", "07/06/1974", {"1.519844", "7.546077", "11.82", "1.277063", "30.26897"}, "0.989", "0.926"},
};

TEST(Eventos, LosParametrosDeLaPaginaDanLosPuntajesQueDice)
{
    const std::string pagina = model::DiscoDelSistema().Lee(SIRO_DATA_DIR "/../docs/eventos.md");
    for (const Renglon& r : Hallados) {
        PorAjustar p(r.proyecto, r.crecida);
        if (r.valores.size() == 5) p.Fija({"kostiakov_b", "kostiakov_i"});
        std::vector<double> valores;
        std::string texto = "| `" + r.proyecto + "` | " + r.crecida;
        for (const std::string& v : r.valores) {
            valores.push_back(std::stod(v));
            texto += " | " + v;
        }
        texto += " | " + r.nse + (r.enOtra.empty() ? "" : " | " + r.enOtra) + " |\n";
        EXPECT_NE(pagina.find(texto), std::string::npos) << texto;
        const std::size_t cual = r.crecida == "07/06/1974" ? 1 : 0;
        EXPECT_NEAR(p.Nse(valores, cual), std::stod(r.nse), 0.001) << texto;
        if (!r.enOtra.empty()) {
            EXPECT_NEAR(p.Nse(valores, 2), std::stod(r.enOtra), 0.001) << texto;
        }
    }
}

/// The chapter of the tutorial says what each set does in the four floods.
TEST(Eventos, ElTutorialDiceLosPuntajesDeLosTresAjustes)
{
    const std::string pagina = model::DiscoDelSistema().Lee(SIRO_DATA_DIR "/Ayuda/tutorial.html");
    const std::vector<double> siete{1.378845, 29.931, 0.32527, 71.13, 15.24, 1.338888, 32.76159};
    const auto valoresDe = [](const Renglon& r) {
        std::vector<double> valores;
        for (const std::string& v : r.valores)
            valores.push_back(std::stod(v));
        return valores;
    };
    const std::vector<std::pair<std::string, std::vector<double>>> ajustes{
        {"Siete parámetros, ajustados a 1966", valoresDe(Hallados.front())},
        {"Siete parámetros, ajustados a 1974", siete},
        {"Cinco parámetros, ajustados a 1974", valoresDe(Hallados.back())}};
    for (const auto& [nombre, valores] : ajustes) {
        PorAjustar p("Bachman", "17/06/1966");
        if (valores.size() == 5) p.Fija({"kostiakov_b", "kostiakov_i"});
        std::string fila = "<tr><td>" + nombre + "</td>";
        for (std::size_t evento = 0; evento < 4; ++evento) {
            std::array<char, 16> texto{};
            std::snprintf(texto.data(), texto.size(), "%.2f", p.Nse(valores, evento));
            fila += std::string("<td>") + texto.data() + "</td>";
        }
        EXPECT_NE(pagina.find(fila + "</tr>"), std::string::npos) << fila;
    }
}

/// What comes with the projects, as it comes.
TEST(Eventos, LaTareaEntregadaLlegaALosPuntajesDeLaPagina)
{
    for (const auto& [proyecto, crecida, nse] :
         {std::tuple{"Bachman", "17/06/1966", 0.953}, std::tuple{"Weisseritz", "Crecida 1", 0.967}}) {
        const PorAjustar p(proyecto, crecida);
        EXPECT_EQ(p.pedido.eventos[0].papel, "calibra");
        const auto hallado = Calibra(p.pedido);
        ASSERT_TRUE(hallado);
        EXPECT_GT(hallado->Puntaje(), nse - 0.005) << proyecto;
    }
}

TEST(Eventos, ConMenosParametrosSeAjustaIgualYLaCrecidaDe1976SaleMejor)
{
    PorAjustar p("Bachman", "07/06/1974");
    p.Fija({"kostiakov_b", "kostiakov_i"});
    p.pedido.como.corridas = 2000;
    const auto hallado = Calibra(p.pedido);
    ASSERT_TRUE(hallado);
    EXPECT_GT(hallado->Puntaje(), 0.98);
    EXPECT_GT(p.Nse(hallado->Mejor(), 2), 0.85);
    // Only how much the surface keeps is left open.
    for (const Hallado& h : hallado->parametros) {
        EXPECT_TRUE(h.identificable || h.nombre.find("retencion_z") != std::string::npos) << h.nombre;
    }
}

}  // namespace
}  // namespace calibration
