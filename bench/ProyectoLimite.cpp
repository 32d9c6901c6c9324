// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProyectoLimite.h"

#include <chrono>
#include <cmath>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "model/ArchivoConf.h"
#include "model/ArchivosTormenta.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Numeros.h"
#include "model/TablasEmbalse.h"
#include "model/Texto.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using model::Siro;

constexpr int Filas = 20;           // rows of each table
constexpr double Fondo = 100;       // lowest height of a table [m]
constexpr double Profundidad = 20;  // [m]
constexpr float AlturaInicial = 100.5F;
constexpr float N0Dur = 81;  // simulated beyond the storm's end [min]
constexpr float PasoQ = 5;   // the output step that the Muskingum coefficients must suit [min]

/// Numbers between two bounds, with few decimals so that a file gives them back exactly; the same on every
/// machine.
class Azar {
  public:
    float Entre(double menor, double mayor, double paso)
    {
        const double x = menor + (mayor - menor) * (static_cast<double>(generador()) / 4294967296.0);
        return static_cast<float>(std::nearbyint(x / paso) * paso);
    }

  private:
    std::mt19937 generador{20240229};
};

std::string Nombre(char clase, int n)
{
    std::string nombre{clase, '-'};
    return nombre + static_cast<char>('0' + n / 10) + static_cast<char>('0' + n % 10);
}

/// Nodes upstream of each node, itself included.
std::vector<int> NudosAguasArriba(int nudos)
{
    std::vector<int> cuenta(static_cast<std::size_t>(nudos), 1);
    for (std::size_t i = cuenta.size() - 1; i > 0; --i)
        cuenta[(i - 1) / 2] += cuenta[i];
    return cuenta;
}

int PrimeroConRepresa(int nudos)
{
    return nudos - nudos * 2 / 7;
}

/// The three coefficients, each rounded to 32 bits, add up to exactly 1: a run refuses any other reach.
bool SumanUno(float K, float x)
{
    const double den = static_cast<float>(double{K} - double{K} * x + 0.5 * PasoQ);
    const auto c0 = static_cast<float>((0.5 * PasoQ - double{K} * x) / den);
    const auto c1 = static_cast<float>((double{K} * x + 0.5 * PasoQ) / den);
    const auto c2 = static_cast<float>((double{K} - double{K} * x - 0.5 * PasoQ) / den);
    return static_cast<float>(double{c0} + c1 + c2) == 1;
}

model::Cauce TramoDeNudo(Azar& azar, int i)
{
    model::Cauce cauce;
    cauce.numCauce = static_cast<std::int16_t>(i + 1);
    cauce.NombreCauce = Nombre('c', i + 1);
    cauce.Cauce_aa = Nombre('l', i + 1);
    cauce.VelMediaCauce = 2;
    cauce.LongCauce = azar.Entre(1500, 3000, 10);
    // K·x below half a step: no coefficient is negative, and no flow either.
    do {
        cauce.Cauce_k_Musk = azar.Entre(12, 25, 0.01);
        cauce.Cauce_n_Musk = azar.Entre(0.02, 0.1, 0.001);
    } while (!SumanUno(cauce.Cauce_k_Musk, cauce.Cauce_n_Musk));
    return cauce;
}

model::UEH UEHDeNudo(Azar& azar, int i, const Medidas& medidas)
{
    const bool conRepresa = i >= PrimeroConRepresa(medidas.nudos);
    model::UEH ueh;
    ueh.numUEH = static_cast<std::int16_t>(i + 1);
    ueh.NombreUEH = Nombre('u', i + 1);
    ueh.Cauce_aa = conRepresa ? Nombre('r', i - PrimeroConRepresa(medidas.nudos) + 1) : Nombre('c', i + 1);
    ueh.Metodo = "Directo";
    ueh.Area = azar.Entre(60, 100, 0.01);
    ueh.VelMedia = 0.2F;
    ueh.LongitudMax = azar.Entre(1120, 1140, 1);  // 93 to 95 min
    ueh.KostiakovA = azar.Entre(1.5, 2.5, 0.001);
    ueh.KostiakovB = azar.Entre(0.45, 0.55, 0.001);
    ueh.KostiakovI = azar.Entre(5, 15, 0.1);
    ueh.RetensionZ = azar.Entre(2, 8, 0.1);
    if (medidas.base) {
        ueh.Q0Recesion = azar.Entre(0.05, 0.3, 0.001);
        ueh.KRecesion = azar.Entre(20, 60, 0.1);
    }
    return ueh;
}

