// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/AjusteParametros.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "forms/CampoNumerico.h"
#include "forms/ReglasGrilla.h"
#include "model/Avisos.h"
#include "model/Clases.h"
#include "model/Numeros.h"
#include "runs/Corredor.h"
#include "runs/Sorteos.h"

namespace calibration {

using study::Parametro;

namespace {

struct Modo {
    std::string_view clave, nombre;
};
constexpr auto Modos = std::to_array<Modo>({{"valor", "Valor"}, {"factor", "Factor"}, {"suma", "Suma"}});
constexpr auto Patrones = std::to_array<std::string_view>({"u-*", "c-*", "r-*", "l-*"});

std::string Numero(double x)
{
    return model::NumeroATexto(x);
}

runs::Movido MovidoDe(const Parametro& p, const dlgAjuste& f)
{
    return runs::Resuelve(p, ProyectoDe(f).Red, ProyectoDe(f).Tormenta);
}

std::size_t LugarDeModo(std::string_view clave)
{
    const auto i = std::find_if(Modos.begin(), Modos.end(), [&](const Modo& m) { return m.clave == clave; });
    return i == Modos.end() ? 0 : static_cast<std::size_t>(i - Modos.begin());
}

char ClaseDe(std::string_view componentes)
{
    return componentes.empty() ? '\0' : componentes.front();
}

/// How many components a parameter moves and what they have, "3 componentes, de 1.2 a 4 mm/min^b".
std::string Ahora(const runs::Movido& m)
{
    if (!m.motivo.empty() || m.campo == nullptr || m.actual.empty()) return m.motivo;
    const auto [menor, mayor] = std::minmax_element(m.actual.begin(), m.actual.end());
    const std::string unidad = m.campo->unidad == "-" ? std::string() : " " + std::string(m.campo->unidad);
    const std::string cuanto =
        *menor == *mayor ? Numero(Redondo(*menor)) + unidad
                         : "de " + Numero(Redondo(*menor)) + " a " + Numero(Redondo(*mayor)) + unidad;
    if (m.numeros.empty()) return cuanto;
    const std::size_t n = m.numeros.size();
    return std::to_string(n) + (n == 1 ? " componente, " : " componentes, ") + cuanto;
}

forms::Planilla Tabla(const dlgAjuste& f)
{
    forms::Planilla p{{std::string(TituloDlgAjuste) + ": parámetros", ProyectoDe(f).Proyecto.NombreProyecto},
                      {{"Componentes", true},
                       {"Campo", true},
                       {"Modo", true},
                       {"Mínimo"},
                       {"Máximo"},
                       {"Participa", true},
                       {"Escala", true},
                       {"Distribución", true},
                       {"Centro"},
                       {"Desvío"},
                       {"Valores", true},
                       {"Unidad", true},
                       {"Ahora", true}},
                      {}};
    for (const Parametro& x : AjusteDe(f).parametros) {
        const runs::Movido m = MovidoDe(x, f);
        const runs::Distribucion* const d = runs::DistribucionDe(x.distribucion);
        std::string valores;
        for (const study::ValorPosible& v : x.valores)
            valores += (valores.empty() ? "" : "; ") + Numero(v.valor) + ":" + Numero(v.peso);
        p.filas.push_back({x.componentes, m.campo == nullptr ? x.campo : std::string(m.campo->nombre),
                           std::string(Modos[LugarDeModo(x.modo)].nombre), Numero(x.minimo), Numero(x.maximo),
                           x.activo ? "sí" : "no", x.logaritmica ? "logarítmica" : "lineal",
                           d == nullptr ? x.distribucion : std::string(d->nombre),
                           x.centro ? Numero(*x.centro) : "", x.dispersion ? Numero(*x.dispersion) : "",
                           valores, std::string(runs::UnidadDe(x)), Ahora(m)});
    }
    return p;
}

/// The density by how probability is spread over the range: its quantiles, each an equal share.
forms::Grafico GraficoDe(const Parametro& p, const study::Calibracion& calibracion)
{
    constexpr int Partes = 40, PorParte = 100;
    forms::Grafico g;
    g.ejeX =
        runs::NombreDe(p) + (runs::UnidadDe(p) == "-" ? "" : " [" + std::string(runs::UnidadDe(p)) + "]");
    g.magnitudX = "Valor";
    g.ejeY = "Probabilidad de cada parte [%]";
    g.titulo = "De dónde se sortea " + runs::NombreDe(p);
    const bool deJuegos = p.distribucion == "cercanos";
    if (!runs::ReparosDeSorteo({&p, 1}, calibracion).empty() || !(p.minimo < p.maximo)) return g;
    const auto campo = std::find(calibracion.campos.begin(), calibracion.campos.end(), runs::ClaveDe(p));
    const auto cual = static_cast<std::size_t>(campo - calibracion.campos.begin());
    const std::size_t n = deJuegos ? calibracion.cercanos.size() : Partes * PorParte;
    std::vector<double> cuenta(Partes);
    for (std::size_t i = 0; i < n; ++i) {
        const double x = deJuegos
                             ? calibracion.cercanos[i].valores.at(cual)
                             : runs::CuantilDe(p, (static_cast<double>(i) + 0.5) / static_cast<double>(n));
        const double parte = (x - p.minimo) / (p.maximo - p.minimo) * Partes;
        const double casilla = std::clamp(std::floor(parte), 0.0, Partes - 1.0);
        cuenta[static_cast<std::size_t>(casilla)] += 1;
    }
    forms::Serie serie{.leyenda = "Probabilidad"};
    for (std::size_t i = 0; i < Partes; ++i) {
        const double medio = p.minimo + (static_cast<double>(i) + 0.5) * (p.maximo - p.minimo) / Partes;
        g.abscisas.push_back(medio);
        g.categorias.push_back(Numero(Redondo(medio)));
        constexpr double PorCiento = 100;
        serie.celdas.push_back(PorCiento * cuenta[i] / static_cast<double>(n));
    }
    g.series.push_back(std::move(serie));
    return g;
}

/// The network under the storm in hand alone: what is wrong with parameters shows there.
std::string AvisosDe(const dlgAjuste& f)
{
    const study::Ajuste& a = AjusteDe(f);
    if (a.parametros.empty())
        return "Ningún parámetro se mueve todavía: pulse Proponer, o agregue los que quiera.";
    runs::Modelo modelo{.red = ProyectoDe(f).Red};
    for (const Parametro& p : a.parametros)
        if (p.activo) modelo.parametros.push_back(p);
    modelo.lluvias.push_back({"", ProyectoDe(f).Tormenta, ProyectoDe(f).Pasos});
    std::string t;
    const auto agrega = [&t](const std::vector<std::string>& reparos) {
        for (const std::string& r : reparos)
            t += (t.empty() ? "• " : "\n• ") + r;
    };
    agrega(runs::ReparosDe(modelo));
    agrega(runs::ReparosDeSorteo(modelo.parametros, a.calibracion));
    const std::size_t n = modelo.parametros.size();
    return t.empty() ? std::to_string(n) + (n == 1 ? " parámetro participa" : " parámetros participan") +
                           "; nada que observar."
                     : t;
}

/// The components that there are, patterns first.
std::vector<std::string> ComponentesDe(const dlgAjuste& f)
{
    std::vector<std::string> todos, nombres;
    model::CadaComponente(ProyectoDe(f).Red, [&](const auto& c) { nombres.push_back(model::Nombre(c)); });
    for (const std::string_view patron : Patrones)
        if (std::any_of(nombres.begin(), nombres.end(),
                        [&](const std::string& n) { return runs::Nombra(patron, n); }))
            todos.emplace_back(patron);
    todos.emplace_back(runs::LaTormenta);
    todos.insert(todos.end(), nombres.begin(), nombres.end());
    return todos;
}

/// Changes the parameter in hand; nothing where there is none.
void CambiaEnMano(const AjusteParametros& m, dlgAjuste& f, std::string_view leyenda,
                  const std::function<void(Parametro&)>& cambio)
{
    const Parametro* const p = ParametroEnMano(m, f);
    if (p == nullptr) return;
    Parametro nuevo = *p;
    cambio(nuevo);
    if (nuevo == *p) return;
    Cambia(f, leyenda,
           [&](study::Ajuste& a) { a.parametros[static_cast<std::size_t>(m.enMano)] = std::move(nuevo); });
}

void Agrega(AjusteParametros& m, dlgAjuste& f, std::string_view leyenda, std::vector<Parametro> nuevos)
{
    if (nuevos.empty()) return;
    const std::size_t antes = AjusteDe(f).parametros.size();
    Cambia(f, leyenda,
           [&](study::Ajuste& a) { a.parametros.insert(a.parametros.end(), nuevos.begin(), nuevos.end()); });
    if (AjusteDe(f).parametros.size() > antes) m.enMano = static_cast<int>(antes);
    Toma(m, f);
}

bool Esta(const dlgAjuste& f, const Parametro& p)
{
    const std::vector<Parametro>& hay = AjusteDe(f).parametros;
    return std::any_of(hay.begin(), hay.end(), [&](const Parametro& otro) {
        return otro.componentes == p.componentes && otro.campo == p.campo;
    });
}

}  // namespace

AjusteParametros NuevaAjusteParametros()
{
    AjusteParametros m;
    for (const Modo& modo : Modos)
        m.modos.emplace_back(modo.nombre);
    for (const runs::Distribucion& d : runs::Distribuciones())
        m.distribuciones.emplace_back(d.nombre);
    return m;
}

const Parametro* ParametroEnMano(const AjusteParametros& m, const dlgAjuste& f)
{
    return study::Item(AjusteDe(f).parametros, m.enMano);
}

void Toma(AjusteParametros& m, const dlgAjuste& f)
{
    m.enMano = study::Dentro(m.enMano, AjusteDe(f).parametros.size());
    forms::PonFilas(m.tblParametros, Tabla(f));
    m.componentes = ComponentesDe(f);
    m.lblAvisos = AvisosDe(f);
    const Parametro* const hay = ParametroEnMano(m, f);
    const Parametro p = hay == nullptr ? Parametro{} : *hay;
    m.txtComponentes = hay == nullptr ? std::string() : p.componentes;
    m.campos.clear();
    m.losCampos.clear();
    m.campo = -1;
    const char clase = p.componentes == runs::LaTormenta ? 't' : ClaseDe(p.componentes);
    for (const runs::Campo& c : runs::Campos()) {
        if (c.clase != clase) continue;
        if (c.clave == p.campo) m.campo = static_cast<int>(m.campos.size());
        m.losCampos.push_back(&c);
        m.campos.push_back(std::string(c.nombre) +
                           (c.unidad == "-" ? "" : " [" + std::string(c.unidad) + "]"));
    }
    m.modo = static_cast<int>(LugarDeModo(p.modo));
    m.txtMinimo = Numero(p.minimo);
    m.txtMaximo = Numero(p.maximo);
    m.chkLogaritmica = p.logaritmica;
    m.chkActivo = p.activo;
    m.lblUnidad = runs::UnidadDe(p) == "-" ? std::string() : "[" + std::string(runs::UnidadDe(p)) + "]";
    m.lblActual = hay == nullptr ? std::string() : Ahora(MovidoDe(p, f));
    const std::span<const runs::Distribucion> todas = runs::Distribuciones();
    const auto d = std::find_if(todas.begin(), todas.end(),
                                [&](const runs::Distribucion& x) { return x.clave == p.distribucion; });
    m.distribucion = d == todas.end() ? -1 : static_cast<int>(d - todas.begin());
    m.conCentro = d != todas.end() && d->conCentro;
    m.conDispersion = d != todas.end() && d->conDispersion;
    m.conValores = d != todas.end() && d->conValores;
    m.lblCentro = m.conCentro ? std::string(d->centro) : std::string();
    m.lblDispersion = m.conDispersion ? std::string(d->dispersion) : std::string();
    m.txtCentro = p.centro ? Numero(*p.centro) : std::string();
    m.txtDispersion = p.dispersion ? Numero(*p.dispersion) : std::string();
    m.txtValores.clear();
    for (const study::ValorPosible& v : p.valores)
        m.txtValores += (m.txtValores.empty() ? "" : "; ") + Numero(v.valor) +
                        (v.peso == 1 ? std::string() : ":" + Numero(v.peso));
    m.Grafico = hay == nullptr ? forms::Grafico{} : GraficoDe(p, AjusteDe(f).calibracion);
}

void tblParametros_Mueve(AjusteParametros& m, const dlgAjuste& f, std::size_t fila)
{
    if (fila >= AjusteDe(f).parametros.size()) return;
    m.enMano = static_cast<int>(fila);
    Toma(m, f);
}

void cmdProponer(AjusteParametros& m, dlgAjuste& f)
{
    std::vector<Parametro> nuevos = Propuestos(f);
    std::erase_if(nuevos, [&](const Parametro& p) { return Esta(f, p); });
    if (nuevos.empty())
        return model::Informa(f.s, "Los parámetros que suelen moverse en una red como ésta ya están.");
    Agrega(m, f, "Proponer parámetros", std::move(nuevos));
}

void cmdAgregar(AjusteParametros& m, dlgAjuste& f)
{
    Parametro p;
    for (const runs::Campo& c : runs::Campos()) {
        if (c.clase != 'u') continue;
        p.campo = c.clave;
        if (!Esta(f, p)) break;
    }
    ProponRango(p, f);
    Agrega(m, f, "Agregar un parámetro", {p});
}

void cmdDuplicar(AjusteParametros& m, dlgAjuste& f)
{
    if (const Parametro* const p = ParametroEnMano(m, f)) Agrega(m, f, "Duplicar el parámetro", {*p});
}

void cmdQuitar(AjusteParametros& m, dlgAjuste& f)
{
    if (ParametroEnMano(m, f) == nullptr) return;
    Cambia(f, "Quitar el parámetro",
           [&](study::Ajuste& a) { a.parametros.erase(a.parametros.begin() + m.enMano); });
    Toma(m, f);
}

void cmdMover(AjusteParametros& m, dlgAjuste& f, int hacia)
{
    const int otro = m.enMano + hacia;
    if (ParametroEnMano(m, f) == nullptr || study::Item(AjusteDe(f).parametros, otro) == nullptr) return;
    Cambia(f, hacia < 0 ? "Subir el parámetro" : "Bajar el parámetro", [&](study::Ajuste& a) {
        std::swap(a.parametros[static_cast<std::size_t>(m.enMano)],
                  a.parametros[static_cast<std::size_t>(otro)]);
    });
    m.enMano = otro;
    Toma(m, f);
}

bool txtComponentes_AlSalir(AjusteParametros& m, dlgAjuste& f)
{
    const std::string nombre(forms::SinBlancos(m.txtComponentes));
    CambiaEnMano(m, f, "Componentes del parámetro", [&](Parametro& p) {
        if (nombre == p.componentes) return;
        p.componentes = nombre;
        const char clase = nombre == runs::LaTormenta ? 't' : ClaseDe(nombre);
        if (runs::CampoDe(p.campo, clase) != nullptr) return;
        for (const runs::Campo& c : runs::Campos())
            if (c.clase == clase) {
                p.campo = c.clave;
                break;
            }
        ProponRango(p, f);
    });
    Toma(m, f);
    return true;
}

bool txtNumero_AlSalir(AjusteParametros& m, dlgAjuste& f, std::string_view control)
{
    struct Fila {
        std::string_view control, leyenda;
        std::string AjusteParametros::*texto;
        bool puedeFaltar;
        std::string_view rechazo;
    };
    static constexpr auto Filas = std::to_array<Fila>({
        {"txtMinimo", "Mínimo del parámetro", &AjusteParametros::txtMinimo, false,
         "El mínimo del parámetro es un número."},
        {"txtMaximo", "Máximo del parámetro", &AjusteParametros::txtMaximo, false,
         "El máximo del parámetro es un número."},
        {"txtCentro", "Centro de la distribución", &AjusteParametros::txtCentro, true,
         "El centro de la distribución es un número, o queda vacío."},
        {"txtDispersion", "Desvío de la distribución", &AjusteParametros::txtDispersion, true,
         "El desvío de la distribución es un número mayor que 0, o queda vacío."},
    });
    const auto* const fila =
        std::find_if(Filas.begin(), Filas.end(), [&](const Fila& x) { return x.control == control; });
    const std::string& texto = m.*fila->texto;
    const std::optional<double> x = forms::NumeroDeCampo(texto);
    const bool desvio = control == "txtDispersion";
    if ((!x && !(fila->puedeFaltar && forms::SinBlancos(texto).empty())) || (desvio && x && *x <= 0)) {
        forms::MuestraRechazo(f.s, forms::Rechazo::Exclamacion, fila->rechazo);
        return false;
    }
    CambiaEnMano(m, f, fila->leyenda, [&](Parametro& p) {
        if (control == "txtMinimo") p.minimo = *x;
        if (control == "txtMaximo") p.maximo = *x;
        if (control == "txtCentro") p.centro = x;
        if (desvio) p.dispersion = x;
    });
    Toma(m, f);
    return true;
}

bool txtValores_AlSalir(AjusteParametros& m, dlgAjuste& f)
{
    std::optional<std::vector<study::ValorPosible>> valores = ValoresDe(m.txtValores);
    if (!valores) {
        forms::MuestraRechazo(f.s, forms::Rechazo::Exclamacion,
                              "Los valores se escriben con punto y coma entre ellos y su peso, de 0 en "
                              "adelante, detrás de dos puntos: 10:1; 20:3; 30.");
        return false;
    }
    CambiaEnMano(m, f, "Valores del parámetro", [&](Parametro& p) { p.valores = *std::move(valores); });
    Toma(m, f);
    return true;
}

void cmbCampo_Click(const AjusteParametros& m, dlgAjuste& f, int cual)
{
    CambiaEnMano(m, f, "Campo del parámetro", [&](Parametro& p) {
        const std::string clave(m.losCampos.at(static_cast<std::size_t>(cual))->clave);
        if (p.campo == clave) return;
        p.campo = clave;
        ProponRango(p, f);
    });
}

void cmbModo_Click(const AjusteParametros& m, dlgAjuste& f, int cual)
{
    CambiaEnMano(m, f, "Modo del parámetro", [&](Parametro& p) {
        const std::string clave(Modos.at(static_cast<std::size_t>(cual)).clave);
        if (p.modo == clave) return;
        p.modo = clave;
        ProponRango(p, f);
    });
}

void cmbDistribucion_Click(const AjusteParametros& m, dlgAjuste& f, int cual)
{
    CambiaEnMano(m, f, "Distribución del parámetro", [&](Parametro& p) {
        p.distribucion = runs::Distribuciones()[static_cast<std::size_t>(cual)].clave;
        if (p.distribucion != "discreta" || !p.valores.empty()) return;
        p.valores = {{p.minimo, 1}, {p.maximo, 1}};
    });
}

void chkLogaritmica_Click(const AjusteParametros& m, dlgAjuste& f, bool tildada)
{
    CambiaEnMano(m, f, tildada ? "Escala logarítmica" : "Escala lineal",
                 [&](Parametro& p) { p.logaritmica = tildada; });
}

void chkActivo_Click(const AjusteParametros& m, dlgAjuste& f, bool tildada)
{
    CambiaEnMano(m, f, tildada ? "El parámetro participa" : "El parámetro no participa",
                 [&](Parametro& p) { p.activo = tildada; });
}

forms::Planilla PlanillaDeParametros(const dlgAjuste& f)
{
    return Tabla(f);
}

}  // namespace calibration
