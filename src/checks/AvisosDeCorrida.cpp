// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/AvisosDeCorrida.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "checks/Rebose.h"
#include "checks/ReglasDeAvisos.h"
#include "engine/Muskingum.h"
#include "hydraulics/mdlFQs.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"

namespace checks {

namespace {

std::string Cifra(double x, int decimales = 2)
{
    return model::NumeroATexto(model::Redondea(x, decimales));
}
std::string Minutos(double m)
{
    return Cifra(m, 1) + " min";
}
std::string M3(double v)
{
    return Cifra(v, 0) + " m3";
}

/// What a rule looks at.
struct Caso {
    const Corrido& c;
    const Balance& balance;  ///< empty where there are no results
    const PideTiempo& tiempo;
};

class Anota;

/// The search for what a rule is about, by the rule's number.
struct Busqueda {
    int numero;
    void (*busca)(const Caso& caso, const Anota& anota);
};

/// Where a rule puts its findings. Words of its own stand in place of the rule's.
class Anota {
  public:
    Anota(const ReglaDeAviso& laRegla, std::vector<HallazgoMedido>& losHallados)
        : regla(laRegla), hallados(losHallados)
    {
    }
    void operator()(std::string_view componente, std::string cuanto, double magnitud,
                    std::string_view remedio = {}) const
    {
        hallados.push_back({{regla.gravedad, regla.numero, std::string(componente), std::string(regla.que),
                             std::move(cuanto), std::string(remedio.empty() ? regla.remedio : remedio)},
                            magnitud});
    }

  private:
    const ReglaDeAviso& regla;
    std::vector<HallazgoMedido>& hallados;
};

// --- how long it was run ---

std::string CuantoMas(const TiempoAgregado& t, float pico, int fila, float ahora)
{
    const double otro = double{t.picos[static_cast<std::size_t>(fila)]};
    const std::string mas = pico > 0 ? " (" + Cifra(100 * (otro / pico - 1), 1) + " % más)" : "";
    return "; faltan " + Minutos(double{t.minutos} - ahora) + ": con ellos, " + Cifra(otro) + " m3/s" + mas;
}

void PicosAlFinal(const Caso& caso, const Anota& anota)
{
    const model::Resultados& r = caso.c.r();
    std::optional<TiempoAgregado> t;
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.fila == 0 || !PicoAlFinal(r, comp.fila)) continue;
        if (!t && caso.tiempo) t = caso.tiempo();
        const float pico = r.QMax(comp.fila, 1), ahora = caso.c.pasos.N0Dur;
        std::string cuanto = "último caudal, " + Cifra(double{pico}) + " m3/s";
        if (t && t->alcanza) cuanto += CuantoMas(*t, pico, comp.fila, ahora);
        anota(comp.nombre, cuanto, double{pico}, t ? RemedioDePico(*t, ahora) : std::string{});
    }
}

void AguaCortada(const Caso& caso, const Anota& anota)
{
    const RenglonBalance& b = caso.balance.cuenca;
    const double parte = b.entra > 0 ? 100 * b.cortado / b.entra : 0;
    if (parte > Valor(Umbral::CortadoAlFinal))
        anota({}, M3(b.cortado) + ", el " + Cifra(parte, 1) + " % de lo que entra", parte);
}

// --- Represas and Lagos ---

void CadaEmbalse(const Caso& caso, auto&& hace)
{
    for (const ComponenteCorrido& comp : caso.c.componentes)
        if (comp.embalse && comp.fila != 0 && comp.embalse->TieneTabla() &&
            comp.embalse->metodo != MetodoEmbalse::Ninguno &&
            comp.embalse->H.Alcanza(comp.embalse->tablas.numero, caso.c.UltimoPaso()))
            hace(comp, *comp.embalse);
}

void AguaSobreLaTabla(const Caso& caso, const Anota& anota)
{
    CadaEmbalse(caso, [&](const ComponenteCorrido& comp, const EmbalseCorrido& e) {
        const auto rebose = ReboseDe(caso.c, comp, Valor(Umbral::AlturaDeTope));
        if (!rebose) return;
        const double entra = caso.c.Volumen(caso.c.r().QEntra, comp.fila, 1, caso.c.UltimoPaso());
        anota(comp.nombre,
              M3(rebose->volumen) + " no caben (" + Cifra(entra > 0 ? 100 * rebose->volumen / entra : 0, 1) +
                  " % de lo que entra), " + Cifra(rebose->altura) + " m sobre el tope de " +
                  Cifra(double{e.Tope()}) + " m, desde el minuto " +
                  Cifra(rebose->desde * caso.c.Segundos() / 60, 0),
              rebose->volumen);
    });
}