/// Height [m] of a row: closer together near the bottom, the more so the greater the exponent.
double AlturaSobreElFondo(int fila, double exponente)
{
    return Profundidad * std::pow(static_cast<double>(fila - 1) / (Filas - 1), exponente);
}

float Altura(double sobreElFondo)
{
    return static_cast<float>(Fondo + std::nearbyint(sobreElFondo * 1000) / 1000);
}

// Valleys that widen upwards, S = 4000 n h^1.8 with n nodes upstream; A = dS/dh, in hectares.
std::int32_t Volumen(int n, double h)
{
    return static_cast<std::int32_t>(4000.0 * n * std::pow(h, 1.8));
}
float Superficie(int n, double h)
{
    return static_cast<float>(1.8 * 4000 * n * std::pow(h, 0.8) / 10000);
}
// A weir: Q = 0.5 n h^1.5.
float Descarga(int n, double h)
{
    return static_cast<float>(0.5 * n * std::pow(h, 1.5));
}

void TablasDeLagos(Siro& s, const std::vector<int>& aguasArriba)
{
    const int lagos = s.Red.NroLagos();
    s.Red.LagoFilas.Dimensiona(lagos);
    for (auto* tabla : {&s.Red.LagoH, &s.Red.LagoA, &s.Red.LagoQ})
        tabla->Dimensiona(lagos, Filas + 1);
    s.Red.LagoS.Dimensiona(lagos, Filas + 1);
    for (int l = 1; l <= lagos; ++l) {
        s.Red.LagoFilas(l) = Filas;
        const int n = aguasArriba[static_cast<std::size_t>(l) - 1];
        for (int f = 1; f <= Filas; ++f) {
            const double h = AlturaSobreElFondo(f, 1.2);
            s.Red.LagoH(l, f) = Altura(h);
            s.Red.LagoA(l, f) = Superficie(n, h);
            s.Red.LagoS(l, f) = Volumen(n, h);
            s.Red.LagoQ(l, f) = Descarga(n, h);
        }
    }
}

void TablasDeRepresas(Siro& s)
{
    const int represas = s.Red.NroRepresas();
    s.Red.RepresaFilasHAS.Dimensiona(represas);
    s.Red.RepresaFilasHQ.Dimensiona(represas);
    for (auto* tabla : {&s.Red.RepresaH, &s.Red.RepresaA, &s.Red.RepresaQH, &s.Red.RepresaQQ})
        tabla->Dimensiona(represas, Filas + 1);
    s.Red.RepresaS.Dimensiona(represas, Filas + 1);
    for (int r = 1; r <= represas; ++r) {
        s.Red.RepresaFilasHAS(r) = s.Red.RepresaFilasHQ(r) = Filas;
        for (int f = 1; f <= Filas; ++f) {
            const double h = AlturaSobreElFondo(f, 1.1), hq = AlturaSobreElFondo(f, 1.3);
            s.Red.RepresaH(r, f) = Altura(h);
            s.Red.RepresaA(r, f) = Superficie(1, h);
            s.Red.RepresaS(r, f) = Volumen(1, h);
            s.Red.RepresaQH(r, f) = Altura(hq);
            s.Red.RepresaQQ(r, f) = Descarga(1, hq);
        }
    }
}

/// A place on the drawing [drawing units].
struct Lugar {
    double x = 0, y = 0;
};

/// Where the nodes stand: the outlet on the right, what drains to it further to the left, no two at one
/// height.
class Planta {
  public:
    explicit Planta(int nudos) : lugares(static_cast<std::size_t>(nudos)) { Ubica(0, 0); }
    [[nodiscard]] Lugar Boca(int i) const { return lugares[static_cast<std::size_t>(i)]; }
    /// Cabeza of the reach of a node.
    [[nodiscard]] Lugar Cabeza(int i) const { return {Boca(i).x - Tramo, Boca(i).y}; }

    static constexpr double Tramo = 48;  ///< length of a reach on the drawing

