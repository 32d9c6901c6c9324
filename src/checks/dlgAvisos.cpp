// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/dlgAvisos.h"

#include <algorithm>
#include <utility>

#include "checks/AvisosDeCorrida.h"
#include "checks/EscribeHallazgos.h"
#include "model/Numeros.h"

namespace checks {

namespace {

constexpr std::string_view SinAvisos = "Sin avisos";
constexpr std::string_view SinCorrida = "Sin corrida";
constexpr std::string_view Revisando = "Revisando...";
constexpr std::string_view EnRevision =
    "Se está revisando la última corrida: los avisos aparecen al terminar";
constexpr std::string_view TodaLaCuenca = "Toda la cuenca";
constexpr int NumeroDePico = 101;

std::string Cifra(double x, int decimales)
{
    return model::NumeroATexto(model::Redondea(x, decimales));
}
std::string Minutos(double m)
{
    return Cifra(m, 1) + " min";
}

// --- tables ---

const std::vector<forms::ColumnaPlanilla>& ColumnasDeAvisos()
{
    static const std::vector<forms::ColumnaPlanilla> columnas{{"Gravedad", true},   {"N.º"},
                                                              {"Componente", true}, {"Qué", true},
                                                              {"Cuánto", true},     {"Qué hacer", true}};
    return columnas;
}

const std::vector<forms::ColumnaPlanilla>& ColumnasDeBalance()
{
    static const std::vector<forms::ColumnaPlanilla> columnas{
        {"Componente", true}, {"Entra [m3]"},          {"Sale [m3]"},  {"Se retiene o infiltra [m3]"},
        {"Se almacena [m3]"}, {"Corta el final [m3]"}, {"Error [m3]"}, {"Error [%]"},
        {"Cierre", true}};
    return columnas;
}

void PonAvisos(forms::Cuadro& cuadro, const std::vector<Hallazgo>& avisos)
{
    forms::Planilla planilla{{}, ColumnasDeAvisos(), {}};
    std::vector<int> rangos;
    for (const Hallazgo& h : avisos) {
        rangos.push_back(static_cast<int>(h.gravedad));
        planilla.filas.push_back({std::string(Nombre(h.gravedad)), std::to_string(h.numero), h.componente,
                                  EnUnRenglon(h.que), EnUnRenglon(h.cuanto), EnUnRenglon(h.remedio)});
    }
    forms::PonFilas(cuadro, std::move(planilla), std::move(rangos));
}

Cierre CierreDe(const RenglonBalance& b)
{
    if (SeDescuadra(b)) return Cierre::NoCierra;
    return SobreElLimite(b) ? Cierre::EnLaLectura : Cierre::Cierra;
}

std::string Palabras(Cierre cierre, const RenglonBalance& b)
{
    switch (cierre) {
    case Cierre::NoCierra:
        return b.Error() > 0 ? "No cierra: falta agua" : "No cierra: sobra agua";
    case Cierre::EnLaLectura:
        return "Supera el límite, pero no los ±" + Cifra(b.lectura, 0) +
               " m3 con que se leen los números de la corrida";
    case Cierre::SinFila:
        return "Sin resultados";
    case Cierre::Cierra:
        break;
    }
    return "Cierra";
}

void AgregaBalance(dlgAvisos& f, forms::Planilla& planilla, std::string nombre, const RenglonBalance& b,
                   Cierre cierre)
{
    std::vector<std::string> fila{std::move(nombre)};
    if (cierre == Cierre::SinFila)
        fila.resize(ColumnasDeBalance().size() - 1);
    else
        for (const double v : {b.entra, b.sale, b.perdido, b.almacenado, b.cortado, b.Error()})
            fila.push_back(Cifra(v, 0));
    if (cierre != Cierre::SinFila) fila.push_back(Cifra(b.PorCiento(), 3));
    fila.push_back(Palabras(cierre, b));
    planilla.filas.push_back(std::move(fila));
    f.cierres.push_back(cierre);
}

void PonBalance(dlgAvisos& f, const UltimaCorrida* u)
{
    forms::Planilla planilla{{}, ColumnasDeBalance(), {}};
    f.cierres.clear();
    f.lblSinBalance.clear();
    if (u != nullptr && u->balance) {
        const RenglonBalance& cuenca = u->balance->cuenca;
        AgregaBalance(f, planilla, std::string(TodaLaCuenca), cuenca, CierreDe(cuenca));
        for (std::size_t i = 0; i < u->balance->componentes.size(); ++i) {
            const ComponenteCorrido& comp = u->corrido->componentes[i];
            const RenglonBalance& b = u->balance->componentes[i];
            AgregaBalance(f, planilla, std::string(comp.nombre), b,
                          comp.fila == 0 ? Cierre::SinFila : CierreDe(b));
        }
    } else if (u != nullptr) {
        f.lblSinBalance = u->esSerie
                              ? "Una serie no guarda hidrogramas, y sin ellos no hay balance: corra la "
                                "tormenta que interese sola"
                              : "La corrida no llegó a su fin, y sin resultados no hay balance";
    }
    forms::PonFilas(f.tblBalance, std::move(planilla));
}

// --- the time that the peaks ask for ---

bool HayPico(const UltimaCorrida& u)
{
    return std::any_of(u.avisos.begin(), u.avisos.end(),
                       [](const Hallazgo& h) { return h.numero == NumeroDePico; });
}

/// Why the time can't be set; empty where it can.
std::string Impedimento(const UltimaCorrida& u, bool anterior)
{
    if (u.esSerie) return "En una serie el tiempo agregado se pone en la configuración";
    if (!u.tiempo) return "No se sabe cuánto tiempo hace falta";
    if (!u.tiempo->alcanza) return RemedioDePico(*u.tiempo, u.pasos.N0Dur);
    return anterior ? "Los avisos son de una corrida anterior: corra de nuevo primero" : "";
}

void PonTiempo(dlgAvisos& f, const UltimaCorrida* u)
{
    f.pideTiempo = u != nullptr && HayPico(*u);
    f.minutos = 0;
    f.cmdAgregarTiempo = forms::RotuloDe(RotulosDlgAvisos, "cmdAgregarTiempo").leyenda;
    f.ayudaTiempo.clear();
    if (!f.pideTiempo) return;
    const std::string ahora = Minutos(double{u->pasos.N0Dur});
    if (!u->esSerie && u->tiempo && u->tiempo->alcanza)
        f.cmdAgregarTiempo = "A&gregar " + Minutos(double{u->tiempo->minutos}) + " y correr de nuevo";
    f.ayudaTiempo = Impedimento(*u, !f.lblAnterior.empty());
    if (!f.ayudaTiempo.empty()) return;
    f.minutos = u->tiempo->minutos;
    f.ayudaTiempo = "Pone en " + Minutos(double{f.minutos}) +
                    " el tiempo agregado a la duración de la tormenta (ahora " + ahora +
                    "), como <Aplicar> en la configuración, y corre de nuevo";
}

// --- words ---

/// Those of a severity; empty where there is none.
std::string Cuantos(const std::vector<Hallazgo>& avisos, Gravedad gravedad)
{
    const auto n = std::count_if(avisos.begin(), avisos.end(),
                                 [&](const Hallazgo& h) { return h.gravedad == gravedad; });
    if (n == 0) return {};
    const std::string_view plural = n == 1 ? "" : gravedad == Gravedad::Error ? "es" : "s";
    return std::to_string(n).append(" ").append(Nombre(gravedad)).append(plural);
}

std::string Cuenta(const std::vector<Hallazgo>& avisos)
{
    std::string texto;
    const auto agrega = [&](const std::string& parte) {
        if (!parte.empty()) texto += (texto.empty() ? "" : ", ") + parte;
    };
    agrega(Cuantos(avisos, Gravedad::Error));
    agrega(Cuantos(avisos, Gravedad::Aviso));
    if (texto.empty()) texto = SinAvisos;
    agrega(Cuantos(avisos, Gravedad::Nota));
    return texto;
}

std::string DeAnterior(const EstadoDeCorrida& e)
{
    if (e.enCurso || e.ultima == nullptr) return {};
    const std::string que =
        QueDifiere(e.ultima->sello, e.ahora, e.ultima->esSerie ? Alcance::Serie : Alcance::Corrida);
    return que.empty() ? que : "De una corrida anterior: " + que;
}

std::string DeQueCorrida(const EstadoDeCorrida& e)
{
    if (e.enCurso) return std::string(EnRevision);
    if (e.ultima == nullptr) return "Todavía no se ha corrido ninguna tormenta";
    return e.ultima->sello.tormenta + " · corrida del " + e.ultima->cuando;
}

}  // namespace

void Muestra(dlgAvisos& f, const EstadoDeCorrida& estado)
{
    const std::shared_ptr<const UltimaCorrida> corrida = estado.enCurso ? nullptr : estado.ultima;
    f.lblCorrida = DeQueCorrida(estado);
    f.lblAnterior = DeAnterior(estado);
    f.lblCuenta = corrida == nullptr ? std::string() : Cuenta(corrida->avisos);
    if (f.corrida != corrida || f.tblAvisos.planilla.columnas.empty()) {
        f.corrida = corrida;
        PonAvisos(f.tblAvisos, corrida == nullptr ? std::vector<Hallazgo>{} : corrida->avisos);
        PonBalance(f, corrida.get());
    }
    PonTiempo(f, corrida.get());
}

void AlPulsarEncabezado(forms::Cuadro& cuadro, int columna)
{
    forms::PulsaEncabezado(cuadro, columna);
}

std::optional<Hallazgo> DeFilaDeAvisos(const dlgAvisos& f, std::size_t fila)
{
    if (f.corrida == nullptr || fila >= f.corrida->avisos.size()) return {};
    return f.corrida->avisos[fila];
}

std::optional<Hallazgo> DeFilaDeBalance(const dlgAvisos& f, std::size_t fila)
{
    if (fila >= f.tblBalance.planilla.filas.size()) return {};
    return Hallazgo{.componente = fila == 0 ? std::string() : f.tblBalance.planilla.filas[fila][0]};
}

bool HayHidrograma(const dlgAvisos& f, const std::string& componente)
{
    if (f.corrida == nullptr || f.corrida->esSerie || componente.empty()) return false;
    if (!f.corrida->corrido || !f.corrida->corrido->TieneResultados()) return false;
    const auto& todos = f.corrida->corrido->componentes;
    return std::any_of(todos.begin(), todos.end(),
                       [&](const ComponenteCorrido& c) { return c.fila != 0 && c.nombre == componente; });
}

forms::Planilla ParaArchivo(const dlgAvisos& f, const forms::Cuadro& cuadro, std::string_view titulo)
{
    forms::Planilla planilla = forms::ALaVista(cuadro);
    planilla.titulos = {std::string(titulo), f.lblCorrida};
    if (f.corrida != nullptr)
        planilla.titulos.push_back("Proyecto " + f.corrida->sello.nombre + ". Huella " + f.corrida->huella);
    if (!f.lblAnterior.empty()) planilla.titulos.push_back(f.lblAnterior);
    if (!f.lblCuenta.empty()) planilla.titulos.push_back(f.lblCuenta);
    return planilla;
}

std::string TextoDeClave(const EstadoDeCorrida& e)
{
    if (e.enCurso) return std::string(Revisando);
    if (e.ultima == nullptr) return std::string(SinCorrida);
    return Cuenta(e.ultima->avisos) + (DeAnterior(e).empty() ? "" : " (corrida anterior)");
}

std::optional<Gravedad> PeorGravedad(const EstadoDeCorrida& e)
{
    if (e.enCurso || e.ultima == nullptr || e.ultima->avisos.empty()) return {};
    return e.ultima->avisos.front().gravedad;  // errors stand first
}

std::string AyudaDeClave(const EstadoDeCorrida& e)
{
    std::string ayuda = e.enCurso ? std::string(EnRevision) : "Muestra los avisos de la última corrida";
    const std::string anterior = DeAnterior(e);
    return anterior.empty() ? ayuda : ayuda + "\n" + anterior;
}

}  // namespace checks