void AguaSobreLaDescarga(const Caso& caso, const Anota& anota)
{
    CadaEmbalse(caso, [&](const ComponenteCorrido& comp, const EmbalseCorrido& e) {
        std::optional<hydraulics::RangoAlturas> rango;
        model::Sentencia([&] { rango = hydraulics::RangoDescarga(e.tablas); });
        if (!rango || rango->maximo <= rango->minimo) return;
        const int n = caso.c.UltimoPaso();
        const bool porCaudal = e.metodo == MetodoEmbalse::Muskingum;
        const float* fila = porCaudal ? caso.c.r().QSale.Fila(comp.fila) : e.H.Fila(e.tablas.numero);
        const double tope = porCaudal ? e.Descarga(rango->maximo) : double{rango->maximo};
        const double margen = porCaudal ? 1e-3 * std::fabs(tope) : Valor(Umbral::AlturaDeTope);
        const float* primero = std::find_if(fila, fila + n + 1, [&](float x) { return x > tope + margen; });
        if (primero == fila + n + 1) return;
        const double exceso = double{*std::max_element(primero, fila + n + 1)} - tope;
        const std::string unidad = porCaudal ? " m3/s" : " m";
        anota(comp.nombre,
              Cifra(exceso) + unidad + " por encima de " + Cifra(tope) + unidad + ", desde el minuto " +
                  Cifra(static_cast<double>(primero - fila) * caso.c.Segundos() / 60, 0),
              exceso);
    });
}

void AlmacenamientoNegativo(const Caso& caso, const Anota& anota)
{
    CadaEmbalse(caso, [&](const ComponenteCorrido& comp, const EmbalseCorrido& e) {
        const float* S = e.S.Fila(e.tablas.numero);
        const float menor = *std::min_element(S, S + caso.c.UltimoPaso() + 1);
        if (menor < 0) anota(comp.nombre, "hasta " + M3(double{menor}), -double{menor});
    });
}

// --- balance ---

void AnotaDescuadre(const RenglonBalance& b, const Anota& anota)
{
    if (!SeDescuadra(b)) return;
    const std::string falta = b.Error() > 0 ? "faltan " : "sobran ";
    anota(b.componente,
          falta + M3(std::fabs(b.Error())) + " (" + Cifra(std::fabs(b.PorCiento())) + " %): entran " +
              M3(b.entra) + ", salen " + M3(b.sale) + ", se retienen o infiltran " + M3(b.perdido) +
              ", se almacenan " + M3(b.almacenado) + ", corta el final " + M3(b.cortado),
          std::fabs(b.PorCiento()));
}

void BalanceDeComponentes(const Caso& caso, const Anota& anota)
{
    for (const RenglonBalance& b : caso.balance.componentes)
        AnotaDescuadre(b, anota);
}

void BalanceDeCuenca(const Caso& caso, const Anota& anota)
{
    AnotaDescuadre(caso.balance.cuenca, anota);
}

// --- steps ---

void AnotaCoeficientes(const Caso& caso, const Anota& anota, std::string_view nombre, double K, double x)
{
    engine::Muskingum m;
    if (!model::Sentencia([&] { m.Prepara(K, x, caso.c.pasos.PasoQ, [](auto hace) { hace(); }); })) return;
    const double menor = std::min({double{m.C0Musk}, double{m.C1Musk}, double{m.C2Musk}});
    if (menor >= 0) return;
    anota(nombre,
          "C0 = " + Cifra(double{m.C0Musk}, 3) + ", C1 = " + Cifra(double{m.C1Musk}, 3) +
              ", C2 = " + Cifra(double{m.C2Musk}, 3) + "; 2Kx = " + Minutos(2 * K * x) +
              ", 2K(1-x) = " + Minutos(2 * K * (1 - x)) + ", paso " + Minutos(caso.c.pasos.PasoQ),
          -menor);
}