  private:
    void Ubica(std::size_t i, int profundidad)
    {
        constexpr double Borde = 760, PorNivel = 112, PorNudo = 11;
        if (i >= lugares.size()) return;
        Ubica(2 * i + 1, profundidad + 1);
        lugares[i] = {Borde - PorNivel * profundidad, 20 + PorNudo * rango++};
        Ubica(2 * i + 2, profundidad + 1);
    }
    std::vector<Lugar> lugares;
    int rango = 0;
};

/// The vertices of each reach, winding from its mouth to its head, and the icons of what drains to it.
void Dibuja(Siro& s, const Medidas& medidas)
{
    const int vertices = medidas.vertices;
    const Planta planta(medidas.nudos);
    s.Red.XVertice.Dimensiona(model::MaxCauces, vertices);
    s.Red.YVertice.Dimensiona(model::MaxCauces, vertices);
    std::int16_t par = 1;
    for (auto& cauce : s.Red.ColCauces) {
        cauce.numVertices = static_cast<std::int16_t>(vertices);
        cauce.IndiceParInicial = par;
        par = static_cast<std::int16_t>(par + vertices);
        s.Red.NroVertices(cauce.numCauce) = cauce.numVertices;
        const Lugar boca = planta.Boca(cauce.numCauce - 1);
        for (int v = 1; v <= vertices; ++v) {
            const double parte = static_cast<double>(v - 1) / (vertices - 1);
            s.Red.XVertice(cauce.numCauce, v) = static_cast<float>(boca.x - Planta::Tramo * parte);
            s.Red.YVertice(cauce.numCauce, v) = static_cast<float>(boca.y + 2 * std::sin(parte * 6.25));
        }
    }
}

void DibujaIconos(Siro& s, const Medidas& medidas)
{
    constexpr double PasoDeIcono = 16;
    const Planta planta(medidas.nudos);
    const auto pon = [](float& x, float& y, Lugar lugar) {
        x = static_cast<float>(lugar.x);
        y = static_cast<float>(lugar.y);
    };
    const int conRepresa = PrimeroConRepresa(medidas.nudos);
    for (int i = 0; i < medidas.nudos; ++i) {
        const Lugar cabeza = planta.Cabeza(i);
        const bool represa = i >= conRepresa;
        model::UEH& u = s.Red.UEHs(i + 1);
        model::Lago& l = s.Red.Lagos(i + 1);
        const double lejos = represa ? 2 : 1;
        pon(u.IconoUEHx, u.IconoUEHy, {cabeza.x - lejos * PasoDeIcono, cabeza.y - 7});
        pon(u.XCauce, u.YCauce, cabeza);
        pon(l.IconoLAGOx, l.IconoLAGOy, {planta.Boca(i).x + 4, planta.Boca(i).y});
        pon(l.XCauce, l.YCauce, i == 0 ? Lugar{} : planta.Cabeza((i - 1) / 2));
        if (!represa) continue;
        model::Represa& r = s.Red.Represas(i - conRepresa + 1);
        pon(r.IconoRepresaX, r.IconoRepresaY, {cabeza.x - PasoDeIcono, cabeza.y - 7});
        pon(r.XCauce, r.YCauce, cabeza);
    }
}

void ArmaSerie(Siro& s)
{
    const TormentaLimite tormenta;
    for (auto* tabla : {&s.TablasDeLluvia.TablasP, &s.TablasDeLluvia.TablasD, &s.TablasDeLluvia.TablasR})
        tabla->Dimensiona(4, TormentasDeLaSerie + 1);
    s.TablasDeLluvia.NroFilasTabla = {TormentasDeLaSerie, 0, 0, 0};
    for (std::int16_t n = 1; n <= TormentasDeLaSerie; ++n) {
        s.TablasDeLluvia.TablasP(0, n) = model::Entero16(tormenta.pp * (0.5 + n / 999.0));
        s.TablasDeLluvia.TablasD(0, n) = tormenta.dur;
        s.TablasDeLluvia.TablasR(0, n) = n;
    }
}

void ArmaConfiguracion(Siro& s, const std::string& dir)
{
    s.Proyecto.NombreProyecto = NombreProyecto;
    s.Pasos.N0Dur = N0Dur;
    auto& c = s.frmConfigura;
    c.TextProyecto = "Red en los límites del programa";
    c.Dir1 = dir;
    c.lblMiArchivoConf = std::string(NombreProyecto) + "_Conf.vlm";
    c.txtN0Dur = model::NumeroATexto(N0Dur);
    c.CheckR.fill(1);
    c.CheckD.fill(1);
}

}  // namespace

void ArmaRed(Siro& s, const Medidas& medidas)
{
    Azar azar;
    const auto aguasArriba = NudosAguasArriba(medidas.nudos);
    const int conRepresa = PrimeroConRepresa(medidas.nudos);
    for (int i = 0; i < medidas.nudos; ++i) {
        s.Red.ColUEHs.Agrega(UEHDeNudo(azar, i, medidas));
        s.Red.ColCauces.Agrega(TramoDeNudo(azar, i));
        model::Lago lago;
        lago.numLAGO = static_cast<std::int16_t>(i + 1);
        lago.NombreLAGO = Nombre('l', i + 1);
        lago.Metodo = medidas.metodo;
        lago.Lago_k_Musk = 30;
        lago.HInicialEmb = AlturaInicial;
        lago.Cauce_aa = i == 0 ? "0" : Nombre('c', (i - 1) / 2 + 1);
        s.Red.ColLagos.Agrega(lago);
        if (i < conRepresa) continue;
        model::Represa represa;
        represa.numRepresa = static_cast<std::int16_t>(i - conRepresa + 1);
        represa.NombreRepresa = Nombre('r', represa.numRepresa);
        represa.Metodo = medidas.metodo;
        represa.optTabla = true;
        represa.Represa_k_Musk = 30;
        represa.HInicialEmb = AlturaInicial;
        represa.Cauce_aa = Nombre('c', i + 1);
        s.Red.ColRepresas.Agrega(represa);
    }
    TablasDeLagos(s, aguasArriba);
    TablasDeRepresas(s);
    Dibuja(s, medidas);
    DibujaIconos(s, medidas);
}

void PonTormenta(Siro& s, const TormentaLimite& tormenta)
{
    s.Tormenta.FormaPp = model::FormaLluvia::Escrita;
    s.Tormenta.PpTormenta = tormenta.pp;
    s.Tormenta.DurTormenta = tormenta.dur;
    s.Tormenta.DistriPp = tormenta.distribucion;
    s.Pasos.PasoPp = tormenta.pasoPp;
    s.Pasos.PasoQ = tormenta.pasoQ;
}

void GuardaProyecto(const std::string& dir, const Medidas& medidas)
{
    if (medidas.nudos < 1 || medidas.nudos > model::MaxUEHs)
        throw std::runtime_error("A project has 1 to 70 nodes");
    if (medidas.vertices < 2 || medidas.vertices > model::MaxNroVertices)
        throw std::runtime_error("A reach has 2 to 100 vertices");
    fs::create_directories(dir);
    const std::string absoluto = fs::canonical(dir).string();
    Siro s;
    s.Proyecto.DirTrabajo = s.Proyecto.DirProyecto = absoluto;
    s.Anfitrion.Avisa = [](const model::Mensaje& m) {
        if (m.texto.starts_with("Error")) throw std::runtime_error(m.texto);
    };
    try {
        ArmaRed(s, medidas);
        ArmaSerie(s);
        ArmaConfiguracion(s, absoluto);
        model::GuardaTablaPDRs(s);
        model::GuardaTablaHSVRepresa(s);
        model::GuardaTablaHQRepresa(s);
        model::GuardaTablaHSVQLago(s);
        model::cmdAplicar(s);
        model::GuardaRed(s);
    } catch (const model::Falla& falla) {
        throw std::runtime_error(std::string(model::DescripcionFalla(falla.numero)) + ": " + absoluto);
    }
}

Siro ProyectoAbierto(const std::string& dir)
{
    Siro s;
    s.Proyecto.DirTrabajo = s.Proyecto.DirProyecto = fs::canonical(dir).string();
    s.Proyecto.NombreProyecto = NombreProyecto;
    PonTormenta(s);
    return s;
}

ProyectoTemporal::ProyectoTemporal(const Medidas& medidas)
{
    static constexpr std::string_view Prefijo = "siro-bench-";
    const auto ahora = std::chrono::steady_clock::now().time_since_epoch().count();
    std::random_device azar;
    dir =
        (fs::temp_directory_path() / (std::string(Prefijo) + std::to_string(ahora) + std::to_string(azar())))
            .string();
    GuardaProyecto(dir, medidas);
}

ProyectoTemporal::~ProyectoTemporal()
{
    std::error_code error;
    fs::remove_all(dir, error);
}

}  // namespace bench