void CoeficientesNegativos(const Caso& caso, const Anota& anota)
{
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.cauce != nullptr && !comp.cauce->optDirMusk)
            AnotaCoeficientes(caso, anota, comp.nombre, double{comp.cauce->Cauce_k_Musk},
                              double{comp.cauce->Cauce_n_Musk});
        if (comp.embalse && comp.embalse->metodo == MetodoEmbalse::Muskingum)
            AnotaCoeficientes(caso, anota, comp.nombre, double{comp.embalse->K}, 0);
    }
}

void ViajesCortos(const Caso& caso, const Anota& anota)
{
    const double paso = caso.c.pasos.PasoQ;
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.cauce == nullptr || !comp.cauce->optDirMusk || comp.cauce->VelMediaCauce == 0) continue;
        if (caso.c.Retardo(*comp.cauce) != 0) continue;
        const double viaje = double{comp.cauce->LongCauce} / comp.cauce->VelMediaCauce / 60;
        anota(comp.nombre, "viaje " + Minutos(viaje) + ", paso " + Minutos(paso),
              paso / std::max(viaje, 0.1));
    }
}

void TrasladosCortos(const Caso& caso, const Anota& anota)
{
    const int paso = caso.c.pasos.PasoQ;
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        const auto T = comp.ueh != nullptr ? Corrido::Traslado(*comp.ueh) : std::nullopt;
        if (!T || *T >= paso || *T < 0) continue;
        anota(comp.nombre,
              "traslado " + Minutos(*T) + ", paso " + Minutos(paso) +
                  (*T == 0 ? "; con 0 min el último punto de cada lluvia se pierde" : ""),
              paso - *T);
    }
}

/// Output steps in which the outflow rises to its peak; nothing where it doesn't rise. A UEH rises from the
/// beginning of the storm on, at step 0.
std::optional<int> PasosDeSubida(const Corrido& c, int fila)
{
    const float* q = c.r().QSale.Fila(fila);
    const float* pico = std::max_element(q + 1, q + c.UltimoPaso() + 1);
    const float primero = *std::min_element(q + 1, pico + 1);
    const double crece = double{*pico} - primero, umbral = Valor(Umbral::InicioDeSubida);
    if (crece <= umbral * *pico) return {};
    const float* inicio = pico;
    while (*inicio > primero + umbral * crece)
        --inicio;
    return static_cast<int>(pico - inicio);
}

void SubidasCortas(const Caso& caso, const Anota& anota)
{
    int menor = static_cast<int>(Valor(Umbral::PasosDeSubida)), cuantos = 0;
    std::string_view cual;
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.ueh != nullptr || comp.fila == 0) continue;
        const auto subida = PasosDeSubida(caso.c, comp.fila);
        if (!subida || *subida >= static_cast<int>(Valor(Umbral::PasosDeSubida))) continue;
        ++cuantos;
        if (*subida >= menor) continue;
        menor = *subida;
        cual = comp.nombre;
    }
    if (cuantos == 0) return;
    const std::string otros = cuantos > 1 ? "; y en " + std::to_string(cuantos - 1) + " más" : "";
    const double paso = caso.c.pasos.PasoQ;
    anota(cual, "sube en " + Minutos(menor * paso) + ", paso " + Minutos(paso) + otros,
          Valor(Umbral::PasosDeSubida) - menor);
}

// --- the network ---

void VariasSalidas(const Caso& caso, const Anota& anota)
{
    std::string nombres;
    int cuantas = 0;
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (!caso.c.EsSalida(comp)) continue;
        if (++cuantas <= model::MaxSalidas) nombres.append(nombres.empty() ? "" : ", ").append(comp.nombre);
    }
    if (cuantas < 2) return;
    anota({}, std::to_string(cuantas) + ": " + nombres + (cuantas > model::MaxSalidas ? ", ..." : ""),
          cuantas);
}

void SinEnlazar(const Caso& caso, const Anota& anota)
{
    const auto& todos = caso.c.componentes;
    const bool hayReceptores =
        std::any_of(todos.begin(), todos.end(), [](const ComponenteCorrido& c) { return c.ueh == nullptr; });
    for (const ComponenteCorrido& comp : todos) {
        const bool nombra = model::EsDestino(comp.destino);
        if (caso.c.EsSalida(comp) && (nombra || (comp.ueh != nullptr && hayReceptores)))
            anota(comp.nombre,
                  nombra ? "drena a " + std::string(comp.destino) + ", que no está" : "no drena a nada", 1);
        if (comp.ueh != nullptr) continue;
        if (std::none_of(todos.begin(), todos.end(),
                         [&](const ComponenteCorrido& c) { return model::DrenaA(c.destino, comp.nombre); }))
            anota(comp.nombre, "nada drena a él", 1);
    }
}

void EmbalseEnEmbalse(const Caso& caso, const Anota& anota)
{
    const auto& todos = caso.c.componentes;
    for (const ComponenteCorrido& comp : todos) {
        if (!comp.embalse || !model::EsDestino(comp.destino)) continue;
        const bool aEmbalse = std::any_of(todos.begin(), todos.end(), [&](const ComponenteCorrido& c) {
            return c.embalse && c.nombre == comp.destino;
        });
        if (!aEmbalse) continue;
        const bool mide = caso.c.TieneResultados() && comp.fila != 0;
        const double v = mide ? caso.c.Volumen(caso.c.r().QSale, comp.fila, 1, caso.c.UltimoPaso()) : 0;
        anota(comp.nombre, (mide ? M3(v) + " no llegan a " : "no llegan a ") + std::string(comp.destino), v);
    }
}

void TablasSinUso(const Caso& caso, const Anota& anota)
{
    for (const model::Represa& r : caso.c.red.ColRepresas) {
        const auto& filas = caso.c.red.RepresaFilasHQ;
        const bool hayTabla = r.numRepresa >= 1 && r.numRepresa <= filas.Tope() && filas(r.numRepresa) > 0;
        const bool hayFunciones = std::count(r.chkFQ.begin(), r.chkFQ.end(), 1) > 0;
        if (r.optTabla && hayFunciones)
            anota(r.NombreRepresa, "sale por la tabla H-Q; sus funciones tildadas no se usan", 1);
        if (!r.optTabla && hayTabla)
            anota(r.NombreRepresa, "sale por las funciones; su tabla H-Q no se usa", 1);
    }
}

void LluviaRetenida(const Caso& caso, const Anota& anota)
{
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.ueh == nullptr || comp.fila == 0) continue;
        const double P = caso.c.calculo.Tormenta.PpUEH(comp.fila), Z = comp.ueh->RetensionZ;
        if (P > 0 && P <= Z)
            anota(comp.nombre, "llueven " + Cifra(P, 1) + " mm, retiene " + Cifra(Z, 1) + " mm", Z - P);
    }
}

// --- numbers ---

void CaudalNegativo(const Caso& caso, const Anota& anota)
{
    for (const ComponenteCorrido& comp : caso.c.componentes) {
        if (comp.fila == 0) continue;
        const float* q = caso.c.r().QSale.Fila(comp.fila);
        const float menor = *std::min_element(q + 1, q + caso.c.UltimoPaso() + 1);
        if (menor < 0) anota(comp.nombre, "hasta " + Cifra(double{menor}, 3) + " m3/s", -double{menor});
    }
}

bool EsDesborde(const engine::AvisoDeCalculo& a)
{
    const model::Falla desborde{model::NumeroFalla::Desbordamiento};
    return a.mensaje.texto == model::TextoFallaMotor(desborde) ||
           a.mensaje.texto == model::TextoFallaArchivo(desborde);
}

void Desbordes(const Caso& caso, const Anota& anota)
{
    for (const engine::AvisoDeCalculo& a : caso.c.calculo.avisos)
        if (EsDesborde(a)) anota({}, std::to_string(a.veces) + " veces", a.veces);
}

void VolumenesEnormes(const Caso& caso, const Anota& anota)
{
    const double tope = Valor(Umbral::VolumenDeFlotante);
    for (const RenglonBalance& b : caso.balance.componentes)
        if (b.sale > tope) anota(b.componente, M3(b.sale) + "; el tipo distingue hasta " + M3(tope), b.sale);
}

bool Termino(const Caso& caso)
{
    return caso.c.calculo.fin == engine::FinCalculo::Completo;
}

void LoQueDijo(const Caso& caso, const Anota& anota)
{
    const auto& avisos = caso.c.calculo.avisos;
    const std::size_t ultimo = avisos.size() - (Termino(caso) || avisos.empty() ? 0 : 1);
    for (std::size_t i = 0; i < ultimo; ++i) {
        const engine::AvisoDeCalculo& a = avisos[i];
        if (EsDesborde(a)) continue;
        anota({},
              a.mensaje.texto + (a.esPregunta ? " -> Sí" : "") +
                  (a.veces > 1 ? " (" + std::to_string(a.veces) + " veces)" : ""),
              a.veces);
    }
}

void SinTerminar(const Caso& caso, const Anota& anota)
{
    if (Termino(caso)) return;
    const auto& avisos = caso.c.calculo.avisos;
    anota({}, avisos.empty() ? "" : avisos.back().mensaje.texto, 1);
}

// clang-format off
constexpr auto Busquedas = std::to_array<Busqueda>({
    {101, PicosAlFinal},
    {102, AguaCortada},
    {103, AguaSobreLaTabla},
    {104, AguaSobreLaDescarga},
    {105, BalanceDeComponentes},
    {106, BalanceDeCuenca},
    {107, CoeficientesNegativos},
    {108, ViajesCortos},
    {109, SubidasCortas},
    {110, TrasladosCortos},
    {111, VariasSalidas},
    {112, SinEnlazar},
    {113, EmbalseEnEmbalse},
    {114, TablasSinUso},
    {115, LluviaRetenida},
    {116, AlmacenamientoNegativo},
    {117, CaudalNegativo},
    {118, Desbordes},
    {119, VolumenesEnormes},
    {120, LoQueDijo},
    {121, SinTerminar},
});
// clang-format on

constexpr const ReglaDeAviso& ReglaDe(int numero)
{
    return *std::find_if(ReglasDeAvisos.begin(), ReglasDeAvisos.end(),
                         [&](const ReglaDeAviso& r) { return r.numero == numero; });
}

}  // namespace

std::vector<HallazgoMedido> BuscaAvisos(const Corrido& c, const Balance& balance, const PideTiempo& tiempo)
{
    std::vector<HallazgoMedido> hallados;
    const bool conResultados = c.TieneResultados();
    for (const Busqueda& b : Busquedas) {
        const ReglaDeAviso& regla = ReglaDe(b.numero);
        if (conResultados || !regla.conResultados) b.busca({c, balance, tiempo}, {regla, hallados});
    }
    return hallados;
}

bool SobreElLimite(const RenglonBalance& b)
{
    return std::fabs(b.PorCiento()) > Valor(Umbral::ErrorDeBalance);
}

bool SeDescuadra(const RenglonBalance& b)
{
    return SobreElLimite(b) && std::fabs(b.Error()) > b.lectura;
}

std::string RemedioDePico(const TiempoAgregado& t, float ahora)
{
    if (!t.alcanza)
        return "Ni con " + Minutos(double{t.minutos}) +
               " agregados deja de subir: revise tablas, descargas y caudales iniciales";
    return "Ponga en " + Minutos(double{t.minutos}) +
           " el tiempo agregado a la duración de la tormenta (ahora " + Minutos(double{ahora}) +
           ") y vuelva a correr";
}

void OrdenaPorGravedad(std::vector<Hallazgo>& hallazgos)
{
    std::stable_sort(hallazgos.begin(), hallazgos.end(),
                     [](const Hallazgo& a, const Hallazgo& b) { return a.gravedad < b.gravedad; });
}

std::vector<Hallazgo> AvisosDeCorrida(const model::Red& red, const model::Tormenta& tormenta,
                                      const model::Pasos& pasos, const model::TablasDeLluvia& tablas,
                                      const engine::Calculo& calculo)
{
    const Corrido c(red, tormenta, pasos, calculo);
    std::vector<Hallazgo> avisos;
    const Balance balance = c.TieneResultados() ? BalanceDe(c) : Balance{};
    for (HallazgoMedido& h : BuscaAvisos(c, balance, [&] {
             engine::Memoria memoria;
             return TiempoQueAlcanza(red, tormenta, pasos, tablas, memoria);
         }))
        avisos.push_back(std::move(h.hallazgo));
    OrdenaPorGravedad(avisos);
    return avisos;
}

}  // namespace checks
